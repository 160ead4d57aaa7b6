// CTime and CTimeSpan: a point in time and a distance of two, in seconds.
#pragma once

#include <afx.h>

#include <ctime>

class COleDateTime;

/// A distance in time, which may be negative.
class KMFC_API CTimeSpan {
public:
    CTimeSpan() = default;
    CTimeSpan(__int64 time) : m_span(time) {}
    CTimeSpan(LONG lDays, int nHours, int nMins, int nSecs)
        : m_span(nSecs + 60 * (nMins + 60 * (nHours + 24 * static_cast<__int64>(lDays)))) {}

    LONGLONG GetDays() const { return m_span / 86400; }
    LONGLONG GetTotalHours() const { return m_span / 3600; }
    LONG GetHours() const { return static_cast<LONG>(GetTotalHours() - GetDays() * 24); }
    LONGLONG GetTotalMinutes() const { return m_span / 60; }
    LONG GetMinutes() const { return static_cast<LONG>(GetTotalMinutes() - GetTotalHours() * 60); }
    LONGLONG GetTotalSeconds() const { return m_span; }
    LONG GetSeconds() const { return static_cast<LONG>(m_span - GetTotalMinutes() * 60); }
    __int64 GetTimeSpan() const { return m_span; }

    CTimeSpan operator+(CTimeSpan span) const { return m_span + span.m_span; }
    CTimeSpan operator-(CTimeSpan span) const { return m_span - span.m_span; }
    CTimeSpan& operator+=(CTimeSpan span) { return m_span += span.m_span, *this; }
    CTimeSpan& operator-=(CTimeSpan span) { return m_span -= span.m_span, *this; }
    bool operator==(const CTimeSpan& span) const { return m_span == span.m_span; }
    auto operator<=>(const CTimeSpan& span) const { return m_span <=> span.m_span; }

    /// %D days, %H hours, %M minutes, %S seconds, %% a percent sign.
    CString Format(LPCTSTR pszFormat) const;
    CString Format(UINT nID) const;

private:
    __int64 m_span = 0;
};

/// A point in time: seconds since 1970-01-01 00:00 UTC, seen in local time. 0 is none.
class KMFC_API CTime {
public:
    static CTime WINAPI GetCurrentTime() { return CTime(static_cast<__int64>(::_time64(nullptr))); }
    static BOOL WINAPI IsValidFILETIME(const FILETIME& ft);

    CTime() = default;
    CTime(__int64 time) : m_time(time) {}
    /// Local time. Throws CInvalidArgException for what is no date; `nDST` is -1 for the system's own rule.
    CTime(int nYear, int nMonth, int nDay, int nHour, int nMin, int nSec, int nDST = -1);
    CTime(const SYSTEMTIME& st, int nDST = -1);
    CTime(const FILETIME& ft, int nDST = -1);
    CTime(WORD wDosDate, WORD wDosTime, int nDST = -1);

    __int64 GetTime() const { return m_time; }
    int GetYear() const { return local().tm_year + 1900; }
    int GetMonth() const { return local().tm_mon + 1; }  ///< 1 to 12
    int GetDay() const { return local().tm_mday; }
    int GetHour() const { return local().tm_hour; }
    int GetMinute() const { return local().tm_min; }
    int GetSecond() const { return local().tm_sec; }
    int GetDayOfWeek() const { return local().tm_wday + 1; }  ///< 1 for Sunday
    /// Null for a time that the run-time library cannot show.
    tm* GetLocalTm(tm* ptm) const;
    tm* GetGmtTm(tm* ptm) const;
    bool GetAsSystemTime(SYSTEMTIME& st) const;

    CTimeSpan operator-(CTime time) const { return m_time - time.m_time; }
    CTime operator-(CTimeSpan span) const { return m_time - span.GetTimeSpan(); }
    CTime operator+(CTimeSpan span) const { return m_time + span.GetTimeSpan(); }
    CTime& operator+=(CTimeSpan span) { return m_time += span.GetTimeSpan(), *this; }
    CTime& operator-=(CTimeSpan span) { return m_time -= span.GetTimeSpan(), *this; }
    bool operator==(const CTime& time) const { return m_time == time.m_time; }
    auto operator<=>(const CTime& time) const { return m_time <=> time.m_time; }

    /// As wcsftime.
    CString Format(LPCTSTR pszFormat) const;
    CString Format(UINT nFormatID) const;
    CString FormatGmt(LPCTSTR pszFormat) const;

private:
    tm local() const;
    __int64 m_time = 0;
};
