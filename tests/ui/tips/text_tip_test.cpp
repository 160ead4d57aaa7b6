// The tip of a dialog: how it changes from control to control, and where clicks on it go.
#include "tip_fixture.h"

using TextTip = ui_test::TipOverControl<CKbUiTextTip>;
using Shown = std::vector<bool>;

namespace {

/// A control that remembers the last left click.
class Clicked : public CWnd {
public:
    int clicks = 0;
    CPoint point;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_LBUTTONDOWN) {
            ++clicks;
            point = CPoint(static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam)));
        }
        return CWnd::WindowProc(message, wParam, lParam);
    }
};

/// A click on the tip goes to the control that it shows, and hides it.
void click(CWnd& tip) { tip.SendMessage(WM_LBUTTONDOWN, 0, MAKELPARAM(1, 1)); }

}  // namespace

TEST_F(TextTip, UpdateHidesThenShowsForTheNewControl) {
    Clicked other;
    other.Create(AfxRegisterWndClass(0), L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 10, 10), &parent, 8);
    tip.Show();
    tip.shown.clear();
    const ui_test::RecordedTimers timers;
    tip.Update(&other, 1);
    EXPECT_EQ(tip.shown, (Shown{false, true}));
    EXPECT_EQ(tip.hides, 0) << "only the window goes";
    EXPECT_TRUE(ui_test::timerCalls.empty());
    EXPECT_EQ(tip.GetUseText(), 1);
    EXPECT_NE(::GetActiveWindow(), tip.m_hWnd);
    click(tip);
    EXPECT_EQ(other.clicks, 1);
    tip.SetControl(nullptr);
}

TEST_F(TextTip, UpdateIfNecessaryWithOneDoesTheSame) {
    Clicked other;
    other.Create(AfxRegisterWndClass(0), L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 10, 10), &parent, 8);
    tip.Show();
    tip.shown.clear();
    tip.UpdateIfNecessary(&other, 1);
    EXPECT_EQ(tip.shown, (Shown{false, true}));
    EXPECT_EQ(tip.GetUseText(), 1);
    click(tip);
    EXPECT_EQ(other.clicks, 1);
    tip.SetControl(nullptr);
}

TEST_F(TextTip, UpdateIfNecessaryWithAnythingElseTouchesNothing) {
    Clicked first, other;
    for (Clicked* each : {&first, &other})
        each->Create(AfxRegisterWndClass(0), L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 10, 10), &parent, 8);
    tip.Update(&first, 1);
    tip.shown.clear();
    for (const int useText : {0, 2, -1}) tip.UpdateIfNecessary(&other, useText);
    EXPECT_TRUE(tip.shown.empty());
    EXPECT_EQ(tip.GetUseText(), 1);
    click(tip);
    EXPECT_EQ(first.clicks, 1);
    EXPECT_EQ(other.clicks, 0);
    tip.SetControl(nullptr);
}

TEST_F(TextTip, AClickHidesItByItsOwnHideAndGoesThroughTheScreen) {
    Clicked other;
    other.Create(AfxRegisterWndClass(0), L"", WS_CHILD | WS_VISIBLE, CRect(40, 70, 90, 90), &parent, 8);
    tip.SetControl(&other);
    CRect control;
    other.GetWindowRect(&control);
    tip.MoveWindow(control.left - 30, control.top - 20, 50, 20);
    tip.Show();
    tip.SendMessage(WM_LBUTTONDOWN, 0, MAKELPARAM(12, 9));
    EXPECT_EQ(tip.hides, 1);
    EXPECT_EQ(other.point, CPoint(12 - 30, 9 - 20));
    tip.SetControl(nullptr);
}

TEST_F(TextTip, AClickWithoutAControlOnlyHides) {
    tip.SetControl(nullptr);
    tip.Show();
    click(tip);
    EXPECT_EQ(tip.hides, 1);
    EXPECT_FALSE(tip.IsWindowVisible());
}
