#include "program_driver.h"

#include <cstdio>
#include <cstdlib>
#include <fstream>

#include "message_text.h"

namespace {

constexpr unsigned kPoll = 15;  // milliseconds
constexpr unsigned kUsualWait = 8000;

void sendKey(WORD virtualKey, bool up) {
    INPUT input = {};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = virtualKey;
    input.ki.wScan = static_cast<WORD>(::MapVirtualKeyW(virtualKey, MAPVK_VK_TO_VSC));
    input.ki.dwFlags = up ? KEYEVENTF_KEYUP : 0;
    switch (virtualKey) {
        case VK_UP:
        case VK_DOWN:
        case VK_LEFT:
        case VK_RIGHT:
        case VK_HOME:
        case VK_END:
        case VK_DELETE: input.ki.dwFlags |= KEYEVENTF_EXTENDEDKEY; break;
        default: break;
    }
    ::SendInput(1, &input, sizeof(input));
}

/// Sends a mouse event at a screen position, so that a lost cursor move cannot put it elsewhere.
void sendMouse(POINT screen, DWORD flags) {
    INPUT input = {};
    input.type = INPUT_MOUSE;
    input.mi.dx = ::MulDiv(screen.x, 65536, ::GetSystemMetrics(SM_CXSCREEN)) + 1;
    input.mi.dy = ::MulDiv(screen.y, 65536, ::GetSystemMetrics(SM_CYSCREEN)) + 1;
    input.mi.dwFlags = flags | MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE;
    ::SendInput(1, &input, sizeof(input));
}

/// Waits until the window's thread has taken its input so far. A message that is sent overtakes keys and
/// clicks that are still waiting, a paint message comes behind them; so a pixel of the window with the focus
/// is made invalid.
void settle(HWND window) {
    ::Sleep(2 * kPoll);
    DWORD_PTR result = 0;
    ::SendMessageTimeoutW(window, WM_NULL, 0, 0, SMTO_ABORTIFHUNG, 3000, &result);
    const DWORD thread = ::GetWindowThreadProcessId(window, nullptr);
    if (thread == ::GetCurrentThreadId()) return;
    GUITHREADINFO info = {};
    info.cbSize = sizeof(info);
    ::GetGUIThreadInfo(thread, &info);
    const HWND painted = info.hwndFocus != nullptr ? info.hwndFocus : info.hwndActive;
    const RECT pixel = {0, 0, 1, 1};
    if (painted == nullptr || !::InvalidateRect(painted, &pixel, FALSE)) return;
    journey::waitUntil([=] { return !::GetUpdateRect(painted, nullptr, FALSE); }, 3000);
}

}  // namespace

namespace journey {

HWND focusOf(HWND window) {
    GUITHREADINFO info = {};
    info.cbSize = sizeof(info);
    ::GetGUIThreadInfo(::GetWindowThreadProcessId(window, nullptr), &info);
    return info.hwndFocus;
}

bool waitUntil(const std::function<bool()>& done, unsigned milliseconds) {
    const ULONGLONG deadline = ::GetTickCount64() + milliseconds;
    while (!done()) {
        if (::GetTickCount64() > deadline) return false;
        ::Sleep(kPoll);
    }
    return true;
}

Program::Program(std::wstring command, const std::function<bool(HWND)>& isFrame) {
    STARTUPINFOW startup = {};
    startup.cb = sizeof(startup);
    if (!::CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                          &m_process))
        return;
    waitUntil([&] { return (m_frame = findWindow(isFrame)) != nullptr; });
    if (m_frame != nullptr) activate(m_frame);
}

Program::~Program() {
    if (m_process.hProcess == nullptr) return;
    ::TerminateProcess(m_process.hProcess, 0);
    ::WaitForSingleObject(m_process.hProcess, 5000);
    ::CloseHandle(m_process.hThread);
    ::CloseHandle(m_process.hProcess);
}

bool Program::isRunning() const {
    return m_process.hProcess != nullptr && ::WaitForSingleObject(m_process.hProcess, 0) == WAIT_TIMEOUT;
}

DWORD Program::exitCode() const {
    waitUntil([this] { return !isRunning(); });
    DWORD code = STILL_ACTIVE;
    ::GetExitCodeProcess(m_process.hProcess, &code);
    return code;
}

HWND Program::findWindow(const std::function<bool(HWND)>& wanted) const {
    struct Search {
        DWORD process;
        const std::function<bool(HWND)>& wanted;
        HWND found;
    } search = {m_process.dwProcessId, wanted, nullptr};
    ::EnumWindows(
        [](HWND window, LPARAM parameter) -> BOOL {
            auto& s = *reinterpret_cast<Search*>(parameter);
            DWORD process = 0;
            ::GetWindowThreadProcessId(window, &process);
            if (process != s.process || !::IsWindowVisible(window) || !s.wanted(window)) return TRUE;
            s.found = window;
            return FALSE;
        },
        reinterpret_cast<LPARAM>(&search));
    return search.found;
}

HWND Program::waitForDialog(const std::wstring& title, unsigned milliseconds) {
    HWND found = nullptr;
    waitUntil(
        [&] {
            found = findWindow([&](HWND window) {
                wchar_t name[16] = {};
                ::GetClassNameW(window, name, 16);
                return std::wstring(name) == L"#32770" && textOf(window).rfind(title, 0) == 0;
            });
            return found != nullptr;
        },
        milliseconds);
    if (found == nullptr && milliseconds >= kUsualWait) tellState();
    if (found != nullptr) settle(found);
    return found;
}

HWND Program::waitForDialogOf(HWND owner) {
    HWND found = nullptr;
    waitUntil([&] {
        found = findWindow([&](HWND window) {
            wchar_t name[16] = {};
            ::GetClassNameW(window, name, 16);
            return std::wstring(name) == L"#32770" && ::GetWindow(window, GW_OWNER) == owner;
        });
        return found != nullptr;
    });
    if (found == nullptr) tellState();
    if (found != nullptr) settle(found);
    return found;
}

std::wstring Program::dismissMessage(HWND owner) {
    HWND box = waitForDialogOf(owner);
    const std::wstring text = box != nullptr ? ui_test::message_text(box) : L"";
    if (text.empty()) return L"";
    key(VK_RETURN);
    waitUntilGone(box);
    return text;
}

bool Program::waitUntilGone(HWND window) {
    const bool gone = waitUntil([=] { return !::IsWindow(window) || !::IsWindowVisible(window); });
    // What it belonged to takes the keys a moment later.
    waitUntil([this] { return !isRunning() || hasKeys(); }, 1000);
    settle(m_frame);
    return gone;
}

void Program::tellState() const {
    const auto told = [](HWND window) {
        wchar_t name[64] = {};
        ::GetClassNameW(window, name, 64);
        wchar_t text[128] = {};
        ::GetWindowTextW(window, text, 128);
        return std::wstring(name) + L" \"" + text + L"\"";
    };
    std::wprintf(L"no dialog came; running: %d, frame: %ls, enabled: %d, foreground: %ls, focus: %ls\n",
                 isRunning(), told(m_frame).c_str(), ::IsWindowEnabled(m_frame),
                 told(::GetForegroundWindow()).c_str(), told(focusOf(m_frame)).c_str());
    findWindow([&](HWND window) {
        std::wprintf(L"  shown: %ls\n", told(window).c_str());
        return false;
    });
    std::fflush(stdout);
}

bool Program::hasKeys() const {
    GUITHREADINFO info = {};
    info.cbSize = sizeof(info);
    ::GetGUIThreadInfo(::GetWindowThreadProcessId(m_frame, nullptr), &info);
    return info.hwndActive != nullptr && info.hwndFocus != nullptr && ::IsWindowEnabled(info.hwndActive) &&
           ::GetForegroundWindow() == info.hwndActive;
}

void Program::activate(HWND window) {
    DWORD process = 0;
    ::GetWindowThreadProcessId(window, &process);
    const bool isOwn = process == m_process.dwProcessId;
    ::SetForegroundWindow(window);
    // The focus comes a moment after the foreground; without it keys are system keys, which accelerators
    // don't know.
    waitUntil([=, this] { return ::GetForegroundWindow() == window && (!isOwn || hasKeys()); }, 2000);
    settle(window);
}

void Program::type(const std::wstring& text) {
    for (const wchar_t character : text) {
        INPUT inputs[2] = {};
        for (int i = 0; i < 2; ++i) {
            inputs[i].type = INPUT_KEYBOARD;
            inputs[i].ki.wScan = character;
            inputs[i].ki.dwFlags = KEYEVENTF_UNICODE | (i == 1 ? KEYEVENTF_KEYUP : 0);
        }
        ::SendInput(2, inputs, sizeof(INPUT));
    }
    settle(m_frame);
}

void Program::key(WORD virtualKey, bool control, bool alt, bool shift) {
    const WORD modifiers[] = {VK_CONTROL, VK_MENU, VK_SHIFT};
    const bool held[] = {control, alt, shift};
    for (int i = 0; i < 3; ++i)
        if (held[i]) sendKey(modifiers[i], false);
    sendKey(virtualKey, false);
    sendKey(virtualKey, true);
    for (int i = 2; i >= 0; --i)
        if (held[i]) sendKey(modifiers[i], true);
    settle(m_frame);
}

void Program::hover(HWND window, POINT client) {
    ::ClientToScreen(window, &client);
    // A virtual desktop loses a few moves in a hundred.
    for (int attempt = 0; attempt < 20; ++attempt) {
        POINT now;
        ::SetCursorPos(client.x, client.y);
        sendMouse(client, 0);
        ::Sleep(kPoll);
        if (::GetCursorPos(&now) && now.x == client.x && now.y == client.y) break;
    }
    settle(window);
}

void Program::click(HWND window, POINT client) {
    press(window, client);
    ::ClientToScreen(window, &client);
    sendMouse(client, MOUSEEVENTF_LEFTUP);
    settle(window);
}

void Program::click(HWND window) {
    RECT client = {};
    ::GetClientRect(window, &client);
    click(window, {client.right / 2, client.bottom / 2});
}

void Program::middleClick(HWND window, POINT client) {
    hover(window, client);
    ::ClientToScreen(window, &client);
    sendMouse(client, MOUSEEVENTF_MIDDLEDOWN);
    sendMouse(client, MOUSEEVENTF_MIDDLEUP);
    settle(m_frame);
}

void Program::press(HWND window, POINT client) {
    // Two clicks in quick succession would be a double click.
    const ULONGLONG quiet = m_lastClick + ::GetDoubleClickTime() + kPoll, now = ::GetTickCount64();
    if (now < quiet) ::Sleep(static_cast<DWORD>(quiet - now));
    hover(window, client);
    ::ClientToScreen(window, &client);
    sendMouse(client, MOUSEEVENTF_LEFTDOWN);
    m_lastClick = ::GetTickCount64();
    settle(window);
}

void Program::release() {
    POINT at = {};
    ::GetCursorPos(&at);
    sendMouse(at, MOUSEEVENTF_LEFTUP);
    settle(m_frame);
}

void Program::drag(HWND window, POINT from, POINT to, bool shift) {
    press(window, from);
    hover(window, to);
    // Moves of the pointer bring the keyboard's own state back, so the key comes last.
    if (shift) sendKey(VK_SHIFT, false);
    release();
    if (shift) sendKey(VK_SHIFT, true);
    settle(window);
}

void Program::replaceText(HWND control, const std::wstring& text) {
    for (int attempt = 0; attempt < 5 && focusOf(control) != control; ++attempt) click(control);
    // Not every edit control selects all by key; the ends of the line serve everywhere.
    key(VK_HOME);
    key(VK_END, false, false, true);
    key(VK_DELETE);
    type(text);
}

void Program::drop(HWND combo) {
    const auto isDropped = [=] { return ::SendMessageW(combo, CB_GETDROPPEDSTATE, 0, 0) != 0; };
    click(combo);
    // A click that was lost is made good by the key.
    if (!waitUntil(isDropped, 1500)) key(VK_F4);
    waitUntil(isDropped, 2000);
}

void Program::pick(HWND combo, int index) {
    drop(combo);
    key(VK_HOME);
    for (int i = 0; i < index; ++i) key(VK_DOWN);
    key(VK_RETURN);
}

void Program::pickByKeys(HWND combo, const std::wstring& text) {
    key(VK_F4);
    waitUntil([=] { return ::SendMessageW(combo, CB_GETDROPPEDSTATE, 0, 0) != 0; }, 2000);
    key(VK_HOME);
    const int index = entryOf(combo, text);
    for (int i = 0; i < index; ++i) key(VK_DOWN);
    key(VK_RETURN);
}

void Program::pickByMouse(HWND combo, const std::wstring& text) {
    drop(combo);
    HWND list = findWindow([](HWND window) {
        wchar_t name[16] = {};
        ::GetClassNameW(window, name, 16);
        return std::wstring(name) == L"ComboLBox";
    });
    const auto index = static_cast<WPARAM>(entryOf(combo, text));
    ::SendMessageW(list, LB_SETTOPINDEX, index, 0);
    RECT row = {};
    ::SendMessageW(list, LB_GETITEMRECT, index, reinterpret_cast<LPARAM>(&row));
    click(list, {(row.left + row.right) / 2, (row.top + row.bottom) / 2});
}

void Program::pickLast(HWND combo) {
    drop(combo);
    // Without a current entry the first key of any kind goes to the first one.
    key(VK_HOME);
    key(VK_END);
    key(VK_RETURN);
}

void Program::place(HWND window, RECT screen) {
    ::SetWindowPos(window, nullptr, screen.left, screen.top, screen.right - screen.left,
                   screen.bottom - screen.top, SWP_NOZORDER);
    settle(window);
}

std::wstring textOf(HWND window) {
    wchar_t text[1024] = {};
    ::SendMessageW(window, WM_GETTEXT, 1024, reinterpret_cast<LPARAM>(text));
    return text;
}

HWND item(HWND dialog, int id) { return ::GetDlgItem(dialog, id); }

RECT rectOf(HWND window) {
    RECT rect = {};
    ::GetWindowRect(window, &rect);
    return rect;
}

std::wstring currentEntry(HWND combo) {
    const LRESULT index = ::SendMessageW(combo, CB_GETCURSEL, 0, 0);
    if (index < 0) return L"";
    wchar_t text[512] = {};
    ::SendMessageW(combo, CB_GETLBTEXT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(text));
    return text;
}

int entryCount(HWND combo) { return static_cast<int>(::SendMessageW(combo, CB_GETCOUNT, 0, 0)); }

int entryOf(HWND combo, const std::wstring& text) {
    return static_cast<int>(::SendMessageW(combo, CB_FINDSTRINGEXACT, static_cast<WPARAM>(-1),
                                           reinterpret_cast<LPARAM>(text.c_str())));
}

void picture(const std::string& name) {
    const char* folder = std::getenv("KTUI_PICTURES");
    if (folder == nullptr) return;
    ::Sleep(150);  // lets the last paint reach the screen
    const std::string request = "Z:" + std::string(folder) + "/" + name + ".request";
    std::ofstream(request).put('\n');
    waitUntil([&] { return !std::ifstream(request).good(); }, 10000);
}

std::wstring programFolder() {
    wchar_t path[MAX_PATH] = {};
    ::GetModuleFileNameW(nullptr, path, MAX_PATH);
    const std::wstring full = path;
    return full.substr(0, full.rfind(L'\\') + 1);
}

}  // namespace journey
