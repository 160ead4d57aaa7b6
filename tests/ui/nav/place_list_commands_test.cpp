// The menu of the Places list, the dialog of a place, and folders that are dropped.
#include "in_language.h"
#include "place_fixture.h"
#include "without_strings.h"

#include <functional>

#include <ktut.h>

namespace {

constexpr int kRemove = 1125, kAddCurrent = 1126, kAdd = 1127, kProperties = 1128, kRestore = 1129;

struct MenuItem {
    UINT command;
    std::wstring text;
    bool isGrey;
    bool operator==(const MenuItem&) const = default;
};

/// The menu last tracked, and how.
std::vector<MenuItem> menuItems;
UINT menuFlags;
CPoint menuPlace;
HWND menuOwner;

BOOL WINAPI notesMenu(HMENU menu, UINT flags, int x, int y, int, HWND owner, const RECT*) {
    menuItems.clear();
    for (int i = 0; i < ::GetMenuItemCount(menu); ++i) {
        wchar_t text[100] = {};
        MENUITEMINFOW info = {};
        info.cbSize = sizeof info;
        info.fMask = MIIM_ID | MIIM_STATE | MIIM_FTYPE | MIIM_STRING;
        info.dwTypeData = text;
        info.cch = 100;
        ::GetMenuItemInfoW(menu, static_cast<UINT>(i), TRUE, &info);
        const bool isSeparator = (info.fType & MFT_SEPARATOR) != 0;
        menuItems.push_back({isSeparator ? 0 : info.wID, isSeparator ? L"-" : text,
                             !isSeparator && (info.fState & MFS_GRAYED) != 0});
    }
    menuFlags = flags;
    menuPlace = {x, y};
    menuOwner = owner;
    return TRUE;
}

class PlaceListCommands : public PlacesTest {
protected:
    /// Asks for the menu with the mouse at a point of the list, and doesn't choose.
    void askForMenu(CPoint at) {
        pointAt(at);
        const ui_test::ReplacedImport notes(::GetModuleHandleW(L"kmfc.dll"), "TrackPopupMenu", &notesMenu);
        ASSERT_TRUE(notes.isThere());
        CPoint screen = at;
        list->ClientToScreen(&screen);
        menuItems.clear();
        list->SendMessage(WM_CONTEXTMENU, reinterpret_cast<WPARAM>(list->m_hWnd),
                          MAKELPARAM(screen.x, screen.y));
    }
    bool isGrey(UINT command) {
        for (const MenuItem& each : menuItems)
            if (each.command == command) return each.isGrey;
        ADD_FAILURE() << command;
        return false;
    }
    static std::vector<MenuItem> entries() {
        return {{1125, L"R&emove", false}, {1126, L"Add &Current Folder", false},
                {1127, L"&Add", false},    {1128, L"&Properties", false},
                {0, L"-", false},          {1129, L"&Restore Standard Folders", false}};
    }
    void command(int id) { list->SendMessage(WM_COMMAND, static_cast<WPARAM>(id)); }
    void choose(int id, CPoint at) {
        askForMenu(at);
        command(id);
    }
    /// Answers the dialog of a place, which `act` has to end; gives up on one that doesn't come.
    static void inDialog(const wchar_t* title, std::function<void(HWND)> act) {
        ui_test::when_dialog(title, std::move(act));
    }
    static void type(HWND box, const CString& display, const CString& path) {
        ::SetDlgItemTextW(box, 57026, display);
        ::SetDlgItemTextW(box, 57027, path);
    }
    static void press(HWND box, int button) {
        ::SendMessageW(box, WM_COMMAND, static_cast<WPARAM>(button), 0);
    }
};

TEST_F(PlaceListCommands, TheMenuHasItsEntriesInOrder) {
    openWith({L"one", L"two"});
    platform.folder = folder(L"Three");
    askForMenu(in(1));
    EXPECT_EQ(menuItems, entries());
    CPoint place = in(1);
    list->ClientToScreen(&place);
    EXPECT_EQ(menuPlace, place);
    EXPECT_EQ(menuOwner, list->m_hWnd);
    EXPECT_EQ(menuFlags, static_cast<UINT>(TPM_RIGHTBUTTON)) << "the list gets the command";
}

TEST_F(PlaceListCommands, TheTextsAreBuiltInWhereTheLibraryHasNone) {
    const ui_test::WithoutStrings strings;
    open();
    EXPECT_EQ(item(0).m_display, L"History");
    openWith({L"one", L"two"});
    platform.folder = folder(L"Three");
    askForMenu(in(1));
    EXPECT_EQ(menuItems, entries());
    inDialog(L"Places Item Properties", [](HWND box) {
        ::SetDlgItemTextW(box, 57027, L"no folder");
        press(box, IDOK);
        press(box, IDCANCEL);
    });
    command(kProperties);
    command(kRemove);
    command(kRestore);
    list->SavePlaces(1);
    std::vector<std::wstring> texts;
    for (const Shown& each : messages()) texts.push_back(each.text);
    EXPECT_EQ(texts,
              (std::vector<std::wstring>{
                  L"The path entered is invalid. It must be a full path to an existing folder.",
                  L"Are you sure you want to remove '" + std::wstring(folder(L"two")) + L"' from Places?",
                  L"Would you like to save the changes you made to the Places list?"}));
}

TEST_F(PlaceListCommands, EverythingIsSaidInTheUsersLanguage) {
    const ui_test::InLanguage chinese(ui_test::kChinese);
    openWith({L"one", L"two"});
    platform.folder = folder(L"Three");
    askForMenu(in(1));
    EXPECT_EQ(menuItems, (std::vector<MenuItem>{{1125, L"删除(&E)", false},
                                                {1126, L"添加当前文件夹(&C)", false},
                                                {1127, L"添加(&A)", false},
                                                {1128, L"特性(&P)", false},
                                                {0, L"-", false},
                                                {1129, L"恢复标准文件夹(&R)", false}}));
    inDialog(L"位置项特性", [](HWND box) {
        ::SetDlgItemTextW(box, 57027, L"no folder");
        press(box, IDOK);
        press(box, IDCANCEL);
    });
    command(kProperties);
    command(kRemove);
    list->SavePlaces(1);
    const std::wstring two = folder(L"two").GetString();
    EXPECT_EQ(messages(),
              (std::vector<Shown>{
                  {false, L"输入的路径无效。必须是现有文件夹的完整路径。", MB_OK},
                  {false, L"确定要从位置列表中删除“" + two + L"”吗？", MB_YESNO | MB_ICONEXCLAMATION},
                  {false, L"是否保存对位置列表所做的更改？", MB_YESNO | MB_ICONQUESTION}}));
}

TEST_F(PlaceListCommands, WithoutARowRemoveAndPropertiesAreGrey) {
    openWith({L"one", L"two"});
    askForMenu(beneath());
    EXPECT_TRUE(isGrey(kRemove));
    EXPECT_TRUE(isGrey(kProperties));
    EXPECT_FALSE(isGrey(kAddCurrent));
    EXPECT_FALSE(isGrey(kAdd));
    EXPECT_FALSE(isGrey(kRestore));
}

TEST_F(PlaceListCommands, AStandardFolderHasNoPropertiesButCanBeRemoved) {
    open();
    for (int row = 0; row < 5; ++row) {
        askForMenu(in(row));
        EXPECT_FALSE(isGrey(kRemove)) << row;
        EXPECT_TRUE(isGrey(kProperties)) << row;
    }
}

TEST_F(PlaceListCommands, TheCurrentFolderIsAddedOnlyOnce) {
    openWith({L"one", L"two"});
    platform.folder = folder(L"TWO");
    askForMenu(in(0));
    EXPECT_TRUE(isGrey(kAddCurrent)) << "whatever the case";
}

TEST_F(PlaceListCommands, AskedForByAKeyTheMenuComesAtTheMouse) {
    openWith({L"one", L"two"});
    askForMenu(in(1));
    const CPoint place = menuPlace;
    menuPlace = {};
    const ui_test::ReplacedImport notes(::GetModuleHandleW(L"kmfc.dll"), "TrackPopupMenu", &notesMenu);
    list->SendMessage(WM_CONTEXTMENU, reinterpret_cast<WPARAM>(list->m_hWnd), MAKELPARAM(-1, -1));
    EXPECT_EQ(menuPlace, place);
    EXPECT_FALSE(isGrey(kRemove));
}

TEST_F(PlaceListCommands, TheMenuWorksByKeys) {
    openWith({L"one", L"two"});
    platform.folder = folder(L"Three");
    pointAt(in(1));
    list->SetFocus();
    ui_test::when_window(
        [](HWND window) {
            wchar_t name[16] = {};
            ::GetClassNameW(window, name, 16);
            return ::lstrcmpW(name, L"#32768") == 0;
        },
        [this](HWND) {
            for (const WPARAM key : {VK_DOWN, VK_DOWN, VK_RETURN})
                ::PostMessageW(list->m_hWnd, WM_KEYDOWN, key, 0);
        });
    CPoint screen = in(1);
    list->ClientToScreen(&screen);
    list->SendMessage(WM_CONTEXTMENU, reinterpret_cast<WPARAM>(list->m_hWnd), MAKELPARAM(screen.x, screen.y));
    EXPECT_TRUE(ui_test::pump_until([this] { return list->GetCount() == 3; }));
    EXPECT_EQ(path(1), folder(L"Three").GetString());
}

TEST_F(PlaceListCommands, RemovingAsksByThePath) {
    openWith({L"one", L"two", L"Three"});
    messageAnswer() = IDNO;
    choose(kRemove, in(1));
    EXPECT_EQ(
        messages(),
        (std::vector<Shown>{
            {false, L"Are you sure you want to remove '" + std::wstring(folder(L"two")) + L"' from Places?",
             MB_YESNO | MB_ICONEXCLAMATION}}));
    EXPECT_EQ(captions(), L"one|two|Three");
    EXPECT_FALSE(savesSomething());
    messageAnswer() = IDYES;
    choose(kRemove, in(1));
    EXPECT_EQ(captions(), L"one|Three");
    EXPECT_TRUE(savesSomething());
}

TEST_F(PlaceListCommands, RemovingWithoutARowDoesNothing) {
    openWith({L"one"});
    choose(kRemove, beneath());
    EXPECT_TRUE(messages().empty());
    EXPECT_EQ(list->GetCount(), 1);
}

TEST_F(PlaceListCommands, ARemovedStandardFolderStaysAwayUntilItIsRestored) {
    open();
    choose(kRemove, in(3));
    EXPECT_EQ(list->SavePlaces(0), 1);
    open();
    EXPECT_EQ(types(), (std::vector<int>{1, 2, 3, 5}));
    command(kRestore);
    EXPECT_EQ(types(), (std::vector<int>{1, 2, 3, 5, 4})) << "at the end";
    EXPECT_TRUE(savesSomething());
    command(kRestore);
    EXPECT_EQ(list->GetCount(), 5);
    EXPECT_FALSE(savesSomething()) << "there was nothing to restore";
}

TEST_F(PlaceListCommands, RestoresAllThatAreMissingInTheirOrder) {
    openWith({L"one"});
    list->AddPlace({}, {}, kFavoritesPlace, 0);
    command(kRestore);
    EXPECT_EQ(types(), (std::vector<int>{3, 0, 1, 2, 4, 5}));
}

TEST_F(PlaceListCommands, TheCurrentFolderGoesBeforeTheRowOfTheMenu) {
    openWith({L"one", L"two"});
    platform.folder = folder(L"Three");
    choose(kAddCurrent, in(1));
    EXPECT_EQ(captions(), L"one|Three|two");
    EXPECT_EQ(path(1), folder(L"Three").GetString());
    EXPECT_EQ(item(1).m_type, 0);
    EXPECT_EQ(list->GetCurSel(), 1);
    EXPECT_TRUE(savesSomething());
    platform.folder = scratch;
    choose(kAddCurrent, beneath());
    EXPECT_EQ(captions(), L"one|Three|two|ktui places");
    EXPECT_EQ(list->GetCurSel(), 3);
}

TEST_F(PlaceListCommands, AVirtualCurrentFolderIsAddedByItsClassId) {
    openWith({L"one"});
    platform.knowsFolder = platform.knowsFile = false;
    platform.listFolder = CSIDL_NETWORK;
    choose(kAddCurrent, beneath());
    EXPECT_EQ(path(1).substr(0, 3), L"::{");
}

TEST_F(PlaceListCommands, APlaceIsAddedByItsDialog) {
    openWith({L"one", L"two"});
    inDialog(L"Add Places Item", [this](HWND box) {
        EXPECT_EQ(ui_test::text_of(::GetDlgItem(box, 57026)), L"");
        EXPECT_EQ(ui_test::text_of(::GetDlgItem(box, 57027)), L"");
        type(box, L"my own", folder(L"Three"));
        press(box, IDOK);
    });
    choose(kAdd, in(1));
    EXPECT_EQ(captions(), L"one|my own|two");
    EXPECT_EQ(path(1), folder(L"Three").GetString());
    EXPECT_EQ(item(1).m_type, 0);
    EXPECT_NE(item(1).m_icon, nullptr);
    EXPECT_TRUE(savesSomething());
    inDialog(L"Add Places Item", [this](HWND box) {
        type(box, L"", folder(L"Three") + L"\\");
        press(box, IDOK);
    });
    choose(kAdd, beneath());
    EXPECT_EQ(captions(), L"one|my own|two|") << "the caption may be empty";
    EXPECT_EQ(path(3), folder(L"Three").GetString()) << "without its backslash";
    EXPECT_TRUE(messages().empty());
}

TEST_F(PlaceListCommands, ACancelledDialogAddsAndChangesNothing) {
    openWith({L"one"});
    const auto cancel = [this](HWND box) {
        type(box, L"other", folder(L"two"));
        press(box, IDCANCEL);
    };
    inDialog(L"Add Places Item", cancel);
    choose(kAdd, in(0));
    inDialog(L"Places Item Properties", cancel);
    choose(kProperties, in(0));
    EXPECT_EQ(captions(), L"one");
    EXPECT_EQ(path(0), folder(L"one").GetString());
    EXPECT_FALSE(savesSomething());
}

TEST_F(PlaceListCommands, PropertiesChangeCaptionAndPath) {
    openWith({L"one", L"two"});
    inDialog(L"Places Item Properties", [this](HWND box) {
        EXPECT_EQ(ui_test::text_of(::GetDlgItem(box, 57026)), L"two");
        EXPECT_EQ(ui_test::text_of(::GetDlgItem(box, 57027)), folder(L"two"));
        type(box, L"second", folder(L"Three") + L"\\");
        press(box, IDOK);
    });
    ui_test::pump();
    choose(kProperties, in(1));
    EXPECT_EQ(captions(), L"one|second");
    EXPECT_EQ(path(1), folder(L"Three").GetString());
    EXPECT_TRUE(savesSomething());
}

int iconsAsked = 0;

DWORD_PTR WINAPI countsIcons(LPCWSTR path, DWORD attributes, SHFILEINFOW* info, UINT size, UINT flags) {
    if (flags == SHGFI_ICON) ++iconsAsked;
    // By its name: this module's own calls come here.
    static const auto asks = reinterpret_cast<decltype(&::SHGetFileInfoW)>(
        reinterpret_cast<void*>(::GetProcAddress(::GetModuleHandleW(L"shell32.dll"), "SHGetFileInfoW")));
    return asks(path, attributes, info, size, flags);
}

TEST_F(PlaceListCommands, TheIconIsFetchedAnewOnlyForAnotherPath) {
    openWith({L"one", L"two"});
    const ui_test::ReplacedImport counts(::GetModuleHandleW(nullptr), "SHGetFileInfoW", &countsIcons);
    ASSERT_TRUE(counts.isThere());
    iconsAsked = 0;
    inDialog(L"Places Item Properties", [this](HWND box) {
        type(box, L"second", folder(L"TWO"));
        press(box, IDOK);
    });
    choose(kProperties, in(1));
    EXPECT_EQ(iconsAsked, 0);
    EXPECT_EQ(path(1), folder(L"TWO").GetString()) << "stored all the same";
    inDialog(L"Places Item Properties", [this](HWND box) {
        type(box, L"second", folder(L"one"));
        press(box, IDOK);
    });
    choose(kProperties, in(1));
    EXPECT_EQ(iconsAsked, 1);
    EXPECT_NE(item(1).m_icon, nullptr);
}

TEST_F(PlaceListCommands, ARowWhosePropertiesChangedIsShownAnew) {
    openWith({L"one", L"two"});
    inDialog(L"Places Item Properties", [](HWND box) {
        ::SetDlgItemTextW(box, 57026, L"other");
        press(box, IDOK);
    });
    askForMenu(in(1));
    const ui_test::ReplacedImport notes(::GetModuleHandleW(L"kmfc.dll"), "TrackPopupMenu", &notesMenu);
    command(kProperties);
    CRect update;
    ::GetUpdateRect(list->m_hWnd, &update, FALSE);
    EXPECT_TRUE(update.PtInRect(in(1)));
}

TEST_F(PlaceListCommands, PropertiesWithoutARowDoNothing) {
    openWith({L"one"});
    askForMenu(beneath());
    command(kProperties);
    EXPECT_FALSE(savesSomething());
}

TEST_F(PlaceListCommands, APathThatIsNoFolderIsRefused) {
    openWith({L"one"});
    int refused = 0;
    inDialog(L"Places Item Properties", [&](HWND box) {
        for (const CString& wrong : {CString(), folder(L"gone"), folder(L"file.dwg")}) {
            type(box, L"x", wrong);
            ::SetFocus(::GetDlgItem(box, 57026));
            press(box, IDOK);
            EXPECT_TRUE(::IsWindow(box));
            EXPECT_EQ(::GetFocus(), ::GetDlgItem(box, 57027));
            ++refused;
        }
        press(box, IDCANCEL);
    });
    choose(kProperties, in(0));
    EXPECT_EQ(refused, 3);
    const Shown said = {false, L"The path entered is invalid. It must be a full path to an existing folder.",
                        MB_OK};
    EXPECT_EQ(messages(), (std::vector<Shown>{said, said, said}));
    EXPECT_EQ(path(0), folder(L"one").GetString());
    EXPECT_FALSE(savesSomething());
}

TEST_F(PlaceListCommands, ARootLosesItsBackslash) {
    openWith({L"one"});
    inDialog(L"Add Places Item", [](HWND box) {
        type(box, L"disk", L"C:\\");
        press(box, IDOK);
    });
    choose(kAdd, in(0));
    EXPECT_EQ(path(0), L"C:");
}

TEST_F(PlaceListCommands, OnlyOneBackslashIsTaken) {
    openWith({L"one"});
    inDialog(L"Add Places Item", [this](HWND box) {
        type(box, L"x", folder(L"two") + L"\\\\");
        press(box, IDOK);
    });
    choose(kAdd, in(0));
    EXPECT_EQ(path(0), (folder(L"two") + L"\\").GetString());
}

TEST_F(PlaceListCommands, TheDialogKeepsItsPlaceAfterOkOnly) {
    openWith({L"one"});
    const auto stored = [] {
        HKEY dialogs = nullptr;
        DWORD keys = 0;
        if (::RegOpenKeyExW(HKEY_CURRENT_USER, L"Software\\ktui test profile", 0, KEY_READ, &dialogs))
            return false;
        ::RegQueryInfoKeyW(dialogs, nullptr, nullptr, nullptr, &keys, nullptr, nullptr, nullptr, nullptr,
                           nullptr, nullptr, nullptr);
        ::RegCloseKey(dialogs);
        return keys > 0;
    };
    ktutSetProfileFileName(L"Software\\ktui test profile");
    inDialog(L"Add Places Item", [](HWND box) { press(box, IDCANCEL); });
    choose(kAdd, in(0));
    EXPECT_FALSE(stored());
    inDialog(L"Add Places Item", [this](HWND box) {
        type(box, L"x", folder(L"two"));
        press(box, IDOK);
    });
    choose(kAdd, in(0));
    EXPECT_TRUE(stored());
    ktutSetProfileFileName(nullptr);
    ::RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\ktui test profile");
}

TEST_F(PlaceListCommands, DroppedFoldersGoBeforeTheRowUnderTheMouse) {
    openWith({L"one"});
    list->AddPlace(L"C:\\", L"disk", 0, -1);
    pointAt(in(1));
    drop({folder(L"two"), folder(L"file.dwg"), folder(L"gone"), folder(L"Three")});
    EXPECT_EQ(captions(), L"one|two|Three|disk");
    EXPECT_EQ(types(), (std::vector<int>{0, 0, 0, 0}));
    EXPECT_EQ(path(1), folder(L"two").GetString());
    EXPECT_TRUE(savesSomething());
}

TEST_F(PlaceListCommands, DroppedBeneathTheRowsTheyGoToTheEnd) {
    openWith({L"one"});
    pointAt(beneath());
    drop({folder(L"two"), folder(L"Three")});
    EXPECT_EQ(captions(), L"one|two|Three");
}

WNDPROC formerProcedure = nullptr;

/// Tells the last row for the space beneath it, as some systems do.
LRESULT CALLBACK lastRowForAll(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == LB_ITEMFROMPOINT) return MAKELRESULT(::SendMessageW(window, LB_GETCOUNT, 0, 0) - 1, FALSE);
    return ::CallWindowProcW(formerProcedure, window, message, wParam, lParam);
}

TEST_F(PlaceListCommands, ASystemThatTellsTheLastRowForTheSpaceBeneathIsNotBelieved) {
    openWith({L"one"});
    formerProcedure = reinterpret_cast<WNDPROC>(
        ::SetWindowLongPtrW(list->m_hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&lastRowForAll)));
    pointAt(beneath());
    drop({folder(L"two")});
    pointAt(in(1));
    drop({folder(L"Three")});
    ::SetWindowLongPtrW(list->m_hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(formerProcedure));
    EXPECT_EQ(captions(), L"one|Three|two") << "the end, then before the last row";
}

TEST_F(PlaceListCommands, ADroppedFileIsNoPlace) {
    openWith({L"one"});
    pointAt(in(0));
    drop({folder(L"file.dwg")});
    EXPECT_EQ(list->GetCount(), 1);
    EXPECT_FALSE(savesSomething());
}

/// A shortcut in the scratch folder, deleted at the end.
class Shortcut {
public:
    Shortcut(const CString& path, const CString& target) : m_path(path) {
        IShellLinkW* link = nullptr;
        IPersistFile* file = nullptr;
        EXPECT_EQ(::CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_ALL, IID_IShellLinkW,
                                     reinterpret_cast<void**>(&link)),
                  S_OK);
        link->SetPath(target);
        link->QueryInterface(IID_IPersistFile, reinterpret_cast<void**>(&file));
        EXPECT_EQ(file->Save(path, TRUE), S_OK);
        file->Release();
        link->Release();
    }
    ~Shortcut() { ::DeleteFileW(m_path); }
    const CString& path() const { return m_path; }

private:
    CString m_path;
};

TEST_F(PlaceListCommands, ADroppedShortcutStandsForItsFolder) {
    const Shortcut toFolder(folder(L"to folder.LNK"), folder(L"two"));
    const Shortcut toFile(folder(L"to file.lnk"), folder(L"file.dwg"));
    openWith({L"one"});
    pointAt(beneath());
    drop({toFile.path(), toFolder.path()});
    EXPECT_EQ(captions(), L"one|two");
    EXPECT_EQ(path(1), folder(L"two").GetString());
    EXPECT_TRUE(savesSomething());
}

TEST_F(PlaceListCommands, AShortcutThatCannotBeReadIsSkipped) {
    openWith({L"one"});
    ::CreateDirectoryW(folder(L"no.lnk"), nullptr);
    pointAt(in(0));
    drop({folder(L"no.lnk"), folder(L"two")});
    EXPECT_EQ(captions(), L"two|one") << "not even a folder of such a name is taken";
    ::RemoveDirectoryW(folder(L"no.lnk"));
}

int dropsFinished = 0;

void WINAPI countsFinish(HDROP drop) {
    ++dropsFinished;
    ::GlobalFree(drop);
}

TEST_F(PlaceListCommands, EachDropIsFinished) {
    openWith({L"one"});
    const ui_test::ReplacedImport counts(::GetModuleHandleW(nullptr), "DragFinish", &countsFinish);
    ASSERT_TRUE(counts.isThere());
    dropsFinished = 0;
    drop({folder(L"two")});
    drop({folder(L"gone")});
    EXPECT_EQ(dropsFinished, 2);
}

TEST(PlaceListTexts, StandInTheResourceLibraryInBothLanguages) {
    ui_test::expect_library_texts({
        {54501, L"Places Item Properties", L"位置项特性"},
        {54502, L"The path entered is invalid. It must be a full path to an existing folder.",
         L"输入的路径无效。必须是现有文件夹的完整路径。"},
        {54503, L"Are you sure you want to remove '%s' from Places?", L"确定要从位置列表中删除“%s”吗？"},
        {54504, L"R&emove", L"删除(&E)"},
        {54505, L"Add &Current Folder", L"添加当前文件夹(&C)"},
        {54506, L"&Add", L"添加(&A)"},
        {54507, L"&Properties", L"特性(&P)"},
        {54508, L"&Restore Standard Folders", L"恢复标准文件夹(&R)"},
        {54509, L"Would you like to save the changes you made to the Places list?",
         L"是否保存对位置列表所做的更改？"},
        {54510, L"History", L"历史记录"},
    });
}

}  // namespace
