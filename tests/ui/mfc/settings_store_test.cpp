// Settings in real registry keys.
#include <afxsettingsstore.h>
#include <afxwin.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

constexpr const wchar_t* kRoot = L"Software\\kmfc settings test";
constexpr const wchar_t* kKey = L"Software\\kmfc settings test\\one";

class Note : public CObject {
    DECLARE_SERIAL(Note)
public:
    CString text;
    static inline int alive = 0;
    Note() { ++alive; }
    ~Note() override { --alive; }
    void Serialize(CArchive& ar) override {
        if (ar.IsStoring())
            ar << text;
        else
            ar >> text;
    }
};
IMPLEMENT_SERIAL(Note, CObject, 1)

/// A key as the system gives it, without the store.
struct RawKey {
    explicit RawKey(const wchar_t* path, REGSAM rights = KEY_ALL_ACCESS) {
        ::RegCreateKeyExW(HKEY_CURRENT_USER, path, 0, nullptr, 0, rights, nullptr, &key, nullptr);
    }
    ~RawKey() { ::RegCloseKey(key); }
    DWORD type(const wchar_t* name) const {
        DWORD found = REG_NONE;
        ::RegQueryValueExW(key, name, nullptr, &found, nullptr, nullptr);
        return found;
    }
    std::vector<BYTE> bytes(const wchar_t* name) const {
        DWORD size = 0;
        ::RegQueryValueExW(key, name, nullptr, nullptr, nullptr, &size);
        std::vector<BYTE> data(size);
        ::RegQueryValueExW(key, name, nullptr, nullptr, data.data(), &size);
        return data;
    }
    void set(const wchar_t* name, DWORD kind, const void* data, DWORD size) const {
        ::RegSetValueExW(key, name, 0, kind, static_cast<const BYTE*>(data), size);
    }
    HKEY key = nullptr;
};

bool key_exists(const wchar_t* path) {
    HKEY key = nullptr;
    if (::RegOpenKeyExW(HKEY_CURRENT_USER, path, 0, KEY_READ, &key) != ERROR_SUCCESS) return false;
    ::RegCloseKey(key);
    return true;
}

class SettingsStore : public ::testing::Test {
protected:
    SettingsStore() {
        ::RegDeleteTreeW(HKEY_CURRENT_USER, kRoot);
        EXPECT_TRUE(store.CreateKey(kKey));
    }
    ~SettingsStore() override {
        store.Close();
        ::RegDeleteTreeW(HKEY_CURRENT_USER, kRoot);
    }
    CSettingsStore store{FALSE, FALSE};
};

/// The store of an application that wants one of its own.
class CountingStore : public CSettingsStore {
    DECLARE_DYNCREATE(CountingStore)
public:
    CountingStore() { ++alive; }
    ~CountingStore() override { --alive; }
    DWORD userData() const { return m_dwUserData; }
    bool admin() const { return m_bAdmin != FALSE; }
    bool readOnly() const { return m_bReadOnly != FALSE; }
    static inline int alive = 0;
};
IMPLEMENT_DYNCREATE(CountingStore, CSettingsStore)

}  // namespace

TEST_F(SettingsStore, KeepsNumbersAsDwords) {
    EXPECT_TRUE(store.Write(L"negative", -7));
    EXPECT_TRUE(store.Write(L"large", static_cast<DWORD>(0xFEDCBA98)));
    const RawKey raw(kKey);
    EXPECT_EQ(raw.type(L"negative"), static_cast<DWORD>(REG_DWORD));
    EXPECT_EQ(raw.bytes(L"negative"), (std::vector<BYTE>{0xF9, 0xFF, 0xFF, 0xFF}));
    EXPECT_EQ(raw.bytes(L"large"), (std::vector<BYTE>{0x98, 0xBA, 0xDC, 0xFE}));
    int negative = 0;
    DWORD large = 0;
    EXPECT_TRUE(store.Read(L"negative", negative));
    EXPECT_TRUE(store.Read(L"large", large));
    EXPECT_EQ(negative, -7);
    EXPECT_EQ(large, 0xFEDCBA98u);
}

TEST_F(SettingsStore, KeepsTextsWithTheirEnd) {
    EXPECT_TRUE(store.Write(L"text", L"图层 1"));
    EXPECT_TRUE(store.Write(L"empty", L""));
    const RawKey raw(kKey);
    EXPECT_EQ(raw.type(L"text"), static_cast<DWORD>(REG_SZ));
    EXPECT_EQ(raw.bytes(L"text").size(), 5 * sizeof(wchar_t));
    CString text = L"before", empty = L"before";
    EXPECT_TRUE(store.Read(L"text", text));
    EXPECT_TRUE(store.Read(L"empty", empty));
    EXPECT_EQ(text, L"图层 1");
    EXPECT_EQ(empty, L"");
}

TEST_F(SettingsStore, ReadsATextThatLacksItsEnd) {
    RawKey(kKey).set(L"cut", REG_SZ, L"abc", 2 * sizeof(wchar_t));
    RawKey(kKey).set(L"odd", REG_SZ, L"abc", 3);
    RawKey(kKey).set(L"none", REG_SZ, nullptr, 0);
    CString text;
    EXPECT_TRUE(store.Read(L"cut", text));
    EXPECT_EQ(text, L"ab");
    EXPECT_TRUE(store.Read(L"odd", text));
    EXPECT_EQ(text, L"a");
    EXPECT_TRUE(store.Read(L"none", text));
    EXPECT_EQ(text, L"");
}

TEST_F(SettingsStore, KeepsRectanglesAndPointsAsTheyLieInMemory) {
    EXPECT_TRUE(store.Write(L"rect", CRect(1, -2, 300, 400)));
    POINT point = {-5, 6};
    LPPOINT pointer = &point;
    EXPECT_TRUE(store.Write(L"point", pointer));
    const RawKey raw(kKey);
    EXPECT_EQ(raw.type(L"rect"), static_cast<DWORD>(REG_BINARY));
    EXPECT_EQ(raw.bytes(L"rect").size(), sizeof(RECT));
    EXPECT_EQ(raw.bytes(L"point").size(), sizeof(POINT));
    CRect rect;
    EXPECT_TRUE(store.Read(L"rect", rect));
    EXPECT_EQ(rect, CRect(1, -2, 300, 400));
    point = {};
    EXPECT_TRUE(store.Read(L"point", pointer));
    EXPECT_EQ(CPoint(point), CPoint(-5, 6));
    pointer = nullptr;
    EXPECT_FALSE(store.Read(L"point", pointer));
    EXPECT_FALSE(store.Write(L"point", pointer));
}

TEST_F(SettingsStore, KeepsArraysAndLists) {
    CByteArray bytes, bytesBack;
    CWordArray words, wordsBack;
    CDWordArray dwords, dwordsBack;
    CStringArray strings, stringsBack;
    CStringList list, listBack;
    bytes.Add(1), bytes.Add(255);
    words.Add(65535);
    dwords.Add(0xFFFFFFFF), dwords.Add(3);
    strings.Add(L"a"), strings.Add(L"");
    list.AddTail(L"first"), list.AddTail(L"second");
    EXPECT_TRUE(store.Write(L"bytes", bytes));
    EXPECT_TRUE(store.Write(L"words", words));
    EXPECT_TRUE(store.Write(L"dwords", dwords));
    EXPECT_TRUE(store.Write(L"strings", strings));
    EXPECT_TRUE(store.Write(L"list", list));
    EXPECT_EQ(RawKey(kKey).bytes(L"bytes"), (std::vector<BYTE>{1, 255})) << "bytes are kept as they are";
    wordsBack.Add(9);
    listBack.AddTail(L"there before");
    EXPECT_TRUE(store.Read(L"bytes", bytesBack));
    EXPECT_TRUE(store.Read(L"words", wordsBack));
    EXPECT_TRUE(store.Read(L"dwords", dwordsBack));
    EXPECT_TRUE(store.Read(L"strings", stringsBack));
    EXPECT_TRUE(store.Read(L"list", listBack));
    ASSERT_EQ(bytesBack.GetSize(), 2);
    EXPECT_EQ(bytesBack[1], 255);
    ASSERT_EQ(wordsBack.GetSize(), 1) << "an array is replaced";
    EXPECT_EQ(wordsBack[0], 65535);
    ASSERT_EQ(dwordsBack.GetSize(), 2);
    EXPECT_EQ(dwordsBack[0], 0xFFFFFFFF);
    ASSERT_EQ(stringsBack.GetSize(), 2);
    EXPECT_EQ(stringsBack[0], L"a");
    ASSERT_EQ(listBack.GetCount(), 3) << "a list is added to";
    EXPECT_EQ(listBack.GetTail(), L"second");
}

TEST_F(SettingsStore, GivesBytesInMemoryOfTheCallersOwn) {
    BYTE data[] = {1, 0, 2};
    EXPECT_TRUE(store.Write(L"data", data, 3));
    BYTE* read = nullptr;
    UINT count = 0;
    ASSERT_TRUE(store.Read(L"data", &read, &count));
    EXPECT_EQ(std::vector<BYTE>(read, read + count), (std::vector<BYTE>{1, 0, 2}));
    delete[] read;
    EXPECT_FALSE(store.Read(L"data", nullptr, &count));
    EXPECT_FALSE(store.Read(L"data", &read, static_cast<UINT*>(nullptr)));
}

TEST_F(SettingsStore, KeepsObjects) {
    {
        Note note;
        note.text = L"remember";
        EXPECT_TRUE(store.Write(L"object", note));
        EXPECT_TRUE(store.Write(L"pointer", &note));
        CObList list;
        list.AddTail(&note);
        EXPECT_TRUE(store.Write(L"list", list));
        EXPECT_TRUE(store.Write(L"null", static_cast<CObject*>(nullptr)));
    }
    Note back;
    CObject* made = nullptr;
    CObject* none = &back;
    CObList list;
    EXPECT_TRUE(store.Read(L"object", back));
    EXPECT_TRUE(store.Read(L"pointer", made));
    EXPECT_TRUE(store.Read(L"list", list));
    EXPECT_TRUE(store.Read(L"null", none));
    EXPECT_EQ(back.text, L"remember");
    ASSERT_NE(made, nullptr);
    EXPECT_EQ(static_cast<Note*>(made)->text, L"remember");
    ASSERT_EQ(list.GetCount(), 1);
    EXPECT_EQ(static_cast<Note*>(list.GetHead())->text, L"remember");
    EXPECT_EQ(none, nullptr);
    delete made;
    delete list.GetHead();
    EXPECT_EQ(Note::alive, 1) << "only the one on the stack";
}

TEST_F(SettingsStore, LeavesTheTargetAloneWhenAValueIsMissing) {
    int number = 11;
    DWORD dword = 12;
    CString text = L"kept";
    CRect rect(1, 2, 3, 4);
    CStringList list;
    CObject* object = &list;
    BYTE* data = nullptr;
    UINT count = 5;
    EXPECT_FALSE(store.Read(L"no", number));
    EXPECT_FALSE(store.Read(L"no", dword));
    EXPECT_FALSE(store.Read(L"no", text));
    EXPECT_FALSE(store.Read(L"no", rect));
    EXPECT_FALSE(store.Read(L"no", list));
    EXPECT_FALSE(store.Read(L"no", object));
    EXPECT_FALSE(store.Read(L"no", &data, &count));
    EXPECT_EQ(number, 11);
    EXPECT_EQ(dword, 12u);
    EXPECT_EQ(text, L"kept");
    EXPECT_EQ(rect, CRect(1, 2, 3, 4));
    EXPECT_EQ(object, &list);
    EXPECT_EQ(data, nullptr);
    EXPECT_EQ(count, 5u);
}

TEST_F(SettingsStore, RefusesValuesOfAnotherKind) {
    store.Write(L"text", L"12");
    store.Write(L"number", 12);
    const BYTE shortRect[] = {1, 2, 3};
    RawKey(kKey).set(L"short", REG_BINARY, shortRect, 3);
    RawKey(kKey).set(L"short number", REG_DWORD, shortRect, 3);
    int number = 1;
    CString text = L"kept";
    CRect rect(1, 2, 3, 4);
    CByteArray bytes;
    POINT point = {1, 2};
    LPPOINT pointer = &point;
    EXPECT_FALSE(store.Read(L"text", number));
    EXPECT_FALSE(store.Read(L"short number", number));
    EXPECT_FALSE(store.Read(L"number", text));
    EXPECT_FALSE(store.Read(L"short", rect));
    EXPECT_FALSE(store.Read(L"short", pointer));
    EXPECT_FALSE(store.Read(L"number", bytes));
    RawKey(kKey).set(L"empty", REG_SZ, nullptr, 0);
    bytes.Add(9);
    EXPECT_FALSE(store.Read(L"empty", bytes)) << "an empty value has a kind too";
    EXPECT_EQ(bytes.GetSize(), 1);
    EXPECT_EQ(number, 1);
    EXPECT_EQ(text, L"kept");
    EXPECT_EQ(rect, CRect(1, 2, 3, 4));
    EXPECT_EQ(point.x, 1);
}

TEST_F(SettingsStore, RefusesArchivesThatBreakOff) {
    Note note;
    note.text = L"a long text that will be cut";
    CObList list;
    list.AddTail(&note);
    list.AddTail(&note);
    CStringArray strings;
    strings.Add(L"one"), strings.Add(L"two");
    store.Write(L"list", list);
    store.Write(L"strings", strings);
    store.Write(L"object", &note);
    const auto for_each_cut = [&](const wchar_t* name, const auto& refuses) {
        const std::vector<BYTE> whole = RawKey(kKey).bytes(name);
        ASSERT_FALSE(whole.empty());
        for (size_t length = 0; length < whole.size(); ++length) {
            RawKey(kKey).set(L"cut", REG_BINARY, whole.data(), static_cast<DWORD>(length));
            EXPECT_TRUE(refuses()) << length << " bytes of " << whole.size();
        }
    };
    for_each_cut(L"list", [&] {
        CObList objects;
        return !store.Read(L"cut", objects) && objects.IsEmpty();
    });
    for_each_cut(L"strings", [&] {
        CStringArray texts;
        texts.Add(L"kept");
        return !store.Read(L"cut", texts) && texts.GetSize() == 1;
    });
    for_each_cut(L"object", [&] {
        CObject* object = nullptr;
        return !store.Read(L"cut", object) && object == nullptr;
    });
}

TEST_F(SettingsStore, OpensOnlyKeysThatAreThere) {
    CSettingsStore other(FALSE, FALSE);
    EXPECT_FALSE(other.Open(L"Software\\kmfc settings test\\missing"));
    EXPECT_FALSE(key_exists(L"Software\\kmfc settings test\\missing"));
    EXPECT_FALSE(other.Write(L"x", 1)) << "no key is open";
    EXPECT_TRUE(other.CreateKey(L"Software\\kmfc settings test\\missing\\deep"));
    EXPECT_TRUE(key_exists(L"Software\\kmfc settings test\\missing\\deep"));
    EXPECT_TRUE(other.Open(kKey)) << "paths count from the root, whatever is open";
    EXPECT_TRUE(other.Write(L"x", 1));
    int x = 0;
    EXPECT_TRUE(store.Read(L"x", x));
    EXPECT_EQ(x, 1);
}

TEST_F(SettingsStore, ClosesItsKey) {
    store.Write(L"x", 1);
    store.Close();
    int x = 0;
    EXPECT_FALSE(store.Read(L"x", x));
    EXPECT_FALSE(store.Write(L"x", 2));
    EXPECT_FALSE(store.DeleteValue(L"x"));
    EXPECT_FALSE(store.Open(L"Software\\kmfc settings test\\missing"));
    EXPECT_TRUE(store.Open(kKey));
    EXPECT_FALSE(store.Open(L"Software\\kmfc settings test\\missing"));
    EXPECT_FALSE(store.Read(L"x", x)) << "a key that could not be opened leaves none open";
}

TEST_F(SettingsStore, ThatIsReadOnlyReallyCantWrite) {
    store.Write(L"x", 1);
    CSettingsStore reader(FALSE, TRUE);
    ASSERT_TRUE(reader.Open(kKey));
    int x = 0;
    EXPECT_TRUE(reader.Read(L"x", x));
    EXPECT_EQ(x, 1);
    EXPECT_FALSE(reader.Write(L"x", 2));
    EXPECT_FALSE(reader.Write(L"y", L"new"));
    EXPECT_FALSE(reader.DeleteValue(L"x"));
    EXPECT_FALSE(reader.DeleteKey(kRoot));
    EXPECT_FALSE(reader.CreateKey(L"Software\\kmfc settings test\\new"));
    EXPECT_FALSE(key_exists(L"Software\\kmfc settings test\\new"));
    EXPECT_TRUE(store.Read(L"x", x));
    EXPECT_EQ(x, 1);
    CString y = L"none";
    EXPECT_FALSE(store.Read(L"y", y));
}

TEST_F(SettingsStore, DeletesValuesAndKeys) {
    store.Write(L"x", 1);
    EXPECT_TRUE(store.DeleteValue(L"x"));
    EXPECT_FALSE(store.DeleteValue(L"x"));
    int x = 0;
    EXPECT_FALSE(store.Read(L"x", x));
    EXPECT_TRUE(store.CreateKey(L"Software\\kmfc settings test\\one\\under\\deep"));
    store.Close();
    EXPECT_TRUE(store.DeleteKey(L"Software\\kmfc settings test\\one\\under\\"));
    EXPECT_FALSE(key_exists(L"Software\\kmfc settings test\\one\\under"));
    EXPECT_TRUE(key_exists(kKey));
    EXPECT_FALSE(store.DeleteKey(L""));
    EXPECT_FALSE(store.DeleteKey(L"\\"));
    EXPECT_FALSE(store.DeleteKey(L"Software\\kmfc settings test\\never"));
    EXPECT_TRUE(key_exists(L"Software"));
}

TEST_F(SettingsStore, OfTheAdministratorStandsInTheMachinesKey) {
    CSettingsStore admin(TRUE, FALSE);
    ASSERT_TRUE(admin.CreateKey(L"Software\\kmfc settings test admin"));
    EXPECT_FALSE(key_exists(L"Software\\kmfc settings test admin")) << "not the user's";
    admin.Write(L"x", 3);
    HKEY key = nullptr;
    EXPECT_EQ(::RegOpenKeyExW(HKEY_LOCAL_MACHINE, L"Software\\kmfc settings test admin", 0, KEY_READ, &key),
              ERROR_SUCCESS);
    ::RegCloseKey(key);
    admin.Close();
    EXPECT_FALSE(admin.DeleteKey(L"Software\\kmfc settings test admin"));
    EXPECT_TRUE(admin.DeleteKey(L"Software\\kmfc settings test admin", TRUE));
}

TEST_F(SettingsStore, IsOfTheClassThatTheApplicationChose) {
    EXPECT_FALSE(CSettingsStoreSP::SetRuntimeClass(RUNTIME_CLASS(CWnd)));
    EXPECT_TRUE(CSettingsStoreSP::SetRuntimeClass(RUNTIME_CLASS(CountingStore)));
    EXPECT_FALSE(CSettingsStoreSP::SetRuntimeClass(RUNTIME_CLASS(CWnd))) << "and the class stays";
    {
        CSettingsStoreSP keeper(77);
        auto* made = DYNAMIC_DOWNCAST(CountingStore, &keeper.Create(TRUE, FALSE));
        ASSERT_NE(made, nullptr);
        EXPECT_EQ(made->userData(), 77u);
        EXPECT_TRUE(made->admin());
        EXPECT_FALSE(made->readOnly());
        made = DYNAMIC_DOWNCAST(CountingStore, &keeper.Create(FALSE, TRUE));
        EXPECT_FALSE(made->admin());
        EXPECT_TRUE(made->readOnly());
        EXPECT_EQ(CountingStore::alive, 1) << "the second takes the first one's place";
    }
    EXPECT_EQ(CountingStore::alive, 0);
    EXPECT_TRUE(CSettingsStoreSP::SetRuntimeClass(nullptr));
    CSettingsStoreSP plain;
    CSettingsStore& made = plain.Create(FALSE, FALSE);
    EXPECT_EQ(CountingStore::alive, 0);
    EXPECT_TRUE(made.CreateKey(kKey));
    EXPECT_TRUE(made.Write(L"x", 1));
}

TEST(RegistryPath, IsThatOfTheApplicationOrOfTheProfile) {
    CWinApp& app = *AfxGetApp();
    const LPCTSTR company = app.m_pszRegistryKey, profile = app.m_pszProfileName;
    app.m_pszRegistryKey = L"Company";
    app.m_pszProfileName = L"Program";
    EXPECT_EQ(AFXGetRegPath(L"BasePanes"), L"SOFTWARE\\Company\\Program\\BasePanes\\");
    EXPECT_EQ(AFXGetRegPath(L"BasePanes", L""), L"SOFTWARE\\Company\\Program\\BasePanes\\");
    EXPECT_EQ(AFXGetRegPath(L""), L"SOFTWARE\\Company\\Program\\");
    EXPECT_EQ(AFXGetRegPath(L"BasePanes", L"SOFTWARE\\Mine"), L"SOFTWARE\\Mine\\");
    EXPECT_EQ(AFXGetRegPath(L"BasePanes", L"SOFTWARE\\Mine\\"), L"SOFTWARE\\Mine\\");
    app.m_pszRegistryKey = nullptr;
    app.m_pszProfileName = nullptr;
    EXPECT_EQ(AFXGetRegPath(L"Palette"), L"SOFTWARE\\Palette\\");
    app.m_pszRegistryKey = company;
    app.m_pszProfileName = profile;
}
