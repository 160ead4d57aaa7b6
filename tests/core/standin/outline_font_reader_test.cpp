#include "../../../platform/standin/fonts/outline_font_reader.h"

#include <gtest/gtest.h>

#include "../../../platform/standin/fonts/byte_source.h"
#include "../../support/font_bytes.h"

using font_bytes::TinyFont;

namespace {

FontFile read(const std::string& bytes, const wchar_t* name = L"a.ttf") {
    MemorySource source(bytes);
    return readFont(source, name);
}

/// Family and style of the first face, with a slash between.
std::wstring title(const FontFile& file) {
    return file.faces.empty() ? L"none" : file.faces[0].family + L"/" + file.faces[0].style;
}
std::wstring title(const TinyFont& font) { return title(read(font.bytes())); }

FontProblem problemOf(const std::string& bytes) { return read(bytes).problem; }

TinyFont sample() { return TinyFont().called(std::string("Sample"), std::string("Bold")); }

}  // namespace

TEST(OutlineFont, FamilyStyleAndLooksAreRead) {
    TinyFont font = sample();
    font.weight = 700;
    font.width = 3;
    font.selection = 0x21;
    const FontFile file = read(font.bytes());
    EXPECT_EQ(file.kind, FontKind::kTrueType);
    EXPECT_EQ(file.problem, FontProblem::kNone);
    EXPECT_EQ(file.faces, (std::vector<FontFace>{{L"Sample", L"Bold", 700, 3, true}}));
}

TEST(OutlineFont, EachMarkOfAFontIsKnown) {
    for (const std::uint32_t mark : {0x00010000u, 0x4F54544Fu, 0x74727565u}) {
        TinyFont font = sample();
        font.mark = mark;
        EXPECT_EQ(title(font), L"Sample/Bold") << mark;
    }
    TinyFont other = sample();
    other.mark = 0x74797031;
    EXPECT_EQ(problemOf(other.bytes()), FontProblem::kNotAFont);
}

TEST(OutlineFont, TypographicNamesGoBeforePlainOnes) {
    const TinyFont font = TinyFont()
                              .called(std::string("Sample Black"), std::string("Regular"))
                              .name(3, 1, 0x409, 16, std::string("Sample"))
                              .name(3, 1, 0x409, 17, std::string("Black"));
    EXPECT_EQ(title(font), L"Sample/Black");
}

TEST(OutlineFont, TypographicFamilyAloneKeepsThePlainStyle) {
    EXPECT_EQ(title(sample().name(3, 1, 0x409, 16, std::string("Family"))), L"Family/Bold");
}

TEST(OutlineFont, TypographicStyleAloneDoesNotCount) {
    EXPECT_EQ(title(sample().name(3, 1, 0x409, 17, std::string("Light"))), L"Sample/Bold");
}

TEST(OutlineFont, EnglishGoesBeforeEveryOtherLanguage) {
    const std::u16string chinese = u"宋体";
    TinyFont font;
    font.name(3, 1, 0x804, 1, chinese);
    EXPECT_EQ(title(font), L"\x5B8B\x4F53/Regular") << "alone it is taken";
    font.raw(1, 0, 0, 1, "Roman");
    EXPECT_EQ(title(font), L"Roman/Regular");
    font.name(0, 3, 0, 1, std::string("Unicode"));
    EXPECT_EQ(title(font), L"Unicode/Regular");
    font.name(3, 1, 0x809, 1, std::string("British"));
    EXPECT_EQ(title(font), L"British/Regular");
    font.name(3, 1, 0x409, 1, std::string("American"));
    EXPECT_EQ(title(font), L"American/Regular");
}

TEST(OutlineFont, WithoutEnglishTheOrderIsFixed) {
    TinyFont font;
    font.raw(1, 0, 3, 1, "Altes");
    EXPECT_EQ(title(font), L"Altes/Regular");
    font.name(3, 1, 0x411, 1, std::string("Japanese"));
    EXPECT_EQ(title(font), L"Japanese/Regular");
    font.name(3, 1, 0x407, 1, std::string("German"));
    EXPECT_EQ(title(font), L"German/Regular") << "the lowest number";
    font.name(3, 1, 0x404, 1, std::string("Traditional"));
    EXPECT_EQ(title(font), L"Traditional/Regular");
    font.name(3, 10, 0x804, 1, std::string("Simplified"));
    EXPECT_EQ(title(font), L"Simplified/Regular");
}

TEST(OutlineFont, RomanNamesKeepTheirAccents) {
    EXPECT_EQ(title(TinyFont().raw(1, 0, 0, 1, "Z\x9Frich \xE7")), L"Z\xFCrich \xC1/Regular");
}

TEST(OutlineFont, EveryRomanByteHasItsCharacter) {
    std::string bytes;
    for (int byte = 0x80; byte < 0x100; ++byte) bytes += static_cast<char>(byte);
    const std::wstring upper =
        L"\u00C4\u00C5\u00C7\u00C9\u00D1\u00D6\u00DC\u00E1\u00E0\u00E2\u00E4\u00E3\u00E5\u00E7\u00E9\u00E8"
        L"\u00EA\u00EB\u00ED\u00EC\u00EE\u00EF\u00F1\u00F3\u00F2\u00F4\u00F6\u00F5\u00FA\u00F9\u00FB\u00FC"
        L"\u2020\u00B0\u00A2\u00A3\u00A7\u2022\u00B6\u00DF\u00AE\u00A9\u2122\u00B4\u00A8\u2260\u00C6\u00D8"
        L"\u221E\u00B1\u2264\u2265\u00A5\u00B5\u2202\u2211\u220F\u03C0\u222B\u00AA\u00BA\u03A9\u00E6\u00F8"
        L"\u00BF\u00A1\u00AC\u221A\u0192\u2248\u2206\u00AB\u00BB\u2026\u00A0\u00C0\u00C3\u00D5\u0152\u0153"
        L"\u2013\u2014\u201C\u201D\u2018\u2019\u00F7\u25CA\u00FF\u0178\u2044\u20AC\u2039\u203A\uFB01\uFB02"
        L"\u2021\u00B7\u201A\u201E\u2030\u00C2\u00CA\u00C1\u00CB\u00C8\u00CD\u00CE\u00CF\u00CC\u00D3\u00D4"
        L"\uF8FF\u00D2\u00DA\u00DB\u00D9\u0131\u02C6\u02DC\u00AF\u02D8\u02D9\u02DA\u00B8\u02DD\u02DB\u02C7";
    EXPECT_EQ(title(TinyFont().raw(1, 0, 0, 1, "A" + bytes + "~")), L"A" + upper + L"~/Regular");
}

TEST(OutlineFont, CharactersOfTwoUnitsStayOne) {
    // In every width of wchar_t.
    EXPECT_EQ(title(TinyFont().raw(3, 1, 0x409, 1, font_bytes::utf16(u"a\U0001F600\U0010FFFDz"))),
              L"a\U0001F600\U0010FFFDz/Regular");
}

TEST(OutlineFont, SymbolFontsNameThemselvesInUnicode) {
    EXPECT_EQ(title(TinyFont().name(3, 0, 0x409, 1, std::string("Signs"))), L"Signs/Regular");
}

TEST(OutlineFont, OtherEncodingsArePassedOver) {
    TinyFont font;
    font.raw(3, 3, 0x804, 1, "\xCB\xCE\xCC\xE5").raw(1, 25, 33, 1, "\xCB\xCE").raw(2, 0, 0, 1, "ISO");
    EXPECT_EQ(problemOf(font.bytes()), FontProblem::kDamaged) << "no legible name";
}

TEST(OutlineFont, NamesAreCleaned) {
    const std::wstring face =
        sizeof(wchar_t) == 2 ? L"\xD83D\xDE00" : std::wstring(1, static_cast<wchar_t>(0x1F600));
    TinyFont font;
    font.name(3, 1, 0x409, 1,
              std::u16string(u"\x3000 A\x0007"
                             u"B\x0085"
                             u"C \xD800x\xDC00 \xD83D\xDE00  "));
    EXPECT_EQ(title(font), L"ABC \xFFFDx\xFFFD " + face + L"/Regular");
}

TEST(OutlineFont, AnIllegibleNameGivesWayToTheNext) {
    TinyFont font;
    font.name(3, 1, 0x409, 1, std::string(" \t ")).name(3, 1, 0x409, 1, std::string(300, 'x'));
    font.name(3, 1, 0x407, 1, std::string("Legible"));
    EXPECT_EQ(title(font), L"Legible/Regular");
}

TEST(OutlineFont, StyleFollowsFromTheLooksWithoutAName) {
    const auto styleOf = [](unsigned weight, unsigned selection) {
        TinyFont font;
        font.weight = weight;
        font.selection = selection;
        return title(font.name(3, 1, 0x409, 1, std::string("F")));
    };
    EXPECT_EQ(styleOf(400, 0), L"F/Regular");
    EXPECT_EQ(styleOf(599, 0x200), L"F/Italic") << "oblique counts";
    EXPECT_EQ(styleOf(600, 0), L"F/Bold");
    EXPECT_EQ(styleOf(900, 1), L"F/Bold Italic");
}

TEST(OutlineFont, WithoutMetricsTheHeaderTellsTheLooks) {
    TinyFont font = TinyFont().name(3, 1, 0x409, 1, std::string("F"));
    font.hasMetrics = false;
    font.headStyle = 3;
    const FontFile file = read(font.bytes());
    EXPECT_EQ(file.faces, (std::vector<FontFace>{{L"F", L"Bold Italic", 700, 5, true}}));
}

TEST(OutlineFont, WeightAndWidthOutOfRangeAreTheUsualOnes) {
    TinyFont font = sample();
    font.weight = 1001;
    font.width = 10;
    EXPECT_EQ(read(font.bytes()).faces[0], (FontFace{L"Sample", L"Bold", 400, 5, false}));
    font.weight = 7;
    EXPECT_EQ(read(font.bytes()).faces[0].weight, 700) << "the old count from 1 to 9";
}

TEST(OutlineFont, EveryTruncationIsRefused) {
    const std::string whole = sample().bytes();
    ASSERT_EQ(problemOf(whole), FontProblem::kNone);
    for (std::size_t length = 0; length < whole.size(); ++length)
        EXPECT_NE(problemOf(whole.substr(0, length)), FontProblem::kNone) << length;
    EXPECT_EQ(problemOf(""), FontProblem::kNotAFont);
    EXPECT_EQ(problemOf(whole.substr(0, 20)), FontProblem::kDamaged);
}

TEST(OutlineFont, EveryByteMayBeSpoiled) {
    const std::string whole = sample().bytes();
    for (std::size_t at = 0; at < whole.size(); ++at) {
        for (const int value : {0x00, 0x7F, 0x80, 0xFF}) {
            std::string spoiled = whole;
            spoiled[at] = static_cast<char>(value);
            const FontFile file = read(spoiled);
            EXPECT_EQ(file.faces.empty(), file.problem != FontProblem::kNone) << at;
            EXPECT_EQ(file.kind == FontKind::kNone, file.problem != FontProblem::kNone) << at;
        }
    }
}

TEST(OutlineFont, MissingPartsAreDamage) {
    TinyFont noCharacters = sample();
    noCharacters.hasCharacters = false;
    EXPECT_EQ(problemOf(noCharacters.bytes()), FontProblem::kDamaged);
    TinyFont noHeader = sample();
    noHeader.headMark = 0;
    EXPECT_EQ(problemOf(noHeader.bytes()), FontProblem::kDamaged);
    EXPECT_EQ(problemOf(TinyFont().bytes()), FontProblem::kDamaged) << "no names";
}

TEST(OutlineFont, ACountOfTablesThatLiesIsDamage) {
    for (const char high : {'\0', '\x02', '\xFF'}) {
        std::string bytes = sample().bytes();
        bytes[4] = high;
        bytes[5] = high == 0 ? '\0' : '\xFF';
        EXPECT_EQ(problemOf(bytes), FontProblem::kDamaged);
    }
}

TEST(OutlineFont, ACountOfNamesThatLiesIsDamage) {
    const std::string whole = sample().bytes();
    const std::size_t names = whole.size() - sample().nameTable().size();
    for (const char high : {'\x01', '\x10', '\xFF'}) {
        std::string bytes = whole;
        bytes[names + 2] = high;
        EXPECT_EQ(problemOf(bytes), FontProblem::kDamaged);
    }
}

TEST(OutlineFont, TablesMayOverlap) {
    // Every table but the names begins where the header does.
    std::string bytes = sample().bytes();
    for (const std::size_t entry : {1u, 2u}) bytes.replace(12 + entry * 16 + 8, 4, bytes, 12 + 8, 4);
    EXPECT_EQ(read(bytes).faces.size(), 1u);
}

TEST(OutlineFont, OffsetsThatWrapAroundAreDamage) {
    for (std::size_t table = 0; table < 4; ++table) {
        std::string bytes = sample().bytes();
        bytes.replace(12 + table * 16 + 8, 8, 8, '\xFF');
        EXPECT_EQ(problemOf(bytes), FontProblem::kDamaged) << table;
    }
}

TEST(FontCollection, EveryFaceIsListed) {
    const FontFile file =
        read(font_bytes::collection({TinyFont().called(std::string("A"), std::string("R")),
                                     TinyFont().called(std::string("B"), std::string("S"))}),
             L"two.TTC");
    ASSERT_EQ(file.faces.size(), 2u);
    EXPECT_EQ(file.faces[0].family, L"A");
    EXPECT_EQ(file.faces[1].family, L"B");
}

TEST(FontCollection, AFaceThatIsDamagedIsPassedOver) {
    TinyFont damaged = sample();
    damaged.headMark = 1;
    const FontFile file = read(font_bytes::collection({damaged, sample()}));
    EXPECT_EQ(file.problem, FontProblem::kNone);
    EXPECT_EQ(file.faces.size(), 1u);
    EXPECT_EQ(problemOf(font_bytes::collection({damaged, damaged})), FontProblem::kDamaged);
}

TEST(FontCollection, ACountThatLiesIsDamage) {
    std::string bytes = font_bytes::collection({sample()});
    bytes[8] = '\x7F';
    EXPECT_EQ(problemOf(bytes), FontProblem::kDamaged);
    EXPECT_EQ(problemOf(font_bytes::collection({})), FontProblem::kDamaged);
}

TEST(FontCollection, ACollectionInACollectionIsNoFace) {
    std::string bytes = font_bytes::collection({sample()});
    bytes.replace(12, 4, 4, '\0');  // the face begins where the collection does
    EXPECT_EQ(problemOf(bytes), FontProblem::kDamaged);
}

TEST(FontCollection, EveryTruncationIsRefusedOrLeavesWholeFaces) {
    const std::string whole = font_bytes::collection({sample(), sample()});
    for (std::size_t length = 0; length < whole.size(); ++length)
        EXPECT_LT(read(whole.substr(0, length)).faces.size(), 2u) << length;
}
