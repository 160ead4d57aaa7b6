// Plot settings: paper, scale, and that they are kept in files, also those that override a layout's own.
#include <gtest/gtest.h>
#include <od_db.h>

#include <cstdio>
#include <filesystem>

namespace {

constexpr const wchar_t* kName = L"AcPublish_PlotSettingsOverride";

OdDbLayoutPtr layoutOf(OdDbDatabase& drawing) {
    return drawing.currentLayoutId().open<OdDbLayout>(OdDb::kForWrite);
}

}  // namespace

TEST(PlotSettings, ANewLayoutIsA3AtItsOwnSize) {
    OdDbDatabasePtr drawing(new OdDbDatabase);
    const OdDbLayoutPtr layout = layoutOf(*drawing);
    EXPECT_EQ(layout->getPlotPaperWidth(), 420);
    EXPECT_EQ(layout->getPlotPaperHeight(), 297);
    EXPECT_EQ(layout->getPlotScale(), 1);
    EXPECT_FALSE(layout->isPlotFitted());
    EXPECT_FALSE(layout->isPlotTurned());
    EXPECT_FALSE(layout->isPlotInInches());
    EXPECT_TRUE(layout->modelType());
}

TEST(PlotSettings, WhatIsSetIsReadBackAndNothingElseChanges) {
    OdDbDatabasePtr drawing(new OdDbDatabase);
    const OdDbLayoutPtr layout = layoutOf(*drawing);
    const OdString name = layout->getLayoutName();
    layout->setPlotPaperSize(210, 297.5);
    layout->setPlotTurned(true);
    layout->setCanonicalMediaName(L"A4");
    EXPECT_EQ(layout->setPlotScale(1, 50), kOdOk);
    EXPECT_EQ(layout->getPlotPaperWidth(), 210);
    EXPECT_EQ(layout->getPlotPaperHeight(), 297.5);
    EXPECT_TRUE(layout->isPlotTurned());
    EXPECT_STREQ(layout->getCanonicalMediaName(), L"A4");
    EXPECT_EQ(layout->getPlotScale(), 0.02);
    EXPECT_FALSE(layout->isPlotFitted());
    layout->setPlotFitted();
    EXPECT_TRUE(layout->isPlotFitted());
    EXPECT_TRUE(layout->modelType()) << "another flag";
    EXPECT_EQ(layout->setPlotScale(2, 1), kOdOk);
    EXPECT_FALSE(layout->isPlotFitted());
    EXPECT_EQ(layout->getPlotScale(), 2);
    EXPECT_EQ(layout->getLayoutName(), name);
    layout->setPlotTurned(false);
    EXPECT_FALSE(layout->isPlotTurned());
}

TEST(PlotSettings, AScaleOfNothingIsRefused) {
    OdDbPlotSettingsPtr settings(new OdDbPlotSettings);
    for (const auto& [paper, units] : {std::pair(0.0, 1.0), {1.0, 0.0}, {-1.0, 1.0}, {1.0, -1.0}})
        EXPECT_EQ(settings->setPlotScale(paper, units), kOdInvalidInput);
    EXPECT_EQ(settings->getPlotScale(), 1);
    EXPECT_EQ(settings->getPlotPaperWidth(), 0);
}

TEST(PlotSettings, MarginsOriginAndUnitsAreReadFromTheirGroups) {
    OdDbPlotSettingsPtr settings(new OdDbPlotSettings);
    settings->setPlotFitted();
    OdGroupList& groups = settings->editGroups();
    for (int code = 40; code <= 43; ++code) groups.setReal(code, code);
    groups.setReal(46, 3);
    groups.setReal(47, 4);
    groups.setInteger(72, 0);
    const OdDbPlotMargins margins = settings->getPlotPaperMargins();
    EXPECT_EQ(margins.left, 40);
    EXPECT_EQ(margins.bottom, 41);
    EXPECT_EQ(margins.right, 42);
    EXPECT_EQ(margins.top, 43);
    EXPECT_EQ(settings->getPlotOrigin().x, 3);
    EXPECT_EQ(settings->getPlotOrigin().y, 4);
    EXPECT_TRUE(settings->isPlotInInches());
}

TEST(PlotSettings, AnOverrideIsKeptInFilesOfEachForm) {
    const auto path = std::filesystem::temp_directory_path() / "ktui-plot-override.dxf";
    for (const bool binary : {false, true}) {
        OdDbDatabasePtr drawing(new OdDbDatabase);
        const OdDbLayoutPtr layout = layoutOf(*drawing);
        EXPECT_EQ(layout->createExtensionDictionary(), 0);
        EXPECT_EQ(layout->createExtensionDictionary(), 31);
        OdDbPlotSettingsPtr settings(new OdDbPlotSettings);
        settings->copyFrom(*layout);
        settings->setPlotPaperSize(594, 841);
        settings->setPlotScale(1, 20);
        const auto dictionary = layout->extensionDictionary().open<OdDbDictionary>(OdDb::kForWrite);
        ASSERT_EQ(dictionary->setAt(kName, OdDbObjectPtr(settings.get())), kOdOk);
        ASSERT_EQ(drawing->writeDxf(path.wstring().c_str(), OdDxfForm{OdDb::kDHL_1032, binary}), kOdOk);

        OdDbDatabasePtr read(new OdDbDatabase);
        ASSERT_EQ(read->readDxf(path.wstring().c_str()), kOdOk);
        const auto entries = layoutOf(*read)->extensionDictionary().open<OdDbDictionary>();
        ASSERT_TRUE(entries);
        const auto kept = entries->getAt(kName).open<OdDbPlotSettings>();
        ASSERT_TRUE(kept);
        EXPECT_EQ(kept->getPlotPaperWidth(), 594);
        EXPECT_EQ(kept->getPlotPaperHeight(), 841);
        EXPECT_EQ(kept->getPlotScale(), 0.05);
        EXPECT_TRUE(kept->modelType());
    }
    std::filesystem::remove(path);
}
