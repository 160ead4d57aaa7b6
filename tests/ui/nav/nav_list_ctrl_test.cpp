// The list whose rows are dragged by their picture.
#include <ktui/nav/nav_list_ctrl.h>

#include "replaced_import.h"
#include "ui_test.h"

namespace {

HWND enteredWindow = nullptr;
POINT enteredAt = {};
int entered = 0;

BOOL WINAPI dragEnter(HWND window, int x, int y) {
    ++entered;
    enteredWindow = window;
    enteredAt = {x, y};
    return TRUE;
}

class OpenList : public CNavListCtrl {
public:
    LRESULT drag(int row, POINT at) {
        NMLISTVIEW notice = {};
        notice.iItem = row;
        notice.ptAction = at;
        LRESULT result = 5;
        OnBeginDrag(&notice.hdr, &result);
        return result;
    }
};

class NavList : public ::testing::Test {
protected:
    NavList() {
        entered = 0;
        list.Create(WS_CHILD | WS_VISIBLE | LVS_REPORT, CRect(0, 0, 200, 100), &parent, 1);
        list.InsertColumn(0, L"name", LVCFMT_LEFT, 100);
        list.InsertItem(0, L"one");
        list.InsertItem(1, L"two");
    }
    ~NavList() override { ::ImageList_EndDrag(); }
    ui_test::ParentWindow parent;
    OpenList list;
    ui_test::ReplacedImport enter{::GetModuleHandleW(nullptr), "ImageList_DragEnter", &dragEnter};
};

TEST_F(NavList, ADragBeginsOverTheWholeDesktop) {
    ASSERT_TRUE(enter.isThere());
    EXPECT_EQ(list.drag(1, {30, 40}), 0);
    EXPECT_EQ(entered, 1);
    EXPECT_EQ(enteredWindow, ::GetDesktopWindow());
    EXPECT_EQ(enteredAt.x, 30);
    EXPECT_EQ(enteredAt.y, 40);
}

TEST_F(NavList, NoRowIsNoDrag) {
    list.drag(-1, {30, 40});
    EXPECT_EQ(entered, 0);
}

TEST_F(NavList, EachDragHasAPictureOfItsOwn) {
    list.drag(0, {1, 1});
    ::ImageList_EndDrag();
    list.drag(1, {2, 2});
    EXPECT_EQ(entered, 2);
}

TEST_F(NavList, HandlesNoDrag) { EXPECT_EQ(list.OnHandleDrag(), 0); }

TEST_F(NavList, TheFeedbackIsThePlatforms) {
    CNavDropSource source;
    EXPECT_EQ(source.GiveFeedback(DROPEFFECT_COPY), DRAGDROP_S_USEDEFAULTCURSORS);
}

}  // namespace
