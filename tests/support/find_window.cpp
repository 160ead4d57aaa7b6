// find_window TITLE: ends with 0 if a visible top-level window of that title is there, otherwise with 1.
#include <windows.h>

int wmain(int count, wchar_t** arguments) {
    if (count < 2) return 1;
    const HWND window = ::FindWindowW(nullptr, arguments[1]);
    return window != nullptr && ::IsWindowVisible(window) ? 0 : 1;
}
