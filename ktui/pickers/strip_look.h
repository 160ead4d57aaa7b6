// What the strip of pictures of a picker was loaded for.
#pragma once

#include <windows.h>

/// The side of its pictures in pixels, and its colours.
struct StripLook {
    int size = 0;
    COLORREF ink = RGB(0, 0, 0);
    COLORREF paper = RGB(255, 255, 255);
    bool operator==(const StripLook&) const = default;
};
