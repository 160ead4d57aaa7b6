// Multilines: their lines with their breaks, joints, caps and fill.
#include <algorithm>
#include <cmath>
#include <numbers>

#include <od_db_mline.h>

#include "kinds/draw_functions.h"
#include "kinds/entity_cast.h"

namespace {

using Vertices = std::vector<OdDbMlineVertex>;

/// The place of line `line` at a vertex; the vertex itself where the file gives none.
OdGePoint3d placeOf(const OdDbMlineVertex& vertex, std::size_t line) {
    const bool isThere = line < vertex.lines.size() && !vertex.lines[line].empty();
    return vertex.point + vertex.miter * (isThere ? vertex.lines[line].front() : 0);
}

/// From where to where there is something along a piece.
struct Part {
    OdGePoint3d begin, end;
};

/// The parts between cuts: of one line, or of the fill's edge along it. `places` has where it lies along the
/// miter, and then where along the piece it begins, ends, begins and so on.
std::vector<Part> partsOf(const OdDbMlineVertex& from, const OdDbMlineVertex& to, std::size_t line,
                          const std::vector<std::vector<double>>& places) {
    const OdGePoint3d end = placeOf(to, line);
    if (line >= places.size() || places[line].size() < 2) return {{placeOf(from, line), end}};
    const std::vector<double>& own = places[line];
    const OdGePoint3d start = from.point + from.miter * own[0];
    const SpaceVector direction = Unit(from.direction, {1, 0, 0});
    std::vector<Part> parts;
    for (std::size_t i = 1; i < own.size(); i += 2)
        parts.push_back(
            {start + direction * own[i], i + 1 < own.size() ? start + direction * own[i + 1] : end});
    return parts;
}

/// One line of a piece, with the gaps that cuts made.
void drawPiece(const OdDbMlineVertex& from, const OdDbMlineVertex& to, std::size_t line,
               const EntityPen& pen) {
    for (const Part& part : partsOf(from, to, line, from.lines)) pen.stroke(part.begin, part.end);
}

/// The outermost lines: first and last by their place along the miter.
std::pair<std::size_t, std::size_t> outermost(const OdDbMlineVertex& vertex) {
    std::size_t low = 0, high = 0;
    const auto at = [&](std::size_t i) { return vertex.lines[i].empty() ? 0 : vertex.lines[i].front(); };
    for (std::size_t i = 1; i < vertex.lines.size(); ++i) {
        if (at(i) < at(low)) low = i;
        if (at(i) > at(high)) high = i;
    }
    return {low, high};
}

void fill(const Vertices& vertices, bool closed, const EntityPen& pen) {
    const auto [low, high] = outermost(vertices.front());
    const std::size_t pieces = closed ? vertices.size() : vertices.size() - 1;
    for (std::size_t i = 0; i < pieces; ++i) {
        const OdDbMlineVertex &from = vertices[i], &to = vertices[(i + 1) % vertices.size()];
        std::vector<Part> lower = partsOf(from, to, low, from.fills),
                          upper = partsOf(from, to, high, from.fills);
        // Edges whose cuts don't belong together bound no parts.
        if (lower.size() != upper.size()) {
            lower = {{placeOf(from, low), placeOf(to, low)}};
            upper = {{placeOf(from, high), placeOf(to, high)}};
        }
        for (std::size_t part = 0; part < lower.size(); ++part)
            pen.fill({lower[part].begin, lower[part].end, upper[part].end, upper[part].begin});
    }
}

/// A half circle over two lines, outwards of the piece that ends or begins there.
void drawRound(const OdGePoint3d& a, const OdGePoint3d& b, const SpaceVector& outward, const EntityPen& pen) {
    const OdGePoint3d center = (a + b) * 0.5;
    const double radius = Length(b - a) / 2;
    pen.arc(center, a - center, Unit(outward, {1, 0, 0}) * radius, 0, std::numbers::pi);
}

struct CapKinds {
    int line, innerArcs, arc;
};

void drawCap(const OdDbMlineVertex& vertex, const SpaceVector& outward, int flags, const CapKinds& kinds,
             const EntityPen& pen) {
    const std::size_t count = vertex.lines.size();
    if (count < 2) return;
    const auto [low, high] = outermost(vertex);
    if ((flags & kinds.line) != 0) pen.stroke(placeOf(vertex, low), placeOf(vertex, high));
    if ((flags & kinds.arc) != 0) drawRound(placeOf(vertex, low), placeOf(vertex, high), outward, pen);
    if ((flags & kinds.innerArcs) != 0)
        for (std::size_t i = 1; i < count / 2; ++i)
            drawRound(placeOf(vertex, i), placeOf(vertex, count - 1 - i), outward, pen);
}

void drawJoints(const Vertices& vertices, bool closed, const EntityPen& pen) {
    const std::size_t first = closed ? 0 : 1, last = closed ? vertices.size() : vertices.size() - 1;
    for (std::size_t i = first; i < last; ++i) {
        const auto [low, high] = outermost(vertices[i]);
        if (low != high) pen.stroke(placeOf(vertices[i], low), placeOf(vertices[i], high));
    }
}

/// A pen with the colour and linetype of one line of the style; what is by layer there is the multiline's
/// own.
EntityPen penFor(const OdDbMlineElement& element, const EntityPen& pen) {
    EntityPen own = pen;
    OdDbLinetypeTablePtr linetypes;
    if (!element.color.isByLayer()) pen.rules().setColor(own.look(), element.color, pen.byBlock());
    if (!element.linetype.isEmpty() && pen.work().drawing().getLinetypeTable(linetypes) == kOdOk)
        if (const OdDbObjectId linetype = linetypes->getAt(element.linetype);
            !linetype.isNull() && linetype != linetypes->getLinetypeByLayerId())
            pen.rules().setLinetype(own.look(), linetype, 1, pen.byBlock());
    return own;
}

}  // namespace

void DrawMultiline(const OdDbEntity& entity, EntityPen& pen) {
    using Style = OdDbMlineStyle;
    const auto* mline = As<OdDbMline>(entity);
    if (mline == nullptr) return;
    const Vertices vertices = mline->vertices();
    if (vertices.size() < 2) return;
    const OdDbMlineStylePtr style = mline->style();
    const int flags = style ? style->flags() : 0;
    const bool closed = mline->isClosed();
    if ((flags & Style::kFilled) != 0) {
        EntityPen area = pen;
        pen.rules().setColor(area.look(), style->fillColor(), pen.byBlock());
        fill(vertices, closed, area);
    }
    const std::vector<OdDbMlineElement> elements =
        style ? style->elements() : std::vector<OdDbMlineElement>();
    const std::size_t pieces = closed ? vertices.size() : vertices.size() - 1;
    for (std::size_t line = 0; line < vertices.front().lines.size(); ++line) {
        const EntityPen own = line < elements.size() ? penFor(elements[line], pen) : pen;
        for (std::size_t i = 0; i < pieces; ++i)
            drawPiece(vertices[i], vertices[(i + 1) % vertices.size()], line, own);
    }
    if ((flags & Style::kMiters) != 0) drawJoints(vertices, closed, pen);
    if (closed) return;
    const OdDbMlineVertex &first = vertices.front(), &last = vertices.back();
    const SpaceVector end = last.point - vertices[vertices.size() - 2].point;
    if (mline->hasStartCap())
        drawCap(first, first.point - vertices[1].point, flags,
                {Style::kStartLine, Style::kStartInnerArcs, Style::kStartArc}, pen);
    if (mline->hasEndCap())
        drawCap(last, end, flags, {Style::kEndLine, Style::kEndInnerArcs, Style::kEndArc}, pen);
}
