// Reads of the working drawing's current layer, as the ByLayer samples need them. Private to the library.
//
// Nothing is cached and nothing is subscribed to: a picker reads at each paint.
#pragma once

#include <od_cm_color.h>
#include <od_db_types.h>

class OdDbDatabase;

/// Colour index of the current layer, or -1 without host services, drawing or layer.
int CurrentLayerColorIndex();

/// Puts the colour of the current layer into `color`. False without host services, drawing or layer id. True
/// with `color` untouched if only the layer itself can't be opened.
bool CurrentLayerColor(OdCmColor& color);

/// Lineweight of the current layer of `drawing`, null for the working drawing; 0 without host services,
/// drawing or layer.
OdDb::LineWeight CurrentLayerLineWeight(const OdDbDatabase* drawing);
