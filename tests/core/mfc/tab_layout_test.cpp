// Tabs on a strip: by numbers, and by what must hold of any strip.
#include "docking/core/tab_layout.h"

#include <algorithm>
#include <numeric>
#include <random>

#include <gtest/gtest.h>

namespace {

using namespace kmfc::tabs;
using Widths = std::vector<int>;

int sum(const Widths& widths) { return std::accumulate(widths.begin(), widths.end(), 0); }

/// A strip of up to twelve tabs, some of them hidden.
struct AnyStrip {
    explicit AnyStrip(unsigned seed) : engine(seed) {
        const int count = number(1, 12);
        for (int i = 0; i < count; ++i) widths.push_back(number(0, 5) == 0 ? 0 : number(8, 160));
        room = number(1, 700);
        overlap = number(0, 7);
    }
    int number(int least, int most) { return std::uniform_int_distribution<int>(least, most)(engine); }
    int tab() { return number(0, static_cast<int>(widths.size()) - 1); }

    std::mt19937 engine;
    Widths widths;
    int room, overlap;
};

template <class Check>
void for_any_strip(Check check) {
    for (unsigned seed = 1; seed <= 4000; ++seed) {
        SCOPED_TRACE(seed);
        AnyStrip strip(seed);
        check(strip);
        if (::testing::Test::HasFailure()) return;
    }
}

}  // namespace

TEST(ShareRoom, LeavesTabsThatFitAlone) {
    EXPECT_EQ(share_room({40, 60, 50}, 150, 20), (Widths{40, 60, 50}));
    EXPECT_EQ(share_room({}, 0, 20), Widths{});
}

TEST(ShareRoom, CutsTheWidestFirst) {
    EXPECT_EQ(share_room({40, 100, 60}, 180, 20), (Widths{40, 80, 60}));
    EXPECT_EQ(share_room({40, 100, 100}, 160, 20), (Widths{40, 60, 60}));
}

TEST(ShareRoom, GivesTheRestToTheFirstThatWereCut) {
    EXPECT_EQ(share_room({100, 100, 100}, 200, 20), (Widths{67, 67, 66}));
    EXPECT_EQ(share_room({10, 100, 100}, 111, 20), (Widths{10, 51, 50}));
}

TEST(ShareRoom, CutsNoTabBelowTheLeast) {
    EXPECT_EQ(share_room({100, 100, 15}, 10, 30), (Widths{30, 30, 15}));
    EXPECT_EQ(share_room({100, 100}, -5, 30), (Widths{30, 30}));
}

TEST(ShareRoom, LeavesHiddenTabsOutOfTheReckoning) {
    EXPECT_EQ(share_room({0, 100, 0, 100}, 120, 20), (Widths{0, 60, 0, 60}));
}

TEST(ShareRoom, FillsTheRoomWheneverTabsMustGive) {
    for_any_strip([](AnyStrip& strip) {
        const int least = strip.number(1, 40);
        const Widths widths = share_room(strip.widths, strip.room, least);
        ASSERT_EQ(widths.size(), strip.widths.size());
        int floor = 0;
        for (size_t i = 0; i < widths.size(); ++i) {
            EXPECT_LE(widths[i], strip.widths[i]);
            EXPECT_GE(widths[i], std::min(least, strip.widths[i]));
            floor += std::min(least, strip.widths[i]);
        }
        EXPECT_EQ(sum(widths), std::min(sum(strip.widths), std::max(strip.room, floor)));
        // A narrower wish never gets more than a wider one, but for the pixel that was left over.
        for (size_t i = 0; i < widths.size(); ++i)
            for (size_t j = 0; j < widths.size(); ++j)
                EXPECT_TRUE(strip.widths[i] > strip.widths[j] || widths[i] <= widths[j] + 1);
    });
}

TEST(TabRow, StandsSideBySide) {
    const auto places = place_in_row({30, 40}, 5, 0);
    EXPECT_EQ(places[0].left, 5);
    EXPECT_EQ(places[0].right, 35);
    EXPECT_EQ(places[1].left, 35);
    EXPECT_EQ(places[1].right, 75);
}

TEST(TabRow, OverlapsShownTabsOnly) {
    const auto places = place_in_row({0, 30, 0, 40}, 5, 10);
    EXPECT_EQ(places[0].width(), 0);
    EXPECT_EQ(places[1].left, 5);
    EXPECT_EQ(places[2].width(), 0);
    EXPECT_EQ(places[3].left, 25);
    EXPECT_EQ(places[3].right, 65);
    EXPECT_EQ(row_length({0, 30, 0, 40}, 10), 60);
    EXPECT_EQ(row_length({0, 0}, 10), 0);
}

TEST(TabRow, EndsWhereItsLengthSays) {
    for_any_strip([](AnyStrip& strip) {
        const auto places = place_in_row(strip.widths, 17, strip.overlap);
        int end = 17;
        for (size_t i = 0; i < places.size(); ++i) {
            EXPECT_EQ(places[i].width(), strip.widths[i]);
            if (strip.widths[i] == 0) continue;
            EXPECT_EQ(places[i].left, end == 17 ? 17 : end - strip.overlap);
            end = places[i].right;
        }
        EXPECT_EQ(end - 17, row_length(strip.widths, strip.overlap));
    });
}

TEST(TabScrolling, StopsWhenTheEndShows) {
    EXPECT_EQ(greatest_offset({50, 50, 50}, 0, 120), 30);
    EXPECT_EQ(greatest_offset({50, 50}, 0, 120), 0);
    EXPECT_EQ(greatest_offset({50, 50}, 10, 80), 10);
    EXPECT_EQ(greatest_offset({50, 50}, 0, -4), 100);
}

TEST(TabScrolling, MovesNoFurtherThanTheTabNeeds) {
    const Widths four = {50, 50, 50, 50};
    EXPECT_EQ(offset_to_show(four, 0, 120, 0, 1), 0);
    EXPECT_EQ(offset_to_show(four, 0, 120, 0, 2), 30);
    EXPECT_EQ(offset_to_show(four, 0, 120, 0, 3), 80);
    EXPECT_EQ(offset_to_show(four, 0, 120, 80, 0), 0);
    EXPECT_EQ(offset_to_show(four, 0, 120, 80, 1), 50);
    EXPECT_EQ(offset_to_show(four, 0, 30, 0, 2), 100) << "wider than the room: its beginning";
}

TEST(TabScrolling, IsLeftAloneByTabsThatCantBeShown) {
    EXPECT_EQ(offset_to_show({50, 0, 50}, 0, 60, 7, 1), 7);
    EXPECT_EQ(offset_to_show({50, 50}, 0, 60, 7, 2), 7);
    EXPECT_EQ(offset_to_show({50, 50}, 0, 60, 7, -1), 7);
    EXPECT_EQ(offset_to_show({50, 50}, 0, 0, 7, 1), 7);
}

TEST(TabScrolling, ShowsAnyTabWhole) {
    for_any_strip([](AnyStrip& strip) {
        const int tab = strip.tab();
        const int limit = greatest_offset(strip.widths, strip.overlap, strip.room);
        const int former = strip.number(0, limit);
        const int width = strip.widths[static_cast<size_t>(tab)];
        if (width == 0 || width > strip.room) return;
        const int offset = offset_to_show(strip.widths, strip.overlap, strip.room, former, tab);
        EXPECT_GE(offset, 0);
        EXPECT_LE(offset, limit);
        const Place place = place_in_row(strip.widths, -offset, strip.overlap)[static_cast<size_t>(tab)];
        EXPECT_GE(place.left, 0);
        EXPECT_LE(place.right, strip.room);
        EXPECT_EQ(offset_to_show(strip.widths, strip.overlap, strip.room, offset, tab), offset);
    });
}

TEST(TabScrolling, StepsFromTabToTab) {
    const Widths tabs = {50, 0, 60, 70};
    EXPECT_EQ(step_offset(tabs, 0, 80, 0, 1), 50);
    EXPECT_EQ(step_offset(tabs, 0, 80, 50, 1), 100) << "the end shows before the next tab comes to the start";
    EXPECT_EQ(step_offset(tabs, 0, 80, 100, 1), 100);
    EXPECT_EQ(step_offset(tabs, 0, 80, 100, -1), 50);
    EXPECT_EQ(step_offset(tabs, 0, 80, 50, -1), 0);
    EXPECT_EQ(step_offset(tabs, 0, 80, 0, -1), 0);
}

TEST(TabScrolling, ReachesBothEndsInNoMoreStepsThanTabs) {
    for_any_strip([](AnyStrip& strip) {
        const int limit = greatest_offset(strip.widths, strip.overlap, strip.room);
        int offset = 0;
        for (size_t i = 0; i < strip.widths.size(); ++i) {
            const int next = step_offset(strip.widths, strip.overlap, strip.room, offset, 1);
            EXPECT_GE(next, offset);
            offset = next;
        }
        EXPECT_EQ(offset, limit);
        for (size_t i = 0; i < strip.widths.size(); ++i)
            offset = step_offset(strip.widths, strip.overlap, strip.room, offset, -1);
        EXPECT_EQ(offset, 0);
    });
}

TEST(TabScrolling, KnowsTheFirstWholeTab) {
    EXPECT_EQ(first_whole(place_in_row({50, 50, 50}, -20, 0), 0), 1);
    EXPECT_EQ(first_whole(place_in_row({50, 50, 50}, 0, 0), 0), 0);
    EXPECT_EQ(first_whole(place_in_row({0, 50}, 0, 0), 0), 1);
    EXPECT_EQ(first_whole({}, 0), -1);
}

TEST(TabHit, FindsTheTabUnderThePoint) {
    const auto places = place_in_row({30, 40, 50}, 0, 10);  // 0..30, 20..60, 50..100
    EXPECT_EQ(tab_at(places, 0, 100, 0, -1), 0);
    EXPECT_EQ(tab_at(places, 0, 100, 25, -1), 0) << "the left one of two";
    EXPECT_EQ(tab_at(places, 0, 100, 25, 1), 1) << "the active one of two";
    EXPECT_EQ(tab_at(places, 0, 100, 99, -1), 2);
    EXPECT_EQ(tab_at(places, 0, 100, 100, -1), -1);
    EXPECT_EQ(tab_at(places, 0, 70, 70, -1), -1) << "outside the strip";
    EXPECT_EQ(tab_at(places, 5, 100, 4, -1), -1) << "outside the strip";
    EXPECT_EQ(tab_at(places, 0, 100, 25, 7), 0) << "an active tab that isn't there";
}

TEST(TabDrop, WaitsUntilTheTabWillLieUnderTheMouse) {
    const Widths tabs = {30, 100, 30};
    EXPECT_EQ(drop_index(tabs, 0, 0, 0, 40), 0) << "moved, it would lie from 100 to 130";
    EXPECT_EQ(drop_index(tabs, 0, 0, 0, 99), 0);
    EXPECT_EQ(drop_index(tabs, 0, 0, 0, 100), 1);
    EXPECT_EQ(drop_index(tabs, 0, 0, 2, 10), 0);
    EXPECT_EQ(drop_index(tabs, 0, 0, 1, 10), 0);
    EXPECT_EQ(drop_index(tabs, 0, 0, 1, -3), 1);
    EXPECT_EQ(drop_index(tabs, 0, 0, 1, 500), 1);
    EXPECT_EQ(drop_index({30, 0}, 0, 0, 1, 10), 1) << "a hidden tab isn't dragged";
    EXPECT_EQ(drop_index(tabs, 0, 0, 3, 10), 3);
}

TEST(TabDrop, ComesToRest) {
    for_any_strip([](AnyStrip& strip) {
        int dragged = strip.tab();
        const int x = strip.number(0, row_length(strip.widths, strip.overlap));
        const int first = drop_index(strip.widths, 0, strip.overlap, dragged, x);
        if (first == dragged) return;
        Widths moved = strip.widths;
        moved.erase(moved.begin() + dragged);
        moved.insert(moved.begin() + first, strip.widths[static_cast<size_t>(dragged)]);
        EXPECT_EQ(drop_index(moved, 0, strip.overlap, first, x), first) << "the mouse hasn't moved";
    });
}
