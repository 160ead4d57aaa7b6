// A list box whose items are moved by dragging.
#include <afxcmn.h>

#include <string>
#include <vector>

#include "list_rows.h"
#include "replaced_import.h"
#include "ui_test.h"

namespace {

constexpr UINT kListId = 7;

UINT dragMessage() { return ::RegisterWindowMessageW(DRAGLISTMSGSTRING); }

class List : public CDragListBox {
public:
    std::vector<std::string> calls;
    std::vector<int> marks;
    bool allows = true;

    void DrawInsert(int item) override {
        marks.push_back(item);
        CDragListBox::DrawInsert(item);
    }
    BOOL BeginDrag(CPoint pt) override {
        calls.push_back("begin");
        return allows ? CDragListBox::BeginDrag(pt) : FALSE;
    }
    void CancelDrag(CPoint pt) override {
        calls.push_back("cancel");
        CDragListBox::CancelDrag(pt);
    }
    UINT Dragging(CPoint pt) override {
        calls.push_back("dragging");
        return CDragListBox::Dragging(pt);
    }
    void Dropped(int source, CPoint pt) override {
        calls.push_back("dropped " + std::to_string(source));
        CDragListBox::Dropped(source, pt);
    }
};

/// Where the system finds the mouse: the real one may be elsewhere before it looks.
CPoint pointerPlace;
BOOL WINAPI tellPointer(POINT* place) {
    *place = pointerPlace;
    return TRUE;
}

HMODULE moduleOf(BOOL(WINAPI* function)(HWND)) {
    HMODULE module = nullptr;
    ::GetModuleHandleExW(
        GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
        reinterpret_cast<const wchar_t*>(function), &module);
    return module;
}

class DragList : public ::testing::Test {
protected:
    DragList() {
        list.Create(WS_CHILD | WS_VISIBLE | LBS_HASSTRINGS | LBS_NOTIFY, CRect(10, 10, 160, 200), &parent,
                    kListId);
        for (const wchar_t* text : {L"a", L"b", L"c", L"d"})
            list.SetItemData(list.AddString(text), static_cast<DWORD_PTR>(text[0]));
        ui_test::pump();
    }
    /// A point in an item, on the screen.
    CPoint in(int item) {
        CRect rect;
        list.GetItemRect(item, &rect);
        CPoint point = rect.CenterPoint();
        list.ClientToScreen(&point);
        return point;
    }
    /// Tells the parent of a drag, as the system does.
    LRESULT tell(UINT notification, CPoint point) {
        DRAGLISTINFO info = {notification, list.m_hWnd, point};
        return parent.SendMessage(dragMessage(), kListId, reinterpret_cast<LPARAM>(&info));
    }
    std::wstring texts() { return ui_test::rows_of(list); }
    /// Sends a message of the mouse, for whose place the system then asks.
    void mouse(UINT message, CPoint screen) {
        ASSERT_TRUE(pointer.isThere());
        pointerPlace = screen;
        list.ScreenToClient(&screen);
        list.SendMessage(message, message == WM_LBUTTONUP ? 0 : MK_LBUTTON, MAKELPARAM(screen.x, screen.y));
    }
    ui_test::ParentWindow parent;
    List list;
    ui_test::ReplacedImport pointer{moduleOf(&::MakeDragList), "GetCursorPos", &tellPointer};
};

TEST_F(DragList, FindsTheItemAtAPoint) {
    EXPECT_EQ(list.ItemFromPt(in(0)), 0);
    EXPECT_EQ(list.ItemFromPt(in(3)), 3);
    CRect rect;
    list.GetWindowRect(&rect);
    EXPECT_EQ(list.ItemFromPt(CPoint(rect.right + 50, rect.top + 5), FALSE), -1);
}

TEST_F(DragList, HearsOfADragByItsParent) {
    EXPECT_EQ(tell(DL_BEGINDRAG, in(1)), TRUE);
    EXPECT_EQ(tell(DL_DRAGGING, in(3)), DL_MOVECURSOR);
    EXPECT_EQ(list.marks, (std::vector<int>{1, 3}));
    tell(DL_DROPPED, in(3));
    EXPECT_EQ(list.calls, (std::vector<std::string>{"begin", "dragging", "dropped 1"}));
    EXPECT_EQ(list.marks.back(), -1);
    EXPECT_EQ(texts(), L"acbd");
    EXPECT_EQ(list.GetCurSel(), 2);
}

TEST_F(DragList, HearsOfADragByItself) {
    DRAGLISTINFO info = {DL_BEGINDRAG, list.m_hWnd, in(0)};
    EXPECT_EQ(list.SendMessage(dragMessage(), kListId, reinterpret_cast<LPARAM>(&info)), TRUE);
    EXPECT_EQ(list.calls, (std::vector<std::string>{"begin"}));
}

TEST_F(DragList, MovesAnItemUp) {
    tell(DL_BEGINDRAG, in(3));
    tell(DL_DROPPED, in(0));
    EXPECT_EQ(texts(), L"dabc");
    EXPECT_EQ(list.GetCurSel(), 0);
}

TEST_F(DragList, ADropWhereItWasChangesNothing) {
    for (const int target : {1, 2}) {
        tell(DL_BEGINDRAG, in(1));
        tell(DL_DROPPED, in(target));
        EXPECT_EQ(texts(), L"abcd");
    }
    tell(DL_BEGINDRAG, in(1));
    tell(DL_DROPPED, CPoint(-500, -500));
    EXPECT_EQ(texts(), L"abcd");
}

TEST_F(DragList, ACancelledDragTakesTheMarkAway) {
    tell(DL_BEGINDRAG, in(1));
    tell(DL_CANCELDRAG, in(2));
    EXPECT_EQ(list.calls.back(), "cancel");
    EXPECT_EQ(list.marks.back(), -1);
    EXPECT_EQ(texts(), L"abcd");
}

TEST_F(DragList, MayForbidADrag) {
    list.allows = false;
    EXPECT_EQ(tell(DL_BEGINDRAG, in(1)), FALSE);
    EXPECT_TRUE(list.marks.empty());
}

TEST_F(DragList, TheMouseMovesAnItem) {
    mouse(WM_LBUTTONDOWN, in(0));
    mouse(WM_MOUSEMOVE, in(2));
    mouse(WM_LBUTTONUP, in(2));
    EXPECT_EQ(list.calls.front(), "begin");
    EXPECT_EQ(list.calls.back(), "dropped 0");
    EXPECT_EQ(texts(), L"bacd");
}

TEST_F(DragList, SubclassesAListOfADialogToo) {
    const HWND window = ::CreateWindowW(L"LISTBOX", L"", WS_CHILD | LBS_HASSTRINGS, 200, 10, 100, 100,
                                        parent.m_hWnd, nullptr, nullptr, nullptr);
    List taken;
    ASSERT_TRUE(taken.SubclassWindow(window));
    taken.AddString(L"x");
    DRAGLISTINFO info = {DL_BEGINDRAG, window, CPoint(0, 0)};
    EXPECT_EQ(parent.SendMessage(dragMessage(), 8, reinterpret_cast<LPARAM>(&info)), TRUE);
    EXPECT_EQ(taken.calls, (std::vector<std::string>{"begin"}));
}

TEST_F(DragList, AListThatNobodyHoldsIsLeftAlone) {
    const HWND plain =
        ::CreateWindowW(L"LISTBOX", L"", WS_CHILD, 0, 0, 10, 10, parent.m_hWnd, nullptr, nullptr, nullptr);
    DRAGLISTINFO info = {DL_BEGINDRAG, plain, CPoint(0, 0)};
    EXPECT_EQ(parent.SendMessage(dragMessage(), 9, reinterpret_cast<LPARAM>(&info)), 0);
    EXPECT_EQ(parent.SendMessage(dragMessage(), 9, 0), 0);
    ::DestroyWindow(plain);
}

}  // namespace
