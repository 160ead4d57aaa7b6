#include "geometry/curve_points.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "geometry/space_transform.h"

namespace {

constexpr double kTurn = 2 * std::numbers::pi;
constexpr double kUsualStep = kTurn / 72;
constexpr double kFinestStep = kTurn / 4096;

}  // namespace

int ArcPieces(double radius, double sweep, double tolerance) {
    double step = kUsualStep;
    if (tolerance > 0 && radius > 0) {
        // The middle of a chord is away from the arc by the radius less its cosine's share.
        const double share = std::clamp(1 - tolerance / radius, -1.0, 1.0);
        step = std::clamp(2 * std::acos(share), kFinestStep, kTurn / 8);
    }
    const double turns = std::min(std::abs(sweep), kTurn);
    return std::max(2, static_cast<int>(std::ceil(turns / step - 1e-9)));
}

void AppendArc(std::vector<OdGePoint2d>& points, const SceneArc& arc, double tolerance, bool withFirst) {
    const int pieces = ArcPieces(std::max(Length(arc.axisX), Length(arc.axisY)), arc.sweep, tolerance);
    for (int i = withFirst ? 0 : 1; i <= pieces; ++i) {
        const double angle = arc.start + arc.sweep * i / pieces;
        points.push_back(arc.center + arc.axisX * std::cos(angle) + arc.axisY * std::sin(angle));
    }
}

void AppendBulge(std::vector<OdGePoint2d>& points, std::vector<SceneArc>& arcs, const OdGePoint2d& from,
                 const OdGePoint2d& to, double bulge, double tolerance) {
    constexpr double kStraight = 1e-9;
    const OdGePoint2d chord = to - from;
    if (!(std::abs(bulge) > kStraight) || !(Length(chord) > 0)) {
        points.push_back(to);
        return;
    }
    SceneArc arc;
    arc.first = points.size() - 1;
    arc.sweep = 4 * std::atan(bulge);
    // The centre lies on the chord's perpendicular through its middle.
    const double rise = (1 / bulge - bulge) / 4;
    arc.center = {from.x + chord.x / 2 - chord.y * rise, from.y + chord.y / 2 + chord.x * rise};
    const double radius = Length(from - arc.center);
    arc.axisX = {radius, 0};
    arc.axisY = {0, radius};
    arc.start = std::atan2(from.y - arc.center.y, from.x - arc.center.x);
    AppendArc(points, arc, tolerance, false);
    points.back() = to;
    arc.last = points.size() - 1;
    arcs.push_back(arc);
}
