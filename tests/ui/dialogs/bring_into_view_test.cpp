#include <ktui/dialogs/bring_into_view.h>

#include "ui_test.h"

using namespace ui_test;

namespace {

/// The work area of the monitor.
CRect screen() {
    CRect area;
    ::SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0);
    return area;
}

CRect placeOf(const CWnd& window) {
    CRect place;
    window.GetWindowRect(&place);
    return place;
}

}  // namespace

TEST(BringIntoView, LeavesAWindowAloneThatIsWhollyOnTheScreen) {
    ParentWindow window;
    window.MoveWindow(CRect(CPoint(50, 60), CSize(300, 200)));
    EXPECT_FALSE(KtUiBringIntoView(window));
    EXPECT_EQ(placeOf(window), CRect(CPoint(50, 60), CSize(300, 200)));
}

TEST(BringIntoView, MovesAWindowBackFromEveryEdgeAndKeepsItsSize) {
    ParentWindow window;
    const CRect area = screen();
    const CSize size(300, 200);
    const CPoint last(area.right - 300, area.bottom - 200);
    for (const auto& [corner, expected] : {std::pair(CPoint(area.right - 1, area.bottom - 1), last),
                                           std::pair(CPoint(area.left - 299, area.top - 199), area.TopLeft()),
                                           std::pair(CPoint(area.right - 1, 100), CPoint(last.x, 100)),
                                           std::pair(CPoint(100, area.bottom - 1), CPoint(100, last.y))}) {
        window.MoveWindow(CRect(corner, size));
        EXPECT_TRUE(KtUiBringIntoView(window));
        EXPECT_EQ(placeOf(window), CRect(expected, size)) << "no farther than it takes";
    }
}

TEST(BringIntoView, ShowsTheCornerOfAWindowThatIsTooLarge) {
    ParentWindow window;
    const CRect area = screen();
    window.SetWindowPos(nullptr, area.left - 20, area.top - 30, area.Width() - 10, area.Height() - 10,
                        SWP_NOZORDER | SWP_NOACTIVATE);
    window.MoveWindow(CRect(CPoint(area.left + 40, area.top + 40), placeOf(window).Size()));
    KtUiBringIntoView(window);
    EXPECT_GE(placeOf(window).left, area.left);
    EXPECT_GE(placeOf(window).top, area.top);
    EXPECT_LE(placeOf(window).right, area.right);
}
