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

TEST(Contrast, AGreyJustReadableOnWhiteIsTakenAndAPalerOneIsNot) {
    const COLORREF white = RGB(255, 255, 255), fallback = RGB(1, 2, 3);
    EXPECT_EQ(ReadableColor(RGB(118, 118, 118), white, kTextContrast, fallback), RGB(118, 118, 118));
    EXPECT_EQ(ReadableColor(RGB(120, 120, 120), white, kTextContrast, fallback), fallback);
    EXPECT_EQ(ReadableColor(RGB(120, 120, 120), white, kMarkContrast, fallback), RGB(120, 120, 120));
}
