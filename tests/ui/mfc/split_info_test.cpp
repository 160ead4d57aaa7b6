// What a split button asks of the system's button and tells it, and menus that come with its construction.
#include <afxcmn.h>

#include "message_listener.h"
#include "opened_menu.h"
#include "ui_test.h"

namespace {

using ui_test::handle_of;
using ui_test::HeardMessage;
using ToldSplitButton = ui_test::ToldControl<CSplitButton>;

}  // namespace

TEST_F(ToldSplitButton, OfTheWholeStructure) {
    BUTTON_SPLITINFO info = {};
    TELLS(control.GetSplitInfo(&info), BCM_GETSPLITINFO, 0, at(info));
    TELLS(control.SetSplitInfo(&info), BCM_SETSPLITINFO, 0, at(info));
}

TEST_F(ToldSplitButton, OfOnePartOfItAtATime) {
    BUTTON_SPLITINFO told = {};
    listener.answer = TRUE;
    listener.look = [&](const HeardMessage& heard) {
        EXPECT_EQ(heard.wParam, 0U);
        EXPECT_EQ(heard.message, static_cast<UINT>(BCM_SETSPLITINFO));
        told = *reinterpret_cast<BUTTON_SPLITINFO*>(heard.lParam);
    };
    EXPECT_TRUE(control.SetSplitStyle(BCSS_NOSPLIT | BCSS_ALIGNLEFT));
    EXPECT_EQ(told.mask, static_cast<UINT>(BCSIF_STYLE));
    EXPECT_EQ(told.uSplitStyle, static_cast<UINT>(BCSS_NOSPLIT | BCSS_ALIGNLEFT));
    SIZE size = {31, 47};
    EXPECT_TRUE(control.SetSplitSize(&size));
    EXPECT_EQ(told.mask, static_cast<UINT>(BCSIF_SIZE));
    EXPECT_EQ(CSize(told.size), CSize(31, 47));
    EXPECT_TRUE(control.SetSplitGlyph(L'\x25BC'));
    EXPECT_EQ(told.mask, static_cast<UINT>(BCSIF_GLYPH));
    EXPECT_EQ(told.himlGlyph, handle_of<HIMAGELIST>(0x25BC));
    CImageList images;
    images.Create(4, 4, ILC_COLOR, 1, 1);
    EXPECT_TRUE(control.SetSplitImageList(&images));
    EXPECT_EQ(told.mask, static_cast<UINT>(BCSIF_IMAGE));
    EXPECT_EQ(told.himlGlyph, images.m_hImageList);
    EXPECT_TRUE(control.SetSplitImageList(nullptr));
    EXPECT_EQ(told.himlGlyph, nullptr);
    listener.answer = FALSE;
    EXPECT_FALSE(control.SetSplitStyle(BCSS_NOSPLIT));
    EXPECT_FALSE(control.SetSplitSize(&size));
    EXPECT_FALSE(control.SetSplitGlyph(L'v'));
    EXPECT_FALSE(control.SetSplitImageList(nullptr));
}

TEST_F(ToldSplitButton, AndAsksForOneAtATime) {
    CImageList images;
    images.Create(4, 4, ILC_COLOR, 1, 1);
    UINT asked = 0;
    HIMAGELIST glyph = images.m_hImageList;
    listener.answer = TRUE;
    listener.look = [&](const HeardMessage& heard) {
        EXPECT_EQ(heard.wParam, 0U);
        EXPECT_EQ(heard.message, static_cast<UINT>(BCM_GETSPLITINFO));
        auto& info = *reinterpret_cast<BUTTON_SPLITINFO*>(heard.lParam);
        asked = info.mask;
        info.uSplitStyle = BCSS_STRETCH;
        info.size = {31, 47};
        info.himlGlyph = glyph;
    };
    EXPECT_EQ(control.GetSplitStyle(), static_cast<UINT>(BCSS_STRETCH));
    EXPECT_EQ(asked, static_cast<UINT>(BCSIF_STYLE));
    SIZE size = {1, 2};
    EXPECT_TRUE(control.GetSplitSize(&size));
    EXPECT_EQ(asked, static_cast<UINT>(BCSIF_SIZE));
    EXPECT_EQ(CSize(size), CSize(31, 47));
    EXPECT_EQ(control.GetSplitImageList(), &images);
    EXPECT_EQ(asked, static_cast<UINT>(BCSIF_IMAGE));
    glyph = handle_of<HIMAGELIST>(0x25BC);
    EXPECT_EQ(control.GetSplitGlyph(), L'\x25BC');
    EXPECT_EQ(asked, static_cast<UINT>(BCSIF_GLYPH));
    listener.answer = FALSE;
    size = {1, 2};
    EXPECT_FALSE(control.GetSplitSize(&size));
    EXPECT_EQ(CSize(size), CSize(1, 2)) << "untouched";
}

TEST(SplitButtonMenus, ComeWithTheConstructionToo) {
    ui_test::ParentWindow parent;
    CMenu own;
    own.CreatePopupMenu();
    own.AppendMenu(MF_STRING, 77, L"own entry");
    CSplitButton ofCaller(&own), ofResource(451, 1);
    const auto first_entry = [&](CSplitButton& button) {
        EXPECT_TRUE(button.Create(L"split", WS_CHILD | WS_VISIBLE, CRect(40, 40, 190, 66), &parent, 9));
        ui_test::OpenedMenu opened;
        ui_test::read_next_menu(opened);
        NMBCDROPDOWN arrow = {};
        arrow.hdr = {button.m_hWnd, 9, static_cast<UINT>(BCN_DROPDOWN)};
        const LRESULT answer = parent.SendMessage(WM_NOTIFY, 9, reinterpret_cast<LPARAM>(&arrow));
        EXPECT_EQ(answer, 0);
        button.DestroyWindow();
        return opened.first;
    };
    EXPECT_EQ(first_entry(ofCaller), L"own entry");
    EXPECT_EQ(first_entry(ofResource), L"of the second");
}
