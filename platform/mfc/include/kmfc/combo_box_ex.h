// CComboBoxEx: a combo box whose items have images and indents.
#pragma once

#include <kmfc/combo_box.h>
#include <kmfc/edit.h>
#include <kmfc/image_list.h>

/// An extended combo box. It keeps its own items, so strings are added with InsertItem and not with
/// AddString.
class KMFC_API CComboBoxEx : public CComboBox {
    DECLARE_DYNAMIC(CComboBoxEx)
public:
    CComboBoxEx() = default;
    BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) override;
    virtual BOOL CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    CImageList* SetImageList(CImageList* pImageList);
    CImageList* GetImageList() const;
    int InsertItem(const COMBOBOXEXITEM* pCBItem) { return send(CBEM_INSERTITEMW, 0, pCBItem); }
    int DeleteItem(int iIndex) { return send(CBEM_DELETEITEM, static_cast<WPARAM>(iIndex), nullptr); }
    BOOL GetItem(COMBOBOXEXITEM* pCBItem) { return send(CBEM_GETITEMW, 0, pCBItem); }
    BOOL SetItem(const COMBOBOXEXITEM* pCBItem) { return send(CBEM_SETITEMW, 0, pCBItem); }
    DWORD GetExtendedStyle() const { return static_cast<DWORD>(SendMessage(CBEM_GETEXTENDEDSTYLE)); }
    DWORD SetExtendedStyle(DWORD dwExMask, DWORD dwExStyle) {
        return static_cast<DWORD>(
            SendMessage(CBEM_SETEXTENDEDSTYLE, dwExMask, static_cast<LPARAM>(dwExStyle)));
    }
    /// Whether the user has typed into the edit field.
    BOOL HasEditChanged() { return static_cast<BOOL>(SendMessage(CBEM_HASEDITCHANGED)); }
    CEdit* GetEditCtrl();
    CComboBox* GetComboBoxCtrl();
    using CComboBox::DeleteItem;

    // Not for this control.
    int AddString(LPCTSTR) = delete;
    int InsertString(int, LPCTSTR) = delete;
    int SelectString(int, LPCTSTR) = delete;
    int FindString(int, LPCTSTR) const = delete;
    int Dir(UINT, LPCTSTR) = delete;

private:
    int send(UINT message, WPARAM wParam, const void* data) const {
        return static_cast<int>(SendMessage(message, wParam, reinterpret_cast<LPARAM>(data)));
    }
};
