// Where buttons of a toolbar stand: rows, columns, wrapping, gaps, what is hidden.
#include <gtest/gtest.h>

#include <docking/core/tool_layout.h>

namespace {

using namespace kmfc::docking;

const ToolMetrics kMetrics{7, 2, 6};

ToolItem button(int wide = 20, int high = 22) { return {CSize(wide, high), false, false}; }
ToolItem gap() { return {CSize(0, 0), true, false}; }
ToolItem hidden() { return {CSize(500, 500), false, true}; }

TEST(ToolLayout, a_row_begins_behind_the_gripper_and_is_as_high_as_its_highest_button) {
    const ToolLayout row = lay_tools({button(), button(30, 18), gap(), button()}, kMetrics, ToolShape::row);
    EXPECT_EQ(row.gripper, CRect(0, 0, 7, 26));
    ASSERT_EQ(row.items.size(), 4u);
    EXPECT_EQ(row.items[0], CRect(9, 2, 29, 24));
    EXPECT_EQ(row.items[1], CRect(29, 2, 59, 24));
    EXPECT_EQ(row.items[2], CRect(59, 2, 65, 24));
    EXPECT_EQ(row.items[3], CRect(65, 2, 85, 24));
    EXPECT_EQ(row.size, CSize(87, 26));
}

TEST(ToolLayout, a_column_has_its_gripper_above_and_gaps_between) {
    const ToolLayout column = lay_tools({button(), gap(), button(24)}, kMetrics, ToolShape::column);
    EXPECT_EQ(column.gripper, CRect(0, 0, 28, 7));
    EXPECT_EQ(column.items[0], CRect(2, 9, 26, 31));
    EXPECT_EQ(column.items[1], CRect(2, 31, 26, 37));
    EXPECT_EQ(column.items[2], CRect(2, 37, 26, 59));
    EXPECT_EQ(column.size, CSize(28, 61));
}

TEST(ToolLayout, what_is_hidden_takes_no_room_in_any_shape) {
    for (const ToolShape shape : {ToolShape::row, ToolShape::column, ToolShape::wrapped}) {
        const ToolLayout with = lay_tools({button(), hidden(), button()}, kMetrics, shape, 200);
        const ToolLayout without = lay_tools({button(), button()}, kMetrics, shape, 200);
        EXPECT_EQ(with.size, without.size);
        EXPECT_TRUE(with.items[1].IsRectEmpty());
        EXPECT_EQ(with.items[2], without.items[1]);
    }
}

TEST(ToolLayout, a_wrapped_bar_starts_a_row_where_the_next_button_has_no_room) {
    const ToolMetrics floating{0, 2, 6};
    const std::vector<ToolItem> four{button(), button(), button(), button()};
    const ToolLayout exact = lay_tools(four, floating, ToolShape::wrapped, 44);
    EXPECT_EQ(exact.items[1], CRect(22, 2, 42, 24));
    EXPECT_EQ(exact.items[2], CRect(2, 24, 22, 46));
    EXPECT_EQ(exact.size, CSize(44, 48));
    EXPECT_EQ(exact.endsRow, (std::vector<bool>{false, true, false, false}));
    const ToolLayout less = lay_tools(four, floating, ToolShape::wrapped, 43);
    EXPECT_EQ(less.size, CSize(24, 92));
    EXPECT_EQ(lay_tools(four, floating, ToolShape::wrapped, 10'000).size, CSize(84, 26));
}

TEST(ToolLayout, a_gap_counts_within_a_row_and_goes_where_one_ends) {
    const ToolMetrics floating{0, 0, 6};
    const ToolLayout two =
        lay_tools({gap(), button(), gap(), gap(), button(), gap()}, floating, ToolShape::wrapped, 46);
    EXPECT_EQ(two.size, CSize(46, 22));
    EXPECT_TRUE(two.items[0].IsRectEmpty());
    EXPECT_TRUE(two.items[2].IsRectEmpty());
    EXPECT_EQ(two.items[3], CRect(20, 0, 26, 22));
    EXPECT_TRUE(two.items[5].IsRectEmpty());
    const ToolLayout one = lay_tools({button(), gap(), button()}, floating, ToolShape::wrapped, 45);
    EXPECT_TRUE(one.items[1].IsRectEmpty());
    EXPECT_EQ(one.items[2], CRect(0, 22, 20, 44));
}

TEST(ToolLayout, without_room_each_button_has_a_row_and_without_buttons_there_is_the_gripper) {
    const ToolLayout narrow = lay_tools({button(), button()}, kMetrics, ToolShape::wrapped, -5);
    EXPECT_EQ(narrow.size, CSize(24, 48));
    EXPECT_EQ(lay_tools({}, kMetrics, ToolShape::row).size, CSize(11, 4));
    EXPECT_EQ(lay_tools({}, kMetrics, ToolShape::column).size, CSize(4, 11));
    EXPECT_EQ(lay_tools({gap()}, kMetrics, ToolShape::wrapped, 100).size, CSize(2, 4));
}

ToolLayout shortened(const std::vector<ToolItem>& items, ToolShape shape, int room,
                     ToolMetrics metrics = {7, 2, 6, 10}) {
    ToolLayout layout = lay_tools(items, metrics, shape, room);
    shorten_tools(layout, items, metrics, shape, room);
    return layout;
}

TEST(ToolLayout, what_fits_exactly_is_left_as_it_is) {
    // The gripper, three buttons and the margins.
    const ToolLayout fits = shortened({button(), button(), button()}, ToolShape::row, 71);
    EXPECT_TRUE(fits.more.IsRectEmpty());
    EXPECT_EQ(fits.items[2], CRect(49, 2, 69, 24));
    const ToolLayout less = shortened({button(), button(), button()}, ToolShape::row, 70);
    EXPECT_FALSE(less.more.IsRectEmpty());
    EXPECT_TRUE(less.items[2].IsRectEmpty());
    EXPECT_TRUE(shortened({button(), button()}, ToolShape::wrapped, 10).more.IsRectEmpty());
}

TEST(ToolLayout, the_button_for_more_ends_the_row_and_takes_what_has_no_room_before_it) {
    const std::vector<ToolItem> four{button(), button(), button(), button()};
    // Two buttons end at 49, and the one for more begins there.
    const ToolLayout two = shortened(four, ToolShape::row, 61);
    EXPECT_EQ(two.items[1], CRect(29, 2, 49, 24));
    EXPECT_TRUE(two.items[2].IsRectEmpty());
    EXPECT_TRUE(two.items[3].IsRectEmpty());
    EXPECT_EQ(two.more, CRect(49, 2, 59, 24));
    const ToolLayout one = shortened(four, ToolShape::row, 60);
    EXPECT_FALSE(one.items[0].IsRectEmpty());
    EXPECT_TRUE(one.items[1].IsRectEmpty());
    EXPECT_EQ(one.more, CRect(48, 2, 58, 24));
    // What is narrower doesn't overtake what is wider.
    const ToolLayout order = shortened({button(), button(200), button(5)}, ToolShape::row, 61);
    EXPECT_FALSE(order.items[0].IsRectEmpty());
    EXPECT_TRUE(order.items[1].IsRectEmpty());
    EXPECT_TRUE(order.items[2].IsRectEmpty());
}

TEST(ToolLayout, a_column_is_shortened_from_below) {
    const ToolLayout column = shortened({button(), button(), button()}, ToolShape::column, 65);
    EXPECT_EQ(column.items[1], CRect(2, 31, 22, 53));
    EXPECT_TRUE(column.items[2].IsRectEmpty());
    EXPECT_EQ(column.more, CRect(2, 53, 22, 63));
    EXPECT_TRUE(shortened({button(), button(), button()}, ToolShape::column, 64).items[1].IsRectEmpty());
}

TEST(ToolLayout, no_gap_and_nothing_hidden_stands_before_the_button_for_more) {
    const std::vector<ToolItem> items{button(), gap(), hidden(), gap(), button(), button()};
    const ToolLayout layout = shortened(items, ToolShape::row, 58);
    EXPECT_FALSE(layout.items[0].IsRectEmpty());
    for (size_t i = 1; i < items.size(); ++i) EXPECT_TRUE(layout.items[i].IsRectEmpty()) << i;
    EXPECT_FALSE(layout.more.IsRectEmpty());
}

TEST(ToolLayout, without_any_room_the_button_for_more_stands_behind_the_gripper) {
    for (const int room : {12, 1, 0, -100}) {
        const ToolLayout layout = shortened({button(), button()}, ToolShape::row, room);
        EXPECT_TRUE(layout.items[0].IsRectEmpty());
        EXPECT_EQ(layout.more, CRect(9, 2, 19, 24)) << room;
    }
}

}  // namespace
