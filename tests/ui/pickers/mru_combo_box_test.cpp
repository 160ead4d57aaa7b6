#include <ktui/pickers/mru_combo_box.h>

#include <ktui/pickers/mru_list_box.h>

#include "picker_fixture.h"

using ui_test::Canvas;
using ui_test::InHolder;
using ui_test::kPickerStyle;

namespace {

using Texts = std::vector<std::wstring>;
using Cargos = std::vector<__int64>;

/// A picker with two fixed items and an Other dialog that the test answers.
class TestPicker : public CKtUiMRUComboBox {
public:
    int inits = 0;
    int dialogs = 0;
    int lastWhich = -1;
    int lastSelBehindDialog = -2;
    int accept = 0;
    int acceptedIndex = -1;
    std::vector<__int64> imagesDrawn;
    CRect imageRect;
    std::vector<std::pair<int, int>> heightsSet;  ///< index and height of each CB_SETITEMHEIGHT

    int lastSelection() const { return m_lastSelection; }
    unsigned flags() const { return m_mruFlags; }
    const MruStore& store() const { return m_mru; }
    CRect tipRect() const { return m_tipRect; }
    BOOL askTipRect(CRect& rect) { return OnGetTipRect(rect); }

    void OnAddItems() override {
        CKtUiMRUComboBox::AddItemToList(L"first", 1);
        CKtUiMRUComboBox::AddItemToList(L"second", 2);
    }
    void OnComboBoxInit() override {
        ++inits;
        CKtUiMRUComboBox::OnComboBoxInit();
    }
    int OnSelectOther(int which, int lastSel, int& newIndex) override {
        ++dialogs;
        lastWhich = which;
        lastSelBehindDialog = GetCurSel();
        EXPECT_EQ(lastSel, m_lastSelection);
        newIndex = acceptedIndex;
        return accept;
    }
    void DrawItemImage(CDC&, CRect& rect, __int64 cargo) override {
        imagesDrawn.push_back(cargo);
        imageRect = rect;
    }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == CB_SETITEMHEIGHT)
            heightsSet.emplace_back(static_cast<int>(wParam), static_cast<int>(lParam));
        return CKtUiMRUComboBox::WindowProc(message, wParam, lParam);
    }
};

}  // namespace

TEST(MruPicker, StartsWithItsOwnListAndReservedCargo) {
    TestPicker picker;
    EXPECT_TRUE(picker.GetListBox()->IsKindOf(RUNTIME_CLASS(CKtUiMRUListBox)));
    EXPECT_EQ(picker.GetListBox()->GetComboBox(), &picker);
    EXPECT_EQ(picker.GetCargoOption1(), -104);
    EXPECT_EQ(picker.GetCargoOption2(), -105);
    EXPECT_EQ(picker.ItemHeight(), 0);
    EXPECT_EQ(picker.lastSelection(), -1);
    EXPECT_EQ(picker.GetLogPalette(), nullptr);
    EXPECT_EQ(picker.flags(), 0u);
}

TEST(MruPicker, FlagGettersAnswerAllOnesAndSettersKeepTheLowestBit) {
    TestPicker picker;
    picker.SetUseByLayer(1);
    EXPECT_EQ(picker.GetUseByLayer(), -1);
    EXPECT_EQ(picker.GetUseOption1(), -1);
    EXPECT_EQ(picker.flags(), 2u);
    picker.SetUseByBlock(3);
    EXPECT_EQ(picker.GetUseOption2(), -1);
    picker.SetUseByBlock(2);
    EXPECT_EQ(picker.GetUseByBlock(), 0) << "only the lowest bit counts";
    picker.SetUseOther(1);
    picker.SetUseWindows(1);
    EXPECT_EQ(picker.GetUseOther1(), -1);
    EXPECT_EQ(picker.GetUseOther2(), -1);
    EXPECT_EQ(picker.flags(), 2u + 8u + 16u);
}

TEST(MruPicker, CreatedControlIsInitialisedOnceAndKeepsItsLastSelection) {
    InHolder<TestPicker> in;
    EXPECT_EQ(in.picker.inits, 1);
    EXPECT_EQ(in.picker.flags() & 1u, 1u);
    EXPECT_EQ(in.picker.lastSelection(), -1);
    EXPECT_EQ(in.texts(), (Texts{L"first", L"second"}));
}

TEST(MruPicker, SubclassedControlIsInitialisedAndTakesTheSelection) {
    InHolder<TestPicker> in(InHolder<TestPicker>::kBySubclassing);
    EXPECT_EQ(in.picker.inits, 1);
    EXPECT_EQ(in.picker.flags() & 1u, 0u);
    EXPECT_EQ(in.texts(), (Texts{L"first", L"second"}));
    EXPECT_EQ(in.picker.lastSelection(), -1);
}

TEST(MruPicker, ItemHeightFollowsTheIconTitleFont) {
    InHolder<TestPicker> in;
    LOGFONTW font = {};
    ::SystemParametersInfoW(SPI_GETICONTITLELOGFONT, sizeof font, &font, 0);
    const int expected = static_cast<int>(font.lfHeight < 0 ? -font.lfHeight : font.lfHeight) + 4;
    EXPECT_EQ(in.picker.ItemHeight(), expected);
    EXPECT_EQ(in.picker.ImageWidth(), expected) << "the image is square";
    EXPECT_EQ(in.picker.ExtraWidth(), expected);
    EXPECT_EQ(in.picker.GetItemHeight(0), expected);
    using Set = std::pair<int, int>;
    EXPECT_EQ(in.picker.heightsSet, (std::vector<Set>{{0, expected}, {-1, expected}}))
        << "the list first, then the selection field";
    MEASUREITEMSTRUCT measure = {};
    in.picker.MeasureItem(&measure);
    EXPECT_EQ(measure.itemHeight, static_cast<UINT>(expected));
}

TEST(MruPicker, ThemeChangeRecalculatesTheHeight) {
    InHolder<TestPicker> in;
    const int expected = in.picker.ItemHeight();
    in.picker.SendMessage(CB_SETITEMHEIGHT, 0, 50);
    in.picker.SendMessage(WM_THEMECHANGED);
    EXPECT_EQ(in.picker.GetItemHeight(0), expected);
}

TEST(MruPicker, RebuiltListReadsStoreOptionsFixedItems) {
    InHolder<TestPicker> in;
    in.picker.AddItemToMRU(L"old", 10);
    in.picker.AddItemToMRU(L"new", 11);
    in.picker.SetUseByLayer(1);
    in.picker.SetUseByBlock(1);
    in.picker.ResetContent();
    in.picker.AddItems();
    EXPECT_EQ(in.texts(), (Texts{L"new", L"old", L"ByLayer", L"ByBlock", L"first", L"second"}));
    EXPECT_EQ(in.cargos(), (Cargos{11, 10, -104, -105, 1, 2}));
}

TEST(MruPicker, RefillWithoutFlagsListsStoreAndFixedItemsOnly) {
    InHolder<TestPicker> in;
    in.picker.AddItemToMRU(L"old", 10);
    in.picker.ResetContent();
    in.picker.AddItems();
    EXPECT_EQ(in.texts(), (Texts{L"old", L"first", L"second"}));
    in.picker.AddItems();
    EXPECT_EQ(in.picker.GetCount(), 6) << "the list is never cleared";
}

TEST(MruPicker, LiveListTakesNewEntriesAtItsEnd) {
    InHolder<TestPicker> in;
    EXPECT_EQ(in.picker.AddItemToMRU(L"new", 10), 2);
    EXPECT_EQ(in.texts(), (Texts{L"first", L"second", L"new"}));
}

TEST(MruPicker, SeventhEntryEvictsFromTheStoreAndNotFromTheList) {
    InHolder<TestPicker> in;
    for (int cargo = 10; cargo < 17; ++cargo) in.picker.AddItemToMRU(L"entry", cargo);
    EXPECT_EQ(in.picker.store().count(), 6);
    EXPECT_EQ(in.picker.FindCargoInMRU(10), 0);
    EXPECT_EQ(in.picker.FindCargoInMRU(11), 1);
    EXPECT_EQ(in.picker.GetCount(), 2 + 7);
    EXPECT_EQ(in.picker.FindItemByCargo(10), 2);
}

TEST(MruPicker, CargoInTheListIsNotAddedAgain) {
    InHolder<TestPicker> in;
    EXPECT_EQ(in.picker.AddItemToMRU(L"other name", 2), 1) << "a fixed item counts too";
    EXPECT_EQ(in.picker.store().count(), 0);
    in.picker.AddItemToMRU(L"a", 10);
    in.picker.AddItemToMRU(L"b", 11);
    EXPECT_EQ(in.picker.AddItemToMRU(L"a", 10), 2);
    EXPECT_EQ(in.picker.store().cargo(0), 10) << "and no recency changes";
    EXPECT_EQ(in.picker.GetCount(), 4);
}

TEST(MruPicker, RemovalFromTheStoreKeepsTheItem) {
    InHolder<TestPicker> in;
    in.picker.AddItemToMRU(L"a", 10);
    in.picker.RemoveItemFromMRU(10);
    EXPECT_EQ(in.picker.FindCargoInMRU(10), 0);
    EXPECT_EQ(in.picker.FindItemByCargo(10), 2);
    EXPECT_EQ(in.picker.store().cargo(0), -1);
}

TEST(MruPicker, GeneratedCargoIsTheNextUnused) {
    InHolder<TestPicker> in;
    EXPECT_EQ(in.picker.GenerateCargoFromMRU(5), 5);
    in.picker.AddItemToMRU(L"a", 5);
    in.picker.AddItemToMRU(L"b", 6);
    EXPECT_EQ(in.picker.GenerateCargoFromMRU(5), 7);
}

TEST(MruPicker, CargoOutsideTheListIsMinusOne) {
    InHolder<TestPicker> in;
    EXPECT_EQ(in.picker.GetCurrentItemCargo(), -1);
    EXPECT_EQ(in.picker.GetItemCargo(-1), -1);
    EXPECT_EQ(in.picker.GetItemCargo(2), -1);
    EXPECT_EQ(in.picker.FindItemByCargo(99), -1);
    in.picker.SetCurSel(1);
    EXPECT_EQ(in.picker.GetCurrentItemCargo(), 2);
}

TEST(MruPicker, CargoHoldsSixtyFourBits) {
    InHolder<TestPicker> in;
    const __int64 wide = 0x1122334455667788;
    const int index = in.picker.AddItemToList(L"wide", wide);
    EXPECT_EQ(in.picker.GetItemCargo(index), wide);
    EXPECT_EQ(in.picker.FindItemByCargo(wide), index);
    EXPECT_EQ(in.picker.InsertItemInList(0, L"front", 77), 0);
    EXPECT_EQ(in.picker.InsertItemInList(99, L"nowhere", 78), -1);
}

TEST(MruPickerOther, ItemsJoinAtTheFirstDropDownAndStay) {
    InHolder<TestPicker> in;
    in.picker.SetUseOther(1);
    EXPECT_EQ(in.picker.GetCount(), 2);
    in.dropDown();
    in.closeUp();
    EXPECT_EQ(in.picker.GetCount(), 3);
    EXPECT_EQ(in.picker.GetItemCargo(2), -102);
    in.dropDown();
    in.closeUp();
    EXPECT_EQ(in.picker.GetCount(), 3);
}

TEST(MruPickerOther, BothItemsCarryTheFirstOnesCargo) {
    InHolder<TestPicker> in;
    in.picker.SetUseOther(1);
    in.picker.SetUseOther2(1);
    in.dropDown();
    in.closeUp();
    EXPECT_EQ(in.cargos(), (Cargos{1, 2, -102, -102}));
    CString first;
    CString second;
    in.picker.GetOtherName(0, first);
    in.picker.GetOtherName(1, second);
    EXPECT_EQ(in.texts(), (Texts{L"first", L"second", first.GetString(), second.GetString()}));
}

TEST(MruPickerOther, WithoutTheFlagTheListNeverGrows) {
    InHolder<TestPicker> in;
    in.choose(1);
    EXPECT_EQ(in.picker.GetCount(), 2);
    EXPECT_EQ(in.picker.lastSelection(), 1);
    EXPECT_EQ(in.picker.dialogs, 0);
}

TEST(MruPickerOther, CancelReselectsWhatWasSelectedBefore) {
    InHolder<TestPicker> in;
    in.picker.SetUseOther(1);
    in.choose(1);
    in.choose(2);
    EXPECT_EQ(in.picker.dialogs, 1);
    EXPECT_EQ(in.picker.lastWhich, 0);
    EXPECT_EQ(in.picker.lastSelBehindDialog, 1) << "the former item shows while the dialog is up";
    EXPECT_EQ(in.picker.GetCurSel(), 1);
    EXPECT_EQ(in.picker.lastSelection(), 1);
    EXPECT_EQ(in.picker.GetCount(), 3) << "the Other item stays";
}

TEST(MruPickerOther, AcceptSelectsTheAnswerAndRemembersIt) {
    InHolder<TestPicker> in;
    in.picker.SetUseOther(1);
    in.choose(1);
    in.picker.accept = 1;
    in.picker.acceptedIndex = 0;
    in.choose(2);
    EXPECT_EQ(in.picker.GetCurSel(), 0);
    EXPECT_EQ(in.picker.lastSelection(), 0);
}

TEST(MruPickerOther, SecondItemOpensNothingAndStaysSelected) {
    InHolder<TestPicker> in;
    in.picker.SetUseOther(1);
    in.picker.SetUseOther2(1);
    in.choose(1);
    in.choose(3);
    EXPECT_EQ(in.picker.dialogs, 0);
    EXPECT_EQ(in.picker.GetCurSel(), 3);
    EXPECT_EQ(in.picker.lastSelection(), 1) << "an Other item is never fallen back to";
    EXPECT_EQ(in.picker.GetCount(), 4);
}

TEST(MruPickerOther, SecondDialogIsReachedDirectly) {
    InHolder<TestPicker> in;
    in.choose(1);
    in.picker.SelectOther(1);
    EXPECT_EQ(in.picker.dialogs, 1);
    EXPECT_EQ(in.picker.lastWhich, 1);
    EXPECT_EQ(in.picker.GetCurSel(), 1);
}

TEST(MruPickerOther, ItemWithTheSecondCargoIsDeletedAtCloseUp) {
    InHolder<TestPicker> in;
    in.picker.SetUseOther2(1);
    in.picker.AddItemToList(L"second other", -103);
    in.choose(2);
    EXPECT_EQ(in.picker.dialogs, 1);
    EXPECT_EQ(in.picker.lastWhich, 1);
    EXPECT_EQ(in.picker.FindItemByCargo(-103), -1);
}

TEST(MruPickerOther, ParentSeesCloseUpAfterTheDialogHasEnded) {
    InHolder<TestPicker> in;
    in.picker.SetUseOther(1);
    in.choose(0);
    EXPECT_EQ(in.holder.closeUps, 1);
    EXPECT_EQ(in.holder.dropDowns, 1);
    in.choose(2);
    EXPECT_EQ(in.picker.dialogs, 1);
    EXPECT_EQ(in.holder.closeUps, 2);
}

TEST(MruPickerOther, DefaultReactionCancels) {
    CKtUiMRUComboBox picker;
    int index = 5;
    EXPECT_EQ(picker.OnSelectOther(0, 3, index), 0);
    EXPECT_EQ(index, 3);
}

TEST(LastSelection, ProgramSelectingFromAnOtherItemDoesNotUpdateIt) {
    InHolder<TestPicker> in;
    in.picker.SetUseOther2(1);
    in.choose(1);
    in.choose(2);
    ASSERT_EQ(in.picker.GetCurrentItemCargo(), -102);
    in.picker.SetCurSel(0);
    EXPECT_EQ(in.picker.lastSelection(), 1) << "the item selected before the message decides";
    in.picker.SetCurSel(0);
    EXPECT_EQ(in.picker.lastSelection(), 0);
}

TEST(LastSelection, IsSetUnlessAnOtherItemIsCurrent) {
    InHolder<TestPicker> in;
    in.picker.SetLastSelection(7);
    EXPECT_EQ(in.picker.lastSelection(), 7);
}

TEST(MruPickerNames, OptionsAreFixedAndOthersComeFromResources) {
    TestPicker picker;
    CString text;
    EXPECT_EQ(picker.GetOptionName(0, text), 1);
    EXPECT_STREQ(text, L"ByLayer");
    EXPECT_EQ(picker.GetOptionName(5, text), 1);
    EXPECT_STREQ(text, L"ByBlock");
    CString expected;
    expected.LoadString(54211);
    EXPECT_EQ(picker.GetOtherName(0, text), 1);
    EXPECT_EQ(text, expected);
    expected.LoadString(54210);
    EXPECT_EQ(picker.GetOtherName(1, text), 1);
    EXPECT_EQ(text, expected);
}

TEST(MruPickerDrawing, ItemIsImageThenFilledText) {
    InHolder<TestPicker> in;
    Canvas canvas(100, 20, RGB(1, 2, 3));
    DRAWITEMSTRUCT item = {};
    item.itemID = 1;
    item.hDC = canvas.dc.m_hDC;
    item.rcItem = CRect(0, 0, 100, 20);
    item.itemState = ODS_SELECTED;
    in.picker.imagesDrawn.clear();
    in.picker.DrawItem(&item);
    EXPECT_EQ(in.picker.imagesDrawn, Cargos{2});
    EXPECT_EQ(in.picker.imageRect, CRect(0, 0, in.picker.ImageWidth(), 20));
    EXPECT_EQ(canvas.dc.GetPixel(1, 1), RGB(1, 2, 3)) << "no background under the image";
    EXPECT_EQ(canvas.dc.GetPixel(98, 1), ::GetSysColor(COLOR_HIGHLIGHT));
}

TEST(MruPickerDrawing, FaceIsNotFilled) {
    InHolder<TestPicker> in;
    Canvas canvas(100, 20, RGB(1, 2, 3));
    DRAWITEMSTRUCT item = {};
    item.itemID = 1;
    item.hDC = canvas.dc.m_hDC;
    item.rcItem = CRect(0, 0, 100, 20);
    item.itemState = ODS_COMBOBOXEDIT;
    in.picker.DrawItem(&item);
    EXPECT_EQ(canvas.dc.GetPixel(98, 1), RGB(1, 2, 3));
}

TEST(MruPickerDrawing, NoItemDrawsNothing) {
    InHolder<TestPicker> in;
    Canvas canvas(100, 20, RGB(1, 2, 3));
    DRAWITEMSTRUCT item = {};
    item.itemID = static_cast<UINT>(-1);
    item.hDC = canvas.dc.m_hDC;
    item.rcItem = CRect(0, 0, 100, 20);
    in.picker.imagesDrawn.clear();
    in.picker.DrawItem(&item);
    EXPECT_TRUE(in.picker.imagesDrawn.empty());
    EXPECT_EQ(canvas.dc.GetPixel(98, 1), RGB(1, 2, 3));
}

TEST(MruPickerDrawing, ColoursDifferBetweenListAndFace) {
    InHolder<TestPicker> in;
    DRAWITEMSTRUCT item = {};
    item.rcItem = CRect(0, 0, 100, 20);
    item.itemState = ODS_SELECTED | ODS_COMBOBOXEDIT;
    CRect itemRect;
    CRect imageRect;
    DWORD text = 0;
    DWORD back = 0;
    in.picker.SetupForImageDraw(&item, nullptr, itemRect, imageRect, text, back);
    EXPECT_EQ(text, ::GetSysColor(COLOR_WINDOWTEXT));
    EXPECT_EQ(back, ::GetSysColor(COLOR_HIGHLIGHT));
    item.itemState = ODS_SELECTED;
    in.picker.SetupForImageDraw(&item, nullptr, itemRect, imageRect, text, back);
    EXPECT_EQ(text, ::GetSysColor(COLOR_HIGHLIGHTTEXT));
    EXPECT_EQ(imageRect, CRect(0, 0, in.picker.ImageWidth(), 20));
}

TEST(MruPickerDrawing, TextColoursAreRestored) {
    InHolder<TestPicker> in;
    Canvas canvas(100, 20, 0);
    canvas.dc.SetTextColor(RGB(9, 8, 7));
    canvas.dc.SetBkMode(OPAQUE);
    DRAWITEMSTRUCT item = {};
    item.itemID = 0;
    item.hDC = canvas.dc.m_hDC;
    item.rcItem = CRect(0, 0, 100, 20);
    in.picker.DrawItem(&item);
    EXPECT_EQ(canvas.dc.GetTextColor(), RGB(9, 8, 7));
    EXPECT_EQ(canvas.dc.GetBkMode(), OPAQUE);
}

TEST(MruPickerTip, ExtentAddsTheImageColumnAndTheRectGrowsUpAndDown) {
    InHolder<TestPicker> in;
    int plainX = 0;
    int plainY = 0;
    in.picker.GetTextExtent(L"first", plainX, plainY);
    int cx = 0;
    int cy = 0;
    in.picker.GetContentExtent(L"first", cx, cy);
    EXPECT_EQ(cx, plainX + in.picker.ImageWidth());
    EXPECT_EQ(cy, plainY);
    CRect rect(10, 20, 30, 40);
    EXPECT_FALSE(in.picker.askTipRect(rect));
    EXPECT_EQ(rect, CRect(10, 16, 30, 44));
    EXPECT_EQ(in.picker.tipRect(), rect);
}

namespace {

/// A list box with an owner-drawn entry that is wider than the box.
struct WideList {
    ui_test::RecordingHolder holder;
    CKtUiMRUListBox list;

    WideList() {
        list.Create(WS_CHILD | WS_VISIBLE | LBS_OWNERDRAWFIXED | LBS_HASSTRINGS, CRect(0, 0, 60, 60), &holder,
                    5);
        list.AddString(L"an entry that is wider than its list");
        ui_test::send_move(list, 4, 4);
    }
};

}  // namespace

TEST(MruListTip, WithoutAComboBoxTheExtentIsTheBases) {
    WideList wide;
    EXPECT_EQ(wide.list.MRUComboBox(), nullptr);
    EXPECT_EQ(wide.list.ExtraWidth(), 0);
    int plainX = 0;
    int plainY = 0;
    wide.list.GetTextExtent(L"wide", plainX, plainY);
    int cx = 0;
    int cy = 0;
    wide.list.GetContentExtent(0, L"wide", cx, cy);
    EXPECT_EQ(cx, plainX);
}

TEST(MruListTip, TipCoversTheImageColumnToo) {
    InHolder<TestPicker> in;
    WideList wide;
    wide.list.SetComboBox(&in.picker);
    EXPECT_EQ(wide.list.MRUComboBox(), &in.picker);
    CRect rect;
    ASSERT_EQ(KbUiNotify(wide.list, 0, kKbUiNotifyGetTipRect, reinterpret_cast<unsigned __int64>(&rect)),
              kKbUiReplyHandled);
    CString text;
    wide.list.GetText(0, text);
    int cx = 0;
    int cy = 0;
    wide.list.GetTextExtent(text, cx, cy);
    EXPECT_EQ(rect.Width(), cx + in.picker.ImageWidth() + 2);
    wide.list.SetComboBox(nullptr);
}

namespace {

/// A picker whose window the system refuses.
class RefusedPicker : public CKtUiMRUComboBox {
public:
    int fillings = 0;
    void OnAddItems() override { ++fillings; }

protected:
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        return message == WM_CREATE ? -1 : CKtUiMRUComboBox::DefWindowProc(message, wParam, lParam);
    }
};

}  // namespace

TEST(MruPicker, AWindowThatIsRefusedIsNotFilled) {
    ui_test::RecordingHolder holder;
    ui_test::TestHost host;
    RefusedPicker picker;
    EXPECT_FALSE(picker.Create(WS_CHILD | ui_test::kPickerStyle, CRect(0, 0, 100, 100), &holder, 61));
    EXPECT_EQ(picker.fillings, 0);
}
