// Going through the panes of a main window by keyboard.
#include "in_language.h"
#include "pane_keys_fixture.h"

using namespace docking_test;

TEST_F(PaneKeys, AreOffUntilTheyAreAskedFor) {
    EXPECT_TRUE(press());
    EXPECT_EQ(focused(), L"middle");
    EXPECT_EQ(label(), nullptr);
    CFrameWnd without;
    EXPECT_FALSE(KtUiEnablePaneKeys(without, TRUE));
    CMDIFrameWndEx noWindow;
    EXPECT_FALSE(KtUiEnablePaneKeys(noWindow, TRUE));
}

TEST_F(PaneKeys, F6GoesThroughAllPanesAndBackToTheMiddle) {
    ASSERT_TRUE(KtUiEnablePaneKeys(*frame, TRUE));
    const wchar_t* const order[] = {L"Bar A", L"Bar B", L"Set", L"Bar C", L"Bar D"};
    for (const wchar_t* name : order) {
        EXPECT_FALSE(press());
        EXPECT_EQ(focused(), name);
        EXPECT_EQ(said(), name);
    }
    EXPECT_TRUE(bars[2]->IsAutoHideMode());
    EXPECT_FALSE(press());
    EXPECT_EQ(focused(), L"middle");
    for (int i = 4; i >= 0; --i) {
        EXPECT_FALSE(press({VK_SHIFT}));
        EXPECT_EQ(focused(), order[i]);
    }
    EXPECT_FALSE(press({VK_SHIFT}));
    EXPECT_EQ(focused(), L"middle");
}

TEST_F(PaneKeys, ThePaneThatHidesSlidesOut) {
    ASSERT_TRUE(KtUiEnablePaneKeys(*frame, TRUE));
    ASSERT_FALSE(bars[2]->IsWindowVisible());
    for (int i = 0; i < 4; ++i) press();
    EXPECT_EQ(focused(), L"Bar C");
    EXPECT_TRUE(bars[2]->IsWindowVisible());
}

TEST_F(PaneKeys, TheFocusGoesToTheFirstControlOfAPane) {
    CButton passive, hidden, first;
    for (CButton* button : {&passive, &hidden, &first})
        ASSERT_TRUE(
            button->Create(L"x", WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(0, 0, 20, 20), bars[0].get(), 1));
    passive.EnableWindow(FALSE);
    hidden.ShowWindow(SW_HIDE);
    ASSERT_TRUE(KtUiEnablePaneKeys(*frame, TRUE));
    press();
    EXPECT_EQ(::GetFocus(), first.m_hWnd);
    EXPECT_FALSE(press());
    EXPECT_EQ(focused(), L"Bar B") << "from within a pane, too";
}

TEST_F(PaneKeys, CtrlF6TurnsThePalettesOfASet) {
    ASSERT_TRUE(KtUiEnablePaneKeys(*frame, TRUE));
    set.SetFocus();
    ASSERT_EQ(set.GetActivePaletteTabIndex(), 0);
    for (const int index : {1, 2, 0}) {
        EXPECT_FALSE(press({VK_CONTROL}));
        EXPECT_EQ(set.GetActivePaletteTabIndex(), index);
        EXPECT_EQ(said(), std::wstring(set.GetActivePalette()->GetName()));
        EXPECT_EQ(focused(), L"Set");
    }
    EXPECT_FALSE(press({VK_CONTROL, VK_SHIFT}));
    EXPECT_EQ(set.GetActivePaletteTabIndex(), 2);
}

TEST_F(PaneKeys, CtrlF6TurnsTheTabsOfAPane) {
    for (std::size_t i = 1; i < 4; ++i)
        ASSERT_NE(bars[i]->AttachToTabWnd(bars[0].get(), DM_UNKNOWN), nullptr);
    bars[2]->ShowPane(FALSE, FALSE, FALSE);
    CMFCBaseTabCtrl* tabs = bars[0]->GetParentTabbedPane()->GetUnderlyingWindow();
    tabs->SetActiveTab(0);
    ASSERT_TRUE(KtUiEnablePaneKeys(*frame, TRUE));
    press();
    EXPECT_EQ(focused(), L"Bar A");
    for (const int index : {1, 3, 0}) {
        EXPECT_FALSE(press({VK_CONTROL}));
        EXPECT_EQ(tabs->GetActiveTab(), index);
        EXPECT_EQ(focused(), std::wstring(L"Bar ") + static_cast<wchar_t>(L'A' + index));
        EXPECT_EQ(said(), focused());
    }
    EXPECT_FALSE(press({VK_CONTROL, VK_SHIFT}));
    EXPECT_EQ(tabs->GetActiveTab(), 3);
    press();
    EXPECT_EQ(focused(), L"Set") << "the tabs count as one";
}

TEST_F(PaneKeys, TabsThatFloatCountAsOnePane) {
    ASSERT_NE(bars[0]->AttachToTabWnd(bars[3].get(), DM_UNKNOWN), nullptr);
    ASSERT_FALSE(bars[0]->IsDocked());
    frame->SetFocus();
    ASSERT_TRUE(KtUiEnablePaneKeys(*frame, TRUE));
    for (const wchar_t* name : {L"Bar B", L"Set", L"Bar C", L"Bar A", L"middle"}) {
        EXPECT_FALSE(press());
        EXPECT_EQ(focused(), name);
    }
}

TEST_F(PaneKeys, CtrlF6ElsewhereAndKeysWithAltGoToTheProgram) {
    ASSERT_TRUE(KtUiEnablePaneKeys(*frame, TRUE));
    EXPECT_TRUE(press({VK_CONTROL}));
    EXPECT_TRUE(press({VK_MENU}));
    bars[0]->SetFocus();
    EXPECT_TRUE(press({VK_CONTROL})) << "neither palettes nor tabs";
    EXPECT_EQ(focused(), L"Bar A");
    EXPECT_EQ(label(), nullptr);
}

TEST_F(PaneKeys, NothingMovesWhileTheMainWindowIsDisabled) {
    ASSERT_TRUE(KtUiEnablePaneKeys(*frame, TRUE));
    frame->EnableWindow(FALSE);
    EXPECT_TRUE(press());
    frame->EnableWindow(TRUE);
    EXPECT_EQ(label(), nullptr);
}

TEST_F(PaneKeys, TheLabelGoesByItself) {
    ASSERT_TRUE(KtUiEnablePaneKeys(*frame, TRUE));
    press();
    ASSERT_NE(label(), nullptr);
    const CRect pane = placeOf(*bars[0]);
    RECT shown = {};
    ::GetWindowRect(label(), &shown);
    EXPECT_TRUE(CRect(pane).PtInRect(CPoint(shown.left, shown.top)));
    EXPECT_TRUE(ui_test::pump_until([] { return label() == nullptr; }));
}

TEST_F(PaneKeys, EndWithTheCallAndWithTheWindow) {
    ASSERT_TRUE(KtUiEnablePaneKeys(*frame, TRUE));
    auto* other = new Frame;
    ASSERT_TRUE(other->Create(nullptr, L"other"));
    ASSERT_TRUE(KtUiEnablePaneKeys(*other, TRUE));
    other->DestroyWindow();
    frame->SetFocus();
    EXPECT_FALSE(press());
    EXPECT_EQ(focused(), L"Bar A");
    ASSERT_TRUE(KtUiEnablePaneKeys(*frame, FALSE));
    EXPECT_TRUE(press());
    EXPECT_EQ(focused(), L"Bar A");
}

TEST_F(PaneKeys, TheMiddleIsNamedInBothLanguages) {
    ui_test::expect_library_texts({{54641, L"Drawing area", L"绘图区"}});
    ASSERT_TRUE(KtUiEnablePaneKeys(*frame, TRUE));
    bars[3]->SetFocus();
    press();
    EXPECT_EQ(focused(), L"middle");
    EXPECT_TRUE(said() == L"Drawing area" || said() == L"绘图区");
}
