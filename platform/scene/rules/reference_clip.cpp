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

using Outline = std::vector<OdGePoint3d>;

Outline corners(const OdGePoint3d& low, const OdGePoint3d& high) {
    return {low, {high.x, low.y, 0}, high, {low.x, high.y, 0}};
}

/// Two places are the corners of a rectangle.
Outline wholeOutline(const Outline& points) {
    return points.size() == 2 ? corners(points[0], points[1]) : points;
}

/// The rectangle around outlines.
Outline around(const Outline& first, const Outline& second) {
    OdGePoint3d low{1e300, 1e300, 0}, high{-1e300, -1e300, 0};
    for (const Outline* outline : {&first, &second})
        for (const OdGePoint3d& point : *outline) {
            low = {std::min(low.x, point.x), std::min(low.y, point.y), 0};
            high = {std::max(high.x, point.x), std::max(high.y, point.y), 0};
        }
    return corners(low, high);
}

double areaAround(const Outline& outline) {
    const Outline box = around(outline, {});
    return (box[2].x - box[0].x) * (box[2].y - box[0].y);
}

void takePlace(const OdGroup& group, Outline& places) {
    if (group.code == 10) places.push_back({group.real, 0, 0});
    if (group.code == 20 && !places.empty()) places.back().y = group.real;
}

/// What an inverted clip keeps beside itself: what it hides, and the outline of what it shows.
struct Inversion {
    Outline hidden, shown;
};

Inversion inversionOf(const OdDbObject& filter) {
    Inversion found;
    const auto beside = filter.extensionDictionary().open<OdDbDictionary>();
    const auto record =
        beside ? beside->getAt(L"ACAD_XREC_ROUNDTRIP").open<OdDbObject>() : OdSmartPtr<OdDbObject>();
    if (!record) return found;
    Outline none;
    Outline* part = &none;
    OdGroup group;
    for (std::uint32_t at = 0; record->groups().read(at, group); at = group.end) {
        if (group.code == 102)
            part = group.text == "ACAD_INVERTEDCLIP_ROUNDTRIP"           ? &found.hidden
                   : group.text == "ACAD_INVERTEDCLIP_ROUNDTRIP_COMPARE" ? &found.shown
                                                                         : &none;
        takePlace(group, *part);
    }
    return found;
}

/// The outline with the inversion that stands beside it. Files have either outline as the clip's own: what is
/// hidden is the smaller one.
Outline inverted(const Outline& own, const Inversion& inversion) {
    Outline hole = wholeOutline(inversion.hidden);
    Outline outer = around(around(own, inversion.shown), hole);
    if (areaAround(own) < areaAround(hole)) hole = own;
    outer.push_back(outer.front());
    outer.insert(outer.end(), hole.begin(), hole.end());
    outer.push_back(hole.front());
    return outer;
}

}  // namespace

std::vector<OdGePoint3d> ReferenceClip(const OdDbEntity& reference) {
    const auto filter = filterOf(reference);
    if (!filter || filter->groups().integer(71, 1) == 0) return {};
    Outline points;
    std::vector<double> reals;
    OdGroup group;
    for (std::uint32_t at = 0; filter->groups().read(at, group); at = group.end) {
        takePlace(group, points);
        if (group.code == 40) reals.push_back(group.real);
    }
    Rows toBlock, toBoundary;
    if (points.size() < 2 || reals.size() < toBlock.size() + toBoundary.size()) return {};
    // A distance of its front plane may stand before them.
    std::copy_n(reals.end() - 24, 12, toBlock.begin());
    std::copy_n(reals.end() - 12, 12, toBoundary.begin());
    points = wholeOutline(points);
    if (const Inversion inversion = inversionOf(*filter); inversion.hidden.size() > 1)
        points = inverted(points, inversion);
    // The boundary lies in a plane of its own, and comes to the block by the way of the reference as it was.
    SpaceTransform fromBoundary;
    if (!invert(transformOf(toBoundary), fromBoundary)) return {};
    const SpaceTransform ontoBlock = transformOf(toBlock).after(fromBoundary);
    for (OdGePoint3d& point : points) point = ontoBlock.apply(point);
    return points;
}
