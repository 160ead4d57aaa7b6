// Writing entities, blocks and objects in the form of one version.
#pragma once

#include "od_db_store.h"
#include "od_dxf_output.h"

class OdDxfEntityWriter {
public:
    OdDxfEntityWriter(OdDbStore& store, OdDxfOutput& out) : m_store(store), m_out(out) {}

    /// Gets ready: names of the layers and linetypes, and the first handle for what is made on the way.
    void prepare();
    /// A BLOCK with what it holds, up to its ENDBLK. Spaces that the ENTITIES section holds get no entities
    /// here.
    void block(OdDbBlockTableRecord& block);
    /// The entities of a block.
    void entities(OdDbBlockTableRecord& block);
    /// An object of the OBJECTS section.
    void object(OdDbObject& object);
    /// The groups of a table record with what differs between versions settled.
    OdGroupList recordForm(OdTableKind kind, const OdGroupList& groups) const;
    /// The groups up to `end`, which stand before the first marker, with the owner behind their application
    /// data.
    void ownerAmong(const OdGroupList& groups, OdDbHandle owner, std::uint32_t end);
    /// Count of the entities that the version has no form for.
    int leftOut() const { return m_leftOut; }

private:
    struct Common {
        OdDbHandle layer, linetype, owner;
        bool paperSpace;
        const OdString* layout;
    };
    void entity(OdDbEntity& entity, const Common& common);
    void written(OdDbEntity& entity, const Common& common, OdDbHandle handle);
    void body(const OdGroupList& groups, const Common& common, bool attributesFollow);
    void commonProperties(const Common& common);
    void sequenceEnd(const Common& common);
    bool hasObject(const OdDbObject& object) const;
    void dictionaryEntries(OdDbDictionary& dictionary);
    void blockEdge(bool begin, OdDbHandle handle, OdDbBlockTableRecord& block, const OdGroupList& groups);
    std::string recordName(OdDbHandle handle) const;

    OdDbStore& m_store;
    OdDxfOutput& m_out;
    OdDbHandle m_nextHandle = 0;
    int m_leftOut = 0;
};
