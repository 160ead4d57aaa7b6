#include <ktui/pickers/color_swatch.h>

#include <gtest/gtest.h>

#include <set>

namespace {

bool operator==(const RECT& a, const RECT& b) {
    return a.left == b.left && a.top == b.top && a.right == b.right && a.bottom == b.bottom;
}

}  // namespace

TEST(ColorSwatch, SixteenPixelImageHasTwelvePixelFrameAndTenPixelArea) {
    const RECT image = {100, 20, 116, 36};
    EXPECT_TRUE(SwatchFrame(image) == (RECT{102, 22, 114, 34}));
    EXPECT_TRUE(SwatchArea(image) == (RECT{103, 23, 113, 33}));
}

TEST(ColorSwatch, SixPixelImageHasNoArea) {
    EXPECT_TRUE(IsEmptyRect(SwatchArea(RECT{0, 0, 6, 16})));
    EXPECT_TRUE(IsEmptyRect(SwatchArea(RECT{0, 0, 16, 6})));
    EXPECT_FALSE(IsEmptyRect(SwatchArea(RECT{0, 0, 7, 7})));
    EXPECT_TRUE(IsEmptyRect(SwatchFrame(RECT{0, 0, 3, 3})));
}

TEST(ColorSwatch, FirstRowOfTheRamp) {
    const int expected[kRampColumns] = {18, 16, 14, 12, 10, 11, 13, 15, 17, 19};
    for (int column = 0; column < kRampColumns; ++column)
        EXPECT_EQ(RampColorIndex(0, column), expected[column]);
}

TEST(ColorSwatch, RampHoldsEveryChromaticIndexOnce) {
    std::set<int> indexes;
    for (int row = 0; row < kRampRows; ++row)
        for (int column = 0; column < kRampColumns; ++column) indexes.insert(RampColorIndex(row, column));
    EXPECT_EQ(indexes.size(), 240u);
    EXPECT_EQ(*indexes.begin(), 10);
    EXPECT_EQ(*indexes.rbegin(), 249);
}

TEST(ColorSwatch, RampRowsRunAcrossAndColumnsRunDown) {
    EXPECT_EQ(RampColorIndexAt(0, 0, 10, 10), RampColorIndex(0, 0));
    EXPECT_EQ(RampColorIndexAt(9, 0, 10, 10), RampColorIndex(21, 0));
    EXPECT_EQ(RampColorIndexAt(0, 9, 10, 10), RampColorIndex(0, 9));
    EXPECT_EQ(RampColorIndexAt(239, 99, 240, 100), RampColorIndex(23, 9));
}

TEST(ColorSwatch, DiagonalIsBlackAboveAndWhiteOnAndBelow) {
    EXPECT_EQ(DiagonalColorAt(1, 0), 0x000000u);
    EXPECT_EQ(DiagonalColorAt(0, 0), 0xFFFFFFu);
    EXPECT_EQ(DiagonalColorAt(3, 3), 0xFFFFFFu);
    EXPECT_EQ(DiagonalColorAt(3, 4), 0xFFFFFFu);
    EXPECT_EQ(DiagonalColorAt(9, 8), 0x000000u);
}
