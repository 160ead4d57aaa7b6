#include "scene.h"

#include <algorithm>
#include <cmath>

#include "rules/text_width.h"
#include "scene_builder.h"

namespace {

SceneExtents extentsOf(const ScenePath& path) {
    SceneExtents result;
    for (const OdGePoint2d& point : path.points) result.add(point);
    return result;
}

SceneExtents extentsOf(const SceneImage& image) {
    SceneExtents result;
    for (const OdGePoint2d& corner : CornersOf(image)) result.add(corner);
    return result;
}

SceneExtents extentsOf(const SceneText& text) {
    SceneExtents result;
    const double width = TextExtent(text), left = -width * text.horizontal / 2;
    const double low = -BaseLineDrop(text);
    const double c = std::cos(text.rotation), s = std::sin(text.rotation);
    for (const double u : {left, left + width})
        for (const double v : {low, low + text.height})
            result.add({text.position.x + u * c - v * s, text.position.y + u * s + v * c});
    return result;
}

}  // namespace

void SceneExtents::add(const OdGePoint2d& point) {
    low.x = std::min(low.x, point.x);
    low.y = std::min(low.y, point.y);
    high.x = std::max(high.x, point.x);
    high.y = std::max(high.y, point.y);
}

bool SceneExtents::meets(const SceneExtents& other) const {
    return low.x <= other.high.x && other.low.x <= high.x && low.y <= other.high.y && other.low.y <= high.y;
}

bool SceneExtents::holds(const SceneExtents& other) const {
    return other.isEmpty() ||
           (low.x <= other.low.x && other.high.x <= high.x && low.y <= other.low.y && other.high.y <= high.y);
}

void SceneExtents::cut(const SceneExtents& other) {
    low = {std::max(low.x, other.low.x), std::max(low.y, other.low.y)};
    high = {std::min(high.x, other.high.x), std::min(high.y, other.high.y)};
    if (low.x > high.x || low.y > high.y) *this = {};
}

std::array<OdGePoint2d, 4> CornersOf(const SceneImage& image) {
    const OdGePoint2d right = {image.origin.x + image.across.x, image.origin.y + image.across.y};
    return {image.origin, right, OdGePoint2d{right.x + image.up.x, right.y + image.up.y},
            OdGePoint2d{image.origin.x + image.up.x, image.origin.y + image.up.y}};
}

double BaseLineDrop(const SceneText& text) {
    constexpr double kDrop[] = {0, -kDescenderShare, 0.5, 1};
    return text.height * kDrop[std::clamp(text.vertical, 0, 3)];
}

double TextExtent(const SceneText& text) {
    if (text.fitWidth > 0) return std::copysign(text.fitWidth, text.widthFactor);
    return EstimatedTextWidth(text.font, text.text.view()) * text.height * text.widthFactor;
}

SceneExtents Scene::clipExtents(int clip) const {
    SceneExtents result{{-1e300, -1e300}, {1e300, 1e300}};
    for (int at = clip; at >= 0 && at < static_cast<int>(clips.size());) {
        const SceneClip& each = clips[static_cast<std::size_t>(at)];
        SceneExtents outline;
        for (const OdGePoint2d& point : each.outline) outline.add(point);
        result.cut(outline);
        at = each.within < at ? each.within : kNoClip;
    }
    return result;
}

SceneExtents Scene::extents() const {
    SceneExtents result;
    int lastClip = kNoClip;
    SceneExtents lastSeen;  // what that clip leaves
    const auto take = [&](SceneExtents piece, int clip) {
        if (clip != kNoClip && clip != lastClip) lastSeen = clipExtents(lastClip = clip);
        if (clip != kNoClip) piece.cut(lastSeen);
        if (piece.isEmpty()) return;
        result.add(piece.low);
        result.add(piece.high);
    };
    for (const ScenePath& path : paths)
        if (!path.isEndless) take(extentsOf(path), path.clip);
    for (const SceneText& text : texts) take(extentsOf(text), text.clip);
    for (const SceneImage& image : images) take(extentsOf(image), image.clip);
    return result;
}

Scene BuildScene(OdDbDatabase& drawing, const OdDbObjectId& space) { return BuildScene(drawing, space, {}); }

Scene BuildScene(OdDbDatabase& drawing, const OdDbObjectId& space, const SceneOptions& options) {
    SceneBuilder builder(drawing, options);
    builder.addBlock(space);
    return builder.take();
}
