// What the status line tells of a drawing that isn't shown whole, in both languages.
#include "../../../samples/drafter/scene_notice.h"
#include "drafter_fixture.h"

using namespace ui_test;

namespace {

/// What a scene is told with in English and in Chinese.
std::vector<CString> noticesOf(const Scene& scene) {
    std::vector<CString> notices;
    const LANGID before = ::GetThreadUILanguage();
    for (const LCID language :
         {MAKELCID(MAKELANGID(LANG_ENGLISH, SUBLANG_ENGLISH_US), SORT_DEFAULT),
          MAKELCID(MAKELANGID(LANG_CHINESE, SUBLANG_CHINESE_SIMPLIFIED), SORT_DEFAULT)}) {
        ::SetThreadLocale(language);
        notices.push_back(UndrawnText(scene));
    }
    ::SetThreadLocale(MAKELCID(before, SORT_DEFAULT));
    return notices;
}

}  // namespace

TEST_F(DrafterTest, ADrawingThatIsShownWholeIsNotTalkedAbout) { EXPECT_TRUE(UndrawnText({}).IsEmpty()); }

TEST_F(DrafterTest, WhatIsNotDrawnIsCountedByKind) {
    Scene scene;
    scene.notDrawn = {{"3DSOLID", 2}, {"OLE2FRAME", 1}};
    const LANGID before = ::GetThreadUILanguage();
    for (const LCID language :
         {MAKELCID(MAKELANGID(LANG_ENGLISH, SUBLANG_ENGLISH_US), SORT_DEFAULT),
          MAKELCID(MAKELANGID(LANG_CHINESE, SUBLANG_CHINESE_SIMPLIFIED), SORT_DEFAULT)}) {
        ::SetThreadLocale(language);
        const CString text = UndrawnText(scene);
        EXPECT_GE(text.Find(L"3DSOLID 2, OLE2FRAME 1"), 0) << odUtf8(text.GetString());
        EXPECT_GE(text.Find(L"3 "), 0) << "their count";
        EXPECT_EQ(text.Find(L'%'), -1);
        Scene cut;
        cut.isCut = true;
        const CString end = UndrawnText(cut);
        EXPECT_FALSE(end.IsEmpty());
        cut.notDrawn = scene.notDrawn;
        EXPECT_STREQ(UndrawnText(cut), end + L" " + text);
    }
    ::SetThreadLocale(MAKELCID(before, SORT_DEFAULT));
}

TEST_F(DrafterTest, FontsThatAreNotFoundAreNamed) {
    Scene scene;
    scene.missingFonts = {L"C:\\fonts\\txt.shx", L"gothic.shx"};
    EXPECT_STREQ(noticesOf(scene)[0], L"Fonts not found: txt.shx, gothic.shx");
    EXPECT_STREQ(noticesOf(scene)[1], L"找不到字体：txt.shx, gothic.shx");
    scene.missingFonts = {L"a.shx", L"b.shx", L"c.shx", L"d.shx", L"e.shx"};
    EXPECT_STREQ(noticesOf(scene)[0], L"Fonts not found: a.shx, b.shx, c.shx and 2 more");
    EXPECT_STREQ(noticesOf(scene)[1], L"找不到字体：a.shx, b.shx, c.shx 等，另有 2 个");
    scene.missingFonts = {std::wstring(500, L'x') + L"%s.shx"};
    EXPECT_STREQ(noticesOf(scene)[0], L"Fonts not found: " + CString(L'x', 23) + L"\u2026");
    scene.missingFonts = {L"%d%s.shx"};
    EXPECT_STREQ(noticesOf(scene)[0], L"Fonts not found: %d%s.shx") << "a name is no pattern";
}

TEST_F(DrafterTest, FontsAreToldBehindWhatIsNotShown) {
    Scene scene;
    scene.notDrawn = {{"3DSOLID", 2}};
    const CString undrawn = noticesOf(scene)[0];
    scene.missingFonts = {L"a.shx"};
    EXPECT_STREQ(noticesOf(scene)[0], undrawn + L" Fonts not found: a.shx");
}
