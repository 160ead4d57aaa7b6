#include "rules/reference_clip.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "geometry/space_transform.h"

namespace {

/// Three rows of a mapping: the parts of x, y and z, and the move.
using Rows = std::array<double, 12>;

OdSmartPtr<OdDbObject> filterOf(const OdDbEntity& reference) {
    const auto beside = reference.extensionDictionary().open<OdDbDictionary>();
    const auto filters =
        beside ? beside->getAt(L"ACAD_FILTER").open<OdDbDictionary>() : OdSmartPtr<OdDbDictionary>();
    return filters ? filters->getAt(L"SPATIAL").open<OdDbObject>() : OdSmartPtr<OdDbObject>();
}

SpaceTransform transformOf(const Rows& m) {
    return {{m[0], m[4], m[8]}, {m[1], m[5], m[9]}, {m[2], m[6], m[10]}, {m[3], m[7], m[11]}};
}

/// The way back; false where there is none.
bool invert(const SpaceTransform& t, SpaceTransform& back) {
    const SpaceVector a = Cross(t.y, t.z), b = Cross(t.z, t.x), c = Cross(t.x, t.y);
    const double size = t.x.x * a.x + t.x.y * a.y + t.x.z * a.z;
    if (!(std::abs(size) > 1e-12) || !std::isfinite(size)) return false;
    const double s = 1 / size;
    back = {{a.x * s, b.x * s, c.x * s}, {a.y * s, b.y * s, c.y * s}, {a.z * s, b.z * s, c.z * s}, {}};
    back.origin = back.turned(t.origin) * -1;
    return true;
}

}  // namespace

std::vector<OdGePoint3d> ReferenceClip(const OdDbEntity& reference) {
    const auto filter = filterOf(reference);
    if (!filter || filter->groups().integer(71, 1) == 0) return {};
    std::vector<OdGePoint3d> points;
    std::vector<double> reals;
    OdGroup group;
    for (std::uint32_t at = 0; filter->groups().read(at, group); at = group.end) {
        if (group.code == 10) points.push_back({group.real, 0, 0});
        if (group.code == 20 && !points.empty()) points.back().y = group.real;
        if (group.code == 40) reals.push_back(group.real);
    }
    Rows toBlock, toBoundary;
    if (points.size() < 2 || reals.size() < toBlock.size() + toBoundary.size()) return {};
    // A distance of its front plane may stand before them.
    std::copy_n(reals.end() - 24, 12, toBlock.begin());
    std::copy_n(reals.end() - 12, 12, toBoundary.begin());
    if (points.size() == 2)
        points = {points[0], {points[1].x, points[0].y, 0}, points[1], {points[0].x, points[1].y, 0}};
    // The boundary lies in a plane of its own, and comes to the block by the way of the reference as it was.
    SpaceTransform fromBoundary;
    if (!invert(transformOf(toBoundary), fromBoundary)) return {};
    const SpaceTransform ontoBlock = transformOf(toBlock).after(fromBoundary);
    for (OdGePoint3d& point : points) point = ontoBlock.apply(point);
    return points;
}
