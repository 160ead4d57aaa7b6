// CMenu: what a menu holds after each call, as the system tells it.
#include <afxext.h>

#include "ui_test.h"

namespace {

/// A popup menu of five commands, 11 to 15.
struct FiveCommands : ::testing::Test {
    FiveCommands() {
        menu.CreatePopupMenu();
        for (UINT id = 11; id <= 15; ++id) {
            CString text;
            text.Format(L"command %u", id);
            menu.AppendMenu(MF_STRING, id, text);
        }
        picture.CreateBitmap(4, 4, 1, 1, nullptr);
    }
    CString at(UINT place) {
        wchar_t text[40] = L"";
        ::GetMenuStringW(menu.m_hMenu, place, text, 40, MF_BYPOSITION);
        return text;
    }
    MENUITEMINFOW info(UINT place, UINT mask) {
        MENUITEMINFOW found = {};
        found.cbSize = sizeof found;
        found.fMask = mask;
        ::GetMenuItemInfoW(menu.m_hMenu, place, TRUE, &found);
        return found;
    }
    UINT state(UINT place) { return info(place, MIIM_STATE).fState; }

    CMenu menu;
    CBitmap picture;
};

}  // namespace

TEST_F(FiveCommands, ItemsComeInAreExchangedAndGo) {
    EXPECT_EQ(menu.GetMenuItemCount(), 5);
    EXPECT_TRUE(menu.InsertMenu(12, MF_BYCOMMAND, 21, L"before 12"));
    EXPECT_EQ(at(1), L"before 12");
    EXPECT_TRUE(menu.ModifyMenu(21, MF_BYCOMMAND, 22, L"instead"));
    EXPECT_EQ(at(1), L"instead");
    EXPECT_EQ(menu.GetMenuItemID(1), 22U);
    EXPECT_TRUE(menu.AppendMenu(MF_SEPARATOR));
    EXPECT_EQ(menu.GetMenuItemID(6), 0U);
    EXPECT_TRUE(menu.RemoveMenu(1, MF_BYPOSITION));
    EXPECT_EQ(at(1), L"command 12");
    EXPECT_TRUE(menu.DeleteMenu(13, MF_BYCOMMAND));
    EXPECT_EQ(at(2), L"command 14");
    EXPECT_FALSE(menu.DeleteMenu(13, MF_BYCOMMAND)) << "it has gone";
    EXPECT_FALSE(menu.RemoveMenu(77, MF_BYCOMMAND));
    EXPECT_FALSE(menu.ModifyMenu(77, MF_BYCOMMAND, 1, L"none"));
}

TEST_F(FiveCommands, ARemovedSubmenuLivesADeletedOneDoesnt) {
    const HMENU kept = ::CreatePopupMenu(), lost = ::CreatePopupMenu();
    menu.AppendMenu(MF_POPUP, reinterpret_cast<UINT_PTR>(kept), L"kept");
    menu.AppendMenu(MF_POPUP, reinterpret_cast<UINT_PTR>(lost), L"lost");
    EXPECT_EQ(menu.GetSubMenu(5)->m_hMenu, kept);
    EXPECT_EQ(menu.GetMenuItemID(6), 0xFFFFFFFFU);
    EXPECT_TRUE(menu.RemoveMenu(5, MF_BYPOSITION));
    EXPECT_TRUE(menu.DeleteMenu(5, MF_BYPOSITION));
    EXPECT_TRUE(::IsMenu(kept));
    EXPECT_FALSE(::IsMenu(lost));
    ::DestroyMenu(kept);
}

TEST_F(FiveCommands, BitmapsStandInPlaceOfTexts) {
    EXPECT_TRUE(menu.AppendMenu(0, 31, &picture));
    EXPECT_TRUE(menu.InsertMenu(1, MF_BYPOSITION, 32, &picture));
    EXPECT_TRUE(menu.ModifyMenu(11, MF_BYCOMMAND, 33, &picture));
    for (const UINT place : {0U, 1U, 6U})
        EXPECT_EQ(info(place, MIIM_BITMAP).hbmpItem, static_cast<HBITMAP>(picture)) << place;
    EXPECT_EQ(menu.GetMenuItemID(0), 33U);
    EXPECT_EQ(menu.GetMenuItemID(1), 32U);
    EXPECT_EQ(menu.GetMenuItemID(6), 31U);
    EXPECT_EQ(info(2, MIIM_BITMAP).hbmpItem, nullptr);
    CBitmap checked;
    checked.CreateBitmap(5, 5, 1, 1, nullptr);
    EXPECT_TRUE(menu.SetMenuItemBitmaps(2, MF_BYPOSITION, &picture, &checked));
    EXPECT_EQ(info(2, MIIM_CHECKMARKS).hbmpUnchecked, static_cast<HBITMAP>(picture));
    EXPECT_EQ(info(2, MIIM_CHECKMARKS).hbmpChecked, static_cast<HBITMAP>(checked));
    EXPECT_TRUE(menu.SetMenuItemBitmaps(12, MF_BYCOMMAND, nullptr, nullptr));
    EXPECT_EQ(info(2, MIIM_CHECKMARKS).hbmpUnchecked, nullptr);
    EXPECT_FALSE(menu.SetMenuItemBitmaps(77, MF_BYCOMMAND, nullptr, nullptr));
}

TEST_F(FiveCommands, ChecksAndGreysAnswerTheStateBefore) {
    EXPECT_EQ(menu.CheckMenuItem(12, MF_CHECKED), 0U);
    EXPECT_EQ(menu.CheckMenuItem(1, MF_BYPOSITION | MF_UNCHECKED), static_cast<UINT>(MF_CHECKED));
    EXPECT_EQ(state(1), 0U);
    EXPECT_EQ(menu.EnableMenuItem(13, MF_GRAYED), 0U);
    EXPECT_EQ(menu.EnableMenuItem(2, MF_BYPOSITION | MF_ENABLED), static_cast<UINT>(MF_GRAYED));
    EXPECT_EQ(menu.EnableMenuItem(77, MF_GRAYED), 0xFFFFFFFFU);
    EXPECT_EQ(menu.CheckMenuItem(77, MF_CHECKED), 0xFFFFFFFFU);
    menu.EnableMenuItem(4, MF_BYPOSITION | MF_GRAYED);
    EXPECT_TRUE(menu.GetMenuState(15, MF_BYCOMMAND) & MF_GRAYED);
    EXPECT_EQ(menu.GetMenuState(14, MF_BYCOMMAND), 0U);
    EXPECT_EQ(menu.GetMenuState(77, MF_BYCOMMAND), 0xFFFFFFFFU);
}

TEST_F(FiveCommands, ARadioItemIsTheOnlyOneOfItsGroup) {
    EXPECT_TRUE(menu.CheckMenuRadioItem(12, 14, 13, MF_BYCOMMAND));
    EXPECT_TRUE(menu.CheckMenuRadioItem(1, 3, 3, MF_BYPOSITION));
    menu.CheckMenuItem(11, MF_CHECKED);
    EXPECT_EQ(state(0), static_cast<UINT>(MFS_CHECKED)) << "outside";
    EXPECT_EQ(state(2), 0U);
    EXPECT_EQ(state(3), static_cast<UINT>(MFS_CHECKED));
    EXPECT_TRUE(info(3, MIIM_FTYPE).fType & MFT_RADIOCHECK);
    EXPECT_FALSE(menu.CheckMenuRadioItem(71, 74, 73, MF_BYCOMMAND));
}

TEST_F(FiveCommands, OneItemIsTheDefault) {
    EXPECT_EQ(menu.GetDefaultItem(0), 0xFFFFFFFFU);
    EXPECT_TRUE(menu.SetDefaultItem(12));
    EXPECT_EQ(menu.GetDefaultItem(0), 12U);
    EXPECT_TRUE(menu.SetDefaultItem(3, TRUE));
    EXPECT_EQ(menu.GetDefaultItem(0, TRUE), 3U);
    menu.EnableMenuItem(14, MF_GRAYED);
    EXPECT_EQ(menu.GetDefaultItem(0, TRUE), 0xFFFFFFFFU);
    EXPECT_EQ(menu.GetDefaultItem(GMDI_USEDISABLED, TRUE), 3U);
    EXPECT_FALSE(menu.SetDefaultItem(77));
}

TEST_F(FiveCommands, InformationOfItemsGoesBothWays) {
    MENUITEMINFOW wanted = {};
    wanted.cbSize = sizeof wanted;
    wanted.fMask = MIIM_ID | MIIM_DATA;
    wanted.wID = 41;
    wanted.dwItemData = 4711;
    EXPECT_TRUE(menu.InsertMenuItem(13, &wanted));
    EXPECT_EQ(menu.GetMenuItemID(2), 41U);
    wanted.wID = 42;
    EXPECT_TRUE(menu.InsertMenuItem(0, &wanted, TRUE));
    EXPECT_EQ(menu.GetMenuItemID(0), 42U);
    wanted.fMask = MIIM_DATA;
    wanted.dwItemData = 12;
    EXPECT_TRUE(menu.SetMenuItemInfo(41, &wanted));
    MENUITEMINFOW found = {};
    found.cbSize = sizeof found;
    found.fMask = MIIM_DATA | MIIM_ID;
    EXPECT_TRUE(menu.GetMenuItemInfo(41, &found));
    EXPECT_EQ(found.dwItemData, 12U);
    EXPECT_TRUE(menu.GetMenuItemInfo(0, &found, TRUE));
    EXPECT_EQ(found.dwItemData, 4711U);
    EXPECT_EQ(found.wID, 42U);
    EXPECT_TRUE(menu.SetMenuItemInfo(0, &wanted, TRUE));
    EXPECT_EQ(info(0, MIIM_DATA).dwItemData, 12U);
    EXPECT_FALSE(menu.GetMenuItemInfo(77, &found));
    EXPECT_FALSE(menu.SetMenuItemInfo(77, &wanted));
}

TEST_F(FiveCommands, InformationOfTheMenuGoesBothWays) {
    MENUINFO wanted = {};
    wanted.cbSize = sizeof wanted;
    wanted.fMask = MIM_MENUDATA | MIM_STYLE;
    wanted.dwMenuData = 99;
    wanted.dwStyle = MNS_NOCHECK;
    EXPECT_TRUE(menu.SetMenuInfo(&wanted));
    MENUINFO found = {};
    found.cbSize = sizeof found;
    found.fMask = MIM_MENUDATA | MIM_STYLE;
    EXPECT_TRUE(menu.GetMenuInfo(&found));
    EXPECT_EQ(found.dwMenuData, 99U);
    EXPECT_EQ(found.dwStyle, static_cast<DWORD>(MNS_NOCHECK));
}

TEST_F(FiveCommands, TextsComeWholeOrCutOff) {
    wchar_t few[5] = L"";
    EXPECT_EQ(menu.GetMenuString(12, few, 5, MF_BYCOMMAND), 4);
    EXPECT_STREQ(few, L"comm");
    CString whole;
    EXPECT_EQ(menu.GetMenuString(2, whole, MF_BYPOSITION), 10);
    EXPECT_EQ(whole, L"command 13");
    EXPECT_EQ(menu.GetMenuString(77, whole, MF_BYCOMMAND), 0);
    EXPECT_TRUE(whole.IsEmpty());
}

TEST(MenuObject, HandlesComeAndGo) {
    CMenu menu;
    EXPECT_FALSE(menu.DestroyMenu()) << "there is none";
    EXPECT_FALSE(menu.Attach(nullptr));
    EXPECT_EQ(menu.Detach(), nullptr);
    const HMENU first = ::CreateMenu(), second = ::CreateMenu();
    EXPECT_TRUE(menu.Attach(first));
    EXPECT_TRUE(menu.Attach(second));
    EXPECT_EQ(CMenu::FromHandlePermanent(first), nullptr);
    EXPECT_EQ(CMenu::FromHandlePermanent(second), &menu);
    EXPECT_TRUE(menu.Attach(second)) << "again";
    EXPECT_EQ(CMenu::FromHandlePermanent(second), &menu);
    CMenu* const other = CMenu::FromHandle(first);
    EXPECT_FALSE(*other == menu);
    EXPECT_TRUE(*CMenu::FromHandle(second) == menu);
    EXPECT_EQ(menu.GetSafeHmenu(), second);
    EXPECT_EQ(menu.Detach(), second);
    EXPECT_EQ(CMenu::FromHandlePermanent(second), nullptr);
    CMenu::DeleteTempMap();
    EXPECT_TRUE(::DestroyMenu(first)) << "no object destroyed it";
    menu.Attach(second);
    EXPECT_TRUE(menu.DestroyMenu());
    EXPECT_FALSE(::IsMenu(second));
    EXPECT_EQ(menu.GetSafeHmenu(), nullptr);
    EXPECT_TRUE(menu.CreateMenu());
    EXPECT_TRUE(::IsMenu(menu));
}

TEST(MenuObject, LoadsByNumberOrFromMemory) {
    CMenu menu, other;
    EXPECT_TRUE(menu.LoadMenu(MAKEINTRESOURCEW(100)));
    EXPECT_FALSE(other.LoadMenu(999));
    const HRSRC found = ::FindResourceW(nullptr, MAKEINTRESOURCEW(100), RT_MENU);
    EXPECT_TRUE(other.LoadMenuIndirect(::LockResource(::LoadResource(nullptr, found))));
    EXPECT_EQ(other.GetMenuItemCount(), 2);
    EXPECT_EQ(other.GetMenuItemID(1), 103U);
}

TEST(MenuObject, ATrackedMenuTellsItsWindowOrAnswers) {
    ui_test::ParentWindow parent;
    CMenu menu;
    menu.CreatePopupMenu();
    menu.AppendMenu(MF_STRING, 51, L"first");
    menu.AppendMenu(MF_STRING, 52, L"second");
    const auto choose_first = [] {
        ui_test::when_window([](HWND window) { return ::GetClassLongPtrW(window, GCW_ATOM) == 32768; },
                             [](HWND window) {
                                 CRect place;
                                 ::GetWindowRect(window, &place);
                                 EXPECT_EQ(place.TopLeft(), CPoint(70, 90));
                                 ::PostMessageW(window, WM_KEYDOWN, VK_DOWN, 0);
                                 ::PostMessageW(window, WM_KEYDOWN, VK_RETURN, 0);
                             });
    };
    choose_first();
    EXPECT_EQ(menu.TrackPopupMenu(TPM_LEFTALIGN | TPM_RETURNCMD, 70, 90, &parent), 51);
    choose_first();
    EXPECT_EQ(menu.TrackPopupMenuEx(TPM_LEFTALIGN | TPM_RETURNCMD, 70, 90, &parent, nullptr), 51);
    EXPECT_EQ(menu.TrackPopupMenu(TPM_RETURNCMD, 70, 90, nullptr), 0) << "a menu needs a window";
    EXPECT_EQ(menu.TrackPopupMenuEx(TPM_RETURNCMD, 70, 90, nullptr, nullptr), 0);
}
