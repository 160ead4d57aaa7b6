// Toolbars and status bars at their edges: damaged resources, what rows keep, who is asked first, room that
// is not there.
#include <afxcmn.h>

#include "bars_frame.h"
#include "sent_messages.h"

namespace {

using namespace bars;

constexpr int kCap = 2;  // the third pane

/// A bar that answers for a button itself.
class AnsweringToolBar : public CToolBar {
protected:
    afx_msg void OnUpdateNew(CCmdUI* item) { item->Enable(FALSE); }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(AnsweringToolBar, CToolBar)
    ON_UPDATE_COMMAND_UI(kNew, &AnsweringToolBar::OnUpdateNew)
END_MESSAGE_MAP()

class AnsweringStatusBar : public CStatusBar {
protected:
    afx_msg void OnUpdatePane(CCmdUI* item) { item->SetText(L"the bar's own"); }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(AnsweringStatusBar, CStatusBar)
    ON_UPDATE_COMMAND_UI(kPane, &AnsweringStatusBar::OnUpdatePane)
END_MESSAGE_MAP()

class ToolBarEdges : public FrameBars {
protected:
    ToolBarEdges() { bar.CreateEx(frame, TBSTYLE_FLAT, WS_CHILD | WS_VISIBLE | CBRS_TOP); }
    void setButtons() {
        const UINT ids[] = {kNew, kOpen, kCut};
        ASSERT_TRUE(bar.SetButtons(ids, 3));
    }
    /// Lays the bar out in rows of one button.
    void makeNarrow() { bar.CalcDynamicLayout(30, LM_HORZ); }
    bool endsRow(UINT command) {
        return (bar.GetToolBarCtrl().GetState(static_cast<int>(command)) & TBSTATE_WRAP) != 0;
    }
    AnsweringToolBar bar;
};

class StatusBarEdges : public FrameBars {
protected:
    StatusBarEdges() { make(0); }
    void make(DWORD controlStyle) {
        bar.DestroyWindow();
        bar.CreateEx(frame, controlStyle);
        const UINT ids[] = {ID_SEPARATOR, kPane, ID_INDICATOR_CAPS};
        bar.SetIndicators(ids, 3);
        frame->RecalcLayout();
    }
    CString shownText(int index) { return bar.GetStatusBarCtrl().GetText(index); }
    CRect pane(int index) {
        CRect place;
        bar.GetItemRect(index, &place);
        return place;
    }
    AnsweringStatusBar bar;
};

}  // namespace

TEST_F(ToolBarEdges, AResourceWithoutWidthIsNone) {
    EXPECT_FALSE(bar.LoadToolBar(447));
    EXPECT_EQ(bar.GetCount(), 0);
}

TEST_F(ToolBarEdges, AFailureLeavesTheSizesOfButtons) {
    setButtons();
    CRect before, after;
    bar.GetItemRect(0, &before);
    EXPECT_FALSE(bar.LoadToolBar(443)) << "without a bitmap";
    setButtons();
    bar.GetItemRect(0, &after);
    EXPECT_EQ(after, before);
}

TEST_F(ToolBarEdges, AButtonThatChangesStillEndsItsRow) {
    setButtons();
    makeNarrow();
    ASSERT_TRUE(endsRow(kNew));
    bar.SetButtonStyle(0, TBBS_CHECKBOX);
    EXPECT_TRUE(endsRow(kNew));
    bar.SetButtonInfo(1, kUnhandled, TBBS_BUTTON, 0);
    EXPECT_TRUE(endsRow(kUnhandled));
}

TEST_F(ToolBarEdges, AHeightIsThatOfRowsAndNegativeOnesAreNone) {
    setButtons();
    const CSize lying = bar.CalcFixedLayout(FALSE, TRUE), standing = bar.CalcFixedLayout(FALSE, FALSE);
    bar.SetHeight(200);
    EXPECT_GE(bar.CalcFixedLayout(FALSE, TRUE).cy, 200);
    EXPECT_EQ(bar.CalcFixedLayout(FALSE, FALSE), standing);
    bar.SetHeight(-50);
    EXPECT_EQ(bar.CalcFixedLayout(FALSE, TRUE), lying);
}

TEST_F(ToolBarEdges, AButtonThatIsDisabledIsLetGo) {
    setButtons();
    bar.SetButtonStyle(1, TBBS_PRESSED);
    ASSERT_TRUE(bar.GetButtonStyle(1) & TBBS_PRESSED);
    frame->openEnabled = FALSE;
    idle();
    EXPECT_EQ(bar.GetButtonStyle(1) & (TBBS_PRESSED | TBBS_DISABLED), TBBS_DISABLED);
}

TEST_F(ToolBarEdges, ItsOwnMapIsAskedBeforeTheFrames) {
    setButtons();
    idle();
    EXPECT_TRUE(bar.GetButtonStyle(0) & TBBS_DISABLED) << "the frame has a handler and would enable it";
    EXPECT_FALSE(bar.GetButtonStyle(1) & TBBS_DISABLED);
}

TEST_F(StatusBarEdges, RoomIsLeftForAGrip) {
    const int without = static_cast<int>(pane(kCap).right);
    make(SBARS_SIZEGRIP);
    EXPECT_EQ(pane(kCap).right, without - ::GetSystemMetrics(SM_CXVSCROLL));
}

TEST_F(StatusBarEdges, OfTwoPanesThatStretchTheFirstDoes) {
    bar.SetPaneInfo(1, kPane, SBPS_STRETCH, 40);
    EXPECT_LT(pane(1).Width(), 60);
    EXPECT_GT(pane(0).Width(), 100);
    bar.SetPaneStyle(0, SBPS_NORMAL);
    EXPECT_GT(pane(1).Width(), 100) << "the only one";
}

TEST_F(StatusBarEdges, WithoutRoomTheStretchingPaneHasNoWidth) {
    bar.SetPaneInfo(1, kPane, SBPS_NORMAL, 3000);
    const int left = static_cast<int>(pane(0).left);
    EXPECT_LE(left, 4);
    EXPECT_GE(pane(1).left, left);
    EXPECT_GE(pane(1).Width(), 3000);
}

TEST_F(StatusBarEdges, ANegativeWidthIsNone) {
    bar.SetPaneInfo(1, kPane, SBPS_NORMAL, -50);
    UINT id = 0, style = 0;
    int width = -1;
    bar.GetPaneInfo(1, id, style, width);
    EXPECT_EQ(width, 0);
}

TEST_F(StatusBarEdges, ATextThatIsShownIsNotShownAgain) {
    bar.SetPaneText(1, L"once");
    int sent = 0;
    const ui_test::SentMessages watch(
        [&](const CWPSTRUCT& message) { sent += message.message == SB_SETTEXTW; });
    EXPECT_TRUE(bar.SetPaneText(1, L"once"));
    EXPECT_EQ(sent, 0);
    EXPECT_TRUE(bar.SetPaneText(1, L"twice"));
    EXPECT_EQ(sent, 1);
}

TEST_F(StatusBarEdges, TheWindowTextOfASimpleBarIsNoPanes) {
    bar.SetPaneText(0, L"of the pane");
    bar.GetStatusBarCtrl().SetSimple(TRUE);
    bar.SetWindowText(L"simple");
    EXPECT_EQ(bar.GetPaneText(0), L"of the pane");
}

TEST_F(StatusBarEdges, LinesAtItsEdgesAddToItsHeight) {
    const int plain = static_cast<int>(bar.CalcFixedLayout(TRUE, TRUE).cy);
    ASSERT_EQ(bar.GetBarStyle() & (CBRS_BORDER_ANY | CBRS_BORDER_3D), static_cast<DWORD>(CBRS_BORDER_TOP));
    bar.SetBarStyle(bar.GetBarStyle() | CBRS_BORDER_BOTTOM);
    EXPECT_EQ(bar.CalcFixedLayout(TRUE, TRUE).cy, plain + 1);
    bar.SetBarStyle(bar.GetBarStyle() | CBRS_BORDER_3D);
    EXPECT_EQ(bar.CalcFixedLayout(TRUE, TRUE).cy, plain + 3) << "two lines of two pixels for one";
}

TEST_F(StatusBarEdges, APaneThatNobodyAnswersForStaysAndShowsItsTextAtIdle) {
    bar.SetPaneInfo(1, kUnhandled, SBPS_NORMAL, 60);
    bar.SetPaneText(1, L"later", FALSE);
    EXPECT_NE(shownText(1), L"later");
    idle();
    EXPECT_EQ(shownText(1), L"later");
    EXPECT_FALSE(bar.GetPaneStyle(1) & SBPS_DISABLED);
}

TEST_F(StatusBarEdges, ItsOwnMapIsAskedBeforeTheFrames) {
    frame->paneText = L"the frame's";
    idle();
    EXPECT_EQ(shownText(1), L"the bar's own");
}
