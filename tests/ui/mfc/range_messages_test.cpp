// What sliders, spins, progress bars, hot keys, dates and calendars are told by each function of their
// classes, and what comes back.
#include <afxdtctl.h>

#include "message_listener.h"
#include "ui_test.h"

namespace {

using ui_test::handle_of;
using ui_test::HeardMessage;
using ToldSpin = ui_test::ToldControl<CSpinButtonCtrl>;
using ToldSlider = ui_test::ToldControl<CSliderCtrl>;
using ToldProgress = ui_test::ToldControl<CProgressCtrl>;
using ToldHotKey = ui_test::ToldControl<CHotKeyCtrl>;
using ToldDatePicker = ui_test::ToldControl<CDateTimeCtrl>;
using ToldCalendar = ui_test::ToldControl<CMonthCalCtrl>;

}  // namespace

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
    TELLS(control.SetMonthCalFont(handle_of<HFONT>(5)), DTM_SETMCFONT, 5, TRUE);
    TELLS(control.SetMonthCalFont(handle_of<HFONT>(5), FALSE), DTM_SETMCFONT, 5, FALSE);
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
