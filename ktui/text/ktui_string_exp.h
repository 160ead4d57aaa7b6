// CKtUiStringExp: a string that is loaded from resources and whose product macros are expanded.
#pragma once

#include <ktui/text/ktui_string.h>

class KTUI_API CKtUiStringExp : public CKtUiString {
public:
    using CKtUiString::CKtUiString;
    CKtUiStringExp() = default;
    CKtUiStringExp(const CString& text) : CKtUiString(text) {}

    // The only virtual operation: an object is never deleted through a pointer to a base.

    /// Becomes string `id` of the active resource module. FALSE if there is none, and the string stays as it
    /// is.
    virtual BOOL LoadString(unsigned id);

    /// Puts the product's names in the place of the macros "%PRODUCT%", "%PROGRAM%" and their like, as the
    /// host's product information tells them at this moment. "%PROGRAM%", the file name of the process, is
    /// left alone at the very start of the string.
    void ReplaceProductMacroStrings();
};
