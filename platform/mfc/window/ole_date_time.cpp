#include <kmfc/ole_date_time.h>

#include <vector>

COleDateTime COleDateTime::GetCurrentTime() {
    SYSTEMTIME time;
    ::GetLocalTime(&time);
    return COleDateTime(time);
}

COleDateTime::COleDateTime(__int64 timeSrc) : m_status(invalid) {
    SYSTEMTIME time;
    if (CTime(timeSrc).GetAsSystemTime(time)) *this = COleDateTime(time);
}

COleDateTime::COleDateTime(const SYSTEMTIME& systimeSrc) {
    SYSTEMTIME time = systimeSrc;
    time.wMilliseconds = 0;
    // The system takes two digits for a year of this century or the last one.
    const bool isYear = time.wYear >= 100 && time.wYear <= 9999;
    m_status = isYear && ::SystemTimeToVariantTime(&time, &m_dt) ? valid : invalid;
    if (m_status == invalid) m_dt = 0;
}

COleDateTime::COleDateTime(int nYear, int nMonth, int nDay, int nHour, int nMin, int nSec) {
    SetDateTime(nYear, nMonth, nDay, nHour, nMin, nSec);
}

int COleDateTime::SetDateTime(int nYear, int nMonth, int nDay, int nHour, int nMin, int nSec) {
    constexpr int kDays[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    const bool isLeap = nYear % 4 == 0 && (nYear % 100 != 0 || nYear % 400 == 0);
    const bool isMonth = nYear >= 100 && nYear <= 9999 && nMonth >= 1 && nMonth <= 12;
    const bool isDay = isMonth && nDay >= 1 && nDay <= kDays[nMonth - 1] + (nMonth == 2 && isLeap);
    const bool isTime = nHour >= 0 && nHour <= 23 && nMin >= 0 && nMin <= 59 && nSec >= 0 && nSec <= 59;
    m_dt = 0;
    m_status = invalid;
    if (!isDay || !isTime) return m_status;
    SYSTEMTIME time = {};
    time.wYear = static_cast<WORD>(nYear);
    time.wMonth = static_cast<WORD>(nMonth);
    time.wDay = static_cast<WORD>(nDay);
    time.wHour = static_cast<WORD>(nHour);
    time.wMinute = static_cast<WORD>(nMin);
    time.wSecond = static_cast<WORD>(nSec);
    *this = COleDateTime(time);
    return m_status;
}

int COleDateTime::SetTime(int nHour, int nMin, int nSec) {
    // The first day of the count stands for no date.
    return SetDateTime(1899, 12, 30, nHour, nMin, nSec);
}

bool COleDateTime::GetAsSystemTime(SYSTEMTIME& sysTime) const {
    return m_status == valid && ::VariantTimeToSystemTime(m_dt, &sysTime);
}

int COleDateTime::part(WORD SYSTEMTIME::*member) const {
    SYSTEMTIME time;
    return GetAsSystemTime(time) ? time.*member : static_cast<int>(error);
}

int COleDateTime::GetDayOfWeek() const {
    const int day = part(&SYSTEMTIME::wDayOfWeek);
    return day != error ? day + 1 : day;
}

int COleDateTime::GetDayOfYear() const {
    if (m_status != valid) return error;
    return static_cast<int>(static_cast<LONGLONG>(m_dt) -
                            static_cast<LONGLONG>(COleDateTime(GetYear(), 1, 1, 0, 0, 0).m_dt)) +
           1;
}

bool COleDateTime::ParseDateTime(LPCTSTR lpszDate, DWORD dwFlags, LCID lcid) {
    m_dt = 0;
    m_status = invalid;
    if (lpszDate == nullptr || FAILED(::VarDateFromStr(const_cast<LPOLESTR>(lpszDate), lcid, dwFlags, &m_dt)))
        return false;
    m_status = valid;
    return true;
}

CString COleDateTime::Format(DWORD dwFlags, LCID lcid) const {
    CString text;
    BSTR written = nullptr;
    if (m_status != valid || FAILED(::VarBstrFromDate(m_dt, lcid, dwFlags, &written))) return text;
    text = CString(written, static_cast<int>(::SysStringLen(written)));
    ::SysFreeString(written);
    return text;
}

CString COleDateTime::Format(LPCTSTR lpszFormat) const {
    SYSTEMTIME time;
    if (lpszFormat == nullptr || *lpszFormat == 0 || !GetAsSystemTime(time)) return CString();
    tm parts = {};
    parts.tm_year = time.wYear - 1900;
    parts.tm_mon = time.wMonth - 1;
    parts.tm_mday = time.wDay;
    parts.tm_wday = time.wDayOfWeek;
    parts.tm_yday = GetDayOfYear() - 1;
    parts.tm_hour = time.wHour;
    parts.tm_min = time.wMinute;
    parts.tm_sec = time.wSecond;
    std::vector<wchar_t> text(4096);
    const size_t length = ::wcsftime(text.data(), text.size(), lpszFormat, &parts);
    return CString(text.data(), static_cast<int>(length));
}
