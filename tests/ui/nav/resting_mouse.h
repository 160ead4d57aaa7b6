// The real mouse at rest over a control, until what shows then is there.
#pragma once

#include <commctrl.h>

#include <functional>
#include <string>

#include "ui_test.h"

/// Rests the mouse at a screen position until `done`, and puts it there again where a virtual desktop loses
/// it; false after some seconds.
inline bool RestMouse(CPoint screen, const std::function<bool()>& done) {
    if (!ui_test::move_cursor(screen)) return false;
    return ui_test::pump_until(
        [&] {
            CPoint now;
            if (::GetCursorPos(&now) && now != screen) ui_test::move_cursor(screen);
            return done();
        },
        5000);
}

/// The text of the tool tip that this thread shows; empty for none.
inline std::wstring ShownTip() {
    std::wstring shown;
    ::EnumThreadWindows(
        ::GetCurrentThreadId(),
        [](HWND window, LPARAM parameter) -> BOOL {
            wchar_t name[40] = {}, text[1024] = {};
            ::GetClassNameW(window, name, 40);
            if (::lstrcmpW(name, TOOLTIPS_CLASSW) != 0 || !::IsWindowVisible(window)) return TRUE;
            ::GetWindowTextW(window, text, 1024);
            *reinterpret_cast<std::wstring*>(parameter) = text;
            return FALSE;
        },
        reinterpret_cast<LPARAM>(&shown));
    return shown;
}
