// COleDateTime and COleDateTimeSpan: the system's DATE, in days since 1899-12-30.
#pragma once

#include <afx.h>
#include <kmfc/time.h>

#include <oleauto.h>

/// A distance of dates in days, with the state that its making left.
class KMFC_API COleDateTimeSpan {
public:
    enum DateTimeSpanStatus { valid = 0, invalid = 1, null = 2 };
    COleDateTimeSpan() = default;
    COleDateTimeSpan(double dblSpanSrc) : m_span(dblSpanSrc) {}
    COleDateTimeSpan(LONG lDays, int nHours, int nMins, int nSecs)
        : m_span(lDays + (nHours + (nMins + nSecs / 60.0) / 60.0) / 24.0) {}
    double m_span = 0;
    DateTimeSpanStatus m_status = valid;
    DateTimeSpanStatus GetStatus() const { return m_status; }
    double GetTotalDays() const { return m_span; }
    double GetTotalHours() const { return m_span * 24; }
    double GetTotalMinutes() const { return m_span * 1440; }
    double GetTotalSeconds() const { return m_span * 86400; }
};

/// A date and time without a time zone, of the years 100 to 9999. One that could not be made is invalid.
class KMFC_API COleDateTime {
public:
    enum DateTimeStatus { error = -1, valid = 0, invalid = 1, null = 2 };

    static COleDateTime WINAPI GetCurrentTime();

    COleDateTime() = default;
    COleDateTime(DATE dtSrc) : m_dt(dtSrc) {}
    COleDateTime(__int64 timeSrc);
    COleDateTime(const SYSTEMTIME& systimeSrc);
    COleDateTime(int nYear, int nMonth, int nDay, int nHour, int nMin, int nSec);

    DATE m_dt = 0;
    DateTimeStatus m_status = valid;

    DateTimeStatus GetStatus() const { return m_status; }
    void SetStatus(DateTimeStatus status) { m_status = status; }
    bool GetAsSystemTime(SYSTEMTIME& sysTime) const;
    // Each is `error` (-1) for a date that is not valid.
    int GetYear() const { return part(&SYSTEMTIME::wYear); }
    int GetMonth() const { return part(&SYSTEMTIME::wMonth); }
    int GetDay() const { return part(&SYSTEMTIME::wDay); }
    int GetHour() const { return part(&SYSTEMTIME::wHour); }
    int GetMinute() const { return part(&SYSTEMTIME::wMinute); }
    int GetSecond() const { return part(&SYSTEMTIME::wSecond); }
    int GetDayOfWeek() const;  ///< 1 for Sunday
    int GetDayOfYear() const;  ///< 1 to 366

    // 0 when set, else the status that results.
    int SetDateTime(int nYear, int nMonth, int nDay, int nHour, int nMin, int nSec);
    int SetDate(int nYear, int nMonth, int nDay) { return SetDateTime(nYear, nMonth, nDay, 0, 0, 0); }
    int SetTime(int nHour, int nMin, int nSec);
    /// By the rules of the locale; false for a text that is no date.
    bool ParseDateTime(LPCTSTR lpszDate, DWORD dwFlags = 0, LCID lcid = LANG_USER_DEFAULT);

    operator DATE() const { return m_dt; }
    COleDateTime operator+(COleDateTimeSpan span) const { return m_dt + span.m_span; }
    COleDateTime operator-(COleDateTimeSpan span) const { return m_dt - span.m_span; }
    COleDateTimeSpan operator-(const COleDateTime& date) const { return m_dt - date.m_dt; }
    // Of two that are valid; false for others.
    bool operator==(const COleDateTime& date) const { return m_status == date.m_status && m_dt == date.m_dt; }
    bool operator<(const COleDateTime& date) const { return both(date) && m_dt < date.m_dt; }
    bool operator>(const COleDateTime& date) const { return both(date) && m_dt > date.m_dt; }
    bool operator<=(const COleDateTime& date) const { return both(date) && m_dt <= date.m_dt; }
    bool operator>=(const COleDateTime& date) const { return both(date) && m_dt >= date.m_dt; }

    /// As the locale writes it (VAR_ flags), or as wcsftime. Empty for none that is valid.
    CString Format(DWORD dwFlags = 0, LCID lcid = LANG_USER_DEFAULT) const;
    CString Format(LPCTSTR lpszFormat) const;

private:
    int part(WORD SYSTEMTIME::*member) const;
    bool both(const COleDateTime& other) const { return m_status == valid && other.m_status == valid; }
};
