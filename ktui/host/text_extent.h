// Measures a text in the font of a control. Private to the library.
#pragma once

#include <afxwin.h>

#include <ktui/host/control_font.h>
#include <ktui/host/window_context.h>

/// Width and height in pixels of `text` in `control`'s font; 0 by 0 without a device context. Answers whether
/// there was one.
inline bool MeasureControlText(CWnd& control, const wchar_t* text, int& cx, int& cy) {
    cx = cy = 0;
    const WindowContext context(control);
    if (!context.dc()) return false;
    SIZE extent{};
    const ControlFont font(*context.dc(), control);
    ::GetTextExtentPoint32W(context.dc()->m_hDC, text, lstrlenW(text), &extent);
    cx = static_cast<int>(extent.cx);
    cy = static_cast<int>(extent.cy);
    return true;
}
