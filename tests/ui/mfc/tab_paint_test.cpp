// What a tab window has its look draw, how often and in which order.
#include <afxvisualmanager.h>

#include "tab_fixture.h"

namespace tab_test {

namespace {

/// Notes each tab that is drawn, and whether as the active one.
class NotingTabs : public CMFCVisualManager {
    DECLARE_DYNCREATE(NotingTabs)
public:
    struct Drawn {
        int tab;
        BOOL active;
        CRect rect;
    };
    static inline std::vector<Drawn> drawn;
    static inline std::vector<CRect> areas, frames;

    void OnDrawTab(CDC* dc, CRect rect, int index, BOOL active, const CMFCBaseTabCtrl* tabs) override {
        drawn.push_back({index, active, rect});
        CMFCVisualManager::OnDrawTab(dc, rect, index, active, tabs);
    }
    void OnEraseTabsArea(CDC* dc, CRect rect, const CMFCBaseTabCtrl* tabs) override {
        areas.push_back(rect);
        CMFCVisualManager::OnEraseTabsArea(dc, rect, tabs);
    }
    BOOL OnEraseTabsFrame(CDC* dc, CRect rect, const CMFCBaseTabCtrl* tabs) override {
        frames.push_back(rect);
        return CMFCVisualManager::OnEraseTabsFrame(dc, rect, tabs);
    }
};

IMPLEMENT_DYNCREATE(NotingTabs, CMFCVisualManager)

struct TabPaint : TabWindow {
    TabPaint() { CMFCVisualManager::SetDefaultManager(RUNTIME_CLASS(NotingTabs)); }
    ~TabPaint() override { CMFCVisualManager::SetDefaultManager(nullptr); }
    void paint() {
        NotingTabs::drawn.clear();
        NotingTabs::areas.clear();
        NotingTabs::frames.clear();
        tabs.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_NOCHILDREN);
    }
    /// "2 1 (0)": the tabs in the order in which they are drawn, the active one in brackets.
    static std::string order() {
        std::string all;
        for (const auto& each : NotingTabs::drawn)
            all += (all.empty() ? "" : " ") +
                   (each.active ? "(" + std::to_string(each.tab) + ")" : std::to_string(each.tab));
        return all;
    }
};

}  // namespace

TEST_F(TabPaint, DrawsEachTabOnceAndTheActiveOneLast) {
    make();
    add_many(3);
    tabs.SetActiveTab(1);
    paint();
    EXPECT_EQ(order(), "2 0 (1)");
    EXPECT_EQ(NotingTabs::drawn[0].rect, tab(2));
    EXPECT_EQ(NotingTabs::drawn[1].rect, tab(0));
    tabs.ShowTab(2, FALSE);
    paint();
    EXPECT_EQ(order(), "0 (1)") << "a hidden one isn't drawn";
    tabs.SetActiveTab(0);
    paint();
    EXPECT_EQ(order(), "1 (0)");
}

TEST_F(TabPaint, DrawsNoTabThatIsScrolledAway) {
    make(CMFCTabCtrl::STYLE_3D_SCROLLED);
    add_many(12);
    tabs.SetActiveTab(0);
    tabs.EnsureVisible(0);
    paint();
    const auto shown = NotingTabs::drawn.size();
    EXPECT_LT(shown, 12U);
    EXPECT_EQ(NotingTabs::drawn.back().tab, 0);
    for (const auto& each : NotingTabs::drawn) EXPECT_FALSE(each.rect.IsRectEmpty());
    tabs.EnsureVisible(11);
    paint();
    bool active = false, last = false;
    for (const auto& each : NotingTabs::drawn) {
        active |= each.tab == 0;
        last |= each.tab == 11;
    }
    EXPECT_FALSE(active) << "the active one neither";
    EXPECT_TRUE(last);
}

TEST_F(TabPaint, TheStripAndThePageAreErasedOnce) {
    make(CMFCTabCtrl::STYLE_3D, CMFCTabCtrl::LOCATION_TOP);
    add_many(2);
    paint();
    CRect client, strip;
    tabs.GetClientRect(&client);
    tabs.GetTabsRect(strip);
    ASSERT_EQ(NotingTabs::areas.size(), 1U);
    ASSERT_EQ(NotingTabs::frames.size(), 1U);
    EXPECT_EQ(NotingTabs::areas[0].Height(), strip.Height());
    EXPECT_EQ(NotingTabs::frames[0], CRect(0, strip.Height(), client.right, client.bottom));
}

TEST_F(TabPaint, TheActiveTabJoinsItsPage) {
    make(CMFCTabCtrl::STYLE_3D, CMFCTabCtrl::LOCATION_TOP);
    add_many(2);
    tabs.SetTabBorderSize(2);
    paint();
    CRect above = tab(0);
    above.bottom += 1;
    EXPECT_EQ(NotingTabs::drawn.back().rect, above);
    tabs.SetTabBorderSize(0);
    paint();
    EXPECT_EQ(NotingTabs::drawn.back().rect, tab(0)) << "without a line there is nothing to join";
    tabs.SetTabBorderSize(2);
    tabs.SetLocation(CMFCTabCtrl::LOCATION_BOTTOM);
    tabs.RecalcLayout();
    paint();
    CRect below = tab(0);
    below.top -= 1;
    EXPECT_EQ(NotingTabs::drawn.back().rect, below);
}

TEST_F(TabPaint, TabsThatAreRemovedAreHiddenOrDestroyed) {
    make();
    Page &one = add(L"one"), &two = add(L"two");
    tabs.SetActiveTab(1);
    tabs.RemoveAllTabs();
    EXPECT_EQ(tabs.GetTabsNum(), 0);
    EXPECT_FALSE(one.GetStyle() & WS_VISIBLE);
    EXPECT_FALSE(two.GetStyle() & WS_VISIBLE);
    EXPECT_EQ(tabs.GetActiveTab(), -1);
    tabs.AutoDestroyWindow(TRUE);
    tabs.InsertTab(&one, L"one", -1);
    tabs.RemoveAllTabs();
    EXPECT_EQ(one.m_hWnd, nullptr);
    paint();
    EXPECT_EQ(order(), "");
}

}  // namespace tab_test
