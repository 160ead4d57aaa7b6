// Dimensions with and without blocks, leaders, multileaders, multilines, tolerances, pictures and areas that
// hide.
#include "drawn.h"

namespace {

using namespace scene_test;

/// The table with the style Standard; what `first` sets counts.
std::string styles(const std::string& first = "") {
    return table("DIMSTYLE", "0 DIMSTYLE|105 27|2 Standard|70 0" + first +
                                 "|40 1|41 1|42 0.5|44 2|140 3|147 1|271 2|78 8|77 0|73 0|75 0|76 0");
}

Drawn dimension(const std::string& groups, const std::string& style = "", const std::string& header = "") {
    return Drawn(
        Parts{.header = header, .tables = styles(style), .entities = "0 DIMENSION|8 0|3 Standard|" + groups});
}

const char* const kLevel = "70 0|10 20|20 10|30 0|13 0|23 0|33 0|14 20|24 4|34 0";

TEST(SceneDimensions, ABlockDrawsADimensionAndItsPointsAreDots) {
    const Drawn drawn(Parts{
        .header = "9 $PDMODE|70 3",
        .blocks = block("*D1", "0 LINE|8 0|62 0|10 0|20 0|30 0|11 9|21 0|31 0|0 POINT|8 0|10 4|20 4|30 0"),
        .entities = "0 DIMENSION|8 0|62 3|2 *D1|70 0|10 0|20 0|30 0"});
    ASSERT_EQ(drawn.paths().size(), 2u);
    EXPECT_TRUE(goesThrough(drawn.path(0), {{0, 0}, {9, 0}}));
    EXPECT_EQ(drawn.path(0).style.color.colorIndex(), 3);
    EXPECT_TRUE(goesThrough(drawn.path(1), {{4, 4}, {4, 4}}));
}

TEST(SceneDimensions, ACopyMayShareItsBlockMoved) {
    const Drawn drawn(Parts{.blocks = block("*D1", "0 LINE|8 0|10 0|20 0|30 0|11 9|21 0|31 0"),
                            .entities = "0 DIMENSION|8 0|2 *D1|70 0|10 0|20 0|30 0|12 5|22 6|32 0"});
    EXPECT_TRUE(goesThrough(drawn.path(), {{5, 6}, {14, 6}}));
}

TEST(SceneDimensions, ALinearOneIsLaidOutFromItsPoints) {
    const Drawn drawn = dimension(kLevel);
    ASSERT_EQ(drawn.paths().size(), 5u);
    EXPECT_TRUE(goesThrough(drawn.path(0), {{0, 0.5}, {0, 12}}))
        << "from beside the point to beyond the line";
    EXPECT_TRUE(goesThrough(drawn.path(1), {{20, 4.5}, {20, 12}}));
    EXPECT_TRUE(goesThrough(drawn.path(2), {{0, 10}, {20, 10}}));
    EXPECT_TRUE(drawn.path(3).filled);
    EXPECT_TRUE(goesThrough(drawn.path(3), {{0, 10}, {1, 10 - 1.0 / 6}, {1, 10 + 1.0 / 6}}));
    EXPECT_TRUE(goesThrough(drawn.path(4), {{20, 10}, {19, 10 + 1.0 / 6}, {19, 10 - 1.0 / 6}}));
    EXPECT_EQ(drawn.text().text, L"20");
    EXPECT_EQ(drawn.text().height, 3);
    EXPECT_TRUE(isAt(drawn.text().position, 10, 8.5)) << "its middle on the line";
}

TEST(SceneDimensions, ATurnedOneMeasuresAlongItsAngle) {
    const Drawn drawn = dimension(std::string(kLevel) + "|50 90");
    EXPECT_TRUE(goesThrough(drawn.path(0), {{0.5, 0}, {22, 0}}));
    EXPECT_TRUE(goesThrough(drawn.path(1), {{20, 0}, {20, 4}}))
        << "the second place lies on the line already";
    EXPECT_EQ(drawn.text().text, L"4");
    EXPECT_NEAR(drawn.text().rotation, kPi / 2, 1e-9);
}

TEST(SceneDimensions, AnAlignedOneMeasuresBetweenItsPoints) {
    const Drawn drawn = dimension("70 1|10 -4|20 3|30 0|13 0|23 0|33 0|14 6|24 8|34 0");
    EXPECT_EQ(drawn.text().text, L"10");
    EXPECT_TRUE(goesThrough(drawn.path(2), {{-4, 3}, {2, 11}}));
    const Drawn moved = dimension("70 1|10 96|20 103|30 0|13 100|23 100|33 0|14 106|24 108|34 0");
    EXPECT_TRUE(goesThrough(moved.path(2), {{96, 103}, {102, 111}}));
}

TEST(SceneDimensions, SettingsOfTheStyleAndItsOverridesCount) {
    EXPECT_EQ(dimension(kLevel, "|144 0.123456").text().text, L"2.47") << "factor and decimals";
    EXPECT_EQ(dimension(kLevel, "|144 0.125|78 0").text().text, L"2.50") << "zeros at the end are kept";
    EXPECT_EQ(dimension(kLevel, "|144 0.025|78 12|271 1").text().text, L".5");
    EXPECT_EQ(dimension(kLevel, "|144 0.125|278 44").text().text, L"2,5");
    EXPECT_EQ(dimension(kLevel, "|3 <> mm").text().text, L"20 mm");
    EXPECT_EQ(dimension(kLevel, "|3  mm").text().text, L"20 mm");
    EXPECT_EQ(dimension(kLevel, "|45 15").text().text, L"15");
    EXPECT_EQ(dimension(kLevel, "|40 2").text().height, 6) << "everything grows with the overall scale";
    EXPECT_EQ(dimension(kLevel, "|75 1").paths().size(), 4u) << "without the first extension line";
    EXPECT_NEAR(dimension(kLevel, "|77 1").text().position.y, 10 + 1 + 1.5 - 1.5, 1e-9)
        << "above the line by the gap";
    EXPECT_EQ(dimension(kLevel, "|178 1").text().style.color.colorIndex(), 1);
    EXPECT_EQ(dimension(kLevel, "|176 2").path(2).style.color.colorIndex(), 2);
    EXPECT_EQ(dimension(kLevel, "|177 4").path(0).style.color.colorIndex(), 4);
    EXPECT_EQ(dimension(kLevel, "|371 50").path(2).style.lineWeight, 50);
    EXPECT_EQ(dimension(kLevel, "|371 50").path(0).style.lineWeight, 25);
    EXPECT_EQ(dimension(kLevel, "|372 70").path(0).style.lineWeight, 70);
    const Drawn ticked = dimension(kLevel, "|142 1");
    EXPECT_TRUE(goesThrough(ticked.path(4), {{19, 9}, {21, 11}}));
    const Drawn overridden = dimension(
        std::string(kLevel) + "|1001 ACAD|1000 DSTYLE|1002 {|1070 140|1040 5|1070 178|1070 6|1002 }");
    EXPECT_EQ(overridden.text().height, 5);
    EXPECT_EQ(overridden.text().style.color.colorIndex(), 6);
}

TEST(SceneDimensions, WordsOfItsOwnReplaceTheMeasure) {
    const auto words = [](const char* own) { return dimension(std::string(kLevel) + "|1 " + own); };
    EXPECT_EQ(words("about <>!").text().text, L"about 20!");
    EXPECT_EQ(words("free").text().text, L"free");
    EXPECT_TRUE(words(" ").texts().empty());
    EXPECT_TRUE(isAt(dimension(std::string(kLevel) + "|11 3|21 30|31 0").text().position, 3, 28.5))
        << "where the file puts it";
}

TEST(SceneDimensions, ArrowsStandOutsideWhereThereIsNoRoom) {
    const Drawn drawn = dimension("70 0|10 2|20 10|30 0|13 0|23 0|33 0|14 2|24 0|34 0");
    EXPECT_TRUE(goesThrough(drawn.path(3), {{0, 10}, {-1, 10 + 1.0 / 6}, {-1, 10 - 1.0 / 6}}));
    EXPECT_TRUE(goesThrough(drawn.path(5), {{-2, 10}, {-1, 10}}));
    EXPECT_TRUE(goesThrough(drawn.path(6), {{3, 10}, {4, 10}}));
}

TEST(SceneDimensions, DiameterAndRadiusAreMarked) {
    const Drawn diameter = dimension("70 3|10 0|20 0|30 0|15 10|25 0|35 0");
    EXPECT_EQ(diameter.text().text,
              L"\u00D8"
              L"10");
    EXPECT_TRUE(goesThrough(diameter.path(0), {{0, 0}, {10, 0}}));
    const Drawn radius = dimension("70 4|10 0|20 0|30 0|15 3|25 4|35 0");
    EXPECT_EQ(radius.text().text, L"R5");
    EXPECT_TRUE(goesThrough(radius.path(0), {{0, 0}, {3, 4}}));
    EXPECT_TRUE(isAt(radius.path(1).points[0], 3, 4)) << "the tip of the arrow";
}

TEST(SceneDimensions, AnAngleIsMeasuredWhereItsArcLies) {
    // Vertex 0,0, legs along x and y, the arc at a distance of 10.
    const Drawn inner =
        dimension("70 5|10 7.0710678118|20 7.0710678118|30 0|13 5|23 0|33 0|14 0|24 5|34 0|15 0|25 0|35 0");
    EXPECT_EQ(inner.text().text, L"90\u00B0");
    EXPECT_LT(distanceTo(inner.path(2), 7.0710678, 7.0710678), 0.02);
    EXPECT_TRUE(goesThrough(inner.path(0), {{5.5, 0}, {12, 0}}));
    EXPECT_EQ(inner.paths().size(), 5u) << "two lines, the arc and its arrows";
    const Drawn outer =
        dimension("70 5|10 -7.0710678118|20 -7.0710678118|30 0|13 5|23 0|33 0|14 0|24 5|34 0|15 0|25 0|35 0");
    EXPECT_EQ(outer.text().text, L"270\u00B0");
    // Two lines that cross at 0,0.
    const Drawn lines = dimension(
        "70 2|13 2|23 0|33 0|14 8|24 0|34 0|15 0|25 2|35 0|10 0|20 8|30 0|16 7.0710678118|26 7.0710678118|36 "
        "0");
    EXPECT_EQ(lines.text().text, L"90\u00B0");
    EXPECT_TRUE(goesThrough(lines.path(0), {{8.5, 0}, {12, 0}})) << "from the nearer end of the line";
}

TEST(SceneDimensions, AnOrdinateIsALineWithAJog) {
    const Drawn drawn = dimension("70 70|10 0|20 0|30 0|13 5|23 1|33 0|14 8|24 11|34 0");
    EXPECT_EQ(drawn.text().text, L"5");
    EXPECT_TRUE(goesThrough(drawn.path(), {{5, 1.5}, {5, 7}, {8, 9}, {8, 11}}));
    EXPECT_EQ(dimension("70 6|10 0|20 0|30 0|13 5|23 1|33 0|14 15|24 2|34 0").text().text, L"1");
}

TEST(SceneDimensions, ArrowheadsAreBlocksOrUsualFigures) {
    const Drawn none = dimension(kLevel, "|5 _NONE");
    EXPECT_EQ(none.paths().size(), 3u);
    const Drawn dots = dimension(kLevel, "|5 _DOT");
    EXPECT_TRUE(dots.path(3).filled);
    EXPECT_LT(distanceTo(dots.path(3), 0.5, 10), 0.01);
    const Drawn two = dimension(kLevel, "|173 1|6 _NONE|7 _OBLIQUE");
    ASSERT_EQ(two.paths().size(), 4u);
    EXPECT_TRUE(goesThrough(two.path(3), {{19.5, 9.5}, {20.5, 10.5}}));
    const Drawn own(Parts{.tables = styles("|5 MINE"),
                          .blocks = block("MINE", "0 LINE|8 0|10 0|20 0|30 0|11 -3|21 0|31 0"),
                          .entities = std::string("0 DIMENSION|8 0|3 Standard|") + kLevel});
    EXPECT_TRUE(goesThrough(own.path(3), {{0, 10}, {3, 10}}));
    EXPECT_EQ(own.paths().size(), 5u) << "the block in place of the usual figure";
}

TEST(SceneDimensions, OtherKindsWithoutABlockOrPointsAreCounted) {
    EXPECT_EQ(Drawn("0 ARC_DIMENSION|8 0|70 8").scene.notDrawn.at("ARC_DIMENSION"), 1);
    EXPECT_EQ(Drawn("0 LARGE_RADIAL_DIMENSION|8 0").scene.notDrawn.at("LARGE_RADIAL_DIMENSION"), 1);
}

Drawn leader(const std::string& more, const std::string& style = "") {
    return Drawn(Parts{
        .tables = styles(style),
        .entities = "0 LEADER|8 0|3 Standard|76 3|10 0|20 0|30 0|10 6|20 8|30 0|10 10|20 8|30 0|" + more});
}

TEST(SceneLeaders, ALeaderHasItsArrowheadAtItsFirstVertex) {
    const Drawn drawn = leader("71 1|72 0|73 3");
    ASSERT_EQ(drawn.paths().size(), 2u);
    EXPECT_TRUE(goesThrough(drawn.path(0), {{0, 0}, {6, 8}, {10, 8}}));
    EXPECT_TRUE(drawn.path(1).filled);
    EXPECT_TRUE(isAt(drawn.path(1).points[0], 0, 0));
    const OdGePoint2d back = {(drawn.path(1).points[1].x + drawn.path(1).points[2].x) / 2,
                              (drawn.path(1).points[1].y + drawn.path(1).points[2].y) / 2};
    EXPECT_TRUE(isAt(back, 0.6, 0.8));
    EXPECT_EQ(leader("71 0|72 0|73 3").paths().size(), 1u);
    EXPECT_EQ(leader("71 1|72 0|73 3", "|41 6").paths().size(), 1u) << "no room for an arrowhead";
}

TEST(SceneLeaders, ASplinedOneIsACurveAndAHookLineGoesUnderItsText) {
    EXPECT_GT(leader("71 0|72 1|73 3").path().points.size(), 5u);
    EXPECT_TRUE(goesThrough(leader("71 0|72 0|73 0|74 1|75 1|41 7|211 1|221 0|231 0", "|77 1").path(),
                            {{0, 0}, {6, 8}, {10, 8}, {2, 8}}));
    EXPECT_TRUE(goesThrough(leader("71 0|72 0|73 0|74 0|75 1|41 7|211 1|221 0|231 0", "|77 1").path(),
                            {{0, 0}, {6, 8}, {10, 8}, {18, 8}}));
    EXPECT_EQ(leader("71 0|72 0|73 0|74 0|75 1|41 7", "|77 0").path().points.size(), 3u)
        << "the text is beside the line";
    EXPECT_EQ(leader("71 0|72 0|73 3|74 0|75 1|41 7", "|77 1").path().points.size(), 3u)
        << "there is no text";
}

std::string multileader(const char* lineKind, const char* content) {
    return std::string(
               "0 MULTILEADER|8 0|100 AcDbMLeader|270 2|300 CONTEXT_DATA{|40 1|10 30|20 10|30 0|41 2|140 "
               "1.5|145 1|") +
           content +
           "|302 LEADER{|290 1|291 1|10 20|20 10|30 0|11 1|21 0|31 0|90 0|40 5|304 LEADER_LINE{|10 0|20 0|30 "
           "0|91 0|305 }|304 "
           "LEADER_LINE{|10 0|20 20|30 0|91 1|305 }|271 0|303 }|272 9|273 9|301 }|340 0|90 0|170 " +
           lineKind + "|291 1|172 2|343 0|173 1";
}

const char* const kNote =
    "290 1|304 one\\Ptwo|11 0|21 0|31 1|340 0|12 26|22 11|32 0|13 1|23 0|33 0|42 0|43 0|44 0|45 1|170 1|171 "
    "1|296 0";

TEST(SceneLeaders, AMultileaderHasLinesADoglegAndItsText) {
    const Drawn drawn(multileader("1", kNote));
    ASSERT_EQ(drawn.paths().size(), 5u);
    EXPECT_TRUE(goesThrough(drawn.path(0), {{0, 0}, {20, 10}}));
    EXPECT_TRUE(drawn.path(1).filled);
    EXPECT_TRUE(goesThrough(drawn.path(2), {{0, 20}, {20, 10}}));
    EXPECT_TRUE(goesThrough(drawn.path(4), {{20, 10}, {25, 10}}));
    ASSERT_EQ(drawn.texts().size(), 2u);
    EXPECT_EQ(drawn.text(0).text, L"one");
    EXPECT_TRUE(isAt(drawn.text(0).position, 26, 9)) << "the top left of the box is given";
    EXPECT_EQ(drawn.text(0).height, 2);
    EXPECT_TRUE(Drawn(multileader("0", kNote)).paths().empty()) << "without lines";
    const auto with = [](const char* part, const char* other) {
        std::string entity = multileader("1", kNote);
        entity.replace(entity.find(part), std::string(part).size(), other);
        return Drawn(entity);
    };
    EXPECT_EQ(with("|291 1|172", "|291 0|172").paths().size(), 4u) << "without a dogleg";
    EXPECT_EQ(with("|40 5|", "|40 0|").paths().size(), 4u) << "its dogleg has no length";
    EXPECT_EQ(with("|304 one\\Ptwo|", "|304 one two|").texts().size(), 1u);
    EXPECT_EQ(with("|304 one\\Ptwo|11 0|21 0|31 1|340 0|12 26|22 11|32 0|13 1|23 0|33 0|42 0|43 0|",
                   "|304 one two|11 0|21 0|31 1|340 0|12 26|22 11|32 0|13 1|23 0|33 0|42 0|43 5|")
                  .texts()
                  .size(),
              2u)
        << "its words break at the width of the text";
}

TEST(SceneLeaders, AMultileadersContentMayBeABlock) {
    const Drawn drawn(Parts{
        .tables = table("BLOCK_RECORD",
                        "0 BLOCK_RECORD|5 B1|100 AcDbSymbolTableRecord|100 AcDbBlockTableRecord|2 NOTE"),
        .blocks = block("NOTE", "0 LINE|8 0|10 1|20 0|30 0|11 2|21 0|31 0", "10 1|20 0|30 0"),
        .entities = multileader(
            "0", "290 0|296 1|341 B1|14 0|24 0|34 1|15 7|25 8|35 0|16 2|26 2|36 2|46 1.5707963267948966")});
    EXPECT_TRUE(goesThrough(drawn.path(), {{7, 8}, {7, 10}}));
}

TEST(SceneMultilines, EachLineRunsAtItsPlaceAlongTheMiters) {
    const std::string style =
        "0 MLINESTYLE|5 C0|330 0|100 AcDbMlineStyle|2 TWO|70 272|3 |62 256|51 90|52 90|71 2|49 0.5|62 1|6 "
        "BYLAYER|49 -0.5|62 256|6 BYLAYER";
    const auto vertex = [](const char* at, const char* direction, const char* miter, const char* a,
                           const char* b) {
        return std::string("|") + at + "|" + direction + "|" + miter + "|74 2|41 " + a +
               "|41 0|75 0|74 2|41 " + b + "|41 0|75 0";
    };
    const std::string entity =
        "0 MLINE|8 0|62 3|100 AcDbMline|2 TWO|340 C0|40 1|70 1|71 1|72 3|73 2|10 0|20 0|30 0" +
        vertex("11 0|21 0|31 0", "12 1|22 0|32 0", "13 0|23 1|33 0", "0.5", "-0.5") +
        vertex("11 10|21 0|31 0", "12 0|22 1|32 0", "13 -0.70710678118654752|23 0.70710678118654752|33 0",
               "0.70710678118654752", "-0.70710678118654752") +
        vertex("11 10|21 10|31 0", "12 0|22 1|32 0", "13 -1|23 0|33 0", "0.5", "-0.5");
    const Drawn drawn(Parts{.entities = entity, .objects = style});
    ASSERT_EQ(drawn.paths().size(), 6u);
    EXPECT_TRUE(goesThrough(drawn.path(0), {{0, 0.5}, {9.5, 0.5}}));
    EXPECT_TRUE(goesThrough(drawn.path(1), {{9.5, 0.5}, {9.5, 10}}));
    EXPECT_TRUE(goesThrough(drawn.path(2), {{0, -0.5}, {10.5, -0.5}}));
    EXPECT_EQ(drawn.path(0).style.color.colorIndex(), 1) << "the line's own";
    EXPECT_EQ(drawn.path(2).style.color.colorIndex(), 3) << "by layer is the multiline's";
    EXPECT_TRUE(goesThrough(drawn.path(4), {{0, -0.5}, {0, 0.5}})) << "the cap at the start";
    EXPECT_TRUE(goesThrough(drawn.path(5), {{10.5, 10}, {9.5, 10}}));
}

TEST(SceneMultilines, CutsLeaveGapsAndWithoutAStyleLinesAreDrawnAllTheSame) {
    const Drawn drawn(
        "0 MLINE|8 0|100 AcDbMline|2 X|340 0|40 1|70 0|71 1|72 2|73 1|10 0|20 0|30 0|11 0|21 0|31 0|12 1|22 "
        "0|32 0|13 0|23 "
        "1|33 0|74 4|41 1|41 0|41 3|41 5|75 0|11 10|21 0|31 0|12 1|22 0|32 0|13 0|23 1|33 0|74 2|41 1|41 "
        "0|75 0");
    ASSERT_EQ(drawn.paths().size(), 2u);
    EXPECT_TRUE(goesThrough(drawn.path(0), {{0, 1}, {3, 1}}));
    EXPECT_TRUE(goesThrough(drawn.path(1), {{5, 1}, {10, 1}}));
}

TEST(SceneTolerances, FieldsStandInBoxesRowByRow) {
    const OdDbDatabasePtr drawing = drawingOf(
        {.tables = styles(),
         .entities =
             "0 TOLERANCE|8 0|3 Standard|10 10|20 20|30 0|11 1|21 0|31 0|1 {\\Fgdt;j}%%v0.1%%v%%vA^Jxx"});
    SceneOptions options;
    options.textWidth = [](const SceneFont&, std::wstring_view words) {
        return static_cast<double>(words.size());
    };
    const Scene scene = BuildScene(*drawing, drawing->modelSpaceId(), options);
    ASSERT_EQ(scene.paths.size(), 4u) << "an empty field has no box";
    // Letters of 3, a margin of half of that on both sides, rows of 6.
    EXPECT_TRUE(goesThrough(scene.paths[0], {{10, 17}, {16, 17}, {16, 23}, {10, 23}, {10, 17}}));
    EXPECT_TRUE(isAt(scene.paths[1].points[1], 28, 17));
    EXPECT_TRUE(isAt(scene.paths[3].points[0], 10, 11));
    ASSERT_EQ(scene.texts.size(), 4u);
    EXPECT_EQ(scene.texts[0].text, L"\u2316") << "the sign of position";
    EXPECT_TRUE(isAt(scene.texts[0].position, 13, 20));
    EXPECT_EQ(scene.texts[1].text, L"0.1");
}

const char* const kPicture =
    "|10 10|20 20|30 0|11 0|21 0.1|31 0|12 -0.1|22 0|32 0|13 100|23 50|340 D0|70 1|280 0";

TEST(ScenePictures, APictureIsItsFrameAndItsName) {
    const Drawn drawn(Parts{
        .entities = std::string("0 IMAGE|8 0|100 AcDbRasterImage") + kPicture,
        .objects = "0 IMAGEDEF|5 D0|330 0|100 AcDbRasterImageDef|1 C:\\pictures\\site.png|10 100|20 50"});
    ASSERT_EQ(drawn.paths().size(), 1u);
    // A hundred pixels upwards, fifty to the left.
    EXPECT_TRUE(goesThrough(drawn.path(), {{5, 20}, {5, 30}, {10, 30}, {10, 20}, {5, 20}}));
    EXPECT_EQ(drawn.text().text, L"site.png");
    EXPECT_TRUE(isAt(drawn.text().position, 7.5, 25));
    EXPECT_NEAR(drawn.text().rotation, kPi / 2, 1e-9);
    EXPECT_LE(TextExtent(drawn.text()), 8.0 + 1e-9) << "it fits along the rows";
}

TEST(ScenePictures, AClippedPictureHasTheOutlineOfItsClip) {
    const auto outline = [](const char* clip) {
        return Drawn(std::string("0 IMAGE|8 0|100 AcDbRasterImage|10 0|20 0|30 0|11 1|21 0|31 0|12 0|22 1|32 "
                                 "0|13 10|23 10|70 0|280 1|") +
                     clip);
    };
    // Rows count downwards from the middle of the upper left pixel.
    EXPECT_TRUE(goesThrough(outline("71 1|91 2|14 0.5|24 0.5|14 3.5|24 2.5").path(),
                            {{1, 9}, {4, 9}, {4, 7}, {1, 7}, {1, 9}}));
    EXPECT_TRUE(goesThrough(outline("71 2|91 3|14 -0.5|24 9.5|14 9.5|24 9.5|14 -0.5|24 -0.5").path(),
                            {{0, 0}, {10, 0}, {0, 10}, {0, 0}}));
    EXPECT_TRUE(outline("71 1").texts().empty()) << "a picture that isn't shown has no name";
}

TEST(ScenePictures, AWipeoutHidesWhatLiesBelowIt) {
    const std::string wipeout =
        "0 WIPEOUT|8 0|100 AcDbWipeout|10 2|20 3|30 0|11 4|21 0|31 0|12 0|22 4|32 0|13 1|23 1|70 7|280 1|71 "
        "2|91 4|14 "
        "-0.5|24 -0.5|14 0.5|24 -0.5|14 0.5|24 0.5|14 -0.5|24 0.5";
    const Drawn drawn("0 TEXT|8 0|10 0|20 0|30 0|40 1|1 below|" + wipeout +
                      "|0 TEXT|8 0|10 0|20 0|30 0|40 1|1 above");
    ASSERT_EQ(drawn.paths().size(), 1u);
    EXPECT_TRUE(drawn.path().wipes && drawn.path().filled);
    EXPECT_TRUE(goesThrough(drawn.path(), {{2, 7}, {6, 7}, {6, 3}, {2, 3}}));
    EXPECT_EQ(drawn.text(0).pathsBelow, 0u);
    EXPECT_EQ(drawn.text(1).pathsBelow, 1u);
}

TEST(SceneDimensions, LettersNeverStandOnTheirHeadsAndMayBeLevel) {
    const Drawn back = dimension("70 1|10 0|20 3|30 0|13 10|23 0|33 0|14 0|24 0|34 0");
    EXPECT_NEAR(back.text().rotation, 0, 1e-9);
    EXPECT_NEAR(dimension(std::string(kLevel) + "|50 90", "|73 1").text().rotation, 0, 1e-9);
    EXPECT_NEAR(dimension(std::string(kLevel) + "|53 30").text().rotation, kPi / 6, 1e-9)
        << "an angle of its own";
}

TEST(SceneMultilines, JointsFillAndRoundCapsAreTheStyles) {
    const auto drawn = [](const char* flags) {
        const std::string pair = "|74 2|41 1|41 0|75 0|74 2|41 -1|41 0|75 0";
        const std::string ahead = "|31 0|12 1|22 0|32 0|13 0|23 1|33 0";
        return Drawn(Parts{
            .entities =
                "0 MLINE|8 0|100 AcDbMline|2 S|340 C0|40 1|70 0|71 1|72 3|73 2|10 0|20 0|30 0|11 0|21 0" +
                ahead + pair + "|11 5|21 0" + ahead + pair + "|11 10|21 0" + ahead + pair,
            .objects = std::string("0 MLINESTYLE|5 C0|330 0|100 AcDbMlineStyle|2 S|70 ") + flags +
                       "|62 4|71 2|49 1|62 256|6 BYLAYER|49 -1|62 256|6 BYLAYER"});
    };
    EXPECT_EQ(drawn("0").paths().size(), 4u);
    const Drawn joints = drawn("2");
    ASSERT_EQ(joints.paths().size(), 5u);
    EXPECT_TRUE(goesThrough(joints.path(4), {{5, -1}, {5, 1}}));
    const Drawn filled = drawn("1");
    ASSERT_EQ(filled.paths().size(), 6u);
    EXPECT_TRUE(filled.path(0).filled);
    EXPECT_EQ(filled.path(0).style.color.colorIndex(), 4);
    EXPECT_TRUE(goesThrough(filled.path(0), {{0, -1}, {5, -1}, {5, 1}, {0, 1}}));
    const Drawn round = drawn("64");
    ASSERT_EQ(round.paths().size(), 5u);
    EXPECT_LT(distanceTo(round.path(4), -1, 0), 0.01) << "outwards of the start";
    EXPECT_LT(distanceTo(round.path(4), -std::sqrt(0.5), std::sqrt(0.5)), 0.01);
    EXPECT_TRUE(isAt(round.path(4).points.front(), 0, -1));
    EXPECT_TRUE(isAt(round.path(4).points.back(), 0, 1));
    EXPECT_LT(distanceTo(drawn("1024").path(4), 11, 0), 0.01);
}

TEST(SceneMultilines, AFillHasTheGapsOfItsCuts) {
    // From 0, 0 to 10, 0, one wide to either side.
    const auto drawn = [](const char* upper, const char* lower) {
        const std::string ahead = "|31 0|12 1|22 0|32 0|13 0|23 1|33 0";
        const std::string whole = "|74 2|41 1|41 0|75 0|74 2|41 -1|41 0|75 0";
        return Drawn(Parts{
            .entities =
                "0 MLINE|8 0|100 AcDbMline|2 S|340 C0|40 1|70 0|71 1|72 2|73 2|10 0|20 0|30 0|11 0|21 0" +
                ahead + "|74 2|41 1|41 0|" + upper + "|74 2|41 -1|41 0|" + lower + "|11 10|21 0" + ahead +
                whole,
            .objects =
                "0 MLINESTYLE|5 C0|330 0|100 AcDbMlineStyle|2 S|70 1|62 4|71 2|49 1|62 256|6 BYLAYER|49 "
                "-1|62 256|6 BYLAYER"});
    };
    const Drawn cut = drawn("75 4|42 1|42 0|42 3|42 5", "75 4|42 -1|42 0|42 4|42 6");
    ASSERT_EQ(cut.paths().size(), 4u) << "two areas and two lines";
    EXPECT_TRUE(goesThrough(cut.path(0), {{0, -1}, {4, -1}, {3, 1}, {0, 1}}));
    EXPECT_TRUE(goesThrough(cut.path(1), {{6, -1}, {10, -1}, {10, 1}, {5, 1}}));
    EXPECT_TRUE(cut.path(0).filled && cut.path(1).filled);
    EXPECT_TRUE(
        goesThrough(drawn("75 2|42 1|42 2", "75 2|42 -1|42 2").path(0), {{2, -1}, {10, -1}, {10, 1}, {2, 1}}))
        << "from where it begins";
    EXPECT_TRUE(goesThrough(drawn("75 5|42 1|42 1|42 2|42 8|42 9", "75 5|42 -1|42 1|42 2|42 8|42 9").path(1),
                            {{8, -1}, {9, -1}, {9, 1}, {8, 1}}))
        << "to where it ends";
    for (const char* lower : {"75 0", "75 1|42 -1", "75 2|42 -1|42 0"}) {
        const Drawn whole = drawn("75 4|42 1|42 0|42 3|42 5", lower);
        ASSERT_EQ(whole.paths().size(), 3u) << "cuts of one edge alone";
        EXPECT_TRUE(goesThrough(whole.path(0), {{0, -1}, {10, -1}, {10, 1}, {0, 1}}));
    }
}

TEST(ScenePictures, APictureThatIsNotShownHasNoNameAndAWipeoutAFrameByItsSetting) {
    std::string hidden = kPicture;
    hidden.replace(hidden.find("70 1"), 4, "70 0");
    EXPECT_TRUE(Drawn(Parts{.entities = "0 IMAGE|8 0|100 AcDbRasterImage" + hidden,
                            .objects = "0 IMAGEDEF|5 D0|330 0|100 AcDbRasterImageDef|1 site.png"})
                    .texts()
                    .empty());
    const auto paths = [](const char* setting) {
        return Drawn(Parts{.entities = "0 WIPEOUT|8 0|10 0|20 0|30 0|11 4|21 0|31 0|12 0|22 4|32 0|13 1|23 1",
                           .objects =
                               std::string(
                                   "0 DICTIONARY|5 C|330 0|100 AcDbDictionary|3 ACAD_WIPEOUT_VARS|350 D9|0 "
                                   "WIPEOUTVARIABLES|5 D9|330 C|70 ") +
                               setting})
            .paths()
            .size();
    };
    EXPECT_EQ(paths("0"), 1u);
    EXPECT_EQ(paths("1"), 2u);
}

/// What extended data of the dimension overrides.
Drawn overridden(const std::string& data) { return dimension(std::string(kLevel) + "|1001 ACAD|" + data); }

TEST(SceneDimensions, OverridesAreReadToTheirBracket) {
    EXPECT_EQ(
        overridden("1000 OTHER|1002 {|1070 7|1002 }|1000 DSTYLE|1002 {|1070 140|1040 5|1002 }").text().height,
        5)
        << "behind other data";
    EXPECT_EQ(overridden("1000 DSTYLE|1002 {|1070 140|1040 5|1002 }|1070 140|1040 9").text().height, 5);
    EXPECT_EQ(overridden("1000 DSTYLE|1002 {|1070 140|1040 5|1002 }|1000 X|1002 {|1070 140|1040 9|1002 }")
                  .text()
                  .height,
              5);
    const Drawn worded = overridden("1000 DSTYLE|1002 {|1070 3|1000 <> mm|1070 140|1040 5|1002 }");
    EXPECT_EQ(worded.text().text, L"20 mm");
    EXPECT_EQ(worded.text().height, 5) << "a text among them ends nothing";
}

TEST(SceneDimensions, AnOverrideOfAnotherKindIsNone) {
    EXPECT_EQ(overridden("1000 DSTYLE|1002 {|1070 140|1070 5|1002 }").text().height, 3);
    EXPECT_EQ(overridden("1000 DSTYLE|1002 {|1070 178|1040 6|1002 }").text().style.color.colorIndex(), 7);
    EXPECT_EQ(overridden("1000 DSTYLE|1002 {|1070 3|1040 6|1002 }").text().text, L"20");
}

}  // namespace
