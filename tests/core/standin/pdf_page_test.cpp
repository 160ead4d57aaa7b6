// The operators of a page, and the letters of texts.
#include "plotting/pdf_page.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "plotting/pdf_font.h"

namespace {

std::string number(double value) {
    std::string text;
    AppendPdfNumber(text, value);
    return text;
}

/// What `act` writes to a page.
template <class Act>
std::string written(Act act) {
    PdfPage page(100, 50);
    act(page);
    return page.content();
}

Glyph glyphOf(char32_t character) { return {static_cast<double>(character), {}}; }

}  // namespace

TEST(PdfPage, NumbersHaveFourDecimalsAndNoExponent) {
    EXPECT_EQ(number(0), "0");
    EXPECT_EQ(number(-0.00001), "0");
    EXPECT_EQ(number(1.5), "1.5");
    EXPECT_EQ(number(-100), "-100");
    EXPECT_EQ(number(1.23456), "1.2346");
    EXPECT_EQ(number(1e300), "1000000000");
    EXPECT_EQ(number(-1e300), "-1000000000");
    EXPECT_EQ(number(std::numeric_limits<double>::quiet_NaN()), "0");
    EXPECT_EQ(number(std::numeric_limits<double>::infinity()), "0");
}

TEST(PdfPage, WritesItsOperators) {
    EXPECT_EQ(written([](PdfPage& p) {
                  p.saveState();
                  p.restoreState();
              }),
              "q\nQ\n");
    EXPECT_EQ(written([](PdfPage& p) { p.setStrokeColor({255, 0, 51}); }), "1 0 0.2 RG\n");
    EXPECT_EQ(written([](PdfPage& p) { p.setFillColor({0, 255, 0}); }), "0 1 0 rg\n");
    EXPECT_EQ(written([](PdfPage& p) { p.setLineWidth(0.7); }), "0.7 w\n");
    EXPECT_EQ(written([](PdfPage& p) { p.setDashes({3, 1.5}); }), "[3 1.5] 0 d\n");
    EXPECT_EQ(written([](PdfPage& p) { p.setDashes({}); }), "[] 0 d\n");
    EXPECT_EQ(written([](PdfPage& p) {
                  p.setRoundEnds(true);
                  p.setRoundEnds(false);
              }),
              "1 J\n0 J\n");
    EXPECT_EQ(written([](PdfPage& p) { p.setRoundCorners(); }), "1 j\n");
    EXPECT_EQ(written([](PdfPage& p) { p.useState("Merge"); }), "/Merge gs\n");
    EXPECT_EQ(written([](PdfPage& p) {
                  p.moveTo({1, 2});
                  p.lineTo({3, 4});
              }),
              "1 2 m\n3 4 l\n");
    EXPECT_EQ(written([](PdfPage& p) { p.curveTo({1, 2}, {3, 4}, {5, 6}); }), "1 2 3 4 5 6 c\n");
    EXPECT_EQ(written([](PdfPage& p) {
                  p.closePath();
                  p.stroke();
                  p.fill();
              }),
              "h\nS\nf\n");
    EXPECT_EQ(written([](PdfPage& p) { p.clip({1, 2}, {4, 8}); }), "1 2 3 6 re\nW n\n");
    EXPECT_EQ(written([](PdfPage& p) {
                  p.beginLayer(3);
                  p.endLayer();
              }),
              "/OC /L3 BDC\nEMC\n");
    EXPECT_EQ(written([](PdfPage& p) {
                  p.showText(2, std::string("\x00\xAF", 2), {1, 2, 3, 4, 5, 6});
              }),
              "BT\n/F2 1 Tf\n1 2 3 4 5 6 Tm\n<00AF> Tj\nET\n");
}

TEST(PdfFonts, SurrogatesAreOneCharacter) {
    EXPECT_EQ(CharactersOf(L"aZ"), U"aZ");
    const wchar_t pair[] = {static_cast<wchar_t>(0xD83D), static_cast<wchar_t>(0xDE00), L'!', 0};
    EXPECT_EQ(CharactersOf(pair), U"\U0001F600!");
    const wchar_t alone[] = {static_cast<wchar_t>(0xDE00), 0};
    EXPECT_EQ(CharactersOf(alone).size(), 1u);
}

TEST(PdfFonts, ALetterOfAFaceHasOneCode) {
    PdfFonts fonts;
    const auto first = fonts.encode("a", L"xyx", glyphOf);
    ASSERT_EQ(first.size(), 1u);
    EXPECT_EQ(first[0].codes, std::string("\x00\x01\x00", 3));
    EXPECT_NEAR(first[0].width, (120 + 121 + 120) / 1000.0, 1e-12);
    EXPECT_EQ(fonts.encode("a", L"y", glyphOf)[0].codes, "\x01");
    ASSERT_EQ(fonts.fonts().size(), 1u);
    EXPECT_EQ(fonts.fonts()[0].size(), 2u);
    EXPECT_EQ(fonts.fonts()[0][1].character, U'y');
    EXPECT_EQ(fonts.encode("b", L"y", glyphOf)[0].font, 1);
}

TEST(PdfFonts, AFaceOfMoreThan256LettersTakesSeveralFonts) {
    PdfFonts fonts;
    std::wstring text;
    for (int i = 0; i < 300; ++i) text += static_cast<wchar_t>(0x4E00 + i);
    const auto runs = fonts.encode("a", text, glyphOf);
    ASSERT_EQ(runs.size(), 2u);
    EXPECT_EQ(runs[0].codes.size(), 256u);
    EXPECT_EQ(runs[1].codes.size(), 44u);
    EXPECT_EQ(runs[0].font, 0);
    EXPECT_EQ(runs[1].font, 1);
    EXPECT_EQ(fonts.encode("a", text.substr(255, 2), glyphOf).size(), 2u);
    EXPECT_TRUE(fonts.encode("a", L"", glyphOf).empty());
}
