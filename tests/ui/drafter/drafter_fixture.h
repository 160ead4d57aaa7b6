// The drafter's dialogs on a drawing of the test's, driven from inside.
#pragma once

#include <functional>

#include <od_db.h>
#include <standin_host.h>

#include "../../../samples/drafter/resource.h"
#include "ui_test.h"

namespace ui_test {

inline const wchar_t* const kDrafterSettings = L"Software\\ktui drafter test";

/// A dialog of the drafter that keeps its settings where the test clears them away.
template <class Dialog>
class WithOwnSettings : public Dialog {
public:
    template <class... Arguments>
    explicit WithOwnSettings(Arguments&&... arguments) : Dialog(std::forward<Arguments>(arguments)...) {
        this->SetAppRootKey((CString(kDrafterSettings) + L"\\").GetString());
    }
};

class DrafterTest : public ::testing::Test {
protected:
    DrafterTest() : host(*AfxGetApp()), drawing(new OdDbDatabase) {
        oddbHostApplicationServices()->setWorkingDatabase(drawing.get());
        AfxGetApp()->m_pMainWnd = &parent;
    }
    ~DrafterTest() override {
        AfxGetApp()->m_pMainWnd = nullptr;
        oddbHostApplicationServices()->setWorkingDatabase(nullptr);
        ::RegDeleteTreeW(HKEY_CURRENT_USER, kDrafterSettings);
    }
    /// Shows `dialog`, runs `action` once it can be seen, and answers it with `answer`.
    void show(CDialog& dialog, const std::function<void()>& action, int answer = IDCANCEL) {
        when_window([&](HWND window) { return window == dialog.m_hWnd; },
                    [&](HWND) {
                        pump();
                        action();
                        dialog.PostMessage(WM_COMMAND, static_cast<WPARAM>(answer));
                    });
        EXPECT_EQ(dialog.DoModal(), answer);
    }
    static CWnd& item(CWnd& dialog, int id) { return *dialog.GetDlgItem(id); }
    /// Sends a key to a control as the keyboard does.
    static void key(CWnd& control, WORD key) {
        control.SendMessage(WM_KEYDOWN, key, 1);
        control.SendMessage(WM_KEYUP, key, static_cast<LPARAM>(0xC0000001));
        pump();
    }
    static void drop(CWnd& combo) {
        combo.SetFocus();
        combo.SendMessage(CB_SHOWDROPDOWN, TRUE);
        pump();
    }
    static int selected(CWnd& combo) { return static_cast<int>(combo.SendMessage(CB_GETCURSEL)); }

    CStandinHost host;
    OdDbDatabasePtr drawing;
    ParentWindow parent;
};

}  // namespace ui_test
