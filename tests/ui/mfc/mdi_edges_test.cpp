// Child frames: where they are made, what is handed on, and the system's commands for them.
#include "mdi_fixture.h"

namespace documents_test {

TEST_F(MdiTest, AChildStandsWhereItIsAskedFor) {
    auto* child = new CMDIChildWnd;
    ASSERT_TRUE(child->Create(nullptr, L"placed", WS_CHILD | WS_VISIBLE | WS_OVERLAPPEDWINDOW,
                              CRect(30, 40, 230, 190), frame));
    CRect place;
    child->GetWindowRect(&place);
    ::MapWindowPoints(nullptr, frame->m_hWndMDIClient, reinterpret_cast<POINT*>(&place), 2);
    EXPECT_EQ(place, CRect(30, 40, 230, 190));
    EXPECT_TRUE(child->IsWindowVisible());
    EXPECT_STREQ(child->GetTitle(), L"placed");
    child->MDIDestroy();
}

TEST_F(MdiTest, AChildThatIsNotToBeSeenIsNot) {
    auto* child = new CMDIChildWnd;
    ASSERT_TRUE(
        child->Create(nullptr, L"hidden", WS_CHILD | WS_OVERLAPPEDWINDOW, CRect(0, 0, 100, 100), frame));
    EXPECT_FALSE(child->IsWindowVisible());
    child->MDIDestroy();
}

TEST_F(MdiTest, AVisibleChildIsMadeMaximizedWhenAskedOrBesideAMaximizedOne) {
    auto* first = new CMDIChildWnd;
    ASSERT_TRUE(first->Create(nullptr, L"first", WS_CHILD | WS_VISIBLE | WS_OVERLAPPEDWINDOW | WS_MAXIMIZE,
                              CRect(0, 0, 100, 100), frame));
    EXPECT_TRUE(first->IsZoomed());
    auto* second = new CMDIChildWnd;
    ASSERT_TRUE(second->Create(nullptr, L"second", WS_CHILD | WS_VISIBLE | WS_OVERLAPPEDWINDOW,
                               CRect(0, 0, 100, 100), frame));
    EXPECT_TRUE(second->IsZoomed());
    EXPECT_EQ(frame->MDIGetActive(), second);
    second->MDIDestroy();
    first->MDIDestroy();
}

TEST_F(MdiTest, AChildNeedsAFrameWithAClientWindow) {
    auto* child = new CMDIChildWnd;
    app.m_pMainWnd = AfxGetThread()->m_pMainWnd = nullptr;
    EXPECT_THROW(child->Create(nullptr, L"none"), CInvalidArgException*);
    app.m_pMainWnd = AfxGetThread()->m_pMainWnd = frame;
    delete child;
}

TEST_F(MdiTest, TheListOfWindowsInTheMenuActivatesAChild) {
    CMDIChildWnd* first = child_of(open());
    CMDIChildWnd* second = child_of(open());
    ASSERT_EQ(frame->MDIGetActive(), second);
    frame->SendMessage(WM_COMMAND, AFX_IDM_FIRST_MDICHILD);
    EXPECT_EQ(frame->MDIGetActive(), first);
    frame->SendMessage(WM_COMMAND, AFX_IDM_FIRST_MDICHILD + 1);
    EXPECT_EQ(frame->MDIGetActive(), second);
}

TEST_F(MdiTest, TheButtonsOfAMaximizedChildActOnIt) {
    CMDIChildWnd* child = child_of(open());
    child->MDIMaximize();
    frame->SendMessage(WM_COMMAND, SC_RESTORE);
    EXPECT_FALSE(child->IsZoomed());
    child->MDIMaximize();
    HWND const window = child->m_hWnd;
    frame->SendMessage(WM_COMMAND, SC_CLOSE);
    ui_test::pump();
    EXPECT_FALSE(::IsWindow(window));
}

TEST_F(MdiTest, ACommandOfNobodyChangesNothing) {
    CMDIChildWnd* first = child_of(open());
    CMDIChildWnd* second = child_of(open());
    (void)first;
    frame->SendMessage(WM_COMMAND, 40000);
    EXPECT_EQ(frame->MDIGetActive(), second);
    EXPECT_FALSE(second->IsZoomed());
}

TEST_F(MdiTest, WindowCommandsArrangeTheChildren) {
    CMDIChildWnd* first = child_of(open());
    CMDIChildWnd* second = child_of(open());
    CRect one, other;
    const auto measure = [&] {
        first->GetWindowRect(&one);
        second->GetWindowRect(&other);
    };
    frame->SendMessage(WM_COMMAND, ID_WINDOW_TILE_HORZ);
    measure();
    EXPECT_EQ(one.left, other.left);
    EXPECT_NE(one.top, other.top);
    frame->SendMessage(WM_COMMAND, ID_WINDOW_TILE_VERT);
    measure();
    EXPECT_NE(one.left, other.left);
    EXPECT_EQ(one.top, other.top);
    frame->SendMessage(WM_COMMAND, ID_WINDOW_CASCADE);
    measure();
    EXPECT_NE(one.left, other.left);
    EXPECT_NE(one.top, other.top);
}

TEST_F(MdiTest, TheFramesActivationGivesAChildWithoutAViewTheFocus) {
    auto* child = new CMDIChildWnd;
    ASSERT_TRUE(child->Create(nullptr, L"viewless", WS_CHILD | WS_VISIBLE | WS_OVERLAPPEDWINDOW,
                              CRect(0, 0, 100, 100), frame));
    ::SetFocus(frame->m_hWnd);
    ::SetFocus(nullptr);
    frame->SendMessage(WM_ACTIVATE, WA_INACTIVE);
    EXPECT_NE(::GetFocus(), child->m_hWnd);
    frame->SendMessage(WM_ACTIVATE, WA_ACTIVE);
    EXPECT_EQ(::GetFocus(), child->m_hWnd);
    child->MDIDestroy();
}

}  // namespace documents_test
