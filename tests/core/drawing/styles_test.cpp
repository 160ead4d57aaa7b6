// Dimension styles, text styles and the current plot style: what is set comes back, also from a file.
#include <gtest/gtest.h>

#include <cmath>

#include "dxf_text.h"

namespace {

OdDbBlockTableRecordPtr addBlock(OdDbDatabase& drawing, const wchar_t* name) {
    OdDbBlockTablePtr blocks;
    drawing.getBlockTable(blocks, OdDb::kForWrite);
    OdDbBlockTableRecordPtr block(new OdDbBlockTableRecord);
    block->setName(name);
    EXPECT_EQ(blocks->add(OdDbSymbolTableRecordPtr(block.get())), kOdOk);
    return block;
}

OdDbDimStyleTableRecordPtr dimStyle(OdDbDatabase& drawing, const wchar_t* name) {
    OdDbDimStyleTablePtr styles;
    drawing.getDimStyleTable(styles);
    return styles->getAt(name).open<OdDbDimStyleTableRecord>(OdDb::kForWrite);
}

OdDbTextStyleTableRecordPtr textStyle(OdDbDatabase& drawing, const wchar_t* name) {
    OdDbTextStyleTablePtr styles;
    drawing.getTextStyleTable(styles);
    return styles->getAt(name).open<OdDbTextStyleTableRecord>(OdDb::kForWrite);
}

OdDbDatabasePtr again(OdDbDatabase& drawing, OdDb::DwgVersion version) {
    return readDrawing(drawing.writeDxfBytes(version));
}

}  // namespace

TEST(DimensionStyles, ANewDrawingsStandardHasTheClosedFilledArrowhead) {
    OdDbDatabasePtr drawing(new OdDbDatabase);
    const auto style = dimStyle(*drawing, L"Standard");
    ASSERT_TRUE(style);
    EXPECT_TRUE(style->dimblk().isEmpty());
    EXPECT_TRUE(style->dimldrblk().isEmpty());
    EXPECT_FALSE(style->dimsah());
    EXPECT_TRUE(style->dimclrd().isByBlock());
    EXPECT_EQ(style->dimlwd(), OdDb::kLnWtByBlock);
    OdDbLinetypeTablePtr linetypes;
    drawing->getLinetypeTable(linetypes);
    EXPECT_EQ(style->dimltype(), linetypes->getLinetypeByBlockId());
    EXPECT_EQ(drawing->dimstyle(), style->objectId());
}

TEST(DimensionStyles, AnArrowheadMustBeABlockOfTheDrawing) {
    OdDbDatabasePtr drawing(new OdDbDatabase);
    const auto style = dimStyle(*drawing, L"Standard");
    EXPECT_EQ(style->setDimblk1(L"_Dot"), kOdKeyNotFound);
    addBlock(*drawing, L"_Dot");
    EXPECT_EQ(style->setDimblk1(L"_DOT"), kOdOk);
    EXPECT_EQ(style->dimblk1(), L"_Dot");
    EXPECT_EQ(style->setDimblk1(L""), kOdOk);
    EXPECT_TRUE(style->dimblk1().isEmpty());
    OdDbDimStyleTableRecord loose;
    EXPECT_EQ(loose.setDimblk(L""), kOdNoDatabase);
}

TEST(DimensionStyles, EverythingComesBackFromEveryVersionThatHasIt) {
    OdDbDatabasePtr drawing(new OdDbDatabase);
    addBlock(*drawing, L"_Dot");
    addBlock(*drawing, L"_ArchTick");
    addBlock(*drawing, L"USER ARROW");
    OdDbDimStyleTablePtr styles;
    drawing->getDimStyleTable(styles, OdDb::kForWrite);
    const OdDbSymbolTableRecordPtr made = styles->newRecord();
    made->setName(L"Plans");
    ASSERT_EQ(styles->add(made), kOdOk);
    auto style = dimStyle(*drawing, L"Plans");
    OdCmColor red;
    red.setColorIndex(1);
    style->setDimblk(L"_Dot");
    style->setDimblk1(L"_ArchTick");
    style->setDimblk2(L"USER ARROW");
    style->setDimldrblk(L"_Dot");
    style->setDimsah(true);
    style->setDimasz(3.5);
    style->setDimtxt(4);
    style->setDimclrd(red);
    EXPECT_EQ(style->setDimlwd(static_cast<OdDb::LineWeight>(7)), kOdInvalidInput);
    style->setDimlwd(OdDb::kLnWt050);
    OdDbLinetypeTablePtr linetypes;
    drawing->getLinetypeTable(linetypes);
    EXPECT_EQ(style->setDimltype(style->objectId()), kOdInvalidInput);
    style->setDimltype(linetypes->getAt(L"Continuous"));
    drawing->setDimstyle(style->objectId());
    for (const OdDb::DwgVersion version : kAllVersions) {
        const OdDbDatabasePtr read = again(*drawing, version);
        ASSERT_TRUE(read) << version;
        style = dimStyle(*read, L"Plans");
        ASSERT_TRUE(style) << version;
        EXPECT_EQ(style->dimblk(), L"_Dot") << version;
        EXPECT_EQ(style->dimblk1(), L"_ArchTick") << version;
        EXPECT_EQ(style->dimblk2(), L"USER ARROW") << version;
        EXPECT_TRUE(style->dimsah());
        EXPECT_EQ(style->dimasz(), 3.5);
        EXPECT_EQ(style->dimtxt(), 4);
        EXPECT_EQ(style->dimclrd(), red);
        EXPECT_EQ(read->dimstyle(), style->objectId());
        if (version < OdDb::kDHL_1015) continue;
        EXPECT_EQ(style->dimldrblk(), L"_Dot") << version;
        EXPECT_EQ(style->dimlwd(), OdDb::kLnWt050) << version;
        if (version < OdDb::kDHL_1021) continue;
        EXPECT_EQ(style->dimltype().open<OdDbLinetypeTableRecord>()->getName(), L"Continuous") << version;
    }
}

TEST(DimensionStyles, AnOldFilesNamedArrowheadIsReadAndReplaced) {
    const OdDbDatabasePtr drawing = readDrawing(dxf(
        "0|SECTION\n2|TABLES\n0|TABLE\n2|DIMSTYLE\n70|1\n0|DIMSTYLE\n2|OLD\n70|0\n5|TICK\n6|\n7|\n0|ENDTAB\n"
        "0|ENDSEC\n0|SECTION\n2|BLOCKS\n0|BLOCK\n8|0\n2|TICK\n70|0\n10|0\n20|0\n30|0\n0|ENDBLK\n0|ENDSEC\n0|"
        "EOF"));
    ASSERT_TRUE(drawing);
    const auto style = dimStyle(*drawing, L"OLD");
    EXPECT_EQ(style->dimblk(), L"TICK");
    EXPECT_EQ(style->setDimblk(L""), kOdOk);
    EXPECT_TRUE(style->dimblk().isEmpty());
}

TEST(DimensionStyles, ABlockThatIsGoneLeavesTheClosedFilledArrowhead) {
    OdDbDatabasePtr drawing(new OdDbDatabase);
    const auto block = addBlock(*drawing, L"_Dot");
    const auto style = dimStyle(*drawing, L"Standard");
    style->setDimblk(L"_Dot");
    block->erase();
    EXPECT_TRUE(style->dimblk().isEmpty());
    style->editGroups().setInteger(176, 999);
    style->editGroups().setInteger(371, 7);
    EXPECT_TRUE(style->dimclrd().isByBlock());
    EXPECT_EQ(style->dimlwd(), OdDb::kLnWtByBlock);
}

TEST(TextStyles, AFamilyItsCutAndTheSlantComeBackFromAFile) {
    OdDbDatabasePtr drawing(new OdDbDatabase);
    auto style = textStyle(*drawing, L"Standard");
    style->setFileName(L"arialbi.ttf");
    style->setFont(L"Arial", true, true);
    style->setObliquingAngle(0.25);
    style->setBigFontFileName(L"gbcbig.shx");
    style->setTextSize(5);
    style->setXScale(0.8);
    const OdDbDatabasePtr read = again(*drawing, OdDb::kDHL_1015);
    style = textStyle(*read, L"Standard");
    EXPECT_EQ(style->fileName(), L"arialbi.ttf");
    EXPECT_EQ(style->typeFace(), L"Arial");
    EXPECT_TRUE(style->isBold());
    EXPECT_TRUE(style->isItalic());
    EXPECT_NEAR(style->obliquingAngle(), 0.25, 1e-12);
    EXPECT_EQ(style->bigFontFileName(), L"gbcbig.shx");
    EXPECT_EQ(style->textSize(), 5);
    EXPECT_EQ(style->xScale(), 0.8);
    style->setFont(L"", false, false);
    EXPECT_TRUE(style->typeFace().isEmpty());
    EXPECT_FALSE(style->isBold());
}

TEST(TextStyles, OtherFlagsStayWithTheSameFamilyOnly) {
    OdDbDatabasePtr drawing(new OdDbDatabase);
    const auto style = textStyle(*drawing, L"Standard");
    OdGroupList data;
    data.addText(1000, "Arial");
    data.addInteger(1071, 34);
    style->setXData(L"ACAD", data);
    style->setFont(L"ARIAL", true, false);
    EXPECT_TRUE(style->isBold());
    OdGroup group;
    const OdGroupList kept = style->xData(L"ACAD");
    ASSERT_TRUE(kept.read(0, group) && kept.read(group.end, group));
    EXPECT_EQ(group.integer & 0xFFFF, 34);
    style->setFont(L"Tahoma", false, true);
    const OdGroupList other = style->xData(L"ACAD");
    ASSERT_TRUE(other.read(0, group) && other.read(group.end, group));
    EXPECT_EQ(group.integer, 0x1000000);
}

TEST(PlotStyles, TheCurrentOneIsSetByNameAndComesBackFromAFile) {
    OdDbDatabasePtr drawing(new OdDbDatabase);
    EXPECT_EQ(drawing->currentPlotStyleName(), L"ByLayer");
    OdDbDictionaryPtr names;
    drawing->getPlotStyleNameDictionary(names, OdDb::kForWrite);
    names->setAt(L"Heavy", new OdDbPlaceHolder);
    EXPECT_EQ(drawing->setCurrentPlotStyleName(L"No such style"), kOdKeyNotFound);
    EXPECT_EQ(drawing->currentPlotStyleName(), L"ByLayer") << "a refused name changes nothing";
    EXPECT_EQ(drawing->setCurrentPlotStyleName(L"heavy"), kOdOk);
    OdDbDatabasePtr read = again(*drawing, OdDb::kDHL_1032);
    EXPECT_EQ(read->currentPlotStyleName(), L"Heavy");
    EXPECT_EQ(read->setCurrentPlotStyleName(L"ByBlock"), kOdOk);
    read = again(*read, OdDb::kDHL_1015);
    EXPECT_EQ(read->currentPlotStyleName(), L"ByBlock");
    EXPECT_EQ(read->setCurrentPlotStyleName(L"ByLayer"), kOdOk);
    EXPECT_EQ(read->currentPlotStyleName(), L"ByLayer");
}

TEST(PlotStyles, ANewEntityOfTheDrawingTakesTheCurrentOne) {
    OdDbDatabasePtr drawing(new OdDbDatabase);
    OdDbDictionaryPtr names;
    drawing->getPlotStyleNameDictionary(names, OdDb::kForWrite);
    names->setAt(L"Heavy", new OdDbPlaceHolder);
    drawing->setCurrentPlotStyleName(L"Heavy");
    OdDbEntityPtr line(new OdDbLine);
    line->setDatabaseDefaults(drawing.get());
    EXPECT_EQ(line->plotStyleName(), L"ByLayer") << "it is in no drawing yet";
    drawing->modelSpaceId().open<OdDbBlockTableRecord>()->appendOdDbEntity(line);
    line->setDatabaseDefaults(drawing.get());
    EXPECT_EQ(line->plotStyleName(), L"Heavy");
}
