// CKtUiTrueColorComboBoxForPagesetup: picks a colour for a plotted page. The background is paper, so the
// colours are those of the light palette and colour index 7 is black; there is no ByLayer and no ByBlock.
#pragma once

#include <ktui/pickers/true_color_combo_box.h>

class KTUI_API CKtUiTrueColorComboBoxForPagesetup : public CKtUiTrueColorComboBox {
    DECLARE_DYNAMIC(CKtUiTrueColorComboBoxForPagesetup)

public:
    CKtUiTrueColorComboBoxForPagesetup();

    /// The base's dialog on the light palette. A true colour that the palette holds exactly comes back as its
    /// index; the name of any other is dropped.
    int GetOtherColor(OdCmColor& color, const OdCmColor& layerColor, int allowMeta) override;
    /// Colour of `index` in `palette`, or in the light palette without one; 0 for an index outside it.
    DWORD LookupColor(int index, LOGPALETTE* palette) override;

    void DrawItemImage(CDC& dc, CRect& rect, __int64 cargo) override;
    void OnAddItems() override;
};
