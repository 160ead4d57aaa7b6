// Where a tab window puts tabs, buttons and windows.
#include "tab_fixture.h"

namespace tab_test {

using Button = CMFCTabCtrl::Button;

TEST_F(TabWindow, PutsTheStripAtTheBottomOrTheTop) {
    make();
    add_many(2);
    const int height = tabs.GetTabsHeight();
    EXPECT_GT(height, afxGlobalData.GetTextHeight());
    CRect top, bottom, page, window;
    tabs.GetTabArea(top, bottom);
    EXPECT_TRUE(top.IsRectEmpty());
    EXPECT_EQ(bottom, CRect(0, 200 - height, 400, 200));
    tabs.GetWndArea(page);
    EXPECT_EQ(page, CRect(3, 3, 397, 200 - height - 3)) << "three pixels of border";
    pages[0]->GetWindowRect(&window);
    tabs.ScreenToClient(&window);
    EXPECT_EQ(window, page);
    tabs.SetLocation(CMFCTabCtrl::LOCATION_TOP);
    EXPECT_EQ(tabs.GetLocation(), CMFCTabCtrl::LOCATION_TOP);
    tabs.GetTabArea(top, bottom);
    EXPECT_TRUE(bottom.IsRectEmpty());
    EXPECT_EQ(top, CRect(0, 0, 400, height));
    tabs.SetTabBorderSize(0);
    tabs.GetWndArea(page);
    EXPECT_EQ(page, CRect(0, height, 400, 200));
    EXPECT_EQ(tab(0).top, 0);
    EXPECT_EQ(tab(0).bottom, height);
}

TEST_F(TabWindow, MovesItsWindowsWithItsSize) {
    make();
    add_many(2);
    tabs.MoveWindow(0, 0, 300, 150);
    CRect page, window;
    tabs.GetWndArea(page);
    EXPECT_EQ(page.right, 297);
    for (const auto& each : pages) {
        each->GetWindowRect(&window);
        tabs.ScreenToClient(&window);
        EXPECT_EQ(window, page) << "hidden ones too";
    }
    tabs.AutoSizeWindow(FALSE);
    tabs.MoveWindow(0, 0, 200, 150);
    pages[0]->GetWindowRect(&window);
    EXPECT_EQ(window.Width(), 294);
}

TEST_F(TabWindow, IsNeverSmallerThanNothing) {
    make();
    add_many(2);
    tabs.MoveWindow(0, 0, 3, 4);
    CRect page;
    tabs.GetWndArea(page);
    EXPECT_GE(page.Width(), 0);
    EXPECT_GE(page.Height(), 0);
    tabs.MoveWindow(0, 0, 0, 0);
    tabs.GetWndArea(page);
    EXPECT_GE(page.Width(), 0);
}

TEST_F(TabWindow, HidesTheStripWhenItIsToldTo) {
    make();
    add_many(1);
    const int height = tabs.GetTabsHeight();
    tabs.HideSingleTab();
    EXPECT_TRUE(tabs.IsHideSingleTab());
    EXPECT_EQ(tabs.GetTabsHeight(), 0);
    CRect page;
    tabs.GetWndArea(page);
    EXPECT_EQ(page.bottom, 197);
    add(L"Second");
    EXPECT_EQ(tabs.GetTabsHeight(), height) << "it comes back with the second tab";
    tabs.RemoveAllTabs();
    EXPECT_EQ(tabs.GetTabsHeight(), height);
    tabs.HideNoTabs();
    EXPECT_EQ(tabs.GetTabsHeight(), 0);
}

TEST_F(TabWindow, SharesTheRoomIn3D) {
    make();
    add_many(12);
    int end = 0;
    for (int i = 0; i < 12; ++i) {
        EXPECT_GE(tab(i).left, end);
        EXPECT_GT(tab(i).Width(), 0);
        EXPECT_LT(tab(i).Width(), tabs.GetTabFullWidth(i));
        end = tab(i).right;
    }
    EXPECT_LE(end, 400);
    EXPECT_TRUE(tabs.button_rect(Button::scroll_left).IsRectEmpty());
}

TEST_F(TabWindow, MakesTabsAsWideAsTheirLabels) {
    make();
    add(L"i"), add(L"A much longer label");
    EXPECT_EQ(tab(0).Width(), tabs.GetTabFullWidth(0));
    EXPECT_GT(tab(1).Width(), 2 * tab(0).Width());
    const int before = tab(0).Width();
    tabs.SetTabLabel(0, L"now longer");
    EXPECT_GT(tab(0).Width(), before);
    const int plain = tab(0).Width();
    tabs.SetActiveTabBoldFont();
    EXPECT_TRUE(tabs.IsActiveTabBoldFont());
    EXPECT_GT(tab(0).Width(), plain);
    EXPECT_EQ(tab(1).Width(), tabs.GetTabFullWidth(1));
    tabs.SetTabMaxWidth(40);
    EXPECT_EQ(tabs.GetTabMaxWidth(), 40);
    EXPECT_EQ(tab(1).Width(), 40);
    tabs.SetTabMaxWidth(0);
    EXPECT_GT(tab(1).Width(), 40);
}

TEST_F(TabWindow, CountsAnAmpersandAsTextOnlyWhenToldTo) {
    make();
    add(L"Save && close"), add(L"Save & close");
    const int marked = tabs.GetTabFullWidth(0);
    tabs.SetDrawNoPrefix(TRUE);
    EXPECT_TRUE(tabs.IsDrawNoPrefix());
    EXPECT_GT(tabs.GetTabFullWidth(0), marked);
}

TEST_F(TabWindow, ScrollsTabsThatDontFit) {
    make(CMFCTabCtrl::STYLE_3D_SCROLLED);
    add_many(12);
    EXPECT_EQ(tab(0).Width(), tabs.GetTabFullWidth(0)) << "they keep their widths";
    const CRect left = tabs.button_rect(Button::scroll_left), right = tabs.button_rect(Button::scroll_right);
    ASSERT_FALSE(left.IsRectEmpty());
    EXPECT_EQ(left.right, right.left);
    EXPECT_LE(right.right, 400);
    EXPECT_EQ(tabs.GetFirstVisibleTabNum(), 0);
    click(right.CenterPoint());
    EXPECT_EQ(tabs.GetFirstVisibleTabNum(), 1);
    EXPECT_TRUE(tab(0).IsRectEmpty());
    click(left.CenterPoint());
    EXPECT_EQ(tabs.GetFirstVisibleTabNum(), 0);
    click(left.CenterPoint());
    EXPECT_EQ(tabs.scroll_offset(), 0);
    EXPECT_TRUE(tabs.EnsureVisible(11));
    EXPECT_LE(tab(11).right, left.left);
    const int end = tabs.scroll_offset();
    click(right.CenterPoint());
    EXPECT_EQ(tabs.scroll_offset(), end) << "the end shows already";
    EXPECT_EQ(tabs.GetActiveTab(), 0) << "scrolling activates nothing";
    tabs.SetActiveTab(5);
    EXPECT_FALSE(tab(5).IsRectEmpty());
}

TEST_F(TabWindow, ScrollsByTheWheelOverTheStrip) {
    make(CMFCTabCtrl::STYLE_3D_SCROLLED, CMFCTabCtrl::LOCATION_TOP);
    add_many(12);
    CPoint over = tab(0).CenterPoint();
    tabs.ClientToScreen(&over);
    tabs.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, -WHEEL_DELTA), MAKELPARAM(over.x, over.y));
    EXPECT_EQ(tabs.GetFirstVisibleTabNum(), 1);
    tabs.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, WHEEL_DELTA), MAKELPARAM(over.x, over.y));
    EXPECT_EQ(tabs.GetFirstVisibleTabNum(), 0);
}

TEST_F(TabWindow, TakesItsScrollingBackWhenItGrows) {
    make(CMFCTabCtrl::STYLE_FLAT);
    add_many(6);
    tabs.EnsureVisible(5);
    EXPECT_GT(tabs.scroll_offset(), 0);
    tabs.MoveWindow(0, 0, 2000, 100);
    EXPECT_EQ(tabs.scroll_offset(), 0);
    EXPECT_TRUE(tabs.button_rect(Button::scroll_left).IsRectEmpty());
}

TEST_F(TabWindow, LetsSlantedTabsOverlap) {
    make(CMFCTabCtrl::STYLE_3D_ONENOTE);
    add_many(2);
    EXPECT_TRUE(tabs.IsOneNoteStyle());
    EXPECT_LT(tab(1).left, tab(0).right);
    CPoint shared((tab(1).left + tab(0).right) / 2, tab(0).CenterPoint().y);
    EXPECT_EQ(tabs.GetTabFromPoint(shared), 0) << "the active one lies above";
    tabs.SetActiveTab(1);
    EXPECT_EQ(tabs.GetTabFromPoint(shared), 1);
    EXPECT_TRUE(tabs.ModifyTabStyle(CMFCTabCtrl::STYLE_3D));
    EXPECT_FALSE(tabs.IsOneNoteStyle());
    EXPECT_EQ(tab(1).left, tab(0).right);
}

TEST_F(TabWindow, PutsTheCloseButtonAtTheEndOrOnTheActiveTab) {
    make(CMFCTabCtrl::STYLE_3D, CMFCTabCtrl::LOCATION_TOP, true);
    add_many(2);
    const CRect end = tabs.button_rect(Button::close);
    EXPECT_GT(end.left, tab(1).right);
    EXPECT_FALSE(tabs.IsActiveTabCloseButton());
    EXPECT_TRUE(tabs.GetTabCloseButton().IsRectEmpty());
    const int width = tab(0).Width();
    tabs.EnableActiveTabCloseButton();
    EXPECT_TRUE(tabs.IsActiveTabCloseButton());
    EXPECT_TRUE(tabs.button_rect(Button::close).IsRectEmpty());
    EXPECT_GT(tab(0).Width(), width) << "room for the sign";
    CRect inside;
    EXPECT_TRUE(inside.IntersectRect(tabs.GetTabCloseButton(), tab(0)));
    EXPECT_EQ(inside, tabs.GetTabCloseButton());
    tabs.SetActiveTab(1);
    EXPECT_TRUE(inside.IntersectRect(tabs.GetTabCloseButton(), tab(1)));
}

TEST_F(TabWindow, OffersAMenuInPlaceOfScrollButtons) {
    make(CMFCTabCtrl::STYLE_3D_SCROLLED);
    add_many(12);
    tabs.EnableTabDocumentsMenu();
    EXPECT_TRUE(tabs.IsTabDocumentsMenu());
    EXPECT_TRUE(tabs.button_rect(Button::scroll_left).IsRectEmpty());
    EXPECT_FALSE(tabs.button_rect(Button::menu).IsRectEmpty());
}

TEST_F(TabWindow, GivesImagesRoom) {
    make();
    add(L"One");
    const int width = tab(0).Width(), height = tabs.GetTabsHeight();
    CImageList images;
    images.Create(48, 48, ILC_COLOR32, 2, 0);
    images.SetImageCount(2);
    EXPECT_TRUE(tabs.SetImageList(images.m_hImageList));
    EXPECT_EQ(tabs.GetImageSize(), CSize(48, 48));
    EXPECT_EQ(tabs.GetImageList()->GetSafeHandle(), images.m_hImageList);
    EXPECT_GT(tabs.GetTabsHeight(), height);
    EXPECT_FALSE(tabs.HasImage(0));
    EXPECT_EQ(tab(0).Width(), width);
    EXPECT_TRUE(tabs.SetTabIcon(0, 1));
    EXPECT_EQ(tabs.GetTabIcon(0), 1u);
    EXPECT_TRUE(tabs.HasImage(0));
    EXPECT_GE(tab(0).Width(), width + 48);
    tabs.SetTabIconOnly(0);
    EXPECT_TRUE(tabs.IsTabIconOnly(0));
    EXPECT_LT(tab(0).Width(), width + 48);
    tabs.ResetImageList();
    EXPECT_EQ(tabs.GetTabsHeight(), height);
    tabs.ModifyTabStyle(CMFCTabCtrl::STYLE_FLAT);
    EXPECT_FALSE(tabs.SetImageList(images.m_hImageList)) << "flat tabs have none";
}

TEST_F(TabWindow, FindsWhatIsUnderAPoint) {
    make(CMFCTabCtrl::STYLE_3D, CMFCTabCtrl::LOCATION_TOP);
    add_many(2);
    CPoint first = tab(0).CenterPoint(), second = tab(1).CenterPoint(), page(100, 150);
    EXPECT_EQ(tabs.GetTabFromPoint(first), 0);
    EXPECT_EQ(tabs.GetTabFromPoint(second), 1);
    EXPECT_EQ(tabs.GetTabFromPoint(page), -1);
    EXPECT_TRUE(tabs.IsPtInTabArea(first));
    EXPECT_FALSE(tabs.IsPtInTabArea(page));
    EXPECT_EQ(tabs.FindTargetWnd(page), pages[0].get());
    EXPECT_EQ(tabs.FindTargetWnd(first), nullptr);
}

}  // namespace tab_test
