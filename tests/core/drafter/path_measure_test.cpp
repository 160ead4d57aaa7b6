#include "path_measure.h"

#include <gtest/gtest.h>
#include <scene_options.h>

#include <memory>
#include <numbers>

namespace {

constexpr double kPi = std::numbers::pi;

class DrawnLengths : public ::testing::Test {
protected:
    template <class Entity>
    Entity* add() {
        auto* const entity = new Entity;
        drawing->modelSpaceId()
            .open<OdDbBlockTableRecord>(OdDb::kForWrite)
            ->appendOdDbEntity(OdDbEntityPtr(entity));
        return entity;
    }
    OdDbCircle* addCircle(double radius) {
        auto* const circle = add<OdDbCircle>();
        circle->setRadius(radius);
        return circle;
    }
    Scene scene(const SceneOptions& options = {}) {
        return BuildScene(*drawing, drawing->modelSpaceId(), options);
    }

    OdDbDatabasePtr drawing{new OdDbDatabase};
};

ScenePath square(double low, double high) {
    return {{{low, low}, {high, low}, {high, high}, {low, high}, {low, low}}, false, {}, {}};
}

void append(ScenePath& path, const ScenePath& further) {
    path.breaks.push_back(path.points.size());
    path.points.insert(path.points.end(), further.points.begin(), further.points.end());
}

}  // namespace

TEST(PathMeasure, OfStraightLinesAndTheirParts) {
    ScenePath path = {{{0, 0}, {3, 4}, {3, 5}}, false, {}, {}};
    EXPECT_DOUBLE_EQ(LengthOf(path), 6);
    EXPECT_DOUBLE_EQ(AreaOf(path), 1.5) << "closed by a line from its end to its beginning";
    append(path, {{{100, 0}, {102, 0}}, false, {}, {}});
    EXPECT_DOUBLE_EQ(LengthOf(path), 8) << "and none of the way between the two";
    EXPECT_DOUBLE_EQ(LengthOf({{{7, 7}}, false, {}, {}}), 0);
    EXPECT_DOUBLE_EQ(LengthOf({}), 0);
    EXPECT_DOUBLE_EQ(AreaOf({}), 0);
}

TEST(PathMeasure, OfAreasWithinAndBesideEachOther) {
    ScenePath path = square(0, 10);
    EXPECT_DOUBLE_EQ(AreaOf(path), 100);
    append(path, square(2, 8));
    EXPECT_DOUBLE_EQ(AreaOf(path), 64) << "a hole";
    append(path, square(4, 6));
    EXPECT_DOUBLE_EQ(AreaOf(path), 68) << "an island in it";
    append(path, square(20, 21));
    EXPECT_DOUBLE_EQ(AreaOf(path), 69) << "another beside it";
    std::swap(path.points[1], path.points[3]);
    EXPECT_DOUBLE_EQ(AreaOf(path), 69) << "whichever way round";
}

TEST_F(DrawnLengths, OfCirclesAndArcsAreExact) {
    addCircle(2);
    Scene drawn = scene();
    ASSERT_EQ(drawn.paths.size(), 1u);
    EXPECT_NEAR(LengthOf(drawn.paths[0]), 4 * kPi, 1e-12);
    EXPECT_NEAR(AreaOf(drawn.paths[0]), 4 * kPi, 1e-12);
    auto* const arc = add<OdDbArc>();
    arc->setCenter({10, 20, 0});
    arc->setRadius(3);
    arc->setStartAngle(kPi / 2);
    arc->setEndAngle(kPi);
    drawn = scene();
    EXPECT_NEAR(LengthOf(drawn.paths[1]), 1.5 * kPi, 1e-12);
    EXPECT_NEAR(AreaOf(drawn.paths[1]), 9 * kPi / 4 - 4.5, 1e-12) << "between the arc and its chord";
}

TEST_F(DrawnLengths, OfEllipsesAndOfArcsInPolylinesToo) {
    auto* const ellipse = add<OdDbEllipse>();
    ellipse->setCenter({5, 5, 0});
    ellipse->setMajorAxis({4, 0, 0});
    ellipse->setRadiusRatio(0.5);
    // A slot: two sides of ten and two half circles of radius one.
    auto* const slot = add<OdDbPolyline>();
    slot->setVertices(OdArray<OdDbPolylineVertex>{{{0, 0}}, {{10, 0}, 1}, {{10, 2}}, {{0, 2}, 1}});
    slot->setClosed(true);
    const Scene drawn = scene();
    ASSERT_EQ(drawn.paths.size(), 2u);
    EXPECT_NEAR(LengthOf(drawn.paths[0]), 19.376896441095354, 1e-9);
    EXPECT_NEAR(AreaOf(drawn.paths[0]), 8 * kPi, 1e-12);
    EXPECT_NEAR(LengthOf(drawn.paths[1]), 20 + 2 * kPi, 1e-12);
    EXPECT_NEAR(AreaOf(drawn.paths[1]), 20 + kPi, 1e-12);
}

TEST_F(DrawnLengths, CountTheLinesOfTheObjectsOnly) {
    const OdDbObjectId one = drawing->paperSpaceId(), other = drawing->modelSpaceId();
    Scene made;
    made.paths.push_back({{{0, 0}, {3, 4}, {3, 5}}, false, {}, one});
    made.paths.push_back({{{0, 0}, {0, 7}}, true, {}, one});
    made.paths.push_back({{{0, 0}, {10, 0}}, false, {}, other});
    made.paths.push_back({{{0, 0}, {0, 9}}, false, {}, one});
    made.paths.back().isLetters = true;
    EXPECT_DOUBLE_EQ(TotalLength(made, {one}), 6);
    EXPECT_DOUBLE_EQ(TotalLength(made, {one, other}), 16);
    EXPECT_DOUBLE_EQ(TotalLength(made, {}), 0);
}

TEST_F(DrawnLengths, OnlyTheWantedObjectsAreDrawnAndPolylinesWithoutTheirWidths) {
    const OdDbObjectId first = addCircle(1)->objectId();
    addCircle(2);
    auto* const wide = add<OdDbPolyline>();
    wide->setVertices(OdArray<OdDbPolylineVertex>{{{0, 0}, 0, 1, 1}, {{10, 0}, 0, 1, 1}});
    SceneOptions options;
    options.only = std::make_shared<std::set<OdDbObjectId>>(std::set{first, wide->objectId()});
    Scene drawn = scene(options);
    ASSERT_EQ(drawn.paths.size(), 2u);
    EXPECT_EQ(drawn.paths[0].entity, first);
    EXPECT_TRUE(drawn.paths[1].filled);
    EXPECT_NEAR(TotalLength(drawn, *options.only), 2 * kPi, 1e-12);
    options.polylineWidths = false;
    drawn = scene(options);
    EXPECT_FALSE(drawn.paths[1].filled);
    EXPECT_NEAR(TotalLength(drawn, *options.only), 2 * kPi + 10, 1e-12);
    options.only = std::make_shared<std::set<OdDbObjectId>>();
    EXPECT_TRUE(scene(options).paths.empty());
}

TEST(IsWithin, ByCrossings) {
    const std::vector<OdGePoint2d> triangle = {{0, 0}, {10, 0}, {0, 10}};
    EXPECT_TRUE(IsWithin(triangle, {1, 1}));
    EXPECT_FALSE(IsWithin(triangle, {9, 9}));
    EXPECT_FALSE(IsWithin(triangle, {-1, 1}));
}
