// Status bars in a frame: panes, their texts and states, keys, and the messages of the frame.
#include <afxcmn.h>

#include <algorithm>
#include <string>
#include <vector>

#include "bars_frame.h"

namespace {

using namespace bars;

class StatusBar : public FrameBars {
protected:
    StatusBar() {
        bar.Create(frame);
        const UINT ids[] = {ID_SEPARATOR, kPane, ID_INDICATOR_CAPS};
        set = bar.SetIndicators(ids, 3);
        frame->RecalcLayout();
    }
    CString shownText(int index) { return bar.GetStatusBarCtrl().GetText(index); }
    CRect pane(int index) {
        CRect place;
        bar.GetItemRect(index, &place);
        return place;
    }
    CStatusBar bar;
    BOOL set;
};

TEST_F(StatusBar, StandsAtTheBottomWithItsPanes) {
    ASSERT_TRUE(set);
    EXPECT_EQ(rectOf(bar).bottom, client.bottom);
    EXPECT_EQ(rectOf(bar).left, 0);
    EXPECT_EQ(rectOf(bar).right, client.right);
    CClientDC dc(&bar);
    dc.SelectObject(bar.GetFont());
    TEXTMETRIC metrics;
    dc.GetTextMetrics(&metrics);
    EXPECT_GT(rectOf(bar).Height(), metrics.tmHeight + 2);
    EXPECT_EQ(rectOf(view).bottom, rectOf(bar).top);
    EXPECT_EQ(bar.GetCount(), 3);
    EXPECT_EQ(bar.GetItemID(1), kPane);
    EXPECT_EQ(bar.CommandToIndex(ID_INDICATOR_CAPS), 2);
    EXPECT_EQ(bar.CommandToIndex(99), -1);
    EXPECT_EQ(shownText(1), L"a pane");
    EXPECT_EQ(bar.GetPaneText(1), L"a pane");
    UINT id = 0, style = 0;
    int width = 0;
    bar.GetPaneInfo(1, id, style, width);
    EXPECT_EQ(id, kPane);
    EXPECT_EQ(style, SBPS_NORMAL);
    EXPECT_EQ(width, dc.GetTextExtent(L"a pane").cx);
    EXPECT_EQ(bar.GetPaneStyle(0), SBPS_STRETCH | SBPS_NOBORDERS);
}

TEST_F(StatusBar, TheStretchingPaneTakesWhatIsLeft) {
    const int before = pane(0).Width(), second = pane(1).Width();
    EXPECT_GT(second, 0);
    frame->SetWindowPos(nullptr, 0, 0, 600, 400, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(pane(0).Width(), before + 100);
    EXPECT_EQ(pane(1).Width(), second);
    CRect all;
    bar.GetClientRect(&all);
    EXPECT_LE(pane(2).right, all.right);
    EXPECT_GE(pane(2).right, all.right - 4);
    bar.SetPaneInfo(1, kPane, SBPS_NORMAL, 200);
    EXPECT_GE(pane(1).Width(), 200);
    EXPECT_LE(pane(1).Width(), 210);
    bar.SetPaneStyle(0, SBPS_NORMAL);
    bar.SetPaneStyle(1, SBPS_STRETCH);
    EXPECT_GE(pane(2).right, all.right - 4);
    EXPECT_GT(pane(1).Width(), 200);
}

TEST_F(StatusBar, ItsWindowTextIsTheFirstPane) {
    bar.SetWindowText(L"a message");
    EXPECT_EQ(shownText(0), L"a message");
    CString text;
    bar.GetWindowText(text);
    EXPECT_EQ(text, L"a message");
    EXPECT_EQ(shownText(1), L"a pane");
    wchar_t few[4] = {};
    EXPECT_EQ(::GetWindowTextW(bar.m_hWnd, few, 4), 3);
    EXPECT_STREQ(few, L"a m");
}

TEST_F(StatusBar, PaneTextsAreSetAtOnceOrAtIdle) {
    EXPECT_TRUE(bar.SetPaneText(2, L"now"));
    EXPECT_EQ(shownText(2), L"now");
    EXPECT_TRUE(bar.SetPaneText(2, L"later", FALSE));
    EXPECT_EQ(shownText(2), L"now");
    EXPECT_EQ(bar.GetPaneText(2), L"later");
    idle();
    bar.SetPaneStyle(2, SBPS_NORMAL);
    EXPECT_EQ(shownText(2), L"later");
    EXPECT_FALSE(bar.SetPaneText(3, L"x"));
    EXPECT_FALSE(bar.SetPaneText(-1, L"x"));
    EXPECT_EQ(bar.GetPaneText(3), L"");
    EXPECT_EQ(bar.GetItemID(3), 0u);
    EXPECT_TRUE(pane(3).IsRectEmpty());
    bar.SetPaneStyle(9, SBPS_POPOUT);
    bar.SetPaneInfo(9, 1, 2, 3);
}

TEST_F(StatusBar, TheFrameSaysAtIdleWhatPanesShow) {
    frame->paneText = L"told";
    frame->paneCheck = 1;
    idle();
    EXPECT_EQ(shownText(1), L"told");
    EXPECT_TRUE(bar.GetPaneStyle(1) & SBPS_POPOUT);
    int type = 0;
    bar.GetStatusBarCtrl().GetText(1, &type);
    EXPECT_EQ(type, SBT_POPOUT);
    frame->paneEnabled = FALSE;
    frame->paneCheck = 0;
    idle();
    EXPECT_EQ(shownText(1), L"");
    EXPECT_EQ(bar.GetPaneText(1), L"told");
    EXPECT_FALSE(bar.GetPaneStyle(1) & SBPS_POPOUT);
}

TEST_F(StatusBar, KeysAreShownWhileTheyAreOn) {
    BYTE keys[256] = {};
    ::GetKeyboardState(keys);
    for (const BYTE on : {1, 0, 1}) {
        keys[VK_CAPITAL] = on;
        ::SetKeyboardState(keys);
        idle();
        EXPECT_EQ(shownText(2), on ? L"CAP" : L"") << int(on);
    }
    keys[VK_CAPITAL] = 0;
    ::SetKeyboardState(keys);
}

TEST_F(StatusBar, AMissingStringLeavesThePanesAsTheyWere) {
    const UINT ids[] = {ID_SEPARATOR, 4711};
    EXPECT_FALSE(bar.SetIndicators(ids, 2));
    EXPECT_FALSE(bar.SetIndicators(ids, 0));
    EXPECT_EQ(bar.GetCount(), 3);
    EXPECT_TRUE(bar.SetIndicators(nullptr, 2));
    EXPECT_EQ(bar.GetCount(), 2);
    EXPECT_EQ(bar.GetItemID(1), 0u);
    CStatusBar none;
    EXPECT_FALSE(none.SetIndicators(ids, 1));
    EXPECT_FALSE(none.SetPaneText(0, L"x"));
}

TEST_F(StatusBar, OwnerDrawnPanesAreDrawnByTheBar) {
    class Drawn : public CStatusBar {
    public:
        std::vector<UINT> panes;
        void DrawItem(LPDRAWITEMSTRUCT item) override { panes.push_back(item->itemID); }
    } drawn;
    ASSERT_TRUE(drawn.CreateEx(frame, SBT_TOOLTIPS, WS_CHILD | WS_VISIBLE | CBRS_BOTTOM, 0xE811));
    const UINT ids[] = {ID_SEPARATOR, kPane};
    ASSERT_TRUE(drawn.SetIndicators(ids, 2));
    drawn.SetPaneStyle(1, SBPS_OWNERDRAW);
    frame->RecalcLayout();
    drawn.RedrawWindow();
    ASSERT_FALSE(drawn.panes.empty());
    EXPECT_EQ(drawn.panes.back(), 1u);
}

TEST_F(StatusBar, ShowsTheMessagesOfTheFrame) {
    EXPECT_EQ(frame->GetMessageBar(), &bar);
    idle();
    EXPECT_EQ(shownText(0), L"At rest");
    frame->SetMessageText(L"hello");
    EXPECT_EQ(shownText(0), L"hello");
    idle();
    EXPECT_EQ(shownText(0), L"hello");
    frame->SetMessageText(kNew);
    EXPECT_EQ(shownText(0), L"Makes a new thing");
    EXPECT_EQ(frame->m_nIDLastMessage, kNew);
    frame->SendMessage(WM_MENUSELECT, MAKEWPARAM(kOpen, 0), 1);
    EXPECT_EQ(shownText(0), L"Opens a thing");
    // The message of a tool does not take a menu's place.
    frame->SendMessage(WM_POPMESSAGESTRING, AFX_IDS_IDLEMESSAGE);
    EXPECT_EQ(shownText(0), L"Opens a thing");
    frame->SendMessage(WM_MENUSELECT, MAKEWPARAM(0, 0xFFFF), 0);
    EXPECT_EQ(shownText(0), L"At rest");
    frame->SetMessageText(kNew);
    frame->SendMessage(WM_POPMESSAGESTRING, AFX_IDS_IDLEMESSAGE);
    EXPECT_EQ(shownText(0), L"At rest");
}

TEST_F(StatusBar, IsShownAndHiddenFromTheMenu) {
    CMenu menu;
    menu.CreatePopupMenu();
    menu.AppendMenu(MF_STRING, ID_VIEW_STATUS_BAR, L"Status bar");
    menu.AppendMenu(MF_STRING, ID_VIEW_TOOLBAR, L"Toolbar");
    const auto open = [&] {
        frame->SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(menu.m_hMenu), 0);
    };
    open();
    EXPECT_TRUE(menu.GetMenuState(ID_VIEW_STATUS_BAR, MF_BYCOMMAND) & MF_CHECKED);
    frame->SendMessage(WM_COMMAND, ID_VIEW_STATUS_BAR);
    EXPECT_FALSE(bar.IsWindowVisible());
    EXPECT_EQ(rectOf(view).bottom, client.bottom);
    open();
    EXPECT_FALSE(menu.GetMenuState(ID_VIEW_STATUS_BAR, MF_BYCOMMAND) & MF_CHECKED);
    frame->SendMessage(WM_COMMAND, ID_VIEW_STATUS_BAR);
    EXPECT_TRUE(bar.IsWindowVisible());
    EXPECT_EQ(rectOf(view).bottom, rectOf(bar).top);
    // There is no toolbar.
    EXPECT_EQ(frame->SendMessage(WM_COMMAND, ID_VIEW_TOOLBAR), 0);
    EXPECT_TRUE(bar.IsWindowVisible());
}

TEST_F(StatusBar, ADelayedChangeComesAtIdle) {
    frame->ShowControlBar(&bar, FALSE, TRUE);
    EXPECT_TRUE(bar.IsWindowVisible());
    idle();
    EXPECT_FALSE(bar.IsWindowVisible());
    EXPECT_EQ(rectOf(view).bottom, client.bottom);
}

}  // namespace
