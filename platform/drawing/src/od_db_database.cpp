#include "od_db_database.h"

#include <algorithm>

#include "od_color_groups.h"
#include "od_db_store.h"
#include "od_dxf_reader.h"
#include "od_dxf_writer.h"
#include "od_file.h"

namespace {

/// Notes the failure for a caller that wants to know.
OdResult fail(OdDbDxfError* error, const OdDbDxfError& reason) {
    if (error) *error = reason;
    return kOdFileError;
}

}  // namespace

OdDbDatabase::OdDbDatabase() : m_store(std::make_unique<OdDbStore>(this)) {
    m_store->makeTables();
    m_store->complete();
    m_modified = false;
}

OdDbDatabase::~OdDbDatabase() = default;

OdResult OdDbDatabase::readDxf(const wchar_t* path, OdDbDxfError* error, OdDxfReading* reading) {
    std::string bytes;
    if (!odReadFile(path, bytes))
        return fail(error, {OdDxfErrorCode::kCannotOpen, 0, L"The file can't be opened for reading."});
    const OdResult result = readDxfBytes(bytes, error, reading);
    if (result == kOdOk) m_fileName = path;
    return result;
}

OdResult OdDbDatabase::readDxfBytes(std::string_view bytes, OdDbDxfError* error, OdDxfReading* reading) {
    m_store->endSharedReading();
    auto fresh = std::make_unique<OdDbStore>(this);
    const bool wasModified = m_modified;
    OdDbDxfError reason;
    OdDxfReading own;
    // While it is filled, the new store stands in the old one's place, so that ids made on the way lead into
    // it.
    std::swap(m_store, fresh);
    m_store->makeTables();
    if (!odReadDxf(bytes, *m_store, reading ? *reading : own, reason)) {
        std::swap(m_store, fresh);
        m_modified = wasModified;
        return fail(error, reason);
    }
    m_store->sharedReadings = std::move(fresh->sharedReadings);
    m_store->complete();
    if (!m_store->versionIsKnown) m_store->version = odVersionThatHolds(*m_store);
    m_modified = false;
    if (error) *error = OdDbDxfError();
    return kOdOk;
}

OdResult OdDbDatabase::writeDxf(const wchar_t* path, OdDb::DwgVersion version, OdDbDxfError* error) {
    return writeDxf(path, {version, originalFileIsBinary()}, error);
}

OdResult OdDbDatabase::writeDxf(const wchar_t* path, const OdDxfForm& form, OdDbDxfError* error) {
    const std::string bytes = writeDxfBytes(form, error);
    if (!odReplaceFile(path, bytes))
        return fail(error, {OdDxfErrorCode::kCannotWrite, 0, L"The file can't be written."});
    m_fileName = path;
    m_modified = false;
    return kOdOk;
}

std::string OdDbDatabase::writeDxfBytes(OdDb::DwgVersion version, OdDbDxfError* error) {
    return writeDxfBytes({version, originalFileIsBinary()}, error);
}

std::string OdDbDatabase::writeDxfBytes(const OdDxfForm& form, OdDbDxfError* error) {
    OdDbDxfError report;
    std::string bytes = odWriteDxf(*m_store, form, report.leftOut);
    if (error) *error = report;
    return bytes;
}

std::vector<OdDxfLoss> OdDbDatabase::lossesIn(OdDb::DwgVersion version) const {
    return odDxfLosses(*m_store, version);
}

OdDb::DwgVersion OdDbDatabase::originalFileVersion() const { return m_store->version; }
bool OdDbDatabase::originalFileIsBinary() const { return m_store->binary; }

OdResult OdDbDatabase::openTable(int kind, OdDbSymbolTablePtr& table, OdDb::OpenMode mode) {
    table = m_store->tables[kind];
    if (mode == OdDb::kForWrite) m_modified = true;
    return kOdOk;
}

#define ODRT_TABLE_GETTER(function, Table, kind)                                     \
    OdResult OdDbDatabase::function(OdSmartPtr<Table>& table, OdDb::OpenMode mode) { \
        OdDbSymbolTablePtr any;                                                      \
        const OdResult result = openTable(kind, any, mode);                          \
        table = static_cast<Table*>(any.get());                                      \
        return result;                                                               \
    }
ODRT_TABLE_GETTER(getLayerTable, OdDbLayerTable, kLayerTable)
ODRT_TABLE_GETTER(getLinetypeTable, OdDbLinetypeTable, kLinetypeTable)
ODRT_TABLE_GETTER(getTextStyleTable, OdDbTextStyleTable, kTextStyleTable)
ODRT_TABLE_GETTER(getBlockTable, OdDbBlockTable, kBlockTable)
ODRT_TABLE_GETTER(getDimStyleTable, OdDbDimStyleTable, kDimStyleTable)
ODRT_TABLE_GETTER(getViewTable, OdDbSymbolTable, kViewTable)
ODRT_TABLE_GETTER(getUCSTable, OdDbSymbolTable, kUcsTable)
ODRT_TABLE_GETTER(getViewportTable, OdDbSymbolTable, kViewportTable)
ODRT_TABLE_GETTER(getRegAppTable, OdDbSymbolTable, kRegAppTable)
#undef ODRT_TABLE_GETTER

OdResult OdDbDatabase::getNamedObjectsDictionary(OdDbDictionaryPtr& dictionary, OdDb::OpenMode mode) {
    return oddbOpenOdDbObject(dictionary, m_store->id(m_store->rootDictionary), mode);
}

OdResult OdDbDatabase::getPlotStyleNameDictionary(OdDbDictionaryPtr& dictionary, OdDb::OpenMode mode) {
    const OdDbDictionary* root = m_store->root();
    return oddbOpenOdDbObject(dictionary, root ? root->getAt(L"ACAD_PLOTSTYLENAME") : OdDbObjectId(), mode);
}

OdResult OdDbDatabase::getLayoutDictionary(OdDbDictionaryPtr& dictionary, OdDb::OpenMode mode) {
    const OdDbDictionary* root = m_store->root();
    return oddbOpenOdDbObject(dictionary, root ? root->getAt(L"ACAD_LAYOUT") : OdDbObjectId(), mode);
}

OdDbObjectId OdDbDatabase::currentSpaceId() const {
    return getTILEMODE() != 0 ? modelSpaceId() : paperSpaceId();
}

OdDbObjectId OdDbDatabase::modelSpaceId() const {
    return m_store->tables[kBlockTable]->getAt(L"*Model_Space");
}

OdDbObjectId OdDbDatabase::paperSpaceId() const {
    return m_store->tables[kBlockTable]->getAt(L"*Paper_Space");
}

OdDbObjectId OdDbDatabase::currentLayoutId() const {
    const auto space = currentSpaceId().open<OdDbBlockTableRecord>();
    return space ? space->getLayoutId() : OdDbObjectId();
}

OdDbObjectId OdDbDatabase::clayer() const {
    const OdDbObjectId id = m_store->tables[kLayerTable]->getAt(header().text("CLAYER"));
    return id.isNull() ? m_store->tables[kLayerTable]->getAt(L"0") : id;
}

OdResult OdDbDatabase::setClayer(const OdDbObjectId& id) {
    const auto record = id.open<OdDbLayerTableRecord>();
    if (!record || id.database() != this) return kOdInvalidInput;
    editHeader().setText("CLAYER", record->getName());
    return kOdOk;
}

OdCmColor OdDbDatabase::cecolor() const {
    const OdGroupList* groups = header().find("CECOLOR");
    return groups ? odColorFromGroups(*groups) : OdCmColor();
}

void OdDbDatabase::setCecolor(const OdCmColor& color) {
    OdGroupList groups;
    odColorToGroups(color, groups);
    editHeader().set("CECOLOR", std::move(groups));
}

OdDbObjectId OdDbDatabase::celtype() const {
    const OdDbObjectId id = m_store->tables[kLinetypeTable]->getAt(header().text("CELTYPE"));
    return id.isNull() ? m_store->tables[kLinetypeTable]->getAt(L"ByLayer") : id;
}

OdResult OdDbDatabase::setCeltype(const OdDbObjectId& id) {
    const auto record = id.open<OdDbLinetypeTableRecord>();
    if (!record || id.database() != this) return kOdInvalidInput;
    editHeader().setText("CELTYPE", record->getName());
    return kOdOk;
}

OdDb::LineWeight OdDbDatabase::celweight() const {
    const int weight = getCELWEIGHT();
    return OdDb::isLegalLineWeight(weight) ? static_cast<OdDb::LineWeight>(weight) : OdDb::kLnWtByLayer;
}

OdResult OdDbDatabase::setCelweight(OdDb::LineWeight weight) {
    if (!OdDb::isLegalLineWeight(weight)) return kOdInvalidInput;
    setCELWEIGHT(weight);
    return kOdOk;
}

OdDbObjectId OdDbDatabase::textstyle() const {
    const OdDbObjectId id = m_store->tables[kTextStyleTable]->getAt(header().text("TEXTSTYLE"));
    return id.isNull() ? m_store->tables[kTextStyleTable]->getAt(L"Standard") : id;
}

OdResult OdDbDatabase::setTextstyle(const OdDbObjectId& id) {
    const auto record = id.open<OdDbTextStyleTableRecord>();
    if (!record || id.database() != this) return kOdInvalidInput;
    editHeader().setText("TEXTSTYLE", record->getName());
    return kOdOk;
}

OdDbObjectId OdDbDatabase::dimstyle() const {
    const OdDbObjectId id = m_store->tables[kDimStyleTable]->getAt(header().text("DIMSTYLE"));
    return id.isNull() ? m_store->tables[kDimStyleTable]->getAt(L"Standard") : id;
}

OdResult OdDbDatabase::setDimstyle(const OdDbObjectId& id) {
    const auto record = id.open<OdDbDimStyleTableRecord>();
    if (!record || id.database() != this) return kOdInvalidInput;
    editHeader().setText("DIMSTYLE", record->getName());
    return kOdOk;
}

OdString OdDbDatabase::currentPlotStyleName() const {
    switch (getCEPSNTYPE()) {
        case OdDb::kPlotStyleNameByBlock: return L"ByBlock";
        case OdDb::kPlotStyleNameIsDictDefault: return L"Normal";
        case OdDb::kPlotStyleNameById: break;
        default: return L"ByLayer";
    }
    const OdGroupList* style = header().find("CEPSNID");
    const auto* names = dynamic_cast<const OdDbDictionary*>(m_store->named(L"ACAD_PLOTSTYLENAME"));
    const OdString name = style && names ? names->nameAt(m_store->id(style->handle(390))) : OdString();
    return name.isEmpty() ? OdString(L"ByLayer") : name;
}

OdResult OdDbDatabase::setCurrentPlotStyleName(const wchar_t* name) {
    const OdString wanted(name);
    OdGroupList style;
    int type = OdDb::kPlotStyleNameByLayer;
    if (wanted.iCompare(L"ByBlock") == 0) {
        type = OdDb::kPlotStyleNameByBlock;
    } else if (wanted.iCompare(L"ByLayer") != 0) {
        const auto* names = dynamic_cast<const OdDbDictionary*>(m_store->named(L"ACAD_PLOTSTYLENAME"));
        const OdDbObjectId id = names ? names->getAt(wanted) : OdDbObjectId();
        if (id.isNull()) return kOdKeyNotFound;
        type = OdDb::kPlotStyleNameById;
        style.addHandle(390, id.handle());
    }
    // Without a style of its own the variable stays, as files have it: a null handle.
    if (type != OdDb::kPlotStyleNameById && header().find("CEPSNID")) style.addHandle(390, 0);
    setCEPSNTYPE(type);
    if (!style.isEmpty()) editHeader().set("CEPSNID", std::move(style));
    return kOdOk;
}

const OdDbHeader& OdDbDatabase::header() const { return m_store->header; }

OdDbHeader& OdDbDatabase::editHeader() {
    m_store->willChangeHeader();
    m_modified = true;
    return m_store->header;
}

OdDbObject* OdDbDatabase::objectByHandle(OdDbHandle handle) const { return m_store->object(handle); }

std::string OdDbDatabase::thumbnail() const { return odHexToBytes(m_store->thumbnail, 310); }

void OdDbDatabase::setThumbnail(std::string_view dib) {
    constexpr std::size_t kBytesOfLine = 127;
    constexpr int kSize = 90, kBytes = 310;
    OdGroupList groups;
    if (!dib.empty()) groups.addInteger(kSize, static_cast<std::int64_t>(dib.size()));
    for (; !dib.empty(); dib.remove_prefix(std::min(dib.size(), kBytesOfLine)))
        groups.addText(kBytes, odBytesToHex(dib.substr(0, kBytesOfLine)));
    m_store->thumbnail = std::move(groups);
    m_store->hasOwnThumbnail = true;
}
