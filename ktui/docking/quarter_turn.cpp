#include <ktui/docking/quarter_turn.h>

#include <cstddef>

std::vector<std::uint32_t> TurnedToReadUpward(const std::vector<std::uint32_t>& pixels, int width,
                                              int height) {
    std::vector<std::uint32_t> turned(pixels.size());
    auto from = pixels.begin();
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            turned[static_cast<std::size_t>(width - 1 - x) * static_cast<std::size_t>(height) +
                   static_cast<std::size_t>(y)] = *from++;
    return turned;
}
