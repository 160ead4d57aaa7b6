// Faces and meshes as their edges, solids as areas.
#include <algorithm>
#include <set>

#include <od_db_faces.h>

#include "kinds/draw_functions.h"
#include "kinds/draw_polyline_mesh.h"
#include "kinds/entity_cast.h"

void DrawSolid(const OdDbEntity& entity, EntityPen& pen) {
    const auto* solid = As<OdDbSolid>(entity);
    if (solid == nullptr) return;
    const EntityPen inPlane = pen.inPlaneOf(entity);
    // Kept: the third and fourth corner lie crosswise in the file.
    std::vector<OdGePoint3d> corners = {solid->pointAt(0), solid->pointAt(1), solid->pointAt(3),
                                        solid->pointAt(2)};
    if (pen.work().drawing().getFILLMODE() != 0) {
        inPlane.fill(corners);
        return;
    }
    corners.push_back(corners.front());
    inPlane.stroke(corners);
}

void DrawFace(const OdDbEntity& entity, EntityPen& pen) {
    const auto* face = As<OdDbFace>(entity);
    if (face == nullptr) return;
    EdgeList edges;
    for (int i = 0; i < 4; ++i) {
        const OdGePoint3d from = face->pointAt(i), to = face->pointAt((i + 1) % 4);
        if (face->isEdgeVisible(i) && !(from == to)) edges.add(from, to);
    }
    edges.draw(pen);
}

void DrawMesh(const OdDbEntity& entity, EntityPen& pen) {
    const auto* mesh = As<OdDbSubDMesh>(entity);
    if (mesh == nullptr) return;
    const OdArray<OdGePoint3d> vertices = mesh->vertices();
    std::set<std::pair<int, int>> drawn;  // neighbouring faces share their edges
    EdgeList edges;
    for (const std::vector<int>& face : mesh->faces())
        for (std::size_t i = 0; i < face.size() && pen.work().spend(1); ++i) {
            const int from = face[i], to = face[(i + 1) % face.size()];
            if (from != to && drawn.insert(std::minmax(from, to)).second)
                edges.add(vertices[from], vertices[to]);
        }
    edges.draw(pen);
}
