#include <kmfc/time.h>

#include <vector>

#include <kmfc/string_format.h>

namespace {

tm empty_time() {
    tm time = {};
    time.tm_mday = 1;
    return time;
}

__int64 seconds_of(int year, int month, int day, int hour, int minute, int second, int summer) {
    const bool sound = year >= 1900 && month >= 1 && month <= 12 && day >= 1 && day <= 31 && hour >= 0 &&
                       hour <= 23 && minute >= 0 && minute <= 59 && second >= 0 && second <= 59;
    ENSURE_ARG(sound);
    tm time = {};
    time.tm_year = year - 1900;
    time.tm_mon = month - 1;
    time.tm_mday = day;
    time.tm_hour = hour;
    time.tm_min = minute;
    time.tm_sec = second;
    time.tm_isdst = summer;
    const __int64 result = ::_mktime64(&time);
    ENSURE_ARG(result != -1);
    return result;
}

CString format_time(LPCTSTR format, const tm& time) {
    if (format == nullptr || *format == 0) return CString();
    // A result of no characters may be meant, so what is formatted has one character more.
    const CString marked = CString(format) + L'.';
    for (size_t room = 128;; room *= 2) {
        std::vector<wchar_t> text(room);
        const size_t length = ::wcsftime(text.data(), room, marked, &time);
        if (length != 0) return CString(text.data(), static_cast<int>(length - 1));
        if (room > 65536) return CString();
    }
}

}  // namespace

CString CTimeSpan::Format(LPCTSTR pszFormat) const {
    CString text, number;
    for (LPCTSTR at = pszFormat; at != nullptr && *at != 0; ++at) {
        if (*at != L'%' || at[1] == 0) {
            text += *at;
            continue;
        }
        switch (*++at) {
            case L'D': number.Format(L"%lld", GetDays()); break;
            case L'H': number.Format(L"%02ld", GetHours()); break;
            case L'M': number.Format(L"%02ld", GetMinutes()); break;
            case L'S': number.Format(L"%02ld", GetSeconds()); break;
            default: number = *at; break;
        }
        text += number;
    }
    return text;
}

CString CTimeSpan::Format(UINT nID) const {
    CString format;
    return format.LoadString(nID) ? Format(format) : CString();
}

BOOL CTime::IsValidFILETIME(const FILETIME& ft) {
    FILETIME local;
    SYSTEMTIME time;
    return ::FileTimeToLocalFileTime(&ft, &local) && ::FileTimeToSystemTime(&local, &time);
}

CTime::CTime(int nYear, int nMonth, int nDay, int nHour, int nMin, int nSec, int nDST)
    : m_time(seconds_of(nYear, nMonth, nDay, nHour, nMin, nSec, nDST)) {}

CTime::CTime(const SYSTEMTIME& st, int nDST)
    : m_time(st.wYear < 1900
                 ? 0
                 : seconds_of(st.wYear, st.wMonth, st.wDay, st.wHour, st.wMinute, st.wSecond, nDST)) {}

CTime::CTime(const FILETIME& ft, int nDST) {
    FILETIME local;
    SYSTEMTIME time;
    if (::FileTimeToLocalFileTime(&ft, &local) && ::FileTimeToSystemTime(&local, &time))
        *this = CTime(time, nDST);
}

CTime::CTime(WORD wDosDate, WORD wDosTime, int nDST) {
    FILETIME time;
    SYSTEMTIME parts;
    if (::DosDateTimeToFileTime(wDosDate, wDosTime, &time) && ::FileTimeToSystemTime(&time, &parts))
        *this = CTime(parts, nDST);
}

tm* CTime::GetLocalTm(tm* ptm) const {
    return ptm != nullptr && ::_localtime64_s(ptm, &m_time) == 0 ? ptm : nullptr;
}

tm* CTime::GetGmtTm(tm* ptm) const {
    return ptm != nullptr && ::_gmtime64_s(ptm, &m_time) == 0 ? ptm : nullptr;
}

tm CTime::local() const {
    tm time = empty_time();
    return GetLocalTm(&time) != nullptr ? time : empty_time();
}

bool CTime::GetAsSystemTime(SYSTEMTIME& st) const {
    tm time;
    if (GetLocalTm(&time) == nullptr) return false;
    st = {};
    st.wYear = static_cast<WORD>(time.tm_year + 1900);
    st.wMonth = static_cast<WORD>(time.tm_mon + 1);
    st.wDayOfWeek = static_cast<WORD>(time.tm_wday);
    st.wDay = static_cast<WORD>(time.tm_mday);
    st.wHour = static_cast<WORD>(time.tm_hour);
    st.wMinute = static_cast<WORD>(time.tm_min);
    st.wSecond = static_cast<WORD>(time.tm_sec);
    return true;
}

CString CTime::Format(LPCTSTR pszFormat) const {
    tm time;
    return GetLocalTm(&time) != nullptr ? format_time(pszFormat, time) : CString();
}

CString CTime::Format(UINT nFormatID) const {
    CString format;
    return format.LoadString(nFormatID) ? Format(format) : CString();
}

CString CTime::FormatGmt(LPCTSTR pszFormat) const {
    tm time;
    return GetGmtTm(&time) != nullptr ? format_time(pszFormat, time) : CString();
}
