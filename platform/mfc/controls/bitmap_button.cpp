#include <afxext.h>

IMPLEMENT_DYNAMIC(CBitmapButton, CButton)

CBitmapButton::CBitmapButton(LPCTSTR lpszBitmapResource, LPCTSTR lpszBitmapResourceSel,
                             LPCTSTR lpszBitmapResourceFocus, LPCTSTR lpszBitmapResourceDisabled) {
    if (!LoadBitmaps(lpszBitmapResource, lpszBitmapResourceSel, lpszBitmapResourceFocus,
                     lpszBitmapResourceDisabled)) {
        AfxThrowResourceException();
    }
}

BOOL CBitmapButton::LoadBitmaps(LPCTSTR lpszBitmapResource, LPCTSTR lpszBitmapResourceSel,
                                LPCTSTR lpszBitmapResourceFocus, LPCTSTR lpszBitmapResourceDisabled) {
    for (CBitmap* bitmap : {&m_bitmap, &m_bitmapSel, &m_bitmapFocus, &m_bitmapDisabled})
        bitmap->DeleteObject();
    if (!m_bitmap.LoadBitmap(lpszBitmapResource)) return FALSE;
    const auto load = [](CBitmap& bitmap, LPCTSTR name) { return !name || bitmap.LoadBitmap(name); };
    const bool selected = load(m_bitmapSel, lpszBitmapResourceSel);
    const bool focused = load(m_bitmapFocus, lpszBitmapResourceFocus);
    const bool disabled = load(m_bitmapDisabled, lpszBitmapResourceDisabled);
    return selected && focused && disabled;
}

BOOL CBitmapButton::LoadBitmaps(UINT nIDBitmapResource, UINT nIDBitmapResourceSel,
                                UINT nIDBitmapResourceFocus, UINT nIDBitmapResourceDisabled) {
    return LoadBitmaps(MAKEINTRESOURCEW(nIDBitmapResource), MAKEINTRESOURCEW(nIDBitmapResourceSel),
                       MAKEINTRESOURCEW(nIDBitmapResourceFocus), MAKEINTRESOURCEW(nIDBitmapResourceDisabled));
}

BOOL CBitmapButton::AutoLoad(UINT nID, CWnd* pParent) {
    if (!SubclassDlgItem(nID, pParent)) return FALSE;
    CString name;
    GetWindowText(name);
    // Only the picture for "up" has to be there.
    LoadBitmaps(name + L"U", name + L"D", name + L"F", name + L"X");
    if (!m_bitmap.m_hObject) return FALSE;
    SizeToContent();
    return TRUE;
}

void CBitmapButton::SizeToContent() {
    BITMAP size = {};
    m_bitmap.GetBitmap(&size);
    SetWindowPos(nullptr, -1, -1, size.bmWidth, size.bmHeight,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOREDRAW | SWP_NOACTIVATE);
}

void CBitmapButton::DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct) {
    const UINT state = lpDrawItemStruct->itemState;
    CBitmap* bitmap = &m_bitmap;
    if ((state & ODS_SELECTED) && m_bitmapSel.m_hObject) {
        bitmap = &m_bitmapSel;
    } else if ((state & ODS_FOCUS) && m_bitmapFocus.m_hObject) {
        bitmap = &m_bitmapFocus;
    } else if ((state & ODS_DISABLED) && m_bitmapDisabled.m_hObject) {
        bitmap = &m_bitmapDisabled;
    }
    CDC* dc = CDC::FromHandle(lpDrawItemStruct->hDC);
    CDC picture;
    if (!picture.CreateCompatibleDC(dc)) return;
    CBitmap* previous = picture.SelectObject(bitmap);
    if (!previous) return;
    const CRect area(lpDrawItemStruct->rcItem);
    dc->BitBlt(area.left, area.top, area.Width(), area.Height(), &picture, 0, 0, SRCCOPY);
    picture.SelectObject(previous);
}
