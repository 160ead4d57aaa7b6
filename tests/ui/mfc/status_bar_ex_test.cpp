// The status bar of docking frames: where it stands, and what its panes say.
#include "status_bar_ex_fixture.h"

namespace docking {

namespace {

TEST_F(StatusBarEx, StandsBelowEverythingWithoutBeingAdded) {
    CMFCToolBar tools;
    tools.CreateEx(frame, TBSTYLE_FLAT, AFX_DEFAULT_TOOLBAR_STYLE, CRect(1, 1, 1, 1), 701);
    tools.EnableDocking(CBRS_ALIGN_ANY);
    frame->DockPane(&tools, AFX_IDW_DOCKBAR_BOTTOM);
    docked(L"left", AFX_IDW_DOCKBAR_LEFT);
    docked(L"bottom", AFX_IDW_DOCKBAR_BOTTOM);
    const CRect place = at(bar);
    EXPECT_EQ(place.left, 0);
    EXPECT_EQ(place.right, client().right);
    EXPECT_EQ(place.bottom, client().bottom);
    TEXTMETRIC metrics;
    CClientDC dc(&bar);
    dc.SelectObject(&afxGlobalData.fontTooltip);
    dc.GetTextMetrics(&metrics);
    EXPECT_EQ(place.Height(), metrics.tmHeight + 8);
    check_frame();
    tools.DestroyWindow();
}

TEST_F(StatusBarEx, AFrameWithoutADockingManagerHasItAtTheBottomToo) {
    auto* const plain = new CFrameWnd;
    plain->Create(nullptr, L"plain", WS_OVERLAPPEDWINDOW | WS_VISIBLE, CRect(60, 60, 500, 400));
    CWnd inner;
    inner.Create(AfxRegisterWndClass(0), L"view", WS_CHILD | WS_VISIBLE, CRect(0, 0, 1, 1), plain,
                 AFX_IDW_PANE_FIRST);
    CMFCStatusBar status;
    ASSERT_TRUE(status.Create(plain));
    plain->RecalcLayout();
    CRect all;
    plain->GetClientRect(&all);
    EXPECT_EQ(at(status), CRect(0, all.bottom - at(bar).Height(), all.right, all.bottom));
    EXPECT_EQ(at(inner).bottom, at(status).top);
    status.ShowPane(FALSE, FALSE, FALSE);
    EXPECT_EQ(at(inner).bottom, all.bottom);
    status.ShowPane(TRUE, FALSE, FALSE);
    EXPECT_EQ(at(inner).bottom, at(status).top);
    plain->DestroyWindow();
}

TEST_F(StatusBarEx, PanesAreAsWideAsTheirTextsAndTheFirstTakesTheRest) {
    EXPECT_EQ(bar.GetCount(), 3);
    EXPECT_EQ(bar.GetItemID(1), kPane);
    EXPECT_EQ(bar.GetPaneText(1), L"a pane");
    EXPECT_EQ(bar.CommandToIndex(ID_INDICATOR_CAPS), 2);
    EXPECT_EQ(bar.CommandToIndex(99), -1);
    EXPECT_EQ(bar.GetPaneStyle(0), SBPS_STRETCH | SBPS_NOBORDERS);
    EXPECT_EQ(bar.GetPaneWidth(1), text_width(L"a pane"));
    EXPECT_EQ(pane(1).Width(), text_width(L"a pane") + 10);
    EXPECT_EQ(pane(0).right, pane(1).left);
    EXPECT_EQ(pane(1).right, pane(2).left);
    EXPECT_EQ(pane(0).left, 2);
    // The corner that sizes the frame is behind the last.
    EXPECT_EQ(pane(2).right, client().right - 2 - 14);
    const int first = pane(0).Width();
    CRect window;
    frame->GetWindowRect(&window);
    frame->SetWindowPos(nullptr, 0, 0, window.Width() + 100, window.Height(), SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(pane(0).Width(), first + 100);
    bar.SetPaneWidth(1, 200);
    EXPECT_EQ(pane(1).Width(), 210);
    EXPECT_EQ(pane(2).right, client().right - 2 - 14);
    bar.SetPaneStyle(0, SBPS_NORMAL);
    bar.SetPaneStyle(1, SBPS_STRETCH);
    EXPECT_EQ(pane(0).Width(), ::GetSystemMetrics(SM_CXSCREEN) / 4 + 10);
    EXPECT_EQ(pane(2).right, client().right - 2 - 14);
    UINT id = 0, style = 0;
    int width = 0;
    bar.SetPaneInfo(2, 77, SBPS_POPOUT, 31);
    bar.GetPaneInfo(2, id, style, width);
    EXPECT_EQ(id, 77u);
    EXPECT_EQ(style, SBPS_POPOUT);
    EXPECT_EQ(width, 31);
    bar.SetPaneWidth(2, -5);
    EXPECT_EQ(bar.GetPaneWidth(2), 0);
}

TEST_F(StatusBarEx, SizesFollowTheResolution) {
    const int before = pane(1).Width(), high = at(bar).Height(), dpi = afxGlobalData.m_nDpi;
    afxGlobalData.m_nDpi = 2 * dpi;
    frame->RecalcLayout();
    bar.RecalcLayout();
    EXPECT_EQ(pane(1).Width(), before + 10);
    EXPECT_EQ(at(bar).Height(), high + 8);
    EXPECT_EQ(pane(2).right, client().right - 2 * (2 + 14));
    afxGlobalData.m_nDpi = dpi;
}

TEST_F(StatusBarEx, IndicatorsAreTakenAllOrNone) {
    const UINT wrong[] = {kPane, 64999};
    EXPECT_FALSE(bar.SetIndicators(wrong, 2));
    EXPECT_FALSE(bar.SetIndicators(wrong, 0));
    EXPECT_FALSE(bar.SetIndicators(wrong, -3));
    EXPECT_EQ(bar.GetCount(), 3);
    EXPECT_TRUE(bar.SetIndicators(nullptr, 2));
    EXPECT_EQ(bar.GetCount(), 2);
    EXPECT_EQ(bar.GetPaneText(0), L"");
    EXPECT_EQ(bar.GetPaneStyle(0), SBPS_NORMAL);
    const UINT named[] = {kPane, kPane};
    EXPECT_TRUE(bar.SetIndicators(named, 2));
    EXPECT_EQ(bar.GetPaneWidth(0), text_width(L"a pane"));
    CMFCStatusBar none;
    EXPECT_FALSE(none.SetIndicators(named, 2));
}

TEST_F(StatusBarEx, PlacesWithoutAPaneAnswerNothing) {
    for (const int index : {-1, 3, 1000}) {
        EXPECT_EQ(bar.GetItemID(index), 0u);
        EXPECT_EQ(pane(index), CRect(0, 0, 0, 0));
        EXPECT_EQ(bar.GetPaneStyle(index), 0u);
        EXPECT_EQ(bar.GetPaneWidth(index), 0);
        EXPECT_EQ(bar.GetPaneText(index), L"");
        EXPECT_EQ(bar.GetTipText(index), L"");
        EXPECT_EQ(bar.GetPaneProgress(index), -1);
        EXPECT_FALSE(bar.SetPaneText(index, L"x"));
        bar.SetPaneInfo(index, 1, 2, 3);
        bar.SetPaneStyle(index, SBPS_POPOUT);
        bar.SetPaneWidth(index, 3);
        bar.SetTipText(index, L"x");
        bar.SetPaneTextColor(index, 0);
        bar.SetPaneBackgroundColor(index, 0);
        bar.SetPaneIcon(index, static_cast<HICON>(nullptr));
        bar.SetPaneIcon(index, static_cast<HBITMAP>(nullptr));
        bar.SetPaneAnimation(index, nullptr);
        bar.EnablePaneProgressBar(index);
        bar.SetPaneProgress(index, 3);
        bar.InvalidatePaneContent(index);
    }
    EXPECT_EQ(bar.GetCount(), 3);
}

TEST_F(StatusBarEx, TheFirstPaneIsTheWindowsTextAndShowsTheFramesMessages) {
    EXPECT_EQ(frame->GetMessageBar(), &bar);
    frame->SetMessageText(L"a message");
    EXPECT_EQ(bar.GetPaneText(0), L"a message");
    EXPECT_EQ(ui_test::text_of(bar.m_hWnd), L"a message");
    wchar_t cut[4] = {};
    EXPECT_EQ(bar.SendMessage(WM_GETTEXT, 4, reinterpret_cast<LPARAM>(cut)), 3);
    EXPECT_STREQ(cut, L"a m");
    EXPECT_EQ(bar.SendMessage(WM_GETTEXTLENGTH), 9);
    EXPECT_EQ(bar.SendMessage(WM_GETTEXT, 0, 0), 0);
    EXPECT_EQ(bar.SendMessage(WM_GETTEXT, 0, reinterpret_cast<LPARAM>(cut)), 0);
    CMFCStatusBar bare;
    bare.Create(frame, WS_CHILD | CBRS_BOTTOM, 900);
    bare.SetWindowText(L"own");
    EXPECT_EQ(ui_test::text_of(bare.m_hWnd), L"own");
}

TEST_F(StatusBarEx, CommandsSayWhatPanesAre) {
    update();
    EXPECT_EQ(bar.GetPaneText(1), L"asked");
    EXPECT_EQ(bar.GetPaneStyle(1), SBPS_NORMAL);
    EXPECT_EQ(bar.GetPaneText(0), L"");
    noting().paneEnabled = FALSE;
    noting().paneCheck = 1;
    noting().paneText = L"now";
    update();
    EXPECT_EQ(bar.GetPaneText(1), L"now");
    EXPECT_EQ(bar.GetPaneStyle(1), SBPS_DISABLED | SBPS_POPOUT);
    noting().paneEnabled = TRUE;
    noting().paneCheck = 0;
    update();
    EXPECT_EQ(bar.GetPaneStyle(1), SBPS_NORMAL);
    // The frame answers for keys, and nobody for 88.
    bar.SetPaneInfo(0, 88, SBPS_NORMAL, 50);
    update();
    EXPECT_EQ(bar.GetPaneStyle(0), SBPS_NORMAL);
    const bool on = (::GetKeyState(VK_CAPITAL) & 1) != 0;
    EXPECT_EQ((bar.GetPaneStyle(2) & SBPS_DISABLED) == 0, on);
}

TEST_F(StatusBarEx, ATextShowsAtOnceOrWhenTheBarIsBroughtUpToDate) {
    noting().paneText = L"MMMM";
    bar.SetPaneText(1, L"");
    const ui_test::Picture empty = shown(1);
    EXPECT_EQ(empty.difference(empty), CRect(empty.width(), empty.height(), 0, 0));
    bar.SetPaneText(1, L"MMMM");
    EXPECT_FALSE(shown(1) == empty);
    bar.SetPaneText(1, L"");
    EXPECT_TRUE(shown(1) == empty);
    bar.SetPaneText(1, L"MMMM", FALSE);
    ui_test::pump();
    EXPECT_TRUE(shown(1) == empty);
    EXPECT_EQ(bar.GetPaneText(1), L"MMMM");
    update();
    ui_test::pump();
    EXPECT_FALSE(shown(1) == empty);
    bar.drawn.clear();
    bar.SetPaneText(1, L"MMMM");
    EXPECT_TRUE(bar.drawn.empty());
    // A pane that nobody answers for too.
    bar.SetPaneText(0, L"");
    const ui_test::Picture none = shown(0);
    bar.SetPaneText(0, L"MMMM", FALSE);
    update();
    ui_test::pump();
    EXPECT_FALSE(shown(0) == none);
}
}  // namespace

}  // namespace docking
