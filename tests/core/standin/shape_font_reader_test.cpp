#include "../../../platform/standin/fonts/shape_font_reader.h"

#include <gtest/gtest.h>

#include "../../../platform/standin/fonts/byte_source.h"
#include "../../support/font_bytes.h"

using font_bytes::letters;
using font_bytes::Shapes;

namespace {

FontFile read(const std::string& bytes, const wchar_t* name = L"a.shx") {
    MemorySource source(bytes);
    return readFont(source, name);
}

FontProblem problemOf(const std::string& bytes) { return read(bytes).problem; }

/// Whether `whole` is a font, and no part from its beginning is one that is shorter than `least`.
void expectWholeOnly(const std::string& whole, std::size_t least) {
    ASSERT_EQ(problemOf(whole), FontProblem::kNone);
    for (std::size_t length = 0; length < least; ++length)
        EXPECT_NE(problemOf(whole.substr(0, length)), FontProblem::kNone) << length;
}

void expectNoCrashWhenSpoiled(const std::string& whole) {
    for (std::size_t at = 0; at < whole.size(); ++at) {
        for (const int value : {0x00, 0x80, 0xFF}) {
            std::string spoiled = whole;
            spoiled[at] = static_cast<char>(value);
            const FontFile file = read(spoiled);
            EXPECT_EQ(file.kind == FontKind::kNone, file.problem != FontProblem::kNone) << at;
        }
    }
}

constexpr std::size_t kHeader = 25;  // bytes of the longer header

}  // namespace

TEST(ShapeFont, ShapesWithADescriptionAreAFont) {
    for (const char* header : {"AutoCAD-86 shapes 1.0", "AutoCAD-86 shapes 1.1", "AutoCAD-86 shapes V1.0",
                               "AutoCAD-86 Shapes 1.0", "AUTOCAD-86 SHAPES V1.1"}) {
        const FontFile file = read(font_bytes::shapes(letters(), header));
        EXPECT_EQ(file.kind, FontKind::kShape) << header;
        EXPECT_EQ(file.problem, FontProblem::kNone) << header;
        EXPECT_TRUE(file.faces.empty());
    }
}

TEST(ShapeFont, ShapesWithoutADescriptionAreALibrary) {
    const FontFile file = read(font_bytes::shapes({{130, std::string("BOX\0\x14\0", 6)}, {131, "\x10"}}));
    EXPECT_EQ(file.kind, FontKind::kNone);
    EXPECT_EQ(file.problem, FontProblem::kNoLetters);
}

TEST(ShapeFont, ADescriptionAloneHasNoLetters) {
    const Shapes description(1, letters()[0]);
    EXPECT_EQ(problemOf(font_bytes::shapes(description)), FontProblem::kNoLetters);
    EXPECT_EQ(problemOf(font_bytes::unifont(description)), FontProblem::kNoLetters);
}

TEST(ShapeFont, UnicodeFontsAreFonts) {
    EXPECT_EQ(read(font_bytes::unifont(letters())).kind, FontKind::kShape);
}

TEST(ShapeFont, BigFontsAreToldApart) {
    const FontFile file = read(font_bytes::bigFont({{0xB0A1, "\x10"}, {0xB0A2, "\x20"}}));
    EXPECT_EQ(file.kind, FontKind::kBigFont);
    EXPECT_EQ(file.problem, FontProblem::kNone);
}

TEST(ShapeFont, OtherFilesOfTheExtensionAreNoFonts) {
    EXPECT_EQ(problemOf(std::string("\0\0\x27\x0A", 4) + std::string(96, '\0')), FontProblem::kNotAFont);
    EXPECT_EQ(problemOf(""), FontProblem::kNotAFont);
    EXPECT_EQ(problemOf(font_bytes::outlineFont(std::string("A"), std::string("B"))), FontProblem::kNotAFont);
}

TEST(ShapeFont, AnotherVersionOrAnEndlessHeaderIsDamage) {
    EXPECT_EQ(problemOf(font_bytes::shapes(letters(), "AutoCAD-86 shapes 9.9")), FontProblem::kDamaged);
    EXPECT_EQ(problemOf("AutoCAD-86 shapes 1.0\r\n" + std::string(100, 'x')), FontProblem::kDamaged);
}

TEST(ShapeFont, ShapesHaveToBeWhole) {
    const std::string whole = font_bytes::shapes(letters());
    expectWholeOnly(whole, whole.size());
    expectNoCrashWhenSpoiled(whole);
}

TEST(ShapeFont, UnicodeFontsHaveToHaveTheirLetters) {
    const std::string whole = font_bytes::unifont(letters());
    expectWholeOnly(whole, kHeader + 2 + 4 + 9 + 2 * 4);
    expectNoCrashWhenSpoiled(whole);
}

TEST(ShapeFont, BigFontsHaveToHaveTheirIndex) {
    const std::string whole = font_bytes::bigFont({{0xB0A1, "\x10"}, {0xB0A2, "\x20"}});
    expectWholeOnly(whole, kHeader + 6 + 4 + 2 * 8);
    expectNoCrashWhenSpoiled(whole);
}

TEST(ShapeFont, CountsThatLieAreDamage) {
    std::string shapes = font_bytes::shapes(letters());
    shapes[kHeader - 1 + 5] = '\x7F';
    EXPECT_EQ(problemOf(shapes), FontProblem::kDamaged);
    std::string unifont = font_bytes::unifont(letters());
    unifont[kHeader + 1] = '\x7F';
    EXPECT_EQ(problemOf(unifont), FontProblem::kDamaged);
    unifont[kHeader] = unifont[kHeader + 1] = 0;
    EXPECT_EQ(problemOf(unifont), FontProblem::kDamaged) << "not even its description is counted";
    std::string big = font_bytes::bigFont({{0xB0A1, "\x10"}});
    big[kHeader + 5] = '\x7F';
    EXPECT_EQ(problemOf(big), FontProblem::kDamaged);
}

TEST(FontFile, ExtensionDecidesWhatIsExpected) {
    EXPECT_TRUE(isFontFileName(L"a.TTF"));
    EXPECT_TRUE(isFontFileName(L"a.b.otf"));
    EXPECT_TRUE(isFontFileName(L"a.ttc"));
    EXPECT_TRUE(isFontFileName(L"a.Shx"));
    EXPECT_FALSE(isFontFileName(L"a.fon"));
    EXPECT_FALSE(isFontFileName(L"ttf"));
    EXPECT_EQ(read(font_bytes::unifont(letters()), L"a.ttf").problem, FontProblem::kNotAFont);
    EXPECT_EQ(read(font_bytes::unifont(letters()), L"a.txt").problem, FontProblem::kNotAFont);
}

TEST(FontFile, NameStandsBehindTheLastSeparator) {
    EXPECT_EQ(fileNameOf(L"C:\\a/b\\c.shx"), L"c.shx");
    EXPECT_EQ(fileNameOf(L"c.shx"), L"c.shx");
    EXPECT_EQ(fileNameOf(L"a\\"), L"");
}
