#include "entity_pen.h"

#include <algorithm>
#include <cmath>

#include "geometry/curve_points.h"
#include "kinds/linetype_marks.h"

const Look& EntityPen::byBlock() const {
    return m_level.surrounding.byBlock != nullptr ? *m_level.surrounding.byBlock : StyleRules::outermost();
}

EntityPen EntityPen::within(const SpaceTransform& inner) const {
    EntityPen pen = *this;
    pen.m_level.place = m_level.place.after(inner);
    return pen;
}

EntityPen EntityPen::inPlaneOf(const OdDbEntity& entity) const {
    const OdGeVector3d normal = entity.normal();
    if (normal == OdGeVector3d{0, 0, 1}) return *this;
    return within(SpaceTransform::OfNormal(normal));
}

double EntityPen::tolerance() const {
    const double wanted = m_work.options().tolerance;
    if (!(wanted > 0)) return 0;
    const double scale = std::max(Length(m_level.place.x), Length(m_level.place.y));
    return scale > 0 ? wanted / scale : wanted;
}

ScenePath EntityPen::newPath() const {
    ScenePath path;
    path.style = m_look.style;
    path.entity = m_level.entity;
    return path;
}

std::vector<OdGePoint2d> EntityPen::flattened(const std::vector<OdGePoint3d>& points) const {
    std::vector<OdGePoint2d> flat;
    flat.reserve(points.size());
    for (const OdGePoint3d& point : points) flat.push_back(onPlane(point));
    return flat;
}

void EntityPen::addStroke(ScenePath path) const {
    if (m_look.pattern != nullptr && !m_look.pattern->marks.empty()) DrawLinetypeMarks(*this, path);
    m_work.add(std::move(path));
}

void EntityPen::stroke(const std::vector<OdGePoint3d>& points) const { strokes(points, {}); }

void EntityPen::strokes(const std::vector<OdGePoint3d>& points, std::vector<std::size_t> breaks) const {
    ScenePath path = newPath();
    path.points = flattened(points);
    path.breaks = std::move(breaks);
    addStroke(std::move(path));
}

void EntityPen::stroke(const std::vector<OdGePoint2d>& points, std::vector<SceneArc> arcs, double z) const {
    ScenePath path = newPath();
    path.points.reserve(points.size());
    for (const OdGePoint2d& point : points) path.points.push_back(onPlane({point.x, point.y, z}));
    for (SceneArc& arc : arcs) {
        arc.center = onPlane({arc.center.x, arc.center.y, z});
        arc.axisX = Flat(m_level.place.turned({arc.axisX.x, arc.axisX.y, 0}));
        arc.axisY = Flat(m_level.place.turned({arc.axisY.x, arc.axisY.y, 0}));
    }
    path.arcs = std::move(arcs);
    addStroke(std::move(path));
}

void EntityPen::arc(const OdGePoint3d& center, const SpaceVector& axisX, const SpaceVector& axisY,
                    double start, double sweep) const {
    SceneArc arc;
    arc.center = onPlane(center);
    arc.axisX = Flat(m_level.place.turned(axisX));
    arc.axisY = Flat(m_level.place.turned(axisY));
    arc.start = start;
    arc.sweep = sweep;
    ScenePath path = newPath();
    AppendArc(path.points, arc, m_work.options().tolerance, true);
    arc.last = path.points.size() - 1;
    path.arcs.push_back(arc);
    addStroke(std::move(path));
}

void EntityPen::fill(const std::vector<OdGePoint3d>& points, std::vector<std::size_t> breaks) const {
    ScenePath path = newPath();
    path.points = flattened(points);
    path.breaks = std::move(breaks);
    path.filled = true;
    m_work.add(std::move(path));
}

void EntityPen::wipe(const std::vector<OdGePoint3d>& points) const {
    ScenePath path = newPath();
    path.points = flattened(points);
    path.filled = path.wipes = true;
    m_work.add(std::move(path));
}

void EntityPen::endless(const OdGePoint3d& base, const SpaceVector& direction, bool bothWays) const {
    m_work.addEndless(newPath(), onPlane(base), Flat(m_level.place.turned(direction)), bothWays);
}

void EntityPen::image(SceneImage image, const OdGePoint3d& origin, const SpaceVector& across,
                      const SpaceVector& up) const {
    image.origin = onPlane(origin);
    image.across = Flat(m_level.place.turned(across));
    image.up = Flat(m_level.place.turned(up));
    image.style = m_look.style;
    image.entity = m_level.entity;
    m_work.add(std::move(image));
}

/// Writes a text in the strokes of its font; false where that is no shape font that has its letters.
bool EntityPen::writeStrokes(const PlacedText& text) const {
    StrokeText written;
    const auto spend = [this](std::size_t amount) { return m_work.spend(amount); };
    if (text.text.isEmpty() || !(text.height > 0)) return false;
    if (!m_work.strokes().write(text.font, text.text.view(), written, spend)) return false;
    const bool isFitted = text.fitWidth > 0 && written.width > 0;
    const double across = isFitted ? std::copysign(text.fitWidth / written.width, text.widthFactor)
                                   : text.height * text.widthFactor;
    SceneText rows;
    rows.height = 1;
    rows.vertical = text.vertical;
    const double left = written.width * std::clamp(text.horizontal, 0, 2) / 2, drop = BaseLineDrop(rows);
    const SpaceVector up = (text.up + text.along * std::tan(text.font.oblique)) * text.height;
    const SpaceVector along = text.along * across;
    std::vector<OdGePoint3d> points;
    ScenePath path = newPath();
    for (const std::vector<OdGePoint2d>& line : written.lines) {
        if (!points.empty()) path.breaks.push_back(points.size());
        for (const OdGePoint2d& point : line)
            points.push_back(text.position + along * (point.x - left) + up * (point.y - drop));
    }
    path.points = flattened(points);
    path.style.dashes.clear();
    path.isLetters = true;
    m_work.add(std::move(path));
    if (m_work.options().use == SceneUse::kPaper) noteStrokes(text, std::abs(across) * written.width);
    return true;
}

/// Notes what the strokes of a text that is `width` wide say.
void EntityPen::noteStrokes(PlacedText text, double width) const {
    text.fitWidth = width;
    if (std::optional<SceneText> letters = lettersOf(text)) m_work.addStrokeText(std::move(*letters));
}

void EntityPen::text(const PlacedText& text) const {
    const std::vector<StrokeFonts::Run> runs = m_work.strokes().runs(text.font, text.text.view());
    if (runs.size() < 2) {
        if (!writeStrokes(text)) writeLetters(text);
        return;
    }
    const double whole = m_work.textWidth(text.font, text.text.view());
    if (!(whole > 0)) return;
    const double across = text.fitWidth > 0 ? std::copysign(text.fitWidth / whole, text.widthFactor)
                                            : text.height * text.widthFactor;
    double left = -whole * std::clamp(text.horizontal, 0, 2) / 2;
    for (const StrokeFonts::Run& run : runs) {
        if (m_work.isOver()) return;
        const double width = m_work.textWidth(text.font, run.text);
        PlacedText part = text;
        part.text = OdString(std::wstring(run.text));
        part.position = text.position + text.along * (across * left);
        part.horizontal = 0;
        part.fitWidth = text.fitWidth * width / whole;
        if (!run.isWritten || !writeStrokes(part)) writeLetters(part);
        left += width;
    }
}

void EntityPen::writeLetters(const PlacedText& text) const {
    if (std::optional<SceneText> letters = lettersOf(text)) m_work.add(std::move(*letters));
}

/// Any mapping of a text is a turn, a slant, a width and a height, perhaps with the letters backwards.
std::optional<SceneText> EntityPen::lettersOf(const PlacedText& text) const {
    const OdGePoint2d along = Flat(m_level.place.turned(text.along)) * text.widthFactor;
    const OdGePoint2d up = Flat(m_level.place.turned(text.up + text.along * std::tan(text.font.oblique)));
    const double width = Length(along);
    if (!(width > 0) || !(text.height > 0)) return std::nullopt;
    OdGePoint2d line = along * (1 / width);
    double above = Cross(line, up);
    SceneText item;
    item.widthFactor = 1;
    if (above < 0) {
        line = line * -1;
        above = -above;
        item.widthFactor = -1;
    }
    if (!(above > 0)) return std::nullopt;
    item.text = text.text;
    item.position = onPlane(text.position);
    item.height = text.height * above;
    item.rotation = std::atan2(line.y, line.x);
    item.widthFactor *= width / above;
    item.horizontal = text.horizontal;
    item.vertical = text.vertical;
    item.fitWidth = text.widthFactor != 0 ? text.fitWidth * width / std::abs(text.widthFactor) : 0;
    item.font = text.font;
    item.font.oblique = std::atan2(Dot(line, up), above);
    item.style = m_look.style;
    item.entity = m_level.entity;
    return item;
}
