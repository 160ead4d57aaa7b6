// Rows of panes at the sides of a frame.
#include <gtest/gtest.h>

#include <docking/core/frame_layout.h>

namespace {

using namespace kmfc::docking;

constexpr PaneKey A = 1, B = 2, C = 3, D = 4;
const CRect kFrame(0, 0, 400, 300);

Rules rules_with(CSize least, CSize center = CSize(0, 0)) {
    Rules rules;
    rules.center = center;
    rules.least = [least](PaneKey) { return least; };
    return rules;
}

CRect at(const Arrangement& arrangement, PaneKey pane) {
    const CRect* rect = arrangement.find(pane);
    return rect != nullptr ? *rect : CRect(-1, -1, -1, -1);
}

TEST(FrameLayout, puts_a_row_at_each_side_with_its_divider_inside) {
    struct Case {
        Side side;
        CRect pane, divider, center;
    };
    const Case cases[] = {
        {Side::left, {0, 0, 80, 300}, {80, 0, 84, 300}, {84, 0, 400, 300}},
        {Side::right, {320, 0, 400, 300}, {316, 0, 320, 300}, {0, 0, 316, 300}},
        {Side::top, {0, 0, 400, 80}, {0, 80, 400, 84}, {0, 84, 400, 300}},
        {Side::bottom, {0, 220, 400, 300}, {0, 216, 400, 220}, {0, 0, 400, 216}},
    };
    for (const Case& c : cases) {
        FrameLayout layout;
        ASSERT_TRUE(layout.dock(SplitTree(A), c.side, 80, false));
        const Arrangement now = layout.arrange(kFrame, rules_with(CSize(10, 10)));
        EXPECT_EQ(at(now, A), c.pane);
        ASSERT_EQ(now.dividers.size(), 1u);
        EXPECT_EQ(now.dividers[0].rect, c.divider);
        EXPECT_EQ(now.dividers[0].around, kFrame);
        EXPECT_TRUE(now.dividers[0].atEdge);
        EXPECT_EQ(now.dividers[0].upright, is_upright(c.side));
        EXPECT_EQ(now.center, c.center);
        EXPECT_EQ(layout.side_of(A), c.side);
    }
}

TEST(FrameLayout, puts_later_rows_further_inside_and_outer_ones_outside) {
    FrameLayout layout;
    layout.dock(SplitTree(A), Side::left, 100, false);
    layout.dock(SplitTree(B), Side::top, 50, false);
    layout.dock(SplitTree(C), Side::bottom, 40, true);
    const Arrangement now = layout.arrange(kFrame, rules_with(CSize(10, 10)));
    EXPECT_EQ(at(now, C), CRect(0, 260, 400, 300));
    EXPECT_EQ(at(now, A), CRect(0, 0, 100, 256));
    EXPECT_EQ(at(now, B), CRect(104, 0, 400, 50));
    EXPECT_EQ(now.center, CRect(104, 54, 400, 256));
    EXPECT_EQ(layout.panes(), (std::vector<PaneKey>{C, A, B}));
}

TEST(FrameLayout, docks_a_pane_elsewhere_in_place_of_where_it_was) {
    FrameLayout layout;
    layout.dock(SplitTree(A), Side::left, 100, false);
    layout.dock(SplitTree(A), Side::right, 60, false);
    EXPECT_EQ(layout.rows().size(), 1u);
    EXPECT_EQ(layout.side_of(A), Side::right);
    layout.dock(SplitTree(B), Side::left, 60, false);
    EXPECT_TRUE(layout.dock_beside(SplitTree(A), B, Side::bottom, 0, 0));
    EXPECT_EQ(layout.rows().size(), 1u);
    EXPECT_EQ(layout.side_of(A), Side::left);
    EXPECT_FALSE(layout.dock(SplitTree(), Side::left, 60, false));
}

TEST(FrameLayout, refuses_to_dock_beside_itself_or_what_is_not_there) {
    FrameLayout layout;
    layout.dock(SplitTree(A), Side::left, 100, false);
    EXPECT_FALSE(layout.dock_beside(SplitTree(A), A, Side::bottom, 0, 0));
    EXPECT_FALSE(layout.dock_beside(SplitTree(B), C, Side::bottom, 0, 0));
    EXPECT_FALSE(layout.dock_beside(SplitTree(), A, Side::bottom, 0, 0));
    EXPECT_EQ(layout.panes(), std::vector<PaneKey>({A}));
}

TEST(FrameLayout, docks_beside_a_pane_with_its_extent) {
    FrameLayout layout;
    layout.dock(SplitTree(A), Side::left, 100, false);
    ASSERT_TRUE(layout.dock_beside(SplitTree(B), A, Side::top, 74, 296));
    const Arrangement now = layout.arrange(kFrame, rules_with(CSize(10, 10)));
    EXPECT_EQ(at(now, B), CRect(0, 0, 100, 74));
    EXPECT_EQ(at(now, A), CRect(0, 78, 100, 300));
}

TEST(FrameLayout, drops_a_row_with_its_last_pane) {
    FrameLayout layout;
    layout.dock(SplitTree(A), Side::left, 100, false);
    EXPECT_TRUE(layout.remove(A));
    EXPECT_FALSE(layout.remove(A));
    EXPECT_TRUE(layout.rows().empty());
    EXPECT_EQ(layout.arrange(kFrame, {}).center, kFrame);
}

TEST(FrameLayout, gives_a_hidden_row_no_room_and_its_place_back) {
    FrameLayout layout;
    layout.dock(SplitTree(A), Side::left, 100, false);
    layout.dock(SplitTree(B), Side::left, 70, false);
    layout.set_shown(A, false);
    Arrangement now = layout.arrange(kFrame, rules_with(CSize(10, 10)));
    EXPECT_EQ(at(now, B), CRect(0, 0, 70, 300));
    EXPECT_EQ(now.dividers.size(), 1u);
    EXPECT_FALSE(layout.shows(A));
    EXPECT_TRUE(layout.contains(A));
    layout.set_shown(A, true);
    now = layout.arrange(kFrame, rules_with(CSize(10, 10)));
    EXPECT_EQ(at(now, A), CRect(0, 0, 100, 300));
    EXPECT_EQ(at(now, B), CRect(104, 0, 174, 300));
    EXPECT_FALSE(layout.set_shown(C, true));
}

TEST(FrameLayout, gives_from_the_inside_out_when_the_frame_shrinks_and_all_back_when_it_grows) {
    FrameLayout layout;
    layout.dock(SplitTree(A), Side::left, 150, false);
    layout.dock(SplitTree(B), Side::right, 150, false);
    const Rules rules = rules_with(CSize(40, 10), CSize(20, 20));
    Arrangement now = layout.arrange(CRect(0, 0, 300, 100), rules);
    EXPECT_EQ(at(now, A).Width(), 150);
    EXPECT_EQ(at(now, B).Width(), 300 - 150 - 8 - 20);
    EXPECT_EQ(now.center.Width(), 20);
    now = layout.arrange(CRect(0, 0, 200, 100), rules);
    EXPECT_EQ(at(now, B).Width(), 40);
    EXPECT_EQ(at(now, A).Width(), 200 - 40 - 8 - 20);
    now = layout.arrange(CRect(0, 0, 108, 100), rules);
    EXPECT_EQ(at(now, A).Width(), 40);
    EXPECT_EQ(at(now, B).Width(), 40);
    now = layout.arrange(CRect(0, 0, 500, 100), rules);
    EXPECT_EQ(at(now, A).Width(), 150);
    EXPECT_EQ(at(now, B).Width(), 150);
}

TEST(FrameLayout, keeps_room_for_the_length_of_rows_further_inside) {
    FrameLayout layout;
    layout.dock(SplitTree(A), Side::left, 300, false);
    SplitTree two(B);
    two.insert(C, B, Side::right, 0, 0);
    layout.dock(two, Side::top, 50, false);
    const Arrangement now = layout.arrange(CRect(0, 0, 400, 200), rules_with(CSize(80, 10)));
    EXPECT_EQ(at(now, B).Width(), 80);
    EXPECT_EQ(at(now, C).Width(), 80);
    EXPECT_EQ(at(now, A).Width(), 400 - 4 - 164);
}

TEST(FrameLayout, shares_a_shortage_by_the_least_extents) {
    FrameLayout layout;
    layout.dock(SplitTree(A), Side::left, 150, false);
    const Arrangement now = layout.arrange(CRect(0, 0, 34, 100), rules_with(CSize(40, 10), CSize(20, 20)));
    EXPECT_EQ(at(now, A).Width(), 20);
    EXPECT_EQ(now.center.Width(), 10);
    const Arrangement none = layout.arrange(CRect(0, 0, -5, -5), rules_with(CSize(40, 10)));
    EXPECT_EQ(none.center, CRect(0, 0, 0, 0));
}

TEST(FrameLayout, moves_the_divider_of_a_row_between_its_least_extent_and_that_of_the_middle) {
    const struct {
        Side side;
        int outwards;
    } cases[] = {{Side::left, -1}, {Side::right, 1}, {Side::top, -1}, {Side::bottom, 1}};
    const Rules rules = rules_with(CSize(30, 30), CSize(50, 60));
    for (const auto& c : cases) {
        FrameLayout layout;
        layout.dock(SplitTree(A), c.side, 100, false);
        const bool upright = is_upright(c.side);
        const auto extent = [&] {
            const CRect rect = at(layout.arrange(kFrame, rules), A);
            return upright ? rect.Width() : rect.Height();
        };
        const int id = layout.rows()[0].id;
        EXPECT_EQ(layout.move_divider(id, 10 * c.outwards, layout.arrange(kFrame, rules), rules),
                  10 * c.outwards);
        EXPECT_EQ(extent(), 90);
        EXPECT_EQ(layout.move_divider(id, 500 * c.outwards, layout.arrange(kFrame, rules), rules),
                  60 * c.outwards);
        EXPECT_EQ(extent(), 30);
        layout.move_divider(id, -1000 * c.outwards, layout.arrange(kFrame, rules), rules);
        EXPECT_EQ(extent(), upright ? 400 - 4 - 50 : 300 - 4 - 60);
    }
    FrameLayout layout;
    EXPECT_EQ(layout.move_divider(-1, 5, layout.arrange(kFrame, rules), rules), 0);
}

TEST(FrameLayout, growing_a_row_takes_from_the_middle_alone) {
    FrameLayout layout;
    layout.dock(SplitTree(A), Side::left, 100, false);
    layout.dock(SplitTree(B), Side::left, 100, false);
    const Rules rules = rules_with(CSize(10, 10), CSize(50, 50));
    layout.move_divider(layout.rows()[0].id, 1000, layout.arrange(kFrame, rules), rules);
    const Arrangement now = layout.arrange(kFrame, rules);
    EXPECT_EQ(at(now, A).Width(), 400 - 8 - 100 - 50);
    EXPECT_EQ(at(now, B).Width(), 100);
}

TEST(FrameLayout, moves_a_divider_inside_a_row) {
    FrameLayout layout;
    layout.dock(SplitTree(A), Side::left, 100, false);
    layout.dock_beside(SplitTree(B), A, Side::bottom, 0, 0);
    const Rules rules = rules_with(CSize(10, 10));
    const Arrangement before = layout.arrange(kFrame, rules);
    const auto inner = before.dividers[0].atEdge ? before.dividers[1] : before.dividers[0];
    EXPECT_EQ(layout.move_divider(inner.id, -20, before, rules), -20);
    const Arrangement now = layout.arrange(kFrame, rules);
    EXPECT_EQ(at(now, A).Height(), at(before, A).Height() - 20);
    EXPECT_EQ(at(now, B).Height(), at(before, B).Height() + 20);
    EXPECT_EQ(at(now, A).Width(), 100);
}

TEST(FrameLayout, puts_a_pane_in_the_place_of_another_and_takes_it_from_its_own) {
    FrameLayout layout;
    layout.dock(SplitTree(A), Side::left, 100, false);
    layout.dock(SplitTree(B), Side::right, 100, false);
    EXPECT_TRUE(layout.replace(A, B));
    EXPECT_EQ(layout.rows().size(), 1u);
    EXPECT_EQ(layout.side_of(B), Side::left);
    EXPECT_FALSE(layout.replace(B, B));
    EXPECT_FALSE(layout.replace(B, 0));
    EXPECT_FALSE(layout.replace(D, A));
}

}  // namespace
