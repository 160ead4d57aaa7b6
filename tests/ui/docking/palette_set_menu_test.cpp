// The menu of a tab, renaming, and what is kept of a set.
#include "in_language.h"
#include "palette_fixture.h"
#include "replaced_import.h"

namespace docking_test {

/// The user's settings; every request is noted, and keys can be refused.
class WatchedSettings : public CSettingsStore {
    DECLARE_DYNCREATE(WatchedSettings)

public:
    /// In force as long as it lives.
    struct InForce {
        InForce() {
            requests().clear();
            CSettingsStoreSP::SetRuntimeClass(RUNTIME_CLASS(WatchedSettings));
        }
        ~InForce() { CSettingsStoreSP::SetRuntimeClass(nullptr); }
    };
    static std::vector<std::wstring>& requests() {
        static std::vector<std::wstring> all;
        return all;
    }

    BOOL Open(LPCTSTR path) override {
        note(L"open ", path);
        return CSettingsStore::Open(path);
    }
    BOOL CreateKey(LPCTSTR path) override {
        note(L"create ", path);
        return CSettingsStore::CreateKey(path);
    }

private:
    void note(const wchar_t* verb, LPCTSTR path) {
        requests().push_back(std::wstring(verb) + path + (m_bAdmin ? L" admin" : L"") +
                             (m_bReadOnly ? L" readonly" : L""));
    }
};

IMPLEMENT_DYNCREATE(WatchedSettings, CSettingsStore)

}  // namespace docking_test

namespace {

using namespace docking_test;

struct TrackedMenu {
    UINT flags = 99;
    CPoint place;
    HWND owner = nullptr;
    int times = 0;
} tracked;

BOOL WINAPI noteMenu(HMENU, UINT flags, int x, int y, int, HWND owner, const RECT*) {
    tracked = {flags, CPoint(x, y), owner, tracked.times + 1};
    return TRUE;
}

LRESULT CALLBACK refuseNameEdits(int code, WPARAM window, LPARAM data) {
    if (code == HCBT_CREATEWND) {
        wchar_t name[20] = {};
        ::GetClassNameW(reinterpret_cast<HWND>(window), name, 20);
        if (std::wstring(name).substr(0, 11) == L"KH:NameEdit") return 1;
    }
    return ::CallNextHookEx(nullptr, code, window, data);
}

struct PaletteSetMenu : PaletteSetTest {
    struct Set : OpenSet {
        std::vector<std::wstring> asked;
        std::wstring text;
        UINT id = 0;
        int count = 0;
        std::function<void()> whileOpen;

        int AddContextMenuItems(CMenu* menu, int hitType, int index) override {
            asked.push_back(std::to_wstring(hitType) + L" " + std::to_wstring(index));
            CString label;
            menu->GetMenuString(0, label, MF_BYPOSITION);
            text = label;
            id = menu->GetMenuItemID(0);
            count = static_cast<int>(menu->GetMenuItemCount());
            const int result = OpenSet::AddContextMenuItems(menu, hitType, index);
            // Nothing is left to show, so tracking ends at once.
            while (menu->GetMenuItemCount() > 0) menu->DeleteMenu(0, MF_BYPOSITION);
            return result;
        }
    } menuSet;

    void makeMenuSet() {
        ASSERT_TRUE(menuSet.CKbUiPaletteSet::Create(L"Menu", WS_CHILD | WS_VISIBLE | CBRS_LEFT,
                                                    CRect(0, 0, 200, 400), frame, 0));
        menuSet.AddPalette(new TestPalette(L"A"));
        menuSet.AddPalette(new TestPalette(L"B"));
        menuSet.SetActivePalette(menuSet.GetPalette(0));
    }
    CPoint placeIn(OpenSet& of, int index) {
        CXToolTabCtrl& tabs = of.m_data->m_tabs;
        CRect client;
        tabs.GetClientRect(&client);
        const CRect tab = tabs.GetTab(index)->m_rect;
        CPoint place((tab.top + tab.bottom) / 2, client.Height() - (tab.left + tab.right) / 2);
        tabs.ClientToScreen(&place);
        return place;
    }
};

TEST_F(PaletteSetMenu, ARightClickOnATabOffersToRenameItsPalette) {
    makeMenuSet();
    const CPoint place = placeIn(menuSet, 1);
    CXToolTabCtrl& tabs = menuSet.m_data->m_tabs;
    tabs.SendMessage(WM_CONTEXTMENU, reinterpret_cast<WPARAM>(tabs.m_hWnd), MAKELPARAM(place.x, place.y));
    EXPECT_EQ(menuSet.asked, std::vector<std::wstring>{L"6 1"});
    EXPECT_EQ(menuSet.count, 1);
    EXPECT_EQ(menuSet.id, 32772u);
    EXPECT_EQ(menuSet.text, L"&Rename Palette");
    EXPECT_EQ(menuSet.m_data->m_contextPalette, 1);
}

TEST_F(PaletteSetMenu, IsTrackedAtThePointForTheWindowThatWasClicked) {
    makeMenuSet();
    const CPoint place = placeIn(menuSet, 1);
    CXToolTabCtrl& tabs = menuSet.m_data->m_tabs;
    const ui_test::ReplacedImport notes(::GetModuleHandleW(L"kmfc.dll"), "TrackPopupMenu", &noteMenu);
    ASSERT_TRUE(notes.isThere());
    tracked = {};
    tabs.SendMessage(WM_CONTEXTMENU, reinterpret_cast<WPARAM>(tabs.m_hWnd), MAKELPARAM(place.x, place.y));
    EXPECT_EQ(tracked.times, 1);
    EXPECT_EQ(tracked.flags, 0u);
    EXPECT_TRUE(tracked.place == place);
    EXPECT_EQ(tracked.owner, tabs.m_hWnd);
}

TEST_F(PaletteSetMenu, ChoosingItsItemRenamesThePalette) {
    make();
    fill({L"A", L"B"});
    set.SetActivePalette(set.GetPalette(0));
    const CPoint place = tabPlace(1);
    // The menu takes the keys from the queue.
    strip().PostMessage(WM_KEYDOWN, VK_DOWN, 1);
    strip().PostMessage(WM_KEYDOWN, VK_RETURN, 1);
    ui_test::later([] { ::EndMenu(); }, 3000);
    strip().SendMessage(WM_CONTEXTMENU, reinterpret_cast<WPARAM>(strip().m_hWnd),
                        MAKELPARAM(place.x, place.y));
    ASSERT_TRUE(ui_test::pump_until([] { return openNameEdit() != nullptr; }));
    EXPECT_EQ(set.GetActivePaletteTabIndex(), 1);
    EXPECT_EQ(ui_test::text_of(openNameEdit()), L"A");
    endNameEdit(L"Z");
    EXPECT_EQ(set.GetPalette(1)->GetName(), L"Z");
}

TEST_F(PaletteSetMenu, ItsTextIsThereInBothLanguages) {
    ui_test::expect_library_texts({{54120, L"&Rename Palette", L"重命名选项板(&R)"}});
}

TEST_F(PaletteSetMenu, ARightClickElsewhereShowsNothing) {
    makeMenuSet();
    CRect area;
    menuSet.m_data->m_tabs.GetWindowRect(&area);
    menuSet.OnContextMenu(&menuSet, CPoint(area.left - 1, area.top + 20));
    menuSet.OnContextMenu(&menuSet, CPoint(area.left + 5, area.bottom - 2));
    menuSet.OnContextMenu(&menuSet, CPoint(-1, -1));
    EXPECT_TRUE(menuSet.asked.empty());
    EXPECT_EQ(menuSet.m_data->m_contextPalette, -1);
}

TEST_F(PaletteSetMenu, APaletteOfAnotherStyleHasNoMenu) {
    struct Other : CKbUiPalette {
        void restyle(unsigned style) { m_style = style; }
    };
    makeMenuSet();
    auto* other = new Other;
    other->SetName(L"Other");
    menuSet.AddPalette(other);
    menuSet.SetActivePalette(other);
    for (const unsigned style : {0u, 3u}) {
        other->restyle(style);
        menuSet.OnContextMenu(&menuSet, placeIn(menuSet, 0));
        EXPECT_TRUE(menuSet.asked.empty()) << style;
    }
}

TEST_F(PaletteSetMenu, ItemsAreDeletedOnlyForAPaletteThatCantBeRenamed) {
    struct Other : CKbUiPalette {
        void restyle(unsigned style) { m_style = style; }
    };
    make();
    auto* other = new Other;
    other->SetName(L"Other");
    set.AddPalette(other);
    CMenu menu;
    menu.CreatePopupMenu();
    menu.AppendMenu(MF_STRING, 5, L"Five");
    menu.AppendMenu(MF_STRING, 0, L"Zero");
    EXPECT_EQ(set.AddContextMenuItems(&menu, 5, 7), 1) << "another kind of hit";
    EXPECT_EQ(set.AddContextMenuItems(&menu, 6, 1), 0) << "no such palette";
    EXPECT_EQ(set.AddContextMenuItems(&menu, 6, 0), 1);
    EXPECT_EQ(menu.GetMenuItemCount(), 2u);
    other->restyle(2);
    CMenu expected;
    expected.CreatePopupMenu();
    expected.AppendMenu(MF_STRING, 5, L"Five");
    expected.AppendMenu(MF_STRING, 0, L"Zero");
    ::DeleteMenu(expected.m_hMenu, 0, 0x8004);
    EXPECT_EQ(set.AddContextMenuItems(&menu, 6, 0), 1);
    EXPECT_EQ(menu.GetMenuItemCount(), expected.GetMenuItemCount());
    EXPECT_EQ(menu.GetMenuItemID(0), expected.GetMenuItemID(0));
}

BOOL command(CKbUiPaletteSet& set, WPARAM id, UINT kind = WM_COMMAND) {
    MSG message = {};
    message.hwnd = set.m_hWnd;
    message.message = kind;
    message.wParam = id;
    return set.PreTranslateMessage(&message);
}

TEST_F(PaletteSetMenu, TheMenusCommandRenamesItsPalette) {
    make();
    fill({L"A", L"B", L"C"});
    set.SetActivePalette(set.GetPalette(0));
    set.m_data->m_contextPalette = 2;
    EXPECT_TRUE(command(set, 32772));
    EXPECT_EQ(set.GetActivePaletteTabIndex(), 2);
    EXPECT_EQ(ui_test::text_of(openNameEdit()), L"A");
    endNameEdit(L"Z");
    EXPECT_EQ(set.GetPalette(2)->GetName(), L"Z");
}

TEST_F(PaletteSetMenu, AnotherCommandRenamesTheSet) {
    make();
    EXPECT_TRUE(command(set, 32773));
    EXPECT_EQ(ui_test::text_of(openNameEdit()), L"Set");
    endNameEdit(L"Tools");
    EXPECT_EQ(set.GetName(), L"Tools");
}

TEST_F(PaletteSetMenu, OtherMessagesGoOn) {
    make();
    EXPECT_FALSE(command(set, 32774));
    EXPECT_FALSE(command(set, 32772, WM_USER + 5));
    EXPECT_EQ(openNameEdit(), nullptr);
}

TEST_F(PaletteSetMenu, TheSetIsRenamedOverItselfWhenDockedOverItsParentOtherwise) {
    make();
    const auto editPlace = [this] {
        set.EditName();
        CRect place;
        ::GetWindowRect(openNameEdit(), &place);
        endNameEdit(nullptr);
        return place.TopLeft();
    };
    const auto beside = [](CWnd* window) {
        CRect area;
        window->GetWindowRect(&area);
        return area.TopLeft() + CSize(20, 10);
    };
    set.EnableGripper(TRUE);
    set.EnableDocking(CBRS_ALIGN_ANY);
    set.SetPaneAlignment(CBRS_ALIGN_RIGHT);
    frame->DockPane(&set);
    ASSERT_TRUE(set.IsDocked());
    EXPECT_TRUE(editPlace() == beside(&set));
    ASSERT_TRUE(set.FloatPane(CRect(300, 300, 500, 600)));
    ASSERT_FALSE(set.IsDocked());
    EXPECT_TRUE(editPlace() == beside(set.GetParent()));
    EXPECT_EQ(set.GetName(), L"Set") << "escaped";
}

TEST_F(PaletteSetMenu, AnswersWhetherTheNameEditBeganAndEnded) {
    make();
    EXPECT_EQ(set.SendMessage(WM_USER + 102, 0, 0), 0);
    EXPECT_EQ(set.SendMessage(WM_USER + 101, 0, 0), 1);
    auto* edit = CWnd::FromHandlePermanent(openNameEdit());
    EXPECT_EQ(set.SendMessage(WM_USER + 102, reinterpret_cast<WPARAM>(static_cast<CNameEdit*>(edit)),
                              reinterpret_cast<LPARAM>(L"Direct")),
              1);
    EXPECT_EQ(set.GetName(), L"Direct");
    EXPECT_EQ(openNameEdit(), nullptr);
}

TEST_F(PaletteSetMenu, ANameEditThatCantBeMadeIsToldAndChangesNothing) {
    make();
    const HHOOK hook = ::SetWindowsHookExW(WH_CBT, refuseNameEdits, nullptr, ::GetCurrentThreadId());
    EXPECT_EQ(set.SendMessage(WM_USER + 101, 0, 0), 0);
    ::UnhookWindowsHookEx(hook);
    EXPECT_EQ(openNameEdit(), nullptr);
    EXPECT_EQ(set.GetName(), L"Set");
    EXPECT_EQ(set.SendMessage(WM_USER + 101, 0, 0), 1) << "and another one can";
    endNameEdit(nullptr);
}

/// The application's settings stand under a key of the test's own.
struct PaletteSetState : PaletteSetTest {
    PaletteSetState() { AfxGetApp()->m_pszRegistryKey = L"ktui docking test"; }
    ~PaletteSetState() override {
        AfxGetApp()->m_pszRegistryKey = m_former;
        ::RegDeleteTreeW(HKEY_CURRENT_USER, L"SOFTWARE\\ktui docking test");
    }
    std::wstring stored() {
        wchar_t text[100] = L"(none)";
        DWORD size = sizeof text;
        const std::wstring key = std::wstring(AFXGetRegPath(L"BasePanes", nullptr)) + L"BasePane-77";
        ::RegGetValueW(HKEY_CURRENT_USER, key.c_str(), L"Name", RRF_RT_REG_SZ, nullptr, text, &size);
        return text;
    }

private:
    LPCTSTR m_former = AfxGetApp()->m_pszRegistryKey;
};

TEST_F(PaletteSetState, KeepsItsNameBesideTheFrameworksState) {
    make();
    ::SetWindowLongPtrW(set, GWLP_ID, 77);
    EXPECT_EQ(set.Load(nullptr), 0) << "nothing was kept yet";
    set.SetName(L"Stored");
    EXPECT_EQ(set.Save(nullptr), 1);
    EXPECT_EQ(stored(), L"Stored");
    set.SetName(L"Other");
    EXPECT_EQ(set.Load(nullptr), 1);
    EXPECT_EQ(set.GetName(), L"Stored");
}

TEST_F(PaletteSetState, ItsNameIsWrittenToTheUsersSettingsAndOnlyReadFromThem) {
    make();
    ::SetWindowLongPtrW(set, GWLP_ID, 77);
    const std::wstring key = std::wstring(AFXGetRegPath(L"BasePanes", nullptr)) + L"BasePane-77";
    const WatchedSettings::InForce settings;
    ASSERT_EQ(set.Save(nullptr), 1);
    ASSERT_FALSE(WatchedSettings::requests().empty());
    EXPECT_EQ(WatchedSettings::requests().back(), L"create " + key);
    WatchedSettings::requests().clear();
    ASSERT_EQ(set.Load(nullptr), 1);
    ASSERT_FALSE(WatchedSettings::requests().empty());
    EXPECT_EQ(WatchedSettings::requests().back(), L"open " + key + L" readonly");
}

TEST_F(PaletteSetState, AKeyThatCantBeMadeLeavesTheNameOutAndIsNoFailure) {
    make();
    ::SetWindowLongPtrW(set, GWLP_ID, 77);
    const NotedSettings::InForce settings;
    NotedSettings::refusesKeys() = true;
    EXPECT_EQ(set.Save(nullptr), 1);
    EXPECT_EQ(NotedSettings::values().count(L"Name"), 0u);
    NotedSettings::refusesKeys() = false;
    EXPECT_EQ(set.Save(nullptr), 1);
    EXPECT_EQ(NotedSettings::values()[L"Name"], L"Set");
}

TEST_F(PaletteSetState, TheVisibleFlagIsNotItsAffair) {
    make();
    ::SetWindowLongPtrW(set, GWLP_ID, 77);
    set.setVisible(true);
    ASSERT_EQ(set.Save(nullptr), 1);
    set.setVisible(false);
    ASSERT_EQ(set.Load(nullptr), 1);
    EXPECT_FALSE(set.isVisible());
}

}  // namespace
