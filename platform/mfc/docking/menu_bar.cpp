// CMFCMenuBar: the menu that it shows, its items, and the frame that the menu is of.
#include <kmfc/menu_bar.h>

#include <kmfc/docking_manager.h>
#include <kmfc/frame.h>
#include <kmfc/mdi_frame_ex.h>

#include "../res/kmfc_ids.h"
#include "bar_accessible.h"
#include "document_button.h"
#include "menu_bar_button.h"

using namespace kmfc::docking;

IMPLEMENT_DYNCREATE(CMFCMenuBar, CMFCToolBar)

namespace {

/// What an item of a menu says; empty for pictures, gaps and the buttons of a maximised window.
CString text_of_item(HMENU menu, UINT position) {
    wchar_t text[256] = {};
    MENUITEMINFOW about = {};
    about.cbSize = sizeof(about);
    about.fMask = MIIM_FTYPE | MIIM_STRING;
    about.dwTypeData = text;
    about.cch = static_cast<UINT>(std::size(text));
    if (!::GetMenuItemInfoW(menu, position, TRUE, &about)) return CString();
    return (about.fType & (MFT_BITMAP | MFT_SEPARATOR)) == 0 ? CString(text) : CString();
}

const MenuBarButton& item_of(const CMFCToolBarButton* button) {
    return static_cast<const MenuBarButton&>(*button);
}

}  // namespace

CMFCMenuBar::CMFCMenuBar() = default;

CMFCMenuBar::~CMFCMenuBar() {
    if (m_hWnd != nullptr) DestroyWindow();
}

BOOL CMFCMenuBar::Create(CWnd* pParentWnd, DWORD dwStyle, UINT nID) {
    return CreateEx(pParentWnd, 0, dwStyle, CRect(1, 1, 1, 1), nID);
}

BOOL CMFCMenuBar::CreateEx(CWnd* pParentWnd, DWORD dwCtrlStyle, DWORD dwStyle, CRect rcBorders, UINT nID) {
    if (!CMFCToolBar::CreateEx(pParentWnd, dwCtrlStyle, dwStyle, rcBorders, nID)) return FALSE;
    if (CDockingManager* const manager = GetDockingManager()) manager->set_menu_bar(this);
    take_from_frame();
    return TRUE;
}

// The menu.

/// The frame's own menu becomes the one that is shown.
void CMFCMenuBar::take_from_frame() {
    const CDockingManager* const manager = GetDockingManager();
    const HMENU menu =
        manager != nullptr && manager->menu_bar() == this ? ::GetMenu(m_pDockSite->m_hWnd) : nullptr;
    if (menu == nullptr) return;
    CreateFromMenu(menu, TRUE, TRUE);
    ::SetMenu(m_pDockSite->m_hWnd, nullptr);
    OnDefaultMenuLoaded(menu);
}

void CMFCMenuBar::frame_goes() {
    const HMENU menu = std::exchange(m_hDefaultMenu, nullptr);
    m_hMenu = nullptr;
    if (menu != nullptr && m_pDockSite != nullptr) ::SetMenu(m_pDockSite->m_hWnd, menu);
}

void CMFCMenuBar::OnDestroy() {
    // The open menu would wait for its owner.
    if (m_open != -1) ::EndMenu();
    CDockingManager* const manager = GetDockingManager();
    const bool showsFrames = manager != nullptr && manager->menu_bar() == this;
    if (showsFrames) manager->set_menu_bar(nullptr);
    const HMENU menu = std::exchange(m_hMenu, nullptr);
    m_hDefaultMenu = nullptr;
    CWnd* const frame = showsFrames ? m_pDockSite : nullptr;
    CMFCToolBar::OnDestroy();
    if (frame != nullptr && menu != nullptr) ::SetMenu(frame->m_hWnd, menu);
}

void CMFCMenuBar::CreateFromMenu(HMENU hMenu, BOOL bDefaultMenu, BOOL bForceUpdate) {
    if (!::IsMenu(hMenu)) return;
    if (bDefaultMenu) m_hDefaultMenu = hMenu;
    if (hMenu == m_hMenu && !bForceUpdate) return;
    m_hMenu = hMenu;
    fill();
}

BOOL CMFCMenuBar::RestoreOriginalstate() {
    CMenu loaded;
    if (m_uiDefMenuResId == 0 || !loaded.LoadMenu(m_uiDefMenuResId)) return FALSE;
    CMenu former;
    if (m_original.m_hMenu != nullptr) former.Attach(m_original.Detach());
    m_original.Attach(loaded.Detach());
    CreateFromMenu(m_original.m_hMenu, FALSE, TRUE);
    return TRUE;
}

// Items.

void CMFCMenuBar::fill() {
    RemoveAllButtons();
    const auto add = [this](UINT command, UINT text) {
        CString name;
        name.LoadString(text);
        InsertButton(new DocumentButton(m_maximized, command, name));
        const UINT state = ::GetMenuState(::GetSystemMenu(m_maximized, FALSE), command, MF_BYCOMMAND);
        if (command == SC_CLOSE && (state & (MF_GRAYED | MF_DISABLED)) != 0)
            SetButtonStyle(GetCount() - 1, TBBS_DISABLED);
    };
    if (m_maximized != nullptr) add(0, IDS_DOCUMENT_MENU);
    const int count = ::GetMenuItemCount(m_hMenu);
    for (UINT i = 0; static_cast<int>(i) < count; ++i) {
        const CString text = text_of_item(m_hMenu, i);
        if (text.IsEmpty()) continue;
        const bool opens = ::GetSubMenu(m_hMenu, static_cast<int>(i)) != nullptr;
        const UINT command = opens ? 0 : ::GetMenuItemID(m_hMenu, static_cast<int>(i));
        InsertButton(new MenuBarButton(i, command, text));
    }
    if (m_maximized == nullptr) return;
    if ((::GetWindowLongPtrW(m_maximized, GWL_STYLE) & WS_MINIMIZEBOX) != 0)
        add(SC_MINIMIZE, IDS_DOCUMENT_MINIMIZE);
    add(SC_RESTORE, IDS_DOCUMENT_RESTORE);
    add(SC_CLOSE, IDS_DOCUMENT_CLOSE);
}

/// Whether the program has changed the menu's items since they were read.
bool CMFCMenuBar::is_outdated() const {
    int at = 0;
    const auto skip_document = [&] {
        while (as_document_button(GetButton(at)) != nullptr) ++at;
    };
    skip_document();
    const int count = ::GetMenuItemCount(m_hMenu);
    for (UINT i = 0; static_cast<int>(i) < count; ++i) {
        const CString text = text_of_item(m_hMenu, i);
        if (text.IsEmpty()) continue;
        const CMFCToolBarButton* const button = GetButton(at++);
        if (button == nullptr || item_of(button).position() != i || button->m_strText != text) return true;
    }
    skip_document();
    return at != GetCount();
}

// A maximised document.

void CMFCMenuBar::SetMaximizeMode(BOOL bMax, CWnd* pWnd, BOOL bRecalcLayout) {
    const HWND document = bMax ? pWnd->GetSafeHwnd() : nullptr;
    if (document == m_maximized) return;
    m_maximized = document;
    fill();
    if (bRecalcLayout) AdjustDockingLayout();
}

void CMFCMenuBar::follow_documents() {
    auto* const frame = DYNAMIC_DOWNCAST(CMDIFrameWndEx, m_pDockSite);
    BOOL isMaximized = FALSE;
    CWnd* document = nullptr;
    if (frame != nullptr && frame->m_hWndMDIClient != nullptr && frame->document_holder() == nullptr)
        document = frame->MDIGetActive(&isMaximized);
    SetMaximizeMode(isMaximized, document);
}

bool CMFCMenuBar::is_icon(int index) const {
    const DocumentButton* const button = as_document_button(GetButton(index));
    return button != nullptr && button->is_icon();
}

/// Where an item stands in the menu, in which it isn't alone with items.
UINT CMFCMenuBar::position_of(int index) const { return item_of(GetButton(index)).position(); }

HMENU CMFCMenuBar::popup_of(int index) const {
    const CMFCToolBarButton* const button = GetButton(index);
    if (button == nullptr) return index == GetCount() && has_more() ? m_overflow.m_hMenu : nullptr;
    if (const DocumentButton* const own = as_document_button(button))
        return own->is_icon() ? own->system_menu() : nullptr;
    return ::GetSubMenu(m_hMenu, static_cast<int>(item_of(button).position()));
}

int CMFCMenuBar::item_of_letter(wchar_t letter) const {
    const auto plain = [](wchar_t of) {
        wchar_t text[2] = {of, 0};
        ::CharUpperW(text);
        return text[0];
    };
    for (int i = 0; i < GetCount(); ++i) {
        const wchar_t own = marked_letter(GetButton(i)->m_strText);
        if (own != 0 && plain(own) == plain(letter)) return i;
    }
    return -1;
}

void CMFCMenuBar::OnUpdateCmdUI(CFrameWnd* pTarget, BOOL bDisableIfNoHndler) {
    if (m_open != -1) return;
    take_from_frame();
    follow_documents();
    if (is_outdated()) fill();
    for (int i = 0; i < GetCount(); ++i) {
        if (as_document_button(GetButton(i)) != nullptr) continue;
        const UINT state = ::GetMenuState(m_hMenu, item_of(GetButton(i)).position(), MF_BYPOSITION);
        const bool off = (state & (MF_GRAYED | MF_DISABLED)) != 0;
        // Items that open menus have no command that could be asked.
        if (popup_of(i) != nullptr)
            SetButtonStyle(i, off ? GetButtonStyle(i) | TBBS_DISABLED
                                  : GetButtonStyle(i) & ~static_cast<UINT>(TBBS_DISABLED));
    }
    CMFCToolBar::OnUpdateCmdUI(pTarget, bDisableIfNoHndler);
}

void CMFCMenuBar::fill_more(HMENU menu) const {
    for (int i = 0; i < GetCount(); ++i) {
        const CMFCToolBarButton& button = *GetButton(i);
        if (has_room(button)) continue;
        const HMENU popup = popup_of(i);
        const DocumentButton* const own = as_document_button(&button);
        if (is_icon(i)) own->read_system_menu();
        const UINT command = own != nullptr ? own->command() : button.m_nID;
        const UINT flags = (button.IsEnabled() ? 0u : MF_GRAYED) | (popup != nullptr ? MF_POPUP : MF_STRING);
        ::AppendMenuW(menu, flags, popup != nullptr ? reinterpret_cast<UINT_PTR>(popup) : command,
                      button.m_strText);
    }
}

void CMFCMenuBar::ShowPane(BOOL, BOOL bDelay, BOOL bActivate) {
    CMFCToolBar::ShowPane(TRUE, bDelay, bActivate);
}

/// Items of menus have no tips.
INT_PTR CMFCMenuBar::OnToolHitTest(CPoint point, TOOLINFO* pTI) const {
    return has_more() && more_rect().PtInRect(point) ? CMFCToolBar::OnToolHitTest(point, pTI) : -1;
}

void CMFCMenuBar::describe(int part, AccessiblePart& about) const {
    CMFCToolBar::describe(part, about);
    if (part == 0) about.role = ROLE_SYSTEM_MENUBAR;
    const CMFCToolBarButton* const button = GetButton(part - 1);
    if (button == nullptr) return;
    const DocumentButton* const own = as_document_button(button);
    if (own != nullptr && !own->is_icon()) return;
    about.role = ROLE_SYSTEM_MENUITEM;
    if (const wchar_t letter = marked_letter(button->m_strText)) about.keys.Format(L"Alt+%c", letter);
    if (popup_of(part - 1) == nullptr) return;
    about.states |= STATE_SYSTEM_HASPOPUP;
    about.action.LoadString(IDS_BAR_OPEN);
}
