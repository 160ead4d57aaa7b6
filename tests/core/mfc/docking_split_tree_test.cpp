// Panes beside and below each other: shares, least sizes, insertion, removal.
#include <gtest/gtest.h>

#include <docking/core/split_tree.h>

namespace {

using namespace kmfc::docking;

constexpr PaneKey A = 1, B = 2, C = 3, D = 4;

Arrangement laid_out(const SplitTree& tree, CRect area, const Rules& rules = {}) {
    Arrangement arrangement;
    tree.arrange(area, rules, arrangement);
    return arrangement;
}

CRect at(const Arrangement& arrangement, PaneKey pane) {
    const CRect* rect = arrangement.find(pane);
    return rect != nullptr ? *rect : CRect(-1, -1, -1, -1);
}

Rules with_least(CSize size) {
    Rules rules;
    rules.least = [size](PaneKey) { return size; };
    return rules;
}

TEST(Divide, gives_the_share_rounded_to_the_nearest_pixel) {
    EXPECT_EQ(divide(100, 250'000, 0, 0), 25);
    EXPECT_EQ(divide(3, 500'000, 0, 0), 2);
    EXPECT_EQ(divide(0, 500'000, 10, 10), 0);
    EXPECT_EQ(divide(-5, 500'000, 10, 10), 0);
}

TEST(Divide, keeps_both_least_extents_while_there_is_room) {
    EXPECT_EQ(divide(100, 0, 30, 20), 30);
    EXPECT_EQ(divide(100, kWhole, 30, 20), 80);
    EXPECT_EQ(divide(50, 100'000, 30, 20), 30);
}

TEST(Divide, shares_what_is_too_little_by_the_least_extents) {
    EXPECT_EQ(divide(25, 900'000, 30, 20), 15);
    EXPECT_EQ(divide(1, 500'000, 30, 20), 0);
}

TEST(SplitTree, gives_an_only_pane_all_the_room) {
    EXPECT_EQ(at(laid_out(SplitTree(A), CRect(5, 6, 105, 206)), A), CRect(5, 6, 105, 206));
}

TEST(SplitTree, puts_a_pane_at_each_side_of_another) {
    struct Case {
        Side side;
        CRect added, kept, divider;
    };
    const Case cases[] = {
        {Side::left, {0, 0, 48, 100}, {52, 0, 100, 100}, {48, 0, 52, 100}},
        {Side::right, {52, 0, 100, 100}, {0, 0, 48, 100}, {48, 0, 52, 100}},
        {Side::top, {0, 0, 100, 48}, {0, 52, 100, 100}, {0, 48, 100, 52}},
        {Side::bottom, {0, 52, 100, 100}, {0, 0, 100, 48}, {0, 48, 100, 52}},
    };
    for (const Case& c : cases) {
        SplitTree tree(A);
        ASSERT_TRUE(tree.insert(B, A, c.side, 0, 0));
        const Arrangement now = laid_out(tree, CRect(0, 0, 100, 100));
        EXPECT_EQ(at(now, B), c.added);
        EXPECT_EQ(at(now, A), c.kept);
        ASSERT_EQ(now.dividers.size(), 1u);
        EXPECT_EQ(now.dividers[0].rect, c.divider);
        EXPECT_EQ(now.dividers[0].around, CRect(0, 0, 100, 100));
        EXPECT_EQ(now.dividers[0].upright, is_upright(c.side));
        EXPECT_FALSE(now.dividers[0].atEdge);
    }
}

TEST(SplitTree, gives_the_new_pane_its_extent_but_half_at_most) {
    SplitTree tree(A);
    ASSERT_TRUE(tree.insert(B, A, Side::left, 24, 96));
    EXPECT_EQ(at(laid_out(tree, CRect(0, 0, 100, 10)), B).Width(), 24);
    ASSERT_TRUE(tree.insert(C, B, Side::right, 20, 24));
    EXPECT_EQ(at(laid_out(tree, CRect(0, 0, 100, 10)), C).Width(), 10);
    for (const Side side : {Side::right, Side::bottom}) {
        SplitTree behind(A);
        ASSERT_TRUE(behind.insert(B, A, side, 24, 96));
        const CRect added = at(laid_out(behind, CRect(0, 0, 100, 100)), B);
        EXPECT_EQ(side == Side::right ? added.Width() : added.Height(), 24);
    }
}

TEST(SplitTree, refuses_a_pane_that_is_there_no_pane_and_a_target_that_is_not_there) {
    SplitTree tree(A);
    EXPECT_FALSE(tree.insert(A, A, Side::left, 0, 0));
    EXPECT_FALSE(tree.insert(B, C, Side::left, 0, 0));
    EXPECT_FALSE(tree.insert(0, A, Side::left, 0, 0));
    EXPECT_FALSE(tree.graft(SplitTree(), A, Side::left, 0, 0));
    EXPECT_EQ(tree.panes(), std::vector<PaneKey>({A}));
    EXPECT_EQ(at(laid_out(tree, CRect(0, 0, 10, 10)), A), CRect(0, 0, 10, 10));
}

TEST(SplitTree, takes_the_first_pane_into_an_empty_tree) {
    SplitTree tree;
    EXPECT_TRUE(tree.insert(A, 0, Side::left, 0, 0));
    EXPECT_TRUE(tree.insert(B, 0, Side::top, 0, 0));
    EXPECT_EQ(tree.panes(), (std::vector<PaneKey>{B, A}));
}

TEST(SplitTree, grafts_another_tree_in_its_order) {
    SplitTree tree(A), other(B);
    ASSERT_TRUE(other.insert(C, B, Side::right, 0, 0));
    ASSERT_TRUE(tree.graft(other, A, Side::left, 0, 0));
    EXPECT_EQ(tree.panes(), (std::vector<PaneKey>{B, C, A}));
    EXPECT_FALSE(tree.graft(other, A, Side::left, 0, 0));
    // The parents are right: what is grafted can be taken out again.
    EXPECT_TRUE(tree.remove(C));
    EXPECT_TRUE(tree.remove(A));
    EXPECT_EQ(at(laid_out(tree, CRect(0, 0, 10, 10)), B), CRect(0, 0, 10, 10));
}

TEST(SplitTree, gives_the_room_of_a_removed_pane_to_its_neighbour) {
    SplitTree tree(A);
    tree.insert(B, A, Side::right, 0, 0);
    tree.insert(C, B, Side::bottom, 0, 0);
    EXPECT_TRUE(tree.remove(B));
    const Arrangement now = laid_out(tree, CRect(0, 0, 100, 100));
    EXPECT_EQ(at(now, C), CRect(52, 0, 100, 100));
    EXPECT_EQ(now.dividers.size(), 1u);
    EXPECT_FALSE(tree.remove(B));
    EXPECT_TRUE(tree.remove(A));
    EXPECT_TRUE(tree.remove(C));
    EXPECT_TRUE(tree.empty());
}

TEST(SplitTree, keeps_the_place_of_a_pane_that_is_not_shown) {
    SplitTree tree(A);
    tree.insert(B, A, Side::right, 30, 100);
    tree.insert(C, B, Side::bottom, 0, 0);
    const Arrangement before = laid_out(tree, CRect(0, 0, 200, 100));
    EXPECT_TRUE(tree.set_shown(B, false));
    EXPECT_FALSE(tree.shows(B));
    const Arrangement without = laid_out(tree, CRect(0, 0, 200, 100));
    EXPECT_EQ(without.find(B), nullptr);
    EXPECT_EQ(at(without, C).Height(), 100);
    EXPECT_EQ(without.dividers.size(), 1u);
    tree.set_shown(B, true);
    const Arrangement after = laid_out(tree, CRect(0, 0, 200, 100));
    for (const PaneKey pane : {A, B, C}) EXPECT_EQ(at(after, pane), at(before, pane));
}

TEST(SplitTree, takes_no_room_when_nothing_is_shown) {
    SplitTree tree(A);
    tree.set_shown(A, false);
    EXPECT_FALSE(tree.shows_any());
    EXPECT_TRUE(laid_out(tree, CRect(0, 0, 10, 10)).panes.empty());
    EXPECT_EQ(tree.least(with_least(CSize(9, 9))), CSize(0, 0));
    EXPECT_FALSE(tree.set_shown(B, true));
}

TEST(SplitTree, adds_least_sizes_along_and_takes_the_largest_across) {
    SplitTree tree(A);
    tree.insert(B, A, Side::right, 0, 0);
    tree.insert(C, B, Side::bottom, 0, 0);
    Rules rules;
    rules.divider = 5;
    rules.least = [](PaneKey pane) {
        return pane == A ? CSize(10, 100) : pane == B ? CSize(20, 30) : CSize(25, 40);
    };
    EXPECT_EQ(tree.least(rules), CSize(10 + 5 + 25, 100));
    tree.set_shown(A, false);
    EXPECT_EQ(tree.least(rules), CSize(25, 30 + 5 + 40));
}

TEST(SplitTree, keeps_a_hidden_neighbours_least_size_out) {
    SplitTree tree(A);
    tree.insert(B, A, Side::right, 0, 0);
    tree.set_shown(B, false);
    EXPECT_EQ(tree.least(with_least(CSize(7, 8))), CSize(7, 8));
}

TEST(SplitTree, moves_a_divider_as_far_as_least_sizes_allow) {
    SplitTree tree(A);
    tree.insert(B, A, Side::right, 0, 0);
    const Rules rules = with_least(CSize(20, 10));
    const CRect area(0, 0, 104, 50);
    Arrangement now = laid_out(tree, area, rules);
    EXPECT_EQ(tree.move_divider(now.dividers[0], 13, rules), 13);
    now = laid_out(tree, area, rules);
    EXPECT_EQ(at(now, A).Width(), 63);
    EXPECT_EQ(at(now, B).Width(), 37);
    EXPECT_EQ(tree.move_divider(now.dividers[0], 1000, rules), 17);
    now = laid_out(tree, area, rules);
    EXPECT_EQ(at(now, B).Width(), 20);
    EXPECT_EQ(tree.move_divider(now.dividers[0], -1000, rules), -60);
    EXPECT_EQ(at(laid_out(tree, area, rules), A).Width(), 20);
    PlacedDivider foreign;
    foreign.id = -1;
    EXPECT_EQ(tree.move_divider(foreign, 5, rules), 0);
}

TEST(SplitTree, leaves_a_divider_where_there_is_no_room_to_move_it) {
    SplitTree tree(A);
    tree.insert(B, A, Side::bottom, 0, 0);
    const Rules rules = with_least(CSize(20, 60));
    const Arrangement now = laid_out(tree, CRect(0, 0, 100, 100), rules);
    EXPECT_EQ(tree.move_divider(now.dividers[0], 5, rules), 0);
}

TEST(SplitTree, keeps_shares_while_it_is_sized_and_comes_back_to_the_pixel) {
    SplitTree tree(A);
    tree.insert(B, A, Side::right, 0, 0);
    tree.insert(C, A, Side::bottom, 0, 0);
    const Rules rules = with_least(CSize(10, 10));
    const CRect area(0, 0, 777, 555);
    Arrangement now = laid_out(tree, area, rules);
    tree.move_divider(now.dividers[0], 41, rules);
    const Arrangement before = laid_out(tree, area, rules);
    for (int size = 1; size < 700; size += 13) laid_out(tree, CRect(0, 0, size, size), rules);
    const Arrangement after = laid_out(tree, area, rules);
    for (const PaneKey pane : {A, B, C}) EXPECT_EQ(at(after, pane), at(before, pane));
    // Twice the room, twice the width (within the pixel that is rounded).
    EXPECT_NEAR(at(laid_out(tree, CRect(0, 0, 1554, 555), rules), A).Width(), 2 * at(before, A).Width() + 2,
                2);
}

TEST(SplitTree, puts_another_pane_in_a_place) {
    SplitTree tree(A);
    tree.insert(B, A, Side::right, 0, 0);
    const CRect place = at(laid_out(tree, CRect(0, 0, 100, 100)), B);
    EXPECT_TRUE(tree.replace(B, C));
    EXPECT_EQ(at(laid_out(tree, CRect(0, 0, 100, 100)), C), place);
    EXPECT_FALSE(tree.contains(B));
    EXPECT_FALSE(tree.replace(C, A));
    EXPECT_FALSE(tree.replace(B, D));
    EXPECT_FALSE(tree.replace(A, 0));
}

TEST(SplitTree, copies_do_not_share_anything) {
    SplitTree tree(A);
    tree.insert(B, A, Side::right, 0, 0);
    SplitTree copy = tree;
    copy.remove(A);
    EXPECT_TRUE(tree.contains(A));
    EXPECT_TRUE(tree.remove(B));
    EXPECT_TRUE(copy.contains(B));
    SplitTree third(D);
    third = tree;
    EXPECT_TRUE(third.contains(A));
    EXPECT_FALSE(third.contains(D));
}

TEST(SplitTree, fits_into_less_than_a_divider) {
    SplitTree tree(A);
    tree.insert(B, A, Side::right, 0, 0);
    const Arrangement now = laid_out(tree, CRect(0, 0, 3, 10));
    EXPECT_EQ(now.dividers[0].rect, CRect(0, 0, 3, 10));
    EXPECT_EQ(at(now, A).Width(), 0);
    EXPECT_EQ(at(now, B).Width(), 0);
}

}  // namespace
