#include "../../../platform/standin/fonts/font_catalogue.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

FoundFont outline(const wchar_t* path, std::vector<FontFace> faces) {
    return {path, {FontKind::kTrueType, FontProblem::kNone, std::move(faces)}};
}
FoundFont stroke(const wchar_t* path, FontKind kind = FontKind::kShape) {
    return {path, {kind, FontProblem::kNone, {}}};
}

std::vector<std::wstring> names(const std::vector<CatalogueFont>& fonts) {
    std::vector<std::wstring> all;
    for (const CatalogueFont& font : fonts) all.push_back(font.name);
    return all;
}

/// The styles of a font; an exclamation mark stands behind a flagged one.
std::vector<std::wstring> styles(const CatalogueFont& font) {
    std::vector<std::wstring> all;
    for (const CatalogueStyle& style : font.styles)
        all.push_back(style.name + (style.isFlagged ? L"!" : L""));
    return all;
}

using Texts = std::vector<std::wstring>;

}  // namespace

TEST(FontCatalogue, FontsAreSortedByNameWhateverTheirKind) {
    const auto fonts = makeFontCatalogue(
        {stroke(L"C:\\f\\txt.shx"), outline(L"C:\\f\\z.ttf", {{L"Zeta", L"R"}}),
         outline(L"C:\\f\\a.ttf", {{L"alpha", L"R"}}), stroke(L"C:\\f\\Big.shx", FontKind::kBigFont),
         outline(L"C:\\f\\b.ttf", {{L"Alpha 10", L"R"}, {L"Alpha 2", L"R"}})});
    EXPECT_EQ(names(fonts), (Texts{L"alpha", L"Alpha 2", L"Alpha 10", L"Big.shx", L"txt.shx", L"Zeta"}));
}

TEST(FontCatalogue, OfTheSameNameOutlinesComeFirstAndBigFontsLast) {
    const auto fonts = makeFontCatalogue({stroke(L"a\\x.shx", FontKind::kBigFont), stroke(L"b\\x.shx"),
                                          outline(L"c\\x.ttf", {{L"x.shx", L"R"}})});
    ASSERT_EQ(fonts.size(), 3u);
    EXPECT_EQ(fonts[0].kind, FontKind::kTrueType);
    EXPECT_EQ(fonts[1].kind, FontKind::kShape);
    EXPECT_EQ(fonts[2].kind, FontKind::kBigFont);
}

TEST(FontCatalogue, FacesOfOneFamilyAreOneFont) {
    const auto fonts = makeFontCatalogue({outline(L"d\\bold.ttf", {{L"Sample", L"Bold", 700}}),
                                          outline(L"d\\reg.ttf", {{L"SAMPLE", L"Regular"}})});
    ASSERT_EQ(names(fonts), Texts{L"Sample"});
    EXPECT_EQ(styles(fonts[0]), (Texts{L"Regular", L"Bold"}));
    EXPECT_EQ(fonts[0].styles[1].fileName, L"bold.ttf");
}

TEST(FontCatalogue, RegularComesFirstAndTheRestByDistance) {
    const std::vector<FontFace> faces{{L"F", L"Black", 900, 5, false},   {L"F", L"Narrow", 400, 3, false},
                                      {L"F", L"Italic", 400, 5, true},   {L"F", L"Light", 300, 5, false},
                                      {L"F", L"Medium", 500, 5, false},  {L"F", L"Bold Italic", 700, 5, true},
                                      {L"F", L"Regular", 400, 5, false}, {L"F", L"Bold", 700, 5, false}};
    std::vector<FontFace> turned(faces.rbegin(), faces.rend());
    for (const auto& order : {faces, turned}) {
        const auto fonts = makeFontCatalogue({outline(L"f.ttc", order)});
        EXPECT_EQ(styles(fonts[0]), (Texts{L"Regular", L"Italic", L"Light", L"Medium", L"Bold",
                                           L"Bold Italic", L"Black", L"Narrow"}));
    }
}

TEST(FontCatalogue, AStyleThatIsThereAlreadyIsFlagged) {
    const auto fonts = makeFontCatalogue({outline(L"one\\a.ttf", {{L"F", L"Bold", 700}}),
                                          outline(L"two\\b.ttf", {{L"F", L"BOLD", 700}}),
                                          outline(L"two\\c.ttf", {{L"F", L"Regular"}})});
    EXPECT_EQ(styles(fonts[0]), (Texts{L"Regular", L"Bold", L"BOLD!"}));
    EXPECT_EQ(fonts[0].styles[1].path, L"one\\a.ttf") << "the first file wins";
}

TEST(FontCatalogue, AStrokeFontInTwoFoldersIsOneFont) {
    const auto fonts = makeFontCatalogue({stroke(L"one\\txt.shx"), stroke(L"two\\TXT.SHX")});
    ASSERT_EQ(names(fonts), Texts{L"txt.shx"});
    EXPECT_EQ(styles(fonts[0]), (Texts{L"txt", L"TXT!"}));
}

TEST(FontCatalogue, TheSamePathCountsOnce) {
    const auto fonts = makeFontCatalogue({stroke(L"one\\txt.shx"), stroke(L"ONE\\TXT.shx")});
    EXPECT_EQ(styles(fonts[0]), Texts{L"txt"});
}

TEST(FontCatalogue, FilesWithoutAFontArePassedOver) {
    EXPECT_TRUE(makeFontCatalogue({{L"a.ttf", {FontKind::kNone, FontProblem::kDamaged, {}}}}).empty());
    EXPECT_TRUE(makeFontCatalogue({}).empty());
}

namespace {

class FindFont : public ::testing::Test {
protected:
    const std::vector<CatalogueFont> fonts =
        makeFontCatalogue({outline(L"C:\\one\\same.ttf", {{L"F", L"Bold", 700}}),
                           outline(L"C:\\two\\same.ttf", {{L"F", L"Bold", 700}}), stroke(L"C:\\one\\txt.shx"),
                           stroke(L"C:\\one\\odd.name.shx")});

    std::wstring find(const wchar_t* name) const {
        const auto place = findFontFile(fonts, name);
        return place ? fonts[place->font].styles[place->style].path : L"none";
    }
};

}  // namespace

TEST_F(FindFont, ByNameInAnyCase) {
    EXPECT_EQ(find(L"TXT.SHX"), L"C:\\one\\txt.shx");
    EXPECT_EQ(find(L"Same.TTF"), L"C:\\one\\same.ttf") << "the one that isn't flagged";
}

TEST_F(FindFont, ByPath) {
    EXPECT_EQ(find(L"c:\\TWO\\same.ttf"), L"C:\\two\\same.ttf");
    EXPECT_EQ(find(L"C:\\elsewhere\\txt.shx"), L"C:\\one\\txt.shx")
        << "as a drawing from another machine names it";
    EXPECT_EQ(find(L"D:/fonts/txt"), L"C:\\one\\txt.shx");
}

TEST_F(FindFont, TheExtensionOfAStrokeFontMayBeMissing) {
    EXPECT_EQ(find(L"txt"), L"C:\\one\\txt.shx");
    EXPECT_EQ(find(L"odd.name"), L"C:\\one\\odd.name.shx");
    EXPECT_EQ(find(L"same"), L"none") << "that of an outline font may not";
    EXPECT_EQ(find(L"txt.ttf"), L"none");
}

TEST_F(FindFont, UnknownNamesFindNothing) {
    for (const wchar_t* name : {L"", L"F", L"nothing.shx", L"C:\\one\\", L"\\", L".shx"})
        EXPECT_EQ(find(name), L"none") << name;
}
