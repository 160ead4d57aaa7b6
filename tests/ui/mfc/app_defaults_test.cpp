// What an application does by itself: start, run and end, cursors and icons, help, the modal state of a
// frame.
#include <afxext.h>

#include <vector>

#include "replaced_import.h"
#include "ui_test.h"

namespace {

/// Notes its life and what it was to tell.
class App : public CWinApp {
public:
    explicit App(LPCTSTR name = nullptr) : CWinApp(name) {}
    std::vector<std::string> life;
    std::vector<std::wstring> told;
    BOOL inits = TRUE, starts = TRUE;
    int modeless = 0;

    BOOL InitApplication() override {
        life.push_back("application");
        return starts && CWinApp::InitApplication();
    }
    BOOL InitInstance() override {
        life.push_back("instance");
        return inits && CWinApp::InitInstance();
    }
    int Run() override {
        life.push_back("run");
        return 17;
    }
    int ExitInstance() override {
        life.push_back("exit");
        CWinApp::ExitInstance();
        return 18;
    }
    int DoMessageBox(LPCTSTR text, UINT, UINT) override {
        told.emplace_back(text);
        return IDOK;
    }
    int run_itself() { return CWinApp::Run(); }
};

/// In the place of the test program's application and thread.
struct AppDefaults : ::testing::Test {
    AppDefaults() {
        state.m_pCurrentWinApp = &app;
        former->m_pMainWnd = nullptr;
    }
    ~AppDefaults() override {
        state.m_hCurrentInstanceHandle = instance;
        state.m_lpszCurrentAppName = name;
        state.m_pCurrentWinApp = former;
        // The thread's object is the application that was initialised last.
        AfxWinInit(instance, nullptr, nullptr, SW_SHOW);
        state.m_lpszCurrentAppName = name;
        ::RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\ktui test company");
    }
    AFX_MODULE_STATE& state = *AfxGetModuleState();
    CWinApp* const former = AfxGetApp();
    const HINSTANCE instance = state.m_hCurrentInstanceHandle;
    const LPCTSTR name = state.m_lpszCurrentAppName;
    App app;
};

struct HelpCall {
    HWND window;
    std::wstring file;
    UINT command;
    ULONG_PTR data;
};
std::vector<HelpCall>& help_calls() {
    static std::vector<HelpCall> calls;
    return calls;
}
BOOL help_answer = TRUE;
BOOL WINAPI note_help(HWND window, LPCWSTR file, UINT command, ULONG_PTR data) {
    help_calls().push_back({window, file, command, data});
    return help_answer;
}

CString text_of_id(UINT id) {
    CString text;
    EXPECT_TRUE(text.LoadString(id));
    return text;
}

using Life = std::vector<std::string>;

}  // namespace

TEST_F(AppDefaults, ItStartsRunsAndEndsInThisOrder) {
    EXPECT_EQ(AfxWinMain(instance, nullptr, nullptr, SW_SHOW), 17);
    EXPECT_EQ(app.life, (Life{"application", "instance", "run"}));
}

TEST_F(AppDefaults, AnInstanceThatIsRefusedTakesItsWindowAlongAndEnds) {
    app.inits = FALSE;
    auto* const frame = new CFrameWnd;
    frame->Create(nullptr, L"frame");
    const HWND window = frame->m_hWnd;
    app.m_pMainWnd = frame;
    EXPECT_EQ(AfxWinMain(instance, nullptr, nullptr, SW_SHOW), 18);
    EXPECT_EQ(app.life, (Life{"application", "instance", "exit"}));
    EXPECT_FALSE(::IsWindow(window));
    app.m_pMainWnd = nullptr;
}

TEST_F(AppDefaults, AnApplicationThatIsRefusedNeverBegins) {
    app.starts = FALSE;
    EXPECT_EQ(AfxWinMain(instance, nullptr, nullptr, SW_SHOW), -1);
    EXPECT_EQ(app.life, (Life{"application"}));
}

TEST_F(AppDefaults, WithoutAnApplicationNothingRuns) {
    state.m_pCurrentWinApp = nullptr;
    EXPECT_EQ(AfxWinMain(instance, nullptr, nullptr, SW_SHOW), -1);
    EXPECT_TRUE(app.life.empty());
}

TEST_F(AppDefaults, TheStartGivesNamesAndTheCommandLine) {
    wchar_t line[] = L"/p plan.dxf";
    EXPECT_TRUE(AfxWinInit(instance, nullptr, line, SW_SHOWMINIMIZED));
    EXPECT_STREQ(app.m_lpCmdLine, L"/p plan.dxf");
    EXPECT_EQ(app.m_nCmdShow, SW_SHOWMINIMIZED);
    EXPECT_EQ(app.m_hInstance, instance);
    EXPECT_STREQ(app.m_pszExeName, L"mfc_application_test");
    EXPECT_STREQ(app.m_pszAppName, L"mfc_application_test") << "no title among the resources";
    EXPECT_STREQ(AfxGetAppName(), app.m_pszAppName);
    EXPECT_STREQ(app.m_pszProfileName, L"mfc_application_test.INI");
    EXPECT_EQ(CString(app.m_pszHelpFilePath).Right(25), L"\\mfc_application_test.HLP");
    app.EnableHtmlHelp();
    EXPECT_EQ(CString(app.m_pszHelpFilePath).Right(25), L"\\mfc_application_test.CHM");
    EXPECT_EQ(AfxGetThread(), &app);
}

TEST_F(AppDefaults, ANameThatIsGivenStays) {
    App named(L"given");
    state.m_pCurrentWinApp = &named;
    named.m_pszProfileName = L"own profile";
    named.m_pszHelpFilePath = L"own help";
    EXPECT_TRUE(AfxWinInit(instance, nullptr, nullptr, SW_SHOW));
    EXPECT_STREQ(named.m_pszAppName, L"given");
    EXPECT_STREQ(AfxGetAppName(), L"given");
    EXPECT_STREQ(named.m_pszProfileName, L"own profile");
    EXPECT_STREQ(named.m_pszHelpFilePath, L"own help");
    EXPECT_STREQ(named.m_lpCmdLine, L"");
    state.m_pCurrentWinApp = &app;
}

TEST_F(AppDefaults, TheNameGoesWithTheApplication) {
    {
        App other(L"other");
        state.m_pCurrentWinApp = &other;
        AfxWinInit(instance, nullptr, nullptr, SW_SHOW);
        EXPECT_STREQ(AfxGetAppName(), L"other");
    }
    EXPECT_STREQ(AfxGetAppName(), L"");
    EXPECT_EQ(AfxGetApp(), nullptr);
}

TEST_F(AppDefaults, WithoutAWindowRunningEndsAtOnce) {
    EXPECT_EQ(app.run_itself(), 18) << "what ending answers";
    EXPECT_EQ(app.life, (Life{"exit"}));
}

TEST_F(AppDefaults, ItsSettingsAreKeptAtTheEnd) {
    app.m_pszRegistryKey = L"ktui test company";
    app.m_pszProfileName = L"defaults";
    app.m_nNumPreviewPages = 2;
    app.CWinApp::ExitInstance();
    EXPECT_EQ(app.GetProfileInt(L"Settings", L"PreviewPages", 0), 2U);
}

TEST_F(AppDefaults, TheExitCommandClosesTheMainWindow) {
    EXPECT_TRUE(app.OnCmdMsg(ID_APP_EXIT, CN_COMMAND, nullptr, nullptr)) << "without one nothing happens";
    class Closed : public ui_test::ParentWindow {
    public:
        int closes = 0;

    protected:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
            if (message == WM_CLOSE) return ++closes, 0;
            return ParentWindow::WindowProc(message, wParam, lParam);
        }
    };
    Closed main;
    app.m_pMainWnd = &main;
    EXPECT_TRUE(app.OnCmdMsg(ID_APP_EXIT, CN_COMMAND, nullptr, nullptr));
    EXPECT_EQ(main.closes, 1);
    app.m_pMainWnd = nullptr;
}

TEST_F(AppDefaults, CursorsAndIconsComeFromTheSystem) {
    EXPECT_EQ(app.LoadStandardCursor(IDC_CROSS), ::LoadCursorW(nullptr, IDC_CROSS));
    EXPECT_EQ(app.LoadStandardIcon(IDI_HAND), ::LoadIconW(nullptr, IDI_HAND));
    EXPECT_EQ(app.LoadOEMCursor(32512), ::LoadCursorW(nullptr, IDC_ARROW));
    EXPECT_EQ(app.LoadOEMIcon(32513), ::LoadIconW(nullptr, IDI_HAND));
    EXPECT_EQ(app.LoadCursor(static_cast<UINT>(61999)), nullptr);
    EXPECT_EQ(app.LoadIcon(static_cast<UINT>(61999)), nullptr);
    EXPECT_EQ(app.LoadIcon(L"no such icon"), nullptr);
    EXPECT_EQ(app.LoadCursor(L"no such cursor"), nullptr);
}

TEST_F(AppDefaults, TheWaitCursorIsCountedAndGivesTheFormerBack) {
    const HCURSOR cross = ::LoadCursorW(nullptr, IDC_CROSS), wait = ::LoadCursorW(nullptr, IDC_WAIT);
    ::SetCursor(cross);
    CCmdTarget& target = app;
    target.BeginWaitCursor();
    EXPECT_EQ(::GetCursor(), wait);
    target.BeginWaitCursor();
    target.EndWaitCursor();
    EXPECT_EQ(::GetCursor(), wait) << "one is still on";
    ::SetCursor(::LoadCursorW(nullptr, IDC_ARROW));
    target.RestoreWaitCursor();
    EXPECT_EQ(::GetCursor(), wait);
    target.EndWaitCursor();
    EXPECT_EQ(::GetCursor(), cross);
    target.EndWaitCursor();
    EXPECT_EQ(::GetCursor(), cross);
    target.BeginWaitCursor();
    EXPECT_EQ(::GetCursor(), wait) << "one end too many isn't counted";
    target.EndWaitCursor();
    {
        CWaitCursor waiting;
        EXPECT_EQ(::GetCursor(), wait);
        ::SetCursor(cross);
        waiting.Restore();
        EXPECT_EQ(::GetCursor(), wait);
    }
    EXPECT_EQ(::GetCursor(), cross);
}

TEST_F(AppDefaults, HelpIsAskedOfTheSystemsViewer) {
    const ui_test::ReplacedImport help(::GetModuleHandleW(L"kmfc.dll"), "WinHelpW", &note_help);
    ASSERT_TRUE(help.isThere());
    help_calls().clear();
    help_answer = TRUE;
    ui_test::ParentWindow main;
    app.m_pMainWnd = &main;
    former->m_pMainWnd = &main;
    app.m_pszHelpFilePath = L"C:\\plan.hlp";
    app.WinHelp(99, HELP_CONTEXT);
    ASSERT_EQ(help_calls().size(), 1U);
    EXPECT_EQ(help_calls()[0].file, L"C:\\plan.hlp");
    EXPECT_EQ(help_calls()[0].command, static_cast<UINT>(HELP_CONTEXT));
    EXPECT_EQ(help_calls()[0].data, 99U);
    app.OnHelpIndex();
    EXPECT_EQ(help_calls().back().command, static_cast<UINT>(HELP_INDEX));
    EXPECT_EQ(help_calls().back().data, 0U);
    app.OnHelpFinder();
    EXPECT_EQ(help_calls().back().command, static_cast<UINT>(HELP_FINDER));
    app.OnHelpUsing();
    EXPECT_EQ(help_calls().back().command, static_cast<UINT>(HELP_HELPONHELP));
    main.OnHelpFinder();
    EXPECT_EQ(help_calls().back().command, static_cast<UINT>(HELP_FINDER));
    main.OnHelpUsing();
    EXPECT_EQ(help_calls().back().command, static_cast<UINT>(HELP_HELPONHELP));
    EXPECT_EQ(help_calls().size(), 6U);
    EXPECT_TRUE(app.told.empty());
    help_answer = FALSE;
    app.OnHelpIndex();
    ASSERT_EQ(app.told.size(), 1U) << "a viewer that fails is told";
    EXPECT_EQ(app.told[0], std::wstring(text_of_id(AFX_IDP_FAILED_TO_LAUNCH_HELP)));
    app.m_pMainWnd = former->m_pMainWnd = nullptr;
}

namespace {

HMODULE WINAPI no_library(LPCWSTR) { return nullptr; }

}  // namespace

TEST_F(AppDefaults, CompiledHelpThatCannotBeShownIsTold) {
    const ui_test::ReplacedImport load(::GetModuleHandleW(L"kmfc.dll"), "LoadLibraryW", &no_library);
    ASSERT_TRUE(load.isThere());
    const ui_test::ReplacedImport help(::GetModuleHandleW(L"kmfc.dll"), "WinHelpW", &note_help);
    help_calls().clear();
    app.EnableHtmlHelp();
    app.WinHelp(5, HELP_CONTEXT);
    EXPECT_TRUE(help_calls().empty()) << "the other viewer isn't asked";
    ASSERT_EQ(app.told.size(), 1U);
    EXPECT_EQ(app.told[0], std::wstring(text_of_id(AFX_IDP_FAILED_TO_LAUNCH_HELP)));
    CWnd window;
    window.HtmlHelp(7);
    EXPECT_EQ(app.told.size(), 2U);
}

TEST(FrameModalState, DisablesTheFrameAndWhatItOwns) {
    auto* const frame = new CFrameWnd;
    frame->Create(nullptr, L"frame", WS_OVERLAPPEDWINDOW, CRect(0, 0, 300, 200));
    CWnd owned, disabled, stranger;
    const CString kind = AfxRegisterWndClass(0);
    owned.CreateEx(0, kind, L"owned", WS_POPUP, CRect(0, 0, 20, 20), frame, 0);
    disabled.CreateEx(0, kind, L"disabled", WS_POPUP | WS_DISABLED, CRect(0, 0, 20, 20), frame, 0);
    stranger.CreateEx(0, kind, L"stranger", WS_POPUP, CRect(0, 0, 20, 20), nullptr, 0);
    frame->BeginModalState();
    EXPECT_TRUE(frame->InModalState());
    EXPECT_FALSE(frame->IsWindowEnabled());
    EXPECT_FALSE(owned.IsWindowEnabled());
    EXPECT_TRUE(stranger.IsWindowEnabled());
    frame->BeginModalState();
    frame->EndModalState();
    EXPECT_TRUE(frame->InModalState()) << "as often as it began";
    EXPECT_FALSE(frame->IsWindowEnabled());
    EXPECT_FALSE(owned.IsWindowEnabled());
    frame->EndModalState();
    EXPECT_FALSE(frame->InModalState());
    EXPECT_TRUE(frame->IsWindowEnabled());
    EXPECT_TRUE(owned.IsWindowEnabled());
    EXPECT_FALSE(disabled.IsWindowEnabled()) << "what was disabled before stays so";
    frame->EnableWindow(FALSE);
    frame->EndModalState();
    EXPECT_FALSE(frame->IsWindowEnabled()) << "an end too many changes nothing";
    frame->EnableWindow(TRUE);
    frame->BeginModalState();
    owned.DestroyWindow();
    frame->EndModalState();
    EXPECT_TRUE(frame->IsWindowEnabled());
    disabled.DestroyWindow();
    stranger.DestroyWindow();
    frame->DestroyWindow();
}

TEST(FrameKeys, IndicatorsFollowTheirKeys) {
    auto* const frame = new CFrameWnd;
    frame->Create(nullptr, L"frame");
    class Item : public CCmdUI {
    public:
        int enabled = -1;
        void Enable(BOOL on) override { enabled = on, m_bEnableChanged = TRUE; }
    };
    const auto shown = [&](UINT id) {
        Item item;
        item.m_nID = id;
        frame->OnCmdMsg(id, CN_UPDATE_COMMAND_UI, &item, nullptr);
        return item.enabled;
    };
    BYTE before[256] = {};
    ::GetKeyboardState(before);
    const std::pair<UINT, int> keys[] = {{ID_INDICATOR_CAPS, VK_CAPITAL},
                                         {ID_INDICATOR_NUM, VK_NUMLOCK},
                                         {ID_INDICATOR_SCRL, VK_SCROLL},
                                         {ID_INDICATOR_KANA, VK_KANA}};
    for (const auto& [on, onKey] : keys) {
        BYTE now[256] = {};
        now[onKey] = 1;
        ::SetKeyboardState(now);
        for (const auto& [id, key] : keys) EXPECT_EQ(shown(id), id == on ? 1 : 0) << id << " for " << on;
    }
    ::SetKeyboardState(before);
    frame->DestroyWindow();
}

TEST_F(AppDefaults, EachCommandOfHelpHasItsOwnInTheOtherViewer) {
    class Html : public App {
    public:
        std::vector<std::pair<DWORD_PTR, UINT>> asked;
        void HtmlHelp(DWORD_PTR data, UINT command) override { asked.emplace_back(data, command); }
    };
    Html html;
    html.EnableHtmlHelp();
    html.WinHelp(5, HELP_CONTEXT);
    html.WinHelp(0, HELP_INDEX);
    constexpr UINT kHelpContext = 0x000F;  // the command of the viewer of compiled help
    using Asked = std::vector<std::pair<DWORD_PTR, UINT>>;
    EXPECT_EQ(html.asked, (Asked{{5, kHelpContext}, {0, 0}}));
    state.m_pCurrentWinApp = &app;
}

TEST_F(AppDefaults, TheHelpKeyWithShiftOrControlIsNotForHelp) {
    class Main : public CFrameWnd {
    public:
        int helps = 0;
        BOOL OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info) override {
            if (id != ID_HELP || code != CN_COMMAND) return CFrameWnd::OnCmdMsg(id, code, extra, info);
            if (info == nullptr) ++helps;
            return TRUE;
        }
    };
    auto* const main = new Main;
    main->Create(nullptr, L"main");
    app.m_pMainWnd = main;
    MSG key = {main->m_hWnd, WM_KEYDOWN, VK_F1, 1, 0, {}};
    BYTE before[256] = {};
    ::GetKeyboardState(before);
    for (const int held : {VK_SHIFT, VK_CONTROL}) {
        BYTE now[256] = {};
        now[held] = 0x80;
        ::SetKeyboardState(now);
        EXPECT_FALSE(app.ProcessMessageFilter(MSGF_DIALOGBOX, &key)) << held;
    }
    BYTE none[256] = {};
    none[VK_MENU] = 0x80;
    ::SetKeyboardState(none);
    EXPECT_EQ(main->helps, 0);
    EXPECT_TRUE(app.ProcessMessageFilter(MSGF_DIALOGBOX, &key));
    EXPECT_EQ(main->helps, 1);
    ::SetKeyboardState(before);
    app.m_pMainWnd = nullptr;
    main->DestroyWindow();
}

TEST(FrameTitles, HaveTheDocumentAndTheNumberOfItsWindow) {
    class Titled : public CFrameWnd {
    public:
        using CFrameWnd::m_nWindow;
        using CFrameWnd::m_strTitle;
        using CFrameWnd::OnUpdateFrameTitle;
        using CFrameWnd::UpdateFrameTitleForDocument;
    };
    auto* const frame = new Titled;
    frame->Create(nullptr, L"before", WS_OVERLAPPEDWINDOW);
    frame->m_strTitle = L"Pad";
    const auto text = [&] { return ui_test::text_of(frame->m_hWnd); };
    EXPECT_EQ(frame->GetStyle() & FWS_ADDTOTITLE, 0U);
    frame->OnUpdateFrameTitle(TRUE);
    EXPECT_EQ(text(), L"before") << "without the style the title is the program's";
    frame->UpdateFrameTitleForDocument(L"plan");
    EXPECT_EQ(text(), L"Pad - plan");
    frame->m_nWindow = 2;
    frame->UpdateFrameTitleForDocument(L"plan");
    EXPECT_EQ(text(), L"Pad - plan:2");
    frame->UpdateFrameTitleForDocument(nullptr);
    EXPECT_EQ(text(), L"Pad");
    frame->ModifyStyle(0, FWS_PREFIXTITLE);
    frame->UpdateFrameTitleForDocument(L"plan");
    EXPECT_EQ(text(), L"plan:2 - Pad");
    frame->DestroyWindow();
}
