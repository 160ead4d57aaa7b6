#include <ktui/pickers/true_color_combo_box.h>

#include <ktut.h>

#include "picker_fixture.h"
#include "working_drawing.h"

using ui_test::Canvas;
using ui_test::InHolder;
using ui_test::WorkingDrawing;

namespace {

using Cargos = std::vector<__int64>;

constexpr int kAddedCapacity = 16;

class Picker : public CKtUiTrueColorComboBox {
public:
    int viewportOverride = 0;
    int GetCurrentLayerVpOverride() override { return viewportOverride; }
    const MruStore& store() const { return m_mru; }
    bool hasEntry(int entry) const { return entryAt(entry) != nullptr; }
};

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

COLORREF CentreOfSwatch(CKtUiTrueColorComboBox& picker, __int64 cargo) {
    Canvas canvas(16, 16, RGB(200, 100, 50));
    CRect rect(0, 0, 16, 16);
    picker.DrawItemImage(canvas.dc, rect, cargo);
    return canvas.dc.GetPixel(8, 8);
}

/// Adds `count` distinct true colours; the first has a red of 1.
void AddColors(Picker& picker, int count) {
    for (int i = 1; i <= count; ++i) picker.AddColorToMRU(Rgb(i, 0, 0));
}

}  // namespace

TEST(TrueColorPicker, ListsTheFixedEntriesOfTheTable) {
    InHolder<Picker> in;
    EXPECT_EQ(in.cargos(), (Cargos{0, 1, 2, 3, 4, 5, 6, 7, 8}));
    EXPECT_EQ(in.texts()[2], ktutColorToStr(static_cast<short>(1)).c_str());
    EXPECT_EQ(in.texts()[8], ktutColorToStr(static_cast<short>(7)).c_str());
}

TEST(TrueColorPicker, NewColoursStandRightBehindTheStandardOnes) {
    InHolder<Picker> in;
    EXPECT_EQ(in.picker.AddColorToMRU(Rgb(1, 0, 0)), 9);
    EXPECT_EQ(in.picker.AddColorToMRU(Rgb(2, 0, 0)), 9);
    EXPECT_EQ(in.cargos(), (Cargos{0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10}));
    EXPECT_EQ(in.texts()[9], ktutColorToStr(Rgb(2, 0, 0)).c_str());
    EXPECT_EQ(in.picker.FindItemByColor(Rgb(1, 0, 0)), 10);
    EXPECT_EQ(in.picker.getColorByCargo(9), RGB(2, 0, 0));
}

TEST(TrueColorPicker, KnownColourMovesNothing) {
    InHolder<Picker> in;
    AddColors(in.picker, 3);
    EXPECT_EQ(in.picker.AddColorToMRU(Rgb(1, 0, 0)), 11);
    EXPECT_EQ(in.picker.AddColorToMRU(Indexed(3)), 4);
    EXPECT_EQ(in.picker.GetCount(), 12);
}

TEST(TrueColorPicker, SeventeenthColourDropsTheOldest) {
    InHolder<Picker> in;
    AddColors(in.picker, kAddedCapacity);
    EXPECT_EQ(in.picker.GetCount(), 25);
    in.picker.AddColorToMRU(Rgb(17, 0, 0));
    EXPECT_EQ(in.picker.GetCount(), 25);
    EXPECT_EQ(in.picker.FindItemByColor(Rgb(1, 0, 0)), -1);
    EXPECT_EQ(in.picker.FindItemByColor(Rgb(2, 0, 0)), 24);
    EXPECT_EQ(in.picker.getColorByCargo(24), RGB(2, 0, 0));
}

TEST(TrueColorPicker, WithAnOtherItemTheOldestStaysInTheListOnly) {
    InHolder<Picker> in;
    in.dropDown();
    in.closeUp();
    AddColors(in.picker, kAddedCapacity);
    ASSERT_EQ(in.picker.GetCount(), 26);
    in.picker.AddColorToMRU(Rgb(17, 0, 0));
    EXPECT_EQ(in.picker.GetCount(), 27);
    EXPECT_EQ(in.picker.getColorByCargo(24), RGB(2, 0, 0)) << "the table has dropped the oldest";
    EXPECT_EQ(in.cargos()[24], 24);
    EXPECT_EQ(in.cargos()[25], 24) << "its item still says 24";
}

TEST(TrueColorPicker, StoreOfTheBaseStaysEmpty) {
    InHolder<Picker> in;
    EXPECT_EQ(in.picker.AddItemToMRU(L"x", 3), -1);
    AddColors(in.picker, 2);
    EXPECT_EQ(in.picker.store().count(), 0);
}

TEST(TrueColorPicker, CurrentColourLeavesItsArgumentWithoutAnEntry) {
    InHolder<Picker> in;
    OdCmColor color = Rgb(9, 9, 9);
    in.picker.GetCurrentItemColor(color);
    EXPECT_EQ(color, Rgb(9, 9, 9));
    in.picker.SetCurSel(0);
    in.picker.GetCurrentItemColor(color);
    EXPECT_TRUE(color.isByLayer());
    in.picker.SetCurSel(4);
    in.picker.GetCurrentItemColor(color);
    EXPECT_EQ(color.colorIndex(), 3);
}

TEST(TrueColorPicker, ColoursAreToldByCargoAndByValue) {
    InHolder<Picker> in;
    EXPECT_EQ(in.picker.getColorByCargo(25), 0u);
    EXPECT_EQ(in.picker.getColorByCargo(-1), 0u);
    EXPECT_EQ(in.picker.getColorByCargo(24), 0u) << "free";
    EXPECT_EQ(in.picker.getColorData(Rgb(1, 2, 3)), RGB(1, 2, 3));
    EXPECT_EQ(in.picker.getColorData(Indexed(5)), in.host.colorOf(5));
    EXPECT_EQ(in.picker.GetColorIndex(in.host.colorOf(77)), 77);
    EXPECT_EQ(in.picker.GetColorIndex(RGB(1, 1, 1)), 0) << "no index is shown so";
}

TEST(TrueColorPicker, InsertingHasAnIndexOfItsOwn) {
    InHolder<Picker> in;
    EXPECT_EQ(in.picker.AddItemToList(L"front", 0, 99), 0);
    EXPECT_EQ(in.picker.GetItemCargo(0), 99);
    EXPECT_EQ(in.picker.AddItemToList(L"nowhere", 99, 98), -1);
}

TEST(TrueColorPicker, ResettingTheTableDropsTheAddedColours) {
    InHolder<Picker> in;
    AddColors(in.picker, 2);
    in.picker.initKtCmColorTable();
    EXPECT_FALSE(in.picker.hasEntry(9));
    EXPECT_FALSE(in.picker.hasEntry(10));
    EXPECT_TRUE(in.picker.hasEntry(8));
    EXPECT_EQ(in.picker.GetCount(), 11) << "the list stays";
}

TEST(TrueColorPicker, ByLayerSaysAnOverrideInTheViewport) {
    InHolder<Picker> in;
    CString text = L"old";
    in.picker.GetLBString(0, text);
    EXPECT_STREQ(text, L"ByLayer");
    in.picker.viewportOverride = 1;
    in.picker.GetLBString(0, text);
    EXPECT_STREQ(text, L"ByLayer (VP)");
    in.picker.GetLBString(1, text);
    EXPECT_STREQ(text, L"ByBlock");
    in.picker.GetLBString(99, text);
    EXPECT_TRUE(text.IsEmpty());
}

TEST(TrueColorPicker, BothOtherNamesAreTheSameText) {
    InHolder<Picker> in;
    in.picker.SetUseOther2(1);
    in.dropDown();
    in.closeUp();
    EXPECT_EQ(in.picker.GetCount(), 10) << "the search by text keeps the second one out";
}

TEST(TrueColorOther, DialogGetsTheSelectedColourAndTheLayers) {
    InHolder<Picker> in;
    WorkingDrawing drawing;
    drawing.setCurrentLayerColor(5);
    OdCmColor startedFrom;
    OdCmColor layer;
    const std::uint32_t* paletteGiven = odcmAcadDarkPalette();
    in.host.onTrueColorDialog = [&](OdCmColor& color, bool, const OdCmColor& layerColor,
                                    const std::uint32_t* palette) {
        startedFrom = color;
        layer = layerColor;
        paletteGiven = palette;
        color = Rgb(7, 8, 9);
        return true;
    };
    in.choose(4);
    in.choose(9);
    EXPECT_EQ(startedFrom, Indexed(3));
    EXPECT_EQ(layer, Indexed(5));
    EXPECT_EQ(paletteGiven, nullptr);
    OdCmColor chosen;
    in.picker.GetCurrentItemColor(chosen);
    EXPECT_EQ(chosen, Rgb(7, 8, 9));
}

TEST(TrueColorOther, WithoutADrawingNoDialogOpens) {
    InHolder<Picker> in;
    int dialogs = 0;
    in.host.onTrueColorDialog = [&](OdCmColor&, bool, const OdCmColor&, const std::uint32_t*) {
        ++dialogs;
        return true;
    };
    in.choose(4);
    in.choose(9);
    EXPECT_EQ(dialogs, 0);
    EXPECT_EQ(in.picker.GetCurSel(), 4);
}

TEST(TrueColorOther, MetaLooksAtByLayerOnly) {
    InHolder<Picker> in;
    WorkingDrawing drawing;
    bool meta = false;
    in.host.onTrueColorDialog = [&](OdCmColor&, bool allowMeta, const OdCmColor&, const std::uint32_t*) {
        meta = allowMeta;
        return false;
    };
    in.picker.SetUseByBlock(0);
    in.picker.SelectOther(0);
    EXPECT_TRUE(meta);
    in.picker.SetUseByLayer(0);
    in.picker.SelectOther(0);
    EXPECT_FALSE(meta);
}

TEST(TrueColorOther, SecondDialogIsTheSystems) {
    InHolder<Picker> in;
    in.choose(4);
    ui_test::when_dialog(L"", [](HWND dialog) { ::PostMessageW(dialog, WM_COMMAND, IDOK, 0); });
    in.picker.SelectOther(1);
    OdCmColor color;
    in.picker.GetCurrentItemColor(color);
    EXPECT_TRUE(color.isByColor()) << "the answer is a true colour";
    EXPECT_EQ(color.color(), Indexed(3).color());
    ui_test::when_dialog(L"", [](HWND dialog) { ::PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0); });
    const int before = in.picker.GetCurSel();
    in.picker.SelectOther(1);
    EXPECT_EQ(in.picker.GetCurSel(), before);
}

TEST(CurrentLayerColour, FailsWithoutADrawingAndKeepsTheArgumentWithoutALayer) {
    InHolder<Picker> in;
    OdCmColor color = Rgb(9, 9, 9);
    EXPECT_FALSE(in.picker.GetCurrentLayerColor(color));
    WorkingDrawing drawing;
    drawing.setCurrentLayerColor(Rgb(1, 2, 3));
    EXPECT_TRUE(in.picker.GetCurrentLayerColor(color));
    EXPECT_EQ(color, Rgb(1, 2, 3));
}

TEST(TrueColorSwatches, ShowWhatTheirCargoMeans) {
    InHolder<Picker> in;
    WorkingDrawing drawing;
    drawing.setCurrentLayerColor(Rgb(11, 12, 13));
    EXPECT_EQ(CentreOfSwatch(in.picker, 0), RGB(11, 12, 13));
    EXPECT_EQ(CentreOfSwatch(in.picker, 1), in.host.colorOf(7));
    in.picker.SetBlockColor(Rgb(1, 2, 3));
    EXPECT_EQ(CentreOfSwatch(in.picker, 1), RGB(1, 2, 3));
    EXPECT_EQ(CentreOfSwatch(in.picker, 4), in.host.colorOf(3));
    in.picker.AddColorToMRU(Rgb(21, 22, 23));
    EXPECT_EQ(CentreOfSwatch(in.picker, 9), RGB(21, 22, 23));
    EXPECT_EQ(CentreOfSwatch(in.picker, 8), RGB(255, 255, 255)) << "the diagonal";
}

TEST(TrueColorSwatches, ByLayerWithoutADrawingShowsADefaultColour) {
    InHolder<Picker> in;
    EXPECT_EQ(CentreOfSwatch(in.picker, 0), in.host.colorOf(OdCmColor::kByLayerIndex));
}

TEST(TrueColorPicker, OpeningAndClosingLeavesNothingBehind) {
    const auto openAndClose = [] {
        InHolder<Picker> in;
        AddColors(in.picker, 20);
        in.dropDown();
        in.closeUp();
    };
    ui_test::expectNothingLeft(openAndClose);
}

TEST(TrueColorSwatch, CargoBeyond32BitsHasNoColour) {
    InHolder<Picker> in;
    EXPECT_EQ(CentreOfSwatch(in.picker, 2), in.picker.getColorByCargo(2));
    EXPECT_NE(in.picker.getColorByCargo(2), RGB(0, 0, 0));
    EXPECT_EQ(CentreOfSwatch(in.picker, 0x100000002), RGB(0, 0, 0)) << "no cargo is cut to 32 bits first";
}
