// Areas within boundaries, and the parts of lines in them. Internal to the module.
#pragma once

#include <functional>
#include <vector>

#include "geometry/space_transform.h"

/// A closed boundary; the last point leads to the first.
using Boundary = std::vector<OdGePoint2d>;

/// Whether a point lies within a boundary, by the count of crossings to its right.
bool IsWithin(const Boundary& boundary, const OdGePoint2d& point);

/// How many of the other boundaries surround each one. `spend` is asked before each comparison, with its
/// work; where it says no, the rest counts as surrounded by none.
std::vector<int> NestingOf(const std::vector<Boundary>& boundaries,
                           const std::function<bool(std::size_t)>& spend);

/// A part of a line, by distances along it.
struct LinePart {
    double from, to;
};

/// The parts of the line through `base` along `direction` (of length 1) that an odd count of boundaries
/// surrounds, in ascending order.
std::vector<LinePart> PartsWithin(const std::vector<Boundary>& boundaries, const OdGePoint2d& base,
                                  const OdGePoint2d& direction);
