// Whatever is docked, moved, hidden and taken out: bars never overlap, never leave their row while there is
// room for their least lengths, and have their full length while there is room for that.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <random>

#include <docking/core/bar_rows.h>

namespace {

using namespace kmfc::docking;

constexpr int kBars = 9;

BarExtent extents(PaneKey bar) {
    const int n = static_cast<int>(bar);
    return {40 + 17 * n, 20 + n % 3 * 5, 12 + n};
}

struct Walk {
    std::mt19937 random;
    BarRows rows;
    std::map<PaneKey, bool> shown;  ///< of the bars that are docked

    explicit Walk(unsigned seed) : random(seed) {}
    int any(int low, int high) { return std::uniform_int_distribution<int>(low, high)(random); }
    PaneKey bar() { return static_cast<PaneKey>(any(1, kBars)); }

    void step() {
        const PaneKey one = bar(), other = bar();
        switch (any(0, 4)) {
            case 0:
            case 1:
                rows.dock(one, {any(-1, 6), any(0, 1) != 0, any(-40, 900)}, any(0, 900), extents);
                shown[one] = true;
                break;
            case 2:
                if (rows.dock_before(one, other)) shown[one] = true;
                break;
            case 3:
                rows.remove(one);
                shown.erase(one);
                break;
            default: {
                const bool on = any(0, 1) != 0;
                if (rows.set_shown(one, on)) shown[one] = on;
            }
        }
    }

    void check_row(int row, const std::vector<PlacedBar>& placed, int length) {
        int full = 0, least = 0, end = 0;
        for (const PlacedBar& bar : placed) {
            if (bar.row != row) continue;
            full += extents(bar.bar).length;
            least += extents(bar.bar).least;
        }
        for (const PlacedBar& bar : placed) {
            if (bar.row != row) continue;
            ASSERT_GE(bar.rect.left, end);
            end = bar.rect.right;
            ASSERT_GE(bar.rect.Width(), extents(bar.bar).least);
            ASSERT_LE(bar.rect.Width(), extents(bar.bar).length);
            if (full <= length) {
                ASSERT_EQ(bar.rect.Width(), extents(bar.bar).length);
            }
        }
        if (least <= length) {
            ASSERT_LE(end, length);
        }
    }

    void check(int length) {
        const std::vector<PlacedBar> placed = rows.arrange(length, extents);
        std::map<PaneKey, int> met;
        int across = 0;
        for (const PlacedBar& bar : placed) {
            ++met[bar.bar];
            ASSERT_GE(bar.rect.top, across);
            across = bar.rect.top;
            ASSERT_GE(bar.rect.Height(), extents(bar.bar).thickness);
            ASSERT_LE(bar.rect.bottom, rows.thickness(extents));
        }
        for (const auto& [bar, isShown] : shown) ASSERT_EQ(met[bar], isShown ? 1 : 0);
        ASSERT_EQ(met.size(), shown.size());
        for (const BarRows::Row& row : rows.rows()) ASSERT_FALSE(row.empty());
        for (int row = 0; row < static_cast<int>(rows.rows().size()); ++row) check_row(row, placed, length);
    }
};

TEST(BarWalk, bars_never_overlap_nor_leave_their_row_while_there_is_room) {
    for (unsigned seed = 0; seed < 300; ++seed) {
        Walk walk(seed);
        for (int i = 0; i < 60; ++i) {
            walk.step();
            walk.check(walk.any(0, 1200));
            ASSERT_FALSE(::testing::Test::HasFatalFailure()) << "seed " << seed << ", step " << i;
        }
    }
}

TEST(BarWalk, a_bar_that_is_dropped_where_there_is_room_stands_there) {
    for (unsigned seed = 0; seed < 200; ++seed) {
        Walk walk(seed);
        for (int i = 0; i < 20; ++i) walk.step();
        const PaneKey bar = walk.bar();
        constexpr int kLength = 4000, kFree = 3000;
        walk.rows.dock(bar, {0, false, kFree}, kLength, extents);
        for (const PlacedBar& placed : walk.rows.arrange(kLength, extents))
            if (placed.bar == bar) {
                ASSERT_EQ(placed.rect.left, kFree) << seed;
            }
    }
}

}  // namespace
