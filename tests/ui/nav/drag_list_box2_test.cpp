// The list box whose rows are put into another order by dragging.
#include <ktui/nav/drag_list_box2.h>

#include <string>
#include <vector>

#include "list_rows.h"
#include "picture.h"
#include "replaced_import.h"
#include "slot_of.h"
#include "ui_test.h"

namespace {

using ui_test::Picture;
using ui_test::slotOf;

class List : public CDragListBox2 {
public:
    using CDragListBox2::BeginDrag;
    using CDragListBox2::CancelDrag;
    using CDragListBox2::Dragging;
    using CDragListBox2::Dropped;
    using CDragListBox2::m_dragModified;
    using CDragListBox2::m_dragStarted;
    using CDragListBox2::m_lastInsert;
    using CDragListBox2::m_pressItem;
    std::vector<std::string> calls;
    std::vector<int> marks;

    void DrawInsert(int row) override {
        marks.push_back(row);
        CDragListBox2::DrawInsert(row);
    }

protected:
    int BeginDrag(POINT point) override {
        calls.push_back("begin");
        return CDragListBox2::BeginDrag(point);
    }
    void CancelDrag(POINT point) override {
        calls.push_back("cancel");
        CDragListBox2::CancelDrag(point);
    }
    UINT Dragging(POINT point) override {
        last = point;
        const UINT answer = CDragListBox2::Dragging(point);
        calls.push_back("dragging " + std::to_string(answer));
        return answer;
    }
    void Dropped(int row, POINT point) override {
        calls.push_back("dropped " + std::to_string(row) + (::GetCapture() == m_hWnd ? " captured" : ""));
        CDragListBox2::Dropped(row, point);
    }

public:
    CPoint last;
};

class DragList2 : public ::testing::Test {
protected:
    DragList2() {
        list.Create(WS_CHILD | WS_VISIBLE | LBS_HASSTRINGS | LBS_NOINTEGRALHEIGHT | LBS_NOTIFY | WS_VSCROLL,
                    CRect(10, 10, 160, 210), &parent, 7);
        for (const wchar_t* text : {L"a", L"b", L"c", L"d"}) add(text);
        ui_test::pump();
    }
    void add(const wchar_t* text) { list.SetItemData(list.AddString(text), static_cast<DWORD_PTR>(text[0])); }
    CRect rectOf(int row) {
        CRect rect;
        list.GetItemRect(row, &rect);
        return rect;
    }
    CPoint in(int row) { return rectOf(row).CenterPoint(); }
    CPoint beneath() { return {20, rectOf(list.GetCount() - 1).bottom + 20}; }
    static CPoint outside() { return {400, 20}; }
    void down(CPoint at) { list.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(at.x, at.y)); }
    void move(CPoint at, UINT keys = MK_LBUTTON) {
        list.SendMessage(WM_MOUSEMOVE, keys, MAKELPARAM(at.x, at.y));
    }
    void up(CPoint at) { list.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(at.x, at.y)); }
    /// Drags from one place to another and drops there.
    void drag(CPoint from, CPoint to) {
        down(from);
        move(from);
        move(to);
        up(to);
    }
    std::wstring texts() { return ui_test::rows_of(list); }
    ui_test::ParentWindow parent;
    List list;
};

TEST_F(DragList2, StartsWithNothingPressed) {
    EXPECT_EQ(list.m_dragModified, 0);
    EXPECT_EQ(list.m_dragStarted, 0);
    EXPECT_EQ(list.m_pressItem, -1);
    EXPECT_EQ(list.m_lastInsert, -1);
}

/// What the list asked of the system for the mouse.
std::vector<TRACKMOUSEEVENT> tracked;

BOOL WINAPI trackMouse(LPTRACKMOUSEEVENT asked) {
    tracked.push_back(*asked);
    return TRUE;
}

TEST_F(DragList2, ADragEndsTheWaitForARestingMouse) {
    const ui_test::ReplacedImport tracking(::GetModuleHandleW(nullptr), "TrackMouseEvent", &trackMouse);
    ASSERT_TRUE(tracking.isThere());
    tracked.clear();
    down(in(0));
    EXPECT_TRUE(tracked.empty());
    move(in(0));
    move(in(2));
    up(in(2));
    ASSERT_EQ(tracked.size(), 1u) << "at its begin alone";
    EXPECT_EQ(tracked[0].dwFlags, static_cast<DWORD>(TME_CANCEL | TME_HOVER | TME_LEAVE));
    EXPECT_EQ(tracked[0].hwndTrack, list.m_hWnd);
}

TEST_F(DragList2, KnowsTheRowUnderAPoint) {
    EXPECT_EQ(list.RowAt(in(0)), 0);
    EXPECT_EQ(list.RowAt(in(3)), 3);
    EXPECT_EQ(list.RowAt(beneath()), 4);
    EXPECT_EQ(list.RowAt(outside()), -1);
}

TEST_F(DragList2, ScrollsForAPointBelowItAndShowsThatAtOnce) {
    for (wchar_t letter = L'e'; letter <= L'z'; ++letter) add(CString(letter, 1));
    ui_test::pump();
    CRect client;
    list.GetClientRect(&client);
    const CPoint below(20, client.bottom + 5);
    EXPECT_EQ(list.GetTopIndex(), 0);
    // The platform scrolls at most once in a while.
    EXPECT_TRUE(ui_test::pump_until([&] {
        list.RowAt(below);
        return list.GetTopIndex() > 0;
    }));
    EXPECT_FALSE(::GetUpdateRect(list.m_hWnd, nullptr, FALSE));
}

TEST_F(DragList2, APressAloneSelectsNothing) {
    down(in(2));
    EXPECT_EQ(list.GetCurSel(), -1);
    EXPECT_EQ(list.m_pressItem, 2);
    EXPECT_TRUE(list.calls.empty());
    up(in(2));
    EXPECT_EQ(list.GetCurSel(), 2);
    EXPECT_EQ(list.m_pressItem, -1);
    EXPECT_TRUE(list.calls.empty());
}

TEST_F(DragList2, AReleaseOnAnotherRowSelectsNothing) {
    list.SetCurSel(0);
    ui_test::pump();
    down(in(2));
    up(in(1));
    EXPECT_EQ(list.GetCurSel(), 0);
    EXPECT_TRUE(::GetUpdateRect(list.m_hWnd, nullptr, FALSE)) << "the selected row is shown again";
    EXPECT_EQ(list.m_pressItem, -1);
}

TEST_F(DragList2, AMoveWithTheButtonBeginsADrag) {
    down(in(1));
    move(in(1), 0);
    EXPECT_NE(::GetCapture(), list.m_hWnd);
    move(in(1));
    EXPECT_EQ(::GetCapture(), list.m_hWnd);
    EXPECT_EQ(list.m_dragStarted, 1);
    EXPECT_EQ(list.calls, (std::vector<std::string>{"begin"}));
    move(in(3));
    EXPECT_EQ(list.calls.back(), "dragging 3");
    EXPECT_EQ(list.last, in(3)) << "client coordinates";
    up(in(3));
    EXPECT_NE(::GetCapture(), list.m_hWnd);
    EXPECT_EQ(list.calls.back(), "dropped 1");
    EXPECT_EQ(list.m_pressItem, -1);
}

int movesBeneath = 0;
WNDPROC systemsList = nullptr;

LRESULT CALLBACK countsMoves(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    movesBeneath += message == WM_MOUSEMOVE;
    return ::CallWindowProcW(systemsList, window, message, wParam, lParam);
}

TEST_F(DragList2, MovesWithoutTheButtonGoOnToTheSystemsList) {
    const HWND plain =
        ::CreateWindowW(L"LISTBOX", L"", WS_CHILD, 0, 0, 50, 50, parent.m_hWnd, nullptr, nullptr, nullptr);
    systemsList = reinterpret_cast<WNDPROC>(
        ::SetWindowLongPtrW(plain, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&countsMoves)));
    List over;
    ASSERT_TRUE(over.SubclassWindow(plain));
    movesBeneath = 0;
    over.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(5, 5));
    EXPECT_EQ(movesBeneath, 1);
    over.SendMessage(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(5, 5));
    EXPECT_EQ(movesBeneath, 1) << "a drag is the list's own";
    over.DestroyWindow();
}

TEST_F(DragList2, OneDragIsBegunForOnePress) {
    down(in(1));
    move(in(1));
    ::ReleaseCapture();
    move(in(2));
    EXPECT_EQ(list.calls, (std::vector<std::string>{"begin"}));
    down(in(1));
    EXPECT_EQ(list.m_dragStarted, 0);
    move(in(2));
    EXPECT_EQ(list.calls, (std::vector<std::string>{"begin", "begin"}));
    ::ReleaseCapture();
}

TEST_F(DragList2, AnEmptyListIsNotDragged) {
    list.ResetContent();
    down(CPoint(10, 10));
    move(CPoint(10, 10));
    EXPECT_TRUE(list.calls.empty());
    EXPECT_NE(::GetCapture(), list.m_hWnd);
}

TEST_F(DragList2, AListOfOneRowIsDragged) {
    list.ResetContent();
    add(L"a");
    down(in(0));
    move(in(0));
    EXPECT_EQ(list.calls, (std::vector<std::string>{"begin"}));
    EXPECT_EQ(::GetCapture(), list.m_hWnd);
    ::ReleaseCapture();
}

TEST_F(DragList2, LosingTheFocusEndsThePress) {
    list.SetFocus();
    down(in(1));
    move(in(1));
    parent.SetFocus();
    EXPECT_NE(::GetCapture(), list.m_hWnd);
    EXPECT_EQ(list.m_pressItem, -1);
}

TEST_F(DragList2, ARowIsMovedUpAndDown) {
    drag(in(3), in(0));
    EXPECT_EQ(texts(), L"dabc");
    EXPECT_EQ(list.m_dragModified, 1);
    drag(in(0), in(2));
    EXPECT_EQ(texts(), L"adbc");
    drag(in(1), beneath());
    EXPECT_EQ(texts(), L"abcd");
}

TEST_F(DragList2, ADropAboveOrBelowTheRowItselfChangesNothing) {
    drag(in(1), in(1));
    drag(in(1), in(2));
    drag(in(3), beneath());
    drag(in(1), outside());
    EXPECT_EQ(texts(), L"abcd");
    EXPECT_EQ(list.m_dragModified, 0);
}

TEST_F(DragList2, ADropOfNoRowChangesNothing) {
    drag(beneath(), in(0));
    EXPECT_EQ(texts(), L"abcd");
    EXPECT_EQ(list.m_dragModified, 0);
}

TEST_F(DragList2, AMovedRowStaysSelectedAndAnotherOneDoesToo) {
    list.SetCurSel(3);
    drag(in(3), in(0));
    EXPECT_EQ(list.GetCurSel(), 0);
    list.SetCurSel(1);
    drag(in(3), in(0));
    EXPECT_EQ(texts(), L"cdab");
    CString selected;
    list.GetText(list.GetCurSel(), selected);
    EXPECT_EQ(selected, L"a");
}

TEST_F(DragList2, AMovedRowLeavesTheListWhereItWasScrolledTo) {
    for (wchar_t letter = L'e'; letter <= L'z'; ++letter) add(CString(letter, 1));
    list.SetTopIndex(5);
    drag(in(6), in(9));
    EXPECT_EQ(list.GetTopIndex(), 5);
    EXPECT_EQ(texts().substr(5, 5), L"fhigj");
}

TEST_F(DragList2, AListScrolledToItsEndStaysThere) {
    for (wchar_t letter = L'e'; letter <= L'z'; ++letter) add(CString(letter, 1));
    list.SetTopIndex(list.GetCount() - 1);
    const int top = list.GetTopIndex();
    ASSERT_GT(top, 0);
    drag(in(top + 1), in(top + 4));
    EXPECT_EQ(list.m_dragModified, 1);
    EXPECT_EQ(list.GetTopIndex(), top);
}

TEST_F(DragList2, TheCursorStopsWhereADropWouldChangeNothing) {
    down(in(1));
    move(in(1));
    list.calls.clear();
    move(in(1));
    move(in(2));
    move(in(0));
    move(in(3));
    move(beneath());
    move(outside());
    EXPECT_EQ(list.calls, (std::vector<std::string>{"dragging 1", "dragging 1", "dragging 3", "dragging 3",
                                                    "dragging 3", "dragging 1"}));
    EXPECT_EQ(list.marks, (std::vector<int>{-1, -1, 0, 3, 4, -1}));
    EXPECT_EQ(::GetCursor(), ::LoadCursorW(nullptr, IDC_NO));
    move(in(3));
    EXPECT_EQ(::GetCursor(), ::LoadCursorW(nullptr, IDC_ARROW));
    ::ReleaseCapture();
}

TEST_F(DragList2, TheLastRowStopsOverTheSpaceBeneathIt) {
    down(in(3));
    move(in(3));
    move(beneath());
    EXPECT_EQ(list.calls.back(), "dragging 1");
    EXPECT_EQ(::GetCursor(), ::LoadCursorW(nullptr, IDC_NO));
    ::ReleaseCapture();
}

TEST_F(DragList2, TheStepsOfADragComeByTheSystemsMessage) {
    const UINT message = ::RegisterWindowMessageW(DRAGLISTMSGSTRING);
    CPoint screen = in(3);
    list.ClientToScreen(&screen);
    list.m_pressItem = 0;
    const auto tell = [&](UINT notification) {
        DRAGLISTINFO info = {notification, list.m_hWnd, screen};
        return list.SendMessage(message, 7, reinterpret_cast<LPARAM>(&info));
    };
    list.m_lastInsert = 2;
    EXPECT_EQ(tell(DL_BEGINDRAG), 1);
    EXPECT_EQ(list.m_lastInsert, -1);
    EXPECT_EQ(tell(DL_DRAGGING), DL_MOVECURSOR);
    EXPECT_EQ(list.m_lastInsert, 3);
    tell(DL_CANCELDRAG);
    EXPECT_EQ(list.m_lastInsert, -1);
    tell(DL_DROPPED);
    EXPECT_EQ(list.calls, (std::vector<std::string>{"begin", "dragging 3", "cancel", "dropped 0"}));
    EXPECT_EQ(texts(), L"bcad");
}

TEST_F(DragList2, TheMarkIsABarAcrossTheRowThatGoesAgain) {
    const Picture before(list);
    list.DrawInsert(2);
    const CRect row = rectOf(2);
    EXPECT_EQ(Picture(list).difference(before), CRect(row.left, row.top - 2, row.right, row.top + 2));
    list.DrawInsert(4);
    const CRect last = rectOf(3);
    EXPECT_EQ(Picture(list).difference(before),
              CRect(last.left, last.bottom - 2, last.right, last.bottom + 2));
    list.DrawInsert(4);
    EXPECT_EQ(Picture(list).difference(before),
              CRect(last.left, last.bottom - 2, last.right, last.bottom + 2));
    list.DrawInsert(0);
    EXPECT_EQ(Picture(list).difference(before), CRect(row.left, 0, row.right, 2)) << "cut by the list's edge";
    list.DrawInsert(-1);
    EXPECT_TRUE(Picture(list) == before);
}

TEST_F(DragList2, TheMarkTurnsOverEveryOtherPixel) {
    const Picture before(list);
    list.DrawInsert(2);
    const Picture marked(list);
    const CRect row = rectOf(2);
    for (int y = row.top - 2; y < row.top + 2; ++y)
        for (int x = row.left + 1; x < row.right; ++x)
            ASSERT_NE(marked.at(x, y) == before.at(x, y), marked.at(x - 1, y) == before.at(x - 1, y))
                << x << " " << y;
}

TEST_F(DragList2, ARowThatIsNotThereHasNoMark) {
    const Picture before(list);
    for (const int row : {5, 6, 100, -2}) {
        list.DrawInsert(row);
        EXPECT_TRUE(Picture(list) == before) << row;
    }
}

int barsDrawn = 0;

BOOL WINAPI countsBars(HDC dc, int x, int y, int width, int height, DWORD operation) {
    ++barsDrawn;
    // By its name: this module's own calls come here.
    static const auto draws = reinterpret_cast<decltype(&::PatBlt)>(
        reinterpret_cast<void*>(::GetProcAddress(::GetModuleHandleW(L"gdi32.dll"), "PatBlt")));
    return draws(dc, x, y, width, height, operation);
}

TEST_F(DragList2, AMarkThatStaysIsNotDrawnAgain) {
    const ui_test::ReplacedImport counts(::GetModuleHandleW(nullptr), "PatBlt", &countsBars);
    ASSERT_TRUE(counts.isThere());
    barsDrawn = 0;
    list.DrawInsert(2);
    EXPECT_EQ(barsDrawn, 1);
    list.DrawInsert(2);
    EXPECT_EQ(barsDrawn, 1);
    list.DrawInsert(3);
    EXPECT_EQ(barsDrawn, 3);
    list.DrawInsert(-1);
    EXPECT_EQ(barsDrawn, 4);
}

TEST_F(DragList2, AnEmptyListHasNoMark) {
    list.ResetContent();
    ui_test::pump();
    list.UpdateWindow();
    const Picture before(list);
    list.DrawInsert(0);
    EXPECT_TRUE(Picture(list) == before);
}

BOOL WINAPI makesNone(HWND) { return FALSE; }

TEST(DragList2Start, WithoutThePlatformsDragListThrows) {
    ui_test::ParentWindow parent;
    const HWND plain =
        ::CreateWindowW(L"LISTBOX", L"", WS_CHILD, 0, 0, 50, 50, parent.m_hWnd, nullptr, nullptr, nullptr);
    const ui_test::ReplacedImport none(::GetModuleHandleW(nullptr), "MakeDragList", &makesNone);
    ASSERT_TRUE(none.isThere());
    CDragListBox2 list;
    try {
        list.SubclassWindow(plain);
        ADD_FAILURE();
    } catch (CInvalidArgException* exception) {
        exception->Delete();
    }
    list.Detach();
}

struct Opened : CDragListBox2 {
    static std::vector<long long> slots() {
        return {slotOf(static_cast<void (CDragListBox2::*)(int)>(&Opened::DrawInsert)),
                slotOf(&Opened::BeginDrag), slotOf(&Opened::CancelDrag), slotOf(&Opened::Dragging),
                slotOf(&Opened::Dropped)};
    }
};

TEST(DragList2Slots, StandInAFixedOrder) {
    const std::vector<long long> slots = Opened::slots();
    for (std::size_t i = 1; i < slots.size(); ++i)
        EXPECT_EQ(slots[i], slots[0] + static_cast<long long>(i)) << i;
}

}  // namespace
