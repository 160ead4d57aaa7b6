// How the owner-draw button paints: under a theme of the test's own, and in the classic way by its pixels.
#include <ktui/controls/kbui_track_button.h>

#include "focus_borders.h"
#include "button_fixture.h"
#include "fake_theme.h"

namespace {

using namespace controls;
using ui_test::Asked;
using ui_test::Canvas;
using ui_test::FakeTheme;

constexpr COLORREF kGround = RGB(10, 200, 30);
constexpr int kYes = 16;  // some bit of a state

struct ButtonPaint : ButtonTest<> {
    /// Draws the button on `canvas`, its states being 0 or not.
    void draw(Canvas& canvas, int isDefault, int isDisabled, int isPressed, int hasFocus) {
        const HGDIOBJ former = ::SelectObject(canvas.dc.m_hDC, ::GetStockObject(DEFAULT_GUI_FONT));
        FakeTheme::wanted = canvas.dc.m_hDC;
        button.DrawButton(canvas.dc, kWidth, kHeight, isDefault, isDisabled, isPressed, hasFocus);
        FakeTheme::wanted = nullptr;
        ::SelectObject(canvas.dc.m_hDC, former);
    }
    /// What the theme is asked for a face of `state`.
    static std::vector<Asked> face(int state, bool parent = false, bool focus = false) {
        const CRect whole(0, 0, kWidth, kHeight);
        std::vector<Asked> all{{"transparent?", 1, state}};
        if (parent) all.push_back({"parent", 0, 0, whole});
        all.push_back({"draw clipped", 1, state, whole});
        if (focus) all.push_back({"content", 1, state, whole});
        return all;
    }
};

struct ThemedPaint : ButtonPaint {
    ThemedPaint() {
        button.SendMessage(WM_THEMECHANGED);
        FakeTheme::asked.clear();
    }
    ~ThemedPaint() override { button.DestroyWindow(); }
    std::vector<Asked> asked(int isDefault, int isDisabled, int isPressed, int hasFocus) {
        FakeTheme::asked.clear();
        Canvas canvas(kWidth, kHeight);
        draw(canvas, isDefault, isDisabled, isPressed, hasFocus);
        return FakeTheme::asked;
    }
    FakeTheme theme;
};

TEST_F(ThemedPaint, TheFirstConditionThatHoldsChoosesTheState) {
    EXPECT_EQ(asked(0, 0, 0, 0), face(1));
    EXPECT_EQ(asked(kYes, 0, 0, 0), face(5));
    CRect place;
    button.GetWindowRect(&place);
    ASSERT_TRUE(ui_test::move_cursor(place.CenterPoint()));
    ASSERT_TRUE(ui_test::pump_until([&] {
        POINT cursor{};
        ::GetCursorPos(&cursor);
        return ::WindowFromPoint(cursor) == button.m_hWnd;
    }));
    EXPECT_EQ(asked(kYes, 0, 0, 0), face(2));
    EXPECT_EQ(asked(kYes, 0, kYes, 0), face(3));
    EXPECT_EQ(asked(kYes, kYes, kYes, 0), face(4));
    ui_test::move_cursor({0, 0});
}

TEST_F(ThemedPaint, ADisabledDefaultButtonIsDisabledNotDefault) {
    EXPECT_EQ(asked(kYes, kYes, 0, 0), face(4));
}

TEST_F(ThemedPaint, ATransparentFaceShowsTheParentBehindIt) {
    FakeTheme::transparent = true;
    EXPECT_EQ(asked(0, 0, 0, 0), face(1, true));
}

TEST_F(ThemedPaint, TheFocusIsMarkedWhereTheThemeHasItsContent) {
    EXPECT_EQ(asked(0, 0, 0, kYes), face(1, false, true));
    button.SetWindowText(L"");
    Canvas canvas(kWidth, kHeight);
    draw(canvas, 0, 0, 0, kYes);
    Canvas expected(kWidth, kHeight);
    expected.dc.DrawFocusRect(CRect(3, 3, kWidth - 3, kHeight - 3));
    EXPECT_TRUE(canvas == expected);
    EXPECT_FALSE(canvas.isAll(RGB(255, 255, 255)));
}

TEST_F(ThemedPaint, TheCaptionIsDrawnOnTheFace) {
    Canvas canvas(kWidth, kHeight);
    draw(canvas, 0, 0, 0, 0);
    EXPECT_GT(canvas.count(::GetSysColor(COLOR_BTNTEXT)), 20);
}

struct ClassicPaint : ButtonPaint {
    /// The frame of a push button in `rect`, as the system draws it.
    static void frame(Canvas& canvas, CRect rect) {
        canvas.dc.DrawFrameControl(&rect, DFC_BUTTON, DFCS_BUTTONPUSH);
    }
};

TEST_F(ClassicPaint, APlainOneIsTheSystemsFrameOnePixelSmallerAndItsCaption) {
    Canvas canvas(kWidth, kHeight, kGround);
    draw(canvas, 0, 0, 0, 0);
    Canvas expected(kWidth, kHeight, kGround);
    frame(expected, CRect(0, 0, kWidth - 1, kHeight - 1));
    expected.dc.SelectObject(CFont::FromHandle(static_cast<HFONT>(::GetStockObject(DEFAULT_GUI_FONT))));
    expected.dc.SetBkMode(TRANSPARENT);
    expected.dc.SetTextColor(::GetSysColor(COLOR_BTNTEXT));
    CRect whole(0, 0, kWidth, kHeight);
    expected.dc.DrawText(L"Caption", 7, &whole, 0x8025);
    EXPECT_TRUE(canvas == expected);
    EXPECT_EQ(canvas.at(kWidth - 1, 3), kGround);
    EXPECT_EQ(canvas.at(3, kHeight - 1), kGround);
}

TEST_F(ClassicPaint, APressedOneIsAShadowLineAndNothingInside) {
    button.SetWindowText(L"");
    Canvas canvas(kWidth, kHeight, kGround);
    draw(canvas, 0, 0, kYes, 0);
    const COLORREF shadow = ::GetSysColor(COLOR_BTNSHADOW);
    const int right = kWidth - 2, bottom = kHeight - 2;
    EXPECT_EQ(canvas.count(shadow), 2 * right + 2 * bottom);
    EXPECT_EQ(canvas.at(0, 0), shadow);
    EXPECT_EQ(canvas.at(right, bottom), shadow);
    EXPECT_EQ(canvas.at(right, 0), shadow);
    EXPECT_EQ(canvas.at(0, bottom), shadow);
    EXPECT_EQ(canvas.at(5, 5), kGround);
}

TEST_F(ClassicPaint, ADefaultOneHasALineOfTextColorAroundItsFrame) {
    button.SetWindowText(L"");
    Canvas canvas(kWidth, kHeight, kGround);
    draw(canvas, kYes, 0, 0, 0);
    Canvas expected(kWidth, kHeight, kGround);
    const CRect rect(0, 0, kWidth - 1, kHeight - 1);
    expected.dc.FillSolidRect(&rect, ::GetSysColor(COLOR_BTNTEXT));
    expected.dc.FillSolidRect(CRect(1, 1, kWidth - 2, kHeight - 2), ::GetSysColor(COLOR_BTNFACE));
    frame(expected, CRect(1, 1, kWidth - 2, kHeight - 2));
    EXPECT_TRUE(canvas == expected);
}

TEST_F(ClassicPaint, APressedDefaultOneHasBothLines) {
    button.SetWindowText(L"");
    Canvas canvas(kWidth, kHeight, kGround);
    draw(canvas, kYes, 0, kYes, 0);
    EXPECT_EQ(canvas.at(0, 0), ::GetSysColor(COLOR_BTNTEXT));
    EXPECT_EQ(canvas.at(1, 1), ::GetSysColor(COLOR_BTNSHADOW));
    EXPECT_EQ(canvas.at(2, 2), ::GetSysColor(COLOR_BTNFACE));
    EXPECT_EQ(canvas.at(kWidth - 3, kHeight - 3), ::GetSysColor(COLOR_BTNSHADOW));
}

TEST_F(ClassicPaint, TheFrameLeavesItsRectangleAsItWas) {
    Canvas canvas(kWidth, kHeight);
    for (const int isDefault : {0, 1}) {
        CRect rect(1, 2, 30, 20);
        button.DrawPushButtonBorder(canvas.dc, rect, isDefault, 0);
        EXPECT_EQ(rect, CRect(1, 2, 30, 20));
    }
}

TEST_F(ClassicPaint, TheFocusIsMarkedWithoutACaptionToo) {
    button.SetWindowText(L"");
    Canvas unmarked(kWidth, kHeight);
    draw(unmarked, 0, 0, 0, 0);
    const ui_test::FocusBorders borders(4, 3);
    Canvas canvas(kWidth, kHeight);
    draw(canvas, 0, 0, 0, kYes);
    unmarked.dc.DrawFocusRect(CRect(4 + 2, 3 + 2, kWidth - 4 - 3, kHeight - 3 - 3));
    EXPECT_TRUE(canvas == unmarked);
}

TEST_F(ClassicPaint, ADisabledCaptionIsGreyAndTheContextIsAsBefore) {
    Canvas canvas(kWidth, kHeight, kGround);
    canvas.dc.SetTextColor(RGB(1, 2, 3));
    canvas.dc.SetBkMode(OPAQUE);
    CRect rect(0, 0, kWidth, kHeight);
    button.DrawContentText(canvas.dc, L"III", rect, kYes);
    EXPECT_GT(canvas.count(::GetSysColor(COLOR_GRAYTEXT)), 10);
    EXPECT_GT(canvas.count(kGround), kWidth * kHeight / 2) << "transparent";
    EXPECT_EQ(canvas.dc.GetTextColor(), RGB(1, 2, 3));
    EXPECT_EQ(canvas.dc.GetBkMode(), OPAQUE);
}

TEST_F(ClassicPaint, ACaptionThatIsTooLongEndsInAnEllipsis) {
    Canvas canvas(kWidth, kHeight), expected(kWidth, kHeight), whole(kWidth, kHeight);
    CRect rect(0, 0, kWidth, kHeight);
    button.DrawContentText(canvas.dc, L"a caption that is too long", rect, 0);
    for (Canvas* each : {&expected, &whole}) {
        each->dc.SetBkMode(TRANSPARENT);
        each->dc.SetTextColor(::GetSysColor(COLOR_BTNTEXT));
        each->dc.DrawText(L"a caption that is too long", -1, &rect, each == &whole ? 0x25 : 0x8025);
    }
    EXPECT_TRUE(canvas == expected);
    EXPECT_FALSE(expected == whole);
}

TEST_F(ClassicPaint, AnEmptyCaptionTouchesNothing) {
    Canvas canvas(kWidth, kHeight, kGround);
    CRect rect(0, 0, kWidth, kHeight);
    button.DrawContentText(canvas.dc, L"", rect, 0);
    EXPECT_TRUE(canvas.isAll(kGround));
}

TEST_F(ClassicPaint, ABorderIsALineInsideItsRectangleAndThePenIsPutBack) {
    Canvas canvas(20, 20, kGround);
    const HGDIOBJ pen = ::GetCurrentObject(canvas.dc.m_hDC, OBJ_PEN);
    CRect rect(2, 3, 12, 9);
    button.DrawBorder(&canvas.dc, rect, RGB(9, 8, 7));
    Canvas expected(20, 20, kGround);
    expected.dc.FillSolidRect(CRect(2, 3, 12, 9), RGB(9, 8, 7));
    expected.dc.FillSolidRect(CRect(3, 4, 11, 8), kGround);
    EXPECT_TRUE(canvas == expected);
    EXPECT_EQ(::GetCurrentObject(canvas.dc.m_hDC, OBJ_PEN), pen);
}

TEST_F(ClassicPaint, AToolButtonsBorderIsSunkenForStateOneOnly) {
    for (const int state : {0, 1, 2}) {
        Canvas canvas(30, 20), expected(30, 20);
        CRect rect(1, 2, 28, 18);
        button.DrawToolButtonBorder(canvas.dc, rect, state, 1 - state);
        CRect same(1, 2, 28, 18);
        expected.dc.DrawEdge(&same, state == 1 ? EDGE_SUNKEN : EDGE_RAISED, BF_RECT);
        EXPECT_TRUE(canvas == expected) << state;
    }
}

TEST_F(ButtonPaint, TheSystemsRequestIsPassedOnWithItsBits) {
    button.keepsPainting = false;
    Canvas canvas(100, 100);
    DRAWITEMSTRUCT item = {};
    item.CtlType = ODT_BUTTON;
    item.CtlID = kId;
    item.hwndItem = button.m_hWnd;
    item.hDC = canvas.dc.m_hDC;
    item.rcItem = CRect(4, 6, 44, 26);
    const auto passed = [&](UINT state) {
        item.itemState = state;
        holder.SendMessage(WM_DRAWITEM, kId, reinterpret_cast<LPARAM>(&item));
        return button.arguments;
    };
    EXPECT_EQ(passed(0), (std::vector<int>{40, 20, 0, 0, 0, 0}));
    EXPECT_EQ(passed(ODS_DEFAULT), (std::vector<int>{40, 20, ODS_DEFAULT, 0, 0, 0}));
    EXPECT_EQ(passed(ODS_DISABLED), (std::vector<int>{40, 20, 0, ODS_DISABLED, 0, 0}));
    EXPECT_EQ(passed(ODS_SELECTED), (std::vector<int>{40, 20, 0, 0, ODS_SELECTED, 0}));
    EXPECT_EQ(passed(ODS_FOCUS), (std::vector<int>{40, 20, 0, 0, 0, ODS_FOCUS}));
    EXPECT_EQ(passed(ODS_CHECKED | ODS_GRAYED), (std::vector<int>{40, 20, 0, 0, 0, 0}));
}

struct TrackButton : ButtonTest<CKbUiTrackButton> {};

TEST_F(TrackButton, DrawsNothing) {
    Canvas canvas(kWidth, kHeight, kGround);
    CRect rect(0, 0, kWidth, kHeight);
    DRAWITEMSTRUCT item = {};
    item.hDC = canvas.dc.m_hDC;
    item.rcItem = rect;
    button.DrawItem(&item);
    button.CKbUiTrackButton::DrawButton(canvas.dc, kWidth, kHeight, 1, 0, 0, 1);
    button.DrawBorder(&canvas.dc, rect, RGB(1, 1, 1));
    button.DrawPushButtonBorder(canvas.dc, rect, 1, 0);
    button.DrawToolButtonBorder(canvas.dc, rect, 1, 0);
    button.DrawHotBorder();
    EXPECT_TRUE(canvas.isAll(kGround));
    EXPECT_TRUE(button.arguments.empty());
}

TEST_F(TrackButton, SwallowsItsPainting) {
    button.Invalidate();
    button.SendMessage(WM_PAINT);
    EXPECT_TRUE(button.GetUpdateRect(nullptr)) << "nothing was painted";
    EXPECT_EQ(button.SendMessage(WM_NCPAINT, 1), 0);
    button.ValidateRect(nullptr);
}

TEST_F(TrackButton, HasNoThemeAndDoesNotTrack) {
    auto* theme = reinterpret_cast<CKbUiTheme*>(0x1230);
    EXPECT_EQ(button.SetTheme(theme), nullptr);
    EXPECT_EQ(button.m_theme, nullptr);
    EXPECT_EQ(button.GetTheme(), nullptr);
    button.SetTracking(1);
    EXPECT_EQ(button.m_buttonFlags, 2u);
}

struct OpenTrackButton : CKbUiTrackButton {
    using CKbUiTrackButton::CKbUiTrackButton;
    using CKbUiTrackButton::m_draw;
    using CKbUiTrackButton::releaseDraw;
};

TEST_F(TrackButton, KeepsADrawObjectThatItIsToldOfLater) {
    auto* draw = reinterpret_cast<CKbUiTrackButtonDraw*>(0x4560);
    OpenTrackButton made(draw);
    EXPECT_EQ(made.m_draw, nullptr) << "the constructor sets no field";
    EXPECT_EQ(made.SetDraw(draw), 0);
    EXPECT_EQ(made.SetDefaultDraw(), 0);
    made.releaseDraw();
    EXPECT_EQ(made.m_draw, draw);
}

}  // namespace
