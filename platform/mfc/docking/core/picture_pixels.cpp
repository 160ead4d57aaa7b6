#include "picture_pixels.h"

#include <algorithm>

namespace kmfc {

namespace {

struct Channels {
    int alpha, red, green, blue;
};

Channels channels_of(std::uint32_t pixel) {
    return {static_cast<int>(pixel >> 24), static_cast<int>(pixel >> 16 & 0xFF),
            static_cast<int>(pixel >> 8 & 0xFF), static_cast<int>(pixel & 0xFF)};
}

std::uint32_t pixel_of(const Channels& c) {
    return static_cast<std::uint32_t>(c.alpha) << 24 | static_cast<std::uint32_t>(c.red) << 16 |
           static_cast<std::uint32_t>(c.green) << 8 | static_cast<std::uint32_t>(c.blue);
}

int rounded(double value) { return std::clamp(static_cast<int>(value + 0.500001), 0, 255); }

/// How much of the old pixels `first` to its last one new pixel covers, in one direction.
struct Cover {
    int first = 0;
    std::vector<double> parts;
};

std::vector<Cover> covers(int from, int to) {
    std::vector<Cover> all(static_cast<size_t>(to));
    const double step = static_cast<double>(from) / to;
    for (int i = 0; i < to; ++i) {
        const double begin = i * step, end = std::min((i + 1) * step, static_cast<double>(from));
        Cover& cover = all[static_cast<size_t>(i)];
        cover.first = std::min(static_cast<int>(begin), from - 1);
        for (int at = cover.first; at < from && at < end; ++at)
            cover.parts.push_back(std::min(end, at + 1.0) - std::max(begin, static_cast<double>(at)));
    }
    return all;
}

std::uint32_t mean(const PicturePixels& picture, const Cover& across, const Cover& down) {
    double sums[4] = {}, whole = 0;
    for (size_t y = 0; y < down.parts.size(); ++y)
        for (size_t x = 0; x < across.parts.size(); ++x) {
            const double part = down.parts[y] * across.parts[x];
            const Channels c = channels_of(
                picture.pixels[(static_cast<size_t>(down.first) + y) * static_cast<size_t>(picture.size.cx) +
                               static_cast<size_t>(across.first) + x]);
            whole += part;
            sums[0] += part * c.alpha;
            sums[1] += part * c.red;
            sums[2] += part * c.green;
            sums[3] += part * c.blue;
        }
    if (whole <= 0) return 0;
    return pixel_of({rounded(sums[0] / whole), rounded(sums[1] / whole), rounded(sums[2] / whole),
                     rounded(sums[3] / whole)});
}

}  // namespace

PicturePixels cut_out(const PicturePixels& picture, const CRect& from) {
    PicturePixels part;
    if (from.left < 0 || from.top < 0 || from.right > picture.size.cx || from.bottom > picture.size.cy ||
        from.Width() <= 0 || from.Height() <= 0)
        return part;
    part.size = from.Size();
    for (LONG y = from.top; y < from.bottom; ++y) {
        const auto row = picture.pixels.begin() + static_cast<std::ptrdiff_t>(y) * picture.size.cx;
        part.pixels.insert(part.pixels.end(), row + from.left, row + from.right);
    }
    return part;
}

std::uint32_t premultiplied(std::uint32_t pixel) {
    const Channels c = channels_of(pixel);
    const auto part = [&](int channel) { return (channel * c.alpha + 127) / 255; };
    return pixel_of({c.alpha, part(c.red), part(c.green), part(c.blue)});
}

PicturePixels resized(const PicturePixels& picture, const CSize& size) {
    PicturePixels result;
    if (size.cx <= 0 || size.cy <= 0 || picture.size.cx <= 0 || picture.size.cy <= 0) return result;
    if (size == picture.size) return picture;
    result.size = size;
    const std::vector<Cover> across = covers(picture.size.cx, size.cx),
                             down = covers(picture.size.cy, size.cy);
    for (const Cover& row : down)
        for (const Cover& column : across) result.pixels.push_back(mean(picture, column, row));
    return result;
}

PicturePixels disabled_look(PicturePixels picture) {
    for (std::uint32_t& pixel : picture.pixels) {
        const Channels c = channels_of(pixel);
        const int grey = (c.red * 30 + c.green * 59 + c.blue * 11) * 2 / 500;
        pixel = pixel_of({c.alpha * 2 / 5, grey, grey, grey});
    }
    return picture;
}

PicturePixels look_on_dark(PicturePixels picture) {
    constexpr int kNearlyGrey = 60;  // difference of the channels of an opaque pixel
    for (std::uint32_t& pixel : picture.pixels) {
        const Channels c = channels_of(pixel);
        const int high = std::max({c.red, c.green, c.blue}), low = std::min({c.red, c.green, c.blue});
        if ((high - low) * 255 > kNearlyGrey * c.alpha) continue;
        // Turning round the sum of the highest and lowest keeps the hue.
        const int turn = c.alpha - high - low;
        const auto turned = [&](int channel) { return std::clamp(channel + turn, 0, c.alpha); };
        pixel = pixel_of({c.alpha, turned(c.red), turned(c.green), turned(c.blue)});
    }
    return picture;
}

}  // namespace kmfc
