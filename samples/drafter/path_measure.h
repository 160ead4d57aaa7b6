// Lengths and areas of what a scene draws, exact where it draws arcs. Knows no window.
#pragma once

#include <set>
#include <span>

#include "scene.h"

/// Length of all lines of a path, in drawing units; those of an area are its boundaries.
double LengthOf(const ScenePath& path);

/// What the lines of a path enclose, in square drawing units; of lines within each other what lies between
/// them.
double AreaOf(const ScenePath& path);

/// Length of all lines of `objects` that `scene` draws, in drawing units. Filled areas and letters have none.
double TotalLength(const Scene& scene, const std::set<OdDbObjectId>& objects);

/// Whether a point lies within the closed line through `points`, by the count of crossings to its right.
bool IsWithin(std::span<const OdGePoint2d> points, const OdGePoint2d& at);
