// The drawings that come with the sample host are whole, and hold what the host shows with them.
#include <gtest/gtest.h>

#include <map>
#include <set>

#include "dxf_text.h"

namespace {

OdDbDatabasePtr sample(const char* name) {
    const std::string path = std::string(KTUI_SAMPLE_DRAWINGS) + "/" + name;
    OdDbDatabasePtr drawing(new OdDbDatabase);
    OdDbDxfError error;
    EXPECT_EQ(drawing->readDxf(odWide(path), &error), kOdOk)
        << odUtf8(error.text.view()) << " line " << error.line;
    return drawing;
}

/// Count of the entities of model space for each type name.
std::map<std::string, int> kinds(OdDbDatabase& drawing) {
    std::map<std::string, int> counts;
    for (OdDbEntity* entity : modelEntities(drawing)) ++counts[entity->dxfName()];
    return counts;
}

}  // namespace

TEST(SampleDrawings, AreStableInEveryVersion) {
    for (const char* name : {"bracket.dxf", "floor_plan.dxf", "site_plan.dxf"}) {
        const OdDbDatabasePtr drawing = sample(name);
        for (const OdDb::DwgVersion version : kAllVersions) {
            const std::string text = drawing->writeDxfBytes(version);
            EXPECT_EQ(readDrawing(text)->writeDxfBytes(), text) << name << " version " << version;
        }
    }
}

TEST(SampleDrawings, TheBracketHasLinetypesWeightsTrueColorsAndDimensions) {
    const OdDbDatabasePtr drawing = sample("bracket.dxf");
    OdDbLayerTablePtr layers;
    drawing->getLayerTable(layers);
    EXPECT_TRUE(layers->getAt(L"FASTENERS").open<OdDbLayerTableRecord>()->color().isByColor());
    const auto outline = layers->getAt(L"OUTLINE").open<OdDbLayerTableRecord>();
    EXPECT_EQ(outline->lineWeight(), OdDb::kLnWt050);
    EXPECT_EQ(drawing->clayer(), outline->objectId());
    const auto center = layers->getAt(L"CENTER").open<OdDbLayerTableRecord>()->linetypeObjectId();
    EXPECT_EQ(center.open<OdDbLinetypeTableRecord>()->numDashes(), 4);
    int links = 0;
    for (OdDbEntity* entity : modelEntities(*drawing)) {
        links += entity->hyperlink().isEmpty() ? 0 : 1;
        if (const auto* dimension = dynamic_cast<OdDbDimension*>(entity)) {
            EXPECT_GT(dimension->dimBlockId().open<OdDbBlockTableRecord>()->count(), 3);
        }
    }
    EXPECT_EQ(links, 1);
    EXPECT_GE(kinds(*drawing)["DIMENSION"], 10);
    EXPECT_EQ(drawing->getMEASUREMENT(), 1);
}

TEST(SampleDrawings, TheFloorPlanIsInFeetAndInches) {
    const OdDbDatabasePtr drawing = sample("floor_plan.dxf");
    EXPECT_EQ(drawing->getLUNITS(), OdDb::kArchitectural);
    EXPECT_EQ(drawing->getMEASUREMENT(), 0);
    EXPECT_EQ(drawing->getINSUNITS(), 1);
    int attributes = 0;
    for (OdDbEntity* entity : modelEntities(*drawing))
        if (const auto* insert = dynamic_cast<OdDbBlockReference*>(entity)) {
            EXPECT_FALSE(insert->blockTableRecord().isNull()) << odUtf8(insert->groups().text(2).view());
            attributes += insert->attributes().length();
        }
    EXPECT_EQ(attributes, 7) << "a letter or number at each end of the grid";
    EXPECT_GE(kinds(*drawing)["INSERT"], 25);
}

TEST(SampleDrawings, TheSitePlanHasReferencesPlotStylesAndLayouts) {
    const OdDbDatabasePtr drawing = sample("site_plan.dxf");
    EXPECT_EQ(drawing->getPSTYLEMODE(), 0);
    EXPECT_EQ(drawing->getAUNITS(), OdDb::kSurveyor);
    OdDbLinetypeTablePtr linetypes;
    drawing->getLinetypeTable(linetypes);
    std::set<std::wstring> dependent;
    OdDbSymbolTableRecordPtr record;
    for (auto it = linetypes->newIterator(); !it->done(); it->step())
        if (it->getRecord(record) == kOdOk && record->isDependent())
            dependent.emplace(record->getName().view());
    EXPECT_EQ(dependent, (std::set<std::wstring>{L"SURVEY|DASHED", L"SURVEY|FENCE", L"UTILITIES|WATER"}));
    OdDbDictionaryPtr names, layouts;
    ASSERT_EQ(drawing->getPlotStyleNameDictionary(names), kOdOk);
    EXPECT_EQ(names->numEntries(), 5);
    ASSERT_EQ(drawing->getLayoutDictionary(layouts), kOdOk);
    EXPECT_EQ(layouts->numEntries(), 3);
    EXPECT_EQ(drawing->currentLayoutId().open<OdDbLayout>()->getCurrentStyleSheet(), L"velmora.stb");
    OdDbLayerTablePtr layers;
    drawing->getLayerTable(layers);
    EXPECT_EQ(layers->getAt(L"C-BLDG").open<OdDbLayerTableRecord>()->plotStyleName(), L"Heavy");
    EXPECT_TRUE(drawing->modelSpaceId().open<OdDbBlockTableRecord>()->count() > 100);
}

TEST(SampleDrawings, DimensionAndTextStylesDiffer) {
    const OdDbDatabasePtr plan = sample("floor_plan.dxf"), site = sample("site_plan.dxf");
    const auto ticks = plan->dimstyle().open<OdDbDimStyleTableRecord>();
    EXPECT_EQ(ticks->getName(), L"ARCHITECTURAL");
    EXPECT_EQ(ticks->dimblk(), L"_ArchTick");
    EXPECT_FALSE(ticks->dimsah());
    const auto survey = site->dimstyle().open<OdDbDimStyleTableRecord>();
    EXPECT_TRUE(survey->dimsah());
    EXPECT_EQ(survey->dimblk1(), L"_Dot");
    EXPECT_EQ(survey->dimblk2(), L"_ArchTick");
    OdDbTextStyleTablePtr styles;
    site->getTextStyleTable(styles);
    const auto titles = styles->getAt(L"TITLES").open<OdDbTextStyleTableRecord>();
    EXPECT_EQ(titles->typeFace(), L"Arial");
    const auto notes = styles->getAt(L"NOTES").open<OdDbTextStyleTableRecord>();
    EXPECT_EQ(notes->fileName(), L"drafter.shx");
    EXPECT_EQ(notes->bigFontFileName(), L"drafterc.shx");
}
