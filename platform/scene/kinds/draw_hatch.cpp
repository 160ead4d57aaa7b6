// Hatches: areas of one colour, or lines of a pattern within boundaries.
#include <algorithm>
#include <cmath>

#include <od_db_hatch.h>

#include "geometry/curve_points.h"
#include "geometry/dash_walk.h"
#include "geometry/spline_curve.h"
#include "kinds/draw_functions.h"
#include "kinds/entity_cast.h"

namespace {

constexpr double kMostLines = 100000;  // of one family; more than a view can show

void appendSpline(Boundary& boundary, const OdDbHatchEdge& edge, double tolerance) {
    SplineCurve curve;
    curve.degree = edge.degree;
    curve.knots = edge.knots;
    curve.weights = edge.weights;
    for (const OdGePoint2d& point : edge.controlPoints) curve.controls.push_back({point.x, point.y, 0});
    std::vector<OdGePoint3d> points = PointsOf(curve, tolerance);
    if (points.empty()) {
        for (const OdGePoint2d& point : edge.fitPoints) points.push_back({point.x, point.y, 0});
        points = PointsThrough(points, {}, tolerance);
    }
    for (const OdGePoint3d& point : points) boundary.push_back(Flat(point));
}

void appendEdge(Boundary& boundary, const OdDbHatchEdge& edge, double tolerance) {
    switch (edge.kind) {
        case OdDbHatchEdge::Kind::kLine:
            boundary.push_back(edge.start);
            boundary.push_back(edge.end);
            break;
        case OdDbHatchEdge::Kind::kArc:
        case OdDbHatchEdge::Kind::kEllipse: {
            const OdGePoint2d major = edge.majorAxis;
            const OdGePoint2d minor = OdGePoint2d{-major.y, major.x} * edge.ratio;
            AppendArc(boundary, {0, 0, edge.center, major, minor, edge.startAngle, edge.sweep}, tolerance,
                      true);
            break;
        }
        case OdDbHatchEdge::Kind::kSpline: appendSpline(boundary, edge, tolerance); break;
    }
}

Boundary boundaryOf(const OdDbHatchLoop& loop, double tolerance) {
    Boundary boundary;
    for (const OdDbHatchEdge& edge : loop.edges) appendEdge(boundary, edge, tolerance);
    if (loop.corners.empty()) return boundary;
    std::vector<SceneArc> arcs;
    boundary.push_back(loop.corners.front().point);
    for (std::size_t i = 0; i < loop.corners.size(); ++i)
        AppendBulge(boundary, arcs, loop.corners[i].point, loop.corners[(i + 1) % loop.corners.size()].point,
                    loop.corners[i].bulge, tolerance);
    boundary.pop_back();
    return boundary;
}

/// The boundaries that count by the hatch's style for islands.
std::vector<Boundary> boundariesOf(const OdDbHatch& hatch, double tolerance, SceneWork& work) {
    constexpr std::size_t kFewest = 3;
    std::vector<Boundary> all;
    for (const OdDbHatchLoop& loop : hatch.loops()) {
        Boundary boundary = boundaryOf(loop, tolerance);
        if (boundary.size() >= kFewest) all.push_back(std::move(boundary));
    }
    const OdDbHatchStyle style = hatch.style();
    if (style == OdDbHatchStyle::kOddParity) return all;
    const int deepest = style == OdDbHatchStyle::kOutermost ? 1 : 0;
    const std::vector<int> depths =
        NestingOf(all, [&work](std::size_t amount) { return work.spend(amount); });
    std::vector<Boundary> counting;
    for (std::size_t i = 0; i < all.size(); ++i)
        if (depths[i] <= deepest) counting.push_back(std::move(all[i]));
    return counting;
}

std::uint8_t mean(std::uint8_t a, std::uint8_t b) { return static_cast<std::uint8_t>((a + b) / 2); }

/// A gradient is drawn in the mean of its two colours.
OdCmColor meanColor(const OdDbHatch& hatch, const OdCmColor& otherwise) {
    const std::vector<OdCmColor> colors = hatch.gradientColors();
    const OdCmColor first = colors.empty() ? otherwise : colors.front();
    const auto tint = static_cast<std::uint8_t>(std::clamp(hatch.gradientTint(), 0.0, 1.0) * 255);
    OdCmColor second;
    second.setRGB(tint, tint, tint);
    if (colors.size() > 1) second = colors.back();
    OdCmColor color;
    color.setRGB(mean(first.red(), second.red()), mean(first.green(), second.green()),
                 mean(first.blue(), second.blue()));
    return color;
}

/// Gathers the lines of one family into a path.
struct LineGathering {
    std::vector<OdGePoint3d> points;
    std::vector<std::size_t> breaks;
    void add(const OdGePoint2d& from, const OdGePoint2d& to, double z) {
        if (!points.empty()) breaks.push_back(points.size());
        points.push_back({from.x, from.y, z});
        points.push_back({to.x, to.y, z});
    }
};

/// Which lines of a family meet the boundaries: numbers, counted from the line through the base.
LinePart numbersOf(const std::vector<Boundary>& boundaries, const OdDbHatchLine& family,
                   const OdGePoint2d& direction, double spacing) {
    LinePart numbers{HUGE_VAL, -HUGE_VAL};
    for (const Boundary& boundary : boundaries)
        for (const OdGePoint2d& point : boundary) {
            const double number = Cross(direction, point - family.base) / spacing;
            numbers.from = std::min(numbers.from, number);
            numbers.to = std::max(numbers.to, number);
        }
    return {std::ceil(numbers.from), std::floor(numbers.to)};
}

void drawFamily(const std::vector<Boundary>& boundaries, const OdDbHatchLine& family, double z,
                const EntityPen& pen) {
    SceneWork& work = pen.work();
    std::size_t corners = 0;
    for (const Boundary& boundary : boundaries) corners += boundary.size();
    const OdGePoint2d direction{std::cos(family.angle), std::sin(family.angle)};
    const double spacing = Cross(direction, family.offset);
    const LinePart numbers = numbersOf(boundaries, family, direction, spacing);
    if (!(numbers.to - numbers.from < kMostLines)) {
        work.noteNotDrawn("HATCH");
        return;
    }
    LineGathering lines;
    for (double number = numbers.from; number <= numbers.to && work.spend(corners); ++number) {
        const OdGePoint2d base = family.base + family.offset * number;
        for (const LinePart& part : PartsWithin(boundaries, base, direction))
            WalkDashes(
                family.dashes, part, [&work] { return work.spend(1); },
                [&](const LinePart& dash) {
                    lines.add(base + direction * dash.from, base + direction * dash.to, z);
                });
    }
    if (!lines.points.empty()) pen.strokes(lines.points, lines.breaks);
}

void fill(const std::vector<Boundary>& boundaries, double z, const EntityPen& pen) {
    std::vector<OdGePoint3d> points;
    std::vector<std::size_t> breaks;
    for (const Boundary& boundary : boundaries) {
        if (!points.empty()) breaks.push_back(points.size());
        for (const OdGePoint2d& point : boundary) points.push_back({point.x, point.y, z});
    }
    pen.fill(points, std::move(breaks));
}

}  // namespace

void DrawHatch(const OdDbEntity& entity, EntityPen& pen) {
    const auto* hatch = As<OdDbHatch>(entity);
    if (hatch == nullptr || pen.work().drawing().getFILLMODE() == 0) return;
    const EntityPen inPlane = pen.inPlaneOf(entity);
    const std::vector<Boundary> boundaries = boundariesOf(*hatch, inPlane.tolerance(), pen.work());
    std::size_t corners = 0;
    for (const Boundary& boundary : boundaries) corners += boundary.size();
    if (boundaries.empty() || !pen.work().spend(corners)) return;
    EntityPen plain = inPlane;
    plain.look().style.dashes.clear();
    plain.look().pattern = nullptr;
    const double z = hatch->elevation();
    if (hatch->isGradient()) plain.look().style.color = meanColor(*hatch, plain.look().style.color);
    if (hatch->isGradient() || hatch->isSolid()) {
        fill(boundaries, z, plain);
        return;
    }
    for (const OdDbHatchLine& family : hatch->patternLines()) drawFamily(boundaries, family, z, plain);
}
