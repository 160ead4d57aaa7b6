// Texts on one line: justification, fitting, turns and mirrors, codes; and paragraphs.
#include "paragraphs.h"

namespace {

using namespace scene_test;

std::string text(const std::string& more, const char* words = "AB") {
    return std::string("0 TEXT|8 0|10 1|20 2|30 0|40 3|1 ") + words + "|" + more;
}

TEST(SceneTexts, AJustifiedTextStandsAtItsAlignmentPoint) {
    const Drawn left(text("50 90"));
    EXPECT_TRUE(isAt(left.text().position, 1, 2));
    EXPECT_EQ(left.text().horizontal, 0);
    EXPECT_EQ(left.text().vertical, 0);
    EXPECT_NEAR(left.text().rotation, kPi / 2, 1e-12);
    EXPECT_EQ(left.text().height, 3);
    for (const int horizontal : {1, 2}) {
        const Drawn drawn(text("72 " + std::to_string(horizontal) + "|11 7|21 8|31 0"));
        EXPECT_TRUE(isAt(drawn.text().position, 7, 8));
        EXPECT_EQ(drawn.text().horizontal, horizontal);
    }
    for (const int vertical : {1, 2, 3}) {
        const Drawn drawn(text("11 7|21 8|31 0|73 " + std::to_string(vertical)));
        EXPECT_TRUE(isAt(drawn.text().position, 7, 8)) << "a left text with a row has an alignment point too";
        EXPECT_EQ(drawn.text().vertical, vertical);
    }
    const Drawn middle(text("72 4|11 7|21 8|31 0"));
    EXPECT_EQ(middle.text().horizontal, 1);
    EXPECT_EQ(middle.text().vertical, 2);
}

TEST(SceneTexts, TheBaseLineLiesByTheRow) {
    const auto drop = [](const char* row) {
        return BaseLineDrop(Drawn(text(std::string("11 7|21 8|31 0|73 ") + row)).text());
    };
    EXPECT_EQ(drop("0"), 0);
    EXPECT_NEAR(drop("1"), -1, 1e-12) << "above by what letters reach below it";
    EXPECT_NEAR(drop("2"), 1.5, 1e-12);
    EXPECT_NEAR(drop("3"), 3, 1e-12);
}

TEST(SceneTexts, FitAndAlignedTextsRunBetweenTheirPoints) {
    for (const char* mode : {"72 3", "72 5"}) {
        const Drawn drawn(text(std::string(mode) + "|11 4|21 6|31 0|50 77"));
        EXPECT_TRUE(isAt(drawn.text().position, 1, 2));
        EXPECT_NEAR(drawn.text().fitWidth, 5, 1e-12);
        EXPECT_NEAR(drawn.text().rotation, std::atan2(4, 3), 1e-12);
        EXPECT_EQ(drawn.text().horizontal, 0);
        EXPECT_NEAR(TextExtent(drawn.text()), 5, 1e-12);
    }
}

TEST(SceneTexts, ABackwardTextRunsToTheLeftAndAnUpsideDownOneHangs) {
    const Drawn backward(text("71 2"));
    EXPECT_NEAR(backward.text().rotation, 0, 1e-12);
    EXPECT_NEAR(backward.text().widthFactor, -1, 1e-12);
    // Upside down is turned by half a circle and backward.
    const Drawn hanging(text("71 4"));
    EXPECT_NEAR(std::abs(hanging.text().rotation), kPi, 1e-12);
    EXPECT_NEAR(hanging.text().widthFactor, -1, 1e-12);
    const Drawn both(text("71 6"));
    EXPECT_NEAR(std::abs(both.text().rotation), kPi, 1e-12);
    EXPECT_NEAR(both.text().widthFactor, 1, 1e-12);
}

TEST(SceneTexts, WidthAndSlantAreTheTexts) {
    const Drawn drawn(text("41 0.5|51 30"));
    EXPECT_NEAR(drawn.text().widthFactor, 0.5, 1e-12);
    EXPECT_NEAR(drawn.text().font.oblique, kPi / 6, 1e-12);
}

TEST(SceneTexts, AnUnevenScaleOfABlockStretchesAndSlants) {
    const Drawn wide(Parts{.blocks = block("B", text("41 1")),
                           .entities = "0 INSERT|8 0|2 B|10 0|20 0|30 0|41 4|42 2|43 1"});
    EXPECT_TRUE(isAt(wide.text().position, 4, 4));
    EXPECT_NEAR(wide.text().height, 6, 1e-12);
    EXPECT_NEAR(wide.text().widthFactor, 2, 1e-12);
    // A text at 45 degrees in a block that is twice as wide: along (2,1), up (-2,1) of its height of 3.
    const Drawn turned(Parts{.blocks = block("B", text("50 45")),
                             .entities = "0 INSERT|8 0|2 B|10 0|20 0|30 0|41 2|42 1|43 1"});
    EXPECT_NEAR(turned.text().rotation, std::atan2(1, 2), 1e-12);
    const double h = 3 / std::sqrt(2.0), root = std::sqrt(5.0);
    EXPECT_NEAR(turned.text().height, h * 4 / root, 1e-9) << "the part of (-2,1) across the line";
    EXPECT_NEAR(std::tan(turned.text().font.oblique), -3.0 / 4, 1e-9)
        << "(-2,1) along the line over across it";
}

TEST(SceneTexts, AMirroredBlockMirrorsItsLetters) {
    const Drawn drawn(Parts{.blocks = block("B", text("50 0")),
                            .entities = "0 INSERT|8 0|2 B|10 0|20 0|30 0|41 -1|42 1|43 1"});
    EXPECT_TRUE(isAt(drawn.text().position, -1, 2));
    EXPECT_NEAR(drawn.text().rotation, 0, 1e-12);
    EXPECT_NEAR(drawn.text().widthFactor, -1, 1e-12);
}

TEST(SceneTexts, ATextLiesInItsPlane) {
    const Drawn drawn(text("210 0|220 0|230 -1"));
    EXPECT_TRUE(isAt(drawn.text().position, -1, 2));
    EXPECT_NEAR(drawn.text().widthFactor, -1, 1e-12);
}

TEST(SceneTexts, CodesBecomeSignsAndLines) {
    EXPECT_EQ(Drawn(text("50 0", "45%%d %%p%%c1%%%%%065 \\U+00B2")).text().text,
              L"45\u00B0 \u00B1\u00D81%A \u00B2");
    EXPECT_EQ(Drawn(text("50 0", "\\U+004d\\U+004F")).text().text, L"MO") << "digits of either case";
    EXPECT_EQ(Drawn(text("50 0", "100%%")).text().text, L"100");
    SceneOptions options;
    options.textWidth = [](const SceneFont&, std::wstring_view words) {
        return static_cast<double>(words.size());
    };
    const auto lines = [&](const char* words, const char* more = "50 0") {
        const OdDbDatabasePtr drawing = drawingOf({.entities = text(more, words)});
        return BuildScene(*drawing, drawing->modelSpaceId(), options).paths;
    };
    // Letters are as wide as they are high here: 3 units.
    const std::vector<ScenePath> under = lines("a%%ubc%%ud");
    ASSERT_EQ(under.size(), 1u);
    EXPECT_TRUE(goesThrough(under[0], {{4, 1.4}, {10, 1.4}}));
    EXPECT_TRUE(goesThrough(lines("%%oab").at(0), {{1, 5.6}, {7, 5.6}}));
    EXPECT_TRUE(goesThrough(lines("%%kab").at(0), {{1, 3.5}, {7, 3.5}}));
    EXPECT_TRUE(goesThrough(lines("%%uab", "72 2|11 10|21 2|31 0").at(0), {{4, 1.4}, {10, 1.4}}))
        << "right aligned";
    EXPECT_TRUE(goesThrough(lines("%%uab", "50 90").at(0), {{1.6, 2}, {1.6, 8}})) << "turned";
}

TEST(SceneTexts, TheFontIsThatOfTheStyle) {
    const Drawn drawn(
        Parts{.tables = table("STYLE", "0 STYLE|2 ROMAN|70 0|40 0|41 1|50 0|71 0|42 1|3 romans.shx|4 "),
              .entities = text("7 ROMAN")});
    EXPECT_EQ(drawn.text().font.file, L"romans.shx");
}

TEST(SceneTexts, ATextWithoutHeightOrWordsIsNothing) {
    EXPECT_TRUE(Drawn("0 TEXT|8 0|10 0|20 0|30 0|40 0|1 A").texts().empty());
    EXPECT_TRUE(Drawn("0 TEXT|8 0|10 0|20 0|30 0|40 1|1 ").texts().empty());
}

TEST(SceneParagraphs, LinesStandFiveThirdsApartUnderTheTop) {
    const Paragraphs drawn(paragraph("ab\\Pcd"));
    ASSERT_EQ(drawn.scene.texts.size(), 2u);
    EXPECT_TRUE(isAt(drawn.scene.texts[0].position, 10, 19));
    EXPECT_TRUE(isAt(drawn.scene.texts[1].position, 10, 19 - 5.0 / 3));
    EXPECT_EQ(drawn.scene.texts[0].vertical, 0);
}

TEST(SceneParagraphs, TheSpacingFactorIsOneOfTheHighestLettersOrExact) {
    const auto second = [](const char* more) {
        return Paragraphs(paragraph("a\\P{\\H3;b}", more)).scene.texts.at(1).position.y;
    };
    EXPECT_NEAR(second("71 1|44 2"), 19 - 3 * 2 * 5.0 / 3, 1e-9);
    EXPECT_NEAR(second("71 1|73 2|44 2"), 19 - 2 * 5.0 / 3, 1e-9);
    EXPECT_NEAR(Paragraphs(paragraph("a\\P\\Pb")).scene.texts.at(1).position.y, 19 - 2 * 5.0 / 3, 1e-9)
        << "a line without letters is as high as the text";
}

TEST(SceneParagraphs, TheAttachmentSaysWhichPlaceOfTheBoxIsMeant) {
    // Two lines: from the top to the last base line it is 1 + 5/3.
    const double height = 1 + 5.0 / 3;
    for (int attachment = 1; attachment <= 9; ++attachment) {
        const Paragraphs drawn(paragraph("abcd\\Pab", "71 " + std::to_string(attachment)));
        const int row = (attachment - 1) / 3, column = (attachment - 1) % 3;
        EXPECT_EQ(drawn.scene.texts[0].horizontal, column);
        EXPECT_TRUE(isAt(drawn.scene.texts[0].position, 10, 20 - 1 + height * row / 2)) << attachment;
        EXPECT_TRUE(isAt(drawn.scene.texts[1].position, 10, 20 - height + height * row / 2)) << attachment;
    }
}

TEST(SceneParagraphs, LinesBreakAtTheWidthBetweenWords) {
    EXPECT_EQ(Paragraphs(paragraph("aa bb cc dd", "71 1|41 5")).words(), L"aa bb/cc dd");
    EXPECT_EQ(Paragraphs(paragraph("aa bb cc", "71 1|41 4.9")).words(), L"aa/bb/cc");
    EXPECT_EQ(Paragraphs(paragraph("aaaaaaaa b", "71 1|41 3")).words(), L"aaaaaaaa/b")
        << "a word stays whole";
    EXPECT_EQ(Paragraphs(paragraph("aa bb cc", "71 1|41 0")).words(), L"aa bb cc");
    EXPECT_EQ(Paragraphs(paragraph("aa\\~bb cc", "71 1|41 5")).words(), L"aa\u00A0bb/cc")
        << "a hard blank holds";
}

TEST(SceneParagraphs, CentredLinesStandInTheMiddleOfTheBox) {
    const Paragraphs drawn(paragraph("ab\\P\\pqr;cd", "71 2|41 10"));
    EXPECT_TRUE(isAt(drawn.scene.texts[0].position, 10, 19));
    EXPECT_EQ(drawn.scene.texts[0].horizontal, 1);
    EXPECT_EQ(drawn.scene.texts[1].horizontal, 2);
    EXPECT_TRUE(isAt(drawn.scene.texts[1].position, 15, 19 - 5.0 / 3)) << "the right edge of the box";
}

TEST(SceneParagraphs, IndentsShiftTheFirstLineAndAllLines) {
    const Paragraphs drawn(paragraph("\\pi2,l3;aa bb", "71 1|41 8"));
    ASSERT_EQ(drawn.words(), L"aa/bb");
    EXPECT_NEAR(drawn.scene.texts[0].position.x, 15, 1e-9);
    EXPECT_NEAR(drawn.scene.texts[1].position.x, 13, 1e-9);
    const Paragraphs hanging(paragraph("\\pi-2,l+3;aa bb", "71 1|41 5"));
    EXPECT_NEAR(hanging.scene.texts.at(0).position.x, 11, 1e-9);
    EXPECT_NEAR(hanging.scene.texts.at(1).position.x, 13, 1e-9);
}

TEST(SceneParagraphs, FormatsHoldToTheEndOfTheirBraces) {
    const Paragraphs drawn(
        paragraph("a{\\H2x;\\C1;b}c{\\W0.5;\\Q30;d}{\\fArial\x14"
                  "b1\x14i1\x14"
                  "c0\x14p34;e}{\\Fromans.shx;f}{\\c255;g}"));
    const std::vector<SceneText>& texts = drawn.scene.texts;
    ASSERT_EQ(drawn.words(), L"a/b/c/d/e/f/g");
    EXPECT_EQ(texts[1].height, 2);
    EXPECT_EQ(texts[1].style.color.colorIndex(), 1);
    EXPECT_TRUE(isAt(texts[1].position, 11, 18)) << "the line is as high as its highest letters";
    EXPECT_TRUE(isAt(texts[2].position, 13, 18));
    EXPECT_EQ(texts[2].height, 1);
    EXPECT_EQ(texts[2].style.color.colorIndex(), 7);
    EXPECT_NEAR(texts[3].widthFactor, 0.5, 1e-12);
    EXPECT_NEAR(texts[3].font.oblique, kPi / 6, 1e-12);
    EXPECT_TRUE(isAt(texts[4].position, 14.5, 18));
    EXPECT_EQ(texts[4].font.family, L"Arial");
    EXPECT_TRUE(texts[4].font.bold && texts[4].font.italic);
    EXPECT_EQ(texts[5].font.file, L"romans.shx");
    EXPECT_EQ(texts[6].style.color.red(), 255) << "blue is in the high byte";
    EXPECT_EQ(texts[6].style.color.blue(), 0);
}

TEST(SceneParagraphs, LinesUnderOverAndThroughLettersRunAlongThem) {
    const auto line = [](const char* words) {
        const Paragraphs drawn(paragraph(words));
        return drawn.scene.paths.at(0);
    };
    EXPECT_TRUE(goesThrough(line("a\\Lbc\\ld"), {{11, 18.8}, {13, 18.8}}));
    EXPECT_TRUE(goesThrough(line("\\Oab\\o"), {{10, 20.2}, {12, 20.2}}));
    EXPECT_TRUE(goesThrough(line("\\Kab\\k"), {{10, 19.5}, {12, 19.5}}));
}

TEST(SceneParagraphs, AStackIsOneNumberOverTheOther) {
    const Paragraphs drawn(paragraph("a\\S12/3;"));
    ASSERT_EQ(drawn.words(), L"a/12/3");
    // As high as the text, 0.15 from the bar; the lower one stands on the base line. The wider one is 2 wide.
    EXPECT_TRUE(isAt(drawn.scene.texts[1].position, 12, 19 + 1.3));
    EXPECT_TRUE(isAt(drawn.scene.texts[2].position, 12, 19));
    EXPECT_EQ(drawn.scene.texts[1].height, 1);
    EXPECT_TRUE(goesThrough(drawn.scene.paths.at(0), {{11, 20.15}, {13, 20.15}}));
    const Paragraphs middle(paragraph("a{\\A1;\\H0.5x;\\S1/2;}"));
    EXPECT_TRUE(isAt(middle.scene.texts.at(1).position, 11.25, 19.5 + 0.075));
    EXPECT_TRUE(isAt(middle.scene.texts.at(2).position, 11.25, 19.5 - 0.575));
    EXPECT_TRUE(goesThrough(middle.scene.paths.at(0), {{11, 19.5}, {11.5, 19.5}}));
    const Paragraphs above(paragraph("a{\\A2;\\H0.5x;\\S1^2;}"));
    EXPECT_TRUE(isAt(above.scene.texts.at(1).position, 11.25, 19.5)) << "its top is that of the line";
    const Paragraphs slanted(paragraph("a{\\A1;\\H0.5x;\\S1#2;}"));
    EXPECT_TRUE(isAt(slanted.scene.texts.at(1).position, 11, 19.5));
    EXPECT_TRUE(isAt(slanted.scene.texts.at(2).position, 12, 19)) << "at its right end";
    EXPECT_TRUE(goesThrough(slanted.scene.paths.at(0), {{11.25, 19}, {11.75, 20}}));
    EXPECT_TRUE(Paragraphs(paragraph("\\S+1^-2;")).scene.paths.empty()) << "a tolerance has no bar";
    const auto distance = [](const std::string& second, const std::string& more = "71 1") {
        const Paragraphs lines(paragraph("a\\Pb" + second, more));
        return lines.scene.texts[0].position.y - lines.scene.texts[1].position.y;
    };
    EXPECT_NEAR(distance(""), 5.0 / 3, 1e-9);
    EXPECT_NEAR(distance("\\S1/2;"), 5.0 / 3 + 1.3, 1e-9) << "it doesn't stand in the line above";
    EXPECT_NEAR(distance("{\\A1;\\S1/2;}"), 5.0 / 3 + 0.65, 1e-9);
    EXPECT_NEAR(distance("\\S1#2;"), 5.0 / 3 + 1, 1e-9);
    EXPECT_NEAR(distance("{\\H0.4x;\\S1/2;}"), 5.0 / 3, 1e-9) << "one that isn't higher than its line";
    EXPECT_NEAR(distance("\\S1/2;", "71 1|73 2"), 5.0 / 3, 1e-9) << "exact distances stay";
    EXPECT_EQ(Paragraphs(paragraph("\\S+1^-2;")).words(), L"+1/-2");
    EXPECT_EQ(Paragraphs(paragraph("\\S1#2;")).scene.paths.size(), 1u);
    EXPECT_EQ(Paragraphs(paragraph("\\Sx\\/y/2;")).words(), L"x/y/2")
        << "a bar behind a backslash is a letter";
}

TEST(SceneParagraphs, SignsAndEscapesAreLetters) {
    EXPECT_EQ(Paragraphs(paragraph("\\{a\\}\\\\ \\U+00B0%%c%%d^ x")).words(), L"{a}\\ \u00B0\u00D8\u00B0^x");
    EXPECT_EQ(Paragraphs(paragraph("a^Jb")).words(), L"a/b");
    EXPECT_EQ(Paragraphs(paragraph("a}}b{{{c")).words(), L"abc") << "braces that don't pair";
    EXPECT_EQ(Paragraphs(paragraph("a\\M+1B0F1b\\M+00000c")).words(), L"a\uFFFDb\uFFFDc")
        << "characters of other code pages";
    EXPECT_EQ(Paragraphs(paragraph("a\\H")).words(), L"a") << "a code that nothing ends";
    EXPECT_EQ(Paragraphs(paragraph("a\\")).words(), L"a");
}

TEST(SceneParagraphs, TheDirectionIsAVectorOrAnAngle) {
    const Paragraphs turned(paragraph("a\\Pb", "71 1|11 0|21 1|31 0"));
    EXPECT_NEAR(turned.scene.texts[0].rotation, kPi / 2, 1e-12);
    EXPECT_TRUE(isAt(turned.scene.texts[0].position, 11, 20));
    EXPECT_TRUE(isAt(turned.scene.texts[1].position, 11 + 5.0 / 3, 20));
    const Paragraphs angled(paragraph("a", "71 1|50 180"));
    EXPECT_NEAR(std::abs(angled.scene.texts[0].rotation), kPi, 1e-12);
    EXPECT_TRUE(isAt(angled.scene.texts[0].position, 10, 21));
}

TEST(SceneParagraphs, ABackgroundLiesBehindTheLetters) {
    const Paragraphs filled(paragraph("abcd", "71 1|90 1|63 3|45 1.5"));
    ASSERT_EQ(filled.scene.paths.size(), 1u);
    EXPECT_TRUE(filled.scene.paths[0].filled);
    EXPECT_FALSE(filled.scene.paths[0].wipes);
    EXPECT_EQ(filled.scene.paths[0].style.color.colorIndex(), 3);
    EXPECT_TRUE(goesThrough(filled.scene.paths[0], {{9.5, 18.5}, {14.5, 18.5}, {14.5, 20.5}, {9.5, 20.5}}));
    EXPECT_EQ(filled.scene.texts[0].pathsBelow, 1u);
    EXPECT_TRUE(Paragraphs(paragraph("abcd", "71 1|90 3|45 1.5")).scene.paths.at(0).wipes)
        << "in the colour of the paper";
}

TEST(SceneParagraphs, ALayersColorIsThatOfLettersByLayer) {
    const Drawn drawn(Parts{.tables = table("LAYER", "0 LAYER|2 RED|70 0|62 1|6 CONTINUOUS"),
                            .entities = "0 MTEXT|8 RED|62 5|10 0|20 0|30 0|40 1|71 1|1 a{\\C256;b}{\\C0;c}"});
    EXPECT_EQ(drawn.text(0).style.color.colorIndex(), 5);
    EXPECT_EQ(drawn.text(1).style.color.colorIndex(), 1);
    EXPECT_EQ(drawn.text(2).style.color.colorIndex(), 7);
}

TEST(SceneParagraphs, TextsOfAnyLengthEnd) {
    std::string words, marks;
    for (int i = 0; i < 50000; ++i) words += "a ";
    for (int i = 0; i < 3000; ++i) marks += "%%ua%%u";
    EXPECT_EQ(Paragraphs(paragraph(words, "71 1|41 7")).scene.texts.size(), 10000u)
        << "so many lines and no more";
    const OdDbDatabasePtr drawing = drawingOf({.entities = text("50 0", marks.c_str())});
    SceneOptions options;
    options.workLimit = 1'000'000;
    EXPECT_TRUE(BuildScene(*drawing, drawing->modelSpaceId(), options).isCut)
        << "each line costs the whole text";
}

TEST(SceneParagraphs, LettersMayBeSpacedAndSettingsOfAParagraphHoldOn) {
    const Paragraphs spaced(paragraph("{\\T2;\\La b}c"));
    EXPECT_EQ(spaced.words(), L"a/b/c");
    EXPECT_NEAR(spaced.scene.texts.at(1).position.x, 14, 1e-9) << "two letters of twice their width further";
    EXPECT_NEAR(spaced.scene.texts.at(2).position.x, 16, 1e-9);
    EXPECT_NEAR(spaced.scene.texts.at(0).widthFactor, 1, 1e-9) << "letters keep their width";
    EXPECT_TRUE(goesThrough(spaced.scene.paths.at(0), {{10, 18.8}, {16, 18.8}}));
    const Paragraphs centred(paragraph("\\pqc;a\\Pb", "71 1|41 10"));
    EXPECT_EQ(centred.scene.texts.at(1).horizontal, 1);
    EXPECT_NEAR(centred.scene.texts.at(1).position.x, 15, 1e-9);
}

TEST(SceneTexts, LinesAtLettersAreWhole) {
    const Drawn drawn(Parts{.tables = table("LTYPE", "0 LTYPE|2 DASHED|70 0|3 d|72 65|73 2|40 3|49 2|49 -1"),
                            .entities = text("6 DASHED", "%%uab")});
    ASSERT_EQ(drawn.paths().size(), 1u);
    EXPECT_TRUE(drawn.path().style.dashes.empty());
}

TEST(SceneParagraphs, AHeightIsANumberOrAFactor) {
    const auto height = [](const std::string& words) {
        return Paragraphs(paragraph(words)).scene.texts.at(0).height;
    };
    EXPECT_EQ(height("\\H2;\\H3;a"), 3);
    EXPECT_EQ(height("\\H2;\\H3x;a"), 6);
    EXPECT_EQ(height("\\H2;\\H1.5X;a"), 3);
    EXPECT_EQ(height("\\H+2;a"), 2);
    for (const char* none : {"0", "-2", "", "x", "."})
        EXPECT_EQ(height(std::string("\\H") + none + ";a"), 1) << none;
    EXPECT_EQ(height("\\H" + std::string(400, '9') + ";a"), 1) << "more than any number";
}

TEST(SceneParagraphs, LettersOfOneLookAreOneText) {
    EXPECT_EQ(Paragraphs(paragraph("a{b}c")).words(), L"abc");
    for (const char* look : {"\\fTimes\x14"
                             "b0\x14"
                             "i0;",
                             "\\fArial\x14"
                             "b1\x14"
                             "i0;",
                             "\\fArial\x14"
                             "b0\x14"
                             "i1;",
                             "\\Farial.shx;", "\\Q10;", "\\W2;", "\\T2;", "\\H2;", "\\C1;"})
        EXPECT_EQ(Paragraphs(paragraph(std::string("{\\fArial\x14"
                                                   "b0\x14"
                                                   "i0;a") +
                                       look + "b}"))
                      .words(),
                  L"a/b")
            << look;
}

}  // namespace
