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
    {"", 47, "1.25", kDHL_1009},
    {"", 48, "2.5", kDHL_1012},
    {"", 49, "1.25", kDHL_1009},
    {"", 60, "1", kDHL_1009},
    {"", 283, "3", kDHL_1012},
    {"", 284, "3", kDHL_1021},
    {"", 285, "3", kDHL_1012},
    {"", 346, "A5", kDHL_1012},
    {"", 347, "A5", kDHL_1021},
    {"", 348, "A5", kDHL_1021},
    {"", 349, "A5", kDHL_1012},
    {"", 369, "A5", kDHL_1012},
    {"", 370, "50", kDHL_1015, kLineWeight},
    {"", 371, "3", kDHL_1012},
    {"", 379, "3", kDHL_1012},
    {"", 380, "3", kDHL_1015, kPlotStyle},
    {"", 381, "3", kDHL_1012},
    {"", 389, "3", kDHL_1012},
    {"", 390, "A5", kDHL_1015, kPlotStyle},
    {"", 391, "A5", kDHL_1012},
    {"", 419, "FF", kDHL_1012},
    {"", 420, "255", kDHL_1018, kTrueColor},
    {"", 430, "BOOK$red", kDHL_1018, kTrueColor},
    {"", 431, "FF", kDHL_1012},
    {"", 439, "FF", kDHL_1012},
    {"", 440, "33554559", kDHL_1018, kTransparency},
    {"", 441, "3", kDHL_1012},
    {"ATTDEF", 279, "3", kDHL_1012},
    {"ATTDEF", 280, "1", kDHL_1021},
    {"ATTDEF", 281, "3", kDHL_1012},
    {"ATTRIB", 279, "3", kDHL_1012},
    {"ATTRIB", 280, "1", kDHL_1021},
    {"ATTRIB", 281, "3", kDHL_1012},
    {"BLOCK_RECORD", 69, "3", kDHL_1012},
    {"BLOCK_RECORD", 70, "44", kDHL_1021},
    {"BLOCK_RECORD", 71, "3", kDHL_1012},
    {"BLOCK_RECORD", 279, "3", kDHL_1012},
    {"BLOCK_RECORD", 280, "2", kDHL_1021},
    {"BLOCK_RECORD", 281, "2", kDHL_1021},
    {"BLOCK_RECORD", 282, "3", kDHL_1012},
    {"BLOCK_RECORD", 309, "FF", kDHL_1012},
    {"BLOCK_RECORD", 310, "FF", kDHL_1015},
    {"BLOCK_RECORD", 311, "FF", kDHL_1012},
    {"BLOCK_RECORD", 339, "A5", kDHL_1012},
    {"BLOCK_RECORD", 340, "A5", kDHL_1015},
    {"BLOCK_RECORD", 341, "A5", kDHL_1012},
    {"DIMENSION", 40, "1.25", kDHL_1009},
    {"DIMENSION", 41, "1.25", kDHL_1015},
    {"DIMENSION", 42, "1.25", kDHL_1015},
    {"DIMENSION", 43, "1.25", kDHL_1009},
    {"DIMENSION", 70, "3", kDHL_1009},
    {"DIMENSION", 71, "5", kDHL_1015},
    {"DIMENSION", 75, "1", kDHL_1015},
    {"DIMENSION", 76, "3", kDHL_1009},
    {"DIMENSION", 279, "3", kDHL_1012},
    {"DIMENSION", 280, "7", kDHL_1024},
    {"DIMENSION", 281, "3", kDHL_1012},
    {"DIMSTYLE", 48, "1.25", kDHL_1009},
    {"DIMSTYLE", 49, "1.25", kDHL_1021},
    {"DIMSTYLE", 50, "1.25", kDHL_1021},
    {"DIMSTYLE", 51, "1.25", kDHL_1009},
    {"DIMSTYLE", 68, "3", kDHL_1009},
    {"DIMSTYLE", 69, "2", kDHL_1021},
    {"DIMSTYLE", 78, "3", kDHL_1009},
    {"DIMSTYLE", 79, "3", kDHL_1015},
    {"DIMSTYLE", 80, "FF", kDHL_1012},
    {"DIMSTYLE", 89, "FF", kDHL_1012},
    {"DIMSTYLE", 90, "2", kDHL_1021},
    {"DIMSTYLE", 91, "3", kDHL_1012},
    {"DIMSTYLE", 147, "1.25", kDHL_1009},
    {"DIMSTYLE", 148, "1.25", kDHL_1015},
    {"DIMSTYLE", 149, "1.25", kDHL_1009},
    {"DIMSTYLE", 178, "3", kDHL_1009},
    {"DIMSTYLE", 179, "3", kDHL_1015},
    {"DIMSTYLE", 180, "FF", kDHL_1012},
    {"DIMSTYLE", 271, "3", kDHL_1012},
    {"DIMSTYLE", 275, "3", kDHL_1012},
    {"DIMSTYLE", 276, "3", kDHL_1015},
    {"DIMSTYLE", 279, "3", kDHL_1015},
    {"DIMSTYLE", 280, "3", kDHL_1012},
    {"DIMSTYLE", 284, "8", kDHL_1012},
    {"DIMSTYLE", 288, "1", kDHL_1012},
    {"DIMSTYLE", 289, "3", kDHL_1015},
    {"DIMSTYLE", 290, "5", kDHL_1021},
    {"DIMSTYLE", 291, "3", kDHL_1012},
    {"DIMSTYLE", 293, "3", kDHL_1012},
    {"DIMSTYLE", 294, "1", kDHL_1024},
    {"DIMSTYLE", 295, "3", kDHL_1012},
    {"DIMSTYLE", 340, "A5", kDHL_1012},
    {"DIMSTYLE", 341, "A5", kDHL_1015},
    {"DIMSTYLE", 345, "A5", kDHL_1021},
    {"DIMSTYLE", 347, "A5", kDHL_1021},
    {"DIMSTYLE", 371, "25", kDHL_1015, kLineWeight},
    {"DIMSTYLE", 372, "25", kDHL_1015, kLineWeight},
    {"DIMSTYLE", 373, "3", kDHL_1012},
    {"HATCH", 449, "3", kDHL_1014},
    {"HATCH", 450, "1", kDHL_1018},
    {"HATCH", 470, "LINEAR", kDHL_1018},
    {"HATCH", 471, "FF", kDHL_1014},
    {"IMAGE", 289, "3", kDHL_1014},
    {"IMAGE", 290, "5", kDHL_1024},
    {"IMAGE", 291, "3", kDHL_1014},
    {"LAYER", 289, "3", kDHL_1012},
    {"LAYER", 290, "0", kDHL_1015, kPlotStyle},
    {"LAYER", 291, "3", kDHL_1012},
    {"LAYER", 346, "A5", kDHL_1012},
    {"LAYER", 347, "A5", kDHL_1021},
    {"LAYER", 348, "A5", kDHL_1021},
    {"LAYER", 349, "A5", kDHL_1012},
    {"LAYER", 369, "A5", kDHL_1012},
    {"LAYER", 370, "50", kDHL_1015, kLineWeight},
    {"LAYER", 371, "3", kDHL_1012},
    {"LAYER", 389, "3", kDHL_1012},
    {"LAYER", 390, "A5", kDHL_1015, kPlotStyle},
    {"LAYER", 391, "A5", kDHL_1012},
    {"LAYER", 419, "FF", kDHL_1012},
    {"LAYER", 420, "255", kDHL_1018, kTrueColor},
    {"LAYER", 430, "FF", kDHL_1018, kTrueColor},
    {"LAYER", 431, "FF", kDHL_1012},
    {"LTYPE", 9, "GAS", kDHL_1012},
    {"LTYPE", 10, "1.25", kDHL_1009},
    {"LTYPE", 43, "1.25", kDHL_1009},
    {"LTYPE", 44, "1.25", kDHL_1012},
    {"LTYPE", 46, "1.25", kDHL_1012},
    {"LTYPE", 47, "1.25", kDHL_1009},
    {"LTYPE", 49, "1.25", kDHL_1009},
    {"LTYPE", 50, "1.25", kDHL_1012},
    {"LTYPE", 51, "1.25", kDHL_1009},
    {"LTYPE", 73, "3", kDHL_1009},
    {"LTYPE", 74, "2", kDHL_1012},
    {"LTYPE", 75, "132", kDHL_1012},
    {"LTYPE", 76, "3", kDHL_1009},
    {"LTYPE", 340, "A5", kDHL_1012},
    {"LWPOLYLINE", 90, "3", kDHL_1014},
    {"LWPOLYLINE", 91, "3", kDHL_1024},
    {"LWPOLYLINE", 92, "3", kDHL_1014},
    {"MTEXT", 43, "1.25", kDHL_1012},
    {"MTEXT", 44, "1.25", kDHL_1015},
    {"MTEXT", 45, "1.25", kDHL_1018},
    {"MTEXT", 46, "1.25", kDHL_1021},
    {"MTEXT", 47, "1.25", kDHL_1012},
    {"MTEXT", 63, "1", kDHL_1018},
    {"MTEXT", 64, "3", kDHL_1012},
    {"MTEXT", 72, "3", kDHL_1012},
    {"MTEXT", 73, "2", kDHL_1015},
    {"MTEXT", 74, "3", kDHL_1012},
    {"MTEXT", 89, "FF", kDHL_1012},
    {"MTEXT", 90, "3", kDHL_1018},
    {"MTEXT", 91, "3", kDHL_1012},
    {"MTEXT", 421, "255", kDHL_1018},
    {"MTEXT", 441, "3", kDHL_1018},
    {"MTEXT", 442, "3", kDHL_1012},
    {"UCS", 12, "1.25", kDHL_1009},
    {"UCS", 13, "1.25", kDHL_1015},
    {"UCS", 14, "1.25", kDHL_1009},
    {"UCS", 22, "1.25", kDHL_1009},
    {"UCS", 23, "1.25", kDHL_1015},
    {"UCS", 24, "1.25", kDHL_1009},
    {"UCS", 32, "1.25", kDHL_1009},
    {"UCS", 33, "1.25", kDHL_1015},
    {"UCS", 34, "1.25", kDHL_1009},
    {"UCS", 70, "3", kDHL_1009},
    {"UCS", 71, "1", kDHL_1015},
    {"UCS", 72, "3", kDHL_1009},
    {"UCS", 78, "3", kDHL_1009},
    {"UCS", 79, "1", kDHL_1015},
    {"UCS", 80, "FF", kDHL_1012},
    {"UCS", 145, "1.25", kDHL_1009},
    {"UCS", 146, "1.25", kDHL_1015},
    {"UCS", 147, "1.25", kDHL_1009},
    {"UCS", 345, "A5", kDHL_1012},
    {"UCS", 346, "A5", kDHL_1015},
    {"VIEW", 71, "1", kDHL_1009},
    {"VIEW", 72, "1", kDHL_1015},
    {"VIEW", 73, "1", kDHL_1021},
    {"VIEW", 74, "3", kDHL_1009},
    {"VIEW", 78, "3", kDHL_1009},
    {"VIEW", 79, "3", kDHL_1015},
    {"VIEW", 80, "FF", kDHL_1012},
    {"VIEW", 109, "FF", kDHL_1012},
    {"VIEW", 110, "1.25", kDHL_1015},
    {"VIEW", 132, "1.25", kDHL_1015},
    {"VIEW", 133, "1.25", kDHL_1012},
    {"VIEW", 145, "1.25", kDHL_1009},
    {"VIEW", 146, "1.25", kDHL_1015},
    {"VIEW", 147, "1.25", kDHL_1009},
    {"VIEW", 280, "3", kDHL_1012},
    {"VIEW", 281, "1", kDHL_1015},
    {"VIEW", 282, "3", kDHL_1012},
    {"VIEW", 331, "A5", kDHL_1012},
    {"VIEW", 332, "A5", kDHL_1021},
    {"VIEW", 334, "A5", kDHL_1021},
    {"VIEW", 335, "A5", kDHL_1012},
    {"VIEW", 344, "A5", kDHL_1012},
    {"VIEW", 345, "A5", kDHL_1015},
    {"VIEW", 346, "A5", kDHL_1015},
    {"VIEW", 348, "A5", kDHL_1021},
    {"VIEW", 349, "A5", kDHL_1012},
    {"VIEW", 361, "A5", kDHL_1021},
    {"VIEW", 362, "A5", kDHL_1012},
    {"VIEWPORT", 11, "1.25", kDHL_1009},
    {"VIEWPORT", 12, "1.25", kDHL_1015},
    {"VIEWPORT", 17, "1.25", kDHL_1015},
    {"VIEWPORT", 18, "1.25", kDHL_1009},
    {"VIEWPORT", 21, "1.25", kDHL_1009},
    {"VIEWPORT", 22, "1.25", kDHL_1015},
    {"VIEWPORT", 27, "1.25", kDHL_1015},
    {"VIEWPORT", 28, "1.25", kDHL_1009},
    {"VIEWPORT", 35, "1.25", kDHL_1009},
    {"VIEWPORT", 36, "1.25", kDHL_1015},
    {"VIEWPORT", 37, "1.25", kDHL_1015},
    {"VIEWPORT", 38, "1.25", kDHL_1009},
    {"VIEWPORT", 41, "1.25", kDHL_1009},
    {"VIEWPORT", 42, "1.25", kDHL_1015},
    {"VIEWPORT", 45, "1.25", kDHL_1015},
    {"VIEWPORT", 51, "1.25", kDHL_1015},
    {"VIEWPORT", 52, "1.25", kDHL_1009},
    {"VIEWPORT", 60, "3", kDHL_1009},
    {"VIEWPORT", 61, "3", kDHL_1021},
    {"VIEWPORT", 65, "3", kDHL_1021},
    {"VIEWPORT", 66, "3", kDHL_1009},
    {"VIEWPORT", 69, "2", kDHL_1009},
    {"VIEWPORT", 70, "3", kDHL_1009},
    {"VIEWPORT", 71, "3", kDHL_1015},
    {"VIEWPORT", 72, "100", kDHL_1015},
    {"VIEWPORT", 79, "3", kDHL_1015},
    {"VIEWPORT", 80, "FF", kDHL_1012},
    {"VIEWPORT", 89, "FF", kDHL_1012},
    {"VIEWPORT", 90, "100", kDHL_1015},
    {"VIEWPORT", 91, "3", kDHL_1015},
    {"VIEWPORT", 92, "3", kDHL_1012},
    {"VIEWPORT", 109, "FF", kDHL_1012},
    {"VIEWPORT", 110, "1.25", kDHL_1015},
    {"VIEWPORT", 132, "1.25", kDHL_1015},
    {"VIEWPORT", 133, "1.25", kDHL_1012},
    {"VIEWPORT", 140, "1.25", kDHL_1009},
    {"VIEWPORT", 141, "1.25", kDHL_1021},
    {"VIEWPORT", 142, "1.25", kDHL_1021},
    {"VIEWPORT", 143, "1.25", kDHL_1009},
    {"VIEWPORT", 145, "1.25", kDHL_1009},
    {"VIEWPORT", 146, "1.25", kDHL_1015},
    {"VIEWPORT", 147, "1.25", kDHL_1009},
    {"VIEWPORT", 169, "3", kDHL_1012},
    {"VIEWPORT", 170, "1", kDHL_1018},
    {"VIEWPORT", 171, "3", kDHL_1009},
    {"VIEWPORT", 280, "3", kDHL_1012},
    {"VIEWPORT", 281, "3", kDHL_1015},
    {"VIEWPORT", 282, "3", kDHL_1021},
    {"VIEWPORT", 292, "3", kDHL_1021},
    {"VIEWPORT", 293, "3", kDHL_1012},
    {"VIEWPORT", 331, "A5", kDHL_1015},
    {"VIEWPORT", 332, "A5", kDHL_1021},
    {"VIEWPORT", 333, "A5", kDHL_1021},
    {"VIEWPORT", 335, "A5", kDHL_1021},
    {"VIEWPORT", 336, "A5", kDHL_1012},
    {"VIEWPORT", 339, "A5", kDHL_1012},
    {"VIEWPORT", 340, "A5", kDHL_1015},
    {"VIEWPORT", 341, "A5", kDHL_1015},
    {"VIEWPORT", 342, "A5", kDHL_1012},
    {"VIEWPORT", 343, "A5", kDHL_1021},
    {"VIEWPORT", 344, "A5", kDHL_1021},
    {"VIEWPORT", 345, "A5", kDHL_1015},
    {"VIEWPORT", 346, "A5", kDHL_1015},
    {"VIEWPORT", 348, "A5", kDHL_1021},
    {"VIEWPORT", 361, "A5", kDHL_1021},
    {"VIEWPORT", 362, "A5", kDHL_1012},
    {"VIEWPORT", 421, "3", kDHL_1021},
    {"VIEWPORT", 431, "FF", kDHL_1021},
    {"VIEWPORT", 432, "FF", kDHL_1012},
    {"VPORT", 45, "1.25", kDHL_1009},
    {"VPORT", 59, "1.25", kDHL_1009},
    {"VPORT", 60, "3", kDHL_1021},
    {"VPORT", 61, "5", kDHL_1021},
    {"VPORT", 63, "3", kDHL_1021},
    {"VPORT", 64, "3", kDHL_1009},
    {"VPORT", 65, "1", kDHL_1015},
    {"VPORT", 66, "3", kDHL_1009},
    {"VPORT", 78, "3", kDHL_1009},
    {"VPORT", 79, "3", kDHL_1015},
    {"VPORT", 80, "FF", kDHL_1012},
    {"VPORT", 109, "FF", kDHL_1012},
    {"VPORT", 110, "1.25", kDHL_1015},
    {"VPORT", 132, "1.25", kDHL_1015},
    {"VPORT", 133, "1.25", kDHL_1012},
    {"VPORT", 140, "1.25", kDHL_1009},
    {"VPORT", 141, "1.25", kDHL_1021},
    {"VPORT", 142, "1.25", kDHL_1021},
    {"VPORT", 143, "1.25", kDHL_1009},
    {"VPORT", 145, "1.25", kDHL_1009},
    {"VPORT", 146, "1.25", kDHL_1015},
    {"VPORT", 147, "1.25", kDHL_1009},
    {"VPORT", 169, "3", kDHL_1012},
    {"VPORT", 170, "3", kDHL_1021},
    {"VPORT", 171, "3", kDHL_1009},
    {"VPORT", 280, "3", kDHL_1012},
    {"VPORT", 281, "1", kDHL_1015},
    {"VPORT", 282, "1", kDHL_1021},
    {"VPORT", 292, "3", kDHL_1021},
    {"VPORT", 293, "3", kDHL_1012},
    {"VPORT", 331, "A5", kDHL_1012},
    {"VPORT", 332, "A5", kDHL_1021},
    {"VPORT", 333, "A5", kDHL_1021},
    {"VPORT", 334, "A5", kDHL_1012},
    {"VPORT", 344, "A5", kDHL_1012},
    {"VPORT", 345, "A5", kDHL_1015},
    {"VPORT", 346, "A5", kDHL_1015},
    {"VPORT", 348, "A5", kDHL_1021},
    {"VPORT", 349, "A5", kDHL_1012},
    {"VPORT", 361, "A5", kDHL_1021},
    {"VPORT", 362, "A5", kDHL_1012},
    {"VPORT", 421, "255", kDHL_1021},
    {"VPORT", 431, "FF", kDHL_1021},
    {"VPORT", 432, "FF", kDHL_1012},
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

/// The oldest version, the one before `since`, that one and the newest.
std::vector<DwgVersion> versionsAround(DwgVersion since) {
    std::vector<DwgVersion> versions = {kDHL_1009};
    const auto* first = std::find(std::begin(kAllVersions), std::end(kAllVersions), since);
    if (since > kDHL_1012) versions.push_back(first[-1]);
    if (since > kDHL_1009) versions.push_back(since);
    if (since < kDHL_1032) versions.push_back(kDHL_1032);
    return versions;
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
        for (const DwgVersion version : versionsAround(row.since)) {
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
    } kinds[] = {
        {"TRACE", kDHL_1009},           {"3DFACE", kDHL_1009},          {"SHAPE", kDHL_1009},
        {"3DSOLID", kDHL_1012},         {"LEADER", kDHL_1012},          {"XLINE", kDHL_1012},
        {"SOMETHING", kDHL_1012},       {"HATCH", kDHL_1014},           {"IMAGE", kDHL_1014},
        {"OLE2FRAME", kDHL_1014},       {"WIPEOUT", kDHL_1015},         {"ACAD_TABLE", kDHL_1018},
        {"ARC_DIMENSION", kDHL_1018},   {"MPOLYGON", kDHL_1018},        {"LARGE_RADIAL_DIMENSION", kDHL_1018},
        {"MULTILEADER", kDHL_1021},     {"HELIX", kDHL_1021},           {"LIGHT", kDHL_1021},
        {"DWFUNDERLAY", kDHL_1021},     {"CAMERA", kDHL_1021},          {"DGNUNDERLAY", kDHL_1021},
        {"EXTRUDEDSURFACE", kDHL_1021}, {"LOFTEDSURFACE", kDHL_1021},   {"MLEADER", kDHL_1021},
        {"PLANESURFACE", kDHL_1021},    {"REVOLVEDSURFACE", kDHL_1021}, {"SECTIONOBJECT", kDHL_1021},
        {"SURFACE", kDHL_1021},         {"SWEPTSURFACE", kDHL_1021},    {"MESH", kDHL_1024},
        {"PDFUNDERLAY", kDHL_1024},     {"NURBSURFACE", kDHL_1024},     {"GEOPOSITIONMARKER", kDHL_1027}};
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
    } kinds[] = {{"XRECORD", kDHL_1012},
                 {"MLINESTYLE", kDHL_1012},
                 {"IMAGEDEF", kDHL_1014},
                 {"SORTENTSTABLE", kDHL_1014},
                 {"IDBUFFER", kDHL_1014},
                 {"IMAGEDEF_REACTOR", kDHL_1014},
                 {"LAYER_FILTER", kDHL_1014},
                 {"LAYER_INDEX", kDHL_1014},
                 {"RASTERVARIABLES", kDHL_1014},
                 {"SPATIAL_FILTER", kDHL_1014},
                 {"SPATIAL_INDEX", kDHL_1014},
                 {"PLOTSETTINGS", kDHL_1015},
                 {"DICTIONARYVAR", kDHL_1015},
                 {"ACDBDICTIONARYWDFLT", kDHL_1015},
                 {"ACDBPLACEHOLDER", kDHL_1015},
                 {"VBA_PROJECT", kDHL_1015},
                 {"WIPEOUTVARIABLES", kDHL_1015},
                 {"TABLESTYLE", kDHL_1018},
                 {"FIELD", kDHL_1018},
                 {"DBCOLOR", kDHL_1018},
                 {"FIELDLIST", kDHL_1018},
                 {"MATERIAL", kDHL_1021},
                 {"VISUALSTYLE", kDHL_1021},
                 {"MLEADERSTYLE", kDHL_1021},
                 {"CELLSTYLEMAP", kDHL_1021},
                 {"DATALINK", kDHL_1021},
                 {"DGNDEFINITION", kDHL_1021},
                 {"DWFDEFINITION", kDHL_1021},
                 {"SCALE", kDHL_1021},
                 {"SUN", kDHL_1021},
                 {"TABLECONTENT", kDHL_1021},
                 {"TABLEGEOMETRY", kDHL_1021},
                 {"GEODATA", kDHL_1024},
                 {"PDFDEFINITION", kDHL_1024},
                 {"DETAILVIEWSTYLE", kDHL_1027},
                 {"SECTIONVIEWSTYLE", kDHL_1027}};
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
