// How bitmap buttons paint: the frame as their base has it, and the picture without its key colour on it.
#include "fake_theme.h"
#include "picture_fixture.h"

namespace {

using namespace controls;
using ui_test::Canvas;
using ui_test::FakeTheme;

constexpr COLORREF kGround = RGB(10, 200, 30);
constexpr int kYes = 16;

struct BitmapPaint : ::testing::Test {
    BitmapPaint() {
        ui_test::move_cursor({0, 0});
        make(button, holder, L"SQUARE|Caption");
        button.SetAutoSizeToBitmap(0);
        button.AutoLoad();
    }
    void draw(Canvas& canvas, int isDefault = 0, int isDisabled = 0, int isPressed = 0, int hasFocus = 0) {
        button.DrawButton(canvas.dc, kWidth, kHeight, isDefault, isDisabled, isPressed, hasFocus);
    }
    /// The square of the picture that stands at `x`, `y`, as the test draws it.
    static void putSquare(Canvas& canvas, int x, int y, COLORREF color) {
        canvas.dc.FillSolidRect(CRect(CPoint(x + 2, y + 2), CSize(6, 4)), color);
    }
    ui_test::RecordingHolder holder;
    OpenPicture<CKbUiBitmapButton> button;
};

TEST_F(BitmapPaint, ThePictureStandsInTheMiddleOfAFrameWithoutACaption) {
    Canvas canvas(kWidth, kHeight, kGround), expected(kWidth, kHeight, kGround);
    draw(canvas);
    CRect frame(0, 0, kWidth - 1, kHeight - 1);
    expected.dc.DrawFrameControl(&frame, DFC_BUTTON, DFCS_BUTTONPUSH);
    putSquare(expected, 25, 8, kSquare);
    EXPECT_TRUE(canvas == expected);
    EXPECT_EQ(canvas.count(kSquare), 6 * 4);
}

TEST_F(BitmapPaint, TheMiddleIsRoundedDown) {
    Canvas canvas(kWidth, kHeight, kGround);
    button.DrawButton(canvas.dc, 33, 21, 0, 0, kYes, 0);
    EXPECT_EQ(canvas.at(13, 8), kSquare);
    EXPECT_NE(canvas.at(12, 8), kSquare);
    EXPECT_NE(canvas.at(13, 7), kSquare);
}

TEST_F(BitmapPaint, AControlOfThePicturesSizeHasItAtItsOffsets) {
    button.SetAutoSizeToBitmap(-4);
    button.SetBitmapOffsets(3, 9);
    Canvas canvas(kWidth, kHeight, kGround);
    draw(canvas);
    EXPECT_EQ(canvas.at(5, 5), kSquare);
    EXPECT_EQ(canvas.at(10, 8), kSquare);
    EXPECT_NE(canvas.at(11, 8), kSquare);
    EXPECT_EQ(canvas.count(kSquare), 24);
}

TEST_F(BitmapPaint, APressedOneDoesNotShiftItsPicture) {
    Canvas canvas(kWidth, kHeight, kGround);
    draw(canvas, 0, 0, kYes);
    EXPECT_EQ(canvas.at(27, 10), kSquare);
    EXPECT_EQ(canvas.at(26, 9), kGround) << "the key colour is left out";
    EXPECT_EQ(canvas.at(0, 0), ::GetSysColor(COLOR_BTNSHADOW));
    EXPECT_EQ(canvas.count(kSquare), 24);
}

TEST_F(BitmapPaint, ADisabledOneIsGrey) {
    Canvas canvas(kWidth, kHeight, kGround);
    draw(canvas, 0, kYes, kYes);
    EXPECT_EQ(canvas.count(kSquare), 0);
    constexpr int kGrey = (30 * 19235 + 40 * 3735 + 200 * 9798) >> 15;
    EXPECT_EQ(canvas.count(RGB(kGrey, kGrey, kGrey)), 24);
    EXPECT_EQ(canvas.at(26, 9), kGround);
}

TEST_F(BitmapPaint, TheFocusIsMarkedUnderThePicture) {
    Canvas canvas(kWidth, kHeight, kGround), unmarked(kWidth, kHeight, kGround);
    draw(canvas, 0, 0, 0, kYes);
    draw(unmarked);
    UINT cx = 0, cy = 0;
    ::SystemParametersInfoW(SPI_GETFOCUSBORDERWIDTH, 0, &cx, 0);
    ::SystemParametersInfoW(SPI_GETFOCUSBORDERHEIGHT, 0, &cy, 0);
    const int x = static_cast<int>(cx), y = static_cast<int>(cy);
    unmarked.dc.DrawFocusRect(CRect(x + 2, y + 2, kWidth - x - 3, kHeight - y - 3));
    EXPECT_TRUE(canvas == unmarked);
}

TEST_F(BitmapPaint, UnderVisualStylesTheFrameIsTheThemes) {
    const FakeTheme theme;
    button.SendMessage(WM_THEMECHANGED);
    FakeTheme::asked.clear();
    Canvas canvas(kWidth, kHeight, kGround), expected(kWidth, kHeight);
    draw(canvas, kYes, 0, 0, 0);
    const CRect whole(0, 0, kWidth, kHeight);
    EXPECT_EQ(FakeTheme::asked,
              (std::vector<ui_test::Asked>{{"transparent?", 1, 5}, {"draw clipped", 1, 5, whole}}));
    putSquare(expected, 25, 8, kSquare);
    EXPECT_TRUE(canvas == expected);
    button.DestroyWindow();
}

TEST_F(BitmapPaint, AToolButtonPaintsTheSameFrame) {
    OpenPicture<CKbUiToolButton> tool;
    make(tool, holder, L"SQUARE");
    tool.SetAutoSizeToBitmap(0);
    tool.AutoLoad();
    Canvas canvas(kWidth, kHeight), same(kWidth, kHeight);
    tool.DrawButton(canvas.dc, kWidth, kHeight, 0, 0, 0, 0);
    draw(same);
    EXPECT_TRUE(canvas == same);
}

TEST_F(BitmapPaint, APictureOfOneColorVanishes) {
    CBitmap plain;
    plain.CreateCompatibleBitmap(CDC::FromHandle(holder.GetDC()->m_hDC), 6, 6);
    Canvas canvas(kWidth, kHeight, kGround);
    button.DrawTransparentBitmap(canvas.dc, plain, 1, 1, 6, 6, 0);
    EXPECT_TRUE(canvas.isAll(kGround));
}

TEST_F(BitmapPaint, AnotherSizeIsStretched) {
    Canvas canvas(kWidth, kHeight, kGround);
    button.DrawTransparentBitmap(canvas.dc, button.m_bitmap, 3, 2, 20, 16, 0);
    EXPECT_EQ(canvas.count(kSquare), 24 * 4);
    EXPECT_EQ(canvas.at(7, 6), kSquare);
    EXPECT_EQ(canvas.at(6, 6), kGround);
}

TEST_F(BitmapPaint, WithoutContextBitmapOrSizeNothingIsDrawn) {
    Canvas canvas(kWidth, kHeight, kGround);
    CBitmap none;
    CDC nowhere;
    button.DrawTransparentBitmap(nowhere, button.m_bitmap, 0, 0, 10, 8, 0);
    button.DrawTransparentBitmap(canvas.dc, none, 0, 0, 10, 8, 0);
    button.DrawTransparentBitmap(canvas.dc, button.m_bitmap, 0, 0, 0, 8, 0);
    button.DrawTransparentBitmap(canvas.dc, button.m_bitmap, 0, 0, 10, 0, 0);
    EXPECT_TRUE(canvas.isAll(kGround));
}

TEST_F(BitmapPaint, ItPaintsOnTheScreenWhenItIsAsked) {
    button.SetAutoSizeToBitmap(1);
    button.SizeToBitmap();
    button.arguments.clear();
    button.Invalidate();
    button.UpdateWindow();
    EXPECT_EQ(button.arguments, (std::vector<int>{20, 18, 0, 0, 0, 0}));
    CClientDC dc(&button);
    EXPECT_EQ(dc.GetPixel(8, 8), kSquare);
}

}  // namespace
