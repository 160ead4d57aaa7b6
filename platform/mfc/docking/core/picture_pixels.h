// Pixels of small pictures: another size, the look of what is disabled, and the look on dark bars.
#pragma once

#include <cstdint>
#include <vector>

#include <kmfc/geometry.h>

namespace kmfc {

/// Rows of pixels from the top, 0xAARRGGBB, colours multiplied by their alpha.
struct PicturePixels {
    CSize size{0, 0};
    std::vector<std::uint32_t> pixels;
};

/// The part of a picture at `from`; empty when that isn't all inside.
KMFC_API PicturePixels cut_out(const PicturePixels& picture, const CRect& from);
/// Colours as they stand in a file, not multiplied, made what they are here.
KMFC_API std::uint32_t premultiplied(std::uint32_t pixel);
/// Each new pixel is the mean of what it covers, weighted by area. Empty for a size without pixels.
KMFC_API PicturePixels resized(const PicturePixels& picture, const CSize& size);
/// Grey, and two fifths as opaque.
KMFC_API PicturePixels disabled_look(PicturePixels picture);
/// Greys (and what is nearly grey) with their lightness turned round, so that dark lines show on a dark bar.
KMFC_API PicturePixels look_on_dark(PicturePixels picture);

}  // namespace kmfc
