// Texts in the strokes of shape fonts: where each stroke lies, how wide texts are, and what stands for a font
// that isn't there.
#include "drawn.h"

namespace {

using namespace scene_test;
using namespace std::string_literals;

std::string little16(std::size_t value) {
    return {static_cast<char>(value & 255), static_cast<char>(value >> 8)};
}

using Shapes = std::vector<std::pair<int, std::string>>;

/// Capitals are 10 high. I is a line upwards and 4 wide, the dash a line of 4 at half the height and 6 wide,
/// the blank 5 wide, the signs 127 to 129 lines upwards of 1, 2 and 3 and 2 wide.
Shapes letters() {
    return {{32, "\x02\x08\x05\0"s},        {45, "\x02\x08\0\x05\x01\x40\x02\x08\x02\xFB"s},
            {73, "\xA4\x02\x08\x04\xF6"s},  {127, "\x14\x02\x08\x02\xFF"s},
            {128, "\x24\x02\x08\x02\xFE"s}, {129, "\x34\x02\x08\x02\xFD"s}};
}

const std::string kDescription = "FONT\0\x0A\x02\0"s;

std::string indexedFont(const Shapes& shapes = letters(), const std::string& description = kDescription) {
    std::string file =
        "AutoCAD-86 shapes 1.0\r\n\x1A"s + little16(0) + little16(129) + little16(shapes.size() + 1);
    file += little16(0) + little16(description.size() + 1);
    for (const auto& [number, code] : shapes)
        file += little16(static_cast<std::size_t>(number)) + little16(code.size() + 2);
    file += description + '\0';
    for (const auto& [number, code] : shapes) file += '\0' + code + '\0';
    return file;
}

std::string unicodeFont(const Shapes& shapes) {
    const std::string description = "FONT\0\x0A\x02\0\0\0"s;
    std::string file = "AutoCAD-86 unifont 1.0\r\n\x1A"s + little16(shapes.size() + 1);
    file += little16(0) + little16(description.size() + 1) + description + '\0';
    for (const auto& [number, code] : shapes)
        file += little16(static_cast<std::size_t>(number)) + little16(code.size() + 2) + '\0' + code + '\0';
    return file;
}

Scene sceneOf(const std::string& entities, const std::string& font = indexedFont(),
              const std::string& fileName = "plain.shx", SceneOptions options = {}) {
    const OdDbDatabasePtr drawing = drawingOf(
        {.tables = table("STYLE", "0 STYLE|2 S|70 0|40 0|41 1|50 0|71 0|42 1|3 " + fileName + "|4 "),
         .entities = entities});
    options.shapeFile = [&font](const OdString& name) { return name == L"plain.shx" ? font : std::string(); };
    options.textWidth = [](const SceneFont&, std::wstring_view words) { return 100.0 * words.size(); };
    return BuildScene(*drawing, drawing->modelSpaceId(), options);
}

/// A text 20 high at 100, 200.
std::string text(const std::string& words, const std::string& more = "50 0") {
    return "0 TEXT|8 0|10 100|20 200|30 0|40 20|7 S|1 " + words + "|" + more;
}

/// Whether the strokes of the scene's only path go through these points, two for each stroke.
::testing::AssertionResult hasStrokes(const Scene& scene, const std::vector<OdGePoint2d>& points) {
    if (scene.paths.size() != 1)
        return ::testing::AssertionFailure()
               << scene.paths.size() << " paths, " << scene.texts.size() << " texts";
    const ScenePath& path = scene.paths[0];
    for (std::size_t i = 0; i < path.breaks.size(); ++i)
        if (path.breaks[i] != 2 * (i + 1)) return ::testing::AssertionFailure() << "other strokes";
    return goesThrough(path, points);
}

TEST(StrokeTexts, LettersAreDrawnOneBehindTheOther) {
    const Scene scene = sceneOf(text("I- I"));
    // Twice as large as in the file: 8, 12 and 10 wide.
    EXPECT_TRUE(hasStrokes(scene, {{100, 200}, {100, 220}, {108, 210}, {116, 210}, {130, 200}, {130, 220}}));
    EXPECT_TRUE(scene.texts.empty());
    EXPECT_TRUE(scene.paths[0].isLetters);
    EXPECT_FALSE(scene.paths[0].filled);
    EXPECT_TRUE(scene.missingFonts.empty());
}

TEST(StrokeTexts, ANameMayComeWithoutItsExtensionOrInCapitals) {
    EXPECT_EQ(sceneOf(text("I"), indexedFont(), "plain").paths.size(), 1u);
    const OdDbDatabasePtr drawing =
        drawingOf({.tables = table("STYLE", "0 STYLE|2 S|70 0|40 0|41 1|50 0|71 0|42 1|3 PLAIN.SHX|4 "),
                   .entities = text("I")});
    SceneOptions options;
    options.shapeFile = [](const OdString& name) {
        return name == L"PLAIN.SHX" ? indexedFont() : std::string();
    };
    EXPECT_EQ(BuildScene(*drawing, drawing->modelSpaceId(), options).paths.size(), 1u);
}

TEST(StrokeTexts, StandByTheirJustification) {
    // "II" is 16 wide.
    EXPECT_TRUE(
        hasStrokes(sceneOf(text("II", "72 1|11 50|21 60|31 0")), {{42, 60}, {42, 80}, {50, 60}, {50, 80}}));
    EXPECT_TRUE(
        hasStrokes(sceneOf(text("II", "72 2|11 50|21 60|31 0")), {{34, 60}, {34, 80}, {42, 60}, {42, 80}}));
    EXPECT_TRUE(hasStrokes(sceneOf(text("I", "72 0|73 3|11 50|21 60|31 0")), {{50, 40}, {50, 60}})) << "top";
    EXPECT_TRUE(hasStrokes(sceneOf(text("I", "72 0|73 2|11 50|21 60|31 0")), {{50, 50}, {50, 70}}))
        << "middle";
    EXPECT_TRUE(hasStrokes(sceneOf(text("II", "72 5|11 132|21 200|31 0")),
                           {{100, 200}, {100, 220}, {116, 200}, {116, 220}}))
        << "fit: twice as wide, as high as before";
}

TEST(StrokeTexts, AreTurnedSlantedStretchedAndRunBackwards) {
    EXPECT_TRUE(hasStrokes(sceneOf(text("-", "50 90")), {{90, 200}, {90, 208}}));
    EXPECT_TRUE(hasStrokes(sceneOf(text("I", "51 45")), {{100, 200}, {120, 220}}));
    EXPECT_TRUE(hasStrokes(sceneOf(text("I-", "41 .5")), {{100, 200}, {100, 220}, {104, 210}, {108, 210}}));
    EXPECT_TRUE(hasStrokes(sceneOf(text("I-", "71 2")), {{100, 200}, {100, 220}, {92, 210}, {84, 210}}));
    EXPECT_TRUE(hasStrokes(sceneOf(text("I", "71 4")), {{100, 200}, {100, 180}}));
}

TEST(StrokeTexts, SignsHaveNumbersOfTheirOwnAndMarksTheirWidth) {
    EXPECT_TRUE(hasStrokes(sceneOf(text("%%d%%p%%c")),
                           {{100, 200}, {100, 202}, {104, 200}, {104, 204}, {108, 200}, {108, 206}}));
    const Scene marked = sceneOf(text("I%%u-%%u"));
    ASSERT_EQ(marked.paths.size(), 2u);
    EXPECT_TRUE(goesThrough(marked.paths[1], {{108, 196}, {120, 196}})) << "as long as the dash is wide";
}

TEST(StrokeTexts, FontsOfUnicodeHaveTheNumbersOfTheCharacters) {
    const std::string font = unicodeFont({{73, "\xA4\x02\x08\x04\xF6"s},
                                          {0xB0, "\x14\x02\x08\x02\xFF"s},
                                          {0x2205, "\x34\x02\x08\x02\xFD"s},
                                          {0x4E2D, "\x24\x02\x08\x02\xFE"s}});
    EXPECT_TRUE(hasStrokes(
        sceneOf(text("I%%d%%c\\U+4E2D"), font),
        {{100, 200}, {100, 220}, {108, 200}, {108, 202}, {112, 200}, {112, 206}, {116, 200}, {116, 204}}));
}

TEST(StrokeTexts, ParagraphsBreakByTheirWidth) {
    // "I I" is 26 wide, "I" 8.
    const std::string words = "0 MTEXT|8 0|10 100|20 200|30 0|40 20|71 1|7 S|1 I I|41 ";
    EXPECT_EQ(sceneOf(words + "27").paths.size(), 1u);
    const Scene broken = sceneOf(words + "25");
    ASSERT_EQ(broken.paths.size(), 2u);
    EXPECT_TRUE(goesThrough(broken.paths[0], {{100, 180}, {100, 200}}));
    EXPECT_TRUE(goesThrough(broken.paths[1], {{100, 180 - 100.0 / 3}, {100, 200 - 100.0 / 3}}));
    const Scene mixed = sceneOf("0 MTEXT|8 0|10 100|20 200|30 0|40 20|71 1|7 S|1 I{\\fArial;I}I|41 0");
    EXPECT_EQ(mixed.paths.size(), 2u);
    EXPECT_EQ(mixed.texts.size(), 1u) << "in a font of outlines";
}

TEST(StrokeTexts, AScreenFontStandsForWhatIsMissing) {
    const Scene gone = sceneOf(text("I"), "");
    ASSERT_EQ(gone.texts.size(), 1u);
    EXPECT_EQ(gone.texts[0].font.file, L"plain.shx");
    EXPECT_EQ(gone.missingFonts, std::set<std::wstring>{L"plain.shx"});
    const Scene lacking = sceneOf(text("I\\U+4E2D"));
    EXPECT_TRUE(hasStrokes(lacking, {{100, 200}, {100, 220}}));
    ASSERT_EQ(lacking.texts.size(), 1u) << "a letter that the font lacks";
    EXPECT_EQ(lacking.texts[0].text, L"\u4E2D");
    EXPECT_TRUE(isAt(lacking.texts[0].position, 108, 200));
    // The letter is 2000 wide.
    const Scene centred = sceneOf(text("I\\U+4E2DI%%u-", "72 1|11 5000|21 200|31 0"));
    ASSERT_EQ(centred.texts.size(), 1u);
    EXPECT_NEAR(centred.texts[0].position.x, 5000 - (8 + 2000 + 8 + 12) / 2.0 + 8, 1e-6);
    ASSERT_EQ(centred.paths.size(), 3u);
    EXPECT_TRUE(goesThrough(centred.paths[0], {{3986, 200}, {3986, 220}}));
    EXPECT_TRUE(isAt(centred.paths[1].points[0], 5994, 200));
    EXPECT_TRUE(goesThrough(centred.paths[2], {{6002, 196}, {6014, 196}})) << "the line below the dash";
    EXPECT_TRUE(lacking.missingFonts.empty());
    const Scene shapes = sceneOf(text("I"), indexedFont(letters(), "FONT\0\0\x02\0"s));
    EXPECT_EQ(shapes.texts.size(), 1u) << "a file of shapes is no font";
    EXPECT_EQ(shapes.missingFonts.size(), 1u);
    const Scene outlines = sceneOf(text("I"), indexedFont(), "plain.ttf");
    EXPECT_EQ(outlines.texts.size(), 1u);
    EXPECT_TRUE(outlines.missingFonts.empty());
}

TEST(StrokeTexts, AnotherShapeFontStandsForOneThatIsMissing) {
    SceneOptions options;
    options.shapeFontInPlace = L"plain.shx";
    const Scene gone = sceneOf(text("I-"), indexedFont(), "gone.shx", options);
    EXPECT_TRUE(hasStrokes(gone, {{100, 200}, {100, 220}, {108, 210}, {116, 210}}));
    EXPECT_EQ(gone.missingFonts, std::set<std::wstring>{L"gone.shx"}) << "and it is told all the same";
    const Scene lacking = sceneOf(text("I\\U+4E2D"), indexedFont(), "gone.shx", options);
    EXPECT_EQ(lacking.texts.size(), 1u) << "what the other one lacks is written in a font of the screen";
    EXPECT_EQ(sceneOf(text("I"), indexedFont(), "gone.ttf", options).texts.size(), 1u) << "no shape font";
    options.shapeFontInPlace = L"gone too.shx";
    const Scene none = sceneOf(text("I"), indexedFont(), "gone.shx", options);
    EXPECT_EQ(none.texts.size(), 1u);
    EXPECT_EQ(none.missingFonts, std::set<std::wstring>{L"gone.shx"}) << "of those that the drawing names";
    const Scene shapes = sceneOf(text("I"), indexedFont(letters(), "FONT\0\0\x02\0"s), "gone.shx",
                                 {.use = SceneUse::kScreen, .shapeFontInPlace = L"plain.shx"});
    EXPECT_EQ(shapes.texts.size(), 1u) << "a file of shapes is no font";
}

TEST(StrokeTexts, OnPaperTheSceneSaysWhatTheStrokesSay) {
    EXPECT_TRUE(sceneOf(text("I-")).strokeTexts.empty()) << "on the screen nobody asks";
    SceneOptions options;
    options.use = SceneUse::kPaper;
    const Scene scene = sceneOf(text("I-", "50 90|41 .5"), indexedFont(), "plain.shx", options);
    ASSERT_EQ(scene.strokeTexts.size(), 1u);
    EXPECT_TRUE(scene.texts.empty());
    EXPECT_EQ(scene.paths.size(), 1u);
    const SceneText& said = scene.strokeTexts[0];
    EXPECT_EQ(said.text, L"I-");
    EXPECT_TRUE(isAt(said.position, 100, 200));
    EXPECT_NEAR(said.rotation, std::numbers::pi / 2, 1e-9);
    EXPECT_NEAR(said.height, 20, 1e-9);
    EXPECT_NEAR(said.fitWidth, 10, 1e-9) << "half of 8 and 12";
    const Scene fitted = sceneOf(text("I-", "72 5|11 160|21 200|31 0"), indexedFont(), "plain.shx", options);
    ASSERT_EQ(fitted.strokeTexts.size(), 1u);
    EXPECT_NEAR(fitted.strokeTexts[0].fitWidth, 60, 1e-9);
    const Scene backwards = sceneOf(text("I-", "71 2"), indexedFont(), "plain.shx", options);
    ASSERT_EQ(backwards.strokeTexts.size(), 1u);
    EXPECT_EQ(backwards.strokeTexts[0].widthFactor, -1);
    EXPECT_NEAR(backwards.strokeTexts[0].fitWidth, 20, 1e-9);
    const Scene mixed = sceneOf(text("I\\U+4E2D-"), indexedFont(), "plain.shx", options);
    ASSERT_EQ(mixed.strokeTexts.size(), 2u);
    ASSERT_EQ(mixed.texts.size(), 1u);
    EXPECT_EQ(mixed.strokeTexts[0].text, L"I");
    EXPECT_EQ(mixed.strokeTexts[1].text, L"-");
    EXPECT_TRUE(isAt(mixed.strokeTexts[1].position, 2108, 200));
}

TEST(StrokeTexts, WhatStrokesSayIsSeenThroughTheSameFrameAsThey) {
    const OdDbDatabasePtr drawing = drawingOf(
        {.tables = table("STYLE", "0 STYLE|2 S|70 0|40 0|41 1|50 0|71 0|42 1|3 plain.shx|4 "),
         .entities = text("I") +
                     "|0 VIEWPORT|5 E0|67 1|8 0|10 0|20 0|30 0|40 40|41 20|68 2|69 2|12 100|22 200|17 "
                     "0|27 0|37 0|45 20|"});
    SceneOptions options;
    options.use = SceneUse::kPaper;
    options.shapeFile = [](const OdString&) { return indexedFont(); };
    const Scene scene = BuildScene(*drawing, drawing->paperSpaceId(), options);
    ASSERT_EQ(scene.strokeTexts.size(), 1u);
    EXPECT_EQ(scene.strokeTexts[0].clip, 0);
    EXPECT_EQ(scene.paths[0].clip, 0);
}

TEST(StrokeTexts, WhereNobodyIsAskedForFilesNoneIsMissing) {
    const OdDbDatabasePtr drawing =
        drawingOf({.tables = table("STYLE", "0 STYLE|5 A7|2 S|70 0|40 0|41 1|50 0|71 0|42 1|3 plain.shx|4 "),
                   .entities = text("I")});
    const Scene scene = BuildScene(*drawing, drawing->modelSpaceId());
    EXPECT_EQ(scene.texts.size(), 1u);
    EXPECT_TRUE(scene.missingFonts.empty());
}

TEST(StrokeTexts, TextsOfALinetypeAreWrittenToo) {
    const OdDbDatabasePtr drawing =
        drawingOf({.tables = table("STYLE", "0 STYLE|5 A7|2 S|70 0|40 0|41 1|50 0|71 0|42 1|3 plain.shx|4 ") +
                             table("LTYPE",
                                   "0 LTYPE|2 MARKED|70 0|3 m|72 65|73 1|40 40|49 40|74 2|75 0|340 A7|46 "
                                   "10|50 0|44 0|45 0|9 I"),
                   .entities = "0 LINE|8 0|6 MARKED|10 0|20 0|30 0|11 100|21 0|31 0"});
    SceneOptions options;
    options.shapeFile = [](const OdString&) { return indexedFont(); };
    const Scene scene = BuildScene(*drawing, drawing->modelSpaceId(), options);
    ASSERT_EQ(scene.paths.size(), 3u);
    EXPECT_TRUE(goesThrough(scene.paths[0], {{40, 0}, {40, 10}}));
    EXPECT_TRUE(goesThrough(scene.paths[1], {{80, 0}, {80, 10}}));
}

/// A text of a style with a big font; the drawing is of that code page.
Scene bigFontScene(const std::string& words, const std::string& big, const std::string& page = "ANSI_936",
                   const std::string& bigName = "asia.shx") {
    const OdDbDatabasePtr drawing = drawingOf(
        {.header = "9 $DWGCODEPAGE|3 " + page,
         .tables = table("STYLE", "0 STYLE|2 S|70 0|40 0|41 1|50 0|71 0|42 1|3 plain.shx|4 " + bigName),
         .entities = text(words)});
    SceneOptions options;
    options.shapeFile = [&](const OdString& name) {
        return name == L"plain.shx" ? indexedFont() : name == odWide(bigName) ? big : std::string();
    };
    options.textWidth = [](const SceneFont&, std::wstring_view each) { return 100.0 * each.size(); };
    return BuildScene(*drawing, drawing->modelSpaceId(), options);
}

/// A big font whose capitals are as high as `description` says. One range of first bytes, as such files have.
std::string bigFont(const Shapes& shapes, const std::string& description = "ASIA\0\x08\0\0\0"s) {
    std::string file = "AutoCAD-86 bigfont 1.0\r\n\x1A"s + little16(8) + little16(shapes.size() + 2) +
                       little16(1) + little16(0x81) + little16(0xFE);
    std::size_t place = file.size() + 8 * (shapes.size() + 2);
    const auto entry = [&](int number, std::size_t length) {
        file += little16(static_cast<std::size_t>(number)) + little16(length) + little16(place & 0xFFFF) +
                little16(place >> 16);
        place += length;
    };
    entry(0, description.size() + 1);
    for (const auto& [number, code] : shapes) entry(number, code.size() + 2);
    file += little16(0) + little16(0) + little16(0) + little16(0);  // an entry that is left over
    file += description + '\0';
    for (const auto& [number, code] : shapes) file += '\0' + code + '\0';
    return file;
}

// In code page 936 U+4E2D is D6D0 and U+4E00 is D2BB.
TEST(StrokeTexts, LettersOfEastAsiaComeFromTheBigFont) {
    // Capitals are 8 high: a line of 8 upwards, 12 wide; a dash of 4, 4 wide.
    const std::string big = bigFont({{0xD6D0, "\x84\x02\x08\x0C\xF8"s}, {0xD2BB, "\x40"s}});
    const Scene scene = bigFontScene("I\\U+4E2D\\U+4E00-", big);
    // Text is 20 high, so these are 2.5 times as large: 30 and 10 wide.
    EXPECT_TRUE(hasStrokes(
        scene,
        {{100, 200}, {100, 220}, {108, 200}, {108, 220}, {138, 200}, {148, 200}, {148, 210}, {156, 210}}));
    EXPECT_TRUE(scene.missingFonts.empty());
    const Scene lacking = bigFontScene("I\\U+4E01", big);
    EXPECT_EQ(lacking.texts.size(), 1u) << "a letter that both lack";
    EXPECT_TRUE(bigFontScene("I", "").missingFonts.empty()) << "nothing asks for it";
    const Scene gone = bigFontScene("I\\U+4E2D", "");
    EXPECT_EQ(gone.missingFonts, std::set<std::wstring>{L"asia.shx"});
    EXPECT_EQ(gone.texts.size(), 1u);
    EXPECT_EQ(bigFontScene("I\\U+4E2D", indexedFont({{0xD6D0, "\x84"s}})).texts.size(), 1u)
        << "a font of few letters is no big font";
}

TEST(StrokeTexts, ABigFontHasItsLettersByTheCodePage) {
    // U+4E2D is D6D0 in page 936, 9286 in 932, A4A4 in 950 and F1E9 in 949.
    const std::string big =
        bigFont({{0xD6D0, "\x14"s}, {0x9286, "\x24"s}, {0xA4A4, "\x34"s}, {0xF1E9, "\x44"s}});
    const auto height = [&](const std::string& page, const std::string& name = "asia.shx") {
        const Scene scene = bigFontScene("\\U+4E2D", big, page, name);
        return scene.paths.empty() ? 0.0 : scene.paths[0].points[1].y - 200;
    };
    EXPECT_NEAR(height("ANSI_936"), 2.5, 1e-9);
    EXPECT_NEAR(height("ANSI_932"), 5, 1e-9);
    EXPECT_NEAR(height("ANSI_950"), 7.5, 1e-9);
    EXPECT_NEAR(height("ANSI_949"), 10, 1e-9);
    EXPECT_EQ(height("ANSI_1252"), 0) << "nothing tells";
    EXPECT_NEAR(height("ANSI_1252", "gbcbig.shx"), 2.5, 1e-9) << "but by the names of widespread fonts";
    EXPECT_NEAR(height("ANSI_1252", "BigFont.shx"), 5, 1e-9);
    EXPECT_NEAR(height("ANSI_1252", "extfont2.shx"), 5, 1e-9);
    EXPECT_NEAR(height("ANSI_1252", "@extfont2.shx"), 5, 1e-9);
    EXPECT_NEAR(height("ANSI_1252", "chineset.shx"), 7.5, 1e-9);
    for (const char* name : {"whgtxt.shx", "whgdtxt.shx", "whtgtxt.shx", "whtmtxt.shx"})
        EXPECT_NEAR(height("ANSI_1252", name), 10, 1e-9) << name;
    EXPECT_NEAR(height("ANSI_1252", "hztxt.shx"), 2.5, 1e-9);
    EXPECT_NEAR(height("ANSI_936", "bigfont.shx"), 2.5, 1e-9) << "the drawing's page goes before the name";
}

TEST(StrokeTexts, LettersOfABigFontAreMadeOfPartsScaledEachWay) {
    // Letters are 10 high and 20 wide. Part 0101 is a line to the right over all of it, then up.
    const std::string description = "ASIA\0\x0A\0\0\x14\0"s;
    const std::string part = "\x08\x14\0\x08\0\x0A"s;
    // At 2, 1, half as wide and twice as high as a part is; then the pen, still at the start, moves on.
    const std::string letter = "\x07\0\x01\x01\x02\x01\x0A\x14\x02\x08\x14\0"s;
    const Scene scene =
        bigFontScene("\\U+4E2D\\U+4E2D", bigFont({{0x0101, part}, {0xD6D0, letter}}, description));
    // Twice as large: the letter is 40 wide; the part goes from 4, 2 by 20 and by 40.
    ASSERT_EQ(scene.paths.size(), 1u);
    EXPECT_TRUE(goesThrough(scene.paths[0],
                            {{104, 202}, {124, 202}, {124, 242}, {144, 202}, {164, 202}, {164, 242}}));
    EXPECT_EQ(scene.paths[0].breaks, std::vector<std::size_t>{3});
    // The scale of the letter is that of its parts, and what is for vertical writing alone isn't drawn.
    const std::string scaled = "\x04\x02\x0E\x07\0\x01\x01\x09\x09\x14\x14\x07\0\x01\x01\x02\x01\x0A\x14"s;
    const Scene twice = bigFontScene("\\U+4E2D", bigFont({{0x0101, part}, {0xD6D0, scaled}}, description));
    ASSERT_EQ(twice.paths.size(), 1u);
    EXPECT_TRUE(goesThrough(twice.paths[0], {{108, 204}, {148, 204}, {148, 284}}));
    // One that holds itself ends.
    const std::string endless = "\x07\0\xD6\xD0\x02\x01\x0A\x05\x84"s;
    EXPECT_EQ(bigFontScene("\\U+4E2D", bigFont({{0xD6D0, endless}}, description)).paths.size(), 1u);
    // One that is cut off is what there is of it.
    const std::string cut = "\x84\x07\0\x01\x01\x02"s;
    EXPECT_EQ(bigFontScene("\\U+4E2D", bigFont({{0x0101, part}, {0xD6D0, cut}}, description)).paths.size(),
              1u);
}

TEST(StrokeTexts, InAFontOfUnicodeShapesWithinShapesHaveNumbersOfTwoBytes) {
    const std::string font = unicodeFont({{0x4E00, "\xA4"s}, {73, "\x07\x4E\0\x02\x08\x04\xF6"s}});
    EXPECT_TRUE(hasStrokes(sceneOf(text("II"), font), {{100, 200}, {100, 220}, {108, 200}, {108, 220}}));
    const std::string vertical = unicodeFont({{0x4E14, "\xA4"s}, {73, "\x0E\x07\x4E\x14\x24"s}});
    EXPECT_TRUE(hasStrokes(sceneOf(text("I"), vertical), {{100, 200}, {100, 204}}))
        << "left out with both bytes of its number";
}

TEST(StrokeTexts, ABigFontThatIsDamagedIsWhatThereIsOfIt) {
    const std::string whole = bigFont({{0xD6D0, "\x84"s}, {0xD2BB, "\x40"s}});
    for (std::size_t length = 0; length < whole.size(); ++length)
        EXPECT_LE(bigFontScene("\\U+4E2D", whole.substr(0, length)).paths.size(), 1u);
    const std::string cut = whole.substr(0, whole.size() - 1);
    EXPECT_EQ(bigFontScene("\\U+4E00", cut).texts.size(), 1u) << "a letter that isn't whole is none";
    std::string elsewhere = whole;
    elsewhere[whole.find("\xD0\xD6") + 7] = '\x7F';  // far behind the end
    EXPECT_TRUE(bigFontScene("\\U+4E2D", elsewhere).paths.empty());
}

TEST(StrokeTexts, AParagraphNamesABigFontBehindAComma) {
    const auto sceneWith = [](const std::string& words) {
        const OdDbDatabasePtr drawing =
            drawingOf({.header = "9 $DWGCODEPAGE|3 ANSI_936",
                       .entities = "0 MTEXT|8 0|10 0|20 0|30 0|40 8|71 7|1 " + words});
        SceneOptions options;
        options.shapeFile = [](const OdString& name) {
            return name == L"asia.shx"    ? bigFont({{0xD6D0, "\x84\x02\x08\x0C\xF8"s}})
                   : name == L"plain.shx" ? indexedFont()
                                          : std::string();
        };
        return BuildScene(*drawing, drawing->modelSpaceId(), options);
    };
    const Scene scene = sceneWith(
        "{\\Fplain,asia\x14"
        "c134;\\U+4E2D}I");
    ASSERT_EQ(scene.paths.size(), 1u);
    EXPECT_TRUE(goesThrough(scene.paths[0], {{0, 0}, {0, 8}}));
    EXPECT_EQ(scene.texts.size(), 1u) << "behind the braces the style's font is back";
    const Scene both = sceneWith("\\Fplain.shx;\\U+4E2D\\Fplain.shx,asia.shx;\\U+4E2D");
    EXPECT_EQ(both.paths.size(), 1u);
    EXPECT_EQ(both.texts.size(), 1u) << "without the big font";
}

TEST(StrokeTexts, ALongTextOfHeavyLettersEndsAtTheLimit) {
    std::string strokes;
    for (int i = 0; i < 20000; ++i) strokes += "\x14\x1C";
    const std::string font = indexedFont({{73, strokes}});
    const OdDbDatabasePtr drawing =
        drawingOf({.tables = table("STYLE", "0 STYLE|2 S|70 0|40 0|41 1|50 0|71 0|42 1|3 plain.shx|4 "),
                   .entities = text(std::string(5000, 'I'))});
    SceneOptions options;
    options.workLimit = 1'000'000;
    options.shapeFile = [&font](const OdString&) { return font; };
    EXPECT_TRUE(BuildScene(*drawing, drawing->modelSpaceId(), options).isCut);
}

}  // namespace
