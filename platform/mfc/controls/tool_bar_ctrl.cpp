#include <afxcmn.h>

#include <algorithm>

IMPLEMENT_DYNAMIC(CToolBarCtrl, CWnd)

BOOL CToolBarCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CreateEx(0, dwStyle, rect, pParentWnd, nID);
}

BOOL CToolBarCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    if (!CWnd::CreateEx(dwExStyle, TOOLBARCLASSNAMEW, nullptr, dwStyle, rect, pParentWnd, nID)) return FALSE;
    SetButtonStructSize(sizeof(TBBUTTON));
    return TRUE;
}

BOOL CToolBarCtrl::GetButtonInfo(int nID, TBBUTTONINFO* ptbbi) const {
    ptbbi->cbSize = sizeof *ptbbi;
    return send(TB_GETBUTTONINFOW, nID, ptbbi) != -1;
}

BOOL CToolBarCtrl::SetButtonInfo(int nID, TBBUTTONINFO* ptbbi) {
    ptbbi->cbSize = sizeof *ptbbi;
    return send(TB_SETBUTTONINFOW, nID, ptbbi);
}

int CToolBarCtrl::AddBitmap(int nNumButtons, UINT nBitmapID) {
    TBADDBITMAP bitmap = {AfxFindResourceHandle(MAKEINTRESOURCEW(nBitmapID), RT_BITMAP), nBitmapID};
    return send(TB_ADDBITMAP, nNumButtons, &bitmap);
}

int CToolBarCtrl::AddBitmap(int nNumButtons, CBitmap* pBitmap) {
    TBADDBITMAP bitmap = {nullptr, reinterpret_cast<UINT_PTR>(kmfc::safe_handle(pBitmap))};
    return bitmap.nID != 0 ? send(TB_ADDBITMAP, nNumButtons, &bitmap) : -1;
}

CImageList* CToolBarCtrl::GetPressedImageList() { return list(TB_GETPRESSEDIMAGELIST); }

CImageList* CToolBarCtrl::SetPressedImageList(int iImageID, CImageList* pImageList) {
    return CImageList::FromHandle(
        reinterpret_cast<HIMAGELIST>(SendMessage(TB_SETPRESSEDIMAGELIST, static_cast<WPARAM>(iImageID),
                                                 reinterpret_cast<LPARAM>(kmfc::safe_handle(pImageList)))));
}

int CToolBarCtrl::AddString(UINT nStringID) {
    CString text;
    if (!text.LoadString(nStringID)) return -1;
    // The list of one ends with two zeros.
    text.AppendChar(L'\0');
    return AddStrings(text);
}

int CToolBarCtrl::GetString(int nString, LPTSTR lpszString, size_t cchMaxLen) const {
    // The control counts the room in bytes, of a WORD.
    const size_t room = std::min<size_t>(cchMaxLen * sizeof(wchar_t), 0xFFFE);
    return static_cast<int>(
        SendMessage(TB_GETSTRINGW, MAKEWPARAM(room, nString), reinterpret_cast<LPARAM>(lpszString)));
}

int CToolBarCtrl::GetString(int nString, CString& str) const {
    const int length = GetString(nString, nullptr, 0);
    if (length == -1) return -1;
    GetString(nString, str.GetBufferSetLength(length), static_cast<size_t>(length) + 1);
    str.ReleaseBuffer();
    return str.GetLength();
}

CToolTipCtrl* CToolBarCtrl::GetToolTips() const {
    return static_cast<CToolTipCtrl*>(CWnd::FromHandle(reinterpret_cast<HWND>(SendMessage(TB_GETTOOLTIPS))));
}

void CToolBarCtrl::SetToolTips(CToolTipCtrl* pTip) {
    SendMessage(TB_SETTOOLTIPS, reinterpret_cast<WPARAM>(kmfc::safe_handle(pTip)));
}

BOOL CToolBarCtrl::GetColorScheme(COLORSCHEME* lpColorScheme) const {
    lpColorScheme->dwSize = sizeof *lpColorScheme;
    return send(TB_GETCOLORSCHEME, 0, lpColorScheme);
}

HRESULT CToolBarCtrl::GetDropTarget(IDropTarget** ppDropTarget) const {
    return static_cast<HRESULT>(SendMessage(TB_GETOBJECT, reinterpret_cast<WPARAM>(&IID_IDropTarget),
                                            reinterpret_cast<LPARAM>(ppDropTarget)));
}

void CToolBarCtrl::keep_state(bool save, HKEY root, LPCTSTR subKey, LPCTSTR value) {
    TBSAVEPARAMSW where = {root, subKey, value};
    send(TB_SAVERESTOREW, save, &where);
}

void CToolBarCtrl::SaveState(HKEY hKeyRoot, LPCTSTR lpszSubKey, LPCTSTR lpszValueName) {
    keep_state(true, hKeyRoot, lpszSubKey, lpszValueName);
}

void CToolBarCtrl::RestoreState(HKEY hKeyRoot, LPCTSTR lpszSubKey, LPCTSTR lpszValueName) {
    keep_state(false, hKeyRoot, lpszSubKey, lpszValueName);
}
