// Plot style tables: what they hold, and that nothing bad in a file gets further than an answer.
#include <gtest/gtest.h>

#include <string>

#include "plotting/plot_style_table.h"

namespace {

constexpr int kWestern = 1252;
constexpr std::size_t kHeadSize = 48;  // first line and the codec's name

PlotStyleFault read(const std::string& bytes, PlotStyleTable& table) {
    return ReadPlotStyleTable(bytes, kWestern, table);
}

PlotStyleFault faultOf(const std::string& bytes) {
    PlotStyleTable table;
    table.description = L"as before";
    const PlotStyleFault fault = read(bytes, table);
    if (fault != PlotStyleFault::kNone) {
        EXPECT_EQ(table.description, L"as before");
        EXPECT_TRUE(table.styles.empty());
    }
    return fault;
}

PlotStyle style(const wchar_t* name) {
    PlotStyle made;
    made.name = name;
    return made;
}

/// A table with a style of each kind.
PlotStyleTable houseTable() {
    PlotStyleTable table;
    table.description = L"House styles";
    table.styles = {style(L"Normal"), style(L"Heavy"), style(L"Half tone"), style(L"\x7C97\x7EBF")};
    table.styles[1].rgb = 0x102030;
    table.styles[1].lineweight = 0.7;
    table.styles[1].description = L"for outlines";
    table.styles[2].colorIndex = 8;
    table.styles[2].screening = 50;
    table.styles[2].linetype = 3;
    table.styles[3].lineweight = 0.25;
    return table;
}

/// A style table's text without packing.
const char kText[] =
    "description=\"Plain\naci_table_available=FALSE\nscale_factor=1.0\n"
    "plot_style{\n 0{\n  name=\"Normal\n  color=-1\n  lineweight=0\n  linetype=31\n }\n"
    " 1{\n  name=\"Thin = fine\n  color=-1023410171\n  lineweight=2\n  linetype=1\n  unknown=12\n }\n}\n"
    "custom_lineweight_table{\n 0=0.00\n 1=0.13\n}\n";

void setNumber(std::string& bytes, std::size_t at, std::uint32_t value) {
    for (int i = 0; i < 4; ++i)
        bytes[at + static_cast<std::size_t>(i)] = static_cast<char>(value >> 8 * i & 0xFF);
}

std::uint32_t numberAt(const std::string& bytes, std::size_t at) {
    std::uint32_t value = 0;
    for (std::size_t i = 4; i-- > 0;) value = value << 8 | static_cast<unsigned char>(bytes[at + i]);
    return value;
}

}  // namespace

TEST(PlotStyleTable, WhatIsWrittenIsRead) {
    const PlotStyleTable written = houseTable();
    PlotStyleTable table;
    ASSERT_EQ(read(WritePlotStyleTable(written), table), PlotStyleFault::kNone);
    EXPECT_FALSE(table.isColorDependent);
    EXPECT_EQ(table.description, L"House styles");
    ASSERT_EQ(table.styles.size(), 4u);
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_EQ(table.styles[i].name, written.styles[i].name);
        EXPECT_EQ(table.styles[i].description, written.styles[i].description);
        EXPECT_EQ(table.styles[i].rgb, written.styles[i].rgb);
        EXPECT_EQ(table.styles[i].colorIndex, written.styles[i].colorIndex);
        EXPECT_EQ(table.styles[i].lineweight, written.styles[i].lineweight);
        EXPECT_EQ(table.styles[i].linetype, written.styles[i].linetype);
        EXPECT_EQ(table.styles[i].screening, written.styles[i].screening);
    }
}

TEST(PlotStyleTable, BeginsAsSuchFilesDo) {
    const std::string bytes = WritePlotStyleTable(houseTable());
    EXPECT_EQ(bytes.substr(0, kHeadSize), "PIAFILEVERSION_2.0,STBVER1,compress\r\npmzlibcodec");
    EXPECT_EQ(numberAt(bytes, kHeadSize + 8), bytes.size() - kHeadSize - 12);
    PlotStyleTable colors;
    colors.isColorDependent = true;
    EXPECT_EQ(WritePlotStyleTable(colors).substr(0, 27), "PIAFILEVERSION_2.0,CTBVER1,");
}

TEST(PlotStyleTable, AColorTableHasAStyleForEachColor) {
    PlotStyleTable written;
    written.isColorDependent = true;
    for (int i = 1; i <= 255; ++i) written.styles.push_back(style((L"Color_" + std::to_wstring(i)).c_str()));
    PlotStyleTable table;
    ASSERT_EQ(read(WritePlotStyleTable(written), table), PlotStyleFault::kNone);
    EXPECT_TRUE(table.isColorDependent);
    ASSERT_EQ(table.styles.size(), 255u);
    EXPECT_EQ(table.styles[254].name, L"Color_255");
}

TEST(PlotStyleTable, ReadsTheTextWithoutPacking) {
    for (const char* head : {"", "PIAFILEVERSION_2.0,STBVER1\r\n", "PIAFILEVERSION_2.0,STBVER1,none\n"}) {
        PlotStyleTable table;
        ASSERT_EQ(read(std::string(head) + kText, table), PlotStyleFault::kNone);
        EXPECT_EQ(table.description, L"Plain");
        ASSERT_EQ(table.styles.size(), 2u);
        EXPECT_FALSE(table.styles[0].rgb || table.styles[0].lineweight || table.styles[0].linetype);
        EXPECT_EQ(table.styles[1].name, L"Thin = fine");
        EXPECT_EQ(table.styles[1].colorIndex, 5);
        EXPECT_EQ(table.styles[1].lineweight, 0.13);
        EXPECT_EQ(table.styles[1].linetype, 1);
    }
}

TEST(PlotStyleTable, LinesMayEndInBothCharacters) {
    std::string text;
    for (const char c : std::string(kText)) text += c == '\n' ? std::string("\r\n") : std::string(1, c);
    PlotStyleTable table;
    ASSERT_EQ(read(text, table), PlotStyleFault::kNone);
    EXPECT_EQ(table.styles[1].name, L"Thin = fine");
}

TEST(PlotStyleTable, TextsInACodePageAreRead) {
    PlotStyleTable table;
    ASSERT_EQ(ReadPlotStyleTable("plot_style{\n 0{\n name=\"\xB4\xD6\xCF\xDF\n }\n}\n", 936, table),
              PlotStyleFault::kNone);
    ASSERT_EQ(table.styles.size(), 1u);
    EXPECT_EQ(table.styles[0].name, L"\x7C97\x7EBF");
}

TEST(PlotStyleTable, StylesWithoutANameAndSecondOnesAreLeftOut) {
    PlotStyleTable table;
    ASSERT_EQ(
        read("plot_style{\n 0{\n name=\"A\n }\n 1{\n color=-1\n }\n 2{\n name=\"A\n }\n 3{\n name=\"\n }\n}",
             table),
        PlotStyleFault::kNone);
    EXPECT_EQ(table.styles.size(), 1u);
}

TEST(PlotStyleTable, ControlCharactersInTextsCountAsBlanks) {
    PlotStyleTable table;
    ASSERT_EQ(
        read("\xEF\xBB\xBFplot_style{\n 0{\n name=\"A\rB\tC \x01\n }\n 1{\n name=\"\x02\n }\n}\n", table),
        PlotStyleFault::kNone);
    ASSERT_EQ(table.styles.size(), 1u);
    EXPECT_EQ(table.styles[0].name, L"A B C");
}

TEST(PlotStyleTable, ATableWithoutStylesIsOne) {
    PlotStyleTable table = houseTable();
    ASSERT_EQ(read(WritePlotStyleTable(PlotStyleTable()), table), PlotStyleFault::kNone);
    EXPECT_TRUE(table.styles.empty());
}

TEST(PlotStyleTable, ValuesOutOfRangeCountAsNotGiven) {
    PlotStyleTable table;
    ASSERT_EQ(read("plot_style{\n 0{\n name=\"A\n color=x\n screen=400\n lineweight=9\n linetype=99\n }\n"
                   " 1{\n name=\"B\n lineweight=-4\n linetype=-1\n screen=-1\n }\n}\n"
                   "custom_lineweight_table{\n 8=inf\n x=1\n}",
                   table),
              PlotStyleFault::kNone);
    for (const PlotStyle& each : table.styles) {
        EXPECT_FALSE(each.rgb || each.colorIndex || each.lineweight || each.linetype);
        EXPECT_EQ(each.screening, 100);
    }
}

TEST(PlotStyleTable, OtherFilesAreNone) {
    for (const char* bytes : {"", "hello", "key=value\n", "a{\n}\n", "}", "{",
                              "PIAFILEVERSION_2.0,PC3VER1,compress\r\nx", "\x89PNG\r\n\x1A\n"})
        EXPECT_EQ(faultOf(bytes), PlotStyleFault::kNotATable) << bytes;
    EXPECT_EQ(faultOf("PIAFILEVERSION_" + std::string(200, 'x')), PlotStyleFault::kNotATable);
    EXPECT_EQ(faultOf(std::string(100, '\0')), PlotStyleFault::kNotATable);
}

TEST(PlotStyleTable, BlocksThatDoNotMatchAreDamage) {
    EXPECT_EQ(faultOf("plot_style{\n}\n}\n"), PlotStyleFault::kDamaged);
    EXPECT_EQ(faultOf("plot_style{\nnonsense\n}\n"), PlotStyleFault::kDamaged);
    EXPECT_EQ(faultOf("plot_style{\n 0{\n  name=\"A\n }\n"), PlotStyleFault::kTruncated);
    std::string deep;
    for (int i = 0; i < 100; ++i) deep += "plot_style{\n";
    EXPECT_EQ(faultOf(deep), PlotStyleFault::kDamaged);
}

TEST(PlotStyleTable, CutAnywhereItGivesNothing) {
    const std::string bytes = WritePlotStyleTable(houseTable());
    for (std::size_t size = 0; size < bytes.size(); ++size)
        EXPECT_NE(faultOf(bytes.substr(0, size)), PlotStyleFault::kNone) << size;
    EXPECT_EQ(faultOf(bytes.substr(0, 20)), PlotStyleFault::kTruncated);
    EXPECT_EQ(faultOf(bytes.substr(0, kHeadSize)), PlotStyleFault::kTruncated);
    EXPECT_EQ(faultOf(bytes.substr(0, bytes.size() - 1)), PlotStyleFault::kTruncated);
}

TEST(PlotStyleTable, AChangedByteInThePackedTextGivesNothing) {
    const std::string bytes = WritePlotStyleTable(houseTable());
    int harmless = 0;
    for (std::size_t at = kHeadSize + 4; at < bytes.size(); ++at) {
        std::string changed = bytes;
        changed[at] = static_cast<char>(changed[at] ^ 0x20);
        if (faultOf(changed) == PlotStyleFault::kNone) ++harmless;
    }
    EXPECT_LE(harmless, 1) << "the last bits before zlib's checksum may be unused";
}

TEST(PlotStyleTable, TheChecksumInFrontIsNotLookedAt) {
    std::string bytes = WritePlotStyleTable(houseTable());
    setNumber(bytes, kHeadSize, 0xFFFFFFFF);
    EXPECT_EQ(faultOf(bytes), PlotStyleFault::kNone) << "programs fill it in differently";
}

TEST(PlotStyleTable, LengthsThatLieGiveNothing) {
    const std::string bytes = WritePlotStyleTable(houseTable());
    const std::uint32_t plain = numberAt(bytes, kHeadSize + 4), packed = numberAt(bytes, kHeadSize + 8);
    const auto withLengths = [&](std::uint32_t p, std::uint32_t q) {
        std::string changed = bytes + "more";
        setNumber(changed, kHeadSize + 4, p);
        setNumber(changed, kHeadSize + 8, q);
        return faultOf(changed);
    };
    EXPECT_EQ(withLengths(plain, packed), PlotStyleFault::kNone);
    EXPECT_EQ(withLengths(plain - 1, packed), PlotStyleFault::kDamaged);
    EXPECT_EQ(withLengths(plain + 1, packed), PlotStyleFault::kDamaged);
    EXPECT_EQ(withLengths(0, packed), PlotStyleFault::kDamaged);
    EXPECT_EQ(withLengths(plain, packed - 1), PlotStyleFault::kDamaged);
    EXPECT_EQ(withLengths(plain, packed + 1), PlotStyleFault::kDamaged);
    EXPECT_EQ(withLengths(plain, packed + 100), PlotStyleFault::kTruncated);
    EXPECT_EQ(withLengths(plain, 0xFFFFFFFF), PlotStyleFault::kTruncated);
    EXPECT_EQ(withLengths(0xFFFFFFFF, packed), PlotStyleFault::kTooLarge);
}

TEST(PlotStyleTable, LargeOnesAreReadUpToTheLimit) {
    PlotStyleTable many;
    for (int i = 0; i < 5000; ++i) many.styles.push_back(style((L"Style " + std::to_wstring(i)).c_str()));
    PlotStyleTable table;
    ASSERT_EQ(read(WritePlotStyleTable(many), table), PlotStyleFault::kNone);
    EXPECT_EQ(table.styles.size(), 5000u);
    // A text of blanks packs a thousand to one.
    PlotStyleTable huge;
    huge.description = OdString(std::wstring(2 * kMostPlotStyleText, L'x'));
    const std::string bomb = WritePlotStyleTable(huge);
    EXPECT_LT(bomb.size(), kMostPlotStyleText / 100);
    EXPECT_EQ(faultOf(bomb), PlotStyleFault::kTooLarge);
    EXPECT_EQ(faultOf(std::string(kMostPlotStyleText + 1, ' ')), PlotStyleFault::kTooLarge);
    // Without packing as well, to the byte: 4 MB behind the first line.
    const std::string firstLine = "PIAFILEVERSION_2.0,STBVER1\r\n";
    EXPECT_EQ(faultOf(firstLine + kText + std::string((4u << 20) - sizeof kText + 1, '\n')),
              PlotStyleFault::kNone);
    EXPECT_EQ(faultOf(firstLine + kText + std::string((4u << 20) - sizeof kText + 2, '\n')),
              PlotStyleFault::kTooLarge);
    // The same with a length that hides it.
    std::string hidden = bomb;
    setNumber(hidden, kHeadSize + 4, 1000);
    EXPECT_EQ(faultOf(hidden), PlotStyleFault::kDamaged);
}
