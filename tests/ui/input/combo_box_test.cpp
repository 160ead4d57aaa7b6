#include <ktui/controls/kbui_list_box.h>
#include <ktui/host/test_door.h>
#include <ktui/input/ktui_typed_combo_boxes.h>
#include <ktui/input/ktui_typed_edits.h>

#include "recording_holder.h"
#include "test_host.h"

using ui_test::RecordingHolder;
using ui_test::send_move;

namespace {

constexpr UINT kComboId = 31;

/// An edit or list that counts its living objects.
template <class Base>
struct Counted : Base {
    static inline int alive = 0;
    Counted() { ++alive; }
    ~Counted() override { --alive; }
};

/// A combo box that records how its items are drawn.
class DrawnCombo : public CKbUiComboBox {
public:
    std::vector<DRAWITEMSTRUCT> drawn;
    void DrawItem(LPDRAWITEMSTRUCT item) override {
        drawn.push_back(*item);
        CKbUiComboBox::DrawItem(item);
    }
    void MeasureItem(LPMEASUREITEMSTRUCT item) override { item->itemHeight = 18; }
};

template <class Class>
struct InHolder {
    RecordingHolder holder;
    Class combo;

    explicit InHolder(DWORD style) {
        combo.Create(WS_CHILD | WS_VISIBLE | style, CRect(10, 10, 160, 200), &holder, kComboId);
        for (const wchar_t* text : {L"one", L"two", L"three"}) combo.AddString(text);
    }
    /// Has the children ask for their colours, as they do when they first paint.
    void paintChildren() {
        combo.ShowDropDown(TRUE);
        ui_test::pump();
        combo.ShowDropDown(FALSE);
        ui_test::pump();
    }
};

}  // namespace

TEST(TypedComboBoxes, OwnAnEditOfTheirTypeBeforeAnyWindow) {
    CKtUiAngleComboBox angle;
    CKtUiNumericComboBox numeric;
    CKtUiStringComboBox string;
    CKtUiSymbolComboBox symbol;
    EXPECT_EQ(angle.GetStyleMask(), 0x8u);
    EXPECT_EQ(numeric.GetStyleMask(), 0x4u);
    EXPECT_EQ(string.GetStyleMask(), 0x1u);
    EXPECT_EQ(symbol.GetStyleMask(), 0x2u);
    EXPECT_TRUE(numeric.KtUiEditBox()->IsKindOf(RUNTIME_CLASS(CKtUiNumericEdit)));
    EXPECT_TRUE(numeric.Validate()) << "an edit without a window is valid";
}

TEST(ComboParts, MissingEditAnswersAsAgreed) {
    CKtUiComboBox combo;
    CString text = L"x";
    EXPECT_TRUE(combo.Validate());
    EXPECT_EQ(combo.ValidateData(text), kKtUiErrorNone);
    EXPECT_TRUE(combo.ConvertData(text));
    combo.Convert();
    combo.SetRange(0, 1);
    combo.SetStyleMask(4);
    EXPECT_EQ(combo.GetStyleMask(), 0u);
    EXPECT_FALSE(combo.IsStyleMaskSet(0));
    EXPECT_EQ(combo.KtUiEditBox(), nullptr);
}

TEST(ComboParts, ConvertDataIsFalseForATextEdit) {
    CKtUiStringComboBox combo;
    CString text = L"x";
    EXPECT_FALSE(combo.ConvertData(text));
    CKtUiNumericComboBox numeric;
    text = L"1.500";
    EXPECT_TRUE(numeric.ConvertData(text));
    EXPECT_STREQ(text, L"1.5000");
    numeric.SetRange(2, 3);
    EXPECT_EQ(numeric.ValidateData(text), kKtUiErrorOutOfRange);
}

TEST(ComboParts, ClearingDeletesAnOwnedPartAndKeepsTheOwnedBit) {
    using Edit = Counted<CKbUiEdit>;
    struct FlaggedCombo : CKbUiComboBox {
        bool ownsEdit() const { return (m_flags & 1) != 0; }
    } combo;
    combo.SetEditBox(new Edit, TRUE);
    EXPECT_EQ(Edit::alive, 1);
    combo.SetEditBox(nullptr, FALSE);
    EXPECT_EQ(Edit::alive, 0);
    EXPECT_TRUE(combo.ownsEdit());
    EXPECT_EQ(combo.GetEditBox(), nullptr);
    Edit kept;
    combo.SetEditBox(&kept, FALSE);
    combo.SetEditBox(nullptr, TRUE);
    EXPECT_EQ(Edit::alive, 1) << "a part that isn't owned is only let go";
}

TEST(ComboParts, DestructorDeletesOwnedParts) {
    using Edit = Counted<CKbUiEdit>;
    using List = Counted<CKbUiListBox>;
    {
        CKbUiComboBox combo;
        combo.SetEditBox(new Edit, TRUE);
        combo.SetListBox(new List, TRUE);
        EXPECT_EQ(combo.GetListBox()->GetComboBox(), &combo);
    }
    EXPECT_EQ(Edit::alive, 0);
    EXPECT_EQ(List::alive, 0);
}

TEST(ComboParts, ReplacedListForgetsItsComboBox) {
    CKbUiListBox first;
    CKbUiListBox second;
    CKbUiComboBox combo;
    combo.SetListBox(&first, FALSE);
    combo.SetListBox(&second, FALSE);
    EXPECT_EQ(first.GetComboBox(), nullptr);
    EXPECT_EQ(second.GetComboBox(), &combo);
}

TEST(ComboParts, PlainComboBoxGetsItsPartsWhenTheyAskForColours) {
    InHolder<CKbUiComboBox> in(CBS_DROPDOWN);
    in.paintChildren();
    ASSERT_NE(in.combo.GetEditBox(), nullptr);
    ASSERT_NE(in.combo.GetListBox(), nullptr);
    EXPECT_NE(in.combo.GetEditBox()->m_hWnd, nullptr);
    EXPECT_NE(in.combo.GetListBox()->m_hWnd, nullptr);
    EXPECT_EQ(in.combo.GetEditBox()->GetKbUiParent(), &in.holder);
    EXPECT_EQ(in.combo.GetListBox()->GetComboBox(), &in.combo);
}

TEST(ComboParts, EditOfATypedComboBoxTakesItsWindow) {
    InHolder<CKtUiNumericComboBox> in(CBS_DROPDOWN);
    in.paintChildren();
    ASSERT_NE(in.combo.KtUiEditBox()->m_hWnd, nullptr);
    in.combo.SetWindowText(L"bad");
    EXPECT_FALSE(in.combo.Validate());
    in.combo.SetWindowText(L"2.50");
    EXPECT_TRUE(in.combo.Validate());
    in.combo.Convert();
    EXPECT_STREQ(ui_test::text_of(in.combo), L"2.5000");
}

TEST(ComboParts, DestroyingTheWindowDeletesOwnedParts) {
    using Edit = Counted<CKbUiEdit>;
    InHolder<CKbUiComboBox> in(CBS_DROPDOWN);
    in.combo.SetEditBox(new Edit, TRUE);
    in.paintChildren();
    ASSERT_EQ(Edit::alive, 1);
    in.combo.DestroyWindow();
    EXPECT_EQ(Edit::alive, 0);
    EXPECT_EQ(in.combo.GetEditBox(), nullptr);
    EXPECT_EQ(in.combo.GetListBox(), nullptr);
}

TEST(ComboItems, TextOutsideTheListIsEmptyAndKeepsNothing) {
    InHolder<CKbUiComboBox> in(CBS_DROPDOWNLIST);
    CString text = L"old";
    in.combo.GetLBString(-1, text);
    EXPECT_TRUE(text.IsEmpty());
    text = L"old";
    in.combo.GetLBString(3, text);
    EXPECT_TRUE(text.IsEmpty());
    in.combo.GetLBString(2, text);
    EXPECT_STREQ(text, L"three");
}

TEST(ComboItems, ExtentIsTwoHigherThanTheText) {
    InHolder<CKbUiComboBox> in(CBS_DROPDOWNLIST);
    CClientDC dc(&in.combo);
    SIZE size{};
    ::GetTextExtentPoint32W(dc.m_hDC, L"three", 5, &size);
    int cx = 0;
    int cy = 0;
    in.combo.GetContentExtent(L"three", cx, cy);
    EXPECT_EQ(cx, size.cx);
    EXPECT_EQ(cy, size.cy + 2);
}

TEST(ComboStyle, KindsAreTold) {
    InHolder<CKbUiComboBox> dropDown(CBS_DROPDOWN);
    InHolder<CKbUiComboBox> list(CBS_DROPDOWNLIST);
    InHolder<DrawnCombo> drawn(CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED | CBS_HASSTRINGS);
    EXPECT_FALSE(dropDown.combo.IsStatic());
    EXPECT_TRUE(list.combo.IsStatic());
    EXPECT_FALSE(list.combo.IsOwnerDraw());
    EXPECT_TRUE(drawn.combo.IsOwnerDraw());
    EXPECT_TRUE(CKbUiComboBox::IsInEdit(0));
    EXPECT_TRUE(CKbUiComboBox::IsInEdit(ODS_COMBOBOXEDIT));
    EXPECT_FALSE(CKbUiComboBox::IsInEdit(ODS_COMBOBOXEDIT | ODS_SELECTED));
}

TEST(ComboMouse, FocusedComboBoxReportsMovesToo) {
    InHolder<CKbUiComboBox> in(CBS_DROPDOWNLIST);
    in.combo.SetFocus();
    send_move(in.combo, 3, 3);
    send_move(in.combo, 3, 3);
    EXPECT_EQ(in.holder.count(kKbUiNotifyUpdateTip), 1);
}

TEST(ComboMessages, OnlyTheTipTextIsServedAndThereIsNone) {
    InHolder<CKbUiComboBox> in(CBS_DROPDOWNLIST);
    CString text;
    CPoint point(1, 1);
    EXPECT_EQ(KbUiNotify(in.combo, 0, kKbUiNotifyGetTipText, reinterpret_cast<unsigned __int64>(&text)),
              kKbUiReplyNone);
    EXPECT_EQ(KbUiNotify(in.combo, 0, kKbUiNotifyGetTipSupport, reinterpret_cast<unsigned __int64>(&point)),
              kKbUiReplyNone);
    EXPECT_TRUE(in.combo.SetToolTipText(L"pick one"));
    EXPECT_STREQ(in.combo.GetToolTipText(), L"pick one");
}

TEST(ComboPainting, WithoutAThemeThePlatformPaintsAndDrawItemDrawsTheItems) {
    const ThemeApi former = KtUiTestDoor().exchangeThemeApi(MakeThemeApi({}));
    InHolder<DrawnCombo> in(CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED | CBS_HASSTRINGS);
    EXPECT_FALSE(CKbUiComboBox::IsVistaTheme());
    in.combo.SetCurSel(1);
    in.combo.drawn.clear();
    in.combo.RedrawWindow();
    ASSERT_FALSE(in.combo.drawn.empty());
    EXPECT_EQ(in.combo.drawn.back().itemID, 1u);
    in.combo.drawn.clear();
    in.combo.ShowDropDown(TRUE);
    ui_test::pump();
    EXPECT_GE(in.combo.drawn.size(), 3u);
    in.combo.ShowDropDown(FALSE);
    KtUiTestDoor().exchangeThemeApi(former);
}

namespace {

/// A theme that records what is drawn with it.
struct FakeTheme {
    static inline std::vector<std::pair<int, int>> parts;
    static inline int open = 0;

    static HTHEME WINAPI Open(HWND, LPCWSTR) {
        ++open;
        return reinterpret_cast<HTHEME>(0x1234);
    }
    static HRESULT WINAPI Close(HTHEME) {
        --open;
        return S_OK;
    }
    static BOOL WINAPI Active() { return TRUE; }
    static BOOL WINAPI Opaque(HTHEME, int, int) { return FALSE; }
    static HRESULT WINAPI Draw(HTHEME, HDC, int part, int state, const RECT*, const RECT*) {
        parts.emplace_back(part, state);
        return S_OK;
    }
    static HRESULT WINAPI Content(HTHEME, HDC, int, int, const RECT* bounds, RECT* content) {
        *content = *bounds;
        ::InflateRect(content, -3, -3);
        return S_OK;
    }
    static ThemeApi Api() {
        ThemeApi api = MakeThemeApi({});
        api.openThemeData = Open;
        api.closeThemeData = Close;
        api.isThemeActive = Active;
        api.isThemeBackgroundPartiallyTransparent = Opaque;
        api.drawThemeBackground = Draw;
        api.getThemeBackgroundContentRect = Content;
        return api;
    }
};

}  // namespace

TEST(ComboPainting, ThemedFaceEndsInDrawItem) {
    const ThemeApi former = KtUiTestDoor().exchangeThemeApi(FakeTheme::Api());
    InHolder<DrawnCombo> in(CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED | CBS_HASSTRINGS);
    in.combo.SetCurSel(1);
    in.combo.SetItemData(1, 4711);
    in.holder.SetFocus();
    FakeTheme::parts.clear();
    in.combo.drawn.clear();
    in.combo.Invalidate();
    EXPECT_EQ(in.combo.SendMessage(WM_PAINT), 1);
    ASSERT_EQ(FakeTheme::parts.size(), 2u);
    EXPECT_EQ(FakeTheme::parts[0].first, 5);
    EXPECT_EQ(FakeTheme::parts[1], std::make_pair(6, 1));
    EXPECT_EQ(FakeTheme::open, 0) << "theme data is closed again";

    ASSERT_EQ(in.combo.drawn.size(), 1u);
    const DRAWITEMSTRUCT& item = in.combo.drawn[0];
    EXPECT_EQ(item.CtlType, static_cast<UINT>(ODT_COMBOBOX));
    EXPECT_EQ(item.CtlID, kComboId);
    EXPECT_EQ(item.itemID, 1u);
    EXPECT_EQ(item.itemAction, static_cast<UINT>(ODA_DRAWENTIRE));
    EXPECT_EQ(item.itemData, 4711u);
    EXPECT_TRUE(item.itemState & ODS_COMBOBOXEDIT);
    CRect client;
    in.combo.GetClientRect(&client);
    EXPECT_EQ(CRect(item.rcItem),
              CRect(3, 3, client.right - ::GetSystemMetrics(SM_CXVSCROLL) - 3, client.bottom - 3));
    KtUiTestDoor().exchangeThemeApi(former);
}

TEST(ComboPainting, DisabledFaceIsPaintedDisabled) {
    const ThemeApi former = KtUiTestDoor().exchangeThemeApi(FakeTheme::Api());
    InHolder<DrawnCombo> in(CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED | CBS_HASSTRINGS);
    in.combo.EnableWindow(FALSE);
    FakeTheme::parts.clear();
    in.combo.drawn.clear();
    in.combo.Invalidate();
    in.combo.SendMessage(WM_PAINT);
    ASSERT_EQ(FakeTheme::parts.size(), 2u);
    EXPECT_EQ(FakeTheme::parts[0], std::make_pair(5, 4));
    EXPECT_EQ(FakeTheme::parts[1], std::make_pair(6, 4));
    ASSERT_EQ(in.combo.drawn.size(), 1u);
    EXPECT_EQ(in.combo.drawn[0].itemState, 4100u);
    KtUiTestDoor().exchangeThemeApi(former);
}

TEST(ComboPainting, ComboBoxWithAnEditIsLeftToThePlatformUnderATheme) {
    const ThemeApi former = KtUiTestDoor().exchangeThemeApi(FakeTheme::Api());
    InHolder<DrawnCombo> in(CBS_DROPDOWN | CBS_OWNERDRAWFIXED | CBS_HASSTRINGS);
    FakeTheme::parts.clear();
    in.combo.RedrawWindow();
    EXPECT_TRUE(FakeTheme::parts.empty());
    KtUiTestDoor().exchangeThemeApi(former);
}

TEST(ComboPainting, SelectedItemIsHighlightedAndTheFaceIsNotFilled) {
    InHolder<CKbUiComboBox> in(CBS_DROPDOWNLIST);
    CClientDC screen(&in.holder);
    CDC dc;
    dc.CreateCompatibleDC(&screen);
    CBitmap bitmap;
    bitmap.CreateCompatibleBitmap(&screen, 60, 20);
    CBitmap* former = dc.SelectObject(&bitmap);
    dc.FillSolidRect(CRect(0, 0, 60, 20), RGB(1, 2, 3));
    DRAWITEMSTRUCT item = {};
    item.CtlType = ODT_COMBOBOX;
    item.itemID = 0;
    item.hDC = dc.m_hDC;
    item.rcItem = CRect(0, 0, 60, 20);
    item.itemState = ODS_COMBOBOXEDIT | ODS_SELECTED;
    in.combo.DrawItem(&item);
    EXPECT_EQ(dc.GetPixel(58, 1), RGB(1, 2, 3));
    item.itemState = ODS_SELECTED;
    in.combo.DrawItem(&item);
    EXPECT_EQ(dc.GetPixel(58, 1), ::GetSysColor(COLOR_HIGHLIGHT));
    item.itemState = 0;
    in.combo.DrawItem(&item);
    EXPECT_EQ(dc.GetPixel(58, 1), ::GetSysColor(COLOR_WINDOW));
    dc.FillSolidRect(CRect(0, 0, 60, 20), RGB(1, 2, 3));
    item.itemID = static_cast<UINT>(-1);
    in.combo.DrawItem(&item);
    EXPECT_EQ(dc.GetPixel(58, 1), RGB(1, 2, 3)) << "no item draws nothing";
    dc.SelectObject(former);
}

TEST(ComboMessages, TheQuestionForATextReachesASubclassAlsoWithoutAnObject) {
    class Told : public CKbUiComboBox {
    public:
        int asked = 0;

    protected:
        BOOL OnGetTipText(CString& text) override {
            ++asked;
            text = L"told";
            return TRUE;
        }
    };
    RecordingHolder holder;
    Told combo;
    combo.Create(WS_CHILD | WS_VISIBLE | CBS_DROPDOWNLIST, CRect(0, 0, 100, 100), &holder, 5);
    CString text;
    EXPECT_EQ(KbUiNotify(combo, 0, kKbUiNotifyGetTipText, 0), kKbUiReplyHandled);
    EXPECT_EQ(KbUiNotify(combo, 0, kKbUiNotifyGetTipText, reinterpret_cast<unsigned __int64>(&text)),
              kKbUiReplyHandled);
    EXPECT_EQ(combo.asked, 2);
    EXPECT_EQ(text, L"told");
}
