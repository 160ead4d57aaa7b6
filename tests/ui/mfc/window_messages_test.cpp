// What the handlers of the everyday messages get of wParam and lParam, and what is answered to the system.
#include <afxwin.h>

#include <sstream>

#include "ui_test.h"

namespace {

std::ostringstream said;

int id_of(CWnd* wnd) { return wnd ? wnd->GetDlgCtrlID() : -1; }
int items_of(CMenu* menu) { return menu ? menu->GetMenuItemCount() : -1; }
const void* kData = nullptr;

/// Writes down a handler's name and what it got; a pointer to a structure as whether it is the one that was
/// sent.
template <class... A>
void say(const char* name, A... arguments) {
    said << name;
    ((said << ' ' << arguments), ...);
}
bool same(const void* data) { return data == kData; }

class Everyday : public CWnd {
protected:
    afx_msg void OnActivate(UINT state, CWnd* other, BOOL minimized) {
        say("activate", state, id_of(other), minimized);
    }
    afx_msg void OnActivateApp(BOOL active, DWORD thread) { say("activate app", active, thread); }
    afx_msg void OnCancelMode() { say("cancel"); }
    afx_msg void OnCaptureChanged(CWnd* wnd) { say("capture", id_of(wnd)); }
    afx_msg void OnChar(UINT a, UINT b, UINT c) { say("char", a, b, c); }
    afx_msg int OnCharToItem(UINT key, CListBox* list, UINT index) {
        return say("char to item", key, id_of(list), index), 11;
    }
    afx_msg void OnChildActivate() { say("child"); }
    afx_msg void OnClose() { say("close"); }
    afx_msg int OnCompareItem(int id, LPCOMPAREITEMSTRUCT item) { return say("compare", id, same(item)), 12; }
    afx_msg void OnContextMenu(CWnd* wnd, CPoint at) { say("menu at", id_of(wnd), at.x, at.y); }
    afx_msg BOOL OnCopyData(CWnd* wnd, COPYDATASTRUCT* data) {
        return say("copy data", id_of(wnd), same(data)), 13;
    }
    afx_msg HBRUSH OnCtlColor(CDC* dc, CWnd* wnd, UINT kind) {
        say("color", dc->m_hDC != nullptr, id_of(wnd), kind);
        return reinterpret_cast<HBRUSH>(UINT_PTR{14});
    }
    afx_msg void OnDeadChar(UINT a, UINT b, UINT c) { say("dead", a, b, c); }
    afx_msg void OnDeleteItem(int id, LPDELETEITEMSTRUCT item) { say("delete", id, same(item)); }
    afx_msg void OnDrawItem(int id, LPDRAWITEMSTRUCT item) { say("draw", id, same(item)); }
    afx_msg void OnMeasureItem(int id, LPMEASUREITEMSTRUCT item) { say("measure", id, same(item)); }
    afx_msg void OnDropFiles(HDROP drop) { say("drop", same(drop)); }
    afx_msg void OnEnable(BOOL on) { say("enable", on); }
    afx_msg void OnEndSession(BOOL ending) { say("end", ending); }
    afx_msg void OnEnterSizeMove() { say("enter size"); }
    afx_msg void OnExitSizeMove() { say("exit size"); }
    afx_msg BOOL OnEraseBkgnd(CDC* dc) { return say("erase", dc->m_hDC != nullptr), 15; }
    afx_msg UINT OnGetDlgCode() { return say("code"), 16; }
    afx_msg void OnGetMinMaxInfo(MINMAXINFO* info) { say("minmax", same(info)); }
    afx_msg BOOL OnHelpInfo(HELPINFO* info) { return say("help", same(info)), 17; }
    afx_msg void OnHScroll(UINT code, UINT at, CScrollBar* bar) { say("hscroll", code, at, id_of(bar)); }
    afx_msg void OnVScroll(UINT code, UINT at, CScrollBar* bar) { say("vscroll", code, at, id_of(bar)); }
    afx_msg void OnInitMenu(CMenu* menu) { say("init menu", items_of(menu)); }
    afx_msg void OnInitMenuPopup(CMenu* menu, UINT index, BOOL system) {
        say("popup", items_of(menu), index, system);
    }
    afx_msg void OnKeyDown(UINT a, UINT b, UINT c) { say("down", a, b, c); }
    afx_msg void OnKeyUp(UINT a, UINT b, UINT c) { say("up", a, b, c); }
    afx_msg void OnKillFocus(CWnd* wnd) { say("kill", id_of(wnd)); }
    afx_msg void OnSetFocus(CWnd* wnd) { say("focus", id_of(wnd)); }
    afx_msg void OnLButtonDblClk(UINT keys, CPoint at) { say("left double", keys, at.x, at.y); }
    afx_msg void OnLButtonDown(UINT keys, CPoint at) { say("left down", keys, at.x, at.y); }
    afx_msg void OnLButtonUp(UINT keys, CPoint at) { say("left up", keys, at.x, at.y); }
    afx_msg void OnMButtonDblClk(UINT keys, CPoint at) { say("middle double", keys, at.x, at.y); }
    afx_msg void OnMButtonDown(UINT keys, CPoint at) { say("middle down", keys, at.x, at.y); }
    afx_msg void OnMButtonUp(UINT keys, CPoint at) { say("middle up", keys, at.x, at.y); }
    afx_msg void OnRButtonDblClk(UINT keys, CPoint at) { say("right double", keys, at.x, at.y); }
    afx_msg void OnRButtonDown(UINT keys, CPoint at) { say("right down", keys, at.x, at.y); }
    afx_msg void OnRButtonUp(UINT keys, CPoint at) { say("right up", keys, at.x, at.y); }
    afx_msg void OnMouseMove(UINT keys, CPoint at) { say("move", keys, at.x, at.y); }
    afx_msg BOOL OnMouseWheel(UINT keys, short delta, CPoint at) {
        return say("wheel", keys, delta, at.x, at.y), 18;
    }
    afx_msg void OnMouseLeave() { say("leave"); }
    afx_msg LRESULT OnMenuChar(UINT key, UINT flags, CMenu* menu) {
        return say("menu char", key, flags, items_of(menu)), 19;
    }
    afx_msg void OnMenuSelect(UINT id, UINT flags, HMENU menu) { say("select", id, flags, same(menu)); }
    afx_msg int OnMouseActivate(CWnd* wnd, UINT hit, UINT message) {
        return say("mouse activate", id_of(wnd), hit, message), 20;
    }
    afx_msg void OnMove(int x, int y) { say("moved", x, y); }
    afx_msg void OnSize(UINT type, int cx, int cy) { say("sized", type, cx, cy); }
    afx_msg BOOL OnNcActivate(BOOL active) { return say("nc activate", active), 21; }
    afx_msg void OnNcCalcSize(BOOL valid, NCCALCSIZE_PARAMS* data) { say("nc size", valid, same(data)); }
    afx_msg LRESULT OnNcHitTest(CPoint at) { return say("nc hit", at.x, at.y), 22; }
    afx_msg void OnNcLButtonDblClk(UINT hit, CPoint at) { say("nc left double", hit, at.x, at.y); }
    afx_msg void OnNcLButtonDown(UINT hit, CPoint at) { say("nc left down", hit, at.x, at.y); }
    afx_msg void OnNcLButtonUp(UINT hit, CPoint at) { say("nc left up", hit, at.x, at.y); }
    afx_msg void OnNcMouseMove(UINT hit, CPoint at) { say("nc move", hit, at.x, at.y); }
    afx_msg void OnNcRButtonDown(UINT hit, CPoint at) { say("nc right down", hit, at.x, at.y); }
    afx_msg void OnNcRButtonUp(UINT hit, CPoint at) { say("nc right up", hit, at.x, at.y); }
    afx_msg void OnParentNotify(UINT message, LPARAM data) { say("parent", message, data); }
    afx_msg HCURSOR OnQueryDragIcon() { return say("icon"), reinterpret_cast<HCURSOR>(UINT_PTR{23}); }
    afx_msg BOOL OnQueryEndSession() { return say("may end"), 24; }
    afx_msg BOOL OnQueryOpen() { return say("may open"), 25; }
    afx_msg BOOL OnSetCursor(CWnd* wnd, UINT hit, UINT message) {
        return say("cursor", id_of(wnd), hit, message), 26;
    }
    afx_msg void OnSettingChange(UINT flags, LPCTSTR section) {
        say("setting", flags, CStringA(section).GetString());
    }
    afx_msg void OnShowWindow(BOOL show, UINT status) { say("show", show, status); }
    afx_msg void OnStyleChanged(int type, LPSTYLESTRUCT style) { say("style changed", type, same(style)); }
    afx_msg void OnStyleChanging(int type, LPSTYLESTRUCT style) { say("style changing", type, same(style)); }
    afx_msg void OnSysChar(UINT a, UINT b, UINT c) { say("sys char", a, b, c); }
    afx_msg void OnSysColorChange() { say("colors"); }
    afx_msg void OnSysCommand(UINT id, LPARAM data) { say("sys command", id, data); }
    afx_msg void OnSysKeyDown(UINT a, UINT b, UINT c) { say("sys down", a, b, c); }
    afx_msg void OnSysKeyUp(UINT a, UINT b, UINT c) { say("sys up", a, b, c); }
    afx_msg LRESULT OnThemeChanged() { return say("theme"), 27; }
    afx_msg void OnTimer(UINT_PTR id) { say("timer", id); }
    afx_msg int OnVKeyToItem(UINT key, CListBox* list, UINT index) {
        return say("key to item", key, id_of(list), index), 28;
    }
    afx_msg void OnWindowPosChanged(WINDOWPOS* place) { say("placed", same(place)); }
    afx_msg void OnWindowPosChanging(WINDOWPOS* place) { say("placing", same(place)); }
    afx_msg void OnClear() { say("clear"); }
    afx_msg void OnCut() { say("cut"); }
    afx_msg void OnCopy() { say("copy"); }
    afx_msg void OnPaste() { say("paste"); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Everyday, CWnd)
    ON_WM_ACTIVATE()
    ON_WM_ACTIVATEAPP()
    ON_WM_CANCELMODE()
    ON_WM_CAPTURECHANGED()
    ON_WM_CHAR()
    ON_WM_CHARTOITEM()
    ON_WM_CHILDACTIVATE()
    ON_WM_CLOSE()
    ON_WM_COMPAREITEM()
    ON_WM_CONTEXTMENU()
    ON_WM_COPYDATA()
    ON_WM_CTLCOLOR()
    ON_WM_DEADCHAR()
    ON_WM_DELETEITEM()
    ON_WM_DRAWITEM()
    ON_WM_MEASUREITEM()
    ON_WM_DROPFILES()
    ON_WM_ENABLE()
    ON_WM_ENDSESSION()
    ON_WM_ENTERSIZEMOVE()
    ON_WM_EXITSIZEMOVE()
    ON_WM_ERASEBKGND()
    ON_WM_GETDLGCODE()
    ON_WM_GETMINMAXINFO()
    ON_WM_HELPINFO()
    ON_WM_HSCROLL()
    ON_WM_VSCROLL()
    ON_WM_INITMENU()
    ON_WM_INITMENUPOPUP()
    ON_WM_KEYDOWN()
    ON_WM_KEYUP()
    ON_WM_KILLFOCUS()
    ON_WM_SETFOCUS()
    ON_WM_LBUTTONDBLCLK()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONUP()
    ON_WM_MBUTTONDBLCLK()
    ON_WM_MBUTTONDOWN()
    ON_WM_MBUTTONUP()
    ON_WM_RBUTTONDBLCLK()
    ON_WM_RBUTTONDOWN()
    ON_WM_RBUTTONUP()
    ON_WM_MOUSEMOVE()
    ON_WM_MOUSEWHEEL()
    ON_WM_MOUSELEAVE()
    ON_WM_MENUCHAR()
    ON_WM_MENUSELECT()
    ON_WM_MOUSEACTIVATE()
    ON_WM_MOVE()
    ON_WM_SIZE()
    ON_WM_NCACTIVATE()
    ON_WM_NCCALCSIZE()
    ON_WM_NCHITTEST()
    ON_WM_NCLBUTTONDBLCLK()
    ON_WM_NCLBUTTONDOWN()
    ON_WM_NCLBUTTONUP()
    ON_WM_NCMOUSEMOVE()
    ON_WM_NCRBUTTONDOWN()
    ON_WM_NCRBUTTONUP()
    ON_WM_PARENTNOTIFY()
    ON_WM_QUERYDRAGICON()
    ON_WM_QUERYENDSESSION()
    ON_WM_QUERYOPEN()
    ON_WM_SETCURSOR()
    ON_WM_SETTINGCHANGE()
    ON_WM_SHOWWINDOW()
    ON_WM_STYLECHANGED()
    ON_WM_STYLECHANGING()
    ON_WM_SYSCHAR()
    ON_WM_SYSCOLORCHANGE()
    ON_WM_SYSCOMMAND()
    ON_WM_SYSKEYDOWN()
    ON_WM_SYSKEYUP()
    ON_WM_THEMECHANGED()
    ON_WM_TIMER()
    ON_WM_VKEYTOITEM()
    ON_WM_WINDOWPOSCHANGED()
    ON_WM_WINDOWPOSCHANGING()
    ON_WM_CLEAR()
    ON_WM_CUT()
    ON_WM_COPY()
    ON_WM_PASTE()
END_MESSAGE_MAP()

constexpr LPARAM kAt = MAKELPARAM(30, static_cast<WORD>(-40));
constexpr LPARAM kKey = MAKELPARAM(3, 9);

struct EverydayMessages : ::testing::Test {
    EverydayMessages() {
        window.CreateEx(0, AfxRegisterWndClass(0), L"", WS_OVERLAPPED, CRect(0, 0, 200, 200), nullptr, 0);
        child.Create(L"STATIC", L"", WS_CHILD, CRect(0, 0, 10, 10), &window, 77);
        menu.CreatePopupMenu();
        menu.AppendMenu(MF_STRING, 1, L"one");
        menu.AppendMenu(MF_STRING, 2, L"two");
    }
    ~EverydayMessages() override { said.str(""); }
    /// What the handler says, and behind it the answer.
    std::string told(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
        said.str("");
        const LRESULT answer = window.SendMessage(message, wParam, lParam);
        return said.str() + " = " + std::to_string(answer);
    }
    template <class T>
    std::string told_of(UINT message, WPARAM wParam, T& data) {
        kData = &data;
        return told(message, wParam, reinterpret_cast<LPARAM>(&data));
    }
    WPARAM w_child() { return reinterpret_cast<WPARAM>(child.m_hWnd); }
    LPARAM l_child() { return reinterpret_cast<LPARAM>(child.m_hWnd); }
    WPARAM w_menu() { return reinterpret_cast<WPARAM>(menu.m_hMenu); }

    Everyday window;
    CWnd child;
    CMenu menu;
};

}  // namespace

TEST_F(EverydayMessages, OfActivationAndFocus) {
    EXPECT_EQ(told(WM_ACTIVATE, MAKEWPARAM(WA_CLICKACTIVE, 1), l_child()), "activate 2 77 1 = 0");
    EXPECT_EQ(told(WM_ACTIVATE, MAKEWPARAM(WA_INACTIVE, 0), 0), "activate 0 -1 0 = 0");
    EXPECT_EQ(told(WM_ACTIVATEAPP, 5, 4711), "activate app 1 4711 = 0");
    EXPECT_EQ(told(WM_CHILDACTIVATE), "child = 0");
    EXPECT_EQ(told(WM_KILLFOCUS, w_child()), "kill 77 = 0");
    EXPECT_EQ(told(WM_SETFOCUS, w_child()), "focus 77 = 0");
    EXPECT_EQ(told(WM_CAPTURECHANGED, 0, l_child()), "capture 77 = 0");
    EXPECT_EQ(told(WM_CANCELMODE), "cancel = 0");
    EXPECT_EQ(told(WM_ENABLE, 7), "enable 1 = 0");
    EXPECT_EQ(told(WM_NCACTIVATE, 7), "nc activate 1 = 21");
    EXPECT_EQ(told(WM_MOUSEACTIVATE, w_child(), MAKELPARAM(HTCAPTION, WM_LBUTTONDOWN)),
              "mouse activate 77 2 513 = 20");
}

TEST_F(EverydayMessages, OfKeys) {
    EXPECT_EQ(told(WM_KEYDOWN, 65, kKey), "down 65 3 9 = 0");
    EXPECT_EQ(told(WM_KEYUP, 65, kKey), "up 65 3 9 = 0");
    EXPECT_EQ(told(WM_CHAR, 65, kKey), "char 65 3 9 = 0");
    EXPECT_EQ(told(WM_DEADCHAR, 65, kKey), "dead 65 3 9 = 0");
    EXPECT_EQ(told(WM_SYSKEYDOWN, 65, kKey), "sys down 65 3 9 = 0");
    EXPECT_EQ(told(WM_SYSKEYUP, 65, kKey), "sys up 65 3 9 = 0");
    EXPECT_EQ(told(WM_SYSCHAR, 65, kKey), "sys char 65 3 9 = 0");
    EXPECT_EQ(told(WM_GETDLGCODE), "code = 16");
    EXPECT_EQ(told(WM_CHARTOITEM, MAKEWPARAM(L'k', 4), l_child()), "char to item 107 77 4 = 11");
    EXPECT_EQ(told(WM_VKEYTOITEM, MAKEWPARAM(VK_DOWN, 4), l_child()), "key to item 40 77 4 = 28");
}

TEST_F(EverydayMessages, OfTheMouse) {
    EXPECT_EQ(told(WM_MOUSEMOVE, MK_SHIFT, kAt), "move 4 30 -40 = 0");
    EXPECT_EQ(told(WM_LBUTTONDOWN, MK_LBUTTON, kAt), "left down 1 30 -40 = 0");
    EXPECT_EQ(told(WM_LBUTTONUP, 0, kAt), "left up 0 30 -40 = 0");
    EXPECT_EQ(told(WM_LBUTTONDBLCLK, MK_LBUTTON, kAt), "left double 1 30 -40 = 0");
    EXPECT_EQ(told(WM_MBUTTONDOWN, MK_MBUTTON, kAt), "middle down 16 30 -40 = 0");
    EXPECT_EQ(told(WM_MBUTTONUP, 0, kAt), "middle up 0 30 -40 = 0");
    EXPECT_EQ(told(WM_MBUTTONDBLCLK, MK_MBUTTON, kAt), "middle double 16 30 -40 = 0");
    EXPECT_EQ(told(WM_RBUTTONDOWN, MK_RBUTTON, kAt), "right down 2 30 -40 = 0");
    EXPECT_EQ(told(WM_RBUTTONUP, 0, kAt), "right up 0 30 -40 = 0");
    EXPECT_EQ(told(WM_RBUTTONDBLCLK, MK_RBUTTON, kAt), "right double 2 30 -40 = 0");
    EXPECT_EQ(told(WM_MOUSEWHEEL, MAKEWPARAM(MK_CONTROL, static_cast<WORD>(-120)), kAt),
              "wheel 8 -120 30 -40 = 18");
    EXPECT_EQ(told(WM_MOUSELEAVE), "leave = 0");
    EXPECT_EQ(told(WM_SETCURSOR, w_child(), MAKELPARAM(HTCLIENT, WM_MOUSEMOVE)), "cursor 77 1 512 = 26");
    EXPECT_EQ(told(WM_CONTEXTMENU, w_child(), kAt), "menu at 77 30 -40 = 0");
    EXPECT_EQ(told(WM_HSCROLL, MAKEWPARAM(SB_THUMBTRACK, 33), l_child()), "hscroll 5 33 77 = 0");
    EXPECT_EQ(told(WM_VSCROLL, MAKEWPARAM(SB_LINEUP, 0), 0), "vscroll 0 0 -1 = 0");
}

TEST_F(EverydayMessages, OfTheFrame) {
    EXPECT_EQ(told(WM_NCHITTEST, 0, kAt), "nc hit 30 -40 = 22");
    EXPECT_EQ(told(WM_NCMOUSEMOVE, HTMENU, kAt), "nc move 5 30 -40 = 0");
    EXPECT_EQ(told(WM_NCLBUTTONDOWN, HTCAPTION, kAt), "nc left down 2 30 -40 = 0");
    EXPECT_EQ(told(WM_NCLBUTTONUP, HTCAPTION, kAt), "nc left up 2 30 -40 = 0");
    EXPECT_EQ(told(WM_NCLBUTTONDBLCLK, HTCAPTION, kAt), "nc left double 2 30 -40 = 0");
    EXPECT_EQ(told(WM_NCRBUTTONDOWN, HTCAPTION, kAt), "nc right down 2 30 -40 = 0");
    EXPECT_EQ(told(WM_NCRBUTTONUP, HTCAPTION, kAt), "nc right up 2 30 -40 = 0");
    NCCALCSIZE_PARAMS size = {};
    EXPECT_EQ(told_of(WM_NCCALCSIZE, 9, size), "nc size 1 1 = 0");
    EXPECT_EQ(told_of(WM_NCCALCSIZE, 0, size), "nc size 0 1 = 0");
    EXPECT_EQ(told(WM_SYSCOMMAND, SC_CLOSE, 12), "sys command 61536 12 = 0");
    EXPECT_EQ(told(WM_CLOSE), "close = 0");
    EXPECT_EQ(told(WM_QUERYOPEN), "may open = 25");
    EXPECT_EQ(told(WM_QUERYDRAGICON), "icon = 23");
}

TEST_F(EverydayMessages, OfPlaceAndSize) {
    EXPECT_EQ(told(WM_MOVE, 0, kAt), "moved 30 -40 = 0");
    EXPECT_EQ(told(WM_SIZE, SIZE_MAXIMIZED, MAKELPARAM(300, 50000)), "sized 2 300 50000 = 0");
    EXPECT_EQ(told(WM_SHOWWINDOW, 3, SW_PARENTCLOSING), "show 1 1 = 0");
    WINDOWPOS place = {};
    EXPECT_EQ(told_of(WM_WINDOWPOSCHANGING, 0, place), "placing 1 = 0");
    EXPECT_EQ(told_of(WM_WINDOWPOSCHANGED, 0, place), "placed 1 = 0");
    MINMAXINFO limits = {};
    EXPECT_EQ(told_of(WM_GETMINMAXINFO, 0, limits), "minmax 1 = 0");
    STYLESTRUCT style = {};
    EXPECT_EQ(told_of(WM_STYLECHANGING, static_cast<WPARAM>(GWL_EXSTYLE), style), "style changing -20 1 = 0");
    EXPECT_EQ(told_of(WM_STYLECHANGED, static_cast<WPARAM>(GWL_STYLE), style), "style changed -16 1 = 0");
    EXPECT_EQ(told(WM_ENTERSIZEMOVE), "enter size = 0");
    EXPECT_EQ(told(WM_EXITSIZEMOVE), "exit size = 0");
}

TEST_F(EverydayMessages, OfMenus) {
    EXPECT_EQ(told(WM_INITMENU, w_menu()), "init menu 2 = 0");
    EXPECT_EQ(told(WM_INITMENUPOPUP, w_menu(), MAKELPARAM(4, 1)), "popup 2 4 1 = 0");
    kData = menu.m_hMenu;
    EXPECT_EQ(told(WM_MENUSELECT, MAKEWPARAM(51, MF_HILITE), static_cast<LPARAM>(w_menu())),
              "select 51 128 1 = 0");
    EXPECT_EQ(told(WM_MENUCHAR, MAKEWPARAM(L'x', MF_POPUP), static_cast<LPARAM>(w_menu())),
              "menu char 120 16 2 = 19");
}

TEST_F(EverydayMessages, OfItemsAndColors) {
    COMPAREITEMSTRUCT pair = {};
    DELETEITEMSTRUCT gone = {};
    DRAWITEMSTRUCT draw = {};
    MEASUREITEMSTRUCT measure = {};
    EXPECT_EQ(told_of(WM_COMPAREITEM, 5, pair), "compare 5 1 = 12");
    EXPECT_EQ(told_of(WM_DELETEITEM, 5, gone), "delete 5 1 = 1");
    EXPECT_EQ(told_of(WM_DRAWITEM, 5, draw), "draw 5 1 = 1");
    EXPECT_EQ(told_of(WM_MEASUREITEM, 5, measure), "measure 5 1 = 1");
    CClientDC dc(&window);
    const auto context = reinterpret_cast<WPARAM>(dc.m_hDC);
    EXPECT_EQ(told(WM_CTLCOLOREDIT, context, l_child()), "color 1 77 1 = 14");
    EXPECT_EQ(told(WM_CTLCOLORSTATIC, context, l_child()), "color 1 77 6 = 14");
    EXPECT_EQ(told(WM_ERASEBKGND, context), "erase 1 = 15");
}

TEST_F(EverydayMessages, OfTheSystem) {
    COPYDATASTRUCT data = {};
    HELPINFO help = {};
    EXPECT_EQ(told_of(WM_COPYDATA, w_child(), data), "copy data 77 1 = 13");
    EXPECT_EQ(told_of(WM_HELP, 0, help), "help 1 = 17");
    kData = reinterpret_cast<void*>(UINT_PTR{99});
    EXPECT_EQ(told(WM_DROPFILES, 99), "drop 1 = 0");
    EXPECT_EQ(told(WM_QUERYENDSESSION), "may end = 24");
    EXPECT_EQ(told(WM_ENDSESSION, 4), "end 1 = 0");
    EXPECT_EQ(told(WM_SETTINGCHANGE, 4, reinterpret_cast<LPARAM>(L"intl")), "setting 4 intl = 0");
    EXPECT_EQ(told(WM_SYSCOLORCHANGE), "colors = 0");
    EXPECT_EQ(told(WM_THEMECHANGED), "theme = 27");
    EXPECT_EQ(told(WM_TIMER, 4711), "timer 4711 = 0");
    EXPECT_EQ(told(WM_PARENTNOTIFY, WM_LBUTTONDOWN, 12), "parent 513 12 = 0");
    EXPECT_EQ(told(WM_CLEAR), "clear = 0");
    EXPECT_EQ(told(WM_CUT), "cut = 0");
    EXPECT_EQ(told(WM_COPY), "copy = 0");
    EXPECT_EQ(told(WM_PASTE), "paste = 0");
}
