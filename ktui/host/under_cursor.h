// Whether the mouse is over a window. Private to the library.
#pragma once

#include <windows.h>

/// True if the window at the cursor is `window` itself, not one of its children.
inline bool IsUnderCursor(HWND window) {
    POINT cursor{};
    return ::GetCursorPos(&cursor) && ::WindowFromPoint(cursor) == window;
}
