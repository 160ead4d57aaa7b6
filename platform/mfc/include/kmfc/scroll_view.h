// CScrollView: a view of something larger than its window.
#pragma once

#include <utility>

#include <kmfc/view.h>

/// Scrolls its contents, or scales them to the window. The size is given by SetScrollSizes in logical units
/// of a mapping mode, in OnInitialUpdate or OnUpdate; OnDraw then draws in those units.
class KMFC_API CScrollView : public CView {
    DECLARE_DYNAMIC(CScrollView)
public:
    static const SIZE sizeDefault;  ///< a tenth of the contents as a page, a tenth of that as a line

    void SetScrollSizes(int nMapMode, SIZE sizeTotal, const SIZE& sizePage = sizeDefault,
                        const SIZE& sizeLine = sizeDefault);
    /// From here on the contents fill the window, without scroll bars.
    void SetScaleToFitSize(SIZE sizeTotal);
    void GetDeviceScrollSizes(int& nMapMode, SIZE& sizeTotal, SIZE& sizePage, SIZE& sizeLine) const;
    CSize GetTotalSize() const { return m_totalLog; }  ///< logical units
    CPoint GetScrollPosition() const;                  ///< logical units
    CPoint GetDeviceScrollPosition() const;            ///< pixels
    /// Makes `pt` (logical units) the upper left corner, as far as the contents reach.
    void ScrollToPosition(POINT pt);
    void ScrollToDevicePosition(POINT ptDev);
    /// Makes `ptCenter` (pixels of the contents) the middle of the window.
    void CenterOnPoint(CPoint ptCenter);
    /// Makes the frame as large as the contents need; with `bShrinkOnly` never larger than it is.
    void ResizeParentToFit(BOOL bShrinkOnly = TRUE);
    /// Fills what lies beside the contents; for OnEraseBkgnd.
    void FillOutsideRect(CDC* pDC, CBrush* pBrush);

    void OnPrepareDC(CDC* pDC, CPrintInfo* pInfo = nullptr) override;
    BOOL OnScroll(UINT nScrollCode, UINT nPos, BOOL bDoScroll = TRUE) override;
    BOOL OnScrollBy(CSize sizeScroll, BOOL bDoScroll = TRUE) override;
    void CalcWindowRect(LPRECT lpClientRect, UINT nAdjustType = adjustBorder) override;

protected:
    CScrollView();
    ~CScrollView() override;

    void OnDraw(CDC*) override {}
    /// Ranges, pages and visibility of the bars for the present sizes.
    void UpdateBars();

    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    afx_msg void OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    afx_msg BOOL OnMouseWheel(UINT nFlags, short zDelta, CPoint pt);

    int m_nMapMode = MM_TEXT;
    CSize m_totalLog{0, 0};  ///< logical units
    CSize m_totalDev{0, 0};  ///< pixels
    CSize m_pageDev{0, 0};
    CSize m_lineDev{0, 0};
    BOOL m_bCenter = FALSE;  ///< contents smaller than the window stand in its middle

    DECLARE_MESSAGE_MAP()

private:
    static constexpr int kScaleToFit = -1;  ///< mapping mode of SetScaleToFitSize

    /// The room with neither scroll bar.
    CSize room_without_bars() const;
    /// Where the contents begin, in pixels of the window.
    CPoint origin() const;
    /// The furthest place of the upper left corner.
    CSize limit() const;
    /// The window of a bar, which may be shared with other panes, and SB_CTL or the bar's own number.
    std::pair<HWND, int> bar_window(int bar) const;
    int bar_place(int bar) const;
    void set_bar_place(int bar, int place);
    int bar_limit(int bar) const;
    void scale_to_window();
    /// Shows a bar for a `whole` (pixels, 0 hides it) of which `page` is seen.
    void set_bar(int bar, int whole, int page, int place);

    bool m_isUpdating = false;
};
