#include <ktui/pickers/color_combo_box.h>

#include <ktut.h>
#include <od_db_database.h>
#include <od_db_layer_table.h>
#include <od_host_services.h>

#include "picker_fixture.h"
#include "working_drawing.h"

using ui_test::Canvas;
using ui_test::InHolder;
using ui_test::WorkingDrawing;

namespace {

using Cargos = std::vector<__int64>;

class Picker : public CKtUiColorComboBox {
public:
    int lastSelection() const { return m_lastSelection; }
    const MruStore& store() const { return m_mru; }
};

constexpr COLORREF kUntouched = RGB(200, 100, 50);

COLORREF CentreOfSwatch(Picker& picker, __int64 cargo) {
    Canvas canvas(16, 16, kUntouched);
    CRect rect(0, 0, 16, 16);
    picker.DrawItemImage(canvas.dc, rect, cargo);
    return canvas.dc.GetPixel(8, 8);
}

}  // namespace

TEST(ColorPicker, ListsByLayerByBlockAndTheStandardColours) {
    InHolder<Picker> in;
    EXPECT_EQ(in.cargos(), (Cargos{256, 0, 1, 2, 3, 4, 5, 6, 7}));
    EXPECT_EQ(in.texts()[2], ktutColorToStr(static_cast<short>(1)).c_str());
    EXPECT_EQ(in.picker.GetUseOther(), -1);
    EXPECT_EQ(in.picker.GetCargoOption1(), 256);
    EXPECT_EQ(in.picker.GetCargoOption2(), 0);
}

TEST(ColorPicker, IndexesAreReadBackFromTheList) {
    InHolder<Picker> in;
    EXPECT_EQ(in.picker.GetCurrentItemColorIndex(), -1);
    in.picker.SetCurSel(4);
    EXPECT_EQ(in.picker.GetCurrentItemColorIndex(), 3);
    EXPECT_EQ(in.picker.GetItemColorIndex(0), 256);
    EXPECT_EQ(in.picker.GetItemColorIndex(99), -1);
    EXPECT_EQ(in.picker.FindItemByColorIndex(7), 8);
    EXPECT_EQ(in.picker.GetColorIndex(RGB(255, 0, 0)), -1);
}

TEST(ColorPickerOther, DialogStartsFromTheSelectionAndItsAnswerIsAdded) {
    InHolder<Picker> in;
    int startedFrom = -9;
    int shownLayer = -9;
    bool meta = false;
    in.host.onColorIndexDialog = [&](int& index, bool allowMeta, int layerIndex) {
        startedFrom = index;
        meta = allowMeta;
        shownLayer = layerIndex;
        index = 42;
        return true;
    };
    in.choose(4);
    in.choose(9);
    EXPECT_EQ(startedFrom, 3);
    EXPECT_TRUE(meta);
    EXPECT_EQ(shownLayer, -1) << "there is no working drawing";
    EXPECT_EQ(in.picker.GetCurrentItemColorIndex(), 42);
    EXPECT_EQ(in.picker.FindCargoInMRU(42), 1);
    EXPECT_EQ(in.picker.lastSelection(), 10);
}

TEST(ColorPickerOther, IndexInTheListSelectsItsEntryAndAddsNothing) {
    InHolder<Picker> in;
    in.host.onColorIndexDialog = [](int& index, bool, int) {
        index = 3;
        return true;
    };
    in.choose(9);
    EXPECT_EQ(in.picker.GetCurSel(), 4);
    EXPECT_EQ(in.picker.GetCount(), 10);
    EXPECT_EQ(in.picker.store().count(), 0);
}

TEST(ColorPickerOther, SeventhColourLeavesTheStoreAndStaysInTheList) {
    InHolder<Picker> in;
    int next = 30;
    in.host.onColorIndexDialog = [&](int& index, bool, int) {
        index = next++;
        return true;
    };
    in.dropDown();
    in.closeUp();
    const int other = in.picker.FindItemByCargo(kCargoOther);
    for (int i = 0; i < 7; ++i) in.choose(other);
    EXPECT_EQ(in.picker.FindCargoInMRU(30), 0);
    EXPECT_NE(in.picker.FindItemByColorIndex(30), -1);
    EXPECT_EQ(in.picker.FindCargoInMRU(36), 1);
}

TEST(ColorPickerOther, CancelAndMissingHostKeepTheSelection) {
    InHolder<Picker> in;
    in.choose(4);
    in.choose(9);
    EXPECT_EQ(in.picker.GetCurrentItemColorIndex(), 3) << "cancelled";
    in.host.hasUiHost = false;
    in.choose(9);
    EXPECT_EQ(in.picker.GetCurrentItemColorIndex(), 3) << "no host windows";
}

TEST(ColorPickerOther, MetaNeedsBothOptions) {
    InHolder<Picker> in;
    bool meta = true;
    in.host.onColorIndexDialog = [&](int&, bool allowMeta, int) {
        meta = allowMeta;
        return false;
    };
    in.picker.SetUseByBlock(0);
    in.picker.SelectOther(0);
    EXPECT_FALSE(meta);
    in.picker.SetUseByBlock(1);
    in.picker.SelectOther(0);
    EXPECT_TRUE(meta);
    in.picker.SetUseByLayer(0);
    in.picker.SelectOther(0);
    EXPECT_FALSE(meta);
}

TEST(ColorLookup, PaletteServesIndexesBelow256AndTheHostAllOthers) {
    InHolder<Picker> in;
    std::vector<BYTE> memory(sizeof(LOGPALETTE) + 256 * sizeof(PALETTEENTRY));
    auto* palette = reinterpret_cast<LOGPALETTE*>(memory.data());
    palette->palPalEntry[5] = {10, 20, 30, 0};
    EXPECT_EQ(in.picker.LookupColor(5, palette), RGB(10, 20, 30));
    in.host.askedColors.clear();
    in.picker.LookupColor(256, palette);
    in.picker.LookupColor(-1, palette);
    in.picker.LookupColor(5, nullptr);
    EXPECT_EQ(in.host.askedColors, (std::vector<int>{256, -1, 5}));
    in.picker.SetLogPalette(palette);
    EXPECT_EQ(in.picker.GetColorFromIndex(5), RGB(10, 20, 30));
    in.picker.SetLogPalette(nullptr);
    in.host.hasColorServices = false;
    EXPECT_EQ(in.picker.GetColorFromIndex(5), 0u);
}

TEST(ColorSwatches, GeometryOfASixteenPixelImage) {
    InHolder<Picker> in;
    Canvas canvas(16, 16, kUntouched);
    CRect rect(0, 0, 16, 16);
    in.picker.DrawItemImage(canvas.dc, rect, 5);
    const COLORREF color = in.host.colorOf(5);
    EXPECT_EQ(canvas.dc.GetPixel(1, 1), kUntouched);
    EXPECT_EQ(canvas.dc.GetPixel(2, 2), RGB(0, 0, 0));
    EXPECT_EQ(canvas.dc.GetPixel(13, 13), RGB(0, 0, 0));
    EXPECT_EQ(canvas.dc.GetPixel(14, 14), kUntouched);
    EXPECT_EQ(canvas.dc.GetPixel(3, 3), color);
    EXPECT_EQ(canvas.dc.GetPixel(12, 12), color);
    EXPECT_EQ(rect, CRect(0, 0, 16, 16));
}

TEST(ColorSwatches, SixPixelImageHasNoPixelOfRampOrDiagonal) {
    InHolder<Picker> in;
    for (const int cargo : {kCargoOther, 7}) {
        Canvas canvas(6, 6, kUntouched);
        CRect rect(0, 0, 6, 6);
        in.host.askedColors.clear();
        in.picker.DrawItemImage(canvas.dc, rect, cargo);
        EXPECT_TRUE(in.host.askedColors.empty());
        EXPECT_EQ(canvas.dc.GetPixel(2, 3), RGB(0, 0, 0));
        EXPECT_EQ(canvas.dc.GetPixel(1, 1), kUntouched);
    }
}

TEST(ColorSwatches, ForegroundIsADiagonal) {
    InHolder<Picker> in;
    Canvas canvas(16, 16, kUntouched);
    CRect rect(0, 0, 16, 16);
    in.picker.DrawItemImage(canvas.dc, rect, 7);
    EXPECT_EQ(canvas.dc.GetPixel(12, 3), RGB(0, 0, 0));
    EXPECT_EQ(canvas.dc.GetPixel(3, 12), RGB(255, 255, 255));
    EXPECT_EQ(canvas.dc.GetPixel(7, 7), RGB(255, 255, 255)) << "the diagonal itself is white";
}

TEST(ColorSwatches, FrameIsWholeAroundEveryKind) {
    InHolder<Picker> in;
    for (const int cargo : {5, 7, kCargoOther}) {
        Canvas canvas(16, 16, kUntouched);
        CRect rect(0, 0, 16, 16);
        in.picker.DrawItemImage(canvas.dc, rect, cargo);
        for (int i = 2; i <= 13; ++i)
            for (const CPoint& at : {CPoint(i, 2), CPoint(i, 13), CPoint(2, i), CPoint(13, i)})
                EXPECT_EQ(canvas.dc.GetPixel(at), RGB(0, 0, 0)) << cargo << ": " << at.x << ", " << at.y;
    }
}

TEST(ColorSwatches, OtherIsTheRamp) {
    InHolder<Picker> in;
    Canvas canvas(16, 16, kUntouched);
    CRect rect(0, 0, 16, 16);
    in.picker.DrawItemImage(canvas.dc, rect, kCargoOther);
    EXPECT_EQ(canvas.dc.GetPixel(3, 3), in.host.colorOf(18));
    EXPECT_EQ(canvas.dc.GetPixel(3, 4), in.host.colorOf(16))
        << "ten pixels down are ten columns of the table";
    EXPECT_EQ(canvas.dc.GetPixel(4, 3), in.host.colorOf(18 + 20)) << "ten pixels across are 24 rows";
}

TEST(ColorSwatches, ByLayerWithoutADrawingAsksTheHostForMinusOne) {
    InHolder<Picker> in;
    in.host.askedColors.clear();
    CentreOfSwatch(in.picker, 256);
    EXPECT_EQ(in.host.askedColors, std::vector<int>{-1});
}

TEST(ColorSwatches, ByLayerFollowsTheCurrentLayerAtEachPaint) {
    InHolder<Picker> in;
    WorkingDrawing drawing;
    drawing.setCurrentLayerColor(3);
    EXPECT_EQ(in.picker.GetCurrentLayerColorIndex(), 3);
    EXPECT_EQ(CentreOfSwatch(in.picker, 256), in.host.colorOf(3));
    drawing.setCurrentLayerColor(5);
    EXPECT_EQ(CentreOfSwatch(in.picker, 256), in.host.colorOf(5));
}

TEST(ColorSwatches, ByBlockShowsItsOwnIndex) {
    InHolder<Picker> in;
    EXPECT_EQ(in.picker.GetBlockColorIndex(), 7);
    EXPECT_EQ(CentreOfSwatch(in.picker, 0), in.host.colorOf(7));
    in.picker.SetBlockColorIndex(2);
    EXPECT_EQ(CentreOfSwatch(in.picker, 0), in.host.colorOf(2));
}

TEST(ColorPicker, WindowsColourComesFromTheSystemsDialog) {
    InHolder<Picker> in;
    DWORD color = RGB(255, 0, 0);
    ui_test::when_dialog(L"", [](HWND dialog) { ::PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0); });
    EXPECT_EQ(in.picker.GetWindowsColor(color), 0);
    EXPECT_EQ(color, RGB(255, 0, 0));
    ui_test::when_dialog(L"", [](HWND dialog) { ::PostMessageW(dialog, WM_COMMAND, IDOK, 0); });
    EXPECT_EQ(in.picker.GetWindowsColor(color), 1);
    EXPECT_EQ(color, RGB(255, 0, 0));
}

TEST(ColorSwatch, CargoBeyond32BitsIsNoIndex) {
    InHolder<Picker> in;
    constexpr __int64 kBeyond = 0x100000003;
    in.host.askedColors.clear();
    CentreOfSwatch(in.picker, kBeyond);
    EXPECT_EQ(in.host.askedColors, (std::vector<int>{-1})) << "no cargo is cut to 32 bits first";
    const int item = in.picker.AddItemToList(L"beyond", kBeyond);
    EXPECT_EQ(in.picker.GetItemColorIndex(item), -1);
    in.picker.SetCurSel(item);
    EXPECT_EQ(in.picker.GetCurrentItemColorIndex(), -1);
}
