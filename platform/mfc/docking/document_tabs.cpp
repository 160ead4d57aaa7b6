#include "document_tabs.h"

namespace kmfc::docking {

namespace {

constexpr UINT kTabsId = 0xE8FE;  // not among the ids that the frame gives bars and views

}  // namespace

DocumentTabs::DocumentTabs(CMDIFrameWndEx& frame) : m_frame(frame) { m_bIsMDITab = TRUE; }

bool DocumentTabs::start(bool icons, Location location, bool closeButton, Style style, bool ownTips,
                         bool closeOnActive) {
    stop();
    m_hasIcons = icons;
    HideNoTabs(TRUE);
    if (!Create(style, CRect(0, 0, 0, 0), &m_frame, kTabsId, location, closeButton)) return false;
    EnableActiveTabCloseButton(closeOnActive);
    EnableCustomToolTips(ownTips);
    EnableTabSwap(TRUE);
    m_isFollowing = true;
    for (HWND child = ::GetWindow(::GetTopWindow(m_frame.m_hWndMDIClient), GW_HWNDLAST); child != nullptr;
         child = ::GetWindow(child, GW_HWNDPREV))
        if (auto* document = DYNAMIC_DOWNCAST(CMDIChildWndEx, CWnd::FromHandlePermanent(child)))
            add(*document);
    m_isFollowing = false;
    if (CMDIChildWnd* active = m_frame.MDIGetActive()) {
        active->MDIMaximize();
        if (auto* document = DYNAMIC_DOWNCAST(CMDIChildWndEx, active)) activate(*document);
    }
    m_frame.RecalcLayout();
    return true;
}

void DocumentTabs::stop() {
    if (!is_on()) return;
    DestroyWindow();
    m_frame.RecalcLayout();
}

void DocumentTabs::take_room(CRect& border) const {
    if (is_on()) (GetLocation() == LOCATION_TOP ? border.top : border.bottom) += GetTabsHeight();
}

void DocumentTabs::place() {
    if (!is_on()) return;
    CRect room;
    ::GetWindowRect(m_frame.m_hWndMDIClient, &room);
    m_frame.ScreenToClient(&room);
    // A print preview stands in the place of the documents.
    const int height = m_frame.IsPrintPreview() ? 0 : GetTabsHeight();
    const int top = GetLocation() == LOCATION_TOP ? room.top - height : room.bottom;
    SetWindowPos(nullptr, room.left, top, room.Width(), height,
                 SWP_NOZORDER | SWP_NOACTIVATE | (height > 0 ? SWP_SHOWWINDOW : SWP_HIDEWINDOW));
}

void DocumentTabs::room_changes(int heightBefore) {
    if (GetTabsHeight() != heightBefore) m_frame.RecalcLayout();
}

void DocumentTabs::add(CMDIChildWndEx& child) {
    if (!is_on() || !child.CanShowOnMDITabs()) return;
    const int before = GetTabsHeight();
    AddTab(&child, child.GetFrameText());
    if (m_hasIcons) SetTabHicon(GetTabFromHwnd(child.m_hWnd), child.GetFrameIcon());
    room_changes(before);
}

void DocumentTabs::remove(CMDIChildWndEx& child) {
    const int tab = is_on() ? GetTabFromHwnd(child.m_hWnd) : -1;
    if (tab == -1) return;
    const int before = GetTabsHeight();
    m_isFollowing = true;  // the system has said already which document is active now
    RemoveTab(tab);
    m_isFollowing = false;
    room_changes(before);
}

void DocumentTabs::rename(CMDIChildWndEx& child) {
    const int tab = is_on() ? GetTabFromHwnd(child.m_hWnd) : -1;
    CString former;
    if (tab == -1 || (GetTabLabel(tab, former) && former == child.GetFrameText())) return;
    SetTabLabel(tab, child.GetFrameText());
}

void DocumentTabs::activate(CMDIChildWndEx& child) {
    const int tab = is_on() ? GetTabFromHwnd(child.m_hWnd) : -1;
    if (tab == -1) return;
    m_isFollowing = true;
    SetActiveTab(tab);
    m_isFollowing = false;
}

void DocumentTabs::make_way(CMDIChildWndEx& child) {
    const int tab = is_on() ? GetTabFromHwnd(child.m_hWnd) : -1;
    if (tab == -1 || m_frame.MDIGetActive() != &child) return;
    if (CWnd* next = GetTabWnd(successor_of(tab))) m_frame.MDIActivate(next);
}

void DocumentTabs::chosen(int tab) {
    CWnd* document = m_isFollowing ? nullptr : GetTabWnd(tab);
    if (document != nullptr && document != m_frame.MDIGetActive()) m_frame.MDIActivate(document);
}

}  // namespace kmfc::docking
