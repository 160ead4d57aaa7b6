// What the status line tells of a drawing that isn't shown whole, in both languages.
#include "../../../samples/drafter/scene_notice.h"
#include "drafter_fixture.h"

using namespace ui_test;

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
