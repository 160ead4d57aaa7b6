// Property sheets and wizards: what pages are told and in which order, what buttons do, what comes back.
#include <afxcmn.h>
#include <afxdlgs.h>

#include <algorithm>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "ui_test.h"

namespace {

constexpr int kFirst = 430, kSecond = 431, kThird = 432;
constexpr int kText = 1001;
constexpr int kHelpButton = 9;
using Log = std::vector<std::string>;

/// A page that writes down what it is told.
class Page : public CPropertyPage {
public:
    Page(UINT id, const char* name, Log& log, UINT caption = 0)
        : CPropertyPage(id, caption), m_name(name), m_log(log) {}

    CString text{L"start"};
    CString set;  ///< put into `text` when the page becomes active
    BOOL activates = TRUE, leaves = TRUE, applies = TRUE, cancels = TRUE, finishes = TRUE;
    LRESULT back = 0, next = 0, sibling = 0;
    int asked = 0, helps = 0, idles = 0;
    bool fails = false;
    std::function<void()> onActive;

    void DoDataExchange(CDataExchange* exchange) override {
        DDX_Text(exchange, kText, text);
        DDV_MaxChars(exchange, text, 8);
    }
    BOOL OnInitDialog() override {
        note("init");
        if (fails) throw 1;
        return CPropertyPage::OnInitDialog();
    }
    BOOL OnSetActive() override {
        note("active");
        if (!set.IsEmpty()) text = set;
        if (onActive) onActive();
        return activates ? CPropertyPage::OnSetActive() : FALSE;
    }
    BOOL OnKillActive() override {
        note("leave");
        return leaves && CPropertyPage::OnKillActive();
    }
    BOOL OnApply() override {
        note("apply");
        return applies && CPropertyPage::OnApply();
    }
    void OnOK() override {
        note("ok");
        CPropertyPage::OnOK();
    }
    void OnReset() override {
        note("reset");
        CPropertyPage::OnReset();
    }
    void OnCancel() override {
        note("cancel");
        CPropertyPage::OnCancel();
    }
    BOOL OnQueryCancel() override {
        note("may cancel");
        return cancels && CPropertyPage::OnQueryCancel();
    }
    LRESULT OnWizardBack() override {
        note("back");
        return back != 0 ? back : CPropertyPage::OnWizardBack();
    }
    LRESULT OnWizardNext() override {
        note("next");
        return next != 0 ? next : CPropertyPage::OnWizardNext();
    }
    BOOL OnWizardFinish() override {
        note("finish");
        return finishes && CPropertyPage::OnWizardFinish();
    }

protected:
    afx_msg LRESULT OnSibling(WPARAM wParam, LPARAM lParam) {
        ++asked;
        return sibling != 0 ? sibling + static_cast<LRESULT>(wParam) + lParam : 0;
    }
    afx_msg void OnHelp() { ++helps; }
    afx_msg LRESULT OnIdle(WPARAM, LPARAM) {
        ++idles;
        return 0;
    }
    DECLARE_MESSAGE_MAP()

private:
    void note(const char* what) { m_log.push_back(std::string(m_name) + " " + what); }
    const char* m_name;
    Log& m_log;
};

BEGIN_MESSAGE_MAP(Page, CPropertyPage)
    ON_MESSAGE(PSM_QUERYSIBLINGS, &Page::OnSibling)
    ON_MESSAGE(WM_KICKIDLE, &Page::OnIdle)
    ON_COMMAND(ID_HELP, &Page::OnHelp)
END_MESSAGE_MAP()

class Sheets : public ::testing::Test {
protected:
    Sheets()
        : sheet(L"sheet", &parent),
          first(kFirst, "1", log),
          second(kSecond, "2", log),
          third(kThird, "3", log) {
        sheet.AddPage(&first);
        sheet.AddPage(&second);
    }
    /// Runs the sheet; `action` has its window as soon as it is there.
    INT_PTR run(std::function<void()> action) {
        ui_test::when_window([this](HWND window) { return window == sheet.m_hWnd; },
                             [action = std::move(action)](HWND) { action(); });
        return sheet.DoModal();
    }
    void press(int button) { sheet.SendMessage(PSM_PRESSBUTTON, static_cast<WPARAM>(button)); }
    HWND button(int id) const { return ::GetDlgItem(sheet.m_hWnd, id); }
    bool enabled(int id) const { return ::IsWindowEnabled(button(id)) != FALSE; }
    bool shown(int id) const { return (::GetWindowLongPtrW(button(id), GWL_STYLE) & WS_VISIBLE) != 0; }

    ui_test::ParentWindow parent;
    Log log;
    CPropertySheet sheet;
    Page first, second, third;
};

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

TEST_F(SheetOfPages, APageMayRefuseToBeCancelled) {
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

TEST_F(SheetOfPages, LeavesAParentDisabledThatWasDisabledBefore) {
    parent.EnableWindow(FALSE);
    EXPECT_EQ(run([&] { press(PSBTN_OK); }), IDOK);
    EXPECT_FALSE(parent.IsWindowEnabled());
    parent.EnableWindow(TRUE);
}

TEST_F(SheetOfPages, ValuesAreExchangedWhenAPageIsLeftAndShownWhenItComesBack) {
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

TEST_F(SheetOfPages, WhatAPageSetsWhenItBecomesActiveIsShown) {
    first.set = L"set";
    CString shownText;
    run([&] {
        shownText = ui_test::text_of(first.GetDlgItem(kText)->m_hWnd);
        press(PSBTN_CANCEL);
    });
    EXPECT_EQ(shownText, L"set");
}

TEST_F(SheetOfPages, APageThatRefusesToBeLeftStays) {
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

TEST_F(SheetOfPages, AValueThatDoesNotFitKeepsThePage) {
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

TEST_F(SheetOfPages, APageThatRefusesToBecomeActiveIsPassedOver) {
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

TEST_F(SheetOfPages, ApplyIsEnabledWhileAPageIsModified) {
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

TEST_F(SheetOfPages, APageThatDoesNotApplyKeepsTheSheetOpen) {
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

TEST_F(SheetOfPages, CancelToCloseLeavesOnlyClose) {
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

TEST_F(SheetOfPages, SiblingsAreAskedUntilOneAnswers) {
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

TEST_F(SheetOfPages, PagesComeAndGoWhileItIsShown) {
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

TEST_F(SheetOfPages, WhatIsNoPageIsRefused) {
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

TEST_F(SheetOfPages, APageWithoutATemplateIsNoReasonToCrash) {
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

TEST_F(SheetOfPages, HelpReachesThePagesCommands) {
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

TEST_F(SheetOfPages, PagesHearWhenTheLoopIsIdle) {
    run([&] { ui_test::later([&] { press(PSBTN_OK); }, 50); });
    EXPECT_GT(first.idles, 0);
    EXPECT_EQ(second.idles, 0);
}

TEST_F(SheetOfPages, HandsARequestToQuitOnToTheLoopOutside) {
    EXPECT_EQ(run([] { ::PostQuitMessage(77); }), -1);
    MSG message = {};
    ASSERT_TRUE(::PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    EXPECT_EQ(message.wParam, 77u);
    EXPECT_TRUE(parent.IsWindowEnabled());
}

TEST_F(SheetOfPages, AnExceptionWhileAPageStartsLeavesTheSheetUsable) {
    first.fails = true;
    EXPECT_EQ(run([&] { press(PSBTN_CANCEL); }), IDCANCEL);
    first.fails = false;
    EXPECT_EQ(run([&] { press(PSBTN_OK); }), IDOK);
    EXPECT_EQ(log.back(), "1 ok");
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

class Wizard : public Sheets {
protected:
    Wizard() {
        sheet.AddPage(&third);
        sheet.SetWizardMode();
        first.onActive = [this] { sheet.SetWizardButtons(PSWIZB_NEXT); };
        second.onActive = [this] { sheet.SetWizardButtons(PSWIZB_BACK | PSWIZB_NEXT); };
        third.onActive = [this] { sheet.SetWizardButtons(PSWIZB_BACK | PSWIZB_FINISH); };
    }
};

TEST_F(Wizard, GoesForwardAndBackAndFinishes) {
    std::vector<bool> states;
    const INT_PTR result = run([&] {
        const auto note = [&] {
            ui_test::pump();
            states.push_back(enabled(ID_WIZBACK));
            states.push_back(shown(ID_WIZNEXT) && enabled(ID_WIZNEXT));
            states.push_back(shown(ID_WIZFINISH) && enabled(ID_WIZFINISH));
        };
        note();
        press(PSBTN_NEXT);
        note();
        press(PSBTN_NEXT);
        note();
        press(PSBTN_BACK);
        note();
        press(PSBTN_NEXT);
        ui_test::pump();
        press(PSBTN_FINISH);
    });
    EXPECT_EQ(result, ID_WIZFINISH);
    EXPECT_EQ(states, (std::vector<bool>{false, true, false, true, true, false, true, false, true, true, true,
                                         false}));
    EXPECT_EQ(log, (Log{"1 init", "1 active", "1 next", "1 leave", "2 init", "2 active", "2 next", "2 leave",
                        "3 init", "3 active", "3 back", "3 leave", "2 active", "2 next", "2 leave",
                        "3 active", "3 finish"}));
}

TEST_F(Wizard, APageMayStayOrGoElsewhere) {
    std::vector<int> places;
    first.next = -1;
    run([&] {
        const auto note = [&] { places.push_back(sheet.GetActiveIndex()); };
        press(PSBTN_NEXT);
        note();
        first.next = kThird;
        press(PSBTN_NEXT);
        note();
        third.back = -1;
        press(PSBTN_BACK);
        note();
        third.back = kFirst;
        press(PSBTN_BACK);
        note();
        press(PSBTN_CANCEL);
    });
    EXPECT_EQ(places, (std::vector<int>{0, 2, 2, 0}));
}

TEST_F(Wizard, APageMayRefuseToFinish) {
    first.finishes = FALSE;
    bool stayed = false;
    const INT_PTR result = run([&] {
        press(PSBTN_FINISH);
        stayed = (sheet.m_nFlags & WF_CONTINUEMODAL) != 0;
        press(PSBTN_CANCEL);
    });
    EXPECT_TRUE(stayed);
    EXPECT_EQ(result, IDCANCEL);
}

TEST_F(Wizard, TheFinishTextHidesTheOtherButtons) {
    CString text;
    bool back = true, next = true, finish = false;
    run([&] {
        sheet.SetFinishText(L"All done");
        ui_test::pump();
        text = ui_test::text_of(button(ID_WIZFINISH));
        back = shown(ID_WIZBACK);
        next = shown(ID_WIZNEXT);
        finish = shown(ID_WIZFINISH);
        press(PSBTN_CANCEL);
    });
    EXPECT_EQ(text, L"All done");
    EXPECT_FALSE(back);
    EXPECT_FALSE(next);
    EXPECT_TRUE(finish);
}

TEST_F(Wizard, ButtonsArePressedByMessages) {
    EXPECT_EQ(run([&] {
                  sheet.PressButton(PSBTN_NEXT);
                  sheet.PressButton(PSBTN_FINISH);
              }),
              ID_WIZFINISH);
    EXPECT_EQ(log.back(), "2 finish");
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

TEST(PropertySheets, TakePicturesForAWizard) {
    HBITMAP mark = ::CreateBitmap(8, 8, 1, 1, nullptr);
    CPropertySheet plain;
    plain.Construct(L"x", nullptr, 0, mark, nullptr, mark);
    EXPECT_EQ(plain.m_psh.hbmWatermark, mark);
    EXPECT_EQ(plain.m_psh.hbmHeader, mark);
    const DWORD flags = PSH_WATERMARK | PSH_USEHBMWATERMARK | PSH_HEADER | PSH_USEHBMHEADER;
    EXPECT_EQ(plain.m_psh.dwFlags & flags, flags);
    EXPECT_EQ(plain.m_psh.dwFlags & PSH_USEHPLWATERMARK, 0u);
    plain.Construct(L"y");
    EXPECT_EQ(plain.m_psh.dwFlags & flags, 0u);
    ::DeleteObject(mark);
}

}  // namespace
