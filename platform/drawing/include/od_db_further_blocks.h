// Further entities that draw themselves through a block, and the order in which a block's entities lie.
#pragma once

#include <map>
#include "od_db_block_reference.h"
#include "od_db_polylines.h"

/// A table. Its lines and texts are the entities of an anonymous block.
class ODRT_API OdDbTable : public OdDbEntity {
public:
    const char* dxfName() const override { return "ACAD_TABLE"; }
    /// The block that draws the table; null if there is none.
    OdDbObjectId blockTableRecord() const;
    OdGePoint3d position() const { return m_groups.point(10); }
    /// Along which the rows run.
    OdGePoint3d direction() const { return m_groups.point(11, {1, 0, 0}); }
};

/// The dimension of an arc's length, and that of a radius with a jogged line.
class ODRT_API OdDbArcDimension : public OdDbDimension {
public:
    const char* dxfName() const override { return "ARC_DIMENSION"; }
};
class ODRT_API OdDbRadialDimensionLarge : public OdDbDimension {
public:
    const char* dxfName() const override { return "LARGE_RADIAL_DIMENSION"; }
};

/// A screw line. It brings the spline that draws it.
class ODRT_API OdDbHelix : public OdDbSpline {
public:
    const char* dxfName() const override { return "HELIX"; }
};

/// In which order the entities of a block lie, where that isn't the order of the file.
class ODRT_API OdDbSortentsTable : public OdDbObject {
public:
    const char* dxfName() const override { return "SORTENTSTABLE"; }
    /// The numbers by which entities are sorted in place of their own.
    std::map<OdDbHandle, OdDbHandle> places() const;
};
