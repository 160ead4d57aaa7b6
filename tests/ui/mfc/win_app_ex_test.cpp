// The application's state: values, hooks, the window's place, panes.
#include <afxcontrolbars.h>
#include <afxsettingsstore.h>
#include <afxwinappex.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "documents_ids.h"
#include "ui_test.h"

namespace {

class App : public CWinAppEx {
public:
    using CWinAppEx::LoadWindowPlacement;
    using CWinAppEx::StoreWindowPlacement;
    std::vector<std::string> heard;
    CFrameWnd* frame = nullptr;

protected:
    void note(const char* hook) {
        CRect rect;
        if (frame != nullptr) frame->GetWindowRect(&rect);
        heard.push_back(std::string(hook) + " at " + std::to_string(rect.left));
    }
    void PreLoadState() override { note("PreLoadState"); }
    void LoadCustomState() override { note("LoadCustomState"); }
    void PreSaveState() override { note("PreSaveState"); }
    void SaveCustomState() override { note("SaveCustomState"); }
};

class Note : public CObject {
    DECLARE_SERIAL(Note)
public:
    int number = 0;
    void Serialize(CArchive& ar) override {
        if (ar.IsStoring())
            ar << number;
        else
            ar >> number;
    }
};
IMPLEMENT_SERIAL(Note, CObject, 1)

struct AppState : ::testing::Test {
    AppState() {
        AfxGetModuleState()->m_pCurrentWinApp = &app;
        app.m_pszRegistryKey = L"kmfc test company";
        app.m_pszProfileName = L"state";
        ::RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\kmfc test company");
    }
    ~AppState() override {
        if (frame != nullptr) frame->DestroyWindow();
        AfxGetModuleState()->m_pCurrentWinApp = former;
        ::RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\kmfc test company");
    }
    CFrameWndEx& make_frame(const CRect& rect) {
        frame = new CFrameWndEx;
        EXPECT_TRUE(frame->Create(nullptr, L"frame", WS_OVERLAPPEDWINDOW, rect));
        frame->EnableDocking(CBRS_ALIGN_ANY);
        app.frame = frame;
        return *frame;
    }
    CRect normal_rect() const {
        WINDOWPLACEMENT placement = {};
        placement.length = sizeof(placement);
        frame->GetWindowPlacement(&placement);
        return placement.rcNormalPosition;
    }
    CWinApp* former = AfxGetApp();
    App app;
    CFrameWndEx* frame = nullptr;
};

bool value_exists(const wchar_t* key, const wchar_t* value) {
    return ::RegGetValueW(HKEY_CURRENT_USER, key, value, RRF_RT_ANY, nullptr, nullptr, nullptr) ==
           ERROR_SUCCESS;
}

/// Makes a frame of class Frame from the program's resources, and closes it.
template <class Frame>
struct LoadedFrame : AppState {
    Frame* load() {
        auto* made = new Frame;
        EXPECT_TRUE(made->LoadFrame(IDR_MAIN));
        return made;
    }
    /// As the user does it, while it is the main window.
    void close_main(Frame* made) {
        app.m_pMainWnd = made;
        made->SendMessage(WM_CLOSE);
        app.m_pMainWnd = nullptr;
        MSG message;
        while (::PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE)) {
        }
    }
    static CRect place_of(const Frame* made) {
        WINDOWPLACEMENT placement = {};
        placement.length = sizeof(placement);
        made->GetWindowPlacement(&placement);
        return placement.rcNormalPosition;
    }
};
using Frames = ::testing::Types<CFrameWndEx, CMDIFrameWndEx>;
TYPED_TEST_SUITE(LoadedFrame, Frames);

}  // namespace

TYPED_TEST(LoadedFrame, ComesBackToWhereItWasClosed) {
    const CRect place(60, 70, 460, 370);
    TypeParam* made = this->load();
    made->MoveWindow(&place);
    this->close_main(made);
    made = this->load();
    EXPECT_EQ(this->place_of(made), place);
    EXPECT_EQ(this->app.heard.size(), 6u) << "loaded, saved, loaded";
    made->DestroyWindow();
}

TYPED_TEST(LoadedFrame, ThatIsNotTheMainWindowKeepsNothing) {
    TypeParam* made = this->load();
    made->SendMessage(WM_CLOSE);
    EXPECT_EQ(this->app.heard.size(), 2u) << "loaded";
    EXPECT_FALSE(
        value_exists(L"Software\\kmfc test company\\state\\Workspace\\WindowPlacement", L"MainWindowRect"));
}

TYPED_TEST(LoadedFrame, OfAnotherKindOfProgramIsMadeAllTheSame) {
    CWinApp other;
    AfxGetModuleState()->m_pCurrentWinApp = &other;
    TypeParam* made = this->load();
    this->close_main(made);
    EXPECT_TRUE(this->app.heard.empty());
    AfxGetModuleState()->m_pCurrentWinApp = &this->app;
}

TEST_F(AppState, NamesItsKeysBelowTheApplications) {
    EXPECT_STREQ(app.GetRegistryBase(), L"Workspace");
    EXPECT_EQ(app.GetRegSectionPath(), L"SOFTWARE\\kmfc test company\\state\\Workspace\\");
    EXPECT_EQ(app.GetRegSectionPath(L"Panes"), L"SOFTWARE\\kmfc test company\\state\\Workspace\\Panes\\");
    EXPECT_STREQ(app.SetRegistryBase(L"Own"), L"Own");
    EXPECT_EQ(app.GetRegSectionPath(L"Panes\\"), L"SOFTWARE\\kmfc test company\\state\\Own\\Panes\\");
    EXPECT_STREQ(app.SetRegistryBase(), L"Workspace");
    EXPECT_FALSE(app.IsResourceSmartUpdate());
}

TEST_F(AppState, KeepsValues) {
    Note note;
    note.number = 42;
    BYTE bytes[] = {1, 2, 3};
    EXPECT_TRUE(app.WriteInt(L"int", -5));
    EXPECT_TRUE(app.WriteString(L"text", L"kept"));
    EXPECT_TRUE(app.WriteBinary(L"bytes", bytes, 3));
    EXPECT_TRUE(app.WriteObject(L"object", note));
    EXPECT_TRUE(app.WriteSectionInt(L"deep\\er", L"int", 7));
    EXPECT_TRUE(app.WriteSectionString(L"deep", L"text", L"there"));
    EXPECT_TRUE(app.WriteSectionBinary(L"deep", L"bytes", bytes, 2));
    EXPECT_TRUE(app.WriteSectionObject(L"deep", L"object", note));
    EXPECT_TRUE(value_exists(L"Software\\kmfc test company\\state\\Workspace", L"int"));
    EXPECT_TRUE(value_exists(L"Software\\kmfc test company\\state\\Workspace\\deep\\er", L"int"));
    EXPECT_EQ(app.GetInt(L"int"), -5);
    EXPECT_EQ(app.GetString(L"text"), L"kept");
    EXPECT_EQ(app.GetSectionInt(L"deep\\er", L"int"), 7);
    EXPECT_EQ(app.GetSectionString(L"deep", L"text"), L"there");
    BYTE* read = nullptr;
    UINT count = 0;
    EXPECT_TRUE(app.GetBinary(L"bytes", &read, &count));
    EXPECT_EQ(std::vector<BYTE>(read, read + count), (std::vector<BYTE>{1, 2, 3}));
    delete[] read;
    EXPECT_TRUE(app.GetSectionBinary(L"deep", L"bytes", &read, &count));
    EXPECT_EQ(count, 2u);
    delete[] read;
    Note back;
    EXPECT_TRUE(app.GetObject(L"object", back));
    EXPECT_EQ(back.number, 42);
    back.number = 0;
    EXPECT_TRUE(app.GetSectionObject(L"deep", L"object", back));
    EXPECT_EQ(back.number, 42);
}

TEST_F(AppState, AnswersDefaultsForWhatIsMissing) {
    EXPECT_EQ(app.GetInt(L"no"), 0);
    EXPECT_EQ(app.GetInt(L"no", 9), 9);
    EXPECT_EQ(app.GetString(L"no", L"default"), L"default");
    app.WriteString(L"text", L"12");
    EXPECT_EQ(app.GetInt(L"text", 9), 9) << "another kind";
    BYTE* read = reinterpret_cast<BYTE*>(this);
    UINT count = 3;
    EXPECT_FALSE(app.GetBinary(L"no", &read, &count));
    EXPECT_EQ(read, nullptr);
    EXPECT_EQ(count, 0u);
    Note note;
    EXPECT_FALSE(app.GetObject(L"no", note));
}

TEST_F(AppState, CanBeCleaned) {
    app.WriteSectionInt(L"one", L"x", 1);
    app.WriteSectionInt(L"two", L"x", 1);
    EXPECT_TRUE(app.IsStateExists(L"one"));
    EXPECT_TRUE(app.CleanState(L"one"));
    EXPECT_FALSE(app.IsStateExists(L"one"));
    EXPECT_TRUE(app.IsStateExists(L"two"));
    EXPECT_FALSE(app.CleanState(L"one"));
    EXPECT_TRUE(app.CleanState());
    EXPECT_FALSE(app.IsStateExists(L""));
    app.SetRegistryKey(L"kmfc test company");
    EXPECT_TRUE(app.WriteInt(L"x", 1));
}

TEST_F(AppState, BringsAFrameBackToItsPlace) {
    make_frame(CRect(100, 120, 500, 420));
    EXPECT_TRUE(app.SaveState(frame));
    EXPECT_EQ(app.heard, (std::vector<std::string>{"PreSaveState at 100", "SaveCustomState at 100"}));
    app.heard.clear();
    frame->MoveWindow(10, 10, 300, 200);
    app.LoadState(frame);
    EXPECT_EQ(app.heard, (std::vector<std::string>{"PreLoadState at 10", "LoadCustomState at 100"}))
        << "the frame stands where it belongs before the application's own state is read";
    CRect now;
    frame->GetWindowRect(&now);
    EXPECT_EQ(now, CRect(100, 120, 500, 420));
    EXPECT_FALSE(frame->IsWindowVisible()) << "a hidden frame stays hidden until the program shows it";
    EXPECT_EQ(app.m_nCmdShow, SW_SHOWNORMAL);
}

TEST_F(AppState, LeavesTheFrameAloneWhenToldTo) {
    make_frame(CRect(100, 120, 500, 420));
    app.SaveState(frame);
    frame->MoveWindow(10, 10, 300, 200);
    app.EnableLoadWindowPlacement(FALSE);
    app.LoadState(frame);
    CRect now;
    frame->GetWindowRect(&now);
    EXPECT_EQ(now, CRect(10, 10, 310, 210));
}

TEST_F(AppState, KeepsSectionsApart) {
    make_frame(CRect(100, 120, 500, 420));
    EXPECT_TRUE(app.SaveState(frame, L"first"));
    frame->MoveWindow(30, 30, 300, 200);
    EXPECT_TRUE(app.SaveState(frame, L"second"));
    EXPECT_TRUE(app.LoadState(frame, L"first"));
    EXPECT_EQ(normal_rect().left, 100);
    EXPECT_TRUE(app.LoadState(frame, L"second"));
    EXPECT_EQ(normal_rect().left, 30);
    EXPECT_FALSE(app.LoadState(frame, L"third")) << "nothing was kept there";
    EXPECT_EQ(normal_rect().left, 30);
    EXPECT_TRUE(value_exists(L"Software\\kmfc test company\\state\\Workspace\\first\\WindowPlacement",
                             L"MainWindowRect"));
}

TEST_F(AppState, BringsAFrameOntoADesktopThatHasShrunk) {
    make_frame(CRect(0, 0, 300, 200));
    CRect screen;
    ::SystemParametersInfoW(SPI_GETWORKAREA, 0, &screen, 0);
    for (const CRect& stored :
         {CRect(20000, 100, 20400, 500), CRect(100, -30000, 500, -29600), CRect(-9000, 9000, 30000, 30000)}) {
        app.StoreWindowPlacement(stored, 0, SW_SHOWNORMAL);
        EXPECT_TRUE(app.ReloadWindowPlacement(frame));
        CRect now, both;
        frame->GetWindowRect(&now);
        EXPECT_TRUE(both.IntersectRect(now, screen));
        EXPECT_EQ(both, now) << "wholly on the screen";
        EXPECT_LE(now.Width(), stored.Width());
    }
    app.StoreWindowPlacement(CRect(0, 0, 0, 0), 0, SW_SHOWNORMAL);
    EXPECT_FALSE(app.ReloadWindowPlacement(frame)) << "no window is that small";
}

TEST_F(AppState, StartsNoProgramAsAnIcon) {
    make_frame(CRect(50, 50, 350, 250));
    app.StoreWindowPlacement(CRect(60, 60, 360, 260), 0, SW_SHOWMINIMIZED);
    EXPECT_TRUE(app.ReloadWindowPlacement(frame));
    EXPECT_EQ(app.m_nCmdShow, SW_SHOWNORMAL);
    app.StoreWindowPlacement(CRect(60, 60, 360, 260), WPF_RESTORETOMAXIMIZED, SW_SHOWMINIMIZED);
    EXPECT_TRUE(app.ReloadWindowPlacement(frame));
    EXPECT_EQ(app.m_nCmdShow, SW_SHOWMAXIMIZED);
    app.StoreWindowPlacement(CRect(60, 60, 360, 260), 0, SW_SHOWMAXIMIZED);
    frame->ShowWindow(SW_SHOWNA);
    EXPECT_TRUE(app.ReloadWindowPlacement(frame));
    EXPECT_TRUE(frame->IsZoomed());
    EXPECT_EQ(normal_rect(), CRect(60, 60, 360, 260));
    CRect rect;
    int flags = 1, show = 1;
    EXPECT_TRUE(app.LoadWindowPlacement(rect, flags, show));
    EXPECT_EQ(rect, CRect(60, 60, 360, 260));
    EXPECT_EQ(flags, 0);
    EXPECT_EQ(show, SW_SHOWMAXIMIZED);
    app.CleanState();
    EXPECT_FALSE(app.LoadWindowPlacement(rect, flags, show));
    EXPECT_FALSE(app.ReloadWindowPlacement(frame));
    EXPECT_FALSE(app.ReloadWindowPlacement(nullptr));
}

TEST_F(AppState, BringsPanesBack) {
    make_frame(CRect(50, 50, 850, 650));
    CDockablePane pane;
    ASSERT_TRUE(pane.Create(L"Layers", frame, CSize(200, 150), TRUE, 900,
                            WS_CHILD | WS_VISIBLE | CBRS_LEFT | CBRS_FLOAT_MULTI));
    pane.EnableDocking(CBRS_ALIGN_ANY);
    frame->DockPane(&pane);
    EXPECT_TRUE(app.SaveState(frame));
    pane.FloatPane(CRect(300, 300, 600, 500));
    ASSERT_FALSE(pane.IsDocked());
    EXPECT_TRUE(app.LoadState(frame));
    EXPECT_TRUE(pane.IsDocked());
    EXPECT_EQ(pane.GetCurrentAlignment(), static_cast<DWORD>(CBRS_ALIGN_LEFT));
    pane.DestroyWindow();
}

TEST_F(AppState, WorksWithoutAFrame) {
    EXPECT_TRUE(app.SaveState());
    EXPECT_TRUE(app.LoadState());
    EXPECT_EQ(app.heard, (std::vector<std::string>{"PreSaveState at 0", "SaveCustomState at 0",
                                                   "PreLoadState at 0", "LoadCustomState at 0"}));
    EXPECT_TRUE(app.LoadState(static_cast<CMDIFrameWndEx*>(nullptr)));
}
