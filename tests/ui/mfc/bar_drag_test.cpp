// Dragging toolbars by the gripper and by the caption of their frame.
#include "docking_bars_fixture.h"

using namespace docking;

namespace {
constexpr int kThick = 17, kLong = 62;  // pixels of the bar of the fixture
}

class BarDrag : public DockingBars {
protected:
    CMFCToolBar& floating_bar() {
        CMFCToolBar& bar = docked_bar();
        bar.FloatPane(CRect(300, 250, 300, 250));
        return bar;
    }
    /// Takes the frame by its caption.
    void take(const CMFCToolBar& bar) {
        const CPaneFrameWnd& mini = *bar.GetParentMiniFrame();
        const CPoint held = on_screen(mini).TopLeft() + CSize(16, 8);
        press(mini, held);
        move(held + CSize(8, 8));
    }
};

TEST_F(BarDrag, along_its_row_a_bar_follows_the_mouse) {
    CMFCToolBar& bar = docked_bar();
    const CPoint held = gripper_of(bar);
    press(bar, held);
    move(held + CSize(1, 0));
    EXPECT_FALSE(manager().is_dragging());
    move(held + CSize(120, 2));
    EXPECT_EQ(in_frame(bar), CRect(120, 0, 120 + kLong, kThick));
    move(held + CSize(-15, 2));
    EXPECT_EQ(in_frame(bar).left, 0);
    move(held + CSize(80, 2));
    release(held + CSize(80, 2));
    EXPECT_EQ(in_frame(bar).left, 80);
    EXPECT_FALSE(manager().is_dragging());
    EXPECT_EQ(::GetCapture(), nullptr);
    check_frame();
}

TEST_F(BarDrag, over_another_row_it_joins_and_pushes_its_neighbours) {
    CMFCToolBar &one = docked_bar(), &two = docked_bar();
    drag(two, on_frame(40, 8));
    EXPECT_EQ(in_frame(two).top, 0);
    EXPECT_EQ(in_frame(one), CRect(0, 0, kLong, kThick));
    EXPECT_EQ(in_frame(two).left, kLong);
    move(on_frame(4, 8));
    EXPECT_EQ(in_frame(two).left, 0);
    EXPECT_EQ(in_frame(one).left, kLong);
    release(on_frame(4, 8));
    EXPECT_EQ(in_frame(view).top, kThick);
    check_frame();
}

TEST_F(BarDrag, on_the_edge_between_two_rows_it_begins_one_there) {
    CMFCToolBar &one = docked_bar(), &two = docked_bar(), &three = docked_bar();
    drag(three, on_frame(70, kThick));
    EXPECT_EQ(in_frame(three).top, kThick);
    EXPECT_EQ(in_frame(two).top, 2 * kThick);
    EXPECT_EQ(in_frame(one).top, 0);
    // It stays there while the mouse rests.
    move(on_frame(70, kThick));
    move(on_frame(71, kThick + 1));
    EXPECT_EQ(in_frame(one).top, 0);
    EXPECT_EQ(in_frame(three).top, kThick);
    EXPECT_EQ(in_frame(two).top, 2 * kThick);
    move(on_frame(70, 8));
    EXPECT_EQ(in_frame(three).top, 0);
    EXPECT_EQ(in_frame(two).top, kThick);
    release(on_frame(70, 8));
    check_frame();
}

TEST_F(BarDrag, below_the_last_row_it_begins_a_new_one) {
    CMFCToolBar &one = docked_bar(), &two = make_bar();
    frame->DockPaneLeftOf(&two, &one);
    drag(two, on_frame(100, kThick + 4));
    release(on_frame(100, kThick + 4));
    EXPECT_EQ(in_frame(two).top, kThick);
    EXPECT_EQ(in_frame(one).top, 0);
    check_frame();
}

TEST_F(BarDrag, to_another_side_it_stands_upright_there) {
    CMFCToolBar& bar = docked_bar();
    drag(bar, on_frame(5, 200));
    EXPECT_EQ(in_frame(bar).left, 0);
    EXPECT_EQ(in_frame(bar).Size(), CSize(kThick, kLong));
    EXPECT_NEAR(in_frame(bar).top, 200 - 4, 4);
    release(on_frame(5, 200));
    EXPECT_EQ(bar.GetCurrentAlignment(), static_cast<DWORD>(CBRS_ALIGN_LEFT));
    check_frame();
    drag(bar, on_frame(300, 495));
    release(on_frame(300, 495));
    EXPECT_EQ(in_frame(bar).bottom, 500);
    EXPECT_EQ(bar.GetCurrentAlignment(), static_cast<DWORD>(CBRS_ALIGN_BOTTOM));
    drag(bar, on_frame(696, 100));
    release(on_frame(696, 100));
    EXPECT_EQ(in_frame(bar).right, 700);
    check_frame();
}

TEST_F(BarDrag, away_from_all_edges_it_floats_under_the_mouse_and_docks_again_at_an_edge) {
    CMFCToolBar& bar = docked_bar();
    drag(bar, on_frame(300, 200));
    ASSERT_TRUE(bar.IsFloating());
    const CRect mini = on_screen(*bar.GetParentMiniFrame());
    EXPECT_TRUE(mini.PtInRect(on_frame(300, 200)));
    EXPECT_EQ(in_frame(view).top, 0);
    move(on_frame(340, 230));
    EXPECT_EQ(on_screen(*bar.GetParentMiniFrame()).TopLeft(), mini.TopLeft() + CSize(40, 30));
    move(on_frame(350, 3));
    EXPECT_TRUE(bar.IsDocked());
    release(on_frame(350, 3));
    EXPECT_NEAR(in_frame(bar).left, 346, 5);
    ui_test::pump();
    EXPECT_TRUE(manager().GetMiniFrames().IsEmpty());
    check_frame();
}

TEST_F(BarDrag, a_side_that_the_bar_or_the_frame_does_not_allow_leaves_it_floating) {
    CMFCToolBar& bar = docked_bar();
    bar.EnableDocking(CBRS_ALIGN_TOP);
    drag(bar, on_frame(5, 200));
    EXPECT_TRUE(bar.IsFloating());
    move(on_frame(300, 5));
    EXPECT_TRUE(bar.IsDocked());
    release(on_frame(300, 5));
}

TEST_F(BarDrag, control_keeps_it_from_docking) {
    CMFCToolBar& bar = docked_bar();
    drag(bar, on_frame(200, 8), MK_LBUTTON | MK_CONTROL);
    EXPECT_TRUE(bar.IsFloating());
    move(on_frame(5, 200), MK_LBUTTON | MK_CONTROL);
    EXPECT_TRUE(bar.IsFloating());
    move(on_frame(5, 200));
    EXPECT_TRUE(bar.IsDocked());
    release(on_frame(5, 200));
}

TEST_F(BarDrag, escape_puts_everything_back) {
    CMFCToolBar &one = docked_bar(), &two = docked_bar();
    const CRect first = in_frame(one), second = in_frame(two);
    for (const CPoint to : {on_frame(34, 8), on_frame(300, 200), on_frame(5, 300)}) {
        drag(two, to);
        key(VK_ESCAPE);
        EXPECT_EQ(in_frame(one), first);
        EXPECT_EQ(in_frame(two), second);
        EXPECT_FALSE(two.IsUpright());
        EXPECT_FALSE(manager().is_dragging());
        EXPECT_EQ(::GetCapture(), nullptr);
        check_frame();
    }
}

TEST_F(BarDrag, losing_the_mouse_gives_the_drag_up) {
    CMFCToolBar& bar = docked_bar();
    const CRect place = in_frame(bar);
    drag(bar, on_frame(300, 200));
    view.SetCapture();
    EXPECT_EQ(in_frame(bar), place);
    EXPECT_FALSE(manager().is_dragging());
    ::ReleaseCapture();
}

TEST_F(BarDrag, a_floating_bar_is_dragged_by_its_caption_and_docks) {
    CMFCToolBar& bar = floating_bar();
    const CPoint corner = on_screen(*bar.GetParentMiniFrame()).TopLeft();
    take(bar);
    EXPECT_EQ(on_screen(*bar.GetParentMiniFrame()).TopLeft(), corner + CSize(8, 8));
    move(on_frame(5, 240));
    EXPECT_TRUE(bar.IsDocked());
    release(on_frame(5, 240));
    EXPECT_EQ(in_frame(bar).left, 0);
    EXPECT_TRUE(bar.IsUpright());
    check_frame();
}

TEST_F(BarDrag, escape_puts_a_floating_bar_back_where_it_floated) {
    CMFCToolBar& bar = floating_bar();
    const CRect place = on_screen(*bar.GetParentMiniFrame());
    take(bar);
    move(on_frame(500, 400));
    key(VK_ESCAPE);
    ASSERT_TRUE(bar.IsFloating());
    EXPECT_EQ(on_screen(*bar.GetParentMiniFrame()), place);
    take(bar);
    move(on_frame(5, 240));
    EXPECT_TRUE(bar.IsDocked());
    key(VK_ESCAPE);
    ASSERT_TRUE(bar.IsFloating());
    EXPECT_EQ(on_screen(*bar.GetParentMiniFrame()), place);
    check_frame();
}

TEST_F(BarDrag, a_bar_destroyed_in_a_drag_ends_it) {
    CMFCToolBar& bar = docked_bar();
    drag(bar, on_frame(300, 200));
    bar.DestroyWindow();
    EXPECT_FALSE(manager().is_dragging());
    move(on_frame(310, 200));
    ::ReleaseCapture();
    check_frame();
}
