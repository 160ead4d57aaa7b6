// CDockingManager: a drag of a floating frame, what it shows, and the drop.
#include <kmfc/docking_manager.h>
#include <kmfc/global_data.h>

#include "docked_bars.h"
#include "frame_state.h"
#include "guide_windows.h"

using namespace kmfc::docking;

kmfc::docking::Drag::Drag()
    : guides(std::make_unique<GuideWindow>()), shade(std::make_unique<ShadeWindow>()) {}
kmfc::docking::Drag::~Drag() {
    if (guides->m_hWnd != nullptr) guides->DestroyWindow();
    if (shade->m_hWnd != nullptr) shade->DestroyWindow();
}

namespace {

constexpr int kGuide = 32;  // pixels at 96 dots an inch

/// The panes that a floating frame holds.
std::vector<CDockablePane*> panes_in(CPaneFrameWnd* frame) {
    std::vector<CDockablePane*> panes;
    if (const auto* group = DYNAMIC_DOWNCAST(CMultiPaneFrameWnd, frame)) {
        for (const PaneKey key : group->tree().panes()) panes.push_back(pane_of(key));
    } else if (auto* pane = DYNAMIC_DOWNCAST(CDockablePane, frame->GetPane())) {
        panes.push_back(pane);
    }
    return panes;
}

SplitTree tree_of(CPaneFrameWnd* frame) {
    if (const auto* group = DYNAMIC_DOWNCAST(CMultiPaneFrameWnd, frame)) return group->tree();
    const std::vector<CDockablePane*> panes = panes_in(frame);
    return panes.empty() ? SplitTree() : SplitTree(key_of(panes.front()));
}

/// The sides at which all that is dragged may dock.
DWORD sides_of(const std::vector<CDockablePane*>& panes) {
    DWORD sides = panes.empty() ? 0 : CBRS_ALIGN_ANY;
    for (const CDockablePane* pane : panes) sides &= pane->GetEnabledAlignment();
    return sides;
}

DropPane as_target(CDockablePane* target, const std::vector<CDockablePane*>& dragged, bool takesSides) {
    DropPane pane;
    pane.pane = key_of(target);
    target->GetWindowRect(&pane.rect);
    pane.caption =
        CRect(pane.rect.left, pane.rect.top, pane.rect.right, pane.rect.top + target->GetCaptionHeight());
    CRect top, bottom;
    target->GetTabArea(top, bottom);
    pane.tabs.UnionRect(&top, &bottom);
    bool accepts = true;
    for (const CDockablePane* one : dragged) accepts &= target->CanAcceptPane(one) && one->CanBeAttached();
    pane.takesSides = takesSides && accepts;
    pane.takesTabs = accepts && CDockingManager::GetSmartDockingParams().m_bCenter;
    return pane;
}

/// What is dropped beside a pane or at an edge wants its own size, and gets half of the room at most.
int extent_for(Side side, CSize size, const CRect& room) {
    const int wanted = is_upright(side) ? size.cx : size.cy,
              all = is_upright(side) ? room.Width() : room.Height();
    return std::max(1, std::min(wanted, all / 2));
}

/// The smallest rectangle around where panes stand.
CRect around(const Arrangement& arrangement, const SplitTree& panes) {
    CRect all(0, 0, 0, 0);
    for (const PaneKey key : panes.panes())
        if (const CRect* rect = arrangement.find(key)) all.UnionRect(&all, rect);
    return all;
}

}  // namespace

bool CDockingManager::is_dragging() const {
    return m_state->drag != nullptr || (m_state->bars != nullptr && m_state->bars->is_dragging());
}

void CDockingManager::begin_drag(CPaneFrameWnd* frame, CDockablePane* torn) {
    if (is_dragging()) end_drag(true);
    m_state->drag = std::make_unique<Drag>();
    m_state->drag->frame = frame;
    m_state->drag->torn = torn;
    frame->GetWindowRect(&m_state->drag->from);
    // The frame that was moved last lies on top.
    if (POSITION const at = m_lstMiniFrames.Find(frame)) {
        m_lstMiniFrames.RemoveAt(at);
        m_lstMiniFrames.AddHead(frame);
    }
}

DropScene CDockingManager::scene_of_drag() const {
    const Drag& drag = *m_state->drag;
    const std::vector<CDockablePane*> dragged = panes_in(drag.frame);
    const DWORD own = sides_of(dragged), sides = own & m_dwEnabledAlignment;
    DropScene scene;
    scene.guide = afxGlobalData.scaled(kGuide);
    scene.tabs = own != 0;
    if (own == 0) return scene;
    for (int i = 0; i < kSides; ++i) scene.sides[i] = (sides & alignment_of(static_cast<Side>(i))) != 0;
    if (sides != 0) {
        scene.frame = m_state->outer;
        scene.center = m_state->now.center;
        m_pParentWnd->ClientToScreen(&scene.frame);
        m_pParentWnd->ClientToScreen(&scene.center);
    }
    for (POSITION at = m_lstMiniFrames.GetHeadPosition(); at != nullptr;) {
        auto* frame = static_cast<CPaneFrameWnd*>(m_lstMiniFrames.GetNext(at));
        if (frame == drag.frame || !frame->IsWindowVisible()) continue;
        const bool many = frame->IsKindOf(RUNTIME_CLASS(CMultiPaneFrameWnd)) != FALSE;
        for (CDockablePane* pane : panes_in(frame))
            if (pane->IsVisible()) scene.panes.push_back(as_target(pane, dragged, many));
    }
    for (const PlacedPane& placed : m_state->now.panes) {
        CDockablePane* pane = pane_of(placed.pane);
        const bool allowed = (sides & pane->GetCurrentAlignment()) != 0;
        scene.panes.push_back(as_target(pane, dragged, allowed));
        scene.panes.back().takesTabs &= allowed;
    }
    return scene;
}

void CDockingManager::drag_to(CPoint screen, bool free) {
    if (m_state->drag == nullptr) return;
    CPaneFrameWnd* frame = m_state->drag->frame;
    const CPoint corner = screen - frame->GetHotPoint();
    frame->SetWindowPos(nullptr, corner.x, corner.y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    show_drop(screen, free);
}

void CDockingManager::show_drop(CPoint screen, bool free) {
    Drag& drag = *m_state->drag;
    drag.drop = Drop();
    std::vector<Guide> guides;
    if (!free) {
        const DropScene scene = scene_of_drag();
        const CPane* leading = drag.frame->leading_pane();
        const bool smart = leading == nullptr || leading->GetDockingMode() == DT_SMART;
        if (smart) guides = guides_at(scene, screen);
        drag.drop = smart ? drop_at(scene, screen) : drop_near(scene, screen, m_nDockSensitivity);
    }
    drag.guides->show(guides, screen, m_pParentWnd);
    drag.shade->show(expected_rect(), m_pParentWnd);
    // Guides stay above the shade.
    if (!guides.empty())
        drag.guides->SetWindowPos(&CWnd::wndTopMost, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
}

CSize CDockingManager::dragged_size() const {
    CRect client;
    m_state->drag->frame->GetClientRect(&client);
    return client.Size();
}

CRect CDockingManager::expected_rect() const {
    const Drag& drag = *m_state->drag;
    const Drop& drop = drag.drop;
    const SplitTree dragged = tree_of(drag.frame);
    CRect result(0, 0, 0, 0);
    if (drop.kind == DropKind::none || dragged.empty()) return result;
    CDockablePane* target = pane_of(drop.pane);
    if (target != nullptr) target->GetWindowRect(&result);
    if (drop.kind == DropKind::tab) return result;
    auto* group =
        target != nullptr ? DYNAMIC_DOWNCAST(CMultiPaneFrameWnd, target->GetParentMiniFrame()) : nullptr;
    if (group != nullptr) {
        SplitTree tree = group->tree();
        tree.graft(dragged, drop.pane, drop.side, extent_for(drop.side, dragged_size(), result),
                   is_upright(drop.side) ? result.Width() : result.Height());
        CRect client;
        group->GetClientRect(&client);
        Arrangement then;
        tree.arrange(client, rules_for_panes(), then);
        result = around(then, dragged);
        group->ClientToScreen(&result);
        return result;
    }
    FrameLayout layout = m_state->layout;
    if (target != nullptr) {
        layout.dock_beside(dragged, drop.pane, drop.side, extent_for(drop.side, dragged_size(), result),
                           is_upright(drop.side) ? result.Width() : result.Height());
    } else {
        layout.dock(dragged, drop.side, extent_for(drop.side, dragged_size(), m_state->outer),
                    drop.kind == DropKind::frameEdge);
    }
    result = around(layout.arrange(m_state->outer, rules_for_panes()), dragged);
    m_pParentWnd->ClientToScreen(&result);
    return result;
}

void CDockingManager::end_drag(bool cancel) {
    if (m_state->bars != nullptr) m_state->bars->end_drag(cancel);
    if (m_state->drag == nullptr) return;
    const std::unique_ptr<Drag> drag = std::move(m_state->drag);
    CPaneFrameWnd* frame = drag->frame;
    frame->m_bCaptured = FALSE;
    if (::GetCapture() == frame->m_hWnd) ::ReleaseCapture();
    drag->guides->show({}, CPoint(0, 0), m_pParentWnd);
    drag->shade->show(CRect(0, 0, 0, 0), m_pParentWnd);
    if (!cancel) {
        drop(*drag);
    } else if (drag->torn == nullptr || !dock_at_remembered_place(drag->torn)) {
        frame->SetWindowPos(nullptr, drag->from.left, drag->from.top, 0, 0,
                            SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    }
}

void CDockingManager::drop(const Drag& drag) {
    const Drop& what = drag.drop;
    const std::vector<CDockablePane*> panes = panes_in(drag.frame);
    if (what.kind == DropKind::none || panes.empty()) return;
    CDockablePane* target = pane_of(what.pane);
    if (what.kind == DropKind::tab) {
        for (CDockablePane* pane : panes) pane->AttachToTabWnd(target, DM_MOUSE);
        return;
    }
    CRect client, room(m_state->outer);
    drag.frame->GetClientRect(&client);
    if (target != nullptr) target->GetWindowRect(&room);
    const DWORD alignment = alignment_of(what.side);
    const int extent = extent_for(what.side, client.Size(), room);
    auto* group = DYNAMIC_DOWNCAST(CMultiPaneFrameWnd, drag.frame);
    if (group != nullptr && panes.size() > 1) {
        dock_group(group, target, alignment, extent, what.kind == DropKind::frameEdge);
        return;
    }
    CDockablePane* pane = panes.front();
    const CRect wanted(0, 0, extent, extent);
    CBasePane* site = target;
    if (!pane->OnBeforeDock(&site, &wanted, DM_MOUSE)) return;
    if (target != nullptr)
        dock_beside(pane, target, alignment, extent);
    else
        dock_at_edge(pane, alignment, extent, what.kind == DropKind::frameEdge);
    pane->OnAfterDock(target, &wanted, DM_MOUSE);
}
