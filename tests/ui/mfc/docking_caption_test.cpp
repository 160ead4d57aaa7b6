// Captions of docked panes: height, buttons, focus, menu.
#include "docking_fixture.h"

using namespace docking;

namespace {

/// What the screen shows of a caption, left of its text.
COLORREF caption_color(const CWnd& pane) {
    pane.SendMessage(WM_NCPAINT, 1);
    HDC const dc = ::GetWindowDC(pane.m_hWnd);
    const COLORREF color = ::GetPixel(dc, 2, 2);
    ::ReleaseDC(pane.m_hWnd, dc);
    return color;
}

}  // namespace

TEST_F(Docking, the_caption_of_the_pane_with_the_focus_stands_out) {
    Pane& one = docked(L"one", AFX_IDW_DOCKBAR_LEFT);
    Pane& two = docked(L"two", AFX_IDW_DOCKBAR_RIGHT);
    CEdit inside;
    inside.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 50, 20), &two, 1);
    one.SetFocus();
    ui_test::pump();
    const COLORREF active = caption_color(one), quiet = caption_color(two);
    EXPECT_NE(active, quiet);
    inside.SetFocus();
    idle();
    ui_test::pump();
    HDC const dc = ::GetWindowDC(one.m_hWnd);
    EXPECT_EQ(::GetPixel(dc, 2, 2), quiet);
    ::ReleaseDC(one.m_hWnd, dc);
    HDC const other = ::GetWindowDC(two.m_hWnd);
    EXPECT_EQ(::GetPixel(other, 2, 2), active);
    ::ReleaseDC(two.m_hWnd, other);
}

TEST_F(Docking, the_menu_of_a_caption_floats_docks_and_hides) {
    Pane& pane = docked(L"one", AFX_IDW_DOCKBAR_LEFT);
    const auto choose = [&](int item) {
        ui_test::when_window([](HWND window) { return ::GetClassLongW(window, GCW_ATOM) == 32768; },
                             [&pane, item](HWND) {
                                 for (int i = 0; i < item; ++i) pane.PostMessage(WM_KEYDOWN, VK_DOWN);
                                 pane.PostMessage(WM_KEYDOWN, VK_RETURN);
                             });
        const CPoint at_ = pane.IsFloating() ? caption_of(*pane.GetParentMiniFrame()) : caption_of(pane);
        CWnd& window = pane.IsFloating() ? static_cast<CWnd&>(*pane.GetParentMiniFrame()) : pane;
        window.SendMessage(WM_CONTEXTMENU, reinterpret_cast<WPARAM>(window.m_hWnd), MAKELPARAM(at_.x, at_.y));
    };
    choose(1);
    EXPECT_TRUE(pane.IsFloating());
    choose(2);
    EXPECT_TRUE(pane.IsDocked());
    EXPECT_EQ(at(pane), CRect(0, 0, 150, 500));
    choose(3);
    EXPECT_FALSE(pane.IsVisible());
    EXPECT_EQ(pane.closes, 1);
}

TEST_F(Docking, the_caption_takes_its_height_off_the_client_area) {
    Pane& pane = docked(L"one", AFX_IDW_DOCKBAR_LEFT);
    CRect client;
    pane.GetClientRect(&client);
    EXPECT_GT(pane.GetCaptionHeight(), 10);
    EXPECT_EQ(client.Height(), 500 - pane.GetCaptionHeight());
    pane.EnableGripper(FALSE);
    pane.GetClientRect(&client);
    EXPECT_EQ(pane.GetCaptionHeight(), 0);
    EXPECT_EQ(client.Height(), 500);
}

TEST_F(Docking, the_caption_is_hit_as_client_area_and_tells_its_parts) {
    Pane& pane = docked(L"one", AFX_IDW_DOCKBAR_LEFT);
    const CPoint caption = caption_of(pane);
    EXPECT_EQ(pane.HitTest(caption, TRUE), HTCAPTION);
    EXPECT_EQ(pane.HitTest(caption, FALSE), HTNOWHERE);
    EXPECT_EQ(pane.SendMessage(WM_NCHITTEST, 0, MAKELPARAM(caption.x, caption.y)), HTCLIENT);
    const CMFCCaptionButton* close = pane.FindButtonByHit(AFX_HTCLOSE);
    ASSERT_NE(close, nullptr);
    const CPoint on = on_screen(pane).TopLeft() + close->GetRect().CenterPoint();
    EXPECT_EQ(pane.FindButton(on), close);
    EXPECT_EQ(pane.HitTest(on, TRUE), AFX_HTCLOSE);
    EXPECT_EQ(pane.FindButton(caption), nullptr);
    // Nothing but the close button can be used here.
    EXPECT_TRUE(pane.FindButtonByHit(AFX_HTMAXBUTTON)->GetRect().IsRectEmpty());
    EXPECT_TRUE(pane.FindButtonByHit(AFX_HTMENU)->GetRect().IsRectEmpty());
}

TEST_F(Docking, a_pane_that_cannot_close_has_no_close_button) {
    Pane& pane = docked(L"one", AFX_IDW_DOCKBAR_LEFT);
    pane.SetControlBarStyle(AFX_CBRS_FLOAT);
    pane.SetPaneStyle(pane.GetPaneStyle() ^ CBRS_TOOLTIPS);
    EXPECT_TRUE(pane.FindButtonByHit(AFX_HTCLOSE)->GetRect().IsRectEmpty());
    CDockablePane::m_bHideDisabledButtons = FALSE;
    pane.SetPaneStyle(pane.GetPaneStyle() ^ CBRS_TOOLTIPS);
    EXPECT_FALSE(pane.FindButtonByHit(AFX_HTCLOSE)->GetRect().IsRectEmpty());
    const CPoint on = on_screen(pane).TopLeft() + pane.FindButtonByHit(AFX_HTCLOSE)->GetRect().CenterPoint();
    press(pane, on);
    EXPECT_EQ(::GetCapture(), nullptr);
    CDockablePane::m_bHideDisabledButtons = TRUE;
}

TEST_F(Docking, the_menu_button_shows_when_the_manager_wants_it) {
    CDockingManager::EnableDockSiteMenu();
    Pane& pane = docked(L"one", AFX_IDW_DOCKBAR_LEFT);
    CDockingManager::EnableDockSiteMenu(FALSE);
    EXPECT_FALSE(pane.FindButtonByHit(AFX_HTMENU)->GetRect().IsRectEmpty());
}

TEST_F(Docking, the_close_button_hides_the_pane_when_it_is_let_go_on_it) {
    Pane& pane = docked(L"one", AFX_IDW_DOCKBAR_LEFT);
    const CPoint close =
        on_screen(pane).TopLeft() + pane.FindButtonByHit(AFX_HTCLOSE)->GetRect().CenterPoint();
    press(pane, close);
    EXPECT_EQ(::GetCapture(), pane.m_hWnd);
    EXPECT_TRUE(pane.FindButtonByHit(AFX_HTCLOSE)->m_bPushed);
    move(close - CSize(60, 0));
    EXPECT_FALSE(pane.FindButtonByHit(AFX_HTCLOSE)->m_bPushed);
    release(close - CSize(60, 0));
    EXPECT_EQ(pane.closes, 0);
    EXPECT_TRUE(pane.IsVisible());
    press(pane, close);
    release(close);
    EXPECT_EQ(pane.closes, 1);
    EXPECT_FALSE(pane.IsVisible());
    EXPECT_EQ(at(view), CRect(0, 0, 700, 500));
}

TEST_F(Docking, a_button_is_hot_under_the_mouse_and_cold_again) {
    Pane& pane = docked(L"one", AFX_IDW_DOCKBAR_LEFT);
    CMFCCaptionButton& close = *pane.FindButtonByHit(AFX_HTCLOSE);
    const CPoint on = on_screen(pane).TopLeft() + close.GetRect().CenterPoint();
    send_mouse(pane.m_hWnd, WM_MOUSEMOVE, on, 0);
    EXPECT_TRUE(close.m_bFocused);
    pane.SendMessage(WM_MOUSELEAVE);
    EXPECT_FALSE(close.m_bFocused);
}

TEST_F(Docking, pressing_the_caption_gives_the_pane_the_focus) {
    Pane& pane = docked(L"one", AFX_IDW_DOCKBAR_LEFT);
    view.SetFocus();
    press(pane, caption_of(pane));
    EXPECT_EQ(::GetFocus(), pane.m_hWnd);
    release(caption_of(pane));
    EXPECT_EQ(::GetCapture(), nullptr);
    EXPECT_TRUE(pane.IsDocked());
}
