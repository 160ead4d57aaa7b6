// Every rule of the strip's arithmetic by numbers.
#include <ktui/docking/tab_strip_layout.h>

#include <gtest/gtest.h>

#include <random>
#include <tuple>

namespace {

using namespace strip;

constexpr TabSizes kSizes = {16, 120, 17};

void expectRange(TabRange range, int first, int last) {
    EXPECT_EQ(range.first, first);
    EXPECT_EQ(range.last, last);
}

void expectRect(const CRect& rect, int left, int top, int right, int bottom) {
    EXPECT_TRUE(rect == CRect(left, top, right, bottom))
        << rect.left << ' ' << rect.top << ' ' << rect.right << ' ' << rect.bottom;
}

using Points = std::vector<std::pair<long, long>>;
Points pointsOf(const Outline& outline) {
    Points points;
    for (const POINT& each : outline) points.emplace_back(each.x, each.y);
    return points;
}

/// Fits a range that starts as `from`.
TabRange fitted(TabRange from, int active, int count, int fit) { return FitRange(from, active, count, fit); }

}  // namespace

TEST(TabStripStyle, PlacementsOneAndTwoStandOnTheirSide) {
    for (const UINT others : {0u, 4u, 8u, 0x1000001Cu}) {
        EXPECT_FALSE(IsTurned(others | 0));
        EXPECT_TRUE(IsTurned(others | 1));
        EXPECT_TRUE(IsTurned(others | 2));
        EXPECT_FALSE(IsTurned(others | 3));
    }
}

TEST(TabStripStyle, OnlyPlacementOneStandsAtTheLeft) {
    EXPECT_FALSE(IsAtLeft(0x1C));
    EXPECT_TRUE(IsAtLeft(0x1D));
    EXPECT_FALSE(IsAtLeft(0x1E));
    EXPECT_FALSE(IsAtLeft(0x1F)) << "it doesn't stand on its side";
}

TEST(TabStripStyle, OnlyPlacementTwoHangsDown) {
    EXPECT_FALSE(IsOverturned(0x1C));
    EXPECT_FALSE(IsOverturned(0x1D));
    EXPECT_TRUE(IsOverturned(0x1E));
    EXPECT_FALSE(IsOverturned(0x1F));
}

TEST(TabStripSize, AnEmptyOrEnormousClientIsNotLaidOut) {
    EXPECT_TRUE(CanBeLaidOut(CSize(1, 1)));
    EXPECT_TRUE(CanBeLaidOut(CSize(4096, 4096)));
    EXPECT_FALSE(CanBeLaidOut(CSize(0, 10)));
    EXPECT_FALSE(CanBeLaidOut(CSize(10, 0)));
    EXPECT_FALSE(CanBeLaidOut(CSize(4097, 10)));
    EXPECT_FALSE(CanBeLaidOut(CSize(10, 4097)));
    EXPECT_FALSE(CanBeLaidOut(CSize(-1, 10)));
}

TEST(TabStripSize, TabsGetFourFifthsLessTheArrows) {
    EXPECT_EQ(AvailableWidth(500, 16), 384);
    EXPECT_EQ(AvailableWidth(499, 16), 383) << "1996 / 5 is cut off";
    EXPECT_EQ(AvailableWidth(501, 16), 384);
    EXPECT_EQ(AvailableWidth(4, 16), -13);
}

TEST(TabStripSize, ATabAsksForItsTextAndBothMarginsAtLeastForTheMinimum) {
    EXPECT_EQ(WantedWidth(10, 6, 60), 60);
    EXPECT_EQ(WantedWidth(48, 6, 60), 60);
    EXPECT_EQ(WantedWidth(49, 6, 60), 61);
}

TEST(TabStripRange, GrowsAtTheEndFirstWhenTheActiveTabLiesInTheFirstHalf) {
    expectRange(fitted({3, 3}, 3, 7, 2), 3, 4);
    expectRange(fitted({3, 3}, 3, 7, 3), 2, 4);
    expectRange(fitted({3, 3}, 3, 7, 4), 2, 5);
    expectRange(fitted({3, 3}, 3, 7, 7), 0, 6);
}

TEST(TabStripRange, GrowsAtTheStartFirstWhenTheActiveTabLiesInTheSecondHalf) {
    expectRange(fitted({4, 4}, 4, 7, 2), 3, 4);
    expectRange(fitted({4, 4}, 4, 7, 3), 3, 5);
}

TEST(TabStripRange, TheMiddleCountsToTheFirstHalf) {
    expectRange(fitted({3, 3}, 3, 6, 2), 3, 4);
    expectRange(fitted({4, 4}, 4, 6, 2), 3, 4);
}

TEST(TabStripRange, GrowsOnAtTheOtherSideWhereOneIsExhausted) {
    expectRange(fitted({0, 1}, 0, 6, 4), 0, 3);
    expectRange(fitted({4, 5}, 5, 6, 4), 2, 5);
}

TEST(TabStripRange, StopsGrowingWhenAllTabsAreVisible) {
    expectRange(fitted({1, 2}, 1, 4, 100), 0, 3);
    expectRange(fitted({0, 3}, 0, 4, 100), 0, 3);
}

TEST(TabStripRange, ShrinksAtItsEndUntilTheActiveTabStandsThere) {
    expectRange(fitted({0, 6}, 0, 7, 3), 0, 2);
    expectRange(fitted({0, 6}, 2, 7, 3), 0, 2);
    expectRange(fitted({0, 6}, 3, 7, 3), 1, 3);
    expectRange(fitted({0, 6}, 6, 7, 3), 4, 6);
}

TEST(TabStripRange, NeverGivesUpTheActiveTab) {
    expectRange(fitted({0, 6}, 4, 7, 0), 4, 4);
    for (int active = 0; active < 7; ++active)
        EXPECT_TRUE(fitted({0, 6}, active, 7, 3).holds(active)) << active;
}

TEST(TabStripRange, MovesToAnActiveTabOutsideOfIt) {
    expectRange(fitted({0, 2}, 5, 7, 3), 3, 5);
    expectRange(fitted({4, 6}, 1, 7, 3), 1, 3);
    expectRange(fitted({0, 2}, 7, 7, 3), 0, 2);
    expectRange(fitted({0, 2}, -1, 7, 3), 0, 2);
}

TEST(TabStripRange, StaysAsItIsWhenItFits) { expectRange(fitted({2, 4}, 3, 7, 3), 2, 4); }

TEST(TabStripRange, IsEmptyWhenNothingFitsAndTheActiveTabIsGone) {
    const TabRange none = fitted({0, 1}, 2, 2, 0);
    EXPECT_EQ(none.count(), 0);
    expectRange(fitted(none, 2, 2, 2), 0, 1);
}

TEST(TabStripRange, ComesBackIntoAListThatGotShorter) {
    expectRange(RangeWithin({0, 6}, 5), 0, 4);
    expectRange(RangeWithin({3, 6}, 2), 2, 1);
    expectRange(RangeWithin({0, 0}, 0), 0, -1);
    expectRange(RangeWithin({1, 2}, 7), 1, 2);
    expectRange(RangeWithin({-2, 2}, 7), 0, 2);
}

TEST(TabStripRange, WhateverItStartsFromItStaysInTheListAndReachesWhatFits) {
    std::mt19937 random(7);
    for (int round = 0; round < 20000; ++round) {
        const int count = 1 + static_cast<int>(random() % 12);
        const int active = static_cast<int>(random() % static_cast<unsigned>(count));
        const int first = static_cast<int>(random() % static_cast<unsigned>(count));
        const int last = first + static_cast<int>(random() % static_cast<unsigned>(count - first));
        const int fit = static_cast<int>(random() % 14);
        const TabRange range = fitted({first, last}, active, count, fit);
        ASSERT_GE(range.first, 0);
        ASSERT_LT(range.last, count);
        ASSERT_TRUE(range.holds(active));
        ASSERT_EQ(range.count(), std::max(1, std::min(fit, count)));
    }
}

TEST(TabStripPlaces, FewTabsGetTheLargestWidthFromTheRightEnd) {
    const PlacedTabs placed = PlaceTabs({0, 1}, 2, 400, kSizes);
    ASSERT_EQ(placed.tabs.size(), 2u);
    expectRect(placed.tabs[0], 160, 0, 280, 17);
    expectRect(placed.tabs[1], 280, 0, 400, 17);
    EXPECT_TRUE(placed.arrows.IsRectNull());
}

TEST(TabStripPlaces, ManyTabsShareWhatIsAvailable) {
    const PlacedTabs placed = PlaceTabs({0, 2}, 3, 400, kSizes);
    ASSERT_EQ(placed.tabs.size(), 3u);  // 304 available, 101 each
    expectRect(placed.tabs[0], 97, 0, 198, 17);
    expectRect(placed.tabs[1], 198, 0, 299, 17);
    expectRect(placed.tabs[2], 299, 0, 400, 17);
}

TEST(TabStripPlaces, TheLargestWidthHoldsWhileAllOfThemFit) {
    // 4 * 470 / 5 - 16 = 360 is three times 120; one pixel less is shared.
    EXPECT_EQ(PlaceTabs({0, 2}, 3, 470, kSizes).tabs[2].Width(), 120);
    EXPECT_EQ(PlaceTabs({0, 2}, 3, 468, kSizes).tabs[2].Width(), 119);
}

TEST(TabStripPlaces, TheArrowsLieLeftOfTheFirstVisibleTab) {
    const PlacedTabs placed = PlaceTabs({2, 4}, 7, 250, kSizes);  // 184 available, 61 each
    ASSERT_EQ(placed.tabs.size(), 3u);
    expectRect(placed.tabs[0], 67, 0, 128, 17);
    expectRect(placed.arrows, 51, 0, 67, 17);
}

TEST(TabStripPlaces, WithoutAVisibleTabThereAreOnlyArrows) {
    const PlacedTabs placed = PlaceTabs({0, -1}, 2, 10, kSizes);
    EXPECT_TRUE(placed.tabs.empty());
    expectRect(placed.arrows, -6, 0, 10, 17);
}

TEST(TabStripOutline, CutsTheCornersAwayFromTheBase) {
    EXPECT_EQ(pointsOf(OutlineOf(CRect(10, 0, 70, 17), false)),
              (Points{{10, 17}, {10, 3}, {13, 0}, {66, 0}, {69, 3}, {69, 17}}));
}

TEST(TabStripOutline, IsTurnedOverInPlacementTwo) {
    EXPECT_EQ(pointsOf(OutlineOf(CRect(10, 0, 70, 17), true)),
              (Points{{10, 0}, {10, 14}, {13, 17}, {66, 17}, {69, 14}, {69, 0}}));
}

TEST(TabStripTurned, PointsRunFromTheLowerEndAndBack) {
    EXPECT_TRUE(Turned(CPoint(5, 30), 200) == CPoint(170, 5));
    EXPECT_TRUE(Turned(CPoint(0, 200), 200) == CPoint(0, 0));
}

TEST(TabStripTurned, RectanglesComeBackToTheWindow) {
    expectRect(TurnedBack(CRect(80, 1, 200, 17), 200), 1, 0, 17, 120);
    expectRect(TurnedBack(CRect(0, 0, 20, 17), 200), 0, 180, 17, 200);
}

TEST(TabStripHit, MeetsAVisibleTabThenTheArrows) {
    int index = 77;
    const auto all = [](int) { return true; };
    const auto none = [](int) { return false; };
    const CRect arrows(10, 0, 26, 17);
    EXPECT_EQ(HitTarget(CPoint(12, 5), {2, 4}, arrows, all, index), Target::Tab);
    EXPECT_EQ(index, 2) << "the first of those shown";
    EXPECT_EQ(HitTarget(
                  CPoint(12, 5), {2, 4}, arrows, [](int tab) { return tab == 4; }, index),
              Target::Tab);
    EXPECT_EQ(index, 4);
    EXPECT_EQ(HitTarget(
                  CPoint(12, 5), {2, 4}, arrows, [](int tab) { return tab == 5 || tab == 1; }, index),
              Target::Arrows)
        << "hidden tabs don't count";
    EXPECT_EQ(index, -1);
    index = 77;
    EXPECT_EQ(HitTarget(CPoint(26, 5), {2, 4}, arrows, none, index), Target::Nothing);
    EXPECT_EQ(index, 77) << "left alone";
    EXPECT_EQ(static_cast<int>(Target::Tab), 1);
    EXPECT_EQ(static_cast<int>(Target::Arrows), 2);
}

TEST(TabStripRemoving, TheTabBeforeTheRemovedActiveOneBecomesActive) {
    EXPECT_EQ(ActiveAfterRemoving(3, 3), 2);
    EXPECT_EQ(ActiveAfterRemoving(0, 0), 0);
    EXPECT_EQ(ActiveAfterRemoving(3, 1), 3) << "the index stays";
    EXPECT_EQ(ActiveAfterRemoving(1, 3), 1);
}
