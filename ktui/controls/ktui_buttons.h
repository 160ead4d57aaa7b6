// The buttons of the application layer, and those by which a user picks in the drawing.
//
// A pick or select button does nothing at a press by itself. Its owner hears BN_CLICKED, calls
// BeginEditorCommand, lets the user pick, and calls CompleteEditorCommand.
#pragma once

#include <ktui/controls/kbui_bitmap_button.h>

/// Adds nothing to its base.
class KTUI_API CKtUiOwnerDrawButton : public CKbUiOwnerDrawButton {
    DECLARE_DYNAMIC(CKtUiOwnerDrawButton)
};

/// Adds nothing to its base.
class KTUI_API CKtUiBitmapButton : public CKbUiBitmapButton {
    DECLARE_DYNAMIC(CKtUiBitmapButton)
};

/// Adds nothing to its base.
class KTUI_API CKtUiToolButton : public CKbUiToolButton {
    DECLARE_DYNAMIC(CKtUiToolButton)
};

/// Adds nothing to its base.
class KTUI_API CKtUiBitmapStatic : public CKbUiBitmapStatic {
    DECLARE_DYNAMIC(CKtUiBitmapStatic)
};

/// Adds nothing to its base.
class KTUI_API CKtUiDropSite : public CKbUiDropSite {
    DECLARE_DYNAMIC(CKtUiDropSite)
};

/// For picking a point or a value in the drawing: AutoLoad gives it the toolkit's own picture.
class KTUI_API CKtUiPickButton : public CKbUiBitmapButton {
    DECLARE_DYNAMIC(CKtUiPickButton)

public:
    CKtUiPickButton();
};

/// For selecting objects in the drawing.
class KTUI_API CKtUiSelectButton : public CKtUiPickButton {
    DECLARE_DYNAMIC(CKtUiSelectButton)

public:
    CKtUiSelectButton();
};
