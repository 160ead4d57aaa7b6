#include <ktui/pickers/predef_blocks.h>

#include <gtest/gtest.h>

#include <string>

TEST(PredefBlocks, EveryRowOfTheTable) {
    const wchar_t* const texts[] = {L"详细信息标注", L"槽",     L"圆",       L"方框",
                                    L"正六边形",     L"三角形", L"用户块..."};
    ASSERT_EQ(PredefBlocks().size(), std::size(texts));
    for (std::size_t i = 0; i < std::size(texts); ++i) {
        EXPECT_EQ(PredefBlocks()[i].cargo, static_cast<int>(i));
        EXPECT_EQ(PredefBlocks()[i].textId, 57098 + i);
        EXPECT_EQ(std::wstring(PredefBlocks()[i].text), texts[i]);
    }
}

TEST(PredefBlocks, SeventhHasAPlaceBelowTheLastPicture) {
    for (int cargo = 0; cargo <= 6; ++cargo) {
        EXPECT_EQ(BlockStripTop(cargo, 16), 17 * cargo);
        EXPECT_EQ(BlockStripTop(cargo, 24), 25 * cargo);
    }
    EXPECT_EQ(BlockStripTop(7, 16), -1);
    EXPECT_EQ(BlockStripTop(-1, 16), -1);
    EXPECT_EQ(BlockStripTop(0x100000000, 16), -1);
}
