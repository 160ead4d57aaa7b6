#include <ktui/input/ktui_typed_combo_boxes.h>

#include <ktui/input/ktui_typed_edits.h>

IMPLEMENT_DYNAMIC(CKtUiAngleComboBox, CKtUiComboBox)
IMPLEMENT_DYNAMIC(CKtUiNumericComboBox, CKtUiComboBox)
IMPLEMENT_DYNAMIC(CKtUiStringComboBox, CKtUiComboBox)
IMPLEMENT_DYNAMIC(CKtUiSymbolComboBox, CKtUiComboBox)

CKtUiAngleComboBox::CKtUiAngleComboBox() { SetEditBox(new CKtUiAngleEdit, TRUE); }

CKtUiNumericComboBox::CKtUiNumericComboBox() { SetEditBox(new CKtUiNumericEdit, TRUE); }

CKtUiStringComboBox::CKtUiStringComboBox() { SetEditBox(new CKtUiStringEdit, TRUE); }

CKtUiSymbolComboBox::CKtUiSymbolComboBox() { SetEditBox(new CKtUiSymbolEdit, TRUE); }
