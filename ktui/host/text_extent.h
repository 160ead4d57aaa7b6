// Measures a text on the device context of a control. Private to the library.
#pragma once

#include <afxwin.h>

#include <optional>

#include <ktui/host/control_font.h>
#include <ktui/host/window_context.h>

/// How a text is measured.
enum class TextForm {
    kLine,        ///< one line in the control's font
    kDrawn,       ///< as DrawText lays it out in the control's font, tabs and line breaks included
    kSystemLine,  ///< one line in the font that the device context comes with
};

/// Width and height in pixels of `text` on `dc`.
inline CSize MeasureText(CDC& dc, const wchar_t* text, TextForm form) {
    if (form == TextForm::kDrawn) {
        CRect extent(0, 0, 0, 0);
        dc.DrawText(text, -1, &extent, DT_CALCRECT);
        return extent.Size();
    }
    SIZE extent{};
    ::GetTextExtentPoint32W(dc.m_hDC, text, lstrlenW(text), &extent);
    return extent;
}

/// Width and height in pixels of `text` as `control` shows it; 0 by 0 without a device context. Answers
/// whether there was one.
inline bool MeasureControlText(CWnd& control, const wchar_t* text, int& cx, int& cy,
                               TextForm form = TextForm::kLine) {
    cx = cy = 0;
    const WindowContext context(control);
    if (!context.dc()) return false;
    std::optional<ControlFont> font;
    if (form != TextForm::kSystemLine) font.emplace(*context.dc(), control);
    const CSize extent = MeasureText(*context.dc(), text, form);
    cx = static_cast<int>(extent.cx);
    cy = static_cast<int>(extent.cy);
    return true;
}
