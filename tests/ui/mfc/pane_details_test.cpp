// Panes: what they take over from another, what they refuse without a window, lists of panes, groups that
// dock beside one.
#include "docking_fixture.h"

using namespace docking;

namespace {

class PaneDetails : public Docking {
protected:
    std::vector<CObject*> listed(CRuntimeClass* filter = nullptr, BOOL tabs = FALSE) {
        CObList list;
        manager().GetPaneList(list, FALSE, filter, tabs);
        std::vector<CObject*> all;
        for (POSITION at = list.GetHeadPosition(); at != nullptr;) all.push_back(list.GetNext(at));
        return all;
    }
    static bool has(const std::vector<CObject*>& all, const CObject& one) {
        return std::count(all.begin(), all.end(), &one) == 1;
    }
};

}  // namespace

TEST_F(PaneDetails, a_pane_takes_over_the_state_of_another) {
    Pane& from = docked(L"from", AFX_IDW_DOCKBAR_RIGHT);
    from.SetLastPercentInPaneContainer(33);
    from.EnableAutohideAll(FALSE);
    from.SetTabbedPaneRTC(RUNTIME_CLASS(CTabbedPane));
    from.SetControlBarStyle(AFX_CBRS_CLOSE);
    from.EnableDocking(CBRS_ALIGN_TOP);
    Pane to;
    to.CopyState(&from);
    EXPECT_EQ(to.GetLastPercentInPaneContainer(), 33);
    EXPECT_FALSE(to.IsAutohideAllEnabled());
    EXPECT_EQ(to.GetTabbedPaneRTC(), RUNTIME_CLASS(CTabbedPane));
    EXPECT_EQ(to.GetPaneStyle(), from.GetPaneStyle());
    EXPECT_EQ(to.GetControlBarStyle(), from.GetControlBarStyle());
    EXPECT_EQ(to.GetEnabledAlignment(), static_cast<DWORD>(CBRS_ALIGN_TOP));
    EXPECT_EQ(to.GetDockSiteFrameWnd(), frame);
    EXPECT_EQ(to.GetDockingMode(), from.GetDockingMode());
}

TEST_F(PaneDetails, a_pane_without_a_window_goes_nowhere) {
    Pane& there = docked(L"there", AFX_IDW_DOCKBAR_LEFT);
    Pane none;
    EXPECT_FALSE(none.DockToFrameWindow(CBRS_ALIGN_LEFT));
    EXPECT_FALSE(none.DockToWindow(&there, CBRS_ALIGN_LEFT));
    EXPECT_FALSE(none.FloatPane(CRect(0, 0, 100, 100)));
    EXPECT_FALSE(none.DockToRecentPos());
    none.ShowPane(TRUE, FALSE, FALSE);
    none.UndockPane();
    none.m_recentDockInfo.StoreDockInfo();
    EXPECT_TRUE(none.m_recentDockInfo.m_rectRecentFloatingRect.IsRectEmpty());
    EXPECT_FALSE(there.DockToWindow(nullptr, CBRS_ALIGN_LEFT));
    EXPECT_EQ(none.CalcFixedLayout(FALSE, TRUE), CSize(0, 0));
    EXPECT_EQ(at(there).left, 0);
    check_frame();
}

TEST_F(PaneDetails, a_floating_pane_moves_without_showing_up) {
    Pane& pane = docked(L"pane", AFX_IDW_DOCKBAR_LEFT);
    pane.FloatPane(CRect(300, 100, 500, 300));
    EXPECT_EQ(pane.floats, 1);
    pane.ShowPane(FALSE, FALSE, FALSE);
    EXPECT_FALSE(pane.GetParentMiniFrame()->IsWindowVisible());
    EXPECT_TRUE(pane.FloatPane(CRect(400, 120, 620, 330), DM_UNKNOWN, false));
    EXPECT_FALSE(pane.GetParentMiniFrame()->IsWindowVisible()) << "it only moved";
    EXPECT_EQ(on_screen(*pane.GetParentMiniFrame()), CRect(400, 120, 620, 330));
    EXPECT_TRUE(pane.FloatPane(CRect(410, 130, 630, 340), DM_UNKNOWN, true));
    EXPECT_TRUE(pane.GetParentMiniFrame()->IsWindowVisible());
    EXPECT_EQ(pane.floats, 1) << "it floated already";
    EXPECT_TRUE(pane.FloatPane(CRect(0, 0, 0, 0)));
    EXPECT_EQ(on_screen(*pane.GetParentMiniFrame()), CRect(410, 130, 630, 340)) << "where it was last";
}

TEST_F(PaneDetails, the_list_of_panes_has_each_once) {
    Pane &one = docked(L"one", AFX_IDW_DOCKBAR_LEFT), &two = docked(L"two", AFX_IDW_DOCKBAR_RIGHT);
    Pane& floating = docked(L"floating", AFX_IDW_DOCKBAR_TOP);
    floating.FloatPane(CRect(300, 100, 500, 300));
    const auto all = listed();
    EXPECT_TRUE(has(all, one));
    EXPECT_TRUE(has(all, two));
    EXPECT_FALSE(listed(RUNTIME_CLASS(CPaneDivider)).size() != 0) << "none is of that class";
    EXPECT_TRUE(has(listed(RUNTIME_CLASS(CDockablePane)), one));
    EXPECT_EQ(listed(RUNTIME_CLASS(CDockablePane)).size(), listed(RUNTIME_CLASS(CBasePane)).size());
}

TEST_F(PaneDetails, panes_leave_by_the_manager_of_any_of_them) {
    Pane &one = docked(L"one", AFX_IDW_DOCKBAR_LEFT), &two = docked(L"two", AFX_IDW_DOCKBAR_RIGHT);
    one.RemovePaneFromDockManager(&two, FALSE, TRUE);
    EXPECT_FALSE(has(listed(), two));
    EXPECT_TRUE(has(listed(), one));
    EXPECT_EQ(frame->GetPane(static_cast<UINT>(two.GetDlgCtrlID())), nullptr);
    Pane& three = docked(L"three", AFX_IDW_DOCKBAR_TOP);
    one.RemovePaneFromDockManager(&three, TRUE, TRUE);
    EXPECT_EQ(three.m_hWnd, nullptr) << "destroyed as well";
    frame->GetDockingManager()->RemovePaneFromDockManager(nullptr, TRUE, TRUE, FALSE, nullptr);
    EXPECT_TRUE(has(listed(), one));
}

TEST_F(PaneDetails, a_fixed_pane_is_as_long_as_the_room_there_is) {
    CBasePane pane;
    EXPECT_EQ(pane.CalcFixedLayout(TRUE, TRUE), CSize(32767, 0));
    EXPECT_EQ(pane.CalcFixedLayout(TRUE, FALSE), CSize(0, 32767));
    EXPECT_EQ(pane.CalcFixedLayout(FALSE, TRUE), CSize(0, 0));
    EXPECT_EQ(pane.CalcFixedLayout(FALSE, FALSE), CSize(0, 0));
    EXPECT_FALSE(pane.DestroyWindow()) << "there is none";
    EXPECT_FALSE(pane.IsPaneVisible());
    EXPECT_EQ(pane.GetCaptionHeight(), 0);
    EXPECT_FALSE(pane.CanBeAttached());
    EXPECT_FALSE(pane.CanAutoHide());
    EXPECT_TRUE(pane.CanFocus());
    EXPECT_TRUE(pane.IsResizable());
    EXPECT_TRUE(pane.HideInPrintPreviewMode());
    EXPECT_EQ(pane.GetEnabledAlignment(), 0U);
    pane.SetControlBarStyle(AFX_CBRS_RESIZE);
    EXPECT_TRUE(pane.CanBeResized());
    EXPECT_FALSE(pane.CanBeClosed());
    EXPECT_FALSE(pane.CanFloat());
    pane.SetControlBarStyle(AFX_CBRS_CLOSE | AFX_CBRS_FLOAT);
    EXPECT_FALSE(pane.CanBeResized());
    EXPECT_TRUE(pane.CanBeClosed());
    EXPECT_TRUE(pane.CanFloat());
}

TEST_F(PaneDetails, a_group_docks_beside_a_pane) {
    Pane& target = docked(L"target", AFX_IDW_DOCKBAR_RIGHT, 200);
    Pane &first = docked(L"first", AFX_IDW_DOCKBAR_LEFT), &second = docked(L"second", AFX_IDW_DOCKBAR_LEFT);
    first.FloatPane(CRect(100, 100, 260, 400));
    second.DockToWindow(&first, CBRS_ALIGN_BOTTOM);
    CPaneFrameWnd* const mini = first.GetParentMiniFrame();
    press(*mini, caption_of(*mini));
    const CPoint below = on_screen(target).CenterPoint() + CSize(0, 36);
    move(below);
    release(below);
    ASSERT_TRUE(first.IsDocked());
    ASSERT_TRUE(second.IsDocked());
    EXPECT_EQ(first.GetCurrentAlignment(), static_cast<DWORD>(CBRS_ALIGN_RIGHT));
    EXPECT_EQ(at(target).top, 0);
    EXPECT_EQ(at(first).top, at(target).bottom + 4);
    EXPECT_EQ(at(second).top, at(first).bottom + 4);
    EXPECT_EQ(at(second).bottom, 500);
    EXPECT_EQ(at(first).left, at(target).left);
    check_frame();
}

TEST_F(PaneDetails, the_guides_lie_over_the_shade) {
    Pane &left = docked(L"left", AFX_IDW_DOCKBAR_LEFT), &pane = docked(L"pane", AFX_IDW_DOCKBAR_RIGHT);
    press(pane, caption_of(pane));
    move(caption_of(pane) + CSize(-60, 40));
    const CPoint upper = on_screen(left).CenterPoint() - CSize(0, 36);
    move(upper);
    const HWND guides = ::FindWindowW(nullptr, L"Dock guides"),
               shade = ::FindWindowW(nullptr, L"Dock target");
    ASSERT_TRUE(::IsWindowVisible(guides));
    ASSERT_TRUE(::IsWindowVisible(shade));
    bool above = false;
    for (HWND window = ::GetWindow(shade, GW_HWNDPREV); window != nullptr;
         window = ::GetWindow(window, GW_HWNDPREV))
        above |= window == guides;
    EXPECT_TRUE(above);
    CRect place;
    ::GetWindowRect(guides, &place);
    EXPECT_TRUE(place.PtInRect(upper)) << "one of them is under the mouse";
    release(upper);
    EXPECT_FALSE(::IsWindowVisible(shade));
}

TEST_F(PaneDetails, dividers_show_which_way_they_move) {
    docked(L"left", AFX_IDW_DOCKBAR_LEFT);
    docked(L"top", AFX_IDW_DOCKBAR_TOP);
    for (CPaneDivider* const divider : dividers(*frame)) {
        ::SetCursor(::LoadCursorW(nullptr, IDC_NO));
        divider->SendMessage(WM_SETCURSOR, reinterpret_cast<WPARAM>(divider->m_hWnd),
                             MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
        const bool upright = at(*divider).Height() > at(*divider).Width();
        EXPECT_EQ(::GetCursor(), ::LoadCursorW(nullptr, upright ? IDC_SIZEWE : IDC_SIZENS));
    }
    EXPECT_EQ(dividers(*frame).size(), 2U);
}
