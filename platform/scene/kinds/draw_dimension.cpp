// Dimensions by their blocks; without one from their style and points.
#include "block_walk.h"
#include "kinds/dimension_layout.h"
#include "kinds/draw_functions.h"
#include "kinds/entity_cast.h"

void DrawDimension(const OdDbEntity& entity, EntityPen& pen) {
    const auto* dimension = As<OdDbDimension>(entity);
    if (dimension == nullptr) return;
    const OdDbObjectId block = dimension->dimBlockId();
    if (block.isNull()) return LayOutDimension(*dimension, pen);
    // A copy of a dimension may share its block, moved.
    const EntityPen inPlane = pen.inPlaneOf(entity).withDots();
    OdGroup group;
    const bool isMoved = entity.groups().find(12, group);
    DrawBlockWithin(isMoved ? inPlane.within(SpaceTransform::Moved(entity.groups().point(12))) : inPlane,
                    block);
}
