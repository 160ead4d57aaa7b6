// How a set comes into being, also a second time, and who answers its messages.
#include "bar_fixture.h"
#include "fake_resolution.h"
#include "palette_fixture.h"

namespace {

using namespace docking_test;

struct PaletteSetCreation : PaletteSetTest {};

/// Tells when it was painted.
class PaintedPalette : public CKbUiPalette {
public:
    int paints = 0;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        paints += message == WM_PAINT;
        return CKbUiPalette::WindowProc(message, wParam, lParam);
    }
};

TEST_F(PaletteSetCreation, GoesThroughTheVirtualCreateWithItsOwnId) {
    struct Set : CKbUiPaletteSet {
        using CKbUiPaletteSet::Create;
        BOOL Create(LPCTSTR windowClass, LPCTSTR name, DWORD style, const RECT& rect, CWnd* parent, UINT id,
                    CCreateContext* context) override {
            EXPECT_EQ(windowClass, nullptr);
            EXPECT_STREQ(name, L"Tools");
            EXPECT_EQ(style, static_cast<DWORD>(WS_CHILD | CBRS_LEFT));
            expectRect(rect, 1, 2, 303, 404);
            EXPECT_EQ(id, 0u);
            EXPECT_EQ(context, nullptr);
            EXPECT_EQ(GetPaletteSetStyle(), 70u) << "stored before";
            parents.push_back(parent);
            return 17;
        }
        std::vector<CWnd*> parents;
    } made;
    CKbUiPaletteSet& base = made;
    EXPECT_EQ(base.Create(L"Tools", WS_CHILD | CBRS_LEFT, CRect(1, 2, 303, 404), frame, 70), 17);
    EXPECT_EQ(made.parents, std::vector<CWnd*>{frame});
}

TEST_F(PaletteSetCreation, ASetWhoseControlsCantBeMadeHasNoWindow) {
    struct Set : OpenSet {
        int CreateControlBar(CREATESTRUCT*) override { return answer; }
        int answer = 0;
    } made;
    const CRect rect(0, 0, 200, 300);
    for (const int answer : {0, -1}) {
        made.answer = answer;
        EXPECT_EQ(made.CKbUiPaletteSet::Create(L"Set", WS_CHILD | CBRS_LEFT, rect, frame, 0), 0) << answer;
        EXPECT_EQ(made.m_hWnd, nullptr) << answer;
        EXPECT_EQ(made.GetStrip().m_hWnd, nullptr) << answer;
    }
    made.answer = 1;
    EXPECT_NE(made.CKbUiPaletteSet::Create(L"Set", WS_CHILD | CBRS_LEFT, rect, frame, 0), 0);
    EXPECT_NE(made.GetStrip().m_hWnd, nullptr);
}

TEST_F(PaletteSetCreation, APaletteThatGetsItsWindowIsPaintedAtOnce) {
    make();
    auto* palette = new PaintedPalette;
    palette->SetName(L"A");
    ASSERT_EQ(set.AddPalette(palette), 0);
    EXPECT_EQ(palette->paints, 1);
}

TEST_F(PaletteSetCreation, ASetThatIsMadeAgainStartsAnew) {
    for (int round = 0; round < 3; ++round) {
        make();
        EXPECT_EQ(set.GetPaletteCount(), 0) << round;
        EXPECT_EQ(set.GetActivePaletteTabIndex(), 0) << round;
        fill({L"A", L"B", L"C"});
        EXPECT_EQ(set.SetActivePalette(set.GetPalette(2)), 1);
        const CRect tab = strip().GetTab(2)->m_rect;
        EXPECT_EQ(tab.right, 400) << round;
        EXPECT_EQ(tab.Width(), 101) << round;
        set.DestroyWindow();
    }
}

TEST_F(PaletteSetCreation, ASetThatIsMadeAgainGrowsOnce) {
    const ui_test::FakeResolution resolution(144);
    for (int round = 0; round < 3; ++round) {
        make();
        sizeTo(200, 600);
        fill({L"A", L"B"});
        set.SetActivePalette(set.GetPalette(0));
        EXPECT_EQ(strip().GetTab(1)->m_rect.Width(), 180) << round;
        set.DestroyWindow();
    }
}

TEST_F(PaletteSetCreation, APaletteThatIsThereTwiceIsDeletedOnce) {
    int alive = 0;
    make();
    auto* twice = new TestPalette(L"Twice", &alive);
    ASSERT_EQ(set.AddPalette(twice), 0);
    ASSERT_EQ(set.AddPalette(new TestPalette(L"Other", &alive)), 0);
    ASSERT_EQ(set.AddPalette(twice), 0);
    ASSERT_EQ(set.GetPaletteCount(), 3);
    const HWND window = twice->m_hWnd;
    set.DestroyWindow();
    EXPECT_EQ(alive, 0);
    EXPECT_FALSE(::IsWindow(window));
    EXPECT_EQ(set.GetPaletteCount(), 0);
}

/// A docked set, whose kept handlers would answer otherwise than its bar's do.
struct KeptHandlers : PaletteSetTest {
    void SetUp() override {
        make();
        set.EnableGripper(TRUE);
        set.EnableDocking(CBRS_ALIGN_ANY);
        set.SetPaneAlignment(CBRS_ALIGN_RIGHT);
        frame->DockPane(&set);
        ui_test::pump();
        ASSERT_TRUE(set.IsDocked());
    }
};

TEST_F(KeptHandlers, AHitTestIsTheBars) {
    CRect window;
    set.GetWindowRect(&window);
    EXPECT_EQ(set.SendMessage(WM_NCHITTEST, 0, MAKELPARAM(window.left - 50, window.top - 50)), HTNOWHERE);
}

TEST_F(KeptHandlers, TheCaptionIsTakenOffTheClientArea) {
    CRect window, client;
    set.GetWindowRect(&window);
    set.SetWindowPos(nullptr, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_FRAMECHANGED);
    set.GetClientRect(&client);
    ASSERT_GT(set.GetCaptionHeight(), 0);
    EXPECT_LE(client.Height(), window.Height() - set.GetCaptionHeight());
}

TEST_F(KeptHandlers, ThePressTheMoveAndTheReleaseAreTheBars) {
    KbUiLockPanel(true, false);
    frame->SetFocus();
    ::SetCursor(::LoadCursorW(nullptr, IDC_ARROW));
    sendMouse(set, WM_LBUTTONDOWN, captionPlace(set), MK_LBUTTON);
    EXPECT_TRUE(showsCursor(IDC_NO)) << "refused by the bar";
    ::SetCursor(::LoadCursorW(nullptr, IDC_ARROW));
    sendMouse(set, WM_MOUSEMOVE, CPoint(60, 60), MK_LBUTTON);
    EXPECT_TRUE(showsCursor(IDC_NO));
    sendMouse(set, WM_LBUTTONUP, CPoint(60, 60));
    EXPECT_TRUE(showsCursor(IDC_ARROW));
}

TEST_F(KeptHandlers, ADoubleClickOnTheCaptionIsTheBars) {
    sendMouse(set, WM_LBUTTONDBLCLK, captionPlace(set));
    ui_test::pump();
    EXPECT_FALSE(set.IsDocked());
}

}  // namespace
