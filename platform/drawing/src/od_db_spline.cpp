#include "od_db_polylines.h"

#include <algorithm>

#include "od_group_cursor.h"

namespace {

constexpr int kGreatestDegree = 10;

OdArray<double> reals(const OdGroupList& groups, int code) {
    OdArray<double> all;
    OdGroup group;
    for (std::uint32_t at = 0; groups.find(code, group, at); at = group.end) all.append(group.real);
    return all;
}

/// A point with its weight; the coordinates are multiplied by the weight.
struct Weighted {
    double x, y, z, w;
};

Weighted between(const Weighted& a, const Weighted& b, double part) {
    const double rest = 1 - part;
    return {a.x * rest + b.x * part, a.y * rest + b.y * part, a.z * rest + b.z * part,
            a.w * rest + b.w * part};
}

/// The curve's point at parameter `u` in the knot span `span`, by de Boor's triangle.
OdGePoint3d evaluate(const OdArray<Weighted>& controls, const OdArray<double>& knots, int degree, int span,
                     double u) {
    Weighted level[kGreatestDegree + 1];
    for (int i = 0; i <= degree; ++i) level[i] = controls[span - degree + i];
    for (int round = 1; round <= degree; ++round)
        for (int i = degree; i >= round; --i) {
            const double first = knots[span - degree + i];
            const double width = knots[span + 1 + i - round] - first;
            level[i] = between(level[i - 1], level[i], width > 0 ? (u - first) / width : 0);
        }
    const Weighted& top = level[degree];
    return top.w != 0 ? OdGePoint3d{top.x / top.w, top.y / top.w, top.z / top.w}
                      : OdGePoint3d{top.x, top.y, top.z};
}

}  // namespace

OdArray<double> OdDbSpline::knots() const { return reals(m_groups, 40); }

OdArray<double> OdDbSpline::weights() const { return reals(m_groups, 41); }

OdArray<OdGePoint3d> OdDbSpline::controlPoints() const { return pointsInOrder(m_groups, 10); }

OdArray<OdGePoint3d> OdDbSpline::fitPoints() const { return pointsInOrder(m_groups, 11); }

OdResult OdDbSpline::setControlPoints(int degree, const OdArray<OdGePoint3d>& controls) {
    if (degree < 1 || degree > kGreatestDegree || controls.length() <= degree) return kOdInvalidInput;
    OdGroupList& groups = editGroups();
    for (const int code : {70, 71, 72, 73, 74, 40, 41, 10, 20, 30, 11, 21, 31}) groups.remove(code);
    constexpr int kPlanar = 8;
    OdGroupList curve;
    const int knotCount = controls.length() + degree + 1;
    curve.addInteger(70, kPlanar);
    curve.addInteger(71, degree);
    curve.addInteger(72, knotCount);
    curve.addInteger(73, controls.length());
    curve.addInteger(74, 0);
    for (int i = 0; i < knotCount; ++i)
        curve.addReal(40, std::clamp(i - degree, 0, controls.length() - degree));
    for (const OdGePoint3d& point : controls) curve.addPoint(10, point);
    const std::uint32_t end = groups.ownEnd();
    groups.replace(end, end, curve);
    return kOdOk;
}

OdArray<OdGePoint3d> OdDbSpline::samplePoints(int count) const {
    const OdArray<OdGePoint3d> controls = controlPoints();
    const OdArray<double> knotValues = knots();
    const OdArray<double> weightValues = weights();
    const int order = degree() + 1;
    const bool ascending = std::is_sorted(knotValues.begin(), knotValues.end());
    if (order < 2 || order > kGreatestDegree + 1 || controls.length() < order ||
        knotValues.length() != controls.length() + order || !ascending || count < 2)
        return fitPoints();
    OdArray<Weighted> weighted;
    for (int i = 0; i < controls.length(); ++i) {
        const double w = weightValues.length() == controls.length() ? weightValues[i] : 1.0;
        weighted.append({controls[i].x * w, controls[i].y * w, controls[i].z * w, w});
    }
    OdArray<OdGePoint3d> curve;
    const double first = knotValues[order - 1];
    const double last = knotValues[controls.length()];
    int span = order - 1;
    for (int i = 0; i < count; ++i) {
        const double u = first + (last - first) * i / (count - 1);
        while (span + 1 < controls.length() && knotValues[span + 1] <= u) ++span;
        curve.append(evaluate(weighted, knotValues, order - 1, span, u));
    }
    return curve;
}
