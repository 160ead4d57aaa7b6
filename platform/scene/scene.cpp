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
        const double left = -width * text.horizontal / 2;
        const double low = text.vertical == 2 ? -text.height / 2 : text.vertical == 3 ? -text.height : 0;
        const double c = std::cos(text.rotation), s = std::sin(text.rotation);
        for (const double u : {left, left + width})
            for (const double v : {low, low + text.height})
                result.add({text.position.x + u * c - v * s, text.position.y + u * s + v * c});
    }
    return result;
}

Scene BuildScene(OdDbDatabase& drawing, const OdDbObjectId& space) {
    SceneBuilder builder(drawing);
    builder.addBlock(space);
    return builder.take();
}
