// Hatches: which areas are filled, where pattern lines and their dashes lie, and every kind of boundary.
#include "drawn.h"

namespace {

using namespace scene_test;

std::string square(double low, double high, const char* flags = "2") {
    const std::string l = std::to_string(low), h = std::to_string(high);
    return std::string("|92 ") + flags + "|72 0|73 1|93 4|10 " + l + "|20 " + l + "|10 " + h + "|20 " + l +
           "|10 " + h + "|20 " + h + "|10 " + l + "|20 " + h + "|97 0";
}

std::string hatch(const std::string& loops, const std::string& rest, const char* solid = "0") {
    return std::string("0 HATCH|8 0|100 AcDbHatch|10 0|20 0|30 0|210 0|220 0|230 1|2 P|70 ") + solid +
           "|71 0|91 9" + loops + rest;
}

std::string pattern(const std::string& style, const std::string& lines) {
    return "|75 " + style + "|76 1|52 0|41 1|77 0|78 1" + lines + "|98 0";
}

const char* const kLevelLines = "|53 0|43 0|44 0.5|45 0|46 1|79 0";

TEST(SceneHatches, ASolidOneIsAnAreaWithItsIslandsAsFurtherBoundaries) {
    const Drawn drawn(hatch(square(0, 10) + square(2, 8), "|75 0|76 1|98 0", "1"));
    ASSERT_EQ(drawn.paths().size(), 1u);
    EXPECT_TRUE(drawn.path().filled);
    EXPECT_EQ(drawn.path().breaks, std::vector<std::size_t>{4});
    EXPECT_TRUE(isAt(drawn.path().points[2], 10, 10));
    EXPECT_TRUE(isAt(drawn.path().points[6], 8, 8));
}

TEST(SceneHatches, LinesLieTheirOffsetApartFromTheirBase) {
    const Drawn drawn(hatch(square(0, 3), pattern("0", kLevelLines)));
    ASSERT_EQ(drawn.paths().size(), 1u);
    EXPECT_FALSE(drawn.path().filled);
    EXPECT_TRUE(goesThrough(drawn.path(), {{0, 0.5}, {3, 0.5}, {0, 1.5}, {3, 1.5}, {0, 2.5}, {3, 2.5}}));
    EXPECT_EQ(drawn.path().breaks, (std::vector<std::size_t>{2, 4}));
}

TEST(SceneHatches, DashesBeginAtTheBaseOfTheirLineAndFollowTheOffset) {
    // A dash of 1 and a gap of 1; each line begins half a unit further right.
    const Drawn drawn(hatch(square(0, 3), pattern("0", "|53 0|43 0|44 0.5|45 0.5|46 1|79 2|49 1|49 -1")));
    EXPECT_TRUE(goesThrough(drawn.path(), {{0, 0.5},
                                           {1, 0.5},
                                           {2, 0.5},
                                           {3, 0.5},
                                           {0.5, 1.5},
                                           {1.5, 1.5},
                                           {2.5, 1.5},
                                           {3, 1.5},
                                           {1, 2.5},
                                           {2, 2.5}}));
}

TEST(SceneHatches, DotsAreLinesWithoutLength) {
    const Drawn drawn(hatch(square(0, 3), pattern("0", "|53 0|43 0.5|44 1.5|45 0|46 9|79 2|49 0|49 -2")));
    EXPECT_TRUE(goesThrough(drawn.path(), {{0.5, 1.5}, {0.5, 1.5}, {2.5, 1.5}, {2.5, 1.5}}));
}

TEST(SceneHatches, LinesStandAtTheirAngle) {
    const Drawn drawn(hatch(square(0, 2), pattern("0", "|53 90|43 1|44 0|45 -9|46 0|79 0")));
    EXPECT_TRUE(goesThrough(drawn.path(), {{1, 0}, {1, 2}}));
}

/// The x of the ends of the line at height 5.5.
std::vector<double> ends(const char* style) {
    const Drawn drawn(hatch(square(0, 10, "3") + square(1, 9, "18") + square(4, 7),
                            pattern(style, "|53 0|43 0|44 5.5|45 0|46 99|79 0")));
    std::vector<double> all;
    for (const OdGePoint2d& point : drawn.path().points) all.push_back(point.x);
    return all;
}

TEST(SceneHatches, IslandsCountByOddParityOnlyTheOutermostOrNotAtAll) {
    EXPECT_EQ(ends("0"), (std::vector<double>{0, 1, 4, 7, 9, 10}));
    EXPECT_EQ(ends("1"), (std::vector<double>{0, 1, 9, 10}));
    EXPECT_EQ(ends("2"), (std::vector<double>{0, 10}));
}

TEST(SceneHatches, ACornerOnALineCountsOnce) {
    // A diamond whose left and right corner lie on the line.
    const std::string diamond = "|92 2|72 0|73 1|93 4|10 0|20 1.5|10 2|20 0|10 4|20 1.5|10 2|20 3|97 0";
    const Drawn drawn(hatch(diamond, pattern("0", "|53 0|43 0|44 1.5|45 0|46 99|79 0")));
    EXPECT_TRUE(goesThrough(drawn.path(), {{0, 1.5}, {4, 1.5}}));
}

const char* const kMiddleLine = "|53 0|43 0|44 0|45 0|46 99|79 0";

TEST(SceneHatches, ABoundaryOfABulgedPolyline) {
    // A circle of radius 2 as two half circles.
    const Drawn drawn(hatch("|92 2|72 1|73 1|93 2|10 -2|20 0|42 1|10 2|20 0|42 1|97 0",
                            pattern("0", "|53 0|43 0|44 1|45 0|46 99|79 0")));
    ASSERT_EQ(drawn.path().points.size(), 2u);
    EXPECT_TRUE(isAt(drawn.path().points[0], -std::sqrt(3.0), 1, 0.005));
    EXPECT_TRUE(isAt(drawn.path().points[1], std::sqrt(3.0), 1, 0.005));
}

TEST(SceneHatches, ABoundaryOfLinesAndAnArc) {
    // A half disc above the line from -2 to 2.
    const std::string loop = "|92 1|93 2|72 1|10 -2|20 0|11 2|21 0|72 2|10 0|20 0|40 2|50 0|51 180|73 1|97 0";
    const Drawn drawn(hatch(loop, pattern("0", "|53 90|43 0|44 0|45 99|46 0|79 0")));
    EXPECT_TRUE(goesThrough(drawn.path(), {{0, 0}, {0, 2}}, 0.005));
}

TEST(SceneHatches, AClockwiseArcHasItsAnglesTheOtherWayRound) {
    // From 0 clockwise by 180 degrees: the half disc below.
    const std::string loop = "|92 1|93 2|72 1|10 -2|20 0|11 2|21 0|72 2|10 0|20 0|40 2|50 0|51 180|73 0|97 0";
    const Drawn drawn(hatch(loop, pattern("0", "|53 90|43 0|44 0|45 99|46 0|79 0")));
    EXPECT_TRUE(goesThrough(drawn.path(), {{0, -2}, {0, 0}}, 0.005));
}

TEST(SceneHatches, ABoundaryOfAnEllipse) {
    const Drawn drawn(
        hatch("|92 1|93 1|72 3|10 1|20 0|11 4|21 0|40 0.5|50 0|51 360|73 1|97 0", pattern("0", kMiddleLine)));
    EXPECT_TRUE(goesThrough(drawn.path(), {{-3, 0}, {5, 0}}, 1e-6));
    const Drawn upright(hatch("|92 1|93 1|72 3|10 1|20 0|11 4|21 0|40 0.5|50 0|51 360|73 1|97 0",
                              pattern("0", "|53 90|43 1|44 0|45 99|46 0|79 0")));
    EXPECT_TRUE(goesThrough(upright.path(), {{1, -2}, {1, 2}}, 1e-6));
}

TEST(SceneHatches, ABoundaryOfASpline) {
    // An arch whose middle is at 3, and the line back.
    const std::string loop =
        "|92 1|93 2|72 4|94 3|73 0|74 0|95 8|96 4|40 0|40 0|40 0|40 0|40 1|40 1|40 1|40 1|10 0|20 0|10 0|20 "
        "4|10 "
        "4|20 4|10 4|20 0|97 0|72 1|10 4|20 0|11 0|21 0|97 0";
    const Drawn drawn(hatch(loop, pattern("0", "|53 90|43 2|44 0|45 99|46 0|79 0")));
    EXPECT_TRUE(goesThrough(drawn.path(), {{2, 0}, {2, 3}}, 0.01));
}

TEST(SceneHatches, AGradientIsItsMeanColor) {
    const Drawn drawn(hatch(square(0, 1),
                            "|75 0|76 1|98 0|450 1|451 0|460 0|461 0|452 0|462 0|453 2|463 0|63 1|421 "
                            "16711680|463 1|63 5|421 255|470 LINEAR",
                            "1"));
    EXPECT_TRUE(drawn.path().filled);
    EXPECT_EQ(drawn.path().style.color.red(), 127);
    EXPECT_EQ(drawn.path().style.color.green(), 0);
    EXPECT_EQ(drawn.path().style.color.blue(), 127);
    const Drawn tinted(hatch(
        square(0, 1), "|75 0|76 1|98 0|450 1|452 1|462 1|453 1|463 0|63 1|421 16711680|470 LINEAR", "1"));
    EXPECT_EQ(tinted.path().style.color.red(), 255);
    EXPECT_EQ(tinted.path().style.color.green(), 127) << "half way to white";
}

TEST(SceneHatches, AHatchLiesInItsPlane) {
    const Drawn drawn("0 HATCH|8 0|100 AcDbHatch|10 0|20 0|30 0|210 0|220 0|230 -1|2 P|70 0|71 0|91 1" +
                      square(0, 3) + pattern("0", "|53 0|43 0|44 1|45 0|46 9|79 0"));
    EXPECT_TRUE(goesThrough(drawn.path(), {{0, 1}, {-3, 1}}));
}

TEST(SceneHatches, LinesOfAPatternAreContinuousWhateverTheLayersDashes) {
    const Drawn drawn({.tables = table("LTYPE", "0 LTYPE|2 DASHED|70 0|3 d|72 65|73 2|40 2|49 1|49 -1"),
                       .entities = "0 HATCH|8 0|6 DASHED|100 AcDbHatch|10 0|20 0|30 0|2 P|70 0|71 0|91 1" +
                                   square(0, 3) + pattern("0", kLevelLines)});
    EXPECT_TRUE(drawn.path().style.dashes.empty());
}

TEST(SceneHatches, WithoutFillingThereAreNone) {
    EXPECT_TRUE(
        Drawn(Parts{.header = "9 $FILLMODE|70 0", .entities = hatch(square(0, 3), pattern("0", kLevelLines))})
            .paths()
            .empty());
}

TEST(SceneHatches, EndlessLinesAreLeftOutAndCounted) {
    for (const char* offset : {"|53 0|43 0|44 0|45 0|46 0.0000001|79 0", "|53 0|43 0|44 0|45 1|46 0|79 0"}) {
        const Drawn drawn(hatch(square(0, 3), pattern("0", offset)));
        EXPECT_TRUE(drawn.paths().empty());
        EXPECT_EQ(drawn.scene.notDrawn.at("HATCH"), 1);
    }
    const Drawn fine(
        hatch(square(0, 3), pattern("0", "|53 0|43 0|44 0|45 0|46 1|79 2|49 1e-300|49 -1e-300")));
    EXPECT_FALSE(fine.scene.isCut) << "dashes too small to count are a line";
}

TEST(SceneHatches, BoundariesThatSayNothingAreNothing) {
    EXPECT_TRUE(Drawn(hatch("", "|75 0|76 1|98 0", "1")).paths().empty());
    EXPECT_TRUE(
        Drawn(hatch("|92 2|72 0|73 1|93 2|10 0|20 0|10 1|20 1|97 0", "|75 0|98 0", "1")).paths().empty());
    EXPECT_TRUE(Drawn("0 HATCH|8 0|2 P|70 1").paths().empty());
    EXPECT_TRUE(Drawn(hatch("|92 1|93 1|72 9|10 0|20 0|97 0", "|75 0|98 0", "1")).paths().empty());
}

TEST(SceneHatches, ManyBoundariesAreNestedInTime) {
    std::string loops = square(0, 1000);
    for (int i = 0; i < 3000; ++i) loops += square(1 + i * 0.1, 1 + i * 0.1 + 0.05);
    const Drawn drawn(hatch(loops, "|75 1|76 1|98 0", "1"));
    EXPECT_FALSE(drawn.scene.isCut);
    EXPECT_EQ(drawn.path().breaks.size(), 3000u);
}

}  // namespace
