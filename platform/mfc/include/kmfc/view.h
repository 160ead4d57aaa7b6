// CView: a window that shows a document.
#pragma once

#include <kmfc/control_over_view.h>
#include <kmfc/create_context.h>
#include <kmfc/frame.h>
#include <kmfc/scroll_bar.h>

class CDocument;
class CPreviewView;
class CSplitterWnd;
struct CPrintInfo;
struct CPrintPreviewState;

namespace kmfc {
class PrintingDialog;
}

/// Sent to a frame's windows once, before it is shown for the first time.
constexpr UINT WM_INITIALUPDATE = 0x0364;

constexpr DWORD AFX_WS_DEFAULT_VIEW = WS_CHILD | WS_VISIBLE | WS_BORDER;

/// The client area of a frame, or a pane of it. It draws the document in OnDraw; what its message map does
/// not take of commands goes on to the document. The object goes with its window.
class KMFC_API CView : public CWnd {
    DECLARE_DYNAMIC(CView)
public:
    CDocument* GetDocument() const { return m_pDocument; }

    virtual BOOL IsSelected(const CObject* pDocItem) const;
    /// Prepares `pDC` before OnDraw, and before each page with what is printed. There it may end the job
    /// (m_bContinuePrinting).
    virtual void OnPrepareDC(CDC* pDC, CPrintInfo* pInfo = nullptr);
    /// Called once, when the view is tied to its document and before it is shown; calls OnUpdate.
    virtual void OnInitialUpdate();
    /// Scrolls by a code for each direction (horizontal in the low byte, vertical in the high one; 0xFF for
    /// none) and by a distance. FALSE where nothing moved.
    virtual BOOL OnScroll(UINT nScrollCode, UINT nPos, BOOL bDoScroll = TRUE);
    virtual BOOL OnScrollBy(CSize sizeScroll, BOOL bDoScroll = TRUE);

    /// The splitter that the window is a pane of, or null; with `bAnyState` even in a minimised frame.
    static CSplitterWnd* GetParentSplitter(const CWnd* pWnd, BOOL bAnyState);
    /// The bar that the panes of a splitter share, or null.
    CScrollBar* GetScrollBarCtrl(int nBar) const override;

    /// Prints the document. A window tells which page and lets the user give up; the main window is disabled
    /// meanwhile. The user is told of a failure.
    afx_msg void OnFilePrint();
    /// Shows the pages in place of the program's main window's own. Nothing happens while one is shown
    /// already.
    afx_msg void OnFilePrintPreview();

    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;

protected:
    CView();
    ~CView() override;

    /// The view of its frame that has the focus changes.
    virtual void OnActivateView(BOOL bActivate, CView* pActivateView, CView* pDeactiveView);
    /// The frame of the view is activated or not (WA_ codes).
    virtual void OnActivateFrame(UINT nState, CFrameWnd* pFrameWnd);
    /// The document has changed. Hints mean what document and views agree on. This one invalidates.
    virtual void OnUpdate(CView* pSender, LPARAM lHint, CObject* pHint);
    virtual void OnDraw(CDC* pDC) = 0;

    // Printing. A program that prints maps ID_FILE_PRINT and ID_FILE_PRINT_DIRECT to OnFilePrint, and
    // overrides OnPreparePrinting to call DoPreparePrinting. One with a preview maps ID_FILE_PRINT_PREVIEW to
    // OnFilePrintPreview; the job (m_bPreview) then asks for nothing and takes the program's printer.
    /// Called first; tells how many pages there are, as far as that is known. FALSE ends the job.
    virtual BOOL OnPreparePrinting(CPrintInfo* pInfo);
    /// Asks for printer and pages, nothing where the job is direct, and makes the printer's device context.
    /// FALSE if the user thought better of it or there is no printer.
    BOOL DoPreparePrinting(CPrintInfo* pInfo);
    /// Called once around all pages with the printer's context.
    virtual void OnBeginPrinting(CDC* pDC, CPrintInfo* pInfo);
    virtual void OnEndPrinting(CDC* pDC, CPrintInfo* pInfo);
    /// Ends a preview: calls OnEndPrinting and puts the frame back. `point` is how far the page was scrolled,
    /// pixels of the preview; `pView` is destroyed.
    virtual void OnEndPrintPreview(CDC* pDC, CPrintInfo* pInfo, POINT point, CPreviewView* pView);
    /// A preview with a bar (a dialog template) and a class of your own. `pState` comes from the heap; it is
    /// the preview's after TRUE, still the caller's after FALSE.
    BOOL DoPrintPreview(UINT nIDResource, CView* pPrintView, CRuntimeClass* pPreviewViewClass,
                        CPrintPreviewState* pState);
    /// Draws page m_nCurPage; this one calls OnDraw.
    virtual void OnPrint(CDC* pDC, CPrintInfo* pInfo);
    void PostNcDestroy() override;

    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    afx_msg void OnDestroy();
    afx_msg void OnPaint();
    afx_msg int OnMouseActivate(CWnd* pDesktopWnd, UINT nHitTest, UINT message);
    afx_msg LRESULT HandleInitialUpdate(WPARAM wParam, LPARAM lParam);

    afx_msg void OnUpdateSplitCmd(CCmdUI* pCmdUI);
    afx_msg BOOL OnSplitCmd(UINT nID);
    afx_msg void OnUpdateNextPaneMenu(CCmdUI* pCmdUI);
    afx_msg BOOL OnNextPaneCmd(UINT nID);

    CDocument* m_pDocument = nullptr;

    DECLARE_MESSAGE_MAP()

private:
    bool print_document(CPrintInfo& info, const CString& file);
    bool print_pages(CDC& dc, CPrintInfo& info, kmfc::PrintingDialog& dialog);

    kmfc::ControlOverView<CScrollBar> m_sharedBars[2];  ///< by SB_HORZ and SB_VERT

    friend class CDocument;
    friend class CFrameWnd;
    friend class CMDIChildWnd;
    friend class CPreviewView;
};
