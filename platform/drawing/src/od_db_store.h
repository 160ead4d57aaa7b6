// The inner state of one drawing: all of its objects by handle, the tables, and the parts of a file that no
// class stands for. A read builds a new store and puts it in the place of the old one when it has succeeded.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>
#include "od_db.h"
#include "od_held_codes.h"

/// The kinds of symbol table, in the order in which files hold them.
enum OdTableKind {
    kViewportTable,
    kLinetypeTable,
    kLayerTable,
    kTextStyleTable,
    kViewTable,
    kUcsTable,
    kRegAppTable,
    kDimStyleTable,
    kBlockTable,
    kTableCount
};

/// A record that is kept as it came: its type and its groups.
struct OdRawRecord {
    std::string type;
    OdGroupList groups;
};

/// A section that no class stands for.
struct OdRawSection {
    std::string name;
    OdGroupList lead;  // groups before the first record
    std::vector<OdRawRecord> records;
};

struct OdDbChangeNotes;

struct OdDbStore {
    explicit OdDbStore(OdDbDatabase* owner) : database(owner) {}
    OdDbStore(const OdDbStore&) = delete;
    OdDbStore& operator=(const OdDbStore&) = delete;
    ~OdDbStore();

    static OdDbStore& of(OdDbDatabase& database) { return *database.m_store; }

    /// Whether the object, or what holds it, was erased.
    bool isGone(const OdDbObject& object) const;

    /// To be called before an object's fields or the header's variables change, and after an object was taken
    /// in.
    void willChange(const OdDbObject& object) const;
    void willChangeHeader() const;
    void made(const OdDbObject& object) const;
    /// To be called before anything at all changes: whoever reads on another thread ends that.
    void endSharedReading() const;
    /// Sets TILEMODE as no change of the drawing.
    void setTileMode(int mode);
    /// Finds records by their names again after names or erased records have changed without the tables.
    void refreshNames();
    /// Gives a layer another name, which is free, also where the drawing names it in words.
    void renameLayer(OdDbLayerTableRecord& layer, const OdString& name);
    bool& isErasedOf(OdDbObject& object) const { return object.m_erased; }
    OdString& nameOf(OdDbSymbolTableRecord& record) const { return record.m_name; }

    /// The object with this number, or null.
    OdDbObject* object(OdDbHandle handle) const;
    /// The same as a T; null if it is of another class.
    template <class T>
    T* object(OdDbHandle handle) const {
        return dynamic_cast<T*>(object(handle));
    }
    /// Takes `object` in under `handle`, or under a new number if that is 0 or taken.
    void adopt(const OdDbObjectPtr& object, OdDbHandle handle, OdDbHandle owner);
    OdDbHandle newHandle() { return nextHandle++; }
    OdDbObjectId id(OdDbHandle handle) const { return OdDbObjectId(database, handle); }
    void setOwner(OdDbObject& object, OdDbHandle owner) const { object.m_owner = owner; }
    OdDbHandle ownerOf(const OdDbObject& object) const { return object.m_owner; }
    OdGroupList& groupsOf(OdDbObject& object) const { return object.m_groups; }

    /// Records of the tables.
    OdDbSymbolTableRecord* record(OdTableKind kind, const wchar_t* name) const {
        return tables[kind]->find(name);
    }
    OdDbSymbolTableRecord* addRecord(OdTableKind kind, const OdDbSymbolTableRecordPtr& record,
                                     const OdString& name, OdDbHandle handle);
    const std::vector<OdDbSymbolTableRecord*>& records(OdTableKind kind) const {
        return tables[kind]->m_records;
    }
    /// Takes in a record that a program made, with the groups that its kind can't do without.
    void addNewRecord(OdTableKind kind, const OdDbSymbolTableRecordPtr& record);
    /// Takes in an entity that a program made, with its parts.
    void adoptEntity(const OdDbEntityPtr& entity, OdDbHandle owner);
    /// The record of this name, which is made if it is missing.
    OdDbSymbolTableRecord* needRecord(OdTableKind kind, const wchar_t* name);
    /// A new record of this name, whether or not there is one.
    OdDbSymbolTableRecord* makeRecord(OdTableKind kind, const wchar_t* name);
    /// The layer record of this name, remembering the last one asked for.
    OdDbHandle layerHandle(std::string_view name);
    OdDbHandle linetypeHandle(std::string_view name);

    /// The fields of entities and blocks that only files deal with.
    OdDbHandle& layerOf(OdDbEntity& entity) const { return entity.m_layer; }
    OdDbHandle& linetypeOf(OdDbEntity& entity) const { return entity.m_linetype; }
    std::vector<OdDbEntityPtr>* partsOf(OdDbEntity& entity) const { return entity.editParts(); }
    std::vector<OdDbEntity*>& entitiesOf(OdDbBlockTableRecord& block) const { return block.m_entities; }
    OdGroupList& blockBegin(OdDbBlockTableRecord& block) const { return block.m_begin; }
    OdGroupList& blockEnd(OdDbBlockTableRecord& block) const { return block.m_end; }
    OdDbHandle& blockBeginHandle(OdDbBlockTableRecord& block) const { return block.m_beginHandle; }
    OdDbHandle& blockEndHandle(OdDbBlockTableRecord& block) const { return block.m_endHandle; }

    /// The fields of dictionaries.
    using DictionaryEntry = OdDbDictionary::Entry;
    std::vector<DictionaryEntry>& entriesOf(OdDbDictionary& dictionary) const { return dictionary.m_entries; }
    bool& hasDefault(OdDbDictionary& dictionary) const { return dictionary.m_hasDefault; }

    /// Dictionaries below the root.
    OdDbDictionary* root() const { return object<OdDbDictionary>(rootDictionary); }
    OdDbObject* named(const wchar_t* name) const;
    /// Gives the store its tables, before anything else is put in.
    void makeTables();
    /// Adds the records that every drawing has.
    void completeRecords();
    /// Adds what every drawing has and this one lacks: standard records, spaces, dictionaries, layouts.
    void complete();

    OdDbDatabase* database;
    OdDb::DwgVersion version = OdDb::kDHL_1032;
    bool hasSpaceBlocks = false;  // whether a file of R12 has blocks for its spaces, as later programs write
    bool versionIsKnown = true;   // whether the file that was read said it
    bool binary = false;          // the form that was read
    int codePage = 1252;
    std::string codePageName = "ANSI_1252";
    OdDbHeader header;
    OdDbHandle nextHandle = 1;
    std::unordered_map<OdDbHandle, OdDbObjectPtr> objects;
    OdSmartPtr<OdDbSymbolTable> tables[kTableCount];
    OdDbHandle rootDictionary = 0;
    std::vector<OdDbObject*> fileObjects;  // of the OBJECTS section, in order
    std::vector<OdRawRecord> classes;
    OdGroupList thumbnail;
    bool hasOwnThumbnail = false;  // given by a program, not read
    std::vector<OdRawSection> sections;
    std::vector<OdRawSection> otherTables;        // tables that no class stands for
    OdHeldCodes heldCodes;                        // of the file that was read
    std::map<std::string, OdGroupList> comments;  // beside records: by the section or table, with / behind it
    std::unordered_set<std::wstring> namesOfR12File[kTableCount];  // folded, if that file was of R12
    OdDbChangeNotes* notes = nullptr;  // what is told of changes; null while nobody notes them
    std::vector<std::function<void()>*> sharedReadings;  // to be called before a change

private:
    OdDbDictionary* needDictionary(const wchar_t* name, bool withDefault = false);
    void completeSpaces();
    void completePlotStyles();
    void completeLayouts();
    void addLayout(OdDbDictionary& layouts, const wchar_t* name, OdDbBlockTableRecord& block, int order);

    std::string m_lastLayerName;
    OdDbHandle m_lastLayer = 0;
};

/// Whether the block name is that of model space, or of the active paper space, in any version's spelling.
bool odIsModelSpaceName(const wchar_t* name);
bool odIsPaperSpaceName(const wchar_t* name);
/// The form of a name that lookups go by.
std::wstring odFoldedName(const wchar_t* name);
