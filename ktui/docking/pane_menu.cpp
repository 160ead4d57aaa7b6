#include <ktui/docking/pane_menu.h>

#include <ktdsres/pane_keys_ids.h>
#include <ktui/docking/pane_lock.h>
#include <ktui/docking/pane_mover.h>
#include <ktui/host/string_resources.h>

namespace {

enum Command : UINT {
    kMove = 1,
    kSize,
    kDockLeft,
    kDockRight,
    kDockBottom,
    kFloat,
    kAutoHide,
    kClose,
    kTabWith
};

struct Sides {
    Command command;
    DWORD alignment;
    UINT text;
    const wchar_t* written;
};
constexpr Sides kSides[] = {
    {kDockLeft, CBRS_ALIGN_LEFT, IDS_PANE_MENU_LEFT, L"停靠在左侧(&L)"},
    {kDockRight, CBRS_ALIGN_RIGHT, IDS_PANE_MENU_RIGHT, L"停靠在右侧(&R)"},
    {kDockBottom, CBRS_ALIGN_BOTTOM, IDS_PANE_MENU_BOTTOM, L"停靠在底部(&B)"},
};

/// The pane with the focus as the menu sees it.
struct Subject {
    CDockablePane* stop;     ///< with its tabs
    CDockablePane* content;  ///< what shows in it
    bool isHidden;           ///< at an edge
    bool isHeld;             ///< in a floating frame that is locked
};

void add(CMenu& menu, UINT command, UINT text, const wchar_t* written, bool enabled, bool checked = false) {
    menu.AppendMenu(MF_STRING | (enabled ? MF_ENABLED : MF_GRAYED) | (checked ? MF_CHECKED : MF_UNCHECKED),
                    command, LoadToolkitString(text, written));
}

/// The panes that a pane can share tabs with.
std::vector<CDockablePane*> partnersOf(const KeyedFrame& keyed, const Subject& subject) {
    std::vector<CDockablePane*> partners;
    // A locked pane has no side to dock at, and nothing joins one.
    if (!subject.content->CanBeAttached() || subject.content->GetEnabledAlignment() == 0) return partners;
    for (CDockablePane* pane : PaneStops(keyed))
        if (pane != subject.stop && PaneContent(pane)->GetEnabledAlignment() != 0 &&
            pane->CanAcceptPane(subject.content))
            partners.push_back(pane);
    return partners;
}

void fill(CMenu& menu, CMenu& tabs, const KeyedFrame& keyed, const Subject& subject,
          const std::vector<CDockablePane*>& partners) {
    const CDockablePane& content = *subject.content;
    const bool floats = content.IsFloating() != FALSE;
    add(menu, kMove, IDS_PANE_MENU_MOVE, L"移动(&M)", !subject.isHeld && CanMovePane(*subject.stop));
    add(menu, kSize, IDS_PANE_MENU_SIZE, L"大小(&S)", !subject.isHeld && CanSizePane(*subject.stop));
    menu.AppendMenu(MF_SEPARATOR);
    const DWORD allowed = content.GetEnabledAlignment() & keyed.manager->GetEnabledAlignment();
    for (const Sides& side : kSides) {
        const bool isThere = !floats && !subject.isHidden && content.GetCurrentAlignment() == side.alignment;
        add(menu, side.command, side.text, side.written, (allowed & side.alignment) != 0, isThere);
    }
    add(menu, kFloat, IDS_PANE_MENU_FLOAT, L"浮动(&F)", content.CanFloat() != FALSE, floats);
    for (std::size_t i = 0; i < partners.size(); ++i) {
        CString name = WindowName(*PaneContent(partners[i]));
        name.Replace(L"&", L"&&");
        tabs.AppendMenu(MF_STRING, kTabWith + i, name);
    }
    menu.AppendMenu(MF_POPUP | (partners.empty() ? MF_GRAYED : MF_ENABLED),
                    reinterpret_cast<UINT_PTR>(tabs.m_hMenu),
                    LoadToolkitString(IDS_PANE_MENU_TAB_WITH, L"合并为选项卡(&T)"));
    menu.AppendMenu(MF_SEPARATOR);
    add(menu, kAutoHide, IDS_PANE_MENU_AUTO_HIDE, L"自动隐藏(&A)", subject.stop->CanAutoHide() != FALSE,
        subject.isHidden);
    add(menu, kClose, IDS_PANE_MENU_CLOSE, L"关闭(&C)", content.CanBeClosed() != FALSE);
}

/// Shows a menu with its first line chosen; 0 when nothing was.
UINT trackByKeyboard(const CMenu& menu, CPoint corner, HWND owner) {
    // The menu takes its keys from the queue. No real key has a parameter of 0.
    ::PostMessageW(owner, WM_KEYDOWN, VK_DOWN, 0);
    const UINT flags = TPM_LEFTALIGN | TPM_TOPALIGN | TPM_RETURNCMD | TPM_NONOTIFY;
    const int command = ::TrackPopupMenu(menu.m_hMenu, flags, corner.x, corner.y, 0, owner, nullptr);
    MSG left = {};
    if (::PeekMessageW(&left, owner, WM_KEYDOWN, WM_KEYDOWN, PM_NOREMOVE) && left.lParam == 0)
        ::PeekMessageW(&left, owner, WM_KEYDOWN, WM_KEYDOWN, PM_REMOVE);
    return static_cast<UINT>(command);
}

/// What has the focus afterwards: the pane where it came to, or the middle when it is gone.
void follow(const KeyedFrame& keyed, HWND content) {
    auto* pane = DYNAMIC_DOWNCAST(CDockablePane, CWnd::FromHandlePermanent(content));
    if (pane == nullptr || !pane->IsVisible()) return GoToMiddle(keyed);
    GoToPane(pane->IsTabbed() ? pane->GetParentTabbedPane() : pane);
}

void obey(UINT command, const KeyedFrame& keyed, const Subject& subject,
          const std::vector<CDockablePane*>& partners) {
    CDockablePane& content = *subject.content;
    const HWND handle = content.m_hWnd;
    switch (command) {
        case 0: return;
        case kMove: return BeginMove(*subject.stop, PaneMove::kPlace);
        case kSize: return BeginMove(*subject.stop, PaneMove::kSize);
        case kFloat: content.FloatPane(content.m_recentDockInfo.m_rectRecentFloatingRect); break;
        case kAutoHide: subject.stop->ToggleAutoHide(); break;
        case kClose: content.OnPressCloseButton(); break;
        default: break;
    }
    for (const Sides& side : kSides)
        if (command == side.command) content.DockToFrameWindow(side.alignment);
    if (command >= kTabWith) content.AttachToTabWnd(partners.at(command - kTabWith), DM_STANDARD);
    follow(keyed, handle);
}

}  // namespace

void ShowPaneMenu(const KeyedFrame& keyed) {
    CDockablePane* stop = PaneStopWithFocus(keyed);
    if (stop == nullptr) return;
    const CPaneFrameWnd* frame = stop->GetParentMiniFrame();
    const Subject subject = {stop, PaneContent(stop), stop->IsAutoHideMode() != FALSE,
                             frame != nullptr && IsPaneLocked(frame)};
    const std::vector<CDockablePane*> partners = partnersOf(keyed, subject);
    CMenu menu, tabs;
    if (!menu.CreatePopupMenu() || !tabs.CreatePopupMenu()) return;
    fill(menu, tabs, keyed, subject, partners);
    // The menu owns it from here on.
    tabs.Detach();
    CRect place;
    stop->GetWindowRect(&place);
    const CPoint corner(place.left, place.top + stop->GetCaptionHeight());
    const UINT command = trackByKeyboard(menu, corner, keyed.frame->m_hWnd);
    obey(command, keyed, subject, partners);
}
