// The find dialog as a user has it: run by its entry point over folders of a test's own, and driven by its
// controls.
#pragma once

#include <afxcmn.h>
#include <commctrl.h>
#include <ktdsres/find_file_ids.h>
#include <ktui/nav/find_file_dialog.h>
#include <ktui/nav/find_file_walk.h>
#include <ktui/nav/find_messages.h>
#include <ktut.h>

#include <algorithm>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "sent_messages.h"
#include "test_host.h"
#include "ui_test.h"

using FoundTexts = std::vector<std::wstring>;

constexpr const wchar_t* kDrawingFilter = L"Drawing\0*.dwg\0Both\0*.dwg;*.dxf\0All\0*.*\0\0";

class FindTest : public ::testing::Test {
protected:
    FindTest() {
        ktutSetProfileFileName(L"Software\\ktui test");
        clean();
        wchar_t temporary[MAX_PATH] = {};
        ::GetTempPathW(MAX_PATH, temporary);
        root.Format(L"%sktui find %lu\\", temporary, ::GetCurrentProcessId());
        removeTree(root);
        ::CreateDirectoryW(root, nullptr);
    }
    ~FindTest() override {
        KtUiSetFindFileWalk(kKtUiFindSettled);
        removeTree(root);
        clean();
        ktutSetProfileFileName(nullptr);
    }
    static void clean() { ::RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\ktui test"); }
    static void removeTree(const CString& folder) {
        WIN32_FIND_DATAW data = {};
        const HANDLE search = ::FindFirstFileW(folder + L"*", &data);
        if (search == INVALID_HANDLE_VALUE) return;
        do {
            const CString name = data.cFileName;
            if (name == L"." || name == L"..") continue;
            ::SetFileAttributesW(folder + name, FILE_ATTRIBUTE_NORMAL);
            if (data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY)
                removeTree(folder + name + L"\\");
            else
                ::DeleteFileW(folder + name);
        } while (::FindNextFileW(search, &data));
        ::FindClose(search);
        ::RemoveDirectoryW(folder);
    }
    void makeFolder(const CString& name) {
        ASSERT_TRUE(::CreateDirectoryW(root + name, nullptr)) << CStringA(name);
    }
    void makeFile(const CString& name, size_t length = 0) {
        const HANDLE file = ::CreateFileW(root + name, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
        ASSERT_NE(file, INVALID_HANDLE_VALUE) << CStringA(name);
        const std::string bytes(length, 'x');
        DWORD written = 0;
        ::WriteFile(file, bytes.data(), static_cast<DWORD>(length), &written, nullptr);
        ::CloseHandle(file);
    }
    /// Sets when a file was written last, in seconds since 1970.
    void setWritten(const CString& name, long long seconds) {
        const HANDLE file =
            ::CreateFileW(root + name, FILE_WRITE_ATTRIBUTES, 0, nullptr, OPEN_EXISTING, 0, nullptr);
        const long long units = (seconds + 11644473600LL) * 10000000LL;
        const FILETIME time = {static_cast<DWORD>(units), static_cast<DWORD>(units >> 32)};
        EXPECT_TRUE(::SetFileTime(file, nullptr, nullptr, &time));
        ::CloseHandle(file);
    }

    /// Runs the dialog; `act` gets its window as soon as it is there, and has to end it.
    bool run(std::function<void()> act, int filterIndex = 3, const wchar_t* filter = kDrawingFilter) {
        ui_test::when_window([](HWND window) { return ::GetDlgItem(window, IDC_FIND_RESULTS) != nullptr; },
                             [this, act = std::move(act)](HWND window) {
                                 dialog = window;
                                 act();
                             });
        OdString folder(L"before"), file(L"before");
        const bool result = ktuiFindFileDialog(filter, filterIndex, startFolder.value_or(root), folder, file);
        outFolder = folder.c_str();
        outFile = file.c_str();
        dialog = nullptr;
        return result;
    }

    HWND item(int id) const {
        for (const HWND window : {dialog, page(0), page(1)})
            if (const HWND found = ::GetDlgItem(window, id)) return found;
        return nullptr;
    }
    /// The page with the names, 0, or with the dates, 1.
    HWND page(int index) const {
        const int wanted = index == 0 ? IDC_FIND_NAME : IDC_FIND_ANY_DATE;
        for (HWND at = ::GetWindow(dialog, GW_CHILD); at != nullptr; at = ::GetWindow(at, GW_HWNDNEXT))
            if (::GetDlgItem(at, wanted) != nullptr) return at;
        return nullptr;
    }
    bool isEnabled(int id) const { return ::IsWindowEnabled(item(id)) != FALSE; }
    bool isChecked(int id) const { return ::SendMessageW(item(id), BM_GETCHECK, 0, 0) == BST_CHECKED; }
    std::wstring text(int id) const { return ui_test::text_of(item(id)).GetString(); }
    std::wstring caption() const { return ui_test::text_of(dialog).GetString(); }
    void setText(int id, const wchar_t* text) const { ::SetWindowTextW(item(id), text); }
    void command(int id) const { ::SendMessageW(dialog, WM_COMMAND, static_cast<WPARAM>(id), 0); }
    void click(int id) const { ::SendMessageW(item(id), BM_CLICK, 0, 0); }
    void cancel() const { ::PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0); }
    bool isSearching() const { return !isEnabled(IDC_FIND_START); }
    void search() const {
        command(IDC_FIND_START);
        EXPECT_TRUE(ui_test::pump_until([this] { return !isSearching(); }, 20000));
    }
    HWND list() const { return item(IDC_FIND_RESULTS); }
    int rows() const { return static_cast<int>(::SendMessageW(list(), LVM_GETITEMCOUNT, 0, 0)); }
    std::wstring cell(int row, int column) const {
        wchar_t text[1024] = {};
        LVITEMW cell = {};
        cell.iSubItem = column;
        cell.pszText = text;
        cell.cchTextMax = 1024;
        ::SendMessageW(list(), LVM_GETITEMTEXTW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&cell));
        return text;
    }
    FoundTexts column(int index) const {
        FoundTexts texts;
        for (int row = 0; row < rows(); ++row) texts.push_back(cell(row, index));
        return texts;
    }
    FoundTexts sortedColumn(int index) const {
        FoundTexts texts = column(index);
        std::sort(texts.begin(), texts.end());
        return texts;
    }
    void select(int row, bool selected = true) const {
        LVITEMW state = {};
        state.state = selected ? LVIS_SELECTED : 0u;
        state.stateMask = LVIS_SELECTED;
        ::SendMessageW(list(), LVM_SETITEMSTATE, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&state));
    }
    std::wstring status() const {
        const HWND bar = ::FindWindowExW(dialog, nullptr, STATUSCLASSNAMEW, nullptr);
        wchar_t text[1024] = {};
        ::SendMessageW(bar, SB_GETTEXTW, 0, reinterpret_cast<LPARAM>(text));
        return text;
    }
    /// The texts of the location box.
    FoundTexts locations() const {
        const HWND combo =
            reinterpret_cast<HWND>(::SendMessageW(item(IDC_FIND_LOCATION), CBEM_GETCOMBOCONTROL, 0, 0));
        FoundTexts texts;
        const auto count = static_cast<int>(::SendMessageW(combo, CB_GETCOUNT, 0, 0));
        for (int i = 0; i < count; ++i) {
            wchar_t text[1024] = {};
            COMBOBOXEXITEMW entry = {};
            entry.mask = CBEIF_TEXT;
            entry.iItem = i;
            entry.pszText = text;
            entry.cchTextMax = 1024;
            ::SendMessageW(item(IDC_FIND_LOCATION), CBEM_GETITEMW, 0, reinterpret_cast<LPARAM>(&entry));
            texts.emplace_back(text);
        }
        return texts;
    }
    int selectedLocation() const {
        return static_cast<int>(::SendMessageW(item(IDC_FIND_LOCATION), CB_GETCURSEL, 0, 0));
    }
    void chooseLocation(int index) const {
        ::SendMessageW(item(IDC_FIND_LOCATION), CB_SETCURSEL, static_cast<WPARAM>(index), 0);
    }
    void typeLocation(const wchar_t* text) const {
        ::SetWindowTextW(
            reinterpret_cast<HWND>(::SendMessageW(item(IDC_FIND_LOCATION), CBEM_GETEDITCONTROL, 0, 0)), text);
    }
    void subfolders(bool on) const {
        ::SendMessageW(item(IDC_FIND_SUBFOLDERS), BM_SETCHECK, on ? BST_CHECKED : BST_UNCHECKED, 0);
    }
    void clickColumn(int index) const {
        NMLISTVIEW click = {};
        click.hdr.hwndFrom = list();
        click.hdr.idFrom = IDC_FIND_RESULTS;
        click.hdr.code = LVN_COLUMNCLICK;
        click.iItem = -1;
        click.iSubItem = index;
        ::SendMessageW(dialog, WM_NOTIFY, IDC_FIND_RESULTS, reinterpret_cast<LPARAM>(&click));
    }
    static std::wstring storedText(const wchar_t* value) {
        wchar_t text[1000] = {};
        DWORD size = sizeof text;
        ::RegGetValueW(HKEY_CURRENT_USER, L"Software\\ktui test\\Default\\9.1\\Dialogs\\-Find", value,
                       RRF_RT_REG_SZ, nullptr, text, &size);
        return text;
    }
    static void storeText(const wchar_t* value, const wchar_t* text) {
        ::RegSetKeyValueW(HKEY_CURRENT_USER, L"Software\\ktui test\\Default\\9.1\\Dialogs\\-Find", value,
                          REG_SZ, text, static_cast<DWORD>((::lstrlenW(text) + 1) * sizeof(wchar_t)));
    }

    ui_test::TestHost host;
    ui_test::ParentWindow parent;
    CString root;                        ///< a folder of the test's own, with a separator
    std::optional<CString> startFolder;  ///< in the place of `root`
    HWND dialog = nullptr;               ///< while it runs
    std::wstring outFolder, outFile;
};
