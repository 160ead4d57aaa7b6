// The areas that a line with a width covers. Internal to the module.
#pragma once

#include <vector>

#include "scene.h"

/// A corner of a line, and the piece that begins there.
struct WideCorner {
    OdGePoint2d point;
    double bulge = 0;
    double startWidth = 0, endWidth = 0;
};

/// One area for each piece, mitred where two straight pieces meet; a piece without a width is its two ends.
std::vector<std::vector<OdGePoint2d>> WideLine(const std::vector<WideCorner>& corners, bool closed,
                                               double tolerance);
