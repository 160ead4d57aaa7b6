// What a bar hands on: to the framework when it is made, shown and hidden, and to the other bars of its tabs.
#include "bar_fixture.h"

namespace {

using namespace docking_test;

/// Notes what it is made, shown and hidden with.
class NotingBar : public OpenBar {
public:
    using CKbUiDockControlBar::Create;
    using CKbUiDockControlBar::m_dwTabbedStyle;
    using CKbUiDockControlBar::m_sizeDefault;

    struct Shown {
        BOOL show, delay, activate;
        bool operator==(const Shown&) const = default;
    };
    std::vector<Shown> shown;
    int virtualCreations = 0;
    DWORD extendedStyle = 99;

    void ShowPane(BOOL show, BOOL delay, BOOL activate) override {
        shown.push_back({show, delay, activate});
        OpenBar::ShowPane(show, delay, activate);
    }
    BOOL Create(LPCTSTR className, LPCTSTR name, DWORD style, const RECT& rect, CWnd* parent, UINT id,
                CCreateContext* context) override {
        ++virtualCreations;
        EXPECT_EQ(className, nullptr);
        EXPECT_EQ(context, nullptr);
        EXPECT_STREQ(name, L"Bar");
        EXPECT_EQ(id, 4001u);
        return OpenBar::Create(className, name, style, rect, parent, id, context);
    }
    int CreateControlBar(CREATESTRUCT* create) override {
        extendedStyle = create->dwExStyle;
        return 1;
    }
};

struct BarArguments : DockingTest {
    NotingBar bar;
};

TEST_F(BarArguments, ANewBarIsAHundredByAHundredAndForty) {
    EXPECT_TRUE(bar.m_sizeDefault == CSize(100, 140));
}

TEST_F(BarArguments, TheShortCreationGoesThroughTheLongOne) {
    dock(bar, CBRS_ALIGN_LEFT);
    EXPECT_EQ(bar.virtualCreations, 1);
    EXPECT_EQ(bar.extendedStyle & ~static_cast<DWORD>(WS_EX_NOPARENTNOTIFY), 0u);
    EXPECT_EQ(bar.m_dwTabbedStyle, 32u);
}

TEST_F(BarArguments, ComesBackAtOnceAndActive) {
    dock(bar, CBRS_ALIGN_LEFT);
    bar.shown.clear();
    bar.RestoreControlBar(CBRS_ALIGN_LEFT, nullptr);
    EXPECT_EQ(bar.shown, (std::vector<NotingBar::Shown>{{TRUE, FALSE, TRUE}}));
}

TEST_F(BarArguments, HidesLater) {
    dock(bar, CBRS_ALIGN_LEFT);
    bar.shown.clear();
    bar.OnHideBar();
    EXPECT_EQ(bar.shown, (std::vector<NotingBar::Shown>{{FALSE, TRUE, FALSE}}));
}

/// Two bars in tabs, whose visible flags are clear.
struct ShownTabs : DockingTest {
    OpenBar bar, second;

    void SetUp() override {
        dock(bar, CBRS_ALIGN_LEFT);
        dock(second, CBRS_ALIGN_RIGHT, 4002);
        second.AttachToTabWnd(&bar, DM_SHOW);
        ui_test::pump();
        ASSERT_TRUE(bar.IsTabbed());
        bar.setVisible(false);
        second.setVisible(false);
    }
};

TEST_F(ShownTabs, DockedOnesLeaveEachOthersFlagAlone) {
    bar.ShowPane(TRUE, FALSE, TRUE);
    EXPECT_FALSE(second.isVisible());
}

TEST_F(ShownTabs, HidingAFloatingOneMarksNoOther) {
    ASSERT_TRUE(bar.GetParentTabbedPane()->FloatPane(CRect(300, 300, 500, 500)));
    ui_test::pump();
    ASSERT_FALSE(bar.IsDocked());
    bar.ShowPane(FALSE, FALSE, TRUE);
    EXPECT_FALSE(second.isVisible());
    bar.ShowPane(TRUE, FALSE, TRUE);
    EXPECT_TRUE(second.isVisible());
}

}  // namespace
