// What becomes of the selection when an open list is cancelled.
#include <ktui/pickers/font_combo_box.h>
#include <ktui/pickers/mru_combo_box.h>

#include "font_fixture.h"
#include "picker_fixture.h"

using namespace ui_test;

namespace {

/// A picker of four items, and a note of what it had selected when its parent heard of the cancel.
class FourItems : public CKtUiMRUComboBox {
public:
    int dialogs = 0;

    void OnAddItems() override {
        for (int cargo = 1; cargo <= 4; ++cargo) AddItemToList(std::to_wstring(cargo).c_str(), cargo);
    }
    int OnSelectOther(int, int, int&) override { return ++dialogs * 0; }
    int lastSelection() const { return m_lastSelection; }
};

struct Cancelling : public InHolder<FourItems> {
    Cancelling() {
        picker.SetCurSel(1);
        picker.SetFocus();
        pump();
    }
    void key(WORD key) {
        picker.SendMessage(WM_KEYDOWN, key, 1);
        picker.SendMessage(WM_KEYUP, key, static_cast<LPARAM>(0xC0000001));
        pump();
    }
};

}  // namespace

TEST(CancelledList, EscapePutsTheFormerItemBack) {
    Cancelling in;
    in.dropDown();
    in.key(VK_DOWN);
    ASSERT_EQ(in.picker.GetCurSel(), 2);
    in.key(VK_ESCAPE);
    EXPECT_FALSE(in.picker.GetDroppedState());
    EXPECT_EQ(in.picker.GetCurSel(), 1);
    EXPECT_EQ(in.picker.lastSelection(), 1);
}

TEST(CancelledList, LosingTheFocusPutsTheFormerItemBack) {
    Cancelling in;
    in.dropDown();
    in.key(VK_DOWN);
    in.holder.SetFocus();
    pump();
    EXPECT_FALSE(in.picker.GetDroppedState());
    EXPECT_EQ(in.picker.GetCurSel(), 1);
}

TEST(CancelledList, AClickOutsidePutsTheFormerItemBack) {
    Cancelling in;
    in.dropDown();
    in.key(VK_DOWN);
    COMBOBOXINFO info = {};
    info.cbSize = sizeof info;
    ::GetComboBoxInfo(in.picker.m_hWnd, &info);
    RECT row = {};
    ::SendMessageW(info.hwndList, LB_GETITEMRECT, 3, reinterpret_cast<LPARAM>(&row));
    ::SendMessageW(info.hwndList, WM_MOUSEMOVE, 0, MAKELPARAM(20, (row.top + row.bottom) / 2));
    ASSERT_EQ(::SendMessageW(info.hwndList, LB_GETCURSEL, 0, 0), 3) << "the pointer went over the last item";
    ::SendMessageW(info.hwndList, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(-60, -60));
    ::SendMessageW(info.hwndList, WM_LBUTTONUP, 0, MAKELPARAM(-60, -60));
    pump();
    EXPECT_FALSE(in.picker.GetDroppedState());
    EXPECT_EQ(in.picker.GetCurSel(), 1);
}

TEST(CancelledList, AcceptedItemStays) {
    Cancelling in;
    in.dropDown();
    in.key(VK_DOWN);
    in.key(VK_RETURN);
    EXPECT_EQ(in.picker.GetCurSel(), 2);
    in.holder.SetFocus();
    pump();
    EXPECT_EQ(in.picker.GetCurSel(), 2) << "the cancel that comes with the loss of the focus is of no list";
}

TEST(CancelledList, WhatTheProgramSelectsIsKept) {
    Cancelling in;
    in.dropDown();
    in.picker.SetCurSel(3);
    in.closeUp();
    EXPECT_EQ(in.picker.GetCurSel(), 3);
    in.dropDown();
    in.picker.SetCurSel(0);
    in.key(VK_DOWN);
    in.key(VK_ESCAPE);
    EXPECT_EQ(in.picker.GetCurSel(), 0);
}

TEST(CancelledList, NoSelectionComesBackAsNone) {
    Cancelling in;
    in.picker.SetCurSel(-1);
    in.dropDown();
    in.key(VK_DOWN);
    in.key(VK_ESCAPE);
    EXPECT_EQ(in.picker.GetCurSel(), -1);
}

TEST(CancelledList, AnOtherItemThatWasOnlyPassedOpensNothing) {
    Cancelling in;
    in.picker.SetUseOther(1);
    in.dropDown();
    in.key(VK_END);
    ASSERT_EQ(in.picker.GetCurrentItemCargo(), kCargoOther);
    in.key(VK_ESCAPE);
    EXPECT_EQ(in.picker.dialogs, 0);
    EXPECT_EQ(in.picker.GetCurSel(), 1);
}

struct OwnFonts {
    FakeFonts fonts;
};

/// A font picker with a list of styles beside it; the fonts outlive both.
struct FontAndStyles : OwnFonts, InHolder<CKtUiFontComboBox> {
    FontAndStyles() {
        host.fonts = &fonts;
        picker.AddItems();
        buddy.Create(WS_CHILD | WS_VISIBLE | CBS_DROPDOWNLIST, CRect(10, 250, 210, 380), &holder, 62);
        picker.setBuddy(&buddy, true);
    }
    CComboBox buddy;
};

TEST(CancelledList, StylesOfTheFormerFontComeBack) {
    FontAndStyles in;
    in.picker.setCurrentFont(L"arialbd.ttf");
    const int font = in.picker.GetCurSel();
    in.picker.SetFocus();
    in.dropDown();
    in.picker.SendMessage(WM_KEYDOWN, VK_DOWN, 1);
    ASSERT_NE(in.picker.GetCurSel(), font);
    ASSERT_FALSE(in.buddy.IsWindowEnabled()) << "the next one is a shape font";
    in.picker.SendMessage(WM_KEYDOWN, VK_ESCAPE, 1);
    pump();
    EXPECT_EQ(in.picker.GetCurSel(), font);
    CString file;
    in.picker.getCurrentFont(file);
    EXPECT_STREQ(file, L"arialbd.ttf");
    EXPECT_TRUE(in.buddy.IsWindowEnabled());
    EXPECT_EQ(in.buddy.GetCount(), 2);
}

TEST(CancelledList, StylesStayWhenTheFocusGoesFromAClosedList) {
    FontAndStyles in;
    in.picker.SetFocus();
    in.dropDown();
    in.picker.setCurrentFont(L"arialbd.ttf");
    in.picker.SendMessage(WM_KEYDOWN, VK_RETURN, 1);
    pump();
    ASSERT_FALSE(in.picker.GetDroppedState());
    const int style = in.buddy.GetCurSel();
    ASSERT_GE(style, 0);
    in.buddy.SetFocus();
    pump();
    EXPECT_EQ(in.buddy.GetCurSel(), style);
    CString file;
    in.picker.getCurrentFont(file);
    EXPECT_STREQ(file, L"arialbd.ttf");
}

TEST(CancelledList, WithoutAFormerFontTheStylesGo) {
    FontAndStyles in;
    in.picker.SetFocus();
    in.dropDown();
    in.picker.SendMessage(WM_KEYDOWN, VK_DOWN, 1);
    ASSERT_EQ(in.picker.GetCurSel(), 0);
    ASSERT_EQ(in.buddy.GetCount(), 2) << "the styles of the font that the list stands on";
    in.picker.SendMessage(WM_KEYDOWN, VK_ESCAPE, 1);
    pump();
    EXPECT_EQ(in.picker.GetCurSel(), -1);
    EXPECT_EQ(in.buddy.GetCount(), 0);
    EXPECT_FALSE(in.buddy.IsWindowEnabled());
}
