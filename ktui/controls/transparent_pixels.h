// The arithmetic of a bitmap that becomes transparent where it has a key colour. Private to the library.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>

/// Bits of the flags of ktuiTransparentBitmap.
enum : int {
    kKeyIsCorner = 1,     ///< the key colour is that of the left top pixel; 0xC0C0C0 otherwise
    kInvertedAlpha = 2,   ///< key pixels become all ones and others transparent
    kGreyPixels = 4,      ///< other pixels become grey
    kSourceHasAlpha = 8,  ///< only what is transparent already loses its colour
};

/// Bytes of a pixel, in the order blue, green, red, alpha. A row has no bytes beside its pixels'.
constexpr std::size_t kPixelBytes = 4;

/// The grey of a colour, 0 to 255.
constexpr std::uint8_t GreyOf(std::uint8_t red, std::uint8_t green, std::uint8_t blue) {
    return static_cast<std::uint8_t>((green * 19235 + blue * 3735 + red * 9798) >> 15);
}

/// Colour of the pixel in column x of row y: red in the low byte, then green, then blue.
using PixelColor = std::function<std::uint32_t(int x, int y)>;

/// Fills `pixels`, `width` by `height` of them, from the colours of a source; kSourceHasAlpha is not looked
/// at. The colour at 0, 0 is asked for first, and then that of each pixel before it is filled, row by row:
/// the source may be `pixels` itself.
void MakeTransparentPixels(std::uint8_t* pixels, int width, int height, int flags, const PixelColor& colorAt);

/// Clears the colour of every pixel of `count` whose alpha is 0.
void ClearInvisiblePixels(std::uint8_t* pixels, std::size_t count);
