// What a picker sends, in which order, and what its parent hears meanwhile.
#include <ktui/pickers/mru_combo_box.h>

#include "picker_fixture.h"
#include "scheme_in_force.h"

using namespace ui_test;

namespace {

using Command = std::pair<UINT, int>;  ///< notification, and the dialogs that had ended by then

/// A picker of three items that records what is sent to it.
class Spied : public CKtUiMRUComboBox {
public:
    int dialogs = 0;
    int accept = 0;
    int acceptedIndex = -1;
    int lastWhich = -1;
    int inheritedSelection = -100;  ///< set before the initialisation ends, unless -100
    int height = 0;                 ///< what the height is calculated as, unless 0
    bool failsToInsert = false;
    std::vector<std::pair<UINT, int>> sent;  ///< selecting, deleting and item heights
    std::vector<LPARAM> heights;
    std::vector<std::pair<WPARAM, LPARAM>> fonts;

    int lastSelection() const { return m_lastSelection; }
    const MruStore& store() const { return m_mru; }
    void OnAddItems() override {
        for (int cargo = 1; cargo <= 3; ++cargo) AddItemToList(std::to_wstring(cargo).c_str(), cargo);
    }
    void OnComboBoxInit() override {
        CKtUiMRUComboBox::OnComboBoxInit();
        if (inheritedSelection == -100) return;
        SetCurSel(1);
        m_lastSelection = inheritedSelection;
    }
    int CalcItemHeight() override { return height ? height : CKtUiMRUComboBox::CalcItemHeight(); }
    int OnSelectOther(int which, int, int& newIndex) override {
        ++dialogs;
        lastWhich = which;
        newIndex = acceptedIndex;
        return accept;
    }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == CB_INSERTSTRING && failsToInsert) return CB_ERR;
        if (message == CB_SETCURSEL || message == CB_DELETESTRING || message == CB_SETITEMHEIGHT)
            sent.emplace_back(message, static_cast<int>(wParam));
        if (message == CB_SETITEMHEIGHT) heights.push_back(lParam);
        if (message == WM_SETFONT) fonts.emplace_back(wParam, lParam);
        return CKtUiMRUComboBox::WindowProc(message, wParam, lParam);
    }
};

/// A parent that notes the notifications, and how many dialogs had ended by then.
class NotingHolder : public RecordingHolder {
public:
    Spied* picker = nullptr;
    std::vector<Command> commands;
    HFONT font = nullptr;

protected:
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override {
        const BOOL isKept = RecordingHolder::OnCommand(wParam, lParam);
        if (picker && !isKept) commands.emplace_back(HIWORD(wParam), picker->dialogs);
        return isKept;
    }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_GETFONT && font) return reinterpret_cast<LRESULT>(font);
        return RecordingHolder::WindowProc(message, wParam, lParam);
    }
};

struct SpiedInHolder : InHolder<Spied> {
    /// Has the picker reflect `notification`, as if it had come from its window.
    void notify(UINT notification) {
        holder.SendMessage(WM_COMMAND, MAKEWPARAM(kPickerId, notification),
                           reinterpret_cast<LPARAM>(picker.m_hWnd));
    }
};

using Sent = std::vector<std::pair<UINT, int>>;

}  // namespace

TEST(PickerSetUp, CreatedOneTakesItsParentsFont) {
    TestHost host;
    NotingHolder holder;
    CFont font;
    font.CreatePointFont(170, L"Tahoma");
    holder.font = static_cast<HFONT>(font.GetSafeHandle());
    Spied picker;
    picker.Create(WS_CHILD | kPickerStyle, CRect(0, 0, 100, 100), &holder, kPickerId);
    ASSERT_EQ(picker.fonts.size(), 1u);
    EXPECT_EQ(reinterpret_cast<HFONT>(picker.fonts[0].first), holder.font);
    EXPECT_EQ(picker.fonts[0].second, 1) << "and is drawn anew";
    EXPECT_EQ(reinterpret_cast<HFONT>(picker.SendMessage(WM_GETFONT)), holder.font);
}

TEST(PickerSetUp, CreatedOneKeepsItsLastSelectionAndASubclassedOneTakesTheItemSelected) {
    TestHost host;
    RecordingHolder holder;
    Spied created;
    created.inheritedSelection = 7;
    created.Create(WS_CHILD | kPickerStyle, CRect(0, 0, 100, 100), &holder, kPickerId);
    ASSERT_EQ(created.GetCurSel(), 1);
    EXPECT_EQ(created.lastSelection(), 7);
    Spied subclassed;
    subclassed.inheritedSelection = 7;
    subclassed.SubclassWindow(::CreateWindowExW(0, L"COMBOBOX", L"", WS_CHILD | kPickerStyle, 0, 0, 100, 100,
                                                holder.m_hWnd, nullptr, nullptr, nullptr));
    ASSERT_EQ(subclassed.GetCurSel(), 1);
    EXPECT_EQ(subclassed.lastSelection(), 1);
    EXPECT_TRUE(subclassed.fonts.empty()) << "a dialog gives its controls their font itself";
}

TEST(PickerSetUp, HeightGoesOutInSixteenBits) {
    SpiedInHolder in;
    in.picker.height = 0x10014;
    in.picker.sent.clear();
    in.picker.heights.clear();
    in.picker.RecalcHeight();
    EXPECT_EQ(in.picker.ItemHeight(), 0x10014);
    EXPECT_EQ(in.picker.sent, (Sent{{CB_SETITEMHEIGHT, 0}, {CB_SETITEMHEIGHT, -1}}));
    EXPECT_EQ(in.picker.heights, (std::vector<LPARAM>{0x14, 0x14}));
}

TEST(PickerSetUp, ThemeChangeCalculatesTheHeightAndAnotherResolutionOnlyForAHostThatFollows) {
    constexpr UINT kDpiChangedAfterParent = 0x02E3;
    SpiedInHolder in;
    in.picker.height = 31;
    in.picker.SendMessage(kDpiChangedAfterParent);
    EXPECT_NE(in.picker.ItemHeight(), 31);
    in.picker.SendMessage(WM_THEMECHANGED);
    EXPECT_EQ(in.picker.ItemHeight(), 31);
    EXPECT_EQ(in.picker.SendMessage(CB_GETITEMHEIGHT, 0), 31);
    const SchemeInForce colors(TRUE);
    in.picker.height = 33;
    in.picker.SendMessage(kDpiChangedAfterParent);
    EXPECT_EQ(in.picker.ItemHeight(), 33);
}

TEST(PickerSetUp, HeldValuesComeBackAsTheyWereSet) {
    Spied picker;
    LOGPALETTE colors = {};
    const HPALETTE palette = static_cast<HPALETTE>(::GetStockObject(DEFAULT_PALETTE));
    EXPECT_EQ(picker.GetPalette(), nullptr);
    picker.SetPalette(palette);
    picker.SetLogPalette(&colors);
    picker.SetCargoOption1(55);
    picker.SetCargoOption2(66);
    EXPECT_EQ(picker.GetPalette(), palette);
    EXPECT_EQ(picker.GetLogPalette(), &colors);
    EXPECT_EQ(picker.GetCargoOption1(), 55);
    EXPECT_EQ(picker.GetCargoOption2(), 66);
    DRAWITEMSTRUCT item = {};
    DWORD color = 5;
    EXPECT_EQ(picker.GetItemColors(item, color, color, color), 0);
    EXPECT_EQ(color, 5u);
}

TEST(PickerSetUp, OptionItemsHaveTheCargoSetAndComeOneByOne) {
    SpiedInHolder in;
    in.picker.SetCargoOption1(55);
    in.picker.SetCargoOption2(66);
    in.picker.SetUseOption2(1);
    in.picker.ResetContent();
    in.picker.AddItems();
    EXPECT_EQ(in.cargos(), (std::vector<__int64>{66, 1, 2, 3}));
    EXPECT_EQ(in.texts()[0], L"ByBlock");
    in.picker.SetUseOption2(0);
    in.picker.SetUseOption1(1);
    in.picker.ResetContent();
    in.picker.AddItems();
    EXPECT_EQ(in.cargos(), (std::vector<__int64>{55, 1, 2, 3}));
    EXPECT_EQ(in.texts()[0], L"ByLayer");
}

TEST(PickerSetUp, EachFlagHasItsOwnSetterGetterAndAlias) {
    Spied picker;
    const auto flags = [&] {
        return std::vector<int>{picker.GetUseByLayer(), picker.GetUseOption1(), picker.GetUseByBlock(),
                                picker.GetUseOption2(), picker.GetUseOther(),   picker.GetUseOther1(),
                                picker.GetUseOther2(),  picker.GetUseWindows()};
    };
    picker.SetUseOption1(1);
    EXPECT_EQ(flags(), (std::vector<int>{-1, -1, 0, 0, 0, 0, 0, 0}));
    picker.SetUseOption1(0);
    picker.SetUseOption2(1);
    EXPECT_EQ(flags(), (std::vector<int>{0, 0, -1, -1, 0, 0, 0, 0}));
    picker.SetUseOption2(0);
    picker.SetUseOther1(1);
    EXPECT_EQ(flags(), (std::vector<int>{0, 0, 0, 0, -1, -1, 0, 0}));
    picker.SetUseOther1(0);
    picker.SetUseOther2(1);
    EXPECT_EQ(flags(), (std::vector<int>{0, 0, 0, 0, 0, 0, -1, -1}));
    picker.SetUseWindows(0);
    EXPECT_EQ(flags(), std::vector<int>(8, 0));
}

TEST(PickerStore, KeepsAnEntryThatTheListRefused) {
    SpiedInHolder in;
    in.picker.failsToInsert = true;
    EXPECT_EQ(in.picker.AddItemToMRU(L"lost", 40), -1);
    EXPECT_EQ(in.picker.FindCargoInMRU(40), 1);
    EXPECT_EQ(in.picker.GetCount(), 3);
}

TEST(PickerNotifications, AcceptedItemIsRememberedAtOnce) {
    SpiedInHolder in;
    in.picker.SetCurSel(2);
    in.picker.SetLastSelection(0);
    ASSERT_EQ(in.picker.lastSelection(), 0);
    in.notify(CBN_SELENDOK);
    EXPECT_EQ(in.picker.lastSelection(), 2);
    in.picker.SetCurSel(-1);
    in.picker.SetLastSelection(0);
    in.notify(CBN_SELENDOK);
    EXPECT_EQ(in.picker.lastSelection(), -1) << "no selection is remembered as well";
}

TEST(PickerNotifications, AnOtherItemIsNotRemembered) {
    for (const int cargo : {-102, -103}) {
        SpiedInHolder in;
        in.picker.SetLastSelection(1);
        in.picker.SetCurSel(in.picker.AddItemToList(L"other", cargo));
        in.picker.SetLastSelection(0);
        in.notify(CBN_SELENDOK);
        in.notify(CBN_CLOSEUP);
        in.picker.SetCurSel(2);
        EXPECT_EQ(in.picker.lastSelection(), 3) << "set while no Other item was selected, and not since";
    }
}

TEST(PickerNotifications, CloseUpRemembersTheSelectionButNotThatThereIsNone) {
    SpiedInHolder in;
    in.picker.SetCurSel(2);
    in.picker.SetLastSelection(0);
    in.notify(CBN_CLOSEUP);
    EXPECT_EQ(in.picker.lastSelection(), 2);
    in.picker.SetCurSel(-1);
    in.picker.SetLastSelection(0);
    in.notify(CBN_CLOSEUP);
    EXPECT_EQ(in.picker.lastSelection(), 0);
}

TEST(PickerNotifications, OtherShowsTheFormerItemAndThenTheAnswer) {
    SpiedInHolder in;
    in.picker.SetUseOther(1);
    in.choose(1);
    in.picker.accept = 1;
    in.picker.acceptedIndex = 2;
    in.picker.sent.clear();
    in.choose(3);
    EXPECT_EQ(in.picker.sent, (Sent{{CB_SETCURSEL, 1}, {CB_SETCURSEL, 2}}));
    in.picker.accept = 0;
    in.picker.acceptedIndex = 0;
    in.picker.sent.clear();
    in.choose(3);
    EXPECT_EQ(in.picker.sent, (Sent{{CB_SETCURSEL, 2}, {CB_SETCURSEL, 2}})) << "a cancel names no item";
}

TEST(PickerNotifications, AnOrdinaryChoiceSendsNothing) {
    SpiedInHolder in;
    in.picker.SetUseOther(1);
    in.choose(1);
    in.picker.sent.clear();
    in.choose(0);
    EXPECT_EQ(in.picker.sent, Sent{});
    EXPECT_EQ(in.picker.dialogs, 0);
}

TEST(PickerNotifications, SecondFlagSendsADeletionThatHasNoEffect) {
    SpiedInHolder in;
    in.picker.SetUseOther2(1);
    in.choose(1);
    EXPECT_EQ(in.picker.sent.back(), (Command{CB_DELETESTRING, -1}));
    EXPECT_EQ(in.picker.GetCount(), 4);
    in.picker.SetUseOther(1);
    in.choose(in.picker.FindItemByCargo(-102));
    EXPECT_EQ(in.picker.dialogs, 1);
    EXPECT_EQ(in.picker.lastWhich, 0) << "the first of the two";
    EXPECT_EQ(in.picker.GetCount(), 5);
}

TEST(PickerNotifications, ItemOfTheOthersTextKeepsOtherOut) {
    SpiedInHolder in;
    CString name;
    in.picker.GetOtherName(0, name);
    in.picker.InsertItemInList(0, name, 9);
    in.picker.SetUseOther(1);
    in.dropDown();
    in.closeUp();
    EXPECT_EQ(in.picker.GetCount(), 4);
    EXPECT_EQ(in.picker.FindItemByCargo(-102), -1);
}

TEST(PickerNotifications, ParentHearsAllThreeAndCloseUpAfterTheDialog) {
    TestHost host;
    NotingHolder holder;
    Spied picker;
    picker.Create(WS_CHILD | WS_VISIBLE | kPickerStyle, CRect(10, 10, 210, 220), &holder, kPickerId);
    picker.SetUseOther(1);
    picker.SetCurSel(0);
    picker.ShowDropDown(TRUE);
    holder.picker = &picker;
    COMBOBOXINFO info = {};
    info.cbSize = sizeof info;
    ::GetComboBoxInfo(picker.m_hWnd, &info);
    ::SendMessageW(info.hwndList, LB_SETCURSEL, 3, 0);
    picker.SendMessage(WM_KEYDOWN, VK_RETURN);
    pump();
    std::vector<Command> heard;
    for (const Command& command : holder.commands)
        if (command.first == CBN_SELENDOK || command.first == CBN_CLOSEUP) heard.push_back(command);
    EXPECT_EQ(heard, (std::vector<Command>{{CBN_SELENDOK, 0}, {CBN_CLOSEUP, 1}}));
}

TEST(PickerNotifications, RefilledOpenListHasNothingToPutBack) {
    SpiedInHolder in;
    in.picker.SetCurSel(1);
    in.picker.SetFocus();
    pump();
    in.dropDown();
    in.picker.ResetContent();
    in.picker.AddItems();
    in.picker.SendMessage(WM_KEYDOWN, VK_DOWN, 1);
    ASSERT_NE(in.picker.GetCurSel(), -1);
    in.picker.SendMessage(WM_KEYDOWN, VK_ESCAPE, 1);
    pump();
    EXPECT_EQ(in.picker.GetCurSel(), -1);
}

namespace {

/// A picker that says how two items compare.
class ComparingPicker : public CKtUiMRUComboBox {
public:
    int CompareItem(LPCOMPAREITEMSTRUCT) override { return 7; }
};

}  // namespace

TEST(PickerNotifications, TheParentsQuestionIsAnsweredByThePicker) {
    InHolder<ComparingPicker> in;
    COMPAREITEMSTRUCT items = {};
    items.CtlType = ODT_COMBOBOX;
    items.CtlID = kPickerId;
    items.hwndItem = in.picker.m_hWnd;
    EXPECT_EQ(in.holder.SendMessage(WM_COMPAREITEM, kPickerId, reinterpret_cast<LPARAM>(&items)), 7);
}
