// Dragging by the mouse: tearing off, guides, dropping, giving up.
#include "docking_fixture.h"

using namespace docking;

namespace {

HWND window_called(const wchar_t* name) {
    const HWND window = ::FindWindowW(nullptr, name);
    return window != nullptr && ::IsWindowVisible(window) ? window : nullptr;
}

CRect shade() {
    CRect rect(0, 0, 0, 0);
    if (HWND window = window_called(L"Dock target")) ::GetWindowRect(window, &rect);
    return rect;
}

}  // namespace

class DockingDrag : public Docking {
protected:
    /// A point of the frame on the screen.
    CPoint in_frame(int x, int y) {
        CPoint point(x, y);
        frame->ClientToScreen(&point);
        return point;
    }
    /// The guides of the frame's edges, in the frame of 700 by 500.
    CPoint right_guide() { return in_frame(700 - 32, 250); }
    CPoint bottom_guide() { return in_frame(350, 500 - 32); }
    void tear_off(Pane& pane) {
        press(pane, caption_of(pane));
        move(caption_of(pane) + CSize(60, 40));
    }
};

TEST_F(DockingDrag, a_caption_tears_off_once_the_mouse_has_moved) {
    Pane& pane = docked(L"one", AFX_IDW_DOCKBAR_LEFT);
    const CPoint start = caption_of(pane);
    press(pane, start);
    move(start + CSize(1, 1));
    EXPECT_TRUE(pane.IsDocked());
    move(start + CSize(60, 40));
    ASSERT_TRUE(pane.IsFloating());
    CPaneFrameWnd* mini = pane.GetParentMiniFrame();
    EXPECT_EQ(::GetCapture(), mini->m_hWnd);
    // The mouse holds the frame's caption.
    EXPECT_EQ(mini->HitTest(start + CSize(60, 40), TRUE), HTCAPTION);
    const CPoint corner = on_screen(*mini).TopLeft();
    move(start + CSize(110, 70));
    EXPECT_EQ(on_screen(*mini).TopLeft(), corner + CSize(50, 30));
    release(start + CSize(110, 70));
    EXPECT_TRUE(pane.IsFloating());
    EXPECT_FALSE(manager().is_dragging());
    EXPECT_EQ(::GetCapture(), nullptr);
    EXPECT_EQ(window_called(L"Dock guides"), nullptr);
}

TEST_F(DockingDrag, a_pane_that_may_not_float_is_not_torn_off_until_it_may) {
    Pane& pane = docked(L"one", AFX_IDW_DOCKBAR_LEFT);
    pane.mayFloat = FALSE;
    press(pane, caption_of(pane));
    move(caption_of(pane) + CSize(60, 40));
    EXPECT_TRUE(pane.IsDocked());
    const int asked = pane.floatQuestions;
    move(caption_of(pane) + CSize(70, 40));
    EXPECT_GT(pane.floatQuestions, asked);
    pane.mayFloat = TRUE;
    move(caption_of(pane) + CSize(80, 40));
    EXPECT_TRUE(pane.IsFloating());
    key(VK_ESCAPE);
}

TEST_F(DockingDrag, escape_docks_the_pane_where_it_was) {
    Pane& first = docked(L"first", AFX_IDW_DOCKBAR_LEFT);
    Pane& pane = make(L"pane");
    pane.DockToWindow(&first, CBRS_ALIGN_BOTTOM);
    const CRect place = at(pane), other = at(first);
    tear_off(pane);
    move(right_guide());
    key(VK_ESCAPE);
    EXPECT_TRUE(pane.IsDocked());
    EXPECT_EQ(at(pane), place);
    EXPECT_EQ(at(first), other);
    EXPECT_FALSE(manager().is_dragging());
    EXPECT_EQ(window_called(L"Dock guides"), nullptr);
    EXPECT_TRUE(shade().IsRectEmpty());
    EXPECT_EQ(::GetCapture(), nullptr);
    check_frame();
}

TEST_F(DockingDrag, escape_puts_a_floating_frame_back) {
    Pane& pane = docked(L"one", AFX_IDW_DOCKBAR_LEFT);
    pane.FloatPane(CRect(300, 200, 500, 350));
    CPaneFrameWnd* mini = pane.GetParentMiniFrame();
    press(*mini, caption_of(*mini));
    move(CPoint(600, 400));
    EXPECT_NE(on_screen(*mini), CRect(300, 200, 500, 350));
    key(VK_ESCAPE);
    EXPECT_EQ(on_screen(*mini), CRect(300, 200, 500, 350));
    EXPECT_TRUE(pane.IsFloating());
}

TEST_F(DockingDrag, losing_the_mouse_gives_the_drag_up) {
    Pane& pane = docked(L"one", AFX_IDW_DOCKBAR_LEFT);
    tear_off(pane);
    view.SetCapture();
    EXPECT_FALSE(manager().is_dragging());
    EXPECT_TRUE(pane.IsDocked());
    ::ReleaseCapture();
}

TEST_F(DockingDrag, guides_show_and_the_target_is_shaded_as_it_will_be) {
    Pane& pane = docked(L"one", AFX_IDW_DOCKBAR_LEFT);
    tear_off(pane);
    EXPECT_NE(window_called(L"Dock guides"), nullptr);
    EXPECT_TRUE(shade().IsRectEmpty());
    move(right_guide());
    const CRect expected = shade();
    EXPECT_FALSE(expected.IsRectEmpty());
    release(right_guide());
    EXPECT_TRUE(pane.IsDocked());
    EXPECT_EQ(on_screen(pane), expected);
    EXPECT_EQ(pane.GetCurrentAlignment(), static_cast<DWORD>(CBRS_ALIGN_RIGHT));
    EXPECT_EQ(at(pane).right, 700);
    EXPECT_EQ(pane.docks, 2);
    check_frame();
}

TEST_F(DockingDrag, an_edge_guide_docks_outside_all_others) {
    Pane& left = docked(L"left", AFX_IDW_DOCKBAR_LEFT);
    Pane& pane = docked(L"pane", AFX_IDW_DOCKBAR_RIGHT);
    tear_off(pane);
    move(bottom_guide());
    release(bottom_guide());
    EXPECT_EQ(at(pane).left, 0);
    EXPECT_EQ(at(pane).right, 700);
    EXPECT_EQ(at(pane).bottom, 500);
    EXPECT_LT(at(left).bottom, 500);
    check_frame();
}

TEST_F(DockingDrag, the_cross_in_the_middle_docks_inside_all_others) {
    Pane& left = docked(L"left", AFX_IDW_DOCKBAR_LEFT);
    Pane& pane = docked(L"pane", AFX_IDW_DOCKBAR_RIGHT);
    tear_off(pane);
    // The view is what the left pane leaves.
    const CPoint middle = on_screen(view).CenterPoint();
    const CPoint lower = middle + CSize(0, 36);
    move(lower);
    const CRect expected = shade();
    release(lower);
    EXPECT_EQ(on_screen(pane), expected);
    EXPECT_EQ(at(pane).left, at(left).right + 4);
    EXPECT_EQ(at(pane).bottom, 500);
    check_frame();
}

TEST_F(DockingDrag, the_cross_over_a_pane_docks_beside_it) {
    Pane& left = docked(L"left", AFX_IDW_DOCKBAR_LEFT);
    Pane& pane = docked(L"pane", AFX_IDW_DOCKBAR_RIGHT);
    tear_off(pane);
    const CPoint upper = on_screen(left).CenterPoint() - CSize(0, 36);
    move(upper);
    const CRect expected = shade();
    EXPECT_EQ(expected.left, on_screen(left).left);
    release(upper);
    EXPECT_EQ(on_screen(pane), expected);
    EXPECT_EQ(at(pane).top, 0);
    EXPECT_EQ(at(left).top, at(pane).bottom + 4);
    EXPECT_EQ(at(left).right, at(pane).right);
    check_frame();
}

TEST_F(DockingDrag, a_pane_joins_a_floating_frame) {
    Pane& group = docked(L"group", AFX_IDW_DOCKBAR_LEFT);
    Pane& pane = docked(L"pane", AFX_IDW_DOCKBAR_RIGHT);
    group.FloatPane(CRect(900, 300, 1150, 600));
    tear_off(pane);
    const CPoint right = on_screen(group).CenterPoint() + CSize(36, 0);
    move(right);
    const CRect expected = shade();
    release(right);
    EXPECT_EQ(pane.GetParentMiniFrame(), group.GetParentMiniFrame());
    EXPECT_EQ(on_screen(pane), expected);
    EXPECT_GT(at(pane).left, at(group).left);
}

TEST_F(DockingDrag, a_floating_group_docks_as_it_stands) {
    Pane& first = docked(L"first", AFX_IDW_DOCKBAR_LEFT);
    Pane& second = docked(L"second", AFX_IDW_DOCKBAR_LEFT);
    first.FloatPane(CRect(300, 100, 500, 400));
    second.DockToWindow(&first, CBRS_ALIGN_BOTTOM);
    CPaneFrameWnd* mini = first.GetParentMiniFrame();
    HWND const window = mini->m_hWnd;
    press(*mini, caption_of(*mini));
    move(right_guide());
    const CRect expected = shade();
    release(right_guide());
    EXPECT_TRUE(first.IsDocked());
    EXPECT_TRUE(second.IsDocked());
    EXPECT_EQ(on_screen(first).TopLeft(), expected.TopLeft());
    EXPECT_EQ(on_screen(second).BottomRight(), expected.BottomRight());
    EXPECT_EQ(at(second).top, at(first).bottom + 4);
    EXPECT_TRUE(ui_test::pump_until([=] { return !::IsWindow(window); }));
    check_frame();
}

TEST_F(DockingDrag, control_keeps_the_pane_floating) {
    Pane& pane = docked(L"one", AFX_IDW_DOCKBAR_LEFT);
    tear_off(pane);
    move(right_guide());
    EXPECT_FALSE(shade().IsRectEmpty());
    move(right_guide(), MK_LBUTTON | MK_CONTROL);
    EXPECT_TRUE(shade().IsRectEmpty());
    EXPECT_EQ(window_called(L"Dock guides"), nullptr);
    release(right_guide());
    EXPECT_TRUE(pane.IsFloating());
}

TEST_F(DockingDrag, sides_are_asked_for_at_each_step) {
    Pane& pane = docked(L"one", AFX_IDW_DOCKBAR_LEFT);
    tear_off(pane);
    pane.hasOwnAlignment = true;
    pane.ownAlignment = CBRS_ALIGN_LEFT;
    move(right_guide());
    EXPECT_TRUE(shade().IsRectEmpty());
    pane.ownAlignment = CBRS_ALIGN_RIGHT;
    move(right_guide() + CSize(1, 0));
    EXPECT_FALSE(shade().IsRectEmpty());
    pane.ownAlignment = 0;
    move(right_guide());
    EXPECT_TRUE(shade().IsRectEmpty());
    EXPECT_EQ(window_called(L"Dock guides"), nullptr);
    release(right_guide());
    EXPECT_TRUE(pane.IsFloating());
}

TEST_F(DockingDrag, a_pane_that_may_dock_nowhere_joins_no_floating_frame_either) {
    Pane& group = docked(L"group", AFX_IDW_DOCKBAR_LEFT);
    Pane& pane = docked(L"pane", AFX_IDW_DOCKBAR_RIGHT);
    group.FloatPane(CRect(900, 300, 1150, 600));
    tear_off(pane);
    const CPoint middle = on_screen(group).CenterPoint();
    move(middle);
    EXPECT_FALSE(shade().IsRectEmpty());
    pane.hasOwnAlignment = true;
    for (const CPoint point : {middle, middle + CSize(36, 0)}) {
        move(point);
        EXPECT_TRUE(shade().IsRectEmpty());
    }
    release(middle);
    EXPECT_NE(pane.GetParentMiniFrame(), group.GetParentMiniFrame());
}

TEST_F(DockingDrag, the_frames_sides_count_too) {
    auto* other = new Frame;
    other->Create(nullptr, L"other", WS_OVERLAPPEDWINDOW | WS_VISIBLE, CRect(900, 50, 1250, 400));
    other->EnableDocking(CBRS_ALIGN_LEFT);
    {
        Pane pane;
        pane.Create(L"one", other, CSize(80, 80), TRUE, 98, WS_CHILD | WS_VISIBLE | CBRS_LEFT);
        pane.EnableDocking(CBRS_ALIGN_ANY);
        other->DockPane(&pane);
        tear_off(pane);
        CRect client;
        other->GetClientRect(&client);
        CPoint right(client.right - 32, client.bottom / 2), left(32, client.bottom / 2);
        other->ClientToScreen(&right);
        other->ClientToScreen(&left);
        move(right);
        EXPECT_TRUE(shade().IsRectEmpty());
        move(left);
        EXPECT_FALSE(shade().IsRectEmpty());
        key(VK_ESCAPE);
        MSG escape = {pane.m_hWnd, WM_KEYDOWN, VK_ESCAPE, 0, 0, {}};
        CWnd::WalkPreTranslateTree(other->m_hWnd, &escape);
        EXPECT_TRUE(pane.IsDocked());
    }
    other->DestroyWindow();
}

TEST_F(DockingDrag, without_guides_a_pane_docks_near_an_edge) {
    CDockingManager::SetDockingMode(DT_STANDARD);
    Pane& pane = docked(L"one", AFX_IDW_DOCKBAR_LEFT);
    tear_off(pane);
    move(right_guide());
    EXPECT_EQ(window_called(L"Dock guides"), nullptr);
    EXPECT_TRUE(shade().IsRectEmpty());
    const CPoint edge = in_frame(700 - CDockingManager::m_nDockSensitivity, 250);
    move(edge - CSize(1, 0));
    EXPECT_TRUE(shade().IsRectEmpty());
    move(edge);
    EXPECT_FALSE(shade().IsRectEmpty());
    release(edge);
    CDockingManager::SetDockingMode(DT_SMART);
    EXPECT_EQ(pane.GetCurrentAlignment(), static_cast<DWORD>(CBRS_ALIGN_RIGHT));
}

TEST_F(DockingDrag, a_floating_pane_that_is_dragged_stays_where_it_is_let_go) {
    Pane& pane = docked(L"one", AFX_IDW_DOCKBAR_LEFT);
    pane.FloatPane(CRect(300, 200, 500, 350));
    CPaneFrameWnd* mini = pane.GetParentMiniFrame();
    const CPoint start = caption_of(*mini);
    press(*mini, start);
    move(start + CSize(1, 0));
    EXPECT_FALSE(manager().is_dragging());
    move(start + CSize(55, 21));
    release(start + CSize(55, 21));
    EXPECT_EQ(on_screen(*mini), CRect(355, 221, 555, 371));
    EXPECT_EQ(pane.m_recentDockInfo.m_rectRecentFloatingRect, CRect(355, 221, 555, 371));
}
