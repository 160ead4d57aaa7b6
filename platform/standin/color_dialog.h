// The stand-in host's colour dialog: the indexed palette to click on, ByLayer and ByBlock, a number, and for
// true colours red, green and blue. Internal to the module.
#pragma once

#include <afxwin.h>
#include <od_cm_color.h>

#include "color_palette.h"

/// What the dialog starts from and offers.
struct ColorDialogSettings {
    OdCmColor color;       ///< to start from; receives the choice
    OdCmColor layerColor;  ///< shown for ByLayer
    bool allowMeta = false;
    bool allowTrueColor = false;
    const std::uint32_t* palette = nullptr;  ///< 256 colours that the indexes are shown by
};

class CStandinColorDialog : public CDialog {
    DECLARE_DYNAMIC(CStandinColorDialog)

public:
    CStandinColorDialog(ColorDialogSettings& settings, CWnd* parent);

protected:
    BOOL OnInitDialog() override;
    void OnOK() override;

    afx_msg void OnDrawItem(int id, LPDRAWITEMSTRUCT item);
    afx_msg void OnByLayer();
    afx_msg void OnByBlock();
    afx_msg void OnIndexChange();
    afx_msg void OnRgbChange();
    DECLARE_MESSAGE_MAP()

private:
    /// Which fields the user last said the colour in.
    enum class Source { kIndex, kParts };

    /// Takes the colour from the fields of the source; answers the first field that holds none, 0 if all do.
    int takeColor();
    int takeIndex();
    int takeParts();
    /// Says what `field` takes and puts the user there.
    void refuse(int field);
    void choose(const OdCmColor& color);
    void showColor();
    void chooseIndex(int index);
    void showParts();
    void showSample();
    COLORREF shown(const OdCmColor& color) const;

    ColorDialogSettings& m_settings;
    OdCmColor m_color;
    CColorPalette m_palette;
    Source m_source = Source::kIndex;
    bool m_filling = false;  ///< the dialog itself writes to the fields
};
