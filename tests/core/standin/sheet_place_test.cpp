// Where the paper lies under what is drawn on a sheet.
#include "plotting/paper_place.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

class SheetPlaces : public ::testing::Test {
protected:
    void set(int code, double value) {
        OdGroupList& groups = layout->editGroups();
        OdGroup group;
        OdGroupList given;
        given.addReal(code, value);
        if (groups.findIn("AcDbPlotSettings", code, group))
            groups.replace(group.begin, group.end, given);
        else
            groups.add(given);
    }
    OdDbPlotSettingsPtr made() {
        OdDbPlotSettingsPtr settings(new OdDbPlotSettings);
        settings->setPlotPaperSize(297, 210);
        return settings;
    }
    void expectPlace(const SceneExtents& area, double left, double bottom, double right, double top) const {
        EXPECT_NEAR(area.low.x, left, 1e-9);
        EXPECT_NEAR(area.low.y, bottom, 1e-9);
        EXPECT_NEAR(area.high.x, right, 1e-9);
        EXPECT_NEAR(area.high.y, top, 1e-9);
    }

    OdDbPlotSettingsPtr layout = made();
    const SceneExtents content = {{10, 20}, {110, 70}};
};

TEST_F(SheetPlaces, TheOriginIsTheCornerOfWhatCanBePrinted) {
    for (const auto& [code, margin] : {std::pair(40, 7.0), {41, 10.0}, {42, 5.0}, {43, 4.0}})
        set(code, margin);
    const SheetPlace sheet = PlaceSheet(*layout, content);
    expectPlace(sheet.paper, -7, -10, 290, 200);
    expectPlace(sheet.printable, 0, 0, 285, 196);
}

TEST_F(SheetPlaces, AMovedOriginMovesThePaperTheOtherWay) {
    set(46, 30);
    set(47, -20);
    expectPlace(PlaceSheet(*layout, content).paper, -30, 20, 267, 230);
}

TEST_F(SheetPlaces, ATurnedSheetLiesTurned) {
    layout->setPlotTurned(true);
    expectPlace(PlaceSheet(*layout, content).paper, 0, 0, 210, 297);
}

TEST_F(SheetPlaces, TheScaleIsPaperToDrawing) {
    ASSERT_EQ(layout->setPlotScale(1, 10), kOdOk);
    expectPlace(PlaceSheet(*layout, content).paper, 0, 0, 2970, 2100);
}

TEST_F(SheetPlaces, AFittedSheetLiesAroundItsContent) {
    layout->setPlotFitted();
    const SheetPlace sheet = PlaceSheet(*layout, content);
    EXPECT_TRUE(sheet.paper.holds(content));
    EXPECT_NEAR(sheet.paper.low.x + sheet.paper.high.x, 120, 1e-9) << "in the middle";
    EXPECT_NEAR(sheet.paper.low.y + sheet.paper.high.y, 90, 1e-9);
    EXPECT_NEAR(sheet.paper.high.x - sheet.paper.low.x, 297 * 100.0 / 287, 1e-9)
        << "five millimetres each side";
}

TEST_F(SheetPlaces, WithoutAContentASheetIsThereAllTheSame) {
    expectPlace(PlaceSheet(*layout, {}).paper, 0, 0, 297, 210);
    layout->setPlotPaperSize(0, 0);
    EXPECT_FALSE(PlaceSheet(*layout, {}).paper.isEmpty());
}

TEST_F(SheetPlaces, SettingsWithoutSenseGiveNoSheet) {
    set(46, std::numeric_limits<double>::infinity());
    EXPECT_TRUE(PlaceSheet(*layout, content).paper.isEmpty());
    EXPECT_TRUE(PlaceSheet(*layout, content).printable.isEmpty());
}

}  // namespace
