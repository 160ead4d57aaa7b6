// Panes that hide at an edge.
#include <kmfc/auto_hide_bar.h>
#include <kmfc/base_tabbed_pane.h>
#include <kmfc/docking_manager.h>

int CDockablePane::m_nSlideSteps = 5;

BOOL CDockablePane::ToggleAutoHide() {
    if (CBaseTabbedPane* const tabbed = GetParentTabbedPane()) return tabbed->ToggleAutoHide();
    if (!m_bIsAutoHideMode && !CanAutoHide()) return FALSE;
    SetAutoHideMode(!m_bIsAutoHideMode, GetCurrentAlignment());
    return TRUE;
}

CMFCAutoHideBar* CDockablePane::SetAutoHideMode(BOOL bMode, DWORD dwAlignment,
                                                CMFCAutoHideBar* pCurrAutoHideBar, BOOL) {
    CDockingManager* const manager = GetDockingManager();
    if (manager == nullptr || m_hWnd == nullptr || (bMode != FALSE) == (m_bIsAutoHideMode != FALSE))
        return m_pAutoHideBar;
    if (!bMode) {
        leave_auto_hide();
        m_isShown = true;
        manager->set_shown(this, true);
        AdjustDockingLayout();
        return nullptr;
    }
    if (!manager->has_place(this)) return nullptr;
    CMFCAutoHideBar* const bar =
        pCurrAutoHideBar != nullptr ? pCurrAutoHideBar : CMFCAutoHideBar::at_side(*manager, dwAlignment);
    if (bar == nullptr) return nullptr;
    CRect rect;
    GetWindowRect(&rect);
    m_recentDockInfo.StoreDockInfo();
    m_autoHideSize = rect.Size();
    m_bIsAutoHideMode = TRUE;
    m_pAutoHideBar = bar;
    const HWND focus = ::GetFocus();
    const bool hadFocus = focus != nullptr && (focus == m_hWnd || ::IsChild(m_hWnd, focus));
    bar->AddAutoHideWindow(this, dwAlignment);
    manager->set_shown(this, false);
    ShowWindow(SW_HIDE);
    AdjustDockingLayout();
    if (hadFocus) manager->GetDockSiteFrameWnd()->SetFocus();
    redraw_caption();
    return bar;
}

void CDockablePane::leave_auto_hide() {
    if (!m_bIsAutoHideMode) return;
    m_bIsAutoHideMode = FALSE;
    CMFCAutoHideBar* const bar = m_pAutoHideBar;
    m_pAutoHideBar = nullptr;
    if (bar != nullptr) bar->RemoveAutoHideWindow(this);
    if (m_hWnd != nullptr) ShowWindow(SW_HIDE);
}

void CDockablePane::Slide(BOOL bSlideOut, BOOL bUseTimer) {
    if (m_pAutoHideBar != nullptr) m_pAutoHideBar->ShowAutoHideWindow(this, bSlideOut, bUseTimer);
}

BOOL CDockablePane::CheckAutoHideCondition() {
    return m_pAutoHideBar != nullptr && m_pAutoHideBar->slid_out() == this &&
           m_pAutoHideBar->check_condition();
}

/// With m_bHideInAutoHideMode the name on the strip comes and goes with the pane.
void CDockablePane::show_hidden_name() {
    if (!m_isShown) Slide(FALSE, FALSE);
    for (const auto& button : m_pAutoHideBar->buttons())
        if (button->GetAutoHideWindow() == this) button->ShowButton(m_isShown);
    m_pAutoHideBar->UpdateVisibleState();
}
