// Floating frames: one pane, several, their captions, edges, closing and activation.
#include "docking_fixture.h"

using namespace docking;

namespace {
const CRect kPlace(300, 200, 520, 380);
}

TEST_F(Docking, a_pane_floats_in_a_frame_that_the_main_frame_owns) {
    Pane& pane = docked(L"one", AFX_IDW_DOCKBAR_LEFT);
    EXPECT_TRUE(pane.FloatPane(kPlace));
    CPaneFrameWnd* mini = pane.GetParentMiniFrame();
    ASSERT_NE(mini, nullptr);
    EXPECT_EQ(on_screen(*mini), kPlace);
    EXPECT_EQ(::GetWindow(mini->m_hWnd, GW_OWNER), frame->m_hWnd);
    EXPECT_TRUE(mini->IsWindowVisible());
    EXPECT_TRUE(pane.IsFloating());
    EXPECT_FALSE(pane.IsDocked());
    EXPECT_TRUE(pane.IsInFloatingMultiPaneFrameWnd());
    EXPECT_EQ(at(view), CRect(0, 0, 700, 500));
    EXPECT_EQ(manager().GetMiniFrames().GetCount(), 1);
    EXPECT_EQ(pane.floats, 1);
    CRect client;
    mini->GetClientRect(&client);
    EXPECT_EQ(at(pane), client);
    EXPECT_EQ(pane.GetCaptionHeight(), 0);
}

TEST_F(Docking, a_pane_without_the_style_floats_in_a_frame_of_its_own) {
    Pane& pane = make(L"one", CSize(100, 100), CBRS_LEFT);
    frame->DockPane(&pane);
    EXPECT_TRUE(pane.FloatPane(kPlace));
    EXPECT_FALSE(pane.IsInFloatingMultiPaneFrameWnd());
    CRect client;
    pane.GetParentMiniFrame()->GetClientRect(&client);
    EXPECT_EQ(at(pane), client);
    EXPECT_EQ(pane.GetParentMiniFrame()->GetPaneCount(), 1);
    EXPECT_TRUE(pane.DockToRecentPos());
    EXPECT_EQ(at(pane), CRect(0, 0, 100, 500));
}

TEST_F(Docking, a_pane_that_may_not_float_stays_docked) {
    Pane& pane = docked(L"one", AFX_IDW_DOCKBAR_LEFT);
    pane.mayFloat = FALSE;
    EXPECT_FALSE(pane.FloatPane(kPlace));
    EXPECT_TRUE(pane.IsDocked());
    EXPECT_EQ(at(pane), CRect(0, 0, 150, 500));
    EXPECT_EQ(pane.CreateDefaultMiniframe(kPlace), nullptr);
}

TEST_F(Docking, a_program_can_name_the_class_of_the_floating_frame) {
    Pane& pane = docked(L"one", AFX_IDW_DOCKBAR_LEFT);
    pane.SetMiniFrameRTC(RUNTIME_CLASS(CPaneFrameWnd));
    EXPECT_TRUE(pane.FloatPane(kPlace));
    EXPECT_STREQ(pane.GetParentMiniFrame()->GetRuntimeClass()->m_lpszClassName, "CPaneFrameWnd");
}

TEST_F(Docking, a_floating_pane_moves_with_a_second_call) {
    Pane& pane = docked(L"one", AFX_IDW_DOCKBAR_LEFT);
    pane.FloatPane(kPlace);
    CPaneFrameWnd* mini = pane.GetParentMiniFrame();
    EXPECT_TRUE(pane.FloatPane(CRect(10, 20, 310, 220)));
    EXPECT_EQ(pane.GetParentMiniFrame(), mini);
    EXPECT_EQ(on_screen(*mini), CRect(10, 20, 310, 220));
}

TEST_F(Docking, a_double_click_on_captions_goes_between_docked_and_floating) {
    Pane& first = docked(L"first", AFX_IDW_DOCKBAR_LEFT);
    Pane& pane = make(L"pane");
    pane.DockToWindow(&first, CBRS_ALIGN_TOP);
    const CRect place = at(pane), other = at(first);
    pane.FloatPane(kPlace);
    CPaneFrameWnd* mini = pane.GetParentMiniFrame();
    send_mouse(mini->m_hWnd, WM_LBUTTONDBLCLK, caption_of(*mini), MK_LBUTTON);
    EXPECT_TRUE(pane.IsDocked());
    EXPECT_EQ(at(pane), place);
    EXPECT_EQ(at(first), other);
    send_mouse(pane.m_hWnd, WM_LBUTTONDBLCLK, caption_of(pane), MK_LBUTTON);
    ASSERT_TRUE(pane.IsFloating());
    EXPECT_EQ(on_screen(*pane.GetParentMiniFrame()), kPlace);
}

TEST_F(Docking, a_double_click_asks_whether_the_pane_may_float_and_dock) {
    Pane& pane = docked(L"one", AFX_IDW_DOCKBAR_LEFT);
    pane.mayFloat = FALSE;
    send_mouse(pane.m_hWnd, WM_LBUTTONDBLCLK, caption_of(pane), MK_LBUTTON);
    EXPECT_TRUE(pane.IsDocked());
    pane.mayFloat = TRUE;
    pane.FloatPane(kPlace);
    pane.hasOwnAlignment = true;
    Pane& single = make(L"single", CSize(100, 100), CBRS_LEFT);
    frame->DockPane(&single);
    single.FloatPane(kPlace);
    single.hasOwnAlignment = true;
    for (const Pane* one : {&pane, &single}) {
        CPaneFrameWnd* mini = one->GetParentMiniFrame();
        send_mouse(mini->m_hWnd, WM_LBUTTONDBLCLK, caption_of(*mini), MK_LBUTTON);
        EXPECT_TRUE(one->IsFloating());
    }
}

TEST_F(Docking, a_double_click_on_a_caption_in_a_group_asks_whether_the_pane_may_dock) {
    Pane& first = docked(L"first", AFX_IDW_DOCKBAR_LEFT);
    Pane& second = docked(L"second", AFX_IDW_DOCKBAR_LEFT);
    first.FloatPane(CRect(300, 200, 600, 500));
    second.DockToWindow(&first, CBRS_ALIGN_BOTTOM);
    second.hasOwnAlignment = true;
    send_mouse(second.m_hWnd, WM_LBUTTONDBLCLK, caption_of(second), MK_LBUTTON);
    EXPECT_TRUE(second.IsFloating());
    second.hasOwnAlignment = false;
    send_mouse(second.m_hWnd, WM_LBUTTONDBLCLK, caption_of(second), MK_LBUTTON);
    EXPECT_TRUE(second.IsDocked());
}

TEST_F(Docking, a_frame_goes_with_its_last_pane) {
    Pane& pane = docked(L"one", AFX_IDW_DOCKBAR_LEFT);
    pane.FloatPane(kPlace);
    HWND const mini = pane.GetParentMiniFrame()->m_hWnd;
    frame->DockPane(&pane, AFX_IDW_DOCKBAR_RIGHT);
    EXPECT_EQ(manager().GetMiniFrames().GetCount(), 0);
    EXPECT_FALSE(::IsWindowVisible(mini));
    EXPECT_TRUE(ui_test::pump_until([=] { return !::IsWindow(mini); }));
    EXPECT_EQ(at(pane), CRect(550, 0, 700, 500));
}

TEST_F(Docking, a_frame_goes_when_its_pane_is_destroyed) {
    HWND mini = nullptr;
    {
        Pane pane;
        pane.Create(L"short", frame, CSize(100, 100), TRUE, 92, WS_CHILD | WS_VISIBLE | CBRS_LEFT);
        pane.FloatPane(kPlace);
        mini = pane.GetParentMiniFrame()->m_hWnd;
    }
    EXPECT_TRUE(ui_test::pump_until([=] { return !::IsWindow(mini); }));
    EXPECT_EQ(manager().GetMiniFrames().GetCount(), 0);
}

TEST_F(Docking, a_floating_frame_hides_with_its_panes_and_shows_with_them) {
    Pane& pane = docked(L"one", AFX_IDW_DOCKBAR_LEFT);
    pane.FloatPane(kPlace);
    CPaneFrameWnd* mini = pane.GetParentMiniFrame();
    pane.ShowPane(FALSE, FALSE, FALSE);
    EXPECT_FALSE(mini->IsWindowVisible());
    EXPECT_FALSE(pane.IsVisible());
    pane.ShowPane(TRUE, FALSE, TRUE);
    EXPECT_TRUE(mini->IsWindowVisible());
    EXPECT_TRUE(pane.IsPaneVisible());
    EXPECT_EQ(pane.GetParentMiniFrame(), mini);
    EXPECT_EQ(on_screen(*mini), kPlace);
}

TEST_F(Docking, the_close_button_of_a_frame_closes_its_panes) {
    Pane& pane = docked(L"one", AFX_IDW_DOCKBAR_LEFT);
    Pane& other = docked(L"two", AFX_IDW_DOCKBAR_LEFT);
    pane.FloatPane(kPlace);
    other.DockToWindow(&pane, CBRS_ALIGN_BOTTOM);
    CPaneFrameWnd* mini = pane.GetParentMiniFrame();
    const CPoint close = kPlace.TopLeft() + mini->FindButtonByHit(AFX_HTCLOSE)->GetRect().CenterPoint();
    press(*mini, close);
    release(close);
    EXPECT_EQ(pane.closes, 1);
    EXPECT_EQ(other.closes, 1);
    EXPECT_FALSE(mini->IsWindowVisible());
    EXPECT_EQ(manager().GetMiniFrames().GetCount(), 1);
}

TEST_F(Docking, a_derived_frame_may_refuse_to_close) {
    class Stubborn : public CMultiPaneFrameWnd {
    protected:
        BOOL OnCloseMiniFrame() override { return FALSE; }
    };
    auto* mini = new Stubborn;
    ASSERT_TRUE(mini->Create(L"stubborn", WS_POPUP, kPlace, frame));
    mini->SetDockingManager(&manager());
    manager().AddMiniFrame(mini);
    Pane& pane = make(L"one");
    mini->AddPane(&pane);
    mini->SendMessage(WM_CLOSE);
    EXPECT_TRUE(pane.IsVisible());
    EXPECT_EQ(pane.closes, 0);
}

TEST_F(Docking, several_panes_stand_in_one_floating_frame) {
    Pane& first = docked(L"first", AFX_IDW_DOCKBAR_LEFT);
    Pane& second = docked(L"second", AFX_IDW_DOCKBAR_LEFT);
    first.FloatPane(CRect(300, 200, 600, 500));
    EXPECT_EQ(first.GetCaptionHeight(), 0);
    ASSERT_TRUE(second.DockToWindow(&first, CBRS_ALIGN_BOTTOM));
    auto* mini = DYNAMIC_DOWNCAST(CMultiPaneFrameWnd, first.GetParentMiniFrame());
    ASSERT_NE(mini, nullptr);
    EXPECT_EQ(second.GetParentMiniFrame(), mini);
    EXPECT_EQ(mini->GetPaneCount(), 2);
    EXPECT_EQ(at(view), CRect(0, 0, 700, 500));
    // Each has a caption of its own now.
    EXPECT_GT(first.GetCaptionHeight(), 0);
    CRect client, inside;
    mini->GetClientRect(&client);
    first.GetClientRect(&inside);
    EXPECT_EQ(inside.Height(), at(first).Height() - first.GetCaptionHeight());
    ASSERT_EQ(dividers(*mini).size(), 1u);
    check_cover(client, {at(first), at(second), at(*dividers(*mini)[0])});
    EXPECT_EQ(at(first).top, 0);
    EXPECT_EQ(mini->PaneFromPoint(on_screen(second).CenterPoint(), 0), &second);
    EXPECT_EQ(frame->PaneFromPoint(on_screen(second).CenterPoint(), 0, false, nullptr), &second);
    CObList list;
    mini->GetPaneList(list);
    EXPECT_EQ(list.GetCount(), 2);
    EXPECT_EQ(mini->GetCaptionText(), L"first");
}

TEST_F(Docking, the_divider_in_a_floating_frame_moves_both_panes) {
    Pane& first = docked(L"first", AFX_IDW_DOCKBAR_LEFT);
    Pane& second = docked(L"second", AFX_IDW_DOCKBAR_LEFT);
    first.FloatPane(CRect(300, 200, 600, 500));
    second.DockToWindow(&first, CBRS_ALIGN_RIGHT);
    second.SetMinSize(CSize(40, 40));
    CPaneFrameWnd* mini = first.GetParentMiniFrame();
    CPaneDivider& divider = *dividers(*mini)[0];
    const int before = at(first).Width();
    const CPoint start = on_screen(divider).CenterPoint();
    press(divider, start);
    move(start + CSize(20, 0));
    EXPECT_EQ(at(first).Width(), before + 20);
    move(start + CSize(500, 0));
    EXPECT_EQ(at(second).Width(), 40);
    release(start + CSize(500, 0));
}

TEST_F(Docking, hiding_one_of_two_gives_its_room_and_its_caption_away) {
    Pane& first = docked(L"first", AFX_IDW_DOCKBAR_LEFT);
    Pane& second = docked(L"second", AFX_IDW_DOCKBAR_LEFT);
    first.FloatPane(CRect(300, 200, 600, 500));
    second.DockToWindow(&first, CBRS_ALIGN_BOTTOM);
    CPaneFrameWnd* mini = first.GetParentMiniFrame();
    const CRect place = at(second);
    first.ShowPane(FALSE, FALSE, FALSE);
    CRect client;
    mini->GetClientRect(&client);
    EXPECT_EQ(at(second), client);
    EXPECT_EQ(second.GetCaptionHeight(), 0);
    EXPECT_EQ(mini->GetCaptionText(), L"second");
    first.ShowPane(TRUE, FALSE, FALSE);
    EXPECT_EQ(at(second), place);
}

TEST_F(Docking, a_pane_leaves_a_frame_of_several_and_the_other_fills_it) {
    Pane& first = docked(L"first", AFX_IDW_DOCKBAR_LEFT);
    Pane& second = docked(L"second", AFX_IDW_DOCKBAR_LEFT);
    first.FloatPane(CRect(300, 200, 600, 500));
    second.DockToWindow(&first, CBRS_ALIGN_BOTTOM);
    CPaneFrameWnd* mini = first.GetParentMiniFrame();
    EXPECT_TRUE(first.FloatPane(CRect(0, 0, 100, 100)));
    EXPECT_NE(first.GetParentMiniFrame(), mini);
    CRect client;
    mini->GetClientRect(&client);
    EXPECT_EQ(at(second), client);
    EXPECT_EQ(mini->GetPaneCount(), 1);
}

TEST_F(Docking, a_floating_frame_is_sized_at_its_edges_and_lays_its_panes_out) {
    Pane& pane = docked(L"one", AFX_IDW_DOCKBAR_LEFT);
    pane.FloatPane(kPlace);
    CPaneFrameWnd* mini = pane.GetParentMiniFrame();
    const auto hit = [&](int x, int y) { return mini->SendMessage(WM_NCHITTEST, 0, MAKELPARAM(x, y)); };
    EXPECT_EQ(hit(300, 290), HTLEFT);
    EXPECT_EQ(hit(519, 290), HTRIGHT);
    EXPECT_EQ(hit(410, 200), HTTOP);
    EXPECT_EQ(hit(410, 379), HTBOTTOM);
    EXPECT_EQ(hit(300, 200), HTTOPLEFT);
    EXPECT_EQ(hit(519, 379), HTBOTTOMRIGHT);
    EXPECT_EQ(hit(350, 208), HTCLIENT);
    EXPECT_EQ(mini->HitTest(CPoint(350, 208), TRUE), HTCAPTION);
    EXPECT_EQ(mini->HitTest(CPoint(350, 208), FALSE), HTCLIENT);
    EXPECT_EQ(mini->HitTest(CPoint(0, 0), TRUE), HTNOWHERE);
    mini->SetWindowPos(nullptr, 0, 0, 333, 222, SWP_NOMOVE | SWP_NOZORDER);
    CRect client;
    mini->GetClientRect(&client);
    EXPECT_EQ(at(pane), client);
    EXPECT_EQ(pane.m_recentDockInfo.m_rectRecentFloatingRect, CRect(300, 200, 633, 422));
    pane.SetControlBarStyle(AFX_CBRS_FLOAT | AFX_CBRS_CLOSE);
    EXPECT_EQ(hit(300, 290), HTCLIENT);
}

TEST_F(Docking, a_floating_frame_is_not_made_smaller_than_its_panes) {
    Pane& pane = docked(L"one", AFX_IDW_DOCKBAR_LEFT);
    pane.SetMinSize(CSize(140, 90));
    pane.FloatPane(kPlace);
    MINMAXINFO info = {};
    CPaneFrameWnd* mini = pane.GetParentMiniFrame();
    mini->SendMessage(WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&info));
    CRect client;
    mini->GetClientRect(&client);
    EXPECT_EQ(info.ptMinTrackSize.x, 140 + kPlace.Width() - client.Width());
    EXPECT_EQ(info.ptMinTrackSize.y, 90 + kPlace.Height() - client.Height());
}

TEST_F(Docking, the_main_frame_looks_active_while_a_floating_one_is) {
    Pane& pane = docked(L"one", AFX_IDW_DOCKBAR_LEFT);
    pane.FloatPane(kPlace);
    CPaneFrameWnd* mini = pane.GetParentMiniFrame();
    frame->SetActiveWindow();
    ui_test::pump();
    frame->activations.clear();
    mini->SetActiveWindow();
    ui_test::pump();
    ASSERT_FALSE(frame->activations.empty());
    EXPECT_TRUE(frame->activations.back());
}

TEST_F(Docking, panes_are_found_while_they_float) {
    Pane& pane = docked(L"one", AFX_IDW_DOCKBAR_LEFT);
    pane.FloatPane(kPlace);
    EXPECT_EQ(frame->GetPane(kFirstId + 1), &pane);
    EXPECT_EQ(manager().FindPaneByID(kFirstId + 1, FALSE), nullptr);
    EXPECT_EQ(manager().FrameFromPoint(kPlace.CenterPoint(), nullptr, FALSE), pane.GetParentMiniFrame());
    EXPECT_EQ(manager().FrameFromPoint(kPlace.CenterPoint(), pane.GetParentMiniFrame(), FALSE), nullptr);
    EXPECT_EQ(manager().FrameFromPoint(CPoint(0, 0), nullptr, FALSE), nullptr);
}

TEST_F(Docking, all_floating_frames_hide_and_show_together) {
    Pane& pane = docked(L"one", AFX_IDW_DOCKBAR_LEFT);
    Pane& other = docked(L"two", AFX_IDW_DOCKBAR_LEFT);
    pane.FloatPane(kPlace);
    frame->OnShowPanes(FALSE);
    EXPECT_FALSE(pane.GetParentMiniFrame()->IsWindowVisible());
    EXPECT_EQ(at(view), CRect(0, 0, 700, 500));
    frame->OnShowPanes(TRUE);
    EXPECT_TRUE(pane.GetParentMiniFrame()->IsWindowVisible());
    EXPECT_EQ(at(other), CRect(0, 0, 150, 500));
}

TEST_F(Docking, a_docked_pane_that_becomes_a_tab_of_a_floating_one_leaves_no_hole) {
    Pane& floating = make(L"floating");
    ASSERT_TRUE(floating.FloatPane(CRect(300, 300, 500, 500)));
    Pane& tab = docked(L"tab", AFX_IDW_DOCKBAR_LEFT);
    ASSERT_TRUE(tab.AttachToTabWnd(&floating, DM_UNKNOWN) != nullptr);
    check_frame();
}

TEST_F(Docking, a_frame_of_hidden_panes_comes_up_with_one_that_joins) {
    Pane& hidden = make(L"hidden");
    ASSERT_TRUE(hidden.FloatPane(CRect(300, 300, 500, 500)));
    hidden.ShowPane(FALSE, FALSE, FALSE);
    CPaneFrameWnd* group = hidden.GetParentMiniFrame();
    ASSERT_FALSE(group->IsWindowVisible());
    Pane& joining = make(L"joining");
    ASSERT_TRUE(joining.DockToWindow(&hidden, CBRS_ALIGN_LEFT));
    EXPECT_TRUE(group->IsWindowVisible());
    EXPECT_FALSE(hidden.IsWindowVisible());
    EXPECT_TRUE(joining.IsWindowVisible());
}
