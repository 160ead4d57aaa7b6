// The few geometry values that entities speak in. Plain data in drawing units; angles are in radians.
#pragma once

/// A point in the plane.
struct OdGePoint2d {
    double x = 0, y = 0;
    friend bool operator==(const OdGePoint2d&, const OdGePoint2d&) = default;
};

/// A point in space.
struct OdGePoint3d {
    double x = 0, y = 0, z = 0;
    friend bool operator==(const OdGePoint3d&, const OdGePoint3d&) = default;
};

/// A direction in space.
struct OdGeVector3d {
    double x = 0, y = 0, z = 0;
    friend bool operator==(const OdGeVector3d&, const OdGeVector3d&) = default;
};
