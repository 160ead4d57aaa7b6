// In which order groups are written: markers, names, handles and what belongs to each part of an object.
#include <gtest/gtest.h>

#include <algorithm>

#include "dxf_text.h"

namespace {

/// An R12 file with a table of these records.
std::string withTable(const std::string& kind, const std::string& records,
                      const std::string& version = "AC1009") {
    return dxf(header(version) + "0|SECTION\n2|TABLES\n0|TABLE\n2|" + kind + "\n70|1\n" + records +
               "0|ENDTAB\n0|ENDSEC\n0|SECTION\n2|ENTITIES\n0|ENDSEC\n0|EOF");
}

/// What an R12 entity becomes in the version that has markers.
std::string marked(const std::string& entity) {
    return rewritten(withEntities(entity, "AC1009"), OdDb::kDHL_1015);
}

}  // namespace

TEST(DxfOrder, ATextsVerticalAlignmentStandsBehindASecondMarker) {
    const std::string text = marked("0|TEXT\n8|0\n10|0\n20|0\n40|1\n1|x\n72|1\n11|3\n21|4\n73|2\n");
    EXPECT_TRUE(has(text, "21|4.0\n100|AcDbText\n73|2"));
}

TEST(DxfOrder, PointsOfADimensionStandWholeBehindTheMarkerOfTheirKind) {
    const std::string points = "13|1\n23|2\n33|3\n14|4\n24|5\n34|6\n";
    const std::string angle = marked("0|DIMENSION\n8|0\n2|*D1\n10|0\n20|0\n70|2\n" + points +
                                     "15|7\n25|8\n35|9\n16|10\n26|11\n36|12\n");
    EXPECT_TRUE(has(angle,
                    "100|AcDb2LineAngularDimension\n13|1.0\n23|2.0\n33|3.0\n14|4.0\n24|5.0\n34|6.0\n"
                    "15|7.0\n25|8.0\n35|9.0\n16|10.0\n26|11.0\n36|12.0"));
    const std::string aligned = marked("0|DIMENSION\n8|0\n2|*D1\n10|0\n20|0\n70|1\n" + points);
    EXPECT_TRUE(has(aligned, "100|AcDbAlignedDimension\n13|1.0\n23|2.0\n33|3.0\n14|4.0\n24|5.0\n34|6.0"));
}

TEST(DxfOrder, AVertexOfAFittedCurveIsAFlatOne) {
    const std::string text =
        marked("0|POLYLINE\n8|0\n66|1\n10|0\n20|0\n70|2\n0|VERTEX\n8|0\n10|1\n20|2\n70|1\n0|SEQEND\n8|0\n");
    EXPECT_TRUE(has(text, "100|AcDb2dVertex\n10|1.0\n20|2.0\n70|1"));
}

TEST(DxfOrder, ARecordsNameStandsBehindItsHandleAndItsMarkers) {
    const std::string text =
        rewritten(withTable("LTYPE", "0|LTYPE\n2|DASHED\n70|0\n3|- -\n72|65\n73|2\n40|3\n49|2\n49|-1\n"),
                  OdDb::kDHL_1015);
    EXPECT_TRUE(
        has(text, "100|AcDbSymbolTableRecord\n100|AcDbLinetypeTableRecord\n2|DASHED\n70|0\n3|- -\n72|65"));
    EXPECT_FALSE(has(text, "0|LTYPE\n2|DASHED"));
    EXPECT_FALSE(has(text, "0|LAYER\n2|0"));
}

TEST(DxfOrder, AnotherNameInARecordDoesNotMoveItsOwn) {
    const std::string records =
        "0|VIEW\n5|77\n100|AcDbSymbolTableRecord\n100|AcDbViewTableRecord\n2|FRONT\n70|0\n2|SECOND\n40|10\n";
    const std::string text = rewritten(withTable("VIEW", records, "AC1015"));
    EXPECT_TRUE(
        has(text, "100|AcDbSymbolTableRecord\n100|AcDbViewTableRecord\n2|FRONT\n70|0\n2|SECOND\n40|10.0"));
    EXPECT_TRUE(has(text, "0|VIEW\n5|77")) << "the handle comes first";
}

TEST(DxfOrder, APointHasTheMarkerOfPoints) {
    EXPECT_TRUE(has(marked("0|POINT\n8|0\n10|1\n20|2\n30|3\n"), "100|AcDbPoint\n10|1.0\n20|2.0\n30|3.0"));
}

TEST(DxfOrder, ANewLinetypeHasWhatALinetypeNeeds) {
    OdDbDatabasePtr drawing(new OdDbDatabase);
    OdDbLinetypeTablePtr linetypes;
    drawing->getLinetypeTable(linetypes, OdDb::kForWrite);
    OdSmartPtr<OdDbLinetypeTableRecord> linetype(new OdDbLinetypeTableRecord);
    linetype->setName(L"CENTER");
    ASSERT_EQ(linetypes->add(linetype), kOdOk);
    const std::string text = drawing->writeDxfBytes(OdDb::kDHL_1015);
    EXPECT_TRUE(has(text, "2|CENTER\n70|0\n3|\n72|65\n73|0\n40|0.0\n0|ENDTAB"));
}

TEST(DxfOrder, ALayoutsPlotSettingsStandInTheOrderThatReadersExpect) {
    const std::string text = OdDbDatabasePtr(new OdDbDatabase)->writeDxfBytes(OdDb::kDHL_1015);
    EXPECT_TRUE(has(text, "142|1.0\n143|1.0\n70|1712\n72|1\n73|0\n74|0\n7|\n75|16\n147|1.0\n100|AcDbLayout"));
    EXPECT_TRUE(has(text, "142|1.0\n143|1.0\n70|688\n72|1\n73|0\n74|5\n7|\n75|16\n147|1.0\n100|AcDbLayout"));
}

TEST(DxfOrder, AnEntityOfUnknownKindWithoutMarkersKeepsEveryGroup) {
    const std::string text =
        rewritten(withEntities("0|FUTURETHING\n5|A0\n8|0\n62|5\n40|1.5\n1|text\n", "AC1015"));
    EXPECT_TRUE(has(text, "8|0\n62|5\n40|1.5\n1|text\n0|ENDSEC"));
}

TEST(DxfOrder, AnEntityOfPaperSpaceNamesItsLayoutFromTheVersionsOnThatHaveLayouts) {
    const std::string file = withEntities("0|POINT\n67|1\n8|0\n10|1\n20|2\n", "AC1009");
    EXPECT_TRUE(has(rewritten(file, OdDb::kDHL_1015), "67|1\n410|Layout1\n8|0"));
    EXPECT_TRUE(has(rewritten(file, OdDb::kDHL_1014), "67|1\n8|0"));
}

TEST(DxfOrder, TheNextFreeHandleIsAboveAllOthers) {
    for (const OdDb::DwgVersion version : kAllVersions) {
        const std::string text =
            rewritten(withEntities("0|POINT\n5|ABC\n8|0\n10|0\n20|0\n0|INSERT\n8|0\n66|1\n2|B\n10|0\n20|0\n"
                                   "0|ATTRIB\n8|0\n10|0\n20|0\n40|1\n1|x\n2|T\n70|0\n0|SEQEND\n8|0\n",
                                   "AC1009"),
                      version);
        unsigned long long seed = 0, greatest = 0;
        bool afterSeed = false;
        for (std::size_t at = 0; at < text.size();) {
            const std::size_t end = text.find("\r\n", at), next = text.find("\r\n", end + 2);
            const std::string code = text.substr(at, end - at), value = text.substr(end + 2, next - end - 2);
            if (code == "  5" && afterSeed)
                seed = std::stoull(value, nullptr, 16);
            else if (code == "  5" || code == "105")
                greatest = std::max(greatest, std::stoull(value, nullptr, 16));
            afterSeed = value == "$HANDSEED";
            at = next + 2;
        }
        EXPECT_GT(greatest, 0xABCu) << version;
        EXPECT_EQ(seed, greatest + 1) << version;
    }
}

TEST(DxfOrder, TheCurrentColourKeepsItsName) {
    OdDbDatabasePtr drawing(new OdDbDatabase);
    OdCmColor ink;
    ink.setRGB(1, 2, 3);
    ink.setNames(L"INK", L"BOOK");
    drawing->setCecolor(ink);
    EXPECT_TRUE(has(drawing->writeDxfBytes(OdDb::kDHL_1018), "420|66051\n430|BOOK$INK"));
    drawing->setCecolor(OdCmColor());
    EXPECT_FALSE(has(drawing->writeDxfBytes(OdDb::kDHL_1018), "430|BOOK$INK"));
}

TEST(DxfOrder, AColourBooksNamesGoOnlyToVersionsThatHaveThem) {
    const std::string file =
        dxf("0|SECTION\n2|HEADER\n9|$ACADVER\n1|AC1018\n9|$CECOLOR\n62|5\n420|66051\n430|"
            "BOOK$INK\n440|7\n0|ENDSEC\n0|EOF");
    EXPECT_TRUE(has(rewritten(file, OdDb::kDHL_1018), "9|$CECOLOR\n62|5\n420|66051\n430|BOOK$INK\n440|7"));
    EXPECT_TRUE(has(rewritten(file, OdDb::kDHL_1015), "9|$CECOLOR\n62|5\n440|7"));
}
