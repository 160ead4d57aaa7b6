// The strip of hidden panes: where its buttons stand, what each looks like, what is left when it goes.
#include <afxautohidebar.h>
#include <afxcontrolbars.h>
#include <afxvisualmanager.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "canvas.h"
#include "told_mouse.h"
#include "ui_test.h"

namespace {

constexpr COLORREF kGround = RGB(255, 0, 255), kFace = RGB(200, 200, 200), kText = RGB(0, 0, 0),
                   kBorder = RGB(140, 140, 140);  // three tenths of the text in the bar's colour

struct AutoHideLook : ::testing::Test {
    AutoHideLook() {
        CDockablePane::m_bDisableAnimation = TRUE;
        CMFCVisualManager::SetDefaultManager(nullptr);
        EXPECT_TRUE(frame->Create(nullptr, L"frame", WS_OVERLAPPEDWINDOW, CRect(50, 50, 850, 650)));
        frame->EnableDocking(CBRS_ALIGN_ANY);
        frame->EnableAutoHidePanes(CBRS_ALIGN_ANY);
        AfxGetApp()->m_pMainWnd = frame;
        frame->ShowWindow(SW_SHOW);
    }
    ~AutoHideLook() override {
        CDockablePane::m_bDisableAnimation = FALSE;
        AfxGetApp()->m_pMainWnd = nullptr;
        if (frame != nullptr) frame->DestroyWindow();
        ui_test::pump();
        afxGlobalData.UpdateSysColors();
    }
    /// A pane that hides at a side; its button.
    CMFCAutoHideButton& hidden(UINT side, const wchar_t* name) {
        panes.push_back(std::make_unique<CDockablePane>());
        CDockablePane& pane = *panes.back();
        EXPECT_TRUE(pane.Create(name, frame, CSize(150, 120), TRUE, 900 + static_cast<UINT>(panes.size()),
                                WS_CHILD | WS_VISIBLE | CBRS_LEFT | CBRS_FLOAT_MULTI));
        pane.EnableDocking(CBRS_ALIGN_ANY);
        frame->DockPane(&pane, side);
        EXPECT_TRUE(pane.ToggleAutoHide());
        return *strip_of(pane)->buttons().back();
    }
    CMFCAutoHideBar* strip_of(const CDockablePane& pane) const {
        for (CMFCAutoHideBar* const bar : CMFCAutoHideBar::of_frame(frame))
            for (const auto& button : bar->buttons())
                if (button->GetAutoHideWindow() == &pane) return bar;
        return nullptr;
    }
    /// A button as it draws itself in known colours, with the rectangle of what is written.
    struct Drawn {
        std::unique_ptr<ui_test::Canvas> canvas;
        CRect ink;
    };
    static Drawn drawn(CMFCAutoHideButton& button) {
        afxGlobalData.clrBarFace = kFace;
        afxGlobalData.clrBarText = afxGlobalData.clrWindowText = kText;
        const CRect place = button.GetRect();
        Drawn result{std::make_unique<ui_test::Canvas>(place.right + 3, place.bottom + 3, kGround),
                     CRect(9999, 9999, 0, 0)};
        button.OnDraw(&result.canvas->dc);
        for (int y = 0; y < place.bottom + 3; ++y)
            for (int x = 0; x < place.right + 3; ++x) {
                const COLORREF color = result.canvas->at(x, y);
                EXPECT_EQ(color == kGround, !place.PtInRect(CPoint(x, y))) << x << ',' << y;
                if (color == kGround || color == kFace || color == kBorder) continue;
                result.ink =
                    CRect(std::min<int>(result.ink.left, x), std::min<int>(result.ink.top, y),
                          std::max<int>(result.ink.right, x + 1), std::max<int>(result.ink.bottom, y + 1));
            }
        return result;
    }
    /// Whether just this part of a button has the colour of its edge.
    static void expect_edge(const Drawn& shown, const CRect& place, const CRect& edge) {
        for (int y = place.top; y < place.bottom; ++y)
            for (int x = place.left; x < place.right; ++x) {
                if (shown.ink.PtInRect(CPoint(x, y))) continue;
                ASSERT_EQ(shown.canvas->at(x, y), edge.PtInRect(CPoint(x, y)) ? kBorder : kFace)
                    << x << ',' << y;
            }
    }

    ui_test::ToldMouse mouse;
    CFrameWndEx* frame = new CFrameWndEx;
    std::vector<std::unique_ptr<CDockablePane>> panes;
};

}  // namespace

TEST_F(AutoHideLook, AButtonHasItsEdgeAtTheFramesSideAndItsNameInTheMiddle) {
    const struct {
        UINT side;
        DWORD alignment;
    } sides[] = {{AFX_IDW_DOCKBAR_LEFT, CBRS_ALIGN_LEFT},
                 {AFX_IDW_DOCKBAR_RIGHT, CBRS_ALIGN_RIGHT},
                 {AFX_IDW_DOCKBAR_TOP, CBRS_ALIGN_TOP},
                 {AFX_IDW_DOCKBAR_BOTTOM, CBRS_ALIGN_BOTTOM}};
    for (const auto& [side, alignment] : sides) {
        CMFCAutoHideButton& button = hidden(side, L"HHHH");
        EXPECT_EQ(button.GetAlignment(), alignment);
        const bool lies = alignment == CBRS_ALIGN_TOP || alignment == CBRS_ALIGN_BOTTOM;
        EXPECT_EQ(button.IsHorizontal() != FALSE, lies);
        const CRect place = button.GetRect();
        const CSize text = button.GetTextSize();
        const CSize size = lies ? CSize(text.cx + 12, afxGlobalData.GetTextHeight() + 10)
                                : CSize(afxGlobalData.GetTextHeight() + 10, text.cx + 12);
        EXPECT_EQ(place, CRect(lies ? CPoint(4, 0) : CPoint(0, 4), size)) << "the margin, then the button";
        const Drawn shown = drawn(button);
        CRect edge = place, inside = place;
        switch (alignment) {
            case CBRS_ALIGN_LEFT: edge.right = inside.left = place.left + 4; break;
            case CBRS_ALIGN_RIGHT: edge.left = inside.right = place.right - 4; break;
            case CBRS_ALIGN_TOP: edge.bottom = inside.top = place.top + 4; break;
            default: edge.top = inside.bottom = place.bottom - 4; break;
        }
        expect_edge(shown, place, edge);
        ASSERT_LT(shown.ink.left, shown.ink.right);
        EXPECT_TRUE(inside.PtInRect(shown.ink.TopLeft())) << "nothing is written on the edge";
        EXPECT_TRUE(inside.PtInRect(shown.ink.BottomRight() - CSize(1, 1)));
        EXPECT_NEAR(shown.ink.CenterPoint().x, inside.CenterPoint().x, 3);
        EXPECT_NEAR(shown.ink.CenterPoint().y, inside.CenterPoint().y, 3);
        EXPECT_EQ(shown.ink.Width() > shown.ink.Height(), lies) << "the name runs along the strip";
    }
}

TEST_F(AutoHideLook, GroupsOfNamesStandApart) {
    CMFCAutoHideButton& first = hidden(AFX_IDW_DOCKBAR_LEFT, L"first");
    CMFCAutoHideButton& second = hidden(AFX_IDW_DOCKBAR_LEFT, L"second");
    EXPECT_EQ(first.GetRect().top, 4);
    EXPECT_EQ(second.GetRect().top, first.GetRect().bottom + 14);
    EXPECT_EQ(second.GetRect().left, first.GetRect().left);
    CMFCAutoHideBar& strip = *strip_of(*panes[0]);
    EXPECT_EQ(strip.GetVisibleCount(), 2);
    EXPECT_EQ(strip.CalcFixedLayout(FALSE, FALSE), CSize(first.GetSize().cx, 32767));
    first.ShowButton(FALSE);
    EXPECT_EQ(strip.GetVisibleCount(), 1);
    strip.RecalcLayout();
    EXPECT_EQ(second.GetRect().top, 4) << "a hidden name takes no room";
    EXPECT_EQ(strip.button_at(second.GetRect().CenterPoint()), &second);
    EXPECT_EQ(strip.button_at(CPoint(1, 3)), nullptr);
    const int former = afxGlobalData.m_nDpi;
    afxGlobalData.m_nDpi = 192;
    strip.RecalcLayout();
    EXPECT_EQ(second.GetRect().top, 8);
    afxGlobalData.m_nDpi = former;
}

TEST_F(AutoHideLook, AButtonLightsUpUnderTheMouseAndKnowsWhetherItsPaneIsOut) {
    CMFCAutoHideButton& button = hidden(AFX_IDW_DOCKBAR_LEFT, L"first");
    CMFCAutoHideBar& strip = *strip_of(*panes[0]);
    const CPoint on = button.GetRect().CenterPoint();
    EXPECT_FALSE(button.IsHighlighted());
    strip.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(on.x, on.y));
    EXPECT_TRUE(button.IsHighlighted());
    ASSERT_FALSE(mouse.askedForLeaving.empty());
    EXPECT_EQ(mouse.askedForLeaving.back(), strip.m_hWnd);
    strip.SendMessage(WM_MOUSELEAVE);
    EXPECT_FALSE(button.IsHighlighted());
    EXPECT_FALSE(button.IsActive());
    button.ShowAttachedWindow(TRUE);
    EXPECT_TRUE(button.IsActive());
    EXPECT_EQ(strip.slid_out(), panes[0].get());
    button.ShowAttachedWindow(FALSE);
    EXPECT_FALSE(button.IsActive());
    button.UnSetAutoHideMode(nullptr);
    EXPECT_FALSE(panes[0]->IsAutoHideMode());
    EXPECT_TRUE(panes[0]->IsWindowVisible());
}

TEST_F(AutoHideLook, AStripThatIsDestroyedLetsItsPanesGo) {
    hidden(AFX_IDW_DOCKBAR_LEFT, L"first");
    CMFCAutoHideBar* const strip = strip_of(*panes[0]);
    strip->ShowAutoHideWindow(panes[0].get(), TRUE, FALSE);
    strip->DestroyWindow();
    EXPECT_FALSE(panes[0]->IsAutoHideMode());
    EXPECT_EQ(panes[0]->SetAutoHideMode(FALSE, CBRS_ALIGN_LEFT), nullptr);
    EXPECT_FALSE(panes[0]->CheckAutoHideCondition());
    panes[0]->Slide(TRUE, FALSE);
    EXPECT_TRUE(panes[0]->GetSafeHwnd() != nullptr);
}

TEST_F(AutoHideLook, HidingTwiceChangesNothing) {
    hidden(AFX_IDW_DOCKBAR_LEFT, L"first");
    CMFCAutoHideBar* const strip = strip_of(*panes[0]);
    EXPECT_EQ(panes[0]->SetAutoHideMode(TRUE, CBRS_ALIGN_LEFT), strip);
    EXPECT_EQ(strip->GetVisibleCount(), 1);
    EXPECT_TRUE(panes[0]->IsAutoHideMode());
    CDockablePane loose;
    EXPECT_EQ(loose.SetAutoHideMode(TRUE, CBRS_ALIGN_LEFT), nullptr) << "without a window";
    loose.Create(L"loose", frame, CSize(50, 50), TRUE, 990, WS_CHILD | WS_VISIBLE | CBRS_LEFT);
    EXPECT_EQ(loose.SetAutoHideMode(TRUE, CBRS_ALIGN_LEFT), nullptr) << "without a place";
    EXPECT_FALSE(loose.IsAutoHideMode());
    EXPECT_FALSE(strip->RemoveAutoHideWindow(&loose));
    EXPECT_FALSE(strip->ShowAutoHideWindow(&loose, TRUE, FALSE));
    EXPECT_EQ(strip->GetVisibleCount(), 1);
}
