#include "scene_bounds.h"

#include <algorithm>
#include <cmath>

namespace {

/// A text is nowhere further from its place than this many times its estimated width, and its height.
constexpr double kWidest = 3, kTallest = 3;

SceneExtents boundsOf(const SceneText& text) {
    const double reach = std::abs(TextExtent(text)) * kWidest + text.height * kTallest;
    return {{text.position.x - reach, text.position.y - reach},
            {text.position.x + reach, text.position.y + reach}};
}

}  // namespace

SceneBounds::SceneBounds(const Scene& scene) {
    m_paths.reserve(scene.paths.size());
    for (const ScenePath& path : scene.paths) {
        SceneExtents& bounds = m_paths.emplace_back();
        for (const OdGePoint2d& point : path.points) bounds.add(point);
    }
    m_texts.reserve(scene.texts.size());
    for (const SceneText& text : scene.texts) m_texts.push_back(boundsOf(text));
    m_images.reserve(scene.images.size());
    for (const SceneImage& image : scene.images) {
        SceneExtents& bounds = m_images.emplace_back();
        for (const OdGePoint2d& corner : CornersOf(image)) bounds.add(corner);
    }
}
