#include "od_angle.h"
#include "od_db_store.h"

namespace {

OdDbObjectId blockNamed(const OdDbStore* store, const OdString& name) {
    const OdDbSymbolTableRecord* record =
        store && !name.isEmpty() ? store->record(kBlockTable, name) : nullptr;
    return record ? record->objectId() : OdDbObjectId();
}

}  // namespace

OdDbObjectId OdDbBlockReference::blockTableRecord() const { return blockNamed(store(), m_groups.text(2)); }

OdResult OdDbBlockReference::setBlockTableRecord(const OdDbObjectId& id) {
    const auto block = id.open<OdDbBlockTableRecord>();
    if (!block) return kOdInvalidInput;
    editGroups().setText(2, block->getName());
    return kOdOk;
}

OdGePoint3d OdDbBlockReference::scaleFactors() const {
    return {m_groups.real(41, 1), m_groups.real(42, 1), m_groups.real(43, 1)};
}

void OdDbBlockReference::setScaleFactors(const OdGePoint3d& factors) {
    OdGroupList& groups = editGroups();
    groups.setReal(41, factors.x);
    groups.setReal(42, factors.y);
    groups.setReal(43, factors.z);
}

double OdDbBlockReference::rotation() const { return odRadians(m_groups.real(50)); }

void OdDbBlockReference::setRotation(double radians) { editGroups().setReal(50, odDegrees(radians)); }

OdArray<OdDbAttribute*> OdDbBlockReference::attributes() const {
    OdArray<OdDbAttribute*> all;
    for (const OdDbEntityPtr& part : m_parts)
        if (auto* attribute = dynamic_cast<OdDbAttribute*>(part.get()); attribute && !attribute->isErased())
            all.append(attribute);
    return all;
}

OdResult OdDbBlockReference::appendAttribute(const OdSmartPtr<OdDbAttribute>& attribute) {
    if (!attribute || attribute->database()) return kOdInvalidInput;
    editGroups();
    auto place = m_parts.end();
    if (!m_parts.empty() && dynamic_cast<OdDbSequenceEnd*>(m_parts.back().get())) --place;
    m_parts.insert(place, OdDbEntityPtr(attribute.get()));
    if (store()) store()->adoptEntity(OdDbEntityPtr(attribute.get()), handle());
    return kOdOk;
}

OdDbObjectId OdDbDimension::dimBlockId() const { return blockNamed(store(), m_groups.text(2)); }
