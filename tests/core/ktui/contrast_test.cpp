#include <ktui/host/contrast.h>

#include <gtest/gtest.h>

TEST(Contrast, OfBlackAndWhiteIsTheGreatest) {
    EXPECT_NEAR(ContrastRatio(RGB(0, 0, 0), RGB(255, 255, 255)), 21, 1e-9);
    EXPECT_NEAR(ContrastRatio(RGB(255, 255, 255), RGB(0, 0, 0)), 21, 1e-9);
    EXPECT_DOUBLE_EQ(ContrastRatio(RGB(9, 99, 199), RGB(9, 99, 199)), 1);
}

TEST(Contrast, WeighsGreenMostAndBlueLeast) {
    const COLORREF black = RGB(0, 0, 0);
    EXPECT_NEAR(ContrastRatio(RGB(255, 0, 0), black), 5.252, 0.001);
    EXPECT_NEAR(ContrastRatio(RGB(0, 255, 0), black), 15.304, 0.001);
    EXPECT_NEAR(ContrastRatio(RGB(0, 0, 255), black), 2.444, 0.001);
}

TEST(Contrast, OfDarkColorsGrowsEvenlyAtFirstAndByAPowerThen) {
    // (v / 255 / 12.92 + 0.05) / 0.05, up to a share of 0.03928, which is 10 of 255.
    const COLORREF black = RGB(0, 0, 0);
    EXPECT_NEAR(ContrastRatio(RGB(4, 4, 4), black), 1.02428, 1e-5);
    EXPECT_NEAR(ContrastRatio(RGB(10, 10, 10), black), 1.06071, 1e-5);
    // ((v / 255 + 0.055) / 1.055) to the power of 2.4 from there on.
    EXPECT_NEAR(ContrastRatio(RGB(11, 11, 11), black), 1.06693, 1e-5);
    EXPECT_NEAR(ContrastRatio(RGB(40, 40, 40), black), 1.42438, 1e-5);
}

TEST(Contrast, AGreyJustReadableOnWhiteIsTakenAndAPalerOneIsNot) {
    const COLORREF white = RGB(255, 255, 255), fallback = RGB(1, 2, 3);
    EXPECT_EQ(ReadableColor(RGB(118, 118, 118), white, kTextContrast, fallback), RGB(118, 118, 118));
    EXPECT_EQ(ReadableColor(RGB(120, 120, 120), white, kTextContrast, fallback), fallback);
    EXPECT_EQ(ReadableColor(RGB(120, 120, 120), white, kMarkContrast, fallback), RGB(120, 120, 120));
}
