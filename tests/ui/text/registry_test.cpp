#include <ktui/text/registry_access.h>

#include <ktui/text/dialog_data.h>
#include <ktut.h>

#include <string>

#include "test_host.h"
#include "ui_test.h"

namespace {

constexpr const wchar_t* kRoot = L"Software\\ktui-tests\\registry";
constexpr DWORD kNoSuchValue = 1011;

/// A fresh key for each test, taken away afterwards.
class Registry : public ::testing::Test {
protected:
    void SetUp() override { ::RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\ktui-tests"); }
    void TearDown() override { ::RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\ktui-tests"); }

    static CString path(const wchar_t* name) {
        CString text;
        text.Format(L"%s\\%s", kRoot, name);
        return text;
    }
    static bool exists(const CString& name) {
        return CKbUiRegistryAccess(HKEY_CURRENT_USER, name).IsOpen() != FALSE;
    }
    static int valueCount(HKEY key) {
        DWORD count = 0;
        ::RegQueryInfoKeyW(key, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, &count, nullptr,
                           nullptr, nullptr, nullptr);
        return static_cast<int>(count);
    }
};

}  // namespace

TEST_F(Registry, WriterCreatesAMissingKeyAndAReaderDoesNot) {
    CKbUiRegistryAccess reader(HKEY_CURRENT_USER, path(L"a"));
    EXPECT_FALSE(reader.IsOpen());
    EXPECT_FALSE(exists(path(L"a")));
    CKbUiRegistryWriteAccess writer(HKEY_CURRENT_USER, path(L"a"));
    EXPECT_TRUE(writer.IsOpen());
    EXPECT_TRUE(exists(path(L"a")));
}

TEST_F(Registry, ValuesComeBackAsTheyWereStored) {
    CKbUiRegistryWriteAccess writer(HKEY_CURRENT_USER, path(L"a"));
    EXPECT_TRUE(writer.SetString(L"text", L"线型 1"));
    EXPECT_TRUE(writer.SetDWord(L"number", 0xDEADBEEF));
    CKbUiRegistryAccess reader(HKEY_CURRENT_USER, path(L"a"));
    EXPECT_STREQ(reader.GetString(L"text"), L"线型 1");
    EXPECT_EQ(reader.GetDWord(L"number"), 0xDEADBEEFu);
    EXPECT_EQ(::GetLastError(), 0u);
    EXPECT_EQ(reader.ValueType(L"text"), static_cast<DWORD>(REG_SZ));
    EXPECT_EQ(reader.ValueType(L"number"), static_cast<DWORD>(REG_DWORD));
    EXPECT_EQ(reader.ValueType(L"missing"), static_cast<DWORD>(REG_NONE));
}

TEST_F(Registry, TextIsStoredWithItsTerminator) {
    CKbUiRegistryWriteAccess writer(HKEY_CURRENT_USER, path(L"a"));
    writer.SetString(L"text", L"abc");
    CKbUiRegistryAccess reader(HKEY_CURRENT_USER, path(L"a"));
    DWORD size = 0;
    ::RegQueryValueExW(reader, L"text", nullptr, nullptr, nullptr, &size);
    EXPECT_EQ(size, 8u);
}

TEST_F(Registry, LongTextComesBackWhole) {
    CKbUiRegistryWriteAccess writer(HKEY_CURRENT_USER, path(L"a"));
    CKbUiRegistryAccess reader(HKEY_CURRENT_USER, path(L"a"));
    for (const int length : {258, 259, 260, 261, 4000}) {
        const CString text(L'x', length);
        writer.SetString(L"long", text);
        EXPECT_EQ(reader.GetString(L"long"), text) << length;
    }
}

TEST_F(Registry, TextWithoutTerminatorIsReadToItsEnd) {
    CKbUiRegistryWriteAccess writer(HKEY_CURRENT_USER, path(L"a"));
    const std::wstring raw(260, L'y');
    ::RegSetValueExW(writer, L"raw", 0, REG_BINARY, reinterpret_cast<const BYTE*>(raw.data()), 520);
    CKbUiRegistryAccess reader(HKEY_CURRENT_USER, path(L"a"));
    EXPECT_EQ(reader.GetString(L"raw").GetLength(), 260);
}

TEST_F(Registry, MissingTextIsToldByTheLastErrorOnly) {
    CKbUiRegistryWriteAccess writer(HKEY_CURRENT_USER, path(L"a"));
    writer.SetString(L"empty", L"");
    CKbUiRegistryAccess reader(HKEY_CURRENT_USER, path(L"a"));
    ::SetLastError(0);
    EXPECT_TRUE(reader.GetString(L"missing").IsEmpty());
    EXPECT_EQ(::GetLastError(), kNoSuchValue);
    ::SetLastError(0);
    EXPECT_TRUE(reader.GetString(L"empty").IsEmpty());
    EXPECT_NE(::GetLastError(), kNoSuchValue);
}

TEST_F(Registry, MissingNumberIsZeroWithLastErrorOne) {
    CKbUiRegistryWriteAccess writer(HKEY_CURRENT_USER, path(L"a"));
    CKbUiRegistryAccess reader(HKEY_CURRENT_USER, path(L"a"));
    EXPECT_EQ(reader.GetDWord(L"missing"), 0u);
    EXPECT_EQ(::GetLastError(), 1u);
}

TEST_F(Registry, ClosedObjectAnswersNothing) {
    CKbUiRegistryAccess closed;
    EXPECT_FALSE(closed.IsOpen());
    EXPECT_EQ(static_cast<HKEY>(closed), nullptr);
    EXPECT_EQ(closed.GetDWord(L"x"), 0u);
    EXPECT_TRUE(closed.GetString(L"x").IsEmpty());
    CString name = L"old";
    EXPECT_FALSE(closed.EnumKeyNames(0, name));
    EXPECT_TRUE(name.IsEmpty());
    closed.Close();
    EXPECT_FALSE(closed.IsOpen());
}

TEST_F(Registry, FailedOpenKeepsTheEarlierKey) {
    CKbUiRegistryWriteAccess writer(HKEY_CURRENT_USER, path(L"a"));
    writer.SetDWord(L"number", 7);
    CKbUiRegistryAccess reader(HKEY_CURRENT_USER, path(L"a"));
    EXPECT_FALSE(reader.Open(HKEY_CURRENT_USER, path(L"missing")));
    EXPECT_TRUE(reader.IsOpen());
    EXPECT_EQ(reader.GetDWord(L"number"), 7u);
    CKbUiRegistryWriteAccess other(HKEY_CURRENT_USER, path(L"b"));
    EXPECT_TRUE(reader.Open(HKEY_CURRENT_USER, path(L"b")));
    EXPECT_EQ(reader.GetDWord(L"number"), 0u);
}

TEST_F(Registry, NamesAreEnumerated) {
    CKbUiRegistryWriteAccess first(HKEY_CURRENT_USER, path(L"a\\one"));
    CKbUiRegistryWriteAccess second(HKEY_CURRENT_USER, path(L"a\\two"));
    CKbUiRegistryWriteAccess writer(HKEY_CURRENT_USER, path(L"a"));
    writer.SetDWord(L"number", 1);
    CKbUiRegistryAccess reader(HKEY_CURRENT_USER, path(L"a"));
    CString name;
    EXPECT_TRUE(reader.EnumKeyNames(1, name));
    EXPECT_STREQ(name, L"two");
    EXPECT_FALSE(reader.EnumKeyNames(2, name));
    EXPECT_TRUE(name.IsEmpty());
    DWORD type = 0;
    EXPECT_TRUE(reader.EnumValueNames(0, name, &type));
    EXPECT_STREQ(name, L"number");
    EXPECT_EQ(type, static_cast<DWORD>(REG_DWORD));
    EXPECT_FALSE(reader.EnumValueNames(1, name, nullptr));
}

TEST_F(Registry, CopySharesTheKey) {
    CKbUiRegistryWriteAccess writer(HKEY_CURRENT_USER, path(L"a"));
    CKbUiRegistryAccess* copy = new CKbUiRegistryAccess(writer);
    EXPECT_EQ(static_cast<HKEY>(*copy), static_cast<HKEY>(writer));
    delete copy;
    EXPECT_FALSE(writer.SetDWord(L"number", 1)) << "the copy has closed the key of both";
}

TEST_F(Registry, SinglesAreDeleted) {
    CKbUiRegistryWriteAccess child(HKEY_CURRENT_USER, path(L"a\\child"));
    child.Close();
    CKbUiRegistryDeleteAccess key(HKEY_CURRENT_USER, path(L"a"));
    key.SetDWord(L"number", 1);
    EXPECT_TRUE(key.DeleteValue(L"number"));
    EXPECT_FALSE(key.DeleteValue(L"number"));
    EXPECT_TRUE(key.DeleteKey(L"child"));
    EXPECT_FALSE(key.DeleteKey(L"child"));
}

TEST_F(Registry, DeleteAllValuesLeavesEverySecondOneAndAnswersFalse) {
    CKbUiRegistryDeleteAccess key(HKEY_CURRENT_USER, path(L"a"));
    for (const wchar_t* name : {L"1", L"2", L"3", L"4"}) key.SetDWord(name, 1);
    EXPECT_FALSE(key.DeleteAllValues());
    EXPECT_EQ(valueCount(key), 2);
    EXPECT_FALSE(key.DeleteAllValues());
    EXPECT_EQ(valueCount(key), 1);
    EXPECT_FALSE(key.DeleteAllValues());
    EXPECT_EQ(valueCount(key), 0);
}

TEST_F(Registry, DeleteKeyAndSubkeysLeavesAWritableKey) {
    CKbUiRegistryWriteAccess child(HKEY_CURRENT_USER, path(L"a\\child\\grandchild"));
    CKbUiRegistryDeleteAccess key(HKEY_CURRENT_USER, path(L"a"));
    EXPECT_FALSE(key.DeleteKeyAndSubkeys(L"child"));
    EXPECT_TRUE(exists(path(L"a\\child\\grandchild")));
}

TEST_F(Registry, DeleteKeyAndSubkeysCreatesAMissingKey) {
    CKbUiRegistryDeleteAccess key(HKEY_CURRENT_USER, path(L"a"));
    EXPECT_FALSE(key.DeleteKeyAndSubkeys(L"missing"));
    EXPECT_TRUE(exists(path(L"a\\missing")));
}

TEST_F(Registry, DeleteKeyAndSubkeysOfAClosedObjectAnswersFalse) {
    CKbUiRegistryDeleteAccess closed;
    EXPECT_FALSE(closed.DeleteKeyAndSubkeys(L"anything"));
}

TEST_F(Registry, DialogDataWithoutANameWritesNothing) {
    ui_test::TestHost host;
    EXPECT_EQ(KtUiSetDialogData(L"Software\\ktui-tests\\", L"", L"Width", L"100"), 0);
    EXPECT_FALSE(exists(L"Software\\ktui-tests"));
}

TEST_F(Registry, DialogDataGoesBelowTheGivenRoot) {
    ui_test::TestHost host;
    EXPECT_EQ(KtUiSetDialogData(L"Software\\ktui-tests\\", L"Layers", L"Width", L"100"), 1);
    CKbUiRegistryAccess reader(HKEY_CURRENT_USER, L"Software\\ktui-tests\\Layers");
    EXPECT_STREQ(reader.GetString(L"Width"), L"100");
    EXPECT_EQ(reader.ValueType(L"Width"), static_cast<DWORD>(REG_SZ));
}

TEST_F(Registry, DialogDataIsGivenAsStrings) {
    ui_test::TestHost host;
    int (*const store)(const CString&, const CString&, const CString&, const CString&) = KtUiSetDialogData;
    const CString root = L"Software\\ktui-tests\\", dialog = L"Layers", value = L"Height", text = L"75";
    EXPECT_EQ(store(root, dialog, value, text), 1);
    EXPECT_STREQ(CKbUiRegistryAccess(HKEY_CURRENT_USER, L"Software\\ktui-tests\\Layers").GetString(value),
                 L"75");
}

TEST_F(Registry, DialogDataWithoutARootGoesBelowTheProducts) {
    ui_test::TestHost host;
    ktutSetProfileFileName(L"Software\\ktui-tests\\product");
    EXPECT_EQ(KtUiSetDialogData(L"", L"Layers", L"Width", L"120"), 1);
    CString key;
    key.Format(L"Software\\ktui-tests\\product\\%s\\9.1\\Dialogs\\Layers", ktutProfileRootName().c_str());
    EXPECT_STREQ(CKbUiRegistryAccess(HKEY_CURRENT_USER, key).GetString(L"Width"), L"120");
    ktutSetProfileFileName(nullptr);
}
