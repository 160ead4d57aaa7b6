// What stood in a file and is nothing to the runtime goes back as it was: comments, values that are none,
// variables that its version doesn't know, and whatever a file without a version holds.
#include <gtest/gtest.h>

#include "dxf_text.h"

TEST(DxfComments, StandWhereTheyStoodBesideRecords) {
    const std::string text = rewritten(
        dxf("999|top\n999|second\n0|SECTION\n999|in between\n2|HEADER\n999|header\n9|$ACADVER\n1|AC1015\n"
            "9|$LUNITS\n70|4\n999|units\n9|$LUPREC\n70|2\n0|ENDSEC\n"
            "0|SECTION\n2|TABLES\n999|tables\n0|TABLE\n2|LAYER\n5|2\n70|1\n999|layers\n"
            "0|LAYER\n5|A0\n2|WALLS\n70|0\n62|3\n6|Continuous\n999|walls\n0|ENDTAB\n999|end of "
            "layers\n0|ENDSEC\n999|end of tables\n"
            "0|SECTION\n2|ENTITIES\n999|entities\n0|POINT\n8|0\n10|1\n20|2\n999|after the "
            "point\n0|POINT\n8|0\n10|3\n20|4\n"
            "0|ENDSEC\n999|end of "
            "entities\n0|SECTION\n2|OWN\n999|lead\n0|THING\n1|x\n999|thing\n0|ENDSEC\n0|EOF"));
    EXPECT_TRUE(
        has(text, "999|top\n999|second\n0|SECTION\n2|HEADER\n999|in between\n999|header\n9|$ACADVER"));
    EXPECT_TRUE(has(text, "9|$LUNITS\n70|4\n999|units\n9|$LUPREC"));
    EXPECT_TRUE(has(text, "2|TABLES\n999|tables\n0|TABLE"));
    EXPECT_TRUE(has(text, "999|layers\n0|LAYER"));
    EXPECT_TRUE(has(text, "6|Continuous\n999|walls\n0|LAYER"));
    EXPECT_TRUE(has(text, "0|ENDTAB\n999|end of layers\n0|TABLE"));
    EXPECT_TRUE(has(text, "0|ENDSEC\n999|end of tables\n0|SECTION"));
    EXPECT_TRUE(has(text, "2|ENTITIES\n999|entities\n0|POINT"));
    EXPECT_TRUE(has(text, "20|2.0\n999|after the point\n0|POINT"));
    EXPECT_TRUE(has(text, "0|ENDSEC\n999|end of entities\n0|SECTION"));
    EXPECT_TRUE(has(text, "2|OWN\n999|lead\n0|THING\n1|x\n999|thing\n0|ENDSEC"));
    EXPECT_EQ(occurrences(text, "999\r\n"), 15);
    EXPECT_EQ(rewritten(text), text);
}

TEST(DxfComments, GoToTheEndOfTheirRecordAndPartNoPoint) {
    const OdDbDatabasePtr drawing = readDrawing(
        withEntities("0|LINE\n8|0\n10|1\n999|not the x\n20|2\n11|3\n21|4\n1001|ACAD\n1000|mine\n999|last\n"));
    auto* line = firstEntity<OdDbLine>(*drawing);
    ASSERT_TRUE(line);
    EXPECT_EQ(line->startPoint(), (OdGePoint3d{1, 2, 0}));
    OdGroupList data;
    data.addText(1000, "mine");
    EXPECT_EQ(line->xData(L"ACAD"), data) << "a comment is no extended data";
    EXPECT_TRUE(has(drawing->writeDxfBytes(), "1000|mine\n999|not the x\n999|last\n0|ENDSEC"));
    line->setXData(L"ACAD", {});
    EXPECT_TRUE(has(drawing->writeDxfBytes(), "21|4.0\n999|not the x\n999|last"));
}

TEST(DxfComments, StandBehindWhatIsAddedToTheirRecord) {
    const OdDbDatabasePtr drawing = readDrawing(withEntities("0|CIRCLE\n8|0\n10|1\n20|2\n40|3\n999|note\n"));
    auto* circle = firstEntity<OdDbCircle>(*drawing);
    circle->setThickness(7);
    OdGroupList data;
    data.addText(1000, "mine");
    circle->setXData(L"ACAD", data);
    const std::string text = drawing->writeDxfBytes();
    EXPECT_TRUE(has(text, "39|7.0\n1001|ACAD\n1000|mine\n999|note\n0|ENDSEC"));
    EXPECT_EQ(rewritten(text), text);
    const std::string block =
        dxf(header("AC1009") + "0|SECTION\n2|BLOCKS\n0|BLOCK\n2|A\n999|note\n0|ENDBLK\n0|ENDSEC\n0|EOF");
    EXPECT_EQ(rewritten(rewritten(block)), rewritten(block));
}

TEST(DxfComments, AreKeptInEveryVersionAndForm) {
    const OdDbDatabasePtr drawing =
        readDrawing(dxf("999|made by \\U+00C4rzte\n") +
                    withEntities("0|POINT\n8|0\n10|1\n20|2\n999|gr\\U+00FCn ^ A here\n"));
    for (const OdDb::DwgVersion version : kAllVersions)
        for (const bool binary : {false, true}) {
            const OdDbDatabasePtr again = readDrawing(drawing->writeDxfBytes(OdDxfForm{version, binary}));
            ASSERT_TRUE(again);
            const std::string text = again->writeDxfBytes(OdDxfForm{OdDb::kDHL_1032});
            EXPECT_TRUE(has(text, "999|made by \xC3\x84rzte\n0|SECTION")) << version << binary;
            EXPECT_TRUE(has(text, "20|2.0\n999|gr\xC3\xBCn ^ A here\n0|ENDSEC")) << version << binary;
        }
}

TEST(DxfWrittenBack, ValuesThatAreNoneAsTheyWere) {
    const std::string text = withEntities(
        "0|CIRCLE\n8|0\n62|2.5\n390|XYZ\n10|1,5\n20|7\n40|abc\n1001|ACAD\n1040|1.2.3\n1071|x\n1005|-\n");
    const std::string again = rewritten(text);
    EXPECT_TRUE(has(
        again,
        "62|2.5\n390|XYZ\n100|AcDbCircle\n10|1,5\n20|7.0\n40|abc\n1001|ACAD\n1040|1.2.3\n1071|x\n1005|-"));
    EXPECT_EQ(rewritten(again), again);
    EXPECT_TRUE(
        has(rewritten(text, OdDb::kDHL_1018),
            "62|3\n390|0\n100|AcDbCircle\n10|0.0\n20|7.0\n40|0.0\n1001|ACAD\n1040|0.0\n1071|0\n1005|0"))
        << "another version gets what stands for them";
    const OdDbDatabasePtr binary =
        readDrawing(readDrawing(text)->writeDxfBytes(OdDxfForm{OdDb::kDHL_1015, true}));
    EXPECT_EQ(firstEntity<OdDbCircle>(*binary)->colorIndex(), 3) << "and so does a binary file";
}

TEST(DxfWrittenBack, AValueThatWasChangedIsTheNewOne) {
    const OdDbDatabasePtr drawing = readDrawing(withEntities("0|CIRCLE\n8|0\n10|1\n20|7\n40|abc\n"));
    firstEntity<OdDbCircle>(*drawing)->setRadius(4);
    const std::string text = drawing->writeDxfBytes();
    EXPECT_TRUE(has(text, "40|4.0"));
    EXPECT_EQ(text.find("abc"), std::string::npos);
}

TEST(DxfWrittenBack, ANameOfNobodyInADimensionStyle) {
    const std::string text = rewritten(dxf(
        header("AC1015") +
        "0|SECTION\n2|TABLES\n0|TABLE\n2|DIMSTYLE\n5|9\n0|DIMSTYLE\n105|A0\n100|AcDbSymbolTableRecord\n"
        "100|AcDbDimStyleTableRecord\n2|ours\n70|0\n340|Standard\n342|nobody\n0|ENDTAB\n0|ENDSEC\n0|EOF"));
    EXPECT_TRUE(has(text, "342|nobody"));
    EXPECT_FALSE(has(text, "340|Standard")) << "what the name means is known";
    EXPECT_EQ(rewritten(text), text);
}

TEST(DxfWrittenBack, VariablesThatR12DoesNotKnow) {
    const std::string file =
        dxf(header("AC1009").substr(0, header("AC1009").size() - 9) +
            "9|$INSUNITS\n70|6\n9|$MEASUREMENT\n70|0\n9|$MYVAR\n1|x\n9|$CECOLOR\n62|256\n"
            "0|ENDSEC\n0|EOF");
    const std::string text = rewritten(file);
    EXPECT_TRUE(has(text, "9|$INSUNITS\n70|6\n9|$MEASUREMENT\n70|0\n9|$MYVAR\n1|x\n9|$CECOLOR\n62|256"));
    EXPECT_EQ(text.find("$CELWEIGHT"), std::string::npos) << "only those that the file had";
    EXPECT_EQ(rewritten(text), text);
    const std::string newer = rewritten(text, OdDb::kDHL_1032);
    EXPECT_TRUE(has(newer, "9|$INSUNITS\n70|6\n9|$MEASUREMENT\n70|0\n9|$MYVAR\n1|x"));
    EXPECT_EQ(rewritten(newer, OdDb::kDHL_1009).find("$INSUNITS"), std::string::npos);
}

TEST(DxfWrittenBack, GroupsThatAFileHadBeforeTheirTime) {
    const std::string text = rewritten(withEntities(
        "0|LINE\n8|0\n62|1\n420|255\n370|25\n10|0\n20|0\n11|1\n21|1\n0|CIRCLE\n8|0\n10|0\n20|0\n40|1\n",
        "AC1009"));
    EXPECT_TRUE(has(text, "62|1\n420|255\n370|25\n10|0.0"));
    EXPECT_EQ(rewritten(text), text);
    EXPECT_FALSE(has(rewritten(rewritten(text, OdDb::kDHL_1032), OdDb::kDHL_1009), "420|255"));
    EXPECT_EQ(rewritten(withEntities("0|LINE\n100|AcDbEntity\n8|0\n100|AcDbLine\n10|0\n20|0\n", "AC1009"))
                  .find("AcDb"),
              std::string::npos)
        << "markers are made anew by the version";
}

TEST(DxfWrittenBack, TheBlocksOfSpacesThatAnR12FileHad) {
    const std::string blocks =
        "0|SECTION\n2|BLOCKS\n0|BLOCK\n8|0\n2|$MODEL_SPACE\n70|0\n10|5\n20|0\n30|0\n3|$MODEL_SPACE\n1|\n0|"
        "ENDBLK\n8|0\n0|ENDSEC\n";
    const std::string text = rewritten(dxf(header("AC1009") + blocks + "0|EOF"));
    EXPECT_TRUE(has(text, "0|BLOCK\n8|0\n2|$Model_Space\n3|$Model_Space\n70|0\n10|5.0\n20|0.0\n30|0.0\n1|"))
        << text.substr(text.find("BLOCKS"), 200);
    EXPECT_EQ(rewritten(text), text);
    EXPECT_EQ(rewritten(rewritten(text, OdDb::kDHL_1015), OdDb::kDHL_1009).find("$Model_Space"),
              std::string::npos);
}

TEST(DxfWithoutVersion, IsSavedInTheOldestVersionThatHoldsIt) {
    const struct {
        const char* entities;
        OdDb::DwgVersion version;
    } cases[] = {
        {"0|LINE\n8|0\n10|0\n20|0\n11|1\n21|1\n", OdDb::kDHL_1009},
        {"0|ELLIPSE\n8|0\n10|0\n20|0\n11|1\n21|1\n40|0.5\n41|0\n42|3\n", OdDb::kDHL_1012},
        {"0|LWPOLYLINE\n8|0\n90|1\n70|0\n10|0\n20|0\n", OdDb::kDHL_1014},
        {"0|HATCH\n8|0\n2|SOLID\n", OdDb::kDHL_1014},
        {"0|LINE\n8|0\n370|50\n10|0\n20|0\n11|1\n21|1\n", OdDb::kDHL_1015},
        {"0|LINE\n8|0\n420|255\n10|0\n20|0\n11|1\n21|1\n", OdDb::kDHL_1018},
        {"0|LIGHT\n8|0\n1|lamp\n", OdDb::kDHL_1021},
        {"0|MESH\n8|0\n71|2\n", OdDb::kDHL_1024},
    };
    for (const auto& one : cases) {
        const std::string file =
            dxf(std::string("0|SECTION\n2|ENTITIES\n") + one.entities + "0|ENDSEC\n0|EOF");
        const OdDbDatabasePtr drawing = readDrawing(file);
        ASSERT_TRUE(drawing);
        EXPECT_EQ(drawing->originalFileVersion(), one.version) << one.entities;
        EXPECT_TRUE(drawing->lossesIn().empty());
        const OdDbDatabasePtr again = readDrawing(drawing->writeDxfBytes());
        ASSERT_EQ(modelEntities(*again).size(), 1u);
        EXPECT_EQ(std::string(modelEntities(*again)[0]->dxfName()), modelEntities(*drawing)[0]->dxfName());
    }
}

TEST(DxfWithoutVersion, ASectionOfTheNewestVersionAsksForThatOne) {
    const OdDbDatabasePtr drawing =
        readDrawing(dxf("0|SECTION\n2|ACDSDATA\n70|2\n0|ACDSSCHEMA\n90|0\n0|ENDSEC\n0|EOF"));
    EXPECT_EQ(drawing->originalFileVersion(), OdDb::kDHL_1027);
    const OdDbDatabasePtr embedded = readDrawing(
        dxf("0|SECTION\n2|ENTITIES\n0|MTEXT\n8|0\n1|x\n101|Embedded Object\n70|1\n0|ENDSEC\n0|EOF"));
    EXPECT_EQ(embedded->originalFileVersion(), OdDb::kDHL_1032);
}

TEST(DxfWithoutVersion, NamesStayAsTheyAre) {
    const OdDbDatabasePtr drawing =
        readDrawing(dxf("0|SECTION\n2|ENTITIES\n0|POINT\n8|my long layer with blanks and more than "
                        "31\n10|0\n20|0\n0|ENDSEC\n0|EOF"));
    EXPECT_EQ(drawing->originalFileVersion(), OdDb::kDHL_1009);
    EXPECT_TRUE(has(drawing->writeDxfBytes(), "8|my long layer with blanks and more than 31"));
}

TEST(DxfWrittenBack, AGroupIsHeldByRecordsOfItsTypeAlone) {
    // R14 has text styles by handle in dimension styles, and no layouts in the records of blocks.
    const std::string text = rewritten(
        dxf(header("AC1014") +
            "0|SECTION\n2|TABLES\n0|TABLE\n2|DIMSTYLE\n5|9\n0|DIMSTYLE\n105|A0\n100|AcDbSymbolTableRecord\n"
            "100|AcDbDimStyleTableRecord\n2|ours\n70|0\n340|11\n0|ENDTAB\n0|ENDSEC\n0|EOF"));
    EXPECT_TRUE(has(text, "340|11"));
    EXPECT_FALSE(has(text, "2|*Model_Space\n340|"));
    EXPECT_EQ(text.find("2\r\n*Model_Space\r\n340"), std::string::npos);
    EXPECT_EQ(rewritten(text), text);
}
