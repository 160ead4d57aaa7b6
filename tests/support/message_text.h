// The words of a message, whichever surface shows it: the system's message box, its task dialog or the
// toolkit's own.
#pragma once

#include <windows.h>

#include <string>

namespace ui_test {

/// The texts of all text fields of `box`, a line each; empty if it has none with a text.
inline std::wstring message_text(HWND box) {
    std::wstring all;
    for (HWND child = ::GetWindow(box, GW_CHILD); child; child = ::GetWindow(child, GW_HWNDNEXT)) {
        wchar_t name[16] = {}, text[1024] = {};
        ::GetClassNameW(child, name, 16);
        if (::lstrcmpiW(name, L"static") != 0 || !(::GetWindowLongW(child, GWL_STYLE) & WS_VISIBLE)) continue;
        ::SendMessageW(child, WM_GETTEXT, 1024, reinterpret_cast<LPARAM>(text));
        if (*text == 0) continue;
        if (!all.empty()) all += L'\n';
        all += text;
    }
    return all;
}

}  // namespace ui_test
