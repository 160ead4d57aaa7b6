#include <ktui/host/contrast.h>

#include <algorithm>
#include <cmath>

namespace {

/// Light that a byte of a colour stands for, 0 to 1.
double Light(DWORD part) {
    const double share = static_cast<double>(part & 0xFF) / 255;
    return share <= 0.03928 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
}

double Luminance(COLORREF color) {
    return 0.2126 * Light(color) + 0.7152 * Light(color >> 8) + 0.0722 * Light(color >> 16);
}

}  // namespace

double ContrastRatio(COLORREF a, COLORREF b) {
    const auto [darker, lighter] = std::minmax({Luminance(a), Luminance(b)});
    return (lighter + 0.05) / (darker + 0.05);
}

COLORREF ReadableColor(COLORREF wanted, COLORREF paper, double least, COLORREF fallback) {
    return ContrastRatio(wanted, paper) >= least ? wanted : fallback;
}
