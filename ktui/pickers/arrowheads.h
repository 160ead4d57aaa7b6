// The arrowheads of dimensions as their picker lists them, and where the picture of each stands in the strip.
//
// Without any window. Which block an arrowhead stands for is the owner's business.
//
// Private to the library; its tests link it by itself.
#pragma once

#include <array>
#include <cstdint>

constexpr int kArrowheadCount = 20;
constexpr int kArrowheadSize = 15;  ///< pixels; width and height of a picture

/// One arrowhead.
struct Arrowhead {
    int cargo;
    unsigned textId;      ///< of the resource library
    const wchar_t* text;  ///< what serves when the library has none
    int stripRow;         ///< place of the picture in the strip, 0 to 19 from the top
};

/// The arrowheads in the order of the list, which is that of their cargo.
const std::array<Arrowhead, kArrowheadCount>& Arrowheads();

/// Top of the picture of `cargo` in a strip of pictures of `imageSize` pixels, in pixels; -1 for a cargo
/// without a picture.
int ArrowheadStripTop(std::int64_t cargo, int imageSize);
