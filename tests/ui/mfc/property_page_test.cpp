// The pages of a sheet: what they are told and in which order, and what they may refuse.
#include "sheet_fixture.h"

namespace {

using namespace sheets;
using PagesOfSheet = Sheets;

TEST_F(PagesOfSheet, APageMayRefuseToBeCancelled) {
    first.cancels = FALSE;
    bool stayed = false;
    const INT_PTR result = run([&] {
        press(PSBTN_CANCEL);
        stayed = sheet.m_hWnd != nullptr && (sheet.m_nFlags & WF_CONTINUEMODAL);
        first.cancels = TRUE;
        press(PSBTN_CANCEL);
    });
    EXPECT_TRUE(stayed);
    EXPECT_EQ(result, IDCANCEL);
}

TEST_F(PagesOfSheet, ValuesAreExchangedWhenAPageIsLeftAndShownWhenItComesBack) {
    CString again;
    run([&] {
        first.SetDlgItemText(kText, L"one");
        EXPECT_TRUE(sheet.SetActivePage(1));
        EXPECT_EQ(first.text, L"one");
        EXPECT_EQ(sheet.GetActivePage(), &second);
        EXPECT_EQ(sheet.GetActiveIndex(), 1);
        first.text = L"other";
        EXPECT_TRUE(sheet.SetActivePage(&first));
        again = ui_test::text_of(first.GetDlgItem(kText)->m_hWnd);
        press(PSBTN_OK);
    });
    EXPECT_EQ(again, L"other");
    EXPECT_EQ(log, (Log{"1 init", "1 active", "1 leave", "2 init", "2 active", "2 leave", "1 active",
                        "1 leave", "1 apply", "1 ok", "2 apply", "2 ok"}));
}

TEST_F(PagesOfSheet, WhatAPageSetsWhenItBecomesActiveIsShown) {
    first.set = L"set";
    CString shownText;
    run([&] {
        shownText = ui_test::text_of(first.GetDlgItem(kText)->m_hWnd);
        press(PSBTN_CANCEL);
    });
    EXPECT_EQ(shownText, L"set");
}

TEST_F(PagesOfSheet, APageThatRefusesToBeLeftStays) {
    first.leaves = FALSE;
    bool stayed = false;
    run([&] {
        EXPECT_FALSE(sheet.SetActivePage(1));
        EXPECT_EQ(sheet.GetActiveIndex(), 0);
        press(PSBTN_OK);
        stayed = (sheet.m_nFlags & WF_CONTINUEMODAL) != 0;
        press(PSBTN_CANCEL);
    });
    EXPECT_TRUE(stayed);
    EXPECT_EQ(log, (Log{"1 init", "1 active", "1 leave", "1 leave", "1 may cancel", "1 reset", "1 cancel"}));
}

TEST_F(PagesOfSheet, AValueThatDoesNotFitKeepsThePage) {
    run([&] {
        first.SendDlgItemMessage(kText, EM_LIMITTEXT, 100);
        first.SetDlgItemText(kText, L"much too long");
        ui_test::when_dialog(L"ui_test", [](HWND box) { ::PostMessageW(box, WM_COMMAND, IDOK, 0); });
        EXPECT_FALSE(sheet.SetActivePage(1));
        EXPECT_EQ(sheet.GetActiveIndex(), 0);
        EXPECT_EQ(::GetFocus(), first.GetDlgItem(kText)->m_hWnd);
        press(PSBTN_CANCEL);
    });
}

TEST_F(PagesOfSheet, APageThatRefusesToBecomeActiveIsPassedOver) {
    sheet.AddPage(&third);
    second.activates = FALSE;
    int active = -1;
    run([&] {
        sheet.SetActivePage(1);
        active = sheet.GetActiveIndex();
        press(PSBTN_CANCEL);
    });
    EXPECT_EQ(active, 2);
}

TEST_F(PagesOfSheet, ApplyIsEnabledWhileAPageIsModified) {
    std::vector<bool> states;
    const INT_PTR result = run([&] {
        const auto note = [&] { states.push_back(enabled(ID_APPLY_NOW)); };
        note();
        first.SetModified();
        note();
        sheet.SetActivePage(1);
        second.SetModified(TRUE);
        first.SetModified(FALSE);
        note();
        second.OnOK();
        note();
        second.SetModified();
        log.clear();
        press(PSBTN_APPLYNOW);
        note();
        // The system makes the page active anew.
        EXPECT_EQ(log, (Log{"2 leave", "1 apply", "1 ok", "2 apply", "2 ok", "2 active"}));
        EXPECT_TRUE(sheet.m_nFlags & WF_CONTINUEMODAL);
        press(PSBTN_CANCEL);
    });
    EXPECT_EQ(states, (std::vector<bool>{false, true, true, false, false}));
    // What was applied before does not make a cancelled sheet a confirmed one.
    EXPECT_EQ(result, IDCANCEL);
}

TEST_F(PagesOfSheet, APageThatDoesNotApplyKeepsTheSheetOpen) {
    first.applies = FALSE;
    bool stayed = false;
    const INT_PTR result = run([&] {
        press(PSBTN_OK);
        stayed = (sheet.m_nFlags & WF_CONTINUEMODAL) != 0;
        first.applies = TRUE;
        press(PSBTN_OK);
    });
    EXPECT_TRUE(stayed);
    EXPECT_EQ(result, IDOK);
    EXPECT_EQ(log, (Log{"1 init", "1 active", "1 leave", "1 apply", "1 leave", "1 apply", "1 ok"}));
}

TEST_F(PagesOfSheet, CancelToCloseLeavesOnlyClose) {
    CString former, after;
    bool canCancel = true;
    run([&] {
        former = ui_test::text_of(button(IDOK));
        first.CancelToClose();
        after = ui_test::text_of(button(IDOK));
        canCancel = enabled(IDCANCEL);
        press(PSBTN_OK);
    });
    EXPECT_NE(former, after);
    EXPECT_FALSE(canCancel);
}

TEST_F(PagesOfSheet, SiblingsAreAskedUntilOneAnswers) {
    sheet.AddPage(&third);
    second.sibling = 100;
    LRESULT answer = 0, none = -1;
    run([&] {
        sheet.SetActivePage(1);
        sheet.SetActivePage(2);
        answer = first.QuerySiblings(3, 4);
        second.sibling = 0;
        none = third.QuerySiblings(1, 1);
        press(PSBTN_CANCEL);
    });
    EXPECT_EQ(answer, 107);
    EXPECT_EQ(none, 0);
    EXPECT_EQ(first.asked, 2);
    EXPECT_EQ(second.asked, 2);
    EXPECT_EQ(third.asked, 1);
}

TEST_F(PagesOfSheet, PagesComeAndGoWhileItIsShown) {
    run([&] {
        EXPECT_EQ(sheet.GetTabControl()->GetItemCount(), 2);
        sheet.AddPage(&third);
        EXPECT_EQ(sheet.GetTabControl()->GetItemCount(), 3);
        EXPECT_EQ(sheet.GetPageCount(), 3);
        EXPECT_TRUE(sheet.SetActivePage(&third));
        EXPECT_EQ(sheet.GetActivePage(), &third);
        EXPECT_NE(third.m_hWnd, nullptr);
        sheet.RemovePage(&second);
        EXPECT_EQ(sheet.GetTabControl()->GetItemCount(), 2);
        EXPECT_EQ(sheet.GetPageIndex(&third), 1);
        EXPECT_EQ(sheet.GetPageIndex(&second), -1);
        sheet.RemovePage(1);
        EXPECT_EQ(third.m_hWnd, nullptr);
        EXPECT_EQ(sheet.GetActivePage(), &first);
        press(PSBTN_CANCEL);
    });
    EXPECT_EQ(sheet.GetPageCount(), 1);
}

TEST_F(PagesOfSheet, WhatIsNoPageIsRefused) {
    Page stranger(kThird, "s", log);
    EXPECT_FALSE(sheet.SetActivePage(2));
    EXPECT_FALSE(sheet.SetActivePage(-1));
    EXPECT_FALSE(sheet.SetActivePage(&stranger));
    EXPECT_THROW(sheet.GetPage(2), CInvalidArgException*);
    EXPECT_THROW(sheet.GetPage(-1), CInvalidArgException*);
    EXPECT_THROW(sheet.AddPage(nullptr), CInvalidArgException*);
    EXPECT_THROW(sheet.RemovePage(static_cast<CPropertyPage*>(nullptr)), CInvalidArgException*);
    EXPECT_THROW(sheet.RemovePage(5), CInvalidArgException*);
    EXPECT_THROW(sheet.SetActivePage(static_cast<CPropertyPage*>(nullptr)), CInvalidArgException*);
    sheet.RemovePage(&stranger);
    EXPECT_EQ(sheet.GetPageCount(), 2);
    CPropertySheet empty(L"empty", &parent);
    EXPECT_EQ(empty.DoModal(), -1);
    EXPECT_FALSE(empty.Create(&parent));
    EXPECT_EQ(empty.GetActivePage(), nullptr);
    EXPECT_TRUE(parent.IsWindowEnabled());
    stranger.SetModified();
    stranger.CancelToClose();
    EXPECT_EQ(stranger.QuerySiblings(1, 2), 0);
}

TEST_F(PagesOfSheet, APageWithoutATemplateIsNoReasonToCrash) {
    Page missing(4711, "m", log);
    CPropertySheet lone(L"lone", &parent);
    lone.AddPage(&missing);
    const auto isOver = std::make_shared<bool>(false);
    ui_test::later(
        [&lone, isOver] {
            if (!*isOver) lone.EndDialog(7);
        },
        100);
    lone.DoModal();
    *isOver = true;
    EXPECT_TRUE(parent.IsWindowEnabled());
    EXPECT_EQ(missing.m_hWnd, nullptr);
    // The next window is not taken for the missing page's.
    CWnd next;
    EXPECT_TRUE(next.Create(AfxRegisterWndClass(0), L"", WS_CHILD, CRect(0, 0, 1, 1), &parent, 5));
    EXPECT_EQ(missing.m_hWnd, nullptr);
}

TEST_F(PagesOfSheet, HelpReachesThePagesCommands) {
    first.m_psp.dwFlags |= PSP_HASHELP;
    sheet.m_psh.dwFlags |= PSH_HASHELP;
    bool canHelp = false;
    run([&] {
        canHelp = shown(kHelpButton) && enabled(kHelpButton);
        press(PSBTN_HELP);
        press(PSBTN_OK);
    });
    EXPECT_TRUE(canHelp);
    EXPECT_EQ(first.helps, 1);
}

TEST_F(PagesOfSheet, PagesHearWhenTheLoopIsIdle) {
    run([&] { ui_test::later([&] { press(PSBTN_OK); }, 50); });
    EXPECT_GT(first.idles, 0);
    EXPECT_EQ(second.idles, 0);
}

TEST_F(PagesOfSheet, AnExceptionWhileAPageStartsLeavesTheSheetUsable) {
    first.fails = true;
    EXPECT_EQ(run([&] { press(PSBTN_CANCEL); }), IDCANCEL);
    first.fails = false;
    EXPECT_EQ(run([&] { press(PSBTN_OK); }), IDOK);
    EXPECT_EQ(log.back(), "1 ok");
}

TEST(PropertyPages, AreConstructedInArrays) {
    CPropertyPage pages[2];
    pages[0].Construct(kFirst);
    pages[1].Construct(kSecond, 500, 501, 500);
    EXPECT_EQ(pages[0].m_psp.pszTemplate, MAKEINTRESOURCEW(kFirst));
    EXPECT_EQ(pages[0].m_psp.dwFlags, 0u);
    EXPECT_EQ(pages[0].GetPSP().dwSize, sizeof(PROPSHEETPAGE));
    EXPECT_EQ(pages[1].m_psp.dwFlags & (PSP_USETITLE | PSP_USEHEADERTITLE | PSP_USEHEADERSUBTITLE),
              static_cast<DWORD>(PSP_USETITLE | PSP_USEHEADERTITLE | PSP_USEHEADERSUBTITLE));
    EXPECT_STREQ(pages[1].m_psp.pszTitle, L"a tab of the resources");
    EXPECT_STREQ(pages[1].m_psp.pszHeaderTitle, L"a message of the resources");
    CPropertyPage huge(static_cast<UINT>(kFirst), 0, static_cast<DWORD>(100000));
    EXPECT_EQ(huge.m_psp.dwSize, sizeof(PROPSHEETPAGE));
}

}  // namespace
