// What R12 has no form for, in the forms that it has.
#include <gtest/gtest.h>

#include <algorithm>

#include "dxf_text.h"

TEST(DxfR12, WidthsOfAFlatPolylineBecomeThoseOfItsVertices) {
    const std::string text = rewritten(
        withEntities(
            "0|LWPOLYLINE\n100|AcDbEntity\n8|0\n100|AcDbPolyline\n90|2\n70|0\n10|1\n20|2\n40|3\n41|4\n"
            "42|5\n10|6\n20|7\n"),
        OdDb::kDHL_1009);
    const OdDbDatabasePtr again = readDrawing(text);
    auto* polyline = firstEntity<OdDb2dPolyline>(*again);
    ASSERT_TRUE(polyline);
    ASSERT_EQ(polyline->vertices().length(), 2);
    const OdGroupList& first = polyline->vertices()[0]->groups();
    EXPECT_EQ(first.real(40), 3);
    EXPECT_EQ(first.real(41), 4);
    EXPECT_EQ(first.real(42), 5);
    EXPECT_EQ(polyline->vertices()[1]->groups().real(41), 0);
    EXPECT_EQ(occurrences(text, "\r\nSEQEND\r\n"), 1) << "a list made here is ended too";
}

TEST(DxfR12, AParagraphBecomesLinesFiveThirdsOfItsHeightApart) {
    const OdDbDatabasePtr again = readDrawing(rewritten(
        withEntities("0|MTEXT\n100|AcDbEntity\n8|0\n100|AcDbMText\n10|1\n20|50\n40|3\n1|one\\Ptwo\\Pthree\n"),
        OdDb::kDHL_1009));
    const auto lines = modelEntities(*again);
    ASSERT_EQ(lines.size(), 3u);
    const wchar_t* const words[] = {L"one", L"two", L"three"};
    for (int i = 0; i < 3; ++i) {
        const auto* line = dynamic_cast<OdDbText*>(lines[static_cast<std::size_t>(i)]);
        ASSERT_TRUE(line);
        EXPECT_EQ(line->textString(), words[i]);
        EXPECT_EQ(line->position().x, 1);
        EXPECT_NEAR(line->position().y, 50 - 3 - 5 * i, 1e-12);
    }
}

TEST(DxfR12, ItsOwnVariablesAreWrittenAndNewerOnesAreNot) {
    const char* const names[] = {"ATTDIA", "COORDS",  "DIMCLRT",  "DIMGAP",   "DIMTP",    "GRIDMODE",
                                 "OSMODE", "PUCSORG", "SKPOLY",   "SPLFRAME", "SURFU",    "UCSXDIR",
                                 "USERR5", "VIEWDIR", "VIEWMODE", "VIEWSIZE", "WORLDVIEW"};
    std::string variables;
    for (const char* name : names) variables += std::string("9|$") + name + "\n70|1\n";
    const std::string text = rewritten(dxf("0|SECTION\n2|HEADER\n9|$ACADVER\n1|AC1032\n" + variables +
                                           "9|$FUTUREVAR\n70|1\n0|ENDSEC\n0|EOF"),
                                       OdDb::kDHL_1009);
    for (const char* name : names) EXPECT_TRUE(has(text, std::string("9|$") + name + "\n70|1")) << name;
    EXPECT_EQ(text.find("$FUTUREVAR"), std::string::npos);
}

TEST(DxfR12, DataOfApplicationsIsLeftOutToItsEnd) {
    const std::string text =
        rewritten(withEntities("0|POINT\n5|A0\n102|{OTHER\n40|9\n102|}\n100|AcDbEntity\n8|0\n"
                               "100|AcDbPoint\n10|1\n20|2\n102|{MINE\n40|8\n102|}\n39|7\n"),
                  OdDb::kDHL_1009);
    EXPECT_EQ(text.find("102\r\n"), std::string::npos);
    EXPECT_TRUE(has(text, "10|1.0\n20|2.0\n39|7.0")) << "what stands behind it stays";
    EXPECT_FALSE(has(text, "40|9.0"));
    EXPECT_FALSE(has(text, "40|8.0"));
}

TEST(DxfR12, EveryListOfVerticesHasOneEnd) {
    const std::string file = withEntities(
        "0|POLYLINE\n5|A0\n8|0\n66|1\n10|0\n20|0\n70|0\n0|VERTEX\n5|A1\n8|0\n10|1\n20|2\n0|SEQEND\n5|A2\n8|"
        "0\n"
        "0|POLYLINE\n5|B0\n8|0\n66|1\n10|0\n20|0\n70|0\n0|VERTEX\n5|B1\n8|0\n10|1\n20|2\n0|SEQEND\n8|0\n",
        "AC1009");
    for (const OdDb::DwgVersion version : kAllVersions)
        EXPECT_EQ(occurrences(rewritten(file, version), "\r\nSEQEND\r\n"), 2) << version;
}

TEST(DxfR12, AFlatPolylineKeepsWhatR12HasAFormFor) {
    const std::string text = rewritten(
        withEntities(
            "0|LWPOLYLINE\n5|A0\n100|AcDbEntity\n8|0\n6|ByBlock\n62|3\n60|1\n100|AcDbPolyline\n90|2\n70|129\n"
            "43|0.5\n38|7\n39|2\n10|1\n20|2\n91|4\n10|6\n20|7\n210|0\n220|0\n230|-1\n"
            "1001|ACAD\n1000|mine\n1040|1.5\n"),
        OdDb::kDHL_1009);
    EXPECT_TRUE(has(
        text,
        "0|POLYLINE\n5|A0\n8|0\n6|ByBlock\n62|3\n60|1\n66|1\n10|0.0\n20|0.0\n30|7.0\n70|129\n40|0.5\n41|0.5\n"
        "39|2.0\n210|0.0\n220|0.0\n230|-1.0\n1001|ACAD\n1000|mine\n1040|1.5\n0|VERTEX"))
        << text.substr(text.find("POLYLINE") - 10, 400);
    EXPECT_EQ(occurrences(text, "\r\n0.5\r\n"), 6) << "the width of the whole and of both corners";
}

TEST(DxfR12, EveryFormKeepsCommonPropertiesAndTheFirstItsExtendedData) {
    const std::string common = "\n100|AcDbEntity\n8|WALLS\n62|3\n60|1\n100|AcDbOwn\n";
    const std::string data = "1001|ACAD\n1000|mine\n";
    for (const std::string& entity : {"0|ELLIPSE" + common + "10|0\n20|0\n11|4\n21|0\n40|0.5\n41|0\n42|3\n",
                                      "0|MTEXT" + common + "10|0\n20|0\n40|1\n1|one\\Ptwo\n"}) {
        const OdDbDatabasePtr again = readDrawing(rewritten(withEntities(entity + data), OdDb::kDHL_1009));
        const auto forms = modelEntities(*again);
        ASSERT_FALSE(forms.empty());
        for (const OdDbEntity* form : forms) {
            EXPECT_EQ(form->layer(), L"WALLS");
            EXPECT_EQ(form->colorIndex(), 3);
            EXPECT_EQ(form->visibility(), OdDb::kInvisible);
            EXPECT_EQ(form->xData(L"ACAD").isEmpty(), form != forms[0]);
        }
    }
}

namespace {

/// The lines that R12 gets of a paragraph at 10, 20, with letters 2 high.
std::vector<OdDbEntity*> linesOf(OdDbDatabasePtr& kept, const std::string& groups,
                                 const std::string& contents) {
    kept = readDrawing(
        rewritten(withEntities("0|MTEXT\n100|AcDbEntity\n8|0\n100|AcDbMText\n10|10\n20|20\n40|2\n" + groups +
                               "1|" + contents + "\n"),
                  OdDb::kDHL_1009));
    return modelEntities(*kept);
}

std::string joined(const std::vector<OdDbEntity*>& lines) {
    std::string text;
    for (OdDbEntity* line : lines) text += odUtf8(dynamic_cast<OdDbText*>(line)->textString().view()) + "/";
    return text;
}

}  // namespace

TEST(DxfR12, AParagraphStandsAtItsAttachmentPoint) {
    // Two lines: a letter of 2 and a line of 10 thirds are 5.33 high.
    const double kHigh = 2 + 10.0 / 3;
    for (int attachment = 1; attachment <= 9; ++attachment) {
        OdDbDatabasePtr kept;
        const auto lines = linesOf(kept, "71|" + std::to_string(attachment) + "\n", "one\\Ptwo");
        ASSERT_EQ(lines.size(), 2u);
        const int column = (attachment - 1) % 3, row = (attachment - 1) / 3;
        const double base = 20 - 2 + kHigh * row / 2;
        for (int i = 0; i < 2; ++i) {
            const auto* text = dynamic_cast<OdDbText*>(lines[static_cast<std::size_t>(i)]);
            EXPECT_EQ(text->horizontalMode(), column) << attachment;
            EXPECT_NEAR(text->alignmentPoint().x, 10, 1e-9) << attachment;
            EXPECT_NEAR(text->alignmentPoint().y, base - i * 10.0 / 3, 1e-9) << attachment;
            EXPECT_EQ(text->position().x<9.9, column> 0) << "where the text begins, about";
        }
    }
}

TEST(DxfR12, ATurnedParagraphIsTurnedAroundItsPoint) {
    OdDbDatabasePtr kept;
    const auto lines = linesOf(kept, "71|5\n50|90\n", "one");
    const auto* text = dynamic_cast<OdDbText*>(lines.at(0));
    EXPECT_NEAR(text->alignmentPoint().x, 11, 1e-9);
    EXPECT_NEAR(text->alignmentPoint().y, 20, 1e-9);
    EXPECT_NEAR(text->rotation(), 1.5707963, 1e-6);
    EXPECT_LT(text->position().y, 19);
}

TEST(DxfR12, AParagraphIsBrokenAtItsWidth) {
    OdDbDatabasePtr kept;
    const std::string words = "the quick brown fox jumps over the lazy dog";
    EXPECT_EQ(joined(linesOf(kept, "", words)), words + "/");
    EXPECT_EQ(joined(linesOf(kept, "41|0\n", words)), words + "/");
    const auto broken = linesOf(kept, "41|16\n", words);
    EXPECT_GE(broken.size(), 4u);
    EXPECT_LE(broken.size(), 6u);
    std::string whole = joined(broken);
    std::replace(whole.begin(), whole.end(), '/', ' ');
    EXPECT_EQ(whole, words + " ") << "no word is lost or cut";
    EXPECT_EQ(linesOf(kept, "41|1\n", words).size(), 9u) << "a word wider than the width stands alone";
    EXPECT_EQ(
        linesOf(kept, "41|12\n", "\\U+5899\\U+4F53\\U+5899\\U+4F53\\U+5899\\U+4F53\\U+5899\\U+4F53").size(),
        2u)
        << "ideographs are parted anywhere";
}

TEST(DxfR12, NoLineOfAParagraphIsLongerThanR12Takes) {
    OdDbDatabasePtr kept;
    std::string words;
    for (int i = 0; i < 120; ++i) words += "word" + std::to_string(i) + " ";
    const auto lines = linesOf(kept, "", words);
    EXPECT_GE(lines.size(), 3u);
    for (OdDbEntity* line : lines) EXPECT_LE(dynamic_cast<OdDbText*>(line)->textString().view().size(), 255u);
    EXPECT_NE(joined(lines).find("word119"), std::string::npos);
    const auto cut = linesOf(kept, "", std::string(600, 'x'));
    ASSERT_EQ(cut.size(), 3u);
    EXPECT_EQ(joined(cut),
              std::string(255, 'x') + "/" + std::string(255, 'x') + "/" + std::string(90, 'x') + "/");
    std::string marks;
    for (int i = 0; i < 60; ++i) marks += "\\U+4F53";
    for (OdDbEntity* line : linesOf(kept, "", marks))
        EXPECT_LE(dynamic_cast<OdDbText*>(line)->textString().view().size() * 7, 255u)
            << "as they are written";
}

TEST(DxfR12, EmptyLinesTakeTheirRoomAndLinesTheirSpacing) {
    OdDbDatabasePtr kept;
    const auto lines = linesOf(kept, "44|2\n", "one\\P\\Ptwo");
    ASSERT_EQ(lines.size(), 2u);
    const auto* last = dynamic_cast<OdDbText*>(lines[1]);
    EXPECT_NEAR(last->position().y, 20 - 2 - 2 * 2 * 10.0 / 3, 1e-9);
}

TEST(DxfR12, AParagraphsStyleGivesItsWidth) {
    const OdDbDatabasePtr kept = readDrawing(rewritten(
        dxf(header("AC1015") +
            "0|SECTION\n2|TABLES\n0|TABLE\n2|STYLE\n5|3\n0|STYLE\n5|A1\n100|AcDbSymbolTableRecord\n"
            "100|AcDbTextStyleTableRecord\n2|NARROW\n70|0\n41|0.5\n3|txt\n0|ENDTAB\n0|ENDSEC\n0|SECTION\n2|"
            "ENTITIES\n"
            "0|MTEXT\n8|0\n7|NARROW\n10|0\n20|0\n40|2\n41|16\n1|the quick brown fox jumps\n0|ENDSEC\n0|EOF"),
        OdDb::kDHL_1009));
    const auto lines = modelEntities(*kept);
    EXPECT_EQ(lines.size(), 2u) << "half as wide letters need half the lines";
    EXPECT_EQ(dynamic_cast<OdDbText*>(lines[0])->widthFactor(), 0.5);
    EXPECT_TRUE(has(kept->writeDxfBytes(), "7|NARROW"));
}

TEST(DxfR12, ATextThatBeginsWithABraceHoldsNoDataOfAnApplication) {
    const std::string text = rewritten(
        withEntities(
            "0|MTEXT\n5|A0\n100|AcDbEntity\n8|0\n100|AcDbMText\n10|1\n20|2\n40|3\n1|{\\C1;red}\n73|2\n",
            "AC1032"),
        OdDb::kDHL_1014);
    EXPECT_TRUE(has(text, "1|{\\C1;red}"));
    EXPECT_FALSE(has(text, "73|2")) << "what the version lacks stays away behind it";
}

TEST(DxfR12, WhatItsOwnTablesHeldStandsThereAgain) {
    const std::string text = rewritten(
        dxf(header("AC1009") +
            "0|SECTION\n2|TABLES\n0|TABLE\n2|LAYER\n70|1\n90|5\n0|LAYER\n2|WALL\n70|0\n62|3\n6|CONTINUOUS\n"
            "0|ENDTAB\n0|ENDSEC\n0|EOF"));
    const std::size_t table = text.find("LAYER\r\n");
    EXPECT_NE(table, std::string::npos);
    EXPECT_TRUE(has(text, "90|5"));
}

TEST(DxfR12, AParagraphOfAStyleThatIsNotThereBreaksAsOneOfTheUsualStyle) {
    const auto lines = [](const std::string& style) {
        const OdDbDatabasePtr again = readDrawing(rewritten(
            withEntities("0|MTEXT\n100|AcDbEntity\n8|0\n100|AcDbMText\n" + style +
                         "10|0\n20|0\n40|2\n41|20\n1|the quick brown fox jumps over the lazy dog\n"),
            OdDb::kDHL_1009));
        std::vector<OdString> texts;
        for (OdDbEntity* each : modelEntities(*again))
            if (const auto* text = dynamic_cast<OdDbText*>(each)) texts.push_back(text->textString());
        return texts;
    };
    EXPECT_GT(lines("").size(), 2u);
    EXPECT_EQ(lines("7|GONE\n"), lines(""));
}
