// A navigation dialog over the platform's own file dialog, in a folder of its own with two drawings.
#pragma once

#include <ktui/host/platform_versions.h>
#include <ktui/host/test_door.h>
#include <ktui/nav/ktui_nav_dialog.h>
#include <ktui/nav/nav_dialog_imp.h>
#include <ktui/nav/nav_file_dlg.h>

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

#include "message_text.h"
#include "replaced_import.h"
#include "sent_messages.h"
#include "test_host.h"
#include "ui_test.h"

using ui_test::text_of;
using ui_test::when_dialog;

inline constexpr int kTypeBox = 1136;
inline constexpr int kNameBox = 1148;

class ShownDialog : public CKtUiNavDialog {
public:
    using CKtUiNavDialog::CKtUiNavDialog;
    std::vector<std::string> calls;
    int refusals = 0;  ///< how often OK is still refused
    std::function<void()> onFilterChange;

    int OnFileNameOK() override {
        calls.push_back("ok");
        return refusals-- > 0;
    }
    void OnFileNameChange() override { calls.push_back("name"); }
    void OnFilterChange() override {
        calls.push_back("filter");
        if (onFilterChange) onFilterChange();
    }
    void OnFolderChange() override { calls.push_back("folder"); }
    int GetRecentDirectory(CString& path) override {
        calls.push_back("recent");
        if (onRecent) onRecent();
        path = recent;
        return !recent.IsEmpty();
    }
    std::function<void()> onRecent;
    CString recent;  ///< the folder of recent files; empty is none
    int count(const char* call) const {
        return static_cast<int>(std::count(calls.begin(), calls.end(), call));
    }
};

/// The system counts as one of major version `major` for as long as it lives.
class SystemOfMajor {
public:
    explicit SystemOfMajor(DWORD major) : m_former(version()) { version() = MakeOsVersionCode(2, major, 1); }
    ~SystemOfMajor() { version() = m_former; }
    SystemOfMajor(const SystemOfMajor&) = delete;
    SystemOfMajor& operator=(const SystemOfMajor&) = delete;

private:
    static DWORD& version() { return const_cast<DWORD&>(KtUiTestDoor().loadedToolkit().osVersionCode); }
    DWORD m_former;
};

class ShownTest : public ::testing::Test {
protected:
    ShownTest() {
        clean();
        wchar_t temporary[MAX_PATH] = {};
        ::GetTempPathW(MAX_PATH, temporary);
        folder = CString(temporary) + L"ktui navigation\\";
        ::CreateDirectoryW(folder, nullptr);
        ::CreateDirectoryW(folder + L"templates", nullptr);
        for (const wchar_t* name : kFiles)
            ::CloseHandle(::CreateFileW(folder + name, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr));
        addFilter(L"Drawing", L"*.dwg");
        addFilter(L"Template", L"*.dwt");
        addFilter(L"All", L"*.*");
        dialog.SetAppRootKey(L"Software\\ktui test\\Dialogs\\");
        dialog.SetDialogName(L"shown");
        dialog.SetDialogCaption(L"chooser");
        dialog.SetForceInitialFolder(folder);
    }
    ~ShownTest() override {
        for (const wchar_t* name : kFiles) ::DeleteFileW(folder + name);
        ::RemoveDirectoryW(folder + L"templates");
        ::DeleteFileW(recentFolder() + L"one.dwg.lnk");
        ::DeleteFileW(recentFolder() + L"two.dwg.lnk");
        ::RemoveDirectoryW(recentFolder());
        ::RemoveDirectoryW(folder + L"recent");
        ::RemoveDirectoryW(folder);
        clean();
    }
    /// The dialog's own folder of recent files, once it has been given one.
    CString recentFolder() const { return folder + L"recent\\shown\\"; }
    void giveRecentFolder() {
        dialog.recent = folder + L"recent";
        ::CreateDirectoryW(dialog.recent, nullptr);
    }
    /// The child of the platform's dialog that holds the controls of the toolkit's template.
    static HWND own(HWND window) { return ::FindWindowExW(window, nullptr, L"#32770", nullptr); }
    static HWND own(HWND window, int id) { return ::GetDlgItem(own(window), id); }
    /// Presses one of these controls.
    static void click(HWND window, int id) {
        ::SendMessageW(own(window), WM_COMMAND, MAKEWPARAM(id, BN_CLICKED),
                       reinterpret_cast<LPARAM>(own(window, id)));
    }
    static bool isShown(HWND control) {
        return control != nullptr && (::GetWindowLongW(control, GWL_STYLE) & WS_VISIBLE) != 0;
    }
    static HWND fileList(HWND window) { return ::GetWindow(::GetDlgItem(window, 1121), GW_CHILD); }
    /// Ends the next message box of the toolkit and keeps its words.
    void answerMessage() {
        when_dialog(L"Test Caption", [this](HWND box) {
            messages.push_back(ui_test::message_text(box));
            ::PostMessageW(box, WM_COMMAND, IDOK, 0);
        });
    }
    static HMODULE toolkit() { return ::GetModuleHandleW(L"ktui.dll"); }
    static void clean() { ::RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\ktui test"); }
    void addFilter(const wchar_t* description, const wchar_t* pattern) {
        CNavFilter* const filter = filters.AddData();
        filter->SetDescription(description);
        filter->Add(pattern);
    }
    static void press(HWND window, int button) {
        ::PostMessageW(window, WM_COMMAND, static_cast<WPARAM>(button), 0);
    }
    static CString typed(HWND window) { return text_of(::GetDlgItem(window, kNameBox)); }
    static CString folderOf(HWND window) {
        wchar_t path[MAX_PATH] = {};
        ::SendMessageW(window, CDM_GETFOLDERPATH, MAX_PATH, reinterpret_cast<LPARAM>(path));
        return path;
    }
    /// Chooses a type as a user does who opens the list and clicks.
    static void choose(HWND window, int index) {
        const HWND box = ::GetDlgItem(window, kTypeBox);
        ::SendMessageW(box, CB_SETCURSEL, static_cast<WPARAM>(index), 0);
        ::SendMessageW(window, WM_COMMAND, MAKEWPARAM(kTypeBox, CBN_SELENDOK), reinterpret_cast<LPARAM>(box));
        ::SendMessageW(window, WM_COMMAND, MAKEWPARAM(kTypeBox, CBN_CLOSEUP), reinterpret_cast<LPARAM>(box));
    }
    /// Runs the dialog; `act` gets its window and must end it.
    INT_PTR run(std::function<void(HWND)> act) {
        when_dialog(L"chooser", std::move(act));
        return dialog.DoModal();
    }
    static constexpr const wchar_t* kFiles[] = {L"one.dwg", L"two.dwg"};

    ui_test::TestHost host;
    ui_test::ParentWindow parent;
    CNavDataArray data;
    CNavFilterArray filters;
    ShownDialog dialog{data, filters};
    CString folder;
    std::vector<std::wstring> messages;  ///< of the boxes that were answered
};
