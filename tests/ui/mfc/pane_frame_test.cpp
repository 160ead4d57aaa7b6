// A floating frame of one pane, to the pixel: its parts under the mouse, the step that starts a drag, its
// pane's exchange, hiding and showing, its least extent.
#include <afxglobals.h>

#include "docking_fixture.h"

using namespace docking;

namespace {

const CRect kPlace(300, 200, 520, 380);
constexpr int kEdge = 4, kCorner = 12;  // pixels at 96 dots an inch

class PaneFrame : public Docking {
protected:
    /// Floats alone in a frame.
    Pane& floating(const wchar_t* name = L"one", const CRect& place = kPlace) {
        Pane& pane = make(name, CSize(150, 120), CBRS_LEFT);
        frame->DockPane(&pane);
        EXPECT_TRUE(pane.FloatPane(place));
        return pane;
    }
    static LRESULT part(CPaneFrameWnd& mini, int x, int y) { return mini.HitTest(CPoint(x, y), TRUE); }
    static LRESULT asked(const CWnd& window, int x, int y) {
        return ::SendMessageW(window.m_hWnd, WM_NCHITTEST, 0, MAKELPARAM(x, y));
    }
    static CPoint step(int x, int y) { return CPoint(x, y); }
    const int across = ::GetSystemMetrics(SM_CXDRAG), down = ::GetSystemMetrics(SM_CYDRAG);
};

}  // namespace

TEST_F(PaneFrame, has_edges_corners_a_caption_and_an_inside) {
    Pane& pane = floating();
    CPaneFrameWnd& mini = *pane.GetParentMiniFrame();
    ASSERT_EQ(on_screen(mini), kPlace);
    ASSERT_EQ(afxGlobalData.scaled(4), 4);
    const int inside = kPlace.top + kEdge + mini.GetCaptionHeight();
    const struct {
        int x, y;
        LRESULT part;
    } rows[] = {
        {300, 290, HTLEFT},
        {303, 290, HTLEFT},
        {304, 290, HTCLIENT},
        {519, 290, HTRIGHT},
        {516, 290, HTRIGHT},
        {515, 290, HTCLIENT},
        {400, 200, HTTOP},
        {400, 203, HTTOP},
        {400, 204, HTCAPTION},
        {400, inside - 1, HTCAPTION},
        {400, inside, HTCLIENT},
        {400, 379, HTBOTTOM},
        {400, 376, HTBOTTOM},
        {400, 375, HTCLIENT},
        {300 + kCorner - 1, 200, HTTOPLEFT},
        {300 + kCorner, 200, HTTOP},
        {300, 200 + kCorner - 1, HTTOPLEFT},
        {300, 200 + kCorner, HTLEFT},
        {520 - kCorner, 200, HTTOPRIGHT},
        {520 - kCorner - 1, 200, HTTOP},
        {519, 380 - kCorner, HTBOTTOMRIGHT},
        {519, 380 - kCorner - 1, HTRIGHT},
        {300, 380 - kCorner, HTBOTTOMLEFT},
        {300, 380 - kCorner - 1, HTLEFT},
        {299, 290, HTNOWHERE},
        {520, 290, HTNOWHERE},
        {400, 199, HTNOWHERE},
        {400, 380, HTNOWHERE},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(part(mini, row.x, row.y), row.part) << row.x << "," << row.y;
        const bool isEdge = row.part >= HTLEFT && row.part <= HTBOTTOMRIGHT;
        EXPECT_EQ(asked(mini, row.x, row.y), isEdge ? row.part : HTCLIENT) << row.x << "," << row.y;
    }
    EXPECT_EQ(mini.HitTest(CPoint(400, 204), FALSE), HTCLIENT) << "captions don't count";
    CRect caption;
    mini.GetCaptionRect(caption);
    EXPECT_EQ(caption, CRect(kEdge, kEdge, 220 - kEdge, kEdge + mini.GetCaptionHeight()));
    EXPECT_EQ(at(pane), CRect(0, 0, 220 - 2 * kEdge, 180 - 2 * kEdge - mini.GetCaptionHeight()));
    EXPECT_EQ(on_screen(pane).TopLeft(), CPoint(304, inside));
    pane.SetControlBarStyle(AFX_CBRS_CLOSE);
    EXPECT_EQ(part(mini, 300, 290), HTCLIENT) << "of a pane whose size stays";
    EXPECT_EQ(part(mini, 400, 204), HTCAPTION);
}

TEST_F(PaneFrame, has_its_close_button_at_the_right_of_the_caption) {
    Pane& pane = floating();
    CPaneFrameWnd& mini = *pane.GetParentMiniFrame();
    const CMFCCaptionButton* const close = mini.FindButtonByHit(AFX_HTCLOSE);
    ASSERT_NE(close, nullptr);
    EXPECT_EQ(mini.FindButtonByHit(AFX_HTMENU), nullptr);
    const CRect there = close->GetRect() + kPlace.TopLeft();
    EXPECT_EQ(there.Size(), CMFCCaptionButton::GetSize());
    EXPECT_GT(there.left, kPlace.right - kEdge - 2 * there.Width());
    EXPECT_LE(there.right, kPlace.right - kEdge);
    EXPECT_EQ(mini.FindButton(there.CenterPoint()), close);
    EXPECT_EQ(mini.FindButton(there.TopLeft() - CSize(1, 0)), nullptr);
    EXPECT_EQ(mini.FindButton(there.BottomRight()), nullptr);
    EXPECT_EQ(part(mini, there.left, there.top), AFX_HTCLOSE);
    press(mini, there.CenterPoint());
    EXPECT_EQ(pane.closes, 0);
    move(there.CenterPoint() + CSize(0, 60));
    EXPECT_FALSE(close->m_bPushed);
    EXPECT_FALSE(close->m_bFocused);
    move(there.CenterPoint());
    EXPECT_TRUE(close->m_bPushed);
    EXPECT_TRUE(close->m_bFocused);
    release(there.CenterPoint() + CSize(0, 60));
    EXPECT_EQ(pane.closes, 0) << "let go elsewhere";
    EXPECT_EQ(::GetCapture(), nullptr);
    press(mini, there.CenterPoint());
    release(there.CenterPoint());
    EXPECT_EQ(pane.closes, 1);
    EXPECT_FALSE(pane.IsVisible());
}

TEST_F(PaneFrame, a_drag_begins_with_the_systems_distance) {
    Pane& pane = floating();
    CPaneFrameWnd& mini = *pane.GetParentMiniFrame();
    const CPoint from = caption_of(mini);
    for (const CPoint way : {step(across, 0), step(0, down), step(-across, 0), step(0, -down)}) {
        const CSize shorter(way.x - (way.x > 0) + (way.x < 0), way.y - (way.y > 0) + (way.y < 0));
        press(mini, from);
        EXPECT_TRUE(mini.IsCaptured());
        EXPECT_EQ(mini.GetHotPoint(), CPoint(from - kPlace.TopLeft()));
        move(from + shorter);
        EXPECT_FALSE(manager().is_dragging()) << way.x << "," << way.y;
        EXPECT_EQ(on_screen(mini), kPlace);
        move(from + CSize(way.x, way.y));
        EXPECT_TRUE(manager().is_dragging()) << way.x << "," << way.y;
        EXPECT_EQ(on_screen(mini).TopLeft(), kPlace.TopLeft() + CSize(way.x, way.y));
        key(VK_ESCAPE);
        EXPECT_FALSE(manager().is_dragging());
        EXPECT_EQ(on_screen(mini), kPlace);
    }
}

TEST_F(PaneFrame, a_docked_pane_is_torn_off_at_the_same_distance) {
    Pane& pane = docked(L"one", AFX_IDW_DOCKBAR_LEFT);
    const CPoint from = caption_of(pane);
    for (const CPoint way : {step(across, 0), step(0, down)}) {
        const CSize shorter(way.x - (way.x > 0), way.y - (way.y > 0));
        press(pane, from);
        move(from + shorter);
        EXPECT_FALSE(pane.IsFloating()) << way.x << "," << way.y;
        move(from + CSize(way.x, way.y), 0);
        EXPECT_FALSE(pane.IsFloating()) << "the button isn't down";
        move(from + CSize(way.x, way.y));
        EXPECT_TRUE(pane.IsFloating()) << way.x << "," << way.y;
        key(VK_ESCAPE);
        ui_test::pump();
        if (::GetCapture() != nullptr) ::ReleaseCapture();
        if (pane.IsFloating()) pane.DockToRecentPos();
        ASSERT_TRUE(pane.IsDocked());
    }
}

TEST_F(PaneFrame, finds_its_pane_near_a_point) {
    Pane& pane = floating();
    CPaneFrameWnd& mini = *pane.GetParentMiniFrame();
    EXPECT_EQ(mini.PaneFromPoint(CPoint(300, 200), 0), &pane);
    EXPECT_EQ(mini.PaneFromPoint(CPoint(519, 379), 0), &pane);
    EXPECT_EQ(mini.PaneFromPoint(CPoint(299, 290), 0), nullptr);
    EXPECT_EQ(mini.PaneFromPoint(CPoint(520, 290), 0), nullptr);
    EXPECT_EQ(mini.PaneFromPoint(CPoint(293, 290), 7), &pane);
    EXPECT_EQ(mini.PaneFromPoint(CPoint(292, 290), 7), nullptr);
    EXPECT_EQ(mini.PaneFromPoint(CPoint(400, 193), 7), &pane);
    EXPECT_EQ(mini.PaneFromPoint(CPoint(400, 192), 7), nullptr);
    EXPECT_EQ(mini.PaneFromPoint(CPoint(400, 300), 0, TRUE), &pane);
    pane.ShowPane(FALSE, FALSE, FALSE);
    EXPECT_EQ(mini.PaneFromPoint(CPoint(400, 300), 0, TRUE), nullptr);
    EXPECT_EQ(mini.PaneFromPoint(CPoint(400, 300), 0, FALSE), &pane);
    EXPECT_EQ(mini.GetFirstVisiblePane(), nullptr);
    EXPECT_EQ(mini.GetVisiblePaneCount(), 0);
    pane.ShowPane(TRUE, FALSE, FALSE);
    EXPECT_EQ(mini.GetFirstVisiblePane(), &pane);
    EXPECT_EQ(mini.GetVisiblePaneCount(), 1);
}

TEST_F(PaneFrame, hides_with_its_pane_and_comes_back_with_it) {
    Pane& pane = floating();
    CPaneFrameWnd& mini = *pane.GetParentMiniFrame();
    pane.ShowPane(FALSE, FALSE, FALSE);
    EXPECT_FALSE(mini.IsWindowVisible());
    EXPECT_EQ(pane.GetStyle() & WS_VISIBLE, 0U);
    pane.ShowPane(TRUE, FALSE, FALSE);
    EXPECT_TRUE(mini.IsWindowVisible());
    EXPECT_TRUE(pane.IsWindowVisible());
}

TEST_F(PaneFrame, takes_another_pane_in_place_of_its_own) {
    Pane &one = floating(), &two = make(L"two", CSize(90, 80), CBRS_LEFT), &third = make(L"third");
    CPaneFrameWnd& mini = *one.GetParentMiniFrame();
    mini.ReplacePane(&third, &two);
    EXPECT_EQ(mini.GetPane(), &one) << "the other isn't in it";
    mini.ReplacePane(&one, &two);
    EXPECT_EQ(mini.GetPane(), &two);
    EXPECT_EQ(mini.GetPaneCount(), 1);
    EXPECT_EQ(two.GetParent(), &mini);
    EXPECT_EQ(one.GetParent(), frame);
    EXPECT_EQ(one.GetStyle() & WS_VISIBLE, 0U);
    EXPECT_EQ(mini.GetCaptionText(), L"two");
    EXPECT_EQ(ui_test::text_of(mini.m_hWnd), L"two");
    CRect client;
    mini.GetClientRect(&client);
    EXPECT_EQ(at(two), client);
}

TEST_F(PaneFrame, ends_once_its_pane_is_gone) {
    Pane &one = floating(), &two = make(L"two", CSize(90, 80), CBRS_LEFT);
    CPaneFrameWnd* const mini = one.GetParentMiniFrame();
    const HWND window = mini->m_hWnd;
    mini->RemovePane(&two);
    EXPECT_EQ(mini->GetPane(), &one);
    mini->RemoveNonValidPanes();
    EXPECT_EQ(mini->GetPane(), &one) << "it is still there";
    EXPECT_TRUE(::IsWindowVisible(window));
    mini->RemovePane(&one);
    EXPECT_TRUE(::IsWindow(window)) << "its own handlers may be at work";
    EXPECT_FALSE(::IsWindowVisible(window));
    EXPECT_EQ(manager().GetMiniFrames().GetCount(), 0);
    EXPECT_EQ(one.GetParent(), frame);
    ui_test::pump();
    EXPECT_FALSE(::IsWindow(window));
    two.FloatPane(kPlace);
    const HWND second = two.GetParentMiniFrame()->m_hWnd;
    two.GetParentMiniFrame()->RemovePane(&two, TRUE);
    EXPECT_FALSE(::IsWindow(second)) << "at once";
}

TEST_F(PaneFrame, is_as_small_as_edges_caption_and_pane_allow) {
    Pane& pane = floating();
    CPaneFrameWnd& mini = *pane.GetParentMiniFrame();
    pane.SetMinSize(CSize(71, 53));
    MINMAXINFO info = {};
    mini.SendMessage(WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&info));
    EXPECT_EQ(CPoint(info.ptMinTrackSize), CPoint(2 * kEdge + 71, 2 * kEdge + mini.GetCaptionHeight() + 53));
    pane.SetMinSize(CSize(1, 0));
    mini.SendMessage(WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&info));
    EXPECT_EQ(CPoint(info.ptMinTrackSize),
              CPoint(2 * kEdge + 2 * CMFCCaptionButton::GetSize().cx, 2 * kEdge + mini.GetCaptionHeight()));
}

TEST_F(PaneFrame, a_double_click_on_the_caption_docks_again) {
    Pane& pane = floating();
    const CPaneFrameWnd& mini = *pane.GetParentMiniFrame();
    EXPECT_TRUE(mini.CanBeAttached());
    send_mouse(mini.m_hWnd, WM_LBUTTONDBLCLK, CPoint(400, 300), MK_LBUTTON);
    EXPECT_TRUE(pane.IsFloating()) << "inside nothing happens";
    pane.EnableDocking(0);
    send_mouse(mini.m_hWnd, WM_LBUTTONDBLCLK, caption_of(mini), MK_LBUTTON);
    EXPECT_TRUE(pane.IsFloating()) << "it docks nowhere";
    pane.EnableDocking(CBRS_ALIGN_ANY);
    send_mouse(mini.m_hWnd, WM_LBUTTONDBLCLK, caption_of(mini), MK_LBUTTON);
    EXPECT_TRUE(pane.IsDocked());
    EXPECT_EQ(at(pane), CRect(0, 0, 150, 500));
}

TEST_F(PaneFrame, remembers_where_it_is) {
    Pane& pane = floating();
    CPaneFrameWnd& mini = *pane.GetParentMiniFrame();
    const CRect moved(310, 220, 560, 420);
    mini.SetWindowPos(nullptr, moved.left, moved.top, moved.Width(), moved.Height(),
                      SWP_NOZORDER | SWP_NOACTIVATE);
    EXPECT_EQ(pane.m_recentDockInfo.m_rectRecentFloatingRect, moved);
    pane.DockToRecentPos();
    pane.FloatPane(CRect(0, 0, 0, 0));
    EXPECT_EQ(on_screen(*pane.GetParentMiniFrame()), moved);
}
