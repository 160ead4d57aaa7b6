// What the fields of the find dialog ask for.
#include <ktui/nav/find_terms.h>

#include <gtest/gtest.h>

#include <string>

namespace {

using Texts = std::vector<std::wstring>;

Texts plain(const std::vector<CString>& texts) {
    Texts all;
    for (const CString& text : texts) all.emplace_back(text.GetString());
    return all;
}
Texts folders(const wchar_t* text) { return plain(FoldersNamedBy(text)); }
Texts patterns(const wchar_t* name, const wchar_t* type) { return plain(PatternsFor(name, type)); }

}  // namespace

TEST(FindFolders, AFolderGetsASeparator) {
    EXPECT_EQ(folders(L"C:\\a"), (Texts{L"C:\\a\\"}));
    EXPECT_EQ(folders(L"C:\\a\\"), (Texts{L"C:\\a\\"}));
    EXPECT_EQ(folders(L"C:/a/"), (Texts{L"C:/a/"}));
    EXPECT_EQ(folders(L"::{20D04FE0}"), (Texts{L"::{20D04FE0}\\"}));
}

TEST(FindFolders, NoTextGivesNone) { EXPECT_EQ(folders(L""), Texts{}); }

TEST(FindFolders, EachQuotedPieceIsOne) {
    EXPECT_EQ(folders(L"\"C:\\a\"\"D:\\b c\""), (Texts{L"C:\\a\\", L"D:\\b c\\"}));
    EXPECT_EQ(folders(L"\"C:\\a\" \"D:\\b\""), (Texts{L"C:\\a\\", L"D:\\b\\"}));
    EXPECT_EQ(folders(L"\"C:\""), (Texts{L"C:\\"}));
}

TEST(FindFolders, WhatStandsBesideTheQuotesIsOneMore) {
    EXPECT_EQ(folders(L"\"C:\\a\" D:\\b"), (Texts{L"C:\\a\\", L"D:\\b\\"}));
    EXPECT_EQ(folders(L"D:\\b\"C:\\a\""), (Texts{L"C:\\a\\", L"D:\\b\\"}));
}

TEST(FindFolders, APieceOfNothingIsOneToo) {
    EXPECT_EQ(folders(L"\"\""), (Texts{L"\\"}));
    EXPECT_EQ(folders(L"\"\"\"C:\\a\""), (Texts{L"\\", L"C:\\a\\"}));
}

TEST(FindFolders, AQuoteAloneEndsTheList) {
    EXPECT_EQ(folders(L"\"C:\\a\" \"D:\\b"), (Texts{L"C:\\a\\"}));
    EXPECT_EQ(folders(L"\"D:\\b"), Texts{});
}

TEST(FindFolders, TheFirstQuotedPieceIsKnown) {
    EXPECT_EQ(FirstQuotedPiece(L"x\"C:\"\"D:\""), CString(L"C:"));
    EXPECT_EQ(FirstQuotedPiece(L"C:\\a"), std::nullopt);
    EXPECT_EQ(FirstQuotedPiece(L"\"C:\\a"), std::nullopt);
}

TEST(FindPatterns, ANameGoesBeforeEachPatternOfTheType) {
    EXPECT_EQ(patterns(L"abc", L"*.dwg;*.dxf"), (Texts{L"*abc*.dwg", L"*abc*.dxf"}));
    EXPECT_EQ(patterns(L"*abc", L"*.dwg"), (Texts{L"*abc*.dwg"}));
    EXPECT_EQ(patterns(L"?abc", L"*.dwg"), (Texts{L"*?abc*.dwg"}));
}

TEST(FindPatterns, AnEmptyNameGivesThePatternsOfTheType) {
    EXPECT_EQ(patterns(L"", L"*.dwg;*.dxf"), (Texts{L"*.dwg", L"*.dxf"}));
}

TEST(FindPatterns, ANameThatEndsInTheExtensionStandsForItself) {
    EXPECT_EQ(patterns(L"abc.dwg", L"*.dwg"), (Texts{L"*abc.dwg"}));
    EXPECT_EQ(patterns(L"abc.DWG", L"*.dwg;*.dxf"), (Texts{L"*abc.DWG", L"*abc.DWG*.dxf"}));
    EXPECT_EQ(patterns(L"abc.c", L"*.b.c"), (Texts{L"*abc.c"}));
}

TEST(FindPatterns, APatternWithoutAPointCountsWhole) {
    EXPECT_EQ(patterns(L"abc", L"*"), (Texts{L"*abc*"}));
    EXPECT_EQ(patterns(L"readme", L"README"), (Texts{L"*readme"}));
    EXPECT_EQ(patterns(L"x", L"README"), (Texts{L"*xREADME"}));
}

TEST(FindPatterns, NoNameAndNoTypeGiveNone) {
    EXPECT_EQ(patterns(L"", L""), Texts{});
    EXPECT_EQ(patterns(L"", L";"), Texts{});
}

TEST(FindPatterns, ANameWithoutATypeStandsForItself) { EXPECT_EQ(patterns(L"abc", L""), (Texts{L"*abc"})); }

TEST(FindTypes, AreThePairsOfTheFilter) {
    const auto types = FileTypesOf(L"Drawing\0*.dwg;*.dxf\0All\0*.*\0\0");
    ASSERT_EQ(types.size(), 2u);
    EXPECT_STREQ(types[0].description, L"Drawing");
    EXPECT_STREQ(types[0].patterns, L"*.dwg;*.dxf");
    EXPECT_STREQ(types[1].description, L"All");
    EXPECT_STREQ(types[1].patterns, L"*.*");
}

TEST(FindTypes, NoneOfNoFilter) {
    EXPECT_TRUE(FileTypesOf(nullptr).empty());
    EXPECT_TRUE(FileTypesOf(L"\0").empty());
    EXPECT_EQ(FileTypesOf(L"A\0*.a\0B\0\0").size(), 1u) << "a description alone";
}

TEST(FindDates, MonthsAreTakenOffWithoutBorrowing) {
    const CalendarTime time = MonthsBefore({2026, 11, 22, 10, 20, 30}, 3);
    EXPECT_EQ(time.year, 2026);
    EXPECT_EQ(time.month, 8);
    EXPECT_EQ(time.day, 22);
    EXPECT_EQ(time.hour, 10);
    EXPECT_EQ(time.minute, 20);
    EXPECT_EQ(time.second, 30);
    const CalendarTime earlier = MonthsBefore({2026, 11, 22, 0, 0, 0}, 26);
    EXPECT_EQ(earlier.year, 2024);
    EXPECT_EQ(earlier.month, 9);
    const CalendarTime whole = MonthsBefore({2026, 1, 1, 0, 0, 0}, 12);
    EXPECT_EQ(whole.year, 2025);
    EXPECT_EQ(whole.month, 1);
    EXPECT_TRUE(IsInRange(whole));
}

TEST(FindDates, TheLastMonthInJanuaryIsNoDate) {
    const CalendarTime time = MonthsBefore({2026, 1, 15, 0, 0, 0}, 1);
    EXPECT_EQ(time.year, 2026);
    EXPECT_EQ(time.month, 0);
    EXPECT_FALSE(IsInRange(time));
    EXPECT_EQ(MonthsBefore({2026, 3, 15, 0, 0, 0}, 5).month, -2);
}

TEST(FindDates, ADayBeyondTheMonthsEndIsInRange) {
    EXPECT_TRUE(IsInRange(MonthsBefore({2026, 3, 31, 0, 0, 0}, 1)));
}

TEST(FindDates, EachFieldHasItsRange) {
    const CalendarTime good = {1900, 1, 1, 0, 0, 0}, last = {3000, 12, 31, 23, 59, 59};
    EXPECT_TRUE(IsInRange(good));
    EXPECT_TRUE(IsInRange(last));
    EXPECT_FALSE(IsInRange({1899, 1, 1, 0, 0, 0}));
    EXPECT_FALSE(IsInRange({2000, 13, 1, 0, 0, 0}));
    EXPECT_FALSE(IsInRange({2000, 1, 0, 0, 0, 0}));
    EXPECT_FALSE(IsInRange({2000, 1, 32, 0, 0, 0}));
    EXPECT_FALSE(IsInRange({2000, 1, 1, 24, 0, 0}));
    EXPECT_FALSE(IsInRange({2000, 1, 1, -1, 0, 0}));
    EXPECT_FALSE(IsInRange({2000, 1, 1, 0, 60, 0}));
    EXPECT_FALSE(IsInRange({2000, 1, 1, 0, 0, 60}));
}

TEST(FindDates, ADayHas86400Seconds) {
    EXPECT_EQ(DaysBefore(1'000'000'000, 1), 1'000'000'000 - 86400);
    EXPECT_EQ(DaysBefore(1'000'000'000, 999), 1'000'000'000 - 999LL * 86400);
    EXPECT_EQ(DaysBefore(100'000'000'000, 100'000), 100'000'000'000 - 8'640'000'000);
}
