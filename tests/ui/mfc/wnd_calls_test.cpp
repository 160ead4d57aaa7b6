// What CWnd's functions do to a window, as the system tells it afterwards.
#include <afxcmn.h>
#include <afxext.h>

#include "message_listener.h"
#include "ui_test.h"

namespace {

using ui_test::HeardMessage;

constexpr int kEdit = 31, kCheck = 32, kFirstRadio = 33, kLastRadio = 35, kList = 36;

/// A parent with an edit control, a check box, three radio buttons and a list box.
struct WindowCalls : ::testing::Test {
    WindowCalls() {
        edit.Create(WS_CHILD | WS_VISIBLE | WS_TABSTOP | WS_GROUP, CRect(10, 20, 110, 40), &parent, kEdit);
        check.Create(L"check", WS_CHILD | WS_VISIBLE | BS_AUTOCHECKBOX | WS_TABSTOP, CRect(10, 50, 110, 70),
                     &parent, kCheck);
        for (int i = 0; i < 3; ++i)
            radios[i].Create(
                L"radio", WS_CHILD | WS_VISIBLE | BS_AUTORADIOBUTTON | (i == 0 ? WS_GROUP | WS_TABSTOP : 0),
                CRect(10, 80 + 20 * i, 110, 100 + 20 * i), &parent, static_cast<UINT>(kFirstRadio + i));
        list.Create(WS_CHILD | WS_VISIBLE | WS_GROUP | WS_TABSTOP | WS_VSCROLL | WS_HSCROLL,
                    CRect(200, 20, 300, 120), &parent, kList);
    }
    CRect place_of(const CWnd& window) const {
        CRect place;
        ::GetWindowRect(window.m_hWnd, &place);
        ::MapWindowPoints(nullptr, parent.m_hWnd, reinterpret_cast<POINT*>(&place), 2);
        return place;
    }
    CString text_of(const CWnd& window) const { return ui_test::text_of(window.m_hWnd); }

    ui_test::ParentWindow parent;
    CEdit edit;
    CButton check, radios[3];
    CListBox list;
};

}  // namespace

TEST_F(WindowCalls, TextsAreSetAndRead) {
    edit.SetWindowText(L"a text");
    EXPECT_EQ(text_of(edit), L"a text");
    EXPECT_EQ(edit.GetWindowTextLength(), 6);
    wchar_t few[4] = L"";
    EXPECT_EQ(edit.GetWindowText(few, 4), 3);
    EXPECT_STREQ(few, L"a t");
    CString whole;
    edit.GetWindowText(whole);
    EXPECT_EQ(whole, L"a text");
    parent.SetDlgItemText(kEdit, L"another");
    EXPECT_EQ(text_of(edit), L"another");
    EXPECT_EQ(parent.GetDlgItemText(kEdit, few, 4), 3);
    EXPECT_EQ(parent.GetDlgItemText(kEdit, whole), 7);
    EXPECT_EQ(whole, L"another");
    EXPECT_EQ(parent.GetDlgItemText(99, whole), 0);
    EXPECT_EQ(whole, L"");
}

TEST_F(WindowCalls, ATextIsSetOnlyWhereItDiffers) {
    int changes = 0;
    struct Counting : CEdit {
        int* changes;
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
            *changes += message == WM_SETTEXT;
            return CEdit::WindowProc(message, wParam, lParam);
        }
    } counting;
    counting.changes = &changes;
    counting.Create(WS_CHILD, CRect(0, 0, 9, 9), &parent, 40);
    AfxSetWindowText(counting.m_hWnd, L"one");
    AfxSetWindowText(counting.m_hWnd, L"one");
    EXPECT_EQ(changes, 1);
    AfxSetWindowText(counting.m_hWnd, L"two");
    EXPECT_EQ(changes, 2);
    EXPECT_EQ(text_of(counting), L"two");
    counting.DestroyWindow();
}

TEST_F(WindowCalls, NumbersOfItemsHaveASign) {
    BOOL read = FALSE;
    parent.SetDlgItemInt(kEdit, static_cast<UINT>(-7));
    EXPECT_EQ(text_of(edit), L"-7");
    EXPECT_EQ(static_cast<int>(parent.GetDlgItemInt(kEdit, &read)), -7);
    EXPECT_TRUE(read);
    parent.SetDlgItemInt(kEdit, static_cast<UINT>(-7), FALSE);
    EXPECT_EQ(text_of(edit), L"4294967289");
    EXPECT_EQ(parent.GetDlgItemInt(kEdit, &read, FALSE), 4294967289U);
    EXPECT_TRUE(read);
    parent.GetDlgItemInt(kEdit, &read);
    EXPECT_FALSE(read) << "too large with a sign";
}

TEST_F(WindowCalls, ButtonsAreChecked) {
    parent.CheckDlgButton(kCheck, BST_CHECKED);
    EXPECT_EQ(parent.IsDlgButtonChecked(kCheck), static_cast<UINT>(BST_CHECKED));
    EXPECT_EQ(parent.GetCheckedRadioButton(kFirstRadio, kLastRadio), 0);
    parent.CheckRadioButton(kFirstRadio, kLastRadio, kFirstRadio + 1);
    EXPECT_EQ(parent.GetCheckedRadioButton(kFirstRadio, kLastRadio), kFirstRadio + 1);
    EXPECT_EQ(parent.GetCheckedRadioButton(kFirstRadio, kFirstRadio), 0) << "not among these";
    EXPECT_EQ(radios[1].GetCheck(), BST_CHECKED);
    parent.CheckRadioButton(kFirstRadio, kLastRadio, kLastRadio);
    EXPECT_EQ(radios[1].GetCheck(), BST_UNCHECKED);
    EXPECT_EQ(parent.GetCheckedRadioButton(kFirstRadio, kLastRadio), kLastRadio);
    EXPECT_EQ(parent.SendDlgItemMessage(kCheck, BM_GETCHECK), BST_CHECKED);
    parent.SendDlgItemMessage(kCheck, BM_SETCHECK, BST_UNCHECKED);
    EXPECT_EQ(check.GetCheck(), BST_UNCHECKED);
    EXPECT_EQ(parent.SendDlgItemMessage(kList, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(L"line")), 0);
    EXPECT_EQ(list.GetCount(), 1);
}

TEST_F(WindowCalls, PlacesAndSizes) {
    edit.MoveWindow(15, 25, 90, 30);
    EXPECT_EQ(place_of(edit), CRect(15, 25, 105, 55));
    edit.MoveWindow(CRect(11, 12, 73, 44));
    EXPECT_EQ(place_of(edit), CRect(11, 12, 73, 44));
    EXPECT_TRUE(edit.SetWindowPos(nullptr, 17, 18, 50, 20, SWP_NOZORDER));
    EXPECT_EQ(place_of(edit), CRect(17, 18, 67, 38));
    EXPECT_EQ(::GetTopWindow(parent.m_hWnd), edit.m_hWnd);
    edit.SetWindowPos(&check, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOMOVE);
    EXPECT_EQ(::GetTopWindow(parent.m_hWnd), check.m_hWnd) << "behind the other one";
    edit.BringWindowToTop();
    EXPECT_EQ(::GetTopWindow(parent.m_hWnd), edit.m_hWnd);
    CRect client;
    edit.GetClientRect(&client);
    EXPECT_EQ(client.Size(), CSize(50, 20));
    CRect screen;
    edit.GetWindowRect(&screen);
    parent.ScreenToClient(&screen);
    EXPECT_EQ(screen, CRect(17, 18, 67, 38));
    parent.ClientToScreen(&screen);
    CRect expected;
    ::GetWindowRect(edit.m_hWnd, &expected);
    EXPECT_EQ(screen, expected);
    CPoint point(3, 4), there(3, 4);
    edit.ClientToScreen(&point);
    ::ClientToScreen(edit.m_hWnd, &there);
    EXPECT_EQ(point, there);
    edit.ScreenToClient(&point);
    EXPECT_EQ(point, CPoint(3, 4));
    CPoint two[] = {{1, 1}, {2, 2}};
    edit.MapWindowPoints(&parent, two, 1);
    EXPECT_EQ(two[0], CPoint(18, 19));
    EXPECT_EQ(two[1], CPoint(2, 2));
    CRect box(1, 2, 3, 4);
    edit.MapWindowPoints(&parent, &box);
    EXPECT_EQ(box, CRect(18, 20, 20, 22));
}

TEST_F(WindowCalls, StylesChangeAndTellTheFrame) {
    EXPECT_FALSE(edit.ModifyStyle(0, WS_VISIBLE)) << "it had that already";
    EXPECT_TRUE(edit.ModifyStyle(WS_TABSTOP, ES_READONLY));
    EXPECT_EQ(::GetWindowLongW(edit.m_hWnd, GWL_STYLE) & (WS_TABSTOP | ES_READONLY), ES_READONLY);
    EXPECT_EQ(edit.GetStyle(), static_cast<DWORD>(::GetWindowLongW(edit.m_hWnd, GWL_STYLE)));
    CRect before, after;
    edit.GetClientRect(&before);
    EXPECT_TRUE(edit.ModifyStyleEx(0, WS_EX_CLIENTEDGE, SWP_FRAMECHANGED));
    edit.GetClientRect(&after);
    EXPECT_EQ(after.Width(), before.Width() - 2 * ::GetSystemMetrics(SM_CXEDGE)) << "the frame was told";
    EXPECT_EQ(place_of(edit), CRect(10, 20, 110, 40)) << "nothing moved";
    EXPECT_EQ(::GetTopWindow(parent.m_hWnd), edit.m_hWnd);
    EXPECT_TRUE(edit.ModifyStyleEx(WS_EX_CLIENTEDGE, 0));
    edit.GetClientRect(&before);
    EXPECT_EQ(before, after) << "nobody was told";
    EXPECT_EQ(edit.GetExStyle() & WS_EX_CLIENTEDGE, 0U);
}

TEST_F(WindowCalls, VisibilityAndInput) {
    EXPECT_TRUE(edit.IsWindowVisible());
    EXPECT_TRUE(edit.ShowWindow(SW_HIDE)) << "it was shown";
    EXPECT_FALSE(::IsWindowVisible(edit.m_hWnd));
    EXPECT_FALSE(edit.ShowWindow(SW_SHOWNA));
    EXPECT_TRUE(edit.IsWindowEnabled());
    EXPECT_FALSE(edit.EnableWindow(FALSE)) << "it was enabled";
    EXPECT_FALSE(edit.IsWindowEnabled());
    EXPECT_TRUE(edit.EnableWindow());
    EXPECT_TRUE(::IsWindowEnabled(edit.m_hWnd));
    parent.SetActiveWindow();
    EXPECT_EQ(CWnd::GetActiveWindow(), &parent);
    edit.SetFocus();
    EXPECT_EQ(CWnd::GetFocus(), &edit);
    EXPECT_EQ(check.SetFocus(), &edit) << "the one before";
    EXPECT_EQ(edit.SetCapture(), nullptr);
    EXPECT_EQ(CWnd::GetCapture(), &edit);
    EXPECT_EQ(check.SetCapture(), &edit);
    ::ReleaseCapture();
    EXPECT_EQ(CWnd::GetCapture(), nullptr);
    EXPECT_EQ(CWnd::GetDesktopWindow()->m_hWnd, ::GetDesktopWindow());
}

TEST_F(WindowCalls, MinimisedMaximisedAndPlaced) {
    EXPECT_FALSE(parent.IsZoomed());
    parent.ShowWindow(SW_MAXIMIZE);
    EXPECT_TRUE(parent.IsZoomed());
    WINDOWPLACEMENT placement = {};
    EXPECT_TRUE(parent.GetWindowPlacement(&placement));
    EXPECT_EQ(placement.length, sizeof placement);
    EXPECT_EQ(placement.showCmd, static_cast<UINT>(SW_SHOWMAXIMIZED));
    placement.showCmd = SW_SHOWNORMAL;
    placement.rcNormalPosition = CRect(40, 50, 340, 300);
    EXPECT_TRUE(parent.SetWindowPlacement(&placement));
    CRect window;
    parent.GetWindowRect(&window);
    EXPECT_EQ(window, CRect(40, 50, 340, 300));
    EXPECT_FALSE(parent.IsIconic());
    parent.CloseWindow();
    EXPECT_TRUE(parent.IsIconic());
    EXPECT_TRUE(parent.OpenIcon());
    EXPECT_FALSE(parent.IsIconic());
}

TEST_F(WindowCalls, NeighboursParentsAndChildren) {
    EXPECT_EQ(edit.GetParent(), &parent);
    EXPECT_EQ(edit.GetAncestor(GA_ROOT), &parent);
    EXPECT_EQ(parent.GetTopWindow(), &edit);
    EXPECT_EQ(edit.GetNextWindow(), &check);
    EXPECT_EQ(check.GetNextWindow(GW_HWNDPREV), &edit);
    EXPECT_EQ(edit.GetWindow(GW_HWNDLAST), &list);
    EXPECT_TRUE(parent.IsChild(&edit));
    EXPECT_FALSE(edit.IsChild(&parent));
    EXPECT_FALSE(parent.IsChild(nullptr));
    EXPECT_EQ(parent.GetDlgItem(kCheck), &check);
    EXPECT_EQ(parent.GetDlgItem(99), nullptr);
    HWND found = nullptr;
    parent.GetDlgItem(kCheck, &found);
    EXPECT_EQ(found, check.m_hWnd);
    EXPECT_EQ(parent.ChildWindowFromPoint(CPoint(20, 60)), &check);
    check.ShowWindow(SW_HIDE);
    EXPECT_EQ(parent.ChildWindowFromPoint(CPoint(20, 60), CWP_SKIPINVISIBLE), &parent);
    EXPECT_EQ(CWnd::FindWindowEx(parent, nullptr, L"Button", L"check"), &check);
    EXPECT_EQ(CWnd::FindWindowEx(parent, check, L"Button", L"radio"), &radios[0]);
    parent.SetWindowText(L"a title of its own");
    EXPECT_EQ(CWnd::FindWindow(nullptr, L"a title of its own"), &parent);
    EXPECT_EQ(CWnd::FindWindow(L"no such class", L"a title of its own"), nullptr);
    EXPECT_EQ(edit.GetDlgCtrlID(), kEdit);
    EXPECT_EQ(edit.SetDlgCtrlID(77), kEdit);
    EXPECT_EQ(::GetDlgItem(parent.m_hWnd, 77), edit.m_hWnd);
    EXPECT_EQ(edit.SetParent(&list), &parent);
    EXPECT_EQ(::GetParent(edit.m_hWnd), list.m_hWnd);
    edit.SetParent(&parent);
    CPoint inside(5, 5);
    list.ClientToScreen(&inside);
    EXPECT_EQ(CWnd::WindowFromPoint(inside), &list);
}

TEST_F(WindowCalls, OwnersAndTheTop) {
    CWnd popup, deeper, child;
    popup.CreateEx(0, L"STATIC", L"", WS_POPUP, CRect(0, 0, 9, 9), &parent, 0);
    child.Create(L"STATIC", L"", WS_CHILD, CRect(0, 0, 9, 9), &popup, 5);
    deeper.CreateEx(0, L"STATIC", L"", WS_POPUP, CRect(0, 0, 9, 9), &popup, 0);
    EXPECT_EQ(popup.GetParentOwner(), &parent);
    EXPECT_EQ(child.GetParentOwner(), &popup);
    EXPECT_EQ(child.GetTopLevelParent(), &parent);
    EXPECT_EQ(child.GetTopLevelOwner(), &parent);
    EXPECT_EQ(deeper.GetTopLevelOwner(), &parent);
    EXPECT_EQ(edit.GetTopLevelOwner(), &parent) << "of a child, that of the window it stands in";
    CWnd none;
    EXPECT_EQ(none.GetTopLevelParent(), nullptr);
    EXPECT_EQ(none.GetTopLevelOwner(), nullptr);
    EXPECT_EQ(child.GetOwner(), &popup);
    child.SetOwner(&list);
    EXPECT_EQ(child.GetOwner(), &list);
    child.SetOwner(nullptr);
    EXPECT_EQ(child.GetOwner(), &popup);
    EXPECT_EQ(parent.GetLastActivePopup(), &parent);
    EXPECT_EQ(child.GetParentFrame(), nullptr);
    EXPECT_EQ(child.GetTopLevelFrame(), nullptr);
}

TEST_F(WindowCalls, ASafeOwnerIsNoChildAndItsTopWaits) {
    CWnd popup, child;
    popup.CreateEx(0, L"STATIC", L"", WS_POPUP | WS_VISIBLE, CRect(0, 0, 9, 9), &parent, 0);
    child.Create(L"STATIC", L"", WS_CHILD, CRect(0, 0, 9, 9), &popup, 5);
    HWND top = nullptr;
    EXPECT_EQ(CWnd::GetSafeOwner(&child, &top), &popup);
    EXPECT_EQ(top, parent.m_hWnd);
    EXPECT_FALSE(::IsWindowEnabled(parent.m_hWnd)) << "until the caller enables it again";
    EXPECT_EQ(CWnd::GetSafeOwner(&popup, &top), &popup);
    EXPECT_EQ(top, nullptr) << "it was disabled already";
    parent.EnableWindow(TRUE);
    EXPECT_EQ(CWnd::GetSafeOwner(&parent, &top), &parent);
    EXPECT_EQ(top, nullptr) << "the owner itself isn't";
    EXPECT_TRUE(::IsWindowEnabled(parent.m_hWnd));
    EXPECT_EQ(CWnd::GetSafeOwner(&child), &popup);
    EXPECT_TRUE(::IsWindowEnabled(parent.m_hWnd)) << "nobody asked";
}

TEST_F(WindowCalls, DescendantsAreFoundAndTold) {
    CWnd inner, innermost;
    inner.Create(L"STATIC", L"", WS_CHILD, CRect(0, 0, 50, 50), &parent, 50);
    innermost.Create(L"STATIC", L"", WS_CHILD, CRect(0, 0, 20, 20), &inner, 51);
    EXPECT_EQ(parent.GetDescendantWindow(51), &innermost);
    EXPECT_EQ(parent.GetDescendantWindow(51, TRUE), &innermost);
    EXPECT_EQ(parent.GetDescendantWindow(99), nullptr);
    const HWND bare = ::CreateWindowExW(0, L"STATIC", L"", WS_CHILD, 0, 0, 9, 9, inner.m_hWnd,
                                        reinterpret_cast<HMENU>(52), nullptr, nullptr);
    EXPECT_EQ(parent.GetDescendantWindow(52)->m_hWnd, bare);
    CWnd::DeleteTempMap();
    EXPECT_EQ(parent.GetDescendantWindow(52, TRUE), nullptr) << "it has no object";
    inner.SendMessageToDescendants(WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L"told"));
    EXPECT_EQ(text_of(innermost), L"told");
    EXPECT_EQ(ui_test::text_of(bare), L"told");
    parent.SendMessageToDescendants(WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L"shallow"), FALSE);
    EXPECT_EQ(text_of(inner), L"shallow");
    EXPECT_EQ(text_of(innermost), L"told");
    parent.SendMessageToDescendants(WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L"objects"), TRUE, TRUE);
    EXPECT_EQ(text_of(innermost), L"objects");
    EXPECT_EQ(ui_test::text_of(bare), L"told");
}

TEST_F(WindowCalls, ItemsOfTheDialogFollowEachOther) {
    EXPECT_EQ(parent.GetNextDlgTabItem(&edit), &check);
    EXPECT_EQ(parent.GetNextDlgTabItem(&check, TRUE), &edit);
    EXPECT_EQ(parent.GetNextDlgGroupItem(&radios[0]), &radios[1]);
    EXPECT_EQ(parent.GetNextDlgGroupItem(&radios[0], TRUE), &radios[2]);
}

TEST_F(WindowCalls, TimersFontsIconsAndMenus) {
    EXPECT_EQ(parent.SetTimer(9, 60000), 9U);
    EXPECT_TRUE(parent.KillTimer(9));
    EXPECT_FALSE(parent.KillTimer(9));
    static bool called;
    called = false;
    parent.SetTimer(8, 1, [](HWND, UINT, UINT_PTR, DWORD) { called = true; });
    EXPECT_TRUE(ui_test::pump_until([] { return called; }));
    parent.KillTimer(8);
    CFont font;
    font.CreatePointFont(140, L"Tahoma");
    edit.SetFont(&font);
    EXPECT_EQ(edit.GetFont(), &font);
    EXPECT_EQ(reinterpret_cast<HFONT>(::SendMessageW(edit.m_hWnd, WM_GETFONT, 0, 0)),
              static_cast<HFONT>(font));
    edit.SetFont(nullptr);
    EXPECT_EQ(edit.GetFont(), nullptr);
    const HICON small = ::LoadIconW(nullptr, IDI_WARNING), big = ::LoadIconW(nullptr, IDI_ERROR);
    EXPECT_EQ(parent.SetIcon(small, FALSE), nullptr);
    EXPECT_EQ(parent.SetIcon(big, TRUE), nullptr);
    EXPECT_EQ(parent.GetIcon(FALSE), small);
    EXPECT_EQ(parent.GetIcon(TRUE), big);
    EXPECT_EQ(parent.SetIcon(small, TRUE), big);
    CMenu menu;
    menu.CreateMenu();
    menu.AppendMenu(MF_STRING, 1, L"one");
    EXPECT_EQ(parent.GetMenu(), nullptr);
    EXPECT_TRUE(parent.SetMenu(&menu));
    EXPECT_EQ(parent.GetMenu(), &menu);
    EXPECT_TRUE(parent.HiliteMenuItem(&menu, 0, MF_BYPOSITION | MF_HILITE));
    EXPECT_TRUE(menu.GetMenuState(0, MF_BYPOSITION) & MF_HILITE);
    EXPECT_TRUE(parent.SetMenu(nullptr));
    EXPECT_EQ(::GetMenu(parent.m_hWnd), nullptr);
    CMenu* const system = parent.GetSystemMenu(FALSE);
    ASSERT_NE(system, nullptr);
    system->AppendMenu(MF_STRING, 7, L"mine");
    const int count = system->GetMenuItemCount();
    parent.GetSystemMenu(TRUE);
    EXPECT_EQ(parent.GetSystemMenu(FALSE)->GetMenuItemCount(), count - 1) << "as it was at first";
}

TEST_F(WindowCalls, WhatIsToBePainted) {
    ui_test::pump();
    parent.Invalidate();
    CRect update;
    EXPECT_TRUE(parent.GetUpdateRect(&update));
    CRect client;
    parent.GetClientRect(&client);
    EXPECT_EQ(update, client);
    parent.ValidateRect(nullptr);
    EXPECT_FALSE(parent.GetUpdateRect(&update));
    parent.InvalidateRect(CRect(400, 100, 430, 130));
    EXPECT_TRUE(parent.GetUpdateRect(&update));
    EXPECT_EQ(update, CRect(400, 100, 430, 130));
    parent.ValidateRect(CRect(400, 100, 420, 130));
    parent.GetUpdateRect(&update);
    EXPECT_EQ(update, CRect(420, 100, 430, 130));
    parent.UpdateWindow();
    EXPECT_FALSE(parent.GetUpdateRect(&update));
    EXPECT_TRUE(parent.RedrawWindow(CRect(400, 100, 430, 130), nullptr, RDW_INVALIDATE));
    parent.GetUpdateRect(&update);
    EXPECT_EQ(update, CRect(400, 100, 430, 130));
    parent.ValidateRect(nullptr);
    CRgn region;
    region.CreateRectRgn(410, 110, 420, 120);
    EXPECT_TRUE(parent.RedrawWindow(nullptr, &region, RDW_INVALIDATE));
    parent.GetUpdateRect(&update);
    EXPECT_EQ(update, CRect(410, 110, 420, 120));
    PAINTSTRUCT paint = {};
    CDC* const dc = parent.BeginPaint(&paint);
    ASSERT_NE(dc, nullptr);
    EXPECT_EQ(dc->m_hDC, paint.hdc);
    EXPECT_EQ(CRect(paint.rcPaint), CRect(410, 110, 420, 120));
    parent.EndPaint(&paint);
    EXPECT_FALSE(parent.GetUpdateRect(&update));
}

TEST_F(WindowCalls, DeviceContextsOfBothKinds) {
    CDC* const client = parent.GetDC();
    ASSERT_NE(client, nullptr);
    CRect box;
    client->GetClipBox(&box);
    CRect expected;
    parent.GetClientRect(&expected);
    EXPECT_EQ(box.Width(), expected.Width());
    EXPECT_TRUE(parent.ReleaseDC(client));
    CDC* const whole = parent.GetWindowDC();
    whole->GetClipBox(&box);
    parent.GetWindowRect(&expected);
    EXPECT_EQ(box.Width(), expected.Width()) << "with the frame";
    EXPECT_TRUE(parent.ReleaseDC(whole));
}

TEST_F(WindowCalls, ScrollBarsOfAWindow) {
    CWnd scrolled;
    scrolled.Create(L"STATIC", L"", WS_CHILD | WS_VISIBLE | WS_HSCROLL, CRect(200, 150, 300, 250), &parent,
                    60);
    SCROLLINFO info = {};
    info.fMask = SIF_RANGE | SIF_PAGE | SIF_POS;
    info.nMin = 3;
    info.nMax = 99;
    info.nPage = 10;
    info.nPos = 20;
    EXPECT_TRUE(scrolled.SetScrollInfo(SB_HORZ, &info));
    EXPECT_EQ(info.cbSize, sizeof info);
    EXPECT_EQ(scrolled.GetScrollPos(SB_HORZ), 20);
    EXPECT_EQ(scrolled.SetScrollPos(SB_HORZ, 30), 20);
    int low = 0, high = 0;
    scrolled.GetScrollRange(SB_HORZ, &low, &high);
    EXPECT_EQ(low, 3);
    EXPECT_EQ(high, 99);
    scrolled.SetScrollRange(SB_HORZ, 5, 50);
    SCROLLINFO found = {};
    EXPECT_TRUE(scrolled.GetScrollInfo(SB_HORZ, &found));
    EXPECT_EQ(found.nMin, 5);
    EXPECT_EQ(found.nMax, 50);
    EXPECT_EQ(found.nPos, 30);
    SCROLLINFO only = {};
    only.nMax = 777;
    EXPECT_TRUE(scrolled.GetScrollInfo(SB_HORZ, &only, SIF_POS));
    EXPECT_EQ(only.nPos, 30);
    EXPECT_EQ(only.nMax, 777) << "not asked for";
    scrolled.ShowScrollBar(SB_HORZ, FALSE);
    EXPECT_EQ(scrolled.GetStyle() & WS_HSCROLL, 0U);
    scrolled.ShowScrollBar(SB_HORZ);
    EXPECT_NE(scrolled.GetStyle() & WS_HSCROLL, 0U);
    EXPECT_EQ(scrolled.GetScrollBarCtrl(SB_HORZ), nullptr);
    SCROLLBARINFO bar = {};
    bar.cbSize = sizeof bar;
    EXPECT_TRUE(scrolled.EnableScrollBar(SB_HORZ, ESB_DISABLE_BOTH));
    EXPECT_FALSE(scrolled.EnableScrollBar(SB_HORZ, ESB_DISABLE_BOTH)) << "it is already";
    scrolled.EnableScrollBarCtrl(SB_HORZ);
    EXPECT_TRUE(scrolled.EnableScrollBar(SB_HORZ, ESB_DISABLE_BOTH)) << "it was enabled in between";
    scrolled.EnableScrollBarCtrl(SB_HORZ, TRUE);
    scrolled.EnableScrollBarCtrl(SB_HORZ, FALSE);
    EXPECT_FALSE(scrolled.EnableScrollBar(SB_HORZ, ESB_DISABLE_BOTH));
    EXPECT_TRUE(scrolled.GetScrollBarInfo(OBJID_HSCROLL, &bar));
    EXPECT_GT(bar.rcScrollBar.right, bar.rcScrollBar.left);
}

TEST_F(WindowCalls, MessagesReachTheWindow) {
    ui_test::MessageListener listener;
    CWnd wnd;
    wnd.Attach(listener.window());
    listener.answer = 4711;
    const auto heard_last = [&](UINT message, WPARAM wParam, LPARAM lParam) {
        for (const HeardMessage& each : listener.take())
            if (each.message == message && each.wParam == wParam && each.lParam == lParam) return true;
        return false;
    };
    EXPECT_EQ(wnd.SendMessage(WM_USER + 1, 2, 3), 4711);
    EXPECT_TRUE(heard_last(WM_USER + 1, 2, 3));
    EXPECT_TRUE(wnd.SendNotifyMessage(WM_USER + 2, 4, 5));
    EXPECT_TRUE(heard_last(WM_USER + 2, 4, 5));
    EXPECT_TRUE(wnd.PostMessage(WM_USER + 3, 6, 7));
    EXPECT_FALSE(heard_last(WM_USER + 3, 6, 7)) << "not at once";
    ui_test::pump();
    EXPECT_TRUE(heard_last(WM_USER + 3, 6, 7));
    wnd.SetRedraw(FALSE);
    EXPECT_TRUE(heard_last(WM_SETREDRAW, FALSE, 0));
    wnd.SetRedraw();
    EXPECT_TRUE(heard_last(WM_SETREDRAW, TRUE, 0));
    wnd.NextDlgCtrl();
    EXPECT_TRUE(heard_last(WM_NEXTDLGCTL, 0, 0));
    wnd.PrevDlgCtrl();
    EXPECT_TRUE(heard_last(WM_NEXTDLGCTL, 1, 0));
    wnd.GotoDlgCtrl(&edit);
    EXPECT_TRUE(heard_last(WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(edit.m_hWnd), 1));
    CClientDC dc(nullptr);
    const auto context = reinterpret_cast<WPARAM>(dc.m_hDC);
    wnd.Print(&dc, PRF_CHILDREN);
    EXPECT_TRUE(heard_last(WM_PRINT, context, PRF_CHILDREN));
    wnd.PrintClient(&dc, PRF_CLIENT);
    EXPECT_TRUE(heard_last(WM_PRINTCLIENT, context, PRF_CLIENT));
    wnd.SetFont(nullptr, FALSE);
    EXPECT_TRUE(heard_last(WM_SETFONT, 0, FALSE));
    wnd.SetFont(nullptr);
    EXPECT_TRUE(heard_last(WM_SETFONT, 0, TRUE));
    wnd.Detach();
}

TEST_F(WindowCalls, RegionsOfWindows) {
    CRgn region, found;
    region.CreateRectRgn(2, 3, 40, 50);
    found.CreateRectRgn(0, 0, 0, 0);
    EXPECT_NE(edit.SetWindowRgn(static_cast<HRGN>(region.Detach()), FALSE), 0);
    EXPECT_EQ(edit.GetWindowRgn(found), SIMPLEREGION);
    CRect box;
    found.GetRgnBox(&box);
    EXPECT_EQ(box, CRect(2, 3, 40, 50));
    EXPECT_NE(edit.SetWindowRgn(nullptr, TRUE), 0);
    EXPECT_EQ(edit.GetWindowRgn(found), ERROR);
}

TEST_F(WindowCalls, AMessageBoxIsNamedAfterTheProgram) {
    CString title, text;
    const auto answer = [&](HWND dialog) {
        title = ui_test::text_of(dialog);
        text = ui_test::text_of(::GetDlgItem(dialog, 0xFFFF));
        ::SendMessageW(dialog, WM_COMMAND, IDNO, 0);
    };
    ui_test::when_dialog(L"a caption", answer);
    EXPECT_EQ(parent.MessageBox(L"what is said", L"a caption", MB_YESNO), IDNO);
    EXPECT_EQ(text, L"what is said");
    ui_test::when_dialog(L"", answer);
    EXPECT_EQ(parent.MessageBox(L"more", nullptr, MB_YESNO), IDNO);
    EXPECT_EQ(title, AfxGetAppName());
}

TEST_F(WindowCalls, HelpIdsAndClosing) {
    EXPECT_TRUE(edit.SetWindowContextHelpId(55));
    EXPECT_EQ(::GetWindowContextHelpId(edit.m_hWnd), 55U);
    EXPECT_EQ(edit.GetWindowContextHelpId(), 55U);
    EXPECT_TRUE(edit == edit);
    EXPECT_FALSE(edit == check);
    EXPECT_EQ(edit.GetSafeHwnd(), edit.m_hWnd);
    edit.DragAcceptFiles();
    EXPECT_NE(edit.GetExStyle() & WS_EX_ACCEPTFILES, 0U);
    edit.DragAcceptFiles(FALSE);
    EXPECT_EQ(edit.GetExStyle() & WS_EX_ACCEPTFILES, 0U);
}
