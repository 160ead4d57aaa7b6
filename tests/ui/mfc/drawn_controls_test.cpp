// Owner-drawn controls: each hears what its parent is told, and nothing else is taken from the parent.
#include <afxcmn.h>

#include "ui_test.h"

namespace {

/// Notes what the virtual functions of a control class are given.
template <class Control>
class Noting : public Control {
public:
    using Control::OnChildNotify;
    const void* given = nullptr;
    void DrawItem(LPDRAWITEMSTRUCT item) override { given = item; }
};

class NotingList : public Noting<CListBox> {
public:
    UINT key = 0, index = 0;
    void MeasureItem(LPMEASUREITEMSTRUCT item) override { given = item; }
    int CompareItem(LPCOMPAREITEMSTRUCT item) override { return given = item, -1; }
    void DeleteItem(LPDELETEITEMSTRUCT item) override { given = item; }
    int VKeyToItem(UINT k, UINT i) override { return key = k, index = i, 31; }
    int CharToItem(UINT k, UINT i) override { return key = k, index = i, 32; }
};

class NotingCombo : public Noting<CComboBox> {
public:
    void MeasureItem(LPMEASUREITEMSTRUCT item) override { given = item; }
    int CompareItem(LPCOMPAREITEMSTRUCT item) override { return given = item, -1; }
    void DeleteItem(LPDELETEITEMSTRUCT item) override { given = item; }
};

/// Whether a message is taken, and carried to the virtual function.
template <class Control>
bool takes(Control& control, UINT message, LRESULT wanted = 0) {
    int structure = 0;
    LRESULT result = 0;
    control.given = nullptr;
    const BOOL taken = control.OnChildNotify(message, 5, reinterpret_cast<LPARAM>(&structure), &result);
    EXPECT_EQ(result, wanted);
    return taken && control.given == &structure;
}

template <class Control>
void expect_drawn(const char* name) {
    Noting<Control> control;
    EXPECT_TRUE(takes(control, WM_DRAWITEM)) << name;
    LRESULT result = 0;
    control.given = nullptr;
    EXPECT_FALSE(control.OnChildNotify(WM_HSCROLL, 5, 0, &result)) << name;
    EXPECT_EQ(control.given, nullptr) << name;
}

}  // namespace

TEST(DrawnControls, DrawThemselves) {
    expect_drawn<CStatic>("static");
    expect_drawn<CButton>("button");
    expect_drawn<CHeaderCtrl>("header");
    expect_drawn<CListCtrl>("list view");
    expect_drawn<CTabCtrl>("tabs");
    expect_drawn<CStatusBarCtrl>("status bar");
    expect_drawn<CListBox>("list box");
    expect_drawn<CComboBox>("combo box");
}

TEST(DrawnControls, AListMeasuresComparesAndChoosesByKeys) {
    NotingList list;
    EXPECT_TRUE(takes(list, WM_MEASUREITEM));
    EXPECT_TRUE(takes(list, WM_COMPAREITEM, -1));
    EXPECT_TRUE(takes(list, WM_DELETEITEM));
    LRESULT result = 0;
    EXPECT_TRUE(list.OnChildNotify(WM_VKEYTOITEM, MAKEWPARAM(40, 6), 0, &result));
    EXPECT_EQ(result, 31);
    EXPECT_EQ(list.key, 40U);
    EXPECT_EQ(list.index, 6U);
    EXPECT_TRUE(list.OnChildNotify(WM_CHARTOITEM, MAKEWPARAM(107, 7), 0, &result));
    EXPECT_EQ(result, 32);
    EXPECT_EQ(list.key, 107U);
    EXPECT_EQ(list.index, 7U);
    EXPECT_FALSE(list.OnChildNotify(WM_VSCROLL, 0, 0, &result));
}

TEST(DrawnControls, AComboBoxMeasuresAndCompares) {
    NotingCombo box;
    EXPECT_TRUE(takes(box, WM_MEASUREITEM));
    EXPECT_TRUE(takes(box, WM_COMPAREITEM, -1));
    EXPECT_TRUE(takes(box, WM_DELETEITEM));
    LRESULT result = 0;
    EXPECT_FALSE(box.OnChildNotify(WM_VKEYTOITEM, 0, 0, &result));
}

TEST(DrawnControls, WithoutAClassOfTheirOwnAllItemsAreEqualAndKeysTheSystems) {
    ui_test::ParentWindow parent;
    CListBox list;
    list.Create(WS_CHILD | LBS_OWNERDRAWFIXED | LBS_SORT | LBS_WANTKEYBOARDINPUT, CRect(0, 0, 90, 90),
                &parent, 5);
    COMPAREITEMSTRUCT pair = {};
    pair.hwndItem = list;
    EXPECT_EQ(parent.SendMessage(WM_COMPAREITEM, 5, reinterpret_cast<LPARAM>(&pair)), 0);
    EXPECT_EQ(parent.SendMessage(WM_VKEYTOITEM, MAKEWPARAM(40, 0), reinterpret_cast<LPARAM>(list.m_hWnd)),
              -1);
    EXPECT_EQ(parent.SendMessage(WM_CHARTOITEM, MAKEWPARAM(40, 0), reinterpret_cast<LPARAM>(list.m_hWnd)),
              -1);
}
