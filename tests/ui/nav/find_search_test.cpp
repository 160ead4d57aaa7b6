// A search of the find dialog: what is searched for, what is told, what is shown of it.
#include <atomic>

#include "find_fixture.h"
#include "open_handles.h"
#include "replaced_import.h"

namespace {

/// What the thread of a search sends to the dialog's window, in words.
class Heard {
public:
    explicit Heard(const HWND& dialog)
        : m_sent([this, &dialog](const CWPSTRUCT& message) {
              if (message.hwnd == dialog) note(message);
          }) {}
    FoundTexts texts;
    std::function<void(const std::wstring&)> onText;

private:
    void note(const CWPSTRUCT& message) {
        const auto* const folder = reinterpret_cast<const wchar_t*>(message.wParam);
        std::wstring text;
        switch (message.message) {
            case WM_USER + 101:
                EXPECT_EQ(message.wParam, 0u);
                EXPECT_EQ(message.lParam, 0);
                text = L"done";
                break;
            case WM_USER + 102:
                EXPECT_EQ(message.lParam, 0);
                text = folder;
                break;
            case WM_USER + 103:
                text = L"+" + std::wstring(folder) + reinterpret_cast<const wchar_t*>(message.lParam);
                break;
            default: return;
        }
        texts.push_back(text);
        if (onText) onText(text);
    }
    ui_test::SentMessages m_sent;
};

std::wstring in(const CString& folder, const wchar_t* rest) { return (folder + rest).GetString(); }

class FindSearchTest : public FindTest {
protected:
    void smallTree() {
        makeFolder(L"sub");
        makeFile(L"one.dwg");
        makeFile(L"sub\\three.dwg");
        makeFile(L"sub\\four.dxf");
        makeFile(L"x.txt");
    }
};

TEST_F(FindSearchTest, TellsFoldersAndFilesInOrder) {
    smallTree();
    Heard heard(dialog);
    run(
        [&] {
            search();
            cancel();
        },
        1);
    EXPECT_EQ(heard.texts, (FoundTexts{in(root, L""), in(L"+" + root, L"one.dwg"), in(root, L"sub\\"),
                                       in(L"+" + root, L"sub\\three.dwg"), L"done"}));
}

TEST_F(FindSearchTest, TwoPatternsListEachFileOfASubfolderTwice) {
    smallTree();
    run(
        [&] {
            search();
            EXPECT_EQ(sortedColumn(0),
                      (FoundTexts{L"four.dxf", L"four.dxf", L"one.dwg", L"three.dwg", L"three.dwg"}));
            cancel();
        },
        2);
}

TEST_F(FindSearchTest, StaysInTheFolderWithoutSubfolders) {
    smallTree();
    run(
        [&] {
            subfolders(false);
            search();
            EXPECT_EQ(column(0), (FoundTexts{L"one.dwg"}));
            cancel();
        },
        2);
}

TEST_F(FindSearchTest, TheNameTellsWhichFiles) {
    smallTree();
    run(
        [&] {
            setText(IDC_FIND_NAME, L"re");
            search();
            EXPECT_EQ(sortedColumn(0), (FoundTexts{L"three.dwg", L"three.dwg"}));
            EXPECT_EQ(caption(), L"Find: Files named *re*.dwg");
            setText(IDC_FIND_NAME, L"one.dwg");
            search();
            EXPECT_EQ(column(0), (FoundTexts{L"one.dwg"}));
            EXPECT_EQ(caption(), L"Find: Files named *one.dwg");
            cancel();
        },
        2);
}

TEST_F(FindSearchTest, ShowsFolderSizeTypeAndTime) {
    makeFolder(L"sub");
    makeFile(L"sub\\a.dwg", 10001);
    setWritten(L"sub\\a.dwg", 1'600'000'000);
    run([&] {
        search();
        ASSERT_EQ(rows(), 1);
        EXPECT_EQ(cell(0, 0), L"a.dwg");
        EXPECT_EQ(cell(0, 1), in(root, L"sub"));
        EXPECT_EQ(cell(0, 2), L"11 KB");
        SHFILEINFOW info = {};
        ::SHGetFileInfoW(L"a.dwg", FILE_ATTRIBUTE_NORMAL, &info, sizeof info,
                         SHGFI_USEFILEATTRIBUTES | SHGFI_TYPENAME);
        EXPECT_EQ(cell(0, 3), info.szTypeName);
        tm local = {};
        const __time64_t written = 1'600'000'000;
        _localtime64_s(&local, &written);
        SYSTEMTIME time = {};
        time.wYear = static_cast<WORD>(local.tm_year + 1900);
        time.wMonth = static_cast<WORD>(local.tm_mon + 1);
        time.wDay = static_cast<WORD>(local.tm_mday);
        time.wHour = static_cast<WORD>(local.tm_hour);
        time.wMinute = static_cast<WORD>(local.tm_min);
        wchar_t date[100] = {}, hours[100] = {};
        ::GetDateFormatW(LOCALE_USER_DEFAULT, 0, &time, nullptr, date, 100);
        ::GetTimeFormatW(LOCALE_USER_DEFAULT, TIME_NOSECONDS | TIME_FORCE24HOURFORMAT, &time, nullptr, hours,
                         100);
        EXPECT_EQ(cell(0, 4), std::wstring(date) + L" " + hours);
        cancel();
    });
}

/// What the toolkit asked of the system for a time of day.
struct {
    LCID locale;
    DWORD flags;
    WORD hour;
} askedTime;

int WINAPI timeFormat(LCID locale, DWORD flags, const SYSTEMTIME* time, LPCWSTR format, LPWSTR text,
                      int room) {
    askedTime = {locale, flags, time->wHour};
    return ::GetTimeFormatW(locale, flags, time, format, text, room);
}

TEST_F(FindSearchTest, TheTimeIsOfTwentyFourHoursWithoutSecondsAndLocal) {
    const ui_test::ReplacedImport times(::GetModuleHandleW(L"ktui.dll"), "GetTimeFormatW", &timeFormat);
    ASSERT_TRUE(times.isThere());
    makeFile(L"a.dwg");
    const __time64_t written = 1'600'009'600;
    setWritten(L"a.dwg", written);
    askedTime = {};
    run([&] {
        search();
        cancel();
    });
    tm local = {};
    _localtime64_s(&local, &written);
    EXPECT_EQ(askedTime.flags, static_cast<DWORD>(TIME_NOSECONDS | TIME_FORCE24HOURFORMAT));
    EXPECT_EQ(askedTime.locale, static_cast<LCID>(LOCALE_USER_DEFAULT));
    EXPECT_EQ(askedTime.hour, local.tm_hour);
}

/// A clock two hours ahead of the world's.
BOOL WINAPI twoHoursAhead(const FILETIME* world, FILETIME* local) {
    constexpr ULONGLONG kTwoHours = 2ULL * 3600 * 10'000'000;
    ULARGE_INTEGER time = {};
    time.LowPart = world->dwLowDateTime;
    time.HighPart = world->dwHighDateTime;
    time.QuadPart += kTwoHours;
    *local = {time.LowPart, time.HighPart};
    return TRUE;
}

TEST_F(FindSearchTest, TheTimeIsThatOfTheUsersClock) {
    const HMODULE toolkit = ::GetModuleHandleW(L"ktui.dll");
    const ui_test::ReplacedImport times(toolkit, "GetTimeFormatW", &timeFormat);
    const ui_test::ReplacedImport clock(toolkit, "FileTimeToLocalFileTime", &twoHoursAhead);
    ASSERT_TRUE(times.isThere() && clock.isThere());
    makeFile(L"a.dwg");
    setWritten(L"a.dwg", 1'600'000'000);  // 12:26 of the world's clock
    askedTime = {};
    run([&] {
        search();
        cancel();
    });
    EXPECT_EQ(askedTime.hour, 14);
}

TEST_F(FindSearchTest, SizesBelowTenThousandAreToldInBytes) {
    makeFile(L"1.dwg", 9999);
    makeFile(L"2.dwg", 10000);
    makeFile(L"3.dwg", 10001);
    makeFile(L"4.dwg", 0);
    run([&] {
        search();
        clickColumn(0);  // ascending
        EXPECT_EQ(column(2), (FoundTexts{L"9999 B", L"10 KB", L"11 KB", L"0 B"}));
        cancel();
    });
}

TEST_F(FindSearchTest, AFileThatCannotBeOpenedHasNeitherSizeNorTime) {
    makeFile(L"held.dwg", 20000);
    const HANDLE held = ::CreateFileW(root + L"held.dwg", GENERIC_READ | GENERIC_WRITE, 0, nullptr,
                                      OPEN_EXISTING, 0, nullptr);
    Heard heard(dialog);
    // What vanishes between being found and being shown can't be opened either.
    heard.onText = [&](const std::wstring& text) {
        if (text != in(L"+" + root, L"held.dwg")) return;
        ::CloseHandle(held);
        ::DeleteFileW(root + L"held.dwg");
    };
    run([&] {
        search();
        ASSERT_EQ(rows(), 1);
        EXPECT_EQ(cell(0, 0), L"held.dwg");
        EXPECT_NE(cell(0, 3), L"");
        EXPECT_EQ(cell(0, 2), L"");
        EXPECT_EQ(cell(0, 4), L"");
        cancel();
    });
}

BOOL WINAPI tellsNoLength(HANDLE, LARGE_INTEGER*) { return FALSE; }
BOOL WINAPI tellsNoTime(HANDLE, FILETIME*, FILETIME*, FILETIME*) { return FALSE; }

TEST_F(FindSearchTest, AFileThatTellsOnlyItsSizeOrOnlyItsTimeHasNeither) {
    makeFile(L"a.dwg", 20000);
    const auto factsWithout = [this](const char* call, auto* refuses) {
        FoundTexts facts;
        run([&] {
            const ui_test::ReplacedImport none(::GetModuleHandleW(L"ktui.dll"), call, refuses);
            EXPECT_TRUE(none.isThere());
            search();
            EXPECT_EQ(rows(), 1);
            facts = {cell(0, 0), cell(0, 2), cell(0, 4)};
            cancel();
        });
        return facts;
    };
    EXPECT_EQ(factsWithout("GetFileSizeEx", &tellsNoLength), (FoundTexts{L"a.dwg", L"", L""}));
    EXPECT_EQ(factsWithout("GetFileTime", &tellsNoTime), (FoundTexts{L"a.dwg", L"", L""}));
}

TEST_F(FindSearchTest, EachRowHasAnImageOfItsOwnAndTheFirstIsSelected) {
    smallTree();
    run([&] {
        search();
        ASSERT_GE(rows(), 4);
        const auto images =
            reinterpret_cast<HIMAGELIST>(::SendMessageW(list(), LVM_GETIMAGELIST, LVSIL_SMALL, 0));
        EXPECT_EQ(::ImageList_GetImageCount(images), rows());
        for (int row = 0; row < rows(); ++row) {
            LVITEMW entry = {};
            entry.mask = LVIF_IMAGE | LVIF_STATE;
            entry.iItem = row;
            entry.stateMask = LVIS_SELECTED;
            ::SendMessageW(list(), LVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&entry));
            EXPECT_EQ(entry.iImage, row);
            EXPECT_EQ(entry.state & LVIS_SELECTED, row == 0 ? LVIS_SELECTED : 0u);
        }
        cancel();
    });
}

TEST_F(FindSearchTest, TheRootOfADriveKeepsItsBackslash) {
    run([&] {
        ::SendMessageW(dialog, WM_FIND_FILE, reinterpret_cast<WPARAM>(L"Q:\\"),
                       reinterpret_cast<LPARAM>(L"a.dwg"));
        ::SendMessageW(dialog, WM_FIND_FILE, reinterpret_cast<WPARAM>(L"Q:\\b\\"),
                       reinterpret_cast<LPARAM>(L"c.dwg"));
        EXPECT_EQ(cell(0, 1), L"Q:\\");
        EXPECT_EQ(cell(1, 1), L"Q:\\b");
        EXPECT_EQ(::SendMessageW(dialog, WM_FIND_FILE, reinterpret_cast<WPARAM>(L"Q:\\"),
                                 reinterpret_cast<LPARAM>(L"")),
                  0);
        EXPECT_EQ(rows(), 2) << "an empty name is no row";
        cancel();
    });
}

DWORD_PTR WINAPI knowsNoType(LPCWSTR, DWORD, SHFILEINFOW*, UINT, UINT) { return 0; }

TEST_F(FindSearchTest, AFileOfNoTypeGivesNoRow) {
    run([&] {
        const ui_test::ReplacedImport refuses(::GetModuleHandleW(L"ktui.dll"), "SHGetFileInfoW",
                                              &knowsNoType);
        EXPECT_TRUE(refuses.isThere());
        EXPECT_EQ(::SendMessageW(dialog, WM_FIND_FILE, reinterpret_cast<WPARAM>(L"Q:\\"),
                                 reinterpret_cast<LPARAM>(L"a.dwg")),
                  -1);
        EXPECT_EQ(rows(), 0);
        cancel();
    });
}

TEST_F(FindSearchTest, TheStatusTellsRowsAndFolderThenTheCount) {
    smallTree();
    FoundTexts seen;
    Heard heard(dialog);
    heard.onText = [&](const std::wstring& text) {
        if (text[0] == L'+' || text == L"done") seen.push_back(status());
    };
    run(
        [&] {
            search();
            EXPECT_EQ(status(), L"2 file(s) found.");
            ::SendMessageW(dialog, WM_FIND_STATUS, reinterpret_cast<WPARAM>(L"Q:\\100% of %d\\"), 0);
            EXPECT_EQ(status(), L"(2) - Q:\\100% of %d\\");
            cancel();
        },
        1);
    EXPECT_EQ(seen, (FoundTexts{L"(0) - " + in(root, L""), L"(1) - " + in(root, L"sub\\"),
                                L"(1) - " + in(root, L"sub\\")}));
}

TEST_F(FindSearchTest, WhileItRunsOnlyStopAndItsLikeAreEnabled) {
    smallTree();
    bool isSeen = false;
    Heard heard(dialog);
    heard.onText = [&](const std::wstring& text) {
        if (text[0] != L'+' || isSeen) return;
        isSeen = true;
        for (const int id : {IDC_FIND_NAME, IDC_FIND_TYPE, IDC_FIND_LOCATION, IDC_FIND_BROWSE,
                             IDC_FIND_SUBFOLDERS, IDC_FIND_START, IDOK})
            EXPECT_FALSE(isEnabled(id)) << id;
        EXPECT_TRUE(isEnabled(IDC_FIND_STOP));
        EXPECT_TRUE(isEnabled(IDC_FIND_NEW));
        EXPECT_TRUE(isEnabled(IDCANCEL));
        EXPECT_EQ(::GetFocus(), item(IDC_FIND_STOP));
        EXPECT_EQ(::GetWindowLongW(item(IDC_FIND_STOP), GWL_STYLE) & BS_TYPEMASK, BS_DEFPUSHBUTTON);
        command(IDOK);
    };
    run([&] {
        search();
        EXPECT_TRUE(isSeen);
        for (const int id : {IDC_FIND_NAME, IDC_FIND_TYPE, IDC_FIND_LOCATION, IDC_FIND_BROWSE,
                             IDC_FIND_SUBFOLDERS, IDC_FIND_START, IDOK})
            EXPECT_TRUE(isEnabled(id)) << id;
        EXPECT_FALSE(isEnabled(IDC_FIND_STOP));
        EXPECT_EQ(::GetWindowLongW(item(IDC_FIND_STOP), GWL_STYLE) & BS_TYPEMASK, BS_PUSHBUTTON);
        EXPECT_EQ(::GetFocus(), list());
        cancel();
    });
}

TEST_F(FindSearchTest, StopIsTheDefaultBeforeItHasTheFocus) {
    smallTree();
    std::vector<LONG_PTR> kinds;
    run([&] {
        const HWND stop = item(IDC_FIND_STOP);
        ui_test::SentMessages watch([&](const CWPSTRUCT& message) {
            if (message.hwnd == stop && message.message == WM_SETFOCUS)
                kinds.push_back(::GetWindowLongW(stop, GWL_STYLE) & BS_TYPEMASK);
        });
        search();
        cancel();
    });
    EXPECT_EQ(kinds, std::vector<LONG_PTR>{BS_DEFPUSHBUTTON});
}

TEST_F(FindSearchTest, ASecondSearchBeginsWithAnEmptyList) {
    smallTree();
    run([&] {
        search();
        const int first = rows();
        EXPECT_GT(first, 0);
        search();
        EXPECT_EQ(rows(), first);
        const auto images =
            reinterpret_cast<HIMAGELIST>(::SendMessageW(list(), LVM_GETIMAGELIST, LVSIL_SMALL, 0));
        EXPECT_EQ(::ImageList_GetImageCount(images), first);
        setText(IDC_FIND_NAME, L"nothing like it");
        search();
        EXPECT_EQ(rows(), 0);
        EXPECT_FALSE(isEnabled(IDOK));
        EXPECT_EQ(status(), L"0 file(s) found.");
        cancel();
    });
}

TEST_F(FindSearchTest, HiddenFilesAndFoldersAreNotFound) {
    smallTree();
    makeFolder(L"secret");
    makeFile(L"secret\\in.dwg");
    makeFile(L"hidden.dwg");
    ASSERT_TRUE(::SetFileAttributesW(root + L"secret", FILE_ATTRIBUTE_HIDDEN));
    ASSERT_TRUE(::SetFileAttributesW(root + L"hidden.dwg", FILE_ATTRIBUTE_HIDDEN));
    ASSERT_TRUE(::GetFileAttributesW(root + L"secret") & FILE_ATTRIBUTE_HIDDEN);
    for (const auto walk : {kKtUiFindSettled, kKtUiFindOnce}) {
        KtUiSetFindFileWalk(walk);
        run(
            [&] {
                search();
                EXPECT_EQ(sortedColumn(0), (FoundTexts{L"one.dwg", L"three.dwg"}));
                cancel();
            },
            1);
    }
}

TEST_F(FindSearchTest, LongAndChineseNamesAreFound) {
    makeFolder(L"图纸");
    makeFile(L"图纸\\施工图.dwg", 10);
    const CString longName = CString(L'n', 246) + L".dwg";
    ASSERT_EQ(longName.GetLength(), 250);
    makeFile(longName, 12);
    for (const auto walk : {kKtUiFindSettled, kKtUiFindOnce}) {
        KtUiSetFindFileWalk(walk);
        run(
            [&] {
                search();
                EXPECT_EQ(sortedColumn(0), (FoundTexts{longName.GetString(), L"施工图.dwg"}));
                EXPECT_EQ(sortedColumn(1),
                          (FoundTexts{root.Left(root.GetLength() - 1).GetString(), in(root, L"图纸")}));
                EXPECT_EQ(sortedColumn(2), (FoundTexts{L"10 B", L"12 B"}));
                cancel();
            },
            1);
    }
}

TEST_F(FindSearchTest, AFolderThatVanishesOnTheWayIsLeft) {
    smallTree();
    makeFolder(L"zzz");
    makeFile(L"zzz\\late.dwg");
    for (const auto walk : {kKtUiFindSettled, kKtUiFindOnce}) {
        KtUiSetFindFileWalk(walk);
        bool isGone = false;
        const ui_test::SentMessages sent([&](const CWPSTRUCT& message) {
            if (message.hwnd != dialog || message.message < WM_FIND_STATUS ||
                message.message > WM_FIND_BATCH || isGone)
                return;
            isGone = true;
            removeTree(root + L"sub\\");
        });
        run(
            [&] {
                search();
                EXPECT_TRUE(isGone);
                EXPECT_EQ(sortedColumn(0), (FoundTexts{L"late.dwg", L"one.dwg"}));
                cancel();
            },
            1);
        makeFolder(L"sub");
    }
}

TEST_F(FindSearchTest, AStartThatIsNotThereFindsNothing) {
    run([&] {
        removeTree(root);
        search();
        EXPECT_EQ(rows(), 0);
        EXPECT_FALSE(isEnabled(IDOK));
        cancel();
    });
}

TEST_F(FindSearchTest, TheChosenFileGoesToTheCaller) {
    smallTree();
    EXPECT_TRUE(run([&] {
        search();
        select(0, false);
        select(1);
        command(IDOK);
    }));
    EXPECT_NE(outFile, L"before");
    EXPECT_NE(::GetFileAttributesW((outFolder + L"\\" + outFile).c_str()), INVALID_FILE_ATTRIBUTES);
}

TEST_F(FindSearchTest, OfSeveralSelectedFilesTheFirstGoes) {
    smallTree();
    std::wstring first;
    EXPECT_TRUE(run([&] {
        search();
        select(0, false);
        select(2);
        select(1);
        first = cell(1, 0);
        command(IDOK);
    }));
    EXPECT_EQ(outFile, first);
}

TEST_F(FindSearchTest, WithNothingSelectedOkDoesNothing) {
    smallTree();
    EXPECT_FALSE(run([&] {
        search();
        select(0, false);
        command(IDOK);
        ui_test::pump();
        EXPECT_TRUE(::IsWindowVisible(dialog));
        cancel();
    }));
}

TEST_F(FindSearchTest, ADoubleClickChooses) {
    makeFile(L"a.dwg");
    EXPECT_TRUE(run([&] {
        search();
        NMITEMACTIVATE click = {};
        click.hdr.hwndFrom = list();
        click.hdr.idFrom = IDC_FIND_RESULTS;
        click.hdr.code = static_cast<UINT>(NM_DBLCLK);
        ::SendMessageW(dialog, WM_NOTIFY, IDC_FIND_RESULTS, reinterpret_cast<LPARAM>(&click));
    }));
    EXPECT_EQ(outFile, L"a.dwg");
    EXPECT_EQ(outFolder + L"\\", root.GetString());
}

TEST_F(FindSearchTest, AColumnSortsTheRows) {
    makeFolder(L"A");
    makeFile(L"b.dwg", 30000);
    makeFile(L"A\\c.txt", 100);
    makeFile(L"a.dxf", 2000);
    setWritten(L"b.dwg", 1'100'000'000);
    setWritten(L"A\\c.txt", 1'200'000'000);
    setWritten(L"a.dxf", 1'000'000'000);
    run([&] {
        search();
        clickColumn(2);
        EXPECT_EQ(column(0), (FoundTexts{L"b.dwg", L"a.dxf", L"c.txt"})) << "sizes fall at first";
        clickColumn(2);
        EXPECT_EQ(column(0), (FoundTexts{L"c.txt", L"a.dxf", L"b.dwg"}));
        clickColumn(0);
        EXPECT_EQ(column(0), (FoundTexts{L"a.dxf", L"b.dwg", L"c.txt"}))
            << "another column keeps the direction";
        clickColumn(0);
        EXPECT_EQ(column(0), (FoundTexts{L"c.txt", L"b.dwg", L"a.dxf"}));
        clickColumn(4);
        EXPECT_EQ(column(0), (FoundTexts{L"c.txt", L"b.dwg", L"a.dxf"}));
        clickColumn(4);
        EXPECT_EQ(column(0), (FoundTexts{L"a.dxf", L"b.dwg", L"c.txt"}));
        clickColumn(3);
        EXPECT_EQ(column(0), (FoundTexts{L"b.dwg", L"a.dxf", L"c.txt"}));
        clickColumn(1);
        EXPECT_EQ(cell(2, 0), L"c.txt");
        cancel();
    });
    run([&] {
        search();
        clickColumn(0);
        EXPECT_EQ(column(0), (FoundTexts{L"a.dxf", L"b.dwg", L"c.txt"})) << "the first column rises at first";
        cancel();
    });
}

HANDLE WINAPI noThread(LPSECURITY_ATTRIBUTES, SIZE_T, LPTHREAD_START_ROUTINE, LPVOID, DWORD, LPDWORD) {
    return nullptr;
}

TEST_F(FindSearchTest, WithoutAThreadTheDialogIsIdleAgain) {
    smallTree();
    run([&] {
        const ui_test::ReplacedImport refuses(::GetModuleHandleW(L"ktui.dll"), "CreateThread", &noThread);
        EXPECT_TRUE(refuses.isThere());
        command(IDC_FIND_START);
        EXPECT_TRUE(isEnabled(IDC_FIND_START));
        EXPECT_FALSE(isEnabled(IDC_FIND_STOP));
        cancel();
    });
}

std::atomic<HMODULE> givenBack = nullptr;

void WINAPI givesBack(HMODULE module, DWORD code) {
    givenBack = module;
    ::FreeLibraryAndExitThread(module, code);
}

TEST_F(FindSearchTest, TheThreadHoldsTheLibraryAndGivesItBackAtItsEnd) {
    const HMODULE toolkit = ::GetModuleHandleW(L"ktui.dll");
    smallTree();
    givenBack = ::GetModuleHandleW(nullptr);
    run([&] {
        const ui_test::ReplacedImport ends(toolkit, "FreeLibraryAndExitThread", &givesBack);
        EXPECT_TRUE(ends.isThere());
        search();
        EXPECT_TRUE(ui_test::pump_until([] { return givenBack != ::GetModuleHandleW(nullptr); }));
        cancel();
    });
    EXPECT_EQ(givenBack.load(), toolkit);
}

/// How the system was asked about a file, and for the text of its date.
struct AskedOfSystem {
    std::wstring opened, typed;
    std::vector<DWORD> opening, typing, dating;
} askedOfSystem;

HANDLE WINAPI opensFile(LPCWSTR path, DWORD access, DWORD share, LPSECURITY_ATTRIBUTES security,
                        DWORD creation, DWORD flags, HANDLE sample) {
    askedOfSystem.opened = path;
    askedOfSystem.opening = {access, share, creation, flags};
    return ::CreateFileW(path, access, share, security, creation, flags, sample);
}
DWORD_PTR WINAPI asksType(LPCWSTR path, DWORD attributes, SHFILEINFOW* info, UINT size, UINT flags) {
    askedOfSystem.typed = path;
    askedOfSystem.typing = {attributes, size, flags};
    return ::SHGetFileInfoW(path, attributes, info, size, flags);
}
int WINAPI dateFormat(LCID locale, DWORD flags, const SYSTEMTIME* time, LPCWSTR format, LPWSTR text,
                      int room) {
    askedOfSystem.dating = {locale, flags, time->wYear, format != nullptr};
    return ::GetDateFormatW(locale, flags, time, format, text, room);
}

TEST_F(FindSearchTest, TheSystemIsAskedAboutAFileThatStaysAsItIs) {
    makeFile(L"a.dwg");
    setWritten(L"a.dwg", 1'600'000'000);
    run([&] {
        const HMODULE toolkit = ::GetModuleHandleW(L"ktui.dll");
        const ui_test::ReplacedImport opens(toolkit, "CreateFileW", &opensFile);
        const ui_test::ReplacedImport types(toolkit, "SHGetFileInfoW", &asksType);
        const ui_test::ReplacedImport dates(toolkit, "GetDateFormatW", &dateFormat);
        EXPECT_TRUE(opens.isThere() && types.isThere() && dates.isThere());
        askedOfSystem = {};
        search();
        cancel();
    });
    const std::wstring path = (root + L"a.dwg").GetString();
    EXPECT_EQ(askedOfSystem.opened, path);
    EXPECT_EQ(askedOfSystem.opening, (std::vector<DWORD>{0, FILE_SHARE_READ, OPEN_EXISTING, 0}));
    EXPECT_EQ(askedOfSystem.typed, path);
    EXPECT_EQ(askedOfSystem.typing,
              (std::vector<DWORD>{FILE_ATTRIBUTE_NORMAL, sizeof(SHFILEINFOW),
                                  SHGFI_USEFILEATTRIBUTES | SHGFI_ICON | SHGFI_TYPENAME}));
    EXPECT_EQ(askedOfSystem.dating, (std::vector<DWORD>{LOCALE_USER_DEFAULT, 0, 2020, 0}));
}

TEST_F(FindSearchTest, NoHandleOfAFileOrThreadStaysOpen) {
    smallTree();
    for (const auto walk : {kKtUiFindSettled, kKtUiFindOnce}) {
        KtUiSetFindFileWalk(walk);
        run([&] {
            const OpenHandles handles(::GetModuleHandleW(L"ktui.dll"));
            search();
            EXPECT_GT(rows(), 0);
            EXPECT_GE(OpenHandles::Opened(), walk == kKtUiFindSettled ? 1 + rows() : 1) << "thread and files";
            EXPECT_EQ(OpenHandles::Left(), 0u);
            cancel();
        });
    }
}

std::atomic<int> iconsDestroyed = 0;

BOOL WINAPI countsIcon(HICON icon) {
    ++iconsDestroyed;
    return ::DestroyIcon(icon);
}

TEST_F(FindSearchTest, TheIconOfEachRowIsGivenBack) {
    smallTree();
    run([&] {
        const ui_test::ReplacedImport counts(::GetModuleHandleW(L"ktui.dll"), "DestroyIcon", &countsIcon);
        EXPECT_TRUE(counts.isThere());
        iconsDestroyed = 0;
        search();
        EXPECT_GT(rows(), 0);
        EXPECT_EQ(iconsDestroyed, rows());
        cancel();
    });
}

TEST_F(FindSearchTest, EnterInTheNameBoxSearches) {
    makeFile(L"a.dwg");
    makeFile(L"b.dwg");
    run([&] {
        const HWND edit = ::GetWindow(item(IDC_FIND_NAME), GW_CHILD);
        ::SetFocus(edit);
        ::SetWindowTextW(edit, L"a");
        ::PostMessageW(edit, WM_KEYDOWN, VK_RETURN, 0);
        EXPECT_TRUE(ui_test::pump_until([&] { return rows() > 0 && !isSearching(); }));
        EXPECT_EQ(column(0), (FoundTexts{L"a.dwg"}));
        EXPECT_TRUE(::IsWindowVisible(page(0))) << "the key is the dialog's and not the page's";
        cancel();
    });
}

}  // namespace
