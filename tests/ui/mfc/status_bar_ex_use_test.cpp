// The status bar of docking frames in use: mouse, tips, menus, assistive programs.
#include "accessible_object.h"
#include "status_bar_ex_fixture.h"

namespace docking {

namespace {

TEST_F(StatusBarEx, ADoubleClickIsThePanesCommand) {
    const CPoint middle = pane(1).CenterPoint();
    const auto click = [&](CPoint point) {
        bar.SendMessage(WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(point.x, point.y));
    };
    click(middle);
    EXPECT_TRUE(noting().commands.empty());
    bar.EnablePaneDoubleClick();
    click(middle);
    click(pane(0).CenterPoint());
    click(CPoint(-5, -5));
    EXPECT_EQ(noting().commands, std::vector<UINT>{kPane});
    bar.SetPaneStyle(1, SBPS_DISABLED);
    click(middle);
    EXPECT_EQ(noting().commands.size(), 2u) << "a key that is off is turned on so";
    bar.EnablePaneDoubleClick(FALSE);
    click(middle);
    EXPECT_EQ(noting().commands.size(), 2u);
}

TEST_F(StatusBarEx, TipsAreThePanesOwn) {
    bar.SetTipText(1, L"what it is");
    EXPECT_EQ(bar.GetTipText(1), L"what it is");
    TOOLINFO tool = {};
    tool.cbSize = TTTOOLINFOW_V1_SIZE;
    EXPECT_EQ(bar.OnToolHitTest(pane(0).CenterPoint(), &tool), -1);
    EXPECT_EQ(bar.OnToolHitTest(pane(1).CenterPoint(), &tool), 2);
    EXPECT_EQ(CRect(tool.rect), pane(1));
    EXPECT_EQ(bar.OnToolHitTest(pane(1).CenterPoint(), nullptr), 2);
    NMTTDISPINFOW question = {};
    CToolTipCtrl tip;
    tip.Create(&bar);
    question.hdr = {tip.m_hWnd, tool.uId, static_cast<UINT>(TTN_NEEDTEXTW)};
    bar.SendMessage(WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&question));
    EXPECT_STREQ(question.lpszText, L"what it is");
    bar.SetTipText(1, nullptr);
    EXPECT_EQ(bar.OnToolHitTest(pane(1).CenterPoint(), &tool), -1);
}

TEST_F(StatusBarEx, ItsCornerSizesTheFrame) {
    const CPoint corner = on_screen(bar).BottomRight() - CSize(4, 4);
    EXPECT_EQ(bar.SendMessage(WM_NCHITTEST, 0, MAKELPARAM(corner.x, corner.y)), HTBOTTOMRIGHT);
    const CPoint inside = on_screen(bar).BottomRight() - CSize(20, 4);
    EXPECT_EQ(bar.SendMessage(WM_NCHITTEST, 0, MAKELPARAM(inside.x, inside.y)), HTCLIENT);
    bar.SendMessage(WM_NCLBUTTONDOWN, HTBOTTOMRIGHT, MAKELPARAM(corner.x, corner.y));
    EXPECT_EQ(noting().cornerPresses, std::vector<WPARAM>{HTBOTTOMRIGHT});
    bar.SetPaneBackgroundColor(2, RGB(1, 2, 3));
    CRect all;
    bar.GetClientRect(&all);
    const CRect box(all.right - 14, all.top, all.right, all.bottom);
    EXPECT_LT(ui_test::Picture(bar, box).count(ui_test::Picture(bar, box).commonest()), 14 * box.Height());
    frame->ShowWindow(SW_MAXIMIZE);
    EXPECT_EQ(pane(2).right, client().right - 2);
    frame->ShowWindow(SW_RESTORE);
    EXPECT_EQ(pane(2).right, client().right - 16);
    frame->ModifyStyle(WS_THICKFRAME, 0);
    bar.RecalcLayout();
    EXPECT_EQ(pane(2).right, client().right - 2) << "a frame of a fixed size isn't sized";
    frame->ModifyStyle(0, WS_THICKFRAME);
    bar.RecalcLayout();
    // One that isn't at the bottom has none.
    CMFCStatusBar second;
    second.Create(frame, WS_CHILD | WS_VISIBLE | CBRS_BOTTOM, 900);
    second.SetIndicators(nullptr, 1);
    second.SetPaneInfo(0, 0, SBPS_STRETCH, 0);
    frame->RecalcLayout();
    CRect only;
    second.GetItemRect(0, &only);
    EXPECT_EQ(at(second).bottom, at(bar).top);
    EXPECT_EQ(only.right, client().right - 2);
}

TEST_F(StatusBarEx, TheFramesMenuItemShowsAndHidesIt) {
    const auto checked = [&] {
        struct Request : CCmdUI {
            int check = -1;
            void SetCheck(int value) override { check = value; }
            void Enable(BOOL) override {}
        } request;
        request.m_nID = ID_VIEW_STATUS_BAR;
        frame->OnCmdMsg(ID_VIEW_STATUS_BAR, CN_UPDATE_COMMAND_UI, &request, nullptr);
        return request.check;
    };
    EXPECT_EQ(checked(), 1);
    frame->SendMessage(WM_COMMAND, ID_VIEW_STATUS_BAR);
    EXPECT_FALSE(bar.IsWindowVisible());
    EXPECT_EQ(at(view).bottom, client().bottom);
    EXPECT_EQ(checked(), 0);
    frame->SendMessage(WM_COMMAND, ID_VIEW_STATUS_BAR);
    EXPECT_TRUE(bar.IsWindowVisible());
    EXPECT_EQ(at(view).bottom, at(bar).top);
}

TEST_F(StatusBarEx, AClassicBarOfTheSameIdIsShownAndHiddenToo) {
    bar.DestroyWindow();
    CStatusBar classic;
    classic.Create(frame);
    frame->RecalcLayout();
    frame->SendMessage(WM_COMMAND, ID_VIEW_STATUS_BAR);
    EXPECT_FALSE(classic.IsWindowVisible());
    frame->SendMessage(WM_COMMAND, ID_VIEW_STATUS_BAR);
    EXPECT_TRUE(classic.IsWindowVisible());
}

TEST_F(StatusBarEx, AssistiveProgramsLearnOfItsPanes) {
    ::CoInitialize(nullptr);
    bar.SetPaneText(1, L"said");
    bar.SetPaneStyle(2, SBPS_DISABLED | SBPS_POPOUT);
    bar.EnablePaneProgressBar(2, 200);
    bar.SetPaneProgress(2, 50);
    {
        ui_test::AccessibleObject object(bar.m_hWnd);
        LONG count = 0;
        EXPECT_EQ(object->get_accChildCount(&count), S_OK);
        EXPECT_EQ(count, 3);
        EXPECT_EQ(object.name(), L"Status bar");
        EXPECT_EQ(object.role(), ROLE_SYSTEM_STATUSBAR);
        EXPECT_EQ(object.name(2), L"said");
        EXPECT_EQ(object.role(2), ROLE_SYSTEM_STATICTEXT);
        EXPECT_EQ(object.value(2), L"");
        EXPECT_EQ(object.state(2), STATE_SYSTEM_READONLY);
        EXPECT_EQ(object.role(3), ROLE_SYSTEM_PROGRESSBAR);
        EXPECT_EQ(object.value(3), L"25%");
        EXPECT_EQ(object.state(3), STATE_SYSTEM_READONLY | STATE_SYSTEM_UNAVAILABLE | STATE_SYSTEM_CHECKED);
        CRect place = pane(1);
        bar.ClientToScreen(&place);
        EXPECT_EQ(object.place(2), place);
        EXPECT_EQ(object.act(2), DISP_E_MEMBERNOTFOUND);
        VARIANT name = ui_test::AccessibleObject::of(4);
        BSTR said = nullptr;
        EXPECT_EQ(object->get_accName(name, &said), E_INVALIDARG);
        bar.DestroyWindow();
        EXPECT_EQ(object->get_accName(ui_test::AccessibleObject::of(1), &said), CO_E_OBJNOTCONNECTED);
    }
    ::CoUninitialize();
}

struct Heard {
    DWORD event;
    LONG child;
    bool operator==(const Heard&) const = default;
};
std::vector<Heard> heard;
void CALLBACK hear(HWINEVENTHOOK, DWORD event, HWND, LONG object, LONG child, DWORD, DWORD) {
    if (object == OBJID_CLIENT) heard.push_back({event, child});
}

TEST_F(StatusBarEx, AssistiveProgramsHearOfChanges) {
    heard.clear();
    const HWINEVENTHOOK hook =
        ::SetWinEventHook(EVENT_OBJECT_STATECHANGE, EVENT_OBJECT_VALUECHANGE, nullptr, &hear,
                          ::GetCurrentProcessId(), ::GetCurrentThreadId(), WINEVENT_OUTOFCONTEXT);
    bar.SetPaneText(0, L"next");
    bar.SetPaneStyle(1, SBPS_DISABLED);
    bar.EnablePaneProgressBar(2);
    bar.SetPaneProgress(2, 5);
    EXPECT_TRUE(ui_test::pump_until([] { return heard.size() >= 3; }));
    ::UnhookWinEvent(hook);
    EXPECT_EQ(heard, (std::vector<Heard>{{EVENT_OBJECT_NAMECHANGE, 1},
                                         {EVENT_OBJECT_STATECHANGE, 2},
                                         {EVENT_OBJECT_VALUECHANGE, 3}}));
}
}  // namespace

}  // namespace docking
