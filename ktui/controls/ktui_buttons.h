// The buttons under the application layer's name.
#pragma once

#include <ktui/controls/kbui_owner_draw_button.h>

/// Adds nothing to its base.
class KTUI_API CKtUiOwnerDrawButton : public CKbUiOwnerDrawButton {
    DECLARE_DYNAMIC(CKtUiOwnerDrawButton)
};
