// What was changed in a drawing, taken back and done again.
#include <gtest/gtest.h>

#include <od_db.h>
#include <od_db_change.h>
#include <od_db_layer_use.h>

namespace {

class Change : public ::testing::Test {
protected:
    Change() {
        OdDbEntityPtr first(new OdDbLine);
        space()->appendOdDbEntity(first, &line);
        before = drawing->writeDxfBytes();
        recorder = std::make_unique<OdDbChangeRecorder>(drawing);
    }
    OdDbBlockTableRecordPtr space() { return drawing->modelSpaceId().open<OdDbBlockTableRecord>(); }
    OdDbLayerTablePtr layers() {
        OdDbLayerTablePtr table;
        drawing->getLayerTable(table);
        return table;
    }
    OdDbObjectId continuous() {
        OdDbLinetypeTablePtr table;
        drawing->getLinetypeTable(table);
        return table->getAt(L"Continuous");
    }
    OdDbObjectId addLayer(const wchar_t* name) {
        const OdDbSymbolTableRecordPtr layer = layers()->newRecord();
        layer->setName(name);
        OdDbObjectId id;
        EXPECT_EQ(layers()->add(layer, &id), kOdOk);
        return id;
    }
    /// Takes what was changed back and does it again, and looks at the files that the drawing makes.
    void expectBothWays() {
        const std::string after = drawing->writeDxfBytes();
        ASSERT_TRUE(after != before);
        const auto change = recorder->take();
        EXPECT_FALSE(change->isEmpty());
        for (int round = 0; round < 2; ++round) {
            change->exchange();
            EXPECT_TRUE(drawing->writeDxfBytes() == before);
            change->exchange();
            EXPECT_TRUE(drawing->writeDxfBytes() == after);
        }
        EXPECT_TRUE(recorder->take()->isEmpty()) << "taking back is no change by itself";
    }

    OdDbDatabasePtr drawing{new OdDbDatabase};
    OdDbObjectId line;
    std::string before;
    std::unique_ptr<OdDbChangeRecorder> recorder;
};

TEST_F(Change, PropertiesOfEntitiesComeBack) {
    const OdDbObjectId layer = addLayer(L"walls");
    const auto entity = line.open<OdDbLine>(OdDb::kForWrite);
    entity->setColorIndex(3);
    entity->setLayer(layer);
    entity->setLinetype(continuous());
    entity->setEndPoint({7, 8, 0});
    entity->setHyperlink(L"http://one.example");
    expectBothWays();
}

TEST_F(Change, TheHeaderComesBack) {
    drawing->setLUPREC(7);
    drawing->setCelweight(OdDb::kLnWt050);
    drawing->editHeader().setText("OWNVARIABLE", L"new");
    expectBothWays();
    EXPECT_EQ(drawing->units().luprec, 7) << "the settings for texts follow";
}

TEST_F(Change, WhatWasMadeGoesAndComesBackUnderItsId) {
    const OdDbObjectId layer = addLayer(L"walls");
    OdDbObjectId made;
    OdSmartPtr<OdDbBlockReference> insert(new OdDbBlockReference);
    space()->appendOdDbEntity(OdDbEntityPtr(insert.get()), &made);
    insert->appendAttribute(OdSmartPtr<OdDbAttribute>(new OdDbAttribute));
    expectBothWays();
    const auto undone = recorder->take();
    EXPECT_EQ(layers()->getAt(L"walls"), layer);
    EXPECT_TRUE(made.isValid());
}

TEST_F(Change, WhatWasErasedComesBack) {
    line.open<OdDbLine>()->erase();
    expectBothWays();
    EXPECT_TRUE(line.isErased());
}

TEST_F(Change, VerticesGoWithTheirPolyline) {
    OdSmartPtr<OdDb2dPolyline> polyline(new OdDb2dPolyline);
    space()->appendOdDbEntity(OdDbEntityPtr(polyline.get()));
    recorder->take();
    polyline->appendVertex(OdSmartPtr<OdDbVertex>(new OdDbVertex));
    const auto change = recorder->take();
    for (const int count : {0, 1, 0}) {
        change->exchange();
        EXPECT_EQ(polyline->parts()->size(), static_cast<std::size_t>(count));
        EXPECT_EQ(polyline->vertices().length(), count);
    }
}

TEST_F(Change, DictionariesAndExtensionDictionariesComeBack) {
    OdDbDictionaryPtr root;
    drawing->getNamedObjectsDictionary(root);
    root->setAt(L"OWN", OdDbObjectPtr(new OdDbPlaceHolder));
    root->remove(L"ACAD_GROUP");
    line.open<OdDbLine>()->createExtensionDictionary();
    expectBothWays();
    EXPECT_TRUE(root->has(L"OWN"));
    EXPECT_FALSE(root->has(L"ACAD_GROUP"));
}

TEST_F(Change, APlaceForAnotherObjectInADictionaryComesBack) {
    OdDbDictionaryPtr names;
    drawing->getPlotStyleNameDictionary(names);
    OdDbObjectId style;
    names->setAt(L"Fine", OdDbObjectPtr(new OdDbPlaceHolder), &style);
    names->setDefaultId(style);
    names->setAt(L"Normal", OdDbObjectPtr(new OdDbPlaceHolder));
    expectBothWays();
}

TEST_F(Change, ADictionaryThatGotADefaultHasNoneAgain) {
    OdDbDictionaryPtr root;
    drawing->getNamedObjectsDictionary(root);
    root->setDefaultId(root->getAt(L"ACAD_GROUP"));
    expectBothWays();
    EXPECT_EQ(root->defaultId(), root->getAt(L"ACAD_GROUP"));
}

TEST_F(Change, TheOriginOfABlockComesBack) {
    space()->setOrigin({3, 4, 0});
    expectBothWays();
}

TEST_F(Change, ANameThatWasTakenBackIsFree) {
    const OdDbObjectId first = addLayer(L"walls");
    const auto change = recorder->take();
    change->exchange();
    EXPECT_FALSE(layers()->has(L"walls"));
    const OdDbObjectId second = addLayer(L"WALLS");
    EXPECT_NE(second, first);
    const auto later = recorder->take();
    later->exchange();
    EXPECT_FALSE(layers()->has(L"walls"));
    change->exchange();
    EXPECT_EQ(layers()->getAt(L"walls"), first) << "found though another one had the name";
}

TEST_F(Change, AnErasedLayerIsFoundAgainAfterAnotherHadItsName) {
    const OdDbObjectId first = addLayer(L"walls");
    recorder->take();
    first.open<OdDbLayerTableRecord>()->erase();
    const auto erased = recorder->take();
    addLayer(L"walls");
    const auto made = recorder->take();
    made->exchange();
    erased->exchange();
    EXPECT_EQ(layers()->getAt(L"Walls"), first);
}

TEST_F(Change, WhatIsSetToItsOwnValueIsNoChange) {
    const auto entity = line.open<OdDbLine>(OdDb::kForWrite);
    entity->setColor(entity->color());
    entity->setLayer(entity->layerId());
    drawing->setLUPREC(drawing->getLUPREC());
    OdDbEntityPtr passing(new OdDbLine);
    space()->appendOdDbEntity(passing);
    passing->erase();
    EXPECT_TRUE(recorder->take()->isEmpty());
}

TEST_F(Change, EachChangeBeginsWhereTheLastOneEnded) {
    const auto entity = line.open<OdDbLine>(OdDb::kForWrite);
    entity->setColorIndex(1);
    const auto red = recorder->take();
    entity->setColorIndex(2);
    const auto yellow = recorder->take();
    yellow->exchange();
    EXPECT_EQ(entity->color().colorIndex(), 1);
    red->exchange();
    EXPECT_TRUE(entity->color().isByLayer());
}

TEST_F(Change, ADrawingThatWasReadAnewIsLeftAlone) {
    line.open<OdDbLine>(OdDb::kForWrite)->setColorIndex(1);
    const auto change = recorder->take();
    const std::string other = OdDbDatabasePtr(new OdDbDatabase)->writeDxfBytes();
    ASSERT_EQ(drawing->readDxfBytes(other), kOdOk);
    drawing->setLUPREC(3);
    const std::string now = drawing->writeDxfBytes();
    EXPECT_TRUE(recorder->take()->isEmpty());
    change->exchange();
    EXPECT_TRUE(drawing->writeDxfBytes() == now);
}

TEST_F(Change, AFailedReadGoesOnBeingNoted) {
    line.open<OdDbLine>(OdDb::kForWrite)->setColorIndex(1);
    EXPECT_NE(drawing->readDxfBytes("nonsense"), kOdOk);
    expectBothWays();
}

TEST_F(Change, TheDrawingCountsAsModifiedAfterAnExchange) {
    drawing->setLUPREC(3);
    const auto change = recorder->take();
    drawing->setModified(false);
    change->exchange();
    EXPECT_TRUE(drawing->isModified());
}

TEST_F(Change, ARenamedLayerHasItsFormerNameAgain) {
    const OdDbObjectId layer = addLayer(L"walls");
    recorder->take();
    before = drawing->writeDxfBytes();
    drawing->setClayer(layer);
    ASSERT_EQ(oddbRenameLayer(layer, L"facade"), kOdOk);
    expectBothWays();
    EXPECT_EQ(layers()->getAt(L"facade"), layer);
    EXPECT_FALSE(layers()->has(L"walls"));
}

}  // namespace
