// Viewports of sheets, shapes from files, and linetypes with shapes and texts.
#include "drawn.h"

namespace {

using namespace scene_test;

const char* const kModelLine = "0 LINE|8 M|10 1000|20 1000|30 0|11 1010|21 1000|31 0";

/// A sheet with one viewport: 40 by 20 about 100, 50, showing 10 units around 1005, 1000.
std::string viewport(const std::string& more = "") {
    return std::string(
               "0 VIEWPORT|5 E0|67 1|8 V|10 100|20 50|30 0|40 40|41 20|68 2|69 2|12 1005|22 1000|17 0|27 "
               "0|37 0|45 10|") +
           more;
}

const char* const kViewLayers =
    "0 LAYER|2 0|70 0|62 7|6 CONTINUOUS|0 LAYER|5 F0|2 M|70 0|62 3|6 CONTINUOUS|370 30|0 LAYER|2 V|70 0|62 "
    "5|6 "
    "CONTINUOUS";

struct Sheet {
    explicit Sheet(const std::string& view, const std::string& model = kModelLine,
                   const std::string& layers = kViewLayers, const std::string& header = "",
                   const std::string& objects = "")
        : drawing(drawingOf(Parts{.header = header,
                                  .tables = table("LAYER", layers),
                                  .entities = model + "|" + view,
                                  .objects = objects})),
          scene(BuildScene(*drawing, drawing->paperSpaceId())) {}
    OdDbDatabasePtr drawing;
    Scene scene;
};

TEST(SceneViewports, AViewportShowsModelSpaceInItsScaleThroughItsFrame) {
    const Sheet sheet(viewport());
    ASSERT_EQ(sheet.scene.paths.size(), 2u);
    EXPECT_TRUE(goesThrough(sheet.scene.paths[0], {{90, 50}, {110, 50}}));
    ASSERT_EQ(sheet.scene.clips.size(), 1u);
    EXPECT_EQ(sheet.scene.paths[0].clip, 0);
    EXPECT_TRUE(isAt(sheet.scene.clips[0].outline[0], 80, 40));
    EXPECT_TRUE(isAt(sheet.scene.clips[0].outline[2], 120, 60));
    EXPECT_EQ(sheet.scene.paths[1].clip, kNoClip);
    EXPECT_TRUE(goesThrough(sheet.scene.paths[1], {{80, 40}, {120, 40}, {120, 60}, {80, 60}, {80, 40}}));
    EXPECT_EQ(sheet.scene.paths[1].style.color.colorIndex(), 5);
    EXPECT_EQ(sheet.scene.paths[0].entity.handle(), 0xE0u) << "what is seen belongs to the viewport";
    const Sheet nested(viewport(), std::string(kModelLine) +
                                       "|0 VIEWPORT|5 E7|8 V|10 1005|20 1000|30 0|40 4|41 2|68 "
                                       "3|69 3|12 1005|22 1000|17 0|27 0|37 0|45 10");
    EXPECT_EQ(nested.scene.paths.size(), 2u) << "windows of model space aren't seen";
    EXPECT_EQ(nested.scene.clips.size(), 1u);
}

TEST(SceneViewports, WhatIsCutOffTakesUpNoRoom) {
    const Sheet sheet(viewport(), "0 LINE|8 M|10 0|20 1000|30 0|11 5000|21 1000|31 0");
    EXPECT_NEAR(sheet.scene.extents().low.x, 80, 1e-9);
    EXPECT_NEAR(sheet.scene.extents().high.x, 120, 1e-9);
    EXPECT_NEAR(sheet.scene.clipExtents(0).high.y, 60, 1e-9);
}

TEST(SceneViewports, AViewportThatIsOffOrTheSheetItselfShowsNothing) {
    EXPECT_EQ(Sheet(viewport("90 131072")).scene.paths.size(), 1u) << "its frame alone";
    std::string off = viewport();
    off.replace(off.find("68 2"), 4, "68 0");
    EXPECT_EQ(Sheet(off).scene.paths.size(), 1u);
    std::string sheet = viewport();
    sheet.replace(sheet.find("69 2"), 4, "69 1");
    EXPECT_TRUE(Sheet(sheet).scene.paths.empty());
    EXPECT_TRUE(Sheet(viewport("40 0")).scene.paths.size() <= 2u);
}

TEST(SceneViewports, AFrozenLayerOfAViewportHidesItsFrameAlone) {
    const std::string layers = "0 LAYER|2 M|70 0|62 3|6 CONTINUOUS|0 LAYER|2 V|70 1|62 5|6 CONTINUOUS";
    const Sheet sheet(viewport(), kModelLine, layers);
    ASSERT_EQ(sheet.scene.paths.size(), 1u);
    EXPECT_EQ(sheet.scene.paths[0].clip, 0);
}

TEST(SceneViewports, ATurnedViewTurnsModelSpace) {
    // The centre is counted in the turned plane: 1000, 1000 turned by 90 degrees is -1000, 1000.
    std::string view = viewport("51 90");
    view.replace(view.find("12 1005|22 1000"), 15, "12 -1000|22 1005");
    const Sheet sheet(view);
    EXPECT_TRUE(goesThrough(sheet.scene.paths.at(0), {{100, 40}, {100, 60}}, 1e-6));
}

TEST(SceneViewports, ATargetMovesTheViewAndADirectionTurnsItInSpace) {
    std::string moved = viewport();
    moved.replace(moved.find("12 1005|22 1000|17 0|27 0"), 25, "12 5|22 0|17 1000|27 1000");
    EXPECT_TRUE(goesThrough(Sheet(moved).scene.paths.at(0), {{90, 50}, {110, 50}}));
    // From the front, along y: x stays, z points upwards.
    std::string front = viewport("16 0|26 -1|36 0");
    front.replace(front.find("12 1005|22 1000"), 15, "12 1005|22 0");
    const Sheet sheet(front, "0 LINE|8 M|10 1000|20 5|30 0|11 1000|21 7|31 2");
    EXPECT_TRUE(goesThrough(sheet.scene.paths.at(0), {{90, 50}, {90, 54}}));
}

TEST(SceneViewports, LayersMayBeFrozenInAViewportAlone) {
    const Sheet sheet(viewport("331 F0"));
    EXPECT_EQ(sheet.scene.paths.size(), 1u);
    EXPECT_EQ(BuildScene(*sheet.drawing, sheet.drawing->modelSpaceId()).paths.size(), 1u);
}

TEST(SceneViewports, AViewportMayOverrideColorLinetypeAndWeightOfALayer) {
    const std::string layers =
        "0 LAYER|2 0|70 0|62 7|6 CONTINUOUS|0 LAYER|5 F0|102 {ACAD_XDICTIONARY|360 F1|102 }|100 "
        "AcDbSymbolTableRecord|100 AcDbLayerTableRecord|2 M|70 0|62 3|6 CONTINUOUS|370 30|0 LAYER|2 V|70 "
        "0|62 5|6 "
        "CONTINUOUS";
    const std::string objects =
        "0 DICTIONARY|5 F1|330 F0|100 AcDbDictionary|3 ADSK_XREC_LAYER_COLOR_OVR|360 F2|3 "
        "ADSK_XREC_LAYER_LINEWT_OVR|360 F3|0 XRECORD|5 F2|330 "
        "F1|100 AcDbXrecord|280 1|102 {ADSK_LYR_COLOR_OVERRIDE|335 E9|420 -1023410175|102 }|102 "
        "{ADSK_LYR_COLOR_OVERRIDE|335 E0|420 -1023410171|102 "
        "}|0 XRECORD|5 F3|330 F1|100 AcDbXrecord|280 1|102 {ADSK_LYR_LINEWT_OVERRIDE|335 E0|91 100|102 }";
    const Sheet sheet(viewport(), kModelLine, layers, "", objects);
    ASSERT_EQ(sheet.scene.paths.size(), 2u);
    EXPECT_EQ(sheet.scene.paths[0].style.color.colorIndex(), 5);
    EXPECT_EQ(sheet.scene.paths[0].style.lineWeight, 100);
    const Scene model = BuildScene(*sheet.drawing, sheet.drawing->modelSpaceId());
    EXPECT_EQ(model.paths.at(0).style.color.colorIndex(), 3);
    EXPECT_EQ(model.paths.at(0).style.lineWeight, 30);
    // By layer, which a layer can't be.
    std::string odd = objects;
    odd.replace(odd.find("335 E0|420 -1023410171"), 22, "335 E0|420 -1073741824");
    const Sheet kept(viewport(), kModelLine, layers, "", odd);
    EXPECT_EQ(kept.scene.paths.at(0).style.color.colorIndex(), 3);
}

TEST(SceneViewports, DashesKeepTheirLengthOnTheSheetUnlessTheDrawingScalesThem) {
    const auto dashes = [](const char* setting) {
        const OdDbDatabasePtr drawing = drawingOf(
            Parts{.header = std::string("9 $PSLTSCALE|70 ") + setting,
                  .tables = table("LTYPE", "0 LTYPE|2 DASHED|70 0|3 d|72 65|73 2|40 3|49 2|49 -1"),
                  .entities = "0 LINE|8 0|6 DASHED|10 1000|20 1000|30 0|11 1010|21 1000|31 0|" + viewport()});
        return BuildScene(*drawing, drawing->paperSpaceId()).paths.at(0).style.dashes;
    };
    EXPECT_EQ(dashes("1"), (std::vector<double>{2, -1}));
    EXPECT_EQ(dashes("0"), (std::vector<double>{4, -2}));
}

TEST(SceneViewports, AnOutlineMayBeAnEntityOfTheSheet) {
    const Sheet sheet(viewport("90 65536|340 E5") +
                      "|0 LWPOLYLINE|5 E5|67 1|8 V|90 3|70 1|10 80|20 40|10 120|20 40|10 100|20 60");
    ASSERT_EQ(sheet.scene.clips.size(), 1u);
    EXPECT_TRUE(isAt(sheet.scene.clips[0].outline.at(2), 100, 60));
}

TEST(SceneUse, OnPaperLayersThatAreNotPlottedAreMissing) {
    const OdDbDatabasePtr drawing = drawingOf(Parts{
        .header = "9 $LWDISPLAY|290 0",
        .tables = table(
            "LAYER", "0 LAYER|2 NP|70 0|62 1|6 CONTINUOUS|290 0|0 LAYER|2 Defpoints|70 0|62 1|6 CONTINUOUS"),
        .entities = "0 LINE|8 NP|10 0|20 0|30 0|11 1|21 0|31 0|0 LINE|8 DEFPOINTS|10 0|20 0|30 0|11 1|21 "
                    "0|31 0|0 LINE|8 0|10 0|20 0|30 0|11 "
                    "1|21 0|31 0"});
    SceneOptions options;
    const Scene screen = BuildScene(*drawing, drawing->modelSpaceId(), options);
    EXPECT_EQ(screen.paths.size(), 3u);
    EXPECT_FALSE(screen.showsLineWeights);
    options.use = SceneUse::kPaper;
    const Scene paper = BuildScene(*drawing, drawing->modelSpaceId(), options);
    EXPECT_EQ(paper.paths.size(), 1u);
    EXPECT_TRUE(paper.showsLineWeights);
    drawing->setLWDISPLAY(1);
    EXPECT_TRUE(BuildScene(*drawing, drawing->modelSpaceId()).showsLineWeights);
}

/// The data of a view as files before 2000 have it.
std::string formerView(const std::string& rest = "", const std::string& twist = "0") {
    return "|1001 ACAD|1000 MVIEW|1002 {|1070 16|1010 1000|1020 900|1030 0|1010 0|1020 0|1030 1|1040 " +
           twist +
           "|1040 10|1040 5|1040 100|1040 50|1040 0|1040 0|1070 0|1070 100|1070 1|1070 0|1070 0|1070 0|1070 "
           "0|1070 "
           "0|1040 0|1040 7|1040 8|1040 1|1040 1|1040 1|1040 1|1070 0|1002 {" +
           rest + "|1002 }|1002 }";
}

const char* const kFormerViewport = "0 VIEWPORT|67 1|8 V|10 100|20 50|30 0|40 40|41 20|68 2|69 2";

TEST(SceneViewports, ThoseOfFilesBefore2000SeeByTheirExtendedData) {
    const auto sheet = [](const std::string& more) {
        const OdDbDatabasePtr drawing =
            drawingOf(Parts{.tables = table("LAYER", kViewLayers),
                            .entities = std::string(kModelLine) + "|" + kFormerViewport + more,
                            .version = "AC1009"});
        return BuildScene(*drawing, drawing->paperSpaceId());
    };
    const Scene scene = sheet(formerView());
    ASSERT_EQ(scene.paths.size(), 2u);
    EXPECT_TRUE(goesThrough(scene.paths[0], {{90, 50}, {110, 50}})) << "target and centre together";
    EXPECT_EQ(scene.paths[0].clip, 0);
    const Scene turned = sheet(formerView("", "1.5707963267948966"));
    EXPECT_TRUE(goesThrough(turned.paths.at(0), {{-110, -150}, {-110, -130}})) << "turned about the target";
    EXPECT_EQ(sheet(formerView("|1003 M")).paths.size(), 1u) << "its frozen layer";
    EXPECT_EQ(sheet(formerView("|1003 GONE")).paths.size(), 2u);
    EXPECT_EQ(sheet("").paths.size(), 1u) << "nothing is known of its view";
    EXPECT_EQ(sheet("|1001 ACAD|1000 MVIEW|1002 {|1070 16|1010 0|1020 0|1030 0|1002 }").paths.size(), 1u);
}

/// A file of shapes: the numbers with their names and codes.
std::string shapeFile(const std::vector<std::pair<std::string, std::string>>& shapes, int firstNumber = 1) {
    std::string file = "AutoCAD-86 shapes V1.0\r\n\x1A";
    const auto put16 = [&file](std::size_t value) {
        file += static_cast<char>(value & 255);
        file += static_cast<char>(value >> 8);
    };
    put16(static_cast<std::size_t>(firstNumber));
    put16(static_cast<std::size_t>(firstNumber) + shapes.size() - 1);
    put16(shapes.size());
    for (std::size_t i = 0; i < shapes.size(); ++i) {
        put16(static_cast<std::size_t>(firstNumber) + i);
        put16(shapes[i].first.size() + 1 + shapes[i].second.size() + 1);
    }
    for (const auto& [name, code] : shapes) file += name + '\0' + code + '\0';
    return file;
}

const char* const kShapeStyle = "0 STYLE|5 A7|2 |70 1|40 0|41 1|50 0|71 0|42 1|3 marks.shx|4 ";

Scene withShapes(const std::string& code, const std::string& entities, const std::string& linetypes = "") {
    const OdDbDatabasePtr drawing =
        drawingOf(Parts{.tables = table("STYLE", kShapeStyle) + linetypes, .entities = entities});
    SceneOptions options;
    options.shapeFile = [&](const OdString& name) {
        EXPECT_EQ(name, L"marks.shx");
        return shapeFile({{"FIRST", code}, {"CALL", "\x07\x01"}}, 1);
    };
    return BuildScene(*drawing, drawing->modelSpaceId(), options);
}

Scene shape(const std::string& code, const std::string& more = "2 FIRST") {
    return withShapes(code, "0 SHAPE|8 0|10 10|20 20|30 0|40 2|" + more);
}

TEST(SceneShapes, VectorsHaveALengthAndOneOfSixteenDirections) {
    EXPECT_TRUE(goesThrough(shape("\x20\x24\x2A\x01").paths.at(0), {{10, 20}, {14, 20}, {14, 24}, {10, 20}}));
    EXPECT_TRUE(goesThrough(shape("\x21").paths.at(0), {{10, 20}, {14, 22}}));
}

TEST(SceneShapes, TheSixteenDirectionsGoAroundASquare) {
    const std::vector<OdGePoint2d> square = {{4, 0},  {4, 2},  {4, 4},  {2, 4},   {0, 4},   {-2, 4},
                                             {-4, 4}, {-4, 2}, {-4, 0}, {-4, -2}, {-4, -4}, {-2, -4},
                                             {0, -4}, {2, -4}, {4, -4}, {4, -2}};
    for (std::size_t i = 0; i < square.size(); ++i)
        EXPECT_TRUE(goesThrough(shape(std::string(1, static_cast<char>(0x20 + i))).paths.at(0),
                                {{10, 20}, {10 + square[i].x, 20 + square[i].y}}))
            << i;
}

TEST(SceneShapes, ThePenLiftsMovesScalesAndReturns) {
    const ScenePath lifted = shape(std::string("\x10\x02\x10\x01\x10", 5)).paths.at(0);
    EXPECT_TRUE(goesThrough(lifted, {{10, 20}, {12, 20}, {14, 20}, {16, 20}}));
    EXPECT_EQ(lifted.breaks, std::vector<std::size_t>{2});
    EXPECT_TRUE(goesThrough(shape("\x03\x02\x10\x04\x04\x10").paths.at(0), {{10, 20}, {11, 20}, {15, 20}}))
        << "divided by 2, then by 2 again as much times 4";
    EXPECT_TRUE(goesThrough(shape("\x05\x10\x06\x14").paths.at(0), {{10, 20}, {12, 20}, {10, 20}, {10, 22}}));
    EXPECT_TRUE(goesThrough(shape("\x08\xFD\x04").paths.at(0), {{10, 20}, {4, 28}}));
    EXPECT_TRUE(goesThrough(shape(std::string("\x09\x01\x02\x03\x00\x00\x00\x10", 8)).paths.at(0),
                            {{10, 20}, {12, 24}, {18, 24}, {20, 24}}));
    EXPECT_TRUE(goesThrough(shape("\x0E\x10\x14").paths.at(0), {{10, 20}, {10, 22}}))
        << "what is for vertical writing alone is passed over";
}

TEST(SceneShapes, ArcsAreOctantsOrBulges) {
    // Radius 1, from octant 0, two octants: a quarter circle upwards.
    const ScenePath quarter = shape("\x0A\x01\x02").paths.at(0);
    EXPECT_TRUE(isAt(quarter.points.front(), 10, 20));
    EXPECT_TRUE(isAt(quarter.points.back(), 8, 22));
    const ScenePath clockwise = shape("\x0A\x01\x82").paths.at(0);
    EXPECT_TRUE(isAt(clockwise.points.back(), 8, 18));
    const ScenePath half = shape("\x0C\x02\x01\x7F").paths.at(0);
    EXPECT_TRUE(isAt(half.points.back(), 14, 22));
    for (const OdGePoint2d& point : half.points)
        EXPECT_NEAR(std::hypot(point.x - 12, point.y - 21), std::sqrt(5.0), 1e-9);
    EXPECT_LT(distanceTo(half, 13, 19), 0.02) << "a half circle to the right of its chord";
    const ScenePath broken = shape(std::string("\x0B\x80\x00\x00\x02\x02", 6)).paths.at(0);
    EXPECT_NEAR(std::hypot(broken.points.front().x - broken.points.back().x,
                           broken.points.front().y - broken.points.back().y),
                2 * 4 * std::sin(1.5 * kPi / 8), 1e-9)
        << "begins half way in its octant: one and a half octants of radius 2, drawn twice as large";
    // From half way in the second octant to a quarter of the third: 67.5 to 101.25 degrees.
    const auto onCircle = [](double degrees, double radius) {
        return OdGePoint2d{radius * std::cos(degrees * kPi / 180), radius * std::sin(degrees * kPi / 180)};
    };
    const auto endOf = [](const char* code) { return shape(std::string(code, 6)).paths.at(0).points.back(); };
    const OdGePoint2d from = onCircle(67.5, 4), to = onCircle(101.25, 4), back = onCircle(-11.25, 4),
                      down = onCircle(22.5, 4);
    const OdGePoint2d end = endOf("\x0B\x80\x40\x00\x02\x12");
    EXPECT_TRUE(isAt(end, 10 + to.x - from.x, 20 + to.y - from.y));
    // The same clockwise, from 22.5 to -11.25.
    const OdGePoint2d other = endOf("\x0B\x80\x40\x00\x02\x92");
    EXPECT_TRUE(isAt(other, 10 + back.x - down.x, 20 + back.y - down.y));
    // Radii beyond 255 have a second byte.
    const OdGePoint2d far = endOf("\x0B\x80\x40\x01\x02\x12");
    EXPECT_TRUE(isAt(far, 10 + 129 * (to.x - from.x), 20 + 129 * (to.y - from.y), 1e-9));
}

TEST(SceneShapes, AShapeIsTurnedStretchedAndMayHoldAnother) {
    EXPECT_TRUE(goesThrough(shape("\x20", "2 first|50 90").paths.at(0), {{10, 20}, {10, 24}}));
    EXPECT_TRUE(goesThrough(shape("\x20", "2 FIRST|41 0.5").paths.at(0), {{10, 20}, {12, 20}}));
    EXPECT_TRUE(goesThrough(shape("\x24", "2 FIRST|51 45").paths.at(0), {{10, 20}, {14, 24}}));
    EXPECT_TRUE(goesThrough(shape("\x20", "2 CALL").paths.at(0), {{10, 20}, {14, 20}}));
    EXPECT_TRUE(shape("\x07\x02", "2 CALL").paths.empty()) << "shapes that call each other end";
}

TEST(SceneShapes, AShapeThatCallsItselfWithoutEndEnds) {
    std::string code;
    for (int i = 0; i < 500; ++i) code += "\x07\x01";
    EXPECT_TRUE(shape(code).paths.empty());
    EXPECT_LE(shape("\x10" + code).paths.at(0).points.size(), 100001u);
}

TEST(SceneShapes, AShapeThatNoFileHasIsCounted) {
    EXPECT_EQ(shape("\x20", "2 OTHER").notDrawn.at("SHAPE"), 1);
    EXPECT_EQ(Drawn("0 SHAPE|8 0|10 0|20 0|30 0|40 1|2 FIRST").scene.notDrawn.at("SHAPE"), 1);
}

std::string complexLinetype(const std::string& mark) {
    return table("LTYPE", "0 LTYPE|2 MARKED|70 0|3 m|72 65|73 2|40 10|49 6|74 0|49 -4|" + mark);
}

TEST(SceneLinetypes, TextsStandBehindTheirDashesAlongTheLine) {
    const Scene scene = withShapes("\x10", "0 LINE|8 0|6 MARKED|10 0|20 0|30 0|11 0|21 25|31 0",
                                   complexLinetype("74 2|75 0|340 A8|46 0.5|50 0|44 -1|45 -0.25|9 GAS"));
    ASSERT_EQ(scene.texts.size(), 2u) << "two whole repeats";
    EXPECT_EQ(scene.texts[0].text, L"GAS");
    EXPECT_TRUE(isAt(scene.texts[0].position, 0.25, 9)) << "back by one and to the right of the line";
    EXPECT_TRUE(isAt(scene.texts[1].position, 0.25, 19));
    EXPECT_NEAR(scene.texts[0].rotation, kPi / 2, 1e-9);
    EXPECT_NEAR(scene.texts[0].height, 0.5, 1e-9);
    EXPECT_EQ(scene.paths.at(0).style.dashes, (std::vector<double>{6, -4}));
}

TEST(SceneLinetypes, ShapesAreTurnedWithTheLineUnlessTheyAreUpright) {
    const auto mark = [](const char* flags) {
        return withShapes("\x10", "0 LINE|8 0|6 MARKED|48 2|10 0|20 0|30 0|11 0|21 25|31 0",
                          complexLinetype(std::string("74 ") + flags + "|75 1|340 A7|46 1|50 0|44 0|45 0"))
            .paths.at(0);
    };
    EXPECT_TRUE(goesThrough(mark("4"), {{0, 20}, {0, 22}})) << "with the scale of the line's dashes";
    EXPECT_TRUE(goesThrough(mark("5"), {{0, 20}, {2, 20}}));
}

TEST(SceneLinetypes, ALineOfTooManyMarksHasItsDashesAlone) {
    const Scene scene = withShapes("\x10", "0 LINE|8 0|6 MARKED|48 0.0001|10 0|20 0|30 0|11 0|21 25|31 0",
                                   complexLinetype("74 2|75 0|340 A8|46 0.5|50 0|44 0|45 0|9 GAS"));
    EXPECT_TRUE(scene.texts.empty());
    EXPECT_EQ(scene.paths.size(), 1u);
}

/// A drawing with one shape, by a file of these bytes.
Scene withFile(const std::string& bytes, const char* name) {
    const OdDbDatabasePtr drawing =
        drawingOf(Parts{.tables = table("STYLE", kShapeStyle),
                        .entities = std::string("0 SHAPE|8 0|10 10|20 20|30 0|40 2|2 ") + name});
    SceneOptions options;
    options.shapeFile = [&](const OdString&) { return bytes; };
    return BuildScene(*drawing, drawing->modelSpaceId(), options);
}

TEST(SceneShapes, AFontsShapesAreAsHighAsItsCapitalsAreOne) {
    // The first shape of a font describes it: the height of its capitals stands behind its name.
    const std::string font = shapeFile({{"FONT", std::string("\x08\x02\x00", 3)}, {"BAR", "\x84"}}, 0);
    EXPECT_TRUE(goesThrough(withFile(font, "BAR").paths.at(0), {{10, 20}, {10, 22}}));
    const std::string library = shapeFile({{"BAR", "\x84"}}, 1);
    EXPECT_TRUE(goesThrough(withFile(library, "BAR").paths.at(0), {{10, 20}, {10, 36}}));
}

TEST(SceneShapes, AFileOfAnotherKindHasNoShapes) {
    const std::string whole = shapeFile({{"BAR", "\x84"}}, 1);
    ASSERT_EQ(withFile(whole, "BAR").paths.size(), 1u);
    std::string other = whole;
    other.replace(11, 6, "bigfon");
    EXPECT_EQ(withFile(other, "BAR").notDrawn.at("SHAPE"), 1);
    std::string endless = whole;
    endless[endless.find('\x1A')] = ' ';
    EXPECT_EQ(withFile(endless, "BAR").notDrawn.at("SHAPE"), 1);
    for (std::size_t length = 0; length < whole.size() - 3; ++length)
        EXPECT_TRUE(withFile(whole.substr(0, length), "BAR").paths.empty()) << length;
}

TEST(SceneShapes, AShapeWithoutAnEndOfItsNameIsPassedOver) {
    // One shape of three bytes that are all name, and one as it should be.
    const std::string file(
        "AutoCAD-86 shapes "
        "V1.0\r\n\x1A\x01\x00\x02\x00\x02\x00\x01\x00\x03\x00\x02\x00\x06\x00TTTBAR\x00\x84\x00",
        48);
    EXPECT_EQ(withFile(file, "TTT").notDrawn.at("SHAPE"), 1);
    EXPECT_TRUE(goesThrough(withFile(file, "BAR").paths.at(0), {{10, 20}, {10, 36}}));
}

}  // namespace
