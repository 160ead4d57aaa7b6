// Names that R12 can't have: written in a legal form, and whole again when the file is read.
#include <gtest/gtest.h>

#include <regex>

#include "dxf_text.h"

namespace {

/// A drawing with a record of every table whose name R12 can't have, and everything that names it.
OdDbDatabasePtr drawingWithNames() {
    const std::string marked = "\n100|AcDbSymbolTableRecord\n100|";
    return readDrawing(
        dxf("0|SECTION\n2|HEADER\n9|$ACADVER\n1|AC1032\n9|$CLAYER\n8|W\xC3\xA4nde und "
            "T\xC3\xBCren\n9|$CELTYPE\n6|Dash dot\n"
            "9|$TEXTSTYLE\n7|My style\n9|$DIMSTYLE\n2|My dims\n9|$UCSNAME\n2|My ucs\n0|ENDSEC\n"
            "0|SECTION\n2|TABLES\n0|TABLE\n2|LTYPE\n5|10\n0|LTYPE\n5|11" +
            marked +
            "AcDbLinetypeTableRecord\n2|Dash dot\n70|0\n3|\n72|65\n73|0\n40|0\n0|ENDTAB\n"
            "0|TABLE\n2|LAYER\n5|20\n0|LAYER\n5|21" +
            marked +
            "AcDbLayerTableRecord\n2|W\xC3\xA4nde und T\xC3\xBCren\n70|0\n62|1\n6|Dash dot\n"
            "0|LAYER\n5|22" +
            marked +
            "AcDbLayerTableRecord\n2|W_nde_und_T_ren\n70|0\n62|2\n6|Continuous\n0|ENDTAB\n"
            "0|TABLE\n2|STYLE\n5|30\n0|STYLE\n5|31" +
            marked +
            "AcDbTextStyleTableRecord\n2|My style\n70|0\n3|txt\n0|ENDTAB\n"
            "0|TABLE\n2|UCS\n5|35\n0|UCS\n5|36" +
            marked +
            "AcDbUCSTableRecord\n2|My ucs\n70|0\n0|ENDTAB\n"
            "0|TABLE\n2|APPID\n5|37\n0|APPID\n5|38" +
            marked +
            "AcDbRegAppTableRecord\n2|My app\n70|0\n0|ENDTAB\n"
            "0|TABLE\n2|DIMSTYLE\n5|40\n0|DIMSTYLE\n105|41" +
            marked +
            "AcDbDimStyleTableRecord\n2|My dims\n70|0\n342|51\n0|ENDTAB\n"
            "0|TABLE\n2|BLOCK_RECORD\n5|50\n0|BLOCK_RECORD\n5|51" +
            marked +
            "AcDbBlockTableRecord\n2|Door, left\n0|ENDTAB\n0|ENDSEC\n"
            "0|SECTION\n2|BLOCKS\n0|BLOCK\n5|52\n330|51\n8|0\n2|Door, "
            "left\n70|0\n10|0\n20|0\n0|LINE\n5|53\n8|W\xC3\xA4nde und "
            "T\xC3\xBCren\n10|0\n20|0\n11|1\n21|1\n0|ENDBLK\n5|54\n8|0\n0|ENDSEC\n"
            "0|SECTION\n2|ENTITIES\n0|TEXT\n5|60\n8|W\xC3\xA4nde und T\xC3\xBCren\n6|Dash "
            "dot\n10|0\n20|0\n40|1\n1|x\n7|My style\n"
            "0|INSERT\n5|61\n8|0\n2|Door, left\n10|0\n20|0\n"
            "0|DIMENSION\n5|62\n8|0\n2|Door, left\n3|My dims\n70|1\n"
            "0|POINT\n5|63\n8|0\n10|0\n20|0\n1001|My app\n1003|W\xC3\xA4nde und T\xC3\xBCren\n1000|My "
            "style\n0|ENDSEC\n0|EOF"));
}

/// The values of all groups with this code.
std::vector<std::string> valuesOf(const std::string& text, const std::string& code) {
    std::vector<std::string> values;
    std::istringstream lines(text);
    for (std::string number, value; std::getline(lines, number) && std::getline(lines, value);) {
        number.erase(0, number.find_first_not_of(' '));
        if (number == code + "\r") values.push_back(value.substr(0, value.size() - 1));
    }
    return values;
}

}  // namespace

TEST(DxfR12Names, AreLegalAndStandWhereverTheRecordIsMeant) {
    const std::string text = drawingWithNames()->writeDxfBytes(OdDb::kDHL_1009);
    EXPECT_TRUE(has(text,
                    "9|$CLAYER\n8|W_nde_und_T_ren_2\n9|$CELTYPE\n6|Dash_dot\n9|$TEXTSTYLE\n7|My_style\n9|$"
                    "DIMSTYLE\n2|My_dims"));
    EXPECT_TRUE(has(text, "9|$UCSNAME\n2|My_ucs"));
    EXPECT_TRUE(
        has(text,
            "0|LAYER\n2|W_nde_und_T_ren_2\n70|0\n62|1\n6|Dash_dot\n1001|KTUI_NAMES\n1000|W_nde_und_T_ren_2\n"
            "1000|W\xE4nde und T\xFCren"));
    EXPECT_TRUE(has(text, "0|LAYER\n2|W_nde_und_T_ren\n70|0\n62|2")) << "a legal name keeps its own";
    EXPECT_TRUE(has(text, "0|DIMSTYLE\n2|My_dims\n70|0\n5|Door__left"));
    EXPECT_TRUE(has(text, "2|Door__left\n3|Door__left"));
    EXPECT_TRUE(
        has(text, "0|TEXT\n5|60\n8|W_nde_und_T_ren_2\n6|Dash_dot\n10|0.0\n20|0.0\n40|1.0\n1|x\n7|My_style"));
    EXPECT_TRUE(has(text, "0|INSERT\n5|61\n8|0\n2|Door__left"));
    EXPECT_TRUE(has(text, "0|DIMENSION\n5|62\n8|0\n2|Door__left\n3|My_dims"));
    EXPECT_TRUE(has(text, "1001|My_app\n1003|W_nde_und_T_ren_2\n1000|My style")) << "a text is no name";
    EXPECT_TRUE(has(text, "0|APPID\n2|KTUI_NAMES\n70|0\n0|ENDTAB"));
    const std::regex legal("[*]?[A-Za-z0-9$_-]{1,31}");
    for (const char* code : {"8", "6", "7"})
        for (const std::string& name : valuesOf(text, code))
            EXPECT_TRUE(std::regex_match(name, legal)) << name;
}

TEST(DxfR12Names, ComeBackWhole) {
    const OdDbDatabasePtr drawing = drawingWithNames();
    for (const bool binary : {false, true}) {
        const OdDbDatabasePtr again = readDrawing(drawing->writeDxfBytes(OdDxfForm{OdDb::kDHL_1009, binary}));
        ASSERT_TRUE(again);
        const std::string text = again->writeDxfBytes(OdDxfForm{OdDb::kDHL_1032});
        const std::string layer = "W\xC3\xA4nde und T\xC3\xBCren";
        EXPECT_TRUE(
            has(text, "9|$CLAYER\n8|" + layer +
                          "\n9|$CELTYPE\n6|Dash dot\n9|$TEXTSTYLE\n7|My style\n9|$DIMSTYLE\n2|My dims"));
        EXPECT_TRUE(has(text, "9|$UCSNAME\n2|My ucs"));
        EXPECT_TRUE(has(text, "2|" + layer + "\n70|0\n62|1\n6|Dash dot\n0|LAYER"));
        EXPECT_TRUE(has(text, "8|" + layer + "\n6|Dash dot\n100|AcDbText"));
        EXPECT_TRUE(has(text, "1|x\n7|My style"));
        EXPECT_TRUE(has(text, "100|AcDbBlockReference\n2|Door, left"));
        EXPECT_TRUE(has(text, "100|AcDbDimension\n2|Door, left\n3|My dims"));
        EXPECT_TRUE(has(text, "1001|My app\n1003|" + layer + "\n1000|My style"));
        EXPECT_EQ(text.find("KTUI_NAMES"), std::string::npos) << "nothing of it is left";
        EXPECT_EQ(text.find("W_nde_und_T_ren_2"), std::string::npos);
        EXPECT_EQ(again->writeDxfBytes(OdDxfForm{OdDb::kDHL_1009, binary}),
                  drawing->writeDxfBytes(OdDxfForm{OdDb::kDHL_1009, binary}));
    }
}

TEST(DxfR12Names, LongOnesAreCutAndToldApart) {
    const std::string stem(40, 'A');
    std::string entities;
    for (const char* end : {"1", "2", "3"}) entities += "0|POINT\n8|" + stem + end + "\n10|0\n20|0\n";
    const OdDbDatabasePtr drawing = readDrawing(withEntities(entities));
    const std::string text = drawing->writeDxfBytes(OdDb::kDHL_1009);
    EXPECT_TRUE(has(text, "0|LAYER\n2|" + stem.substr(0, 31)));
    EXPECT_TRUE(has(text, "0|LAYER\n2|" + stem.substr(0, 29) + "_2"));
    EXPECT_TRUE(has(text, "0|LAYER\n2|" + stem.substr(0, 29) + "_3"));
    const OdDbDatabasePtr again = readDrawing(text);
    const auto points = modelEntities(*again);
    EXPECT_EQ(points[2]->layer(), odWide(stem + "3"));
}

TEST(DxfR12Names, AWholeNameOfMoreThanOneTextComesBack) {
    std::string name;
    for (int i = 0; i < 90; ++i) name += "\xE5\xA2\x99";  // 270 bytes, cut at no place within a character
    const OdDbDatabasePtr drawing =
        readDrawing(withEntities("0|POINT\n8|" + name + "\n10|0\n20|0\n", "AC1032"));
    const OdDbDatabasePtr again = readDrawing(drawing->writeDxfBytes(OdDb::kDHL_1009));
    EXPECT_EQ(modelEntities(*again)[0]->layer(), odWide(name));
}

TEST(DxfR12Names, AnonymousBlocksAndReferencesKeepTheirSigns) {
    const std::string text =
        rewritten(dxf(header("AC1015") +
                      "0|SECTION\n2|BLOCKS\n0|BLOCK\n8|0\n2|*U1\n70|1\n10|0\n20|0\n0|ENDBLK\n8|0\n0|ENDSEC\n"
                      "0|SECTION\n2|ENTITIES\n0|POINT\n8|plan|WALLS\n10|0\n20|0\n0|ENDSEC\n0|EOF"),
                  OdDb::kDHL_1009);
    EXPECT_TRUE(has(text, "2|*U1\n3|*U1"));
    EXPECT_TRUE(has(text, "8|plan|WALLS"));
    EXPECT_EQ(text.find("KTUI_NAMES"), std::string::npos);
}

TEST(DxfR12Names, ThoseOfAnR12FileStayAndNewOnesAreMadeLegal) {
    const OdDbDatabasePtr drawing = readDrawing(withEntities("0|POINT\n8|of others\n10|0\n20|0\n", "AC1009"));
    OdDbLayerTablePtr layers;
    drawing->getLayerTable(layers);
    OdSmartPtr<OdDbLayerTableRecord> layer(new OdDbLayerTableRecord);
    layer->setName(L"of ours");
    layers->add(OdDbSymbolTableRecordPtr(layer.get()));
    const std::string text = drawing->writeDxfBytes();
    EXPECT_TRUE(has(text, "0|LAYER\n2|of others\n"));
    EXPECT_TRUE(has(text, "0|LAYER\n2|of_ours\n"));
}

TEST(DxfR12Names, AreOnlyTakenWhereTheRecordStillBearsTheLegalOne) {
    const auto layerOf = [](const std::string& name, const std::string& legal, const std::string& whole) {
        return readDrawing(
            dxf(header("AC1009") + "0|SECTION\n2|TABLES\n0|TABLE\n2|LAYER\n70|2\n0|LAYER\n2|" + name +
                "\n70|0\n62|1\n6|CONTINUOUS\n1001|KTUI_NAMES\n1000|" + legal + "\n1000|" + whole +
                "\n0|LAYER\n2|taken name\n70|0\n62|1\n6|CONTINUOUS\n0|ENDTAB\n"
                "0|TABLE\n2|APPID\n70|1\n0|APPID\n2|KTUI_NAMES\n70|0\n0|ENDTAB\n0|ENDSEC\n0|EOF"));
    };
    const auto hasLayer = [](const OdDbDatabasePtr& drawing, const wchar_t* name) {
        OdDbLayerTablePtr layers;
        drawing->getLayerTable(layers);
        return layers->has(name);
    };
    EXPECT_TRUE(hasLayer(layerOf("a_b", "A_B", "a b"), L"a b"));
    EXPECT_TRUE(hasLayer(layerOf("renamed", "a_b", "a b"), L"renamed"))
        << "another program gave it another name";
    EXPECT_FALSE(hasLayer(layerOf("renamed", "a_b", "a b"), L"a b"));
    EXPECT_TRUE(hasLayer(layerOf("a_b", "a_b", "TAKEN NAME"), L"a_b"));
    EXPECT_TRUE(hasLayer(layerOf("a_b", "a_b", ""), L"a_b"));
}

TEST(DxfR12Names, AnApplicationThatIsNamedTwiceGoesAltogether) {
    const std::string file =
        dxf(header("AC1009") +
            "0|SECTION\n2|TABLES\n"
            "0|TABLE\n2|LAYER\n70|1\n0|LAYER\n2|A_B\n70|0\n62|1\n6|CONTINUOUS\n"
            "1001|KTUI_NAMES\n1000|A_B\n1000|A B\n0|ENDTAB\n"
            "0|TABLE\n2|APPID\n70|1\n0|APPID\n2|KTUI_NAMES\n70|0\n0|ENDTAB\n"
            "0|TABLE\n2|APPID\n70|1\n0|APPID\n2|ktui_names\n70|0\n0|ENDTAB\n0|ENDSEC\n0|EOF");
    const OdDbDatabasePtr drawing = readDrawing(file);
    ASSERT_TRUE(drawing);
    const std::string text = drawing->writeDxfBytes(OdDxfForm{OdDb::kDHL_1009});
    EXPECT_EQ(occurrences(text, "\r\nAPPID\r\n  2\r\n"), 2) << "one for each application";
    EXPECT_EQ(occurrences(text, "ktui_names"), 0);
    EXPECT_EQ(drawing->writeDxfBytes(OdDxfForm{OdDb::kDHL_1032}).find("KTUI_NAMES"), std::string::npos);
    EXPECT_EQ(readDrawing(text)->writeDxfBytes(OdDxfForm{OdDb::kDHL_1009}), text);
}

TEST(DxfR12Names, WholeNamesComeBackFromANewerVersionToo) {
    const std::string file = dxf(header("AC1015") +
                                 "0|SECTION\n2|TABLES\n"
                                 "0|TABLE\n2|APPID\n70|1\n0|APPID\n2|KTUI_NAMES\n70|0\n0|ENDTAB\n"
                                 "0|TABLE\n2|LAYER\n70|1\n0|LAYER\n5|A0\n2|A_B\n70|0\n62|1\n6|Continuous\n"
                                 "1001|KTUI_NAMES\n1000|A_B\n1000|A B\n5|9\n0|ENDTAB\n0|ENDSEC\n0|EOF");
    const std::string text = rewritten(file);
    EXPECT_TRUE(has(text, "100|AcDbLayerTableRecord\n2|A B"));
    EXPECT_EQ(text.find("KTUI_NAMES"), std::string::npos);
    EXPECT_FALSE(has(text, "6|Continuous\n5|9")) << "what stood behind its data is not the layer's own";
}

TEST(DxfR12Names, WholeNamesComeBackWithoutTheirApplication) {
    const std::string file = dxf(header("AC1009") +
                                 "0|SECTION\n2|TABLES\n"
                                 "0|TABLE\n2|LAYER\n70|2\n0|LAYER\n2|A_B\n70|0\n62|1\n6|CONTINUOUS\n"
                                 "1001|KTUI_NAMES\n1000|A_B\n1000|A B\n"
                                 "0|LAYER\n2|C\n70|0\n62|1\n6|CONTINUOUS\n"
                                 "1001|KTUI_NAMES\n1000|of_another\n1000|of another\n"
                                 "0|ENDTAB\n0|ENDSEC\n0|EOF");
    const std::string text = rewritten(file, OdDb::kDHL_1032);
    EXPECT_TRUE(has(text, "100|AcDbLayerTableRecord\n2|A B"));
    EXPECT_TRUE(has(text, "100|AcDbLayerTableRecord\n2|C"));
    EXPECT_EQ(text.find("KTUI_NAMES"), std::string::npos);
    const std::string old = rewritten(file, OdDb::kDHL_1009);
    EXPECT_TRUE(has(old, "0|LAYER\n2|A_B\n70|0\n62|1\n6|CONTINUOUS\n1001|KTUI_NAMES\n1000|A_B\n1000|A B\n"));
    EXPECT_EQ(old.find("of_another"), std::string::npos) << "a name that was not this layer's goes";
    EXPECT_EQ(rewritten(old), old);
}

TEST(DxfR12Names, NoApplicationTakesTheNameOfThatOfWholeNames) {
    const std::string own = "2|KTUI[NAMES\n70|0\n";
    const std::string text = rewritten(dxf(header("AC1015") +
                                           "0|SECTION\n2|TABLES\n"
                                           "0|TABLE\n2|APPID\n70|1\n0|APPID\n5|A0\n" +
                                           own + "0|ENDTAB\n0|ENDSEC\n0|EOF"),
                                       OdDb::kDHL_1009);
    EXPECT_TRUE(
        has(text, "0|APPID\n2|KTUI_NAMES_2\n70|0\n1001|KTUI_NAMES\n1000|KTUI_NAMES_2\n1000|KTUI[NAMES\n"));
    EXPECT_EQ(rewritten(text), text);
    EXPECT_TRUE(has(rewritten(text, OdDb::kDHL_1032), own)) << "and it comes back";
}

TEST(DxfR12Names, NoBlockTakesTheNameOfASpace) {
    for (const char* space : {"MODEL", "PAPER"}) {
        const std::string own = std::string("$") + space + "/SPACE";
        const std::string text =
            rewritten(dxf(header("AC1015") + "0|SECTION\n2|BLOCKS\n0|BLOCK\n5|A0\n8|0\n2|" + own +
                          "\n70|0\n10|0\n20|0\n30|0\n0|ENDBLK\n5|A1\n8|0\n0|ENDSEC\n0|EOF"),
                      OdDb::kDHL_1009);
        EXPECT_TRUE(has(text, std::string("2|$") + space + "_SPACE_2\n")) << space;
        EXPECT_EQ(rewritten(text), text);
        EXPECT_TRUE(has(rewritten(text, OdDb::kDHL_1032), "2|" + own + "\n")) << "and it comes back";
    }
}

TEST(DxfR12Names, NoApplicationComesBackAsThatOfWholeNames) {
    const std::string text = rewritten(
        dxf(header("AC1009") + "0|SECTION\n2|TABLES\n0|TABLE\n2|APPID\n70|1\n"
                               "0|APPID\n2|MINE\n70|0\n1001|KTUI_NAMES\n1000|MINE\n1000|KTUI_NAMES\n"
                               "0|ENDTAB\n0|ENDSEC\n0|EOF"),
        OdDb::kDHL_1032);
    EXPECT_TRUE(has(text, "2|MINE\n70|0\n"));
    EXPECT_EQ(text.find("KTUI_NAMES"), std::string::npos);
}

TEST(DxfR12Names, ALayerThatIsNoneOfItsEntitiesIsNotWrittenBesideTheirs) {
    const std::string text = rewritten(withEntities("0|LWPOLYLINE\n5|30\n330|1F\n100|AcDbE\n430|B$C\n102|{"
                                                    "OWN\n8|ODD\n102|}\n8|0\n8|ODD\n100|AcDbPolyline\n90|2\n"
                                                    "70|0\n10|0\n20|0\n10|1\n20|1\n"),
                                       OdDb::kDHL_1009);
    EXPECT_EQ(rewritten(text), text);
}
