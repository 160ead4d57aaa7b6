// The services of the application object: profile, message boxes, strings of the resources, threads.
#include <afxcmn.h>
#include <afxext.h>

#include <atomic>
#include <string>
#include <thread>
#include <vector>

#include "ui_test.h"

namespace {

constexpr UINT kThreadMessage = WM_APP + 9;

/// Makes the test's application remember nothing of the profile it was given.
class Profile : public ::testing::Test {
protected:
    Profile() {
        wchar_t folder[MAX_PATH];
        ::GetTempPathW(MAX_PATH, folder);
        m_file = CString(folder) + L"ktui_profile_test.ini";
        app->m_pszProfileName = m_file;
        app->m_pszRegistryKey = nullptr;
    }
    ~Profile() override {
        app->m_pszRegistryKey = m_key;
        app->m_pszProfileName = m_profile;
        ::DeleteFileW(m_file);
        ::RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\ktui test company");
    }

    /// The same steps for the registry and for a file.
    void round_trip() {
        EXPECT_EQ(app->GetProfileInt(L"section", L"number", 7), 7u);
        EXPECT_TRUE(app->WriteProfileInt(L"section", L"number", -12));
        EXPECT_EQ(static_cast<int>(app->GetProfileInt(L"section", L"number", 7)), -12);
        EXPECT_EQ(app->GetProfileString(L"section", L"text", L"none"), L"none");
        EXPECT_EQ(app->GetProfileString(L"section", L"text"), L"");
        const CString longText(L'x', 6000);
        EXPECT_TRUE(app->WriteProfileString(L"section", L"text", longText));
        EXPECT_EQ(app->GetProfileString(L"section", L"text", L"none"), longText);
        EXPECT_TRUE(app->WriteProfileString(L"section", L"text", nullptr));
        EXPECT_EQ(app->GetProfileString(L"section", L"text", L"none"), L"none");

        BYTE bytes[] = {0, 1, 0x7F, 0x80, 0xFF};
        BYTE* read = nullptr;
        UINT count = 99;
        EXPECT_FALSE(app->GetProfileBinary(L"section", L"bytes", &read, &count));
        EXPECT_EQ(count, 0u);
        EXPECT_EQ(read, nullptr);
        EXPECT_TRUE(app->WriteProfileBinary(L"section", L"bytes", bytes, sizeof(bytes)));
        ASSERT_TRUE(app->GetProfileBinary(L"section", L"bytes", &read, &count));
        EXPECT_EQ(std::string(read, read + count), std::string(bytes, bytes + sizeof(bytes)));
        delete[] read;

        EXPECT_TRUE(app->WriteProfileString(L"section", nullptr, nullptr));
        EXPECT_EQ(app->GetProfileInt(L"section", L"number", 7), 7u);
    }

    CWinApp* app = AfxGetApp();

private:
    LPCTSTR m_key = app->m_pszRegistryKey;
    LPCTSTR m_profile = app->m_pszProfileName;
    CString m_file;
};

/// Icon and title of the next message box, which is answered with `button`.
struct SeenBox {
    HICON icon = nullptr;
    CString title;
};

SeenBox show_box(UINT type, UINT button, int* answer = nullptr) {
    SeenBox seen;
    ui_test::when_dialog(AfxGetAppName(), [&](HWND box) {
        seen.title = ui_test::text_of(box);
        for (HWND child = ::GetTopWindow(box); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT))
            if (auto icon = reinterpret_cast<HICON>(::SendMessageW(child, STM_GETICON, 0, 0)))
                seen.icon = icon;
        ::PostMessageW(box, WM_COMMAND, button, 0);
    });
    const int result = AfxMessageBox(L"a question", type);
    if (answer != nullptr) *answer = result;
    return seen;
}

std::atomic<int> seen_by_thread;
std::atomic<CWinThread*> thread_inside;

UINT work(LPVOID parameter) {
    thread_inside = AfxGetThread();
    seen_by_thread = *static_cast<int*>(parameter);
    return 17;
}

/// A thread with a pump.
class PumpThread : public CWinThread {
    DECLARE_DYNCREATE(PumpThread)
public:
    BOOL InitInstance() override { return TRUE; }
    int ExitInstance() override {
        ++seen_by_thread;
        return CWinThread::ExitInstance();
    }

protected:
    afx_msg void OnThreadMessage(WPARAM w, LPARAM) { seen_by_thread += static_cast<int>(w); }
    DECLARE_MESSAGE_MAP()
};
IMPLEMENT_DYNCREATE(PumpThread, CWinThread)

BEGIN_MESSAGE_MAP(PumpThread, CWinThread)
    ON_THREAD_MESSAGE(kThreadMessage, &PumpThread::OnThreadMessage)
END_MESSAGE_MAP()

/// A thread that lives as long as its window.
class WindowThread : public CWinThread {
public:
    CWnd window;
    BOOL InitInstance() override {
        window.CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP, CRect(0, 0, 5, 5), nullptr, 0);
        m_pMainWnd = &window;
        window.PostMessage(WM_CLOSE);
        return TRUE;
    }
};

/// Asks the system's own loops for a message each, and keeps one of two from the dialog.
class FilterThread : public CWinThread {
public:
    std::vector<int> seen;
    bool treatedByFilter = false, treatedByDialog = false;

    BOOL InitInstance() override {
        CWnd window;
        window.CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP, CRect(0, 0, 5, 5), nullptr, 0);
        MSG message = {window.m_hWnd, WM_CHAR, L'f', 1, 0, {}};
        treatedByFilter = window.IsDialogMessage(&message) != FALSE;
        message.wParam = L'd';
        // Characters that nobody takes are the dialog's: it dispatches them.
        message.hwnd = ::GetDesktopWindow();
        treatedByDialog = window.IsDialogMessage(&message) != FALSE;
        ::CallMsgFilterW(&message, MSGF_MENU);
        return FALSE;
    }
    BOOL ProcessMessageFilter(int code, LPMSG message) override {
        seen.push_back(code);
        return message->wParam == L'f';
    }
};

bool ended(HANDLE thread) { return ::WaitForSingleObject(thread, 5000) == WAIT_OBJECT_0; }

}  // namespace

TEST_F(Profile, GoesToAFileAtFirst) { round_trip(); }

TEST_F(Profile, GoesToTheRegistryOnceACompanyIsNamed) {
    app->SetRegistryKey(L"ktui test company");
    round_trip();
    EXPECT_TRUE(app->WriteProfileInt(L"place", L"x", 5));
    DWORD stored = 0, size = sizeof(stored);
    const CString key = CString(L"Software\\ktui test company\\") + AfxGetAppName() + L"\\place";
    EXPECT_EQ(::RegGetValueW(HKEY_CURRENT_USER, key, L"x", RRF_RT_REG_DWORD, nullptr, &stored, &size), 0);
    EXPECT_EQ(stored, 5u);
}

TEST_F(Profile, AValueOfAnotherTypeIsNotThere) {
    app->SetRegistryKey(L"ktui test company");
    app->WriteProfileString(L"section", L"value", L"text");
    EXPECT_EQ(app->GetProfileInt(L"section", L"value", 3), 3u);
    app->WriteProfileInt(L"section", L"value", 5);
    EXPECT_EQ(app->GetProfileString(L"section", L"value", L"none"), L"none");
}

TEST(MessageBox, CarriesTheNameOfTheApplicationAndFittingSigns) {
    int answer = 0;
    const SeenBox plain = show_box(MB_OK, IDOK, &answer);
    EXPECT_EQ(plain.title, AfxGetAppName());
    EXPECT_EQ(answer, IDOK);
    const SeenBox asked = show_box(MB_YESNO, IDNO, &answer);
    EXPECT_EQ(answer, IDNO);
    EXPECT_NE(plain.icon, nullptr);
    EXPECT_NE(asked.icon, nullptr);
    EXPECT_NE(plain.icon, asked.icon);
    EXPECT_EQ(show_box(MB_OK | MB_ICONEXCLAMATION, IDOK).icon, plain.icon);
    EXPECT_EQ(show_box(MB_YESNO | MB_ICONQUESTION, IDYES).icon, asked.icon);
    EXPECT_NE(show_box(MB_OK | MB_ICONSTOP, IDOK).icon, plain.icon);
}

TEST(MessageBox, TakesItsTextFromTheResources) {
    CString text;
    ui_test::when_dialog(AfxGetAppName(), [&](HWND box) {
        text = ui_test::text_of(::GetDlgItem(box, 0xFFFF));
        ::PostMessageW(box, WM_COMMAND, IDOK, 0);
    });
    EXPECT_EQ(AfxMessageBox(501u), IDOK);
    EXPECT_EQ(text, L"a message of the resources");
    EXPECT_EQ(AfxMessageBox(4711u), -1);
}

TEST(ResourceStrings, ArePutTogetherFromPieces) {
    CString text;
    AfxFormatString2(text, 500, L"this", L"that");
    EXPECT_EQ(text, L"this is not that");
    AfxFormatString1(text, 500, L"%2");
    EXPECT_EQ(text, L"%2 is not ?") << "a value is not read again, a missing one leaves a mark";
    const LPCTSTR values[] = {L"a", nullptr};
    AfxFormatStrings(text, L"100% of %1%2.", values, 2);
    EXPECT_EQ(text, L"100% of a.");
}

TEST(ResourceStrings, AreTakenApart) {
    CString piece = L"before";
    EXPECT_TRUE(AfxExtractSubString(piece, L"one\ntwo\n\nfour", 0));
    EXPECT_EQ(piece, L"one");
    EXPECT_TRUE(AfxExtractSubString(piece, L"one\ntwo\n\nfour", 2));
    EXPECT_EQ(piece, L"");
    EXPECT_TRUE(AfxExtractSubString(piece, L"one;two", 1, L';'));
    EXPECT_EQ(piece, L"two");
    EXPECT_FALSE(AfxExtractSubString(piece, L"one\ntwo", 2));
    EXPECT_EQ(piece, L"");
    EXPECT_FALSE(AfxExtractSubString(piece, nullptr, 0));
}

TEST(Thread, AWorkerRunsItsFunctionAndIsTheThreadsObject) {
    int parameter = 5;
    seen_by_thread = 0;
    CWinThread* thread = AfxBeginThread(work, &parameter, THREAD_PRIORITY_NORMAL, 0, CREATE_SUSPENDED);
    ASSERT_NE(thread, nullptr);
    thread->m_bAutoDelete = FALSE;
    ::Sleep(30);
    EXPECT_EQ(seen_by_thread, 0) << "nothing runs before the thread is resumed";
    thread->ResumeThread();
    ASSERT_TRUE(ended(thread->m_hThread));
    EXPECT_EQ(seen_by_thread, 5);
    EXPECT_EQ(thread_inside, thread);
    DWORD code = 0;
    ::GetExitCodeThread(thread->m_hThread, &code);
    EXPECT_EQ(code, 17u);
    delete thread;
}

TEST(Thread, ShortWorkersThatDeleteThemselvesAreStartedSafely) {
    static std::atomic<int> runs;
    runs = 0;
    for (int i = 0; i < 200; ++i)
        ASSERT_NE(AfxBeginThread([](LPVOID) -> UINT { return ++runs, 0u; }, nullptr), nullptr);
    EXPECT_TRUE(ui_test::pump_until([] { return runs == 200; }));
}

TEST(Thread, AMessageThreadPumpsUntilItIsToldToQuit) {
    seen_by_thread = 0;
    auto* thread = static_cast<PumpThread*>(RUNTIME_CLASS(PumpThread)->CreateObject());
    thread->m_bAutoDelete = FALSE;
    ASSERT_TRUE(thread->CreateThread());
    EXPECT_TRUE(thread->PostThreadMessage(kThreadMessage, 3, 0));
    EXPECT_TRUE(thread->PostThreadMessage(kThreadMessage, 4, 0));
    EXPECT_TRUE(thread->PostThreadMessage(WM_QUIT, 9, 0));
    ASSERT_TRUE(ended(thread->m_hThread));
    EXPECT_EQ(seen_by_thread, 8) << "both messages, and one for the end";
    DWORD code = 0;
    ::GetExitCodeThread(thread->m_hThread, &code);
    EXPECT_EQ(code, 9u);
    delete thread;
}

TEST(Thread, OfOtherMakingHasNoObject) {
    CWinThread* object = AfxGetApp();
    CWnd* window = AfxGetMainWnd();
    EXPECT_EQ(AfxGetThread(), AfxGetApp());
    ui_test::ParentWindow main;
    AfxGetApp()->m_pMainWnd = &main;
    EXPECT_EQ(AfxGetMainWnd(), &main);
    std::thread([&] { object = AfxGetThread(), window = AfxGetMainWnd(); }).join();
    AfxGetApp()->m_pMainWnd = nullptr;
    EXPECT_EQ(object, nullptr);
    EXPECT_EQ(window, nullptr);
}

TEST(Thread, SeesTheMessagesOfDialogsBeforeTheyAreTreated) {
    FilterThread thread;
    thread.m_bAutoDelete = FALSE;
    ASSERT_TRUE(thread.CreateThread());
    ASSERT_TRUE(ended(thread.m_hThread));
    EXPECT_EQ(thread.seen, (std::vector<int>{MSGF_DIALOGBOX, MSGF_DIALOGBOX, MSGF_MENU}));
    EXPECT_TRUE(thread.treatedByFilter) << "TRUE keeps the message from the dialog";
    EXPECT_FALSE(thread.treatedByDialog);
}

TEST(Thread, TheApplicationSeesThemToo) {
    std::vector<int> seen;
    ui_test::on_message_filter([&](int code, const MSG&) { seen.push_back(code); });
    ui_test::ParentWindow window;
    MSG message = {window.m_hWnd, WM_KEYDOWN, VK_TAB, 1, 0, {}};
    window.IsDialogMessage(&message);
    ui_test::on_message_filter(nullptr);
    EXPECT_EQ(seen, std::vector<int>{MSGF_DIALOGBOX});
}

TEST(Thread, EndsWhenItsMainWindowIsClosed) {
    WindowThread thread;
    thread.m_bAutoDelete = FALSE;
    ASSERT_TRUE(thread.CreateThread());
    EXPECT_TRUE(ended(thread.m_hThread));
    EXPECT_EQ(thread.m_pMainWnd, nullptr);
}
