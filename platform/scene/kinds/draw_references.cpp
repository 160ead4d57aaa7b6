// Block references, also in rows and columns, with their attributes; and tables by their blocks.
#include <algorithm>
#include <cmath>

#include <od_db_further_blocks.h>
#include <od_db_symbols.h>

#include "block_walk.h"
#include "kinds/draw_attribute.h"
#include "kinds/draw_functions.h"
#include "kinds/entity_cast.h"
#include "rules/reference_clip.h"

namespace {

constexpr std::size_t kCellCost = 40;

/// Settings of which attributes are shown: none, those that aren't invisible, all.
enum AttributeMode { kNone = 0, kVisibleOnes = 1 };

void drawAttributes(const OdDbBlockReference& reference, const EntityPen& pen) {
    const int mode = pen.work().drawing().getATTMODE();
    if (mode == kNone) return;
    for (const OdDbAttribute* attribute : reference.attributes()) {
        if (attribute->visibility() == OdDb::kInvisible || (mode == kVisibleOnes && attribute->isInvisible()))
            continue;
        // An attribute isn't inside of the block: it lies where the reference lies, on a layer of its own.
        const LayerLook& layer = pen.rules().layerOf(*attribute, pen.level().surrounding);
        if (layer.isFrozen || layer.isOff) continue;
        const EntityPen own(pen.work(), pen.level(), pen.rules().lookOf(*attribute, pen.level().surrounding));
        DrawAttributeText(*attribute, own);
    }
}

/// The block within `pen`, as far as the reference's boundary lets it be seen.
void drawClipped(const std::vector<OdGePoint3d>& boundary, const OdDbObjectId& block, const EntityPen& pen) {
    if (boundary.empty()) return DrawBlockWithin(pen, block);
    SceneWork& work = pen.work();
    if (!work.spend(boundary.size())) return;
    std::vector<OdGePoint2d> outline;
    outline.reserve(boundary.size());
    for (const OdGePoint3d& point : boundary) outline.push_back(pen.onPlane(point));
    const int before = work.clip();
    work.setClip(work.addClip(std::move(outline)));
    DrawBlockWithin(pen, block);
    work.setClip(before);
}

}  // namespace

void DrawReference(const OdDbEntity& entity, EntityPen& pen) {
    const auto* reference = As<OdDbBlockReference>(entity);
    if (reference == nullptr) return;
    const auto block = reference->blockTableRecord().open<OdDbBlockTableRecord>();
    if (!block) {
        drawAttributes(*reference, pen);
        return;
    }
    if (block->isFromExternalReference() && block->count() == 0) pen.work().noteNotDrawn("XREF");
    const int rows = std::max(1, reference->rows()), columns = std::max(1, reference->columns());
    const EntityPen placed = pen.inPlaneOf(entity)
                                 .within(SpaceTransform::Moved(reference->position()))
                                 .within(SpaceTransform::Turned(reference->rotation()));
    const SpaceTransform inner =
        SpaceTransform::Scaled(reference->scaleFactors()).after(SpaceTransform::Moved(block->origin() * -1));
    const std::vector<OdGePoint3d> boundary = ReferenceClip(entity);
    for (int row = 0; row < rows; ++row)
        for (int column = 0; column < columns; ++column) {
            if (!pen.work().spend(kCellCost)) return;
            const OdGePoint3d cell{column * reference->columnSpacing(), row * reference->rowSpacing(), 0};
            drawClipped(boundary, block->objectId(), placed.within(SpaceTransform::Moved(cell).after(inner)));
        }
    drawAttributes(*reference, pen);
}

void DrawTable(const OdDbEntity& entity, EntityPen& pen) {
    const auto* table = As<OdDbTable>(entity);
    const auto block = table != nullptr ? table->blockTableRecord().open<OdDbBlockTableRecord>() : nullptr;
    if (!block) {
        pen.work().noteNotDrawn(entity.dxfName());
        return;
    }
    const SpaceVector direction = table->direction();
    DrawBlockWithin(pen.within(SpaceTransform::Moved(table->position()))
                        .within(SpaceTransform::Turned(std::atan2(direction.y, direction.x)))
                        .within(SpaceTransform::Moved(block->origin() * -1)),
                    block->objectId());
}
