// Blocks: named lists of entities. Model space and the paper spaces of the layouts are blocks too.
#pragma once

#include "od_db_entity.h"
#include "od_db_symbol_table.h"

/// One block.
class ODRT_API OdDbBlockTableRecord : public OdDbSymbolTableRecord {
public:
    const char* dxfName() const override { return "BLOCK_RECORD"; }

    /// The layout that shows the block; null for a block that isn't a layout's.
    OdDbObjectId getLayoutId() const;
    /// Whether a layout shows the block.
    bool isLayout() const;
    bool isModelSpace() const;
    /// Whether it is an anonymous block, as dimensions have them.
    bool isAnonymous() const;
    /// Whether it is an external reference.
    bool isFromExternalReference() const;
    /// The point of the block that an insertion point falls on.
    OdGePoint3d origin() const;
    void setOrigin(const OdGePoint3d& origin);
    /// The file of an external reference; empty otherwise.
    OdString pathName() const;
    OdString comments() const;

    /// Adds an entity that belongs to no drawing yet, at the end of the drawing order.
    OdResult appendOdDbEntity(const OdDbEntityPtr& entity, OdDbObjectId* id = nullptr);
    /// The entities in drawing order, erased ones included. Valid until the block changes.
    const std::vector<OdDbEntity*>& entities() const { return m_entities; }
    /// Count of the entities that aren't erased.
    int count() const;

private:
    friend struct OdDbStore;
    std::vector<OdDbEntity*> m_entities;
    OdGroupList m_begin;  // the BLOCK record
    OdGroupList m_end;    // the ENDBLK record
    OdDbHandle m_beginHandle = 0;
    OdDbHandle m_endHandle = 0;
};
using OdDbBlockTableRecordPtr = OdSmartPtr<OdDbBlockTableRecord>;

/// The blocks of a drawing.
class ODRT_API OdDbBlockTable : public OdDbSymbolTable {
public:
    OdDbBlockTable() : OdDbSymbolTable("BLOCK_RECORD") {}
    OdDbSymbolTableRecordPtr newRecord() const override { return new OdDbBlockTableRecord; }
};
using OdDbBlockTablePtr = OdSmartPtr<OdDbBlockTable>;
