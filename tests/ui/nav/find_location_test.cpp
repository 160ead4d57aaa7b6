// The locations and the names of the find dialog, and what is remembered of them.
#include <cstdlib>

#include <shlobj.h>

#include "find_fixture.h"
#include "replaced_import.h"

namespace {

class FindLocationTest : public FindTest {
protected:
    static FoundTexts stored(const wchar_t* format, int count) {
        FoundTexts texts;
        for (int i = 0; i < count; ++i) {
            CString value;
            value.Format(format, i);
            texts.push_back(storedText(value));
        }
        return texts;
    }
    /// How many locations come before the saved ones.
    size_t fixedCount() {
        size_t count = 0;
        startFolder = CString();
        run([&] {
            count = locations().size();
            cancel();
        });
        startFolder.reset();
        return count;
    }
};

UINT WINAPI driveTypes(LPCWSTR drive) {
    return wcscmp(drive, L"C:") == 0 || wcscmp(drive, L"Z:") == 0 ? DRIVE_FIXED : DRIVE_REMOTE;
}
UINT WINAPI noDrives(LPCWSTR) { return DRIVE_REMOVABLE; }

TEST_F(FindLocationTest, TheComputerComesFirstThenItsFixedDrivesThenEachDrive) {
    const ui_test::ReplacedImport drives(::GetModuleHandleW(L"ktui.dll"), "GetDriveTypeW", &driveTypes);
    ASSERT_TRUE(drives.isThere());
    run([&] {
        const FoundTexts shown = locations();
        ASSERT_GE(shown.size(), 5u);
        EXPECT_EQ(shown[1], L"Local hard drives (C:,Z:)");
        EXPECT_NE(shown[2].find(L"C:"), std::wstring::npos);
        EXPECT_NE(shown[3].find(L"Z:"), std::wstring::npos);
        EXPECT_EQ(shown.back(), root.GetString());
        cancel();
    });
}

TEST_F(FindLocationTest, WithoutFixedDrivesThereIsNoSuchEntry) {
    const ui_test::ReplacedImport drives(::GetModuleHandleW(L"ktui.dll"), "GetDriveTypeW", &noDrives);
    run([&] {
        for (const std::wstring& shown : locations())
            EXPECT_EQ(shown.find(L"Local hard"), std::wstring::npos);
        cancel();
    });
}

/// How often the shell was asked about a file, and how often with room for less than its whole answer.
int askedOfShell = 0, askedTooSmall = 0;

DWORD_PTR WINAPI tellsOfFile(LPCWSTR path, DWORD attributes, SHFILEINFOW* info, UINT size, UINT flags) {
    ++askedOfShell;
    askedTooSmall += size != sizeof *info;
    return ::SHGetFileInfoW(path, attributes, info, sizeof *info, flags);
}

TEST_F(FindLocationTest, TheShellTellsEachIcon) {
    const ui_test::ReplacedImport shell(::GetModuleHandleW(L"ktui.dll"), "SHGetFileInfoW", &tellsOfFile);
    ASSERT_TRUE(shell.isThere());
    askedOfShell = askedTooSmall = 0;
    run([&] {
        SHFILEINFOW folder = {};
        const auto images =
            ::SHGetFileInfoW(root, 0, &folder, sizeof folder, SHGFI_SYSICONINDEX | SHGFI_SMALLICON);
        const HWND box = item(IDC_FIND_LOCATION);
        EXPECT_EQ(static_cast<DWORD_PTR>(::SendMessageW(box, CBEM_GETIMAGELIST, 0, 0)), images);
        COMBOBOXEXITEMW entry = {};
        entry.mask = CBEIF_IMAGE;
        entry.iItem = static_cast<INT_PTR>(locations().size()) - 1;
        ::SendMessageW(box, CBEM_GETITEMW, 0, reinterpret_cast<LPARAM>(&entry));
        EXPECT_EQ(entry.iImage, folder.iIcon) << "of the folder that is last";
        cancel();
    });
    EXPECT_GT(askedOfShell, 3);
    EXPECT_EQ(askedTooSmall, 0);
}

TEST_F(FindLocationTest, EachEntryHasAnIcon) {
    run([&] {
        for (size_t i = 0; i < locations().size(); ++i) {
            COMBOBOXEXITEMW entry = {};
            entry.mask = CBEIF_IMAGE | CBEIF_SELECTEDIMAGE;
            entry.iItem = static_cast<INT_PTR>(i);
            ::SendMessageW(item(IDC_FIND_LOCATION), CBEM_GETITEMW, 0, reinterpret_cast<LPARAM>(&entry));
            EXPECT_GE(entry.iImage, 0);
            EXPECT_EQ(entry.iImage, entry.iSelectedImage);
        }
        EXPECT_NE(::SendMessageW(item(IDC_FIND_LOCATION), CBEM_GETIMAGELIST, 0, 0), 0);
        cancel();
    });
    // The shell's list of icons is still whole.
    SHFILEINFOW info = {};
    const auto images = reinterpret_cast<HIMAGELIST>(
        ::SHGetFileInfoW(L"C:\\", 0, &info, sizeof info, SHGFI_SYSICONINDEX | SHGFI_SMALLICON));
    EXPECT_GT(::ImageList_GetImageCount(images), 0);
}

TEST_F(FindLocationTest, OnlyWhatComesBehindTheFixedOnesIsSaved) {
    run([&] { cancel(); });
    EXPECT_EQ(stored(L"LocationMRU%d", 2), (FoundTexts{root.GetString(), L""}));
}

TEST_F(FindLocationTest, SavedLocationsComeBackBehindTheFixedOnes) {
    const size_t before = fixedCount();
    makeFolder(L"a");
    const CString other = root + L"a";
    storeText(L"LocationMRU0", other);
    storeText(L"LocationMRU1", L"Q:\\is not there");
    storeText(L"LocationMRU2", root);
    run([&] {
        const FoundTexts shown = locations();
        ASSERT_EQ(shown.size(), before + 2) << "what has no icon is left out, and the start is there already";
        EXPECT_EQ(shown[before], other.GetString());
        EXPECT_EQ(shown[before + 1], root.GetString());
        EXPECT_EQ(selectedLocation(), static_cast<int>(before + 1));
        cancel();
    });
    EXPECT_EQ(stored(L"LocationMRU%d", 3),
              (FoundTexts{other.GetString(), root.GetString(), root.GetString()}))
        << "a longer list stored before shows behind";
}

TEST_F(FindLocationTest, AnotherSpellingIsAnotherLocation) {
    CString upper = root;
    upper.MakeUpper();
    storeText(L"LocationMRU0", upper);
    const size_t before = fixedCount();
    run([&] {
        EXPECT_EQ(locations().size(), before + 1);
        cancel();
    });
}

TEST_F(FindLocationTest, AStartThatIsNotThereIsNoEntryAndTheDrivesAreSearchedInstead) {
    const size_t before = fixedCount();
    startFolder = root + L"gone";
    run([&] {
        EXPECT_EQ(locations().size(), before);
        EXPECT_EQ(selectedLocation(), -1);
        // The drives would be searched, so the search is stopped at its first folder.
        std::wstring first;
        const ui_test::SentMessages sent([&](const CWPSTRUCT& message) {
            if (message.hwnd != dialog || message.message != WM_FIND_STATUS) return;
            if (first.empty()) first = reinterpret_cast<const wchar_t*>(message.wParam);
            command(IDC_FIND_STOP);
        });
        search();
        EXPECT_EQ(first, L"C:\\");
        EXPECT_EQ(selectedLocation(), 1);
        cancel();
    });
}

TEST_F(FindLocationTest, TwoQuotedPathsAreSearchedBoth) {
    makeFolder(L"a");
    makeFolder(L"a\\s");
    makeFolder(L"b");
    makeFile(L"a\\1.dwg");
    makeFile(L"b\\2.dwg");
    const CString both = L"\"" + root + L"a\"\"" + root + L"b\"";
    run([&] {
        typeLocation(both);
        search();
        EXPECT_EQ(column(0), (FoundTexts{L"1.dwg", L"2.dwg", L"2.dwg"}))
            << "the first one's descent goes through the second";
        EXPECT_EQ(locations().back(), both.GetString());
        cancel();
    });
    EXPECT_EQ(storedText(L"LocationMRU1"), both.GetString());
}

TEST_F(FindLocationTest, ATypedLocationIsSearched) {
    makeFolder(L"a");
    makeFile(L"a\\1.dwg");
    makeFile(L"2.dwg");
    run([&] {
        typeLocation(L" " + root + L"a ");
        search();
        EXPECT_EQ(column(0), (FoundTexts{L"1.dwg"}));
        EXPECT_EQ(selectedLocation(), static_cast<int>(locations().size()) - 1);
        chooseLocation(static_cast<int>(locations().size()) - 2);
        search();
        EXPECT_EQ(rows(), 2);
        cancel();
    });
}

TEST_F(FindLocationTest, TheComputerStandsForAllDrives) {
    run([&] {
        std::wstring first;
        const ui_test::SentMessages sent([&](const CWPSTRUCT& message) {
            if (message.hwnd != dialog || message.message != WM_FIND_STATUS) return;
            if (first.empty()) first = reinterpret_cast<const wchar_t*>(message.wParam);
            command(IDC_FIND_STOP);
        });
        chooseLocation(0);
        search();
        EXPECT_EQ(first.substr(1), L":\\");
        subfolders(false);
        first.clear();
        search();
        EXPECT_EQ(first, L"") << "without subfolders nothing is gone through";
        cancel();
    });
}

TEST_F(FindLocationTest, NamesAreRememberedLatestFirst) {
    run([&] {
        for (const wchar_t* name : {L"one", L" two ", L"", L"one"}) {
            setText(IDC_FIND_NAME, name);
            search();
        }
        EXPECT_EQ(::SendMessageW(item(IDC_FIND_NAME), CB_GETCOUNT, 0, 0), 2);
        cancel();
    });
    EXPECT_EQ(stored(L"FileNameMRU%d", 3), (FoundTexts{L"one", L"two", L""}));
    run([&] {
        wchar_t text[100] = {};
        ::SendMessageW(item(IDC_FIND_NAME), CB_GETLBTEXT, 1, reinterpret_cast<LPARAM>(text));
        EXPECT_STREQ(text, L"two");
        cancel();
    });
}

BROWSEINFOW browsed = {};
std::wstring browseAnswer;

LPITEMIDLIST WINAPI browseFor(BROWSEINFOW* info) {
    browsed = *info;
    LPITEMIDLIST list = nullptr;
    if (!browseAnswer.empty()) ::SHParseDisplayName(browseAnswer.c_str(), nullptr, &list, 0, nullptr);
    return list;
}

TEST_F(FindLocationTest, ABrowsedFolderIsAddedAndSelected) {
    makeFolder(L"a");
    const ui_test::ReplacedImport browse(::GetModuleHandleW(L"ktui.dll"), "SHBrowseForFolderW", &browseFor);
    ASSERT_TRUE(browse.isThere());
    run([&] {
        const size_t before = locations().size();
        browseAnswer.clear();
        click(IDC_FIND_BROWSE);
        EXPECT_EQ(browsed.ulFlags, static_cast<UINT>(BIF_RETURNONLYFSDIRS | BIF_RETURNFSANCESTORS));
        EXPECT_EQ(browsed.hwndOwner, page(0));
        EXPECT_EQ(browsed.pidlRoot, nullptr);
        EXPECT_EQ(locations().size(), before);
        browseAnswer = (root + L"a").GetString();
        click(IDC_FIND_BROWSE);
        ASSERT_EQ(locations().size(), before + 1);
        EXPECT_EQ(locations().back(), browseAnswer);
        EXPECT_EQ(selectedLocation(), static_cast<int>(before));
        chooseLocation(0);
        click(IDC_FIND_BROWSE);
        EXPECT_EQ(locations().size(), before + 1) << "it is there";
        EXPECT_EQ(selectedLocation(), static_cast<int>(before));
        cancel();
    });
}

/// The tool tip that tracks and is shown.
struct Tip {
    std::wstring text;  ///< empty for none
    CRect place;        ///< on the screen
    HWND window = nullptr;
};

Tip shownTipWithPlace() {
    Tip shown;
    ::EnumThreadWindows(
        ::GetCurrentThreadId(),
        [](HWND window, LPARAM parameter) -> BOOL {
            wchar_t name[40] = {}, text[1024] = {};
            ::GetClassNameW(window, name, 40);
            if (wcscmp(name, TOOLTIPS_CLASSW) != 0 || !::IsWindowVisible(window)) return TRUE;
            TTTOOLINFOW tool = {};
            tool.cbSize = TTTOOLINFOW_V2_SIZE;
            tool.lpszText = text;
            if (::SendMessageW(window, TTM_ENUMTOOLSW, 0, reinterpret_cast<LPARAM>(&tool)) &&
                (tool.uFlags & TTF_TRACK))
                reinterpret_cast<Tip*>(parameter)->text = text;
            if (reinterpret_cast<Tip*>(parameter)->text.empty()) return TRUE;
            ::GetWindowRect(window, &reinterpret_cast<Tip*>(parameter)->place);
            reinterpret_cast<Tip*>(parameter)->window = window;
            return FALSE;
        },
        reinterpret_cast<LPARAM>(&shown));
    return shown;
}

std::wstring shownTip() { return shownTipWithPlace().text; }

/// How far right of `left` the tip's text may begin: its edge and margin.
constexpr long kTipMargin = 8;

int widthOf(HWND window, const CString& text) {
    const HDC dc = ::GetDC(window);
    const HGDIOBJ former =
        ::SelectObject(dc, reinterpret_cast<HGDIOBJ>(::SendMessageW(window, WM_GETFONT, 0, 0)));
    SIZE size = {};
    ::GetTextExtentPoint32W(dc, text, text.GetLength(), &size);
    ::SelectObject(dc, former);
    ::ReleaseDC(window, dc);
    return size.cx;
}

TEST_F(FindLocationTest, ALocationWiderThanTheBoxIsToldInATip) {
    makeFolder(CString(L'w', 100));
    const CString wide = root + CString(L'w', 100);
    startFolder = wide;
    run([&] {
        const HWND box = item(IDC_FIND_LOCATION);
        const HWND edit = reinterpret_cast<HWND>(::SendMessageW(box, CBEM_GETEDITCONTROL, 0, 0));
        ::SetFocus(list());
        ::PostMessageW(edit, WM_MOUSEMOVE, 0, MAKELPARAM(5, 5));
        EXPECT_TRUE(ui_test::pump_until([&] { return shownTip() == wide.GetString(); }));
        ::SetFocus(edit);
        ::PostMessageW(edit, WM_MOUSEMOVE, 0, MAKELPARAM(6, 5));
        EXPECT_TRUE(ui_test::pump_until([&] { return shownTip().empty(); })) << "not while it is typed into";
        ::SetFocus(list());
        chooseLocation(0);
        ::PostMessageW(edit, WM_MOUSEMOVE, 0, MAKELPARAM(7, 5));
        ui_test::pump();
        EXPECT_EQ(shownTip(), L"") << "a short one is all there";
        cancel();
    });
}

TEST_F(FindLocationTest, ThePixelThatALocationLacksBringsTheTip) {
    makeFolder(CString(L'w', 30));
    const CString wide = root + CString(L'w', 30);
    startFolder = wide;
    run([&] {
        const HWND box = item(IDC_FIND_LOCATION);
        const HWND edit = reinterpret_cast<HWND>(::SendMessageW(box, CBEM_GETEDITCONTROL, 0, 0));
        CRect outer, inner;
        ::GetWindowRect(box, &outer);
        ::GetClientRect(box, &inner);
        // An icon, the button that drops the list, and two pixels more.
        const int fitting =
            widthOf(box, wide) + 24 + ::GetSystemMetrics(SM_CXVSCROLL) + 2 + outer.Width() - inner.Width();
        const auto tipAt = [&](int width, int x) {
            ::SetWindowPos(box, nullptr, 0, 0, width, outer.Height(), SWP_NOMOVE | SWP_NOZORDER);
            ::SetFocus(list());
            ::PostMessageW(edit, WM_MOUSEMOVE, 0, MAKELPARAM(x, 5));
            ui_test::pump();
            return shownTipWithPlace();
        };
        EXPECT_EQ(tipAt(fitting, 5).text, L"");
        const Tip tip = tipAt(fitting - 1, 6);
        EXPECT_EQ(tip.text, wide.GetString());
        ::GetWindowRect(box, &outer);
        EXPECT_LE(std::abs(tip.place.left - (outer.left + 24)), kTipMargin) << "over the text";
        EXPECT_EQ(tipAt(fitting, 7).text, L"");
        cancel();
    });
}

TEST_F(FindLocationTest, ALocationWiderThanTheBoxShowsItsBeginning) {
    makeFolder(CString(L'w', 100));
    startFolder = root + CString(L'w', 100);
    run([&] {
        const HWND edit =
            reinterpret_cast<HWND>(::SendMessageW(item(IDC_FIND_LOCATION), CBEM_GETEDITCONTROL, 0, 0));
        // The first character stands where characters begin, and not to the left of the box.
        const auto placeOfFirst = [&] {
            return static_cast<int>(static_cast<short>(LOWORD(::SendMessageW(edit, EM_POSFROMCHAR, 0, 0))));
        };
        EXPECT_GE(placeOfFirst(), 0);
        search();
        EXPECT_GE(placeOfFirst(), 0) << "after a search too";
        cancel();
    });
}

UINT WINAPI everyDrive(LPCWSTR) { return DRIVE_FIXED; }

TEST_F(FindLocationTest, TheWideNameOfAllDrivesShowsItsBeginningAfterANewSearch) {
    const ui_test::ReplacedImport drives(::GetModuleHandleW(L"ktui.dll"), "GetDriveTypeW", &everyDrive);
    run([&] {
        ::SetWindowPos(dialog, nullptr, 0, 0, 450, 400, SWP_NOMOVE | SWP_NOZORDER);
        const HWND edit =
            reinterpret_cast<HWND>(::SendMessageW(item(IDC_FIND_LOCATION), CBEM_GETEDITCONTROL, 0, 0));
        CRect box;
        ::GetClientRect(edit, &box);
        ASSERT_LT(box.Width(), widthOf(edit, locations()[1].c_str()));
        ui_test::when_dialog(L"Test Caption",
                             [](HWND question) { ::PostMessageW(question, WM_COMMAND, IDOK, 0); });
        command(IDC_FIND_NEW);
        EXPECT_EQ(ui_test::text_of(edit).GetString(), locations()[1]);
        EXPECT_GE(static_cast<short>(LOWORD(::SendMessageW(edit, EM_POSFROMCHAR, 0, 0))), 0);
        cancel();
    });
}

TEST_F(FindLocationTest, ARowWiderThanTheListIsToldInATip) {
    makeFolder(CString(L'w', 100));
    const CString wide = root + CString(L'w', 100);
    startFolder = wide;
    run([&] {
        const HWND combo =
            reinterpret_cast<HWND>(::SendMessageW(item(IDC_FIND_LOCATION), CBEM_GETCOMBOCONTROL, 0, 0));
        COMBOBOXINFO info = {};
        info.cbSize = sizeof info;
        ::GetComboBoxInfo(combo, &info);
        const HWND rowList = info.hwndList;
        // Where the tip has room on the screen.
        ::SetWindowPos(rowList, nullptr, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
        ::SendMessageW(rowList, LB_SETCURSEL, locations().size() - 1, 0);
        RECT place = {};
        ::SendMessageW(rowList, LB_GETITEMRECT, locations().size() - 1, reinterpret_cast<LPARAM>(&place));
        ::SendMessageW(rowList, WM_MOUSEMOVE, 0, MAKELPARAM(30, place.top + 2));
        EXPECT_EQ(shownTip(), wide.GetString());
        CRect rows;
        ::GetWindowRect(rowList, &rows);
        EXPECT_LE(std::abs(shownTipWithPlace().place.left - (rows.left + 24)), kTipMargin);
        ::SendMessageW(rowList, WM_MOUSELEAVE, 0, 0);
        EXPECT_EQ(shownTip(), L"");
        CRect inner;
        ::GetClientRect(rowList, &inner);
        const int fitting = widthOf(rowList, wide) + 24 + rows.Width() - inner.Width();
        const auto tipAt = [&](int width) {
            ::SetWindowPos(rowList, nullptr, 0, 0, width, rows.Height(), SWP_NOMOVE | SWP_NOZORDER);
            ::SendMessageW(rowList, LB_GETITEMRECT, locations().size() - 1, reinterpret_cast<LPARAM>(&place));
            ::SendMessageW(rowList, WM_MOUSEMOVE, 0, MAKELPARAM(30, place.top + 2));
            return shownTip();
        };
        EXPECT_EQ(tipAt(fitting), L"");
        EXPECT_EQ(tipAt(fitting - 1), wide.GetString());
        ::SendMessageW(rowList, LB_SETCURSEL, 0, 0);
        ::SendMessageW(rowList, WM_MOUSEMOVE, 0, MAKELPARAM(30, 2));
        EXPECT_EQ(shownTip(), L"");
        cancel();
    });
}

/// The rows that the location box drops.
HWND droppedRows(HWND box) {
    COMBOBOXINFO info = {};
    info.cbSize = sizeof info;
    ::GetComboBoxInfo(reinterpret_cast<HWND>(::SendMessageW(box, CBEM_GETCOMBOCONTROL, 0, 0)), &info);
    return info.hwndList;
}

TEST_F(FindLocationTest, TheTipOfARowStandsOverItsTextAndIsMadeOnce) {
    makeFolder(CString(L'w', 100));
    const CString wide = root + CString(L'w', 100);
    startFolder = wide;
    run([&] {
        const HWND rowList = droppedRows(item(IDC_FIND_LOCATION));
        // Well below the edge of the screen, so that its own places are others than the screen's.
        ::SetWindowPos(rowList, nullptr, 0, 150, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
        const WPARAM last = locations().size() - 1;
        ::SendMessageW(rowList, LB_SETCURSEL, last, 0);
        CRect row;
        ::SendMessageW(rowList, LB_GETITEMRECT, last, reinterpret_cast<LPARAM>(&row));
        ::SendMessageW(rowList, WM_MOUSEMOVE, 0, MAKELPARAM(30, row.top + 2));
        const Tip tip = shownTipWithPlace();
        EXPECT_EQ(tip.text, wide.GetString());
        CRect onScreen = row;
        ::MapWindowPoints(rowList, nullptr, reinterpret_cast<POINT*>(&onScreen), 2);
        EXPECT_GT(onScreen.top, 150);
        EXPECT_LE(std::abs(tip.place.top - onScreen.top), kTipMargin);
        ::SendMessageW(rowList, WM_MOUSEMOVE, 0, MAKELPARAM(31, row.top + 2));
        EXPECT_EQ(shownTipWithPlace().window, tip.window);
        ::SendMessageW(rowList, WM_MOUSELEAVE, 0, 0);
        EXPECT_EQ(shownTip(), L"");
        ::SendMessageW(rowList, WM_MOUSEMOVE, 0, MAKELPARAM(32, row.top + 2));
        EXPECT_EQ(shownTipWithPlace().window, tip.window) << "hidden, it waits to be shown again";
        cancel();
    });
}

TEST_F(FindLocationTest, TheTipOfTheBoxIsMadeOnce) {
    makeFolder(CString(L'w', 100));
    startFolder = root + CString(L'w', 100);
    run([&] {
        const HWND box = item(IDC_FIND_LOCATION);
        const HWND edit = reinterpret_cast<HWND>(::SendMessageW(box, CBEM_GETEDITCONTROL, 0, 0));
        const auto tipAt = [&](int x) {
            ::SetFocus(list());
            ::PostMessageW(edit, WM_MOUSEMOVE, 0, MAKELPARAM(x, 5));
            ui_test::pump();
            return shownTipWithPlace().window;
        };
        const HWND tip = tipAt(5);
        EXPECT_NE(tip, nullptr);
        EXPECT_EQ(tipAt(6), tip);
        ::SetFocus(edit);
        ::PostMessageW(edit, WM_MOUSEMOVE, 0, MAKELPARAM(7, 5));
        EXPECT_TRUE(ui_test::pump_until([] { return shownTip().empty(); }));
        EXPECT_EQ(tipAt(8), tip) << "hidden, it waits to be shown again";
        cancel();
    });
}

}  // namespace
