// Writing entities, blocks and objects in the form of one version.
#pragma once

#include "od_db_store.h"
#include "od_dxf_output.h"
#include "od_r12_names.h"

class OdDxfEntityWriter {
public:
    OdDxfEntityWriter(OdDbStore& store, OdDxfOutput& out) : m_store(store), m_out(out) {}

    /// Gets ready: the names that R12 can have, and the first handle for what is made on the way.
    void prepare();
    /// The names that stand for those of records in this version.
    const OdRecordNames& names() const { return m_names; }
    /// The name of a record in this version.
    OdString nameOf(OdTableKind kind, const OdDbSymbolTableRecord& record) const;
    /// A number for an object that only the file has.
    OdDbHandle newHandle() { return m_nextHandle++; }
    /// Whether the block is written in this version: R13 and R14 have one sheet, R12 has no records for
    /// spaces.
    bool hasBlock(const OdDbBlockTableRecord& block) const;
    /// A BLOCK with what it holds, up to its ENDBLK. Spaces that the ENTITIES section holds get no entities
    /// here.
    void block(OdDbBlockTableRecord& block);
    /// The entities of a block.
    void entities(OdDbBlockTableRecord& block);
    /// An object of the OBJECTS section; what the version lacks is noted as left out.
    void object(OdDbObject& object);
    /// Notes that an object is left out, unless every drawing has it.
    void noteLeftOut(const OdDbObject& object);
    /// The groups of a table record in the form of this version: arrowheads by name or by handle, legal
    /// names.
    OdGroupList recordForm(OdTableKind kind, const OdDbSymbolTableRecord& record) const;
    /// The groups up to `end`, which stand before the first marker, with the owner behind their application
    /// data.
    void ownerAmong(const OdGroupList& groups, OdDbHandle owner, std::uint32_t end);

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
    bool hasEntity(std::string_view type) const;
    bool hasObject(const OdDbObject& object) const;
    bool isNewerThanFile(std::string_view type, OdDb::DwgVersion since) const;
    bool isUsual(const OdDbObject& object) const;
    void noteLeftOut(const OdDbBlockTableRecord& block);
    OdGroupList arrowForm(const OdGroupList& groups) const;
    void dictionaryEntries(OdDbDictionary& dictionary);
    void blockEdge(bool begin, OdDbHandle handle, OdDbBlockTableRecord& block, const OdGroupList& groups);
    std::string recordName(OdTableKind kind, OdDbHandle handle) const;

    OdDbStore& m_store;
    OdDxfOutput& m_out;
    OdRecordNames m_names;
    OdDbHandle m_nextHandle = 0;
};
