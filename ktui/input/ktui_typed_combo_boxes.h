// The four combo boxes whose data type is fixed by their class: each owns an edit part of its type.
#pragma once

#include <ktui/input/ktui_combo_box.h>

/// An angle, in the drawing's angle unit.
class KTUI_API CKtUiAngleComboBox : public CKtUiComboBox {
    DECLARE_DYNAMIC(CKtUiAngleComboBox)

public:
    CKtUiAngleComboBox();
};

/// A distance or a plain number, in the drawing's linear unit.
class KTUI_API CKtUiNumericComboBox : public CKtUiComboBox {
    DECLARE_DYNAMIC(CKtUiNumericComboBox)

public:
    CKtUiNumericComboBox();
};

/// A text.
class KTUI_API CKtUiStringComboBox : public CKtUiComboBox {
    DECLARE_DYNAMIC(CKtUiStringComboBox)

public:
    CKtUiStringComboBox();
};

/// A symbol name.
class KTUI_API CKtUiSymbolComboBox : public CKtUiComboBox {
    DECLARE_DYNAMIC(CKtUiSymbolComboBox)

public:
    CKtUiSymbolComboBox();
};
