// A draughtsman uses the menu, which stands in a bar: by its letters, by arrow keys, by the mouse; and he
// moves it.
#include <windows.h>
#include <commctrl.h>

#include "journey_fixture.h"

using namespace journey;

namespace {

constexpr int kTopSite = 0xE81B, kLeftSite = 0xE81C, kMenuBar = 0xE806, kPickerBar = 0xE805;
// Client pixels of the bar at 96 dots an inch.
constexpr POINT kGripper = {4, 12}, kFile = {24, 12};

class MenuJourney : public Journey {
protected:
    MenuJourney() {
        openLine(L"menu.dxf");
        drafter->activate(drafter->frame());
    }
    HWND bar(int site = kTopSite) { return item(item(drafter->frame(), site), kMenuBar); }
    /// The menu that has dropped down, as soon as there is one.
    static HWND dropped() {
        HWND menu = nullptr;
        waitUntil([&] {
            menu = ::FindWindowW(L"#32768", nullptr);
            return menu != nullptr && ::IsWindowVisible(menu);
        });
        return menu;
    }
    bool hasFocus(HWND window) {
        return waitUntil([&] { return focusOf(window) == window; });
    }
    bool opensDialog() {
        const HWND dialog = drafter->waitForDialogOf(drafter->frame());
        if (dialog == nullptr) return false;
        drafter->activate(dialog);
        drafter->key(VK_ESCAPE);
        return drafter->waitUntilGone(dialog);
    }
};

TEST_F(MenuJourney, TheMenuStandsInABarAboveEverything) {
    EXPECT_EQ(::GetMenu(drafter->frame()), nullptr);
    ASSERT_NE(bar(), nullptr);
    RECT client = {};
    ::GetClientRect(drafter->frame(), &client);
    ::MapWindowPoints(drafter->frame(), nullptr, reinterpret_cast<POINT*>(&client), 2);
    EXPECT_EQ(rectOf(bar()).top, client.top);
    EXPECT_EQ(rectOf(bar()).bottom, rectOf(item(item(drafter->frame(), kTopSite), IDR_FILE_BAR)).top);
}

TEST_F(MenuJourney, AltWithALetterOpensAndArrowsChoose) {
    drafter->key('F', false, true);
    ASSERT_NE(dropped(), nullptr);
    picture("journey-menu-file");
    drafter->key(VK_DOWN);
    drafter->key(VK_RETURN);
    EXPECT_TRUE(opensDialog()) << "File > Open";
}

TEST_F(MenuJourney, FTenAndArrowsWalkTheBar) {
    ASSERT_TRUE(::IsWindowVisible(item(drafter->frame(), kPickerBar)));
    drafter->key(VK_F10);
    ASSERT_TRUE(hasFocus(bar()));
    drafter->key(VK_RIGHT);
    drafter->key(VK_RIGHT);
    picture("journey-menu-bar");
    drafter->key(VK_DOWN);
    ASSERT_NE(dropped(), nullptr);
    drafter->key('P');
    EXPECT_TRUE(waitUntil([&] { return !::IsWindowVisible(item(drafter->frame(), kPickerBar)); }))
        << "View > Picker Bar";
    EXPECT_TRUE(hasFocus(drafter->view()));
}

TEST_F(MenuJourney, ALoneAltAndLettersOpenADialog) {
    drafter->key(VK_MENU);
    ASSERT_TRUE(hasFocus(bar()));
    drafter->key('T');
    ASSERT_NE(dropped(), nullptr);
    drafter->key('O');
    EXPECT_TRUE(opensDialog()) << "Tools > Options";
}

TEST_F(MenuJourney, EscapeTwiceGivesTheFocusBack) {
    drafter->click(drafter->view(), {4, 4});
    drafter->key('E', false, true);
    ASSERT_NE(dropped(), nullptr);
    drafter->key(VK_ESCAPE);
    EXPECT_TRUE(hasFocus(bar()));
    drafter->key(VK_ESCAPE);
    EXPECT_TRUE(hasFocus(drafter->view()));
}

TEST_F(MenuJourney, TheMouseOpensAMenuAndAnArrowGoesToItsNeighbour) {
    drafter->click(drafter->view(), {4, 4});
    drafter->click(bar(), kFile);
    const HWND file = dropped();
    ASSERT_NE(file, nullptr);
    const LONG left = rectOf(file).left;
    // Not by the mouse: some virtual desktops hold it still while a menu is open.
    drafter->key(VK_RIGHT);
    ASSERT_TRUE(waitUntil([&] {
        const HWND edit = dropped();
        return edit != nullptr && rectOf(edit).left > left;
    }));
    picture("journey-menu-edit");
    drafter->key('A');
    const HWND properties = drafter->openProperties();
    EXPECT_EQ(textOf(properties), L"Properties - Line") << "Edit > Select All";
    cancel(properties);
}

TEST_F(MenuJourney, DraggedToTheLeftItStandsThereTheNextTimeUntilACleanStart) {
    const RECT stood = rectOf(bar()), left = rectOf(item(drafter->frame(), kLeftSite));
    drafter->drag(bar(), kGripper, {left.left + 6 - stood.left, left.top + 80 - stood.top});
    ASSERT_TRUE(waitUntil([&] { return bar(kLeftSite) != nullptr; }));
    picture("journey-menu-left");
    // It opens there too.
    drafter->key('T', false, true);
    ASSERT_NE(dropped(), nullptr);
    drafter->key('O');
    EXPECT_TRUE(opensDialog());
    restart();
    drafter->activate(drafter->frame());
    EXPECT_NE(bar(kLeftSite), nullptr);
    restart(L"--clean");
    drafter->activate(drafter->frame());
    EXPECT_NE(bar(), nullptr);
}

}  // namespace
