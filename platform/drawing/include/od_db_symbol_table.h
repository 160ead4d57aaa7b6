// The symbol tables of a drawing: named records of one kind each, looked up by name without regard to case.
//
// This header has the table and record bases and the kinds that the runtime keeps without looking inside
// (views, coordinate systems, viewports, application names, dimension styles). Layers, linetypes, text styles
// and blocks have headers of their own.
#pragma once

#include <memory>
#include <unordered_map>
#include <vector>
#include "od_db_object.h"

class OdDbSymbolTable;

/// Base of the records of symbol tables.
class ODRT_API OdDbSymbolTableRecord : public OdDbObject {
public:
    /// The record's name.
    const OdString& getName() const { return m_name; }
    /// The same into `name`; kOdOk.
    OdResult getName(OdString& name) const;
    /// Names a record that isn't in a table yet; later kOdInvalidInput, since other objects refer to the
    /// name.
    OdResult setName(const wchar_t* name);
    /// Whether the record came with an external reference: flag 16 is set or the name holds a vertical bar.
    bool isDependent() const;
    /// The standard flags (group 70).
    int flags() const;
    void setFlags(int flags);

private:
    friend class OdDbSymbolTable;
    friend struct OdDbStore;
    OdString m_name;
};
using OdDbSymbolTableRecordPtr = OdSmartPtr<OdDbSymbolTableRecord>;

/// Walks the records of one table in the order of the file. The table must not change its count meanwhile.
class ODRT_API OdDbSymbolTableIterator {
public:
    OdDbSymbolTableIterator(OdSmartPtr<OdDbSymbolTable> table, bool atBeginning, bool skipErased);
    ~OdDbSymbolTableIterator();
    /// Goes to the first record, or to the last one.
    void start(bool atBeginning = true);
    /// Whether there is no record here.
    bool done() const;
    /// Goes on to the next record, or back to the one before.
    void step(bool forward = true);
    /// The record here; kOdKeyNotFound when done.
    OdResult getRecordId(OdDbObjectId& id) const;
    OdResult getRecord(OdDbSymbolTableRecordPtr& record, OdDb::OpenMode mode = OdDb::kForRead) const;

private:
    void skip(int by);
    OdSmartPtr<OdDbSymbolTable> m_table;
    int m_index = 0;
    bool m_skipErased;
};

/// Base of the symbol tables, and the class of those without one of their own.
class ODRT_API OdDbSymbolTable : public OdDbObject {
public:
    /// A table whose records have the type name `recordName` ("VIEW", "APPID").
    explicit OdDbSymbolTable(const char* recordName);
    ~OdDbSymbolTable() override;

    const char* dxfName() const override { return "TABLE"; }
    /// The type name of the records.
    const char* recordName() const { return m_recordName; }

    /// A walk over the records; never null.
    std::unique_ptr<OdDbSymbolTableIterator> newIterator(bool atBeginning = true,
                                                         bool skipErased = true) const;
    /// Whether a record that isn't erased has this name, or this id.
    bool has(const wchar_t* name) const;
    bool has(const OdDbObjectId& id) const;
    /// The record with this name, or null.
    OdDbObjectId getAt(const wchar_t* name) const;
    OdResult getAt(const wchar_t* name, OdDbObjectId& id) const;
    /// Adds a named record that belongs to no drawing yet. kOdDuplicateKey if the name is taken,
    /// kOdInvalidInput for an empty name or a record of another kind, kOdNoDatabase before the table is in a
    /// drawing.
    OdResult add(const OdDbSymbolTableRecordPtr& record, OdDbObjectId* id = nullptr);
    /// Erases the record with this name.
    OdResult erase(const wchar_t* name);
    using OdDbObject::erase;
    /// Count of the records that aren't erased.
    int count() const;
    /// A new, unnamed record of the table's kind, in no drawing yet.
    virtual OdDbSymbolTableRecordPtr newRecord() const;

private:
    friend struct OdDbStore;
    friend class OdDbSymbolTableIterator;
    OdDbSymbolTableRecord* find(const wchar_t* name) const;

    const char* m_recordName;
    std::vector<OdDbSymbolTableRecord*> m_records;
    std::unordered_map<std::wstring, OdDbSymbolTableRecord*> m_byName;
};
using OdDbSymbolTablePtr = OdSmartPtr<OdDbSymbolTable>;

/// A record that the runtime keeps without looking inside.
class ODRT_API OdDbPlainTableRecord : public OdDbSymbolTableRecord {
public:
    explicit OdDbPlainTableRecord(const char* recordName) : m_recordName(recordName) {}
    const char* dxfName() const override { return m_recordName; }

private:
    const char* m_recordName;
};
