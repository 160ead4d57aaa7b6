#include <ktui/pickers/page_setup_color_combo_box.h>

#include <kh_system.h>
#include <ktdsres/resource_ids.h>
#include <ktui/host/string_resources.h>
#include <ktui/pickers/palette_lookup.h>
#include <ktui/pickers/swatch_painter.h>

namespace {

constexpr int kPaletteSize = 256;

/// What a colour from the dialog becomes: an index if the palette holds it, otherwise a colour without a
/// name.
void SettleOnPalette(OdCmColor& color, const std::uint32_t* palette) {
    const COLORREF rgb = RGB(color.red(), color.green(), color.blue());
    const int index = odcmLookupACI(rgb, palette);
    OdCmColor plain;
    if (odcmLookupRGB(index, palette) == rgb)
        plain.setColorIndex(index);
    else if (color.hasName())
        plain.setRGB(color.red(), color.green(), color.blue());
    else
        return;
    color = plain;
}

}  // namespace

IMPLEMENT_DYNAMIC(CKtUiTrueColorComboBoxForPagesetup, CKtUiTrueColorComboBox)

CKtUiTrueColorComboBoxForPagesetup::CKtUiTrueColorComboBoxForPagesetup() {
    m_mruFlags &= ~(kUseOption1 | kUseOption2);
}

int CKtUiTrueColorComboBoxForPagesetup::GetOtherColor(OdCmColor& color, const OdCmColor& layerColor,
                                                      int allowMeta) {
    CKhUiHost* host = CKhSystem::instance()->uiHost();
    const std::uint32_t* palette = odcmAcadLightPalette();
    if (!host || !host->showTrueColorDialog(color, allowMeta != 0, layerColor, palette)) return 0;
    if (!color.isByACI()) SettleOnPalette(color, palette);
    return 1;
}

DWORD CKtUiTrueColorComboBoxForPagesetup::LookupColor(int index, LOGPALETTE* palette) {
    COLORREF color = 0;
    if (LookupInPalette(index, palette, color)) return color;
    if (palette) return LookupAtHost(index);
    const std::uint32_t* light = odcmAcadLightPalette();
    return light && static_cast<unsigned>(index) < kPaletteSize ? light[index] : 0;
}

void CKtUiTrueColorComboBoxForPagesetup::OnAddItems() {
    initKtCmColorTable();
    OdCmColor white;
    white.setRGB(255, 255, 255);
    setEntry(kByLayerEntry, white);
    addStandardColors(kForegroundEntry - 1);
    AddItemToList(LoadToolkitString(IDS_BLACK, L"黑").GetString(), -1, kForegroundEntry);
}

void CKtUiTrueColorComboBoxForPagesetup::DrawItemImage(CDC& dc, CRect& rect, __int64 cargo) {
    if (cargo == kByLayerEntry) return;
    SwatchPainter swatch(dc, rect);
    if (cargo == kCargoOther)
        swatch.fillRamp([this](int index) { return GetColorFromIndex(index); });
    else if (const OdCmColor* entry = entryAt(cargo))
        swatch.fillSolid(getColorData(*entry));
    else
        swatch.fillSolid(RGB(0, 0, 0));
}
