// What is chosen at OK: addresses, several files, shortcuts to recent ones.
#include <shlobj.h>

#include "shown_fixture.h"

namespace {

/// A shortcut as it is read back.
struct Shortcut {
    bool read = false;
    CString path, folder;
    int show = 0;
};

Shortcut readShortcut(const CString& file) {
    Shortcut shortcut;
    IShellLinkW* link = nullptr;
    IPersistFile* kept = nullptr;
    if (FAILED(::CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_ALL, IID_IShellLinkW,
                                  reinterpret_cast<void**>(&link))))
        return shortcut;
    link->QueryInterface(IID_IPersistFile, reinterpret_cast<void**>(&kept));
    shortcut.read = SUCCEEDED(kept->Load(file, STGM_READ));
    wchar_t path[MAX_PATH] = {}, folder[MAX_PATH] = {};
    link->GetPath(path, MAX_PATH, nullptr, 0);
    link->GetWorkingDirectory(folder, MAX_PATH);
    link->GetShowCmd(&shortcut.show);
    shortcut.path = path;
    shortcut.folder = folder;
    kept->Release();
    link->Release();
    return shortcut;
}

/// Writes a shortcut at `file` to `target`.
void writeShortcut(const CString& file, const CString& target) {
    IShellLinkW* link = nullptr;
    IPersistFile* kept = nullptr;
    ASSERT_TRUE(SUCCEEDED(::CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_ALL, IID_IShellLinkW,
                                             reinterpret_cast<void**>(&link))));
    link->SetPath(target);
    link->QueryInterface(IID_IPersistFile, reinterpret_cast<void**>(&kept));
    EXPECT_EQ(kept->Save(file, TRUE), S_OK);
    kept->Release();
    link->Release();
}

class FileDialogResult : public ShownTest {
protected:
    INT_PTR type(const wchar_t* name) {
        return run([=](HWND window) {
            ::SetDlgItemTextW(window, kNameBox, name);
            press(window, IDOK);
        });
    }
    /// Types a name that must not be taken, and cancels.
    void typeInVain(const wchar_t* name) {
        run([&](HWND window) {
            ::SetDlgItemTextW(window, kNameBox, name);
            ::SendMessageW(window, WM_COMMAND, IDOK, 0);
            EXPECT_TRUE(::IsWindowVisible(window));
            EXPECT_EQ(data.GetCount(), 0);
            EXPECT_EQ(dialog.count("ok"), 0);
            press(window, IDCANCEL);
        });
    }
    CString only() {
        EXPECT_EQ(data.GetCount(), 1);
        return data.GetCount() == 1 ? CString(data.GetData(0)->GetText()) : CString();
    }
};

TEST_F(FileDialogResult, AnAddressIsTheResultAsItWasTyped) {
    dialog.SetNoURLFileTransfer(1);
    EXPECT_EQ(type(L"WWW.X"), IDOK);
    EXPECT_EQ(only(), L"WWW.X");
}

TEST_F(FileDialogResult, AFilesNameIsNoAddress) {
    dialog.SetNoURLFileTransfer(1);
    EXPECT_EQ(type(L"one.dwg"), IDOK);
    EXPECT_EQ(only(), folder + L"one.dwg");
}

TEST_F(FileDialogResult, ANameThatIsCompletedCountsAsAnAddress) {
    dialog.SetNoURLFileTransfer(1);
    EXPECT_EQ(type(L"one"), IDOK);
    EXPECT_EQ(only(), L"one");
}

TEST_F(FileDialogResult, SeveralNamesCountAsAnAddress) {
    dialog.SetNoURLFileTransfer(1);
    dialog.SetMultiSelectAllowed(1);
    EXPECT_EQ(type(L"\"one.dwg\" \"two.dwg\""), IDOK);
    EXPECT_EQ(only(), L"\"one.dwg\" \"two.dwg\"");
}

TEST_F(FileDialogResult, WithoutThoseSettingsNothingIsAnAddress) {
    EXPECT_EQ(type(L"www.dwg"), IDOK);
    EXPECT_EQ(only(), folder + L"www.dwg");
}

TEST_F(FileDialogResult, AnAddressKeepsTheDialogOpenWhereNoneIsAllowed) {
    dialog.SetNoURLsAllowed(1);
    typeInVain(L"ftp.x");
    typeInVain(L"www.dwg");
    EXPECT_EQ(type(L"one.dwg"), IDOK);
    EXPECT_EQ(only(), folder + L"one.dwg");
}

TEST_F(FileDialogResult, AnAddressRefusedIsForgottenForAFile) {
    dialog.SetNoURLFileTransfer(1);
    dialog.refusals = 1;
    run([&](HWND window) {
        ::SetDlgItemTextW(window, kNameBox, L"www.dwg");
        ::SendMessageW(window, WM_COMMAND, IDOK, 0);
        ::SetDlgItemTextW(window, kNameBox, L"two.dwg");
        press(window, IDOK);
    });
    ASSERT_EQ(data.GetCount(), 2);
    EXPECT_EQ(CString(data.GetData(0)->GetText()), L"www.dwg");
    EXPECT_EQ(CString(data.GetData(1)->GetText()), folder + L"two.dwg");
}

TEST_F(FileDialogResult, TheTypeIsSelectedAgainBeforeTheOwnerIsAsked) {
    dialog.SetForceFilterIndex(2);
    std::vector<std::string> order;
    ui_test::SentMessages watch([&](const CWPSTRUCT& message) {
        if (message.message == CB_SETCURSEL && ::GetDlgCtrlID(message.hwnd) == kTypeBox)
            order.push_back("type " + std::to_string(message.wParam) + ", asked " +
                            std::to_string(dialog.count("ok")) + ", results " +
                            std::to_string(data.GetCount()));
    });
    run([&](HWND window) {
        order.clear();
        ::SetDlgItemTextW(window, kNameBox, L"one.dwg");
        press(window, IDOK);
    });
    EXPECT_EQ(order, (std::vector<std::string>{"type 2, asked 0, results 1"}));
    EXPECT_EQ(dialog.count("ok"), 1);
}

TEST_F(FileDialogResult, EachFileHasItsShortcut) {
    giveRecentFolder();
    dialog.SetMultiSelectAllowed(1);
    EXPECT_EQ(type(L"\"one.dwg\" \"two.dwg\""), IDOK);
    for (const wchar_t* name : {L"one.dwg", L"two.dwg"}) {
        const Shortcut shortcut = readShortcut(recentFolder() + name + L".lnk");
        EXPECT_TRUE(shortcut.read);
        EXPECT_EQ(shortcut.path.CompareNoCase(folder + name), 0) << shortcut.path.GetString();
        EXPECT_EQ(shortcut.folder, folder);
        EXPECT_EQ(shortcut.show, 1);
    }
}

TEST_F(FileDialogResult, AnAddressHasNoShortcut) {
    giveRecentFolder();
    dialog.SetNoURLFileTransfer(1);
    EXPECT_EQ(type(L"www.dwg"), IDOK);
    EXPECT_EQ(::GetFileAttributesW(recentFolder() + L"www.dwg.lnk"), INVALID_FILE_ATTRIBUTES);
}

TEST_F(FileDialogResult, WithoutPlacesThereIsNoShortcut) {
    giveRecentFolder();
    dialog.GetImpObject()->m_applicationMode = 0;
    EXPECT_EQ(type(L"one.dwg"), IDOK);
    EXPECT_EQ(::GetFileAttributesW(recentFolder() + L"one.dwg.lnk"), INVALID_FILE_ATTRIBUTES);
}

/// Shortcuts by the library's own function.
class RecentFiles : public ShownTest {
protected:
    RecentFiles() {
        (void)::OleInitialize(nullptr);
        giveRecentFolder();
    }
    ~RecentFiles() override {
        for (const wchar_t* name :
             {L"short.lnk", L"shorter.lnk", L"ring.lnk", L"two.dwg.lnk", L"one.dwg.lnk"})
            ::DeleteFileW(dialog.recent + L"\\" + name);
        ::OleUninitialize();
    }
    int add(const CString& path) { return KtUiTestDoor().addToRecentFolder(path, dialog.recent); }
    CString in(const wchar_t* name) const { return dialog.recent + L"\\" + name; }
};

TEST_F(RecentFiles, AnOldShortcutOfTheSameNameIsOverwritten) {
    writeShortcut(in(L"one.dwg.lnk"), folder + L"two.dwg");
    EXPECT_EQ(add(folder + L"one.dwg"), 1);
    EXPECT_EQ(readShortcut(in(L"one.dwg.lnk")).path.CompareNoCase(folder + L"one.dwg"), 0);
}

TEST_F(RecentFiles, AShortcutIsFollowedUntilItNamesAFile) {
    writeShortcut(in(L"short.lnk"), folder + L"two.dwg");
    writeShortcut(in(L"shorter.LNK"), in(L"short.lnk"));
    EXPECT_EQ(add(in(L"shorter.LNK")), 1);
    const Shortcut shortcut = readShortcut(in(L"two.dwg.lnk"));
    EXPECT_TRUE(shortcut.read);
    EXPECT_EQ(shortcut.path.CompareNoCase(folder + L"two.dwg"), 0) << shortcut.path.GetString();
    EXPECT_EQ(shortcut.folder.CompareNoCase(folder), 0);
}

HRESULT WINAPI makesNoLink(REFCLSID, LPUNKNOWN, DWORD, REFIID, LPVOID* made) {
    *made = nullptr;
    return E_FAIL;
}

TEST_F(RecentFiles, WithoutTheShellsLinksNothingIsKept) {
    const ui_test::ReplacedImport none(toolkit(), "CoCreateInstance", &makesNoLink);
    ASSERT_TRUE(none.isThere());
    EXPECT_EQ(add(folder + L"one.dwg"), 0);
    EXPECT_EQ(::GetFileAttributesW(in(L"one.dwg.lnk")), INVALID_FILE_ATTRIBUTES);
}

TEST_F(RecentFiles, WhatLeadsNowhereIsNotKept) {
    EXPECT_EQ(add(L""), 0);
    EXPECT_EQ(KtUiTestDoor().addToRecentFolder(nullptr, dialog.recent), 0);
    EXPECT_EQ(KtUiTestDoor().addToRecentFolder(folder + L"one.dwg", nullptr), 0);
    EXPECT_EQ(KtUiTestDoor().addToRecentFolder(folder + L"one.dwg", L""), 0);
    EXPECT_EQ(KtUiTestDoor().addToRecentFolder(folder + L"one.dwg", folder + L"missing"), 0);
    EXPECT_EQ(add(folder + L"missing.lnk"), 0);
    writeShortcut(in(L"ring.lnk"), in(L"ring.lnk"));
    EXPECT_EQ(add(in(L"ring.lnk")), 0);
    EXPECT_EQ(::GetFileAttributesW(in(L"one.dwg.lnk")), INVALID_FILE_ATTRIBUTES);
}

}  // namespace
