// Tab windows made and destroyed, panes joined, hidden and parted again, a thousand times each.
#include <afxautohidebar.h>
#include <afxcontrolbars.h>

#include "leak_growth.h"
#include "ui_test.h"

namespace {

using namespace leaks;

constexpr int kTabs = 10;

/// As many windows as a tab control with ten tabs has, by the system alone.
void open_bare_windows(HWND parent) {
    HWND const outer =
        ::CreateWindowExW(0, L"STATIC", nullptr, WS_CHILD, 0, 0, 400, 200, parent, nullptr, nullptr, nullptr);
    for (int i = 0; i < kTabs; ++i)
        ::CreateWindowExW(0, L"STATIC", nullptr, WS_CHILD, 0, 0, 10, 10, outer, nullptr, nullptr, nullptr);
    ::CreateWindowExW(0, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_ALWAYSTIP, 0, 0, 0, 0, outer, nullptr,
                      nullptr, nullptr);
    ::DestroyWindow(outer);
}

class Panes : public ::testing::Test {
protected:
    Panes() {
        CDockablePane::m_bDisableAnimation = TRUE;
        EXPECT_TRUE(frame->Create(nullptr, L"frame", WS_OVERLAPPEDWINDOW, CRect(50, 50, 850, 650)));
        frame->EnableDocking(CBRS_ALIGN_ANY);
        frame->EnableAutoHidePanes(CBRS_ALIGN_ANY);
        AfxGetApp()->m_pMainWnd = frame;
        for (CDockablePane& pane : panes) {
            EXPECT_TRUE(pane.Create(L"pane", frame, CSize(200, 150), TRUE, 900,
                                    WS_CHILD | WS_VISIBLE | CBRS_LEFT | CBRS_FLOAT_MULTI));
            pane.EnableDocking(CBRS_ALIGN_ANY);
            frame->DockPane(&pane);
        }
    }
    ~Panes() override {
        AfxGetApp()->m_pMainWnd = nullptr;
        frame->DestroyWindow();
    }
    CFrameWndEx* frame = new CFrameWndEx;
    CDockablePane panes[2];
};

}  // namespace

TEST(TabLeaks, AThousandTabWindowsLeaveNothing) {
    ui_test::ParentWindow parent;
    parent.ShowWindow(SW_HIDE);
    const size_t growth = heap_growth([&] { open_bare_windows(parent.m_hWnd); });
    expect_no_growth(
        [&] {
            CMFCTabCtrl tabs;
            ASSERT_TRUE(tabs.Create(CMFCTabCtrl::STYLE_3D_SCROLLED, CRect(0, 0, 400, 200), &parent, 1));
            CWnd pages[kTabs];
            for (CWnd& page : pages) {
                page.Create(nullptr, L"page", WS_CHILD, CRect(0, 0, 10, 10), &tabs, 5);
                tabs.AddTab(&page, L"a label");
            }
            tabs.SetActiveTab(kTabs - 1);
            tabs.RemoveTab(0);
            tabs.DestroyWindow();
        },
        growth);
}

TEST_F(Panes, JoinedAndPartedAThousandTimesLeaveNothing) {
    ui_test::ParentWindow parent;
    parent.ShowWindow(SW_HIDE);
    const size_t growth = heap_growth([&] { open_bare_windows(parent.m_hWnd); });
    expect_no_growth(
        [&] {
            CDockablePane* tabbed = nullptr;
            ASSERT_NE(panes[1].AttachToTabWnd(&panes[0], DM_SHOW, TRUE, &tabbed), nullptr);
            ASSERT_TRUE(static_cast<CBaseTabbedPane*>(tabbed)->RemovePane(&panes[1]));
            frame->DockPane(&panes[1]);
            ui_test::pump();
            ASSERT_FALSE(panes[0].IsTabbed());
        },
        growth);
}

TEST_F(Panes, HiddenAndPutBackAThousandTimesLeaveNothing) {
    expect_no_growth([&] {
        ASSERT_TRUE(panes[0].ToggleAutoHide());
        panes[0].Slide(TRUE, FALSE);
        panes[0].Slide(FALSE, FALSE);
        ASSERT_TRUE(panes[0].ToggleAutoHide());
        ui_test::pump();
    });
}
