// Toolbars that dock, float, hide and go, a thousand times.
#include <afxadv.h>
#include <afxcontrolbars.h>
#include <afxext.h>

#include "leak_growth.h"
#include "ui_test.h"

namespace {

using namespace leaks;

constexpr UINT kCommands[] = {2001, 2002, 0, 2003};

class BarsThatDock : public ::testing::Test {
protected:
    BarsThatDock() : frame(new CFrameWndEx) {
        EXPECT_TRUE(frame->Create(nullptr, L"frame", WS_OVERLAPPEDWINDOW, CRect(20, 20, 620, 520)));
        frame->EnableDocking(CBRS_ALIGN_ANY);
        AfxGetApp()->m_pMainWnd = frame;
        make(*frame, first, 501);
        make(*frame, second, 502);
    }
    ~BarsThatDock() override {
        AfxGetApp()->m_pMainWnd = nullptr;
        frame->DestroyWindow();
    }
    static void make(CFrameWndEx& in, CMFCToolBar& bar, UINT id) {
        EXPECT_TRUE(bar.Create(&in, AFX_DEFAULT_TOOLBAR_STYLE, id));
        EXPECT_TRUE(bar.SetButtons(kCommands, 4));
        bar.EnableDocking(CBRS_ALIGN_ANY);
    }

    CFrameWndEx* frame;
    CMFCToolBar first, second;
};

}  // namespace

TEST_F(BarsThatDock, AThousandTimesDockedAndFloatedLeavesNothing) {
    int floated = 0;
    expect_no_growth([&] {
        frame->DockPane(&first, AFX_IDW_DOCKBAR_TOP);
        frame->DockPaneLeftOf(&second, &first);
        first.FloatPane(CRect(50, 50, 90, 50), DM_UNKNOWN, false);
        floated += first.IsFloating() ? 1 : 0;
        frame->DockPane(&second, AFX_IDW_DOCKBAR_LEFT);
        first.DockToRecentPos();
        ui_test::pump();
    });
    EXPECT_EQ(floated, kTimes + kWarmUp);
}

TEST_F(BarsThatDock, AThousandTimesShownHiddenAndPaintedLeavesNothing) {
    frame->DockPane(&first, AFX_IDW_DOCKBAR_TOP);
    frame->DockPane(&second, AFX_IDW_DOCKBAR_RIGHT);
    frame->ShowWindow(SW_SHOWNOACTIVATE);
    expect_no_growth([&] {
        second.ShowPane(FALSE, FALSE, FALSE);
        second.ShowPane(TRUE, FALSE, FALSE);
        first.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
        ui_test::pump();
    });
}

TEST_F(BarsThatDock, AThousandTimesFilledAndEmptiedLeavesNothing) {
    frame->DockPane(&first, AFX_IDW_DOCKBAR_BOTTOM);
    expect_no_growth([&] {
        first.RemoveAllButtons();
        first.SetButtons(kCommands, 4);
        first.SetButtonText(0, L"text");
    });
}

TEST(ControlBarsThatDock, AThousandTimesDockedFloatedAndBroughtBackLeavesNothing) {
    auto* const frame = new CFrameWnd;
    ASSERT_TRUE(frame->Create(nullptr, L"frame", WS_OVERLAPPEDWINDOW, CRect(20, 20, 620, 520)));
    frame->EnableDocking(CBRS_ALIGN_ANY);
    CToolBar bar;
    ASSERT_TRUE(bar.CreateEx(frame, TBSTYLE_FLAT, WS_CHILD | WS_VISIBLE | CBRS_TOP | CBRS_GRIPPER));
    ASSERT_TRUE(bar.SetButtons(kCommands, 4));
    bar.EnableDocking(CBRS_ALIGN_ANY);
    int floated = 0;
    expect_no_growth([&] {
        frame->DockControlBar(&bar, AFX_IDW_DOCKBAR_LEFT);
        CDockState state;
        frame->GetDockState(state);
        frame->FloatControlBar(&bar, CPoint(60, 60));
        floated += bar.IsFloating() ? 1 : 0;
        frame->SetDockState(state);
        ui_test::pump();
    });
    EXPECT_EQ(floated, kTimes + kWarmUp);
    frame->DestroyWindow();
}
