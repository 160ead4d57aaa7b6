// A frame whose menu stands in a bar, for its tests.
#pragma once

#include <deque>
#include <functional>
#include <string>

#include "docking_bars_fixture.h"
#include "watchdog.h"

namespace docking {

/// Notes what a frame is told of its menus, and plays keys or other steps whenever a menu opens.
class MenuFrame : public BarsFrame {
public:
    std::vector<std::string> told;
    std::deque<std::function<void()>> steps;  ///< one for each menu that opens; without one it is closed
    HWND bar = nullptr;                       ///< the owner of the menus

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        const LRESULT answer = BarsFrame::WindowProc(message, wParam, lParam);
        switch (message) {
            case WM_ENTERMENULOOP: told.push_back("enter"); break;
            case WM_EXITMENULOOP: told.push_back("exit"); break;
            case WM_INITMENU: told.push_back("menu"); break;
            case WM_INITMENUPOPUP: opened(lParam); break;
            case WM_MENUSELECT:
                if (HIWORD(wParam) == 0xFFFF)
                    told.push_back("rest");
                else if ((HIWORD(wParam) & MF_POPUP) == 0 && LOWORD(wParam) != 0)
                    told.push_back("on " + std::to_string(LOWORD(wParam)));
                break;
            case WM_COMMAND: told.push_back("do " + std::to_string(LOWORD(wParam))); break;
            default: break;
        }
        return answer;
    }

private:
    void opened(LPARAM place) {
        told.push_back("open " + std::to_string(LOWORD(place)));
        if (steps.empty()) return static_cast<void>(::PostMessageW(bar, WM_KEYDOWN, VK_ESCAPE, 0));
        const std::function<void()> step = std::move(steps.front());
        steps.pop_front();
        step();
    }
};

/// A bar of five items: File (with a menu inside its menu), Edit, Locked (disabled), Go (a command), Help.
class MenuBars : public DockingBars {
protected:
    MenuBars() : DockingBars(new MenuFrame) {
        HMENU const recent = popup({{kOpen, L"&First"}});
        file = popup({{kNew, L"&New"}, {kOpen, L"&Open\tCtrl+O"}});
        ::AppendMenuW(file, MF_POPUP, reinterpret_cast<UINT_PTR>(recent), L"&Recent");
        edit = popup({{kCut, L"&Cut"}, {kNew, L"&Copy"}, {kUnhandled, L"&Paste"}});
        help = popup({{kNew, L"&About"}});
        all = ::CreateMenu();
        add(all, file, L"&File");
        add(all, edit, L"&Edit what is selected");
        ::AppendMenuW(all, MF_POPUP | MF_GRAYED, reinterpret_cast<UINT_PTR>(popup({{kNew, L"&Never"}})),
                      L"&Locked");
        ::AppendMenuW(all, MF_STRING, kNew, L"&Go");
        add(all, help, L"&Help");
        ::SetMenu(frame->m_hWnd, all);
    }
    ~MenuBars() override {
        if (bar.m_hWnd != nullptr) bar.DestroyWindow();
    }

    static HMENU popup(const std::vector<std::pair<UINT, const wchar_t*>>& items) {
        HMENU const menu = ::CreatePopupMenu();
        for (const auto& [id, text] : items) ::AppendMenuW(menu, MF_STRING, id, text);
        return menu;
    }
    static void add(HMENU to, HMENU menu, const wchar_t* text) {
        ::AppendMenuW(to, MF_POPUP, reinterpret_cast<UINT_PTR>(menu), text);
    }
    MenuFrame& menu_frame() { return static_cast<MenuFrame&>(*frame); }

    /// Makes the bar and docks it at the top.
    void dock() {
        ASSERT_TRUE(bar.Create(frame));
        menu_frame().bar = bar.m_hWnd;
        bar.SetWindowText(L"Menu");
        bar.EnableDocking(CBRS_ALIGN_ANY);
        frame->DockPane(&bar);
        bar.SendMessage(WM_IDLEUPDATECMDUI, TRUE);
        frame->SetActiveWindow();
        view.SetFocus();
    }
    /// A message as the loop hands it out; whether somebody took it before its window.
    bool handed_out(HWND window, UINT message, WPARAM wParam, LPARAM lParam = 0) {
        MSG made = {};
        made.hwnd = window;
        made.message = message;
        made.wParam = wParam;
        made.lParam = lParam;
        return CWnd::WalkPreTranslateTree(frame->m_hWnd, &made) != FALSE;
    }
    bool alt(wchar_t letter) {
        constexpr LPARAM kAltIsDown = 0x20000000;
        return handed_out(view.m_hWnd, WM_SYSCHAR, static_cast<WPARAM>(letter), kAltIsDown);
    }
    void lone_alt() { frame->SendMessage(WM_SYSCOMMAND, SC_KEYMENU, 0); }
    /// A key while the bar has the focus.
    void bar_key(WPARAM code) {
        handed_out(bar.m_hWnd, WM_KEYDOWN, code);
        ui_test::pump();
    }
    /// When the next menu opens, these keys come.
    void then(const std::vector<WPARAM>& keys) {
        menu_frame().steps.push_back([this, keys] {
            for (const WPARAM key : keys) ::PostMessageW(bar.m_hWnd, WM_KEYDOWN, key, 0);
        });
    }
    void then_do(std::function<void()> step) { menu_frame().steps.push_back(std::move(step)); }
    /// The mouse while a menu is open, which is told in coordinates of the screen.
    void menu_mouse(UINT message, CPoint screen) {
        ::PostMessageW(bar.m_hWnd, message, 0, MAKELPARAM(screen.x, screen.y));
    }
    /// What the frame was told since the last call, with what is still in the queue.
    std::vector<std::string> told() {
        ui_test::pump();
        return std::exchange(menu_frame().told, {});
    }
    void narrow(int width) {
        const CRect outer = on_screen(*frame);
        CRect client;
        frame->GetClientRect(&client);
        frame->SetWindowPos(nullptr, 0, 0, outer.Width() - client.Width() + width, outer.Height(),
                            SWP_NOMOVE | SWP_NOZORDER);
    }

    ui_test::Watchdog watchdog;
    CMFCMenuBar bar;
    HMENU all, file, edit, help;
};

using Told = std::vector<std::string>;

}  // namespace docking
