// CDockablePane: creation, docking, floating, showing.
#include <kmfc/caption_button.h>
#include <kmfc/docking_manager.h>
#include <kmfc/dockable_pane.h>
#include <kmfc/pane_frame_wnd.h>
#include <kmfc/tabbed_pane.h>

#include "dockable_pane_tips.h"
#include "frame_state.h"

using namespace kmfc::docking;

IMPLEMENT_DYNCREATE(CDockablePane, CPane)

BOOL CDockablePane::m_bHideDisabledButtons = TRUE;
BOOL CDockablePane::m_bDisableAnimation = FALSE;

CDockablePane::CDockablePane() { m_bHasGripper = TRUE; }

CDockablePane::~CDockablePane() {
    if (m_hWnd != nullptr) CWnd::DestroyWindow();
    RemoveCaptionButtons();
}

BOOL CDockablePane::Create(LPCTSTR lpszCaption, CWnd* pParentWnd, const RECT& rect, BOOL bHasGripper,
                           UINT nID, DWORD dwStyle, DWORD dwTabbedStyle, DWORD dwControlBarStyle,
                           CCreateContext* pContext) {
    return CreateEx(0, lpszCaption, pParentWnd, rect, bHasGripper, nID, dwStyle, dwTabbedStyle,
                    dwControlBarStyle, pContext);
}

BOOL CDockablePane::Create(LPCTSTR lpszWindowName, CWnd* pParentWnd, CSize sizeDefault, BOOL bHasGripper,
                           UINT nID, DWORD dwStyle, DWORD dwTabbedStyle, DWORD dwControlBarStyle) {
    return CreateEx(0, lpszWindowName, pParentWnd, CRect(CPoint(0, 0), sizeDefault), bHasGripper, nID,
                    dwStyle, dwTabbedStyle, dwControlBarStyle);
}

BOOL CDockablePane::Create(LPCTSTR, LPCTSTR lpszWindowName, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                           UINT nID, CCreateContext* pContext) {
    return CreateEx(0, lpszWindowName, pParentWnd, rect, TRUE, nID, dwStyle, AFX_CBRS_REGULAR_TABS,
                    AFX_DEFAULT_DOCKING_PANE_STYLE, pContext);
}

BOOL CDockablePane::CreateEx(DWORD dwStyleEx, LPCTSTR lpszCaption, CWnd* pParentWnd, const RECT& rect,
                             BOOL bHasGripper, UINT nID, DWORD dwStyle, DWORD dwTabbedStyle,
                             DWORD dwControlBarStyle, CCreateContext* pContext) {
    m_bHasGripper = bHasGripper;
    m_dwTabbedStyle = dwTabbedStyle;
    const CRect place(rect);
    m_sizeDefault = place.Size();
    if (m_recentDockInfo.m_rectRecentFloatingRect.IsRectEmpty() && !place.IsRectEmpty()) {
        m_recentDockInfo.m_rectRecentFloatingRect = place;
        if (pParentWnd != nullptr) pParentWnd->ClientToScreen(&m_recentDockInfo.m_rectRecentFloatingRect);
    }
    return CBasePane::CreateEx(dwStyleEx, nullptr, lpszCaption, dwStyle, rect, pParentWnd, nID,
                               dwControlBarStyle, pContext);
}

int CDockablePane::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    if (CBasePane::OnCreate(lpCreateStruct) == -1) return -1;
    SetCaptionButtons();
    m_tips = std::make_unique<Tips>();
    m_tips->create(this);
    // The buttons weren't there when the first WM_NCCALCSIZE came.
    ::SetWindowPos(m_hWnd, nullptr, 0, 0, 0, 0,
                   SWP_FRAMECHANGED | SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    return 0;
}

void CDockablePane::OnDestroy() {
    leave_auto_hide();
    if (CBaseTabbedPane* const tabbed = GetParentTabbedPane()) tabbed->forget_tab(this);
    m_tips.reset();
    CBasePane::OnDestroy();
}

BOOL CDockablePane::CanAcceptPane(const CBasePane* pBar) const {
    return pBar != nullptr && pBar != this && pBar->IsKindOf(RUNTIME_CLASS(CDockablePane));
}

BOOL CDockablePane::CanAcceptMiniFrame(CPaneFrameWnd* pMiniFrame) const {
    return pMiniFrame != nullptr && pMiniFrame->CanBeDockedToPane(this);
}

BOOL CDockablePane::CanAutoHide() const {
    const CDockingManager* manager = GetDockingManager();
    return m_hWnd != nullptr && manager != nullptr && HasAutoHideMode() && IsDocked() &&
           (manager->GetEnabledAutoHideAlignment() & GetCurrentAlignment()) != 0;
}

BOOL CDockablePane::IsDocked() const {
    if (CBaseTabbedPane* tabbed = GetParentTabbedPane()) return tabbed->IsDocked();
    const CDockingManager* manager = GetDockingManager();
    return GetParentMiniFrame() == nullptr && manager != nullptr && manager->has_place(this);
}

BOOL CDockablePane::IsVisible() const { return m_hWnd != nullptr && m_isShown; }

CSize CDockablePane::CalcFixedLayout(BOOL, BOOL) {
    if (m_hWnd == nullptr) return m_sizeDefault;
    CRect rect;
    GetWindowRect(&rect);
    return rect.Size();
}

void CDockablePane::GetTabArea(CRect& rectTabAreaTop, CRect& rectTabAreaBottom) const {
    rectTabAreaTop.SetRectEmpty();
    rectTabAreaBottom.SetRectEmpty();
}

void CDockablePane::CopyState(CPane* pOrgBar) {
    CPane::CopyState(pOrgBar);
    auto* other = DYNAMIC_DOWNCAST(CDockablePane, pOrgBar);
    if (other == nullptr) return;
    m_nLastPercentInContainer = other->m_nLastPercentInContainer;
    m_bEnableAutohideAll = other->m_bEnableAutohideAll;
    m_pTabbedControlBarRTC = other->m_pTabbedControlBarRTC;
    m_dwTabbedStyle = other->m_dwTabbedStyle;
}

namespace {

/// What a docking pane wants across the side that it docks at, pixels.
int wanted_extent(DWORD alignment, LPCRECT rect, CSize usual) {
    const CSize size = rect != nullptr ? CRect(*rect).Size() : usual;
    const int extent = is_upright(side_of(alignment)) ? size.cx : size.cy;
    constexpr int kUsual = 200;
    return extent > 0 ? extent : kUsual;
}

}  // namespace

BOOL CDockablePane::DockToFrameWindow(DWORD dwAlignment, LPCRECT lpRect, DWORD dwDockFlags, CBasePane*, int,
                                      BOOL bOuterEdge) {
    CDockingManager* manager = GetDockingManager();
    if (m_hWnd == nullptr || manager == nullptr) return FALSE;
    CBasePane* site = nullptr;
    if (!OnBeforeDock(&site, lpRect, DM_UNKNOWN)) return FALSE;
    const bool outer = bOuterEdge || (dwDockFlags & DT_DOCK_FIRST) != 0;
    if (!manager->dock_at_edge(this, dwAlignment, wanted_extent(dwAlignment, lpRect, m_sizeDefault), outer))
        return FALSE;
    OnAfterDock(nullptr, lpRect, DM_UNKNOWN);
    return TRUE;
}

BOOL CDockablePane::DockToWindow(CDockablePane* pTargetWindow, DWORD dwAlignment, LPCRECT lpRect) {
    CDockingManager* manager = GetDockingManager();
    if (m_hWnd == nullptr || manager == nullptr || pTargetWindow == nullptr) return FALSE;
    if (!CanBeAttached() || !pTargetWindow->CanAcceptPane(this)) return FALSE;
    CBasePane* site = pTargetWindow;
    if (!OnBeforeDock(&site, lpRect, DM_UNKNOWN)) return FALSE;
    if (!manager->dock_beside(this, pTargetWindow, dwAlignment,
                              wanted_extent(dwAlignment, lpRect, m_sizeDefault)))
        return FALSE;
    OnAfterDock(pTargetWindow, lpRect, DM_UNKNOWN);
    return TRUE;
}

BOOL CDockablePane::DockToRecentPos() {
    CDockingManager* manager = GetDockingManager();
    return manager != nullptr && m_hWnd != nullptr && manager->dock_at_remembered_place(this);
}

BOOL CDockablePane::FloatPane(CRect rectFloat, AFX_DOCK_METHOD dockMethod, bool bShow) {
    if (m_hWnd == nullptr) return FALSE;
    CPaneFrameWnd* now = GetParentMiniFrame();
    const bool alone = now != nullptr && now->GetPaneCount() == 1 && !IsTabbed();
    if (rectFloat.IsRectEmpty()) rectFloat = m_recentDockInfo.m_rectRecentFloatingRect;
    if (alone) {
        now->SetWindowPos(nullptr, rectFloat.left, rectFloat.top, rectFloat.Width(), rectFloat.Height(),
                          SWP_NOZORDER | SWP_NOACTIVATE);
        if (bShow) ShowPane(TRUE, FALSE, FALSE);
        return TRUE;
    }
    if (!OnBeforeFloat(rectFloat, dockMethod)) return FALSE;
    m_recentDockInfo.StoreDockInfo();
    CPaneFrameWnd* frame = CreateDefaultMiniframe(rectFloat);
    if (frame == nullptr) return FALSE;
    move_to(frame, bShow);
    OnAfterFloat();
    return TRUE;
}

void CDockablePane::move_to(CPaneFrameWnd* frame, bool show) {
    HWND const focus = ::GetFocus();
    const bool hadFocus = focus != nullptr && (focus == m_hWnd || ::IsChild(m_hWnd, focus));
    if (show) m_isShown = true;
    ShowWindow(SW_HIDE);
    leave_home(true);
    if (CDockingManager* manager = GetDockingManager()) manager->AddPane(this);
    frame->AddPane(this);
    m_recentDockInfo.StoreDockInfo();
    if (show) frame->ShowWindow(SW_SHOWNOACTIVATE);
    if (hadFocus) ::SetFocus(focus);
    AdjustDockingLayout();
}

void CDockablePane::leave_home(bool keepPlace) {
    leave_auto_hide();
    if (CBaseTabbedPane* tabbed = GetParentTabbedPane()) {
        tabbed->RemovePane(this);
        return;
    }
    if (CPaneFrameWnd* frame = GetParentMiniFrame())
        frame->RemovePane(this);
    else if (CDockingManager* manager = GetDockingManager())
        manager->undock(this, keepPlace);
}

void CDockablePane::UndockPane(BOOL bDelay) {
    if (m_hWnd == nullptr) return;
    m_recentDockInfo.StoreDockInfo();
    leave_home(false);
    ShowWindow(SW_HIDE);
    if (m_pDockSite != nullptr && ::GetParent(m_hWnd) != m_pDockSite->m_hWnd) become_child_of(m_pDockSite);
    if (!bDelay) AdjustDockingLayout();
}

void CDockablePane::become_child_of(CWnd* parent) {
    CWnd* const former = GetParent();
    if (former == parent) return;
    OnBeforeChangeParent(parent);
    SetParent(parent);
    OnAfterChangeParent(former);
}

void CDockablePane::ShowPane(BOOL bShow, BOOL bDelay, BOOL bActivate) {
    if (m_hWnd == nullptr) return;
    if (m_bIsAutoHideMode && !m_bHideInAutoHideMode) {
        Slide(bShow, bDelay);
        if (bShow && bActivate) SetFocus();
        return;
    }
    m_isShown = bShow != FALSE;
    if (m_bIsAutoHideMode) return show_hidden_name();
    if (CBaseTabbedPane* tabbed = GetParentTabbedPane()) {
        tabbed->ShowTab(this, bShow, bDelay, bActivate);
    } else if (CPaneFrameWnd* frame = GetParentMiniFrame()) {
        frame->OnShowPane(this, bShow);
    } else {
        show_docked(bShow != FALSE, bDelay != FALSE);
    }
    if (bShow && bActivate) SetFocus();
}

void CDockablePane::show_docked(bool show, bool later) {
    CDockingManager* manager = GetDockingManager();
    if (manager == nullptr || !manager->has_place(this)) {
        ShowWindow(show ? SW_SHOWNA : SW_HIDE);
        return;
    }
    if (!show && !later) m_recentDockInfo.StoreDockInfo();
    manager->set_shown(this, show);
    if (later)
        manager->layout_later();
    else
        AdjustDockingLayout();
}

BOOL CDockablePane::ReplacePane(CDockablePane* pBarToReplaceWith, AFX_DOCK_METHOD, BOOL) {
    if (pBarToReplaceWith == nullptr || pBarToReplaceWith == this || m_hWnd == nullptr) return FALSE;
    CPaneFrameWnd* frame = GetParentMiniFrame();
    CDockingManager* manager = GetDockingManager();
    if (frame != nullptr && !IsTabbed()) {
        frame->ReplacePane(this, pBarToReplaceWith);
        return TRUE;
    }
    return manager != nullptr && manager->ReplacePane(this, pBarToReplaceWith);
}

CTabbedPane* CDockablePane::CreateTabbedPane() {
    CRuntimeClass* const kind =
        m_pTabbedControlBarRTC != nullptr ? m_pTabbedControlBarRTC : RUNTIME_CLASS(CTabbedPane);
    CObject* const made = kind->CreateObject();
    auto* held = DYNAMIC_DOWNCAST(CDockablePane, made);
    auto* pane = held != nullptr && held->holds_tabs() ? static_cast<CTabbedPane*>(held) : nullptr;
    CWnd* const frame = GetDockSiteFrameWnd();
    CRect place;
    GetWindowRect(&place);
    if (frame != nullptr) frame->ScreenToClient(&place);
    CString name;
    GetWindowText(name);
    constexpr UINT kNoId = static_cast<UINT>(-1);
    const DWORD style = WS_CHILD | CBRS_FLOAT_MULTI | GetCurrentAlignment();
    if (pane == nullptr || frame == nullptr ||
        !pane->CDockablePane::Create(name, frame, place, m_bHasGripper, kNoId, style, m_dwTabbedStyle,
                                     m_dwControlBarStyle)) {
        delete made;
        return nullptr;
    }
    pane->SetAutoDestroy();
    pane->EnableDocking(m_dwEnabledAlignment);
    if (m_pMiniFrameRTC != nullptr) pane->SetMiniFrameRTC(m_pMiniFrameRTC);
    return pane;
}

CDockablePane* CDockablePane::AttachToTabWnd(CDockablePane* pTabControlBarAttachTo,
                                             AFX_DOCK_METHOD dockMethod, BOOL bSetActive,
                                             CDockablePane** ppTabbedControlBar) {
    CDockablePane* target = pTabControlBarAttachTo;
    if (target != nullptr && target->IsTabbed()) target = target->GetParentTabbedPane();
    if (target == nullptr || target == this || m_hWnd == nullptr || GetParentTabbedPane() == target)
        return nullptr;
    if (!CanBeAttached() || !target->CanAcceptPane(this)) return nullptr;
    // One that hides at an edge comes out for it.
    target->SetAutoHideMode(FALSE, target->GetCurrentAlignment());
    CBaseTabbedPane* tabbed = nullptr;
    if (target->holds_tabs()) {
        tabbed = static_cast<CBaseTabbedPane*>(target);
    } else {
        tabbed = target->CreateTabbedPane();
        if (tabbed == nullptr) return nullptr;
        target->ReplacePane(tabbed, dockMethod);
        tabbed->AddTab(target, TRUE, !bSetActive);
    }
    const bool many = holds_tabs();
    if (!many) {
        ShowWindow(SW_HIDE);
        leave_home(false);
    }
    tabbed->AddTab(this, TRUE, bSetActive);
    tabbed->ShowPane(TRUE, FALSE, FALSE);
    // Tabs that float lay out their own frame only, and this pane may have left room in the main one.
    AdjustDockingLayout();
    if (ppTabbedControlBar != nullptr) *ppTabbedControlBar = tabbed;
    return many ? tabbed : this;
}
