#include <kmfc/base_tabbed_pane.h>

#include <algorithm>

#include <kmfc/auto_hide_bar.h>
#include <kmfc/docking_manager.h>
#include <kmfc/pane_frame_wnd.h>

namespace {

// Sent to itself: the last tab has gone, and nothing of the pane is on the stack any more.
constexpr UINT kGoLater = WM_APP + 0x2F00;

}  // namespace

IMPLEMENT_DYNAMIC(CBaseTabbedPane, CDockablePane)

BEGIN_MESSAGE_MAP(CBaseTabbedPane, CDockablePane)
    ON_WM_CREATE()
    ON_WM_DESTROY()
    ON_MESSAGE(kGoLater, &CBaseTabbedPane::OnGoLater)
    ON_REGISTERED_MESSAGE(AFX_WM_CHANGE_ACTIVE_TAB, &CBaseTabbedPane::OnChangeActiveTab)
END_MESSAGE_MAP()

/// Answers for the panes in the tabs.
struct CBaseTabbedPane::Owner : kmfc::TabOwner {
    explicit Owner(CBaseTabbedPane& around) : pane(around) {}
    BOOL float_tab(int index, AFX_DOCK_METHOD method, BOOL hide) override {
        return pane.FloatTab(pane.FindBarByTabNumber(index), index, method, hide);
    }
    void close_tab(int index) override {
        if (CDockablePane* const closed = pane.pane_of_tab(index)) closed->OnPressCloseButton();
    }
    CBaseTabbedPane& pane;
};

CBaseTabbedPane::CBaseTabbedPane(BOOL bAutoDestroy)
    : m_bAutoDestroy(bAutoDestroy), m_tabOwner(std::make_unique<Owner>(*this)) {}
CBaseTabbedPane::~CBaseTabbedPane() { delete m_pTabWnd; }

int CBaseTabbedPane::OnCreate(LPCREATESTRUCT lpCreateStruct) {
    if (CDockablePane::OnCreate(lpCreateStruct) == -1) return -1;
    ModifyStyle(0, WS_CLIPCHILDREN);
    m_pTabWnd = create_tab_window();
    if (m_pTabWnd == nullptr) return -1;
    m_pTabWnd->set_tab_owner(m_tabOwner.get());
    return 0;
}

void CBaseTabbedPane::OnDestroy() {
    if (m_pTabWnd != nullptr) m_pTabWnd->set_tab_owner(nullptr);
    CDockablePane::OnDestroy();
}

void CBaseTabbedPane::PostNcDestroy() {
    CDockablePane::PostNcDestroy();
    if (m_bAutoDestroy) delete this;
}

CDockablePane* CBaseTabbedPane::pane_of_tab(int index) const {
    return m_pTabWnd != nullptr ? DYNAMIC_DOWNCAST(CDockablePane, m_pTabWnd->GetTabWnd(index)) : nullptr;
}

BOOL CBaseTabbedPane::AddTab(CWnd* pNewBar, BOOL bVisible, BOOL bSetActive, BOOL bDetachable) {
    if (m_pTabWnd->GetSafeHwnd() == nullptr || pNewBar->GetSafeHwnd() == nullptr || pNewBar == this)
        return FALSE;
    if (auto* const tabbed = DYNAMIC_DOWNCAST(CBaseTabbedPane, pNewBar)) {
        take_tabs_of(*tabbed);
        return FALSE;
    }
    auto* const pane = DYNAMIC_DOWNCAST(CDockablePane, pNewBar);
    CWnd* const former = pNewBar->GetParent();
    CString name;
    pNewBar->GetWindowText(name);
    if (pane != nullptr) pane->OnBeforeChangeParent(m_pTabWnd);
    m_pTabWnd->InsertTab(pNewBar, name, -1, static_cast<UINT>(-1), bDetachable);
    if (pane != nullptr) {
        pane->OnAfterChangeParent(former);
        // It has no caption here.
        ::SetWindowPos(pane->m_hWnd, nullptr, 0, 0, 0, 0,
                       SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
        m_pTabWnd->SetTabHicon(m_pTabWnd->GetTabFromHwnd(pNewBar->m_hWnd), pane->GetPaneIcon(FALSE));
    }
    const int index = m_pTabWnd->GetTabFromHwnd(pNewBar->m_hWnd);
    if (!bVisible)
        m_pTabWnd->ShowTab(index, FALSE);
    else if (bSetActive)
        m_pTabWnd->SetActiveTab(index);
    show_active_name();
    return TRUE;
}

/// Takes the tabs of another tabbed pane, in their order, and lets it go.
void CBaseTabbedPane::take_tabs_of(CBaseTabbedPane& other) {
    const CWnd* const active = other.m_pTabWnd->GetActiveWnd();
    while (other.GetTabsNum() > 0) {
        CWnd* const window = other.m_pTabWnd->GetTabWnd(0);
        const BOOL visible = other.m_pTabWnd->IsTabVisible(0);
        const BOOL detachable = other.m_pTabWnd->IsTabDetachable(0);
        CString label;
        other.m_pTabWnd->GetTabLabel(0, label);
        other.m_pTabWnd->RemoveTab(0);
        AddTab(window, visible, window == active, detachable);
        m_pTabWnd->SetTabLabel(m_pTabWnd->GetTabFromHwnd(window->m_hWnd), label);
    }
    other.go_later();
}

/// Leaves its place at once, and goes when the program is next idle: something of it may be on the stack.
void CBaseTabbedPane::go_later() {
    UndockPane(TRUE);
    ShowWindow(SW_HIDE);
    AdjustDockingLayout();
    PostMessage(kGoLater);
}

LRESULT CBaseTabbedPane::OnGoLater(WPARAM, LPARAM) {
    if (GetTabsNum() == 0) DestroyWindow();
    return 0;
}

BOOL CBaseTabbedPane::RemovePane(CWnd* pBar) {
    const int index =
        m_pTabWnd->GetSafeHwnd() != nullptr ? m_pTabWnd->GetTabFromHwnd(pBar->GetSafeHwnd()) : -1;
    if (index == -1) return FALSE;
    // Its name goes from the strip while the tab can still be told to be one of ours.
    if (m_pAutoHideBar != nullptr)
        if (auto* const hidden = DYNAMIC_DOWNCAST(CDockablePane, pBar))
            m_pAutoHideBar->RemoveAutoHideWindow(hidden);
    m_pTabWnd->RemoveTab(index);
    CWnd* const frame = GetDockSiteFrameWnd();
    if (frame != nullptr && ::GetParent(pBar->m_hWnd) == m_pTabWnd->m_hWnd) {
        auto* const pane = DYNAMIC_DOWNCAST(CDockablePane, pBar);
        if (pane != nullptr) pane->OnBeforeChangeParent(frame);
        pBar->SetParent(frame);
        if (pane != nullptr) pane->OnAfterChangeParent(m_pTabWnd);
    }
    show_active_name();
    tabs_have_gone();
    return TRUE;
}

void CBaseTabbedPane::forget_tab(CDockablePane* pane) {
    const int index =
        m_pTabWnd->GetSafeHwnd() != nullptr ? m_pTabWnd->GetTabFromHwnd(pane->GetSafeHwnd()) : -1;
    if (index == -1) return;
    if (m_pAutoHideBar != nullptr) m_pAutoHideBar->RemoveAutoHideWindow(pane);
    const BOOL destroys = m_pTabWnd->IsAutoDestroyWindow();
    m_pTabWnd->AutoDestroyWindow(FALSE);
    m_pTabWnd->RemoveTab(index);
    m_pTabWnd->AutoDestroyWindow(destroys);
    show_active_name();
    tabs_have_gone();
}

void CBaseTabbedPane::tabs_have_gone() {
    if (m_bAutoDestroy && GetTabsNum() == 1) {
        CDockablePane* const left = pane_of_tab(0);
        if (left == nullptr) return;
        const BOOL visible = m_pTabWnd->IsTabVisible(0);
        const bool shown = IsVisible() != FALSE, hidden = m_bIsAutoHideMode != FALSE;
        leave_auto_hide();
        m_pTabWnd->RemoveTab(0);
        CWnd* const frame = GetDockSiteFrameWnd();
        left->OnBeforeChangeParent(frame);
        left->SetParent(frame);
        left->OnAfterChangeParent(m_pTabWnd);
        ReplacePane(left, DM_STANDARD);
        left->ShowPane(visible && shown, FALSE, FALSE);
        if (hidden && visible && shown) left->SetAutoHideMode(TRUE, left->GetCurrentAlignment());
    }
    if (GetTabsNum() > 0) return;
    if (m_bAutoDestroy && AllowDestroyEmptyTabbedPane())
        go_later();
    else
        CDockablePane::ShowPane(FALSE, FALSE, FALSE);
}

BOOL CBaseTabbedPane::ShowTab(CWnd* pBar, BOOL bShow, BOOL bDelay, BOOL bActivate) {
    const int index =
        m_pTabWnd->GetSafeHwnd() != nullptr ? m_pTabWnd->GetTabFromHwnd(pBar->GetSafeHwnd()) : -1;
    if (index == -1) return FALSE;
    m_pTabWnd->ShowTab(index, bShow, TRUE, bActivate);
    show_active_name();
    const bool any = GetVisibleTabsNum() > 0;
    if (IsAutoHideMode()) return show_hidden_tabs(any);
    if (any != (IsVisible() != FALSE)) CDockablePane::ShowPane(any, bDelay, FALSE);
    return TRUE;
}

/// The strip at the edge names the tabs that show; without any the pane hides altogether.
BOOL CBaseTabbedPane::show_hidden_tabs(bool any) {
    if (any) {
        CMFCAutoHideBar* const bar = m_pAutoHideBar;
        bar->RemoveAutoHideWindow(this);
        bar->AddAutoHideWindow(this, GetCurrentAlignment());
    } else {
        leave_auto_hide();
        CDockablePane::ShowPane(FALSE, FALSE, FALSE);
    }
    return TRUE;
}

BOOL CBaseTabbedPane::DetachPane(CWnd* pBar, BOOL bHide) {
    const int index =
        m_pTabWnd->GetSafeHwnd() != nullptr ? m_pTabWnd->GetTabFromHwnd(pBar->GetSafeHwnd()) : -1;
    if (index == -1) return FALSE;
    auto* const pane = DYNAMIC_DOWNCAST(CDockablePane, pBar);
    if (bHide || pane == nullptr || !pane->CanFloat()) {
        if (pane != nullptr) pane->ShowPane(FALSE, TRUE, FALSE);
        return RemovePane(pBar);
    }
    CRect place = pane->m_recentDockInfo.m_rectRecentFloatingRect;
    if (place.IsRectEmpty()) GetWindowRect(&place);
    return pane->FloatPane(place, DM_SHOW);
}

BOOL CBaseTabbedPane::FloatTab(CWnd* pBar, int nTabID, AFX_DOCK_METHOD dockMethod, BOOL bHide) {
    auto* const pane = DYNAMIC_DOWNCAST(CDockablePane, pBar);
    if (pane == nullptr || m_pTabWnd->GetTabFromHwnd(pane->m_hWnd) != nTabID ||
        !m_pTabWnd->IsTabDetachable(nTabID) || !pane->CanFloat())
        return FALSE;
    if (dockMethod != DM_MOUSE) return DetachPane(pBar, bHide);
    CPoint cursor;
    ::GetCursorPos(&cursor);
    CRect place = pane->m_recentDockInfo.m_rectRecentFloatingRect;
    if (place.IsRectEmpty()) GetWindowRect(&place);
    const int grip = ::GetSystemMetrics(SM_CYSMCAPTION) / 2 + ::GetSystemMetrics(SM_CYSIZEFRAME);
    const CRect under(CPoint(cursor.x - place.Width() / 2, cursor.y - grip), place.Size());
    if (!pane->FloatPane(under, DM_MOUSE)) return FALSE;
    if (CPaneFrameWnd* const frame = pane->GetParentMiniFrame()) frame->start_caption_drag(cursor, nullptr);
    return TRUE;
}

CWnd* CBaseTabbedPane::FindPaneByID(UINT uBarID) {
    for (int i = 0; i < GetTabsNum(); ++i) {
        CWnd* const window = m_pTabWnd->GetTabWnd(i);
        if (static_cast<UINT>(window->GetDlgCtrlID()) == uBarID) return window;
    }
    return nullptr;
}

CWnd* CBaseTabbedPane::FindBarByTabNumber(int nTabNum, BOOL) {
    return m_pTabWnd != nullptr ? m_pTabWnd->GetTabWnd(nTabNum) : nullptr;
}

void CBaseTabbedPane::GetPaneList(CObList& lst, CRuntimeClass* pRTCFilter) {
    for (int i = 0; i < GetTabsNum(); ++i) {
        CWnd* const window = m_pTabWnd->GetTabWnd(i);
        if (pRTCFilter == nullptr || window->IsKindOf(pRTCFilter)) lst.AddTail(window);
    }
}

int CBaseTabbedPane::GetTabsNum() const { return m_pTabWnd != nullptr ? m_pTabWnd->GetTabsNum() : 0; }
int CBaseTabbedPane::GetVisibleTabsNum() const {
    return m_pTabWnd != nullptr ? m_pTabWnd->GetVisibleTabsNum() : 0;
}

CWnd* CBaseTabbedPane::GetFirstVisibleTab(int& iTabNum) {
    iTabNum = -1;
    return m_pTabWnd != nullptr ? m_pTabWnd->GetFirstVisibleTab(iTabNum) : nullptr;
}

void CBaseTabbedPane::EnableSetCaptionTextToTabName(BOOL bEnable) {
    m_bSetCaptionTextToTabName = bEnable;
    show_active_name();
}

void CBaseTabbedPane::show_active_name() {
    CString label, shown;
    if (!CanSetCaptionTextToTabName() || m_pTabWnd == nullptr ||
        !m_pTabWnd->GetTabLabel(m_pTabWnd->GetActiveTab(), label))
        return;
    GetWindowText(shown);
    if (label != shown) SetWindowText(label);
}

void CBaseTabbedPane::rename_tab(const CDockablePane& pane) {
    const int index = m_pTabWnd != nullptr ? m_pTabWnd->GetTabFromHwnd(pane.m_hWnd) : -1;
    if (index < 0) return;
    CString name;
    pane.GetWindowText(name);
    m_pTabWnd->SetTabLabel(index, name);
    if (index == m_pTabWnd->GetActiveTab()) show_active_name();
}

LRESULT CBaseTabbedPane::OnChangeActiveTab(WPARAM, LPARAM) {
    show_active_name();
    return 0;
}

void CBaseTabbedPane::ApplyRestoredTabInfo(BOOL bUseTabIndexes) {
    if (m_pTabWnd->GetSafeHwnd() == nullptr) return;
    m_pTabWnd->ApplyRestoredTabInfo(bUseTabIndexes);
    show_active_name();
}

void CBaseTabbedPane::SerializeTabWindow(CArchive& ar) { m_pTabWnd->Serialize(ar); }

void CBaseTabbedPane::Serialize(CArchive& ar) {
    CDockablePane::Serialize(ar);
    SerializeTabWindow(ar);
}

BOOL CBaseTabbedPane::CanFloat() const {
    if (!CDockablePane::CanFloat()) return FALSE;
    for (int i = 0; i < GetTabsNum(); ++i) {
        const CDockablePane* const pane = pane_of_tab(i);
        if (pane != nullptr && !pane->CanFloat()) return FALSE;
    }
    return TRUE;
}

BOOL CBaseTabbedPane::HasAutoHideMode() const {
    for (int i = 0; i < GetTabsNum(); ++i) {
        const CDockablePane* const pane = pane_of_tab(i);
        if (pane != nullptr && !pane->HasAutoHideMode()) return FALSE;
    }
    return CDockablePane::HasAutoHideMode();
}

/// What the active pane asks for, and the strip.
void CBaseTabbedPane::GetMinSize(CSize& size) const {
    CDockablePane::GetMinSize(size);
    const CDockablePane* const active =
        m_pTabWnd != nullptr ? pane_of_tab(m_pTabWnd->GetActiveTab()) : nullptr;
    if (active == nullptr) return;
    CSize inner(0, 0);
    active->GetMinSize(inner);
    size.cx = std::max(size.cx, inner.cx);
    size.cy = std::max<LONG>(size.cy, inner.cy + (inner.cy > 0 ? m_pTabWnd->GetTabsHeight() : 0));
}

HICON CBaseTabbedPane::GetPaneIcon(BOOL bBigIcon) {
    CDockablePane* const active = m_pTabWnd != nullptr ? pane_of_tab(m_pTabWnd->GetActiveTab()) : nullptr;
    return active != nullptr ? active->GetPaneIcon(bBigIcon) : CDockablePane::GetPaneIcon(bBigIcon);
}

void CBaseTabbedPane::GetTabArea(CRect& rectTabAreaTop, CRect& rectTabAreaBottom) const {
    CDockablePane::GetTabArea(rectTabAreaTop, rectTabAreaBottom);
    if (m_pTabWnd->GetSafeHwnd() == nullptr) return;
    m_pTabWnd->GetTabArea(rectTabAreaTop, rectTabAreaBottom);
    for (CRect* const area : {&rectTabAreaTop, &rectTabAreaBottom})
        if (!area->IsRectEmpty()) m_pTabWnd->ClientToScreen(area);
}

void CBaseTabbedPane::RecalcLayout() {
    if (m_pTabWnd->GetSafeHwnd() == nullptr) return;
    CRect client;
    GetClientRect(&client);
    m_pTabWnd->MoveWindow(&client);
}

void CBaseTabbedPane::OnPressCloseButton() {
    CDockablePane* const active = m_pTabWnd != nullptr ? pane_of_tab(m_pTabWnd->GetActiveTab()) : nullptr;
    if (active != nullptr)
        active->OnPressCloseButton();
    else
        CDockablePane::OnPressCloseButton();
}
