// What a navigation dialog keeps of a run, and the order in which it goes about it.
#include <shlobj.h>

#include "nav_fixture.h"

namespace {

class NavResult : public NavTest {
protected:
    NavResult() {
        addThreeFilters();
        settled(dialog);
    }
    CKtUiNavDialog dialog{data, filters};
};

TEST_F(NavResult, AnAcceptedDialogKeepsFolderAndType) {
    accept([this](OPENFILENAMEW& ofn) {
        ofn.nFilterIndex = 3;
        data.AddData()->SetText(L"C:\\a\\b.dwg");
    });
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(storedText(L"InitialDirectory"), L"C:\\a\\");
    EXPECT_EQ(storedNumber(L"InitialFilterIndex"), 2u);
    EXPECT_EQ(dialog.GetFilterIndex(), 2);
    EXPECT_EQ(host.pushes, 1);
    EXPECT_EQ(host.pops, 1);
}

TEST_F(NavResult, ACancelledDialogKeepsNothing) {
    store(L"InitialDirectory", L"C:\\before\\");
    store(L"InitialFilterIndex", 1);
    onShown = [this](OPENFILENAMEW& ofn) {
        ofn.nFilterIndex = 3;
        data.AddData()->SetText(L"C:\\a\\b.dwg");
        return FALSE;
    };
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    EXPECT_EQ(storedText(L"InitialDirectory"), L"C:\\before\\");
    EXPECT_EQ(storedNumber(L"InitialFilterIndex"), 1u);
    EXPECT_EQ(host.pops, 1);
}

TEST_F(NavResult, APlainDialogKeepsNothing) {
    CNavDialog plain(data, filters);
    settled(plain);
    acceptPath(L"C:\\a\\b.dwg");
    EXPECT_EQ(plain.DoModal(), IDOK);
    EXPECT_EQ(storedText(L"InitialDirectory"), std::nullopt);
    EXPECT_EQ(storedNumber(L"InitialFilterIndex"), std::nullopt);
    EXPECT_EQ(host.pops, 1);
}

TEST_F(NavResult, AFolderIsKeptWhole) {
    dialog.SetFoldersOnly(1);
    acceptPath(L"C:\\a\\folder");
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(storedText(L"InitialDirectory"), L"C:\\a\\folder");
}

TEST_F(NavResult, ATextWithoutABackslashKeepsNoFolder) {
    store(L"InitialDirectory", L"C:\\before\\");
    acceptPath(L"www.a");
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(storedText(L"InitialDirectory"), L"");
}

TEST_F(NavResult, NoTypeIsKeptAsTheHighestNumber) {
    filters.RemoveAllData();
    acceptPath(L"C:\\a\\b.dwg");
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(storedNumber(L"InitialFilterIndex"), 0xFFFFFFFF);
}

TEST_F(NavResult, AnOkWithoutResultsThrowsAndPops) {
    accept([](OPENFILENAMEW&) {});
    EXPECT_TRUE(throwsInvalidArgument(dialog));
    EXPECT_EQ(host.pushes, 1);
    EXPECT_EQ(host.pops, 1);
    EXPECT_EQ(storedText(L"InitialDirectory"), std::nullopt);
    CNavDialog plain(data, filters);
    EXPECT_EQ(settled(plain).DoModal(), IDOK) << "asks for none";
}

TEST_F(NavResult, ResultsAreAppendedAndTheFirstOneCounts) {
    acceptPath(L"C:\\a\\b.dwg");
    dialog.DoModal();
    acceptPath(L"D:\\c\\d.dwg");
    dialog.DoModal();
    EXPECT_EQ(data.GetCount(), 2);
    EXPECT_STREQ(data.GetData(1)->GetText(), L"D:\\c\\d.dwg");
    EXPECT_EQ(storedText(L"InitialDirectory"), L"C:\\a\\");
}

TEST_F(NavResult, WhatWasKeptComesBack) {
    dialog.SetForceFilterIndex(1);
    acceptPath(L"C:\\a\\b.dwg");
    dialog.DoModal();
    CNavDialog later(data, filters);
    settled(later).DoModal();
    EXPECT_EQ(given.folder, L"C:\\a\\");
    EXPECT_EQ(given.filterIndex, 2u);
}

TEST_F(NavResult, ADialogOfAnotherNameHasItsOwn) {
    acceptPath(L"C:\\a\\b.dwg");
    dialog.DoModal();
    CKtUiNavDialog other(data, filters);
    other.SetAppRootKey(kTestRoot);
    other.SetDialogName(L"other");
    other.DoModal();
    EXPECT_NE(given.folder, L"C:\\a\\");
}

/// Notes what the library asks of the system, and how many resource scopes are open then.
class Order {
public:
    explicit Order(ui_test::TestHost& host) : m_host(host) { current() = this; }
    ~Order() { current() = nullptr; }
    std::vector<std::wstring> calls;

    void note(const std::wstring& call) {
        const std::wstring whole = call + L" " + std::to_wstring(m_host.pushes - m_host.pops);
        if (calls.empty() || calls.back() != whole) calls.push_back(whole);
    }

private:
    static Order*& current() {
        static Order* order = nullptr;
        return order;
    }
    static LSTATUS WINAPI read(HKEY key, LPCWSTR name, LPDWORD reserved, LPDWORD type, LPBYTE data,
                               LPDWORD size) {
        current()->note(std::wstring(L"read ") + name);
        return ::RegQueryValueExW(key, name, reserved, type, data, size);
    }
    static LSTATUS WINAPI write(HKEY key, LPCWSTR name, DWORD reserved, DWORD type, const BYTE* data,
                                DWORD size) {
        current()->note(std::wstring(L"write ") + name);
        return ::RegSetValueExW(key, name, reserved, type, data, size);
    }
    static DWORD WINAPI name(HMODULE module, LPWSTR path, DWORD size) {
        current()->note(L"name");
        return ::GetModuleFileNameW(module, path, size);
    }
    static HRESULT WINAPI personal(HWND, int, HANDLE, DWORD, LPWSTR) {
        current()->note(L"personal");
        return E_FAIL;
    }
    static DWORD WINAPI working(DWORD size, LPWSTR path) {
        current()->note(L"working");
        return ::GetCurrentDirectoryW(size, path);
    }
    static BOOL WINAPI append(LPWSTR path, LPCWSTR more) {
        current()->note(std::wstring(L"append ") + more);
        return ::lstrcatW(path, more) != nullptr;
    }
    static HMODULE toolkit() { return ::GetModuleHandleW(L"ktui.dll"); }

    ui_test::TestHost& m_host;
    ui_test::ReplacedImport m_read{toolkit(), "RegQueryValueExW", &read};
    ui_test::ReplacedImport m_write{toolkit(), "RegSetValueExW", &write};
    ui_test::ReplacedImport m_name{toolkit(), "GetModuleFileNameW", &name};
    ui_test::ReplacedImport m_personal{toolkit(), "SHGetFolderPathW", &personal};
    ui_test::ReplacedImport m_working{toolkit(), "GetCurrentDirectoryW", &working};
    ui_test::ReplacedImport m_append{toolkit(), "PathAppendW", &append};
};

TEST_F(NavResult, TheStepsAreTakenInTheirOrder) {
    CKtUiNavDialog fresh(data, filters);
    fresh.SetAppRootKey(kTestRoot);
    fresh.SetInitialFileName(L"plan.dwg");
    Order order(host);
    accept([&](OPENFILENAMEW&) {
        order.note(L"shown");
        data.AddData()->SetText(L"C:\\a\\b.dwg");
    });
    EXPECT_EQ(fresh.DoModal(), IDOK);
    EXPECT_EQ(order.calls, (std::vector<std::wstring>{
                               L"name 1", L"personal 1", L"working 1", L"append plan.dwg 1", L"shown 1",
                               L"write InitialDirectory 1", L"write InitialFilterIndex 1"}));
    order.calls.clear();
    EXPECT_EQ(fresh.DoModal(), IDOK);
    EXPECT_EQ(order.calls, (std::vector<std::wstring>{
                               L"read InitialFilterIndex 1", L"read InitialDirectory 1", L"append plan.dwg 1",
                               L"shown 1", L"write InitialDirectory 1", L"write InitialFilterIndex 1"}));
}

}  // namespace
