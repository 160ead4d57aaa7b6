#include <afxcmn.h>

IMPLEMENT_DYNAMIC(CComboBoxEx, CComboBox)

BOOL CComboBoxEx::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::Create(WC_COMBOBOXEXW, nullptr, dwStyle, rect, pParentWnd, nID);
}

BOOL CComboBoxEx::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::CreateEx(dwExStyle, WC_COMBOBOXEXW, nullptr, dwStyle, rect, pParentWnd, nID);
}

CImageList* CComboBoxEx::SetImageList(CImageList* pImageList) {
    const auto list = reinterpret_cast<LPARAM>(kmfc::safe_handle(pImageList));
    return CImageList::FromHandle(reinterpret_cast<HIMAGELIST>(SendMessage(CBEM_SETIMAGELIST, 0, list)));
}

CImageList* CComboBoxEx::GetImageList() const {
    return CImageList::FromHandle(reinterpret_cast<HIMAGELIST>(SendMessage(CBEM_GETIMAGELIST)));
}

CEdit* CComboBoxEx::GetEditCtrl() {
    return static_cast<CEdit*>(CWnd::FromHandle(reinterpret_cast<HWND>(SendMessage(CBEM_GETEDITCONTROL))));
}

CComboBox* CComboBoxEx::GetComboBoxCtrl() {
    return static_cast<CComboBox*>(
        CWnd::FromHandle(reinterpret_cast<HWND>(SendMessage(CBEM_GETCOMBOCONTROL))));
}
