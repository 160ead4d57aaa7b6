// CKtUiWhiteBlackTrueColorComboBox: picks a colour where white and black are true colours and not the index
// that turns with the background. There is no ByLayer and no ByBlock.
#pragma once

#include <ktui/pickers/true_color_combo_box.h>

class KTUI_API CKtUiWhiteBlackTrueColorComboBox : public CKtUiTrueColorComboBox {
    DECLARE_DYNAMIC(CKtUiWhiteBlackTrueColorComboBox)

public:
    CKtUiWhiteBlackTrueColorComboBox();

    /// Lists the standard colours 1 to 6, white and black.
    void OnAddItems() override;

private:
    void addFixedColor(const wchar_t* text, const OdCmColor& color);
};
