// Dictionaries: named references to other objects, kept in the order in which they were made.
#pragma once

#include <memory>
#include <vector>
#include "od_db_object.h"

class OdDbDictionary;

/// Walks the entries of a dictionary in its own order.
class ODRT_API OdDbDictionaryIterator {
public:
    explicit OdDbDictionaryIterator(OdSmartPtr<OdDbDictionary> dictionary);
    ~OdDbDictionaryIterator();
    bool done() const;
    /// Goes on to the next entry; false if there is none.
    bool next();
    /// The entry here; empty and null when done.
    OdString name() const;
    OdDbObjectId objectId() const;

private:
    OdSmartPtr<OdDbDictionary> m_dictionary;
    int m_index = 0;
};

/// Named references to objects. Names are looked up without regard to case.
class ODRT_API OdDbDictionary : public OdDbObject {
public:
    OdDbDictionary() { m_groups.addText(100, "AcDbDictionary"); }
    const char* dxfName() const override { return m_hasDefault ? "ACDBDICTIONARYWDFLT" : "DICTIONARY"; }

    /// A walk over the entries; never null. Entries whose object is gone or erased are passed over.
    std::unique_ptr<OdDbDictionaryIterator> newIterator() const;
    /// Count of all entries.
    int numEntries() const { return static_cast<int>(m_entries.size()); }
    bool has(const wchar_t* name) const;
    bool has(const OdDbObjectId& id) const;
    /// The object under `name`; null if there is none.
    OdDbObjectId getAt(const wchar_t* name) const;
    OdResult getAt(const wchar_t* name, OdDbObjectId& id) const;
    /// The name of the entry for `id`; empty if there is none.
    OdString nameAt(const OdDbObjectId& id) const;
    /// Puts `object` under `name`: an object that is in no drawing yet joins this one's and becomes owned by
    /// the dictionary. An entry of that name is replaced.
    OdResult setAt(const wchar_t* name, const OdDbObjectPtr& object, OdDbObjectId* id = nullptr);
    /// Takes the entry out; its object stays in the drawing.
    OdResult remove(const wchar_t* name);
    /// The object that stands for unknown names; null unless the dictionary has a default.
    OdDbObjectId defaultId() const;
    /// Gives the dictionary a default.
    void setDefaultId(const OdDbObjectId& id);

private:
    friend struct OdDbStore;
    friend class OdDbDictionaryIterator;
    struct Entry {
        OdString name;
        OdDbHandle handle;
        int code;  // 350 soft or 360 hard owner, as read
    };
    const Entry* find(const wchar_t* name) const;
    std::vector<Entry> m_entries;
    bool m_hasDefault = false;
};
using OdDbDictionaryPtr = OdSmartPtr<OdDbDictionary>;

/// An entry of the plot style name dictionary: a name and nothing else.
class ODRT_API OdDbPlaceHolder : public OdDbObject {
public:
    const char* dxfName() const override { return "ACDBPLACEHOLDER"; }
};
