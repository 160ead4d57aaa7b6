// Property sheets, modal and modeless: what their buttons and keys do, titles, flags, and what comes back.
#include "sheet_fixture.h"
#include "watchdog.h"

namespace {

using namespace sheets;
using SheetOfPages = Sheets;

TEST_F(SheetOfPages, TellsThePagesAndAnswersOk) {
    CString shownText;
    const INT_PTR result = run([&] {
        shownText = ui_test::text_of(first.GetDlgItem(kText)->m_hWnd);
        first.SetDlgItemText(kText, L"typed");
        press(PSBTN_OK);
    });
    EXPECT_EQ(result, IDOK);
    EXPECT_EQ(shownText, L"start");
    EXPECT_EQ(first.text, L"typed");
    EXPECT_EQ(log, (Log{"1 init", "1 active", "1 leave", "1 apply", "1 ok"}));
    EXPECT_EQ(sheet.m_hWnd, nullptr);
    EXPECT_EQ(first.m_hWnd, nullptr);
}

TEST_F(SheetOfPages, CancelTakesNothingOver) {
    const INT_PTR result = run([&] {
        first.SetDlgItemText(kText, L"typed");
        press(PSBTN_CANCEL);
    });
    EXPECT_EQ(result, IDCANCEL);
    EXPECT_EQ(first.text, L"start");
    EXPECT_EQ(log, (Log{"1 init", "1 active", "1 may cancel", "1 reset", "1 cancel"}));
}

TEST_F(SheetOfPages, TheCloseBoxCancels) {
    EXPECT_EQ(run([&] { sheet.PostMessage(WM_SYSCOMMAND, SC_CLOSE); }), IDCANCEL);
    EXPECT_EQ(log.back(), "1 cancel");
}

TEST_F(SheetOfPages, KeysReachTheSheetFromThePage) {
    EXPECT_EQ(run([&] {
                  HWND edit = first.GetDlgItem(kText)->m_hWnd;
                  ::SetFocus(edit);
                  ::PostMessageW(edit, WM_KEYDOWN, VK_ESCAPE, 1);
              }),
              IDCANCEL);
    log.clear();
    EXPECT_EQ(run([&] {
                  HWND edit = first.GetDlgItem(kText)->m_hWnd;
                  ::SetFocus(edit);
                  ::PostMessageW(edit, WM_KEYDOWN, VK_RETURN, 1);
              }),
              IDOK);
    EXPECT_EQ(log.back(), "1 ok");
}

TEST_F(SheetOfPages, KeepsItsParentDisabledAndGivesItTheActivation) {
    bool disabled = false;
    HWND owner = nullptr;
    run([&] {
        disabled = !parent.IsWindowEnabled();
        owner = ::GetWindow(sheet.m_hWnd, GW_OWNER);
        press(PSBTN_OK);
    });
    EXPECT_TRUE(disabled);
    EXPECT_EQ(owner, parent.m_hWnd);
    EXPECT_TRUE(parent.IsWindowEnabled());
    EXPECT_EQ(::GetActiveWindow(), parent.m_hWnd);
}

TEST_F(SheetOfPages, IsClosedByItsButtonsAfterAHandlerThrew) {
    class Throwing : public CPropertySheet {
    public:
        using CPropertySheet::CPropertySheet;
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
            if (message == WM_APP + 5) AfxThrowUserException();
            return CPropertySheet::WindowProc(message, wParam, lParam);
        }
        BOOL OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info) override {
            if (id == 0x8123 && code == CN_COMMAND) AfxThrowUserException();
            return CPropertySheet::OnCmdMsg(id, code, extra, info);
        }
    } throwing(L"throws", &parent);
    throwing.AddPage(&third);
    ui_test::when_window([&](HWND window) { return window == throwing.m_hWnd; },
                         [&](HWND window) {
                             ::SendMessageW(window, WM_APP + 5, 0, 0);
                             ::SendMessageW(window, WM_COMMAND, 0x8123, 0);
                             ::PostMessageW(window, PSM_PRESSBUTTON, PSBTN_OK, 0);
                         });
    const ui_test::Watchdog watchdog;
    EXPECT_EQ(throwing.DoModal(), IDOK);
    EXPECT_TRUE(parent.IsWindowEnabled());
}

TEST_F(SheetOfPages, LeavesAParentDisabledThatWasDisabledBefore) {
    parent.EnableWindow(FALSE);
    EXPECT_EQ(run([&] { press(PSBTN_OK); }), IDOK);
    EXPECT_FALSE(parent.IsWindowEnabled());
    parent.EnableWindow(TRUE);
}

TEST_F(SheetOfPages, StartsWithThePageThatWasChosen) {
    EXPECT_EQ(sheet.GetActiveIndex(), 0);
    EXPECT_TRUE(sheet.SetActivePage(&second));
    EXPECT_EQ(sheet.GetActiveIndex(), 1);
    EXPECT_EQ(sheet.GetActivePage(), &second);
    run([&] { press(PSBTN_OK); });
    EXPECT_EQ(log.front(), "2 init");
    CPropertySheet other(L"other", &parent, 1);
    EXPECT_EQ(other.m_psh.nStartPage, 1u);
    // One that is none is the first.
    log.clear();
    sheet.m_psh.nStartPage = 9;
    run([&] { press(PSBTN_OK); });
    ASSERT_FALSE(log.empty());
    EXPECT_EQ(log.front(), "1 init");
}

TEST_F(SheetOfPages, TitlesComeFromTextsAndResources) {
    CString caption, tab, own, changed;
    Page named(kSecond, "n", log, 500);
    sheet.AddPage(&named);
    const auto tabText = [&](int index) {
        wchar_t text[64] = {};
        TCITEM item = {};
        item.mask = TCIF_TEXT;
        item.pszText = text;
        item.cchTextMax = 64;
        sheet.GetTabControl()->GetItem(index, &item);
        return CString(text);
    };
    run([&] {
        caption = ui_test::text_of(sheet.m_hWnd);
        tab = tabText(0);
        own = tabText(2);
        sheet.SetTitle(L"changed");
        changed = ui_test::text_of(sheet.m_hWnd);
        press(PSBTN_OK);
    });
    EXPECT_EQ(caption, L"sheet");
    EXPECT_EQ(tab, L"first page");
    EXPECT_EQ(own, L"a tab of the resources");
    EXPECT_EQ(changed, L"changed");
    CPropertySheet byId(501u, &parent);
    EXPECT_STREQ(byId.m_psh.pszCaption, L"a message of the resources");
    sheet.SetTitle(L"before", PSH_PROPTITLE);
    EXPECT_STREQ(sheet.m_psh.pszCaption, L"before");
    run([&] {
        caption = ui_test::text_of(sheet.m_hWnd);
        press(PSBTN_OK);
    });
    EXPECT_NE(caption.Find(L"before"), -1);
    EXPECT_GT(caption.GetLength(), 6);
    EXPECT_THROW(sheet.SetTitle(L"x", 0x40), CInvalidArgException*);
}

TEST_F(SheetOfPages, FlagsAreHandedOn) {
    sheet.m_psh.dwFlags |= PSH_NOAPPLYNOW;
    first.m_psp.dwFlags |= PSP_USETITLE;
    first.m_psp.pszTitle = L"own title";
    first.m_psp.dwFlags |= PSP_PREMATURE | PSP_HIDEHEADER;
    static std::vector<UINT> pageCalls, sheetCalls;
    static DWORD handed;
    pageCalls.clear();
    sheetCalls.clear();
    first.m_psp.dwFlags |= PSP_USECALLBACK;
    first.m_psp.pfnCallback = [](HWND, UINT message, PROPSHEETPAGE* page) -> UINT {
        pageCalls.push_back(message);
        handed = page->dwFlags;
        return 1;
    };
    sheet.m_psh.dwFlags |= PSH_USECALLBACK;
    sheet.m_psh.pfnCallback = [](HWND, UINT message, LPARAM) -> int {
        sheetCalls.push_back(message);
        return 0;
    };
    bool apply = true;
    CString title;
    run([&] {
        apply = button(ID_APPLY_NOW) != nullptr && shown(ID_APPLY_NOW);
        wchar_t text[64] = {};
        TCITEM item = {};
        item.mask = TCIF_TEXT;
        item.pszText = text;
        item.cchTextMax = 64;
        sheet.GetTabControl()->GetItem(0, &item);
        title = text;
        press(PSBTN_OK);
    });
    EXPECT_FALSE(apply);
    const DWORD wanted = PSP_PREMATURE | PSP_HIDEHEADER | PSP_USETITLE;
    EXPECT_EQ(handed & wanted, wanted);
    EXPECT_EQ(title, L"own title");
    EXPECT_NE(std::find(pageCalls.begin(), pageCalls.end(), UINT(PSPCB_CREATE)), pageCalls.end());
    EXPECT_NE(std::find(pageCalls.begin(), pageCalls.end(), UINT(PSPCB_RELEASE)), pageCalls.end());
    EXPECT_NE(std::find(sheetCalls.begin(), sheetCalls.end(), UINT(PSCB_PRECREATE)), sheetCalls.end());
    EXPECT_NE(std::find(sheetCalls.begin(), sheetCalls.end(), UINT(PSCB_INITIALIZED)), sheetCalls.end());
}

TEST_F(SheetOfPages, EndDialogAnswersItsArgument) {
    EXPECT_EQ(run([&] { sheet.EndDialog(37); }), 37);
    EXPECT_EQ(run([&] { first.EndDialog(38); }), 38);
}

TEST_F(SheetOfPages, RunsAgainAndAgain) {
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(run([&] { press(i == 1 ? PSBTN_CANCEL : PSBTN_OK); }), i == 1 ? IDCANCEL : IDOK);
}

TEST_F(SheetOfPages, HandsARequestToQuitOnToTheLoopOutside) {
    EXPECT_EQ(run([] { ::PostQuitMessage(77); }), -1);
    MSG message = {};
    ASSERT_TRUE(::PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    EXPECT_EQ(message.wParam, 77u);
    EXPECT_TRUE(parent.IsWindowEnabled());
}

TEST_F(SheetOfPages, TabsStandInOneRowOnRequest) {
    std::vector<DWORD> styles;
    for (const BOOL stacked : {TRUE, FALSE}) {
        sheet.EnableStackedTabs(stacked);
        run([&] {
            styles.push_back(sheet.GetTabControl()->GetStyle() & TCS_MULTILINE);
            press(PSBTN_OK);
        });
    }
    EXPECT_EQ(styles, (std::vector<DWORD>{TCS_MULTILINE, 0}));
}

TEST_F(SheetOfPages, ChangesThePageByKeys) {
    int after = -1;
    run([&] {
        BYTE keys[256] = {};
        ::GetKeyboardState(keys);
        keys[VK_CONTROL] = 0x80;
        ::SetKeyboardState(keys);
        MSG key = {first.GetDlgItem(kText)->m_hWnd, WM_KEYDOWN, VK_TAB, 1, 0, {}};
        EXPECT_TRUE(CWnd::WalkPreTranslateTree(sheet.m_hWnd, &key));
        after = sheet.GetActiveIndex();
        keys[VK_CONTROL] = 0;
        ::SetKeyboardState(keys);
        press(PSBTN_CANCEL);
    });
    EXPECT_EQ(after, 1);
}

TEST_F(SheetOfPages, UnitsOfDialogsAreConverted) {
    CRect units(0, 0, 40, 80), expected(units);
    run([&] {
        ::MapDialogRect(sheet.m_hWnd, &expected);
        sheet.MapDialogRect(&units);
        press(PSBTN_OK);
    });
    EXPECT_EQ(units, expected);
    EXPECT_GT(units.right, 40);
}

class Modeless : public Sheets {
protected:
    Modeless() { made = sheet.Create(&parent); }
    BOOL made;
};

TEST_F(Modeless, HasNoButtonsAndNoRoomForThem) {
    ASSERT_TRUE(made);
    EXPECT_TRUE(sheet.IsModeless());
    for (const int id : {IDOK, IDCANCEL, ID_APPLY_NOW, kHelpButton})
        if (button(id) != nullptr) {
            EXPECT_FALSE(shown(id)) << id;
            EXPECT_FALSE(enabled(id)) << id;
        }
    EXPECT_TRUE(parent.IsWindowEnabled());
    EXPECT_TRUE(sheet.IsWindowVisible());
    EXPECT_EQ(sheet.GetStyle() & (WS_SYSMENU | WS_POPUP | WS_CAPTION), WS_SYSMENU | WS_POPUP | WS_CAPTION);
    CRect client, tabs;
    sheet.GetClientRect(&client);
    sheet.GetTabControl()->GetWindowRect(&tabs);
    sheet.ScreenToClient(&tabs);
    EXPECT_EQ(client.bottom - tabs.bottom, tabs.top);
    sheet.DestroyWindow();
    EXPECT_EQ(first.m_hWnd, nullptr);
}

TEST_F(Modeless, ItsPagesWorkAndItsCloseBoxDestroysIt) {
    EXPECT_TRUE(sheet.SetActivePage(1));
    EXPECT_EQ(log, (Log{"1 init", "1 active", "1 leave", "2 init", "2 active"}));
    CString former = ui_test::text_of(button(IDOK));
    second.CancelToClose();
    EXPECT_EQ(ui_test::text_of(button(IDOK)), former);
    EXPECT_FALSE(sheet.Create(&parent));
    sheet.SendMessage(WM_SYSCOMMAND, SC_CLOSE);
    EXPECT_EQ(sheet.m_hWnd, nullptr);
    EXPECT_EQ(second.m_hWnd, nullptr);
    EXPECT_TRUE(sheet.Create(&parent));
    sheet.EndDialog(1);
    EXPECT_EQ(sheet.m_hWnd, nullptr);
}

TEST_F(Modeless, StandsInItsParentAsAChild) {
    sheet.DestroyWindow();
    ASSERT_TRUE(sheet.Create(&parent, WS_CHILD | WS_VISIBLE));
    EXPECT_EQ(::GetParent(sheet.m_hWnd), parent.m_hWnd);
    EXPECT_EQ(sheet.GetStyle() & (WS_CHILD | WS_CAPTION), static_cast<DWORD>(WS_CHILD));
    EXPECT_TRUE(sheet.GetExStyle() & WS_EX_CONTROLPARENT);
    EXPECT_TRUE(first.IsWindowVisible());
    sheet.DestroyWindow();
}

}  // namespace
