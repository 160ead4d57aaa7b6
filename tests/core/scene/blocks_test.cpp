// Block references: base points, scales, turns, normals, rows and columns, attributes, and whose look counts.
#include "drawn.h"

namespace {

using namespace scene_test;

const char* const kUnitLine = "0 LINE|8 0|10 0|20 0|30 0|11 1|21 0|31 0";

TEST(SceneBlocks, TheBasePointFallsOnTheInsertionPoint) {
    const Drawn drawn({.blocks = block("B", "0 LINE|8 0|10 5|20 5|30 0|11 7|21 5|31 0", "10 5|20 5|30 0"),
                       .entities = "0 INSERT|8 0|2 B|10 100|20 200|30 0"});
    ASSERT_EQ(drawn.paths().size(), 1u);
    EXPECT_TRUE(goesThrough(drawn.path(), {{100, 200}, {102, 200}}));
}

TEST(SceneBlocks, ScaleComesBeforeTurnAndTurnBeforeMove) {
    const Drawn drawn({.blocks = block("B", "0 LINE|8 0|10 1|20 1|30 0|11 2|21 1|31 0", "10 1|20 0|30 0"),
                       .entities = "0 INSERT|8 0|2 B|10 10|20 20|30 0|41 2|42 3|43 1|50 90"});
    // From the base (0,1) and (1,1); scaled (0,3) and (2,3); turned (-3,0) and (-3,2).
    EXPECT_TRUE(goesThrough(drawn.path(), {{7, 20}, {7, 22}}));
}

TEST(SceneBlocks, ANegativeScaleMirrors) {
    const Drawn drawn({.blocks = block("B", "0 ARC|8 0|10 0|20 0|30 0|40 1|50 0|51 90"),
                       .entities = "0 INSERT|8 0|2 B|10 0|20 0|30 0|41 -1|42 1|43 1"});
    EXPECT_TRUE(isAt(drawn.path().points.front(), -1, 0));
    EXPECT_TRUE(isAt(drawn.path().points.back(), 0, 1));
    EXPECT_LT(distanceTo(drawn.path(), -std::sqrt(0.5), std::sqrt(0.5)), 0.002);
}

TEST(SceneBlocks, ANormalDownwardsMirrorsAboutTheYAxis) {
    const Drawn drawn({.blocks = block("B", kUnitLine),
                       .entities = "0 INSERT|8 0|2 B|10 10|20 3|30 0|50 90|210 0|220 0|230 -1"});
    // In the plane: at (10,3), turned upwards to (10,4); its x axis points to the left.
    EXPECT_TRUE(goesThrough(drawn.path(), {{-10, 3}, {-10, 4}}));
    // The plane of x: its axes are y and z, the height is along x.
    const Drawn upright({.blocks = block("B", kUnitLine),
                         .entities = "0 INSERT|8 0|2 B|10 3|20 0|30 7|70 2|71 1|44 5|210 1|220 0|230 0"});
    EXPECT_TRUE(goesThrough(upright.path(0), {{7, 3}, {7, 4}}));
    EXPECT_TRUE(goesThrough(upright.path(1), {{7, 8}, {7, 9}}));
}

TEST(SceneBlocks, RowsAndColumnsRunAlongTheTurnedAxes) {
    const Drawn drawn(
        {.blocks = block("B", kUnitLine),
         .entities = "0 INSERT|8 0|2 B|10 0|20 0|30 0|50 90|70 3|71 2|44 10|45 5|41 2|42 2|43 2"});
    ASSERT_EQ(drawn.paths().size(), 6u);
    // Spacings aren't scaled. Columns go up, rows to the left.
    EXPECT_TRUE(goesThrough(drawn.path(0), {{0, 0}, {0, 2}}));
    EXPECT_TRUE(goesThrough(drawn.path(2), {{0, 20}, {0, 22}}));
    EXPECT_TRUE(goesThrough(drawn.path(3), {{-5, 0}, {-5, 2}}));
    EXPECT_TRUE(goesThrough(drawn.path(5), {{-5, 20}, {-5, 22}}));
}

TEST(SceneBlocks, ACountOfNoneIsOne) {
    const Drawn drawn(
        {.blocks = block("B", kUnitLine), .entities = "0 INSERT|8 0|2 B|10 0|20 0|30 0|70 0|71 -3"});
    EXPECT_EQ(drawn.paths().size(), 1u);
}

TEST(SceneBlocks, ByBlockGoesUpThroughAllLevels) {
    const std::string inner = block("IN", "0 LINE|8 0|62 0|6 BYBLOCK|370 -2|10 0|20 0|30 0|11 1|21 0|31 0");
    const std::string middle = block("MID", "0 INSERT|8 0|62 0|6 BYBLOCK|370 -2|2 IN|10 0|20 0|30 0");
    const Drawn drawn({.tables = table("LTYPE", "0 LTYPE|2 DASHED|70 0|3 d|72 65|73 2|40 1.5|49 1|49 -0.5"),
                       .blocks = inner + middle,
                       .entities = "0 INSERT|8 0|62 1|6 DASHED|48 2|370 70|2 MID|10 0|20 0|30 0"});
    ASSERT_EQ(drawn.paths().size(), 1u);
    EXPECT_EQ(drawn.path().style.color.colorIndex(), 1);
    EXPECT_EQ(drawn.path().style.dashes, (std::vector<double>{2, -1}));
    EXPECT_EQ(drawn.path().style.lineWeight, 70);
}

TEST(SceneBlocks, WhatIsByBlockOutsideOfBlocksIsInTheForegroundColor) {
    const Drawn drawn("0 LINE|8 0|62 0|370 -2|10 0|20 0|30 0|11 1|21 0|31 0");
    EXPECT_EQ(drawn.path().style.color.colorIndex(), 7);
    EXPECT_EQ(drawn.path().style.lineWeight, 25);
}

const char* const kLayers =
    "0 LAYER|2 0|70 0|62 7|6 CONTINUOUS|0 LAYER|2 RED|70 0|62 1|6 CONTINUOUS|370 50|0 LAYER|2 GREEN|70 0|62 "
    "3|6 "
    "CONTINUOUS|0 LAYER|2 OFF|70 0|62 -5|6 CONTINUOUS|0 LAYER|2 FROZEN|70 1|62 4|6 CONTINUOUS";

TEST(SceneBlocks, LayerZeroStandsForTheLayerOfTheReferenceThroughAllLevels) {
    const std::string inner = block("IN", kUnitLine);
    const std::string middle =
        block("MID", "0 INSERT|8 0|2 IN|10 0|20 0|30 0|0 INSERT|8 GREEN|2 IN|10 0|20 0|30 0");
    const Drawn drawn({.tables = table("LAYER", kLayers),
                       .blocks = inner + middle,
                       .entities = "0 INSERT|8 RED|2 MID|10 0|20 0|30 0"});
    ASSERT_EQ(drawn.paths().size(), 2u);
    EXPECT_EQ(drawn.path(0).style.color.colorIndex(), 1);
    EXPECT_EQ(drawn.path(0).style.lineWeight, 50);
    EXPECT_EQ(drawn.path(1).style.color.colorIndex(), 3);
}

std::size_t countOn(const char* layer, const char* inner) {
    return Drawn({.tables = table("LAYER", kLayers),
                  .blocks = block("B", std::string("0 LINE|8 ") + inner + "|10 0|20 0|30 0|11 1|21 0|31 0"),
                  .entities = std::string("0 INSERT|8 ") + layer + "|2 B|10 0|20 0|30 0"})
        .paths()
        .size();
}

TEST(SceneBlocks, AFrozenReferenceIsGoneAndOneThatIsOffKeepsWhatIsOnOtherLayers) {
    EXPECT_EQ(countOn("RED", "0"), 1u);
    EXPECT_EQ(countOn("FROZEN", "RED"), 0u);
    EXPECT_EQ(countOn("OFF", "RED"), 1u);
    EXPECT_EQ(countOn("OFF", "0"), 0u);
    EXPECT_EQ(countOn("RED", "OFF"), 0u);
    EXPECT_EQ(countOn("RED", "FROZEN"), 0u);
}

TEST(SceneBlocks, AnInvisibleReferenceIsGone) {
    EXPECT_TRUE(Drawn({.blocks = block("B", kUnitLine), .entities = "0 INSERT|8 0|60 1|2 B|10 0|20 0|30 0"})
                    .paths()
                    .empty());
}

std::string attribute(const char* layer, const char* flags) {
    return std::string("0 ATTRIB|8 ") + layer + "|10 7|20 8|30 0|40 2|1 VALUE|2 TAG|70 " + flags;
}

TEST(SceneBlocks, AttributesHavePlacesAndLayersOfTheirOwn) {
    const auto drawn = [](const std::string& attributes, const char* mode = "1") {
        return Drawn(Parts{.header = std::string("9 $ATTMODE|70 ") + mode,
                           .tables = table("LAYER", kLayers),
                           .blocks = block("B", kUnitLine),
                           .entities = "0 INSERT|8 RED|66 1|2 B|10 100|20 100|30 0|41 3|42 3|43 3|" +
                                       attributes + "|0 SEQEND|8 0"});
    };
    const Drawn one = drawn(attribute("GREEN", "0"));
    ASSERT_EQ(one.texts().size(), 1u);
    EXPECT_TRUE(isAt(one.text().position, 7, 8)) << "not scaled and not moved by the reference";
    EXPECT_EQ(one.text().height, 2);
    EXPECT_EQ(one.text().text, L"VALUE");
    EXPECT_EQ(one.text().style.color.colorIndex(), 3);
    EXPECT_EQ(drawn(attribute("0", "0")).text().style.color.colorIndex(), 7) << "layer 0 is itself here";
    EXPECT_TRUE(drawn(attribute("OFF", "0")).texts().empty());
    EXPECT_TRUE(drawn(attribute("FROZEN", "0")).texts().empty());
    EXPECT_TRUE(drawn(attribute("RED", "1")).texts().empty());
    EXPECT_EQ(drawn(attribute("RED", "1"), "2").texts().size(), 1u) << "all are shown";
    EXPECT_TRUE(drawn(attribute("RED", "0"), "0").texts().empty()) << "none is shown";
}

TEST(SceneBlocks, AnAttributeOfSeveralLinesIsItsParagraph) {
    const std::string lines =
        "|101 Embedded Object|10 50|20 30|30 0|40 3|41 0|71 1|72 5|1 second|7 Standard|11 0|21 1|31 0|73 "
        "2|44 0.9";
    const std::string attributes = attribute("GREEN", "0") + "|71 2|72 0" + lines;
    const auto drawn = [](const std::string& more) {
        return Drawn(Parts{.tables = table("LAYER", "0 LAYER|2 GREEN|70 0|62 3"),
                           .blocks = block("B", "0 POINT|8 0"),
                           .entities = "0 INSERT|8 0|66 1|2 B|10 100|20 0|30 0|" + more + "|0 SEQEND|8 0"});
    };
    std::string withStart = attributes;
    withStart.replace(withStart.find("1 second"), 8, "3 first\\P|1 second");
    const Drawn both = drawn(withStart);
    ASSERT_EQ(both.texts().size(), 2u);
    EXPECT_EQ(both.text(0).text, L"first");
    EXPECT_TRUE(isAt(both.text(0).position, 53, 30)) << "it runs upwards, from its top";
    EXPECT_TRUE(isAt(both.text(1).position, 57.5, 30));
    EXPECT_NEAR(both.text(0).rotation, kPi / 2, 1e-12);
    EXPECT_EQ(both.text(0).height, 3);
    EXPECT_EQ(both.text(0).style.color.colorIndex(), 3) << "on the attribute's layer";
    EXPECT_EQ(drawn(attribute("GREEN", "1") + lines).texts().size(), 0u) << "an invisible one";
    const Drawn without = drawn(attribute("GREEN", "0") + "|101 Embedded Object|10 50|20 30|30 0|40 3");
    ASSERT_EQ(without.texts().size(), 1u) << "no words in it";
    EXPECT_EQ(without.text().text, L"VALUE");
    EXPECT_TRUE(isAt(without.text().position, 7, 8));
    const std::string constant = "0 ATTDEF|8 0|10 7|20 8|30 0|40 2|1 VALUE|2 TAG|70 2" + lines;
    const Drawn inside(
        Parts{.blocks = block("B", constant), .entities = "0 INSERT|8 0|2 B|10 100|20 0|30 0"});
    EXPECT_EQ(inside.text().text, L"second");
    EXPECT_TRUE(isAt(inside.text().position, 153, 30)) << "in the block";
    EXPECT_EQ(Drawn(constant).text().text, L"TAG") << "outside of blocks";
}

TEST(SceneBlocks, DefinitionsOfAttributesShowTheirTagOutsideAndConstantOnesTheirTextInside) {
    const auto definition = [](const char* flags) {
        return std::string("0 ATTDEF|8 0|10 1|20 2|30 0|40 3|1 text|3 prompt|2 TAG|70 ") + flags;
    };
    const Drawn outside(definition("0"));
    EXPECT_EQ(outside.text().text, L"TAG");
    EXPECT_TRUE(isAt(outside.text().position, 1, 2));
    const auto inside = [&](const char* flags) {
        return Drawn(
            {.blocks = block("B", definition(flags)), .entities = "0 INSERT|8 0|2 B|10 10|20 0|30 0"});
    };
    EXPECT_TRUE(inside("0").texts().empty());
    EXPECT_EQ(inside("2").text().text, L"text");
    EXPECT_TRUE(isAt(inside("2").text().position, 11, 2));
    EXPECT_TRUE(inside("3").texts().empty()) << "constant, but invisible";
}

TEST(SceneBlocks, EverythingInAReferenceBelongsToIt) {
    const Drawn drawn({.blocks = block("B", kUnitLine), .entities = "0 INSERT|5 ABC|8 0|2 B|10 0|20 0|30 0"});
    EXPECT_EQ(drawn.path().entity.handle(), 0xABCu);
}

TEST(SceneBlocks, ABlockThatHoldsItselfIsDrawnOnce) {
    const Drawn drawn({.blocks = block("B", std::string(kUnitLine) + "|0 INSERT|8 0|2 B|10 1|20 0|30 0"),
                       .entities = "0 INSERT|8 0|2 B|10 0|20 0|30 0"});
    EXPECT_EQ(drawn.paths().size(), 1u);
}

TEST(SceneBlocks, AMissingBlockIsNothing) {
    EXPECT_TRUE(Drawn("0 INSERT|8 0|2 NONE|10 0|20 0|30 0").paths().empty());
}

TEST(SceneBlocks, EndlessWorkEndsAndIsTold) {
    const auto built = [](const char* counts) {
        const OdDbDatabasePtr drawing =
            drawingOf({.blocks = block("B", kUnitLine),
                       .entities = std::string("0 INSERT|8 0|2 B|10 0|20 0|30 0|44 1|45 1|") + counts});
        SceneOptions options;
        options.workLimit /= 20;
        return BuildScene(*drawing, drawing->modelSpaceId(), options);
    };
    EXPECT_TRUE(built("70 32767|71 32767").isCut);
    EXPECT_FALSE(built("70 9|71 9").isCut);
}

TEST(SceneBlocks, TheWorkLimitIsTheCallers) {
    const OdDbDatabasePtr drawing =
        drawingOf({.blocks = block("B", kUnitLine),
                   .entities = "0 INSERT|8 0|2 B|10 0|20 0|30 0|70 100|71 100|44 1|45 1"});
    SceneOptions options;
    options.workLimit = 10000;
    const Scene scene = BuildScene(*drawing, drawing->modelSpaceId(), options);
    EXPECT_TRUE(scene.isCut);
    EXPECT_GT(scene.paths.size(), 10u);
    EXPECT_LT(scene.paths.size(), 100u) << "each costs 120 and more";
}

TEST(SceneBlocks, ATableIsItsBlock) {
    const Drawn drawn({.blocks = block("*T1", kUnitLine),
                       .entities = "0 ACAD_TABLE|8 0|2 *T1|10 5|20 6|30 0|11 0|21 1|31 0"});
    EXPECT_TRUE(goesThrough(drawn.path(), {{5, 6}, {5, 7}}));
    EXPECT_EQ(Drawn("0 ACAD_TABLE|8 0|2 *T1|10 5|20 6|30 0").scene.notDrawn.at("ACAD_TABLE"), 1);
}

TEST(SceneBlocks, WhatHasNoLookIsCountedByKind) {
    const Drawn drawn("0 3DSOLID|8 0|0 3DSOLID|8 0|0 OLE2FRAME|8 0|0 LINE|8 0|10 0|20 0|30 0|11 1|21 0|31 0");
    EXPECT_EQ(drawn.scene.notDrawn, (std::map<std::string, int>{{"3DSOLID", 2}, {"OLE2FRAME", 1}}));
}

TEST(SceneBlocks, TheOrderOfATableIsTheDrawingOrder) {
    const Parts parts = {.blocks =
                             "0 BLOCK|5 A0|8 0|2 B|70 0|10 0|20 0|30 0|3 B|0 LINE|5 A1|8 0|62 1|10 0|20 0|30 "
                             "0|11 1|21 0|31 0|0 "
                             "LINE|5 A2|8 0|62 2|10 0|20 0|30 0|11 1|21 0|31 0|0 ENDBLK|5 A3|8 0|",
                         .entities = "0 INSERT|8 0|2 B|10 0|20 0|30 0"};
    OdDbDatabasePtr drawing = drawingOf(parts);
    OdDbBlockTablePtr blocks;
    drawing->getBlockTable(blocks);
    const auto record = blocks->getAt(L"B").open<OdDbBlockTableRecord>(OdDb::kForWrite);
    EXPECT_EQ(BuildScene(*drawing, record->objectId()).paths.front().style.color.colorIndex(), 1);
    Parts sorted = parts;
    const std::string handle = [&] {
        char text[32];
        std::snprintf(text, sizeof text, "%llX", static_cast<unsigned long long>(record->handle()));
        return std::string(text);
    }();
    sorted.tables =
        "0 TABLE|2 BLOCK_RECORD|5 1|100 AcDbSymbolTable|70 1|0 BLOCK_RECORD|5 " + handle +
        "|102 {ACAD_XDICTIONARY|360 B0|102 }|100 AcDbSymbolTableRecord|100 AcDbBlockTableRecord|2 B|0 "
        "ENDTAB";
    sorted.objects = "0 DICTIONARY|5 B0|330 " + handle +
                     "|100 AcDbDictionary|3 ACAD_SORTENTS|360 B1|0 SORTENTSTABLE|5 B1|330 " +
                     "B0|100 AcDbSortentsTable|330 " + handle + "|331 A1|5 A2|331 A2|5 A1";
    drawing = drawingOf(sorted);
    drawing->getBlockTable(blocks);
    EXPECT_EQ(BuildScene(*drawing, blocks->getAt(L"B")).paths.front().style.color.colorIndex(), 2);
}

/// A block with a line from 0 to 10 that is referred to at 100, 50, twice as large and turned to the left,
/// with a boundary that was made when it was where `toBlock` says.
Scene clipped(
    const std::string& boundary, const std::string& settings = "71 1|72 0|73 0",
    const std::string& toBlock = "40 0|40 .5|40 0|40 -25|40 -.5|40 0|40 0|40 50|40 0|40 0|40 .5|40 0",
    const std::string& toBoundary = "40 1|40 0|40 0|40 0|40 0|40 1|40 0|40 0|40 0|40 0|40 1|40 0",
    const std::string& beside = "") {
    return Drawn(
               Parts{.blocks = block("B", "0 LINE|8 0|10 0|20 0|30 0|11 10|21 0|31 0"),
                     .entities =
                         "0 INSERT|5 A0|102 {ACAD_XDICTIONARY|360 A1|102 }|8 0|2 B|10 100|20 50|30 0|41 2|42 "
                         "2|43 2|50 90|0 LINE|8 0|10 0|20 0|30 0|11 1|21 0|31 0",
                     .objects =
                         "0 DICTIONARY|5 A1|330 A0|100 AcDbDictionary|3 ACAD_FILTER|360 A2|0 DICTIONARY|5 "
                         "A2|330 A1|100 AcDbDictionary|3 SPATIAL|360 A3|0 SPATIAL_FILTER|5 A3|102 "
                         "{ACAD_XDICTIONARY|360 A4|102 "
                         "}|330 A2|100 "
                         "AcDbFilter|100 AcDbSpatialFilter|70 2|" +
                         boundary + "|210 0|220 0|230 1|11 0|21 0|31 0|" + settings + "|" + toBlock + "|" +
                         toBoundary + beside})
        .scene;
}

/// The scene of a clip that the file calls inverted.
Scene invertedClip(const std::string& own, const std::string& hidden, const std::string& shown) {
    return clipped(
        own, "71 1|72 0|73 0", "40 0|40 .5|40 0|40 -25|40 -.5|40 0|40 0|40 50|40 0|40 0|40 .5|40 0",
        "40 1|40 0|40 0|40 0|40 0|40 1|40 0|40 0|40 0|40 0|40 1|40 0",
        "|0 DICTIONARY|5 A4|330 A3|100 AcDbDictionary|3 ACAD_XREC_ROUNDTRIP|360 A5|0 XRECORD|5 A5|330 "
        "A4|100 AcDbXrecord|280 1|102 ACAD_INVERTEDCLIP_ROUNDTRIP|" +
            hidden + "|102 ACAD_INVERTEDCLIP_ROUNDTRIP_COMPARE|" + shown);
}

TEST(SceneReferences, AnInvertedBoundaryHidesWhatIsWithin) {
    const std::string inner = "10 95|20 54|30 0|10 105|20 54|30 0|10 100|20 60|30 0";
    const std::string outer = "10 80|20 40|30 0|10 120|20 80|30 0";
    // Round the rectangle, then round the triangle: what is between them is seen.
    const std::vector<OdGePoint2d> expected = {{80, 40}, {120, 40}, {120, 80}, {80, 80}, {80, 40},
                                               {95, 54}, {105, 54}, {100, 60}, {95, 54}};
    const auto outline = [](const Scene& scene) {
        ScenePath path;
        if (scene.clips.size() == 1) path.points = scene.clips[0].outline;
        return path;
    };
    EXPECT_TRUE(goesThrough(outline(invertedClip("10 80|20 40|10 120|20 80", inner, outer)), expected));
    EXPECT_TRUE(
        goesThrough(outline(invertedClip("10 95|20 54|10 105|20 54|10 100|20 60", outer, outer)), expected))
        << "the clip's own is the hidden one";
    EXPECT_TRUE(goesThrough(outline(invertedClip("10 80|20 40|10 110|20 80", inner, outer)), expected))
        << "the outline of what is shown is larger";
    EXPECT_TRUE(goesThrough(
        outline(invertedClip("10 80|20 40|10 120|20 80", "10 95|20 54|30 0|10 105|20 60|30 0", outer)),
        {{80, 40},
         {120, 40},
         {120, 80},
         {80, 80},
         {80, 40},
         {95, 54},
         {105, 54},
         {105, 60},
         {95, 60},
         {95, 54}}))
        << "two corners are a rectangle";
    EXPECT_EQ(outline(invertedClip("10 80|20 40|10 120|20 80", "10 95|20 54|30 0", outer)).points.size(), 4u)
        << "one place hides nothing";
}

TEST(SceneReferences, AreSeenThroughTheirBoundary) {
    // In the drawing the corners were 90, 54 and 110, 60; nothing has moved since.
    const Scene scene = clipped("10 90|20 54|10 110|20 60");
    ASSERT_EQ(scene.paths.size(), 2u);
    EXPECT_TRUE(goesThrough(scene.paths[0], {{100, 50}, {100, 70}}));
    ASSERT_EQ(scene.clips.size(), 1u);
    EXPECT_EQ(scene.paths[0].clip, 0);
    EXPECT_EQ(scene.paths[1].clip, kNoClip) << "what comes behind it is whole";
    ASSERT_EQ(scene.clips[0].outline.size(), 4u);
    EXPECT_TRUE(isAt(scene.clips[0].outline[0], 90, 54));
    EXPECT_TRUE(isAt(scene.clips[0].outline[1], 110, 54));
    EXPECT_TRUE(isAt(scene.clips[0].outline[2], 110, 60));
    EXPECT_TRUE(isAt(scene.clips[0].outline[3], 90, 60));
}

TEST(SceneReferences, TheirBoundaryMovesWithThem) {
    // It was made when the reference was at 0, 0, as large as its block and not turned.
    const Scene scene = clipped("10 1|20 -1|10 3|20 -1|10 3|20 1", "71 1|72 1|40 99|73 1|41 5",
                                "40 1|40 0|40 0|40 0|40 0|40 1|40 0|40 0|40 0|40 0|40 1|40 0");
    ASSERT_EQ(scene.clips.size(), 1u);
    ASSERT_EQ(scene.clips[0].outline.size(), 3u);
    EXPECT_TRUE(isAt(scene.clips[0].outline[0], 102, 52));
    EXPECT_TRUE(isAt(scene.clips[0].outline[1], 102, 56));
    EXPECT_TRUE(isAt(scene.clips[0].outline[2], 98, 56));
}

TEST(SceneReferences, ABoundaryHasAPlaneOfItsOwn) {
    // The plane's origin is at 90, 54 of the drawing.
    const Scene scene = clipped("10 0|20 0|10 20|20 6", "71 1|72 0|73 0",
                                "40 0|40 .5|40 0|40 -25|40 -.5|40 0|40 0|40 50|40 0|40 0|40 .5|40 0",
                                "40 1|40 0|40 0|40 -90|40 0|40 1|40 0|40 -54|40 0|40 0|40 1|40 0");
    ASSERT_EQ(scene.clips.size(), 1u);
    EXPECT_TRUE(isAt(scene.clips[0].outline.at(0), 90, 54));
    EXPECT_TRUE(isAt(scene.clips[0].outline.at(2), 110, 60));
}

TEST(SceneReferences, ABoundaryThatIsOffOrBrokenClipsNothing) {
    EXPECT_TRUE(clipped("10 90|20 54|10 110|20 60", "71 0|72 0|73 0").clips.empty());
    EXPECT_TRUE(clipped("10 90|20 54").clips.empty()) << "one corner";
    EXPECT_TRUE(clipped("10 90|20 54|10 110|20 60", "71 1", "40 1|40 2", "40 3").clips.empty());
    const std::string flat = "40 0|40 0|40 0|40 0|40 0|40 0|40 0|40 0|40 0|40 0|40 0|40 0";
    EXPECT_TRUE(clipped("10 90|20 54|10 110|20 60", "71 1", flat, flat).clips.empty()) << "no way back";
}

}  // namespace
