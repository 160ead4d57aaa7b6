// With which rights the registry classes open their keys, and what they write into a key that they make.
#include <ktui/text/registry_access.h>

#include <string>
#include <vector>

#include <winternl.h>

#include "replaced_import.h"
#include "ui_test.h"

namespace {

constexpr const wchar_t* kKey = L"Software\\ktui-tests\\rights";

/// The rights that a handle was granted.
DWORD grantedRights(HKEY key) {
    struct BasicInformation {
        ULONG attributes, access, handles, pointers, others[10];
    } information = {};
    using Query = LONG(NTAPI*)(HANDLE, int, void*, ULONG, ULONG*);
    const auto query = reinterpret_cast<Query>(
        reinterpret_cast<void*>(::GetProcAddress(::GetModuleHandleW(L"ntdll.dll"), "NtQueryObject")));
    ULONG size = 0;
    EXPECT_EQ(query(key, 0, &information, sizeof information, &size), 0);
    return information.access;
}

/// The class string of the key at `path`.
CString classOf(const wchar_t* path) {
    HKEY key = nullptr;
    ::RegOpenKeyExW(HKEY_CURRENT_USER, path, 0, KEY_READ, &key);
    wchar_t name[64] = {};
    DWORD length = 64;
    ::RegQueryInfoKeyW(key, name, &length, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
                       nullptr, nullptr);
    ::RegCloseKey(key);
    return name;
}

DWORD createdOptions = 99;
DWORD createdRights = 0;
CString createdClass;

LSTATUS WINAPI NoteCreate(HKEY parent, LPCWSTR name, DWORD reserved, LPWSTR className, DWORD options,
                          REGSAM rights, SECURITY_ATTRIBUTES* security, HKEY* key, DWORD* disposition) {
    EXPECT_EQ(reserved, 0u);
    EXPECT_EQ(security, nullptr);
    createdOptions = options;
    createdRights = rights;
    createdClass = className;
    return ::RegCreateKeyExW(parent, name, reserved, className, options, rights, security, key, disposition);
}

DWORD openedRights = 0;

LSTATUS WINAPI NoteOpen(HKEY parent, LPCWSTR name, DWORD options, REGSAM rights, HKEY* key) {
    EXPECT_EQ(options, 0u);
    openedRights = rights;
    return ::RegOpenKeyExW(parent, name, options, rights, key);
}

HMODULE toolkit() { return ::GetModuleHandleW(L"ktui.dll"); }

class RegistryRights : public ::testing::Test {
protected:
    RegistryRights() { clear(); }
    ~RegistryRights() override { clear(); }
    static void clear() { ::RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\ktui-tests"); }
};

}  // namespace

TEST_F(RegistryRights, AReaderMayReadOnly) {
    CKbUiRegistryWriteAccess(HKEY_CURRENT_USER, kKey);
    const ui_test::ReplacedImport open(toolkit(), "RegOpenKeyExW", &NoteOpen);
    ASSERT_TRUE(open.isThere());
    const CKbUiRegistryAccess made(HKEY_CURRENT_USER, kKey);
    EXPECT_EQ(grantedRights(made), 0x20019u);
    EXPECT_EQ(openedRights, 0x20019u);
    CKbUiRegistryAccess opened;
    openedRights = 0;
    EXPECT_TRUE(opened.Open(HKEY_CURRENT_USER, kKey));
    EXPECT_EQ(grantedRights(opened), 0x20019u);
    EXPECT_EQ(openedRights, 0x20019u);
}

TEST_F(RegistryRights, AWriterMayWriteOnlyAndSignsTheKeyThatItMakes) {
    const ui_test::ReplacedImport create(toolkit(), "RegCreateKeyExW", &NoteCreate);
    ASSERT_TRUE(create.isThere());
    const CKbUiRegistryWriteAccess made(HKEY_CURRENT_USER, kKey);
    EXPECT_EQ(grantedRights(made), 0x20006u);
    EXPECT_EQ(createdRights, 0x20006u);
    EXPECT_EQ(createdOptions, 0u) << "kept over a restart";
    EXPECT_STREQ(createdClass, L"CKbUiRegistryWriteAccess");
    EXPECT_STREQ(classOf(kKey), L"CKbUiRegistryWriteAccess");
}

TEST_F(RegistryRights, AWritersOpenIsTheSameAsItsConstructor) {
    const ui_test::ReplacedImport create(toolkit(), "RegCreateKeyExW", &NoteCreate);
    CKbUiRegistryWriteAccess opened;
    EXPECT_TRUE(opened.Open(HKEY_CURRENT_USER, kKey));
    EXPECT_EQ(grantedRights(opened), 0x20006u);
    EXPECT_EQ(createdOptions, 0u);
    EXPECT_STREQ(classOf(kKey), L"CKbUiRegistryWriteAccess");
}

TEST_F(RegistryRights, ADeleterMayDoAllAtConstructionAndSignsTheKeyThatItMakes) {
    const ui_test::ReplacedImport create(toolkit(), "RegCreateKeyExW", &NoteCreate);
    const CKbUiRegistryDeleteAccess made(HKEY_CURRENT_USER, kKey);
    EXPECT_EQ(grantedRights(made), 0x2001Fu);
    EXPECT_EQ(createdRights, 0x2001Fu);
    EXPECT_EQ(createdOptions, 0u);
    EXPECT_STREQ(classOf(kKey), L"CKbUiRegistryDeleteAccess");
}

TEST_F(RegistryRights, ADeletersOpenIsAWriters) {
    CKbUiRegistryDeleteAccess opened;
    EXPECT_TRUE(opened.Open(HKEY_CURRENT_USER, kKey));
    EXPECT_EQ(grantedRights(opened), 0x20006u);
    EXPECT_STREQ(classOf(kKey), L"CKbUiRegistryWriteAccess");
}
