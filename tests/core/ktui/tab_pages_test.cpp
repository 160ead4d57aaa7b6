// The arithmetic of a tabbed dialog.
#include <gtest/gtest.h>

#include <vector>

#include <ktui/dialogs/tab_pages.h>

namespace {

TEST(TabPages, APageLiesBelowTheRowWithFivePixelsAround) {
    EXPECT_EQ(TabPageArea(CRect(10, 20, 210, 120), 22), CRect(15, 47, 205, 115));
    EXPECT_EQ(TabPageArea(CRect(0, 0, 100, 50), 0), CRect(5, 5, 95, 45));
}

TEST(TabPages, AStripThatIsTooSmallTurnsThePageInsideOut) {
    EXPECT_EQ(TabPageArea(CRect(0, 0, 8, 8), 20), CRect(5, 25, 3, 3));
}

class InitialTab : public ::testing::Test {
protected:
    int ask(const wchar_t* request) {
        asked = 0;
        return InitialTabIndex(request, static_cast<int>(items.size()), [this](int index, CString& text) {
            ++asked;
            if (index >= static_cast<int>(items.size())) return false;
            text = items[static_cast<size_t>(index)];
            return true;
        });
    }
    std::vector<CString> items{L"Files", L"Display", L"7", L"12"};
    int asked = 0;
};

TEST_F(InitialTab, NobodyAskedForOne) { EXPECT_EQ(ask(L""), -1); }

TEST_F(InitialTab, ANumberOfAnItemIsThatItemWhateverItsText) {
    EXPECT_EQ(ask(L"0"), 0);
    EXPECT_EQ(ask(L"3"), 3);
    EXPECT_EQ(ask(L"2 and more"), 2);
    EXPECT_EQ(asked, 0);
}

TEST_F(InitialTab, ANegativeNumberIsTheFirst) {
    EXPECT_EQ(ask(L"-1"), 0);
    EXPECT_EQ(asked, 0);
}

TEST_F(InitialTab, ALargeNumberIsLookedForAmongThatManyTexts) {
    EXPECT_EQ(ask(L"7"), 2);
    EXPECT_EQ(asked, 3);
    EXPECT_EQ(ask(L"12"), 3);
    EXPECT_EQ(ask(L"9"), 0);
    EXPECT_EQ(asked, 9);
    EXPECT_EQ(ask(L"4"), 0);
    EXPECT_EQ(asked, 4);
}

TEST_F(InitialTab, ATextIsLookedForAmongAllItemsInItsVeryForm) {
    EXPECT_EQ(ask(L"Display"), 1);
    EXPECT_EQ(ask(L"display"), 0);
    EXPECT_EQ(asked, 4);
}

TEST_F(InitialTab, WithoutItemsItIsTheFirst) {
    items.clear();
    EXPECT_EQ(ask(L"Files"), 0);
    EXPECT_EQ(ask(L"0"), 0);
    EXPECT_EQ(asked, 0);
}

}  // namespace
