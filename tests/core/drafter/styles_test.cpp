// Dimension and text styles as the dialogs read and write them, and the blocks of arrowheads.
#include <gtest/gtest.h>

#include "arrowhead_blocks.h"
#include "dimension_values.h"
#include "text_style_values.h"

namespace {

constexpr int kArrowheads = 20, kCallouts = 6;

OdDbDatabasePtr readAgain(OdDbDatabase& drawing) {
    OdDbDatabasePtr again(new OdDbDatabase);
    EXPECT_EQ(again->readDxfBytes(drawing.writeDxfBytes(OdDb::kDHL_1032)), kOdOk);
    return again;
}

int blockCount(OdDbDatabase& drawing) {
    OdDbBlockTablePtr blocks;
    drawing.getBlockTable(blocks);
    return blocks->count();
}

const DimensionValues& named(const std::vector<DimensionValues>& styles, const wchar_t* name) {
    for (const DimensionValues& style : styles)
        if (style.name == name) return style;
    return styles.front();
}

}  // namespace

TEST(ArrowheadBlocks, EachArrowheadHasABlockOfItsOwnAndIsFoundByIt) {
    EXPECT_TRUE(ArrowheadBlockName(0).isEmpty());
    for (int number = 0; number < kArrowheads; ++number)
        EXPECT_EQ(ArrowheadOfBlock(ArrowheadBlockName(number)), number);
    EXPECT_EQ(ArrowheadOfBlock(L"_DOT"), 3);
    EXPECT_EQ(ArrowheadOfBlock(L"my arrow"), -1);
    EXPECT_TRUE(ArrowheadBlockName(-1).isEmpty());
    EXPECT_TRUE(ArrowheadBlockName(kArrowheads).isEmpty());
    for (int number = 0; number < kCallouts; ++number)
        EXPECT_EQ(CalloutOfBlock(CalloutBlockName(number)), number);
    EXPECT_EQ(CalloutOfBlock(L""), -1);
    EXPECT_TRUE(CalloutBlockName(kCallouts).isEmpty());
}

TEST(ArrowheadBlocks, AMissingStandardBlockIsMadeOnceAndDrawsByBlock) {
    OdDbDatabasePtr drawing(new OdDbDatabase);
    const int before = blockCount(*drawing);
    for (int number = 1; number < kArrowheads; ++number) {
        const OdDbObjectId id = NeedStandardBlock(*drawing, ArrowheadBlockName(number));
        const auto block = id.open<OdDbBlockTableRecord>();
        ASSERT_TRUE(block) << number;
        EXPECT_EQ(block->count() == 0, number == kArrowheads - 1) << "only the last one is nothing";
        for (const OdDbEntity* entity : block->entities()) EXPECT_TRUE(entity->color().isByBlock());
        EXPECT_EQ(NeedStandardBlock(*drawing, ArrowheadBlockName(number)), id);
    }
    for (int number = 0; number < kCallouts; ++number)
        EXPECT_FALSE(NeedStandardBlock(*drawing, CalloutBlockName(number)).isNull());
    EXPECT_EQ(blockCount(*drawing), before + kArrowheads - 1 + kCallouts);
    EXPECT_TRUE(NeedStandardBlock(*drawing, L"").isNull());
    EXPECT_TRUE(NeedStandardBlock(*drawing, L"my arrow").isNull());
}

TEST(ArrowheadBlocks, LayoutsAndAnonymousBlocksCannotBeChosen) {
    OdDbDatabasePtr drawing(new OdDbDatabase);
    EXPECT_TRUE(ChoosableBlocks(*drawing).empty());
    NeedStandardBlock(*drawing, L"_Dot");
    ASSERT_EQ(ChoosableBlocks(*drawing).size(), 1u);
    EXPECT_EQ(ChoosableBlocks(*drawing)[0], L"_Dot");
}

TEST(DimensionValuesTest, AStyleIsMadeWithItsBlocksAndComesBackFromAFile) {
    OdDbDatabasePtr drawing(new OdDbDatabase);
    DimensionValues style = ReadDimensionStyles(*drawing).front();
    EXPECT_EQ(style.name, L"Standard");
    style.name = L"Plans";
    style.first = L"_ArchTick";
    style.second = L"_Dot";
    style.leader = L"_Open90";
    style.callout = L"_TagHexagon";
    style.arrowSize = 4;
    style.lineColor.setColorIndex(3);
    style.lineWeight = OdDb::kLnWt035;
    WriteDimensionStyle(*drawing, style);
    SetCurrentDimensionStyle(*drawing, L"Plans");
    const OdDbDatabasePtr again = readAgain(*drawing);
    DimensionValues read = named(ReadDimensionStyles(*again), L"Plans");
    EXPECT_EQ(read.linetype.open<OdDbLinetypeTableRecord>()->getName(), L"ByBlock");
    read.linetype = style.linetype;
    EXPECT_EQ(read, style);
    const auto record = again->dimstyle().open<OdDbDimStyleTableRecord>();
    EXPECT_EQ(record->getName(), L"Plans");
    EXPECT_TRUE(record->dimsah());
    EXPECT_EQ(again->header().text("DIMBLK2"), L"_Dot");
    EXPECT_EQ(again->header().text("DIMLDRBLK"), L"_Open90");
    EXPECT_EQ(again->getDIMASZ(), 4);
}

TEST(DimensionValuesTest, EqualEndsUseOneArrowheadAndNoCalloutLeavesNoData) {
    OdDbDatabasePtr drawing(new OdDbDatabase);
    DimensionValues style = ReadDimensionStyles(*drawing).front();
    style.first = style.second = L"_Dot";
    style.callout = L"_TagBox";
    WriteDimensionStyle(*drawing, style);
    auto record = drawing->dimstyle().open<OdDbDimStyleTableRecord>();
    EXPECT_EQ(record->dimblk(), L"_Dot");
    EXPECT_FALSE(record->dimsah());
    style.callout = L"";
    style.first = style.second = L"";
    WriteDimensionStyle(*drawing, style);
    EXPECT_TRUE(record->dimblk().isEmpty());
    EXPECT_TRUE(record->xData(L"DRAFTER").isEmpty());
}

TEST(DimensionSampleTest, EveryArrowheadIsShownAndNoBlockIsLeftBehind) {
    OdDbDatabasePtr drawing(new OdDbDatabase);
    const int before = blockCount(*drawing);
    DimensionValues style = ReadDimensionStyles(*drawing).front();
    style.leader = L"_None";
    style.first = style.second = L"_None";
    const std::size_t bare = DimensionSample(*drawing, style).paths.size();
    for (int number = 0; number < kArrowheads - 1; ++number) {
        style.first = ArrowheadBlockName(number);
        EXPECT_GT(DimensionSample(*drawing, style).paths.size(), bare) << number;
    }
    style.callout = L"_TagCircle";
    style.arrowSize = 0;
    EXPECT_FALSE(DimensionSample(*drawing, style).extents().isEmpty());
    style.textHeight = 0;
    EXPECT_FALSE(DimensionSample(*drawing, style).extents().isEmpty());
    EXPECT_EQ(blockCount(*drawing), before);
}

TEST(TextStyleValuesTest, AStyleIsMadeAndComesBackFromAFile) {
    OdDbDatabasePtr drawing(new OdDbDatabase);
    TextStyleValues style = ReadTextStyles(*drawing).front();
    style.name = L"Titles";
    style.file = L"arialbd.ttf";
    style.family = L"Arial";
    style.bold = true;
    style.height = 5;
    style.width = 0.75;
    WriteTextStyle(*drawing, style);
    SetCurrentTextStyle(*drawing, L"Titles");
    const OdDbDatabasePtr again = readAgain(*drawing);
    const std::vector<TextStyleValues> styles = ReadTextStyles(*again);
    ASSERT_EQ(styles.size(), 2u);
    EXPECT_EQ(styles[1], style);
    EXPECT_EQ(again->textstyle().open<OdDbTextStyleTableRecord>()->getName(), L"Titles");
    style.file = L"romans.shx";
    style.bigFile = L"gbcbig.shx";
    style.family = L"";
    style.bold = false;
    WriteTextStyle(*again, style);
    EXPECT_EQ(ReadTextStyles(*again)[1], style);
}

TEST(TextStyleValuesTest, ShapeFilesAreNoStyles) {
    OdDbDatabasePtr drawing(new OdDbDatabase);
    OdDbTextStyleTablePtr table;
    drawing->getTextStyleTable(table);
    const auto record = table->getAt(L"Standard").open<OdDbTextStyleTableRecord>(OdDb::kForWrite);
    record->setFlags(1);
    EXPECT_TRUE(ReadTextStyles(*drawing).empty());
}
