#include <windows.h>

#include "ktut.h"

bool ktutGetWorkArea(RECT* area, HWND window) {
    MONITORINFO info = {};
    info.cbSize = sizeof info;
    const POINT origin = {0, 0};
    const HMONITOR monitor = window ? MonitorFromWindow(window, MONITOR_DEFAULTTONEAREST)
                                    : MonitorFromPoint(origin, MONITOR_DEFAULTTOPRIMARY);
    if (!area || !GetMonitorInfoW(monitor, &info)) return false;
    *area = info.rcWork;
    return true;
}
