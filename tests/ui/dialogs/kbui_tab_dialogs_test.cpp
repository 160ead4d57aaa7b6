// The main dialog and its pages: OK, Cancel, Apply, the Return key, resizing, the page to open on.
#include <ktui/dialogs/turn_tab_by_key.h>

#include "tab_fixture.h"

#include "sent_messages.h"

namespace {

using ui_test::later;

TEST_F(TabTest, WithoutATabControlNothingIsAdded) {
    TabbedDialog bare(&parent);
    bare.bindsTab = false;
    bare.Create(IDD_TABBED, &parent);
    EXPECT_EQ(bare.GetTabControl(), nullptr);
    EXPECT_EQ(bare.AddTab(0, L"a", IDD_TAB_PAGE, &a), 0);
    EXPECT_EQ(bare.AddTab(0, IDS_TAB_NAME, IDD_TAB_PAGE, &a), 0);
    EXPECT_EQ(bare.RemoveTab(0), 0);
    EXPECT_EQ(bare.GetTabIndex(&a), -1);
    EXPECT_EQ(a.m_hWnd, nullptr);
}

/// Runs a tabbed dialog modally with pages a to c, and does `act` in it.
class ModalTabs : public TabTest {
protected:
    INT_PTR run(std::function<void()> act) {
        modal.onInit = [this] {
            modal.AddTab(0, L"a", IDD_TAB_PAGE, &a);
            modal.AddTab(1, L"b", IDD_TAB_PAGE, &b);
            modal.AddTab(2, L"c", IDD_TAB_PAGE, &c);
            log.clear();
        };
        later([this, act] {
            act();
            if (modal.m_hWnd != nullptr && (modal.m_nFlags & WF_CONTINUEMODAL)) modal.EndDialog(77);
        });
        return modal.DoModal();
    }
    TabbedDialog modal{&parent};
};

TEST_F(ModalTabs, OkExchangesEveryPageThenTellsThemThenStoresThenEnds) {
    Log order;
    modal.onSave = [&] {
        order = log;
        order.push_back(stored(L"tabbed", L"Height") > 0 ? "stored" : "not stored");
    };
    EXPECT_EQ(run([&] {
                  EXPECT_EQ(stored(L"tabbed", L"X"), -1);
                  modal.SendMessage(WM_COMMAND, IDOK);
              }),
              IDOK);
    EXPECT_EQ(order, (Log{"a exchange", "b exchange", "c exchange", "a ok", "b ok", "c ok", "stored"}));
}

TEST_F(ModalTabs, OkWithAPageThatFailsKeepsTheDialogAndStoresNothing) {
    b.failing = true;
    EXPECT_EQ(run([&] { modal.SendMessage(WM_COMMAND, IDOK); }), 77);
    EXPECT_EQ(taken(), (Log{"a exchange", "b exchange"}));
    for (const wchar_t* value : {L"X", L"Y", L"Width", L"Height"})
        EXPECT_EQ(stored(L"tabbed", value), -1) << CStringA(value).GetString();
}

TEST_F(ModalTabs, OkWithAPageThatFailsBringsNoPageToTheFront) {
    c.failing = true;
    run([&] {
        modal.SendMessage(WM_COMMAND, IDOK);
        EXPECT_TRUE(a.GetStyle() & WS_VISIBLE);
        EXPECT_FALSE(c.GetStyle() & WS_VISIBLE);
        EXPECT_EQ(modal.tab.GetCurSel(), 0);
    });
}

TEST_F(ModalTabs, CancelTellsThePagesAndStoresAndExchangesNothing) {
    EXPECT_EQ(run([&] { modal.SendMessage(WM_COMMAND, IDCANCEL); }), IDCANCEL);
    EXPECT_EQ(taken(), (Log{"a cancel", "b cancel", "c cancel"}));
    EXPECT_EQ(stored(L"tabbed", L"X"), -1);
}

TEST_F(ModalTabs, OkAndCancelOfAPageGoToTheMainDialog) {
    EXPECT_EQ(run([&] { b.OnOK(); }), IDOK);
    EXPECT_EQ(stored(L"tabbed", L"Width") > 0, true);
    taken();
    NotingPage lone("lone", log);
    lone.OnOK();
    lone.OnCancel();
    EXPECT_TRUE(taken().empty());
}

TEST_F(ModalTabs, CancelOfAPageCancelsTheMainDialog) {
    EXPECT_EQ(run([&] { b.OnCancel(); }), IDCANCEL);
    EXPECT_EQ(taken(), (Log{"a cancel", "b cancel", "c cancel"}));
}

TEST_F(TabTest, OnlyPagesWithAnItemHearTheMainDialog) {
    addPages(3);
    dialog.tab.CTabCtrl::DeleteItem(2);
    dialog.RaiseApplyEvent();
    EXPECT_EQ(taken(), (Log{"a apply", "b apply"}));
    dialog.tab.InsertItem(2, L"bare");
    dialog.tab.InsertItem(3, L"bare");
    dialog.tab.m_pages[1] = nullptr;
    dialog.RaiseApplyEvent();
    EXPECT_EQ(taken(), (Log{"a apply", "c apply"}));
}

TEST_F(TabTest, ApplyTellsThePagesThenTakesTheFocusAndValidatesNothing) {
    addPages(2);
    a.GetDlgItem(IDC_FIRST)->SetFocus();
    Log order;
    ui_test::SentMessages sent([&](const CWPSTRUCT& message) {
        if (message.hwnd == dialog.m_hWnd && message.message == WM_SETFOCUS)
            order.push_back("focus with " + std::to_string(log.size()));
    });
    dialog.RaiseApplyEvent();
    EXPECT_EQ(taken(), (Log{"a apply", "b apply"}));
    EXPECT_EQ(order, (Log{"focus with 2"}));
}

TEST_F(TabTest, ThePagesAnswersAreFixed) {
    CKtUiTabChildDialog page;
    class Open : public CKtUiTabChildDialog {
    public:
        using CKbUiTabChildDialog::DoDialogHelp;
        using CKbUiTabChildDialog::OnMainDialogHelp;
        using CKbUiTabChildDialog::OnTabChanging;
    } open;
    EXPECT_EQ(open.OnTabChanging(), 1);
    EXPECT_EQ(open.OnMainDialogHelp(), 0);
    EXPECT_EQ(open.DoDialogHelp(), 0);
    EXPECT_EQ(host.helpCalls, 0);
    EXPECT_EQ(page.OnResizePage(1, 2), 0);
    EXPECT_EQ(page.TranslateTabKey(), 0);
    EXPECT_EQ(page.IsDirty(), 0);
    EXPECT_EQ(dialog.AddExtendedTabs(), 0);
    EXPECT_EQ(dialog.TranslateTabKey(), 0);
}

TEST_F(TabTest, HelpOfAPageIsTheMainDialogsAlone) {
    addPages(1);
    HELPINFO info = {};
    info.cbSize = sizeof info;
    a.SendMessage(WM_HELP, 0, reinterpret_cast<LPARAM>(&info));
    EXPECT_EQ(host.helpCalls, 1);
}

TEST_F(TabTest, TheFocusOfAPageIsGivenAndKept) {
    addPages(1);
    const HWND edit = a.GetDlgItem(IDC_SECOND)->m_hWnd;
    a.SetKtdsTabChildFocus(edit);
    EXPECT_EQ(::GetFocus(), edit);
    EXPECT_EQ(a.m_tabFocus, edit);
}

class ReturnKey : public TabTest {
protected:
    ReturnKey() { addPages(1); }
    HWND focusOn(int id) {
        const HWND window = a.GetDlgItem(id)->m_hWnd;
        ::SetFocus(window);
        return window;
    }
    BOOL press(HWND target, UINT message = WM_KEYDOWN, WPARAM key = VK_RETURN) {
        MSG typed = {target, message, key, 1, 0, {}};
        return a.PreTranslateMessage(&typed);
    }
    HWND ok() { return ::GetDlgItem(dialog.m_hWnd, IDOK); }
};

TEST_F(ReturnKey, MovesTheFocusToOkAndPressesIt) {
    int pressed = 0;
    ui_test::SentMessages sent([&](const CWPSTRUCT& message) {
        if (message.hwnd == dialog.m_hWnd && message.message == WM_COMMAND &&
            LOWORD(message.wParam) == IDOK && HIWORD(message.wParam) == BN_CLICKED)
            ++pressed;
    });
    EXPECT_TRUE(press(focusOn(IDC_FIRST)));
    EXPECT_EQ(pressed, 1);
    EXPECT_EQ(taken(), (Log{"a exchange", "a ok"}));
}

TEST_F(ReturnKey, OnAPushButtonPressesOkToo) {
    press(focusOn(IDC_THIRD));
    EXPECT_EQ(taken(), (Log{"a exchange", "a ok"}));
}

TEST_F(ReturnKey, InAnEditOfSeveralLinesStaysThere) {
    const HWND edit = focusOn(IDC_SECOND);
    press(edit);
    ui_test::pump();
    EXPECT_EQ(ui_test::text_of(edit), L"\r\n");
    EXPECT_EQ(::GetFocus(), edit);
    EXPECT_TRUE(taken().empty());
}

TEST_F(ReturnKey, OtherKeysMoveNothing) {
    const HWND edit = focusOn(IDC_FIRST);
    press(edit, WM_KEYDOWN, 'A');
    press(edit, WM_KEYUP);
    press(edit, WM_CHAR);
    EXPECT_EQ(::GetFocus(), edit);
    EXPECT_TRUE(taken().empty());
}

TEST_F(ReturnKey, WithOkDisabledTheFocusStays) {
    ::EnableWindow(ok(), FALSE);
    const HWND edit = focusOn(IDC_FIRST);
    press(edit);
    EXPECT_EQ(::GetFocus(), edit);
}

TEST_F(ReturnKey, IsEatenIfAControlTakesTheFocusBack) {
    class Sticky : public CEdit {
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
            const LRESULT result = CEdit::WindowProc(message, wParam, lParam);
            if (message == WM_KILLFOCUS) SetFocus();
            return result;
        }
    } sticky;
    sticky.SubclassDlgItem(IDC_FIRST, &a);
    const HWND edit = focusOn(IDC_FIRST);
    EXPECT_TRUE(press(edit));
    EXPECT_EQ(::GetFocus(), edit);
    EXPECT_TRUE(taken().empty());
    sticky.UnsubclassWindow();
}

TEST_F(TabTest, TheDefaultButtonIsSetAndKept) {
    dialog.SetDefaultButton(IDC_APPLY);
    EXPECT_EQ(dialog.GetDefaultButton(), IDC_APPLY);
    EXPECT_EQ(LOWORD(dialog.GetDefID()), IDC_APPLY);
}

TEST_F(TabTest, TheDefaultButtonFollowsTheFocusFromOneToAnother) {
    const HWND ok = ::GetDlgItem(dialog.m_hWnd, IDOK), apply = ::GetDlgItem(dialog.m_hWnd, IDC_APPLY);
    dialog.SetDefaultButton(IDCANCEL);
    ::SetFocus(ok);
    dialog.UpdateDefaultButton(apply, apply);
    EXPECT_EQ(dialog.GetDefaultButton(), IDCANCEL);
    EXPECT_EQ(::GetFocus(), ok);
    dialog.UpdateDefaultButton(ok, apply);
    EXPECT_EQ(dialog.GetDefaultButton(), IDC_APPLY);
    EXPECT_EQ(LOWORD(dialog.GetDefID()), IDC_APPLY);
    EXPECT_EQ(::GetFocus(), apply);
}

TEST_F(TabTest, EveryPageFollowsTheTabControlAndMovesItsOwnControls) {
    addPages(2);
    dialog.StretchControlXY(IDC_TABS, 100, 100);
    a.StretchControlX(IDC_FIRST, 100);
    const CRect before = rectOf(dialog.tab), page = rectOf(b), edit = rectOf(*a.GetDlgItem(IDC_FIRST));
    CRect window;
    dialog.GetWindowRect(&window);
    dialog.SetWindowPos(nullptr, 0, 0, window.Width() + 30, window.Height() + 20, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(rectOf(dialog.tab).Width(), before.Width() + 30);
    for (CWnd* each : {static_cast<CWnd*>(&a), static_cast<CWnd*>(&b)}) {
        EXPECT_EQ(rectOf(*each).TopLeft(), page.TopLeft());
        EXPECT_EQ(rectOf(*each).Size(), CSize(page.Width() + 30, page.Height() + 20));
    }
    EXPECT_EQ(rectOf(*a.GetDlgItem(IDC_FIRST)).Width(), edit.Width() + 30);
    EXPECT_EQ(front(), 0);
}

TEST_F(TabTest, ASizeChangeTakesTheRowFromTheFirstItemAndLeavesPagesWithoutAnItem) {
    addPages(2);
    dialog.tab.CTabCtrl::DeleteItem(1);
    a.MoveWindow(0, 0, 10, 10);
    b.MoveWindow(0, 0, 10, 10);
    CRect client, item, area = rectOf(dialog.tab);
    dialog.GetClientRect(&client);
    dialog.tab.GetItemRect(0, &item);
    dialog.SendMessage(WM_SIZE, SIZE_RESTORED, MAKELPARAM(client.Width(), client.Height()));
    area.top += item.Height();
    area.DeflateRect(5, 5);
    EXPECT_EQ(rectOf(a), area);
    EXPECT_EQ(rectOf(b), CRect(0, 0, 10, 10));
}

class InitialTab : public TabTest {
protected:
    int ask(const wchar_t* request) {
        dialog.SetInitialTabIndex(request);
        CString kept;
        dialog.GetInitialTabIndex(kept);
        EXPECT_EQ(kept, request);
        return dialog.GetInitialRequestedTabIndex();
    }
};

TEST_F(InitialTab, IsFoundByNumberAndByTextOfItem) {
    addPages(3);
    EXPECT_EQ(ask(L""), -1);
    EXPECT_EQ(ask(L"2"), 2);
    EXPECT_EQ(ask(L"-4"), 0);
    EXPECT_EQ(ask(L"b"), 1);
    EXPECT_EQ(ask(L"B"), 0);
    EXPECT_EQ(dialog.tab.GetCurSel(), 0);
}

TEST_F(InitialTab, NineAmongThreeIsComparedWithNineItems) {
    addPages(3);
    std::vector<WPARAM> asked;
    ui_test::SentMessages sent([&](const CWPSTRUCT& message) {
        if (message.hwnd == dialog.tab.m_hWnd && message.message == TCM_GETITEMW)
            asked.push_back(message.wParam);
    });
    EXPECT_EQ(ask(L"9"), 0);
    EXPECT_EQ(asked, (std::vector<WPARAM>{0, 1, 2, 3, 4, 5, 6, 7, 8}));
}

TEST_F(InitialTab, ANumberBeyondTheItemsMayBeATextOfOne) {
    dialog.AddTab(0, L"x", IDD_TAB_PAGE, &a);
    dialog.AddTab(1, L"2010", IDD_TAB_PAGE, &b);
    EXPECT_EQ(ask(L"2010"), 1);
}

class TabKeys : public TabTest {
protected:
    void press(WORD key, bool control, bool shift) {
        BYTE keys[256] = {};
        ::GetKeyboardState(keys);
        BYTE held[256] = {};
        held[VK_CONTROL] = control ? 0x80 : 0;
        held[VK_SHIFT] = shift ? 0x80 : 0;
        ::SetKeyboardState(held);
        const MSG message = {dialog.tab.m_hWnd, WM_KEYDOWN, key, 1, 0, {}};
        taken_ = KtUiTurnTabByKey(dialog.tab, message);
        ::SetKeyboardState(keys);
    }
    BOOL taken_ = FALSE;
};

TEST_F(TabKeys, TurnThePagesRound) {
    addPages(3);
    press(VK_TAB, true, false);
    EXPECT_TRUE(taken_);
    EXPECT_EQ(front(), 1);
    EXPECT_EQ(taken(), (Log{"a leave?", "a out", "b in"}));
    press(VK_NEXT, true, false);
    EXPECT_EQ(front(), 2);
    press(VK_NEXT, true, false);
    EXPECT_EQ(front(), 0);
    press(VK_TAB, true, true);
    EXPECT_EQ(front(), 2);
    press(VK_PRIOR, true, false);
    EXPECT_EQ(front(), 1);
}

TEST_F(TabKeys, OtherKeysAndAStripWithoutItemsAreLeft) {
    press(VK_TAB, true, false);
    EXPECT_FALSE(taken_);
    addPages(2);
    press(VK_TAB, false, false);
    EXPECT_FALSE(taken_);
    press(VK_RIGHT, true, false);
    EXPECT_FALSE(taken_);
    EXPECT_EQ(front(), 0);
}

TEST_F(TabKeys, APageMayRefuse) {
    addPages(2);
    a.mayLeave = false;
    press(VK_TAB, true, false);
    EXPECT_TRUE(taken_);
    EXPECT_EQ(front(), 0);
    EXPECT_EQ(dialog.tab.GetCurSel(), 0);
    EXPECT_EQ(taken(), (Log{"a leave?"}));
}

TEST_F(TabTest, ArrowKeysOfTheControlTurnThePages) {
    addPages(2);
    dialog.tab.SetFocus();
    dialog.tab.SendMessage(WM_KEYDOWN, VK_RIGHT, 1);
    dialog.tab.SendMessage(WM_KEYUP, VK_RIGHT, 0xC0000001);
    EXPECT_EQ(front(), 1);
    EXPECT_EQ(taken(), (Log{"a leave?", "a out", "b in"}));
}

TEST_F(TabTest, TheTabKeyReachesThePagesControlsInOrderThenTheStripThenTheButtons) {
    addPages(2);
    std::vector<int> visited;
    ::SetFocus(a.GetDlgItem(IDC_FIRST)->m_hWnd);
    for (int i = 0; i < 6; ++i) {
        visited.push_back(::GetDlgCtrlID(::GetFocus()));
        dialog.SendMessage(WM_NEXTDLGCTL, 0, FALSE);
    }
    EXPECT_EQ(visited, (std::vector<int>{IDC_FIRST, IDC_SECOND, IDC_THIRD, IDC_TABS, IDOK, IDCANCEL}));
}

}  // namespace
