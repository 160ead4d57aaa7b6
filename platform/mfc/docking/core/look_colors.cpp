#include "look_colors.h"

#include <algorithm>
#include <cmath>

namespace kmfc {

namespace {

constexpr double kReadable = 4.5;  // contrast of texts

int channel(COLORREF color, int shift) { return static_cast<int>(color >> shift & 0xFF); }

double luminance(COLORREF color) {
    const auto linear = [&](int shift) {
        const double part = channel(color, shift) / 255.0;
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(0) + 0.7152 * linear(8) + 0.0722 * linear(16);
}

/// `wanted` if it can be read on the fill, otherwise the more readable of two others.
COLORREF readable(COLORREF fill, COLORREF wanted, COLORREF one, COLORREF other) {
    if (contrast(fill, wanted) >= kReadable) return wanted;
    const COLORREF better = contrast(fill, one) >= contrast(fill, other) ? one : other;
    if (contrast(fill, better) >= kReadable) return better;
    constexpr COLORREF black = 0, white = 0xFFFFFF;
    return contrast(fill, black) >= contrast(fill, white) ? black : white;
}

LookColors contrast_colors(const SystemColors& system) {
    LookColors look = {};
    look.bar = look.captionFill = system.face;
    look.captionText = look.tabText = look.disabledText = look.border = system.text;
    look.activeFill = look.hotFill = look.pressedFill = look.activeTabFill = system.highlight;
    look.activeText = look.hotText = look.pressedText = look.activeTabText = system.highlightText;
    return look;
}

}  // namespace

COLORREF blend(COLORREF under, COLORREF over, int part) {
    COLORREF result = 0;
    for (const int shift : {0, 8, 16}) {
        const int mixed = (channel(under, shift) * (100 - part) + channel(over, shift) * part + 50) / 100;
        result |= static_cast<COLORREF>(mixed) << shift;
    }
    return result;
}

double contrast(COLORREF one, COLORREF other) {
    const double a = luminance(one), b = luminance(other);
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

bool is_dark(COLORREF color) { return contrast(color, 0xFFFFFF) > contrast(color, 0); }

LookColors look_colors(const SystemColors& system) {
    if (system.highContrast) return contrast_colors(system);
    const auto text_on = [&](COLORREF fill, COLORREF wanted) {
        return readable(fill, wanted, system.text, system.windowText);
    };
    LookColors look = {};
    look.bar = system.face;
    look.captionFill = blend(system.face, system.text, 8);
    look.captionText = text_on(look.captionFill, system.text);
    look.activeFill = system.highlight;
    look.activeText = text_on(look.activeFill, system.highlightText);
    look.border = blend(system.face, system.text, 30);
    look.hotFill = blend(system.face, system.highlight, 25);
    look.hotText = text_on(look.hotFill, system.text);
    look.pressedFill = blend(system.face, system.highlight, 50);
    look.pressedText = text_on(look.pressedFill, system.text);
    look.activeTabFill = system.window;
    look.activeTabText = text_on(look.activeTabFill, system.windowText);
    look.tabText = text_on(look.bar, blend(system.text, system.face, 20));
    look.disabledText = blend(system.text, system.face, 50);
    return look;
}

}  // namespace kmfc
