#include "rules/text_width.h"

namespace {

/// Width of one letter in the height of capitals.
double widthOf(wchar_t letter) {
    constexpr double kNarrow = 0.35, kThin = 0.45, kUsual = 0.76, kCapital = 0.95, kWide = 1.2, kWhole = 1.4;
    constexpr wchar_t kFirstWhole = 0x2E80, kLastWhole = 0xFFDC;
    if (letter >= kFirstWhole && letter <= kLastWhole) return kWhole;
    if (std::wstring_view(L"iljI.,;:'|! \u00A0").find(letter) != std::wstring_view::npos) return kNarrow;
    if (std::wstring_view(L"frt()[]/\\-\"").find(letter) != std::wstring_view::npos) return kThin;
    if (std::wstring_view(L"mwMW@%").find(letter) != std::wstring_view::npos) return kWide;
    return letter >= L'A' && letter <= L'Z' ? kCapital : kUsual;
}

}  // namespace

double EstimatedTextWidth(const SceneFont& font, std::wstring_view text) {
    constexpr double kBold = 1.08;
    double width = 0;
    for (const wchar_t letter : text) width += widthOf(letter);
    return font.bold ? width * kBold : width;
}
