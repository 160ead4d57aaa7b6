// What a version can't hold of a drawing is told, by kind and count, and is just what is missing when it is
// written.
#include <gtest/gtest.h>

#include "dxf_text.h"

namespace {

const char* wordOf(OdDxfLossKind kind) {
    switch (kind) {
        case OdDxfLossKind::kEntity: return "entity";
        case OdDxfLossKind::kObject: return "object";
        case OdDxfLossKind::kLayout: return "layout";
        case OdDxfLossKind::kName: return "name";
        case OdDxfLossKind::kTrueColor: return "color";
        case OdDxfLossKind::kTransparency: return "transparency";
        case OdDxfLossKind::kLineWeight: return "weight";
        case OdDxfLossKind::kPlotStyle: return "style";
        case OdDxfLossKind::kSetting: return "setting";
        case OdDxfLossKind::kVariable: return "variable";
        case OdDxfLossKind::kSection: return "section";
    }
    return "?";
}

/// The losses in words: kind, type, what it becomes, count.
std::string told(const OdDbDatabase& drawing, OdDb::DwgVersion version) {
    std::string text;
    for (const OdDxfLoss& loss : drawing.lossesIn(version)) {
        text += std::string(wordOf(loss.kind)) + (loss.type.empty() ? "" : " " + loss.type);
        text += (loss.becomes.empty() ? "" : " > " + loss.becomes) + " " + std::to_string(loss.count) + "; ";
    }
    return text;
}

}  // namespace

TEST(DxfLosses, ANewDrawingLosesNothingInAnyVersion) {
    const OdDbDatabasePtr drawing(new OdDbDatabase);
    for (const OdDb::DwgVersion version : kAllVersions) EXPECT_EQ(told(*drawing, version), "") << version;
    EXPECT_FALSE(drawing->isModified()) << "asking changes nothing";
}

TEST(DxfLosses, EntitiesByTypeWithWhatTheyBecome) {
    const OdDbDatabasePtr drawing = readDrawing(withEntities(
        "0|LWPOLYLINE\n8|0\n90|2\n70|0\n10|0\n20|0\n10|1\n20|1\n0|LWPOLYLINE\n8|0\n90|1\n70|0\n10|0\n20|0\n"
        "0|HATCH\n8|0\n2|SOLID\n0|ELLIPSE\n8|0\n10|0\n20|0\n11|1\n21|0\n40|1\n41|0\n42|1\n"
        "0|MTEXT\n8|0\n10|0\n20|0\n40|1\n1|a\\Pb\n0|MTEXT\n8|0\n10|0\n20|0\n40|1\n1|\n0|LINE\n8|0\n10|0\n20|"
        "0\n"));
    EXPECT_EQ(told(*drawing, OdDb::kDHL_1009),
              "entity LWPOLYLINE > POLYLINE 2; entity HATCH 1; entity ELLIPSE > POLYLINE 1; entity MTEXT > "
              "TEXT 1; entity MTEXT 1; ");
    EXPECT_EQ(told(*drawing, OdDb::kDHL_1012), "entity LWPOLYLINE > POLYLINE 2; entity HATCH 1; ");
    EXPECT_EQ(told(*drawing, OdDb::kDHL_1014), "");
    OdDbDxfError report;
    drawing->writeDxfBytes(OdDb::kDHL_1009, &report);
    EXPECT_EQ(report.leftOut, 2) << "what becomes something else isn't left out";
}

TEST(DxfLosses, ARecordWithTwoGroupsOfAPropertyCountsOnce) {
    const OdDbDatabasePtr drawing = readDrawing(withEntities(
        "0|LINE\n8|0\n62|1\n420|255\n430|BOOK$blue\n10|0\n20|0\n0|LINE\n8|0\n420|9\n370|-1\n10|0\n20|0\n"
        "0|LINE\n8|0\n370|30\n440|33554559\n284|0\n347|0\n10|0\n20|0\n",
        "AC1032"));
    EXPECT_EQ(told(*drawing, OdDb::kDHL_1015), "color 2; transparency 1; ");
    EXPECT_EQ(told(*drawing, OdDb::kDHL_1014), "color 2; weight 1; transparency 1; ")
        << "-1 is the layer's own lineweight";
}

TEST(DxfLosses, LayersOnlyWithWhatTheyDoNotHaveByThemselves) {
    const std::string head = "\n100|AcDbSymbolTableRecord\n100|AcDbLayerTableRecord\n2|";
    const OdDbDatabasePtr drawing =
        readDrawing(dxf(header("AC1032") + "0|SECTION\n2|TABLES\n0|TABLE\n2|LAYER\n5|2\n0|LAYER\n5|A0" +
                        head + "A\n70|0\n62|1\n6|Continuous\n290|1\n370|-3\n390|0\n0|LAYER\n5|A1" + head +
                        "B\n70|0\n62|1\n6|Continuous\n290|0\n370|50\n420|77\n0|ENDTAB\n0|ENDSEC\n0|EOF"));
    EXPECT_EQ(told(*drawing, OdDb::kDHL_1014), "style 1; weight 1; color 1; ");
}

TEST(DxfLosses, SheetsBesideTheFirst) {
    const std::string record = "\n100|AcDbSymbolTableRecord\n100|AcDbBlockTableRecord\n2|";
    const auto layout = [](const std::string& handle, const std::string& name, const std::string& block) {
        return "0|LAYOUT\n5|" + handle + "\n330|C\n100|AcDbPlotSettings\n1|setup\n100|AcDbLayout\n1|" + name +
               "\n71|1\n330|" + block + "\n";
    };
    const OdDbDatabasePtr drawing = readDrawing(
        dxf(header("AC1032") + "0|SECTION\n2|TABLES\n0|TABLE\n2|BLOCK_RECORD\n5|1\n0|BLOCK_RECORD\n5|A1" +
            record + "*Paper_Space\n340|B1\n0|BLOCK_RECORD\n5|A2" + record +
            "*Paper_Space0\n340|B2\n0|ENDTAB\n0|ENDSEC\n"
            "0|SECTION\n2|BLOCKS\n0|BLOCK\n330|A2\n8|0\n2|*Paper_Space0\n70|0\n10|0\n20|0\n0|LINE\n330|"
            "A2\n67|1\n8|0\n10|0\n20|0\n"
            "0|CIRCLE\n330|A2\n67|1\n8|0\n10|0\n20|0\n40|1\n0|ENDBLK\n8|0\n0|ENDSEC\n"
            "0|SECTION\n2|ENTITIES\n0|POINT\n330|A1\n67|1\n8|0\n10|0\n20|0\n0|ENDSEC\n"
            "0|SECTION\n2|OBJECTS\n0|DICTIONARY\n5|B\n330|0\n100|AcDbDictionary\n3|ACAD_LAYOUT\n350|C\n"
            "0|DICTIONARY\n5|C\n330|B\n100|AcDbDictionary\n3|Layout1\n350|B1\n3|Layout2\n350|B2\n" +
            layout("B1", "Layout1", "A1") + layout("B2", "Layout2", "A2") + "0|ENDSEC\n0|EOF"));
    ASSERT_TRUE(drawing);
    for (const OdDb::DwgVersion version : {OdDb::kDHL_1009, OdDb::kDHL_1012, OdDb::kDHL_1014}) {
        EXPECT_EQ(told(*drawing, version), "entity LINE 1; entity CIRCLE 1; layout 2; ") << version;
        const std::string text = drawing->writeDxfBytes(version);
        EXPECT_EQ(text.find("Paper_Space0"), std::string::npos);
        EXPECT_TRUE(has(text, "0|POINT"));
    }
    EXPECT_EQ(told(*drawing, OdDb::kDHL_1015), "");
    EXPECT_TRUE(has(drawing->writeDxfBytes(OdDb::kDHL_1015), "2|*Paper_Space0\n3|*Paper_Space0"));
}

TEST(DxfLosses, NamesSectionsTablesVariablesAndObjects) {
    const OdDbDatabasePtr drawing = readDrawing(
        dxf("0|SECTION\n2|HEADER\n9|$ACADVER\n1|AC1032\n9|$INSUNITS\n70|4\n9|$MEASUREMENT\n70|0\n9|$"
            "CECOLOR\n62|5\n420|255\n0|ENDSEC\n"
            "0|SECTION\n2|TABLES\n0|TABLE\n2|FUTURE\n5|F0\n70|0\n0|ENDTAB\n0|ENDSEC\n"
            "0|SECTION\n2|ENTITIES\n0|POINT\n8|a b\n10|0\n20|0\n0|ENDSEC\n"
            "0|SECTION\n2|OBJECTS\n0|DICTIONARY\n5|C\n330|0\n100|AcDbDictionary\n3|MINE\n350|D0\n3|ACAD_"
            "GROUP\n350|D1\n"
            "0|XRECORD\n5|D0\n330|C\n0|DICTIONARY\n5|D1\n330|C\n100|AcDbDictionary\n0|ENDSEC\n"
            "0|SECTION\n2|OWN\n70|1\n0|ENDSEC\n0|SECTION\n2|THUMBNAILIMAGE\n90|1\n310|FF\n0|ENDSEC\n0|EOF"));
    EXPECT_EQ(told(*drawing, OdDb::kDHL_1009),
              "name LAYER 1; section FUTURE 1; object XRECORD 1; section THUMBNAILIMAGE 1; section OWN 1; "
              "variable 1; color 1; ")
        << "INSUNITS is that of a new drawing";
    EXPECT_EQ(told(*drawing, OdDb::kDHL_1012), "variable 1; color 1; ");
    EXPECT_EQ(told(*drawing, OdDb::kDHL_1015), "color 1; ");
}

TEST(DxfLosses, ErasedThingsAreNone) {
    const OdDbDatabasePtr drawing = readDrawing(withEntities("0|HATCH\n8|0\n2|SOLID\n"));
    modelEntities(*drawing)[0]->erase();
    EXPECT_EQ(told(*drawing, OdDb::kDHL_1009), "");
}
