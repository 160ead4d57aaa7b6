#include "measurement.h"

#include <cmath>
#include <numbers>

namespace {

constexpr double kTurn = 2 * std::numbers::pi;

double DirectionOf(double dx, double dy) {
    const double angle = std::atan2(dy, dx);
    return angle < 0 ? angle + kTurn : angle;
}

}  // namespace

LineMeasure MeasureLine(const OdGePoint2d& from, const OdGePoint2d& to) {
    const double dx = to.x - from.x, dy = to.y - from.y;
    return {std::hypot(dx, dy), dx, dy, DirectionOf(dx, dy)};
}

double MeasureAngle(const OdGePoint2d& vertex, const OdGePoint2d& one, const OdGePoint2d& other) {
    const LineMeasure first = MeasureLine(vertex, one), second = MeasureLine(vertex, other);
    if (first.distance == 0 || second.distance == 0) return 0;
    const double between = std::abs(first.direction - second.direction);
    return between > std::numbers::pi ? kTurn - between : between;
}
