// Control bars that dock: places and rows, floating frames, drags, what is shown, what goes when a bar does.
#include <afxadv.h>
#include <afxcmn.h>

#include <memory>
#include <vector>

#include "bars_frame.h"
#include "picture.h"

namespace {

using namespace bars;

constexpr UINT kFirstBar = AFX_IDW_CONTROLBAR_FIRST + 20;
constexpr int kGripper = 8;
// Four buttons of a resource: three of 15 by 15 pixels and a gap of 8.
constexpr int kLength = kGripper + 3 * 15 + 8, kThickness = 15;

class ControlBarDocking : public FrameBars {
protected:
    ~ControlBarDocking() override {
        for (auto& bar : bars)
            if (bar->m_hWnd != nullptr) bar->DestroyWindow();
    }
    CToolBar& make_bar(DWORD sides = CBRS_ALIGN_ANY, DWORD more = CBRS_SIZE_DYNAMIC) {
        bars.push_back(std::make_unique<CToolBar>());
        CToolBar& bar = *bars.back();
        const UINT id = kFirstBar + static_cast<UINT>(bars.size());
        EXPECT_TRUE(bar.CreateEx(frame, TBSTYLE_FLAT, WS_CHILD | WS_VISIBLE | CBRS_TOP | CBRS_GRIPPER | more,
                                 CRect(0, 0, 0, 0), id));
        EXPECT_TRUE(bar.LoadToolBar(440));
        bar.SetWindowText(L"Tools");
        bar.EnableDocking(sides);
        return bar;
    }
    CToolBar& docked_bar(UINT where = AFX_IDW_DOCKBAR_TOP) {
        frame->EnableDocking(CBRS_ALIGN_ANY);
        CToolBar& bar = make_bar();
        frame->DockControlBar(&bar, where);
        return bar;
    }
    CToolBar& floating_bar(CPoint corner = CPoint(300, 200)) {
        frame->EnableDocking(CBRS_ALIGN_ANY);
        CToolBar& bar = make_bar();
        frame->FloatControlBar(&bar, corner);
        return bar;
    }
    CWnd& dock_bar(UINT id) { return *frame->GetDlgItem(static_cast<int>(id)); }
    static CRect on_screen(const CWnd& window) {
        CRect rect;
        window.GetWindowRect(&rect);
        return rect;
    }
    static CMiniDockFrameWnd* mini_frame(const CControlBar& bar) {
        return DYNAMIC_DOWNCAST(CMiniDockFrameWnd, bar.GetParent()->GetParent());
    }
    CPoint on_frame(int x, int y) {
        CPoint point(x, y);
        frame->ClientToScreen(&point);
        return point;
    }
    static void mouse(CWnd& window, UINT message, CPoint screen, WPARAM keys = MK_LBUTTON) {
        window.ScreenToClient(&screen);
        window.SendMessage(message, keys, MAKELPARAM(screen.x, screen.y));
    }
    static CPoint handle_of(const CControlBar& bar) { return on_screen(bar).TopLeft() + CSize(3, 3); }
    /// What a drag does: the mouse belongs to the dock bar at the top.
    void press(CControlBar& bar) {
        mouse(bar, WM_LBUTTONDOWN, handle_of(bar));
        ASSERT_EQ(::GetCapture(), dock_bar(AFX_IDW_DOCKBAR_TOP).m_hWnd);
    }
    void move(CPoint screen, WPARAM keys = MK_LBUTTON) {
        mouse(dock_bar(AFX_IDW_DOCKBAR_TOP), WM_MOUSEMOVE, screen, keys);
    }
    void release(CPoint screen) {
        mouse(dock_bar(AFX_IDW_DOCKBAR_TOP), WM_LBUTTONUP, screen, 0);
        EXPECT_EQ(::GetCapture(), nullptr);
    }
    static void click_first(CToolBar& bar) {
        CRect button;
        bar.GetItemRect(0, &button);
        const LPARAM at = MAKELPARAM(button.CenterPoint().x, button.CenterPoint().y);
        bar.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, at);
        bar.SendMessage(WM_LBUTTONUP, 0, at);
    }
    bool escape() {
        MSG key = {view.m_hWnd, WM_KEYDOWN, VK_ESCAPE, 0, 0, {}};
        return CWnd::WalkPreTranslateTree(frame->m_hWnd, &key) != FALSE;
    }
    std::vector<std::unique_ptr<CToolBar>> bars;
};

TEST_F(ControlBarDocking, EachBarBeginsARowInsideOfTheOthers) {
    CToolBar& first = docked_bar();
    CToolBar& second = make_bar();
    frame->DockControlBar(&second);
    EXPECT_EQ(rectOf(first), CRect(0, 0, kLength, kThickness));
    EXPECT_EQ(rectOf(second), CRect(0, kThickness, kLength, 2 * kThickness));
    EXPECT_EQ(rectOf(view), CRect(0, 2 * kThickness, client.right, client.bottom));
    EXPECT_EQ(rectOf(dock_bar(AFX_IDW_DOCKBAR_TOP)), CRect(0, 0, client.right, 2 * kThickness));
}

TEST_F(ControlBarDocking, ARectangleBehindABarPutsTheNextOneBesideIt) {
    CToolBar& first = docked_bar();
    CToolBar& second = make_bar();
    CToolBar& third = make_bar();
    CRect beside = on_screen(first);
    beside.OffsetRect(1, 0);
    frame->DockControlBar(&second, AFX_IDW_DOCKBAR_TOP, &beside);
    EXPECT_EQ(rectOf(first), CRect(0, 0, kLength, kThickness));
    EXPECT_EQ(rectOf(second), CRect(kLength, 0, 2 * kLength, kThickness));
    // One that begins at the very place goes before it.
    CRect before = on_screen(first);
    frame->DockControlBar(&third, AFX_IDW_DOCKBAR_TOP, &before);
    EXPECT_EQ(rectOf(third).left, 0);
    EXPECT_EQ(rectOf(first).left, kLength);
    EXPECT_EQ(rectOf(second).left, 2 * kLength);
    EXPECT_EQ(rectOf(view).top, kThickness);
}

TEST_F(ControlBarDocking, ARectangleFarAlongTheRowIsWhereTheBarStands) {
    docked_bar();
    CToolBar& second = make_bar();
    CRect distant(on_frame(250, 2), CSize(60, 10));
    frame->DockControlBar(&second, AFX_IDW_DOCKBAR_TOP, &distant);
    EXPECT_EQ(rectOf(second), CRect(250, 0, 250 + kLength, kThickness));
}

TEST_F(ControlBarDocking, StandsAtEachEdgeUprightAtTheSides) {
    docked_bar(AFX_IDW_DOCKBAR_TOP);
    CToolBar& bottom = docked_bar(AFX_IDW_DOCKBAR_BOTTOM);
    CToolBar& left = docked_bar(AFX_IDW_DOCKBAR_LEFT);
    CToolBar& right = docked_bar(AFX_IDW_DOCKBAR_RIGHT);
    const int w = client.right, h = client.bottom;
    EXPECT_EQ(rectOf(bottom), CRect(0, h - kThickness, kLength, h));
    // The gap between buttons is one as high as a button is in this layout of the control.
    const int upright = rectOf(left).Height();
    EXPECT_GT(upright, 3 * 15 + kGripper);
    EXPECT_EQ(rectOf(left).TopLeft(), CPoint(0, kThickness));
    EXPECT_EQ(rectOf(left).Width(), 15);
    EXPECT_EQ(rectOf(right), CRect(w - 15, kThickness, w, kThickness + upright));
    EXPECT_EQ(rectOf(view), CRect(15, kThickness, w - 15, h - kThickness));
    CRect one, other;
    left.GetItemRect(0, &one);
    left.GetItemRect(3, &other);
    EXPECT_EQ(one.left, other.left);
    EXPECT_GT(other.top, one.bottom);
    EXPECT_EQ(left.GetBarStyle() & (CBRS_ALIGN_ANY | CBRS_BORDER_ANY), CBRS_ALIGN_LEFT);
    EXPECT_EQ(bottom.GetBarStyle() & (CBRS_ALIGN_ANY | CBRS_BORDER_ANY), CBRS_ALIGN_BOTTOM);
}

TEST_F(ControlBarDocking, RowsAtTheFarEdgesGoInwardsToo) {
    CToolBar& outer = docked_bar(AFX_IDW_DOCKBAR_BOTTOM);
    CToolBar& inner = make_bar();
    frame->DockControlBar(&inner, AFX_IDW_DOCKBAR_BOTTOM);
    EXPECT_EQ(rectOf(outer).bottom, client.bottom);
    EXPECT_EQ(rectOf(inner).bottom, client.bottom - kThickness);
}

TEST_F(ControlBarDocking, WithoutAWishTheFirstEdgeThatBothAllowIsTaken) {
    const DWORD sides[] = {CBRS_ALIGN_TOP, CBRS_ALIGN_BOTTOM, CBRS_ALIGN_LEFT, CBRS_ALIGN_RIGHT};
    const UINT ids[] = {AFX_IDW_DOCKBAR_TOP, AFX_IDW_DOCKBAR_BOTTOM, AFX_IDW_DOCKBAR_LEFT,
                        AFX_IDW_DOCKBAR_RIGHT};
    frame->EnableDocking(CBRS_ALIGN_ANY);
    DWORD allowed = CBRS_ALIGN_ANY;
    for (int i = 0; i < 4; ++i) {
        CToolBar& bar = make_bar(allowed);
        frame->DockControlBar(&bar);
        EXPECT_EQ(bar.GetParent()->GetDlgCtrlID(), static_cast<int>(ids[i])) << i;
        allowed &= ~sides[i];
    }
    frame->EnableDocking(CBRS_ALIGN_RIGHT);
    CToolBar& bar = make_bar();
    frame->DockControlBar(&bar);
    EXPECT_EQ(bar.GetParent()->GetDlgCtrlID(), static_cast<int>(AFX_IDW_DOCKBAR_RIGHT));
}

TEST_F(ControlBarDocking, ABarThatMayNotDockThereFloatsWhereItIs) {
    frame->EnableDocking(CBRS_ALIGN_TOP);
    CToolBar& bar = make_bar(CBRS_ALIGN_LEFT);
    bar.SetWindowPos(nullptr, 30, 40, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    const CPoint place = on_screen(bar).TopLeft();
    frame->DockControlBar(&bar, AFX_IDW_DOCKBAR_TOP);
    ASSERT_TRUE(bar.IsFloating());
    EXPECT_EQ(on_screen(*mini_frame(bar)).TopLeft(), place);
    CToolBar& other = make_bar(CBRS_ALIGN_LEFT);
    frame->DockControlBar(&other);
    EXPECT_TRUE(other.IsFloating());
}

TEST_F(ControlBarDocking, AFloatingFrameIsAsLargeAsItsBarAndBelongsToTheFrame) {
    CToolBar& bar = floating_bar(CPoint(300, 200));
    ASSERT_TRUE(bar.IsFloating());
    CMiniDockFrameWnd* const mini = mini_frame(bar);
    ASSERT_NE(mini, nullptr);
    EXPECT_EQ(on_screen(*mini).TopLeft(), CPoint(300, 200));
    EXPECT_TRUE(mini->IsWindowVisible());
    EXPECT_EQ(::GetWindow(mini->m_hWnd, GW_OWNER), frame->m_hWnd);
    EXPECT_NE(mini->GetExStyle() & WS_EX_TOOLWINDOW, 0U);
    EXPECT_NE(mini->GetStyle() & WS_THICKFRAME, 0U);
    EXPECT_EQ(ui_test::text_of(mini->m_hWnd), L"Tools");
    CRect inside;
    mini->GetClientRect(&inside);
    EXPECT_EQ(inside.Size(), CSize(3 * 15 + 8, kThickness));
    EXPECT_EQ(on_screen(bar).Size(), inside.Size());
    EXPECT_EQ(mini->bar(), &bar);
    EXPECT_EQ(bar.GetBarStyle() & (CBRS_FLOATING | CBRS_ALIGN_ANY), CBRS_FLOATING | CBRS_ALIGN_TOP);
    EXPECT_EQ(bar.GetDockingFrame(), frame);
    EXPECT_EQ(frame->GetControlBar(kFirstBar + 1), &bar);
    EXPECT_EQ(rectOf(view), client);
    // It stays that frame's when it is asked again.
    bar.EnableDocking(CBRS_ALIGN_TOP);
    EXPECT_EQ(bar.GetDockingFrame(), frame);
}

TEST_F(ControlBarDocking, AFixedBarsFrameIsNotSized) {
    frame->EnableDocking(CBRS_ALIGN_ANY);
    CToolBar& bar = make_bar(CBRS_ALIGN_ANY, CBRS_SIZE_FIXED);
    frame->FloatControlBar(&bar, CPoint(300, 200));
    EXPECT_EQ(mini_frame(bar)->GetStyle() & WS_THICKFRAME, 0U);
}

TEST_F(ControlBarDocking, FloatsUprightForTheSidesOnly) {
    CToolBar& bar = floating_bar();
    frame->FloatControlBar(&bar, CPoint(300, 200), CBRS_ALIGN_LEFT);
    EXPECT_EQ(on_screen(bar).Width(), 15);
    frame->FloatControlBar(&bar, CPoint(300, 200), CBRS_ALIGN_LEFT | CBRS_ALIGN_BOTTOM);
    EXPECT_EQ(on_screen(bar).Height(), 15);
    frame->FloatControlBar(&bar, CPoint(300, 200), 0);
    EXPECT_EQ(on_screen(bar).Height(), 15);
    frame->FloatControlBar(&bar, CPoint(300, 200), CBRS_ALIGN_RIGHT);
    EXPECT_EQ(on_screen(bar).Width(), 15);
}

TEST_F(ControlBarDocking, ButtonsOfAFloatingBarAskAndTellTheFrame) {
    CToolBar& bar = floating_bar();
    frame->openEnabled = FALSE;
    frame->SendMessage(WM_IDLEUPDATECMDUI, TRUE);
    EXPECT_NE(bar.GetButtonStyle(1) & TBBS_DISABLED, 0U);
    EXPECT_EQ(bar.GetButtonStyle(0) & TBBS_DISABLED, 0U);
    click_first(bar);
    EXPECT_EQ(frame->news, 1);
    EXPECT_EQ(
        mini_frame(bar)->SendMessage(WM_MOUSEACTIVATE, reinterpret_cast<WPARAM>(mini_frame(bar)->m_hWnd),
                                     MAKELPARAM(HTCLIENT, WM_LBUTTONDOWN)),
        MA_NOACTIVATE);
}

TEST_F(ControlBarDocking, ButtonsOfADockedBarAskAndTellTheFrame) {
    CToolBar& bar = docked_bar(AFX_IDW_DOCKBAR_LEFT);
    frame->openEnabled = FALSE;
    idle();
    EXPECT_NE(bar.GetButtonStyle(1) & TBBS_DISABLED, 0U);
    click_first(bar);
    EXPECT_EQ(frame->news, 1);
}

TEST_F(ControlBarDocking, AHiddenBarTakesNoRoomAndComesBackWhereItWas) {
    CToolBar& first = docked_bar();
    CToolBar& second = make_bar();
    frame->DockControlBar(&second);
    frame->ShowControlBar(&first, FALSE, FALSE);
    EXPECT_FALSE(first.IsWindowVisible());
    EXPECT_EQ(rectOf(second).top, 0);
    EXPECT_EQ(rectOf(view).top, kThickness);
    frame->ShowControlBar(&first, TRUE, TRUE);
    EXPECT_TRUE(first.IsVisible());
    EXPECT_FALSE(first.IsWindowVisible());
    frame->SendMessage(WM_IDLEUPDATECMDUI, TRUE);
    EXPECT_TRUE(first.IsWindowVisible());
    EXPECT_EQ(rectOf(first).top, 0);
    EXPECT_EQ(rectOf(second).top, kThickness);
    EXPECT_EQ(static_cast<CDockBar&>(dock_bar(AFX_IDW_DOCKBAR_TOP)).GetDockedCount(), 2);
    frame->ShowControlBar(&first, FALSE, FALSE);
    EXPECT_EQ(static_cast<CDockBar&>(dock_bar(AFX_IDW_DOCKBAR_TOP)).GetDockedVisibleCount(), 1);
}

TEST_F(ControlBarDocking, ClosingAFloatingFrameHidesItsBar) {
    CToolBar& bar = floating_bar();
    CMiniDockFrameWnd* const mini = mini_frame(bar);
    mini->SendMessage(WM_CLOSE);
    EXPECT_FALSE(mini->IsWindowVisible());
    EXPECT_FALSE(bar.IsVisible());
    EXPECT_TRUE(bar.IsFloating());
    frame->ShowControlBar(&bar, TRUE, FALSE);
    EXPECT_TRUE(mini->IsWindowVisible());
    EXPECT_TRUE(bar.IsWindowVisible());
}

TEST_F(ControlBarDocking, ADragFloatsTheBarUnderTheMouseAndDocksItAgain) {
    CToolBar& bar = docked_bar();
    press(bar);
    // A hand is not that steady.
    move(handle_of(bar) + CSize(3, 1));
    EXPECT_EQ(rectOf(bar).TopLeft(), CPoint(0, 0));
    move(on_frame(200, 150));
    ASSERT_TRUE(bar.IsFloating());
    const CRect mini = on_screen(*mini_frame(bar));
    EXPECT_TRUE(mini.PtInRect(on_frame(200, 150)));
    EXPECT_EQ(rectOf(view), client);
    // The next step takes the frame along.
    move(on_frame(210, 170));
    EXPECT_EQ(on_screen(*mini_frame(bar)).TopLeft(), mini.TopLeft() + CSize(10, 20));
    move(on_frame(100, 5));
    EXPECT_FALSE(bar.IsFloating());
    EXPECT_EQ(rectOf(bar).top, 0);
    EXPECT_EQ(rectOf(bar).left, 100 - 3);
    move(on_frame(client.right - 2, 150));
    EXPECT_EQ(bar.GetParent(), &dock_bar(AFX_IDW_DOCKBAR_RIGHT));
    EXPECT_EQ(rectOf(bar).right, client.right);
    release(on_frame(client.right - 2, 150));
    EXPECT_EQ(bar.GetParent(), &dock_bar(AFX_IDW_DOCKBAR_RIGHT));
    // After its end the mouse moves nothing.
    move(on_frame(200, 150));
    EXPECT_FALSE(bar.IsFloating());
}

TEST_F(ControlBarDocking, ADragToTheEdgeBetweenTwoRowsBeginsOneThere) {
    CToolBar& first = docked_bar();
    CToolBar& second = make_bar();
    frame->DockControlBar(&second);
    CToolBar& third = make_bar();
    frame->FloatControlBar(&third, CPoint(300, 300));
    third.GetParent()->GetParent()->SendMessage(WM_NCLBUTTONDOWN, HTCAPTION,
                                                MAKELPARAM(on_screen(*mini_frame(third)).left + 9, 305));
    for (const int across : {kThickness - 1, kThickness, kThickness + 1}) {
        move(on_frame(60, across));
        EXPECT_EQ(rectOf(first).top, 0) << across;
        EXPECT_EQ(rectOf(third).top, kThickness) << across;
        EXPECT_EQ(rectOf(second).top, 2 * kThickness) << across;
    }
    release(on_frame(60, kThickness));
    EXPECT_EQ(rectOf(view).top, 3 * kThickness);
}

TEST_F(ControlBarDocking, WithCtrlADragFloatsAtAnEdgeToo) {
    CToolBar& bar = docked_bar();
    press(bar);
    move(on_frame(100, 5), MK_LBUTTON | MK_CONTROL);
    EXPECT_TRUE(bar.IsFloating());
    move(on_frame(100, 5));
    EXPECT_FALSE(bar.IsFloating());
    release(on_frame(100, 5));
}

TEST_F(ControlBarDocking, ADragKeepsOffEdgesThatAreNotAllowed) {
    frame->EnableDocking(CBRS_ALIGN_ANY);
    CToolBar& bar = make_bar(CBRS_ALIGN_TOP);
    frame->DockControlBar(&bar);
    press(bar);
    move(on_frame(2, 150));
    EXPECT_TRUE(bar.IsFloating());
    release(on_frame(2, 150));
}

TEST_F(ControlBarDocking, EscapePutsADraggedBarBack) {
    CToolBar& first = docked_bar();
    CToolBar& second = make_bar();
    frame->DockControlBar(&second);
    EXPECT_FALSE(escape());
    press(first);
    move(on_frame(200, 150));
    ASSERT_TRUE(first.IsFloating());
    EXPECT_TRUE(escape());
    EXPECT_EQ(::GetCapture(), nullptr);
    EXPECT_FALSE(first.IsFloating());
    EXPECT_EQ(rectOf(first), CRect(0, 0, kLength, kThickness));
    EXPECT_EQ(rectOf(second).top, kThickness);
    // A floating one as well, and when something else takes the mouse.
    frame->FloatControlBar(&second, CPoint(300, 200));
    mini_frame(second)->SendMessage(WM_NCLBUTTONDOWN, HTCAPTION, MAKELPARAM(330, 205));
    move(on_frame(100, 5));
    ASSERT_FALSE(second.IsFloating());
    view.SetCapture();
    ::ReleaseCapture();
    ASSERT_TRUE(second.IsFloating());
    EXPECT_EQ(on_screen(*mini_frame(second)).TopLeft(), CPoint(300, 200));
}

TEST_F(ControlBarDocking, AnotherKeyEndsNoDrag) {
    CToolBar& bar = docked_bar();
    press(bar);
    MSG key = {view.m_hWnd, WM_KEYDOWN, VK_RETURN, 0, 0, {}};
    EXPECT_FALSE(CWnd::WalkPreTranslateTree(frame->m_hWnd, &key));
    move(on_frame(200, 150));
    EXPECT_TRUE(bar.IsFloating());
    EXPECT_TRUE(escape());
}

TEST_F(ControlBarDocking, EscapeKeepsTheOrderOfARowAndTheFormerPlaces) {
    CToolBar& first = docked_bar();
    CToolBar& second = make_bar();
    const CRect start = on_screen(first);
    frame->DockControlBar(&second, AFX_IDW_DOCKBAR_TOP, &start);
    ASSERT_EQ(rectOf(first).left, kLength);
    frame->FloatControlBar(&first, CPoint(320, 240));
    frame->DockControlBar(&first, AFX_IDW_DOCKBAR_TOP, &start);
    frame->DockControlBar(&second, AFX_IDW_DOCKBAR_TOP, &start);
    press(first);
    move(on_frame(200, 150));
    ASSERT_TRUE(first.IsFloating());
    escape();
    EXPECT_EQ(rectOf(second).left, 0);
    EXPECT_EQ(rectOf(first).left, kLength);
    mouse(first, WM_LBUTTONDBLCLK, handle_of(first));
    EXPECT_EQ(on_screen(*mini_frame(first)).TopLeft(), CPoint(320, 240));
}

TEST_F(ControlBarDocking, BesideTheFrameADragFloats) {
    CToolBar& bar = docked_bar();
    press(bar);
    move(on_frame(client.right + 100, 5));
    EXPECT_TRUE(bar.IsFloating());
    move(on_frame(client.right + 5, 5));
    EXPECT_FALSE(bar.IsFloating());
    escape();
}

TEST_F(ControlBarDocking, AtTheBottomTheOuterRowIsTheLowerOne) {
    CToolBar& outer = docked_bar(AFX_IDW_DOCKBAR_BOTTOM);
    CToolBar& inner = make_bar();
    frame->DockControlBar(&inner, AFX_IDW_DOCKBAR_BOTTOM);
    CToolBar& third = make_bar();
    frame->DockControlBar(&third, AFX_IDW_DOCKBAR_TOP);
    press(third);
    move(on_frame(200, client.bottom - 4));
    EXPECT_EQ(rectOf(third).top, rectOf(outer).top);
    EXPECT_EQ(rectOf(inner).bottom, rectOf(outer).top);
    release(on_frame(200, client.bottom - 4));
}

TEST_F(ControlBarDocking, InANarrowFrameTheLastBarsOfARowAreShortened) {
    CToolBar& first = docked_bar();
    CToolBar& second = make_bar();
    CRect beside = on_screen(first);
    beside.OffsetRect(1, 0);
    frame->DockControlBar(&second, AFX_IDW_DOCKBAR_TOP, &beside);
    CRect window;
    frame->GetWindowRect(&window);
    frame->SetWindowPos(nullptr, 0, 0, window.Width() - client.Width() + kLength + 30, window.Height(),
                        SWP_NOMOVE | SWP_NOZORDER);
    frame->GetClientRect(&client);
    ASSERT_LT(client.Width(), 2 * kLength);
    EXPECT_EQ(rectOf(first), CRect(0, 0, kLength, kThickness));
    EXPECT_EQ(rectOf(second), CRect(kLength, 0, client.right, kThickness));
}

TEST_F(ControlBarDocking, ADialogBarDocksWithItsHandle) {
    frame->EnableDocking(CBRS_ALIGN_ANY);
    CDialogBar bar;
    ASSERT_TRUE(bar.Create(frame, 450, CBRS_TOP | CBRS_GRIPPER, kFirstBar + 9));
    const CSize size = bar.m_sizeDefault;
    bar.EnableDocking(CBRS_ALIGN_ANY);
    frame->DockControlBar(&bar);
    EXPECT_EQ(rectOf(bar), CRect(CPoint(0, 0), size + CSize(kGripper, 0)));
    CRect inside;
    bar.GetClientRect(&inside);
    EXPECT_EQ(inside.Size(), size);
    frame->DockControlBar(&bar, AFX_IDW_DOCKBAR_LEFT);
    EXPECT_EQ(rectOf(bar).Size(), size + CSize(0, kGripper));
    frame->FloatControlBar(&bar, CPoint(300, 200));
    EXPECT_EQ(on_screen(bar).Size(), size);
    // What its controls tell reaches the frame.
    bar.GetDlgItem(static_cast<int>(kNew))->SendMessage(BM_CLICK);
    EXPECT_EQ(frame->news, 1);
    bar.DestroyWindow();
}

TEST_F(ControlBarDocking, AFrameIsDraggedByItsCaption) {
    CToolBar& bar = floating_bar(CPoint(300, 200));
    mini_frame(bar)->SendMessage(WM_NCLBUTTONDOWN, HTCAPTION, MAKELPARAM(330, 205));
    move(CPoint(340, 225));
    EXPECT_EQ(on_screen(*mini_frame(bar)).TopLeft(), CPoint(310, 220));
    release(CPoint(340, 225));
}

TEST_F(ControlBarDocking, APressOnAToolDragsNothing) {
    CToolBar& bar = docked_bar();
    CRect button;
    bar.GetItemRect(0, &button);
    CPoint inside = button.CenterPoint();
    bar.ClientToScreen(&inside);
    mouse(bar, WM_LBUTTONDOWN, inside);
    EXPECT_NE(::GetCapture(), dock_bar(AFX_IDW_DOCKBAR_TOP).m_hWnd);
    mouse(bar, WM_LBUTTONUP, inside, 0);
    // The gap between tools holds the bar, and so does its handle, which is outside of the client area.
    bar.GetItemRect(2, &button);
    CPoint gap = button.CenterPoint();
    bar.ClientToScreen(&gap);
    mouse(bar, WM_LBUTTONDOWN, gap);
    EXPECT_EQ(::GetCapture(), dock_bar(AFX_IDW_DOCKBAR_TOP).m_hWnd);
    escape();
    const CPoint handle = handle_of(bar);
    EXPECT_EQ(bar.SendMessage(WM_NCHITTEST, 0, MAKELPARAM(handle.x, handle.y)), HTCLIENT);
}

TEST_F(ControlBarDocking, ADoubleClickGoesBetweenTheLastPlaces) {
    CToolBar& first = docked_bar(AFX_IDW_DOCKBAR_BOTTOM);
    frame->FloatControlBar(&first, CPoint(320, 240));
    HWND const mini = mini_frame(first)->m_hWnd;
    ::SendMessageW(mini, WM_NCLBUTTONDBLCLK, HTCAPTION, MAKELPARAM(340, 245));
    EXPECT_EQ(first.GetParent(), &dock_bar(AFX_IDW_DOCKBAR_BOTTOM));
    EXPECT_FALSE(::IsWindow(mini));
    EXPECT_EQ(first.GetBarStyle() & CBRS_FLOATING, 0U);
    mouse(first, WM_LBUTTONDBLCLK, handle_of(first));
    ASSERT_TRUE(first.IsFloating());
    EXPECT_EQ(on_screen(*mini_frame(first)).TopLeft(), CPoint(320, 240));
    // One that may not dock stays.
    CToolBar& loose = make_bar(0);
    frame->FloatControlBar(&loose, CPoint(400, 240));
    mini_frame(loose)->SendMessage(WM_NCLBUTTONDBLCLK, HTCAPTION, MAKELPARAM(420, 245));
    EXPECT_TRUE(loose.IsFloating());
    EXPECT_EQ(on_screen(*mini_frame(loose)).TopLeft(), CPoint(400, 240));
}

TEST_F(ControlBarDocking, EdgesOfAFrameWrapItsTools) {
    CToolBar& bar = floating_bar(CPoint(300, 200));
    CMiniDockFrameWnd* const mini = mini_frame(bar);
    const CSize edges = on_screen(*mini).Size() - CSize(3 * 15 + 8, 15);
    CRect pulled = on_screen(*mini);
    pulled.right = pulled.left + edges.cx + 40;
    mini->SendMessage(WM_SIZING, WMSZ_RIGHT, reinterpret_cast<LPARAM>(&pulled));
    EXPECT_EQ(pulled.TopLeft(), CPoint(300, 200));
    EXPECT_GT(pulled.Height(), edges.cy + 15);
    EXPECT_LE(pulled.Width(), edges.cx + 40);
    const CSize wrapped = pulled.Size();
    EXPECT_EQ(on_screen(*mini).Size(), wrapped);
    // Docked it is one row, and wrapped again afterwards.
    frame->DockControlBar(&bar, AFX_IDW_DOCKBAR_TOP);
    EXPECT_EQ(rectOf(bar).Size(), CSize(kLength, kThickness));
    frame->FloatControlBar(&bar, CPoint(300, 200));
    EXPECT_EQ(on_screen(*mini_frame(bar)).Size(), wrapped);
    // Pulled from the left it keeps its right edge, pulled low enough it is one row.
    pulled = on_screen(*mini_frame(bar));
    pulled.left = pulled.right - edges.cx - 100;
    mini_frame(bar)->SendMessage(WM_SIZING, WMSZ_LEFT, reinterpret_cast<LPARAM>(&pulled));
    EXPECT_EQ(pulled.right, 300 + wrapped.cx);
    EXPECT_EQ(pulled.Size(), edges + CSize(3 * 15 + 8, 15));
    pulled.bottom = pulled.top + edges.cy + 45;
    mini_frame(bar)->SendMessage(WM_SIZING, WMSZ_BOTTOM, reinterpret_cast<LPARAM>(&pulled));
    const CSize low = pulled.Size();
    EXPECT_GT(low.cy, edges.cy + 15);
    EXPECT_LE(low.cy, edges.cy + 45);
    // The narrowest of that height: one button less in a row would be too high.
    EXPECT_LT(low.cx, edges.cx + 2 * 15 + 15);
    pulled = on_screen(*mini_frame(bar));
    const int bottom = pulled.bottom;
    pulled.top = bottom - edges.cy - 20;
    mini_frame(bar)->SendMessage(WM_SIZING, WMSZ_TOP, reinterpret_cast<LPARAM>(&pulled));
    EXPECT_EQ(pulled.bottom, bottom);
    EXPECT_EQ(pulled.Height(), edges.cy + 15);
}

TEST_F(ControlBarDocking, ADockedBarHasAHandleInTheSystemsColours) {
    CToolBar& bar = docked_bar();
    CToolBar& plain = make_bar();
    plain.SetBarStyle(plain.GetBarStyle() & ~CBRS_GRIPPER);
    frame->DockControlBar(&plain);
    EXPECT_EQ(rectOf(plain).Width(), kLength - kGripper);
    const auto painted = [](CWnd& window, int x, int y) {
        window.SendMessage(WM_NCPAINT, 1, 0);
        CWindowDC dc(&window);
        return dc.GetPixel(x, y);
    };
    EXPECT_EQ(painted(bar, 2, 7), ::GetSysColor(COLOR_BTNHIGHLIGHT));
    EXPECT_EQ(painted(bar, 4, 7), ::GetSysColor(COLOR_BTNSHADOW));
    EXPECT_EQ(painted(bar, 6, 7), ::GetSysColor(COLOR_BTNFACE));
    frame->DockControlBar(&bar, AFX_IDW_DOCKBAR_LEFT);
    EXPECT_EQ(painted(bar, 7, 2), ::GetSysColor(COLOR_BTNHIGHLIGHT));
    EXPECT_EQ(painted(bar, 7, 4), ::GetSysColor(COLOR_BTNSHADOW));
}

TEST_F(ControlBarDocking, ABarThatGoesLeavesItsRowAndItsFrame) {
    CToolBar& first = docked_bar();
    CToolBar& second = make_bar();
    frame->DockControlBar(&second);
    first.DestroyWindow();
    frame->RecalcLayout();
    EXPECT_EQ(rectOf(second).top, 0);
    EXPECT_EQ(frame->GetControlBar(kFirstBar + 1), nullptr);
    EXPECT_EQ(static_cast<CDockBar&>(dock_bar(AFX_IDW_DOCKBAR_TOP)).GetDockedCount(), 1);
    frame->FloatControlBar(&second, CPoint(300, 200));
    HWND const mini = mini_frame(second)->m_hWnd;
    second.DestroyWindow();
    ui_test::pump();
    EXPECT_FALSE(::IsWindow(mini));
}

TEST_F(ControlBarDocking, ABarThatGoesDuringItsDragEndsIt) {
    CToolBar& bar = docked_bar();
    press(bar);
    move(on_frame(200, 150));
    bar.DestroyWindow();
    EXPECT_EQ(::GetCapture(), nullptr);
    move(on_frame(210, 150));
    EXPECT_FALSE(escape());
}

TEST_F(ControlBarDocking, CaptionsOfMiniFramesFollowTheFrame) {
    CToolBar& bar = floating_bar();
    HWND const mini = mini_frame(bar)->m_hWnd;
    ui_test::pump();
    // The colour of most of the caption, beside its text.
    const auto caption = [mini] {
        RECT window;
        ::GetWindowRect(mini, &window);
        HDC dc = ::GetWindowDC(mini);
        const int edge = ::GetSystemMetrics(SM_CXSIZEFRAME);
        const COLORREF color = ::GetPixel(dc, edge + 2, edge + 1);
        ::ReleaseDC(mini, dc);
        return color;
    };
    CWnd other;
    other.CreateEx(0, AfxRegisterWndClass(0), L"other", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 600, 20, 100, 100,
                   nullptr, nullptr);
    other.SetActiveWindow();
    ASSERT_EQ(::GetActiveWindow(), other.m_hWnd);
    const COLORREF resting = caption();
    frame->SetActiveWindow();
    ASSERT_EQ(::GetActiveWindow(), frame->m_hWnd);
    EXPECT_NE(caption(), resting);
    other.SetActiveWindow();
    EXPECT_EQ(caption(), resting);
    other.DestroyWindow();
}

}  // namespace
