// Exchange with lists, combo boxes, scroll bars and dates: both ways, and how ranges are told.
#include <afxcmn.h>
#include <afxdtctl.h>
#include <afxext.h>

#include "exchange_dialog.h"

namespace {

constexpr int kList = 51, kCombo = 52, kDropped = 53, kBar = 54, kDate = 55, kMonth = 56;

struct ExchangeControls : ui_test::Exchange<401> {
    ExchangeControls() {
        const CRect place(0, 0, 150, 100);
        list.Create(WS_CHILD, place, &dialog, kList);
        combo.Create(WS_CHILD | CBS_DROPDOWN, place, &dialog, kCombo);
        dropped.Create(WS_CHILD | CBS_DROPDOWNLIST, place, &dialog, kDropped);
        bar.Create(WS_CHILD | SBS_HORZ, place, &dialog, kBar);
        date.Create(WS_CHILD | DTS_SHOWNONE, place, &dialog, kDate);
        month.Create(WS_CHILD, CRect(0, 0, 300, 250), &dialog, kMonth);
        for (const wchar_t* text : {L"layers", L"layer", L"line"}) {
            list.AddString(text);
            combo.AddString(text);
            dropped.AddString(text);
        }
        bar.SetScrollRange(0, 50);
    }

    CListBox list;
    CComboBox combo, dropped;
    CScrollBar bar;
    CDateTimeCtrl date;
    CMonthCalCtrl month;
};

}  // namespace

TEST_F(ExchangeControls, ListsAndComboBoxesByPlace) {
    int inList = 2, inCombo = 1;
    const auto exchange = [&](CDataExchange* dx) {
        DDX_LBIndex(dx, kList, inList);
        DDX_CBIndex(dx, kDropped, inCombo);
    };
    EXPECT_TRUE(exchanges(FALSE, exchange));
    EXPECT_EQ(list.GetCurSel(), 2);
    EXPECT_EQ(dropped.GetCurSel(), 1);
    list.SetCurSel(0);
    dropped.SetCurSel(-1);
    EXPECT_TRUE(exchanges(TRUE, exchange));
    EXPECT_EQ(inList, 0);
    EXPECT_EQ(inCombo, -1);
}

TEST_F(ExchangeControls, ComboBoxesByExactText) {
    CString text(L"layer");
    const auto exchange = [&](CDataExchange* dx) { DDX_CBStringExact(dx, kDropped, text); };
    EXPECT_TRUE(exchanges(FALSE, exchange));
    EXPECT_EQ(dropped.GetCurSel(), 1) << "not the first that begins so";
    text = L"lay";
    EXPECT_TRUE(exchanges(FALSE, exchange));
    EXPECT_EQ(dropped.GetCurSel(), 1) << "what is not there changes nothing";
    dropped.SetCurSel(2);
    EXPECT_TRUE(exchanges(TRUE, exchange));
    EXPECT_EQ(text, L"line");
}

TEST_F(ExchangeControls, TextsByTheirBeginning) {
    CString inList(L"lay"), inCombo(L"li");
    const auto exchange = [&](CDataExchange* dx) {
        DDX_LBString(dx, kList, inList);
        DDX_CBString(dx, kCombo, inCombo);
    };
    EXPECT_TRUE(exchanges(FALSE, exchange));
    EXPECT_EQ(list.GetCurSel(), 0);
    EXPECT_EQ(combo.GetCurSel(), 2);
    inCombo = L"typed";
    EXPECT_TRUE(exchanges(FALSE, exchange));
    EXPECT_EQ(ui_test::text_of(combo.m_hWnd), L"typed") << "any text can stand in it";
    list.SetCurSel(1);
    EXPECT_TRUE(exchanges(TRUE, exchange));
    EXPECT_EQ(inList, L"layer");
    EXPECT_EQ(inCombo, L"typed");
    list.SetCurSel(-1);
    EXPECT_TRUE(exchanges(TRUE, exchange));
    EXPECT_EQ(inList, L"");
}

TEST_F(ExchangeControls, ScrollBarsByPosition) {
    int place = 30;
    const auto exchange = [&](CDataExchange* dx) { DDX_Scroll(dx, kBar, place); };
    EXPECT_TRUE(exchanges(FALSE, exchange));
    EXPECT_EQ(bar.GetScrollPos(), 30);
    bar.SetScrollPos(7);
    EXPECT_TRUE(exchanges(TRUE, exchange));
    EXPECT_EQ(place, 7);
}

TEST_F(ExchangeControls, DatesOfEachKindBothWays) {
    CTime time(2003, 4, 5, 6, 7, 8), chosen(2004, 5, 6, 0, 0, 0);
    const auto times = [&](CDataExchange* dx) {
        DDX_DateTimeCtrl(dx, kDate, time);
        DDX_MonthCalCtrl(dx, kMonth, chosen);
    };
    EXPECT_TRUE(exchanges(FALSE, times));
    COleDateTime shown;
    EXPECT_TRUE(date.GetTime(shown));
    EXPECT_EQ(shown, COleDateTime(2003, 4, 5, 6, 7, 8));
    EXPECT_TRUE(month.GetCurSel(shown));
    EXPECT_EQ(shown.GetMonth(), 5);
    EXPECT_EQ(shown.GetDay(), 6);
    COleDateTime day(2005, 6, 7, 8, 9, 10), other(2006, 7, 8, 0, 0, 0);
    const auto dates = [&](CDataExchange* dx) {
        DDX_DateTimeCtrl(dx, kDate, day);
        DDX_MonthCalCtrl(dx, kMonth, other);
    };
    EXPECT_TRUE(exchanges(FALSE, dates));
    EXPECT_TRUE(exchanges(TRUE, times));
    EXPECT_EQ(time, CTime(2005, 6, 7, 8, 9, 10));
    EXPECT_EQ(chosen, CTime(2006, 7, 8, 0, 0, 0));
    date.SetTime(static_cast<const CTime*>(nullptr));
    EXPECT_TRUE(exchanges(TRUE, times));
    EXPECT_EQ(time, CTime()) << "none is chosen";
    CString text = COleDateTime(2010, 11, 12, 0, 0, 0).Format(VAR_DATEVALUEONLY), calendar = text;
    const auto texts = [&](CDataExchange* dx) {
        DDX_DateTimeCtrl(dx, kDate, text);
        DDX_MonthCalCtrl(dx, kMonth, calendar);
    };
    EXPECT_TRUE(exchanges(FALSE, texts));
    EXPECT_TRUE(date.GetTime(shown));
    EXPECT_EQ(shown.GetYear(), 2010);
    EXPECT_EQ(shown.GetMonth(), 11);
    EXPECT_EQ(shown.GetDay(), 12);
    text = calendar = L"";
    EXPECT_TRUE(exchanges(TRUE, texts));
    EXPECT_EQ(text, ui_test::text_of(date.m_hWnd));
    EXPECT_NE(text, L"");
    EXPECT_EQ(calendar, COleDateTime(2010, 11, 12, 0, 0, 0).Format(VAR_DATEVALUEONLY));
    text = L"no date at all";
    EXPECT_TRUE(exchanges(FALSE, texts));
    EXPECT_NE(date.GetTime(shown) && shown.GetStatus() == COleDateTime::valid, TRUE) << "none is shown";
}

TEST_F(ExchangeControls, RangesOfDatesAreToldByBothEnds) {
    const COleDateTime first(2000, 2, 3, 0, 0, 0), last(2000, 4, 5, 0, 0, 0);
    const auto prompt = [](const CString& low, const CString& high) {
        CString text;
        AfxFormatString2(text, AFX_IDP_PARSE_INT_RANGE, low, high);
        return text;
    };
    COleDateTime value(2000, 2, 2, 23, 0, 0);
    const auto check = [&](const COleDateTime* from, const COleDateTime* to) {
        return [&value, from, to](CDataExchange* dx) { DDV_MinMaxDateTime(dx, value, from, to); };
    };
    EXPECT_EQ(told(check(&first, &last)), prompt(first.Format(), last.Format()));
    EXPECT_EQ(told(check(&first, nullptr)), prompt(first.Format(), L""));
    EXPECT_TRUE(exchanges(TRUE, check(nullptr, &last)));
    value = first;
    EXPECT_TRUE(exchanges(TRUE, check(&first, &last))) << "the ends belong to it";
    value = last;
    EXPECT_TRUE(exchanges(TRUE, check(&first, &last)));
    value = COleDateTime(2000, 4, 5, 0, 0, 1);
    EXPECT_EQ(told(check(nullptr, &last)), prompt(L"", last.Format()));
    EXPECT_TRUE(exchanges(TRUE, check(&first, nullptr)));
    value.SetStatus(COleDateTime::null);
    EXPECT_TRUE(exchanges(TRUE, check(&first, &last))) << "no date is in no range";
    const CTime from(2000, 2, 3, 0, 0, 0), to(2000, 4, 5, 0, 0, 0);
    CTime time(2000, 4, 6, 0, 0, 0);
    const auto written = [](int m, int d) { return COleDateTime(2000, m, d, 0, 0, 0).Format(); };
    EXPECT_EQ(told([&](CDataExchange* dx) { DDV_MinMaxDateTime(dx, time, &from, &to); }),
              prompt(written(2, 3), written(4, 5)));
    EXPECT_EQ(told([&](CDataExchange* dx) { DDV_MinMaxMonth(dx, time, &from, &to); }),
              prompt(written(2, 3), written(4, 5)));
    value = COleDateTime(1999, 1, 1, 0, 0, 0);
    EXPECT_EQ(told([&](CDataExchange* dx) { DDV_MinMaxMonth(dx, value, &first, &last); }),
              prompt(first.Format(), last.Format()));
    time = CTime();
    EXPECT_TRUE(exchanges(TRUE, [&](CDataExchange* dx) { DDV_MinMaxMonth(dx, time, &from, &to); }));
}

TEST_F(ExchangeControls, RangesOfDatesBecomeThoseOfTheControl) {
    const COleDateTime first(2000, 2, 3, 0, 0, 0), last(2000, 4, 5, 0, 0, 0);
    const CTime from(2001, 2, 3, 0, 0, 0), to(2001, 4, 5, 0, 0, 0);
    COleDateTime value(2000, 3, 1, 0, 0, 0), begin, end;
    CTime time(2001, 3, 1, 0, 0, 0);
    EXPECT_TRUE(exchanges(FALSE, [&](CDataExchange* dx) {
        DDX_DateTimeCtrl(dx, kDate, value);
        DDV_MinMaxDateTime(dx, value, &first, &last);
    }));
    EXPECT_EQ(date.GetRange(&begin, &end), static_cast<DWORD>(GDTR_MIN | GDTR_MAX));
    EXPECT_EQ(begin, first);
    EXPECT_EQ(end, last);
    EXPECT_TRUE(exchanges(FALSE, [&](CDataExchange* dx) {
        DDX_MonthCalCtrl(dx, kMonth, time);
        DDV_MinMaxMonth(dx, time, &from, &to);
    }));
    EXPECT_EQ(month.GetRange(&begin, &end), static_cast<DWORD>(GDTR_MIN | GDTR_MAX));
    EXPECT_EQ(begin.GetYear(), 2001);
    EXPECT_EQ(begin.GetMonth(), 2);
    EXPECT_EQ(end.GetMonth(), 4);
    EXPECT_EQ(end.GetDay(), 5);
    EXPECT_TRUE(exchanges(FALSE, [&](CDataExchange* dx) {
        DDX_MonthCalCtrl(dx, kMonth, value);
        DDV_MinMaxMonth(dx, value, &first, nullptr);
    }));
    EXPECT_EQ(month.GetRange(&begin, &end), static_cast<DWORD>(GDTR_MIN));
    EXPECT_EQ(begin, first);
    // Without a control before it there is nothing to set.
    EXPECT_TRUE(exchanges(FALSE, [&](CDataExchange* dx) { DDV_MinMaxDateTime(dx, value, &first, &last); }));
}

TEST_F(ExchangeControls, CalendarsTellTheirSelectionsRangesAndToday) {
    CTime time;
    const COleDateTime today(2011, 12, 13, 0, 0, 0);
    month.SetToday(today);
    EXPECT_TRUE(month.GetToday(time));
    EXPECT_EQ(time, CTime(2011, 12, 13, 0, 0, 0));
    const CTime other(2012, 1, 2, 0, 0, 0);
    month.SetToday(&other);
    COleDateTime told_;
    EXPECT_TRUE(month.GetToday(told_));
    EXPECT_EQ(told_.GetYear(), 2012);
    EXPECT_EQ(told_.GetDay(), 2);
    const COleDateTime first(2012, 1, 5, 0, 0, 0), last(2012, 2, 6, 0, 0, 0);
    EXPECT_TRUE(month.SetRange(&first, &last));
    COleDateTime begin, end;
    EXPECT_EQ(month.GetRange(&begin, &end), static_cast<DWORD>(GDTR_MIN | GDTR_MAX));
    EXPECT_EQ(begin, first);
    EXPECT_EQ(end, last);
    EXPECT_GE(month.GetMonthRange(begin, end, GMR_VISIBLE), 1);
    EXPECT_LE(begin, end);
    CMonthCalCtrl many;
    many.Create(WS_CHILD | MCS_MULTISELECT, CRect(0, 0, 300, 250), &dialog, 60);
    many.SetMaxSelCount(10);
    SYSTEMTIME from = {2012, 3, 0, 4, 0, 0, 0, 0}, to = {2012, 3, 0, 8, 0, 0, 0, 0}, a = {}, b = {};
    EXPECT_TRUE(many.SetSelRange(&from, &to));
    EXPECT_TRUE(many.GetSelRange(&a, &b));
    EXPECT_EQ(a.wDay, 4);
    EXPECT_EQ(b.wDay, 8);
    EXPECT_EQ(a.wMonth, 3);
    CRect least(0, 0, 0, 0);
    EXPECT_TRUE(month.SizeMinReq(FALSE));
    month.GetWindowRect(&least);
    CRect wanted;
    EXPECT_TRUE(month.GetMinReqRect(&wanted));
    EXPECT_EQ(least.Size(), wanted.Size());
}

TEST_F(ExchangeControls, ARangeMayBeOpenAtEitherEnd) {
    const COleDateTime first(2000, 2, 3, 0, 0, 0), unset(1990, 1, 1, 0, 0, 0);
    COleDateTime begin = unset, end = unset;
    CTime from, to;
    EXPECT_TRUE(date.SetRange(&first, nullptr));
    EXPECT_EQ(date.GetRange(&begin, &end), static_cast<DWORD>(GDTR_MIN));
    EXPECT_EQ(begin, first);
    EXPECT_NE(end.GetStatus(), COleDateTime::valid);
    EXPECT_EQ(date.GetRange(&from, &to), static_cast<DWORD>(GDTR_MIN));
    EXPECT_EQ(from, CTime(2000, 2, 3, 0, 0, 0));
    EXPECT_EQ(to, CTime());
    EXPECT_TRUE(date.SetRange(nullptr, &first));
    EXPECT_EQ(date.GetRange(&begin, &end), static_cast<DWORD>(GDTR_MAX));
    EXPECT_NE(begin.GetStatus(), COleDateTime::valid);
    EXPECT_EQ(end, first);
}

TEST(DateDistances, AreMadeOfDaysHoursMinutesAndSeconds) {
    EXPECT_DOUBLE_EQ(COleDateTimeSpan(2, 6, 0, 0).m_span, 2.25);
    EXPECT_DOUBLE_EQ(COleDateTimeSpan(0, 0, 36, 0).m_span, 0.025);
    EXPECT_DOUBLE_EQ(COleDateTimeSpan(0, 0, 0, 864).m_span, 0.01);
    EXPECT_DOUBLE_EQ(COleDateTimeSpan(1, 2, 3, 4).m_span, 1 + (2 * 3600 + 3 * 60 + 4) / 86400.0);
}
