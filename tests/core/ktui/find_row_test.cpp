// A row of found files: its words and its order.
#include <ktui/nav/find_row.h>

#include <gtest/gtest.h>

TEST(FindRowSize, IsToldInBytesBelowTenThousand) {
    EXPECT_EQ(SizeText(0), L"0 B");
    EXPECT_EQ(SizeText(999), L"999 B");
    EXPECT_EQ(SizeText(9001), L"9001 B");
    EXPECT_EQ(SizeText(9999), L"9999 B");
}

TEST(FindRowSize, IsRoundedUpFromTenThousandOn) {
    EXPECT_EQ(SizeText(10000), L"10 KB");
    EXPECT_EQ(SizeText(10001), L"11 KB");
    EXPECT_EQ(SizeText(11000), L"11 KB");
    EXPECT_EQ(SizeText(5'000'000'001ull), L"5000001 KB");
}

TEST(FindRowSize, IsKeptInUnitsOfAThousand) {
    EXPECT_EQ(SizeOfFile(0), 0);
    EXPECT_EQ(SizeOfFile(1), 1);
    EXPECT_EQ(SizeOfFile(1000), 1);
    EXPECT_EQ(SizeOfFile(1001), 2);
    EXPECT_EQ(SizeOfFile(9999), 10);
}

TEST(FindRowFolder, LosesTheBackslashAtItsEnd) {
    EXPECT_EQ(ShownFolder(L"C:\\a\\"), L"C:\\a");
    EXPECT_EQ(ShownFolder(L"C:\\a"), L"C:\\a");
    EXPECT_EQ(ShownFolder(L"C:\\"), L"C:\\");
    EXPECT_EQ(ShownFolder(L"ab:\\"), L"ab:") << "four characters";
    EXPECT_EQ(ShownFolder(L"C:/a/"), L"C:/a/");
}

namespace {

FindRow row(const wchar_t* name, const wchar_t* folder, int size, const wchar_t* type, FindTime time) {
    return {name, folder, size, type, time};
}

/// Whether a column puts `less` before `more` with direction 1 and behind it with 0, and never answers less
/// than 0.
void expectOrder(const FindRow& less, const FindRow& more, int column) {
    EXPECT_EQ(CompareFindRows(less, more, column, 0), 1);
    EXPECT_EQ(CompareFindRows(more, less, column, 0), 0);
    EXPECT_EQ(CompareFindRows(less, more, column, 1), 0);
    EXPECT_EQ(CompareFindRows(more, less, column, 1), 1);
    EXPECT_EQ(CompareFindRows(less, more, column, -1), 0);
    for (const int direction : {0, 1}) EXPECT_EQ(CompareFindRows(less, less, column, direction), 0);
}

}  // namespace

TEST(FindRowOrder, EachColumnHasItsOwn) {
    expectOrder(row(L"a", L"z", 9, L"z", 9), row(L"b", L"a", 1, L"a", 1), kFindName);
    expectOrder(row(L"z", L"a", 9, L"z", 9), row(L"a", L"b", 1, L"a", 1), kFindFolder);
    expectOrder(row(L"z", L"z", 2, L"z", 9), row(L"a", L"a", 10, L"a", 1), kFindSize);
    expectOrder(row(L"z", L"z", 9, L"a", 9), row(L"a", L"a", 1, L"b", 1), kFindType);
    expectOrder(row(L"z", L"z", 9, L"z", 1), row(L"a", L"a", 1, L"a", 1LL << 40), kFindTime);
    const FindRow one = row(L"a", L"a", 1, L"a", 1), two = row(L"b", L"b", 2, L"b", 2);
    EXPECT_EQ(CompareFindRows(one, two, kFindColumns, 0), 0) << "no such column";
}

TEST(FindRowOrder, TextsGoByCase) {
    expectOrder(row(L"B", L"", 0, L"", 0), row(L"a", L"", 0, L"", 0), kFindName);
    expectOrder(row(L"", L"B", 0, L"", 0), row(L"", L"a", 0, L"", 0), kFindFolder);
    expectOrder(row(L"", L"", 0, L"B", 0), row(L"", L"", 0, L"a", 0), kFindType);
}

TEST(FindSort, TheFirstClickOnTheFirstColumnGivesOne) {
    FindSort sort;
    EXPECT_EQ(sort.m_direction, -1);
    EXPECT_EQ(sort.m_column, 0);
    sort.Click(0);
    EXPECT_EQ(sort.m_direction, 1);
    sort.Click(0);
    EXPECT_EQ(sort.m_direction, 0);
    sort.Click(0);
    EXPECT_EQ(sort.m_direction, 1);
}

TEST(FindSort, TheFirstClickOnAnotherColumnGivesZero) {
    FindSort sort;
    sort.Click(2);
    EXPECT_EQ(sort.m_direction, 0);
    EXPECT_EQ(sort.m_column, 2);
    sort.Click(2);
    EXPECT_EQ(sort.m_direction, 1);
    sort.Click(4);
    EXPECT_EQ(sort.m_direction, 1) << "another column keeps the direction";
    EXPECT_EQ(sort.m_column, 4);
}
