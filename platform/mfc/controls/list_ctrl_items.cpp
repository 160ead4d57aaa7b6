// The parts of CListCtrl that fill in or read an item.
#include <afxcmn.h>

namespace {

constexpr int kFirstTextRoom = 128;  // characters tried at first; doubled until the text fits

LVITEMW make_item(UINT mask, int item, int subitem, LPCTSTR text) {
    LVITEMW result = {};
    result.mask = mask;
    result.iItem = item;
    result.iSubItem = subitem;
    result.pszText = const_cast<LPTSTR>(text);
    return result;
}

}  // namespace

BOOL CListCtrl::SetItem(int nItem, int nSubItem, UINT nMask, LPCTSTR lpszItem, int nImage, UINT nState,
                        UINT nStateMask, LPARAM lParam) {
    return SetItem(nItem, nSubItem, nMask, lpszItem, nImage, nState, nStateMask, lParam, 0);
}

BOOL CListCtrl::SetItem(int nItem, int nSubItem, UINT nMask, LPCTSTR lpszItem, int nImage, UINT nState,
                        UINT nStateMask, LPARAM lParam, int nIndent) {
    LVITEMW item = make_item(nMask, nItem, nSubItem, lpszItem);
    item.iImage = nImage;
    item.state = nState;
    item.stateMask = nStateMask;
    item.lParam = lParam;
    item.iIndent = nIndent;
    return SetItem(&item);
}

int CListCtrl::InsertItem(int nItem, LPCTSTR lpszItem) {
    return InsertItem(LVIF_TEXT, nItem, lpszItem, 0, 0, 0, 0);
}

int CListCtrl::InsertItem(int nItem, LPCTSTR lpszItem, int nImage) {
    return InsertItem(LVIF_TEXT | LVIF_IMAGE, nItem, lpszItem, 0, 0, nImage, 0);
}

int CListCtrl::InsertItem(UINT nMask, int nItem, LPCTSTR lpszItem, UINT nState, UINT nStateMask, int nImage,
                          LPARAM lParam) {
    LVITEMW item = make_item(nMask, nItem, 0, lpszItem);
    item.state = nState;
    item.stateMask = nStateMask;
    item.iImage = nImage;
    item.lParam = lParam;
    return InsertItem(&item);
}

CString CListCtrl::GetItemText(int nItem, int nSubItem) const {
    CString text;
    for (int room = kFirstTextRoom;; room *= 2) {
        const int length = GetItemText(nItem, nSubItem, text.GetBuffer(room), room);
        text.ReleaseBuffer();
        if (length < room - 1) return text;
    }
}

int CListCtrl::GetItemText(int nItem, int nSubItem, LPTSTR lpszText, int nLen) const {
    LVITEMW item = make_item(0, nItem, nSubItem, lpszText);
    item.cchTextMax = nLen;
    if (nLen > 0) *lpszText = L'\0';
    const int length = send(LVM_GETITEMTEXTW, as_index(nItem), as_param(&item));
    // A list may answer with a text of its own instead of filling the buffer.
    if (item.pszText && item.pszText != lpszText && nLen > 0) lstrcpynW(lpszText, item.pszText, nLen);
    return length;
}

BOOL CListCtrl::SetItemText(int nItem, int nSubItem, LPCTSTR lpszText) {
    const LVITEMW item = make_item(0, nItem, nSubItem, lpszText);
    return send(LVM_SETITEMTEXTW, as_index(nItem), as_param(&item));
}

DWORD_PTR CListCtrl::GetItemData(int nItem) const {
    LVITEMW item = make_item(LVIF_PARAM, nItem, 0, nullptr);
    GetItem(&item);
    return static_cast<DWORD_PTR>(item.lParam);
}

BOOL CListCtrl::SetItemData(int nItem, DWORD_PTR dwData) {
    return SetItem(nItem, 0, LVIF_PARAM, nullptr, 0, 0, 0, static_cast<LPARAM>(dwData));
}

BOOL CListCtrl::SetItemState(int nItem, UINT nState, UINT nMask) {
    LVITEMW item = {};
    item.state = nState;
    item.stateMask = nMask;
    return SetItemState(nItem, &item);
}

// State images count from 1: 1 is the empty box, 2 the checked one.
BOOL CListCtrl::GetCheck(int nItem) const { return (GetItemState(nItem, LVIS_STATEIMAGEMASK) >> 12) == 2; }

BOOL CListCtrl::SetCheck(int nItem, BOOL fCheck) {
    return SetItemState(nItem, INDEXTOSTATEIMAGEMASK(fCheck ? 2 : 1), LVIS_STATEIMAGEMASK);
}
