// Groups of documents: what stands where, how documents change their group, and what is told.
#include <afxcontrolbars.h>
#include <afxmdiclientareawnd.h>

#include "documents_fixture.h"

namespace documents_test {

class GroupsFrame : public CMDIFrameWndEx {
    DECLARE_DYNCREATE(GroupsFrame)
public:
    struct Asked {
        CPoint point;
        DWORD allowed;
        BOOL dropped;
    };
    std::vector<Asked> menus;
    BOOL showsMenu = FALSE;
    std::vector<std::pair<HWND, HWND>> moves;
    int contextMenus = 0;

    BOOL OnShowMDITabContextMenu(CPoint point, DWORD allowed, BOOL dropped) override {
        menus.push_back({point, allowed, dropped});
        return showsMenu;
    }

protected:
    LRESULT OnMoved(WPARAM from, LPARAM to) {
        moves.emplace_back(reinterpret_cast<HWND>(from), reinterpret_cast<HWND>(to));
        return 0;
    }
    void OnContextMenu(CWnd*, CPoint) { ++contextMenus; }
    DECLARE_MESSAGE_MAP()
};
IMPLEMENT_DYNCREATE(GroupsFrame, CMDIFrameWndEx)
BEGIN_MESSAGE_MAP(GroupsFrame, CMDIFrameWndEx)
    ON_REGISTERED_MESSAGE(AFX_WM_ON_MOVETOTABGROUP, &GroupsFrame::OnMoved)
    ON_WM_CONTEXTMENU()
END_MESSAGE_MAP()

class GroupsChild : public CMDIChildWndEx {
    DECLARE_DYNCREATE(GroupsChild)
public:
    static inline bool hasTab = true;
    BOOL CanShowOnMDITabs() override { return hasTab; }
};
IMPLEMENT_DYNCREATE(GroupsChild, CMDIChildWndEx)

struct DocumentGroupsTest : DocumentsTest {
    DocumentGroupsTest() {
        kind = new CMultiDocTemplate(IDR_PLAN, RUNTIME_CLASS(Plan), RUNTIME_CLASS(GroupsChild),
                                     RUNTIME_CLASS(PlanView));
        GroupsChild::hasTab = true;
        app.AddDocTemplate(kind);
        frame = new GroupsFrame;
        EXPECT_TRUE(frame->LoadFrame(IDR_MAIN));
        app.m_pMainWnd = AfxGetThread()->m_pMainWnd = frame;
        frame->EnableDocking(CBRS_ALIGN_ANY);
        frame->SetWindowPos(nullptr, 20, 20, 900, 600, SWP_NOZORDER);
        frame->ShowWindow(SW_SHOW);
    }
    CMDIChildWndEx* open() {
        auto* const document = kind->OpenDocumentFile(nullptr);
        POSITION place = document->GetFirstViewPosition();
        auto* const child = static_cast<CMDIChildWndEx*>(document->GetNextView(place)->GetParentFrame());
        ui_test::pump();
        return child;
    }
    void enable(const CMDITabInfo& params = CMDITabInfo()) { frame->EnableMDITabbedGroups(TRUE, params); }
    std::vector<CMFCTabCtrl*> groups() const {
        std::vector<CMFCTabCtrl*> all;
        const CObList& list = frame->GetMDITabGroups();
        for (POSITION at = list.GetHeadPosition(); at != nullptr;)
            all.push_back(static_cast<CMFCTabCtrl*>(list.GetNext(at)));
        return all;
    }
    CMFCTabCtrl& group(size_t index) const { return *groups().at(index); }
    /// The documents of each group, by their tabs.
    std::vector<std::vector<CWnd*>> documents() const {
        std::vector<std::vector<CWnd*>> all;
        for (const CMFCTabCtrl* const each : groups()) {
            all.emplace_back();
            for (int i = 0; i < each->GetTabsNum(); ++i) all.back().push_back(each->GetTabWnd(i));
        }
        return all;
    }
    using Documents = std::vector<std::vector<CWnd*>>;
    CRect at(HWND window) const {
        CRect rect;
        ::GetWindowRect(window, &rect);
        ::MapWindowPoints(nullptr, frame->m_hWnd, reinterpret_cast<POINT*>(&rect), 2);
        return rect;
    }
    /// Inside the documents' window.
    CRect room() const {
        CRect rect;
        ::GetClientRect(frame->m_hWndMDIClient, &rect);
        ::MapWindowPoints(frame->m_hWndMDIClient, frame->m_hWnd, reinterpret_cast<POINT*>(&rect), 2);
        return rect;
    }
    static std::vector<CPaneDivider*> dividers(HWND parent) {
        std::vector<CPaneDivider*> found;
        for (HWND child = ::GetTopWindow(parent); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT))
            if (auto* divider = DYNAMIC_DOWNCAST(CPaneDivider, CWnd::FromHandlePermanent(child)))
                if (divider->IsWindowVisible()) found.push_back(divider);
        return found;
    }
    /// What the user sees at a point of the frame.
    CMDIChildWndEx* document_at(CPoint point) const {
        frame->ClientToScreen(&point);
        for (HWND window = ::WindowFromPoint(point); window != nullptr;
             window = ::GetAncestor(window, GA_PARENT))
            if (auto* child = DYNAMIC_DOWNCAST(CMDIChildWndEx, CWnd::FromHandlePermanent(window)))
                return child;
        return nullptr;
    }
    CPoint on_screen(CPoint point) const {
        frame->ClientToScreen(&point);
        return point;
    }
    /// The mouse on a strip, at a point of the frame.
    void mouse(CMFCTabCtrl& strip, UINT message, CPoint point, WPARAM keys = MK_LBUTTON) const {
        frame->ClientToScreen(&point);
        strip.ScreenToClient(&point);
        strip.SendMessage(message, keys, MAKELPARAM(point.x, point.y));
    }
    CPoint tab_at(CMFCTabCtrl& strip, int tab) const {
        CRect rect;
        EXPECT_TRUE(strip.GetTabRect(tab, rect));
        strip.ClientToScreen(&rect);
        frame->ScreenToClient(&rect);
        return rect.CenterPoint();
    }
    /// Drags a tab to a point of the frame without letting go.
    void drag(CMFCTabCtrl& strip, int tab, CPoint to) const {
        const CPoint from = tab_at(strip, tab);
        mouse(strip, WM_LBUTTONDOWN, from);
        mouse(strip, WM_MOUSEMOVE, from + CSize(0, 60));
        mouse(strip, WM_MOUSEMOVE, to);
    }
    void drop(CMFCTabCtrl& strip, CPoint at_point) const {
        mouse(strip, WM_LBUTTONUP, at_point, 0);
        ui_test::pump();
    }

    CMultiDocTemplate* kind;
    GroupsFrame* frame;
};

TEST_F(DocumentGroupsTest, AllDocumentsBeginInOneGroup) {
    int type = 9;
    CMDIChildWndEx* const first = open();
    CMDIChildWndEx* const second = open();
    const DWORD style = first->GetStyle();
    EXPECT_FALSE(frame->IsMDITabbedGroup());
    EXPECT_TRUE(groups().empty());
    enable();
    EXPECT_TRUE(frame->IsMDITabbedGroup());
    EXPECT_TRUE(frame->AreMDITabs(&type));
    EXPECT_EQ(type, 2);
    EXPECT_EQ(documents(), (Documents{{first, second}}));
    EXPECT_TRUE(frame->IsMemberOfMDITabGroup(&group(0)));
    EXPECT_FALSE(frame->IsMemberOfMDITabGroup(first));
    const CRect strip = at(group(0).m_hWnd);
    EXPECT_EQ(strip.TopLeft(), room().TopLeft());
    EXPECT_EQ(strip.right, room().right);
    EXPECT_EQ(strip.Height(), group(0).GetTabsHeight());
    const CRect below(room().left, strip.bottom, room().right, room().bottom);
    for (CMDIChildWndEx* const child : {first, second}) {
        EXPECT_EQ(at(child->m_hWnd), below);
        EXPECT_EQ(child->GetStyle() & (WS_CAPTION | WS_THICKFRAME), 0u);
        EXPECT_FALSE(child->IsZoomed());
    }
    EXPECT_EQ(group(0).GetActiveTab(), 1);
    EXPECT_TRUE(group(0).IsTabSwapEnabled());
    EXPECT_EQ(document_at(below.CenterPoint()), second);
    EXPECT_EQ(::WindowFromPoint(on_screen(strip.CenterPoint())), group(0).m_hWnd);
    CMDIChildWndEx* const third = open();
    EXPECT_EQ(documents(), (Documents{{first, second, third}}));
    EXPECT_EQ(at(third->m_hWnd), below);
    EXPECT_EQ(document_at(below.CenterPoint()), third);
    frame->EnableMDITabbedGroups(FALSE, CMDITabInfo());
    ui_test::pump();
    EXPECT_FALSE(frame->AreMDITabs());
    EXPECT_TRUE(groups().empty());
    EXPECT_EQ(first->GetStyle() & (WS_CAPTION | WS_THICKFRAME), style & (WS_CAPTION | WS_THICKFRAME));
    EXPECT_EQ(::FindWindowExW(frame->m_hWnd, nullptr, nullptr, nullptr), frame->m_hWndMDIClient);
}

TEST_F(DocumentGroupsTest, WithoutDocumentsThereIsAnEmptyGroup) {
    enable();
    ASSERT_EQ(groups().size(), 1u);
    EXPECT_FALSE(group(0).IsWindowVisible());
    frame->MDITabNewGroup();
    frame->MDITabMoveToNextGroup();
    EXPECT_EQ(frame->GetMDITabsContextMenuAllowedItems(), 0u);
    CMDIChildWndEx* const only = open();
    EXPECT_TRUE(group(0).IsWindowVisible());
    frame->MDITabNewGroup();
    EXPECT_EQ(groups().size(), 1u) << "the only document of a group makes no other";
    only->SendMessage(WM_CLOSE);
    ui_test::pump();
    EXPECT_EQ(groups().size(), 1u);
    EXPECT_FALSE(group(0).IsWindowVisible());
}

TEST_F(DocumentGroupsTest, ANewGroupStandsBesideOrBelow) {
    for (const bool beside : {true, false}) {
        enable();
        CMDIChildWndEx* const first = open();
        CMDIChildWndEx* const second = open();
        frame->moves.clear();
        const HWND left = group(0).m_hWnd;
        frame->MDITabNewGroup(beside);
        ASSERT_EQ(documents(), (Documents{{first}, {second}}));
        const CRect all = room(), one = at(group(0).m_hWnd), other = at(group(1).m_hWnd);
        ASSERT_EQ(dividers(frame->m_hWnd).size(), 1u);
        const CRect line = at(dividers(frame->m_hWnd)[0]->m_hWnd);
        if (beside) {
            EXPECT_EQ(one.top, other.top);
            EXPECT_EQ(one.left, all.left);
            EXPECT_EQ(other.right, all.right);
            EXPECT_EQ(line, CRect(one.right, all.top, other.left, all.bottom));
            EXPECT_EQ(line.Width(), 4);
            EXPECT_NEAR(one.Width(), other.Width(), 1);
            EXPECT_EQ(at(first->m_hWnd), CRect(one.left, one.bottom, one.right, all.bottom));
            EXPECT_EQ(at(second->m_hWnd), CRect(other.left, other.bottom, other.right, all.bottom));
        } else {
            EXPECT_EQ(one.left, other.left);
            EXPECT_EQ(at(first->m_hWnd).bottom, line.top);
            EXPECT_EQ(line.bottom, other.top);
            EXPECT_EQ(at(second->m_hWnd).bottom, all.bottom);
            EXPECT_EQ(line.Height(), 4);
        }
        EXPECT_EQ(document_at(at(first->m_hWnd).CenterPoint()), first);
        EXPECT_EQ(document_at(at(second->m_hWnd).CenterPoint()), second);
        EXPECT_EQ(frame->MDIGetActive(), second);
        EXPECT_EQ(frame->moves, (std::vector<std::pair<HWND, HWND>>{{left, group(1).m_hWnd}}));
        frame->EnableMDITabbedGroups(FALSE, CMDITabInfo());
        ui_test::pump();
        EXPECT_TRUE(dividers(frame->m_hWnd).empty());
        first->SendMessage(WM_CLOSE);
        second->SendMessage(WM_CLOSE);
    }
}

TEST_F(DocumentGroupsTest, GroupsAllStandOrAllLie) {
    enable();
    open(), open(), open();
    constexpr DWORD kBoth = AFX_MDI_CREATE_VERT_GROUP | AFX_MDI_CREATE_HORZ_GROUP;
    EXPECT_EQ(frame->GetMDITabsContextMenuAllowedItems(), kBoth);
    frame->MDITabNewGroup(FALSE);
    EXPECT_EQ(frame->GetMDITabsContextMenuAllowedItems(), 0u) << "the only one of its group";
    frame->MDIActivate(group(0).GetTabWnd(0));
    EXPECT_EQ(frame->GetMDITabsContextMenuAllowedItems(), AFX_MDI_CREATE_HORZ_GROUP | AFX_MDI_CAN_MOVE_NEXT);
    frame->MDITabNewGroup(TRUE);
    EXPECT_EQ(groups().size(), 2u);
    frame->MDITabNewGroup(FALSE);
    EXPECT_EQ(groups().size(), 3u);
    EXPECT_EQ(dividers(frame->m_hWnd).size(), 2u);
    open();
    EXPECT_EQ(frame->GetMDITabsContextMenuAllowedItems(),
              AFX_MDI_CREATE_HORZ_GROUP | AFX_MDI_CAN_MOVE_NEXT | AFX_MDI_CAN_MOVE_PREV)
        << "new documents come to the group of the active one";
}

TEST_F(DocumentGroupsTest, DocumentsMoveToTheNextGroupAndAnEmptyOneGoes) {
    enable();
    CMDIChildWndEx* const first = open();
    CMDIChildWndEx* const second = open();
    CMDIChildWndEx* const third = open();
    frame->MDITabNewGroup();
    frame->MDITabMoveToNextGroup(TRUE);
    EXPECT_EQ(documents(), (Documents{{first, second}, {third}})) << "there is no next one";
    frame->MDIActivate(first);
    frame->MDITabMoveToNextGroup(FALSE);
    EXPECT_EQ(documents(), (Documents{{first, second}, {third}}));
    frame->moves.clear();
    const HWND one = group(0).m_hWnd, two = group(1).m_hWnd;
    frame->MDITabMoveToNextGroup();
    EXPECT_EQ(documents(), (Documents{{second}, {third, first}}));
    EXPECT_EQ(frame->moves, (std::vector<std::pair<HWND, HWND>>{{one, two}}));
    EXPECT_EQ(frame->MDIGetActive(), first);
    EXPECT_EQ(group(1).GetActiveWnd(), first);
    EXPECT_EQ(at(first->m_hWnd), at(third->m_hWnd));
    EXPECT_EQ(document_at(at(first->m_hWnd).CenterPoint()), first);
    EXPECT_EQ(document_at(at(second->m_hWnd).CenterPoint()), second);
    frame->MDITabMoveToNextGroup(FALSE);
    frame->MDIActivate(third);
    frame->MDITabMoveToNextGroup(FALSE);
    ui_test::pump();
    EXPECT_EQ(documents(), (Documents{{second, first, third}}));
    EXPECT_FALSE(::IsWindow(two));
    EXPECT_TRUE(dividers(frame->m_hWnd).empty());
    EXPECT_EQ(at(group(0).m_hWnd).right, room().right);
}

TEST_F(DocumentGroupsTest, AClosedDocumentIsFollowedByAnotherOfItsGroup) {
    enable();
    CMDIChildWndEx* const first = open();
    CMDIChildWndEx* const second = open();
    CMDIChildWndEx* const third = open();
    CMDIChildWndEx* const fourth = open();
    frame->MDITabNewGroup();
    frame->MDIActivate(third);
    frame->MDITabMoveToNextGroup();
    ASSERT_EQ(documents(), (Documents{{first, second}, {fourth, third}}));
    frame->MDIActivate(second);
    third->SendMessage(WM_CLOSE);
    ui_test::pump();
    EXPECT_EQ(frame->MDIGetActive(), second);
    EXPECT_EQ(document_at(at(fourth->m_hWnd).CenterPoint()), fourth);
    second->SendMessage(WM_CLOSE);
    ui_test::pump();
    EXPECT_EQ(documents(), (Documents{{first}, {fourth}}));
    EXPECT_EQ(frame->MDIGetActive(), first);
    first->SendMessage(WM_CLOSE);
    ui_test::pump();
    EXPECT_EQ(documents(), (Documents{{fourth}}));
    EXPECT_EQ(frame->MDIGetActive(), fourth);
    EXPECT_EQ(at(fourth->m_hWnd).right, room().right);
}

TEST_F(DocumentGroupsTest, WhatItsTabSaysIsInFrontInEachGroup) {
    enable();
    CMDIChildWndEx* const first = open();
    CMDIChildWndEx* const second = open();
    CMDIChildWndEx* const third = open();
    CMDIChildWndEx* const fourth = open();
    frame->MDITabNewGroup();
    ASSERT_EQ(documents(), (Documents{{first, second, third}, {fourth}}));
    // The third one was in front last, but its neighbour is what comes.
    for (CMDIChildWndEx* const child : {second, third, first, fourth}) frame->MDIActivate(child);
    const CPoint middle = at(first->m_hWnd).CenterPoint();
    first->SendMessage(WM_CLOSE);
    ui_test::pump();
    EXPECT_EQ(group(0).GetActiveWnd(), second);
    EXPECT_EQ(document_at(middle), second);
    EXPECT_EQ(frame->MDIGetActive(), fourth);
    CMDIChildWndEx* const fifth = open();
    ASSERT_EQ(documents(), (Documents{{second, third}, {fourth, fifth}}));
    frame->MDIActivate(second);
    frame->MDITabMoveToNextGroup();
    EXPECT_EQ(document_at(middle), third);
    for (CMDIChildWndEx* const child : {fifth, second, fourth}) frame->MDIActivate(child);
    frame->MDITabMoveToNextGroup(FALSE);
    ASSERT_EQ(documents(), (Documents{{third, fourth}, {fifth, second}}));
    EXPECT_EQ(document_at(at(fifth->m_hWnd).CenterPoint()), group(1).GetActiveWnd());
    EXPECT_EQ(group(1).GetActiveWnd(), fifth);
    EXPECT_EQ(document_at(middle), fourth);
}

TEST_F(DocumentGroupsTest, AWindowWithoutATabStandsByItself) {
    enable();
    CMDIChildWndEx* const first = open();
    CMDIChildWndEx* const second = open();
    frame->MDITabNewGroup();
    frame->MDIActivate(first);
    GroupsChild::hasTab = false;
    CMDIChildWndEx* const free = open();
    EXPECT_EQ(documents(), (Documents{{first}, {second}}));
    EXPECT_NE(free->GetStyle() & WS_CAPTION, 0u);
    EXPECT_EQ(frame->MDIGetActive(), free);
    frame->MDITabMoveToNextGroup();
    EXPECT_EQ(documents(), (Documents{{second, first}}));
    EXPECT_EQ(frame->MDIGetActive(), first);
}

TEST_F(DocumentGroupsTest, TheLastActiveOneFollowsIfWanted) {
    frame->EnableMDITabsLastActiveActivation();
    enable();
    CMDIChildWndEx* const first = open();
    open();
    CMDIChildWndEx* const third = open();
    frame->MDIActivate(first);
    frame->MDIActivate(third);
    third->SendMessage(WM_CLOSE);
    ui_test::pump();
    EXPECT_EQ(frame->MDIGetActive(), first);
}

TEST_F(DocumentGroupsTest, ATabActivatesItsDocument) {
    enable();
    CMDIChildWndEx* const first = open();
    CMDIChildWndEx* const second = open();
    frame->MDITabNewGroup();
    const CPoint tab = tab_at(group(0), 0);
    mouse(group(0), WM_LBUTTONDOWN, tab);
    mouse(group(0), WM_LBUTTONUP, tab, 0);
    frame->MDIActivate(second);
    EXPECT_TRUE(group(1).IsActiveTabBoldFont());
    EXPECT_FALSE(group(0).IsActiveTabBoldFont());
    CMDIChildWndEx* const third = open();
    EXPECT_EQ(documents(), (Documents{{first}, {second, third}}));
    const CPoint back = tab_at(group(1), 0);
    mouse(group(1), WM_LBUTTONDOWN, back);
    mouse(group(1), WM_LBUTTONUP, back, 0);
    EXPECT_EQ(frame->MDIGetActive(), second);
    EXPECT_EQ(document_at(at(second->m_hWnd).CenterPoint()), second);
}

TEST_F(DocumentGroupsTest, TheDividerSharesTheRoom) {
    enable();
    CMDIChildWndEx* const first = open();
    CMDIChildWndEx* const second = open();
    frame->MDITabNewGroup();
    CPaneDivider& line = *dividers(frame->m_hWnd).at(0);
    const int before = at(first->m_hWnd).Width(), after = at(second->m_hWnd).Width();
    line.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(1, 50));
    line.SendMessage(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(81, 50));
    line.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(1, 50));
    EXPECT_EQ(at(first->m_hWnd).Width(), before + 80);
    EXPECT_EQ(at(second->m_hWnd).Width(), after - 80);
    EXPECT_EQ(at(line.m_hWnd).left, at(first->m_hWnd).right);
    CPoint way(5000, 0);
    line.Move(way);
    EXPECT_EQ(at(second->m_hWnd).Width(), 60) << "each keeps its least room";
    CRect window;
    frame->GetWindowRect(&window);
    frame->SetWindowPos(nullptr, 0, 0, window.Width() + 200, window.Height() + 50, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(at(second->m_hWnd).right, room().right);
    EXPECT_EQ(at(first->m_hWnd).bottom, room().bottom);
    EXPECT_GT(at(second->m_hWnd).Width(), 60);
}

TEST_F(DocumentGroupsTest, ATabDraggedToAnEdgeBeginsAGroupThere) {
    enable();
    CMDIChildWndEx* const first = open();
    CMDIChildWndEx* const second = open();
    const CRect all = room();
    drag(group(0), 0, CPoint(all.left + 20, all.CenterPoint().y));
    CMFCTabCtrl& strip = group(0);
    EXPECT_EQ(::GetCapture(), strip.m_hWnd);
    drop(strip, CPoint(all.left + 20, all.CenterPoint().y));
    EXPECT_EQ(documents(), (Documents{{first}, {second}}));
    EXPECT_EQ(frame->MDIGetActive(), first);
    EXPECT_EQ(::GetCapture(), nullptr);
    EXPECT_LT(at(first->m_hWnd).right, at(second->m_hWnd).left);
    // Its own group has no other document, so there is nothing to part.
    frame->moves.clear();
    drag(group(0), 0, CPoint(at(first->m_hWnd).left + 5, all.CenterPoint().y));
    drop(group(0), CPoint(at(first->m_hWnd).left + 5, all.CenterPoint().y));
    EXPECT_EQ(documents(), (Documents{{first}, {second}}));
    EXPECT_TRUE(frame->moves.empty());
    // Groups stand, so none comes below, and in the middle of its own nothing changes.
    open();
    drag(group(0), 0, at(first->m_hWnd).CenterPoint());
    drop(group(0), at(first->m_hWnd).CenterPoint());
    EXPECT_TRUE(frame->moves.empty());
    EXPECT_EQ(group(0).GetTabWnd(0), first);
    drag(group(0), 0, CPoint(at(first->m_hWnd).CenterPoint().x, all.bottom - 5));
    drop(group(0), CPoint(at(first->m_hWnd).CenterPoint().x, all.bottom - 5));
    EXPECT_EQ(groups().size(), 2u);
}

TEST_F(DocumentGroupsTest, ATabDraggedToAnotherGroupJoinsIt) {
    enable();
    CMDIChildWndEx* const first = open();
    CMDIChildWndEx* const second = open();
    CMDIChildWndEx* const third = open();
    frame->MDITabNewGroup();
    frame->menus.clear();
    CPoint to = tab_at(group(1), 0);
    drag(group(0), 0, to);
    drop(group(0), to);
    EXPECT_EQ(documents(), (Documents{{second}, {third, first}}));
    EXPECT_TRUE(frame->menus.empty()) << "on the tabs it is plain what is meant";
    to = at(third->m_hWnd).CenterPoint();
    frame->showsMenu = TRUE;
    drag(group(0), 0, to);
    drop(group(0), to);
    EXPECT_EQ(documents(), (Documents{{second}, {third, first}})) << "the menu says what happens";
    ASSERT_EQ(frame->menus.size(), 1u);
    EXPECT_EQ(frame->menus[0].point, on_screen(to));
    EXPECT_TRUE(frame->menus[0].dropped);
    frame->showsMenu = FALSE;
    drag(group(0), 0, to);
    drop(group(0), to);
    EXPECT_EQ(documents(), (Documents{{third, first, second}}));
}

TEST_F(DocumentGroupsTest, EscapeAndALostMouseEndTheDrag) {
    enable();
    CMDIChildWndEx* const first = open();
    CMDIChildWndEx* const second = open();
    const CPoint edge(room().left + 20, room().CenterPoint().y);
    drag(group(0), 0, edge);
    MSG escape = {frame->m_hWnd, WM_KEYDOWN, VK_ESCAPE, 0, 0, {0, 0}};
    EXPECT_TRUE(frame->PreTranslateMessage(&escape));
    EXPECT_EQ(::GetCapture(), nullptr);
    mouse(group(0), WM_LBUTTONUP, edge, 0);
    EXPECT_EQ(documents(), (Documents{{first, second}}));
    escape.message = WM_KEYUP;
    drag(group(0), 0, edge);
    EXPECT_FALSE(frame->PreTranslateMessage(&escape));
    ::SetCapture(frame->m_hWnd);
    ::ReleaseCapture();
    mouse(group(0), WM_LBUTTONUP, edge, 0);
    EXPECT_EQ(documents(), (Documents{{first, second}}));
    drag(group(0), 0, edge);
    group(0).SendMessage(WM_CANCELMODE);
    mouse(group(0), WM_LBUTTONUP, edge, 0);
    EXPECT_EQ(documents(), (Documents{{first, second}}));
    // Outside of all groups nothing happens.
    drag(group(0), 0, CPoint(-50, -50));
    drop(group(0), CPoint(-50, -50));
    EXPECT_EQ(documents(), (Documents{{first, second}}));
    // A document that closes meanwhile ends it too.
    drag(group(0), 0, edge);
    first->SendMessage(WM_CLOSE);
    EXPECT_EQ(::GetCapture(), nullptr);
    EXPECT_EQ(documents(), (Documents{{second}}));
}

TEST_F(DocumentGroupsTest, ARightClickAsksForTheMenuOfItsTab) {
    enable();
    CMDIChildWndEx* const first = open();
    open();
    frame->showsMenu = TRUE;
    const CPoint tab = tab_at(group(0), 0);
    mouse(group(0), WM_RBUTTONDOWN, tab, MK_RBUTTON);
    EXPECT_EQ(frame->MDIGetActive(), first);
    const CPoint place = on_screen(tab);
    group(0).SendMessage(WM_CONTEXTMENU, reinterpret_cast<WPARAM>(group(0).m_hWnd),
                         MAKELPARAM(place.x, place.y));
    ASSERT_EQ(frame->menus.size(), 1u);
    EXPECT_EQ(frame->menus[0].point, place);
    EXPECT_FALSE(frame->menus[0].dropped);
    EXPECT_EQ(frame->menus[0].allowed, AFX_MDI_CREATE_VERT_GROUP | AFX_MDI_CREATE_HORZ_GROUP);
    EXPECT_EQ(frame->contextMenus, 0);
    frame->showsMenu = FALSE;
    group(0).SendMessage(WM_CONTEXTMENU, reinterpret_cast<WPARAM>(group(0).m_hWnd),
                         MAKELPARAM(place.x, place.y));
    EXPECT_EQ(frame->contextMenus, 1);
}

TEST_F(DocumentGroupsTest, ParametersApplyToAllGroupsAlsoLater) {
    CMDITabInfo params;
    params.m_tabLocation = CMFCTabCtrl::LOCATION_BOTTOM;
    params.m_bDocumentMenu = TRUE;
    params.m_bEnableTabSwap = FALSE;
    params.m_bAutoColor = TRUE;
    params.m_bTabIcons = TRUE;
    params.m_bActiveTabCloseButton = TRUE;
    params.m_nTabBorderSize = 5;
    enable();
    CMDIChildWndEx* const first = open();
    CMDIChildWndEx* const second = open();
    CMDIChildWndEx* const third = open();
    frame->MDITabNewGroup();
    frame->MDIActivate(second);
    frame->MDIActivate(third);
    const std::vector<CMFCTabCtrl*> before = groups();
    EXPECT_FALSE(before[0]->button_rect(CMFCTabCtrl::Button::close).IsRectEmpty());
    enable(params);
    ui_test::pump();
    EXPECT_EQ(documents(), (Documents{{first, second}, {third}}));
    EXPECT_EQ(group(0).GetActiveWnd(), second);
    EXPECT_EQ(frame->MDIGetActive(), third);
    for (CMFCTabCtrl* const each : groups()) {
        EXPECT_EQ(each->GetLocation(), CMFCTabCtrl::LOCATION_BOTTOM);
        EXPECT_TRUE(each->IsTabDocumentsMenu());
        EXPECT_FALSE(each->IsTabSwapEnabled());
        EXPECT_TRUE(each->IsAutoColor());
        EXPECT_TRUE(each->IsActiveTabCloseButton());
        EXPECT_EQ(each->GetTabBorderSize(), 5);
        EXPECT_EQ(each->GetTabHicon(0), first->GetFrameIcon());
        EXPECT_TRUE(each->button_rect(CMFCTabCtrl::Button::close).IsRectEmpty());
    }
    EXPECT_EQ(at(group(0).m_hWnd).bottom, room().bottom);
    EXPECT_EQ(at(first->m_hWnd).bottom, at(group(0).m_hWnd).top);
    EXPECT_EQ(at(first->m_hWnd).top, room().top);
    EXPECT_EQ(frame->AreMDITabs(), TRUE);
}

TEST_F(DocumentGroupsTest, TabsAndGroupsTakeEachOthersPlace) {
    CMDIChildWndEx* const first = open();
    frame->EnableMDITabs(TRUE, FALSE);
    ASSERT_TRUE(first->IsZoomed());
    enable();
    ui_test::pump();
    int type = 0;
    frame->AreMDITabs(&type);
    EXPECT_EQ(type, 2);
    EXPECT_EQ(frame->GetMDITabs().m_hWnd, nullptr);
    EXPECT_FALSE(first->IsZoomed());
    EXPECT_EQ(at(first->m_hWnd).bottom, room().bottom);
    frame->EnableMDITabs(TRUE, FALSE);
    ui_test::pump();
    frame->AreMDITabs(&type);
    EXPECT_EQ(type, 1);
    EXPECT_TRUE(first->IsZoomed());
    EXPECT_TRUE(groups().empty());
}

TEST_F(DocumentGroupsTest, DocumentsKeepTheirPlaceWhateverIsTried) {
    enable();
    CMDIChildWndEx* const first = open();
    CMDIChildWndEx* const second = open();
    const CRect place = at(first->m_hWnd);
    for (const UINT command : {SC_MAXIMIZE, SC_MINIMIZE, SC_SIZE, SC_MOVE, SC_RESTORE})
        first->SendMessage(WM_SYSCOMMAND, command);
    EXPECT_EQ(at(first->m_hWnd), place);
    frame->MDIMaximize(first);
    frame->RecalcLayout();
    EXPECT_FALSE(first->IsZoomed());
    EXPECT_EQ(at(first->m_hWnd), place);
    EXPECT_EQ(at(second->m_hWnd), place);
    first->SetWindowText(L"renamed");
    CString label;
    group(0).GetTabLabel(0, label);
    EXPECT_EQ(label, L"renamed");
    first->SendMessage(WM_SYSCOMMAND, SC_CLOSE);
    ui_test::pump();
    EXPECT_EQ(documents(), (Documents{{second}}));
}

TEST_F(DocumentGroupsTest, PanesAndAFrameThatGoesLeaveNothing) {
    enable();
    open(), open();
    frame->MDITabNewGroup();
    CDockablePane pane;
    ASSERT_TRUE(pane.Create(L"pane", frame, CSize(120, 100), TRUE, 900, WS_CHILD | WS_VISIBLE | CBRS_LEFT));
    pane.EnableDocking(CBRS_ALIGN_ANY);
    frame->DockPane(&pane);
    EXPECT_GE(at(group(0).m_hWnd).left, at(pane.m_hWnd).right);
    const HWND one = group(0).m_hWnd;
    frame->SendMessage(WM_CLOSE);
    ui_test::pump();
    EXPECT_FALSE(::IsWindow(one));
    app.m_pMainWnd = AfxGetThread()->m_pMainWnd = nullptr;
}

TEST(DocumentGroupsParameters, AreKeptInArchives) {
    CMDITabInfo written;
    written.m_style = CMFCTabCtrl::STYLE_3D_ONENOTE;
    written.m_tabLocation = CMFCTabCtrl::LOCATION_BOTTOM;
    written.m_bTabIcons = TRUE;
    written.m_bTabCloseButton = FALSE;
    written.m_nTabBorderSize = 7;
    const auto bytes_of = [](CMDITabInfo& info) {
        CMemFile stored;
        CArchive archive(&stored, CArchive::store);
        info.Serialize(archive);
        archive.Close();
        std::vector<BYTE> bytes(static_cast<size_t>(stored.GetLength()));
        stored.SeekToBegin();
        stored.Read(bytes.data(), static_cast<UINT>(bytes.size()));
        return bytes;
    };
    const auto read = [](std::vector<BYTE> bytes, CMDITabInfo& info) {
        CMemFile stored(bytes.data(), static_cast<UINT>(bytes.size()));
        CArchive archive(&stored, CArchive::load);
        try {
            info.Serialize(archive);
        } catch (CException* failed) {
            failed->Delete();
            return false;
        }
        return true;
    };
    std::vector<BYTE> bytes = bytes_of(written);
    CMDITabInfo now;
    EXPECT_TRUE(read(bytes, now));
    EXPECT_EQ(now.m_style, CMFCTabCtrl::STYLE_3D_ONENOTE);
    EXPECT_EQ(now.m_tabLocation, CMFCTabCtrl::LOCATION_BOTTOM);
    EXPECT_TRUE(now.m_bTabIcons);
    EXPECT_FALSE(now.m_bTabCloseButton);
    EXPECT_EQ(now.m_nTabBorderSize, 7);
    for (const size_t place : {size_t{0}, size_t{4}, size_t{11}}) {
        std::vector<BYTE> wrong = bytes;
        wrong[place] = 0xEE;
        CMDITabInfo kept;
        EXPECT_FALSE(read(wrong, kept)) << place;
        EXPECT_EQ(kept.m_style, CMFCTabCtrl::STYLE_3D_SCROLLED);
    }
    bytes.resize(9);
    CMDITabInfo kept;
    EXPECT_FALSE(read(bytes, kept));
    EXPECT_EQ(kept.m_tabLocation, CMFCTabCtrl::LOCATION_TOP);
}

}  // namespace documents_test
