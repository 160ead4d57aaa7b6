// Rows of bars: offsets, neighbours in the way, rows that are too short, what a drop means.
#include <gtest/gtest.h>

#include <map>

#include <docking/core/bar_rows.h>

namespace {

using namespace kmfc::docking;

constexpr int kReach = 15;

/// Bars of 100 by 26 with a least length of 30; 7 is 60 by 40.
BarExtent extents(PaneKey bar) { return bar == 7 ? BarExtent{60, 40, 20} : BarExtent{100, 26, 30}; }

std::map<PaneKey, CRect> placed(const BarRows& rows, int length) {
    std::map<PaneKey, CRect> all;
    for (const PlacedBar& bar : rows.arrange(length, extents)) all[bar.bar] = bar.rect;
    return all;
}

/// Bars 1, 2 and 3 in one row, one behind the other.
BarRows three_in_a_row() {
    BarRows rows;
    rows.append({1, 0, true}, true);
    rows.append({2, 100, true}, false);
    rows.append({3, 200, true}, false);
    return rows;
}

TEST(BarRows, a_new_row_stands_further_inside_and_is_as_thick_as_its_thickest_bar) {
    BarRows rows;
    rows.dock(1, {0, true, 0}, 500, extents);
    rows.dock(2, {1, true, 40}, 500, extents);
    rows.dock(7, {1, false, 300}, 500, extents);
    const auto at = placed(rows, 500);
    EXPECT_EQ(at.at(1), CRect(0, 0, 100, 26));
    EXPECT_EQ(at.at(2), CRect(40, 26, 140, 66));
    EXPECT_EQ(at.at(7), CRect(300, 26, 360, 66));
    EXPECT_EQ(rows.thickness(extents), 66);
}

TEST(BarRows, a_bar_stands_behind_the_one_that_is_in_its_way_and_comes_back_when_that_goes) {
    BarRows rows;
    rows.append({1, 0, true}, true);
    rows.append({2, 50, true}, false);
    EXPECT_EQ(placed(rows, 500).at(2), CRect(100, 0, 200, 26));
    rows.set_shown(1, false);
    EXPECT_EQ(placed(rows, 500).at(2), CRect(50, 0, 150, 26));
    rows.set_shown(1, true);
    EXPECT_EQ(placed(rows, 500).at(2), CRect(100, 0, 200, 26));
}

TEST(BarRows, in_a_short_row_bars_come_ahead_and_in_a_long_one_they_go_back) {
    BarRows rows;
    rows.append({1, 100, true}, true);
    rows.append({2, 300, true}, false);
    EXPECT_EQ(placed(rows, 350).at(2), CRect(250, 0, 350, 26));
    EXPECT_EQ(placed(rows, 350).at(1), CRect(100, 0, 200, 26));
    EXPECT_EQ(placed(rows, 220).at(1), CRect(20, 0, 120, 26));
    EXPECT_EQ(placed(rows, 220).at(2), CRect(120, 0, 220, 26));
    EXPECT_EQ(placed(rows, 500).at(1), CRect(100, 0, 200, 26));
    EXPECT_EQ(placed(rows, 500).at(2), CRect(300, 0, 400, 26));
}

TEST(BarRows, without_room_the_last_bars_are_shortened_first_and_none_below_its_least) {
    const BarRows rows = three_in_a_row();
    auto at = placed(rows, 260);
    EXPECT_EQ(at[1], CRect(0, 0, 100, 26));
    EXPECT_EQ(at[2], CRect(100, 0, 200, 26));
    EXPECT_EQ(at[3], CRect(200, 0, 260, 26));
    at = placed(rows, 200);
    EXPECT_EQ(at[2], CRect(100, 0, 170, 26));
    EXPECT_EQ(at[3], CRect(170, 0, 200, 26));
    at = placed(rows, 10);
    EXPECT_EQ(at[1], CRect(0, 0, 30, 26));
    EXPECT_EQ(at[3], CRect(60, 0, 90, 26));
}

TEST(BarRows, a_dropped_bar_goes_before_the_first_whose_middle_lies_behind_it) {
    for (const auto& [offset, expected] : std::map<int, std::vector<PaneKey>>{{0, {7, 1, 2, 3}},
                                                                              {49, {7, 1, 2, 3}},
                                                                              {50, {1, 7, 2, 3}},
                                                                              {149, {1, 7, 2, 3}},
                                                                              {150, {1, 2, 7, 3}},
                                                                              {251, {1, 2, 3, 7}},
                                                                              {900, {1, 2, 3, 7}}}) {
        BarRows rows = three_in_a_row();
        rows.dock(7, {0, false, offset}, 1000, extents);
        std::vector<PaneKey> order;
        for (const BarRows::Bar& bar : rows.rows()[0]) order.push_back(bar.bar);
        EXPECT_EQ(order, expected) << offset;
    }
}

TEST(BarRows, a_bar_that_moves_on_leaves_its_neighbours_where_they_wanted_to_be) {
    BarRows rows = three_in_a_row();
    rows.dock(7, {0, false, 120}, 1000, extents);
    auto at = placed(rows, 1000);
    EXPECT_EQ(at[7], CRect(120, 0, 180, 40));
    EXPECT_EQ(at[2], CRect(180, 0, 280, 40));
    EXPECT_EQ(at[3], CRect(280, 0, 380, 40));
    rows.dock(7, {0, false, 600}, 1000, extents);
    at = placed(rows, 1000);
    EXPECT_EQ(at[2], CRect(100, 0, 200, 40));
    EXPECT_EQ(at[3], CRect(200, 0, 300, 40));
    EXPECT_EQ(at[7], CRect(600, 0, 660, 40));
}

TEST(BarRows, a_bar_leaves_its_row_and_an_empty_row_goes) {
    BarRows rows;
    rows.append({1, 0, true}, true);
    rows.append({2, 0, true}, true);
    rows.dock(1, {1, false, 300}, 500, extents);
    ASSERT_EQ(rows.rows().size(), 1u);
    EXPECT_EQ(rows.rows()[0].size(), 2u);
    EXPECT_EQ(rows.place_of(1)->offset, 300);
    EXPECT_FALSE(rows.place_of(1)->isOwnRow);
    // One row down and out of the row that it shared.
    rows.dock(2, {1, true, 0}, 500, extents);
    EXPECT_EQ(rows.place_of(2)->row, 1);
    EXPECT_TRUE(rows.place_of(2)->isOwnRow);
    EXPECT_TRUE(rows.remove(1));
    EXPECT_EQ(rows.rows().size(), 1u);
    EXPECT_FALSE(rows.remove(1));
    EXPECT_FALSE(rows.place_of(1).has_value());
    EXPECT_FALSE(rows.set_shown(1, true));
}

TEST(BarRows, a_row_of_hidden_bars_takes_no_room_and_stays) {
    BarRows rows = three_in_a_row();
    rows.append({7, 0, false}, true);
    EXPECT_EQ(rows.thickness(extents), 26);
    EXPECT_EQ(rows.arrange(1000, extents).size(), 3u);
    EXPECT_FALSE(rows.shows(7));
    rows.set_shown(7, true);
    EXPECT_EQ(rows.thickness(extents), 66);
}

TEST(BarRows, before_another_means_directly_before_it_at_its_offset) {
    BarRows rows = three_in_a_row();
    EXPECT_TRUE(rows.dock_before(7, 2));
    EXPECT_EQ(placed(rows, 1000).at(7).left, 100);
    EXPECT_EQ(placed(rows, 1000).at(2).left, 160);
    EXPECT_TRUE(rows.dock_before(3, 7));
    EXPECT_EQ(placed(rows, 1000).at(3).left, 100);
    rows.dock(1, {0, false, 700}, 1000, extents);
    EXPECT_TRUE(rows.dock_before(2, 1));
    EXPECT_EQ(placed(rows, 1000).at(2).left, 700);
    EXPECT_FALSE(rows.dock_before(3, 3));
    EXPECT_FALSE(rows.dock_before(3, 99));
    EXPECT_EQ(rows.rows()[0].size(), 4u);
}

TEST(BarRows, places_out_of_range_are_taken_as_the_nearest_ones) {
    BarRows rows = three_in_a_row();
    rows.dock(7, {50, false, -20}, 500, extents);
    EXPECT_EQ(rows.place_of(7)->row, 1);
    EXPECT_EQ(rows.place_of(7)->offset, 0);
    rows.dock(7, {-3, true, 0}, 500, extents);
    EXPECT_EQ(rows.place_of(7)->row, 0);
    EXPECT_EQ(rows.place_of(1)->row, 1);
}

TEST(BarRows, a_drop_over_a_row_joins_it_and_beyond_all_begins_a_new_one) {
    BarRows rows = three_in_a_row();
    rows.append({7, 0, true}, true);
    const auto at = [&](int across, PaneKey bar) { return rows.row_at(across, bar, kReach, extents); };
    EXPECT_FALSE(at(-16, 1).has_value());
    EXPECT_TRUE(at(-15, 1)->isOwnRow);
    EXPECT_EQ(at(-15, 1)->row, 0);
    EXPECT_FALSE(at(0, 1)->isOwnRow);
    EXPECT_EQ(at(0, 1)->row, 0);
    EXPECT_EQ(at(21, 1)->row, 0);
    EXPECT_FALSE(at(21, 1)->isOwnRow);
    EXPECT_EQ(at(32, 1)->row, 1);
    EXPECT_FALSE(at(32, 1)->isOwnRow);
    EXPECT_EQ(at(65, 1)->row, 1);
    EXPECT_FALSE(at(65, 1)->isOwnRow);
    EXPECT_TRUE(at(66, 1)->isOwnRow);
    EXPECT_EQ(at(66, 1)->row, 2);
    EXPECT_TRUE(at(80, 1).has_value());
    EXPECT_FALSE(at(81, 1).has_value());
}

TEST(BarRows, the_edge_between_two_rows_stands_for_a_new_one_there) {
    BarRows rows = three_in_a_row();
    rows.append({7, 0, true}, true);
    rows.append({8, 0, false}, true);
    for (const int across : {22, 25, 26, 31}) {
        const std::optional<BarPlace> place = rows.row_at(across, 1, kReach, extents);
        ASSERT_TRUE(place.has_value());
        EXPECT_TRUE(place->isOwnRow) << across;
        EXPECT_EQ(place->row, 1) << across;
        // A place that the program gives is in a row.
        EXPECT_FALSE(rows.row_at(across, 1, 0, extents)->isOwnRow);
    }
    EXPECT_EQ(rows.row_at(25, 1, 0, extents)->row, 0);
    EXPECT_EQ(rows.row_at(26, 1, 0, extents)->row, 1);
    // What is alone beside the edge stays as it is.
    EXPECT_FALSE(rows.row_at(25, 7, kReach, extents)->isOwnRow);
    EXPECT_EQ(rows.row_at(25, 7, kReach, extents)->row, 1);
}

TEST(BarRows, a_bar_in_its_new_row_stays_there_while_the_mouse_rests) {
    BarRows rows = three_in_a_row();
    rows.append({7, 0, true}, true);
    for (int turn = 0; turn < 3; ++turn) {
        const std::optional<BarPlace> place = rows.row_at(27, 1, kReach, extents);
        ASSERT_TRUE(place.has_value());
        rows.dock(1, *place, 500, extents);
        ASSERT_EQ(rows.rows().size(), 3u);
        EXPECT_EQ(rows.place_of(1)->row, 1);
        EXPECT_TRUE(rows.place_of(1)->isOwnRow);
    }
}

TEST(BarRows, a_bar_alone_in_the_first_or_last_row_stays_in_it_beyond_its_edge) {
    BarRows rows;
    rows.append({1, 0, true}, true);
    rows.append({7, 0, true}, true);
    EXPECT_FALSE(rows.row_at(-5, 1, kReach, extents)->isOwnRow);
    EXPECT_TRUE(rows.row_at(-5, 7, kReach, extents)->isOwnRow);
    EXPECT_FALSE(rows.row_at(70, 7, kReach, extents)->isOwnRow);
    EXPECT_EQ(rows.row_at(70, 7, kReach, extents)->row, 1);
    EXPECT_TRUE(rows.row_at(70, 1, kReach, extents)->isOwnRow);
}

TEST(BarRows, at_a_side_without_bars_a_drop_near_the_edge_begins_the_first_row) {
    const BarRows rows;
    EXPECT_EQ(rows.row_at(0, 1, kReach, extents)->row, 0);
    EXPECT_TRUE(rows.row_at(14, 1, kReach, extents)->isOwnRow);
    EXPECT_FALSE(rows.row_at(15, 1, kReach, extents).has_value());
    EXPECT_EQ(rows.thickness(extents), 0);
}

TEST(BarRows, RowsAreCountedFromTheOutsideAtEachSide) {
    const CSize strip(300, 40), upright(40, 300);
    EXPECT_EQ(along_and_across(Side::top, strip, CPoint(70, 5)), CPoint(70, 5));
    EXPECT_EQ(along_and_across(Side::bottom, strip, CPoint(70, 5)), CPoint(70, 34));
    EXPECT_EQ(along_and_across(Side::left, upright, CPoint(5, 70)), CPoint(70, 5));
    EXPECT_EQ(along_and_across(Side::right, upright, CPoint(5, 70)), CPoint(70, 34));
    const CRect bar(70, 5, 170, 25);
    EXPECT_EQ(in_strip(Side::top, strip, bar), bar);
    EXPECT_EQ(in_strip(Side::bottom, strip, bar), CRect(70, 15, 170, 35));
    EXPECT_EQ(in_strip(Side::left, upright, bar), CRect(5, 70, 25, 170));
    EXPECT_EQ(in_strip(Side::right, upright, bar), CRect(15, 70, 35, 170));
}

}  // namespace
