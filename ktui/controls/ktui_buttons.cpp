#include <ktui/controls/ktui_buttons.h>

IMPLEMENT_DYNAMIC(CKtUiOwnerDrawButton, CKbUiOwnerDrawButton)
