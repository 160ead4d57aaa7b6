// Selects a control's own font into a device context for as long as the object lives. Private to the library.
#pragma once

#include <afxwin.h>

class ControlFont {
public:
    /// Selects the font that `control` answers to WM_GETFONT; a control without one leaves `dc` as it is.
    ControlFont(CDC& dc, const CWnd& control) : m_dc(dc) {
        if (CFont* font = control.GetFont()) m_former = m_dc.SelectObject(font);
    }
    ~ControlFont() {
        if (m_former) m_dc.SelectObject(m_former);
    }
    ControlFont(const ControlFont&) = delete;
    ControlFont& operator=(const ControlFont&) = delete;

private:
    CDC& m_dc;
    CFont* m_former = nullptr;
};
