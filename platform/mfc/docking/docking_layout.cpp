// CDockingManager: laying the frame out.
#include <kmfc/auto_hide_bar.h>
#include <kmfc/docking_manager.h>
#include <kmfc/frame_ex.h>
#include <kmfc/menu_bar.h>
#include <kmfc/visual_manager.h>

#include "docked_bars.h"
#include "frame_state.h"
#include "place_dividers.h"

using namespace kmfc::docking;

void CDockingManager::AdjustDockingLayout(HDWP) { RecalcLayout(FALSE); }

void CDockingManager::RecalcLayout(BOOL bNotify) {
    if (m_pParentWnd == nullptr || m_pParentWnd->m_hWnd == nullptr || m_bInLayout || m_bSuppressLayout)
        return;
    m_pParentWnd->RecalcLayout(bNotify);
}

CRect CDockingManager::plan(const CRect& free) {
    CRect rest(free);
    take_fixed(rest);
    m_state->outer = rest;
    if (IsPrintPreviewValid())
        m_state->now = FrameLayout().arrange(rest, rules_for_panes());
    else
        m_state->now = m_state->layout.arrange(rest, rules_for_panes());
    place_dividers(m_state->dividers, m_state->now, m_pParentWnd, true, nullptr);
    return m_state->now.center;
}

namespace {

/// Where a fixed pane stands, which is taken off the room.
CRect take_strip(CBasePane& pane, CRect& rest) {
    const bool horizontal = pane.IsHorizontal() != FALSE;
    const CSize size = pane.CalcFixedLayout(TRUE, horizontal);
    CRect strip(rest);
    const int high = std::min<int>(size.cy, rest.Height()), wide = std::min<int>(size.cx, rest.Width());
    switch (side_of(pane.GetCurrentAlignment())) {
        case Side::top: rest.top = strip.bottom = rest.top + high; break;
        case Side::bottom: rest.bottom = strip.top = rest.bottom - high; break;
        case Side::left: rest.left = strip.right = rest.left + wide; break;
        case Side::right: rest.right = strip.left = rest.right - wide; break;
    }
    return strip;
}

}  // namespace

void CDockingManager::take_fixed(CRect& rest) {
    m_state->fixed.clear();
    for (POSITION at = m_lstControlBars.GetHeadPosition(); at != nullptr;) {
        auto* pane = static_cast<CBasePane*>(m_lstControlBars.GetNext(at));
        if (pane->IsKindOf(RUNTIME_CLASS(CDockablePane)) || !pane->IsVisible()) continue;
        if (::GetParent(pane->m_hWnd) != m_pParentWnd->m_hWnd || hides_for_preview(*pane)) continue;
        m_state->fixed[pane] = take_strip(*pane, rest);
    }
    if (m_state->bars == nullptr || IsPrintPreviewValid()) return;
    for (CDockSite* site : m_state->bars->sites())
        if (!m_state->bars->is_outermost(*site)) m_state->fixed[site] = take_strip(*site, rest);
}

bool CDockingManager::planned_rect(const CBasePane* pane, CRect& rect) const {
    if (const auto fixed = m_state->fixed.find(pane); fixed != m_state->fixed.end()) {
        rect = fixed->second;
        return true;
    }
    if (const CRect* place = m_state->now.find(key_of(pane))) {
        rect = *place;
        return true;
    }
    for (const auto& [id, divider] : m_state->dividers) {
        const PlacedDivider* placed = m_state->now.find_divider(id);
        if (divider.get() != pane || placed == nullptr) continue;
        rect = placed->rect;
        return true;
    }
    return false;
}

void CDockingManager::hide_unplanned() {
    for (const PaneKey key : m_state->layout.panes()) {
        CDockablePane* pane = pane_of(key);
        const bool here = ::GetParent(pane->m_hWnd) == m_pParentWnd->m_hWnd;
        // One that hides at an edge comes and goes by itself.
        if (here && !pane->IsAutoHideMode() && pane->IsPaneVisible() && m_state->now.find(key) == nullptr)
            pane->ShowWindow(SW_HIDE);
    }
}

void CDockingManager::layout_frame(CRect& border, const std::function<void()>& layoutBars) {
    if (m_bInLayout || m_bSuppressLayout || m_pParentWnd == nullptr) return;
    m_bInLayout = TRUE;
    m_bLayoutPending = false;
    CRect free;
    m_pParentWnd->RepositionBars(0, 0xFFFF, 0, CWnd::reposQuery, &free);
    const CRect center = plan(free);
    hide_unplanned();
    hide_for_preview();
    border.SetRect(center.left - free.left, center.top - free.top, free.right - center.right,
                   free.bottom - center.bottom);
    const CSize rowsBefore = m_state->bars != nullptr ? m_state->bars->outermost_size() : CSize(0, 0);
    layoutBars();
    m_bInLayout = FALSE;
    // Classic bars have come to where rows were, which the frame is about to erase.
    if (m_state->bars != nullptr && m_state->bars->outermost_size() != rowsBefore)
        m_pParentWnd->RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
    if (m_state->bars != nullptr) m_state->bars->arrange();
    for (CMFCAutoHideBar* bar : CMFCAutoHideBar::of_frame(m_pParentWnd)) bar->follow_frame();
}

void CDockingManager::on_idle() {
    if (m_bLayoutPending) AdjustDockingLayout();
    if (m_state->bars != nullptr) m_state->bars->update_floating();
    follow_focus();
}

void CDockingManager::follow_focus() {
    CDockablePane* active = nullptr;
    for (HWND window = ::GetFocus(); window != nullptr; window = ::GetAncestor(window, GA_PARENT)) {
        auto* pane = DYNAMIC_DOWNCAST(CDockablePane, CWnd::FromHandlePermanent(window));
        // Of tabs within tabs the outermost has the caption.
        if (pane != nullptr && pane->GetDockingManager() == this) active = pane;
    }
    HWND const now = active != nullptr ? active->m_hWnd : nullptr;
    if (now == m_state->active) return;
    auto* former = DYNAMIC_DOWNCAST(CDockablePane, CWnd::FromHandlePermanent(m_state->active));
    m_state->active = now;
    if (former != nullptr) former->redraw_caption();
    if (active != nullptr) active->redraw_caption();
}

CRect CDockingManager::GetClientAreaBounds() const { return m_state->now.center; }
CRect CDockingManager::GetOuterEdgeBounds() const { return m_state->outer; }

void CDockingManager::move_divider(int id, int delta) {
    if (m_state->layout.move_divider(id, delta, m_state->now, rules_for_panes()) != 0) AdjustDockingLayout();
}

void CDockingManager::AdjustPaneFrames() {
    CObList panes;
    GetPaneList(panes, TRUE, nullptr, TRUE);
    for (POSITION at = panes.GetHeadPosition(); at != nullptr;)
        ::SetWindowPos(static_cast<CBasePane*>(panes.GetNext(at))->m_hWnd, nullptr, 0, 0, 0, 0,
                       SWP_FRAMECHANGED | SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    for (POSITION at = m_lstMiniFrames.GetHeadPosition(); at != nullptr;)
        static_cast<CPaneFrameWnd*>(m_lstMiniFrames.GetNext(at))->AdjustPaneFrames();
}

void CDockingManager::SendMessageToMiniFrames(UINT uMessage, WPARAM wParam, LPARAM lParam) {
    for (POSITION at = m_lstMiniFrames.GetHeadPosition(); at != nullptr;)
        static_cast<CPaneFrameWnd*>(m_lstMiniFrames.GetNext(at))->SendMessage(uMessage, wParam, lParam);
}

void CDockingManager::OnActivateFrame(BOOL) {
    // Captions show by the focus which pane is the active one.
    follow_focus();
}

void CDockingManager::frame_goes() {
    m_state->drag.reset();
    CMFCMenuBar* const menuBar = std::exchange(m_state->menuBar, nullptr);
    if (m_state->bars != nullptr) m_state->bars->frame_goes();
    m_state->dividers.clear();
    CObList panes;
    GetPaneList(panes, TRUE, nullptr, TRUE);
    for (POSITION at = panes.GetHeadPosition(); at != nullptr;)
        static_cast<CBasePane*>(panes.GetNext(at))->SetDockSite(nullptr);
    for (POSITION at = m_lstMiniFrames.GetHeadPosition(); at != nullptr;)
        static_cast<CPaneFrameWnd*>(m_lstMiniFrames.GetNext(at))->SetDockingManager(nullptr);
    m_lstControlBars.RemoveAll();
    m_lstMiniFrames.RemoveAll();
    m_state->layout = FrameLayout();
    m_state->now = Arrangement();
    m_pParentWnd = nullptr;
    // Nothing is laid out for the menu that comes back.
    if (menuBar != nullptr) menuBar->frame_goes();
}
