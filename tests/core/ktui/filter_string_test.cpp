// What the platform's file dialog is told about file types.
#include <ktui/nav/filter_string.h>

#include <gtest/gtest.h>

namespace {

/// The string for one filter.
CString stringFor(const wchar_t* description, bool isFull, std::initializer_list<const wchar_t*> patterns) {
    CNavFilterArray filters;
    CNavFilter* const filter = filters.AddData();
    for (const wchar_t* pattern : patterns) filter->Add(pattern);
    if (isFull)
        filter->SetFullDescription(description);
    else
        filter->SetDescription(description);
    return BuildFilterString(filters);
}

}  // namespace

TEST(FilterString, IsEmptyWithoutFilters) { EXPECT_EQ(BuildFilterString(CNavFilterArray()), L""); }

TEST(FilterString, GivesAllFilesForNoPatterns) {
    EXPECT_EQ(stringFor(L"All", false, {}), L"All()|*.*||");
    EXPECT_EQ(stringFor(L"All", true, {}), L"All|*.*||");
    EXPECT_EQ(stringFor(L"", true, {}), L"|*.*||");
}

TEST(FilterString, GivesOnePatternByItself) {
    EXPECT_EQ(stringFor(L"Anything (*.x)", true, {L"*.x"}), L"Anything (*.x)|*.x||");
    EXPECT_EQ(stringFor(L"Drawing", false, {L"*.dwg"}), L"Drawing(*.dwg)|*.dwg||");
    EXPECT_EQ(stringFor(L"", false, {L"*.dwg"}), L"(*.dwg)|*.dwg||");
    EXPECT_EQ(stringFor(L"", true, {L"*.dwg"}), L" (*.dwg)|*.dwg||");
}

TEST(FilterString, JoinsSeveralPatterns) {
    EXPECT_EQ(stringFor(L"Drawing", false, {L"*.dwg", L"*.dxf"}), L"Drawing(*.dwg,*.dxf)|*.dwg;*.dxf||");
    EXPECT_EQ(stringFor(L"Drawings", true, {L"*.a", L"*.b", L"*.c"}), L"Drawings|*.a;*.b;*.c||");
    EXPECT_EQ(stringFor(L"", true, {L"*.a", L"*.b", L"*.c"}), L" (*.a, *.b, *.c)|*.a;*.b;*.c||");
}

TEST(FilterString, PutsTheFiltersInOrderAndOneBarBehindThem) {
    CNavFilterArray filters;
    CNavFilter* filter = filters.AddData();
    filter->SetDescription(L"One");
    filter->Add(L"*.1");
    filter = filters.AddData();
    filter->SetFullDescription(L"100% of them");
    filter->Add(L"*.2");
    filter->Add(L"*.3");
    EXPECT_EQ(BuildFilterString(filters), L"One(*.1)|*.1|100% of them|*.2;*.3||");
}

TEST(FilterString, AnExtensionLosesItsWildcardOnly) {
    EXPECT_EQ(NormalizeDefaultExtension(L"*.dwg"), L"dwg");
    EXPECT_EQ(NormalizeDefaultExtension(L"dwg"), L"dwg");
    EXPECT_EQ(NormalizeDefaultExtension(L".dwg"), L".dwg");
    EXPECT_EQ(NormalizeDefaultExtension(L"*dwg"), L"*dwg");
    EXPECT_EQ(NormalizeDefaultExtension(L"**.dwg"), L"**.dwg");
    EXPECT_EQ(NormalizeDefaultExtension(L"*.*.dwg"), L"*.dwg");
    EXPECT_EQ(NormalizeDefaultExtension(L"*."), L"");
    EXPECT_EQ(NormalizeDefaultExtension(L""), L"");
}

TEST(FilterString, AFilterOfTemplatesHoldsTheirPattern) {
    CNavFilter filter;
    EXPECT_FALSE(IsTemplateFilter(nullptr));
    EXPECT_FALSE(IsTemplateFilter(&filter));
    filter.Add(L"*.dwg");
    EXPECT_FALSE(IsTemplateFilter(&filter));
    filter.Add(L"*.DWT");
    EXPECT_TRUE(IsTemplateFilter(&filter));
}
