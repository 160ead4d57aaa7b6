// Deleting, with its two kept oddities: every second value stays, and a key that can be opened stays.
#include <ktui/text/registry_access.h>

#include <string>
#include <vector>

#include "replaced_import.h"
#include "ui_test.h"

namespace {

using Calls = std::vector<std::wstring>;

constexpr const wchar_t* kKey = L"Software\\ktui-tests\\deleting";

Calls calls;
std::vector<std::wstring> children;  ///< names that the next enumerations give, one each
HKEY ownKey = nullptr;
bool deletes = true;

LSTATUS WINAPI RefuseCreate(HKEY parent, LPCWSTR name, DWORD, LPWSTR className, DWORD, REGSAM rights,
                            SECURITY_ATTRIBUTES*, HKEY* key, DWORD*) {
    EXPECT_EQ(rights, 0x20006u);
    EXPECT_STREQ(className, L"CKbUiRegistryWriteAccess");
    calls.push_back(std::wstring(L"open ") + name + (parent == ownKey ? L" below own" : L""));
    *key = nullptr;
    return ERROR_ACCESS_DENIED;
}

LSTATUS WINAPI TellChild(HKEY key, DWORD index, LPWSTR name, DWORD* length, DWORD*, LPWSTR, DWORD*,
                         FILETIME*) {
    EXPECT_EQ(key, nullptr) << "of the object that stayed closed";
    EXPECT_EQ(index, 0u);
    EXPECT_EQ(*length, 256u);
    calls.push_back(L"enum");
    if (children.empty()) return ERROR_NO_MORE_ITEMS;
    lstrcpyW(name, children.back().c_str());
    *length = static_cast<DWORD>(children.back().size());
    children.pop_back();
    return ERROR_SUCCESS;
}

LSTATUS WINAPI NoteDelete(HKEY key, LPCWSTR name) {
    calls.push_back(std::wstring(L"delete ") + name + (key == ownKey ? L" below own" : L""));
    return deletes ? ERROR_SUCCESS : ERROR_ACCESS_DENIED;
}

/// A registry where no key can be opened for writing.
struct ClosedRegistry {
    ClosedRegistry() { calls.clear(); }
    HMODULE toolkit = ::GetModuleHandleW(L"ktui.dll");
    ui_test::ReplacedImport create{toolkit, "RegCreateKeyExW", &RefuseCreate};
    ui_test::ReplacedImport enumerate{toolkit, "RegEnumKeyExW", &TellChild};
    ui_test::ReplacedImport remove{toolkit, "RegDeleteKeyW", &NoteDelete};
};

class RegistryDelete : public ::testing::Test {
protected:
    RegistryDelete() {
        clear();
        children.clear();
        deletes = true;
        key = new CKbUiRegistryDeleteAccess(HKEY_CURRENT_USER, kKey);
        ownKey = *key;
    }
    ~RegistryDelete() override {
        delete key;
        clear();
    }
    static void clear() { ::RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\ktui-tests"); }
    Calls valueNames() const {
        Calls names;
        CString name;
        for (DWORD index = 0; key->EnumValueNames(index, name, nullptr); ++index)
            names.push_back(name.GetString());
        return names;
    }

    CKbUiRegistryDeleteAccess* key = nullptr;
};

}  // namespace

TEST_F(RegistryDelete, AKeyThatCannotBeOpenedGoesToThePlatform) {
    const ClosedRegistry registry;
    ASSERT_TRUE(registry.create.isThere() && registry.enumerate.isThere() && registry.remove.isThere());
    EXPECT_TRUE(key->DeleteKeyAndSubkeys(L"child"));
    EXPECT_EQ(calls, (Calls{L"open child below own", L"enum", L"delete child below own"}));
}

TEST_F(RegistryDelete, ThePlatformsRefusalIsTheAnswer) {
    const ClosedRegistry registry;
    deletes = false;
    EXPECT_FALSE(key->DeleteKeyAndSubkeys(L"child"));
    EXPECT_EQ(calls.back(), L"delete child below own");
}

TEST_F(RegistryDelete, SubkeysGoFirstAndTheirNamesAreReadAnew) {
    const ClosedRegistry registry;
    children = {L"a"};
    EXPECT_TRUE(key->DeleteKeyAndSubkeys(L"child"));
    EXPECT_EQ(calls, (Calls{L"open child below own", L"enum", L"open a", L"enum", L"delete a", L"enum",
                            L"delete child below own"}));
}

TEST_F(RegistryDelete, ASubkeyThatStaysEndsTheWork) {
    const ClosedRegistry registry;
    children = {L"a"};
    deletes = false;
    EXPECT_FALSE(key->DeleteKeyAndSubkeys(L"child"));
    EXPECT_EQ(calls.back(), L"delete a") << "the key itself isn't tried any more";
}

TEST_F(RegistryDelete, AnOpenedKeyIsLeftAndClosed) {
    static std::vector<HKEY> closed;
    closed.clear();
    using Close = LSTATUS(WINAPI*)(HKEY);
    const Close note = [](HKEY open) -> LSTATUS {
        closed.push_back(open);
        return ::RegCloseKey(open);
    };
    const ui_test::ReplacedImport close(::GetModuleHandleW(L"ktui.dll"), "RegCloseKey", note);
    EXPECT_FALSE(key->DeleteKeyAndSubkeys(L"child"));
    EXPECT_EQ(closed.size(), 1u);
    EXPECT_NE(closed[0], ownKey);
}

TEST_F(RegistryDelete, EverySecondValueStaysInItsOrder) {
    for (const wchar_t* name : {L"a", L"b", L"c", L"d", L"e"}) key->SetDWord(name, 1);
    EXPECT_EQ(key->DeleteAllValues(), FALSE);
    EXPECT_EQ(valueNames(), (Calls{L"b", L"d"}));
    EXPECT_EQ(key->DeleteAllValues(), FALSE);
    EXPECT_EQ(valueNames(), Calls{L"d"});
}

TEST_F(RegistryDelete, LongNamesBehindShortOnesAreDeletedToo) {
    const std::wstring longName(255, L'n');
    for (const wchar_t* name : {L"a", L"b", longName.c_str()}) key->SetDWord(name, 1);
    key->DeleteAllValues();
    EXPECT_EQ(valueNames(), Calls{L"b"});
}
