// OdDbObjectId, the name by which objects of a drawing are kept outside of it.
//
// An id stays valid for as long as its drawing lives, also after its object was erased or the drawing was
// read anew; opening it then simply gives nothing.
#pragma once

#include <functional>
#include "od_db_types.h"
#include "od_result.h"
#include "od_rx.h"

class OdDbDatabase;
class OdDbObject;

/// Names one object of one drawing. A default id is null and names nothing.
class ODRT_API OdDbObjectId {
public:
    /// The id that names nothing.
    static const OdDbObjectId kNull;

    OdDbObjectId() = default;
    /// The object with `handle` in `database`, whether there is one or not.
    OdDbObjectId(OdDbDatabase* database, OdDbHandle handle)
        : m_database(handle ? database : nullptr), m_handle(database ? handle : 0) {}

    /// Whether the id names nothing.
    bool isNull() const { return m_handle == 0; }
    /// Whether an object that isn't erased bears the id.
    bool isValid() const;
    /// Whether the id's object was erased.
    bool isErased() const;
    /// The drawing; null for a null id.
    OdDbDatabase* database() const { return m_database; }
    /// The object's number in the drawing; 0 for a null id.
    OdDbHandle handle() const { return m_handle; }
    /// The object, or null if the id is null, unknown, or erased and `openErased` is false. With kForWrite
    /// the drawing counts as modified.
    OdSmartPtr<OdDbObject> openObject(OdDb::OpenMode mode = OdDb::kForRead, bool openErased = false) const;
    /// The object as a T, or null if openObject gives none or it is of another class.
    template <class T>
    OdSmartPtr<T> open(OdDb::OpenMode mode = OdDb::kForRead, bool openErased = false) const;

    friend bool operator==(const OdDbObjectId&, const OdDbObjectId&) = default;
    friend bool operator<(const OdDbObjectId& a, const OdDbObjectId& b) {
        return a.m_database == b.m_database ? a.m_handle < b.m_handle
                                            : std::less<OdDbDatabase*>()(a.m_database, b.m_database);
    }

private:
    OdDbDatabase* m_database = nullptr;
    OdDbHandle m_handle = 0;
};
