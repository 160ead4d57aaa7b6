// The blocks of a drawing as the user inserts them.
#include <gtest/gtest.h>

#include "arrowhead_blocks.h"
#include "block_list.h"

namespace {

class BlockList : public ::testing::Test {
protected:
    OdDbObjectId add(const wchar_t* name) {
        OdDbBlockTablePtr blocks;
        drawing->getBlockTable(blocks, OdDb::kForWrite);
        const OdDbBlockTableRecordPtr block(new OdDbBlockTableRecord);
        block->setName(name);
        blocks->add(OdDbSymbolTableRecordPtr(block.get()));
        return block->objectId();
    }
    std::vector<OdString> names() {
        std::vector<OdString> all;
        for (const BlockRow& row : ListBlocks(*drawing)) all.push_back(row.name);
        return all;
    }
    const std::vector<OdDbEntity*>& entities() {
        return drawing->modelSpaceId().open<OdDbBlockTableRecord>()->entities();
    }

    OdDbDatabasePtr drawing{new OdDbDatabase};
};

using Names = std::vector<OdString>;

TEST_F(BlockList, BlocksAreListedByNameWithoutSpacesArrowheadsAndCallouts) {
    EXPECT_TRUE(names().empty());
    const OdDbObjectId window = add(L"window");
    add(L"Door");
    add(L"*D3");
    ASSERT_FALSE(NeedStandardBlock(*drawing, ArrowheadBlockName(3)).isNull());
    ASSERT_FALSE(NeedStandardBlock(*drawing, CalloutBlockName(1)).isNull());
    EXPECT_EQ(names(), (Names{L"Door", L"window"}));
    EXPECT_EQ(ListBlocks(*drawing)[1].id, window);
}

TEST_F(BlockList, ABlockIsInsertedAtAPlaceWithTheCurrentSettings) {
    const OdDbObjectId door = add(L"Door");
    drawing->setELEVATION(3);
    OdCmColor red;
    red.setColorIndex(1);
    drawing->setCecolor(red);
    const OdDbObjectId id = InsertBlock(*drawing, door, {12, -5});
    const auto reference = id.open<OdDbBlockReference>();
    ASSERT_TRUE(reference);
    EXPECT_EQ(reference->blockTableRecord(), door);
    EXPECT_DOUBLE_EQ(reference->position().x, 12);
    EXPECT_DOUBLE_EQ(reference->position().y, -5);
    EXPECT_DOUBLE_EQ(reference->position().z, 3);
    EXPECT_EQ(reference->colorIndex(), 1);
    ASSERT_EQ(entities().size(), 1u);
    EXPECT_EQ(entities().front()->objectId(), id);
}

TEST_F(BlockList, WhatIsNoBlockOfTheDrawingIsNotInserted) {
    OdDbDatabasePtr other(new OdDbDatabase);
    EXPECT_TRUE(InsertBlock(*drawing, OdDbObjectId(), {0, 0}).isNull());
    EXPECT_TRUE(InsertBlock(*drawing, drawing->clayer(), {0, 0}).isNull());
    EXPECT_TRUE(InsertBlock(*drawing, other->modelSpaceId(), {0, 0}).isNull());
    EXPECT_TRUE(entities().empty());
}

}  // namespace
