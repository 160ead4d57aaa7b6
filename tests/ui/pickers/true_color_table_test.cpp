// The table of colours behind the true colour picker, and how the list follows it.
#include <ktui/pickers/page_setup_color_combo_box.h>
#include <ktui/pickers/true_color_combo_box.h>
#include <ktui/pickers/white_black_color_combo_box.h>

#include <ktut.h>

#include "picker_fixture.h"
#include "working_drawing.h"

using namespace ui_test;

namespace {

using Cargos = std::vector<__int64>;

class Picker : public CKtUiTrueColorComboBox {
public:
    bool failsToInsert = false;
    int metaGiven = -100;
    int otherAnswer = 1;
    OdCmColor given;
    int viewportOverride = 0;

    int GetOtherColor(OdCmColor& color, const OdCmColor&, int allowMeta) override {
        given = color;
        metaGiven = allowMeta;
        color.setRGB(7, 8, 9);
        return otherAnswer;
    }
    int GetCurrentLayerVpOverride() override { return viewportOverride; }
    bool hasEntry(int entry) const { return entryAt(entry) != nullptr; }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == CB_INSERTSTRING && failsToInsert) return CB_ERR;
        return CKtUiTrueColorComboBox::WindowProc(message, wParam, lParam);
    }
};

OdCmColor red(int value) {
    OdCmColor color;
    color.setRGB(static_cast<std::uint8_t>(value), 0, 0);
    return color;
}

OdCmColor indexed(int index) {
    OdCmColor color;
    color.setColorIndex(index);
    return color;
}

}  // namespace

TEST(TrueColorTable, HoldsTheFixedColoursAndSixteenFreePlaces) {
    InHolder<Picker> in;
    const int indexes[] = {256, 0, 1, 2, 3, 4, 5, 6, 7};
    for (int cargo = 0; cargo < 9; ++cargo)
        EXPECT_EQ(in.picker.getColorByCargo(cargo), in.host.colorOf(indexes[cargo])) << cargo;
    for (int cargo = 0; cargo < 9; ++cargo) EXPECT_TRUE(in.picker.hasEntry(cargo));
    for (int cargo = 9; cargo < 25; ++cargo) EXPECT_FALSE(in.picker.hasEntry(cargo));
    EXPECT_EQ(in.picker.GetBlockColor(), indexed(7));
    EXPECT_EQ(in.picker.GetCargoOption1(), 0);
    EXPECT_EQ(in.picker.GetCargoOption2(), 1);
    EXPECT_EQ(in.picker.GetUseByLayer(), -1);
    EXPECT_EQ(in.picker.GetUseByBlock(), -1);
    EXPECT_EQ(in.picker.GetUseOther(), -1);
    EXPECT_EQ(in.picker.GetUseOther2(), 0);
}

TEST(TrueColorTable, IsCompleteBeforeThereIsAWindow) {
    const Picker picker;
    for (int cargo = 0; cargo < 9; ++cargo) EXPECT_TRUE(picker.hasEntry(cargo));
    EXPECT_FALSE(picker.hasEntry(9));
    EXPECT_FALSE(picker.hasEntry(24));
}

TEST(TrueColorTable, EveryAddedColourMovesOnePlace) {
    InHolder<Picker> in;
    for (int i = 1; i <= 16; ++i) EXPECT_EQ(in.picker.AddColorToMRU(red(i)), 9);
    for (int i = 1; i <= 16; ++i) {
        EXPECT_EQ(in.picker.getColorByCargo(25 - i), RGB(i, 0, 0));
        EXPECT_EQ(in.picker.GetItemCargo(25 - i), 25 - i);
        EXPECT_EQ(in.texts()[static_cast<std::size_t>(25 - i)], ktutColorToStr(red(i)).c_str());
    }
    EXPECT_EQ(in.picker.GetItemCargo(8), 8);
}

TEST(TrueColorTable, ListOfTwentyFiveWithAFreePlaceDropsNothing) {
    InHolder<Picker> in;
    for (int i = 1; i <= 15; ++i) in.picker.AddColorToMRU(red(i));
    in.picker.AddItemToList(L"foreign", -1, 500);
    ASSERT_EQ(in.picker.GetCount(), 25);
    in.picker.AddColorToMRU(red(16));
    EXPECT_EQ(in.picker.GetCount(), 26);
    EXPECT_EQ(in.picker.getColorByCargo(24), RGB(1, 0, 0));
    in.picker.AddColorToMRU(red(17));
    EXPECT_EQ(in.picker.GetCount(), 27) << "26 entries are not 25";
}

TEST(TrueColorTable, OldestWithoutAnItemGoesFromTheTableOnly) {
    InHolder<Picker> in;
    for (int i = 1; i <= 16; ++i) in.picker.AddColorToMRU(red(i));
    in.picker.DeleteString(static_cast<UINT>(in.picker.FindItemByCargo(24)));
    in.picker.AddItemToList(L"foreign", -1, 500);
    ASSERT_EQ(in.picker.GetCount(), 25);
    in.picker.AddColorToMRU(red(17));
    EXPECT_EQ(in.picker.GetCount(), 26);
    EXPECT_EQ(in.picker.getColorByCargo(24), RGB(2, 0, 0));
    EXPECT_EQ(in.picker.GetItemCargo(25), 500);
}

TEST(TrueColorTable, NewestStandsBehindTheForegroundWhereverThatIs) {
    InHolder<Picker> in;
    in.picker.AddItemToList(L"front", 0, 500);
    EXPECT_EQ(in.picker.AddColorToMRU(red(1)), 10);
    EXPECT_EQ(in.picker.GetItemCargo(9), 8);
}

TEST(TrueColorTable, WithoutTheForegroundItemNewestIsTenthAtMost) {
    InHolder<Picker> in;
    in.picker.DeleteString(8);
    EXPECT_EQ(in.picker.AddColorToMRU(red(1)), 8) << "at the end of a shorter list";
    for (int i = 0; i < 3; ++i) in.picker.AddItemToList(L"foreign", -1, 500 + i);
    EXPECT_EQ(in.picker.AddColorToMRU(red(2)), 9);
    EXPECT_EQ(in.cargos(), (Cargos{0, 1, 2, 3, 4, 5, 6, 7, 10, 9, 500, 501, 502}));
}

TEST(TrueColorTable, ColourWithoutAnItemIsAddedAgain) {
    InHolder<Picker> in;
    in.picker.DeleteString(4);
    EXPECT_EQ(in.picker.FindItemByColor(indexed(3)), -1);
    EXPECT_EQ(in.picker.AddColorToMRU(indexed(3)), 8);
    EXPECT_EQ(in.picker.GetItemCargo(8), 9);
    EXPECT_EQ(in.picker.FindItemByColor(indexed(3)), -1) << "the first entry of the colour decides";
}

TEST(TrueColorTable, FillingAnewForgetsTheAddedColours) {
    InHolder<Picker> in;
    in.picker.AddColorToMRU(red(1));
    in.picker.ResetContent();
    in.picker.AddItems();
    EXPECT_EQ(in.cargos(), (Cargos{0, 1, 2, 3, 4, 5, 6, 7, 8}));
    EXPECT_FALSE(in.picker.hasEntry(9));
}

TEST(TrueColorTable, IndexOfAColourIsTheFirstOfTwoHundredFiftySix) {
    InHolder<Picker> in;
    in.host.colorOf = [](int index) -> COLORREF {
        if (index == 40 || index == 41) return RGB(1, 1, 1);
        if (index == 255) return RGB(2, 2, 2);
        return index == 256 ? RGB(3, 3, 3) : RGB(9, 9, 9);
    };
    EXPECT_EQ(in.picker.GetColorIndex(RGB(1, 1, 1)), 40);
    EXPECT_EQ(in.picker.GetColorIndex(RGB(2, 2, 2)), 255);
    EXPECT_EQ(in.picker.GetColorIndex(RGB(3, 3, 3)), 0) << "ByLayer is no index of the palette";
}

TEST(TrueColorTable, TrueColoursAreMadeOfTheirThreeBytes) {
    InHolder<Picker> in;
    OdCmColor color;
    color.setRGB(10, 20, 30);
    EXPECT_EQ(in.picker.getColorData(color), RGB(10, 20, 30));
    in.picker.AddColorToMRU(color);
    EXPECT_EQ(in.picker.getColorByCargo(9), RGB(10, 20, 30));
    EXPECT_TRUE(in.host.askedColors.empty()) << "no palette is asked";
}

TEST(TrueColorTable, ByLayerSuffixNeedsTheItem) {
    InHolder<Picker> in;
    in.picker.viewportOverride = 1;
    CString text = L"old";
    in.picker.GetLBString(-1, text);
    EXPECT_TRUE(text.IsEmpty());
    in.picker.AddItemToList(L"front", 0, 500);
    in.picker.GetLBString(0, text);
    EXPECT_STREQ(text, L"front");
    in.picker.GetLBString(1, text);
    EXPECT_STREQ(text, L"ByLayer (VP)") << "the cargo decides, not the place";
}

TEST(TrueColorOtherFlow, AsksForMetaByAllOnes) {
    InHolder<Picker> in;
    const WorkingDrawing drawing;
    int index = 77;
    EXPECT_EQ(in.picker.OnSelectOther(0, 4, index), 1);
    EXPECT_EQ(in.picker.metaGiven, -1);
    EXPECT_EQ(in.picker.given, indexed(3));
    EXPECT_EQ(index, 9);
    in.picker.SetUseByLayer(0);
    EXPECT_EQ(in.picker.OnSelectOther(0, 99, index), 1);
    EXPECT_EQ(in.picker.metaGiven, 0);
    EXPECT_EQ(in.picker.given, OdCmColor()) << "outside the list is a default colour";
}

TEST(TrueColorOtherFlow, FailsWithItsDialogItsLayerOrItsList) {
    InHolder<Picker> in;
    int index = 77;
    EXPECT_EQ(in.picker.OnSelectOther(0, 4, index), 0) << "no layer";
    EXPECT_EQ(in.picker.metaGiven, -100);
    const WorkingDrawing drawing;
    in.picker.otherAnswer = 0;
    EXPECT_EQ(in.picker.OnSelectOther(0, 4, index), 0) << "cancelled";
    EXPECT_EQ(index, 77);
    in.picker.otherAnswer = 1;
    in.picker.failsToInsert = true;
    EXPECT_EQ(in.picker.OnSelectOther(0, 4, index), 0) << "the list took no item";
}

TEST(TrueColorOtherFlow, NamesAreTheSameForBothAndAllPickers) {
    CString wanted;
    ASSERT_TRUE(wanted.LoadString(54161));
    Picker full;
    CKtUiTrueColorComboBoxForPagesetup page;
    CKtUiWhiteBlackTrueColorComboBox plain;
    for (CKtUiMRUComboBox* picker : std::vector<CKtUiMRUComboBox*>{&full, &page, &plain})
        for (const int which : {0, 1}) {
            CString text;
            EXPECT_EQ(picker->GetOtherName(which, text), 1);
            EXPECT_EQ(text, wanted);
        }
}

TEST(TrueColorOtherFlow, HostAnswersInTheColourItWasGiven) {
    InHolder<CKtUiTrueColorComboBox> in;
    OdCmColor color = red(1);
    bool metaGiven = true;
    in.host.onTrueColorDialog = [&](OdCmColor& asked, bool allowMeta, const OdCmColor& layer,
                                    const std::uint32_t*) {
        metaGiven = allowMeta;
        EXPECT_EQ(asked, red(1));
        EXPECT_EQ(layer, red(3));
        asked = red(2);
        return true;
    };
    EXPECT_EQ(in.picker.GetOtherColor(color, red(3), 0), 1);
    EXPECT_EQ(color, red(2));
    EXPECT_FALSE(metaGiven);
    color = red(1);
    EXPECT_EQ(in.picker.GetOtherColor(color, red(3), -1), 1);
    EXPECT_TRUE(metaGiven);
    in.host.hasUiHost = false;
    EXPECT_EQ(in.picker.GetOtherColor(color, red(3), 1), 0);
}

TEST(CurrentLayerColour, IsMissingOnceEvenLayerZeroIsErased) {
    InHolder<CKtUiTrueColorComboBox> in;
    WorkingDrawing drawing;
    OdCmColor color = red(9);
    EXPECT_TRUE(in.picker.GetCurrentLayerColor(color));
    EXPECT_EQ(color, indexed(7));
    drawing.database()->clayer().open<OdDbLayerTableRecord>(OdDb::kForWrite)->erase();
    ASSERT_TRUE(drawing.database()->clayer().isNull());
    color = red(9);
    EXPECT_FALSE(in.picker.GetCurrentLayerColor(color));
    EXPECT_EQ(color, red(9));
}

TEST(CurrentLayerColour, IsMissingWithoutADrawing) {
    InHolder<CKtUiTrueColorComboBox> in;
    WorkingDrawing drawing;
    drawing.services().setWorkingDatabase(nullptr);
    OdCmColor color = red(9);
    EXPECT_FALSE(in.picker.GetCurrentLayerColor(color));
    EXPECT_EQ(color, red(9));
}
