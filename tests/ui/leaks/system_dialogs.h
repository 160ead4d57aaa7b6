// The system's own dialogs, opened bare and ended at once: what they leave is the system's.
#pragma once

#include <windows.h>

#include <commctrl.h>
#include <commdlg.h>

#include "ui_test.h"

namespace leaks {

constexpr const wchar_t* kChooser = L"chooser";
constexpr const wchar_t* kTask = L"task";

/// Cancels the dialog with the title kChooser as soon as it is there.
inline void cancel_when_shown() {
    ui_test::when_dialog(kChooser, [](HWND dialog) { ::PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0); });
}

/// Clicks a button of the task dialog with the title kTask as soon as it is there.
inline void click_when_shown(int button) {
    ui_test::when_dialog(kTask, [button](HWND dialog) {
        ::RedrawWindow(dialog, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
        ::PostMessageW(dialog, TDM_CLICK_BUTTON, static_cast<WPARAM>(button), 0);
    });
}

/// Opens the Explorer-style file dialog with a hook, and cancels it.
inline void open_bare_file_dialog(HWND parent) {
    wchar_t file[MAX_PATH] = L"plan";
    OPENFILENAMEW request = {};
    request.lStructSize = sizeof request;
    request.hwndOwner = parent;
    request.lpstrFilter = L"Drawings\0*.dxf\0";
    request.lpstrFile = file;
    request.nMaxFile = MAX_PATH;
    request.lpstrTitle = kChooser;
    request.lpstrDefExt = L"dxf";
    request.Flags = OFN_EXPLORER | OFN_ENABLEHOOK | OFN_HIDEREADONLY | OFN_ENABLESIZING;
    request.lpfnHook = [](HWND, UINT, WPARAM, LPARAM) -> UINT_PTR { return 0; };
    cancel_when_shown();
    EXPECT_FALSE(::GetOpenFileNameW(&request));
}

/// Runs the system's task dialog; `button` is clicked as soon as it is there.
inline void run_bare_task_dialog(TASKDIALOGCONFIG& request, int button) {
    static const auto taskDialog = reinterpret_cast<decltype(&::TaskDialogIndirect)>(
        reinterpret_cast<void*>(::GetProcAddress(::LoadLibraryW(L"COMCTL32.DLL"), "TaskDialogIndirect")));
    request.cbSize = sizeof request;
    request.pszWindowTitle = kTask;
    int clicked = 0;
    click_when_shown(button);
    EXPECT_EQ(taskDialog(&request, &clicked, nullptr, nullptr), S_OK);
    EXPECT_EQ(clicked, button);
}

/// Opens the system's task dialog with two commands and a verification box, and clicks one.
inline void open_bare_task_dialog(HWND parent) {
    const TASKDIALOG_BUTTON commands[] = {{101, L"first"}, {102, L"second"}};
    TASKDIALOGCONFIG request = {};
    request.hwndParent = parent;
    request.pszMainInstruction = L"heading";
    request.pszContent = L"content";
    request.pszVerificationText = L"again";
    request.dwCommonButtons = TDCBF_CANCEL_BUTTON;
    request.cButtons = 2;
    request.pButtons = commands;
    run_bare_task_dialog(request, 102);
}

/// Opens the system's task dialog with an icon, a text and common buttons (TDCBF_...), and clicks one.
inline void open_bare_message(HWND parent, int buttons, int button) {
    TASKDIALOGCONFIG request = {};
    request.hwndParent = parent;
    request.dwFlags = TDF_USE_HICON_MAIN;
    request.hMainIcon = ::LoadIconW(nullptr, IDI_EXCLAMATION);
    request.pszContent = L"Save?";
    request.dwCommonButtons = static_cast<TASKDIALOG_COMMON_BUTTON_FLAGS>(buttons);
    run_bare_task_dialog(request, button);
}

}  // namespace leaks
