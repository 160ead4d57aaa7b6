#include "menu_bar_button.h"

#include <algorithm>

#include <kmfc/global_data.h>

namespace kmfc::docking {

namespace {

constexpr int kBeside = 3;  // pixels at 96 dots an inch that the items of menus have besides those of buttons

}  // namespace

MenuBarButton::MenuBarButton(UINT position, UINT command, const CString& text)
    : CMFCToolBarButton(command, -1, text), m_position(position) {
    m_nStyle = TBBS_BUTTON;
}

SIZE MenuBarButton::OnCalculateSize(CDC* pDC, const CSize& sizeDefault, BOOL bHorz) {
    // A short word is no wider than it needs to be.
    CSize size = CMFCToolBarButton::OnCalculateSize(pDC, CSize(0, sizeDefault.cy), bHorz);
    size.cx += 2 * afxGlobalData.scaled(kBeside);
    return size;
}

}  // namespace kmfc::docking
