// What the tip of an object in the drawing says.
#pragma once

#include <od_array.h>

#include "scene.h"

/// Whether the user wants tips: the setting "ToolTips" of section "General" is 0 if not.
bool AreTipsOn();

/// Kind, layer, colour, linetype, and the length or the area of `entity` as `scene` shows it, a line each.
OdArray<OdString> DescribeObject(const Scene& scene, const OdDbObjectId& entity);
