// What a frame does for its document: at the end of the session, when it is closed, activated, gets the focus
// or has files dropped on it.
#include "documents_fixture.h"

#include <algorithm>

namespace documents_test {

namespace {

struct FrameTest : DocumentsTest {
    Plan* document = nullptr;
    PlanView* view = nullptr;
    CFrameWnd* frame = nullptr;

    /// A new document in the main window.
    void open() {
        add_single();
        document = open_new(*this);
        view = view_of(document);
        frame = view->GetParentFrame();
        app.m_pMainWnd = frame;
        take();
    }
};

/// A window that notes what it opens.
class OpeningApp : public App {
public:
    std::vector<std::wstring> opened;
    CDocument* OpenDocumentFile(LPCTSTR name) override {
        opened.emplace_back(name);
        return nullptr;
    }
};

/// A frame whose client area can't be made.
class FailingFrame : public CFrameWnd {
protected:
    BOOL OnCreateClient(LPCREATESTRUCT, CCreateContext*) override { return FALSE; }
};

/// A frame that counts its layouts.
class CountingFrame : public CFrameWnd {
public:
    static inline int layouts = 0;
    void RecalcLayout(BOOL notify = TRUE) override {
        ++layouts;
        CFrameWnd::RecalcLayout(notify);
    }
};

}  // namespace

TEST_F(FrameTest, StylesAndMessagesHaveTheDocumentedValues) {
    EXPECT_EQ(FWS_ADDTOTITLE, 0x8000u);
    EXPECT_EQ(FWS_PREFIXTITLE, 0x4000u);
    EXPECT_EQ(FWS_SNAPTOBARS, 0x2000u);
    EXPECT_EQ(SPLS_DYNAMIC_SPLIT, 1u);
    EXPECT_EQ(AFX_WS_DEFAULT_VIEW, static_cast<DWORD>(WS_CHILD | WS_VISIBLE | WS_BORDER));
    EXPECT_EQ(WM_INITIALUPDATE, 0x0364u);
}

TEST_F(FrameTest, TheEndOfTheSessionClosesTheDocumentsAndThenTheProgram) {
    open();
    document->SetModifiedFlag();
    frame->SendMessage(WM_ENDSESSION, FALSE);
    EXPECT_TRUE(take().empty()) << "it does not end after all";
    frame->SendMessage(WM_ENDSESSION, TRUE);
    const Texts told = take();
    ASSERT_GE(told.size(), 2u);
    EXPECT_EQ(told.back(), "exit");
    EXPECT_EQ(std::count(told.begin(), told.end(), "~document"), 1);
    EXPECT_TRUE(app.told.empty()) << "nobody is asked any more";
}

TEST_F(FrameTest, TheEndOfTheSessionConcernsTheMainWindowAlone) {
    open();
    document->SetModifiedFlag();
    app.answer = IDCANCEL;
    auto* other = new CFrameWnd;
    ASSERT_TRUE(other->Create(nullptr, L"other"));
    EXPECT_TRUE(other->SendMessage(WM_QUERYENDSESSION));
    EXPECT_TRUE(app.told.empty());
    other->SendMessage(WM_ENDSESSION, TRUE);
    EXPECT_TRUE(take().empty());
    EXPECT_FALSE(frame->SendMessage(WM_QUERYENDSESSION));
    other->DestroyWindow();
}

TEST_F(FrameTest, ClosingTheLastFrameOfADocumentClosesIt) {
    open();
    app.m_pMainWnd = nullptr;
    HWND const window = frame->m_hWnd;
    frame->SendMessage(WM_CLOSE);
    EXPECT_FALSE(::IsWindow(window));
    EXPECT_EQ(take(), (Texts{"view off", "~frame", "empty", "~document"}));
}

TEST_F(FrameTest, ADocumentThatKeepsItselfOutlivesItsFrame) {
    open();
    app.m_pMainWnd = nullptr;
    document->m_bAutoDelete = FALSE;
    HWND const window = frame->m_hWnd;
    frame->SendMessage(WM_CLOSE);
    EXPECT_FALSE(::IsWindow(window));
    EXPECT_EQ(take(), (Texts{"view off", "~frame"}));
    EXPECT_EQ(document->GetFirstViewPosition(), nullptr);
    document->m_bAutoDelete = TRUE;
}

TEST_F(FrameTest, OneOfSeveralFramesGoesAlone) {
    open();
    app.m_pMainWnd = nullptr;
    CDocTemplate* kind = document->GetDocTemplate();
    CFrameWnd* second = kind->CreateNewFrame(document, nullptr);
    kind->InitialUpdateFrame(second, document);
    document->UpdateFrameCounts();
    EXPECT_EQ(frame->m_nWindow, 1);
    EXPECT_EQ(second->m_nWindow, 2);
    take();
    frame->SendMessage(WM_CLOSE);
    EXPECT_EQ(take(), (Texts{"view off", "~frame"}));
    EXPECT_EQ(frame_of(document), second);
    EXPECT_EQ(second->m_nWindow, -1) << "it is the only one now";
    second->SendMessage(WM_CLOSE);
    EXPECT_EQ(take(), (Texts{"view off", "~frame", "empty", "~document"}));
}

TEST_F(FrameTest, AFrameWithoutADocumentIsClosed) {
    auto* other = new CFrameWnd;
    ASSERT_TRUE(other->Create(nullptr, L"other"));
    HWND const window = other->m_hWnd;
    other->SendMessage(WM_CLOSE);
    EXPECT_FALSE(::IsWindow(window));
}

TEST_F(FrameTest, TheViewHearsThatItsFrameIsActivated) {
    open();
    view->frameStates.clear();
    frame->SendMessage(WM_ACTIVATE, MAKEWPARAM(WA_CLICKACTIVE, FALSE));
    EXPECT_EQ(view->frameStates, (std::vector<std::pair<UINT, CFrameWnd*>>{{WA_CLICKACTIVE, frame}}));
    EXPECT_EQ(take(), (Texts{"view on"}));
    frame->SendMessage(WM_ACTIVATE, MAKEWPARAM(WA_ACTIVE, TRUE));
    EXPECT_TRUE(take().empty()) << "it is minimised";
    frame->SendMessage(WM_ACTIVATE, MAKEWPARAM(WA_INACTIVE, FALSE));
    EXPECT_TRUE(take().empty());
    ASSERT_EQ(view->frameStates.size(), 3u);
    EXPECT_EQ(view->frameStates[2], (std::pair<UINT, CFrameWnd*>{WA_INACTIVE, frame}));
}

TEST_F(FrameTest, TheViewGetsTheFocusOfItsFrame) {
    open();
    frame->ActivateFrame();
    ::SetFocus(nullptr);
    ::SetFocus(frame->m_hWnd);
    EXPECT_EQ(::GetFocus(), view->m_hWnd);
    frame->SetActiveView(nullptr);
    ::SetFocus(frame->m_hWnd);
    EXPECT_EQ(::GetFocus(), frame->m_hWnd);
}

TEST_F(FrameTest, DroppedFilesAreOpenedInOrderAndTheirListIsFreed) {
    OpeningApp opening;
    AfxGetModuleState()->m_pCurrentWinApp = &opening;
    auto* other = new CFrameWnd;
    ASSERT_TRUE(other->Create(nullptr, L"other", WS_OVERLAPPEDWINDOW | WS_VISIBLE));
    const std::vector<std::wstring> names = {L"c:\\one.plan", L"c:\\" + std::wstring(600, L'x') + L".plan",
                                             L"c:\\图.plan"};
    HGLOBAL const memory = dropped(names);
    ::SetActiveWindow(nullptr);
    other->SendMessage(WM_DROPFILES, reinterpret_cast<WPARAM>(memory));
    EXPECT_EQ(opening.opened, names);
    EXPECT_EQ(::GlobalFlags(memory), static_cast<UINT>(GMEM_INVALID_HANDLE));
    EXPECT_EQ(::GetActiveWindow(), other->m_hWnd);
    other->DestroyWindow();
    AfxGetModuleState()->m_pCurrentWinApp = &app;
}

TEST_F(FrameTest, AFrameWithoutItsClientAreaIsNotMade) {
    auto* failing = new FailingFrame;
    EXPECT_FALSE(failing->Create(nullptr, L"failing"));
    EXPECT_EQ(::FindWindowW(nullptr, L"failing"), nullptr);
}

TEST_F(FrameTest, AFrameWithAMenuThatIsNotThereIsNotMade) {
    auto* other = new MainFrame;
    take();
    EXPECT_FALSE(other->Create(nullptr, L"menuless", WS_OVERLAPPEDWINDOW, CFrameWnd::rectDefault, nullptr,
                               L"no such menu"));
    EXPECT_EQ(take(), (Texts{"~frame"}));
}

TEST_F(FrameTest, AFrameLaysItselfOutWhenItIsMade) {
    CountingFrame::layouts = 0;
    auto* other = new CountingFrame;
    ASSERT_TRUE(other->Create(nullptr, L"laid out"));
    EXPECT_GE(CountingFrame::layouts, 1);
    other->DestroyWindow();
}

TEST_F(FrameTest, AnOwnerAClassAndAnExtendedStyleAreHandedOn) {
    auto* owner = new CFrameWnd;
    ASSERT_TRUE(owner->Create(nullptr, L"owner"));
    const LPCTSTR windowClass = AfxRegisterWndClass(CS_NOCLOSE);
    auto* owned = new CFrameWnd;
    ASSERT_TRUE(owned->Create(windowClass, L"owned", WS_POPUP | WS_CAPTION, CRect(10, 20, 210, 120), owner,
                              nullptr, WS_EX_TOOLWINDOW));
    EXPECT_EQ(::GetWindow(owned->m_hWnd, GW_OWNER), owner->m_hWnd);
    EXPECT_NE(::GetClassLongPtrW(owned->m_hWnd, GCL_STYLE) & CS_NOCLOSE, 0u);
    EXPECT_NE(owned->GetExStyle() & WS_EX_TOOLWINDOW, 0u);
    EXPECT_STREQ(owned->GetTitle(), L"owned");
    CRect place;
    owned->GetWindowRect(&place);
    EXPECT_EQ(place, CRect(10, 20, 210, 120));
    owner->DestroyWindow();
}

}  // namespace documents_test
