// CPreviewView: the pages of a print job in a window, in place of the frame's own.
#pragma once

#include <map>
#include <memory>

#include <kmfc/print_info.h>
#include <kmfc/view.h>

class CDialogBar;

namespace kmfc {
struct PreviewLayout;
struct PreviewSheet;
}  // namespace kmfc

/// What a frame keeps while a preview stands in it. It is the preview's once CView::DoPrintPreview has
/// answered TRUE.
struct KMFC_API CPrintPreviewState {
    UINT nIDMainPane = AFX_IDW_PANE_FIRST;  ///< the window that the preview takes the place of
    HMENU hMenu = nullptr;                  ///< the frame's
    DWORD dwStates;  ///< bars shown in the other state, bit i for AFX_IDW_CONTROLBAR_FIRST + i
    CView* pViewActiveOld = nullptr;
    HACCEL hAccelTable = nullptr;
    /// Called instead of closing the frame; FALSE leaves it open.
    BOOL(CALLBACK* lpfnCloseProc)(CFrameWnd* pFrameWnd);
    CPrintPreviewState();
};

/// Shows one page or two. Each page is recorded once with the printer as its reference, so that the view
/// prints into a context with the printer's measures. Commands come from the bar above: next, previous, one
/// or two pages, nearer, further, print, close; Page Up and Down, the wheel, Escape and a click that goes
/// nearer work too.
class KMFC_API CPreviewView : public CView {
    DECLARE_DYNCREATE(CPreviewView)
public:
    /// Shows page `nPage`, or the nearest one that there is.
    void SetCurrentPage(UINT nPage);
    UINT GetCurrentPage() const { return m_page; }
    /// 0: whole sheets, 2: as large as the paper, 1: between them.
    void SetZoomState(int nZoom);
    int GetZoomState() const { return m_zoom; }

    /// For CView: the job that was prepared, and the frame's state. Both are the view's then.
    void begin(CView& printed, std::unique_ptr<CPrintInfo> info, std::unique_ptr<CPrintPreviewState> state,
               CDialogBar* bar);

protected:
    CPreviewView();
    ~CPreviewView() override;

    void OnDraw(CDC* pDC) override;
    void PostNcDestroy() override;

    afx_msg void OnDestroy();
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    afx_msg void OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    afx_msg BOOL OnMouseWheel(UINT nFlags, short zDelta, CPoint pt);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg void OnPreviewClose();
    afx_msg void OnPreviewPrint();
    afx_msg void OnNextPage();
    afx_msg void OnPrevPage();
    afx_msg void OnNumPageChange();
    afx_msg void OnZoomIn();
    afx_msg void OnZoomOut();
    afx_msg void OnUpdateNextPage(CCmdUI* pCmdUI);
    afx_msg void OnUpdatePrevPage(CCmdUI* pCmdUI);
    afx_msg void OnUpdateNumPageChange(CCmdUI* pCmdUI);
    afx_msg void OnUpdateZoomIn(CCmdUI* pCmdUI);
    afx_msg void OnUpdateZoomOut(CCmdUI* pCmdUI);
    DECLARE_MESSAGE_MAP()

private:
    /// What the view under preview draws on a page; null where the document has ended before it.
    HENHMETAFILE recorded(UINT page);
    bool has_page(UINT page);
    UINT last_page() const;
    /// Pages that are shown now.
    int shown_count() const;
    kmfc::PreviewSheet sheet() const;
    kmfc::PreviewLayout layout() const;
    void scroll_to(CPoint place);
    void show_pages();
    void set_bars();

    CView* m_printed = nullptr;
    std::unique_ptr<CPrintInfo> m_info;
    std::unique_ptr<CPrintPreviewState> m_state;
    CDialogBar* m_bar = nullptr;  ///< deletes itself
    /// One that says of itself that it prints.
    class PrintingDC : public CDC {
    public:
        PrintingDC() { m_bPrinting = TRUE; }
    };
    PrintingDC m_printer;  ///< the job's context
    std::map<UINT, HENHMETAFILE> m_recorded;
    UINT m_page = 1, m_lastPage = 0xFFFF;
    int m_wanted = 1;  ///< pages side by side
    int m_zoom = 0;
    CPoint m_scrolled{0, 0};

    friend class CView;
};
