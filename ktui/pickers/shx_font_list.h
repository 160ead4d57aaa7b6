// CKtUiShxFontList: a list box of the host's shape fonts or big fonts, with an icon before each name. It
// wants the styles LBS_OWNERDRAWFIXED and LBS_HASSTRINGS.
//
//     list.FillList(false);  // shape fonts, big ones among them
//     list.FillList(true);   // big fonts only
#pragma once

#include <afxwin.h>

#include <ktui/ktui_api.h>

class KTUI_API CKtUiShxFontList : public CListBox {
    DECLARE_DYNAMIC(CKtUiShxFontList)

public:
    CKtUiShxFontList();
    ~CKtUiShxFontList() override;

    /// Fills the list anew: with the big fonts, or with every font that isn't a TrueType font. Without a font
    /// list of the host the list stays as it is.
    void FillList(bool bigFonts);

    void DrawItem(LPDRAWITEMSTRUCT item) override;
    void MeasureItem(LPMEASUREITEMSTRUCT item) override;

protected:
    HICON m_shxIcon;  ///< owned
};
