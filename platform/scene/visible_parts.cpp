#include "visible_parts.h"

#include <algorithm>
#include <cmath>

namespace {

/// The parameters, 0 to 1, between which a segment lies in a rectangle.
struct SeenRange {
    double begin = 0, end = 1;
    bool isEmpty() const { return begin > end; }
    /// Cuts the range down to where a coordinate is between `low` and `high`.
    void cut(double start, double change, double low, double high) {
        if (change == 0) {
            if (start < low || start > high) end = -1;
            return;
        }
        double enters = (low - start) / change, leaves = (high - start) / change;
        if (enters > leaves) std::swap(enters, leaves);
        begin = std::max(begin, enters);
        end = std::min(end, leaves);
    }
};

SeenRange seenRange(const OdGePoint2d& from, const OdGePoint2d& to, const SceneExtents& area) {
    SeenRange range;
    range.cut(from.x, to.x - from.x, area.low.x, area.high.x);
    range.cut(from.y, to.y - from.y, area.low.y, area.high.y);
    return range;
}

OdGePoint2d between(const OdGePoint2d& from, const OdGePoint2d& to, double at) {
    if (at <= 0) return from;
    if (at >= 1) return to;
    return {from.x + (to.x - from.x) * at, from.y + (to.y - from.y) * at};
}

/// The boundary with what lies beyond one side laid onto it. `inside` says of a point how far it is inside.
template <class Inside>
std::vector<OdGePoint2d> cutAtSide(const std::vector<OdGePoint2d>& points, Inside inside) {
    std::vector<OdGePoint2d> kept;
    kept.reserve(points.size() + 4);
    for (std::size_t i = 0, last = points.size() - 1; i < points.size(); last = i++) {
        const double before = inside(points[last]), here = inside(points[i]);
        if ((before < 0) != (here < 0))
            kept.push_back(between(points[last], points[i], before / (before - here)));
        if (here >= 0) kept.push_back(points[i]);
    }
    return kept;
}

}  // namespace

std::vector<VisibleLine> VisibleLines(std::span<const OdGePoint2d> points, const SceneExtents& area) {
    std::vector<VisibleLine> pieces;
    double length = 0;
    bool goesOn = false;  // the last piece ends at the point at which the next segment begins
    for (std::size_t i = 0; i < points.size(); ++i) {
        const OdGePoint2d &from = points[i == 0 ? 0 : i - 1], &to = points[i];
        if (i == 0 && points.size() > 1) continue;
        const SeenRange seen = seenRange(from, to, area);
        const double whole = std::hypot(to.x - from.x, to.y - from.y);
        if (!seen.isEmpty()) {
            if (!goesOn) pieces.push_back({{between(from, to, seen.begin)}, length + whole * seen.begin});
            pieces.back().points.push_back(between(from, to, seen.end));
        }
        goesOn = !seen.isEmpty() && seen.end == 1;
        length += whole;
    }
    return pieces;
}

std::vector<OdGePoint2d> VisibleBoundary(std::span<const OdGePoint2d> points, const SceneExtents& area) {
    std::vector<OdGePoint2d> kept(points.begin(), points.end());
    if (!kept.empty()) kept = cutAtSide(kept, [&](const OdGePoint2d& p) { return p.x - area.low.x; });
    if (!kept.empty()) kept = cutAtSide(kept, [&](const OdGePoint2d& p) { return area.high.x - p.x; });
    if (!kept.empty()) kept = cutAtSide(kept, [&](const OdGePoint2d& p) { return p.y - area.low.y; });
    if (!kept.empty()) kept = cutAtSide(kept, [&](const OdGePoint2d& p) { return area.high.y - p.y; });
    return kept;
}
