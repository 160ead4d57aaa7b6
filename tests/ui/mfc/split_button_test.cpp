// Split buttons: which menu drops down where, and who hears of it.
#include <afxcmn.h>

#include <vector>

#include "opened_menu.h"
#include "ui_test.h"

namespace {

constexpr UINT kButton = 9, kMenu = 451;

/// A parent that hears of arrows.
class Listener : public ui_test::ParentWindow {
public:
    int dropDowns = 0;

protected:
    afx_msg void OnDropDown(NMHDR*, LRESULT* result) {
        ++dropDowns;
        *result = 0;
    }
    DECLARE_MESSAGE_MAP()
};
BEGIN_MESSAGE_MAP(Listener, CWnd)
    ON_NOTIFY(BCN_DROPDOWN, kButton, &Listener::OnDropDown)
END_MESSAGE_MAP()

/// What is seen of a menu while it is open.
class SplitButton : public ::testing::Test {
protected:
    SplitButton() {
        button.Create(L"split", WS_CHILD | WS_VISIBLE, CRect(40, 40, 190, 66), &parent, kButton);
        own.CreatePopupMenu();
        own.AppendMenu(MF_STRING, 77, L"own entry");
    }
    /// Presses the arrow; closes the menu once it is seen.
    ui_test::OpenedMenu drop() {
        ui_test::OpenedMenu opened;
        ui_test::read_next_menu(opened);
        NMBCDROPDOWN arrow = {};
        arrow.hdr = {button.m_hWnd, kButton, static_cast<UINT>(BCN_DROPDOWN)};
        button.GetClientRect(&arrow.rcButton);
        parent.SendMessage(WM_NOTIFY, kButton, reinterpret_cast<LPARAM>(&arrow));
        return opened;
    }
    Listener parent;
    CSplitButton button;
    CMenu own;
};

}  // namespace

TEST_F(SplitButton, ADefaultOneStaysOneAndOthersBecomePlain) {
    CSplitButton byDefault, other;
    ASSERT_TRUE(byDefault.Create(L"", WS_CHILD | BS_DEFSPLITBUTTON, CRect(0, 0, 50, 20), &parent, 1));
    EXPECT_EQ(byDefault.GetButtonStyle() & BS_TYPEMASK, static_cast<UINT>(BS_DEFSPLITBUTTON));
    ASSERT_TRUE(other.Create(L"", WS_CHILD | BS_GROUPBOX, CRect(0, 0, 50, 20), &parent, 2));
    EXPECT_EQ(other.GetButtonStyle() & BS_TYPEMASK, static_cast<UINT>(BS_SPLITBUTTON));
}

TEST_F(SplitButton, TheMenuDropsBelowItAndTheParentHears) {
    button.SetDropDownMenu(&own);
    const ui_test::OpenedMenu opened = drop();
    EXPECT_EQ(opened.first, L"own entry");
    CRect place;
    button.GetWindowRect(&place);
    EXPECT_GE(opened.place.top, place.bottom - 1);
    EXPECT_EQ(parent.dropDowns, 1);
}

TEST_F(SplitButton, TheLastMenuThatIsSetCounts) {
    button.SetDropDownMenu(kMenu, 1);
    EXPECT_EQ(drop().first, L"of the second");
    button.SetDropDownMenu(&own);
    EXPECT_EQ(drop().first, L"own entry");
    button.SetDropDownMenu(kMenu, 0);
    EXPECT_EQ(drop().first, L"of the first");
}
