// Lines in dashes: which pixels a pattern leaves, along a line, around a corner and where it is too fine.
#include "dash_pattern.h"

#include <string>

#include "canvas.h"
#include "replaced_import.h"
#include "ui_test.h"

namespace {

constexpr COLORREF kBlack = RGB(0, 0, 0);

/// The pixels of a path as text, x for drawn ones, from `from` on in one direction.
class Drawn {
public:
    Drawn(const std::vector<CPoint>& points, const std::vector<double>& dashes, double scale = 1)
        : m_canvas(40, 40) {
        DrawDashedPath(m_canvas.dc, points, dashes, scale);
    }
    std::string along(CPoint from, CPoint step, int count) const {
        std::string text;
        for (int i = 0; i < count; ++i)
            text += m_canvas.at(from.x + i * step.x, from.y + i * step.y) == kBlack ? 'x' : '.';
        return text;
    }
    std::string row(int x, int y, int count) const { return along({x, y}, {1, 0}, count); }
    std::string column(int x, int y, int count) const { return along({x, y}, {0, 1}, count); }
    int count() const { return m_canvas.count(kBlack); }

private:
    ui_test::Canvas m_canvas;
};

}  // namespace

TEST(DashPattern, DashesAndGapsAlternate) {
    const Drawn right({{5, 7}, {25, 7}}, {4, -2});
    EXPECT_EQ(right.row(5, 7, 22), "xxxx..xxxx..xxxx..xx..");
    EXPECT_EQ(right.count(), 14);
    const Drawn down({{7, 5}, {7, 25}}, {4, -2});
    EXPECT_EQ(down.column(7, 5, 22), "xxxx..xxxx..xxxx..xx..");
    const Drawn left({{25, 7}, {5, 7}}, {4, -2});
    EXPECT_EQ(left.along({25, 7}, {-1, 0}, 22), "xxxx..xxxx..xxxx..xx..");
}

TEST(DashPattern, TheScaleIsPixelsForAUnit) {
    EXPECT_EQ(Drawn({{0, 0}, {20, 0}}, {2, -1}, 3).row(0, 0, 21), "xxxxxx...xxxxxx...xx.");
    EXPECT_EQ(Drawn({{0, 0}, {20, 0}}, {8, -4}, 0.5).row(0, 0, 21), "xxxx..xxxx..xxxx..xx.");
}

TEST(DashPattern, ADotIsOnePixel) {
    EXPECT_EQ(Drawn({{0, 0}, {20, 0}}, {4, -3, 0, -3}).row(0, 0, 21), "xxxx...x..xxxx...x...");
}

TEST(DashPattern, GoesOnAroundACorner) {
    const Drawn corner({{5, 5}, {11, 5}, {11, 20}}, {5, -4});
    EXPECT_EQ(corner.row(5, 5, 6), "xxxxx.");
    EXPECT_EQ(corner.column(11, 5, 16), "...xxxxx....xxx.");
}

TEST(DashPattern, ALeaningLineHasThePatternByItsLength) {
    // 3, 4, 5: a dash of 10 covers 6 pixels across and 8 down.
    const Drawn leaning({{2, 2}, {20, 26}}, {10, -10});
    EXPECT_EQ(leaning.column(2, 2, 1), "x");
    int first = 0, gap = 0;
    for (int x = 2; x < 8; ++x) first += leaning.column(x, 2, 30).find('x') != std::string::npos;
    for (int x = 8; x < 14; ++x) gap += leaning.column(x, 2, 30).find('x') != std::string::npos;
    EXPECT_EQ(first, 6);
    EXPECT_EQ(gap, 0);
}

TEST(DashPattern, WhatIsTooFineIsContinuous) {
    const std::string whole(20, 'x');
    EXPECT_EQ(Drawn({{0, 0}, {20, 0}}, {1.4, -1.5}).row(0, 0, 20), whole);
    EXPECT_EQ(Drawn({{0, 0}, {20, 0}}, {1, -2}).row(0, 0, 20), "x..x..x..x..x..x..x.");
    EXPECT_EQ(Drawn({{0, 0}, {20, 0}}, {}).row(0, 0, 20), whole);
    EXPECT_EQ(Drawn({{0, 0}, {20, 0}}, {9}).row(0, 0, 20), whole);
    EXPECT_EQ(Drawn({}, {4, -2}).count(), 0);
    EXPECT_EQ(Drawn({{3, 4}, {3, 4}}, {}).count(), 1);
}

TEST(DashPattern, ASampleRepeatsItTwoAndAHalfTimesInTheMiddle) {
    ui_test::Canvas canvas(60, 12);
    DrawLinetypeSample(canvas.dc, CRect(5, 1, 55, 11), {30, -10}, RGB(255, 0, 0), RGB(0, 255, 0));
    std::string row;
    for (int x = 0; x < 60; ++x)
        row += canvas.at(x, 6) == RGB(255, 0, 0) ? 'x' : canvas.at(x, 6) == RGB(0, 255, 0) ? '.' : ' ';
    // 50 pixels for 2.5 times 40 units: a dash is 15 pixels, a gap 5.
    EXPECT_EQ(row, "     xxxxxxxxxxxxxxx.....xxxxxxxxxxxxxxx.....xxxxxxxxxx     ");
    EXPECT_EQ(canvas.count(RGB(255, 0, 0)), 40);
    EXPECT_EQ(canvas.count(RGB(0, 255, 0)), 50 * 10 - 40);
}

namespace {

int WINAPI twiceAsFine(HDC, int index) { return index == LOGPIXELSY ? 192 : 0; }

}  // namespace

TEST(DashPattern, ASampleIsTwiceAsThickWherePixelsAreHalfAsHigh) {
    const ui_test::ReplacedImport layer(::GetModuleHandleW(L"kmfc.dll"), "GetDeviceCaps", &twiceAsFine);
    const ui_test::ReplacedImport own(::GetModuleHandleW(L"ktstandin.dll"), "GetDeviceCaps", &twiceAsFine);
    ASSERT_TRUE(layer.isThere() || own.isThere());
    ui_test::Canvas canvas(60, 12);
    DrawLinetypeSample(canvas.dc, CRect(5, 1, 55, 11), {}, RGB(255, 0, 0), RGB(0, 255, 0));
    int thick = 0;
    for (int y = 0; y < 12; ++y) thick += canvas.at(30, y) == RGB(255, 0, 0);
    EXPECT_EQ(thick, 2);
}
