// How dates go to calendars and date pickers and come back, in each of the three forms that they have.
#include <afxdtctl.h>

#include "message_listener.h"
#include "ui_test.h"

namespace {

using ui_test::HeardMessage;

const COleDateTime kFirst(2003, 4, 5, 6, 7, 8), kLast(2019, 12, 31, 23, 59, 58);
const CTime kFirstTime(2003, 4, 5, 6, 7, 8), kLastTime(2019, 12, 31, 23, 59, 58);

/// A control that is told and tells dates.
template <class Control>
struct ToldDates : ui_test::ToldControl<Control> {
    /// Answers with these dates, and notes those that come.
    void dates(UINT message, LRESULT result, int count, bool takes) {
        this->listener.answer = result;
        this->listener.look = [=, this](const HeardMessage& heard) {
            EXPECT_EQ(heard.message, message);
            parameter = heard.wParam;
            auto* const data = reinterpret_cast<SYSTEMTIME*>(heard.lParam);
            hasData = data != nullptr;
            for (int i = 0; i < count && hasData; ++i) {
                if (takes)
                    told[i] = data[i];
                else
                    data[i] = kDates[i];
            }
        };
    }
    /// The range, whose ends may be missing, asked for and set as dates and as times; `there` says which ends
    /// there are.
    void expect_ranges(DWORD there, UINT getMessage, UINT setMessage) {
        auto& dated = this->control;
        const bool hasFirst = (there & GDTR_MIN) != 0, hasLast = (there & GDTR_MAX) != 0;
        dates(getMessage, static_cast<LRESULT>(there), 2, false);
        COleDateTime found[2] = {kLast, kFirst};
        EXPECT_EQ(dated.GetRange(&found[0], &found[1]), there);
        EXPECT_EQ(found[0].GetStatus(), hasFirst ? COleDateTime::valid : COleDateTime::null);
        EXPECT_EQ(found[1].GetStatus(), hasLast ? COleDateTime::valid : COleDateTime::null);
        EXPECT_EQ(found[0].m_dt, hasFirst ? kFirst.m_dt : 0);
        EXPECT_EQ(found[1].m_dt, hasLast ? kLast.m_dt : 0);
        CTime times[2] = {kLastTime, kFirstTime};
        EXPECT_EQ(dated.GetRange(&times[0], &times[1]), there);
        EXPECT_EQ(times[0], hasFirst ? kFirstTime : CTime());
        EXPECT_EQ(times[1], hasLast ? kLastTime : CTime());
        dates(setMessage, 1, 2, true);
        told[0] = told[1] = {};
        EXPECT_TRUE(dated.SetRange(hasFirst ? &kFirst : nullptr, hasLast ? &kLast : nullptr));
        EXPECT_EQ(parameter, there);
        EXPECT_EQ(told[0].wYear, hasFirst ? 2003 : 0);
        EXPECT_EQ(told[1].wYear, hasLast ? 2019 : 0);
        EXPECT_TRUE(dated.SetRange(hasFirst ? &kLastTime : nullptr, hasLast ? &kFirstTime : nullptr));
        EXPECT_EQ(parameter, there);
        EXPECT_EQ(told[0].wYear, hasFirst ? 2019 : 0);
        EXPECT_EQ(told[1].wYear, hasLast ? 2003 : 0);
    }
    static constexpr SYSTEMTIME kDates[] = {{2003, 4, 0, 5, 6, 7, 8, 0}, {2019, 12, 0, 31, 23, 59, 58, 0}};
    WPARAM parameter = 0;
    bool hasData = false;
    SYSTEMTIME told[2] = {};
};

using ToldCalendarDates = ToldDates<CMonthCalCtrl>;
using ToldPickerDates = ToldDates<CDateTimeCtrl>;

COleDateTime without_date() {
    COleDateTime date;
    date.SetStatus(COleDateTime::null);
    return date;
}

void expect_date(const SYSTEMTIME& time, WORD year, WORD month, WORD day, WORD second) {
    EXPECT_EQ(time.wYear, year);
    EXPECT_EQ(time.wMonth, month);
    EXPECT_EQ(time.wDay, day);
    EXPECT_EQ(time.wSecond, second);
}

}  // namespace

TEST_F(ToldCalendarDates, OneDayIsAskedForAndSet) {
    COleDateTime date;
    CTime time;
    dates(MCM_GETCURSEL, 1, 1, false);
    EXPECT_TRUE(control.GetCurSel(date));
    EXPECT_EQ(date, kFirst);
    EXPECT_TRUE(control.GetCurSel(time));
    EXPECT_EQ(time, CTime(2003, 4, 5, 0, 0, 0)) << "a day without its time";
    dates(MCM_GETCURSEL, 0, 1, false);
    date = kLast;
    time = kLastTime;
    EXPECT_FALSE(control.GetCurSel(date));
    EXPECT_EQ(date, kLast);
    EXPECT_FALSE(control.GetCurSel(time));
    EXPECT_EQ(time, kLastTime);
    dates(MCM_SETCURSEL, 1, 1, true);
    EXPECT_TRUE(control.SetCurSel(kFirst));
    expect_date(told[0], 2003, 4, 5, 8);
    EXPECT_TRUE(control.SetCurSel(kLastTime));
    expect_date(told[0], 2019, 12, 31, 58);
    listener.take();
    EXPECT_FALSE(control.SetCurSel(without_date()));
    EXPECT_FALSE(control.SetCurSel(CTime()));
    EXPECT_TRUE(listener.take().empty()) << "no date is no day to set";
    dates(MCM_SETCURSEL, 0, 1, true);
    EXPECT_FALSE(control.SetCurSel(kFirst));
    EXPECT_FALSE(control.SetCurSel(kFirstTime));
}

TEST_F(ToldCalendarDates, TodayIsAskedForAndSet) {
    COleDateTime date;
    CTime time;
    dates(MCM_GETTODAY, 1, 1, false);
    EXPECT_TRUE(control.GetToday(date));
    EXPECT_EQ(date, kFirst);
    EXPECT_TRUE(control.GetToday(time));
    EXPECT_EQ(time, kFirstTime);
    dates(MCM_GETTODAY, 0, 1, false);
    date = kLast;
    time = kLastTime;
    EXPECT_FALSE(control.GetToday(date));
    EXPECT_FALSE(control.GetToday(time));
    EXPECT_EQ(date, kLast);
    EXPECT_EQ(time, kLastTime);
    dates(MCM_SETTODAY, 1, 1, true);
    control.SetToday(kLast);
    expect_date(told[0], 2019, 12, 31, 58);
    control.SetToday(&kFirstTime);
    expect_date(told[0], 2003, 4, 5, 8);
    control.SetToday(without_date());
    EXPECT_FALSE(hasData) << "the system's own day again";
}

TEST_F(ToldCalendarDates, ARangeOfDaysIsAskedForAndSet) {
    SYSTEMTIME raw[2] = {};
    COleDateTime dates2[2];
    CTime times[2];
    dates(MCM_GETSELRANGE, 1, 2, false);
    EXPECT_TRUE(control.GetSelRange(&raw[0], &raw[1]));
    expect_date(raw[0], 2003, 4, 5, 8);
    expect_date(raw[1], 2019, 12, 31, 58);
    EXPECT_TRUE(control.GetSelRange(dates2[0], dates2[1]));
    EXPECT_EQ(dates2[0], kFirst);
    EXPECT_EQ(dates2[1], kLast);
    EXPECT_TRUE(control.GetSelRange(times[0], times[1]));
    EXPECT_EQ(times[0], kFirstTime);
    EXPECT_EQ(times[1], kLastTime);
    EXPECT_EQ(parameter, 0U);
    dates(MCM_GETSELRANGE, 0, 2, false);
    dates2[0] = dates2[1] = COleDateTime(2000, 1, 1, 0, 0, 0);
    EXPECT_FALSE(control.GetSelRange(dates2[0], dates2[1]));
    EXPECT_EQ(dates2[0], COleDateTime(2000, 1, 1, 0, 0, 0));
    EXPECT_EQ(dates2[1], COleDateTime(2000, 1, 1, 0, 0, 0));
    dates(MCM_SETSELRANGE, 1, 2, true);
    EXPECT_TRUE(control.SetSelRange(kFirst, kLast));
    expect_date(told[0], 2003, 4, 5, 8);
    expect_date(told[1], 2019, 12, 31, 58);
    EXPECT_TRUE(control.SetSelRange(kLastTime, kFirstTime));
    expect_date(told[0], 2019, 12, 31, 58);
    expect_date(told[1], 2003, 4, 5, 8);
    EXPECT_TRUE(control.SetSelRange(&raw[0], &raw[1]));
    expect_date(told[0], 2003, 4, 5, 8);
    expect_date(told[1], 2019, 12, 31, 58);
    EXPECT_EQ(parameter, 0U);
    listener.take();
    EXPECT_FALSE(control.SetSelRange(nullptr, &raw[1]));
    EXPECT_FALSE(control.SetSelRange(&raw[0], nullptr));
    EXPECT_FALSE(control.SetSelRange(kFirst, without_date()));
    EXPECT_FALSE(control.SetSelRange(CTime(), kLastTime));
    EXPECT_TRUE(listener.take().empty());
}

TEST_F(ToldCalendarDates, EachEndOfTheWholeRangeMayBeMissing) {
    for (const DWORD there : {0, GDTR_MIN, GDTR_MAX, GDTR_MIN | GDTR_MAX}) {
        const bool hasFirst = (there & GDTR_MIN) != 0, hasLast = (there & GDTR_MAX) != 0;
        dates(MCM_GETRANGE, static_cast<LRESULT>(there), 2, false);
        SYSTEMTIME raw[2] = {{1, 1, 1, 1, 1, 1, 1, 1}, {1, 1, 1, 1, 1, 1, 1, 1}};
        EXPECT_EQ(control.GetRange(&raw[0], &raw[1]), there);
        EXPECT_EQ(raw[0].wYear, hasFirst ? 2003 : 0);
        EXPECT_EQ(raw[1].wYear, hasLast ? 2019 : 0);
        expect_ranges(there, MCM_GETRANGE, MCM_SETRANGE);
    }
}

TEST_F(ToldCalendarDates, TheMonthsThatAreShownAreAskedFor) {
    SYSTEMTIME raw[2] = {};
    COleDateTime dates2[2];
    CTime times[2];
    dates(MCM_GETMONTHRANGE, 14, 2, false);
    EXPECT_EQ(control.GetMonthRange(&raw[0], &raw[1], GMR_VISIBLE), 14);
    EXPECT_EQ(parameter, static_cast<WPARAM>(GMR_VISIBLE));
    expect_date(raw[0], 2003, 4, 5, 8);
    expect_date(raw[1], 2019, 12, 31, 58);
    EXPECT_EQ(control.GetMonthRange(dates2[0], dates2[1], GMR_DAYSTATE), 14);
    EXPECT_EQ(parameter, static_cast<WPARAM>(GMR_DAYSTATE));
    EXPECT_EQ(dates2[0], kFirst);
    EXPECT_EQ(dates2[1], kLast);
    EXPECT_EQ(control.GetMonthRange(times[0], times[1], GMR_DAYSTATE), 14);
    EXPECT_EQ(parameter, static_cast<WPARAM>(GMR_DAYSTATE));
    EXPECT_EQ(times[0], kFirstTime);
    EXPECT_EQ(times[1], kLastTime);
}

TEST_F(ToldPickerDates, TheTimeIsAskedForAndSet) {
    COleDateTime date;
    CTime time;
    dates(DTM_GETSYSTEMTIME, GDT_VALID, 1, false);
    EXPECT_TRUE(control.GetTime(date));
    EXPECT_EQ(date, kFirst);
    EXPECT_EQ(control.GetTime(time), static_cast<DWORD>(GDT_VALID));
    EXPECT_EQ(time, kFirstTime);
    dates(DTM_GETSYSTEMTIME, GDT_NONE, 1, false);
    date = kLast;
    time = kLastTime;
    EXPECT_FALSE(control.GetTime(date));
    EXPECT_EQ(date.GetStatus(), COleDateTime::null);
    EXPECT_EQ(date.m_dt, 0);
    EXPECT_EQ(control.GetTime(time), static_cast<DWORD>(GDT_NONE));
    EXPECT_EQ(time, kLastTime);
    dates(DTM_SETSYSTEMTIME, 1, 1, true);
    EXPECT_TRUE(control.SetTime(kFirst));
    EXPECT_EQ(parameter, static_cast<WPARAM>(GDT_VALID));
    expect_date(told[0], 2003, 4, 5, 8);
    EXPECT_TRUE(control.SetTime(&kLastTime));
    expect_date(told[0], 2019, 12, 31, 58);
    EXPECT_TRUE(control.SetTime(without_date()));
    EXPECT_EQ(parameter, static_cast<WPARAM>(GDT_NONE));
    EXPECT_TRUE(hasData);
    EXPECT_TRUE(control.SetTime(static_cast<CTime*>(nullptr)));
    EXPECT_EQ(parameter, static_cast<WPARAM>(GDT_NONE));
    dates(DTM_SETSYSTEMTIME, 0, 1, true);
    EXPECT_FALSE(control.SetTime(kFirst));
    EXPECT_FALSE(control.SetTime(without_date()));
}

TEST_F(ToldPickerDates, EachEndOfTheRangeMayBeMissing) {
    for (const DWORD there : {0, GDTR_MIN, GDTR_MAX, GDTR_MIN | GDTR_MAX}) {
        expect_ranges(there, DTM_GETRANGE, DTM_SETRANGE);
        dates(DTM_GETRANGE, static_cast<LRESULT>(there), 2, false);
        EXPECT_EQ(control.GetRange(static_cast<CTime*>(nullptr), nullptr), there);
    }
}

TEST_F(ToldPickerDates, YearsBeforeThoseOfCTimeAreNoTime) {
    SYSTEMTIME early = {1969, 12, 0, 31, 0, 0, 0, 0};
    listener.answer = GDTR_MIN | GDTR_MAX;
    listener.look = [&](const HeardMessage& heard) {
        reinterpret_cast<SYSTEMTIME*>(heard.lParam)[0] = early;
        reinterpret_cast<SYSTEMTIME*>(heard.lParam)[1] = {1970, 3, 0, 4, 0, 0, 0, 0};
    };
    CTime times[2] = {kLastTime, kLastTime};
    control.GetRange(&times[0], &times[1]);
    EXPECT_EQ(times[0], CTime());
    EXPECT_EQ(times[1], CTime(1970, 3, 4, 0, 0, 0));
}
