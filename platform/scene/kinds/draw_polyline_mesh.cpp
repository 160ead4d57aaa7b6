#include "kinds/draw_polyline_mesh.h"

#include <set>

namespace {

constexpr int kClosedAcross = 32;  // in the polyline's flags; 1 closes it the other way
constexpr int kPolyface = 64;

/// A face of a polyface mesh names its vertices by number from 1; below 0 the edge from there is hidden.
void drawPolyface(const OdDb2dPolyline& polyline, const EntityPen& pen) {
    constexpr int kHasPlace = 64;
    std::vector<OdGePoint3d> points;
    std::set<std::pair<std::size_t, std::size_t>> drawn;
    EdgeList edges;
    for (const OdDbVertex* vertex : polyline.vertices()) {
        const OdGroupList& groups = vertex->groups();
        if ((groups.integer(70) & kHasPlace) != 0) {
            points.push_back(vertex->position());
            continue;
        }
        std::vector<std::int64_t> corners;
        for (const int code : {71, 72, 73, 74})
            if (const std::int64_t corner = groups.integer(code); corner != 0) corners.push_back(corner);
        for (std::size_t i = 0; i < corners.size(); ++i) {
            if (corners[i] < 0) continue;
            const std::int64_t next = corners[(i + 1) % corners.size()];
            const auto from = static_cast<std::size_t>(corners[i] - 1);
            const auto to = static_cast<std::size_t>((next < 0 ? -next : next) - 1);
            if (from >= points.size() || to >= points.size() || from == to) continue;
            if (drawn.insert(std::minmax(from, to)).second) edges.add(points[from], points[to]);
        }
    }
    edges.draw(pen);
}

/// How many points a net has each way.
struct NetSize {
    std::size_t rows, columns;
};

/// The counts of the net's points: those of the smooth surface where there is one.
NetSize netOf(const OdDb2dPolyline& polyline) {
    const OdGroupList& groups = polyline.groups();
    const bool isSmooth = groups.integer(75) != 0;
    const std::int64_t rows = groups.integer(isSmooth ? 73 : 71),
                       columns = groups.integer(isSmooth ? 74 : 72);
    return {static_cast<std::size_t>(std::max<std::int64_t>(rows, 0)),
            static_cast<std::size_t>(std::max<std::int64_t>(columns, 0))};
}

void drawNet(const OdDb2dPolyline& polyline, const EntityPen& pen) {
    const OdArray<OdDbVertex*> vertices = polyline.vertices();
    const NetSize net = netOf(polyline);
    const std::size_t rows = net.rows, columns = net.columns;
    const std::int64_t flags = polyline.groups().integer(70);
    if (rows == 0 || columns == 0 || vertices.size() / columns < rows) return;
    std::vector<OdGePoint3d> points;
    for (const OdDbVertex* vertex : vertices) points.push_back(vertex->position());
    const auto at = [&](std::size_t row, std::size_t column) {
        return points[(row % rows) * columns + column % columns];
    };
    EdgeList edges;
    for (std::size_t row = 0; row < rows; ++row)
        for (std::size_t column = 0; column < columns; ++column) {
            const bool hasNextRow = row + 1 < rows || ((flags & 1) != 0 && rows > 2);
            const bool hasNextColumn = column + 1 < columns || ((flags & kClosedAcross) != 0 && columns > 2);
            if (hasNextColumn) edges.add(at(row, column), at(row, column + 1));
            if (hasNextRow) edges.add(at(row, column), at(row + 1, column));
        }
    edges.draw(pen);
}

}  // namespace

void DrawPolylineMesh(const OdDb2dPolyline& polyline, const EntityPen& pen) {
    if ((polyline.groups().integer(70) & kPolyface) != 0)
        drawPolyface(polyline, pen);
    else
        drawNet(polyline, pen);
}
