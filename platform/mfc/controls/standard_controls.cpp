// The controls of USER: creation, owner draw, and what needs more than a message.
#include <afxwin.h>

#include <algorithm>

IMPLEMENT_DYNAMIC(CStatic, CWnd)
IMPLEMENT_DYNAMIC(CButton, CWnd)
IMPLEMENT_DYNAMIC(CEdit, CWnd)
IMPLEMENT_DYNAMIC(CListBox, CWnd)
IMPLEMENT_DYNAMIC(CComboBox, CWnd)
IMPLEMENT_DYNAMIC(CScrollBar, CWnd)

BOOL CStatic::Create(LPCTSTR lpszText, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::Create(WC_STATICW, lpszText, dwStyle, rect, pParentWnd, nID);
}

void CStatic::DrawItem(LPDRAWITEMSTRUCT) {}

BOOL CStatic::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pLResult) {
    if (message != WM_DRAWITEM) return CWnd::OnChildNotify(message, wParam, lParam, pLResult);
    DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
    return TRUE;
}

BOOL CButton::Create(LPCTSTR lpszCaption, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::Create(WC_BUTTONW, lpszCaption, dwStyle, rect, pParentWnd, nID);
}

void CButton::DrawItem(LPDRAWITEMSTRUCT) {}

BOOL CButton::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pLResult) {
    if (message != WM_DRAWITEM) return CWnd::OnChildNotify(message, wParam, lParam, pLResult);
    DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
    return TRUE;
}

BOOL CEdit::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::Create(WC_EDITW, nullptr, dwStyle, rect, pParentWnd, nID);
}

void CEdit::SetSel(int nStartChar, int nEndChar, BOOL bNoScroll) {
    SendMessage(EM_SETSEL, static_cast<WPARAM>(nStartChar), nEndChar);
    if (!bNoScroll) SendMessage(EM_SCROLLCARET);
}

int CEdit::GetLine(int nIndex, LPTSTR lpszBuffer, int nMaxLength) const {
    *reinterpret_cast<WORD*>(lpszBuffer) = static_cast<WORD>(nMaxLength);
    return GetLine(nIndex, lpszBuffer);
}

BOOL CListBox::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::Create(WC_LISTBOXW, nullptr, dwStyle, rect, pParentWnd, nID);
}

UINT CListBox::ItemFromPoint(CPoint pt, BOOL& bOutside) const {
    const DWORD found = static_cast<DWORD>(SendMessage(LB_ITEMFROMPOINT, 0, MAKELPARAM(pt.x, pt.y)));
    bOutside = HIWORD(found) != 0;
    return LOWORD(found);
}

int CListBox::SelItemRange(BOOL bSelect, int nFirstItem, int nLastItem) {
    // The message selects when the first item is the smaller one, and else takes the selection away.
    const int low = std::min(nFirstItem, nLastItem);
    const int high = std::max(nFirstItem, nLastItem);
    if (low == high) return SetSel(low, bSelect);
    return send(LB_SELITEMRANGEEX, as_index(bSelect ? low : high), bSelect ? high : low);
}

void CListBox::GetText(int nIndex, CString& rString) const {
    const int length = GetTextLen(nIndex);
    if (length == LB_ERR) AfxThrowInvalidArgException();
    GetText(nIndex, rString.GetBufferSetLength(length));
    rString.ReleaseBuffer();
}

void CListBox::DrawItem(LPDRAWITEMSTRUCT) {}
void CListBox::MeasureItem(LPMEASUREITEMSTRUCT) {}
int CListBox::CompareItem(LPCOMPAREITEMSTRUCT) { return 0; }
void CListBox::DeleteItem(LPDELETEITEMSTRUCT) {}
int CListBox::VKeyToItem(UINT, UINT) { return static_cast<int>(Default()); }
int CListBox::CharToItem(UINT, UINT) { return static_cast<int>(Default()); }

BOOL CListBox::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pLResult) {
    switch (message) {
        case WM_DRAWITEM: DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam)); return TRUE;
        case WM_MEASUREITEM: MeasureItem(reinterpret_cast<LPMEASUREITEMSTRUCT>(lParam)); return TRUE;
        case WM_COMPAREITEM:
            *pLResult = CompareItem(reinterpret_cast<LPCOMPAREITEMSTRUCT>(lParam));
            return TRUE;
        case WM_DELETEITEM: DeleteItem(reinterpret_cast<LPDELETEITEMSTRUCT>(lParam)); return TRUE;
        case WM_VKEYTOITEM: *pLResult = VKeyToItem(LOWORD(wParam), HIWORD(wParam)); return TRUE;
        case WM_CHARTOITEM: *pLResult = CharToItem(LOWORD(wParam), HIWORD(wParam)); return TRUE;
        default: return CWnd::OnChildNotify(message, wParam, lParam, pLResult);
    }
}

BOOL CComboBox::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::Create(WC_COMBOBOXW, nullptr, dwStyle, rect, pParentWnd, nID);
}

BOOL CComboBox::GetComboBoxInfo(PCOMBOBOXINFO pcbi) const {
    pcbi->cbSize = sizeof *pcbi;
    return ::GetComboBoxInfo(m_hWnd, pcbi);
}

void CComboBox::GetLBText(int nIndex, CString& rString) const {
    const int length = GetLBTextLen(nIndex);
    if (length == CB_ERR) AfxThrowInvalidArgException();
    GetLBText(nIndex, rString.GetBufferSetLength(length));
    rString.ReleaseBuffer();
}

void CComboBox::DrawItem(LPDRAWITEMSTRUCT) {}
void CComboBox::MeasureItem(LPMEASUREITEMSTRUCT) {}
int CComboBox::CompareItem(LPCOMPAREITEMSTRUCT) { return 0; }
void CComboBox::DeleteItem(LPDELETEITEMSTRUCT) {}

BOOL CComboBox::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pLResult) {
    switch (message) {
        case WM_DRAWITEM: DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam)); return TRUE;
        case WM_MEASUREITEM: MeasureItem(reinterpret_cast<LPMEASUREITEMSTRUCT>(lParam)); return TRUE;
        case WM_COMPAREITEM:
            *pLResult = CompareItem(reinterpret_cast<LPCOMPAREITEMSTRUCT>(lParam));
            return TRUE;
        case WM_DELETEITEM: DeleteItem(reinterpret_cast<LPDELETEITEMSTRUCT>(lParam)); return TRUE;
        default: return CWnd::OnChildNotify(message, wParam, lParam, pLResult);
    }
}

BOOL CScrollBar::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::Create(WC_SCROLLBARW, nullptr, dwStyle, rect, pParentWnd, nID);
}

int CScrollBar::GetScrollLimit() {
    int first = 0, last = 0;
    GetScrollRange(&first, &last);
    SCROLLINFO info = {};
    if (GetScrollInfo(&info, SIF_PAGE)) last -= std::max(static_cast<int>(info.nPage) - 1, 0);
    return last;
}
