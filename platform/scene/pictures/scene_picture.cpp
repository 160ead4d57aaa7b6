#include "pictures/scene_picture.h"

#include <algorithm>
#include <cmath>

#include "geometry/space_transform.h"

namespace {

constexpr PicturePixel kOpaque = 0xFF000000;

struct Channels {
    unsigned alpha, red, green, blue;
};

Channels channelsOf(PicturePixel pixel) {
    return {pixel >> 24, pixel >> 16 & 0xFF, pixel >> 8 & 0xFF, pixel & 0xFF};
}

PicturePixel pixelOf(const Channels& c) { return c.alpha << 24 | c.red << 16 | c.green << 8 | c.blue; }

/// The mean of pixels by their opacity: what is clear has no colour to add.
class Mean {
public:
    void add(PicturePixel pixel, double share) {
        const Channels c = channelsOf(pixel);
        const double weight = share * c.alpha;
        m_alpha += weight;
        m_red += weight * c.red;
        m_green += weight * c.green;
        m_blue += weight * c.blue;
    }
    /// Of shares that add up to 1.
    PicturePixel take() const {
        if (!(m_alpha > 0)) return 0;
        const auto whole = [](double value) { return static_cast<unsigned>(std::min(value + 0.5, 255.0)); };
        return pixelOf(
            {whole(m_alpha), whole(m_red / m_alpha), whole(m_green / m_alpha), whole(m_blue / m_alpha)});
    }

private:
    double m_alpha = 0, m_red = 0, m_green = 0, m_blue = 0;
};

/// The mean of four pixels that are all opaque, as nearly all are.
PicturePixel meanOfOpaque(PicturePixel a, PicturePixel b, PicturePixel c, PicturePixel d) {
    const auto channel = [&](int shift) {
        const unsigned sum =
            (a >> shift & 0xFF) + (b >> shift & 0xFF) + (c >> shift & 0xFF) + (d >> shift & 0xFF);
        return (sum + 2) / 4 << shift;
    };
    return kOpaque | channel(16) | channel(8) | channel(0);
}

ScenePicture::Level halfOf(const ScenePicture::Level& whole) {
    ScenePicture::Level half;
    half.width = std::max(1, whole.width / 2);
    half.height = std::max(1, whole.height / 2);
    half.pixels.reserve(static_cast<std::size_t>(half.width) * static_cast<std::size_t>(half.height));
    for (int y = 0; y < half.height; ++y) {
        const auto row = [&](int at) {
            return whole.pixels.data() + static_cast<std::size_t>(std::min(at, whole.height - 1)) *
                                             static_cast<std::size_t>(whole.width);
        };
        const PicturePixel *upper = row(2 * y), *lower = row(2 * y + 1);
        for (int x = 0; x < half.width; ++x) {
            const int left = 2 * x, right = std::min(2 * x + 1, whole.width - 1);
            const PicturePixel four[] = {upper[left], upper[right], lower[left], lower[right]};
            if ((four[0] & four[1] & four[2] & four[3]) >= kOpaque) {
                half.pixels.push_back(meanOfOpaque(four[0], four[1], four[2], four[3]));
                continue;
            }
            Mean mean;
            for (const PicturePixel each : four) mean.add(each, 0.25);
            half.pixels.push_back(mean.take());
        }
    }
    return half;
}

PicturePixel multiplied(PicturePixel pixel) {
    Channels c = channelsOf(pixel);
    if (c.alpha == 255) return pixel;
    for (unsigned* each : {&c.red, &c.green, &c.blue}) *each = (*each * c.alpha + 127) / 255;
    return pixelOf(c);
}

/// Takes colours from one level of a picture, by places from 0 to 1.
class Sampler {
public:
    Sampler(const ScenePicture::Level& level, bool isNearest) : m_level(level), m_isNearest(isNearest) {}
    PicturePixel at(double u, double v) const {
        const double x = u * m_level.width, y = v * m_level.height;
        if (m_isNearest) return pixel(static_cast<int>(x), static_cast<int>(y));
        // Places count in parts of a pixel, from the middle of the one before the first.
        constexpr int kParts = 256;
        const int column = static_cast<int>((x + 0.5) * kParts), row = static_cast<int>((y + 0.5) * kParts);
        const int left = column / kParts - 1, top = row / kParts - 1;
        const auto right = static_cast<unsigned>(column % kParts),
                   below = static_cast<unsigned>(row % kParts);
        const PicturePixel four[] = {pixel(left, top), pixel(left + 1, top), pixel(left, top + 1),
                                     pixel(left + 1, top + 1)};
        const unsigned shares[] = {(kParts - right) * (kParts - below), right * (kParts - below),
                                   (kParts - right) * below, right * below};
        constexpr unsigned kWhole = kParts * kParts;
        if ((four[0] & four[1] & four[2] & four[3]) >= kOpaque) {
            const auto channel = [&](int shift) {
                unsigned sum = kWhole / 2;
                for (int i = 0; i < 4; ++i) sum += (four[i] >> shift & 0xFF) * shares[i];
                return sum / kWhole << shift;
            };
            return kOpaque | channel(16) | channel(8) | channel(0);
        }
        Mean mean;
        for (int i = 0; i < 4; ++i) mean.add(four[i], shares[i] / static_cast<double>(kWhole));
        return mean.take();
    }

private:
    PicturePixel pixel(int x, int y) const {
        x = std::clamp(x, 0, m_level.width - 1);
        y = std::clamp(y, 0, m_level.height - 1);
        return m_level.pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(m_level.width) +
                              static_cast<std::size_t>(x)];
    }
    const ScenePicture::Level& m_level;
    bool m_isNearest;
};

/// The level of which a pixel of the window covers between one and two pixels.
std::size_t levelFor(const ScenePicture& picture, double pixelsForOne) {
    std::size_t level = 0;
    while (pixelsForOne >= 2 && level + 1 < picture.levels().size()) {
        pixelsForOne /= 2;
        ++level;
    }
    return level;
}

}  // namespace

ScenePicture::ScenePicture(int width, int height, std::vector<PicturePixel> pixels, bool bitonal)
    : m_isBitonal(bitonal) {
    pixels.resize(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
    m_levels.push_back({width, height, std::move(pixels)});
    while (m_levels.back().width > 1 || m_levels.back().height > 1)
        m_levels.push_back(halfOf(m_levels.back()));
}

std::size_t ScenePicture::bytes() const {
    std::size_t count = 0;
    for (const Level& level : m_levels) count += level.pixels.size();
    return count * sizeof(PicturePixel);
}

PictureLook::PictureLook(const SceneImage& image, const PictureColors& colors)
    : m_colors(colors),
      m_fade(static_cast<unsigned>(std::clamp(image.fade, 0, 100))),
      m_isTransparent(image.isTransparent),
      m_isInk(image.isTransparent && image.picture->isBitonal()) {
    constexpr double kMiddle = 127.5, kNeutral = 50;
    const double brighter = (std::clamp(image.brightness, 0, 100) - kNeutral) / kNeutral * 255;
    const double contrast = std::clamp(image.contrast, 0, 100) / kNeutral;
    for (int i = 0; i < 256; ++i) {
        const double shade = (i - kMiddle) * contrast + kMiddle + brighter;
        m_shade[i] = static_cast<std::uint8_t>(std::clamp(shade + 0.5, 0.0, 255.0));
    }
}

PicturePixel PictureLook::operator()(PicturePixel pixel) const {
    Channels c = channelsOf(pixel);
    if (m_isInk) {
        // Ink in the colour of the entity, and nothing where there is paper.
        const unsigned light = (c.red + c.green + c.blue) / 3;
        c = channelsOf(m_colors.ink);
        c.alpha = 255 - light;
    } else {
        if (!m_isTransparent && c.alpha < 255) {
            for (unsigned* each : {&c.red, &c.green, &c.blue})
                *each = (*each * c.alpha + 255 * (255 - c.alpha)) / 255;
            c.alpha = 255;
        }
        for (unsigned* each : {&c.red, &c.green, &c.blue}) *each = m_shade[*each];
    }
    if (m_fade > 0) {
        const Channels paper = channelsOf(m_colors.paper);
        const auto faded = [&](unsigned& own, unsigned to) {
            own = (own * (100 - m_fade) + to * m_fade + 50) / 100;
        };
        faded(c.red, paper.red);
        faded(c.green, paper.green);
        faded(c.blue, paper.blue);
    }
    return pixelOf(c);
}

std::vector<PicturePixel> PicturePixels(const SceneImage& image, const PictureArea& area,
                                        const PictureColors& colors) {
    const auto width = static_cast<std::size_t>(std::max(area.width, 0));
    std::vector<PicturePixel> pixels(width * static_cast<std::size_t>(std::max(area.height, 0)));
    const double size = Cross(area.across, area.up);
    if (!image.picture || !(std::abs(size) > 0) || !std::isfinite(size)) return pixels;
    const ScenePicture& picture = *image.picture;
    // One step to the right and one downwards, in parts of the picture.
    const OdGePoint2d right = {area.up.y / size, -area.across.y / size};
    const OdGePoint2d down = {-area.up.x / size, area.across.x / size};
    const double pixelsForOne = std::max(std::hypot(right.x * picture.width(), right.y * picture.height()),
                                         std::hypot(down.x * picture.width(), down.y * picture.height()));
    const Sampler sampler(picture.levels()[levelFor(picture, pixelsForOne)], pixelsForOne <= 1);
    const PictureLook look(image, colors);
    for (int y = 0; y < area.height; ++y) {
        const OdGePoint2d start = OdGePoint2d{area.left + 0.5, area.top + y + 0.5} - area.origin;
        double u = Cross(start, area.up) / size, v = Cross(area.across, start) / size;
        PicturePixel* row = pixels.data() + width * static_cast<std::size_t>(y);
        for (int x = 0; x < area.width; ++x, u += right.x, v += right.y)
            if (u >= 0 && u < 1 && v >= 0 && v < 1) row[x] = multiplied(look(sampler.at(u, 1 - v)));
    }
    return pixels;
}
