// What the measure dialog tells of picked places and objects. Knows no window.
#pragma once

#include <od_ge.h>

/// From one place to another, in drawing units and radians.
struct LineMeasure {
    double distance = 0;
    double dx = 0;
    double dy = 0;
    double direction =
        0;  ///< 0 to less than 2 pi, counterclockwise from the x axis; 0 for one and the same place
};

LineMeasure MeasureLine(const OdGePoint2d& from, const OdGePoint2d& to);

/// The angle at `vertex` between the directions to `one` and `other`, 0 to pi; 0 if one of them is the
/// vertex.
double MeasureAngle(const OdGePoint2d& vertex, const OdGePoint2d& one, const OdGePoint2d& other);
