#include "bar_rows.h"

#include <gtest/gtest.h>

namespace {

constexpr int kEdge = 4, kGap = 2;

/// "row:left+width" of each part.
std::string placed(const std::vector<int>& widths, int room) {
    std::string text;
    for (const BarPlace& place : PlaceInRows(widths, room, kEdge, kGap))
        text += (text.empty() ? "" : " ") + std::to_string(place.row) + ":" + std::to_string(place.left) +
                "+" + std::to_string(place.width);
    return text;
}

}  // namespace

TEST(PlaceInRows, OneRowWhileThereIsRoom) {
    EXPECT_EQ(placed({10, 20, 30}, 72), "0:4+10 0:16+20 0:38+30") << "72 = 4 + 10 + 2 + 20 + 2 + 30 + 4";
    EXPECT_EQ(placed({10, 20, 30}, 500), "0:4+10 0:16+20 0:38+30");
}

TEST(PlaceInRows, APixelLessTakesTheLastToTheNextRow) {
    EXPECT_EQ(placed({10, 20, 30}, 71), "0:4+10 0:16+20 1:4+30");
}

TEST(PlaceInRows, ARowHasAsManyAsFit) {
    EXPECT_EQ(placed({10, 20, 30}, 40), "0:4+10 0:16+20 1:4+30");
    EXPECT_EQ(placed({10, 20, 30}, 39), "0:4+10 1:4+20 2:4+30");
    EXPECT_EQ(placed({10, 20, 30, 5}, 45), "0:4+10 0:16+20 1:4+30 1:36+5");
}

TEST(PlaceInRows, AWidePartIsAsWideAsItsRow) {
    EXPECT_EQ(placed({10, 20, 30}, 28), "0:4+10 1:4+20 2:4+20");
    EXPECT_EQ(placed({10, 20}, 14), "0:4+6 1:4+6");
    EXPECT_EQ(placed({10, 20}, 0), "0:4+1 1:4+1") << "a frame without any room";
}

TEST(RowCount, IsThatOfTheLastPart) {
    EXPECT_EQ(RowCount(PlaceInRows({10, 20, 30}, 72, kEdge, kGap)), 1);
    EXPECT_EQ(RowCount(PlaceInRows({10, 20, 30}, 39, kEdge, kGap)), 3);
    EXPECT_EQ(RowCount({}), 0);
}
