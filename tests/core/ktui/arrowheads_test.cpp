#include <ktui/pickers/arrowheads.h>

#include <gtest/gtest.h>

#include <string>

namespace {

struct Row {
    int cargo;
    unsigned textId;
    const wchar_t* text;
    int stripRow;
};

constexpr Row kRows[] = {
    {0, 54163, L"实心闭合", 0},   {1, 54164, L"空心闭合", 15},    {2, 54165, L"闭合", 9},
    {3, 54166, L"点", 1},         {4, 54167, L"建筑标记", 19},    {5, 54168, L"倾斜", 12},
    {6, 54169, L"打开", 6},       {7, 54170, L"指示原点", 4},     {8, 54171, L"指示原点 2", 5},
    {9, 54172, L"直角", 7},       {10, 54173, L"30 度角", 8},     {11, 54174, L"小点", 2},
    {12, 54175, L"空心点", 3},    {13, 54176, L"空心小点", 10},   {14, 54177, L"方框", 14},
    {15, 54178, L"实心方框", 13}, {16, 54179, L"基准三角形", 17}, {17, 54180, L"实心基准三角形", 16},
    {18, 54181, L"积分", 18},     {19, 54182, L"无", 11},
};

}  // namespace

TEST(Arrowheads, EveryRowOfTheTable) {
    ASSERT_EQ(Arrowheads().size(), std::size(kRows));
    for (std::size_t i = 0; i < std::size(kRows); ++i) {
        EXPECT_EQ(Arrowheads()[i].cargo, kRows[i].cargo);
        EXPECT_EQ(Arrowheads()[i].textId, kRows[i].textId) << i;
        EXPECT_EQ(std::wstring(Arrowheads()[i].text), kRows[i].text) << i;
        EXPECT_EQ(Arrowheads()[i].stripRow, kRows[i].stripRow) << i;
    }
}

TEST(Arrowheads, NeighboursInTheStripShareARow) {
    for (const Row& row : kRows) {
        EXPECT_EQ(ArrowheadStripTop(row.cargo, 15), 14 * row.stripRow);
        EXPECT_EQ(ArrowheadStripTop(row.cargo, 32), 31 * row.stripRow);
    }
}

TEST(Arrowheads, CargoBeyondTheTableHasNoPicture) {
    EXPECT_EQ(ArrowheadStripTop(-1, 15), -1);
    EXPECT_EQ(ArrowheadStripTop(20, 15), -1);
    EXPECT_EQ(ArrowheadStripTop(0x100000000, 15), -1);
}
