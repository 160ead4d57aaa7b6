// The menu bar: whose menu it shows, its items, and where it stands.
#include "accessible_object.h"
#include "menu_bar_fixture.h"

using namespace docking;

BEGIN_MESSAGE_MAP(BarsFrame, Frame)
    ON_COMMAND_RANGE(kNew, kCut, &BarsFrame::OnCommandOf)
    ON_UPDATE_COMMAND_UI(kOpen, &BarsFrame::OnUpdateOpen)
    ON_UPDATE_COMMAND_UI(kCut, &BarsFrame::OnUpdateCut)
END_MESSAGE_MAP()

using MenuBar = MenuBars;

TEST_F(MenuBar, takes_the_menu_off_the_frame_and_has_a_button_for_each_item) {
    EXPECT_EQ(frame->GetMenuBar(), nullptr);
    dock();
    EXPECT_EQ(::GetMenu(frame->m_hWnd), nullptr);
    EXPECT_EQ(frame->GetMenuBar(), &bar);
    EXPECT_EQ(bar.GetHMenu(), all);
    EXPECT_EQ(bar.GetDefaultMenu(), all);
    EXPECT_EQ(bar.GetDlgCtrlID(), 0xE806);
    ASSERT_EQ(bar.GetCount(), 5);
    EXPECT_EQ(bar.GetButtonText(0), L"&File");
    EXPECT_EQ(bar.GetButtonText(4), L"&Help");
    EXPECT_EQ(bar.GetMenuItem(3)->m_nID, kNew);
    EXPECT_EQ(bar.GetMenuItem(5), nullptr);
    EXPECT_FALSE(bar.GetButton(2)->IsEnabled());
    EXPECT_TRUE(bar.GetButton(4)->IsEnabled());
    for (int i = 0; i + 1 < 5; ++i)
        EXPECT_LE(bar.GetButton(i)->Rect().right, bar.GetButton(i + 1)->Rect().left);
    check_frame();
}

TEST_F(MenuBar, gives_the_menu_back_when_it_goes_and_when_the_frame_goes) {
    dock();
    bar.DestroyWindow();
    EXPECT_EQ(::GetMenu(frame->m_hWnd), all);
    EXPECT_EQ(frame->GetMenuBar(), nullptr);
    EXPECT_EQ(bar.GetHMenu(), nullptr);
    auto* const other = new Frame;
    HMENU const menu = ::CreateMenu();
    HMENU const within = popup({{kNew, L"New"}});
    add(menu, within, L"One");
    ASSERT_TRUE(other->Create(nullptr, L"other"));
    ::SetMenu(other->m_hWnd, menu);
    CMFCMenuBar its;
    ASSERT_TRUE(its.Create(other));
    EXPECT_EQ(::GetMenu(other->m_hWnd), nullptr);
    other->DestroyWindow();
    // The window takes its menu along.
    EXPECT_FALSE(::IsMenu(menu));
    EXPECT_FALSE(::IsMenu(within));
    EXPECT_EQ(its.m_hWnd, nullptr);
}

TEST_F(MenuBar, follows_what_the_program_does_to_the_menu) {
    dock();
    ::ModifyMenuW(all, 1, MF_BYPOSITION | MF_POPUP, reinterpret_cast<UINT_PTR>(edit), L"&Change");
    ::EnableMenuItem(all, 4, MF_BYPOSITION | MF_GRAYED);
    ::EnableMenuItem(all, 2, MF_BYPOSITION | MF_ENABLED);
    bar.SendMessage(WM_IDLEUPDATECMDUI, TRUE);
    EXPECT_EQ(bar.GetButtonText(1), L"&Change");
    EXPECT_FALSE(bar.GetButton(4)->IsEnabled());
    EXPECT_TRUE(bar.GetButton(2)->IsEnabled());
    ::RemoveMenu(all, 3, MF_BYPOSITION);
    ::InsertMenuW(all, 0, MF_BYPOSITION | MF_POPUP, reinterpret_cast<UINT_PTR>(popup({{kNew, L"x"}})),
                  L"&Zero");
    bar.SendMessage(WM_IDLEUPDATECMDUI, TRUE);
    ASSERT_EQ(bar.GetCount(), 5);
    EXPECT_EQ(bar.GetButtonText(0), L"&Zero");
    EXPECT_EQ(bar.GetButtonText(3), L"&Locked");
    ::RemoveMenu(all, 4, MF_BYPOSITION);
    bar.SendMessage(WM_IDLEUPDATECMDUI, TRUE);
    EXPECT_EQ(bar.GetCount(), 4) << "the last has gone";
    ::DestroyMenu(help);
    // A menu that the frame is given later is the bar's as well.
    HMENU const later = ::CreateMenu();
    add(later, popup({{kNew, L"x"}}), L"&Later");
    ::SetMenu(frame->m_hWnd, later);
    bar.SendMessage(WM_IDLEUPDATECMDUI, TRUE);
    EXPECT_EQ(::GetMenu(frame->m_hWnd), nullptr);
    EXPECT_EQ(bar.GetDefaultMenu(), later);
    ASSERT_EQ(bar.GetCount(), 1);
    EXPECT_EQ(bar.GetButtonText(0), L"&Later");
    ::DestroyMenu(all);
}

TEST_F(MenuBar, shows_another_menu_and_only_what_is_one) {
    dock();
    HMENU const other = ::CreateMenu();
    add(other, popup({{kNew, L"x"}}), L"&Other");
    bar.CreateFromMenu(other);
    EXPECT_EQ(bar.GetHMenu(), other);
    EXPECT_EQ(bar.GetDefaultMenu(), all);
    EXPECT_EQ(bar.GetCount(), 1);
    bar.CreateFromMenu(nullptr);
    bar.CreateFromMenu(reinterpret_cast<HMENU>(static_cast<INT_PTR>(0x1234)));
    EXPECT_EQ(bar.GetHMenu(), other);
    EXPECT_EQ(bar.GetCount(), 1);
    // What is shown already is read anew only on demand.
    ::ModifyMenuW(other, 0, MF_BYPOSITION | MF_STRING, kCut, L"&Cut");
    bar.CreateFromMenu(other);
    EXPECT_EQ(bar.GetButtonText(0), L"&Other");
    bar.CreateFromMenu(other, FALSE, TRUE);
    EXPECT_EQ(bar.GetButtonText(0), L"&Cut");
    bar.CreateFromMenu(all);
    EXPECT_EQ(bar.GetCount(), 5);
    ::DestroyMenu(other);
}

TEST_F(MenuBar, pictures_and_gaps_of_a_menu_are_no_items) {
    ::AppendMenuW(all, MF_SEPARATOR, 0, nullptr);
    ::InsertMenuW(all, 0, MF_BYPOSITION | MF_BITMAP, SC_CLOSE, reinterpret_cast<LPCWSTR>(HBMMENU_MBAR_CLOSE));
    dock();
    ASSERT_EQ(bar.GetCount(), 5);
    EXPECT_EQ(bar.GetButtonText(0), L"&File");
    then({VK_ESCAPE});
    EXPECT_TRUE(alt(L'e'));
    // The frame is told where in the menu it stands.
    EXPECT_EQ(told(), (Told{"enter", "menu", "open 2", "on 2003", "rest", "exit"}));
    ::InsertMenuW(all, 0, MF_BYPOSITION | MF_SEPARATOR, 0, nullptr);
    bar.SendMessage(WM_IDLEUPDATECMDUI, TRUE);
    then({VK_ESCAPE});
    EXPECT_TRUE(alt(L'e'));
    EXPECT_EQ(told(), (Told{"enter", "menu", "open 3", "on 2003", "rest", "exit"}));
}

constexpr wchar_t kProfile[] = L"SOFTWARE\\ktui tests\\menu bar";

TEST_F(MenuBar, stands_above_what_a_state_without_it_brings_back) {
    ::RegDeleteTreeW(HKEY_CURRENT_USER, kProfile);
    CMFCToolBar &first = docked_bar(), &second = docked_bar();
    second.DockToFrameWindow(CBRS_ALIGN_TOP);
    ASSERT_TRUE(manager().SaveState(kProfile));
    dock();
    ASSERT_GT(in_frame(bar).top, in_frame(first).top);
    EXPECT_TRUE(manager().LoadState(kProfile));
    EXPECT_EQ(in_frame(bar).top, 0);
    EXPECT_EQ(in_frame(first).top, in_frame(bar).bottom);
    EXPECT_EQ(in_frame(second).top, in_frame(first).bottom);
    // With it, it comes back where it was.
    frame->DockPane(&bar, AFX_IDW_DOCKBAR_BOTTOM);
    ASSERT_TRUE(manager().SaveState(kProfile));
    frame->DockPane(&bar, AFX_IDW_DOCKBAR_TOP);
    EXPECT_TRUE(manager().LoadState(kProfile));
    EXPECT_EQ(in_frame(bar).bottom, 500);
    EXPECT_TRUE(bar.IsWindowVisible());
    ::RegDeleteTreeW(HKEY_CURRENT_USER, kProfile);
}

TEST_F(MenuBar, the_original_comes_from_a_resource_that_is_there) {
    dock();
    EXPECT_FALSE(bar.RestoreOriginalstate());
    bar.SetDefaultMenuResId(9999);
    EXPECT_FALSE(bar.RestoreOriginalstate());
    EXPECT_EQ(bar.GetHMenu(), all);
    bar.SetDefaultMenuResId(460);
    EXPECT_EQ(bar.GetDefaultMenuResId(), 460u);
    EXPECT_TRUE(bar.RestoreOriginalstate());
    ASSERT_EQ(bar.GetCount(), 2);
    EXPECT_EQ(bar.GetButtonText(1), L"&Second");
    HMENU const former = bar.GetHMenu();
    EXPECT_TRUE(bar.RestoreOriginalstate());
    EXPECT_NE(bar.GetHMenu(), former);
    EXPECT_FALSE(::IsMenu(former));
    EXPECT_EQ(bar.GetDefaultMenu(), all);
}

TEST_F(MenuBar, without_a_menu_it_is_empty_and_keys_go_where_they_went) {
    ::SetMenu(frame->m_hWnd, nullptr);
    dock();
    EXPECT_EQ(bar.GetHMenu(), nullptr);
    EXPECT_EQ(bar.GetCount(), 0);
    EXPECT_FALSE(alt(L'f'));
    EXPECT_FALSE(bar.toggle_focus());
    EXPECT_EQ(::GetFocus(), view.m_hWnd);
    ::DestroyMenu(all);
}

TEST_F(MenuBar, docks_floats_and_is_always_there) {
    dock();
    CMFCToolBar& tools = docked_bar();
    EXPECT_EQ(in_frame(bar).top, 0);
    EXPECT_EQ(in_frame(tools).top, in_frame(bar).bottom);
    bar.ShowPane(FALSE, FALSE, FALSE);
    EXPECT_TRUE(bar.IsVisible());
    EXPECT_TRUE(bar.IsWindowVisible());
    EXPECT_FALSE(bar.CanBeClosed());
    EXPECT_TRUE(bar.FloatPane(CRect(300, 200, 300, 200)));
    EXPECT_TRUE(bar.IsFloating());
    EXPECT_EQ(in_frame(tools).top, 0);
    bar.DockToFrameWindow(CBRS_ALIGN_LEFT);
    EXPECT_TRUE(bar.IsUpright());
    EXPECT_EQ(bar.GetButton(0)->Rect().left, bar.GetButton(1)->Rect().left);
    EXPECT_LE(bar.GetButton(0)->Rect().bottom, bar.GetButton(1)->Rect().top);
    EXPECT_EQ(bar.GetHMenu(), all);
    check_frame();
}

TEST_F(MenuBar, the_rows_above_stand_outside_of_classic_bars_while_there_is_a_menu_bar) {
    CStatusBar above;
    ASSERT_TRUE(above.Create(frame, WS_CHILD | WS_VISIBLE | CBRS_TOP, 0xE810));
    const UINT ids[] = {ID_SEPARATOR};
    above.SetIndicators(ids, 1);
    CMFCToolBar& tools = docked_bar();
    frame->RecalcLayout();
    EXPECT_EQ(in_frame(above).top, 0);
    EXPECT_EQ(in_frame(tools).top, in_frame(above).bottom);
    // It is enough that there is one, though it be empty.
    ::SetMenu(frame->m_hWnd, nullptr);
    CMFCMenuBar other;
    ASSERT_TRUE(other.Create(frame));
    idle();
    EXPECT_EQ(in_frame(tools).top, 0);
    other.DestroyWindow();
    ::SetMenu(frame->m_hWnd, all);
    dock();
    idle();
    EXPECT_EQ(in_frame(tools).top, 0);
    EXPECT_EQ(in_frame(bar).top, in_frame(tools).bottom);
    EXPECT_EQ(in_frame(above).top, in_frame(bar).bottom);
    EXPECT_EQ(in_frame(view).top, in_frame(above).bottom);
    check_frame();
    bar.DestroyWindow();
    idle();
    EXPECT_EQ(in_frame(above).top, 0);
    EXPECT_EQ(in_frame(tools).top, in_frame(above).bottom);
    above.DestroyWindow();
}

/// A classic bar that is red.
class RedBar : public CControlBar {
public:
    CSize CalcFixedLayout(BOOL, BOOL) override { return CSize(32767, 30); }
    void OnUpdateCmdUI(CFrameWnd*, BOOL) override {}

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message != WM_PAINT) return CControlBar::WindowProc(message, wParam, lParam);
        CPaintDC dc(this);
        CRect client;
        GetClientRect(&client);
        dc.FillSolidRect(client, RGB(255, 0, 0));
        return 0;
    }
};

TEST_F(MenuBar, classic_bars_are_drawn_anew_where_rows_were) {
    RedBar red;
    red.SetBarStyle(CBRS_TOP);
    ASSERT_TRUE(red.CWnd::Create(AfxRegisterWndClass(0), L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 0, 0), frame,
                                 0xE810));
    dock();
    idle();
    const auto is_red = [&] {
        CClientDC dc(&red);
        CRect client;
        red.GetClientRect(&client);
        int points = 0;
        for (int y = 0; y < client.bottom; ++y)
            points += dc.GetPixel(CPoint(300, y)) == RGB(255, 0, 0) ? 1 : 0;
        return points == client.bottom && points >= 28;
    };
    EXPECT_TRUE(ui_test::pump_until(is_red));
    const int before = in_frame(red).top;
    bar.DockToFrameWindow(CBRS_ALIGN_LEFT);
    EXPECT_LT(in_frame(red).top, before);
    EXPECT_TRUE(ui_test::pump_until(is_red));
    bar.DockToFrameWindow(CBRS_ALIGN_TOP);
    EXPECT_EQ(in_frame(red).top, before);
    EXPECT_TRUE(ui_test::pump_until(is_red));
    red.DestroyWindow();
}

TEST_F(MenuBar, tells_assistive_programs_of_itself_and_its_items) {
    ::CoInitialize(nullptr);
    {
        dock();
        const ui_test::AccessibleObject about(bar.m_hWnd);
        EXPECT_EQ(about.role(), ROLE_SYSTEM_MENUBAR);
        EXPECT_EQ(about.name(), L"Menu");
        LONG count = 0;
        EXPECT_EQ(about->get_accChildCount(&count), S_OK);
        EXPECT_EQ(count, 5);
        EXPECT_EQ(about.role(1), ROLE_SYSTEM_MENUITEM);
        EXPECT_EQ(about.name(1), L"File");
        EXPECT_EQ(about.state(1), STATE_SYSTEM_HASPOPUP);
        EXPECT_EQ(about.action(1), L"Open");
        EXPECT_EQ(about.keys(1), L"Alt+F");
        EXPECT_EQ(about.state(3), STATE_SYSTEM_HASPOPUP | STATE_SYSTEM_UNAVAILABLE);
        EXPECT_EQ(about.action(4), L"Press");
        EXPECT_EQ(about.state(4), 0);
        bar.toggle_focus();
        EXPECT_EQ(about.state(1) & (STATE_SYSTEM_FOCUSED | STATE_SYSTEM_HOTTRACKED),
                  STATE_SYSTEM_FOCUSED | STATE_SYSTEM_HOTTRACKED);
        VARIANT focus = {};
        EXPECT_EQ(about->get_accFocus(&focus), S_OK);
        EXPECT_EQ(focus.lVal, 1);
        bar.toggle_focus();
        // The action is done later, when nobody waits.
        then({VK_RETURN});
        EXPECT_EQ(about.act(2), S_OK);
        EXPECT_TRUE(menu_frame().told.empty());
        EXPECT_EQ(told(), (Told{"enter", "menu", "open 1", "on 2003", "rest", "exit", "do 2003"}));
        EXPECT_NE(about.act(3), S_OK);
        EXPECT_EQ(about.act(6), E_INVALIDARG);
        EXPECT_EQ(about.act(4), S_OK);
        EXPECT_EQ(told(), Told{"do 2001"});
    }
    ::CoUninitialize();
}
