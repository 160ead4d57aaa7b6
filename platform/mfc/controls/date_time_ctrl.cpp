#include <afxdtctl.h>

#include "date_values.h"

IMPLEMENT_DYNAMIC(CDateTimeCtrl, CWnd)

BOOL CDateTimeCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    kmfc::init_date_classes();
    return CWnd::Create(DATETIMEPICK_CLASSW, nullptr, dwStyle, rect, pParentWnd, nID);
}

BOOL CDateTimeCtrl::GetTime(COleDateTime& timeDest) const {
    SYSTEMTIME time = {};
    if (GetTime(&time) != GDT_VALID) {
        timeDest.m_dt = 0;
        timeDest.SetStatus(COleDateTime::null);
        return FALSE;
    }
    timeDest = COleDateTime(time);
    return TRUE;
}

DWORD CDateTimeCtrl::GetTime(CTime& timeDest) const {
    SYSTEMTIME time = {};
    const DWORD result = GetTime(&time);
    if (result == GDT_VALID) timeDest = kmfc::time_of(time);
    return result;
}

BOOL CDateTimeCtrl::SetTime(LPSYSTEMTIME pTimeNew) {
    if (pTimeNew != nullptr) return static_cast<BOOL>(send(DTM_SETSYSTEMTIME, GDT_VALID, pTimeNew));
    // The structure means nothing here, but some systems want one.
    SYSTEMTIME unused = {};
    ::GetLocalTime(&unused);
    return static_cast<BOOL>(send(DTM_SETSYSTEMTIME, GDT_NONE, &unused));
}

BOOL CDateTimeCtrl::SetTime(const COleDateTime& timeNew) {
    SYSTEMTIME time = {};
    return SetTime(kmfc::system_time(&timeNew, time));
}

BOOL CDateTimeCtrl::SetTime(const CTime* pTimeNew) {
    SYSTEMTIME time = {};
    return SetTime(kmfc::system_time(pTimeNew, time));
}

DWORD CDateTimeCtrl::GetRange(COleDateTime* pMinRange, COleDateTime* pMaxRange) const {
    SYSTEMTIME ends[2] = {};
    const auto flags = static_cast<DWORD>(send(DTM_GETRANGE, 0, ends));
    kmfc::give(flags & GDTR_MIN, ends[0], pMinRange);
    kmfc::give(flags & GDTR_MAX, ends[1], pMaxRange);
    return flags;
}

DWORD CDateTimeCtrl::GetRange(CTime* pMinRange, CTime* pMaxRange) const {
    SYSTEMTIME ends[2] = {};
    const auto flags = static_cast<DWORD>(send(DTM_GETRANGE, 0, ends));
    kmfc::give(flags & GDTR_MIN, ends[0], pMinRange);
    kmfc::give(flags & GDTR_MAX, ends[1], pMaxRange);
    return flags;
}

BOOL CDateTimeCtrl::set_range(const SYSTEMTIME* first, const SYSTEMTIME* last) {
    const kmfc::DateRange range(first, last);
    return static_cast<BOOL>(send(DTM_SETRANGE, range.flags, range.ends));
}

BOOL CDateTimeCtrl::SetRange(const COleDateTime* pMinRange, const COleDateTime* pMaxRange) {
    SYSTEMTIME first = {}, last = {};
    return set_range(kmfc::system_time(pMinRange, first), kmfc::system_time(pMaxRange, last));
}

BOOL CDateTimeCtrl::SetRange(const CTime* pMinRange, const CTime* pMaxRange) {
    SYSTEMTIME first = {}, last = {};
    return set_range(kmfc::system_time(pMinRange, first), kmfc::system_time(pMaxRange, last));
}

CMonthCalCtrl* CDateTimeCtrl::GetMonthCalCtrl() const {
    const HWND calendar = reinterpret_cast<HWND>(send(DTM_GETMONTHCAL));
    // Some systems keep a calendar that is closed.
    return ::IsWindowVisible(calendar) ? static_cast<CMonthCalCtrl*>(CWnd::FromHandle(calendar)) : nullptr;
}

CFont* CDateTimeCtrl::GetMonthCalFont() const {
    return CFont::FromHandle(reinterpret_cast<HFONT>(send(DTM_GETMCFONT)));
}

BOOL CDateTimeCtrl::GetDateTimePickerInfo(LPDATETIMEPICKERINFO pDateTimePickerInfo) const {
    if (pDateTimePickerInfo == nullptr) return FALSE;
    *pDateTimePickerInfo = {};
    pDateTimePickerInfo->cbSize = sizeof *pDateTimePickerInfo;
    send(DTM_GETDATETIMEPICKERINFO, 0, pDateTimePickerInfo);
    // A system that doesn't know the question leaves the answer empty.
    return !::IsRectEmpty(&pDateTimePickerInfo->rcButton) || pDateTimePickerInfo->stateButton != 0;
}
