// Tab windows under mouse and keys.
#include "tab_fixture.h"

namespace tab_test {

using Button = CMFCTabCtrl::Button;

TEST_F(TabWindow, ActivatesTheTabThatIsClicked) {
    make();
    add_many(3);
    click(tab(2).CenterPoint());
    EXPECT_EQ(tabs.GetActiveTab(), 2);
    EXPECT_EQ(::GetFocus(), pages[2]->m_hWnd);
    click(CPoint(100, 50));
    EXPECT_EQ(tabs.GetActiveTab(), 2);
    owner.vetoed = 0;
    click(tab(0).CenterPoint());
    EXPECT_EQ(tabs.GetActiveTab(), 2);
}

TEST_F(TabWindow, LeavesTheFocusWhereItIsWhenToldTo) {
    make();
    add_many(2);
    owner.SetFocus();
    CMFCTabCtrl::m_bEnableActivate = FALSE;
    click(tab(1).CenterPoint());
    CMFCTabCtrl::m_bEnableActivate = TRUE;
    EXPECT_EQ(tabs.GetActiveTab(), 1);
    EXPECT_EQ(::GetFocus(), owner.m_hWnd);
}

TEST_F(TabWindow, HandsTheFocusFromWindowToWindow) {
    make();
    add_many(2);
    pages[0]->SetFocus();
    tabs.SetActiveTab(1);
    EXPECT_EQ(::GetFocus(), pages[1]->m_hWnd);
    owner.SetFocus();
    tabs.SetActiveTab(0);
    EXPECT_EQ(::GetFocus(), owner.m_hWnd) << "the focus wasn't in a tab";
    tabs.ActivateMDITab(1);
    EXPECT_EQ(::GetFocus(), pages[1]->m_hWnd);
    owner.SetFocus();
    tabs.ActivateMDITab();
    EXPECT_EQ(::GetFocus(), pages[1]->m_hWnd);
}

TEST_F(TabWindow, ActivatesByTheRightButtonOnlyWhenToldTo) {
    make();
    add_many(2);
    send(WM_RBUTTONDOWN, tab(1).CenterPoint(), MK_RBUTTON);
    EXPECT_EQ(tabs.GetActiveTab(), 0);
    tabs.m_bActivateTabOnRightClick = TRUE;
    send(WM_RBUTTONDOWN, tab(1).CenterPoint(), MK_RBUTTON);
    EXPECT_EQ(tabs.GetActiveTab(), 1);
}

TEST_F(TabWindow, LeavesItsMenuToTheOwner) {
    make();
    add_many(1);
    tabs.SendMessage(WM_CONTEXTMENU, reinterpret_cast<WPARAM>(tabs.m_hWnd), MAKELPARAM(5, 5));
    EXPECT_EQ(owner.heard, (Heard{"menu of the tabs"}));
}

TEST_F(TabWindow, ShowsWhichTabIsUnderTheMouse) {
    make();
    add_many(3);
    EXPECT_EQ(tabs.GetHighlightedTab(), -1);
    send(WM_MOUSEMOVE, tab(1).CenterPoint());
    EXPECT_EQ(tabs.GetHighlightedTab(), 1);
    send(WM_MOUSEMOVE, CPoint(50, 50));
    EXPECT_EQ(tabs.GetHighlightedTab(), -1);
    send(WM_MOUSEMOVE, tab(2).CenterPoint());
    tabs.SendMessage(WM_MOUSELEAVE);
    EXPECT_EQ(tabs.GetHighlightedTab(), -1);
}

TEST_F(TabWindow, MovesTheTabThatIsDragged) {
    make();
    add_many(3);
    tabs.EnableTabSwap(TRUE);
    EXPECT_TRUE(tabs.IsTabSwapEnabled());
    const CPoint first = tab(0).CenterPoint(), third = tab(2).CenterPoint();
    press(first);
    drag(first + CSize(1, 0));
    EXPECT_EQ(owner.heard, Heard{}) << "a hand that trembles drags nothing";
    drag(third);
    EXPECT_EQ(owner.heard, (Heard{"moved 0 to 2"}));
    EXPECT_EQ(tabs.GetActiveTab(), 2);
    EXPECT_EQ(tabs.GetActiveWnd(), pages[0].get());
    drag(third);
    EXPECT_EQ(owner.heard.size(), 1u);
    release(third);
    EXPECT_NE(::GetCapture(), tabs.m_hWnd);
    drag(first);
    EXPECT_EQ(owner.heard.size(), 1u) << "it was let go";
}

TEST_F(TabWindow, MovesNothingForAHandThatTremblesAtATabsEdge) {
    make();
    add(L"same"), add(L"same");
    owner.heard.clear();
    tabs.EnableTabSwap(TRUE);
    ASSERT_EQ(tab(0).Width(), tab(1).Width());
    const CPoint edge(tab(0).right - 1, tab(0).CenterPoint().y);
    press(edge);
    drag(edge + CSize(1, 0));
    EXPECT_EQ(owner.heard, Heard{});
    drag(edge + CSize(::GetSystemMetrics(SM_CXDRAG) + 1, 0));
    EXPECT_EQ(owner.heard, (Heard{"moved 0 to 1"}));
    release(edge);
}

TEST_F(TabWindow, MovesNoTabWithoutSwapping) {
    make();
    add_many(3);
    press(tab(0).CenterPoint());
    drag(tab(2).CenterPoint());
    release(tab(2).CenterPoint());
    EXPECT_EQ(owner.heard, Heard{});
    EXPECT_EQ(tabs.GetActiveTab(), 0);
}

TEST_F(TabWindow, EndsADragByEscapeAndByLosingTheCapture) {
    make();
    add_many(3);
    tabs.EnableTabSwap(TRUE);
    press(tab(0).CenterPoint());
    EXPECT_EQ(::GetCapture(), tabs.m_hWnd);
    key(VK_ESCAPE);
    EXPECT_NE(::GetCapture(), tabs.m_hWnd);
    drag(tab(2).CenterPoint());
    press(tab(0).CenterPoint());
    ::SetCapture(owner.m_hWnd);
    drag(tab(2).CenterPoint());
    ::ReleaseCapture();
    press(tab(0).CenterPoint());
    tabs.SendMessage(WM_CANCELMODE);
    drag(tab(2).CenterPoint());
    EXPECT_EQ(owner.heard, Heard{});
}

namespace {

/// Writes down what a pane around the tabs would be asked.
struct Pane : kmfc::TabOwner {
    std::vector<std::string> asked;
    BOOL float_tab(int index, AFX_DOCK_METHOD method, BOOL hide) override {
        asked.push_back("float " + std::to_string(index) +
                        (method == DM_MOUSE       ? " by mouse"
                         : method == DM_DBL_CLICK ? " by double click"
                                                  : " by program") +
                        (hide ? " hidden" : ""));
        return TRUE;
    }
    void close_tab(int index) override { asked.push_back("close " + std::to_string(index)); }
};

}  // namespace

TEST_F(TabWindow, TearsTheTabOffThatLeavesTheStrip) {
    make();
    add_many(2);
    Pane pane;
    tabs.set_tab_owner(&pane);
    const CPoint at = tab(1).CenterPoint();
    press(at);
    drag(at - CSize(0, tabs.GetTabsHeight() / 2 + 2));
    EXPECT_TRUE(pane.asked.empty()) << "a little outside is still inside";
    drag(at - CSize(0, 60));
    EXPECT_EQ(pane.asked, (std::vector<std::string>{"float 1 by mouse"}));
    EXPECT_NE(::GetCapture(), tabs.m_hWnd) << "the frame that floats takes it";
    drag(at - CSize(0, 80));
    EXPECT_EQ(pane.asked.size(), 1u);
    tabs.EnableTabDetach(0, FALSE);
    press(tab(0).CenterPoint());
    drag(at - CSize(0, 80));
    release(at);
    EXPECT_EQ(pane.asked.size(), 1u);
    EXPECT_TRUE(tabs.DetachTab(DM_SHOW, -1, TRUE) == FALSE) << "the active tab is fixed";
    EXPECT_TRUE(tabs.DetachTab(DM_SHOW, 1, TRUE));
    EXPECT_EQ(pane.asked.back(), "float 1 by program hidden");
    send(WM_LBUTTONDBLCLK, tab(1).CenterPoint(), MK_LBUTTON);
    EXPECT_EQ(pane.asked.back(), "float 1 by double click");
    tabs.set_tab_owner(nullptr);
}

TEST_F(TabWindow, ClosesByTheButtonThatIsPressedAndReleased) {
    make(CMFCTabCtrl::STYLE_3D, CMFCTabCtrl::LOCATION_TOP, true);
    add_many(2);
    Pane pane;
    tabs.set_tab_owner(&pane);
    const CPoint close = tabs.button_rect(Button::close).CenterPoint();
    press(close);
    EXPECT_EQ(tabs.pressed_button(), Button::close);
    EXPECT_TRUE(pane.asked.empty());
    release(close);
    EXPECT_EQ(tabs.pressed_button(), Button::none);
    EXPECT_EQ(pane.asked, (std::vector<std::string>{"close 0"}));
    press(close);
    release(CPoint(5, 100));
    release(close);
    EXPECT_EQ(pane.asked.size(), 1u) << "it was let go elsewhere";
    tabs.EnableActiveTabCloseButton();
    tabs.SetActiveTab(1);
    const CPoint sign = tabs.GetTabCloseButton().CenterPoint();
    send(WM_MOUSEMOVE, sign);
    EXPECT_TRUE(tabs.IsTabCloseButtonHighlighted());
    press(sign);
    EXPECT_TRUE(tabs.IsTabCloseButtonPressed());
    release(CPoint(5, 100));
    EXPECT_FALSE(tabs.IsTabCloseButtonPressed());
    click(sign);
    EXPECT_EQ(pane.asked.back(), "close 1");
    tabs.set_tab_owner(nullptr);
    click(sign);
    EXPECT_EQ(pages[1]->m_hWnd, nullptr) << "without a pane the window itself is closed";
}

TEST_F(TabWindow, GoesThroughItsTabsByKeys) {
    make();
    add_many(4);
    tabs.ShowTab(1, FALSE);
    tabs.SetFocus();
    key(VK_RIGHT);
    EXPECT_EQ(tabs.GetActiveTab(), 2) << "past the hidden one";
    key(VK_RIGHT);
    key(VK_RIGHT);
    EXPECT_EQ(tabs.GetActiveTab(), 3) << "the arrows stop at the end";
    key(VK_HOME);
    EXPECT_EQ(tabs.GetActiveTab(), 0);
    key(VK_LEFT);
    EXPECT_EQ(tabs.GetActiveTab(), 0);
    key(VK_END);
    EXPECT_EQ(tabs.GetActiveTab(), 3);
    key(VK_LEFT);
    EXPECT_EQ(tabs.GetActiveTab(), 2);
    EXPECT_EQ(::GetFocus(), tabs.m_hWnd) << "the strip keeps the focus";
    EXPECT_EQ(tabs.SendMessage(WM_GETDLGCODE), DLGC_WANTARROWS);
    key('A');
    EXPECT_EQ(tabs.GetActiveTab(), 2);
}

TEST_F(TabWindow, GoesAroundByControlAndTab) {
    make();
    add_many(3);
    Page& inner = *pages[0];
    inner.SetFocus();
    EXPECT_FALSE(translated(inner, VK_TAB)) << "without Ctrl the key is the window's";
    const HeldKey control(VK_CONTROL);
    EXPECT_TRUE(translated(inner, VK_TAB));
    EXPECT_EQ(tabs.GetActiveTab(), 1);
    EXPECT_EQ(::GetFocus(), pages[1]->m_hWnd);
    {
        const HeldKey shift(VK_SHIFT);
        EXPECT_TRUE(translated(*pages[1], VK_TAB));
        EXPECT_TRUE(translated(*pages[0], VK_TAB));
        EXPECT_EQ(tabs.GetActiveTab(), 2);
    }
    EXPECT_TRUE(translated(*pages[2], VK_NEXT));
    EXPECT_EQ(tabs.GetActiveTab(), 0);
    EXPECT_TRUE(translated(*pages[0], VK_PRIOR));
    EXPECT_EQ(tabs.GetActiveTab(), 2);
    EXPECT_FALSE(translated(*pages[2], VK_F4));
    tabs.ShowTab(0, FALSE), tabs.ShowTab(1, FALSE);
    EXPECT_FALSE(translated(*pages[2], VK_TAB)) << "there is no other";
}

TEST_F(TabWindow, ChangesALabelInPlace) {
    make();
    add_many(2);
    send(WM_LBUTTONDBLCLK, tab(1).CenterPoint(), MK_LBUTTON);
    EXPECT_EQ(tabs.box(), nullptr) << "labels are fixed at first";
    tabs.EnableInPlaceEdit(TRUE);
    EXPECT_TRUE(tabs.IsInPlaceEdit());
    send(WM_LBUTTONDBLCLK, tab(1).CenterPoint(), MK_LBUTTON);
    ASSERT_NE(tabs.box(), nullptr);
    EXPECT_EQ(::GetFocus(), tabs.box()->m_hWnd);
    EXPECT_EQ(ui_test::text_of(tabs.box()->m_hWnd), L"Sheet number 1");
    int from = 9, to = 0;
    tabs.box()->GetSel(from, to);
    EXPECT_EQ(from, 0);
    EXPECT_EQ(to, 14);
    tabs.box()->SetWindowText(L"Plan");
    EXPECT_TRUE(translated(*tabs.box(), VK_RETURN));
    EXPECT_EQ(tabs.box(), nullptr);
    EXPECT_EQ(labels(), L"Sheet number 0,Plan");
    EXPECT_EQ(tabs.renamed, L"Plan");
    EXPECT_EQ(owner.heard, (Heard{"renamed 1"}));
}

TEST_F(TabWindow, KeepsTheLabelOnEscape) {
    make();
    add_many(1);
    tabs.EnableInPlaceEdit(TRUE);
    tabs.SetFocus();
    key(VK_F2);
    ASSERT_NE(tabs.box(), nullptr);
    tabs.box()->SetWindowText(L"other");
    EXPECT_TRUE(translated(*tabs.box(), VK_ESCAPE));
    EXPECT_EQ(labels(), L"Sheet number 0");
    EXPECT_EQ(owner.heard, Heard{});
    EXPECT_EQ(::GetFocus(), tabs.m_hWnd);
}

TEST_F(TabWindow, TakesTheLabelWhenTheFocusLeaves) {
    make();
    add_many(1);
    tabs.EnableInPlaceEdit(TRUE);
    tabs.edit_label(0);
    tabs.box()->SetWindowText(L"left");
    owner.SetFocus();
    EXPECT_EQ(tabs.box(), nullptr);
    EXPECT_EQ(labels(), L"left");
    EXPECT_EQ(::GetFocus(), owner.m_hWnd) << "the focus isn't taken back";
    tabs.edit_label(0);
    tabs.box()->SetWindowText(L"right");
    EXPECT_TRUE(tabs.RenameTab());
    EXPECT_EQ(labels(), L"right");
    EXPECT_FALSE(tabs.RenameTab());
    tabs.edit_label(0);
    EXPECT_FALSE(tabs.RenameTab()) << "nothing was changed";
}

TEST_F(TabWindow, AsksBeforeALabelChanges) {
    make();
    add_many(2);
    tabs.EnableInPlaceEdit(TRUE);
    tabs.barred = 0;
    send(WM_LBUTTONDBLCLK, tab(0).CenterPoint(), MK_LBUTTON);
    EXPECT_EQ(tabs.box(), nullptr);
    tabs.refuses = true;
    tabs.edit_label(1);
    tabs.box()->SetWindowText(L"no");
    EXPECT_FALSE(tabs.RenameTab());
    EXPECT_EQ(labels(), L"Sheet number 0,Sheet number 1");
    tabs.refuses = false;
    CString better = L"better";
    tabs.replacement = &better;
    tabs.edit_label(1);
    tabs.box()->SetWindowText(L"good");
    EXPECT_TRUE(tabs.RenameTab());
    EXPECT_EQ(labels(), L"Sheet number 0,better");
    tabs.replacement = nullptr;
    tabs.edit_label(1);
    tabs.box()->SetWindowText(L"lost");
    tabs.RemoveTab(1);
    EXPECT_EQ(tabs.box(), nullptr) << "the box goes with its tab";
}

namespace {

CString tip_of(Tabs& tabs, int index) {
    NMTTDISPINFOW asked = {};
    asked.hdr.hwndFrom = tabs.GetToolTipCtrl().m_hWnd;
    asked.hdr.idFrom = static_cast<UINT_PTR>(tabs.GetTabID(index)) + 1;
    asked.hdr.code = TTN_NEEDTEXTW;
    tabs.SendMessage(WM_NOTIFY, asked.hdr.idFrom, reinterpret_cast<LPARAM>(&asked));
    return asked.lpszText != nullptr ? asked.lpszText : L"";
}

}  // namespace

TEST_F(TabWindow, TipsTellLabelsThatAreCut) {
    make();
    add_many(2);
    EXPECT_EQ(tabs.GetToolTipCtrl().GetToolCount(), 2);
    EXPECT_EQ(tip_of(tabs, 0), L"") << "the label can be read";
    add_many(10);
    EXPECT_EQ(tabs.GetToolTipCtrl().GetToolCount(), 12);
    EXPECT_EQ(tip_of(tabs, 0), L"Sheet number 0");
    EXPECT_EQ(owner.heard, Heard{});
}

TEST_F(TabWindow, AsksForTipsOfTheHostsOwn) {
    make();
    add_many(1);
    tabs.EnableCustomToolTips();
    owner.tip = L"the owner's";
    EXPECT_EQ(tip_of(tabs, 0), L"the owner's");
    EXPECT_EQ(owner.heard, (Heard{"tip of 0"}));
    owner.tip = L"";
    EXPECT_EQ(tip_of(tabs, 0), L"");
    tabs.SetTabIconOnly(0);
    EXPECT_EQ(tip_of(tabs, 0), L"Sheet number 0") << "a tab without its label";
    owner.tip = L"the owner's";
    EXPECT_EQ(tip_of(tabs, 0), L"the owner's") << "the owner goes first";
}

TEST_F(TabWindow, ShowsAllTabsInItsMenu) {
    make(CMFCTabCtrl::STYLE_3D_SCROLLED);
    add_many(3);
    tabs.ShowTab(1, FALSE);
    std::vector<std::wstring> items;
    bool sent = false;
    ui_test::on_message_filter([&](int code, const MSG&) {
        if (code != MSGF_MENU || sent) return;
        sent = true;
        const HWND menuWindow = ::FindWindowW(L"#32768", nullptr);
        const auto menu = reinterpret_cast<HMENU>(::SendMessageW(menuWindow, 0x01E1 /* MN_GETHMENU */, 0, 0));
        for (int i = 0; i < ::GetMenuItemCount(menu); ++i) {
            wchar_t text[64] = {};
            ::GetMenuStringW(menu, static_cast<UINT>(i), text, 64, MF_BYPOSITION);
            const bool checked =
                (::GetMenuState(menu, static_cast<UINT>(i), MF_BYPOSITION) & MF_CHECKED) != 0;
            items.push_back(std::wstring(text) + (checked ? L" *" : L""));
        }
    });
    ui_test::later([&] {
        ::PostMessageW(tabs.m_hWnd, WM_KEYDOWN, VK_DOWN, 0);
        ::PostMessageW(tabs.m_hWnd, WM_KEYDOWN, VK_DOWN, 0);
        ::PostMessageW(tabs.m_hWnd, WM_KEYDOWN, VK_RETURN, 0);
    });
    tabs.OnShowTabDocumentsMenu(CPoint(50, 50));
    ui_test::on_message_filter(nullptr);
    EXPECT_EQ(items, (std::vector<std::wstring>{L"Sheet number 0 *", L"Sheet number 2"}));
    EXPECT_EQ(tabs.GetActiveTab(), 2);
}

}  // namespace tab_test
