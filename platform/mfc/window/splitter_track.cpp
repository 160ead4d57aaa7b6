// CSplitterWnd: its lines, and how the user moves them.
#include <algorithm>

#include <kmfc/frame.h>
#include <kmfc/splitter_wnd.h>

CSplitterWnd::Hit CSplitterWnd::hit(CPoint point) const {
    Hit found;
    found.rowBox = row_box().PtInRect(point) != FALSE;
    found.colBox = col_box().PtInRect(point) != FALSE;
    if (found.any()) return found;
    CRect inside = room();
    inside.InflateRect(m_cxBorder, m_cyBorder);
    if (!inside.PtInRect(point)) return found;
    // The border of the panes beside a line belongs to it.
    for (int row = 0; row + 1 < m_nRows; ++row) {
        const int top = corner(row, 0).y + m_rows[static_cast<size_t>(row)].present;
        if (point.y >= top - m_cyBorder && point.y < top + m_cySplitterGap + m_cyBorder) found.rowBar = row;
    }
    for (int col = 0; col + 1 < m_nCols; ++col) {
        const int left = corner(0, col).x + m_columns[static_cast<size_t>(col)].present;
        if (point.x >= left - m_cxBorder && point.x < left + m_cxSplitterGap + m_cxBorder) found.colBar = col;
    }
    return found;
}

BOOL CSplitterWnd::OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT message) {
    if (nHitTest != HTCLIENT || pWnd->m_hWnd != m_hWnd || m_bTracking)
        return CWnd::OnSetCursor(pWnd, nHitTest, message);
    CPoint point;
    ::GetCursorPos(&point);
    ScreenToClient(&point);
    const Hit under = hit(point);
    LPCTSTR shape = IDC_ARROW;
    if (under.across() && under.upright())
        shape = IDC_SIZEALL;
    else if (under.across())
        shape = IDC_SIZENS;
    else if (under.upright())
        shape = IDC_SIZEWE;
    ::SetCursor(::LoadCursorW(nullptr, shape));
    return TRUE;
}

BOOL CSplitterWnd::OnEraseBkgnd(CDC*) { return TRUE; }  // all of it is painted

void CSplitterWnd::OnPaint() {
    CPaintDC dc(this);
    CRect inside = room();
    inside.InflateRect(m_cxBorder, m_cyBorder);
    for (int row = 0; row < m_nRows; ++row)
        for (int col = 0; col < m_nCols; ++col) {
            const CPoint place = corner(row, col);
            CRect border(place, CSize(m_columns[static_cast<size_t>(col)].present,
                                      m_rows[static_cast<size_t>(row)].present));
            border.InflateRect(m_cxBorder, m_cyBorder);
            OnDrawSplitter(&dc, splitBorder, border);
        }
    for (int row = 0; row + 1 < m_nRows; ++row) {
        const int top = corner(row, 0).y + m_rows[static_cast<size_t>(row)].present + m_cyBorder;
        OnDrawSplitter(&dc, splitBar,
                       CRect(inside.left, top, inside.right, top + m_cySplitterGap - 2 * m_cyBorder));
    }
    for (int col = 0; col + 1 < m_nCols; ++col) {
        const int left = corner(0, col).x + m_columns[static_cast<size_t>(col)].present + m_cxBorder;
        OnDrawSplitter(&dc, splitBar,
                       CRect(left, inside.top, left + m_cxSplitterGap - 2 * m_cxBorder, inside.bottom));
    }
    for (const CRect& box : {row_box(), col_box()})
        if (!box.IsRectEmpty()) OnDrawSplitter(&dc, splitBox, box);
}

void CSplitterWnd::OnDrawSplitter(CDC* pDC, ESplitType nType, const CRect& rect) {
    CRect inner = rect;
    switch (nType) {
        case splitBorder: ::DrawEdge(pDC->m_hDC, &inner, EDGE_SUNKEN, BF_RECT); break;
        case splitBox: ::DrawEdge(pDC->m_hDC, &inner, EDGE_RAISED, BF_RECT | BF_MIDDLE); break;
        default: pDC->FillSolidRect(&inner, ::GetSysColor(COLOR_3DFACE)); break;
    }
}

void CSplitterWnd::OnInvertTracker(const CRect& rect) {
    CDC* dc = GetDCEx(nullptr, DCX_CACHE | DCX_LOCKWINDOWUPDATE);
    dc->PatBlt(rect.left, rect.top, rect.Width(), rect.Height(), DSTINVERT);
    ReleaseDC(dc);
}

void CSplitterWnd::draw_tracker() {
    CRect inside = room();
    inside.InflateRect(m_cxBorder, m_cyBorder);
    if (m_tracked.across())
        OnInvertTracker(CRect(inside.left, m_tracker.y, inside.right, m_tracker.y + m_cySplitterGap));
    if (m_tracked.upright())
        OnInvertTracker(CRect(m_tracker.x, inside.top, m_tracker.x + m_cxSplitterGap, inside.bottom));
}

CPoint CSplitterWnd::within(CPoint point) const {
    const CRect inside = room();
    // The line stays between its neighbours.
    const auto clamp = [](int place, int least, int most) {
        return std::clamp(place, least, std::max(least, most));
    };
    const int top = m_tracked.rowBar > 0 ? corner(m_tracked.rowBar, 0).y : inside.top;
    const int left = m_tracked.colBar > 0 ? corner(0, m_tracked.colBar).x : inside.left;
    const int bottom = m_tracked.rowBar >= 0 && m_tracked.rowBar + 2 < m_nRows
                           ? corner(m_tracked.rowBar + 2, 0).y - m_cySplitterGap
                           : static_cast<int>(inside.bottom);
    const int right = m_tracked.colBar >= 0 && m_tracked.colBar + 2 < m_nCols
                          ? corner(0, m_tracked.colBar + 2).x - m_cxSplitterGap
                          : static_cast<int>(inside.right);
    return {clamp(point.x - m_cxSplitterGap / 2, left, right - m_cxSplitterGap),
            clamp(point.y - m_cySplitterGap / 2, top, bottom - m_cySplitterGap)};
}

void CSplitterWnd::start_tracking(const Hit& what, CPoint point) {
    m_tracked = what;
    m_bTracking = TRUE;
    m_formerFocus = ::GetFocus();
    SetCapture();
    SetFocus();
    RedrawWindow(nullptr, nullptr, RDW_ALLCHILDREN | RDW_UPDATENOW);
    m_tracker = within(point);
    draw_tracker();
}

void CSplitterWnd::move_tracker(CPoint point) {
    const CPoint place = within(point);
    if (place == m_tracker) return;
    draw_tracker();
    m_tracker = place;
    draw_tracker();
}

void CSplitterWnd::end_tracking(bool takes) {
    if (!m_bTracking) return;
    draw_tracker();
    m_bTracking = FALSE;
    ::ReleaseCapture();
    if (::IsWindow(m_formerFocus)) ::SetFocus(m_formerFocus);
    if (!takes) return;
    // A crossing moves both lines, each of which may take panes away.
    if (m_tracked.across()) apply_row(m_tracker.y);
    if (m_tracked.upright()) apply_column(m_tracker.x);
    RecalcLayout();
}

void CSplitterWnd::apply_row(int y) {
    if (m_tracked.rowBox) {
        SplitRow(y);
        return;
    }
    const int row = m_tracked.rowBar;
    Line& above = m_rows[static_cast<size_t>(row)];
    Line& below = m_rows[static_cast<size_t>(row) + 1];
    const int both = above.present + below.present;
    above.ideal = y - corner(row, 0).y;
    below.ideal = both - above.ideal;
    if ((GetStyle() & SPLS_DYNAMIC_SPLIT) == 0) return;
    if (above.ideal < above.least)
        DeleteRow(row);
    else if (below.ideal < below.least)
        DeleteRow(row + 1);
}

void CSplitterWnd::apply_column(int x) {
    if (m_tracked.colBox) {
        SplitColumn(x);
        return;
    }
    const int col = m_tracked.colBar;
    Line& before = m_columns[static_cast<size_t>(col)];
    Line& behind = m_columns[static_cast<size_t>(col) + 1];
    const int both = before.present + behind.present;
    before.ideal = x - corner(0, col).x;
    behind.ideal = both - before.ideal;
    if ((GetStyle() & SPLS_DYNAMIC_SPLIT) == 0) return;
    if (before.ideal < before.least)
        DeleteColumn(col);
    else if (behind.ideal < behind.least)
        DeleteColumn(col + 1);
}

void CSplitterWnd::OnLButtonDown(UINT, CPoint point) {
    if (m_bTracking) return;
    const Hit under = hit(point);
    if (under.any()) start_tracking(under, point);
}

void CSplitterWnd::OnMouseMove(UINT, CPoint point) {
    if (m_bTracking) move_tracker(point);
}

void CSplitterWnd::OnLButtonUp(UINT, CPoint point) {
    if (!m_bTracking) return;
    move_tracker(point);
    end_tracking(true);
}

void CSplitterWnd::OnLButtonDblClk(UINT, CPoint point) {
    const Hit under = hit(point);
    end_tracking(false);
    if ((GetStyle() & SPLS_DYNAMIC_SPLIT) == 0) return;
    const CRect inside = room();
    // A box splits in the middle, a line goes, with the panes below or behind it.
    if (under.rowBox)
        SplitRow(inside.top + (inside.Height() - m_cySplitterGap) / 2);
    else if (under.colBox)
        SplitColumn(inside.left + (inside.Width() - m_cxSplitterGap) / 2);
    if (under.rowBar >= 0) DeleteRow(under.rowBar + 1);
    if (under.colBar >= 0) DeleteColumn(under.colBar + 1);
}

void CSplitterWnd::OnCancelMode() { end_tracking(false); }

void CSplitterWnd::OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags) {
    if (!m_bTracking) return CWnd::OnKeyDown(nChar, nRepCnt, nFlags);
    if (nChar == VK_ESCAPE) return end_tracking(false);
    if (nChar == VK_RETURN) return end_tracking(true);
    // A step of a finger's width, or a pixel with Ctrl.
    const int step = ::GetKeyState(VK_CONTROL) < 0 ? 1 : 16;
    CPoint point(m_tracker.x + m_cxSplitterGap / 2, m_tracker.y + m_cySplitterGap / 2);
    if (nChar == VK_LEFT) point.x -= step;
    if (nChar == VK_RIGHT) point.x += step;
    if (nChar == VK_UP) point.y -= step;
    if (nChar == VK_DOWN) point.y += step;
    move_tracker(point);
    // The pointer follows, so that the next move of the mouse goes on from here.
    point = CPoint(m_tracker.x + m_cxSplitterGap / 2, m_tracker.y + m_cySplitterGap / 2);
    ClientToScreen(&point);
    ::SetCursorPos(point.x, point.y);
}

BOOL CSplitterWnd::DoKeyboardSplit() {
    Hit what;
    what.rowBox = m_nRows < m_nMaxRows;
    what.colBox = m_nCols < m_nMaxCols;
    if (!what.rowBox && m_nRows > 1) what.rowBar = 0;
    if (!what.colBox && m_nCols > 1) what.colBar = 0;
    if (!what.any() || m_bTracking) return FALSE;
    const CRect inside = room();
    CPoint point = inside.CenterPoint();
    if (what.rowBar >= 0) point.y = corner(1, 0).y - m_cySplitterGap / 2;
    if (what.colBar >= 0) point.x = corner(0, 1).x - m_cxSplitterGap / 2;
    start_tracking(what, point);
    ClientToScreen(&point);
    ::SetCursorPos(point.x, point.y);
    return TRUE;
}
