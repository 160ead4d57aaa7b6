// Lays out dimensions that bring no block: lines, arrowheads and text from their points and their style.
// Internal to the module.
#pragma once

#include "entity_pen.h"

void LayOutDimension(const OdDbDimension& dimension, const EntityPen& pen);
