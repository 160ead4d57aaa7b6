// What is under way with the mouse in docking and is broken off by the system; moves of panes in one step
// with others.
#include "docking_fixture.h"

using namespace docking;

namespace {

class DockingCancel : public Docking {
protected:
    static void cancel(const CWnd& window) { ::SendMessageW(window.m_hWnd, WM_CANCELMODE, 0, 0); }
};

}  // namespace

TEST_F(DockingCancel, a_pressed_caption_is_let_go) {
    Pane& pane = docked(L"one", AFX_IDW_DOCKBAR_LEFT);
    const CPoint from = caption_of(pane);
    press(pane, from);
    ASSERT_EQ(::GetCapture(), pane.m_hWnd);
    cancel(pane);
    EXPECT_EQ(::GetCapture(), nullptr);
    send_mouse(pane.m_hWnd, WM_MOUSEMOVE, from + CSize(60, 60), MK_LBUTTON);
    EXPECT_TRUE(pane.IsDocked()) << "the drag is off";
    const HWND other = ::SetCapture(view.m_hWnd);
    EXPECT_EQ(other, nullptr);
    cancel(pane);
    EXPECT_EQ(::GetCapture(), view.m_hWnd) << "the mouse of another stays its";
    ::ReleaseCapture();
}

TEST_F(DockingCancel, a_frame_goes_back_to_where_it_was) {
    Pane& pane = docked(L"one", AFX_IDW_DOCKBAR_LEFT);
    const CRect place(300, 200, 520, 380);
    pane.FloatPane(place);
    CPaneFrameWnd& mini = *pane.GetParentMiniFrame();
    const CPoint from = caption_of(mini);
    press(mini, from);
    move(from + CSize(30, 40));
    ASSERT_TRUE(manager().is_dragging());
    ASSERT_EQ(on_screen(mini).TopLeft(), place.TopLeft() + CSize(30, 40));
    cancel(mini);
    EXPECT_FALSE(manager().is_dragging());
    EXPECT_FALSE(mini.IsCaptured());
    EXPECT_EQ(::GetCapture(), nullptr);
    EXPECT_EQ(on_screen(mini), place);
}

TEST_F(DockingCancel, a_divider_leaves_the_panes_as_they_were) {
    Pane& pane = docked(L"one", AFX_IDW_DOCKBAR_LEFT);
    const auto all = dividers(*frame);
    ASSERT_EQ(all.size(), 1U);
    const CPoint from = on_screen(*all[0]).CenterPoint();
    press(*all[0], from);
    ASSERT_EQ(::GetCapture(), all[0]->m_hWnd);
    move(from + CSize(50, 0));
    cancel(*all[0]);
    EXPECT_EQ(::GetCapture(), nullptr);
    EXPECT_EQ(at(pane), CRect(0, 0, 150, 500));
    press(*all[0], from);
    move(from + CSize(50, 0));
    release(from + CSize(50, 0));
    EXPECT_EQ(at(pane), CRect(0, 0, 200, 500)) << "let go, it moves them";
}

TEST_F(DockingCancel, panes_move_at_once_or_with_others) {
    Pane& pane = make(L"one");
    CBasePane& base = pane;
    CRect first(10, 20, 110, 90), second(30, 40, 90, 140);
    EXPECT_EQ(base.MoveWindow(first, TRUE, nullptr), nullptr);
    EXPECT_EQ(at(pane), first);
    HDWP together = ::BeginDeferWindowPos(1);
    together = base.MoveWindow(second, FALSE, together);
    ASSERT_NE(together, nullptr);
    EXPECT_EQ(at(pane), first) << "not before all of them";
    EXPECT_TRUE(::EndDeferWindowPos(together));
    EXPECT_EQ(at(pane), second);
    EXPECT_EQ(base.SetWindowPos(nullptr, 1, 2, 3, 4, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE, nullptr),
              nullptr);
    EXPECT_EQ(at(pane), CRect(CPoint(1, 2), second.Size()));
}

TEST_F(DockingCancel, a_panes_picture_is_its_windows) {
    Pane& pane = make(L"one");
    const HICON small = ::CreateIcon(nullptr, 1, 1, 1, 1, reinterpret_cast<const BYTE*>("\0"),
                                     reinterpret_cast<const BYTE*>("\0"));
    const HICON big = ::CreateIcon(nullptr, 2, 2, 1, 1, reinterpret_cast<const BYTE*>("\0\0\0\0"),
                                   reinterpret_cast<const BYTE*>("\0\0\0\0"));
    CBasePane& base = pane;
    pane.SetIcon(small, FALSE);
    pane.SetIcon(big, TRUE);
    EXPECT_EQ(base.GetPaneIcon(FALSE), small);
    EXPECT_EQ(base.GetPaneIcon(TRUE), big);
    pane.SetIcon(nullptr, FALSE);
    pane.SetIcon(nullptr, TRUE);
    ::DestroyIcon(small);
    ::DestroyIcon(big);
}
