// Who needs a layer, and how it gets another name.
#include <gtest/gtest.h>

#include <od_db.h>
#include <od_db_layer_use.h>

namespace {

class LayerUse : public ::testing::Test {
protected:
    LayerUse() {
        const OdDbSymbolTableRecordPtr layer = table()->newRecord();
        layer->setName(L"walls");
        table()->add(layer, &walls);
    }
    OdDbLayerTablePtr table() {
        OdDbLayerTablePtr layers;
        drawing->getLayerTable(layers);
        return layers;
    }
    OdDbEntityPtr addLine(const OdDbObjectId& block) {
        OdDbEntityPtr line(new OdDbLine);
        block.open<OdDbBlockTableRecord>()->appendOdDbEntity(line);
        line->setLayer(walls);
        return line;
    }
    OdDbObjectId addBlock(const wchar_t* name) {
        OdDbBlockTablePtr blocks;
        drawing->getBlockTable(blocks);
        const OdDbSymbolTableRecordPtr block = blocks->newRecord();
        block->setName(name);
        OdDbObjectId id;
        blocks->add(block, &id);
        return id;
    }
    OdDbLayerUse use() { return OdDbLayerUses(*drawing).of(walls); }

    OdDbDatabasePtr drawing{new OdDbDatabase};
    OdDbObjectId walls;
};

TEST_F(LayerUse, ANewLayerMayBeErased) {
    EXPECT_TRUE(use().isErasable());
    EXPECT_FALSE(OdDbLayerUses(*drawing).of(table()->getAt(L"0")).isErasable());
    EXPECT_TRUE(OdDbLayerUses(*drawing).of(table()->getAt(L"0")).isStandard);
}

TEST_F(LayerUse, EntitiesOfBothSpacesCount) {
    addLine(drawing->modelSpaceId());
    addLine(drawing->paperSpaceId());
    EXPECT_EQ(use().entities, 2);
    EXPECT_EQ(use().blockEntities, 0);
    EXPECT_FALSE(use().isErasable());
}

TEST_F(LayerUse, EntitiesOfBlocksCountByThemselvesAndOneBlockIsNamed) {
    addLine(addBlock(L"DOOR"));
    EXPECT_EQ(use().entities, 0);
    EXPECT_EQ(use().blockEntities, 1);
    EXPECT_EQ(use().block, L"DOOR");
    EXPECT_FALSE(use().isErasable());
}

TEST_F(LayerUse, AttributesCountWithTheirInsert) {
    OdSmartPtr<OdDbBlockReference> insert(new OdDbBlockReference);
    drawing->modelSpaceId().open<OdDbBlockTableRecord>()->appendOdDbEntity(OdDbEntityPtr(insert.get()));
    OdSmartPtr<OdDbAttribute> attribute(new OdDbAttribute);
    insert->appendAttribute(attribute);
    attribute->setLayer(walls);
    EXPECT_EQ(use().entities, 1);
    insert->erase();
    EXPECT_EQ(use().entities, 0) << "what is in an erased one doesn't count";
}

TEST_F(LayerUse, ErasedEntitiesDoNotCount) {
    addLine(drawing->modelSpaceId())->erase();
    EXPECT_TRUE(use().isErasable());
}

TEST_F(LayerUse, TheCurrentLayerIsNeeded) {
    drawing->setClayer(walls);
    EXPECT_TRUE(use().isCurrent);
    EXPECT_FALSE(use().isErasable());
}

TEST_F(LayerUse, ALayerOfAnExternalReferenceIsNotErased) {
    walls.open<OdDbLayerTableRecord>()->setFlags(16);
    EXPECT_TRUE(use().isDependent);
    EXPECT_FALSE(use().isErasable());
}

TEST_F(LayerUse, WhatNamesItByHandleNeedsItAndReactorsDoNot) {
    OdGroupList groups;
    groups.addText(102, "{ACAD_REACTORS");
    groups.addHandle(330, walls.handle());
    groups.addText(102, "}");
    const OdDbEntityPtr line = addLine(drawing->modelSpaceId());
    line->setLayer(table()->getAt(L"0"));
    line->editGroups().replace(0, 0, groups);
    EXPECT_TRUE(use().isErasable());
    line->editGroups().setHandle(331, walls.handle());
    EXPECT_EQ(use().others, 1);
    EXPECT_FALSE(use().isErasable());
}

TEST_F(LayerUse, ARenamedLayerIsKnownByItsNewNameOnly) {
    const OdDbEntityPtr line = addLine(drawing->modelSpaceId());
    drawing->setClayer(walls);
    drawing->setModified(false);
    ASSERT_EQ(oddbRenameLayer(walls, L"facade"), kOdOk);
    EXPECT_TRUE(drawing->isModified());
    EXPECT_EQ(table()->getAt(L"FACADE"), walls);
    EXPECT_FALSE(table()->has(L"walls"));
    EXPECT_EQ(drawing->clayer(), walls);
    EXPECT_EQ(line->layer(), L"facade");
    OdDbDatabasePtr again(new OdDbDatabase);
    ASSERT_EQ(again->readDxfBytes(drawing->writeDxfBytes()), kOdOk);
    OdDbLayerTablePtr layers;
    again->getLayerTable(layers);
    EXPECT_FALSE(layers->has(L"walls"));
    EXPECT_EQ(again->clayer(), layers->getAt(L"facade"));
}

TEST_F(LayerUse, ExtendedDataFollowsTheName) {
    const OdDbEntityPtr line = addLine(drawing->modelSpaceId());
    OdGroupList data;
    data.addText(1000, L"walls");
    data.addText(1003, L"WALLS");
    data.addText(1003, L"0");
    data.addText(1003, L"walls");
    line->setXData(L"OWN", data);
    ASSERT_EQ(oddbRenameLayer(walls, L"a much longer name"), kOdOk);
    OdGroupList wanted;
    wanted.addText(1000, L"walls");
    wanted.addText(1003, L"a much longer name");
    wanted.addText(1003, L"0");
    wanted.addText(1003, L"a much longer name");
    EXPECT_TRUE(line->xData(L"OWN") == wanted);
}

TEST_F(LayerUse, AnotherSpellingOfItsOwnNameIsAName) {
    EXPECT_EQ(oddbRenameLayer(walls, L"Walls"), kOdOk);
    EXPECT_EQ(walls.open<OdDbLayerTableRecord>()->getName(), L"Walls");
    drawing->setModified(false);
    EXPECT_EQ(oddbRenameLayer(walls, L"Walls"), kOdOk);
    EXPECT_FALSE(drawing->isModified()) << "its own name changes nothing";
}

TEST_F(LayerUse, BadAndTakenNamesAreRefused) {
    OdDbObjectId doors;
    const OdDbSymbolTableRecordPtr layer = table()->newRecord();
    layer->setName(L"doors");
    table()->add(layer, &doors);
    EXPECT_EQ(oddbRenameLayer(walls, L"DOORS"), kOdDuplicateKey);
    EXPECT_EQ(oddbRenameLayer(walls, L""), kOdInvalidInput);
    EXPECT_EQ(oddbRenameLayer(walls, nullptr), kOdInvalidInput);
    EXPECT_EQ(oddbRenameLayer(table()->getAt(L"0"), L"zero"), kOdInvalidInput);
    EXPECT_EQ(oddbRenameLayer(drawing->modelSpaceId(), L"zero"), kOdInvalidInput);
    walls.open<OdDbLayerTableRecord>()->setFlags(16);
    EXPECT_EQ(oddbRenameLayer(walls, L"other"), kOdInvalidInput);
    EXPECT_EQ(walls.open<OdDbLayerTableRecord>()->getName(), L"walls");
}

}  // namespace
