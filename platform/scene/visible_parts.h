// The parts of lines and areas that lie in a rectangle, so that what is drawn stays within the numbers of a
// screen however far the user has zoomed in.
#pragma once

#include <span>
#include <vector>

#include "scene.h"

/// A piece of a line through points.
struct VisibleLine {
    std::vector<OdGePoint2d> points;
    double skipped = 0;  ///< how long the line is up to the piece, in drawing units, so that dashes fit on
};

/// The pieces of the line through `points` that lie in `area`, in their order. A line that touches a corner
/// has a piece of no length there.
KTSCENE_API std::vector<VisibleLine> VisibleLines(std::span<const OdGePoint2d> points,
                                                  const SceneExtents& area);

/// The closed boundary through `points`, with what lies outside of `area` laid onto its sides. What it
/// surrounds within `area` stays; empty if that is nothing.
KTSCENE_API std::vector<OdGePoint2d> VisibleBoundary(std::span<const OdGePoint2d> points,
                                                     const SceneExtents& area);
