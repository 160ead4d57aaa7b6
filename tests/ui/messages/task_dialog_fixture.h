// What the tests of task dialogs share: a host, a parent, a dialog that writes down clicks on its box, and
// the way to the toolkit's own engine.
#pragma once

#include <ktui/tips/messages/ktui_task_dialog.h>

#include <functional>
#include <string>
#include <vector>

#include "platform_task_dialog.h"
#include "replaced_import.h"
#include "test_host.h"
#include "ui_test.h"

namespace ui_test {

constexpr int kCheckBoxId = 1137;

inline BOOL no_task_dialogs() { return FALSE; }

class WatchedTaskDialog : public CKtUiTaskDialog {
public:
    long OnVerificationCheckboxClick(int checked) override {
        clicks.push_back(checked);
        return CKtUiTaskDialog::OnVerificationCheckboxClick(checked);
    }
    std::vector<int> clicks;
};

struct Child {
    HWND window;
    int id;
    DWORD style;
    CString text;
    CRect rect;  ///< client coordinates of the dialog
};

/// The children in the order in which they were made.
inline std::vector<Child> children_of(HWND dialog) {
    std::vector<Child> found;
    for (HWND child = ::GetWindow(dialog, GW_CHILD); child; child = ::GetWindow(child, GW_HWNDNEXT)) {
        CRect rect;
        ::GetWindowRect(child, &rect);
        ::MapWindowPoints(nullptr, dialog, reinterpret_cast<POINT*>(&rect), 2);
        found.push_back({child, ::GetDlgCtrlID(child), static_cast<DWORD>(::GetWindowLongW(child, GWL_STYLE)),
                         text_of(child), rect});
    }
    return found;
}

inline std::vector<int> ids_of(HWND dialog) {
    std::vector<int> ids;
    for (const Child& child : children_of(dialog)) ids.push_back(child.id);
    return ids;
}

inline Child child_of(HWND dialog, int id) {
    for (const Child& child : children_of(dialog))
        if (child.id == id) return child;
    ADD_FAILURE() << "no child " << id;
    return {};
}

inline int font_height(HWND window) {
    LOGFONT font = {};
    ::GetObjectW(reinterpret_cast<HFONT>(::SendMessageW(window, WM_GETFONT, 0, 0)), sizeof font, &font);
    return std::abs(static_cast<int>(font.lfHeight));
}

inline void press(HWND dialog, int id) { ::PostMessageW(::GetDlgItem(dialog, id), BM_CLICK, 0, 0); }
inline void press_key(UINT key) { ::PostMessageW(::GetFocus(), WM_KEYDOWN, key, 1); }

class TaskDialogTest : public ::testing::Test {
protected:
    TaskDialogTest() {
        dialog.SetWindowTitle(L"task");
        task_dialog_requests().clear();
    }
    ~TaskDialogTest() override { task_dialog_answer.reset(); }

    /// Runs the dialog and does `act` once it is up.
    int Run(std::function<void(HWND)> act) {
        when_dialog(L"task", std::move(act));
        return static_cast<int>(dialog.DoModal(parent.m_hWnd));
    }

    TestHost host;
    ParentWindow parent;
    WatchedTaskDialog dialog;
    HMODULE toolkit = ::GetModuleHandleW(L"ktui.dll");
};

/// The toolkit's own engine, as on a system without task dialogs.
class OwnTaskDialog : public TaskDialogTest {
protected:
    ReplacedImport support{toolkit, "_ZN11CTaskDialog11IsSupportedEv", &no_task_dialogs};
};

}  // namespace ui_test
