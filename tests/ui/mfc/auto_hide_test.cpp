// Panes that hide at an edge: the strip, sliding out and in, coming back.
#include <afxautohidebar.h>
#include <afxcontrolbars.h>
#include <gtest/gtest.h>

#include "told_mouse.h"
#include "ui_test.h"

namespace {

struct AutoHide : ::testing::Test {
    AutoHide() {
        CDockablePane::m_bDisableAnimation = TRUE;
        EXPECT_TRUE(frame->Create(nullptr, L"frame", WS_OVERLAPPEDWINDOW, CRect(50, 50, 850, 650)));
        frame->EnableDocking(CBRS_ALIGN_ANY);
        frame->EnableAutoHidePanes(CBRS_ALIGN_ANY);
        AfxGetApp()->m_pMainWnd = frame;
        frame->ShowWindow(SW_SHOW);
        const wchar_t* const names[] = {L"Layers", L"Blocks", L"Properties"};
        for (UINT i = 0; i < 3; ++i) {
            EXPECT_TRUE(panes[i].Create(names[i], frame, CSize(200, 150), TRUE, 900 + i,
                                        WS_CHILD | WS_VISIBLE | CBRS_LEFT | CBRS_FLOAT_MULTI));
            panes[i].EnableDocking(CBRS_ALIGN_ANY);
        }
        frame->DockPane(&panes[0]);
        frame->SetFocus();
    }
    ~AutoHide() override {
        CDockablePane::m_bDisableAnimation = FALSE;
        AfxGetApp()->m_pMainWnd = nullptr;
        frame->DestroyWindow();
        ui_test::pump();
    }
    CMFCAutoHideBar* bar(DWORD alignment = CBRS_ALIGN_LEFT) const {
        for (HWND child = ::GetWindow(frame->m_hWnd, GW_CHILD); child != nullptr;
             child = ::GetWindow(child, GW_HWNDNEXT)) {
            auto* found = DYNAMIC_DOWNCAST(CMFCAutoHideBar, CWnd::FromHandlePermanent(child));
            if (found != nullptr && found->GetCurrentAlignment() == alignment) return found;
        }
        return nullptr;
    }
    static CRect on_screen(const CWnd& window) {
        CRect rect;
        window.GetWindowRect(&rect);
        return rect;
    }
    static void send_mouse(CMFCAutoHideBar& strip, UINT message, CPoint at) {
        strip.SendMessage(message, message == WM_LBUTTONDOWN ? MK_LBUTTON : 0, MAKELPARAM(at.x, at.y));
    }

    ui_test::ToldMouse mouse;
    CFrameWndEx* frame = new CFrameWndEx;
    CDockablePane panes[3];
};

}  // namespace

TEST_F(AutoHide, HidesAPaneAndNamesItAtItsSide) {
    const CRect docked = on_screen(panes[0]);
    const CRect before = frame->GetDockingManager()->GetClientAreaBounds();
    EXPECT_TRUE(panes[0].CanAutoHide());
    EXPECT_TRUE(panes[0].ToggleAutoHide());
    EXPECT_TRUE(panes[0].IsAutoHideMode());
    EXPECT_FALSE(panes[0].IsWindowVisible());
    EXPECT_TRUE(panes[0].IsVisible()) << "it is only out of sight";
    EXPECT_TRUE(panes[0].IsDocked());
    CMFCAutoHideBar* const strip = bar();
    ASSERT_NE(strip, nullptr);
    EXPECT_TRUE(strip->IsWindowVisible());
    EXPECT_EQ(strip->GetVisibleCount(), 1);
    EXPECT_EQ(strip->GetFirstAHWindow(), &panes[0]);
    const CMFCAutoHideButton& button = *strip->buttons().front();
    EXPECT_FALSE(button.IsHorizontal());
    EXPECT_EQ(button.GetAlignment(), static_cast<DWORD>(CBRS_ALIGN_LEFT));
    EXPECT_EQ(button.GetRect().Size(), button.GetSize());
    EXPECT_GT(button.GetSize().cy, button.GetTextSize().cx) << "the name runs along the strip";
    EXPECT_EQ(on_screen(*strip).Width(), button.GetSize().cx);
    EXPECT_EQ(on_screen(*strip).left, docked.left);
    EXPECT_GT(frame->GetDockingManager()->GetClientAreaBounds().Width(), before.Width())
        << "there is more room";
}

TEST_F(AutoHide, PutsThePaneBackWhereItWas) {
    frame->DockPane(&panes[1]);
    const CRect first = on_screen(panes[0]), second = on_screen(panes[1]);
    panes[0].ToggleAutoHide();
    EXPECT_NE(on_screen(panes[1]), second);
    EXPECT_TRUE(panes[0].ToggleAutoHide());
    EXPECT_FALSE(panes[0].IsAutoHideMode());
    EXPECT_TRUE(panes[0].IsWindowVisible());
    EXPECT_EQ(on_screen(panes[0]), first);
    EXPECT_EQ(on_screen(panes[1]), second);
    EXPECT_FALSE(bar()->IsWindowVisible()) << "the strip without names goes";
    EXPECT_EQ(bar()->GetFirstAHWindow(), nullptr);
}

TEST_F(AutoHide, IsOnlyForDockedPanesOfFramesThatAllowIt) {
    EXPECT_FALSE(panes[1].ToggleAutoHide()) << "it has no place yet";
    panes[1].FloatPane(CRect(100, 100, 300, 300));
    EXPECT_FALSE(panes[1].ToggleAutoHide());
    EXPECT_EQ(bar(), nullptr);
    EXPECT_FALSE(panes[1].IsAutoHideMode());
    panes[0].SetControlBarStyle(AFX_CBRS_FLOAT | AFX_CBRS_CLOSE);
    EXPECT_FALSE(panes[0].ToggleAutoHide());
}

TEST_F(AutoHide, SlidesOutWhenItsNameIsClicked) {
    const CRect docked = on_screen(panes[0]);
    panes[0].ToggleAutoHide();
    CMFCAutoHideBar& strip = *bar();
    const CRect middle = frame->GetDockingManager()->GetClientAreaBounds();
    send_mouse(strip, WM_LBUTTONDOWN, strip.buttons().front()->GetRect().CenterPoint());
    EXPECT_EQ(strip.slid_out(), &panes[0]);
    EXPECT_TRUE(strip.buttons().front()->IsActive());
    EXPECT_TRUE(panes[0].IsWindowVisible());
    const CRect out = on_screen(panes[0]);
    EXPECT_EQ(out.left, on_screen(strip).right);
    EXPECT_EQ(out.Width(), docked.Width());
    EXPECT_EQ(out.Height(), docked.Height());
    EXPECT_EQ(::GetFocus(), panes[0].m_hWnd);
    EXPECT_EQ(frame->GetDockingManager()->GetClientAreaBounds(), middle) << "it lies over the others";
    const HWND top = ::GetWindow(frame->m_hWnd, GW_CHILD);
    EXPECT_EQ(top, strip.inner_edge()->m_hWnd);
    EXPECT_EQ(::GetWindow(top, GW_HWNDNEXT), panes[0].m_hWnd) << "on top of them";
}

TEST_F(AutoHide, StaysOutWhenTheFrameIsLaidOut) {
    panes[0].ToggleAutoHide();
    panes[0].Slide(TRUE, FALSE);
    frame->RecalcLayout();
    frame->MoveWindow(60, 60, 780, 560);
    EXPECT_TRUE(panes[0].IsWindowVisible());
    EXPECT_EQ(bar()->slid_out(), &panes[0]);
}

TEST_F(AutoHide, SlidesInWhenTheFocusLeaves) {
    panes[0].ToggleAutoHide();
    CMFCAutoHideBar& strip = *bar();
    send_mouse(strip, WM_LBUTTONDOWN, strip.buttons().front()->GetRect().CenterPoint());
    EXPECT_FALSE(panes[0].CheckAutoHideCondition()) << "the focus is in it";
    frame->SetFocus();
    EXPECT_TRUE(panes[0].CheckAutoHideCondition());
    EXPECT_FALSE(panes[0].IsWindowVisible());
    EXPECT_EQ(strip.slid_out(), nullptr);
    EXPECT_FALSE(panes[0].CheckAutoHideCondition()) << "it is in already";
}

TEST_F(AutoHide, GoesByItselfWithTheFocus) {
    panes[0].ToggleAutoHide();
    CMFCAutoHideBar& strip = *bar();
    send_mouse(strip, WM_LBUTTONDOWN, strip.buttons().front()->GetRect().CenterPoint());
    frame->SetFocus();
    EXPECT_TRUE(ui_test::pump_until([&] { return !panes[0].IsWindowVisible(); }));
}

TEST_F(AutoHide, StaysWhileTheMouseIsOverIt) {
    panes[0].ToggleAutoHide();
    CMFCAutoHideBar& strip = *bar();
    panes[0].Slide(TRUE, FALSE);
    frame->SetFocus();
    const auto stays_with_mouse_at = [&](CPoint screen) {
        mouse.place = screen;
        strip.SetCapture();
        EXPECT_FALSE(strip.check_condition()) << "something is being dragged";
        ::ReleaseCapture();
        return !strip.check_condition();
    };
    EXPECT_TRUE(stays_with_mouse_at(on_screen(panes[0]).CenterPoint()));
    CPoint name = strip.buttons().front()->GetRect().CenterPoint();
    strip.ClientToScreen(&name);
    EXPECT_TRUE(stays_with_mouse_at(name));
    EXPECT_FALSE(stays_with_mouse_at(ui_test::ToldMouse::kFarAway));
    EXPECT_EQ(strip.slid_out(), nullptr);
}

TEST_F(AutoHide, SlidesOutWhenTheMouseRestsOnItsName) {
    CMFCAutoHideBar::m_nShowAHWndDelay = 1;
    panes[0].ToggleAutoHide();
    CMFCAutoHideBar& strip = *bar();
    CPoint name = strip.buttons().front()->GetRect().CenterPoint();
    send_mouse(strip, WM_MOUSEMOVE, name);
    EXPECT_TRUE(strip.buttons().front()->IsHighlighted());
    EXPECT_EQ(mouse.askedForLeaving, std::vector<HWND>{strip.m_hWnd});
    EXPECT_EQ(strip.slid_out(), nullptr);
    EXPECT_TRUE(ui_test::pump_until([&] { return strip.slid_out() == &panes[0]; }));
    EXPECT_NE(::GetFocus(), panes[0].m_hWnd) << "the focus stays";
    panes[0].Slide(FALSE, FALSE);
    send_mouse(strip, WM_MOUSEMOVE, name + CSize(0, 500));
    EXPECT_FALSE(strip.buttons().front()->IsHighlighted());
    send_mouse(strip, WM_MOUSEMOVE, name);
    strip.SendMessage(WM_MOUSELEAVE);
    EXPECT_FALSE(ui_test::pump_until([&] { return strip.slid_out() != nullptr; }, 100))
        << "the mouse has gone on";
    CMFCAutoHideBar::m_nShowAHWndDelay = 400;
}

TEST_F(AutoHide, SlidesInStepsUnlessToldNotTo) {
    panes[0].ToggleAutoHide();
    CDockablePane::m_bDisableAnimation = FALSE;
    panes[0].Slide(TRUE, TRUE);
    const int first = on_screen(panes[0]).Width();
    EXPECT_LT(first, 100);
    EXPECT_FALSE(bar()->check_condition()) << "not while it slides";
    EXPECT_TRUE(
        ui_test::pump_until([&] { return on_screen(panes[0]).Width() == panes[0].auto_hide_size().cx; }));
    panes[0].Slide(FALSE, TRUE);
    panes[0].Slide(TRUE, FALSE);
    EXPECT_EQ(on_screen(panes[0]).Width(), panes[0].auto_hide_size().cx);
}

TEST_F(AutoHide, ShowsOnePaneAtATime) {
    panes[1].SetPaneAlignment(CBRS_ALIGN_BOTTOM);
    frame->DockPane(&panes[1], AFX_IDW_DOCKBAR_BOTTOM);
    panes[0].ToggleAutoHide();
    panes[1].ToggleAutoHide();
    CMFCAutoHideBar& low = *bar(CBRS_ALIGN_BOTTOM);
    EXPECT_TRUE(low.buttons().front()->IsHorizontal());
    EXPECT_EQ(on_screen(low).Height(), low.buttons().front()->GetSize().cy);
    panes[0].Slide(TRUE, FALSE);
    panes[1].Slide(TRUE, FALSE);
    EXPECT_FALSE(panes[0].IsWindowVisible());
    EXPECT_TRUE(panes[1].IsWindowVisible());
    EXPECT_EQ(on_screen(panes[1]).bottom, on_screen(low).top);
    CMFCAutoHideBar::slide_all_in(frame);
    EXPECT_FALSE(panes[1].IsWindowVisible());
}

TEST_F(AutoHide, NamesSeveralPanesOneAfterAnother) {
    frame->DockPane(&panes[1]);
    panes[0].ToggleAutoHide();
    panes[1].ToggleAutoHide();
    CMFCAutoHideBar& strip = *bar();
    ASSERT_EQ(strip.buttons().size(), 2u);
    const CRect first = strip.buttons()[0]->GetRect(), second = strip.buttons()[1]->GetRect();
    EXPECT_EQ(first.top, afxGlobalData.scaled(4));
    EXPECT_EQ(second.top, first.bottom + afxGlobalData.scaled(14));
    EXPECT_EQ(strip.button_at(second.CenterPoint()), strip.buttons()[1].get());
    EXPECT_EQ(strip.button_at(CPoint(first.left, first.bottom + 2)), nullptr);
}

TEST_F(AutoHide, SlidesByShowPane) {
    panes[0].ToggleAutoHide();
    panes[0].ShowPane(TRUE, FALSE, TRUE);
    EXPECT_EQ(bar()->slid_out(), &panes[0]);
    EXPECT_EQ(::GetFocus(), panes[0].m_hWnd);
    panes[0].ShowPane(FALSE, FALSE, FALSE);
    EXPECT_FALSE(panes[0].IsWindowVisible());
    EXPECT_TRUE(panes[0].IsAutoHideMode());
    EXPECT_NE(::GetFocus(), panes[0].m_hWnd);
    panes[0].m_bHideInAutoHideMode = TRUE;
    panes[0].ShowPane(FALSE, FALSE, FALSE);
    EXPECT_EQ(bar()->GetVisibleCount(), 0) << "the name goes too";
    EXPECT_FALSE(panes[0].IsVisible());
    panes[0].ShowPane(TRUE, FALSE, FALSE);
    EXPECT_EQ(bar()->GetVisibleCount(), 1);
}

TEST_F(AutoHide, EndsWhenThePaneIsClosedFloatedOrDestroyed) {
    panes[0].ToggleAutoHide();
    panes[0].OnPressCloseButton();
    EXPECT_FALSE(panes[0].IsAutoHideMode());
    EXPECT_FALSE(panes[0].IsVisible());
    panes[0].ShowPane(TRUE, FALSE, FALSE);
    EXPECT_TRUE(panes[0].IsWindowVisible());
    EXPECT_TRUE(panes[0].IsDocked());
    panes[0].ToggleAutoHide();
    panes[0].Slide(TRUE, FALSE);
    EXPECT_TRUE(panes[0].FloatPane(CRect(200, 200, 400, 400)));
    EXPECT_FALSE(panes[0].IsAutoHideMode());
    EXPECT_TRUE(panes[0].IsFloating());
    EXPECT_EQ(bar()->GetFirstAHWindow(), nullptr);
    frame->DockPane(&panes[0]);
    panes[0].ToggleAutoHide();
    panes[0].Slide(TRUE, FALSE);
    panes[0].DestroyWindow();
    EXPECT_EQ(bar()->GetFirstAHWindow(), nullptr);
    EXPECT_EQ(bar()->slid_out(), nullptr);
}

TEST_F(AutoHide, NamesEachTabOfATabbedPane) {
    CDockablePane* result = nullptr;
    panes[1].AttachToTabWnd(&panes[0], DM_SHOW, TRUE, &result);
    panes[2].AttachToTabWnd(result, DM_SHOW, TRUE, &result);
    auto* const tabbed = DYNAMIC_DOWNCAST(CTabbedPane, result);
    ASSERT_NE(tabbed, nullptr);
    EXPECT_TRUE(panes[1].ToggleAutoHide()) << "a tab hides with the pane around it";
    EXPECT_TRUE(tabbed->IsAutoHideMode());
    CMFCAutoHideBar& strip = *bar();
    ASSERT_EQ(strip.buttons().size(), 3u);
    const CRect first = strip.buttons()[0]->GetRect(), second = strip.buttons()[1]->GetRect();
    EXPECT_EQ(second.top, first.bottom) << "tabs of one pane stand together";
    send_mouse(strip, WM_LBUTTONDOWN, first.CenterPoint());
    EXPECT_EQ(strip.slid_out(), tabbed);
    EXPECT_EQ(tabbed->GetTabWnd()->GetActiveWnd(), &panes[0]);
    EXPECT_TRUE(strip.buttons()[0]->IsActive());
    EXPECT_FALSE(strip.buttons()[1]->IsActive());
    EXPECT_EQ(::GetFocus(), panes[0].m_hWnd);
    panes[0].ShowPane(FALSE, FALSE, FALSE);
    EXPECT_EQ(strip.buttons().size(), 2u);
    strip.buttons()[0]->UnSetAutoHideMode(tabbed);
    EXPECT_FALSE(tabbed->IsAutoHideMode());
    EXPECT_TRUE(tabbed->IsWindowVisible());
    EXPECT_TRUE(strip.buttons().empty());
}

TEST_F(AutoHide, LosesNothingWhenTheFrameGoes) {
    panes[0].ToggleAutoHide();
    panes[0].Slide(TRUE, FALSE);
    const HWND strip = bar()->m_hWnd;
    CFrameWndEx* const other = new CFrameWndEx;
    EXPECT_TRUE(other->Create(nullptr, L"other", WS_OVERLAPPEDWINDOW, CRect(0, 0, 300, 300)));
    frame->DestroyWindow();
    EXPECT_FALSE(::IsWindow(strip));
    EXPECT_EQ(panes[0].m_hWnd, nullptr);
    frame = other;
}

TEST_F(AutoHide, PaintsNamesInTheLooksColours) {
    // They stand in the corner, where they were made.
    panes[1].ShowWindow(SW_HIDE);
    panes[2].ShowWindow(SW_HIDE);
    panes[0].ToggleAutoHide();
    CMFCAutoHideBar& strip = *bar();
    ui_test::pump();
    strip.UpdateWindow();
    CWindowDC dc(&strip);
    const CRect name = strip.buttons().front()->GetRect();
    const COLORREF face = ::GetSysColor(COLOR_BTNFACE);
    EXPECT_NE(dc.GetPixel(name.left + 1, name.CenterPoint().y), face) << "an edge in another colour";
    EXPECT_EQ(dc.GetPixel(name.right - 1, name.top + 1), face);
    bool written = false;
    for (int y = name.top + 3; y < name.bottom - 3; ++y)
        for (int x = name.left + 6; x < name.right; ++x) written = written || dc.GetPixel(x, y) != face;
    EXPECT_TRUE(written);
}

TEST_F(AutoHide, ATabThatLeavesAHiddenPaneTakesItsNameFromTheStrip) {
    frame->DockPane(&panes[1]);
    panes[1].AttachToTabWnd(&panes[0], DM_UNKNOWN);
    panes[2].AttachToTabWnd(&panes[0], DM_UNKNOWN);
    ASSERT_TRUE(panes[0].ToggleAutoHide());
    ASSERT_EQ(bar()->GetVisibleCount(), 3);
    ASSERT_TRUE(panes[2].FloatPane(CRect(300, 300, 500, 500)));
    EXPECT_EQ(bar()->GetVisibleCount(), 2);
    // The last one that is left goes on hiding, by itself.
    ASSERT_TRUE(panes[1].FloatPane(CRect(300, 300, 500, 500)));
    EXPECT_EQ(bar()->GetVisibleCount(), 1);
    EXPECT_TRUE(panes[0].IsAutoHideMode());
    EXPECT_FALSE(panes[0].IsPaneVisible());
    ASSERT_TRUE(panes[0].FloatPane(CRect(100, 300, 300, 500)));
    EXPECT_FALSE(bar()->IsPaneVisible());
    EXPECT_EQ(frame->GetDockingManager()->GetClientAreaBounds().left, 0);
}

TEST_F(AutoHide, APaneComesOutForOneThatJoinsItInTabs) {
    ASSERT_TRUE(panes[0].ToggleAutoHide());
    ASSERT_TRUE(panes[1].AttachToTabWnd(&panes[0], DM_UNKNOWN) != nullptr);
    EXPECT_FALSE(bar()->IsPaneVisible());
    ASSERT_NE(panes[0].GetParentTabbedPane(), nullptr);
    EXPECT_TRUE(panes[0].GetParentTabbedPane()->IsPaneVisible());
}
