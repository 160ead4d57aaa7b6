#include <ktui/text/text_fitting.h>

#include <gtest/gtest.h>

#include <string>

namespace {

// Every character is ten pixels wide.
int TenPerCharacter(const CString& text) { return 10 * text.GetLength(); }

std::wstring Shorten(const wchar_t* text, unsigned width) {
    return ShortenToWidth(text, width, TenPerCharacter).GetString();
}

std::wstring Repeat(const wchar_t* text, unsigned width) {
    return RepeatToWidth(text, width, TenPerCharacter).GetString();
}

}  // namespace

TEST(ShortenToWidth, FourCharactersAreKeptHoweverNarrow) {
    EXPECT_EQ(Shorten(L"abcd", 1), L"abcd");
    EXPECT_EQ(Shorten(L"", 0), L"");
}

TEST(ShortenToWidth, TextThatFitsIsKept) { EXPECT_EQ(Shorten(L"abcdefgh", 80), L"abcdefgh"); }

TEST(ShortenToWidth, MiddleIsCutAndMarked) {
    // 12 characters into 8: the middle four go, then three of the rest become the ellipsis.
    EXPECT_EQ(Shorten(L"abcdefghijkl", 80), L"abc...kl");
    EXPECT_EQ(Shorten(L"abcdefghijkl", 89), L"abc...kl");
}

TEST(ShortenToWidth, MiddleIsWhereTheCutsAreTaken) {
    // 60 characters into 20: ten of each end stay, then the ellipsis takes the last of one and the first two
    // of the other.
    const wchar_t* text = L"0123456789abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWX";
    EXPECT_EQ(Shorten(text, 200), L"012345678...QRSTUVWX");
}

TEST(ShortenToWidth, EllipsisIsNotMeasured) {
    const CString text = ShortenToWidth(L"iiiiiiiiii", 50, TenPerCharacter);
    EXPECT_EQ(text.GetLength(), 5);
    EXPECT_STREQ(text.GetString(), L"i...i");
}

TEST(ShortenToWidth, WidthOfZeroLeavesTheEllipsis) { EXPECT_EQ(Shorten(L"abcdefgh", 0), L"..."); }

TEST(ShortenToWidth, OneCharacterThatIsLeftMakesRoomForTheEllipsis) {
    EXPECT_EQ(Shorten(L"abcdefgh", 10), L"...");
    EXPECT_EQ(Shorten(L"abcdefgh", 20), L"...");
    EXPECT_EQ(Shorten(L"abcdefgh", 30), L"...");
    EXPECT_EQ(Shorten(L"abcdefgh", 40), L"a...");
}

TEST(RepeatToWidth, WidthOfZeroLeavesTheEllipsis) { EXPECT_EQ(Repeat(L"abcdefgh", 0), L"..."); }

TEST(RepeatToWidth, FourCharactersComeBackOnce) { EXPECT_EQ(Repeat(L"abcd", 400), L"abcd"); }

TEST(RepeatToWidth, OwnWidthComesBackOnce) { EXPECT_EQ(Repeat(L"abcde", 50), L"abcde"); }

TEST(RepeatToWidth, NarrowerIsShortened) { EXPECT_EQ(Repeat(L"abcdefgh", 60), Shorten(L"abcdefgh", 60)); }

TEST(RepeatToWidth, ExactMultipleHasNoEllipsis) {
    EXPECT_EQ(Repeat(L"abcde", 100), L"abcdeabcde");
    EXPECT_EQ(Repeat(L"abcde", 250), L"abcdeabcdeabcdeabcdeabcde");
}

TEST(RepeatToWidth, OneAndABitHasNoCopiesAround) {
    // 70 of 50: no half, so the middle piece is the text once, cut to the 20 that are left over.
    const std::wstring text = Repeat(L"abcde", 70);
    EXPECT_EQ(text, L"...");
}

TEST(RepeatToWidth, WhatIsLeftOverIsFilledToTheLastCharacterThatFits) {
    // 90 of 50: four characters of the text fit into the 40 that are left over, and the ellipsis takes three.
    EXPECT_EQ(Repeat(L"abcde", 90), L"a...");
    EXPECT_EQ(Repeat(L"abcde", 89), L"...");
    // 120 of 50: a copy on either side, and seven characters in the 70 between them.
    EXPECT_EQ(Repeat(L"abcde", 120).size(), 17u);
    EXPECT_EQ(Repeat(L"abcde", 119).size(), 16u);
    // 220 of 50: two copies on either side leave 70 again, for seven characters.
    EXPECT_EQ(Repeat(L"abcde", 220).size(), 27u);
    EXPECT_EQ(Repeat(L"abcde", 219).size(), 26u);
}

TEST(RepeatToWidth, MiddlePieceStandsBetweenTheCopies) {
    // 130 of 50: one copy on either side, and the doubled text cut to 80 in the middle.
    const std::wstring text = Repeat(L"abcde", 130);
    ASSERT_EQ(text.substr(0, 5), L"abcde");
    ASSERT_EQ(text.substr(text.size() - 5), L"abcde");
    EXPECT_EQ(text.size(), 18u);
    EXPECT_NE(text.find(L"..."), std::wstring::npos);
}

TEST(RepeatToWidth, FirstDeletionGoesByTheLengthOfTheText) {
    // The doubled text "abcdefabcdef" has to lose one character: index 3, not 6, which takes the first d.
    const std::wstring text = Repeat(L"abcdef", 60 * 2 + 50);
    EXPECT_EQ(text,
              L"abcdef"
              L"abce...cdef"
              L"abcdef");
}

TEST(RepeatToWidth, LaterDeletionsGoByTheLengthOfThePiece) {
    // Two characters too many: the d at 3 of 12, then the a at 5 of 11. The ellipsis takes 4, 5 and 6 of ten.
    EXPECT_EQ(Repeat(L"abcdef", 60 + 100),
              L"abcdef"
              L"abce...def"
              L"abcdef");
}
