// The list of pages behind a tab control: adding, turning, leaving, removing.
#include "tab_fixture.h"

#include "sent_messages.h"

namespace {

TEST_F(TabTest, StartsBoundToItsDialogAndWithoutPages) {
    EXPECT_EQ(dialog.GetTabControl(), &dialog.tab);
    EXPECT_EQ(dialog.tab.GetMainDialog(), &dialog);
    EXPECT_EQ(dialog.tab.IsDirty(), 1);
    EXPECT_EQ(dialog.tab.SetActiveTab(0), -1);
    EXPECT_EQ(dialog.tab.GetActiveTab(), -1);
    EXPECT_EQ(dialog.tab.ExchangeData(1), 1);
    EXPECT_EQ(dialog.tab.GetDialogPointer(0), nullptr);
    EXPECT_EQ(dialog.tab.GetDialogPointer(-1), nullptr);
}

TEST_F(TabTest, AnAddedPageIsAChildOfTheDialogAndKnowsItsTab) {
    EXPECT_EQ(a.GetTabIndex(), -1);
    EXPECT_EQ(a.GetMainDialog(), nullptr);
    EXPECT_EQ(a.GetKtdsTabPointer(), nullptr);
    EXPECT_EQ(dialog.AddTab(0, L"first", IDD_TAB_PAGE, &a), 1);
    EXPECT_EQ(a.GetParent(), &dialog);
    EXPECT_EQ(a.GetKtdsTabPointer(), &dialog.tab);
    EXPECT_EQ(a.GetMainDialog(), &dialog);
    EXPECT_EQ(a.GetTabIndex(), 0);
    EXPECT_EQ(dialog.GetTabIndex(&a), 0);
    EXPECT_EQ(dialog.GetTabIndex(&b), -1);
    EXPECT_EQ(dialog.tab.GetDialogPointer(0), &a);
    EXPECT_TRUE(a.IsWindowVisible());
    EXPECT_TRUE(log.empty());
    EXPECT_EQ(a.IsDirty(), 0);
}

TEST_F(TabTest, APageThatHasAWindowKeepsItAndIsShown) {
    a.Create(IDD_TAB_PAGE, &dialog);
    const HWND window = a.m_hWnd;
    EXPECT_FALSE(a.IsWindowVisible());
    std::vector<int> shows;
    ui_test::SentMessages sent([&](const CWPSTRUCT& message) {
        if (message.hwnd == window && message.message == WM_SHOWWINDOW)
            shows.push_back(static_cast<int>(message.wParam));
    });
    EXPECT_EQ(dialog.AddTab(0, L"first", IDD_TAB_PAGE, &a), 1);
    EXPECT_EQ(a.m_hWnd, window);
    EXPECT_TRUE(a.IsWindowVisible());
    EXPECT_EQ(shows.front(), 1);
}

TEST_F(TabTest, NoPageAddsNothing) {
    EXPECT_EQ(dialog.AddTab(0, L"none", IDD_TAB_PAGE, nullptr), 0);
    EXPECT_EQ(dialog.tab.GetItemCount(), 0);
}

TEST_F(TabTest, APageThatFailsToStartLeavesAnItemThatCannotBeLeft) {
    addPages(1);
    b.failsToStart = true;
    EXPECT_EQ(dialog.AddTab(1, L"broken", IDD_TAB_PAGE, &b), 0);
    EXPECT_EQ(dialog.tab.GetItemCount(), 2);
    EXPECT_EQ(dialog.tab.m_pages.GetSize(), 1);
    EXPECT_EQ(b.GetKtdsTabPointer(), &dialog.tab);
    click(1);
    EXPECT_EQ(taken(), (Log{"a leave?", "a out"}));
    EXPECT_EQ(dialog.tab.GetActiveTab(), 1);
    click(0);
    EXPECT_EQ(dialog.tab.GetCurSel(), 1);
    EXPECT_TRUE(taken().empty());
}

TEST_F(TabTest, TheFormWithIdsTakesTheStringAndAnswersZeroAllTheSame) {
    EXPECT_EQ(dialog.AddTab(0, IDS_TAB_NAME, IDD_TAB_PAGE, &a), 0);
    EXPECT_EQ(dialog.tab.AddTab(1, IDS_NO_TAB_NAME, IDD_TAB_PAGE, &b), 0);
    EXPECT_NE(a.m_hWnd, nullptr);
    EXPECT_NE(b.m_hWnd, nullptr);
    wchar_t text[40] = {};
    TCITEMW item = {};
    item.mask = TCIF_TEXT;
    item.pszText = text;
    item.cchTextMax = 40;
    dialog.tab.GetItem(0, &item);
    EXPECT_STREQ(text, L"named by id");
    dialog.tab.GetItem(1, &item);
    EXPECT_STREQ(text, L"301");
}

TEST_F(TabTest, AfterEachAddingTheFirstPageIsInFront) {
    std::vector<std::unique_ptr<NotingPage>> pages;
    for (int i = 0; i < 10; ++i) {
        pages.push_back(std::make_unique<NotingPage>("page", log));
        dialog.AddTab(i, L"page", IDD_TAB_PAGE, pages.back().get());
        EXPECT_EQ(front(), 0) << i;
    }
    EXPECT_EQ(dialog.tab.m_activeTab, 0);
    EXPECT_EQ(dialog.tab.GetCurSel(), 0);
    EXPECT_TRUE(log.empty());
    dialog.DestroyWindow();
}

TEST_F(TabTest, TheListKeepsTheOrderOfAddingWhereverTheItemGoes) {
    addPages(2);
    dialog.AddTab(0, L"c", IDD_TAB_PAGE, &c);
    EXPECT_EQ(dialog.tab.GetTabIndex(&c), 2);
    EXPECT_EQ(dialog.tab.GetTabIndex(&a), 0);
}

TEST_F(TabTest, APageFillsTheControlBelowItsRowWithAMarginOfFive) {
    addPages(2);
    CRect area = rectOf(dialog.tab), item;
    dialog.tab.GetItemRect(0, &item);
    ASSERT_GT(item.Height(), 0);
    area.top += item.Height();
    area.DeflateRect(5, 5);
    EXPECT_EQ(rectOf(a), area);
    EXPECT_EQ(rectOf(b), area);
}

TEST_F(TabTest, APageStandsAboveTheTabControl) {
    addPages(2);
    EXPECT_EQ(dialog.GetTopWindow(), &b);
}

TEST_F(TabTest, AClickAsksThePageThenTurns) {
    addPages(3);
    Log seen;
    ui_test::SentMessages sent([&](const CWPSTRUCT& message) {
        if (message.hwnd == dialog.tab.m_hWnd && message.message == TCM_SETCURSEL)
            seen.push_back("select with " + std::to_string(log.size()));
    });
    click(2);
    EXPECT_EQ(taken(), (Log{"a leave?", "a out", "c in"}));
    EXPECT_EQ(seen, (Log{"select with 2"}));
    EXPECT_EQ(front(), 2);
    EXPECT_EQ(dialog.tab.m_activeTab, 2);
    EXPECT_EQ(::GetFocus(), dialog.tab.m_hWnd);
    EXPECT_EQ(c.IsDirty(), 1);
    EXPECT_EQ(a.IsDirty(), 0);
}

TEST_F(TabTest, APageThatRefusesStaysInFrontAndNobodyIsTold) {
    addPages(2);
    a.mayLeave = false;
    a.GetDlgItem(IDC_FIRST)->SetFocus();
    click(1);
    EXPECT_EQ(taken(), (Log{"a leave?"}));
    EXPECT_EQ(front(), 0);
    EXPECT_EQ(dialog.tab.GetCurSel(), 0);
    EXPECT_EQ(dialog.tab.m_activeTab, 0);
    EXPECT_EQ(b.IsDirty(), 0);
}

/// Sends the tab's own notifications as the control does.
class TabNotification : public TabTest {
protected:
    LRESULT notify(UINT code) {
        NMHDR header = {dialog.tab.m_hWnd, IDC_TABS, code};
        return dialog.SendMessage(WM_NOTIFY, IDC_TABS, reinterpret_cast<LPARAM>(&header));
    }
};

TEST_F(TabNotification, LeavingIsAllowedWithoutASelection) {
    addPages(1);
    dialog.tab.CTabCtrl::DeleteItem(0);
    EXPECT_EQ(notify(TCN_SELCHANGING), 0);
    EXPECT_EQ(dialog.tab.m_activeTab, -1);
    EXPECT_TRUE(taken().empty());
}

TEST_F(TabNotification, LeavingIsRefusedByAPageAndByAnItemWithoutOne) {
    addPages(2);
    EXPECT_EQ(notify(TCN_SELCHANGING), 0);
    a.mayLeave = false;
    EXPECT_NE(notify(TCN_SELCHANGING), 0);
    a.mayLeave = true;
    dialog.tab.m_pages[0] = nullptr;
    EXPECT_NE(notify(TCN_SELCHANGING), 0);
    dialog.tab.m_pages.RemoveAll();
    EXPECT_NE(notify(TCN_SELCHANGING), 0);
}

TEST_F(TabNotification, TheDialogHearsOfALeavingThatIsAllowedAndOfEachArrival) {
    addPages(2);
    notify(TCN_SELCHANGING);
    EXPECT_EQ(dialog.heard, (std::vector<int>{static_cast<int>(TCN_SELCHANGING)}));
    dialog.heard.clear();
    notify(TCN_SELCHANGE);
    EXPECT_EQ(dialog.heard, (std::vector<int>{static_cast<int>(TCN_SELCHANGE)}));
    dialog.heard.clear();
    a.mayLeave = false;
    notify(TCN_SELCHANGING);
    EXPECT_TRUE(dialog.heard.empty());
    dialog.tab.CTabCtrl::DeleteItem(1);
    dialog.tab.CTabCtrl::DeleteItem(0);
    notify(TCN_SELCHANGING);
    EXPECT_TRUE(dialog.heard.empty()) << "without a selection";
}

TEST_F(TabNotification, ArrivingGivesTheControlTheFocus) {
    addPages(2);
    dialog.GetDlgItem(IDOK)->SetFocus();
    dialog.tab.SetCurSel(1);
    notify(TCN_SELCHANGE);
    EXPECT_EQ(::GetFocus(), dialog.tab.m_hWnd);
    EXPECT_EQ(taken(), (Log{"b in"}));
}

TEST_F(TabNotification, ArrivingAtAnItemWithoutAPageTellsNobody) {
    addPages(1);
    dialog.tab.InsertItem(1, L"bare");
    dialog.tab.SetCurSel(1);
    EXPECT_EQ(notify(TCN_SELCHANGE), 0);
    EXPECT_TRUE(taken().empty());
    EXPECT_EQ(dialog.tab.m_activeTab, 1);
    EXPECT_EQ(front(), 0);
}

TEST_F(TabTest, SettingTheActiveTabDoesNotAskThePage) {
    addPages(3);
    a.mayLeave = false;
    EXPECT_EQ(dialog.tab.SetActiveTab(1), 1);
    EXPECT_EQ(taken(), (Log{"a out", "b in"}));
    EXPECT_EQ(front(), 1);
    EXPECT_EQ(b.IsDirty(), 1);
}

TEST_F(TabTest, SettingTheActiveTabBeyondTheItemsMeansTheFirst) {
    addPages(3);
    dialog.tab.SetActiveTab(2);
    taken();
    EXPECT_EQ(dialog.tab.SetActiveTab(3), 0);
    EXPECT_EQ(taken(), (Log{"c out", "a in"}));
    EXPECT_EQ(front(), 0);
}

TEST_F(TabTest, SettingTheActiveTabToTheCurrentOneCallsNothing) {
    addPages(2);
    EXPECT_EQ(dialog.tab.SetActiveTab(0), 0);
    EXPECT_TRUE(taken().empty());
    EXPECT_EQ(a.IsDirty(), 0);
}

TEST_F(TabTest, ANegativeIndexIsKeptAndOnlyTheFormerPageHears) {
    addPages(2);
    EXPECT_EQ(dialog.tab.SetActiveTab(-3), -3);
    EXPECT_EQ(taken(), (Log{"a out"}));
    EXPECT_EQ(front(), 0);
}

TEST_F(TabTest, AnItemWithoutAPageAnswersItsIndexAndLeavesTheFront) {
    addPages(1);
    dialog.tab.InsertItem(1, L"bare");
    EXPECT_EQ(dialog.tab.SetActiveTab(1), 1);
    EXPECT_EQ(taken(), (Log{"a out"}));
    EXPECT_EQ(front(), 0);
}

TEST_F(TabTest, RemovingTheFrontPageHidesItAndTheNextComes) {
    addPages(3);
    EXPECT_EQ(dialog.RemoveTab(0), 1);
    EXPECT_FALSE(a.IsWindowVisible());
    EXPECT_NE(a.m_hWnd, nullptr);
    EXPECT_EQ(dialog.tab.GetItemCount(), 2);
    EXPECT_EQ(dialog.tab.m_pages.GetSize(), 2);
    EXPECT_EQ(dialog.tab.GetDialogPointer(0), &b);
    EXPECT_EQ(dialog.tab.GetCurSel(), 0);
    // Whether it hears that it is in front hangs on what the control reports as selected by itself.
    const Log heard = taken();
    EXPECT_TRUE(heard == Log{"b in"} || heard.empty()) << heard.size();
}

TEST_F(TabTest, RemovingTheFrontPageTellsTheNewOneUnlessTheControlHasSelectedItAlready) {
    addPages(3);
    dialog.tab.SetActiveTab(1);
    taken();
    int reported = -2;
    ui_test::SentMessages sent([&](const CWPSTRUCT& message) {
        if (message.hwnd == dialog.tab.m_hWnd && message.message == TCM_GETCURSEL && reported == -2)
            reported = dialog.tab.GetCurSel();
    });
    EXPECT_EQ(dialog.RemoveTab(1), 1);
    const bool noneLeft = reported == -1;
    EXPECT_EQ(taken(), noneLeft ? Log{"a in"} : Log{});
    EXPECT_EQ(dialog.tab.GetCurSel(), noneLeft ? 0 : reported);
}

TEST_F(TabTest, RemovingOutOfRangeOfTheItemsOrThePagesChangesNothing) {
    addPages(2);
    EXPECT_EQ(dialog.RemoveTab(-1), 0);
    EXPECT_EQ(dialog.RemoveTab(2), 0);
    dialog.tab.InsertItem(2, L"bare");
    EXPECT_EQ(dialog.RemoveTab(2), 0);
    EXPECT_EQ(dialog.tab.GetItemCount(), 3);
    dialog.tab.CTabCtrl::DeleteItem(2);
    dialog.tab.CTabCtrl::DeleteItem(1);
    EXPECT_EQ(dialog.RemoveTab(1), 0);
    EXPECT_EQ(dialog.tab.m_pages.GetSize(), 2);
    EXPECT_TRUE(taken().empty());
}

TEST_F(TabTest, DeletingAnItemIsRemovingItsTab) {
    addPages(2);
    EXPECT_EQ(dialog.tab.DeleteItem(1), 1);
    EXPECT_EQ(dialog.tab.GetItemCount(), 1);
    EXPECT_EQ(dialog.tab.m_pages.GetSize(), 1);
    EXPECT_EQ(dialog.tab.DeleteItem(1), 0);
}

TEST_F(TabTest, DestroyingATabDestroysItsWindow) {
    addPages(2);
    EXPECT_EQ(dialog.tab.DestroyTab(1, 0), 1);
    EXPECT_EQ(b.m_hWnd, nullptr);
    EXPECT_EQ(dialog.tab.GetItemCount(), 1);
    EXPECT_EQ(dialog.tab.DestroyTab(5, 1), 1);
    EXPECT_EQ(dialog.tab.exchanges, 0);
}

TEST_F(TabTest, DestroyingATabThatWasVisitedExchangesTheTabWindowsDataIfAskedToSave) {
    addPages(4);
    b.SetDirty(1);
    c.SetDirty(1);
    d.SetDirty(1);
    dialog.tab.DestroyTab(3, 0);
    EXPECT_EQ(dialog.tab.exchanges, 0);
    dialog.tab.DestroyTab(2, 2);
    EXPECT_EQ(dialog.tab.exchanges, 0);
    dialog.tab.DestroyTab(1, 1);
    EXPECT_EQ(dialog.tab.exchanges, 1);
    dialog.tab.DestroyTab(0, 1);
    EXPECT_EQ(dialog.tab.exchanges, 1);
    EXPECT_TRUE(std::none_of(log.begin(), log.end(), [](auto& each) { return each.ends_with("exchange"); }));
}

TEST_F(TabTest, TheExchangeStopsAtTheFirstPageThatFails) {
    addPages(3);
    EXPECT_EQ(dialog.tab.ValidateData(), 1);
    EXPECT_EQ(taken(), (Log{"a exchange", "b exchange", "c exchange"}));
    b.failing = true;
    EXPECT_EQ(dialog.tab.ExchangeData(1), 0);
    EXPECT_EQ(taken(), (Log{"a exchange", "b exchange"}));
    EXPECT_EQ(dialog.tab.DisplayData(), 1);
    EXPECT_TRUE(taken().empty());
    dialog.tab.m_pages[1] = nullptr;
    EXPECT_EQ(dialog.tab.ExchangeData(1), 1);
}

TEST_F(TabTest, TheDirtyMarkOfTheControlFollowsTheApplyButton) {
    addPages(1);
    dialog.tab.SetDirty(5);
    EXPECT_EQ(dialog.tab.IsDirty(), 5);
    // The button is the dialog's, not the control's.
    dialog.tab.SetApplyButtonID(IDC_APPLY);
    EXPECT_EQ(dialog.tab.m_applyButtonId, static_cast<unsigned>(IDC_APPLY));
    EXPECT_EQ(dialog.tab.IsDirty(), 0);
    CButton inside;
    inside.Create(L"", WS_CHILD, CRect(0, 0, 1, 1), &dialog.tab, IDC_APPLY);
    dialog.tab.SetApplyButtonID(IDC_APPLY);
    EXPECT_EQ(dialog.tab.IsDirty(), 1);
}

TEST_F(TabTest, TheFocusOfAValidationGoesToTheTabControlsOwnChild) {
    addPages(1);
    CEdit inside;
    inside.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 9, 9), &dialog.tab, IDC_FIRST);
    for (int way = 0; way < 2; ++way) {
        dialog.GetDlgItem(IDOK)->SetFocus();
        CDataExchange exchange(&a, TRUE);
        exchange.PrepareEditCtrl(IDC_FIRST);
        if (way == 0)
            a.SetValidationInfo(&exchange);
        else
            dialog.tab.SetValidationInfo(&exchange);
        EXPECT_EQ(::GetFocus(), inside.m_hWnd);
    }
    dialog.GetDlgItem(IDOK)->SetFocus();
    CDataExchange exchange(&a, TRUE);
    exchange.PrepareEditCtrl(IDC_SECOND);
    a.SetValidationInfo(&exchange);
    EXPECT_EQ(::GetFocus(), dialog.GetDlgItem(IDOK)->m_hWnd);
}

TEST_F(TabTest, TheFocusMarkGoesToTheSelectedItem) {
    addPages(2);
    std::vector<WPARAM> marks;
    ui_test::SentMessages sent([&](const CWPSTRUCT& message) {
        if (message.hwnd == dialog.tab.m_hWnd && message.message == TCM_SETCURFOCUS)
            marks.push_back(message.wParam);
    });
    dialog.tab.SetActiveTab(1);
    dialog.tab.SetChildFocus();
    EXPECT_EQ(marks, (std::vector<WPARAM>{1}));
}

}  // namespace
