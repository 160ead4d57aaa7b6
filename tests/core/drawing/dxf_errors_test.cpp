// Files that are refused, most of them by strict reading only: the reason, its line, and the drawing as it
// was.
#include <gtest/gtest.h>

#include "dxf_text.h"

namespace {

OdDbDxfError errorOf(const std::string& text) {
    OdDbDatabase& drawing = *new OdDbDatabase;
    const OdDbDatabasePtr hold(&drawing);
    const std::string before = drawing.writeDxfBytes();
    OdDbDxfError error;
    OdDxfReading strict;
    strict.strict = true;
    EXPECT_NE(drawing.readDxfBytes(text, &error, &strict), kOdOk);
    EXPECT_EQ(strict.mendCount, 0u);
    EXPECT_EQ(drawing.writeDxfBytes(), before) << "a refused file leaves the drawing as it was";
    EXPECT_FALSE(error.text.isEmpty());
    return error;
}

const char kLine[] = "0|LINE\n8|0\n10|0\n20|0\n11|1\n21|1\n";

}  // namespace

TEST(DxfErrors, EmptyFiles) {
    for (const char* text : {"", "\n\n", "  \r\n\t"}) EXPECT_EQ(errorOf(text).code, OdDxfErrorCode::kEmpty);
}

TEST(DxfErrors, FilesOfAnotherKind) {
    EXPECT_EQ(errorOf("AC1015\0\0\0").code, OdDxfErrorCode::kNotDxf);
    EXPECT_EQ(errorOf("hello\nworld\n").code, OdDxfErrorCode::kNotDxf);
    EXPECT_EQ(errorOf("  1\nworld\n").code, OdDxfErrorCode::kNotDxf);
    EXPECT_EQ(errorOf(std::string(1000, '\0')).code, OdDxfErrorCode::kNotDxf);
}

TEST(DxfErrors, EveryTruncationIsNoticed) {
    const std::string whole = withEntities(kLine);
    const std::size_t end = whole.rfind("EOF");
    for (std::size_t size = 1; size < end; ++size) {
        OdDbDatabasePtr drawing(new OdDbDatabase);
        OdDbDxfError error;
        OdDxfReading strict;
        strict.strict = true;
        ASSERT_NE(drawing->readDxfBytes(whole.substr(0, size), &error, &strict), kOdOk) << size;
        EXPECT_GT(error.line, 0) << size;
    }
    EXPECT_EQ(errorOf(whole.substr(0, whole.rfind("0\nEOF"))).code, OdDxfErrorCode::kTruncated);
}

TEST(DxfErrors, ABadGroupCodeIsToldWithItsLine) {
    const OdDbDxfError error = errorOf("0\nSECTION\n2\nENTITIES\nx\nLINE\n0\nENDSEC\n0\nEOF\n");
    EXPECT_EQ(error.code, OdDxfErrorCode::kBadGroupCode);
    EXPECT_EQ(error.line, 5);
    EXPECT_EQ(errorOf("0\nSECTION\n5000\nENTITIES\n0\nEOF\n").code, OdDxfErrorCode::kBadGroupCode);
}

TEST(DxfErrors, ABadNumberIsToldWithItsLine) {
    for (const char* value : {"abc", "", "1.2.3", "nan", "inf", "1e999", "0x10", "1,5"}) {
        const OdDbDxfError error =
            errorOf(withEntities(std::string("0|CIRCLE\n8|0\n10|") + value + "\n20|0\n40|1\n"));
        EXPECT_EQ(error.code, OdDxfErrorCode::kBadNumber) << value;
        EXPECT_EQ(error.line, 20) << value;
    }
    EXPECT_EQ(errorOf(withEntities("0|LINE\n8|0\n62|1.5\n")).code, OdDxfErrorCode::kBadNumber);
    EXPECT_EQ(errorOf(withEntities("0|LINE\n8|0\n100|AcDbEntity\n390|XYZ\n")).code,
              OdDxfErrorCode::kBadNumber);
}

TEST(DxfErrors, BrokenStructureIsTold) {
    for (const std::string& text :
         {dxf("0|SECTION\n2|ENTITIES\n0|LINE\n8|0\n0|EOF"),
          dxf("0|SECTION\n2|TABLES\n0|TABLE\n2|LAYER\n0|ENDSEC\n0|EOF"),
          dxf("0|SECTION\n2|BLOCKS\n0|BLOCK\n2|A\n0|ENDSEC\n0|EOF"), dxf("0|SECTION\n0|EOF"),
          dxf("0|SECTION\n2|HEADER\n0|EOF"), dxf("0|SECTION\n2|OBJECTS\n0|EOF"),
          dxf("0|SECTION\n2|ENTITIES\n0|ENDSEC\n0|LINE\n0|EOF")})
        EXPECT_EQ(errorOf(text).code, OdDxfErrorCode::kBadStructure) << text;
}

TEST(DxfErrors, AnOpenBlockOfApplicationDataIsTold) {
    EXPECT_EQ(errorOf(withEntities("0|LINE\n102|{ACAD_REACTORS\n330|BB\n8|0\n")).code,
              OdDxfErrorCode::kBadStructure);
    EXPECT_EQ(errorOf(withEntities("0|LINE\n102|{ACAD_REACTORS\n1001|ACAD\n102|}\n")).code,
              OdDxfErrorCode::kBadStructure);
}

TEST(DxfErrors, VersionsBeforeR9AreRefused) {
    EXPECT_EQ(errorOf(dxf(header("AC1003") + "0|EOF")).code, OdDxfErrorCode::kUnsupportedVersion);
    EXPECT_EQ(errorOf(dxf(header("MC0.0") + "0|EOF")).code, OdDxfErrorCode::kUnsupportedVersion);
}

TEST(DxfErrors, AMissingFileAndAnUnwritablePathAreTold) {
    OdDbDatabasePtr drawing(new OdDbDatabase);
    OdDbDxfError error;
    EXPECT_NE(drawing->readDxf(L"/no/such/folder/part.dxf", &error), kOdOk);
    EXPECT_EQ(error.code, OdDxfErrorCode::kCannotOpen);
    EXPECT_NE(drawing->writeDxf(L"/no/such/folder/part.dxf", OdDb::kDHL_1015, &error), kOdOk);
    EXPECT_EQ(error.code, OdDxfErrorCode::kCannotWrite);
    EXPECT_NE(drawing->readDxf(nullptr, &error), kOdOk);
    EXPECT_NE(drawing->writeDxf(nullptr), kOdOk);
}
