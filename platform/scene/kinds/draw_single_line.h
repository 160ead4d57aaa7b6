// Texts on one line: of TEXT, attributes and their definitions. Internal to the module.
#pragma once

#include "entity_pen.h"

/// Draws `words`, with their codes, where and how `text` says.
void DrawSingleLine(const OdDbText& text, const OdString& words, const EntityPen& pen);

/// The font of a text style.
SceneFont FontOfStyle(const OdDbObjectId& style);
