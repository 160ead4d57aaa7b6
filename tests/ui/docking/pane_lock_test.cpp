// Locked bars: what they answer to the framework and to the mouse, docked, floating and in tabs.
#include <ktui/docking/mfc_tab_ctrl_ex.h>
#include <ktui/docking/tabbed_pane_ex.h>

#include "bar_fixture.h"

namespace {

using namespace docking_test;

struct PaneLock : DockingTest {
    OpenBar bar;

    void press(CWnd& window, CPoint place) {
        ::SetCursor(::LoadCursorW(nullptr, IDC_ARROW));
        frame->SetFocus();
        sendMouse(window, WM_LBUTTONDOWN, place, MK_LBUTTON);
    }
    /// Ends whatever a press has begun.
    void release(CWnd& window, CPoint place) {
        sendMouse(window, WM_LBUTTONUP, place);
        ::ReleaseCapture();
    }
};

TEST_F(PaneLock, ADockedBarIsLockedByTheFirstLock) {
    dock(bar, CBRS_ALIGN_LEFT);
    for (const auto& [docked, floating, free] :
         {std::tuple(false, false, true), std::tuple(true, false, false), std::tuple(false, true, true),
          std::tuple(true, true, false)}) {
        KbUiLockPanel(docked, floating);
        EXPECT_EQ(bar.CanFloat() != 0, free) << docked << floating;
        EXPECT_EQ(bar.GetEnabledAlignment(), free ? 0xD000u : 0u) << docked << floating;
    }
}

TEST_F(PaneLock, AFloatingBarIsLockedByTheSecondLock) {
    dock(bar, CBRS_ALIGN_LEFT);
    floatBar(bar);
    ASSERT_TRUE(bar.GetParentMiniFrame()->IsKindOf(RUNTIME_CLASS(CMultiPaneFrameWndEx)));
    KbUiLockPanel(false, true);
    EXPECT_EQ(bar.CanFloat(), 0);
    EXPECT_EQ(bar.GetEnabledAlignment(), 0u);
    KbUiLockPanel(true, false);
    EXPECT_NE(bar.CanFloat(), 0) << "it stays free";
    EXPECT_EQ(bar.GetEnabledAlignment(), 0u) << "but can't dock";
    KbUiLockPanel(false, false);
    EXPECT_EQ(bar.GetEnabledAlignment(), 0xD000u);
}

TEST_F(PaneLock, CtrlLiftsTheLocksButNotThatOfTheLockedFrame) {
    dock(bar, CBRS_ALIGN_LEFT);
    KbUiLockPanel(true, true);
    setKey(VK_CONTROL, true);
    EXPECT_NE(bar.CanFloat(), 0);
    EXPECT_EQ(bar.GetEnabledAlignment(), 0xD000u);
    setKey(VK_CONTROL, false);
    KbUiLockPanel(false, false);
    floatBar(bar);
    KbUiLockPanel(true, true);
    setKey(VK_CONTROL, true);
    EXPECT_NE(bar.CanFloat(), 0);
    EXPECT_EQ(bar.GetEnabledAlignment(), 0u);
    KbUiLockPanel(false, true);
    EXPECT_EQ(bar.GetEnabledAlignment(), 0xD000u);
}

TEST_F(PaneLock, APressOnALockedBarBeginsNoDrag) {
    dock(bar, CBRS_ALIGN_LEFT);
    KbUiLockPanel(true, false);
    press(bar, captionPlace(bar));
    EXPECT_TRUE(showsCursor(IDC_NO));
    EXPECT_TRUE(bar.isBlocked());
    EXPECT_EQ(::GetFocus(), bar.m_hWnd);
    EXPECT_FALSE(bar.IsTracked());
    EXPECT_NE(::GetCapture(), bar.m_hWnd);
    ::SetCursor(::LoadCursorW(nullptr, IDC_ARROW));
    sendMouse(bar, WM_MOUSEMOVE, CPoint(60, 60), MK_LBUTTON);
    EXPECT_TRUE(showsCursor(IDC_NO));
    EXPECT_TRUE(bar.isBlocked());
    EXPECT_TRUE(bar.IsDocked());
    sendMouse(bar, WM_LBUTTONUP, CPoint(60, 60));
    EXPECT_TRUE(showsCursor(IDC_ARROW));
    EXPECT_FALSE(bar.isBlocked());
}

TEST_F(PaneLock, AMoveWithoutTheButtonEndsTheRefusal) {
    dock(bar, CBRS_ALIGN_LEFT);
    KbUiLockPanel(true, false);
    press(bar, captionPlace(bar));
    sendMouse(bar, WM_MOUSEMOVE, CPoint(60, 60));
    EXPECT_FALSE(bar.isBlocked());
}

TEST_F(PaneLock, APressOnAFreeBarIsTheFrameworks) {
    dock(bar, CBRS_ALIGN_LEFT);
    press(bar, captionPlace(bar));
    EXPECT_FALSE(bar.isBlocked());
    EXPECT_TRUE(bar.IsTracked());
    release(bar, captionPlace(bar));
}

TEST_F(PaneLock, WithCtrlALockedBarCanBeDragged) {
    dock(bar, CBRS_ALIGN_LEFT);
    KbUiLockPanel(true, false);
    setKey(VK_CONTROL, true);
    press(bar, captionPlace(bar));
    EXPECT_FALSE(bar.isBlocked());
    EXPECT_TRUE(bar.IsTracked());
    release(bar, captionPlace(bar));
}

TEST_F(PaneLock, CaptionButtonsOfALockedBarCanBePressed) {
    dock(bar, CBRS_ALIGN_LEFT);
    KbUiLockPanel(true, false);
    const CPoint place = buttonPlace(bar, 19);
    sendMouse(bar, WM_MOUSEMOVE, place);
    press(bar, place);
    EXPECT_FALSE(bar.isBlocked());
    EXPECT_TRUE(showsCursor(IDC_ARROW));
    release(bar, place);
    EXPECT_FALSE(bar.IsVisible()) << "pressed";
}

TEST_F(PaneLock, ButtonsThatNoMouseHasMetDontFollowIt) {
    dock(bar, CBRS_ALIGN_LEFT);
    KbUiLockPanel(true, false);
    const CPoint place = buttonPlace(bar, 19);
    press(bar, place);
    EXPECT_TRUE(bar.isBlocked());
    release(bar, place);
    EXPECT_TRUE(bar.IsVisible());
}

TEST_F(PaneLock, ButtonsThatTheMouseHasLeftDontFollowItAnyMore) {
    dock(bar, CBRS_ALIGN_LEFT);
    KbUiLockPanel(true, false);
    const CPoint place = buttonPlace(bar, 19);
    sendMouse(bar, WM_MOUSEMOVE, place);
    bar.SendMessage(WM_MOUSELEAVE);
    press(bar, place);
    EXPECT_TRUE(bar.isBlocked()) << "out of the window";
    release(bar, place);
    sendMouse(bar, WM_MOUSEMOVE, place);
    sendMouse(bar, WM_MOUSEMOVE, CPoint(60, 60));
    press(bar, place);
    EXPECT_TRUE(bar.isBlocked()) << "away from the button";
    release(bar, place);
    EXPECT_TRUE(bar.IsVisible());
}

TEST_F(PaneLock, APressBesideTheButtonsIsRefusedWhileTheyFollowTheMouse) {
    dock(bar, CBRS_ALIGN_LEFT);
    KbUiLockPanel(true, false);
    sendMouse(bar, WM_MOUSEMOVE, buttonPlace(bar, 19));
    press(bar, captionPlace(bar));
    EXPECT_TRUE(bar.isBlocked());
    release(bar, captionPlace(bar));
}

TEST_F(PaneLock, AButtonThatIsHeldElsewhereCanBePressedAgain) {
    dock(bar, CBRS_ALIGN_LEFT);
    KbUiLockPanel(true, false);
    const CPoint place = buttonPlace(bar, 19);
    sendMouse(bar, WM_MOUSEMOVE, place);
    press(bar, place);
    sendMouse(bar, WM_MOUSEMOVE, CPoint(60, 60), MK_LBUTTON);
    sendMouse(bar, WM_MOUSEMOVE, place, MK_LBUTTON);
    sendMouse(bar, WM_LBUTTONUP, place);
    EXPECT_FALSE(bar.IsVisible());
}

TEST_F(PaneLock, TheFrameworkAlwaysHearsTheReleaseOfTheButton) {
    dock(bar, CBRS_ALIGN_LEFT);
    KbUiLockPanel(true, false);
    press(bar, captionPlace(bar));
    setKey(VK_CONTROL, true);
    press(bar, captionPlace(bar));
    ASSERT_TRUE(bar.isBlocked());
    ASSERT_TRUE(bar.IsTracked());
    sendMouse(bar, WM_LBUTTONUP, captionPlace(bar));
    EXPECT_FALSE(bar.IsTracked());
    EXPECT_NE(::GetCapture(), bar.m_hWnd);
    EXPECT_FALSE(bar.isBlocked());
}

TEST_F(PaneLock, InAPlainFloatingFrameTheFirstLockHolds) {
    dock(bar, CBRS_ALIGN_LEFT);
    bar.SetMiniFrameRTC(RUNTIME_CLASS(CMultiPaneFrameWnd));
    floatBar(bar);
    ASSERT_FALSE(bar.GetParentMiniFrame()->IsKindOf(RUNTIME_CLASS(CMultiPaneFrameWndEx)));
    KbUiLockPanel(false, true);
    EXPECT_NE(bar.CanFloat(), 0);
    EXPECT_EQ(bar.GetEnabledAlignment(), 0xD000u);
    KbUiLockPanel(true, false);
    EXPECT_EQ(bar.CanFloat(), 0);
    EXPECT_EQ(bar.GetEnabledAlignment(), 0u);
    setKey(VK_CONTROL, true);
    EXPECT_NE(bar.CanFloat(), 0);
    EXPECT_EQ(bar.GetEnabledAlignment(), 0xD000u) << "its frame isn't the toolkit's";
}

TEST_F(PaneLock, ADoubleClickOnALockedBarOnlyTakesTheFocus) {
    dock(bar, CBRS_ALIGN_LEFT);
    KbUiLockPanel(true, false);
    frame->SetFocus();
    sendMouse(bar, WM_LBUTTONDBLCLK, captionPlace(bar));
    EXPECT_EQ(::GetFocus(), bar.m_hWnd);
    EXPECT_TRUE(bar.IsDocked());
    KbUiLockPanel(false, false);
    sendMouse(bar, WM_LBUTTONDBLCLK, captionPlace(bar));
    EXPECT_FALSE(bar.IsDocked()) << "a free one floats";
}

/// Tells with which visible flag it was asked to close.
class ClosingBar : public OpenBar {
public:
    void OnPressCloseButton() override {
        flagsAtClosing.push_back(isVisible());
        OpenBar::OnPressCloseButton();
    }
    std::vector<bool> flagsAtClosing;
};

/// A pane that knows nothing of locks.
class PlainPane : public CDockablePane {
public:
    void dockIn(CMDIFrameWndEx* frame, unsigned id) {
        ASSERT_TRUE(CDockablePane::Create(L"Plain", frame, CRect(0, 0, 150, 200), TRUE, id,
                                          WS_CHILD | WS_VISIBLE | CBRS_LEFT | CBRS_FLOAT_MULTI));
        SetMiniFrameRTC(RUNTIME_CLASS(CMultiPaneFrameWndEx));
        SetTabbedPaneRTC(RUNTIME_CLASS(CTabbedPaneEx));
        EnableDocking(CBRS_ALIGN_ANY);
        frame->DockPane(this);
        ui_test::pump();
    }
};

bool isFocusIn(const CWnd& window) {
    const HWND focus = ::GetFocus();
    return focus == window.m_hWnd || ::IsChild(window.m_hWnd, focus);
}

/// A floating frame to look into.
struct FrameLock : PaneLock {
    CPaneFrameWnd* floating = nullptr;

    void SetUp() override {
        dock(bar, CBRS_ALIGN_LEFT);
        floatBar(bar);
        floating = bar.GetParentMiniFrame();
        ASSERT_NE(floating, nullptr);
    }
    LRESULT hit(CPoint screen) {
        return floating->SendMessage(WM_NCHITTEST, 0, MAKELPARAM(screen.x, screen.y));
    }
    CRect frameRect() {
        CRect rect;
        floating->GetWindowRect(&rect);
        return rect;
    }
    /// On the frame's caption, in its client coordinates.
    CPoint caption() { return captionOf(*floating); }
    static CPoint captionOf(CPaneFrameWnd& of) {
        CRect rect, window;
        of.GetCaptionRect(rect);
        of.GetWindowRect(&window);
        CPoint place(rect.left + 12, rect.CenterPoint().y);
        place += CSize(window.TopLeft());
        of.ScreenToClient(&place);
        return place;
    }
    /// The middle of the frame's close button, in its client coordinates.
    CPoint closeButton() {
        CPoint place = floating->FindButtonByHit(AFX_HTCLOSE)->GetRect().CenterPoint();
        place += CSize(frameRect().TopLeft());
        floating->ScreenToClient(&place);
        return place;
    }
};

TEST_F(FrameLock, ALockedFrameHasNoSizingEdges) {
    const CRect rect = frameRect();
    const std::pair<CPoint, LRESULT> edges[] = {{CPoint(rect.left + 1, rect.CenterPoint().y), HTLEFT},
                                                {CPoint(rect.right - 2, rect.CenterPoint().y), HTRIGHT},
                                                {CPoint(rect.CenterPoint().x, rect.top), HTTOP},
                                                {CPoint(rect.left, rect.top), HTTOPLEFT},
                                                {CPoint(rect.right - 1, rect.top), HTTOPRIGHT},
                                                {CPoint(rect.CenterPoint().x, rect.bottom - 2), HTBOTTOM},
                                                {CPoint(rect.left, rect.bottom - 1), HTBOTTOMLEFT},
                                                {CPoint(rect.right - 1, rect.bottom - 1), HTBOTTOMRIGHT}};
    for (const auto& [point, answer] : edges) {
        EXPECT_EQ(hit(point), answer) << answer;
        KbUiLockPanel(false, true);
        EXPECT_EQ(hit(point), 0) << answer;
        setKey(VK_CONTROL, true);
        EXPECT_EQ(hit(point), answer) << "with Ctrl " << answer;
        setKey(VK_CONTROL, false);
        KbUiLockPanel(true, false);
        EXPECT_EQ(hit(point), answer) << "the other lock " << answer;
        KbUiLockPanel(false, false);
    }
    const LRESULT inside = hit(rect.CenterPoint());
    KbUiLockPanel(false, true);
    EXPECT_EQ(hit(rect.CenterPoint()), inside);
}

TEST_F(FrameLock, APressOnALockedFrameBeginsNoDrag) {
    KbUiLockPanel(false, true);
    press(*floating, caption());
    EXPECT_TRUE(showsCursor(IDC_NO));
    EXPECT_FALSE(floating->IsCaptured());
    EXPECT_TRUE(isFocusIn(*floating));
    ::SetCursor(::LoadCursorW(nullptr, IDC_ARROW));
    sendMouse(*floating, WM_MOUSEMOVE, CPoint(40, 40), MK_LBUTTON);
    EXPECT_TRUE(showsCursor(IDC_NO)) << "until the button is up";
    sendMouse(*floating, WM_LBUTTONUP, CPoint(40, 40));
    EXPECT_TRUE(showsCursor(IDC_ARROW));
    sendMouse(*floating, WM_MOUSEMOVE, CPoint(40, 40), MK_LBUTTON);
    EXPECT_FALSE(showsCursor(IDC_NO));
}

TEST_F(FrameLock, AMoveWithoutTheButtonEndsTheRefusal) {
    KbUiLockPanel(false, true);
    press(*floating, caption());
    sendMouse(*floating, WM_MOUSEMOVE, CPoint(40, 40));
    ::SetCursor(::LoadCursorW(nullptr, IDC_ARROW));
    sendMouse(*floating, WM_MOUSEMOVE, CPoint(40, 40), MK_LBUTTON);
    EXPECT_FALSE(showsCursor(IDC_NO));
}

TEST_F(FrameLock, AFreeFrameAndOneWithCtrlCanBeDragged) {
    for (const bool locked : {false, true}) {
        KbUiLockPanel(true, locked);
        setKey(VK_CONTROL, locked);
        press(*floating, caption());
        EXPECT_FALSE(showsCursor(IDC_NO));
        EXPECT_TRUE(floating->IsCaptured());
        release(*floating, caption());
        setKey(VK_CONTROL, false);
    }
}

TEST_F(FrameLock, ADoubleClickOnALockedFrameLeavesItWhereItIs) {
    PlainPane plain;
    plain.dockIn(frame, 4003);
    ASSERT_TRUE(plain.FloatPane(CRect(300, 300, 500, 500)));
    ui_test::pump();
    CPaneFrameWnd* other = plain.GetParentMiniFrame();
    ASSERT_NE(other, nullptr);
    ASSERT_TRUE(other->IsKindOf(RUNTIME_CLASS(CMultiPaneFrameWndEx)));
    for (const auto& [docked, floats] : {std::pair(true, false), std::pair(false, true)}) {
        KbUiLockPanel(docked, floats);
        for (CPaneFrameWnd* each : {floating, other}) {
            frame->SetFocus();
            sendMouse(*each, WM_LBUTTONDBLCLK, captionOf(*each));
            EXPECT_TRUE(isFocusIn(*each)) << "it takes the focus " << docked;
            ui_test::pump();
            ASSERT_FALSE(bar.IsDocked()) << docked;
            ASSERT_FALSE(plain.IsDocked()) << docked;
        }
    }
    KbUiLockPanel(false, false);
    sendMouse(*other, WM_LBUTTONDBLCLK, captionOf(*other));
    EXPECT_TRUE(ui_test::pump_until([&] { return plain.IsDocked() != FALSE; })) << "a free one docks";
}

TEST_F(FrameLock, WithCtrlADoubleClickDocksALockedFrame) {
    KbUiLockPanel(false, true);
    setKey(VK_CONTROL, true);
    sendMouse(*floating, WM_LBUTTONDBLCLK, caption());
    EXPECT_TRUE(ui_test::pump_until([this] { return bar.IsDocked() != FALSE; }));
}

TEST_F(FrameLock, TheHotButtonOfALockedFrameCanBePressed) {
    KbUiLockPanel(false, true);
    ASSERT_NE(floating->FindButtonByHit(AFX_HTCLOSE), nullptr);
    sendMouse(*floating, WM_MOUSEMOVE, closeButton());
    press(*floating, closeButton());
    EXPECT_FALSE(showsCursor(IDC_NO));
    release(*floating, closeButton());
    ui_test::pump();
    EXPECT_FALSE(bar.IsVisible()) << "pressed";
}

TEST_F(FrameLock, AButtonThatIsntHotIsRefusedAndAHotOneCounts) {
    KbUiLockPanel(false, true);
    press(*floating, closeButton());
    EXPECT_TRUE(showsCursor(IDC_NO)) << "the mouse hasn't moved over it";
    release(*floating, closeButton());
    ui_test::pump();
    EXPECT_TRUE(bar.IsVisible());
    sendMouse(*floating, WM_MOUSEMOVE, closeButton());
    press(*floating, caption());
    EXPECT_FALSE(showsCursor(IDC_NO)) << "wherever the press is";
    EXPECT_TRUE(floating->IsCaptured());
    release(*floating, caption());
}

TEST_F(FrameLock, ClosingTheFrameClearsTheVisibleFlagOfItsBarsBeforeTheyClose) {
    ClosingBar second;
    dock(second, CBRS_ALIGN_RIGHT, 4002);
    ASSERT_TRUE(second.DockToWindow(&bar, CBRS_ALIGN_BOTTOM));
    ASSERT_EQ(second.GetParentMiniFrame(), floating);
    bar.setVisible(true);
    second.setVisible(true);
    floating->SendMessage(WM_CLOSE);
    ui_test::pump();
    EXPECT_FALSE(bar.isVisible());
    EXPECT_FALSE(second.isVisible());
    EXPECT_EQ(second.flagsAtClosing, std::vector<bool>{false});
}

TEST_F(FrameLock, ClosingTheFrameClearsTheVisibleFlagOfAHiddenBarInIt) {
    OpenBar second;
    dock(second, CBRS_ALIGN_RIGHT, 4002);
    ASSERT_TRUE(second.DockToWindow(&bar, CBRS_ALIGN_BOTTOM));
    second.ShowPane(FALSE, FALSE, FALSE);
    ASSERT_EQ(second.GetParentMiniFrame(), floating);
    second.setVisible(true);
    floating->SendMessage(WM_CLOSE);
    ui_test::pump();
    EXPECT_FALSE(second.isVisible());
}

/// Two bars in tabs.
struct TabLock : PaneLock {
    ClosingBar second;
    CTabbedPaneEx* tabbed = nullptr;

    void SetUp() override {
        dock(bar, CBRS_ALIGN_LEFT);
        dock(second, CBRS_ALIGN_RIGHT, 4002);
        second.AttachToTabWnd(&bar, DM_SHOW);
        ui_test::pump();
        tabbed = DYNAMIC_DOWNCAST(CTabbedPaneEx, bar.GetParentTabbedPane());
        ASSERT_NE(tabbed, nullptr);
    }
};

TEST_F(TabLock, BarsMeetInTheToolkitsTabs) {
    EXPECT_TRUE(tabbed->GetUnderlyingWindow()->IsKindOf(RUNTIME_CLASS(CMFCTabCtrlEx)));
    EXPECT_EQ(tabbed->GetTabsNum(), 2);
    int seen = 0;
    tabbed->ForEachTabWindow([&](CWnd* window) { seen += window == &bar || window == &second; });
    EXPECT_EQ(seen, 2);
}

TEST_F(TabLock, LockedTabsCantBeTornOff) {
    auto* tabs = tabbed->GetUnderlyingWindow();
    EXPECT_TRUE(tabs->IsTabDetachable(0));
    EXPECT_TRUE(tabbed->CanFloat());
    KbUiLockPanel(true, false);
    EXPECT_FALSE(tabs->IsTabDetachable(0));
    EXPECT_FALSE(tabbed->CanFloat());
    setKey(VK_CONTROL, true);
    EXPECT_TRUE(tabs->IsTabDetachable(0));
    EXPECT_TRUE(tabbed->CanFloat());
    setKey(VK_CONTROL, false);
    KbUiLockPanel(false, true);
    EXPECT_TRUE(tabs->IsTabDetachable(0)) << "they are docked";
}

TEST_F(TabLock, APressOnTheLockedCaptionBeginsNoDrag) {
    KbUiLockPanel(true, false);
    const CPoint place(10, -tabbed->GetCaptionHeight() / 2);
    press(*tabbed, place);
    EXPECT_TRUE(showsCursor(IDC_NO));
    EXPECT_FALSE(tabbed->IsTracked());
    EXPECT_TRUE(isFocusIn(*tabbed));
    ::SetCursor(::LoadCursorW(nullptr, IDC_ARROW));
    sendMouse(*tabbed, WM_MOUSEMOVE, CPoint(40, 40), MK_LBUTTON);
    EXPECT_TRUE(showsCursor(IDC_NO));
    sendMouse(*tabbed, WM_LBUTTONUP, CPoint(40, 40));
    EXPECT_TRUE(showsCursor(IDC_ARROW));
    frame->SetFocus();
    ASSERT_FALSE(isFocusIn(*tabbed));
    sendMouse(*tabbed, WM_LBUTTONDBLCLK, place);
    EXPECT_TRUE(tabbed->IsDocked());
    EXPECT_TRUE(isFocusIn(*tabbed));
    KbUiLockPanel(false, false);
    press(*tabbed, place);
    EXPECT_TRUE(tabbed->IsTracked());
    release(*tabbed, place);
}

TEST_F(TabLock, AMoveOfAButtonThatWasPressedElsewhereLeavesTheCursor) {
    // Neither pane was pressed on before.
    for (const UINT message : {WM_MOUSEMOVE, WM_LBUTTONUP}) {
        CTabbedPaneEx fresh;
        ASSERT_TRUE(fresh.Create(L"fresh", frame, CRect(0, 0, 100, 100), TRUE, 4777, WS_CHILD | WS_VISIBLE));
        const HCURSOR cross = ::LoadCursorW(nullptr, IDC_CROSS);
        ::SetCursor(cross);
        sendMouse(fresh, message, CPoint(40, 40), MK_LBUTTON);
        EXPECT_EQ(::GetCursor(), cross) << message;
        fresh.DestroyWindow();
    }
}

TEST_F(TabLock, TheCloseButtonClearsTheVisibleFlagOfTheActiveBar) {
    bar.setVisible(true);
    second.setVisible(true);
    auto* tabs = tabbed->GetUnderlyingWindow();
    tabs->SetActiveTab(tabs->GetTabFromHwnd(second));
    ASSERT_EQ(tabs->GetActiveWnd(), &second);
    tabbed->OnPressCloseButton();
    EXPECT_EQ(second.flagsAtClosing, std::vector<bool>{false}) << "cleared before it closes";
    EXPECT_FALSE(second.isVisible());
    EXPECT_TRUE(bar.isVisible()) << "the other one stays";
}

TEST_F(TabLock, ATabbedPaneMayStandAtTheTop) {
    const DWORD others = tabbed->GetPaneStyle() & ~CBRS_ALIGN_ANY;
    tabbed->SetPaneAlignment(CBRS_ALIGN_TOP);
    EXPECT_EQ(tabbed->GetPaneStyle(), others | CBRS_ALIGN_TOP);
    tabbed->SetPaneAlignment(CBRS_ALIGN_LEFT);
    EXPECT_EQ(tabbed->GetPaneStyle(), others | CBRS_ALIGN_LEFT);
}

TEST_F(TabLock, FloatsInTheToolkitsFrame) {
    ASSERT_TRUE(tabbed->FloatPane(CRect(300, 300, 500, 500)));
    ui_test::pump();
    ASSERT_NE(tabbed->GetParentMiniFrame(), nullptr);
    EXPECT_TRUE(tabbed->GetParentMiniFrame()->IsKindOf(RUNTIME_CLASS(CMultiPaneFrameWndEx)));
    KbUiLockPanel(false, true);
    EXPECT_FALSE(tabbed->GetUnderlyingWindow()->IsTabDetachable(0));
    EXPECT_FALSE(tabbed->CanFloat());
}

TEST_F(TabLock, ClosingTheirFrameClearsTheVisibleFlagOfAllTabs) {
    ASSERT_TRUE(tabbed->FloatPane(CRect(300, 300, 500, 500)));
    ui_test::pump();
    bar.setVisible(true);
    second.setVisible(true);
    tabbed->GetParentMiniFrame()->SendMessage(WM_CLOSE);
    ui_test::pump();
    EXPECT_FALSE(bar.isVisible());
    EXPECT_FALSE(second.isVisible());
    for (const bool flag : second.flagsAtClosing) EXPECT_FALSE(flag) << "cleared before it closes";
}

TEST_F(PaneLock, PlainPanesInTheToolkitsTabsAreLockedToo) {
    PlainPane first, second;
    first.dockIn(frame, 4003);
    second.dockIn(frame, 4004);
    ASSERT_NE(second.AttachToTabWnd(&first, DM_SHOW), nullptr);
    ui_test::pump();
    auto* tabbed = DYNAMIC_DOWNCAST(CTabbedPaneEx, first.GetParentTabbedPane());
    ASSERT_NE(tabbed, nullptr);
    for (const bool floats : {false, true}) {
        if (floats) {
            ASSERT_TRUE(tabbed->FloatPane(CRect(300, 300, 500, 500)));
            ui_test::pump();
            ASSERT_TRUE(tabbed->GetParentMiniFrame()->IsKindOf(RUNTIME_CLASS(CMultiPaneFrameWndEx)));
        }
        EXPECT_TRUE(tabbed->CanFloat()) << floats;
        KbUiLockPanel(!floats, floats);
        ASSERT_TRUE(first.CanFloat()) << "itself it is free";
        EXPECT_FALSE(tabbed->CanFloat()) << floats;
        setKey(VK_CONTROL, true);
        EXPECT_TRUE(tabbed->CanFloat()) << "with Ctrl " << floats;
        setKey(VK_CONTROL, false);
        KbUiLockPanel(floats, !floats);
        EXPECT_TRUE(tabbed->CanFloat()) << "the other lock " << floats;
        KbUiLockPanel(false, false);
    }
}

TEST_F(TabLock, ShowingAFloatingTabMarksTheOthersAsVisible) {
    ASSERT_TRUE(tabbed->FloatPane(CRect(300, 300, 500, 500)));
    ui_test::pump();
    bar.setVisible(false);
    second.setVisible(false);
    bar.ShowPane(TRUE, FALSE, FALSE);
    EXPECT_FALSE(second.isVisible()) << "not activated";
    bar.ShowPane(TRUE, FALSE, TRUE);
    EXPECT_TRUE(second.isVisible());
    EXPECT_FALSE(bar.isVisible());
}

TEST_F(TabLock, KeepsTheEnabledAlignmentBeforeTheRest) {
    constexpr DWORD kBehind = 0x12345678;
    CMemFile file;
    tabbed->EnableDocking(0x5000);
    {
        CArchive archive(&file, CArchive::store);
        tabbed->Serialize(archive);
        archive << kBehind;
    }
    file.SeekToBegin();
    DWORD first = 0;
    ASSERT_EQ(file.Read(&first, sizeof first), sizeof first);
    EXPECT_EQ(first, 0x5000u);
    tabbed->EnableDocking(0x8000);
    file.SeekToBegin();
    CArchive archive(&file, CArchive::load);
    tabbed->Serialize(archive);
    EXPECT_EQ(tabbed->GetEnabledAlignment(), 0x5000u);
    DWORD behind = 0;
    archive >> behind;
    EXPECT_EQ(behind, kBehind) << "all of it was read, and no more";
    EXPECT_EQ(tabbed->GetTabsNum(), 2);
}

}  // namespace
