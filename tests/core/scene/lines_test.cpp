// Lines, arcs and filled quadrilaterals where a file says they are.
#include "drawn.h"

namespace {

using namespace scene_test;

TEST(SceneLines, ALineRunsFromItsStartToItsEnd) {
    const Drawn drawn("0 LINE|8 0|10 1|20 2|30 0|11 4|21 6|31 0");
    ASSERT_EQ(drawn.paths().size(), 1u);
    EXPECT_TRUE(goesThrough(drawn.path(), {{1, 2}, {4, 6}}));
    EXPECT_FALSE(drawn.path().filled);
}

TEST(SceneLines, AnArcRunsCounterClockwise) {
    const Drawn drawn("0 ARC|8 0|10 10|20 0|30 0|40 5|50 270|51 90");
    ASSERT_EQ(drawn.paths().size(), 1u);
    EXPECT_TRUE(isAt(drawn.path().points.front(), 10, -5));
    EXPECT_TRUE(isAt(drawn.path().points.back(), 10, 5));
    EXPECT_LT(distanceTo(drawn.path(), 15, 0), 0.01);
    EXPECT_GT(distanceTo(drawn.path(), 5, 0), 5.0);
}

TEST(SceneLines, TheThirdAndFourthCornerOfASolidLieCrosswise) {
    const Drawn drawn("0 SOLID|8 0|10 0|20 0|30 0|11 4|21 0|31 0|12 0|22 3|32 0|13 4|23 3|33 0");
    ASSERT_EQ(drawn.paths().size(), 1u);
    EXPECT_TRUE(drawn.path().filled);
    EXPECT_TRUE(goesThrough(drawn.path(), {{0, 0}, {4, 0}, {4, 3}, {0, 3}}));
}

}  // namespace
