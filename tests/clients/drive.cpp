// drive SCRIPT PROGRAM: starts a program, does what the lines of the script say, and checks what it shows.
//
//   window TITLE            waits for a visible top-level window of the program and goes on with it
//   command ID              posts a command to the window
//   click ID, type ID TEXT  a button of the window, or the text of one of its controls
//   notify CODE ID          tells the window what its control of that id would
//   text ID TEXT            waits until the control shows the text; "-" is the window itself
//   checked ID 0|1, enabled ID 0|1, count ID MESSAGE N, send ID MESSAGE WPARAM LPARAM
//   gone                    waits until the window is no more
//   ends CODE               waits for the end of the program and compares what it answers
//   again                   starts the program once more
//
// Controls are found below the window at any depth. Everything waits up to ten seconds.
#include <windows.h>

#include <cstdio>
#include <fstream>
#include <functional>
#include <sstream>
#include <string>

namespace {

constexpr ULONGLONG kPatience = 10000;  // milliseconds

HANDLE process = nullptr;
DWORD processId = 0;
HWND window = nullptr;

bool wait_for(const std::function<bool()>& holds) {
    const ULONGLONG end = ::GetTickCount64() + kPatience;
    while (!holds()) {
        if (::GetTickCount64() > end) return false;
        ::WaitForSingleObject(process, 20);
    }
    return true;
}

std::wstring text_of(HWND handle) {
    wchar_t text[1024] = {};
    ::SendMessageW(handle, WM_GETTEXT, 1024, reinterpret_cast<LPARAM>(text));
    return text;
}

HWND find_window(const std::wstring& title) {
    struct Search {
        const std::wstring& title;
        HWND found;
    } search = {title, nullptr};
    ::EnumWindows(
        [](HWND each, LPARAM parameter) -> BOOL {
            auto& wanted = *reinterpret_cast<Search*>(parameter);
            DWORD owner = 0;
            ::GetWindowThreadProcessId(each, &owner);
            if (owner != processId || !::IsWindowVisible(each) || text_of(each) != wanted.title) return TRUE;
            wanted.found = each;
            return FALSE;
        },
        reinterpret_cast<LPARAM>(&search));
    return search.found;
}

HWND control(const std::wstring& id) {
    if (id == L"-") return window;
    struct Search {
        int id;
        HWND found, hidden;
    } search = {std::stoi(id, nullptr, 0), nullptr, nullptr};
    ::EnumChildWindows(
        window,
        [](HWND each, LPARAM parameter) -> BOOL {
            auto& wanted = *reinterpret_cast<Search*>(parameter);
            if (static_cast<WORD>(::GetDlgCtrlID(each)) != wanted.id) return TRUE;
            (::IsWindowVisible(each) ? wanted.found : wanted.hidden) = each;
            return wanted.found == nullptr;
        },
        reinterpret_cast<LPARAM>(&search));
    return search.found != nullptr ? search.found : search.hidden;
}

long long number(std::wistringstream& line) {
    std::wstring word;
    line >> word;
    return std::stoll(word, nullptr, 0);
}

std::wstring rest(std::wistringstream& line) {
    std::wstring text;
    std::getline(line >> std::ws, text);
    return text;
}

std::wstring program;

bool start() {
    STARTUPINFOW how = {};
    how.cb = sizeof how;
    PROCESS_INFORMATION made = {};
    std::wstring line = program;
    if (!::CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &how, &made)) {
        std::printf("the program does not start: error %lu\n", ::GetLastError());
        return false;
    }
    process = made.hProcess;
    processId = made.dwProcessId;
    return true;
}

bool obey(std::wistringstream& line) {
    std::wstring verb, id;
    line >> verb;
    if (verb == L"again") return start();
    if (verb == L"window") {
        const std::wstring title = rest(line);
        return wait_for([&] { return (window = find_window(title)) != nullptr; });
    }
    if (verb == L"gone") return wait_for([] { return !::IsWindow(window); });
    if (verb == L"ends") {
        DWORD code = 0;
        const auto wanted = static_cast<DWORD>(number(line));
        return ::WaitForSingleObject(process, static_cast<DWORD>(kPatience)) == WAIT_OBJECT_0 &&
               ::GetExitCodeProcess(process, &code) && code == wanted;
    }
    if (verb == L"command") return ::PostMessageW(window, WM_COMMAND, static_cast<WPARAM>(number(line)), 0);
    if (verb == L"notify") {
        const long long code = number(line);
        line >> id;
        const HWND from = control(id);
        return ::PostMessageW(window, WM_COMMAND, MAKEWPARAM(::GetDlgCtrlID(from), code),
                              reinterpret_cast<LPARAM>(from));
    }
    line >> id;
    // What a user does goes to what is seen; a page that comes back sets its controls before it is shown.
    const bool is_deed = verb == L"click" || verb == L"type";
    if (!wait_for([&] {
            const HWND found = control(id);
            return found != nullptr && (!is_deed || (::IsWindowVisible(found) && ::IsWindowEnabled(found)));
        }))
        return false;
    if (verb == L"click") return ::PostMessageW(control(id), BM_CLICK, 0, 0);
    if (verb == L"type")
        return ::SendMessageW(control(id), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(rest(line).c_str())) != 0;
    if (verb == L"text") {
        const std::wstring wanted = rest(line);
        if (wait_for([&] { return text_of(control(id)) == wanted; })) return true;
        std::printf("shows \"%ls\"\n", text_of(control(id)).c_str());
        return false;
    }
    if (verb == L"send") {
        const auto message = static_cast<UINT>(number(line));
        const auto first = static_cast<WPARAM>(number(line));
        ::SendMessageW(control(id), message, first, static_cast<LPARAM>(number(line)));
        return true;
    }
    const auto question = verb == L"count" ? static_cast<UINT>(number(line)) : 0;
    const long long wanted = number(line);
    if (verb == L"count")
        return wait_for([&] { return ::SendMessageW(control(id), question, 0, 0) == wanted; });
    if (verb == L"checked")
        return wait_for([&] { return ::SendMessageW(control(id), BM_GETCHECK, 0, 0) == wanted; });
    if (verb == L"enabled")
        return wait_for([&] { return (::IsWindowEnabled(control(id)) != FALSE) == (wanted != 0); });
    return false;
}

}  // namespace

int wmain(int count, wchar_t** arguments) {
    if (count < 3) return 2;
    std::ifstream script(std::string(arguments[1], arguments[1] + wcslen(arguments[1])));
    program = arguments[2];
    if (!script || !start()) {
        std::printf("no script, or the program does not start\n");
        return 2;
    }
    std::string line;
    int place = 0, lines = 0;
    while (std::getline(script, line)) {
        ++place;
        if (line.empty() || line[0] == '#') continue;
        ++lines;
        std::wistringstream words(std::wstring(line.begin(), line.end()));
        if (obey(words)) continue;
        std::printf("line %d failed: %s\n", place, line.c_str());
        ::TerminateProcess(process, 3);
        return 1;
    }
    ::TerminateProcess(process, 3);
    return lines > 0 ? 0 : 2;
}
