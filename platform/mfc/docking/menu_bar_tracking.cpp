// CMFCMenuBar: what mouse and keyboard do, and the menus that drop down.
#include <kmfc/frame.h>
#include <kmfc/menu_bar.h>

#include <windowsx.h>

#include "bar_accessible.h"
#include "document_button.h"

using namespace kmfc::docking;

BEGIN_MESSAGE_MAP(CMFCMenuBar, CMFCToolBar)
    ON_WM_DESTROY()
    ON_WM_LBUTTONDOWN()
    ON_WM_MOUSEMOVE()
    ON_WM_MOUSELEAVE()
    ON_WM_KEYDOWN()
    ON_WM_CHAR()
END_MESSAGE_MAP()

namespace {

/// The bar whose menu is open in this thread; there is one at a time.
thread_local CMFCMenuBar* followed = nullptr;

/// The item that is marked in an open menu, or -1.
int marked_item(HMENU menu) {
    for (int i = ::GetMenuItemCount(menu) - 1; i >= 0; --i)
        if ((::GetMenuState(menu, static_cast<UINT>(i), MF_BYPOSITION) & MF_HILITE) != 0) return i;
    return -1;
}

/// Whether the arrow to the right opens what is marked in a menu.
bool opens_further(HMENU menu) {
    const int marked = marked_item(menu);
    return marked != -1 && ::GetSubMenu(menu, marked) != nullptr &&
           (::GetMenuState(menu, static_cast<UINT>(marked), MF_BYPOSITION) & (MF_GRAYED | MF_DISABLED)) == 0;
}

}  // namespace

// The mouse over the bar.

void CMFCMenuBar::OnLButtonDown(UINT nFlags, CPoint point) {
    const int index = part_at(point);
    if (!is_pressable(index)) return CMFCToolBar::OnLButtonDown(nFlags, point);
    if (index == GetCount() || popup_of(index) != nullptr)
        follow(index, false);
    else
        CMFCToolBar::OnLButtonDown(nFlags, point);
}

void CMFCMenuBar::OnMouseMove(UINT nFlags, CPoint point) {
    // While the keyboard has an item marked, another one takes the mark, and nothing takes it away.
    if (m_open != -1 || (::GetFocus() == m_hWnd && !is_pressable(part_at(point)))) return;
    CMFCToolBar::OnMouseMove(nFlags, point);
}

void CMFCMenuBar::OnMouseLeave() {
    if (m_open == -1 && ::GetFocus() != m_hWnd) CMFCToolBar::OnMouseLeave();
}

// The keyboard while the bar has the focus.

bool CMFCMenuBar::toggle_focus() {
    if (::GetFocus() == m_hWnd) {
        give_focus_back();
        return true;
    }
    int first = 0;
    while (first <= GetCount() && !is_pressable(first)) ++first;
    if (first > GetCount() || !IsWindowVisible()) return false;
    remember_focus();
    highlight(first);
    SetFocus();
    tell_part_marked(*this, first + 1);
    return true;
}

void CMFCMenuBar::remember_focus() {
    if (::GetFocus() != m_hWnd) m_focusBefore = ::GetFocus();
}

void CMFCMenuBar::give_focus_back() {
    const HWND before = std::exchange(m_focusBefore, nullptr);
    if (::GetFocus() != m_hWnd) return;
    if (before != nullptr && ::IsWindowVisible(before) && ::IsWindowEnabled(before))
        ::SetFocus(before);
    else if (m_pDockSite->GetSafeHwnd() != nullptr)
        m_pDockSite->SetFocus();
}

BOOL CMFCMenuBar::PreTranslateMessage(MSG* pMsg) {
    if (::GetFocus() != m_hWnd || pMsg->hwnd != m_hWnd || pMsg->message < WM_KEYFIRST ||
        pMsg->message > WM_KEYLAST)
        return CMFCToolBar::PreTranslateMessage(pMsg);
    // The frame's accelerators wait, as they do while a menu is open. A letter with Alt means an item.
    if (pMsg->message == WM_SYSCHAR) return CMFCToolBar::PreTranslateMessage(pMsg);
    // The letter of a key that opens a menu would go on into that.
    if (pMsg->wParam > VK_SPACE) ::TranslateMessage(pMsg);
    ::DispatchMessageW(pMsg);
    return TRUE;
}

void CMFCMenuBar::OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags) {
    const bool upright = IsUpright() != FALSE;
    switch (nChar) {
        case VK_RETURN:
        case VK_SPACE:
            if (is_pressable(GetHighlightedButton())) press(GetHighlightedButton());
            break;
        case VK_UP:
        case VK_DOWN:
            if (upright) return CMFCToolBar::OnKeyDown(nChar, nRepCnt, nFlags);
            if (popup_of(GetHighlightedButton()) != nullptr || GetHighlightedButton() == GetCount())
                press(GetHighlightedButton());
            break;
        case VK_RIGHT:
            if (upright)
                press(GetHighlightedButton());
            else
                CMFCToolBar::OnKeyDown(nChar, nRepCnt, nFlags);
            break;
        case VK_ESCAPE: give_focus_back(); break;
        default: CMFCToolBar::OnKeyDown(nChar, nRepCnt, nFlags);
    }
}

void CMFCMenuBar::OnChar(UINT nChar, UINT, UINT) {
    if (nChar <= L' ') return;
    if (!open_by_letter(static_cast<wchar_t>(nChar))) ::MessageBeep(MB_OK);
}

bool CMFCMenuBar::open_by_letter(wchar_t letter) {
    const int index = item_of_letter(letter);
    if (!is_enabled(index) || !IsWindowVisible()) return false;
    press(index);
    return true;
}

void CMFCMenuBar::press(int index) {
    if (index == GetCount() || popup_of(index) != nullptr) return follow(index, true);
    give_focus_back();
    SendCommand(GetButton(index));
}

/// A button of a maximised document is a command of the system's, which the frame hands to it.
void CMFCMenuBar::SendCommand(const CMFCToolBarButton* pButton) {
    if (const DocumentButton* const own = as_document_button(pButton))
        do_command(own->command());
    else
        CMFCToolBar::SendCommand(pButton);
}

void CMFCMenuBar::open_more() { follow(GetCount(), false); }

// Open menus.

/// Opens an item's menu, and after it those that the user goes on to, until he chooses or leaves.
void CMFCMenuBar::follow(int index, bool byKeys) {
    if (followed != nullptr) return;
    CWnd* const frame = GetOwner();
    const HWND self = m_hWnd;
    if (frame->GetSafeHwnd() == nullptr) return;
    followed = this;
    HHOOK const filter =
        ::SetWindowsHookExW(WH_MSGFILTER, &CMFCMenuBar::message_filter, nullptr, ::GetCurrentThreadId());
    ::GetCursorPos(&m_lastMove);
    frame->SendMessage(WM_ENTERMENULOOP, FALSE);
    frame->SendMessage(WM_INITMENU, reinterpret_cast<WPARAM>(m_hMenu));
    UINT command = 0;
    for (int next = index; next != -1;) {
        command = track(next, byKeys);
        if (!::IsWindow(self)) break;
        next = m_next;
        byKeys = m_isNextByKeys;
    }
    followed = nullptr;
    ::UnhookWindowsHookEx(filter);
    if (!::IsWindow(self)) return;
    const int last = std::exchange(m_open, -1);
    frame->SendMessage(WM_EXITMENULOOP, FALSE);
    if (m_isEscaped && command == 0) {
        remember_focus();
        SetFocus();
        highlight(last);
        return;
    }
    highlight(-1);
    give_focus_back();
    if (std::exchange(m_isDoubleClicked, false)) command = SC_CLOSE;
    if (command != 0) do_command(command);
}

void CMFCMenuBar::do_command(UINT command) {
    CWnd* const owner = GetOwner();
    if (owner->GetSafeHwnd() != nullptr) owner->PostMessage(WM_COMMAND, MAKEWPARAM(command, 0));
}

UINT CMFCMenuBar::track(int index, bool byKeys) {
    m_open = index;
    m_next = -1;
    m_isEscaped = m_isDoubleClicked = false;
    m_popups.clear();
    if (index == GetCount() && m_overflow.CreatePopupMenu()) fill_more(m_overflow.m_hMenu);
    if (is_icon(index)) as_document_button(GetButton(index))->read_system_menu();
    highlight(index);
    if (GetButton(index) != nullptr) SetButtonStyle(index, GetButtonStyle(index) | TBBS_PRESSED);
    UpdateWindow();
    // An item without room drops down where the button for more is.
    CRect around = part_rect(index).IsRectEmpty() ? more_rect() : part_rect(index);
    ClientToScreen(&around);
    TPMPARAMS room = {sizeof(room), around};
    const CPoint corner = IsUpright() ? CPoint(around.right, around.top) : CPoint(around.left, around.bottom);
    const UINT flags = TPM_RETURNCMD | TPM_LEFTBUTTON | (IsUpright() ? TPM_HORIZONTAL : TPM_VERTICAL);
    if (byKeys) PostMessage(WM_KEYDOWN, VK_DOWN, 0);
    const HWND self = m_hWnd;
    const HMENU popup = popup_of(index);
    const auto command =
        static_cast<UINT>(::TrackPopupMenuEx(popup, flags, corner.x, corner.y, m_hWnd, &room));
    if (!::IsWindow(self)) return command;
    // The menus in that for more are the frame's.
    while (m_overflow.m_hMenu != nullptr && m_overflow.GetMenuItemCount() > 0)
        m_overflow.RemoveMenu(0, MF_BYPOSITION);
    m_overflow.DestroyMenu();
    if (GetButton(index) != nullptr)
        SetButtonStyle(index, GetButtonStyle(index) & ~static_cast<UINT>(TBBS_PRESSED));
    return command;
}

/// What the system tells the owner of the open menu is for the frame, as if it were its own.
LRESULT CMFCMenuBar::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_INITMENU:
        case WM_ENTERMENULOOP:
        case WM_EXITMENULOOP: return m_open != -1 ? 0 : CMFCToolBar::WindowProc(message, wParam, lParam);
        case WM_INITMENUPOPUP:
        case WM_UNINITMENUPOPUP:
        case WM_MENUSELECT:
        case WM_MENUCHAR:
        case WM_MENURBUTTONUP:
        case WM_ENTERIDLE:
        case WM_HELP:
        case WM_DRAWITEM:
        case WM_MEASUREITEM:
            if (m_open != -1) return on_menu_message(message, wParam, lParam);
            [[fallthrough]];
        default: return CMFCToolBar::WindowProc(message, wParam, lParam);
    }
}

LRESULT CMFCMenuBar::on_menu_message(UINT message, WPARAM wParam, LPARAM lParam) {
    const auto menu = reinterpret_cast<HMENU>(wParam);
    if (message == WM_INITMENUPOPUP) {
        // The frame is told where in its menu the item stands.
        if (m_popups.empty() && is_icon(m_open))
            lParam = MAKELPARAM(0, TRUE);
        else if (m_popups.empty() && m_open < GetCount())
            lParam = MAKELPARAM(position_of(m_open), FALSE);
        m_popups.push_back(menu);
        if (menu == m_overflow.m_hMenu) return 0;
    } else if (message == WM_UNINITMENUPOPUP) {
        std::erase(m_popups, menu);
        if (menu == m_overflow.m_hMenu) return 0;
    } else if (message == WM_MENUSELECT && HIWORD(wParam) == 0xFFFF && m_next != -1) {
        return 0;  // the next menu is about to open
    }
    CWnd* const frame = GetOwner();
    return frame->GetSafeHwnd() != nullptr ? frame->SendMessage(message, wParam, lParam) : 0;
}

// What happens while a menu is open.

LRESULT CALLBACK CMFCMenuBar::message_filter(int code, WPARAM wParam, LPARAM lParam) {
    if (code == MSGF_MENU && followed != nullptr && followed->filters(*reinterpret_cast<MSG*>(lParam)))
        return TRUE;
    return ::CallNextHookEx(nullptr, code, wParam, lParam);
}

bool CMFCMenuBar::filters(const MSG& message) {
    switch (message.message) {
        case WM_KEYDOWN: return filters_key(message.wParam);
        case WM_MOUSEMOVE:
        case WM_LBUTTONDOWN:
        case WM_LBUTTONDBLCLK:
            // In menus the mouse is told in screen coordinates.
            return filters_mouse(message.message,
                                 CPoint(GET_X_LPARAM(message.lParam), GET_Y_LPARAM(message.lParam)));
        default: return false;
    }
}

/// The next item in a direction whose menu can be opened, around the ends; -1 when there is no other.
int CMFCMenuBar::neighbour_with_menu(int from, int step) const {
    const int count = GetCount() + 1;
    for (int i = 1; i < count; ++i) {
        const int index = ((from + i * step) % count + count) % count;
        if (is_pressable(index) && (index == GetCount() || popup_of(index) != nullptr)) return index;
    }
    return -1;
}

bool CMFCMenuBar::filters_key(WPARAM key) {
    if (m_popups.empty()) return false;
    if (key == VK_ESCAPE) m_isEscaped = m_popups.size() == 1;
    const bool back = key == VK_LEFT && m_popups.size() == 1;
    const bool forth = key == VK_RIGHT && !opens_further(m_popups.back());
    if (!back && !forth) return false;
    go_on_with(neighbour_with_menu(m_open, back ? -1 : 1), true);
    return true;
}

bool CMFCMenuBar::filters_mouse(UINT message, CPoint screen) {
    // Windows that come and go below a pointer that stands still move it for the system.
    const bool moved = std::exchange(m_lastMove, screen) != screen;
    if (::WindowFromPoint(screen) != m_hWnd) return false;
    CPoint point(screen);
    ScreenToClient(&point);
    const int index = part_at(point);
    const bool opens = is_pressable(index) && (index == GetCount() || popup_of(index) != nullptr);
    if (message == WM_MOUSEMOVE) {
        if (moved && opens && index != m_open) go_on_with(index, false);
        return false;
    }
    if (!opens) return false;
    // A press on the item that is open closes it, and a double click on a document's icon the document.
    if (index == m_open) {
        m_isDoubleClicked = message == WM_LBUTTONDBLCLK && is_icon(index);
        ::EndMenu();
    } else {
        go_on_with(index, false);
    }
    return true;
}

void CMFCMenuBar::go_on_with(int index, bool byKeys) {
    if (index == -1) return;
    m_next = index;
    m_isNextByKeys = byKeys;
    m_isEscaped = false;
    ::EndMenu();
}
