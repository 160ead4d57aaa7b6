// Draws the entities of blocks, in their order and by the rules of layers. Internal to the module.
#pragma once

#include "entity_pen.h"

/// Draws the entities of a block. A block that is being drawn already is left out, and one too deep within
/// others.
void DrawBlock(SceneWork& work, const OdDbObjectId& block, const SceneLevel& level);

/// Draws one entity unless its layer hides it.
void DrawEntity(SceneWork& work, const OdDbEntity& entity, const SceneLevel& level);

/// A block within the entity that `pen` draws: its coordinates lie in the pen's, by block means its look.
void DrawBlockWithin(const EntityPen& pen, const OdDbObjectId& block);
