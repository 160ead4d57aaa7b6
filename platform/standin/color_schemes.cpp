#include "color_schemes.h"

#include <array>

namespace {

using Colors = std::array<COLORREF, kStandinRoleCount>;

constexpr Colors kLightColors = {RGB(255, 255, 255), RGB(32, 32, 32),  RGB(240, 240, 240), RGB(32, 32, 32),
                                 RGB(128, 128, 128), RGB(0, 103, 192), RGB(255, 255, 255), RGB(172, 172, 172),
                                 RGB(70, 72, 75),    RGB(70, 72, 75),  RGB(249, 249, 249), RGB(0, 84, 166),
                                 RGB(255, 255, 255), RGB(32, 32, 32)};

constexpr Colors kDarkColors = {
    RGB(32, 34, 37),   RGB(232, 232, 232), RGB(45, 48, 52),  RGB(232, 232, 232), RGB(144, 148, 152),
    RGB(38, 110, 178), RGB(255, 255, 255), RGB(92, 96, 102), RGB(232, 232, 232), RGB(120, 124, 130),
    RGB(56, 59, 64),   RGB(122, 184, 245), RGB(33, 40, 48),  RGB(232, 232, 232)};

/// The system's own colours, role by role.
constexpr std::array<int, kStandinRoleCount> kSystemColors = {
    COLOR_WINDOW,    COLOR_WINDOWTEXT,    COLOR_BTNFACE,     COLOR_BTNTEXT,   COLOR_GRAYTEXT,
    COLOR_HIGHLIGHT, COLOR_HIGHLIGHTTEXT, COLOR_WINDOWFRAME, COLOR_INFOTEXT,  COLOR_INFOTEXT,
    COLOR_INFOBK,    COLOR_HOTLIGHT,      COLOR_WINDOW,      COLOR_WINDOWTEXT};

bool isDark(COLORREF color) {
    return GetRValue(color) * 299 + GetGValue(color) * 587 + GetBValue(color) * 114 < 128 * 1000;
}

}  // namespace

StandinColorScheme SystemColorScheme() {
    HIGHCONTRASTW contrast = {};
    contrast.cbSize = sizeof(contrast);
    if (::SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof(contrast), &contrast, 0) &&
        (contrast.dwFlags & HCF_HIGHCONTRASTON))
        return StandinColorScheme::kHighContrast;
    return isDark(::GetSysColor(COLOR_WINDOW)) ? StandinColorScheme::kDark : StandinColorScheme::kLight;
}

bool ColorOfScheme(int scheme, int role, COLORREF& color) {
    if (role < 0 || role >= kStandinRoleCount) return false;
    const auto index = static_cast<std::size_t>(role);
    switch (static_cast<StandinColorScheme>(scheme)) {
        case StandinColorScheme::kLight: color = kLightColors[index]; return true;
        case StandinColorScheme::kDark: color = kDarkColors[index]; return true;
        case StandinColorScheme::kHighContrast: color = ::GetSysColor(kSystemColors[index]); return true;
        default: return false;
    }
}
