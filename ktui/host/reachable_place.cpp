#include <ktui/host/reachable_place.h>

#include <algorithm>

namespace {

long long sharedArea(const CRect& one, const CRect& other) {
    CRect both;
    return both.IntersectRect(&one, &other) ? static_cast<long long>(both.Width()) * both.Height() : 0;
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

CPoint CornerInside(const RECT& place, const RECT& area) {
    const LONG width = place.right - place.left, height = place.bottom - place.top;
    return CPoint(static_cast<int>(std::max(area.left, std::min(place.left, area.right - width))),
                  static_cast<int>(std::max(area.top, std::min(place.top, area.bottom - height))));
}

bool CanBeGrabbed(const CRect& caption, const std::vector<CRect>& areas) {
    const int needed = std::min<int>(kGrabWidth, caption.Width());
    return needed > 0 && caption.Height() > 0 && std::ranges::any_of(areas, [&](const CRect& area) {
               const int shown =
                   std::min<int>(caption.right, area.right) - std::max<int>(caption.left, area.left);
               return shown >= needed && caption.top >= area.top && caption.bottom <= area.bottom;
           });
}

const CRect* NearestArea(const CRect& place, const std::vector<CRect>& areas) {
    const auto nearest = std::ranges::min_element(areas, [&](const CRect& one, const CRect& other) {
        const long long shared = sharedArea(place, one), sharedOther = sharedArea(place, other);
        return shared != sharedOther ? shared > sharedOther : distance(place, one) < distance(place, other);
    });
    return nearest != areas.end() ? &*nearest : nullptr;
}
