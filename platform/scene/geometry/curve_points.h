// Points along arcs and bulges, as far apart as a tolerance allows. Internal to the module.
#pragma once

#include <vector>

#include "scene.h"

/// How many pieces an arc is drawn in: steps of five degrees, or with a tolerance above 0 as many as keep it.
int ArcPieces(double radius, double sweep, double tolerance);

/// Appends the points of an arc, with the first one for `withFirst`.
void AppendArc(std::vector<OdGePoint2d>& points, const SceneArc& arc, double tolerance, bool withFirst);

/// Appends the points from `from` (which is there already) to `to` along a bulge, the tangent of a quarter of
/// the angle between them; and the arc to `arcs`.
void AppendBulge(std::vector<OdGePoint2d>& points, std::vector<SceneArc>& arcs, const OdGePoint2d& from,
                 const OdGePoint2d& to, double bulge, double tolerance);
