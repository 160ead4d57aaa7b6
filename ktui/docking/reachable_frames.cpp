#include <ktui/docking/reachable_frames.h>

#include <ktui/host/reachable_place.h>

namespace {

std::vector<CRect> workAreas() {
    std::vector<CRect> areas;
    ::EnumDisplayMonitors(
        nullptr, nullptr,
        [](HMONITOR monitor, HDC, LPRECT, LPARAM list) -> BOOL {
            MONITORINFO info = {};
            info.cbSize = sizeof info;
            if (::GetMonitorInfoW(monitor, &info))
                reinterpret_cast<std::vector<CRect>*>(list)->emplace_back(info.rcWork);
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&areas));
    return areas;
}

/// Screen coordinates.
CRect captionOf(CPaneFrameWnd& frame) {
    CRect window, caption;
    frame.GetWindowRect(&window);
    frame.GetCaptionRect(caption);
    caption.OffsetRect(window.TopLeft());
    return caption;
}

CRect captionOf(CFrameWnd& frame) {
    CRect window;
    frame.GetWindowRect(&window);
    const int edge = ::GetSystemMetrics(SM_CYSIZEFRAME);
    return CRect(window.left + edge, window.top + edge, window.right - edge,
                 window.top + edge + ::GetSystemMetrics(SM_CYCAPTION));
}

void bringBack(CWnd& window, const CRect& caption, const std::vector<CRect>& areas) {
    CRect place;
    window.GetWindowRect(&place);
    const CRect* area = NearestArea(place, areas);
    if (area == nullptr || CanBeGrabbed(caption, areas)) return;
    const CPoint corner = CornerInside(place, *area);
    window.SetWindowPos(nullptr, corner.x, corner.y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

}  // namespace

void KeepReachable(CFrameWnd& frame, CDockingManager& manager) {
    const std::vector<CRect> areas = workAreas();
    if (::GetCapture() == nullptr && frame.IsWindowVisible() && !frame.IsZoomed() && !frame.IsIconic())
        bringBack(frame, captionOf(frame), areas);
    const CObList& frames = manager.GetMiniFrames();
    for (POSITION at = frames.GetHeadPosition(); at != nullptr;) {
        auto* floating = static_cast<CPaneFrameWnd*>(frames.GetNext(at));
        if (floating->GetSafeHwnd() != nullptr && !floating->IsCaptured() &&
            ::GetCapture() != floating->m_hWnd)
            bringBack(*floating, captionOf(*floating), areas);
    }
}
