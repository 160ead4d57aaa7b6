#include "geometry/region.h"

#include <algorithm>

#include "scene.h"

namespace {

constexpr std::size_t kBoxesForOnePoint = 16;  // comparisons of boxes that are the work of one point

}  // namespace

bool IsWithin(const Boundary& boundary, const OdGePoint2d& point) {
    bool within = false;
    for (std::size_t i = 0, last = boundary.size() - 1; i < boundary.size(); last = i++) {
        const OdGePoint2d &a = boundary[i], &b = boundary[last];
        if ((a.y > point.y) != (b.y > point.y) && point.x < (b.x - a.x) * (point.y - a.y) / (b.y - a.y) + a.x)
            within = !within;
    }
    return within;
}

std::vector<int> NestingOf(const std::vector<Boundary>& boundaries,
                           const std::function<bool(std::size_t)>& spend) {
    std::vector<SceneExtents> boxes(boundaries.size());
    for (std::size_t i = 0; i < boundaries.size(); ++i)
        for (const OdGePoint2d& point : boundaries[i]) boxes[i].add(point);
    std::vector<int> depths(boundaries.size(), 0);
    for (std::size_t i = 0; i < boundaries.size(); ++i) {
        if (!spend(boundaries.size() / kBoxesForOnePoint)) break;
        // A corner may lie on the other boundary; the middle of a side rarely does as well.
        const Boundary& inner = boundaries[i];
        const OdGePoint2d at = inner.size() > 1 ? (inner[0] + inner[1]) * 0.5 : OdGePoint2d{};
        for (std::size_t k = 0; k < boundaries.size(); ++k) {
            const SceneExtents& box = boxes[k];
            if (k == i || at.x < box.low.x || at.x > box.high.x || at.y < box.low.y || at.y > box.high.y)
                continue;
            if (spend(boundaries[k].size()) && IsWithin(boundaries[k], at)) ++depths[i];
        }
    }
    return depths;
}

std::vector<LinePart> PartsWithin(const std::vector<Boundary>& boundaries, const OdGePoint2d& base,
                                  const OdGePoint2d& direction) {
    std::vector<double> crossings;
    for (const Boundary& boundary : boundaries) {
        for (std::size_t i = 0; i < boundary.size(); ++i) {
            const OdGePoint2d a = boundary[i] - base, b = boundary[(i + 1) % boundary.size()] - base;
            const double sideA = Cross(direction, a), sideB = Cross(direction, b);
            // A corner on the line counts for one of the two sides that meet there.
            if ((sideA > 0) == (sideB > 0)) continue;
            const double alongA = Dot(direction, a), alongB = Dot(direction, b);
            crossings.push_back(alongA + (alongB - alongA) * sideA / (sideA - sideB));
        }
    }
    std::sort(crossings.begin(), crossings.end());
    std::vector<LinePart> parts;
    for (std::size_t i = 0; i + 1 < crossings.size(); i += 2)
        if (crossings[i + 1] > crossings[i]) parts.push_back({crossings[i], crossings[i + 1]});
    return parts;
}
