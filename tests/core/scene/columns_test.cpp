// Paragraphs in columns, with tabs, and letters of several heights on a line.
#include "paragraphs.h"

namespace {

using namespace scene_test;

/// Where each text begins: "words at x, y".
std::string places(const Scene& scene) {
    std::string all;
    for (const SceneText& text : scene.texts) {
        char at[64];
        std::snprintf(at, sizeof at, " %.4g,%.4g; ", text.position.x, text.position.y);
        all += odUtf8(text.text.view()) + at;
    }
    return all;
}

std::string places(const std::string& entity) { return places(Paragraphs(entity).scene); }

/// Columns 5 wide and 2 apart, of a text at 10, 20 with letters that are 1 high, as an embedded object.
std::string inColumns(const std::string& contents, const std::string& columns,
                      const std::string& more = "71 1") {
    return paragraph(contents, more + "|41 5|73 2|44 0.9") +
           "|101 Embedded Object|70 1|10 1|20 0|30 0|11 10|21 20|31 0|40 5|44 5|45 2|" + columns;
}

// Base lines are 1, 2.5 and 4 below the top.
constexpr const char* kSixLines = "a\\Pb\\Pc\\Pd\\Pe\\Pf";

TEST(SceneColumns, StaticOnesAreFilledOneAfterTheOtherUpToTheirHeight) {
    EXPECT_EQ(places(inColumns(kSixLines, "41 2.6|42 19|43 3|71 1|72 3|73 0|74 0")),
              "a 10,19; b 10,17.5; c 17,19; d 17,17.5; e 24,19; f 24,17.5; ");
    EXPECT_EQ(places(inColumns(kSixLines, "41 2.5|71 1|72 2|73 0|74 0")),
              "a 10,19; b 10,17.5; c 17,19; d 17,17.5; e 17,16; f 17,14.5; ")
        << "what is left stands in the last one";
    EXPECT_EQ(places(inColumns("aa bb cc dd", "41 1.5|71 1|72 3|73 0|74 0")), "aa bb 10,19; cc dd 17,19; ")
        << "lines break at the width of a column";
}

TEST(SceneColumns, ReversedOnesBeginAtTheRight) {
    EXPECT_EQ(places(inColumns(kSixLines, "41 2.6|71 1|72 3|73 0|74 1")),
              "a 24,19; b 24,17.5; c 17,19; d 17,17.5; e 10,19; f 10,17.5; ");
    EXPECT_EQ(places(inColumns("a", "41 2.6|71 1|72 3|73 0|74 1")), "a 24,19; ")
        << "those without lines have their place too";
}

TEST(SceneColumns, DynamicOnesAreAsManyAsTheTextTakes) {
    EXPECT_EQ(places(inColumns(kSixLines, "41 1.2|42 12|71 2|72 0|73 1|74 0")),
              "a 10,19; b 17,19; c 24,19; d 31,19; e 38,19; f 45,19; ");
}

TEST(SceneColumns, DynamicOnesMayHaveHeightsOfTheirOwn) {
    EXPECT_EQ(places(inColumns(kSixLines, "41 0|71 2|72 3|73 0|74 0|46 4.1|46 1.2|46 0")),
              "a 10,19; b 10,17.5; c 10,16; d 17,19; e 24,19; f 24,17.5; ");
    EXPECT_EQ(places(inColumns(kSixLines, "71 2|72 0|73 0|46 4.1|46 0")),
              "a 10,19; b 10,17.5; c 10,16; d 17,19; e 17,17.5; f 17,16; ")
        << "the heights tell their count";
}

TEST(SceneColumns, ATextMayAskForTheNextColumn) {
    EXPECT_EQ(places(inColumns("a\\Nb\\Pc", "41 9|71 1|72 4|73 0|74 0")), "a 10,19; b 17,19; c 17,17.5; ")
        << "the paragraph behind it doesn't";
    EXPECT_EQ(places(inColumns("a\\Nb\\Pc\\Nd\\Pe", "41 9|71 1|72 2|73 0|74 0")),
              "a 10,19; b 17,19; c 17,17.5; d 17,16; e 17,14.5; ")
        << "there is none behind the last one";
    EXPECT_EQ(places(paragraph("a\\Nb", "71 1|73 2|44 0.9")), "a 10,19; b 10,17.5; ")
        << "a text without columns";
}

TEST(SceneColumns, TheAttachmentIsThatOfAllColumnsTogether) {
    // 12 wide, and 4 high as the columns say.
    EXPECT_EQ(places(inColumns("a\\Nb", "41 4|71 1|72 2|73 0|74 0", "71 9")), "a 3,23; b 10,23; ");
    EXPECT_EQ(places(inColumns("a\\Nb", "41 4|71 1|72 2|73 0|74 0", "71 5")), "a 6.5,21; b 13.5,21; ");
}

TEST(SceneColumns, EachHasABackgroundOfItsOwn) {
    const Paragraphs drawn(inColumns("a\\Pb\\Pc", "41 2.6|71 1|72 2|73 0|74 0", "71 1|90 1|63 3|45 1.5"));
    ASSERT_EQ(drawn.scene.paths.size(), 2u);
    EXPECT_TRUE(goesThrough(drawn.scene.paths[0], {{9.5, 17}, {15.5, 17}, {15.5, 20.5}, {9.5, 20.5}}));
    EXPECT_TRUE(goesThrough(drawn.scene.paths[1], {{16.5, 18.5}, {22.5, 18.5}, {22.5, 20.5}, {16.5, 20.5}}));
}

/// The same as extended data of a file before 2018.
std::string olderColumns(const std::string& contents, const std::string& info, const std::string& more = "") {
    return paragraph(contents, "5 A0|71 1|41 5|73 2|44 0.9") +
           "|1001 ACAD|1000 ACAD_MTEXT_COLUMN_INFO_BEGIN|" + info + "|1000 ACAD_MTEXT_COLUMN_INFO_END" + more;
}

constexpr const char* kTwoStatic =
    "1070 75|1070 1|1070 79|1070 0|1070 76|1070 2|1070 78|1070 0|1070 48|1040 5|1070 49|1040 2";
constexpr const char* kHeight =
    "|1000 ACAD_MTEXT_DEFINED_HEIGHT_BEGIN|1070 46|1040 2.6|1000 ACAD_MTEXT_DEFINED_HEIGHT_END";

TEST(SceneColumns, OlderFilesHaveThemAsExtendedData) {
    EXPECT_EQ(places(olderColumns("a\\Pb\\Pc", kTwoStatic, kHeight)), "a 10,19; b 10,17.5; c 17,19; ");
    EXPECT_EQ(
        places(olderColumns("a\\Pb\\Pc\\Pd",
                            "1070 75|1070 2|1070 79|1070 0|1070 76|1070 3|1070 78|1070 1|1070 48|1040 5|1070 "
                            "49|1040 2|1070 50|1070 3|1040 1.1|1040 2.6|1040 0")),
        "a 24,19; b 17,19; c 17,17.5; d 10,19; ");
    EXPECT_EQ(places(olderColumns(
                  "a\\Pb\\Pc", "1070 75|1070 2|1070 79|1070 1|1070 76|1070 1|1070 48|1040 5|1070 49|1040 2",
                  kHeight)),
              "a 10,19; b 10,17.5; c 17,19; ");
    EXPECT_EQ(places(paragraph("a\\Pb\\Pc", "71 1|41 5|73 2|44 0.9") +
                     "|1001 OTHER|1000 ACAD_MTEXT_COLUMN_INFO_BEGIN|" + kTwoStatic + kHeight),
              "a 10,19; b 10,17.5; c 10,16; ")
        << "what another application says";
}

TEST(SceneColumns, FurtherColumnsThatAreTextsOfTheirOwnStandWhereTheyStand) {
    const std::string further =
        "|1000 ACAD_MTEXT_COLUMNS_BEGIN|1070 47|1070 2|1005 A1|1000 ACAD_MTEXT_COLUMNS_END";
    const std::string second = "|0 MTEXT|5 A1|8 0|10 50|20 20|30 0|40 1|71 1|1 z";
    EXPECT_EQ(places(olderColumns("a\\Pb\\Pc", kTwoStatic, further + kHeight + second)),
              "a 10,19; b 10,17.5; c 10,16; z 50,19; ");
    EXPECT_EQ(places(olderColumns("a\\Pb\\Pc", kTwoStatic, further + kHeight)),
              "a 10,19; b 10,17.5; c 17,19; ")
        << "the other text isn't there";
}

TEST(SceneColumns, ColumnsThatMakeNoSenseAreNone) {
    const char* const kOneColumn = "a 10,19; b 10,17.5; ";
    EXPECT_EQ(places(inColumns("a\\Pb", "41 1.5|71 0|72 2")), kOneColumn);
    EXPECT_EQ(places(inColumns("a\\Pb", "41 1.5|71 7|72 2")), kOneColumn);
    EXPECT_EQ(places(inColumns("a\\Pb", "41 1.5|71 1|72 2|44 0")), kOneColumn) << "no width";
    EXPECT_EQ(places(inColumns("a\\Pb", "41 1.5|71 1|72 2|44 -5")), kOneColumn);
    EXPECT_EQ(places(inColumns("a\\Pb", "41 -1|71 1|72 2")), kOneColumn) << "no height";
    EXPECT_EQ(places(inColumns("a\\Pb", "41 1.5|71 1|72 -3")), kOneColumn) << "one at least";
    EXPECT_EQ(
        places(olderColumns("a\\Pb", "1070 75|1070 1|1070 76|1070 2|1070 48|1040 5|1070 50|1070 2000000000")),
        kOneColumn)
        << "cut off";
    EXPECT_EQ(places(inColumns("a\\Pb", "41 1e-300|71 2|72 2000000000|73 1")), "a 10,19; b 17,19; ");
    // So many reversed ones that the first is far away, but somewhere.
    EXPECT_EQ(places(inColumns("a", "41 1.5|71 1|72 2000000000|74 1")), "a 7e+04,19; ");
    EXPECT_EQ(places(inColumns("a", "41 1.5|71 1|72 2|74 1|45 1e300")), "");
}

/// A text at 10, 20 whose letters are 2 high.
std::string twiceAsHigh(const std::string& contents, const std::string& more = "71 1") {
    return "0 MTEXT|8 0|10 10|20 20|30 0|40 2|" + more + "|1 " + contents;
}

TEST(SceneTabs, TheyGoToTheStopsOfTheParagraph) {
    // Stops are heights from the left edge: at 16, 22 and 30.
    EXPECT_EQ(places(twiceAsHigh("\\pxt3,6,10;a\tb\tcc\td")), "a 10,18; b 16,18; cc 22,18; d 30,18; ");
    EXPECT_EQ(places(paragraph("\\pt3;aaa^Ib", "71 1")), "aaa 10,19; b 14,19; ")
        << "a stop where letters end already isn't one; the usual one behind it is";
    EXPECT_EQ(places(paragraph("\\pt5;a\\Pb^Ic", "71 1")), "a 10,19; b 10,17.33; c 15,17.33; ")
        << "the next paragraph has the same";
    EXPECT_EQ(places(paragraph("\\pt5;a\\P\\pt;b^Ic", "71 1")), "a 10,19; b 10,17.33; c 14,17.33; ")
        << "until it has others";
}

TEST(SceneTabs, WithoutStopsTheyGoFourHeightsOn) {
    EXPECT_EQ(places(twiceAsHigh("a^Ib^I^Ic")), "a 10,18; b 18,18; c 34,18; ");
    EXPECT_EQ(places(paragraph("^Ia", "71 1")), "a 14,19; ") << "at the line's start";
    EXPECT_EQ(places(paragraph("\\pt9;^Ia^Ib", "71 1")), "a 19,19; b 22,19; ")
        << "behind the paragraph's own";
    EXPECT_EQ(places(paragraph("aaa ^Ib", "71 1")), "aaa  10,19; b 18,19; ")
        << "four letters are there already";
}

TEST(SceneTabs, AStopMayBeForTheMiddleOrTheEnd) {
    EXPECT_EQ(places(paragraph("\\ptr8;a^Ibc ^Id", "71 1")), "a 10,19; bc  16,19; d 22,19; ")
        << "blanks behind the words don't count";
    EXPECT_EQ(places(paragraph("\\ptr8,c12;a^Ibc d^Iee", "71 1")), "a 10,19; bc d 14,19; ee 21,19; ");
    EXPECT_EQ(places(paragraph("\\ptr3;a^Ibcd", "71 1")), "a 10,19; bcd 14,19; ")
        << "what has no room there goes on";
}

TEST(SceneTabs, AListHangsBehindItsMarks) {
    EXPECT_EQ(places(paragraph("\\pi-3,l3,t3;1.^Iaa bb\\P2.^Icc", "71 1|41 6")),
              "1. 10,19; aa 13,19; bb 13,17.33; 2. 10,15.67; cc 13,15.67; ");
    EXPECT_EQ(places(twiceAsHigh("\\pi-3,l3,t3;1.^Iaa bb", "71 1|41 12")),
              "1. 10,18; aa 16,18; bb 16,14.67; ")
        << "in heights of the text";
}

TEST(SceneTabs, ThoseBeyondTheLineAndInOtherLinesAreBlanks) {
    EXPECT_EQ(places(paragraph("a^Ib", "71 1|41 3")), "a b 10,19; ");
    EXPECT_EQ(places(paragraph("\\pt9;a^Ib", "71 1|41 6")), "a b 10,19; ") << "its stop is beyond";
    EXPECT_EQ(places(paragraph("a^Ib", "71 2|41 20")), "a b 10,19; ") << "a centred line";
    EXPECT_EQ(places(paragraph("\\pqr;a^Ib", "71 1|41 20")), "a b 30,19; ");
}

TEST(SceneTabs, StopsThatMakeNoSenseAreNone) {
    for (const char* stops : {"t", "t,,", "t-3", "tx", "tr", "tc-1,r-", "t0"})
        EXPECT_EQ(places(paragraph(std::string("\\p") + stops + ";a^Ib")), "a 10,19; b 14,19; ") << stops;
    std::string many = "\\pt";
    for (int i = 1; i < 5000; ++i) many += "0.001,";
    EXPECT_EQ(places(paragraph(many + ";a^Ib")), "a 10,19; b 14,19; ");
    std::string tabs;
    for (int i = 0; i < 20000; ++i) tabs += "^I";
    EXPECT_EQ(places(paragraph(tabs + "a")), "a 8.001e+04,19; ");
}

TEST(SceneParagraphs, LowerLettersStandBelowInTheMiddleOrAbove) {
    EXPECT_EQ(places(paragraph("{\\H4;a}b")), "a 10,16; b 14,16; ");
    EXPECT_EQ(places(paragraph("{\\H4;a}{\\A1;b}{\\A2;c}{\\A0;d}")),
              "a 10,16; b 14,17.5; c 15,19; d 16,16; ");
    EXPECT_EQ(places(paragraph("{\\H4;a}{\\A9;b}{\\A-1;c}{\\A;d}")), "a 10,16; b 14,19; cd 15,16; ")
        << "no such rows";
    const Paragraphs lined(paragraph("{\\H4;a}{\\A2;\\Lb}"));
    EXPECT_TRUE(goesThrough(lined.scene.paths.at(0), {{14, 18.8}, {15, 18.8}})) << "with their lines";
}

}  // namespace
