// How a field with a bad value looks, on light windows and on dark ones.
#pragma once

#include <afxwin.h>
#include <ktui/host/contrast.h>

/// The paper of such a field, on which the system's text can be read: a red, or that of other fields if none
/// serves.
inline COLORREF InvalidPaper() {
    constexpr COLORREF kOnLight = RGB(255, 222, 222), kOnDark = RGB(96, 0, 0);
    const COLORREF text = ::GetSysColor(COLOR_WINDOWTEXT);
    const COLORREF dark = ReadableColor(kOnDark, text, kTextContrast, ::GetSysColor(COLOR_WINDOW));
    return ReadableColor(kOnLight, text, kTextContrast, dark);
}
