// Rows of toolbars at the edges of a frame: docking, rows, hiding, floating, and what they leave to others.
#include "docking_bars_fixture.h"

using namespace docking;

using BarDocking = DockingBars;

namespace {
constexpr int kThick = 17, kLong = 62;  // pixels of the bar of the fixture
}

TEST_F(BarDocking, each_bar_that_is_docked_begins_a_row_further_inside) {
    CMFCToolBar &one = docked_bar(), &two = docked_bar();
    EXPECT_EQ(in_frame(one), CRect(0, 0, kLong, kThick));
    EXPECT_EQ(in_frame(two), CRect(0, kThick, kLong, 2 * kThick));
    EXPECT_EQ(in_frame(view), CRect(0, 2 * kThick, 700, 500));
    check_frame();
}

TEST_F(BarDocking, left_of_another_means_before_it_in_its_row) {
    CMFCToolBar &one = docked_bar(), &two = make_bar();
    EXPECT_TRUE(frame->DockPaneLeftOf(&two, &one));
    EXPECT_EQ(in_frame(two), CRect(0, 0, kLong, kThick));
    EXPECT_EQ(in_frame(one), CRect(kLong, 0, 2 * kLong, kThick));
    EXPECT_FALSE(frame->DockPaneLeftOf(&one, &one));
    CMFCToolBar& nowhere = make_bar();
    EXPECT_FALSE(frame->DockPaneLeftOf(&one, &nowhere));
    EXPECT_EQ(in_frame(one).left, kLong);
    check_frame();
}

TEST_F(BarDocking, above_and_below_take_the_whole_width_and_the_sides_stand_between) {
    CMFCToolBar &left = docked_bar(AFX_IDW_DOCKBAR_LEFT), &right = docked_bar(AFX_IDW_DOCKBAR_RIGHT);
    CMFCToolBar &top = docked_bar(AFX_IDW_DOCKBAR_TOP), &bottom = docked_bar(AFX_IDW_DOCKBAR_BOTTOM);
    EXPECT_EQ(in_frame(top).TopLeft(), CPoint(0, 0));
    EXPECT_EQ(in_frame(bottom), CRect(0, 500 - kThick, kLong, 500));
    EXPECT_EQ(in_frame(left), CRect(0, kThick, kThick, kThick + kLong));
    EXPECT_EQ(in_frame(right), CRect(700 - kThick, kThick, 700, kThick + kLong));
    EXPECT_EQ(in_frame(view), CRect(kThick, kThick, 700 - kThick, 500 - kThick));
    EXPECT_TRUE(left.IsUpright());
    EXPECT_FALSE(top.IsUpright());
    CRect first, second;
    left.GetItemRect(0, &first);
    left.GetItemRect(1, &second);
    EXPECT_EQ(first.left, second.left);
    EXPECT_EQ(first.bottom, second.top);
    check_frame();
}

TEST_F(BarDocking, at_the_far_sides_later_rows_stand_further_inside_too) {
    docked_bar(AFX_IDW_DOCKBAR_BOTTOM);
    docked_bar(AFX_IDW_DOCKBAR_RIGHT);
    CMFCToolBar &low = docked_bar(AFX_IDW_DOCKBAR_BOTTOM), &right = docked_bar(AFX_IDW_DOCKBAR_RIGHT);
    EXPECT_EQ(in_frame(low).bottom, 500 - kThick);
    EXPECT_EQ(in_frame(right).right, 700 - kThick);
    check_frame();
}

TEST_F(BarDocking, panes_and_fixed_bars_keep_their_order_around_them) {
    Pane& pane = docked(L"pane", AFX_IDW_DOCKBAR_LEFT);
    CMFCToolBar& bar = docked_bar(AFX_IDW_DOCKBAR_LEFT);
    EXPECT_EQ(in_frame(bar).left, 0);
    EXPECT_EQ(in_frame(pane).left, kThick);
    EXPECT_EQ(manager().GetOuterEdgeBounds(), CRect(kThick, 0, 700, 500));
    check_frame();
}

TEST_F(BarDocking, a_side_that_is_not_allowed_is_refused) {
    CMFCToolBar& bar = make_bar();
    bar.EnableDocking(CBRS_ALIGN_TOP);
    EXPECT_FALSE(bar.DockToFrameWindow(CBRS_ALIGN_LEFT));
    EXPECT_EQ(bar.GetParentDockSite(), nullptr);
    EXPECT_TRUE(bar.DockToFrameWindow(CBRS_ALIGN_TOP));
    ASSERT_NE(bar.GetParentDockSite(), nullptr);
    EXPECT_EQ(bar.GetParentDockSite()->GetDockSiteID(), static_cast<UINT>(AFX_IDW_DOCKBAR_TOP));
    EXPECT_FALSE(bar.DockToFrameWindow(CBRS_ALIGN_BOTTOM));
    EXPECT_EQ(in_frame(bar).top, 0);
}

TEST_F(BarDocking, a_rectangle_names_row_and_offset) {
    CMFCToolBar &one = docked_bar(), &two = make_bar();
    CRect wanted = on_screen(one) + CPoint(200, 3);
    frame->DockPane(&two, AFX_IDW_DOCKBAR_TOP, &wanted);
    EXPECT_EQ(in_frame(two), CRect(200, 0, 200 + kLong, kThick));
    CMFCToolBar& three = make_bar();
    wanted.OffsetRect(-100, 100);
    frame->DockPane(&three, AFX_IDW_DOCKBAR_TOP, &wanted);
    EXPECT_EQ(in_frame(three), CRect(100, kThick, 100 + kLong, 2 * kThick));
}

TEST_F(BarDocking, a_hidden_bar_gives_its_room_and_comes_back_to_its_place) {
    CMFCToolBar &one = docked_bar(), &two = docked_bar();
    frame->ShowPane(&one, FALSE, FALSE, FALSE);
    EXPECT_FALSE(one.IsWindowVisible());
    EXPECT_FALSE(one.IsVisible());
    EXPECT_EQ(in_frame(two).top, 0);
    check_frame();
    frame->ShowPane(&one, TRUE, TRUE, FALSE);
    EXPECT_EQ(in_frame(two).top, 0);
    idle();
    EXPECT_EQ(in_frame(one).top, 0);
    EXPECT_EQ(in_frame(two).top, kThick);
    EXPECT_TRUE(one.IsWindowVisible());
    check_frame();
}

TEST_F(BarDocking, a_narrow_frame_brings_bars_together_and_then_shortens_the_last) {
    CMFCToolBar &right = docked_bar(), &left = make_bar();
    frame->DockPaneLeftOf(&left, &right);
    const CRect wanted = on_screen(right) + CPoint(400, 0);
    frame->DockPane(&right, AFX_IDW_DOCKBAR_TOP, &wanted);
    ASSERT_EQ(in_frame(right).left, kLong + 400);
    const CRect outer = on_screen(*frame);
    const auto narrow = [&](int width) {
        frame->SetWindowPos(nullptr, 0, 0, outer.Width() - 700 + width, outer.Height(),
                            SWP_NOMOVE | SWP_NOZORDER);
    };
    narrow(300);
    EXPECT_EQ(in_frame(right), CRect(300 - kLong, 0, 300, kThick));
    EXPECT_EQ(in_frame(left).left, 0);
    check_frame();
    narrow(700);
    EXPECT_EQ(in_frame(right).left, kLong + 400);
}

TEST_F(BarDocking, a_floating_bar_is_as_large_as_its_rows_and_wraps_in_the_width_it_gets) {
    CMFCToolBar& bar = docked_bar();
    EXPECT_TRUE(bar.FloatPane(CRect(300, 200, 300, 200)));
    ASSERT_TRUE(bar.IsFloating());
    CPaneFrameWnd* mini = bar.GetParentMiniFrame();
    EXPECT_EQ(on_screen(*mini).TopLeft(), CPoint(300, 200));
    EXPECT_TRUE(mini->IsWindowVisible());
    CRect client;
    bar.GetClientRect(&client);
    EXPECT_EQ(client.Size(), CSize(54, 17));  // without a gripper
    EXPECT_EQ(in_frame(view), CRect(0, 0, 700, 500));
    bar.FloatPane(CRect(310, 210, 310 + 45, 400));
    mini = bar.GetParentMiniFrame();
    EXPECT_EQ(on_screen(*mini).TopLeft(), CPoint(310, 210));
    CRect first, last;
    bar.GetItemRect(0, &first);
    bar.GetItemRect(3, &last);
    EXPECT_EQ(last.top, first.bottom);
    EXPECT_TRUE(bar.GetButton(1)->m_bWrap);
    bar.GetClientRect(&client);
    EXPECT_EQ(client.Height(), 2 * 15 + 2);
}

TEST_F(BarDocking, the_frame_of_a_floating_bar_keeps_to_its_rows_when_it_is_sized) {
    CMFCToolBar& bar = docked_bar();
    bar.FloatPane(CRect(300, 200, 300, 200));
    CPaneFrameWnd* mini = bar.GetParentMiniFrame();
    const CRect one = on_screen(*mini);
    RECT sized = one;
    sized.right -= 12;
    mini->SendMessage(WM_SIZING, WMSZ_RIGHT, reinterpret_cast<LPARAM>(&sized));
    EXPECT_EQ(sized.bottom - sized.top, one.Height() + 15);
    EXPECT_EQ(sized.left, one.left);
    sized.left = one.left - 50;
    const LONG right = sized.right;
    mini->SendMessage(WM_SIZING, WMSZ_LEFT, reinterpret_cast<LPARAM>(&sized));
    EXPECT_EQ(sized.bottom - sized.top, one.Height());
    EXPECT_EQ(sized.right, right);
    EXPECT_EQ(sized.right - sized.left, one.Width());
    RECT low = one;
    low.bottom += 2 * 15;
    mini->SendMessage(WM_SIZING, WMSZ_BOTTOM, reinterpret_cast<LPARAM>(&low));
    EXPECT_EQ(low.bottom - low.top, one.Height() + 2 * 15);
    EXPECT_LT(low.right - low.left, one.Width());
    EXPECT_EQ(mini->HitTest(CPoint(one.right - 1, one.CenterPoint().y), TRUE), HTRIGHT);
}

TEST_F(BarDocking, closing_the_floating_frame_hides_the_bar_and_showing_it_brings_both_back) {
    CMFCToolBar& bar = docked_bar();
    bar.FloatPane(CRect(300, 200, 300, 200));
    CPaneFrameWnd* mini = bar.GetParentMiniFrame();
    mini->SendMessage(WM_CLOSE);
    EXPECT_FALSE(bar.IsVisible());
    EXPECT_FALSE(mini->IsWindowVisible());
    frame->ShowPane(&bar, TRUE, FALSE, FALSE);
    EXPECT_TRUE(mini->IsWindowVisible());
    EXPECT_TRUE(bar.IsWindowVisible());
}

TEST_F(BarDocking, a_double_click_changes_between_docked_and_floating_at_the_places_it_had) {
    docked_bar();
    CMFCToolBar& bar = docked_bar();
    docked_bar();
    const CRect place = in_frame(bar);
    double_click(bar, gripper_of(bar));
    ASSERT_TRUE(bar.IsFloating());
    CPaneFrameWnd* mini = bar.GetParentMiniFrame();
    mini->SetWindowPos(nullptr, 400, 300, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    double_click(*mini, caption_of(*mini) - CSize(20, 0));
    ui_test::pump();
    EXPECT_TRUE(bar.IsDocked());
    EXPECT_EQ(in_frame(bar), place);
    double_click(bar, gripper_of(bar));
    ASSERT_TRUE(bar.IsFloating());
    EXPECT_EQ(on_screen(*bar.GetParentMiniFrame()).TopLeft(), CPoint(400, 300));
    check_frame();
}

TEST_F(BarDocking, a_bar_that_may_not_float_stays) {
    CMFCToolBar& bar = docked_bar();
    bar.SetControlBarStyle(0);
    const CRect place = in_frame(bar);
    EXPECT_FALSE(bar.FloatPane(CRect(300, 200, 400, 300)));
    double_click(bar, gripper_of(bar));
    EXPECT_TRUE(bar.IsDocked());
    drag(bar, on_frame(300, 250));
    EXPECT_TRUE(bar.IsDocked());
    key(VK_ESCAPE);
    EXPECT_EQ(in_frame(bar), place);
}

TEST_F(BarDocking, floating_bars_are_asked_for_their_states_too) {
    CMFCToolBar& bar = docked_bar();
    bar.FloatPane(CRect(300, 200, 300, 200));
    bars_frame().openEnabled = FALSE;
    idle();
    EXPECT_FALSE(bar.GetButton(1)->IsEnabled());
    click(bar, 0);
    EXPECT_EQ(bars_frame().commands, std::vector<UINT>{kNew});
}

TEST_F(BarDocking, a_destroyed_bar_leaves_its_row) {
    CMFCToolBar &one = docked_bar(), &two = docked_bar();
    one.DestroyWindow();
    idle();
    EXPECT_EQ(in_frame(two).top, 0);
    check_frame();
    two.FloatPane(CRect(300, 200, 300, 200));
    two.DestroyWindow();
    ui_test::pump();
    EXPECT_TRUE(manager().GetMiniFrames().IsEmpty());
}

TEST_F(BarDocking, sites_tell_their_rows_and_bars) {
    CMFCToolBar &one = docked_bar(), &two = docked_bar(), &three = make_bar();
    frame->DockPaneLeftOf(&three, &two);
    CDockSite* site = one.GetParentDockSite();
    ASSERT_NE(site, nullptr);
    const CObList& rows = site->GetDockSiteRowsList();
    ASSERT_EQ(rows.GetCount(), 2);
    auto* first = static_cast<CDockingPanesRow*>(rows.GetHead());
    auto* last = static_cast<CDockingPanesRow*>(rows.GetTail());
    EXPECT_EQ(first->GetPaneCount(), 1);
    EXPECT_EQ(last->GetPaneCount(), 2);
    EXPECT_TRUE(last->HasPane(&three));
    EXPECT_FALSE(first->HasPane(&three));
    EXPECT_TRUE(site->IsLastRow(last));
    EXPECT_FALSE(site->IsLastRow(first));
    EXPECT_EQ(site->FindRowIndex(last), 1);
    CRect rect;
    last->GetWindowRect(rect);
    EXPECT_EQ(rect.top, on_screen(two).top);
    EXPECT_EQ(rect.Height(), kThick);
    EXPECT_EQ(site->FindPaneByID(kBarId + 2), &two);
    EXPECT_EQ(site->FindPaneByID(9), nullptr);
    EXPECT_EQ(site->PaneFromPoint(button_of(three, 0)), &three);
    EXPECT_EQ(site->PaneFromPoint(on_frame(600, 3)), nullptr);
    EXPECT_TRUE(site->CanAcceptPane(&one));
    EXPECT_FALSE(site->CanAcceptPane(nullptr));
    EXPECT_EQ(frame->GetPane(kBarId + 3), &three);
}
