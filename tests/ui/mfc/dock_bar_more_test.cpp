// A docked toolbar that is too short: the button for more, its menu, and what assistive programs learn.
#include "accessible_object.h"
#include "docking_bars_fixture.h"
#include "watchdog.h"

using namespace docking;

namespace {

/// What an open menu says: a line for each item, "-" for a gap, "(…)" for a disabled one, "*" before a
/// checked one.
std::vector<std::wstring> items_of(HMENU menu) {
    std::vector<std::wstring> items;
    for (UINT i = 0; static_cast<int>(i) < ::GetMenuItemCount(menu); ++i) {
        wchar_t text[100] = {};
        ::GetMenuStringW(menu, i, text, 100, MF_BYPOSITION);
        const UINT state = ::GetMenuState(menu, i, MF_BYPOSITION);
        CString item(text);
        if ((state & MF_SEPARATOR) != 0)
            item = L"-";
        else if ((state & MF_GRAYED) != 0)
            item = L"(" + item + L")";
        if ((state & MF_CHECKED) != 0) item = L"*" + item;
        items.emplace_back(item);
    }
    return items;
}

}  // namespace

class DockBarMore : public DockingBars {
protected:
    DockBarMore() {
        bar = &make_bar(L"Tools");
        bar->InsertButton(CMFCToolBarButton(kUnhandled, -1, L"&Own text"));
        frame->DockPane(bar);
        whole = in_frame(*bar).Width();
    }
    /// Makes the row so long.
    void narrow(int width) {
        const CRect outer = on_screen(*frame);
        CRect client;
        frame->GetClientRect(&client);
        frame->SetWindowPos(nullptr, 0, 0, outer.Width() - client.Width() + width, outer.Height(),
                            SWP_NOMOVE | SWP_NOZORDER);
    }
    /// Has the bar share its row with one that takes all but `width` pixels of it.
    void leave(int width) {
        CMFCToolBar& other = make_bar(L"other");
        other.RemoveAllButtons();
        other.InsertButton(CMFCToolBarButton(kNew, -1, L"long"));
        other.SetLockedSizes(CSize(700 - 8 - 2 - width, 15), CSize(8, 8));
        frame->DockPane(&other);
        frame->DockPaneLeftOf(&other, bar);
        ASSERT_EQ(in_frame(*bar), CRect(700 - width, 0, 700, in_frame(*bar).bottom));
    }
    CPoint more_of() {
        CPoint point = bar->more_rect().CenterPoint();
        bar->ClientToScreen(&point);
        return point;
    }
    /// When the menu is up: notes it and sends keys.
    void when_open(const std::vector<WPARAM>& keys) {
        ui_test::when_window([](HWND window) { return is_menu(window); },
                             [this, keys](HWND window) {
                                 shown =
                                     items_of(reinterpret_cast<HMENU>(::SendMessageW(window, 0x01E1, 0, 0)));
                                 for (const WPARAM key : keys)
                                     ::PostMessageW(bar->m_hWnd, WM_KEYDOWN, key, 0);
                             });
    }
    static bool is_menu(HWND window) {
        wchar_t name[16] = {};
        ::GetClassNameW(window, name, 16);
        return CString(name) == L"#32768";
    }

    ui_test::Watchdog watchdog;
    CMFCToolBar* bar;
    int whole = 0;
    std::vector<std::wstring> shown;  ///< in the menu that was open last
};

using Items = std::vector<std::wstring>;

TEST_F(DockBarMore, there_is_none_while_every_button_has_room) {
    EXPECT_TRUE(bar->more_rect().IsRectEmpty());
    EXPECT_EQ(bar->parts(), 5);
    bar->SetFocus();
    for (int i = 0; i < 4; ++i) bar->SendMessage(WM_KEYDOWN, VK_RIGHT);
    EXPECT_EQ(bar->GetHighlightedButton(), 0) << "once round";
}

TEST_F(DockBarMore, a_bar_that_is_shortened_ends_in_it) {
    // Gripper, two buttons, and the one for more.
    leave(1 + 8 + 2 * 15 + 12 + 1);
    EXPECT_EQ(bar->more_rect(), CRect(39, 1, 51, in_frame(*bar).Height() - 1));
    EXPECT_FALSE(bar->GetButton(1)->IsHidden());
    for (const int hidden : {2, 3, 4}) EXPECT_TRUE(bar->GetButton(hidden)->IsHidden()) << hidden;
    EXPECT_EQ(bar->parts(), 6);
    bar->FloatPane(CRect(300, 200, 300, 200));
    EXPECT_TRUE(bar->more_rect().IsRectEmpty());
    EXPECT_FALSE(bar->GetButton(4)->IsHidden());
}

TEST_F(DockBarMore, its_menu_holds_what_has_no_room_and_does_what_is_chosen) {
    bars_frame().cutCheck = 1;
    leave(1 + 8 + 15 + 12 + 1);
    bar->SendMessage(WM_IDLEUPDATECMDUI, TRUE);
    when_open({VK_DOWN, VK_RETURN});
    press(*bar, more_of());
    ui_test::pump();
    EXPECT_EQ(shown, (Items{L"Open thing", L"-", L"*Cuts without a tip", L"(&Own text)"}));
    EXPECT_EQ(bars_frame().commands, std::vector<UINT>{kOpen});
    EXPECT_EQ(bar->GetPressedButton(), -1);
    when_open({VK_ESCAPE});
    press(*bar, more_of());
    ui_test::pump();
    EXPECT_EQ(bars_frame().commands.size(), 1u);
}

TEST_F(DockBarMore, arrow_keys_reach_it_behind_the_last_button_with_room) {
    leave(1 + 8 + 2 * 15 + 12 + 1);
    bar->SendMessage(WM_IDLEUPDATECMDUI, TRUE);
    bar->SetFocus();
    bar->SendMessage(WM_KEYDOWN, VK_RIGHT);
    EXPECT_EQ(bar->GetHighlightedButton(), 1);
    bar->SendMessage(WM_KEYDOWN, VK_RIGHT);
    EXPECT_EQ(bar->GetHighlightedButton(), 5);
    bar->SendMessage(WM_KEYDOWN, VK_RIGHT);
    EXPECT_EQ(bar->GetHighlightedButton(), 0);
    bar->SendMessage(WM_KEYDOWN, VK_END);
    EXPECT_EQ(bar->GetHighlightedButton(), 5);
    when_open({VK_DOWN, VK_RETURN});
    bar->SendMessage(WM_KEYDOWN, VK_RETURN);
    ui_test::pump();
    EXPECT_EQ(shown, (Items{L"Cuts without a tip", L"(&Own text)"})) << "no gap stands first";
    EXPECT_EQ(bars_frame().commands, std::vector<UINT>{kCut});
}

TEST_F(DockBarMore, an_upright_bar_ends_in_it_below) {
    frame->DockPane(bar, AFX_IDW_DOCKBAR_LEFT);
    const CRect outer = on_screen(*frame);
    frame->SetWindowPos(nullptr, 0, 0, outer.Width(), outer.Height() - 500 + 60, SWP_NOMOVE | SWP_NOZORDER);
    ASSERT_FALSE(bar->more_rect().IsRectEmpty());
    EXPECT_EQ(bar->more_rect().bottom, in_frame(*bar).Height() - 1);
    EXPECT_FALSE(bar->GetButton(0)->IsHidden());
    EXPECT_TRUE(bar->GetButton(4)->IsHidden());
}

TEST_F(DockBarMore, the_mouse_marks_it_and_its_tip_says_what_it_is) {
    leave(1 + 8 + 2 * 15 + 12 + 1);
    send_mouse(bar->m_hWnd, WM_MOUSEMOVE, more_of(), 0);
    EXPECT_EQ(bar->GetHighlightedButton(), 5);
    TOOLINFOW info = {};
    info.cbSize = sizeof(info);
    EXPECT_GT(bar->OnToolHitTest(bar->more_rect().CenterPoint(), &info), 0);
    EXPECT_EQ(CRect(info.rect), bar->more_rect());
    CString text, tip;
    text.LoadString(static_cast<UINT>(info.uId));
    AfxExtractSubString(tip, text, 1);
    EXPECT_EQ(tip, L"More buttons");
    // When it goes its mark goes with it.
    bar->FloatPane(CRect(300, 200, 300, 200));
    EXPECT_EQ(bar->GetHighlightedButton(), -1);
}

TEST_F(DockBarMore, assistive_programs_learn_of_the_bar_its_buttons_and_it) {
    ::CoInitialize(nullptr);
    {
        bars_frame().cutCheck = 1;
        leave(1 + 8 + 2 * 15 + 12 + 1);
        bar->SendMessage(WM_IDLEUPDATECMDUI, TRUE);
        const ui_test::AccessibleObject about(bar->m_hWnd);
        EXPECT_EQ(about.role(), ROLE_SYSTEM_TOOLBAR);
        EXPECT_EQ(about.name(), L"Tools");
        EXPECT_EQ(about.role(1), ROLE_SYSTEM_PUSHBUTTON);
        EXPECT_EQ(about.name(1), L"New thing");
        EXPECT_EQ(about.action(1), L"Press");
        EXPECT_EQ(about.state(1), 0);
        CRect second = bar->GetButton(1)->Rect();
        bar->ClientToScreen(&second);
        EXPECT_EQ(about.place(2), second);
        EXPECT_EQ(about.role(3), ROLE_SYSTEM_SEPARATOR);
        EXPECT_EQ(about.role(4), ROLE_SYSTEM_CHECKBUTTON);
        EXPECT_EQ(about.name(4), L"Cuts without a tip");
        EXPECT_EQ(about.state(4), STATE_SYSTEM_CHECKED | STATE_SYSTEM_INVISIBLE);
        EXPECT_EQ(about.name(5), L"Own text");
        EXPECT_EQ(about.state(5), STATE_SYSTEM_UNAVAILABLE | STATE_SYSTEM_INVISIBLE);
        EXPECT_EQ(about.role(6), ROLE_SYSTEM_BUTTONMENU);
        EXPECT_EQ(about.name(6), L"More buttons");
        EXPECT_EQ(about.action(6), L"Open");
        EXPECT_EQ(about.state(6), STATE_SYSTEM_HASPOPUP);
        CPoint over = button_of(*bar, 0);
        VARIANT hit = {};
        EXPECT_EQ(about->accHitTest(over.x, over.y, &hit), S_OK);
        EXPECT_EQ(hit.lVal, 1);
        // What has no room can be pressed nevertheless; what is disabled or a gap can't.
        EXPECT_EQ(about.act(4), S_OK);
        ui_test::pump();
        EXPECT_EQ(bars_frame().commands, std::vector<UINT>{kCut});
        for (const LONG none : {0, 3, 5}) EXPECT_EQ(about.act(none), DISP_E_MEMBERNOTFOUND) << none;
        EXPECT_EQ(about.act(7), E_INVALIDARG);
        EXPECT_EQ(about.act(-1), E_INVALIDARG);
        when_open({VK_ESCAPE});
        EXPECT_EQ(about.act(6), S_OK);
        EXPECT_TRUE(shown.empty()) << "nobody waits for the menu";
        ui_test::pump();
        EXPECT_EQ(shown.size(), 2u);
        bar->DestroyWindow();
        LONG count = 0;
        EXPECT_EQ(about->get_accChildCount(&count), CO_E_OBJNOTCONNECTED);
    }
    ::CoUninitialize();
}
