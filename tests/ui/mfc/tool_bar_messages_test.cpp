// What a toolbar control is told by each function of its class, and what comes back.
#include "message_listener.h"
#include "ui_test.h"

namespace {

using ui_test::handle_of;
using ui_test::HeardMessage;
using ToldToolBar = ui_test::ToldControl<CToolBarCtrl>;

}  // namespace

TEST_F(ToldToolBar, OfButtons) {
    TBBUTTON buttons[2] = {};
    CRect rect;
    CPoint point;
    CSize size;
    TELLS(control.EnableButton(31), TB_ENABLEBUTTON, 31, TRUE);
    TELLS(control.EnableButton(31, FALSE), TB_ENABLEBUTTON, 31, FALSE);
    TELLS(control.CheckButton(31), TB_CHECKBUTTON, 31, TRUE);
    TELLS(control.PressButton(31), TB_PRESSBUTTON, 31, TRUE);
    TELLS(control.HideButton(31), TB_HIDEBUTTON, 31, TRUE);
    TELLS(control.Indeterminate(31), TB_INDETERMINATE, 31, TRUE);
    TELLS(control.MarkButton(31), TB_MARKBUTTON, 31, TRUE);
    TELLS(control.IsButtonEnabled(31), TB_ISBUTTONENABLED, 31);
    TELLS(control.IsButtonChecked(31), TB_ISBUTTONCHECKED, 31);
    TELLS(control.IsButtonPressed(31), TB_ISBUTTONPRESSED, 31);
    TELLS(control.IsButtonHidden(31), TB_ISBUTTONHIDDEN, 31);
    TELLS(control.IsButtonIndeterminate(31), TB_ISBUTTONINDETERMINATE, 31);
    TELLS(control.IsButtonHighlighted(31), TB_ISBUTTONHIGHLIGHTED, 31);
    TELLS(control.SetState(31, TBSTATE_PRESSED), TB_SETSTATE, 31, TBSTATE_PRESSED);
    TELLS(control.GetState(31), TB_GETSTATE, 31);
    TELLS(control.AddButtons(2, buttons), TB_ADDBUTTONSW, 2, at(buttons[0]));
    TELLS(control.InsertButton(3, buttons), TB_INSERTBUTTONW, 3, at(buttons[0]));
    TELLS(control.DeleteButton(3), TB_DELETEBUTTON, 3);
    TELLS(control.MoveButton(3, 5), TB_MOVEBUTTON, 3, 5);
    TELLS(control.GetButton(3, buttons), TB_GETBUTTON, 3, at(buttons[0]));
    TELLS(control.GetButtonCount(), TB_BUTTONCOUNT);
    TELLS(control.CommandToIndex(31), TB_COMMANDTOINDEX, 31);
    TELLS(control.SetCmdID(3, 32), TB_SETCMDID, 3, 32);
    TELLS(control.GetItemRect(3, &rect), TB_GETITEMRECT, 3, at(rect));
    TELLS(control.GetRect(31, &rect), TB_GETRECT, 31, at(rect));
    TELLS(control.HitTest(&point), TB_HITTEST, 0, at(point));
    TELLS(control.SetButtonSize(CSize(24, 22)), TB_SETBUTTONSIZE, 0, MAKELPARAM(24, 22));
    TELLS(control.GetButtonSize(), TB_GETBUTTONSIZE);
    TELLS(control.SetBitmapSize(CSize(16, 15)), TB_SETBITMAPSIZE, 0, MAKELPARAM(16, 15));
    TELLS(control.SetButtonWidth(10, 50), TB_SETBUTTONWIDTH, 0, MAKELPARAM(10, 50));
    TELLS(control.SetButtonStructSize(32), TB_BUTTONSTRUCTSIZE, 32);
    TELLS(control.SetIndent(7), TB_SETINDENT, 7);
    TELLS(control.GetMaxSize(&size), TB_GETMAXSIZE, 0, at(size));
    TELLS(control.GetPadding(), TB_GETPADDING);
    TELLS(control.SetPadding(CSize(5, 6)), TB_SETPADDING, 0, MAKELPARAM(5, 6));
}

TEST_F(ToldToolBar, OfLooksAndTheRest) {
    TBMETRICS metrics = {};
    TBREPLACEBITMAP replaced = {};
    TBINSERTMARK mark = {};
    COLORSCHEME scheme = {};
    CRect rect;
    CPoint point;
    UINT id = 0;
    TELLS(control.GetMetrics(&metrics), TB_GETMETRICS, 0, at(metrics));
    TELLS(control.SetMetrics(&metrics), TB_SETMETRICS, 0, at(metrics));
    TELLS(control.AutoSize(), TB_AUTOSIZE);
    TELLS(control.GetRows(), TB_GETROWS);
    TELLS(control.SetRows(3, TRUE, &rect), TB_SETROWS, MAKEWPARAM(3, TRUE), at(rect));
    TELLS(control.ReplaceBitmap(&replaced), TB_REPLACEBITMAP, 0, at(replaced));
    TELLS(control.GetBitmap(31), TB_GETBITMAP, 31);
    TELLS(control.ChangeBitmap(31, 4), TB_CHANGEBITMAP, 31, 4);
    TELLS(control.GetBitmapFlags(), TB_GETBITMAPFLAGS);
    TELLS(control.LoadImages(IDB_STD_SMALL_COLOR, handle_of<HINSTANCE>(9)), TB_LOADIMAGES,
          IDB_STD_SMALL_COLOR, 9);
    TELLS(control.AddStrings(L"one\0"), TB_ADDSTRINGW, 0, at(L"one\0"));
    TELLS(control.SetMaxTextRows(2), TB_SETMAXTEXTROWS, 2);
    TELLS(control.GetMaxTextRows(), TB_GETTEXTROWS);
    TELLS(control.SetDrawTextFlags(3, 2), TB_SETDRAWTEXTFLAGS, 3, 2);
    TELLS(control.GetStyle(), TB_GETSTYLE);
    TELLS(control.SetStyle(0x800), TB_SETSTYLE, 0, 0x800);
    TELLS(control.GetExtendedStyle(), TB_GETEXTENDEDSTYLE);
    TELLS(control.SetExtendedStyle(1), TB_SETEXTENDEDSTYLE, 0, 1);
    TELLS(control.SetOwner(&control), TB_SETPARENT, reinterpret_cast<WPARAM>(control.m_hWnd));
    TELLS(control.SetOwner(nullptr), TB_SETPARENT);
    TELLS(control.GetAnchorHighlight(), TB_GETANCHORHIGHLIGHT);
    TELLS(control.SetAnchorHighlight(), TB_SETANCHORHIGHLIGHT, TRUE);
    TELLS(control.GetHotItem(), TB_GETHOTITEM);
    TELLS(control.SetHotItem(-1), TB_SETHOTITEM, number(-1));
    TELLS(control.GetInsertMark(&mark), TB_GETINSERTMARK, 0, at(mark));
    TELLS(control.SetInsertMark(&mark), TB_SETINSERTMARK, 0, at(mark));
    TELLS(control.GetInsertMarkColor(), TB_GETINSERTMARKCOLOR);
    TELLS(control.SetInsertMarkColor(RGB(1, 2, 3)), TB_SETINSERTMARKCOLOR, 0, RGB(1, 2, 3));
    TELLS(control.InsertMarkHitTest(&point, &mark), TB_INSERTMARKHITTEST, static_cast<WPARAM>(at(point)),
          at(mark));
    TELLS(control.MapAccelerator(L'k', &id), TB_MAPACCELERATORW, L'k', at(id));
    TELLS(control.GetColorScheme(&scheme), TB_GETCOLORSCHEME, 0, at(scheme));
    EXPECT_EQ(scheme.dwSize, sizeof scheme);
    TELLS(control.SetColorScheme(&scheme), TB_SETCOLORSCHEME, 0, at(scheme));
    TELLS(control.SetWindowTheme(L"theme"), TB_SETWINDOWTHEME, 0, at(L"theme"));
    TELLS(control.Customize(), TB_CUSTOMIZE);
    IDropTarget* target = nullptr;
    IID asked = {};
    listener.look = [&](const HeardMessage& heard) { asked = *reinterpret_cast<IID*>(heard.wParam); };
    control.GetDropTarget(&target);
    EXPECT_TRUE(::IsEqualIID(asked, IID_IDropTarget));
    const auto last = listener.take().back();
    EXPECT_EQ(last.message, static_cast<UINT>(TB_GETOBJECT));
    EXPECT_EQ(last.lParam, at(target));
}

TEST_F(ToldToolBar, OfInformationPicturesAndTexts) {
    TBBUTTONINFOW info = {};
    TELLS(control.SetButtonInfo(31, &info), TB_SETBUTTONINFOW, 31, at(info));
    EXPECT_EQ(info.cbSize, sizeof info);
    info.cbSize = 0;
    listener.answer = 0;
    EXPECT_TRUE(control.GetButtonInfo(31, &info)) << "the first place";
    EXPECT_EQ(info.cbSize, sizeof info);
    EXPECT_EQ(listener.take().back().wParam, 31U);
    listener.answer = -1;
    EXPECT_FALSE(control.GetButtonInfo(31, &info));
    TBADDBITMAP added = {};
    listener.look = [&](const HeardMessage& heard) { added = *reinterpret_cast<TBADDBITMAP*>(heard.lParam); };
    CBitmap bitmap;
    bitmap.CreateBitmap(4, 4, 1, 1, nullptr);
    listener.answer = 7;
    EXPECT_EQ(control.AddBitmap(3, &bitmap), 7);
    EXPECT_EQ(added.hInst, nullptr);
    EXPECT_EQ(added.nID, reinterpret_cast<UINT_PTR>(bitmap.m_hObject));
    EXPECT_EQ(listener.take().back().wParam, 3U);
    EXPECT_EQ(control.AddBitmap(3, static_cast<CBitmap*>(nullptr)), -1);
    EXPECT_TRUE(listener.take().empty());
    EXPECT_EQ(control.AddBitmap(2, 300U), 7);
    EXPECT_EQ(added.hInst, ::GetModuleHandleW(nullptr));
    EXPECT_EQ(added.nID, 300U);
    EXPECT_EQ(listener.take().back().wParam, 2U);
    CString texts;
    listener.look = [&](const HeardMessage& heard) {
        texts = CString(reinterpret_cast<LPCWSTR>(heard.lParam), 18);
    };
    EXPECT_EQ(control.AddString(215), 7);
    EXPECT_EQ(texts, CString(L"last of its block\0", 18)) << "with one more zero behind it";
    listener.take();
    EXPECT_EQ(control.AddString(202), -1) << "there is no such text";
    EXPECT_TRUE(listener.take().empty());
}

TEST_F(ToldToolBar, TextsAreMeasuredBeforeTheyAreRead) {
    listener.look = [&](const HeardMessage& heard) {
        EXPECT_EQ(heard.message, static_cast<UINT>(TB_GETSTRINGW));
        EXPECT_EQ(HIWORD(heard.wParam), 3);
        listener.answer = 4;
        if (heard.lParam)
            ::lstrcpynW(reinterpret_cast<LPWSTR>(heard.lParam), L"four", LOWORD(heard.wParam) / 2);
    };
    CString text;
    EXPECT_EQ(control.GetString(3, text), 4);
    EXPECT_EQ(text, L"four");
    wchar_t few[3] = L"";
    EXPECT_EQ(control.GetString(3, few, 3), 4);
    EXPECT_STREQ(few, L"fo");
    listener.look = nullptr;
    control.GetString(3, few, 100000);
    EXPECT_EQ(LOWORD(listener.take().back().wParam), 0xFFFE) << "no more room than a word tells";
    listener.answer = -1;
    EXPECT_EQ(control.GetString(3, text), -1);
    EXPECT_EQ(text, L"four") << "as it was";
}

TEST_F(ToldToolBar, OfImageListsAndTips) {
    CImageList images;
    images.Create(4, 4, ILC_COLOR, 1, 1);
    listener.answer = reinterpret_cast<LRESULT>(images.m_hImageList);
    const auto last = [this] { return listener.take().back(); };
    const auto expect = [&](UINT message, WPARAM wParam, LPARAM lParam) {
        const HeardMessage heard = last();
        EXPECT_EQ(heard.message, message);
        EXPECT_EQ(heard.wParam, wParam);
        EXPECT_EQ(heard.lParam, lParam);
    };
    EXPECT_EQ(control.GetImageList(), &images);
    expect(TB_GETIMAGELIST, 0, 0);
    EXPECT_EQ(control.SetImageList(&images), &images);
    expect(TB_SETIMAGELIST, 0, listener.answer);
    EXPECT_EQ(control.GetHotImageList(), &images);
    expect(TB_GETHOTIMAGELIST, 0, 0);
    EXPECT_EQ(control.SetHotImageList(&images), &images);
    expect(TB_SETHOTIMAGELIST, 0, listener.answer);
    EXPECT_EQ(control.GetDisabledImageList(), &images);
    expect(TB_GETDISABLEDIMAGELIST, 0, 0);
    EXPECT_EQ(control.SetDisabledImageList(&images), &images);
    expect(TB_SETDISABLEDIMAGELIST, 0, listener.answer);
    EXPECT_EQ(control.GetPressedImageList(), &images);
    expect(TB_GETPRESSEDIMAGELIST, 0, 0);
    EXPECT_EQ(control.SetPressedImageList(2, &images), &images);
    expect(TB_SETPRESSEDIMAGELIST, 2, listener.answer);
    control.SetImageList(nullptr);
    expect(TB_SETIMAGELIST, 0, 0);
    ui_test::ParentWindow parent;
    CToolTipCtrl tip;
    tip.Create(&parent);
    listener.answer = reinterpret_cast<LRESULT>(tip.m_hWnd);
    EXPECT_EQ(control.GetToolTips(), &tip);
    control.SetToolTips(&tip);
    listener.take();
    control.SetToolTips(&tip);
    expect(TB_SETTOOLTIPS, reinterpret_cast<WPARAM>(tip.m_hWnd), 0);
}

TEST_F(ToldToolBar, WhereItsStateIsKept) {
    TBSAVEPARAMSW where = {};
    listener.look = [&](const HeardMessage& heard) {
        where = *reinterpret_cast<TBSAVEPARAMSW*>(heard.lParam);
    };
    control.SaveState(HKEY_CURRENT_USER, L"a key", L"a value");
    EXPECT_EQ(where.hkr, HKEY_CURRENT_USER);
    EXPECT_STREQ(where.pszSubKey, L"a key");
    EXPECT_STREQ(where.pszValueName, L"a value");
    EXPECT_EQ(listener.take().back().wParam, 1U);
    control.RestoreState(HKEY_LOCAL_MACHINE, L"b key", L"b value");
    EXPECT_EQ(where.hkr, HKEY_LOCAL_MACHINE);
    EXPECT_STREQ(where.pszSubKey, L"b key");
    EXPECT_STREQ(where.pszValueName, L"b value");
    EXPECT_EQ(listener.take().back().wParam, 0U);
}
