// The tool-tip control with the toolkit's delay and width, and the tracking tip for items.
#include <ktui/tips/kb_tool_tip_ctrl.h>
#include <ktui/tips/tool_tip.h>

#include <od_host_services.h>
#include <od_tool_tip_setting.h>

#include <utility>
#include <vector>

#include "sent_messages.h"
#include "system_colors.h"
#include "test_host.h"
#include "ui_test.h"

using namespace ui_test;

namespace {

class SettingServices : public OdDbHostAppServices, public OdDbToolTipSetting {
public:
    short toolTips() const override { return value; }
    short value = 1;
};

class RelayingTip : public CKbToolTipCtrl {
public:
    std::vector<UINT> reached;

protected:
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == TTM_RELAYEVENT) reached.push_back(message);
        return CKbToolTipCtrl::DefWindowProc(message, wParam, lParam);
    }
};

class ToolTipCtrl : public ::testing::Test {
protected:
    ~ToolTipCtrl() override {
        oddbSetHostApplicationServices(former);
        CKbToolTipCtrl::SetDeaultDelayTime(500);
    }
    int DelayOfANewOne() {
        CKbToolTipCtrl tip;
        tip.Create(&parent);
        // The automatic delay is the initial one, and the others follow from it.
        const int delay = tip.GetDelayTime(TTDT_INITIAL);
        tip.DestroyWindow();
        return delay;
    }
    LRESULT Relay(RelayingTip& tip) {
        MSG message = {parent.m_hWnd, WM_MOUSEMOVE, 0, 0, 0, {0, 0}};
        return tip.SendMessage(TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(&message));
    }
    TestHost host;
    ParentWindow parent;
    OdDbHostAppServices* former = oddbHostApplicationServices();
};

class OpenToolTip : public CToolTip {
public:
    using CToolTip::CToolTip;
    using CToolTip::m_shown;
    using CToolTip::m_text;
    using CToolTip::m_toolInfo;
};

class TrackingTip : public ::testing::Test {
protected:
    TrackingTip() : tip(control()) {}
    CWnd& control() {
        list.Create(L"LISTBOX", L"", WS_CHILD | WS_VISIBLE, CRect(10, 10, 100, 100), &parent, 5);
        return list;
    }
    TestHost host;
    ParentWindow parent;
    CWnd list;
    OpenToolTip tip;
};

}  // namespace

TEST_F(ToolTipCtrl, HasTheDelayAndAQuarterOfTheScreen) {
    EXPECT_EQ(DelayOfANewOne(), 500);
    CKbToolTipCtrl tip;
    tip.Create(&parent);
    EXPECT_EQ(tip.GetMaxTipWidth(), ::GetSystemMetrics(SM_CXSCREEN) / 4);
}

TEST_F(ToolTipCtrl, OnlyAPositiveDelayCounts) {
    CKbToolTipCtrl::SetDeaultDelayTime(700);
    EXPECT_EQ(DelayOfANewOne(), 700);
    CKbToolTipCtrl::SetDeaultDelayTime(0);
    EXPECT_EQ(DelayOfANewOne(), 700);
    CKbToolTipCtrl::SetDeaultDelayTime(-1);
    EXPECT_EQ(DelayOfANewOne(), 700);
}

TEST_F(ToolTipCtrl, TheHostsSettingKeepsEventsFromIt) {
    SettingServices services;
    RelayingTip tip;
    tip.Create(&parent);
    oddbSetHostApplicationServices(&services);
    Relay(tip);
    EXPECT_EQ(tip.reached.size(), 1u);
    services.value = 0;
    EXPECT_EQ(Relay(tip), 1);
    EXPECT_EQ(tip.reached.size(), 1u);
    oddbSetHostApplicationServices(nullptr);
    Relay(tip);
    EXPECT_EQ(tip.reached.size(), 2u);
}

TEST_F(TrackingTip, IsATopmostTipOfTheControl) {
    wchar_t name[40] = {};
    ::GetClassNameW(tip.m_hWnd, name, 40);
    EXPECT_STREQ(name, L"tooltips_class32");
    EXPECT_EQ(tip.GetStyle() & 3, 3u);
    EXPECT_EQ(tip.GetExStyle() & WS_EX_TOPMOST, static_cast<DWORD>(WS_EX_TOPMOST));
    EXPECT_EQ(tip.m_toolInfo.cbSize, 72u);
    EXPECT_EQ(tip.m_toolInfo.uFlags, 160u);
    EXPECT_EQ(tip.m_toolInfo.hwnd, list.m_hWnd);
    EXPECT_EQ(tip.SendMessage(TTM_GETMAXTIPWIDTH), 32767);
    EXPECT_EQ(tip.SendMessage(TTM_GETTOOLCOUNT), 1);
    EXPECT_EQ(static_cast<COLORREF>(tip.SendMessage(TTM_GETTIPBKCOLOR)), ::GetSysColor(COLOR_WINDOW));
    EXPECT_EQ(static_cast<COLORREF>(tip.SendMessage(TTM_GETTIPTEXTCOLOR)), ::GetSysColor(COLOR_WINDOWTEXT));
    EXPECT_FALSE(tip.IsWindowVisible());
}

TEST_F(TrackingTip, ShowsATextOnceAndAnotherAnew) {
    using Sent = std::vector<std::pair<UINT, WPARAM>>;
    Sent sent;
    const SentMessages watch([&](const CWPSTRUCT& message) {
        if (message.hwnd == tip.m_hWnd && message.message >= WM_USER)
            sent.push_back({message.message, message.wParam});
    });
    tip.Show(CPoint(200, 150), L"a long entry");
    EXPECT_TRUE(tip.IsWindowVisible());
    EXPECT_EQ(tip.m_shown, 1);
    const Sent asked = {{TTM_UPDATETIPTEXTW, 0}, {TTM_TRACKPOSITION, 0}, {TTM_TRACKACTIVATE, TRUE}};
    EXPECT_EQ(sent, asked);
    sent.clear();
    tip.Show(CPoint(210, 150), L"a long entry");
    EXPECT_TRUE(sent.empty());
    tip.Show(CPoint(210, 150), L"another entry");
    ASSERT_EQ(sent.size(), 4u);
    EXPECT_EQ(sent[0], (Sent::value_type{TTM_TRACKACTIVATE, FALSE}));
    EXPECT_EQ(Sent(sent.begin() + 1, sent.end()), asked);
    EXPECT_EQ(tip.m_text, L"another entry");
}

TEST_F(TrackingTip, IsAddedToItselfWithAnEmptyText) {
    int added = 0;
    CString text = L"?";
    {
        const SentMessages watch([&](const CWPSTRUCT& message) {
            if (message.message != TTM_ADDTOOLW) return;
            ++added;
            const auto& tool = *reinterpret_cast<const TOOLINFOW*>(message.lParam);
            EXPECT_EQ(message.wParam, 0u);
            ASSERT_NE(tool.lpszText, nullptr) << "a null text would be none to track";
            text = tool.lpszText;
        });
        const OpenToolTip another(list);
    }
    EXPECT_EQ(added, 1);
    EXPECT_EQ(text, L"");
}

TEST_F(TrackingTip, HasTheColoursOfWindows) {
    const SystemColors colors({{COLOR_WINDOW, RGB(250, 250, 210)}, {COLOR_WINDOWTEXT, RGB(70, 0, 90)}});
    OpenToolTip another(list);
    EXPECT_EQ(another.SendMessage(TTM_GETTIPBKCOLOR), RGB(250, 250, 210));
    EXPECT_EQ(another.SendMessage(TTM_GETTIPTEXTCOLOR), RGB(70, 0, 90));
}

TEST_F(TrackingTip, HidingForgetsTheText) {
    tip.Show(CPoint(200, 150), L"entry");
    tip.Hide();
    EXPECT_FALSE(tip.IsWindowVisible());
    EXPECT_EQ(tip.m_shown, 0);
    EXPECT_TRUE(tip.m_text.IsEmpty());
    tip.Show(CPoint(200, 150), L"entry");
    EXPECT_TRUE(tip.IsWindowVisible());
}

TEST_F(TrackingTip, LeavesWithThePointer) {
    tip.Show(CPoint(200, 150), L"entry");
    tip.SendMessage(WM_MOUSELEAVE);
    EXPECT_FALSE(tip.IsWindowVisible());
}

TEST_F(TrackingTip, AClickGoesToTheWindowBeneath) {
    CRect area;
    list.GetWindowRect(&area);
    const CPoint place = area.TopLeft() + CSize(5, 6);
    tip.Show(place, L"entry");
    CPoint point = place + CSize(3, 3);
    tip.ScreenToClient(&point);
    const LPARAM onTip = MAKELPARAM(point.x, point.y);
    std::vector<LPARAM> clicks;
    {
        const SentMessages watch([&](const CWPSTRUCT& message) {
            if (message.hwnd == list.m_hWnd && message.message == WM_LBUTTONDOWN)
                clicks.push_back(message.lParam);
        });
        tip.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, onTip);
    }
    EXPECT_FALSE(tip.IsWindowVisible());
    ASSERT_EQ(clicks.size(), 1u);
    EXPECT_EQ(clicks[0], MAKELPARAM(8, 9));
    ::ReleaseCapture();
}
