// Panes that hide at an edge: their inner edge, and what is kept of them.
#include <afxautohidebar.h>
#include <afxpanedivider.h>
#include <afxtabbedpane.h>

#include "docking_fixture.h"
#include "told_mouse.h"

using namespace docking;

namespace {

constexpr const wchar_t* kProfile = L"Software\\ktui hiding test\\";

class HidingPanes : public Docking {
protected:
    ui_test::ToldMouse mouse;

    HidingPanes() {
        CDockablePane::m_bDisableAnimation = TRUE;
        frame->EnableAutoHidePanes(CBRS_ALIGN_ANY);
    }
    ~HidingPanes() override {
        CDockablePane::m_bDisableAnimation = FALSE;
        ::RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\ktui hiding test");
    }
    Pane& slid_out(UINT side) {
        Pane& pane = docked(L"hiding", side);
        pane.ToggleAutoHide();
        pane.Slide(TRUE, FALSE);
        return pane;
    }
    CMFCAutoHideBar& strip(DWORD alignment) {
        for (CMFCAutoHideBar* bar : CMFCAutoHideBar::of_frame(frame))
            if (bar->GetCurrentAlignment() == alignment) return *bar;
        throw std::logic_error("no strip at this side");
    }
    CPaneDivider* edge() {
        for (CPaneDivider* divider : dividers(*frame))
            for (CMFCAutoHideBar* bar : CMFCAutoHideBar::of_frame(frame))
                if (bar->inner_edge() == divider) return divider;
        return nullptr;
    }
    /// Drags the inner edge; the button stays down.
    void drag(CSize way) {
        const CPoint from = on_screen(*edge()).CenterPoint();
        press(*edge(), from);
        move(from + way);
    }
    void drag_and_drop(CSize way) {
        const CPoint to = on_screen(*edge()).CenterPoint() + way;
        drag(way);
        release(to);
    }
};

}  // namespace

TEST_F(HidingPanes, have_an_edge_along_their_inner_side) {
    struct Case {
        UINT side;
        DWORD alignment;
    };
    for (const Case& each :
         {Case{AFX_IDW_DOCKBAR_LEFT, CBRS_ALIGN_LEFT}, Case{AFX_IDW_DOCKBAR_RIGHT, CBRS_ALIGN_RIGHT},
          Case{AFX_IDW_DOCKBAR_TOP, CBRS_ALIGN_TOP}, Case{AFX_IDW_DOCKBAR_BOTTOM, CBRS_ALIGN_BOTTOM}}) {
        Pane& pane = slid_out(each.side);
        ASSERT_NE(edge(), nullptr) << each.alignment;
        const CRect out = at(pane), line = at(*edge());
        CRect wanted = out;
        switch (each.alignment) {
            case CBRS_ALIGN_LEFT: wanted = CRect(out.right, out.top, out.right + 4, out.bottom); break;
            case CBRS_ALIGN_RIGHT: wanted = CRect(out.left - 4, out.top, out.left, out.bottom); break;
            case CBRS_ALIGN_TOP: wanted = CRect(out.left, out.bottom, out.right, out.bottom + 4); break;
            default: wanted = CRect(out.left, out.top - 4, out.right, out.top); break;
        }
        EXPECT_EQ(line, wanted) << each.alignment;
        EXPECT_EQ(edge()->IsHorizontal() != FALSE,
                  each.alignment == CBRS_ALIGN_TOP || each.alignment == CBRS_ALIGN_BOTTOM);
        EXPECT_EQ(::GetTopWindow(frame->m_hWnd), edge()->m_hWnd) << "nothing lies over it";
        const bool upright = edge()->IsHorizontal() == FALSE;
        drag_and_drop(upright ? CSize(20, 0) : CSize(0, 20));
        const bool first = each.alignment == CBRS_ALIGN_LEFT || each.alignment == CBRS_ALIGN_TOP;
        const int grown = first ? 20 : -20;
        EXPECT_EQ(at(pane).Size(), out.Size() + (upright ? CSize(grown, 0) : CSize(0, grown)));
        EXPECT_EQ(first ? at(pane).TopLeft() : at(pane).BottomRight(),
                  first ? out.TopLeft() : out.BottomRight());
        pane.Slide(FALSE, FALSE);
        EXPECT_EQ(edge(), nullptr) << "it goes with the pane";
        pane.DestroyWindow();
    }
}

TEST_F(HidingPanes, keep_the_size_that_they_were_dragged_to) {
    Pane& pane = slid_out(AFX_IDW_DOCKBAR_LEFT);
    const int before = at(pane).Width();
    drag_and_drop(CSize(70, 5));
    EXPECT_EQ(at(pane).Width(), before + 70);
    pane.Slide(FALSE, FALSE);
    pane.Slide(TRUE, FALSE);
    EXPECT_EQ(at(pane).Width(), before + 70);
    EXPECT_EQ(at(*edge()).left, at(pane).right);
    pane.ToggleAutoHide();
    EXPECT_EQ(at(pane).Width(), before) << "docked it has its own";
}

TEST_F(HidingPanes, are_dragged_no_further_than_the_limits) {
    Pane& pane = slid_out(AFX_IDW_DOCKBAR_LEFT);
    pane.SetMinSize(CSize(90, 50));
    drag(CSize(-400, 0));
    EXPECT_EQ(at(pane).Width(), 90);
    release(on_screen(*edge()).CenterPoint());
    drag_and_drop(CSize(5000, 0));
    EXPECT_EQ(at(pane).Width(), manager().GetOuterEdgeBounds().Width() * 80 / 100);
}

TEST_F(HidingPanes, go_back_with_escape) {
    Pane& pane = slid_out(AFX_IDW_DOCKBAR_RIGHT);
    const CRect before = at(pane);
    drag(CSize(-60, 0));
    EXPECT_EQ(at(pane).Width(), before.Width() + 60);
    MSG message = {};
    message.hwnd = edge()->m_hWnd;
    message.message = WM_KEYDOWN;
    message.wParam = VK_ESCAPE;
    EXPECT_TRUE(edge()->PreTranslateMessage(&message));
    EXPECT_EQ(at(pane), before);
    EXPECT_EQ(::GetCapture(), nullptr);
}

TEST_F(HidingPanes, stay_out_while_the_mouse_is_on_their_edge) {
    Pane& pane = slid_out(AFX_IDW_DOCKBAR_LEFT);
    CMFCAutoHideBar& left = strip(CBRS_ALIGN_LEFT);
    frame->SetFocus();
    mouse.place = on_screen(*edge()).CenterPoint();
    EXPECT_FALSE(left.check_condition());
    EXPECT_TRUE(pane.IsWindowVisible());
    mouse.place = ui_test::ToldMouse::kFarAway;
    EXPECT_TRUE(left.check_condition());
}

TEST_F(HidingPanes, go_with_their_side_when_the_frame_changes) {
    Pane& pane = slid_out(AFX_IDW_DOCKBAR_RIGHT);
    const int width = at(pane).Width();
    CRect rect = on_screen(*frame);
    frame->SetWindowPos(nullptr, 0, 0, rect.Width() - 100, rect.Height() - 80, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(at(pane).right, at(strip(CBRS_ALIGN_RIGHT)).left);
    EXPECT_EQ(at(pane).Width(), width);
    EXPECT_EQ(at(pane).Height(), manager().GetOuterEdgeBounds().Height());
    EXPECT_EQ(at(*edge()).right, at(pane).left);
}

TEST_F(HidingPanes, come_back_hidden_from_the_registry) {
    Pane& first = docked(L"first", AFX_IDW_DOCKBAR_LEFT);
    Pane& second = docked(L"second", AFX_IDW_DOCKBAR_LEFT, 110);
    Pane& low = docked(L"low", AFX_IDW_DOCKBAR_BOTTOM);
    const CRect places[] = {at(first), at(second), at(low)};
    second.ToggleAutoHide();
    first.ToggleAutoHide();
    low.ToggleAutoHide();
    second.Slide(TRUE, FALSE);
    drag_and_drop(CSize(45, 0));
    second.Slide(FALSE, FALSE);
    ASSERT_TRUE(manager().SaveState(kProfile));

    first.ToggleAutoHide();
    second.FloatPane(CRect(100, 100, 300, 300));
    low.ToggleAutoHide();
    low.ShowPane(FALSE, FALSE, FALSE);
    ASSERT_TRUE(manager().LoadState(kProfile));
    for (const Pane* pane : {&first, &second, &low}) {
        EXPECT_TRUE(pane->IsAutoHideMode());
        EXPECT_TRUE(pane->IsVisible()) << "only out of sight";
        EXPECT_FALSE(pane->IsWindowVisible());
    }
    CMFCAutoHideBar& left = strip(CBRS_ALIGN_LEFT);
    ASSERT_EQ(left.buttons().size(), 2u);
    EXPECT_EQ(left.buttons()[0]->GetAutoHideWindow(), &second) << "in the order in which they hid";
    EXPECT_EQ(left.buttons()[1]->GetAutoHideWindow(), &first);
    EXPECT_EQ(strip(CBRS_ALIGN_BOTTOM).GetFirstAHWindow(), &low);
    check_frame();
    second.Slide(TRUE, FALSE);
    EXPECT_EQ(at(second).Width(), places[1].Width() + 45);
    second.Slide(FALSE, FALSE);
    for (Pane* pane : {&first, &second, &low}) pane->ToggleAutoHide();
    EXPECT_EQ(at(first), places[0]) << "their places came back too";
    EXPECT_EQ(at(second), places[1]);
    EXPECT_EQ(at(low), places[2]);
}

TEST_F(HidingPanes, come_back_closed_when_their_name_was_hidden_too) {
    Pane& pane = docked(L"pane", AFX_IDW_DOCKBAR_LEFT);
    pane.m_bHideInAutoHideMode = TRUE;
    pane.ToggleAutoHide();
    pane.ShowPane(FALSE, FALSE, FALSE);
    ASSERT_TRUE(manager().SaveState(kProfile));
    pane.ShowPane(TRUE, FALSE, FALSE);
    ASSERT_TRUE(manager().LoadState(kProfile));
    EXPECT_FALSE(pane.IsVisible());
    EXPECT_FALSE(pane.IsWindowVisible());
    EXPECT_EQ(strip(CBRS_ALIGN_LEFT).GetVisibleCount(), 0);
}

TEST_F(HidingPanes, come_back_as_tabs) {
    Pane& one = docked(L"one", AFX_IDW_DOCKBAR_RIGHT);
    Pane& two = make(L"two");
    CDockablePane* around = nullptr;
    two.AttachToTabWnd(&one, DM_SHOW, TRUE, &around);
    around->ToggleAutoHide();
    ASSERT_EQ(strip(CBRS_ALIGN_RIGHT).buttons().size(), 2u);
    ASSERT_TRUE(manager().SaveState(kProfile));
    around->ToggleAutoHide();
    two.FloatPane(CRect(100, 100, 300, 300));
    ASSERT_TRUE(manager().LoadState(kProfile));
    ASSERT_NE(one.GetParentTabbedPane(), nullptr);
    EXPECT_EQ(one.GetParentTabbedPane(), two.GetParentTabbedPane());
    EXPECT_TRUE(one.GetParentTabbedPane()->IsAutoHideMode());
    ASSERT_EQ(strip(CBRS_ALIGN_RIGHT).buttons().size(), 2u);
    EXPECT_EQ(strip(CBRS_ALIGN_RIGHT).buttons()[0]->GetAutoHideWindow(), &one);
    one.GetParentTabbedPane()->ToggleAutoHide();
    EXPECT_TRUE(two.IsWindowVisible());
    check_frame();
}
