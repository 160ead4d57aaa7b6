// The linetype files and plot style tables that come with the sample host are whole.
#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <iterator>
#include <set>

#include "linetypes/linetype_file.h"
#include "plotting/plot_style_table.h"

namespace {

std::string bytesOf(const std::string& name) {
    std::ifstream file(std::string(KTUI_SAMPLE_FILES) + "/" + name, std::ios::binary);
    EXPECT_TRUE(file.good()) << name;
    return {std::istreambuf_iterator<char>(file), {}};
}

std::set<std::wstring> styleNames(const std::string& name) {
    PlotStyleTable table;
    EXPECT_EQ(ReadPlotStyleTable(bytesOf("plot_styles/" + name), 1252, table), PlotStyleFault::kNone) << name;
    EXPECT_EQ(table.isColorDependent, name.ends_with(".ctb"));
    std::set<std::wstring> names;
    for (const PlotStyle& style : table.styles) names.emplace(style.name.view());
    return names;
}

}  // namespace

TEST(SampleFiles, HoldTheSameLinetypesInBothUnits) {
    const LinetypeFile metric = ReadLinetypeFile(bytesOf("support/velmora_metric.lin"), 1252);
    const LinetypeFile imperial = ReadLinetypeFile(bytesOf("support/velmora.lin"), 1252);
    EXPECT_TRUE(metric.problems.empty() && imperial.problems.empty());
    ASSERT_EQ(metric.definitions.size(), imperial.definitions.size());
    EXPECT_GE(metric.definitions.size(), 25u);
    for (std::size_t i = 0; i < metric.definitions.size(); ++i) {
        const LinetypeDefinition &a = metric.definitions[i], &b = imperial.definitions[i];
        EXPECT_EQ(a.name, b.name);
        ASSERT_EQ(a.dashes.size(), b.dashes.size());
        for (std::size_t k = 0; k < a.dashes.size(); ++k)
            EXPECT_NEAR(a.dashes[k], b.dashes[k] * 25.4, 0.01) << odUtf8(a.name.view());
    }
}

TEST(SampleFiles, HoldTheStylesOfTheSampleDrawings) {
    const std::set<std::wstring> house = styleNames("velmora.stb");
    for (const wchar_t* name : {L"Normal", L"Heavy", L"Screened 50%", L"Thin Grey"})
        EXPECT_TRUE(house.count(name)) << odUtf8(name);
    EXPECT_FALSE(house.count(L"Planting"));
    EXPECT_TRUE(styleNames("planting.stb").count(L"Planting"));
    for (const char* name : {"monochrome.ctb", "screening.ctb"}) {
        const std::set<std::wstring> colors = styleNames(name);
        EXPECT_EQ(colors.size(), 255u);
        EXPECT_TRUE(colors.count(L"Color_1") && colors.count(L"Color_255"));
    }
}
