// The edit and the list of a combo box: when they are taken over, let go and deleted.
#include <ktui/controls/kbui_list_box.h>
#include <ktui/input/ktui_typed_combo_boxes.h>
#include <ktui/input/ktui_typed_edits.h>

#include "scheme_in_force.h"
#include "canvas.h"
#include "recording_holder.h"

namespace {

using ui_test::Canvas;
using ui_test::RecordingHolder;

constexpr UINT kId = 35;

class Combo : public CKbUiComboBox {
public:
    using CKbUiComboBox::m_flags;
    /// Asks for the colours of a child as that child does.
    HBRUSH askColor(UINT message, HWND child) {
        CClientDC dc(this);
        return reinterpret_cast<HBRUSH>(
            SendMessage(message, reinterpret_cast<WPARAM>(dc.m_hDC), reinterpret_cast<LPARAM>(child)));
    }
    HWND editWindow() { return info().hwndItem; }
    HWND listWindow() { return info().hwndList; }

private:
    COMBOBOXINFO info() {
        COMBOBOXINFO all = {};
        all.cbSize = sizeof all;
        ::GetComboBoxInfo(m_hWnd, &all);
        return all;
    }
};

template <class Base>
struct Counted : Base {
    static inline int alive = 0;
    Counted() { ++alive; }
    ~Counted() override { --alive; }
};

struct ComboChildren : ::testing::Test {
    void make(DWORD style) {
        combo.Create(WS_CHILD | WS_VISIBLE | style, CRect(10, 10, 160, 200), &holder, kId);
        combo.AddString(L"one");
    }
    RecordingHolder holder;
    Combo combo;
};

TEST_F(ComboChildren, AreTakenOverEachByItsOwnQuestionForColours) {
    make(CBS_DROPDOWN);
    ASSERT_EQ(combo.m_flags & 4, 0u);
    combo.askColor(WM_CTLCOLOREDIT, combo.editWindow());
    ASSERT_NE(combo.GetEditBox(), nullptr);
    EXPECT_EQ(combo.GetEditBox()->m_hWnd, combo.editWindow());
    EXPECT_EQ(combo.GetEditBox()->GetKbUiParent(), &holder);
    EXPECT_EQ(combo.GetListBox(), nullptr);
    EXPECT_EQ(combo.m_flags, 1u) << "the edit is owned";
    combo.askColor(WM_CTLCOLORLISTBOX, combo.listWindow());
    ASSERT_NE(combo.GetListBox(), nullptr);
    EXPECT_EQ(combo.GetListBox()->m_hWnd, combo.listWindow());
    EXPECT_EQ(combo.GetListBox()->GetKbUiParent(), &holder);
    EXPECT_EQ(combo.GetListBox()->GetComboBox(), &combo);
    EXPECT_EQ(combo.m_flags, 7u);
}

TEST_F(ComboChildren, OfADropDownListAreTheListAlone) {
    make(CBS_DROPDOWNLIST);
    combo.askColor(WM_CTLCOLORLISTBOX, combo.listWindow());
    EXPECT_EQ(combo.m_flags, 6u);
    EXPECT_EQ(combo.GetEditBox(), nullptr);
}

TEST_F(ComboChildren, OfADropDownAreNotAllTakenBeforeTheEdit) {
    make(CBS_DROPDOWN);
    combo.askColor(WM_CTLCOLORLISTBOX, combo.listWindow());
    EXPECT_EQ(combo.m_flags, 2u);
    combo.askColor(WM_CTLCOLORSTATIC, combo.editWindow());
    EXPECT_EQ(combo.GetEditBox(), nullptr) << "another kind of question takes nothing";
    combo.askColor(WM_CTLCOLOREDIT, combo.editWindow());
    EXPECT_EQ(combo.m_flags, 7u);
}

TEST_F(ComboChildren, TellTheWindowThatTheComboBoxTells) {
    RecordingHolder other;
    combo.SetKbUiParent(&other);
    make(CBS_DROPDOWN);
    combo.askColor(WM_CTLCOLOREDIT, combo.editWindow());
    combo.askColor(WM_CTLCOLORLISTBOX, combo.listWindow());
    EXPECT_EQ(combo.GetEditBox()->GetKbUiParent(), &other);
    EXPECT_EQ(combo.GetListBox()->GetKbUiParent(), &other);
}

TEST_F(ComboChildren, GetTheirColoursFromThePlatform) {
    make(CBS_DROPDOWN);
    CComboBox bare;
    bare.Create(WS_CHILD | CBS_DROPDOWN, CRect(0, 0, 90, 90), &holder, 7);
    CClientDC dc(&bare);
    const LRESULT expected = bare.SendMessage(WM_CTLCOLOREDIT, reinterpret_cast<WPARAM>(dc.m_hDC),
                                              reinterpret_cast<LPARAM>(holder.m_hWnd));
    EXPECT_NE(expected, 0);
    EXPECT_EQ(reinterpret_cast<LRESULT>(combo.askColor(WM_CTLCOLOREDIT, combo.editWindow())), expected);
}

TEST_F(ComboChildren, ThatAreReplacedAreLetGoAndTheNewOnesTakenAtTheNextQuestion) {
    make(CBS_DROPDOWN);
    CKbUiEdit first, second;
    CKbUiListBox one, two;
    combo.SetEditBox(&first, FALSE);
    combo.SetListBox(&one, FALSE);
    EXPECT_EQ(combo.m_flags, 0u);
    combo.askColor(WM_CTLCOLOREDIT, combo.editWindow());
    combo.askColor(WM_CTLCOLORLISTBOX, combo.listWindow());
    EXPECT_EQ(first.m_hWnd, combo.editWindow());
    EXPECT_EQ(one.m_hWnd, combo.listWindow());
    EXPECT_EQ(combo.m_flags, 4u);
    combo.SetEditBox(&second, FALSE);
    EXPECT_EQ(first.m_hWnd, nullptr);
    EXPECT_TRUE(::IsWindow(combo.editWindow())) << "only unsubclassed";
    EXPECT_EQ(second.m_hWnd, nullptr);
    EXPECT_EQ(combo.m_flags, 0u);
    combo.askColor(WM_CTLCOLOREDIT, combo.editWindow());
    EXPECT_EQ(second.m_hWnd, combo.editWindow());
    EXPECT_EQ(combo.m_flags, 4u);
    combo.SetListBox(&two, FALSE);
    EXPECT_EQ(one.m_hWnd, nullptr);
    EXPECT_EQ(one.GetComboBox(), nullptr);
    EXPECT_EQ(combo.m_flags, 0u);
    combo.askColor(WM_CTLCOLORLISTBOX, combo.listWindow());
    EXPECT_EQ(two.m_hWnd, combo.listWindow());
    combo.DestroyWindow();
    EXPECT_EQ(second.m_hWnd, nullptr);
    EXPECT_EQ(two.m_hWnd, nullptr);
    EXPECT_EQ(combo.GetEditBox(), &second) << "a part that isn't owned is only let go";
    EXPECT_EQ(combo.GetListBox(), &two);
    combo.SetListBox(nullptr, FALSE);
    combo.SetEditBox(nullptr, FALSE);
    EXPECT_EQ(combo.GetEditBox(), nullptr);
    EXPECT_EQ(combo.GetListBox(), nullptr);
}

TEST_F(ComboChildren, OwnershipGoesByTheLastPart) {
    using Edit = Counted<CKbUiEdit>;
    using List = Counted<CKbUiListBox>;
    combo.SetEditBox(new Edit, TRUE);
    combo.SetListBox(new List, 2);
    EXPECT_EQ(combo.m_flags, 3u);
    Edit edit;
    List list;
    combo.SetEditBox(&edit, FALSE);
    EXPECT_EQ(Edit::alive, 1);
    EXPECT_EQ(combo.m_flags, 2u);
    combo.SetListBox(&list, FALSE);
    EXPECT_EQ(List::alive, 1);
    EXPECT_EQ(combo.m_flags, 0u);
    combo.SetListBox(new List, TRUE);
    combo.SetListBox(nullptr, FALSE);
    EXPECT_EQ(List::alive, 1);
    EXPECT_EQ(combo.m_flags, 2u) << "clearing the part leaves its bit";
    EXPECT_EQ(combo.GetListBox(), nullptr);
    combo.SetEditBox(nullptr, FALSE);
}

TEST_F(ComboChildren, ThatAreOwnedEndWithTheWindow) {
    using Edit = Counted<CKbUiEdit>;
    using List = Counted<CKbUiListBox>;
    make(CBS_DROPDOWN);
    combo.SetEditBox(new Edit, TRUE);
    combo.SetListBox(new List, TRUE);
    combo.askColor(WM_CTLCOLOREDIT, combo.editWindow());
    combo.askColor(WM_CTLCOLORLISTBOX, combo.listWindow());
    combo.DestroyWindow();
    EXPECT_EQ(Edit::alive, 0);
    EXPECT_EQ(List::alive, 0);
    EXPECT_EQ(combo.GetEditBox(), nullptr);
    EXPECT_EQ(combo.GetListBox(), nullptr);
}

TEST_F(ComboChildren, OwnershipOfOnePartLeavesThatOfTheOther) {
    using Edit = Counted<CKbUiEdit>;
    using List = Counted<CKbUiListBox>;
    combo.SetListBox(new List, TRUE);
    combo.SetEditBox(new Edit, TRUE);
    EXPECT_EQ(combo.m_flags, 3u);
    combo.SetEditBox(nullptr, FALSE);
    EXPECT_EQ(combo.GetEditBox(), nullptr);
    EXPECT_EQ(List::alive, 1);
    combo.SetListBox(nullptr, FALSE);
    EXPECT_EQ(List::alive, 0);
}

TEST_F(ComboChildren, AListThatOutlivesItsComboBoxForgetsIt) {
    CKbUiListBox list;
    CKbUiEdit edit;
    {
        CKbUiComboBox shortLived;
        shortLived.SetListBox(&list, FALSE);
        shortLived.SetEditBox(&edit, FALSE);
        EXPECT_EQ(list.GetComboBox(), &shortLived);
    }
    EXPECT_EQ(list.GetComboBox(), nullptr);
}

TEST_F(ComboChildren, ThatHaveTheirWindowAreNotTakenAgain) {
    RecordingHolder other;
    make(CBS_DROPDOWN);
    combo.askColor(WM_CTLCOLORLISTBOX, combo.listWindow());
    combo.GetListBox()->SetKbUiParent(&other);
    combo.askColor(WM_CTLCOLORLISTBOX, combo.listWindow());
    EXPECT_EQ(combo.GetListBox()->GetKbUiParent(), &other);
    combo.askColor(WM_CTLCOLOREDIT, combo.editWindow());
    combo.GetEditBox()->SetKbUiParent(&other);
    combo.m_flags &= ~4u;
    combo.askColor(WM_CTLCOLOREDIT, combo.editWindow());
    EXPECT_EQ(combo.GetEditBox()->GetKbUiParent(), &other);
}

TEST_F(ComboChildren, ThatWereAllTakenAndThenLetGoAreNotTakenAgain) {
    make(CBS_DROPDOWN);
    combo.askColor(WM_CTLCOLORLISTBOX, combo.listWindow());
    combo.askColor(WM_CTLCOLOREDIT, combo.editWindow());
    ASSERT_EQ(combo.m_flags & 4, 4u);
    combo.GetEditBox()->UnsubclassWindow();
    combo.askColor(WM_CTLCOLOREDIT, combo.editWindow());
    EXPECT_EQ(combo.GetEditBox()->m_hWnd, nullptr);
    combo.GetListBox()->UnsubclassWindow();
    combo.askColor(WM_CTLCOLORLISTBOX, combo.listWindow());
    EXPECT_EQ(combo.GetListBox()->m_hWnd, nullptr);
}

TEST_F(ComboChildren, AMaskGoesToTheEdit) {
    CKbUiEdit edit;
    combo.SetEditBox(&edit, FALSE);
    combo.SetStyleMask(0x30);
    EXPECT_EQ(edit.GetStyleMask(), 0x30u);
    EXPECT_EQ(combo.GetStyleMask(), 0x30u);
    EXPECT_TRUE(combo.IsStyleMaskSet(0x10));
    EXPECT_FALSE(combo.IsStyleMaskSet(0x11));
    combo.SetEditBox(nullptr, FALSE);
}

TEST_F(ComboChildren, StartWithoutAnything) {
    struct Fresh : CKbUiComboBox {
        using CKbUiComboBox::m_lastMousePoint;
        using CKbUiComboBox::m_tipItem;
        using CKbUiComboBox::m_tipRect;
    } fresh;
    EXPECT_EQ(fresh.m_tipRect, CRect(0, 0, 0, 0));
    EXPECT_EQ(fresh.m_tipItem, 0);
    EXPECT_EQ(fresh.m_lastMousePoint, CPoint(0, 0));
    EXPECT_TRUE(fresh.GetToolTipText().IsEmpty());
    EXPECT_EQ(combo.m_flags, 0u);
}

TEST_F(ComboChildren, KindsOfListsAreToldByTheirStyle) {
    const struct {
        DWORD style;
        bool isStatic, isDrawn;
    } kinds[] = {{CBS_SIMPLE, false, false},
                 {CBS_DROPDOWN, false, false},
                 {CBS_DROPDOWNLIST, true, false},
                 {CBS_DROPDOWN | CBS_OWNERDRAWFIXED, false, true},
                 {CBS_DROPDOWNLIST | CBS_OWNERDRAWVARIABLE | CBS_HASSTRINGS, true, true}};
    for (const auto& kind : kinds) {
        class Drawn : public CKbUiComboBox {
            void MeasureItem(LPMEASUREITEMSTRUCT item) override { item->itemHeight = 15; }
        } each;
        each.Create(WS_CHILD | kind.style, CRect(0, 0, 90, 90), &holder, 9);
        EXPECT_EQ(each.IsStatic() != FALSE, kind.isStatic) << kind.style;
        EXPECT_EQ(each.IsOwnerDraw() != FALSE, kind.isDrawn) << kind.style;
    }
}

TEST_F(ComboChildren, AnItemIsDrawnAsItsStateAsks) {
    const ui_test::SchemeInForce colors(FALSE);  // in which no two of them are alike
    make(CBS_DROPDOWNLIST);
    const struct {
        UINT state;
        int fill, ink;  ///< system colours; -1 for none
    } states[] = {{0, COLOR_WINDOW, COLOR_WINDOWTEXT},
                  {ODS_SELECTED, COLOR_HIGHLIGHT, COLOR_HIGHLIGHTTEXT},
                  {ODS_FOCUS, COLOR_WINDOW, COLOR_WINDOWTEXT},
                  {ODS_COMBOBOXEDIT, -1, COLOR_WINDOWTEXT},
                  {ODS_COMBOBOXEDIT | ODS_SELECTED, -1, COLOR_WINDOWTEXT}};
    for (const auto& each : states) {
        Canvas drawn(100, 40, RGB(9, 200, 90)), expected(100, 40, RGB(9, 200, 90));
        DRAWITEMSTRUCT item = {};
        item.CtlType = ODT_COMBOBOX;
        item.itemID = 0;
        item.itemState = each.state;
        item.hDC = drawn.dc.m_hDC;
        item.rcItem = CRect(5, 6, 90, 30);
        combo.DrawItem(&item);
        CRect rect(5, 6, 90, 30);
        if (each.fill >= 0) expected.dc.FillSolidRect(rect, ::GetSysColor(each.fill));
        expected.dc.SetBkMode(TRANSPARENT);
        expected.dc.SetTextColor(::GetSysColor(each.ink));
        expected.dc.DrawText(L"one", &rect, DT_SINGLELINE | DT_VCENTER);
        EXPECT_TRUE(drawn == expected) << each.state;
    }
    Canvas blank(30, 20, RGB(9, 200, 90));
    DRAWITEMSTRUCT none = {};
    none.itemID = static_cast<UINT>(-1);
    none.hDC = blank.dc.m_hDC;
    none.rcItem = CRect(0, 0, 30, 20);
    combo.DrawItem(&none);
    EXPECT_TRUE(blank.isAll(RGB(9, 200, 90)));
}

TEST(TypedCombos, HandTheirValuesToTheEdit) {
    CKtUiAngleComboBox angle;
    CKtUiNumericComboBox numeric;
    CKtUiStringComboBox string;
    CKtUiSymbolComboBox symbol;
    EXPECT_TRUE(angle.KtUiEditBox()->IsKindOf(RUNTIME_CLASS(CKtUiAngleEdit)));
    EXPECT_TRUE(string.KtUiEditBox()->IsKindOf(RUNTIME_CLASS(CKtUiStringEdit)));
    EXPECT_TRUE(symbol.KtUiEditBox()->IsKindOf(RUNTIME_CLASS(CKtUiSymbolEdit)));
    CString text = L"x";
    EXPECT_EQ(angle.ValidateData(text), kKtUiErrorNotAngle);
    EXPECT_EQ(numeric.ValidateData(text), kKtUiErrorNotNumeric);
    EXPECT_FALSE(numeric.ConvertData(text));
    numeric.SetRange(3, 5);
    for (const auto& [value, error] :
         {std::pair{L"2", kKtUiErrorOutOfRange}, std::pair{L"3", kKtUiErrorNone},
          std::pair{L"5", kKtUiErrorNone}, std::pair{L"6", kKtUiErrorOutOfRange}}) {
        text = value;
        EXPECT_EQ(numeric.ValidateData(text), error) << value;
    }
}

}  // namespace
