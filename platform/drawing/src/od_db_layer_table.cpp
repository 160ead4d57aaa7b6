#include "od_color_groups.h"
#include "od_db_store.h"

#include <cstdlib>

namespace {

constexpr int kFrozenFlag = 1;
constexpr int kLockedFlag = 4;
constexpr int kColorCode = 62;

int withFlag(int flags, int flag, bool on) { return on ? flags | flag : flags & ~flag; }

}  // namespace

int OdDbLayerTableRecord::colorIndex() const {
    const std::int64_t index = std::llabs(m_groups.integer(kColorCode, 7));
    return index >= 1 && index <= 255 ? static_cast<int>(index) : 7;
}

OdCmColor OdDbLayerTableRecord::color() const {
    OdCmColor color = odColorFromGroups(m_groups);
    if (color.isByACI()) color.setColorIndex(colorIndex());
    return color;
}

void OdDbLayerTableRecord::setColor(const OdCmColor& color) {
    const bool off = isOff();
    OdCmColor shown = color;
    if (shown.isByLayer() || shown.isByBlock()) shown.setColorIndex(OdCmColor::kForeground);
    odColorToGroups(shown, editGroups());
    setIsOff(off);
}

OdDbObjectId OdDbLayerTableRecord::linetypeObjectId() const {
    if (!store()) return {};
    OdDbSymbolTableRecord* record = store()->record(kLinetypeTable, m_groups.text(6));
    if (!record) record = store()->record(kLinetypeTable, L"Continuous");
    return record ? record->objectId() : OdDbObjectId();
}

OdResult OdDbLayerTableRecord::setLinetypeObjectId(const OdDbObjectId& id) {
    const auto record = id.open<OdDbLinetypeTableRecord>();
    if (!record) return kOdInvalidInput;
    editGroups().setText(6, record->getName());
    return kOdOk;
}

OdDb::LineWeight OdDbLayerTableRecord::lineWeight() const {
    const auto weight = static_cast<int>(m_groups.integer(370, OdDb::kLnWtByLwDefault));
    return OdDb::isLegalLineWeight(weight) ? static_cast<OdDb::LineWeight>(weight) : OdDb::kLnWtByLwDefault;
}

OdResult OdDbLayerTableRecord::setLineWeight(OdDb::LineWeight weight) {
    if (!OdDb::isLegalLineWeight(weight) || weight == OdDb::kLnWtByLayer || weight == OdDb::kLnWtByBlock)
        return kOdInvalidInput;
    editGroups().setInteger(370, weight);
    return kOdOk;
}

OdDbObjectId OdDbLayerTableRecord::plotStyleNameId() const {
    return store() ? store()->id(m_groups.handle(390)) : OdDbObjectId();
}

OdString OdDbLayerTableRecord::plotStyleName() const {
    OdDbDictionaryPtr names;
    if (!database() || database()->getPSTYLEMODE() != 0) return {};
    if (database()->getPlotStyleNameDictionary(names) != kOdOk) return {};
    return names->nameAt(plotStyleNameId());
}

OdResult OdDbLayerTableRecord::setPlotStyleName(const wchar_t* name) {
    OdDbDictionaryPtr names;
    if (!database()) return kOdNoDatabase;
    if (database()->getPlotStyleNameDictionary(names) != kOdOk || !names->has(name)) return kOdKeyNotFound;
    editGroups().setHandle(390, names->getAt(name).handle());
    return kOdOk;
}

bool OdDbLayerTableRecord::isOff() const { return m_groups.integer(kColorCode, 7) < 0; }

void OdDbLayerTableRecord::setIsOff(bool off) {
    const std::int64_t index = colorIndex();
    editGroups().setInteger(kColorCode, off ? -index : index);
}

void OdDbLayerTableRecord::setIsFrozen(bool frozen) { setFlags(withFlag(flags(), kFrozenFlag, frozen)); }

void OdDbLayerTableRecord::setIsLocked(bool locked) { setFlags(withFlag(flags(), kLockedFlag, locked)); }

bool OdDbLayerTableRecord::isPlottable() const { return m_groups.integer(290, 1) != 0; }

void OdDbLayerTableRecord::setIsPlottable(bool plottable) { editGroups().setInteger(290, plottable ? 1 : 0); }
