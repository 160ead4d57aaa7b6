// The device context of a window's client area, for as long as the object lives. Private to the library.
#pragma once

#include <afxwin.h>

class WindowContext {
public:
    /// Holds none if the system has none to give: nothing is thrown, unlike by CClientDC.
    explicit WindowContext(CWnd& window) : m_window(window), m_dc(window.GetDC()) {}
    ~WindowContext() {
        if (m_dc) m_window.ReleaseDC(m_dc);
    }
    WindowContext(const WindowContext&) = delete;
    WindowContext& operator=(const WindowContext&) = delete;

    /// Null if there is none.
    CDC* dc() const { return m_dc; }

private:
    CWnd& m_window;
    CDC* m_dc;
};
