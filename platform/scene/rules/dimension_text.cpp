#include "rules/dimension_text.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

OdString MeasureText(double value, int decimals, const DimensionStyle& style) {
    constexpr int kMostDecimals = 8, kNoLeadingZero = 4, kNoTrailingZeros = 8;
    if (!std::isfinite(value) || std::abs(value) > 1e100) return {};
    char digits[160];
    std::snprintf(digits, sizeof digits, "%.*f", std::clamp(decimals, 0, kMostDecimals), value);
    std::string text = digits;
    const int zeros = style.integer(dimension_codes::kZeros, 8);
    if ((zeros & kNoTrailingZeros) != 0 && text.find('.') != std::string::npos) {
        while (text.back() == '0') text.pop_back();
        if (text.back() == '.') text.pop_back();
    }
    if ((zeros & kNoLeadingZero) != 0 && text.rfind("0.", 0) == 0) text.erase(0, 1);
    const int separator = style.integer(dimension_codes::kSeparator, '.');
    if (separator > ' ' && separator < 127)
        std::replace(text.begin(), text.end(), '.', static_cast<char>(separator));
    return odWide(text);
}

namespace {

/// `measure` in place of "<>"; without that behind the words.
std::wstring filled(const std::wstring& words, const OdString& measure, bool appends) {
    const std::size_t at = words.find(L"<>");
    if (at == std::wstring::npos) return appends ? std::wstring(measure.view()) + words : words;
    return words.substr(0, at) + std::wstring(measure.view()) + words.substr(at + 2);
}

}  // namespace

OdString DimensionWords(const OdString& own, const OdString& measure, const DimensionStyle& style) {
    if (own == L" ") return {};
    const std::wstring pattern(style.text(dimension_codes::kPattern).view());
    const OdString dressed(filled(pattern.substr(0, pattern.find(L"[]")), measure, true));
    return own.isEmpty() ? dressed : OdString(filled(std::wstring(own.view()), dressed, false));
}
