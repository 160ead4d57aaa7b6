// OdDbObject, the base of everything that lives in a drawing and has a handle.
#pragma once

#include "od_db_object_id.h"
#include "od_group_list.h"

struct OdDbStore;

/// An object of a drawing. Objects are counted; the drawing holds one reference for as long as it lives, so
/// that an erased object stays where it is, marked, and drops out of tables, iterators and files.
class ODRT_API OdDbObject : public OdRxObject {
public:
    ~OdDbObject() override;

    /// The id; null before the object is added to a drawing.
    OdDbObjectId objectId() const;
    /// The object's number; 0 before it is added to a drawing.
    OdDbHandle handle() const { return m_handle; }
    /// The drawing; null before the object is added to one.
    OdDbDatabase* database() const;
    /// The table, block, dictionary or entity that holds this object; null for the outermost ones.
    OdDbObjectId ownerId() const;
    /// The object's type name as in a DXF file, for instance "LINE". Static or as long-lived as the object.
    virtual const char* dxfName() const = 0;

    bool isErased() const { return m_erased; }
    /// Marks the object as erased, or as not erased again.
    virtual OdResult erase(bool erasing = true);

    /// The dictionary of further data attached to this object; null if there is none.
    OdDbObjectId extensionDictionary() const;
    /// Attaches an empty dictionary.
    // Kept: answers 0 when it made one and 31 when there is one already; callers accept just these two.
    int createExtensionDictionary();

    /// The extended data of the registered application `application`, without the leading 1001 group.
    OdGroupList xData(const wchar_t* application) const;
    /// Replaces that data and registers the application; an empty list removes it.
    void setXData(const wchar_t* application, const OdGroupList& data);

    /// The object's groups, for classes and tools that read what has no accessor. Handle, owner, and what a
    /// class keeps in fields of its own are not among them.
    const OdGroupList& groups() const { return m_groups; }
    /// The same for editing; the drawing counts as modified.
    OdGroupList& editGroups();

protected:
    OdDbObject() = default;
    /// The drawing's inner state; null before the object is added to a drawing.
    OdDbStore* store() const { return m_store; }
    /// Replaces all extended data and everything else with that of `source`.
    void copyGroups(const OdDbObject& source) { m_groups = source.m_groups; }

    OdGroupList m_groups;

private:
    friend struct OdDbStore;
    OdDbHandle m_handle = 0;
    OdDbHandle m_owner = 0;
    OdDbStore* m_store = nullptr;
    bool m_erased = false;
};

using OdDbObjectPtr = OdSmartPtr<OdDbObject>;

template <class T>
OdSmartPtr<T> OdDbObjectId::open(OdDb::OpenMode mode, bool openErased) const {
    return OdSmartPtr<T>(dynamic_cast<T*>(openObject(mode, openErased).get()));
}

/// Opens the object named by `id` as a T: kOdOk, or the reason why `object` stayed null.
template <class T>
OdResult oddbOpenOdDbObject(OdSmartPtr<T>& object, const OdDbObjectId& id,
                            OdDb::OpenMode mode = OdDb::kForRead, bool openErased = false) {
    object = id.open<T>(mode, openErased);
    if (object) return kOdOk;
    return id.isErased() ? kOdWasErased : kOdKeyNotFound;
}

/// An object of a type that the runtime has no class for: kept whole and written back.
class ODRT_API OdDbUnknownObject : public OdDbObject {
public:
    explicit OdDbUnknownObject(std::string type) : m_type(std::move(type)) {}
    const char* dxfName() const override { return m_type.c_str(); }

private:
    std::string m_type;
};
