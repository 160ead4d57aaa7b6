#include <afxdtctl.h>

#include "date_values.h"

IMPLEMENT_DYNAMIC(CMonthCalCtrl, CWnd)

using kmfc::DateRange;
using kmfc::give;
using kmfc::system_time;

BOOL CMonthCalCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    kmfc::init_date_classes();
    return CWnd::Create(MONTHCAL_CLASSW, nullptr, dwStyle, rect, pParentWnd, nID);
}

BOOL CMonthCalCtrl::Create(DWORD dwStyle, const POINT& pt, CWnd* pParentWnd, UINT nID) {
    if (!Create(dwStyle, CRect(pt.x, pt.y, pt.x, pt.y), pParentWnd, nID)) return FALSE;
    SizeMinReq();
    return TRUE;
}

BOOL CMonthCalCtrl::GetCurSel(COleDateTime& refDateTime) const {
    SYSTEMTIME time = {};
    const BOOL found = GetCurSel(&time);
    if (found) give(true, time, &refDateTime);
    return found;
}

BOOL CMonthCalCtrl::GetCurSel(CTime& refDateTime) const {
    SYSTEMTIME time = {};
    const BOOL found = GetCurSel(&time);
    // The control tells a day: what else stands in the structure is not meant.
    time.wHour = time.wMinute = time.wSecond = time.wMilliseconds = 0;
    if (found) give(true, time, &refDateTime);
    return found;
}

BOOL CMonthCalCtrl::SetCurSel(const COleDateTime& refDateTime) {
    SYSTEMTIME time = {};
    return system_time(&refDateTime, time) != nullptr && SetCurSel(&time);
}

BOOL CMonthCalCtrl::SetCurSel(const CTime& refDateTime) {
    SYSTEMTIME time = {};
    return system_time(&refDateTime, time) != nullptr && SetCurSel(&time);
}

namespace {

/// Asks for two dates, and hands them out.
template <class Ask, class T>
BOOL ask_two(Ask ask, T* first, T* last) {
    SYSTEMTIME ends[2] = {};
    const BOOL found = ask(ends);
    if (found) give(true, ends[0], first), give(true, ends[1], last);
    return found;
}

}  // namespace

BOOL CMonthCalCtrl::GetSelRange(LPSYSTEMTIME pMinRange, LPSYSTEMTIME pMaxRange) const {
    return ask_two([this](auto* ends) { return get(MCM_GETSELRANGE, 0, ends); }, pMinRange, pMaxRange);
}
BOOL CMonthCalCtrl::GetSelRange(COleDateTime& refMinRange, COleDateTime& refMaxRange) const {
    return ask_two([this](auto* ends) { return get(MCM_GETSELRANGE, 0, ends); }, &refMinRange, &refMaxRange);
}
BOOL CMonthCalCtrl::GetSelRange(CTime& refMinRange, CTime& refMaxRange) const {
    return ask_two([this](auto* ends) { return get(MCM_GETSELRANGE, 0, ends); }, &refMinRange, &refMaxRange);
}

BOOL CMonthCalCtrl::SetSelRange(const LPSYSTEMTIME pMinRange, const LPSYSTEMTIME pMaxRange) {
    if (pMinRange == nullptr || pMaxRange == nullptr) return FALSE;
    const DateRange range(pMinRange, pMaxRange);
    return get(MCM_SETSELRANGE, 0, range.ends);
}
BOOL CMonthCalCtrl::SetSelRange(const COleDateTime& pMinRange, const COleDateTime& pMaxRange) {
    SYSTEMTIME first = {}, last = {};
    return SetSelRange(system_time(&pMinRange, first), system_time(&pMaxRange, last));
}
BOOL CMonthCalCtrl::SetSelRange(const CTime& pMinRange, const CTime& pMaxRange) {
    SYSTEMTIME first = {}, last = {};
    return SetSelRange(system_time(&pMinRange, first), system_time(&pMaxRange, last));
}

DWORD CMonthCalCtrl::GetRange(LPSYSTEMTIME pMinRange, LPSYSTEMTIME pMaxRange) const {
    SYSTEMTIME ends[2] = {};
    const DWORD flags = static_cast<DWORD>(get(MCM_GETRANGE, 0, ends));
    give(flags & GDTR_MIN, ends[0], pMinRange);
    give(flags & GDTR_MAX, ends[1], pMaxRange);
    return flags;
}
DWORD CMonthCalCtrl::GetRange(COleDateTime* pMinRange, COleDateTime* pMaxRange) const {
    SYSTEMTIME first = {}, last = {};
    const DWORD flags = GetRange(&first, &last);
    give(flags & GDTR_MIN, first, pMinRange);
    give(flags & GDTR_MAX, last, pMaxRange);
    return flags;
}
DWORD CMonthCalCtrl::GetRange(CTime* pMinRange, CTime* pMaxRange) const {
    SYSTEMTIME first = {}, last = {};
    const DWORD flags = GetRange(&first, &last);
    give(flags & GDTR_MIN, first, pMinRange);
    give(flags & GDTR_MAX, last, pMaxRange);
    return flags;
}

BOOL CMonthCalCtrl::SetRange(const LPSYSTEMTIME pMinRange, const LPSYSTEMTIME pMaxRange) {
    const DateRange range(pMinRange, pMaxRange);
    return get(MCM_SETRANGE, range.flags, range.ends);
}
BOOL CMonthCalCtrl::SetRange(const COleDateTime* pMinRange, const COleDateTime* pMaxRange) {
    SYSTEMTIME first = {}, last = {};
    return SetRange(system_time(pMinRange, first), system_time(pMaxRange, last));
}
BOOL CMonthCalCtrl::SetRange(const CTime* pMinRange, const CTime* pMaxRange) {
    SYSTEMTIME first = {}, last = {};
    return SetRange(system_time(pMinRange, first), system_time(pMaxRange, last));
}

int CMonthCalCtrl::GetMonthRange(LPSYSTEMTIME pMinRange, LPSYSTEMTIME pMaxRange, DWORD dwFlags) const {
    SYSTEMTIME ends[2] = {};
    const int months = get(MCM_GETMONTHRANGE, dwFlags, ends);
    give(true, ends[0], pMinRange);
    give(true, ends[1], pMaxRange);
    return months;
}
int CMonthCalCtrl::GetMonthRange(COleDateTime& refMinRange, COleDateTime& refMaxRange, DWORD dwFlags) const {
    SYSTEMTIME first = {}, last = {};
    const int months = GetMonthRange(&first, &last, dwFlags);
    give(true, first, &refMinRange);
    give(true, last, &refMaxRange);
    return months;
}
int CMonthCalCtrl::GetMonthRange(CTime& refMinRange, CTime& refMaxRange, DWORD dwFlags) const {
    SYSTEMTIME first = {}, last = {};
    const int months = GetMonthRange(&first, &last, dwFlags);
    give(true, first, &refMinRange);
    give(true, last, &refMaxRange);
    return months;
}

BOOL CMonthCalCtrl::GetToday(COleDateTime& refDateTime) const {
    SYSTEMTIME time = {};
    const BOOL found = GetToday(&time);
    if (found) give(true, time, &refDateTime);
    return found;
}
BOOL CMonthCalCtrl::GetToday(CTime& refDateTime) const {
    SYSTEMTIME time = {};
    const BOOL found = GetToday(&time);
    if (found) give(true, time, &refDateTime);
    return found;
}
void CMonthCalCtrl::SetToday(const COleDateTime& refDateTime) {
    SYSTEMTIME time = {};
    SetToday(system_time(&refDateTime, time));
}
void CMonthCalCtrl::SetToday(const CTime* pDateTime) {
    SYSTEMTIME time = {};
    SetToday(system_time(pDateTime, time));
}

int CMonthCalCtrl::GetFirstDayOfWeek(BOOL* pbLocal) const {
    const auto answer = static_cast<DWORD>(SendMessage(MCM_GETFIRSTDAYOFWEEK));
    if (pbLocal != nullptr) *pbLocal = HIWORD(answer);
    return LOWORD(answer);
}

BOOL CMonthCalCtrl::SetFirstDayOfWeek(int iDay, int* lpnOld) {
    const auto answer = static_cast<DWORD>(SendMessage(MCM_SETFIRSTDAYOFWEEK, 0, iDay));
    if (lpnOld != nullptr) *lpnOld = LOWORD(answer);
    return HIWORD(answer);
}

DWORD CMonthCalCtrl::HitTest(PMCHITTESTINFO pMCHitTest) {
    pMCHitTest->cbSize = sizeof *pMCHitTest;
    return static_cast<DWORD>(get(MCM_HITTEST, 0, pMCHitTest));
}

BOOL CMonthCalCtrl::SizeMinReq(BOOL bRepaint) {
    CRect needed;
    if (!GetMinReqRect(&needed)) return FALSE;
    UINT flags = SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE;
    if (!bRepaint) flags |= SWP_NOREDRAW;
    return SetWindowPos(nullptr, 0, 0, needed.Width(), needed.Height(), flags);
}

BOOL CMonthCalCtrl::GetCalendarGridInfo(PMCGRIDINFO pmcGridInfo) const {
    pmcGridInfo->cbSize = sizeof *pmcGridInfo;
    return get(MCM_GETCALENDARGRIDINFO, 0, pmcGridInfo);
}
