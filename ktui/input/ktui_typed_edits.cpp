#include <ktui/input/ktui_typed_edits.h>

IMPLEMENT_DYNAMIC(CKtUiAngleEdit, CKtUiEdit)
IMPLEMENT_DYNAMIC(CKtUiNumericEdit, CKtUiEdit)
IMPLEMENT_DYNAMIC(CKtUiStringEdit, CKtUiEdit)
IMPLEMENT_DYNAMIC(CKtUiSymbolEdit, CKtUiEdit)

CKtUiAngleEdit::CKtUiAngleEdit() { storeTypedMask(m_styleMask, kKtUiTextFamily, kKtUiEditAngle); }

void CKtUiAngleEdit::SetStyleMask(DWORD mask) { storeTypedMask(mask, kKtUiTextFamily, kKtUiEditAngle); }

CKtUiNumericEdit::CKtUiNumericEdit() { storeTypedMask(m_styleMask, kKtUiTextFamily, kKtUiEditNumeric); }

void CKtUiNumericEdit::SetStyleMask(DWORD mask) { storeTypedMask(mask, kKtUiTextFamily, kKtUiEditNumeric); }

CKtUiStringEdit::CKtUiStringEdit() { storeTypedMask(m_styleMask, kKtUiNumberFamily, kKtUiEditString); }

void CKtUiStringEdit::SetStyleMask(DWORD mask) { storeTypedMask(mask, kKtUiNumberFamily, kKtUiEditString); }

CKtUiSymbolEdit::CKtUiSymbolEdit() { storeTypedMask(m_styleMask, kKtUiNumberFamily, kKtUiEditSymbol); }

void CKtUiSymbolEdit::SetStyleMask(DWORD mask) { storeTypedMask(mask, kKtUiNumberFamily, kKtUiEditSymbol); }
