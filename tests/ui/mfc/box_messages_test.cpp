// What list boxes, combo boxes, edits, buttons and labels are told by each function of their classes, and
// what comes back.
#include "message_listener.h"
#include "ui_test.h"

namespace {

using ui_test::handle_of;
using ui_test::HeardMessage;
using ToldListBox = ui_test::ToldControl<CListBox>;
using ToldComboBox = ui_test::ToldControl<CComboBox>;
using ToldComboBoxEx = ui_test::ToldControl<CComboBoxEx>;
using ToldEdit = ui_test::ToldControl<CEdit>;
using ToldButton = ui_test::ToldControl<CButton>;
using ToldStatic = ui_test::ToldControl<CStatic>;

static_assert(LB_ERR == CB_ERR);

/// The third entry has four letters, and there is no fourth.
template <class Told, class Read>
void reads_texts_by_their_length(Told& told, UINT message, Read read) {
    told.listener.look = [&told, message](const HeardMessage& heard) {
        told.listener.answer = heard.wParam == 3 ? 4 : LB_ERR;
        if (heard.message == message) ::lstrcpyW(reinterpret_cast<LPWSTR>(heard.lParam), L"four");
    };
    CString text;
    read(3, text);
    EXPECT_EQ(text, L"four");
    EXPECT_THROW(read(4, text), CInvalidArgException*);
}

}  // namespace

TEST_F(ToldListBox, OfEverything) {
    wchar_t text[8] = L"";
    int stops[] = {3, 4};
    CRect rect;
    TELLS(control.GetCount(), LB_GETCOUNT);
    TELLS(control.SetCount(9), LB_SETCOUNT, 9);
    TELLS(control.GetTopIndex(), LB_GETTOPINDEX);
    TELLS(control.SetTopIndex(3), LB_SETTOPINDEX, 3);
    TELLS(control.InitStorage(3, 44), LB_INITSTORAGE, 3, 44);
    TELLS(control.GetLocale(), LB_GETLOCALE);
    TELLS(control.SetLocale(0x804), LB_SETLOCALE, 0x804);
    TELLS(control.GetHorizontalExtent(), LB_GETHORIZONTALEXTENT);
    TELLS(control.SetHorizontalExtent(99), LB_SETHORIZONTALEXTENT, 99);
    TELLS(control.SetColumnWidth(33), LB_SETCOLUMNWIDTH, 33);
    TELLS(control.SetTabStops(2, stops), LB_SETTABSTOPS, 2, at(stops[0]));
    TELLS(control.SetTabStops(), LB_SETTABSTOPS);
    TELLS(control.SetTabStops(stops[1]), LB_SETTABSTOPS, 1, at(stops[1]));
    TELLS(control.SetItemHeight(3, 22), LB_SETITEMHEIGHT, 3, 22);
    TELLS(control.GetItemHeight(3), LB_GETITEMHEIGHT, 3);
    TELLS(control.GetItemRect(3, &rect), LB_GETITEMRECT, 3, at(rect));
    TELLS(control.GetItemData(3), LB_GETITEMDATA, 3);
    TELLS(control.SetItemData(3, 4711), LB_SETITEMDATA, 3, 4711);
    TELLS(control.GetItemDataPtr(3), LB_GETITEMDATA, 3);
    TELLS(control.SetItemDataPtr(3, text), LB_SETITEMDATA, 3, at(text));
    TELLS(control.GetCurSel(), LB_GETCURSEL);
    TELLS(control.SetCurSel(-1), LB_SETCURSEL, number(-1));
    TELLS(control.GetSel(3), LB_GETSEL, 3);
    TELLS(control.SetSel(3), LB_SETSEL, TRUE, 3);
    TELLS(control.SetSel(3, FALSE), LB_SETSEL, FALSE, 3);
    TELLS(control.GetSelCount(), LB_GETSELCOUNT);
    TELLS(control.GetSelItems(2, stops), LB_GETSELITEMS, 2, at(stops[0]));
    TELLS(control.SelItemRange(TRUE, 3, 7), LB_SELITEMRANGEEX, 3, 7);
    TELLS(control.SelItemRange(TRUE, 7, 3), LB_SELITEMRANGEEX, 3, 7);
    TELLS(control.SelItemRange(FALSE, 3, 7), LB_SELITEMRANGEEX, 7, 3);
    TELLS(control.SelItemRange(FALSE, 4, 4), LB_SETSEL, FALSE, 4);
    TELLS(control.SetAnchorIndex(3), LB_SETANCHORINDEX, 3);
    TELLS(control.GetAnchorIndex(), LB_GETANCHORINDEX);
    TELLS(control.GetCaretIndex(), LB_GETCARETINDEX);
    TELLS(control.SetCaretIndex(3), LB_SETCARETINDEX, 3, 0);
    TELLS(control.SetCaretIndex(3, FALSE), LB_SETCARETINDEX, 3, 1);
    TELLS(control.GetText(3, text), LB_GETTEXT, 3, at(text));
    TELLS(control.GetTextLen(3), LB_GETTEXTLEN, 3);
    TELLS(control.AddString(text), LB_ADDSTRING, 0, at(text));
    TELLS(control.InsertString(3, text), LB_INSERTSTRING, 3, at(text));
    TELLS(control.DeleteString(3), LB_DELETESTRING, 3);
    TELLS(control.ResetContent(), LB_RESETCONTENT);
    TELLS(control.Dir(DDL_DRIVES, text), LB_DIR, DDL_DRIVES, at(text));
    TELLS(control.FindString(3, text), LB_FINDSTRING, 3, at(text));
    TELLS(control.FindStringExact(3, text), LB_FINDSTRINGEXACT, 3, at(text));
    TELLS(control.SelectString(3, text), LB_SELECTSTRING, 3, at(text));
    BOOL outside = FALSE;
    listener.answer = MAKELRESULT(5, 1);
    EXPECT_EQ(control.ItemFromPoint(CPoint(30, 40), outside), 5U);
    EXPECT_TRUE(outside);
    const auto heard = listener.take().back();
    EXPECT_EQ(heard.message, static_cast<UINT>(LB_ITEMFROMPOINT));
    EXPECT_EQ(heard.lParam, MAKELPARAM(30, 40));
    listener.answer = MAKELRESULT(6, 0);
    EXPECT_EQ(control.ItemFromPoint(CPoint(30, 40), outside), 6U);
    EXPECT_FALSE(outside);
}

TEST_F(ToldListBox, TextsComeAsLongAsTheyAre) {
    reads_texts_by_their_length(*this, LB_GETTEXT,
                                [this](int index, CString& text) { control.GetText(index, text); });
}

TEST_F(ToldComboBox, OfEverything) {
    wchar_t text[8] = L"";
    CRect rect;
    TELLS(control.GetCount(), CB_GETCOUNT);
    TELLS(control.GetCurSel(), CB_GETCURSEL);
    TELLS(control.SetCurSel(-1), CB_SETCURSEL, number(-1));
    TELLS(control.GetLocale(), CB_GETLOCALE);
    TELLS(control.SetLocale(0x804), CB_SETLOCALE, 0x804);
    TELLS(control.GetTopIndex(), CB_GETTOPINDEX);
    TELLS(control.SetTopIndex(3), CB_SETTOPINDEX, 3);
    TELLS(control.InitStorage(3, 44), CB_INITSTORAGE, 3, 44);
    TELLS(control.SetHorizontalExtent(99), CB_SETHORIZONTALEXTENT, 99);
    TELLS(control.GetHorizontalExtent(), CB_GETHORIZONTALEXTENT);
    TELLS(control.SetDroppedWidth(77), CB_SETDROPPEDWIDTH, 77);
    TELLS(control.GetDroppedWidth(), CB_GETDROPPEDWIDTH);
    TELLS(control.GetMinVisible(), CB_GETMINVISIBLE);
    TELLS(control.SetMinVisibleItems(8), CB_SETMINVISIBLE, 8);
    TELLS(control.SetCueBanner(text), CB_SETCUEBANNER, 0, at(text));
    TELLS(control.GetEditSel(), CB_GETEDITSEL);
    TELLS(control.LimitText(30), CB_LIMITTEXT, 30);
    TELLS(control.SetEditSel(2, 5), CB_SETEDITSEL, 0, MAKELONG(2, 5));
    TELLS(control.Clear(), WM_CLEAR);
    TELLS(control.Copy(), WM_COPY);
    TELLS(control.Cut(), WM_CUT);
    TELLS(control.Paste(), WM_PASTE);
    TELLS(control.GetItemData(3), CB_GETITEMDATA, 3);
    TELLS(control.SetItemData(3, 4711), CB_SETITEMDATA, 3, 4711);
    TELLS(control.GetItemDataPtr(3), CB_GETITEMDATA, 3);
    TELLS(control.SetItemDataPtr(3, text), CB_SETITEMDATA, 3, at(text));
    TELLS(control.SetItemHeight(-1, 22), CB_SETITEMHEIGHT, number(-1), 22);
    TELLS(control.GetItemHeight(-1), CB_GETITEMHEIGHT, number(-1));
    TELLS(control.SetExtendedUI(), CB_SETEXTENDEDUI, TRUE);
    TELLS(control.SetExtendedUI(FALSE), CB_SETEXTENDEDUI, FALSE);
    TELLS(control.GetExtendedUI(), CB_GETEXTENDEDUI);
    TELLS(control.GetDroppedControlRect(&rect), CB_GETDROPPEDCONTROLRECT, 0, at(rect));
    TELLS(control.GetDroppedState(), CB_GETDROPPEDSTATE);
    TELLS(control.ShowDropDown(), CB_SHOWDROPDOWN, TRUE);
    TELLS(control.ShowDropDown(FALSE), CB_SHOWDROPDOWN, FALSE);
    TELLS(control.GetLBText(3, text), CB_GETLBTEXT, 3, at(text));
    TELLS(control.GetLBTextLen(3), CB_GETLBTEXTLEN, 3);
    TELLS(control.AddString(text), CB_ADDSTRING, 0, at(text));
    TELLS(control.InsertString(3, text), CB_INSERTSTRING, 3, at(text));
    TELLS(control.DeleteString(3), CB_DELETESTRING, 3);
    TELLS(control.ResetContent(), CB_RESETCONTENT);
    TELLS(control.Dir(DDL_DRIVES, text), CB_DIR, DDL_DRIVES, at(text));
    TELLS(control.FindString(3, text), CB_FINDSTRING, 3, at(text));
    TELLS(control.FindStringExact(3, text), CB_FINDSTRINGEXACT, 3, at(text));
    TELLS(control.SelectString(3, text), CB_SELECTSTRING, 3, at(text));
}

TEST_F(ToldComboBox, TextsComeAsLongAsTheyAre) {
    reads_texts_by_their_length(*this, CB_GETLBTEXT,
                                [this](int index, CString& text) { control.GetLBText(index, text); });
}

TEST_F(ToldComboBoxEx, OfEverything) {
    COMBOBOXEXITEMW item = {};
    TELLS(control.InsertItem(&item), CBEM_INSERTITEMW, 0, at(item));
    TELLS(control.DeleteItem(3), CBEM_DELETEITEM, 3);
    TELLS(control.GetItem(&item), CBEM_GETITEMW, 0, at(item));
    TELLS(control.SetItem(&item), CBEM_SETITEMW, 0, at(item));
    TELLS(control.GetExtendedStyle(), CBEM_GETEXTENDEDSTYLE);
    TELLS(control.SetExtendedStyle(3, 2), CBEM_SETEXTENDEDSTYLE, 3, 2);
    TELLS(control.HasEditChanged(), CBEM_HASEDITCHANGED);
}

TEST_F(ToldEdit, OfEverything) {
    wchar_t text[8] = L"";
    int stops[] = {3, 4};
    CRect rect;
    EDITBALLOONTIP tip = {};
    TELLS(control.CanUndo(), EM_CANUNDO);
    TELLS(control.Undo(), EM_UNDO);
    TELLS(control.EmptyUndoBuffer(), EM_EMPTYUNDOBUFFER);
    TELLS(control.GetLineCount(), EM_GETLINECOUNT);
    TELLS(control.GetModify(), EM_GETMODIFY);
    TELLS(control.SetModify(), EM_SETMODIFY, TRUE);
    TELLS(control.SetModify(FALSE), EM_SETMODIFY, FALSE);
    TELLS(control.GetRect(&rect), EM_GETRECT, 0, at(rect));
    TELLS(control.SetRect(&rect), EM_SETRECT, 0, at(rect));
    TELLS(control.SetRectNP(&rect), EM_SETRECTNP, 0, at(rect));
    TELLS(control.GetSel(), EM_GETSEL);
    TELLS(control.GetSel(stops[0], stops[1]), EM_GETSEL, static_cast<WPARAM>(at(stops[0])), at(stops[1]));
    TELLS(control.SetSel(2, 5, TRUE), EM_SETSEL, 2, 5);
    TELLS(control.SetSel(static_cast<DWORD>(MAKELONG(0, -1)), TRUE), EM_SETSEL, 0, -1);
    TELLS(control.ReplaceSel(text), EM_REPLACESEL, FALSE, at(text));
    TELLS(control.ReplaceSel(text, TRUE), EM_REPLACESEL, TRUE, at(text));
    TELLS(control.GetHandle(), EM_GETHANDLE);
    TELLS(control.SetHandle(text), EM_SETHANDLE, static_cast<WPARAM>(at(text)));
    TELLS(control.SetMargins(3, 7), EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN, MAKELONG(3, 7));
    TELLS(control.GetMargins(), EM_GETMARGINS);
    TELLS(control.LimitText(30), EM_LIMITTEXT, 30);
    TELLS(control.LimitText(), EM_LIMITTEXT);
    TELLS(control.SetLimitText(31), EM_SETLIMITTEXT, 31);
    TELLS(control.GetLimitText(), EM_GETLIMITTEXT);
    TELLS(control.PosFromChar(4), EM_POSFROMCHAR, 4);
    TELLS(control.CharFromPos(CPoint(30, 40)), EM_CHARFROMPOS, 0, MAKELPARAM(30, 40));
    TELLS(control.LineFromChar(4), EM_LINEFROMCHAR, 4);
    TELLS(control.LineFromChar(), EM_LINEFROMCHAR, number(-1));
    TELLS(control.LineIndex(4), EM_LINEINDEX, 4);
    TELLS(control.LineIndex(), EM_LINEINDEX, number(-1));
    TELLS(control.LineLength(4), EM_LINELENGTH, 4);
    TELLS(control.LineLength(), EM_LINELENGTH, number(-1));
    TELLS(control.LineScroll(4, 2), EM_LINESCROLL, 2, 4);
    TELLS(control.LineScroll(4), EM_LINESCROLL, 0, 4);
    TELLS(control.GetLine(4, text), EM_GETLINE, 4, at(text));
    TELLS(control.GetLine(4, text, 6), EM_GETLINE, 4, at(text));
    EXPECT_EQ(text[0], 6) << "the room stands in the first word";
    TELLS(control.GetFirstVisibleLine(), EM_GETFIRSTVISIBLELINE);
    TELLS(control.GetPasswordChar(), EM_GETPASSWORDCHAR);
    TELLS(control.SetPasswordChar(L'*'), EM_SETPASSWORDCHAR, L'*');
    TELLS(control.SetReadOnly(), EM_SETREADONLY, TRUE);
    TELLS(control.SetReadOnly(FALSE), EM_SETREADONLY, FALSE);
    TELLS(control.SetTabStops(2, stops), EM_SETTABSTOPS, 2, at(stops[0]));
    TELLS(control.SetTabStops(), EM_SETTABSTOPS);
    TELLS(control.FmtLines(TRUE), EM_FMTLINES, TRUE);
    TELLS(control.SetCueBanner(text), EM_SETCUEBANNER, FALSE, at(text));
    TELLS(control.SetCueBanner(text, TRUE), EM_SETCUEBANNER, TRUE, at(text));
    TELLS(control.ShowBalloonTip(&tip), EM_SHOWBALLOONTIP, 0, at(tip));
    TELLS(control.HideBalloonTip(), EM_HIDEBALLOONTIP);
    TELLS(control.Clear(), WM_CLEAR);
    TELLS(control.Copy(), WM_COPY);
    TELLS(control.Cut(), WM_CUT);
    TELLS(control.Paste(), WM_PASTE);
    listener.take();
    control.SetSel(2, 5);
    const auto heard = listener.take();
    ASSERT_EQ(heard.size(), 2U);
    EXPECT_EQ(heard[0].message, static_cast<UINT>(EM_SETSEL));
    EXPECT_EQ(heard[1].message, static_cast<UINT>(EM_SCROLLCARET)) << "scrolled into view";
    control.SetSel(static_cast<DWORD>(MAKELONG(1, 2)));
    EXPECT_EQ(listener.take().size(), 2U);
}

TEST_F(ToldButton, OfEverything) {
    CRect rect;
    CSize size;
    BUTTON_IMAGELIST images = {};
    TELLS(control.GetState(), BM_GETSTATE);
    TELLS(control.SetState(TRUE), BM_SETSTATE, TRUE);
    TELLS(control.GetCheck(), BM_GETCHECK);
    TELLS(control.SetCheck(BST_INDETERMINATE), BM_SETCHECK, BST_INDETERMINATE);
    TELLS(control.SetButtonStyle(BS_RADIOBUTTON), BM_SETSTYLE, BS_RADIOBUTTON, TRUE);
    TELLS(control.SetButtonStyle(BS_RADIOBUTTON, FALSE), BM_SETSTYLE, BS_RADIOBUTTON, FALSE);
    TELLS(control.Click(), BM_CLICK);
    TELLS(control.SetIcon(handle_of<HICON>(5)), BM_SETIMAGE, IMAGE_ICON, 5);
    TELLS(control.GetIcon(), BM_GETIMAGE, IMAGE_ICON);
    TELLS(control.SetBitmap(handle_of<HBITMAP>(6)), BM_SETIMAGE, IMAGE_BITMAP, 6);
    TELLS(control.GetBitmap(), BM_GETIMAGE, IMAGE_BITMAP);
    TELLS(control.SetCursor(handle_of<HCURSOR>(7)), BM_SETIMAGE, IMAGE_CURSOR, 7);
    TELLS(control.GetCursor(), BM_GETIMAGE, IMAGE_CURSOR);
    TELLS(control.GetIdealSize(&size), BCM_GETIDEALSIZE, 0, at(size));
    TELLS(control.GetImageList(&images), BCM_GETIMAGELIST, 0, at(images));
    TELLS(control.SetImageList(&images), BCM_SETIMAGELIST, 0, at(images));
    TELLS(control.GetTextMargin(&rect), BCM_GETTEXTMARGIN, 0, at(rect));
    TELLS(control.SetTextMargin(&rect), BCM_SETTEXTMARGIN, 0, at(rect));
}

TEST_F(ToldStatic, OfEverything) {
    TELLS(control.SetIcon(handle_of<HICON>(5)), STM_SETICON, 5);
    TELLS(control.GetIcon(), STM_GETICON);
    TELLS(control.SetBitmap(handle_of<HBITMAP>(6)), STM_SETIMAGE, IMAGE_BITMAP, 6);
    TELLS(control.GetBitmap(), STM_GETIMAGE, IMAGE_BITMAP);
    TELLS(control.SetEnhMetaFile(handle_of<HENHMETAFILE>(7)), STM_SETIMAGE, IMAGE_ENHMETAFILE, 7);
    TELLS(control.GetEnhMetaFile(), STM_GETIMAGE, IMAGE_ENHMETAFILE);
    TELLS(control.SetCursor(handle_of<HCURSOR>(8)), STM_SETIMAGE, IMAGE_CURSOR, 8);
    TELLS(control.GetCursor(), STM_GETIMAGE, IMAGE_CURSOR);
}
