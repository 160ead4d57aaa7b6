// The predefined callout blocks as their picker lists them, and where the picture of each stands in the
// strip. Without any window.
//
// Private to the library; its tests link it by itself.
#pragma once

#include <array>
#include <cstdint>

constexpr int kPicturedBlockCount = 6;
constexpr int kBlockPictureWidth = 16;  ///< pixels

/// One block, or the entry that leads to a block of the user's.
struct PredefBlock {
    int cargo;
    unsigned textId;      ///< of the resource library
    const wchar_t* text;  ///< what serves when the library has none
};

/// The blocks in the order of the list, the entry for the user's own last.
const std::array<PredefBlock, kPicturedBlockCount + 1>& PredefBlocks();

/// Top of the picture of `cargo` in a strip of pictures that are `imageSize` pixels wide and one pixel
/// higher, in pixels; -1 for a cargo without a picture. The entry for the user's own block has the row below
/// the last picture.
int BlockStripTop(std::int64_t cargo, int imageSize);
