// Points along splines: those of control points, and those through fit points. Internal to the module.
#pragma once

#include <vector>

#include "geometry/space_transform.h"

/// A non-uniform rational B-spline.
struct SplineCurve {
    int degree = 3;
    std::vector<double> knots;
    std::vector<double> weights;  ///< one for each control point, or none for all 1
    std::vector<OdGePoint3d> controls;

    /// Whether the counts fit and the knots ascend.
    bool isWhole() const;
};

/// Points that leave the curve by no more than `tolerance`; 0 for a thousandth of its size. Empty for a curve
/// that isn't whole.
std::vector<OdGePoint3d> PointsOf(const SplineCurve& curve, double tolerance);

/// How a curve through fit points begins or ends; without a direction it bends there no more.
struct FitEnds {
    SpaceVector start, end;
    bool hasStart = false, hasEnd = false;
};

/// The smooth curve through points, with the same tolerance.
std::vector<OdGePoint3d> PointsThrough(const std::vector<OdGePoint3d>& fitPoints, const FitEnds& ends,
                                       double tolerance);
