#include "od_db_store.h"

namespace {

constexpr int kDependentFlag = 16;

}  // namespace

OdResult OdDbSymbolTableRecord::getName(OdString& name) const {
    name = m_name;
    return kOdOk;
}

OdResult OdDbSymbolTableRecord::setName(const wchar_t* name) {
    if (store() || !name || !*name) return kOdInvalidInput;
    m_name = name;
    return kOdOk;
}

bool OdDbSymbolTableRecord::isDependent() const {
    return (flags() & kDependentFlag) != 0 || m_name.view().find(L'|') != std::wstring_view::npos;
}

int OdDbSymbolTableRecord::flags() const { return static_cast<int>(m_groups.integer(70)); }

void OdDbSymbolTableRecord::setFlags(int flags) { editGroups().setInteger(70, flags); }

OdDbSymbolTable::OdDbSymbolTable(const char* recordName) : m_recordName(recordName) {}

OdDbSymbolTable::~OdDbSymbolTable() = default;

std::unique_ptr<OdDbSymbolTableIterator> OdDbSymbolTable::newIterator(bool atBeginning,
                                                                      bool skipErased) const {
    return std::make_unique<OdDbSymbolTableIterator>(
        OdSmartPtr<OdDbSymbolTable>(const_cast<OdDbSymbolTable*>(this)), atBeginning, skipErased);
}

OdDbSymbolTableRecord* OdDbSymbolTable::find(const wchar_t* name) const {
    const auto found = m_byName.find(odFoldedName(name));
    return found == m_byName.end() || found->second->isErased() ? nullptr : found->second;
}

bool OdDbSymbolTable::has(const wchar_t* name) const { return find(name) != nullptr; }

bool OdDbSymbolTable::has(const OdDbObjectId& id) const {
    const auto record = id.open<OdDbSymbolTableRecord>();
    return record && id.database() == database() && record->ownerId() == objectId();
}

OdDbObjectId OdDbSymbolTable::getAt(const wchar_t* name) const {
    const OdDbSymbolTableRecord* record = find(name);
    return record ? record->objectId() : OdDbObjectId();
}

OdResult OdDbSymbolTable::getAt(const wchar_t* name, OdDbObjectId& id) const {
    id = getAt(name);
    return id.isNull() ? kOdKeyNotFound : kOdOk;
}

OdResult OdDbSymbolTable::add(const OdDbSymbolTableRecordPtr& record, OdDbObjectId* id) {
    if (!store()) return kOdNoDatabase;
    if (!record || record->database() || record->getName().isEmpty() ||
        std::string_view(record->dxfName()) != m_recordName)
        return kOdInvalidInput;
    if (has(record->getName())) return kOdDuplicateKey;
    for (int kind = 0; kind < kTableCount; ++kind) {
        if (store()->tables[kind].get() != this) continue;
        OdGroupList& groups = record->editGroups();
        if (groups.isEmpty()) groups.setInteger(70, 0);
        store()->addNewRecord(static_cast<OdTableKind>(kind), record);
    }
    database()->setModified(true);
    if (id) *id = record->objectId();
    return kOdOk;
}

OdResult OdDbSymbolTable::erase(const wchar_t* name) {
    OdDbSymbolTableRecord* record = find(name);
    return record ? record->erase() : kOdKeyNotFound;
}

int OdDbSymbolTable::count() const {
    int count = 0;
    for (const OdDbSymbolTableRecord* record : m_records) count += record->isErased() ? 0 : 1;
    return count;
}

OdDbSymbolTableRecordPtr OdDbSymbolTable::newRecord() const { return new OdDbPlainTableRecord(m_recordName); }

OdDbSymbolTableIterator::OdDbSymbolTableIterator(OdDbSymbolTablePtr table, bool atBeginning, bool skipErased)
    : m_table(std::move(table)), m_skipErased(skipErased) {
    start(atBeginning);
}

OdDbSymbolTableIterator::~OdDbSymbolTableIterator() = default;

void OdDbSymbolTableIterator::start(bool atBeginning) {
    m_index = atBeginning ? 0 : static_cast<int>(m_table->m_records.size()) - 1;
    skip(atBeginning ? 1 : -1);
}

bool OdDbSymbolTableIterator::done() const {
    return m_index < 0 || m_index >= static_cast<int>(m_table->m_records.size());
}

void OdDbSymbolTableIterator::step(bool forward) {
    m_index += forward ? 1 : -1;
    skip(forward ? 1 : -1);
}

void OdDbSymbolTableIterator::skip(int by) {
    while (m_skipErased && !done() && m_table->m_records[static_cast<std::size_t>(m_index)]->isErased())
        m_index += by;
}

OdResult OdDbSymbolTableIterator::getRecordId(OdDbObjectId& id) const {
    if (done()) return kOdKeyNotFound;
    id = m_table->m_records[static_cast<std::size_t>(m_index)]->objectId();
    return kOdOk;
}

OdResult OdDbSymbolTableIterator::getRecord(OdDbSymbolTableRecordPtr& record, OdDb::OpenMode mode) const {
    if (done()) return kOdKeyNotFound;
    record = m_table->m_records[static_cast<std::size_t>(m_index)];
    if (mode == OdDb::kForWrite && m_table->database()) m_table->database()->setModified(true);
    return kOdOk;
}
