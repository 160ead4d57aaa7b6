#include <ktui/nav/menu_button.h>

#include <ktui/host/theme_api.h>

IMPLEMENT_DYNAMIC(CMenuButton, CButton)

CMenuButton::CMenuButton() { m_menu.CreatePopupMenu(); }

CMenuButton::~CMenuButton() = default;

void CMenuButton::Attach(CWnd* dialog, HWND owner) {
    if (!SubclassDlgItem(IDOK, dialog)) return;
    ModifyStyle(0, BS_SPLITBUTTON);
    m_ownerWindow = owner;
    m_record = std::make_unique<SplitButtonRecord>();
    m_record->m_theme = ActiveThemeApi().openThemeData(m_hWnd, L"BUTTON");
    m_record->m_word = GetStyle() & kSplitStyleBits;
    Invalidate();
}

void CMenuButton::Release() {
    if (m_record && m_record->m_theme != nullptr) ActiveThemeApi().closeThemeData(m_record->m_theme);
    m_record.reset();
    if (m_hWnd != nullptr) UnsubclassWindow();
}

BOOL CMenuButton::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) {
    const auto* const notice = reinterpret_cast<const NMHDR*>(lParam);
    if (wParam != IDOK || notice->code != BCN_DROPDOWN) return CButton::OnNotify(wParam, lParam, result);
    CRect button;
    GetWindowRect(&button);
    ::TrackPopupMenu(m_menu.m_hMenu, 0, button.left, button.bottom, 0, m_ownerWindow, nullptr);
    return TRUE;
}

LRESULT CMenuButton::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    return SplitButtonMessage(m_record.get(), m_hWnd, message, wParam, lParam);
}
