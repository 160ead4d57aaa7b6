#include <ktui/controls/kbui_list_box.h>
#include <ktui/input/kbui_combo_box.h>

#include "recording_holder.h"

using ui_test::RecordingHolder;
using ui_test::send_move;

namespace {

constexpr UINT kListId = 41;
constexpr const wchar_t* kLongText = L"an entry that is much wider than the list box that holds it";

class DrawnListBox : public CKbUiListBox {
public:
    int draws = 0;
    UINT drawnItem = 0;
    RECT drawnRect = {};
    int rowHeight = 16;
    void DrawItem(LPDRAWITEMSTRUCT item) override {
        ++draws;
        drawnItem = item->itemID;
        drawnRect = item->rcItem;
    }
    void MeasureItem(LPMEASUREITEMSTRUCT item) override { item->itemHeight = static_cast<UINT>(rowHeight); }
};

class CountingCombo : public CKbUiComboBox {
public:
    int draws = 0;
    void DrawItem(LPDRAWITEMSTRUCT) override { ++draws; }
    void MeasureItem(LPMEASUREITEMSTRUCT item) override { item->itemHeight = 33; }
    int CompareItem(LPCOMPAREITEMSTRUCT) override { return -1; }
};

template <class Class = CKbUiListBox>
struct InHolder {
    RecordingHolder holder;
    Class list;

    explicit InHolder(DWORD style = 0) {
        list.Create(WS_CHILD | WS_VISIBLE | LBS_NOINTEGRALHEIGHT | LBS_HASSTRINGS | style,
                    CRect(0, 0, 120, 90), &holder, kListId);
        list.AddString(L"ok");
        list.AddString(kLongText);
    }
    CPoint pointOf(int item) {
        CRect rect;
        list.GetItemRect(item, &rect);
        return {rect.left + 3, rect.top + 3};
    }
    void moveTo(int item) {
        const CPoint point = pointOf(item);
        send_move(list, point.x, point.y);
    }
    KBUI_REPLY ask(KBUI_NOTIFY notification, void* datum) {
        return KbUiNotify(list, kListId, notification, reinterpret_cast<unsigned __int64>(datum));
    }
};

}  // namespace

TEST(ListBoxTip, WiderEntryGivesOneAndAFittingOneDoesNot) {
    InHolder<> in;
    CRect rect(1, 1, 2, 2);
    in.moveTo(0);
    EXPECT_EQ(in.ask(kKbUiNotifyGetTipRect, &rect), kKbUiReplyNone);
    EXPECT_TRUE(rect.IsRectEmpty());
    in.moveTo(1);
    EXPECT_EQ(in.ask(kKbUiNotifyGetTipRect, &rect), kKbUiReplyHandled);
    CRect row;
    in.list.GetItemRect(1, &row);
    int cx = 0;
    int cy = 0;
    in.list.GetTextExtent(kLongText, cx, cy);
    EXPECT_EQ(rect.left, row.left);
    EXPECT_EQ(rect.Width(), cx);
}

TEST(ListBoxTip, FittingEntryGivesNoneAlsoWhenItIsTallerThanTheRow) {
    InHolder<DrawnListBox> in(LBS_OWNERDRAWFIXED);
    in.list.SetItemHeight(0, 4);
    in.list.SetItemHeight(1, 4);
    send_move(in.list, 2, 2);
    CRect rect;
    EXPECT_EQ(in.ask(kKbUiNotifyGetTipRect, &rect), kKbUiReplyNone);
}

TEST(ListBoxTip, FirstMoveOntoAnEntryIsNewAndTheNextIsNot) {
    InHolder<> in;
    CPoint first = in.pointOf(0);
    CPoint beside(first.x + 2, first.y + 1);
    CPoint second = in.pointOf(1);
    CPoint below(5, 85);
    EXPECT_EQ(in.ask(kKbUiNotifyGetTipSupport, &first), kKbUiReplyTextTip);
    EXPECT_EQ(in.ask(kKbUiNotifyGetTipSupport, &beside), kKbUiReplyHandled);
    EXPECT_EQ(in.ask(kKbUiNotifyGetTipSupport, &second), kKbUiReplyTextTip);
    EXPECT_EQ(in.ask(kKbUiNotifyGetTipSupport, &below), kKbUiReplyNone);
}

TEST(ListBoxTip, OwnerDrawnEntryIsNewThenKept) {
    InHolder<DrawnListBox> in(LBS_OWNERDRAWFIXED);
    CPoint point = in.pointOf(1);
    EXPECT_EQ(in.ask(kKbUiNotifyGetTipSupport, &point), kKbUiReplyDrawnTip);
    EXPECT_EQ(in.ask(kKbUiNotifyGetTipSupport, &point), kKbUiReplyKeepTip);
}

TEST(ListBoxTip, TextAndHitGoByTheEntryUnderTheMouse) {
    InHolder<> in;
    in.moveTo(1);
    CString text;
    EXPECT_EQ(in.ask(kKbUiNotifyGetTipText, &text), kKbUiReplyHandled);
    EXPECT_STREQ(text, kLongText);
    CPoint on = in.pointOf(0);
    CPoint off(5, 85);
    EXPECT_EQ(in.ask(kKbUiNotifyHitTipRect, &on), kKbUiReplyHandled);
    EXPECT_EQ(in.ask(kKbUiNotifyHitTipRect, &off), kKbUiReplyNone);
    send_move(in.list, 5, 85);
    EXPECT_EQ(in.ask(kKbUiNotifyGetTipText, &text), kKbUiReplyNone);
}

TEST(ListBoxTip, OwnerDrawnEntryPaintsItselfIntoTheTip) {
    InHolder<DrawnListBox> in(LBS_OWNERDRAWFIXED);
    in.moveTo(1);
    CRect rect;
    ASSERT_EQ(in.ask(kKbUiNotifyGetTipRect, &rect), kKbUiReplyHandled);
    CClientDC dc(&in.holder);
    in.list.draws = 0;
    EXPECT_EQ(in.ask(kKbUiNotifyDrawTip, &dc), kKbUiReplyHandled);
    EXPECT_EQ(in.list.draws, 1);
    EXPECT_EQ(in.list.drawnItem, 1u);
    EXPECT_EQ(CRect(in.list.drawnRect), CRect(0, 0, rect.Width(), rect.Height()));
}

TEST(ListBoxTip, TextTipNeedsAnEntryUnderIt) {
    InHolder<> in;
    CClientDC dc(&in.holder);
    CRect rect(0, 0, 60, 20);
    CKbUiDrawTipText tip(dc, rect, L"x");
    EXPECT_EQ(in.ask(kKbUiNotifyDrawTipText, &tip), kKbUiReplyNone);
    CPoint point = in.pointOf(1);
    in.ask(kKbUiNotifyGetTipSupport, &point);
    EXPECT_EQ(in.ask(kKbUiNotifyDrawTipText, &tip), kKbUiReplyHandled);
    EXPECT_EQ(rect, CRect(2, 2, 58, 18));
}

TEST(ListBox, ExtentIsOneMoreThanTheTextAndZeroOutsideTheList) {
    InHolder<> in;
    int cx = -1;
    int cy = -1;
    in.list.GetContentExtent(2, L"x", cx, cy);
    EXPECT_EQ(cx, 0);
    EXPECT_EQ(cy, 0);
    CClientDC dc(&in.list);
    dc.SelectObject(in.list.GetFont());
    SIZE size{};
    ::GetTextExtentPoint32W(dc.m_hDC, L"ok", 2, &size);
    in.list.GetContentExtent(0, L"ok", cx, cy);
    EXPECT_EQ(cx, size.cx + 1);
    EXPECT_EQ(cy, size.cy + 1);
}

TEST(ListBox, MoveIsReportedOncePerPoint) {
    InHolder<> in;
    send_move(in.list, 5, 5);
    send_move(in.list, 5, 5);
    EXPECT_EQ(in.holder.count(kKbUiNotifyUpdateTip), 1);
    EXPECT_EQ(in.holder.heard[0].datum, reinterpret_cast<LPARAM>(static_cast<CWnd*>(&in.list)));
}

TEST(ListBox, DrawsThroughItsComboBoxWhileAskedTo) {
    CountingCombo combo;
    CKbUiListBox list;
    DRAWITEMSTRUCT drawing = {};
    COMPAREITEMSTRUCT comparison = {};
    MEASUREITEMSTRUCT measurement = {};
    list.DrawItem(&drawing);
    EXPECT_EQ(list.CompareItem(&comparison), 0);
    list.SetComboBox(&combo);
    EXPECT_EQ(list.GetComboBoxDraw(), 1);
    list.DrawItem(&drawing);
    list.MeasureItem(&measurement);
    EXPECT_EQ(combo.draws, 1);
    EXPECT_EQ(measurement.itemHeight, 33u);
    EXPECT_EQ(list.CompareItem(&comparison), -1);
    list.SetComboBoxDraw(0);
    list.DrawItem(&drawing);
    EXPECT_EQ(combo.draws, 1);
    EXPECT_EQ(list.CompareItem(&comparison), 0);
}

TEST(ListBox, ForgetsItsComboBoxWithItsWindow) {
    InHolder<> in;
    CountingCombo combo;
    in.list.SetComboBox(&combo);
    in.list.DestroyWindow();
    EXPECT_EQ(in.list.GetComboBox(), nullptr);
}

TEST(ListBoxTip, QuestionsWithoutAPlaceAreAboutTheEntryUnderTheMouse) {
    InHolder<> in;
    in.moveTo(1);
    EXPECT_EQ(in.ask(kKbUiNotifyGetTipSupport, nullptr), kKbUiReplyTextTip);
    EXPECT_EQ(KbUiNotify(in.list, kListId, kKbUiNotifyGetTipSupport, 1), kKbUiReplyHandled);
    EXPECT_EQ(in.ask(kKbUiNotifyHitTipRect, nullptr), kKbUiReplyHandled);
    EXPECT_EQ(in.ask(kKbUiNotifyGetTipText, nullptr), kKbUiReplyHandled);
    EXPECT_EQ(in.ask(kKbUiNotifyGetTipRect, nullptr), kKbUiReplyHandled);
    EXPECT_EQ(in.ask(kKbUiNotifyDrawTip, nullptr), kKbUiReplyNone);
    EXPECT_EQ(in.ask(kKbUiNotifyDrawTipText, nullptr), kKbUiReplyNone);
}
