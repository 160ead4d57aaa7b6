// What a drop at a point means.
#include <gtest/gtest.h>

#include <docking/core/drop_target.h>

namespace {

using namespace kmfc::docking;

constexpr PaneKey A = 1, B = 2;

/// A frame of 1000 by 800 with a pane of 200 at the left, whose caption is 20 high.
DropScene scene() {
    DropScene s;
    s.frame = CRect(0, 0, 1000, 800);
    s.center = CRect(204, 0, 1000, 800);
    s.panes.push_back({A, CRect(0, 0, 200, 800), CRect(0, 0, 200, 20), CRect(0, 780, 200, 800)});
    return s;
}

CRect guide_of(const DropScene& s, const CPoint& point, const Drop& drop) {
    for (const Guide& guide : guides_at(s, point))
        if (guide.drop == drop) return guide.rect;
    return CRect(0, 0, 0, 0);
}

TEST(DropTarget, shows_four_edge_guides_and_a_cross_over_the_pane_under_the_pointer) {
    const DropScene s = scene();
    const CPoint over(100, 300);
    EXPECT_EQ(guides_at(s, over).size(), 9u);
    EXPECT_EQ(guide_of(s, over, {DropKind::tab, Side::left, A}), CRect(84, 384, 116, 416));
    EXPECT_EQ(guide_of(s, over, {DropKind::beside, Side::left, A}), CRect(48, 384, 80, 416));
    EXPECT_EQ(guide_of(s, over, {DropKind::beside, Side::right, A}), CRect(120, 384, 152, 416));
    EXPECT_EQ(guide_of(s, over, {DropKind::beside, Side::top, A}), CRect(84, 348, 116, 380));
    EXPECT_EQ(guide_of(s, over, {DropKind::beside, Side::bottom, A}), CRect(84, 420, 116, 452));
}

TEST(DropTarget, places_edge_guides_half_their_length_inside_the_frame) {
    const DropScene s = scene();
    const CPoint over(600, 300);
    EXPECT_EQ(guide_of(s, over, {DropKind::frameEdge, Side::left, 0}), CRect(16, 384, 48, 416));
    EXPECT_EQ(guide_of(s, over, {DropKind::frameEdge, Side::right, 0}), CRect(952, 384, 984, 416));
    EXPECT_EQ(guide_of(s, over, {DropKind::frameEdge, Side::top, 0}), CRect(484, 16, 516, 48));
    EXPECT_EQ(guide_of(s, over, {DropKind::frameEdge, Side::bottom, 0}), CRect(484, 752, 516, 784));
}

TEST(DropTarget, shows_a_cross_without_a_tab_over_the_middle) {
    const DropScene s = scene();
    const CPoint over(600, 300);
    EXPECT_EQ(guides_at(s, over).size(), 8u);
    EXPECT_EQ(guide_of(s, over, {DropKind::innerEdge, Side::left, 0}), CRect(550, 384, 582, 416));
    EXPECT_EQ(drop_at(s, CPoint(560, 400)), (Drop{DropKind::innerEdge, Side::left, 0}));
}

TEST(DropTarget, shows_nothing_outside_the_frame_but_over_floating_panes) {
    DropScene s = scene();
    EXPECT_TRUE(guides_at(s, CPoint(1500, 100)).empty());
    s.panes.insert(s.panes.begin(),
                   {B, CRect(1400, 0, 1600, 200), CRect(1400, 0, 1600, 20), CRect(0, 0, 0, 0)});
    EXPECT_EQ(guides_at(s, CPoint(1500, 100)).size(), 5u);
}

TEST(DropTarget, asks_the_topmost_pane) {
    DropScene s = scene();
    s.panes.insert(s.panes.begin(), {B, CRect(0, 0, 300, 300), CRect(0, 0, 300, 20), CRect(0, 0, 0, 0)});
    EXPECT_EQ(drop_at(s, CPoint(150, 150)), (Drop{DropKind::tab, Side::left, B}));
}

TEST(DropTarget, drops_on_the_guide_under_the_pointer) {
    const DropScene s = scene();
    EXPECT_EQ(drop_at(s, CPoint(100, 400)), (Drop{DropKind::tab, Side::left, A}));
    EXPECT_EQ(drop_at(s, CPoint(60, 400)), (Drop{DropKind::beside, Side::left, A}));
    EXPECT_EQ(drop_at(s, CPoint(100, 360)), (Drop{DropKind::beside, Side::top, A}));
    EXPECT_EQ(drop_at(s, CPoint(970, 400)), (Drop{DropKind::frameEdge, Side::right, 0}));
    EXPECT_EQ(drop_at(s, CPoint(300, 300)).kind, DropKind::none);
    EXPECT_EQ(drop_at(s, CPoint(100, 300)).kind, DropKind::none);
}

TEST(DropTarget, makes_a_tab_on_the_caption_and_on_the_tabs) {
    const DropScene s = scene();
    EXPECT_EQ(drop_at(s, CPoint(10, 5)), (Drop{DropKind::tab, Side::left, A}));
    EXPECT_EQ(drop_at(s, CPoint(10, 790)), (Drop{DropKind::tab, Side::left, A}));
    EXPECT_EQ(drop_at(s, CPoint(10, 20)).kind, DropKind::none);
}

TEST(DropTarget, offers_only_allowed_sides) {
    DropScene s = scene();
    s.sides[static_cast<int>(Side::top)] = false;
    const CPoint over(600, 300);
    EXPECT_EQ(guides_at(s, over).size(), 6u);
    EXPECT_TRUE(guide_of(s, over, {DropKind::frameEdge, Side::top, 0}).IsRectEmpty());
    EXPECT_TRUE(guide_of(s, over, {DropKind::innerEdge, Side::top, 0}).IsRectEmpty());
    EXPECT_EQ(drop_near(s, CPoint(600, 2), 10).kind, DropKind::none);
}

TEST(DropTarget, asks_nothing_of_a_pane_that_takes_none) {
    DropScene s = scene();
    s.panes[0].takesSides = false;
    EXPECT_EQ(guides_at(s, CPoint(100, 300)).size(), 5u);
    s.panes[0].takesTabs = false;
    EXPECT_EQ(guides_at(s, CPoint(100, 300)).size(), 4u);
    EXPECT_EQ(drop_at(s, CPoint(10, 5)).kind, DropKind::none);
    s = scene();
    s.tabs = false;
    EXPECT_EQ(guides_at(s, CPoint(100, 300)).size(), 8u);
    EXPECT_EQ(drop_at(s, CPoint(10, 5)).kind, DropKind::none);
}

TEST(DropTarget, finds_near_edges_without_guides) {
    const DropScene s = scene();
    EXPECT_EQ(drop_near(s, CPoint(5, 400), 10), (Drop{DropKind::frameEdge, Side::left, 0}));
    EXPECT_EQ(drop_near(s, CPoint(995, 400), 10), (Drop{DropKind::frameEdge, Side::right, 0}));
    EXPECT_EQ(drop_near(s, CPoint(600, 795), 10), (Drop{DropKind::frameEdge, Side::bottom, 0}));
    EXPECT_EQ(drop_near(s, CPoint(195, 400), 10), (Drop{DropKind::beside, Side::right, A}));
    EXPECT_EQ(drop_near(s, CPoint(206, 400), 10), (Drop{DropKind::innerEdge, Side::left, 0}));
    EXPECT_EQ(drop_near(s, CPoint(100, 5), 10), (Drop{DropKind::tab, Side::left, A}));
    EXPECT_EQ(drop_near(s, CPoint(100, 400), 10).kind, DropKind::none);
    EXPECT_EQ(drop_near(s, CPoint(10, 400), 10).kind, DropKind::none);
    EXPECT_EQ(drop_near(s, CPoint(9, 400), 10).kind, DropKind::frameEdge);
}

}  // namespace
