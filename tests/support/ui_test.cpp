#include "ui_test.h"

#include <map>
#include <memory>

#include "crash_report.h"

namespace {

/// The application object that the class layer wants; tests have no main window.
class TestApplication : public CWinApp {
public:
    TestApplication() : CWinApp(L"ui_test") {}
    std::function<void(int, const MSG&)> filter;

    BOOL ProcessMessageFilter(int code, LPMSG message) override {
        if (filter) filter(code, *message);
        return CWinApp::ProcessMessageFilter(code, message);
    }
};

TestApplication application;

std::map<UINT_PTR, std::function<void()>>& pending() {
    static std::map<UINT_PTR, std::function<void()>> actions;
    return actions;
}

void CALLBACK run_pending(HWND, UINT, UINT_PTR id, DWORD) {
    ::KillTimer(nullptr, id);
    auto found = pending().find(id);
    if (found == pending().end()) return;
    std::function<void()> action = std::move(found->second);
    pending().erase(found);
    action();
}

struct WindowSearch {
    const std::function<bool(HWND)>& wanted;
    HWND found = nullptr;
};

HWND find_window(const std::function<bool(HWND)>& wanted) {
    WindowSearch search{wanted};
    ::EnumThreadWindows(
        ::GetCurrentThreadId(),
        [](HWND window, LPARAM parameter) -> BOOL {
            auto* s = reinterpret_cast<WindowSearch*>(parameter);
            if (!::IsWindowVisible(window) || !s->wanted(window)) return TRUE;
            s->found = window;
            return FALSE;
        },
        reinterpret_cast<LPARAM>(&search));
    return search.found;
}

void poll_window(std::function<bool(HWND)> wanted, std::function<void(HWND)> action, ULONGLONG deadline) {
    if (HWND window = find_window(wanted)) {
        action(window);
        return;
    }
    if (::GetTickCount64() > deadline) {
        ADD_FAILURE() << "the expected window did not appear";
        return;
    }
    ui_test::later([=] { poll_window(wanted, action, deadline); }, 10);
}

}  // namespace

namespace ui_test {

void pump() {
    MSG message;
    // A window that never validates its update region would keep the queue full for ever.
    for (int left = 2000; left > 0 && ::PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE); --left) {
        if (!AfxPumpMessage()) return;
    }
}

bool pump_until(const std::function<bool()>& done, unsigned milliseconds) {
    const ULONGLONG deadline = ::GetTickCount64() + milliseconds;
    for (;;) {
        pump();
        if (done()) return true;
        const ULONGLONG now = ::GetTickCount64();
        if (now >= deadline) return false;
        ::MsgWaitForMultipleObjects(0, nullptr, FALSE, 10, QS_ALLINPUT);
    }
}

void later(std::function<void()> action, unsigned milliseconds) {
    const UINT_PTR id = ::SetTimer(nullptr, 0, milliseconds, run_pending);
    pending()[id] = std::move(action);
}

void when_window(std::function<bool(HWND)> wanted, std::function<void(HWND)> action, unsigned milliseconds) {
    const ULONGLONG deadline = ::GetTickCount64() + milliseconds;
    later([=] { poll_window(wanted, action, deadline); });
}

void when_dialog(const wchar_t* title, std::function<void(HWND)> action) {
    const CString wanted = title;
    when_window(
        [=](HWND window) {
            wchar_t name[16] = {};
            ::GetClassNameW(window, name, 16);
            return wcscmp(name, L"#32770") == 0 && (wanted.IsEmpty() || text_of(window) == wanted);
        },
        std::move(action));
}

bool move_cursor(POINT screen) {
    // A virtual desktop loses a few moves in a hundred.
    for (int attempt = 0; attempt < 20; ++attempt) {
        POINT now;
        ::SetCursorPos(screen.x, screen.y);
        pump();
        if (::GetCursorPos(&now) && now.x == screen.x && now.y == screen.y) return true;
    }
    return false;
}

void on_message_filter(std::function<void(int, const MSG&)> seen) { application.filter = std::move(seen); }

CString text_of(HWND window) {
    wchar_t text[1024] = {};
    ::GetWindowTextW(window, text, 1024);
    return text;
}

ParentWindow::ParentWindow() {
    CreateEx(0, AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursorW(nullptr, IDC_ARROW)), L"parent",
             WS_OVERLAPPEDWINDOW | WS_VISIBLE, CRect(50, 50, 650, 450), nullptr, 0);
    SetForegroundWindow();
    SetActiveWindow();
    pump();
}

ParentWindow::~ParentWindow() { DestroyWindow(); }

CString program_path() {
    wchar_t path[MAX_PATH] = {};
    ::GetModuleFileNameW(nullptr, path, MAX_PATH);
    return path;
}

}  // namespace ui_test

namespace {

/// Fails a test in which a module of ours faulted, although the system went on.
class FaultListener : public ::testing::EmptyTestEventListener {
    void OnTestStart(const ::testing::TestInfo&) override { m_before = fault_count(); }
    void OnTestEnd(const ::testing::TestInfo&) override {
        EXPECT_EQ(fault_count(), m_before) << "a window procedure faulted";
    }
    unsigned m_before = 0;
};

}  // namespace

int main(int argc, char** argv) {
    install_crash_report();
    ::testing::InitGoogleTest(&argc, argv);
    // Before the printer, which tells of the failures that it makes.
    ::testing::TestEventListeners& listeners = ::testing::UnitTest::GetInstance()->listeners();
    ::testing::TestEventListener* printer = listeners.Release(listeners.default_result_printer());
    listeners.Append(new FaultListener);
    listeners.Append(printer);
    AfxWinInit(::GetModuleHandleW(nullptr), nullptr, const_cast<LPWSTR>(L""), SW_SHOWNORMAL);
    const int result = RUN_ALL_TESTS();
    AfxWinTerm();
    return result;
}
