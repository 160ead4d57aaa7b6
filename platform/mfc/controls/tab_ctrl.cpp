#include <afxcmn.h>

IMPLEMENT_DYNAMIC(CTabCtrl, CWnd)

BOOL CTabCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::Create(WC_TABCONTROLW, nullptr, dwStyle, rect, pParentWnd, nID);
}

BOOL CTabCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::CreateEx(dwExStyle, WC_TABCONTROLW, nullptr, dwStyle, rect, pParentWnd, nID);
}

CImageList* CTabCtrl::GetImageList() const {
    return CImageList::FromHandle(reinterpret_cast<HIMAGELIST>(SendMessage(TCM_GETIMAGELIST)));
}

CImageList* CTabCtrl::SetImageList(CImageList* pImageList) {
    const auto list = reinterpret_cast<LPARAM>(kmfc::safe_handle(pImageList));
    return CImageList::FromHandle(reinterpret_cast<HIMAGELIST>(SendMessage(TCM_SETIMAGELIST, 0, list)));
}

DWORD CTabCtrl::GetItemState(int nItem, DWORD dwMask) const {
    TCITEMW item = {};
    item.mask = TCIF_STATE;
    item.dwStateMask = dwMask;
    return GetItem(nItem, &item) ? item.dwState & dwMask : 0;
}

BOOL CTabCtrl::SetItemState(int nItem, DWORD dwMask, DWORD dwState) {
    TCITEMW item = {};
    item.mask = TCIF_STATE;
    item.dwStateMask = dwMask;
    item.dwState = dwState;
    return SetItem(nItem, &item);
}

CSize CTabCtrl::SetItemSize(CSize size) {
    return CSize(static_cast<DWORD>(SendMessage(TCM_SETITEMSIZE, 0, MAKELPARAM(size.cx, size.cy))));
}

CToolTipCtrl* CTabCtrl::GetToolTips() const {
    return static_cast<CToolTipCtrl*>(CWnd::FromHandle(reinterpret_cast<HWND>(SendMessage(TCM_GETTOOLTIPS))));
}

void CTabCtrl::SetToolTips(CToolTipCtrl* pWndTip) {
    SendMessage(TCM_SETTOOLTIPS, reinterpret_cast<WPARAM>(kmfc::safe_handle(pWndTip)));
}

int CTabCtrl::InsertItem(int nItem, LPCTSTR lpszItem, int nImage) {
    return InsertItem(TCIF_TEXT | (nImage >= 0 ? TCIF_IMAGE : 0), nItem, lpszItem, nImage, 0);
}

int CTabCtrl::InsertItem(UINT nMask, int nItem, LPCTSTR lpszItem, int nImage, LPARAM lParam) {
    return InsertItem(nMask, nItem, lpszItem, nImage, lParam, 0, 0);
}

int CTabCtrl::InsertItem(UINT nMask, int nItem, LPCTSTR lpszItem, int nImage, LPARAM lParam, DWORD dwState,
                         DWORD dwStateMask) {
    TCITEMW item = {};
    item.mask = nMask;
    item.pszText = const_cast<LPTSTR>(lpszItem);
    item.iImage = nImage;
    item.lParam = lParam;
    item.dwState = dwState;
    item.dwStateMask = dwStateMask;
    return InsertItem(nItem, &item);
}

void CTabCtrl::DrawItem(LPDRAWITEMSTRUCT) {}

BOOL CTabCtrl::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pLResult) {
    if (message != WM_DRAWITEM) return CWnd::OnChildNotify(message, wParam, lParam, pLResult);
    DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
    return TRUE;
}
