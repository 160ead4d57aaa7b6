#include "rules/dimension_text.h"

#include <ktdb.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <numbers>

namespace {

using namespace dimension_codes;

enum LengthUnits { kScientific = 1, kDecimal, kEngineering, kArchitectural, kFractional };
enum AngleUnits { kDegrees, kDegreesMinutesSeconds, kSurveyor = 4 };
enum Fractions { kLevel, kSlanted, kNotStacked };
constexpr int kMiddleRow = 1;

/// How a number is written.
struct NumberForm {
    int units = kDecimal;
    int decimals = 4;
    int zeros = 0;  ///< which are left out: 0 to 3 of feet and inches, 4 leading and 8 trailing ones
    int fractions = kNotStacked;
    double fractionShare = 1;  ///< height of the numbers of a fraction, in that of the text
    wchar_t separator = L'.';
};

/// Changes a number in the text without its unit marks: `text` from the first digit to the last.
void dropZeros(std::wstring& text, int zeros) {
    constexpr int kLeading = 4, kTrailing = 8;
    const std::size_t point = text.find(L'.');
    if (point == std::wstring::npos) return;
    if ((zeros & kTrailing) != 0) {
        std::size_t end = point + 1;
        while (end < text.size() && text[end] >= L'0' && text[end] <= L'9') ++end;
        std::size_t kept = end;
        while (text[kept - 1] == L'0') --kept;
        if (kept == point + 1) kept = point;
        text.erase(kept, end - kept);
    }
    const bool isZeroFirst = point > 0 && text[point - 1] == L'0' &&
                             (point == 1 || text[point - 2] < L'0' || text[point - 2] > L'9');
    if ((zeros & kLeading) != 0 && isZeroFirst && point < text.size()) text.erase(point - 1, 1);
}

/// Feet and inches come without feet of zero and with inches of zero.
void arrangeFeet(std::wstring& text, int zeros) {
    enum { kNeither, kBoth, kZeroFeet, kZeroInches };
    const int kind = zeros & 3;
    const std::size_t start = !text.empty() && text[0] == L'-' ? 1 : 0;
    const std::size_t feet = text.find(L'\'');
    if (feet == std::wstring::npos) {
        if (kind == kBoth || kind == kZeroFeet) {
            const std::size_t slash = text.find(L'/');
            const bool isFractionAlone = slash != std::wstring::npos && text.find(L' ') == std::wstring::npos;
            text.insert(start, isFractionAlone ? L"0'-0 " : L"0'-");
        }
        return;
    }
    if (kind != kNeither && kind != kZeroFeet) return;
    const std::wstring_view inches = std::wstring_view(text).substr(feet + 1);
    const bool isZero = inches.find_first_of(L"123456789") == std::wstring_view::npos;
    if (isZero) text.erase(feet + 1);
}

/// `text` in a share of the height around it, below, in the middle or above beside the rest.
std::wstring inHeight(double share, int row, const std::wstring& text) {
    wchar_t factor[kKtdbBufferSize] = {};
    if (!(share > 0) || ktdbRToS(share, kDecimal, 8, factor) != kKtdbOk) return text;
    const int place = std::clamp(row, 0, 2);
    return L"{\\A" + std::to_wstring(place) + L";\\H" + std::wstring(factor) + L"x;" + text + L"}";
}

/// A fraction becomes a stack, whose numbers have a share of the height.
void stackFraction(std::wstring& text, int fractions, double share) {
    const std::size_t slash = text.find(L'/');
    if (fractions == kNotStacked || slash == std::wstring::npos) return;
    const auto isDigit = [](wchar_t c) { return c >= L'0' && c <= L'9'; };
    std::size_t begin = slash, end = slash + 1;
    while (begin > 0 && isDigit(text[begin - 1])) --begin;
    while (end < text.size() && isDigit(text[end])) ++end;
    if (fractions == kSlanted) text[slash] = L'#';
    const std::wstring stack = inHeight(share, kMiddleRow, L"\\S" + text.substr(begin, end - begin) + L";");
    // The blank in front of it would be a gap.
    if (begin > 0 && text[begin - 1] == L' ') --begin;
    text.replace(begin, end - begin, stack);
}

std::wstring numberText(double value, const NumberForm& form) {
    constexpr double kMost = 1e100;
    if (!std::isfinite(value) || std::abs(value) > kMost) return {};
    wchar_t written[kKtdbBufferSize] = {};
    if (ktdbRToS(value, form.units, std::clamp(form.decimals, 0, 8), written) != kKtdbOk) return {};
    std::wstring text = written;
    if (form.units == kEngineering || form.units == kArchitectural) arrangeFeet(text, form.zeros);
    if (form.units != kArchitectural && form.units != kFractional) dropZeros(text, form.zeros);
    if (form.separator > L' ' && form.separator < 127)
        std::replace(text.begin(), text.end(), L'.', form.separator);
    stackFraction(text, form.fractions, form.fractionShare);
    return text;
}

/// Units of a setting that also says whether fractions are stacked; those of the system are decimal.
int unitsOf(int setting) {
    constexpr int kSystem = 6;
    return setting >= kScientific && setting < kSystem ? setting : static_cast<int>(kDecimal);
}

/// The same for former settings, which have units of fractions twice: stacked, and in one line.
void takeFormerUnits(int setting, NumberForm& form) {
    constexpr int kFlatArchitectural = 6, kFlatFractional = 7;
    const bool isFlat = setting == kFlatArchitectural || setting == kFlatFractional;
    form.units = isFlat ? (setting == kFlatArchitectural ? kArchitectural : kFractional) : unitsOf(setting);
    form.fractions = isFlat ? kNotStacked : kLevel;
}

wchar_t separatorOf(const DimensionStyle& style) {
    const int code = style.integer(kSeparator, L'.');
    return static_cast<wchar_t>(code > L' ' && code < 127 ? code : L'.');
}

NumberForm mainForm(const DimensionStyle& style) {
    NumberForm form;
    constexpr int kNotThere = -1;
    const int units = style.integer(kUnits, kNotThere);
    if (units != kNotThere) {
        form.units = unitsOf(units);
        form.fractions = style.integer(kFractions, kLevel);
    } else {
        takeFormerUnits(style.integer(kFormerUnits, kDecimal), form);
    }
    form.decimals = style.integer(kDecimals, 4);
    form.fractionShare = style.real(kToleranceScale, 1);
    form.zeros = style.integer(kZeros, 8);
    form.separator = separatorOf(style);
    return form;
}

double rounded(double value, double step) { return step > 0 ? std::round(value / step) * step : value; }

/// A pattern's parts before and behind the number, which is "<>"; all of one without that stands behind.
std::pair<std::wstring, std::wstring> around(const std::wstring& pattern, const wchar_t* number) {
    const std::size_t at = pattern.find(number);
    if (at == std::wstring::npos) return {std::wstring(), pattern};
    return {pattern.substr(0, at), pattern.substr(at + 2)};
}

/// A part of a stack, in which some characters would part it.
std::wstring inStack(const std::wstring& text) {
    std::wstring escaped;
    for (const wchar_t each : text) {
        if (std::wstring_view(L"/#^;\\").find(each) != std::wstring_view::npos) escaped += L'\\';
        escaped += each;
    }
    return escaped;
}

using Writer = std::function<std::wstring(double value, bool isTolerance)>;

/// A measure in one kind of units: what stands around its number, and how far it may be off.
struct MeasuredNumber {
    double value = 0, plus = 0, minus = 0;
    std::wstring before, behind;
};

/// The number with its tolerance, or the limits between which it lies.
std::wstring withTolerance(const MeasuredNumber& number, const DimensionStyle& style, const Writer& write) {
    const auto& [value, plus, minus, start, behind] = number;
    const double share = style.real(kToleranceScale, 1);
    const int row = style.integer(kToleranceRow, kMiddleRow);
    const auto stack = [&](int place, const std::wstring& upper, const std::wstring& lower) {
        return inHeight(share, place, L"\\S" + inStack(upper) + L"^" + inStack(lower) + L";");
    };
    if (style.integer(kLimits, 0) != 0)
        return stack(kMiddleRow, start + write(value + plus, false) + behind,
                     start + write(value - minus, false) + behind);
    const std::wstring main = start + write(value, false) + behind;
    if (style.integer(kTolerance, 0) == 0 || (plus == 0 && minus == 0)) return main;
    if (plus == minus) return main + inHeight(share, row, L"\u00B1" + write(plus, true) + behind);
    const auto signedText = [&](double size) {
        const std::wstring text = write(std::abs(size), true) + number.behind;
        return size == 0 ? text : (size < 0 ? L"-" : L"+") + text;
    };
    return main + stack(row, signedText(plus), signedText(-minus));
}

/// Nothing in a stack may end it.
NumberForm unstacked(NumberForm form) {
    form.fractions = kNotStacked;
    return form;
}

/// How a tolerance is written beside a number in `form`.
NumberForm toleranceForm(const NumberForm& form, int decimals, int zeros) {
    NumberForm tolerance = unstacked(form);
    tolerance.decimals = decimals;
    tolerance.zeros = zeros;
    return tolerance;
}

/// Writes numbers in `form`, and tolerances in `tolerance`.
Writer writerOf(const NumberForm& form, const NumberForm& tolerance, const DimensionStyle& style) {
    const NumberForm number = style.integer(kLimits, 0) != 0 ? unstacked(form) : form;
    return [number, tolerance](double each, bool isTolerance) {
        return numberText(each, isTolerance ? tolerance : number);
    };
}

/// A measure with what the style's pattern puts around it.
MeasuredNumber mainNumber(double value, std::wstring_view sign, const DimensionStyle& style) {
    const std::wstring pattern(style.text(kPattern).view());
    const auto [before, behind] = around(pattern.substr(0, pattern.find(L"[]")), L"<>");
    return {value, style.real(kPlus, 0), style.real(kMinus, 0), before + std::wstring(sign), behind};
}

std::wstring alternateText(double value, std::wstring_view sign, const DimensionStyle& style) {
    if (style.integer(kAlternate, 0) == 0) return {};
    NumberForm form;
    takeFormerUnits(style.integer(kAlternateUnits, kDecimal), form);
    form.decimals = style.integer(kAlternateDecimals, 2);
    form.fractionShare = style.real(kToleranceScale, 1);
    form.zeros = style.integer(kAlternateZeros, 0);
    form.separator = separatorOf(style);
    const NumberForm tolerance =
        toleranceForm(form, style.integer(kAlternateToleranceDecimals, form.decimals),
                      style.integer(kAlternateToleranceZeros, form.zeros));
    const double factor = style.real(kAlternateFactor, 25.4);
    const auto [before, behind] = around(std::wstring(style.text(kAlternatePattern).view()), L"[]");
    const MeasuredNumber number = {rounded(value * factor, style.real(kAlternateRounding, 0)),
                                   style.real(kPlus, 0) * factor, style.real(kMinus, 0) * factor,
                                   before + std::wstring(sign), behind};
    return L"[" + withTolerance(number, style, writerOf(form, tolerance, style)) + L"]";
}

}  // namespace

DimensionMeasure LengthMeasure(double length, std::wstring_view sign, const DimensionStyle& style) {
    const double value = rounded(length * std::abs(style.real(kMeasureFactor, 1)), style.real(kRounding, 0));
    const NumberForm form = mainForm(style);
    const NumberForm tolerance = toleranceForm(form, style.integer(kToleranceDecimals, form.decimals),
                                               style.integer(kToleranceZeros, form.zeros));
    DimensionMeasure measure;
    measure.main = withTolerance(mainNumber(value, sign, style), style, writerOf(form, tolerance, style));
    measure.alternate = alternateText(value, sign, style);
    return measure;
}

DimensionMeasure AngleMeasure(double angle, const DimensionStyle& style) {
    const int units = style.integer(kAngleUnits, kDegrees);
    const int places = style.integer(kAngleDecimals, 0);
    const int decimals = places >= 0 ? places : style.integer(kDecimals, 4);
    const auto write = [&](double degrees, bool) {
        NumberForm form;
        form.decimals = decimals;
        form.zeros = style.integer(kAngleZeros, 0) << 2;  // 1 for leading and 2 for trailing ones
        form.separator = separatorOf(style);
        if (units <= kDegrees || units >= kSurveyor) return numberText(degrees, form) + L"\u00B0";
        wchar_t written[kKtdbBufferSize] = {};
        if (ktdbAngToS(degrees * std::numbers::pi / 180, units, std::clamp(decimals, 0, 8), written) !=
            kKtdbOk)
            return std::wstring();
        std::wstring text = written;
        if (units == kDegreesMinutesSeconds) std::replace(text.begin(), text.end(), L'd', L'\u00B0');
        return text;
    };
    return {withTolerance(mainNumber(angle * 180 / std::numbers::pi, {}, style), style, write), {}};
}

OdString DimensionWords(const OdString& own, const DimensionMeasure& measure) {
    if (own == L" ") return {};
    const std::wstring between(measure.alternate.empty() ? 0 : 1, L' ');
    if (own.isEmpty()) return OdString(measure.main + between + measure.alternate);
    std::wstring words(own.view());
    const std::size_t other = words.find(L"[]");
    if (other != std::wstring::npos) words.replace(other, 2, measure.alternate);
    const std::size_t at = words.find(L"<>");
    if (at != std::wstring::npos)
        words.replace(
            at, 2, other == std::wstring::npos ? measure.main + between + measure.alternate : measure.main);
    return OdString(words);
}
