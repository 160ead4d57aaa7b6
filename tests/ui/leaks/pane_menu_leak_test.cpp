// The menu of a pane, moves by arrow keys and the strip as a tab stop, a thousand times.
#include <ktui/docking/kbui_palette.h>
#include <ktui/docking/kbui_palette_set.h>
#include <ktui/docking/pane_keys.h>
#include <ktui/docking/xt_tool_tab_ctrl.h>

#include <afxcontrolbars.h>

#include "leak_growth.h"
#include "replaced_import.h"
#include "test_host.h"

namespace {

using namespace leaks;

constexpr int kSizeLine = 1;  // the second line of the menu
int menusShown = 0;

/// Chooses Size, without showing anything.
int WINAPI chooseSize(HMENU menu, UINT, int, int, int, HWND, const RECT*) {
    ++menusShown;
    return static_cast<int>(::GetMenuItemID(menu, kSizeLine));
}

struct PaneKeyLeaks : ::testing::Test {
    ui_test::TestHost host;
    CMDIFrameWndEx* frame = new CMDIFrameWndEx;
    CKbUiPaletteSet set{2};
    ui_test::ReplacedImport menus{::GetModuleHandleW(L"ktui.dll"), "TrackPopupMenu", &chooseSize};

    PaneKeyLeaks() {
        EXPECT_TRUE(menus.isThere());
        EXPECT_TRUE(
            frame->Create(nullptr, L"frame", WS_OVERLAPPEDWINDOW | WS_VISIBLE, CRect(0, 0, 800, 600)));
        frame->EnableDocking(CBRS_ALIGN_ANY);
        host.frame = frame;
        AfxGetApp()->m_pMainWnd = frame;
        EXPECT_TRUE(set.Create(L"Set", WS_CHILD | WS_VISIBLE | CBRS_RIGHT | CBRS_FLOAT_MULTI,
                               CRect(0, 0, 200, 400), frame, 0));
        for (const wchar_t* name : {L"One", L"Two", L"Three"}) {
            auto* palette = new CKbUiPalette;
            palette->SetName(name);
            EXPECT_EQ(set.AddPalette(palette), 0);
        }
        set.SetActivePalette(0);
        set.EnableDocking(CBRS_ALIGN_ANY);
        frame->DockPane(&set);
        EXPECT_TRUE(KtUiEnablePaneKeys(*frame, TRUE));
        ui_test::pump();
    }
    ~PaneKeyLeaks() override {
        AfxGetApp()->m_pMainWnd = nullptr;
        set.DestroyWindow();
        frame->DestroyWindow();
    }
    static void key(WPARAM key, UINT kind = WM_KEYDOWN) {
        ::PostMessageW(::GetFocus(), kind, key, 1);
        ui_test::pump();
    }
};

}  // namespace

TEST_F(PaneKeyLeaks, AThousandSizesLeaveNothing) {
    set.SetFocus();
    CRect before;
    set.GetWindowRect(&before);
    int sized = 0;
    expect_no_growth(
        [&] {
            key(VK_OEM_MINUS, WM_SYSKEYDOWN);
            key(VK_LEFT);
            CRect now;
            set.GetWindowRect(&now);
            sized += now.Width() == before.Width() + 8;
            key(VK_ESCAPE);
        },
        0, kShownGdiSlack);
    EXPECT_EQ(menusShown, kTimes + kWarmUp);
    EXPECT_EQ(sized, kTimes + kWarmUp);
}

TEST_F(PaneKeyLeaks, AThousandVisitsOfTheStripLeaveNothing) {
    int visits = 0, turned = 0;
    set.SetFocus();
    expect_no_growth(
        [&] {
            key(VK_TAB);
            visits += ::GetFocus() == set.GetStrip().m_hWnd;
            const int index = set.GetActivePaletteTabIndex();
            key(index == 0 ? VK_UP : VK_DOWN);
            turned += set.GetActivePaletteTabIndex() != index;
            key(VK_RETURN);
        },
        0, kShownGdiSlack);
    EXPECT_EQ(visits, kTimes + kWarmUp);
    EXPECT_EQ(turned, kTimes + kWarmUp);
}
