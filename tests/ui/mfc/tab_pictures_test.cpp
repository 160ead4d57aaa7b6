// What single tabs look like, pixel by pixel: outlines, the line of the active one, icons, the sign that
// closes.
#include <afxmenuimages.h>
#include <afxvisualmanager.h>

#include "letters.h"
#include "tab_fixture.h"

namespace tab_test {

namespace {

constexpr COLORREF kGround = RGB(255, 0, 255);
constexpr COLORREF kFace = RGB(200, 200, 200), kText = RGB(0, 0, 0), kWindow = RGB(255, 255, 255),
                   kHighlight = RGB(0, 0, 100), kHighlightText = RGB(255, 255, 0);
// Three tenths of the text in the bar's colour; a quarter and half of the highlight; a fifth less of the
// text.
constexpr COLORREF kBorder = RGB(140, 140, 140), kHot = RGB(150, 150, 175), kPressed = RGB(100, 100, 150),
                   kTabText = RGB(40, 40, 40);

/// Tabs whose close sign is where the test says.
class ToldTabs : public Tabs {
public:
    using CMFCBaseTabCtrl::m_bTabCloseButtonHighlighted, CMFCBaseTabCtrl::m_bTabCloseButtonPressed,
        CMFCBaseTabCtrl::m_rectCloseButton;
};

struct TabPictures : ::testing::Test {
    TabPictures() {
        afxGlobalData.m_nDpi = 96;
        CMFCVisualManager::SetDefaultManager(nullptr);
        afxGlobalData.clrBarFace = kFace;
        afxGlobalData.clrBarText = afxGlobalData.clrWindowText = kText;
        afxGlobalData.clrBarWindow = afxGlobalData.clrWindow = kWindow;
        afxGlobalData.clrHilite = kHighlight;
        afxGlobalData.clrTextHilite = kHighlightText;
        owner.tabs = &tabs;
    }
    ~TabPictures() override {
        if (tabs.m_hWnd != nullptr) tabs.DestroyWindow();
        afxGlobalData.m_nDpi = former;
        afxGlobalData.UpdateSysColors();
    }
    void make(CMFCTabCtrl::Style style, CMFCTabCtrl::Location location) {
        ASSERT_TRUE(tabs.Create(style, CRect(0, 0, 400, 200), &owner, 1, location, FALSE));
        for (UINT i = 0; i < 2; ++i) {
            pages.push_back(std::make_unique<Page>(&tabs, 1000 + i));
            tabs.InsertTab(pages.back().get(), L"", -1);
        }
    }
    /// A tab of 14 by 8 pixels, with one pixel around it.
    std::string drawn(int tab, BOOL active) { return drawn(CRect(1, 1, 15, 9), tab, active); }
    std::string drawn(CRect rect, int tab, BOOL active) {
        ui_test::Canvas canvas(rect.right + 1, rect.bottom + 1, kGround);
        CMFCVisualManager::GetInstance()->OnDrawTab(&canvas.dc, rect, tab, active, &tabs);
        return ui_test::letters(canvas, CRect(0, 0, rect.right + 1, rect.bottom + 1), names);
    }

    const std::map<COLORREF, char> names{{kGround, ' '},        {kFace, '.'},         {kWindow, 'o'},
                                         {kHighlight, 'H'},     {kBorder, '#'},       {kHot, 'h'},
                                         {kPressed, 'P'},       {kText, 'T'},         {kTabText, 't'},
                                         {RGB(255, 0, 0), 'r'}, {RGB(0, 128, 0), 'g'}};
    const int former = afxGlobalData.m_nDpi;
    Owner owner;
    std::vector<std::unique_ptr<Page>> pages;
    ToldTabs tabs;
};

}  // namespace

TEST_F(TabPictures, StandUpright) {
    make(CMFCTabCtrl::STYLE_3D, CMFCTabCtrl::LOCATION_TOP);
    EXPECT_EQ(drawn(0, TRUE),
              "                \n"
              " HHHHHHHHHHHHHH \n"
              " HHHHHHHHHHHHHH \n"
              " #oooooooooooo# \n"
              " #oooooooooooo# \n"
              " #oooooooooooo# \n"
              " #oooooooooooo# \n"
              " #oooooooooooo# \n"
              " #oooooooooooo# \n"
              "                \n");
    EXPECT_EQ(drawn(1, FALSE),
              "                \n"
              " .............. \n"
              " .............. \n"
              " .............. \n"
              " .............. \n"
              " .............. \n"
              " .............. \n"
              " .............. \n"
              " .............. \n"
              "                \n");
    tabs.SetLocation(CMFCTabCtrl::LOCATION_BOTTOM);
    EXPECT_EQ(drawn(0, TRUE),
              "                \n"
              " #oooooooooooo# \n"
              " #oooooooooooo# \n"
              " #oooooooooooo# \n"
              " #oooooooooooo# \n"
              " #oooooooooooo# \n"
              " #oooooooooooo# \n"
              " HHHHHHHHHHHHHH \n"
              " HHHHHHHHHHHHHH \n"
              "                \n");
}

TEST_F(TabPictures, AreSlantedInTheOneNoteStyle) {
    make(CMFCTabCtrl::STYLE_3D_ONENOTE, CMFCTabCtrl::LOCATION_TOP);
    EXPECT_EQ(drawn(0, TRUE),
              "                \n"
              "     HHHHHHHHHH \n"
              "    #HHHHHHHHHH \n"
              "    #ooooooooo# \n"
              "   #oooooooooo# \n"
              "   #oooooooooo# \n"
              "  #ooooooooooo# \n"
              "  #ooooooooooo# \n"
              " #oooooooooooo# \n"
              "                \n");
    EXPECT_EQ(drawn(1, FALSE),
              "                \n"
              "     .......... \n"
              "     .......... \n"
              "    ........... \n"
              "    ........... \n"
              "   ............ \n"
              "   ............ \n"
              "  ............. \n"
              "  ............. \n"
              "                \n");
    tabs.SetLocation(CMFCTabCtrl::LOCATION_BOTTOM);
    EXPECT_EQ(drawn(0, TRUE),
              "                \n"
              " #oooooooooooo# \n"
              "  #ooooooooooo# \n"
              "  #ooooooooooo# \n"
              "   #oooooooooo# \n"
              "   #oooooooooo# \n"
              "    #ooooooooo# \n"
              "    #HHHHHHHHHH \n"
              "     HHHHHHHHHH \n"
              "                \n");
}

TEST_F(TabPictures, HaveNoOutlineWhereTheyAreFlat) {
    make(CMFCTabCtrl::STYLE_FLAT, CMFCTabCtrl::LOCATION_BOTTOM);
    EXPECT_EQ(drawn(0, TRUE),
              "                \n"
              " oooooooooooooo \n"
              " oooooooooooooo \n"
              " oooooooooooooo \n"
              " oooooooooooooo \n"
              " oooooooooooooo \n"
              " oooooooooooooo \n"
              " HHHHHHHHHHHHHH \n"
              " HHHHHHHHHHHHHH \n"
              "                \n");
    EXPECT_EQ(drawn(1, FALSE),
              "                \n"
              " .............. \n"
              " .............. \n"
              " .............. \n"
              " .............. \n"
              " .............. \n"
              " .............. \n"
              " .............. \n"
              " .............. \n"
              "                \n");
}

TEST_F(TabPictures, TheLineOfTheActiveOneGrowsWithTheResolution) {
    make(CMFCTabCtrl::STYLE_3D, CMFCTabCtrl::LOCATION_TOP);
    afxGlobalData.m_nDpi = 192;
    EXPECT_EQ(drawn(0, TRUE),
              "                \n"
              " HHHHHHHHHHHHHH \n"
              " HHHHHHHHHHHHHH \n"
              " HHHHHHHHHHHHHH \n"
              " HHHHHHHHHHHHHH \n"
              " #oooooooooooo# \n"
              " #oooooooooooo# \n"
              " #oooooooooooo# \n"
              " #oooooooooooo# \n"
              "                \n");
}

TEST_F(TabPictures, ShowWhichHasTheFocus) {
    make(CMFCTabCtrl::STYLE_3D, CMFCTabCtrl::LOCATION_TOP);
    tabs.SetFocus();
    EXPECT_EQ(drawn(CRect(1, 1, 31, 13), 0, TRUE),
              "                                \n"
              " HHHHHHHHHHHHHHHHHHHHHHHHHHHHHH \n"
              " HHHHHHHHHHHHHHHHHHHHHHHHHHHHHH \n"
              " #oooooooooooooooooooooooooooo# \n"
              " #oooooToToToToToToToToToToooo# \n"
              " #ooooTooooooooooooooooooooooo# \n"
              " #oooooooooooooooooooooooToooo# \n"
              " #ooooTooooooooooooooooooooooo# \n"
              " #oooooooooooooooooooooooToooo# \n"
              " #ooooToToToToToToToToToTooooo# \n"
              " #oooooooooooooooooooooooooooo# \n"
              " #oooooooooooooooooooooooooooo# \n"
              " #oooooooooooooooooooooooooooo# \n"
              "                                \n");
    EXPECT_EQ(drawn(CRect(1, 1, 31, 13), 1, FALSE),
              "                                \n"
              " .............................. \n"
              " .............................. \n"
              " .............................. \n"
              " .............................. \n"
              " .............................. \n"
              " .............................. \n"
              " .............................. \n"
              " .............................. \n"
              " .............................. \n"
              " .............................. \n"
              " .............................. \n"
              " .............................. \n"
              "                                \n");
}

TEST_F(TabPictures, ShowTheSignThatClosesOnTheActiveOne) {
    make(CMFCTabCtrl::STYLE_3D, CMFCTabCtrl::LOCATION_TOP);
    tabs.m_rectCloseButton = CRect(14, 2, 25, 13);
    const std::string resting =
        "                                \n"
        " HHHHHHHHHHHHHHHHHHHHHHHHHHHHHH \n"
        " HHHHHHHHHHHHHHHHHHHHHHHHHHHHHH \n"
        " #oooooooooooooooooooooooooooo# \n"
        " #oooooooooooooo??ooo??ooooooo# \n"
        " #oooooooooooooo?t?o?t?ooooooo# \n"
        " #ooooooooooooooo?t?t?oooooooo# \n"
        " #oooooooooooooooo?t?ooooooooo# \n"
        " #ooooooooooooooo?t?t?oooooooo# \n"
        " #oooooooooooooo?t?o?t?ooooooo# \n"
        " #oooooooooooooo??ooo??ooooooo# \n"
        " #oooooooooooooooooooooooooooo# \n"
        " #oooooooooooooooooooooooooooo# \n"
        " #oooooooooooooooooooooooooooo# \n"
        "                                \n";
    EXPECT_EQ(drawn(CRect(1, 1, 31, 14), 0, TRUE), resting);
    tabs.m_bTabCloseButtonHighlighted = TRUE;
    EXPECT_EQ(drawn(CRect(1, 1, 31, 14), 0, TRUE),
              "                                \n"
              " HHHHHHHHHHHHHHHHHHHHHHHHHHHHHH \n"
              " HHHHHHHHHHHHHhhhhhhhhhhhHHHHHH \n"
              " #oooooooooooohhhhhhhhhhhooooo# \n"
              " #oooooooooooohh??hhh??hhooooo# \n"
              " #oooooooooooohh?T?h?T?hhooooo# \n"
              " #oooooooooooohhh?T?T?hhhooooo# \n"
              " #oooooooooooohhhh?T?hhhhooooo# \n"
              " #oooooooooooohhh?T?T?hhhooooo# \n"
              " #oooooooooooohh?T?h?T?hhooooo# \n"
              " #oooooooooooohh??hhh??hhooooo# \n"
              " #oooooooooooohhhhhhhhhhhooooo# \n"
              " #oooooooooooohhhhhhhhhhhooooo# \n"
              " #oooooooooooooooooooooooooooo# \n"
              "                                \n");
    tabs.m_bTabCloseButtonPressed = TRUE;
    EXPECT_EQ(drawn(CRect(1, 1, 31, 14), 0, TRUE),
              "                                \n"
              " HHHHHHHHHHHHHHHHHHHHHHHHHHHHHH \n"
              " HHHHHHHHHHHHHPPPPPPPPPPPHHHHHH \n"
              " #ooooooooooooPPPPPPPPPPPooooo# \n"
              " #ooooooooooooPP??PPP??PPooooo# \n"
              " #ooooooooooooPP?o?P?o?PPooooo# \n"
              " #ooooooooooooPPP?o?o?PPPooooo# \n"
              " #ooooooooooooPPPP?o?PPPPooooo# \n"
              " #ooooooooooooPPP?o?o?PPPooooo# \n"
              " #ooooooooooooPP?o?P?o?PPooooo# \n"
              " #ooooooooooooPP??PPP??PPooooo# \n"
              " #ooooooooooooPPPPPPPPPPPooooo# \n"
              " #ooooooooooooPPPPPPPPPPPooooo# \n"
              " #oooooooooooooooooooooooooooo# \n"
              "                                \n");
    tabs.m_bTabCloseButtonHighlighted = FALSE;
    EXPECT_EQ(drawn(CRect(1, 1, 31, 14), 0, TRUE), resting);
}

TEST_F(TabPictures, ShowTheirIconsInTheMiddleOfTheirHeight) {
    make(CMFCTabCtrl::STYLE_3D, CMFCTabCtrl::LOCATION_TOP);
    CImageList list;
    ASSERT_TRUE(list.Create(6, 4, ILC_COLOR24, 2, 0));
    ui_test::Canvas art(12, 4, RGB(255, 0, 0));
    CBitmap both;
    ASSERT_TRUE(both.CreateCompatibleBitmap(&art.dc, 12, 4));
    CDC into;
    into.CreateCompatibleDC(&art.dc);
    CBitmap* const none = into.SelectObject(&both);
    into.FillSolidRect(0, 0, 6, 4, RGB(255, 0, 0));
    into.FillSolidRect(6, 0, 6, 4, RGB(0, 128, 0));
    into.SelectObject(none);
    ASSERT_EQ(list.Add(&both, static_cast<CBitmap*>(nullptr)), 0);
    ASSERT_TRUE(tabs.SetImageList(list.GetSafeHandle()));
    ASSERT_TRUE(tabs.SetTabIcon(0, 1));
    EXPECT_EQ(drawn(CRect(1, 1, 31, 12), 0, FALSE),
              "                                \n"
              " .............................. \n"
              " .............................. \n"
              " .............................. \n"
              " ........gggggg................ \n"
              " ........gggggg................ \n"
              " ........gggggg................ \n"
              " ........gggggg................ \n"
              " .............................. \n"
              " .............................. \n"
              " .............................. \n"
              " .............................. \n"
              "                                \n");
    EXPECT_EQ(drawn(CRect(1, 1, 13, 12), 0, FALSE),
              "              \n"
              " ............ \n"
              " ............ \n"
              " ............ \n"
              " ........gggg \n"
              " ........gggg \n"
              " ........gggg \n"
              " ........gggg \n"
              " ............ \n"
              " ............ \n"
              " ............ \n"
              " ............ \n"
              "              \n")
        << "cut off at the end of its tab";
}

}  // namespace tab_test
