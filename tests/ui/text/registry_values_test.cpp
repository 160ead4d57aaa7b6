// Odd values, long names and what a failure leaves behind.
#include <ktui/text/registry_access.h>

#include <string>

#include "replaced_import.h"
#include "ui_test.h"

namespace {

constexpr const wchar_t* kKey = L"Software\\ktui-tests\\values";

class RegistryValues : public ::testing::Test {
protected:
    RegistryValues() { clear(); }
    ~RegistryValues() override { clear(); }
    static void clear() { ::RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\ktui-tests"); }

    void store(const wchar_t* name, DWORD type, const void* data, DWORD size) {
        CKbUiRegistryWriteAccess writer(HKEY_CURRENT_USER, kKey);
        ::RegSetValueExW(writer, name, 0, type, static_cast<const BYTE*>(data), size);
    }
    CKbUiRegistryAccess& reader() {
        m_reader.Open(HKEY_CURRENT_USER, kKey);
        return m_reader;
    }

private:
    CKbUiRegistryAccess m_reader;
};

}  // namespace

TEST_F(RegistryValues, NumberOfAnotherSizeIsAFailure) {
    const std::uint64_t wide = 0x1122334455667788;
    store(L"wide", REG_QWORD, &wide, sizeof wide);
    ::SetLastError(77);
    const DWORD value = reader().GetDWord(L"wide");
    const DWORD error = ::GetLastError();
    EXPECT_EQ(value, 0u);
    EXPECT_EQ(error, 1u);
}

TEST_F(RegistryValues, NumberThatIsThereClearsTheLastError) {
    const DWORD stored = 42;
    store(L"number", REG_DWORD, &stored, sizeof stored);
    CKbUiRegistryAccess& key = reader();
    ::SetLastError(77);
    const DWORD value = key.GetDWord(L"number");
    const DWORD error = ::GetLastError();
    EXPECT_EQ(value, 42u);
    EXPECT_EQ(error, 0u);
}

TEST_F(RegistryValues, NumberIsStoredAsFourBytes) {
    CKbUiRegistryWriteAccess writer(HKEY_CURRENT_USER, kKey);
    EXPECT_TRUE(writer.SetDWord(L"number", 0x01020304));
    DWORD type = 0, size = 0;
    ::RegQueryValueExW(reader(), L"number", nullptr, &type, nullptr, &size);
    EXPECT_EQ(type, static_cast<DWORD>(REG_DWORD));
    EXPECT_EQ(size, 4u);
}

TEST_F(RegistryValues, AReaderCannotStore) {
    const DWORD stored = 1;
    store(L"number", REG_DWORD, &stored, sizeof stored);
    CKbUiRegistryWriteAccess closed;
    EXPECT_FALSE(closed.SetDWord(L"number", 2));
    EXPECT_FALSE(closed.SetString(L"text", L"x"));
    EXPECT_EQ(reader().GetDWord(L"number"), 1u);
}

TEST_F(RegistryValues, TextIsReadInto260CharactersAtFirst) {
    static DWORD firstSize;
    static int queries;
    firstSize = 0;
    queries = 0;
    using Query = LSTATUS(WINAPI*)(HKEY, LPCWSTR, DWORD*, DWORD*, BYTE*, DWORD*);
    const Query note = [](HKEY key, LPCWSTR name, DWORD* reserved, DWORD* type, BYTE* data,
                          DWORD* size) -> LSTATUS {
        if (++queries == 1) firstSize = *size;
        return ::RegQueryValueExW(key, name, reserved, type, data, size);
    };
    const std::wstring text(259, L'x');
    store(L"text", REG_SZ, text.c_str(), 520);
    CKbUiRegistryAccess& key = reader();
    const ui_test::ReplacedImport query(::GetModuleHandleW(L"ktui.dll"), "RegQueryValueExW", note);
    ASSERT_TRUE(query.isThere());
    EXPECT_STREQ(key.GetString(L"text"), text.c_str());
    EXPECT_EQ(firstSize, 520u);
    EXPECT_EQ(queries, 1);
    const std::wstring longer(260, L'y');
    store(L"longer", REG_SZ, longer.c_str(), 522);
    queries = 0;
    EXPECT_STREQ(key.GetString(L"longer"), longer.c_str());
    EXPECT_EQ(queries, 2);
}

TEST_F(RegistryValues, TextThatFailsTheSecondTimeIsMissing) {
    static int queries;
    queries = 0;
    using Query = LSTATUS(WINAPI*)(HKEY, LPCWSTR, DWORD*, DWORD*, BYTE*, DWORD*);
    const Query fail = [](HKEY, LPCWSTR, DWORD*, DWORD*, BYTE*, DWORD* size) -> LSTATUS {
        *size = 600;
        return ++queries == 1 ? ERROR_MORE_DATA : ERROR_FILE_NOT_FOUND;
    };
    const DWORD any = 0;
    store(L"any", REG_DWORD, &any, sizeof any);
    CKbUiRegistryAccess& key = reader();
    const ui_test::ReplacedImport query(::GetModuleHandleW(L"ktui.dll"), "RegQueryValueExW", fail);
    ::SetLastError(0);
    const CString text = key.GetString(L"text");
    const DWORD error = ::GetLastError();
    EXPECT_TRUE(text.IsEmpty());
    EXPECT_EQ(error, 1011u);
    EXPECT_EQ(queries, 2);
}

TEST_F(RegistryValues, NamesOf255CharactersAreEnumeratedAndLongerValueNamesAreFailures) {
    const std::wstring most(255, L'n'), tooLong(256, L'm');
    CKbUiRegistryWriteAccess(HKEY_CURRENT_USER, CString(kKey) + L"\\" + most.c_str());
    const DWORD number = 1;
    store(most.c_str(), REG_DWORD, &number, sizeof number);
    CKbUiRegistryAccess& key = reader();
    CString name;
    EXPECT_TRUE(key.EnumKeyNames(0, name));
    EXPECT_STREQ(name, most.c_str());
    EXPECT_EQ(name.GetLength(), 255);
    name.Empty();
    DWORD type = 0;
    EXPECT_TRUE(key.EnumValueNames(0, name, &type));
    EXPECT_STREQ(name, most.c_str());
    EXPECT_EQ(name.GetLength(), 255);
    EXPECT_EQ(type, static_cast<DWORD>(REG_DWORD));
    CKbUiRegistryDeleteAccess(HKEY_CURRENT_USER, kKey).DeleteValue(most.c_str());
    store(tooLong.c_str(), REG_DWORD, &number, sizeof number);
    EXPECT_FALSE(key.EnumValueNames(0, name, nullptr));
    EXPECT_TRUE(name.IsEmpty());
}

TEST_F(RegistryValues, EnumeratedNamesComeByTheirIndex) {
    for (const wchar_t* child : {L"one", L"three", L"two"})
        CKbUiRegistryWriteAccess(HKEY_CURRENT_USER, CString(kKey) + L"\\" + child);
    CKbUiRegistryAccess& key = reader();
    CString name = L"old";
    EXPECT_TRUE(key.EnumKeyNames(0, name));
    EXPECT_STREQ(name, L"one");
    EXPECT_TRUE(key.EnumKeyNames(2, name));
    EXPECT_STREQ(name, L"two");
    EXPECT_FALSE(key.EnumKeyNames(3, name));
    EXPECT_TRUE(name.IsEmpty());
}

TEST_F(RegistryValues, NumberWithoutBytesIsZero) {
    store(L"empty", REG_BINARY, nullptr, 0);
    EXPECT_EQ(reader().GetDWord(L"empty"), 0u);
    EXPECT_EQ(::GetLastError(), 0u);
}
