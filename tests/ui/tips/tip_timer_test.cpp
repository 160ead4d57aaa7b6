// Showing, hiding and the timer that looks after the pointer.
#include "tip_fixture.h"

using ui_test::timerCalls;
using Calls = std::vector<std::string>;

namespace {

using TextTip = ui_test::TipOverControl<CKbUiTextTip>;
using PlainTip = ui_test::TipOverControl<CKbUiTipWindow>;
using BalloonTip = ui_test::TipOverControl<CKbUiBalloonTip>;

struct {
    HWND window, after;
    int x, y, width, height;
    UINT flags;
    bool wasVisible;  ///< the window, before it was placed
} placed;

BOOL WINAPI NotePlace(HWND window, HWND after, int x, int y, int width, int height, UINT flags) {
    placed = {window, after, x, y, width, height, flags, ::IsWindowVisible(window) != FALSE};
    return ::SetWindowPos(window, after, x, y, width, height, flags);
}

bool isTopmost(const CWnd& window) { return (window.GetExStyle() & WS_EX_TOPMOST) != 0; }

}  // namespace

TEST_F(TextTip, ShowStartsTimerOneAfreshAtFiftyMilliseconds) {
    const ui_test::RecordedTimers timers;
    ASSERT_TRUE(timers.set.isThere() && timers.kill.isThere());
    tip.Show();
    EXPECT_EQ(timerCalls, (Calls{"kill 1", "set 1 50"}));
    EXPECT_EQ(tip.m_timer, 1u);
}

TEST_F(TextTip, StartTimerTakesAnyPeriodAndStopTimerEndsIt) {
    const ui_test::RecordedTimers timers;
    tip.StartTimer(1234);
    EXPECT_EQ(timerCalls, (Calls{"kill 1", "set 1 1234"}));
    tip.StopTimer();
    EXPECT_EQ(timerCalls, (Calls{"kill 1", "set 1 1234", "kill 1"}));
}

TEST_F(TextTip, HideAsksToLeaveTheTopmostBandThenStopsTheTimer) {
    tip.Show();
    ASSERT_TRUE(isTopmost(tip));
    tip.exStyles.clear();
    const ui_test::RecordedTimers timers;
    tip.Hide();
    EXPECT_EQ(timerCalls, Calls{"kill 1"});
    EXPECT_EQ(tip.exStyles, std::vector<DWORD>{WS_EX_TOOLWINDOW}) << "asked while still visible";
    EXPECT_FALSE(tip.IsWindowVisible());
}

TEST_F(PlainTip, HideStopsTheTimerAndStaysTopmost) {
    tip.Show();
    tip.exStyles.clear();
    const ui_test::RecordedTimers timers;
    tip.Hide();
    EXPECT_EQ(timerCalls, Calls{"kill 1"});
    EXPECT_TRUE(tip.exStyles.empty());
    EXPECT_FALSE(tip.IsWindowVisible());
}

TEST_F(BalloonTip, NeitherStartsNorStopsATimerAndStaysTopmost) {
    const ui_test::RecordedTimers timers;
    ::SetFocus(nullptr);
    tip.Show();
    EXPECT_TRUE(tip.IsWindowVisible());
    EXPECT_NE(::GetActiveWindow(), tip.m_hWnd) << "shown, not activated";
    tip.Hide();
    EXPECT_FALSE(tip.IsWindowVisible());
    EXPECT_TRUE(timerCalls.empty());
    EXPECT_TRUE(isTopmost(tip));
}

TEST_F(TextTip, ShowWithoutAFocusWindowTouchesNothing) {
    ::SetFocus(nullptr);
    const ui_test::ReplacedImport place(::GetModuleHandleW(L"ktui.dll"), "SetWindowPos", &NotePlace);
    const ui_test::RecordedTimers timers;
    placed = {};
    tip.Show();
    EXPECT_TRUE(timerCalls.empty());
    EXPECT_EQ(placed.window, nullptr);
    EXPECT_FALSE(tip.IsWindowVisible());
}

TEST_F(TextTip, ShowGoesToTheTopOfTheTopmostAndNowhereElse) {
    const ui_test::ReplacedImport place(::GetModuleHandleW(L"ktui.dll"), "SetWindowPos", &NotePlace);
    ASSERT_TRUE(place.isThere());
    placed = {};
    tip.Show();
    EXPECT_EQ(placed.window, tip.m_hWnd);
    EXPECT_EQ(placed.after, HWND_TOPMOST);
    EXPECT_EQ(placed.flags, 27u);
    EXPECT_FALSE(placed.wasVisible) << "it comes up at the top";
    CRect rect;
    tip.GetWindowRect(&rect);
    EXPECT_EQ(rect, area) << "neither moved nor sized";
    EXPECT_NE(::GetActiveWindow(), tip.m_hWnd);
    EXPECT_NE(::GetFocus(), tip.m_hWnd);
}

TEST_F(TextTip, ALookLeavesItOverAVisibleControlUnderThePointer) {
    tip.Show();
    tip.SendMessage(WM_TIMER, 1, 0);
    EXPECT_EQ(tip.hides, 0);
    EXPECT_TRUE(tip.IsWindowVisible());
}

TEST_F(TextTip, ALookHidesItOffThePointer) {
    tip.Show();
    ASSERT_TRUE(ui_test::move_cursor(CPoint(area.left - 1, area.top)));
    tip.SendMessage(WM_TIMER, 1, 0);
    EXPECT_EQ(tip.hides, 1) << "by its own Hide";
    EXPECT_FALSE(tip.IsWindowVisible());
}

TEST_F(TextTip, ALookHidesItOverAHiddenControl) {
    tip.Show();
    target.ShowWindow(SW_HIDE);
    tip.SendMessage(WM_TIMER, 1, 0);
    EXPECT_GE(tip.hides, 1);
    EXPECT_FALSE(tip.IsWindowVisible());
}

TEST_F(TextTip, ALookHidesItWithoutAControl) {
    tip.Show();
    tip.SetControl(nullptr);
    tip.SendMessage(WM_TIMER, 1, 0);
    EXPECT_EQ(tip.hides, 1);
}

TEST_F(TextTip, ALookHidesItOverAControlThatHasNoWindow) {
    CWnd gone;
    tip.SetControl(&gone);
    tip.Show();
    tip.SendMessage(WM_TIMER, 1, 0);
    EXPECT_EQ(tip.hides, 1);
}

TEST_F(TextTip, GoingInactiveHidesTheWindowAndLeavesTheTimer) {
    tip.Show();
    const ui_test::RecordedTimers timers;
    tip.SendMessage(WM_ACTIVATEAPP, TRUE, 0);
    EXPECT_TRUE(tip.IsWindowVisible()) << "becoming active changes nothing";
    tip.SendMessage(WM_ACTIVATEAPP, FALSE, 0);
    EXPECT_FALSE(tip.IsWindowVisible());
    EXPECT_EQ(tip.hides, 0);
    EXPECT_TRUE(timerCalls.empty());
}

TEST_F(TextTip, DestroyingStopsTheTimerBeforeTheWindowIsLetGo) {
    tip.Show();
    const ui_test::RecordedTimers timers;
    tip.DestroyWindow();
    EXPECT_EQ(timerCalls, Calls{"kill 1"});
    EXPECT_EQ(tip.m_hWnd, nullptr);
}
