// One value for a dialog, stored outside any dialog's life.
#include <ktui/text/dialog_data.h>

#include <ktut.h>

#include <string>
#include <vector>

#include "replaced_import.h"
#include "test_host.h"
#include "ui_test.h"

namespace {

/// What the library asked of the registry, which nothing is written to.
struct {
    HKEY parent;
    std::wstring path, className, name, text;
    REGSAM rights;
    DWORD type, size;
    int creates, sets, closes;
} asked;
LSTATUS setStatus = ERROR_SUCCESS;
const HKEY kMadeKey = reinterpret_cast<HKEY>(0x4444);

LSTATUS WINAPI NoteCreate(HKEY parent, LPCWSTR path, DWORD, LPWSTR className, DWORD options, REGSAM rights,
                          SECURITY_ATTRIBUTES*, HKEY* key, DWORD*) {
    EXPECT_EQ(options, 0u);
    ++asked.creates;
    asked.parent = parent;
    asked.path = path;
    asked.className = className;
    asked.rights = rights;
    *key = kMadeKey;
    return ERROR_SUCCESS;
}

LSTATUS WINAPI NoteSet(HKEY key, LPCWSTR name, DWORD, DWORD type, const BYTE* data, DWORD size) {
    EXPECT_EQ(key, kMadeKey);
    ++asked.sets;
    asked.name = name;
    asked.type = type;
    asked.size = size;
    asked.text = reinterpret_cast<const wchar_t*>(data);
    return setStatus;
}

LSTATUS WINAPI NoteClose(HKEY key) {
    EXPECT_EQ(key, kMadeKey);
    ++asked.closes;
    return ERROR_SUCCESS;
}

class DialogData : public ::testing::Test {
protected:
    DialogData() {
        asked = {};
        setStatus = ERROR_SUCCESS;
    }
    ~DialogData() override { ktutSetProfileFileName(nullptr); }

    ui_test::TestHost host;
    HMODULE toolkit = ::GetModuleHandleW(L"ktui.dll");
    ui_test::ReplacedImport create{toolkit, "RegCreateKeyExW", &NoteCreate};
    ui_test::ReplacedImport set{toolkit, "RegSetValueExW", &NoteSet};
    ui_test::ReplacedImport close{toolkit, "RegCloseKey", &NoteClose};
};

}  // namespace

// The paths are looked at as they are handed over: the registry itself folds doubled backslashes.

TEST_F(DialogData, GoesBelowTheGivenRootWithABackslashAtTheEnd) {
    ASSERT_TRUE(create.isThere() && set.isThere() && close.isThere());
    EXPECT_EQ(KtUiSetDialogData(L"Software\\Firm\\", L"Layers", L"Width", L"100"), 1);
    EXPECT_EQ(asked.parent, HKEY_CURRENT_USER);
    EXPECT_EQ(asked.path, L"Software\\Firm\\Layers\\");
    EXPECT_EQ(asked.className, L"CKbUiRegistryWriteAccess");
    EXPECT_EQ(asked.rights, 0x20006u);
    EXPECT_EQ(asked.name, L"Width");
    EXPECT_EQ(asked.type, static_cast<DWORD>(REG_SZ));
    EXPECT_EQ(asked.size, 8u);
    EXPECT_EQ(asked.text, L"100");
    EXPECT_EQ(asked.closes, 1);
}

TEST_F(DialogData, WithoutARootGoesBelowTheProductsDialogs) {
    ktutSetProfileFileName(L"Software\\Firm\\Product");
    EXPECT_EQ(KtUiSetDialogData(L"", L"Layers", L"Width", L""), 1);
    const std::wstring root = ktutProfileRootName().c_str();
    EXPECT_FALSE(root.empty());
    EXPECT_EQ(asked.path, L"Software\\Firm\\Product\\" + root + L"\\9.1\\Dialogs\\Layers\\");
    EXPECT_EQ(asked.size, 2u) << "the terminator alone";
}

TEST_F(DialogData, WithoutADialogNothingIsAskedOfTheRegistry) {
    EXPECT_EQ(KtUiSetDialogData(L"Software\\Firm\\", L"", L"Width", L"100"), 0);
    EXPECT_EQ(asked.creates + asked.sets + asked.closes, 0);
}

TEST_F(DialogData, TheRegistrysRefusalIsTheAnswer) {
    setStatus = ERROR_ACCESS_DENIED;
    EXPECT_EQ(KtUiSetDialogData(L"Software\\Firm\\", L"Layers", L"Width", L"100"), 0);
    EXPECT_EQ(asked.sets, 1);
}
