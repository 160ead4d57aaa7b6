// Arcs, ellipses, splines, points, rays and polylines: where their points lie, and how near to the curve.
#include "drawn.h"

namespace {

using namespace scene_test;

Scene builtWith(const std::string& entities, double tolerance) {
    const OdDbDatabasePtr drawing = drawingOf({.entities = entities});
    SceneOptions options;
    options.tolerance = tolerance;
    return BuildScene(*drawing, drawing->modelSpaceId(), options);
}

/// The greatest distance of the middles of a path's pieces from a circle about 0, 0.
double departure(const ScenePath& path, double radius) {
    double most = 0;
    for (std::size_t i = 1; i < path.points.size(); ++i) {
        const OdGePoint2d &a = path.points[i - 1], &b = path.points[i];
        most = std::max(most, radius - std::hypot((a.x + b.x) / 2, (a.y + b.y) / 2));
    }
    return most;
}

TEST(SceneCurves, ArcsAreAsFineAsTheToleranceAsks) {
    const std::string circle = "0 CIRCLE|8 0|10 0|20 0|30 0|40 1000";
    const Scene coarse = builtWith(circle, 10), fine = builtWith(circle, 0.1);
    EXPECT_LE(departure(coarse.paths.at(0), 1000), 10.0);
    EXPECT_GT(departure(coarse.paths[0], 1000), 2.5) << "not finer than asked";
    EXPECT_LE(departure(fine.paths.at(0), 1000), 0.1);
    EXPECT_GT(departure(fine.paths[0], 1000), 0.05);
    EXPECT_EQ(builtWith(circle, 0).paths.at(0).points.size(), 73u) << "steps of five degrees";
}

TEST(SceneCurves, TheToleranceIsOneOfTheScene) {
    const OdDbDatabasePtr drawing =
        drawingOf({.blocks = block("B", "0 CIRCLE|8 0|10 0|20 0|30 0|40 1"),
                   .entities = "0 INSERT|8 0|2 B|10 0|20 0|30 0|41 1000|42 1000|43 1000"});
    SceneOptions options;
    options.tolerance = 0.1;
    const Scene scene = BuildScene(*drawing, drawing->modelSpaceId(), options);
    EXPECT_LE(departure(scene.paths.at(0), 1000), 0.1);
}

TEST(SceneCurves, ACircleWithANormalDownwardsLiesOnTheOtherSide) {
    const Drawn drawn("0 CIRCLE|8 0|10 10|20 5|30 0|40 2|210 0|220 0|230 -1");
    EXPECT_TRUE(isAt(drawn.path().points.front(), -12, 5));
    EXPECT_LT(distanceTo(drawn.path(), -10, 7), 0.01);
}

TEST(SceneCurves, AnArcWithANormalAlongXIsSeenFromItsEdge) {
    // The plane's x axis is that of y, its y axis that of z.
    const Drawn drawn("0 ARC|8 0|10 3|20 0|30 7|40 2|50 0|51 90|210 1|220 0|230 0");
    EXPECT_TRUE(isAt(drawn.path().points.front(), 7, 5));
    EXPECT_TRUE(isAt(drawn.path().points.back(), 7, 3));
}

TEST(SceneCurves, ATiltedNormalShortensACircle) {
    // The normal lies half way between y and z: the circle's heights shrink by the root of a half.
    const Drawn drawn("0 CIRCLE|8 0|10 0|20 0|30 0|40 10|210 0|220 1|230 1");
    SceneExtents extents = drawn.scene.extents();
    EXPECT_NEAR(extents.high.x, 10, 1e-9);
    EXPECT_NEAR(extents.high.y, 10 * std::sqrt(0.5), 1e-9);
}

TEST(SceneCurves, AnEllipsesMinorAxisIsToTheLeftOfItsMajorOne) {
    const Drawn drawn("0 ELLIPSE|8 0|10 1|20 2|30 0|11 0|21 4|31 0|40 0.5|41 0|42 1.5707963267948966");
    EXPECT_TRUE(isAt(drawn.path().points.front(), 1, 6));
    EXPECT_TRUE(isAt(drawn.path().points.back(), -1, 2));
    const Drawn below(
        "0 ELLIPSE|8 0|10 1|20 2|30 0|11 0|21 4|31 0|210 0|220 0|230 -1|40 0.5|41 0|42 1.5707963267948966");
    EXPECT_TRUE(isAt(below.path().points.back(), 3, 2)) << "with a normal downwards to its right";
    EXPECT_TRUE(isAt(below.path().points.front(), 1, 6)) << "the axes are those of space";
}

TEST(SceneCurves, ABezierArchPassesThroughItsMiddle) {
    const Drawn drawn(
        "0 SPLINE|8 0|70 8|71 3|40 0|40 0|40 0|40 0|40 1|40 1|40 1|40 1|10 0|20 0|30 0|10 0|20 4|30 0|10 "
        "4|20 "
        "4|30 0|10 4|20 0|30 0");
    EXPECT_TRUE(isAt(drawn.path().points.front(), 0, 0));
    EXPECT_TRUE(isAt(drawn.path().points.back(), 4, 0));
    // At the middle: (0 + 3*0 + 3*4 + 4) / 8 and (0 + 3*4 + 3*4 + 0) / 8.
    EXPECT_LT(distanceTo(drawn.path(), 2, 3), 0.005);
}

TEST(SceneCurves, AWeightedSplineIsACircle) {
    const Drawn drawn(
        "0 SPLINE|8 0|70 12|71 2|40 0|40 0|40 0|40 1|40 1|40 1|41 1|41 0.7071067811865476|41 1|10 1|20 0|30 "
        "0|10 1|20 1|30 0|10 0|20 1|30 0");
    for (const OdGePoint2d& point : drawn.path().points) EXPECT_NEAR(std::hypot(point.x, point.y), 1, 1e-12);
    EXPECT_GT(drawn.path().points.size(), 5u);
}

TEST(SceneCurves, ASplineOfManyControlPointsKeepsItsShape) {
    constexpr int kCount = 400;
    std::string entity = "0 SPLINE|8 0|70 8|71 3";
    for (int i = 0; i < kCount + 4; ++i) {
        const int knot = std::min(std::max(i - 3, 0), kCount - 3);
        entity += "|40 " + std::to_string(knot);
    }
    for (int i = 0; i < kCount; ++i)
        entity += "|10 " + std::to_string(i) + "|20 " + std::to_string(i % 2 == 0 ? 0 : 30) + "|30 0";
    const Drawn drawn(entity);
    // At an inner knot the curve is at a sixth of the neighbours and four sixths of the point: 5*2 or 30-10.
    int crests = 0;
    const std::vector<OdGePoint2d>& points = drawn.path().points;
    for (std::size_t i = 1; i + 1 < points.size(); ++i)
        if (points[i].y > points[i - 1].y && points[i].y >= points[i + 1].y) ++crests;
    EXPECT_NEAR(crests, 200, 2);
    EXPECT_LT(distanceTo(drawn.path(), 201, 20), 0.5);
    EXPECT_LT(distanceTo(drawn.path(), 200, 10), 0.5);
}

TEST(SceneCurves, ASplineOfFitPointsGoesThroughThemSmoothly) {
    const Drawn drawn("0 SPLINE|8 0|70 8|71 3|74 3|11 0|21 0|31 0|11 5|21 5|31 0|11 10|21 0|31 0");
    for (const OdGePoint2d& at : {OdGePoint2d{0, 0}, {5, 5}, {10, 0}})
        EXPECT_LT(distanceTo(drawn.path(), at.x, at.y), 1e-9);
    // Without directions at its ends it is the natural curve, symmetric here: in the first half the height is
    // 5 (1.5 t - 0.5 t^3).
    EXPECT_LT(distanceTo(drawn.path(), 2.5, 5 * (0.75 - 0.0625)), 0.02);
    EXPECT_LT(distanceTo(drawn.path(), 7.5, 5 * (0.75 - 0.0625)), 0.02);
}

TEST(SceneCurves, ASplineOfFitPointsBeginsAndEndsInItsDirections) {
    const Drawn drawn(
        "0 SPLINE|8 0|70 8|71 3|74 2|12 0|22 1|32 0|13 0|23 -1|33 0|11 0|21 0|31 0|11 4|21 0|31 0");
    const std::vector<OdGePoint2d>& points = drawn.path().points;
    ASSERT_GT(points.size(), 4u);
    EXPECT_GT(points[1].y, points[1].x) << "upwards at first";
    // A cubic with slopes of length 1 over a chord of 4: its top is at a quarter of that.
    EXPECT_LT(distanceTo(drawn.path(), 2, 1), 0.01);
}

TEST(SceneCurves, ASplineThatSaysNothingUsefulIsNothing) {
    EXPECT_TRUE(Drawn("0 SPLINE|8 0|71 3").paths().empty());
    EXPECT_LE(Drawn("0 SPLINE|8 0|71 99|40 0|40 1|10 0|20 0|30 0|10 1|20 1|30 0").paths().size(), 1u);
    EXPECT_LE(Drawn("0 SPLINE|8 0|71 -1|10 0|20 0|30 0").paths().size(), 1u);
}

TEST(SceneCurves, EndlessLinesReachFarAndTakeUpNoRoom) {
    const Drawn drawn(
        "0 LINE|8 0|10 0|20 0|30 0|11 30|21 40|31 0|0 RAY|8 0|10 10|20 0|30 0|11 1|21 0|31 0|0 XLINE|8 0|10 "
        "0|20 "
        "10|30 0|11 0|21 1|31 0");
    ASSERT_EQ(drawn.paths().size(), 3u);
    EXPECT_TRUE(isAt(drawn.path(1).points[0], 10, 0));
    EXPECT_GT(drawn.path(1).points[1].x, 500);
    EXPECT_EQ(drawn.path(1).points[1].y, 0);
    EXPECT_LT(drawn.path(2).points[0].y, -500);
    EXPECT_GT(drawn.path(2).points[1].y, 500);
    EXPECT_EQ(drawn.scene.extents().high.x, 30);
    EXPECT_EQ(drawn.scene.extents().high.y, 40);
}

TEST(SceneCurves, PointsAreDotsUnlessTheDrawingAsksForMarks) {
    const auto drawn = [](const char* mode, const char* more = "") {
        return Drawn(Parts{.header = std::string("9 $PDMODE|70 ") + mode + "|9 $PDSIZE|40 2",
                           .entities = std::string("0 POINT|8 0|10 5|20 6|30 0") + more});
    };
    EXPECT_TRUE(goesThrough(drawn("0").path(), {{5, 6}, {5, 6}}));
    EXPECT_TRUE(drawn("1").paths().empty());
    const Drawn plus = drawn("2");
    ASSERT_EQ(plus.paths().size(), 2u);
    EXPECT_TRUE(goesThrough(plus.path(0), {{3, 6}, {7, 6}}));
    EXPECT_TRUE(goesThrough(plus.path(1), {{5, 4}, {5, 8}}));
    EXPECT_TRUE(goesThrough(drawn("3").path(0), {{3, 4}, {7, 8}}));
    EXPECT_TRUE(goesThrough(drawn("4").path(), {{5, 6}, {5, 7}}));
    const Drawn framed = drawn("97");
    ASSERT_EQ(framed.paths().size(), 2u);
    EXPECT_LT(distanceTo(framed.path(0), 6, 6), 1e-9) << "a circle as wide as the size";
    EXPECT_TRUE(goesThrough(framed.path(1), {{4, 5}, {6, 5}, {6, 7}, {4, 7}, {4, 5}}));
    // The angle counts clockwise.
    EXPECT_TRUE(goesThrough(drawn("4", "|50 90").path(), {{5, 6}, {6, 6}}));
}

TEST(SceneCurves, PointMarksMayBeAShareOfTheView) {
    const OdDbDatabasePtr drawing =
        drawingOf({.header = "9 $PDMODE|70 4|9 $PDSIZE|40 -10", .entities = "0 POINT|8 0|10 0|20 0|30 0"});
    SceneOptions options;
    options.viewHeight = 50;
    const auto height = [&] {
        return BuildScene(*drawing, drawing->modelSpaceId(), options).paths.at(0).points.at(1).y;
    };
    EXPECT_NEAR(height(), 2.5, 1e-12) << "half of ten percent";
    drawing->setPDSIZE(0);
    EXPECT_NEAR(height(), 1.25, 1e-12) << "half of five percent";
    options.viewHeight = 0;
    drawing->setEXTMIN({0, 0, 0});
    drawing->setEXTMAX({10, 100, 0});
    EXPECT_NEAR(height(), 2.5, 1e-12) << "of the drawing's own extents";
}

TEST(SceneCurves, ANormalFarFromZHasItsXAxisAcrossZ) {
    // The normal's part along x is below the part along z: by the root of a half each, x stands across both.
    const Drawn drawn("0 ARC|8 0|10 0|20 0|30 0|40 10|50 0|51 90|210 0.6|220 0|230 0.8");
    EXPECT_TRUE(isAt(drawn.path().points.front(), 0, 10));
    EXPECT_TRUE(isAt(drawn.path().points.back(), -8, 0));
}

/// A curve of four control points.
std::string arch(const std::vector<OdGePoint3d>& controls) {
    std::string entity = "0 SPLINE|8 0|70 8|71 3|40 0|40 0|40 0|40 0|40 1|40 1|40 1|40 1";
    for (const OdGePoint3d& at : controls)
        entity +=
            "|10 " + std::to_string(at.x) + "|20 " + std::to_string(at.y) + "|30 " + std::to_string(at.z);
    return entity;
}

TEST(SceneCurves, ASplineIsAsFineAsAThousandthOfItsSize) {
    // The box of the control points is 4 by 4, its diagonal 4 times the root of 2.
    const std::string whole = arch({{0, 0, 0}, {0, 4, 0}, {4, 4, 0}, {4, 0, 0}});
    const std::size_t count = builtWith(whole, 0).paths.at(0).points.size();
    EXPECT_EQ(count, builtWith(whole, 0.004 * std::sqrt(2.0)).paths.at(0).points.size());
    EXPECT_GT(count, 5u);
    EXPECT_LT(count, 65u);
    // What leaves a long chord by less than that share has its two ends and its middle, wherever it runs.
    for (const std::vector<OdGePoint3d>& controls :
         std::vector<std::vector<OdGePoint3d>>{{{0, 0, 0}, {100, 0.2, 0}, {200, 0.2, 0}, {300, 0, 0}},
                                               {{0, 0, 0}, {0.2, 100, 0}, {0.2, 200, 0}, {0, 300, 0}},
                                               {{0, 0, 0}, {0.2, 0, 100}, {0.2, 0, 200}, {0, 0, 300}},
                                               {{0, 0, 0}, {-100, 0.2, 0}, {-200, 0.2, 0}, {-300, 0, 0}},
                                               {{0, 0, 0}, {0.2, -100, 0}, {0.2, -200, 0}, {0, -300, 0}},
                                               {{0, 0, 0}, {0.2, 0, -100}, {0.2, 0, -200}, {0, 0, -300}}})
        EXPECT_EQ(builtWith(arch(controls), 0).paths.at(0).points.size(), 3u) << controls[1].x;
}

TEST(SceneCurves, ASplineOfTheFirstDegreeIsItsControlPoints) {
    const Drawn drawn(
        "0 SPLINE|8 0|70 8|71 1|40 0|40 0|40 1|40 2|40 2|10 0|20 0|30 0|10 4|20 0|30 0|10 4|20 3|30 0");
    EXPECT_TRUE(goesThrough(drawn.path(), {{0, 0}, {4, 0}, {4, 3}}));
}

TEST(SceneCurves, ASplineOfTooHighADegreeIsDrawnThroughItsPoints) {
    const auto nearestTo = [](int degree) {
        std::string entity = "0 SPLINE|8 0|70 8|71 " + std::to_string(degree);
        for (int i = 0; i < 2 * (degree + 1); ++i) entity += i <= degree ? "|40 0" : "|40 1";
        for (int i = 0; i <= degree; ++i)
            entity += "|10 " + std::to_string(i) + "|20 " + (i == 1 ? "10" : "0") + "|30 0";
        return distanceTo(Drawn(entity).path(), 1, 10);
    };
    EXPECT_GT(nearestTo(25), 1.0) << "a control point pulls the curve";
    EXPECT_LT(nearestTo(26), 1e-9);
}

TEST(SceneCurves, WhatLiesTooFarAwayIsNotDrawn) {
    const auto count = [](const char* x, const char* y) {
        return Drawn(std::string("0 LINE|8 0|10 0|20 0|30 0|31 0|11 ") + x + "|21 " + y).paths().size();
    };
    EXPECT_EQ(count("9e99", "-9e99"), 1u);
    EXPECT_EQ(count("1e100", "0"), 0u);
    EXPECT_EQ(count("0", "1e100"), 0u);
    EXPECT_EQ(count("0", "-1e100"), 0u);
}

TEST(SceneExtents, WhatIsCutAwayWhollyLeavesNothing) {
    SceneExtents low, aside, above;
    for (const double at : {0.0, 1.0}) {
        low.add({at, at});
        aside.add({at + 5, at});
        above.add({at, at + 5});
    }
    for (const SceneExtents& other : {aside, above}) {
        SceneExtents rest = low;
        rest.cut(other);
        EXPECT_TRUE(rest.isEmpty());
        rest.add({2, 3});
        EXPECT_TRUE(isAt(rest.low, 2, 3)) << "and nothing is left of it";
        EXPECT_TRUE(isAt(rest.high, 2, 3));
    }
}

}  // namespace
