#include <afxcmn.h>

IMPLEMENT_DYNAMIC(CHeaderCtrl, CWnd)

BOOL CHeaderCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::Create(WC_HEADERW, nullptr, dwStyle, rect, pParentWnd, nID);
}

BOOL CHeaderCtrl::GetOrderArray(LPINT piArray, int iCount) {
    return send(HDM_GETORDERARRAY, iCount < 0 ? GetItemCount() : iCount, piArray);
}

CImageList* CHeaderCtrl::SetImageList(CImageList* pImageList) {
    const auto list = reinterpret_cast<LPARAM>(kmfc::safe_handle(pImageList));
    return CImageList::FromHandle(reinterpret_cast<HIMAGELIST>(SendMessage(HDM_SETIMAGELIST, 0, list)));
}

CImageList* CHeaderCtrl::GetImageList() const {
    return CImageList::FromHandle(reinterpret_cast<HIMAGELIST>(SendMessage(HDM_GETIMAGELIST)));
}

CImageList* CHeaderCtrl::CreateDragImage(int nIndex) {
    const LRESULT list = SendMessage(HDM_CREATEDRAGIMAGE, static_cast<WPARAM>(nIndex));
    return CImageList::FromHandle(reinterpret_cast<HIMAGELIST>(list));
}

void CHeaderCtrl::DrawItem(LPDRAWITEMSTRUCT) {}

BOOL CHeaderCtrl::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pLResult) {
    if (message != WM_DRAWITEM) return CWnd::OnChildNotify(message, wParam, lParam, pLResult);
    DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
    return TRUE;
}
