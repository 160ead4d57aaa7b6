// The list of tabs: which are there, which is active, what the owner hears.
#include "tab_fixture.h"

namespace tab_test {

TEST_F(TabWindow, IsEmptyAtFirst) {
    make();
    int first = 5;
    CRect rect;
    CString label;
    EXPECT_EQ(tabs.GetTabsNum(), 0);
    EXPECT_EQ(tabs.GetActiveTab(), -1);
    EXPECT_EQ(tabs.GetActiveWnd(), nullptr);
    EXPECT_EQ(tabs.GetFirstVisibleTab(first), nullptr);
    EXPECT_EQ(first, -1);
    EXPECT_FALSE(tabs.GetTabRect(0, rect));
    EXPECT_FALSE(tabs.GetTabLabel(0, label));
    EXPECT_FALSE(tabs.SetTabLabel(0, L"x"));
    EXPECT_FALSE(tabs.RemoveTab(0));
    EXPECT_FALSE(tabs.SetActiveTab(0));
    EXPECT_FALSE(tabs.ShowTab(0));
    EXPECT_FALSE(tabs.IsTabVisible(0));
    EXPECT_FALSE(tabs.EnsureVisible(0));
    EXPECT_EQ(tabs.GetTabID(0), -1);
    EXPECT_EQ(tabs.GetTabFullWidth(0), -1);
    EXPECT_EQ(tabs.GetTabWnd(0), nullptr);
    EXPECT_FALSE(tabs.IsTabDetachable(0));
    EXPECT_FALSE(tabs.EnableTabDetach(0, TRUE));
    EXPECT_EQ(owner.heard, Heard{});
}

TEST_F(TabWindow, ActivatesTheFirstTabThatIsAdded) {
    make();
    Page& one = add(L"One");
    Page& two = add(L"Two");
    EXPECT_EQ(tabs.GetActiveTab(), 0);
    EXPECT_EQ(tabs.GetActiveWnd(), &one);
    EXPECT_TRUE(one.IsWindowVisible());
    EXPECT_FALSE(two.IsWindowVisible());
    EXPECT_EQ(owner.heard, (Heard{"changing 0 from -1", "changed 0 shown"}));
    EXPECT_EQ(tabs.changes, 2);
}

TEST_F(TabWindow, TakesItsWindowsInAndShowsOne) {
    make();
    Page outside(&owner, 77);
    tabs.AddTab(&outside, L"Outside");
    EXPECT_EQ(::GetParent(outside.m_hWnd), tabs.m_hWnd);
    tabs.AddTab(&outside, L"Again");
    EXPECT_EQ(tabs.GetTabsNum(), 1) << "a window has one tab";
    CWnd none;
    tabs.AddTab(&none, L"None");
    tabs.AddTab(nullptr, L"Null");
    EXPECT_EQ(tabs.GetTabsNum(), 1);
}

TEST_F(TabWindow, ChangesTheActiveTabInOrder) {
    make();
    Page& one = add(L"One");
    Page& two = add(L"Two");
    owner.heard.clear();
    EXPECT_TRUE(tabs.SetActiveTab(1));
    EXPECT_EQ(owner.heard, (Heard{"changing 1 from 0", "changed 1 shown"}));
    EXPECT_FALSE(one.IsWindowVisible());
    EXPECT_TRUE(two.IsWindowVisible());
    EXPECT_TRUE(tabs.SetActiveTab(1)) << "nothing to change, nobody hears";
    EXPECT_FALSE(tabs.SetActiveTab(2));
    EXPECT_FALSE(tabs.SetActiveTab(-1));
    EXPECT_EQ(owner.heard.size(), 2u);
}

TEST_F(TabWindow, StaysWhenTheOwnerSaysNo) {
    make();
    Page& one = add(L"One");
    add(L"Two");
    owner.heard.clear();
    owner.vetoed = 1;
    EXPECT_FALSE(tabs.SetActiveTab(1));
    EXPECT_EQ(tabs.GetActiveTab(), 0);
    EXPECT_TRUE(one.IsWindowVisible());
    EXPECT_EQ(owner.heard, (Heard{"changing 1 from 0"}));
}

TEST_F(TabWindow, KeepsTheSameWindowActiveWhenTabsAreInsertedBeforeIt) {
    make();
    Page& one = add(L"One");
    add(L"Before", 0);
    EXPECT_EQ(labels(), L"Before,One");
    EXPECT_EQ(tabs.GetActiveTab(), 1);
    EXPECT_EQ(tabs.GetActiveWnd(), &one);
    add(L"Between", 1);
    add(L"End", 99);
    EXPECT_EQ(labels(), L"Before,Between,One,End");
    EXPECT_EQ(tabs.GetActiveWnd(), &one);
    EXPECT_EQ(owner.heard.size(), 2u) << "only the first became active";
}

TEST_F(TabWindow, GivesEachTabAnIdForEver) {
    make();
    add(L"a"), add(L"b"), add(L"c", 0);
    EXPECT_EQ(tabs.GetTabID(0), 2);
    EXPECT_EQ(tabs.GetTabByID(0), 1);
    tabs.RemoveTab(0);
    add(L"d");
    EXPECT_EQ(tabs.GetTabID(2), 3);
    EXPECT_EQ(tabs.GetTabByID(2), -1);
    EXPECT_EQ(tabs.GetTabFromHwnd(pages[1]->m_hWnd), 1);
    EXPECT_EQ(tabs.GetTabFromHwnd(tabs.m_hWnd), -1);
}

TEST_F(TabWindow, ActivatesTheNextTabWhenTheActiveOneGoes) {
    make();
    add_many(3);
    tabs.SetActiveTab(1);
    owner.heard.clear();
    EXPECT_TRUE(tabs.RemoveTab(1));
    EXPECT_EQ(tabs.GetActiveWnd(), pages[2].get());
    EXPECT_EQ(tabs.GetActiveTab(), 1);
    EXPECT_FALSE(pages[1]->IsWindowVisible());
    EXPECT_TRUE(::IsWindow(pages[1]->m_hWnd)) << "the window is the caller's";
    EXPECT_EQ(owner.heard, (Heard{"changing 1 from -1", "changed 1 shown"}));
    EXPECT_TRUE(tabs.RemoveTab(1));
    EXPECT_EQ(tabs.GetActiveWnd(), pages[0].get()) << "the one before, when there is none behind";
    EXPECT_TRUE(tabs.RemoveTab(0));
    EXPECT_EQ(tabs.GetActiveTab(), -1);
}

TEST_F(TabWindow, LeavesTheActiveTabAloneWhenAnotherGoes) {
    make();
    add_many(3);
    tabs.SetActiveTab(1);
    owner.heard.clear();
    tabs.RemoveTab(0);
    EXPECT_EQ(tabs.GetActiveTab(), 0);
    EXPECT_EQ(tabs.GetActiveWnd(), pages[1].get());
    tabs.RemoveTab(1);
    EXPECT_EQ(tabs.GetActiveWnd(), pages[1].get());
    EXPECT_EQ(owner.heard, Heard{});
}

TEST_F(TabWindow, ReturnsToTheTabThatWasActiveBefore) {
    make();
    add_many(4);
    tabs.EnableActivateLastActive();
    tabs.SetActiveTab(3);
    tabs.SetActiveTab(1);
    tabs.RemoveTab(1);
    EXPECT_EQ(tabs.GetActiveWnd(), pages[3].get());
}

TEST_F(TabWindow, DestroysWindowsThatItIsToldTo) {
    make();
    add_many(3);
    tabs.AutoDestroyWindow();
    EXPECT_TRUE(tabs.IsAutoDestroyWindow());
    tabs.RemoveTab(0);
    EXPECT_EQ(pages[0]->m_hWnd, nullptr);
    tabs.RemoveAllTabs();
    EXPECT_EQ(pages[2]->m_hWnd, nullptr);
    EXPECT_EQ(tabs.GetTabsNum(), 0);
    EXPECT_EQ(tabs.GetActiveTab(), -1);
}

TEST_F(TabWindow, HidesTheWindowsOfAllTabsThatItRemoves) {
    make();
    add_many(2);
    tabs.RemoveAllTabs();
    EXPECT_FALSE(pages[0]->IsWindowVisible());
    EXPECT_NE(pages[0]->m_hWnd, nullptr);
}

TEST_F(TabWindow, PassesOverHiddenTabs) {
    make();
    add_many(4);
    EXPECT_TRUE(tabs.ShowTab(0, FALSE));
    EXPECT_EQ(tabs.GetActiveTab(), 1);
    EXPECT_FALSE(pages[0]->IsWindowVisible());
    EXPECT_FALSE(tabs.IsTabVisible(0));
    EXPECT_EQ(tabs.GetVisibleTabsNum(), 3);
    EXPECT_TRUE(tab(0).IsRectEmpty());
    int number = 9;
    EXPECT_EQ(tabs.GetFirstVisibleTab(number), pages[1].get());
    EXPECT_EQ(number, 1);
    EXPECT_EQ(tabs.GetFirstVisibleTab(2, number), pages[2].get());
    EXPECT_EQ(tabs.GetFirstVisibleTab(4, number), nullptr);
    EXPECT_EQ(number, -1);
    tabs.ShowTab(3, FALSE);
    EXPECT_EQ(tabs.GetLastVisibleTab(number), pages[2].get());
    tabs.SetActiveTab(2);
    tabs.RemoveTab(2);
    EXPECT_EQ(tabs.GetActiveWnd(), pages[1].get());
}

TEST_F(TabWindow, ShowsATabAgainWithOrWithoutActivatingIt) {
    make();
    add_many(3);
    tabs.ShowTab(2, FALSE);
    tabs.ShowTab(2, TRUE, TRUE, FALSE);
    EXPECT_EQ(tabs.GetActiveTab(), 0);
    tabs.ShowTab(2, FALSE);
    tabs.ShowTab(2);
    EXPECT_EQ(tabs.GetActiveTab(), 2);
    tabs.ShowTab(0, FALSE), tabs.ShowTab(1, FALSE), tabs.ShowTab(2, FALSE);
    EXPECT_EQ(tabs.GetActiveTab(), -1);
    tabs.ShowTab(1, TRUE, TRUE, FALSE);
    EXPECT_EQ(tabs.GetActiveTab(), 1) << "the only one that shows";
}

TEST_F(TabWindow, ActivatesAHiddenTabByShowingIt) {
    make();
    add_many(2);
    tabs.ShowTab(1, FALSE);
    EXPECT_TRUE(tabs.SetActiveTab(1));
    EXPECT_TRUE(tabs.IsTabVisible(1));
}

TEST_F(TabWindow, MovesTabsAndKeepsTheActiveWindow) {
    make();
    add(L"a"), add(L"b"), add(L"c"), add(L"d");
    tabs.SetActiveTab(1);
    tabs.MoveTab(0, 2);
    EXPECT_EQ(labels(), L"b,c,a,d");
    EXPECT_EQ(tabs.GetActiveTab(), 0);
    tabs.MoveTab(0);
    EXPECT_EQ(labels(), L"c,a,d,b");
    EXPECT_EQ(tabs.GetActiveTab(), 3);
    tabs.MoveTab(9, 0);
    tabs.MoveTab(0, 9);
    tabs.MoveTab(-1, 0);
    EXPECT_EQ(labels(), L"c,a,d,b");
    tabs.SwapTabs(3, 0);
    EXPECT_EQ(labels(), L"b,a,d,c");
    EXPECT_EQ(tabs.GetActiveTab(), 0);
    tabs.SwapTabs(1, 0);
    EXPECT_EQ(tabs.GetActiveTab(), 1);
    tabs.SwapTabs(2, 3);
    EXPECT_EQ(labels(), L"a,b,c,d");
    EXPECT_EQ(tabs.GetActiveTab(), 1);
    tabs.SwapTabs(0, 4);
    EXPECT_EQ(labels(), L"a,b,c,d");
}

TEST_F(TabWindow, TakesAnOrderThatNamesEachTabOnce) {
    make();
    add(L"a"), add(L"b"), add(L"c");
    const auto order = [](std::initializer_list<int> places) {
        CArray<int, int> made;
        for (int place : places) made.Add(place);
        return std::vector<int>(made.GetData(), made.GetData() + made.GetSize());
    };
    const auto apply = [&](std::vector<int> places) {
        CArray<int, int> made;
        for (int place : places) made.Add(place);
        return tabs.SetTabsOrder(made);
    };
    EXPECT_TRUE(apply(order({2, 0, 1})));
    EXPECT_EQ(labels(), L"c,a,b");
    EXPECT_EQ(tabs.GetActiveTab(), 1);
    EXPECT_FALSE(apply(order({0, 1})));
    EXPECT_FALSE(apply(order({0, 1, 1})));
    EXPECT_FALSE(apply(order({0, 1, 3})));
    EXPECT_EQ(labels(), L"c,a,b");
}

TEST_F(TabWindow, RemembersWhichTabsCanBeTornOff) {
    make();
    add_many(1);
    Page fixed(&tabs, 5);
    tabs.AddTab(&fixed, L"Fixed", static_cast<UINT>(-1), FALSE);
    EXPECT_TRUE(tabs.IsTabDetachable(0));
    EXPECT_FALSE(tabs.IsTabDetachable(1));
    EXPECT_TRUE(tabs.EnableTabDetach(1, TRUE));
    EXPECT_TRUE(tabs.IsTabDetachable(1));
    EXPECT_FALSE(tabs.DetachTab(DM_SHOW, 0)) << "there is no pane around it";
    EXPECT_EQ(tabs.GetTabsNum(), 2);
}

TEST_F(TabWindow, KeepsItsStateByTheIdsOfItsWindows) {
    make();
    add(L"a"), add(L"b"), add(L"c");
    tabs.MoveTab(2, 0);
    tabs.SetTabLabel(1, L"renamed");
    tabs.ShowTab(2, FALSE);
    tabs.SetActiveTab(0);
    CMemFile file;
    {
        CArchive archive(&file, CArchive::store);
        tabs.Serialize(archive);
    }
    tabs.ShowTab(2);
    tabs.MoveTab(0, 2);
    tabs.SetActiveTab(1);
    ASSERT_NE(labels(), L"c,renamed,b");
    file.SeekToBegin();
    CArchive archive(&file, CArchive::load);
    tabs.Serialize(archive);
    tabs.ApplyRestoredTabInfo();
    EXPECT_EQ(labels(), L"c,renamed,b");
    EXPECT_FALSE(tabs.IsTabVisible(2));
    EXPECT_EQ(tabs.GetActiveTab(), 0);
}

TEST_F(TabWindow, KeepsTabsThatItsStateDoesntKnow) {
    make();
    add(L"a"), add(L"b");
    tabs.SwapTabs(0, 1);
    CMemFile file;
    {
        CArchive archive(&file, CArchive::store);
        tabs.Serialize(archive);
    }
    tabs.SwapTabs(0, 1);
    tabs.RemoveTab(0);
    add(L"new");
    file.SeekToBegin();
    CArchive archive(&file, CArchive::load);
    tabs.Serialize(archive);
    tabs.ApplyRestoredTabInfo();
    EXPECT_EQ(labels(), L"b,new");
}

TEST_F(TabWindow, RefusesAStateOfAnotherVersion) {
    make();
    add_many(2);
    CMemFile file;
    {
        CArchive archive(&file, CArchive::store);
        tabs.Serialize(archive);
    }
    const auto length = static_cast<UINT>(file.GetLength());
    BYTE* bytes = file.Detach();
    for (UINT cut = 0; cut < length; ++cut) {
        CMemFile part(bytes, cut);
        CArchive archive(&part, CArchive::load);
        EXPECT_THROW(tabs.Serialize(archive), CArchiveException*) << cut;
    }
    bytes[0] = 9;
    CMemFile other(bytes, length);
    CArchive archive(&other, CArchive::load);
    EXPECT_THROW(tabs.Serialize(archive), CArchiveException*);
    ::free(bytes);
    tabs.ApplyRestoredTabInfo();
    EXPECT_EQ(tabs.GetTabsNum(), 2);
}

}  // namespace tab_test
