#include "block_walk.h"

#include <algorithm>
#include <cstring>

#include <od_db_further_blocks.h>

#include "kinds/draw_functions.h"

namespace {

constexpr int kMaximumDepth = 24;  // blocks within blocks
constexpr std::size_t kEntityCost = 40;

OdSmartPtr<OdDbSortentsTable> orderOf(const OdDbBlockTableRecord& block) {
    const auto beside = block.extensionDictionary().open<OdDbDictionary>();
    return beside ? beside->getAt(L"ACAD_SORTENTS").open<OdDbSortentsTable>()
                  : OdSmartPtr<OdDbSortentsTable>();
}

/// The entities by their numbers, or by those that a table of the block gives in their place.
std::vector<OdDbEntity*> sorted(std::vector<OdDbEntity*> entities, const OdDbSortentsTable& table) {
    const std::map<OdDbHandle, OdDbHandle> places = table.places();
    const auto placeOf = [&places](const OdDbEntity* entity) {
        const auto found = places.find(entity->handle());
        return found != places.end() ? found->second : entity->handle();
    };
    std::stable_sort(entities.begin(), entities.end(),
                     [&](const OdDbEntity* a, const OdDbEntity* b) { return placeOf(a) < placeOf(b); });
    return entities;
}

}  // namespace

void DrawEntity(SceneWork& work, const OdDbEntity& entity, const SceneLevel& level) {
    if (entity.isErased() || entity.visibility() == OdDb::kInvisible) return;
    const LayerLook& layer = level.rules->layerOf(entity, level.surrounding);
    // What a reference brings is on layers of its own: one that is off hides what stands for it alone. Of a
    // viewport layers hide the frame.
    const bool isReference = std::strcmp(entity.dxfName(), "INSERT") == 0;
    const bool isViewport = std::strcmp(entity.dxfName(), "VIEWPORT") == 0;
    if (!isViewport && (layer.isFrozen || (layer.isOff && !isReference))) return;
    const DrawFunction draw = DrawFunctionFor(entity.dxfName());
    if (draw == nullptr) {
        work.noteNotDrawn(entity.dxfName());
        return;
    }
    EntityPen pen(work, level, level.rules->lookOf(entity, level.surrounding));
    draw(entity, pen);
}

void DrawBlock(SceneWork& work, const OdDbObjectId& block, const SceneLevel& level) {
    const auto record = block.open<OdDbBlockTableRecord>();
    if (!record || level.depth > kMaximumDepth || work.isOver() || !work.enter(block)) return;
    const auto draw = [&](const std::vector<OdDbEntity*>& entities) {
        std::size_t drawn = 0;
        const bool isOutermost = level.entity.isNull();
        const auto* const only = isOutermost ? work.options().only.get() : nullptr;
        for (const OdDbEntity* entity : entities) {
            const bool isLeftOut = only != nullptr && !only->contains(entity->objectId());
            if (!work.spend(isLeftOut ? 1 : kEntityCost)) return;
            if (isLeftOut) continue;
            SceneLevel inner = level;
            if (isOutermost) inner.entity = entity->objectId();
            DrawEntity(work, *entity, inner);
            if (isOutermost) work.noteDrawn(++drawn, entities.size());
        }
    };
    const auto order = orderOf(*record);
    if (!order)
        draw(record->entities());
    else if (work.spend(record->entities().size()))
        draw(sorted(record->entities(), *order));
    work.leave(block);
}

void DrawBlockWithin(const EntityPen& pen, const OdDbObjectId& block) {
    SceneLevel inner = pen.level();
    inner.surrounding = {&pen.look(), pen.look().layer};
    ++inner.depth;
    DrawBlock(pen.work(), block, inner);
}
