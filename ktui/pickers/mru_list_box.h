// CKtUiMRUListBox: the list under a picker. Its tips know about the image column of the combo box.
#pragma once

#include <ktui/controls/kbui_list_box.h>

class CKtUiMRUComboBox;

class KTUI_API CKtUiMRUListBox : public CKbUiListBox {
    DECLARE_DYNAMIC(CKtUiMRUListBox)

public:
    CKtUiMRUListBox();

    /// The picker that drops this list down, or null.
    CKtUiMRUComboBox* MRUComboBox() const;
    /// Width in pixels of the picker's image column; 0 without a picker.
    int ExtraWidth() const;
    /// The base's extent, with the image column added while an owner-drawn tip is asked for.
    void GetContentExtent(int index, const wchar_t* text, int& cx, int& cy) override;

protected:
    BOOL OnGetTipRect(CRect& rect) override;
};
