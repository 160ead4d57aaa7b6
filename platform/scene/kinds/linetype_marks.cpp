#include "kinds/linetype_marks.h"

#include <cmath>

#include "kinds/draw_single_line.h"
#include "kinds/shape_lines.h"
#include "rules/text_codes.h"

namespace {

constexpr double kMostRepeats = 2000;

double lengthOf(const std::vector<OdGePoint2d>& points) {
    double length = 0;
    for (std::size_t i = 1; i < points.size(); ++i) length += Length(points[i] - points[i - 1]);
    return length;
}

/// A place on a path and the direction there.
struct Place {
    OdGePoint2d point, direction;
};

/// The place at a distance along a path; false beyond its end.
bool placeAt(const std::vector<OdGePoint2d>& points, double along, Place& place) {
    for (std::size_t i = 1; i < points.size(); ++i) {
        const OdGePoint2d step = points[i] - points[i - 1];
        const double length = Length(step);
        if (along <= length && length > 0) {
            place.direction = step * (1 / length);
            place.point = points[i - 1] + place.direction * along;
            return true;
        }
        along -= length;
    }
    return false;
}

void drawMark(const EntityPen& pen, const PatternMark& mark, const Place& place) {
    const double size = pen.look().patternScale;
    const double line = std::atan2(place.direction.y, place.direction.x);
    const double turn = mark.isUpright ? mark.rotation : line + mark.rotation;
    const OdGePoint2d left{-place.direction.y, place.direction.x};
    const OdGePoint2d at = place.point + (place.direction * mark.offset.x + left * mark.offset.y) * size;
    const OdDbObjectId style(pen.work().drawing().modelSpaceId().database(), mark.style);
    const EntityPen there = pen.within(SpaceTransform::Moved({at.x, at.y, 0}))
                                .within(SpaceTransform::Turned(turn))
                                .within(SpaceTransform::Scaled({size * mark.scale, size * mark.scale, 1}));
    if (mark.text.isEmpty()) {
        if (const ShapeFile* file = pen.work().shapes().fileOf(style))
            DrawShapeLines(there, *file, mark.shape);
        return;
    }
    const auto record = style.open<OdDbTextStyleTableRecord>();
    PlacedText text;
    text.text = OdString(DecodeText(mark.text.view()).letters);
    text.height = record && record->textSize() > 0 ? record->textSize() : 1;
    text.font = FontOfStyle(style);
    there.text(text);
}

}  // namespace

void DrawLinetypeMarks(const EntityPen& pen, const ScenePath& path) {
    const LinePattern& pattern = *pen.look().pattern;
    double repeat = 0;
    std::vector<double> ends;  // of each dash, along the pattern
    for (const double dash : pattern.dashes)
        ends.push_back(repeat += std::abs(dash) * pen.look().patternScale);
    const double length = lengthOf(path.points);
    if (!(repeat > 0) || !(length / repeat < kMostRepeats)) return;
    SceneLevel onPlane = pen.level();
    onPlane.place = {};
    const EntityPen flat(pen.work(), onPlane, pen.look());
    for (double start = 0; start < length && pen.work().spend(1); start += repeat)
        for (const PatternMark& mark : pattern.marks) {
            Place place;
            if (pen.work().spend(path.points.size()) && placeAt(path.points, start + ends[mark.dash], place))
                drawMark(flat, mark, place);
        }
}
