#include "geometry/spline_curve.h"

#include <algorithm>
#include <cmath>
#include <functional>

namespace {

constexpr int kGreatestDegree = 25;
constexpr int kDeepest = 9;  // halvings of one span
constexpr std::size_t kMostPoints = 1'000'000;

/// A point with its weight; the coordinates are multiplied by the weight.
struct Weighted {
    OdGePoint3d point;
    double weight = 1;
};

double sizeOf(const std::vector<OdGePoint3d>& points) {
    if (points.empty()) return 0;
    OdGePoint3d low = points.front(), high = low;
    for (const OdGePoint3d& p : points) {
        low = {std::min(low.x, p.x), std::min(low.y, p.y), std::min(low.z, p.z)};
        high = {std::max(high.x, p.x), std::max(high.y, p.y), std::max(high.z, p.z)};
    }
    return Length(high - low);
}

double toleranceFor(double wanted, const std::vector<OdGePoint3d>& points) {
    constexpr double kUsualShare = 0.001;
    return wanted > 0 ? wanted : sizeOf(points) * kUsualShare;
}

double distanceToChord(const OdGePoint3d& p, const OdGePoint3d& a, const OdGePoint3d& b) {
    const SpaceVector chord = b - a, off = p - a;
    const double length = Length(chord);
    return length > 0 ? Length(Cross(chord, off)) / length : Length(off);
}

using Curve = std::function<OdGePoint3d(double)>;

/// Appends the points behind `from` up to `to`, halving where the curve leaves the chord.
void appendSpan(std::vector<OdGePoint3d>& points, const Curve& curve, double u, double v,
                const OdGePoint3d& from, const OdGePoint3d& to, double tolerance, int depth) {
    const double middle = (u + v) / 2;
    const OdGePoint3d half = curve(middle);
    bool isFlat = distanceToChord(half, from, to) <= tolerance;
    // An S crosses its chord in the middle.
    for (const double part : {0.25, 0.75})
        isFlat = isFlat && distanceToChord(curve(u + (v - u) * part), from, to) <= tolerance;
    if (depth >= kDeepest || (isFlat && depth > 0) || points.size() > kMostPoints) {
        points.push_back(to);
        return;
    }
    appendSpan(points, curve, u, middle, from, half, tolerance, depth + 1);
    appendSpan(points, curve, middle, v, half, to, tolerance, depth + 1);
}

/// The point at `u` in the knot span that begins at knot `span`, by de Boor's triangle.
OdGePoint3d pointAt(const SplineCurve& curve, const std::vector<Weighted>& controls, std::size_t span,
                    double u) {
    Weighted level[kGreatestDegree + 1];
    const auto degree = static_cast<std::size_t>(curve.degree);
    for (std::size_t i = 0; i <= degree; ++i) level[i] = controls[span - degree + i];
    for (std::size_t round = 1; round <= degree; ++round)
        for (std::size_t i = degree; i >= round; --i) {
            const double first = curve.knots[span - degree + i];
            const double width = curve.knots[span + 1 + i - round] - first;
            const double part = width > 0 ? (u - first) / width : 0;
            level[i] = {level[i - 1].point * (1 - part) + level[i].point * part,
                        level[i - 1].weight * (1 - part) + level[i].weight * part};
        }
    const Weighted& top = level[degree];
    return top.weight != 0 ? top.point * (1 / top.weight) : top.point;
}

/// The slopes at the points of a curve that bends nowhere suddenly, `steps` being the lengths between them.
std::vector<SpaceVector> slopesOf(const std::vector<OdGePoint3d>& points, const std::vector<double>& steps,
                                  const FitEnds& ends) {
    const std::size_t count = points.size();
    // The rows of a system with three diagonals: before * s[i-1] + at * s[i] + behind * s[i+1] = value.
    std::vector<double> before(count), at(count), behind(count);
    std::vector<SpaceVector> value(count);
    const auto chord = [&](std::size_t i) { return (points[i + 1] - points[i]) * (1 / steps[i]); };
    for (std::size_t i = 1; i + 1 < count; ++i) {
        before[i] = steps[i];
        at[i] = 2 * (steps[i - 1] + steps[i]);
        behind[i] = steps[i - 1];
        value[i] = (chord(i - 1) * steps[i] + chord(i) * steps[i - 1]) * 3;
    }
    at[0] = ends.hasStart ? 1 : 2;
    behind[0] = ends.hasStart ? 0 : 1;
    value[0] = ends.hasStart ? Unit(ends.start, chord(0)) : chord(0) * 3;
    at[count - 1] = ends.hasEnd ? 1 : 2;
    before[count - 1] = ends.hasEnd ? 0 : 1;
    value[count - 1] = ends.hasEnd ? Unit(ends.end, chord(count - 2)) : chord(count - 2) * 3;
    for (std::size_t i = 1; i < count; ++i) {
        const double share = before[i] / at[i - 1];
        at[i] -= share * behind[i - 1];
        value[i] = value[i] - value[i - 1] * share;
    }
    value[count - 1] = value[count - 1] * (1 / at[count - 1]);
    for (std::size_t i = count - 1; i-- > 0;) value[i] = (value[i] - value[i + 1] * behind[i]) * (1 / at[i]);
    return value;
}

}  // namespace

bool SplineCurve::isWhole() const {
    const auto order = static_cast<std::size_t>(degree) + 1;
    return degree >= 1 && degree <= kGreatestDegree && controls.size() >= order &&
           knots.size() == controls.size() + order && std::is_sorted(knots.begin(), knots.end());
}

std::vector<OdGePoint3d> PointsOf(const SplineCurve& curve, double tolerance) {
    std::vector<OdGePoint3d> points;
    if (!curve.isWhole()) return points;
    std::vector<Weighted> controls;
    for (std::size_t i = 0; i < curve.controls.size(); ++i) {
        const double weight = curve.weights.size() == curve.controls.size() ? curve.weights[i] : 1;
        controls.push_back({curve.controls[i] * weight, weight});
    }
    const double finest = toleranceFor(tolerance, curve.controls);
    for (auto span = static_cast<std::size_t>(curve.degree); span < curve.controls.size(); ++span) {
        const double first = curve.knots[span], last = curve.knots[span + 1];
        if (!(last > first)) continue;
        const Curve part = [&](double u) { return pointAt(curve, controls, span, u); };
        if (points.empty()) points.push_back(part(first));
        const OdGePoint3d from = points.back();
        if (curve.degree == 1)
            points.push_back(part(last));
        else
            appendSpan(points, part, first, last, from, part(last), finest, 0);
    }
    return points;
}

std::vector<OdGePoint3d> PointsThrough(const std::vector<OdGePoint3d>& fitPoints, const FitEnds& ends,
                                       double tolerance) {
    std::vector<OdGePoint3d> knots;
    for (const OdGePoint3d& point : fitPoints)
        if (knots.empty() || Length(point - knots.back()) > 0) knots.push_back(point);
    if (knots.size() < 3 && !(knots.size() == 2 && (ends.hasStart || ends.hasEnd))) return knots;
    std::vector<double> steps;
    for (std::size_t i = 1; i < knots.size(); ++i) steps.push_back(Length(knots[i] - knots[i - 1]));
    const std::vector<SpaceVector> slopes = slopesOf(knots, steps, ends);
    const double finest = toleranceFor(tolerance, knots);
    std::vector<OdGePoint3d> points = {knots.front()};
    for (std::size_t i = 0; i + 1 < knots.size(); ++i) {
        const double h = steps[i];
        const Curve part = [&](double t) {
            const double r = 1 - t;
            return knots[i] * (r * r * (1 + 2 * t)) + slopes[i] * (h * t * r * r) +
                   knots[i + 1] * (t * t * (3 - 2 * t)) - slopes[i + 1] * (h * t * t * r);
        };
        appendSpan(points, part, 0, 1, knots[i], knots[i + 1], finest, 0);
    }
    return points;
}
