#include <gtest/gtest.h>

#include <cmath>

#include "dxf_text.h"

namespace {

constexpr double kPi = 3.14159265358979323846;

/// A line added to a new drawing's model space.
struct DrawingWithLine {
    OdDbDatabasePtr drawing{new OdDbDatabase};
    OdSmartPtr<OdDbLine> line{new OdDbLine};
    DrawingWithLine() {
        line->setStartPoint({1, 2, 0});
        line->setEndPoint({3, 4, 0});
        modelSpace()->appendOdDbEntity(OdDbEntityPtr(line.get()));
    }
    OdSmartPtr<OdDbBlockTableRecord> modelSpace() {
        return drawing->modelSpaceId().open<OdDbBlockTableRecord>();
    }
    OdDbDatabasePtr rewritten(OdDb::DwgVersion version = OdDb::kDHL_Unknown) {
        return readDrawing(drawing->writeDxfBytes(version));
    }
};

}  // namespace

TEST(Entities, NewOnesHaveTheDefaultsAndAreWritten) {
    DrawingWithLine d;
    EXPECT_EQ(d.line->layer(), L"0");
    EXPECT_EQ(d.line->color(), OdCmColor());
    EXPECT_EQ(d.line->linetype(), L"ByLayer");
    EXPECT_EQ(d.line->linetypeScale(), 1.0);
    EXPECT_EQ(d.line->lineWeight(), OdDb::kLnWtByLayer);
    EXPECT_EQ(d.line->visibility(), OdDb::kVisible);
    EXPECT_EQ(d.line->plotStyleName(), L"ByLayer");
    EXPECT_EQ(d.line->thickness(), 0);
    EXPECT_EQ(d.line->normal(), (OdGeVector3d{0, 0, 1}));
    for (const OdDb::DwgVersion version : kAllVersions) {
        const OdDbDatabasePtr again = d.rewritten(version);
        ASSERT_TRUE(firstEntity<OdDbLine>(*again));
        EXPECT_EQ(firstEntity<OdDbLine>(*again)->handle(), d.line->handle());
    }
}

TEST(Entities, CommonPropertiesAreEditedAndWritten) {
    DrawingWithLine d;
    OdCmColor ink;
    ink.setRGB(1, 2, 3);
    ink.setNames(L"INK", L"BOOK");
    d.line->setColor(ink);
    EXPECT_EQ(d.line->setLinetypeScale(2.5), kOdOk);
    EXPECT_EQ(d.line->setLinetypeScale(0), kOdInvalidInput);
    EXPECT_EQ(d.line->setLineWeight(OdDb::kLnWt070), kOdOk);
    EXPECT_EQ(d.line->setLineWeight(static_cast<OdDb::LineWeight>(7)), kOdInvalidInput);
    d.line->setVisibility(OdDb::kInvisible);
    d.line->setThickness(9);
    d.line->setElevation(5);
    EXPECT_EQ(d.line->setPlotStyleName(L"Normal"), kOdOk);
    EXPECT_EQ(d.line->setPlotStyleName(L"Unknown"), kOdKeyNotFound);
    const OdDbDatabasePtr again = d.rewritten();
    const auto* back = firstEntity<OdDbLine>(*again);
    ASSERT_TRUE(back);
    EXPECT_EQ(back->color(), ink);
    EXPECT_EQ(back->linetypeScale(), 2.5);
    EXPECT_EQ(back->lineWeight(), OdDb::kLnWt070);
    EXPECT_EQ(back->visibility(), OdDb::kInvisible);
    EXPECT_EQ(back->thickness(), 9);
    EXPECT_EQ(back->elevation(), 5);
    EXPECT_EQ(back->plotStyleName(), L"Normal");
    EXPECT_EQ(back->startPoint(), (OdGePoint3d{1, 2, 5}));
}

TEST(Entities, HaveAnyOfTheLineWeightsAndNoOther) {
    OdDbLine line;
    std::vector<int> legal;
    for (int weight = -5; weight <= 250; ++weight)
        if (line.setLineWeight(static_cast<OdDb::LineWeight>(weight)) == kOdOk) {
            EXPECT_EQ(line.lineWeight(), weight);
            legal.push_back(weight);
        }
    EXPECT_EQ(legal, (std::vector<int>{-3, -2, -1, 0,  5,  9,  13,  15,  18,  20,  25,  30,  35, 40,
                                       50, 53, 60, 70, 80, 90, 100, 106, 120, 140, 158, 200, 211}));
}

TEST(Entities, ALineWeightThatIsNoneIsTheLayers) {
    const OdDbDatabasePtr drawing = readDrawing(
        withEntities("0|POINT\n100|AcDbEntity\n8|0\n370|7\n100|AcDbPoint\n10|0\n20|0\n", "AC1018"));
    EXPECT_EQ(firstEntity<OdDbPoint>(*drawing)->lineWeight(), OdDb::kLnWtByLayer);
}

TEST(Entities, WithoutADrawingNothingIsTakenOver) {
    OdDbLine line;
    line.setColorIndex(3);
    line.setDatabaseDefaults(nullptr);
    EXPECT_EQ(line.color().colorIndex(), 3);
    line.setHyperlink(L"https://example.org", L"");
    EXPECT_TRUE(line.xData(nullptr).isEmpty()) << "data of no application";
    EXPECT_FALSE(line.xData(L"PE_URL").isEmpty());
}

TEST(Entities, PropertiesGoBackToTheDefaults) {
    DrawingWithLine d;
    const std::string before = d.drawing->writeDxfBytes();
    d.line->setColorIndex(1);
    d.line->setLineWeight(OdDb::kLnWt070);
    d.line->setLinetypeScale(3);
    d.line->setVisibility(OdDb::kInvisible);
    d.line->setPlotStyleName(L"ByBlock");
    EXPECT_EQ(d.line->plotStyleName(), L"ByBlock");
    EXPECT_NE(d.drawing->writeDxfBytes(), before);
    d.line->setColor(OdCmColor());
    d.line->setLineWeight(OdDb::kLnWtByLayer);
    d.line->setLinetypeScale(1);
    d.line->setVisibility(OdDb::kVisible);
    d.line->setPlotStyleName(L"ByLayer");
    EXPECT_EQ(d.drawing->writeDxfBytes(), before);
    EXPECT_FALSE(d.line->setColorIndex(300));
}

TEST(Entities, LayerAndLinetypeMustBeOfTheDrawing) {
    DrawingWithLine d;
    DrawingWithLine other;
    EXPECT_EQ(d.line->setLayer(other.drawing->clayer()), kOdInvalidInput);
    EXPECT_EQ(d.line->setLayer(d.drawing->celtype()), kOdInvalidInput);
    EXPECT_EQ(d.line->setLinetype(other.drawing->celtype()), kOdInvalidInput);
    OdDbLinetypeTablePtr linetypes;
    d.drawing->getLinetypeTable(linetypes);
    EXPECT_EQ(d.line->setLinetype(linetypes->getAt(L"Continuous")), kOdOk);
    const OdDbDatabasePtr again = d.rewritten();
    EXPECT_EQ(firstEntity<OdDbLine>(*again)->linetype(), L"Continuous");
    EXPECT_EQ(d.line->setLinetype(linetypes->getLinetypeByLayerId()), kOdOk);
    EXPECT_EQ(d.line->linetype(), L"ByLayer");
}

TEST(Entities, HyperlinksAreExtendedData) {
    DrawingWithLine d;
    d.line->setHyperlink(L"https://example.org/part?a=1", L"Part list");
    const OdDbDatabasePtr again = d.rewritten();
    auto* back = firstEntity<OdDbLine>(*again);
    EXPECT_EQ(back->hyperlink(), L"https://example.org/part?a=1");
    EXPECT_EQ(back->hyperlinkDescription(), L"Part list");
    OdDbSymbolTablePtr applications;
    again->getRegAppTable(applications);
    EXPECT_TRUE(applications->has(L"PE_URL"));
    OdGroupList other;
    other.addInteger(1070, 7);
    back->setXData(L"OTHER", other);
    back->setHyperlink(L"x");
    EXPECT_EQ(back->hyperlink(), L"x");
    EXPECT_TRUE(back->hyperlinkDescription().isEmpty());
    back->setHyperlink(L"");
    EXPECT_TRUE(back->hyperlink().isEmpty());
    EXPECT_TRUE(back->xData(L"other") == other) << "other data stays";
}

TEST(Entities, TakeTheDrawingsCurrentProperties) {
    DrawingWithLine d;
    OdDbLayerTablePtr layers;
    d.drawing->getLayerTable(layers, OdDb::kForWrite);
    OdSmartPtr<OdDbLayerTableRecord> walls(new OdDbLayerTableRecord);
    walls->setName(L"WALLS");
    layers->add(walls);
    OdCmColor red;
    red.setColorIndex(1);
    d.drawing->setCecolor(red);
    d.drawing->setClayer(walls->objectId());
    d.drawing->setCelweight(OdDb::kLnWt030);
    OdSmartPtr<OdDbCircle> circle(new OdDbCircle);
    circle->setDatabaseDefaults(d.drawing.get());
    circle->setCenter({0, 0, 0});
    circle->setRadius(4);
    ASSERT_EQ(d.modelSpace()->appendOdDbEntity(OdDbEntityPtr(circle.get())), kOdOk);
    EXPECT_EQ(circle->layer(), L"WALLS");
    EXPECT_EQ(circle->colorIndex(), 1);
    EXPECT_EQ(circle->lineWeight(), OdDb::kLnWt030);
}

TEST(Entities, ErasedOnesAreNotWritten) {
    DrawingWithLine d;
    d.line->erase();
    EXPECT_TRUE(modelEntities(*d.rewritten()).empty());
    d.line->erase(false);
    EXPECT_EQ(modelEntities(*d.rewritten()).size(), 1u);
}

TEST(Entities, UnknownKindsHaveCommonProperties) {
    const OdDbDatabasePtr drawing = readDrawing(withEntities(
        "0|REGION\n5|50\n100|AcDbEntity\n8|FILL\n62|2\n100|AcDbModelerGeometry\n62|9\n60|1\n370|5\n"));
    auto* region = firstEntity<OdDbUnknownEntity>(*drawing);
    ASSERT_TRUE(region);
    EXPECT_STREQ(region->dxfName(), "REGION");
    EXPECT_EQ(region->layer(), L"FILL");
    EXPECT_EQ(region->colorIndex(), 2);
    EXPECT_EQ(region->visibility(), OdDb::kVisible) << "group 60 is the region's own here";
    EXPECT_EQ(region->lineWeight(), OdDb::kLnWtByLayer);
    region->setColorIndex(4);
    region->setLineWeight(OdDb::kLnWt100);
    const std::string text = drawing->writeDxfBytes();
    EXPECT_NE(text.find(" 62\r\n4\r\n370\r\n100\r\n100\r\nAcDbModelerGeometry\r\n 62\r\n9\r\n"),
              std::string::npos);
}

TEST(Curves, GiveTheirGeometryInRadians) {
    OdDbArc arc;
    arc.setCenter({1, 1, 0});
    arc.setRadius(2);
    arc.setStartAngle(kPi / 6);
    arc.setEndAngle(kPi);
    EXPECT_NEAR(arc.startAngle(), kPi / 6, 1e-15);
    EXPECT_EQ(arc.endAngle(), kPi);
    EXPECT_NEAR(arc.groups().real(50), 30, 1e-12) << "files hold degrees";
    OdDbEllipse ellipse;
    EXPECT_NEAR(ellipse.endParam(), 2 * kPi, 1e-15);
    OdDbSolid solid;
    for (int i = 0; i < 3; ++i) solid.setPointAt(i, {double(i), 1, 0});
    EXPECT_EQ(solid.pointAt(3), solid.pointAt(2)) << "a triangle repeats its last corner";
    EXPECT_EQ(solid.pointAt(4), OdGePoint3d{});
}

TEST(Polylines, HaveCornersBulgesAndWidths) {
    OdDbPolyline polyline;
    polyline.setVertices({{{0, 0}, 0, 0, 0}, {{4, 0}, 1, 0.5, 0.25}, {{4, 3}, 0, 0, 0}});
    polyline.setClosed(true);
    polyline.setElevation(2);
    const auto corners = polyline.vertices();
    ASSERT_EQ(corners.length(), 3);
    EXPECT_EQ(corners[1].point, (OdGePoint2d{4, 0}));
    EXPECT_EQ(corners[1].bulge, 1);
    EXPECT_EQ(corners[1].startWidth, 0.5);
    EXPECT_EQ(corners[1].endWidth, 0.25);
    EXPECT_EQ(corners[2].bulge, 0);
    EXPECT_TRUE(polyline.isClosed());
    EXPECT_EQ(polyline.elevation(), 2);
    polyline.setVertices({});
    EXPECT_TRUE(polyline.vertices().isEmpty());
}

TEST(Polylines, NewCornersLeaveNothingOfTheFormerOnes) {
    const OdDbDatabasePtr drawing =
        readDrawing(withEntities("0|LWPOLYLINE\n100|AcDbEntity\n8|0\n100|AcDbPolyline\n90|1\n70|0\n10|1\n20|"
                                 "1\n40|3\n41|4\n42|5\n91|6\n"));
    auto* polyline = firstEntity<OdDbPolyline>(*drawing);
    polyline->setVertices({{{7, 8}, 0, 0, 0}});
    const std::string text = drawing->writeDxfBytes();
    EXPECT_TRUE(has(text, "100|AcDbPolyline\n90|1\n70|0\n10|7.0\n20|8.0\n0|ENDSEC"));
}

TEST(Polylines, OfVerticesGrow) {
    DrawingWithLine d;
    OdSmartPtr<OdDb2dPolyline> polyline(new OdDb2dPolyline);
    for (int i = 0; i < 2; ++i) {
        OdSmartPtr<OdDbVertex> vertex(new OdDbVertex);
        vertex->setPosition({double(i), 0, 0});
        EXPECT_EQ(polyline->appendVertex(vertex), kOdOk);
    }
    d.modelSpace()->appendOdDbEntity(OdDbEntityPtr(polyline.get()));
    OdSmartPtr<OdDbVertex> last(new OdDbVertex);
    last->setPosition({2, 0, 0});
    last->setBulge(0.5);
    EXPECT_EQ(polyline->appendVertex(last), kOdOk);
    EXPECT_EQ(polyline->appendVertex(last), kOdInvalidInput);
    for (const OdDb::DwgVersion version : {OdDb::kDHL_1009, OdDb::kDHL_1032}) {
        const OdDbDatabasePtr again = d.rewritten(version);
        auto* back = dynamic_cast<OdDb2dPolyline*>(modelEntities(*again)[1]);
        ASSERT_TRUE(back);
        ASSERT_EQ(back->vertices().length(), 3);
        EXPECT_EQ(back->vertices()[2]->bulge(), 0.5);
        EXPECT_EQ(back->vertices()[2]->layer(), L"0");
    }
}

TEST(Splines, PassThroughTheirEnds) {
    OdDbSpline spline;
    EXPECT_EQ(spline.setControlPoints(3, {{0, 0, 0}, {1, 2, 0}}), kOdInvalidInput);
    ASSERT_EQ(spline.setControlPoints(2, {{0, 0, 0}, {2, 4, 0}, {4, 0, 0}}), kOdOk);
    EXPECT_EQ(spline.knots().length(), 6);
    const auto points = spline.samplePoints(5);
    ASSERT_EQ(points.length(), 5);
    EXPECT_EQ(points[0], (OdGePoint3d{0, 0, 0}));
    EXPECT_EQ(points[2], (OdGePoint3d{2, 2, 0})) << "the middle of a parabola";
    EXPECT_EQ(points[4], (OdGePoint3d{4, 0, 0}));
    EXPECT_TRUE(OdDbSpline().samplePoints(5).isEmpty());
    const auto ends = spline.samplePoints(2);
    ASSERT_EQ(ends.length(), 2);
    EXPECT_EQ(ends[0], points[0]);
    EXPECT_EQ(ends[1], points[4]);
    EXPECT_TRUE(spline.samplePoints(1).isEmpty()) << "a curve has two ends";
}

TEST(Splines, CoordinatesBeforeTheFirstPointBelongToNone) {
    const OdDbDatabasePtr drawing = readDrawing(
        withEntities("0|SPLINE\n100|AcDbEntity\n8|0\n100|AcDbSpline\n20|5\n30|6\n21|7\n10|1\n20|2\n30|3\n"));
    const auto* spline = firstEntity<OdDbSpline>(*drawing);
    ASSERT_EQ(spline->controlPoints().length(), 1);
    EXPECT_EQ(spline->controlPoints()[0], (OdGePoint3d{1, 2, 3}));
    EXPECT_TRUE(spline->fitPoints().isEmpty());
}

TEST(Texts, TurnAndTakeStyles) {
    DrawingWithLine d;
    OdSmartPtr<OdDbText> text(new OdDbText);
    text->setTextString(L"DETAIL A");
    text->setHeight(3.5);
    text->setRotation(kPi / 2);
    text->setPosition({5, 6, 0});
    d.modelSpace()->appendOdDbEntity(OdDbEntityPtr(text.get()));
    EXPECT_EQ(text->textStyle(), d.drawing->textstyle());
    EXPECT_EQ(text->alignmentPoint(), text->position());
    const OdDbDatabasePtr again = d.rewritten();
    auto* back = dynamic_cast<OdDbText*>(modelEntities(*again)[1]);
    ASSERT_TRUE(back);
    EXPECT_EQ(back->textString(), L"DETAIL A");
    EXPECT_NEAR(back->rotation(), kPi / 2, 1e-15);
    EXPECT_EQ(back->widthFactor(), 1);
}

TEST(Texts, ParagraphsHoldLongContents) {
    OdDbMText paragraph;
    std::wstring contents;
    for (int i = 0; i < 300; ++i) contents += L'\x4E2D';
    paragraph.setContents(contents.c_str());
    EXPECT_EQ(paragraph.contents(), contents.c_str());
    OdGroup group;
    EXPECT_TRUE(paragraph.groups().find(3, group)) << "in pieces of 250 bytes";
    EXPECT_LE(group.text.size(), 250u);
    paragraph.setRotation(1);
    EXPECT_NEAR(paragraph.rotation(), 1, 1e-15);
}

TEST(Texts, AParagraphMayEndWithoutItsLastPiece) {
    const OdDbDatabasePtr drawing = readDrawing(
        withEntities("0|MTEXT\n100|AcDbEntity\n8|0\n100|AcDbMText\n10|0\n20|0\n40|1\n3|first \n3|second\n"));
    EXPECT_EQ(firstEntity<OdDbMText>(*drawing)->contents(), L"first second");
}

TEST(Texts, TellHowTheyAreAligned) {
    const OdDbDatabasePtr drawing = readDrawing(
        withEntities("0|TEXT\n8|0\n10|0\n20|0\n40|1\n1|x\n51|90\n72|2\n11|3\n21|4\n73|1\n", "AC1009"));
    const auto* text = firstEntity<OdDbText>(*drawing);
    EXPECT_EQ(text->horizontalMode(), 2);
    EXPECT_EQ(text->verticalMode(), 1);
    EXPECT_NEAR(text->oblique(), kPi / 2, 1e-15);
    EXPECT_EQ(text->alignmentPoint(), (OdGePoint3d{3, 4, 0}));
}

TEST(Texts, ADirectionIsARotation) {
    const OdDbDatabasePtr drawing = readDrawing(withEntities(
        "0|MTEXT\n100|AcDbEntity\n8|0\n100|AcDbMText\n10|0\n20|0\n40|1\n1|x\n11|0\n21|2\n31|0\n"));
    auto* paragraph = firstEntity<OdDbMText>(*drawing);
    EXPECT_NEAR(paragraph->rotation(), kPi / 2, 1e-15);
    paragraph->setRotation(0.25);
    EXPECT_NEAR(paragraph->rotation(), 0.25, 1e-15) << "the direction gives way";
}

TEST(Texts, FormattingCodesAreResolved) {
    EXPECT_EQ(odPlainMText(L"{\\fArial|b1;Bold}\\P\\H2.5x;big \\S1/2; \\S+0.1^-0.2;"),
              L"Bold\nbig 1/2 +0.1/-0.2");
    EXPECT_EQ(odPlainMText(L"a\\~b\\\\c\\{d\\}"), L"a b\\c{d}");
    EXPECT_EQ(odPlainMText(L"\\Lunder\\l \\C1;red"), L"under red");
    EXPECT_EQ(odPlainMText(L"end\\"), L"end");
    EXPECT_EQ(odPlainMText(L"\\Hopen"), L"");
    EXPECT_EQ(odPlainMText(L"\\q"), L"\\q");
}

TEST(BlockReferences, AreTurnedScaledAndFilled) {
    DrawingWithLine d;
    OdDbBlockTablePtr blocks;
    d.drawing->getBlockTable(blocks, OdDb::kForWrite);
    OdSmartPtr<OdDbBlockTableRecord> door(new OdDbBlockTableRecord);
    door->setName(L"DOOR");
    blocks->add(door);
    OdSmartPtr<OdDbBlockReference> insert(new OdDbBlockReference);
    EXPECT_EQ(insert->setBlockTableRecord(d.drawing->clayer()), kOdInvalidInput);
    EXPECT_EQ(insert->setBlockTableRecord(door->objectId()), kOdOk);
    insert->setPosition({10, 20, 0});
    insert->setScaleFactors({2, 3, 1});
    insert->setRotation(kPi);
    OdSmartPtr<OdDbAttribute> tag(new OdDbAttribute);
    tag->setTag(L"NUMBER");
    tag->setTextString(L"D-07");
    EXPECT_EQ(insert->appendAttribute(tag), kOdOk);
    d.modelSpace()->appendOdDbEntity(OdDbEntityPtr(insert.get()));
    const OdDbDatabasePtr again = d.rewritten();
    auto* back = dynamic_cast<OdDbBlockReference*>(modelEntities(*again)[1]);
    ASSERT_TRUE(back);
    EXPECT_EQ(back->scaleFactors(), (OdGePoint3d{2, 3, 1}));
    EXPECT_NEAR(back->rotation(), kPi, 1e-15);
    EXPECT_EQ(back->rows(), 1);
    ASSERT_EQ(back->attributes().length(), 1);
    EXPECT_EQ(back->attributes()[0]->tag(), L"NUMBER");
    EXPECT_EQ(back->blockTableRecord().open<OdDbBlockTableRecord>()->getName(), L"DOOR");
    tag->erase();
    EXPECT_TRUE(insert->attributes().isEmpty());
    EXPECT_EQ(modelEntities(*d.rewritten()).size(), 2u) << "without attributes there is no end of a list";
}
