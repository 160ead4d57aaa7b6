#include <ktui/controls/transparent_pixels.h>

#include <algorithm>

namespace {

constexpr std::uint32_t kFaceKey = 0xC0C0C0;

void PutPixel(std::uint8_t* pixel, std::uint32_t color, int flags) {
    auto red = static_cast<std::uint8_t>(color);
    auto green = static_cast<std::uint8_t>(color >> 8);
    auto blue = static_cast<std::uint8_t>(color >> 16);
    if (flags & kGreyPixels) red = green = blue = GreyOf(red, green, blue);
    pixel[0] = blue;
    pixel[1] = green;
    pixel[2] = red;
    pixel[3] = flags & kInvertedAlpha ? 0 : 255;
}

}  // namespace

void MakeTransparentPixels(std::uint8_t* pixels, int width, int height, int flags,
                           const PixelColor& colorAt) {
    const std::uint32_t key = flags & kKeyIsCorner ? colorAt(0, 0) : kFaceKey;
    const std::uint8_t keyByte = flags & kInvertedAlpha ? 255 : 0;
    std::uint8_t* pixel = pixels;
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x, pixel += kPixelBytes) {
            const std::uint32_t color = colorAt(x, y);
            if (color == key)
                std::fill_n(pixel, kPixelBytes, keyByte);
            else
                PutPixel(pixel, color, flags);
        }
}

void ClearInvisiblePixels(std::uint8_t* pixels, std::size_t count) {
    for (std::uint8_t* pixel = pixels; count > 0; --count, pixel += kPixelBytes)
        if (pixel[3] == 0) std::fill_n(pixel, kPixelBytes, std::uint8_t{0});
}
