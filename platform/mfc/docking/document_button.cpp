#include "document_button.h"

#include <iterator>

#include <kmfc/global_data.h>
#include <kmfc/menu_images.h>
#include <kmfc/visual_manager.h>

namespace kmfc::docking {

namespace {

constexpr int kIcon = 16;   // pixels at 96 dots an inch
constexpr int kAround = 3;  // around the icon and the signs

HICON icon_of(HWND document) {
    auto icon = reinterpret_cast<HICON>(::SendMessageW(document, WM_GETICON, ICON_SMALL, 0));
    if (icon == nullptr) icon = reinterpret_cast<HICON>(::GetClassLongPtrW(document, GCLP_HICONSM));
    if (icon == nullptr) icon = reinterpret_cast<HICON>(::GetClassLongPtrW(document, GCLP_HICON));
    return icon != nullptr ? icon : ::LoadIconW(nullptr, IDI_APPLICATION);
}

CMenuImages::IMAGES_IDS sign_of(UINT command) {
    if (command == SC_MINIMIZE) return CMenuImages::IdMinimize;
    return command == SC_RESTORE ? CMenuImages::IdRestore : CMenuImages::IdClose;
}

}  // namespace

DocumentButton::DocumentButton(HWND document, UINT command, const CString& text)
    : MenuBarButton(kNoPosition, 0, text), m_document(document), m_command(command) {
    if (is_icon()) m_menu.CreatePopupMenu();
}

void DocumentButton::read_system_menu() const {
    while (::GetMenuItemCount(m_menu.m_hMenu) > 0) ::DeleteMenu(m_menu.m_hMenu, 0, MF_BYPOSITION);
    const HMENU source = ::IsWindow(m_document) ? ::GetSystemMenu(m_document, FALSE) : nullptr;
    for (int i = 0; i < ::GetMenuItemCount(source); ++i) {
        const auto place = static_cast<UINT>(i);
        wchar_t text[100] = {};
        ::GetMenuStringW(source, place, text, static_cast<int>(std::size(text)), MF_BYPOSITION);
        const UINT state = ::GetMenuState(source, place, MF_BYPOSITION), id = ::GetMenuItemID(source, i);
        const bool off = id == SC_MOVE || id == SC_SIZE || id == SC_MAXIMIZE ||
                         (id != SC_RESTORE && (state & (MF_GRAYED | MF_DISABLED)) != 0);
        ::AppendMenuW(m_menu.m_hMenu, (state & MF_SEPARATOR) | (off ? MF_GRAYED : 0U), id, text);
    }
}

SIZE DocumentButton::OnCalculateSize(CDC*, const CSize& sizeDefault, BOOL) {
    const int inside = is_icon() ? afxGlobalData.scaled(kIcon) : CMenuImages::Size().cx;
    const int side = inside + 2 * afxGlobalData.scaled(kAround);
    return CSize(side, std::max<int>(side, sizeDefault.cy));
}

void DocumentButton::OnDraw(CDC* pDC, const CRect& rect, CMFCToolBarImages*, BOOL, BOOL bHighlight,
                            const CSize&) {
    CMFCVisualManager* const look = CMFCVisualManager::GetInstance();
    CMFCVisualManager::AFX_BUTTON_STATE state = CMFCVisualManager::ButtonsIsRegular;
    if (IsEnabled() && IsPressed())
        state = CMFCVisualManager::ButtonsIsPressed;
    else if (bHighlight)
        state = CMFCVisualManager::ButtonsIsHighlighted;
    look->OnFillButtonInterior(pDC, this, rect, state);
    look->OnDrawButtonBorder(pDC, this, rect, state);
    if (!is_icon()) {
        CMenuImages::draw_in_color(pDC, sign_of(m_command), rect,
                                   look->GetToolbarButtonTextColor(this, state));
        return;
    }
    if (!::IsWindow(m_document)) return;
    const int size = afxGlobalData.scaled(kIcon);
    ::DrawIconEx(pDC->m_hDC, rect.left + (rect.Width() - size) / 2, rect.top + (rect.Height() - size) / 2,
                 icon_of(m_document), size, size, 0, nullptr, DI_NORMAL);
}

}  // namespace kmfc::docking
