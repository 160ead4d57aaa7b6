// In which order a tabbed dialog does what it does, as its windows and pages see it.
#include "tab_fixture.h"

#include "sent_messages.h"

namespace {

/// Writes down what the windows of the tabbed dialog get, in one row with what the pages hear.
class TabOrder : public TabTest {
protected:
    /// What `act` brings about.
    Log during(const std::function<void()>& act) {
        log.clear();
        ui_test::SentMessages sent([this](const CWPSTRUCT& message) { note(message); });
        act();
        return taken();
    }

private:
    void note(const CWPSTRUCT& message) {
        if (message.hwnd == dialog.tab.m_hWnd) {
            switch (message.message) {
                case TCM_SETCURSEL: log.push_back("select " + std::to_string(message.wParam)); break;
                case TCM_DELETEITEM: log.push_back("delete " + std::to_string(message.wParam)); break;
                case TCM_GETITEMRECT: log.push_back("row of " + std::to_string(message.wParam)); break;
                case WM_SETFOCUS: log.push_back("focus"); break;
                default: break;
            }
            return;
        }
        if (message.message != WM_SHOWWINDOW) return;
        NotingPage* const pages[] = {&a, &b, &c, &d};
        for (int i = 0; i < 4; ++i)
            if (pages[i]->m_hWnd != nullptr && pages[i]->m_hWnd == message.hwnd)
                log.push_back((message.wParam != 0 ? "show " : "hide ") + std::to_string(i));
    }
};

TEST_F(TabOrder, AClickHidesSelectsShowsTakesTheFocusAndTellsThePageLast) {
    addPages(3);
    a.GetDlgItem(IDC_FIRST)->SetFocus();
    EXPECT_EQ(during([this] {
                  NMHDR header = {dialog.tab.m_hWnd, IDC_TABS, static_cast<UINT>(TCN_SELCHANGING)};
                  dialog.SendMessage(WM_NOTIFY, IDC_TABS, reinterpret_cast<LPARAM>(&header));
                  ::SendMessageW(dialog.tab.m_hWnd, TCM_SETCURSEL, 2, 0);
                  header.code = static_cast<UINT>(TCN_SELCHANGE);
                  dialog.SendMessage(WM_NOTIFY, IDC_TABS, reinterpret_cast<LPARAM>(&header));
              }),
              (Log{"a leave?", "a out", "select 2", "hide 0", "select 2", "show 2", "focus", "c in"}));
}

TEST_F(TabOrder, TheProgrammaticSwitchTellsTheOldPageBeforeAndTheNewOneAfterwards) {
    addPages(3);
    a.GetDlgItem(IDC_FIRST)->SetFocus();
    const Log seen = during([this] { dialog.tab.SetActiveTab(1); });
    EXPECT_EQ(seen, (Log{"a out", "hide 0", "select 1", "show 1", "b in"})) << "and takes no focus";
}

TEST_F(TabOrder, RemovingDeletesTheItemThenHidesThePageThenBringsAnother) {
    addPages(3);
    dialog.tab.SetActiveTab(2);
    Log seen = during([this] { dialog.RemoveTab(2); });
    ASSERT_GE(seen.size(), 2u);
    EXPECT_EQ(seen[0], "delete 2");
    EXPECT_EQ(seen[1], "hide 2");
    EXPECT_FALSE(c.IsWindowVisible());
}

TEST_F(TabOrder, AnAddedPageTakesItsRowFromItsOwnItemAndASizeChangeFromTheFirst) {
    addPages(2);
    Log seen = during([this] { dialog.AddTab(2, L"c", IDD_TAB_PAGE, &c); });
    EXPECT_EQ(std::count(seen.begin(), seen.end(), "row of 2"), 1);
    EXPECT_EQ(std::count(seen.begin(), seen.end(), "row of 0"), 0);
    CRect client;
    dialog.GetClientRect(&client);
    seen = during(
        [&] { dialog.SendMessage(WM_SIZE, SIZE_RESTORED, MAKELPARAM(client.Width(), client.Height())); });
    EXPECT_EQ(std::count(seen.begin(), seen.end(), "row of 0"), 1);
    EXPECT_EQ(std::count(seen.begin(), seen.end(), "row of 2"), 0);
}

TEST_F(TabOrder, AnAddedPageIsShownBeforeTheFirstComesToTheFront) {
    addPages(1);
    const Log seen = during([this] { dialog.AddTab(1, L"b", IDD_TAB_PAGE, &b); });
    const auto at = [&](const char* event) {
        return std::find(seen.begin(), seen.end(), event) - seen.begin();
    };
    ASSERT_LT(at("hide 1"), static_cast<std::ptrdiff_t>(seen.size()));
    EXPECT_LT(at("hide 0"), at("hide 1"));
    EXPECT_LT(at("hide 1"), at("select 0"));
    EXPECT_EQ(seen.back(), "show 0");
}

TEST_F(TabOrder, CancelTellsThePagesWhileTheDialogIsThere) {
    addPages(1);
    bool there = false;
    class Watching : public NotingPage {
    public:
        Watching(std::vector<std::string>& log, bool& there) : NotingPage("w", log), m_there(there) {}

    protected:
        void OnMainDialogCancel() override { m_there = GetParent()->IsWindowVisible(); }

    private:
        bool& m_there;
    } watching(log, there);
    dialog.AddTab(1, L"w", IDD_TAB_PAGE, &watching);
    dialog.SendMessage(WM_COMMAND, IDCANCEL);
    EXPECT_TRUE(there);
    dialog.DestroyWindow();
}

/// Adds nothing before its base has started.
class EarlyDialog : public TabbedDialog {
public:
    EarlyDialog(CWnd* parent, CKbUiTabChildDialog& page) : TabbedDialog(parent), m_page(page) {}
    int early = -1;
    bool bound = false;

protected:
    void OnInitDialogFinish() override {
        bound = m_tab != nullptr;
        early = GetXtabPointer()->AddTab(AfxGetResourceHandle(), IDD_TAB_PAGE, L"early", &m_page);
    }

private:
    CKbUiTabChildDialog& m_page;
};

TEST_F(TabOrder, AModuleCanAddNothingBeforeTheDialogHasStarted) {
    EarlyDialog early(&parent, a);
    early.Create(IDD_TABBED, &parent);
    EXPECT_TRUE(early.bound) << "the tab control is there";
    EXPECT_EQ(early.early, 0);
    EXPECT_EQ(early.tab.GetItemCount(), 0);
    EXPECT_EQ(early.GetXtabPointer()->AddTab(AfxGetResourceHandle(), IDD_TAB_PAGE, L"late", &a), 1);
    early.DestroyWindow();
}

/// Whether the key went on to the platform, which tells the main dialog of it, and who had the focus then.
class ReturnGoesOn : public TabTest {
protected:
    void pressIn(const CWnd& edit) {
        ::SetFocus(edit.m_hWnd);
        ui_test::SentMessages sent([this](const CWPSTRUCT& message) {
            if (message.hwnd != dialog.m_hWnd || message.message != WM_COMMAND ||
                LOWORD(message.wParam) != IDOK)
                return;
            ++commands;
            focused = ::GetFocus();
        });
        MSG typed = {edit.m_hWnd, WM_KEYDOWN, VK_RETURN, 1, 0, {}};
        a.PreTranslateMessage(&typed);
    }
    int commands = 0;
    HWND focused = nullptr;
};

TEST_F(ReturnGoesOn, WithoutAnOkButton) {
    addPages(1);
    ::DestroyWindow(::GetDlgItem(dialog.m_hWnd, IDOK));
    CWnd& edit = *a.GetDlgItem(IDC_FIRST);
    pressIn(edit);
    EXPECT_EQ(commands, 1);
    EXPECT_EQ(focused, edit.m_hWnd);
}

TEST_F(ReturnGoesOn, OnAPageWithoutATab) {
    a.Create(IDD_TAB_PAGE, &dialog);
    a.ShowWindow(SW_SHOW);
    CWnd& edit = *a.GetDlgItem(IDC_FIRST);
    pressIn(edit);
    EXPECT_EQ(commands, 1);
    EXPECT_EQ(focused, edit.m_hWnd);
    EXPECT_TRUE(taken().empty());
}

TEST_F(ReturnGoesOn, FromTheOkButtonOnAButtonWhoseStyleLooksLikeSeveralLines) {
    addPages(1);
    CButton radio;
    static_assert(BS_RADIOBUTTON == ES_MULTILINE);
    radio.Create(L"", WS_CHILD | WS_VISIBLE | BS_RADIOBUTTON, CRect(0, 0, 9, 9), &a, 1050);
    pressIn(radio);
    EXPECT_EQ(commands, 1);
    EXPECT_EQ(focused, ::GetDlgItem(dialog.m_hWnd, IDOK));
}

}  // namespace
