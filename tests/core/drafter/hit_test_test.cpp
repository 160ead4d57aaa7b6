// Which objects lie at a place, in a window and across one, for every kind that is drawn.
#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "hit_test.h"
#include "pictures/scene_picture.h"

namespace {

OdDbObjectId entityAt(const Scene& scene, const OdGePoint2d& at, double reach) {
    return EntityAt(scene, SceneBounds(scene), at, reach);
}

constexpr double kReach = 0.5;

class HitTest : public ::testing::Test {
protected:
    template <class Entity>
    OdDbObjectId add(Entity* entity) {
        OdDbObjectId id;
        drawing->modelSpaceId().open<OdDbBlockTableRecord>()->appendOdDbEntity(OdDbEntityPtr(entity), &id);
        return id;
    }
    OdDbObjectId addLine(double x1, double y1, double x2, double y2) {
        auto* const line = new OdDbLine;
        line->setStartPoint({x1, y1, 0});
        line->setEndPoint({x2, y2, 0});
        return add(line);
    }
    Scene scene() { return BuildScene(*drawing, drawing->modelSpaceId()); }
    OdDbObjectId at(double x, double y) { return entityAt(scene(), {x, y}, kReach); }
    static SceneExtents window(double x1, double y1, double x2, double y2) {
        SceneExtents area;
        area.add({x1, y1});
        area.add({x2, y2});
        return area;
    }
    bool isInside(const OdDbObjectId& id, double x1, double y1, double x2, double y2) {
        return EntitiesInside(scene(), window(x1, y1, x2, y2)).contains(id);
    }
    bool isTouched(const OdDbObjectId& id, double x1, double y1, double x2, double y2) {
        return EntitiesTouching(scene(), window(x1, y1, x2, y2)).contains(id);
    }

    OdDbDatabasePtr drawing{new OdDbDatabase};
};

TEST_F(HitTest, ALineIsHitWithinTheReachAndNotBeyondItsEnds) {
    const OdDbObjectId line = addLine(0, 0, 10, 0);
    EXPECT_EQ(at(5, 0.5), line);
    EXPECT_TRUE(at(5, 0.51).isNull());
    EXPECT_EQ(at(10.4, 0), line);
    EXPECT_TRUE(at(10.4, 0.4).isNull()) << "the end is round";
    EXPECT_TRUE(at(-0.6, 0).isNull());
}

TEST_F(HitTest, APictureIsHitAtItsEdgeAndSelectedByAWindow) {
    const OdDbObjectId line = addLine(100, 100, 101, 100);
    Scene shown = scene();
    SceneImage& image = shown.images.emplace_back();
    image.picture = std::make_shared<ScenePicture>(1, 1, std::vector<PicturePixel>{0});
    image.origin = {0, 0};
    image.across = {20, 0};
    image.up = {0, 10};
    image.entity = line;
    EXPECT_EQ(entityAt(shown, {20.4, 5}, kReach), line);
    EXPECT_TRUE(entityAt(shown, {10, 5}, kReach).isNull()) << "a window can be drawn over it";
    EXPECT_TRUE(EntitiesInside(shown, window(-1, -1, 200, 200)).contains(line));
    EXPECT_FALSE(EntitiesInside(shown, window(5, -1, 200, 200)).contains(line));
    shown.paths.clear();
    EXPECT_TRUE(EntitiesTouching(shown, window(15, 5, 25, 6)).contains(line));
    EXPECT_FALSE(EntitiesTouching(shown, window(5, 5, 6, 6)).contains(line));
    EXPECT_FALSE(EntitiesTouching(shown, window(25, 5, 26, 6)).contains(line));
    shown.clips.push_back({{{0, 0}, {10, 0}, {10, 10}, {0, 10}}});
    image.clip = 0;
    EXPECT_TRUE(entityAt(shown, {20.4, 5}, kReach).isNull()) << "an edge that isn't seen";
}

TEST_F(HitTest, TheNearerOfTwoLinesIsHitAndOfTwoAlikeTheLaterOne) {
    addLine(0, 0, 10, 0);
    const OdDbObjectId upper = addLine(0, 0.6, 10, 0.6);
    EXPECT_EQ(at(5, 0.4), upper);
    EXPECT_NE(at(5, 0.2), upper);
    const OdDbObjectId over = addLine(0, 0.6, 10, 0.6);
    EXPECT_EQ(at(5, 0.6), over);
}

TEST_F(HitTest, ACircleIsHitOnItsLineOnly) {
    auto* const circle = new OdDbCircle;
    circle->setCenter({0, 0, 0});
    circle->setRadius(10);
    const OdDbObjectId id = add(circle);
    EXPECT_EQ(at(10 * std::cos(1.0), 10 * std::sin(1.0)), id);
    EXPECT_TRUE(at(0, 0).isNull());
    EXPECT_TRUE(at(8, 8).isNull()) << "the corner of its box";
    EXPECT_TRUE(isInside(id, -11, -11, 11, 11));
    EXPECT_FALSE(isInside(id, -11, -11, 9, 11));
    EXPECT_TRUE(isTouched(id, 9, -1, 20, 1));
    EXPECT_FALSE(isTouched(id, -3, -3, 3, 3)) << "within it nothing is drawn";
    EXPECT_FALSE(isTouched(id, 8, 8, 12, 12));
}

TEST_F(HitTest, AnArcIsHitWhereItIsDrawn) {
    auto* const arc = new OdDbArc;
    arc->setCenter({0, 0, 0});
    arc->setRadius(10);
    arc->setStartAngle(0);
    arc->setEndAngle(std::numbers::pi / 2);
    const OdDbObjectId id = add(arc);
    EXPECT_EQ(at(7.07, 7.07), id);
    EXPECT_TRUE(at(-7.07, 7.07).isNull());
    EXPECT_TRUE(at(5, 5).isNull()) << "its chord";
    EXPECT_TRUE(isInside(id, -0.1, -0.1, 10.1, 10.1));
    EXPECT_FALSE(isTouched(id, -10, -10, -1, -1));
}

TEST_F(HitTest, APolylineIsHitOnItsLinesArcsAndClosingSide) {
    auto* const polyline = new OdDbPolyline;
    OdArray<OdDbPolylineVertex> corners;
    corners.append({{0, 0}, 0, 0, 0});
    corners.append({{10, 0}, 1, 0, 0});  // half a circle to the next corner
    corners.append({{10, 10}, 0, 0, 0});
    corners.append({{0, 10}, 0, 0, 0});
    polyline->setVertices(corners);
    polyline->setClosed(true);
    const OdDbObjectId id = add(polyline);
    EXPECT_EQ(at(5, 0), id);
    EXPECT_EQ(at(15, 5), id) << "the middle of the arc";
    EXPECT_TRUE(at(10, 5).isNull()) << "its chord";
    EXPECT_EQ(at(0, 5), id) << "the side that closes it";
    EXPECT_FALSE(isInside(id, -1, -1, 11, 11)) << "the arc stands out";
    EXPECT_TRUE(isInside(id, -1, -1, 16, 11));
}

TEST_F(HitTest, ASplineIsHitOnItsCurve) {
    std::string text = "  0\nSECTION\n  2\nENTITIES\n  0\nSPLINE\n  8\n0\n 70\n8\n 71\n3\n 72\n8\n 73\n4\n";
    for (const char* knot : {"0", "0", "0", "0", "1", "1", "1", "1"})
        text += std::string(" 40\n") + knot + "\n";
    for (const char* pole :
         {" 10\n0\n 20\n0\n", " 10\n0\n 20\n10\n", " 10\n10\n 20\n10\n", " 10\n10\n 20\n0\n"})
        text += pole;
    text += "  0\nENDSEC\n  0\nEOF\n";
    ASSERT_EQ(drawing->readDxfBytes(text), kOdOk);
    const OdDbObjectId id =
        drawing->modelSpaceId().open<OdDbBlockTableRecord>()->entities().front()->objectId();
    EXPECT_EQ(at(5, 7.5), id) << "the middle of the curve";
    EXPECT_TRUE(at(5, 10).isNull()) << "between its poles";
    EXPECT_TRUE(isInside(id, -0.1, -0.1, 10.1, 7.6));
    EXPECT_TRUE(isTouched(id, 4, 7, 6, 12));
}

TEST_F(HitTest, ATextIsHitInItsBoxAlsoTurned) {
    auto* const text = new OdDbText;
    text->setTextString(L"abcde");
    text->setHeight(2);
    text->setPosition({10, 10, 0});
    const OdDbObjectId id = add(text);
    EXPECT_EQ(at(13, 11), id);
    EXPECT_TRUE(at(13, 12.1).isNull());
    EXPECT_TRUE(at(9.9, 11).isNull());
    EXPECT_TRUE(isInside(id, 9, 9, 20, 13));
    EXPECT_FALSE(isInside(id, 11, 9, 20, 13));
    EXPECT_TRUE(isTouched(id, 12, 10.5, 12.5, 11)) << "a window within the text";
    EXPECT_TRUE(at(19, 11).isNull());
    id.open<OdDbText>(OdDb::kForWrite)->editGroups().setReal(41, 2);
    EXPECT_EQ(at(19, 11), id) << "twice as wide";
    id.open<OdDbText>(OdDb::kForWrite)->editGroups().setReal(41, 1);
    id.open<OdDbText>(OdDb::kForWrite)->setRotation(std::numbers::pi / 2);
    EXPECT_EQ(at(9, 13), id);
    EXPECT_TRUE(at(13, 11).isNull());
}

TEST_F(HitTest, ALineIsHitBeforeATextThatItCrosses) {
    auto* const text = new OdDbText;
    text->setTextString(L"abcde");
    text->setHeight(2);
    const OdDbObjectId id = add(text);
    const OdDbObjectId line = addLine(-5, 1, 20, 1);
    EXPECT_EQ(at(2, 1.2), line);
    EXPECT_EQ(at(2, 1.8), id);
}

TEST_F(HitTest, AFilledAreaIsHitWithin) {
    auto* const solid = new OdDbSolid;
    solid->setPointAt(0, {0, 0, 0});
    solid->setPointAt(1, {10, 0, 0});
    solid->setPointAt(2, {0, 10, 0});
    solid->setPointAt(3, {10, 10, 0});
    const OdDbObjectId id = add(solid);
    EXPECT_EQ(at(5, 5), id);
    EXPECT_TRUE(at(11, 5).isNull());
    EXPECT_TRUE(isTouched(id, 4, 4, 5, 5)) << "a window within the area";
    EXPECT_FALSE(isTouched(id, 11, 4, 12, 5));
}

TEST_F(HitTest, ABlockReferenceIsHitWhereItsBlockIsDrawnAndIsOneObject) {
    OdDbBlockTablePtr blocks;
    drawing->getBlockTable(blocks);
    const OdDbSymbolTableRecordPtr block = blocks->newRecord();
    block->setName(L"CROSS");
    OdDbObjectId blockId;
    blocks->add(block, &blockId);
    for (const bool upright : {false, true}) {
        auto* const line = new OdDbLine;
        line->setStartPoint(upright ? OdGePoint3d{0, -1, 0} : OdGePoint3d{-1, 0, 0});
        line->setEndPoint(upright ? OdGePoint3d{0, 1, 0} : OdGePoint3d{1, 0, 0});
        blockId.open<OdDbBlockTableRecord>()->appendOdDbEntity(OdDbEntityPtr(line));
    }
    auto* const insert = new OdDbBlockReference;
    insert->setBlockTableRecord(blockId);
    insert->setPosition({100, 100, 0});
    insert->setScaleFactors({10, 10, 1});
    const OdDbObjectId id = add(insert);
    EXPECT_EQ(at(108, 100), id);
    EXPECT_EQ(at(100, 92), id);
    EXPECT_TRUE(at(0, 0).isNull()) << "where the block was made nothing is drawn";
    EXPECT_TRUE(isInside(id, 89, 89, 111, 111));
    EXPECT_FALSE(isInside(id, 89, 99, 111, 101)) << "only its first line is inside";
    EXPECT_FALSE(isInside(id, 99, 89, 101, 111)) << "only its last line is inside";
    EXPECT_TRUE(isTouched(id, 105, 99, 106, 101));
}

TEST_F(HitTest, ALineThatOnlyPassesThroughIsTouchedAndNotInside) {
    const OdDbObjectId line = addLine(-100, -90, 100, 110);
    EXPECT_TRUE(isTouched(line, 0, 0, 20, 20));
    EXPECT_FALSE(isInside(line, 0, 0, 20, 20));
    EXPECT_FALSE(isTouched(line, 15, 0, 20, 5)) << "its box covers the window, the line does not";
    const OdDbObjectId level = addLine(-5, 10, 50, 10);
    EXPECT_TRUE(isTouched(level, 0, 0, 20, 20));
    EXPECT_FALSE(isTouched(level, 0, 11, 20, 20));
    EXPECT_FALSE(isTouched(level, 51, 0, 60, 20));
}

TEST_F(HitTest, WhichWayALineRunsMakesNoDifference) {
    const OdDbObjectId slanting = addLine(100, 110, -100, -90);
    const OdDbObjectId level = addLine(50, 10, -5, 10);
    const OdDbObjectId upright = addLine(5, 50, 5, -50);
    for (const OdDbObjectId& line : {slanting, level, upright}) EXPECT_TRUE(isTouched(line, 0, 0, 20, 20));
    EXPECT_FALSE(isTouched(slanting, 15, 0, 20, 5));
    EXPECT_FALSE(isTouched(upright, 6, 0, 20, 20));
}

TEST_F(HitTest, WhatBelongsToNoObjectIsNotSelected) {
    Scene loose;
    loose.paths.push_back({{{1, 1}, {2, 2}}, false, {}, {}});
    EXPECT_TRUE(EntitiesTouching(loose, window(0, 0, 5, 5)).empty());
    EXPECT_TRUE(EntitiesInside(loose, window(0, 0, 5, 5)).empty());
}

TEST_F(HitTest, WhatIsOnALayerThatIsOffIsNotFound) {
    const OdDbObjectId line = addLine(0, 0, 10, 0);
    line.open<OdDbEntity>()->layerId().open<OdDbLayerTableRecord>()->setIsOff(true);
    EXPECT_TRUE(at(5, 0).isNull());
    EXPECT_FALSE(isTouched(line, -1, -1, 11, 1));
    EXPECT_FALSE(isInside(line, -1, -1, 11, 1));
}

TEST_F(HitTest, ASelectionIsReplacedAddedToOrLessened) {
    const OdDbObjectId a = addLine(0, 0, 1, 0), b = addLine(0, 1, 1, 1), c = addLine(0, 2, 1, 2);
    using Set = std::set<OdDbObjectId>;
    EXPECT_EQ(SelectionAfter({a}, {b}, false), (Set{b}));
    EXPECT_EQ(SelectionAfter({a}, {}, false), Set());
    EXPECT_EQ(SelectionAfter({a}, {b, c}, true), (Set{a, b, c}));
    EXPECT_EQ(SelectionAfter({a, b}, {b, c}, true), (Set{a, b, c})) << "one of them is new";
    EXPECT_EQ(SelectionAfter({a, b, c}, {b, c}, true), (Set{a})) << "all were selected";
    EXPECT_EQ(SelectionAfter({a}, {}, true), (Set{a}));
}

TEST_F(HitTest, LinesOfOnePathAreHitEachByItselfAndIslandsAreNoArea) {
    const OdDbObjectId id = addLine(0, 0, 1, 0);
    Scene shown;
    ScenePath path;
    path.entity = id;
    path.points = {{0, 0}, {10, 0}, {0, 5}, {10, 5}};
    path.breaks = {2};
    shown.paths = {path};
    EXPECT_EQ(entityAt(shown, {5, 5}, kReach), id);
    EXPECT_TRUE(entityAt(shown, {5, 2.5}, kReach).isNull()) << "nothing joins the two lines";
    EXPECT_TRUE(EntitiesTouching(shown, window(4, 2, 6, 3)).empty());
    path.filled = true;
    path.points = {{0, 0}, {20, 0}, {20, 20}, {0, 20}, {5, 5}, {15, 5}, {15, 15}, {5, 15}};
    path.breaks = {4};
    shown.paths = {path};
    EXPECT_EQ(entityAt(shown, {2.5, 10}, kReach), id);
    EXPECT_TRUE(entityAt(shown, {10, 10}, kReach).isNull());
    EXPECT_EQ(EntitiesTouching(shown, window(2, 2, 3, 3)).size(), 1u);
    EXPECT_TRUE(EntitiesTouching(shown, window(9, 9, 11, 11)).empty());
}

TEST_F(HitTest, WhatAClipHidesIsNotHit) {
    const OdDbObjectId id = addLine(0, 0, 1, 0);
    Scene shown;
    shown.clips = {{{{0, -5}, {5, -5}, {5, 5}, {0, 5}}, kNoClip}};
    ScenePath path;
    path.entity = id;
    path.points = {{-10, 0}, {10, 0}};
    path.clip = 0;
    shown.paths = {path};
    EXPECT_EQ(entityAt(shown, {2, 0}, kReach), id);
    EXPECT_TRUE(entityAt(shown, {8, 0}, kReach).isNull());
    EXPECT_TRUE(EntitiesTouching(shown, window(7, -1, 9, 1)).empty());
    EXPECT_EQ(EntitiesTouching(shown, window(4, -1, 9, 1)).size(), 1u);
    EXPECT_EQ(EntitiesInside(shown, window(-1, -6, 6, 6)).size(), 1u) << "all that is seen of it lies inside";
    EXPECT_TRUE(EntitiesInside(shown, window(1, -6, 6, 6)).empty());
}

TEST_F(HitTest, WhatAClipHidesOfATextIsNotHit) {
    const OdDbObjectId id = addLine(0, 0, 1, 0);
    Scene shown;
    shown.clips = {{{{0, -5}, {5, -5}, {5, 5}, {0, 5}}, kNoClip}};
    SceneText text;
    text.entity = id;
    text.text = OdString(L"HHHHHHHHHH");
    text.height = 2;
    text.clip = 0;
    shown.texts = {text};
    EXPECT_EQ(entityAt(shown, {4, 1}, kReach), id);
    EXPECT_TRUE(entityAt(shown, {6, 1}, kReach).isNull());
    shown.texts[0].clip = kNoClip;
    EXPECT_EQ(entityAt(shown, {6, 1}, kReach), id) << "the text goes on there";
}

}  // namespace
