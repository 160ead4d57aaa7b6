// CDockingManager: which panes and floating frames there are, and where panes dock.
#include <kmfc/docking_manager.h>
#include <kmfc/frame_ex.h>
#include <kmfc/mdi_frame_ex.h>
#include <kmfc/tabbed_pane.h>

#include "docked_bars.h"
#include "frame_state.h"

using namespace kmfc::docking;

IMPLEMENT_DYNCREATE(CDockingManager, CObject)

AFX_DOCK_TYPE CDockingManager::m_dockModeGlobal = DT_SMART;
BOOL CDockingManager::m_bDockBarMenu = FALSE;
int CDockingManager::m_nDockSensitivity = 15;
BOOL CDockingManager::m_bSuppressLayout = FALSE;
CSmartDockingInfo CDockingManager::m_SDParams;

kmfc::docking::FrameState::FrameState() = default;
kmfc::docking::FrameState::~FrameState() = default;

DockedBars& CDockingManager::bars() {
    if (m_state->bars == nullptr) m_state->bars = std::make_unique<DockedBars>(*this);
    return *m_state->bars;
}

CDockingManager::CDockingManager() : m_state(std::make_unique<FrameState>()) {}
CDockingManager::~CDockingManager() = default;

Side kmfc::docking::side_of(DWORD alignment) {
    if ((alignment & CBRS_ALIGN_TOP) != 0) return Side::top;
    if ((alignment & CBRS_ALIGN_RIGHT) != 0) return Side::right;
    if ((alignment & CBRS_ALIGN_BOTTOM) != 0) return Side::bottom;
    return Side::left;
}

DWORD kmfc::docking::alignment_of(Side side) {
    constexpr DWORD kAlignments[] = {CBRS_ALIGN_LEFT, CBRS_ALIGN_TOP, CBRS_ALIGN_RIGHT, CBRS_ALIGN_BOTTOM};
    return kAlignments[static_cast<int>(side)];
}

Rules kmfc::docking::rules_for_panes() {
    constexpr int kLeastMiddle = 20;  // pixels
    Rules rules;
    rules.divider = CPaneDivider::m_nDefaultWidth;
    rules.center = CSize(kLeastMiddle, kLeastMiddle);
    rules.least = [](PaneKey key) {
        CSize size(0, 0);
        CDockablePane* pane = pane_of(key);
        pane->GetMinSize(size);
        size.cy = std::max<int>(size.cy, pane->GetCaptionHeight());
        return size;
    };
    return rules;
}

CDockingManager* kmfc::docking::manager_of(CWnd* frame) {
    if (auto* single = DYNAMIC_DOWNCAST(CFrameWndEx, frame)) return single->GetDockingManager();
    if (auto* multiple = DYNAMIC_DOWNCAST(CMDIFrameWndEx, frame)) return multiple->GetDockingManager();
    return nullptr;
}

BOOL CDockingManager::Create(CFrameWnd* pParentWnd) {
    m_pParentWnd = pParentWnd;
    return TRUE;
}

BOOL CDockingManager::EnableDocking(DWORD dwStyle) {
    m_dwEnabledAlignment |= dwStyle & CBRS_ALIGN_ANY;
    return TRUE;
}

BOOL CDockingManager::EnableAutoHidePanes(DWORD dwStyle) {
    m_dwAutoHideAlignment |= dwStyle & CBRS_ALIGN_ANY;
    return TRUE;
}

void CDockingManager::SetSmartDockingParams(CSmartDockingInfo& params) {
    m_SDParams.m_clrToneSrc = params.m_clrToneSrc;
    m_SDParams.m_clrToneDest = params.m_clrToneDest;
    m_SDParams.m_clrTransparent = params.m_clrTransparent;
    m_SDParams.m_bUseThemeColorInShading = params.m_bUseThemeColorInShading;
    m_SDParams.m_bCenter = params.m_bCenter;
}

// Panes.

BOOL CDockingManager::AddPane(CBasePane* pWnd, BOOL bTail, BOOL, BOOL) {
    if (pWnd == nullptr || m_lstControlBars.Find(pWnd) != nullptr) return FALSE;
    if (bTail)
        m_lstControlBars.AddTail(pWnd);
    else
        m_lstControlBars.AddHead(pWnd);
    return TRUE;
}

BOOL CDockingManager::InsertPane(CBasePane* pControlBar, CBasePane* pTarget, BOOL bAfter) {
    POSITION const at = m_lstControlBars.Find(pTarget);
    if (pControlBar == nullptr || at == nullptr || m_lstControlBars.Find(pControlBar) != nullptr)
        return FALSE;
    if (bAfter)
        m_lstControlBars.InsertAfter(at, pControlBar);
    else
        m_lstControlBars.InsertBefore(at, pControlBar);
    return TRUE;
}

void CDockingManager::RemovePaneFromDockManager(CBasePane* pWnd, BOOL bDestroy, BOOL bAdjustLayout, BOOL,
                                                CBasePane* pBarReplacement) {
    if (pWnd == nullptr) return;
    auto* pane = DYNAMIC_DOWNCAST(CDockablePane, pWnd);
    auto* replacement = DYNAMIC_DOWNCAST(CDockablePane, pBarReplacement);
    if (pane != nullptr && replacement != nullptr)
        ReplacePane(pane, replacement);
    else if (pane != nullptr)
        pane->UndockPane(TRUE);
    forget(pWnd);
    if (bDestroy) pWnd->DestroyWindow();
    if (bAdjustLayout) AdjustDockingLayout();
}

void CDockingManager::forget(CBasePane* pane) {
    if (POSITION const at = m_lstControlBars.Find(pane)) m_lstControlBars.RemoveAt(at);
    const bool hadRoom = m_state->layout.shows(key_of(pane));
    m_state->layout.remove(key_of(pane));
    if (m_state->bars != nullptr) m_state->bars->remove(pane);
    if (m_state->drag != nullptr && m_state->drag->torn == pane) m_state->drag->torn = nullptr;
    if (m_state->preview && m_state->preview->slidOut == pane) m_state->preview->slidOut = nullptr;
    if (CPaneFrameWnd* frame = pane->GetParentMiniFrame()) frame->RemovePane(pane);
    if (hadRoom && m_pParentWnd != nullptr) layout_later();
}

BOOL CDockingManager::ReplacePane(CDockablePane* pOriginalBar, CDockablePane* pNewBar) {
    if (!has_place(pOriginalBar) || pOriginalBar == pNewBar) return FALSE;
    pNewBar->leave_home(false);
    const bool shown = m_state->layout.shows(key_of(pOriginalBar));
    if (!m_state->layout.replace(key_of(pOriginalBar), key_of(pNewBar))) return FALSE;
    pOriginalBar->ShowWindow(SW_HIDE);
    AddPane(pNewBar);
    pNewBar->become_child_of(m_pParentWnd);
    pNewBar->SetPaneAlignment(pOriginalBar->GetCurrentAlignment());
    pNewBar->m_isShown = shown;
    AdjustDockingLayout();
    return TRUE;
}

CBasePane* CDockingManager::FindPaneByID(UINT uBarID, BOOL bSearchMiniFrames) {
    CObList panes;
    GetPaneList(panes, TRUE, nullptr, TRUE);
    for (POSITION at = panes.GetHeadPosition(); at != nullptr;) {
        auto* pane = static_cast<CBasePane*>(panes.GetNext(at));
        if (pane->m_hWnd == nullptr || static_cast<UINT>(pane->GetDlgCtrlID()) != uBarID) continue;
        if (bSearchMiniFrames || pane->GetParentMiniFrame() == nullptr) return pane;
    }
    return nullptr;
}

namespace {

void add_tabs(CObList& to, CObject* pane, CRuntimeClass* kind) {
    auto* tabbed = DYNAMIC_DOWNCAST(CBasePane, pane);
    if (tabbed == nullptr || !tabbed->holds_tabs()) return;
    CObList inside;
    static_cast<CBaseTabbedPane*>(tabbed)->GetPaneList(inside, kind);
    for (POSITION at = inside.GetHeadPosition(); at != nullptr;) {
        CObject* one = inside.GetNext(at);
        if (to.Find(one) == nullptr) to.AddTail(one);
    }
}

}  // namespace

void CDockingManager::GetPaneList(CObList& lstBars, BOOL, CRuntimeClass* pRTCFilter, BOOL bIncludeTabs) {
    CObList all;
    for (const PaneKey key : m_state->layout.panes())
        if (pane_of(key)->GetParentMiniFrame() == nullptr) all.AddTail(pane_of(key));
    for (POSITION at = m_lstControlBars.GetHeadPosition(); at != nullptr;) {
        CObject* pane = m_lstControlBars.GetNext(at);
        if (all.Find(pane) == nullptr) all.AddTail(pane);
    }
    for (POSITION at = all.GetHeadPosition(); at != nullptr;) {
        CObject* pane = all.GetNext(at);
        if (pRTCFilter == nullptr || pane->IsKindOf(pRTCFilter)) lstBars.AddTail(pane);
        if (bIncludeTabs) add_tabs(lstBars, pane, pRTCFilter);
    }
}

BOOL CDockingManager::AddMiniFrame(CPaneFrameWnd* pWnd) {
    if (pWnd == nullptr || m_lstMiniFrames.Find(pWnd) != nullptr) return FALSE;
    m_lstMiniFrames.AddHead(pWnd);
    return TRUE;
}

BOOL CDockingManager::RemoveMiniFrame(CPaneFrameWnd* pWnd) {
    POSITION const at = m_lstMiniFrames.Find(pWnd);
    if (at == nullptr) return FALSE;
    m_lstMiniFrames.RemoveAt(at);
    if (m_state->drag != nullptr && m_state->drag->frame == pWnd) m_state->drag.reset();
    if (m_state->preview) std::erase(m_state->preview->frames, pWnd);
    return TRUE;
}

CPaneFrameWnd* CDockingManager::FrameFromPoint(CPoint pt, CPaneFrameWnd* pFrameToExclude,
                                               BOOL bFloatMultiOnly) const {
    for (POSITION at = m_lstMiniFrames.GetHeadPosition(); at != nullptr;) {
        auto* frame = static_cast<CPaneFrameWnd*>(m_lstMiniFrames.GetNext(at));
        CRect rect;
        frame->GetWindowRect(&rect);
        if (frame == pFrameToExclude || !frame->IsWindowVisible() || !rect.PtInRect(pt)) continue;
        if (!bFloatMultiOnly || frame->IsKindOf(RUNTIME_CLASS(CMultiPaneFrameWnd))) return frame;
    }
    return nullptr;
}

CBasePane* CDockingManager::PaneFromPoint(CPoint point, int nSensitivity, bool bExactBar,
                                          CRuntimeClass* pRTCBarType, BOOL bCheckVisibility,
                                          const CBasePane* pBarToIgnore) const {
    const auto fits = [&](const CBasePane* pane) {
        return pane != nullptr && pane != pBarToIgnore && (!bCheckVisibility || pane->IsVisible()) &&
               (pRTCBarType == nullptr ||
                (bExactBar ? pane->GetRuntimeClass() == pRTCBarType : pane->IsKindOf(pRTCBarType) != FALSE));
    };
    if (CPaneFrameWnd* frame = FrameFromPoint(point, nullptr, FALSE)) {
        CBasePane* pane = frame->PaneFromPoint(point, nSensitivity, bCheckVisibility);
        if (fits(pane)) return pane;
    }
    for (const PlacedPane& placed : m_state->now.panes) {
        CRect rect(placed.rect);
        m_pParentWnd->ClientToScreen(&rect);
        rect.InflateRect(nSensitivity, nSensitivity);
        if (rect.PtInRect(point) && fits(pane_of(placed.pane))) return pane_of(placed.pane);
    }
    return nullptr;
}

// Docking.

namespace {

/// The CBRS_ALIGN_ bit of a dock site's id or of an alignment itself; 0 for anything else.
DWORD alignment_of_site(UINT id) {
    switch (id) {
        case AFX_IDW_DOCKBAR_LEFT: return CBRS_ALIGN_LEFT;
        case AFX_IDW_DOCKBAR_TOP: return CBRS_ALIGN_TOP;
        case AFX_IDW_DOCKBAR_RIGHT: return CBRS_ALIGN_RIGHT;
        case AFX_IDW_DOCKBAR_BOTTOM: return CBRS_ALIGN_BOTTOM;
        case CBRS_ALIGN_LEFT:
        case CBRS_ALIGN_TOP:
        case CBRS_ALIGN_RIGHT:
        case CBRS_ALIGN_BOTTOM: return id;
        default: return 0;
    }
}

}  // namespace

void CDockingManager::DockPane(CBasePane* pBar, UINT nDockBarID, LPCRECT lpRect) {
    DWORD alignment = alignment_of_site(nDockBarID);
    if (alignment == 0) alignment = pBar->GetCurrentAlignment();
    pBar->DockToFrameWindow(alignment, lpRect);
}

BOOL CDockingManager::DockPaneLeftOf(CPane* pBarToDock, CPane* pTargetBar) {
    auto* bar = DYNAMIC_DOWNCAST(CMFCToolBar, pBarToDock);
    auto* targetBar = DYNAMIC_DOWNCAST(CMFCToolBar, pTargetBar);
    if (bar != nullptr && targetBar != nullptr) return bars().dock_left_of(*bar, *targetBar);
    auto* pane = DYNAMIC_DOWNCAST(CDockablePane, pBarToDock);
    auto* target = DYNAMIC_DOWNCAST(CDockablePane, pTargetBar);
    return pane != nullptr && target != nullptr && pane->DockToWindow(target, CBRS_ALIGN_LEFT);
}

bool CDockingManager::has_place(const CDockablePane* pane) const {
    return m_state->layout.contains(key_of(pane));
}

/// Takes a pane out of wherever it is and makes it a hidden child of the main frame.
void CDockingManager::bring_home(CDockablePane* pane) {
    pane->leave_auto_hide();
    pane->m_recentDockInfo.StoreDockInfo();
    if (pane->GetParentMiniFrame() != nullptr || pane->IsTabbed()) {
        pane->ShowWindow(SW_HIDE);
        pane->leave_home(true);
    }
    pane->become_child_of(m_pParentWnd);
    AddPane(pane);
}

/// After a pane was put somewhere: it is shown there, knows its side, and the frame is laid out.
void CDockingManager::settle(CDockablePane* pane) {
    m_state->layout.set_shown(key_of(pane), pane->m_isShown);
    pane->SetPaneAlignment(alignment_of(m_state->layout.side_of(key_of(pane))));
}

bool CDockingManager::dock_at_edge(CDockablePane* pane, DWORD alignment, int extent, bool outer) {
    if (m_pParentWnd == nullptr) return false;
    HWND const focus = ::GetFocus();
    bring_home(pane);
    m_state->layout.dock(SplitTree(key_of(pane)), side_of(alignment), extent, outer);
    settle(pane);
    AdjustDockingLayout();
    pane->m_recentDockInfo.StoreDockInfo();
    if (focus != nullptr && ::IsChild(pane->m_hWnd, focus)) ::SetFocus(focus);
    return true;
}

/// How much room a pane has across a side once the panes that go elsewhere have left; 0 when none.
int CDockingManager::extent_across(kmfc::docking::PaneKey pane, Side side) const {
    const Arrangement now = m_state->layout.arrange(m_state->outer, rules_for_panes());
    const CRect* place = now.find(pane);
    if (place == nullptr) return 0;
    return is_upright(side) ? place->Width() : place->Height();
}

bool CDockingManager::dock_beside(CDockablePane* pane, CDockablePane* target, DWORD alignment, int extent) {
    if (m_pParentWnd == nullptr || pane == target) return false;
    if (target->IsTabbed()) target = target->GetParentTabbedPane();
    if (auto* group = DYNAMIC_DOWNCAST(CMultiPaneFrameWnd, target->GetParentMiniFrame())) {
        if (pane->GetParentMiniFrame() == group && group->GetPaneCount() < 2) return false;
        bring_home(pane);
        pane->leave_home(true);
        pane->ShowWindow(SW_HIDE);
        const bool joined = group->dock_beside(pane, target, alignment, extent) != FALSE;
        // A frame whose other panes are all hidden comes up with the one that joins.
        if (joined && pane->m_isShown && !group->IsWindowVisible()) group->ShowWindow(SW_SHOWNOACTIVATE);
        AdjustDockingLayout();
        return joined;
    }
    if (!has_place(target) || target->GetParentMiniFrame() != nullptr) return false;
    bring_home(pane);
    const Side side = side_of(alignment);
    m_state->layout.remove(key_of(pane));
    const int all = extent_across(key_of(target), side);
    if (!m_state->layout.dock_beside(SplitTree(key_of(pane)), key_of(target), side, extent, all))
        return false;
    settle(pane);
    AdjustDockingLayout();
    pane->m_recentDockInfo.StoreDockInfo();
    return true;
}

bool CDockingManager::dock_at_remembered_place(CDockablePane* pane) {
    if (!has_place(pane) || m_pParentWnd == nullptr) return false;
    bring_home(pane);
    pane->m_isShown = true;
    settle(pane);
    AdjustDockingLayout();
    return true;
}

bool CDockingManager::dock_group(CMultiPaneFrameWnd* group, CDockablePane* target, DWORD alignment,
                                 int extent, bool outer) {
    const SplitTree panes = group->tree();
    const Side side = side_of(alignment);
    auto* other =
        target != nullptr ? DYNAMIC_DOWNCAST(CMultiPaneFrameWnd, target->GetParentMiniFrame()) : nullptr;
    if (target != nullptr && other == nullptr && !has_place(target)) return false;
    for (const PaneKey key : panes.panes()) bring_home(pane_of(key));
    if (other != nullptr) return other->take_over(panes, target, side, extent) != FALSE;
    const int all = extent_across(key_of(target), side);
    if (target != nullptr)
        m_state->layout.dock_beside(panes, key_of(target), side, extent, all);
    else
        m_state->layout.dock(panes, side, extent, outer);
    for (const PaneKey key : panes.panes()) settle(pane_of(key));
    AdjustDockingLayout();
    return true;
}

void CDockingManager::undock(CDockablePane* pane, bool keepPlace) {
    if (keepPlace)
        m_state->layout.set_shown(key_of(pane), false);
    else
        m_state->layout.remove(key_of(pane));
}

void CDockingManager::set_shown(CDockablePane* pane, bool shown) {
    m_state->layout.set_shown(key_of(pane), shown);
}

void CDockingManager::ShowPanes(BOOL bShow) {
    for (POSITION at = m_lstMiniFrames.GetHeadPosition(); at != nullptr;) {
        auto* frame = static_cast<CPaneFrameWnd*>(m_lstMiniFrames.GetNext(at));
        frame->ShowWindow(bShow && frame->GetVisiblePaneCount() != 0 ? SW_SHOWNOACTIVATE : SW_HIDE);
    }
    CObList panes;
    GetPaneList(panes);
    for (POSITION at = panes.GetHeadPosition(); at != nullptr;) {
        auto* pane = DYNAMIC_DOWNCAST(CDockablePane, panes.GetNext(at));
        if (pane == nullptr || !pane->IsDocked()) continue;
        m_state->layout.set_shown(key_of(pane), bShow && pane->m_isShown);
    }
    AdjustDockingLayout();
}
