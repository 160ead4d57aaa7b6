// What boxes, bars and buttons are told by each function of their classes, and what comes back.
#include <afxdtctl.h>

#include "message_listener.h"
#include "ui_test.h"

namespace {

using ui_test::HeardMessage;
using ToldListBox = ui_test::ToldControl<CListBox>;
using ToldComboBox = ui_test::ToldControl<CComboBox>;
using ToldComboBoxEx = ui_test::ToldControl<CComboBoxEx>;
using ToldEdit = ui_test::ToldControl<CEdit>;
using ToldButton = ui_test::ToldControl<CButton>;
using ToldStatic = ui_test::ToldControl<CStatic>;
using ToldSpin = ui_test::ToldControl<CSpinButtonCtrl>;
using ToldSlider = ui_test::ToldControl<CSliderCtrl>;
using ToldProgress = ui_test::ToldControl<CProgressCtrl>;
using ToldToolBar = ui_test::ToldControl<CToolBarCtrl>;
using ToldTabs = ui_test::ToldControl<CTabCtrl>;
using ToldHeader = ui_test::ToldControl<CHeaderCtrl>;
using ToldStatusBar = ui_test::ToldControl<CStatusBarCtrl>;
using ToldTip = ui_test::ToldControl<CToolTipCtrl>;
using ToldHotKey = ui_test::ToldControl<CHotKeyCtrl>;
using ToldDatePicker = ui_test::ToldControl<CDateTimeCtrl>;
using ToldCalendar = ui_test::ToldControl<CMonthCalCtrl>;

/// A handle that is none, but is carried around as one.
template <class Handle>
Handle as(UINT_PTR value) {
    return reinterpret_cast<Handle>(value);
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
    listener.look = [this](const HeardMessage& heard) {
        listener.answer = heard.wParam == 3 ? 4 : LB_ERR;
        if (heard.message == LB_GETTEXT) ::lstrcpyW(reinterpret_cast<LPWSTR>(heard.lParam), L"four");
    };
    CString text;
    control.GetText(3, text);
    EXPECT_EQ(text, L"four");
    EXPECT_THROW(control.GetText(4, text), CInvalidArgException*);
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
    listener.look = [this](const HeardMessage& heard) {
        listener.answer = heard.wParam == 3 ? 4 : CB_ERR;
        if (heard.message == CB_GETLBTEXT) ::lstrcpyW(reinterpret_cast<LPWSTR>(heard.lParam), L"four");
    };
    CString text;
    control.GetLBText(3, text);
    EXPECT_EQ(text, L"four");
    EXPECT_THROW(control.GetLBText(4, text), CInvalidArgException*);
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
    TELLS(control.SetIcon(as<HICON>(5)), BM_SETIMAGE, IMAGE_ICON, 5);
    TELLS(control.GetIcon(), BM_GETIMAGE, IMAGE_ICON);
    TELLS(control.SetBitmap(as<HBITMAP>(6)), BM_SETIMAGE, IMAGE_BITMAP, 6);
    TELLS(control.GetBitmap(), BM_GETIMAGE, IMAGE_BITMAP);
    TELLS(control.SetCursor(as<HCURSOR>(7)), BM_SETIMAGE, IMAGE_CURSOR, 7);
    TELLS(control.GetCursor(), BM_GETIMAGE, IMAGE_CURSOR);
    TELLS(control.GetIdealSize(&size), BCM_GETIDEALSIZE, 0, at(size));
    TELLS(control.GetImageList(&images), BCM_GETIMAGELIST, 0, at(images));
    TELLS(control.SetImageList(&images), BCM_SETIMAGELIST, 0, at(images));
    TELLS(control.GetTextMargin(&rect), BCM_GETTEXTMARGIN, 0, at(rect));
    TELLS(control.SetTextMargin(&rect), BCM_SETTEXTMARGIN, 0, at(rect));
}

TEST_F(ToldStatic, OfEverything) {
    TELLS(control.SetIcon(as<HICON>(5)), STM_SETICON, 5);
    TELLS(control.GetIcon(), STM_GETICON);
    TELLS(control.SetBitmap(as<HBITMAP>(6)), STM_SETIMAGE, IMAGE_BITMAP, 6);
    TELLS(control.GetBitmap(), STM_GETIMAGE, IMAGE_BITMAP);
    TELLS(control.SetEnhMetaFile(as<HENHMETAFILE>(7)), STM_SETIMAGE, IMAGE_ENHMETAFILE, 7);
    TELLS(control.GetEnhMetaFile(), STM_GETIMAGE, IMAGE_ENHMETAFILE);
    TELLS(control.SetCursor(as<HCURSOR>(8)), STM_SETIMAGE, IMAGE_CURSOR, 8);
    TELLS(control.GetCursor(), STM_GETIMAGE, IMAGE_CURSOR);
}

TEST_F(ToldSpin, OfEverything) {
    UDACCEL steps[2] = {};
    int lower = 0, upper = 0;
    BOOL error = FALSE;
    TELLS(control.SetAccel(2, steps), UDM_SETACCEL, 2, at(steps[0]));
    TELLS(control.GetAccel(2, steps), UDM_GETACCEL, 2, at(steps[0]));
    TELLS(control.SetBase(16), UDM_SETBASE, 16);
    TELLS(control.GetBase(), UDM_GETBASE);
    TELLS(control.GetPos(), UDM_GETPOS);
    TELLS(control.SetRange(3, 99), UDM_SETRANGE, 0, MAKELPARAM(99, 3));
    TELLS(control.GetRange(), UDM_GETRANGE);
    TELLS(control.SetRange32(-3, 99), UDM_SETRANGE32, number(-3), 99);
    TELLS(control.GetRange32(lower, upper), UDM_GETRANGE32, static_cast<WPARAM>(at(lower)), at(upper));
    TELLS(control.GetRange(lower, upper), UDM_GETRANGE32, static_cast<WPARAM>(at(lower)), at(upper));
    TELLS(control.SetPos32(70000), UDM_SETPOS32, 0, 70000);
    TELLS(control.GetPos32(&error), UDM_GETPOS32, 0, at(error));
    TELLS(control.GetPos32(), UDM_GETPOS32);
    listener.answer = 0xFFFE;
    EXPECT_EQ(control.SetPos(5), -2) << "16 bits with a sign";
    const auto heard = listener.take().back();
    EXPECT_EQ(heard.message, static_cast<UINT>(UDM_SETPOS));
    EXPECT_EQ(heard.lParam, 5);
}

TEST_F(ToldSlider, OfEverything) {
    CRect rect;
    TELLS(control.GetPos(), TBM_GETPOS);
    TELLS(control.SetPos(7), TBM_SETPOS, TRUE, 7);
    TELLS(control.GetRangeMin(), TBM_GETRANGEMIN);
    TELLS(control.GetRangeMax(), TBM_GETRANGEMAX);
    TELLS(control.SetRangeMin(-4), TBM_SETRANGEMIN, FALSE, -4);
    TELLS(control.SetRangeMin(-4, TRUE), TBM_SETRANGEMIN, TRUE, -4);
    TELLS(control.SetRangeMax(99), TBM_SETRANGEMAX, FALSE, 99);
    TELLS(control.SetRangeMax(99, TRUE), TBM_SETRANGEMAX, TRUE, 99);
    TELLS(control.GetLineSize(), TBM_GETLINESIZE);
    TELLS(control.SetLineSize(3), TBM_SETLINESIZE, 0, 3);
    TELLS(control.GetPageSize(), TBM_GETPAGESIZE);
    TELLS(control.SetPageSize(9), TBM_SETPAGESIZE, 0, 9);
    TELLS(control.ClearSel(), TBM_CLEARSEL, FALSE);
    TELLS(control.ClearSel(TRUE), TBM_CLEARSEL, TRUE);
    TELLS(control.GetNumTics(), TBM_GETNUMTICS);
    TELLS(control.GetTic(2), TBM_GETTIC, 2);
    TELLS(control.GetTicPos(2), TBM_GETTICPOS, 2);
    TELLS(control.SetTic(2), TBM_SETTIC, 0, 2);
    TELLS(control.SetTicFreq(5), TBM_SETTICFREQ, 5);
    TELLS(control.ClearTics(), TBM_CLEARTICS, FALSE);
    TELLS(control.ClearTics(TRUE), TBM_CLEARTICS, TRUE);
    TELLS(control.GetTicArray(), TBM_GETPTICS);
    TELLS(control.GetThumbLength(), TBM_GETTHUMBLENGTH);
    TELLS(control.SetThumbLength(17), TBM_SETTHUMBLENGTH, 17);
    TELLS(control.SetTipSide(TBTS_LEFT), TBM_SETTIPSIDE, TBTS_LEFT);
    TELLS(control.SetTipSide(TBTS_BOTTOM), TBM_SETTIPSIDE, TBTS_BOTTOM);
    TELLS(control.GetThumbRect(&rect), TBM_GETTHUMBRECT, 0, at(rect));
    TELLS(control.GetChannelRect(&rect), TBM_GETCHANNELRECT, 0, at(rect));
    listener.take();
    control.SetRange(2, 8, TRUE);
    control.SetSelection(3, 5);
    const auto heard = listener.take();
    ASSERT_EQ(heard.size(), 4U);
    EXPECT_EQ(heard[0].message, static_cast<UINT>(TBM_SETRANGEMIN));
    EXPECT_EQ(heard[0].wParam, 1U);
    EXPECT_EQ(heard[0].lParam, 2);
    EXPECT_EQ(heard[1].message, static_cast<UINT>(TBM_SETRANGEMAX));
    EXPECT_EQ(heard[1].lParam, 8);
    EXPECT_EQ(heard[2].message, static_cast<UINT>(TBM_SETSELSTART));
    EXPECT_EQ(heard[2].wParam, 0U);
    EXPECT_EQ(heard[2].lParam, 3);
    EXPECT_EQ(heard[3].message, static_cast<UINT>(TBM_SETSELEND));
    EXPECT_EQ(heard[3].lParam, 5);
    listener.look = [this](const HeardMessage& message) {
        listener.answer = static_cast<LRESULT>(message.message);
    };
    int low = 0, high = 0;
    control.GetRange(low, high);
    EXPECT_EQ(low, TBM_GETRANGEMIN);
    EXPECT_EQ(high, TBM_GETRANGEMAX);
    control.GetSelection(low, high);
    EXPECT_EQ(low, TBM_GETSELSTART);
    EXPECT_EQ(high, TBM_GETSELEND);
}

TEST_F(ToldProgress, OfEverything) {
    TELLS(control.SetRange(3, 99), PBM_SETRANGE, 0, MAKELPARAM(3, 99));
    TELLS(control.SetRange32(-3, 99), PBM_SETRANGE32, number(-3), 99);
    TELLS(control.GetStep(), PBM_GETSTEP);
    TELLS(control.GetBarColor(), PBM_GETBARCOLOR);
    TELLS(control.GetBkColor(), PBM_GETBKCOLOR);
    TELLS(control.GetState(), PBM_GETSTATE);
    TELLS(control.SetState(PBST_PAUSED), PBM_SETSTATE, PBST_PAUSED);
    TELLS(control.GetPos(), PBM_GETPOS);
    TELLS(control.SetPos(7), PBM_SETPOS, 7);
    TELLS(control.OffsetPos(-2), PBM_DELTAPOS, number(-2));
    TELLS(control.StepIt(), PBM_STEPIT);
    TELLS(control.SetStep(3), PBM_SETSTEP, 3);
    TELLS(control.SetBarColor(RGB(1, 2, 3)), PBM_SETBARCOLOR, 0, RGB(1, 2, 3));
    TELLS(control.SetBkColor(RGB(1, 2, 3)), PBM_SETBKCOLOR, 0, RGB(1, 2, 3));
    TELLS(control.SetMarquee(TRUE, 30), PBM_SETMARQUEE, TRUE, 30);
    listener.look = [](const HeardMessage& heard) {
        EXPECT_EQ(heard.wParam, 1U);
        *reinterpret_cast<PBRANGE*>(heard.lParam) = {4, 44};
    };
    int low = 0, high = 0;
    control.GetRange(low, high);
    EXPECT_EQ(low, 4);
    EXPECT_EQ(high, 44);
}

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
    TELLS(control.LoadImages(IDB_STD_SMALL_COLOR, as<HINSTANCE>(9)), TB_LOADIMAGES, IDB_STD_SMALL_COLOR, 9);
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

TEST_F(ToldTabs, OfEverything) {
    TCITEMW item = {};
    TCHITTESTINFO hit = {};
    CRect rect;
    TELLS(control.GetItemCount(), TCM_GETITEMCOUNT);
    TELLS(control.GetItem(3, &item), TCM_GETITEMW, 3, at(item));
    TELLS(control.SetItem(3, &item), TCM_SETITEMW, 3, at(item));
    TELLS(control.SetItemExtra(8), TCM_SETITEMEXTRA, 8);
    TELLS(control.GetItemRect(3, &rect), TCM_GETITEMRECT, 3, at(rect));
    TELLS(control.GetCurSel(), TCM_GETCURSEL);
    TELLS(control.SetCurSel(3), TCM_SETCURSEL, 3);
    TELLS(control.GetCurFocus(), TCM_GETCURFOCUS);
    TELLS(control.SetCurFocus(3), TCM_SETCURFOCUS, 3);
    TELLS(control.SetItemSize(CSize(60, 20)), TCM_SETITEMSIZE, 0, MAKELPARAM(60, 20));
    TELLS(control.SetPadding(CSize(6, 2)), TCM_SETPADDING, 0, MAKELPARAM(6, 2));
    TELLS(control.SetMinTabWidth(40), TCM_SETMINTABWIDTH, 0, 40);
    TELLS(control.GetRowCount(), TCM_GETROWCOUNT);
    TELLS(control.GetExtendedStyle(), TCM_GETEXTENDEDSTYLE);
    TELLS(control.SetExtendedStyle(2), TCM_SETEXTENDEDSTYLE, 0, 2);
    TELLS(control.SetExtendedStyle(2, 3), TCM_SETEXTENDEDSTYLE, 3, 2);
    TELLS(control.InsertItem(3, &item), TCM_INSERTITEMW, 3, at(item));
    TELLS(control.DeleteItem(3), TCM_DELETEITEM, 3);
    TELLS(control.DeleteAllItems(), TCM_DELETEALLITEMS);
    TELLS(control.AdjustRect(TRUE, &rect), TCM_ADJUSTRECT, TRUE, at(rect));
    TELLS(control.RemoveImage(3), TCM_REMOVEIMAGE, 3);
    TELLS(control.HitTest(&hit), TCM_HITTEST, 0, at(hit));
    TELLS(control.DeselectAll(TRUE), TCM_DESELECTALL, TRUE);
    TELLS(control.HighlightItem(3), TCM_HIGHLIGHTITEM, 3, TRUE);
    TELLS(control.HighlightItem(3, FALSE), TCM_HIGHLIGHTITEM, 3, FALSE);
}

TEST_F(ToldTabs, OfWholeItems) {
    TCITEMW item = {};
    listener.look = [&](const HeardMessage& heard) {
        item = *reinterpret_cast<TCITEMW*>(heard.lParam);
        reinterpret_cast<TCITEMW*>(heard.lParam)->dwState = TCIS_HIGHLIGHTED | TCIS_BUTTONPRESSED;
    };
    EXPECT_NE(control.InsertItem(2, L"plain"), 0);
    EXPECT_EQ(item.mask, static_cast<UINT>(TCIF_TEXT));
    EXPECT_STREQ(item.pszText, L"plain");
    EXPECT_EQ(listener.take().back().wParam, 2U);
    EXPECT_NE(control.InsertItem(2, L"pictured", 0), 0);
    EXPECT_EQ(item.mask, static_cast<UINT>(TCIF_TEXT | TCIF_IMAGE));
    EXPECT_EQ(item.iImage, 0);
    EXPECT_NE(control.InsertItem(TCIF_PARAM, 4, L"data", 5, 6), 0);
    EXPECT_EQ(item.mask, static_cast<UINT>(TCIF_PARAM));
    EXPECT_EQ(item.iImage, 5);
    EXPECT_EQ(item.lParam, 6);
    EXPECT_EQ(item.dwState + item.dwStateMask, 0U);
    EXPECT_NE(control.InsertItem(TCIF_STATE, 4, L"state", 5, 6, 7, 8), 0);
    EXPECT_EQ(item.dwState, 7U);
    EXPECT_EQ(item.dwStateMask, 8U);
    EXPECT_EQ(listener.take().back().wParam, 4U);
    EXPECT_NE(control.SetItemState(3, 9, 1), 0);
    EXPECT_EQ(item.mask, static_cast<UINT>(TCIF_STATE));
    EXPECT_EQ(item.dwStateMask, 9U);
    EXPECT_EQ(item.dwState, 1U);
    EXPECT_EQ(control.GetItemState(3, TCIS_HIGHLIGHTED), static_cast<DWORD>(TCIS_HIGHLIGHTED));
    EXPECT_EQ(item.mask, static_cast<UINT>(TCIF_STATE));
    EXPECT_EQ(listener.take().back().wParam, 3U);
    listener.answer = 0;
    EXPECT_EQ(control.GetItemState(3, TCIS_HIGHLIGHTED), 0U);
}

TEST_F(ToldHeader, OfEverything) {
    HDITEMW item = {};
    HDHITTESTINFO hit = {};
    HDLAYOUT layout = {};
    CRect rect;
    INT order[] = {1, 0};
    TELLS(control.GetItemCount(), HDM_GETITEMCOUNT);
    TELLS(control.GetItem(3, &item), HDM_GETITEMW, 3, at(item));
    TELLS(control.SetItem(3, &item), HDM_SETITEMW, 3, at(item));
    TELLS(control.InsertItem(3, &item), HDM_INSERTITEMW, 3, at(item));
    TELLS(control.DeleteItem(3), HDM_DELETEITEM, 3);
    TELLS(control.GetItemRect(3, &rect), HDM_GETITEMRECT, 3, at(rect));
    TELLS(control.HitTest(&hit), HDM_HITTEST, 0, at(hit));
    TELLS(control.OrderToIndex(3), HDM_ORDERTOINDEX, 3);
    TELLS(control.GetOrderArray(order, 2), HDM_GETORDERARRAY, 2, at(order[0]));
    TELLS(control.SetOrderArray(2, order), HDM_SETORDERARRAY, 2, at(order[0]));
    TELLS(control.Layout(&layout), HDM_LAYOUT, 0, at(layout));
    TELLS(control.SetHotDivider(3), HDM_SETHOTDIVIDER, FALSE, 3);
    TELLS(control.GetBitmapMargin(), HDM_GETBITMAPMARGIN);
    TELLS(control.SetBitmapMargin(4), HDM_SETBITMAPMARGIN, 4);
    listener.answer = 2;
    EXPECT_EQ(control.GetOrderArray(order), 2) << "of all items";
    const auto heard = listener.take();
    EXPECT_EQ(heard.back().wParam, 2U);
    CImageList images;
    images.Create(4, 4, ILC_COLOR, 1, 1);
    listener.answer = reinterpret_cast<LRESULT>(images.m_hImageList);
    EXPECT_EQ(control.SetImageList(&images), &images);
    EXPECT_EQ(listener.take().back().lParam, listener.answer);
    EXPECT_EQ(control.GetImageList(), &images);
    EXPECT_EQ(listener.take().back().message, static_cast<UINT>(HDM_GETIMAGELIST));
    EXPECT_EQ(control.CreateDragImage(3), &images);
    EXPECT_EQ(listener.take().back().wParam, 3U);
}

TEST_F(ToldStatusBar, OfEverything) {
    int edges[] = {50, -1, 0};
    CRect rect;
    TELLS(control.SetText(L"text", 2, SBT_POPOUT), SB_SETTEXTW, 2 | SBT_POPOUT, at(L"text"));
    TELLS(control.SetParts(2, edges), SB_SETPARTS, 2, at(edges[0]));
    TELLS(control.GetParts(2, edges), SB_GETPARTS, 2, at(edges[0]));
    TELLS(control.GetBorders(edges), SB_GETBORDERS, 0, at(edges[0]));
    TELLS(control.SetMinHeight(30), SB_SETMINHEIGHT, 30);
    TELLS(control.SetSimple(), SB_SIMPLE, TRUE);
    TELLS(control.SetSimple(FALSE), SB_SIMPLE, FALSE);
    TELLS(control.IsSimple(), SB_ISSIMPLE);
    TELLS(control.GetRect(3, &rect), SB_GETRECT, 3, at(rect));
    TELLS(control.SetBkColor(RGB(1, 2, 3)), SB_SETBKCOLOR, 0, RGB(1, 2, 3));
    TELLS(control.GetIcon(3), SB_GETICON, 3);
    TELLS(control.SetIcon(3, as<HICON>(5)), SB_SETICON, 3, 5);
    TELLS(control.SetTipText(3, L"tip"), SB_SETTIPTEXTW, 3, at(L"tip"));
    int across = 0, down = 0, between = 0;
    listener.look = [](const HeardMessage& heard) {
        auto* const borders = reinterpret_cast<int*>(heard.lParam);
        borders[0] = 1, borders[1] = 2, borders[2] = 3;
    };
    EXPECT_TRUE(control.GetBorders(across, down, between));
    EXPECT_EQ(across, 1);
    EXPECT_EQ(down, 2);
    EXPECT_EQ(between, 3);
    listener.answer = 0;
    across = 9;
    EXPECT_FALSE(control.GetBorders(across, down, between));
    EXPECT_EQ(across, 9);
}

TEST_F(ToldStatusBar, TextsHaveALengthAndAType) {
    WORD type = SBT_POPOUT;
    listener.look = [&](const HeardMessage& heard) {
        EXPECT_EQ(LOWORD(heard.wParam), 3);
        listener.answer = MAKELRESULT(4, type);
        if (heard.message == SB_GETTEXTW || heard.message == SB_GETTIPTEXTW)
            ::lstrcpyW(reinterpret_cast<LPWSTR>(heard.lParam), L"four");
    };
    int said = 0;
    EXPECT_EQ(control.GetTextLength(3, &said), 4);
    EXPECT_EQ(said, SBT_POPOUT);
    EXPECT_EQ(control.GetTextLength(3), 4);
    said = 0;
    EXPECT_EQ(control.GetText(3, &said), L"four");
    EXPECT_EQ(said, SBT_POPOUT);
    EXPECT_EQ(control.GetText(3), L"four");
    EXPECT_EQ(control.GetTipText(3), L"four");
    EXPECT_EQ(HIWORD(listener.take().back().wParam), 1024) << "the room for a tip";
    type = SBT_OWNERDRAW;
    EXPECT_EQ(control.GetText(3, &said), L"") << "what is drawn by its owner has no text";
    EXPECT_EQ(listener.take().size(), 1U) << "and isn't asked for it";
    listener.look = nullptr;
    listener.answer = 0;
    EXPECT_EQ(control.GetText(3), L"");
    EXPECT_EQ(listener.take().size(), 1U);
}

TEST_F(ToldTip, OfEverything) {
    TOOLINFOW tool = {};
    CRect rect;
    CPoint place(30, 40);
    MSG message = {};
    TELLS(control.SetToolInfo(&tool), TTM_SETTOOLINFOW, 0, at(tool));
    TELLS(control.GetToolCount(), TTM_GETTOOLCOUNT);
    TELLS(control.Activate(TRUE), TTM_ACTIVATE, TRUE);
    TELLS(control.RelayEvent(&message), TTM_RELAYEVENT, 0, at(message));
    TELLS(control.Pop(), TTM_POP);
    TELLS(control.Popup(), TTM_POPUP);
    TELLS(control.Update(), TTM_UPDATE);
    TELLS(control.GetDelayTime(TTDT_INITIAL), TTM_GETDELAYTIME, TTDT_INITIAL);
    TELLS(control.SetDelayTime(500U), TTM_SETDELAYTIME, TTDT_AUTOMATIC, 500);
    TELLS(control.SetDelayTime(TTDT_AUTOPOP, 600), TTM_SETDELAYTIME, TTDT_AUTOPOP, 600);
    TELLS(control.GetMargin(&rect), TTM_GETMARGIN, 0, at(rect));
    TELLS(control.SetMargin(&rect), TTM_SETMARGIN, 0, at(rect));
    TELLS(control.GetMaxTipWidth(), TTM_GETMAXTIPWIDTH);
    TELLS(control.SetMaxTipWidth(-1), TTM_SETMAXTIPWIDTH, 0, -1);
    TELLS(control.GetTipBkColor(), TTM_GETTIPBKCOLOR);
    TELLS(control.SetTipBkColor(RGB(1, 2, 3)), TTM_SETTIPBKCOLOR, RGB(1, 2, 3));
    TELLS(control.GetTipTextColor(), TTM_GETTIPTEXTCOLOR);
    TELLS(control.SetTipTextColor(RGB(1, 2, 3)), TTM_SETTIPTEXTCOLOR, RGB(1, 2, 3));
    TELLS(control.SetTitle(TTI_INFO, L"title"), TTM_SETTITLEW, TTI_INFO, at(L"title"));
    TELLS(control.AdjustRect(&rect), TTM_ADJUSTRECT, TRUE, at(rect));
    TELLS(control.AdjustRect(&rect, FALSE), TTM_ADJUSTRECT, FALSE, at(rect));
    TELLS(control.GetBubbleSize(&tool), TTM_GETBUBBLESIZE, 0, at(tool));
    TELLS(control.GetCurrentTool(&tool), TTM_GETCURRENTTOOLW, 0, at(tool));
    TELLS(control.TrackActivate(&tool, TRUE), TTM_TRACKACTIVATE, TRUE, at(tool));
    TELLS(control.TrackPosition(&place), TTM_TRACKPOSITION, 0, MAKELPARAM(30, 40));
}

TEST_F(ToldTip, ToolsAreWindowsOrRectangles) {
    ui_test::ParentWindow parent;
    CWnd child;
    child.Create(L"STATIC", L"", WS_CHILD, CRect(0, 0, 20, 20), &parent, 5);
    TOOLINFOW tool = {};
    UINT message = 0;
    WPARAM room = 0;
    CString text;
    listener.look = [&](const HeardMessage& heard) {
        if (heard.message < WM_USER) return;  // the system's own, while windows come and go
        auto& told = *reinterpret_cast<TOOLINFOW*>(heard.lParam);
        tool = told;
        message = heard.message;
        room = heard.wParam;
        if (heard.message == TTM_GETTEXTW)
            ::lstrcpyW(told.lpszText, L"its text");
        else if (heard.message != TTM_GETTOOLINFOW && heard.message != TTM_DELTOOLW &&
                 heard.message != TTM_NEWTOOLRECTW)
            text = told.lpszText;
    };
    const auto expect_window = [&] {
        EXPECT_EQ(tool.cbSize, sizeof tool);
        EXPECT_EQ(tool.hwnd, parent.m_hWnd);
        EXPECT_EQ(tool.uFlags, static_cast<UINT>(TTF_IDISHWND));
        EXPECT_EQ(tool.uId, reinterpret_cast<UINT_PTR>(child.m_hWnd));
    };
    EXPECT_TRUE(control.AddTool(&child, L"of the child"));
    EXPECT_EQ(message, static_cast<UINT>(TTM_ADDTOOLW));
    expect_window();
    EXPECT_EQ(text, L"of the child");
    control.DelTool(&child);
    EXPECT_EQ(message, static_cast<UINT>(TTM_DELTOOLW));
    expect_window();
    const CRect area(3, 4, 15, 16);
    EXPECT_TRUE(control.AddTool(&parent, 215U, area, 8, 99));
    EXPECT_EQ(tool.hwnd, parent.m_hWnd);
    EXPECT_EQ(tool.uFlags, 0U);
    EXPECT_EQ(tool.uId, 8U);
    EXPECT_EQ(CRect(tool.rect), area);
    EXPECT_EQ(tool.lParam, 99);
    EXPECT_EQ(text, L"last of its block");
    control.UpdateTipText(L"another", &child);
    EXPECT_EQ(message, static_cast<UINT>(TTM_UPDATETIPTEXTW));
    expect_window();
    EXPECT_EQ(text, L"another");
    control.UpdateTipText(216U, &parent, 8);
    EXPECT_EQ(text, L"first of the next");
    EXPECT_EQ(tool.uId, 8U);
    control.SetToolRect(&parent, 9, area);
    EXPECT_EQ(message, static_cast<UINT>(TTM_NEWTOOLRECTW));
    EXPECT_EQ(tool.uId, 9U);
    EXPECT_EQ(CRect(tool.rect), area);
    CString read;
    control.GetText(read, &child);
    EXPECT_EQ(read, L"its text");
    expect_window();
    EXPECT_EQ(room, 1024U);
    TOOLINFOW info = {};
    EXPECT_TRUE(control.GetToolInfo(info, &parent, 9));
    EXPECT_EQ(message, static_cast<UINT>(TTM_GETTOOLINFOW));
    EXPECT_EQ(info.uId, 9U);
    listener.look = nullptr;
}

TEST_F(ToldTip, AToolIsFoundAtAPoint) {
    ui_test::ParentWindow parent;
    TTHITTESTINFOW asked = {};
    listener.look = [&](const HeardMessage& heard) {
        if (heard.message < WM_USER) return;
        auto& info = *reinterpret_cast<TTHITTESTINFOW*>(heard.lParam);
        asked = info;
        info.ti.uId = 12;
    };
    TOOLINFOW tool = {};
    EXPECT_TRUE(control.HitTest(&parent, CPoint(30, 40), &tool));
    EXPECT_EQ(asked.hwnd, parent.m_hWnd);
    EXPECT_EQ(CPoint(asked.pt), CPoint(30, 40));
    EXPECT_EQ(asked.ti.cbSize, sizeof tool);
    EXPECT_EQ(tool.uId, 12U);
    listener.answer = 0;
    tool.uId = 1;
    EXPECT_FALSE(control.HitTest(&parent, CPoint(30, 40), &tool));
    EXPECT_EQ(tool.uId, 1U);
    listener.look = nullptr;
}

TEST_F(ToldHotKey, OfEverything) {
    TELLS(control.SetHotKey(VK_F5, HOTKEYF_ALT), HKM_SETHOTKEY, MAKEWORD(VK_F5, HOTKEYF_ALT));
    TELLS(control.GetHotKey(), HKM_GETHOTKEY);
    TELLS(control.SetRules(HKCOMB_S, HOTKEYF_CONTROL), HKM_SETRULES, HKCOMB_S, HOTKEYF_CONTROL);
    listener.answer = MAKEWORD(VK_F6, HOTKEYF_SHIFT);
    WORD key = 0, modifiers = 0;
    control.GetHotKey(key, modifiers);
    EXPECT_EQ(key, VK_F6);
    EXPECT_EQ(modifiers, HOTKEYF_SHIFT);
}

TEST_F(ToldDatePicker, OfEverything) {
    SYSTEMTIME time = {};
    TELLS(control.GetTime(&time), DTM_GETSYSTEMTIME, 0, at(time));
    TELLS(control.SetFormat(L"yyyy"), DTM_SETFORMATW, 0, at(L"yyyy"));
    TELLS(control.CloseMonthCal(), DTM_CLOSEMONTHCAL);
    TELLS(control.GetMonthCalColor(MCSC_TEXT), DTM_GETMCCOLOR, MCSC_TEXT);
    TELLS(control.SetMonthCalColor(MCSC_TEXT, RGB(1, 2, 3)), DTM_SETMCCOLOR, MCSC_TEXT, RGB(1, 2, 3));
    TELLS(control.SetMonthCalFont(as<HFONT>(5)), DTM_SETMCFONT, 5, TRUE);
    TELLS(control.SetMonthCalFont(as<HFONT>(5), FALSE), DTM_SETMCFONT, 5, FALSE);
    TELLS(control.GetMonthCalStyle(), DTM_GETMCSTYLE);
    TELLS(control.SetMonthCalStyle(3), DTM_SETMCSTYLE, 0, 3);
    CSize size;
    EXPECT_TRUE(control.GetIdealSize(&size));
    const auto heard = listener.take().back();
    EXPECT_EQ(heard.message, static_cast<UINT>(DTM_GETIDEALSIZE));
    EXPECT_EQ(heard.lParam, at(size));
}

TEST_F(ToldCalendar, OfEverything) {
    SYSTEMTIME time = {};
    MONTHDAYSTATE days[2] = {};
    MCHITTESTINFO hit = {};
    MCGRIDINFO grid = {};
    CRect rect;
    TELLS(control.GetCurSel(&time), MCM_GETCURSEL, 0, at(time));
    TELLS(control.SetCurSel(&time), MCM_SETCURSEL, 0, at(time));
    TELLS(control.GetMaxSelCount(), MCM_GETMAXSELCOUNT);
    TELLS(control.SetMaxSelCount(9), MCM_SETMAXSELCOUNT, 9);
    TELLS(control.GetColor(MCSC_TEXT), MCM_GETCOLOR, MCSC_TEXT);
    TELLS(control.SetColor(MCSC_TEXT, RGB(1, 2, 3)), MCM_SETCOLOR, MCSC_TEXT, RGB(1, 2, 3));
    TELLS(control.GetToday(&time), MCM_GETTODAY, 0, at(time));
    TELLS(control.SetToday(&time), MCM_SETTODAY, 0, at(time));
    TELLS(control.GetMonthDelta(), MCM_GETMONTHDELTA);
    TELLS(control.SetMonthDelta(3), MCM_SETMONTHDELTA, 3);
    TELLS(control.SetDayState(2, days), MCM_SETDAYSTATE, 2, at(days[0]));
    TELLS(control.HitTest(&hit), MCM_HITTEST, 0, at(hit));
    EXPECT_EQ(hit.cbSize, sizeof hit);
    TELLS(control.GetMinReqRect(&rect), MCM_GETMINREQRECT, 0, at(rect));
    TELLS(control.GetCurrentView(), MCM_GETCURRENTVIEW);
    TELLS(control.SetCurrentView(MCMV_YEAR), MCM_SETCURRENTVIEW, 0, MCMV_YEAR);
    TELLS(control.GetCalendarCount(), MCM_GETCALENDARCOUNT);
    TELLS(control.GetCalendarBorder(), MCM_GETCALENDARBORDER);
    TELLS(control.SetCalendarBorder(4), MCM_SETCALENDARBORDER, TRUE, 4);
    TELLS(control.SetCalendarBorderDefault(), MCM_SETCALENDARBORDER, FALSE, 0);
    TELLS(control.GetCalendarGridInfo(&grid), MCM_GETCALENDARGRIDINFO, 0, at(grid));
    EXPECT_EQ(grid.cbSize, sizeof grid);
    TELLS(control.GetCALID(), MCM_GETCALID);
    TELLS(control.SizeRectToMin(&rect), MCM_SIZERECTTOMIN, 0, at(rect));
    listener.take();
    EXPECT_TRUE(control.SetCALID(2));
    EXPECT_EQ(listener.take().back().wParam, 2U);
    BOOL local = FALSE;
    listener.answer = MAKELRESULT(3, 1);
    EXPECT_EQ(control.GetFirstDayOfWeek(&local), 3);
    EXPECT_TRUE(local);
    EXPECT_EQ(control.GetFirstDayOfWeek(), 3);
    int former = 0;
    EXPECT_TRUE(control.SetFirstDayOfWeek(5, &former));
    EXPECT_EQ(former, 3);
    EXPECT_EQ(listener.take().back().lParam, 5);
    EXPECT_TRUE(control.SetFirstDayOfWeek(5));
}
