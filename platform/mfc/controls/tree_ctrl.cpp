#include <afxcmn.h>

IMPLEMENT_DYNAMIC(CTreeCtrl, CWnd)

namespace {

constexpr int kFirstTextRoom = 128;  // characters tried at first; doubled until the text fits

TVITEMW make_item(HTREEITEM handle, UINT mask) {
    TVITEMW item = {};
    item.hItem = handle;
    item.mask = mask | TVIF_HANDLE;
    return item;
}

CImageList* image_list_of(LRESULT result) {
    return CImageList::FromHandle(reinterpret_cast<HIMAGELIST>(result));
}
CWnd* window_of(LRESULT result) { return CWnd::FromHandle(reinterpret_cast<HWND>(result)); }

}  // namespace

BOOL CTreeCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::Create(WC_TREEVIEWW, nullptr, dwStyle, rect, pParentWnd, nID);
}

BOOL CTreeCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::CreateEx(dwExStyle, WC_TREEVIEWW, nullptr, dwStyle, rect, pParentWnd, nID);
}

CImageList* CTreeCtrl::GetImageList(UINT nImageList) const {
    return image_list_of(SendMessage(TVM_GETIMAGELIST, nImageList));
}

CImageList* CTreeCtrl::SetImageList(CImageList* pImageList, int nImageListType) {
    return image_list_of(SendMessage(TVM_SETIMAGELIST, static_cast<WPARAM>(nImageListType),
                                     as_param(kmfc::safe_handle(pImageList))));
}

CToolTipCtrl* CTreeCtrl::GetToolTips() const {
    return static_cast<CToolTipCtrl*>(window_of(SendMessage(TVM_GETTOOLTIPS)));
}

CToolTipCtrl* CTreeCtrl::SetToolTips(CToolTipCtrl* pWndTip) {
    const auto tip = reinterpret_cast<WPARAM>(kmfc::safe_handle(pWndTip));
    return static_cast<CToolTipCtrl*>(window_of(SendMessage(TVM_SETTOOLTIPS, tip)));
}

BOOL CTreeCtrl::ItemHasChildren(HTREEITEM hItem) const {
    TVITEMW item = make_item(hItem, TVIF_CHILDREN);
    GetItem(&item);
    return item.cChildren;
}

BOOL CTreeCtrl::SetItem(HTREEITEM hItem, UINT nMask, LPCTSTR lpszItem, int nImage, int nSelectedImage,
                        UINT nState, UINT nStateMask, LPARAM lParam) {
    TVITEMW item = make_item(hItem, nMask);
    item.pszText = const_cast<LPTSTR>(lpszItem);
    item.iImage = nImage;
    item.iSelectedImage = nSelectedImage;
    item.state = nState;
    item.stateMask = nStateMask;
    item.lParam = lParam;
    return SetItem(&item);
}

CString CTreeCtrl::GetItemText(HTREEITEM hItem) const {
    CString text;
    TVITEMW item = make_item(hItem, TVIF_TEXT);
    for (int room = kFirstTextRoom;; room *= 2) {
        item.pszText = text.GetBuffer(room);
        item.cchTextMax = room;
        *item.pszText = L'\0';
        const LPTSTR buffer = item.pszText;
        GetItem(&item);
        if (item.pszText != buffer) return CString(item.pszText);
        text.ReleaseBuffer();
        if (text.GetLength() < room - 1) return text;
    }
}

BOOL CTreeCtrl::SetItemText(HTREEITEM hItem, LPCTSTR lpszItem) {
    return SetItem(hItem, TVIF_TEXT, lpszItem, 0, 0, 0, 0, 0);
}

BOOL CTreeCtrl::GetItemImage(HTREEITEM hItem, int& nImage, int& nSelectedImage) const {
    TVITEMW item = make_item(hItem, TVIF_IMAGE | TVIF_SELECTEDIMAGE);
    if (!GetItem(&item)) return FALSE;
    nImage = item.iImage;
    nSelectedImage = item.iSelectedImage;
    return TRUE;
}

BOOL CTreeCtrl::SetItemImage(HTREEITEM hItem, int nImage, int nSelectedImage) {
    return SetItem(hItem, TVIF_IMAGE | TVIF_SELECTEDIMAGE, nullptr, nImage, nSelectedImage, 0, 0, 0);
}

UINT CTreeCtrl::GetItemState(HTREEITEM hItem, UINT nStateMask) const {
    TVITEMW item = make_item(hItem, TVIF_STATE);
    item.stateMask = nStateMask;
    return GetItem(&item) ? item.state & nStateMask : 0;
}

BOOL CTreeCtrl::SetItemState(HTREEITEM hItem, UINT nState, UINT nStateMask) {
    return SetItem(hItem, TVIF_STATE, nullptr, 0, 0, nState, nStateMask, 0);
}

DWORD_PTR CTreeCtrl::GetItemData(HTREEITEM hItem) const {
    TVITEMW item = make_item(hItem, TVIF_PARAM);
    GetItem(&item);
    return static_cast<DWORD_PTR>(item.lParam);
}

BOOL CTreeCtrl::SetItemData(HTREEITEM hItem, DWORD_PTR dwData) {
    return SetItem(hItem, TVIF_PARAM, nullptr, 0, 0, 0, 0, static_cast<LPARAM>(dwData));
}

// State images count from 1: 1 is the empty box, 2 the checked one.
BOOL CTreeCtrl::GetCheck(HTREEITEM hItem) const {
    return (GetItemState(hItem, TVIS_STATEIMAGEMASK) >> 12) == 2;
}

BOOL CTreeCtrl::SetCheck(HTREEITEM hItem, BOOL fCheck) {
    return SetItemState(hItem, INDEXTOSTATEIMAGEMASK(fCheck ? 2 : 1), TVIS_STATEIMAGEMASK);
}

BOOL CTreeCtrl::GetItemRect(HTREEITEM hItem, LPRECT lpRect, BOOL bTextOnly) const {
    *reinterpret_cast<HTREEITEM*>(lpRect) = hItem;
    return static_cast<BOOL>(SendMessage(TVM_GETITEMRECT, static_cast<WPARAM>(bTextOnly), as_param(lpRect)));
}

HTREEITEM CTreeCtrl::InsertItem(UINT nMask, LPCTSTR lpszItem, int nImage, int nSelectedImage, UINT nState,
                                UINT nStateMask, LPARAM lParam, HTREEITEM hParent, HTREEITEM hInsertAfter) {
    TVINSERTSTRUCTW insert = {};
    insert.hParent = hParent;
    insert.hInsertAfter = hInsertAfter;
    insert.item.mask = nMask;
    insert.item.pszText = const_cast<LPTSTR>(lpszItem);
    insert.item.iImage = nImage;
    insert.item.iSelectedImage = nSelectedImage;
    insert.item.state = nState;
    insert.item.stateMask = nStateMask;
    insert.item.lParam = lParam;
    return InsertItem(&insert);
}

HTREEITEM CTreeCtrl::HitTest(CPoint pt, UINT* pFlags) const {
    TVHITTESTINFO info = {};
    info.pt = pt;
    HTREEITEM item = HitTest(&info);
    if (pFlags) *pFlags = info.flags;
    return item;
}

CEdit* CTreeCtrl::EditLabel(HTREEITEM hItem) {
    return static_cast<CEdit*>(window_of(SendMessage(TVM_EDITLABELW, 0, as_param(hItem))));
}

CEdit* CTreeCtrl::GetEditControl() const {
    return static_cast<CEdit*>(window_of(SendMessage(TVM_GETEDITCONTROL)));
}

CImageList* CTreeCtrl::CreateDragImage(HTREEITEM hItem) {
    return image_list_of(SendMessage(TVM_CREATEDRAGIMAGE, 0, as_param(hItem)));
}
