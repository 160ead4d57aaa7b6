// The next menu that opens: what it says and where it stands. It is closed once it was seen.
#pragma once

#include <afxwin.h>

#include "ui_test.h"

namespace ui_test {

struct OpenedMenu {
    CString first;  ///< text of its first item
    CRect place{0, 0, 0, 0};
};

/// Notes the next menu in `seen`, which has to live until it opened.
inline void read_next_menu(OpenedMenu& seen) {
    when_window(
        [](HWND window) {
            wchar_t name[16] = {};
            ::GetClassNameW(window, name, 16);
            return wcscmp(name, L"#32768") == 0;
        },
        [&seen](HWND window) {
            constexpr UINT kGetMenu = 0x01E1;  // MN_GETHMENU
            const auto menu = reinterpret_cast<HMENU>(::SendMessageW(window, kGetMenu, 0, 0));
            ::GetMenuStringW(menu, 0, seen.first.GetBufferSetLength(40), 40, MF_BYPOSITION);
            seen.first.ReleaseBuffer();
            ::GetWindowRect(window, &seen.place);
            ::EndMenu();
        });
}

}  // namespace ui_test
