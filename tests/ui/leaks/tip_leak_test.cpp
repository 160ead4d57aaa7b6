// Each kind of tip, made, shown, painted and destroyed a thousand times.
#include <ktui/ktui.h>

#include "../../../samples/drafter/resource.h"
#include "leak_fixture.h"

namespace {

using namespace leaks;

class TipLeaks : public leaks::Leaks {
protected:
    TipLeaks() {
        field.Create(WS_CHILD | WS_VISIBLE | WS_BORDER, CRect(10, 10, 90, 30), &parent, 51);
        field.SetFocus();
    }
    /// What the system keeps for popups of its own, shown and painted.
    size_t systemGrowth(int windows) {
        return heap_growth([this, windows] {
            for (int i = 0; i < windows; ++i) {
                const HWND bare = ::CreateWindowExW(0, TOOLTIPS_CLASSW, L"", WS_POPUP | TTS_ALWAYSTIP, 10, 10,
                                                    50, 20, parent, nullptr, nullptr, nullptr);
                ::ShowWindow(bare, SW_SHOWNOACTIVATE);
                ::UpdateWindow(bare);
                ::DestroyWindow(bare);
            }
            ui_test::pump();
        });
    }
    void show(CKbUiTipWindow& tip) {
        ASSERT_TRUE(tip.Create(&parent));
        tip.SetControl(&field);
        tip.SetUseText(1);
        tip.SetWindowText(L"Layer: Walls");
        tip.MoveWindow(CRect(200, 200, 320, 220));
        tip.Show();
        shown += tip.IsWindowVisible() != FALSE;
        tip.RedrawWindow();
        tip.Hide();
        tip.DestroyWindow();
    }
    CEdit field;
    int shown = 0;
};

}  // namespace

TEST_F(TipLeaks, AThousandTextAndBalloonTipsLeaveNothing) {
    const size_t growth = systemGrowth(2);
    expect_no_growth(
        [&] {
            CKbUiTextTip text;
            show(text);
            CKbUiBalloonTip balloon;
            show(balloon);
            ui_test::pump();
        },
        growth, kShownGdiSlack);
    EXPECT_EQ(shown, 2 * (kTimes + kWarmUp));
}

TEST_F(TipLeaks, AThousandToolTipControlsLeaveNothing) {
    const size_t growth = systemGrowth(1);
    expect_no_growth(
        [&] {
            CKbToolTipCtrl tip;
            ASSERT_TRUE(tip.Create(&parent, TTS_ALWAYSTIP));
            tip.AddTool(&field, L"Layer: Walls");
            tip.Activate(TRUE);
            shown += tip.GetToolCount();
            tip.UpdateTipText(L"Layer: Axes", &field);
            tip.DelTool(&field);
            tip.DestroyWindow();
            ui_test::pump();
        },
        growth, kShownGdiSlack);
    EXPECT_EQ(shown, kTimes + kWarmUp);
}

TEST_F(TipLeaks, AThousandDialogBarsWithTipsTurnedOffAndOnLeaveNothing) {
    const size_t growth = heap_growth([&] {
        open_bare_dialog(parent, IDD_OPTIONS_UNITS);
        // The bar has its tip a second time.
        ::DestroyWindow(::CreateWindowExW(0, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_ALWAYSTIP, 0, 0, 0, 0,
                                          parent, nullptr, nullptr, nullptr));
    });
    expect_no_growth(
        [&] {
            CKtUiDialogBar bar;
            ASSERT_TRUE(bar.Create(&parent, IDD_OPTIONS_UNITS, WS_VISIBLE | CBRS_TOP, 71));
            bar.SetUseTips(0);
            bar.SetUseTips(1);
            shown += bar.GetUseTips();
            bar.DestroyWindow();
            ui_test::pump();
        },
        growth, kShownGdiSlack);
    EXPECT_EQ(shown, kTimes + kWarmUp);
}
