// workbench.cpp : a frame with a menu bar, a toolbar and five panes, two of them in tabs, whose layout comes
// back the next time
//
#include "stdafx.h"

#include "resource.h"

/////////////////////////////////////////////////////////////////////////////
// CListPane

class CListPane : public CDockablePane {
    DECLARE_DYNAMIC(CListPane)

protected:
    CListBox m_wndList;

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    DECLARE_MESSAGE_MAP()
};

IMPLEMENT_DYNAMIC(CListPane, CDockablePane)

BEGIN_MESSAGE_MAP(CListPane, CDockablePane)
    ON_WM_CREATE()
    ON_WM_SIZE()
END_MESSAGE_MAP()

int CListPane::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    if (CDockablePane::OnCreate(lpCreateStruct) == -1) return -1;

    CRect rectDummy;
    rectDummy.SetRectEmpty();
    if (!m_wndList.Create(WS_CHILD | WS_VISIBLE | LBS_NOINTEGRALHEIGHT, rectDummy, this, 1)) {
        TRACE0("Failed to create the list\n");
        return -1;
    }
    CString strName;
    GetWindowText(strName);
    m_wndList.AddString(strName);
    return 0;
}

void CListPane::OnSize(UINT nType, int cx, int cy) {
    CDockablePane::OnSize(nType, cx, cy);
    if (m_wndList.GetSafeHwnd() != NULL)
        m_wndList.SetWindowPos(NULL, 0, 0, cx, cy, SWP_NOMOVE | SWP_NOACTIVATE | SWP_NOZORDER);
}

/////////////////////////////////////////////////////////////////////////////
// CMainFrame

static UINT indicators[] = {
    ID_SEPARATOR,  // status line indicator
};

class CMainFrame : public CFrameWndEx {
public:
    CMainFrame() {}

protected:
    DECLARE_DYNAMIC(CMainFrame)

    CStatusBar m_wndStatusBar;
    CMFCMenuBar m_wndMenuBar;
    CMFCToolBar m_wndToolBar;
    CListPane m_wndLayers;
    CListPane m_wndBlocks;
    CListPane m_wndProperties;
    CListPane m_wndOutput;
    CListPane m_wndNotes;

    CListPane* PaneOf(UINT nID);
    static LPCTSTR PaneName(UINT nID);
    CString Describe();
    virtual void GetMessageString(UINT nID, CString& rMessage) const;

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnViewPane(UINT nID);
    afx_msg void OnUpdateViewPane(CCmdUI* pCmdUI);
    afx_msg void OnWindowFloat();
    afx_msg void OnWindowDock();
    afx_msg void OnToolsFloat();
    afx_msg void OnToolsDock();
    DECLARE_MESSAGE_MAP()
};

IMPLEMENT_DYNAMIC(CMainFrame, CFrameWndEx)

BEGIN_MESSAGE_MAP(CMainFrame, CFrameWndEx)
    ON_WM_CREATE()
    ON_COMMAND_RANGE(ID_VIEW_LAYERS, ID_VIEW_NOTES, OnViewPane)
    ON_UPDATE_COMMAND_UI_RANGE(ID_VIEW_LAYERS, ID_VIEW_NOTES, OnUpdateViewPane)
    ON_COMMAND(ID_WINDOW_FLOAT, OnWindowFloat)
    ON_COMMAND(ID_WINDOW_DOCK, OnWindowDock)
    ON_COMMAND(ID_TOOLS_FLOAT, OnToolsFloat)
    ON_COMMAND(ID_TOOLS_DOCK, OnToolsDock)
END_MESSAGE_MAP()

int CMainFrame::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    if (CFrameWndEx::OnCreate(lpCreateStruct) == -1) return -1;

    if (!m_wndStatusBar.Create(this) ||
        !m_wndStatusBar.SetIndicators(indicators, sizeof(indicators) / sizeof(UINT))) {
        TRACE0("Failed to create status bar\n");
        return -1;
    }
    if (!m_wndMenuBar.Create(this)) {
        TRACE0("Failed to create menubar\n");
        return -1;
    }
    m_wndMenuBar.SetPaneStyle(m_wndMenuBar.GetPaneStyle() | CBRS_SIZE_DYNAMIC | CBRS_TOOLTIPS | CBRS_FLYBY);
    if (!m_wndToolBar.Create(this, AFX_DEFAULT_TOOLBAR_STYLE, IDR_TOOLBAR)) {
        TRACE0("Failed to create toolbar\n");
        return -1;
    }
    for (UINT nID = ID_VIEW_LAYERS; nID <= ID_VIEW_NOTES; nID++)
        m_wndToolBar.InsertButton(CMFCToolBarButton(nID, -1, PaneName(nID)));
    const DWORD dwStyle = WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS | WS_CLIPCHILDREN | CBRS_FLOAT_MULTI;
    if (!m_wndLayers.Create(_T("Layers"), this, CRect(0, 0, 160, 200), TRUE, ID_VIEW_LAYERS,
                            dwStyle | CBRS_LEFT) ||
        !m_wndBlocks.Create(_T("Blocks"), this, CRect(0, 0, 160, 200), TRUE, ID_VIEW_BLOCKS,
                            dwStyle | CBRS_LEFT) ||
        !m_wndProperties.Create(_T("Properties"), this, CRect(0, 0, 180, 200), TRUE, ID_VIEW_PROPERTIES,
                                dwStyle | CBRS_RIGHT) ||
        !m_wndOutput.Create(_T("Output"), this, CRect(0, 0, 200, 100), TRUE, ID_VIEW_OUTPUT,
                            dwStyle | CBRS_BOTTOM) ||
        !m_wndNotes.Create(_T("Notes"), this, CRect(0, 0, 200, 100), TRUE, ID_VIEW_NOTES,
                           dwStyle | CBRS_BOTTOM)) {
        TRACE0("Failed to create the panes\n");
        return -1;
    }
    EnableDocking(CBRS_ALIGN_ANY);
    m_wndMenuBar.EnableDocking(CBRS_ALIGN_ANY);
    m_wndToolBar.EnableDocking(CBRS_ALIGN_ANY);
    DockPane(&m_wndMenuBar);
    DockPane(&m_wndToolBar);
    m_wndLayers.EnableDocking(CBRS_ALIGN_ANY);
    DockPane(&m_wndLayers);
    m_wndBlocks.EnableDocking(CBRS_ALIGN_ANY);
    m_wndBlocks.DockToWindow(&m_wndLayers, CBRS_ALIGN_BOTTOM);
    m_wndProperties.EnableDocking(CBRS_ALIGN_ANY);
    DockPane(&m_wndProperties);
    m_wndOutput.EnableDocking(CBRS_ALIGN_ANY);
    DockPane(&m_wndOutput);
    m_wndNotes.EnableDocking(CBRS_ALIGN_ANY);
    CDockablePane* pTabbedBar = NULL;
    m_wndNotes.AttachToTabWnd(&m_wndOutput, DM_SHOW, TRUE, &pTabbedBar);
    return 0;
}

CListPane* CMainFrame::PaneOf(UINT nID) {
    CListPane* panes[] = {&m_wndLayers, &m_wndBlocks, &m_wndProperties, &m_wndOutput, &m_wndNotes};
    return panes[nID - ID_VIEW_LAYERS];
}

LPCTSTR CMainFrame::PaneName(UINT nID) {
    static const LPCTSTR names[] = {_T("Layers"), _T("Blocks"), _T("Properties"), _T("Output"), _T("Notes")};
    return names[nID - ID_VIEW_LAYERS];
}

// A letter for each pane: hidden, tabbed, docked or floating; then the toolbar: at the top, at the left or
// floating; then the menu bar, and whether it holds all of the menu
CString CMainFrame::Describe() {
    CString strState;
    for (UINT nID = ID_VIEW_LAYERS; nID <= ID_VIEW_NOTES; nID++) {
        CListPane* pPane = PaneOf(nID);
        if (!pPane->IsVisible())
            strState += _T('h');
        else if (pPane->IsTabbed())
            strState += _T('t');
        else
            strState += pPane->IsFloating() ? _T('f') : _T('d');
    }
    strState += m_wndToolBar.IsFloating() ? _T(" F") : m_wndToolBar.IsHorizontal() ? _T(" T") : _T(" L");
    strState += m_wndMenuBar.IsFloating() ? _T(" F") : m_wndMenuBar.IsHorizontal() ? _T(" T") : _T(" L");
    if (GetMenu() != NULL || GetMenuBar() != &m_wndMenuBar || m_wndMenuBar.GetCount() != 3)
        strState += _T("!");
    return strState;
}

void CMainFrame::GetMessageString(UINT nID, CString& rMessage) const {
    if (nID == AFX_IDS_IDLEMESSAGE)
        rMessage = ((CMainFrame*)this)->Describe();
    else
        CFrameWndEx::GetMessageString(nID, rMessage);
}

void CMainFrame::OnViewPane(UINT nID) {
    CListPane* pPane = PaneOf(nID);
    ShowPane(pPane, !pPane->IsVisible(), FALSE, TRUE);
    PostMessage(WM_SETMESSAGESTRING, AFX_IDS_IDLEMESSAGE);
}

void CMainFrame::OnUpdateViewPane(CCmdUI* pCmdUI) { pCmdUI->SetCheck(PaneOf(pCmdUI->m_nID)->IsVisible()); }

void CMainFrame::OnWindowFloat() {
    m_wndProperties.FloatPane(CRect(400, 300, 600, 500));
    PostMessage(WM_SETMESSAGESTRING, AFX_IDS_IDLEMESSAGE);
}

void CMainFrame::OnWindowDock() {
    m_wndProperties.DockToFrameWindow(CBRS_ALIGN_LEFT);
    PostMessage(WM_SETMESSAGESTRING, AFX_IDS_IDLEMESSAGE);
}

void CMainFrame::OnToolsFloat() {
    m_wndToolBar.FloatPane(CRect(450, 200, 560, 200));
    m_wndMenuBar.FloatPane(CRect(450, 300, 450, 300));
    PostMessage(WM_SETMESSAGESTRING, AFX_IDS_IDLEMESSAGE);
}

void CMainFrame::OnToolsDock() {
    DockPane(&m_wndToolBar, AFX_IDW_DOCKBAR_LEFT);
    DockPane(&m_wndMenuBar, AFX_IDW_DOCKBAR_TOP);
    PostMessage(WM_SETMESSAGESTRING, AFX_IDS_IDLEMESSAGE);
}

/////////////////////////////////////////////////////////////////////////////
// CWorkbenchApp

class CWorkbenchApp : public CWinAppEx {
public:
    virtual BOOL InitInstance();
};

CWorkbenchApp theApp;

BOOL CWorkbenchApp::InitInstance() {
    CWinAppEx::InitInstance();
    SetRegistryKey(_T("Local AppWizard-Generated Applications"));
    SetRegistryBase(_T("Settings"));

    CMainFrame* pFrame = new CMainFrame;
    if (!pFrame->LoadFrame(IDR_MAINFRAME)) return FALSE;
    m_pMainWnd = pFrame;
    pFrame->ShowWindow(m_nCmdShow);
    pFrame->UpdateWindow();
    return TRUE;
}
