// What assistive programs learn of the tabs of a dialog.
#include "accessible_object.h"
#include "tab_fixture.h"

namespace {

using ui_test::AccessibleObject;

class TabAccessible : public TabTest {
protected:
    TabAccessible() {
        ::CoInitialize(nullptr);
        addPages(2);
        dialog.AddTab(2, L"Fish && &Chips", IDD_TAB_PAGE, &c);
        taken();
    }
    ~TabAccessible() override { ::CoUninitialize(); }
};

TEST_F(TabAccessible, TheStripIsAListOfItsTabs) {
    dialog.tab.SetWindowText(L"&Pages");
    const AccessibleObject object(dialog.tab.m_hWnd);
    EXPECT_EQ(object.role(), ROLE_SYSTEM_PAGETABLIST);
    EXPECT_EQ(object.name(), L"Pages");
    EXPECT_EQ(object.action(), L"");
    EXPECT_EQ(object.act(), DISP_E_MEMBERNOTFOUND);
    LONG count = 0;
    EXPECT_EQ(object->get_accChildCount(&count), S_OK);
    EXPECT_EQ(count, 3);
    dialog.RemoveTab(2);
    EXPECT_EQ(object->get_accChildCount(&count), S_OK);
    EXPECT_EQ(count, 2);
}

TEST_F(TabAccessible, ATabIsNamedByItsTextAndStandsWhereItsItemIs) {
    const AccessibleObject object(dialog.tab.m_hWnd);
    EXPECT_EQ(object.name(1), L"a");
    EXPECT_EQ(object.name(3), L"Fish & Chips");
    for (int index = 0; index < 3; ++index) {
        EXPECT_EQ(object.role(index + 1), ROLE_SYSTEM_PAGETAB);
        EXPECT_EQ(object.action(index + 1), L"Switch");
        CRect item;
        dialog.tab.GetItemRect(index, &item);
        dialog.tab.ClientToScreen(&item);
        EXPECT_EQ(object.place(index + 1), item);
    }
    BSTR name = nullptr;
    EXPECT_EQ(object->get_accName(AccessibleObject::of(4), &name), E_INVALIDARG);
}

TEST_F(TabAccessible, TheTabInFrontIsSelectedAndTheFocusIsOnOne) {
    dialog.tab.SetActiveTab(1);
    dialog.tab.SetFocus();
    const AccessibleObject object(dialog.tab.m_hWnd);
    for (int child = 1; child <= 3; ++child) {
        EXPECT_NE(object.state(child) & STATE_SYSTEM_SELECTABLE, 0);
        EXPECT_EQ((object.state(child) & STATE_SYSTEM_SELECTED) != 0, child == 2) << child;
        EXPECT_EQ((object.state(child) & STATE_SYSTEM_FOCUSED) != 0, child == 2) << child;
    }
    dialog.tab.EnableWindow(FALSE);
    EXPECT_NE(object.state(1) & STATE_SYSTEM_UNAVAILABLE, 0);
}

TEST_F(TabAccessible, ItsActionChangesThePageAsAClickDoes) {
    const AccessibleObject object(dialog.tab.m_hWnd);
    EXPECT_EQ(object.act(2), S_OK);
    EXPECT_TRUE(log.empty()) << "a caller does not wait for what the page does";
    EXPECT_TRUE(ui_test::pump_until([&] { return front() == 1; }));
    EXPECT_EQ(taken(), (Log{"a leave?", "a out", "b in"}));
    EXPECT_EQ(dialog.tab.GetActiveTab(), 1);
}

TEST_F(TabAccessible, APageMayRefuseAndTheSameTabChangesNothing) {
    const AccessibleObject object(dialog.tab.m_hWnd);
    a.mayLeave = false;
    EXPECT_EQ(object.act(3), S_OK);
    EXPECT_TRUE(ui_test::pump_until([&] { return !log.empty(); }));
    EXPECT_EQ(taken(), Log{"a leave?"});
    EXPECT_EQ(front(), 0);
    EXPECT_EQ(dialog.tab.GetActiveTab(), 0);
    a.mayLeave = true;
    EXPECT_EQ(object.act(1), S_OK);
    ui_test::pump();
    dialog.tab.EnableWindow(FALSE);
    EXPECT_EQ(object.act(2), S_OK);
    ui_test::pump();
    EXPECT_TRUE(log.empty());
    EXPECT_EQ(front(), 0);
}

}  // namespace
