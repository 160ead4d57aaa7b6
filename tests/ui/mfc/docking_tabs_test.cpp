// Panes that join in tabs by a call and by a drop.
#include <afxtabbedpane.h>

#include "docking_fixture.h"

using namespace docking;

TEST_F(Docking, a_pane_joins_another_in_a_tabbed_pane_that_takes_its_place) {
    Pane& first = docked(L"first", AFX_IDW_DOCKBAR_LEFT);
    Pane& second = docked(L"second", AFX_IDW_DOCKBAR_RIGHT);
    CDockablePane* tabbed = nullptr;
    EXPECT_EQ(second.AttachToTabWnd(&first, DM_SHOW, TRUE, &tabbed), &second);
    ASSERT_NE(tabbed, nullptr);
    EXPECT_EQ(at(*tabbed), CRect(0, 0, 150, 500));
    EXPECT_EQ(first.GetParentTabbedPane(), tabbed);
    EXPECT_EQ(second.GetParentTabbedPane(), tabbed);
    EXPECT_TRUE(second.IsTabbed());
    EXPECT_TRUE(second.IsDocked());
    EXPECT_EQ(second.GetCaptionHeight(), 0);
    EXPECT_EQ(frame->GetPane(kFirstId + 2), &second);
    check_frame();
    Pane& third = make(L"third");
    EXPECT_EQ(third.AttachToTabWnd(&first, DM_SHOW), &third);
    EXPECT_EQ(static_cast<CBaseTabbedPane*>(tabbed)->GetTabsNum(), 3);
    EXPECT_EQ(third.AttachToTabWnd(&first, DM_SHOW), nullptr);
    EXPECT_EQ(third.AttachToTabWnd(nullptr, DM_SHOW), nullptr);
}

TEST_F(Docking, a_tab_that_floats_leaves_the_others_their_place) {
    Pane& first = docked(L"first", AFX_IDW_DOCKBAR_LEFT);
    Pane& second = docked(L"second", AFX_IDW_DOCKBAR_RIGHT);
    second.AttachToTabWnd(&first, DM_SHOW);
    EXPECT_TRUE(second.FloatPane(CRect(300, 200, 500, 350)));
    ui_test::pump();
    EXPECT_TRUE(second.IsFloating());
    EXPECT_FALSE(second.IsTabbed());
    EXPECT_TRUE(second.IsPaneVisible());
    EXPECT_EQ(on_screen(*second.GetParentMiniFrame()), CRect(300, 200, 500, 350));
    EXPECT_TRUE(first.IsDocked());
    frame->DockPane(&second, AFX_IDW_DOCKBAR_RIGHT);
    EXPECT_EQ(at(second), CRect(550, 0, 700, 500));
    check_frame();
}

TEST_F(Docking, a_drop_on_the_middle_guide_or_on_a_caption_makes_tabs) {
    for (const bool onCaption : {false, true}) {
        Pane& first = docked(L"first", AFX_IDW_DOCKBAR_LEFT);
        Pane& second = docked(L"second", AFX_IDW_DOCKBAR_RIGHT);
        const CPoint target = onCaption ? caption_of(first) : on_screen(first).CenterPoint();
        press(second, caption_of(second));
        move(caption_of(second) + CSize(60, 60));
        move(target);
        release(target);
        EXPECT_TRUE(second.IsTabbed());
        EXPECT_EQ(second.GetParentTabbedPane(), first.GetParentTabbedPane());
        EXPECT_TRUE(second.IsDocked());
        check_frame();
    }
}

TEST_F(Docking, tabs_float_and_dock_together) {
    Pane& first = docked(L"first", AFX_IDW_DOCKBAR_LEFT);
    Pane& second = docked(L"second", AFX_IDW_DOCKBAR_RIGHT);
    CDockablePane* tabbed = nullptr;
    second.AttachToTabWnd(&first, DM_SHOW, TRUE, &tabbed);
    ASSERT_NE(tabbed, nullptr);
    EXPECT_TRUE(tabbed->FloatPane(CRect(300, 200, 500, 350)));
    EXPECT_TRUE(first.IsFloating());
    EXPECT_EQ(first.GetParentMiniFrame(), second.GetParentMiniFrame());
    EXPECT_TRUE(tabbed->DockToRecentPos());
    EXPECT_EQ(at(*tabbed), CRect(0, 0, 150, 500));
    EXPECT_TRUE(first.IsDocked());
    check_frame();
}
