#include "od_color_groups.h"
#include "od_db_store.h"
#include "od_dxf_markers.h"

#include <mutex>
#include <set>
#include <string>

namespace {

constexpr const wchar_t* kHyperlinkApplication = L"PE_URL";

/// Place where the common part of an entity's groups ends: the second subclass marker, or the end of the own
/// groups.
std::uint32_t commonEnd(const OdGroupList& groups) {
    OdGroup group;
    if (groups.find(100, group) && groups.find(100, group, group.end)) return group.begin;
    return groups.ownEnd();
}

}  // namespace

bool OdDbEntity::findCommon(int code, OdGroup& group) const {
    return m_groups.find(code, group) && group.begin < commonEnd(m_groups);
}

void OdDbEntity::setCommon(int code, const OdGroupList& value) {
    OdGroupList& groups = editGroups();
    OdGroup group;
    if (findCommon(code, group)) {
        groups.replace(group.begin, group.end, value);
    } else {
        const std::uint32_t end = commonEnd(groups);
        groups.replace(end, end, value);
    }
}

OdDbObjectId OdDbEntity::layerId() const { return store() ? store()->id(m_layer) : OdDbObjectId(); }

OdResult OdDbEntity::setLayer(const OdDbObjectId& layerId) {
    if (!layerId.open<OdDbLayerTableRecord>()) return kOdInvalidInput;
    if (database() && layerId.database() != database()) return kOdInvalidInput;
    editGroups();
    m_layer = layerId.handle();
    return kOdOk;
}

OdString OdDbEntity::layer() const {
    const auto record = layerId().open<OdDbLayerTableRecord>(OdDb::kForRead, true);
    return record ? record->getName() : OdString();
}

OdCmColor OdDbEntity::color() const { return odColorFromGroups(m_groups, 0, commonEnd(m_groups)); }

void OdDbEntity::setColor(const OdCmColor& color) {
    OdGroup group;
    for (const int code : {420, 430, 62})
        if (findCommon(code, group)) editGroups().replace(group.begin, group.end, OdGroupList());
    OdGroupList value;
    if (!color.isByLayer()) value.addInteger(62, color.colorIndex());
    if (color.isByColor()) value.addInteger(420, odTrueColorGroup(color));
    if (color.hasName()) value.addText(430, odColorNameGroup(color));
    setCommon(62, value);
}

bool OdDbEntity::setColorIndex(int index) {
    OdCmColor color;
    if (!color.setColorIndex(index)) return false;
    setColor(color);
    return true;
}

OdDbObjectId OdDbEntity::linetypeId() const {
    if (!store()) return {};
    if (m_linetype) return store()->id(m_linetype);
    const OdDbSymbolTableRecord* byLayer = store()->record(kLinetypeTable, L"ByLayer");
    return byLayer ? byLayer->objectId() : OdDbObjectId();
}

OdResult OdDbEntity::setLinetype(const OdDbObjectId& linetypeId) {
    const auto record = linetypeId.open<OdDbLinetypeTableRecord>();
    if (!record || (database() && record->database() != database())) return kOdInvalidInput;
    editGroups();
    m_linetype = record->getName().iCompare(L"ByLayer") == 0 ? 0 : linetypeId.handle();
    return kOdOk;
}

OdString OdDbEntity::linetype() const {
    const auto record = linetypeId().open<OdDbLinetypeTableRecord>(OdDb::kForRead, true);
    return record ? record->getName() : OdString();
}

double OdDbEntity::linetypeScale() const {
    OdGroup group;
    return findCommon(48, group) ? group.real : 1.0;
}

OdResult OdDbEntity::setLinetypeScale(double scale) {
    if (!(scale > 0)) return kOdInvalidInput;
    OdGroupList value;
    if (scale != 1.0) value.addReal(48, scale);
    setCommon(48, value);
    return kOdOk;
}

OdDb::LineWeight OdDbEntity::lineWeight() const {
    OdGroup group;
    if (!findCommon(370, group) || !OdDb::isLegalLineWeight(static_cast<int>(group.integer)))
        return OdDb::kLnWtByLayer;
    return static_cast<OdDb::LineWeight>(group.integer);
}

OdResult OdDbEntity::setLineWeight(OdDb::LineWeight weight) {
    if (!OdDb::isLegalLineWeight(weight)) return kOdInvalidInput;
    OdGroupList value;
    if (weight != OdDb::kLnWtByLayer) value.addInteger(370, weight);
    setCommon(370, value);
    return kOdOk;
}

OdDb::PlotStyleNameType OdDbEntity::plotStyleNameType() const {
    OdGroup group;
    if (findCommon(380, group) && group.integer >= 0 && group.integer <= 3)
        return static_cast<OdDb::PlotStyleNameType>(group.integer);
    return findCommon(390, group) ? OdDb::kPlotStyleNameById : OdDb::kPlotStyleNameByLayer;
}

OdString OdDbEntity::plotStyleName() const {
    switch (plotStyleNameType()) {
        case OdDb::kPlotStyleNameByLayer: return L"ByLayer";
        case OdDb::kPlotStyleNameByBlock: return L"ByBlock";
        case OdDb::kPlotStyleNameIsDictDefault: return L"Normal";
        default: break;
    }
    OdDbDictionaryPtr names;
    OdGroup group;
    if (!database() || !findCommon(390, group)) return {};
    if (database()->getPlotStyleNameDictionary(names) != kOdOk) return {};
    return names->nameAt(store()->id(group.handle()));
}

OdResult OdDbEntity::setPlotStyleName(const wchar_t* name) {
    OdDbDictionaryPtr names;
    if (!database() || database()->getPlotStyleNameDictionary(names) != kOdOk) return kOdNoDatabase;
    const OdString wanted(name);
    OdGroupList type, handle;
    if (wanted.iCompare(L"ByBlock") == 0) {
        type.addInteger(380, OdDb::kPlotStyleNameByBlock);
    } else if (wanted.iCompare(L"ByLayer") != 0) {
        const OdDbObjectId style = names->getAt(wanted);
        if (style.isNull()) return kOdKeyNotFound;
        type.addInteger(380, OdDb::kPlotStyleNameById);
        handle.addHandle(390, style.handle());
    }
    setCommon(380, type);
    setCommon(390, handle);
    return kOdOk;
}

OdDb::Visibility OdDbEntity::visibility() const {
    OdGroup group;
    return findCommon(60, group) && group.integer == 1 ? OdDb::kInvisible : OdDb::kVisible;
}

void OdDbEntity::setVisibility(OdDb::Visibility visibility) {
    OdGroupList value;
    if (visibility == OdDb::kInvisible) value.addInteger(60, 1);
    setCommon(60, value);
}

OdGeVector3d OdDbEntity::normal() const {
    const OdGePoint3d direction = m_groups.point(210, {0, 0, 1});
    return {direction.x, direction.y, direction.z};
}

double OdDbEntity::elevation() const { return m_groups.real(30); }

void OdDbEntity::setElevation(double elevation) {
    if (OdGroup group; m_groups.find(10, group)) {
        OdGePoint3d point = m_groups.point(10);
        point.z = elevation;
        editGroups().setPoint(10, point);
    }
}

OdString OdDbEntity::hyperlink() const { return xData(kHyperlinkApplication).xDataText(0); }

OdString OdDbEntity::hyperlinkDescription() const { return xData(kHyperlinkApplication).xDataText(1); }

void OdDbEntity::setHyperlink(const wchar_t* url, const wchar_t* description) {
    OdGroupList data;
    if (url && *url) {
        data.addText(1000, url);
        if (description && *description) {
            data.addText(1002, "{");
            data.addText(1000, description);
            data.addText(1002, "}");
        }
    }
    setXData(kHyperlinkApplication, data);
}

bool OdDbEntity::isInPaperSpace() const {
    OdDbObjectId owner = ownerId();
    if (const auto parent = owner.open<OdDbEntity>(OdDb::kForRead, true)) owner = parent->ownerId();
    const auto block = owner.open<OdDbBlockTableRecord>(OdDb::kForRead, true);
    return block && odFoldedName(block->getName()).find(L"PAPER_SPACE") == 1;
}

void OdDbEntity::setDatabaseDefaults(OdDbDatabase* database) {
    if (!database) return;
    setLayer(database->clayer());
    setColor(database->cecolor());
    setLinetype(database->celtype());
    setLinetypeScale(database->getCELTSCALE());
    setLineWeight(database->celweight());
    // Only an entity of the drawing can refer to its plot styles.
    if (this->database() == database) setPlotStyleName(database->currentPlotStyleName());
}

OdDbUnknownEntity::OdDbUnknownEntity(std::string_view type) {
    static std::set<std::string, std::less<>> names;
    static std::mutex mutex;  // drawings are read on several threads
    const std::lock_guard lock(mutex);
    const auto found = names.find(type);
    m_type = found != names.end() ? found->c_str() : names.emplace(type).first->c_str();
}
