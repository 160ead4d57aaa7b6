// A draughtsman works with the toolbars: a click does what the menu does, they move to where he wants them,
// and stand there the next time.
#include <windows.h>
#include <commctrl.h>

#include "journey_fixture.h"

using namespace journey;

namespace {

constexpr int kTopSite = 0xE81B, kLeftSite = 0xE81C;
// Client pixels of a bar at 96 dots an inch: the gripper, and the middle of the first button behind it.
constexpr POINT kGripper = {4, 10};
constexpr int kFirstButton = 1 + 8 + 11, kButton = 23, kGap = 7;

class ToolBarsJourney : public Journey {
protected:
    ToolBarsJourney() { openLine(L"tool_bars.dxf"); }
    HWND site(int id) { return item(drafter->frame(), id); }
    HWND fileBar(int at = kTopSite) { return item(site(at), IDR_FILE_BAR); }
    HWND viewBar(int at = kTopSite) { return item(site(at), IDR_VIEW_BAR); }
    static POINT button(int index, int gaps = 0) {
        return {kFirstButton + index * kButton + gaps * kGap, 12};
    }
    bool isModified() const { return textOf(drafter->frame()).find(L'*') != std::wstring::npos; }
    void viewMenu(WORD menu, WORD letter) {
        drafter->activate(drafter->frame());
        drafter->key('V', false, true);
        drafter->key(menu);
        drafter->key(letter);
    }
};

TEST_F(ToolBarsJourney, AtFirstBothStandInOneRowAboveTheDrawing) {
    ASSERT_NE(fileBar(), nullptr);
    ASSERT_NE(viewBar(), nullptr);
    const RECT file = rectOf(fileBar()), view = rectOf(viewBar());
    EXPECT_EQ(file.top, view.top);
    EXPECT_EQ(file.right, view.left);
    EXPECT_LE(file.bottom, rectOf(drafter->view()).top);
    picture("journey-tool-bars");
}

TEST_F(ToolBarsJourney, AButtonDoesWhatTheMenuDoes) {
    drafter->activate(drafter->frame());
    drafter->click(fileBar(), button(1));
    const HWND dialog = drafter->waitForDialogOf(drafter->frame());
    ASSERT_NE(dialog, nullptr);
    drafter->activate(dialog);
    drafter->key(VK_ESCAPE);
    EXPECT_TRUE(drafter->waitUntilGone(dialog));
}

TEST_F(ToolBarsJourney, UndoCanBeClickedOnlyAfterAChange) {
    drafter->activate(drafter->frame());
    // Nothing to undo: the click does nothing, and the drawing stays as it was saved.
    drafter->click(fileBar(), button(4, 1));
    EXPECT_FALSE(isModified());
    drafter->key('A', true);
    drafter->pickByMouse(item(item(drafter->frame(), 0xE805), IDC_TRUE_COLOR), L"blue");
    ASSERT_TRUE(waitUntil([&] { return isModified(); }));
    drafter->click(fileBar(), button(4, 1));
    EXPECT_TRUE(waitUntil([&] { return !isModified(); }));
    // And Redo brings it back.
    drafter->click(fileBar(), button(5, 1));
    EXPECT_TRUE(waitUntil([&] { return isModified(); }));
    drafter->click(fileBar(), button(4, 1));
    EXPECT_TRUE(waitUntil([&] { return !isModified(); }));
}

TEST_F(ToolBarsJourney, DraggedToTheLeftItStandsThereTheNextTimeUntilACleanStart) {
    const RECT frame = rectOf(drafter->frame()), bar = rectOf(viewBar());
    const RECT left = rectOf(site(kLeftSite));
    // To the left edge of what lies between the bars.
    const POINT to = {left.left + 6 - bar.left, left.top + 80 - bar.top};
    drafter->drag(viewBar(), kGripper, to);
    ASSERT_TRUE(waitUntil([&] { return viewBar(kLeftSite) != nullptr; }));
    const RECT stands = rectOf(viewBar(kLeftSite));
    EXPECT_GT(stands.bottom - stands.top, stands.right - stands.left);
    EXPECT_LE(stands.right, rectOf(drafter->view()).left);
    picture("journey-tool-bars-left");
    restart();
    ASSERT_NE(viewBar(kLeftSite), nullptr);
    const RECT again = rectOf(viewBar(kLeftSite)), frameAgain = rectOf(drafter->frame());
    EXPECT_EQ(again.left - frameAgain.left, stands.left - frame.left);
    EXPECT_EQ(again.top - frameAgain.top, stands.top - frame.top);
    restart(L"--clean");
    EXPECT_NE(viewBar(kTopSite), nullptr);
    EXPECT_EQ(viewBar(kLeftSite), nullptr);
}

TEST_F(ToolBarsJourney, TheMenuHidesOneForThisTimeAndTheNext) {
    const int before = rectOf(drafter->view()).top;
    viewMenu('T', 'F');
    ASSERT_TRUE(waitUntil([&] { return !::IsWindowVisible(fileBar()); }));
    EXPECT_TRUE(::IsWindowVisible(viewBar()));
    viewMenu('T', 'V');
    ASSERT_TRUE(waitUntil([&] { return !::IsWindowVisible(viewBar()); }));
    EXPECT_LT(rectOf(drafter->view()).top, before);
    viewMenu('T', 'V');
    ASSERT_TRUE(waitUntil([&] { return ::IsWindowVisible(viewBar()) != FALSE; }));
    restart();
    EXPECT_FALSE(::IsWindowVisible(fileBar()));
    EXPECT_TRUE(::IsWindowVisible(viewBar()));
}

}  // namespace
