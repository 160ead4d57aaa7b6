// Attributes of references and their definitions. Internal to the module.
#pragma once

#include "entity_pen.h"

/// Draws what an attribute or a definition says, on one line or on several.
void DrawAttributeText(const OdDbText& attribute, const EntityPen& pen);
