#include <ktui/controls/ktui_buttons.h>

IMPLEMENT_DYNAMIC(CKtUiOwnerDrawButton, CKbUiOwnerDrawButton)
IMPLEMENT_DYNAMIC(CKtUiBitmapButton, CKbUiBitmapButton)
IMPLEMENT_DYNAMIC(CKtUiToolButton, CKbUiToolButton)
IMPLEMENT_DYNAMIC(CKtUiBitmapStatic, CKbUiBitmapStatic)
IMPLEMENT_DYNAMIC(CKtUiDropSite, CKbUiDropSite)
IMPLEMENT_DYNAMIC(CKtUiPickButton, CKbUiBitmapButton)
IMPLEMENT_DYNAMIC(CKtUiSelectButton, CKtUiPickButton)

CKtUiPickButton::CKtUiPickButton() { m_bitmapName = L"PICK"; }

CKtUiSelectButton::CKtUiSelectButton() { m_bitmapName = L"PICKSET"; }
