// DocumentGroups: which groups there are, and which documents stand in them.
#include "document_groups.h"

#include <algorithm>

#include <kmfc/global_data.h>
#include <kmfc/visual_manager.h>

#include "group_tabs.h"

CMDITabInfo::CMDITabInfo() {
    const int size = CMFCVisualManager::GetInstance()->GetMDITabsBordersSize();
    constexpr int kUsual = 3;
    m_nTabBorderSize = size >= 0 ? size : kUsual;
}

void CMDITabInfo::Serialize(CArchive& ar) {
    BOOL CMDITabInfo::*const flags[] = {
        &CMDITabInfo::m_bTabCloseButton, &CMDITabInfo::m_bActiveTabCloseButton,
        &CMDITabInfo::m_bTabIcons,       &CMDITabInfo::m_bAutoColor,
        &CMDITabInfo::m_bDocumentMenu,   &CMDITabInfo::m_bEnableTabSwap,
        &CMDITabInfo::m_bFlatFrame,      &CMDITabInfo::m_bTabCustomTooltips};
    if (ar.IsStoring()) {
        ar << static_cast<int>(m_tabLocation) << static_cast<int>(m_style) << m_nTabBorderSize;
        for (const auto flag : flags) ar << this->*flag;
        return;
    }
    CMDITabInfo read;
    int location = 0, style = 0;
    ar >> location >> style >> read.m_nTabBorderSize;
    for (const auto flag : flags) ar >> read.*flag;
    if (location < CMFCTabCtrl::LOCATION_BOTTOM || location > CMFCTabCtrl::LOCATION_TOP ||
        style < CMFCTabCtrl::STYLE_FLAT || style > CMFCTabCtrl::STYLE_3D_ONENOTE || read.m_nTabBorderSize < 0)
        AfxThrowArchiveException(CArchiveException::badIndex);
    read.m_tabLocation = static_cast<CMFCTabCtrl::Location>(location);
    read.m_style = static_cast<CMFCTabCtrl::Style>(style);
    *this = read;
}

namespace kmfc::docking {

namespace {

constexpr UINT kStripId = 0xE8FD;  // not among the ids that the frame gives bars and views
constexpr DWORD kFrameStyles = WS_CAPTION | WS_THICKFRAME | WS_MINIMIZEBOX | WS_MAXIMIZEBOX;

PaneKey key_of(const GroupTabs& group) { return reinterpret_cast<PaneKey>(&group); }

CMDIChildWndEx* document_at(const GroupTabs& group, int tab) {
    return DYNAMIC_DOWNCAST(CMDIChildWndEx, group.GetTabWnd(tab));
}

}  // namespace

DocumentGroups::DocumentGroups(CMDIFrameWndEx& frame) : m_frame(frame) {}
DocumentGroups::~DocumentGroups() = default;

// Strips.

GroupTabs* DocumentGroups::make_strip() {
    auto* const strip = new GroupTabs(*this);  // deletes itself
    strip->HideNoTabs(TRUE);
    if (!strip->Create(m_params.m_style, CRect(0, 0, 0, 0), &m_frame, kStripId, m_params.m_tabLocation,
                       m_params.m_bTabCloseButton))
        return nullptr;
    apply_params(*strip);
    // Strips stand over the documents' window.
    strip->SetWindowPos(&CWnd::wndTop, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    return strip;
}

void DocumentGroups::apply_params(GroupTabs& strip) {
    strip.EnableActiveTabCloseButton(m_params.m_bActiveTabCloseButton);
    strip.EnableCustomToolTips(m_params.m_bTabCustomTooltips);
    strip.EnableTabSwap(m_params.m_bEnableTabSwap);
    strip.EnableTabDocumentsMenu(m_params.m_bDocumentMenu);
    strip.EnableAutoColor(m_params.m_bAutoColor);
    strip.SetFlatFrame(m_params.m_bFlatFrame, FALSE);
    strip.SetTabBorderSize(m_params.m_nTabBorderSize, FALSE);
    strip.EnableActivateLastActive(m_activatesLast);
}

/// Other parameters make the strips anew, with the documents in their groups.
void DocumentGroups::start(const CMDITabInfo& params) {
    m_params = params;
    m_isFollowing = true;
    if (is_on()) {
        m_active = nullptr;
        for (GroupTabs*& group : m_groups) {
            GroupTabs* const made = make_strip();
            if (made == nullptr) continue;
            m_tree.replace(key_of(*group), key_of(*made));
            for (int i = 0; i < group->GetTabsNum(); ++i)
                if (CMDIChildWndEx* const child = document_at(*group, i)) insert(*made, *child);
            made->SetActiveTab(group->GetActiveTab());
            std::exchange(group, made)->go_later();
        }
    } else if (GroupTabs* const first = make_strip()) {
        m_groups.push_back(first);
        m_tree = SplitTree(key_of(*first));
        for (HWND child = ::GetWindow(::GetTopWindow(m_frame.m_hWndMDIClient), GW_HWNDLAST); child != nullptr;
             child = ::GetWindow(child, GW_HWNDPREV))
            if (auto* const document = DYNAMIC_DOWNCAST(CMDIChildWndEx, CWnd::FromHandlePermanent(child)))
                if (document->CanShowOnMDITabs()) insert(*first, *document);
    }
    m_isFollowing = false;
    note_groups();
    if (auto* const active = DYNAMIC_DOWNCAST(CMDIChildWndEx, m_frame.MDIGetActive())) activate(*active);
    m_frame.RecalcLayout();
}

void DocumentGroups::stop() {
    if (!is_on()) return;
    end_drag(false);
    m_dividers.clear();
    const std::map<HWND, DWORD> styles(m_styles);
    for (GroupTabs* const group : std::exchange(m_groups, {})) group->go_later();
    m_active = nullptr;
    m_tree = SplitTree();
    m_now = Arrangement();
    note_groups();
    for (const auto& [child, style] : styles) give_frame_back(child);
    m_frame.RecalcLayout();
}

void DocumentGroups::activate_last(bool last) {
    m_activatesLast = last;
    for (GroupTabs* const group : m_groups) group->EnableActivateLastActive(last);
}

void DocumentGroups::note_groups() {
    m_list.RemoveAll();
    for (GroupTabs* const group : m_groups) m_list.AddTail(group);
}

GroupTabs* DocumentGroups::group_of(const CWnd& child) const {
    for (GroupTabs* const group : m_groups)
        if (group->GetTabFromHwnd(child.m_hWnd) != -1) return group;
    return nullptr;
}

void DocumentGroups::mark_active(GroupTabs& group) {
    m_active = &group;
    for (GroupTabs* const each : m_groups) each->SetActiveTabBoldFont(each == &group);
}

void DocumentGroups::drop_group(GroupTabs& group) {
    // The last one waits for the next document.
    if (m_groups.size() < 2 || group.GetTabsNum() != 0) return;
    m_tree.remove(key_of(group));
    std::erase(m_groups, &group);
    if (m_active == &group) m_active = nullptr;
    note_groups();
    group.go_later();
}

void DocumentGroups::forget(GroupTabs& strip) {
    if (m_drag.from == &strip || m_drag.to == &strip) m_drag = Drag();
    if (std::find(m_groups.begin(), m_groups.end(), &strip) == m_groups.end()) return;
    m_tree.remove(key_of(strip));
    std::erase(m_groups, &strip);
    if (m_active == &strip) m_active = nullptr;
    note_groups();
}

// Documents.

/// A document stands in its group's place, without a frame.
void DocumentGroups::take_frame(CMDIChildWndEx& child) {
    if (m_styles.contains(child.m_hWnd)) return;
    m_styles[child.m_hWnd] = child.GetStyle() & kFrameStyles;
    child.ModifyStyle(kFrameStyles, 0, SWP_FRAMECHANGED);
}

void DocumentGroups::give_frame_back(HWND child) {
    const auto found = m_styles.find(child);
    if (found == m_styles.end()) return;
    if (CWnd* const window = CWnd::FromHandlePermanent(child))
        window->ModifyStyle(0, found->second, SWP_FRAMECHANGED);
    m_styles.erase(found);
}

void DocumentGroups::insert(GroupTabs& group, CMDIChildWndEx& child) {
    take_frame(child);
    group.AddTab(&child, child.GetFrameText());
    if (m_params.m_bTabIcons) group.SetTabHicon(group.GetTabFromHwnd(child.m_hWnd), child.GetFrameIcon());
}

void DocumentGroups::add(CMDIChildWndEx& child) {
    if (!is_on() || !child.CanShowOnMDITabs()) return;
    m_isFollowing = true;
    insert(*active(), child);
    m_isFollowing = false;
    place();
}

void DocumentGroups::remove(CMDIChildWndEx& child) {
    m_styles.erase(child.m_hWnd);
    if (m_drag.child == &child) end_drag(false);
    GroupTabs* const group = group_of(child);
    if (group == nullptr) return;
    m_isFollowing = true;  // the system has said already which document is active now
    group->RemoveTab(group->GetTabFromHwnd(child.m_hWnd));
    m_isFollowing = false;
    drop_group(*group);
    place();
    raise_documents();
}

void DocumentGroups::rename(CMDIChildWndEx& child) {
    GroupTabs* const group = group_of(child);
    CString former;
    if (group == nullptr) return;
    const int tab = group->GetTabFromHwnd(child.m_hWnd);
    if (!group->GetTabLabel(tab, former) || former != child.GetFrameText())
        group->SetTabLabel(tab, child.GetFrameText());
}

void DocumentGroups::activate(CMDIChildWndEx& child) {
    GroupTabs* const group = group_of(child);
    if (group == nullptr) return;
    m_isFollowing = true;
    group->SetActiveTab(group->GetTabFromHwnd(child.m_hWnd));
    m_isFollowing = false;
    mark_active(*group);
}

void DocumentGroups::make_way(CMDIChildWndEx& child) {
    GroupTabs* const group = group_of(child);
    if (group == nullptr || m_frame.MDIGetActive() != &child) return;
    if (CWnd* const next = group->next_after(group->GetTabFromHwnd(child.m_hWnd)))
        return m_frame.MDIActivate(next);
    // The group goes with it: the neighbour's document is next.
    const auto at = std::find(m_groups.begin(), m_groups.end(), group);
    const auto neighbour = std::next(at) != m_groups.end() ? std::next(at)
                           : at != m_groups.begin()        ? std::prev(at)
                                                           : at;
    if (CWnd* const next = neighbour != at ? (*neighbour)->GetActiveWnd() : nullptr)
        m_frame.MDIActivate(next);
}

bool DocumentGroups::chosen(const CMFCBaseTabCtrl* strip, int tab) {
    for (GroupTabs* const group : m_groups) {
        if (strip != group) continue;
        CWnd* const document = m_isFollowing ? nullptr : group->GetTabWnd(tab);
        if (document != nullptr && document != m_frame.MDIGetActive()) m_frame.MDIActivate(document);
        return true;
    }
    return false;
}

/// Of each group the active document stands before the others, and the active one of all before these.
void DocumentGroups::raise_documents() {
    const auto raise = [](const CWnd* window) {
        if (window->GetSafeHwnd() != nullptr)
            ::SetWindowPos(window->m_hWnd, HWND_TOP, 0, 0, 0, 0,
                           SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE | SWP_NOSENDCHANGING);
    };
    for (const GroupTabs* const group : m_groups) raise(group->GetActiveWnd());
    raise(m_frame.MDIGetActive());
}

// Moving documents.

void DocumentGroups::transfer(CMDIChildWndEx& child, GroupTabs& from, GroupTabs& to) {
    m_isFollowing = true;
    from.RemoveTab(from.GetTabFromHwnd(child.m_hWnd));
    insert(to, child);
    to.SetActiveTab(to.GetTabFromHwnd(child.m_hWnd));
    m_isFollowing = false;
    mark_active(to);
    m_frame.SendMessage(AFX_WM_ON_MOVETOTABGROUP, reinterpret_cast<WPARAM>(from.m_hWnd),
                        reinterpret_cast<LPARAM>(to.m_hWnd));
    drop_group(from);
    place();
    if (m_frame.MDIGetActive() != &child) m_frame.MDIActivate(&child);
    raise_documents();
}

void DocumentGroups::begin_group(CMDIChildWndEx& child, GroupTabs& from, GroupTabs& beside, Side side) {
    GroupTabs* const made = make_strip();
    if (made == nullptr) return;
    m_stand = is_upright(side);
    m_tree.insert(key_of(*made), key_of(beside), side, 0, 0);
    const auto at = std::find(m_groups.begin(), m_groups.end(), &beside);
    m_groups.insert(comes_first(side) ? at : std::next(at), made);
    note_groups();
    transfer(child, from, *made);
}

DWORD DocumentGroups::allowed() const {
    if (!is_on() || active()->GetTabsNum() < 2) return 0;
    const bool alone = m_groups.size() == 1;
    DWORD items = 0;
    if (alone || m_stand) items |= AFX_MDI_CREATE_VERT_GROUP;
    if (alone || !m_stand) items |= AFX_MDI_CREATE_HORZ_GROUP;
    if (active() != m_groups.front()) items |= AFX_MDI_CAN_MOVE_PREV;
    if (active() != m_groups.back()) items |= AFX_MDI_CAN_MOVE_NEXT;
    return items;
}

void DocumentGroups::new_group(bool beside) {
    if ((allowed() & (beside ? AFX_MDI_CREATE_VERT_GROUP : AFX_MDI_CREATE_HORZ_GROUP)) == 0) return;
    GroupTabs& from = *active();
    if (CMDIChildWndEx* const child = document_at(from, from.GetActiveTab()))
        begin_group(*child, from, from, beside ? Side::right : Side::bottom);
}

void DocumentGroups::move_active(bool next) {
    if (!is_on()) return;
    GroupTabs& from = *active();
    const auto at = std::find(m_groups.begin(), m_groups.end(), &from);
    if (next ? std::next(at) == m_groups.end() : at == m_groups.begin()) return;
    if (CMDIChildWndEx* const child = document_at(from, from.GetActiveTab()))
        transfer(*child, from, next ? **std::next(at) : **std::prev(at));
}

void DocumentGroups::show_menu(GroupTabs& strip, CPoint screen) {
    if (!m_frame.OnShowMDITabContextMenu(screen, allowed(), FALSE))
        m_frame.SendMessage(WM_CONTEXTMENU, reinterpret_cast<WPARAM>(strip.m_hWnd),
                            MAKELPARAM(screen.x, screen.y));
}

}  // namespace kmfc::docking
