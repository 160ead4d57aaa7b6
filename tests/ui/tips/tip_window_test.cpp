// Tip windows: when they show, what they paint, how they go, and where a click on them ends up.
#include <ktui/tips/kbui_balloon_tip.h>
#include <ktui/tips/kbui_text_tip.h>

#include "test_host.h"
#include "ui_test.h"

namespace {

/// A control that remembers the last button message.
class ClickTarget : public CWnd {
public:
    UINT message = 0;
    WPARAM keys = 0;
    CPoint point;

protected:
    LRESULT WindowProc(UINT m, WPARAM w, LPARAM l) override {
        if (m >= WM_LBUTTONDOWN && m <= WM_MBUTTONDBLCLK) {
            message = m;
            keys = w;
            point = CPoint(static_cast<short>(LOWORD(l)), static_cast<short>(HIWORD(l)));
        }
        return CWnd::WindowProc(m, w, l);
    }
};

class TipWindow : public ::testing::Test {
protected:
    TipWindow() {
        target.Create(AfxRegisterWndClass(0), L"target", WS_CHILD | WS_VISIBLE, CRect(20, 30, 220, 60),
                      &parent, 7);
        tip.Create(&parent);
        tip.SetControl(&target);
        parent.SetFocus();
        ui_test::pump();
        target.GetWindowRect(&area);
        tip.MoveWindow(&area, FALSE);
        ui_test::move_cursor(area.CenterPoint());
    }
    ~TipWindow() override { tip.DestroyWindow(); }

    ui_test::TestHost host;
    ui_test::ParentWindow parent;
    ClickTarget target;
    CKbUiTextTip tip;
    CRect area;
};

TEST_F(TipWindow, IsAHiddenTopmostToolWindowOfItsOwnClass) {
    wchar_t name[32] = {};
    ::GetClassNameW(tip.m_hWnd, name, 32);
    EXPECT_STREQ(name, L"CKbUiTipWindow");
    EXPECT_FALSE(tip.IsWindowVisible());
    EXPECT_EQ(tip.GetExStyle() & WS_EX_TOOLWINDOW, static_cast<DWORD>(WS_EX_TOOLWINDOW));
    EXPECT_TRUE(tip.GetStyle() & WS_POPUP);
    EXPECT_EQ(tip.Owner(), &parent);
    EXPECT_EQ(tip.GetUseText(), 0);
}

TEST_F(TipWindow, ShowWithoutAFocusWindowChangesNothing) {
    ::SetFocus(nullptr);
    tip.Show();
    EXPECT_FALSE(tip.IsWindowVisible());
}

TEST_F(TipWindow, ShowTakesNoFocusAndIsOnTopEachTime) {
    tip.Show();
    EXPECT_TRUE(tip.IsWindowVisible());
    EXPECT_TRUE(tip.GetExStyle() & WS_EX_TOPMOST);
    EXPECT_EQ(::GetFocus(), parent.m_hWnd);
    tip.Hide();
    EXPECT_FALSE(tip.IsWindowVisible());
    tip.Show();
    EXPECT_TRUE(tip.GetExStyle() & WS_EX_TOPMOST);
}

TEST_F(TipWindow, StaysWhileThePointerIsOverTheControl) {
    tip.Show();
    EXPECT_FALSE(ui_test::pump_until([&] { return !tip.IsWindowVisible(); }, 250));
}

TEST_F(TipWindow, GoesWithinATimerPeriodAfterThePointerLeft) {
    tip.Show();
    ui_test::move_cursor(CPoint(area.right + 60, area.bottom + 60));
    EXPECT_TRUE(ui_test::pump_until([&] { return !tip.IsWindowVisible(); }, 1000));
}

TEST_F(TipWindow, GoesWhenTheControlIsHidden) {
    tip.Show();
    target.ShowWindow(SW_HIDE);
    EXPECT_TRUE(ui_test::pump_until([&] { return !tip.IsWindowVisible(); }, 1000));
}

TEST_F(TipWindow, GoesWhenTheApplicationBecomesInactive) {
    tip.Show();
    tip.SendMessage(WM_ACTIVATEAPP, FALSE, 0);
    EXPECT_FALSE(tip.IsWindowVisible());
}

TEST_F(TipWindow, EveryButtonReachesTheControlAtItsOwnCoordinates) {
    for (const UINT message : {WM_LBUTTONDOWN, WM_LBUTTONDBLCLK, WM_RBUTTONDOWN, WM_RBUTTONDBLCLK,
                               WM_MBUTTONDOWN, WM_MBUTTONDBLCLK}) {
        tip.MoveWindow(area.left + 10, area.top + 5, 50, 20);
        tip.Show();
        tip.SendMessage(message, MK_SHIFT, MAKELPARAM(3, 4));
        EXPECT_FALSE(tip.IsWindowVisible()) << message;
        EXPECT_EQ(target.message, message);
        EXPECT_EQ(target.keys, static_cast<WPARAM>(MK_SHIFT));
        EXPECT_EQ(target.point, CPoint(13, 9)) << message;
    }
}

TEST_F(TipWindow, UpdateIfNecessaryWithZeroLeavesAShownTipAlone) {
    tip.SetUseText(1);
    tip.Show();
    tip.UpdateIfNecessary(nullptr, 0);
    EXPECT_TRUE(tip.IsWindowVisible());
    EXPECT_EQ(tip.GetUseText(), 1);
    tip.Update(&target, 0);
    EXPECT_TRUE(tip.IsWindowVisible());
    EXPECT_EQ(tip.GetUseText(), 0);
    tip.UpdateIfNecessary(&target, 1);
    EXPECT_EQ(tip.GetUseText(), 1);
}

TEST_F(TipWindow, PaintsFrameAndPaperAndTheTextInTheControlsFont) {
    tip.SetUseText(1);
    tip.SetWindowText(L"HHHHHHHH");
    tip.Show();
    tip.UpdateWindow();
    CClientDC dc(&tip);
    EXPECT_EQ(dc.GetPixel(0, 0), 0x4B4846u);
    EXPECT_EQ(dc.GetPixel(area.Width() - 1, area.Height() - 1), 0x4B4846u);
    EXPECT_EQ(dc.GetPixel(1, 1), 0xF9F9F9u);
    EXPECT_EQ(dc.GetPixel(area.Width() - 3, area.Height() - 3), 0xF9F9F9u);
    int inked = 0;
    for (int x = 2; x < 60; ++x)
        if (dc.GetPixel(x, area.Height() / 2) != 0xF9F9F9u) ++inked;
    EXPECT_GT(inked, 4);
}

TEST_F(TipWindow, WithoutTextOnlyTheFrameIsPainted) {
    tip.SetUseText(0);
    tip.SetWindowText(L"HHHHHHHH");
    tip.Show();
    tip.UpdateWindow();
    CClientDC dc(&tip);
    EXPECT_EQ(dc.GetPixel(0, 0), 0x4B4846u);
    EXPECT_NE(dc.GetPixel(area.Width() - 3, area.Height() - 3), 0xF9F9F9u);
}

TEST_F(TipWindow, WithoutAControlNothingIsPainted) {
    tip.SetControl(nullptr);
    tip.Show();
    tip.SendMessage(WM_PAINT);
    RECT pending;
    EXPECT_TRUE(::GetUpdateRect(tip.m_hWnd, &pending, FALSE));
    tip.Hide();
}

TEST_F(TipWindow, MeasuresInTheOwnersFont) {
    int width = 0, height = 0;
    tip.GetTextExtent(L"distance", width, height);
    EXPECT_GT(width, 20);
    EXPECT_GT(height, 8);
}

TEST_F(TipWindow, WithoutADeviceContextTheExtentIsZero) {
    CWnd* const owner = tip.Owner();
    const HWND window = owner->m_hWnd;
    int width = 1, height = 2;
    owner->m_hWnd = reinterpret_cast<HWND>(static_cast<INT_PTR>(0x7FFF0001));  // no window: GetDC fails
    EXPECT_NO_THROW(tip.GetTextExtent(L"distance", width, height));
    owner->m_hWnd = window;
    EXPECT_EQ(width, 0);
    EXPECT_EQ(height, 0);
}

TEST_F(TipWindow, ABalloonShowsInAnUnfocusedApplicationAndStays) {
    CKbUiBalloonTip balloon;
    ASSERT_TRUE(balloon.Create(&parent));
    balloon.SetControl(&target);
    balloon.MoveWindow(&area, FALSE);
    ::SetFocus(nullptr);
    balloon.Show();
    EXPECT_TRUE(balloon.IsWindowVisible());
    EXPECT_FALSE(ui_test::pump_until([&] { return !balloon.IsWindowVisible(); }, 200));
    balloon.Hide();
    EXPECT_FALSE(balloon.IsWindowVisible());
    balloon.DestroyWindow();
}

TEST_F(TipWindow, BalloonFunctionsShowNothing) {
    CRect rect(0, 0, 10, 10);
    EXPECT_EQ(KbUiShowBalloonTip(&parent, &target, rect, L"text", 0), 0);
    EXPECT_EQ(KbUiShowBalloonTip(&parent, &target, L"text", 0), 0);
    KbUiHideBalloonTip(nullptr);
    class Listener : public CWnd {
    public:
        WPARAM active = 9;
        LPARAM datum = 9;

    protected:
        LRESULT WindowProc(UINT m, WPARAM w, LPARAM l) override {
            if (m == WM_USER + 1) active = w, datum = l;
            return CWnd::WindowProc(m, w, l);
        }
    } listener;
    listener.Create(AfxRegisterWndClass(0), L"", WS_CHILD, CRect(0, 0, 1, 1), &parent, 8);
    KbUiHideBalloonTip(&listener);
    EXPECT_EQ(listener.active, 0u);
    EXPECT_EQ(listener.datum, 0);
}

}  // namespace
