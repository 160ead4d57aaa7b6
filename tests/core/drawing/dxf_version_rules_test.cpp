// Each group that came with a version: written from that version on and told as lost before.
#include <gtest/gtest.h>

#include <algorithm>

#include "dxf_text.h"

namespace {

/// A group of a kind of record, the value it has in the test, and the first version with it.
struct Row {
    std::string type;  // of an entity or table record; "" for the part that all entities have in common
    int code;
    std::string value;
    OdDb::DwgVersion since;
    OdDxfLossKind loss = OdDxfLossKind::kSetting;
};

using namespace OdDb;
using enum OdDxfLossKind;

const Row kRows[] = {
    {"", 48, "2.5", kDHL_1012},
    {"", 60, "1", kDHL_1009},
    {"", 284, "3", kDHL_1021},
    {"", 347, "A5", kDHL_1021},
    {"", 348, "A5", kDHL_1021},
    {"", 370, "50", kDHL_1015, kLineWeight},
    {"", 380, "3", kDHL_1015, kPlotStyle},
    {"", 390, "A5", kDHL_1015, kPlotStyle},
    {"", 420, "255", kDHL_1018, kTrueColor},
    {"", 430, "BOOK$red", kDHL_1018, kTrueColor},
    {"", 440, "33554559", kDHL_1018, kTransparency},
    {"ATTRIB", 280, "1", kDHL_1021},
    {"ATTDEF", 280, "1", kDHL_1021},
    {"BLOCK_RECORD", 70, "44", kDHL_1021},
    {"BLOCK_RECORD", 280, "2", kDHL_1021},
    {"BLOCK_RECORD", 281, "2", kDHL_1021},
    {"BLOCK_RECORD", 310, "FF", kDHL_1015},
    {"BLOCK_RECORD", 340, "A5", kDHL_1015},
    {"DIMENSION", 41, "1.25", kDHL_1015},
    {"DIMENSION", 42, "1.25", kDHL_1015},
    {"DIMENSION", 71, "5", kDHL_1015},
    {"DIMENSION", 75, "1", kDHL_1015},
    {"DIMENSION", 280, "7", kDHL_1024},
    {"DIMSTYLE", 48, "1.25", kDHL_1009},
    {"DIMSTYLE", 49, "1.25", kDHL_1021},
    {"DIMSTYLE", 50, "1.25", kDHL_1021},
    {"DIMSTYLE", 69, "2", kDHL_1021},
    {"DIMSTYLE", 79, "3", kDHL_1015},
    {"DIMSTYLE", 90, "2", kDHL_1021},
    {"DIMSTYLE", 147, "1.25", kDHL_1009},
    {"DIMSTYLE", 148, "1.25", kDHL_1015},
    {"DIMSTYLE", 178, "3", kDHL_1009},
    {"DIMSTYLE", 179, "3", kDHL_1015},
    {"DIMSTYLE", 271, "3", kDHL_1012},
    {"DIMSTYLE", 276, "3", kDHL_1015},
    {"DIMSTYLE", 279, "3", kDHL_1015},
    {"DIMSTYLE", 284, "8", kDHL_1012},
    {"DIMSTYLE", 288, "1", kDHL_1012},
    {"DIMSTYLE", 289, "3", kDHL_1015},
    {"DIMSTYLE", 290, "5", kDHL_1021},
    {"DIMSTYLE", 294, "1", kDHL_1024},
    {"DIMSTYLE", 340, "A5", kDHL_1012},
    {"DIMSTYLE", 341, "A5", kDHL_1015},
    {"DIMSTYLE", 345, "A5", kDHL_1021},
    {"DIMSTYLE", 347, "A5", kDHL_1021},
    {"DIMSTYLE", 371, "25", kDHL_1015, kLineWeight},
    {"DIMSTYLE", 372, "25", kDHL_1015, kLineWeight},
    {"HATCH", 450, "1", kDHL_1018},
    {"HATCH", 470, "LINEAR", kDHL_1018},
    {"IMAGE", 290, "5", kDHL_1024},
    {"LAYER", 290, "0", kDHL_1015, kPlotStyle},
    {"LAYER", 347, "A5", kDHL_1021},
    {"LAYER", 370, "50", kDHL_1015, kLineWeight},
    {"LAYER", 390, "A5", kDHL_1015, kPlotStyle},
    {"LAYER", 420, "255", kDHL_1018, kTrueColor},
    {"LTYPE", 9, "GAS", kDHL_1012},
    {"LTYPE", 44, "1.25", kDHL_1012},
    {"LTYPE", 46, "1.25", kDHL_1012},
    {"LTYPE", 49, "1.25", kDHL_1009},
    {"LTYPE", 50, "1.25", kDHL_1012},
    {"LTYPE", 74, "2", kDHL_1012},
    {"LTYPE", 75, "132", kDHL_1012},
    {"LTYPE", 340, "A5", kDHL_1012},
    {"LWPOLYLINE", 91, "3", kDHL_1024},
    {"MTEXT", 44, "1.25", kDHL_1015},
    {"MTEXT", 45, "1.25", kDHL_1018},
    {"MTEXT", 46, "1.25", kDHL_1021},
    {"MTEXT", 63, "1", kDHL_1018},
    {"MTEXT", 73, "2", kDHL_1015},
    {"MTEXT", 90, "3", kDHL_1018},
    {"MTEXT", 421, "255", kDHL_1018},
    {"UCS", 12, "1.25", kDHL_1009},
    {"UCS", 13, "1.25", kDHL_1015},
    {"UCS", 71, "1", kDHL_1015},
    {"UCS", 79, "1", kDHL_1015},
    {"UCS", 146, "1.25", kDHL_1015},
    {"UCS", 346, "A5", kDHL_1015},
    {"VIEW", 71, "1", kDHL_1009},
    {"VIEW", 72, "1", kDHL_1015},
    {"VIEW", 73, "1", kDHL_1021},
    {"VIEW", 110, "1.25", kDHL_1015},
    {"VIEW", 281, "1", kDHL_1015},
    {"VIEW", 332, "A5", kDHL_1021},
    {"VIEW", 345, "A5", kDHL_1015},
    {"VIEW", 348, "A5", kDHL_1021},
    {"VIEW", 361, "A5", kDHL_1021},
    {"VIEWPORT", 41, "1.25", kDHL_1009},
    {"VIEWPORT", 69, "2", kDHL_1009},
    {"VIEWPORT", 12, "1.25", kDHL_1015},
    {"VIEWPORT", 45, "1.25", kDHL_1015},
    {"VIEWPORT", 61, "3", kDHL_1021},
    {"VIEWPORT", 72, "100", kDHL_1015},
    {"VIEWPORT", 90, "100", kDHL_1015},
    {"VIEWPORT", 170, "1", kDHL_1018},
    {"VIEWPORT", 331, "A5", kDHL_1015},
    {"VIEWPORT", 333, "A5", kDHL_1021},
    {"VIEWPORT", 340, "A5", kDHL_1015},
    {"VIEWPORT", 345, "A5", kDHL_1015},
    {"VIEWPORT", 348, "A5", kDHL_1021},
    {"VPORT", 45, "1.25", kDHL_1009},
    {"VPORT", 61, "5", kDHL_1021},
    {"VPORT", 65, "1", kDHL_1015},
    {"VPORT", 110, "1.25", kDHL_1015},
    {"VPORT", 141, "1.25", kDHL_1021},
    {"VPORT", 146, "1.25", kDHL_1015},
    {"VPORT", 281, "1", kDHL_1015},
    {"VPORT", 282, "1", kDHL_1021},
    {"VPORT", 345, "A5", kDHL_1015},
    {"VPORT", 348, "A5", kDHL_1021},
    {"VPORT", 421, "255", kDHL_1021},
};

bool isTable(const std::string& type) {
    for (const char* table : {"BLOCK_RECORD", "DIMSTYLE", "LAYER", "LTYPE", "UCS", "VIEW", "VPORT"})
        if (type == table) return true;
    return false;
}

std::string fileWith(const Row& row) {
    const std::string pair = std::to_string(row.code) + "|" + row.value + "\n";
    if (!isTable(row.type)) {
        const bool common = row.type.empty();
        return withEntities("0|" + (common ? "LINE" : row.type) + "\n5|A0\n100|AcDbEntity\n8|0\n" +
                                (common ? pair : "") + "100|AcDbOwn\n" + (common ? "" : pair),
                            "AC1032");
    }
    return dxf(header("AC1032") + "0|SECTION\n2|TABLES\n0|TABLE\n2|" + row.type + "\n5|1\n0|" + row.type +
               "\n" + (row.type == "DIMSTYLE" ? "105" : "5") +
               "|A0\n100|AcDbSymbolTableRecord\n100|AcDbOwn\n2|REC\n" + pair + "0|ENDTAB\n0|ENDSEC\n0|EOF");
}

bool tells(const std::vector<OdDxfLoss>& losses, const Row& row) {
    return std::any_of(losses.begin(), losses.end(), [&](const OdDxfLoss& loss) {
        const std::string type = row.loss == kSetting ? (row.type.empty() ? "LINE" : row.type) : "";
        return (loss.kind == row.loss && loss.type == type && loss.count == 1) ||
               (loss.kind == kEntity && loss.type == row.type);
    });
}

}  // namespace

TEST(DxfVersionRules, EachGroupIsWrittenFromItsVersionOnAndToldAsLostBefore) {
    for (const Row& row : kRows) {
        const OdDbDatabasePtr drawing = readDrawing(fileWith(row));
        ASSERT_TRUE(drawing) << row.type << row.code;
        const std::string pair = std::to_string(row.code) + "|" + row.value + "\n";
        for (const DwgVersion version : kAllVersions) {
            const bool written = has(drawing->writeDxfBytes(version), pair);
            EXPECT_EQ(written, version >= row.since) << row.type << " " << row.code << " in " << version;
            // R12 has no records for blocks, and the layout of a block is told for itself.
            const bool block = row.type == "BLOCK_RECORD" && (version == kDHL_1009 || row.code == 340);
            if (!written && !block) {
                EXPECT_TRUE(tells(drawing->lossesIn(version), row))
                    << row.type << " " << row.code << " in " << version;
            }
            if (written) {
                EXPECT_TRUE(drawing->lossesIn(version).empty())
                    << row.type << " " << row.code << " in " << version;
            }
        }
    }
}

TEST(DxfVersionRules, TheFillColorOfADimensionStyleIsItsSecond70) {
    const std::string text =
        dxf(header("AC1032") +
            "0|SECTION\n2|TABLES\n0|TABLE\n2|DIMSTYLE\n5|1\n0|DIMSTYLE\n105|A0\n100|AcDbSymbolTableRecord\n"
            "100|AcDbDimStyleTableRecord\n2|REC\n70|5\n69|2\n70|3\n40|1\n0|ENDTAB\n0|ENDSEC\n0|EOF");
    EXPECT_TRUE(has(rewritten(text, OdDb::kDHL_1018), "2|REC\n70|5\n40|1.0"));
    EXPECT_TRUE(has(rewritten(text, OdDb::kDHL_1021), "2|REC\n70|5\n69|2\n70|3\n40|1.0"));
}

TEST(DxfVersionRules, EachKindOfEntityIsWrittenFromItsVersionOn) {
    const struct {
        const char* type;
        DwgVersion since;
    } kinds[] = {{"TRACE", kDHL_1009},         {"3DFACE", kDHL_1009},
                 {"SHAPE", kDHL_1009},         {"3DSOLID", kDHL_1012},
                 {"LEADER", kDHL_1012},        {"XLINE", kDHL_1012},
                 {"SOMETHING", kDHL_1012},     {"HATCH", kDHL_1014},
                 {"IMAGE", kDHL_1014},         {"OLE2FRAME", kDHL_1014},
                 {"WIPEOUT", kDHL_1015},       {"ACAD_TABLE", kDHL_1018},
                 {"ARC_DIMENSION", kDHL_1018}, {"MULTILEADER", kDHL_1021},
                 {"HELIX", kDHL_1021},         {"LIGHT", kDHL_1021},
                 {"DWFUNDERLAY", kDHL_1021},   {"MESH", kDHL_1024},
                 {"PDFUNDERLAY", kDHL_1024},   {"GEOPOSITIONMARKER", kDHL_1027}};
    for (const auto& kind : kinds) {
        const std::string record = std::string("0|") + kind.type + "\n5|A0\n330|1F\n100|AcDbEntity\n8|0\n";
        const OdDbDatabasePtr drawing = readDrawing(withEntities(record + record, "AC1032"));
        for (const DwgVersion version : kAllVersions) {
            const bool written = has(drawing->writeDxfBytes(version), std::string("0|") + kind.type);
            EXPECT_EQ(written, version >= kind.since) << kind.type << " in " << version;
            const std::vector<OdDxfLoss> losses = drawing->lossesIn(version);
            ASSERT_EQ(losses.size(), written ? 0u : 1u) << kind.type << " in " << version;
            if (written) continue;
            EXPECT_EQ(losses[0].kind, kEntity);
            EXPECT_EQ(losses[0].type, kind.type);
            // A helix is a spline with more data, which R12 has as a polyline.
            const bool hasForm = version == kDHL_1009 && std::string("HELIX") == kind.type;
            EXPECT_EQ(losses[0].becomes, hasForm ? "POLYLINE" : "") << kind.type;
            EXPECT_EQ(losses[0].count, 2);
        }
    }
}

TEST(DxfVersionRules, AFileKeepsWhatItHeldInItsOwnVersion) {
    const std::string table = withEntities("0|ACAD_TABLE\n5|A0\n100|AcDbEntity\n8|0\n", "AC1015");
    EXPECT_TRUE(readDrawing(table)->lossesIn().empty());
    EXPECT_TRUE(has(rewritten(table), "0|ACAD_TABLE"));
    EXPECT_FALSE(has(rewritten(table, kDHL_1014), "0|ACAD_TABLE"));
}

TEST(DxfVersionRules, ATypeThatItsFileDescribesStandsInVersionsFrom2000On) {
    const std::string text =
        dxf(header("AC1032") +
            "0|SECTION\n2|CLASSES\n0|CLASS\n1|MULTILEADER\n2|AcDbMLeader\n3|app\n0|ENDSEC\n"
            "0|SECTION\n2|ENTITIES\n0|MULTILEADER\n5|A0\n100|AcDbEntity\n8|0\n0|ENDSEC\n0|EOF");
    EXPECT_TRUE(has(rewritten(text, kDHL_1015), "0|MULTILEADER\n5|A0"));
    EXPECT_FALSE(has(rewritten(text, kDHL_1014), "0|MULTILEADER\n5|A0"));
}

TEST(DxfVersionRules, EachKindOfObjectIsWrittenFromItsVersionOn) {
    const struct {
        const char* type;
        DwgVersion since;
    } kinds[] = {{"XRECORD", kDHL_1012},       {"MLINESTYLE", kDHL_1012},     {"IMAGEDEF", kDHL_1014},
                 {"SORTENTSTABLE", kDHL_1014}, {"PLOTSETTINGS", kDHL_1015},   {"DICTIONARYVAR", kDHL_1015},
                 {"TABLESTYLE", kDHL_1018},    {"FIELD", kDHL_1018},          {"MATERIAL", kDHL_1021},
                 {"VISUALSTYLE", kDHL_1021},   {"MLEADERSTYLE", kDHL_1021},   {"GEODATA", kDHL_1024},
                 {"PDFDEFINITION", kDHL_1024}, {"DETAILVIEWSTYLE", kDHL_1027}};
    for (const auto& kind : kinds) {
        const OdDbDatabasePtr drawing = readDrawing(
            dxf(header("AC1032") +
                "0|SECTION\n2|OBJECTS\n0|DICTIONARY\n5|C\n330|0\n100|AcDbDictionary\n3|MINE\n350|A0\n0|" +
                kind.type + "\n5|A0\n330|C\n100|AcDbOwn\n0|ENDSEC\n0|EOF"));
        for (const DwgVersion version : kAllVersions) {
            const std::string text = drawing->writeDxfBytes(version);
            const bool written = has(text, std::string("0|") + kind.type + "\n5|A0");
            EXPECT_EQ(written, version >= kind.since && version > kDHL_1009)
                << kind.type << " in " << version;
            EXPECT_EQ(has(text, "3|MINE\n350|A0"), written) << "nothing names what isn't there";
            const std::vector<OdDxfLoss> losses = drawing->lossesIn(version);
            ASSERT_EQ(losses.size(), written ? 0u : 1u) << kind.type << " in " << version;
            EXPECT_TRUE(written || losses[0].type == kind.type) << kind.type << " in " << version;
        }
    }
}

TEST(DxfVersionRules, EachVariableIsWrittenFromItsVersionOn) {
    const struct {
        const char* name;
        DwgVersion since;
    } variables[] = {
        {"ATTDIA", kDHL_1009},       {"WORLDVIEW", kDHL_1009},       {"USERI3", kDHL_1009},
        {"CMLSTYLE", kDHL_1012},     {"TREEDEPTH", kDHL_1012},       {"CHAMFERC", kDHL_1012},
        {"ACADMAINTVER", kDHL_1014}, {"MEASUREMENT", kDHL_1014},     {"INSUNITS", kDHL_1015},
        {"DIMADEC", kDHL_1015},      {"XEDIT", kDHL_1015},           {"SORTENTS", kDHL_1018},
        {"DIMASSOC", kDHL_1018},     {"CSHADOW", kDHL_1021},         {"3DDWFPREC", kDHL_1021},
        {"TIMEZONE", kDHL_1021},     {"DIMTXTDIRECTION", kDHL_1024}, {"REQUIREDVERSIONS", kDHL_1027},
        {"NEVERHEARD", kDHL_1012}};
    for (const auto& variable : variables) {
        const OdDbDatabasePtr drawing =
            readDrawing(dxf(std::string("0|SECTION\n2|HEADER\n9|$ACADVER\n1|AC1032\n9|$") + variable.name +
                            "\n70|3\n0|ENDSEC\n0|EOF"));
        for (const DwgVersion version : kAllVersions) {
            const bool written =
                has(drawing->writeDxfBytes(version), std::string("9|$") + variable.name + "\n70|3");
            EXPECT_EQ(written, version >= variable.since) << variable.name << " in " << version;
            const std::vector<OdDxfLoss> losses = drawing->lossesIn(version);
            ASSERT_EQ(losses.size(), written ? 0u : 1u) << variable.name << " in " << version;
            EXPECT_TRUE(written || losses[0].kind == kVariable) << variable.name;
        }
    }
}
