// Tool tips that the framework shows for the children of a window.
#include <afxcmn.h>

#include "ui_test.h"

namespace {

constexpr UINT kButton = 61;

class TippedWindow : public ui_test::ParentWindow {
public:
    int asked = 0;
    UINT_PTR askedFor = 0;
    CPoint lastPoint;
    INT_PTR forced = 0;  ///< answered by OnToolHitTest when not 0

    INT_PTR OnToolHitTest(CPoint point, TOOLINFO* tool) const override {
        const_cast<TippedWindow*>(this)->lastPoint = point;
        const INT_PTR hit = CWnd::OnToolHitTest(point, tool);
        return forced != 0 ? forced : hit;
    }
    /// What a mouse move to a client point leads to.
    void Hover(CPoint point) {
        MSG move = {m_hWnd, WM_MOUSEMOVE, 0, MAKELPARAM(point.x, point.y), 0, point};
        ClientToScreen(&move.pt);
        FilterToolTipMessage(&move);
    }
    void Press() {
        MSG press = {m_hWnd, WM_LBUTTONDOWN, 0, 0, 0, {}};
        FilterToolTipMessage(&press);
    }

protected:
    afx_msg BOOL OnNeedText(UINT, NMHDR* header, LRESULT* result) {
        ++asked;
        askedFor = header->idFrom;
        reinterpret_cast<NMTTDISPINFOW*>(header)->lpszText = const_cast<LPWSTR>(L"says this");
        *result = 0;
        return TRUE;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(TippedWindow, CWnd)
    ON_NOTIFY_EX(TTN_NEEDTEXTW, 0, &TippedWindow::OnNeedText)
END_MESSAGE_MAP()

HWND tip_of(HWND owner) {
    for (HWND tip = nullptr; (tip = ::FindWindowExW(nullptr, tip, TOOLTIPS_CLASSW, nullptr)) != nullptr;)
        if (::GetWindow(tip, GW_OWNER) == owner) return tip;
    return nullptr;
}

class ToolTips : public ::testing::Test {
protected:
    void SetUp() override {
        button = ::CreateWindowExW(0, L"BUTTON", L"a", WS_CHILD | WS_VISIBLE, 10, 10, 60, 20, window.m_hWnd,
                                   reinterpret_cast<HMENU>(static_cast<UINT_PTR>(kButton)), nullptr, nullptr);
    }
    int tools() {
        HWND tip = tip_of(window.m_hWnd);
        return tip != nullptr ? static_cast<int>(::SendMessageW(tip, TTM_GETTOOLCOUNT, 0, 0)) : 0;
    }
    TippedWindow window;
    HWND button = nullptr;
};

}  // namespace

TEST_F(ToolTips, TheHitTestFindsTheChildUnderThePoint) {
    TOOLINFO tool = {};
    tool.cbSize = TTTOOLINFOW_V1_SIZE;
    EXPECT_EQ(window.CWnd::OnToolHitTest(CPoint(20, 15), &tool), static_cast<INT_PTR>(kButton));
    EXPECT_EQ(tool.hwnd, window.m_hWnd);
    EXPECT_EQ(tool.uId, reinterpret_cast<UINT_PTR>(button));
    EXPECT_TRUE(tool.uFlags & TTF_IDISHWND);
    EXPECT_EQ(tool.lpszText, LPSTR_TEXTCALLBACKW);
    EXPECT_EQ(window.CWnd::OnToolHitTest(CPoint(200, 200), &tool), -1);
    EXPECT_EQ(window.CWnd::OnToolHitTest(CPoint(20, 15), nullptr), static_cast<INT_PTR>(kButton));
}

TEST_F(ToolTips, NoneAreShownUntilTheyAreWanted) {
    window.Hover(CPoint(20, 15));
    EXPECT_EQ(tip_of(window.m_hWnd), nullptr);
    window.EnableToolTips();
    window.Hover(CPoint(20, 15));
    EXPECT_EQ(window.lastPoint, CPoint(20, 15));
    EXPECT_EQ(tools(), 1);
    window.EnableToolTips(FALSE);
    EXPECT_EQ(tip_of(window.m_hWnd), nullptr);
}

TEST_F(ToolTips, TheToolFollowsThePointer) {
    window.EnableToolTips();
    window.Hover(CPoint(20, 15));
    window.Hover(CPoint(22, 16));
    EXPECT_EQ(tools(), 1);
    window.Hover(CPoint(200, 200));
    EXPECT_EQ(tools(), 0);
    window.Hover(CPoint(20, 15));
    window.Press();
    EXPECT_EQ(tools(), 0);
}

TEST_F(ToolTips, TheWindowIsAskedForTheTextUnderIdZero) {
    window.EnableToolTips();
    window.Hover(CPoint(20, 15));
    HWND tip = tip_of(window.m_hWnd);
    ASSERT_NE(tip, nullptr);
    wchar_t text[80] = {};
    TOOLINFO tool = {};
    tool.cbSize = TTTOOLINFOW_V1_SIZE;
    tool.hwnd = window.m_hWnd;
    tool.uId = reinterpret_cast<UINT_PTR>(button);
    tool.lpszText = text;
    ::SendMessageW(tip, TTM_GETTEXTW, 80, reinterpret_cast<LPARAM>(&tool));
    EXPECT_STREQ(text, L"says this");
    EXPECT_GE(window.asked, 1);
    EXPECT_EQ(window.askedFor, reinterpret_cast<UINT_PTR>(button));
}

TEST_F(ToolTips, TheTipGoesWithItsWindow) {
    window.EnableToolTips();
    window.Hover(CPoint(20, 15));
    HWND tip = tip_of(window.m_hWnd);
    ASSERT_NE(tip, nullptr);
    window.DestroyWindow();
    EXPECT_FALSE(::IsWindow(tip));
}
