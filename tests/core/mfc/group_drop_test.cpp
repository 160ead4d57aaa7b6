// Where a tab goes that is dropped on a group of documents.
#include <gtest/gtest.h>

#include <docking/core/group_drop.h>

namespace {

using namespace kmfc::docking;

GroupTarget target() {
    GroupTarget made;
    made.rect = CRect(100, 100, 500, 300);
    made.strip = CRect(100, 100, 500, 120);
    return made;
}

TEST(GroupDrop, the_middle_and_the_strip_join) {
    for (const CPoint point : {CPoint(300, 200), CPoint(102, 110), CPoint(499, 119)}) {
        const GroupDrop drop = drop_on_group(target(), point);
        EXPECT_TRUE(drop.changes);
        EXPECT_FALSE(drop.side.has_value());
        EXPECT_EQ(drop.place, CRect(100, 100, 500, 300));
    }
}

TEST(GroupDrop, the_outer_quarters_are_new_groups) {
    const struct {
        CPoint point;
        Side side;
        CRect place;
    } kCases[] = {{CPoint(199, 200), Side::left, CRect(100, 100, 300, 300)},
                  {CPoint(400, 200), Side::right, CRect(300, 100, 500, 300)},
                  {CPoint(300, 149), Side::top, CRect(100, 100, 500, 200)},
                  {CPoint(300, 250), Side::bottom, CRect(100, 200, 500, 300)}};
    for (const auto& each : kCases) {
        const GroupDrop drop = drop_on_group(target(), each.point);
        ASSERT_TRUE(drop.side.has_value()) << each.point.x << "," << each.point.y;
        EXPECT_EQ(*drop.side, each.side);
        EXPECT_EQ(drop.place, each.place);
        EXPECT_TRUE(drop.changes);
    }
    for (const CPoint inside : {CPoint(200, 200), CPoint(399, 200), CPoint(300, 150), CPoint(300, 249)})
        EXPECT_FALSE(drop_on_group(target(), inside).side.has_value()) << inside.x << "," << inside.y;
}

TEST(GroupDrop, of_two_edges_the_nearer_one_counts) {
    EXPECT_EQ(drop_on_group(target(), CPoint(110, 280)).side, Side::left);
    EXPECT_EQ(drop_on_group(target(), CPoint(130, 295)).side, Side::bottom);
}

TEST(GroupDrop, edges_that_may_not_have_a_group_join) {
    GroupTarget lying = target();
    lying.mayStand = false;
    EXPECT_FALSE(drop_on_group(lying, CPoint(110, 200)).side.has_value());
    EXPECT_EQ(drop_on_group(lying, CPoint(110, 280)).side, Side::bottom);
    GroupTarget standing = target();
    standing.mayLie = false;
    EXPECT_FALSE(drop_on_group(standing, CPoint(300, 295)).side.has_value());
    EXPECT_EQ(drop_on_group(standing, CPoint(130, 295)).side, Side::left);
}

TEST(GroupDrop, its_own_group_only_takes_new_ones) {
    GroupTarget own = target();
    own.own = true;
    EXPECT_FALSE(drop_on_group(own, CPoint(300, 200)).changes);
    EXPECT_FALSE(drop_on_group(own, CPoint(300, 110)).changes);
    EXPECT_TRUE(drop_on_group(own, CPoint(110, 200)).changes);
}

TEST(GroupDrop, outside_nothing_happens) {
    for (const CPoint point : {CPoint(99, 200), CPoint(500, 200), CPoint(300, 300), CPoint(-5, -5)})
        EXPECT_FALSE(drop_on_group(target(), point).changes);
    EXPECT_FALSE(drop_on_group(GroupTarget(), CPoint(0, 0)).changes);
}

}  // namespace
