#include <ktui/tips/messages/scrolled_contents.h>

#include <algorithm>

namespace {

constexpr int kLinesPerNotch = 3;

}  // namespace

void ScrolledContents::begin(int height, int page, int line) {
    m_height = height;
    m_page = page;
    m_line = line;
    SCROLLINFO info = {
        sizeof info, SIF_RANGE | SIF_PAGE | SIF_POS, 0, height - 1, static_cast<UINT>(page), 0, 0};
    m_window.SetScrollInfo(SB_VERT, &info);
}

void ScrolledContents::onScroll(UINT code) {
    SCROLLINFO info = {sizeof info, SIF_TRACKPOS, 0, 0, 0, 0, 0};
    switch (code) {
        case SB_LINEUP: scrollTo(m_offset - m_line); break;
        case SB_LINEDOWN: scrollTo(m_offset + m_line); break;
        case SB_PAGEUP: scrollTo(m_offset - m_page); break;
        case SB_PAGEDOWN: scrollTo(m_offset + m_page); break;
        case SB_TOP: scrollTo(0); break;
        case SB_BOTTOM: scrollTo(m_height); break;
        case SB_THUMBTRACK:
        case SB_THUMBPOSITION:
            ::GetScrollInfo(m_window.m_hWnd, SB_VERT, &info);
            scrollTo(info.nTrackPos);
            break;
        default: break;
    }
}

void ScrolledContents::onWheel(int turn) {
    scrollTo(m_offset - ::MulDiv(turn, kLinesPerNotch * m_line, WHEEL_DELTA));
}

void ScrolledContents::reveal(const CRect& rect) {
    const int top = static_cast<int>(rect.top) + m_offset, bottom = static_cast<int>(rect.bottom) + m_offset;
    if (bottom <= m_page)
        scrollTo(0);
    else if (bottom > m_offset + m_page)
        scrollTo(bottom - m_page);
    else if (top < m_offset)
        scrollTo(top);
}

void ScrolledContents::scrollTo(int offset) {
    if (!isOn()) return;
    offset = std::clamp(offset, 0, m_height - m_page);
    if (offset == m_offset) return;
    const int down = m_offset - offset;
    m_offset = offset;
    SCROLLINFO info = {sizeof info, SIF_POS, 0, 0, 0, offset, 0};
    m_window.SetScrollInfo(SB_VERT, &info);
    moveChildren(down);
    m_window.Invalidate();
    m_window.UpdateWindow();
}

/// ScrollWindow would leave the children of a window that is not shown yet where they are.
void ScrolledContents::moveChildren(int down) {
    for (CWnd* child = m_window.GetWindow(GW_CHILD); child != nullptr;
         child = child->GetWindow(GW_HWNDNEXT)) {
        CRect rect;
        child->GetWindowRect(&rect);
        m_window.ScreenToClient(&rect);
        child->SetWindowPos(nullptr, static_cast<int>(rect.left), static_cast<int>(rect.top) + down, 0, 0,
                            SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    }
}
