// textpad.cpp : an editor of one document in a frame with a status bar
//
#include "stdafx.h"

#include "resource.h"

/////////////////////////////////////////////////////////////////////////////
// CPadDoc

class CPadDoc : public CDocument {
protected:  // create from serialization only
    CPadDoc() {}
    DECLARE_DYNCREATE(CPadDoc)

public:
    virtual void Serialize(CArchive& ar);
    virtual void DeleteContents();
};

IMPLEMENT_DYNCREATE(CPadDoc, CDocument)

void CPadDoc::Serialize(CArchive& ar) {
    // CEditView contains an edit control which handles all serialization
    ((CEditView*)m_viewList.GetHead())->SerializeRaw(ar);
}

void CPadDoc::DeleteContents() {
    POSITION pos = GetFirstViewPosition();
    if (pos != NULL) GetNextView(pos)->SetWindowText(NULL);
    CDocument::DeleteContents();
}

/////////////////////////////////////////////////////////////////////////////
// CPadView

class CPadView : public CEditView {
protected:
    CPadView() {}
    DECLARE_DYNCREATE(CPadView)

public:
    CPadDoc* GetDocument() { return (CPadDoc*)m_pDocument; }
};

IMPLEMENT_DYNCREATE(CPadView, CEditView)

/////////////////////////////////////////////////////////////////////////////
// CMainFrame

static UINT indicators[] = {
    ID_SEPARATOR,  // status line indicator
    ID_INDICATOR_CAPS,
    ID_INDICATOR_NUM,
};

class CMainFrame : public CFrameWnd {
protected:
    CMainFrame() {}
    DECLARE_DYNCREATE(CMainFrame)

    CStatusBar m_wndStatusBar;

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    DECLARE_MESSAGE_MAP()
};

IMPLEMENT_DYNCREATE(CMainFrame, CFrameWnd)

BEGIN_MESSAGE_MAP(CMainFrame, CFrameWnd)
    ON_WM_CREATE()
END_MESSAGE_MAP()

int CMainFrame::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    if (CFrameWnd::OnCreate(lpCreateStruct) == -1) return -1;

    if (!m_wndStatusBar.Create(this) ||
        !m_wndStatusBar.SetIndicators(indicators, sizeof(indicators) / sizeof(UINT))) {
        TRACE0("Failed to create status bar\n");
        return -1;
    }
    return 0;
}

/////////////////////////////////////////////////////////////////////////////
// CPadApp

class CPadApp : public CWinApp {
public:
    virtual BOOL InitInstance();

    afx_msg void OnAppAbout();
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CPadApp, CWinApp)
    ON_COMMAND(ID_APP_ABOUT, &CPadApp::OnAppAbout)
    // Standard file based document commands
    ON_COMMAND(ID_FILE_NEW, &CWinApp::OnFileNew)
    ON_COMMAND(ID_FILE_OPEN, &CWinApp::OnFileOpen)
END_MESSAGE_MAP()

CPadApp theApp;

BOOL CPadApp::InitInstance() {
    SetRegistryKey(_T("ktui client programs"));
    LoadStdProfileSettings();

    CSingleDocTemplate* pDocTemplate = new CSingleDocTemplate(
        IDR_MAINFRAME, RUNTIME_CLASS(CPadDoc), RUNTIME_CLASS(CMainFrame), RUNTIME_CLASS(CPadView));
    AddDocTemplate(pDocTemplate);

    // Parse command line for standard shell commands, file open
    CCommandLineInfo cmdInfo;
    ParseCommandLine(cmdInfo);

    // Dispatch commands specified on the command line
    if (!ProcessShellCommand(cmdInfo)) return FALSE;

    m_pMainWnd->ShowWindow(SW_SHOW);
    m_pMainWnd->UpdateWindow();
    return TRUE;
}

void CPadApp::OnAppAbout() {
    CDialog aboutDlg(IDD_ABOUTBOX);
    aboutDlg.DoModal();
}
