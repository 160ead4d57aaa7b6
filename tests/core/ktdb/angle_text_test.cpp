#include <gtest/gtest.h>

#include <cmath>

#include "number_cases.h"

namespace {

enum { kDegrees, kDegMinSec, kGrads, kRadians, kSurveyor };
constexpr double kPi = 3.14159265358979323846;
double deg(double degrees) { return degrees * kPi / 180; }

}  // namespace

TEST(AngleText, EachModeHasItsSpelling) {
    EXPECT_EQ(angleText(deg(45), kDegrees, 4), L"45.0000");
    EXPECT_EQ(angleText(deg(12 + 30 / 60.0 + 45 / 3600.0), kDegMinSec, 4), L"12d30'45\"");
    EXPECT_EQ(angleText(deg(45), kGrads, 4), L"50.0000g");
    EXPECT_EQ(angleText(deg(45), kRadians, 4), L"0.7854r");
    EXPECT_EQ(angleText(deg(45), kSurveyor, 4), L"N 45d0'0\" E");
}

TEST(AngleText, MinutesAndSecondsAppearWithPrecision) {
    const double value = deg(12 + 30 / 60.0 + 45.1234 / 3600.0);
    EXPECT_EQ(angleText(value, kDegMinSec, 0), L"13d");
    EXPECT_EQ(angleText(value, kDegMinSec, 1), L"12d31'");
    EXPECT_EQ(angleText(value, kDegMinSec, 2), L"12d31'");
    EXPECT_EQ(angleText(value, kDegMinSec, 3), L"12d30'45\"");
    EXPECT_EQ(angleText(value, kDegMinSec, 5), L"12d30'45.1\"");
    EXPECT_EQ(angleText(value, kDegMinSec, 8), L"12d30'45.1234\"");
}

TEST(AngleText, RoundingCarriesIntoMinutesAndDegrees) {
    EXPECT_EQ(angleText(deg(59.0 + 59 / 60.0 + 59.9999 / 3600), kDegMinSec, 4), L"60d0'0\"");
    EXPECT_EQ(angleText(deg(0.99999), kDegMinSec, 1), L"1d0'");
    EXPECT_EQ(angleText(deg(359.99996), kDegrees, 4), L"360.0000");
    EXPECT_EQ(angleText(deg(89.99999999), kSurveyor, 4), L"N");
    EXPECT_EQ(angleText(deg(359.99999999), kSurveyor, 4), L"E");
}

TEST(AngleText, BearingsCoverTheCircle) {
    EXPECT_EQ(angleText(deg(0), kSurveyor, 0), L"E");
    EXPECT_EQ(angleText(deg(90), kSurveyor, 0), L"N");
    EXPECT_EQ(angleText(deg(180), kSurveyor, 0), L"W");
    EXPECT_EQ(angleText(deg(270), kSurveyor, 0), L"S");
    EXPECT_EQ(angleText(deg(-90), kSurveyor, 0), L"S");
    EXPECT_EQ(angleText(deg(120), kSurveyor, 0), L"N 30d W");
    EXPECT_EQ(angleText(deg(200), kSurveyor, 0), L"S 70d W");
    EXPECT_EQ(angleText(deg(300), kSurveyor, 2), L"S 30d0' E");
    for (int degrees = 0; degrees < 360; degrees += 7) {
        const std::wstring text = angleText(deg(degrees), kSurveyor, 0);
        EXPECT_NEAR(angle(text.c_str(), kSurveyor), deg(degrees), 1e-12) << odUtf8(text);
    }
}

TEST(AngleText, ZeroHasNoSignAndOtherAnglesKeepTheirs) {
    for (int mode = kDegrees; mode <= kSurveyor; ++mode)
        EXPECT_EQ(angleText(-0.0, mode, 3), angleText(0.0, mode, 3)) << mode;
    EXPECT_EQ(angleText(-1e-12, kDegrees, 3), L"0.000");
    EXPECT_EQ(angleText(deg(-30), kDegrees, 1), L"-30.0");
    EXPECT_EQ(angleText(deg(-30.5), kDegMinSec, 2), L"-30d30'");
    EXPECT_EQ(angleText(deg(720), kDegrees, 0), L"720") << "turns are kept";
}

TEST(AngleText, EverySuffixIsReadInEveryMode) {
    for (int mode = kDegrees; mode <= kSurveyor; ++mode) {
        EXPECT_NEAR(angle(L"45d", mode), deg(45), 1e-15);
        EXPECT_NEAR(angle(L"12d30'45\"", mode), deg(12.5125), 1e-15);
        EXPECT_NEAR(angle(L"12D30'", mode), deg(12.5), 1e-15);
        EXPECT_NEAR(angle(L"30'", mode), deg(0.5), 1e-15);
        EXPECT_NEAR(angle(L"45\"", mode), deg(0.0125), 1e-15);
        EXPECT_NEAR(angle(L"50g", mode), deg(45), 1e-15);
        EXPECT_EQ(angle(L"0.7854r", mode), 0.7854);
        EXPECT_NEAR(angle(L"N 45d0'0\" E", mode), deg(45), 1e-15);
        EXPECT_NEAR(angle(L"n45dw", mode), deg(135), 1e-15);
        EXPECT_NEAR(angle(L"S 10 E", mode), deg(280), 1e-14);
        EXPECT_EQ(angle(L"N", mode), kPi / 2);
        EXPECT_EQ(angle(L"E", mode), 0);
        EXPECT_NEAR(angle(L"S", mode), deg(270), 1e-15);
        EXPECT_EQ(angle(L"W", mode), kPi);
        EXPECT_NEAR(angle(L" -30.5d ", mode), deg(-30.5), 1e-15);
    }
    EXPECT_NEAR(angle(L"45\x00B0", kDegrees), deg(45), 1e-15);
}

TEST(AngleText, ABareNumberTakesTheUnitOfTheMode) {
    EXPECT_NEAR(angle(L"45", kDegrees), deg(45), 1e-15);
    EXPECT_NEAR(angle(L"45", kDegMinSec), deg(45), 1e-15);
    EXPECT_NEAR(angle(L"50", kGrads), deg(45), 1e-15);
    EXPECT_EQ(angle(L"1.25", kRadians), 1.25);
    EXPECT_NEAR(angle(L"45", kSurveyor), deg(45), 1e-15);
}

TEST(AngleText, WhatIsNoAngleIsRefused) {
    for (const wchar_t* text :
         {L"",           L"  ",       L"abc", L"inf",  L"nan",   L"0x1",   L"1e999",    L"12d60'",
          L"12d30'60\"", L"12.5d30'", L"45x", L"45dd", L"45 d",  L"N 45d", L"N 100d E", L"N -5d E",
          L"E 5d N",     L"NE",       L"Nx",  L"--5",  L"5'10d", L"5\"6'", L"-N",       L"12d30",
          L"r",          L"g",        L"d",   L"1g2",  L"1r0",   L"1rg",   L"1gr"})
        for (int mode = kDegrees; mode <= kSurveyor; ++mode)
            EXPECT_EQ(angle(text, mode), kRefused) << odUtf8(text) << " in mode " << mode;
    double value = 42;
    EXPECT_EQ(ktdbAngToF2(1, L"x", kDegrees, &value), kKtdbInvalid);
    EXPECT_EQ(value, 42);
    EXPECT_EQ(ktdbAngToF2(1, nullptr, kDegrees, &value), kKtdbInvalid);
    EXPECT_EQ(ktdbAngToF2(1, L"1", 5, &value), kKtdbInvalid);
    EXPECT_EQ(ktdbAngToF2(1, L"1", kDegrees, nullptr), kKtdbInvalid);
}

TEST(AngleText, FailureLeavesAnEmptyBuffer) {
    wchar_t buffer[kKtdbBufferSize] = L"before";
    EXPECT_EQ(ktdbAngToS(std::nan(""), kDegrees, 2, buffer), kKtdbRange);
    EXPECT_EQ(buffer[0], L'\0');
    EXPECT_EQ(ktdbAngToS(1, 5, 2, buffer), kKtdbInvalid);
    EXPECT_EQ(ktdbAngToS(1, kDegrees, 9, buffer), kKtdbInvalid);
    EXPECT_EQ(ktdbAngToS(1, kDegrees, 2, nullptr), kKtdbInvalid);
}
