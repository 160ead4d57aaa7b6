// A main window with a pane of each kind, gone through by keys as the message loop hands them out.
#pragma once

#include <ktui/docking/pane_keys.h>

#include "layouts_fixture.h"

namespace docking_test {

struct PaneKeys : LayoutsTest {
    std::vector<std::unique_ptr<CButton>> buttons;

    /// A and B docked, C hidden at an edge, D floating, and a set of three palettes.
    PaneKeys() {
        fillFrame(4);
        EXPECT_TRUE(bars[2]->ToggleAutoHide());
        EXPECT_TRUE(bars[3]->FloatPane(CRect(300, 250, 450, 380)));
        frame->SetFocus();
        ui_test::pump();
    }
    ~PaneKeys() override {
        KtUiEnablePaneKeys(*frame, FALSE);
        for (const int key : {VK_SHIFT, VK_CONTROL, VK_MENU}) setKey(key, false);
    }
    /// A key, as the message loop hands it out; whether it came to the window with the focus.
    bool key(WPARAM key, std::initializer_list<int> held = {}, UINT kind = WM_KEYDOWN) {
        MSG message = {};
        for (const int one : held) setKey(one, true);
        ::PostMessageW(::GetFocus() != nullptr ? ::GetFocus() : frame->m_hWnd, kind, key, 1);
        bool came = false;
        while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
            came = came || (message.message == kind && message.wParam == key);
            ::DispatchMessageW(&message);
        }
        for (const int one : held) setKey(one, false);
        return came;
    }
    bool press(std::initializer_list<int> held = {}) { return key(VK_F6, held); }
    /// The pane that has the focus, or what else has it.
    std::wstring focused() {
        const HWND focus = ::GetFocus();
        for (CKbUiDockControlBar* pane : panes())
            if (focus == pane->m_hWnd || ::IsChild(pane->m_hWnd, focus)) {
                CString name;
                pane->GetWindowText(name);
                return std::wstring(name);
            }
        return focus != nullptr && ::GetAncestor(focus, GA_ROOT) == frame->m_hWnd ? L"middle" : L"elsewhere";
    }
    static HWND label() {
        HWND found = nullptr;
        ::EnumThreadWindows(
            ::GetCurrentThreadId(),
            [](HWND window, LPARAM result) -> BOOL {
                wchar_t name[40] = {};
                ::GetClassNameW(window, name, 40);
                const bool isLabel = std::wstring(name) == TOOLTIPS_CLASSW && ::IsWindowVisible(window);
                if (isLabel) *reinterpret_cast<HWND*>(result) = window;
                return !isLabel;
            },
            reinterpret_cast<LPARAM>(&found));
        return found;
    }
    static std::wstring said() {
        wchar_t text[100] = {};
        TOOLINFOW tool = {};
        tool.cbSize = TTTOOLINFOW_V2_SIZE;
        tool.lpszText = text;
        if (label() != nullptr) ::SendMessageW(label(), TTM_GETTEXTW, 100, reinterpret_cast<LPARAM>(&tool));
        return text;
    }
};

}  // namespace docking_test
