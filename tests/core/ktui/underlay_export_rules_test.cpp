// What the export dialog decides: formats, plot areas, words.
#include <ktui/nav/underlay_export_rules.h>

#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <vector>

namespace {

std::pair<int, int> formatOf(const wchar_t* extension) {
    const ExportFormat format = ExportFormatOf(extension, {77, 88});
    return {format.tag, format.format};
}

using Entries = std::vector<std::tuple<unsigned, std::wstring, int>>;
Entries entriesOf(bool isModel) {
    Entries entries;
    for (const ExportArea& entry : ExportAreas(isModel))
        entries.emplace_back(entry.text.id, entry.text.standard, entry.area);
    return entries;
}

void expectText(const ExportText& text, unsigned id, const wchar_t* standard) {
    EXPECT_EQ(text.id, id);
    EXPECT_STREQ(text.standard, standard);
}

}  // namespace

TEST(UnderlayExportRules, TheExtensionSaysTagAndFormatInAnyCase) {
    for (const wchar_t* each : {L"DWF", L"dwf", L"DwF"})
        EXPECT_EQ(formatOf(each), std::make_pair(1, 0)) << CStringA(each).GetString();
    for (const wchar_t* each : {L"DWFX", L"dwfx", L"DWFx"})
        EXPECT_EQ(formatOf(each), std::make_pair(2, 1)) << CStringA(each).GetString();
    for (const wchar_t* each : {L"PDF", L"pdf"}) EXPECT_EQ(formatOf(each), std::make_pair(0, 2));
}

TEST(UnderlayExportRules, TheTextBehindTheLastPointCounts) {
    EXPECT_EQ(formatOf(L".pdf"), std::make_pair(0, 2));
    EXPECT_EQ(formatOf(L"dwf.pdf"), std::make_pair(0, 2));
    EXPECT_EQ(formatOf(L"*.pdf.dwfx"), std::make_pair(2, 1));
}

TEST(UnderlayExportRules, AnyOtherExtensionLeavesWhatWasThere) {
    for (const wchar_t* each : {L"", L"dxf", L"pdf.", L"pdf.x", L"dw", L"pdfx", L"dwfxx"})
        EXPECT_EQ(formatOf(each), std::make_pair(77, 88)) << CStringA(each).GetString();
    EXPECT_EQ(ExportFormat().tag, 1);
    EXPECT_EQ(ExportFormat().format, 0);
}

TEST(UnderlayExportRules, MessagesNameTheFormat) {
    EXPECT_STREQ(ExportFormatName(0), L"DWF");
    EXPECT_STREQ(ExportFormatName(1), L"DWFx");
    EXPECT_STREQ(ExportFormatName(2), L"PDF");
    for (const int none : {-1, 3}) EXPECT_STREQ(ExportFormatName(none), L"");
}

TEST(UnderlayExportRules, EachKindOfLayoutHasItsAreasInOrder) {
    EXPECT_EQ(entriesOf(true),
              (Entries{{57258, L"Display", 0}, {57259, L"Extents", 1}, {57260, L"Window", 2}}));
    EXPECT_EQ(entriesOf(false), (Entries{{57261, L"Current layout", 3}, {57262, L"All layouts", 4}}));
}

TEST(UnderlayExportRules, AWindowIsPickedForItsAreaAloneAndAllLayoutsTakeTheirOwnSetups) {
    for (int area = -1; area <= 5; ++area) {
        EXPECT_EQ(PicksExportWindow(area), area == 2) << area;
        EXPECT_EQ(TakesLayoutSetups(area), area == 4) << area;
    }
}

TEST(UnderlayExportRules, OneAloneIsAFileOfSeveralSheets) {
    expectText(SheetsText(1), 57250, L"Multi-sheet file");
    for (const int other : {0, 2, -1}) expectText(SheetsText(other), 57251, L"Single-sheet file");
}

TEST(UnderlayExportRules, AnyNumberButZeroTakesTheFirstWordOfAPair) {
    for (const int on : {1, 2, -1}) {
        expectText(InclusionText(on), 57252, L"Include");
        expectText(MergeText(on), 57254, L"Lines merge");
        expectText(PasswordText(on), 57256, L"Prompt for password");
    }
    expectText(InclusionText(0), 57253, L"Don't include");
    expectText(MergeText(0), 57255, L"Lines overwrite");
    expectText(PasswordText(0), 57257, L"Disabled");
}
