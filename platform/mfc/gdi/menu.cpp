#include <kmfc/menu.h>
#include <kmfc/module_state.h>
#include <kmfc/wnd.h>

#include "gdi_maps.h"

IMPLEMENT_DYNCREATE(CMenu, CObject)

using kmfc::gdi_maps;

namespace {

/// A bitmap as menus take it in place of a text.
LPCTSTR as_text(const CBitmap* bitmap) { return reinterpret_cast<LPCTSTR>(static_cast<HBITMAP>(*bitmap)); }

HBITMAP handle_of(const CBitmap* bitmap) { return bitmap ? static_cast<HBITMAP>(*bitmap) : nullptr; }

}  // namespace

CMenu::~CMenu() { DestroyMenu(); }

CMenu* PASCAL CMenu::FromHandle(HMENU hMenu) { return gdi_maps().menus.FromHandle(hMenu); }
CMenu* PASCAL CMenu::FromHandlePermanent(HMENU hMenu) { return gdi_maps().menus.LookupPermanent(hMenu); }
void PASCAL CMenu::DeleteTempMap() { gdi_maps().menus.DeleteTemp(); }

BOOL CMenu::LoadMenu(LPCTSTR lpszResourceName) {
    return Attach(::LoadMenuW(AfxFindResourceHandle(lpszResourceName, RT_MENU), lpszResourceName));
}

BOOL CMenu::DestroyMenu() {
    HMENU menu = Detach();
    return menu && ::DestroyMenu(menu);
}

BOOL CMenu::Attach(HMENU hMenu) {
    if (!hMenu) return FALSE;
    if (m_hMenu != hMenu) Detach();
    m_hMenu = hMenu;
    gdi_maps().menus.SetPermanent(hMenu, this);
    return TRUE;
}

HMENU CMenu::Detach() {
    HMENU menu = m_hMenu;
    if (menu) gdi_maps().menus.RemoveHandle(menu, this);
    m_hMenu = nullptr;
    return menu;
}

BOOL CMenu::TrackPopupMenu(UINT nFlags, int x, int y, CWnd* pWnd, LPCRECT lpRect) {
    return ::TrackPopupMenu(m_hMenu, nFlags, x, y, 0, kmfc::safe_handle(pWnd), lpRect);
}

BOOL CMenu::TrackPopupMenuEx(UINT fuFlags, int x, int y, CWnd* pWnd, LPTPMPARAMS lptpm) {
    return ::TrackPopupMenuEx(m_hMenu, fuFlags, x, y, kmfc::safe_handle(pWnd), lptpm);
}

BOOL CMenu::AppendMenu(UINT nFlags, UINT_PTR nIDNewItem, const CBitmap* pBmp) {
    return AppendMenu(nFlags | MF_BITMAP, nIDNewItem, as_text(pBmp));
}

BOOL CMenu::InsertMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem, const CBitmap* pBmp) {
    return InsertMenu(nPosition, nFlags | MF_BITMAP, nIDNewItem, as_text(pBmp));
}

BOOL CMenu::ModifyMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem, const CBitmap* pBmp) {
    return ModifyMenu(nPosition, nFlags | MF_BITMAP, nIDNewItem, as_text(pBmp));
}

BOOL CMenu::SetMenuItemBitmaps(UINT nPosition, UINT nFlags, const CBitmap* pBmpUnchecked,
                               const CBitmap* pBmpChecked) {
    return ::SetMenuItemBitmaps(m_hMenu, nPosition, nFlags, handle_of(pBmpUnchecked), handle_of(pBmpChecked));
}

int CMenu::GetMenuString(UINT nIDItem, CString& rString, UINT nFlags) const {
    const int length = ::GetMenuStringW(m_hMenu, nIDItem, nullptr, 0, nFlags);
    rString.Empty();
    if (length <= 0) return 0;
    const int copied =
        ::GetMenuStringW(m_hMenu, nIDItem, rString.GetBufferSetLength(length), length + 1, nFlags);
    rString.ReleaseBuffer();
    return copied;
}

void CMenu::DrawItem(LPDRAWITEMSTRUCT) {}
void CMenu::MeasureItem(LPMEASUREITEMSTRUCT) {}
