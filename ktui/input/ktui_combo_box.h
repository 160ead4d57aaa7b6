// CKtUiComboBox: a combo box whose typed text is a value. Everything is done by its edit part.
#pragma once

#include <ktui/input/kbui_combo_box.h>
#include <ktui/input/value_validation.h>

class CKtUiEdit;

class KTUI_API CKtUiComboBox : public CKbUiComboBox {
    DECLARE_DYNAMIC(CKtUiComboBox)

public:
    CKtUiComboBox();

    /// The edit part if it is one of values, otherwise null.
    CKtUiEdit* KtUiEditBox() const;

    /// The edit part's Validate; TRUE without one.
    BOOL Validate();
    /// The edit part's ValidateData; kKtUiErrorNone without one.
    KTUI_ERROR_CODE ValidateData(CString& text);
    /// The edit part's Convert; nothing without one.
    void Convert();
    // Kept: TRUE without an edit part, although a text edit answers FALSE.
    BOOL ConvertData(CString& text);
    /// The edit part's SetRange; nothing without one.
    void SetRange(double minimum, double maximum);
};
