// Windows of a sheet onto model space.
#include <cmath>
#include <numbers>

#include <od_db_viewport.h>

#include "block_walk.h"
#include "geometry/curve_points.h"
#include "kinds/draw_functions.h"
#include "kinds/entity_cast.h"
#include "rules/viewport_view.h"

namespace {

/// From model space to the sheet.
SpaceTransform ontoSheet(const OdDbViewport& viewport, const ViewportView& view) {
    const double scale = viewport.height() / view.height;
    const OdGePoint2d seen = view.center;
    // The centre of the view is counted in its plane, turned with it.
    return SpaceTransform::Moved(viewport.centerPoint())
        .after(SpaceTransform::Scaled({scale, scale, scale}))
        .after(SpaceTransform::Moved({-seen.x, -seen.y, 0}))
        .after(SpaceTransform::Turned(view.twist))
        .after(SpaceTransform::SeenAlong(view.direction))
        .after(SpaceTransform::Moved(view.target * -1));
}

/// The outline that an entity of the sheet gives: a polyline or circle, flattened.
std::vector<OdGePoint2d> outlineOf(const OdDbObjectId& entity, const EntityPen& pen) {
    std::vector<OdGePoint2d> outline;
    const auto shape = entity.open<OdDbEntity>();
    if (!shape) return outline;
    SceneOptions options = pen.work().options();
    options.percent = nullptr;
    SceneWork scratch(pen.work().drawing(), options);
    EntityPen own(scratch, pen.level(), pen.look());
    if (const DrawFunction draw = DrawFunctionFor(shape->dxfName()); draw != nullptr && draw != DrawViewport)
        draw(*shape, own);
    for (const ScenePath& path : scratch.take().paths)
        outline.insert(outline.end(), path.points.begin(), path.points.end());
    return outline;
}

std::vector<OdGePoint2d> outlineOf(const OdDbViewport& viewport, const EntityPen& pen) {
    std::vector<OdGePoint2d> outline = outlineOf(viewport.clipEntity(), pen);
    if (outline.size() > 2) return outline;
    const OdGePoint3d center = viewport.centerPoint();
    const double x = viewport.width() / 2, y = viewport.height() / 2;
    return {pen.onPlane(center + OdGePoint3d{-x, -y, 0}), pen.onPlane(center + OdGePoint3d{x, -y, 0}),
            pen.onPlane(center + OdGePoint3d{x, y, 0}), pen.onPlane(center + OdGePoint3d{-x, y, 0})};
}

/// The frame is drawn on the viewport's layer, which is often one that isn't plotted.
void drawFrame(const std::vector<OdGePoint2d>& outline, const EntityPen& pen) {
    ScenePath frame;
    frame.points = outline;
    frame.points.push_back(outline.front());
    frame.style = pen.look().style;
    frame.entity = pen.level().entity;
    pen.work().add(std::move(frame));
}

}  // namespace

void DrawViewport(const OdDbEntity& entity, EntityPen& pen) {
    const auto* viewport = As<OdDbViewport>(entity);
    if (viewport == nullptr || viewport->isSheet() || pen.level().depth > 0) return;
    if (!(viewport->width() > 0) || !(viewport->height() > 0)) return;
    SceneWork& work = pen.work();
    const std::vector<OdGePoint2d> outline = outlineOf(*viewport, pen);
    const ViewportView view = ViewOf(*viewport);
    if (viewport->isOn() && view.height > 0) {
        StyleRules rules(work.drawing(), work.options().use, work.patterns(), entity.objectId());
        // Dashes keep their lengths on the sheet, unless the drawing scales them with what is seen.
        const bool scalesDashes = work.drawing().getPSLTSCALE() == 0;
        if (scalesDashes)
            rules.setPatternScale(work.drawing().getLTSCALE() * viewport->height() / view.height);
        SceneLevel inner = pen.level();
        inner.rules = &rules;
        inner.surrounding = {};
        inner.place = pen.level().place.after(ontoSheet(*viewport, view));
        ++inner.depth;
        const int before = work.clip();
        work.setClip(work.addClip(outline));
        DrawBlock(work, work.drawing().modelSpaceId(), inner);
        work.setClip(before);
    }
    const LayerLook& layer = *pen.look().layer;
    if (!layer.isFrozen && !layer.isOff) drawFrame(outline, pen);
}
