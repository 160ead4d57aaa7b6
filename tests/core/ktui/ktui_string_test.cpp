#include <ktui/text/ktui_string.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

std::vector<std::wstring> Pieces(const CStringList& lines) {
    std::vector<std::wstring> pieces;
    for (POSITION at = lines.GetHeadPosition(); at;) pieces.emplace_back(lines.GetNext(at).GetString());
    return pieces;
}

}  // namespace

TEST(KtUiString, LengthIsAnAllowedIndexThatPassesNoTest) {
    const CKtUiString text(L"\t a1A.");
    const int length = text.GetLength();
    for (const int index : {-1, length, length + 1}) {
        EXPECT_FALSE(text.IsTab(index));
        EXPECT_FALSE(text.IsBlank(index));
        EXPECT_FALSE(text.IsWhiteSpace(index));
        EXPECT_FALSE(text.IsAlphabetic(index));
        EXPECT_FALSE(text.IsAlphanumeric(index));
        EXPECT_FALSE(text.IsPunctuation(index));
        EXPECT_FALSE(text.IsUppercase(index));
        EXPECT_FALSE(text.IsLowercase(index));
        EXPECT_FALSE(text.IsNumeric(index));
        EXPECT_FALSE(text.IsHexNumeric(index));
    }
}

TEST(KtUiString, TestsTellTheirCharacters) {
    const CKtUiString text(L"\t aG7.");
    EXPECT_TRUE(text.IsTab(0));
    EXPECT_FALSE(text.IsTab(1));
    EXPECT_TRUE(text.IsBlank(0));
    EXPECT_TRUE(text.IsWhiteSpace(1));
    EXPECT_TRUE(text.IsAlphabetic(2));
    EXPECT_FALSE(text.IsAlphabetic(4));
    EXPECT_TRUE(text.IsAlphanumeric(4));
    EXPECT_TRUE(text.IsLowercase(2));
    EXPECT_TRUE(text.IsUppercase(3));
    EXPECT_TRUE(text.IsHexNumeric(2));
    EXPECT_FALSE(text.IsHexNumeric(3));
    EXPECT_TRUE(text.IsNumeric(4));
    EXPECT_FALSE(text.IsNumeric(2));
    EXPECT_TRUE(text.IsPunctuation(5));
}

TEST(KtUiString, OtherScriptsAreNotAlphanumeric) { EXPECT_FALSE(CKtUiString(L"黑").IsAlphanumeric(0)); }

TEST(KtUiString, CaseIsChangedByPosition) {
    CKtUiString text(L"aBc1");
    text.MakeCharUpper(0);
    text.MakeCharUpper(1);
    text.MakeCharUpper(3);
    EXPECT_STREQ(text.GetString(), L"ABc1");
    text.MakeCharLower(0);
    text.MakeCharLower(4);
    text.MakeCharLower(-1);
    EXPECT_STREQ(text.GetString(), L"aBc1");
}

TEST(KtUiString, OnlyTheFirstMnemonicIsStripped) {
    CKtUiString doubled(L"Save && close");
    doubled.StripMnemonic();
    EXPECT_STREQ(doubled.GetString(), L"Save & close");
    CKtUiString two(L"&Save &all");
    two.StripMnemonic();
    EXPECT_STREQ(two.GetString(), L"Save &all");
    CKtUiString none(L"Save");
    none.StripMnemonic();
    EXPECT_STREQ(none.GetString(), L"Save");
}

TEST(KtUiString, DieselMarkerGoesAndItsExpressionStays) {
    CKtUiString text(L"$M=$(getvar,clayer)$M=x");
    text.StripDiesel();
    EXPECT_STREQ(text.GetString(), L"$(getvar,clayer)$M=x");
}

TEST(KtUiString, BothMenuConversionsReadTabs) {
    CKtUiString forth(L"a\tb");
    forth.ConvertMenuExecString();
    EXPECT_STREQ(forth.GetString(), L"a b");
    CKtUiString back(L"a\tb^I");
    back.ConvertFromMenuExecString();
    EXPECT_STREQ(back.GetString(), L"a^Ib^I");
}

TEST(KtUiString, TabsExpandToBlanksOrVanish) {
    CKtUiString three(L"a\tb\t");
    three.ExpandTabs(3);
    EXPECT_STREQ(three.GetString(), L"a   b   ");
    CKtUiString none(L"a\tb\t");
    none.ExpandTabs(0);
    EXPECT_STREQ(none.GetString(), L"ab");
    CKtUiString negative(L"a\tb");
    negative.ExpandTabs(-2);
    EXPECT_STREQ(negative.GetString(), L"ab");
}

TEST(KtUiString, StrippingTakesItsOwnCharacterOnly) {
    CKtUiString text(L"  \ta\t  ");
    text.StripPrecedingBlanks();
    text.StripTrailingBlanks();
    EXPECT_STREQ(text.GetString(), L"\ta\t");
    CKtUiString dashes(L"--a-b--");
    dashes.StripPrecedingCharacters(L'-');
    dashes.StripTrailingCharacters(L'-');
    EXPECT_STREQ(dashes.GetString(), L"a-b");
}

TEST(KtUiString, SlashesAndCharactersAreReplaced) {
    CKtUiString path(L"C:\\a\\b");
    path.FixFileName();
    EXPECT_STREQ(path.GetString(), L"C:/a/b");
    path.ReplaceCharWithChar(L'/', L'|');
    EXPECT_STREQ(path.GetString(), L"C:|a|b");
}

TEST(KtUiString, WrapLineCutsByCharacterCount) {
    CKtUiString text(L"abcdefg");
    CKtUiString rest(L"old");
    text.WrapLine(rest, 3);
    EXPECT_STREQ(text.GetString(), L"abc");
    EXPECT_STREQ(rest.GetString(), L"defg");
}

TEST(KtUiString, WrapLineAtTheLengthEmptiesTheRest) {
    CKtUiString text(L"abc");
    CKtUiString rest(L"old");
    text.WrapLine(rest, 3);
    EXPECT_STREQ(text.GetString(), L"abc");
    EXPECT_TRUE(rest.IsEmpty());
}

TEST(KtUiString, WrapLineOutsideTheTextChangesNothing) {
    CKtUiString text(L"abc");
    CKtUiString rest(L"old");
    for (const int column : {-1, 0, 4}) text.WrapLine(rest, column);
    EXPECT_STREQ(text.GetString(), L"abc");
    EXPECT_STREQ(rest.GetString(), L"old");
}

TEST(KtUiString, WrapLineIntoAListKeepsTheLastPiece) {
    CKtUiString text(L"abcdefg");
    CStringList lines;
    lines.AddTail(L"old");
    text.WrapLine(lines, 3);
    EXPECT_EQ(Pieces(lines), (std::vector<std::wstring>{L"abc", L"def", L"old"}));
    EXPECT_STREQ(text.GetString(), L"g");
}

TEST(KtUiString, WrapLineIntoAListAtTheLengthDoesNothing) {
    CKtUiString text(L"abcdefg");
    CStringList lines;
    for (const int column : {7, 0, -1, 8}) text.WrapLine(lines, column);
    EXPECT_TRUE(lines.IsEmpty());
    EXPECT_STREQ(text.GetString(), L"abcdefg");
}

TEST(KtUiString, WrapLineIntoAListTakesSingleCharactersToo) {
    CKtUiString text(L"abc");
    CStringList lines;
    text.WrapLine(lines, 1);
    EXPECT_EQ(Pieces(lines), (std::vector<std::wstring>{L"a", L"b"}));
    EXPECT_STREQ(text.GetString(), L"c");
}

TEST(KtUiString, WrapLineIntoAListKeepsAWholePieceAtTheEnd) {
    CKtUiString text(L"abcdef");
    CStringList lines;
    text.WrapLine(lines, 3);
    EXPECT_EQ(Pieces(lines), std::vector<std::wstring>{L"abc"});
    EXPECT_STREQ(text.GetString(), L"def");
}

TEST(KtUiString, WrapLineAtTheFirstCharacterLeavesOne) {
    CKtUiString text(L"abc");
    CKtUiString rest;
    text.WrapLine(rest, 1);
    EXPECT_STREQ(text.GetString(), L"a");
    EXPECT_STREQ(rest.GetString(), L"bc");
}

TEST(KtUiString, IsMadeOfCopiesOfACharacterOrTheBeginningOfAText) {
    EXPECT_STREQ(CKtUiString(L'x', 3).GetString(), L"xxx");
    EXPECT_STREQ(CKtUiString(L"abcdef", 2).GetString(), L"ab");
    EXPECT_STREQ(CKtUiString(L"abc").GetString(), L"abc");
    EXPECT_STREQ(CKtUiString(CString(L"abc")).GetString(), L"abc");
    EXPECT_TRUE(CKtUiString().IsEmpty());
}
