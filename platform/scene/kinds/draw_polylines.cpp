// Polylines, thin and with widths.
#include <cmath>

#include "geometry/curve_points.h"
#include "geometry/wide_line.h"
#include "kinds/draw_functions.h"
#include "kinds/draw_polyline_mesh.h"
#include "kinds/entity_cast.h"

namespace {

bool hasWidth(const std::vector<WideCorner>& corners) {
    for (const WideCorner& corner : corners)
        if (corner.startWidth > 0 || corner.endWidth > 0) return true;
    return false;
}

void drawThin(const std::vector<WideCorner>& corners, bool closed, double elevation, const EntityPen& pen) {
    std::vector<OdGePoint2d> points = {corners.front().point};
    std::vector<SceneArc> arcs;
    const std::size_t pieces = closed ? corners.size() : corners.size() - 1;
    for (std::size_t i = 0; i < pieces; ++i)
        AppendBulge(points, arcs, corners[i].point, corners[(i + 1) % corners.size()].point, corners[i].bulge,
                    pen.tolerance());
    pen.stroke(points, std::move(arcs), elevation);
}

void drawFlat(const std::vector<WideCorner>& corners, bool closed, double elevation, const EntityPen& pen) {
    if (corners.empty() || !pen.work().spend(corners.size())) return;
    if (!pen.work().options().polylineWidths || !hasWidth(corners)) {
        drawThin(corners, closed, elevation, pen);
        return;
    }
    const bool isFilled = pen.work().drawing().getFILLMODE() != 0;
    for (const std::vector<OdGePoint2d>& area : WideLine(corners, closed, pen.tolerance())) {
        std::vector<OdGePoint3d> outline;
        outline.reserve(area.size() + 1);
        for (const OdGePoint2d& point : area) outline.push_back({point.x, point.y, elevation});
        if (isFilled && area.size() > 2) {
            pen.fill(outline);
        } else {
            if (area.size() > 2) outline.push_back(outline.front());
            pen.stroke(outline);
        }
    }
}

}  // namespace

void DrawLightPolyline(const OdDbEntity& entity, EntityPen& pen) {
    const auto* polyline = As<OdDbPolyline>(entity);
    if (polyline == nullptr) return;
    std::vector<WideCorner> corners;
    for (const OdDbPolylineVertex& vertex : polyline->vertices())
        corners.push_back({vertex.point, vertex.bulge, vertex.startWidth, vertex.endWidth});
    drawFlat(corners, polyline->isClosed(), polyline->elevation(), pen.inPlaneOf(entity));
}

void DrawPolyline(const OdDbEntity& entity, EntityPen& pen) {
    const auto* polyline = As<OdDb2dPolyline>(entity);
    if (polyline == nullptr) return;
    if (polyline->isMesh()) {
        DrawPolylineMesh(*polyline, pen);
        return;
    }
    const OdArray<OdDbVertex*> vertices = polyline->vertices();
    if (polyline->is3d()) {
        std::vector<OdGePoint3d> points;
        for (const OdDbVertex* vertex : vertices) points.push_back(vertex->position());
        if (polyline->isClosed() && !points.empty()) points.push_back(points.front());
        pen.stroke(points);
        return;
    }
    const double startWidth = entity.groups().real(40), endWidth = entity.groups().real(41);
    std::vector<WideCorner> corners;
    for (const OdDbVertex* vertex : vertices) {
        const OdGroupList& groups = vertex->groups();
        corners.push_back({Flat(vertex->position()), vertex->bulge(), groups.real(40, startWidth),
                           groups.real(41, endWidth)});
    }
    drawFlat(corners, polyline->isClosed(), entity.elevation(), pen.inPlaneOf(entity));
}
