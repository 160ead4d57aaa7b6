// What is kept of toolbars between two runs.
#include <afxsettingsstore.h>

#include "docking_bars_fixture.h"

using namespace docking;

namespace {
constexpr int kThick = 17, kLong = 62;  // pixels of the bar of the fixture
constexpr wchar_t kProfile[] = L"SOFTWARE\\ktui tests\\bars";
}  // namespace

class BarState : public DockingBars {
protected:
    BarState() { ::RegDeleteTreeW(HKEY_CURRENT_USER, kProfile); }
    ~BarState() override { ::RegDeleteTreeW(HKEY_CURRENT_USER, kProfile); }
    void save() { ASSERT_TRUE(manager().SaveState(kProfile)); }
    BOOL load() { return manager().LoadState(kProfile); }

    /// Changes one byte of what is stored about bars.
    static void spoil() {
        HKEY key = nullptr;
        const CString path = CString(kProfile) + L"\\DockingManager-0";
        ASSERT_EQ(::RegOpenKeyExW(HKEY_CURRENT_USER, path, 0, KEY_ALL_ACCESS, &key), 0);
        DWORD size = 0, type = 0;
        ASSERT_EQ(::RegQueryValueExW(key, L"DockedBars", nullptr, &type, nullptr, &size), 0);
        std::vector<BYTE> bytes(size);
        ::RegQueryValueExW(key, L"DockedBars", nullptr, &type, bytes.data(), &size);
        bytes[size / 2] ^= 1;
        ::RegSetValueExW(key, L"DockedBars", 0, type, bytes.data(), size);
        ::RegCloseKey(key);
    }
};

TEST_F(BarState, bars_come_back_to_side_row_order_and_offset) {
    CMFCToolBar &one = docked_bar(), &two = docked_bar(), &three = make_bar(), &side = docked_bar();
    frame->DockPaneLeftOf(&three, &two);
    CRect wanted = on_screen(two) + CPoint(150, 0);
    frame->DockPane(&two, AFX_IDW_DOCKBAR_TOP, &wanted);
    frame->DockPane(&side, AFX_IDW_DOCKBAR_LEFT);
    std::vector<CRect> places;
    for (const auto& bar : bars) places.push_back(in_frame(*bar));
    save();
    for (const auto& bar : bars) frame->DockPane(bar.get(), AFX_IDW_DOCKBAR_BOTTOM);
    ASSERT_NE(in_frame(one), places[0]);
    ASSERT_TRUE(load());
    for (size_t i = 0; i < bars.size(); ++i) EXPECT_EQ(in_frame(*bars[i]), places[i]) << i;
    EXPECT_TRUE(side.IsUpright());
    check_frame();
}

TEST_F(BarState, hidden_bars_come_back_hidden_in_their_place) {
    CMFCToolBar &one = docked_bar(), &two = docked_bar();
    frame->ShowPane(&one, FALSE, FALSE, FALSE);
    save();
    frame->ShowPane(&one, TRUE, FALSE, FALSE);
    frame->ShowPane(&two, FALSE, FALSE, FALSE);
    ASSERT_TRUE(load());
    EXPECT_FALSE(one.IsVisible());
    EXPECT_FALSE(one.IsWindowVisible());
    EXPECT_TRUE(two.IsWindowVisible());
    EXPECT_EQ(in_frame(two).top, 0);
    frame->ShowPane(&one, TRUE, FALSE, FALSE);
    EXPECT_EQ(in_frame(one).top, 0);
    EXPECT_EQ(in_frame(two).top, kThick);
    check_frame();
}

TEST_F(BarState, floating_bars_come_back_floating_and_know_where_they_were_docked) {
    CMFCToolBar& bar = docked_bar(AFX_IDW_DOCKBAR_LEFT);
    bar.FloatPane(CRect(320, 220, 320 + 45, 220));
    const CRect place = on_screen(*bar.GetParentMiniFrame());
    save();
    frame->DockPane(&bar, AFX_IDW_DOCKBAR_TOP);
    ui_test::pump();
    ASSERT_TRUE(load());
    ASSERT_TRUE(bar.IsFloating());
    EXPECT_EQ(on_screen(*bar.GetParentMiniFrame()), place);
    EXPECT_TRUE(bar.GetParentMiniFrame()->IsWindowVisible());
    EXPECT_TRUE(bar.DockToRecentPos());
    EXPECT_EQ(bar.GetCurrentAlignment(), static_cast<DWORD>(CBRS_ALIGN_LEFT));
    check_frame();
}

TEST_F(BarState, damaged_bars_leave_all_as_it_is) {
    CMFCToolBar& bar = docked_bar();
    Pane& pane = docked(L"pane", AFX_IDW_DOCKBAR_LEFT);
    save();
    frame->DockPane(&bar, AFX_IDW_DOCKBAR_BOTTOM);
    frame->DockPane(&pane, AFX_IDW_DOCKBAR_RIGHT);
    const CRect place = in_frame(bar), other = in_frame(pane);
    spoil();
    EXPECT_FALSE(load());
    EXPECT_EQ(in_frame(bar), place);
    EXPECT_EQ(in_frame(pane), other);
}

TEST_F(BarState, a_bar_that_was_not_there_when_it_was_stored_keeps_its_side) {
    CMFCToolBar& one = docked_bar();
    save();
    CMFCToolBar &fresh = docked_bar(), &below = docked_bar(AFX_IDW_DOCKBAR_BOTTOM);
    ASSERT_TRUE(load());
    EXPECT_EQ(in_frame(one).top, 0);
    EXPECT_EQ(in_frame(fresh).top, kThick);
    EXPECT_EQ(in_frame(below).bottom, 500);
    check_frame();
}

TEST_F(BarState, what_is_stored_of_bars_that_are_gone_harms_nothing) {
    CMFCToolBar &one = docked_bar(), &two = docked_bar();
    save();
    one.DestroyWindow();
    frame->DockPane(&two, AFX_IDW_DOCKBAR_LEFT);
    ASSERT_TRUE(load());
    EXPECT_EQ(in_frame(two), CRect(0, 0, kLong, kThick));
    check_frame();
}

TEST_F(BarState, a_state_without_bars_leaves_them) {
    save();
    CMFCToolBar& bar = docked_bar(AFX_IDW_DOCKBAR_RIGHT);
    ASSERT_TRUE(load());
    EXPECT_EQ(bar.GetCurrentAlignment(), static_cast<DWORD>(CBRS_ALIGN_RIGHT));
    EXPECT_EQ(in_frame(bar).right, 700);
}
