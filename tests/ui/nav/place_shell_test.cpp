// Icons and names of places.
#include <ktui/nav/place_shell.h>

#include <shellapi.h>
#include <shlobj.h>

#include <string>
#include <vector>

#include "replaced_import.h"
#include "ui_test.h"

namespace {

constexpr const wchar_t* kClassId = L"{5A17B6C0-90AB-4C0D-8E1F-0123456789AB}";

std::vector<std::wstring> asked;
bool givesIcon = false;
bool givesName = true;

DWORD_PTR WINAPI shellInfo(LPCWSTR path, DWORD attributes, SHFILEINFOW* info, UINT size, UINT flags) {
    asked.push_back(std::wstring(path) + L" " + std::to_wstring(attributes) + L" " + std::to_wstring(size) +
                    L" " + std::to_wstring(flags));
    if (flags == SHGFI_ICON && givesIcon) {
        info->hIcon = ::CopyIcon(::LoadIconW(nullptr, IDI_WARNING));
        return 1;
    }
    if (flags == SHGFI_DISPLAYNAME && givesName) {
        ::lstrcpyW(info->szDisplayName, L"told");
        return 1;
    }
    return 0;
}

std::wstring extracted;

UINT WINAPI extractIcons(LPCWSTR file, int index, HICON* large, HICON* small, UINT count) {
    extracted = std::wstring(file) + L" " + std::to_wstring(index) + L" " + std::to_wstring(count);
    EXPECT_EQ(small, nullptr);
    *large = ::CopyIcon(::LoadIconW(nullptr, IDI_ERROR));
    return 1;
}

class PlaceShell : public ::testing::Test {
protected:
    PlaceShell() {
        EXPECT_TRUE(m_info.isThere() && m_extract.isThere());
        asked.clear();
        extracted.clear();
        givesIcon = false;
        givesName = true;
        ::CoInitialize(nullptr);
    }
    ~PlaceShell() override {
        ::RegDeleteTreeW(HKEY_CURRENT_USER, key(L""));
        ::CoUninitialize();
    }
    static CString key(const wchar_t* below) {
        return CString(L"Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\CLSID\\") + kClassId + below;
    }
    /// Names an icon in the registry; `bytes` of the text, -1 with its zero.
    static void name(const wchar_t* text, DWORD type = REG_SZ, int bytes = -1) {
        HKEY opened = nullptr;
        ::RegCreateKeyExW(HKEY_CURRENT_USER, key(L"\\DefaultIcon"), 0, nullptr, 0, KEY_WRITE, nullptr,
                          &opened, nullptr);
        ::RegSetValueExW(opened, nullptr, 0, type, reinterpret_cast<const BYTE*>(text),
                         bytes >= 0 ? static_cast<DWORD>(bytes)
                                    : static_cast<DWORD>((::lstrlenW(text) + 1) * sizeof(wchar_t)));
        ::RegCloseKey(opened);
    }
    /// What was extracted for the virtual folder: "FILE INDEX COUNT"; empty for nothing.
    static std::wstring icon(const CString& path = CString(L"::") + kClassId) {
        extracted.clear();
        const HICON found = PlaceIcon(path);
        EXPECT_EQ(found != nullptr, !extracted.empty());
        if (found != nullptr) ::DestroyIcon(found);
        return extracted;
    }

private:
    ui_test::ReplacedImport m_info{::GetModuleHandleW(nullptr), "SHGetFileInfoW", &shellInfo},
        m_extract{::GetModuleHandleW(nullptr), "ExtractIconExW", &extractIcons};
};

TEST_F(PlaceShell, TheShellIsAskedForTheIconFirst) {
    name(L"icons.dll,3");
    givesIcon = true;
    const HICON found = PlaceIcon(CString(L"::") + kClassId);
    ASSERT_NE(found, nullptr);
    ::DestroyIcon(found);
    EXPECT_EQ(asked, (std::vector<std::wstring>{std::wstring(L"::") + kClassId + L" 0 " +
                                                std::to_wstring(sizeof(SHFILEINFOW)) + L" " +
                                                std::to_wstring(SHGFI_ICON)}));
    EXPECT_EQ(extracted, L"");
}

TEST_F(PlaceShell, AVirtualFolderTakesTheIconOfTheRegistry) {
    name(L"icons.dll,3");
    EXPECT_EQ(icon(), L"icons.dll 3 1");
    name(L"C:\\a,b\\icons.dll,-7");
    EXPECT_EQ(icon(), L"C:\\a 0 1") << "parted at the first comma";
    name(L"icons.dll,-7");
    EXPECT_EQ(icon(), L"icons.dll -7 1");
    name(L"icons.dll");
    EXPECT_EQ(icon(), L"icons.dll 0 1");
    name(L"icons.dll, 12", REG_EXPAND_SZ);
    EXPECT_EQ(icon(), L"icons.dll 12 1");
}

TEST_F(PlaceShell, WhatIsNoTextOrHasNoEndNamesNoIcon) {
    EXPECT_EQ(icon(), L"") << "nothing is registered";
    name(L"icons.dll,3", REG_BINARY);
    EXPECT_EQ(icon(), L"");
    name(L"icons.dll,3", REG_MULTI_SZ);
    EXPECT_EQ(icon(), L"");
    name(L"icons.dll,34", REG_SZ, 11 * sizeof(wchar_t));
    EXPECT_EQ(icon(), L"") << "no zero at the end";
    name(L"icons.dll,3", REG_SZ, 23);
    EXPECT_EQ(icon(), L"") << "half a character";
    name(L"", REG_SZ, 0);
    EXPECT_EQ(icon(), L"");
    name(L"");
    EXPECT_EQ(icon(), L"");
}

TEST_F(PlaceShell, OnlyAVirtualFolderLooksIntoTheRegistry) {
    name(L"icons.dll,3");
    EXPECT_EQ(icon(kClassId), L"");
    EXPECT_EQ(icon(CString(L":") + kClassId), L"");
    EXPECT_EQ(icon(CString(L"xx") + kClassId), L"");
    EXPECT_EQ(icon(L""), L"");
}

TEST_F(PlaceShell, TheNameIsAskedOfTheShell) {
    EXPECT_EQ(PlaceDisplayName(L"C:\\folder"), L"told");
    ASSERT_EQ(asked.size(), 1u);
    EXPECT_EQ(asked[0], L"C:\\folder 0 " + std::to_wstring(sizeof(SHFILEINFOW)) + L" " +
                            std::to_wstring(SHGFI_DISPLAYNAME));
    givesName = false;
    EXPECT_EQ(PlaceDisplayName(L"C:\\folder"), L"");
}

TEST_F(PlaceShell, ASystemFolderHasPathAndName) {
    CString path, display;
    SystemFolderNames(CSIDL_FAVORITES, path, display);
    wchar_t favorites[MAX_PATH] = {};
    ::SHGetSpecialFolderPathW(nullptr, favorites, CSIDL_FAVORITES, FALSE);
    EXPECT_EQ(path, favorites);
    EXPECT_EQ(display, L"told");
    givesName = false;
    SystemFolderNames(CSIDL_FAVORITES, path, display);
    EXPECT_EQ(display, CString(favorites).Mid(CString(favorites).ReverseFind(L'\\') + 1)) << "its own name";
}

HRESULT WINAPI knowsNone(HWND, int, LPITEMIDLIST* list) {
    *list = nullptr;
    return E_FAIL;
}

TEST_F(PlaceShell, AFolderThatTheShellDoesNotKnowHasNeither) {
    const ui_test::ReplacedImport none(::GetModuleHandleW(nullptr), "SHGetSpecialFolderLocation", &knowsNone);
    ASSERT_TRUE(none.isThere());
    givesName = false;
    CString path = L"before", display = L"before";
    SystemFolderNames(CSIDL_FAVORITES, path, display);
    EXPECT_EQ(path, L"");
    EXPECT_EQ(display, L"");
    EXPECT_EQ(ParsingName(nullptr), L"");
}

HRESULT WINAPI noDesktop(IShellFolder** folder) {
    *folder = nullptr;
    return E_FAIL;
}

TEST_F(PlaceShell, WithoutADesktopThereAreNoNames) {
    LPITEMIDLIST list = nullptr;
    ASSERT_TRUE(SUCCEEDED(::SHGetSpecialFolderLocation(nullptr, CSIDL_FAVORITES, &list)));
    EXPECT_NE(ParsingName(list), L"");
    {
        const ui_test::ReplacedImport none(::GetModuleHandleW(nullptr), "SHGetDesktopFolder", &noDesktop);
        ASSERT_TRUE(none.isThere());
        EXPECT_EQ(ParsingName(list), L"");
    }
    ::CoTaskMemFree(list);
}

}  // namespace
