// Mappings of space: where the coordinates of blocks and of planes with a direction of their own lie.
// Internal to the module.
#pragma once

#include <od_db.h>

/// A direction or a difference of points.
using SpaceVector = OdGePoint3d;

inline SpaceVector operator+(const SpaceVector& a, const SpaceVector& b) {
    return {a.x + b.x, a.y + b.y, a.z + b.z};
}
inline SpaceVector operator-(const SpaceVector& a, const SpaceVector& b) {
    return {a.x - b.x, a.y - b.y, a.z - b.z};
}
inline SpaceVector operator*(const SpaceVector& a, double factor) {
    return {a.x * factor, a.y * factor, a.z * factor};
}
SpaceVector Cross(const SpaceVector& a, const SpaceVector& b);
double Length(const SpaceVector& a);
/// The direction of length 1; `otherwise` for a vector without length or with one that is no number.
SpaceVector Unit(const SpaceVector& a, const SpaceVector& otherwise);

inline OdGePoint2d operator+(const OdGePoint2d& a, const OdGePoint2d& b) { return {a.x + b.x, a.y + b.y}; }
inline OdGePoint2d operator-(const OdGePoint2d& a, const OdGePoint2d& b) { return {a.x - b.x, a.y - b.y}; }
inline OdGePoint2d operator*(const OdGePoint2d& a, double factor) { return {a.x * factor, a.y * factor}; }
inline double Cross(const OdGePoint2d& a, const OdGePoint2d& b) { return a.x * b.y - a.y * b.x; }
inline double Dot(const OdGePoint2d& a, const OdGePoint2d& b) { return a.x * b.x + a.y * b.y; }
double Length(const OdGePoint2d& a);
inline OdGePoint2d Flat(const OdGePoint3d& p) { return {p.x, p.y}; }

/// A mapping of space by the places of its axes and its origin.
struct SpaceTransform {
    SpaceVector x{1, 0, 0}, y{0, 1, 0}, z{0, 0, 1};
    OdGePoint3d origin;

    OdGePoint3d apply(const OdGePoint3d& p) const { return turned(p) + origin; }
    /// A direction, without the move.
    SpaceVector turned(const SpaceVector& v) const { return x * v.x + y * v.y + z * v.z; }
    /// This mapping after `inner`.
    SpaceTransform after(const SpaceTransform& inner) const;

    static SpaceTransform Moved(const OdGePoint3d& by) { return {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}, by}; }
    static SpaceTransform Scaled(const OdGePoint3d& factors);
    /// Turned about the z axis by radians.
    static SpaceTransform Turned(double angle);
    /// The plane of an entity with the normal `normal`: its x axis follows from the normal alone.
    static SpaceTransform OfNormal(const OdGeVector3d& normal);
    /// What is seen along `direction` (towards the eye), laid into the plane.
    static SpaceTransform SeenAlong(const SpaceVector& direction);
};
