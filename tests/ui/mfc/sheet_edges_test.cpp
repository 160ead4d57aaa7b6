// What sheets and pages do at their edges: odd settings, commands and help on their way, what goes wrong.
#include "sheet_fixture.h"

namespace {

using namespace sheets;

class SheetEdges : public Sheets {};

/// A window that owns sheets and has commands.
class Owner : public ui_test::ParentWindow {
public:
    static constexpr UINT kOwn = 0x8001, kLow = 0x7FFF;

protected:
    afx_msg void OnOwn() {}
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(Owner, CWnd)
    ON_COMMAND(kOwn, &Owner::OnOwn)
    ON_COMMAND(kLow, &Owner::OnOwn)
END_MESSAGE_MAP()

/// A sheet that throws when a key comes, outside of any window's procedure.
class ThrowingSheet : public CPropertySheet {
public:
    using CPropertySheet::CPropertySheet;
    BOOL PreTranslateMessage(MSG* message) override {
        if (message->message == WM_KEYDOWN) AfxThrowUserException();
        return CPropertySheet::PreTranslateMessage(message);
    }
};

class HelpedPage : public Page {
public:
    using CDialog::m_nIDHelp;
    using Page::Page;
    WPARAM asked = 0;

protected:
    afx_msg LRESULT OnHelpCommand(WPARAM wParam, LPARAM lParam) {
        asked = wParam;
        return lParam;
    }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(HelpedPage, Page)
    ON_MESSAGE(WM_COMMANDHELP, &HelpedPage::OnHelpCommand)
END_MESSAGE_MAP()

bool handles(CCmdTarget& target, UINT id) {
    AFX_CMDHANDLERINFO info = {};
    return target.OnCmdMsg(id, CN_COMMAND, nullptr, &info) != FALSE;
}

CString titleOfTab(CPropertySheet& sheet, int index) {
    wchar_t text[80] = {};
    TCITEMW item = {};
    item.mask = TCIF_TEXT;
    item.pszText = text;
    item.cchTextMax = 80;
    sheet.GetTabControl()->GetItem(index, &item);
    return text;
}

}  // namespace

TEST_F(SheetEdges, TheStartPageIsTheNumbersAndTheFirstForOneThatIsNotThere) {
    sheet.m_psh.dwFlags |= PSH_USEPSTARTPAGE;  // without a name to go by
    sheet.SetActivePage(1);
    int active = -1;
    run([&] {
        active = sheet.GetActiveIndex();
        press(PSBTN_CANCEL);
    });
    EXPECT_EQ(active, 1);
    EXPECT_EQ(log[0], "2 init");
    log.clear();
    sheet.m_psh.nStartPage = 2;
    run([&] { press(PSBTN_CANCEL); });
    ASSERT_FALSE(log.empty());
    EXPECT_EQ(log[0], "1 init");
}

TEST_F(SheetEdges, AModelessWizardKeepsItsButtons) {
    sheet.SetWizardMode();
    ASSERT_TRUE(sheet.Create(&parent));
    EXPECT_TRUE(shown(IDCANCEL));
    EXPECT_TRUE(enabled(IDCANCEL));
    sheet.DestroyWindow();
}

TEST_F(SheetEdges, WizardButtonsChangeOnceTheSheetIsBackInItsLoop) {
    sheet.SetWizardMode();
    std::vector<bool> states;
    run([&] {
        ui_test::pump();
        sheet.SetWizardButtons(PSWIZB_NEXT);
        ui_test::pump();
        states.push_back(enabled(ID_WIZBACK));
        sheet.SetWizardButtons(PSWIZB_BACK | PSWIZB_NEXT);
        states.push_back(enabled(ID_WIZBACK));
        ui_test::pump();
        states.push_back(enabled(ID_WIZBACK));
        press(PSBTN_CANCEL);
    });
    EXPECT_EQ(states, (std::vector<bool>{false, false, true}));
}

TEST_F(SheetEdges, CommandsOfProgramsGoOnToItsOwnerAndTheApplication) {
    Owner owner;
    ASSERT_TRUE(sheet.Create(&owner));
    EXPECT_TRUE(handles(sheet, Owner::kOwn));
    EXPECT_FALSE(handles(sheet, Owner::kLow)) << "ids of controls are the sheet's own";
    EXPECT_TRUE(handles(owner, Owner::kLow));
    EXPECT_TRUE(handles(sheet, ID_APP_EXIT)) << "the application has it";
    EXPECT_FALSE(handles(sheet, Owner::kOwn + 1));
    sheet.DestroyWindow();
}

TEST_F(SheetEdges, HelpForTheSheetIsThePagesInFront) {
    HelpedPage front(kFirst, "1", log), behind(kThird, "3", log);
    EXPECT_EQ(behind.m_nIDHelp, static_cast<UINT>(kThird));
    CPropertySheet helped(L"helped", &parent);
    helped.AddPage(&front);
    helped.AddPage(&behind);
    ASSERT_TRUE(helped.Create(&parent));
    EXPECT_EQ(helped.SendMessage(WM_COMMANDHELP, 5, 77), 77);
    helped.SetActivePage(1);
    EXPECT_EQ(helped.SendMessage(WM_COMMANDHELP, 6, 78), 78);
    EXPECT_EQ(front.asked, 5u);
    EXPECT_EQ(behind.asked, 6u);
    helped.DestroyWindow();
}

TEST_F(SheetEdges, TheTopOfItsOwnersIsDisabledMeanwhileToo) {
    CWnd popup;
    popup.CreateEx(0, AfxRegisterWndClass(0), L"popup", WS_POPUP | WS_VISIBLE, CRect(50, 50, 200, 120),
                   &parent, 0);
    CPropertySheet over(L"over", &popup);
    over.AddPage(&third);
    std::vector<BOOL> enabledStates;
    const auto note = [&] {
        enabledStates.push_back(parent.IsWindowEnabled());
        enabledStates.push_back(popup.IsWindowEnabled());
    };
    ui_test::when_window([&](HWND window) { return window == over.m_hWnd; },
                         [&](HWND) {
                             note();
                             over.PressButton(PSBTN_CANCEL);
                         });
    EXPECT_EQ(over.DoModal(), IDCANCEL);
    note();
    EXPECT_EQ(enabledStates, (std::vector<BOOL>{FALSE, FALSE, TRUE, TRUE}));
    popup.DestroyWindow();
}

TEST_F(SheetEdges, AnExceptionOfTheClassesInItsLoopAborts) {
    ThrowingSheet throwing(L"throwing", &parent);
    throwing.AddPage(&third);
    ui_test::when_window([&](HWND window) { return window == throwing.m_hWnd; },
                         [&](HWND) { throwing.PostMessage(WM_KEYDOWN, 'A', 1); });
    EXPECT_EQ(throwing.DoModal(), IDABORT);
    EXPECT_EQ(throwing.m_hWnd, nullptr);
    EXPECT_TRUE(parent.IsWindowEnabled());
}

TEST_F(SheetEdges, APageMayHaveAnOlderStructureButNoLargerOne) {
    EXPECT_EQ(CPropertyPage(kFirst, 0U, DWORD{PROPSHEETPAGE_V1_SIZE}).m_psp.dwSize,
              static_cast<DWORD>(PROPSHEETPAGE_V1_SIZE));
    EXPECT_EQ(CPropertyPage(kFirst, 0U, DWORD{4000}).m_psp.dwSize, sizeof(PROPSHEETPAGE));
}

TEST_F(SheetEdges, APageWithATitleOfItsOwnShowsIt) {
    struct Titled : Page {
        Titled(Log& told) : Page(kThird, "3", told) {
            m_strCaption = L"own title";
            m_psp.dwFlags |= PSP_USETITLE;
            m_psp.pszTitle = nullptr;
        }
    } titled(log);
    sheet.AddPage(&titled);
    CString title;
    run([&] {
        title = titleOfTab(sheet, 2);
        press(PSBTN_CANCEL);
    });
    EXPECT_EQ(title, L"own title");
}

TEST_F(SheetEdges, APagesOwnCallbackMayKeepItFromBeingMade) {
    static int creations;
    creations = 0;
    second.m_psp.dwFlags |= PSP_USECALLBACK;
    second.m_psp.pfnCallback = [](HWND, UINT message, PROPSHEETPAGE*) -> UINT {
        creations += message == PSPCB_CREATE;
        return message != PSPCB_CREATE;
    };
    HWND made = reinterpret_cast<HWND>(1);
    CWnd after;
    HWND next = nullptr;
    run([&] {
        sheet.SetActivePage(1);
        made = second.m_hWnd;
        // A window that is made next is not taken for the page.
        after.CreateEx(0, L"STATIC", L"", WS_CHILD, CRect(0, 0, 5, 5), &parent, 9);
        next = after.m_hWnd;
        press(PSBTN_CANCEL);
    });
    EXPECT_GE(creations, 1);
    EXPECT_EQ(made, nullptr);
    EXPECT_NE(next, nullptr);
    after.DestroyWindow();
}

TEST_F(SheetEdges, ARefusalToApplyLeavesThePageInFrontThatIsThere) {
    int active = -1;
    bool open = false;
    run([&] {
        sheet.SetActivePage(1);
        sheet.SetActivePage(0);
        second.applies = FALSE;
        press(PSBTN_OK);
        open = (sheet.m_nFlags & WF_CONTINUEMODAL) != 0;
        active = sheet.GetActiveIndex();
        press(PSBTN_CANCEL);
    });
    EXPECT_TRUE(open);
    EXPECT_EQ(active, 0);
}

TEST_F(SheetEdges, OnlyTheSheetsNotificationsAreAPages) {
    run([&] {
        log.clear();
        NMHDR header = {::GetDlgItem(first.m_hWnd, kText), kText, static_cast<UINT>(PSN_SETACTIVE)};
        first.SendMessage(WM_NOTIFY, kText, reinterpret_cast<LPARAM>(&header));
        EXPECT_TRUE(log.empty());
        header.hwndFrom = sheet.m_hWnd;
        first.SendMessage(WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&header));
        EXPECT_EQ(log, Log{"1 active"});
        press(PSBTN_CANCEL);
    });
}
