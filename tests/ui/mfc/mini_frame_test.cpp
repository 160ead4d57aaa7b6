// Small frames: what their styles say of edges, sizes and menus.
#include "bars_frame.h"

namespace {

using namespace bars;

class MiniFrame : public FrameBars {
protected:
    CMiniFrameWnd& make(DWORD more) {
        auto* const mini = new CMiniFrameWnd;  // deletes itself
        EXPECT_TRUE(mini->Create(nullptr, L"small", WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_VISIBLE | more,
                                 CRect(300, 200, 400, 260), frame));
        return *mini;
    }
    static LRESULT hit(CWnd& window, CPoint screen) {
        return window.SendMessage(WM_NCHITTEST, 0, MAKELPARAM(screen.x, screen.y));
    }
};

TEST_F(MiniFrame, IsAToolWindowThatBelongsToItsParent) {
    CMiniFrameWnd& mini = make(0);
    CRect window;
    mini.GetWindowRect(&window);
    EXPECT_EQ(window, CRect(300, 200, 400, 260));
    EXPECT_EQ(::GetWindow(mini.m_hWnd, GW_OWNER), frame->m_hWnd);
    EXPECT_NE(mini.GetExStyle() & WS_EX_TOOLWINDOW, 0U);
    EXPECT_EQ(ui_test::text_of(mini.m_hWnd), L"small");
    EXPECT_EQ(mini.GetTitle(), L"small");
    wchar_t name[100] = L"";
    ::GetClassNameW(mini.m_hWnd, name, 100);
    EXPECT_EQ(::GetClassLongPtrW(mini.m_hWnd, GCL_STYLE),
              static_cast<ULONG_PTR>(CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW))
        << CStringA(name);
    EXPECT_EQ(reinterpret_cast<HCURSOR>(::GetClassLongPtrW(mini.m_hWnd, GCLP_HCURSOR)),
              ::LoadCursorW(nullptr, IDC_ARROW));
}

TEST_F(MiniFrame, ItsEdgesSizeItMoveItOrNeither) {
    const CPoint edge(301, 230), caption(330, 210);
    CMiniFrameWnd& sized = make(WS_THICKFRAME);
    EXPECT_EQ(hit(sized, edge), HTLEFT);
    EXPECT_EQ(hit(sized, caption), HTCAPTION);
    EXPECT_EQ(hit(make(WS_THICKFRAME | MFS_MOVEFRAME), edge), HTCAPTION);
    EXPECT_EQ(hit(make(WS_THICKFRAME | MFS_4THICKFRAME), edge), HTBORDER);
}

TEST_F(MiniFrame, ThickOnesMayBeAsSmallAsTheirEdges) {
    CMiniFrameWnd& usual = make(WS_THICKFRAME);
    CMiniFrameWnd& thick = make(WS_THICKFRAME | MFS_THICKFRAME);
    MINMAXINFO info = {};
    info.ptMinTrackSize = CPoint(77, 66);
    usual.SendMessage(WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&info));
    EXPECT_EQ(CPoint(info.ptMinTrackSize), CPoint(77, 66));
    thick.SendMessage(WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&info));
    RECT edges = {0, 0, 0, 0};
    ::AdjustWindowRectEx(&edges, thick.GetStyle(), FALSE, thick.GetExStyle());
    EXPECT_EQ(CPoint(info.ptMinTrackSize), CPoint(edges.right - edges.left, edges.bottom - edges.top));
}

TEST_F(MiniFrame, ABlockedSystemMenuDoesntOpen) {
    CMiniFrameWnd& open = make(0);
    CMiniFrameWnd& blocked = make(MFS_BLOCKSYSMENU);
    const auto opens = [](CWnd& window, UINT message, WPARAM wParam, LPARAM lParam) {
        bool opened = false;
        ui_test::later([&] {
            GUITHREADINFO info = {};
            info.cbSize = sizeof info;
            ::GetGUIThreadInfo(::GetCurrentThreadId(), &info);
            opened = (info.flags & GUI_INMENUMODE) != 0;
            ::EndMenu();
        });
        window.SendMessage(message, wParam, lParam);
        ui_test::pump_until([&] { return opened; }, 200);
        return opened;
    };
    EXPECT_TRUE(opens(open, WM_SYSCOMMAND, SC_KEYMENU, ' '));
    EXPECT_FALSE(opens(blocked, WM_SYSCOMMAND, SC_KEYMENU, ' '));
    const LPARAM caption = MAKELPARAM(330, 210);
    EXPECT_TRUE(opens(open, WM_CONTEXTMENU, reinterpret_cast<WPARAM>(open.m_hWnd), caption));
    EXPECT_FALSE(opens(blocked, WM_CONTEXTMENU, reinterpret_cast<WPARAM>(blocked.m_hWnd), caption));
}

}  // namespace
