// Nothing of the gallery is cut off or covered, in either language, at 100, 125, 150 and 200 %.
#include "gallery_fixture.h"

using namespace gallery_test;

namespace {

class Layout : public Pages {};

}  // namespace

INSTANTIATE_TEST_SUITE_P(Resolutions, Layout, ::testing::ValuesIn([] {
                             std::vector<Shown> all;
                             for (const int dpi : {kStandard, 120, 144, 192})
                                 for (const auto language : {kEnglish, kChinese})
                                     all.push_back({language, dpi});
                             return all;
                         }()));

TEST_P(Layout, DialogsAreLaidOutForTheResolution) {
    LOGFONT font = {};
    gallery->Page()->GetFont()->GetLogFont(&font);
    EXPECT_EQ(font.lfHeight, -::MulDiv(8, GetParam().dpi, 72));
}

TEST_P(Layout, EachControlIsInsideItsPageAndNoneCoversAnother) {
    for (int i = 0; i < gallery->PageCount(); ++i) {
        gallery->OpenPage(i);
        CRect page;
        gallery->Page()->GetWindowRect(&page);
        std::vector<CRect> places;
        for (CWnd* each : controls()) {
            if (!each->IsWindowVisible()) continue;
            CRect place;
            each->GetWindowRect(&place);
            CRect common;
            EXPECT_EQ(page | place, page) << where(i) << ": " << CStringA(ui_test::text_of(*each));
            for (const CRect& other : places)
                EXPECT_FALSE(common.IntersectRect(place, other))
                    << where(i) << ": " << CStringA(ui_test::text_of(*each));
            places.push_back(place);
        }
    }
}

TEST_P(Layout, NoLabelSwitchOrCommandIsCutOff) {
    constexpr int kMark = 20;  // pixels of a check box before its text
    for (int i = 0; i < gallery->PageCount(); ++i) {
        gallery->OpenPage(i);
        for (CWnd* each : controls()) {
            const CString name = classOf(*each), text = ui_test::text_of(*each);
            const bool isLabel = name.CompareNoCase(L"Static") == 0,
                       isButton = name.CompareNoCase(L"Button") == 0;
            if ((!isLabel && !isButton) || (each->GetStyle() & BS_TYPEMASK) == BS_OWNERDRAW) continue;
            CRect place;
            each->GetClientRect(&place);
            CClientDC dc(each);
            CFont* former = dc.SelectObject(each->GetFont());
            CRect needed(0, 0, place.Width() - (isButton ? kMark : 0), 0);
            dc.DrawText(text, &needed, DT_CALCRECT | (isLabel ? DT_WORDBREAK | DT_NOPREFIX : 0));
            dc.SelectObject(former);
            EXPECT_LE(needed.Width(), place.Width() - (isButton ? kMark : 0))
                << where(i) << ": " << CStringA(text);
            EXPECT_LE(needed.Height(), place.Height()) << where(i) << ": " << CStringA(text);
        }
    }
}
