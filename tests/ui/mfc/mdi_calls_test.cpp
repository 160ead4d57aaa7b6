// Calls of frames of several documents that programs make themselves, and the mouse in a child.
#include <algorithm>

#include "mdi_fixture.h"

namespace documents_test {

namespace {

CRect on_screen(const CWnd& window) {
    CRect rect;
    window.GetWindowRect(&rect);
    return rect;
}

}  // namespace

TEST_F(MdiTest, TheNextAndThePreviousChildComeForward) {
    CMDIChildWnd* const first = child_of(open());
    CMDIChildWnd* const second = child_of(open());
    CMDIChildWnd* const third = child_of(open());
    ASSERT_EQ(frame->MDIGetActive(), third);
    frame->MDINext();
    CMDIChildWnd* const after = frame->MDIGetActive();
    EXPECT_NE(after, third);
    frame->MDIPrev();
    EXPECT_EQ(frame->MDIGetActive(), third) << "the way back";
    frame->MDIPrev();
    CMDIChildWnd* const before = frame->MDIGetActive();
    EXPECT_NE(before, third);
    EXPECT_NE(before, after) << "of three the other way leads to another";
    frame->MDIActivate(second);
    EXPECT_EQ(frame->MDIGetActive(), second);
    first->MDIActivate();
    EXPECT_EQ(frame->MDIGetActive(), first);
}

TEST_F(MdiTest, ChildrenAreTiledAndCascadedByCalls) {
    CMDIChildWnd* const first = child_of(open());
    CMDIChildWnd* const second = child_of(open());
    frame->MDITile(MDITILE_HORIZONTAL);
    EXPECT_EQ(on_screen(*first).left, on_screen(*second).left);
    EXPECT_NE(on_screen(*first).top, on_screen(*second).top);
    frame->MDICascade();
    EXPECT_NE(on_screen(*first).left, on_screen(*second).left);
    EXPECT_NE(on_screen(*first).top, on_screen(*second).top);
    frame->MDITile(MDITILE_VERTICAL);
    EXPECT_NE(on_screen(*first).left, on_screen(*second).left);
    EXPECT_EQ(on_screen(*first).top, on_screen(*second).top);
    frame->MDICascade(MDITILE_SKIPDISABLED);
    EXPECT_NE(on_screen(*first).top, on_screen(*second).top);
    frame->MDITile();
    EXPECT_FALSE(on_screen(*first) == on_screen(*second));
    CRect both;
    EXPECT_FALSE(both.IntersectRect(on_screen(*first), on_screen(*second)));
}

TEST_F(MdiTest, ChildrenAreMaximisedAndRestored) {
    CMDIChildWnd* const child = child_of(open());
    BOOL maximised = TRUE;
    EXPECT_EQ(frame->MDIGetActive(&maximised), child);
    EXPECT_FALSE(maximised);
    frame->MDIMaximize(child);
    EXPECT_EQ(frame->MDIGetActive(&maximised), child);
    EXPECT_TRUE(maximised);
    EXPECT_TRUE(child->IsZoomed());
    frame->MDIRestore(child);
    EXPECT_FALSE(child->IsZoomed());
    child->MDIMaximize();
    EXPECT_TRUE(child->IsZoomed());
    child->MDIRestore();
    EXPECT_FALSE(child->IsZoomed());
}

TEST_F(MdiTest, IconsAreArrangedAtTheLowerEdge) {
    CMDIChildWnd* const child = child_of(open());
    child->ShowWindow(SW_MINIMIZE);
    ASSERT_TRUE(child->IsIconic());
    child->SetWindowPos(nullptr, 40, 10, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    const CRect moved = on_screen(*child);
    frame->SendMessage(WM_COMMAND, ID_WINDOW_ARRANGE);
    EXPECT_GT(on_screen(*child).top, moved.top);
    child->SetWindowPos(nullptr, 40, 10, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    frame->MDIIconArrange();
    EXPECT_GT(on_screen(*child).top, moved.top);
    child->ActivateFrame();
    EXPECT_FALSE(child->IsIconic()) << "an icon becomes a window again";
}

TEST_F(MdiTest, AHiddenChildShowsAndTakesTheFrontWhenItIsActivated) {
    CMDIChildWnd* const first = child_of(open());
    CMDIChildWnd* const second = child_of(open());
    first->ShowWindow(SW_HIDE);
    first->ActivateFrame();
    EXPECT_TRUE(first->IsWindowVisible());
    EXPECT_EQ(frame->MDIGetActive(), first);
    EXPECT_FALSE(first->IsZoomed());
    first->ShowWindow(SW_HIDE);
    second->MDIActivate();
    second->MDIMaximize();
    first->ActivateFrame();
    EXPECT_TRUE(first->IsZoomed()) << "like the one in front";
}

TEST_F(MdiTest, AClickInAChildBringsItForward) {
    CMDIChildWnd* const first = child_of(open());
    CMDIChildWnd* const second = child_of(open());
    ASSERT_EQ(frame->MDIGetActive(), second);
    const LRESULT answer = first->SendMessage(WM_MOUSEACTIVATE, reinterpret_cast<WPARAM>(frame->m_hWnd),
                                              MAKELPARAM(HTCLIENT, WM_LBUTTONDOWN));
    EXPECT_EQ(frame->MDIGetActive(), first);
    EXPECT_TRUE(answer == MA_ACTIVATE || answer == MA_NOACTIVATE || answer == 0) << answer;
    EXPECT_EQ(first->SendMessage(WM_MOUSEACTIVATE, reinterpret_cast<WPARAM>(frame->m_hWnd),
                                 MAKELPARAM(HTCLIENT, WM_LBUTTONDOWN)),
              answer);
    EXPECT_EQ(frame->MDIGetActive(), first);
}

TEST_F(MdiTest, AChildUsesTheFramesMessageBar) {
    CMDIChildWnd* const child = child_of(open());
    EXPECT_EQ(child->GetMessageBar(), nullptr);
    CStatusBar bar;
    ASSERT_TRUE(bar.Create(frame));
    EXPECT_EQ(child->GetMessageBar(), &bar);
    EXPECT_EQ(frame->GetMessageBar(), &bar);
    EXPECT_EQ(frame->GetActiveFrame(), child);
    EXPECT_EQ(child->GetMDIFrame(), frame);
}

TEST_F(MdiTest, AClosedChildIsGoneAndTheTitleIsTheFramesAgain) {
    CMDIChildWnd* const child = child_of(open());
    child->MDIMaximize();
    const HWND window = child->m_hWnd;
    EXPECT_TRUE(child->DestroyWindow());
    EXPECT_FALSE(::IsWindow(window));
    EXPECT_EQ(frame->MDIGetActive(), nullptr);
    EXPECT_EQ(frame->GetActiveFrame(), frame);
    EXPECT_STREQ(title(), L"Pad");
    CMDIChildWnd none;
    EXPECT_FALSE(none.DestroyWindow());
}

TEST_F(MdiTest, TheKeysOfTheSystemCloseAndChangeChildren) {
    CMDIChildWnd* const first = child_of(open());
    CMDIChildWnd* const second = child_of(open());
    (void)first;
    BYTE before[256] = {}, held[256] = {};
    ::GetKeyboardState(before);
    held[VK_CONTROL] = 0x80;
    ::SetKeyboardState(held);
    MSG message = {second->m_hWnd, WM_KEYDOWN, VK_F6, 1, 0, {}};
    EXPECT_TRUE(frame->PreTranslateMessage(&message));
    EXPECT_EQ(frame->MDIGetActive(), first);
    message.message = WM_KEYUP;
    EXPECT_FALSE(frame->PreTranslateMessage(&message));
    EXPECT_EQ(frame->MDIGetActive(), first);
    ::SetKeyboardState(before);
    message.message = WM_KEYDOWN;
    message.wParam = 'A';
    EXPECT_FALSE(frame->PreTranslateMessage(&message));
}

}  // namespace documents_test
