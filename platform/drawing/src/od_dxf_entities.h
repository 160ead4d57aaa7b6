// Reading entities, with the vertices and attributes that belong to them, and making objects by type name.
#pragma once

#include "od_db_store.h"
#include "od_dxf_record.h"

/// A new entity of the class for this type name; an OdDbUnknownEntity if there is none. Never null.
OdDbEntityPtr odMakeEntity(std::string_view type);

/// A new object of the class for this type name; an OdDbUnknownObject if there is none. Never null.
OdDbObjectPtr odMakeObject(std::string_view type);

/// Moves the entries that `groups` list into the dictionary.
void odTakeDictionaryEntries(OdDbStore& store, OdDbDictionary& dictionary, OdGroupList& groups);

/// Reads runs of entities into the blocks they belong to.
class OdDxfEntityReader {
public:
    OdDxfEntityReader(OdDbStore& store, OdDxfRecordReader& records) : m_store(store), m_records(records) {}

    /// Reads entities up to the record `end`, or up to whatever can't be one. They go to the block with the
    /// handle `block`; with 0 to the space that each of them names.
    bool readUntil(std::string_view end, OdDbHandle block);

private:
    OdDbEntityPtr take(OdDbHandle owner);
    bool readParts(OdDbEntity& whole);
    OdDbBlockTableRecord& blockFor(OdDbHandle block) const;
    OdDbStore& m_store;
    OdDxfRecordReader& m_records;
    OdDxfRecord m_record;
};
