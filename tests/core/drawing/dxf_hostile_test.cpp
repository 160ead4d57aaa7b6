// Files made to hurt: depth, length, rings, numbers and names at their limits. Each is refused with a reason
// or read in a bounded way, and what is written of it is read again.
#include <gtest/gtest.h>

#include "dxf_text.h"

namespace {

std::string repeated(const std::string& part, int times) {
    std::string whole;
    whole.reserve(part.size() * static_cast<std::size_t>(times));
    for (int i = 0; i < times; ++i) whole += part;
    return whole;
}

/// Reads, asks for everything and writes in three versions; refusals have to say why.
void survive(const std::string& text, const char* what) {
    SCOPED_TRACE(what);
    OdDbDatabasePtr drawing(new OdDbDatabase);
    OdDbDxfError error;
    if (drawing->readDxfBytes(text, &error) != kOdOk) {
        EXPECT_NE(error.code, OdDxfErrorCode::kNone);
        EXPECT_FALSE(error.text.isEmpty());
        return;
    }
    for (const OdDb::DwgVersion version : {OdDb::kDHL_1009, OdDb::kDHL_1014, OdDb::kDHL_1032}) {
        drawing->lossesIn(version);
        const std::string written = drawing->writeDxfBytes(version);
        const OdDbDatabasePtr again = readDrawing(written);
        ASSERT_TRUE(again) << version;
        EXPECT_EQ(again->writeDxfBytes(version), written) << version;
        EXPECT_TRUE(readDrawing(drawing->writeDxfBytes(OdDxfForm{version, true}))) << version;
    }
}

}  // namespace

TEST(DxfHostile, LongAndDeepFilesAreRead) {
    const std::string point = "0|POINT\n8|0\n10|1\n20|2\n";
    survive(withEntities("0|TEXT\n8|0\n1|" + std::string(200000, 'x') + "\n"), "a text of many letters");
    survive(withEntities("0|POINT\n8|" + std::string(100000, 'L') + "\n"),
            "a name of a hundred thousand letters");
    survive(withEntities("0|MTEXT\n8|0\n10|0\n20|0\n40|1\n41|0.001\n" +
                         repeated("3|" + std::string(250, 'w') + "\n", 400)),
            "a paragraph without a blank");
    survive(withEntities("0|MTEXT\n8|0\n10|0\n20|0\n40|1\n41|1e-300\n1|" + repeated("a ", 5000) + "\n"),
            "many short words");
    survive(withEntities("0|MTEXT\n8|0\n10|0\n20|0\n40|1\n1|" + repeated("{\\\\C1;", 5000) + "\n"),
            "open braces");
    survive(withEntities("0|POINT\n8|0\n" + repeated("102|{A\n", 5000)),
            "data of applications within each other");
    survive(withEntities("0|POINT\n8|0\n1001|ACAD\n" + repeated("1002|{\n", 5000)),
            "lists within each other");
    survive(withEntities("0|POINT\n8|0\n" + repeated("999|note\n", 10000)), "comments without end");
    survive(withEntities(repeated("0|POLYLINE\n8|0\n66|1\n", 5000)), "polylines that never end");
    survive(withEntities(repeated("0|SEQEND\n8|0\n", 5000) + point), "ends of lists that never began");
    survive(
        dxf(header("AC1015") + repeated("0|SECTION\n2|ENTITIES\n0|POINT\n8|0\n0|ENDSEC\n", 1000) + "0|EOF"),
        "sections again and again");
    survive(dxf(header("AC1015") + "0|SECTION\n2|BLOCKS\n" + repeated("0|BLOCK\n2|SAME\n0|ENDBLK\n", 1000) +
                "0|ENDSEC\n0|EOF"),
            "blocks of one name");
}

TEST(DxfHostile, NumbersAndHandlesAtTheirLimitsAreRead) {
    for (const char* value : {"1.7976931348623157e308", "-1.7976931348623157e308", "4.9e-324", "1e309",
                              "-1e309", "00000000000000000001", "0x7fffffff", "٣", "1e", "--1", "+-1", ".",
                              "1e+", "inf", "-nan(ind)", "1.#QNAN"})
        survive(withEntities(std::string("0|LWPOLYLINE\n8|0\n43|") + value + "\n90|1\n70|" + value + "\n10|" +
                             value + "\n20|0\n42|" + value + "\n0|MTEXT\n8|0\n10|" + value + "\n20|1\n40|" +
                             value + "\n41|" + value + "\n71|" + value + "\n44|" + value + "\n50|" + value +
                             "\n1|a b c\n0|ELLIPSE\n8|0\n10|" + value + "\n11|" + value + "\n40|" + value +
                             "\n41|0\n42|" + value + "\n"),
                value);
    for (const char* handle : {"0", "FFFFFFFFFFFFFFFF", "1000000000000000", "7FFFFFFFFFFFFFF", "-1", "G", "",
                               "00000000000000000A"})
        survive(dxf(std::string("0|SECTION\n2|HEADER\n9|$ACADVER\n1|AC1015\n9|$HANDSEED\n5|") + handle +
                    "\n0|ENDSEC\n0|SECTION\n2|ENTITIES\n0|POINT\n5|" + handle + "\n330|" + handle +
                    "\n8|0\n0|POINT\n5|" + handle + "\n8|0\n0|ENDSEC\n0|EOF"),
                handle);
}

TEST(DxfHostile, ThingsThatOwnEachOtherAreRead) {
    survive(dxf(header("AC1032") + "0|SECTION\n2|OBJECTS\n0|DICTIONARY\n5|C\n330|D\n100|AcDbDictionary\n3|"
                                   "A\n350|D\n3|SELF\n350|C\n0|DICTIONARY\n5|D\n330|C\n"
                                   "100|AcDbDictionary\n3|B\n350|C\n3|ACAD_LAYOUT\n350|D\n0|LAYOUT\n5|E\n330|"
                                   "E\n100|AcDbPlotSettings\n100|AcDbLayout\n1|\n330|E\n0|ENDSEC\n0|EOF"),
            "a ring of dictionaries");
    survive(
        dxf(header("AC1015") + "0|SECTION\n2|BLOCKS\n0|BLOCK\n2|A\n0|INSERT\n8|0\n2|A\n0|INSERT\n8|0\n2|B\n0|"
                               "ENDBLK\n0|BLOCK\n2|B\n0|INSERT\n8|0\n2|A\n0|ENDBLK\n0|ENDSEC\n0|EOF"),
        "blocks within themselves");
    survive(dxf(header("AC1009") + "0|SECTION\n2|TABLES\n0|TABLE\n2|APPID\n70|1\n0|APPID\n2|KTUI_NAMES\n1001|"
                                   "KTUI_NAMES\n1000|KTUI_NAMES\n1000|KTUI NAMES\n0|ENDTAB\n"
                                   "0|TABLE\n2|LAYER\n70|3\n0|LAYER\n2|0\n1001|KTUI_NAMES\n1000|0\n1000|"
                                   "zero\n0|LAYER\n2|A\n1001|KTUI_NAMES\n1000|A\n1000|B\n"
                                   "0|LAYER\n2|B\n1001|KTUI_NAMES\n1000|B\n1000|A\n1001|KTUI_NAMES\n1000|"
                                   "B\n1000|C\n0|ENDTAB\n0|ENDSEC\n0|EOF"),
            "whole names that exchange each other");
}

TEST(DxfHostile, ManyNamesThatR12CannotTellApartAreRead) {
    std::string names;
    for (int i = 0; i < 4000; ++i)
        names += "0|POINT\n8|a layer with a long name and the number " + std::to_string(i) +
                 "\n10|1\n20|2\n999|note\n";
    survive(withEntities(names), "names with one beginning");
}
