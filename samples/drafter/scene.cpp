#include "scene.h"

#include <algorithm>
#include <cmath>

#include "scene_builder.h"

void SceneExtents::add(const OdGePoint2d& point) {
    low.x = std::min(low.x, point.x);
    low.y = std::min(low.y, point.y);
    high.x = std::max(high.x, point.x);
    high.y = std::max(high.y, point.y);
}

SceneExtents Scene::extents() const {
    SceneExtents result;
    for (const ScenePath& path : paths)
        for (const OdGePoint2d& point : path.points) result.add(point);
    for (const SceneText& text : texts) {
        const double width = text.text.length() * text.height * text.widthFactor;
        result.add(text.position);
        result.add({text.position.x + width * std::cos(text.rotation),
                    text.position.y + width * std::sin(text.rotation)});
    }
    return result;
}

Scene BuildScene(OdDbDatabase& drawing, const OdDbObjectId& space) {
    SceneBuilder builder(drawing);
    builder.addBlock(space);
    return builder.take();
}
