// Panes brought from one layout into another, taken out of one, and a layout as the framework's numbers.
#include <ktui/docking/layout_merge.h>
#include <ktui/docking/layout_numbers.h>

#include <gtest/gtest.h>

#include "random_layout.h"

namespace {

using namespace layouts;

Tree leaf(unsigned id, bool shown = true) {
    Tree tree;
    tree.id = id;
    tree.shown = shown;
    return tree;
}

Tree split(bool upright, int share, Tree first, Tree second) {
    Tree tree;
    tree.upright = upright;
    tree.share = share;
    tree.halves = {std::move(first), std::move(second)};
    return tree;
}

/// Without what the numbers don't carry.
Record bare(Record record) {
    record.panes.clear();
    return record;
}

Record three() {
    Record record;
    record.rows = {{Side::left, 200, split(false, 300000, leaf(1), split(true, 600000, leaf(2), leaf(3)))}};
    return record;
}

}  // namespace

TEST(LayoutMerge, EveryPaneTakenOutComesBackToItsPlace) {
    for (unsigned id = 1; id <= 3; ++id) {
        Record without = three();
        Remove(without, {id});
        EXPECT_EQ(PlacedPanes(without).count(id), 0u);
        Bring(three(), {id}, without);
        EXPECT_TRUE(without == three()) << id;
    }
}

TEST(LayoutMerge, RandomLayoutsLoseOnePaneAndGetItBack) {
    random_layout::Maker maker(random_layout::kSeed);
    for (int i = 0; i < 300; ++i) {
        const Record whole = maker.make(9);
        for (const unsigned id : PlacedPanes(whole)) {
            Record without = whole;
            Remove(without, {id});
            Record again = without;
            Bring(whole, {id}, again);
            ASSERT_EQ(PlacedPanes(again), PlacedPanes(whole))
                << "seed " << random_layout::kSeed << ", layout " << i << ", pane " << id;
            // What was there before stands in the same rows, of the same extent.
            Remove(again, {id});
            Tidy(again);
            Tidy(without);
            ASSERT_EQ(again.rows.size(), without.rows.size()) << "layout " << i << ", pane " << id;
            ASSERT_TRUE(again.rows == without.rows) << "layout " << i << ", pane " << id;
            ASSERT_TRUE(again.frames == without.frames) << "layout " << i << ", pane " << id;
        }
    }
}

TEST(LayoutMerge, ARowOfItsOwnStandsWhereItStood) {
    Record from;
    from.rows = {{Side::left, 100, leaf(1)}, {Side::bottom, 50, leaf(2)}, {Side::left, 80, leaf(3)}};
    for (unsigned id = 1; id <= 3; ++id) {
        Record into = from;
        Remove(into, {id});
        Bring(from, {id}, into);
        EXPECT_TRUE(into == from) << id;
    }
    Record empty;
    Bring(from, {2}, empty);
    ASSERT_EQ(empty.rows.size(), 1u);
    EXPECT_TRUE(empty.rows[0] == from.rows[1]);
}

TEST(LayoutMerge, ARowWhoseNeighboursAreUnknownGoesInnermost) {
    Record from, into;
    from.rows = {{Side::right, 70, leaf(9)}};
    into.rows = {{Side::left, 100, leaf(1)}, {Side::top, 50, leaf(2)}};
    Bring(from, {9}, into);
    ASSERT_EQ(into.rows.size(), 3u);
    EXPECT_TRUE(into.rows[2] == from.rows[0]);
}

TEST(LayoutMerge, ATabComesBackBetweenItsNeighbours) {
    Record from;
    from.rows = {{Side::left, 200, leaf(kFirstGroup)}};
    from.groups = {{kFirstGroup, 2, {{1, true}, {2, true}, {3, false}}}};
    for (unsigned id = 1; id <= 3; ++id) {
        Record into = from;
        Remove(into, {id});
        EXPECT_EQ(into.groups[0].tabs.size(), 2u);
        Bring(from, {id}, into);
        EXPECT_TRUE(into == from) << id;
    }
    Record one = from;
    Remove(one, {1, 2});
    ASSERT_TRUE(one.groups.empty());
    EXPECT_EQ(one.rows[0].panes.id, 3u);
    Bring(from, {1, 2}, one);
    ASSERT_EQ(one.groups.size(), 1u);
    EXPECT_EQ(one.groups[0].tabs[0].pane, 1u);
    EXPECT_EQ(one.groups[0].active, 2u);
}

TEST(LayoutMerge, ATabWhoseMatesAreGoneStandsAlone) {
    Record from, into;
    from.rows = {{Side::left, 200, split(true, 250000, leaf(kFirstGroup), leaf(5))}};
    from.groups = {{kFirstGroup, 2, {{1, true}, {2, true}}}};
    into.rows = {{Side::right, 90, leaf(kFirstGroup)}, {Side::left, 120, leaf(5)}};
    into.groups = {{kFirstGroup, 8, {{7, true}, {8, true}}}};
    Bring(from, {1}, into);
    ASSERT_EQ(into.rows.size(), 2u);
    EXPECT_TRUE(into.rows[1].panes == split(true, 250000, leaf(1), leaf(5)));
    EXPECT_EQ(into.groups[0].tabs.size(), 2u);
}

TEST(LayoutMerge, AFloatingPaneKeepsBothPlaces) {
    Record from;
    from.rows = {{Side::left, 200, leaf(4, false)}};
    from.frames = {{CRect(10, 20, 210, 320), leaf(4)}};
    from.panes = {{4, L"Four", CRect(10, 20, 210, 320), 1}};
    Record into;
    Bring(from, {4, 77}, into);
    EXPECT_TRUE(into == from);
    Bring(from, {4}, into);
    EXPECT_TRUE(into == from);
}

TEST(LayoutMerge, WhatHidTogetherWithTabsHidesAlone) {
    Record from, into;
    Tree hiding = leaf(kFirstGroup);
    hiding.hides = true;
    hiding.size = CSize(30, 40);
    from.rows = {{Side::left, 200, hiding}};
    from.groups = {{kFirstGroup, 1, {{1, true}, {2, false}}}};
    Bring(from, {1}, into);
    EXPECT_TRUE(into.rows[0].panes.hides);
    Record other;
    Bring(from, {2}, other);
    EXPECT_FALSE(other.rows[0].panes.hides);
    EXPECT_FALSE(other.rows[0].panes.shown);
}

TEST(LayoutNumbers, RandomLayoutsComeBack) {
    random_layout::Maker maker(random_layout::kSeed);
    for (int i = 0; i < 300; ++i) {
        const Record record = bare(maker.make(static_cast<unsigned>(i % 11)));
        Record read;
        ASSERT_TRUE(FromNumbers(ToNumbers(record), read)) << "seed " << random_layout::kSeed << ", " << i;
        ASSERT_TRUE(read == record) << "seed " << random_layout::kSeed << ", " << i;
    }
}

TEST(LayoutNumbers, WhatHidesComesLastAndIsNotShown) {
    Record record;
    Tree hiding = leaf(7);
    hiding.hides = true;
    hiding.size = CSize(120, 300);
    record.rows = {{Side::bottom, 90, hiding}};
    std::vector<std::int32_t> numbers = ToNumbers(record);
    numbers.pop_back();  // the sum
    EXPECT_EQ(numbers, (std::vector<std::int32_t>{0x444B0002, 1, 3, 90, 1, 7, 0, 0, 0, 1, 7, 3, 120, 300}));
    Record read;
    ASSERT_TRUE(FromNumbers(ToNumbers(record), read));
    EXPECT_TRUE(read == record);
    // At another edge than its row's: the row's is taken.
    numbers[11] = 0;
    std::uint32_t sum = 2166136261u;
    for (const std::int32_t number : numbers) sum = (sum ^ static_cast<std::uint32_t>(number)) * 16777619u;
    numbers.push_back(static_cast<std::int32_t>(sum));
    read = Record();
    ASSERT_TRUE(FromNumbers(numbers, read));
    EXPECT_TRUE(read == record);
}

TEST(LayoutNumbers, WhatHidesHasAPlaceWhereItIsNotShown) {
    const auto taken = [](std::vector<std::int32_t> numbers) {
        std::uint32_t sum = 2166136261u;
        for (const std::int32_t number : numbers)
            sum = (sum ^ static_cast<std::uint32_t>(number)) * 16777619u;
        numbers.push_back(static_cast<std::int32_t>(sum));
        Record read;
        return FromNumbers(numbers, read);
    };
    EXPECT_TRUE(taken({0x444B0002, 1, 3, 90, 1, 7, 0, 0, 0, 1, 7, 3, 0, 100000}));
    EXPECT_FALSE(taken({0x444B0002, 1, 3, 90, 1, 7, 1, 0, 0, 1, 7, 3, 120, 300})) << "it is shown";
    EXPECT_FALSE(taken({0x444B0002, 1, 3, 90, 1, 7, 0, 0, 0, 1, 8, 3, 120, 300})) << "no place";
    EXPECT_FALSE(taken({0x444B0002, 1, 3, 90, 1, 7, 0, 0, 0, 2, 7, 3, 1, 1, 7, 3, 1, 1})) << "twice";
    EXPECT_FALSE(taken({0x444B0002, 1, 3, 90, 1, 7, 0, 0, 0, 1, 7, 4, 120, 300})) << "no such side";
    EXPECT_FALSE(taken({0x444B0002, 1, 3, 90, 1, 7, 0, 0, 0, 1, 7, 3, -1, 300}));
    EXPECT_FALSE(taken({0x444B0002, 1, 3, 90, 1, 7, 0, 0, 0, 1, 7, 3, 120, 100001}));
}

TEST(LayoutNumbers, AFlagIsNothingButZeroOrOne) {
    const auto taken = [](std::int32_t shown) {
        std::vector<std::int32_t> numbers = {0x444B0002, 1, 3, 90, 1, 7, shown, 0, 0, 0};
        std::uint32_t sum = 2166136261u;
        for (const std::int32_t number : numbers)
            sum = (sum ^ static_cast<std::uint32_t>(number)) * 16777619u;
        numbers.push_back(static_cast<std::int32_t>(sum));
        Record read;
        return FromNumbers(numbers, read);
    };
    EXPECT_TRUE(taken(0));
    EXPECT_TRUE(taken(1));
    EXPECT_FALSE(taken(2));
    EXPECT_FALSE(taken(-1));
}

TEST(LayoutMerge, WhereTheTabInFrontGoesTheFirstOneComesToTheFront) {
    Record record;
    Group group;
    group.id = kFirstGroup;
    for (const unsigned pane : {1u, 2u, 3u}) {
        Tab tab;
        tab.pane = pane;
        group.tabs.push_back(tab);
    }
    group.active = 3;
    record.groups = {group};
    record.rows = {{Side::left, 100, leaf(kFirstGroup)}};
    Record other = record;
    Remove(record, {3});
    ASSERT_EQ(record.groups.size(), 1u);
    EXPECT_EQ(record.groups[0].active, 1u);
    Remove(other, {1});
    EXPECT_EQ(other.groups[0].active, 3u) << "another one's going changes nothing";
}

TEST(LayoutNumbers, WhatIsDamagedIsRefused) {
    const std::vector<std::int32_t> good = ToNumbers(three());
    Record read;
    read.rows = {{Side::top, 1, leaf(9)}};
    const Record before = read;
    for (std::size_t i = 0; i < good.size(); ++i) {
        std::vector<std::int32_t> bad = good;
        bad[i] ^= 0x40;
        EXPECT_FALSE(FromNumbers(bad, read)) << i;
        bad = good;
        bad.resize(i);
        EXPECT_FALSE(FromNumbers(bad, read)) << i;
    }
    EXPECT_FALSE(FromNumbers({}, read));
    EXPECT_TRUE(read == before);
}
