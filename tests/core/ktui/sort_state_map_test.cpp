// The order of files by dialog, and the clicks that bring it back.
#include <ktui/nav/sort_state_map.h>

#include <gtest/gtest.h>

TEST(SortStates, ANewEntryIsTheFirstColumnUpwards) {
    EXPECT_EQ(SortStateMap().count(L"new"), 0u);
    const SortState state = SortStateMap()[L"new"];
    EXPECT_EQ(state.column, 0);
    EXPECT_EQ(state.bits, 0x400);
    SortStateMap().erase(L"new");
}

TEST(SortStates, EachDialogHasItsOwn) {
    SortStateMap()[L"one"] = {2, 0x200};
    SortStateMap()[L"two"].column = 1;
    EXPECT_EQ(SortStateMap()[L"one"].column, 2);
    EXPECT_EQ(SortStateMap()[L"one"].bits, 0x200);
    EXPECT_EQ(SortStateMap()[L"two"].column, 1);
    SortStateMap().clear();
}

TEST(SortStates, AColumnInOrderIsNotClicked) {
    EXPECT_EQ(SortClicks(0x400, 0x400), 0);
    EXPECT_EQ(SortClicks(0x4200, 0x200), 0);
    EXPECT_EQ(SortClicks(0x600, 0x200), 0);
    EXPECT_EQ(SortClicks(0x600, 0x600), 0);
}

TEST(SortStates, TheFirstClickSortsUpAndTheSecondDown) {
    EXPECT_EQ(SortClicks(0, 0x400), 1);
    EXPECT_EQ(SortClicks(0x4000, 0x200), 2);
    EXPECT_EQ(SortClicks(0x400, 0x200), 1);
    EXPECT_EQ(SortClicks(0x200, 0x400), 1);
    EXPECT_EQ(SortClicks(0x200, 0x600), 1);
    EXPECT_EQ(SortClicks(0, 0x600), 1);
}
