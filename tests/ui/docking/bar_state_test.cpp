// What the framework keeps of a bar, and the frame that would lie off the screen.
#include "bar_fixture.h"

namespace {

using namespace docking_test;

constexpr const wchar_t* kProfile = L"SOFTWARE\\ktui docking test\\";

struct BarState : DockingTest {
    OpenBar bar;

    ~BarState() override { ::RegDeleteTreeW(HKEY_CURRENT_USER, L"SOFTWARE\\ktui docking test"); }
    static int stored(const std::wstring& key) {
        DWORD value = 99, size = sizeof value;
        ::RegGetValueW(HKEY_CURRENT_USER, (kProfile + key).c_str(), L"IsVisible", RRF_RT_REG_DWORD, nullptr,
                       &value, &size);
        return static_cast<int>(value);
    }
};

TEST_F(BarState, KeepsTheVisibleFlagUnderTheIdsKey) {
    dock(bar, CBRS_ALIGN_LEFT, 4001);
    bar.setVisible(true);
    EXPECT_EQ(bar.SaveState(kProfile), 1);
    EXPECT_EQ(stored(L"BasePane-4001"), 1);
    bar.setVisible(false);
    EXPECT_EQ(bar.SaveState(kProfile), 1);
    EXPECT_EQ(stored(L"BasePane-4001"), 0);
}

TEST_F(BarState, AnIndexAndAnIdMakeOtherKeys) {
    dock(bar, CBRS_ALIGN_LEFT, 4001);
    bar.setVisible(true);
    EXPECT_EQ(bar.SaveState(kProfile, 7), 1);
    EXPECT_EQ(stored(L"BasePane-7"), 1);
    EXPECT_EQ(bar.SaveState(kProfile, 7, 0xAB), 1);
    EXPECT_EQ(stored(L"BasePane-7ab"), 1);
    EXPECT_EQ(bar.SaveState(kProfile, -1, 0xAB), 1);
    EXPECT_EQ(stored(L"BasePane-4001ab"), 1);
}

TEST_F(BarState, WithoutAProfileTheKeyIsThatOfTheApplication) {
    dock(bar, CBRS_ALIGN_LEFT, 4001);
    bar.setVisible(true);
    const NotedSettings::InForce settings;
    const CWinApp& application = *AfxGetApp();
    std::wstring path = L"SOFTWARE\\";
    for (const wchar_t* part : {application.m_pszRegistryKey, application.m_pszProfileName})
        if (part != nullptr) path += std::wstring(part) + L"\\";
    EXPECT_EQ(bar.SaveState(), 1);
    ASSERT_FALSE(NotedSettings::requests().empty());
    EXPECT_EQ(NotedSettings::requests().back(), L"create " + path + L"BasePanes\\BasePane-4001");
    EXPECT_EQ(NotedSettings::values()[L"IsVisible"], L"1");
}

TEST_F(BarState, AKeyThatCantBeMadeIsIgnored) {
    dock(bar, CBRS_ALIGN_LEFT, 4001);
    bar.setVisible(true);
    const NotedSettings::InForce settings;
    NotedSettings::refusesKeys() = true;
    EXPECT_EQ(bar.SaveState(), 1);
    EXPECT_TRUE(NotedSettings::values().empty());
}

TEST_F(BarState, AClearVisibleFlagComesBackClear) {
    dock(bar, CBRS_ALIGN_LEFT, 4001);
    bar.setVisible(false);
    ASSERT_EQ(bar.SaveState(kProfile), 1);
    bar.setVisible(true);
    ASSERT_EQ(bar.LoadState(kProfile), 1);
    EXPECT_FALSE(bar.isVisible());
}

TEST_F(BarState, WithoutAStateNothingIsRead) {
    dock(bar, CBRS_ALIGN_LEFT, 4001);
    bar.setVisible(true);
    bar.m_floatingRect = CRect(1, 2, 3, 4);
    EXPECT_EQ(bar.LoadState(kProfile), 0);
    EXPECT_TRUE(bar.isVisible());
    EXPECT_TRUE(bar.m_floatingRect == CRect(1, 2, 3, 4));
}

TEST_F(BarState, ReadsTheRecentPlacesAndWhetherItWasVisible) {
    dock(bar, CBRS_ALIGN_LEFT, 4001);
    bar.m_recentDockInfo.m_rectRecentFloatingRect = CRect(300, 310, 500, 520);
    bar.setVisible(true);
    ASSERT_EQ(bar.SaveState(kProfile), 1);
    bar.setVisible(false);
    ASSERT_EQ(bar.LoadState(kProfile), 1);
    EXPECT_EQ(bar.isVisible(), bar.GetRecentVisibleState() != FALSE);
    EXPECT_TRUE(bar.isVisible());
    EXPECT_TRUE(bar.m_floatingRect == bar.m_recentDockInfo.m_rectRecentFloatingRect);
    EXPECT_TRUE(bar.m_dockingRect == bar.m_recentDockInfo.GetRecentDockedRect(FALSE));
}

/// A floating bar whose frame was kept at `rect`.
struct LostFrame : BarState {
    CRect loaded(const CRect& rect, int percent = 50) {
        EXPECT_EQ(bar.SaveState(kProfile), 1);
        // As if another run had left it there.
        CSettingsStoreSP store;
        CSettingsStore& settings = store.Create(FALSE, FALSE);
        EXPECT_TRUE(settings.Open(CString(kProfile) + L"Pane-4001"));
        settings.Write(L"RectRecentFloat", rect);
        settings.Write(L"RectRecentMiniFrame", CRect(7, 8, 9, 10));
        settings.Write(L"RecentMiniFramePercent", percent);
        EXPECT_EQ(bar.LoadState(kProfile), 1);
        CRect place;
        bar.GetParentMiniFrame()->GetWindowRect(&place);
        return place;
    }
    void SetUp() override {
        dock(bar, CBRS_ALIGN_LEFT, 4001);
        floatBar(bar, CRect(300, 300, 500, 500));
    }
};

TEST_F(LostFrame, ComesBackNearTheScreensOriginAtItsSize) {
    CRect main;
    frame->GetWindowRect(&main);
    const CRect place = loaded(CRect(5000, 5000, 5210, 5111));
    EXPECT_TRUE(place.TopLeft() == CPoint((main.Width() - 210) / 2, (main.Height() - 111) / 2));
    EXPECT_TRUE(place.Size() == CSize(210, 111));
    EXPECT_TRUE(bar.m_recentDockInfo.m_rectRecentFloatingRect == place);
    EXPECT_TRUE(bar.m_recentDockInfo.GetRecentDockedRect(FALSE) == place);
    EXPECT_TRUE(bar.m_floatingRect == place);
    EXPECT_TRUE(bar.m_dockingRect == place);
}

TEST_F(LostFrame, StaysWhereTheMainWindowMeetsIt) {
    expectRect(loaded(CRect(700, 500, 910, 611)), 700, 500, 910, 611);
    expectRect(bar.m_recentDockInfo.m_rectRecentFloatingRect, 700, 500, 910, 611);
    expectRect(bar.m_recentDockInfo.GetRecentDockedRect(FALSE), 700, 500, 910, 611);
    expectRect(bar.m_floatingRect, 700, 500, 910, 611);
    expectRect(bar.m_dockingRect, 700, 500, 910, 611);
}

TEST_F(LostFrame, LargerThanTheMainWindowItLiesHalfTheDifferenceBeforeTheOrigin) {
    // The main window is 800 by 600: half of -11 each way, towards zero.
    expectRect(loaded(CRect(5000, 5000, 5811, 5611)), -5, -5, 806, 606);
}

TEST_F(LostFrame, WithoutAHostOrAMainWindowItStaysWhereItIs) {
    host.hasUiHost = false;
    expectRect(loaded(CRect(5000, 5000, 5210, 5111)), 5000, 5000, 5210, 5111);
    host.hasUiHost = true;
    AfxGetApp()->m_pMainWnd = nullptr;
    expectRect(loaded(CRect(5100, 5000, 5310, 5111)), 5100, 5000, 5310, 5111);
    AfxGetApp()->m_pMainWnd = frame;
    EXPECT_NE(loaded(CRect(5100, 5000, 5310, 5111)).left, 5100);
}

TEST_F(LostFrame, StaysWhereItIsWhenTheMainWindowIsOffTheScreen) {
    frame->SetWindowPos(nullptr, -9000, -9000, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    expectRect(loaded(CRect(5000, 5000, 5210, 5111)), 5000, 5000, 5210, 5111);
}

TEST_F(LostFrame, WithoutARecordTheFrameIsLeftAlone) {
    CRect before;
    bar.GetParentMiniFrame()->GetWindowRect(&before);
    EXPECT_TRUE(loaded(CRect(5000, 5000, 5210, 5111), 0) == before);
    EXPECT_TRUE(bar.m_floatingRect == CRect(5000, 5000, 5210, 5111));
    EXPECT_TRUE(bar.m_dockingRect == CRect(7, 8, 9, 10));
}

}  // namespace
