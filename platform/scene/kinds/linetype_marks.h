// The shapes and texts that stand in a complex linetype. Internal to the module.
#pragma once

#include "entity_pen.h"

/// Draws the marks of the pen's linetype along a path that lies on the plane. A path that would take too many
/// has its dashes alone.
void DrawLinetypeMarks(const EntityPen& pen, const ScenePath& path);
