// The tables of the pickers whose images come from a strip.
#include <ktui/pickers/arrowheads.h>
#include <ktui/pickers/predef_blocks.h>

#include <gtest/gtest.h>

#include <climits>
#include <set>

namespace {

struct Row {
    unsigned id;
    const wchar_t* text;
    int stripRow;
};

constexpr Row kArrowheadRows[] = {
    {54163, L"实心闭合", 0},  {54164, L"空心闭合", 15},   {54165, L"闭合", 9},
    {54166, L"点", 1},        {54167, L"建筑标记", 19},   {54168, L"倾斜", 12},
    {54169, L"打开", 6},      {54170, L"指示原点", 4},    {54171, L"指示原点 2", 5},
    {54172, L"直角", 7},      {54173, L"30 度角", 8},     {54174, L"小点", 2},
    {54175, L"空心点", 3},    {54176, L"空心小点", 10},   {54177, L"方框", 14},
    {54178, L"实心方框", 13}, {54179, L"基准三角形", 17}, {54180, L"实心基准三角形", 16},
    {54181, L"积分", 18},     {54182, L"无", 11},
};

constexpr Row kBlockRows[] = {
    {57098, L"详细信息标注", 0}, {57099, L"槽", 17},     {57100, L"圆", 34},         {57101, L"方框", 51},
    {57102, L"正六边形", 68},    {57103, L"三角形", 85}, {57104, L"用户块...", 102},
};

}  // namespace

TEST(Arrowheads, EveryRowOfTheTable) {
    for (int cargo = 0; cargo < kArrowheadCount; ++cargo) {
        const Arrowhead& arrowhead = Arrowheads()[static_cast<std::size_t>(cargo)];
        const Row& row = kArrowheadRows[cargo];
        EXPECT_EQ(arrowhead.cargo, cargo);
        EXPECT_EQ(arrowhead.textId, row.id) << cargo;
        EXPECT_STREQ(arrowhead.text, row.text) << cargo;
        EXPECT_EQ(arrowhead.stripRow, row.stripRow) << cargo;
        EXPECT_EQ(ArrowheadStripTop(cargo, 15), 14 * row.stripRow) << cargo;
    }
}

TEST(Arrowheads, EachHasARowOfTheStripToItself) {
    std::set<int> rows;
    for (const Arrowhead& arrowhead : Arrowheads()) rows.insert(arrowhead.stripRow);
    EXPECT_EQ(rows.size(), 20u);
    EXPECT_EQ(*rows.begin(), 0);
    EXPECT_EQ(*rows.rbegin(), 19);
}

TEST(Arrowheads, OtherCargosHaveNoPicture) {
    EXPECT_EQ(ArrowheadStripTop(-1, 15), -1);
    EXPECT_EQ(ArrowheadStripTop(20, 15), -1);
    EXPECT_EQ(ArrowheadStripTop(INT_MIN, 15), -1);
    EXPECT_EQ(ArrowheadStripTop(INT_MAX, 15), -1);
}

TEST(PredefBlocks, EveryRowOfTheTable) {
    for (int cargo = 0; cargo <= kPicturedBlockCount; ++cargo) {
        const PredefBlock& block = PredefBlocks()[static_cast<std::size_t>(cargo)];
        const Row& row = kBlockRows[cargo];
        EXPECT_EQ(block.cargo, cargo);
        EXPECT_EQ(block.textId, row.id) << cargo;
        EXPECT_STREQ(block.text, row.text) << cargo;
        EXPECT_EQ(BlockStripTop(cargo, 16), row.stripRow) << cargo;
    }
}

TEST(PredefBlocks, OtherCargosHaveNoPicture) {
    EXPECT_EQ(BlockStripTop(-1, 16), -1);
    EXPECT_EQ(BlockStripTop(7, 16), -1);
    EXPECT_EQ(BlockStripTop(INT_MAX, 16), -1);
}

TEST(PictureStrips, TheStepFollowsTheSizeOfThePictures) {
    EXPECT_EQ(ArrowheadStripTop(1, 20), 19 * 15);
    EXPECT_EQ(ArrowheadStripTop(1, 32), 31 * 15);
    EXPECT_EQ(BlockStripTop(3, 24), 25 * 3);
}

TEST(PictureStrips, ACargoIsTestedBeforeItIsCut) {
    EXPECT_EQ(ArrowheadStripTop(0x100000001, 15), -1);
    EXPECT_EQ(BlockStripTop(0x100000001, 16), -1);
}
