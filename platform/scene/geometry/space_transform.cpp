#include "geometry/space_transform.h"

#include <cmath>

SpaceVector Cross(const SpaceVector& a, const SpaceVector& b) {
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}

double Length(const SpaceVector& a) { return std::sqrt(a.x * a.x + a.y * a.y + a.z * a.z); }
double Length(const OdGePoint2d& a) { return std::hypot(a.x, a.y); }

SpaceVector Unit(const SpaceVector& a, const SpaceVector& otherwise) {
    const double length = Length(a);
    return length > 0 && std::isfinite(length) ? a * (1 / length) : otherwise;
}

SpaceTransform SpaceTransform::after(const SpaceTransform& inner) const {
    return {turned(inner.x), turned(inner.y), turned(inner.z), apply(inner.origin)};
}

SpaceTransform SpaceTransform::Scaled(const OdGePoint3d& factors) {
    return {{factors.x, 0, 0}, {0, factors.y, 0}, {0, 0, factors.z}, {}};
}

SpaceTransform SpaceTransform::Turned(double angle) {
    const double c = std::cos(angle), s = std::sin(angle);
    return {{c, s, 0}, {-s, c, 0}, {0, 0, 1}, {}};
}

SpaceTransform SpaceTransform::OfNormal(const OdGeVector3d& normal) {
    constexpr double kNearZ = 1.0 / 64;  // of both other coordinates: the normal counts as along z
    const SpaceVector z = Unit({normal.x, normal.y, normal.z}, {0, 0, 1});
    const bool isNearZ = std::abs(z.x) < kNearZ && std::abs(z.y) < kNearZ;
    const SpaceVector x = Unit(Cross(isNearZ ? SpaceVector{0, 1, 0} : SpaceVector{0, 0, 1}, z), {1, 0, 0});
    return {x, Cross(z, x), z, {}};
}

SpaceTransform SpaceTransform::SeenAlong(const SpaceVector& direction) {
    const SpaceTransform plane = OfNormal({direction.x, direction.y, direction.z});
    // The axes stand upright on each other, so the way back has them as rows.
    return {{plane.x.x, plane.y.x, plane.z.x},
            {plane.x.y, plane.y.y, plane.z.y},
            {plane.x.z, plane.y.z, plane.z.z},
            {}};
}
