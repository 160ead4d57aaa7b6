// The application's command line, recent files, help and threads.
#include <afxadv.h>
#include <afxext.h>
#include <kmfc/command_line_info.h>

#include <atomic>
#include <vector>

#include "replaced_import.h"
#include "ui_test.h"

namespace {

/// The class opens what is protected.
class App : public CWinApp {
public:
    using CWinApp::SaveStdProfileSettings;
    std::vector<DWORD_PTR> helped;
    std::vector<CString> opened;
    bool opens = true;
    void WinHelp(DWORD_PTR data, UINT) override { helped.push_back(data); }
    CDocument* OpenDocumentFile(LPCTSTR path) override {
        opened.emplace_back(path);
        return opens ? reinterpret_cast<CDocument*>(this) : nullptr;
    }
};

/// An application of its own in the place of the test program's, with its profile in the registry.
struct AppServices : ::testing::Test {
    AppServices() {
        AfxGetModuleState()->m_pCurrentWinApp = &app;
        app.m_pszRegistryKey = L"ktui test company";
        app.m_pszProfileName = L"services";
    }
    ~AppServices() override {
        AfxGetModuleState()->m_pCurrentWinApp = former;
        ::RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\ktui test company");
    }
    /// Members are made in this order: the former application is asked for first.
    CWinApp* former = AfxGetApp();
    App app;
};

struct Info : CCommandLineInfo {
    explicit Info(std::initializer_list<const wchar_t*> parameters) {
        size_t left = parameters.size();
        for (const wchar_t* parameter : parameters) {
            const bool flag = *parameter == L'/' || *parameter == L'-';
            ParseParam(flag ? parameter + 1 : parameter, flag, --left == 0);
        }
    }
};

CString folder() {
    wchar_t path[MAX_PATH] = {};
    ::GetCurrentDirectoryW(MAX_PATH, path);
    return CString(path) + (path[::wcslen(path) - 1] == L'\\' ? L"" : L"\\");
}

}  // namespace

TEST(CommandLine, WithoutParametersANewFileIsMade) {
    const CCommandLineInfo info;
    EXPECT_EQ(info.m_nShellCommand, CCommandLineInfo::FileNew);
    EXPECT_TRUE(info.m_bShowSplash);
    EXPECT_FALSE(info.m_bRunEmbedded);
    EXPECT_FALSE(info.m_bRunAutomated);
    EXPECT_EQ(CCommandLineInfo::FileNothing, -1);
}

TEST(CommandLine, AFileIsOpenedAndOnlyTheFirstCounts) {
    const Info info({L"plan.dxf", L"other.dxf"});
    EXPECT_EQ(info.m_nShellCommand, CCommandLineInfo::FileOpen);
    EXPECT_STREQ(info.m_strFileName, L"plan.dxf");
    EXPECT_STREQ(info.m_strPrinterName, L"");
}

TEST(CommandLine, FlagsChooseWhatIsDone) {
    EXPECT_EQ(Info({L"/p", L"a"}).m_nShellCommand, CCommandLineInfo::FilePrint);
    EXPECT_EQ(Info({L"-dde"}).m_nShellCommand, CCommandLineInfo::FileDDE);
    EXPECT_EQ(Info({L"/DDE"}).m_nShellCommand, CCommandLineInfo::FileDDE);
    EXPECT_EQ(Info({L"/P", L"a"}).m_nShellCommand, CCommandLineInfo::FileOpen) << "printing is written small";
    EXPECT_EQ(Info({L"/Register"}).m_nShellCommand, CCommandLineInfo::AppRegister);
    EXPECT_EQ(Info({L"/regserver"}).m_nShellCommand, CCommandLineInfo::AppRegister);
    EXPECT_EQ(Info({L"/Unregister"}).m_nShellCommand, CCommandLineInfo::AppUnregister);
    EXPECT_EQ(Info({L"/Unregserver"}).m_nShellCommand, CCommandLineInfo::AppUnregister);
    EXPECT_EQ(Info({L"/unheard-of"}).m_nShellCommand, CCommandLineInfo::FileNew);
}

TEST(CommandLine, PrintingToAPrinterNamesItsDriverAndPort) {
    const Info info({L"/pt", L"plan.dxf", L"plotter", L"driver", L"port", L"more"});
    EXPECT_EQ(info.m_nShellCommand, CCommandLineInfo::FilePrintTo);
    EXPECT_STREQ(info.m_strFileName, L"plan.dxf");
    EXPECT_STREQ(info.m_strPrinterName, L"plotter");
    EXPECT_STREQ(info.m_strDriverName, L"driver");
    EXPECT_STREQ(info.m_strPortName, L"port");
}

TEST(CommandLine, AServerShowsNoSplash) {
    const Info embedded({L"/Embedding"}), automated({L"-Automation"});
    EXPECT_TRUE(embedded.m_bRunEmbedded);
    EXPECT_FALSE(embedded.m_bRunAutomated);
    EXPECT_FALSE(embedded.m_bShowSplash);
    EXPECT_TRUE(automated.m_bRunAutomated);
    EXPECT_FALSE(automated.m_bShowSplash);
}

TEST(CommandLine, NarrowParametersCountToo) {
    CCommandLineInfo info;
    info.ParseParam("plan.dxf", FALSE, TRUE);
    EXPECT_STREQ(info.m_strFileName, L"plan.dxf");
    EXPECT_EQ(info.m_nShellCommand, CCommandLineInfo::FileOpen);
}

TEST_F(AppServices, TheProgramsOwnCommandLineIsHandedOverInOrder) {
    struct Noted : CCommandLineInfo {
        std::vector<CString> all;
        std::vector<BOOL> flags, last;
        void ParseParam(const WCHAR* text, BOOL flag, BOOL isLast) override {
            all.emplace_back(text);
            flags.push_back(flag);
            last.push_back(isLast);
        }
    } noted;
    int count = 0;
    LPWSTR* given = ::CommandLineToArgvW(::GetCommandLineW(), &count);
    app.ParseCommandLine(noted);
    ASSERT_EQ(noted.all.size(), static_cast<size_t>(count - 1));
    for (int i = 1; i < count; ++i) {
        const bool flag = given[i][0] == L'-' || given[i][0] == L'/';
        EXPECT_EQ(noted.flags[static_cast<size_t>(i - 1)], flag);
        EXPECT_STREQ(noted.all[static_cast<size_t>(i - 1)], given[i] + (flag ? 1 : 0));
        EXPECT_EQ(noted.last[static_cast<size_t>(i - 1)], i == count - 1);
    }
    ::LocalFree(given);
}

TEST_F(AppServices, TheNewestFileStandsFirstAndOnce) {
    CRecentFileList list(0, L"files", L"F%d", 3);
    for (const wchar_t* name : {L"C:\\a.dxf", L"C:\\b.dxf", L"C:\\c.dxf", L"C:\\d.dxf"}) list.Add(name);
    EXPECT_STREQ(list[0], L"C:\\d.dxf");
    EXPECT_STREQ(list[1], L"C:\\c.dxf");
    EXPECT_STREQ(list[2], L"C:\\b.dxf");
    list.Add(L"c:\\C.DXF");
    EXPECT_STREQ(list[0], L"c:\\C.DXF");
    EXPECT_STREQ(list[1], L"C:\\d.dxf");
    EXPECT_STREQ(list[2], L"C:\\b.dxf");
    list.Remove(1);
    EXPECT_STREQ(list[1], L"C:\\b.dxf");
    EXPECT_STREQ(list[2], L"");
    list.Remove(3);
    list.Remove(-1);
    EXPECT_STREQ(list[0], L"c:\\C.DXF");
    EXPECT_THROW(list[3], CInvalidArgException*);
    EXPECT_THROW(list[-1], CInvalidArgException*);
    EXPECT_EQ(list.GetSize(), 3);
}

TEST_F(AppServices, ANameWithoutAFolderGetsTheCurrentOne) {
    CRecentFileList list(0, L"files", L"F%d", 2);
    list.Add(L"plan.dxf");
    EXPECT_STREQ(list[0], folder() + L"plan.dxf");
}

TEST_F(AppServices, TheListIsKeptInTheProfileWithoutItsEmptyPlaces) {
    app.WriteProfileString(L"files", L"F3", L"stale");
    CRecentFileList list(0, L"files", L"F%d", 3);
    list.Add(L"C:\\a.dxf");
    list.Add(L"C:\\b.dxf");
    list.WriteList();
    EXPECT_EQ(app.GetProfileString(L"files", L"F1"), L"C:\\b.dxf");
    EXPECT_EQ(app.GetProfileString(L"files", L"F2"), L"C:\\a.dxf");
    EXPECT_EQ(app.GetProfileString(L"files", L"F3", L"none"), L"none");
    CRecentFileList again(0, L"files", L"F%d", 3);
    again.ReadList();
    EXPECT_STREQ(again[0], L"C:\\b.dxf");
    EXPECT_STREQ(again[1], L"C:\\a.dxf");
    EXPECT_STREQ(again[2], L"");
}

TEST_F(AppServices, LongPathsAreShortenedInTheMiddle) {
    CRecentFileList list(0, L"files", L"F%d", 4, 30);
    const CString shown(L"unchanged");
    CString name(shown);
    EXPECT_FALSE(list.GetDisplayName(name, 0, L"C:\\", 3));
    EXPECT_FALSE(list.GetDisplayName(name, -1, L"C:\\", 3));
    EXPECT_FALSE(list.GetDisplayName(name, 4, L"C:\\", 3));
    const auto of = [&](const wchar_t* path, BOOL least = TRUE, LPCTSTR here = L"Q:\\here\\") {
        list.Add(path);
        CString text;
        EXPECT_TRUE(list.GetDisplayName(text, 0, here, static_cast<int>(::wcslen(here)), least));
        EXPECT_LE(text.GetLength(), least ? MAX_PATH : 30);
        return text;
    };
    EXPECT_STREQ(of(L"C:\\plans\\house.dxf"), L"C:\\plans\\house.dxf");
    EXPECT_STREQ(of(L"C:\\plans\\customers\\berlin\\house.dxf"), L"C:\\...\\berlin\\house.dxf");
    EXPECT_STREQ(of(L"\\\\server\\share\\plans\\customers\\house.dxf"), L"\\\\server\\share\\...\\house.dxf")
        << "the share counts as the volume";
    EXPECT_STREQ(of(L"C:\\plans\\a name that is longer than thirty.dxf"),
                 L"a name that is longer than thirty.dxf");
    EXPECT_STREQ(of(L"C:\\plans\\a name that is longer than thirty.dxf", FALSE), L"");
    EXPECT_STREQ(of(L"Q:\\here\\near.dxf"), L"near.dxf") << "a file of the folder at hand";
    EXPECT_STREQ(of(L"Q:\\HERE\\near.dxf"), L"near.dxf");
    EXPECT_STREQ(of(L"Q:\\here\\below\\far.dxf"), L"Q:\\here\\below\\far.dxf");
}

TEST_F(AppServices, TheMenuHasTheFilesInThePlaceOfItsItem) {
    CMenu menu;
    menu.CreatePopupMenu();
    menu.AppendMenu(MF_STRING, 1, L"before");
    menu.AppendMenu(MF_STRING, ID_FILE_MRU_FILE1, L"Recent file");
    menu.AppendMenu(MF_STRING, 2, L"behind");
    app.LoadStdProfileSettings(12);
    const auto update = [&] {
        CCmdUI request;
        request.m_pMenu = &menu;
        request.m_nIndex = 1;
        request.m_nID = menu.GetMenuItemID(1);
        request.m_nIndexMax = static_cast<UINT>(menu.GetMenuItemCount());
        request.DoUpdate(&app, FALSE);
        return request.m_nIndex;
    };
    const auto text = [&](UINT place) {
        CString found;
        menu.GetMenuString(place, found, MF_BYPOSITION);
        return found;
    };
    update();
    EXPECT_STREQ(text(1), L"Recent file");
    EXPECT_TRUE(menu.GetMenuState(1, MF_BYPOSITION) & MF_GRAYED);
    for (int i = 1; i <= 11; ++i) {
        CString path;
        path.Format(L"C:\\%d & more.dxf", i);
        app.AddToRecentFileList(path);
    }
    EXPECT_EQ(update(), 11u) << "the caller goes on behind the last one";
    EXPECT_EQ(menu.GetMenuItemCount(), 13);
    EXPECT_STREQ(text(0), L"before");
    EXPECT_STREQ(text(1), L"&1 C:\\11 && more.dxf");
    EXPECT_STREQ(text(9), L"&9 C:\\3 && more.dxf");
    EXPECT_STREQ(text(10), L"1&0 C:\\2 && more.dxf");
    EXPECT_STREQ(text(11), L"11 C:\\1 && more.dxf");
    EXPECT_STREQ(text(12), L"behind");
    EXPECT_EQ(menu.GetMenuItemID(11), UINT{ID_FILE_MRU_FIRST} + 10);
    EXPECT_FALSE(menu.GetMenuState(1, MF_BYPOSITION) & MF_GRAYED);
    update();
    EXPECT_EQ(menu.GetMenuItemCount(), 13) << "and once more";
}

TEST_F(AppServices, AListThatIsEmptyAgainGivesTheItemItsTextBack) {
    CMenu menu;
    menu.CreatePopupMenu();
    menu.AppendMenu(MF_STRING, ID_FILE_MRU_FILE1, L"Recent file");
    CRecentFileList list(3, L"files", L"F%d", 2);
    CCmdUI request;
    const auto update = [&] {
        request = CCmdUI();
        request.m_pMenu = &menu;
        request.m_nID = ID_FILE_MRU_FILE1;
        request.m_nIndexMax = static_cast<UINT>(menu.GetMenuItemCount());
        list.UpdateMenu(&request);
        CString text;
        menu.GetMenuString(0, text, MF_BYPOSITION);
        return text;
    };
    update();
    list.Add(L"C:\\a.dxf");
    list.Add(L"C:\\b.dxf");
    EXPECT_STREQ(update(), L"&4 C:\\b.dxf") << "numbers begin behind the start";
    EXPECT_EQ(request.m_nIndexMax, 2u);
    EXPECT_TRUE(request.m_bEnableChanged);
    list.Remove(0);
    list.Remove(0);
    EXPECT_STREQ(update(), L"Recent file");
    EXPECT_TRUE(menu.GetMenuState(0, MF_BYPOSITION) & MF_GRAYED);
}

LPWSTR WINAPI otherCommandLine() {
    static wchar_t line[] = L"prog.exe /p -x \"a plan.dxf\"";
    return line;
}

TEST_F(AppServices, FlagsBeginWithEitherSign) {
    struct Noted : CCommandLineInfo {
        std::vector<CString> seen;
        void ParseParam(const WCHAR* parameter, BOOL isFlag, BOOL isLast) override {
            seen.push_back((isFlag ? L"flag " : L"") + CString(parameter) + (isLast ? L" last" : L""));
        }
    } noted;
    const ui_test::ReplacedImport line(::GetModuleHandleW(L"kmfc.dll"), "GetCommandLineW", &otherCommandLine);
    ASSERT_TRUE(line.isThere());
    app.ParseCommandLine(noted);
    EXPECT_EQ(noted.seen, (std::vector<CString>{L"flag p", L"flag x", L"a plan.dxf last"}));
}

TEST_F(AppServices, AFileOfTheMenuIsOpenedOrForgotten) {
    EXPECT_FALSE(app.OnCmdMsg(ID_FILE_MRU_FILE1, CN_COMMAND, nullptr, nullptr)) << "without a list";
    app.LoadStdProfileSettings(3);
    app.AddToRecentFileList(L"C:\\a.dxf");
    app.AddToRecentFileList(L"C:\\b.dxf");
    EXPECT_TRUE(app.OnCmdMsg(ID_FILE_MRU_FIRST + 1, CN_COMMAND, nullptr, nullptr));
    ASSERT_EQ(app.opened.size(), 1u);
    EXPECT_STREQ(app.opened[0], L"C:\\a.dxf");
    EXPECT_STREQ((*app.m_pRecentFileList)[1], L"C:\\a.dxf");
    app.opens = false;
    EXPECT_TRUE(app.OnCmdMsg(ID_FILE_MRU_FILE1, CN_COMMAND, nullptr, nullptr));
    EXPECT_STREQ((*app.m_pRecentFileList)[0], L"C:\\a.dxf") << "what can't be opened leaves the list";
    EXPECT_FALSE(app.OnCmdMsg(ID_FILE_MRU_FIRST + 3, CN_COMMAND, nullptr, nullptr));
}

TEST_F(AppServices, SettingsAreReadAtTheStartAndWrittenAtTheEnd) {
    app.WriteProfileInt(L"Settings", L"PreviewPages", 2);
    app.WriteProfileString(L"Recent File List", L"File1", L"C:\\kept.dxf");
    app.LoadStdProfileSettings();
    EXPECT_EQ(app.m_nNumPreviewPages, 2u);
    ASSERT_TRUE(app.m_pRecentFileList);
    EXPECT_EQ(app.m_pRecentFileList->GetSize(), 4);
    EXPECT_STREQ((*app.m_pRecentFileList)[0], L"C:\\kept.dxf");
    EXPECT_THROW(app.LoadStdProfileSettings(), CInvalidArgException*) << "once only";
    app.AddToRecentFileList(L"C:\\new.dxf");
    app.m_nNumPreviewPages = 1;
    app.SaveStdProfileSettings();
    EXPECT_EQ(app.GetProfileString(L"Recent File List", L"File1"), L"C:\\new.dxf");
    EXPECT_EQ(app.GetProfileString(L"Recent File List", L"File2"), L"C:\\kept.dxf");
    EXPECT_EQ(app.GetProfileInt(L"Settings", L"PreviewPages", 0), 1u);
}

TEST_F(AppServices, WithoutAListTheFilesAreNotRemembered) {
    app.LoadStdProfileSettings(0);
    EXPECT_EQ(app.m_pRecentFileList, nullptr);
    app.AddToRecentFileList(L"C:\\a.dxf");
    EXPECT_THROW(app.AddToRecentFileList(nullptr), CInvalidArgException*);
    app.SaveStdProfileSettings();
    EXPECT_EQ(app.GetProfileString(L"Recent File List", L"File1", L"none"), L"none");
}

TEST_F(AppServices, KeysOfTheRegistryAreOpenedForTheCaller) {
    const HKEY section = app.GetSectionKey(L"part");
    ASSERT_TRUE(section);
    EXPECT_EQ(::RegSetValueExW(section, L"x", 0, REG_SZ, reinterpret_cast<const BYTE*>(L"y"), 4),
              ERROR_SUCCESS);
    ::RegCloseKey(section);
    EXPECT_EQ(app.GetProfileString(L"part", L"x"), L"y");
    const HKEY all = app.GetAppRegistryKey();
    ASSERT_TRUE(all);
    EXPECT_EQ(app.DelRegTree(all, L"part"), ERROR_SUCCESS);
    ::RegCloseKey(all);
    EXPECT_EQ(app.GetProfileString(L"part", L"x", L"gone"), L"gone");
    app.m_pszRegistryKey = nullptr;
    EXPECT_EQ(app.GetAppRegistryKey(), nullptr);
    EXPECT_EQ(app.GetSectionKey(L"part"), nullptr);
}

TEST_F(AppServices, TheHelpFileHasTheEndingOfItsViewer) {
    EXPECT_EQ(app.GetHelpMode(), afxWinHelp);
    app.EnableHtmlHelp();
    EXPECT_EQ(app.GetHelpMode(), afxHTMLHelp);
    app.SetHelpMode(afxWinHelp);
    EXPECT_EQ(app.m_eHelpType, afxWinHelp);
}

namespace {

/// A frame with a handler for help.
class HelpFrame : public CFrameWnd {
public:
    using CFrameWnd::m_nIDHelp;
    using CFrameWnd::m_nIDTracking;

protected:
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(HelpFrame, CFrameWnd)
    ON_COMMAND(ID_HELP, &HelpFrame::OnHelp)
    ON_COMMAND(ID_HELP_INDEX, &HelpFrame::OnHelpIndex)
END_MESSAGE_MAP()

struct HelpInFrame : AppServices {
    HelpInFrame() {
        frame = new HelpFrame;
        frame->Create(nullptr, L"frame", WS_OVERLAPPEDWINDOW, CRect(0, 0, 200, 100));
        app.m_pMainWnd = frame;
    }
    ~HelpInFrame() override {
        app.m_pMainWnd = nullptr;
        frame->DestroyWindow();
    }
    HelpFrame* frame;
};

}  // namespace

TEST_F(HelpInFrame, TheMenuItemAtHandGoesBeforeTheFrame) {
    frame->m_nIDHelp = 130;
    frame->SendMessage(WM_COMMAND, ID_HELP);
    ASSERT_EQ(app.helped.size(), 1u);
    EXPECT_EQ(app.helped[0], 0x20000u + 130);
    frame->m_nIDTracking = 0x8001;
    frame->SendMessage(WM_COMMAND, ID_HELP);
    EXPECT_EQ(app.helped.back(), 0x10000u + 0x8001);
    frame->m_nIDTracking = AFX_IDS_IDLEMESSAGE;
    frame->SendMessage(WM_COMMAND, ID_HELP);
    EXPECT_EQ(app.helped.back(), 0x20000u + 130) << "the idle text is no item";
    EXPECT_EQ(frame->SendMessage(WM_COMMANDHELP, 0, 77), TRUE);
    EXPECT_EQ(app.helped.back(), 77u) << "a context that is given counts";
    const size_t before = app.helped.size();
    frame->m_nIDHelp = 0;
    EXPECT_EQ(frame->SendMessage(WM_COMMANDHELP), FALSE);
    EXPECT_EQ(app.helped.size(), before);
    frame->SendMessage(WM_COMMAND, ID_HELP_INDEX);
    EXPECT_EQ(app.helped.size(), before + 1);
}

TEST_F(HelpInFrame, ADialogIsHelpedByItsTemplate) {
    CDialog dialog(123);
    EXPECT_EQ(AfxCallWndProc(&dialog, nullptr, WM_COMMANDHELP, 0, 0), TRUE);
    ASSERT_FALSE(app.helped.empty());
    EXPECT_EQ(app.helped.back(), 0x20000u + 123);
    CDialog nameless;
    EXPECT_EQ(AfxCallWndProc(&nameless, nullptr, WM_COMMANDHELP, 0, 0), FALSE);
}

TEST_F(HelpInFrame, TheHelpKeyReachesAFrameThatHandlesItFromDialogsAndMenus) {
    frame->m_nIDHelp = 130;
    MSG key = {};
    key.message = WM_KEYDOWN;
    key.wParam = VK_F1;
    EXPECT_TRUE(app.ProcessMessageFilter(MSGF_DIALOGBOX, &key));
    EXPECT_EQ(app.helped.size(), 1u);
    EXPECT_TRUE(app.ProcessMessageFilter(MSGF_MENU, &key));
    EXPECT_EQ(app.helped.size(), 2u);
    EXPECT_FALSE(app.ProcessMessageFilter(MSGF_SCROLLBAR, &key));
    key.lParam = 1 << 30;
    EXPECT_FALSE(app.ProcessMessageFilter(MSGF_MENU, &key)) << "a key held down asks once";
    key.lParam = 0;
    key.wParam = VK_F2;
    EXPECT_FALSE(app.ProcessMessageFilter(MSGF_MENU, &key));
    key.wParam = VK_F1;
    key.message = WM_KEYUP;
    EXPECT_FALSE(app.ProcessMessageFilter(MSGF_MENU, &key));
    EXPECT_FALSE(app.ProcessMessageFilter(MSGF_MENU, nullptr));
    EXPECT_EQ(app.helped.size(), 2u);
    CFrameWnd* plain = new CFrameWnd;
    plain->Create(nullptr, L"plain");
    app.m_pMainWnd = plain;
    key.message = WM_KEYDOWN;
    EXPECT_FALSE(app.ProcessMessageFilter(MSGF_MENU, &key)) << "nobody handles help";
    plain->DestroyWindow();
    app.m_pMainWnd = frame;
}

namespace {

std::atomic<int> thread_steps;

class WorkThread : public CWinThread {
    DECLARE_DYNCREATE(WorkThread)
public:
    BOOL InitInstance() override {
        thread_steps |= 1;
        if (AfxGetThread() == this) thread_steps |= 2;
        ::PostThreadMessageW(::GetCurrentThreadId(), WM_QUIT, 5, 0);
        return TRUE;
    }
    int ExitInstance() override {
        thread_steps |= 4;
        return CWinThread::ExitInstance();
    }
};
IMPLEMENT_DYNCREATE(WorkThread, CWinThread)

}  // namespace

TEST(ThreadOfAClass, IsMadeByItsClassAndRuns) {
    thread_steps = 0;
    CWinThread* thread =
        AfxBeginThread(RUNTIME_CLASS(WorkThread), THREAD_PRIORITY_BELOW_NORMAL, 0, CREATE_SUSPENDED);
    ASSERT_TRUE(thread);
    EXPECT_EQ(thread->GetThreadPriority(), THREAD_PRIORITY_BELOW_NORMAL);
    EXPECT_EQ(thread_steps, 0) << "suspended";
    HANDLE handle = nullptr;
    ::DuplicateHandle(::GetCurrentProcess(), thread->m_hThread, ::GetCurrentProcess(), &handle, 0, FALSE,
                      DUPLICATE_SAME_ACCESS);
    thread->ResumeThread();
    ASSERT_EQ(::WaitForSingleObject(handle, 20000), WAIT_OBJECT_0);
    DWORD code = 0;
    ::GetExitCodeThread(handle, &code);
    ::CloseHandle(handle);
    EXPECT_EQ(code, 5u);
    EXPECT_EQ(thread_steps, 7);
}

TEST(ThreadOfAClass, AnotherClassIsRefused) {
    EXPECT_THROW(AfxBeginThread(static_cast<CRuntimeClass*>(nullptr)), CInvalidArgException*);
    EXPECT_THROW(AfxBeginThread(RUNTIME_CLASS(CWnd)), CInvalidArgException*);
}
