// Where the dashes of a pattern lie on a part of a line. Internal to the module.
#pragma once

#include <cstddef>
#include <functional>
#include <vector>

#include "geometry/region.h"

/// Calls `draw` with each dash of `part` (a dot has no length). The pattern begins at 0 and repeats both
/// ways; without dashes the part is one. `spend` is asked before each; false ends the walk.
void WalkDashes(const std::vector<double>& dashes, const LinePart& part, const std::function<bool()>& spend,
                const std::function<void(const LinePart&)>& draw);
