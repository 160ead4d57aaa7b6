// Where the look draws borders, grippers, separators and the signs of states: the pixels that each takes.
#include <afxglobals.h>
#include <afxmenuimages.h>
#include <afxtoolbarbutton.h>
#include <afxvisualmanager.h>
#include <gtest/gtest.h>

#include <set>

#include "canvas.h"

namespace {

constexpr COLORREF kGround = RGB(255, 0, 255);

/// A canvas that is compared with rectangles.
struct Drawn : ui_test::Canvas {
    Drawn() : Canvas(60, 50, kGround) {}
    /// Whether just the pixels of these rectangles were drawn on.
    void expect_just(const char* name, const std::vector<CRect>& rects) const {
        for (int y = 0; y < 50; ++y)
            for (int x = 0; x < 60; ++x) {
                bool wanted = false;
                for (const CRect& rect : rects) wanted |= rect.PtInRect(CPoint(x, y)) != FALSE;
                ASSERT_EQ(at(x, y) != kGround, wanted) << name << " at " << x << ',' << y;
            }
    }
};

struct LookShapes : ::testing::Test {
    LookShapes() {
        afxGlobalData.m_nDpi = 96;
        CMFCVisualManager::SetDefaultManager(nullptr);
    }
    ~LookShapes() override { afxGlobalData.m_nDpi = former; }
    CMFCVisualManager& look() { return *CMFCVisualManager::GetInstance(); }

    const int former = afxGlobalData.m_nDpi;
    const CRect box{7, 5, 47, 35};
};

}  // namespace

TEST_F(LookShapes, BordersOfFloatingFrames) {
    Drawn drawn;
    look().OnDrawMiniFrameBorder(&drawn.dc, nullptr, box, CRect(3, 2, 5, 4));
    drawn.expect_just("frame", {{7, 5, 47, 7}, {7, 31, 47, 35}, {7, 5, 10, 35}, {42, 5, 47, 35}});
    EXPECT_EQ(drawn.at(7, 20), drawn.at(46, 20)) << "a line around all";
    EXPECT_EQ(drawn.at(20, 5), drawn.at(20, 34));
    EXPECT_EQ(drawn.at(7, 20), drawn.at(20, 5));
    EXPECT_NE(drawn.at(8, 20), drawn.at(7, 20)) << "inside of it the bars' color";
    EXPECT_EQ(drawn.at(8, 20), drawn.at(44, 20));
    EXPECT_EQ(drawn.at(20, 6), drawn.at(20, 32));
    EXPECT_EQ(drawn.at(8, 20), afxGlobalData.clrBarFace);
}

TEST_F(LookShapes, BordersOfHiddenPanesButtons) {
    Drawn drawn;
    look().OnDrawAutoHideButtonBorder(&drawn.dc, box, CRect(3, 2, 5, 4), nullptr);
    drawn.expect_just("button", {{7, 5, 47, 7}, {7, 31, 47, 35}, {7, 5, 10, 35}, {42, 5, 47, 35}});
    EXPECT_EQ(drawn.at(8, 20), drawn.at(44, 20));
    Drawn one;
    look().OnDrawAutoHideButtonBorder(&one.dc, box, CRect(0, 2, 0, 0), nullptr);
    one.expect_just("only above", {{7, 5, 47, 7}});
    Drawn filled;
    look().OnFillAutoHideButtonBackground(&filled.dc, box, nullptr);
    filled.expect_just("background", {box});
}

TEST_F(LookShapes, BarsDividersAndPaneBorders) {
    Drawn bar, plain, edged, pane;
    look().OnFillBarBackground(&bar.dc, nullptr, box, box);
    bar.expect_just("bar", {box});
    EXPECT_EQ(bar.at(20, 20), afxGlobalData.clrBarFace);
    look().OnDrawPaneDivider(&plain.dc, nullptr, box, FALSE);
    plain.expect_just("divider", {box});
    EXPECT_EQ(plain.at(7, 5), plain.at(20, 20));
    look().OnDrawPaneDivider(&edged.dc, nullptr, box, TRUE);
    edged.expect_just("divider of a hidden pane", {box});
    EXPECT_NE(edged.at(7, 5), edged.at(20, 20)) << "with a line around it";
    EXPECT_EQ(edged.at(46, 34), edged.at(7, 5));
    CRect border(box);
    look().OnDrawPaneBorder(&pane.dc, nullptr, border);
    pane.expect_just("border", {{7, 5, 47, 6}, {7, 34, 47, 35}, {7, 5, 8, 35}, {46, 5, 47, 35}});
    EXPECT_EQ(border, box);
}

TEST_F(LookShapes, GrippersAreDotsAlongTheBarsEnd) {
    // 30 pixels: six dots of two, every four, in the middle of the length.
    const auto dots = [](int from, bool upright, int across) {
        std::vector<CRect> all;
        for (int i = 0; i < 6; ++i) {
            const int at = from + 4 * i;
            all.push_back(upright ? CRect(across, at, across + 2, at + 2)
                                  : CRect(at, across, at + 2, across + 2));
        }
        return all;
    };
    Drawn row, column;
    look().OnDrawBarGripper(&row.dc, CRect(10, 5, 16, 35), TRUE, nullptr);
    row.expect_just("of a row", dots(5 + (30 - 5 * 4 - 2) / 2, true, 13 - 1));
    look().OnDrawBarGripper(&column.dc, CRect(10, 5, 40, 11), FALSE, nullptr);
    column.expect_just("of a column", dots(10 + (30 - 5 * 4 - 2) / 2, false, 8 - 1));
    Drawn tiny;
    look().OnDrawBarGripper(&tiny.dc, CRect(10, 5, 16, 8), TRUE, nullptr);
    tiny.expect_just("too short", {});
    EXPECT_EQ(row.at(12, 9), column.at(14, 7));
}

TEST_F(LookShapes, SeparatorsLeaveTheirEndsFree) {
    Drawn row, column;
    look().OnDrawSeparator(&row.dc, nullptr, CRect(10, 5, 16, 35), TRUE);
    row.expect_just("in a row", {{13, 8, 14, 32}});
    look().OnDrawSeparator(&column.dc, nullptr, CRect(10, 5, 40, 11), FALSE);
    column.expect_just("in a column", {{13, 8, 37, 9}});
    afxGlobalData.m_nDpi = 192;
    Drawn large;
    look().OnDrawSeparator(&large.dc, nullptr, CRect(10, 5, 16, 35), TRUE);
    large.expect_just("twice as fine", {{13, 11, 15, 29}});
}

TEST_F(LookShapes, ButtonsShowTheirStates) {
    CMFCToolBarButton plain(100, 0), checked(101, 0), disabled(102, 0);
    checked.SetStyle(TBBS_CHECKED);
    disabled.SetStyle(TBBS_DISABLED);
    using Look = CMFCVisualManager;
    const auto fill = [&](CMFCToolBarButton& button, Look::AFX_BUTTON_STATE state) {
        Drawn drawn;
        look().OnFillButtonInterior(&drawn.dc, &button, box, state);
        const bool all =
            drawn.at(7, 5) != kGround && drawn.at(46, 34) != kGround && drawn.at(47, 34) == kGround;
        return all ? drawn.at(20, 20) : drawn.isAll(kGround) ? kGround : CLR_INVALID;
    };
    EXPECT_EQ(fill(plain, Look::ButtonsIsRegular), kGround) << "shows the bar";
    const COLORREF hot = fill(plain, Look::ButtonsIsHighlighted),
                   pressed = fill(plain, Look::ButtonsIsPressed);
    EXPECT_NE(hot, kGround);
    EXPECT_NE(hot, CLR_INVALID);
    EXPECT_NE(pressed, hot);
    EXPECT_EQ(fill(checked, Look::ButtonsIsRegular), hot);
    EXPECT_EQ(fill(checked, Look::ButtonsIsHighlighted), pressed) << "deeper than one of both";
    const auto border = [&](CMFCToolBarButton& button, Look::AFX_BUTTON_STATE state) {
        Drawn drawn;
        look().OnDrawButtonBorder(&drawn.dc, &button, box, state);
        EXPECT_EQ(drawn.at(20, 20), kGround) << "nothing inside";
        EXPECT_EQ(drawn.at(7, 5), drawn.at(46, 34));
        return drawn.at(7, 20);
    };
    EXPECT_EQ(border(plain, Look::ButtonsIsRegular), kGround);
    EXPECT_NE(border(plain, Look::ButtonsIsPressed), kGround);
    EXPECT_EQ(border(checked, Look::ButtonsIsRegular), border(plain, Look::ButtonsIsHighlighted));
    EXPECT_NE(border(disabled, Look::ButtonsIsHighlighted), border(plain, Look::ButtonsIsHighlighted));
    const auto text = [&](CMFCToolBarButton& button, Look::AFX_BUTTON_STATE state) {
        return look().GetToolbarButtonTextColor(&button, state);
    };
    EXPECT_EQ(text(checked, Look::ButtonsIsRegular), text(plain, Look::ButtonsIsHighlighted));
    EXPECT_NE(text(disabled, Look::ButtonsIsRegular), text(plain, Look::ButtonsIsRegular));
    EXPECT_EQ(text(disabled, Look::ButtonsIsPressed), text(disabled, Look::ButtonsIsRegular));
}

TEST_F(LookShapes, FlatButtonsFillOnlyWhenTheyAreHotOrPressed) {
    const auto drawn = [&](bool hot, bool pressed, bool enabled) {
        Drawn canvas;
        look().draw_flat_button(&canvas.dc, box, CMenuImages::IdClose, hot, pressed, enabled);
        return std::pair(canvas.at(7, 5), canvas.pixels());
    };
    const auto plain = drawn(false, false, true), hot = drawn(true, false, true),
               pressed = drawn(true, true, true);
    EXPECT_EQ(plain.first, kGround);
    EXPECT_NE(hot.first, kGround);
    EXPECT_NE(pressed.first, kGround);
    EXPECT_NE(pressed.first, hot.first);
    EXPECT_NE(plain.second, std::vector<COLORREF>(60 * 50, kGround)) << "there is a sign";
    const auto disabled = drawn(true, true, false);
    EXPECT_EQ(disabled.first, kGround) << "one that can't be pressed doesn't light up";
    EXPECT_NE(disabled.second, plain.second);
}
