#include <cmath>
#include <numbers>

#include <od_db_rays.h>

#include "geometry/spline_curve.h"
#include "kinds/draw_functions.h"
#include "kinds/entity_cast.h"

namespace {

constexpr double kTurn = 2 * std::numbers::pi;

/// The counter-clockwise way from one angle to another, above 0 and at most a turn.
double sweepOf(double start, double end) {
    const double sweep = std::fmod(end - start, kTurn);
    return sweep > 1e-12 ? sweep : sweep + kTurn;
}

template <class Array>
std::vector<OdGePoint3d> listOf(const Array& points) {
    return {points.begin(), points.end()};
}

SpaceVector vectorOf(const OdGroupList& groups, int code, bool& isThere) {
    OdGroup group;
    isThere = groups.find(code, group);
    const OdGePoint3d vector = groups.point(code);
    isThere = isThere && Length(vector) > 0;
    return vector;
}

}  // namespace

void DrawLine(const OdDbEntity& entity, EntityPen& pen) {
    if (const auto* line = As<OdDbLine>(entity)) pen.stroke(line->startPoint(), line->endPoint());
}

void DrawCircle(const OdDbEntity& entity, EntityPen& pen) {
    const auto* circle = As<OdDbCircle>(entity);
    if (circle == nullptr) return;
    const double radius = circle->radius();
    pen.inPlaneOf(entity).arc(circle->center(), {radius, 0, 0}, {0, radius, 0}, 0, kTurn);
}

void DrawArc(const OdDbEntity& entity, EntityPen& pen) {
    const auto* arc = As<OdDbArc>(entity);
    if (arc == nullptr) return;
    const double radius = arc->radius(), start = arc->startAngle();
    pen.inPlaneOf(entity).arc(arc->center(), {radius, 0, 0}, {0, radius, 0}, start,
                              sweepOf(start, arc->endAngle()));
}

/// Centre and axes are those of space; the normal says to which side the minor axis points.
void DrawEllipse(const OdDbEntity& entity, EntityPen& pen) {
    const auto* ellipse = As<OdDbEllipse>(entity);
    if (ellipse == nullptr) return;
    const OdGeVector3d normal = entity.normal();
    const SpaceVector major = ellipse->majorAxis();
    const SpaceVector minor =
        Cross(Unit({normal.x, normal.y, normal.z}, {0, 0, 1}), major) * ellipse->radiusRatio();
    const double start = ellipse->startParam();
    pen.arc(ellipse->center(), major, minor, start, sweepOf(start, ellipse->endParam()));
}

void DrawRay(const OdDbEntity& entity, EntityPen& pen) {
    if (const auto* ray = As<OdDbRay>(entity))
        pen.endless(ray->basePoint(), ray->unitDir(), As<OdDbXline>(entity) != nullptr);
}

void DrawSpline(const OdDbEntity& entity, EntityPen& pen) {
    const auto* spline = As<OdDbSpline>(entity);
    if (spline == nullptr) return;
    SplineCurve curve;
    curve.degree = spline->degree();
    const OdArray<double> knots = spline->knots(), weights = spline->weights();
    curve.knots.assign(knots.begin(), knots.end());
    curve.weights.assign(weights.begin(), weights.end());
    curve.controls = listOf(spline->controlPoints());
    std::vector<OdGePoint3d> points = PointsOf(curve, pen.tolerance());
    if (points.empty()) {
        FitEnds ends;
        ends.start = vectorOf(entity.groups(), 12, ends.hasStart);
        ends.end = vectorOf(entity.groups(), 13, ends.hasEnd);
        std::vector<OdGePoint3d> fit = listOf(spline->fitPoints());
        if (fit.empty()) fit = curve.controls;
        if (spline->isClosed() && !fit.empty()) fit.push_back(fit.front());
        points = PointsThrough(fit, ends, pen.tolerance());
    }
    if (pen.work().spend(points.size())) pen.stroke(points);
}
