#include <gtest/gtest.h>

#include "dxf_text.h"

TEST(Database, ANewDrawingIsComplete) {
    OdDbDatabasePtr drawing(new OdDbDatabase);
    EXPECT_EQ(drawing->originalFileVersion(), OdDb::kDHL_1032);
    EXPECT_FALSE(drawing->isModified());
    EXPECT_EQ(drawing->clayer().open<OdDbLayerTableRecord>()->getName(), L"0");
    EXPECT_EQ(drawing->celtype().open<OdDbLinetypeTableRecord>()->getName(), L"ByLayer");
    EXPECT_EQ(drawing->textstyle().open<OdDbTextStyleTableRecord>()->getName(), L"Standard");
    EXPECT_EQ(drawing->currentSpaceId(), drawing->modelSpaceId());
    EXPECT_NE(drawing->paperSpaceId(), drawing->modelSpaceId());
    const auto layout = drawing->currentLayoutId().open<OdDbLayout>();
    ASSERT_TRUE(layout);
    EXPECT_EQ(layout->getLayoutName(), L"Model");
    EXPECT_TRUE(layout->modelType());
    EXPECT_EQ(layout->getBlockTableRecordId(), drawing->modelSpaceId());
    EXPECT_EQ(drawing->getLUNITS(), 2);
    EXPECT_EQ(drawing->getINSUNITS(), 4);
    EXPECT_EQ(drawing->getPSTYLEMODE(), 1);
    EXPECT_EQ(drawing->getLTSCALE(), 1.0);
}

TEST(Database, EveryLayoutHasItsBlock) {
    OdDbDatabasePtr drawing(new OdDbDatabase);
    OdDbDictionaryPtr layouts;
    ASSERT_EQ(drawing->getLayoutDictionary(layouts), kOdOk);
    EXPECT_EQ(layouts->numEntries(), 2);
    for (auto it = layouts->newIterator(); !it->done(); it->next()) {
        const auto layout = it->objectId().open<OdDbLayout>();
        ASSERT_TRUE(layout);
        EXPECT_EQ(layout->getLayoutName(), it->name());
        EXPECT_EQ(layout->getBlockTableRecordId().open<OdDbBlockTableRecord>()->getLayoutId(),
                  layout->objectId());
    }
}

TEST(Database, HeaderVariablesAreSetAndWritten) {
    OdDbDatabasePtr drawing(new OdDbDatabase);
    drawing->setLUNITS(4);
    drawing->setLUPREC(3);
    drawing->setANGBASE(1.5707963267948966);
    drawing->setINDEXCTL(2);
    drawing->setPROXYGRAPHICS(0);
    drawing->setEXTMAX({1, 2, 3});
    EXPECT_TRUE(drawing->isModified());
    const OdDbDatabasePtr again = readDrawing(drawing->writeDxfBytes());
    EXPECT_EQ(again->getLUNITS(), 4);
    EXPECT_EQ(again->units().luprec, 3);
    EXPECT_NEAR(again->getANGBASE(), 1.5707963267948966, 1e-15);
    EXPECT_EQ(again->header().find("ANGBASE")->real(50), 90.0) << "files hold degrees";
    EXPECT_EQ(again->getINDEXCTL(), 2);
    EXPECT_EQ(again->getPROXYGRAPHICS(), 0);
    EXPECT_EQ(again->getEXTMAX(), (OdGePoint3d{1, 2, 3}));
}

TEST(Database, UnitsOutOfRangeAreBroughtIn) {
    OdDbDatabasePtr drawing(new OdDbDatabase);
    drawing->setLUNITS(99);
    drawing->setLUPREC(-5);
    drawing->setAUPREC(40);
    EXPECT_EQ(drawing->units().lunits, 5);
    EXPECT_EQ(drawing->units().luprec, 0);
    EXPECT_EQ(drawing->units().auprec, 8);
}

TEST(Database, CurrentPropertiesMustBeOfTheDrawing) {
    OdDbDatabasePtr drawing(new OdDbDatabase);
    OdDbDatabasePtr other(new OdDbDatabase);
    EXPECT_EQ(drawing->setClayer(other->clayer()), kOdInvalidInput);
    EXPECT_EQ(drawing->setClayer(drawing->celtype()), kOdInvalidInput);
    EXPECT_EQ(drawing->setCeltype(drawing->clayer()), kOdInvalidInput);
    EXPECT_EQ(drawing->setTextstyle(OdDbObjectId::kNull), kOdInvalidInput);
    EXPECT_EQ(drawing->setCelweight(static_cast<OdDb::LineWeight>(3)), kOdInvalidInput);
    OdCmColor color;
    color.setRGB(9, 8, 7);
    drawing->setCecolor(color);
    EXPECT_EQ(drawing->cecolor(), color);
    EXPECT_EQ(readDrawing(drawing->writeDxfBytes())->cecolor(), color);
    EXPECT_TRUE(readDrawing(drawing->writeDxfBytes(OdDb::kDHL_1015))->cecolor().isByACI())
        << "2000 has no true colours";
}

TEST(Database, PaperSpaceIsCurrentWithoutTiles) {
    OdDbDatabasePtr drawing(new OdDbDatabase);
    drawing->setTILEMODE(0);
    EXPECT_EQ(drawing->currentSpaceId(), drawing->paperSpaceId());
    EXPECT_EQ(drawing->currentLayoutId().open<OdDbLayout>()->getLayoutName(), L"Layout1");
}

TEST(Database, MissingPartsOfAFileAreMade) {
    const OdDbDatabasePtr drawing = readDrawing(dxf("0|EOF"));
    ASSERT_TRUE(drawing);
    EXPECT_EQ(drawing->originalFileVersion(), OdDb::kDHL_1009);
    EXPECT_FALSE(drawing->clayer().isNull());
    EXPECT_FALSE(drawing->celtype().isNull());
    EXPECT_FALSE(drawing->modelSpaceId().isNull());
}

TEST(Database, IdsSurviveAReadAndErasing) {
    OdDbDatabasePtr drawing(new OdDbDatabase);
    const OdDbObjectId layer = drawing->clayer();
    EXPECT_TRUE(layer.isValid());
    ASSERT_EQ(drawing->readDxfBytes(dxf("0|EOF")), kOdOk);
    EXPECT_EQ(layer.database(), drawing.get());
    EXPECT_TRUE(OdDbObjectId(drawing.get(), 0xFFFFFF).openObject().isNull());
    EXPECT_TRUE(OdDbObjectId::kNull.isNull());
    EXPECT_FALSE(OdDbObjectId::kNull.isValid());
    EXPECT_TRUE(OdDbObjectId(nullptr, 5).isNull());
    EXPECT_TRUE(OdDbObjectId(drawing.get(), 1) < OdDbObjectId(drawing.get(), 2));
}

TEST(Database, ObjectsOutliveTheirDrawing) {
    OdDbObjectPtr layer;
    {
        OdDbDatabasePtr drawing(new OdDbDatabase);
        layer = drawing->clayer().openObject();
    }
    EXPECT_EQ(layer->database(), nullptr);
    EXPECT_TRUE(layer->objectId().isNull());
}

TEST(Dictionaries, HoldNamesInOrder) {
    OdDbDatabasePtr drawing(new OdDbDatabase);
    OdDbDictionaryPtr root;
    ASSERT_EQ(drawing->getNamedObjectsDictionary(root, OdDb::kForWrite), kOdOk);
    OdSmartPtr<OdDbDictionary> mine(new OdDbDictionary);
    OdDbObjectId id;
    ASSERT_EQ(root->setAt(L"MINE", OdDbObjectPtr(mine.get()), &id), kOdOk);
    for (const wchar_t* name : {L"b", L"a", L"c"}) EXPECT_EQ(mine->setAt(name, new OdDbPlaceHolder), kOdOk);
    EXPECT_TRUE(mine->has(L"A"));
    EXPECT_EQ(mine->remove(L"a"), kOdOk);
    EXPECT_EQ(mine->remove(L"a"), kOdKeyNotFound);
    EXPECT_EQ(mine->setAt(L"", new OdDbPlaceHolder), kOdInvalidInput);
    const OdDbDatabasePtr again = readDrawing(drawing->writeDxfBytes());
    again->getNamedObjectsDictionary(root);
    const auto back = root->getAt(L"mine").open<OdDbDictionary>();
    ASSERT_TRUE(back);
    std::wstring names;
    for (auto it = back->newIterator(); !it->done(); it->next()) names += it->name().c_str();
    EXPECT_EQ(names, L"bc");
    EXPECT_EQ(back->nameAt(back->getAt(L"c")), L"c");
}

TEST(Dictionaries, PlotStylesHaveADefault) {
    OdDbDatabasePtr drawing(new OdDbDatabase);
    OdDbDictionaryPtr names;
    ASSERT_EQ(drawing->getPlotStyleNameDictionary(names), kOdOk);
    EXPECT_EQ(names->defaultId(), names->getAt(L"Normal"));
    const OdDbDatabasePtr again = readDrawing(drawing->writeDxfBytes());
    ASSERT_EQ(again->getPlotStyleNameDictionary(names), kOdOk);
    EXPECT_STREQ(names->dxfName(), "ACDBDICTIONARYWDFLT");
    EXPECT_EQ(names->defaultId(), names->getAt(L"Normal"));
}

TEST(Objects, TakeAnExtensionDictionaryOnce) {
    OdDbDatabasePtr drawing(new OdDbDatabase);
    const auto layout = drawing->currentLayoutId().open<OdDbLayout>(OdDb::kForWrite);
    EXPECT_TRUE(layout->extensionDictionary().isNull());
    EXPECT_EQ(layout->createExtensionDictionary(), 0);
    EXPECT_EQ(layout->createExtensionDictionary(), 31);
    const auto dictionary = layout->extensionDictionary().open<OdDbDictionary>(OdDb::kForWrite);
    ASSERT_TRUE(dictionary);
    OdSmartPtr<OdDbPlotSettings> settings(new OdDbPlotSettings);
    settings->copyFrom(*layout);
    settings->setCurrentStyleSheet(L"mono.ctb");
    ASSERT_EQ(dictionary->setAt(L"OVERRIDE", OdDbObjectPtr(settings.get())), kOdOk);
    const OdDbDatabasePtr again = readDrawing(drawing->writeDxfBytes());
    const auto back = again->currentLayoutId().open<OdDbLayout>();
    const auto extension = back->extensionDictionary().open<OdDbDictionary>();
    ASSERT_TRUE(extension);
    const auto copy = extension->getAt(L"OVERRIDE").open<OdDbPlotSettings>();
    ASSERT_TRUE(copy);
    EXPECT_EQ(copy->getCurrentStyleSheet(), L"mono.ctb");
    EXPECT_TRUE(copy->modelType());
    EXPECT_TRUE(back->getCurrentStyleSheet().isEmpty());
}

TEST(PlotSettings, AreEditedWithoutTouchingTheLayout) {
    OdDbDatabasePtr drawing(new OdDbDatabase);
    const auto layout = drawing->currentLayoutId().open<OdDbLayout>(OdDb::kForWrite);
    layout->setCurrentStyleSheet(L"acad.stb");
    layout->setModelType(false);
    EXPECT_EQ(layout->getCurrentStyleSheet(), L"acad.stb");
    EXPECT_FALSE(layout->modelType());
    EXPECT_EQ(layout->getLayoutName(), L"Model");
    EXPECT_EQ(layout->getTabOrder(), 0);
    OdDbPlotSettings bare;
    EXPECT_FALSE(bare.modelType());
    bare.setCurrentStyleSheet(L"x.ctb");
    EXPECT_EQ(bare.getCurrentStyleSheet(), L"x.ctb");
}

TEST(HostServices, AreNoneUntilInstalled) {
    EXPECT_EQ(oddbHostApplicationServices(), nullptr);
    OdDbHostAppServices services;
    oddbSetHostApplicationServices(&services);
    EXPECT_EQ(oddbHostApplicationServices()->workingDatabase(), nullptr);
    EXPECT_EQ(services.measurementInit(), 1);
    EXPECT_EQ(services.defaultLineWeight(), OdDb::kLnWt025);
    EXPECT_FALSE(services.registryProductRootKey().isEmpty());
    oddbSetHostApplicationServices(nullptr);
}

TEST(Header, SettingsOfUnitsAreThoseOfTheDrawingWithinTheirRanges) {
    const auto units = [](const std::string& variables) {
        return readDrawing(dxf("0|SECTION\n2|HEADER\n9|$ACADVER\n1|AC1015\n" + variables + "0|ENDSEC\n0|EOF"))
            ->units();
    };
    const OdDbUnitSettings set = units(
        "9|$LUNITS\n70|1\n9|$LUPREC\n70|8\n9|$AUNITS\n70|4\n9|$AUPREC\n70|7\n"
        "9|$UNITMODE\n70|1\n9|$ANGDIR\n70|1\n");
    EXPECT_EQ(set.lunits, 1);
    EXPECT_EQ(set.luprec, 8);
    EXPECT_EQ(set.aunits, 4);
    EXPECT_EQ(set.auprec, 7);
    EXPECT_EQ(set.unitmode, 1);
    EXPECT_EQ(set.angdir, 1);
    const OdDbUnitSettings high = units(
        "9|$LUNITS\n70|6\n9|$LUPREC\n70|9\n9|$AUNITS\n70|5\n9|$AUPREC\n70|9\n"
        "9|$UNITMODE\n70|2\n9|$ANGDIR\n70|2\n");
    EXPECT_EQ(high.lunits, 5);
    EXPECT_EQ(high.luprec, 8);
    EXPECT_EQ(high.aunits, 4);
    EXPECT_EQ(high.auprec, 8);
    EXPECT_EQ(high.unitmode, 1);
    EXPECT_EQ(high.angdir, 1);
    const OdDbUnitSettings low = units(
        "9|$LUNITS\n70|0\n9|$LUPREC\n70|-1\n9|$AUNITS\n70|-1\n9|$AUPREC\n70|-1\n"
        "9|$UNITMODE\n70|-1\n9|$ANGDIR\n70|-1\n");
    EXPECT_EQ(low.lunits, 1);
    EXPECT_EQ(low.luprec, 0);
    EXPECT_EQ(low.aunits, 0);
    EXPECT_EQ(low.auprec, 0);
    EXPECT_EQ(low.unitmode, 0);
    EXPECT_EQ(low.angdir, 0);
}
