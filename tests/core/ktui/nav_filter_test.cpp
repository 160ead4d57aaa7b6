// The file types of a navigation dialog.
#include <ktui/nav/nav_filter.h>

#include <gtest/gtest.h>

#include <initializer_list>

namespace {

CNavFilter* add(CNavFilterArray& filters, std::initializer_list<const wchar_t*> patterns) {
    CNavFilter* const filter = filters.AddData();
    for (const wchar_t* pattern : patterns) filter->Add(pattern);
    return filter;
}

CString fullOf(const CNavFilter& filter) {
    CString text = L"before";
    filter.GetFullDescription(text);
    return text;
}

}  // namespace

TEST(NavFilter, StartsEmpty) {
    const CNavFilter filter;
    EXPECT_EQ(filter.GetCount(), 0);
    EXPECT_STREQ(filter.GetDescription(), L"");
    EXPECT_EQ(filter.GetTagIndex(), 0);
    EXPECT_EQ(fullOf(filter), L"()");
}

TEST(NavFilter, AddsItsPatternsToADescription) {
    CNavFilter filter;
    filter.SetDescription(L"Drawing");
    EXPECT_EQ(fullOf(filter), L"Drawing()");
    filter.Add(L"*.dwg");
    EXPECT_EQ(fullOf(filter), L"Drawing(*.dwg)");
    filter.Add(L"*.dxf");
    EXPECT_EQ(fullOf(filter), L"Drawing(*.dwg,*.dxf)");
    EXPECT_STREQ(filter.GetDescription(), L"Drawing");
    EXPECT_EQ(filter.GetCount(), 2);
}

TEST(NavFilter, ShowsAFullDescriptionAsItIs) {
    CNavFilter filter;
    filter.Add(L"*.dwg");
    filter.SetFullDescription(L"Anything (*.x)");
    EXPECT_EQ(fullOf(filter), L"Anything (*.x)");
    EXPECT_STREQ(filter.GetDescription(), L"Anything (*.x)");
    filter.SetFullDescription(L"");
    EXPECT_EQ(fullOf(filter), L"");
    filter.SetDescription(L"Drawing");
    EXPECT_EQ(fullOf(filter), L"Drawing(*.dwg)");
}

TEST(NavFilter, IgnoresNullTexts) {
    CNavFilter filter;
    filter.SetFullDescription(L"Full");
    filter.SetDescription(nullptr);
    EXPECT_EQ(fullOf(filter), L"Full");
    filter.SetDescription(L"Part");
    filter.SetFullDescription(nullptr);
    EXPECT_EQ(fullOf(filter), L"Part()");
}

TEST(NavFilter, FindsAPatternInAnyCase) {
    CNavFilter filter;
    filter.Add(L"*.dwg");
    filter.Add(L"*.DXF");
    filter.Add(L"*.dxf");
    EXPECT_EQ(filter.Find(L"*.DWG"), 0);
    EXPECT_EQ(filter.Find(L"*.dxf"), 1);
    EXPECT_EQ(filter.Find(L"*.dwgx"), -1);
    EXPECT_EQ(filter.Find(L"*.dw"), -1);
    EXPECT_EQ(filter.Find(L""), -1);
}

TEST(NavFilter, AllowsANameByAPatternForTheWholeOfIt) {
    CNavFilter filter;
    EXPECT_EQ(filter.IsAllowed(nullptr), 0);
    EXPECT_EQ(filter.IsAllowed(L"x.dwg"), 1);
    EXPECT_EQ(filter.IsAllowed(L"noext"), 1);
    filter.Add(L"*.dwg");
    EXPECT_EQ(filter.IsAllowed(L"x.dwg"), 0);
    EXPECT_EQ(filter.IsAllowed(L"noext"), 0);
    EXPECT_EQ(filter.IsAllowed(L"dwg"), 0) << "has no point";
    EXPECT_EQ(filter.IsAllowed(nullptr), 0);
    filter.Add(L"*.a.dwg");
    EXPECT_EQ(filter.IsAllowed(L"a.dwg"), 1);
    EXPECT_EQ(filter.IsAllowed(L"A.DWG"), 1);
}

TEST(NavFilter, TakesATextOverWithoutPatterns) {
    CNavFilter filter;
    filter.Add(L"*.dwg");
    EXPECT_STREQ(filter.SetFrom(L"All|*.*", 7), L"");
    EXPECT_EQ(filter.GetCount(), 0);
    EXPECT_EQ(fullOf(filter), L"All|*.*");
    EXPECT_STREQ(filter.SetFrom(L"Some", 0), L"");
    EXPECT_EQ(fullOf(filter), L"Some()");
    filter.Add(L"*.dwg");
    filter.SetFullDescription(L"Kept");
    EXPECT_STREQ(filter.SetFrom(nullptr, 0), L"");
    EXPECT_EQ(filter.GetCount(), 0);
    EXPECT_EQ(fullOf(filter), L"Kept");
}

TEST(NavFilterArray, BecomesOneFilterWithATag) {
    CNavFilterArray filters;
    add(filters, {L"*.dwg"});
    add(filters, {L"*.dxf"});
    filters.SetFrom(L"All files", 1);
    ASSERT_EQ(filters.GetCount(), 1);
    EXPECT_EQ(filters.GetData(0)->GetCount(), 0);
    EXPECT_EQ(filters.GetData(0)->GetTagIndex(), 1);
    EXPECT_EQ(fullOf(*filters.GetData(0)), L"All files");
    filters.GetData(0)->SetTagIndex(-3);
    EXPECT_EQ(filters.GetData(0)->GetTagIndex(), -3);
    filters.SetFrom(nullptr, 1);
    ASSERT_EQ(filters.GetCount(), 1);
    EXPECT_EQ(filters.GetData(0)->GetTagIndex(), 1);
    EXPECT_EQ(fullOf(*filters.GetData(0)), L"()");
}

TEST(NavFilterArray, FindsTheFirstFilterWithAPattern) {
    CNavFilterArray filters;
    EXPECT_EQ(filters.Find(L"*.dwg"), -1);
    add(filters, {L"*.txt"});
    add(filters, {L"*.dxf", L"*.dwg"});
    add(filters, {L"*.dwg"});
    EXPECT_EQ(filters.Find(L"*.DWG"), 1);
    EXPECT_EQ(filters.Find(L"*.txt"), 0);
    EXPECT_EQ(filters.Find(L"*.dwt"), -1);
    EXPECT_EQ(filters.Find(nullptr), -1);
}

TEST(NavFilterArray, FindsAFilterByAllItsPatternsPutTogether) {
    CNavFilterArray filters;
    EXPECT_EQ(filters.FindExact(L""), -1);
    add(filters, {L"*.dxf", L"*.dwg"});
    add(filters, {L"*.dwg"});
    add(filters, {L"a", L"b", L"c"});
    add(filters, {L"a", L"b", L"c", L"d"});
    EXPECT_EQ(filters.FindExact(L"*.DWG"), 1);
    EXPECT_EQ(filters.FindExact(L"*.dxf"), -1);
    EXPECT_EQ(filters.FindExact(L"*.dxf,*.dwg"), -1);
    EXPECT_EQ(filters.FindExact(L"*.dxf*.dwg,"), 0);
    EXPECT_EQ(filters.FindExact(L"AB,C,"), 2);
    EXPECT_EQ(filters.FindExact(L"ab,c,d,"), 3);
    EXPECT_EQ(filters.FindExact(nullptr), -1);
    EXPECT_EQ(filters.FindExact(L""), -1);
    add(filters, {});
    EXPECT_EQ(filters.FindExact(L""), 4);
}
