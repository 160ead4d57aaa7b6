// Polylines with bulges and widths, in their planes, and meshes and faces as edges.
#include "drawn.h"

namespace {

using namespace scene_test;

TEST(ScenePolylines, ABulgeOfOneIsAHalfCircleToTheRight) {
    const Drawn drawn("0 LWPOLYLINE|8 0|90 2|70 0|10 0|20 0|42 1|10 4|20 0");
    EXPECT_TRUE(isAt(drawn.path().points.front(), 0, 0));
    EXPECT_TRUE(isAt(drawn.path().points.back(), 4, 0));
    EXPECT_LT(distanceTo(drawn.path(), 2, -2), 0.01);
    ASSERT_EQ(drawn.path().arcs.size(), 1u);
    EXPECT_TRUE(isAt(drawn.path().arcs[0].center, 2, 0));
    EXPECT_NEAR(drawn.path().arcs[0].sweep, kPi, 1e-12);
}

TEST(ScenePolylines, ANegativeBulgeOfAQuarterTurnsLeft) {
    // The tangent of a quarter of 90 degrees; the arc's middle stands above the chord by the radius less its
    // half.
    const Drawn drawn("0 LWPOLYLINE|8 0|90 2|70 0|10 0|20 0|42 -0.41421356237309503|10 2|20 0");
    EXPECT_LT(distanceTo(drawn.path(), 1, std::sqrt(2.0) - 1), 0.001);
}

TEST(ScenePolylines, AClosedOneReturnsToItsStart) {
    const Drawn drawn("0 LWPOLYLINE|8 0|90 3|70 1|10 0|20 0|10 4|20 0|10 4|20 3");
    EXPECT_TRUE(goesThrough(drawn.path(), {{0, 0}, {4, 0}, {4, 3}, {0, 0}}));
}

TEST(ScenePolylines, ANormalDownwardsMirrorsAndTheElevationLiesAlongIt) {
    const Drawn flipped("0 LWPOLYLINE|8 0|90 2|70 0|38 5|10 1|20 2|10 3|20 2|210 0|220 0|230 -1");
    EXPECT_TRUE(goesThrough(flipped.path(), {{-1, 2}, {-3, 2}}));
    // The plane of x: its axes are y and z, the elevation is along x.
    const Drawn upright("0 LWPOLYLINE|8 0|90 2|70 0|38 5|10 1|20 2|10 3|20 2|210 1|220 0|230 0");
    EXPECT_TRUE(goesThrough(upright.path(), {{5, 1}, {5, 3}}));
}

TEST(ScenePolylines, AWidthCoversAnAreaThatIsMitredAtTheCorner) {
    const Drawn drawn("0 LWPOLYLINE|8 0|90 3|70 0|43 2|10 0|20 0|10 10|20 0|10 10|20 10");
    ASSERT_EQ(drawn.paths().size(), 2u);
    EXPECT_TRUE(drawn.path(0).filled);
    EXPECT_TRUE(goesThrough(drawn.path(0), {{0, 1}, {9, 1}, {11, -1}, {0, -1}}));
    EXPECT_TRUE(goesThrough(drawn.path(1), {{9, 1}, {9, 10}, {11, 10}, {11, -1}}));
}

TEST(ScenePolylines, EachPieceMayHaveWidthsOfItsOwn) {
    const Drawn drawn("0 LWPOLYLINE|8 0|90 3|70 0|10 0|20 0|40 2|41 0|10 10|20 0|10 20|20 0");
    ASSERT_EQ(drawn.paths().size(), 2u);
    EXPECT_TRUE(goesThrough(drawn.path(0), {{0, 1}, {10, 0}, {10, 0}, {0, -1}}));
    EXPECT_FALSE(drawn.path(1).filled) << "a piece without a width is a line";
    EXPECT_TRUE(goesThrough(drawn.path(1), {{10, 0}, {20, 0}}));
}

TEST(ScenePolylines, AWideArcIsABand) {
    const Drawn drawn("0 LWPOLYLINE|8 0|90 2|70 0|43 2|10 5|20 0|42 1|10 -5|20 0");
    ASSERT_EQ(drawn.paths().size(), 1u);
    EXPECT_LT(distanceTo(drawn.path(), 0, 4), 0.02);
    EXPECT_LT(distanceTo(drawn.path(), 0, 6), 0.02);
    EXPECT_LT(distanceTo(drawn.path(), 5, 0), 1.0001);
    EXPECT_TRUE(isAt(drawn.path().points.front(), 4, 0)) << "the left edge is the inner one";
}

TEST(ScenePolylines, WithoutFillingWidthsAreOutlines) {
    const Drawn drawn(Parts{.header = "9 $FILLMODE|70 0",
                            .entities = "0 LWPOLYLINE|8 0|90 2|70 0|43 2|10 0|20 0|10 10|20 0"});
    EXPECT_FALSE(drawn.path().filled);
    EXPECT_TRUE(goesThrough(drawn.path(), {{0, 1}, {10, 1}, {10, -1}, {0, -1}, {0, 1}}));
}

TEST(ScenePolylines, OldPolylinesTakeTheirUsualWidthForTheirVertices) {
    const Drawn drawn(
        "0 POLYLINE|8 0|66 1|70 0|40 2|41 2|0 VERTEX|8 0|10 0|20 0|30 0|0 VERTEX|8 0|10 10|20 0|30 0|0 "
        "SEQEND|8 0");
    ASSERT_EQ(drawn.paths().size(), 1u);
    EXPECT_TRUE(drawn.path().filled);
    EXPECT_TRUE(goesThrough(drawn.path(), {{0, 1}, {10, 1}, {10, -1}, {0, -1}}));
}

TEST(ScenePolylines, APolylineInSpaceIsSeenFromAbove) {
    const Drawn drawn(
        "0 POLYLINE|8 0|66 1|70 9|0 VERTEX|8 0|70 32|10 0|20 0|30 5|0 VERTEX|8 0|70 32|10 4|20 0|30 9|0 "
        "VERTEX|8 0|70 "
        "32|10 4|20 3|30 1|0 SEQEND|8 0");
    EXPECT_TRUE(goesThrough(drawn.path(), {{0, 0}, {4, 0}, {4, 3}, {0, 0}}));
}

std::string netVertex(double x, double y) {
    return "|0 VERTEX|8 0|70 64|10 " + std::to_string(x) + "|20 " + std::to_string(y) + "|30 0";
}

TEST(ScenePolylines, APolygonMeshIsTheEdgesOfItsNet) {
    const auto drawn = [](const char* flags) {
        std::string entity = std::string("0 POLYLINE|8 0|66 1|71 2|72 3|70 ") + flags;
        for (int row = 0; row < 2; ++row)
            for (int column = 0; column < 3; ++column) entity += netVertex(column, row);
        return Drawn(entity + "|0 SEQEND|8 0");
    };
    // Two rows of two edges, three columns of one.
    EXPECT_EQ(drawn("16").path().points.size(), 14u);
    EXPECT_EQ(drawn("16").path().breaks.size(), 6u);
    EXPECT_EQ(drawn("48").path().points.size(), 18u) << "closed along its rows";
    EXPECT_EQ(drawn("17").path().points.size(), 14u) << "two rows are neighbours already";
    const ScenePath path = drawn("16").path();
    EXPECT_TRUE(isAt(path.points[0], 0, 0));
    EXPECT_TRUE(isAt(path.points[1], 1, 0));
    EXPECT_TRUE(isAt(path.points[3], 0, 1)) << "the edge to the next row";
}

TEST(ScenePolylines, APolyfaceMeshHidesEdgesWithNegativeNumbers) {
    const auto drawn = [](const char* face) {
        return Drawn(
            std::string(
                "0 POLYLINE|8 0|66 1|71 4|72 1|70 64|0 VERTEX|8 0|70 192|10 0|20 0|30 0|0 VERTEX|8 0|70 "
                "192|10 4|20 "
                "0|30 0|0 VERTEX|8 0|70 192|10 4|20 3|30 0|0 VERTEX|8 0|70 192|10 0|20 3|30 0|0 VERTEX|8 "
                "0|70 128|10 0|20 0|30 0|") +
            face + "|0 SEQEND|8 0");
    };
    EXPECT_EQ(drawn("71 1|72 2|73 3|74 4").path().points.size(), 8u);
    const ScenePath three = drawn("71 1|72 -2|73 3|74 4").path();
    EXPECT_EQ(three.points.size(), 6u);
    EXPECT_TRUE(isAt(three.points[2], 4, 3)) << "the edge from the second corner is missing";
    EXPECT_TRUE(drawn("71 1|72 9|73 0").paths().empty()) << "a vertex that isn't there";
}

TEST(ScenePolylines, AFaceIsItsVisibleEdges) {
    const std::string corners = "|10 0|20 0|30 0|11 4|21 0|31 1|12 4|22 3|32 2|13 0|23 3|33 3";
    EXPECT_EQ(Drawn("0 3DFACE|8 0" + corners).path().points.size(), 8u);
    const ScenePath path = Drawn("0 3DFACE|8 0" + corners + "|70 5").path();
    ASSERT_EQ(path.points.size(), 4u);
    EXPECT_TRUE(isAt(path.points[0], 4, 0));
    EXPECT_TRUE(isAt(path.points[1], 4, 3));
    EXPECT_TRUE(isAt(path.points[2], 0, 3));
    EXPECT_TRUE(isAt(path.points[3], 0, 0));
    EXPECT_EQ(Drawn("0 3DFACE|8 0|10 0|20 0|30 0|11 4|21 0|31 1|12 4|22 3|32 2").path().points.size(), 6u)
        << "a triangle";
}

TEST(ScenePolylines, AMeshDrawsEachEdgeOnce) {
    // Two triangles with a common edge: five edges.
    const Drawn drawn(
        "0 MESH|8 0|100 AcDbSubDMesh|71 2|72 0|91 0|92 4|10 0|20 0|30 0|10 4|20 0|30 0|10 4|20 3|30 0|10 "
        "0|20 3|30 0|93 8|90 "
        "3|90 0|90 1|90 2|90 3|90 0|90 2|90 3|94 1|90 0|90 1|95 0");
    EXPECT_EQ(drawn.path().points.size(), 10u);
    EXPECT_LT(distanceTo(drawn.path(), 2, 1.5), 1e-9) << "the diagonal";
}

TEST(ScenePolylines, ASolidAndATraceLieInTheirPlane) {
    const std::string corners =
        "|10 1|20 0|30 0|11 4|21 0|31 0|12 1|22 3|32 0|13 4|23 3|33 0|210 0|220 0|230 -1";
    for (const char* kind : {"0 SOLID|8 0", "0 TRACE|8 0"}) {
        const Drawn drawn(kind + corners);
        EXPECT_TRUE(drawn.path().filled);
        EXPECT_TRUE(goesThrough(drawn.path(), {{-1, 0}, {-4, 0}, {-4, 3}, {-1, 3}}));
    }
    const Drawn outline(Parts{.header = "9 $FILLMODE|70 0",
                              .entities = "0 SOLID|8 0|10 0|20 0|30 0|11 4|21 0|31 0|12 0|22 3|32 0"});
    EXPECT_FALSE(outline.path().filled);
    EXPECT_EQ(outline.path().points.size(), 5u);
}

TEST(ScenePolylines, ASmoothMeshIsTheNetOfItsSurface) {
    std::string entity = "0 POLYLINE|8 0|66 1|70 16|71 9|72 9|73 2|74 2|75 6";
    for (int i = 0; i < 4; ++i) entity += netVertex(i % 2, i / 2);
    EXPECT_EQ(Drawn(entity + "|0 SEQEND|8 0").path().points.size(), 8u);
}

TEST(ScenePolylines, TheEdgesOfAWideArcAreArcsAboutItsCentre) {
    for (const char* bulge : {"1", "-1", "0.3", "-0.3"}) {
        const Drawn drawn(
            std::string("0 LWPOLYLINE|8 0|90 2|70 0|43 2|10 5|20 0|10 -5|20 0|42 0|10 5|20 0|42 ") + bulge +
            "|10 -5|20 0");
        const double b = std::stod(bulge), rise = 5 * (1 / b - b) / 2,
                     radius = 5 * (1 / std::abs(b) + std::abs(b)) / 2;
        const ScenePath& area = drawn.paths().back();
        for (const OdGePoint2d& point : area.points)
            EXPECT_NEAR(std::abs(std::hypot(point.x, point.y + rise) - radius), 1, 1e-9) << bulge;
    }
}

TEST(ScenePolylines, ANetWithoutRowsOrColumnsIsNothing) {
    for (const char* size : {"71 0|72 2", "71 2|72 0"})
        EXPECT_TRUE(Drawn(std::string("0 POLYLINE|8 0|66 1|70 16|") + size + netVertex(0, 0) +
                          netVertex(1, 0) + "|0 SEQEND|8 0")
                        .paths()
                        .empty());
}

}  // namespace
