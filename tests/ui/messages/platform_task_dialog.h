// What the system's task dialog is asked for. The class layer finds it by name; here it finds a function that
// writes the request down and then shows the system's dialog, or answers what a test wants.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include <optional>
#include <string>
#include <vector>

namespace ui_test {

struct TaskDialogRequest {
    HWND parent = nullptr;
    int flags = 0;
    int commonButtons = 0;
    std::wstring title, heading, content;
    bool hasVerification = false;
    std::wstring verification;
    HICON icon = nullptr;
    std::vector<std::pair<int, std::wstring>> commands;
    int defaultButton = 0;
    UINT width = 0;
};

/// What a request is answered with in the place of the dialog.
struct TaskDialogAnswer {
    HRESULT result = S_OK;
    int button = 0;
    BOOL verified = FALSE;
};

/// Every request since the last clear().
std::vector<TaskDialogRequest>& task_dialog_requests();

/// Set: no dialog is shown.
extern std::optional<TaskDialogAnswer> task_dialog_answer;

}  // namespace ui_test
