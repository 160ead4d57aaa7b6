// The device context of a window's client area, for as long as the object lives. Private to the library.
//
//     const HeldWindowContext held(*this);  // the system is asked once
//     for (const CString& each : texts) widest = std::max(widest, widthOf(each));
#pragma once

#include <afxwin.h>

class WindowContext {
public:
    /// Holds none if the system has none to give: nothing is thrown, unlike by CClientDC. While a
    /// HeldWindowContext of the same window and thread lives, it is that one's.
    explicit WindowContext(CWnd& window)
        : m_window(window),
          m_isOwn(s_heldWindow != &window),
          m_dc(m_isOwn ? window.GetDC() : s_heldContext) {}
    ~WindowContext() {
        if (m_isOwn && m_dc) m_window.ReleaseDC(m_dc);
    }
    WindowContext(const WindowContext&) = delete;
    WindowContext& operator=(const WindowContext&) = delete;

    /// Null if there is none. What is selected into it is to be put back.
    CDC* dc() const { return m_dc; }

private:
    friend class HeldWindowContext;
    inline static thread_local CWnd* s_heldWindow = nullptr;
    inline static thread_local CDC* s_heldContext = nullptr;

    CWnd& m_window;
    bool m_isOwn;
    CDC* m_dc;
};

/// Keeps a window's device context for those who measure on it again and again, for no longer than no message
/// is dispatched. A second one while the first lives takes its place for as long as it lives.
class HeldWindowContext {
public:
    explicit HeldWindowContext(CWnd& window)
        : m_context(window),
          m_formerWindow(WindowContext::s_heldWindow),
          m_formerContext(WindowContext::s_heldContext) {
        WindowContext::s_heldWindow = &window;
        WindowContext::s_heldContext = m_context.dc();
    }
    ~HeldWindowContext() {
        WindowContext::s_heldWindow = m_formerWindow;
        WindowContext::s_heldContext = m_formerContext;
    }
    HeldWindowContext(const HeldWindowContext&) = delete;
    HeldWindowContext& operator=(const HeldWindowContext&) = delete;

private:
    WindowContext m_context;
    CWnd* m_formerWindow;
    CDC* m_formerContext;
};
