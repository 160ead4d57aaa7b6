// Which entry of a list box lies where, how large its text is, when its tip is wanted, and who draws it.
#include <algorithm>
#include <string>
#include <vector>

#include <ktui/controls/kbui_list_box.h>
#include <ktui/input/kbui_combo_box.h>

#include "recording_holder.h"

namespace {

using ui_test::RecordingHolder;
using ui_test::send_move;

constexpr UINT kId = 71;
constexpr const wchar_t* kLong = L"an entry that is much wider than its list";

/// Lets a test take the text away, and counts what reaches the platform.
class ListBox : public CKbUiListBox {
public:
    using CKbUiListBox::m_lastMousePoint;
    using CKbUiListBox::m_tipItem;
    using CKbUiListBox::m_tipRect;
    bool silent = false;
    std::vector<UINT> defaults;
    BOOL OnGetTipText(CString& text) override { return silent ? FALSE : CKbUiListBox::OnGetTipText(text); }

protected:
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        defaults.push_back(message);
        return CKbUiListBox::DefWindowProc(message, wParam, lParam);
    }
};

struct ListBoxEntries : ::testing::Test {
    ListBoxEntries() { make(0, 120); }
    void make(DWORD style, int width) {
        if (list.m_hWnd) list.DestroyWindow();
        list.Create(WS_CHILD | WS_VISIBLE | LBS_NOINTEGRALHEIGHT | LBS_HASSTRINGS | style,
                    CRect(0, 0, width, 90), &holder, kId);
        list.SetFont(CFont::FromHandle(static_cast<HFONT>(::GetStockObject(DEFAULT_GUI_FONT))));
    }
    KBUI_REPLY ask(KBUI_NOTIFY notification, void* datum) {
        return KbUiNotify(list, kId, notification, reinterpret_cast<unsigned __int64>(datum));
    }
    CSize extentOf(const wchar_t* text) {
        CClientDC dc(&list);
        CFont* former = dc.SelectObject(list.GetFont());
        const CSize extent = dc.GetTextExtent(text, ::lstrlenW(text));
        dc.SelectObject(former);
        return extent;
    }
    RecordingHolder holder;
    ListBox list;
};

TEST_F(ListBoxEntries, APointOutsideHasNoEntry) {
    list.AddString(L"a");
    list.AddString(L"b");
    CRect first, second;
    list.GetItemRect(0, &first);
    list.GetItemRect(1, &second);
    const struct {
        CPoint point;
        int item;
    } places[] = {{{first.left + 1, first.top}, 0},
                  {{first.left + 1, first.bottom - 1}, 0},
                  {{second.left + 1, second.top}, 1},
                  {{second.left + 1, second.bottom - 1}, 1},
                  {{second.left + 1, second.bottom}, -1},
                  {{200, 3}, -1},
                  {{3, -4}, -1}};
    for (const auto& place : places) {
        CPoint point = place.point;
        EXPECT_EQ(list.GetItemAtPoint(point), place.item) << point.x << " " << point.y;
    }
    list.ResetContent();
    CPoint point(3, 3);
    EXPECT_EQ(list.GetItemAtPoint(point), -1);
}

TEST_F(ListBoxEntries, NothingWasSeenAtFirst) {
    EXPECT_EQ(list.m_lastMousePoint, CPoint(0, 0));
    EXPECT_EQ(list.m_tipRect, CRect(0, 0, 0, 0));
    EXPECT_EQ(list.m_tipItem, -1);
}

TEST_F(ListBoxEntries, BothKindsOfOwnerDrawingCount) {
    EXPECT_FALSE(list.IsOwnerDraw());
    make(LBS_OWNERDRAWFIXED, 120);
    EXPECT_TRUE(list.IsOwnerDraw());
    make(LBS_OWNERDRAWVARIABLE, 120);
    EXPECT_TRUE(list.IsOwnerDraw());
}

TEST_F(ListBoxEntries, AnExtentIsThatOfTheTextForEntriesOnly) {
    list.AddString(L"a");
    int cx = -1, cy = -1;
    list.GetContentExtent(0, kLong, cx, cy);
    EXPECT_EQ(CSize(cx, cy), extentOf(kLong) + CSize(1, 1));
    for (const int index : {-1, 1}) {
        cx = cy = -1;
        list.GetContentExtent(index, kLong, cx, cy);
        EXPECT_EQ(CSize(cx, cy), CSize(0, 0)) << index;
    }
}

TEST_F(ListBoxEntries, ATextAsWideAsTheRowFits) {
    list.AddString(kLong);
    const int width = extentOf(kLong).cx + 1;
    CRect rect;
    for (const int more : {0, -1}) {
        list.SetWindowPos(nullptr, 0, 0, width + more, 90, SWP_NOMOVE | SWP_NOZORDER);
        CRect row;
        list.GetItemRect(0, &row);
        ASSERT_EQ(row.Width(), width + more);
        send_move(list, 4, 4 - more);
        rect = CRect(1, 2, 3, 4);
        EXPECT_EQ(ask(kKbUiNotifyGetTipRect, &rect), more == 0 ? kKbUiReplyNone : kKbUiReplyHandled);
        const int bottom = row.top + std::max<int>(row.Height(), extentOf(kLong).cy + 1);
        EXPECT_EQ(rect, more == 0 ? CRect(0, 0, 0, 0) : CRect(row.left, row.top, row.left + width, bottom));
    }
}

TEST_F(ListBoxEntries, ATipIsAsHighAsItsTextWhenTheRowIsNot) {
    class Drawn : public ListBox {
    public:
        void MeasureItem(LPMEASUREITEMSTRUCT item) override { item->itemHeight = 5; }
        void DrawItem(LPDRAWITEMSTRUCT) override {}
    } low;
    low.Create(WS_CHILD | WS_VISIBLE | LBS_HASSTRINGS | LBS_OWNERDRAWFIXED, CRect(0, 0, 90, 90), &holder, 5);
    low.AddString(kLong);
    low.AddString(kLong);
    send_move(low, 3, 7);
    CRect rect;
    EXPECT_EQ(KbUiNotify(low, 5, kKbUiNotifyGetTipRect, reinterpret_cast<unsigned __int64>(&rect)), 1);
    CRect row;
    low.GetItemRect(1, &row);
    int cx = 0, cy = 0;
    low.GetTextExtent(kLong, cx, cy);
    ASSERT_GT(cy, row.Height());
    EXPECT_EQ(rect, CRect(row.left, row.top, row.left + cx, row.top + cy));
}

TEST_F(ListBoxEntries, WithoutATextThereIsNoTip) {
    list.AddString(kLong);
    send_move(list, 3, 3);
    list.silent = true;
    CRect rect;
    EXPECT_EQ(ask(kKbUiNotifyGetTipRect, &rect), kKbUiReplyNone);
    list.silent = false;
    EXPECT_EQ(ask(kKbUiNotifyGetTipRect, &rect), kKbUiReplyHandled);
}

TEST_F(ListBoxEntries, APlaceWithoutAnEntryForgetsTheFormerOne) {
    list.AddString(kLong);
    CPoint on(3, 3);
    EXPECT_EQ(ask(kKbUiNotifyGetTipSupport, &on), kKbUiReplyTextTip);
    CPoint off(3, 80);
    EXPECT_EQ(ask(kKbUiNotifyGetTipSupport, &off), kKbUiReplyNone);
    EXPECT_EQ(ask(kKbUiNotifyGetTipSupport, &on), kKbUiReplyHandled) << "a look beside it forgets nothing";
    send_move(list, 3, 80);
    CRect rect(1, 2, 3, 4);
    EXPECT_EQ(ask(kKbUiNotifyGetTipRect, &rect), kKbUiReplyNone);
    EXPECT_TRUE(rect.IsRectNull());
    EXPECT_EQ(ask(kKbUiNotifyGetTipSupport, &on), kKbUiReplyTextTip) << "the question for the place does";
    send_move(list, 3, 3);
    list.AddString(L"b");
    CRect row;
    list.GetItemRect(1, &row);
    send_move(list, 3, row.top + 1);
    EXPECT_EQ(ask(kKbUiNotifyGetTipRect, &rect), kKbUiReplyNone);
    CPoint second(3, row.top + 2);
    EXPECT_EQ(ask(kKbUiNotifyGetTipSupport, &second), kKbUiReplyHandled)
        << "or takes the entry that it found";
}

TEST_F(ListBoxEntries, EachOperationOfDrawingGoesToTheComboBoxWhileItIsThereAndAsked) {
    class Combo : public CKbUiComboBox {
    public:
        std::vector<std::string> calls;
        int CompareItem(LPCOMPAREITEMSTRUCT) override { return calls.push_back("compare"), 5; }
        void DeleteItem(LPDELETEITEMSTRUCT) override { calls.push_back("delete"); }
        void DrawItem(LPDRAWITEMSTRUCT) override { calls.push_back("draw"); }
        void MeasureItem(LPMEASUREITEMSTRUCT) override { calls.push_back("measure"); }
    } combo;
    const auto callAll = [this] {
        COMPAREITEMSTRUCT compared = {};
        DELETEITEMSTRUCT deleted = {};
        DRAWITEMSTRUCT drawn = {};
        MEASUREITEMSTRUCT measured = {};
        measured.itemHeight = 77;
        list.DeleteItem(&deleted);
        list.DrawItem(&drawn);
        list.MeasureItem(&measured);
        EXPECT_EQ(measured.itemHeight, 77u);
        return list.CompareItem(&compared);
    };
    const std::vector<std::string> all{"delete", "draw", "measure", "compare"};
    EXPECT_EQ(callAll(), 0);
    list.SetComboBox(&combo);
    EXPECT_EQ(list.GetComboBox(), &combo);
    EXPECT_EQ(callAll(), 5);
    EXPECT_EQ(combo.calls, all);
    list.SetComboBoxDraw(0);
    EXPECT_EQ(callAll(), 0);
    EXPECT_EQ(combo.calls, all);
    list.SetComboBoxDraw(-1);
    EXPECT_EQ(list.GetComboBoxDraw(), -1);
    EXPECT_EQ(callAll(), 5);
    EXPECT_EQ(combo.calls.size(), 8u);
}

TEST_F(ListBoxEntries, TheEndOfTheWindowStillReachesThePlatform) {
    CKbUiComboBox combo;
    list.SetComboBox(&combo);
    list.defaults.clear();
    list.DestroyWindow();
    EXPECT_NE(std::find(list.defaults.begin(), list.defaults.end(), UINT{WM_DESTROY}), list.defaults.end());
    EXPECT_EQ(list.GetComboBox(), nullptr);
}

TEST_F(ListBoxEntries, MovesGoToTheWindowThatIsSetOrElseToTheParent) {
    RecordingHolder other;
    EXPECT_EQ(list.GetKbUiParent(), &holder);
    send_move(list, 0, 0);
    EXPECT_TRUE(holder.heard.empty()) << "the point is the one from the beginning";
    list.SetKbUiParent(&other);
    EXPECT_EQ(list.GetKbUiParent(), &other);
    send_move(list, 3, 3);
    EXPECT_TRUE(holder.heard.empty());
    ASSERT_EQ(other.heard.size(), 1u);
    EXPECT_EQ(other.heard[0].id, kId);
    list.SetKbUiParent(nullptr);
    send_move(list, 3, 4);
    EXPECT_EQ(holder.count(kKbUiNotifyUpdateTip), 1);
}

}  // namespace
