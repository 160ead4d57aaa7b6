#include "od_cm_color.h"

#include <array>

namespace {

constexpr std::uint32_t packed(int r, int g, int b) {
    return static_cast<std::uint32_t>(r | (g << 8) | (b << 16));
}

/// One channel of a hue: `part` is how far, 0 to 1, the channel rises from the least to the greatest value.
int channel(int value, double saturation, double part) {
    return static_cast<int>(value * (1.0 - saturation * (1.0 - part)));
}

/// Index 10 to 249: 24 hues in steps of 15 degrees; five values; full and half saturation by turns.
std::uint32_t hueColor(int aci) {
    constexpr int kValues[] = {255, 204, 153, 127, 76};
    const int hue = aci / 10 - 1;
    const int value = kValues[(aci % 10) / 2];
    const double saturation = aci % 2 == 0 ? 1.0 : 0.5;
    const double step = (hue % 4) / 4.0;
    const int high = channel(value, saturation, 1.0);
    const int low = channel(value, saturation, 0.0);
    const int rising = channel(value, saturation, step);
    const int falling = channel(value, saturation, 1.0 - step);
    switch (hue / 4) {
        case 0: return packed(high, rising, low);
        case 1: return packed(falling, high, low);
        case 2: return packed(low, high, rising);
        case 3: return packed(low, falling, high);
        case 4: return packed(rising, low, high);
        default: return packed(high, low, falling);
    }
}

using Palette = std::array<std::uint32_t, 256>;

Palette makePalette(std::uint32_t foreground) {
    Palette palette{};
    palette[0] = foreground;
    constexpr std::uint32_t kPrimaries[] = {packed(255, 0, 0),   packed(255, 255, 0), packed(0, 255, 0),
                                            packed(0, 255, 255), packed(0, 0, 255),   packed(255, 0, 255)};
    for (std::size_t i = 0; i < 6; ++i) palette[i + 1] = kPrimaries[i];
    palette[7] = foreground;
    palette[8] = packed(128, 128, 128);
    palette[9] = packed(192, 192, 192);
    for (int aci = 10; aci < 250; ++aci) palette[static_cast<std::size_t>(aci)] = hueColor(aci);
    for (int i = 0; i < 6; ++i) {
        const int grey = 51 + 204 * i / 5;
        palette[static_cast<std::size_t>(250 + i)] = packed(grey, grey, grey);
    }
    return palette;
}

bool isGrey(std::uint32_t rgb) {
    return (rgb & 0xFF) == ((rgb >> 8) & 0xFF) && (rgb & 0xFF) == ((rgb >> 16) & 0xFF);
}

int distance(std::uint32_t a, std::uint32_t b) {
    int sum = 0;
    for (int shift = 0; shift < 24; shift += 8) {
        const int difference = static_cast<int>((a >> shift) & 0xFF) - static_cast<int>((b >> shift) & 0xFF);
        sum += difference * difference;
    }
    return sum;
}

}  // namespace

OdCmColor::~OdCmColor() = default;

bool OdCmColor::operator==(const OdCmColor& other) const {
    if (m_trueColor != other.m_trueColor) return false;
    if (!m_trueColor) return m_index == other.m_index;
    return m_rgb == other.m_rgb && m_colorName == other.m_colorName && m_bookName == other.m_bookName;
}

int OdCmColor::colorIndex() const { return m_trueColor ? odcmLookupACI(m_rgb, nullptr) : m_index; }

bool OdCmColor::setColorIndex(int index) {
    if (index < kByBlockIndex || index > kByLayerIndex) return false;
    m_index = static_cast<std::int16_t>(index);
    m_trueColor = false;
    m_rgb = 0;
    m_colorName.empty();
    m_bookName.empty();
    return true;
}

void OdCmColor::setRGB(std::uint8_t r, std::uint8_t g, std::uint8_t b) {
    m_rgb = packed(r, g, b);
    m_trueColor = true;
    m_colorName.empty();
    m_bookName.empty();
}

std::uint32_t OdCmColor::color() const {
    if (m_trueColor) return m_rgb;
    return m_index == kByBlockIndex || m_index == kByLayerIndex ? 0 : odcmLookupRGB(m_index, nullptr);
}

bool OdCmColor::setNames(const OdString& colorName, const OdString& bookName) {
    if (!m_trueColor) return false;
    m_colorName = colorName;
    m_bookName = bookName;
    return true;
}

const std::uint32_t* odcmAcadLightPalette() {
    static const Palette palette = makePalette(packed(0, 0, 0));
    return palette.data();
}

const std::uint32_t* odcmAcadDarkPalette() {
    static const Palette palette = makePalette(packed(255, 255, 255));
    return palette.data();
}

std::uint32_t odcmLookupRGB(int aci, const std::uint32_t* palette) {
    if (aci < 0 || aci > 255) return 0;
    return (palette ? palette : odcmAcadDarkPalette())[aci];
}

int odcmLookupACI(std::uint32_t rgb, const std::uint32_t* palette) {
    if (!palette) palette = odcmAcadDarkPalette();
    rgb &= 0xFFFFFF;
    int nearest = 0;
    int least = 0;
    for (int aci = 1; aci < 256; ++aci) {
        const std::uint32_t entry = palette[aci] & 0xFFFFFF;
        if (entry == rgb) return aci;
        if (isGrey(rgb) && !isGrey(entry)) continue;
        const int apart = distance(entry, rgb);
        if (nearest == 0 || apart < least) {
            nearest = aci;
            least = apart;
        }
    }
    return nearest ? nearest : 7;
}
