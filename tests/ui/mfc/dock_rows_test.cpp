// Rows of docked bars as they tell of themselves, bars that float unseen, and what a bar answers for buttons
// it doesn't have.
#include "docking_bars_fixture.h"

using namespace docking;

namespace {

class DockRows : public DockingBars {
protected:
    CDockSite& site(UINT id) { return *DYNAMIC_DOWNCAST(CDockSite, frame->GetDlgItem(static_cast<int>(id))); }
    static CDockingPanesRow& row(CDockSite& of, int index) {
        const CObList& rows = of.GetDockSiteRowsList();
        return *static_cast<CDockingPanesRow*>(rows.GetAt(rows.FindIndex(index)));
    }
    static CRect inside(const CDockingPanesRow& row) {
        CRect rect;
        row.GetClientRect(rect);
        return rect;
    }
};

}  // namespace

TEST_F(DockRows, rows_reach_from_end_to_end_counted_from_the_outside) {
    constexpr int kThick = 17;
    for (const UINT id :
         {AFX_IDW_DOCKBAR_TOP, AFX_IDW_DOCKBAR_BOTTOM, AFX_IDW_DOCKBAR_LEFT, AFX_IDW_DOCKBAR_RIGHT}) {
        docked_bar(id);
        docked_bar(id);
    }
    struct Expected {
        UINT id;
        CRect first, second;
    };
    const int across = 700, down = 500 - 4 * kThick;
    const Expected all[] = {
        {AFX_IDW_DOCKBAR_TOP, {0, 0, across, kThick}, {0, kThick, across, 2 * kThick}},
        {AFX_IDW_DOCKBAR_BOTTOM, {0, kThick, across, 2 * kThick}, {0, 0, across, kThick}},
        {AFX_IDW_DOCKBAR_LEFT, {0, 0, kThick, down}, {kThick, 0, 2 * kThick, down}},
        {AFX_IDW_DOCKBAR_RIGHT, {kThick, 0, 2 * kThick, down}, {0, 0, kThick, down}},
    };
    for (const Expected& expected : all) {
        CDockSite& at_edge = site(expected.id);
        ASSERT_EQ(at_edge.GetDockSiteRowsList().GetCount(), 2) << expected.id;
        EXPECT_EQ(inside(row(at_edge, 0)), expected.first) << expected.id;
        EXPECT_EQ(inside(row(at_edge, 1)), expected.second) << expected.id;
        CRect screen = inside(row(at_edge, 1)), told;
        at_edge.ClientToScreen(&screen);
        row(at_edge, 1).GetWindowRect(told);
        EXPECT_EQ(told, screen) << expected.id;
        EXPECT_EQ(row(at_edge, 0).GetRowOffset(), 0);
        EXPECT_EQ(row(at_edge, 1).GetRowOffset(), kThick);
        EXPECT_EQ(row(at_edge, 1).GetRowHeight(), kThick);
        EXPECT_EQ(row(at_edge, 0).GetDockSite(), &at_edge);
        EXPECT_EQ(at_edge.GetDockSiteID(), expected.id);
        EXPECT_FALSE(at_edge.IsLastRow(&row(at_edge, 0)));
        EXPECT_TRUE(at_edge.IsLastRow(&row(at_edge, 1)));
        EXPECT_EQ(at_edge.FindRowIndex(&row(at_edge, 0)), 0);
        EXPECT_EQ(at_edge.FindRowIndex(&row(at_edge, 1)), 1);
        EXPECT_EQ(at_edge.FindRowIndex(nullptr), -1);
    }
    EXPECT_TRUE(row(site(AFX_IDW_DOCKBAR_TOP), 0).IsHorizontal());
    EXPECT_FALSE(row(site(AFX_IDW_DOCKBAR_LEFT), 0).IsHorizontal());
    EXPECT_EQ(row(site(AFX_IDW_DOCKBAR_LEFT), 0).GetRowAlignment(), static_cast<DWORD>(CBRS_ALIGN_LEFT));
    check_frame();
}

TEST_F(DockRows, a_row_counts_its_bars_and_those_that_show) {
    CMFCToolBar &one = docked_bar(), &two = make_bar();
    frame->DockPaneLeftOf(&two, &one);
    one.ShowPane(FALSE, FALSE, FALSE);
    CDockSite& top = site(AFX_IDW_DOCKBAR_TOP);
    const CDockingPanesRow& only = row(top, 0);
    EXPECT_EQ(only.GetPaneCount(), 2);
    EXPECT_EQ(only.GetVisibleCount(), 1);
    EXPECT_TRUE(only.IsVisible());
    EXPECT_FALSE(only.IsEmpty());
    EXPECT_TRUE(only.HasPane(&one));
    EXPECT_TRUE(only.HasPane(&two));
    EXPECT_FALSE(only.HasPane(&top));
    CObList listed;
    only.GetPaneList(listed);
    EXPECT_EQ(listed.GetHead(), &two) << "from the beginning of the row";
    EXPECT_EQ(listed.GetTail(), &one);
    two.ShowPane(FALSE, FALSE, FALSE);
    EXPECT_EQ(row(top, 0).GetVisibleCount(), 0);
    EXPECT_FALSE(row(top, 0).IsVisible());
    EXPECT_EQ(row(top, 0).GetRowHeight(), 0);
    EXPECT_EQ(in_frame(view), CRect(0, 0, 700, 500)) << "no room for what doesn't show";
}

TEST_F(DockRows, a_site_finds_its_bars_by_id_and_by_point) {
    CMFCToolBar& bar = docked_bar();
    CDockSite& top = site(AFX_IDW_DOCKBAR_TOP);
    EXPECT_EQ(top.FindPaneByID(static_cast<UINT>(bar.GetDlgCtrlID())), &bar);
    EXPECT_EQ(top.FindPaneByID(4711), nullptr);
    EXPECT_EQ(top.PaneFromPoint(on_screen(bar).CenterPoint()), &bar);
    EXPECT_EQ(top.PaneFromPoint(on_screen(bar).BottomRight()), nullptr);
    const CPoint center = on_screen(bar).CenterPoint();
    bar.ShowPane(FALSE, FALSE, FALSE);
    EXPECT_EQ(top.PaneFromPoint(center), nullptr) << "it doesn't show";
    EXPECT_TRUE(top.CanAcceptPane(&bar));
    EXPECT_FALSE(top.CanAcceptPane(nullptr));
    EXPECT_FALSE(top.CanAcceptPane(&top)) << "no bar";
    CMFCToolBar& sideways = make_bar();
    sideways.EnableDocking(CBRS_ALIGN_LEFT);
    EXPECT_FALSE(top.CanAcceptPane(&sideways));
    EXPECT_FALSE(top.DockPaneLeftOf(&sideways, nullptr));
    EXPECT_FALSE(top.DockPaneLeftOf(nullptr, &bar));
}

TEST_F(DockRows, a_bar_may_float_unseen) {
    CMFCToolBar &seen = docked_bar(), &unseen = docked_bar();
    EXPECT_TRUE(seen.FloatPane(CRect(300, 300, 400, 320), DM_UNKNOWN, true));
    EXPECT_TRUE(unseen.FloatPane(CRect(500, 300, 600, 320), DM_UNKNOWN, false));
    EXPECT_TRUE(unseen.IsFloating());
    EXPECT_TRUE(seen.GetParentMiniFrame()->IsWindowVisible());
    EXPECT_FALSE(unseen.GetParentMiniFrame()->IsWindowVisible());
    EXPECT_EQ(on_screen(*unseen.GetParentMiniFrame()).TopLeft(), CPoint(500, 300));
}

TEST_F(DockRows, a_bar_floats_only_where_it_can) {
    CMFCToolBar fresh;
    EXPECT_FALSE(fresh.FloatPane(CRect(0, 0, 9, 9), DM_UNKNOWN, true)) << "it has no window";
    EXPECT_FALSE(fresh.DockToRecentPos());
    EXPECT_FALSE(fresh.DockToFrameWindow(CBRS_ALIGN_TOP, nullptr));
    CMFCToolBar& fixed = make_bar(L"fixed", AFX_DEFAULT_TOOLBAR_STYLE & ~static_cast<DWORD>(CBRS_FLOATING));
    EXPECT_EQ(fixed.FloatPane(CRect(0, 0, 9, 9), DM_UNKNOWN, true), fixed.CanFloat());
}

TEST_F(DockRows, buttons_that_are_not_there_have_no_place) {
    CMFCToolBar& bar = docked_bar();
    CMFCToolBarButton loose(99, 0);
    EXPECT_EQ(bar.ButtonToIndex(bar.GetButton(2)), 2);
    EXPECT_EQ(bar.ButtonToIndex(&loose), -1);
    EXPECT_EQ(bar.ButtonToIndex(nullptr), -1);
    EXPECT_EQ(bar.CommandToIndex(kOpen), 1);
    EXPECT_EQ(bar.CommandToIndex(kOpen, 1), 1);
    EXPECT_EQ(bar.CommandToIndex(kOpen, 2), -1) << "not from there on";
    EXPECT_EQ(bar.CommandToIndex(99), -1);
    EXPECT_EQ(bar.GetButton(bar.GetCount()), nullptr);
    EXPECT_EQ(bar.GetButton(-1), nullptr);
    EXPECT_EQ(bar.HitTest(CPoint(-1, 3)), -1);
    CRect last;
    bar.GetItemRect(bar.GetCount() - 1, &last);
    EXPECT_EQ(bar.HitTest(last.CenterPoint()), bar.GetCount() - 1);
    EXPECT_EQ(bar.HitTest(last.BottomRight()), -1);
}

TEST_F(DockRows, tools_are_described_to_whoever_has_room_for_it) {
    CMFCToolBar& bar = docked_bar();
    CRect first;
    bar.GetItemRect(0, &first);
    TOOLINFOW info = {};
    info.cbSize = TTTOOLINFOW_V1_SIZE;
    EXPECT_EQ(bar.OnToolHitTest(first.CenterPoint(), &info), static_cast<INT_PTR>(kNew));
    EXPECT_EQ(info.hwnd, bar.m_hWnd);
    EXPECT_EQ(CRect(info.rect), first);
    EXPECT_EQ(info.uId, kNew);
    EXPECT_EQ(info.lpszText, LPSTR_TEXTCALLBACKW);
    TOOLINFOW small = {};
    small.cbSize = TTTOOLINFOW_V1_SIZE - 1;
    EXPECT_EQ(bar.OnToolHitTest(first.CenterPoint(), &small), static_cast<INT_PTR>(kNew));
    EXPECT_EQ(small.hwnd, nullptr) << "too small to hold it";
    EXPECT_EQ(bar.OnToolHitTest(first.CenterPoint(), nullptr), static_cast<INT_PTR>(kNew));
    EXPECT_EQ(bar.OnToolHitTest(CPoint(-5, -5), &info), -1);
}
