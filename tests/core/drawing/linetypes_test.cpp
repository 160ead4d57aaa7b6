#include <gtest/gtest.h>

#include "dxf_text.h"

namespace {

const char kTable[] =
    "0|SECTION\n2|TABLES\n0|TABLE\n2|LTYPE\n70|4\n"
    "0|LTYPE\n5|21\n100|AcDbSymbolTableRecord\n100|AcDbLinetypeTableRecord\n2|DASHED\n70|0\n3|Dashed __ "
    "__\n72|65\n73|2\n40|15\n"
    "49|10\n74|0\n49|-5\n74|0\n"
    "0|LTYPE\n5|22\n100|AcDbSymbolTableRecord\n100|AcDbLinetypeTableRecord\n2|SITE|FENCE\n70|16\n3|\n72|"
    "65\n73|2\n40|2\n49|1\n74|0\n49|-1\n74|0\n"
    "0|LTYPE\n5|23\n100|AcDbSymbolTableRecord\n100|AcDbLinetypeTableRecord\n2|GAS\n70|0\n3|Gas "
    "---GAS---\n72|65\n73|3\n40|1.2\n"
    "49|0.5\n74|0\n49|-0.2\n74|2\n75|0\n340|11\n46|0.1\n50|0.0\n44|-0.1\n45|-0.05\n9|GAS\n49|-0.5\n74|0\n"
    "0|ENDTAB\n0|ENDSEC\n0|EOF";

OdDbLinetypeTablePtr tableOf(OdDbDatabase& drawing) {
    OdDbLinetypeTablePtr table;
    EXPECT_EQ(drawing.getLinetypeTable(table, OdDb::kForRead), kOdOk);
    return table;
}

}  // namespace

TEST(Linetypes, TheThreeStandardOnesAreAlwaysThere) {
    const OdDbDatabasePtr drawing = readDrawing(dxf(header("AC1015") + kTable));
    const OdDbLinetypeTablePtr table = tableOf(*drawing);
    EXPECT_TRUE(table->has(L"CONTINUOUS"));
    EXPECT_FALSE(table->getLinetypeByLayerId().isNull());
    EXPECT_NE(table->getLinetypeByLayerId(), table->getLinetypeByBlockId());
    EXPECT_EQ(table->count(), 6);
}

TEST(Linetypes, HaveDashesGapsAndComments) {
    const OdDbDatabasePtr drawing = readDrawing(dxf(header("AC1015") + kTable));
    const auto dashed = tableOf(*drawing)->getAt(L"dashed").open<OdDbLinetypeTableRecord>();
    ASSERT_TRUE(dashed);
    EXPECT_EQ(dashed->comments(), L"Dashed __ __");
    EXPECT_EQ(dashed->patternLength(), 15);
    ASSERT_EQ(dashed->numDashes(), 2);
    EXPECT_EQ(dashed->dashLengthAt(0), 10);
    EXPECT_EQ(dashed->dashLengthAt(1), -5);
    EXPECT_EQ(dashed->dashLengthAt(2), 0);
    EXPECT_FALSE(dashed->isComplex() || dashed->isDependent());
}

TEST(Linetypes, OfExternalReferencesAreDependent) {
    const OdDbDatabasePtr drawing = readDrawing(dxf(header("AC1015") + kTable));
    const auto fence = tableOf(*drawing)->getAt(L"SITE|FENCE").open<OdDbLinetypeTableRecord>();
    ASSERT_TRUE(fence);
    EXPECT_TRUE(fence->isDependent());
    fence->setFlags(0);
    EXPECT_TRUE(fence->isDependent()) << "by its name alone";
    OdDbLinetypeTableRecord flagged;
    flagged.setName(L"PLAIN");
    EXPECT_FALSE(flagged.isDependent());
    flagged.setFlags(16);
    EXPECT_TRUE(flagged.isDependent()) << "by its flag alone";
}

TEST(Linetypes, WithTextsAreKept) {
    const OdDbDatabasePtr drawing = readDrawing(dxf(header("AC1015") + kTable));
    const std::string text = drawing->writeDxfBytes();
    EXPECT_NE(text.find(" 45\r\n-0.05\r\n  9\r\nGAS\r\n 49\r\n-0.5"), std::string::npos);
    const auto gas = tableOf(*readDrawing(text))->getAt(L"GAS");
    EXPECT_TRUE(tableOf(*drawing)->getAt(L"GAS").open<OdDbLinetypeTableRecord>()->isComplex());
    EXPECT_FALSE(gas.isNull());
}

TEST(Linetypes, CanBeMade) {
    OdDbDatabasePtr drawing(new OdDbDatabase);
    OdSmartPtr<OdDbLinetypeTableRecord> made(new OdDbLinetypeTableRecord);
    made->setName(L"DASHDOT");
    made->setComments(L"Dash dot __ . __");
    made->setDashes({6, -2, 0, -2});
    OdDbObjectId id;
    ASSERT_EQ(tableOf(*drawing)->add(made, &id), kOdOk);
    EXPECT_EQ(made->patternLength(), 10);
    const OdDbDatabasePtr again = readDrawing(drawing->writeDxfBytes(OdDb::kDHL_1009));
    const auto back = tableOf(*again)->getAt(L"DASHDOT").open<OdDbLinetypeTableRecord>();
    ASSERT_TRUE(back);
    EXPECT_EQ(back->numDashes(), 4);
    EXPECT_EQ(back->comments(), L"Dash dot __ . __");
    made->setDashes({});
    EXPECT_EQ(made->numDashes(), 0);
    EXPECT_EQ(made->patternLength(), 0);
}

TEST(Linetypes, MissingOnesAreMadeWhereEntitiesNameThem) {
    const OdDbDatabasePtr drawing =
        readDrawing(withEntities("0|LINE\n8|0\n6|HIDDEN\n10|0\n20|0\n11|1\n21|0\n"));
    EXPECT_TRUE(tableOf(*drawing)->has(L"HIDDEN"));
    EXPECT_EQ(firstEntity<OdDbLine>(*drawing)->linetype(), L"HIDDEN");
}
