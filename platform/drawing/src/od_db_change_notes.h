// What an open change has noted of a drawing: objects as they were before they were first changed, objects
// that were made, and the header as it was.
#pragma once

#include <optional>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "od_db_store.h"

struct OdDbChangeNotes {
    explicit OdDbChangeNotes(OdDbDatabasePtr noted)
        : drawing(std::move(noted)), store(&OdDbStore::of(*drawing)) {}

    /// Everything of an object that can change.
    struct ObjectState {
        OdGroupList groups;
        bool isErased = false;
        OdString name;                                    // of table records
        OdDbHandle layer = 0, linetype = 0;               // of entities
        std::vector<OdDbEntityPtr> parts;                 // of entities
        OdGroupList blockBegin, blockEnd;                 // of blocks
        std::vector<OdDbStore::DictionaryEntry> entries;  // of dictionaries
        bool hasDefault = false;                          // of dictionaries
    };

    // What the store tells before it happens.
    void willChange(const OdDbObject& object);
    void willChangeHeader();
    void made(const OdDbObject& object) { created.insert(object.handle()); }

    /// Leaves out what is as it was.
    void tidy();
    /// Swaps what is noted with what is there.
    void exchange();

    OdDbDatabasePtr drawing;
    OdDbStore* store;  ///< another one stands in its place if the drawing was read anew
    std::unordered_map<OdDbHandle, ObjectState> before;
    std::unordered_set<OdDbHandle> created;
    std::optional<OdDbHeader> header;
};
