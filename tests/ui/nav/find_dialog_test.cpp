// The find dialog at its start: its texts, its controls, where they stand.
#include <map>

#include "find_fixture.h"
#include "in_language.h"
#include "message_text.h"
#include "resting_mouse.h"
#include "told_message.h"
#include "without_strings.h"

namespace {

std::wstring tabTitle(HWND tabs, int index) {
    wchar_t text[100] = {};
    TCITEMW tab = {};
    tab.mask = TCIF_TEXT;
    tab.pszText = text;
    tab.cchTextMax = 100;
    ::SendMessageW(tabs, TCM_GETITEMW, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&tab));
    return text;
}

struct ColumnSeen {
    std::wstring title;
    int alignment;
    int width;
    int subItem;
    bool operator==(const ColumnSeen&) const = default;
};

ColumnSeen columnOf(HWND list, int index) {
    wchar_t text[100] = {};
    LVCOLUMNW column = {};
    column.mask = LVCF_TEXT | LVCF_FMT | LVCF_WIDTH | LVCF_SUBITEM;
    column.pszText = text;
    column.cchTextMax = 100;
    ::SendMessageW(list, LVM_GETCOLUMNW, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&column));
    return {text, column.fmt & LVCFMT_JUSTIFYMASK, column.cx, column.iSubItem};
}

/// The text of a control's tip in any tool-tip window of the thread; empty for none.
std::wstring tipOf(HWND control) {
    struct Search {
        HWND control;
        std::wstring text;
    } search{control, {}};
    ::EnumThreadWindows(
        ::GetCurrentThreadId(),
        [](HWND window, LPARAM parameter) -> BOOL {
            wchar_t name[40] = {};
            ::GetClassNameW(window, name, 40);
            if (wcscmp(name, TOOLTIPS_CLASSW) != 0) return TRUE;
            auto& wanted = *reinterpret_cast<Search*>(parameter);
            const auto count = static_cast<int>(::SendMessageW(window, TTM_GETTOOLCOUNT, 0, 0));
            for (int i = 0; i < count; ++i) {
                wchar_t text[1024] = {};
                TTTOOLINFOW tool = {};
                tool.cbSize = TTTOOLINFOW_V2_SIZE;
                tool.lpszText = text;
                ::SendMessageW(window, TTM_ENUMTOOLSW, static_cast<WPARAM>(i),
                               reinterpret_cast<LPARAM>(&tool));
                if (reinterpret_cast<HWND>(tool.uId) != wanted.control) continue;
                tool.lpszText = text;
                ::SendMessageW(window, TTM_GETTEXTW, 1024, reinterpret_cast<LPARAM>(&tool));
                if (text[0] != L'\0') wanted.text = text;
            }
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&search));
    return search.text;
}

FoundTexts typesOf(HWND box) {
    FoundTexts texts;
    const auto count = static_cast<int>(::SendMessageW(box, CB_GETCOUNT, 0, 0));
    for (int i = 0; i < count; ++i) {
        wchar_t text[200] = {};
        ::SendMessageW(box, CB_GETLBTEXT, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(text));
        texts.emplace_back(text);
    }
    return texts;
}

TEST_F(FindTest, StartsWithItsTexts) {
    run([this] {
        EXPECT_EQ(caption(), L"Find");
        EXPECT_EQ(tabTitle(item(IDC_FIND_TABS), 0), L"Name && Location");
        EXPECT_EQ(tabTitle(item(IDC_FIND_TABS), 1), L"Date Modified");
        EXPECT_EQ(::SendMessageW(item(IDC_FIND_TABS), TCM_GETITEMCOUNT, 0, 0), 2);
        EXPECT_EQ(columnOf(list(), 0), (ColumnSeen{L"Name", LVCFMT_LEFT, 120, 0}));
        EXPECT_EQ(columnOf(list(), 1), (ColumnSeen{L"In Folder", LVCFMT_LEFT, 140, 1}));
        EXPECT_EQ(columnOf(list(), 2), (ColumnSeen{L"Size", LVCFMT_RIGHT, 60, 2}));
        EXPECT_EQ(columnOf(list(), 3), (ColumnSeen{L"Type", LVCFMT_LEFT, 60, 2}));
        EXPECT_EQ(columnOf(list(), 4), (ColumnSeen{L"Modified", LVCFMT_LEFT, 120, 3}));
        EXPECT_EQ(status(), L"0 file(s) found.");
        cancel();
    });
}

class FindTexts : public FindTest {
protected:
    /// The dialog speaks Chinese, but for what its templates say.
    void expectChinese() {
        EXPECT_EQ(tabTitle(item(IDC_FIND_TABS), 0), L"名称和位置");
        EXPECT_EQ(tabTitle(item(IDC_FIND_TABS), 1), L"修改日期");
        const wchar_t* const titles[] = {L"名称", L"所在文件夹", L"大小", L"类型", L"修改时间"};
        for (int i = 0; i < 5; ++i) EXPECT_EQ(columnOf(list(), i).title, titles[i]);
        EXPECT_EQ(tipOf(item(IDC_FIND_NEW)), L"清除搜索结果，并将所有搜索选项重置为默认值。");
        EXPECT_EQ(tipOf(list()),
                  L"列出搜索到的所有文件。要将文件传递到标准文件选择对话框，请选择文件并选择“确定”。与允许"
                  L"选择多个文件的标准文件选择对话框一起使用时，可以从“搜索结果”传递多个文件。");
        EXPECT_EQ(tipOf(item(IDC_FIND_NAME)),
                  L"指定搜索的全部或部分文件名。输入多个文件名时，将每个文件名用引号引起来。");
        EXPECT_EQ(tipOf(item(IDC_FIND_TYPE)),
                  L"指定要搜索的文件类型。可用文件类型限于特定的标准文件选择对话框所支持的文件类型。");
        EXPECT_EQ(tipOf(item(IDC_FIND_LOCATION)),
                  L"指定搜索的位置。输入位置、从列表中选择位置或选择“浏览”以确定位置。输入多个位置名时，将每"
                  L"个位置用引号"
                  L"引起来。");
        EXPECT_EQ(tipOf(item(IDC_FIND_BROWSE)), L"显示“浏览文件夹”对话框，从中可以浏览到要搜索的位置。");
        EXPECT_EQ(tipOf(item(IDC_FIND_SUBFOLDERS)), L"搜索“搜索”位置中的所有子文件夹。");
        EXPECT_EQ(tipOf(item(IDC_FIND_ANY_DATE)), L"不使用日期过滤器进行搜索。");
        EXPECT_EQ(tipOf(item(IDC_FIND_BY_DATE)), L"将搜索限制在指定时间范围内创建或修改的文件中。");
        EXPECT_EQ(locations()[1].substr(0, 9), L"本地硬盘驱动器(C");
        search();
        EXPECT_EQ(status(), L"找到 1 个文件。");
        EXPECT_EQ(caption(), L"查找: 名为*.*的文件");
    }
};

TEST_F(FindTexts, AreChineseForAChineseUser) {
    const ui_test::InLanguage chinese(ui_test::kChinese);
    makeFile(L"a.dwg");
    run([this] {
        EXPECT_EQ(caption(), L"查找");
        expectChinese();
        cancel();
    });
}

TEST_F(FindTexts, AreBuiltInWhereTheLibraryHasNone) {
    const ui_test::WithoutStrings strings;
    makeFile(L"a.dwg");
    run([this] {
        EXPECT_EQ(status(), L"找到 0 个文件。");
        expectChinese();
        ui_test::when_dialog(L"Test Caption", [](HWND box) {
            EXPECT_EQ(ui_test::message_text(box), L"此举将清除当前搜索结果。");
            ::PostMessageW(box, WM_COMMAND, IDCANCEL, 0);
        });
        command(IDC_FIND_NEW);
        cancel();
    });
}

TEST_F(FindTest, GivesEachFieldItsTip) {
    const std::pair<int, const wchar_t*> tips[] = {
        {IDC_FIND_NEW, L"Clears the search results and sets all search options back to their defaults."},
        {IDC_FIND_RESULTS,
         L"Lists all files that were found. To pass a file to the file selection dialog, select it and "
         L"choose "
         L"OK. With a file selection dialog that takes several files, several can be passed from the search "
         L"results."},
        {IDC_FIND_NAME,
         L"All or part of the names of the files to find. Put each of several names in quotation marks."},
        {IDC_FIND_TYPE,
         L"The type of the files to find: one of those that the file selection dialog supports."},
        {IDC_FIND_LOCATION,
         L"Where to search. Type a location, choose one from the list, or choose Browse. Put each of several "
         L"locations in quotation marks."},
        {IDC_FIND_BROWSE, L"Shows the Browse for Folder dialog, where a location to search can be chosen."},
        {IDC_FIND_SUBFOLDERS, L"Searches all subfolders of the location, too."},
        {IDC_FIND_ANY_DATE, L"Searches without a filter by date."},
        {IDC_FIND_BY_DATE, L"Searches only for files created or modified within a time."}};
    run([&, this] {
        for (const auto& [id, tip] : tips) EXPECT_EQ(tipOf(item(id)), tip) << id;
        for (const int id : {IDC_FIND_START, IDC_FIND_STOP, IDOK, IDCANCEL, IDHELP, IDC_FIND_BETWEEN})
            EXPECT_EQ(tipOf(item(id)), L"") << id;
        cancel();
    });
}

TEST_F(FindTest, TheMouseAtRestBringsATip) {
    run([this] {
        const auto tipOver = [this](int id) {
            CRect place;
            ::GetWindowRect(item(id), &place);
            std::wstring shown;
            EXPECT_TRUE(RestMouse(place.CenterPoint(), [&] {
                return (shown = ShownTip()) == tipOf(item(id));
            })) << id;
            return shown;
        };
        EXPECT_NE(tipOver(IDC_FIND_NEW), L"");
        EXPECT_NE(tipOver(IDC_FIND_BROWSE), L"");
        ::SendMessageW(item(IDC_FIND_TABS), TCM_SETCURFOCUS, 1, 0);
        EXPECT_NE(tipOver(IDC_FIND_BY_DATE), L"");
        cancel();
    });
}

TEST_F(FindTest, ThePagesAreMadeInTheOrderOfTheirTabs) {
    std::vector<int> made;
    const ui_test::SentMessages watch([&](const CWPSTRUCT& message) {
        if (message.message != WM_INITDIALOG) return;
        for (const int of : {IDC_FIND_NAME, IDC_FIND_ANY_DATE})
            if (::GetDlgItem(message.hwnd, of) != nullptr) made.push_back(of);
    });
    run([this] { cancel(); });
    EXPECT_EQ(made, (std::vector<int>{IDC_FIND_NAME, IDC_FIND_ANY_DATE}));
}

TEST_F(FindTest, ANewSearchAsksInTheUsersLanguage) {
    const std::pair<LANGID, const wchar_t*> questions[] = {
        {ui_test::kEnglish, L"This will clear the current search results."},
        {ui_test::kChinese, L"此举将清除当前搜索结果。"}};
    for (const auto& [language, question] : questions) {
        const ui_test::InLanguage user(language);
        ForgetMessages();
        run([this] {
            ui_test::when_dialog(L"Test Caption",
                                 [](HWND box) { ::PostMessageW(box, WM_COMMAND, IDCANCEL, 0); });
            command(IDC_FIND_NEW);
            cancel();
        });
        EXPECT_EQ(ToldMessages(),
                  (std::vector<ToldMessage>{{L"Test Caption", question, kToldOkCancel, nullptr}}));
    }
}

TEST_F(FindTest, StartsIdle) {
    run([this] {
        for (const int id : {IDC_FIND_START, IDC_FIND_NEW, IDCANCEL, IDHELP, IDC_FIND_NAME, IDC_FIND_TYPE,
                             IDC_FIND_LOCATION, IDC_FIND_BROWSE, IDC_FIND_SUBFOLDERS})
            EXPECT_TRUE(isEnabled(id)) << id;
        EXPECT_FALSE(isEnabled(IDC_FIND_STOP));
        EXPECT_FALSE(isEnabled(IDOK));
        EXPECT_TRUE(isChecked(IDC_FIND_SUBFOLDERS));
        EXPECT_EQ(text(IDC_FIND_NAME), L"");
        EXPECT_EQ(locations()[static_cast<size_t>(selectedLocation())], root.GetString());
        EXPECT_TRUE(::IsWindowVisible(page(0)));
        EXPECT_FALSE(::IsWindowVisible(page(1)));
        const auto images =
            reinterpret_cast<HIMAGELIST>(::SendMessageW(list(), LVM_GETIMAGELIST, LVSIL_SMALL, 0));
        int width = 0, height = 0;
        ::ImageList_GetIconSize(images, &width, &height);
        EXPECT_EQ(width, 16);
        EXPECT_EQ(height, 16);
        cancel();
    });
    EXPECT_EQ(host.pushes, 1);
    EXPECT_EQ(host.pops, 1);
}

TEST_F(FindTest, WhatIsCancelledLeavesTheResultsAlone) {
    EXPECT_FALSE(run([this] { cancel(); }));
    EXPECT_EQ(outFolder, L"before");
    EXPECT_EQ(outFile, L"before");
}

TEST_F(FindTest, ListsTheTypesOfTheFilterAndSelectsOne) {
    const struct { int given, selected; } cases[] = {{1, 0}, {2, 1}, {3, 2}, {0, 0}, {-1, 0}, {4, 0}};
    for (const auto& one : cases)
        run(
            [&] {
                EXPECT_EQ(typesOf(item(IDC_FIND_TYPE)), (FoundTexts{L"Drawing", L"Both", L"All"}));
                EXPECT_EQ(::SendMessageW(item(IDC_FIND_TYPE), CB_GETCURSEL, 0, 0), one.selected) << one.given;
                EXPECT_STREQ(reinterpret_cast<const wchar_t*>(
                                 ::SendMessageW(item(IDC_FIND_TYPE), CB_GETITEMDATA, 1, 0)),
                             L"*.dwg;*.dxf");
                cancel();
            },
            one.given);
}

TEST_F(FindTest, WithoutAFilterThereIsNoTypeAndNothingIsFound) {
    makeFile(L"a.dwg");
    run(
        [this] {
            EXPECT_TRUE(typesOf(item(IDC_FIND_TYPE)).empty());
            search();
            EXPECT_EQ(rows(), 0);
            EXPECT_EQ(caption(), L"Find: Files named ");
            EXPECT_FALSE(isEnabled(IDOK));
            cancel();
        },
        1, nullptr);
}

TEST_F(FindTest, ATabShowsItsPage) {
    run([this] {
        const HWND tabs = item(IDC_FIND_TABS);
        ::SendMessageW(tabs, TCM_SETCURFOCUS, 1, 0);
        EXPECT_FALSE(::IsWindowVisible(page(0)));
        EXPECT_TRUE(::IsWindowVisible(page(1)));
        ::SendMessageW(tabs, TCM_SETCURFOCUS, 0, 0);
        EXPECT_TRUE(::IsWindowVisible(page(0)));
        EXPECT_FALSE(::IsWindowVisible(page(1)));
        cancel();
    });
}

TEST_F(FindTest, HelpIsTheHosts) {
    run([this] {
        click(IDHELP);
        EXPECT_EQ(host.helpCalls, 1);
        cancel();
    });
}

class FindLayoutTest : public FindTest {
protected:
    CRect place(HWND window, HWND in) const {
        CRect at;
        ::GetWindowRect(window, &at);
        ::MapWindowPoints(nullptr, in, reinterpret_cast<POINT*>(&at), 2);
        return at;
    }
    CRect place(int id) const { return place(item(id), dialog); }
    void expectLayout() const {
        CRect client;
        ::GetClientRect(dialog, &client);
        const long w = client.Width(), h = client.Height();
        EXPECT_EQ(place(::FindWindowExW(dialog, nullptr, STATUSCLASSNAMEW, nullptr), dialog),
                  CRect(0, h - 25, w, h));
        for (const int id : {IDC_FIND_START, IDC_FIND_STOP, IDC_FIND_NEW, IDOK, IDCANCEL, IDHELP})
            EXPECT_EQ(place(id).right, w - 10) << id;
        const CRect tabs = place(IDC_FIND_TABS);
        EXPECT_EQ(tabs.left, 10);
        EXPECT_EQ(tabs.top, 10);
        EXPECT_EQ(tabs.Width(), w - place(IDC_FIND_START).Width() - 30);
        for (const int index : {0, 1})
            EXPECT_EQ(place(page(index), dialog),
                      CRect(tabs.left + 5, tabs.top + 25, tabs.right - 5, tabs.bottom - 5));
        EXPECT_EQ(place(IDC_FIND_RESULTS), CRect(10, tabs.bottom + 10, w - 10, h - 45));
        CRect names;
        ::GetClientRect(page(0), &names);
        const auto right = [this](int id) { return place(item(id), page(0)).right; };
        EXPECT_EQ(right(IDC_FIND_NAME), names.right - 10);
        EXPECT_EQ(right(IDC_FIND_TYPE), names.right - 10);
        EXPECT_EQ(right(IDC_FIND_BROWSE), names.right - 10);
        EXPECT_EQ(right(IDC_FIND_LOCATION), place(item(IDC_FIND_BROWSE), page(0)).left - 10);
    }
};

TEST_F(FindLayoutTest, PartsFollowTheSize) {
    run([this] {
        expectLayout();
        const int tops[] = {static_cast<int>(place(IDC_FIND_START).top), static_cast<int>(place(IDHELP).top)};
        const int height = place(IDC_FIND_TABS).Height();
        const int name = place(item(IDC_FIND_NAME), page(0)).Height();
        ::SetWindowPos(dialog, nullptr, 0, 0, 803, 611, SWP_NOMOVE | SWP_NOZORDER);
        expectLayout();
        ::SetWindowPos(dialog, nullptr, 0, 0, 640, 450, SWP_NOMOVE | SWP_NOZORDER);
        expectLayout();
        EXPECT_EQ(place(IDC_FIND_START).top, tops[0]);
        EXPECT_EQ(place(IDHELP).top, tops[1]);
        EXPECT_EQ(place(IDC_FIND_TABS).Height(), height);
        EXPECT_EQ(place(item(IDC_FIND_NAME), page(0)).Height(), name);
        cancel();
    });
}

TEST_F(FindLayoutTest, WhatMovesStaysInItsLayerAndThePagesLieAbove) {
    run([this] {
        std::map<HWND, std::vector<WINDOWPOS>> moves;
        {
            const ui_test::SentMessages watch([&](const CWPSTRUCT& message) {
                if (message.message == WM_WINDOWPOSCHANGING)
                    moves[message.hwnd].push_back(*reinterpret_cast<const WINDOWPOS*>(message.lParam));
            });
            ::SetWindowPos(dialog, nullptr, 0, 0, 803, 611, SWP_NOMOVE | SWP_NOZORDER);
        }
        const auto flagsOf = [&](HWND part) {
            EXPECT_FALSE(moves[part].empty());
            return moves[part].empty() ? 0 : moves[part].front().flags & (SWP_NOZORDER | SWP_NOACTIVATE);
        };
        constexpr UINT kInItsLayer = SWP_NOZORDER | SWP_NOACTIVATE;
        for (const int id :
             {IDC_FIND_START, IDC_FIND_STOP, IDC_FIND_NEW, IDOK, IDCANCEL, IDHELP, IDC_FIND_TABS,
              IDC_FIND_RESULTS, IDC_FIND_NAME, IDC_FIND_TYPE, IDC_FIND_LOCATION, IDC_FIND_BROWSE})
            EXPECT_EQ(flagsOf(item(id)), kInItsLayer) << id;
        EXPECT_EQ(flagsOf(::FindWindowExW(dialog, nullptr, STATUSCLASSNAMEW, nullptr)), kInItsLayer);
        for (const int index : {0, 1}) {
            EXPECT_EQ(flagsOf(page(index)), static_cast<UINT>(SWP_NOACTIVATE)) << index;
            EXPECT_EQ(moves[page(index)].front().hwndInsertAfter, HWND_TOP) << index;
        }
        cancel();
    });
}

TEST_F(FindTest, TheStatusHasOnePaneInTheFontOfTheDialog) {
    run([this] {
        const HWND bar = ::FindWindowExW(dialog, nullptr, STATUSCLASSNAMEW, nullptr);
        EXPECT_EQ(::SendMessageW(bar, SB_GETPARTS, 0, 0), 1);
        EXPECT_EQ(::SendMessageW(bar, WM_GETFONT, 0, 0), ::SendMessageW(dialog, WM_GETFONT, 0, 0));
        cancel();
    });
}

std::vector<UINT> madeImages;

HIMAGELIST WINAPI makesImages(int width, int height, UINT flags, int first, int more) {
    madeImages = {static_cast<UINT>(width), static_cast<UINT>(height), flags, static_cast<UINT>(first),
                  static_cast<UINT>(more)};
    return ::ImageList_Create(width, height, flags, first, more);
}

TEST_F(FindTest, TheImagesOfTheRowsGrowOneByOne) {
    const ui_test::ReplacedImport makes(::GetModuleHandleW(L"ktui.dll"), "ImageList_Create", &makesImages);
    ASSERT_TRUE(makes.isThere());
    run([this] { cancel(); });
    EXPECT_EQ(madeImages, (std::vector<UINT>{16, 16, ILC_COLOR24 | ILC_MASK, 1, 1}));
}

TEST_F(FindTest, ItsAnswersToTheTabsAndTheListAreNone) {
    run([this] {
        const auto answer = [this](int id, UINT code) {
            NMLISTVIEW notice = {};
            notice.hdr = {item(id), static_cast<UINT_PTR>(id), code};
            return ::SendMessageW(dialog, WM_NOTIFY, static_cast<WPARAM>(id),
                                  reinterpret_cast<LPARAM>(&notice));
        };
        EXPECT_EQ(answer(IDC_FIND_TABS, TCN_SELCHANGE), 0);
        EXPECT_EQ(answer(IDC_FIND_RESULTS, NM_DBLCLK), 0);
        EXPECT_EQ(answer(IDC_FIND_RESULTS, LVN_COLUMNCLICK), 0);
        cancel();
    });
}

TEST_F(FindLayoutTest, IsNeverSmallerThan450By300) {
    run([this] {
        MINMAXINFO info = {};
        ::SendMessageW(dialog, WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&info));
        EXPECT_EQ(info.ptMinTrackSize.x, 450);
        EXPECT_EQ(info.ptMinTrackSize.y, 300);
        EXPECT_GE(info.ptMaxTrackSize.x, ::GetSystemMetrics(SM_CXSCREEN));
        cancel();
    });
}

TEST_F(FindLayoutTest, ADropListKeepsItsHeight) {
    run([this] {
        for (const int id : {IDC_FIND_NAME, IDC_FIND_TYPE}) {
            CRect dropped;
            ::SendMessageW(item(id), CB_GETDROPPEDCONTROLRECT, 0, reinterpret_cast<LPARAM>(&dropped));
            EXPECT_GT(dropped.Height(), 100) << id;
        }
        const HWND combo =
            reinterpret_cast<HWND>(::SendMessageW(item(IDC_FIND_LOCATION), CBEM_GETCOMBOCONTROL, 0, 0));
        CRect dropped;
        ::SendMessageW(combo, CB_GETDROPPEDCONTROLRECT, 0, reinterpret_cast<LPARAM>(&dropped));
        EXPECT_GT(dropped.Height(), 100);
        cancel();
    });
}

TEST_F(FindLayoutTest, AnAcceptedDialogRemembersItsPlaceAndACancelledOneDoesNot) {
    makeFile(L"a.dwg");
    const auto sizeOf = [this] {
        CRect at;
        ::GetWindowRect(dialog, &at);
        return at.Size();
    };
    run([this] {
        ::SetWindowPos(dialog, nullptr, 0, 0, 700, 600, SWP_NOMOVE | SWP_NOZORDER);
        cancel();
    });
    run([&, this] {
        EXPECT_NE(sizeOf(), CSize(700, 600));
        ::SetWindowPos(dialog, nullptr, 0, 0, 700, 600, SWP_NOMOVE | SWP_NOZORDER);
        search();
        command(IDOK);
    });
    run([&, this] {
        EXPECT_EQ(sizeOf(), CSize(700, 600));
        expectLayout();
        cancel();
    });
}

}  // namespace
