// Flat faces and meshes of faces.
#pragma once

#include <array>
#include <vector>
#include "od_db_curves.h"

/// A face of three or four corners in space.
class ODRT_API OdDbFace : public OdDbEntity {
public:
    const char* dxfName() const override { return "3DFACE"; }
    /// Corner 0 to 3; without a fourth corner it equals the third.
    OdGePoint3d pointAt(int corner) const;
    /// Whether the edge from this corner to the next one is shown.
    bool isEdgeVisible(int corner) const { return (m_groups.integer(70) >> corner & 1) == 0; }
};

/// A filled quadrilateral that was drawn as a wide line.
class ODRT_API OdDbTrace : public OdDbSolid {
public:
    const char* dxfName() const override { return "TRACE"; }
};

/// A mesh of faces of any count of corners.
class ODRT_API OdDbSubDMesh : public OdDbEntity {
public:
    const char* dxfName() const override { return "MESH"; }
    OdArray<OdGePoint3d> vertices() const;
    /// The corners of each face, as numbers of vertices; numbers that no vertex has are left out.
    std::vector<std::vector<int>> faces() const;
};
