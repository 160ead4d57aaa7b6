// drawboard.cpp : a frame with a toolbar and a status bar around a view of its own
//
#include "stdafx.h"

#include "resource.h"

/////////////////////////////////////////////////////////////////////////////
// CBoard: what is drawn

class CBoard : public CWnd {
public:
    CArray<CRect, CRect&> m_shapes;

protected:
    afx_msg void OnPaint() {
        CPaintDC dc(this);
        for (int i = 0; i < m_shapes.GetSize(); i++) {
            if (i % 2)
                dc.Rectangle(m_shapes[i]);
            else {
                dc.MoveTo(m_shapes[i].TopLeft());
                dc.LineTo(m_shapes[i].BottomRight());
            }
        }
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CBoard, CWnd)
    ON_WM_PAINT()
END_MESSAGE_MAP()

/////////////////////////////////////////////////////////////////////////////
// CMainFrame

static UINT indicators[] = {
    ID_SEPARATOR,  // status line indicator
    ID_INDICATOR_SHAPES,
    ID_INDICATOR_CAPS,
    ID_INDICATOR_NUM,
};

class CMainFrame : public CFrameWnd {
    DECLARE_DYNAMIC(CMainFrame)
public:
    CMainFrame() : m_bBox(FALSE) {}

protected:
    CStatusBar m_wndStatusBar;
    CToolBar m_wndToolBar;
    CBoard m_board;
    BOOL m_bBox;

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnDraw(UINT nID);
    afx_msg void OnUpdateDraw(CCmdUI* pCmdUI);
    afx_msg void OnClear();
    afx_msg void OnUpdateClear(CCmdUI* pCmdUI) { pCmdUI->Enable(m_board.m_shapes.GetSize() > 0); }
    afx_msg void OnUpdateShapes(CCmdUI* pCmdUI);
    afx_msg void OnDockTop() { DockControlBar(&m_wndToolBar, AFX_IDW_DOCKBAR_TOP); }
    afx_msg void OnDockLeft() { DockControlBar(&m_wndToolBar, AFX_IDW_DOCKBAR_LEFT); }
    afx_msg void OnFloat();
    afx_msg void OnWhere();
    afx_msg void OnClose();
    DECLARE_MESSAGE_MAP()
};

IMPLEMENT_DYNAMIC(CMainFrame, CFrameWnd)

BEGIN_MESSAGE_MAP(CMainFrame, CFrameWnd)
    ON_WM_CREATE()
    ON_COMMAND_RANGE(ID_DRAW_LINE, ID_DRAW_BOX, &CMainFrame::OnDraw)
    ON_UPDATE_COMMAND_UI_RANGE(ID_DRAW_LINE, ID_DRAW_BOX, &CMainFrame::OnUpdateDraw)
    ON_COMMAND(ID_DRAW_CLEAR, &CMainFrame::OnClear)
    ON_UPDATE_COMMAND_UI(ID_DRAW_CLEAR, &CMainFrame::OnUpdateClear)
    ON_UPDATE_COMMAND_UI(ID_INDICATOR_SHAPES, &CMainFrame::OnUpdateShapes)
    ON_COMMAND(ID_VIEW_TOP, &CMainFrame::OnDockTop)
    ON_COMMAND(ID_VIEW_LEFT, &CMainFrame::OnDockLeft)
    ON_COMMAND(ID_VIEW_FLOAT, &CMainFrame::OnFloat)
    ON_COMMAND(ID_VIEW_WHERE, &CMainFrame::OnWhere)
    ON_WM_CLOSE()
END_MESSAGE_MAP()

int CMainFrame::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    if (CFrameWnd::OnCreate(lpCreateStruct) == -1) return -1;

    if (!m_board.Create(NULL, NULL, WS_CHILD | WS_VISIBLE, CRect(0, 0, 0, 0), this, AFX_IDW_PANE_FIRST, NULL))
        return -1;

    if (!m_wndToolBar.CreateEx(this, TBSTYLE_FLAT,
                               WS_CHILD | WS_VISIBLE | CBRS_TOP | CBRS_GRIPPER | CBRS_TOOLTIPS | CBRS_FLYBY |
                                   CBRS_SIZE_DYNAMIC) ||
        !m_wndToolBar.LoadToolBar(IDR_MAINFRAME)) {
        TRACE0("Failed to create toolbar\n");
        return -1;  // fail to create
    }

    if (!m_wndStatusBar.Create(this) ||
        !m_wndStatusBar.SetIndicators(indicators, sizeof(indicators) / sizeof(UINT))) {
        TRACE0("Failed to create status bar\n");
        return -1;  // fail to create
    }

    m_wndToolBar.EnableDocking(CBRS_ALIGN_ANY);
    EnableDocking(CBRS_ALIGN_ANY);
    DockControlBar(&m_wndToolBar);
    LoadBarState(_T("BarState"));
    return 0;
}

void CMainFrame::OnClose() {
    SaveBarState(_T("BarState"));
    CFrameWnd::OnClose();
}

void CMainFrame::OnFloat() {
    CRect rect;
    GetWindowRect(&rect);
    FloatControlBar(&m_wndToolBar, rect.CenterPoint());
}

void CMainFrame::OnWhere() {
    CString str(m_wndToolBar.IsFloating() ? _T("floating") : _T("docked"));
    if (m_wndToolBar.GetBarStyle() & CBRS_ALIGN_LEFT) str += _T(" at the left");
    if (m_wndToolBar.GetBarStyle() & CBRS_ALIGN_TOP) str += _T(" along a row");
    SetMessageText(str);
}

void CMainFrame::OnDraw(UINT nID) {
    m_bBox = nID == ID_DRAW_BOX;
    const int n = 10 * (int)m_board.m_shapes.GetSize();
    CRect rect(n, n, n + 20, n + 20);
    m_board.m_shapes.Add(rect);
    m_board.Invalidate();
}

void CMainFrame::OnUpdateDraw(CCmdUI* pCmdUI) {
    pCmdUI->Enable();
    pCmdUI->SetRadio((pCmdUI->m_nID == ID_DRAW_BOX) == m_bBox);
}

void CMainFrame::OnClear() {
    m_board.m_shapes.RemoveAll();
    m_board.Invalidate();
}

void CMainFrame::OnUpdateShapes(CCmdUI* pCmdUI) {
    CString str;
    str.Format(_T("%d shapes"), (int)m_board.m_shapes.GetSize());
    pCmdUI->Enable();
    pCmdUI->SetText(str);
    // The title tells it to those who cannot see the pane.
    CString strTitle = GetTitle() + _T(" - ") + str;
    AfxSetWindowText(m_hWnd, strTitle);
}

/////////////////////////////////////////////////////////////////////////////

class CDrawBoardApp : public CWinApp {
public:
    BOOL InitInstance() override {
        SetRegistryKey(_T("ktui clients"));
        CMainFrame* pFrame = new CMainFrame;
        m_pMainWnd = pFrame;
        if (!pFrame->LoadFrame(IDR_MAINFRAME)) return FALSE;
        pFrame->ShowWindow(SW_SHOW);
        pFrame->UpdateWindow();
        return TRUE;
    }
};

CDrawBoardApp theApp;
