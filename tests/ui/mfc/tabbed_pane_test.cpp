// Panes in tabs: joining, tearing off, closing, and what is left.
#include <afxcontrolbars.h>
#include <afxtabbedpane.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "told_mouse.h"
#include "ui_test.h"

namespace {

class Pane : public CDockablePane {
    DECLARE_DYNAMIC(Pane)
public:
    bool floats = true;
    int closed = 0;
    BOOL CanFloat() const override { return floats && CDockablePane::CanFloat(); }
    void OnPressCloseButton() override {
        ++closed;
        CDockablePane::OnPressCloseButton();
    }
};
IMPLEMENT_DYNAMIC(Pane, CDockablePane)

/// A tab control of the application's own.
class OwnTabs : public CMFCTabCtrl {
    DECLARE_DYNCREATE(OwnTabs)
};
IMPLEMENT_DYNCREATE(OwnTabs, CMFCTabCtrl)

class OwnTabbedPane : public CTabbedPane {
    DECLARE_DYNCREATE(OwnTabbedPane)
};
IMPLEMENT_DYNCREATE(OwnTabbedPane, CTabbedPane)

struct TabbedPane : ::testing::Test {
    TabbedPane() {
        EXPECT_TRUE(frame->Create(nullptr, L"frame", WS_OVERLAPPEDWINDOW, CRect(50, 50, 850, 650)));
        frame->EnableDocking(CBRS_ALIGN_ANY);
        AfxGetApp()->m_pMainWnd = frame;
        frame->ShowWindow(SW_SHOWNA);
        for (UINT i = 0; i < 3; ++i) {
            const wchar_t* const names[] = {L"Layers", L"Blocks", L"Properties"};
            EXPECT_TRUE(panes[i].Create(names[i], frame, CSize(200, 150), TRUE, 900 + i,
                                        WS_CHILD | WS_VISIBLE | CBRS_LEFT | CBRS_FLOAT_MULTI));
            panes[i].EnableDocking(CBRS_ALIGN_ANY);
            frame->DockPane(&panes[i]);
        }
    }
    ~TabbedPane() override {
        AfxGetApp()->m_pMainWnd = nullptr;
        frame->DestroyWindow();
        ui_test::pump();
    }
    /// The second pane and the third join the first.
    CTabbedPane* join(int count = 3) {
        CDockablePane* tabbed = &panes[0];
        for (int i = 1; i < count; ++i)
            EXPECT_EQ(panes[i].AttachToTabWnd(tabbed, DM_SHOW, TRUE, &tabbed), &panes[i]);
        return DYNAMIC_DOWNCAST(CTabbedPane, tabbed);
    }
    static std::wstring labels(CTabbedPane& pane) {
        std::wstring all;
        for (int i = 0; i < pane.GetTabsNum(); ++i) {
            CString label;
            pane.GetTabWnd()->GetTabLabel(i, label);
            all += (i == 0 ? L"" : L",") + std::wstring(label);
        }
        return all;
    }
    /// Tabbed panes that are children of the frame or float.
    int tabbed_count() const {
        int count = 0;
        CObList list;
        frame->GetDockingManager()->GetPaneList(list, TRUE, RUNTIME_CLASS(CTabbedPane));
        count += static_cast<int>(list.GetCount());
        return count;
    }

    CFrameWndEx* frame = new CFrameWndEx;
    Pane panes[3];
};

}  // namespace

TEST_F(TabbedPane, IsMadeWhenAPaneJoinsAnother) {
    CRect before;
    panes[0].GetWindowRect(&before);
    CTabbedPane* const tabbed = join(2);
    ASSERT_NE(tabbed, nullptr);
    EXPECT_EQ(labels(*tabbed), L"Layers,Blocks");
    EXPECT_TRUE(tabbed->IsDocked());
    EXPECT_TRUE(panes[0].IsTabbed());
    EXPECT_EQ(panes[0].GetParentTabbedPane(), tabbed);
    HWND control = nullptr;
    EXPECT_EQ(panes[1].GetParentTabWnd(control), tabbed->GetUnderlyingWindow());
    EXPECT_EQ(control, tabbed->GetTabWnd()->m_hWnd);
    EXPECT_EQ(tabbed->GetTabWnd()->GetActiveWnd(), &panes[1]);
    EXPECT_TRUE(panes[1].IsWindowVisible());
    EXPECT_FALSE(panes[0].IsWindowVisible());
    EXPECT_TRUE(panes[0].IsVisible()) << "though another tab hides it";
    EXPECT_EQ(panes[0].GetCaptionHeight(), 0);
    EXPECT_GT(tabbed->GetCaptionHeight(), 0);
    EXPECT_EQ(ui_test::text_of(tabbed->m_hWnd), L"Blocks");
    CRect now;
    tabbed->GetWindowRect(&now);
    EXPECT_EQ(now.left, before.left) << "it stands where the first pane stood";
    EXPECT_EQ(tabbed_count(), 1);
}

TEST_F(TabbedPane, FillsItselfWithItsTabs) {
    CTabbedPane* const tabbed = join(2);
    CRect client, control, page, inner, top, bottom;
    tabbed->GetClientRect(&client);
    tabbed->ClientToScreen(&client);
    tabbed->GetTabWnd()->GetWindowRect(&control);
    EXPECT_EQ(control, client);
    tabbed->GetTabWnd()->GetWndArea(page);
    tabbed->GetTabWnd()->ClientToScreen(&page);
    panes[1].GetWindowRect(&inner);
    EXPECT_EQ(inner, page);
    CRect innerClient;
    panes[1].GetClientRect(&innerClient);
    EXPECT_EQ(innerClient.Size(), inner.Size()) << "no caption of its own";
    tabbed->GetTabArea(top, bottom);
    EXPECT_TRUE(top.IsRectEmpty());
    EXPECT_EQ(bottom.bottom, control.bottom);
    EXPECT_EQ(bottom.top, page.bottom);
    EXPECT_TRUE(tabbed->IsTabLocationBottom());
}

TEST_F(TabbedPane, TakesTheThirdPaneIntoTheSameTabs) {
    CTabbedPane* const tabbed = join();
    EXPECT_EQ(labels(*tabbed), L"Layers,Blocks,Properties");
    EXPECT_EQ(tabbed->GetTabsNum(), 3);
    EXPECT_EQ(tabbed_count(), 1);
    EXPECT_EQ(tabbed->FindPaneByID(901), &panes[1]);
    EXPECT_EQ(tabbed->FindPaneByID(77), nullptr);
    EXPECT_EQ(tabbed->FindBarByTabNumber(2), &panes[2]);
    EXPECT_EQ(tabbed->FindBarByTabNumber(3), nullptr);
    CObList list;
    tabbed->GetPaneList(list, RUNTIME_CLASS(Pane));
    EXPECT_EQ(list.GetCount(), 3);
    list.RemoveAll();
    tabbed->GetPaneList(list, RUNTIME_CLASS(CTabbedPane));
    EXPECT_EQ(list.GetCount(), 0);
    EXPECT_EQ(frame->GetPane(902), &panes[2]) << "the frame finds panes in tabs";
}

TEST_F(TabbedPane, ShowsTheActiveNameInItsCaption) {
    CTabbedPane* const tabbed = join();
    tabbed->GetTabWnd()->SetActiveTab(0);
    EXPECT_EQ(ui_test::text_of(tabbed->m_hWnd), L"Layers");
    tabbed->EnableSetCaptionTextToTabName(FALSE);
    EXPECT_FALSE(tabbed->CanSetCaptionTextToTabName());
    tabbed->GetTabWnd()->SetActiveTab(1);
    EXPECT_EQ(ui_test::text_of(tabbed->m_hWnd), L"Layers");
    tabbed->EnableSetCaptionTextToTabName(TRUE);
    EXPECT_EQ(ui_test::text_of(tabbed->m_hWnd), L"Blocks");
}

TEST_F(TabbedPane, TakesOverANewNameOfItsPane) {
    CTabbedPane* const tabbed = join();
    tabbed->GetTabWnd()->SetActiveTab(0);
    panes[1].SetWindowText(L"Symbols");
    EXPECT_EQ(labels(*tabbed), L"Layers,Symbols,Properties");
    EXPECT_EQ(ui_test::text_of(tabbed->m_hWnd), L"Layers");
    panes[0].SetWindowText(L"Sheets");
    EXPECT_EQ(labels(*tabbed), L"Sheets,Symbols,Properties");
    EXPECT_EQ(ui_test::text_of(tabbed->m_hWnd), L"Sheets");
}

TEST_F(TabbedPane, LetsAPaneFloatAndStaysWithTheOthers) {
    CTabbedPane* const tabbed = join();
    EXPECT_TRUE(tabbed->DetachPane(&panes[2]));
    EXPECT_TRUE(panes[2].IsFloating());
    EXPECT_FALSE(panes[2].IsTabbed());
    EXPECT_GT(panes[2].GetCaptionHeight() + panes[2].GetParentMiniFrame()->GetCaptionHeight(), 0);
    EXPECT_TRUE(panes[2].IsWindowVisible());
    EXPECT_EQ(labels(*tabbed), L"Layers,Blocks");
    EXPECT_FALSE(tabbed->DetachPane(&panes[2])) << "it isn't here any more";
    EXPECT_FALSE(tabbed->DetachPane(nullptr));
    EXPECT_FALSE(tabbed->RemovePane(frame));
}

TEST_F(TabbedPane, GivesItsPlaceToTheOneThatIsLeft) {
    CTabbedPane* const tabbed = join(2);
    const HWND window = tabbed->m_hWnd;
    CRect place, now;
    tabbed->GetWindowRect(&place);
    EXPECT_TRUE(tabbed->DetachPane(&panes[0]));
    ui_test::pump();
    EXPECT_FALSE(::IsWindow(window));
    EXPECT_EQ(tabbed_count(), 0);
    EXPECT_FALSE(panes[1].IsTabbed());
    EXPECT_TRUE(panes[1].IsDocked());
    EXPECT_TRUE(panes[1].IsWindowVisible());
    EXPECT_GT(panes[1].GetCaptionHeight(), 0);
    panes[1].GetWindowRect(&now);
    EXPECT_EQ(now, place);
    EXPECT_TRUE(panes[0].IsFloating());
}

TEST_F(TabbedPane, GivesItsPlaceInAFloatingFrameToo) {
    CTabbedPane* const tabbed = join(2);
    EXPECT_TRUE(tabbed->FloatPane(CRect(300, 300, 600, 600)));
    CPaneFrameWnd* const mini = tabbed->GetParentMiniFrame();
    ASSERT_NE(mini, nullptr);
    EXPECT_TRUE(panes[0].IsFloating());
    EXPECT_TRUE(tabbed->DetachPane(&panes[0]));
    ui_test::pump();
    EXPECT_EQ(panes[1].GetParentMiniFrame(), mini);
    EXPECT_NE(panes[0].GetParentMiniFrame(), mini);
    EXPECT_TRUE(panes[1].IsWindowVisible());
    EXPECT_EQ(tabbed_count(), 0);
}

TEST_F(TabbedPane, OfTheApplicationStaysWithOneTabAndWithNone) {
    CTabbedPane own;
    ASSERT_TRUE(own.Create(L"own", frame, CRect(0, 0, 200, 200), TRUE, 950,
                           WS_CHILD | WS_VISIBLE | CBRS_LEFT | CBRS_FLOAT_MULTI));
    EXPECT_TRUE(own.AddTab(&panes[0]));
    EXPECT_TRUE(own.AddTab(&panes[1], TRUE, FALSE));
    EXPECT_FALSE(own.AddTab(&own));
    EXPECT_FALSE(own.AddTab(nullptr));
    own.EnableDocking(CBRS_ALIGN_ANY);
    frame->DockPane(&own);
    EXPECT_EQ(own.GetTabWnd()->GetActiveTab(), 0);
    EXPECT_GT(own.GetTabWnd()->GetTabsHeight(), 0);
    EXPECT_TRUE(own.RemovePane(&panes[1]));
    EXPECT_EQ(::GetParent(panes[1].m_hWnd), frame->m_hWnd);
    EXPECT_FALSE(panes[1].IsWindowVisible());
    EXPECT_EQ(own.GetTabWnd()->GetTabsHeight(), 0) << "a single tab is hidden";
    EXPECT_TRUE(own.IsVisible());
    EXPECT_TRUE(own.RemovePane(&panes[0]));
    ui_test::pump();
    EXPECT_TRUE(::IsWindow(own.m_hWnd));
    EXPECT_FALSE(own.IsVisible()) << "an empty one hides";
    own.DestroyWindow();
}

TEST_F(TabbedPane, TakesTheTabsOfAnother) {
    CTabbedPane* const tabbed = join(2);
    tabbed->GetTabWnd()->SetTabLabel(0, L"My layers");
    tabbed->GetTabWnd()->EnableTabDetach(1, FALSE);
    const HWND former = tabbed->m_hWnd;
    CDockablePane* result = nullptr;
    EXPECT_EQ(tabbed->AttachToTabWnd(&panes[2], DM_SHOW, TRUE, &result), result);
    auto* const joined = DYNAMIC_DOWNCAST(CTabbedPane, result);
    ASSERT_NE(joined, nullptr);
    EXPECT_EQ(labels(*joined), L"Properties,My layers,Blocks");
    EXPECT_FALSE(joined->GetTabWnd()->IsTabDetachable(2));
    EXPECT_EQ(joined->GetTabWnd()->GetActiveWnd(), &panes[1]) << "the one that was active there";
    ui_test::pump();
    EXPECT_FALSE(::IsWindow(former));
    EXPECT_EQ(tabbed_count(), 1);
}

TEST_F(TabbedPane, HidesAndShowsItsTabsWithTheirPanes) {
    CTabbedPane* const tabbed = join();
    panes[2].ShowPane(FALSE, FALSE, FALSE);
    EXPECT_FALSE(panes[2].IsVisible());
    EXPECT_FALSE(tabbed->GetTabWnd()->IsTabVisible(2));
    EXPECT_EQ(tabbed->GetVisibleTabsNum(), 2);
    int first = -1;
    panes[0].ShowPane(FALSE, FALSE, FALSE);
    EXPECT_EQ(tabbed->GetFirstVisibleTab(first), &panes[1]);
    EXPECT_EQ(first, 1);
    EXPECT_TRUE(tabbed->IsVisible());
    panes[1].ShowPane(FALSE, FALSE, FALSE);
    EXPECT_FALSE(tabbed->IsVisible()) << "with its last tab it hides";
    EXPECT_FALSE(tabbed->IsWindowVisible());
    panes[0].ShowPane(TRUE, FALSE, TRUE);
    EXPECT_TRUE(tabbed->IsVisible());
    EXPECT_TRUE(panes[0].IsWindowVisible());
    EXPECT_EQ(tabbed->GetTabWnd()->GetActiveWnd(), &panes[0]);
    EXPECT_FALSE(tabbed->ShowTab(frame, TRUE, FALSE, FALSE));
}

TEST_F(TabbedPane, ClosesTheActiveTab) {
    CTabbedPane* const tabbed = join();
    tabbed->GetTabWnd()->SetActiveTab(1);
    tabbed->OnPressCloseButton();
    EXPECT_EQ(panes[1].closed, 1);
    EXPECT_FALSE(panes[1].IsVisible());
    EXPECT_TRUE(tabbed->IsVisible());
    EXPECT_EQ(tabbed->GetVisibleTabsNum(), 2);
}

TEST_F(TabbedPane, TearsATabOffByTheMouse) {
    CTabbedPane* const tabbed = join();
    CMFCTabCtrl& tabs = *tabbed->GetTabWnd();
    CRect rect;
    tabs.GetTabRect(1, rect);
    const CPoint at = rect.CenterPoint();
    CPoint screen = at - CSize(0, 80);
    tabs.ClientToScreen(&screen);
    ui_test::ToldMouse mouse;
    mouse.place = screen;
    tabs.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(at.x, at.y));
    tabs.SendMessage(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(at.x, at.y - 80));
    EXPECT_TRUE(panes[1].IsFloating());
    EXPECT_EQ(labels(*tabbed), L"Layers,Properties");
    CPaneFrameWnd* const mini = panes[1].GetParentMiniFrame();
    ASSERT_NE(mini, nullptr);
    CRect window;
    mini->GetWindowRect(&window);
    EXPECT_TRUE(window.PtInRect(screen)) << "under the mouse";
    EXPECT_EQ(::GetCapture(), mini->m_hWnd) << "and the drag goes on";
    ::ReleaseCapture();
}

TEST_F(TabbedPane, TearsOffOnlyWhatMay) {
    CTabbedPane* const tabbed = join();
    panes[1].floats = false;
    EXPECT_FALSE(tabbed->FloatTab(&panes[1], 1, DM_SHOW));
    EXPECT_FALSE(tabbed->CanFloat()) << "one that can't float holds all";
    tabbed->GetTabWnd()->EnableTabDetach(0, FALSE);
    EXPECT_FALSE(tabbed->FloatTab(&panes[0], 0, DM_SHOW));
    EXPECT_FALSE(tabbed->FloatTab(&panes[2], 0, DM_SHOW)) << "another tab's number";
    EXPECT_FALSE(tabbed->FloatTab(frame, 0, DM_SHOW));
    EXPECT_TRUE(tabbed->FloatTab(&panes[2], 2, DM_DBL_CLICK));
    EXPECT_TRUE(panes[2].IsFloating());
    panes[1].floats = true;
    EXPECT_TRUE(tabbed->CanFloat());
}

TEST_F(TabbedPane, DetachesAPaneHidden) {
    CTabbedPane* const tabbed = join();
    EXPECT_TRUE(tabbed->DetachPane(&panes[0], TRUE));
    EXPECT_FALSE(panes[0].IsVisible());
    EXPECT_FALSE(panes[0].IsFloating());
    EXPECT_FALSE(panes[0].IsTabbed());
    EXPECT_EQ(tabbed->GetTabsNum(), 2);
    panes[1].floats = false;
    EXPECT_TRUE(tabbed->DetachPane(&panes[1])) << "what can't float is hidden";
    EXPECT_FALSE(panes[1].IsFloating());
}

TEST_F(TabbedPane, AsksForTheRoomOfItsActivePane) {
    CTabbedPane* const tabbed = join(2);
    panes[1].SetMinSize(CSize(170, 90));
    CSize least(0, 0);
    tabbed->GetMinSize(least);
    EXPECT_EQ(least, CSize(170, 90 + tabbed->GetTabWnd()->GetTabsHeight()));
    tabbed->GetTabWnd()->SetActiveTab(0);
    tabbed->GetMinSize(least);
    EXPECT_LT(least.cx, 170);
}

TEST_F(TabbedPane, IsOfTheClassesThatAreNamed) {
    panes[0].SetTabbedPaneRTC(RUNTIME_CLASS(OwnTabbedPane));
    CTabbedPane::m_pTabWndRTC = RUNTIME_CLASS(OwnTabs);
    CTabbedPane::m_bTabsAlwaysTop = TRUE;
    CTabbedPane* const tabbed = join(2);
    CTabbedPane::m_pTabWndRTC = nullptr;
    CTabbedPane::m_bTabsAlwaysTop = FALSE;
    EXPECT_TRUE(tabbed->IsKindOf(RUNTIME_CLASS(OwnTabbedPane)));
    EXPECT_TRUE(tabbed->GetTabWnd()->IsKindOf(RUNTIME_CLASS(OwnTabs)));
    EXPECT_FALSE(tabbed->IsTabLocationBottom());
    CRect top, bottom;
    tabbed->GetTabArea(top, bottom);
    EXPECT_FALSE(top.IsRectEmpty());
    EXPECT_TRUE(bottom.IsRectEmpty());
}

TEST_F(TabbedPane, ColoursTheTabsOfAll) {
    CTabbedPane* const tabbed = join(2);
    CArray<COLORREF, COLORREF> colors;
    colors.Add(RGB(1, 2, 3));
    CTabbedPane::EnableTabAutoColor();
    CTabbedPane::SetTabAutoColors(colors);
    EXPECT_TRUE(tabbed->GetTabWnd()->IsAutoColor());
    EXPECT_EQ(tabbed->GetTabWnd()->GetTabBkColor(1), RGB(1, 2, 3));
    tabbed->GetTabWnd()->SetTabBorderSize(9);
    CTabbedPane::ResetTabs();
    EXPECT_EQ(tabbed->GetTabWnd()->GetTabBorderSize(), 0);
    CTabbedPane::EnableTabAutoColor(FALSE);
    CTabbedPane::SetTabAutoColors(CArray<COLORREF, COLORREF>());
    EXPECT_FALSE(tabbed->GetTabWnd()->IsAutoColor());
    EXPECT_EQ(tabbed->GetTabWnd()->GetTabBkColor(1), static_cast<COLORREF>(-1));
}

TEST_F(TabbedPane, KeepsItsTabsInAnArchive) {
    CTabbedPane* const tabbed = join();
    tabbed->GetTabWnd()->MoveTab(2, 0);
    tabbed->GetTabWnd()->SetActiveTab(1);
    CMemFile file;
    {
        CArchive archive(&file, CArchive::store);
        tabbed->Serialize(archive);
    }
    tabbed->GetTabWnd()->MoveTab(0, 2);
    tabbed->GetTabWnd()->SetActiveTab(2);
    file.SeekToBegin();
    CArchive archive(&file, CArchive::load);
    tabbed->Serialize(archive);
    tabbed->ApplyRestoredTabInfo();
    EXPECT_EQ(labels(*tabbed), L"Properties,Layers,Blocks");
    EXPECT_EQ(tabbed->GetTabWnd()->GetActiveTab(), 1);
    EXPECT_EQ(ui_test::text_of(tabbed->m_hWnd), L"Layers");
}

TEST_F(TabbedPane, GoesWithItsFrame) {
    join();
    CFrameWndEx* const other = new CFrameWndEx;
    ASSERT_TRUE(other->Create(nullptr, L"other", WS_OVERLAPPEDWINDOW, CRect(0, 0, 400, 300)));
    other->EnableDocking(CBRS_ALIGN_ANY);
    Pane one, two;
    for (Pane* pane : {&one, &two}) {
        pane->Create(L"p", other, CSize(100, 100), TRUE, pane == &one ? 1u : 2u,
                     WS_CHILD | WS_VISIBLE | CBRS_LEFT);
        pane->EnableDocking(CBRS_ALIGN_ANY);
        other->DockPane(pane);
    }
    CDockablePane* tabbed = nullptr;
    two.AttachToTabWnd(&one, DM_SHOW, TRUE, &tabbed);
    const HWND window = tabbed->m_hWnd;
    other->DestroyWindow();
    EXPECT_FALSE(::IsWindow(window));
    EXPECT_EQ(one.m_hWnd, nullptr);
    EXPECT_EQ(two.m_hWnd, nullptr);
}

TEST_F(TabbedPane, HandsTheFocusOnByControlAndTab) {
    CTabbedPane* const tabbed = join();
    panes[2].SetFocus();
    BYTE state[256] = {}, held[256] = {};
    ::GetKeyboardState(state);
    memcpy(held, state, sizeof(held));
    held[VK_CONTROL] = 0x80;
    ::SetKeyboardState(held);
    MSG message = {panes[2].m_hWnd, WM_KEYDOWN, VK_TAB, 1, 0, {}};
    EXPECT_TRUE(CWnd::WalkPreTranslateTree(frame->m_hWnd, &message));
    ::SetKeyboardState(state);
    EXPECT_EQ(tabbed->GetTabWnd()->GetActiveTab(), 0);
    EXPECT_EQ(::GetFocus(), panes[0].m_hWnd);
}

TEST_F(TabbedPane, LosesTheTabOfAPaneThatIsDestroyed) {
    CTabbedPane* const tabbed = join();
    CRect place;
    tabbed->GetWindowRect(&place);
    tabbed->GetTabWnd()->SetActiveTab(1);
    panes[1].DestroyWindow();
    ASSERT_EQ(tabbed->GetTabsNum(), 2);
    EXPECT_EQ(tabbed->FindBarByTabNumber(0), &panes[0]);
    EXPECT_EQ(tabbed->FindBarByTabNumber(1), &panes[2]);
    EXPECT_EQ(tabbed->GetTabWnd()->GetActiveWnd(), &panes[2]);
    EXPECT_TRUE(panes[2].IsWindowVisible());
    panes[2].DestroyWindow();
    ui_test::pump();
    EXPECT_FALSE(panes[0].IsTabbed()) << "the last stands alone";
    EXPECT_TRUE(panes[0].IsWindowVisible());
    CRect now;
    panes[0].GetWindowRect(&now);
    EXPECT_EQ(now, place);
}

TEST_F(TabbedPane, LosesTheTabOfADestroyedPaneAlsoWhereItDestroysPanesItself) {
    CTabbedPane* const tabbed = join();
    tabbed->GetTabWnd()->AutoDestroyWindow();
    panes[0].DestroyWindow();
    EXPECT_EQ(tabbed->GetTabsNum(), 2);
    EXPECT_TRUE(tabbed->GetTabWnd()->IsAutoDestroyWindow());
    EXPECT_EQ(panes[0].m_hWnd, nullptr);
}
