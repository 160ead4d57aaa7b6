// The combo box that remembers its last texts.
#include <ktui/nav/history_combo.h>

#include <ktut.h>

#include <optional>
#include <string>
#include <vector>

#include "replaced_import.h"
#include "test_host.h"
#include "ui_test.h"

namespace {

constexpr const wchar_t* kKey = L"Software\\ktui test\\Default\\9.1\\Dialogs\\-Test";
constexpr const wchar_t* kSection = L"-Test";
constexpr const wchar_t* kFormat = L"NameMRU%d";

using Texts = std::vector<std::wstring>;

class History : public ::testing::Test {
protected:
    History() {
        ktutSetProfileFileName(L"Software\\ktui test");
        clean();
    }
    ~History() override {
        clean();
        ktutSetProfileFileName(nullptr);
    }
    static void clean() { ::RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\ktui test"); }
    static void store(int index, const wchar_t* text) {
        CString name;
        name.Format(kFormat, index);
        ::RegSetKeyValueW(HKEY_CURRENT_USER, kKey, name, REG_SZ, text,
                          static_cast<DWORD>((::lstrlenW(text) + 1) * sizeof(wchar_t)));
    }
    static std::optional<std::wstring> stored(int index) {
        CString name;
        name.Format(kFormat, index);
        wchar_t text[100] = {};
        DWORD size = sizeof text;
        if (::RegGetValueW(HKEY_CURRENT_USER, kKey, name, RRF_RT_REG_SZ, nullptr, text, &size))
            return std::nullopt;
        return text;
    }
    static Texts textsOf(const HistoryStore& store) {
        Texts all;
        for (int i = 0; i < store.m_items.GetSize(); ++i) all.push_back(store.m_items[i].GetString());
        return all;
    }
    static Texts textsOf(const CComboBox& box) {
        Texts all;
        for (int i = 0; i < box.GetCount(); ++i) {
            CString text;
            box.GetLBText(i, text);
            all.push_back(text.GetString());
        }
        return all;
    }
    /// Gives the object a combo box as a dialog template makes it.
    void take(CHistoryCombo& box) {
        ASSERT_TRUE(
            box.SubclassWindow(::CreateWindowW(L"COMBOBOX", L"", WS_CHILD | WS_VISIBLE | CBS_DROPDOWN, 10, 10,
                                               200, 300, parent.m_hWnd, nullptr, nullptr, nullptr)));
    }
    ui_test::TestHost host;
    ui_test::ParentWindow parent;
};

TEST_F(History, AMissingKeyGivesNoTexts) {
    HistoryStore texts(kSection, kFormat);
    texts.m_items.Add(L"before");
    texts.Load();
    EXPECT_TRUE(textsOf(texts).empty());
    HKEY key = nullptr;
    EXPECT_NE(::RegOpenKeyW(HKEY_CURRENT_USER, kKey, &key), ERROR_SUCCESS) << "reading makes no key";
}

TEST_F(History, AGapDoesNotEndTheTexts) {
    store(0, L"a");
    store(1, L"");
    store(3, L"d");
    store(9, L"j");
    store(10, L"beyond");
    HistoryStore texts(kSection, kFormat);
    texts.Load();
    EXPECT_EQ(textsOf(texts), (Texts{L"a", L"d", L"j"}));
    EXPECT_EQ(texts.m_maximum, 10);
    HistoryStore few(kSection, kFormat, 2);
    few.Load();
    EXPECT_EQ(textsOf(few), (Texts{L"a"}));
}

TEST_F(History, TextsAreNumberedFromZero) {
    HistoryStore texts(kSection, kFormat);
    texts.m_items.Add(L"a");
    texts.m_items.Add(L"b");
    texts.Save();
    EXPECT_EQ(stored(0), L"a");
    EXPECT_EQ(stored(1), L"b");
    EXPECT_EQ(stored(2), std::nullopt);
}

TEST_F(History, TheStoresMaximumBoundsWhatIsReadOnly) {
    HistoryStore texts(kSection, kFormat, 1);
    texts.m_items.Add(L"a");
    texts.m_items.Add(L"b");
    texts.Save();
    EXPECT_EQ(stored(1), L"b");
}

TEST_F(History, AShorterHistoryComesBackWithTheOldTextsBehindIt) {
    HistoryStore texts(kSection, kFormat);
    for (wchar_t letter = L'a'; letter < L'k'; ++letter) texts.m_items.Add(CString(letter, 1));
    texts.Save();
    texts.m_items.RemoveAll();
    for (const wchar_t* text : {L"x", L"y", L"z"}) texts.m_items.Add(text);
    texts.Save();
    texts.Load();
    EXPECT_EQ(textsOf(texts), (Texts{L"x", L"y", L"z", L"d", L"e", L"f", L"g", L"h", L"i", L"j"}));
}

LSTATUS WINAPI refuseCreate(HKEY, LPCWSTR, DWORD, LPWSTR, DWORD, REGSAM, const LPSECURITY_ATTRIBUTES, PHKEY,
                            LPDWORD) {
    return ERROR_ACCESS_DENIED;
}

TEST_F(History, ARegistryThatRefusesIsNotReported) {
    const ui_test::ReplacedImport refuses(::GetModuleHandleW(L"ktui.dll"), "RegCreateKeyExW", &refuseCreate);
    ASSERT_TRUE(refuses.isThere());
    HistoryStore texts(kSection, kFormat);
    texts.m_items.Add(L"a");
    texts.Save();
    EXPECT_EQ(textsOf(texts), (Texts{L"a"}));
    EXPECT_EQ(stored(0), std::nullopt);
}

TEST_F(History, ABoxStartsWithItsTextsAndStoresThemAtItsEnd) {
    store(0, L"a");
    store(2, L"c");
    CHistoryCombo box(kSection, kFormat);
    take(box);
    EXPECT_EQ(textsOf(box), (Texts{L"a", L"c"}));
    box.AddText(L"new");
    EXPECT_EQ(stored(0), L"a") << "not before its end";
    box.DestroyWindow();
    EXPECT_EQ(stored(0), L"new");
    EXPECT_EQ(stored(1), L"a");
    EXPECT_EQ(stored(2), L"c");
}

TEST_F(History, ATextThatIsEmptyIsNoRow) {
    store(0, L"");
    store(1, L"b");
    CHistoryCombo box(kSection, kFormat);
    take(box);
    EXPECT_EQ(textsOf(box), (Texts{L"b"}));
}

TEST_F(History, AnObjectThatGoesWithItsWindowStoresToo) {
    {
        CHistoryCombo box(kSection, kFormat);
        take(box);
        box.AddText(L"late");
    }
    EXPECT_EQ(stored(0), L"late");
}

TEST_F(History, ATextIsAddedTrimmedAtTheTop) {
    CHistoryCombo box(kSection, kFormat);
    take(box);
    EXPECT_EQ(box.AddText(L"  one \t"), 0);
    EXPECT_EQ(box.AddText(L"two"), 0);
    EXPECT_EQ(textsOf(box), (Texts{L"two", L"one"}));
    EXPECT_EQ(box.GetCurSel(), 0);
    EXPECT_EQ(ui_test::text_of(box.m_hWnd), L"two");
}

TEST_F(History, AnEmptyTextIsNotAdded) {
    CHistoryCombo box(kSection, kFormat);
    take(box);
    box.AddText(L"one");
    EXPECT_EQ(box.AddText(L""), -1);
    EXPECT_EQ(box.AddText(L" \t\n"), -1);
    EXPECT_EQ(box.AddText(nullptr), -1);
    EXPECT_EQ(textsOf(box), (Texts{L"one"}));
}

TEST_F(History, ATextThatIsThereMovesToTheTop) {
    CHistoryCombo box(kSection, kFormat);
    take(box);
    for (const wchar_t* text : {L"one", L"two", L"three"}) box.AddText(text);
    EXPECT_EQ(box.AddText(L"ONE "), 0);
    EXPECT_EQ(textsOf(box), (Texts{L"ONE", L"three", L"two"}));
    box.AddText(L"tw");
    EXPECT_EQ(textsOf(box), (Texts{L"tw", L"ONE", L"three", L"two"})) << "the whole text counts";
}

TEST_F(History, TheEleventhTextDropsTheOldest) {
    CHistoryCombo box(kSection, kFormat);
    take(box);
    for (wchar_t letter = L'a'; letter < L'l'; ++letter) box.AddText(CString(letter, 1));
    EXPECT_EQ(textsOf(box), (Texts{L"k", L"j", L"i", L"h", L"g", L"f", L"e", L"d", L"c", L"b"}));
    box.DestroyWindow();
    EXPECT_EQ(stored(9), L"b");
    EXPECT_EQ(stored(10), std::nullopt);
}

}  // namespace
