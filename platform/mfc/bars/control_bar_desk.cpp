// ControlBarDesk: docking, floating and showing bars.
#include "control_bar_desk.h"

#include <algorithm>

#include <kmfc/frame.h>
#include <kmfc/mini_dock_frame.h>

namespace kmfc {

namespace {

docking::PaneKey key_of(const CControlBar& bar) { return reinterpret_cast<docking::PaneKey>(&bar); }

CMiniDockFrameWnd* frame_of(const CControlBar& bar) {
    return bar.IsFloating() ? static_cast<CMiniDockFrameWnd*>(bar.m_pDockBar->GetParent()) : nullptr;
}

}  // namespace

void ControlBarDesk::allow(DWORD sides) {
    m_sides = sides;
    make_dock_bars();
}

bool ControlBarDesk::make_dock_bars() {
    for (size_t side = 0; side < kSides; ++side) {
        if (m_dockBars[side] != nullptr) continue;
        auto made = std::make_unique<CDockBar>();
        if (!made->Create(&m_frame, WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN | kDockEdges[side].alignment,
                          kDockEdges[side].id))
            return false;
        made->serve(this);
        m_dockBars[side] = std::move(made);
    }
    return true;
}

void ControlBarDesk::know(CControlBar& bar) {
    if (std::find(m_known.begin(), m_known.end(), &bar) == m_known.end()) m_known.push_back(&bar);
}

void ControlBarDesk::forget(CControlBar& bar) {
    std::erase(m_known, &bar);
    m_recent.erase(&bar);
    if (m_drag != nullptr && m_drag->bar == &bar) end_drag(false);
    // Its frame has nothing to show any more.
    if (CMiniDockFrameWnd* const frame = frame_of(bar)) frame->PostMessage(WM_CLOSE);
    if (bar.m_pDockBar != nullptr) bar.m_pDockBar->rows().remove(key_of(bar));
    bar.m_pDockBar = nullptr;
    bar.m_pDockSite = nullptr;
}

CControlBar* ControlBarDesk::bar(UINT id) const {
    const auto found = std::find_if(m_known.begin(), m_known.end(), [id](const CControlBar* one) {
        return static_cast<UINT>(one->GetDlgCtrlID()) == id;
    });
    return found != m_known.end() ? *found : nullptr;
}

docking::BarExtents ControlBarDesk::extents_at(size_t side) const {
    return [at = m_dockBars[side].get()](docking::PaneKey bar) { return at->extent_of(bar); };
}

bool ControlBarDesk::may_dock(const CControlBar& bar, size_t side) const {
    return (bar.m_dwDockStyle & m_sides & kDockEdges[side].alignment) != 0;
}

std::optional<ControlBarDesk::Place> ControlBarDesk::place_of(const CControlBar& bar) const {
    for (size_t side = 0; side < kSides; ++side)
        if (m_dockBars[side] != nullptr)
            if (const auto place = m_dockBars[side]->rows().place_of(key_of(bar))) return Place{side, *place};
    return std::nullopt;
}

/// Out of the rows that a bar stands in, or out of its frame, which goes.
void ControlBarDesk::take_out(CControlBar& bar) {
    CDockBar* const former = bar.m_pDockBar;
    if (former == nullptr) return;
    if (CMiniDockFrameWnd* const frame = frame_of(bar)) {
        CRect window;
        frame->GetWindowRect(&window);
        m_recent[&bar].floating = window.TopLeft();
    } else {
        m_recent[&bar].docked = place_of(bar);
    }
    former->rows().remove(key_of(bar));
    bar.m_pDockBar = nullptr;
}

/// Makes a bar a window of a dock bar.
void ControlBarDesk::move_home(CControlBar& bar, CDockBar& home, DWORD alignment) {
    CMiniDockFrameWnd* const left = bar.m_pDockBar != &home ? frame_of(bar) : nullptr;
    if (bar.m_pDockBar != &home) take_out(bar);
    bar.m_pDockBar = &home;
    if (bar.GetParent() != &home) {
        // What its tools tell goes on to the frame.
        CWnd* const owner = bar.GetOwner();
        bar.SetParent(&home);
        if (owner != nullptr && owner != &home) bar.SetOwner(owner);
    }
    const DWORD place = CBRS_ALIGN_ANY | CBRS_BORDER_ANY | CBRS_FLOATING;
    bar.SetBarStyle((bar.m_dwStyle & ~place) | alignment);
    if (left != nullptr) left->DestroyWindow();
}

void ControlBarDesk::put(CControlBar& bar, const Place& where) {
    CDockBar& home = *m_dockBars[where.side];
    move_home(bar, home, kDockEdges[where.side].alignment);
    home.rows().dock(key_of(bar), where.place, home.length(), extents_at(where.side));
    m_frame.RecalcLayout();
}

void ControlBarDesk::dock(CControlBar& bar, UINT dockBarId, const RECT* rect) {
    know(bar);
    if (!make_dock_bars()) return;
    size_t side = 0;
    while (side < kSides && !(may_dock(bar, side) && (dockBarId == 0 || dockBarId == kDockEdges[side].id)))
        ++side;
    if (side == kSides) {
        CRect window;
        bar.GetWindowRect(&window);
        return float_bar(bar, window.TopLeft(), true);
    }
    const CDockBar& home = *m_dockBars[side];
    docking::BarPlace place{static_cast<int>(home.rows().rows().size()), true, 0};
    if (rect != nullptr) {
        const CPoint middle = home.along_and_across(CRect(*rect).CenterPoint());
        const auto extents = extents_at(side);
        place = home.rows().row_at(middle.y, key_of(bar), 0, extents).value_or(place);
        place.offset = std::max<int>(home.along_and_across(CRect(*rect).TopLeft()).x, 0);
        // Behind each bar that begins before it, however long that is.
        for (const docking::PlacedBar& other : home.rows().arrange(home.length(), extents))
            if (!place.isOwnRow && other.row == place.row && other.bar != key_of(bar) &&
                other.rect.left < place.offset)
                place.offset = std::max<int>(place.offset, other.rect.CenterPoint().x + 1);
    }
    put(bar, {side, place});
}

void ControlBarDesk::float_bar(CControlBar& bar, CPoint corner, bool horizontal) {
    know(bar);
    CMiniDockFrameWnd* frame = frame_of(bar);
    const DWORD alignment = CBRS_FLOATING | (horizontal ? CBRS_ALIGN_TOP : CBRS_ALIGN_LEFT);
    if (frame == nullptr) {
        frame = new CMiniDockFrameWnd;  // deletes itself
        if (!frame->Create(&m_frame, bar.m_dwStyle)) return;
        CString title;
        bar.GetWindowText(title);
        frame->SetWindowText(title);
    }
    move_home(bar, frame->m_wndDockBar, alignment);
    frame->m_wndDockBar.SetBarStyle((frame->m_wndDockBar.m_dwStyle & ~CBRS_ALIGN_ANY) |
                                    (alignment & CBRS_ALIGN_ANY));
    frame->SetWindowPos(nullptr, corner.x, corner.y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    frame->RecalcLayout();
    show_floating(bar);
    m_frame.RecalcLayout();
}

void ControlBarDesk::show_floating(const CControlBar& bar) const {
    if (CMiniDockFrameWnd* const frame = frame_of(bar))
        frame->ShowWindow(bar.IsVisible() ? SW_SHOWNOACTIVATE : SW_HIDE);
}

void ControlBarDesk::toggle(CControlBar& bar) {
    const Recent recent = m_recent[&bar];
    if (bar.IsFloating()) {
        if (recent.docked && may_dock(bar, recent.docked->side))
            put(bar, *recent.docked);
        else if (bar.m_dwDockStyle & m_sides & CBRS_ALIGN_ANY)
            dock(bar, 0, nullptr);
        return;
    }
    CRect window;
    bar.GetWindowRect(&window);
    float_bar(bar, recent.floating.value_or(window.BottomRight()), true);
}

void ControlBarDesk::update_floating(WPARAM disable) const {
    for (CControlBar* const bar : m_known)
        if (bar->IsFloating() && bar->IsVisible()) bar->SendMessage(WM_IDLEUPDATECMDUI, disable);
}

}  // namespace kmfc
