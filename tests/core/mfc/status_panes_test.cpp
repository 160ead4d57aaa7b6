// Where panes of a status bar stand, and how far progress bars go.
#include <gtest/gtest.h>

#include <climits>

#include <docking/core/status_panes.h>

namespace {

using namespace kmfc;
using Edges = std::vector<int>;

TEST(StatusPanes, each_is_as_wide_as_it_wants) {
    EXPECT_EQ(pane_edges({{30, false}, {50, false}}, 2, 400, 0), (Edges{32, 82}));
    EXPECT_EQ(pane_edges({{30, false}, {50, false}}, 2, 400, 3), (Edges{32, 85}));
    EXPECT_EQ(pane_edges({}, 2, 400, 3), Edges{});
}

TEST(StatusPanes, the_first_that_stretches_takes_what_is_left) {
    EXPECT_EQ(pane_edges({{300, true}, {50, false}}, 2, 400, 0), (Edges{352, 402}));
    EXPECT_EQ(pane_edges({{300, true}, {50, false}, {20, false}}, 2, 400, 4), (Edges{324, 378, 402}));
    EXPECT_EQ(pane_edges({{40, false}, {10, true}, {70, true}}, 0, 400, 0), (Edges{40, 330, 400}));
}

TEST(StatusPanes, without_room_nothing_is_left_for_it) {
    EXPECT_EQ(pane_edges({{300, true}, {50, false}, {60, false}}, 0, 80, 0), (Edges{0, 50, 110}));
}

TEST(StatusPanes, progress_fills_its_part) {
    EXPECT_EQ(filled_part(0, 100, 200), 0);
    EXPECT_EQ(filled_part(50, 100, 200), 100);
    EXPECT_EQ(filled_part(100, 100, 200), 200);
    EXPECT_EQ(filled_part(999, 1000, 200), 199) << "full only when all is done";
    EXPECT_EQ(percent_of(999, 1000), 99);
    EXPECT_EQ(percent_of(1, 3), 33);
}

TEST(StatusPanes, what_is_out_of_range_is_held) {
    EXPECT_EQ(filled_part(-5, 100, 200), 0);
    EXPECT_EQ(filled_part(500, 100, 200), 200);
    EXPECT_EQ(filled_part(5, 0, 200), 0);
    EXPECT_EQ(filled_part(5, -1, 200), 0);
    EXPECT_EQ(filled_part(50, 100, 0), 0);
    EXPECT_EQ(filled_part(50, 100, -8), 0);
    EXPECT_EQ(filled_part(INT_MAX, INT_MAX, 3000), 3000);
    EXPECT_EQ(filled_part(INT_MAX / 2, INT_MAX, 3000), 1499);
}

}  // namespace
