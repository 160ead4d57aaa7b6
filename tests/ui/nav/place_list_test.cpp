// What the Places list holds: reading, adding, order, storing, and going to a folder.
#include "place_fixture.h"

#include <algorithm>

#include "fake_resolution.h"
#include "in_language.h"
#include "slot_of.h"

namespace {

using PlaceListTest = PlacesTest;

std::wstring systemPath(int folder) {
    wchar_t path[MAX_PATH] = {};
    ::SHGetSpecialFolderPathW(nullptr, path, folder, FALSE);
    return path;
}

TEST_F(PlaceListTest, WithoutAKeyItHasTheStandardFoldersAndNothingToStore) {
    open();
    EXPECT_EQ(types(), (std::vector<int>{1, 2, 3, 4, 5}));
    EXPECT_EQ(list->SavePlaces(0), 1);
    EXPECT_EQ(list->SavePlaces(1), 1);
    EXPECT_TRUE(messages().empty());
    EXPECT_TRUE(storedValues().empty());
}

TEST_F(PlaceListTest, AnEmptyFirstValueGivesTheStandardFolders) {
    storePlace(0, L"", L"");
    storePlace(1, folder(L"one"), L"one");
    open();
    EXPECT_EQ(types(), (std::vector<int>{1, 2, 3, 4, 5}));
}

TEST_F(PlaceListTest, TheStandardFoldersAreTheShells) {
    open(L"C:\\recent files");
    EXPECT_EQ(path(0), L"C:\\recent files") << "the list's own folder";
    EXPECT_EQ(item(0).m_display, L"History");
    CString personal(systemPath(CSIDL_PERSONAL).c_str());
    EXPECT_EQ(CString(path(1).c_str()).TrimRight(L'\\'), personal.TrimRight(L'\\'));
    EXPECT_EQ(path(2), systemPath(CSIDL_FAVORITES));
    EXPECT_EQ(path(3), systemPath(CSIDL_DESKTOP));
    EXPECT_EQ(path(4).substr(0, 3), L"::{");
    for (int row = 0; row < 5; ++row) {
        EXPECT_FALSE(item(row).m_display.IsEmpty()) << row;
        CString text;
        list->GetText(row, text);
        EXPECT_EQ(text, item(row).m_display);
    }
    EXPECT_EQ(list->RecentFolder(), L"C:\\recent files");
}

/// The shell's caption of a folder, whose identifier list it frees.
std::wstring captionAndFree(LPITEMIDLIST folder) {
    SHFILEINFOW info = {};
    ::SHGetFileInfoW(reinterpret_cast<LPCWSTR>(folder), 0, &info, sizeof info,
                     SHGFI_PIDL | SHGFI_DISPLAYNAME);
    ::CoTaskMemFree(folder);
    return info.szDisplayName;
}

TEST_F(PlaceListTest, EachStandardFolderIsThatOfTheShellByPlaceAndCaption) {
    open();
    const int folders[] = {CSIDL_PERSONAL, CSIDL_FAVORITES, CSIDL_DESKTOP, CSIDL_NETWORK};
    for (int row = 1; row <= 4; ++row) {
        LPITEMIDLIST wanted = nullptr, there = nullptr;
        ASSERT_EQ(::SHGetSpecialFolderLocation(nullptr, folders[row - 1], &wanted), S_OK);
        ASSERT_EQ(::SHParseDisplayName(path(row).c_str(), nullptr, &there, 0, nullptr), S_OK) << row;
        const std::wstring caption = captionAndFree(wanted);
        EXPECT_NE(caption, L"") << row;
        EXPECT_EQ(item(row).m_display, caption.c_str()) << row;
        EXPECT_EQ(captionAndFree(there), caption) << row;
    }
}

TEST_F(PlaceListTest, TheRecentFolderIsNamedInTheUsersLanguage) {
    const ui_test::InLanguage chinese(ui_test::kChinese);
    open();
    EXPECT_EQ(item(0).m_display, L"历史记录");
}

TEST_F(PlaceListTest, AnEmptyRecentFolderIsKept) {
    open(L"");
    EXPECT_EQ(path(0), L"");
    EXPECT_EQ(list->RecentFolder(), L"");
    EXPECT_NE(item(0).m_icon, nullptr) << "of the system's folder";
}

std::vector<std::wstring> iconPaths;

DWORD_PTR WINAPI notesIconPath(LPCWSTR path, DWORD, SHFILEINFOW*, UINT, UINT flags) {
    if (flags == SHGFI_ICON) iconPaths.push_back(path);
    return 0;
}

TEST_F(PlaceListTest, TheIconOfTheRecentFolderIsTheSystems) {
    openWith({L"one"});
    const ui_test::ReplacedImport notes(::GetModuleHandleW(nullptr), "SHGetFileInfoW", &notesIconPath);
    ASSERT_TRUE(notes.isThere());
    iconPaths.clear();
    const int row = list->AddPlace({}, {}, kHistoryPlace, -1);
    EXPECT_EQ(path(row), L"C:\\recent");
    EXPECT_EQ(iconPaths, (std::vector<std::wstring>{systemPath(CSIDL_RECENT)}));
}

TEST_F(PlaceListTest, ReadsTheStoredRowsInTheirOrder) {
    storePlace(0, folder(L"two"), L"second");
    storePlace(1, L"Desktop", L"a caption that doesn't count");
    storePlace(2, folder(L"gone"), L"gone");
    storePlace(3, L"History", L"other");
    storePlace(4, folder(L"one"), nullptr);
    storePlace(5, L"", nullptr);
    storePlace(6, folder(L"Three"), L"behind the end");
    storeValue(L"PlacesOrder0Ext", L"not read");
    open();
    EXPECT_EQ(types(), (std::vector<int>{0, 4, 0, 1, 0}));
    EXPECT_EQ(path(0), folder(L"two").GetString());
    EXPECT_EQ(item(0).m_display, L"second");
    EXPECT_EQ(path(1), systemPath(CSIDL_DESKTOP));
    EXPECT_NE(item(1).m_display, L"a caption that doesn't count");
    EXPECT_EQ(path(2), folder(L"gone").GetString()) << "nobody looks whether it is there";
    EXPECT_EQ(path(3), L"C:\\recent");
    EXPECT_EQ(item(3).m_display, L"History");
    EXPECT_EQ(item(4).m_display, L"");
    EXPECT_FALSE(savesSomething()) << "reading is no change";
}

TEST_F(PlaceListTest, EachStandardFolderHasItsName) {
    const wchar_t* const names[] = {L"Network", L"Favorites", L"Personal", L"History", L"Desktop"};
    for (int i = 0; i < 5; ++i) storePlace(i, names[i], L"");
    storePlace(5, L"desktop", L"by case another");
    storePlace(6, L"", nullptr);
    open();
    EXPECT_EQ(types(), (std::vector<int>{5, 3, 2, 1, 4, 0}));
    EXPECT_EQ(path(5), L"desktop");
}

TEST_F(PlaceListTest, NinetyNineRowsAreReadBackOfAHundred) {
    openWith({L"one"});
    list->ResetContent();
    for (int i = 0; i < 100; ++i) {
        CString name;
        name.Format(L"C:\\place %d", i);
        ASSERT_EQ(list->AddPlace(name, name, 0, -1), i);
    }
    drag(0, in(2));
    ASSERT_EQ(list->SavePlaces(0), 1);
    EXPECT_EQ(storedValues().size(), 301u);
    open();
    EXPECT_EQ(list->GetCount(), 99);
    EXPECT_EQ(path(98), L"C:\\place 98");
}

TEST_F(PlaceListTest, AddsRowsWhereItIsTold) {
    openWith({L"one"});
    EXPECT_EQ(list->AddPlace(folder(L"two"), L"at the end", 0, -1), 1);
    EXPECT_EQ(list->AddPlace(folder(L"Three"), L"in front", 0, 0), 0);
    EXPECT_EQ(list->AddPlace({}, {}, kPersonalPlace, 1), 1);
    EXPECT_EQ(types(), (std::vector<int>{0, 2, 0, 0}));
    EXPECT_EQ(item(0).m_display, L"in front");
    EXPECT_EQ(list->AddPlace(folder(L"one"), L"refused", 0, 77), -1);
    EXPECT_EQ(list->GetCount(), 4);
    EXPECT_FALSE(savesSomething());
}

TEST_F(PlaceListTest, ARowIsALineOfTextAndTheIconHigh) {
    openWith({L"one", L"two"});
    const HDC screen = ::GetDC(nullptr);
    SIZE line = {};
    ::GetTextExtentPoint32W(screen, L"|", 1, &line);
    ::ReleaseDC(nullptr, screen);
    EXPECT_EQ(list->GetItemHeight(0), line.cy + 52);
    EXPECT_EQ(list->GetItemHeight(1), line.cy + 52);
    const ui_test::FakeResolution larger(144);
    list->AddPlace(L"C:\\windows", L"three", 0, -1);
    EXPECT_EQ(list->GetItemHeight(2), (line.cy + 52) * 3 / 2);
}

TEST_F(PlaceListTest, ARowOfAHostThatKeepsTheAgreedPixelsIsNoHigherElsewhere) {
    const ui_test::FakeResolution larger(144, FALSE);
    openWith({L"one"});
    const HDC screen = ::GetDC(nullptr);
    SIZE line = {};
    ::GetTextExtentPoint32W(screen, L"|", 1, &line);
    ::ReleaseDC(nullptr, screen);
    EXPECT_EQ(list->GetItemHeight(0), line.cy + 52);
}

TEST_F(PlaceListTest, StoresEachRowByThreeTextsAndAnEmptyEnd) {
    storePlace(0, folder(L"one"), L"first");
    storePlace(1, L"Personal", L"");
    storePlace(2, folder(L"two"), L"third");
    storePlace(3, L"", nullptr);
    storePlace(4, folder(L"Three"), L"left behind");
    storeValue(L"other", L"goes too");
    open();
    const std::wstring personal = item(1).m_display.GetString();
    drag(2, in(0));
    EXPECT_EQ(list->SavePlaces(0), 1);
    std::vector<std::wstring> expected = {L"PlacesOrder0=" + std::wstring(folder(L"two")),
                                          L"PlacesOrder0Display=third",
                                          L"PlacesOrder0Ext=",
                                          L"PlacesOrder1=" + std::wstring(folder(L"one")),
                                          L"PlacesOrder1Display=first",
                                          L"PlacesOrder1Ext=",
                                          L"PlacesOrder2=Personal",
                                          L"PlacesOrder2Display=" + personal,
                                          L"PlacesOrder2Ext=",
                                          L"PlacesOrder3="};
    std::vector<std::wstring> stored = storedValues();
    std::sort(expected.begin(), expected.end());
    std::sort(stored.begin(), stored.end());
    EXPECT_EQ(stored, expected);
    EXPECT_TRUE(messages().empty()) << "nobody was to be asked";
}

TEST_F(PlaceListTest, AnOrderChangedByDraggingIsAChangeUntilItIsStored) {
    openWith({L"one", L"two", L"Three"});
    drag(0, beneath());
    EXPECT_EQ(captions(), L"two|Three|one");
    EXPECT_EQ(path(2), folder(L"one").GetString());
    EXPECT_EQ(list->GetItemHeight(2), list->GetItemHeight(0));
    EXPECT_TRUE(savesSomething());
    EXPECT_FALSE(savesSomething()) << "stored once";
}

TEST_F(PlaceListTest, AsksBeforeItStoresWhereItIsTo) {
    openWith({L"one", L"two"});
    drag(1, in(0));
    EXPECT_EQ(list->SavePlaces(1), 1);
    EXPECT_EQ(messages(),
              (std::vector<Shown>{{false, L"Would you like to save the changes you made to the Places list?",
                                   MB_YESNO | MB_ICONQUESTION}}));
    open();
    EXPECT_EQ(captions(), L"two|one");
}

TEST_F(PlaceListTest, NoGivesTheChangesUpAndIsNotAskedAgain) {
    openWith({L"one", L"two"});
    const std::vector<std::wstring> before = storedValues();
    messageAnswer() = IDNO;
    drag(1, in(0));
    pointAt(beneath());
    drop({folder(L"Three")});
    EXPECT_EQ(list->GetCount(), 3);
    EXPECT_EQ(list->SavePlaces(1), 0);
    EXPECT_EQ(messages().size(), 1u);
    EXPECT_EQ(storedValues(), before);
    EXPECT_EQ(list->SavePlaces(1), 1) << "nothing to do";
    EXPECT_EQ(list->SavePlaces(0), 1);
    EXPECT_EQ(messages().size(), 1u);
    EXPECT_EQ(storedValues(), before);
}

std::vector<std::wstring> registryCalls;
std::wstring refusedKey;
std::vector<HKEY> openedKeys;

LSTATUS WINAPI notesCreate(HKEY parent, LPCWSTR name, DWORD reserved, LPWSTR kind, DWORD options,
                           REGSAM rights, LPSECURITY_ATTRIBUTES security, PHKEY key, LPDWORD disposition) {
    if (!refusedKey.empty() && refusedKey == name) {
        registryCalls.push_back(std::wstring(L"refused ") + name);
        return ERROR_ACCESS_DENIED;
    }
    wchar_t text[20];
    ::wsprintfW(text, L" %X ", rights);
    registryCalls.push_back(std::wstring(L"create ") + name + text + kind);
    return ::RegCreateKeyExW(parent, name, reserved, kind, options, rights, security, key, disposition);
}
bool deletes = true;
LSTATUS WINAPI notesDelete(HKEY parent, LPCWSTR name) {
    registryCalls.push_back(std::wstring(L"delete ") + name);
    return deletes ? ::RegDeleteKeyW(parent, name) : ERROR_ACCESS_DENIED;
}
LSTATUS WINAPI notesSet(HKEY key, LPCWSTR name, DWORD reserved, DWORD type, const BYTE* data, DWORD size) {
    registryCalls.push_back(std::wstring(L"set ") + name);
    return ::RegSetValueExW(key, name, reserved, type, data, size);
}

class PlaceListStoring : public PlacesTest {
protected:
    PlaceListStoring() {
        EXPECT_TRUE(m_create.isThere() && m_delete.isThere() && m_set.isThere());
        registryCalls.clear();
        refusedKey.clear();
        deletes = true;
    }
    static HMODULE toolkit() { return ::GetModuleHandleW(L"ktui.dll"); }

private:
    ui_test::ReplacedImport m_create{toolkit(), "RegCreateKeyExW", &notesCreate},
        m_delete{toolkit(), "RegDeleteKeyW", &notesDelete}, m_set{toolkit(), "RegSetValueExW", &notesSet};
};

TEST_F(PlaceListStoring, DeletesTheKeyWithEveryRightAndMakesItAnewForWriting) {
    openWith({L"one", L"two"});
    drag(1, in(0));
    registryCalls.clear();
    EXPECT_EQ(list->SavePlaces(0), 1);
    EXPECT_EQ(
        registryCalls,
        (std::vector<std::wstring>{
            L"create Software\\ktui test\\Dialogs\\ 2001F CKbUiRegistryDeleteAccess",
            L"delete AllAnavDialogs",
            L"create Software\\ktui test\\Dialogs\\AllAnavDialogs 20006 CKbUiRegistryWriteAccess",
            L"set PlacesOrder0", L"set PlacesOrder0Display", L"set PlacesOrder0Ext", L"set PlacesOrder1",
            L"set PlacesOrder1Display", L"set PlacesOrder1Ext", L"set PlacesOrder2"}));
}

TEST_F(PlaceListStoring, ReadsForReadingOnly) {
    open();
    EXPECT_TRUE(registryCalls.empty()) << "a missing key is not made";
}

TEST_F(PlaceListStoring, WithoutAKeyItIsNotStoredAndStaysChanged) {
    openWith({L"one", L"two"});
    drag(1, in(0));
    refusedKey = L"Software\\ktui test\\Dialogs\\AllAnavDialogs";
    EXPECT_EQ(list->SavePlaces(0), 0);
    EXPECT_TRUE(messages().empty());
    refusedKey.clear();
    EXPECT_EQ(list->SavePlaces(0), 1);
    open();
    EXPECT_EQ(captions(), L"two|one");
}

TEST_F(PlaceListStoring, WhereTheKeyStaysTheNewValuesGoOverTheOld) {
    openWith({L"one", L"two"});
    storeValue(L"other", L"stays");
    drag(1, in(0));
    deletes = false;
    EXPECT_EQ(list->SavePlaces(0), 1);
    const std::vector<std::wstring> stored = storedValues();
    EXPECT_NE(std::find(stored.begin(), stored.end(), L"other=stays"), stored.end());
    open();
    EXPECT_EQ(captions(), L"two|one");
}

TEST_F(PlaceListTest, SelectsTheRowOfTheFolderShown) {
    openWith({L"one", L"two", L"Three"});
    platform.folder = folder(L"THREE");
    ui_test::pump();
    list->SyncSelection();
    EXPECT_EQ(list->GetCurSel(), 2);
    EXPECT_TRUE(::GetUpdateRect(list->m_hWnd, nullptr, FALSE));
    ui_test::pump();
    list->SyncSelection();
    EXPECT_FALSE(::GetUpdateRect(list->m_hWnd, nullptr, FALSE)) << "nothing changed";
    platform.folder = scratch;
    list->SyncSelection();
    EXPECT_EQ(list->GetCurSel(), -1);
}

TEST_F(PlaceListTest, OfEqualRowsTheFirstIsSelected) {
    openWith({L"two", L"one", L"one"});
    platform.folder = folder(L"one");
    list->SyncSelection();
    EXPECT_EQ(list->GetCurSel(), 1);
}

TEST_F(PlaceListTest, NoFolderSelectsNoRow) {
    open(L"");
    list->SetCurSel(1);
    platform.folder = L"";
    list->SyncSelection();
    EXPECT_EQ(list->GetCurSel(), -1) << "although the path of the first row is empty too";
}

TEST_F(PlaceListTest, TheFolderIsAskedForInThreeWays) {
    open();
    platform.asked.clear();
    list->SyncSelection();
    EXPECT_EQ(platform.asked, (std::vector<std::string>{"folder"}));
    platform.asked.clear();
    platform.knowsFolder = false;
    platform.file = path(2).c_str();
    list->SyncSelection();
    EXPECT_EQ(platform.asked, (std::vector<std::string>{"folder", "file"}));
    EXPECT_EQ(list->GetCurSel(), 2);
    platform.asked.clear();
    platform.knowsFile = false;
    platform.listFolder = CSIDL_NETWORK;
    list->SyncSelection();
    EXPECT_EQ(platform.asked, (std::vector<std::string>{"folder", "file", "list", "list"}));
    EXPECT_EQ(list->GetCurSel(), 4) << "a virtual folder by its class id";
    platform.listFolder = -1;
    list->SyncSelection();
    EXPECT_EQ(list->GetCurSel(), -1);
}

TEST_F(PlaceListTest, AClickGoesToTheFolderAndTellsTheOwner) {
    openWith({L"one", L"two"});
    click(1);
    EXPECT_EQ(list->GetCurSel(), 1);
    EXPECT_EQ(platform.visited, (std::vector<std::wstring>{folder(L"two").GetString()}));
    EXPECT_EQ(dialog.folderChanges, (std::vector<std::wstring>{folder(L"two").GetString()}))
        << "once it is there";
    EXPECT_EQ(ui_test::text_of(::GetDlgItem(platform.m_hWnd, cmb13)), L"typed");
    EXPECT_TRUE(::GetUpdateRect(list->m_hWnd, nullptr, FALSE));
    EXPECT_FALSE(savesSomething());
}

TEST_F(PlaceListTest, AClickOnTheFolderShownGoesNowhereUnlessItsCaseDiffers) {
    openWith({L"one", L"two"});
    platform.folder = folder(L"two");
    click(1);
    EXPECT_TRUE(platform.visited.empty());
    EXPECT_TRUE(dialog.folderChanges.empty());
    platform.folder = folder(L"TWO");
    click(1);
    EXPECT_EQ(platform.visited.size(), 1u);
}

TEST_F(PlaceListTest, AClickOnAnEmptyPathOrAFileGoesNowhere) {
    open(L"");
    click(0);
    EXPECT_EQ(list->GetCurSel(), 0);
    EXPECT_TRUE(platform.visited.empty());
    list->AddPlace(folder(L"file.dwg"), L"file", 0, -1);
    click(5);
    EXPECT_EQ(list->GetCurSel(), 5);
    EXPECT_TRUE(platform.visited.empty());
    EXPECT_TRUE(dialog.folderChanges.empty());
}

TEST_F(PlaceListTest, WhatHasNoAttributesIsGoneTo) {
    openWith({L"gone"});
    const int network = list->AddPlace({}, {}, kNetworkPlace, -1);
    click(0);
    click(network);
    EXPECT_EQ(platform.visited, (std::vector<std::wstring>{folder(L"gone").GetString(), path(network)}));
}

TEST_F(PlaceListTest, TheEndOfADragGoesNowhere) {
    openWith({L"one", L"two", L"Three"});
    list->SetCurSel(1);
    drag(2, in(0));
    EXPECT_EQ(captions(), L"Three|one|two");
    EXPECT_TRUE(platform.visited.empty());
    EXPECT_TRUE(dialog.folderChanges.empty());
}

TEST_F(PlaceListTest, AReleaseWithNothingSelectedGoesNowhere) {
    openWith({L"one", L"two"});
    send(WM_LBUTTONUP, in(1));
    EXPECT_TRUE(platform.visited.empty());
    EXPECT_TRUE(dialog.folderChanges.empty());
}

TEST_F(PlaceListTest, FreedItLeavesAPlainEmptyList) {
    openWith({L"one", L"two"});
    list->FreePlaces();
    EXPECT_EQ(list->m_hWnd, nullptr);
    const HWND control = ::GetDlgItem(child, 57015);
    EXPECT_EQ(::SendMessageW(control, LB_GETCOUNT, 0, 0), 0);
    EXPECT_EQ(CWnd::FromHandlePermanent(control), nullptr);
    list->FreePlaces();
    open();
    EXPECT_EQ(list->GetCount(), 2) << "and can be taken again";
}

TEST_F(PlaceListTest, DestroyedWithItsWindowItHoldsNothing) {
    openWith({L"one"});
    ::DestroyWindow(list->m_hWnd);
    EXPECT_EQ(list->m_hWnd, nullptr);
    list->FreePlaces();
}

TEST_F(PlaceListTest, TakesFilesThatAreDropped) {
    open();
    EXPECT_TRUE(list->GetExStyle() & WS_EX_ACCEPTFILES);
}

struct OpenedPlaces : CPlaceList {
    static long long freePlaces() { return ui_test::slotOf(&CPlaceList::FreePlaces); }
    static long long dropped() { return ui_test::slotOf(&OpenedPlaces::Dropped); }
};

TEST(PlaceListSlots, FreeingStandsBehindTheDraggedListsOperations) {
    EXPECT_EQ(OpenedPlaces::freePlaces(), OpenedPlaces::dropped() + 1);
}

}  // namespace
