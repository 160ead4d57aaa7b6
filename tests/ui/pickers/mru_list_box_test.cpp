// Tips over the entries of a picker's list.
#include <ktui/pickers/mru_list_box.h>

#include <ktui/pickers/mru_combo_box.h>

#include "picker_fixture.h"

using namespace ui_test;

namespace {

constexpr int kExtra = 37;

class WidePicker : public CKtUiMRUComboBox {
public:
    int ExtraWidth() override { return kExtra; }
};

class List : public CKtUiMRUListBox {
public:
    CRect tipRect() const { return m_tipRect; }
};

/// A list of two entries, the second wider than the list, and the pointer over one of them.
struct ListUnderPointer {
    InHolder<WidePicker> in;
    RecordingHolder holder;
    List list;

    explicit ListUnderPointer(DWORD style = LBS_OWNERDRAWFIXED | LBS_HASSTRINGS) {
        list.Create(WS_CHILD | WS_VISIBLE | style, CRect(0, 0, 150, 90), &holder, 5);
        list.AddString(L"a");
        list.AddString(L"an entry that is much wider than the list that it stands in");
        list.SetComboBox(&in.picker);
    }
    ~ListUnderPointer() { list.SetComboBox(nullptr); }
    void pointAt(int item) {
        CRect row;
        list.GetItemRect(item, &row);
        send_move(list, static_cast<int>(row.left) + 3, static_cast<int>(row.CenterPoint().y));
    }
    int extentOf(const wchar_t* text) {
        int cx = 0;
        int cy = 0;
        list.GetContentExtent(0, text, cx, cy);
        return cx;
    }
    int textExtentOf(const wchar_t* text) {
        int cx = 0;
        int cy = 0;
        list.GetTextExtent(text, cx, cy);
        return cx;
    }
    KBUI_REPLY askTipRect(CRect& rect) {
        return KbUiNotify(list, 0, kKbUiNotifyGetTipRect, reinterpret_cast<unsigned __int64>(&rect));
    }
};

}  // namespace

TEST(PickerList, KnowsItsPickerAndItsImageColumn) {
    ListUnderPointer of;
    EXPECT_EQ(of.list.MRUComboBox(), &of.in.picker);
    EXPECT_EQ(of.list.ExtraWidth(), kExtra);
}

TEST(PickerList, ExtentOfADrawnEntryCoversItsImageWheneverItIsAsked) {
    ListUnderPointer of;
    of.pointAt(1);
    EXPECT_EQ(of.extentOf(L"text"), of.textExtentOf(L"text") + kExtra);
    EXPECT_EQ(of.extentOf(L"text"), of.textExtentOf(L"text") + kExtra) << "the same item as last time";
}

TEST(PickerList, ExtentIsThatOfTheTextAwayFromTheEntries) {
    ListUnderPointer of;
    send_move(of.list, 5, 88);
    EXPECT_EQ(of.extentOf(L"text"), of.textExtentOf(L"text"));
}

TEST(PickerList, ExtentIsThatOfTheTextInAListThatDrawsNoImages) {
    ListUnderPointer of(0);
    of.pointAt(1);
    EXPECT_EQ(of.extentOf(L"text"), of.textExtentOf(L"text"));
    EXPECT_EQ(of.extentOf(L"text"), of.textExtentOf(L"text"));
}

TEST(PickerList, TipIsTwoPixelsWiderThanItsEntryAndKept) {
    ListUnderPointer of;
    of.pointAt(1);
    CRect rect;
    ASSERT_EQ(of.askTipRect(rect), kKbUiReplyHandled);
    CString text;
    of.list.GetText(1, text);
    EXPECT_EQ(rect.Width(), of.textExtentOf(text) + kExtra + 2);
    EXPECT_EQ(of.list.tipRect(), rect);
}

TEST(PickerList, EntryThatFitsHasNoTip) {
    ListUnderPointer of;
    of.pointAt(0);
    CRect rect;
    EXPECT_NE(of.askTipRect(rect), kKbUiReplyHandled);
    send_move(of.list, 5, 88);
    EXPECT_NE(of.askTipRect(rect), kKbUiReplyHandled);
    EXPECT_TRUE(rect.IsRectEmpty()) << "and grows by nothing";
}
