#include <ktui/controls/kbui_list_ctrl.h>

#include "recording_holder.h"

using ui_test::RecordingHolder;
using ui_test::send_move;

namespace {

constexpr UINT kListId = 51;
constexpr const wchar_t* kLongText = L"a cell text that is much wider than its column";

/// A report list with two columns and two rows, the second column narrow.
struct Report {
    RecordingHolder holder;
    CKbUiListCtrl list;
    HWND header = nullptr;

    explicit Report(DWORD style = 0) {
        const HWND window =
            ::CreateWindowExW(0, WC_LISTVIEWW, L"", WS_CHILD | WS_VISIBLE | LVS_REPORT | style, 0, 0, 300,
                              120, holder.m_hWnd, reinterpret_cast<HMENU>(kListId), nullptr, nullptr);
        header = ListView_GetHeader(window);
        addColumn(window, 0, L"Name", 120);
        addColumn(window, 1, L"A heading that does not fit", 60);
        list.SubclassWindow(window);
        for (int row = 0; row < 2; ++row) {
            list.InsertItem(row, L"short");
            list.SetItemText(row, 1, kLongText);
        }
    }
    static void addColumn(HWND window, int index, const wchar_t* text, int width) {
        LVCOLUMNW column = {};
        column.mask = LVCF_TEXT | LVCF_WIDTH;
        column.pszText = const_cast<wchar_t*>(text);
        column.cx = width;
        ::SendMessageW(window, LVM_INSERTCOLUMNW, static_cast<WPARAM>(index),
                       reinterpret_cast<LPARAM>(&column));
    }
    CPoint pointOf(int row, int column) {
        CRect rect;
        list.GetSubItemRect(row, column, rect);
        return {rect.left + 2, rect.top + 2};
    }
    void moveTo(int row, int column) {
        const CPoint point = pointOf(row, column);
        send_move(list, point.x, point.y);
    }
    KBUI_REPLY ask(KBUI_NOTIFY notification, void* datum) {
        return KbUiNotify(list, kListId, notification, reinterpret_cast<unsigned __int64>(datum));
    }
    CKbUiHeaderCtrl& headerControl() {
        return *static_cast<CKbUiHeaderCtrl*>(CWnd::FromHandlePermanent(header));
    }
    KBUI_REPLY askHeader(KBUI_NOTIFY notification, void* datum) {
        return KbUiNotify(headerControl(), 0, notification, reinterpret_cast<unsigned __int64>(datum));
    }
};

}  // namespace

TEST(ListCtrl, ColumnCountIsTheNumberOfRows) {
    Report report;
    EXPECT_EQ(report.list.ColumnCount(), 2);
    report.list.InsertItem(2, L"third");
    EXPECT_EQ(report.list.ColumnCount(), 3);
}

TEST(ListCtrl, HitTestTellsRowAndColumn) {
    Report report;
    int item = 0;
    int column = 0;
    CPoint point = report.pointOf(1, 1);
    report.list.GetItemAtPoint(point, item, column);
    EXPECT_EQ(item, 1);
    EXPECT_EQ(column, 1);
    CPoint below(10, 115);
    report.list.GetItemAtPoint(below, item, column);
    EXPECT_EQ(item, -1);
    EXPECT_EQ(column, -1);
}

TEST(ListCtrl, CellRectIsTheLabelTrimmed) {
    Report report;
    CRect label;
    ListView_GetSubItemRect(report.list.m_hWnd, 0, 1, LVIR_LABEL, &label);
    CRect rect;
    EXPECT_TRUE(report.list.GetSubItemRect(0, 1, rect));
    EXPECT_EQ(rect, CRect(label.left + 4, label.top, label.right - 8, label.bottom));
}

TEST(ListCtrl, CellThatIsNotThereHasNoRect) {
    Report report;
    CRect rect(1, 2, 3, 4);
    EXPECT_FALSE(report.list.GetSubItemRect(99, 0, rect));
    EXPECT_TRUE(rect.IsRectEmpty());
}

TEST(ListCtrl, EmbeddedHeaderIsTakenOver) {
    Report report;
    EXPECT_TRUE(report.headerControl().IsKindOf(RUNTIME_CLASS(CKbUiHeaderCtrl)));
    EXPECT_EQ(report.headerControl().GetKbUiParent(), &report.holder);
}

TEST(ListCtrlTip, ClippedCellGivesOneAndAFittingOneDoesNot) {
    Report report;
    CRect rect;
    report.moveTo(0, 0);
    EXPECT_EQ(report.ask(kKbUiNotifyGetTipRect, &rect), kKbUiReplyNone);
    report.moveTo(0, 1);
    CRect cell;
    report.list.GetSubItemRect(0, 1, cell);
    EXPECT_EQ(report.ask(kKbUiNotifyGetTipRect, &rect), kKbUiReplyHandled);
    EXPECT_EQ(rect.TopLeft(), cell.TopLeft());
    int cx = 0;
    int cy = 0;
    report.list.GetContentExtent(0, 1, kLongText, cx, cy);
    EXPECT_EQ(rect.Width(), cx);
    EXPECT_EQ(rect.Height(), cy);
}

TEST(ListCtrlTip, SameCellIsKnownAgain) {
    Report report;
    CPoint first = report.pointOf(0, 0);
    CPoint sameRow = report.pointOf(0, 1);
    EXPECT_EQ(report.ask(kKbUiNotifyGetTipSupport, &first), kKbUiReplyTextTip);
    EXPECT_EQ(report.ask(kKbUiNotifyGetTipSupport, &first), kKbUiReplyHandled);
    EXPECT_EQ(report.ask(kKbUiNotifyGetTipSupport, &sameRow), kKbUiReplyTextTip);
}

TEST(ListCtrlTip, OwnerDrawnCellIsAlwaysNew) {
    Report report(LVS_OWNERDRAWFIXED);
    CPoint point(5, 40);
    int item = -1;
    int column = -1;
    report.list.GetItemAtPoint(point, item, column);
    ASSERT_GE(item, 0);
    EXPECT_EQ(report.ask(kKbUiNotifyGetTipSupport, &point), kKbUiReplyDrawnTip);
    EXPECT_EQ(report.ask(kKbUiNotifyGetTipSupport, &point), kKbUiReplyDrawnTip);
}

TEST(ListCtrlTip, TextAndHitGoByTheLastMouseMove) {
    Report report;
    report.moveTo(1, 1);
    CString text;
    EXPECT_EQ(report.ask(kKbUiNotifyGetTipText, &text), kKbUiReplyHandled);
    EXPECT_STREQ(text, kLongText);
    CPoint nowhere(10, 115);
    EXPECT_EQ(report.ask(kKbUiNotifyHitTipRect, &nowhere), kKbUiReplyHandled)
        << "the argument isn't looked at";
}

TEST(ListCtrl, ExtentIsZeroOutsideTheTable) {
    Report report;
    int cx = -1;
    int cy = -1;
    report.list.GetContentExtent(0, 2, L"x", cx, cy);
    EXPECT_EQ(cx, 0);
    report.list.GetContentExtent(2, 0, L"x", cx, cy);
    EXPECT_EQ(cx, 0);
    report.list.GetContentExtent(0, 0, L"x", cx, cy);
    EXPECT_GT(cx, 0);
}

TEST(HeaderTip, LiesTwentyPixelsToTheRightBelowTheHeader) {
    Report report;
    CRect item;
    Header_GetItemRect(report.header, 1, &item);
    send_move(report.headerControl(), item.left + 5, item.top + 3);
    CRect rect;
    EXPECT_EQ(report.askHeader(kKbUiNotifyGetTipRect, &rect), kKbUiReplyHandled);
    EXPECT_EQ(rect.left, item.left + 4 + 20);
    EXPECT_EQ(rect.top, item.bottom);
    CString text;
    EXPECT_EQ(report.askHeader(kKbUiNotifyGetTipText, &text), kKbUiReplyHandled);
    EXPECT_STREQ(text, L"A heading that does not fit");
}

TEST(HeaderTip, FittingItemGivesNone) {
    Report report;
    send_move(report.headerControl(), 5, 5);
    CRect rect;
    EXPECT_EQ(report.askHeader(kKbUiNotifyGetTipRect, &rect), kKbUiReplyNone);
}

TEST(HeaderTip, SupportTellsNewFromKnown) {
    Report report;
    CPoint first(5, 5);
    CPoint second(130, 5);
    CPoint outside(290, 5);
    EXPECT_EQ(report.askHeader(kKbUiNotifyGetTipSupport, &first), kKbUiReplyTextTip);
    EXPECT_EQ(report.askHeader(kKbUiNotifyGetTipSupport, &first), kKbUiReplyHandled);
    EXPECT_EQ(report.askHeader(kKbUiNotifyGetTipSupport, &second), kKbUiReplyTextTip);
    EXPECT_EQ(report.askHeader(kKbUiNotifyGetTipSupport, &outside), kKbUiReplyNone);
    EXPECT_EQ(report.askHeader(kKbUiNotifyHitTipRect, &first), kKbUiReplyHandled);
    EXPECT_EQ(report.askHeader(kKbUiNotifyHitTipRect, &outside), kKbUiReplyNone);
}

TEST(HeaderTip, OwnerDrawIsToldByTheItemUnderTheFormerTip) {
    Report report;
    HDITEMW item = {};
    item.mask = HDI_FORMAT;
    item.fmt = HDF_OWNERDRAW;
    ::SendMessageW(report.header, HDM_SETITEMW, 0, reinterpret_cast<LPARAM>(&item));
    EXPECT_EQ(report.headerControl().IsOwnerDraw(0), 1);
    EXPECT_EQ(report.headerControl().IsOwnerDraw(1), 0);
    CPoint first(5, 5);
    CPoint second(130, 5);
    EXPECT_EQ(report.askHeader(kKbUiNotifyGetTipSupport, &first), kKbUiReplyTextTip) << "no tip before";
    EXPECT_EQ(report.askHeader(kKbUiNotifyGetTipSupport, &second), kKbUiReplyDrawnTip)
        << "the former is drawn";
    EXPECT_EQ(report.askHeader(kKbUiNotifyGetTipSupport, &first), kKbUiReplyTextTip);
}

TEST(Header, TextOutsideTheItemsIsEmpty) {
    Report report;
    CString text = L"old";
    report.headerControl().GetText(7, text);
    EXPECT_TRUE(text.IsEmpty());
    report.headerControl().GetText(0, text);
    EXPECT_STREQ(text, L"Name");
}

TEST(Header, MoveIsReportedToTheListsHolder) {
    Report report;
    send_move(report.headerControl(), 5, 5);
    send_move(report.headerControl(), 5, 5);
    EXPECT_EQ(report.holder.count(kKbUiNotifyUpdateTip), 1);
    EXPECT_EQ(report.holder.heard[0].datum,
              reinterpret_cast<LPARAM>(static_cast<CWnd*>(&report.headerControl())));
}

TEST(ListCtrlTip, QuestionsWithoutAPlaceAreAboutTheCellUnderTheMouse) {
    Report report;
    report.moveTo(0, 1);
    EXPECT_EQ(report.ask(kKbUiNotifyGetTipSupport, nullptr), kKbUiReplyTextTip);
    EXPECT_EQ(KbUiNotify(report.list, kListId, kKbUiNotifyGetTipSupport, 1), kKbUiReplyHandled);
    EXPECT_EQ(report.ask(kKbUiNotifyGetTipText, nullptr), kKbUiReplyHandled);
    EXPECT_EQ(report.ask(kKbUiNotifyGetTipRect, nullptr), kKbUiReplyHandled);
    EXPECT_EQ(report.ask(kKbUiNotifyDrawTip, nullptr), kKbUiReplyNone);
    EXPECT_EQ(report.ask(kKbUiNotifyDrawTipText, nullptr), kKbUiReplyNone);
}

TEST(HeaderTip, QuestionsWithoutAPlaceAreAboutTheItemUnderTheMouse) {
    Report report;
    ::SendMessageW(report.header, WM_MOUSEMOVE, 0, MAKELPARAM(130, 3));
    EXPECT_EQ(report.askHeader(kKbUiNotifyGetTipSupport, nullptr), kKbUiReplyTextTip);
    EXPECT_EQ(KbUiNotify(report.headerControl(), 0, kKbUiNotifyGetTipSupport, 1), kKbUiReplyHandled);
    EXPECT_EQ(report.askHeader(kKbUiNotifyHitTipRect, nullptr), kKbUiReplyHandled);
    EXPECT_EQ(report.askHeader(kKbUiNotifyGetTipText, nullptr), kKbUiReplyHandled);
    EXPECT_EQ(report.askHeader(kKbUiNotifyGetTipRect, nullptr), kKbUiReplyHandled);
}

TEST(ListCtrlTip, EveryCellIsHitAndTheGroundBelowIsNot) {
    Report report;
    CPoint any(0, 0);
    for (const int column : {0, 1}) {
        report.moveTo(1, column);
        EXPECT_EQ(report.ask(kKbUiNotifyHitTipRect, &any), kKbUiReplyHandled) << column;
    }
    send_move(report.list, 10, 115);
    EXPECT_EQ(report.ask(kKbUiNotifyHitTipRect, &any), kKbUiReplyNone);
}

namespace {

/// Notes which cell's extent it is asked for.
class AskedList : public CKbUiListCtrl {
public:
    int item = -1, column = -1;
    CString text;
    void GetContentExtent(int item_, int column_, const wchar_t* text_, int& cx, int& cy) override {
        item = item_;
        column = column_;
        text = text_;
        CKbUiListCtrl::GetContentExtent(item_, column_, text_, cx, cy);
    }
};

}  // namespace

TEST(ListCtrlTip, ExtentIsAskedForTheCellUnderThePointer) {
    RecordingHolder holder;
    AskedList list;
    const HWND window =
        ::CreateWindowExW(0, WC_LISTVIEWW, L"", WS_CHILD | WS_VISIBLE | LVS_REPORT, 0, 0, 300, 120,
                          holder.m_hWnd, reinterpret_cast<HMENU>(kListId), nullptr, nullptr);
    for (const int column : {0, 1, 2}) Report::addColumn(window, column, L"c", 60);
    list.SubclassWindow(window);
    for (int row = 0; row < 2; ++row) list.InsertItem(row, L"row");
    list.SetItemText(1, 2, kLongText);
    CRect cell;
    list.GetSubItemRect(1, 2, cell);
    send_move(list, cell.left + 2, cell.top + 2);
    CRect rect;
    EXPECT_EQ(KbUiNotify(list, kListId, kKbUiNotifyGetTipRect, reinterpret_cast<unsigned __int64>(&rect)),
              kKbUiReplyHandled);
    EXPECT_EQ(list.item, 1);
    EXPECT_EQ(list.column, 2);
    EXPECT_STREQ(list.text, kLongText);
}
