#include "hit_test.h"

#include <algorithm>
#include <cmath>
#include <map>

namespace {

constexpr double kCharacterWidth = 0.8;  // of the height

double distanceToSegment(const OdGePoint2d& at, const OdGePoint2d& from, const OdGePoint2d& to) {
    const double dx = to.x - from.x, dy = to.y - from.y;
    const double length = dx * dx + dy * dy;
    double along = length > 0 ? ((at.x - from.x) * dx + (at.y - from.y) * dy) / length : 0;
    along = std::clamp(along, 0.0, 1.0);
    return std::hypot(at.x - from.x - along * dx, at.y - from.y - along * dy);
}

double distanceTo(const ScenePath& path, const OdGePoint2d& at) {
    if (path.points.empty()) return HUGE_VAL;
    double nearest = distanceToSegment(at, path.points.front(), path.points.front());
    for (std::size_t i = 1; i < path.points.size(); ++i)
        nearest = std::min(nearest, distanceToSegment(at, path.points[i - 1], path.points[i]));
    return nearest;
}

/// Whether a point lies within the closed line through `points`, by the count of crossings to its right.
template <class Points>
bool isWithin(const Points& points, const OdGePoint2d& at) {
    bool within = false;
    for (std::size_t i = 0, last = points.size() - 1; i < points.size(); last = i++) {
        const OdGePoint2d& a = points[i];
        const OdGePoint2d& b = points[last];
        if ((a.y > at.y) != (b.y > at.y) && at.x < (b.x - a.x) * (at.y - a.y) / (b.y - a.y) + a.x)
            within = !within;
    }
    return within;
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
    return linesCross(window, points, true) || (points.size() > 2 && isWithin(points, window.low));
}

bool touches(const SceneExtents& window, const ScenePath& path) {
    return path.filled ? areaTouches(window, path.points) : linesCross(window, path.points, false);
}

template <class Points>
bool areIn(const SceneExtents& window, const Points& points) {
    return std::all_of(points.begin(), points.end(),
                       [&](const OdGePoint2d& point) { return isIn(window, point); });
}

}  // namespace

std::array<OdGePoint2d, 4> TextBox(const SceneText& text) {
    const double width = text.text.length() * text.height * text.widthFactor * kCharacterWidth;
    const double left = -width * text.horizontal / 2;
    const double low = text.vertical == 2 ? -text.height / 2 : text.vertical == 3 ? -text.height : 0;
    const double c = std::cos(text.rotation), s = std::sin(text.rotation);
    const auto corner = [&](double u, double v) {
        return OdGePoint2d{text.position.x + u * c - v * s, text.position.y + u * s + v * c};
    };
    return {corner(left, low), corner(left + width, low), corner(left + width, low + text.height),
            corner(left, low + text.height)};
}

OdDbObjectId EntityAt(const Scene& scene, const OdGePoint2d& at, double reach) {
    OdDbObjectId found;
    double nearest = reach;
    for (const ScenePath& path : scene.paths) {
        const double distance = distanceTo(path, at);
        if (distance > nearest) continue;
        nearest = distance;
        found = path.entity;
    }
    if (!found.isNull()) return found;
    for (const SceneText& text : scene.texts)
        if (isWithin(TextBox(text), at)) return text.entity;
    for (const ScenePath& path : scene.paths)
        if (path.filled && path.points.size() > 2 && isWithin(path.points, at)) found = path.entity;
    return found;
}

std::set<OdDbObjectId> EntitiesInside(const Scene& scene, const SceneExtents& window) {
    std::map<OdDbObjectId, bool> isInside;
    const auto note = [&](const OdDbObjectId& entity, bool inside) {
        const auto place = isInside.emplace(entity, true).first;
        place->second = place->second && inside;
    };
    for (const ScenePath& path : scene.paths) note(path.entity, areIn(window, path.points));
    for (const SceneText& text : scene.texts) note(text.entity, areIn(window, TextBox(text)));
    std::set<OdDbObjectId> found;
    for (const auto& [entity, inside] : isInside)
        if (inside && !entity.isNull()) found.insert(entity);
    return found;
}

std::set<OdDbObjectId> EntitiesTouching(const Scene& scene, const SceneExtents& window) {
    std::set<OdDbObjectId> found;
    for (const ScenePath& path : scene.paths)
        if (touches(window, path)) found.insert(path.entity);
    for (const SceneText& text : scene.texts)
        if (areaTouches(window, TextBox(text))) found.insert(text.entity);
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
