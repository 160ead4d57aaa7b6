// The boundary through which a block reference is seen. Internal to the module.
#pragma once

#include <vector>

#include <od_db.h>

/// The outline in the coordinates of the block; empty for a reference without one.
std::vector<OdGePoint3d> ReferenceClip(const OdDbEntity& reference);
