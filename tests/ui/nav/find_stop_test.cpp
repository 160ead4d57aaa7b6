// What ends a search of the find dialog, and what doesn't end the dialog while one runs.
#include "find_fixture.h"

namespace {

/// Does `act` once, inside the dialog's handling of the `count`th message of the kind.
class During {
public:
    During(const HWND& dialog, UINT message, int count, std::function<void()> act)
        : m_sent([this, &dialog, message, count, act = std::move(act)](const CWPSTRUCT& sent) {
              if (sent.hwnd != dialog || sent.message != message || ++m_seen != count) return;
              act();
          }) {}
    int seen() const { return m_seen; }

private:
    int m_seen = 0;
    ui_test::SentMessages m_sent;
};

class FindStopTest : public FindTest {
protected:
    /// Answers the question about the results with a button, once it is asked.
    void answer(int button) {
        ui_test::when_window(
            [](HWND window) {
                return ::GetDlgItem(window, IDC_FIND_RESULTS) == nullptr && isQuestion(window);
            },
            [this, button](HWND window) {
                wasSearching = isSearching();
                ::PostMessageW(window, WM_COMMAND, static_cast<WPARAM>(button), 0);
            },
            20000);
    }
    static bool isQuestion(HWND window) {
        wchar_t name[16] = {};
        ::GetClassNameW(window, name, 16);
        return wcscmp(name, L"#32770") == 0;
    }
    void manyFiles(int count) {
        for (int i = 0; i < count; ++i) {
            CString name;
            name.Format(L"%03d.dwg", i);
            makeFile(name);
        }
    }
    bool wasSearching = false;
    bool isDestroyed = false;
};

TEST_F(FindStopTest, StopEndsTheLoopAtTheFileAtHand) {
    manyFiles(10);
    const During third(dialog, WM_FIND_FILE, 3, [this] { click(IDC_FIND_STOP); });
    run([&] {
        search();
        EXPECT_EQ(rows(), 3);
        EXPECT_EQ(third.seen(), 3);
        EXPECT_EQ(status(), L"3 file(s) found.");
        EXPECT_TRUE(isEnabled(IDOK));
        cancel();
    });
}

TEST_F(FindStopTest, AfterAStopTheNextSearchRunsToItsEnd) {
    manyFiles(10);
    const During third(dialog, WM_FIND_FILE, 3, [this] { click(IDC_FIND_STOP); });
    run([&] {
        search();
        EXPECT_EQ(rows(), 3);
        search();
        EXPECT_EQ(rows(), 10);
        cancel();
    });
}

TEST_F(FindStopTest, StopOfTheOnceWalkEndsItToo) {
    KtUiSetFindFileWalk(kKtUiFindOnce);
    manyFiles(10);
    makeFolder(L"sub");
    makeFile(L"sub\\late.dwg");
    const During first(dialog, WM_FIND_BATCH, 2, [this] { click(IDC_FIND_STOP); });
    run([&] {
        search();
        EXPECT_EQ(rows(), 1) << "the first file goes out at once";
        cancel();
    });
}

TEST_F(FindStopTest, EscapeStopsTheSearchAndASecondOneClosesTheDialog) {
    manyFiles(10);
    bool wasThere = false;
    const During second(dialog, WM_FIND_FILE, 2, [&] {
        ::PostMessageW(::GetFocus(), WM_KEYDOWN, VK_ESCAPE, 0);
        ui_test::pump();
        wasThere = ::IsWindowVisible(dialog) != FALSE;
    });
    EXPECT_FALSE(run([&] {
        search();
        EXPECT_TRUE(wasThere);
        EXPECT_EQ(rows(), 2);
        EXPECT_TRUE(::IsWindowVisible(dialog));
        ::PostMessageW(::GetFocus(), WM_KEYDOWN, VK_ESCAPE, 0);
    }));
}

TEST_F(FindStopTest, EscapeOnAPageClosesTheDialogAndNotThePage) {
    run([&] {
        const HWND edit = ::GetWindow(item(IDC_FIND_NAME), GW_CHILD);
        ::SetFocus(edit);
        ::PostMessageW(edit, WM_KEYDOWN, VK_ESCAPE, 0);
    });
    EXPECT_EQ(dialog, nullptr);
}

TEST_F(FindStopTest, TheCloseBoxStopsASearchOnly) {
    manyFiles(10);
    const During second(dialog, WM_FIND_FILE, 2, [&] {
        ::SendMessageW(dialog, WM_CLOSE, 0, 0);
        ui_test::pump();
    });
    run([&] {
        search();
        EXPECT_EQ(rows(), 2);
        EXPECT_TRUE(::IsWindowVisible(dialog));
        ::PostMessageW(dialog, WM_CLOSE, 0, 0);
    });
}

TEST_F(FindStopTest, OkDuringASearchDoesNothing) {
    manyFiles(3);
    const During third(dialog, WM_FIND_FILE, 3, [&] { command(IDOK); });
    EXPECT_FALSE(run([&] {
        search();
        EXPECT_EQ(rows(), 3);
        EXPECT_TRUE(::IsWindowVisible(dialog));
        cancel();
    }));
}

TEST_F(FindStopTest, NewSearchAsksFirstAndKeepsAllWhenRefused) {
    manyFiles(3);
    run([&] {
        setText(IDC_FIND_NAME, L"0");
        search();
        answer(IDCANCEL);
        command(IDC_FIND_NEW);
        EXPECT_EQ(rows(), 3);
        EXPECT_EQ(text(IDC_FIND_NAME), L"0");
        EXPECT_TRUE(isEnabled(IDOK));
        cancel();
    });
}

TEST_F(FindStopTest, NewSearchPutsTheFieldsBack) {
    manyFiles(3);
    run([&] {
        setText(IDC_FIND_NAME, L"0");
        subfolders(false);
        ::SendMessageW(item(IDC_FIND_TYPE), CB_SETCURSEL, 0, 0);
        click(IDC_FIND_DAYS);
        setText(IDC_FIND_DAY_COUNT, L"77");
        setText(IDC_FIND_MONTH_COUNT, L"7");
        search();
        EXPECT_EQ(rows(), 3);
        const FoundTexts before = locations();
        answer(IDOK);
        command(IDC_FIND_NEW);
        EXPECT_EQ(rows(), 0);
        EXPECT_EQ(status(), L"0 file(s) found.");
        EXPECT_FALSE(isEnabled(IDOK));
        EXPECT_EQ(text(IDC_FIND_NAME), L"");
        EXPECT_EQ(selectedLocation(), 1);
        EXPECT_EQ(locations(), before);
        EXPECT_TRUE(isChecked(IDC_FIND_ANY_DATE));
        EXPECT_FALSE(isChecked(IDC_FIND_BY_DATE));
        EXPECT_EQ(text(IDC_FIND_DAY_COUNT), L"1");
        EXPECT_EQ(text(IDC_FIND_MONTH_COUNT), L"1");
        // Kept: these stay.
        EXPECT_EQ(::SendMessageW(item(IDC_FIND_TYPE), CB_GETCURSEL, 0, 0), 0);
        EXPECT_FALSE(isChecked(IDC_FIND_SUBFOLDERS));
        EXPECT_EQ(::SendMessageW(item(IDC_FIND_NAME), CB_GETCOUNT, 0, 0), 1);
        cancel();
    });
}

TEST_F(FindStopTest, NewSearchDuringASearchWaitsForItsEnd) {
    manyFiles(300);
    for (const auto walk : {kKtUiFindSettled, kKtUiFindOnce}) {
        KtUiSetFindFileWalk(walk);
        const UINT kind = walk == kKtUiFindSettled ? WM_FIND_FILE : WM_FIND_BATCH;
        wasSearching = true;
        answer(IDOK);
        const During first(dialog, kind, 1, [&] { ::PostMessageW(dialog, WM_COMMAND, IDC_FIND_NEW, 0); });
        run([&] {
            setText(IDC_FIND_NAME, L"0");
            command(IDC_FIND_START);
            EXPECT_TRUE(ui_test::pump_until([&] { return text(IDC_FIND_NAME).empty(); }, 20000));
            EXPECT_FALSE(wasSearching) << "the question comes after the search";
            EXPECT_EQ(rows(), 0);
            EXPECT_FALSE(isSearching());
            if (walk == kKtUiFindSettled) {
                EXPECT_LT(first.seen(), 300);
            }
            cancel();
        });
    }
}

constexpr UINT kOwnMessage = WM_APP + 77;
int ownMessages = 0;
WNDPROC formerProcedure = nullptr;

LRESULT CALLBACK countOwnMessages(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == kOwnMessage) ++ownMessages;
    return ::CallWindowProcW(formerProcedure, window, message, wParam, lParam);
}

TEST_F(FindStopTest, NewSearchDispatchesTheLastMessageAgainWhileItWaits) {
    manyFiles(100);
    ownMessages = 0;
    int files = 0;
    const ui_test::SentMessages sent([&](const CWPSTRUCT& message) {
        if (message.hwnd != dialog) return;
        if (message.message == WM_FIND_FILE && ++files == 1) {
            ::PostMessageW(dialog, WM_COMMAND, IDC_FIND_NEW, 0);
            ::PostMessageW(dialog, kOwnMessage, 0, 0);
        }
        // Not before, since the timer of the answer would be the last message.
        if (message.message == WM_FIND_DONE) answer(IDCANCEL);
    });
    run([&] {
        formerProcedure = reinterpret_cast<WNDPROC>(
            ::SetWindowLongPtrW(dialog, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&countOwnMessages)));
        ::ShowWindow(dialog, SW_HIDE);  // nor shall painting be the last
        ui_test::pump();
        wasSearching = true;
        command(IDC_FIND_START);
        EXPECT_TRUE(ui_test::pump_until([&] { return !wasSearching; }, 20000));
        EXPECT_GT(ownMessages, 1) << "posted once";
        cancel();
    });
}

TEST_F(FindStopTest, AWindowThatIsDestroyedMidwayWaitsForItsThread) {
    manyFiles(20);
    for (const auto walk : {kKtUiFindSettled, kKtUiFindOnce}) {
        KtUiSetFindFileWalk(walk);
        const UINT kind = walk == kKtUiFindSettled ? WM_FIND_FILE : WM_FIND_BATCH;
        bool isDone = false;
        const ui_test::SentMessages sent([&](const CWPSTRUCT& message) {
            if (message.hwnd != dialog) return;
            if (message.message == WM_FIND_DONE) isDone = true;
            if (message.message == kind && !isDestroyed) {
                isDestroyed = true;
                ui_test::later([window = dialog] { ::DestroyWindow(window); });
            }
        });
        isDestroyed = false;
        run([&] { command(IDC_FIND_START); });
        EXPECT_TRUE(isDone);
    }
}

}  // namespace
