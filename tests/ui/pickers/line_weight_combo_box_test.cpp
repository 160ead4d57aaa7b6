#include <ktui/pickers/line_weight_combo_box.h>

#include <ktui/pickers/line_weights.h>

#include "picker_fixture.h"
#include "working_drawing.h"

using ui_test::Canvas;
using ui_test::InHolder;
using ui_test::WorkingDrawing;

namespace {

constexpr COLORREF kPaper = RGB(200, 100, 50);
constexpr COLORREF kInk = RGB(0, 0, 0);

class Picker : public CKtUiLineWeightComboBox {
public:
    int viewportOverride = 0;
    int layerWeight = -100;  ///< -100 asks the drawing
    int GetCurrentLayerVpOverride() override { return viewportOverride; }
    int GetCurrentLayerLineWeight() override {
        return layerWeight == -100 ? CKtUiLineWeightComboBox::GetCurrentLayerLineWeight() : layerWeight;
    }
};

/// Rows of ink in column `x` of the sample for `cargo` in an image of 40 by 24 pixels.
int InkedRows(Picker& picker, __int64 cargo, int x = 20) {
    Canvas canvas(40, 24, kPaper);
    CRect rect(0, 0, 40, 24);
    picker.DrawItemImage(canvas.dc, rect, cargo);
    int rows = 0;
    for (int y = 0; y < 24; ++y) rows += canvas.dc.GetPixel(x, y) == kInk ? 1 : 0;
    return rows;
}

void SetLayerWeight(WorkingDrawing& drawing, OdDb::LineWeight weight) {
    const OdDbObjectId layer = drawing.database()->clayer();
    ASSERT_EQ(layer.open<OdDbLayerTableRecord>(OdDb::kForWrite)->setLineWeight(weight), kOdOk);
}

int WidthOfDashes() {
    CClientDC screen(nullptr);
    return static_cast<int>(screen.GetTextExtent(L"--------", 8).cx);
}

void SetWidth(Picker& picker, int width) {
    picker.SetWindowPos(nullptr, 0, 0, width, 200, SWP_NOMOVE | SWP_NOZORDER);
}

}  // namespace

TEST(LineWeightPicker, ListsByLayerByBlockDefaultAndTheWeights) {
    InHolder<Picker> in;
    ASSERT_EQ(in.picker.GetCount(), 27);
    EXPECT_EQ(in.texts()[0], L"ByLayer");
    EXPECT_EQ(in.texts()[1], L"ByBlock");
    EXPECT_EQ(in.texts()[2], L"Default");
    EXPECT_EQ(in.texts()[3], L"0.00 mm");
    EXPECT_EQ(in.texts()[26], L"2.11 mm");
    EXPECT_EQ(in.cargos()[0], -1);
    EXPECT_EQ(in.cargos()[1], -2);
    EXPECT_EQ(in.cargos()[2], -3);
    for (int i = 0; i < static_cast<int>(kLineWeightCount); ++i)
        EXPECT_EQ(in.picker.GetItemLineWeight(3 + i), LineWeightNames()[static_cast<std::size_t>(i)].weight);
}

TEST(LineWeightPicker, NamesFollowTheUnitWhenTheListIsFilled) {
    WorkingDrawing drawing;
    drawing.services().setLineWeightsInMillimetres(false);
    InHolder<Picker> in;
    EXPECT_EQ(in.texts()[10], L"0.010\"");
    drawing.services().setLineWeightsInMillimetres(true);
    EXPECT_EQ(in.texts()[10], L"0.010\"") << "the list stays as it was filled";
    in.picker.ResetContent();
    in.picker.AddItems();
    EXPECT_EQ(in.texts()[10], L"0.25 mm");
}

TEST(LineWeightPicker, DefaultIsOfferedOnlyIfAskedFor) {
    InHolder<Picker> in;
    in.picker.SetUseDefault(0);
    in.picker.ResetContent();
    in.picker.AddItems();
    EXPECT_EQ(in.picker.GetCount(), 26);
    EXPECT_EQ(in.picker.FindItemByLineWeight(-3), -1);
}

TEST(LineWeightPicker, HasNoOtherItem) {
    InHolder<Picker> in;
    EXPECT_EQ(in.picker.GetUseOther(), 0);
    EXPECT_EQ(in.picker.GetUseOther2(), 0);
    in.dropDown();
    in.closeUp();
    EXPECT_EQ(in.picker.GetCount(), 27);
}

TEST(LineWeightPicker, WeightsAreFoundAndToldByTheirValue) {
    InHolder<Picker> in;
    EXPECT_EQ(in.picker.FindItemByLineWeight(25), 10);
    EXPECT_EQ(in.picker.FindItemByLineWeight(7), -1);
    EXPECT_EQ(in.picker.GetCurrentItemLineWeight(), -1) << "no selection";
    in.choose(26);
    EXPECT_EQ(in.picker.GetCurrentItemLineWeight(), 211);
    EXPECT_EQ(in.picker.GetItemLineWeight(99), -1);
}

TEST(LineWeightPicker, IndexOutsideTheListSaysTheOverrideToo) {
    InHolder<Picker> in;
    CString text;
    in.picker.GetLBString(0, text);
    EXPECT_STREQ(text, L"ByLayer");
    in.picker.viewportOverride = 1;
    in.picker.GetLBString(0, text);
    EXPECT_STREQ(text, L"ByLayer (VP)");
    in.picker.GetLBString(1, text);
    EXPECT_STREQ(text, L"ByBlock");
    in.picker.GetLBString(99, text);
    EXPECT_STREQ(text, L" (VP)");
    in.picker.GetLBString(-2, text);
    EXPECT_STREQ(text, L" (VP)");
    in.picker.GetLBString(-1, text);
    EXPECT_STREQ(text, L"");
}

TEST(LineWeightPicker, ImageIsHalfTheControlUpToTheTextOr48) {
    InHolder<Picker> in;
    const int widest = std::max(WidthOfDashes(), 48);
    SetWidth(in.picker, 2 * widest + 20);
    EXPECT_EQ(in.picker.ImageWidth(), widest);
    SetWidth(in.picker, 2 * widest);
    EXPECT_EQ(in.picker.ImageWidth(), widest);
    SetWidth(in.picker, 2 * widest - 2);
    EXPECT_EQ(in.picker.ImageWidth(), widest - 1);
    SetWidth(in.picker, 61);
    EXPECT_EQ(in.picker.ImageWidth(), 30);
}

TEST(LineWeightPicker, ControlWithoutWidthUsesTheText) {
    InHolder<Picker> in;
    SetWidth(in.picker, 1);
    EXPECT_EQ(in.picker.ImageWidth(), WidthOfDashes());
    SetWidth(in.picker, 2);
    EXPECT_EQ(in.picker.ImageWidth(), 1);
}

TEST(LineWeightSample, GrowsWithTheWeight) {
    InHolder<Picker> in;
    EXPECT_EQ(InkedRows(in.picker, 0), 1);
    EXPECT_EQ(InkedRows(in.picker, 25), 1);
    EXPECT_EQ(InkedRows(in.picker, 30), 3) << "30 * 0.6 * 40 / 211";
    EXPECT_EQ(InkedRows(in.picker, 100), 11);
    EXPECT_EQ(InkedRows(in.picker, 211), 20) << "all but the margins";
}

TEST(LineWeightSample, LeavesItsMargins) {
    InHolder<Picker> in;
    EXPECT_EQ(InkedRows(in.picker, 211, 2), 0);
    EXPECT_EQ(InkedRows(in.picker, 211, 3), 20);
    EXPECT_EQ(InkedRows(in.picker, 211, 36), 20);
    EXPECT_EQ(InkedRows(in.picker, 211, 37), 0);
}

TEST(LineWeightSample, UsesATwentiethOfTheScale) {
    InHolder<Picker> in;
    EXPECT_EQ(in.picker.GetLineWeightScale(), 10.0);
    in.picker.SetLineWeightScale(20.0);
    EXPECT_EQ(InkedRows(in.picker, 25), 2);
    in.picker.SetLineWeightScale(19.9);
    EXPECT_EQ(InkedRows(in.picker, 25), 1);
    in.picker.SetLineWeightScale(4.0);
    EXPECT_EQ(InkedRows(in.picker, 90), 1);
}

TEST(LineWeightSample, ByBlockIsThin) {
    InHolder<Picker> in;
    EXPECT_EQ(InkedRows(in.picker, -2), 1);
    in.picker.SetLineWeightScale(20.0);
    EXPECT_EQ(InkedRows(in.picker, -2), 2) << "a weight of 1, not of 0";
    EXPECT_EQ(InkedRows(in.picker, 0), 2) << "also drawn as 1";
}

TEST(LineWeightSample, ByLayerShowsTheCurrentLayer) {
    InHolder<Picker> in;
    WorkingDrawing drawing;
    SetLayerWeight(drawing, OdDb::kLnWt100);
    EXPECT_EQ(InkedRows(in.picker, -1), 11);
    SetLayerWeight(drawing, OdDb::kLnWt030);
    EXPECT_EQ(InkedRows(in.picker, -1), 3) << "read at each paint";
}

TEST(LineWeightSample, LayerOfByBlockOrOfNoWeightIsOnePixel) {
    InHolder<Picker> in;
    in.picker.layerWeight = -2;
    EXPECT_EQ(InkedRows(in.picker, -1), 1);
    in.picker.layerWeight = 0;
    EXPECT_EQ(InkedRows(in.picker, -1), 1);
    in.picker.layerWeight = -1;
    EXPECT_EQ(InkedRows(in.picker, -1), 0) << "a layer can't follow a layer";
}

TEST(LineWeightSample, LayerOfTheDefaultWeightFollowsTheSetting) {
    InHolder<Picker> in;
    WorkingDrawing drawing;
    drawing.services().setDefaultLineWeight(OdDb::kLnWt100);
    SetLayerWeight(drawing, OdDb::kLnWtByLwDefault);
    EXPECT_EQ(InkedRows(in.picker, -1), 11);
}

TEST(LineWeightSample, DefaultWithoutHostServicesShowsTextButNoBar) {
    InHolder<Picker> in;
    EXPECT_EQ(in.texts()[2], L"Default");
    EXPECT_EQ(InkedRows(in.picker, -3), 0);
    WorkingDrawing drawing;
    drawing.services().setDefaultLineWeight(OdDb::kLnWt030);
    EXPECT_EQ(InkedRows(in.picker, -3), 3);
    drawing.services().setDefaultLineWeight(OdDb::kLnWt000);
    EXPECT_EQ(InkedRows(in.picker, -3), 1);
    drawing.services().setDefaultLineWeight(OdDb::kLnWtByBlock);
    EXPECT_EQ(InkedRows(in.picker, -3), 0) << "a default can't follow a block";
}

TEST(LineWeightSample, OtherNegativeCargosDrawNothing) {
    InHolder<Picker> in;
    EXPECT_EQ(InkedRows(in.picker, -4), 0);
    EXPECT_EQ(InkedRows(in.picker, kCargoOther), 0);
}

TEST(LineWeightPicker, OpeningAndClosingLeavesNothingBehind) {
    const auto openAndClose = [] {
        InHolder<Picker> in;
        in.dropDown();
        ui_test::pump();
        in.closeUp();
    };
    ui_test::expectNothingLeft(openAndClose);
}

TEST(LineWeightSample, CargoBeyond32BitsShowsNone) {
    InHolder<Picker> in;
    EXPECT_GT(InkedRows(in.picker, 50), 0);
    EXPECT_EQ(InkedRows(in.picker, 0x100000032), 0) << "no cargo is cut to 32 bits first";
}

TEST(LineWeightPicker, KnowsOfNoOverrideOfAViewport) {
    CKtUiLineWeightComboBox picker;
    EXPECT_EQ(picker.GetCurrentLayerVpOverride(), 0);
}
