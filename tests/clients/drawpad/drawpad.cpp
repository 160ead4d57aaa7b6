// drawpad.cpp : strokes in any number of windows
//
#include "stdafx.h"

#include "resource.h"

/////////////////////////////////////////////////////////////////////////////
// CStroke: one line of the drawing, which writes itself to an archive

class CStroke : public CObject {
public:
    CStroke(CPoint from, CPoint to) : m_from(from), m_to(to) {}

protected:
    CStroke() {}
    DECLARE_SERIAL(CStroke)

public:
    CPoint m_from, m_to;

    virtual void Serialize(CArchive& ar) {
        if (ar.IsStoring())
            ar << m_from << m_to;
        else
            ar >> m_from >> m_to;
    }
};

IMPLEMENT_SERIAL(CStroke, CObject, 1)

/////////////////////////////////////////////////////////////////////////////
// CDrawDoc

class CDrawDoc : public CDocument {
protected:
    CDrawDoc() {}
    DECLARE_DYNCREATE(CDrawDoc)

public:
    CTypedPtrList<CObList, CStroke*> m_strokes;

    void NewStroke() {
        int n = 10 * ((int)m_strokes.GetCount() + 1);
        m_strokes.AddTail(new CStroke(CPoint(n, 10), CPoint(n, 300)));
        SetModifiedFlag();
        UpdateAllViews(NULL);
    }
    virtual void DeleteContents() {
        while (!m_strokes.IsEmpty()) delete m_strokes.RemoveHead();
        CDocument::DeleteContents();
    }
    virtual void Serialize(CArchive& ar) { m_strokes.Serialize(ar); }

protected:
    afx_msg void OnClear() {
        DeleteContents();
        SetModifiedFlag();
        UpdateAllViews(NULL);
    }
    afx_msg void OnUpdateClear(CCmdUI* pCmdUI) { pCmdUI->Enable(!m_strokes.IsEmpty()); }
    DECLARE_MESSAGE_MAP()
};

IMPLEMENT_DYNCREATE(CDrawDoc, CDocument)

BEGIN_MESSAGE_MAP(CDrawDoc, CDocument)
    ON_COMMAND(ID_DRAW_CLEAR, &CDrawDoc::OnClear)
    ON_UPDATE_COMMAND_UI(ID_DRAW_CLEAR, &CDrawDoc::OnUpdateClear)
END_MESSAGE_MAP()

/////////////////////////////////////////////////////////////////////////////
// CDrawView

class CDrawView : public CScrollView {
protected:
    CDrawView() {}
    DECLARE_DYNCREATE(CDrawView)

public:
    CDrawDoc* GetDocument() { return STATIC_DOWNCAST(CDrawDoc, m_pDocument); }

    virtual void OnInitialUpdate() {
        SetScrollSizes(MM_TEXT, CSize(800, 900));
        CScrollView::OnInitialUpdate();
    }
    virtual void OnUpdate(CView* pSender, LPARAM lHint, CObject* pHint) {
        // The main window tells how much there is.
        CString strCount;
        strCount.Format(_T("%d strokes"), (int)GetDocument()->m_strokes.GetCount());
        CFrameWnd* pFrame = (CFrameWnd*)AfxGetMainWnd();
        if (pFrame != NULL) pFrame->SetMessageText(strCount);
        CScrollView::OnUpdate(pSender, lHint, pHint);
    }
    virtual void OnDraw(CDC* pDC) {
        POSITION pos = GetDocument()->m_strokes.GetHeadPosition();
        while (pos != NULL) {
            CStroke* pStroke = GetDocument()->m_strokes.GetNext(pos);
            pDC->MoveTo(pStroke->m_from);
            pDC->LineTo(pStroke->m_to);
        }
    }

protected:
    afx_msg void OnStroke() { GetDocument()->NewStroke(); }
    DECLARE_MESSAGE_MAP()
};

IMPLEMENT_DYNCREATE(CDrawView, CScrollView)

BEGIN_MESSAGE_MAP(CDrawView, CScrollView)
    ON_COMMAND(ID_DRAW_STROKE, &CDrawView::OnStroke)
    ON_COMMAND(ID_FILE_PRINT, &CView::OnFilePrint)
    ON_COMMAND(ID_FILE_PRINT_PREVIEW, &CView::OnFilePrintPreview)
END_MESSAGE_MAP()

/////////////////////////////////////////////////////////////////////////////
// CMainFrame

class CMainFrame : public CMDIFrameWnd {
    DECLARE_DYNAMIC(CMainFrame)
public:
    CStatusBar m_wndStatusBar;

protected:
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct) {
        static UINT indicators[] = {ID_SEPARATOR};
        if (CMDIFrameWnd::OnCreate(lpCreateStruct) == -1) return -1;
        return m_wndStatusBar.Create(this) && m_wndStatusBar.SetIndicators(indicators, 1) ? 0 : -1;
    }
    DECLARE_MESSAGE_MAP()
};

IMPLEMENT_DYNAMIC(CMainFrame, CMDIFrameWnd)

BEGIN_MESSAGE_MAP(CMainFrame, CMDIFrameWnd)
    ON_WM_CREATE()
END_MESSAGE_MAP()

/////////////////////////////////////////////////////////////////////////////
// CDrawApp

class CDrawApp : public CWinApp {
public:
    virtual BOOL InitInstance() {
        SetRegistryKey(_T("ktui client programs"));
        LoadStdProfileSettings();
        AddDocTemplate(new CMultiDocTemplate(IDR_DRAWTYPE, RUNTIME_CLASS(CDrawDoc),
                                             RUNTIME_CLASS(CMDIChildWnd), RUNTIME_CLASS(CDrawView)));

        // create main MDI Frame window
        CMainFrame* pMainFrame = new CMainFrame;
        if (!pMainFrame->LoadFrame(IDR_MAINFRAME)) return FALSE;
        m_pMainWnd = pMainFrame;
        m_pMainWnd->DragAcceptFiles();

        CCommandLineInfo cmdInfo;
        ParseCommandLine(cmdInfo);
        if (!ProcessShellCommand(cmdInfo)) return FALSE;

        pMainFrame->ShowWindow(m_nCmdShow);
        pMainFrame->UpdateWindow();
        return TRUE;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CDrawApp, CWinApp)
    ON_COMMAND(ID_FILE_NEW, &CWinApp::OnFileNew)
    ON_COMMAND(ID_FILE_OPEN, &CWinApp::OnFileOpen)
END_MESSAGE_MAP()

CDrawApp theApp;
