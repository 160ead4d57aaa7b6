// Draws a shape of a file in the pen's coordinates. Internal to the module.
#pragma once

#include "entity_pen.h"
#include "shapes/shape_code.h"

/// One unit of the pen is a unit of a library of shapes, or the height of capitals of a font.
void DrawShapeLines(const EntityPen& pen, const ShapeFile& file, int number);
