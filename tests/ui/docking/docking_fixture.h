// A main window whose panes dock, a host that knows it, and a store of settings that tells what was asked of
// it.
#pragma once

#include <ktui/docking/kbui_dock_control_bar.h>
#include <ktui/docking/multi_pane_frame_wnd_ex.h>

#include <afxcontrolbars.h>
#include <afxsettingsstore.h>

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "test_host.h"
#include "ui_test.h"

namespace docking_test {

/// Deletes itself with its window, as frames do.
class Frame : public CMDIFrameWndEx {};

struct DockingTest : ::testing::Test {
    ui_test::TestHost host;
    Frame* frame = new Frame;

    DockingTest() {
        EXPECT_TRUE(
            frame->Create(nullptr, L"frame", WS_OVERLAPPEDWINDOW | WS_VISIBLE, CRect(20, 20, 820, 620)));
        frame->EnableDocking(CBRS_ALIGN_ANY);
        frame->EnableAutoHidePanes(CBRS_ALIGN_ANY);
        host.frame = frame;
        AfxGetApp()->m_pMainWnd = frame;
        frame->SetForegroundWindow();
        frame->SetActiveWindow();
        ui_test::pump();
    }
    ~DockingTest() override {
        KbUiLockPanel(false, false);
        setKey(VK_CONTROL, false);
        host.frame = nullptr;
        AfxGetApp()->m_pMainWnd = nullptr;
        frame->DestroyWindow();
        ui_test::pump();
    }
    /// What GetKeyState tells this thread of a key.
    static void setKey(int key, bool down) {
        BYTE keys[256] = {};
        ::GetKeyboardState(keys);
        keys[key] = down ? 0x80 : 0;
        ::SetKeyboardState(keys);
    }
    /// Makes a bar, and docks it.
    template <class Bar>
    void dock(Bar& bar, DWORD side, unsigned id = 4001) {
        ASSERT_TRUE(bar.CKbUiDockControlBar::Create(
            frame, L"Bar", id, WS_CHILD | WS_VISIBLE | CBRS_LEFT | CBRS_FLOAT_MULTI, CRect(0, 0, 150, 200)));
        bar.EnableDocking(CBRS_ALIGN_ANY);
        bar.SetPaneAlignment(side);
        frame->DockPane(&bar);
        ASSERT_TRUE(bar.IsDocked());
        ui_test::pump();
    }
    template <class Bar>
    void floatBar(Bar& bar, const CRect& rect = CRect(300, 300, 500, 500)) {
        ASSERT_TRUE(bar.FloatPane(rect));
        ui_test::pump();
        ASSERT_FALSE(bar.IsDocked());
    }
};

/// Settings kept in memory; every request is noted.
class NotedSettings : public CSettingsStore {
    DECLARE_DYNCREATE(NotedSettings)

public:
    /// In force as long as it lives, and empty at first.
    struct InForce {
        InForce() {
            values().clear();
            requests().clear();
            refusesKeys() = false;
            onKey() = nullptr;
            CSettingsStoreSP::SetRuntimeClass(RUNTIME_CLASS(NotedSettings));
        }
        ~InForce() { CSettingsStoreSP::SetRuntimeClass(nullptr); }
    };
    static std::map<std::wstring, std::wstring>& values() {
        static std::map<std::wstring, std::wstring> all;
        return all;
    }
    static std::vector<std::wstring>& requests() {
        static std::vector<std::wstring> all;
        return all;
    }
    static bool& refusesKeys() {
        static bool refuses = false;
        return refuses;
    }

    /// Told of each key while it is asked for.
    static std::function<void(const std::wstring& key)>& onKey() {
        static std::function<void(const std::wstring& key)> heard;
        return heard;
    }

    BOOL Open(LPCTSTR path) override { return take(L"open ", path); }
    BOOL CreateKey(LPCTSTR path) override { return take(L"create ", path); }
    using CSettingsStore::Read;
    using CSettingsStore::Write;
    BOOL Read(LPCTSTR name, CString& text) override {
        const auto found = values().find(name);
        if (found == values().end()) return FALSE;
        text = found->second.c_str();
        return TRUE;
    }
    BOOL Write(LPCTSTR name, LPCTSTR text) override {
        values()[name] = text;
        return TRUE;
    }
    BOOL Write(LPCTSTR name, int value) override {
        values()[name] = std::to_wstring(value);
        return TRUE;
    }

private:
    BOOL take(const wchar_t* verb, LPCTSTR path) {
        requests().push_back(std::wstring(verb) + path + (m_bAdmin ? L" admin" : L"") +
                             (m_bReadOnly ? L" readonly" : L""));
        if (onKey()) onKey()(path);
        return !refusesKeys();
    }
};

}  // namespace docking_test
