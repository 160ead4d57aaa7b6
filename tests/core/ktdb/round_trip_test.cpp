// Format, read, format again: the same text, for every value, mode and precision.
#include <gtest/gtest.h>

#include <cfloat>
#include <cmath>
#include <cstring>
#include <random>
#include <vector>

#include "number_cases.h"

namespace {

constexpr int kRandomValues = 20000;

/// Values at the edges of rounding and of the number range.
std::vector<double> edgeValues() {
    std::vector<double> values = {0.0,
                                  -0.0,
                                  1.0,
                                  0.5,
                                  11.9999,
                                  11.99999999,
                                  12.0,
                                  11.5,
                                  143.999,
                                  1e15,
                                  1e16,
                                  9007199254740993.0,
                                  1e22,
                                  1e100,
                                  1e300,
                                  DBL_MAX,
                                  DBL_MIN,
                                  5e-324,
                                  1e-300,
                                  0.1,
                                  1.0 / 3,
                                  2.0 / 3,
                                  359.99996,
                                  6.283185307179586,
                                  3.141592653589793,
                                  1.5707963267948966,
                                  0.00390625,
                                  0.001953125,
                                  4503599627370495.5,
                                  4503599627370496.0,
                                  99999999.999999995};
    for (std::size_t i = 0, count = values.size(); i < count; ++i) {
        values.push_back(std::nextafter(values[i], 1e308));
        values.push_back(std::nextafter(values[i], -1e308));
        values.push_back(-values[i]);
    }
    std::vector<double> finite;
    for (const double value : values)
        if (std::isfinite(value)) finite.push_back(value);
    return finite;
}

/// Any bit pattern, and numbers as drawings have them.
double randomValue(std::mt19937_64& random, int number) {
    std::uniform_real_distribution<double> usual(-10000, 10000);
    if (number % 2) return usual(random);
    for (;;) {
        const std::uint64_t bits = random();
        double value;
        std::memcpy(&value, &bits, sizeof value);
        if (std::isfinite(value)) return value;
    }
}

void expectDistanceStable(double value, int mode, int precision) {
    const std::wstring first = distanceText(value, mode, precision);
    double back = 0;
    ASSERT_EQ(ktdbDisToF(first.c_str(), mode, &back), kKtdbOk) << odUtf8(first);
    ASSERT_EQ(distanceText(back, mode, precision), first)
        << value << " mode " << mode << " precision " << precision;
}

void expectAngleStable(double value, int mode, int precision) {
    const std::wstring first = angleText(value, mode, precision);
    double back = 0;
    ASSERT_EQ(ktdbAngToF2(1, first.c_str(), mode, &back), kKtdbOk) << odUtf8(first);
    ASSERT_EQ(angleText(back, mode, precision), first)
        << value << " mode " << mode << " precision " << precision;
}

}  // namespace

TEST(RoundTrip, DistancesAtTheEdges) {
    for (const double value : edgeValues())
        for (int mode = 1; mode <= 5; ++mode)
            for (int precision = 0; precision <= 8; ++precision) expectDistanceStable(value, mode, precision);
}

TEST(RoundTrip, AnglesAtTheEdges) {
    for (const double value : edgeValues())
        for (int mode = 0; mode <= 4; ++mode)
            for (int precision = 0; precision <= 8; ++precision) expectAngleStable(value, mode, precision);
}

TEST(RoundTrip, RandomDistances) {
    std::mt19937_64 random(20240611);
    for (int i = 0; i < kRandomValues; ++i) {
        const double value = randomValue(random, i);
        const int precision = static_cast<int>(random() % 9);
        for (int mode = 1; mode <= 5; ++mode) expectDistanceStable(value, mode, precision);
    }
}

TEST(RoundTrip, RandomAngles) {
    std::mt19937_64 random(20240612);
    for (int i = 0; i < kRandomValues; ++i) {
        const double value = randomValue(random, i);
        const int precision = static_cast<int>(random() % 9);
        for (int mode = 0; mode <= 4; ++mode) expectAngleStable(value, mode, precision);
    }
}

TEST(RoundTrip, WhatIsShownIsTheValueRoundedToThePlacesShown) {
    std::mt19937_64 random(20240613);
    std::uniform_real_distribution<double> usual(-1000, 1000);
    for (int i = 0; i < 2000; ++i) {
        const double value = usual(random);
        for (int precision = 0; precision <= 8; ++precision) {
            const double step = std::pow(10.0, -precision);
            EXPECT_NEAR(distance(distanceText(value, 2, precision).c_str(), 2), value, step * 0.500001);
            EXPECT_NEAR(distance(distanceText(value, 3, precision).c_str(), 3), value, step * 0.500001);
            const double part = std::ldexp(1.0, -precision);
            EXPECT_NEAR(distance(distanceText(value, 4, precision).c_str(), 4), value, part * 0.500001);
            EXPECT_NEAR(distance(distanceText(value, 5, precision).c_str(), 5), value, part * 0.500001);
        }
    }
}

TEST(RoundTrip, TheSmallestNumbersComeBackAsTheyWereWritten) {
    EXPECT_EQ(distanceText(distance(L"1.0E-322", 1), 1, 1), L"1.0E-322");
    EXPECT_EQ(distanceText(distance(L"1.0e-322", 1), 1, 1), L"1.0E-322");
    EXPECT_EQ(distanceText(distance(L"-1.0E-322", 1), 1, 1), L"-1.0E-322");
    double value = 0;
    for (int i = 0; i < 5000; ++i) {
        for (int precision = 0; precision <= 8; ++precision) expectDistanceStable(value, 1, precision);
        value = std::nextafter(value, 1.0);
    }
}

TEST(RoundTrip, ASmallNumberThatNoTextIsWrittenForIsTheNearest) {
    EXPECT_EQ(distance(L"7E-324", 1), 5e-324);
    EXPECT_EQ(distance(L"100.0E-324", 1), 20 * 5e-324);
    EXPECT_EQ(distance(L"1E-322", 1), 20 * 5e-324);
    EXPECT_EQ(distance(L"1.00E-307", 1), 1e-307);
}

TEST(RoundTrip, EveryPowerOfTenBelowTheNormalNumbersIsStable) {
    for (int exponent = -324; exponent <= -300; ++exponent) {
        const double power = std::pow(10.0, exponent);
        for (const double value : {power, std::nextafter(power, 1.0), std::nextafter(power, 0.0)})
            for (int precision = 0; precision <= 8; ++precision) expectDistanceStable(value, 1, precision);
    }
}
