// What tabs, headers, status bars and tips are told by each function of their classes, and what comes back.
#include "message_listener.h"
#include "ui_test.h"

namespace {

using ui_test::handle_of;
using ui_test::HeardMessage;
using ToldTabs = ui_test::ToldControl<CTabCtrl>;
using ToldHeader = ui_test::ToldControl<CHeaderCtrl>;
using ToldStatusBar = ui_test::ToldControl<CStatusBarCtrl>;
using ToldTip = ui_test::ToldControl<CToolTipCtrl>;

}  // namespace

TEST_F(ToldTabs, OfEverything) {
    TCITEMW item = {};
    TCHITTESTINFO hit = {};
    CRect rect;
    TELLS(control.GetItemCount(), TCM_GETITEMCOUNT);
    TELLS(control.GetItem(3, &item), TCM_GETITEMW, 3, at(item));
    TELLS(control.SetItem(3, &item), TCM_SETITEMW, 3, at(item));
    TELLS(control.SetItemExtra(8), TCM_SETITEMEXTRA, 8);
    TELLS(control.GetItemRect(3, &rect), TCM_GETITEMRECT, 3, at(rect));
    TELLS(control.GetCurSel(), TCM_GETCURSEL);
    TELLS(control.SetCurSel(3), TCM_SETCURSEL, 3);
    TELLS(control.GetCurFocus(), TCM_GETCURFOCUS);
    TELLS(control.SetCurFocus(3), TCM_SETCURFOCUS, 3);
    TELLS(control.SetItemSize(CSize(60, 20)), TCM_SETITEMSIZE, 0, MAKELPARAM(60, 20));
    TELLS(control.SetPadding(CSize(6, 2)), TCM_SETPADDING, 0, MAKELPARAM(6, 2));
    TELLS(control.SetMinTabWidth(40), TCM_SETMINTABWIDTH, 0, 40);
    TELLS(control.GetRowCount(), TCM_GETROWCOUNT);
    TELLS(control.GetExtendedStyle(), TCM_GETEXTENDEDSTYLE);
    TELLS(control.SetExtendedStyle(2), TCM_SETEXTENDEDSTYLE, 0, 2);
    TELLS(control.SetExtendedStyle(2, 3), TCM_SETEXTENDEDSTYLE, 3, 2);
    TELLS(control.InsertItem(3, &item), TCM_INSERTITEMW, 3, at(item));
    TELLS(control.DeleteItem(3), TCM_DELETEITEM, 3);
    TELLS(control.DeleteAllItems(), TCM_DELETEALLITEMS);
    TELLS(control.AdjustRect(TRUE, &rect), TCM_ADJUSTRECT, TRUE, at(rect));
    TELLS(control.RemoveImage(3), TCM_REMOVEIMAGE, 3);
    TELLS(control.HitTest(&hit), TCM_HITTEST, 0, at(hit));
    TELLS(control.DeselectAll(TRUE), TCM_DESELECTALL, TRUE);
    TELLS(control.HighlightItem(3), TCM_HIGHLIGHTITEM, 3, TRUE);
    TELLS(control.HighlightItem(3, FALSE), TCM_HIGHLIGHTITEM, 3, FALSE);
}

TEST_F(ToldTabs, OfWholeItems) {
    TCITEMW item = {};
    listener.look = [&](const HeardMessage& heard) {
        item = *reinterpret_cast<TCITEMW*>(heard.lParam);
        reinterpret_cast<TCITEMW*>(heard.lParam)->dwState = TCIS_HIGHLIGHTED | TCIS_BUTTONPRESSED;
    };
    EXPECT_NE(control.InsertItem(2, L"plain"), 0);
    EXPECT_EQ(item.mask, static_cast<UINT>(TCIF_TEXT));
    EXPECT_STREQ(item.pszText, L"plain");
    EXPECT_EQ(listener.take().back().wParam, 2U);
    EXPECT_NE(control.InsertItem(2, L"pictured", 0), 0);
    EXPECT_EQ(item.mask, static_cast<UINT>(TCIF_TEXT | TCIF_IMAGE));
    EXPECT_EQ(item.iImage, 0);
    EXPECT_NE(control.InsertItem(TCIF_PARAM, 4, L"data", 5, 6), 0);
    EXPECT_EQ(item.mask, static_cast<UINT>(TCIF_PARAM));
    EXPECT_EQ(item.iImage, 5);
    EXPECT_EQ(item.lParam, 6);
    EXPECT_EQ(item.dwState + item.dwStateMask, 0U);
    EXPECT_NE(control.InsertItem(TCIF_STATE, 4, L"state", 5, 6, 7, 8), 0);
    EXPECT_EQ(item.dwState, 7U);
    EXPECT_EQ(item.dwStateMask, 8U);
    EXPECT_EQ(listener.take().back().wParam, 4U);
    EXPECT_NE(control.SetItemState(3, 9, 1), 0);
    EXPECT_EQ(item.mask, static_cast<UINT>(TCIF_STATE));
    EXPECT_EQ(item.dwStateMask, 9U);
    EXPECT_EQ(item.dwState, 1U);
    EXPECT_EQ(control.GetItemState(3, TCIS_HIGHLIGHTED), static_cast<DWORD>(TCIS_HIGHLIGHTED));
    EXPECT_EQ(item.mask, static_cast<UINT>(TCIF_STATE));
    EXPECT_EQ(listener.take().back().wParam, 3U);
    listener.answer = 0;
    EXPECT_EQ(control.GetItemState(3, TCIS_HIGHLIGHTED), 0U);
}

TEST_F(ToldHeader, OfEverything) {
    HDITEMW item = {};
    HDHITTESTINFO hit = {};
    HDLAYOUT layout = {};
    CRect rect;
    INT order[] = {1, 0};
    TELLS(control.GetItemCount(), HDM_GETITEMCOUNT);
    TELLS(control.GetItem(3, &item), HDM_GETITEMW, 3, at(item));
    TELLS(control.SetItem(3, &item), HDM_SETITEMW, 3, at(item));
    TELLS(control.InsertItem(3, &item), HDM_INSERTITEMW, 3, at(item));
    TELLS(control.DeleteItem(3), HDM_DELETEITEM, 3);
    TELLS(control.GetItemRect(3, &rect), HDM_GETITEMRECT, 3, at(rect));
    TELLS(control.HitTest(&hit), HDM_HITTEST, 0, at(hit));
    TELLS(control.OrderToIndex(3), HDM_ORDERTOINDEX, 3);
    TELLS(control.GetOrderArray(order, 2), HDM_GETORDERARRAY, 2, at(order[0]));
    TELLS(control.SetOrderArray(2, order), HDM_SETORDERARRAY, 2, at(order[0]));
    TELLS(control.Layout(&layout), HDM_LAYOUT, 0, at(layout));
    TELLS(control.SetHotDivider(3), HDM_SETHOTDIVIDER, FALSE, 3);
    TELLS(control.GetBitmapMargin(), HDM_GETBITMAPMARGIN);
    TELLS(control.SetBitmapMargin(4), HDM_SETBITMAPMARGIN, 4);
    listener.answer = 2;
    EXPECT_EQ(control.GetOrderArray(order), 2) << "of all items";
    const auto heard = listener.take();
    EXPECT_EQ(heard.back().wParam, 2U);
    CImageList images;
    images.Create(4, 4, ILC_COLOR, 1, 1);
    listener.answer = reinterpret_cast<LRESULT>(images.m_hImageList);
    EXPECT_EQ(control.SetImageList(&images), &images);
    EXPECT_EQ(listener.take().back().lParam, listener.answer);
    EXPECT_EQ(control.GetImageList(), &images);
    EXPECT_EQ(listener.take().back().message, static_cast<UINT>(HDM_GETIMAGELIST));
    EXPECT_EQ(control.CreateDragImage(3), &images);
    EXPECT_EQ(listener.take().back().wParam, 3U);
}

TEST_F(ToldStatusBar, OfEverything) {
    int edges[] = {50, -1, 0};
    CRect rect;
    TELLS(control.SetText(L"text", 2, SBT_POPOUT), SB_SETTEXTW, 2 | SBT_POPOUT, at(L"text"));
    TELLS(control.SetParts(2, edges), SB_SETPARTS, 2, at(edges[0]));
    TELLS(control.GetParts(2, edges), SB_GETPARTS, 2, at(edges[0]));
    TELLS(control.GetBorders(edges), SB_GETBORDERS, 0, at(edges[0]));
    TELLS(control.SetMinHeight(30), SB_SETMINHEIGHT, 30);
    TELLS(control.SetSimple(), SB_SIMPLE, TRUE);
    TELLS(control.SetSimple(FALSE), SB_SIMPLE, FALSE);
    TELLS(control.IsSimple(), SB_ISSIMPLE);
    TELLS(control.GetRect(3, &rect), SB_GETRECT, 3, at(rect));
    TELLS(control.SetBkColor(RGB(1, 2, 3)), SB_SETBKCOLOR, 0, RGB(1, 2, 3));
    TELLS(control.GetIcon(3), SB_GETICON, 3);
    TELLS(control.SetIcon(3, handle_of<HICON>(5)), SB_SETICON, 3, 5);
    TELLS(control.SetTipText(3, L"tip"), SB_SETTIPTEXTW, 3, at(L"tip"));
    int across = 0, down = 0, between = 0;
    listener.look = [](const HeardMessage& heard) {
        auto* const borders = reinterpret_cast<int*>(heard.lParam);
        borders[0] = 1, borders[1] = 2, borders[2] = 3;
    };
    EXPECT_TRUE(control.GetBorders(across, down, between));
    EXPECT_EQ(across, 1);
    EXPECT_EQ(down, 2);
    EXPECT_EQ(between, 3);
    listener.answer = 0;
    across = 9;
    EXPECT_FALSE(control.GetBorders(across, down, between));
    EXPECT_EQ(across, 9);
}

TEST_F(ToldStatusBar, TextsHaveALengthAndAType) {
    WORD type = SBT_POPOUT;
    listener.look = [&](const HeardMessage& heard) {
        EXPECT_EQ(LOWORD(heard.wParam), 3);
        listener.answer = MAKELRESULT(4, type);
        if (heard.message == SB_GETTEXTW || heard.message == SB_GETTIPTEXTW)
            ::lstrcpyW(reinterpret_cast<LPWSTR>(heard.lParam), L"four");
    };
    int said = 0;
    EXPECT_EQ(control.GetTextLength(3, &said), 4);
    EXPECT_EQ(said, SBT_POPOUT);
    EXPECT_EQ(control.GetTextLength(3), 4);
    said = 0;
    EXPECT_EQ(control.GetText(3, &said), L"four");
    EXPECT_EQ(said, SBT_POPOUT);
    EXPECT_EQ(control.GetText(3), L"four");
    EXPECT_EQ(control.GetTipText(3), L"four");
    EXPECT_EQ(HIWORD(listener.take().back().wParam), 1024) << "the room for a tip";
    type = SBT_OWNERDRAW;
    EXPECT_EQ(control.GetText(3, &said), L"") << "what is drawn by its owner has no text";
    EXPECT_EQ(listener.take().size(), 1U) << "and isn't asked for it";
    listener.look = nullptr;
    listener.answer = 0;
    EXPECT_EQ(control.GetText(3), L"");
    EXPECT_EQ(listener.take().size(), 1U);
}

TEST_F(ToldTip, OfEverything) {
    TOOLINFOW tool = {};
    CRect rect;
    CPoint place(30, 40);
    MSG message = {};
    TELLS(control.SetToolInfo(&tool), TTM_SETTOOLINFOW, 0, at(tool));
    TELLS(control.GetToolCount(), TTM_GETTOOLCOUNT);
    TELLS(control.Activate(TRUE), TTM_ACTIVATE, TRUE);
    TELLS(control.RelayEvent(&message), TTM_RELAYEVENT, 0, at(message));
    TELLS(control.Pop(), TTM_POP);
    TELLS(control.Popup(), TTM_POPUP);
    TELLS(control.Update(), TTM_UPDATE);
    TELLS(control.GetDelayTime(TTDT_INITIAL), TTM_GETDELAYTIME, TTDT_INITIAL);
    TELLS(control.SetDelayTime(500U), TTM_SETDELAYTIME, TTDT_AUTOMATIC, 500);
    TELLS(control.SetDelayTime(TTDT_AUTOPOP, 600), TTM_SETDELAYTIME, TTDT_AUTOPOP, 600);
    TELLS(control.GetMargin(&rect), TTM_GETMARGIN, 0, at(rect));
    TELLS(control.SetMargin(&rect), TTM_SETMARGIN, 0, at(rect));
    TELLS(control.GetMaxTipWidth(), TTM_GETMAXTIPWIDTH);
    TELLS(control.SetMaxTipWidth(-1), TTM_SETMAXTIPWIDTH, 0, -1);
    TELLS(control.GetTipBkColor(), TTM_GETTIPBKCOLOR);
    TELLS(control.SetTipBkColor(RGB(1, 2, 3)), TTM_SETTIPBKCOLOR, RGB(1, 2, 3));
    TELLS(control.GetTipTextColor(), TTM_GETTIPTEXTCOLOR);
    TELLS(control.SetTipTextColor(RGB(1, 2, 3)), TTM_SETTIPTEXTCOLOR, RGB(1, 2, 3));
    TELLS(control.SetTitle(TTI_INFO, L"title"), TTM_SETTITLEW, TTI_INFO, at(L"title"));
    TELLS(control.AdjustRect(&rect), TTM_ADJUSTRECT, TRUE, at(rect));
    TELLS(control.AdjustRect(&rect, FALSE), TTM_ADJUSTRECT, FALSE, at(rect));
    TELLS(control.GetBubbleSize(&tool), TTM_GETBUBBLESIZE, 0, at(tool));
    TELLS(control.GetCurrentTool(&tool), TTM_GETCURRENTTOOLW, 0, at(tool));
    TELLS(control.TrackActivate(&tool, TRUE), TTM_TRACKACTIVATE, TRUE, at(tool));
    TELLS(control.TrackPosition(&place), TTM_TRACKPOSITION, 0, MAKELPARAM(30, 40));
}

TEST_F(ToldTip, ToolsAreWindowsOrRectangles) {
    ui_test::ParentWindow parent;
    CWnd child;
    child.Create(L"STATIC", L"", WS_CHILD, CRect(0, 0, 20, 20), &parent, 5);
    TOOLINFOW tool = {};
    UINT message = 0;
    WPARAM room = 0;
    CString text;
    listener.look = [&](const HeardMessage& heard) {
        if (heard.message < WM_USER) return;  // the system's own, while windows come and go
        auto& told = *reinterpret_cast<TOOLINFOW*>(heard.lParam);
        tool = told;
        message = heard.message;
        room = heard.wParam;
        if (heard.message == TTM_GETTEXTW)
            ::lstrcpyW(told.lpszText, L"its text");
        else if (heard.message != TTM_GETTOOLINFOW && heard.message != TTM_DELTOOLW &&
                 heard.message != TTM_NEWTOOLRECTW)
            text = told.lpszText;
    };
    const auto expect_window = [&] {
        EXPECT_EQ(tool.cbSize, sizeof tool);
        EXPECT_EQ(tool.hwnd, parent.m_hWnd);
        EXPECT_EQ(tool.uFlags, static_cast<UINT>(TTF_IDISHWND));
        EXPECT_EQ(tool.uId, reinterpret_cast<UINT_PTR>(child.m_hWnd));
    };
    EXPECT_TRUE(control.AddTool(&child, L"of the child"));
    EXPECT_EQ(message, static_cast<UINT>(TTM_ADDTOOLW));
    expect_window();
    EXPECT_EQ(text, L"of the child");
    control.DelTool(&child);
    EXPECT_EQ(message, static_cast<UINT>(TTM_DELTOOLW));
    expect_window();
    const CRect area(3, 4, 15, 16);
    EXPECT_TRUE(control.AddTool(&parent, 215U, area, 8, 99));
    EXPECT_EQ(tool.hwnd, parent.m_hWnd);
    EXPECT_EQ(tool.uFlags, 0U);
    EXPECT_EQ(tool.uId, 8U);
    EXPECT_EQ(CRect(tool.rect), area);
    EXPECT_EQ(tool.lParam, 99);
    EXPECT_EQ(text, L"last of its block");
    control.UpdateTipText(L"another", &child);
    EXPECT_EQ(message, static_cast<UINT>(TTM_UPDATETIPTEXTW));
    expect_window();
    EXPECT_EQ(text, L"another");
    control.UpdateTipText(216U, &parent, 8);
    EXPECT_EQ(text, L"first of the next");
    EXPECT_EQ(tool.uId, 8U);
    control.SetToolRect(&parent, 9, area);
    EXPECT_EQ(message, static_cast<UINT>(TTM_NEWTOOLRECTW));
    EXPECT_EQ(tool.uId, 9U);
    EXPECT_EQ(CRect(tool.rect), area);
    CString read;
    control.GetText(read, &child);
    EXPECT_EQ(read, L"its text");
    expect_window();
    EXPECT_EQ(room, 1024U);
    TOOLINFOW info = {};
    EXPECT_TRUE(control.GetToolInfo(info, &parent, 9));
    EXPECT_EQ(message, static_cast<UINT>(TTM_GETTOOLINFOW));
    EXPECT_EQ(info.uId, 9U);
    listener.look = nullptr;
}

TEST_F(ToldTip, AToolIsFoundAtAPoint) {
    ui_test::ParentWindow parent;
    TTHITTESTINFOW asked = {};
    listener.look = [&](const HeardMessage& heard) {
        if (heard.message < WM_USER) return;
        auto& info = *reinterpret_cast<TTHITTESTINFOW*>(heard.lParam);
        asked = info;
        info.ti.uId = 12;
    };
    TOOLINFOW tool = {};
    EXPECT_TRUE(control.HitTest(&parent, CPoint(30, 40), &tool));
    EXPECT_EQ(asked.hwnd, parent.m_hWnd);
    EXPECT_EQ(CPoint(asked.pt), CPoint(30, 40));
    EXPECT_EQ(asked.ti.cbSize, sizeof tool);
    EXPECT_EQ(tool.uId, 12U);
    listener.answer = 0;
    tool.uId = 1;
    EXPECT_FALSE(control.HitTest(&parent, CPoint(30, 40), &tool));
    EXPECT_EQ(tool.uId, 1U);
    listener.look = nullptr;
}
