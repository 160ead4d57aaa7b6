#include <ktui/input/ktui_combo_box.h>

#include <ktui/input/ktui_edit.h>

IMPLEMENT_DYNAMIC(CKtUiComboBox, CKbUiComboBox)

CKtUiComboBox::CKtUiComboBox() = default;

CKtUiEdit* CKtUiComboBox::KtUiEditBox() const { return DYNAMIC_DOWNCAST(CKtUiEdit, GetEditBox()); }

BOOL CKtUiComboBox::Validate() {
    CKtUiEdit* edit = KtUiEditBox();
    return edit ? edit->Validate() : TRUE;
}

KTUI_ERROR_CODE CKtUiComboBox::ValidateData(CString& text) {
    CKtUiEdit* edit = KtUiEditBox();
    return edit ? edit->ValidateData(text) : kKtUiErrorNone;
}

void CKtUiComboBox::Convert() {
    if (CKtUiEdit* edit = KtUiEditBox()) edit->Convert();
}

BOOL CKtUiComboBox::ConvertData(CString& text) {
    CKtUiEdit* edit = KtUiEditBox();
    return edit ? edit->ConvertData(text) : TRUE;
}

void CKtUiComboBox::SetRange(double minimum, double maximum) {
    if (CKtUiEdit* edit = KtUiEditBox()) edit->SetRange(minimum, maximum);
}
