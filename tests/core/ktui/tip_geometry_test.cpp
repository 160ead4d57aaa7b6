#include <ktui/controls/tip_geometry.h>

#include <gtest/gtest.h>

namespace {

void ExpectRect(const RECT& rect, int left, int top, int right, int bottom) {
    EXPECT_EQ(rect.left, left);
    EXPECT_EQ(rect.top, top);
    EXPECT_EQ(rect.right, right);
    EXPECT_EQ(rect.bottom, bottom);
}

}  // namespace

TEST(TipGeometry, RowTipAppearsForAWiderTextOnly) {
    const RECT row = {2, 16, 102, 32};
    EXPECT_FALSE(PlaceRowTip(row, 100, 12).wanted);
    EXPECT_TRUE(PlaceRowTip(row, 101, 12).wanted);
}

TEST(TipGeometry, RowHeightAloneStartsNoTip) {
    const TipPlace place = PlaceRowTip(RECT{2, 16, 102, 32}, 100, 40);
    EXPECT_FALSE(place.wanted);
    ExpectRect(place.rect, 0, 0, 0, 0);
}

TEST(TipGeometry, RowTipIsAsWideAsTheTextAndNeverLowerThanTheRow) {
    ExpectRect(PlaceRowTip(RECT{2, 16, 102, 32}, 150, 12).rect, 2, 16, 152, 32);
    ExpectRect(PlaceRowTip(RECT{2, 16, 102, 32}, 150, 20).rect, 2, 16, 152, 36);
}

TEST(TipGeometry, CellTipAppearsUnlessTheTextFitsBothWays) {
    const RECT cell = {10, 0, 60, 16};
    EXPECT_FALSE(PlaceCellTip(cell, 50, 16).wanted);
    EXPECT_TRUE(PlaceCellTip(cell, 51, 16).wanted);
    EXPECT_TRUE(PlaceCellTip(cell, 50, 17).wanted);
    ExpectRect(PlaceCellTip(cell, 70, 14).rect, 10, 0, 80, 14);
}

TEST(TipGeometry, HeaderTipLiesBelowAndTwentyPixelsToTheRight) {
    ExpectRect(HeaderTipArea(RECT{100, 0, 200, 24}), 124, 24, 212, 48);
}

TEST(TipGeometry, FirstColumnIsTrimmedAtItsEndOnly) {
    ExpectRect(TrimSubItemLabel(RECT{0, 0, 100, 16}, 0), 0, 0, 96, 16);
    ExpectRect(TrimSubItemLabel(RECT{100, 0, 200, 16}, 2), 104, 0, 192, 16);
}
