// The message boxes that come up while something runs: each is read and closed at once.
#pragma once

#include <vector>

#include "message_text.h"
#include "test_host.h"

namespace ui_test {

inline std::vector<CString>& textsOfBoxes() {
    static std::vector<CString> texts;
    return texts;
}

inline LRESULT CALLBACK closeBoxes(int code, WPARAM wParam, LPARAM lParam) {
    const HWND window = reinterpret_cast<HWND>(wParam);
    wchar_t name[16] = {};
    if (code == HCBT_ACTIVATE && ::GetClassNameW(window, name, 16) && wcscmp(name, L"#32770") == 0) {
        textsOfBoxes().push_back(message_text(window).c_str());
        ::PostMessageW(window, WM_COMMAND, IDOK, 0);
    }
    return ::CallNextHookEx(nullptr, code, wParam, lParam);
}

/// Texts of the message boxes that `action` opens.
template <class Action>
std::vector<CString> messagesShown(Action action) {
    TestHost host;
    textsOfBoxes().clear();
    const HHOOK hook = ::SetWindowsHookExW(WH_CBT, closeBoxes, nullptr, ::GetCurrentThreadId());
    action();
    ::UnhookWindowsHookEx(hook);
    return textsOfBoxes();
}

}  // namespace ui_test
