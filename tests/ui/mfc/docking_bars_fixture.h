// A frame with toolbars that dock, for their tests.
#pragma once

#include "docking_fixture.h"

namespace docking {

constexpr UINT kNew = 2001, kOpen = 2002, kCut = 2003, kUnhandled = 2004;
constexpr UINT kBarId = 700;

/// A frame whose commands say what buttons are.
class BarsFrame : public Frame {
public:
    std::vector<UINT> commands;
    std::vector<UINT> messages;  ///< that were to be shown; 0xE001 when a button was left
    BOOL openEnabled = TRUE;
    int cutCheck = 0;

protected:
    afx_msg void OnCommandOf(UINT id) { commands.push_back(id); }
    afx_msg void OnUpdateOpen(CCmdUI* item) { item->Enable(openEnabled); }
    afx_msg void OnUpdateCut(CCmdUI* item) { item->SetCheck(cutCheck); }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_SETMESSAGESTRING || message == WM_POPMESSAGESTRING)
            messages.push_back(static_cast<UINT>(wParam));
        return Frame::WindowProc(message, wParam, lParam);
    }
    DECLARE_MESSAGE_MAP()
};

class DockingBars : public Docking {
protected:
    explicit DockingBars(BarsFrame* made = new BarsFrame) : Docking(WS_VISIBLE, made) {}
    ~DockingBars() override {
        for (auto& bar : bars) bar->DestroyWindow();
    }

    BarsFrame& bars_frame() { return static_cast<BarsFrame&>(*frame); }

    /// A bar of the four buttons of the resource, which docks nowhere yet.
    CMFCToolBar& make_bar(const wchar_t* name = L"bar", DWORD style = AFX_DEFAULT_TOOLBAR_STYLE) {
        bars.push_back(std::make_unique<CMFCToolBar>());
        CMFCToolBar& bar = *bars.back();
        EXPECT_TRUE(bar.Create(frame, style, kBarId + static_cast<UINT>(bars.size())));
        EXPECT_TRUE(bar.LoadToolBar(440));
        bar.SetWindowText(name);
        bar.EnableDocking(CBRS_ALIGN_ANY);
        return bar;
    }
    CMFCToolBar& docked_bar(UINT side = AFX_IDW_DOCKBAR_TOP) {
        CMFCToolBar& bar = make_bar();
        frame->DockPane(&bar, side);
        return bar;
    }

    /// Client coordinates of the frame.
    CRect in_frame(const CWnd& window) {
        CRect rect = on_screen(window);
        frame->ScreenToClient(&rect);
        return rect;
    }
    CPoint on_frame(int x, int y) {
        CPoint point(x, y);
        frame->ClientToScreen(&point);
        return point;
    }
    static CPoint gripper_of(const CMFCToolBar& bar) {
        CRect gripper;
        bar.GetGripperRect(gripper);
        CPoint point = gripper.CenterPoint();
        bar.ClientToScreen(&point);
        return point;
    }
    static CPoint button_of(const CMFCToolBar& bar, int index) {
        CRect rect;
        bar.GetItemRect(index, &rect);
        CPoint point = rect.CenterPoint();
        bar.ClientToScreen(&point);
        return point;
    }
    void click(const CMFCToolBar& bar, int index) {
        press(bar, button_of(bar, index));
        release(button_of(bar, index));
        ui_test::pump();
    }
    /// Drags by the gripper, in two steps as a hand would.
    void drag(const CMFCToolBar& bar, CPoint to, WPARAM keys = MK_LBUTTON) {
        press(bar, gripper_of(bar));
        move(gripper_of(bar) + CSize(8, 0));
        move(to, keys);
    }
    static void double_click(const CWnd& window, CPoint screen) {
        send_mouse(window.m_hWnd, WM_LBUTTONDBLCLK, screen, MK_LBUTTON);
    }

    std::vector<std::unique_ptr<CMFCToolBar>> bars;
};

}  // namespace docking
