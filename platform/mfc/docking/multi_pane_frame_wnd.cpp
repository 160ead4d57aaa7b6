// CMultiPaneFrameWnd: a floating frame of several panes.
#include <kmfc/docking_manager.h>
#include <kmfc/pane_frame_wnd.h>

#include "caption_buttons.h"
#include "frame_state.h"
#include "place_dividers.h"

using namespace kmfc::docking;

IMPLEMENT_DYNCREATE(CMultiPaneFrameWnd, CPaneFrameWnd)

struct CMultiPaneFrameWnd::Inside {
    SplitTree tree;
    Arrangement now;  ///< client coordinates
    Dividers dividers;
};

CMultiPaneFrameWnd::CMultiPaneFrameWnd() : m_inside(std::make_unique<Inside>()) {}
CMultiPaneFrameWnd::~CMultiPaneFrameWnd() = default;

SplitTree& CMultiPaneFrameWnd::tree() const { return m_inside->tree; }
const Arrangement& CMultiPaneFrameWnd::arrangement() const { return m_inside->now; }

void CMultiPaneFrameWnd::AddPane(CBasePane* pWnd) {
    auto* pane = DYNAMIC_DOWNCAST(CDockablePane, pWnd);
    if (pane == nullptr) return;
    CRect client;
    GetClientRect(&client);
    tree().insert(key_of(pane), 0, Side::bottom, 0, 0);
    take_in(pane);
}

BOOL CMultiPaneFrameWnd::AddRecentPane(CDockablePane* pBar) {
    AddPane(pBar);
    return tree().contains(key_of(pBar));
}

BOOL CMultiPaneFrameWnd::dock_beside(CDockablePane* pane, CDockablePane* target, DWORD alignment,
                                     int extent) {
    const Side side = side_of(alignment);
    CRect place;
    (target != nullptr ? static_cast<CWnd*>(target) : this)->GetClientRect(&place);
    const int all = is_upright(side) ? place.Width() : place.Height();
    if (!tree().insert(key_of(pane), key_of(target), side, extent, all)) return FALSE;
    take_in(pane);
    return TRUE;
}

BOOL CMultiPaneFrameWnd::take_over(SplitTree panes, CDockablePane* target, Side side, int extent) {
    const std::vector<PaneKey> keys = panes.panes();
    CRect place;
    (target != nullptr ? static_cast<CWnd*>(target) : this)->GetClientRect(&place);
    const int all = is_upright(side) ? place.Width() : place.Height();
    if (!tree().graft(std::move(panes), key_of(target), side, extent, all)) return FALSE;
    for (const PaneKey key : keys) take_in(pane_of(key));
    return TRUE;
}

void CMultiPaneFrameWnd::take_in(CDockablePane* pane) {
    tree().set_shown(key_of(pane), pane->m_isShown);
    adopt(pane);
    layout_panes();
}

void CMultiPaneFrameWnd::RemovePane(CBasePane* pWnd, BOOL bDestroy, BOOL) {
    if (!tree().remove(key_of(pWnd))) return;
    let_go(pWnd);
    if (!m_isGoing && GetPaneCount() != 0) layout_panes();
    if (GetPaneCount() != 0 && GetVisiblePaneCount() == 0) ShowWindow(SW_HIDE);
    end_when_empty(bDestroy != FALSE);
}

void CMultiPaneFrameWnd::ReplacePane(CBasePane* pBarOrg, CBasePane* pBarReplaceWith) {
    if (!tree().replace(key_of(pBarOrg), key_of(pBarReplaceWith))) return;
    let_go(pBarOrg);
    take_in(static_cast<CDockablePane*>(pBarReplaceWith));
}

void CMultiPaneFrameWnd::RemoveNonValidPanes() {
    for (const PaneKey key : tree().panes())
        if (!::IsWindow(pane_of(key)->GetSafeHwnd())) tree().remove(key);
    end_when_empty(false);
}

CPane* CMultiPaneFrameWnd::leading_pane() const {
    const std::vector<PaneKey> panes = tree().panes();
    for (const PaneKey key : panes)
        if (tree().shows(key)) return pane_of(key);
    return panes.empty() ? nullptr : pane_of(panes.front());
}

CWnd* CMultiPaneFrameWnd::GetPane() const { return leading_pane(); }
int CMultiPaneFrameWnd::GetPaneCount() const { return static_cast<int>(tree().panes().size()); }

int CMultiPaneFrameWnd::GetVisiblePaneCount() const {
    int count = 0;
    for (const PaneKey key : tree().panes()) count += tree().shows(key) ? 1 : 0;
    return count;
}

CWnd* CMultiPaneFrameWnd::GetFirstVisiblePane() const {
    return GetVisiblePaneCount() != 0 ? leading_pane() : nullptr;
}

CBasePane* CMultiPaneFrameWnd::PaneFromPoint(CPoint point, int nSensitivity, BOOL bCheckVisibility) {
    for (const PaneKey key : tree().panes()) {
        if (bCheckVisibility && !tree().shows(key)) continue;
        CRect rect;
        pane_of(key)->GetWindowRect(&rect);
        rect.InflateRect(nSensitivity, nSensitivity);
        if (rect.PtInRect(point)) return pane_of(key);
    }
    return nullptr;
}

void CMultiPaneFrameWnd::GetPaneList(CObList& lstBars) const {
    for (const PaneKey key : tree().panes()) lstBars.AddTail(pane_of(key));
}

void CMultiPaneFrameWnd::OnShowPane(CDockablePane* pBar, BOOL bShow) {
    if (!tree().set_shown(key_of(pBar), bShow != FALSE)) return;
    if (!bShow) pBar->ShowWindow(SW_HIDE);
    layout_panes();
    if (GetVisiblePaneCount() == 0)
        ShowWindow(SW_HIDE);
    else if (bShow)
        ShowWindow(SW_SHOWNOACTIVATE);
}

void CMultiPaneFrameWnd::hide_panes() {
    for (const PaneKey key : tree().panes())
        if (tree().contains(key) && tree().shows(key)) pane_of(key)->OnPressCloseButton();
}

CString CMultiPaneFrameWnd::GetCaptionText() { return CPaneFrameWnd::GetCaptionText(); }

void CMultiPaneFrameWnd::CheckGripperVisibility() {
    // With one pane its caption is the frame's.
    for (const PaneKey key : tree().panes())
        ::SetWindowPos(pane_of(key)->m_hWnd, nullptr, 0, 0, 0, 0,
                       SWP_FRAMECHANGED | SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void CMultiPaneFrameWnd::AdjustPaneFrames() {
    CPaneFrameWnd::AdjustPaneFrames();
    CheckGripperVisibility();
}

void CMultiPaneFrameWnd::note_place() {
    CPaneFrameWnd::note_place();
    if (m_isGoing) return;
    for (const PaneKey key : tree().panes())
        pane_of(key)->m_recentDockInfo.m_rectRecentFloatingRect = m_rectRecentFloatingRect;
}

void CMultiPaneFrameWnd::layout_panes() {
    AdjustLayout();
    CheckGripperVisibility();
    redraw_caption();
}

void CMultiPaneFrameWnd::AdjustLayout() {
    if (m_isGoing || m_hWnd == nullptr) return;
    CRect client;
    GetClientRect(&client);
    Arrangement next;
    tree().arrange(client, rules_for_panes(), next);
    m_inside->now = next;
    HDWP batch = ::BeginDeferWindowPos(static_cast<int>(next.panes.size() + next.dividers.size()));
    for (const PlacedPane& placed : next.panes) {
        const CRect& rect = placed.rect;
        if (batch != nullptr)
            batch =
                ::DeferWindowPos(batch, pane_of(placed.pane)->m_hWnd, nullptr, rect.left, rect.top,
                                 rect.Width(), rect.Height(), SWP_NOZORDER | SWP_NOACTIVATE | SWP_SHOWWINDOW);
    }
    batch = place_dividers(m_inside->dividers, next, this, false, batch);
    if (batch != nullptr) ::EndDeferWindowPos(batch);
}

void CMultiPaneFrameWnd::move_divider(int id, int delta) {
    const PlacedDivider* placed = m_inside->now.find_divider(id);
    if (placed != nullptr && tree().move_divider(*placed, delta, rules_for_panes()) != 0) AdjustLayout();
}

CSize CMultiPaneFrameWnd::least_size() const { return tree().least(rules_for_panes()); }

BOOL CMultiPaneFrameWnd::OnDockToRecentPos() {
    BOOL docked = FALSE;
    for (const PaneKey key : tree().panes()) {
        CDockablePane* pane = pane_of(key);
        if (pane->GetEnabledAlignment() != 0 && pane->DockToRecentPos()) docked = TRUE;
    }
    return docked;
}
