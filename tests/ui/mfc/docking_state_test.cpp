// Layouts in the registry: what comes back, and what is refused.
#include <afxsettingsstore.h>
#include <afxtabbedpane.h>

#include "docking_fixture.h"

using namespace docking;

namespace {
constexpr const wchar_t* kProfile = L"Software\\ktui docking test\\";
constexpr const wchar_t* kLayoutKey = L"Software\\ktui docking test\\DockingManager-0";
constexpr const wchar_t* kValue = L"DockingPaneAndPaneDividers";
}  // namespace

class DockingState : public Docking {
protected:
    ~DockingState() override { ::RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\ktui docking test"); }

    std::vector<BYTE> stored() {
        DWORD size = 0;
        ::RegGetValueW(HKEY_CURRENT_USER, kLayoutKey, kValue, RRF_RT_ANY, nullptr, nullptr, &size);
        std::vector<BYTE> bytes(size);
        ::RegGetValueW(HKEY_CURRENT_USER, kLayoutKey, kValue, RRF_RT_ANY, nullptr, bytes.data(), &size);
        return bytes;
    }
    void store(const std::vector<BYTE>& bytes) {
        ::RegSetKeyValueW(HKEY_CURRENT_USER, kLayoutKey, kValue, REG_BINARY, bytes.data(),
                          static_cast<DWORD>(bytes.size()));
    }
};

TEST_F(DockingState, comes_back_to_the_pixel) {
    Pane& left = docked(L"left", AFX_IDW_DOCKBAR_LEFT);
    Pane& lower = make(L"lower");
    lower.DockToWindow(&left, CBRS_ALIGN_BOTTOM);
    Pane& hidden = docked(L"hidden", AFX_IDW_DOCKBAR_RIGHT);
    hidden.ShowPane(FALSE, FALSE, FALSE);
    Pane& floating = docked(L"floating", AFX_IDW_DOCKBAR_BOTTOM);
    floating.FloatPane(CRect(300, 250, 520, 400));
    Pane& beside = make(L"beside");
    beside.DockToWindow(&floating, CBRS_ALIGN_RIGHT);
    const CRect places[] = {at(left), at(lower), at(floating), at(beside)};
    ASSERT_TRUE(manager().SaveState(kProfile));

    frame->DockPane(&left, AFX_IDW_DOCKBAR_TOP);
    frame->DockPane(&floating, AFX_IDW_DOCKBAR_RIGHT);
    lower.FloatPane(CRect(0, 0, 100, 100));
    hidden.ShowPane(TRUE, FALSE, FALSE);
    beside.ShowPane(FALSE, FALSE, FALSE);
    ASSERT_TRUE(manager().LoadState(kProfile));
    EXPECT_EQ(at(left), places[0]);
    EXPECT_EQ(at(lower), places[1]);
    EXPECT_TRUE(hidden.IsDocked());
    EXPECT_FALSE(hidden.IsVisible());
    ASSERT_TRUE(floating.IsFloating());
    EXPECT_EQ(floating.GetParentMiniFrame(), beside.GetParentMiniFrame());
    EXPECT_EQ(on_screen(*floating.GetParentMiniFrame()), CRect(300, 250, 520, 400));
    EXPECT_EQ(at(floating), places[2]);
    EXPECT_EQ(at(beside), places[3]);
    EXPECT_EQ(manager().GetMiniFrames().GetCount(), 1);
    check_frame();
    // The place in the frame came back as well.
    EXPECT_TRUE(floating.DockToRecentPos());
    EXPECT_EQ(floating.GetCurrentAlignment(), static_cast<DWORD>(CBRS_ALIGN_BOTTOM));
}

TEST_F(DockingState, lies_under_the_keys_that_are_told) {
    Pane& pane = docked(L"one", AFX_IDW_DOCKBAR_LEFT);
    pane.ShowPane(FALSE, FALSE, FALSE);
    ASSERT_TRUE(manager().SaveState(kProfile));
    EXPECT_FALSE(stored().empty());
    DWORD visible = 9, size = sizeof visible;
    EXPECT_EQ(::RegGetValueW(HKEY_CURRENT_USER, L"Software\\ktui docking test\\BasePane-3001", L"IsVisible",
                             RRF_RT_REG_DWORD, nullptr, &visible, &size),
              ERROR_SUCCESS);
    EXPECT_EQ(visible, 0u);
    EXPECT_TRUE(pane.SaveState(kProfile, 7, 0x2B));
    EXPECT_EQ(::RegGetValueW(HKEY_CURRENT_USER, L"Software\\ktui docking test\\BasePane-72b", L"IsVisible",
                             RRF_RT_REG_DWORD, nullptr, &visible, &size),
              ERROR_SUCCESS);
}

TEST_F(DockingState, a_pane_reads_its_own_places) {
    Pane& pane = docked(L"one", AFX_IDW_DOCKBAR_LEFT);
    pane.FloatPane(CRect(300, 250, 520, 400));
    ASSERT_TRUE(pane.SaveState(kProfile));
    pane.m_recentDockInfo.m_rectRecentFloatingRect.SetRectEmpty();
    ASSERT_TRUE(pane.LoadState(kProfile));
    EXPECT_EQ(pane.m_recentDockInfo.m_rectRecentFloatingRect, CRect(300, 250, 520, 400));
    EXPECT_NE(pane.m_recentDockInfo.m_recentMiniFrameInfo.m_nRecentPercent, 0);
    EXPECT_TRUE(pane.GetRecentVisibleState());
    EXPECT_TRUE(pane.IsRestoredFromRegistry());
    EXPECT_FALSE(pane.LoadState(kProfile, 1234));
}

TEST_F(DockingState, a_pane_refuses_a_damaged_state_whole) {
    Pane& pane = docked(L"one", AFX_IDW_DOCKBAR_LEFT);
    ASSERT_TRUE(pane.SaveState(kProfile));
    const CRect before = pane.m_recentDockInfo.m_rectRecentFloatingRect;
    const wchar_t* const key = L"Software\\ktui docking test\\Pane-3001";
    DWORD percent = 5000;
    ::RegSetKeyValueW(HKEY_CURRENT_USER, key, L"RecentPercent", REG_DWORD, &percent, sizeof percent);
    EXPECT_FALSE(pane.LoadState(kProfile));
    percent = 10;
    ::RegSetKeyValueW(HKEY_CURRENT_USER, key, L"RecentPercent", REG_DWORD, &percent, sizeof percent);
    EXPECT_TRUE(pane.LoadState(kProfile));
    DWORD version = 2;
    ::RegSetKeyValueW(HKEY_CURRENT_USER, key, L"Version", REG_DWORD, &version, sizeof version);
    EXPECT_FALSE(pane.LoadState(kProfile));
    EXPECT_EQ(pane.m_recentDockInfo.m_rectRecentFloatingRect, before);
}

TEST_F(DockingState, what_is_damaged_changes_nothing) {
    Pane& left = docked(L"left", AFX_IDW_DOCKBAR_LEFT);
    Pane& right = docked(L"right", AFX_IDW_DOCKBAR_RIGHT);
    EXPECT_FALSE(manager().LoadState(kProfile));
    ASSERT_TRUE(manager().SaveState(kProfile));
    const std::vector<BYTE> good = stored();
    frame->DockPane(&left, AFX_IDW_DOCKBAR_TOP);
    const CRect places[] = {at(left), at(right)};
    for (size_t i = 0; i < good.size(); i += 3) {
        std::vector<BYTE> bad = good;
        bad[i] ^= 0x10;
        store(bad);
        EXPECT_FALSE(manager().LoadState(kProfile)) << i;
        bad = good;
        bad.resize(i);
        store(bad);
        EXPECT_FALSE(manager().LoadState(kProfile)) << i;
    }
    EXPECT_EQ(at(left), places[0]);
    EXPECT_EQ(at(right), places[1]);
    store(good);
    EXPECT_TRUE(manager().LoadState(kProfile));
    EXPECT_EQ(at(left), CRect(0, 0, 150, 500));
}

TEST_F(DockingState, panes_that_it_does_not_know_keep_their_side_and_those_that_are_gone_are_left_out) {
    Pane& left = docked(L"left", AFX_IDW_DOCKBAR_LEFT);
    {
        Pane gone;
        gone.Create(L"gone", frame, CSize(100, 100), TRUE, 92, WS_CHILD | WS_VISIBLE | CBRS_LEFT);
        frame->DockPane(&gone);
        ASSERT_TRUE(manager().SaveState(kProfile));
    }
    Pane& later = docked(L"later", AFX_IDW_DOCKBAR_BOTTOM, 90);
    Pane& floating = docked(L"floating", AFX_IDW_DOCKBAR_BOTTOM, 90);
    floating.FloatPane(CRect(300, 250, 520, 400));
    ASSERT_TRUE(manager().LoadState(kProfile));
    EXPECT_EQ(at(left), CRect(0, 0, 150, 500));
    EXPECT_EQ(at(later), CRect(154, 410, 700, 500));
    EXPECT_TRUE(floating.IsFloating());
    EXPECT_EQ(on_screen(*floating.GetParentMiniFrame()), CRect(300, 250, 520, 400));
    check_frame();
}

TEST_F(DockingState, panes_come_back_in_their_tabs) {
    Pane& first = docked(L"first", AFX_IDW_DOCKBAR_LEFT);
    Pane& second = docked(L"second", AFX_IDW_DOCKBAR_RIGHT);
    Pane& third = docked(L"third", AFX_IDW_DOCKBAR_RIGHT);
    CDockablePane* tabbed = nullptr;
    second.AttachToTabWnd(&first, DM_SHOW, TRUE, &tabbed);
    third.AttachToTabWnd(&first, DM_SHOW, FALSE);
    ASSERT_NE(tabbed, nullptr);
    const CRect place = at(*tabbed);
    ASSERT_TRUE(manager().SaveState(kProfile));
    for (Pane* pane : {&first, &second, &third}) frame->DockPane(pane, AFX_IDW_DOCKBAR_TOP);
    ui_test::pump();
    ASSERT_FALSE(second.IsTabbed());
    // Twice: also over tabs that are there.
    for (int times = 0; times < 2; ++times) {
        ASSERT_TRUE(manager().LoadState(kProfile));
        ui_test::pump();
        CBaseTabbedPane* again = second.GetParentTabbedPane();
        ASSERT_NE(again, nullptr);
        EXPECT_EQ(again->GetTabsNum(), 3);
        EXPECT_EQ(first.GetParentTabbedPane(), again);
        EXPECT_EQ(third.GetParentTabbedPane(), again);
        EXPECT_EQ(at(*again), place);
        EXPECT_EQ(again->GetUnderlyingWindow()->GetActiveWnd(), &second);
        check_frame();
    }
}

TEST_F(DockingState, a_pane_that_is_hidden_when_it_comes_back_as_a_tab_counts_as_visible) {
    Pane& first = docked(L"first", AFX_IDW_DOCKBAR_LEFT);
    Pane& second = docked(L"second", AFX_IDW_DOCKBAR_RIGHT);
    second.AttachToTabWnd(&first, DM_SHOW, FALSE);
    ASSERT_TRUE(manager().SaveState(kProfile));
    frame->DockPane(&second, AFX_IDW_DOCKBAR_RIGHT);
    second.ShowPane(FALSE, FALSE, FALSE);
    ASSERT_FALSE(second.IsVisible());
    ASSERT_TRUE(manager().LoadState(kProfile));
    ASSERT_TRUE(second.IsTabbed());
    EXPECT_TRUE(second.IsVisible());
    second.ShowPane(FALSE, FALSE, FALSE);
    EXPECT_FALSE(second.IsVisible());
    EXPECT_EQ(first.GetParentTabbedPane()->GetVisibleTabsNum(), 1);
}

TEST_F(DockingState, restoring_can_be_turned_off) {
    docked(L"left", AFX_IDW_DOCKBAR_LEFT);
    ASSERT_TRUE(manager().SaveState(kProfile));
    manager().DisableRestoreDockState();
    EXPECT_FALSE(manager().LoadState(kProfile));
    manager().DisableRestoreDockState(FALSE);
    EXPECT_TRUE(manager().LoadState(kProfile));
}

TEST_F(DockingState, goes_through_an_archive) {
    Pane& left = docked(L"left", AFX_IDW_DOCKBAR_LEFT);
    CMemFile file;
    {
        CArchive out(&file, CArchive::store);
        manager().Serialize(out);
    }
    frame->DockPane(&left, AFX_IDW_DOCKBAR_TOP);
    file.SeekToBegin();
    {
        CArchive in(&file, CArchive::load);
        manager().Serialize(in);
    }
    EXPECT_EQ(at(left), CRect(0, 0, 150, 500));
    CMemFile damaged;
    {
        CArchive out(&damaged, CArchive::store);
        out.WriteCount(3);
        out << 1 << 2 << 3;
    }
    damaged.SeekToBegin();
    CArchive in(&damaged, CArchive::load);
    EXPECT_THROW(manager().Serialize(in), CArchiveException*);
    EXPECT_EQ(at(left), CRect(0, 0, 150, 500));
}

TEST_F(DockingState, a_pane_that_is_hidden_in_a_floating_frame_is_not_seen_there) {
    Pane& pane = docked(L"docked", AFX_IDW_DOCKBAR_LEFT);
    Pane& other = make(L"other");
    ASSERT_TRUE(other.FloatPane(CRect(300, 300, 500, 500)));
    ASSERT_TRUE(pane.DockToWindow(&other, CBRS_ALIGN_LEFT));
    pane.ShowPane(FALSE, FALSE, FALSE);
    CMemFile memory;
    {
        CArchive archive(&memory, CArchive::store);
        manager().Serialize(archive);
    }
    frame->DockPane(&pane, AFX_IDW_DOCKBAR_LEFT);
    pane.ShowPane(TRUE, FALSE, FALSE);
    memory.SeekToBegin();
    CArchive archive(&memory, CArchive::load);
    manager().Serialize(archive);
    EXPECT_EQ(pane.GetParentMiniFrame(), other.GetParentMiniFrame());
    EXPECT_FALSE(pane.IsPaneVisible());
    EXPECT_TRUE(other.IsPaneVisible());
}
