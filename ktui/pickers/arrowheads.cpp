#include <ktui/pickers/arrowheads.h>

#include <ktdsres/resource_ids.h>

const std::array<Arrowhead, kArrowheadCount>& Arrowheads() {
    static constexpr std::array<Arrowhead, kArrowheadCount> kArrowheads = {{
        {0, IDS_CLOSED_FILLED, L"实心闭合", 0},
        {1, IDS_CLOSED_BLANK, L"空心闭合", 15},
        {2, IDS_CLOSED, L"闭合", 9},
        {3, IDS_DOT, L"点", 1},
        {4, IDS_ARCHITECTURAL_TICK, L"建筑标记", 19},
        {5, IDS_OBLIQUE, L"倾斜", 12},
        {6, IDS_OPEN, L"打开", 6},
        {7, IDS_ORIGIN, L"指示原点", 4},
        {8, IDS_ORIGIN_2, L"指示原点 2", 5},
        {9, IDS_RIGHT_ANGLE, L"直角", 7},
        {10, IDS_OPEN_30, L"30 度角", 8},
        {11, IDS_DOT_SMALL, L"小点", 2},
        {12, IDS_DOT_BLANK, L"空心点", 3},
        {13, IDS_DOT_SMALL_BLANK, L"空心小点", 10},
        {14, IDS_BOX, L"方框", 14},
        {15, IDS_BOX_FILLED, L"实心方框", 13},
        {16, IDS_DATUM_TRIANGLE, L"基准三角形", 17},
        {17, IDS_DATUM_TRIANGLE_FILLED, L"实心基准三角形", 16},
        {18, IDS_INTEGRAL, L"积分", 18},
        {19, IDS_NONE, L"无", 11},
    }};
    return kArrowheads;
}

int ArrowheadStripTop(std::int64_t cargo, int imageSize) {
    if (cargo < 0 || cargo >= kArrowheadCount) return -1;
    // Kept: neighbours in the strip share a row of pixels.
    return (imageSize - 1) * Arrowheads()[static_cast<std::size_t>(cargo)].stripRow;
}
