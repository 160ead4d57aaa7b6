// Where a window goes that no screen shows any more.
#include <ktui/host/reachable_place.h>

#include <gtest/gtest.h>

#include <random>

namespace {

const std::vector<CRect> kOne = {CRect(0, 0, 1000, 700)};
const std::vector<CRect> kTwo = {CRect(0, 0, 1000, 700), CRect(1000, -200, 2600, 1000)};

}  // namespace

TEST(ReachablePlace, AWindowGoesInsideByTheShortestWay) {
    const RECT area = kOne[0];
    EXPECT_EQ(CornerInside(CRect(100, 100, 300, 300), area), CPoint(100, 100));
    EXPECT_EQ(CornerInside(CRect(900, 650, 1100, 850), area), CPoint(800, 500));
    EXPECT_EQ(CornerInside(CRect(-50, -60, 150, 140), area), CPoint(0, 0));
    EXPECT_EQ(CornerInside(CRect(800, 500, 1000, 700), area), CPoint(800, 500));
    // One that is larger begins at the corner.
    EXPECT_EQ(CornerInside(CRect(-300, 900, 1700, 2900), area), CPoint(0, 0));
}

TEST(ReachablePlace, ACaptionCanBeGrabbedByEightyPixelsOfItsWholeHeight) {
    EXPECT_TRUE(CanBeGrabbed(CRect(920, 0, 1120, 20), kOne));
    EXPECT_FALSE(CanBeGrabbed(CRect(921, 0, 1121, 20), kOne));
    EXPECT_TRUE(CanBeGrabbed(CRect(-120, 680, 80, 700), kOne));
    EXPECT_FALSE(CanBeGrabbed(CRect(-121, 680, 79, 700), kOne));
    EXPECT_FALSE(CanBeGrabbed(CRect(100, -1, 300, 19), kOne));
    EXPECT_FALSE(CanBeGrabbed(CRect(100, 681, 300, 701), kOne));
    // A narrow one has to show whole.
    EXPECT_TRUE(CanBeGrabbed(CRect(960, 0, 1000, 20), kOne));
    EXPECT_FALSE(CanBeGrabbed(CRect(961, 0, 1001, 20), kOne));
    EXPECT_FALSE(CanBeGrabbed(CRect(100, 100, 100, 120), kOne));
    EXPECT_FALSE(CanBeGrabbed(CRect(100, 100, 300, 100), kOne));
    EXPECT_FALSE(CanBeGrabbed(CRect(100, 100, 300, 120), {}));
}

TEST(ReachablePlace, HalvesOnTwoScreensDoNotAddUp) {
    EXPECT_FALSE(CanBeGrabbed(CRect(940, 0, 1060, 20), kTwo));
    EXPECT_TRUE(CanBeGrabbed(CRect(940, 0, 1080, 20), kTwo));
    EXPECT_TRUE(CanBeGrabbed(CRect(1200, -200, 1400, -180), kTwo));
}

TEST(ReachablePlace, TheScreenThatShowsMostIsTheNearest) {
    EXPECT_EQ(NearestArea(CRect(900, 0, 1050, 100), kTwo), &kTwo[0]);
    EXPECT_EQ(NearestArea(CRect(950, 0, 1150, 100), kTwo), &kTwo[1]);
    EXPECT_EQ(NearestArea(CRect(-500, 0, -400, 100), kTwo), &kTwo[0]);
    EXPECT_EQ(NearestArea(CRect(5000, 5000, 5100, 5100), kTwo), &kTwo[1]);
    EXPECT_EQ(NearestArea(CRect(0, 0, 10, 10), {}), nullptr);
}

TEST(ReachablePlace, WhatWasBroughtInsideCanBeGrabbed) {
    constexpr unsigned kSeed = 20261123;
    std::mt19937 random(kSeed);
    const auto any = [&](int low, int high) { return std::uniform_int_distribution<int>(low, high)(random); };
    for (int i = 0; i < 2000; ++i) {
        const CRect place(CPoint(any(-9000, 9000), any(-9000, 9000)), CSize(any(20, 3000), any(30, 2000)));
        const CRect* area = NearestArea(place, kTwo);
        const CPoint corner = CornerInside(place, *area);
        EXPECT_TRUE(CanBeGrabbed(CRect(corner, CSize(std::min<int>(place.Width(), area->Width()), 24)), kTwo))
            << "seed " << kSeed << ", window " << i;
    }
}
