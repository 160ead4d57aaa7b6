// Tabs of document windows: which there are, what they say, and what choosing one does.
#include <afxcontrolbars.h>

#include "documents_fixture.h"

namespace documents_test {

class TabbedFrame : public CMDIFrameWndEx {
    DECLARE_DYNCREATE(TabbedFrame)
public:
    std::vector<std::pair<CRect, CRect>> sizes;  ///< of the documents' room
    std::vector<int> tipsAsked;                  ///< for which tabs

protected:
    LRESULT OnTip(WPARAM, LPARAM info) {
        tipsAsked.push_back(reinterpret_cast<CMFCTabToolTipInfo*>(info)->m_nTabIndex);
        return 0;
    }
    DECLARE_MESSAGE_MAP()
    BOOL OnSizeMDIClient(const CRect& former, const CRect& now) override {
        sizes.emplace_back(former, now);
        return CMDIFrameWndEx::OnSizeMDIClient(former, now);
    }
};
IMPLEMENT_DYNCREATE(TabbedFrame, CMDIFrameWndEx)
BEGIN_MESSAGE_MAP(TabbedFrame, CMDIFrameWndEx)
    ON_REGISTERED_MESSAGE(AFX_WM_ON_GET_TAB_TOOLTIP, &TabbedFrame::OnTip)
END_MESSAGE_MAP()

class TabbedChild : public CMDIChildWndEx {
    DECLARE_DYNCREATE(TabbedChild)
public:
    static inline bool hasTab = true;
    static inline bool fails = false;
    BOOL CanShowOnMDITabs() override { return hasTab; }

protected:
    BOOL OnCreateClient(LPCREATESTRUCT create, CCreateContext* context) override {
        return !fails && CMDIChildWndEx::OnCreateClient(create, context);
    }
};
IMPLEMENT_DYNCREATE(TabbedChild, CMDIChildWndEx)

struct DocumentTabsTest : DocumentsTest {
    DocumentTabsTest() {
        kind = new CMultiDocTemplate(IDR_PLAN, RUNTIME_CLASS(Plan), RUNTIME_CLASS(TabbedChild),
                                     RUNTIME_CLASS(PlanView));
        app.AddDocTemplate(kind);
        frame = new TabbedFrame;
        EXPECT_TRUE(frame->LoadFrame(IDR_MAIN));
        app.m_pMainWnd = AfxGetThread()->m_pMainWnd = frame;
        frame->EnableDocking(CBRS_ALIGN_ANY);
        frame->ShowWindow(SW_SHOW);
        TabbedChild::hasTab = true;
    }
    Plan* open() { return static_cast<Plan*>(kind->OpenDocumentFile(nullptr)); }
    static CMDIChildWndEx* child_of(CDocument* document) {
        POSITION place = document->GetFirstViewPosition();
        return static_cast<CMDIChildWndEx*>(document->GetNextView(place)->GetParentFrame());
    }
    CMFCTabCtrl& tabs() { return frame->GetMDITabs(); }
    CString label(int tab) {
        CString text;
        tabs().GetTabLabel(tab, text);
        return text;
    }
    CRect at(HWND window) const {
        CRect rect;
        ::GetWindowRect(window, &rect);
        ::MapWindowPoints(nullptr, frame->m_hWnd, reinterpret_cast<POINT*>(&rect), 2);
        return rect;
    }
    CRect room() const { return at(frame->m_hWndMDIClient); }
    CRect client() const {
        CRect rect;
        frame->GetClientRect(&rect);
        return rect;
    }
    void click(int tab) {
        CRect rect;
        ASSERT_TRUE(tabs().GetTabRect(tab, rect));
        const CPoint middle = rect.CenterPoint();
        tabs().SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(middle.x, middle.y));
        tabs().SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(middle.x, middle.y));
    }
    bool is_maximized(CMDIChildWnd* child) const { return ::IsZoomed(child->m_hWnd) != FALSE; }

    CMultiDocTemplate* kind;
    TabbedFrame* frame;
};

TEST_F(DocumentTabsTest, AreNotThereUntilTheyAreWanted) {
    int type = 9;
    EXPECT_FALSE(frame->AreMDITabs(&type));
    EXPECT_EQ(type, 0);
    EXPECT_EQ(tabs().m_hWnd, nullptr);
    Plan* first = open();
    EXPECT_FALSE(is_maximized(child_of(first)));
    EXPECT_EQ(room(), client());
    frame->EnableMDITabs(TRUE, TRUE, CMFCTabCtrl::LOCATION_TOP);
    EXPECT_TRUE(frame->AreMDITabs(&type));
    EXPECT_EQ(type, 1);
    EXPECT_TRUE(is_maximized(child_of(first)));
    ASSERT_EQ(tabs().GetTabsNum(), 1) << "documents that were open get theirs";
    EXPECT_STREQ(label(0), L"Plan1");
    frame->EnableMDITabs(FALSE);
    EXPECT_FALSE(frame->AreMDITabs());
    EXPECT_EQ(tabs().m_hWnd, nullptr);
    EXPECT_EQ(room(), client());
    EXPECT_TRUE(child_of(first)->IsWindowVisible());
}

TEST_F(DocumentTabsTest, StandAboveOrBelowTheDocuments) {
    frame->EnableMDITabs(TRUE, FALSE, CMFCTabCtrl::LOCATION_TOP);
    EXPECT_EQ(room(), client()) << "without documents there is no strip";
    EXPECT_FALSE(tabs().IsWindowVisible());
    open();
    const int height = tabs().GetTabsHeight();
    EXPECT_GT(height, 10);
    CRect expected = client();
    expected.top += height;
    EXPECT_EQ(room(), expected);
    EXPECT_EQ(at(tabs().m_hWnd), CRect(0, 0, client().right, height));
    EXPECT_TRUE(tabs().IsWindowVisible());
    frame->EnableMDITabs(TRUE, FALSE);
    expected = client();
    expected.bottom -= height;
    EXPECT_EQ(room(), expected);
    EXPECT_EQ(at(tabs().m_hWnd), CRect(0, client().bottom - height, client().right, client().bottom));
    EXPECT_EQ(tabs().GetTabsNum(), 1);
}

TEST_F(DocumentTabsTest, LeavePanesTheirRoom) {
    CDockablePane pane;
    ASSERT_TRUE(pane.Create(L"pane", frame, CSize(120, 100), TRUE, 900, WS_CHILD | WS_VISIBLE | CBRS_LEFT));
    pane.EnableDocking(CBRS_ALIGN_ANY);
    frame->DockPane(&pane);
    frame->EnableMDITabs(TRUE, FALSE, CMFCTabCtrl::LOCATION_TOP);
    open();
    const CRect left = at(pane.m_hWnd), strip = at(tabs().m_hWnd);
    EXPECT_EQ(left.top, 0);
    EXPECT_EQ(left.bottom, client().bottom);
    EXPECT_GT(strip.left, left.right);
    EXPECT_EQ(strip.left, room().left);
    EXPECT_EQ(strip.right, client().right);
    EXPECT_EQ(room().top, strip.bottom);
    CRect rect;
    frame->GetWindowRect(&rect);
    frame->sizes.clear();
    frame->MoveWindow(0, 0, rect.Width() - 30, rect.Height() - 20);
    EXPECT_EQ(at(tabs().m_hWnd).right, client().right);
    ASSERT_FALSE(frame->sizes.empty());
    EXPECT_EQ(frame->sizes.back().second, room());
    EXPECT_NE(frame->sizes.back().first, room());
    const size_t told = frame->sizes.size();
    frame->RecalcLayout();
    EXPECT_EQ(frame->sizes.size(), told) << "nothing has changed";
}

TEST_F(DocumentTabsTest, FollowTheActiveDocument) {
    frame->EnableMDITabs();
    Plan* first = open();
    open();
    open();
    ASSERT_EQ(tabs().GetTabsNum(), 3);
    EXPECT_STREQ(label(0), L"Plan1");
    EXPECT_STREQ(label(2), L"Plan3");
    EXPECT_EQ(tabs().GetActiveTab(), 2);
    frame->MDIActivate(child_of(first));
    EXPECT_EQ(tabs().GetActiveTab(), 0);
    frame->MDINext();
    EXPECT_EQ(tabs().GetActiveWnd(), frame->MDIGetActive());
    EXPECT_TRUE(is_maximized(frame->MDIGetActive()));
}

TEST_F(DocumentTabsTest, ActivateADocument) {
    frame->EnableMDITabs();
    Plan* first = open();
    Plan* second = open();
    click(0);
    EXPECT_EQ(frame->MDIGetActive(), child_of(first));
    EXPECT_TRUE(is_maximized(child_of(first)));
    EXPECT_TRUE(::IsChild(child_of(first)->m_hWnd, ::GetFocus()));
    click(1);
    EXPECT_EQ(frame->MDIGetActive(), child_of(second));
}

TEST_F(DocumentTabsTest, SayWhatTheWindowSays) {
    frame->EnableMDITabs();
    Plan* document = open();
    document->SetTitle(L"Cellar & attic");
    child_of(document)->OnUpdateFrameTitle(TRUE);
    EXPECT_STREQ(label(0), L"Cellar & attic");
    child_of(document)->SetWindowText(L"another");
    EXPECT_STREQ(label(0), L"another");
    EXPECT_STREQ(child_of(document)->GetFrameText(), L"another");
}

TEST_F(DocumentTabsTest, GoWithTheDocumentAndTheNeighbourComes) {
    frame->EnableMDITabs();
    Plan* first = open();
    Plan* second = open();
    Plan* third = open();
    frame->MDIActivate(child_of(first));
    frame->MDIActivate(child_of(second));
    second->OnCloseDocument();
    ASSERT_EQ(tabs().GetTabsNum(), 2);
    EXPECT_EQ(frame->MDIGetActive(), child_of(third)) << "the next one";
    EXPECT_EQ(tabs().GetActiveTab(), 1);
    third->OnCloseDocument();
    EXPECT_EQ(frame->MDIGetActive(), child_of(first)) << "at the end the one before";
    EXPECT_TRUE(is_maximized(child_of(first)));
    first->OnCloseDocument();
    EXPECT_EQ(tabs().GetTabsNum(), 0);
    EXPECT_EQ(room(), client()) << "the strip has gone";
    open();
    EXPECT_EQ(tabs().GetTabsNum(), 1);
    EXPECT_LT(room().Height(), client().Height());
}

TEST_F(DocumentTabsTest, TheDocumentThatWasActiveBeforeComesWhenThatIsWanted) {
    frame->EnableMDITabs();
    frame->EnableMDITabsLastActiveActivation();
    Plan* first = open();
    Plan* second = open();
    open();
    frame->MDIActivate(child_of(first));
    frame->MDIActivate(child_of(second));
    second->OnCloseDocument();
    EXPECT_EQ(frame->MDIGetActive(), child_of(first));
    EXPECT_EQ(tabs().GetActiveTab(), 0);
}

TEST_F(DocumentTabsTest, CloseByTheirButton) {
    frame->EnableMDITabs(TRUE, FALSE, CMFCTabCtrl::LOCATION_TOP, TRUE);
    open();
    open();
    const CPoint button = tabs().button_rect(CMFCTabCtrl::Button::close).CenterPoint();
    tabs().SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(button.x, button.y));
    tabs().SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(button.x, button.y));
    EXPECT_EQ(tabs().GetTabsNum(), 1);
    EXPECT_STREQ(label(0), L"Plan1");
    EXPECT_EQ(app.GetOpenDocumentCount(), 1);
}

TEST_F(DocumentTabsTest, HaveTheWindowsIconOrNone) {
    frame->EnableMDITabs(TRUE, TRUE);
    Plan* document = open();
    HICON const icon = ::LoadIconW(nullptr, IDI_WARNING);
    child_of(document)->SetIcon(icon, FALSE);
    EXPECT_EQ(child_of(document)->GetFrameIcon(), icon);
    frame->EnableMDITabs(TRUE, TRUE);
    EXPECT_EQ(tabs().GetTabHicon(0), icon);
    frame->EnableMDITabs(TRUE, FALSE);
    EXPECT_EQ(tabs().GetTabHicon(0), nullptr);
}

TEST_F(DocumentTabsTest, AWindowMayGoWithout) {
    frame->EnableMDITabs();
    Plan* first = open();
    TabbedChild::hasTab = false;
    Plan* second = open();
    EXPECT_EQ(tabs().GetTabsNum(), 1);
    EXPECT_EQ(frame->MDIGetActive(), child_of(second));
    EXPECT_EQ(tabs().GetActiveWnd(), child_of(first));
    second->OnCloseDocument();
    EXPECT_EQ(tabs().GetTabsNum(), 1);
}

TEST_F(DocumentTabsTest, KeepEveryDocumentAsLargeAsTheRoom) {
    frame->EnableMDITabs();
    CMDIChildWndEx* child = child_of(open());
    for (const UINT command : {SC_RESTORE, SC_MINIMIZE, SC_MOVE, SC_SIZE}) {
        child->SendMessage(WM_SYSCOMMAND, command);
        EXPECT_TRUE(is_maximized(child)) << command;
    }
    struct Item : CCmdUI {
        int enabled = -1;
        void Enable(BOOL on) override { enabled = on; }
    };
    for (const UINT command :
         {ID_WINDOW_ARRANGE, ID_WINDOW_CASCADE, ID_WINDOW_TILE_HORZ, ID_WINDOW_TILE_VERT}) {
        Item item;
        item.m_nID = command;
        item.m_nIndexMax = 1;
        frame->OnCmdMsg(command, CN_UPDATE_COMMAND_UI, &item, nullptr);
        EXPECT_EQ(item.enabled, FALSE) << command;
    }
    frame->EnableMDITabs(FALSE);
    Item item;
    item.m_nID = ID_WINDOW_CASCADE;
    frame->OnCmdMsg(ID_WINDOW_CASCADE, CN_UPDATE_COMMAND_UI, &item, nullptr);
    EXPECT_EQ(item.enabled, TRUE);
    child->SendMessage(WM_SYSCOMMAND, SC_RESTORE);
    EXPECT_FALSE(is_maximized(child));
}

TEST_F(DocumentTabsTest, AWindowThatFailsGetsNone) {
    frame->EnableMDITabs();
    open();
    TabbedChild::fails = true;
    EXPECT_EQ(open(), nullptr);
    TabbedChild::fails = false;
    EXPECT_EQ(tabs().GetTabsNum(), 1);
    EXPECT_STREQ(label(0), L"Plan1");
}

TEST_F(DocumentTabsTest, NameTheActiveDocumentWhateverEndsTheOther) {
    frame->EnableMDITabs();
    Plan* first = open();
    Plan* second = open();
    open();
    frame->MDIActivate(child_of(first));
    frame->MDIActivate(child_of(second));
    child_of(second)->MDIDestroy();
    EXPECT_EQ(tabs().GetTabsNum(), 2);
    EXPECT_EQ(tabs().GetActiveWnd(), frame->MDIGetActive());
    EXPECT_EQ(frame->MDIGetActive(), child_of(first)) << "the system's choice";
}

TEST_F(DocumentTabsTest, AreMovedByTheMouse) {
    frame->EnableMDITabs();
    Plan* first = open();
    open();
    CRect from, to;
    tabs().GetTabRect(0, from);
    tabs().GetTabRect(1, to);
    const CPoint press = from.CenterPoint(), drop(to.right - 3, to.CenterPoint().y);
    tabs().SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(press.x, press.y));
    tabs().SendMessage(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(drop.x, drop.y));
    tabs().SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(drop.x, drop.y));
    EXPECT_STREQ(label(0), L"Plan2");
    EXPECT_STREQ(label(1), L"Plan1");
    EXPECT_EQ(tabs().GetActiveTab(), 1);
    EXPECT_EQ(frame->MDIGetActive(), child_of(first));
}

TEST_F(DocumentTabsTest, CloseOnTheActiveTab) {
    frame->EnableMDITabs(TRUE, FALSE, CMFCTabCtrl::LOCATION_TOP, FALSE, CMFCTabCtrl::STYLE_3D_ONENOTE, FALSE,
                         TRUE);
    open();
    EXPECT_TRUE(tabs().IsActiveTabCloseButton());
    EXPECT_TRUE(tabs().IsOneNoteStyle());
    frame->EnableMDITabs();
    EXPECT_FALSE(tabs().IsActiveTabCloseButton());
}

TEST_F(DocumentTabsTest, AskTheFrameForTheirTipsWhenThatIsWanted) {
    for (const BOOL wanted : {FALSE, TRUE}) {
        frame->EnableMDITabs(TRUE, FALSE, CMFCTabCtrl::LOCATION_TOP, FALSE, CMFCTabCtrl::STYLE_3D_SCROLLED,
                             wanted);
        if (wanted == FALSE) open();
        HWND tips = nullptr;
        while ((tips = ::FindWindowExW(nullptr, tips, TOOLTIPS_CLASSW, nullptr)) != nullptr)
            if (::GetWindow(tips, GW_OWNER) == frame->m_hWnd) {
                NMTTDISPINFOW question = {};
                question.hdr.hwndFrom = tips;
                question.hdr.code = TTN_NEEDTEXTW;
                question.hdr.idFrom = static_cast<UINT_PTR>(tabs().GetTabID(0)) + 1;
                tabs().SendMessage(WM_NOTIFY, question.hdr.idFrom, reinterpret_cast<LPARAM>(&question));
            }
        EXPECT_EQ(frame->tipsAsked, (wanted ? std::vector<int>{0} : std::vector<int>{}));
    }
}

TEST_F(DocumentTabsTest, LoseNothingWhenTheFrameCloses) {
    frame->EnableMDITabs();
    open();
    open();
    frame->SendMessage(WM_CLOSE);
    EXPECT_EQ(Plan::alive, 0);
    EXPECT_EQ(PlanView::alive, 0);
    frame = nullptr;
}

TEST_F(DocumentTabsTest, TheRoomOfDocumentsNeverScrolls) {
    frame->EnableMDITabs(TRUE, TRUE, CMFCTabCtrl::LOCATION_TOP);
    const auto scrolls = [&] {
        return (::GetWindowLongW(frame->m_hWndMDIClient, GWL_STYLE) & (WS_HSCROLL | WS_VSCROLL)) != 0;
    };
    Plan* first = open();
    ui_test::pump();
    EXPECT_FALSE(scrolls());
    Plan* second = open();
    ui_test::pump();
    EXPECT_FALSE(scrolls());
    first->OnCloseDocument();
    first = second;
    // The one behind goes before the system has arranged anything.
    second = open();
    first->OnCloseDocument();
    ui_test::pump();
    EXPECT_FALSE(scrolls()) << "one behind the others has gone";
    Plan* third = open();
    frame->MoveWindow(20, 20, 200, 150);
    ui_test::pump();
    EXPECT_FALSE(scrolls());
    second->OnCloseDocument();
    third->OnCloseDocument();
    ui_test::pump();
    EXPECT_FALSE(scrolls()) << "none is left";
}

}  // namespace documents_test
