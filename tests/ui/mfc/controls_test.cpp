// The control classes: creation, reflection of owner draw, items, common dialogs.
#include <afxcmn.h>
#include <afxdlgs.h>
#include <afxext.h>

#include <algorithm>

#include "leak_count.h"
#include "ui_test.h"

namespace {

constexpr UINT kId = 77;

/// An owner-drawn, sorted list box that remembers what it was asked.
class DrawnListBox : public CListBox {
public:
    int m_drawn = 0, m_measured = 0, m_deleted = 0;

    void MeasureItem(LPMEASUREITEMSTRUCT item) override {
        item->itemHeight = 23;
        ++m_measured;
    }
    void DrawItem(LPDRAWITEMSTRUCT item) override {
        EXPECT_EQ(item->hwndItem, m_hWnd);
        ++m_drawn;
    }
    int CompareItem(LPCOMPAREITEMSTRUCT pair) override {
        const auto a = static_cast<INT_PTR>(pair->itemData1), b = static_cast<INT_PTR>(pair->itemData2);
        return (b > a) - (b < a);  // the greatest first
    }
    void DeleteItem(LPDELETEITEMSTRUCT) override { ++m_deleted; }
};

class DrawnComboBox : public CComboBox {
public:
    int m_drawn = 0, m_deleted = 0;
    void MeasureItem(LPMEASUREITEMSTRUCT item) override { item->itemHeight = 19; }
    void DrawItem(LPDRAWITEMSTRUCT) override { ++m_drawn; }
    void DeleteItem(LPDELETEITEMSTRUCT) override { ++m_deleted; }
};

template <class Control>
class Drawn : public Control {
public:
    int m_drawn = 0;
    void DrawItem(LPDRAWITEMSTRUCT) override { ++m_drawn; }
};

/// Sees the notifications of its control before the parent does.
class NotifiedEdit : public CEdit {
public:
    int m_changes = 0;

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pLResult) override {
        if (message == WM_COMMAND && HIWORD(wParam) == EN_CHANGE) ++m_changes;
        return CEdit::OnChildNotify(message, wParam, lParam, pLResult);
    }
};

class Controls : public testing::Test {
protected:
    ui_test::ParentWindow parent;
    CRect area{10, 10, 210, 110};
    static constexpr DWORD kStyle = WS_CHILD | WS_VISIBLE;
};

}  // namespace

TEST_F(Controls, AnOwnerDrawnListBoxIsAskedByReflection) {
    DrawnListBox list;
    ASSERT_TRUE(list.Create(kStyle | LBS_OWNERDRAWVARIABLE | LBS_SORT | LBS_NOTIFY, area, &parent, kId));
    for (INT_PTR value : {1, 3, 2}) list.AddString(reinterpret_cast<LPCTSTR>(value));
    EXPECT_EQ(list.GetItemData(0), 3u);
    EXPECT_EQ(list.GetItemData(2), 1u);
    EXPECT_EQ(list.m_measured, 3);
    EXPECT_EQ(list.GetItemHeight(0), 23);
    list.RedrawWindow();
    EXPECT_GE(list.m_drawn, 3);
    list.DeleteString(0);
    EXPECT_EQ(list.m_deleted, 1);
}

TEST_F(Controls, AnOwnerDrawnComboBoxIsAskedByReflection) {
    DrawnComboBox combo;
    ASSERT_TRUE(
        combo.Create(kStyle | CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED | CBS_HASSTRINGS, area, &parent, kId));
    combo.AddString(L"one");
    combo.SetCurSel(0);
    combo.RedrawWindow();
    EXPECT_GE(combo.m_drawn, 1);
    combo.ResetContent();
    EXPECT_EQ(combo.m_deleted, 1);
}

TEST_F(Controls, OwnerDrawnButtonsStaticsAndTabsDrawThemselves) {
    Drawn<CButton> button;
    ASSERT_TRUE(button.Create(L"text", kStyle | BS_OWNERDRAW, area, &parent, kId));
    button.RedrawWindow();
    EXPECT_GE(button.m_drawn, 1);
    Drawn<CStatic> text;
    ASSERT_TRUE(text.Create(L"text", kStyle | SS_OWNERDRAW, CRect(220, 10, 300, 40), &parent, kId + 1));
    text.RedrawWindow();
    EXPECT_GE(text.m_drawn, 1);
    Drawn<CTabCtrl> tabs;
    ASSERT_TRUE(tabs.Create(kStyle | TCS_OWNERDRAWFIXED, CRect(220, 50, 420, 150), &parent, kId + 2));
    tabs.InsertItem(0, L"tab");
    tabs.RedrawWindow();
    EXPECT_GE(tabs.m_drawn, 1);
    Drawn<CListCtrl> list;
    ASSERT_TRUE(
        list.Create(kStyle | LVS_REPORT | LVS_OWNERDRAWFIXED, CRect(10, 150, 200, 250), &parent, kId + 3));
    list.InsertColumn(0, L"c", LVCFMT_LEFT, 80);
    list.InsertItem(0, L"item");
    list.RedrawWindow();
    EXPECT_GE(list.m_drawn, 1);
}

TEST_F(Controls, ANotificationReachesTheControlsOwnObjectFirst) {
    NotifiedEdit edit;
    ASSERT_TRUE(edit.Create(kStyle, area, &parent, kId));
    edit.SetWindowText(L"changed");
    EXPECT_EQ(edit.m_changes, 1);
    edit.SetSel(0, -1);
    edit.ReplaceSel(L"again");
    EXPECT_EQ(edit.m_changes, 2);
}

TEST_F(Controls, EditKeepsSelectionLinesAndMargins) {
    CEdit edit;
    ASSERT_TRUE(edit.Create(kStyle | ES_MULTILINE | ES_AUTOVSCROLL, area, &parent, kId));
    edit.SetWindowText(L"first\r\nsecond");
    EXPECT_EQ(edit.GetLineCount(), 2);
    int start = 0, end = 0;
    edit.SetSel(2, 4);
    edit.GetSel(start, end);
    EXPECT_EQ(start, 2);
    EXPECT_EQ(end, 4);
    wchar_t line[20] = {};
    EXPECT_EQ(edit.GetLine(1, line, 20), 6);
    EXPECT_STREQ(line, L"second");
    EXPECT_EQ(edit.LineFromChar(8), 1);
    EXPECT_FALSE(edit.GetModify());
    edit.SetModify();
    EXPECT_TRUE(edit.GetModify());
    edit.SetLimitText(30);
    EXPECT_EQ(edit.GetLimitText(), 30u);
}

TEST_F(Controls, ListBoxAnswersTextsAndSelections) {
    CListBox list;
    ASSERT_TRUE(list.Create(kStyle | LBS_EXTENDEDSEL, area, &parent, kId));
    for (LPCTSTR text : {L"zero", L"one", L"two", L"three"}) list.AddString(text);
    CString text;
    list.GetText(3, text);
    EXPECT_EQ(text, L"three");
    EXPECT_THROW(list.GetText(4, text), CInvalidArgException*);
    list.SelItemRange(TRUE, 1, 3);
    EXPECT_EQ(list.GetSelCount(), 3);
    list.SelItemRange(FALSE, 2, 3);
    EXPECT_EQ(list.GetSelCount(), 1);
    list.SelItemRange(TRUE, 0, 0);
    int selected[4];
    EXPECT_EQ(list.GetSelItems(4, selected), 2);
    EXPECT_EQ(selected[0], 0);
    EXPECT_EQ(selected[1], 1);
    BOOL outside = TRUE;
    EXPECT_EQ(list.ItemFromPoint(CPoint(3, list.GetItemHeight(0) + 1), outside), 1u);
    EXPECT_FALSE(outside);
    EXPECT_EQ(list.FindStringExact(-1, L"two"), 2);
    list.SetItemDataPtr(2, &list);
    EXPECT_EQ(list.GetItemDataPtr(2), &list);
}

TEST_F(Controls, ComboBoxAnswersTextsAndData) {
    CComboBox combo;
    ASSERT_TRUE(combo.Create(kStyle | CBS_DROPDOWN, area, &parent, kId));
    EXPECT_EQ(combo.AddString(L"zero"), 0);
    EXPECT_EQ(combo.InsertString(0, L"before"), 0);
    CString text;
    combo.GetLBText(1, text);
    EXPECT_EQ(text, L"zero");
    EXPECT_THROW(combo.GetLBText(2, text), CInvalidArgException*);
    combo.SetItemData(1, 42);
    EXPECT_EQ(combo.GetItemData(1), 42u);
    EXPECT_EQ(combo.SelectString(-1, L"ze"), 1);
    combo.SetEditSel(1, 3);
    EXPECT_EQ(combo.GetEditSel(), static_cast<DWORD>(MAKELONG(1, 3)));
    COMBOBOXINFO info;
    EXPECT_TRUE(combo.GetComboBoxInfo(&info));
    EXPECT_NE(info.hwndItem, nullptr);
}

TEST_F(Controls, ComboBoxExKeepsItemsWithIndents) {
    CComboBoxEx combo;
    ASSERT_TRUE(combo.Create(kStyle | CBS_DROPDOWNLIST, area, &parent, kId));
    COMBOBOXEXITEMW item = {};
    item.mask = CBEIF_TEXT | CBEIF_INDENT;
    item.iItem = -1;
    item.pszText = const_cast<LPTSTR>(L"indented");
    item.iIndent = 2;
    EXPECT_EQ(combo.InsertItem(&item), 0);
    COMBOBOXEXITEMW read = {};
    wchar_t text[32];
    read.mask = CBEIF_TEXT | CBEIF_INDENT;
    read.pszText = text;
    read.cchTextMax = 32;
    EXPECT_TRUE(combo.GetItem(&read));
    EXPECT_STREQ(read.pszText, L"indented");
    EXPECT_EQ(read.iIndent, 2);
    ASSERT_NE(combo.GetComboBoxCtrl(), nullptr);
    EXPECT_EQ(combo.GetComboBoxCtrl()->GetCount(), 1);
}

TEST_F(Controls, ListCtrlKeepsItemsColumnsAndSelection) {
    CListCtrl list;
    ASSERT_TRUE(list.Create(kStyle | LVS_REPORT, area, &parent, kId));
    EXPECT_EQ(list.InsertColumn(0, L"Name", LVCFMT_LEFT, 80), 0);
    EXPECT_EQ(list.InsertColumn(1, L"Value", LVCFMT_RIGHT, 60, 1), 1);
    EXPECT_EQ(list.GetHeaderCtrl()->GetItemCount(), 2);
    for (int i = 0; i < 5; ++i) {
        CString name;
        name.Format(L"item %d", i);
        EXPECT_EQ(list.InsertItem(i, name), i);
    }
    const CString long_text(L'x', 259);
    list.SetItemText(1, 1, long_text);
    EXPECT_EQ(list.GetItemText(1, 1), long_text);
    EXPECT_EQ(list.GetItemText(3, 0), L"item 3");
    list.SetItemData(2, 99);
    EXPECT_EQ(list.GetItemData(2), 99u);
    list.SetItemState(1, LVIS_SELECTED, LVIS_SELECTED);
    list.SetItemState(4, LVIS_SELECTED, LVIS_SELECTED);
    CArray<int, int> selected;
    for (POSITION at = list.GetFirstSelectedItemPosition(); at;) selected.Add(list.GetNextSelectedItem(at));
    ASSERT_EQ(selected.GetSize(), 2);
    EXPECT_EQ(selected[0], 1);
    EXPECT_EQ(selected[1], 4);
    CRect cell;
    EXPECT_TRUE(list.GetSubItemRect(1, 1, LVIR_BOUNDS, cell));
    EXPECT_EQ(cell.Width(), 60);
    EXPECT_EQ(list.HitTest(cell.CenterPoint() - CSize(80, 0)), 1);
    list.SetExtendedStyle(LVS_EX_CHECKBOXES);
    list.SetCheck(0);
    EXPECT_TRUE(list.GetCheck(0));
    EXPECT_FALSE(list.GetCheck(1));
    EXPECT_TRUE(list.DeleteItem(0));
    EXPECT_EQ(list.GetItemCount(), 4);
}

TEST_F(Controls, TreeCtrlKeepsItems) {
    CTreeCtrl tree;
    ASSERT_TRUE(tree.Create(kStyle | TVS_HASLINES | TVS_HASBUTTONS, area, &parent, kId));
    HTREEITEM root = tree.InsertItem(L"root");
    HTREEITEM child = tree.InsertItem(CString(L'y', 200), 0, 0, root);
    EXPECT_TRUE(tree.ItemHasChildren(root));
    EXPECT_EQ(tree.GetChildItem(root), child);
    EXPECT_EQ(tree.GetParentItem(child), root);
    EXPECT_EQ(tree.GetItemText(child), CString(L'y', 200));
    tree.SetItemData(child, 7);
    EXPECT_EQ(tree.GetItemData(child), 7u);
    tree.Expand(root, TVE_EXPAND);
    EXPECT_TRUE(tree.GetItemState(root, TVIS_EXPANDED) & TVIS_EXPANDED);
    tree.SelectItem(child);
    EXPECT_EQ(tree.GetSelectedItem(), child);
    CRect row;
    EXPECT_TRUE(tree.GetItemRect(child, row, TRUE));
    EXPECT_EQ(tree.HitTest(row.TopLeft() + CSize(2, 2)), child);
    tree.DeleteItem(child);
    EXPECT_EQ(tree.GetCount(), 1u);
}

TEST_F(Controls, TabAndHeaderKeepTheirItems) {
    CTabCtrl tabs;
    ASSERT_TRUE(tabs.Create(kStyle, area, &parent, kId));
    EXPECT_EQ(tabs.InsertItem(0, L"one"), 0);
    EXPECT_EQ(tabs.InsertItem(TCIF_TEXT | TCIF_PARAM, 1, L"two", -1, 5), 1);
    tabs.SetCurSel(1);
    EXPECT_EQ(tabs.GetCurSel(), 1);
    TCITEMW item = {};
    item.mask = TCIF_PARAM;
    EXPECT_TRUE(tabs.GetItem(1, &item));
    EXPECT_EQ(item.lParam, 5);
    CHeaderCtrl header;
    ASSERT_TRUE(header.Create(kStyle | HDS_HORZ, CRect(10, 120, 210, 140), &parent, kId + 1));
    HDITEMW column = {};
    column.mask = HDI_TEXT | HDI_WIDTH;
    column.pszText = const_cast<LPTSTR>(L"column");
    column.cxy = 50;
    EXPECT_EQ(header.InsertItem(0, &column), 0);
    EXPECT_EQ(header.InsertItem(1, &column), 1);
    int order[2] = {1, 0};
    EXPECT_TRUE(header.SetOrderArray(2, order));
    EXPECT_EQ(header.OrderToIndex(0), 1);
    int read[2] = {};
    EXPECT_TRUE(header.GetOrderArray(read));
    EXPECT_EQ(read[0], 1);
}

TEST_F(Controls, RangeControlsKeepRangeAndPosition) {
    CSliderCtrl slider;
    ASSERT_TRUE(slider.Create(kStyle, area, &parent, kId));
    slider.SetRange(-10, 70000);
    slider.SetPos(65000);
    EXPECT_EQ(slider.GetPos(), 65000);
    int low = 0, high = 0;
    slider.GetRange(low, high);
    EXPECT_EQ(low, -10);
    EXPECT_EQ(high, 70000);
    CProgressCtrl progress;
    ASSERT_TRUE(progress.Create(kStyle, CRect(10, 120, 200, 140), &parent, kId + 1));
    progress.SetRange32(5, 100000);
    progress.GetRange(low, high);
    EXPECT_EQ(low, 5);
    EXPECT_EQ(high, 100000);
    progress.SetPos(50);
    EXPECT_EQ(progress.OffsetPos(25), 50);
    EXPECT_EQ(progress.GetPos(), 75);
    CEdit buddy;
    buddy.Create(kStyle, CRect(10, 150, 100, 170), &parent, kId + 2);
    CSpinButtonCtrl spin;
    ASSERT_TRUE(spin.Create(kStyle | UDS_SETBUDDYINT, CRect(100, 150, 120, 170), &parent, kId + 3));
    spin.SetBuddy(&buddy);
    EXPECT_EQ(spin.GetBuddy(), &buddy);
    spin.SetRange32(0, 90000);
    spin.SetPos32(80001);
    EXPECT_EQ(spin.GetPos32(), 80001);
    CScrollBar bar;
    ASSERT_TRUE(bar.Create(kStyle | SBS_HORZ, CRect(10, 180, 200, 200), &parent, kId + 4));
    SCROLLINFO info = {sizeof info, SIF_RANGE | SIF_PAGE, 0, 99, 10, 0, 0};
    bar.SetScrollInfo(&info);
    EXPECT_EQ(bar.GetScrollLimit(), 90);
}

TEST_F(Controls, StatusBarKeepsItsPanes) {
    CStatusBarCtrl bar;
    ASSERT_TRUE(bar.Create(kStyle | CCS_BOTTOM, CRect(), &parent, kId));
    int edges[2] = {100, -1};
    EXPECT_TRUE(bar.SetParts(2, edges));
    bar.SetText(L"pane text", 1, SBT_NOBORDERS);
    int type = 0;
    EXPECT_EQ(bar.GetText(1, &type), L"pane text");
    EXPECT_EQ(type, SBT_NOBORDERS);
    EXPECT_EQ(bar.GetText(0), L"");
}

TEST_F(Controls, ToolTipKeepsTools) {
    CButton button;
    button.Create(L"b", kStyle, area, &parent, kId);
    CToolTipCtrl tip;
    ASSERT_TRUE(tip.Create(&parent, TTS_ALWAYSTIP));
    EXPECT_TRUE(tip.AddTool(&button, L"of the window"));
    const CRect corner(0, 0, 20, 20);
    EXPECT_TRUE(tip.AddTool(&parent, L"of the corner", corner, 5));
    EXPECT_TRUE(tip.AddTool(&parent, 200u, corner, 6));
    EXPECT_EQ(tip.GetToolCount(), 3);
    CString text;
    tip.GetText(text, &button);
    EXPECT_EQ(text, L"of the window");
    tip.GetText(text, &parent, 6);
    EXPECT_EQ(text, L"A text from the resources: 图层");
    tip.UpdateTipText(L"updated", &parent, 5);
    tip.GetText(text, &parent, 5);
    EXPECT_EQ(text, L"updated");
    TOOLINFOW info;
    EXPECT_TRUE(tip.GetToolInfo(info, &parent, 5));
    EXPECT_EQ(CRect(info.rect), corner);
    tip.DelTool(&button);
    EXPECT_EQ(tip.GetToolCount(), 2);
    CRect margin(1, 2, 3, 4), read;
    tip.SetMargin(margin);
    tip.GetMargin(read);
    EXPECT_EQ(read, margin);
    EXPECT_TRUE(tip.DestroyToolTipCtrl());
    EXPECT_EQ(tip.m_hWnd, nullptr);
}

TEST_F(Controls, ABitmapButtonShowsThePictureOfItsState) {
    CBitmapButton button;
    EXPECT_TRUE(button.LoadBitmaps(300, 301));
    ASSERT_TRUE(button.Create(L"", kStyle | BS_OWNERDRAW, area, &parent, kId));
    button.SizeToContent();
    CRect size;
    button.GetClientRect(size);
    EXPECT_EQ(size.Size(), CSize(4, 2));
    const auto shown = [&button](UINT state) {
        CClientDC screen(nullptr);
        CDC dc;
        dc.CreateCompatibleDC(&screen);
        CBitmap bitmap;
        bitmap.CreateCompatibleBitmap(&screen, 4, 2);
        CBitmap* const before = dc.SelectObject(&bitmap);
        DRAWITEMSTRUCT item = {};
        item.hDC = dc;
        item.rcItem = CRect(0, 0, 4, 2);
        item.itemState = state;
        button.DrawItem(&item);
        const COLORREF color = dc.GetPixel(1, 1);
        dc.SelectObject(before);
        return color;
    };
    EXPECT_EQ(shown(0), RGB(255, 0, 0));
    EXPECT_EQ(shown(ODS_SELECTED), RGB(0, 0, 255));
    EXPECT_EQ(shown(ODS_DISABLED), RGB(255, 0, 0));
    CButton named;
    named.Create(L"PIC", kStyle | BS_OWNERDRAW, area, &parent, kId + 1);
    const HWND handle = named.Detach();
    named.m_hWnd = nullptr;
    CBitmapButton loaded;
    EXPECT_TRUE(loaded.AutoLoad(kId + 1, &parent));
    EXPECT_EQ(loaded.m_hWnd, handle);
    CBitmapButton incomplete;
    EXPECT_FALSE(incomplete.LoadBitmaps(300, 999)) << "no such picture";
}

TEST_F(Controls, TheColourDialogAnswersTheInitialColourAndReachesItsObject) {
    class Dialog : public CColorDialog {
    public:
        using CColorDialog::CColorDialog;
        int m_asked = 0;
        bool m_initialized = false;
        BOOL OnInitDialog() override {
            m_initialized = true;
            return CColorDialog::OnInitDialog();
        }

    protected:
        BOOL OnColorOK() override { return ++m_asked == 1; }
    };
    Dialog dialog(RGB(10, 20, 30), CC_FULLOPEN, &parent);
    ui_test::when_dialog(L"", [&dialog](HWND window) {
        EXPECT_EQ(dialog.m_hWnd, window);
        // Wine lets the question whether the colour will do out, so it is asked here as the system would.
        const UINT question = ::RegisterWindowMessageW(COLOROKSTRINGW);
        EXPECT_EQ(dialog.m_cc.lpfnHook(window, question, 0, reinterpret_cast<LPARAM>(&dialog.m_cc)), 1u);
        EXPECT_EQ(dialog.m_cc.lpfnHook(window, question, 0, reinterpret_cast<LPARAM>(&dialog.m_cc)), 0u);
        ::SendMessageW(window, WM_COMMAND, IDOK, 0);
    });
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_TRUE(dialog.m_initialized);
    EXPECT_GE(dialog.m_asked, 2);
    EXPECT_EQ(dialog.GetColor(), RGB(10, 20, 30));
    EXPECT_EQ(dialog.m_hWnd, nullptr);
}

TEST_F(Controls, TheFontDialogMayBeCancelled) {
    LOGFONTW font = {};
    wcscpy(font.lfFaceName, L"Tahoma");
    font.lfHeight = -16;
    CFontDialog dialog(&font, CF_SCREENFONTS, nullptr, &parent);
    ui_test::when_dialog(L"", [](HWND window) { ::SendMessageW(window, WM_COMMAND, IDCANCEL, 0); });
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    EXPECT_EQ(dialog.GetFaceName(), L"Tahoma");
}

TEST_F(Controls, CreatingAndDestroyingManyLeavesNothing) {
    const auto use = [this] {
        CListCtrl list;
        list.Create(kStyle | LVS_REPORT, area, &parent, kId);
        list.InsertColumn(0, L"c");
        list.InsertItem(0, L"i");
        CTreeCtrl tree;
        tree.Create(kStyle, area, &parent, kId + 1);
        tree.InsertItem(L"t");
        CToolTipCtrl tip;
        tip.Create(&parent);
        tip.AddTool(&list, L"x");
        CComboBox combo;
        combo.Create(kStyle | CBS_DROPDOWN, area, &parent, kId + 2);
        list.GetHeaderCtrl()->GetItemCount();
        tip.DestroyToolTipCtrl();
        CWnd::DeleteTempMap();
        CGdiObject::DeleteTempMap();
    };
    for (int i = 0; i < 5; ++i) use();
    const HeldObjects before = count_held_objects();
    for (int i = 0; i < 200; ++i) use();
    const HeldObjects after = count_held_objects();
    EXPECT_EQ(after.windows, before.windows);
    EXPECT_LE(after.gdiObjects, before.gdiObjects + 2);
}
