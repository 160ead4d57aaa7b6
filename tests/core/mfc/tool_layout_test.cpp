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

}  // namespace
