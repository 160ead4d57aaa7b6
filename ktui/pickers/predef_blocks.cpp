#include <ktui/pickers/predef_blocks.h>

#include <ktdsres/resource_ids.h>

const std::array<PredefBlock, kPicturedBlockCount + 1>& PredefBlocks() {
    static constexpr std::array<PredefBlock, kPicturedBlockCount + 1> kBlocks = {{
        {0, IDS_DETAIL_CALLOUT, L"详细信息标注"},
        {1, IDS_SLOT, L"槽"},
        {2, IDS_CIRCLE, L"圆"},
        {3, IDS_BLOCK_BOX, L"方框"},
        {4, IDS_HEXAGON, L"正六边形"},
        {5, IDS_TRIANGLE, L"三角形"},
        {6, IDS_USER_BLOCK, L"用户块..."},
    }};
    return kBlocks;
}

int BlockStripTop(std::int64_t cargo, int imageSize) {
    // Kept: the seventh entry is drawn as well, from below the last picture.
    return cargo < 0 || cargo > kPicturedBlockCount ? -1 : (imageSize + 1) * static_cast<int>(cargo);
}
