// ControlBarDesk: a drag, which docks and floats the bar as it goes.
#include <cstdlib>

#include <kmfc/frame.h>
#include <kmfc/mini_dock_frame.h>

#include "control_bar_desk.h"

namespace kmfc {

namespace {

constexpr int kReach = 10;      // pixels outside of an edge's rows that still dock
constexpr int kFrameGrip = 24;  // pixels from the left of a frame that a drag makes

CWnd* frame_of(const CControlBar& bar) { return bar.IsFloating() ? bar.m_pDockBar->GetParent() : nullptr; }

}  // namespace

void ControlBarDesk::begin_drag(CControlBar& bar, CPoint screen) {
    if (is_dragging()) end_drag(true);
    if (!make_dock_bars()) return;
    auto drag = std::make_unique<Drag>();
    drag->bar = &bar;
    drag->from = screen;
    CRect window;
    if (const CWnd* const frame = frame_of(bar)) {
        frame->GetWindowRect(&window);
        drag->floated = window;
        drag->frameGrip = screen - window.TopLeft();
    } else {
        bar.GetWindowRect(&window);
        const CPoint grip = screen - window.TopLeft();
        drag->grip = (bar.m_dwStyle & CBRS_ORIENT_HORZ) ? grip.x : grip.y;
        drag->frameGrip = CPoint(kFrameGrip, ::GetSystemMetrics(SM_CYSMCAPTION) / 2);
    }
    for (size_t side = 0; side < kSides; ++side) drag->rowsBefore[side] = m_dockBars[side]->rows();
    drag->recentBefore = m_recent[&bar];
    m_drag = std::move(drag);
    m_dockBars[0]->SetCapture();
}

/// Docks the dragged bar at an edge if that is what a drop there means.
bool ControlBarDesk::drop_at(size_t side, CPoint screen) {
    CControlBar& bar = *m_drag->bar;
    if (!may_dock(bar, side)) return false;
    const CDockBar& home = *m_dockBars[side];
    const CPoint at = home.along_and_across(screen);
    if (at.x < -kReach || at.x > home.length() + kReach) return false;
    auto place = home.rows().row_at(at.y, reinterpret_cast<docking::PaneKey>(&bar), kReach, extents_at(side));
    if (!place) return false;
    place->offset = std::max<int>(at.x - m_drag->grip, 0);
    put(bar, {side, *place});
    return true;
}

void ControlBarDesk::drag_to(CPoint screen, bool free) {
    if (!is_dragging()) return;
    CControlBar& bar = *m_drag->bar;
    const CPoint way = screen - m_drag->from;
    if (!m_drag->hasMoved && std::abs(way.x) < ::GetSystemMetrics(SM_CXDRAG) &&
        std::abs(way.y) < ::GetSystemMetrics(SM_CYDRAG))
        return;
    m_drag->hasMoved = true;
    if (!free) {
        // Where two edges meet, the one that the bar is at goes first.
        const std::optional<Place> now = place_of(bar);
        if (now && drop_at(now->side, screen)) return;
        for (size_t side = 0; side < kSides; ++side)
            if (!(now && now->side == side) && drop_at(side, screen)) return;
    }
    const bool horizontal = !bar.IsFloating() || (bar.m_dwStyle & CBRS_ORIENT_HORZ) != 0;
    float_bar(bar, screen - m_drag->frameGrip, horizontal);
}

void ControlBarDesk::put_back(const Drag& drag) {
    CControlBar& bar = *drag.bar;
    if (drag.floated) {
        float_bar(bar, drag.floated->TopLeft(), (bar.m_dwStyle & CBRS_ORIENT_HORZ) != 0 || !bar.IsFloating());
    } else {
        for (size_t side = 0; side < kSides; ++side) {
            const auto place = drag.rowsBefore[side].place_of(reinterpret_cast<docking::PaneKey>(&bar));
            if (place) put(bar, {side, *place});
        }
    }
    for (size_t side = 0; side < kSides; ++side) m_dockBars[side]->rows() = drag.rowsBefore[side];
    m_recent[&bar] = drag.recentBefore;
    m_frame.RecalcLayout();
}

void ControlBarDesk::end_drag(bool cancel) {
    if (!is_dragging()) return;
    const std::unique_ptr<Drag> drag = std::move(m_drag);
    if (::GetCapture() == m_dockBars[0]->m_hWnd) ::ReleaseCapture();
    if (cancel && drag->hasMoved) put_back(*drag);
}

bool ControlBarDesk::takes(const MSG& message) {
    if (!is_dragging() || message.message != WM_KEYDOWN || message.wParam != VK_ESCAPE) return false;
    end_drag(true);
    return true;
}

}  // namespace kmfc
