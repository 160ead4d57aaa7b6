#include <ktui/dialogs/bring_into_view.h>

#include <algorithm>

BOOL KtUiBringIntoView(CWnd& window) {
    CRect place;
    window.GetWindowRect(&place);
    MONITORINFO monitor = {};
    monitor.cbSize = sizeof monitor;
    if (!::GetMonitorInfoW(::MonitorFromWindow(window.m_hWnd, MONITOR_DEFAULTTONEAREST), &monitor))
        return FALSE;
    const RECT& area = monitor.rcWork;
    const LONG left = std::max(area.left, std::min(place.left, area.right - place.Width()));
    const LONG top = std::max(area.top, std::min(place.top, area.bottom - place.Height()));
    if (left == place.left && top == place.top) return FALSE;
    return window.SetWindowPos(nullptr, static_cast<int>(left), static_cast<int>(top), 0, 0,
                               SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}
