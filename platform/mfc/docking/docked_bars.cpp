// DockedBars: docking, floating and showing bars.
#include "docked_bars.h"

#include <kmfc/bar_frame_wnd.h>
#include <kmfc/docking_manager.h>

#include "frame_state.h"

namespace kmfc::docking {

namespace {

PaneKey key_of_bar(const CMFCToolBar& bar) { return key_of(&bar); }

constexpr Side kOrder[] = {Side::top, Side::bottom, Side::left, Side::right};

UINT site_id(Side side) {
    switch (side) {
        case Side::left: return AFX_IDW_DOCKBAR_LEFT;
        case Side::right: return AFX_IDW_DOCKBAR_RIGHT;
        case Side::bottom: return AFX_IDW_DOCKBAR_BOTTOM;
        default: return AFX_IDW_DOCKBAR_TOP;
    }
}

}  // namespace

bool DockedBars::make_sites() {
    CFrameWnd* const frame = m_manager.GetDockSiteFrameWnd();
    if (frame->GetSafeHwnd() == nullptr) return false;
    for (const Side side : kOrder) {
        auto& made = m_sites[static_cast<size_t>(side)];
        if (made != nullptr) continue;
        auto site = std::make_unique<CDockSite>(this);
        const DWORD style = WS_CHILD | WS_VISIBLE | alignment_of(side);
        if (!site->CreateEx(0, nullptr, nullptr, style, CRect(0, 0, 0, 0), frame, site_id(side)))
            return false;
        made = std::move(site);
    }
    return true;
}

std::vector<CDockSite*> DockedBars::sites() const {
    std::vector<CDockSite*> all;
    for (const Side side : kOrder)
        if (site(side) != nullptr) all.push_back(site(side));
    return all;
}

bool DockedBars::may_dock(const CMFCToolBar& bar, Side side) const {
    return (bar.GetEnabledAlignment() & m_manager.GetEnabledAlignment() & alignment_of(side)) != 0;
}

BarExtents DockedBars::extents_at(Side side) const {
    return [at = site(side)](PaneKey bar) { return at->extent_of(bar); };
}

std::optional<Side> DockedBars::side_of_bar(const CMFCToolBar& bar) const {
    for (const Side side : kOrder)
        if (site(side) != nullptr && site(side)->rows().contains(key_of_bar(bar))) return side;
    return std::nullopt;
}

std::vector<CMFCToolBar*> DockedBars::bars() const {
    std::vector<CMFCToolBar*> all;
    CObList panes;
    m_manager.GetPaneList(panes, TRUE, RUNTIME_CLASS(CMFCToolBar));
    for (POSITION at = panes.GetHeadPosition(); at != nullptr;)
        all.push_back(static_cast<CMFCToolBar*>(panes.GetNext(at)));
    return all;
}

bool DockedBars::dock(CMFCToolBar& bar, Side side, const RECT* rect) {
    if (!may_dock(bar, side) || !make_sites()) return false;
    BarRows& rows = site(side)->rows();
    BarPlace place{static_cast<int>(rows.rows().size()), true, 0};
    if (rect != nullptr) {
        const CPoint from = site(side)->along_and_across(CRect(*rect).TopLeft());
        const CPoint middle = site(side)->along_and_across(CRect(*rect).CenterPoint());
        place = rows.row_at(middle.y, key_of_bar(bar), 0, extents_at(side)).value_or(place);
        // At the right and at the bottom the corner isn't nearest to the outside, but along the row it is.
        place.offset = std::max<int>(from.x, 0);
    }
    put(bar, side, place);
    return true;
}

bool DockedBars::dock_left_of(CMFCToolBar& bar, CMFCToolBar& target) {
    const std::optional<Side> side = side_of_bar(target);
    if (!side || !may_dock(bar, *side) || &bar == &target) return false;
    move_home(bar, *side);
    site(*side)->rows().dock_before(key_of_bar(bar), key_of_bar(target));
    show(bar, false);
    return true;
}

bool DockedBars::dock_at_recent(CMFCToolBar& bar) {
    const auto recent = m_recent.find(&bar);
    if (recent == m_recent.end()) return dock(bar, side_of(bar.GetCurrentAlignment()), nullptr);
    const RecentPlace place = recent->second;
    if (!may_dock(bar, place.side) || !make_sites()) return false;
    put(bar, place.side, place.place);
    return true;
}

/// Makes a bar a window of a site, out of its frame or another site.
void DockedBars::move_home(CMFCToolBar& bar, Side side) {
    m_manager.AddPane(&bar);
    if (const std::optional<Side> former = side_of_bar(bar); former && *former != side)
        site(*former)->rows().remove(key_of_bar(bar));
    if (CPaneFrameWnd* const frame = bar.GetParentMiniFrame()) frame->RemovePane(&bar);
    bar.SetPaneAlignment(alignment_of(side));
    if (bar.GetParent() == site(side)) return;
    CWnd* const former = bar.GetParent();
    bar.OnBeforeChangeParent(site(side));
    bar.SetParent(site(side));
    bar.OnAfterChangeParent(former);
}

void DockedBars::put(CMFCToolBar& bar, Side side, const BarPlace& place) {
    CDockSite* const to = site(side);
    const int before = to->rows().thickness(extents_at(side));
    const bool stays = bar.GetParent() == to;
    move_home(bar, side);
    to->rows().dock(key_of_bar(bar), place, to->length(), extents_at(side));
    to->rows().set_shown(key_of_bar(bar), bar.IsVisible() != FALSE);
    m_recent.erase(&bar);
    if (stays && to->rows().thickness(extents_at(side)) == before)
        to->RecalcLayout();
    else
        m_manager.AdjustDockingLayout();
}

void DockedBars::note_place(CMFCToolBar& bar) {
    const std::optional<Side> side = side_of_bar(bar);
    if (side) m_recent[&bar] = {*side, *site(*side)->rows().place_of(key_of_bar(bar))};
}

bool DockedBars::float_bar(CMFCToolBar& bar, CPoint corner, int width, bool show) {
    auto* frame = DYNAMIC_DOWNCAST(CBarFrameWnd, bar.GetParentMiniFrame());
    if (frame == nullptr) {
        frame = DYNAMIC_DOWNCAST(CBarFrameWnd, bar.make_miniframe(CRect(corner, CSize(1, 1))));
        if (frame == nullptr) return false;
        m_manager.AddPane(&bar);
        note_place(bar);
        if (const std::optional<Side> side = side_of_bar(bar)) site(*side)->rows().remove(key_of_bar(bar));
        frame->AddPane(&bar);
    }
    frame->wrap_at(corner, width);
    m_manager.AdjustDockingLayout();
    if (show) frame->ShowWindow(bar.IsVisible() ? SW_SHOWNOACTIVATE : SW_HIDE);
    return true;
}

void DockedBars::show(CMFCToolBar& bar, bool delay) {
    const bool shown = bar.IsVisible() != FALSE;
    if (const std::optional<Side> side = side_of_bar(bar))
        site(*side)->rows().set_shown(key_of_bar(bar), shown);
    else
        bar.ShowWindow(shown ? SW_SHOWNA : SW_HIDE);
    if (CPaneFrameWnd* const frame = bar.GetParentMiniFrame())
        frame->ShowWindow(shown ? SW_SHOWNOACTIVATE : SW_HIDE);
    if (delay)
        m_manager.layout_later();
    else
        m_manager.AdjustDockingLayout();
}

void DockedBars::remove(const CBasePane* pane) {
    m_recent.erase(pane);
    if (m_drag != nullptr && m_drag->bar == pane) m_drag.reset();
    for (CDockSite* const one : sites())
        if (one->rows().remove(key_of(pane))) m_manager.layout_later();
}

void DockedBars::arrange() {
    for (CDockSite* const one : sites()) one->RecalcLayout();
}

void DockedBars::update_floating() const {
    for (CMFCToolBar* const bar : bars())
        if (bar->IsFloating() && bar->IsPaneVisible()) bar->SendMessage(WM_IDLEUPDATECMDUI, TRUE);
}

void DockedBars::frame_goes() {
    m_drag.reset();
    m_recent.clear();
    for (CDockSite* const one : sites()) {
        one->SetDockSite(nullptr);
        one->rows() = BarRows();
    }
}

}  // namespace kmfc::docking
