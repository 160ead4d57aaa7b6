// What a change of the file type brings about.
#include <ktui/nav/type_change.h>

#include <gtest/gtest.h>

TEST(TypeChange, AFolderOfTemplatesEndsInABackslash) {
    EXPECT_EQ(FolderToEnter(L""), std::nullopt);
    EXPECT_EQ(FolderToEnter(L"C:\\templates"), CString(L"C:\\templates\\"));
    EXPECT_EQ(FolderToEnter(L"C:\\templates\\"), CString(L"C:\\templates\\"));
}

TEST(TypeChange, TheFirstPatternNamesTheExtensionUnlessItIsForAllFiles) {
    CNavFilter filter;
    EXPECT_EQ(PatternForSaving(nullptr), std::nullopt);
    EXPECT_EQ(PatternForSaving(&filter), std::nullopt);
    filter.Add(L"*.dwg");
    filter.Add(L"*.*");
    EXPECT_EQ(PatternForSaving(&filter), CString(L"*.dwg"));
    filter.SetAt(0, L"*.*");
    EXPECT_EQ(PatternForSaving(&filter), std::nullopt);
    filter.SetAt(0, L"");
    EXPECT_EQ(PatternForSaving(&filter), std::nullopt);
}

TEST(TypeChange, ATypedNameTakesTheExtensionOfThePattern) {
    EXPECT_EQ(NameForPattern(L"", L"*.dwg"), std::nullopt);
    EXPECT_EQ(NameForPattern(L"plan.dxf", L"*.dwg"), CString(L"plan.dwg"));
    EXPECT_EQ(NameForPattern(L"plan", L"*.dwg"), CString(L"plan.dwg"));
    EXPECT_EQ(NameForPattern(L"C:\\a\\plan.b.dxf", L"*.dwt"), CString(L"plan.b.dwt"));
    EXPECT_EQ(NameForPattern(L"plan.dxf", L"dwg"), CString(L"planwg"))
        << "its first character goes, whatever it is";
    EXPECT_EQ(NameForPattern(L"C:\\a\\", L"*.dwg"), CString(L".dwg"));
}
