#include "od_db_dim_style_table.h"

#include "od_db_store.h"

namespace {

constexpr int kLineColor = 176;
constexpr int kLineWeight = 371;
constexpr int kLinetype = 345;

}  // namespace

OdString OdDbDimStyleTableRecord::arrowhead(int handleCode, int nameCode) const {
    if (store() && m_groups.handle(handleCode) != 0) {
        const auto block = store()->id(m_groups.handle(handleCode)).open<OdDbBlockTableRecord>();
        return block ? block->getName() : OdString();
    }
    return nameCode == kNoNameCode ? OdString() : m_groups.text(nameCode);
}

OdResult OdDbDimStyleTableRecord::setArrowhead(int handleCode, int nameCode, const wchar_t* name) {
    if (!store()) return kOdNoDatabase;
    const OdString wanted(name);
    const OdDbSymbolTableRecord* block = wanted.isEmpty() ? nullptr : store()->record(kBlockTable, wanted);
    if (!block && !wanted.isEmpty()) return kOdKeyNotFound;
    OdGroupList& groups = editGroups();
    if (nameCode != kNoNameCode) groups.remove(nameCode);
    if (block)
        groups.setHandle(handleCode, block->handle());
    else
        groups.remove(handleCode);
    return kOdOk;
}

OdCmColor OdDbDimStyleTableRecord::dimclrd() const {
    OdCmColor color;
    if (!color.setColorIndex(static_cast<int>(m_groups.integer(kLineColor, OdCmColor::kByBlockIndex))))
        color.setColorIndex(OdCmColor::kByBlockIndex);
    return color;
}

OdDb::LineWeight OdDbDimStyleTableRecord::dimlwd() const {
    const auto weight = static_cast<int>(m_groups.integer(kLineWeight, OdDb::kLnWtByBlock));
    return OdDb::isLegalLineWeight(weight) ? static_cast<OdDb::LineWeight>(weight) : OdDb::kLnWtByBlock;
}

OdResult OdDbDimStyleTableRecord::setDimlwd(OdDb::LineWeight weight) {
    if (!OdDb::isLegalLineWeight(weight)) return kOdInvalidInput;
    editGroups().setInteger(kLineWeight, weight);
    return kOdOk;
}

OdDbObjectId OdDbDimStyleTableRecord::dimltype() const {
    if (!store()) return {};
    const OdDbObjectId id = store()->id(m_groups.handle(kLinetype));
    if (id.open<OdDbLinetypeTableRecord>()) return id;
    const OdDbSymbolTableRecord* byBlock = store()->record(kLinetypeTable, L"ByBlock");
    return byBlock ? byBlock->objectId() : OdDbObjectId();
}

OdResult OdDbDimStyleTableRecord::setDimltype(const OdDbObjectId& linetype) {
    const auto record = linetype.open<OdDbLinetypeTableRecord>();
    if (!record || linetype.database() != database()) return kOdInvalidInput;
    // Older versions can't hold it, so what holds without being written isn't.
    if (dimltype() == linetype) return kOdOk;
    editGroups().setHandle(kLinetype, linetype.handle());
    return kOdOk;
}
