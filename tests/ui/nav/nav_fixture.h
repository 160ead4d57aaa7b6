// A navigation dialog with the platform's file dialog put aside: what it is given can be looked at, and a
// test decides what "the user" does in it.
#pragma once

#include <ktui/nav/ktui_nav_dialog.h>
#include <ktui/nav/nav_dialog_imp.h>
#include <ktui/nav/nav_file_dlg.h>

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "replaced_import.h"
#include "test_host.h"
#include "ui_test.h"

/// Registry root of the dialogs of these tests.
constexpr const wchar_t* kTestRoot = L"Software\\ktui test\\Dialogs\\";
constexpr const wchar_t* kTestDialog = L"nav";

/// What one run gave the platform's dialog, copied while it "runs".
struct Given {
    bool save = false;
    DWORD flags = 0;
    DWORD filterIndex = 0;
    DWORD maxFile = 0;
    std::optional<std::wstring> filter;  ///< up to its two zeros, with "|" in the place of each zero
    std::optional<std::wstring> file, title, extension, folder;
    HWND owner = nullptr;
    HINSTANCE resource = nullptr;  ///< current while it runs
};

class NavTest : public ::testing::Test {
protected:
    NavTest() : m_open(kmfc(), "GetOpenFileNameW", &open), m_save(kmfc(), "GetSaveFileNameW", &save) {
        EXPECT_TRUE(m_open.isThere() && m_save.isThere());
        clean();
        current() = this;
    }
    ~NavTest() override {
        current() = nullptr;
        clean();
    }

    /// Gives a dialog the place in the registry that these tests look at.
    template <class Dialog>
    Dialog& settled(Dialog& dialog) {
        dialog.SetAppRootKey(kTestRoot);
        dialog.SetDialogName(kTestDialog);
        return dialog;
    }
    CNavFilter* addFilter(const wchar_t* description, std::initializer_list<const wchar_t*> patterns) {
        CNavFilter* const filter = filters.AddData();
        filter->SetDescription(description);
        for (const wchar_t* pattern : patterns) filter->Add(pattern);
        return filter;
    }
    void addThreeFilters() {
        addFilter(L"Drawing", {L"*.dwg"});
        addFilter(L"Template", {L"*.dwt"});
        addFilter(L"All", {L"*.*"});
    }
    /// The platform's dialog ends with OK, after `then`.
    void accept(std::function<void(OPENFILENAMEW&)> then) {
        onShown = [then = std::move(then)](OPENFILENAMEW& ofn) {
            then(ofn);
            return TRUE;
        };
    }
    void acceptPath(const wchar_t* path) {
        accept([this, path = CString(path)](OPENFILENAMEW&) { data.AddData()->SetText(path); });
    }
    static CString key() { return CString(kTestRoot) + kTestDialog; }
    static void store(const wchar_t* value, DWORD number) {
        ::RegSetKeyValueW(HKEY_CURRENT_USER, key(), value, REG_DWORD, &number, sizeof number);
    }
    static void store(const wchar_t* value, const wchar_t* text) {
        ::RegSetKeyValueW(HKEY_CURRENT_USER, key(), value, REG_SZ, text,
                          static_cast<DWORD>((::lstrlenW(text) + 1) * sizeof(wchar_t)));
    }
    static std::optional<DWORD> storedNumber(const wchar_t* value) {
        DWORD number = 0, size = sizeof number;
        if (::RegGetValueW(HKEY_CURRENT_USER, key(), value, RRF_RT_REG_DWORD, nullptr, &number, &size))
            return std::nullopt;
        return number;
    }
    static std::optional<std::wstring> storedText(const wchar_t* value) {
        wchar_t text[1000] = {};
        DWORD size = sizeof text;
        if (::RegGetValueW(HKEY_CURRENT_USER, key(), value, RRF_RT_REG_SZ, nullptr, text, &size))
            return std::nullopt;
        return text;
    }
    /// Runs the dialog, which must throw, and answers whether that was CInvalidArgException.
    static bool throwsInvalidArgument(CNavDialog& dialog) {
        try {
            dialog.DoModal();
        } catch (CInvalidArgException* exception) {
            exception->Delete();
            return true;
        }
        return false;
    }

    ui_test::TestHost host;
    CNavDataArray data;
    CNavFilterArray filters;
    Given given;    ///< of the last run
    int shown = 0;  ///< runs
    std::function<BOOL(OPENFILENAMEW&)> onShown;

private:
    static HMODULE kmfc() { return ::GetModuleHandleW(L"kmfc.dll"); }
    static void clean() { ::RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\ktui test"); }
    static NavTest*& current() {
        static NavTest* test = nullptr;
        return test;
    }
    static std::optional<std::wstring> copied(const wchar_t* text) {
        return text != nullptr ? std::optional<std::wstring>(text) : std::nullopt;
    }
    static std::optional<std::wstring> copiedFilter(const wchar_t* at) {
        if (at == nullptr) return std::nullopt;
        std::wstring text;
        while (*at != L'\0') {
            text += at;
            text += L'|';
            at += ::lstrlenW(at) + 1;
        }
        return text;
    }
    BOOL run(OPENFILENAMEW& ofn, bool saves) {
        ++shown;
        given = {saves,
                 ofn.Flags,
                 ofn.nFilterIndex,
                 ofn.nMaxFile,
                 copiedFilter(ofn.lpstrFilter),
                 copied(ofn.lpstrFile),
                 copied(ofn.lpstrTitle),
                 copied(ofn.lpstrDefExt),
                 copied(ofn.lpstrInitialDir),
                 ofn.hwndOwner,
                 AfxGetResourceHandle()};
        return onShown ? onShown(ofn) : FALSE;
    }
    static BOOL WINAPI open(OPENFILENAMEW* ofn) { return current()->run(*ofn, false); }
    static BOOL WINAPI save(OPENFILENAMEW* ofn) { return current()->run(*ofn, true); }

    ui_test::ReplacedImport m_open, m_save;
};
