// Panes docked in a frame: sides, rows, dividers, showing, captions.
#include "docking_fixture.h"
#include "replaced_import.h"

using namespace docking;

constexpr int kLine = 4;  // width of a divider

TEST_F(Docking, a_pane_stands_at_each_side_and_the_view_gets_the_rest) {
    const struct {
        UINT site;
        DWORD alignment;
        CRect pane, divider, view;
    } cases[] = {
        {AFX_IDW_DOCKBAR_LEFT, CBRS_ALIGN_LEFT, {0, 0, 150, 500}, {150, 0, 154, 500}, {154, 0, 700, 500}},
        {AFX_IDW_DOCKBAR_RIGHT, CBRS_ALIGN_RIGHT, {550, 0, 700, 500}, {546, 0, 550, 500}, {0, 0, 546, 500}},
        {AFX_IDW_DOCKBAR_TOP, CBRS_ALIGN_TOP, {0, 0, 700, 150}, {0, 150, 700, 154}, {0, 154, 700, 500}},
        {AFX_IDW_DOCKBAR_BOTTOM, CBRS_ALIGN_BOTTOM, {0, 350, 700, 500}, {0, 346, 700, 350}, {0, 0, 700, 346}},
    };
    Pane& pane = make(L"one", CSize(150, 150));
    for (const auto& c : cases) {
        frame->DockPane(&pane, c.site);
        EXPECT_EQ(at(pane), c.pane);
        EXPECT_EQ(at(view), c.view);
        ASSERT_EQ(dividers(*frame).size(), 1u);
        EXPECT_EQ(at(*dividers(*frame)[0]), c.divider);
        EXPECT_TRUE(dividers(*frame)[0]->IsDefault());
        EXPECT_EQ(dividers(*frame)[0]->IsHorizontal() != FALSE, c.pane.Width() > c.pane.Height());
        EXPECT_EQ(pane.GetCurrentAlignment(), c.alignment);
        EXPECT_TRUE(pane.IsDocked());
        EXPECT_FALSE(pane.IsFloating());
        EXPECT_EQ(manager().GetClientAreaBounds(), c.view);
    }
}

TEST_F(Docking, a_pane_docks_by_its_own_alignment_by_an_alignment_and_by_a_rectangle) {
    Pane& pane = make(L"one", CSize(150, 120), CBRS_RIGHT);
    frame->DockPane(&pane);
    EXPECT_EQ(at(pane), CRect(550, 0, 700, 500));
    frame->DockPane(&pane, CBRS_ALIGN_BOTTOM);
    EXPECT_EQ(at(pane), CRect(0, 380, 700, 500));
    const CRect wanted(10, 10, 110, 90);
    frame->DockPane(&pane, AFX_IDW_DOCKBAR_LEFT, &wanted);
    EXPECT_EQ(at(pane).Width(), 100);
}

TEST_F(Docking, panes_docked_later_stand_further_inside) {
    Pane& left = docked(L"left", AFX_IDW_DOCKBAR_LEFT);
    Pane& bottom = docked(L"bottom", AFX_IDW_DOCKBAR_BOTTOM, 100);
    EXPECT_EQ(at(left), CRect(0, 0, 150, 500));
    EXPECT_EQ(at(bottom), CRect(154, 400, 700, 500));
    Pane& outer = make(L"outer", CSize(80, 60));
    EXPECT_TRUE(outer.DockToFrameWindow(CBRS_ALIGN_TOP, nullptr, DT_DOCK_LAST, nullptr, -1, TRUE));
    EXPECT_EQ(at(outer), CRect(0, 0, 700, 60));
    EXPECT_EQ(at(left), CRect(0, 64, 150, 500));
    check_frame();
}

TEST_F(Docking, a_pane_docks_at_each_side_of_another) {
    Pane& first = docked(L"first", AFX_IDW_DOCKBAR_LEFT, 204);
    Pane& second = make(L"second", CSize(80, 90));
    const struct {
        DWORD side;
        CRect added, kept;
    } cases[] = {
        {CBRS_ALIGN_LEFT, {0, 0, 78, 500}, {82, 0, 204, 500}},
        {CBRS_ALIGN_RIGHT, {126, 0, 204, 500}, {0, 0, 122, 500}},
        {CBRS_ALIGN_TOP, {0, 0, 204, 89}, {0, 93, 204, 500}},
        {CBRS_ALIGN_BOTTOM, {0, 411, 204, 500}, {0, 0, 204, 407}},
    };
    for (const auto& c : cases) {
        ASSERT_TRUE(second.DockToWindow(&first, c.side));
        EXPECT_NEAR(at(second).Width(), c.added.Width(), 1) << c.side;
        EXPECT_NEAR(at(second).Height(), c.added.Height(), 1) << c.side;
        EXPECT_EQ(at(second).left == 0, c.added.left == 0);
        EXPECT_EQ(at(second).top == 0, c.added.top == 0);
        EXPECT_NEAR(at(first).Width(), c.kept.Width(), 1);
        EXPECT_NEAR(at(first).Height(), c.kept.Height(), 1);
        EXPECT_EQ(dividers(*frame).size(), 2u);
        EXPECT_EQ(second.GetCurrentAlignment(), static_cast<DWORD>(CBRS_ALIGN_LEFT));
        check_frame();
    }
    EXPECT_EQ(second.docks, 4);
    EXPECT_FALSE(second.DockToWindow(nullptr, CBRS_ALIGN_LEFT));
    EXPECT_FALSE(second.DockToWindow(&second, CBRS_ALIGN_LEFT));
    EXPECT_TRUE(frame->DockPaneLeftOf(&second, &first));
    EXPECT_LT(at(second).left, at(first).left);
}

TEST_F(Docking, a_pane_can_refuse_to_be_docked_to) {
    class Shy : public Pane {
    public:
        BOOL CanAcceptPane(const CBasePane*) const override { return FALSE; }
    } shy;
    ASSERT_TRUE(shy.Create(L"shy", frame, CSize(100, 100), TRUE, 90, WS_CHILD | WS_VISIBLE | CBRS_LEFT));
    frame->DockPane(&shy);
    Pane& other = make(L"other");
    EXPECT_FALSE(other.DockToWindow(&shy, CBRS_ALIGN_TOP));
    EXPECT_FALSE(other.IsDocked());
}

TEST_F(Docking, a_frame_that_shrinks_and_grows_gives_panes_their_extent_back) {
    Pane& left = docked(L"left", AFX_IDW_DOCKBAR_LEFT, 200);
    Pane& right = docked(L"right", AFX_IDW_DOCKBAR_RIGHT, 200);
    left.SetMinSize(CSize(90, 50));
    right.SetMinSize(CSize(60, 50));
    const CRect full = on_screen(*frame);
    frame->SetWindowPos(nullptr, 0, 0, full.Width() - 400, full.Height() - 100, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(at(left).Width() + at(right).Width() + 2 * kLine + at(view).Width(), 300);
    EXPECT_GE(at(left).Width(), 90);
    EXPECT_GE(at(right).Width(), 60);
    check_frame();
    frame->SetWindowPos(nullptr, 0, 0, full.Width(), full.Height(), SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(at(left), CRect(0, 0, 200, 500));
    EXPECT_EQ(at(right), CRect(500, 0, 700, 500));
}

TEST_F(Docking, a_divider_follows_the_mouse_as_far_as_least_sizes_allow) {
    Pane& pane = docked(L"one", AFX_IDW_DOCKBAR_LEFT, 150);
    pane.SetMinSize(CSize(60, 10));
    CPaneDivider& divider = *dividers(*frame)[0];
    const CPoint start = on_screen(divider).CenterPoint();
    press(divider, start);
    EXPECT_EQ(::GetCapture(), divider.m_hWnd);
    move(start + CSize(33, 5));
    EXPECT_EQ(at(pane).Width(), 183);
    move(start + CSize(-130, 0));
    EXPECT_EQ(at(pane).Width(), 60);
    // The mouse comes back to where it holds the divider before that moves again.
    move(start + CSize(-100, 0));
    EXPECT_EQ(at(pane).Width(), 60);
    move(start + CSize(-80, 0));
    EXPECT_EQ(at(pane).Width(), 70);
    release(start + CSize(-80, 0));
    EXPECT_EQ(::GetCapture(), nullptr);
    EXPECT_EQ(at(pane).Width(), 70);
    check_frame();
}

TEST_F(Docking, a_divider_moves_by_what_lies_across_it) {
    Pane& left = docked(L"left", AFX_IDW_DOCKBAR_LEFT, 150);
    Pane& below = docked(L"below", AFX_IDW_DOCKBAR_BOTTOM, 120);
    left.SetMinSize(CSize(60, 10));
    below.SetMinSize(CSize(10, 50));
    for (CPaneDivider* divider : dividers(*frame)) {
        CPoint offset(9, 7);
        divider->Move(offset);
    }
    EXPECT_EQ(at(left).Width(), 159);
    EXPECT_EQ(at(below).Height(), 113);
    for (CPaneDivider* divider : dividers(*frame)) {
        CPoint offset(-5000, 5000);
        divider->Move(offset);
    }
    EXPECT_EQ(at(left).Width(), 60);
    EXPECT_EQ(at(below).Height(), 50);
    check_frame();
}

TEST_F(Docking, escape_puts_a_divider_back) {
    Pane& pane = docked(L"one", AFX_IDW_DOCKBAR_BOTTOM, 150);
    CPaneDivider& divider = *dividers(*frame)[0];
    const CPoint start = on_screen(divider).CenterPoint();
    press(divider, start);
    move(start + CSize(0, -47));
    EXPECT_EQ(at(pane).Height(), 197);
    MSG escape = {};
    escape.hwnd = divider.m_hWnd;
    escape.message = WM_KEYDOWN;
    escape.wParam = VK_ESCAPE;
    EXPECT_TRUE(CWnd::WalkPreTranslateTree(frame->m_hWnd, &escape));
    EXPECT_EQ(at(pane).Height(), 150);
    EXPECT_EQ(::GetCapture(), nullptr);
}

TEST_F(Docking, a_divider_between_panes_moves_both) {
    Pane& upper = docked(L"upper", AFX_IDW_DOCKBAR_LEFT);
    Pane& lower = make(L"lower");
    lower.DockToWindow(&upper, CBRS_ALIGN_BOTTOM);
    CPaneDivider* between = nullptr;
    for (CPaneDivider* divider : dividers(*frame))
        if (divider->IsHorizontal()) between = divider;
    ASSERT_NE(between, nullptr);
    EXPECT_FALSE(between->IsDefault());
    const int before = at(upper).Height();
    const CPoint start = on_screen(*between).CenterPoint();
    press(*between, start);
    move(start + CSize(0, -25));
    release(start + CSize(0, -25));
    EXPECT_EQ(at(upper).Height(), before - 25);
    EXPECT_EQ(at(lower).top, at(upper).bottom + kLine);
    check_frame();
}

TEST_F(Docking, hiding_gives_the_room_to_others_and_showing_takes_it_back) {
    Pane& left = docked(L"left", AFX_IDW_DOCKBAR_LEFT);
    Pane& lower = make(L"lower");
    lower.DockToWindow(&left, CBRS_ALIGN_BOTTOM);
    const CRect place = at(left), other = at(lower);
    const CRect onScreen = on_screen(left);
    left.ShowPane(FALSE, FALSE, FALSE);
    EXPECT_EQ(left.m_recentDockInfo.GetRecentDockedRect(TRUE), onScreen);
    EXPECT_FALSE(left.IsVisible());
    EXPECT_FALSE(left.IsPaneVisible());
    EXPECT_TRUE(left.IsDocked());
    EXPECT_EQ(at(lower), CRect(0, 0, 150, 500));
    lower.ShowPane(FALSE, FALSE, FALSE);
    EXPECT_EQ(at(view), CRect(0, 0, 700, 500));
    EXPECT_TRUE(dividers(*frame).empty());
    frame->ShowPane(&lower, TRUE, FALSE, FALSE);
    frame->ShowPane(&left, TRUE, FALSE, TRUE);
    EXPECT_EQ(at(left), place);
    EXPECT_EQ(at(lower), other);
    EXPECT_TRUE(left.IsVisible());
    EXPECT_EQ(::GetFocus(), left.m_hWnd);
    check_frame();
}

TEST_F(Docking, a_delayed_show_waits_for_the_next_idle_step) {
    Pane& pane = docked(L"one", AFX_IDW_DOCKBAR_LEFT);
    pane.ShowPane(FALSE, TRUE, FALSE);
    EXPECT_FALSE(pane.IsVisible());
    EXPECT_TRUE(pane.IsPaneVisible());
    idle();
    EXPECT_FALSE(pane.IsPaneVisible());
    EXPECT_EQ(at(view), CRect(0, 0, 700, 500));
}

TEST_F(Docking, a_pane_created_hidden_docks_hidden) {
    Pane pane;
    ASSERT_TRUE(pane.Create(L"hidden", frame, CSize(100, 100), TRUE, 91, WS_CHILD | CBRS_LEFT));
    frame->DockPane(&pane);
    EXPECT_TRUE(pane.IsDocked());
    EXPECT_EQ(at(view), CRect(0, 0, 700, 500));
    pane.ShowPane(TRUE, FALSE, FALSE);
    EXPECT_EQ(at(pane), CRect(0, 0, 100, 500));
}

TEST_F(Docking, destroying_a_pane_gives_its_room_back) {
    {
        Pane pane;
        ASSERT_TRUE(
            pane.Create(L"short", frame, CSize(100, 100), TRUE, 92, WS_CHILD | WS_VISIBLE | CBRS_LEFT));
        frame->DockPane(&pane);
        EXPECT_EQ(frame->GetPane(92), &pane);
    }
    EXPECT_EQ(frame->GetPane(92), nullptr);
    idle();
    EXPECT_EQ(at(view), CRect(0, 0, 700, 500));
    EXPECT_TRUE(dividers(*frame).empty());
}

TEST_F(Docking, undocking_leaves_a_hidden_pane_without_a_place) {
    Pane& pane = docked(L"one", AFX_IDW_DOCKBAR_LEFT);
    pane.UndockPane();
    EXPECT_FALSE(pane.IsDocked());
    EXPECT_FALSE(pane.IsPaneVisible());
    EXPECT_EQ(at(view), CRect(0, 0, 700, 500));
    EXPECT_FALSE(pane.DockToRecentPos());
}

TEST_F(Docking, a_pane_takes_the_place_of_another) {
    Pane& first = docked(L"first", AFX_IDW_DOCKBAR_RIGHT);
    Pane& second = make(L"second");
    const CRect place = at(first);
    EXPECT_TRUE(first.ReplacePane(&second, DM_SHOW));
    EXPECT_EQ(at(second), place);
    EXPECT_EQ(second.GetCurrentAlignment(), static_cast<DWORD>(CBRS_ALIGN_RIGHT));
    EXPECT_FALSE(first.IsPaneVisible());
    EXPECT_FALSE(first.IsDocked());
    EXPECT_FALSE(first.ReplacePane(&second, DM_SHOW));
}

TEST_F(Docking, the_manager_finds_panes_by_id_and_by_point) {
    Pane& left = docked(L"left", AFX_IDW_DOCKBAR_LEFT);
    Pane& right = docked(L"right", AFX_IDW_DOCKBAR_RIGHT);
    EXPECT_EQ(frame->GetPane(kFirstId + 2), &right);
    EXPECT_EQ(frame->GetPane(1), nullptr);
    EXPECT_EQ(frame->PaneFromPoint(on_screen(left).CenterPoint(), 0, false, nullptr), &left);
    EXPECT_EQ(frame->PaneFromPoint(on_screen(view).CenterPoint(), 0, false, nullptr), nullptr);
    CObList list;
    manager().GetPaneList(list);
    EXPECT_EQ(list.GetCount(), 2);
    EXPECT_EQ(list.GetHead(), &left);
}

TEST_F(Docking, a_fixed_pane_stands_at_its_edge_outside_the_docked_ones) {
    class Strip : public CBasePane {
    public:
        CSize CalcFixedLayout(BOOL, BOOL horizontal) override {
            return horizontal ? CSize(32767, 23) : CSize(31, 32767);
        }
    } top, left;
    const CRect none(0, 0, 0, 0);
    ASSERT_TRUE(top.CreateEx(0, nullptr, L"top", WS_CHILD | WS_VISIBLE | CBRS_ALIGN_TOP, none, frame, 95));
    ASSERT_TRUE(left.CreateEx(0, nullptr, L"left", WS_CHILD | WS_VISIBLE | CBRS_ALIGN_LEFT, none, frame, 96));
    Pane& pane = docked(L"one", AFX_IDW_DOCKBAR_TOP, 100);
    EXPECT_TRUE(frame->AddPane(&top));
    EXPECT_FALSE(frame->AddPane(&top));
    EXPECT_TRUE(frame->AddPane(&left, FALSE));
    frame->RecalcLayout();
    EXPECT_EQ(at(left), CRect(0, 0, 31, 500));
    EXPECT_EQ(at(top), CRect(31, 0, 700, 23));
    EXPECT_EQ(at(pane), CRect(31, 23, 700, 123));
    check_frame();
    left.ShowPane(FALSE, FALSE, FALSE);
    EXPECT_EQ(at(top), CRect(0, 0, 700, 23));
}

namespace {
int batches = 0, singleMoves = 0;
BOOL WINAPI count_batch(HDWP batch) {
    ++batches;
    return ::EndDeferWindowPos(batch);
}
BOOL WINAPI count_move(HWND window, HWND after, int x, int y, int cx, int cy, UINT flags) {
    ++singleMoves;
    return ::SetWindowPos(window, after, x, y, cx, cy, flags);
}
}  // namespace

TEST_F(Docking, a_step_of_sizing_and_of_a_divider_is_one_batch) {
    Pane& left = docked(L"left", AFX_IDW_DOCKBAR_LEFT);
    docked(L"right", AFX_IDW_DOCKBAR_RIGHT);
    Pane& lower = make(L"lower");
    lower.DockToWindow(&left, CBRS_ALIGN_BOTTOM);
    const CRect full = on_screen(*frame);
    CPaneDivider& divider = *dividers(*frame)[0];
    const HMODULE library = ::GetModuleHandleW(L"kmfc.dll");
    const ui_test::ReplacedImport ends(library, "EndDeferWindowPos", &count_batch);
    const ui_test::ReplacedImport moves(library, "SetWindowPos", &count_move);
    ASSERT_TRUE(ends.isThere() && moves.isThere());
    batches = singleMoves = 0;
    ::SetWindowPos(frame->m_hWnd, nullptr, 0, 0, full.Width() - 50, full.Height() - 40,
                   SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(batches, 1);
    EXPECT_EQ(singleMoves, 0);
    const CPoint start = on_screen(divider).CenterPoint();
    press(divider, start);
    batches = 0;
    move(start + CSize(10, 10));
    EXPECT_EQ(batches, 1);
    EXPECT_EQ(singleMoves, 0);
    release(start);
    check_frame();
}

TEST_F(Docking, commands_of_controls_in_a_pane_go_on_to_the_frame) {
    class Listening : public Frame {
    public:
        int heard = 0;

    protected:
        BOOL OnCommand(WPARAM wParam, LPARAM lParam) override {
            if (LOWORD(wParam) == 777) ++heard;
            return Frame::OnCommand(wParam, lParam);
        }
    };
    auto* listening = new Listening;
    listening->Create(nullptr, L"listening", WS_OVERLAPPEDWINDOW, CRect(0, 0, 300, 300));
    Pane pane;
    ASSERT_TRUE(pane.Create(L"one", listening, CSize(100, 100), TRUE, 97, WS_CHILD | WS_VISIBLE | CBRS_LEFT));
    pane.SendMessage(WM_COMMAND, 777, reinterpret_cast<LPARAM>(pane.m_hWnd));
    EXPECT_EQ(listening->heard, 1);
    listening->DestroyWindow();
}

TEST_F(Docking, a_pane_outlives_its_frame) {
    auto* other = new Frame;
    other->Create(nullptr, L"other", WS_OVERLAPPEDWINDOW, CRect(0, 0, 300, 300));
    Pane pane, floating;
    pane.Create(L"one", other, CSize(100, 100), TRUE, 98, WS_CHILD | WS_VISIBLE | CBRS_LEFT);
    floating.Create(L"two", other, CSize(100, 100), TRUE, 99, WS_CHILD | WS_VISIBLE | CBRS_LEFT);
    other->DockPane(&pane);
    EXPECT_TRUE(floating.FloatPane(CRect(10, 10, 210, 210)));
    other->DestroyWindow();
    EXPECT_EQ(pane.m_hWnd, nullptr);
    EXPECT_EQ(floating.m_hWnd, nullptr);
    EXPECT_EQ(pane.GetDockingManager(), nullptr);
    EXPECT_FALSE(pane.IsDocked());
}

TEST(DockingFrames, a_frame_of_several_documents_docks_too) {
    auto* frame = new CMDIFrameWndEx;
    ASSERT_TRUE(frame->Create(nullptr, L"mdi", WS_OVERLAPPEDWINDOW, CRect(20, 20, 620, 420)));
    CRect client;
    frame->GetClientRect(&client);
    {
        Pane pane;
        pane.Create(L"one", frame, CSize(120, 100), TRUE, 98, WS_CHILD | WS_VISIBLE | CBRS_LEFT);
        frame->DockPane(&pane);
        CRect inside;
        ::GetWindowRect(frame->m_hWndMDIClient, &inside);
        frame->ScreenToClient(&inside);
        EXPECT_EQ(inside, CRect(124, 0, client.right, client.bottom));
        EXPECT_EQ(frame->GetPane(98), &pane);
    }
    frame->DestroyWindow();
}
