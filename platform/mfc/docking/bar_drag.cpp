// DockedBars: a drag, which docks and floats the bar as it goes.
#include <kmfc/bar_frame_wnd.h>
#include <kmfc/docking_manager.h>
#include <kmfc/global_data.h>

#include "docked_bars.h"
#include "frame_state.h"

namespace kmfc::docking {

namespace {

constexpr int kFrameGrip = 24;  // pixels at 96 dots an inch, from the left of a frame that a drag makes

}  // namespace

void DockedBars::begin_drag(CMFCToolBar& bar, CPoint screen) {
    if (is_dragging()) end_drag(true);
    if (!make_sites()) return;
    auto drag = std::make_unique<Drag>();
    drag->bar = &bar;
    CRect gripper, window;
    bar.GetGripperRect(gripper);
    if (const CPaneFrameWnd* const frame = bar.GetParentMiniFrame()) {
        frame->GetWindowRect(&window);
        drag->from = window;
        drag->frameGrip = screen - window.TopLeft();
        drag->grip = afxGlobalData.scaled(2);
    } else {
        bar.GetWindowRect(&window);
        const CPoint grip = screen - window.TopLeft();
        drag->grip = bar.IsUpright() ? grip.y : grip.x;
        drag->frameGrip = CPoint(afxGlobalData.scaled(kFrameGrip), -1);
    }
    for (const Side side : {Side::left, Side::top, Side::right, Side::bottom})
        drag->before[static_cast<size_t>(side)] = site(side)->rows();
    m_drag = std::move(drag);
    site(Side::top)->SetCapture();
}

/// Docks the dragged bar at a side if that is what a drop there means.
bool DockedBars::drop_at(Side side, CPoint screen) {
    CMFCToolBar& bar = *m_drag->bar;
    if (!may_dock(bar, side)) return false;
    CDockSite* const to = site(side);
    const CPoint at = to->along_and_across(screen);
    const int reach = CDockingManager::m_nDockSensitivity;
    if (at.x < -reach || at.x > to->length() + reach) return false;
    std::optional<BarPlace> place = to->rows().row_at(at.y, key_of(&bar), reach, extents_at(side));
    if (!place) return false;
    place->offset = std::max<int>(at.x - m_drag->grip, 0);
    put(bar, side, *place);
    return true;
}

void DockedBars::drag_to(CPoint screen, bool free) {
    if (!is_dragging()) return;
    CMFCToolBar& bar = *m_drag->bar;
    const std::optional<Side> now = side_of_bar(bar);
    const bool floats = bar.CanFloat() != FALSE;
    if (!free || !floats) {
        // Where two sides meet, the one that the bar is at goes first.
        if (now && drop_at(*now, screen)) return;
        for (const Side side : {Side::top, Side::bottom, Side::left, Side::right}) {
            if (side == now || !drop_at(side, screen)) continue;
            // Without the bar at its former side this one may have become longer.
            drop_at(side, screen);
            return;
        }
    }
    if (!floats) return;
    if (m_drag->frameGrip.y < 0) m_drag->frameGrip.y = CBarFrameWnd::grip_height();
    const CPoint corner = screen - m_drag->frameGrip;
    CRect window(0, 0, 0, 0);
    if (const CPaneFrameWnd* const frame = bar.GetParentMiniFrame()) frame->GetWindowRect(&window);
    // As wide as it was when it floated last.
    const CRect& recent = bar.m_recentDockInfo.m_rectRecentFloatingRect;
    float_bar(bar, corner, window.IsRectEmpty() ? recent.Width() : window.Width(), true);
}

void DockedBars::put_back(const Drag& drag) {
    CMFCToolBar& bar = *drag.bar;
    for (const Side side : {Side::left, Side::top, Side::right, Side::bottom}) {
        const BarRows& before = drag.before[static_cast<size_t>(side)];
        if (before.contains(key_of(&bar))) move_home(bar, side);
        site(side)->rows() = before;
    }
    if (drag.from)
        float_bar(bar, drag.from->TopLeft(), drag.from->Width(), true);
    else
        m_recent.erase(&bar);
    m_manager.AdjustDockingLayout();
}

void DockedBars::end_drag(bool cancel) {
    if (!is_dragging()) return;
    const std::unique_ptr<Drag> drag = std::move(m_drag);
    if (::GetCapture() == site(Side::top)->m_hWnd) ::ReleaseCapture();
    if (cancel) put_back(*drag);
    drag->bar->CalcRecentDockedRect();
}

}  // namespace kmfc::docking
