// Masks of names.
#include <ktui/nav/find_mask.h>

#include <gtest/gtest.h>

namespace {

bool fits(const wchar_t* mask, const wchar_t* name) { return FindMask(mask).Matches(name); }

}  // namespace

TEST(FindMask, AStarStandsForAnyCharacters) {
    EXPECT_TRUE(fits(L"*.dwg", L"plan.dwg"));
    EXPECT_TRUE(fits(L"*.dwg", L".dwg"));
    EXPECT_TRUE(fits(L"*.dwg", L"a.b.dwg"));
    EXPECT_FALSE(fits(L"*.dwg", L"plan.dwgx"));
    EXPECT_FALSE(fits(L"*.dwg", L"plandwg"));
    EXPECT_FALSE(fits(L"*.dwg", L"dwg"));
    EXPECT_TRUE(fits(L"*abc*.dwg", L"xxabcyy.dwg"));
    EXPECT_TRUE(fits(L"*abc*.dwg", L"abc.dwg"));
    EXPECT_FALSE(fits(L"*abc*.dwg", L"acb.dwg"));
    EXPECT_FALSE(fits(L"*abc*.dwg", L"abc.dxf"));
    EXPECT_TRUE(fits(L"*a*a*", L"banana"));
    EXPECT_FALSE(fits(L"*a*a*a*a", L"banana"));
    EXPECT_TRUE(fits(L"*abc.dwg", L"xabc.dwg"));
}

TEST(FindMask, CaseDoesNotCount) {
    EXPECT_TRUE(fits(L"*.DWG", L"plan.dwg"));
    EXPECT_TRUE(fits(L"*Plan?.dWg", L"MY-pLAN1.DwG"));
}

TEST(FindMask, AnEndingMayHaveAnyLetters) {
    EXPECT_TRUE(fits(L"*\u56fe.dwg", L"\u5e73\u9762\u56fe.DWG"));
    EXPECT_TRUE(fits(L"*\u56fe", L"\u56fe"));
    EXPECT_FALSE(fits(L"*\u56fe.dwg", L"\u5e73\u9762.dwg"));
    EXPECT_FALSE(fits(L"*a.dwg", L"x\u56fe.dwg"));
    EXPECT_FALSE(fits(L"*\u56fe.dwg", L"xa.dwg"));
}

TEST(FindMask, StarPointStarFitsEveryName) {
    EXPECT_TRUE(fits(L"*.*", L"README"));
    EXPECT_TRUE(fits(L"*.*", L"a.b"));
    EXPECT_TRUE(fits(L"*", L"README"));
    EXPECT_TRUE(fits(L"READ*.*", L"README"));
    EXPECT_TRUE(fits(L"READ*.*", L"README.txt"));
}

TEST(FindMask, StarPointFitsNamesWithoutAnExtension) {
    EXPECT_TRUE(fits(L"*.", L"README"));
    EXPECT_FALSE(fits(L"*.", L"README.txt"));
}

TEST(FindMask, AQuestionMarkStandsForOneOrAtAnEndForNone) {
    EXPECT_TRUE(fits(L"a?c", L"abc"));
    EXPECT_FALSE(fits(L"a?c", L"ac"));
    EXPECT_TRUE(fits(L"ab??", L"ab"));
    EXPECT_TRUE(fits(L"ab??", L"abcd"));
    EXPECT_FALSE(fits(L"ab??", L"abcde"));
    EXPECT_TRUE(fits(L"ab?.dwg", L"ab.dwg"));
    EXPECT_TRUE(fits(L"ab?.dwg", L"abc.dwg"));
    EXPECT_FALSE(fits(L"ab?.dwg", L"abcd.dwg"));
    EXPECT_TRUE(fits(L"?.dwg", L".dwg"));
    EXPECT_TRUE(fits(L"??.dwg", L"a.dwg"));
    EXPECT_FALSE(fits(L"a?", L"a."));
    EXPECT_TRUE(fits(L"plan.d??", L"plan.dwg"));
}

TEST(FindMask, APlainNameFitsItselfOnly) {
    EXPECT_TRUE(fits(L"plan.dwg", L"PLAN.dwg"));
    EXPECT_FALSE(fits(L"plan.dwg", L"plan"));
    EXPECT_FALSE(fits(L"plan.dwg", L"xplan.dwg"));
    EXPECT_FALSE(fits(L"", L"plan"));
}

TEST(FindMask, OtherScriptsAreTakenAsTheyAre) {
    EXPECT_TRUE(fits(L"*图*.dwg", L"施工图纸.dwg"));
    EXPECT_FALSE(fits(L"*图*.dwg", L"施工.dwg"));
}

TEST(FindMask, ManyStarsInARowTakeNoRoomOfTheStack) {
    const CString stars(L'*', 400000);
    EXPECT_TRUE(fits(stars + L"n.dwg", L"plan.dwg"));
    EXPECT_FALSE(fits(stars + L"x.dwg", L"plan.dwg"));
    // A place that is reached from several stars is reached by each of them.
    EXPECT_TRUE(fits(L"**a**b**", L"xxaxxb"));
    EXPECT_FALSE(fits(L"**a**b**", L"xxbxxa"));
}
