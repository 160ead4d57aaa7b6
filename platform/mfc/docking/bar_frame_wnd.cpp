#include <kmfc/bar_frame_wnd.h>

#include <kmfc/docking_manager.h>
#include <kmfc/tool_bar_ex.h>

#include "docked_bars.h"

IMPLEMENT_DYNCREATE(CBarFrameWnd, CPaneFrameWnd)

BEGIN_MESSAGE_MAP(CBarFrameWnd, CPaneFrameWnd)
    ON_WM_MOUSEMOVE()
    ON_WM_SIZING()
END_MESSAGE_MAP()

CMFCToolBar* CBarFrameWnd::bar() const { return DYNAMIC_DOWNCAST(CMFCToolBar, leading_pane()); }

/// What border and caption take.
CSize CBarFrameWnd::around() const {
    CRect border;
    CalcBorderSize(border);
    return CSize(border.left + border.right, border.top + GetCaptionHeight() + border.bottom);
}

int CBarFrameWnd::grip_height() {
    const CBarFrameWnd frame;
    CRect border;
    frame.CalcBorderSize(border);
    return border.top + frame.GetCaptionHeight() / 2;
}

CSize CBarFrameWnd::wrapped_size(int width) const {
    const CSize extra = around();
    return bar()->CalcWrappedSize(width > 0 ? std::max<int>(width - extra.cx, 1) : 0) + extra;
}

void CBarFrameWnd::wrap_at(CPoint corner, int width) {
    if (bar() == nullptr) return;
    bar()->m_wide = width;
    const CSize size = wrapped_size(width);
    SetWindowPos(nullptr, corner.x, corner.y, size.cx, size.cy, SWP_NOZORDER | SWP_NOACTIVATE);
}

void CBarFrameWnd::AdjustLayout() {
    if (bar() == nullptr || m_isGoing) return;
    CRect window;
    GetWindowRect(&window);
    const CSize wanted = wrapped_size(bar()->m_wide > 0 ? window.Width() : 0);
    if (window.Size() != wanted)
        SetWindowPos(nullptr, 0, 0, wanted.cx, wanted.cy, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    CPaneFrameWnd::AdjustLayout();
    bar()->AdjustLayout();
}

CSize CBarFrameWnd::least_size() const {
    if (bar() == nullptr) return CSize(0, 0);
    // As narrow as a column, as low as a row.
    return CSize(bar()->CalcWrappedSize(1).cx, bar()->CalcWrappedSize(0).cy);
}

BOOL CBarFrameWnd::OnDockToRecentPos() { return bar() != nullptr && bar()->DockToRecentPos(); }

void CBarFrameWnd::OnMouseMove(UINT nFlags, CPoint point) {
    CPoint screen(point);
    ClientToScreen(&screen);
    const CPoint way = screen - m_pressedAt;
    if (!m_bCaptured || m_pDockManager == nullptr || bar() == nullptr)
        return CPaneFrameWnd::OnMouseMove(nFlags, point);
    if (std::abs(way.x) < ::GetSystemMetrics(SM_CXDRAG) && std::abs(way.y) < ::GetSystemMetrics(SM_CYDRAG))
        return;
    // The mouse goes to who drags bars, and this frame goes when the bar docks.
    m_bCaptured = FALSE;
    CMFCToolBar* const dragged = bar();
    CDockingManager* const manager = m_pDockManager;
    manager->bars().begin_drag(*dragged, m_pressedAt);
    manager->bars().drag_to(screen, (nFlags & MK_CONTROL) != 0);
}

/// Pulled sideways the buttons wrap in that width; pulled up or down in the least width that is low enough.
void CBarFrameWnd::OnSizing(UINT nSide, LPRECT lpRect) {
    if (bar() == nullptr) return CPaneFrameWnd::OnSizing(nSide, lpRect);
    const CRect wanted(*lpRect);
    int width = wanted.Width();
    if (nSide == WMSZ_TOP || nSide == WMSZ_BOTTOM) {
        const int step = bar()->GetButtonSize().cx, most = wrapped_size(0).cx;
        for (width = step; width < most && wrapped_size(width).cy > wanted.Height();) width += step;
        width = std::min(width, most);
    }
    bar()->m_wide = width;
    const CSize size = wrapped_size(width);
    const bool fromLeft = nSide == WMSZ_LEFT || nSide == WMSZ_TOPLEFT || nSide == WMSZ_BOTTOMLEFT;
    const bool fromTop = nSide == WMSZ_TOP || nSide == WMSZ_TOPLEFT || nSide == WMSZ_TOPRIGHT;
    if (fromLeft)
        lpRect->left = lpRect->right - size.cx;
    else
        lpRect->right = lpRect->left + size.cx;
    if (fromTop)
        lpRect->top = lpRect->bottom - size.cy;
    else
        lpRect->bottom = lpRect->top + size.cy;
}
