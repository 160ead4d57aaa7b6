// The buttons of a caption that stands upright: the mouse over them, and what they are drawn with.
#include <afxvisualmanager.h>

#include "bar_fixture.h"
#include "noting_look.h"
#include "told_mouse.h"

namespace {

using namespace docking_test;

struct UprightButtons : DockingTest {
    OpenBar bar;

    void SetUp() override { dock(bar, CBRS_ALIGN_BOTTOM); }
    bool isHot(LRESULT hit) { return bar.FindButtonByHit(hit)->m_bFocused != FALSE; }
    bool isHeld(LRESULT hit) { return bar.FindButtonByHit(hit)->m_bPushed != FALSE; }
    CPoint closeOnScreen() { return buttonOnScreen(bar, 19); }
};

TEST_F(UprightButtons, GetHotUnderTheMouseAndColdWhenItGoes) {
    sendNcMouse(bar, WM_NCMOUSEMOVE, closeOnScreen());
    EXPECT_TRUE(isHot(19));
    sendNcMouse(bar, WM_NCMOUSEMOVE, buttonOnScreen(bar, 9));
    EXPECT_FALSE(isHot(19));
    EXPECT_TRUE(isHot(9));
    bar.SendMessage(WM_NCMOUSELEAVE);
    EXPECT_FALSE(isHot(9));
}

TEST_F(UprightButtons, AskToHearThatTheMouseLeavesTheCaption) {
    const ui_test::ToldMouse mouse;
    sendNcMouse(bar, WM_NCMOUSEMOVE, closeOnScreen());
    EXPECT_EQ(mouse.askedForLeavingCaption, std::vector<HWND>{bar.m_hWnd});
    EXPECT_TRUE(mouse.askedForLeaving.empty()) << "a client area that the mouse isn't in is left at once";
    EXPECT_TRUE(isHot(19));
}

TEST_F(UprightButtons, OfALockedBarCanBePressedOnceTheMouseHasMetThem) {
    KbUiLockPanel(true, false);
    sendNcMouse(bar, WM_NCLBUTTONDOWN, closeOnScreen());
    EXPECT_TRUE(bar.isBlocked()) << "nothing follows the mouse yet";
    sendMouse(bar, WM_LBUTTONUP, buttonPlace(bar, 19));
    EXPECT_TRUE(bar.IsVisible());
    sendNcMouse(bar, WM_NCMOUSEMOVE, closeOnScreen());
    sendNcMouse(bar, WM_NCLBUTTONDOWN, closeOnScreen());
    EXPECT_FALSE(bar.isBlocked());
    EXPECT_TRUE(isHeld(19));
    sendMouse(bar, WM_LBUTTONUP, buttonPlace(bar, 19));
    EXPECT_FALSE(bar.IsVisible());
}

TEST_F(UprightButtons, ASecondPressOfAFastPairPressesAgain) {
    sendNcMouse(bar, WM_NCLBUTTONDBLCLK, closeOnScreen());
    EXPECT_TRUE(isHeld(19));
    sendMouse(bar, WM_LBUTTONUP, buttonPlace(bar, 19));
    EXPECT_FALSE(bar.IsVisible());
}

TEST_F(UprightButtons, ASecondPressOnALockedBarOnlyTakesTheFocus) {
    KbUiLockPanel(true, false);
    frame->SetFocus();
    sendNcMouse(bar, WM_NCMOUSEMOVE, closeOnScreen());
    sendNcMouse(bar, WM_NCLBUTTONDBLCLK, closeOnScreen());
    EXPECT_FALSE(isHeld(19));
    EXPECT_EQ(::GetFocus(), bar.m_hWnd);
    sendMouse(bar, WM_LBUTTONUP, buttonPlace(bar, 19));
    EXPECT_TRUE(bar.IsVisible());
}

/// The same under a look that notes what it is asked to draw.
struct UprightPainting : UprightButtons {
    NotingLook::InForce look;

    ~UprightPainting() override { CDockingManager::m_bDockBarMenu = m_menu; }
    void SetUp() override {
        CDockingManager::m_bDockBarMenu = TRUE;
        UprightButtons::SetUp();
    }
    const std::vector<DrawnButton>& painted() {
        NotingLook::buttons().clear();
        NotingLook::captions().clear();
        bar.SendMessage(WM_NCPAINT, 1, 0);
        return NotingLook::buttons();
    }
    const DrawnButton& paintedOf(UINT hit) {
        for (const DrawnButton& button : painted())
            if (button.hit == hit) return button;
        ADD_FAILURE() << "not drawn: " << hit;
        static const DrawnButton none = {};
        return none;
    }

private:
    BOOL m_menu = CDockingManager::m_bDockBarMenu;
};

TEST_F(UprightPainting, TheCaptionFillsTheLeftEdgeAndIsThatOfAPaneNotActive) {
    bar.m_bActive = TRUE;
    painted();
    CRect window;
    bar.GetWindowRect(&window);
    ASSERT_EQ(NotingLook::captions().size(), 1u);
    const DrawnCaption& caption = NotingLook::captions()[0];
    expectRect(caption.area, 0, 0, bar.GetCaptionHeight(), window.Height());
    EXPECT_EQ(caption.active, FALSE);
    CRect all(0, 0, 0, 0);
    for (const UINT hit : {19u, 9u, 8u}) all.UnionRect(all, bar.FindButtonByHit(hit)->GetRect());
    EXPECT_TRUE(caption.buttons == all);
}

TEST_F(UprightPainting, EachShownButtonIsDrawnInTurn) {
    std::vector<UINT> hits;
    for (const DrawnButton& button : painted()) {
        hits.push_back(button.hit);
        EXPECT_EQ(button.active, FALSE);
        EXPECT_EQ(button.horizontal, TRUE);
    }
    EXPECT_EQ(hits, (std::vector<UINT>{19, 9, 8}));
}

TEST_F(UprightPainting, TheMenuButtonCanBeHeldAndThePinIsThatOfAPaneThatStays) {
    EXPECT_EQ(paintedOf(8).held, TRUE);
    EXPECT_EQ(paintedOf(9).held, FALSE);
    EXPECT_EQ(paintedOf(19).held, FALSE);
}

TEST_F(UprightPainting, ThePinOfAPaneThatHidesIsDrawnSo) {
    struct Hiding : OpenBar {
        bool hides = false;
        BOOL IsAutoHideMode() const override { return hides; }
    } hiding;
    dock(hiding, CBRS_ALIGN_BOTTOM, 4007);
    hiding.hides = true;
    NotingLook::buttons().clear();
    hiding.SendMessage(WM_NCPAINT, 1, 0);
    hiding.hides = false;
    ASSERT_EQ(NotingLook::buttons().size(), 3u);
    for (const DrawnButton& button : NotingLook::buttons()) EXPECT_EQ(button.held, button.hit != 19);
}

TEST_F(UprightPainting, AButtonThatCantBeUsedIsGrey) {
    EXPECT_EQ(paintedOf(19).disabled, FALSE);
    EXPECT_EQ(paintedOf(9).disabled, FALSE);
    bar.SetControlBarStyle(bar.GetControlBarStyle() & ~static_cast<DWORD>(AFX_CBRS_CLOSE));
    EXPECT_EQ(paintedOf(19).disabled, TRUE);
    EXPECT_EQ(paintedOf(9).disabled, FALSE);
    bar.SetControlBarStyle(bar.GetControlBarStyle() & ~static_cast<DWORD>(AFX_CBRS_AUTOHIDE));
    EXPECT_EQ(paintedOf(9).disabled, TRUE);
    EXPECT_EQ(paintedOf(8).disabled, FALSE);
}

TEST_F(UprightPainting, AButtonUnderTheMouseIsDrawnHotAndAHeldOneHeld) {
    sendNcMouse(bar, WM_NCMOUSEMOVE, closeOnScreen());
    EXPECT_EQ(paintedOf(19).hot, TRUE);
    EXPECT_EQ(paintedOf(19).pushed, FALSE);
    EXPECT_EQ(paintedOf(9).hot, FALSE);
    sendNcMouse(bar, WM_NCLBUTTONDOWN, closeOnScreen());
    EXPECT_EQ(paintedOf(19).pushed, TRUE);
    ::ReleaseCapture();
    EXPECT_EQ(paintedOf(19).pushed, FALSE);
}

}  // namespace
