// What R12 has no form for, in the forms that it has.
#include <gtest/gtest.h>

#include "dxf_text.h"

namespace {

int occurrences(const std::string& text, const std::string& part) {
    int count = 0;
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) ++count;
    return count;
}

}  // namespace

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
