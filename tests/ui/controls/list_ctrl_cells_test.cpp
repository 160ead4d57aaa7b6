// Cells and headings: which lies where, what of them counts for the fit, and what their tips remember.
#include <ktui/controls/kbui_list_ctrl.h>

#include "recording_holder.h"

namespace {

using ui_test::RecordingHolder;
using ui_test::send_move;

constexpr UINT kId = 81;
constexpr const wchar_t* kLong = L"a text that is much wider than what it stands in";

/// Opens what the tip rests on.
class List : public CKbUiListCtrl {
public:
    using CKbUiListCtrl::m_header;
    using CKbUiListCtrl::m_lastMousePoint;
    using CKbUiListCtrl::m_tipColumn;
    using CKbUiListCtrl::m_tipItem;
    using CKbUiListCtrl::m_tipRect;
};
class Header : public CKbUiHeaderCtrl {
public:
    using CKbUiHeaderCtrl::m_lastMousePoint;
    using CKbUiHeaderCtrl::m_tipItem;
    using CKbUiHeaderCtrl::m_tipRect;
};

KBUI_REPLY ask(CWnd& control, KBUI_NOTIFY notification, void* datum) {
    return KbUiNotify(control, kId, notification, reinterpret_cast<unsigned __int64>(datum));
}
CSize extentOf(CWnd& control, const wchar_t* text) {
    CClientDC dc(&control);
    CFont* former = control.GetFont() ? dc.SelectObject(control.GetFont()) : nullptr;
    const CSize extent = dc.GetTextExtent(text, ::lstrlenW(text));
    if (former) dc.SelectObject(former);
    return extent;
}

/// Two columns of 120 and 60 pixels, two rows: "short" and a long text in each.
struct Cells : ::testing::Test {
    Cells() { make(LVS_REPORT); }
    void make(DWORD style) {
        const HWND window =
            ::CreateWindowExW(0, WC_LISTVIEWW, L"", WS_CHILD | WS_VISIBLE | style, 0, 0, 300, 120,
                              holder.m_hWnd, reinterpret_cast<HMENU>(UINT_PTR{kId}), nullptr, nullptr);
        list.SubclassWindow(window);
        list.InsertColumn(0, L"Name", LVCFMT_LEFT, 120);
        list.InsertColumn(1, L"A heading that does not fit", LVCFMT_LEFT, 60);
        for (int row = 0; row < 2; ++row) {
            list.InsertItem(row, L"short");
            list.SetItemText(row, 1, kLong);
        }
    }
    void remake(DWORD style) {
        list.DestroyWindow();
        make(style);
    }
    CPoint pointOf(int row, int column) {
        CRect rect;
        ListView_GetSubItemRect(list.m_hWnd, row, column, LVIR_LABEL, &rect);
        return {rect.left + 6, rect.top + 3};
    }
    void moveTo(CPoint point) { send_move(list, point.x, point.y); }

    RecordingHolder holder;
    List list;
};

TEST_F(Cells, TheFirstColumnIsTrimmedAtItsEndAndTheOthersAtBothSides) {
    CRect icon, label, rect;
    for (int column = 0; column < 2; ++column) {
        ListView_GetSubItemRect(list.m_hWnd, 1, column, LVIR_ICON, &icon);
        ListView_GetSubItemRect(list.m_hWnd, 1, column, LVIR_LABEL, &label);
        label.SubtractRect(CRect(label), icon);
        EXPECT_TRUE(list.GetSubItemRect(1, column, rect));
        EXPECT_EQ(rect, column == 0 ? CRect(label.left, label.top, label.right - 4, label.bottom)
                                    : CRect(label.left + 4, label.top, label.right - 8, label.bottom));
    }
}

TEST_F(Cells, TheIconIsNoPartOfTheLabel) {
    class Iconic : public List {
    public:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
            if (message == LVM_GETSUBITEMRECT) {
                RECT* rect = reinterpret_cast<RECT*>(lParam);
                if (rect->left == LVIR_LABEL && !label) return 0;
                *rect = rect->left == LVIR_ICON ? RECT{10, 5, 26, 21} : RECT{10, 5, 90, 21};
                return 1;
            }
            return List::WindowProc(message, wParam, lParam);
        }
        bool label = true;
    } iconic;
    iconic.Create(WS_CHILD | LVS_REPORT, CRect(0, 0, 200, 90), &holder, 5);
    CRect rect;
    EXPECT_TRUE(iconic.GetSubItemRect(0, 0, rect));
    EXPECT_EQ(rect, CRect(26, 5, 86, 21));
    EXPECT_TRUE(iconic.GetSubItemRect(0, 3, rect));
    EXPECT_EQ(rect, CRect(30, 5, 82, 21));
}

TEST_F(Cells, OwnerDrawingIsToldByTheStyle) {
    EXPECT_FALSE(list.IsOwnerDraw());
    remake(LVS_REPORT | LVS_OWNERDRAWFIXED);
    EXPECT_TRUE(list.IsOwnerDraw());
}

TEST_F(Cells, AnExtentNeedsACellOnlyWhereThereIsAHeader) {
    const CSize whole = extentOf(list, kLong);
    const struct {
        int item, column;
        bool cell;
    } cells[] = {{0, 0, true},   {1, 1, true},  {-1, 0, false}, {2, 0, false},
                 {0, -1, false}, {0, 2, false}, {5, 5, false}};
    for (const auto& each : cells) {
        int cx = -1, cy = -1;
        list.GetContentExtent(each.item, each.column, kLong, cx, cy);
        EXPECT_EQ(CSize(cx, cy), each.cell ? whole : CSize(0, 0)) << each.item << " " << each.column;
    }
    remake(LVS_LIST);
    ASSERT_EQ(list.m_header.m_hWnd, nullptr);
    int cx = -1, cy = -1;
    list.GetContentExtent(-1, 99, kLong, cx, cy);
    EXPECT_EQ(CSize(cx, cy), whole);
}

TEST_F(Cells, WithoutAHeaderTheCellEndsWithTheClientArea) {
    /// A list whose only cell reaches past the client area on both sides.
    class Wide : public List {
    public:
        CRect cell{-25, 5, 900, 60};
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
            if (message == LVM_SUBITEMHITTEST) {
                reinterpret_cast<LVHITTESTINFO*>(lParam)->iItem = 0;
                reinterpret_cast<LVHITTESTINFO*>(lParam)->iSubItem = 0;
                return 0;
            }
            if (message == LVM_GETSUBITEMRECT) {
                RECT* rect = reinterpret_cast<RECT*>(lParam);
                *rect = rect->left == LVIR_ICON ? RECT{0, 0, 0, 0} : static_cast<RECT>(cell);
                return 1;
            }
            return List::WindowProc(message, wParam, lParam);
        }
    } wide;
    wide.Create(WS_CHILD | LVS_LIST, CRect(0, 0, 100, 90), &holder, 5);
    wide.InsertItem(0, kLong);
    CRect client, rect;
    wide.GetClientRect(&client);
    send_move(wide, 3, 3);
    EXPECT_EQ(ask(wide, kKbUiNotifyGetTipRect, &rect), kKbUiReplyHandled);
    EXPECT_EQ(rect.left, 0);
    EXPECT_EQ(rect.Size(), extentOf(wide, kLong));
    // A text that fits tells what of the cell was left.
    wide.SetItemText(0, 0, L"i");
    send_move(wide, 3, 4);
    EXPECT_EQ(ask(wide, kKbUiNotifyGetTipRect, &rect), kKbUiReplyNone);
    EXPECT_EQ(rect, CRect(0, 5, client.right, 60));
    wide.cell = CRect(7, 5, 60, 60);
    send_move(wide, 3, 5);
    EXPECT_EQ(ask(wide, kKbUiNotifyGetTipRect, &rect), kKbUiReplyNone);
    EXPECT_EQ(rect, CRect(7, 5, 56, 60)) << "what lies inside stays";
}

TEST_F(Cells, ATakenHeaderTellsTheOneThatTheListTells) {
    RecordingHolder other;
    List told;
    const HWND window = ::CreateWindowExW(0, WC_LISTVIEWW, L"", WS_CHILD | WS_VISIBLE | LVS_REPORT, 0, 0, 90,
                                          90, holder.m_hWnd, nullptr, nullptr, nullptr);
    told.SetKbUiParent(&other);
    told.SubclassWindow(window);
    ASSERT_NE(ListView_GetHeader(window), nullptr);
    EXPECT_EQ(told.m_header.m_hWnd, ListView_GetHeader(window));
    EXPECT_EQ(told.m_header.GetKbUiParent(), &other);
    EXPECT_EQ(list.m_header.GetKbUiParent(), &holder);
    EXPECT_EQ(list.m_header.m_hWnd, ListView_GetHeader(list.m_hWnd));
}

TEST_F(Cells, ATipRemembersItsCellOnlyWhereItIsWanted) {
    moveTo(pointOf(0, 1));
    CRect rect;
    EXPECT_EQ(ask(list, kKbUiNotifyGetTipRect, &rect), kKbUiReplyHandled);
    EXPECT_EQ(list.m_tipItem, 0);
    EXPECT_EQ(list.m_tipColumn, 1);
    EXPECT_EQ(list.m_tipRect, rect);
    const CRect former = rect;
    moveTo(pointOf(1, 0));
    EXPECT_EQ(ask(list, kKbUiNotifyGetTipRect, &rect), kKbUiReplyNone);
    EXPECT_EQ(list.m_tipItem, 0);
    EXPECT_EQ(list.m_tipColumn, 1);
    EXPECT_EQ(list.m_tipRect, former);
    moveTo({10, 115});
    EXPECT_EQ(ask(list, kKbUiNotifyGetTipRect, &rect), kKbUiReplyNone);
    EXPECT_TRUE(rect.IsRectNull());
}

TEST_F(Cells, SupportGoesByRowAndColumnAndIsStoredInEachCase) {
    CPoint a = pointOf(0, 0), b = pointOf(1, 0), c = pointOf(1, 1), nowhere(10, 115);
    EXPECT_EQ(ask(list, kKbUiNotifyGetTipSupport, &a), kKbUiReplyTextTip);
    EXPECT_EQ(ask(list, kKbUiNotifyGetTipSupport, &b), kKbUiReplyTextTip);
    EXPECT_EQ(ask(list, kKbUiNotifyGetTipSupport, &c), kKbUiReplyTextTip);
    EXPECT_EQ(ask(list, kKbUiNotifyGetTipSupport, &c), kKbUiReplyHandled);
    EXPECT_EQ(ask(list, kKbUiNotifyGetTipSupport, &nowhere), kKbUiReplyNone);
    EXPECT_EQ(ask(list, kKbUiNotifyGetTipSupport, &c), kKbUiReplyHandled) << "nothing is forgotten beside it";
    list.ModifyStyle(0, LVS_OWNERDRAWFIXED);
    EXPECT_EQ(ask(list, kKbUiNotifyGetTipSupport, &a), kKbUiReplyDrawnTip);
    EXPECT_EQ(list.m_tipItem, 0);
    EXPECT_EQ(list.m_tipColumn, 0);
    list.ModifyStyle(LVS_OWNERDRAWFIXED, 0);
    EXPECT_EQ(ask(list, kKbUiNotifyGetTipSupport, &a), kKbUiReplyHandled);
}

TEST_F(Cells, TextAndHitNeedACellUnderTheMouse) {
    CString text = L"old";
    CPoint on = pointOf(0, 0);
    moveTo({10, 115});
    EXPECT_EQ(ask(list, kKbUiNotifyGetTipText, &text), kKbUiReplyNone);
    EXPECT_EQ(text, L"old");
    EXPECT_EQ(ask(list, kKbUiNotifyHitTipRect, &on), kKbUiReplyNone);
    moveTo(pointOf(1, 0));
    EXPECT_EQ(ask(list, kKbUiNotifyGetTipText, &text), kKbUiReplyHandled);
    EXPECT_EQ(text, L"short");
    list.SetItemText(1, 0, L"row one");
    EXPECT_EQ(ask(list, kKbUiNotifyGetTipText, &text), kKbUiReplyHandled);
    EXPECT_EQ(text, L"row one");
}

TEST_F(Cells, NothingWasSeenAtFirst) {
    List fresh;
    EXPECT_EQ(fresh.m_lastMousePoint, CPoint(0, 0));
    EXPECT_EQ(fresh.m_tipRect, CRect(0, 0, 0, 0));
    EXPECT_EQ(fresh.m_tipItem, -1);
    EXPECT_EQ(fresh.m_tipColumn, -1);
    Header heading;
    EXPECT_EQ(heading.m_lastMousePoint, CPoint(0, 0));
    EXPECT_EQ(heading.m_tipRect, CRect(0, 0, 0, 0));
    EXPECT_EQ(heading.m_tipItem, -1);
}

/// A header of two headings, 120 and 60 pixels wide.
struct Headings : ::testing::Test {
    Headings() {
        header.Create(WS_CHILD | WS_VISIBLE | HDS_HORZ, CRect(0, 0, 300, 24), &holder, kId);
        insert(0, L"Name", 120);
        insert(1, kLong, 60);
    }
    void insert(int index, const wchar_t* text, int width) {
        HDITEMW item = {};
        item.mask = HDI_TEXT | HDI_WIDTH | HDI_FORMAT;
        item.fmt = HDF_STRING;
        item.pszText = const_cast<wchar_t*>(text);
        item.cxy = width;
        ::SendMessageW(header.m_hWnd, HDM_INSERTITEMW, WPARAM(index), reinterpret_cast<LPARAM>(&item));
    }
    RecordingHolder holder;
    Header header;
};

TEST_F(Headings, LieWhereThePlatformPutsThem) {
    const struct {
        CPoint point;
        int item;
    } places[] = {{{0, 0}, 0}, {{119, 5}, 0}, {{120, 5}, 1}, {{179, 23}, 1}, {{180, 5}, -1}, {{5, 24}, -1}};
    for (const auto& place : places) {
        CPoint point = place.point;
        EXPECT_EQ(header.GetItemAtPoint(point), place.item) << point.x << " " << point.y;
    }
}

TEST_F(Headings, TheTipsPlaceIsThePlatformsAdjusted) {
    CRect rect;
    EXPECT_TRUE(header.GetItemRect(1, rect));
    EXPECT_EQ(rect, CRect(120 + 4 + 20, 24, 180 - 8 + 20, 48));
    EXPECT_FALSE(header.GetItemRect(2, rect));
}

TEST_F(Headings, ATextIsCutAfterTwoHundredAndFiftyFourCharacters) {
    insert(2, CString(L'x', 300), 10);
    CString text;
    header.GetText(2, text);
    EXPECT_EQ(text, CString(L'x', 254));
    header.GetText(-1, text);
    EXPECT_TRUE(text.IsEmpty());
}

TEST_F(Headings, AnExtentIsThatOfTheTextForHeadingsOnly) {
    for (const int index : {-1, 0, 1, 2}) {
        int cx = -1, cy = -1;
        header.GetContentExtent(index, kLong, cx, cy);
        EXPECT_EQ(CSize(cx, cy), index == 0 || index == 1 ? extentOf(header, kLong) : CSize(0, 0)) << index;
    }
}

TEST_F(Headings, ATipRemembersItsHeadingOnlyWhereItIsWanted) {
    CRect rect(1, 2, 3, 4);
    send_move(header, 130, 5);
    EXPECT_EQ(ask(header, kKbUiNotifyGetTipRect, &rect), kKbUiReplyHandled);
    EXPECT_EQ(rect, CRect(CPoint(144, 24), extentOf(header, kLong)));
    EXPECT_EQ(header.m_tipRect, rect);
    EXPECT_EQ(header.m_tipItem, 1);
    send_move(header, 5, 5);
    EXPECT_EQ(ask(header, kKbUiNotifyGetTipRect, &rect), kKbUiReplyNone);
    EXPECT_EQ(header.m_tipItem, 1);
    CString text;
    EXPECT_EQ(ask(header, kKbUiNotifyGetTipText, &text), kKbUiReplyHandled);
    EXPECT_EQ(text, kLong) << "the tip's heading, not the one under the mouse";
    send_move(header, 250, 5);
    EXPECT_EQ(ask(header, kKbUiNotifyGetTipRect, &rect), kKbUiReplyNone);
    EXPECT_TRUE(rect.IsRectNull());
}

TEST_F(Headings, TheFirstHeadingHasATipToo) {
    insert(0, kLong, 40);
    send_move(header, 5, 5);
    CRect rect;
    EXPECT_EQ(ask(header, kKbUiNotifyGetTipRect, &rect), kKbUiReplyHandled);
    EXPECT_EQ(rect, CRect(CPoint(24, 24), extentOf(header, kLong)));
    EXPECT_EQ(header.m_tipItem, 0);
}

TEST_F(Headings, AHeadingThatIsNotOwnerDrawnHasTheTipOfAText) {
    CPoint second(130, 5);
    EXPECT_EQ(header.IsOwnerDraw(0), 0);
    EXPECT_EQ(header.IsOwnerDraw(-1), 0);
    EXPECT_EQ(header.IsOwnerDraw(2), 0);
    EXPECT_EQ(ask(header, kKbUiNotifyGetTipSupport, &second), kKbUiReplyTextTip);
    EXPECT_EQ(header.m_tipItem, 1);
    HDITEMW item = {};
    item.mask = HDI_FORMAT;
    item.fmt = HDF_OWNERDRAW;
    ::SendMessageW(header.m_hWnd, HDM_SETITEMW, 1, reinterpret_cast<LPARAM>(&item));
    EXPECT_EQ(header.IsOwnerDraw(1), 1);
    CPoint first(5, 5);
    EXPECT_EQ(ask(header, kKbUiNotifyGetTipSupport, &first), kKbUiReplyDrawnTip);
    EXPECT_EQ(header.m_tipItem, 0);
}

/// Notes the questions for its headings' formats.
struct AskedHeader : Header {
    int formats = 0;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == HDM_GETITEMW && reinterpret_cast<HDITEMW*>(lParam)->mask == HDI_FORMAT) ++formats;
        return Header::WindowProc(message, wParam, lParam);
    }
};

TEST_F(Headings, ADrawnTipAsksForTheFormatWhileItHasNoPlace) {
    AskedHeader asked;
    asked.Create(WS_CHILD | HDS_HORZ, CRect(0, 0, 300, 24), &holder, 5);
    CClientDC dc(&holder);
    EXPECT_EQ(ask(asked, kKbUiNotifyDrawTip, &dc), kKbUiReplyHandled);
    EXPECT_EQ(asked.formats, 1);
    asked.m_tipRect = CRect(1, 1, 2, 2);
    EXPECT_EQ(ask(asked, kKbUiNotifyDrawTip, &dc), kKbUiReplyHandled);
    EXPECT_EQ(asked.formats, 1);
}

}  // namespace
