// A frame with a view and panes for the tests of docking.
#pragma once

#include <afxcaptionbutton.h>
#include <afxcontrolbars.h>
#include <afxext.h>

#include <memory>
#include <vector>

#include "ui_test.h"

namespace docking {

/// A pane that says what it was asked, and answers what the test wants.
class Pane : public CDockablePane {
public:
    BOOL mayFloat = TRUE;
    bool hasOwnAlignment = false;
    DWORD ownAlignment = 0;
    int closes = 0;
    int floats = 0, docks = 0;
    mutable int floatQuestions = 0, sideQuestions = 0;

    BOOL CanFloat() const override {
        ++floatQuestions;
        return mayFloat && CDockablePane::CanFloat();
    }
    DWORD GetEnabledAlignment() const override {
        ++sideQuestions;
        return hasOwnAlignment ? ownAlignment : CDockablePane::GetEnabledAlignment();
    }
    void OnPressCloseButton() override {
        ++closes;
        CDockablePane::OnPressCloseButton();
    }
    BOOL OnAfterFloat() override {
        ++floats;
        return CDockablePane::OnAfterFloat();
    }
    void OnAfterDock(CBasePane* bar, LPCRECT rect, AFX_DOCK_METHOD method) override {
        ++docks;
        CDockablePane::OnAfterDock(bar, rect, method);
    }
};

class Frame : public CFrameWndEx {
public:
    std::vector<BOOL> activations;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_NCACTIVATE) activations.push_back(static_cast<BOOL>(wParam));
        return CFrameWndEx::WindowProc(message, wParam, lParam);
    }
};

constexpr UINT kFirstId = 3000;

class Docking : public ::testing::Test {
protected:
    explicit Docking(DWORD visible = WS_VISIBLE, Frame* made = new Frame) : frame(made) {
        frame->Create(nullptr, L"frame", WS_OVERLAPPEDWINDOW | visible, CRect(50, 50, 850, 650));
        CRect outer(0, 0, 700, 500);
        frame->CalcWindowRect(&outer);
        frame->SetWindowPos(nullptr, 0, 0, outer.Width(), outer.Height(), SWP_NOMOVE | SWP_NOZORDER);
        CRect client;
        frame->GetClientRect(&client);
        frame->SetWindowPos(nullptr, 0, 0, outer.Width() + 700 - client.Width(),
                            outer.Height() + 500 - client.Height(), SWP_NOMOVE | SWP_NOZORDER);
        view.Create(AfxRegisterWndClass(0), L"view", WS_CHILD | WS_VISIBLE, CRect(0, 0, 1, 1), frame,
                    AFX_IDW_PANE_FIRST);
        frame->EnableDocking(CBRS_ALIGN_ANY);
        frame->RecalcLayout();
        AfxGetApp()->m_pMainWnd = frame;
    }
    ~Docking() override {
        AfxGetApp()->m_pMainWnd = nullptr;
        frame->DestroyWindow();
        ui_test::pump();
    }

    CDockingManager& manager() { return *frame->GetDockingManager(); }

    /// A pane that isn't docked yet, with the next id.
    Pane& make(const wchar_t* name, CSize size = CSize(150, 120),
               DWORD style = CBRS_LEFT | CBRS_FLOAT_MULTI) {
        panes.push_back(std::make_unique<Pane>());
        Pane& pane = *panes.back();
        EXPECT_TRUE(pane.Create(name, frame, size, TRUE, kFirstId + static_cast<UINT>(panes.size()),
                                WS_CHILD | WS_VISIBLE | style));
        pane.EnableDocking(CBRS_ALIGN_ANY);
        return pane;
    }
    Pane& docked(const wchar_t* name, UINT side, int extent = 150) {
        Pane& pane = make(name, CSize(extent, extent));
        frame->DockPane(&pane, side);
        return pane;
    }

    /// Client coordinates of the parent.
    static CRect at(const CWnd& window) {
        CRect rect;
        window.GetWindowRect(&rect);
        ::MapWindowPoints(nullptr, ::GetParent(window.m_hWnd), reinterpret_cast<POINT*>(&rect), 2);
        return rect;
    }
    static CRect on_screen(const CWnd& window) {
        CRect rect;
        window.GetWindowRect(&rect);
        return rect;
    }
    void idle() { frame->SendMessage(WM_IDLEUPDATECMDUI, TRUE); }

    /// The dividers that can be seen in a window.
    static std::vector<CPaneDivider*> dividers(const CWnd& parent) {
        std::vector<CPaneDivider*> found;
        for (HWND child = ::GetTopWindow(parent.m_hWnd); child != nullptr;
             child = ::GetWindow(child, GW_HWNDNEXT))
            if (auto* divider = DYNAMIC_DOWNCAST(CPaneDivider, CWnd::FromHandlePermanent(child)))
                if (divider->GetStyle() & WS_VISIBLE) found.push_back(divider);
        return found;
    }

    // The mouse, at points of the screen.
    static void send_mouse(HWND window, UINT message, CPoint screen, WPARAM keys) {
        ::ScreenToClient(window, &screen);
        ::SendMessageW(window, message, keys, MAKELPARAM(screen.x, screen.y));
    }
    static void press(const CWnd& window, CPoint screen) {
        send_mouse(window.m_hWnd, WM_LBUTTONDOWN, screen, MK_LBUTTON);
    }
    /// What has the mouse gets it.
    static void move(CPoint screen, WPARAM keys = MK_LBUTTON) {
        ASSERT_NE(::GetCapture(), nullptr);
        send_mouse(::GetCapture(), WM_MOUSEMOVE, screen, keys);
    }
    static void release(CPoint screen) {
        ASSERT_NE(::GetCapture(), nullptr);
        send_mouse(::GetCapture(), WM_LBUTTONUP, screen, 0);
    }
    /// A key, as the message loop hands it out.
    void key(WPARAM code) {
        MSG message = {};
        message.hwnd = ::GetFocus() != nullptr ? ::GetFocus() : frame->m_hWnd;
        message.message = WM_KEYDOWN;
        message.wParam = code;
        CWnd::WalkPreTranslateTree(frame->m_hWnd, &message);
    }
    static CPoint caption_of(const CWnd& window) { return on_screen(window).TopLeft() + CSize(40, 8); }

    /// Panes, dividers and view inside the frame: none over another, none outside, together all of it.
    void check_frame() {
        CRect client;
        frame->GetClientRect(&client);
        std::vector<CRect> all;
        for (HWND child = ::GetTopWindow(frame->m_hWnd); child != nullptr;
             child = ::GetWindow(child, GW_HWNDNEXT)) {
            if (!(::GetWindowLongW(child, GWL_STYLE) & WS_VISIBLE)) continue;
            CRect rect;
            ::GetWindowRect(child, &rect);
            ::MapWindowPoints(nullptr, frame->m_hWnd, reinterpret_cast<POINT*>(&rect), 2);
            all.push_back(rect);
        }
        check_cover(client, all);
    }
    static void check_cover(const CRect& client, const std::vector<CRect>& all) {
        long long area = 0;
        for (size_t i = 0; i < all.size(); ++i) {
            ASSERT_TRUE(all[i].left >= client.left && all[i].top >= client.top &&
                        all[i].right <= client.right && all[i].bottom <= client.bottom)
                << all[i].left << "," << all[i].top << "," << all[i].right << "," << all[i].bottom;
            area += 1LL * all[i].Width() * all[i].Height();
            for (size_t k = 0; k < i; ++k) {
                CRect both;
                ASSERT_FALSE(both.IntersectRect(&all[i], &all[k]));
            }
        }
        ASSERT_EQ(area, 1LL * client.Width() * client.Height())
            << all.size() << " windows in " << client.Width() << " by " << client.Height();
    }

    Frame* frame;  // deletes itself
    CWnd view;
    std::vector<std::unique_ptr<Pane>> panes;
};

}  // namespace docking
