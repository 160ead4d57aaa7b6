#include "scene_builder.h"

#include <cmath>
#include <numbers>

/// A corner of a polyline, and the bulge of the part behind it.
struct SceneCorner {
    OdGePoint2d point;
    double bulge;
};

namespace {

constexpr double kTurn = 2 * std::numbers::pi;
constexpr int kMaximumDepth = 16;  // blocks within blocks; a file may hold a loop
constexpr double kArcStep = kTurn / 72;

/// The points of an arc between two corners with the given bulge, without the first corner.
void appendBulge(std::vector<OdGePoint2d>& points, std::vector<SceneArc>& arcs, OdGePoint2d from,
                 OdGePoint2d to, double bulge) {
    if (bulge == 0) {
        points.push_back(to);
        return;
    }
    const std::size_t first = points.size() - 1;
    const double sweep = 4 * std::atan(bulge);
    const double chordX = to.x - from.x, chordY = to.y - from.y;
    const double rise = (1 / std::tan(sweep / 2)) / 2;
    const OdGePoint2d center{from.x + chordX / 2 - chordY * rise, from.y + chordY / 2 + chordX * rise};
    const double radius = std::hypot(from.x - center.x, from.y - center.y);
    const double start = std::atan2(from.y - center.y, from.x - center.x);
    const int steps = std::max(2, static_cast<int>(std::ceil(std::abs(sweep) / kArcStep)));
    for (int i = 1; i < steps; ++i) {
        const double angle = start + sweep * i / steps;
        points.push_back({center.x + radius * std::cos(angle), center.y + radius * std::sin(angle)});
    }
    points.push_back(to);
    arcs.push_back({first, points.size() - 1, center, {radius, 0}, {0, radius}, start, sweep});
}

/// The text with the codes for degree, plus-minus and diameter resolved; underlining is left out.
OdString readableText(const OdString& text) {
    OdString result;
    const std::wstring_view view = text.view();
    for (std::size_t i = 0; i < view.size(); ++i) {
        if (view.substr(i, 2) != L"%%" || i + 2 >= view.size()) {
            result += view[i];
            continue;
        }
        switch (view[i + 2]) {
            case L'd':
            case L'D': result += L'\x00B0'; break;
            case L'p':
            case L'P': result += L'\x00B1'; break;
            case L'c':
            case L'C': result += L'\x00D8'; break;
            case L'%': result += L'%'; break;
            default: break;
        }
        i += 2;
    }
    return result;
}

/// The font of a style; `oblique` is the text's own slant, which counts instead of the style's.
SceneFont fontOf(const OdDbObjectId& style, double oblique) {
    SceneFont font;
    font.oblique = oblique;
    const auto record = style.open<OdDbTextStyleTableRecord>();
    if (!record) return font;
    font.family = record->typeFace();
    font.file = record->fileName();
    font.bold = record->isBold();
    font.italic = record->isItalic();
    return font;
}

std::vector<SceneCorner> cornersOf(const OdDbPolyline& polyline) {
    std::vector<SceneCorner> corners;
    for (const OdDbPolylineVertex& vertex : polyline.vertices())
        corners.push_back({vertex.point, vertex.bulge});
    return corners;
}

std::vector<SceneCorner> cornersOf(const OdDb2dPolyline& polyline) {
    std::vector<SceneCorner> corners;
    for (const OdDbVertex* vertex : polyline.vertices()) {
        const OdGePoint3d point = vertex->position();
        corners.push_back({{point.x, point.y}, vertex->bulge()});
    }
    return corners;
}

}  // namespace

PlaneTransform PlaneTransform::after(const PlaneTransform& inner) const {
    const OdGePoint2d origin = apply(inner.x, inner.y);
    return {xx * inner.xx + xy * inner.yx,
            xx * inner.xy + xy * inner.yy,
            yx * inner.xx + yy * inner.yx,
            yx * inner.xy + yy * inner.yy,
            origin.x,
            origin.y};
}

double PlaneTransform::scale() const { return std::sqrt(std::abs(xx * yy - xy * yx)); }
double PlaneTransform::rotation() const { return std::atan2(yx, xx); }

SceneBuilder::SceneBuilder(OdDbDatabase& drawing, SceneUse use)
    : m_drawing(drawing), m_use(use), m_linetypeScale(drawing.getLTSCALE()) {}

void SceneBuilder::addBlock(const OdDbObjectId& block, const PlaneTransform& transform,
                            const DisplayStyle* byBlock) {
    Context context;
    context.transform = transform;
    context.byBlock = byBlock;
    addEntities(block, context);
}

void SceneBuilder::addEntities(const OdDbObjectId& block, const Context& context) {
    if (context.depth > kMaximumDepth) return;
    const auto record = block.open<OdDbBlockTableRecord>();
    if (!record) return;
    for (OdDbEntity* entity : record->entities()) {
        if (entity->isErased() || entity->visibility() == OdDb::kInvisible) continue;
        if (!isLayerShown(entity->layerId())) continue;
        Context inner = context;
        if (context.depth == 0) inner.entity = entity->objectId();
        addEntity(*entity, inner);
    }
}

bool SceneBuilder::isLayerShown(const OdDbObjectId& layer) const {
    const auto record = layer.open<OdDbLayerTableRecord>();
    if (!record) return true;
    if (m_use == SceneUse::kPaper && !record->isPlottable()) return false;
    return !record->isOff() && !record->isFrozen();
}

void SceneBuilder::addEntity(OdDbEntity& entity, const Context& context) {
    const DisplayStyle style = styleOf(entity, context);
    if (auto* reference = dynamic_cast<OdDbBlockReference*>(&entity)) {
        addReference(*reference, context, style);
    } else if (auto* dimension = dynamic_cast<OdDbDimension*>(&entity)) {
        Context inner = context;
        inner.byBlock = &style;
        inner.layer = entity.layerId();
        ++inner.depth;
        addEntities(dimension->dimBlockId(), inner);
    } else if (auto* text = dynamic_cast<OdDbText*>(&entity)) {
        addText(*text, context, style);
    } else if (auto* paragraph = dynamic_cast<OdDbMText*>(&entity)) {
        addMText(*paragraph, context, style);
    } else {
        addCurve(entity, context, style);
    }
}

void SceneBuilder::addCurve(OdDbEntity& entity, const Context& context, const DisplayStyle& style) {
    const PlaneTransform& t = context.transform;
    if (auto* line = dynamic_cast<OdDbLine*>(&entity)) {
        addPath({t.apply(line->startPoint()), t.apply(line->endPoint())}, context, style);
    } else if (auto* circle = dynamic_cast<OdDbCircle*>(&entity)) {
        const double radius = circle->radius();
        addArc(circle->center(), {radius, 0}, {0, radius}, 0, kTurn, context, style);
    } else if (auto* arc = dynamic_cast<OdDbArc*>(&entity)) {
        double sweep = std::fmod(arc->endAngle() - arc->startAngle(), kTurn);
        if (sweep <= 0) sweep += kTurn;
        const double radius = arc->radius();
        addArc(arc->center(), {radius, 0}, {0, radius}, arc->startAngle(), sweep, context, style);
    } else if (auto* ellipse = dynamic_cast<OdDbEllipse*>(&entity)) {
        const OdGePoint3d a = ellipse->majorAxis();
        const double ratio = ellipse->radiusRatio(), start = ellipse->startParam();
        double sweep = ellipse->endParam() - start;
        if (sweep <= 0) sweep += kTurn;
        addArc(ellipse->center(), {a.x, a.y}, {-a.y * ratio, a.x * ratio}, start, sweep, context, style);
    } else if (auto* polyline = dynamic_cast<OdDbPolyline*>(&entity)) {
        addCorners(cornersOf(*polyline), polyline->isClosed(), context, style);
    } else if (auto* old = dynamic_cast<OdDb2dPolyline*>(&entity); old != nullptr && !old->isMesh()) {
        addCorners(cornersOf(*old), old->isClosed(), context, style);
    } else if (auto* spline = dynamic_cast<OdDbSpline*>(&entity)) {
        std::vector<OdGePoint2d> points;
        for (const OdGePoint3d& point : spline->samplePoints(64)) points.push_back(t.apply(point));
        addPath(std::move(points), context, style);
    } else if (auto* solid = dynamic_cast<OdDbSolid*>(&entity)) {
        // Kept: the third and fourth corner lie crosswise in the file.
        addPath({t.apply(solid->pointAt(0)), t.apply(solid->pointAt(1)), t.apply(solid->pointAt(3)),
                 t.apply(solid->pointAt(2))},
                context, style, true);
    } else if (auto* point = dynamic_cast<OdDbPoint*>(&entity)) {
        addPath({t.apply(point->position()), t.apply(point->position())}, context, style);
    }
}

void SceneBuilder::addPath(std::vector<OdGePoint2d> points, const Context& context, const DisplayStyle& style,
                           bool filled, std::vector<SceneArc> arcs) {
    if (points.empty()) return;
    m_scene.paths.push_back({std::move(points), filled, style, context.entity, std::move(arcs)});
}

void SceneBuilder::addCorners(const std::vector<SceneCorner>& corners, bool closed, const Context& context,
                              const DisplayStyle& style) {
    if (corners.empty()) return;
    std::vector<OdGePoint2d> points = {corners.front().point};
    std::vector<SceneArc> arcs;
    const auto append = [&](const SceneCorner& from, const SceneCorner& to) {
        appendBulge(points, arcs, from.point, to.point, from.bulge);
    };
    for (std::size_t i = 1; i < corners.size(); ++i) append(corners[i - 1], corners[i]);
    if (closed) append(corners.back(), corners.front());
    const PlaneTransform& t = context.transform;
    for (OdGePoint2d& point : points) point = t.apply(point.x, point.y);
    for (SceneArc& arc : arcs) {
        arc.center = t.apply(arc.center.x, arc.center.y);
        arc.axisX = t.turned(arc.axisX);
        arc.axisY = t.turned(arc.axisY);
    }
    addPath(std::move(points), context, style, false, std::move(arcs));
}

void SceneBuilder::addArc(const OdGePoint3d& center, const OdGePoint2d& major, const OdGePoint2d& minor,
                          double start, double sweep, const Context& context, const DisplayStyle& style) {
    const PlaneTransform& t = context.transform;
    const int steps = std::max(2, static_cast<int>(std::ceil(sweep / kArcStep)));
    std::vector<OdGePoint2d> points;
    for (int i = 0; i <= steps; ++i) {
        const double angle = start + sweep * i / steps, x = std::cos(angle), y = std::sin(angle);
        points.push_back(t.apply(center.x + major.x * x + minor.x * y, center.y + major.y * x + minor.y * y));
    }
    const SceneArc arc = {0,    points.size() - 1, t.apply(center), t.turned(major), t.turned(minor), start,
                          sweep};
    addPath(std::move(points), context, style, false, {arc});
}

void SceneBuilder::addReference(OdDbBlockReference& reference, const Context& context,
                                const DisplayStyle& style) {
    const OdGePoint3d position = reference.position(), factors = reference.scaleFactors();
    const double c = std::cos(reference.rotation()), s = std::sin(reference.rotation());
    const int rows = std::max(1, reference.rows()), columns = std::max(1, reference.columns());
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column) {
            const double dx = column * reference.columnSpacing(), dy = row * reference.rowSpacing();
            const PlaneTransform placed{c * factors.x,
                                        -s * factors.y,
                                        s * factors.x,
                                        c * factors.y,
                                        position.x + c * dx - s * dy,
                                        position.y + s * dx + c * dy};
            Context inner = context;
            inner.transform = context.transform.after(placed);
            inner.byBlock = &style;
            inner.layer = reference.layerId();
            ++inner.depth;
            addEntities(reference.blockTableRecord(), inner);
        }
    }
    for (OdDbAttribute* attribute : reference.attributes())
        if (!attribute->isInvisible()) addText(*attribute, context, styleOf(*attribute, context));
}

void SceneBuilder::addText(const OdDbText& text, const Context& context, const DisplayStyle& style) {
    SceneText item;
    item.text = readableText(text.textString());
    item.horizontal = text.horizontalMode() == 4 ? 1 : std::min(text.horizontalMode(), 2);
    item.vertical = text.horizontalMode() == 4 ? 2 : text.verticalMode();
    const bool aligned = text.horizontalMode() != 0 || text.verticalMode() != 0;
    item.position = context.transform.apply(aligned ? text.alignmentPoint() : text.position());
    item.height = text.height() * context.transform.scale();
    item.rotation = text.rotation() + context.transform.rotation();
    item.widthFactor = text.widthFactor();
    item.font = fontOf(text.textStyle(), text.oblique());
    item.style = style;
    item.entity = context.entity;
    m_scene.texts.push_back(std::move(item));
}

void SceneBuilder::addMText(const OdDbMText& text, const Context& context, const DisplayStyle& style) {
    const OdString plain = text.plainText();
    const double height = text.textHeight(), spacing = height * 5 / 3;
    std::vector<OdString> lines(1);
    for (const wchar_t c : plain.view()) {
        if (c == L'\n')
            lines.emplace_back();
        else
            lines.back() += c;
    }
    const int attachment = text.attachment() - 1;
    const double block = height + spacing * static_cast<double>(lines.size() - 1);
    // Distance from the attachment point to the top line's base line, by the row of the attachment.
    double down = height - block * (attachment / 3) / 2;
    const auto record = text.textStyle().open<OdDbTextStyleTableRecord>();
    const SceneFont font = fontOf(text.textStyle(), record ? record->obliquingAngle() : 0);
    const double rotation = text.rotation();
    for (const OdString& line : lines) {
        const OdGePoint3d at = text.location();
        SceneText item;
        item.text = line;
        item.horizontal = attachment % 3;
        item.position =
            context.transform.apply(at.x + std::sin(rotation) * down, at.y - std::cos(rotation) * down);
        item.height = height * context.transform.scale();
        item.rotation = rotation + context.transform.rotation();
        item.font = font;
        item.style = style;
        item.entity = context.entity;
        m_scene.texts.push_back(std::move(item));
        down += spacing;
    }
}

std::vector<double> SceneBuilder::dashesOf(const OdDbObjectId& linetype, double scale) const {
    std::vector<double> dashes;
    if (const auto record = linetype.open<OdDbLinetypeTableRecord>())
        for (const double dash : record->dashes()) dashes.push_back(dash * scale);
    return dashes;
}

DisplayStyle SceneBuilder::styleOf(const OdDbEntity& entity, const Context& context) const {
    static const DisplayStyle outermost = [] {
        DisplayStyle style;
        style.color.setColorIndex(OdCmColor::kForeground);
        style.lineWeight = OdDb::kLnWt025;
        return style;
    }();
    const DisplayStyle& byBlock = context.byBlock != nullptr ? *context.byBlock : outermost;
    OdDbObjectId layerId = entity.layerId();
    auto layer = layerId.open<OdDbLayerTableRecord>();
    // Inside a block, layer 0 stands for the layer of the reference.
    if (layer && context.depth > 0 && layer->getName() == L"0" && !context.layer.isNull())
        layer = context.layer.open<OdDbLayerTableRecord>();

    DisplayStyle style;
    if (layer) style.layer = layer->objectId();
    style.color = entity.color();
    if (style.color.isByLayer() && layer) style.color = layer->color();
    if (style.color.isByBlock()) style.color = byBlock.color;

    OdDbLinetypeTablePtr linetypes;
    m_drawing.getLinetypeTable(linetypes);
    OdDbObjectId linetype = entity.linetypeId();
    if (linetype == linetypes->getLinetypeByLayerId() && layer) linetype = layer->linetypeObjectId();
    if (linetype == linetypes->getLinetypeByBlockId())
        style.dashes = byBlock.dashes;
    else
        style.dashes = dashesOf(linetype, m_linetypeScale * entity.linetypeScale());

    int weight = entity.lineWeight();
    if (weight == OdDb::kLnWtByLayer && layer) weight = layer->lineWeight();
    if (weight == OdDb::kLnWtByBlock) weight = byBlock.lineWeight;
    style.lineWeight = weight < 0 ? OdDb::kLnWt025 : weight;
    return style;
}
