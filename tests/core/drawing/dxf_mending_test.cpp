// Files with something wrong in them: what can be kept is kept, each mend is told, and what is written goes
// back as it was, or whole in another version.
#include <gtest/gtest.h>

#include <algorithm>

#include "dxf_text.h"

namespace {

/// A drawing read with mends.
struct Mended {
    OdDbDatabasePtr drawing{new OdDbDatabase};
    OdDxfReading reading;
    OdDbDxfError error;

    explicit Mended(const std::string& text) {
        if (drawing->readDxfBytes(text, &error, &reading) != kOdOk) drawing = OdDbDatabasePtr();
    }
    std::string kinds() const {
        std::string names;
        for (const OdDbEntity* entity : modelEntities(*drawing))
            names += std::string(entity->dxfName()) + " ";
        return names;
    }
    /// The lines of the mends and their first words, to be compared at one glance.
    std::string mends() const {
        std::string text;
        for (const OdDxfMend& mend : reading.mends) {
            const std::string words = odUtf8(mend.text.view());
            text += std::to_string(mend.line) + " " + words.substr(0, words.find_first_of(";.")) + "\n";
        }
        return text;
    }
};

/// What is written of a mended drawing in another version than its own is read again without a mend.
void expectWhole(const Mended& mended) {
    for (const OdDb::DwgVersion version : {OdDb::kDHL_1009, OdDb::kDHL_1015, OdDb::kDHL_1032}) {
        if (version == mended.drawing->originalFileVersion()) continue;
        OdDxfReading strict;
        strict.strict = true;
        OdDbDatabasePtr again(new OdDbDatabase);
        OdDbDxfError error;
        EXPECT_EQ(again->readDxfBytes(mended.drawing->writeDxfBytes(version), &error, &strict), kOdOk)
            << odUtf8(error.text.view()) << " line " << error.line;
    }
}

const char kSection[] = "0|SECTION\n2|ENTITIES\n";
const char kLine[] = "0|LINE\n8|0\n10|1\n20|2\n11|3\n21|4\n";

}  // namespace

TEST(DxfMending, ValuesThatAreNoneBecomeZero) {
    const char* const kBad[] = {"abc", "", "1.2.3", "nan", "inf", "1e999", "0x10", "1,5"};
    for (const char* value : kBad) {
        const Mended mended(withEntities(std::string("0|CIRCLE\n8|0\n10|") + value + "\n20|7\n40|2\n"));
        ASSERT_TRUE(mended.drawing) << value;
        EXPECT_EQ(mended.mends(), "20 A number was expected\n") << value;
        EXPECT_EQ(mended.reading.mendCount, 1u);
        const auto* circle = firstEntity<OdDbCircle>(*mended.drawing);
        ASSERT_TRUE(circle);
        EXPECT_EQ(circle->center().x, 0);
        EXPECT_EQ(circle->center().y, 7);
        EXPECT_EQ(circle->radius(), 2);
        expectWhole(mended);
    }
}

TEST(DxfMending, RealsBecomeTheNearestWholeNumber) {
    const struct {
        const char* text;
        int color;
        const char* mend;
    } cases[] = {{"1.5", 2, "22 A whole number was expected\n"},
                 {"2.4", 2, "22 A whole number was expected\n"},
                 {"3.0", 3, ""},
                 {"x", 0, "22 A whole number was expected\n"},
                 {"1e30", 0, "22 A whole number was expected\n"},
                 {"+4", 4, ""}};
    for (const auto& one : cases) {
        const Mended mended(withEntities(std::string("0|LINE\n8|0\n100|AcDbEntity\n62|") + one.text + "\n"));
        ASSERT_TRUE(mended.drawing);
        EXPECT_EQ(mended.mends(), one.mend) << one.text;
        EXPECT_EQ(firstEntity<OdDbLine>(*mended.drawing)->color().colorIndex(), one.color) << one.text;
    }
    const Mended said(withEntities("0|LINE\n8|0\n62|1.5\n"));
    EXPECT_NE(odUtf8(said.reading.mends[0].text.view()).find("the nearest"), std::string::npos);
}

TEST(DxfMending, HandlesThatAreNoneBecomeZero) {
    const Mended mended(withEntities("0|LINE\n8|0\n100|AcDbEntity\n390|XYZ\n100|AcDbLine\n10|5\n20|0\n"));
    ASSERT_TRUE(mended.drawing);
    EXPECT_EQ(mended.mends(), "22 A handle was expected\n");
    EXPECT_EQ(firstEntity<OdDbLine>(*mended.drawing)->startPoint().x, 5);
    expectWhole(mended);
}

TEST(DxfMending, NamesInDimensionStylesStandForTheirRecords) {
    const std::string text =
        dxf("0|SECTION\n2|TABLES\n0|TABLE\n2|DIMSTYLE\n0|DIMSTYLE\n105|A0\n100|AcDbSymbolTableRecord\n"
            "100|AcDbDimStyleTableRecord\n2|ours\n70|0\n340|Notes\n341|_Dot\n342|\n343|nobody\n345|"
            "DASHED\n40|2.0\n0|ENDTAB\n"
            "0|TABLE\n2|STYLE\n0|STYLE\n5|A1\n100|AcDbSymbolTableRecord\n100|AcDbTextStyleTableRecord\n2|"
            "NOTES\n70|0\n0|ENDTAB\n"
            "0|TABLE\n2|LTYPE\n0|LTYPE\n5|A2\n100|AcDbSymbolTableRecord\n100|AcDbLinetypeTableRecord\n2|"
            "Dashed\n70|0\n0|ENDTAB\n"
            "0|ENDSEC\n0|SECTION\n2|BLOCKS\n0|BLOCK\n8|0\n2|_DOT\n70|0\n0|ENDBLK\n0|ENDSEC\n0|EOF");
    const Mended mended(text);
    ASSERT_TRUE(mended.drawing);
    EXPECT_EQ(mended.reading.mendCount, 5u);
    const OdDbObject* style = mended.drawing->objectByHandle(0xA0);
    ASSERT_TRUE(style);
    const OdGroupList& groups = style->groups();
    EXPECT_EQ(groups.handle(340), 0xA1u);
    EXPECT_EQ(groups.handle(345), 0xA2u);
    OdDbBlockTablePtr blocks;
    mended.drawing->getBlockTable(blocks);
    EXPECT_EQ(groups.handle(341), blocks->getAt(L"_Dot").handle());
    EXPECT_NE(groups.handle(341), 0u);
    EXPECT_EQ(groups.handle(342), 0u);
    EXPECT_EQ(groups.handle(343), 0u);
    EXPECT_EQ(groups.real(40), 2.0);
    expectWhole(mended);
}

TEST(DxfMending, LinesThatAreNoGroupCodeArePassedOver) {
    // A value without its code, then a code without its value.
    const Mended mended(
        "0\nSECTION\n2\nENTITIES\nstray\n0\nLINE\n8\n0\n10\n20\n2\n11\n3.5\n0\nENDSEC\n0\nEOF\n");
    ASSERT_TRUE(mended.drawing);
    EXPECT_EQ(mended.mends().substr(0, 39), "5 A line that is no group code was pass");
    EXPECT_EQ(mended.kinds(), "LINE ");
    const Mended codes(withEntities(std::string("5000|a value\n-6|another\n") + kLine + "2000|x\n"));
    ASSERT_TRUE(codes.drawing);
    EXPECT_EQ(codes.kinds(), "LINE ");
    EXPECT_EQ(codes.mends(),
              "15 A group code that doesn't exist was passed over with its value\n"
              "17 A group code that doesn't exist was passed over with its value\n"
              "31 A group code that doesn't exist was passed over with its value\n");
    expectWhole(codes);
}

TEST(DxfMending, MissingEndsAreSupplied) {
    const std::string line = kLine;
    const struct {
        std::string text;
        const char* mends;
    } cases[] = {
        {kSection + line + "0|ENDSEC", "18 The file ends before its end mark\n"},
        {kSection + line + "0|EOF", "18 The section doesn't end where it must\n"},
        {kSection + line + "0|SECTION\n2|OBJECTS\n0|ENDSEC\n0|EOF",
         "18 The section doesn't end where it must\n"},
        {kSection + line, "16 The file ends before its end mark\n16 The section doesn't end where it must\n"},
        {"0|ENDSEC\n" + (kSection + line) + "0|ENDSEC\n0|EOF", ""},
        {kSection + line + "0|ENDSEC\n0|ENDSEC\n0|EOF", "20 A section was expected\n"},
        {kSection + line + "0|ENDSEC\n0|CIRCLE\n8|0\n0|EOF", "20 A section was expected\n"},
        {"0|SECTION\n2|TABLES\n0|TABLE\n2|LAYER\n0|LAYER\n2|one\n70|0\n0|TABLE\n2|LTYPE\n0|ENDTAB\n0|"
         "ENDSEC\n" +
             (kSection + line) + "0|ENDSEC\n0|EOF",
         "16 The table doesn't end where it must\n"},
        {"0|SECTION\n2|TABLES\n0|TABLE\n2|ODD\n0|ODD\n2|one\n0|TABLE\n2|LAYER\n0|LAYER\n2|one\n0|ENDTAB\n0|"
         "ENDSEC\n" +
             (kSection + line) + "0|ENDSEC\n0|EOF",
         "14 The table doesn't end where it must\n"},
        {"0|SECTION\n2|TABLES\n0|TABLE\n2|LAYER\n0|LAYER\n2|one\n0|CIRCLE\n40|1\n0|ENDTAB\n0|ENDSEC\n" +
             (kSection + line) + "0|ENDSEC\n0|EOF",
         "14 The table doesn't end where it must\n14 A table was expected\n"},
        {"0|SECTION\n2|BLOCKS\n0|BLOCK\n8|0\n2|one\n0|CIRCLE\n8|0\n40|1\n0|BLOCK\n2|two\n0|ENDBLK\n0|"
         "ENDSEC\n" +
             (kSection + line) + "0|ENDSEC\n0|EOF",
         "18 The block doesn't end where it must\n"},
        {"0|SECTION\n2|BLOCKS\n0|ENDBLK\n0|BLOCK\n2|one\n0|ENDBLK\n0|ENDSEC\n" + (kSection + line) +
             "0|ENDSEC\n0|EOF",
         "6 A block was expected\n"},
        {"0|SECTION\n0|ENDSEC\n" + (kSection + line) + "0|ENDSEC\n0|EOF", "4 A section has no name\n"},
        {"0|SECTION\n9|odd\n0|LINE\n0|ENDSEC\n" + (kSection + line) + "0|ENDSEC\n0|EOF",
         "4 A section has no name\n"}};
    for (const auto& one : cases) {
        const Mended mended(dxf(one.text));
        if (one.text.starts_with("0|ENDSEC")) {
            EXPECT_EQ(mended.error.code, OdDxfErrorCode::kNotDxf);
            continue;
        }
        ASSERT_TRUE(mended.drawing) << one.text;
        EXPECT_EQ(mended.mends(), one.mends) << one.text;
        EXPECT_EQ(mended.reading.mendCount, mended.reading.mends.size());
        EXPECT_EQ(mended.kinds(), "LINE ") << one.text;
        EXPECT_EQ(firstEntity<OdDbLine>(*mended.drawing)->endPoint().y, 4);
        expectWhole(mended);
    }
}

TEST(DxfMending, TablesAndBlocksGoOnBehindAMissingEnd) {
    const Mended mended(
        dxf("0|SECTION\n2|TABLES\n0|TABLE\n2|LAYER\n0|LAYER\n2|one\n70|0\n0|TABLE\n2|STYLE\n0|STYLE\n2|"
            "two\n70|0\n0|ENDTAB\n"
            "0|ENDSEC\n0|SECTION\n2|BLOCKS\n0|BLOCK\n8|0\n2|three\n0|LINE\n8|0\n0|BLOCK\n8|0\n2|four\n0|"
            "ENDBLK\n0|EOF"));
    ASSERT_TRUE(mended.drawing);
    OdDbLayerTablePtr layers;
    OdDbTextStyleTablePtr styles;
    OdDbBlockTablePtr blocks;
    mended.drawing->getLayerTable(layers);
    mended.drawing->getTextStyleTable(styles);
    mended.drawing->getBlockTable(blocks);
    EXPECT_TRUE(layers->has(L"one"));
    EXPECT_TRUE(styles->has(L"two"));
    ASSERT_TRUE(blocks->has(L"three"));
    EXPECT_TRUE(blocks->has(L"four"));
    EXPECT_EQ(blocks->getAt(L"three").open<OdDbBlockTableRecord>()->entities().size(), 1u);
}

TEST(DxfMending, OpenApplicationDataEndsWhereItMust) {
    for (const char* text : {"0|LINE\n102|{ACAD_REACTORS\n330|BB\n",
                             "0|LINE\n102|{ACAD_REACTORS\n330|BB\n1001|ACAD\n1000|x\n"}) {
        const Mended mended(withEntities(text));
        ASSERT_TRUE(mended.drawing) << text;
        EXPECT_EQ(mended.reading.mendCount, 1u);
        const std::string written = mended.drawing->writeDxfBytes();
        const std::size_t open = written.find("102\r\n{ACAD_REACTORS\r\n330\r\nBB\r\n102\r\n}\r\n");
        EXPECT_NE(open, std::string::npos) << written;
        expectWhole(mended);
    }
}

TEST(DxfMending, ACutFileKeepsWhatStandsBeforeTheCut) {
    const std::string whole = withEntities(std::string(kLine) + "0|CIRCLE\n8|0\n10|1\n20|2\n40|3\n");
    const std::size_t second = whole.find("CIRCLE");
    int kept = 0;
    for (std::size_t size = 1; size < whole.rfind("EOF"); ++size) {
        const Mended mended(whole.substr(0, size));
        if (!mended.drawing) {
            EXPECT_FALSE(mended.error.text.isEmpty());
            EXPECT_LT(size, whole.find("LINE")) << "nothing was kept of " << size;
            continue;
        }
        ++kept;
        EXPECT_GT(mended.reading.mendCount, 0u) << size;
        EXPECT_TRUE(size <= second || mended.kinds().starts_with("LINE ")) << size;
        expectWhole(mended);
    }
    EXPECT_GT(kept, 50);
}

TEST(DxfMending, NothingIsReadOfAFileWithNothingToKeep) {
    for (const char* text :
         {"0|SECTION", "0|SECTION\n2|HEADER", "0|SECTION\n2|HEADER\n9|$ACADVER\n1|AC1015"}) {
        const Mended mended(dxf(text));
        EXPECT_FALSE(mended.drawing) << text;
        EXPECT_EQ(mended.error.code, OdDxfErrorCode::kTruncated);
    }
    EXPECT_EQ(Mended("hello\nworld\n").error.code, OdDxfErrorCode::kNotDxf);
    EXPECT_EQ(Mended("0\nLINE\n8\n0\n0\nEOF\n").error.code, OdDxfErrorCode::kNotDxf);
}

TEST(DxfMending, TheListOfMendsEndsButTheyAreCounted) {
    std::string points;
    for (int i = 0; i < 600; ++i) points += "0|POINT\n8|0\n10|x\n20|y\n";
    const Mended mended(withEntities(points));
    ASSERT_TRUE(mended.drawing);
    EXPECT_EQ(mended.reading.mendCount, 1200u);
    EXPECT_EQ(mended.reading.mends.size(), 1000u);
    EXPECT_EQ(modelEntities(*mended.drawing).size(), 600u);
}

TEST(DxfMending, AReadingStartsAnew) {
    OdDxfReading reading;
    OdDbDatabasePtr drawing(new OdDbDatabase);
    ASSERT_EQ(drawing->readDxfBytes(withEntities("0|POINT\n8|0\n10|x\n"), nullptr, &reading), kOdOk);
    EXPECT_EQ(reading.mendCount, 1u);
    ASSERT_EQ(drawing->readDxfBytes(withEntities(kLine), nullptr, &reading), kOdOk);
    EXPECT_EQ(reading.mendCount, 0u);
    EXPECT_TRUE(reading.mends.empty());
}

TEST(DxfReading, LinesEndInEachOfTheThreeWays) {
    std::string text = withEntities(kLine);
    for (const char* end : {"\n", "\r\n", "\r"}) {
        std::string lines;
        for (const char c : text) lines += c == '\n' ? std::string(end) : std::string(1, c);
        const Mended mended(lines);
        ASSERT_TRUE(mended.drawing);
        EXPECT_EQ(mended.reading.mendCount, 0u);
        EXPECT_EQ(firstEntity<OdDbLine>(*mended.drawing)->endPoint().x, 3);
    }
}

TEST(DxfReading, TheOldestVersionsAreReadAsR12) {
    for (const char* version : {"AC1004", "AC1006", "AC1009"}) {
        const Mended mended(withEntities(kLine, version));
        ASSERT_TRUE(mended.drawing) << version;
        EXPECT_EQ(mended.drawing->originalFileVersion(), OdDb::kDHL_1009);
        EXPECT_EQ(mended.kinds(), "LINE ");
    }
}
