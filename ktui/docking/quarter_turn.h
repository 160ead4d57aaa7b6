// Turns a picture by a quarter, so that what read from left to right reads upward. Without any window.
//
// Private to the library; its tests link it by itself.
#pragma once

#include <cstdint>
#include <vector>

/// `pixels` (row by row, `width` a row and `height` rows) turned to the left: `height` a row and `width`
/// rows.
std::vector<std::uint32_t> TurnedToReadUpward(const std::vector<std::uint32_t>& pixels, int width,
                                              int height);
