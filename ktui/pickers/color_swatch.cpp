#include <ktui/pickers/color_swatch.h>

#include <array>

int RampColorIndex(int row, int column) {
    // From light through full to dark: the odd indexes of a hue fall, the even ones rise.
    static constexpr std::array<int, kRampColumns> kOffsets = {5, 3, 1, -1, -3, -2, 0, 2, 4, 6};
    return 13 + 10 * row + kOffsets[static_cast<std::size_t>(column)];
}

int RampColorIndexAt(int dx, int dy, int width, int height) {
    return RampColorIndex(dx * kRampRows / width, dy * kRampColumns / height);
}
