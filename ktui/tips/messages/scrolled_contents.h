// A client area that shows a part of contents that are taller than the screen: a scroll bar, the wheel, and
// the way to bring a place into view. Private to the library.
#pragma once

#include <afxwin.h>

class ScrolledContents {
public:
    explicit ScrolledContents(CWnd& window) : m_window(window) {}

    /// From now on the client area shows `page` of `height` pixels; a notch of the wheel and a click on an
    /// arrow move by lines of `line` pixels. The window has WS_VSCROLL and its final size by then.
    void begin(int height, int page, int line);
    bool isOn() const { return m_height > 0; }
    /// Pixels of the contents above the client area.
    int offset() const { return m_offset; }

    /// Does what a scroll bar asks for (SB_...).
    void onScroll(UINT code);
    /// Moves by a turn of the wheel (WHEEL_DELTA for each notch, positive is up).
    void onWheel(int turn);
    /// Moves as little as needed for `rect` (client coordinates) to be seen, and to the top for what the top
    /// shows whole.
    void reveal(const CRect& rect);

private:
    void scrollTo(int offset);
    void moveChildren(int down);

    CWnd& m_window;
    int m_height = 0;  ///< 0 until begin
    int m_page = 0;
    int m_line = 0;
    int m_offset = 0;
};
