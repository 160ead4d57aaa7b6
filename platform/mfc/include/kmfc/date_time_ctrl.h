// CDateTimeCtrl and CMonthCalCtrl: boxes and calendars to choose a date or a time in.
#pragma once

#include <kmfc/ole_date_time.h>
#include <kmfc/wnd.h>

class CMonthCalCtrl;

/// A date and time picker. Structures are in local time.
class KMFC_API CDateTimeCtrl : public CWnd {
    DECLARE_DYNAMIC(CDateTimeCtrl)
public:
    CDateTimeCtrl() = default;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    /// GDT_VALID, or GDT_NONE when the user chose no date. The first form is FALSE and makes the object null
    /// for none.
    BOOL GetTime(COleDateTime& timeDest) const;
    DWORD GetTime(CTime& timeDest) const;
    DWORD GetTime(LPSYSTEMTIME pTimeDest) const {
        return static_cast<DWORD>(send(DTM_GETSYSTEMTIME, 0, pTimeDest));
    }
    /// Null, and an object without a date, means no date, in a control with DTS_SHOWNONE.
    BOOL SetTime(const COleDateTime& timeNew);
    BOOL SetTime(const CTime* pTimeNew);
    BOOL SetTime(LPSYSTEMTIME pTimeNew = nullptr);
    /// GDTR_MIN and GDTR_MAX say which ends there are; the object of another end is null.
    DWORD GetRange(COleDateTime* pMinRange, COleDateTime* pMaxRange) const;
    DWORD GetRange(CTime* pMinRange, CTime* pMaxRange) const;
    /// Null and null objects mean no end.
    BOOL SetRange(const COleDateTime* pMinRange, const COleDateTime* pMaxRange);
    BOOL SetRange(const CTime* pMinRange, const CTime* pMaxRange);
    BOOL SetFormat(LPCTSTR pstrFormat) { return static_cast<BOOL>(send(DTM_SETFORMATW, 0, pstrFormat)); }

    /// The calendar while it is open, a temporary object; null else.
    CMonthCalCtrl* GetMonthCalCtrl() const;
    void CloseMonthCal() const { send(DTM_CLOSEMONTHCAL); }
    COLORREF GetMonthCalColor(int iColor) const {
        return static_cast<COLORREF>(send(DTM_GETMCCOLOR, static_cast<WPARAM>(iColor)));
    }
    COLORREF SetMonthCalColor(int iColor, COLORREF ref) {
        return static_cast<COLORREF>(SendMessage(DTM_SETMCCOLOR, static_cast<WPARAM>(iColor), ref));
    }
    CFont* GetMonthCalFont() const;
    void SetMonthCalFont(HFONT hFont, BOOL bRedraw = TRUE) {
        SendMessage(DTM_SETMCFONT, reinterpret_cast<WPARAM>(hFont), bRedraw);
    }
    DWORD GetMonthCalStyle() const { return static_cast<DWORD>(send(DTM_GETMCSTYLE)); }
    DWORD SetMonthCalStyle(DWORD dwStyle) {
        return static_cast<DWORD>(SendMessage(DTM_SETMCSTYLE, 0, static_cast<LPARAM>(dwStyle)));
    }
    BOOL GetDateTimePickerInfo(LPDATETIMEPICKERINFO pDateTimePickerInfo) const;
    BOOL GetIdealSize(LPSIZE psize) const { return send(DTM_GETIDEALSIZE, 0, psize), TRUE; }

private:
    LRESULT send(UINT message, WPARAM wParam = 0, const void* data = nullptr) const {
        return SendMessage(message, wParam, reinterpret_cast<LPARAM>(data));
    }
    BOOL set_range(const SYSTEMTIME* first, const SYSTEMTIME* last);
};

/// A month calendar. FALSE reports failures.
class KMFC_API CMonthCalCtrl : public CWnd {
    DECLARE_DYNAMIC(CMonthCalCtrl)
public:
    CMonthCalCtrl() = default;
    virtual BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);
    /// As large as a month needs.
    virtual BOOL Create(DWORD dwStyle, const POINT& pt, CWnd* pParentWnd, UINT nID);

    // The day chosen. In a control of several days these fail.
    BOOL GetCurSel(LPSYSTEMTIME pDateTime) const { return get(MCM_GETCURSEL, 0, pDateTime); }
    BOOL GetCurSel(COleDateTime& refDateTime) const;
    BOOL GetCurSel(CTime& refDateTime) const;
    BOOL SetCurSel(const LPSYSTEMTIME pDateTime) { return get(MCM_SETCURSEL, 0, pDateTime); }
    BOOL SetCurSel(const COleDateTime& refDateTime);
    BOOL SetCurSel(const CTime& refDateTime);
    // Several days, with MCS_MULTISELECT.
    int GetMaxSelCount() const { return static_cast<int>(SendMessage(MCM_GETMAXSELCOUNT)); }
    BOOL SetMaxSelCount(int nMax) { return get(MCM_SETMAXSELCOUNT, static_cast<WPARAM>(nMax)); }
    BOOL GetSelRange(LPSYSTEMTIME pMinRange, LPSYSTEMTIME pMaxRange) const;
    BOOL GetSelRange(COleDateTime& refMinRange, COleDateTime& refMaxRange) const;
    BOOL GetSelRange(CTime& refMinRange, CTime& refMaxRange) const;
    BOOL SetSelRange(const LPSYSTEMTIME pMinRange, const LPSYSTEMTIME pMaxRange);
    BOOL SetSelRange(const COleDateTime& pMinRange, const COleDateTime& pMaxRange);
    BOOL SetSelRange(const CTime& pMinRange, const CTime& pMaxRange);

    // The days that may be chosen; GDTR_ flags say which ends there are, null means none.
    DWORD GetRange(LPSYSTEMTIME pMinRange, LPSYSTEMTIME pMaxRange) const;
    DWORD GetRange(COleDateTime* pMinRange, COleDateTime* pMaxRange) const;
    DWORD GetRange(CTime* pMinRange, CTime* pMaxRange) const;
    BOOL SetRange(const LPSYSTEMTIME pMinRange, const LPSYSTEMTIME pMaxRange);
    BOOL SetRange(const COleDateTime* pMinRange, const COleDateTime* pMaxRange);
    BOOL SetRange(const CTime* pMinRange, const CTime* pMaxRange);
    /// The days shown: GMR_VISIBLE for whole months, GMR_DAYSTATE for all. How many months.
    int GetMonthRange(LPSYSTEMTIME pMinRange, LPSYSTEMTIME pMaxRange, DWORD dwFlags) const;
    int GetMonthRange(COleDateTime& refMinRange, COleDateTime& refMaxRange, DWORD dwFlags) const;
    int GetMonthRange(CTime& refMinRange, CTime& refMaxRange, DWORD dwFlags) const;

    // Looks.
    COLORREF GetColor(int nRegion) const {
        return static_cast<COLORREF>(SendMessage(MCM_GETCOLOR, static_cast<WPARAM>(nRegion)));
    }
    COLORREF SetColor(int nRegion, COLORREF ref) {
        return static_cast<COLORREF>(SendMessage(MCM_SETCOLOR, static_cast<WPARAM>(nRegion), ref));
    }
    BOOL GetToday(LPSYSTEMTIME pDateTime) const { return get(MCM_GETTODAY, 0, pDateTime); }
    BOOL GetToday(COleDateTime& refDateTime) const;
    BOOL GetToday(CTime& refDateTime) const;
    void SetToday(const LPSYSTEMTIME pDateTime) { get(MCM_SETTODAY, 0, pDateTime); }
    void SetToday(const COleDateTime& refDateTime);
    void SetToday(const CTime* pDateTime);
    /// 0 for Monday; `pbLocal`, which may be null, says whether it was set.
    int GetFirstDayOfWeek(BOOL* pbLocal = nullptr) const;
    BOOL SetFirstDayOfWeek(int iDay, int* lpnOld = nullptr);
    int GetMonthDelta() const { return static_cast<int>(SendMessage(MCM_GETMONTHDELTA)); }
    int SetMonthDelta(int iDelta) {
        return static_cast<int>(SendMessage(MCM_SETMONTHDELTA, static_cast<WPARAM>(iDelta)));
    }
    BOOL SetDayState(int nMonths, LPMONTHDAYSTATE pStates) {
        return get(MCM_SETDAYSTATE, static_cast<WPARAM>(nMonths), pStates);
    }
    DWORD HitTest(PMCHITTESTINFO pMCHitTest);
    BOOL GetMinReqRect(RECT* pRect) const { return get(MCM_GETMINREQRECT, 0, pRect); }
    BOOL SizeMinReq(BOOL bRepaint = TRUE);
    DWORD GetCurrentView() const { return static_cast<DWORD>(SendMessage(MCM_GETCURRENTVIEW)); }
    BOOL SetCurrentView(DWORD dwNewView) {
        return static_cast<BOOL>(SendMessage(MCM_SETCURRENTVIEW, 0, static_cast<LPARAM>(dwNewView)));
    }
    int GetCalendarCount() const { return static_cast<int>(SendMessage(MCM_GETCALENDARCOUNT)); }
    int GetCalendarBorder() const { return static_cast<int>(SendMessage(MCM_GETCALENDARBORDER)); }
    void SetCalendarBorder(int cxyBorder) { SendMessage(MCM_SETCALENDARBORDER, TRUE, cxyBorder); }
    void SetCalendarBorderDefault() { SendMessage(MCM_SETCALENDARBORDER, FALSE); }
    BOOL GetCalendarGridInfo(PMCGRIDINFO pmcGridInfo) const;
    CALID GetCALID() const { return static_cast<CALID>(SendMessage(MCM_GETCALID)); }
    BOOL SetCALID(CALID calid) { return SendMessage(MCM_SETCALID, calid), TRUE; }
    void SizeRectToMin(LPRECT lpRect) { get(MCM_SIZERECTTOMIN, 0, lpRect); }

private:
    BOOL get(UINT message, WPARAM wParam = 0, const void* data = nullptr) const {
        return static_cast<BOOL>(SendMessage(message, wParam, reinterpret_cast<LPARAM>(data)));
    }
};
