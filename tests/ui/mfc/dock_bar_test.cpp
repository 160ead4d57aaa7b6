// A toolbar that docks: its buttons, sizes, states, what the mouse and the keyboard do, and its look.
#include "docking_bars_fixture.h"

using namespace docking;

BEGIN_MESSAGE_MAP(BarsFrame, Frame)
    ON_COMMAND_RANGE(kNew, kCut, &BarsFrame::OnCommandOf)
    ON_UPDATE_COMMAND_UI(kOpen, &BarsFrame::OnUpdateOpen)
    ON_UPDATE_COMMAND_UI(kCut, &BarsFrame::OnUpdateCut)
END_MESSAGE_MAP()

class DockBar : public DockingBars {
protected:
    /// What a window shows at a point of the screen.
    static COLORREF pixel(CWnd& window, CPoint screen) {
        window.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
        CPoint point(screen);
        window.ScreenToClient(&point);
        CClientDC dc(&window);
        return dc.GetPixel(point);
    }
    static CPoint corner_of(const CMFCToolBar& bar, int index) {
        CRect rect;
        bar.GetItemRect(index, &rect);
        CPoint point = rect.TopLeft() + CSize(2, 2);
        bar.ClientToScreen(&point);
        return point;
    }
};

TEST_F(DockBar, a_resource_gives_buttons_gaps_and_sizes) {
    CMFCToolBar& bar = make_bar();
    ASSERT_EQ(bar.GetCount(), 4);
    EXPECT_EQ(bar.GetItemID(0), kNew);
    EXPECT_EQ(bar.GetItemID(1), kOpen);
    EXPECT_EQ(bar.GetItemID(2), static_cast<UINT>(ID_SEPARATOR));
    EXPECT_EQ(bar.GetItemID(3), kCut);
    EXPECT_EQ(bar.GetButton(3)->GetImage(), 2);
    EXPECT_TRUE(bar.GetButton(2)->IsSeparator());
    EXPECT_EQ(bar.CommandToIndex(kCut), 3);
    EXPECT_EQ(bar.CommandToIndex(kNew, 1), -1);
    EXPECT_EQ(bar.CommandToIndex(ID_SEPARATOR), -1);
    EXPECT_EQ(bar.GetImageSize(), CSize(8, 8));
    EXPECT_EQ(bar.GetButtonSize(), CSize(15, 15));
    EXPECT_EQ(bar.images().GetCount(), 3);
    // Gripper, three buttons, a gap and the borders.
    EXPECT_EQ(bar.CalcFixedLayout(FALSE, TRUE), CSize(1 + 8 + 3 * 15 + 7 + 1, 17));
    EXPECT_EQ(bar.CalcFixedLayout(FALSE, FALSE), CSize(17, 1 + 8 + 3 * 15 + 7 + 1));
}

TEST_F(DockBar, resources_that_are_damaged_or_missing_leave_the_bar_as_it_is) {
    CMFCToolBar& bar = make_bar();
    EXPECT_FALSE(bar.LoadToolBar(441));  // more buttons than numbers
    EXPECT_FALSE(bar.LoadToolBar(443));  // no bitmap
    EXPECT_FALSE(bar.LoadToolBar(9999));
    EXPECT_FALSE(bar.LoadBitmap(9999));
    EXPECT_FALSE(bar.SetButtons(nullptr, 2));
    EXPECT_FALSE(bar.SetButtons(nullptr, -1));
    EXPECT_EQ(bar.GetCount(), 4);
    EXPECT_EQ(bar.GetImageSize(), CSize(8, 8));
    EXPECT_EQ(bar.images().GetImageSize(), CSize(8, 8));
    EXPECT_EQ(bar.images().GetCount(), 3);
}

TEST_F(DockBar, places_without_a_button_are_answered_and_changed_harmlessly) {
    CMFCToolBar& bar = make_bar();
    for (const int wrong : {-1, 4, 1000}) {
        EXPECT_EQ(bar.GetButton(wrong), nullptr);
        EXPECT_EQ(bar.GetItemID(wrong), static_cast<UINT>(ID_SEPARATOR));
        EXPECT_EQ(bar.GetButtonStyle(wrong), TBBS_SEPARATOR);
        EXPECT_TRUE(bar.GetButtonText(wrong).IsEmpty());
        EXPECT_FALSE(bar.SetButtonText(wrong, L"text"));
        EXPECT_FALSE(bar.RemoveButton(wrong));
        bar.SetButtonStyle(wrong, TBBS_CHECKED);
        bar.SetButtonInfo(wrong, 1, 0, 0);
        CRect rect(1, 2, 3, 4);
        bar.GetItemRect(wrong, &rect);
        EXPECT_TRUE(rect.IsRectEmpty());
    }
    EXPECT_EQ(bar.InsertButton(CMFCToolBarButton(5, 0), 6), -1);
    EXPECT_EQ(bar.InsertButton(CMFCToolBarButton(5, 0), -2), -1);
    EXPECT_EQ(bar.InsertButton(static_cast<CMFCToolBarButton*>(nullptr)), -1);
    EXPECT_EQ(bar.GetCount(), 4);
}

TEST_F(DockBar, buttons_are_inserted_and_removed_and_gaps_never_double) {
    CMFCToolBar& bar = docked_bar();
    const int before = in_frame(bar).Width();
    EXPECT_EQ(bar.InsertButton(CMFCToolBarButton(kUnhandled, 1), 1), 1);
    EXPECT_EQ(bar.GetItemID(1), kUnhandled);
    EXPECT_EQ(bar.GetItemID(2), kOpen);
    EXPECT_EQ(in_frame(bar).Width(), before + 15);
    EXPECT_EQ(bar.InsertSeparator(4), -1);
    EXPECT_EQ(bar.InsertSeparator(0), -1);
    EXPECT_EQ(bar.InsertSeparator(), 5);
    EXPECT_EQ(bar.InsertSeparator(), -1);
    EXPECT_TRUE(bar.RemoveButton(5));
    EXPECT_TRUE(bar.RemoveButton(1));
    EXPECT_EQ(bar.GetCount(), 4);
    EXPECT_EQ(in_frame(bar).Width(), before);
    bar.RemoveAllButtons();
    EXPECT_EQ(bar.GetCount(), 0);
}

TEST_F(DockBar, a_text_makes_its_button_wider_in_a_row_and_not_in_a_column) {
    CMFCToolBar& bar = docked_bar();
    const CSize row = bar.CalcFixedLayout(FALSE, TRUE), column = bar.CalcFixedLayout(FALSE, FALSE);
    EXPECT_TRUE(bar.SetButtonText(0, L"A rather long text"));
    EXPECT_EQ(bar.GetButtonText(0), L"A rather long text");
    EXPECT_GT(bar.CalcFixedLayout(FALSE, TRUE).cx, row.cx + 50);
    EXPECT_EQ(bar.CalcFixedLayout(FALSE, FALSE).cx, column.cx);
    EXPECT_TRUE(bar.SetButtonText(0, L""));
    EXPECT_EQ(bar.CalcFixedLayout(FALSE, TRUE), row);
}

TEST_F(DockBar, a_click_sends_the_command_and_a_press_that_is_dragged_off_does_not) {
    CMFCToolBar& bar = docked_bar();
    click(bar, 0);
    EXPECT_EQ(bars_frame().commands, std::vector<UINT>{kNew});
    press(bar, button_of(bar, 1));
    EXPECT_TRUE(bar.GetButton(1)->IsPressed());
    EXPECT_EQ(bar.GetPressedButton(), 1);
    move(button_of(bar, 3));
    EXPECT_FALSE(bar.GetButton(1)->IsPressed());
    EXPECT_FALSE(bar.GetButton(3)->IsPressed());
    move(button_of(bar, 1));
    EXPECT_TRUE(bar.GetButton(1)->IsPressed());
    move(button_of(bar, 3));
    release(button_of(bar, 3));
    ui_test::pump();
    EXPECT_EQ(bars_frame().commands.size(), 1u);
    EXPECT_EQ(bar.GetPressedButton(), -1);
    EXPECT_EQ(::GetCapture(), nullptr);
}

TEST_F(DockBar, a_press_ends_without_a_command_when_something_takes_the_mouse) {
    CMFCToolBar& bar = docked_bar();
    press(bar, button_of(bar, 0));
    view.SetCapture();
    EXPECT_FALSE(bar.GetButton(0)->IsPressed());
    ::ReleaseCapture();
    send_mouse(bar.m_hWnd, WM_LBUTTONUP, button_of(bar, 0), 0);
    press(bar, button_of(bar, 0));
    bar.SendMessage(WM_CANCELMODE);
    EXPECT_EQ(::GetCapture(), nullptr);
    EXPECT_EQ(bar.GetPressedButton(), -1);
    ui_test::pump();
    EXPECT_TRUE(bars_frame().commands.empty());
}

TEST_F(DockBar, states_come_from_the_commands_while_the_program_is_idle) {
    CMFCToolBar& bar = docked_bar();
    bars_frame().openEnabled = FALSE;
    bars_frame().cutCheck = 1;
    bar.InsertButton(CMFCToolBarButton(kUnhandled, 0));
    bar.SendMessage(WM_IDLEUPDATECMDUI, TRUE);
    EXPECT_TRUE(bar.GetButton(0)->IsEnabled());
    EXPECT_FALSE(bar.GetButton(1)->IsEnabled());
    EXPECT_TRUE(bar.GetButton(3)->IsChecked());
    EXPECT_FALSE(bar.GetButton(4)->IsEnabled());
    bars_frame().openEnabled = TRUE;
    bars_frame().cutCheck = 2;
    bar.SendMessage(WM_IDLEUPDATECMDUI, TRUE);
    EXPECT_TRUE(bar.GetButton(1)->IsEnabled());
    EXPECT_FALSE(bar.GetButton(3)->IsChecked());
    EXPECT_NE(bar.GetButtonStyle(3) & TBBS_INDETERMINATE, 0u);
}

TEST_F(DockBar, a_disabled_button_does_nothing_and_is_let_go_when_it_becomes_one) {
    CMFCToolBar& bar = docked_bar();
    press(bar, button_of(bar, 1));
    bars_frame().openEnabled = FALSE;
    bar.SendMessage(WM_IDLEUPDATECMDUI, TRUE);
    EXPECT_FALSE(bar.GetButton(1)->IsPressed());
    release(button_of(bar, 1));
    press(bar, button_of(bar, 1));
    EXPECT_EQ(::GetCapture(), nullptr);
    send_mouse(bar.m_hWnd, WM_MOUSEMOVE, button_of(bar, 1), 0);
    EXPECT_EQ(bar.GetHighlightedButton(), -1);
    press(bar, button_of(bar, 2));
    EXPECT_EQ(::GetCapture(), nullptr);
    ui_test::pump();
    EXPECT_TRUE(bars_frame().commands.empty());
}

TEST_F(DockBar, the_button_under_the_mouse_is_hot_and_its_text_goes_to_the_frame) {
    CMFCToolBar& bar = docked_bar();
    send_mouse(bar.m_hWnd, WM_MOUSEMOVE, button_of(bar, 1), 0);
    EXPECT_EQ(bar.GetHighlightedButton(), 1);
    send_mouse(bar.m_hWnd, WM_MOUSEMOVE, button_of(bar, 2), 0);
    EXPECT_EQ(bar.GetHighlightedButton(), -1);
    send_mouse(bar.m_hWnd, WM_MOUSEMOVE, button_of(bar, 0), 0);
    bar.SendMessage(WM_MOUSELEAVE);
    EXPECT_EQ(bar.GetHighlightedButton(), -1);
    const UINT rest = AFX_IDS_IDLEMESSAGE;
    EXPECT_EQ(bars_frame().messages, (std::vector<UINT>{kOpen, rest, rest, kNew, rest, rest}));
}

TEST_F(DockBar, a_tip_is_the_second_line_of_the_commands_text) {
    CMFCToolBar& bar = docked_bar();
    TOOLINFOW tool = {};
    tool.cbSize = sizeof(tool);
    CPoint point = button_of(bar, 1);
    bar.ScreenToClient(&point);
    EXPECT_EQ(bar.OnToolHitTest(point, &tool), static_cast<INT_PTR>(kOpen));
    CRect rect;
    bar.GetItemRect(1, &rect);
    EXPECT_EQ(CRect(tool.rect), rect);
    EXPECT_EQ(bar.OnToolHitTest(CPoint(2, 5), nullptr), -1);
    NMTTDISPINFOW question = {};
    question.hdr.code = TTN_GETDISPINFOW;
    question.hdr.hwndFrom = bar.m_hWnd;
    question.hdr.idFrom = tool.uId;
    bar.SendMessage(WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&question));
    ASSERT_NE(question.lpszText, nullptr);
    EXPECT_STREQ(question.lpszText, L"Open thing");
}

TEST_F(DockBar, keys_go_from_button_to_button_press_and_leave) {
    CMFCToolBar& bar = docked_bar();
    bars_frame().openEnabled = FALSE;
    bar.SendMessage(WM_IDLEUPDATECMDUI, TRUE);
    bar.SetFocus();
    EXPECT_EQ(bar.GetHighlightedButton(), 0);
    const auto type = [&](WPARAM code) { bar.SendMessage(WM_KEYDOWN, code); };
    type(VK_RIGHT);
    EXPECT_EQ(bar.GetHighlightedButton(), 3);  // past the disabled one and the gap
    type(VK_RIGHT);
    EXPECT_EQ(bar.GetHighlightedButton(), 0);
    type(VK_LEFT);
    EXPECT_EQ(bar.GetHighlightedButton(), 3);
    type(VK_HOME);
    EXPECT_EQ(bar.GetHighlightedButton(), 0);
    type(VK_END);
    EXPECT_EQ(bar.GetHighlightedButton(), 3);
    type(VK_UP);
    EXPECT_EQ(bar.GetHighlightedButton(), 0);
    type(VK_DOWN);
    EXPECT_EQ(bar.GetHighlightedButton(), 3);
    type(VK_RETURN);
    type(VK_SPACE);
    ui_test::pump();
    EXPECT_EQ(bars_frame().commands, (std::vector<UINT>{kCut, kCut}));
    type(VK_ESCAPE);
    EXPECT_NE(::GetFocus(), bar.m_hWnd);
    EXPECT_EQ(bar.GetHighlightedButton(), -1);
}

TEST_F(DockBar, hot_pressed_and_checked_buttons_are_told_apart_from_others) {
    CMFCToolBar& bar = docked_bar();
    const COLORREF plain = pixel(bar, corner_of(bar, 0));
    EXPECT_EQ(plain, afxGlobalData.clrBarFace);
    send_mouse(bar.m_hWnd, WM_MOUSEMOVE, button_of(bar, 0), 0);
    const COLORREF hot = pixel(bar, corner_of(bar, 0));
    press(bar, button_of(bar, 0));
    const COLORREF pressed = pixel(bar, corner_of(bar, 0));
    release(button_of(bar, 0));
    bar.SendMessage(WM_MOUSELEAVE);
    EXPECT_NE(hot, plain);
    EXPECT_NE(pressed, plain);
    EXPECT_NE(pressed, hot);
    bar.SetButtonStyle(0, TBBS_CHECKBOX | TBBS_CHECKED);
    EXPECT_NE(pixel(bar, corner_of(bar, 0)), plain);
    EXPECT_EQ(pixel(bar, corner_of(bar, 1)), plain);
}

TEST_F(DockBar, pictures_stand_in_the_middle_and_are_grey_where_disabled) {
    CMFCToolBar& bar = docked_bar();
    const COLORREF red = pixel(bar, button_of(bar, 0));
    EXPECT_GT(GetRValue(red), 200);
    EXPECT_LT(GetGValue(red), 60);
    bar.SetButtonStyle(0, TBBS_DISABLED);
    const COLORREF grey = pixel(bar, button_of(bar, 0));
    EXPECT_LE(std::abs(GetRValue(grey) - GetGValue(grey)), 20);
    EXPECT_NE(grey, red);
}

TEST_F(DockBar, another_bitmap_exchanges_the_pictures_and_not_the_buttons) {
    CMFCToolBar& bar = docked_bar();
    const CRect before = in_frame(bar);
    EXPECT_TRUE(bar.LoadBitmap(450));
    EXPECT_EQ(bar.images().GetCount(), 3);
    EXPECT_EQ(bar.GetCount(), 4);
    EXPECT_EQ(in_frame(bar), before);
}
