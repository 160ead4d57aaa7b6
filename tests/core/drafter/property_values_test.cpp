// Properties of objects and current settings, as the dialog reads and writes them.
#include <gtest/gtest.h>

#include "property_values.h"
#include "scene_builder.h"

namespace {

class PropertyValuesTest : public ::testing::Test {
protected:
    PropertyValuesTest() {
        for (int i = 0; i < 2; ++i) {
            OdDbEntityPtr line(new OdDbLine);
            OdDbObjectId id;
            drawing->modelSpaceId().open<OdDbBlockTableRecord>()->appendOdDbEntity(line, &id);
            lines.push_back(id);
        }
        OdDbLinetypeTablePtr linetypes;
        drawing->getLinetypeTable(linetypes, OdDb::kForWrite);
        OdSmartPtr<OdDbLinetypeTableRecord> dashed(new OdDbLinetypeTableRecord);
        dashed->setName(L"DASHED");
        OdArray<double> dashes;
        dashes.append(2);
        dashes.append(-1);
        dashed->setDashes(dashes);
        linetypes->add(OdDbSymbolTableRecordPtr(dashed.get()), &dashedId);
    }
    OdDbEntityPtr line(int index) { return lines[static_cast<std::size_t>(index)].open<OdDbEntity>(); }

    OdDbDatabasePtr drawing{new OdDbDatabase};
    std::vector<OdDbObjectId> lines;
    OdDbObjectId dashedId;
};

}  // namespace

TEST_F(PropertyValuesTest, WhatObjectsShareIsReadAndWhatDiffersIsNot) {
    line(0)->setLinetype(dashedId);
    line(1)->setLineWeight(OdDb::kLnWt050);
    PropertyValues values = ReadProperties(*drawing, lines);
    EXPECT_FALSE(values.linetype);
    EXPECT_FALSE(values.lineWeight);
    EXPECT_EQ(values.linetypeScale, 1);
    values = ReadProperties(*drawing, {lines[0]});
    EXPECT_EQ(values.linetype, dashedId);
    EXPECT_EQ(values.lineWeight, OdDb::kLnWtByLayer);
}

TEST_F(PropertyValuesTest, OnlyWhatIsThereIsWritten) {
    line(0)->setLineWeight(OdDb::kLnWt013);
    PropertyValues values;
    values.linetype = dashedId;
    values.linetypeScale = 0.5;
    WriteProperties(*drawing, lines, values);
    for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(line(i)->linetypeId(), dashedId);
        EXPECT_EQ(line(i)->linetypeScale(), 0.5);
    }
    EXPECT_EQ(line(0)->lineWeight(), OdDb::kLnWt013);
    EXPECT_EQ(line(1)->lineWeight(), OdDb::kLnWtByLayer);
}

TEST_F(PropertyValuesTest, PlotStylesCountInANamedDrawingOnlyAndAnUnknownOneIsMade) {
    EXPECT_FALSE(ReadProperties(*drawing, lines).plotStyle) << "a new drawing depends on colours";
    drawing->setPSTYLEMODE(0);
    EXPECT_EQ(*ReadProperties(*drawing, lines).plotStyle, L"ByLayer");
    EXPECT_EQ(*ReadProperties(*drawing, {}).plotStyle, L"ByLayer");
    PropertyValues values;
    values.plotStyle = OdString(L"Heavy");
    WriteProperties(*drawing, lines, values);
    EXPECT_EQ(line(1)->plotStyleName(), L"Heavy");
    WriteProperties(*drawing, {}, values);
    EXPECT_EQ(drawing->currentPlotStyleName(), L"Heavy");
    OdDbDictionaryPtr names;
    drawing->getPlotStyleNameDictionary(names);
    EXPECT_TRUE(names->has(L"Heavy"));
    values.plotStyle = OdString(L"ByBlock");
    WriteProperties(*drawing, lines, values);
    EXPECT_FALSE(names->has(L"ByBlock"));
    EXPECT_EQ(line(0)->plotStyleName(), L"ByBlock");
}

TEST_F(PropertyValuesTest, CurrentSettingsAreReadAndWritten) {
    PropertyValues values;
    values.linetype = dashedId;
    values.lineWeight = OdDb::kLnWt100;
    values.linetypeScale = 2;
    WriteProperties(*drawing, {}, values);
    values = ReadProperties(*drawing, {});
    EXPECT_EQ(values.linetype, dashedId);
    EXPECT_EQ(values.lineWeight, OdDb::kLnWt100);
    EXPECT_EQ(values.linetypeScale, 2);
    EXPECT_EQ(line(0)->linetype(), L"ByLayer");
}

TEST_F(PropertyValuesTest, WhatIsPickedIsWhatIsDrawn) {
    PropertyValues values;
    values.linetype = dashedId;
    values.linetypeScale = 3;
    values.lineWeight = OdDb::kLnWt070;
    WriteProperties(*drawing, {lines[0]}, values);
    const Scene scene = BuildScene(*drawing, drawing->modelSpaceId());
    ASSERT_EQ(scene.paths.size(), 2u);
    EXPECT_EQ(scene.paths[0].style.dashes, (std::vector<double>{6, -3}));
    EXPECT_EQ(scene.paths[0].style.lineWeight, 70);
    EXPECT_TRUE(scene.paths[1].style.dashes.empty());
}
