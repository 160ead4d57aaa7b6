// Toolbars in a frame: buttons from resources and one by one, places, states at idle, messages and tips.
#include <afxcmn.h>

#include <algorithm>
#include <string>
#include <vector>

#include "bars_frame.h"
#include "picture.h"

namespace {

using namespace bars;

class ToolBar : public FrameBars {
protected:
    ToolBar() {
        made =
            bar.CreateEx(frame, TBSTYLE_FLAT, WS_CHILD | WS_VISIBLE | CBRS_TOP | CBRS_TOOLTIPS | CBRS_FLYBY);
    }
    CPoint centre(int index) {
        CRect place;
        bar.GetItemRect(index, &place);
        return place.CenterPoint();
    }
    void click(int index) {
        const LPARAM at = MAKELPARAM(centre(index).x, centre(index).y);
        bar.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, at);
        bar.SendMessage(WM_LBUTTONUP, 0, at);
    }
    /// What the bar does with a move of the mouse to a place of its client area.
    void moveTo(CPoint point) {
        CPoint screen = point;
        bar.ClientToScreen(&screen);
        MSG move = {bar.m_hWnd, WM_MOUSEMOVE, 0, MAKELPARAM(point.x, point.y), 0, screen};
        CWnd::WalkPreTranslateTree(frame->m_hWnd, &move);
    }
    CToolBar bar;
    BOOL made;
};

TEST_F(ToolBar, ComesFromItsResource) {
    ASSERT_TRUE(made);
    ASSERT_TRUE(bar.LoadToolBar(440));
    EXPECT_EQ(bar.GetCount(), 4);
    EXPECT_EQ(bar.GetToolBarCtrl().GetButtonCount(), 4);
    EXPECT_EQ(bar.GetItemID(0), kNew);
    EXPECT_EQ(bar.GetItemID(1), kOpen);
    EXPECT_EQ(bar.GetItemID(2), static_cast<UINT>(ID_SEPARATOR));
    EXPECT_EQ(bar.GetItemID(3), kCut);
    EXPECT_EQ(bar.CommandToIndex(kCut), 3);
    EXPECT_EQ(bar.CommandToIndex(99), -1);
    std::vector<int> pictures;
    for (int i = 0; i < 4; ++i) {
        UINT id = 0, style = 0;
        int picture = 0;
        bar.GetButtonInfo(i, id, style, picture);
        EXPECT_EQ(style, i == 2 ? TBBS_SEPARATOR : TBBS_BUTTON) << i;
        pictures.push_back(picture);
    }
    EXPECT_EQ(pictures, (std::vector<int>{0, 1, 8, 2}));
    const CSize size = bar.GetToolBarCtrl().GetButtonSize();
    EXPECT_GE(size.cx, 8 + 7);
    EXPECT_GE(size.cy, 8 + 6);
}

TEST_F(ToolBar, ADamagedOrMissingResourceChangesNothing) {
    ASSERT_TRUE(bar.LoadToolBar(440));
    const CSize before = bar.GetToolBarCtrl().GetButtonSize();
    EXPECT_FALSE(bar.LoadToolBar(4711));
    EXPECT_FALSE(bar.LoadToolBar(441)) << "more commands than bytes";
    EXPECT_FALSE(bar.LoadToolBar(442)) << "another version";
    EXPECT_FALSE(bar.LoadToolBar(443)) << "no bitmap";
    EXPECT_FALSE(bar.LoadToolBar(445)) << "more commands than bytes, in double words";
    EXPECT_FALSE(bar.LoadToolBar(446)) << "too short";
    EXPECT_FALSE(bar.LoadBitmap(4711));
    EXPECT_FALSE(bar.SetBitmap(nullptr));
    EXPECT_EQ(bar.GetCount(), 4);
    EXPECT_EQ(bar.GetToolBarCtrl().GetButtonSize(), before);
    CToolBar none;
    EXPECT_FALSE(none.LoadToolBar(440));
    EXPECT_FALSE(none.SetButtons(nullptr, 2));
    EXPECT_EQ(none.GetItemID(0), static_cast<UINT>(ID_SEPARATOR));
}

TEST_F(ToolBar, ComesFromAStatementOfTheResourceCompilerToo) {
    ASSERT_TRUE(bar.LoadToolBar(444));
    EXPECT_EQ(bar.GetCount(), 3);
    EXPECT_EQ(bar.GetItemID(0), kNew);
    EXPECT_EQ(bar.GetItemID(1), static_cast<UINT>(ID_SEPARATOR));
    EXPECT_EQ(bar.GetItemID(2), kCut);
    EXPECT_EQ(bar.GetToolBarCtrl().GetButtonSize().cx, 8 + 7);
}

TEST_F(ToolBar, ShowsThePicturesOfItsBitmap) {
    ASSERT_TRUE(bar.LoadToolBar(440));
    frame->RecalcLayout();
    bar.UpdateWindow();
    // Each picture of the bitmap is of one colour.
    const COLORREF colors[] = {RGB(255, 0, 0), RGB(0, 255, 0), RGB(0, 0, 255)};
    int color = 0;
    for (const int index : {0, 1, 3}) {
        CRect place;
        bar.GetItemRect(index, &place);
        EXPECT_GE(ui_test::Picture(bar, place).count(colors[color]), 40) << index;
        ++color;
    }
}

TEST_F(ToolBar, ButtonsAreSetByCommandsAndOneByOne) {
    const UINT ids[] = {kNew, ID_SEPARATOR, kOpen};
    ASSERT_TRUE(bar.SetButtons(ids, 3));
    EXPECT_EQ(bar.GetCount(), 3);
    bar.SetButtonInfo(1, ID_SEPARATOR, TBBS_SEPARATOR, 40);
    CRect gap;
    bar.GetItemRect(1, &gap);
    EXPECT_EQ(gap.Width(), 40);
    bar.SetButtonInfo(0, kCut, TBBS_CHECKBOX, 2);
    UINT id = 0, style = 0;
    int picture = 0;
    bar.GetButtonInfo(0, id, style, picture);
    EXPECT_EQ(id, kCut);
    EXPECT_EQ(style, TBBS_CHECKBOX);
    EXPECT_EQ(picture, 2);
    bar.SetButtonStyle(0, TBBS_CHECKBOX | TBBS_CHECKED | TBBS_DISABLED);
    EXPECT_TRUE(bar.GetToolBarCtrl().IsButtonChecked(kCut));
    EXPECT_FALSE(bar.GetToolBarCtrl().IsButtonEnabled(kCut));
    EXPECT_EQ(bar.GetButtonStyle(0), TBBS_CHECKBOX | TBBS_CHECKED | TBBS_DISABLED);
    EXPECT_EQ(bar.GetButtonStyle(2), TBBS_BUTTON);
    EXPECT_EQ(bar.GetButtonStyle(9), TBBS_SEPARATOR);
    bar.SetButtonStyle(9, TBBS_CHECKBOX);
    bar.SetButtonInfo(-1, 1, 1, 1);
    ASSERT_TRUE(bar.SetButtons(nullptr, 2));
    EXPECT_EQ(bar.GetCount(), 2);
    CRect hidden;
    bar.GetItemRect(0, &hidden);
    EXPECT_TRUE(hidden.IsRectEmpty());
    bar.SetButtonInfo(0, kNew, TBBS_BUTTON, 0);
    bar.GetItemRect(0, &hidden);
    EXPECT_FALSE(hidden.IsRectEmpty());
    EXPECT_EQ(bar.CommandToIndex(kNew), 0);
}

TEST_F(ToolBar, TextsStandOnButtons) {
    ASSERT_TRUE(bar.LoadToolBar(440));
    EXPECT_EQ(bar.GetButtonText(0), L"");
    EXPECT_TRUE(bar.SetButtonText(0, L"New"));
    EXPECT_TRUE(bar.SetButtonText(1, L"Open"));
    EXPECT_TRUE(bar.SetButtonText(3, L"New"));
    CString text;
    bar.GetButtonText(1, text);
    EXPECT_EQ(text, L"Open");
    EXPECT_EQ(bar.GetButtonText(3), L"New");
    wchar_t own[32] = {};
    bar.GetToolBarCtrl().SendMessage(TB_GETBUTTONTEXTW, kNew, reinterpret_cast<LPARAM>(own));
    EXPECT_STREQ(own, L"New");
    // A change of the style keeps the text.
    bar.SetButtonStyle(0, TBBS_CHECKBOX);
    EXPECT_EQ(bar.GetButtonText(0), L"New");
    EXPECT_FALSE(bar.SetButtonText(7, L"x"));
    EXPECT_EQ(bar.GetButtonText(7), L"");
    EXPECT_EQ(bar.GetToolBarCtrl().GetString(1, text), 4);
    EXPECT_EQ(text, L"Open");
    EXPECT_EQ(bar.GetToolBarCtrl().GetString(2, text), -1) << "the same text is added once";
}

TEST_F(ToolBar, StandsAlongItsEdgeAsHighAsItsButtons) {
    ASSERT_TRUE(bar.LoadToolBar(440));
    frame->RecalcLayout();
    CRect button;
    bar.GetItemRect(0, &button);
    EXPECT_EQ(rectOf(bar), CRect(0, 0, client.right, button.bottom + 1)) << "and a line below";
    EXPECT_EQ(rectOf(view), CRect(0, button.bottom + 1, client.right, client.bottom));
    bar.SetHeight(50);
    frame->RecalcLayout();
    EXPECT_EQ(rectOf(bar).Height(), 51);
    bar.SetHeight(0);
    bar.SetSizes(CSize(40, 30), CSize(8, 8));
    frame->RecalcLayout();
    EXPECT_EQ(bar.GetToolBarCtrl().GetButtonSize(), CSize(40, 30));
    EXPECT_EQ(rectOf(bar).Height(), 31);
}

TEST_F(ToolBar, ItsSizeFollowsItsButtonsAndTheAskedDirection) {
    ASSERT_TRUE(bar.LoadToolBar(440));
    const CSize button = bar.GetToolBarCtrl().GetButtonSize();
    const CSize row = bar.CalcFixedLayout(FALSE, TRUE);
    EXPECT_EQ(row.cx, 3 * button.cx + 8);
    EXPECT_EQ(row.cy, button.cy + 1);
    EXPECT_EQ(bar.CalcFixedLayout(TRUE, TRUE), CSize(32767, row.cy));
    const CSize column = bar.CalcFixedLayout(FALSE, FALSE);
    EXPECT_EQ(column.cx, button.cx);
    EXPECT_GE(column.cy, 3 * button.cy);
    CRect first, second;
    bar.GetItemRect(0, &first);
    bar.GetItemRect(1, &second);
    EXPECT_EQ(first.top, second.top) << "the buttons stay in their row";
    EXPECT_EQ(bar.CalcFixedLayout(FALSE, TRUE), row) << "asking for the other direction changes nothing";
    const CSize narrow = bar.CalcDynamicLayout(2 * button.cx, LM_HORZ);
    EXPECT_EQ(narrow.cx, 2 * button.cx);
    EXPECT_GT(narrow.cy, button.cy + 1);
}

TEST_F(ToolBar, AtASideItStandsInAColumn) {
    ASSERT_TRUE(bar.LoadToolBar(440));
    bar.SetBarStyle(CBRS_ALIGN_LEFT);
    frame->RecalcLayout();
    const CSize button = bar.GetToolBarCtrl().GetButtonSize();
    EXPECT_EQ(rectOf(bar), CRect(0, 0, button.cx, client.bottom));
    CRect first, second;
    bar.GetItemRect(0, &first);
    bar.GetItemRect(1, &second);
    EXPECT_EQ(second.left, first.left);
    EXPECT_EQ(second.top, first.bottom);
}

TEST_F(ToolBar, BordersAreLeftAroundTheButtons) {
    CToolBar other;
    ASSERT_TRUE(other.CreateEx(frame, TBSTYLE_FLAT, WS_CHILD | WS_VISIBLE | CBRS_ALIGN_BOTTOM,
                               CRect(1, 2, 3, 4), 0xE810));
    ASSERT_TRUE(other.LoadToolBar(440));
    frame->RecalcLayout();
    CRect inside, window;
    other.GetClientRect(&inside);
    other.ClientToScreen(&inside);
    other.GetWindowRect(&window);
    EXPECT_EQ(inside.left - window.left, 1);
    EXPECT_EQ(inside.top - window.top, 2);
    EXPECT_EQ(window.right - inside.right, 3);
    EXPECT_EQ(window.bottom - inside.bottom, 4);
    EXPECT_EQ(window.Height(), other.GetToolBarCtrl().GetButtonSize().cy + 6);
}

TEST_F(ToolBar, AClickIsACommandOfTheFrame) {
    ASSERT_TRUE(bar.LoadToolBar(440));
    frame->RecalcLayout();
    click(0);
    EXPECT_EQ(frame->news, 1);
    frame->openEnabled = FALSE;
    idle();
    click(1);
    EXPECT_EQ(frame->news, 1);
}

TEST_F(ToolBar, TheFrameSaysAtIdleWhatTheButtonsAre) {
    ASSERT_TRUE(bar.LoadToolBar(440));
    CToolBarCtrl& control = bar.GetToolBarCtrl();
    frame->openEnabled = FALSE;
    frame->cutCheck = 1;
    idle();
    EXPECT_TRUE(control.IsButtonEnabled(kNew));
    EXPECT_FALSE(control.IsButtonEnabled(kOpen));
    EXPECT_TRUE(control.IsButtonChecked(kCut));
    EXPECT_EQ(bar.GetButtonStyle(3) & TBBS_CHECKBOX, TBBS_CHECKBOX);
    EXPECT_EQ(bar.GetButtonText(3), L"");
    frame->openEnabled = TRUE;
    frame->cutCheck = 2;
    idle();
    EXPECT_TRUE(control.IsButtonEnabled(kOpen));
    EXPECT_FALSE(control.IsButtonChecked(kCut));
    EXPECT_TRUE(control.IsButtonIndeterminate(kCut));
    frame->cutIsRadio = true;
    idle();
    EXPECT_TRUE(control.IsButtonChecked(kCut));
    EXPECT_FALSE(control.IsButtonIndeterminate(kCut));
    bar.SetButtonInfo(0, kUnhandled, TBBS_BUTTON, 0);
    idle();
    EXPECT_FALSE(control.IsButtonEnabled(kUnhandled)) << "nobody handles it";
}

TEST_F(ToolBar, AnArrowDropsDownThroughTheFrame) {
    ASSERT_TRUE(bar.LoadToolBar(440));
    bar.GetToolBarCtrl().SetExtendedStyle(TBSTYLE_EX_DRAWDDARROWS);
    bar.SetButtonStyle(1, TBBS_DROPDOWN);
    frame->RecalcLayout();
    CRect place;
    bar.GetItemRect(1, &place);
    bar.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(place.right - 4, place.CenterPoint().y));
    bar.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(place.right - 4, place.CenterPoint().y));
    EXPECT_EQ(frame->dropDowns, static_cast<int>(kOpen));
}

TEST_F(ToolBar, ControlsInItWorkAsInADialogBar) {
    ASSERT_TRUE(bar.LoadToolBar(440));
    frame->RecalcLayout();
    CButton inside;
    inside.Create(L"x", WS_CHILD | WS_VISIBLE, CRect(200, 2, 230, 20), &bar, kNew);
    inside.SendMessage(BM_CLICK);
    EXPECT_EQ(frame->news, 1);
    TOOLINFO tool = {};
    tool.cbSize = TTTOOLINFOW_V1_SIZE;
    EXPECT_EQ(bar.OnToolHitTest(CPoint(210, 10), &tool), static_cast<INT_PTR>(kNew));
    EXPECT_EQ(tool.uId, reinterpret_cast<UINT_PTR>(inside.m_hWnd));
    inside.SetDlgCtrlID(static_cast<int>(kUnhandled));
    idle();
    EXPECT_FALSE(inside.IsWindowEnabled());
}

TEST_F(ToolBar, ToolsAreFoundUnderTheMouse) {
    ASSERT_TRUE(bar.LoadToolBar(440));
    TOOLINFO tool = {};
    tool.cbSize = TTTOOLINFOW_V1_SIZE;
    EXPECT_EQ(bar.OnToolHitTest(centre(1), &tool), static_cast<INT_PTR>(kOpen));
    CRect place;
    bar.GetItemRect(1, &place);
    EXPECT_EQ(CRect(tool.rect), place);
    EXPECT_EQ(tool.uId, kOpen);
    EXPECT_EQ(tool.lpszText, LPSTR_TEXTCALLBACKW);
    EXPECT_EQ(bar.OnToolHitTest(centre(2), &tool), -1) << "a gap";
    EXPECT_EQ(bar.OnToolHitTest(CPoint(400, 5), &tool), -1);
}

TEST_F(ToolBar, TheFrameAnswersTipsWithTheSecondLine) {
    NMTTDISPINFOW question = {};
    CToolTipCtrl tip;
    tip.Create(frame);
    question.hdr = {tip.m_hWnd, kNew, static_cast<UINT>(TTN_NEEDTEXTW)};
    bar.SendMessage(WM_NOTIFY, kNew, reinterpret_cast<LPARAM>(&question));
    ASSERT_NE(question.lpszText, nullptr);
    EXPECT_STREQ(question.lpszText, L"New thing");
    CButton child;
    child.Create(L"x", WS_CHILD, CRect(0, 0, 1, 1), &bar, kOpen);
    question.hdr.idFrom = reinterpret_cast<UINT_PTR>(child.m_hWnd);
    question.uFlags = TTF_IDISHWND;
    bar.SendMessage(WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&question));
    EXPECT_STREQ(question.lpszText, L"Open thing");
    question.uFlags = 0;
    question.lpszText = nullptr;
    for (const UINT without : {kCut, kUnhandled}) {
        question.hdr.idFrom = without;
        bar.SendMessage(WM_NOTIFY, without, reinterpret_cast<LPARAM>(&question));
        EXPECT_EQ(question.lpszText, nullptr) << without;
    }
}

TEST_F(ToolBar, ATipIsShownForAButton) {
    ASSERT_TRUE(bar.LoadToolBar(440));
    frame->RecalcLayout();
    CPoint screen = centre(0);
    bar.ClientToScreen(&screen);
    ASSERT_TRUE(ui_test::move_cursor(screen));
    moveTo(centre(0));
    HWND tip = nullptr;
    EXPECT_TRUE(ui_test::pump_until([&] {
        tip = ::FindWindowExW(nullptr, tip, TOOLTIPS_CLASSW, nullptr);
        return tip != nullptr && ::IsWindowVisible(tip) && ui_test::text_of(tip) == L"New thing";
    }));
    bar.SetBarStyle(bar.GetBarStyle() & ~CBRS_TOOLTIPS);
    EXPECT_FALSE(bar.m_nFlags & WF_TOOLTIPS);
}

TEST_F(ToolBar, TheMessageOfTheToolUnderTheMouseIsShown) {
    ASSERT_TRUE(bar.LoadToolBar(440));
    CStatusBar status;
    status.Create(frame);
    const UINT ids[] = {ID_SEPARATOR};
    status.SetIndicators(ids, 1);
    frame->RecalcLayout();
    moveTo(centre(0));
    EXPECT_EQ(status.GetPaneText(0), L"Makes a new thing");
    moveTo(centre(1));
    EXPECT_EQ(status.GetPaneText(0), L"Opens a thing");
    moveTo(centre(2));
    EXPECT_EQ(status.GetPaneText(0), L"At rest");
    moveTo(centre(0));
    bar.SendMessage(WM_MOUSELEAVE);
    EXPECT_EQ(status.GetPaneText(0), L"At rest");
    bar.SetBarStyle(bar.GetBarStyle() & ~CBRS_FLYBY);
    moveTo(centre(1));
    EXPECT_EQ(status.GetPaneText(0), L"At rest");
}

}  // namespace
