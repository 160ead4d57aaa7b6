// Leaders and multileaders.
#include <algorithm>
#include <cmath>

#include <od_db_leaders.h>

#include "block_walk.h"
#include "geometry/spline_curve.h"
#include "kinds/arrowheads.h"
#include "kinds/draw_functions.h"
#include "kinds/draw_paragraph.h"
#include "kinds/draw_single_line.h"
#include "kinds/entity_cast.h"
#include "rules/dimension_style.h"

namespace {

using namespace dimension_codes;

constexpr double kUsualArrowSize = 0.18;

/// The line from the arrowhead on, and the arrowhead.
void drawLeaderLine(const std::vector<OdGePoint3d>& vertices, bool isSplined, const Arrowhead& arrowhead,
                    const EntityPen& pen) {
    if (vertices.size() < 2) return;
    const std::vector<OdGePoint3d> line = isSplined ? PointsThrough(vertices, {}, pen.tolerance()) : vertices;
    pen.stroke(line);
    if (line.size() < 2) return;
    const OdGePoint2d way = Flat(line[0]) - Flat(line[1]);
    if (const double length = Length(way); length > 0)
        DrawArrowhead(pen, arrowhead, line[0], way * (1 / length));
}

/// A leader whose first piece is shorter than two arrowheads has none.
bool hasRoom(const std::vector<OdGePoint3d>& vertices, double arrowSize) {
    return vertices.size() > 1 && Length(Flat(vertices[0]) - Flat(vertices[1])) >= 2 * arrowSize;
}

}  // namespace

void DrawLeader(const OdDbEntity& entity, EntityPen& pen) {
    const auto* leader = As<OdDbLeader>(entity);
    if (leader == nullptr) return;
    const DimensionStyle style(pen.work().drawing(), leader->dimStyleName(), entity);
    const OdArray<OdGePoint3d> places = leader->vertices();
    std::vector<OdGePoint3d> vertices(places.begin(), places.end());
    if (vertices.empty() || !pen.work().spend(vertices.size())) return;
    EntityPen own = pen;
    pen.rules().setColor(own.look(), style.color(kLineColor), pen.look());
    pen.rules().setLineWeight(own.look(), style.integer(kLineWeight, OdDb::kLnWtByBlock), pen.look());
    Arrowhead arrowhead;
    arrowhead.block = style.arrowBlock(kLeaderArrow, -1, arrowhead.name);
    arrowhead.size = leader->hasArrowhead() ? style.length(kArrowSize, kUsualArrowSize) : 0;
    // Under a text that stands above the line, the line goes on.
    const bool isUnderText = leader->hasHookLine() && leader->annotationKind() == 0 &&
                             style.integer(kTextAbove, 0) != 0 && leader->textWidth() > 0;
    if (isUnderText) {
        const SpaceVector along = Unit(leader->horizontalDirection(), {1, 0, 0});
        const double reach = leader->textWidth() + style.length(kGap, 0.09);
        const double sign = leader->isHookLineReversed() ? 1 : -1;
        vertices.push_back(vertices.back() + along * (reach * sign));
    }
    if (!hasRoom(vertices, arrowhead.size)) arrowhead.size = 0;
    drawLeaderLine(vertices, leader->isSplined(), arrowhead, own);
}

namespace {

void drawContent(const OdDbMLeaderContent& content, OdDbDatabase& drawing, const EntityPen& pen) {
    if (content.hasText && !content.text.isEmpty()) {
        PlacedParagraph text;
        text.contents = content.text;
        text.position = content.textLocation;
        text.along = Unit(content.textDirection, {1, 0, 0});
        text.up = Unit(Cross({0, 0, 1}, text.along), {0, 1, 0});
        text.attachment = std::clamp(content.textAlignment, 1, 3);
        text.height = content.textHeight;
        text.width = std::max(content.textWidth, 0.0);
        text.lineSpacing = content.lineSpacing;
        text.font = FontOfStyle(OdDbObjectId(&drawing, content.textStyle));
        DrawPlacedParagraph(text, pen);
    }
    if (!content.hasBlock) return;
    const OdDbObjectId id(&drawing, content.block);
    if (const auto block = id.open<OdDbBlockTableRecord>())
        DrawBlockWithin(pen.within(SpaceTransform::Moved(content.blockLocation))
                            .within(SpaceTransform::Turned(content.blockRotation))
                            .within(SpaceTransform::Scaled(content.blockScale))
                            .within(SpaceTransform::Moved(block->origin() * -1)),
                        id);
}

}  // namespace

void DrawMultileader(const OdDbEntity& entity, EntityPen& pen) {
    constexpr int kNoLines = 0, kSplines = 2;
    const auto* leader = As<OdDbMLeader>(entity);
    if (leader == nullptr) return;
    const OdDbMLeaderContent content = leader->content();
    const int kind = leader->lineKind();
    Arrowhead arrowhead;
    arrowhead.block = leader->arrowBlock();
    if (const auto block = arrowhead.block.open<OdDbBlockTableRecord>())
        arrowhead.name = block->getName();
    else
        arrowhead.block = {};
    arrowhead.size = content.arrowSize;
    for (const OdDbMLeaderBranch& branch : content.branches) {
        if (kind == kNoLines) break;
        const SpaceVector dogleg = Unit(branch.doglegDirection, {}) * branch.doglegLength;
        for (const OdDbMLeaderLine& line : branch.lines) {
            std::vector<OdGePoint3d> vertices = line.vertices;
            if (branch.hasEnd) vertices.push_back(branch.end);
            drawLeaderLine(vertices, kind == kSplines, arrowhead, pen);
        }
        if (branch.hasEnd && leader->hasDogleg() && Length(dogleg) > 0)
            pen.stroke(branch.end, branch.end + dogleg);
    }
    drawContent(content, pen.work().drawing(), pen);
}
