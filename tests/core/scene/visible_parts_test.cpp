// What of lines and areas lies in a rectangle, and where the pieces of a scene lie.
#include "visible_parts.h"

#include "drawn.h"
#include "scene_bounds.h"

namespace {

constexpr SceneExtents kArea{{0, 0}, {10, 4}};

using Points = std::vector<OdGePoint2d>;

void expectPoints(const Points& points, const Points& expected) {
    ASSERT_EQ(points.size(), expected.size());
    for (std::size_t i = 0; i < points.size(); ++i) {
        EXPECT_NEAR(points[i].x, expected[i].x, 1e-12) << i;
        EXPECT_NEAR(points[i].y, expected[i].y, 1e-12) << i;
    }
}

/// Twice the area that a boundary surrounds, positive counterclockwise.
double twiceTheArea(const Points& points) {
    double sum = 0;
    for (std::size_t i = 0, last = points.size() - 1; i < points.size(); last = i++)
        sum += points[last].x * points[i].y - points[i].x * points[last].y;
    return sum;
}

}  // namespace

TEST(VisibleLines, WhatLiesInsideStaysAsItIs) {
    const Points points = {{1, 1}, {9, 1}, {9, 3}};
    const auto pieces = VisibleLines(points, kArea);
    ASSERT_EQ(pieces.size(), 1u);
    expectPoints(pieces[0].points, points);
    EXPECT_EQ(pieces[0].skipped, 0);
}

TEST(VisibleLines, BeginAndEndAtTheSidesAndKnowHowLongTheLineWasBefore) {
    const auto pieces = VisibleLines(Points{{-6, 1}, {14, 1}}, kArea);
    ASSERT_EQ(pieces.size(), 1u);
    expectPoints(pieces[0].points, {{0, 1}, {10, 1}});
    EXPECT_DOUBLE_EQ(pieces[0].skipped, 6);
    const auto back = VisibleLines(Points{{5, 9}, {5, -9}}, kArea);
    ASSERT_EQ(back.size(), 1u);
    expectPoints(back[0].points, {{5, 4}, {5, 0}});
    EXPECT_DOUBLE_EQ(back[0].skipped, 5);
}

TEST(VisibleLines, ALineThatLeavesAndComesBackHasTwoPieces) {
    const auto pieces = VisibleLines(Points{{2, 2}, {2, 8}, {6, 8}, {6, 2}, {8, 2}}, kArea);
    ASSERT_EQ(pieces.size(), 2u);
    expectPoints(pieces[0].points, {{2, 2}, {2, 4}});
    EXPECT_EQ(pieces[0].skipped, 0);
    expectPoints(pieces[1].points, {{6, 4}, {6, 2}, {8, 2}});
    EXPECT_DOUBLE_EQ(pieces[1].skipped, 6 + 4 + 4);
}

TEST(VisibleLines, ACornerOutsidePartsTheLine) {
    const auto pieces = VisibleLines(Points{{2, 2}, {5, 8}, {8, 2}}, kArea);
    ASSERT_EQ(pieces.size(), 2u);
    expectPoints(pieces[0].points, {{2, 2}, {3, 4}});
    expectPoints(pieces[1].points, {{7, 4}, {8, 2}});
}

TEST(VisibleLines, NothingOfWhatPassesBeside) {
    EXPECT_TRUE(VisibleLines(Points{{-1, 0}, {-1, 4}}, kArea).empty());
    EXPECT_TRUE(VisibleLines(Points{{-3, 2}, {3, 8}}, kArea).empty()) << "beside a corner";
    EXPECT_TRUE(VisibleLines(Points{{11, 5}, {20, 5}}, kArea).empty());
    EXPECT_TRUE(VisibleLines(Points{}, kArea).empty());
}

TEST(VisibleLines, ASinglePointIsALineWithoutLength) {
    const auto pieces = VisibleLines(Points{{10, 4}}, kArea);
    ASSERT_EQ(pieces.size(), 1u);
    expectPoints(pieces[0].points, {{10, 4}, {10, 4}});
    EXPECT_TRUE(VisibleLines(Points{{10, 4.1}}, kArea).empty());
}

TEST(VisibleLines, ALongLineKeepsItsDirection) {
    const auto pieces = VisibleLines(Points{{-3e12, -1e12}, {3e12 + 9, 1e12 + 3}}, kArea);
    ASSERT_EQ(pieces.size(), 1u);
    const Points& seen = pieces[0].points;
    ASSERT_EQ(seen.size(), 2u);
    EXPECT_NEAR((seen[1].y - seen[0].y) / (seen[1].x - seen[0].x), 1.0 / 3, 1e-3);
}

TEST(VisibleBoundary, IsCutAtEachSide) {
    const Points inside = {{1, 1}, {9, 1}, {9, 3}};
    expectPoints(VisibleBoundary(inside, kArea), inside);
    const Points whole = {{0, 0}, {10, 0}, {10, 4}, {0, 4}};
    expectPoints(VisibleBoundary(whole, kArea), whole);
    EXPECT_DOUBLE_EQ(twiceTheArea(VisibleBoundary(Points{{-5, 1}, {15, 1}, {15, 3}, {-5, 3}}, kArea)),
                     2 * 20);
    EXPECT_DOUBLE_EQ(twiceTheArea(VisibleBoundary(Points{{2, -5}, {4, -5}, {4, 15}, {2, 15}}, kArea)), 2 * 8);
    EXPECT_DOUBLE_EQ(twiceTheArea(VisibleBoundary(Points{{-5, 2}, {5, -8}, {15, 2}, {5, 12}}, kArea)),
                     2 * 40.0)
        << "it surrounds all of the area";
    for (const OdGePoint2d& point : VisibleBoundary(Points{{-5, 2}, {5, -1}, {15, 2}, {5, 5}}, kArea)) {
        EXPECT_TRUE(point.x >= 0 && point.x <= 10) << point.x;
        EXPECT_TRUE(point.y >= 0 && point.y <= 4) << point.y;
    }
}

TEST(VisibleBoundary, NothingOfWhatLiesBeside) {
    for (const OdGePoint2d& by :
         {OdGePoint2d{-20, 0}, OdGePoint2d{20, 0}, OdGePoint2d{0, -20}, OdGePoint2d{0, 20}})
        EXPECT_TRUE(
            VisibleBoundary(Points{{1 + by.x, 1 + by.y}, {5 + by.x, 1 + by.y}, {3 + by.x, 3 + by.y}}, kArea)
                .empty());
    EXPECT_TRUE(VisibleBoundary(Points{}, kArea).empty());
}

TEST(SceneBounds, AreThoseOfThePoints) {
    Scene scene;
    scene.paths.push_back({.points = {{3, 1}, {-2, 5}, {1, -4}}, .style = {}, .entity = {}});
    scene.paths.push_back({.points = {{7, 7}}, .style = {}, .entity = {}});
    const SceneBounds bounds(scene);
    EXPECT_EQ(bounds.path(0).low.x, -2);
    EXPECT_EQ(bounds.path(0).low.y, -4);
    EXPECT_EQ(bounds.path(0).high.x, 3);
    EXPECT_EQ(bounds.path(0).high.y, 5);
    EXPECT_EQ(bounds.path(1).low.x, 7);
    EXPECT_EQ(bounds.path(1).high.y, 7);
}

TEST(SceneBounds, OfATextLeaveRoomForAnyFontAndTurn) {
    Scene scene;
    SceneText text;
    text.text = OdString(L"mmmm");
    text.position = {100, 50};
    text.height = 2;
    scene.texts.push_back(text);
    const SceneBounds bounds(scene);
    const SceneExtents& all = bounds.text(0);
    // Four of the widest letters are not wider than twice as many heights.
    EXPECT_LE(all.low.x, 100 - 16);
    EXPECT_GE(all.high.x, 100 + 16);
    EXPECT_LE(all.low.y, 50 - 16);
    EXPECT_GE(all.high.y, 50 + 16);
    EXPECT_LT(all.high.x, 200) << "and yet say where it is";
}

TEST(SceneExtents, OfASceneAreWhatEachClipLeaves) {
    Scene scene;
    scene.clips = {{{{0, 0}, {4, 0}, {4, 4}, {0, 4}}}, {{{10, 0}, {14, 0}, {14, 4}, {10, 4}}}};
    for (const int clip : {0, 1}) {
        scene.paths.push_back({.points = {{-50, 1}, {50, 2}}, .style = {}, .entity = {}});
        scene.paths.back().clip = clip;
    }
    const SceneExtents all = scene.extents();
    EXPECT_EQ(all.low.x, 0);
    EXPECT_EQ(all.high.x, 14);
    EXPECT_EQ(all.low.y, 1);
    EXPECT_EQ(all.high.y, 2);
}

TEST(SceneExtents, MeetWhatSharesAPlaceAndHoldWhatIsAllInside) {
    EXPECT_TRUE(kArea.meets({{10, 4}, {12, 6}})) << "a corner";
    EXPECT_TRUE(kArea.meets({{-5, -5}, {20, 20}}));
    EXPECT_FALSE(kArea.meets({{10.1, 0}, {12, 4}}));
    EXPECT_FALSE(kArea.meets({{-2, 0}, {-0.1, 4}}));
    EXPECT_FALSE(kArea.meets({{0, 4.1}, {10, 5}}));
    EXPECT_FALSE(kArea.meets({{0, -5}, {10, -0.1}}));
    EXPECT_FALSE(kArea.meets({}));
    EXPECT_TRUE(kArea.holds({{0, 0}, {10, 4}}));
    EXPECT_TRUE(kArea.holds({}));
    EXPECT_FALSE(kArea.holds({{-0.1, 1}, {2, 2}}));
    EXPECT_FALSE(kArea.holds({{1, -0.1}, {2, 2}}));
    EXPECT_FALSE(kArea.holds({{1, 1}, {10.1, 2}}));
    EXPECT_FALSE(kArea.holds({{1, 1}, {2, 4.1}}));
}
