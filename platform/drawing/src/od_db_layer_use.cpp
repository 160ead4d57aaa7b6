#include "od_db_layer_use.h"

#include "od_db_store.h"

namespace {

constexpr int kLayerInXData = 1003;

bool isStandardName(const OdString& name) { return name.view() == L"0"; }

/// The block that an entity is in, also as a part of another one; null without one.
const OdDbBlockTableRecord* blockOf(const OdDbDatabase& drawing, const OdDbEntity& entity) {
    constexpr int kDeepest = 4;  // attribute, insert, block; a damaged file may hold a ring
    const OdDbObject* at = &entity;
    for (int i = 0; at && i < kDeepest; ++i) {
        at = drawing.objectByHandle(at->ownerId().handle());
        if (const auto* block = dynamic_cast<const OdDbBlockTableRecord*>(at)) return block;
    }
    return nullptr;
}

/// Replaces `from` by `to` among the layers that an object's extended data names.
void renameInXData(OdDbObject& object, const OdString& from, const OdString& to) {
    OdGroup group;
    for (std::uint32_t at = 0; object.groups().read(at, group); at = group.end) {
        if (group.code != kLayerInXData || group.wide().iCompare(from) != 0) continue;
        OdGroupList named;
        named.addText(kLayerInXData, to);
        object.editGroups().replace(group.begin, group.end, named);
        // The list may be another one now; the place is the same.
        object.groups().read(group.begin, group);
    }
}

}  // namespace

OdDbLayerUses::OdDbLayerUses(OdDbDatabase& drawing) {
    OdDbLayerTablePtr table;
    drawing.getLayerTable(table);
    for (auto walk = table->newIterator(); !walk->done(); walk->step()) {
        OdDbSymbolTableRecordPtr record;
        walk->getRecord(record);
        OdDbLayerUse& use = m_uses[record->handle()];
        use.isStandard = isStandardName(record->getName());
        use.isDependent = record->isDependent();
        use.isCurrent = record->objectId() == drawing.clayer();
    }
    const OdDbStore& store = OdDbStore::of(drawing);
    for (const auto& entry : store.objects) {
        const OdDbObject& object = *entry.second;
        if (store.isGone(object)) continue;
        if (const auto* entity = dynamic_cast<const OdDbEntity*>(&object)) countEntity(*entity);
        countHandles(object);
    }
}

void OdDbLayerUses::countEntity(const OdDbEntity& entity) {
    const auto found = m_uses.find(entity.layerId().handle());
    if (found == m_uses.end()) return;
    const OdDbBlockTableRecord* block = blockOf(*entity.database(), entity);
    if (block == nullptr || odIsModelSpaceName(block->getName()) || block->isLayout()) {
        ++found->second.entities;
        return;
    }
    ++found->second.blockEntities;
    found->second.block = block->getName();
}

void OdDbLayerUses::countHandles(const OdDbObject& object) {
    constexpr int kApplicationData = 102;
    bool isApplicationData = false;  // lists of reactors name objects that they don't need
    OdGroup group;
    for (std::uint32_t at = 0; object.groups().read(at, group); at = group.end) {
        if (group.code == kApplicationData) isApplicationData = group.text.starts_with("{");
        if (isApplicationData || group.handle() == object.handle()) continue;
        const auto found = m_uses.find(group.handle());
        if (found != m_uses.end()) ++found->second.others;
    }
}

OdDbLayerUse OdDbLayerUses::of(const OdDbObjectId& id) const {
    const auto found = m_uses.find(id.handle());
    return found == m_uses.end() ? OdDbLayerUse() : found->second;
}

OdResult oddbRenameLayer(const OdDbObjectId& id, const wchar_t* name) {
    const auto layer = id.open<OdDbLayerTableRecord>();
    if (!layer || !name || !*name || isStandardName(layer->getName()) || layer->isDependent())
        return kOdInvalidInput;
    OdDbLayerTablePtr table;
    id.database()->getLayerTable(table);
    const OdDbObjectId taken = table->getAt(name);
    if (!taken.isNull() && taken != id) return kOdDuplicateKey;
    if (layer->getName().view() != name) OdDbStore::of(*id.database()).renameLayer(*layer, OdString(name));
    return kOdOk;
}

void OdDbStore::renameLayer(OdDbLayerTableRecord& layer, const OdString& name) {
    const OdString former = layer.getName();
    const bool isCurrent = header.text("CLAYER").iCompare(former) == 0;
    layer.editGroups();
    nameOf(layer) = name;
    refreshNames();
    if (isCurrent) database->editHeader().setText("CLAYER", name);
    for (const auto& entry : objects) renameInXData(*entry.second, former, name);
}
