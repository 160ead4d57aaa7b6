// The work areas of all screens.
#pragma once

#include <vector>

#include <kmfc/geometry.h>

namespace kmfc {

/// In screen coordinates, the primary screen's first.
std::vector<CRect> work_areas();

}  // namespace kmfc
