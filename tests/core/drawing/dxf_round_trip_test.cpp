// What is written, read and written again is the same text, in every version.
#include <gtest/gtest.h>

#include "dxf_text.h"

namespace {

/// Writes, reads and writes again; the two texts must be equal.
void expectStable(OdDbDatabase& drawing, OdDb::DwgVersion version) {
    const std::string first = drawing.writeDxfBytes(version);
    OdDbDatabasePtr again(new OdDbDatabase);
    OdDbDxfError error;
    ASSERT_EQ(again->readDxfBytes(first, &error), kOdOk)
        << odUtf8(error.text.view()) << " line " << error.line;
    EXPECT_EQ(again->originalFileVersion(), version);
    EXPECT_EQ(again->writeDxfBytes(), first) << "version " << version;
}

/// Entities of every kind that has a class, with R12's spelling: no markers.
const char kEveryKind[] =
    "0|LINE\n8|WALLS\n6|DASHED\n62|3\n10|0\n20|0\n30|0\n11|1.5\n21|2\n31|0\n39|4\n"
    "0|POINT\n8|0\n10|1\n20|2\n30|3\n"
    "0|CIRCLE\n8|0\n10|1\n20|2\n30|0\n40|5\n"
    "0|ARC\n8|0\n10|1\n20|2\n30|0\n40|5\n50|45\n51|135\n"
    "0|SOLID\n8|0\n10|0\n20|0\n30|0\n11|1\n21|0\n31|0\n12|0\n22|1\n32|0\n13|1\n23|1\n33|0\n"
    "0|TEXT\n8|0\n10|0\n20|0\n30|0\n40|2.5\n1|Caf\\U+00E9\n50|30\n72|1\n11|3\n21|0\n31|0\n73|2\n"
    "0|INSERT\n8|0\n66|1\n2|DOOR\n10|1\n20|1\n30|0\n41|2\n50|90\n"
    "0|ATTRIB\n8|0\n10|0\n20|0\n30|0\n40|1\n1|D-01\n2|NUMBER\n70|0\n74|0\n0|SEQEND\n8|0\n"
    "0|POLYLINE\n8|0\n66|1\n10|0\n20|0\n30|0\n70|1\n0|VERTEX\n8|0\n10|0\n20|0\n30|0\n42|0.5\n"
    "0|VERTEX\n8|0\n10|4\n20|0\n30|0\n0|SEQEND\n8|0\n"
    "0|DIMENSION\n8|0\n2|*D1\n10|0\n20|0\n30|0\n11|1\n21|1\n31|0\n70|0\n13|0\n23|0\n33|0\n14|4\n24|0\n34|0\n";

const char kBlocks[] =
    "0|SECTION\n2|BLOCKS\n0|BLOCK\n8|0\n2|DOOR\n70|0\n10|0\n20|0\n30|0\n3|DOOR\n"
    "0|LINE\n8|0\n10|0\n20|0\n11|1\n21|0\n0|ENDBLK\n8|0\n"
    "0|BLOCK\n8|0\n2|*D1\n70|1\n10|0\n20|0\n30|0\n0|LINE\n8|0\n10|0\n20|0\n11|4\n21|0\n0|ENDBLK\n8|0\n0|"
    "ENDSEC\n";

std::string everyKindR12() {
    return dxf(header("AC1009") + kBlocks + "0|SECTION\n2|ENTITIES\n" + kEveryKind + "0|ENDSEC\n0|EOF");
}

/// Entities that R12 doesn't have.
const char kNewerKinds[] =
    "0|LWPOLYLINE\n100|AcDbEntity\n8|0\n420|16711680\n370|50\n100|AcDbPolyline\n90|3\n70|1\n43|0\n10|0\n20|"
    "0\n"
    "10|4\n20|0\n42|1\n10|4\n20|3\n"
    "0|ELLIPSE\n100|AcDbEntity\n8|0\n100|AcDbEllipse\n10|0\n20|0\n30|0\n11|4\n21|0\n31|0\n210|0\n220|0\n230|"
    "1\n"
    "40|0.5\n41|0\n42|3.1\n"
    "0|SPLINE\n100|AcDbEntity\n8|0\n100|AcDbSpline\n70|8\n71|3\n72|8\n73|4\n74|0\n40|0\n40|0\n40|0\n40|0\n40|"
    "1\n40|1\n"
    "40|1\n40|1\n10|0\n20|0\n30|0\n10|1\n20|2\n30|0\n10|3\n20|2\n30|0\n10|4\n20|0\n30|0\n"
    "0|MTEXT\n100|AcDbEntity\n8|0\n100|AcDbMText\n10|0\n20|9\n30|0\n40|2.5\n41|60\n71|1\n3|first "
    "\n1|second\\Pline\n"
    "0|HATCH\n100|AcDbEntity\n8|0\n100|AcDbHatch\n10|0\n20|0\n30|0\n2|SOLID\n70|1\n71|0\n91|0\n75|0\n76|"
    "1\n98|0\n";

}  // namespace

TEST(DxfRoundTrip, AnEmptyDrawingIsStableInEveryVersion) {
    for (const OdDb::DwgVersion version : kAllVersions)
        expectStable(*OdDbDatabasePtr(new OdDbDatabase), version);
}

TEST(DxfRoundTrip, EveryKindOfAnR12FileIsStableInEveryVersion) {
    const OdDbDatabasePtr drawing = readDrawing(everyKindR12());
    ASSERT_TRUE(drawing);
    ASSERT_EQ(modelEntities(*drawing).size(), 9u);
    for (const OdDb::DwgVersion version : kAllVersions) expectStable(*drawing, version);
}

TEST(DxfRoundTrip, NewerKindsAreStableInEveryVersion) {
    const OdDbDatabasePtr drawing = readDrawing(withEntities(kNewerKinds));
    ASSERT_TRUE(drawing);
    for (const OdDb::DwgVersion version : kAllVersions) expectStable(*drawing, version);
}

TEST(DxfRoundTrip, NewerKindsBecomeWhatR12Has) {
    const OdDbDatabasePtr drawing = readDrawing(withEntities(kNewerKinds));
    OdDbDxfError report;
    const std::string text = drawing->writeDxfBytes(OdDb::kDHL_1009, &report);
    EXPECT_EQ(report.leftOut, 1) << "only the hatch has no form in R12";
    const OdDbDatabasePtr old = readDrawing(text);
    ASSERT_TRUE(old);
    std::vector<std::string> types;
    for (OdDbEntity* entity : modelEntities(*old)) types.push_back(entity->dxfName());
    EXPECT_EQ(types, (std::vector<std::string>{"POLYLINE", "POLYLINE", "POLYLINE", "TEXT", "TEXT"}));
    auto* polyline = firstEntity<OdDb2dPolyline>(*old);
    ASSERT_EQ(polyline->vertices().length(), 3);
    EXPECT_EQ(polyline->vertices()[1]->bulge(), 1.0);
    EXPECT_TRUE(polyline->isClosed());
    auto* line = dynamic_cast<OdDbText*>(modelEntities(*old)[3]);
    ASSERT_TRUE(line);
    EXPECT_EQ(line->textString(), L"first second");
    EXPECT_EQ(text.find("AcDb"), std::string::npos) << "R12 has no subclass markers";
}

TEST(DxfRoundTrip, GeometryComesBackFromEveryVersion) {
    const OdDbDatabasePtr drawing = readDrawing(everyKindR12());
    for (const OdDb::DwgVersion version : kAllVersions) {
        const OdDbDatabasePtr again = readDrawing(drawing->writeDxfBytes(version));
        ASSERT_TRUE(again);
        const auto entities = modelEntities(*again);
        ASSERT_EQ(entities.size(), 9u);
        auto* line = dynamic_cast<OdDbLine*>(entities[0]);
        ASSERT_TRUE(line);
        EXPECT_EQ(line->endPoint(), (OdGePoint3d{1.5, 2, 0}));
        EXPECT_EQ(line->thickness(), 4);
        EXPECT_EQ(line->layer(), L"WALLS");
        EXPECT_EQ(line->linetype(), L"DASHED");
        EXPECT_EQ(line->colorIndex(), 3);
        auto* text = dynamic_cast<OdDbText*>(entities[5]);
        ASSERT_TRUE(text);
        EXPECT_EQ(text->textString(), L"Caf\x00E9");
        EXPECT_EQ(text->verticalMode(), 2);
        auto* insert = dynamic_cast<OdDbBlockReference*>(entities[6]);
        ASSERT_TRUE(insert);
        ASSERT_EQ(insert->attributes().length(), 1);
        EXPECT_EQ(insert->attributes()[0]->textString(), L"D-01");
        EXPECT_EQ(insert->blockTableRecord().open<OdDbBlockTableRecord>()->getName(), L"DOOR");
        auto* dimension = dynamic_cast<OdDbDimension*>(entities[8]);
        ASSERT_TRUE(dimension);
        EXPECT_EQ(dimension->dimBlockId().open<OdDbBlockTableRecord>()->count(), 1);
    }
}

TEST(DxfRoundTrip, MarkersAreMadeForTheVersionsThatWantThem) {
    const OdDbDatabasePtr drawing = readDrawing(everyKindR12());
    const std::string text = drawing->writeDxfBytes(OdDb::kDHL_1015);
    for (const char* marker : {"AcDbLine", "AcDbArc", "AcDb2dVertex", "AcDbRotatedDimension", "AcDbAttribute",
                               "AcDbLayerTableRecord", "AcDbBlockBegin"})
        EXPECT_NE(text.find(std::string("100\r\n") + marker + "\r\n"), std::string::npos) << marker;
    const std::size_t circle = text.find("100\r\nAcDbCircle", text.find("  0\r\nARC"));
    const std::size_t arc = text.find("100\r\nAcDbArc\r\n 50\r\n45.0");
    EXPECT_LT(circle, arc) << "the arc's angles stand behind its circle";
}

TEST(DxfRoundTrip, NumbersKeepEveryBit) {
    const OdDbDatabasePtr drawing = readDrawing(withEntities(
        "0|LINE\n8|0\n10|0.1\n20|1e-300\n30|-0\n11|123456789.123456789\n21|3.3333333333333335\n31|1E+20\n"));
    ASSERT_TRUE(drawing);
    const OdDbDatabasePtr again = readDrawing(drawing->writeDxfBytes());
    EXPECT_EQ(firstEntity<OdDbLine>(*again)->startPoint(), (OdGePoint3d{0.1, 1e-300, -0.0}));
    EXPECT_EQ(firstEntity<OdDbLine>(*again)->endPoint(),
              (OdGePoint3d{123456789.123456789, 3.3333333333333335, 1e20}));
}

TEST(DxfRoundTrip, NumbersTooSmallToTellFromZeroAreZero) {
    OdDbDatabasePtr drawing(new OdDbDatabase);
    OdDxfReading strict;
    strict.strict = true;
    OdDbDxfError error;
    const std::string text = withEntities("0|POINT\n8|0\n10|1e-999\n20|-2E-999\n30|3\n");
    ASSERT_EQ(drawing->readDxfBytes(text, &error, &strict), kOdOk) << odUtf8(error.text.view());
    EXPECT_EQ(firstEntity<OdDbPoint>(*drawing)->position(), (OdGePoint3d{0, 0, 3}));
    const std::string large = withEntities("0|POINT\n8|0\n10|1e999\n20|0\n30|3\n");
    EXPECT_NE(OdDbDatabasePtr(new OdDbDatabase)->readDxfBytes(large, &error, &strict), kOdOk);
    EXPECT_EQ(error.code, OdDxfErrorCode::kBadNumber) << "too large a number is none";
}

TEST(DxfRoundTrip, HandlesStayAndNewOnesAreFree) {
    const OdDbDatabasePtr drawing = readDrawing(
        withEntities("0|LINE\n5|ABC\n8|0\n10|0\n20|0\n11|1\n21|0\n0|LINE\n8|0\n10|0\n20|0\n11|1\n21|0\n"
                     "0|LINE\n5|ABC\n8|0\n10|0\n20|0\n11|1\n21|0\n"));
    ASSERT_TRUE(drawing);
    const auto lines = modelEntities(*drawing);
    EXPECT_EQ(lines[0]->handle(), 0xABCu);
    EXPECT_GT(lines[1]->handle(), 0xABCu) << "a missing handle is made above all others";
    EXPECT_GT(lines[2]->handle(), 0xABCu) << "a handle that is taken is replaced";
    const OdDbDatabasePtr again = readDrawing(drawing->writeDxfBytes());
    EXPECT_EQ(modelEntities(*again)[1]->handle(), lines[1]->handle());
    EXPECT_TRUE(dynamic_cast<OdDbLine*>(again->objectByHandle(0xABC)));
}

TEST(DxfRoundTrip, PaperSpaceEntitiesStayInPaperSpace) {
    const OdDbDatabasePtr drawing = readDrawing(
        withEntities("0|LINE\n67|1\n8|0\n10|0\n20|0\n11|1\n21|0\n0|POINT\n8|0\n10|0\n20|0\n", "AC1009"));
    for (const OdDb::DwgVersion version : kAllVersions) {
        const OdDbDatabasePtr again = readDrawing(drawing->writeDxfBytes(version));
        const auto paper = again->paperSpaceId().open<OdDbBlockTableRecord>();
        ASSERT_EQ(paper->count(), 1);
        EXPECT_TRUE(paper->entities()[0]->isInPaperSpace());
        EXPECT_FALSE(modelEntities(*again)[0]->isInPaperSpace());
    }
}
