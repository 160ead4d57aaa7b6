// Which keys the registry classes close, and when.
#include <ktui/text/registry_access.h>

#include <vector>

#include "replaced_import.h"
#include "ui_test.h"

namespace {

using Keys = std::vector<HKEY>;

Keys closed;

LSTATUS WINAPI NoteClose(HKEY key) {
    closed.push_back(key);
    return ::RegCloseKey(key);
}

/// A key object that counts its Close.
template <class Access>
class Counted : public Access {
public:
    using Access::Access;
    int closes = 0;
    HKEY closedKey = nullptr;  ///< the key that was open at the last Close

    void Close() override {
        ++closes;
        closedKey = this->m_key;
        Access::Close();
    }
};

class RegistryHandles : public ::testing::Test {
protected:
    RegistryHandles() {
        clear();
        CKbUiRegistryWriteAccess(HKEY_CURRENT_USER, path);
        CKbUiRegistryWriteAccess(HKEY_CURRENT_USER, otherPath);
        closed.clear();
    }
    ~RegistryHandles() override { clear(); }
    static void clear() { ::RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\ktui-tests"); }

    const CString path = L"Software\\ktui-tests\\one";
    const CString otherPath = L"Software\\ktui-tests\\two";
    ui_test::ReplacedImport close{::GetModuleHandleW(L"ktui.dll"), "RegCloseKey", &NoteClose};
};

}  // namespace

TEST_F(RegistryHandles, CloseClosesTheKeyOnce) {
    ASSERT_TRUE(close.isThere());
    CKbUiRegistryAccess reader(HKEY_CURRENT_USER, path);
    const HKEY key = reader;
    reader.Close();
    EXPECT_EQ(closed, Keys{key});
    EXPECT_FALSE(reader.IsOpen());
    reader.Close();
    EXPECT_EQ(closed, Keys{key}) << "a closed object closes nothing";
}

TEST_F(RegistryHandles, DestructorsOfAllClassesClose) {
    HKEY keys[3] = {};
    {
        const CKbUiRegistryAccess reader(HKEY_CURRENT_USER, path);
        const CKbUiRegistryWriteAccess writer(HKEY_CURRENT_USER, path);
        const CKbUiRegistryDeleteAccess deleter(HKEY_CURRENT_USER, path);
        keys[0] = deleter;
        keys[1] = writer;
        keys[2] = reader;
    }
    EXPECT_EQ(closed, (Keys{keys[0], keys[1], keys[2]}));
}

TEST_F(RegistryHandles, ClosedObjectsCloseNothingAtTheirEnd) {
    { const CKbUiRegistryAccess never; }
    { const CKbUiRegistryAccess missing(HKEY_CURRENT_USER, L"Software\\ktui-tests\\missing"); }
    EXPECT_TRUE(closed.empty());
}

TEST_F(RegistryHandles, ReaderOpenClosesTheEarlierKeyByTheVirtualClose) {
    Counted<CKbUiRegistryAccess> reader(HKEY_CURRENT_USER, path);
    const HKEY earlier = reader;
    EXPECT_TRUE(reader.Open(HKEY_CURRENT_USER, otherPath));
    EXPECT_EQ(reader.closes, 1);
    EXPECT_EQ(reader.closedKey, earlier);
    EXPECT_EQ(closed, Keys{earlier});
    EXPECT_NE(static_cast<HKEY>(reader), nullptr);
    EXPECT_NE(static_cast<HKEY>(reader), earlier);
}

TEST_F(RegistryHandles, WriterOpenClosesTheEarlierKeyByTheVirtualClose) {
    Counted<CKbUiRegistryWriteAccess> writer(HKEY_CURRENT_USER, path);
    const HKEY earlier = writer;
    EXPECT_TRUE(writer.Open(HKEY_CURRENT_USER, otherPath));
    EXPECT_EQ(writer.closes, 1);
    EXPECT_EQ(closed, Keys{earlier});
    EXPECT_TRUE(writer.SetDWord(L"number", 5));
    EXPECT_EQ(CKbUiRegistryAccess(HKEY_CURRENT_USER, otherPath).GetDWord(L"number"), 5u);
}

TEST_F(RegistryHandles, AWriterThatCannotOpenKeepsItsEarlierKey) {
    Counted<CKbUiRegistryWriteAccess> writer(HKEY_CURRENT_USER, path);
    const HKEY earlier = writer;
    EXPECT_EQ(writer.Open(nullptr, L"nowhere"), FALSE);
    EXPECT_EQ(static_cast<HKEY>(writer), earlier);
    EXPECT_EQ(writer.closes, 0);
    EXPECT_TRUE(closed.empty());
    const CKbUiRegistryWriteAccess nowhere(nullptr, L"nowhere");
    EXPECT_FALSE(nowhere.IsOpen());
    const CKbUiRegistryDeleteAccess noDeleter(nullptr, L"nowhere");
    EXPECT_FALSE(noDeleter.IsOpen());
}

TEST_F(RegistryHandles, AssignmentSharesTheKey) {
    const CKbUiRegistryAccess reader(HKEY_CURRENT_USER, path);
    auto* const other = new CKbUiRegistryAccess;
    *other = reader;
    EXPECT_EQ(static_cast<HKEY>(*other), static_cast<HKEY>(reader));
    EXPECT_TRUE(closed.empty());
    delete other;
    EXPECT_EQ(closed.size(), 1u);
}
