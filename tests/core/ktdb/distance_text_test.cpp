#include <gtest/gtest.h>

#include <cfloat>
#include <clocale>
#include <cmath>
#include <limits>
#include <locale>

#include "number_cases.h"

namespace {

enum { kScientific = 1, kDecimal, kEngineering, kArchitectural, kFractional };

/// Numbers as a locale with a decimal comma writes them.
class CommaNumbers : public std::numpunct<char> {
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
};

}  // namespace

TEST(DistanceText, EachModeHasItsSpelling) {
    EXPECT_EQ(distanceText(15.5, kScientific, 2), L"1.55E+01");
    EXPECT_EQ(distanceText(15.5, kDecimal, 2), L"15.50");
    EXPECT_EQ(distanceText(15.5, kEngineering, 2), L"1'-3.50\"");
    EXPECT_EQ(distanceText(15.5, kArchitectural, 2), L"1'-3 1/2\"");
    EXPECT_EQ(distanceText(15.5, kFractional, 2), L"15 1/2");
}

TEST(DistanceText, PrecisionZeroShowsWholeUnits) {
    EXPECT_EQ(distanceText(15.4, kScientific, 0), L"2E+01");
    EXPECT_EQ(distanceText(15.4, kDecimal, 0), L"15");
    EXPECT_EQ(distanceText(15.4, kEngineering, 0), L"1'-3\"");
    EXPECT_EQ(distanceText(15.4, kArchitectural, 0), L"1'-3\"");
    EXPECT_EQ(distanceText(15.4, kFractional, 0), L"15");
}

TEST(DistanceText, FractionsAreReduced) {
    EXPECT_EQ(distanceText(0.5, kArchitectural, 8), L"1/2\"");
    EXPECT_EQ(distanceText(12.25, kArchitectural, 4), L"1'-0 1/4\"");
    EXPECT_EQ(distanceText(-0.375, kFractional, 4), L"-3/8");
    EXPECT_EQ(distanceText(3 + 255.0 / 256, kFractional, 8), L"3 255/256");
}

TEST(DistanceText, RoundingCarriesIntoInchesAndFeet) {
    EXPECT_EQ(distanceText(11.9999, kArchitectural, 4), L"1'-0\"");
    EXPECT_EQ(distanceText(11.9999, kEngineering, 2), L"1'-0.00\"");
    EXPECT_EQ(distanceText(143.999, kArchitectural, 3), L"12'-0\"");
    EXPECT_EQ(distanceText(0.99999, kFractional, 4), L"1");
    EXPECT_EQ(distanceText(9.9996, kScientific, 3), L"1.000E+01");
}

TEST(DistanceText, BelowAFootOnlyInchesAreShown) {
    EXPECT_EQ(distanceText(6, kArchitectural, 4), L"6\"");
    EXPECT_EQ(distanceText(6, kEngineering, 1), L"6.0\"");
    EXPECT_EQ(distanceText(0, kArchitectural, 4), L"0\"");
}

TEST(DistanceText, ZeroHasNoSign) {
    for (int mode = kScientific; mode <= kFractional; ++mode) {
        EXPECT_EQ(distanceText(-0.0, mode, 3), distanceText(0.0, mode, 3));
        EXPECT_EQ(distanceText(-1e-9, mode, 3).find(L'-') == 0, mode == kScientific);
    }
}

TEST(DistanceText, TheGreatestNumbersFitAndComeBack) {
    EXPECT_EQ(distanceText(DBL_MAX, kDecimal, 8).size(), 309u + 9);
    EXPECT_EQ(distanceText(DBL_MAX, kScientific, 2), L"1.79E+308") << "1.80E+308 would be beyond any double";
    EXPECT_EQ(distanceText(-DBL_MAX, kScientific, 0), L"-1E+308");
    EXPECT_EQ(distanceText(1e21, kEngineering, 1), L"83333333333333333333'-4.0\"");
}

TEST(DistanceText, FailureLeavesAnEmptyBuffer) {
    wchar_t buffer[kKtdbBufferSize] = L"before";
    EXPECT_NE(ktdbRToS(std::nan(""), kDecimal, 2, buffer), kKtdbOk);
    EXPECT_EQ(buffer[0], L'\0');
    buffer[0] = L'x';
    EXPECT_NE(ktdbRToS(std::numeric_limits<double>::infinity(), kDecimal, 2, buffer), kKtdbOk);
    EXPECT_EQ(buffer[0], L'\0');
    buffer[0] = L'x';
    EXPECT_NE(ktdbRToS(1, 6, 2, buffer), kKtdbOk);
    EXPECT_EQ(buffer[0], L'\0');
    EXPECT_NE(ktdbRToS(1, kDecimal, 9, buffer), kKtdbOk);
    EXPECT_NE(ktdbRToS(1, 0, 2, buffer), kKtdbOk);
    EXPECT_NE(ktdbRToS(1, kDecimal, 2, nullptr), kKtdbOk);
}

TEST(DistanceText, EveryModeReadsNumbersAndFractions) {
    for (int mode = kScientific; mode <= kFractional; ++mode) {
        EXPECT_EQ(distance(L"12", mode), 12);
        EXPECT_EQ(distance(L"-5", mode), -5);
        EXPECT_EQ(distance(L"+5", mode), 5);
        EXPECT_EQ(distance(L".5", mode), 0.5);
        EXPECT_EQ(distance(L"5.", mode), 5);
        EXPECT_EQ(distance(L"1e3", mode), 1000);
        EXPECT_EQ(distance(L"1.5E-2", mode), 0.015);
        EXPECT_EQ(distance(L"3/8", mode), 0.375);
        EXPECT_EQ(distance(L"15 1/2", mode), 15.5);
        EXPECT_EQ(distance(L"15-1/2", mode), 15.5);
        EXPECT_EQ(distance(L"  7\t", mode), 7);
        EXPECT_EQ(distance(L"-15 1/2", mode), -15.5);
    }
}

TEST(DistanceText, FeetAndInchesAreReadWhereTheModeHasThem) {
    for (const int mode : {kEngineering, kArchitectural}) {
        EXPECT_EQ(distance(L"1'-2 1/2\"", mode), 14.5);
        EXPECT_EQ(distance(L"1'2-1/2\"", mode), 14.5);
        EXPECT_EQ(distance(L"1' 2.5", mode), 14.5);
        EXPECT_EQ(distance(L"1'-2.5\"", mode), 14.5);
        EXPECT_EQ(distance(L"3'", mode), 36);
        EXPECT_EQ(distance(L"6\"", mode), 6);
        EXPECT_EQ(distance(L"1'1/2\"", mode), 12.5);
        EXPECT_EQ(distance(L"1'-1/2", mode), 12.5);
        EXPECT_EQ(distance(L"1.5'", mode), 18);
        EXPECT_EQ(distance(L"-1'-6\"", mode), -18);
        EXPECT_EQ(distance(L"100'100\"", mode), 1300);
    }
    for (const int mode : {kScientific, kDecimal, kFractional})
        for (const wchar_t* text : {L"1'", L"6\"", L"1'-2\"", L"1'2"})
            EXPECT_EQ(distance(text, mode), kRefused) << mode;
}

TEST(DistanceText, WhatIsNoDistanceIsRefused) {
    for (const wchar_t* text :
         {L"",    L" ",   L"abc", L"inf",     L"nan",   L"0x10",    L"1e999",  L"-1e309", L"12abc",
          L"1 2", L"1-2", L"15-", L"3/0",     L"3/",    L"/3",      L"--5",    L"- 5",    L".",
          L"-",   L"+",   L"e5",  L"1e",      L"1.2.3", L"1.5 1/2", L"1,5",    L"1/2/3",  L"1'-",
          L"1''", L"'",   L"\"",  L"1'-2\"3", L"1\"2",  L"1'2'3\"", L"\xFF11", L"1\x00A0"})
        for (int mode = kScientific; mode <= kFractional; ++mode)
            EXPECT_EQ(distance(text, mode), kRefused) << odUtf8(text) << " in mode " << mode;
    double value = 42;
    EXPECT_NE(ktdbDisToF(L"x", kDecimal, &value), kKtdbOk);
    EXPECT_EQ(value, 42) << "a refused text leaves the value alone";
    EXPECT_NE(ktdbDisToF(nullptr, kDecimal, &value), kKtdbOk);
    EXPECT_NE(ktdbDisToF(L"1", kDecimal, nullptr), kKtdbOk);
    EXPECT_NE(ktdbDisToF(L"1", 6, &value), kKtdbOk);
    EXPECT_NE(ktdbDisToF(L"1", 0, &value), kKtdbOk);
}

TEST(DistanceText, VeryLongTextsAreReadOrRefusedWithoutHarm) {
    EXPECT_EQ(distance((L"0." + std::wstring(900, L'0') + L"1").c_str(), kDecimal), 0)
        << "too small to tell from zero";
    EXPECT_EQ(distance(std::wstring(400, L'9').c_str(), kDecimal), kRefused) << "too large";
    EXPECT_EQ(distance(std::wstring(100000, L'1').c_str(), kDecimal), kRefused);
    EXPECT_EQ(distance((std::wstring(100000, L'1') + L"'").c_str(), kArchitectural), kRefused);
    EXPECT_EQ(distance(L"1e99999999999999999999", kDecimal), kRefused);
    EXPECT_EQ(distance(L"1e-99999999999999999999", kDecimal), 0);
}

TEST(DistanceText, ALocaleWithACommaChangesNothing) {
    const std::locale before = std::locale::global(std::locale(std::locale(), new CommaNumbers));
    // Where the system has such a locale, the C library gets it too.
    for (const char* name : {"de_DE.UTF-8", "de_DE.utf8", "de_DE", "German"})
        if (std::setlocale(LC_ALL, name)) break;
    EXPECT_EQ(distanceText(1234.5, kDecimal, 2), L"1234.50");
    EXPECT_EQ(distanceText(1.5, kScientific, 2), L"1.50E+00");
    EXPECT_EQ(angleText(1.5, 3, 2), L"1.50r");
    EXPECT_EQ(distance(L"1.5", kDecimal), 1.5);
    EXPECT_EQ(distance(L"1,5", kDecimal), kRefused);
    std::locale::global(before);
    std::setlocale(LC_ALL, "C");
}

TEST(DistanceText, InchesWithAnExponentAreAddedToTheFeet) {
    EXPECT_EQ(distance(L"1'1.5e1", kArchitectural), 27);
    EXPECT_EQ(distance(L"1'1.e1", kArchitectural), 22);
    EXPECT_EQ(distance(L"2'3.25\"", kArchitectural), 27.25);
}

TEST(DistanceText, FeetAndInchesTooLongOrTooLargeAreRefused) {
    const std::wstring manyDigits(2 * kKtdbBufferSize, L'0');
    EXPECT_EQ(distance((L"1'2." + manyDigits).c_str(), kArchitectural), kRefused);
    const std::wstring beyondAnyNumber(400, L'9');
    EXPECT_EQ(distance((beyondAnyNumber + L"'2").c_str(), kArchitectural), kRefused);
}
