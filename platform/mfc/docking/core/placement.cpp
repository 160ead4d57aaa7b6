#include "placement.h"

#include <algorithm>

namespace kmfc {

namespace {

long long shared_area(const CRect& one, const CRect& other) {
    CRect both;
    return both.IntersectRect(one, other) ? static_cast<long long>(both.Width()) * both.Height() : 0;
}

/// How far apart two intervals are; 0 when they meet.
long long gap(long long from, long long to, long long otherFrom, long long otherTo) {
    return std::max({0LL, otherFrom - to, from - otherTo});
}

long long distance(const CRect& one, const CRect& other) {
    return gap(one.left, one.right, other.left, other.right) +
           gap(one.top, one.bottom, other.top, other.bottom);
}

}  // namespace

bool is_reachable(const CRect& window, const std::vector<CRect>& areas) {
    const int needed = std::min<int>(kGrabWidth, window.Width());
    return std::any_of(areas.begin(), areas.end(), [&](const CRect& area) {
        const int shown = std::min<int>(window.right, area.right) - std::max<int>(window.left, area.left);
        return needed > 0 && shown >= needed && window.top >= area.top &&
               window.top + kGrabHeight <= area.bottom;
    });
}

CRect brought_into_view(const CRect& window, const std::vector<CRect>& areas) {
    if (areas.empty() || is_reachable(window, areas)) return window;
    const CRect& area =
        *std::min_element(areas.begin(), areas.end(), [&](const CRect& one, const CRect& other) {
            const long long a = shared_area(window, one), b = shared_area(window, other);
            return a != b ? a > b : distance(window, one) < distance(window, other);
        });
    const LONG width = std::min<LONG>(std::max<LONG>(window.Width(), 0), area.Width());
    const LONG height = std::min<LONG>(std::max<LONG>(window.Height(), 0), area.Height());
    const CPoint corner(std::clamp<LONG>(window.left, area.left, area.right - width),
                        std::clamp<LONG>(window.top, area.top, area.bottom - height));
    return CRect(corner, CSize(width, height));
}

}  // namespace kmfc
