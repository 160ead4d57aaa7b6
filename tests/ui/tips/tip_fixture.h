// What the tests of tip windows share: tips that tell what they do, a control beneath them, and the system's
// timer calls written down.
#pragma once

#include <ktui/tips/kbui_balloon_tip.h>
#include <ktui/tips/kbui_text_tip.h>

#include <string>
#include <vector>

#include "replaced_import.h"
#include "test_host.h"
#include "ui_test.h"

namespace ui_test {

/// A tip of the kind `Tip` that counts its Hide and opens what is protected.
template <class Tip>
class WatchedTip : public Tip {
public:
    using Tip::m_timer;
    using Tip::StartTimer;
    using Tip::StopTimer;

    int hides = 0;
    std::vector<bool> shown;      ///< each WM_SHOWWINDOW
    std::vector<DWORD> exStyles;  ///< each extended style that was asked for while the tip was up

    void Hide() override {
        ++hides;
        Tip::Hide();
    }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_SHOWWINDOW) shown.push_back(wParam != 0);
        if (message == WM_STYLECHANGING && static_cast<int>(wParam) == GWL_EXSTYLE && this->IsWindowVisible())
            exStyles.push_back(reinterpret_cast<const STYLESTRUCT*>(lParam)->styleNew);
        return Tip::WindowProc(message, wParam, lParam);
    }
};

inline std::vector<std::string> timerCalls;

inline UINT_PTR WINAPI NoteSetTimer(HWND window, UINT_PTR id, UINT period, TIMERPROC procedure) {
    timerCalls.push_back("set " + std::to_string(id) + " " + std::to_string(period));
    return ::SetTimer(window, id, period, procedure);
}

inline BOOL WINAPI NoteKillTimer(HWND window, UINT_PTR id) {
    timerCalls.push_back("kill " + std::to_string(id));
    return ::KillTimer(window, id);
}

/// The timer calls of the library, written down for as long as the object lives.
struct RecordedTimers {
    RecordedTimers() { timerCalls.clear(); }
    HMODULE toolkit = ::GetModuleHandleW(L"ktui.dll");
    ReplacedImport set{toolkit, "SetTimer", &NoteSetTimer};
    ReplacedImport kill{toolkit, "KillTimer", &NoteKillTimer};
};

/// A tip over a control, with the pointer on both.
template <class Tip>
class TipOverControl : public ::testing::Test {
protected:
    TipOverControl() {
        target.Create(AfxRegisterWndClass(0), L"target", WS_CHILD | WS_VISIBLE, CRect(20, 30, 220, 60),
                      &parent, 7);
        tip.Create(&parent);
        tip.SetControl(&target);
        parent.SetFocus();
        pump();
        target.GetWindowRect(&area);
        tip.MoveWindow(&area, FALSE);
        move_cursor(area.CenterPoint());
    }
    ~TipOverControl() override { tip.DestroyWindow(); }

    TestHost host;
    ParentWindow parent;
    CWnd target;
    WatchedTip<Tip> tip;
    CRect area;
};

}  // namespace ui_test
