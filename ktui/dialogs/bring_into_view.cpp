#include <ktui/dialogs/bring_into_view.h>

#include <ktui/host/reachable_place.h>

BOOL KtUiBringIntoView(CWnd& window) {
    CRect place;
    window.GetWindowRect(&place);
    MONITORINFO monitor = {};
    monitor.cbSize = sizeof monitor;
    if (!::GetMonitorInfoW(::MonitorFromWindow(window.m_hWnd, MONITOR_DEFAULTTONEAREST), &monitor))
        return FALSE;
    const CPoint corner = CornerInside(place, monitor.rcWork);
    if (corner == place.TopLeft()) return FALSE;
    return window.SetWindowPos(nullptr, static_cast<int>(corner.x), static_cast<int>(corner.y), 0, 0,
                               SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}
