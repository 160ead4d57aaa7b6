#include <ktui/input/value_validation.h>

#include <array>
#include <ktdb.h>

namespace {

constexpr int kCurrentSetting = -1;            // of the drawing: unit mode, precision
constexpr std::size_t kSpellingLength = 1024;  // characters, terminator included

/// The tests of a parsed number, in the order that decides which error is reported.
KTUI_ERROR_CODE CheckNumber(DWORD mask, double minimum, double maximum, double value) {
    if ((mask & kKtUiEditRange) && (value < minimum || value > maximum)) return kKtUiErrorOutOfRange;
    if ((mask & kKtUiEditNoNegative) && value < 0) return kKtUiErrorNegative;
    // Kept: exact, with no tolerance; the smallest nonzero value passes.
    if ((mask & kKtUiEditNoZero) && value == 0) return kKtUiErrorZero;
    return kKtUiErrorNone;
}

KTUI_ERROR_CODE ValidateNumber(DWORD mask, double minimum, double maximum, CString& text) {
    // Kept: with both bits set the text is a distance.
    const bool isDistance = (mask & kKtUiEditNumeric) != 0;
    double value = 0;
    const int status = isDistance ? ktdbDisToF(text.GetString(), kCurrentSetting, &value)
                                  : ktdbAngToF2(1, text.GetString(), kCurrentSetting, &value);
    if (status != kKtdbOk) return isDistance ? kKtUiErrorNotNumeric : kKtUiErrorNotAngle;
    if (const KTUI_ERROR_CODE error = CheckNumber(mask, minimum, maximum, value)) return error;

    std::array<wchar_t, kSpellingLength> spelling{};
    if (isDistance)
        ktdbRToS(value, kCurrentSetting, kCurrentSetting, spelling.data());
    else
        ktdbAngToS(value, kCurrentSetting, kCurrentSetting, spelling.data());
    text = spelling.data();
    return kKtUiErrorNone;
}

KTUI_ERROR_CODE ValidateSymbol(DWORD mask, const CString& text) {
    // Kept: without the no-blank bit a symbol's syntax isn't examined at all.
    if (!(mask & kKtUiEditNoBlank)) return kKtUiErrorNone;
    if (text.IsEmpty()) return kKtUiErrorBlank;
    return ktdbSNValid(text.GetString(), 0) == kKtdbOk ? kKtUiErrorNone : kKtUiErrorSymbolSyntax;
}

}  // namespace

KTUI_ERROR_CODE ValidateValue(DWORD mask, double minimum, double maximum, CString& text) {
    if (IsNumberMask(mask)) return ValidateNumber(mask, minimum, maximum, text);
    if (mask & kKtUiEditSymbol) return ValidateSymbol(mask, text);
    return (mask & kKtUiEditNoBlank) && text.IsEmpty() ? kKtUiErrorBlank : kKtUiErrorNone;
}

bool ConvertValue(DWORD mask, double minimum, double maximum, CString& text) {
    return IsNumberMask(mask) && ValidateValue(mask, minimum, maximum, text) == kKtUiErrorNone;
}

const wchar_t* ValueErrorText(unsigned code) {
    static constexpr std::array<const wchar_t*, 8> kTexts = {
        L"No error; OK.",
        L"Data is blank",
        L"Detected illegal symbol syntax",
        L"Detected non-numeric data",
        L"Data does not represent an angle",
        L"Data is zero",
        L"Data is negative",
        L"Data is out of range",
    };
    return code < kTexts.size() ? kTexts[code] : nullptr;
}
