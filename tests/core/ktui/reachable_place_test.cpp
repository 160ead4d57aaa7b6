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

TEST(ReachablePlace, TheAreaThatIsSharedCountsNotTheLengthOfItsSides) {
    // 100 by 100 on one, 300 by 20 on the other.
    const std::vector<CRect> areas = {CRect(0, 0, 1000, 100), CRect(1000, 80, 2000, 200)};
    EXPECT_EQ(NearestArea(CRect(900, 0, 1300, 100), areas), &areas[0]);
}

TEST(ReachablePlace, OfScreensThatShowNothingTheNearestInBothDirectionsCounts) {
    // To the left and the right by 100, above and below by 100: what is nearer in one direction decides.
    const CRect place(2000, 2000, 2100, 2100);
    const auto nearest = [&](const CRect& one, const CRect& other) {
        const std::vector<CRect> areas = {one, other};
        const CRect* found = NearestArea(place, areas);
        return static_cast<int>(found - areas.data());
    };
    const CRect left(1000, 2000, 1800, 2100), right(2190, 2000, 3000, 2100);
    const CRect above(2000, 1000, 2100, 1790), below(2000, 2280, 2100, 3000);
    EXPECT_EQ(nearest(left, right), 1) << "90 to the right, 200 to the left";
    EXPECT_EQ(nearest(right, left), 0);
    EXPECT_EQ(nearest(above, below), 1) << "180 below, 210 above";
    EXPECT_EQ(nearest(left, above), 0);
    EXPECT_EQ(nearest(right, below), 0);
    // Both ways count: 60 and 60 are farther than 0 and 100.
    EXPECT_EQ(nearest(CRect(2160, 2160, 3000, 3000), CRect(2200, 2000, 3000, 2100)), 1);
    EXPECT_EQ(nearest(CRect(1000, 1000, 1940, 1940), CRect(1000, 2000, 1900, 2100)), 1);
    EXPECT_EQ(nearest(CRect(2100, 2000, 3000, 2100), CRect(1000, 1000, 2001, 2001)), 1)
        << "one pixel is shared";
    // A screen that touches is nearer than any gap, though it shows nothing.
    EXPECT_EQ(nearest(CRect(2101, 2000, 3000, 2100), CRect(2100, 2000, 3000, 2100)), 1);
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
