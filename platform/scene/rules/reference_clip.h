// The boundary through which a block reference is seen. Internal to the module.
#pragma once

#include <vector>

#include <od_db.h>

/// The outline in the coordinates of the block; empty for a reference without one. Where it is inverted, a
/// rectangle around everything, from one of whose corners the outline goes to what is hidden, round it and
/// back.
std::vector<OdGePoint3d> ReferenceClip(const OdDbEntity& reference);
