// The upright caption of a bar that is docked at the bottom.
#include <afxcaptionbutton.h>
#include <afxglobals.h>
#include <afxmenuimages.h>
#include <afxvisualmanager.h>

#include "bar_fixture.h"
#include "noting_look.h"
#include "picture.h"

namespace {

using namespace docking_test;

struct BarCaption : DockingTest {
    OpenBar bar;

    ~BarCaption() override {
        CDockablePane::m_bHideDisabledButtons = m_hides;
        CDockingManager::m_bDockBarMenu = m_menu;
    }
    void SetUp() override { dock(bar, CBRS_ALIGN_BOTTOM); }
    /// What the bar makes of a window's rectangle.
    CRect clientOf(const CRect& window) {
        NCCALCSIZE_PARAMS params = {};
        params.rgrc[0] = window;
        bar.SendMessage(WM_NCCALCSIZE, TRUE, reinterpret_cast<LPARAM>(&params));
        return params.rgrc[0];
    }
    static int pitch() {
        return CMenuImages::Size().cy + 2 * CMFCCaptionButton::m_nButtonMarginVert +
               CMFCVisualManager::GetInstance()->GetCaptionButtonExtraBorder().cy + 1;
    }
    std::vector<CMFCCaptionButton*> buttons() {
        std::vector<CMFCCaptionButton*> all;
        for (INT_PTR i = 0; i < bar.m_arrButtons.GetSize(); ++i)
            all.push_back(static_cast<CMFCCaptionButton*>(bar.m_arrButtons[i]));
        return all;
    }
    CRect windowRect() {
        CRect rect;
        bar.GetWindowRect(&rect);
        return rect;
    }
    LRESULT hit(CPoint screen) { return bar.SendMessage(WM_NCHITTEST, 0, MAKELPARAM(screen.x, screen.y)); }

private:
    BOOL m_hides = CDockablePane::m_bHideDisabledButtons;
    BOOL m_menu = CDockingManager::m_bDockBarMenu;
};

TEST_F(BarCaption, StandsAtTheLeftAndTheClientReachesIntoItByTwo) {
    const int height = bar.GetCaptionHeight();
    ASSERT_GT(height, 4);
    const CRect client = clientOf(CRect(100, 200, 500, 400));
    expectRect(client, 100 + height - 2, 200, 500, 400);
}

TEST_F(BarCaption, IsOrdinaryAnywhereElse) {
    bar.SetPaneAlignment(CBRS_ALIGN_LEFT);
    const CRect client = clientOf(CRect(100, 200, 500, 400));
    EXPECT_GT(client.top, 204);
    EXPECT_LE(client.left, 102);
}

/// Draws the caption and looks whether it lies along the upper edge.
struct OrdinaryCaption : BarCaption {
    void expectOrdinary() {
        const int height = bar.GetCaptionHeight();
        ASSERT_GT(height, 4);
        EXPECT_EQ(clientOf(CRect(100, 200, 500, 400)).top, 200 + height);
        const NotingLook::InForce look;
        NotingLook::captions().clear();
        bar.SendMessage(WM_NCPAINT, 1, 0);
        ASSERT_EQ(NotingLook::captions().size(), 1u);
        expectRect(NotingLook::captions()[0].area, 0, 0, windowRect().Width(), height);
        EXPECT_NE(hit(CPoint(windowRect().right + height - 1, windowRect().bottom - 1)), HTCLIENT);
    }
};

TEST_F(OrdinaryCaption, StandsOnABarAtTheLeft) {
    bar.DestroyWindow();
    dock(bar, CBRS_ALIGN_LEFT);
    expectOrdinary();
}

/// Notes the commands that the system makes of double clicks, and lets none through.
class CommandedBar : public OpenBar {
public:
    std::vector<UINT> commands;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message != WM_SYSCOMMAND) return OpenBar::WindowProc(message, wParam, lParam);
        commands.push_back(static_cast<UINT>(wParam & 0xFFF0));
        return 0;
    }
};

TEST_F(OrdinaryCaption, ADoubleClickOutsideOfTheButtonsIsTheSystems) {
    CommandedBar other;
    dock(other, CBRS_ALIGN_LEFT, 4003);
    CRect window;
    other.GetWindowRect(&window);
    other.SendMessage(WM_NCLBUTTONDBLCLK, HTVSCROLL, MAKELPARAM(window.right - 2, window.bottom - 2));
    EXPECT_EQ(other.commands, std::vector<UINT>{SC_VSCROLL});
    CommandedBar upright;
    dock(upright, CBRS_ALIGN_BOTTOM, 4004);
    upright.GetWindowRect(&window);
    upright.SendMessage(WM_NCLBUTTONDBLCLK, HTVSCROLL, MAKELPARAM(window.right - 2, window.bottom - 2));
    EXPECT_EQ(upright.commands, std::vector<UINT>{SC_VSCROLL});
}

TEST_F(OrdinaryCaption, StandsOnAFloatingBarThatWouldDockAtTheBottom) {
    OpenBar second;
    floatBar(bar);
    dock(second, CBRS_ALIGN_LEFT, 4002);
    ASSERT_TRUE(second.DockToWindow(&bar, CBRS_ALIGN_BOTTOM));
    bar.SetPaneAlignment(CBRS_ALIGN_BOTTOM);
    ASSERT_EQ(bar.GetCurrentAlignment(), static_cast<DWORD>(CBRS_ALIGN_BOTTOM));
    ASSERT_FALSE(bar.IsDocked());
    expectOrdinary();
}

TEST_F(BarCaption, TheClientIsNeverInsideOut) {
    const CRect client = clientOf(CRect(100, 200, 104, 190));
    EXPECT_EQ(client.right, client.left);
    EXPECT_EQ(client.bottom, 200);
}

TEST_F(BarCaption, WithoutACaptionTheButtonsAreHiddenAndTheAreaGrowsByTwo) {
    bar.EnableGripper(FALSE);
    ASSERT_LT(bar.GetCaptionHeight(), 1);
    expectRect(clientOf(CRect(100, 200, 500, 400)), 98, 200, 500, 400);
    for (const CMFCCaptionButton* button : buttons()) EXPECT_TRUE(button->m_bHidden);
}

TEST_F(BarCaption, ItsButtonsStandBelowEachOther) {
    CDockingManager::m_bDockBarMenu = TRUE;
    clientOf(CRect(100, 200, 500, 400));
    ASSERT_GE(buttons().size(), 2u);
    int y = 2;
    for (const CMFCCaptionButton* button : buttons()) {
        if (button->m_bHidden) continue;
        EXPECT_EQ(button->GetRect().left, 2);
        EXPECT_EQ(button->GetRect().top, y);
        y += pitch();
    }
    EXPECT_GT(y, 2);
}

TEST_F(BarCaption, AHiddenButtonTakesNoRoom) {
    CDockingManager::m_bDockBarMenu = TRUE;
    CDockablePane::m_bHideDisabledButtons = TRUE;
    clientOf(CRect(100, 200, 500, 400));
    EXPECT_EQ(bar.FindButtonByHit(8)->GetRect().top, 2 + 2 * pitch());
    bar.SetControlBarStyle(bar.GetControlBarStyle() & ~static_cast<DWORD>(AFX_CBRS_AUTOHIDE));
    clientOf(CRect(100, 200, 500, 400));
    ASSERT_TRUE(bar.FindButtonByHit(9)->m_bHidden);
    EXPECT_EQ(bar.FindButtonByHit(8)->GetRect().top, 2 + pitch());
}

TEST_F(BarCaption, TheTipsFollowTheButtons) {
    const auto tipOf = [this](UINT_PTR hit) {
        TOOLINFOW tool = {};
        tool.cbSize = sizeof tool;
        tool.hwnd = bar.m_hWnd;
        tool.uId = hit;
        ::EnumThreadWindows(
            ::GetCurrentThreadId(),
            [](HWND window, LPARAM found) -> BOOL {
                wchar_t name[40] = {};
                ::GetClassNameW(window, name, 40);
                return std::wstring(name) != TOOLTIPS_CLASSW ||
                       !::SendMessageW(window, TTM_GETTOOLINFOW, 0, found);
            },
            reinterpret_cast<LPARAM>(&tool));
        return CRect(tool.rect);
    };
    CPoint origin(0, 0);
    bar.ClientToScreen(&origin);
    origin -= windowRect().TopLeft();
    bar.SetWindowPos(nullptr, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_FRAMECHANGED);
    EXPECT_TRUE(tipOf(19) == CRect(CPoint(2 - origin.x, 2 - origin.y), CMFCCaptionButton::GetSize()));
    CDockablePane::m_bHideDisabledButtons = TRUE;
    bar.SetControlBarStyle(bar.GetControlBarStyle() & ~static_cast<DWORD>(AFX_CBRS_CLOSE));
    clientOf(windowRect());
    EXPECT_TRUE(tipOf(19).IsRectEmpty());
}

TEST_F(BarCaption, HidesButtonsThatCantBeUsed) {
    const auto isHidden = [this](LRESULT code) {
        clientOf(CRect(100, 200, 500, 400));
        const CMFCCaptionButton* button = bar.FindButtonByHit(code);
        return button == nullptr || button->m_bHidden;
    };
    CDockablePane::m_bHideDisabledButtons = TRUE;
    CDockingManager::m_bDockBarMenu = TRUE;
    EXPECT_FALSE(isHidden(19));
    bar.SetControlBarStyle(bar.GetControlBarStyle() & ~8u);
    EXPECT_TRUE(isHidden(19));
    CDockablePane::m_bHideDisabledButtons = FALSE;
    EXPECT_EQ(isHidden(19), bar.FindButtonByHit(19) == nullptr);
    ASSERT_NE(bar.FindButtonByHit(8), nullptr);
    EXPECT_FALSE(isHidden(8));
    CDockingManager::m_bDockBarMenu = FALSE;
    EXPECT_TRUE(isHidden(8));
}

TEST_F(BarCaption, APinOfABarThatCantHideIsHidden) {
    struct NoHiding : OpenBar {
        bool can = true;
        BOOL CanAutoHide() const override { return can; }
    } noHiding;
    dock(noHiding, CBRS_ALIGN_BOTTOM, 4007);
    CMFCCaptionButton* pin = noHiding.FindButtonByHit(9);
    ASSERT_NE(pin, nullptr);
    const auto isHidden = [&](bool can, BOOL hides) {
        noHiding.can = can;
        CDockablePane::m_bHideDisabledButtons = hides;
        NCCALCSIZE_PARAMS params = {};
        params.rgrc[0] = CRect(0, 0, 400, 200);
        noHiding.SendMessage(WM_NCCALCSIZE, TRUE, reinterpret_cast<LPARAM>(&params));
        return pin->m_bHidden != FALSE;
    };
    EXPECT_FALSE(isHidden(true, TRUE));
    EXPECT_TRUE(isHidden(false, TRUE));
    EXPECT_FALSE(isHidden(false, FALSE));
}

TEST_F(BarCaption, PointsOnButtonsHitThem) {
    int tried = 0;
    for (const CMFCCaptionButton* button : buttons()) {
        if (button->m_bHidden) continue;
        EXPECT_EQ(hit(windowRect().TopLeft() + button->GetRect().CenterPoint()),
                  static_cast<LRESULT>(button->GetHit()));
        ++tried;
    }
    EXPECT_GT(tried, 0);
}

TEST_F(BarCaption, TheRestIsClientAreaFromTwoCaptionsDownAndOneBeyondTheRight) {
    const CRect window = windowRect();
    const int height = bar.GetCaptionHeight();
    EXPECT_EQ(hit(CPoint(window.left + 1, window.top + 2 * height)), HTCLIENT);
    EXPECT_EQ(hit(CPoint(window.right + height - 1, window.bottom - 1)), HTCLIENT);
    // Just outside of that rectangle the framework answers, to whom this is no client area.
    EXPECT_NE(hit(CPoint(window.left + 1, window.top + 2 * height - 1)), HTCLIENT);
    EXPECT_NE(hit(CPoint(window.right + height, window.bottom - 1)), HTCLIENT);
}

TEST_F(BarCaption, APressOnAButtonWorks) {
    CMFCCaptionButton* close = bar.FindButtonByHit(19);
    ASSERT_NE(close, nullptr);
    const CPoint screen = windowRect().TopLeft() + close->GetRect().CenterPoint();
    CPoint client = screen;
    bar.ScreenToClient(&client);
    bar.SendMessage(WM_NCLBUTTONDOWN, static_cast<WPARAM>(hit(screen)), MAKELPARAM(screen.x, screen.y));
    sendMouse(bar, WM_LBUTTONUP, client);
    EXPECT_FALSE(bar.IsVisible());
}

TEST_F(BarCaption, IsPaintedAsThatOfAPaneThatIsNotActive) {
    bar.m_bActive = TRUE;
    bar.SendMessage(WM_NCPAINT, 1, 0);
    EXPECT_FALSE(bar.m_bActive);
    const int height = bar.GetCaptionHeight();
    CRect window = windowRect();
    window.right = window.left + height - 2;
    frame->ScreenToClient(&window);
    const ui_test::Picture caption(*frame, window);
    EXPECT_GT(caption.count(caption.commonest()), caption.width() * caption.height() / 2);
    EXPECT_LT(caption.count(caption.commonest()), caption.width() * caption.height()) << "buttons and a name";
    EXPECT_GT(ui_test::strongestContrast(caption), ui_test::kVisible);
}

TEST_F(BarCaption, PaintingLeavesTheClientAreaAlone) {
    CClientDC dc(&bar);
    CRect client;
    bar.GetClientRect(&client);
    dc.FillSolidRect(&client, RGB(1, 2, 3));
    bar.SendMessage(WM_NCPAINT, 1, 0);
    const ui_test::Picture inside(bar);
    EXPECT_EQ(inside.count(RGB(1, 2, 3)), client.Width() * client.Height());
}

}  // namespace
