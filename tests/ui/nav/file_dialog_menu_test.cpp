// The open menu: the button that has it, its entries, and what each does to the result.
#include <ktui/nav/menu_button.h>

#include "shown_fixture.h"
#include "without_strings.h"

namespace {

/// What the library last asked the system to show as a menu.
struct Tracked {
    int times = 0;
    UINT flags = 99;
    POINT at = {};
    HWND owner = nullptr;
    bool isZonePressed = false;
    std::vector<std::pair<UINT, std::wstring>> entries;
} tracked;

BOOL WINAPI trackMenu(HMENU menu, UINT flags, int x, int y, int, HWND owner, const RECT*) {
    ++tracked.times;
    tracked.flags = flags;
    tracked.at = {x, y};
    tracked.owner = owner;
    const HWND ok = ::GetDlgItem(::GetParent(owner), IDOK);
    tracked.isZonePressed = (::SendMessageW(ok, BM_GETSTATE, 0, 0) & BST_DROPDOWNPUSHED) != 0;
    tracked.entries.clear();
    for (int i = 0; i < ::GetMenuItemCount(menu); ++i) {
        wchar_t text[100] = {};
        ::GetMenuStringW(menu, static_cast<UINT>(i), text, 100, MF_BYPOSITION);
        tracked.entries.emplace_back(::GetMenuItemID(menu, i), text);
    }
    return TRUE;
}

class FileDialogMenu : public ShownTest {
protected:
    FileDialogMenu() { tracked = {}; }
    void look(std::function<void(HWND)> at) {
        run([&](HWND window) {
            at(window);
            press(window, IDCANCEL);
        });
    }
    static void pressZone(HWND window) {
        const HWND ok = ::GetDlgItem(window, IDOK);
        RECT area;
        ::GetClientRect(ok, &area);
        ::SendMessageW(ok, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(area.right - 5, 5));
    }
    std::vector<UINT> commands() const {
        std::vector<UINT> ids;
        for (const auto& entry : tracked.entries) ids.push_back(entry.first);
        return ids;
    }
    static bool isSplit(HWND window) {
        return (::GetWindowLongPtrW(::GetDlgItem(window, IDOK), GWL_STYLE) & BS_SPLITBUTTON) ==
               BS_SPLITBUTTON;
    }
    /// Opens "one.dwg" by an entry of the menu.
    void openBy(int command) {
        EXPECT_EQ(run([&](HWND window) {
                      ::SetDlgItemTextW(window, kNameBox, L"one.dwg");
                      ::SendMessageW(own(window), WM_COMMAND, static_cast<WPARAM>(command), 0);
                  }),
                  IDOK);
    }
    ui_test::ReplacedImport menus{toolkit(), "TrackPopupMenu", &trackMenu};
};

using Commands = std::vector<UINT>;

TEST_F(FileDialogMenu, OpensAtTheLowerLeftOfTheButton) {
    ASSERT_TRUE(menus.isThere());
    look([&](HWND window) {
        EXPECT_TRUE(isSplit(window));
        pressZone(window);
        EXPECT_EQ(tracked.times, 1);
        EXPECT_EQ(tracked.flags, 0u);
        CRect button;
        ::GetWindowRect(::GetDlgItem(window, IDOK), &button);
        EXPECT_EQ(tracked.at.x, button.left);
        EXPECT_EQ(tracked.at.y, button.bottom);
        EXPECT_EQ(tracked.owner, own(window));
        EXPECT_TRUE(tracked.isZonePressed);
        EXPECT_FALSE(::SendDlgItemMessageW(window, IDOK, BM_GETSTATE, 0, 0) & BST_DROPDOWNPUSHED);
        EXPECT_EQ(data.GetCount(), 0);
    });
}

TEST_F(FileDialogMenu, OnlyTheNoticeOfItsOwnDropDownZoneCounts) {
    look([&](HWND window) {
        const HWND ok = ::GetDlgItem(window, IDOK);
        NMBCDROPDOWN notice = {};
        notice.hdr = {ok, IDOK, static_cast<UINT>(BCN_DROPDOWN)};
        ::SendMessageW(ok, WM_NOTIFY, IDCANCEL, reinterpret_cast<LPARAM>(&notice));
        EXPECT_EQ(tracked.times, 0);
        notice.hdr.code = static_cast<UINT>(NM_CLICK);
        ::SendMessageW(ok, WM_NOTIFY, IDOK, reinterpret_cast<LPARAM>(&notice));
        EXPECT_EQ(tracked.times, 0);
        notice.hdr.code = static_cast<UINT>(BCN_DROPDOWN);
        ::SendMessageW(ok, WM_NOTIFY, IDOK, reinterpret_cast<LPARAM>(&notice));
        EXPECT_EQ(tracked.times, 1);
    });
}

TEST_F(FileDialogMenu, EachSettingHasItsEntries) {
    struct Case {
        int readOnlyHidden, flags;
        Commands commands;
    };
    const Case cases[] = {
        {0, 0, {1125, 1126}},
        {0, 0x1000, {1125, 1126, 1127, 1128}},
        {0, 0x4000000, {1125, 1126, 1129, 1130}},
        {1, 0x1000, {1125, 1127}},
        {1, 0x4000000, {1125, 1129, 1130}},
        {0, 0x4001000, {1125, 1126, 1127, 1128, 1129, 1130}},
    };
    for (const Case& each : cases) {
        dialog.SetReadOnlyHidden(each.readOnlyHidden);
        dialog.ConvertFlagsToState(each.flags);
        look([&](HWND window) {
            pressZone(window);
            EXPECT_EQ(commands(), each.commands) << each.readOnlyHidden << ' ' << std::hex << each.flags;
        });
    }
}

TEST_F(FileDialogMenu, IsNotThereWhereNothingIsLeftToChoose) {
    dialog.SetReadOnlyHidden(1);
    look([&](HWND window) {
        EXPECT_FALSE(isSplit(window));
        pressZone(window);
        EXPECT_EQ(tracked.times, 0);
    });
    dialog.SetReadOnlyHidden(0);
    dialog.SetCreatingFile(1);
    dialog.ConvertFlagsToState(0x4001000);
    look([&](HWND window) { EXPECT_FALSE(isSplit(window)); });
}

TEST_F(FileDialogMenu, ItsTextsAreThoseOfTheLibrary) {
    dialog.ConvertFlagsToState(0x4001000);
    std::vector<std::wstring> texts;
    look([&](HWND window) {
        pressZone(window);
        HMODULE library = ::GetModuleHandleW(L"ktdsres.dll");
        UINT id = 54052;
        for (const auto& entry : tracked.entries) {
            wchar_t text[100] = {};
            EXPECT_GT(::LoadStringW(library, id++, text, 100), 0);
            EXPECT_EQ(entry.second, text);
        }
        EXPECT_EQ(tracked.entries.size(), 6u);
    });
}

TEST_F(FileDialogMenu, ItsTextsHaveDefaults) {
    dialog.ConvertFlagsToState(0x4001000);
    const ui_test::WithoutStrings strings;
    look([&](HWND window) {
        pressZone(window);
        const std::vector<std::pair<UINT, std::wstring>> entries = {{1125, L"打开(&O)"},
                                                                    {1126, L"以只读方式打开(&R)"},
                                                                    {1127, L"局部打开(&P)"},
                                                                    {1128, L"以只读方式局部打开(&T)"},
                                                                    {1129, L"无样板打开 - 英制(&I)"},
                                                                    {1130, L"无样板打开 - 公制(&I)"}};
        EXPECT_EQ(tracked.entries, entries);
    });
}

TEST_F(FileDialogMenu, AnEntryIsAClickOnOk) {
    openBy(1125);
    ASSERT_EQ(data.GetCount(), 1);
    EXPECT_EQ(CString(data.GetData(0)->GetText()), folder + L"one.dwg");
}

TEST_F(FileDialogMenu, OpeningReadOnlyIsSaid) {
    openBy(1126);
    EXPECT_EQ(dialog.GetReadOnlySpecified(), 1);
    openBy(1127);
    EXPECT_EQ(dialog.GetReadOnlySpecified(), 1) << "in part says nothing";
    openBy(1128);
    EXPECT_EQ(dialog.GetReadOnlySpecified(), 1);
    openBy(1125);
    EXPECT_EQ(dialog.GetReadOnlySpecified(), 0);
    openBy(1128);
    EXPECT_EQ(dialog.GetReadOnlySpecified(), 0);
    EXPECT_EQ(dialog.GetOpenNoTemplateSelection(), 0);
}

TEST_F(FileDialogMenu, OpeningWithoutTemplateSaysTheUnits) {
    dialog.SetReadOnlySpecified(1);
    openBy(1129);
    EXPECT_EQ(dialog.GetOpenNoTemplateSelection(), 1);
    openBy(1130);
    EXPECT_EQ(dialog.GetOpenNoTemplateSelection(), 2);
    EXPECT_EQ(dialog.GetReadOnlySpecified(), 1);
    openBy(1125);
    EXPECT_EQ(dialog.GetOpenNoTemplateSelection(), 2);
}

TEST_F(FileDialogMenu, TheLastEntryCounts) {
    run([&](HWND window) {
        ::SetDlgItemTextW(window, kNameBox, L"one.dwg");
        dialog.refusals = 1;
        ::SendMessageW(own(window), WM_COMMAND, 1126, 0);
        EXPECT_TRUE(ui_test::pump_until([&] { return dialog.count("ok") == 1; }));
        EXPECT_EQ(dialog.GetReadOnlySpecified(), 1);
        dialog.SetReadOnlySpecified(0);
        press(window, IDOK);
    });
    EXPECT_EQ(dialog.GetReadOnlySpecified(), 1) << "Kept: a plain OK repeats it";
}

TEST_F(FileDialogMenu, OtherCommandsAreNone) {
    run([&](HWND window) {
        ::SetDlgItemTextW(window, kNameBox, L"one.dwg");
        ::SendMessageW(own(window), WM_COMMAND, 1124, 0);
        ::SendMessageW(own(window), WM_COMMAND, 1131, 0);
        ui_test::pump();
        EXPECT_EQ(dialog.count("ok"), 0);
        press(window, IDCANCEL);
    });
}

}  // namespace
