// The layers of a drawing as the user edits them.
#include <gtest/gtest.h>

#include "layer_list.h"

namespace {

class LayerList : public ::testing::Test {
protected:
    LayerList() {
        for (const wchar_t* name : {L"walls", L"Doors", L"outer Walls"}) NeedLayer(*drawing, name);
    }
    OdDbObjectId layer(const wchar_t* name) {
        OdDbLayerTablePtr table;
        drawing->getLayerTable(table);
        return table->getAt(name);
    }
    std::vector<OdString> names(const wchar_t* filter = L"") {
        std::vector<OdString> all;
        for (const LayerRow& row : ListLayers(*drawing, filter)) all.push_back(row.name);
        return all;
    }
    OdDbObjectId addLineOn(const OdDbObjectId& block, const OdDbObjectId& onLayer) {
        OdDbEntityPtr line(new OdDbLine);
        OdDbObjectId id;
        block.open<OdDbBlockTableRecord>()->appendOdDbEntity(line, &id);
        line->setLayer(onLayer);
        return id;
    }

    OdDbDatabasePtr drawing{new OdDbDatabase};
};

using Names = std::vector<OdString>;

TEST_F(LayerList, LayersAreListedByNameWithoutRegardToCase) {
    EXPECT_EQ(names(), (Names{L"0", L"Doors", L"outer Walls", L"walls"}));
}

TEST_F(LayerList, AFilterFindsAnyPartOfANameInAnyCase) {
    EXPECT_EQ(names(L"WALL"), (Names{L"outer Walls", L"walls"}));
    EXPECT_EQ(names(L"r w"), (Names{L"outer Walls"}));
    EXPECT_EQ(names(L"roof"), Names());
}

TEST_F(LayerList, ARowSaysWhatTheLayerIs) {
    OdCmColor red;
    red.setColorIndex(1);
    LayerChange change;
    change.color = red;
    change.isOn = false;
    change.lineWeight = OdDb::kLnWt050;
    ChangeLayers({layer(L"walls")}, change);
    drawing->setClayer(layer(L"Doors"));
    const auto rows = ListLayers(*drawing);
    EXPECT_EQ(rows[3].id, layer(L"walls"));
    EXPECT_EQ(rows[3].color, red);
    EXPECT_FALSE(rows[3].isOn);
    EXPECT_EQ(rows[3].lineWeight, OdDb::kLnWt050);
    EXPECT_FALSE(rows[3].isCurrent);
    EXPECT_TRUE(rows[1].isCurrent);
    EXPECT_TRUE(rows[1].isOn);
    EXPECT_EQ(rows[1].linetype.open<OdDbLinetypeTableRecord>()->getName(), L"Continuous");
}

TEST_F(LayerList, OnlyWhatIsThereIsChanged) {
    LayerChange change;
    change.lineWeight = OdDb::kLnWt013;
    ChangeLayers({layer(L"walls"), layer(L"Doors")}, change);
    for (const wchar_t* name : {L"walls", L"Doors"}) {
        const auto record = layer(name).open<OdDbLayerTableRecord>();
        EXPECT_EQ(record->lineWeight(), OdDb::kLnWt013);
        EXPECT_FALSE(record->isOff());
        EXPECT_EQ(record->colorIndex(), 7);
    }
    EXPECT_EQ(layer(L"0").open<OdDbLayerTableRecord>()->lineWeight(), OdDb::kLnWtByLwDefault);
}

TEST_F(LayerList, GoodNamesAreGoodAndBadOnesBad) {
    EXPECT_EQ(CheckLayerName(*drawing, L"roof"), LayerNameProblem::kNone);
    EXPECT_EQ(CheckLayerName(*drawing, L"Dach 2_$-"), LayerNameProblem::kNone);
    EXPECT_EQ(CheckLayerName(*drawing, L""), LayerNameProblem::kBad);
    for (const wchar_t c : std::wstring(L"<>/\\\":;?*|,=`\t"))
        EXPECT_EQ(CheckLayerName(*drawing, (L"a" + std::wstring(1, c)).c_str()), LayerNameProblem::kBad)
            << static_cast<int>(c);
    EXPECT_EQ(CheckLayerName(*drawing, std::wstring(255, L'a').c_str()), LayerNameProblem::kNone);
    EXPECT_EQ(CheckLayerName(*drawing, std::wstring(256, L'a').c_str()), LayerNameProblem::kBad);
}

TEST_F(LayerList, ATakenNameIsRefusedButNotItsOwn) {
    EXPECT_EQ(CheckLayerName(*drawing, L"WALLS"), LayerNameProblem::kTaken);
    EXPECT_EQ(CheckLayerName(*drawing, L"WALLS", layer(L"Doors")), LayerNameProblem::kTaken);
    EXPECT_EQ(CheckLayerName(*drawing, L"WALLS", layer(L"walls")), LayerNameProblem::kNone);
    EXPECT_EQ(CheckLayerName(*drawing, L"zero", layer(L"0")), LayerNameProblem::kFixed);
    layer(L"walls").open<OdDbLayerTableRecord>()->setFlags(16);
    EXPECT_EQ(CheckLayerName(*drawing, L"other", layer(L"walls")), LayerNameProblem::kFixed);
}

TEST_F(LayerList, BlanksAtTheEndsOfANameDoNotCount) {
    EXPECT_EQ(TrimmedLayerName(L"  a b  "), L"a b");
    EXPECT_EQ(TrimmedLayerName(L"   "), L"");
}

TEST_F(LayerList, AFreeNameHasTheFirstNumberThatIsFree) {
    EXPECT_EQ(FreeLayerName(*drawing, L"Layer"), L"Layer1");
    NeedLayer(*drawing, L"LAYER1");
    NeedLayer(*drawing, L"Layer3");
    EXPECT_EQ(FreeLayerName(*drawing, L"Layer"), L"Layer2");
}

TEST_F(LayerList, ALayerThatIsThereIsNotMadeAgain) {
    const OdDbObjectId walls = layer(L"walls");
    EXPECT_EQ(NeedLayer(*drawing, L"Walls"), walls);
    EXPECT_EQ(names().size(), 4u);
}

TEST_F(LayerList, WhatNobodyNeedsIsDeleted) {
    const OdDbObjectId walls = layer(L"walls");
    EXPECT_EQ(DeleteLayers(*drawing, {walls, layer(L"Doors")}).need, LayerNeed::kNone);
    EXPECT_EQ(names(), (Names{L"0", L"outer Walls"}));
    EXPECT_TRUE(walls.isErased());
}

TEST_F(LayerList, WhoNeedsALayerIsSaidAndNothingIsDeletedThen) {
    addLineOn(drawing->modelSpaceId(), layer(L"walls"));
    addLineOn(drawing->modelSpaceId(), layer(L"walls"));
    LayerRefusal refusal = DeleteLayers(*drawing, {layer(L"Doors"), layer(L"walls")});
    EXPECT_EQ(refusal.need, LayerNeed::kHasObjects);
    EXPECT_EQ(refusal.layer, L"walls");
    EXPECT_EQ(refusal.count, 2);
    EXPECT_EQ(names().size(), 4u) << "the other one stays as well";
    EXPECT_EQ(DeleteLayers(*drawing, {layer(L"0")}).need, LayerNeed::kIsStandard);
    drawing->setClayer(layer(L"Doors"));
    EXPECT_EQ(DeleteLayers(*drawing, {layer(L"Doors")}).need, LayerNeed::kIsCurrent);
    layer(L"outer Walls").open<OdDbLayerTableRecord>()->setFlags(16);
    EXPECT_EQ(DeleteLayers(*drawing, {layer(L"outer Walls")}).need, LayerNeed::kIsDependent);
}

TEST_F(LayerList, TheSettingsOfAnotherDrawingsLayersAreTaken) {
    OdDbDatabasePtr other(new OdDbDatabase);
    OdDbLinetypeTablePtr linetypes;
    other->getLinetypeTable(linetypes);
    OdSmartPtr<OdDbLinetypeTableRecord> dashed(new OdDbLinetypeTableRecord);
    OdDbObjectId dashedId;
    OdArray<double> dashes;
    dashes.append(2);
    dashes.append(-1);
    dashed->setName(L"DASHED");
    dashed->setComments(L"__ __");
    dashed->setDashes(dashes);
    linetypes->add(OdDbSymbolTableRecordPtr(dashed.get()), &dashedId);
    OdCmColor red;
    red.setColorIndex(1);
    LayerChange change;
    change.color = red;
    change.isOn = false;
    change.lineWeight = OdDb::kLnWt050;
    change.linetype = dashedId;
    ChangeLayers({NeedLayer(*other, L"WALLS"), NeedLayer(*other, L"roof")}, change);
    layer(L"Doors").open<OdDbLayerTableRecord>()->setColor(red);
    EXPECT_EQ(TakeLayers(*drawing, *other), 3);
    EXPECT_EQ(names(), (Names{L"0", L"Doors", L"outer Walls", L"roof", L"walls"}));
    for (const wchar_t* name : {L"walls", L"roof"}) {
        const auto record = layer(name).open<OdDbLayerTableRecord>();
        EXPECT_EQ(record->colorIndex(), 1);
        EXPECT_TRUE(record->isOff());
        EXPECT_EQ(record->lineWeight(), OdDb::kLnWt050);
        const auto linetype = record->linetypeObjectId().open<OdDbLinetypeTableRecord>();
        EXPECT_EQ(linetype->getName(), L"DASHED");
        EXPECT_EQ(linetype->database(), drawing.get());
        EXPECT_EQ(linetype->comments(), L"__ __");
        EXPECT_EQ(linetype->dashLengthAt(1), -1);
    }
    EXPECT_EQ(layer(L"Doors").open<OdDbLayerTableRecord>()->colorIndex(), 1) << "what the other lacks stays";
    EXPECT_FALSE(layer(L"0").open<OdDbLayerTableRecord>()->isOff());
    EXPECT_EQ(TakeLayers(*drawing, *other), 3);
    EXPECT_EQ(names().size(), 5u) << "once more makes nothing new";
}

TEST_F(LayerList, ABlockThatNeedsALayerIsNamed) {
    OdDbBlockTablePtr blocks;
    drawing->getBlockTable(blocks);
    const OdDbSymbolTableRecordPtr block = blocks->newRecord();
    block->setName(L"DOOR");
    OdDbObjectId id;
    blocks->add(block, &id);
    const OdDbObjectId line = addLineOn(id, layer(L"walls"));
    const LayerRefusal refusal = DeleteLayers(*drawing, {layer(L"walls")});
    EXPECT_EQ(refusal.need, LayerNeed::kIsInBlock);
    EXPECT_EQ(refusal.count, 1);
    EXPECT_EQ(refusal.block, L"DOOR");
    line.open<OdDbEntity>()->setLayer(layer(L"0"));
    line.open<OdDbEntity>()->editGroups().setHandle(331, layer(L"walls").handle());
    EXPECT_EQ(DeleteLayers(*drawing, {layer(L"walls")}).need, LayerNeed::kIsNamed);
}

}  // namespace
