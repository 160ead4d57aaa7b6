// What the strip paints, held by pixels.
#include "strip_fixture.h"

namespace {

using namespace docking_test;
using ui_test::Picture;

struct ToolTabPaint : StripTest {};

/// The pixels of column or row that have `color`, as first and last coordinate; -1 without any.
std::pair<int, int> spanOf(const Picture& picture, COLORREF color, int y, int from, int to) {
    std::pair<int, int> span(-1, -1);
    for (int x = from; x < to; ++x)
        if (picture.at(x, y) == color) {
            if (span.first < 0) span.first = x;
            span.second = x;
        }
    return span;
}

TEST_F(ToolTabPaint, ErasesWithTheFaceColor) {
    OpenStrip strip;
    make(strip, kFlat, 60, 18);
    CClientDC dc(&strip);
    dc.FillSolidRect(CRect(0, 0, 60, 18), RGB(1, 2, 3));
    EXPECT_EQ(strip.SendMessage(WM_ERASEBKGND, reinterpret_cast<WPARAM>(dc.m_hDC), 0), 1);
    const Picture picture(strip);
    EXPECT_EQ(picture.count(::GetSysColor(COLOR_3DFACE)), 60 * 18);
}

TEST_F(ToolTabPaint, WithoutTabsItIsAllBackground) {
    OpenStrip strip;
    make(strip, kFlat, 60, 18);
    EXPECT_EQ(shown(strip).count(kPaper), 60 * 18);
}

TEST_F(ToolTabPaint, DrawsTheEdgesOfEachTabInTheirColors) {
    OpenStrip strip;
    make(strip, kFlat, 400, 30);
    strip.fill(2);
    strip.SetActiveTab(1);
    const Picture picture = shown(strip);
    const int base = strip.m_tabHeight;
    // The tab from 160 to 280, not active. Its top edge.
    EXPECT_EQ(spanOf(picture, kDark, 0, 160, 280), std::make_pair(163, 275));
    // The cut corners: dark at the left, shadow at the right, each below the other.
    EXPECT_EQ(picture.at(160, 3), kDark);
    EXPECT_EQ(picture.at(161, 2), kDark);
    EXPECT_EQ(picture.at(162, 1), kDark);
    EXPECT_EQ(picture.at(276, 0), kShadow);
    EXPECT_EQ(picture.at(277, 1), kShadow);
    EXPECT_EQ(picture.at(278, 2), kShadow);
    EXPECT_EQ(picture.at(279, 3), kShadow);
    for (int y = 4; y < base; ++y) {
        EXPECT_EQ(picture.at(279, y), kShadow) << y;
        EXPECT_EQ(picture.at(160, y), kPaper) << "no line at the left, row " << y;
    }
    // The closing line; beside the tabs the base line goes on to the origin.
    EXPECT_EQ(spanOf(picture, kShadow, base, 0, 280), std::make_pair(1, 279));
    // The active tab, from 280 to 400, joins the page.
    EXPECT_EQ(spanOf(picture, kDark, 0, 280, 400), std::make_pair(283, 395));
    EXPECT_EQ(picture.at(300, base), kPaper);
    EXPECT_EQ(picture.at(399, base), kPaper);
    EXPECT_EQ(picture.at(300, base + 1), kPaper) << "nothing below";
}

TEST_F(ToolTabPaint, TheBaseLineRunsFromTheFirstVisibleTabToTheOrigin) {
    OpenStrip strip;
    make(strip, kFlat, 400, 30);
    strip.fill(1);  // the active tab, from 280 to 400
    const Picture picture = shown(strip);
    EXPECT_EQ(spanOf(picture, kShadow, strip.m_tabHeight, 0, 400), std::make_pair(1, 280));
}

TEST_F(ToolTabPaint, DrawingLeavesPenAndFontOfTheContextAsTheyWere) {
    OpenStrip strip;
    make(strip, kFlat, 150, 30);
    strip.fill(4);
    ui_test::pump();
    CClientDC dc(&strip);
    const HGDIOBJ pen = ::GetCurrentObject(dc, OBJ_PEN), font = ::GetCurrentObject(dc, OBJ_FONT);
    strip.DrawTab(&dc, strip.m_firstVisible);
    EXPECT_EQ(::GetCurrentObject(dc, OBJ_PEN), pen);
    EXPECT_EQ(::GetCurrentObject(dc, OBJ_FONT), font);
    strip.DrawScrollArea(&dc);
    strip.DrawBaseLine(&dc);
    EXPECT_EQ(::GetCurrentObject(dc, OBJ_PEN), pen);
}

TEST_F(ToolTabPaint, TheActiveTabsTextIsBold) {
    OpenStrip strip;
    make(strip, kFlat, 400, 30);
    strip.InsertTab(0, L"Hill", L"", nullptr);
    strip.InsertTab(1, L"Hill", L"", nullptr);
    const auto ink = [&](int left) {
        const Picture picture(strip, CRect(left + 6, 2, left + 114, strip.m_tabHeight - 2));
        return 108 * (strip.m_tabHeight - 4) - picture.count(kPaper);
    };
    strip.SetActiveTab(0);
    shown(strip);
    const int active = ink(160), other = ink(280);
    EXPECT_GT(other, 20);
    EXPECT_GT(active, other + other / 5);
    strip.SetActiveTab(1);
    shown(strip);
    EXPECT_EQ(ink(280), active) << "and only its text";
    EXPECT_EQ(ink(160), other);
}

TEST_F(ToolTabPaint, TextsStandInTheMiddleBetweenTheMargins) {
    OpenStrip strip;
    make(strip, kFlat, 400, 30);
    strip.InsertTab(0, L"oo", L"", nullptr);
    strip.InsertTab(1, L"oo", L"", nullptr);
    const Picture picture = shown(strip);
    int first = 400, last = 0;
    for (int x = 290; x < 390; ++x)
        for (int y = 3; y < strip.m_tabHeight - 1; ++y)
            if (picture.at(x, y) != kPaper) first = std::min(first, x), last = std::max(last, x);
    ASSERT_LT(first, last);
    EXPECT_NEAR((first + last) / 2.0, 340, 2);
}

TEST_F(ToolTabPaint, ATextWithoutRoomEndsInAnEllipsisWithinTheMargins) {
    OpenStrip strip;
    make(strip, kFlat, 400, 30);
    strip.InsertTab(0, L"WWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWW", L"", nullptr);
    const Picture picture = shown(strip);
    for (int y = 4; y < strip.m_tabHeight; ++y) {
        for (int x = 281; x < 286; ++x) EXPECT_EQ(picture.at(x, y), kPaper) << x << ' ' << y;
        for (int x = 394; x < 399; ++x) EXPECT_EQ(picture.at(x, y), kPaper) << x << ' ' << y;
    }
    // Dots end it: the upper half of its last pixels is empty, on the base line there is ink.
    int upper = 0, lower = 0;
    for (int x = 380; x < 394; ++x)
        for (int y = 3; y < strip.m_tabHeight; ++y)
            if (picture.at(x, y) != kPaper && picture.at(x, y) != kShadow)
                (y < strip.m_tabHeight / 2 - 1 ? upper : lower) += 1;
    EXPECT_GT(lower, 0);
    EXPECT_LT(upper, 14);
}

TEST_F(ToolTabPaint, TextsCanBeReadOnALightAndADarkBackground) {
    OpenStrip strip;
    make(strip, kFlat, 400, 30);
    strip.fill(1);
    for (const COLORREF paper : {RGB(0xED, 0xEC, 0xEA), RGB(40, 40, 40)}) {
        strip.SetBackground(paper);
        shown(strip);
        const Picture text(strip, CRect(290, 3, 390, strip.m_tabHeight - 1));
        EXPECT_GT(ui_test::strongestContrast(text), ui_test::kReadable) << paper;
    }
}

TEST_F(ToolTabPaint, ThreeChevronsTellOfHiddenTabs) {
    OpenStrip strip;
    make(strip, kFlat, 250, 30);
    strip.fill(7);
    expectRect(strip.m_scrollRect, 51, 0, 67, strip.m_tabHeight);
    const Picture picture = shown(strip);
    const int middle = strip.m_tabHeight / 2;
    for (int arrow = 0; arrow < 3; ++arrow) {
        const int x = 52 + 5 * arrow;
        for (int step = 0; step <= 3; ++step) {
            EXPECT_EQ(picture.at(x + step, middle - step), kDark) << arrow << ' ' << step;
            EXPECT_EQ(picture.at(x + step, middle + step), kDark) << arrow << ' ' << step;
        }
    }
    int dark = 0;
    for (int x = 51; x < 67; ++x)
        for (int y = 0; y < 30; ++y) dark += picture.at(x, y) == kDark;
    EXPECT_EQ(dark, 3 * 7) << "and nothing else";
    EXPECT_EQ(spanOf(picture, kShadow, strip.m_tabHeight, 0, 67), std::make_pair(1, 66));
    EXPECT_EQ(picture.at(0, 0), kPaper);
}

TEST_F(ToolTabPaint, WithoutHiddenTabsThereIsNoChevron) {
    OpenStrip strip;
    make(strip, kFlat, 400, 30);
    strip.fill(2);
    const Picture picture = shown(strip);
    int dark = 0;
    for (int x = 0; x < 160; ++x)
        for (int y = 0; y < 30; ++y) dark += picture.at(x, y) == kDark;
    EXPECT_EQ(dark, 0);
}

TEST_F(ToolTabPaint, AStripOnItsSideShowsTheLyingOneTurnedToReadUpward) {
    for (const int tabs : {3, 7}) {
        OpenStrip flat, side;
        make(flat, kFlat, 250, 18);
        flat.fill(tabs);
        const Picture lying = shown(flat);
        flat.ShowWindow(SW_HIDE);
        make(side, kLeft, 18, 250);
        side.fill(tabs);
        const Picture standing = shown(side);
        int different = 0;
        for (int x = 0; x < 250; ++x)
            for (int y = 0; y < 18; ++y) different += lying.at(x, y) != standing.at(y, 249 - x);
        EXPECT_EQ(different, 0) << tabs;
        EXPECT_GT(lying.count(kDark), 100);
    }
}

TEST_F(ToolTabPaint, InPlacementTwoTheTabsHangFromTheInnerEdge) {
    OpenStrip strip;
    make(strip, kRight, 30, 300);
    strip.fill(2);          // 224 available, 112 each: from 76 and from 188
    strip.SetActiveTab(1);  // at the top, down to 112; the other one below it down to 224
    const Picture picture = shown(strip);
    const int outer = strip.m_tabHeight;
    EXPECT_EQ(picture.at(0, 60), kPaper) << "the active tab joins the page";
    for (int y = 113; y < 299; ++y) EXPECT_EQ(picture.at(0, y), kShadow) << y;
    // The outer edge, dark from corner to corner: x from 79 to 183 along the strip.
    EXPECT_EQ(picture.at(outer, 299 - 79), kDark);
    EXPECT_EQ(picture.at(outer, 299 - 183), kDark);
    EXPECT_NE(picture.at(outer, 299 - 78), kDark);
    EXPECT_NE(picture.at(outer, 299 - 184), kDark);
    // Its upper side in shadow.
    for (int x = 1; x < outer - 3; ++x) EXPECT_EQ(picture.at(x, 299 - 187), kShadow) << x;
    EXPECT_EQ(picture.at(outer + 1, 200), kPaper);
}

}  // namespace
