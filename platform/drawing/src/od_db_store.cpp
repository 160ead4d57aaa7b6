#include "od_db_store.h"

#include <unordered_set>

#include "od_db_change_notes.h"
#include "od_dxf_markers.h"

namespace {

const char* const kRecordNames[kTableCount] = {"VPORT", "LTYPE", "LAYER",    "STYLE",       "VIEW",
                                               "UCS",   "APPID", "DIMSTYLE", "BLOCK_RECORD"};

OdDbSymbolTablePtr makeTable(int kind) {
    switch (kind) {
        case kLinetypeTable: return new OdDbLinetypeTable;
        case kLayerTable: return new OdDbLayerTable;
        case kTextStyleTable: return new OdDbTextStyleTable;
        case kDimStyleTable: return new OdDbDimStyleTable;
        case kBlockTable: return new OdDbBlockTable;
        default: return new OdDbSymbolTable(kRecordNames[kind]);
    }
}

}  // namespace

bool odIsModelSpaceName(const wchar_t* name) {
    return odCompareFolded(name, L"*MODEL_SPACE") == 0 || odCompareFolded(name, L"$MODEL_SPACE") == 0;
}

bool odIsPaperSpaceName(const wchar_t* name) {
    return odCompareFolded(name, L"*PAPER_SPACE") == 0 || odCompareFolded(name, L"$PAPER_SPACE") == 0;
}

std::wstring odFoldedName(const wchar_t* name) {
    std::wstring folded(name ? name : L"");
    for (wchar_t& c : folded) c = odFoldCase(c);
    return folded;
}

OdDbStore::~OdDbStore() {
    for (auto& entry : objects) entry.second->m_store = nullptr;
}

bool OdDbStore::isGone(const OdDbObject& gone) const {
    constexpr int kDeepest = 8;  // attribute, insert, block, table; a damaged file may hold a ring
    const OdDbObject* at = &gone;
    for (int i = 0; at && i < kDeepest; ++i) {
        if (at->isErased()) return true;
        at = object(at->m_owner);
    }
    return false;
}

void OdDbStore::endSharedReading() const {
    for (const std::function<void()>* each : sharedReadings) (*each)();
}

void OdDbStore::willChange(const OdDbObject& object) const {
    endSharedReading();
    if (notes) notes->willChange(object);
}

void OdDbStore::willChangeHeader() const {
    endSharedReading();
    if (notes) notes->willChangeHeader();
}

void OdDbStore::setTileMode(int mode) {
    header.setInteger("TILEMODE", mode);
    if (notes && notes->header) notes->header->setInteger("TILEMODE", mode);
}

void OdDbStore::made(const OdDbObject& object) const {
    if (notes) notes->made(object);
}

void OdDbStore::refreshNames() {
    m_lastLayer = 0;
    for (auto& table : tables) {
        table->m_byName.clear();
        for (OdDbSymbolTableRecord* record : table->m_records) {
            const auto place = table->m_byName.emplace(odFoldedName(record->m_name), record);
            if (!place.second && place.first->second->isErased()) place.first->second = record;
        }
    }
}

OdDbObject* OdDbStore::object(OdDbHandle handle) const {
    const auto found = objects.find(handle);
    return found == objects.end() ? nullptr : found->second.get();
}

void OdDbStore::adopt(const OdDbObjectPtr& object, OdDbHandle handle, OdDbHandle owner) {
    endSharedReading();
    if (handle == 0 || objects.count(handle)) handle = newHandle();
    if (handle >= nextHandle) nextHandle = handle + 1;
    object->m_handle = handle;
    object->m_owner = owner;
    object->m_store = this;
    objects.emplace(handle, object);
    made(*object);
}

OdDbSymbolTableRecord* OdDbStore::addRecord(OdTableKind kind, const OdDbSymbolTableRecordPtr& record,
                                            const OdString& name, OdDbHandle handle) {
    OdDbSymbolTable& table = *tables[kind];
    record->m_name = name;
    adopt(OdDbObjectPtr(record.get()), handle, table.handle());
    table.m_records.push_back(record.get());
    const std::wstring key = odFoldedName(name);
    const auto found = table.m_byName.find(key);
    if (found == table.m_byName.end())
        table.m_byName.emplace(key, record.get());
    else if (found->second->isErased())
        found->second = record.get();
    return record.get();
}

OdDbSymbolTableRecord* OdDbStore::needRecord(OdTableKind kind, const wchar_t* name) {
    OdDbSymbolTableRecord* found = record(kind, name);
    return found ? found : makeRecord(kind, name);
}

OdDbSymbolTableRecord* OdDbStore::makeRecord(OdTableKind kind, const wchar_t* name) {
    OdDbSymbolTableRecord* made = addRecord(kind, tables[kind]->newRecord(), OdString(name), 0);
    odGiveNewRecordGroups(made->dxfName(), made->m_groups);
    return made;
}

void OdDbStore::addNewRecord(OdTableKind kind, const OdDbSymbolTableRecordPtr& record) {
    odGiveNewRecordGroups(record->dxfName(), record->m_groups);
    const OdString name = record->getName();
    addRecord(kind, record, name, 0);
    if (kind != kBlockTable) return;
    auto& block = static_cast<OdDbBlockTableRecord&>(*record);
    block.m_beginHandle = newHandle();
    block.m_endHandle = newHandle();
    odCompleteBlockEdge(true, block.m_begin);
    odCompleteBlockEdge(false, block.m_end);
}

void OdDbStore::adoptEntity(const OdDbEntityPtr& entity, OdDbHandle owner) {
    odCompleteEntityMarkers(entity->dxfName(), entity->m_groups);
    adopt(OdDbObjectPtr(entity.get()), 0, owner);
    if (!object<OdDbLayerTableRecord>(entity->m_layer)) entity->m_layer = layerHandle("0");
    if (const auto* parts = entity->parts())
        for (const OdDbEntityPtr& part : *parts)
            if (!part->store()) adoptEntity(part, entity->handle());
}

OdDbHandle OdDbStore::layerHandle(std::string_view name) {
    if (m_lastLayer && name == m_lastLayerName) return m_lastLayer;
    m_lastLayerName = name;
    m_lastLayer = needRecord(kLayerTable, name.empty() ? L"0" : odWide(name).c_str())->handle();
    return m_lastLayer;
}

OdDbHandle OdDbStore::linetypeHandle(std::string_view name) {
    const OdString wide = odWide(name);
    if (wide.isEmpty() || wide.iCompare(L"ByLayer") == 0) return 0;
    return needRecord(kLinetypeTable, wide)->handle();
}

OdDbObject* OdDbStore::named(const wchar_t* name) const {
    OdDbDictionary* dictionary = root();
    return dictionary ? object(dictionary->getAt(name).handle()) : nullptr;
}

void OdDbStore::makeTables() {
    for (int kind = 0; kind < kTableCount; ++kind) tables[kind] = makeTable(kind);
}

void OdDbStore::complete() {
    for (auto& table : tables)
        if (!table->store()) adopt(OdDbObjectPtr(table.get()), 0, 0);
    for (auto& table : tables)
        for (OdDbSymbolTableRecord* record : table->m_records) record->m_owner = table->handle();
    completeRecords();
    completeSpaces();
    if (!root()) {
        OdSmartPtr<OdDbDictionary> made(new OdDbDictionary);
        adopt(OdDbObjectPtr(made.get()), 0, 0);
        rootDictionary = made->handle();
        fileObjects.insert(fileObjects.begin(), made.get());
    }
    needDictionary(L"ACAD_GROUP");
    completeLayouts();
    completePlotStyles();
}

void OdDbStore::completeRecords() {
    for (const wchar_t* name : {L"ByBlock", L"ByLayer", L"Continuous"}) needRecord(kLinetypeTable, name);
    needRecord(kTextStyleTable, L"Standard");
    needRecord(kLayerTable, L"0");
    needRecord(kRegAppTable, L"ACAD");
    needRecord(kDimStyleTable, L"Standard");
    if (records(kViewportTable).empty()) needRecord(kViewportTable, L"*Active");
}

void OdDbStore::completeSpaces() {
    for (const wchar_t* name : {L"*Model_Space", L"*Paper_Space"}) needRecord(kBlockTable, name);
    std::unordered_set<OdDbHandle> taken;
    for (OdDbSymbolTableRecord* record : records(kBlockTable)) {
        auto& block = static_cast<OdDbBlockTableRecord&>(*record);
        for (OdDbHandle* handle : {&block.m_beginHandle, &block.m_endHandle}) {
            if (*handle == 0 || objects.count(*handle) || taken.count(*handle)) *handle = newHandle();
            taken.insert(*handle);
        }
        odCompleteBlockEdge(true, block.m_begin);
        odCompleteBlockEdge(false, block.m_end);
    }
}

OdDbDictionary* OdDbStore::needDictionary(const wchar_t* name, bool withDefault) {
    if (auto* found = dynamic_cast<OdDbDictionary*>(named(name))) return found;
    OdSmartPtr<OdDbDictionary> made(new OdDbDictionary);
    made->m_hasDefault = withDefault;
    root()->setAt(name, OdDbObjectPtr(made.get()));
    return made.get();
}

void OdDbStore::completePlotStyles() {
    OdDbDictionary* names = needDictionary(L"ACAD_PLOTSTYLENAME", true);
    if (!names->numEntries()) names->setAt(L"Normal", new OdDbPlaceHolder);
    if (names->m_hasDefault && !names->defaultId().isValid())
        names->setDefaultId(id(names->m_entries[0].handle));
}

void OdDbStore::addLayout(OdDbDictionary& layouts, const wchar_t* name, OdDbBlockTableRecord& block,
                          int order) {
    OdSmartPtr<OdDbLayout> layout(new OdDbLayout);
    odGiveNewLayoutGroups(layout->m_groups, name, block.handle(), order);
    layouts.setAt(name, OdDbObjectPtr(layout.get()));
    block.m_groups.setHandle(340, layout->handle());
}

void OdDbStore::completeLayouts() {
    OdDbDictionary* layouts = needDictionary(L"ACAD_LAYOUT");
    int order = 0;
    for (OdDbSymbolTableRecord* record : records(kBlockTable)) {
        auto& block = static_cast<OdDbBlockTableRecord&>(*record);
        const bool model = odIsModelSpaceName(block.getName());
        if (!model && !odIsPaperSpaceName(block.getName())) continue;
        if (object<OdDbLayout>(block.m_groups.handle(340))) continue;
        OdString name(L"Model");
        for (int number = 1;
             !model && layouts->has(name = OdString(L"Layout") + std::to_wstring(number).c_str());)
            ++number;
        if (model && layouts->has(name)) continue;
        addLayout(*layouts, name, block, model ? 0 : ++order);
    }
}
