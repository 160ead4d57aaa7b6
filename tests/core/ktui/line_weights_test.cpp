#include <ktui/pickers/line_weights.h>

#include <gtest/gtest.h>

#include <limits>

namespace {

struct Row {
    int weight;
    const wchar_t* millimetres;
    const wchar_t* inches;
};

constexpr Row kRows[] = {
    {0, L"0.00 mm", L"0.000\""},   {5, L"0.05 mm", L"0.002\""},   {9, L"0.09 mm", L"0.004\""},
    {13, L"0.13 mm", L"0.005\""},  {15, L"0.15 mm", L"0.006\""},  {18, L"0.18 mm", L"0.007\""},
    {20, L"0.20 mm", L"0.008\""},  {25, L"0.25 mm", L"0.010\""},  {30, L"0.30 mm", L"0.012\""},
    {35, L"0.35 mm", L"0.014\""},  {40, L"0.40 mm", L"0.016\""},  {50, L"0.50 mm", L"0.020\""},
    {53, L"0.53 mm", L"0.021\""},  {60, L"0.60 mm", L"0.024\""},  {70, L"0.70 mm", L"0.028\""},
    {80, L"0.80 mm", L"0.031\""},  {90, L"0.90 mm", L"0.035\""},  {100, L"1.00 mm", L"0.039\""},
    {106, L"1.06 mm", L"0.042\""}, {120, L"1.20 mm", L"0.047\""}, {140, L"1.40 mm", L"0.055\""},
    {158, L"1.58 mm", L"0.062\""}, {200, L"2.00 mm", L"0.079\""}, {211, L"2.11 mm", L"0.083\""},
};

RECT Bar(const RECT& rect, int weight, double scale) {
    RECT bar = {};
    EXPECT_TRUE(LineWeightBar(rect, weight, scale, bar));
    return bar;
}

}  // namespace

TEST(LineWeightNames, StandInTheOrderOfTheirWeightsInBothUnits) {
    ASSERT_EQ(LineWeightNames().size(), std::size(kRows));
    for (std::size_t i = 0; i < std::size(kRows); ++i) {
        EXPECT_EQ(LineWeightNames()[i].weight, kRows[i].weight);
        EXPECT_STREQ(LineWeightText(false, kRows[i].weight), kRows[i].millimetres);
        EXPECT_STREQ(LineWeightText(true, kRows[i].weight), kRows[i].inches);
    }
}

TEST(LineWeightNames, UnknownWeightHasAnEmptyName) {
    EXPECT_STREQ(LineWeightText(false, 7), L"");
    EXPECT_STREQ(LineWeightText(true, 212), L"");
    EXPECT_STREQ(LineWeightText(true, -1), L"");
}

TEST(LineWeightBar, NoWeightIsOnePixel) {
    EXPECT_EQ(LineWeightBarThickness(20, 0, 5.0), 1);
    EXPECT_EQ(LineWeightBarThickness(20, -3, 5.0), 1);
    EXPECT_EQ(LineWeightBarThickness(20, 1, 5.0), 2);
}

TEST(LineWeightBar, SmallScaleKeepsWeightsUpTo90AtOnePixel) {
    EXPECT_EQ(LineWeightBarThickness(20, 90, 0.2), 1);
    EXPECT_EQ(LineWeightBarThickness(20, 91, 0.2), 5) << "91 * 0.3 * 40 / 211";
    EXPECT_EQ(LineWeightBarThickness(20, 90, 0.2000000001), 1);
    EXPECT_EQ(LineWeightBarThickness(20, 90, 0.2000000002), 5);
}

TEST(LineWeightBar, ThinWeightsDoubleFromFullScaleOn) {
    EXPECT_EQ(LineWeightBarThickness(20, 25, 1.0), 2);
    EXPECT_EQ(LineWeightBarThickness(20, 25, 0.9999999999), 2);
    EXPECT_EQ(LineWeightBarThickness(20, 25, 0.9999999998), 1);
    EXPECT_EQ(LineWeightBarThickness(20, 25, 0.5), 1);
    EXPECT_EQ(LineWeightBarThickness(20, 26, 0.5), 2) << "26 * 0.6 * 40 / 211 is 2.96";
    EXPECT_EQ(LineWeightBarThickness(20, 26, 1.0), 5) << "a heavy weight goes by its own rule";
}

TEST(LineWeightBar, HeavyWeightsGrowWithTheHeight) {
    EXPECT_EQ(LineWeightBarThickness(10, 30, 0.5), 2) << "1 raised to 2";
    EXPECT_EQ(LineWeightBarThickness(20, 30, 0.5), 3);
    EXPECT_EQ(LineWeightBarThickness(20, 100, 0.5), 11);
    EXPECT_EQ(LineWeightBarThickness(20, 211, 0.5), 20) << "24 cut to 20";
    EXPECT_EQ(LineWeightBarThickness(20, 211, 0.39), 19) << "19.6";
    EXPECT_EQ(LineWeightBarThickness(20, 211, 0.41), 20);
}

TEST(LineWeightBar, HeavyWeightIsTwoPixelsEvenInALowerRectangle) {
    EXPECT_EQ(LineWeightBarThickness(1, 30, 0.5), 2);
    EXPECT_EQ(LineWeightBarThickness(0, 211, 0.5), 2);
    EXPECT_EQ(LineWeightBarThickness(1, 211, 5.0), 1) << "10 cut to 1";
}

TEST(LineWeightBar, ExtremeScalesStayInside) {
    EXPECT_EQ(LineWeightBarThickness(20, 211, 1e300), 20);
    EXPECT_EQ(LineWeightBarThickness(20, 211, -1e300), 2);
    EXPECT_EQ(LineWeightBarThickness(20, 211, std::numeric_limits<double>::quiet_NaN()), 20);
}

TEST(LineWeightBar, FillsTheWidthAndIsCentred) {
    const RECT bar = Bar(RECT{3, 10, 47, 20}, 30, 0.5);
    EXPECT_EQ(bar.left, 3);
    EXPECT_EQ(bar.right, 47);
    EXPECT_EQ(bar.top, 14);
    EXPECT_EQ(bar.bottom, 16);
    const RECT odd = Bar(RECT{3, 10, 47, 20}, 0, 0.5);
    EXPECT_EQ(odd.top, 15) << "(10 - 1) / 2 rounds up";
    EXPECT_EQ(odd.bottom, 16);
}

TEST(LineWeightBar, RectangleWithoutHeightStillShowsOneRow) {
    const RECT thin = Bar(RECT{0, 10, 5, 10}, 1, 0.5);
    EXPECT_EQ(thin.top, 10);
    EXPECT_EQ(thin.bottom, 11);
    const RECT heavy = Bar(RECT{0, 10, 5, 10}, 211, 0.5);
    EXPECT_EQ(heavy.top, 10) << "-0.5 is cut towards 0";
    EXPECT_EQ(heavy.bottom, 12);
}

TEST(LineWeightBar, NegativeHeightHasNoBar) {
    RECT bar = {1, 2, 3, 4};
    EXPECT_FALSE(LineWeightBar(RECT{0, 10, 5, 9}, 30, 0.5, bar));
    EXPECT_EQ(bar.top, 2);
    EXPECT_EQ(bar.bottom, 4);
}
