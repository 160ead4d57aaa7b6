// Shorthand for tests of numbers as text.
#pragma once

#include <ktdb.h>

#include <string>

/// The text of a distance or angle; "(status)" when the call fails.
inline std::wstring distanceText(double value, int mode, int precision) {
    wchar_t buffer[kKtdbBufferSize];
    const int status = ktdbRToS(value, mode, precision, buffer);
    return status == kKtdbOk ? buffer : L"(" + std::to_wstring(status) + L")";
}
inline std::wstring angleText(double value, int mode, int precision) {
    wchar_t buffer[kKtdbBufferSize];
    const int status = ktdbAngToS(value, mode, precision, buffer);
    return status == kKtdbOk ? buffer : L"(" + std::to_wstring(status) + L")";
}

/// The value that a text has; `kRefused` when it is refused.
constexpr double kRefused = -987654321.5;
inline double distance(const wchar_t* text, int mode) {
    double value = kRefused;
    return ktdbDisToF(text, mode, &value) == kKtdbOk ? value : kRefused;
}
inline double angle(const wchar_t* text, int mode, int flag = 1) {
    double value = kRefused;
    return ktdbAngToF2(flag, text, mode, &value) == kKtdbOk ? value : kRefused;
}
