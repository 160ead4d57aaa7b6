#include "work_areas.h"

#include <windows.h>

namespace kmfc {

std::vector<CRect> work_areas() {
    std::vector<CRect> areas;
    ::EnumDisplayMonitors(
        nullptr, nullptr,
        [](HMONITOR monitor, HDC, LPRECT, LPARAM parameter) -> BOOL {
            auto& found = *reinterpret_cast<std::vector<CRect>*>(parameter);
            MONITORINFO info = {};
            info.cbSize = sizeof(info);
            if (!::GetMonitorInfoW(monitor, &info)) return TRUE;
            const bool primary = (info.dwFlags & MONITORINFOF_PRIMARY) != 0;
            found.insert(primary ? found.begin() : found.end(), CRect(info.rcWork));
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&areas));
    return areas;
}

}  // namespace kmfc
