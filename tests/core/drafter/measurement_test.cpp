#include "measurement.h"

#include <gtest/gtest.h>

#include <numbers>

namespace {

constexpr double kPi = std::numbers::pi;

}  // namespace

TEST(MeasureLine, TellsDistanceSidesAndDirection) {
    const LineMeasure line = MeasureLine({1, 2}, {4, 6});
    EXPECT_DOUBLE_EQ(line.distance, 5);
    EXPECT_DOUBLE_EQ(line.dx, 3);
    EXPECT_DOUBLE_EQ(line.dy, 4);
    EXPECT_DOUBLE_EQ(MeasureLine({0, 0}, {0, 2}).direction, kPi / 2);
    EXPECT_DOUBLE_EQ(MeasureLine({0, 0}, {0, -2}).direction, 3 * kPi / 2);
    EXPECT_DOUBLE_EQ(MeasureLine({0, 0}, {-2, 0}).direction, kPi);
    EXPECT_DOUBLE_EQ(MeasureLine({3, 3}, {3, 3}).direction, 0);
}

TEST(MeasureAngle, IsTheSmallerOneBetweenTheLegs) {
    EXPECT_DOUBLE_EQ(MeasureAngle({0, 0}, {5, 0}, {0, 1}), kPi / 2);
    EXPECT_DOUBLE_EQ(MeasureAngle({0, 0}, {0, 1}, {5, 0}), kPi / 2);
    EXPECT_NEAR(MeasureAngle({1, 1}, {2, 2}, {2, 0}), kPi / 2, 1e-12) << "across the x axis";
    EXPECT_DOUBLE_EQ(MeasureAngle({0, 0}, {1, 0}, {-1, 0}), kPi);
    EXPECT_DOUBLE_EQ(MeasureAngle({0, 0}, {0, 0}, {1, 1}), 0);
    EXPECT_DOUBLE_EQ(MeasureAngle({0, 0}, {1, 1}, {0, 0}), 0);
}
