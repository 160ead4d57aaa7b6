// What the runtime doesn't understand survives reading and writing.
#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>

#include "dxf_text.h"

TEST(DxfKeeps, UnknownHeaderVariables) {
    const std::string text =
        rewritten(dxf("0|SECTION\n2|HEADER\n9|$ACADVER\n1|AC1032\n9|$FUTUREVAR\n70|42\n9|$ODDPOINT\n10|1\n20|"
                      "2\n0|ENDSEC\n0|EOF"));
    EXPECT_TRUE(has(text, "9|$FUTUREVAR\n70|42\n9|$ODDPOINT\n10|1.0\n20|2.0"));
}

TEST(DxfKeeps, HeaderVariablesInFileOrder) {
    const std::string text =
        rewritten(dxf("0|SECTION\n2|HEADER\n9|$ACADVER\n1|AC1032\n9|$LUPREC\n70|2\n9|$XYZ\n1|a\n9|$"
                      "LUNITS\n70|4\n0|ENDSEC\n0|EOF"));
    EXPECT_TRUE(has(text, "9|$LUPREC\n70|2\n9|$XYZ\n1|a\n9|$LUNITS\n70|4"));
}

TEST(DxfKeeps, UnknownEntitiesGroupByGroup) {
    const std::string body =
        "100|AcDbFutureThing\n90|7\n1|text with  blanks \n10|1.0\n310|FFEE00\n360|1F\n290|1\n40|-0.5";
    const std::string text =
        rewritten(withEntities("0|FUTURETHING\n5|A0\n330|1F\n100|AcDbEntity\n8|0\n62|5\n" + body + "\n"));
    EXPECT_TRUE(has(text, "100|AcDbEntity\n8|0\n62|5\n" + body));
}

TEST(DxfKeeps, UnknownGroupsOfKnownEntities) {
    const std::string text = rewritten(withEntities(
        "0|LINE\n5|A0\n100|AcDbEntity\n8|0\n100|AcDbLine\n10|0\n20|0\n11|1\n21|1\n298|1\n470|new\n"));
    EXPECT_TRUE(has(text, "21|1.0\n298|1\n470|new"));
}

TEST(DxfKeeps, ExtendedDataReactorsAndEmbeddedObjects) {
    const std::string text = rewritten(withEntities(
        "0|MTEXT\n5|A0\n102|{ACAD_REACTORS\n330|BB\n102|}\n330|1F\n100|AcDbEntity\n8|0\n100|AcDbMText\n10|"
        "0\n20|0\n40|1\n1|x\n"
        "101|Embedded Object\n70|1\n10|1\n1001|ACAD\n1000|note\n1002|{\n1040|1.5\n1071|-9\n1005|A0\n1002|}\n",
        "AC1032"));
    EXPECT_TRUE(has(text, "5|A0\n102|{ACAD_REACTORS\n330|BB\n102|}"));
    EXPECT_TRUE(
        has(text,
            "101|Embedded "
            "Object\n70|1\n10|1.0\n1001|ACAD\n1000|note\n1002|{\n1040|1.5\n1071|-9\n1005|A0\n1002|}"));
    EXPECT_FALSE(has(rewritten(text, OdDb::kDHL_1015), "101|Embedded Object"))
        << "older versions have no embedded objects";
}

TEST(DxfKeeps, UnknownObjectsSectionsTablesAndClasses) {
    const std::string text = rewritten(dxf(
        header("AC1032") +
        "0|SECTION\n2|CLASSES\n0|CLASS\n1|FUTURETHING\n2|AcDbFuture\n3|app\n90|1\n280|0\n281|1\n0|ENDSEC\n"
        "0|SECTION\n2|TABLES\n0|TABLE\n2|FUTURE\n5|F0\n70|1\n0|FUTURE\n5|F1\n2|rec\n0|ENDTAB\n0|ENDSEC\n"
        "0|SECTION\n2|OBJECTS\n0|DICTIONARY\n5|C\n330|0\n100|AcDbDictionary\n281|1\n3|MINE\n350|D0\n"
        "0|MYOBJECT\n5|D0\n330|C\n100|MyObject\n1|kept\n90|3\n0|ENDSEC\n"
        "0|SECTION\n2|ACDSDATA\n70|2\n0|ACDSSCHEMA\n90|0\n1|x\n0|ENDSEC\n"
        "0|SECTION\n2|THUMBNAILIMAGE\n90|3\n310|A1B2C3\n0|ENDSEC\n0|EOF"));
    EXPECT_TRUE(has(text, "0|CLASS\n1|FUTURETHING\n2|AcDbFuture\n3|app\n90|1\n280|0\n281|1"));
    EXPECT_TRUE(has(text, "0|TABLE\n2|FUTURE\n5|F0\n70|1\n0|FUTURE\n5|F1\n2|rec\n0|ENDTAB"));
    EXPECT_TRUE(has(text, "3|MINE\n350|D0"));
    EXPECT_TRUE(has(text, "0|MYOBJECT\n5|D0\n330|C\n100|MyObject\n1|kept\n90|3"));
    EXPECT_TRUE(has(text, "2|ACDSDATA\n70|2\n0|ACDSSCHEMA\n90|0\n1|x"));
    EXPECT_TRUE(has(text, "2|THUMBNAILIMAGE\n90|3\n310|A1B2C3"));
    EXPECT_EQ(readDrawing(text)->thumbnail(), "\xA1\xB2\xC3");
}

TEST(DxfKeeps, TablesThatHaveNoClass) {
    const std::string text = rewritten(dxf(
        header("AC1015") +
        "0|SECTION\n2|TABLES\n0|TABLE\n2|VIEW\n5|6\n330|0\n100|AcDbSymbolTable\n70|1\n0|VIEW\n5|77\n330|6\n"
        "100|AcDbSymbolTableRecord\n100|AcDbViewTableRecord\n2|FRONT\n70|0\n40|10\n10|1\n20|2\n0|ENDTAB\n"
        "0|TABLE\n2|DIMSTYLE\n5|A\n100|AcDbSymbolTable\n70|1\n100|AcDbDimStyleTable\n71|1\n0|DIMSTYLE\n105|"
        "78\n330|A\n"
        "100|AcDbSymbolTableRecord\n100|AcDbDimStyleTableRecord\n2|ISO-25\n70|0\n41|2.5\n371|-2\n0|ENDTAB\n0|"
        "ENDSEC\n0|EOF"));
    EXPECT_TRUE(has(text,
                    "0|VIEW\n5|77\n330|6\n100|AcDbSymbolTableRecord\n100|AcDbViewTableRecord\n2|FRONT\n70|"
                    "0\n40|10.0\n10|1.0\n20|2.0"));
    EXPECT_TRUE(has(text, "100|AcDbDimStyleTable\n71|1\n0|DIMSTYLE\n105|78"));
    EXPECT_TRUE(has(text, "2|ISO-25\n70|0\n41|2.5\n371|-2"));
}

TEST(DxfKeeps, TheDefaultOfADictionaryWhateverStandsBeforeIt) {
    const std::string file = dxf(header("AC1015") +
                                 "0|SECTION\n2|OBJECTS\n0|DICTIONARY\n5|C\n330|0\n100|AcDbDictionary\n"
                                 "3|MINE\n350|70\n0|ACDBDICTIONARYWDFLT\n5|70\n330|C\n100|AcDbDictionary\n"
                                 "3|First of two with a name that is longer than the marker below\n350|71\n"
                                 "3|Second\n350|71\n100|AcDbDictionaryWithDefault\n3|Stray\n340|71\n"
                                 "0|ACDBPLACEHOLDER\n5|71\n330|70\n0|ENDSEC\n0|EOF");
    EXPECT_TRUE(has(rewritten(file),
                    "3|Second\n350|71\n100|AcDbDictionaryWithDefault\n"
                    "3|Stray\n340|71\n0|ACDBPLACEHOLDER"));
}

TEST(DxfKeeps, NoEntryOfADictionaryThatMeansNothing) {
    const std::string text = rewritten(
        dxf(header("AC1018") + "0|SECTION\n2|OBJECTS\n0|DICTIONARY\n5|C\n330|0\n100|AcDbDictionary\n"
                               "3|ACAD_PLOTSTYLENAME\n350|0\n3|MINE\n350|70\n"
                               "0|DICTIONARY\n5|70\n330|C\n100|AcDbDictionary\n3|Lost\n350|0\n"
                               "0|ENDSEC\n0|EOF"));
    EXPECT_FALSE(has(text, "350|0"));
    EXPECT_FALSE(has(text, "3|Lost"));
    EXPECT_TRUE(has(text, "3|MINE\n350|70"));
    EXPECT_EQ(rewritten(text), text);
}

TEST(DxfKeeps, TheEntriesOfADictionaryWhoseMarkersAreMissingOrSwapped) {
    const std::string before =
        "0|SECTION\n2|OBJECTS\n0|DICTIONARY\n5|C\n330|0\n100|AcDbDictionary\n3|MINE\n350|70\n"
        "0|ACDBDICTIONARYWDFLT\n5|70\n330|C\n";
    const std::string behind = "0|ACDBPLACEHOLDER\n5|71\n330|70\n0|ENDSEC\n0|EOF";
    const auto written = [&](const std::string& groups) {
        return rewritten(dxf(header("AC1015") + before + groups + behind));
    };
    EXPECT_TRUE(
        has(written("3|First\n350|71\n100|AcDbDictionaryWithDefault\n340|71\n"),
            "100|AcDbDictionary\n3|First\n350|71\n100|AcDbDictionaryWithDefault\n340|71\n0|ACDBPLACEHOLDER"));
    const std::string swapped =
        "100|AcDbDictionaryWithDefault\n340|71\n100|AcDbDictionary\n3|First\n350|71\n";
    EXPECT_TRUE(has(written(swapped), swapped));
    const OdDbDatabasePtr drawing = readDrawing(dxf(header("AC1015") + before + swapped + behind));
    OdDbDictionaryPtr named;
    ASSERT_EQ(drawing->getNamedObjectsDictionary(named), kOdOk);
    EXPECT_TRUE(named->getAt(L"MINE").open<OdDbDictionary>()->has(L"First"));
}

TEST(DxfKeeps, ArrowBlocksOfDimensionStylesAcrossVersions) {
    const std::string r12 = dxf(
        header("AC1009") +
        "0|SECTION\n2|TABLES\n0|TABLE\n2|DIMSTYLE\n70|1\n0|DIMSTYLE\n2|ARROWS\n70|0\n5|TICK\n6|\n7|\n40|1\n"
        "0|ENDTAB\n0|ENDSEC\n0|SECTION\n2|BLOCKS\n0|BLOCK\n8|0\n2|TICK\n70|0\n10|0\n20|0\n0|ENDBLK\n0|"
        "ENDSEC\n0|EOF");
    const std::string modern = rewritten(r12, OdDb::kDHL_1015);
    EXPECT_NE(modern.find("342\r\n"), std::string::npos);
    EXPECT_TRUE(has(rewritten(modern, OdDb::kDHL_1009), "2|ARROWS\n70|0\n5|TICK\n40|1.0"));
}

TEST(DxfKeeps, TheFileOnDiskWhenWritingFailsAndNothingElseBesideIt) {
    const std::filesystem::path folder = std::filesystem::temp_directory_path() / "odrt_keeps_test";
    std::filesystem::remove_all(folder);
    std::filesystem::create_directories(folder / "target.dxf" / "inside");
    OdDbDatabasePtr drawing(new OdDbDatabase);
    EXPECT_NE(drawing->writeDxf((folder / "target.dxf").wstring().c_str()), kOdOk)
        << "a folder is in the way";
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder), {}), 1) << "no left-over file";
    const std::wstring path = (folder / "part.dxf").wstring();
    ASSERT_EQ(drawing->writeDxf(path.c_str()), kOdOk);
    ASSERT_EQ(drawing->writeDxf(path.c_str()), kOdOk) << "over an older file";
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder), {}), 2);
    OdDbDatabasePtr again(new OdDbDatabase);
    ASSERT_EQ(again->readDxf(path.c_str()), kOdOk);
    EXPECT_EQ(again->getFilename(), path.c_str());
    EXPECT_EQ(again->writeDxfBytes(), drawing->writeDxfBytes());
    std::filesystem::remove_all(folder);
}

TEST(DxfKeeps, ApplicationDataAmongOtherGroupsStaysWhole) {
    // A file without subclass markers, which are put in: layer and linetype of the block are not the line's.
    const std::string text = rewritten(
        withEntities(
            "0|LINE\n8|one\n10|1\n20|2\n102|{OURS\n6|DASHED\n8|two\n10|7\n102|}\n11|3\n21|4\n62|5\n"),
        OdDb::kDHL_1015);
    EXPECT_TRUE(has(text,
                    "100|AcDbEntity\n8|one\n62|5\n100|AcDbLine\n10|1.0\n20|2.0\n102|{OURS\n6|DASHED\n8|"
                    "two\n10|7.0\n102|}\n"
                    "11|3.0\n21|4.0\n0|ENDSEC"))
        << text.substr(text.find("AcDbLine") - 100, 300);
    EXPECT_FALSE(has(text, "2|DASHED"));
}

TEST(DxfKeeps, AHeaderVariableOutsideTheHeaderSaysNothingAboutTheFile) {
    const OdDbDatabasePtr drawing = readDrawing(
        dxf(header("AC1032") +
            "0|SECTION\n2|FUTURE\n9|$ACADVER\n1|AC1009\n9|$DWGCODEPAGE\n3|ANSI_936\n0|ENDSEC\n0|EOF"));
    EXPECT_EQ(drawing->originalFileVersion(), OdDb::kDHL_1032);
}

TEST(DxfKeeps, AStrayEndOfAListIsNotTakenForAnInsertionsOwn) {
    const OdDbDatabasePtr drawing = readDrawing(
        withEntities("0|INSERT\n8|0\n2|A\n10|0\n20|0\n0|SEQEND\n8|0\n0|POINT\n8|0\n10|0\n20|0\n"));
    EXPECT_EQ(modelEntities(*drawing).size(), 2u);
    EXPECT_EQ(drawing->writeDxfBytes().find("SEQEND"), std::string::npos);
}

TEST(DxfKeeps, AnEntityThatIsCalledLikeATableRecordHasItsHandle) {
    const OdDbDatabasePtr drawing = readDrawing(withEntities("0|DIMSTYLE\n5|ABC\n100|AcDbEntity\n8|0\n"));
    EXPECT_EQ(modelEntities(*drawing)[0]->handle(), 0xABCu);
}

TEST(DxfKeeps, GroupsThatLookLikeTheOwnerStayBehindIt) {
    const std::string text =
        rewritten(withEntities("0|LINE\n5|A0\n102|{ACAD_REACTORS\n330|BB\n102|}\n330|1F\n330|CC\n100|"
                               "AcDbEntity\n8|0\n100|AcDbLine\n"));
    EXPECT_TRUE(has(text, "330|CC\n100|AcDbEntity"));
    EXPECT_EQ(rewritten(text), text);
}

TEST(DxfKeeps, NamesEndAtAZeroCharacter) {
    const std::string zero(1, '\0');
    const OdDbDatabasePtr drawing = readDrawing(withEntities("0|POINT\n8|WALLS" + zero + "X\n10|0\n20|0\n"));
    EXPECT_EQ(modelEntities(*drawing)[0]->layer(), L"WALLS");
}

namespace {

/// A block with one circle of this radius; an empty owner leaves the reference to its record out.
std::string blockOf(const std::string& name, const std::string& owner, const std::string& radius,
                    const std::string& edges = "") {
    const std::string handle = edges.empty() ? "" : "5|" + edges + "\n";
    const std::string own = owner.empty() ? "" : "330|" + owner + "\n";
    return "0|BLOCK\n" + handle + own + "8|0\n2|" + name + "\n70|0\n10|0\n20|0\n30|0\n3|" + name +
           "\n0|CIRCLE\n8|0\n10|0\n20|0\n40|" + radius + "\n0|ENDBLK\n" + handle + own + "8|0\n";
}

std::string recordOf(const std::string& handle, const std::string& name) {
    return "0|BLOCK_RECORD\n5|" + handle + "\n100|AcDbSymbolTableRecord\n100|AcDbBlockTableRecord\n2|" +
           name + "\n";
}

/// The names and the radii of the first circles of all blocks but the spaces, in the order of the table.
std::string circlesOf(OdDbDatabase& drawing) {
    std::string all;
    OdDbBlockTablePtr blocks;
    drawing.getBlockTable(blocks);
    for (auto it = blocks->newIterator(); !it->done(); it->step()) {
        OdDbSymbolTableRecordPtr record;
        it->getRecord(record);
        auto& block = static_cast<OdDbBlockTableRecord&>(*record);
        if (block.getName()[0] == L'*') continue;
        all += odUtf8(block.getName().view());
        for (OdDbEntity* entity : block.entities())
            if (auto* circle = dynamic_cast<OdDbCircle*>(entity))
                all += " " + std::to_string(static_cast<int>(circle->radius()));
        all += ";";
    }
    return all;
}

std::string twoBlocksOfOneName(const std::string& firstName, const std::string& secondName,
                               const std::string& firstOwner, const std::string& secondOwner,
                               const std::string& edges = "") {
    return dxf(header("AC1032") + "0|SECTION\n2|TABLES\n0|TABLE\n2|BLOCK_RECORD\n5|1\n70|2\n" +
               recordOf("A0", firstName) + recordOf("A1", secondName) +
               "0|ENDTAB\n0|ENDSEC\n0|SECTION\n2|BLOCKS\n" + blockOf(secondName, firstOwner, "3", edges) +
               blockOf(firstName, secondOwner, "5", edges) + "0|ENDSEC\n0|EOF");
}

}  // namespace

TEST(DxfKeeps, TwoBlocksOfOneNameAreToldApartByTheirOwners) {
    OdDbDatabasePtr drawing = readDrawing(twoBlocksOfOneName("Door", "DOOR", "A1", "A0"));
    ASSERT_TRUE(drawing);
    EXPECT_EQ(circlesOf(*drawing), "Door 5;DOOR 3;");
    for (const OdDb::DwgVersion version : {OdDb::kDHL_1015, OdDb::kDHL_1032}) {
        OdDbDatabasePtr again = readDrawing(drawing->writeDxfBytes(version));
        ASSERT_TRUE(again);
        EXPECT_EQ(circlesOf(*again), "Door 5;DOOR 3;");
        EXPECT_EQ(again->writeDxfBytes(version), drawing->writeDxfBytes(version));
    }
}

TEST(DxfKeeps, TwoBlocksOfOneNameWithoutOwnersStayTwo) {
    OdDbDatabasePtr drawing =
        readDrawing(dxf(header("AC1009") + "0|SECTION\n2|BLOCKS\n" + blockOf("DOOR", "", "3") +
                        blockOf("DOOR", "", "5") + "0|ENDSEC\n0|EOF"));
    ASSERT_TRUE(drawing);
    EXPECT_EQ(circlesOf(*drawing), "DOOR 3;DOOR 5;");
    for (const OdDb::DwgVersion version : {OdDb::kDHL_1009, OdDb::kDHL_1015}) {
        OdDbDatabasePtr again = readDrawing(drawing->writeDxfBytes(version));
        ASSERT_TRUE(again);
        EXPECT_EQ(circlesOf(*again), "DOOR 3;DOOR 5;");
    }
}

TEST(DxfKeeps, AnOwnerOfAnotherNameDoesNotTakeTheBlock) {
    OdDbDatabasePtr drawing = readDrawing(twoBlocksOfOneName("DOOR", "WALL", "A0", "A1"));
    ASSERT_TRUE(drawing);
    EXPECT_EQ(circlesOf(*drawing), "DOOR 5;WALL 3;");
}

TEST(DxfKeeps, ASpaceThatBeginsTwiceStaysOne) {
    for (const std::string space : {"*Model_Space", "$PAPER_SPACE"}) {
        OdDbDatabasePtr drawing =
            readDrawing(dxf(header("AC1009") + "0|SECTION\n2|BLOCKS\n" + blockOf(space, "", "3") +
                            blockOf(space, "", "5") + "0|ENDSEC\n0|EOF"));
        ASSERT_TRUE(drawing);
        OdDbBlockTablePtr blocks;
        drawing->getBlockTable(blocks);
        int records = 0;
        for (auto it = blocks->newIterator(); !it->done(); it->step()) ++records;
        EXPECT_EQ(records, 2) << space;
    }
}

TEST(DxfKeeps, BlockEdgesWithOneHandleGetTheirOwn) {
    OdDbDatabasePtr drawing = readDrawing(twoBlocksOfOneName("DOOR", "WALL", "A1", "A0", "C0"));
    ASSERT_TRUE(drawing);
    const std::string first = drawing->writeDxfBytes(OdDb::kDHL_1032);
    std::size_t edges = 0;
    for (std::size_t at = first.find("\r\nC0\r\n"); at != std::string::npos;
         at = first.find("\r\nC0\r\n", at + 1))
        ++edges;
    EXPECT_EQ(edges, 1u);
    EXPECT_EQ(readDrawing(first)->writeDxfBytes(OdDb::kDHL_1032), first);
}

TEST(DxfKeeps, AStrayNameBeforeTheMarkersDoesNotBecomeTheName) {
    const std::string text =
        dxf(header("AC1032") +
            "0|SECTION\n2|TABLES\n0|TABLE\n2|LAYER\n5|2\n70|1\n0|LAYER\n5|A0\n2|WALLS\n2|STRAY\n"
            "100|AcDbSymbolTableRecord\n100|AcDbLayerTableRecord\n70|0\n62|3\n6|Continuous\n"
            "0|ENDTAB\n0|ENDSEC\n0|EOF");
    OdDbDatabasePtr drawing = readDrawing(text);
    ASSERT_TRUE(drawing);
    const std::string first = drawing->writeDxfBytes(OdDb::kDHL_1032);
    OdDbDatabasePtr again = readDrawing(first);
    OdDbLayerTablePtr layers;
    again->getLayerTable(layers);
    EXPECT_TRUE(layers->has(L"WALLS"));
    EXPECT_FALSE(layers->has(L"STRAY"));
    EXPECT_TRUE(has(first, "2|STRAY")) << "what nobody understands is kept";
    EXPECT_EQ(again->writeDxfBytes(OdDb::kDHL_1032), first);
}

TEST(DxfKeeps, AThumbnailGivenByAProgramGoesWithFilesFrom2000On) {
    std::string image;
    for (int i = 0; i < 300; ++i) image += static_cast<char>(i * 7);
    OdDbDatabasePtr drawing(new OdDbDatabase);
    drawing->setThumbnail(image);
    EXPECT_FALSE(drawing->isModified());
    EXPECT_EQ(drawing->thumbnail(), image);
    for (const OdDb::DwgVersion version : kAllVersions)
        for (const bool binary : {false, true}) {
            const OdDbDatabasePtr again = readDrawing(drawing->writeDxfBytes(OdDxfForm{version, binary}));
            EXPECT_EQ(again->thumbnail(), version >= OdDb::kDHL_1015 ? image : "") << version << binary;
        }
    const std::string text = drawing->writeDxfBytes(OdDb::kDHL_1032);
    EXPECT_TRUE(has(text,
                    "2|THUMBNAILIMAGE\n90|300\n310|00070E151C232A31383F464D545B626970777E858C939AA1A8AFB6BD"
                    "C4CBD2D9E0E7EEF5FC030A11181F262D343B424950575E656C737A81888F969DA4ABB2B9C0C7CED5DCE3EA"
                    "F1F8FF060D141B222930373E454C535A61686F767D848B9299A0A7AEB5BCC3CAD1D8DFE6EDF4FB020910171E"
                    "252C333A41484F565D646B72"));
    drawing->setThumbnail("");
    EXPECT_EQ(drawing->writeDxfBytes(OdDb::kDHL_1032).find("THUMBNAILIMAGE"), std::string::npos);
}

TEST(DxfKeeps, APreviewAsFarAsItCanBeRead) {
    const std::string text = dxf(header("AC1032") +
                                 "0|SECTION\n2|THUMBNAILIMAGE\n90|4\n310|A1b2\n310|C3xx\n310|"
                                 "D4\n0|ENDSEC\n0|EOF");
    EXPECT_EQ(readDrawing(text)->thumbnail(), "\xA1\xB2\xC3");
}
