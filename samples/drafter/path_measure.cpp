#include "path_measure.h"

#include <cmath>
#include <span>

namespace {

double cross(const OdGePoint2d& a, const OdGePoint2d& b) { return a.x * b.y - a.y * b.x; }

/// How fast an arc runs at `t`, in drawing units for each radian.
double speedAt(const SceneArc& arc, double t) {
    return std::hypot(arc.axisY.x * std::cos(t) - arc.axisX.x * std::sin(t),
                      arc.axisY.y * std::cos(t) - arc.axisX.y * std::sin(t));
}

/// By Simpson's rule, which is exact for circles and close to the last digits for ellipses.
double lengthOf(const SceneArc& arc) {
    constexpr int kHalfSteps = 512;
    const double step = arc.sweep / (2 * kHalfSteps);
    double sum = 0;
    for (int i = 0; i < kHalfSteps; ++i) {
        const double t = arc.start + 2 * i * step;
        sum += speedAt(arc, t) + 4 * speedAt(arc, t + step) + speedAt(arc, t + 2 * step);
    }
    return std::fabs(step) * sum / 3;
}

/// A line of a path with the arcs that it has.
struct PathLine {
    std::size_t first, end;  ///< its points, the last one not counted
    std::span<const SceneArc> arcs;
};

std::span<const OdGePoint2d> pointsOf(const ScenePath& path, const PathLine& line) {
    return std::span(path.points).subspan(line.first, line.end - line.first);
}

template <class Each>
void forEachLine(const ScenePath& path, Each each) {
    const std::span<const SceneArc> arcs(path.arcs);
    std::size_t first = 0, arc = 0;
    for (std::size_t i = 0; i <= path.breaks.size(); ++i) {
        const std::size_t end = i < path.breaks.size() ? path.breaks[i] : path.points.size();
        const std::size_t firstArc = arc;
        while (arc < arcs.size() && arcs[arc].first < end) ++arc;
        if (end > first) each(PathLine{first, end, arcs.subspan(firstArc, arc - firstArc)});
        first = end;
    }
}

/// Adds up what `straight` gives for the straight parts of a line and `round` for its arcs.
template <class Straight, class Round>
double sumOf(const ScenePath& path, const PathLine& line, Straight straight, Round round) {
    double sum = 0;
    std::size_t at = line.first;
    const auto goTo = [&](std::size_t point) {
        for (; at < point; ++at) sum += straight(path.points[at], path.points[at + 1]);
    };
    for (const SceneArc& arc : line.arcs) {
        if (arc.first < at || arc.last >= line.end) continue;
        goTo(arc.first);
        sum += round(arc, path.points[arc.first], path.points[arc.last]);
        at = arc.last;
    }
    goTo(line.end - 1);
    return sum;
}

/// Above 0 counterclockwise.
double signedArea(const ScenePath& path, const PathLine& line) {
    const double twice = sumOf(path, line, cross, [](const SceneArc& arc, const auto& from, const auto& to) {
        return cross(arc.center, {to.x - from.x, to.y - from.y}) + cross(arc.axisX, arc.axisY) * arc.sweep;
    });
    return (twice + cross(path.points[line.end - 1], path.points[line.first])) / 2;
}

}  // namespace

double LengthOf(const ScenePath& path) {
    double length = 0;
    forEachLine(path, [&](const PathLine& line) {
        length += sumOf(
            path, line,
            [](const auto& from, const auto& to) { return std::hypot(to.x - from.x, to.y - from.y); },
            [](const SceneArc& arc, const auto&, const auto&) { return lengthOf(arc); });
    });
    return length;
}

double AreaOf(const ScenePath& path) {
    double area = 0;
    forEachLine(path, [&](const PathLine& line) {
        int around = 0;
        forEachLine(path, [&](const PathLine& other) {
            if (other.first != line.first && IsWithin(pointsOf(path, other), path.points[line.first]))
                ++around;
        });
        const double own = std::fabs(signedArea(path, line));
        area += around % 2 == 0 ? own : -own;
    });
    return area;
}

double TotalLength(const Scene& scene, const std::set<OdDbObjectId>& objects) {
    double total = 0;
    for (const ScenePath& path : scene.paths)
        if (!path.filled && !path.isLetters && objects.contains(path.entity)) total += LengthOf(path);
    return total;
}

bool IsWithin(std::span<const OdGePoint2d> points, const OdGePoint2d& at) {
    bool within = false;
    for (std::size_t i = 0, last = points.size() - 1; i < points.size(); last = i++) {
        const OdGePoint2d& a = points[i];
        const OdGePoint2d& b = points[last];
        if ((a.y > at.y) != (b.y > at.y) && at.x < (b.x - a.x) * (at.y - a.y) / (b.y - a.y) + a.x)
            within = !within;
    }
    return within;
}
