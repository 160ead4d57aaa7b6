// Arrowheads of dimensions and leaders. Internal to the module.
#pragma once

#include "entity_pen.h"

/// An arrowhead: a block of the drawing, or one of the usual ones by its name; without either a filled
/// triangle.
struct Arrowhead {
    OdDbObjectId block;
    OdString name;
    double size = 0;  ///< drawing units
};

/// Draws an arrowhead whose tip is at `tip`; `direction` (of length 1) is that in which it points, in the
/// plane of the pen.
void DrawArrowhead(const EntityPen& pen, const Arrowhead& arrowhead, const OdGePoint3d& tip,
                   const OdGePoint2d& direction);
