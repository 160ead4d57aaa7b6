// Calls of panes and of the manager that programs make themselves: what a plain bar answers, lists of panes,
// shares, remembered places, messages to floating frames.
#include "docking_fixture.h"
#include "sent_messages.h"

using namespace docking;

namespace {

/// A bar at an edge, which docks nowhere; says where it belongs.
class Strip : public CPane {
public:
    DWORD side = CBRS_ALIGN_TOP;
    DWORD sides = CBRS_ALIGN_TOP | CBRS_ALIGN_LEFT;
    int floats = 0;
    BOOL mayFloat = TRUE;
    DWORD GetCurrentAlignment() const override { return side; }
    DWORD GetEnabledAlignment() const override { return sides; }
    BOOL CanFloat() const override { return mayFloat; }
    BOOL OnBeforeFloat(CRect& rect, AFX_DOCK_METHOD method) override {
        ++floats;
        return CPane::OnBeforeFloat(rect, method);
    }
    CSize CalcFixedLayout(BOOL, BOOL) override { return CSize(60, 30); }
    void make(CWnd* frame, UINT id) {
        ASSERT_TRUE(
            CreateEx(0, nullptr, L"strip", WS_CHILD | WS_VISIBLE | CBRS_TOP, CRect(0, 0, 60, 30), frame, id));
    }
};

class PaneCalls : public Docking {
protected:
    std::vector<CObject*> listed() {
        CObList list;
        manager().GetPaneList(list);
        std::vector<CObject*> all;
        for (POSITION at = list.GetHeadPosition(); at != nullptr;) all.push_back(list.GetNext(at));
        return all;
    }
};

}  // namespace

TEST_F(PaneCalls, a_plain_bar_docks_and_floats_nowhere_by_itself) {
    class Bar : public CBasePane {
    public:
        DWORD sides = CBRS_ALIGN_TOP | CBRS_ALIGN_LEFT;
        DWORD GetEnabledAlignment() const override { return sides; }
        DWORD GetCurrentAlignment() const override { return CBRS_ALIGN_RIGHT; }
    };
    Bar bar, site;
    EXPECT_FALSE(bar.DockToFrameWindow(CBRS_ALIGN_TOP));
    EXPECT_FALSE(bar.FloatPane(CRect(0, 0, 10, 10)));
    EXPECT_EQ(bar.CreateDefaultMiniframe(CRect(0, 0, 10, 10)), nullptr);
    EXPECT_FALSE(bar.CanAcceptPane(&site));
    EXPECT_TRUE(bar.CanBeDocked(nullptr)) << "somewhere";
    EXPECT_FALSE(bar.CanBeDocked(&site)) << "not at the right";
    bar.sides |= CBRS_ALIGN_RIGHT;
    EXPECT_TRUE(bar.CanBeDocked(&site));
    bar.sides = 0;
    EXPECT_FALSE(bar.CanBeDocked(nullptr));
    EXPECT_EQ(bar.CBasePane::CalcFixedLayout(TRUE, TRUE), CSize(32767, 0));
    EXPECT_EQ(bar.CBasePane::CalcFixedLayout(TRUE, FALSE), CSize(0, 32767));
    EXPECT_EQ(bar.CBasePane::CalcFixedLayout(FALSE, TRUE), CSize(0, 0));
    EXPECT_FALSE(bar.IsVisible());
    EXPECT_EQ(bar.GetParentMiniFrame(), nullptr);
    HWND tabs = frame->m_hWnd;
    EXPECT_EQ(bar.GetParentTabWnd(tabs), nullptr);
    EXPECT_EQ(tabs, nullptr);
}

TEST_F(PaneCalls, a_bar_is_moved_at_once_or_in_a_batch) {
    Strip bar;
    bar.make(frame, 900);
    CRect place(10, 20, 90, 50);
    EXPECT_EQ(bar.MoveWindow(place, TRUE, nullptr), nullptr);
    EXPECT_EQ(at(bar), place);
    HDWP batch = ::BeginDeferWindowPos(2);
    CRect later(15, 25, 80, 60);
    batch = bar.MoveWindow(later, FALSE, batch);
    ASSERT_NE(batch, nullptr);
    EXPECT_EQ(at(bar), place) << "not yet";
    ::EndDeferWindowPos(batch);
    EXPECT_EQ(at(bar), later);
}

TEST_F(PaneCalls, a_bar_joins_the_list_of_its_frame_where_it_is_told) {
    Strip first, second, third;
    first.make(frame, 901), second.make(frame, 902), third.make(frame, 903);
    EXPECT_TRUE(manager().AddPane(&first));
    EXPECT_FALSE(manager().AddPane(&first)) << "it is there";
    EXPECT_FALSE(manager().AddPane(nullptr));
    EXPECT_TRUE(manager().InsertPane(&second, &first, FALSE));
    EXPECT_TRUE(manager().InsertPane(&third, &first, TRUE));
    EXPECT_EQ(listed(), (std::vector<CObject*>{&second, &first, &third}));
    EXPECT_FALSE(manager().InsertPane(&third, &first, TRUE));
    EXPECT_FALSE(manager().InsertPane(nullptr, &first, TRUE));
    Strip stranger;
    EXPECT_FALSE(manager().InsertPane(&stranger, &stranger, TRUE));
    manager().RemovePaneFromDockManager(&first, FALSE, TRUE, FALSE, nullptr);
    EXPECT_EQ(listed(), (std::vector<CObject*>{&second, &third}));
    Strip head;
    head.make(frame, 904);
    EXPECT_TRUE(manager().AddPane(&head, FALSE));
    EXPECT_EQ(listed().front(), &head);
    Strip fourth;
    fourth.make(frame, 905);
    head.AddPane(&fourth);
    EXPECT_EQ(listed().back(), &fourth);
    manager().RemovePaneFromDockManager(nullptr, FALSE, TRUE, FALSE, nullptr);
    manager().RemovePaneFromDockManager(&fourth, TRUE, TRUE, FALSE, nullptr);
    EXPECT_EQ(fourth.m_hWnd, nullptr) << "destroyed as wanted";
}

TEST_F(PaneCalls, bars_of_every_edge_take_strips_off_in_their_order) {
    Strip bars[4];
    const DWORD sides[] = {CBRS_ALIGN_TOP, CBRS_ALIGN_LEFT, CBRS_ALIGN_BOTTOM, CBRS_ALIGN_RIGHT};
    for (UINT i = 0; i < 4; ++i) {
        bars[i].side = sides[i];
        bars[i].SetPaneStyle(sides[i]);
        bars[i].make(frame, 910 + i);
        bars[i].SetPaneAlignment(sides[i]);
        manager().AddPane(&bars[i]);
    }
    frame->RecalcLayout();
    EXPECT_EQ(at(bars[0]), CRect(0, 0, 700, 30));
    EXPECT_EQ(at(bars[1]), CRect(0, 30, 60, 500));
    EXPECT_EQ(at(bars[2]), CRect(60, 470, 700, 500));
    EXPECT_EQ(at(bars[3]), CRect(640, 30, 700, 470));
    EXPECT_EQ(at(view), CRect(60, 30, 640, 470));
    EXPECT_EQ(manager().GetOuterEdgeBounds(), CRect(60, 30, 640, 470));
    bars[1].ShowPane(FALSE, FALSE, FALSE);
    EXPECT_EQ(at(view), CRect(0, 30, 640, 470));
    bars[3].ShowPane(FALSE, TRUE, FALSE);
    EXPECT_EQ(at(view), CRect(0, 30, 640, 470)) << "at the next idle step";
    idle();
    EXPECT_EQ(at(view), CRect(0, 30, 700, 470));
    bars[3].ShowPane(TRUE, FALSE, TRUE);
    EXPECT_EQ(::GetFocus(), bars[3].m_hWnd);
}

TEST_F(PaneCalls, a_bar_floats_when_it_is_told_to) {
    Strip bar;
    bar.make(frame, 920);
    bar.mayFloat = FALSE;
    EXPECT_FALSE(bar.FloatPane(CRect(100, 100, 300, 200)));
    EXPECT_EQ(bar.GetParent(), frame);
    bar.mayFloat = TRUE;
    EXPECT_TRUE(bar.FloatPane(CRect(100, 100, 300, 200), DM_UNKNOWN, false));
    EXPECT_EQ(bar.floats, 2);
    ASSERT_NE(bar.GetParentMiniFrame(), nullptr);
    EXPECT_TRUE(bar.IsFloating());
    EXPECT_FALSE(bar.IsDocked());
    EXPECT_FALSE(bar.GetParentMiniFrame()->IsWindowVisible()) << "not shown";
    EXPECT_EQ(on_screen(*bar.GetParentMiniFrame()), CRect(100, 100, 300, 200));
    EXPECT_FALSE(bar.OnShowControlBarMenu(CPoint(0, 0)));
    Strip none;
    EXPECT_FALSE(none.FloatPane(CRect(0, 0, 10, 10)));
    Strip shown;
    shown.make(frame, 921);
    EXPECT_TRUE(shown.FloatPane(CRect(150, 150, 300, 200)));
    EXPECT_TRUE(shown.GetParentMiniFrame()->IsWindowVisible());
    shown.OnPressCloseButton();
    EXPECT_FALSE(shown.IsVisible());
}

TEST_F(PaneCalls, a_place_is_remembered_with_its_share) {
    Pane& pane = docked(L"left", AFX_IDW_DOCKBAR_LEFT, 140);
    pane.m_recentDockInfo.StoreDockInfo();
    const CRecentDockSiteInfo& info = pane.m_recentDockInfo;
    EXPECT_EQ(info.m_dwRecentAlignmentToFrame, static_cast<DWORD>(CBRS_ALIGN_LEFT));
    EXPECT_EQ(info.m_recentSliderInfo.m_nRecentPercent, 20) << "140 of 700";
    EXPECT_EQ(info.m_recentSliderInfo.m_rectDockedRect, on_screen(pane));
    const CRect place(200, 100, 400, 300);
    pane.FloatPane(place);
    pane.m_recentDockInfo.StoreDockInfo();
    EXPECT_EQ(info.m_rectRecentFloatingRect, place);
    EXPECT_EQ(info.m_recentMiniFrameInfo.m_nRecentPercent, 100);
    EXPECT_EQ(info.m_recentSliderInfo.m_nRecentPercent, 20) << "the docked place stays known";
    Pane other;
    other.m_recentDockInfo = pane.m_recentDockInfo;
    EXPECT_EQ(other.m_recentDockInfo.m_rectRecentFloatingRect, place);
    EXPECT_EQ(other.m_recentDockInfo.m_dwRecentAlignmentToFrame, static_cast<DWORD>(CBRS_ALIGN_LEFT));
    EXPECT_EQ(other.m_recentDockInfo.m_recentSliderInfo.m_nRecentPercent, 20);
    EXPECT_EQ(other.m_recentDockInfo.m_recentMiniFrameInfo.m_nRecentPercent, 100);
}

TEST_F(PaneCalls, floating_frames_are_told_together) {
    Pane& one = docked(L"one", AFX_IDW_DOCKBAR_LEFT);
    Pane& two = docked(L"two", AFX_IDW_DOCKBAR_LEFT);
    one.FloatPane(CRect(100, 100, 250, 250));
    two.FloatPane(CRect(300, 100, 450, 250));
    std::vector<HWND> told;
    std::vector<std::pair<HWND, UINT>> framed;
    {
        const ui_test::SentMessages sent([&](const CWPSTRUCT& message) {
            if (message.message == WM_APP + 3 && message.wParam == 11 && message.lParam == 12)
                told.push_back(message.hwnd);
            if (message.message == WM_WINDOWPOSCHANGING)
                framed.emplace_back(message.hwnd, ui_test::position_flags(message));
        });
        manager().SendMessageToMiniFrames(WM_APP + 3, 11, 12);
        manager().AdjustPaneFrames();
    }
    const HWND first = one.GetParentMiniFrame()->m_hWnd, second = two.GetParentMiniFrame()->m_hWnd;
    EXPECT_EQ(told.size(), 2U);
    EXPECT_EQ(std::count(told.begin(), told.end(), first), 1);
    EXPECT_EQ(std::count(told.begin(), told.end(), second), 1);
    constexpr UINT kFrame = SWP_FRAMECHANGED | SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE;
    for (const HWND window : {one.m_hWnd, two.m_hWnd, first, second}) {
        const auto is = [&](const auto& each) {
            return each.first == window && (each.second & kFrame) == kFrame;
        };
        EXPECT_TRUE(std::any_of(framed.begin(), framed.end(), is));
    }
}

TEST_F(PaneCalls, a_change_of_the_systems_settings_measures_the_caption_again) {
    Pane& pane = docked(L"one", AFX_IDW_DOCKBAR_LEFT);
    int measured = 0;
    const ui_test::SentMessages sent([&](const CWPSTRUCT& message) {
        measured += message.hwnd == pane.m_hWnd && message.message == WM_NCCALCSIZE;
    });
    pane.SendMessage(WM_SETTINGCHANGE, SPI_SETNONCLIENTMETRICS);
    EXPECT_GE(measured, 1);
}

TEST_F(PaneCalls, a_pane_is_made_like_any_window_too) {
    CDockablePane pane;
    CWnd& window = pane;
    ASSERT_TRUE(window.Create(nullptr, L"plain", WS_CHILD | WS_VISIBLE | CBRS_RIGHT, CRect(0, 0, 120, 80),
                              frame, kFirstId + 90));
    EXPECT_EQ(ui_test::text_of(pane.m_hWnd), L"plain");
    EXPECT_EQ(pane.GetDlgCtrlID(), static_cast<int>(kFirstId + 90));
    EXPECT_EQ(pane.GetControlBarStyle(), static_cast<DWORD>(AFX_DEFAULT_DOCKING_PANE_STYLE));
    EXPECT_GT(pane.GetCaptionHeight(), 0);
    pane.EnableDocking(CBRS_ALIGN_ANY);
    frame->DockPane(&pane);
    EXPECT_EQ(pane.GetCurrentAlignment(), static_cast<DWORD>(CBRS_ALIGN_RIGHT));
    EXPECT_EQ(at(pane).right, 700);
    Pane& other = make(L"other", CSize(100, 100), CBRS_LEFT);
    other.FloatPane(CRect(100, 100, 250, 250));
    EXPECT_TRUE(pane.CanAcceptMiniFrame(other.GetParentMiniFrame()));
    EXPECT_FALSE(pane.CanAcceptMiniFrame(nullptr));
    EXPECT_TRUE(pane.CanAcceptPane(&other));
    EXPECT_FALSE(pane.CanAcceptPane(&pane));
    EXPECT_FALSE(pane.CanAcceptPane(nullptr));
    CRect top(1, 1, 2, 2), bottom(1, 1, 2, 2);
    pane.GetTabArea(top, bottom);
    EXPECT_TRUE(top.IsRectEmpty() && bottom.IsRectEmpty());
}

TEST_F(PaneCalls, a_pane_without_a_size_takes_the_usual_room) {
    Pane& pane = make(L"small", CSize(0, 0));
    EXPECT_TRUE(pane.DockToFrameWindow(CBRS_ALIGN_LEFT));
    EXPECT_EQ(at(pane).Width(), 200);
    Pane& wide = make(L"wide", CSize(110, 70));
    EXPECT_TRUE(wide.DockToFrameWindow(CBRS_ALIGN_BOTTOM));
    EXPECT_EQ(at(wide).Height(), 70);
    Pane& given = make(L"given", CSize(110, 70));
    const CRect room(0, 0, 90, 300);
    EXPECT_TRUE(given.DockToFrameWindow(CBRS_ALIGN_RIGHT, &room));
    EXPECT_EQ(at(given).Width(), 90);
}

TEST_F(PaneCalls, recent_panes_join_a_frame_of_several) {
    Pane& one = docked(L"one", AFX_IDW_DOCKBAR_LEFT);
    one.FloatPane(CRect(100, 100, 350, 350));
    auto* const group = DYNAMIC_DOWNCAST(CMultiPaneFrameWnd, one.GetParentMiniFrame());
    ASSERT_NE(group, nullptr);
    EXPECT_EQ(group->GetPane(), &one);
    EXPECT_EQ(group->GetFirstVisiblePane(), &one);
    Pane& two = make(L"two");
    EXPECT_TRUE(group->AddRecentPane(&two));
    EXPECT_EQ(two.GetParent(), group);
    EXPECT_EQ(group->GetPaneCount(), 2);
    group->RemoveNonValidPanes();
    EXPECT_EQ(group->GetPaneCount(), 2) << "all are there";
    one.ShowPane(FALSE, FALSE, FALSE);
    two.ShowPane(FALSE, FALSE, FALSE);
    EXPECT_EQ(group->GetFirstVisiblePane(), nullptr);
}

TEST_F(PaneCalls, a_divider_that_loses_the_mouse_goes_back) {
    docked(L"one", AFX_IDW_DOCKBAR_LEFT);
    CPaneDivider& line = *dividers(*frame).front();
    const CRect before = at(line);
    press(line, on_screen(line).CenterPoint());
    move(on_screen(line).CenterPoint() + CSize(30, 0));
    EXPECT_EQ(at(line).left, before.left + 30);
    line.SendMessage(WM_CANCELMODE);
    EXPECT_EQ(at(line), before);
    EXPECT_EQ(::GetCapture(), nullptr);
    send_mouse(line.m_hWnd, WM_MOUSEMOVE, on_screen(line).CenterPoint() + CSize(50, 0), MK_LBUTTON);
    EXPECT_EQ(at(line), before) << "it isn't held any more";
    press(line, on_screen(line).CenterPoint());
    move(on_screen(line).CenterPoint() + CSize(20, 0));
    release(on_screen(line).CenterPoint());
    line.SendMessage(WM_CANCELMODE);
    EXPECT_EQ(at(line).left, before.left + 20) << "let go is let go";
    CPoint way(-20, 7);
    line.Move(way, TRUE);
    EXPECT_EQ(at(line), before);
}

TEST_F(PaneCalls, guides_have_the_colours_that_are_set) {
    CSmartDockingInfo& now = CDockingManager::GetSmartDockingParams();
    CSmartDockingInfo former, set;
    const auto copy = [](CSmartDockingInfo& to, const CSmartDockingInfo& from) {
        to.m_clrToneSrc = from.m_clrToneSrc, to.m_clrToneDest = from.m_clrToneDest;
        to.m_clrTransparent = from.m_clrTransparent;
        to.m_bUseThemeColorInShading = from.m_bUseThemeColorInShading, to.m_bCenter = from.m_bCenter;
    };
    copy(former, now);
    set.m_clrToneSrc = RGB(1, 2, 3);
    set.m_clrToneDest = RGB(4, 5, 6);
    set.m_clrTransparent = RGB(7, 8, 9);
    set.m_bUseThemeColorInShading = !former.m_bUseThemeColorInShading;
    set.m_bCenter = !former.m_bCenter;
    CDockingManager::SetSmartDockingParams(set);
    EXPECT_EQ(now.m_clrToneSrc, RGB(1, 2, 3));
    EXPECT_EQ(now.m_clrToneDest, RGB(4, 5, 6));
    EXPECT_EQ(now.m_clrTransparent, RGB(7, 8, 9));
    EXPECT_NE(now.m_bUseThemeColorInShading, former.m_bUseThemeColorInShading);
    EXPECT_NE(now.m_bCenter, former.m_bCenter);
    copy(now, former);
}

TEST_F(PaneCalls, panes_are_found_by_kind_and_by_what_is_ignored) {
    Pane& one = docked(L"one", AFX_IDW_DOCKBAR_LEFT);
    const CPoint middle = on_screen(one).CenterPoint(), beside(on_screen(one).left - 3, middle.y);
    EXPECT_EQ(manager().PaneFromPoint(middle, 0), &one);
    EXPECT_EQ(manager().PaneFromPoint(beside, 0), nullptr);
    EXPECT_EQ(manager().PaneFromPoint(beside, 5), &one);
    EXPECT_EQ(manager().PaneFromPoint(middle, 0, false, RUNTIME_CLASS(CDockablePane)), &one);
    EXPECT_EQ(manager().PaneFromPoint(middle, 0, false, RUNTIME_CLASS(CMFCToolBar)), nullptr);
    EXPECT_EQ(manager().PaneFromPoint(middle, 0, true, RUNTIME_CLASS(CBasePane)), nullptr)
        << "not just that class";
    EXPECT_EQ(manager().PaneFromPoint(middle, 0, false, RUNTIME_CLASS(CBasePane)), &one);
    EXPECT_EQ(manager().PaneFromPoint(middle, 0, false, nullptr, TRUE, &one), nullptr);
    one.FloatPane(CRect(300, 300, 500, 500));
    EXPECT_EQ(manager().FrameFromPoint(CPoint(400, 400), nullptr, TRUE), one.GetParentMiniFrame());
    EXPECT_EQ(manager().FrameFromPoint(CPoint(400, 400), one.GetParentMiniFrame(), FALSE), nullptr);
    EXPECT_EQ(manager().FrameFromPoint(CPoint(600, 400), nullptr, FALSE), nullptr);
    EXPECT_EQ(manager().FindPaneByID(static_cast<UINT>(one.GetDlgCtrlID()), TRUE), &one);
    EXPECT_EQ(manager().FindPaneByID(static_cast<UINT>(one.GetDlgCtrlID()), FALSE), nullptr) << "it floats";
    EXPECT_EQ(manager().FindPaneByID(9, TRUE), nullptr);
    EXPECT_FALSE(manager().AddMiniFrame(one.GetParentMiniFrame()));
    EXPECT_FALSE(manager().AddMiniFrame(nullptr));
    CPaneFrameWnd stranger;
    EXPECT_FALSE(manager().RemoveMiniFrame(&stranger));
    EXPECT_FALSE(manager().DockPaneLeftOf(&one, nullptr));
    Pane& two = docked(L"two", AFX_IDW_DOCKBAR_RIGHT);
    EXPECT_TRUE(manager().DockPaneLeftOf(&one, &two));
    EXPECT_EQ(at(one).bottom, at(two).bottom);
    EXPECT_LT(at(one).right, at(two).left);
}

TEST_F(PaneCalls, a_bar_that_leaves_gives_its_room_back_at_once_when_that_is_wanted) {
    Strip bars[2];
    for (UINT i = 0; i < 2; ++i) {
        bars[i].make(frame, 940 + i);
        manager().AddPane(&bars[i]);
    }
    frame->RecalcLayout();
    ASSERT_EQ(at(view), CRect(0, 60, 700, 500));
    manager().RemovePaneFromDockManager(&bars[0], TRUE, FALSE, FALSE, nullptr);
    EXPECT_EQ(at(view), CRect(0, 60, 700, 500)) << "later";
    manager().RemovePaneFromDockManager(&bars[1], TRUE, TRUE, FALSE, nullptr);
    EXPECT_EQ(at(view), CRect(0, 0, 700, 500));
}

TEST_F(PaneCalls, a_pane_of_a_frame_that_does_not_dock_docks_nowhere) {
    ui_test::ParentWindow plain;
    CDockablePane pane;
    ASSERT_TRUE(pane.Create(L"alone", &plain, CSize(50, 50), TRUE, 960, WS_CHILD | WS_VISIBLE | CBRS_LEFT));
    EXPECT_EQ(pane.GetDockingManager(), nullptr);
    EXPECT_FALSE(pane.DockToRecentPos());
    EXPECT_FALSE(pane.DockToFrameWindow(CBRS_ALIGN_LEFT));
    EXPECT_FALSE(pane.IsDocked());
    EXPECT_FALSE(pane.CanAutoHide());
    EXPECT_FALSE(pane.OnShowControlBarMenu(CPoint(0, 0)));
    pane.ShowPane(FALSE, FALSE, FALSE);
    EXPECT_FALSE(pane.IsWindowVisible());
    pane.ShowPane(TRUE, FALSE, FALSE);
    EXPECT_TRUE(pane.IsWindowVisible());
    pane.DestroyWindow();
}
