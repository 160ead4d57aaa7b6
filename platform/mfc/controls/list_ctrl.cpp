#include <afxcmn.h>

IMPLEMENT_DYNAMIC(CListCtrl, CWnd)

BOOL CListCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::Create(WC_LISTVIEWW, nullptr, dwStyle, rect, pParentWnd, nID);
}

BOOL CListCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::CreateEx(dwExStyle, WC_LISTVIEWW, nullptr, dwStyle, rect, pParentWnd, nID);
}

CImageList* CListCtrl::GetImageList(int nImageList) const {
    const LRESULT list = SendMessage(LVM_GETIMAGELIST, as_index(nImageList));
    return CImageList::FromHandle(reinterpret_cast<HIMAGELIST>(list));
}

CImageList* CListCtrl::SetImageList(CImageList* pImageList, int nImageListType) {
    const LRESULT list =
        SendMessage(LVM_SETIMAGELIST, as_index(nImageListType), as_param(kmfc::safe_handle(pImageList)));
    return CImageList::FromHandle(reinterpret_cast<HIMAGELIST>(list));
}

CSize CListCtrl::SetIconSpacing(int cx, int cy) {
    return CSize(static_cast<DWORD>(SendMessage(LVM_SETICONSPACING, 0, MAKELPARAM(cx, cy))));
}

CSize CListCtrl::ApproximateViewRect(CSize sz, int iCount) const {
    return CSize(
        static_cast<DWORD>(SendMessage(LVM_APPROXIMATEVIEWRECT, as_index(iCount), MAKELPARAM(sz.cx, sz.cy))));
}

BOOL CListCtrl::GetItemRect(int nItem, LPRECT lpRect, UINT nCode) const {
    lpRect->left = static_cast<LONG>(nCode);
    return send(LVM_GETITEMRECT, as_index(nItem), as_param(lpRect));
}

BOOL CListCtrl::GetSubItemRect(int iItem, int iSubItem, int nArea, CRect& ref) const {
    RECT rect = {nArea, iSubItem, 0, 0};
    if (!send(LVM_GETSUBITEMRECT, as_index(iItem), as_param(&rect))) return FALSE;
    ref = rect;
    return TRUE;
}

int CListCtrl::HitTest(CPoint pt, UINT* pFlags) const {
    LVHITTESTINFO info = {};
    info.pt = pt;
    const int item = HitTest(&info);
    if (pFlags) *pFlags = info.flags;
    return item;
}

// A position is the item's index plus one, so that the first item's isn't null.
POSITION CListCtrl::GetFirstSelectedItemPosition() const {
    return reinterpret_cast<POSITION>(static_cast<INT_PTR>(GetNextItem(-1, LVNI_SELECTED) + 1));
}

int CListCtrl::GetNextSelectedItem(POSITION& pos) const {
    const int item = static_cast<int>(reinterpret_cast<INT_PTR>(pos)) - 1;
    pos = reinterpret_cast<POSITION>(static_cast<INT_PTR>(GetNextItem(item, LVNI_SELECTED) + 1));
    return item;
}

int CListCtrl::InsertColumn(int nCol, LPCTSTR lpszColumnHeading, int nFormat, int nWidth, int nSubItem) {
    LVCOLUMNW column = {};
    column.mask = LVCF_TEXT | LVCF_FMT;
    column.pszText = const_cast<LPTSTR>(lpszColumnHeading);
    column.fmt = nFormat;
    if (nWidth != -1) {
        column.mask |= LVCF_WIDTH;
        column.cx = nWidth;
    }
    if (nSubItem != -1) {
        column.mask |= LVCF_SUBITEM;
        column.iSubItem = nSubItem;
    }
    return InsertColumn(nCol, &column);
}

BOOL CListCtrl::GetColumnOrderArray(LPINT piArray, int iCount) {
    if (iCount == -1) {
        CHeaderCtrl* header = GetHeaderCtrl();
        if (!header) return FALSE;
        iCount = header->GetItemCount();
    }
    return send(LVM_GETCOLUMNORDERARRAY, as_index(iCount), as_param(piArray));
}

CHeaderCtrl* CListCtrl::GetHeaderCtrl() const {
    return static_cast<CHeaderCtrl*>(CWnd::FromHandle(reinterpret_cast<HWND>(SendMessage(LVM_GETHEADER))));
}

CEdit* CListCtrl::EditLabel(int nItem) {
    return static_cast<CEdit*>(
        CWnd::FromHandle(reinterpret_cast<HWND>(SendMessage(LVM_EDITLABELW, as_index(nItem)))));
}

CEdit* CListCtrl::GetEditControl() const {
    return static_cast<CEdit*>(CWnd::FromHandle(reinterpret_cast<HWND>(SendMessage(LVM_GETEDITCONTROL))));
}

// The list is the caller's, who deletes it.
CImageList* CListCtrl::CreateDragImage(int nItem, LPPOINT lpPoint) {
    const auto images =
        reinterpret_cast<HIMAGELIST>(SendMessage(LVM_CREATEDRAGIMAGE, as_index(nItem), as_param(lpPoint)));
    if (images == nullptr) return nullptr;
    auto* const list = new CImageList;
    list->Attach(images);
    return list;
}

CToolTipCtrl* CListCtrl::GetToolTips() const {
    return static_cast<CToolTipCtrl*>(CWnd::FromHandle(reinterpret_cast<HWND>(SendMessage(LVM_GETTOOLTIPS))));
}

CToolTipCtrl* CListCtrl::SetToolTips(CToolTipCtrl* pWndTip) {
    const LRESULT previous =
        SendMessage(LVM_SETTOOLTIPS, reinterpret_cast<WPARAM>(kmfc::safe_handle(pWndTip)));
    return static_cast<CToolTipCtrl*>(CWnd::FromHandle(reinterpret_cast<HWND>(previous)));
}

void CListCtrl::DrawItem(LPDRAWITEMSTRUCT) {}

BOOL CListCtrl::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pLResult) {
    if (message != WM_DRAWITEM) return CWnd::OnChildNotify(message, wParam, lParam, pLResult);
    DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
    return TRUE;
}
