// The strip of a palette set as a tab stop.
#include "pane_keys_fixture.h"
#include "picture.h"

using namespace docking_test;
using ui_test::Picture;

namespace {

struct StripKeys : PaneKeys {
    CEdit first, last;  ///< the controls of the palette "Three", which shows

    StripKeys() {
        EXPECT_TRUE(KtUiEnablePaneKeys(*frame, TRUE));
        EXPECT_TRUE(
            first.Create(WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(0, 0, 60, 20), set.GetPalette(0), 7));
        EXPECT_TRUE(
            last.Create(WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(0, 30, 60, 50), set.GetPalette(0), 8));
        ui_test::pump();
    }
    CXToolTabCtrl& strip() { return set.GetStrip(); }
    bool onStrip() { return ::GetFocus() == strip().m_hWnd; }
    void toStrip() {
        last.SetFocus();
        EXPECT_FALSE(key(VK_TAB));
        EXPECT_TRUE(onStrip());
    }
    Picture stripPicture() {
        strip().UpdateWindow();
        return Picture(strip());
    }
};

}  // namespace

TEST_F(StripKeys, TabGoesFromTheLastControlToTheStripAndOnToTheFirst) {
    first.SetFocus();
    EXPECT_TRUE(key(VK_TAB)) << "within the palette it is the program's";
    EXPECT_EQ(::GetFocus(), first.m_hWnd);
    last.SetFocus();
    EXPECT_FALSE(key(VK_TAB));
    EXPECT_TRUE(onStrip());
    EXPECT_EQ(said(), L"Three");
    EXPECT_FALSE(key(VK_TAB));
    EXPECT_EQ(::GetFocus(), first.m_hWnd);
}

TEST_F(StripKeys, ShiftTabGoesTheOtherWay) {
    last.SetFocus();
    EXPECT_TRUE(key(VK_TAB, {VK_SHIFT}));
    first.SetFocus();
    EXPECT_FALSE(key(VK_TAB, {VK_SHIFT}));
    EXPECT_TRUE(onStrip());
    EXPECT_FALSE(key(VK_TAB, {VK_SHIFT}));
    EXPECT_EQ(::GetFocus(), last.m_hWnd);
}

TEST_F(StripKeys, APaletteWithoutControlsHasTheFocusItself) {
    set.SetActivePalette(1);
    CWnd* palette = set.GetPalette(1);
    set.SetFocus();
    EXPECT_FALSE(key(VK_TAB));
    EXPECT_TRUE(onStrip());
    EXPECT_FALSE(key(VK_TAB));
    EXPECT_EQ(::GetFocus(), palette->m_hWnd);
    EXPECT_FALSE(key(VK_TAB));
    EXPECT_TRUE(onStrip());
}

TEST_F(StripKeys, AControlThatWantsTabKeepsIt) {
    CEdit lines;
    ASSERT_TRUE(lines.Create(WS_CHILD | WS_VISIBLE | WS_TABSTOP | ES_MULTILINE, CRect(0, 70, 60, 100),
                             set.GetPalette(0), 8));
    lines.SetFocus();
    EXPECT_TRUE(key(VK_TAB));
    EXPECT_EQ(::GetFocus(), lines.m_hWnd);
}

TEST_F(StripKeys, CtrlTabAndOtherPanesAreLeftAlone) {
    last.SetFocus();
    EXPECT_TRUE(key(VK_TAB, {VK_CONTROL}));
    EXPECT_TRUE(key('A'));
    bars[0]->SetFocus();
    EXPECT_TRUE(key(VK_TAB));
    frame->SetFocus();
    EXPECT_TRUE(key(VK_TAB));
    last.SetFocus();
    KtUiEnablePaneKeys(*frame, FALSE);
    EXPECT_TRUE(key(VK_TAB));
    EXPECT_EQ(::GetFocus(), last.m_hWnd);
}

TEST_F(StripKeys, AHiddenStripIsNoStop) {
    strip().ShowWindow(SW_HIDE);
    last.SetFocus();
    EXPECT_TRUE(key(VK_TAB));
    EXPECT_EQ(::GetFocus(), last.m_hWnd);
}

TEST_F(StripKeys, ArrowsShowTheNextPaletteAndStopAtTheEnds) {
    ASSERT_TRUE(strip().IsTurned());
    toStrip();
    ASSERT_EQ(set.GetActivePaletteTabIndex(), 0);
    const auto goes = [&](WPARAM arrow, int index) {
        EXPECT_FALSE(key(arrow));
        EXPECT_EQ(set.GetActivePaletteTabIndex(), index);
        EXPECT_TRUE(onStrip());
        EXPECT_EQ(said(), std::wstring(set.GetPalette(index)->GetName()));
        EXPECT_TRUE(set.GetPalette(index)->IsWindowVisible());
    };
    goes(VK_UP, 1);
    goes(VK_UP, 2);
    goes(VK_UP, 2);
    goes(VK_DOWN, 1);
    goes(VK_RIGHT, 2);
    goes(VK_LEFT, 1);
    goes(VK_DOWN, 0);
    goes(VK_DOWN, 0);
}

TEST_F(StripKeys, EnterGoesIntoThePalette) {
    toStrip();
    key(VK_UP);
    key(VK_DOWN);
    EXPECT_FALSE(key(VK_RETURN));
    EXPECT_EQ(::GetFocus(), first.m_hWnd);
}

TEST_F(StripKeys, F2RenamesThePaletteThatShows) {
    toStrip();
    key(VK_UP);
    EXPECT_FALSE(key(VK_F2));
    ASSERT_NE(openNameEdit(), nullptr);
    EXPECT_EQ(ui_test::text_of(openNameEdit()), L"Two");
    endNameEdit(L"Renamed");
    EXPECT_EQ(set.GetPalette(1)->GetName(), L"Renamed");
}

TEST_F(StripKeys, AnyOtherKeyOnTheStripIsLeftAlone) {
    toStrip();
    EXPECT_TRUE(key('A'));
    EXPECT_TRUE(key(VK_ESCAPE));
    EXPECT_TRUE(onStrip());
}

TEST_F(StripKeys, AMarkTellsThatTheStripHasTheFocus) {
    const Picture before = stripPicture();
    toStrip();
    const Picture marked = stripPicture();
    CRect client;
    strip().GetClientRect(&client);
    const CRect tab = strip().GetTab(0)->m_rect;
    CRect wanted(tab.top, client.Height() - tab.right, tab.bottom, client.Height() - tab.left);
    wanted.DeflateRect(2, 2);
    EXPECT_EQ(textOf(before.difference(marked)), textOf(wanted));
    wanted.DeflateRect(1, 1);
    int inside = 0;
    for (int y = wanted.top; y < wanted.bottom; ++y)
        for (int x = wanted.left; x < wanted.right; ++x) inside += before.at(x, y) != marked.at(x, y);
    EXPECT_EQ(inside, 0) << "only its outline";
    const CRect part(0, 0, client.Width(), wanted.CenterPoint().y);
    strip().InvalidateRect(&part, FALSE);
    EXPECT_TRUE(stripPicture() == marked) << "after a part was painted anew";
    first.SetFocus();
    EXPECT_TRUE(stripPicture() == before) << "it goes with the focus";
}

TEST_F(StripKeys, TheMarkFollowsTheTab) {
    toStrip();
    const Picture lower = stripPicture();
    key(VK_UP);
    const Picture upper = stripPicture();
    CRect client;
    strip().GetClientRect(&client);
    const CRect tab = strip().GetTab(1)->m_rect;
    const CRect wanted(tab.top, client.Height() - tab.right, tab.bottom, client.Height() - tab.left);
    int different = 0;
    for (int x = wanted.left + 2; x < wanted.right - 2; ++x)
        different += lower.at(x, wanted.top + 2) != upper.at(x, wanted.top + 2);
    EXPECT_GT(different, wanted.Width() / 3);
}
