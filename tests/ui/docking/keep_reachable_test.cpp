// Floating frames that can always be grabbed.
#include "layouts_fixture.h"

using namespace docking_test;

namespace {

struct KeepReachable : LayoutsTest {
    KeepReachable() { fillFrame(3); }

    static CRect workArea() {
        MONITORINFO monitor = {};
        monitor.cbSize = sizeof monitor;
        ::GetMonitorInfoW(::MonitorFromPoint(POINT{0, 0}, MONITOR_DEFAULTTOPRIMARY), &monitor);
        return monitor.rcWork;
    }
    CPaneFrameWnd& floated(std::size_t index, const CRect& at) {
        EXPECT_TRUE(bars[index]->FloatPane(at));
        return *bars[index]->GetParentMiniFrame();
    }
    /// A place beyond the lower right corner of the screen.
    static CRect beyond() { return CRect(workArea().BottomRight() + CSize(300, 200), CSize(200, 150)); }
    void expectInside(const CWnd& window, CSize size) {
        const CRect place = placeOf(window), area = workArea();
        EXPECT_EQ(textOf(CRect(CPoint(0, 0), place.Size())), textOf(CRect(CPoint(0, 0), size)));
        EXPECT_TRUE(place.left >= area.left && place.top >= area.top && place.right <= area.right &&
                    place.bottom <= area.bottom)
            << textOf(place);
    }
    void idle() { frame->SendMessage(WM_IDLEUPDATECMDUI, TRUE); }
};

}  // namespace

TEST_F(KeepReachable, IsOffUntilItIsAskedFor) {
    CPaneFrameWnd& lost = floated(0, beyond());
    EXPECT_FALSE(layouts.KeepsReachable());
    frame->SendMessage(WM_DISPLAYCHANGE, 32, MAKELPARAM(800, 600));
    idle();
    EXPECT_EQ(textOf(placeOf(lost)), textOf(beyond()));
    layouts.Detach();
    EXPECT_FALSE(layouts.SetKeepReachable(TRUE));
}

TEST_F(KeepReachable, BringsBackWhatIsLostAtOnceWithItsSize) {
    CPaneFrameWnd& lost = floated(0, beyond());
    ASSERT_TRUE(layouts.SetKeepReachable(TRUE));
    expectInside(lost, beyond().Size());
    EXPECT_EQ(placeOf(lost).BottomRight(), workArea().BottomRight()) << "no further than needed";
}

TEST_F(KeepReachable, BringsBackWhatTheScreensLoseAfterwards) {
    ASSERT_TRUE(layouts.SetKeepReachable(TRUE));
    for (const UINT message :
         std::initializer_list<UINT>{WM_DISPLAYCHANGE, WM_SETTINGCHANGE, WM_DPICHANGED, WM_IDLEUPDATECMDUI}) {
        CPaneFrameWnd& lost = floated(0, CRect(200, 200, 400, 350));
        lost.SetWindowPos(nullptr, beyond().left, beyond().top, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
        ASSERT_EQ(textOf(placeOf(lost)), textOf(beyond()));
        RECT suggested = placeOf(*frame);
        frame->SendMessage(message, 0, message == WM_DPICHANGED ? reinterpret_cast<LPARAM>(&suggested) : 0);
        expectInside(lost, beyond().Size());
    }
}

TEST_F(KeepReachable, LeavesAloneWhatCanBeGrabbed) {
    const CRect area = workArea();
    const CRect reachable(CPoint(area.right - 120, area.bottom - 60), CSize(200, 150));
    CPaneFrameWnd& frameAtEdge = floated(0, reachable);
    ASSERT_TRUE(layouts.SetKeepReachable(TRUE));
    EXPECT_EQ(textOf(placeOf(frameAtEdge)), textOf(reachable));
    // Too little of its caption is left.
    frameAtEdge.SetWindowPos(nullptr, area.right - 60, 100, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    idle();
    EXPECT_EQ(placeOf(frameAtEdge).right, area.right);
    // The caption lies above the screen.
    frameAtEdge.SetWindowPos(nullptr, 100, area.top - 30, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    idle();
    EXPECT_EQ(placeOf(frameAtEdge).top, area.top);
}

TEST_F(KeepReachable, AFrameLargerThanTheScreenBeginsAtItsCorner) {
    const CRect area = workArea();
    const CRect large(CPoint(area.right + 10, area.bottom + 10), area.Size() + CSize(200, 200));
    CPaneFrameWnd& lost = floated(0, large);
    const CSize size = placeOf(lost).Size();
    ASSERT_TRUE(layouts.SetKeepReachable(TRUE));
    EXPECT_EQ(placeOf(lost).TopLeft(), area.TopLeft());
    EXPECT_EQ(placeOf(lost).Size(), size);
}

TEST_F(KeepReachable, ALayoutFromElsewhereComesWithinReach) {
    floated(0, beyond());
    CPaneFrameWnd& group = floated(1, beyond() - CSize(5000, 4000));
    ASSERT_TRUE(bars[2]->DockToWindow(bars[1].get(), CBRS_ALIGN_LEFT));
    const CSize size = placeOf(group).Size();
    ASSERT_TRUE(layouts.Save(L"elsewhere"));
    for (const auto& bar : bars) frame->DockPane(bar.get());
    ASSERT_TRUE(layouts.SetKeepReachable(TRUE));
    ASSERT_TRUE(layouts.Apply(L"elsewhere"));
    expectInside(*bars[0]->GetParentMiniFrame(), beyond().Size());
    expectInside(*bars[1]->GetParentMiniFrame(), size);
    EXPECT_EQ(bars[2]->GetParentMiniFrame(), bars[1]->GetParentMiniFrame());
}

TEST_F(KeepReachable, DoesNotPullAFrameFromTheMouse) {
    CPaneFrameWnd& dragged = floated(0, CRect(200, 200, 400, 350));
    ASSERT_TRUE(layouts.SetKeepReachable(TRUE));
    dragged.SetWindowPos(nullptr, beyond().left, beyond().top, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    dragged.SetCapture();
    idle();
    EXPECT_EQ(placeOf(dragged).left, beyond().left);
    ::ReleaseCapture();
    idle();
    expectInside(dragged, beyond().Size());
}

TEST_F(KeepReachable, TheMainWindowWithItsDockedPanesComesBackToo) {
    const CSize size = placeOf(*frame).Size();
    ASSERT_TRUE(layouts.SetKeepReachable(TRUE));
    frame->SetWindowPos(nullptr, -3000, -3000, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    idle();
    EXPECT_EQ(placeOf(*frame).TopLeft(), workArea().TopLeft());
    EXPECT_EQ(placeOf(*frame).Size(), size);
    ASSERT_TRUE(layouts.SetKeepReachable(FALSE));
    frame->SetWindowPos(nullptr, -3000, -3000, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    idle();
    EXPECT_EQ(placeOf(*frame).left, -3000);
}

TEST_F(KeepReachable, DoesNotPullTheMainWindowFromTheMouse) {
    ASSERT_TRUE(layouts.SetKeepReachable(TRUE));
    frame->SetWindowPos(nullptr, -3000, -3000, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    frame->SetCapture();
    idle();
    EXPECT_EQ(placeOf(*frame).left, -3000);
    ::ReleaseCapture();
    idle();
    EXPECT_EQ(placeOf(*frame).TopLeft(), workArea().TopLeft());
}

TEST_F(KeepReachable, EndsWithTheObject) {
    auto other = std::make_unique<CKtUiPaletteLayouts>();
    layouts.Detach();
    ASSERT_TRUE(other->Attach(*frame));
    ASSERT_TRUE(other->SetKeepReachable(TRUE));
    other.reset();
    CPaneFrameWnd& lost = floated(0, beyond());
    idle();
    EXPECT_EQ(textOf(placeOf(lost)), textOf(beyond()));
}
