// The floating frame of a single pane: what it says of its pane, what its look is asked to draw, what the
// mouse does on its buttons.
#include <afxvisualmanager.h>

#include "docking_fixture.h"
#include "told_mouse.h"

using namespace docking;

namespace {

/// Notes what is drawn of frames and captions.
class NotingLook : public CMFCVisualManager {
    DECLARE_DYNCREATE(NotingLook)
public:
    struct Border {
        CRect frame, sizes;
    };
    struct Caption {
        CRect rect;
        BOOL active;
    };
    struct Button {
        UINT hit;
        BOOL active, hot, pushed;
    };
    static inline std::vector<Border> borders;
    static inline std::vector<Caption> captions;
    static inline std::vector<Button> buttons;
    static void forget() { borders.clear(), captions.clear(), buttons.clear(); }

    void OnDrawMiniFrameBorder(CDC* dc, CPaneFrameWnd* frame, CRect rect, CRect sizes) override {
        borders.push_back({rect, sizes});
        CMFCVisualManager::OnDrawMiniFrameBorder(dc, frame, rect, sizes);
    }
    COLORREF OnFillMiniFrameCaption(CDC* dc, CRect rect, CPaneFrameWnd* frame, BOOL active) override {
        captions.push_back({rect, active});
        return CMFCVisualManager::OnFillMiniFrameCaption(dc, rect, frame, active);
    }
    void OnDrawCaptionButton(CDC* dc, CMFCCaptionButton* button, BOOL active, BOOL horizontal, BOOL maximized,
                             BOOL disabled, int image) override {
        buttons.push_back({button->GetHit(), active, button->m_bFocused, button->m_bPushed});
        CMFCVisualManager::OnDrawCaptionButton(dc, button, active, horizontal, maximized, disabled, image);
    }
};
IMPLEMENT_DYNCREATE(NotingLook, CMFCVisualManager)

/// A pane that says where its menu was wanted.
class MenuPane : public Pane {
public:
    std::vector<CPoint> menus;
    bool hasMenu = true;
    BOOL attaches = TRUE, accepts = TRUE;
    BOOL OnShowControlBarMenu(CPoint at) override {
        menus.push_back(at);
        return hasMenu;
    }
    BOOL CanBeAttached() const override { return attaches; }
    BOOL CanAcceptPane(const CBasePane*) const override { return accepts; }
};

class FloatingFrames : public Docking {
protected:
    FloatingFrames() {
        EXPECT_TRUE(pane.Create(L"alone", frame, CSize(150, 120), TRUE, kFirstId + 50,
                                WS_CHILD | WS_VISIBLE | CBRS_LEFT));
        pane.EnableDocking(CBRS_ALIGN_ANY);
        EXPECT_TRUE(pane.FloatPane(place));
        floating = pane.GetParentMiniFrame();
    }
    CMFCCaptionButton& button(LRESULT hit) const { return *floating->FindButtonByHit(hit); }
    /// The middle of a button on the screen.
    CPoint on(LRESULT hit) const {
        return on_screen(*floating).TopLeft() + button(hit).GetRect().CenterPoint();
    }
    /// The lower left corner of one.
    template <class Window>
    static CPoint below(const Window& window, const CMFCCaptionButton& one) {
        const CPoint corner = on_screen(window).TopLeft();
        return CPoint(corner.x + one.GetRect().left, corner.y + one.GetRect().bottom);
    }

    const CRect place{300, 200, 560, 420};
    ui_test::ToldMouse mouse;
    MenuPane pane;
    CPaneFrameWnd* floating = nullptr;
};

}  // namespace

TEST_F(FloatingFrames, has_the_pane_inside_of_border_and_caption) {
    ASSERT_NE(floating, nullptr);
    EXPECT_FALSE(floating->IsKindOf(RUNTIME_CLASS(CMultiPaneFrameWnd)));
    EXPECT_EQ(on_screen(*floating), place);
    CRect border, caption;
    floating->CalcBorderSize(border);
    EXPECT_EQ(border, CRect(4, 4, 4, 4));
    floating->GetCaptionRect(caption);
    EXPECT_EQ(caption, CRect(4, 4, place.Width() - 4, 4 + floating->GetCaptionHeight()));
    CRect inside = place;
    inside.DeflateRect(4, 4 + floating->GetCaptionHeight(), 4, 4);
    EXPECT_EQ(on_screen(pane), inside);
    EXPECT_EQ(floating->GetCaptionText(), L"alone");
    EXPECT_EQ(ui_test::text_of(floating->m_hWnd), L"alone");
    pane.SetWindowText(L"renamed");
    EXPECT_EQ(floating->GetCaptionText(), L"renamed");
}

TEST_F(FloatingFrames, grows_with_the_resolution) {
    const int former = afxGlobalData.m_nDpi;
    afxGlobalData.m_nDpi = 192;
    CRect border;
    floating->CalcBorderSize(border);
    afxGlobalData.m_nDpi = former;
    EXPECT_EQ(border, CRect(8, 8, 8, 8));
}

TEST_F(FloatingFrames, tells_of_its_pane) {
    EXPECT_EQ(floating->GetPaneCount(), 1);
    EXPECT_EQ(floating->GetPane(), &pane);
    EXPECT_EQ(floating->GetVisiblePaneCount(), 1);
    EXPECT_EQ(floating->GetFirstVisiblePane(), &pane);
    EXPECT_EQ(floating->PaneFromPoint(place.CenterPoint(), 0, TRUE), &pane);
    EXPECT_EQ(floating->PaneFromPoint(place.TopLeft() - CSize(3, 0), 0), nullptr);
    EXPECT_EQ(floating->PaneFromPoint(place.TopLeft() - CSize(3, 0), 5), &pane);
    EXPECT_EQ(floating->PaneFromPoint(place.TopLeft() - CSize(0, 8), 5), nullptr);
    EXPECT_EQ(floating->PaneFromPoint(place.BottomRight() + CSize(3, 3), 5), &pane);
    EXPECT_EQ(floating->PaneFromPoint(CPoint(place.right + 8, place.bottom), 5), nullptr);
    pane.ShowPane(FALSE, FALSE, FALSE);
    EXPECT_FALSE(floating->IsWindowVisible()) << "it hides with its pane";
    EXPECT_EQ(floating->GetVisiblePaneCount(), 0);
    EXPECT_EQ(floating->GetFirstVisiblePane(), nullptr);
    EXPECT_EQ(floating->PaneFromPoint(place.CenterPoint(), 0, TRUE), nullptr);
    EXPECT_EQ(floating->PaneFromPoint(place.CenterPoint(), 0, FALSE), &pane);
    pane.ShowPane(TRUE, FALSE, FALSE);
    EXPECT_TRUE(floating->IsWindowVisible());
    EXPECT_TRUE(pane.IsWindowVisible());
}

TEST_F(FloatingFrames, asks_its_pane_whether_it_joins_others) {
    Pane& other = docked(L"other", AFX_IDW_DOCKBAR_LEFT);
    EXPECT_TRUE(floating->CanBeAttached());
    pane.attaches = FALSE;
    EXPECT_FALSE(floating->CanBeAttached());
    MenuPane host;
    host.Create(L"host", frame, CSize(50, 50), TRUE, kFirstId + 60, WS_CHILD | CBRS_LEFT);
    EXPECT_TRUE(floating->CanBeDockedToPane(&host));
    host.accepts = FALSE;
    EXPECT_FALSE(floating->CanBeDockedToPane(&host));
    EXPECT_FALSE(floating->CanBeDockedToPane(nullptr));
    EXPECT_TRUE(other.IsDocked());
    CPaneFrameWnd empty;
    EXPECT_FALSE(empty.CanBeAttached());
    EXPECT_FALSE(empty.CanBeDockedToPane(&host));
    EXPECT_FALSE(empty.OnDockToRecentPos());
    EXPECT_EQ(empty.GetVisiblePaneCount(), 0);
    EXPECT_EQ(empty.FindButton(CPoint(0, 0)), nullptr);
}

TEST_F(FloatingFrames, takes_another_pane_in_the_place_of_its_own) {
    MenuPane other;
    other.Create(L"other", frame, CSize(50, 50), TRUE, kFirstId + 60, WS_CHILD | WS_VISIBLE | CBRS_LEFT);
    MenuPane stranger;
    stranger.Create(L"stranger", frame, CSize(50, 50), TRUE, kFirstId + 61, WS_CHILD | CBRS_LEFT);
    const CRect inside = on_screen(pane);
    floating->ReplacePane(&stranger, &other);
    EXPECT_EQ(floating->GetPane(), &pane) << "that one isn't in it";
    floating->ReplacePane(&pane, &other);
    EXPECT_EQ(floating->GetPane(), &other);
    EXPECT_EQ(other.GetParent(), floating);
    EXPECT_EQ(on_screen(other), inside);
    EXPECT_EQ(ui_test::text_of(floating->m_hWnd), L"other");
    EXPECT_EQ(pane.GetParent(), frame) << "the former one is a hidden child of the main frame";
    EXPECT_FALSE(pane.IsWindowVisible());
}

TEST_F(FloatingFrames, is_as_large_as_its_pane_wants) {
    CRect client;
    floating->SizeToContent();
    floating->GetClientRect(&client);
    EXPECT_EQ(client.Size(), pane.CalcFixedLayout(FALSE, TRUE));
    EXPECT_EQ(on_screen(*floating).TopLeft(), place.TopLeft());
    CPaneFrameWnd empty;
    empty.SizeToContent();
    EXPECT_EQ(empty.m_hWnd, nullptr);
}

TEST_F(FloatingFrames, remembers_where_it_floats) {
    const CRect moved(200, 150, 430, 390);
    floating->MoveWindow(moved);
    EXPECT_EQ(floating->GetRecentFloatingRect(), moved);
    EXPECT_EQ(pane.m_recentDockInfo.m_rectRecentFloatingRect, moved);
}

TEST_F(FloatingFrames, cannot_be_made_smaller_than_two_buttons) {
    pane.SetMinSize(CSize(10, 30));
    MINMAXINFO info = {};
    floating->SendMessage(WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&info));
    EXPECT_EQ(info.ptMinTrackSize.x, 8 + 2 * CMFCCaptionButton::GetSize().cx);
    EXPECT_EQ(info.ptMinTrackSize.y, 8 + floating->GetCaptionHeight() + 30);
    pane.SetMinSize(CSize(190, 30));
    floating->SendMessage(WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&info));
    EXPECT_EQ(info.ptMinTrackSize.x, 8 + 190);
}

TEST_F(FloatingFrames, is_hit_at_edges_corners_caption_and_buttons) {
    const auto hit = [&](int x, int y) { return floating->HitTest(CPoint(x, y), TRUE); };
    const CPoint middle = place.CenterPoint();
    EXPECT_EQ(hit(place.left, middle.y), HTLEFT);
    EXPECT_EQ(hit(place.right - 1, middle.y), HTRIGHT);
    EXPECT_EQ(hit(middle.x, place.top), HTTOP);
    EXPECT_EQ(hit(middle.x, place.bottom - 1), HTBOTTOM);
    EXPECT_EQ(hit(place.left + 11, place.top), HTTOPLEFT) << "the border and eight more";
    EXPECT_EQ(hit(place.left + 12, place.top), HTTOP);
    EXPECT_EQ(hit(place.right - 1, place.bottom - 1), HTBOTTOMRIGHT);
    EXPECT_EQ(hit(place.left + 4, middle.y), HTCLIENT);
    EXPECT_EQ(hit(place.left + 20, place.top + 6), HTCAPTION);
    EXPECT_EQ(floating->HitTest(CPoint(place.left + 20, place.top + 6), FALSE), HTCLIENT);
    EXPECT_EQ(hit(place.left - 1, middle.y), HTNOWHERE);
    EXPECT_EQ(floating->HitTest(on(AFX_HTCLOSE), TRUE), AFX_HTCLOSE);
    const auto told = [&](CPoint at) {
        return floating->SendMessage(WM_NCHITTEST, 0, MAKELPARAM(at.x, at.y));
    };
    EXPECT_EQ(told(on(AFX_HTCLOSE)), HTCLIENT);
    EXPECT_EQ(told(CPoint(place.left, middle.y)), HTLEFT);
    EXPECT_EQ(told(place.BottomRight() - CSize(1, 1)), HTBOTTOMRIGHT);
    EXPECT_EQ(told(CPoint(place.left + 20, place.top + 6)), HTCLIENT);
}

TEST_F(FloatingFrames, draws_border_caption_and_buttons) {
    CMFCVisualManager::SetDefaultManager(RUNTIME_CLASS(NotingLook));
    floating->SetCaptionButtons(AFX_CAPTION_BTN_CLOSE | AFX_CAPTION_BTN_MENU);
    NotingLook::forget();
    floating->RedrawWindow(nullptr, nullptr, RDW_FRAME | RDW_INVALIDATE | RDW_UPDATENOW);
    ASSERT_FALSE(NotingLook::borders.empty());
    EXPECT_EQ(NotingLook::borders[0].frame, CRect(CPoint(0, 0), place.Size()));
    EXPECT_EQ(NotingLook::borders[0].sizes, CRect(4, 4, 4, 4));
    ASSERT_FALSE(NotingLook::captions.empty());
    EXPECT_EQ(NotingLook::captions[0].rect, CRect(4, 4, place.Width() - 4, 4 + floating->GetCaptionHeight()));
    ASSERT_GE(NotingLook::buttons.size(), 2U);
    EXPECT_EQ(NotingLook::buttons[0].hit, static_cast<UINT>(AFX_HTCLOSE));
    EXPECT_EQ(NotingLook::buttons[1].hit, static_cast<UINT>(AFX_HTMENU));
    const auto drawn = [&](BOOL active) {
        NotingLook::forget();
        floating->SendMessage(WM_NCACTIVATE, active);
        floating->UpdateWindow();
        return !NotingLook::captions.empty() && NotingLook::captions.back().active == active &&
               NotingLook::buttons.back().active == active;
    };
    EXPECT_TRUE(drawn(TRUE));
    EXPECT_TRUE(drawn(FALSE));
    CMFCVisualManager::SetDefaultManager(nullptr);
}

TEST_F(FloatingFrames, has_the_buttons_that_it_is_given) {
    EXPECT_NE(floating->FindButtonByHit(AFX_HTCLOSE), nullptr);
    EXPECT_EQ(floating->FindButtonByHit(AFX_HTMENU), nullptr);
    floating->SetCaptionButtons(AFX_CAPTION_BTN_MENU);
    EXPECT_EQ(floating->FindButtonByHit(AFX_HTCLOSE), nullptr);
    ASSERT_NE(floating->FindButtonByHit(AFX_HTMENU), nullptr);
    EXPECT_TRUE(button(AFX_HTMENU).IsMiniFrameButton());
    floating->SetCaptionButtons(AFX_CAPTION_BTN_CLOSE | AFX_CAPTION_BTN_MENU);
    EXPECT_EQ(button(AFX_HTCLOSE).GetRect().Size(), CMFCCaptionButton::GetSize());
    EXPECT_GT(button(AFX_HTCLOSE).GetRect().left, button(AFX_HTMENU).GetRect().left);
    EXPECT_EQ(floating->FindButton(on(AFX_HTMENU)), &button(AFX_HTMENU));
}

TEST_F(FloatingFrames, the_menu_button_opens_the_panes_menu_below_itself) {
    floating->SetCaptionButtons(AFX_CAPTION_BTN_CLOSE | AFX_CAPTION_BTN_MENU);
    press(*floating, on(AFX_HTMENU));
    EXPECT_EQ(::GetCapture(), floating->m_hWnd);
    EXPECT_TRUE(button(AFX_HTMENU).m_bPushed);
    EXPECT_TRUE(pane.menus.empty()) << "not before it is let go";
    release(on(AFX_HTMENU));
    ASSERT_EQ(pane.menus.size(), 1U);
    EXPECT_EQ(pane.menus[0], below(*floating, button(AFX_HTMENU)));
    EXPECT_FALSE(button(AFX_HTMENU).m_bPushed);
    press(*floating, on(AFX_HTMENU));
    release(on(AFX_HTCLOSE));
    EXPECT_EQ(pane.menus.size(), 1U) << "let go on another";
    EXPECT_TRUE(pane.IsVisible());
}

TEST_F(FloatingFrames, a_double_click_on_a_button_presses_it_again) {
    send_mouse(floating->m_hWnd, WM_LBUTTONDBLCLK, on(AFX_HTCLOSE), MK_LBUTTON);
    EXPECT_TRUE(button(AFX_HTCLOSE).m_bPushed);
    EXPECT_TRUE(pane.IsFloating());
    release(on(AFX_HTCLOSE));
    ui_test::pump();
    EXPECT_FALSE(pane.IsVisible());
}

TEST_F(FloatingFrames, a_button_is_hot_until_the_mouse_has_left) {
    send_mouse(floating->m_hWnd, WM_MOUSEMOVE, on(AFX_HTCLOSE), 0);
    EXPECT_TRUE(button(AFX_HTCLOSE).m_bFocused);
    ASSERT_FALSE(mouse.askedForLeaving.empty());
    EXPECT_EQ(mouse.askedForLeaving.back(), floating->m_hWnd);
    floating->SendMessage(WM_MOUSELEAVE);
    EXPECT_FALSE(button(AFX_HTCLOSE).m_bFocused);
    mouse.askedForLeaving.clear();
    send_mouse(floating->m_hWnd, WM_MOUSEMOVE, place.CenterPoint(), 0);
    EXPECT_TRUE(mouse.askedForLeaving.empty()) << "nothing to cool down";
}

TEST_F(FloatingFrames, losing_the_mouse_lets_a_button_go) {
    press(*floating, on(AFX_HTCLOSE));
    floating->SendMessage(WM_CANCELMODE);
    EXPECT_EQ(::GetCapture(), nullptr);
    EXPECT_FALSE(button(AFX_HTCLOSE).m_bPushed);
    EXPECT_TRUE(pane.IsVisible());
    send_mouse(floating->m_hWnd, WM_LBUTTONUP, on(AFX_HTCLOSE), 0);
    EXPECT_TRUE(pane.IsVisible()) << "the press is forgotten";
}

TEST_F(FloatingFrames, while_one_button_is_pressed_others_stay_cold) {
    floating->SetCaptionButtons(AFX_CAPTION_BTN_CLOSE | AFX_CAPTION_BTN_MENU);
    press(*floating, on(AFX_HTCLOSE));
    move(on(AFX_HTMENU));
    EXPECT_FALSE(button(AFX_HTMENU).m_bFocused);
    EXPECT_FALSE(button(AFX_HTCLOSE).m_bPushed);
    move(on(AFX_HTCLOSE));
    EXPECT_TRUE(button(AFX_HTCLOSE).m_bPushed);
    floating->SendMessage(WM_CANCELMODE);
}

TEST_F(FloatingFrames, its_context_menu_is_the_panes) {
    floating->SendMessage(WM_CONTEXTMENU, reinterpret_cast<WPARAM>(floating->m_hWnd), MAKELPARAM(310, 210));
    ASSERT_EQ(pane.menus.size(), 1U);
    EXPECT_EQ(pane.menus[0], CPoint(310, 210));
}

TEST_F(FloatingFrames, the_focus_goes_on_to_the_pane) {
    class Focus : public MenuPane {
    public:
        BOOL may = TRUE;
        BOOL CanFocus() const override { return may; }
    };
    Focus other;
    other.Create(L"focus", frame, CSize(50, 50), TRUE, kFirstId + 70, WS_CHILD | WS_VISIBLE | CBRS_LEFT);
    other.FloatPane(CRect(100, 100, 250, 250));
    CPaneFrameWnd* const its = other.GetParentMiniFrame();
    ASSERT_NE(its, nullptr);
    its->SetFocus();
    EXPECT_EQ(::GetFocus(), other.m_hWnd);
    view.SetFocus();
    other.may = FALSE;
    its->SetFocus();
    EXPECT_EQ(::GetFocus(), its->m_hWnd);
}

TEST_F(FloatingFrames, escape_ends_a_drag_and_other_keys_do_not) {
    press(*floating, caption_of(*floating));
    EXPECT_TRUE(floating->IsCaptured());
    EXPECT_EQ(floating->GetHotPoint(), CPoint(40, 8));
    move(caption_of(*floating) + CSize(30, 30));
    EXPECT_TRUE(manager().is_dragging());
    MSG message = {floating->m_hWnd, WM_KEYDOWN, VK_SPACE, 1, 0, {}};
    EXPECT_FALSE(floating->PreTranslateMessage(&message));
    EXPECT_TRUE(manager().is_dragging());
    message.wParam = VK_ESCAPE;
    EXPECT_TRUE(floating->PreTranslateMessage(&message));
    EXPECT_FALSE(manager().is_dragging());
    EXPECT_EQ(on_screen(*floating), place);
    EXPECT_FALSE(floating->PreTranslateMessage(&message)) << "no drag, no use for it";
}

TEST_F(FloatingFrames, goes_when_its_pane_was_destroyed_by_others) {
    const HWND window = floating->m_hWnd;
    floating->RemoveNonValidPanes();
    EXPECT_TRUE(::IsWindow(window));
    EXPECT_EQ(floating->GetPaneCount(), 1);
    floating->RemovePane(&pane, TRUE);
    EXPECT_FALSE(::IsWindow(window)) << "at once";
    EXPECT_EQ(pane.GetParent(), frame);
}

TEST_F(FloatingFrames, the_menu_button_of_a_docked_caption_opens_below_itself) {
    CDockingManager::EnableDockSiteMenu();
    MenuPane other;
    other.Create(L"docked", frame, CSize(150, 150), TRUE, kFirstId + 80, WS_CHILD | WS_VISIBLE | CBRS_LEFT);
    other.EnableDocking(CBRS_ALIGN_ANY);
    frame->DockPane(&other, AFX_IDW_DOCKBAR_LEFT);
    CDockingManager::EnableDockSiteMenu(FALSE);
    CMFCCaptionButton* const menu = other.FindButtonByHit(AFX_HTMENU);
    ASSERT_NE(menu, nullptr);
    const CPoint middle = on_screen(other).TopLeft() + menu->GetRect().CenterPoint();
    press(other, middle);
    release(middle);
    ASSERT_EQ(other.menus.size(), 1U);
    EXPECT_EQ(other.menus[0], below(other, *menu));
    send_mouse(other.m_hWnd, WM_LBUTTONDBLCLK, middle, MK_LBUTTON);
    EXPECT_TRUE(menu->m_bPushed) << "the second of a fast pair presses it again";
    EXPECT_TRUE(other.IsDocked());
    other.SendMessage(WM_CANCELMODE);
    EXPECT_EQ(::GetCapture(), nullptr);
    EXPECT_FALSE(menu->m_bPushed);
    // The caption: held, then let go by Escape.
    press(other, caption_of(other));
    EXPECT_EQ(::GetCapture(), other.m_hWnd);
    MSG message = {other.m_hWnd, WM_KEYDOWN, VK_SPACE, 1, 0, {}};
    other.PreTranslateMessage(&message);
    EXPECT_EQ(::GetCapture(), other.m_hWnd);
    message.wParam = VK_ESCAPE;
    EXPECT_TRUE(other.PreTranslateMessage(&message));
    EXPECT_EQ(::GetCapture(), nullptr);
    send_mouse(other.m_hWnd, WM_MOUSEMOVE, caption_of(other) + CSize(40, 40), MK_LBUTTON);
    EXPECT_TRUE(other.IsDocked());
    other.hasMenu = false;
    other.DestroyWindow();
}
