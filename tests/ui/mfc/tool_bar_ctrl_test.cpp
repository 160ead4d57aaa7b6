// The system's toolbar by the names of its messages.
#include <afxcmn.h>

#include <algorithm>
#include <string>
#include <vector>

#include "bars_frame.h"

namespace {

using namespace bars;

TEST_F(FrameBars, TheControlOfTheSystemHasItsMessages) {
    CToolBarCtrl control;
    ASSERT_TRUE(control.Create(WS_CHILD | WS_VISIBLE | CCS_NORESIZE, CRect(0, 0, 300, 40), frame, 77));
    TBBUTTON buttons[3] = {};
    for (int i = 0; i < 3; ++i) {
        buttons[i].idCommand = 100 + i;
        buttons[i].fsState = TBSTATE_ENABLED;
        buttons[i].iString = -1;
        buttons[i].iBitmap = I_IMAGENONE;
    }
    EXPECT_TRUE(control.AddButtons(3, buttons));
    EXPECT_EQ(control.GetButtonCount(), 3);
    EXPECT_EQ(control.CommandToIndex(102), 2);
    EXPECT_TRUE(control.MoveButton(2, 0));
    EXPECT_EQ(control.CommandToIndex(102), 0);
    EXPECT_TRUE(control.SetCmdID(0, 110));
    EXPECT_EQ(control.CommandToIndex(110), 0);
    EXPECT_TRUE(control.DeleteButton(0));
    EXPECT_EQ(control.GetButtonCount(), 2);
    EXPECT_TRUE(control.CheckButton(100));
    EXPECT_TRUE(control.IsButtonChecked(100));
    EXPECT_TRUE(control.EnableButton(100, FALSE));
    EXPECT_FALSE(control.IsButtonEnabled(100));
    EXPECT_TRUE(control.HideButton(101));
    EXPECT_TRUE(control.IsButtonHidden(101));
    EXPECT_TRUE(control.SetState(101, TBSTATE_ENABLED | TBSTATE_PRESSED));
    EXPECT_EQ(control.GetState(101), TBSTATE_ENABLED | TBSTATE_PRESSED);
    EXPECT_TRUE(control.IsButtonPressed(101));
    EXPECT_TRUE(control.PressButton(101, FALSE));
    EXPECT_FALSE(control.IsButtonPressed(101));
    EXPECT_EQ(control.AddString(500), 0);
    EXPECT_EQ(control.AddString(4711), -1);
    CString text;
    EXPECT_EQ(control.GetString(0, text), 23);
    EXPECT_EQ(text, L"a string of the control");
    TBBUTTONINFO info = {};
    info.dwMask = TBIF_LPARAM;
    info.lParam = 42;
    EXPECT_TRUE(control.SetButtonInfo(100, &info));
    info.lParam = 0;
    EXPECT_TRUE(control.GetButtonInfo(100, &info));
    EXPECT_EQ(info.lParam, 42u);
    EXPECT_FALSE(control.GetButtonInfo(4711, &info));
    EXPECT_TRUE(control.SetButtonSize(CSize(33, 27)));
    EXPECT_EQ(control.GetButtonSize().cy, 27);
    CImageList images;
    images.Create(8, 8, ILC_COLOR24, 1, 1);
    EXPECT_EQ(control.SetImageList(&images), nullptr);
    EXPECT_EQ(control.GetImageList()->m_hImageList, images.m_hImageList);
    EXPECT_EQ(control.SetHotImageList(&images), nullptr);
    EXPECT_EQ(control.GetHotImageList()->m_hImageList, images.m_hImageList);
    EXPECT_EQ(control.SetDisabledImageList(&images), nullptr);
    EXPECT_EQ(control.GetDisabledImageList()->m_hImageList, images.m_hImageList);
    CRect place, byId;
    EXPECT_TRUE(control.GetItemRect(0, &place));
    EXPECT_TRUE(control.GetRect(100, &byId));
    EXPECT_EQ(place, byId);
    CPoint inside = place.CenterPoint();
    EXPECT_EQ(control.HitTest(&inside), 0);
    EXPECT_EQ(control.AddBitmap(1, static_cast<CBitmap*>(nullptr)), -1);
    control.SetOwner(&view);
    control.SetOwner(nullptr);
    control.SetStyle(control.GetStyle() | TBSTYLE_FLAT);
    EXPECT_TRUE(control.GetStyle() & TBSTYLE_FLAT);
    control.SetToolTips(nullptr);
    EXPECT_EQ(control.GetToolTips(), nullptr);
    EXPECT_EQ(control.GetRows(), 1);
}

}  // namespace
