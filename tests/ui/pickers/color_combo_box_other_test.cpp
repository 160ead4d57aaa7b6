// What the indexed colour picker hands to its dialog, and what becomes of the answer.
#include <ktui/pickers/color_combo_box.h>

#include <ktut.h>

#include "picker_fixture.h"
#include "working_drawing.h"

using namespace ui_test;

namespace {

class Picker : public CKtUiColorComboBox {
public:
    std::vector<int> given;  ///< current, layerIndex, allowMeta
    int answer = 1;
    int chosenIndex = 3;
    bool failsToInsert = false;

    int GetOtherColorIndex(int current, int layerIndex, int allowMeta, int& chosen) override {
        given = {current, layerIndex, allowMeta};
        if (answer) chosen = chosenIndex;
        return answer;
    }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == CB_INSERTSTRING && failsToInsert) return CB_ERR;
        return CKtUiColorComboBox::WindowProc(message, wParam, lParam);
    }
};

}  // namespace

TEST(ColorOtherFlow, HandsOverCargoLayerAndOptions) {
    InHolder<Picker> in;
    WorkingDrawing drawing;
    drawing.setCurrentLayerColor(5);
    int index = -1;
    EXPECT_EQ(in.picker.OnSelectOther(0, 4, index), 1);
    EXPECT_EQ(in.picker.given, (std::vector<int>{3, 5, 1}));
    EXPECT_EQ(index, 4);
    in.picker.OnSelectOther(1, 0, index);
    EXPECT_EQ(in.picker.given, (std::vector<int>{256, 5, 1})) << "which of the two makes no difference";
    in.picker.OnSelectOther(0, 99, index);
    EXPECT_EQ(in.picker.given, (std::vector<int>{-1, 5, 1}));
    in.picker.SetUseByLayer(0);
    in.picker.OnSelectOther(0, -1, index);
    EXPECT_EQ(in.picker.given, (std::vector<int>{-1, 5, 0}));
}

TEST(ColorOtherFlow, AddsAnUnknownIndexByItsName) {
    InHolder<Picker> in;
    in.picker.chosenIndex = 142;
    int index = -1;
    EXPECT_EQ(in.picker.OnSelectOther(0, 4, index), 1);
    EXPECT_EQ(index, 9);
    EXPECT_EQ(in.picker.GetItemColorIndex(9), 142);
    EXPECT_EQ(in.texts()[9], ktutColorToStr(static_cast<short>(142)).c_str());
    EXPECT_EQ(in.picker.FindCargoInMRU(142), 1);
}

TEST(ColorOtherFlow, FailsWithItsDialogAndWithItsList) {
    InHolder<Picker> in;
    in.picker.answer = 0;
    int index = 77;
    EXPECT_EQ(in.picker.OnSelectOther(0, 4, index), 0);
    EXPECT_EQ(index, 77);
    in.picker.answer = 1;
    in.picker.chosenIndex = 142;
    in.picker.failsToInsert = true;
    EXPECT_EQ(in.picker.OnSelectOther(0, 4, index), 0);
}

TEST(ColorOtherFlow, HostAnswersInTheIndexItWasGiven) {
    InHolder<CKtUiColorComboBox> in;
    std::vector<int> given;
    in.host.onColorIndexDialog = [&](int& index, bool allowMeta, int layerIndex) {
        given = {index, allowMeta ? 1 : 0, layerIndex};
        index = 42;
        return true;
    };
    int chosen = -1;
    EXPECT_EQ(in.picker.GetOtherColorIndex(6, 5, 1, chosen), 1);
    EXPECT_EQ(given, (std::vector<int>{6, 1, 5}));
    EXPECT_EQ(chosen, 42);
    EXPECT_EQ(in.picker.GetOtherColorIndex(6, 5, 0, chosen), 1);
    EXPECT_EQ(given, (std::vector<int>{6, 0, 5}));
    in.host.onColorIndexDialog = [](int&, bool, int) { return false; };
    EXPECT_EQ(in.picker.GetOtherColorIndex(6, 5, 0, chosen), 0);
    in.host.hasUiHost = false;
    chosen = 55;
    EXPECT_EQ(in.picker.GetOtherColorIndex(6, 5, 0, chosen), 0);
    EXPECT_EQ(chosen, 55);
}

TEST(ColorOtherFlow, NameIsTheSameForBoth) {
    CString wanted;
    ASSERT_TRUE(wanted.LoadString(54161));
    Picker picker;
    for (const int which : {0, 1}) {
        CString text;
        EXPECT_EQ(picker.GetOtherName(which, text), 1);
        EXPECT_EQ(text, wanted);
    }
}

TEST(ColorList, NamesEveryStandardColour) {
    InHolder<Picker> in;
    EXPECT_EQ(in.texts()[0], L"ByLayer");
    EXPECT_EQ(in.texts()[1], L"ByBlock");
    for (short index = 1; index <= 7; ++index)
        EXPECT_EQ(in.texts()[static_cast<std::size_t>(index) + 1], ktutColorToStr(index).c_str());
    EXPECT_EQ(in.picker.GetUseByLayer(), -1);
    EXPECT_EQ(in.picker.GetUseByBlock(), -1);
    EXPECT_EQ(in.picker.GetUseOther2(), 0);
}

TEST(ColorList, LayerThatIsNotThereHasNoIndex) {
    InHolder<Picker> in;
    WorkingDrawing drawing;
    drawing.setCurrentLayerColor(5);
    EXPECT_EQ(in.picker.GetCurrentLayerColorIndex(), 5);
    drawing.database()->clayer().open<OdDbLayerTableRecord>(OdDb::kForWrite)->erase();
    EXPECT_EQ(in.picker.GetCurrentLayerColorIndex(), -1);
    drawing.services().setWorkingDatabase(nullptr);
    EXPECT_EQ(in.picker.GetCurrentLayerColorIndex(), -1);
}
