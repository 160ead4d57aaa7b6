// The two true colour pickers whose background is fixed: paper, and pure white and black.
#include <ktui/pickers/page_setup_color_combo_box.h>
#include <ktui/pickers/white_black_color_combo_box.h>

#include <ktut.h>

#include "picker_fixture.h"
#include "working_drawing.h"

using ui_test::Canvas;
using ui_test::InHolder;
using ui_test::WorkingDrawing;

namespace {

using Cargos = std::vector<__int64>;
using Page = InHolder<CKtUiTrueColorComboBoxForPagesetup>;
using WhiteBlack = InHolder<CKtUiWhiteBlackTrueColorComboBox>;

constexpr COLORREF kUntouched = RGB(200, 100, 50);

OdCmColor Rgb(int red, int green, int blue) {
    OdCmColor color;
    color.setRGB(static_cast<std::uint8_t>(red), static_cast<std::uint8_t>(green),
                 static_cast<std::uint8_t>(blue));
    return color;
}

OdCmColor Indexed(int index) {
    OdCmColor color;
    color.setColorIndex(index);
    return color;
}

/// What the page set-up picker makes of `answer`, given by the dialog.
OdCmColor Settled(Page& in, const OdCmColor& answer) {
    in.host.onTrueColorDialog = [&](OdCmColor& color, bool, const OdCmColor&, const std::uint32_t*) {
        color = answer;
        return true;
    };
    OdCmColor color;
    EXPECT_EQ(in.picker.GetOtherColor(color, OdCmColor(), 0), 1);
    return color;
}

}  // namespace

TEST(PageSetupColours, ListHasNoByLayerAndSeventhIsBlack) {
    Page in;
    EXPECT_EQ(in.picker.GetUseByLayer(), 0);
    EXPECT_EQ(in.picker.GetUseByBlock(), 0);
    EXPECT_EQ(in.picker.GetUseOther(), -1);
    EXPECT_EQ(in.cargos(), (Cargos{2, 3, 4, 5, 6, 7, 8}));
    CString black;
    black.LoadString(54184);
    EXPECT_EQ(in.texts().back(), black.GetString());
    EXPECT_EQ(in.picker.getColorByCargo(0), RGB(255, 255, 255)) << "entry 0 is white";
}

TEST(PageSetupColours, SeventhIndexIsThatOfTheLightPaletteUnlessOneWasSet) {
    Page in;
    EXPECT_EQ(in.picker.getColorData(Indexed(7)), odcmAcadLightPalette()[7]);
    EXPECT_TRUE(in.host.askedColors.empty());
    std::vector<BYTE> memory(sizeof(LOGPALETTE) + 256 * sizeof(PALETTEENTRY));
    auto* palette = reinterpret_cast<LOGPALETTE*>(memory.data());
    palette->palPalEntry[7] = {10, 20, 30, 0};
    in.picker.SetLogPalette(palette);
    EXPECT_EQ(in.picker.getColorData(Indexed(7)), RGB(10, 20, 30));
    EXPECT_EQ(in.picker.LookupColor(256, palette), in.host.colorOf(256));
    EXPECT_EQ(in.picker.LookupColor(255, nullptr), odcmAcadLightPalette()[255]);
    EXPECT_EQ(in.picker.LookupColor(256, nullptr), 0u);
    EXPECT_EQ(in.picker.LookupColor(-1, nullptr), 0u);
}

TEST(PageSetupColours, DialogGetsTheLightPalette) {
    Page in;
    const std::uint32_t* given = nullptr;
    in.host.onTrueColorDialog = [&](OdCmColor&, bool, const OdCmColor&, const std::uint32_t* palette) {
        given = palette;
        return false;
    };
    OdCmColor color;
    EXPECT_EQ(in.picker.GetOtherColor(color, OdCmColor(), 0), 0);
    EXPECT_EQ(given, odcmAcadLightPalette());
    in.host.hasUiHost = false;
    EXPECT_EQ(in.picker.GetOtherColor(color, OdCmColor(), 0), 0);
}

TEST(PageSetupColours, ColourOfThePaletteComesBackAsItsIndex) {
    Page in;
    const std::uint32_t red = odcmAcadLightPalette()[1];
    const OdCmColor color = Settled(in, Rgb(GetRValue(red), GetGValue(red), GetBValue(red)));
    EXPECT_TRUE(color.isByACI());
    EXPECT_EQ(odcmAcadLightPalette()[color.colorIndex()], red);
}

TEST(PageSetupColours, OtherColourLosesItsNameOnly) {
    Page in;
    OdCmColor named = Rgb(13, 57, 201);
    named.setNames(L"PANTONE 1", L"PANTONE");
    const OdCmColor plain = Settled(in, named);
    EXPECT_TRUE(plain.isByColor());
    EXPECT_FALSE(plain.hasName());
    EXPECT_EQ(plain, Rgb(13, 57, 201));
    EXPECT_EQ(Settled(in, Rgb(13, 57, 201)), Rgb(13, 57, 201));
    EXPECT_EQ(Settled(in, Indexed(42)), Indexed(42));
}

TEST(PageSetupColours, NamedColourOfThePaletteBecomesItsIndexToo) {
    Page in;
    const std::uint32_t blue = odcmAcadLightPalette()[5];
    OdCmColor named = Rgb(GetRValue(blue), GetGValue(blue), GetBValue(blue));
    named.setNames(L"PANTONE 2", L"PANTONE");
    const OdCmColor color = Settled(in, named);
    EXPECT_TRUE(color.isByACI());
    EXPECT_FALSE(color.hasName());
}

TEST(PageSetupColours, AnIndexStaysWhateverItsColourIs) {
    Page in;
    for (int index = 1; index <= 255; ++index)
        EXPECT_EQ(Settled(in, Indexed(index)), Indexed(index)) << index;
}

TEST(PageSetupColours, DialogGetsTheColourTheLayersAndWhetherMetaIsAllowed) {
    Page in;
    std::vector<bool> metas;
    in.host.onTrueColorDialog = [&](OdCmColor& color, bool allowMeta, const OdCmColor& layer,
                                    const std::uint32_t*) {
        EXPECT_EQ(color, Rgb(1, 2, 3));
        EXPECT_EQ(layer, Indexed(5));
        metas.push_back(allowMeta);
        return false;
    };
    OdCmColor color = Rgb(1, 2, 3);
    in.picker.GetOtherColor(color, Indexed(5), -1);
    in.picker.GetOtherColor(color, Indexed(5), 0);
    EXPECT_EQ(metas, (std::vector<bool>{true, false}));
}

TEST(PageSetupColours, ColoursOfTheListAreThoseOfTheLightPalette) {
    Page in;
    for (int cargo = 2; cargo <= 8; ++cargo)
        EXPECT_EQ(in.picker.getColorByCargo(cargo), odcmAcadLightPalette()[cargo - 1]) << cargo;
    EXPECT_TRUE(in.host.askedColors.empty());
}

TEST(PageSetupColours, SwatchOfEntryZeroIsNotPaintedAtAll) {
    Page in;
    Canvas canvas(16, 16, kUntouched);
    CRect rect(0, 0, 16, 16);
    in.picker.DrawItemImage(canvas.dc, rect, 0);
    EXPECT_EQ(canvas.dc.GetPixel(2, 2), kUntouched);
    EXPECT_EQ(canvas.dc.GetPixel(8, 8), kUntouched);
}

TEST(PageSetupColours, OtherSwatchesAreSolid) {
    Page in;
    Canvas canvas(16, 16, kUntouched);
    CRect rect(0, 0, 16, 16);
    in.picker.DrawItemImage(canvas.dc, rect, 8);
    EXPECT_EQ(canvas.dc.GetPixel(4, 10), odcmAcadLightPalette()[7]) << "no diagonal on paper";
    in.picker.DrawItemImage(canvas.dc, rect, 2);
    EXPECT_EQ(canvas.dc.GetPixel(8, 8), odcmAcadLightPalette()[1]);
    in.picker.DrawItemImage(canvas.dc, rect, 24);
    EXPECT_EQ(canvas.dc.GetPixel(8, 8), RGB(0, 0, 0)) << "a free entry is black";
    in.picker.DrawItemImage(canvas.dc, rect, -1);
    EXPECT_EQ(canvas.dc.GetPixel(8, 8), RGB(0, 0, 0));
    in.picker.DrawItemImage(canvas.dc, rect, kCargoOther);
    EXPECT_EQ(canvas.dc.GetPixel(3, 3), odcmAcadLightPalette()[18]);
}

TEST(WhiteBlackColours, ListEndsWithWhiteThenBlack) {
    WhiteBlack in;
    EXPECT_EQ(in.picker.GetUseByLayer(), 0);
    EXPECT_EQ(in.cargos(), (Cargos{2, 3, 4, 5, 6, 7, 10, 9}));
    EXPECT_EQ(in.picker.getColorByCargo(10), RGB(255, 255, 255));
    EXPECT_EQ(in.picker.getColorByCargo(9), RGB(0, 0, 0));
    EXPECT_EQ(in.picker.getColorByCargo(8), 0u);
    EXPECT_EQ(in.texts()[6], ktutColorToStr(static_cast<short>(7)).c_str());
    CString black;
    black.LoadString(54184);
    EXPECT_EQ(in.texts()[7], black.GetString());
}

TEST(WhiteBlackColours, WhiteIsATrueColour) {
    WhiteBlack in;
    in.picker.SetCurSel(6);
    OdCmColor color;
    in.picker.GetCurrentItemColor(color);
    EXPECT_TRUE(color.isByColor());
    EXPECT_EQ(color, Rgb(255, 255, 255));
    EXPECT_EQ(in.picker.FindItemByColor(Indexed(7)), -1) << "the index that turns isn't offered";
}

TEST(WhiteBlackColours, AddedColourGoesToTheNinthPlaceAtMost) {
    WhiteBlack in;
    EXPECT_EQ(in.picker.AddColorToMRU(Rgb(1, 2, 3)), 8);
    EXPECT_EQ(in.picker.AddColorToMRU(Rgb(4, 5, 6)), 9);
    EXPECT_EQ(in.picker.AddColorToMRU(Rgb(7, 8, 9)), 9);
    EXPECT_EQ(in.cargos(), (Cargos{2, 3, 4, 5, 6, 7, 13, 12, 11, 9, 10}));
}

TEST(WhiteBlackColours, SwatchesAreThoseOfTheTrueColourPicker) {
    WhiteBlack in;
    Canvas canvas(16, 16, kUntouched);
    CRect rect(0, 0, 16, 16);
    in.picker.DrawItemImage(canvas.dc, rect, 10);
    EXPECT_EQ(canvas.dc.GetPixel(8, 8), RGB(255, 255, 255));
    in.picker.DrawItemImage(canvas.dc, rect, 9);
    EXPECT_EQ(canvas.dc.GetPixel(8, 8), RGB(0, 0, 0));
}
