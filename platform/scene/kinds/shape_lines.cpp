#include "kinds/shape_lines.h"

void DrawShapeLines(const EntityPen& pen, const ShapeFile& file, int number) {
    EntityPen plain = pen;
    plain.look().style.dashes.clear();
    plain.look().pattern = nullptr;
    const double unit = 1 / file.capitalHeight();
    std::vector<OdGePoint3d> points;
    std::vector<std::size_t> breaks;
    for (const std::vector<OdGePoint2d>& line : file.lines(number)) {
        if (!points.empty()) breaks.push_back(points.size());
        for (const OdGePoint2d& point : line) points.push_back({point.x * unit, point.y * unit, 0});
    }
    if (!points.empty()) plain.strokes(points, breaks);
}
