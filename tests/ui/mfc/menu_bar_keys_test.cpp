// The menu bar by keyboard and mouse: opening, going on, choosing, leaving.
#include "menu_bar_fixture.h"

using namespace docking;

using MenuBarKeys = MenuBars;

TEST_F(MenuBarKeys, alt_and_a_letter_opens_an_item_with_its_first_entry_marked) {
    dock();
    then({VK_RETURN});
    EXPECT_TRUE(alt(L'f'));
    EXPECT_EQ(told(), (Told{"enter", "menu", "open 0", "on 2001", "rest", "exit", "do 2001"}));
    EXPECT_EQ(bars_frame().commands, std::vector<UINT>{kNew});
    EXPECT_EQ(::GetFocus(), view.m_hWnd);
    EXPECT_EQ(bar.open_item(), -1);
    EXPECT_EQ(bar.GetHighlightedButton(), -1);
    EXPECT_FALSE(bar.GetButton(0)->IsPressed());
}

TEST_F(MenuBarKeys, letters_that_no_item_can_be_opened_by_go_on_to_the_program) {
    dock();
    EXPECT_FALSE(alt(L'x'));
    EXPECT_FALSE(alt(L'l'));  // is disabled
    EXPECT_FALSE(alt(L'&'));
    EXPECT_FALSE(alt(L' '));
    frame->EnableWindow(FALSE);
    EXPECT_FALSE(alt(L'f'));
    frame->EnableWindow(TRUE);
    EXPECT_FALSE(handed_out(view.m_hWnd, WM_CHAR, L'f'));
    EXPECT_TRUE(told().empty());
    // A command of its own is done at once.
    EXPECT_TRUE(alt(L'G'));
    EXPECT_EQ(told(), Told{"do 2001"});
}

TEST_F(MenuBarKeys, escape_closes_the_menu_and_a_second_one_leaves_the_bar) {
    dock();
    then({VK_ESCAPE});
    alt(L'e');
    EXPECT_EQ(told(), (Told{"enter", "menu", "open 1", "on 2003", "rest", "exit"}));
    EXPECT_EQ(::GetFocus(), bar.m_hWnd);
    EXPECT_EQ(bar.GetHighlightedButton(), 1);
    bar_key(VK_ESCAPE);
    EXPECT_EQ(::GetFocus(), view.m_hWnd);
    EXPECT_EQ(bar.GetHighlightedButton(), -1);
    EXPECT_TRUE(told().empty());
}

TEST_F(MenuBarKeys, a_lone_alt_gives_the_bar_the_focus_and_another_takes_it_back) {
    dock();
    lone_alt();
    EXPECT_EQ(::GetFocus(), bar.m_hWnd);
    EXPECT_EQ(bar.GetHighlightedButton(), 0);
    bar_key(VK_RIGHT);
    EXPECT_EQ(bar.GetHighlightedButton(), 1);
    bar_key(VK_RIGHT);
    EXPECT_EQ(bar.GetHighlightedButton(), 3) << "what is disabled is left out";
    bar_key(VK_LEFT);
    bar_key(VK_LEFT);
    bar_key(VK_LEFT);
    EXPECT_EQ(bar.GetHighlightedButton(), 4);
    lone_alt();
    EXPECT_EQ(::GetFocus(), view.m_hWnd);
    frame->EnableWindow(FALSE);
    lone_alt();
    EXPECT_NE(::GetFocus(), bar.m_hWnd);
    EXPECT_EQ(bar.GetHighlightedButton(), -1);
    frame->EnableWindow(TRUE);
}

TEST_F(MenuBarKeys, in_the_bar_enter_down_and_letters_open) {
    dock();
    for (const WPARAM opens : {VK_RETURN, VK_SPACE, VK_DOWN, VK_UP}) {
        lone_alt();
        bar_key(VK_RIGHT);
        then({VK_DOWN, VK_RETURN});
        bar_key(opens);
        EXPECT_EQ(told(), (Told{"enter", "menu", "open 1", "on 2003", "on 2001", "rest", "exit", "do 2001"}));
        EXPECT_EQ(::GetFocus(), view.m_hWnd);
    }
    lone_alt();
    then({VK_RETURN});
    bar.SendMessage(WM_CHAR, L'h');
    EXPECT_EQ(told(), (Told{"enter", "menu", "open 4", "on 2001", "rest", "exit", "do 2001"}));
    lone_alt();
    bar.SendMessage(WM_CHAR, L'q');
    bar.SendMessage(WM_CHAR, L'l');
    EXPECT_TRUE(told().empty());
    EXPECT_EQ(::GetFocus(), bar.m_hWnd);
    bar_key(VK_RIGHT);
    bar_key(VK_RIGHT);
    bar_key(VK_DOWN);
    EXPECT_TRUE(told().empty()) << "a command has nothing to drop down";
    bar_key(VK_RETURN);
    EXPECT_EQ(told(), Told{"do 2001"});
    EXPECT_EQ(::GetFocus(), view.m_hWnd);
}

TEST_F(MenuBarKeys, arrows_go_from_menu_to_menu_around_the_ends) {
    dock();
    then({VK_RIGHT});
    then({VK_RIGHT});
    then({VK_RIGHT});
    then({VK_LEFT});
    then({VK_DOWN, VK_RETURN});
    alt(L'f');
    EXPECT_EQ(told(), (Told{"enter", "menu", "open 0", "on 2001", "open 1", "on 2003", "open 4", "on 2001",
                            "open 0", "on 2001", "open 4", "on 2001", "rest", "exit", "do 2001"}));
}

TEST_F(MenuBarKeys, arrows_open_and_close_a_menu_inside_before_they_go_on) {
    dock();
    then({VK_UP, VK_RIGHT});    // File, onto Recent
    then({VK_LEFT, VK_RIGHT});  // its menu, closed and opened again
    then({VK_RIGHT});           // from within it to the next item
    then({VK_ESCAPE});
    alt(L'f');
    EXPECT_EQ(told(), (Told{"enter", "menu", "open 0", "on 2001", "open 2", "on 2002", "open 2", "on 2002",
                            "open 1", "on 2003", "rest", "exit"}));
    EXPECT_EQ(bar.GetHighlightedButton(), 1);
    // Escape in a menu inside closes that alone.
    then({VK_UP, VK_RIGHT});
    then({VK_ESCAPE, VK_ESCAPE});
    alt(L'f');
    EXPECT_EQ(told(), (Told{"enter", "menu", "open 0", "on 2001", "open 2", "on 2002", "rest", "exit"}));
    EXPECT_EQ(bar.GetHighlightedButton(), 0);
}

TEST_F(MenuBarKeys, alt_in_an_open_menu_leaves_altogether) {
    dock();
    then({VK_UP, VK_RIGHT});
    then({VK_ESCAPE, VK_MENU});  // an Escape before it closed the menu inside only
    alt(L'f');
    told();
    EXPECT_EQ(::GetFocus(), view.m_hWnd);
    EXPECT_EQ(bar.GetHighlightedButton(), -1);
}

TEST_F(MenuBarKeys, nothing_else_opens_while_a_menu_is_open) {
    dock();
    then_do([this] {
        bar.open_by_letter(L'h');
        EXPECT_EQ(bar.open_item(), 0);
        ::PostMessageW(bar.m_hWnd, WM_KEYDOWN, VK_RETURN, 0);
    });
    alt(L'f');
    EXPECT_EQ(told(), (Told{"enter", "menu", "open 0", "on 2001", "rest", "exit", "do 2001"}));
}

TEST_F(MenuBarKeys, the_mouse_takes_the_mark_of_the_keyboard_only_to_another_item) {
    dock();
    lone_alt();
    send_mouse(bar.m_hWnd, WM_MOUSEMOVE, button_of(bar, 2), 0);  // disabled
    EXPECT_EQ(bar.GetHighlightedButton(), 0);
    bar.SendMessage(WM_MOUSELEAVE);
    EXPECT_EQ(bar.GetHighlightedButton(), 0);
    send_mouse(bar.m_hWnd, WM_MOUSEMOVE, button_of(bar, 1), 0);
    EXPECT_EQ(bar.GetHighlightedButton(), 1);
}

TEST_F(MenuBarKeys, commands_are_updated_when_their_menu_opens) {
    dock();
    bars_frame().openEnabled = FALSE;
    bars_frame().cutCheck = 1;
    UINT open = 0, cut = 0, unhandled = 0;
    then_do([&] {
        open = ::GetMenuState(file, kOpen, MF_BYCOMMAND);
        ::PostMessageW(bar.m_hWnd, WM_KEYDOWN, VK_RIGHT, 0);
    });
    then_do([&] {
        cut = ::GetMenuState(edit, kCut, MF_BYCOMMAND);
        unhandled = ::GetMenuState(edit, kUnhandled, MF_BYCOMMAND);
        ::PostMessageW(bar.m_hWnd, WM_KEYDOWN, VK_ESCAPE, 0);
    });
    alt(L'f');
    EXPECT_NE(open & MF_GRAYED, 0u);
    EXPECT_NE(cut & MF_CHECKED, 0u);
    EXPECT_NE(unhandled & MF_GRAYED, 0u);
}

TEST_F(MenuBarKeys, what_is_marked_is_told_in_the_frames_message_bar) {
    dock();
    bars_frame().messages.clear();
    then({VK_DOWN, VK_ESCAPE});
    alt(L'f');
    const UINT rest = AFX_IDS_IDLEMESSAGE;
    EXPECT_EQ(bars_frame().messages, (std::vector<UINT>{kNew, kOpen, rest}));
    bar_key(VK_ESCAPE);
    bars_frame().messages.clear();
    // Items of the bar say nothing.
    send_mouse(bar.m_hWnd, WM_MOUSEMOVE, button_of(bar, 1), 0);
    EXPECT_EQ(bar.GetHighlightedButton(), 1);
    bar.SendMessage(WM_MOUSELEAVE);
    EXPECT_EQ(bar.GetHighlightedButton(), -1);
    EXPECT_TRUE(bars_frame().messages.empty());
}

TEST_F(MenuBarKeys, a_press_opens_without_a_mark_and_another_press_closes) {
    dock();
    then_do([this] { menu_mouse(WM_LBUTTONDOWN, button_of(bar, 1)); });
    press(bar, button_of(bar, 1));
    EXPECT_EQ(told(), (Told{"enter", "menu", "open 1", "rest", "exit"}));
    EXPECT_EQ(::GetFocus(), view.m_hWnd);
    EXPECT_EQ(bar.open_item(), -1);
    press(bar, button_of(bar, 2));
    EXPECT_TRUE(told().empty()) << "is disabled";
    click(bar, 3);
    EXPECT_EQ(told(), Told{"do 2001"});
}

TEST_F(MenuBarKeys, the_mouse_goes_from_menu_to_menu) {
    dock();
    then_do([this] { menu_mouse(WM_MOUSEMOVE, button_of(bar, 1)); });
    then_do([this] {
        EXPECT_EQ(bar.open_item(), 1);
        EXPECT_TRUE(bar.GetButton(1)->IsPressed());
        EXPECT_FALSE(bar.GetButton(0)->IsPressed());
        menu_mouse(WM_MOUSEMOVE, button_of(bar, 2));  // disabled
        menu_mouse(WM_MOUSEMOVE, button_of(bar, 3));  // no menu
        menu_mouse(WM_MOUSEMOVE, button_of(bar, 1));  // itself
        menu_mouse(WM_LBUTTONDOWN, button_of(bar, 4));
    });
    then({VK_DOWN, VK_RETURN});
    press(bar, button_of(bar, 0));
    EXPECT_EQ(told(),
              (Told{"enter", "menu", "open 0", "open 1", "open 4", "on 2001", "rest", "exit", "do 2001"}));
}

TEST_F(MenuBarKeys, while_the_bar_has_the_focus_accelerators_wait) {
    dock();
    ACCEL keys[] = {{FVIRTKEY, VK_ESCAPE, kNew}, {FVIRTKEY, VK_RIGHT, kNew}};
    HACCEL const table = ::CreateAcceleratorTableW(keys, 2);
    frame->m_hAccelTable = table;
    lone_alt();
    bar_key(VK_RIGHT);
    EXPECT_EQ(bar.GetHighlightedButton(), 1);
    bar_key(VK_ESCAPE);
    EXPECT_EQ(::GetFocus(), view.m_hWnd);
    EXPECT_TRUE(told().empty());
    // Elsewhere they work.
    handed_out(view.m_hWnd, WM_KEYDOWN, VK_ESCAPE);
    EXPECT_EQ(told(), Told{"do 2001"});
    frame->m_hAccelTable = nullptr;
    ::DestroyAcceleratorTable(table);
}

TEST_F(MenuBarKeys, the_focus_goes_to_the_frame_when_what_had_it_is_gone) {
    dock();
    CWnd other;
    other.Create(AfxRegisterWndClass(0), L"other", WS_CHILD | WS_VISIBLE, CRect(0, 0, 1, 1), frame, 77);
    other.SetFocus();
    lone_alt();
    ASSERT_EQ(::GetFocus(), bar.m_hWnd);
    other.DestroyWindow();
    bar_key(VK_ESCAPE);
    EXPECT_EQ(::GetFocus(), frame->m_hWnd);
}

TEST_F(MenuBarKeys, keys_in_a_floating_frame_lead_to_the_bar) {
    dock();
    Pane& pane = docked(L"pane", AFX_IDW_DOCKBAR_LEFT);
    pane.FloatPane(CRect(300, 300, 500, 500));
    CPaneFrameWnd* const mini = pane.GetParentMiniFrame();
    pane.SetFocus();
    ASSERT_EQ(::GetFocus(), pane.m_hWnd);
    mini->SendMessage(WM_SYSCOMMAND, SC_KEYMENU, 0);
    EXPECT_EQ(::GetFocus(), bar.m_hWnd);
    bar_key(VK_ESCAPE);
    EXPECT_EQ(::GetFocus(), pane.m_hWnd);
    MSG message = {};
    message.hwnd = pane.m_hWnd;
    message.message = WM_SYSCHAR;
    message.wParam = L'e';
    then({VK_RETURN});
    EXPECT_TRUE(frame->PreTranslateMessage(&message));
    EXPECT_EQ(told(), (Told{"enter", "menu", "open 1", "on 2003", "rest", "exit", "do 2003"}));
    // A window beside the frame keeps its letters.
    CWnd beside;
    beside.CreateEx(0, AfxRegisterWndClass(0), L"beside", WS_POPUP, CRect(0, 0, 9, 9), nullptr, 0);
    message.hwnd = beside.m_hWnd;
    EXPECT_FALSE(frame->PreTranslateMessage(&message));
    beside.DestroyWindow();
}

TEST_F(MenuBarKeys, a_bar_that_floats_is_reached_and_left_by_the_same_keys) {
    dock();
    bar.FloatPane(CRect(300, 300, 300, 300));
    view.SetFocus();
    lone_alt();
    EXPECT_EQ(::GetFocus(), bar.m_hWnd);
    then({VK_RETURN});
    bar_key(VK_DOWN);
    EXPECT_EQ(told(), (Told{"enter", "menu", "open 0", "on 2001", "rest", "exit", "do 2001"}));
    EXPECT_EQ(::GetFocus(), view.m_hWnd);
}

TEST_F(MenuBarKeys, an_upright_bar_is_walked_up_and_down_and_opened_to_the_right) {
    dock();
    bar.DockToFrameWindow(CBRS_ALIGN_LEFT);
    lone_alt();
    bar_key(VK_DOWN);
    EXPECT_EQ(bar.GetHighlightedButton(), 1);
    then({VK_RETURN});
    bar_key(VK_RIGHT);
    EXPECT_EQ(told(), (Told{"enter", "menu", "open 1", "on 2003", "rest", "exit", "do 2003"}));
}

TEST_F(MenuBarKeys, a_bar_that_goes_while_its_menu_is_open_ends_it) {
    dock();
    then_do([this] { bar.DestroyWindow(); });
    alt(L'f');
    ui_test::pump();
    EXPECT_EQ(bar.m_hWnd, nullptr);
    EXPECT_EQ(::GetMenu(frame->m_hWnd), all);
}

TEST_F(MenuBarKeys, items_without_room_are_in_the_menu_of_the_button_for_more) {
    dock();
    narrow(140);
    ASSERT_FALSE(bar.more_rect().IsRectEmpty());
    ASSERT_FALSE(bar.GetButton(0)->Rect().IsRectEmpty());
    ASSERT_TRUE(bar.GetButton(1)->Rect().IsRectEmpty());
    // By its letter an item opens nevertheless.
    then({VK_RETURN});
    EXPECT_TRUE(alt(L'h'));
    EXPECT_EQ(told(), (Told{"enter", "menu", "open 4", "on 2001", "rest", "exit", "do 2001"}));
    // By the keyboard: the button for more is the last, and Edit the first in its menu.
    lone_alt();
    bar_key(VK_LEFT);
    EXPECT_EQ(bar.GetHighlightedButton(), 5);
    ui_test::later([this] { ::PostMessageW(bar.m_hWnd, WM_KEYDOWN, VK_RIGHT, 0); });
    then({VK_DOWN, VK_RETURN});
    bar_key(VK_RETURN);
    EXPECT_EQ(told(), (Told{"enter", "menu", "open 0", "on 2003", "on 2001", "rest", "exit", "do 2001"}));
    EXPECT_TRUE(::IsMenu(help)) << "the menus stay the frame's";
    EXPECT_TRUE(::IsMenu(edit));
    // By the mouse: Help is the last in it.
    CPoint more = bar.more_rect().CenterPoint();
    bar.ClientToScreen(&more);
    ui_test::later([this] {
        for (const WPARAM key : {VK_UP, VK_RIGHT}) ::PostMessageW(bar.m_hWnd, WM_KEYDOWN, key, 0);
    });
    then({VK_RETURN});
    press(bar, more);
    EXPECT_EQ(told(), (Told{"enter", "menu", "open 3", "on 2001", "rest", "exit", "do 2001"}));
    // From File the arrow leads to it, and with room again it is gone.
    then({VK_LEFT});
    ui_test::later([this] { ::PostMessageW(bar.m_hWnd, WM_KEYDOWN, VK_ESCAPE, 0); });
    alt(L'f');
    EXPECT_EQ(bar.GetHighlightedButton(), 5);
    narrow(700);
    EXPECT_TRUE(bar.more_rect().IsRectEmpty());
    EXPECT_EQ(bar.GetHighlightedButton(), -1);
}
