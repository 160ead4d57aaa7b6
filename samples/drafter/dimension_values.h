// What the dialog of dimension styles edits, read from the styles of a drawing and written back. Knows no
// window.
#pragma once

#include <vector>

#include <od_db.h>

#include "scene.h"

/// One style. Arrowheads are names of blocks, empty for the filled, closed one.
struct DimensionValues {
    OdString name;
    OdString first, second, leader;
    double arrowSize = 2.5;   ///< drawing units
    double textHeight = 2.5;  ///< drawing units; shown, not edited
    OdCmColor lineColor;      ///< an indexed one
    OdDb::LineWeight lineWeight = OdDb::kLnWtByBlock;
    OdDbObjectId linetype;
    OdString callout;  ///< name of a block, empty for none

    bool operator==(const DimensionValues&) const = default;
};

/// The styles in the order of the drawing's table.
std::vector<DimensionValues> ReadDimensionStyles(OdDbDatabase& drawing);
/// Writes one style, which is made if the drawing lacks it, with the blocks that it needs.
void WriteDimensionStyle(OdDbDatabase& drawing, const DimensionValues& values);
/// Makes a style of the drawing the current one: the header holds its settings from then on.
void SetCurrentDimensionStyle(OdDbDatabase& drawing, const OdString& name);

/// A dimension, a leader and a callout in this style. Arrowheads of the user's come from `drawing`.
Scene DimensionSample(OdDbDatabase& drawing, const DimensionValues& values);
