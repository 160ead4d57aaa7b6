// How scenes become operators: ink, dashes, curves, places of texts, and where sheets lie on paper.
#include "plotting/scene_plotter.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <sstream>

#include "plot_faces.h"
#include "scene_builder.h"

namespace {

using Lengths = std::vector<double>;

OdCmColor numbered(int index) {
    OdCmColor color;
    color.setColorIndex(index);
    return color;
}

class Plotted : public ::testing::Test {
protected:
    OdDbDatabasePtr drawing{new OdDbDatabase};
    PaperPlace place;
    PlotLook look;

    OdDbObjectId model() const {
        OdDbBlockTablePtr blocks;
        drawing->getBlockTable(blocks);
        return blocks->getAt(L"*Model_Space");
    }
    template <class Entity>
    Entity* add(OdSmartPtr<Entity> entity) {
        entity->setDatabaseDefaults(drawing.get());
        model().open<OdDbBlockTableRecord>(OdDb::kForWrite)->appendOdDbEntity(OdDbEntityPtr(entity.get()));
        return entity.get();
    }
    OdDbLine* addLine(double x0, double y0, double x1, double y1) {
        OdDbLine* line = add(OdSmartPtr<OdDbLine>(new OdDbLine));
        line->setStartPoint({x0, y0, 0});
        line->setEndPoint({x1, y1, 0});
        return line;
    }
    Scene scene(SceneUse use = SceneUse::kPaper) const {
        SceneBuilder builder(*drawing, use);
        builder.addBlock(model());
        return builder.take();
    }
    std::string plot() const { return plot(scene()); }
    std::string plot(const Scene& shown) const {
        PdfWriter file;
        PdfPage& page = file.addPage(100, 100);
        PlotScene(file, page, shown, place, plot_test::face, look);
        return page.content();
    }
    static bool has(const std::string& text, const char* part) {
        return text.find(part) != std::string::npos;
    }
    /// How many lines of a page are just this.
    static int linesOf(const std::string& content, const std::string& wanted) {
        int found = 0;
        std::istringstream lines(content);
        for (std::string line; std::getline(lines, line);) found += line == wanted;
        return found;
    }
    /// The curves of a page: six numbers each.
    static std::vector<std::array<double, 6>> curvesOf(const std::string& content) {
        std::vector<std::array<double, 6>> curves;
        std::istringstream lines(content);
        for (std::string line; std::getline(lines, line);) {
            if (line.size() < 2 || line.substr(line.size() - 2) != " c") continue;
            std::array<double, 6> curve = {};
            std::istringstream numbers(line);
            for (double& each : curve) numbers >> each;
            curves.push_back(curve);
        }
        return curves;
    }
};

}  // namespace

TEST_F(Plotted, SevenIsBlackOnPaperAndOtherColorsStay) {
    EXPECT_EQ(InkOf(numbered(7)), (PdfColor{0, 0, 0}));
    EXPECT_EQ(InkOf(numbered(1)), (PdfColor{255, 0, 0}));
    OdCmColor white;
    white.setRGB(255, 255, 255);
    EXPECT_EQ(InkOf(white), (PdfColor{255, 255, 255}));
    OdCmColor own;
    own.setRGB(1, 2, 3);
    EXPECT_EQ(InkOf(own), (PdfColor{1, 2, 3}));
}

TEST_F(Plotted, DashesAlternateWithGaps) {
    EXPECT_EQ(DashesOnPaper({}, 2, 0.5), Lengths{});
    EXPECT_EQ(DashesOnPaper({5}, 2, 0.5), Lengths{}) << "no gap is a continuous line";
    EXPECT_EQ(DashesOnPaper({5, -2}, 2, 0.5), (Lengths{10, 4}));
    EXPECT_EQ(DashesOnPaper({5, -2, 0, -2}, 2, 0.5), (Lengths{10, 4, 0.5, 4}));
    EXPECT_EQ(DashesOnPaper({-2, 5}, 1, 0.5), (Lengths{0, 2, 5, 0})) << "it begins with a gap";
    EXPECT_EQ(DashesOnPaper({5, 1, -2, -3}, 1, 0.5), (Lengths{6, 5})) << "neighbours of a kind are one";
    EXPECT_EQ(DashesOnPaper({5, -2, 3}, 1, 0.5), (Lengths{5, 2, 3, 0}));
}

TEST_F(Plotted, ALineLiesWhereThePlaceSaysWithItsWeightInPoints) {
    OdDbLine* line = addLine(1, 2, 3, 4);
    line->setColorIndex(5);
    line->setLineWeight(OdDb::kLnWt050);
    place.scale = 10;
    place.origin = {100, 200};
    const std::string content = plot();
    EXPECT_TRUE(has(content, "110 220 m\n130 240 l\nS\n")) << content;
    EXPECT_TRUE(has(content, "0 0 1 RG\n"));
    EXPECT_TRUE(has(content, "1.4173 w\n")) << "half a millimetre";
    EXPECT_TRUE(has(content, "[] 0 d\n"));
    EXPECT_TRUE(has(content, "0 J\n"));
}

TEST_F(Plotted, ACircleIsFourCurvesThatStayOnIt) {
    OdDbCircle* circle = add(OdSmartPtr<OdDbCircle>(new OdDbCircle));
    circle->setCenter({50, 60, 0});
    circle->setRadius(10);
    const std::string content = plot();
    const auto curves = curvesOf(content);
    ASSERT_EQ(curves.size(), 4u);
    EXPECT_TRUE(has(content, "60 60 m\n"));
    EXPECT_TRUE(has(content, "h\nS\n"));
    double x = 60, y = 60;
    for (const auto& c : curves)
        for (int i = 0; i <= 20; ++i) {
            const double t = i / 20.0, u = 1 - t;
            const double px = u * u * u * x + 3 * u * u * t * c[0] + 3 * u * t * t * c[2] + t * t * t * c[4];
            const double py = u * u * u * y + 3 * u * u * t * c[1] + 3 * u * t * t * c[3] + t * t * t * c[5];
            EXPECT_NEAR(std::hypot(px - 50, py - 60), 10, 0.005);
            if (i == 20) x = c[4], y = c[5];
        }
}

TEST_F(Plotted, AnArcRunsCounterClockwiseAndStaysOpen) {
    OdDbArc* arc = add(OdSmartPtr<OdDbArc>(new OdDbArc));
    arc->setCenter({0, 0, 0});
    arc->setRadius(10);
    arc->setStartAngle(std::numbers::pi / 2);
    arc->setEndAngle(std::numbers::pi);
    const std::string content = plot();
    const auto curves = curvesOf(content);
    ASSERT_EQ(curves.size(), 1u);
    EXPECT_TRUE(has(content, "0 10 m\n"));
    EXPECT_NEAR(curves[0][0], -5.5228, 1e-3);
    EXPECT_NEAR(curves[0][1], 10, 1e-3);
    EXPECT_NEAR(curves[0][4], -10, 1e-3);
    EXPECT_FALSE(has(content, "h\n"));
}

TEST_F(Plotted, AnEllipseKeepsItsAxes) {
    OdDbEllipse* ellipse = add(OdSmartPtr<OdDbEllipse>(new OdDbEllipse));
    ellipse->setCenter({0, 0, 0});
    ellipse->setMajorAxis({0, 20, 0});
    ellipse->setRadiusRatio(0.25);
    const auto curves = curvesOf(plot());
    ASSERT_EQ(curves.size(), 4u);
    EXPECT_NEAR(curves[0][4], -5, 1e-3);
    EXPECT_NEAR(curves[0][5], 0, 1e-3);
    EXPECT_NEAR(curves[1][5], -20, 1e-3);
}

TEST_F(Plotted, ABulgeIsACurveBetweenStraightParts) {
    OdDbPolyline* polyline = add(OdSmartPtr<OdDbPolyline>(new OdDbPolyline));
    OdArray<OdDbPolylineVertex> vertices;
    vertices.append({{0, 0}, 0});
    vertices.append({{10, 0}, 1});
    vertices.append({{10, 10}, 0});
    vertices.append({{0, 10}, 0});
    polyline->setVertices(vertices);
    const std::string content = plot();
    const auto curves = curvesOf(content);
    ASSERT_EQ(curves.size(), 2u) << "half a turn";
    EXPECT_NEAR(curves[0][4], 15, 1e-3) << "to the right of the chord";
    EXPECT_NEAR(curves[0][5], 5, 1e-3);
    EXPECT_NEAR(curves[1][4], 10, 1e-3);
    EXPECT_TRUE(has(content, "0 0 m\n10 0 l\n"));
    EXPECT_TRUE(has(content, "0 10 l\nS\n"));
}

TEST_F(Plotted, ASolidIsFilledAndAPointIsARoundDot) {
    OdDbPoint* point = add(OdSmartPtr<OdDbPoint>(new OdDbPoint));
    point->setPosition({3, 4, 0});
    point->setLineWeight(OdDb::kLnWt000);
    std::string content = plot();
    EXPECT_TRUE(has(content, "1 J\n"));
    EXPECT_TRUE(has(content, "0.35 w\n"));
    EXPECT_TRUE(has(content, "3 4 m\n3 4 l\n"));
    ScenePath area;
    area.filled = true;
    area.points = {{0, 0}, {10, 0}, {0, 10}};
    area.style.color = numbered(3);
    Scene filled;
    filled.paths = {area};
    content = plot(filled);
    EXPECT_TRUE(has(content, "0 1 0 rg\n0 0 m\n10 0 l\n0 10 l\nf\n")) << content;
}

TEST_F(Plotted, AnAreaWithIslandsIsFilledByOddParityAndLinesOfOnePathAreApart) {
    ScenePath area;
    area.filled = true;
    area.points = {{0, 0}, {9, 0}, {0, 9}, {1, 1}, {3, 1}, {1, 3}};
    area.breaks = {3};
    Scene shown;
    shown.paths = {area};
    std::string content = plot(shown);
    EXPECT_TRUE(has(content, "0 0 m\n9 0 l\n0 9 l\n1 1 m\n3 1 l\n1 3 l\nf*\n")) << content;
    shown.paths[0].filled = false;
    content = plot(shown);
    EXPECT_TRUE(has(content, "0 0 m\n9 0 l\n0 9 l\n1 1 m\n3 1 l\n1 3 l\nS\n")) << content;
    EXPECT_TRUE(has(content, "0 J\n"));
    shown.paths[0].points = {{0, 0}, {9, 0}, {4, 4}, {4, 4}};
    shown.paths[0].breaks = {2};
    EXPECT_TRUE(has(plot(shown), "1 J\n")) << "a dot has round ends, or it were nothing";
}

TEST_F(Plotted, AnAreaThatHidesIsAsWhiteAsThePaperAndLiesWhereItsPlaceIs) {
    ScenePath area;
    area.filled = area.wipes = true;
    area.points = {{0, 0}, {9, 0}, {0, 9}};
    area.style.color = numbered(1);
    SceneText text;
    text.text = L"A";
    text.height = 5;
    Scene shown;
    shown.paths = {area};
    shown.texts = {text, text};
    shown.texts[1].pathsBelow = 1;
    const std::string content = plot(shown);
    EXPECT_TRUE(has(content, "1 1 1 rg\n0 0 m\n"));
    const std::size_t fill = content.find("\nf\n"), first = content.find("BT"), second = content.rfind("BT");
    EXPECT_LT(first, fill);
    EXPECT_LT(fill, second);
}

TEST_F(Plotted, APieceIsSeenThroughItsClipAndThoseAroundIt) {
    ScenePath line;
    line.points = {{0, 0}, {9, 0}};
    Scene shown;
    shown.clips = {{{{1, 1}, {2, 1}, {2, 2}}, kNoClip}, {{{3, 3}, {4, 3}, {4, 4}}, 0}};
    shown.paths = {line, line, line};
    shown.paths[1].clip = 1;
    const std::string content = plot(shown);
    const std::size_t inner = content.find("q\n3 3 m\n4 3 l\n4 4 l\nh\nW* n\n1 1 m\n2 1 l\n2 2 l\nh\nW* n\n");
    ASSERT_NE(inner, std::string::npos) << content;
    const std::size_t stroke = content.find("S\n", inner), end = content.find("Q\n", inner);
    EXPECT_LT(stroke, end);
    EXPECT_EQ(content.find("W*", end), std::string::npos) << "the last line is seen whole again";
    EXPECT_EQ(linesOf(content, "q"), linesOf(content, "Q")) << "each state that is kept is put back";
}

TEST_F(Plotted, AFittedTextTakesUpItsWidthAndABackwardOneRunsToTheLeft) {
    SceneText text;
    text.text = L"AB";
    text.height = 7.2;
    text.fitWidth = 24;
    Scene shown;
    shown.texts = {text};
    // Two letters of 0.6 em are 1.2 wide: 20 units an em fit, for an em of 10.
    EXPECT_TRUE(has(plot(shown), "20 0 0 10 0 0 Tm")) << plot(shown);
    shown.texts[0].widthFactor = -1;
    EXPECT_TRUE(has(plot(shown), "-20 0 0 10 0 0 Tm")) << plot(shown);
}

TEST_F(Plotted, WhatStrokesSayIsWrittenLastInLettersThatShowNothing) {
    SceneText text;
    text.text = L"AB";
    text.height = 7.2;
    text.fitWidth = 24;
    text.clip = 0;
    ScenePath line;
    line.points = {{0, 0}, {9, 0}};
    Scene shown;
    shown.clips = {{{{1, 1}, {2, 1}, {2, 2}}, kNoClip}};
    shown.strokeTexts = {text};
    shown.paths = {line};
    PdfWriter file;
    PdfPage& page = file.addPage(100, 100);
    PlotScene(file, page, shown, place, plot_test::face, look);
    const std::string& content = page.content();
    // Letters of 0.6 em each.
    const std::size_t letters = content.find("20 0 0 10 0 0 Tm"), clip = content.find("W* n");
    ASSERT_NE(letters, std::string::npos) << content;
    EXPECT_LT(content.find("S\n"), clip);
    EXPECT_LT(clip, letters);
    ASSERT_EQ(file.fonts().fonts().size(), 1u);
    ASSERT_EQ(file.fonts().fonts()[0].size(), 2u);
    EXPECT_EQ(file.fonts().fonts()[0][1].character, U'B');
    for (const PdfFonts::Entry& entry : file.fonts().fonts()[0]) EXPECT_TRUE(entry.glyph.pieces.empty());
}

TEST_F(Plotted, LayersThatAreOffFrozenOrNotPlottedAreLeftOut) {
    addLine(0, 0, 1, 1);
    OdDbLayerTablePtr layers;
    drawing->getLayerTable(layers);
    const auto layer = layers->getAt(L"0").open<OdDbLayerTableRecord>(OdDb::kForWrite);
    EXPECT_EQ(scene().paths.size(), 1u);
    layer->setIsPlottable(false);
    EXPECT_EQ(scene().paths.size(), 0u);
    EXPECT_EQ(scene(SceneUse::kScreen).paths.size(), 1u) << "it is seen all the same";
    layer->setIsPlottable(true);
    layer->setIsFrozen(true);
    EXPECT_EQ(scene().paths.size(), 0u);
    layer->setIsFrozen(false);
    layer->setIsOff(true);
    EXPECT_EQ(scene().paths.size(), 0u);
}

TEST_F(Plotted, LayersAreMarkedAndColorsMergeOnDemand) {
    addLine(0, 0, 1, 1);
    EXPECT_FALSE(has(plot(), "BDC"));
    EXPECT_FALSE(has(plot(), "gs\n"));
    look.layers = true;
    const std::string content = plot();
    EXPECT_LT(content.find("/OC /L0 BDC\n"), content.find(" m\n"));
    EXPECT_GT(content.find("EMC\n"), content.find("S\n"));
    look = {false, true};
    EXPECT_TRUE(has(plot(), "/Merge gs\n"));
}

TEST_F(Plotted, TextsStandWhereTheirAlignmentSays) {
    Scene shown;
    SceneText text;
    text.text = L"ab";
    text.position = {100, 50};
    text.height = 7.2;
    text.style.color = numbered(1);
    const auto content = [&] {
        shown.texts = {text};
        return plot(shown);
    };
    EXPECT_TRUE(has(content(), "1 0 0 rg\nBT\n/F0 1 Tf\n10 0 0 10 100 50 Tm\n<0001> Tj\n")) << content();
    text.horizontal = 1;
    EXPECT_TRUE(has(content(), "10 0 0 10 94 50 Tm")) << "half of 1.2 em to the left";
    text.horizontal = 2;
    text.vertical = 2;
    EXPECT_TRUE(has(content(), "10 0 0 10 88 46.4 Tm"));
    text.vertical = 3;
    EXPECT_TRUE(has(content(), "10 0 0 10 88 42.8 Tm"));
    text.vertical = 0;
    for (const int beyond : {3, 9}) {
        text.horizontal = beyond;
        EXPECT_TRUE(has(content(), "10 0 0 10 88 50 Tm")) << beyond;
    }
    text.horizontal = -1;
    EXPECT_TRUE(has(content(), "10 0 0 10 100 50 Tm"));
    text.horizontal = 2;
    text.widthFactor = 0.5;
    EXPECT_TRUE(has(content(), "5 0 0 10 94 50 Tm"));
    text.widthFactor = 1;
    text.rotation = std::numbers::pi / 2;
    EXPECT_TRUE(has(content(), "0 10 -10 0 100 38 Tm")) << content();
    text.rotation = 0;
    text.horizontal = 0;
    text.font.oblique = std::numbers::pi / 4;
    EXPECT_TRUE(has(content(), "10 0 10 10 100 50 Tm"));
}

TEST(PaperPlaces, ASheetLiesAtItsScaleInTheCornerOfItsMargins) {
    OdDbDatabasePtr drawing(new OdDbDatabase);
    OdDbPlotSettingsPtr settings(new OdDbPlotSettings);
    settings->setPlotPaperSize(200, 100);
    settings->editGroups().setReal(40, 10);
    settings->editGroups().setReal(41, 5);
    EXPECT_EQ(settings->setPlotScale(1, 2), kOdOk);
    SceneExtents content;
    content.add({0, 0});
    content.add({9, 9});
    const PaperPlace place = PlaceLayout(*settings, content);
    EXPECT_NEAR(place.width, 200 * 72 / 25.4, 1e-9);
    EXPECT_NEAR(place.height, 100 * 72 / 25.4, 1e-9);
    EXPECT_NEAR(place.scale, 72 / 25.4 / 2, 1e-9);
    EXPECT_NEAR(place.origin.x, 10 * 72 / 25.4, 1e-9);
    EXPECT_NEAR(place.origin.y, 5 * 72 / 25.4, 1e-9);
    settings->setPlotTurned(true);
    EXPECT_NEAR(PlaceLayout(*settings, content).width, 100 * 72 / 25.4, 1e-9);
    EXPECT_NEAR(PlaceLayout(*settings, content).height, 200 * 72 / 25.4, 1e-9);
}

TEST(PaperPlaces, AnAreaIsFittedIntoTheMiddle) {
    OdDbPlotSettingsPtr settings(new OdDbPlotSettings);
    settings->setPlotPaperSize(210, 110);
    settings->setPlotScale(1, 50);
    SceneExtents area;
    area.add({1000, 1000});
    area.add({1200, 1010});
    PaperPlace place = PlaceArea(*settings, area, false);
    EXPECT_NEAR(place.scale, 72 / 25.4, 1e-9) << "200 units on 200 mm between margins of 5 mm";
    EXPECT_NEAR(place.apply({1100, 1005}).x, place.width / 2, 1e-6);
    EXPECT_NEAR(place.apply({1100, 1005}).y, place.height / 2, 1e-6);
    place = PlaceArea(*settings, area, true);
    EXPECT_NEAR(place.scale, 72 / 25.4 / 50, 1e-9);
    EXPECT_NEAR(place.apply({1100, 1005}).x, place.width / 2, 1e-6);
    settings->setPlotFitted();
    EXPECT_NEAR(PlaceArea(*settings, area, true).scale, 72 / 25.4, 1e-9);
}

TEST(PaperPlaces, WithoutAPaperThePageHasTheShapeOfItsContent) {
    OdDbPlotSettingsPtr settings(new OdDbPlotSettings);
    SceneExtents area;
    area.add({0, 0});
    area.add({84, 42});
    const PaperPlace place = PlaceArea(*settings, area, false);
    EXPECT_NEAR(place.width, 420 * 72 / 25.4, 1e-6);
    EXPECT_NEAR(place.height, 210 * 72 / 25.4, 1e-6);
    EXPECT_NEAR(PlaceLayout(*settings, area).width, place.width, 1e-6);
    EXPECT_GT(PlaceArea(*settings, {}, false).width, 0);
    for (const auto& [width, height] :
         {std::pair{200.0, 0.0}, std::pair{0.0, 200.0}, std::pair{-1.0, 200.0}}) {
        settings->setPlotPaperSize(width, height);
        EXPECT_NEAR(PlaceArea(*settings, area, false).width, 420 * 72 / 25.4, 1e-6) << "half a size is none";
        EXPECT_NEAR(PlaceArea(*settings, area, false).height, 210 * 72 / 25.4, 1e-6);
    }
}

TEST(PaperPlaces, APageWithoutAPaperIsNeverNarrowerThanFourMargins) {
    OdDbPlotSettingsPtr settings(new OdDbPlotSettings);
    SceneExtents flat, steep;
    flat.add({0, 0});
    flat.add({1000, 1});
    steep.add({0, 0});
    steep.add({1, 1000});
    EXPECT_NEAR(PlaceArea(*settings, flat, false).height, 20 * 72 / 25.4, 1e-6);
    EXPECT_NEAR(PlaceArea(*settings, steep, false).width, 20 * 72 / 25.4, 1e-6);
    EXPECT_NEAR(PlaceArea(*settings, steep, false).height, 420 * 72 / 25.4, 1e-6);
}
