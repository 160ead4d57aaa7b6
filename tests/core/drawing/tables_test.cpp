#include <gtest/gtest.h>

#include "dxf_text.h"

namespace {

OdSmartPtr<OdDbLayerTableRecord> addLayer(OdDbDatabase& drawing, const wchar_t* name) {
    OdDbLayerTablePtr layers;
    drawing.getLayerTable(layers, OdDb::kForWrite);
    OdSmartPtr<OdDbLayerTableRecord> layer(new OdDbLayerTableRecord);
    layer->setName(name);
    EXPECT_EQ(layers->add(layer), kOdOk);
    return layer;
}

std::vector<std::wstring> namesOf(const OdDbSymbolTable& table, bool skipErased = true) {
    std::vector<std::wstring> names;
    OdDbSymbolTableRecordPtr record;
    for (auto it = table.newIterator(true, skipErased); !it->done(); it->step()) {
        EXPECT_EQ(it->getRecord(record), kOdOk);
        names.push_back(std::wstring(record->getName().view()));
    }
    return names;
}

}  // namespace

TEST(Tables, RecordsAreFoundWithoutRegardToCase) {
    OdDbDatabasePtr drawing(new OdDbDatabase);
    const auto layer = addLayer(*drawing, L"Walls");
    OdDbLayerTablePtr layers;
    drawing->getLayerTable(layers);
    EXPECT_TRUE(layers->has(L"WALLS"));
    EXPECT_EQ(layers->getAt(L"walls"), layer->objectId());
    EXPECT_TRUE(layers->has(layer->objectId()));
    EXPECT_FALSE(layers->has(drawing->celtype())) << "a linetype is no layer";
    OdDbObjectId id;
    EXPECT_EQ(layers->getAt(L"DOORS", id), kOdKeyNotFound);
    EXPECT_TRUE(id.isNull());
}

TEST(Tables, AddingRefusesWhatCantBeThere) {
    OdDbDatabasePtr drawing(new OdDbDatabase);
    OdDbLayerTablePtr layers;
    drawing->getLayerTable(layers, OdDb::kForWrite);
    OdSmartPtr<OdDbLayerTableRecord> unnamed(new OdDbLayerTableRecord);
    EXPECT_EQ(layers->add(unnamed), kOdInvalidInput);
    OdSmartPtr<OdDbLayerTableRecord> zero(new OdDbLayerTableRecord);
    zero->setName(L"0");
    EXPECT_EQ(layers->add(zero), kOdDuplicateKey);
    OdSmartPtr<OdDbLinetypeTableRecord> linetype(new OdDbLinetypeTableRecord);
    linetype->setName(L"X");
    EXPECT_EQ(layers->add(linetype), kOdInvalidInput);
    OdDbLayerTable loose;
    EXPECT_EQ(loose.add(zero), kOdNoDatabase);
    const auto layer = addLayer(*drawing, L"A");
    EXPECT_EQ(layers->add(layer), kOdInvalidInput) << "it is in the drawing already";
    EXPECT_EQ(layer->setName(L"B"), kOdInvalidInput) << "others refer to its name";
}

TEST(Tables, IteratorsPassOverErasedRecords) {
    OdDbDatabasePtr drawing(new OdDbDatabase);
    for (const wchar_t* name : {L"A", L"B", L"C"}) addLayer(*drawing, name);
    OdDbLayerTablePtr layers;
    drawing->getLayerTable(layers, OdDb::kForWrite);
    const OdDbObjectId b = layers->getAt(L"B");
    EXPECT_EQ(layers->erase(L"B"), kOdOk);
    EXPECT_EQ(layers->erase(L"B"), kOdKeyNotFound);
    EXPECT_EQ(namesOf(*layers), (std::vector<std::wstring>{L"0", L"A", L"C"}));
    EXPECT_EQ(namesOf(*layers, false), (std::vector<std::wstring>{L"0", L"A", L"B", L"C"}));
    EXPECT_EQ(layers->count(), 3);
    EXPECT_TRUE(b.isErased() && !b.isValid());
    EXPECT_TRUE(b.openObject(OdDb::kForRead, true));
    OdSmartPtr<OdDbLayerTableRecord> record;
    EXPECT_EQ(oddbOpenOdDbObject(record, b), kOdWasErased);
    addLayer(*drawing, L"B");
    EXPECT_EQ(layers->count(), 4) << "the name is free again";
    auto backwards = layers->newIterator(false);
    OdDbObjectId id;
    ASSERT_EQ(backwards->getRecordId(id), kOdOk);
    EXPECT_EQ(id, layers->getAt(L"B"));
    backwards->step(false);
    backwards->getRecordId(id);
    EXPECT_EQ(id, layers->getAt(L"C"));
}

TEST(Tables, IteratorsGoBackOverErasedRecordsAndStartAnew) {
    OdDbDatabasePtr drawing(new OdDbDatabase);
    for (const wchar_t* name : {L"A", L"B", L"C", L"D"}) addLayer(*drawing, name);
    OdDbLayerTablePtr layers;
    drawing->getLayerTable(layers, OdDb::kForWrite);
    layers->erase(L"C");
    std::vector<std::wstring> names;
    OdDbSymbolTableRecordPtr record;
    const auto iterator = layers->newIterator(false);
    for (; !iterator->done(); iterator->step(false)) {
        iterator->getRecord(record);
        names.push_back(std::wstring(record->getName().view()));
    }
    EXPECT_EQ(names, (std::vector<std::wstring>{L"D", L"B", L"A", L"0"}));
    iterator->start();
    iterator->getRecord(record);
    EXPECT_EQ(record->getName(), L"0");
    iterator->start(false);
    iterator->getRecord(record);
    EXPECT_EQ(record->getName(), L"D");
}

TEST(Dictionaries, PassOverEntriesWhoseObjectIsGone) {
    OdDbDatabasePtr drawing(new OdDbDatabase);
    OdDbDictionaryPtr named;
    ASSERT_EQ(drawing->getNamedObjectsDictionary(named, OdDb::kForWrite), kOdOk);
    OdDbDictionary& dictionary = *named;
    std::vector<std::wstring> names;
    for (auto entry = dictionary.newIterator(); !entry->done(); entry->next())
        names.push_back(std::wstring(entry->name().view()));
    for (const wchar_t* name : {L"KTUI_A", L"KTUI_B", L"KTUI_C"})
        ASSERT_EQ(dictionary.setAt(name, OdDbObjectPtr(new OdDbPlaceHolder)), kOdOk);
    const OdDbObjectId erased = dictionary.getAt(L"KTUI_B");
    erased.openObject(OdDb::kForWrite)->erase();
    for (const wchar_t* name : {L"KTUI_A", L"KTUI_C"}) names.push_back(name);
    std::vector<std::wstring> found;
    for (auto entry = dictionary.newIterator(); !entry->done(); entry->next())
        found.push_back(std::wstring(entry->name().view()));
    EXPECT_EQ(found, names);
    EXPECT_TRUE(dictionary.has(dictionary.getAt(L"KTUI_A")));
    EXPECT_FALSE(dictionary.has(drawing->clayer())) << "an object of the drawing that is no entry";
    EXPECT_FALSE(dictionary.has(OdDbObjectId()));
}

TEST(Tables, AnEmptyTableEndsAtOnce) {
    OdDbDatabasePtr drawing(new OdDbDatabase);
    OdDbSymbolTablePtr views;
    drawing->getViewTable(views);
    EXPECT_TRUE(views->newIterator()->done());
    OdDbObjectId id;
    EXPECT_EQ(views->newIterator()->getRecordId(id), kOdKeyNotFound);
}

TEST(Layers, HaveTheirPropertiesAndWriteThem) {
    OdDbDatabasePtr drawing(new OdDbDatabase);
    const auto layer = addLayer(*drawing, L"Walls");
    EXPECT_EQ(layer->colorIndex(), 7);
    EXPECT_EQ(layer->lineWeight(), OdDb::kLnWtByLwDefault);
    OdCmColor color;
    color.setRGB(10, 200, 30);
    layer->setColor(color);
    layer->setIsOff(true);
    layer->setIsLocked(true);
    layer->setIsFrozen(true);
    layer->setIsPlottable(false);
    EXPECT_EQ(layer->setLineWeight(OdDb::kLnWt050), kOdOk);
    EXPECT_EQ(layer->setLineWeight(OdDb::kLnWtByLayer), kOdInvalidInput) << "a layer can't follow itself";
    const OdDbDatabasePtr again = readDrawing(drawing->writeDxfBytes());
    OdDbLayerTablePtr layers;
    again->getLayerTable(layers);
    const auto back = layers->getAt(L"WALLS").open<OdDbLayerTableRecord>();
    ASSERT_TRUE(back);
    EXPECT_EQ(back->color(), color);
    EXPECT_TRUE(back->isOff() && back->isLocked() && back->isFrozen() && !back->isPlottable());
    EXPECT_EQ(back->lineWeight(), OdDb::kLnWt050);
    EXPECT_EQ(back->linetypeObjectId().open<OdDbLinetypeTableRecord>()->getName(), L"Continuous");
    back->setIsOff(false);
    EXPECT_EQ(back->colorIndex(), color.colorIndex());
}

TEST(Layers, TakeAPlotStyleInANamedDrawing) {
    OdDbDatabasePtr drawing(new OdDbDatabase);
    drawing->setPSTYLEMODE(0);
    const auto layer = addLayer(*drawing, L"Walls");
    EXPECT_EQ(layer->setPlotStyleName(L"Normal"), kOdOk);
    EXPECT_EQ(layer->plotStyleName(), L"Normal");
    EXPECT_EQ(layer->setPlotStyleName(L"No such"), kOdKeyNotFound);
    drawing->setPSTYLEMODE(1);
    EXPECT_TRUE(layer->plotStyleName().isEmpty()) << "a colour-dependent drawing has no names";
}

TEST(TextStyles, KeepTheirFonts) {
    const OdDbDatabasePtr drawing = readDrawing(dxf(
        header("AC1015") +
        "0|SECTION\n2|TABLES\n0|TABLE\n2|STYLE\n70|1\n0|STYLE\n5|11\n100|AcDbSymbolTableRecord\n"
        "100|AcDbTextStyleTableRecord\n2|ROMANS\n70|0\n40|2.5\n41|0.8\n50|15\n71|0\n42|2.5\n3|romans.shx\n"
        "4|gbcbig.shx\n1001|ACAD\n1000|Arial\n1071|34\n0|ENDTAB\n0|ENDSEC\n0|EOF"));
    OdDbTextStyleTablePtr styles;
    drawing->getTextStyleTable(styles);
    const auto style = styles->getAt(L"romans").open<OdDbTextStyleTableRecord>();
    ASSERT_TRUE(style);
    EXPECT_EQ(style->fileName(), L"romans.shx");
    EXPECT_EQ(style->bigFontFileName(), L"gbcbig.shx");
    EXPECT_EQ(style->typeFace(), L"Arial");
    EXPECT_EQ(style->textSize(), 2.5);
    EXPECT_EQ(style->xScale(), 0.8);
    EXPECT_NEAR(style->obliquingAngle(), 0.2617993877991494, 1e-15);
    EXPECT_TRUE(styles->has(L"Standard"));
}

TEST(Blocks, KnowWhatTheyAre) {
    OdDbDatabasePtr drawing(new OdDbDatabase);
    OdDbBlockTablePtr blocks;
    drawing->getBlockTable(blocks, OdDb::kForWrite);
    OdSmartPtr<OdDbBlockTableRecord> door(new OdDbBlockTableRecord);
    door->setName(L"DOOR");
    ASSERT_EQ(blocks->add(door), kOdOk);
    door->setOrigin({1, 2, 0});
    OdSmartPtr<OdDbLine> line(new OdDbLine);
    EXPECT_EQ(door->appendOdDbEntity(OdDbEntityPtr(line.get())), kOdOk);
    EXPECT_EQ(door->appendOdDbEntity(OdDbEntityPtr(line.get())), kOdInvalidInput)
        << "it is in the drawing already";
    EXPECT_FALSE(door->isLayout() || door->isAnonymous() || door->isModelSpace());
    EXPECT_EQ(line->layer(), L"0");
    EXPECT_EQ(line->ownerId(), door->objectId());
    const OdDbDatabasePtr again = readDrawing(drawing->writeDxfBytes());
    again->getBlockTable(blocks);
    const auto back = blocks->getAt(L"door").open<OdDbBlockTableRecord>();
    ASSERT_TRUE(back);
    EXPECT_EQ(back->origin(), (OdGePoint3d{1, 2, 0}));
    EXPECT_EQ(back->count(), 1);
    OdDbBlockTableRecord loose;
    EXPECT_EQ(loose.appendOdDbEntity(OdDbEntityPtr(line.get())), kOdNoDatabase);
}
