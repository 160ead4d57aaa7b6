#include "od_db_linetype_use.h"

#include "od_db_store.h"

namespace {

constexpr int kLinetypeName = 6;
constexpr int kApplicationData = 102;

}  // namespace

OdDbLinetypeUses::OdDbLinetypeUses(OdDbDatabase& drawing) {
    OdDbLinetypeTablePtr table;
    drawing.getLinetypeTable(table);
    for (auto walk = table->newIterator(); !walk->done(); walk->step()) {
        OdDbSymbolTableRecordPtr record;
        walk->getRecord(record);
        OdDbLinetypeUse& use = m_uses[record->handle()];
        for (const wchar_t* name : {L"ByLayer", L"ByBlock", L"Continuous"})
            use.isStandard |= record->getName().iCompare(name) == 0;
        use.isDependent = record->isDependent();
        m_byName.emplace(odFoldedName(record->getName()), record->handle());
    }
    if (OdDbLinetypeUse* current = named(drawing.header().text("CELTYPE"))) current->isCurrent = true;
    countHeader(drawing.header());
    for (const auto& entry : drawing.m_store->objects)
        if (!drawing.m_store->isGone(*entry.second)) countObject(*entry.second);
}

OdDbLinetypeUse OdDbLinetypeUses::of(const OdDbObjectId& id) const {
    const auto found = m_uses.find(id.handle());
    return found == m_uses.end() ? OdDbLinetypeUse() : found->second;
}

OdDbLinetypeUse* OdDbLinetypeUses::named(const OdString& name) {
    const auto found = m_byName.find(odFoldedName(name));
    return found == m_byName.end() ? nullptr : &m_uses[found->second];
}

void OdDbLinetypeUses::countHeader(const OdDbHeader& header) {
    for (const OdDbHeader::Variable& variable : header.variables()) {
        OdGroup group;
        if (variable.name == "CELTYPE" || !variable.groups.read(0, group) || group.code != kLinetypeName)
            continue;
        if (OdDbLinetypeUse* use = named(group.wide())) ++use->others;
    }
}

OdDbLinetypeUse* OdDbLinetypeUses::withHandle(OdDbHandle handle) {
    const auto found = m_uses.find(handle);
    return found == m_uses.end() ? nullptr : &found->second;
}

void OdDbLinetypeUses::countObject(const OdDbObject& object) {
    if (const auto* entity = dynamic_cast<const OdDbEntity*>(&object))
        if (OdDbLinetypeUse* own = withHandle(entity->linetypeId().handle())) ++own->entities;
    const bool isLayer = dynamic_cast<const OdDbLayerTableRecord*>(&object) != nullptr;
    const bool namesByText = isLayer || std::string_view(object.dxfName()) == "MLINESTYLE";
    bool isApplicationData = false;  // lists of reactors name objects that they don't need
    OdGroup group;
    for (std::uint32_t at = 0; object.groups().read(at, group); at = group.end) {
        if (group.code == kApplicationData) isApplicationData = group.text.starts_with("{");
        if (isApplicationData) continue;
        OdDbLinetypeUse* use = nullptr;
        if (namesByText && group.code == kLinetypeName)
            use = named(group.wide());
        else if (group.handle() != object.handle())
            use = withHandle(group.handle());
        if (use) ++(isLayer ? use->layers : use->others);
    }
}
