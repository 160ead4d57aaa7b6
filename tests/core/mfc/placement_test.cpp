// Windows that must be reachable on whatever screens there are.
#include "docking/core/placement.h"

#include <random>

#include <gtest/gtest.h>

namespace {

using namespace kmfc;
const std::vector<CRect> kOne = {CRect(0, 0, 1000, 700)};
const std::vector<CRect> kTwo = {CRect(0, 0, 1000, 700), CRect(1000, -200, 2600, 1000)};

}  // namespace

TEST(Placement, LeavesReachableWindowsAlone) {
    for (const CRect& window : {CRect(100, 100, 400, 300), CRect(920, 0, 1500, 900),
                                CRect(-320, 676, 80, 1200), CRect(0, 0, 5000, 5000), CRect(10, 10, 30, 30)}) {
        EXPECT_TRUE(is_reachable(window, kOne));
        EXPECT_EQ(brought_into_view(window, kOne), window);
    }
}

TEST(Placement, BringsTheOthersOntoTheScreen) {
    EXPECT_EQ(brought_into_view(CRect(1200, 100, 1500, 300), kOne), CRect(700, 100, 1000, 300));
    EXPECT_EQ(brought_into_view(CRect(921, 100, 1221, 300), kOne), CRect(700, 100, 1000, 300));
    EXPECT_EQ(brought_into_view(CRect(-221, 100, 79, 300), kOne), CRect(0, 100, 300, 300));
    EXPECT_EQ(brought_into_view(CRect(100, -1, 400, 200), kOne), CRect(100, 0, 400, 201));
    EXPECT_EQ(brought_into_view(CRect(100, 677, 400, 877), kOne), CRect(100, 500, 400, 700));
    EXPECT_EQ(brought_into_view(CRect(-5000, -5000, -1000, -1000), kOne), CRect(0, 0, 1000, 700));
}

TEST(Placement, ChoosesTheScreenThatIsSharedMostOrNearest) {
    EXPECT_EQ(brought_into_view(CRect(950, -190, 1100, 5), {kTwo[0], CRect(1000, -100, 2600, 1000)}).left,
              1000);
    EXPECT_EQ(brought_into_view(CRect(3000, 100, 3300, 300), kTwo), CRect(2300, 100, 2600, 300));
    EXPECT_EQ(brought_into_view(CRect(-900, 100, -600, 300), kTwo), CRect(0, 100, 300, 300));
    EXPECT_EQ(brought_into_view(CRect(1500, -500, 1800, -300), kTwo), CRect(1500, -200, 1800, 0));
}

TEST(Placement, HasNoAnswerWithoutAScreen) {
    EXPECT_FALSE(is_reachable(CRect(0, 0, 10, 10), {}));
    EXPECT_EQ(brought_into_view(CRect(5, 6, 7, 8), {}), CRect(5, 6, 7, 8));
    EXPECT_FALSE(is_reachable(CRect(10, 10, 10, 50), kOne)) << "a window without width has no caption";
}

TEST(Placement, AlwaysEndsReachable) {
    std::mt19937 engine(11);
    const auto number = [&](int least, int most) {
        return std::uniform_int_distribution<int>(least, most)(engine);
    };
    for (int i = 0; i < 5000; ++i) {
        std::vector<CRect> areas;
        for (int n = number(1, 3); n > 0; --n)
            areas.emplace_back(CPoint(number(-3000, 3000), number(-3000, 3000)),
                               CSize(number(200, 3000), number(100, 2000)));
        const CRect window(CPoint(number(-9000, 9000), number(-9000, 9000)),
                           CSize(number(1, 4000), number(24, 4000)));
        const CRect placed = brought_into_view(window, areas);
        ASSERT_TRUE(is_reachable(placed, areas)) << i;
        EXPECT_LE(placed.Width(), window.Width());
        EXPECT_LE(placed.Height(), window.Height());
        EXPECT_EQ(brought_into_view(placed, areas), placed);
    }
}
