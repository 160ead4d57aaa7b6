// The four edit controls whose data type is fixed by their class.
//
// Each keeps its own type bit set whatever mask it is given, and tells its programmer of a mask of the other
// family. A second bit of the same family is no contradiction: an angle edit that is also given the numeric
// bit parses a distance.
#pragma once

#include <ktui/input/ktui_edit.h>

/// An angle, in the drawing's angle unit.
class KTUI_API CKtUiAngleEdit : public CKtUiEdit {
    DECLARE_DYNAMIC(CKtUiAngleEdit)

public:
    CKtUiAngleEdit();
    void SetStyleMask(DWORD mask) override;
};

/// A distance or a plain number, in the drawing's linear unit.
class KTUI_API CKtUiNumericEdit : public CKtUiEdit {
    DECLARE_DYNAMIC(CKtUiNumericEdit)

public:
    CKtUiNumericEdit();
    void SetStyleMask(DWORD mask) override;
};

/// A text.
class KTUI_API CKtUiStringEdit : public CKtUiEdit {
    DECLARE_DYNAMIC(CKtUiStringEdit)

public:
    CKtUiStringEdit();
    void SetStyleMask(DWORD mask) override;
};

/// A symbol name. Its syntax counts only together with kKtUiEditNoBlank.
class KTUI_API CKtUiSymbolEdit : public CKtUiEdit {
    DECLARE_DYNAMIC(CKtUiSymbolEdit)

public:
    CKtUiSymbolEdit();
    void SetStyleMask(DWORD mask) override;
};
