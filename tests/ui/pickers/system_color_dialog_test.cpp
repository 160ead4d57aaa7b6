// The system's colour dialog behind the colour pickers: what it starts from and what comes back.
#include <ktui/pickers/color_combo_box.h>
#include <ktui/pickers/true_color_combo_box.h>

#include "picker_fixture.h"
#include "working_drawing.h"

using namespace ui_test;

namespace {

// Fields of the dialog, as the platform numbers them.
constexpr int kRedField = 706;
constexpr int kGreenField = 707;
constexpr int kBlueField = 708;

/// Enters the colour 10, 20, 30 into the next colour dialog, notes the colour that it started from, and
/// presses `button`.
void answerDialog(COLORREF& startedFrom, WORD button) {
    when_dialog(L"", [&startedFrom, button](HWND dialog) {
        const auto read = [&](int id) {
            return static_cast<BYTE>(::GetDlgItemInt(dialog, id, nullptr, FALSE));
        };
        startedFrom = RGB(read(kRedField), read(kGreenField), read(kBlueField));
        ::SetDlgItemInt(dialog, kRedField, 10, FALSE);
        ::SetDlgItemInt(dialog, kGreenField, 20, FALSE);
        ::SetDlgItemInt(dialog, kBlueField, 30, FALSE);
        ::PostMessageW(dialog, WM_COMMAND, button, 0);
    });
}

OdCmColor rgb(BYTE red, BYTE green, BYTE blue) {
    OdCmColor color;
    color.setRGB(red, green, blue);
    return color;
}

}  // namespace

TEST(SystemColorDialog, WritesTheChosenColourBack) {
    InHolder<CKtUiColorComboBox> in;
    DWORD color = RGB(200, 90, 40);
    COLORREF startedFrom = 0;
    answerDialog(startedFrom, IDOK);
    EXPECT_EQ(in.picker.GetWindowsColor(color), 1);
    EXPECT_EQ(startedFrom, RGB(200, 90, 40));
    EXPECT_EQ(color, RGB(10, 20, 30));
}

TEST(SystemColorDialog, CancelledOneWritesNothingBack) {
    InHolder<CKtUiColorComboBox> in;
    DWORD color = RGB(200, 90, 40);
    COLORREF startedFrom = 0;
    answerDialog(startedFrom, IDCANCEL);
    EXPECT_EQ(in.picker.GetWindowsColor(color), 0);
    EXPECT_EQ(color, RGB(200, 90, 40));
}

TEST(SystemColorDialog, TrueColourGetsEachByteInItsPlace) {
    InHolder<CKtUiTrueColorComboBox> in;
    OdCmColor color = rgb(200, 90, 40);
    COLORREF startedFrom = 0;
    answerDialog(startedFrom, IDOK);
    EXPECT_EQ(in.picker.GetWindowsColor(color), 1);
    EXPECT_EQ(startedFrom, RGB(200, 90, 40));
    EXPECT_EQ(color, rgb(10, 20, 30));
}

TEST(SystemColorDialog, CancelledOneLeavesTheTrueColour) {
    InHolder<CKtUiTrueColorComboBox> in;
    OdCmColor color = rgb(200, 90, 40);
    COLORREF startedFrom = 0;
    answerDialog(startedFrom, IDCANCEL);
    EXPECT_EQ(in.picker.GetWindowsColor(color), 0);
    EXPECT_EQ(color, rgb(200, 90, 40));
}

TEST(SystemColorDialog, SecondOtherAddsItsAnswerAndACancelNothing) {
    InHolder<CKtUiTrueColorComboBox> in;
    const int item = in.picker.AddColorToMRU(rgb(200, 90, 40));
    in.picker.SetCurSel(item);
    COLORREF startedFrom = 0;
    int index = 77;
    answerDialog(startedFrom, IDCANCEL);
    EXPECT_EQ(in.picker.OnSelectOther(1, item, index), 0);
    EXPECT_EQ(index, 77);
    EXPECT_EQ(in.picker.GetCount(), 10);
    answerDialog(startedFrom, IDOK);
    EXPECT_EQ(in.picker.OnSelectOther(1, item, index), 1);
    EXPECT_EQ(startedFrom, RGB(200, 90, 40)) << "without a drawing, which the first one needs";
    EXPECT_EQ(index, 9);
    EXPECT_EQ(in.picker.getColorByCargo(static_cast<int>(in.picker.GetItemCargo(9))), RGB(10, 20, 30));
    EXPECT_EQ(in.picker.GetCount(), 11);
}
