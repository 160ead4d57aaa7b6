#include "hit_test.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <span>
#include <vector>

#include "path_measure.h"

namespace {

/// Calls `part` with each line of a path, or each boundary of an area, until one answers true.
template <class Part>
bool anyPart(const ScenePath& path, Part part) {
    std::size_t first = 0;
    for (std::size_t i = 0; i <= path.breaks.size(); ++i) {
        const std::size_t end = i < path.breaks.size() ? path.breaks[i] : path.points.size();
        if (end > first && part(std::span(path.points).subspan(first, end - first))) return true;
        first = end;
    }
    return false;
}

double distanceToSegment(const OdGePoint2d& at, const OdGePoint2d& from, const OdGePoint2d& to) {
    const double dx = to.x - from.x, dy = to.y - from.y;
    const double length = dx * dx + dy * dy;
    double along = length > 0 ? ((at.x - from.x) * dx + (at.y - from.y) * dy) / length : 0;
    along = std::clamp(along, 0.0, 1.0);
    return std::hypot(at.x - from.x - along * dx, at.y - from.y - along * dy);
}

double distanceTo(const ScenePath& path, const OdGePoint2d& at) {
    double nearest = HUGE_VAL;
    anyPart(path, [&](std::span<const OdGePoint2d> points) {
        nearest = std::min(nearest, distanceToSegment(at, points.front(), points.front()));
        for (std::size_t i = 1; i < points.size(); ++i)
            nearest = std::min(nearest, distanceToSegment(at, points[i - 1], points[i]));
        return false;
    });
    return nearest;
}

/// Whether an odd count of an area's boundaries surrounds a point.
bool isInArea(const ScenePath& path, const OdGePoint2d& at) {
    bool within = false;
    anyPart(path, [&](std::span<const OdGePoint2d> points) {
        if (points.size() > 2 && IsWithin(points, at)) within = !within;
        return false;
    });
    return within;
}

/// Whether a place is seen through a clip of the scene, and those around it.
bool isSeen(const Scene& scene, int clip, const OdGePoint2d& at) {
    while (clip >= 0) {
        const SceneClip& each = scene.clips[static_cast<std::size_t>(clip)];
        if (each.outline.size() < 3 || !IsWithin(each.outline, at)) return false;
        clip = each.within < clip ? each.within : kNoClip;
    }
    return true;
}

bool isIn(const SceneExtents& window, const OdGePoint2d& point) {
    return point.x >= window.low.x && point.x <= window.high.x && point.y >= window.low.y &&
           point.y <= window.high.y;
}

/// Whether any of the line lies in the window: its part between the parameters 0 and 1 is cut down by each
/// side of the window in turn.
bool crosses(const SceneExtents& window, const OdGePoint2d& from, const OdGePoint2d& to) {
    double begin = 0, end = 1;
    const auto cut = [&](double start, double change, double low, double high) {
        if (change == 0) return start >= low && start <= high;
        double enters = (low - start) / change, leaves = (high - start) / change;
        if (enters > leaves) std::swap(enters, leaves);
        begin = std::max(begin, enters);
        end = std::min(end, leaves);
        return begin <= end;
    };
    return cut(from.x, to.x - from.x, window.low.x, window.high.x) &&
           cut(from.y, to.y - from.y, window.low.y, window.high.y);
}

template <class Points>
bool linesCross(const SceneExtents& window, const Points& points, bool isClosed) {
    if (points.size() == 0) return false;
    for (std::size_t i = isClosed ? 0 : 1; i < points.size(); ++i)
        if (crosses(window, points[i == 0 ? points.size() - 1 : i - 1], points[i])) return true;
    return points.size() == 1 && isIn(window, points[0]);
}

/// The same for an area, which may also hold all of the window.
template <class Points>
bool areaTouches(const SceneExtents& window, const Points& points) {
    return linesCross(window, points, true) || (points.size() > 2 && IsWithin(points, window.low));
}

bool touches(const SceneExtents& window, const ScenePath& path) {
    if (path.filled && isInArea(path, window.low)) return true;
    return anyPart(
        path, [&](std::span<const OdGePoint2d> points) { return linesCross(window, points, path.filled); });
}

/// The part of a window in which a clip lets anything be seen.
SceneExtents seenPart(const Scene& scene, int clip, SceneExtents window) {
    if (clip != kNoClip) window.cut(scene.clipExtents(clip));
    return window;
}

template <class Points>
bool areIn(const SceneExtents& window, const Points& points) {
    return std::all_of(points.begin(), points.end(),
                       [&](const OdGePoint2d& point) { return isIn(window, point); });
}

/// Whether all of a piece lies in a window that its clip lets be seen.
template <class Points>
bool isSeenIn(const SceneExtents& window, const Scene& scene, int clip, const Points& points) {
    if (clip == kNoClip) return areIn(window, points);
    SceneExtents seen;
    for (const OdGePoint2d& point : points) seen.add(point);
    seen.cut(scene.clipExtents(clip));
    return seen.isEmpty() || (isIn(window, seen.low) && isIn(window, seen.high));
}

}  // namespace

std::array<OdGePoint2d, 4> TextBox(const SceneText& text) {
    const double width = TextExtent(text), left = -width * text.horizontal / 2, low = -BaseLineDrop(text);
    const double c = std::cos(text.rotation), s = std::sin(text.rotation);
    const auto corner = [&](double u, double v) {
        return OdGePoint2d{text.position.x + u * c - v * s, text.position.y + u * s + v * c};
    };
    return {corner(left, low), corner(left + width, low), corner(left + width, low + text.height),
            corner(left, low + text.height)};
}

OdDbObjectId EntityAt(const Scene& scene, const SceneBounds& bounds, const OdGePoint2d& at, double reach) {
    OdDbObjectId found;
    double nearest = reach;
    const SceneExtents around = {{at.x - reach, at.y - reach}, {at.x + reach, at.y + reach}};
    std::vector<const ScenePath*> candidates;
    for (std::size_t i = 0; i < scene.paths.size(); ++i)
        if (bounds.path(i).meets(around) && isSeen(scene, scene.paths[i].clip, at))
            candidates.push_back(&scene.paths[i]);
    for (const ScenePath* path : candidates) {
        const double distance = distanceTo(*path, at);
        if (distance > nearest) continue;
        nearest = distance;
        found = path->entity;
    }
    if (!found.isNull()) return found;
    for (std::size_t i = 0; i < scene.texts.size(); ++i) {
        const SceneText& text = scene.texts[i];
        if (bounds.text(i).meets(around) && isSeen(scene, text.clip, at) && IsWithin(TextBox(text), at))
            return text.entity;
    }
    for (const ScenePath* path : candidates)
        if (path->filled && isInArea(*path, at)) found = path->entity;
    if (!found.isNull()) return found;
    // A picture is hit at its edge, so that a window can be drawn over it.
    for (std::size_t i = 0; i < scene.images.size(); ++i) {
        const SceneImage& image = scene.images[i];
        if (bounds.image(i).meets(around) && isSeen(scene, image.clip, at) &&
            linesCross(around, CornersOf(image), true))
            found = image.entity;
    }
    return found;
}

std::set<OdDbObjectId> EntitiesInside(const Scene& scene, const SceneExtents& window) {
    std::map<OdDbObjectId, bool> isInside;
    const auto note = [&](const OdDbObjectId& entity, bool inside) {
        const auto place = isInside.emplace(entity, true).first;
        place->second = place->second && inside;
    };
    for (const ScenePath& path : scene.paths)
        note(path.entity, isSeenIn(window, scene, path.clip, path.points));
    for (const SceneText& text : scene.texts)
        note(text.entity, isSeenIn(window, scene, text.clip, TextBox(text)));
    for (const SceneImage& image : scene.images)
        note(image.entity, isSeenIn(window, scene, image.clip, CornersOf(image)));
    std::set<OdDbObjectId> found;
    for (const auto& [entity, inside] : isInside)
        if (inside && !entity.isNull()) found.insert(entity);
    return found;
}

std::set<OdDbObjectId> EntitiesTouching(const Scene& scene, const SceneExtents& window) {
    std::set<OdDbObjectId> found;
    for (const ScenePath& path : scene.paths)
        if (const SceneExtents seen = seenPart(scene, path.clip, window);
            !seen.isEmpty() && touches(seen, path))
            found.insert(path.entity);
    for (const SceneText& text : scene.texts)
        if (const SceneExtents seen = seenPart(scene, text.clip, window);
            !seen.isEmpty() && areaTouches(seen, TextBox(text)))
            found.insert(text.entity);
    for (const SceneImage& image : scene.images)
        if (const SceneExtents seen = seenPart(scene, image.clip, window);
            !seen.isEmpty() && linesCross(seen, CornersOf(image), true))
            found.insert(image.entity);
    found.erase(OdDbObjectId());
    return found;
}

std::set<OdDbObjectId> SelectionAfter(const std::set<OdDbObjectId>& selection,
                                      const std::set<OdDbObjectId>& found, bool toSelection) {
    if (!toSelection) return found;
    std::set<OdDbObjectId> result = selection;
    const bool isAllThere = std::includes(selection.begin(), selection.end(), found.begin(), found.end());
    for (const OdDbObjectId& each : found) {
        if (isAllThere)
            result.erase(each);
        else
            result.insert(each);
    }
    return result;
}
