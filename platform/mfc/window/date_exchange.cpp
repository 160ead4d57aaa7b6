// Exchange and validation of date and range controls.
#include <kmfc/data_exchange.h>

#include <algorithm>

#include <afxdtctl.h>
#include <kmfc/app.h>

#include "../controls/date_values.h"

namespace {

/// The control as the class whose messages it takes.
template <class T>
class Control {
public:
    explicit Control(HWND window) { m_control.m_hWnd = window; }
    ~Control() { m_control.m_hWnd = nullptr; }
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;
    T* operator->() { return &m_control; }

private:
    T m_control;
};

CString text_of(HWND window) {
    CString text;
    const int length = ::GetWindowTextLengthW(window);
    ::GetWindowTextW(window, text.GetBufferSetLength(length), length + 1);
    text.ReleaseBuffer();
    return text;
}

COleDateTime parsed(const CString& text) {
    COleDateTime date;
    if (!date.ParseDateTime(text)) date.SetStatus(COleDateTime::null);
    return date;
}

}  // namespace

void DDX_DateTimeCtrl(CDataExchange* pDX, int nIDC, CTime& value) {
    Control<CDateTimeCtrl> control(pDX->PrepareCtrl(nIDC));
    if (!pDX->m_bSaveAndValidate)
        control->SetTime(&value);
    else if (control->GetTime(value) != GDT_VALID)
        value = CTime();
}

void DDX_DateTimeCtrl(CDataExchange* pDX, int nIDC, COleDateTime& value) {
    Control<CDateTimeCtrl> control(pDX->PrepareCtrl(nIDC));
    if (pDX->m_bSaveAndValidate)
        control->GetTime(value);
    else
        control->SetTime(value);
}

void DDX_DateTimeCtrl(CDataExchange* pDX, int nIDC, CString& value) {
    HWND window = pDX->PrepareCtrl(nIDC);
    Control<CDateTimeCtrl> control(window);
    SYSTEMTIME time;
    if (!pDX->m_bSaveAndValidate)
        control->SetTime(parsed(value));
    else
        value = control->GetTime(&time) == GDT_VALID ? text_of(window) : CString();
}

void DDX_MonthCalCtrl(CDataExchange* pDX, int nIDC, CTime& value) {
    Control<CMonthCalCtrl> control(pDX->PrepareCtrl(nIDC));
    if (pDX->m_bSaveAndValidate)
        control->GetCurSel(value);
    else
        control->SetCurSel(value);
}

void DDX_MonthCalCtrl(CDataExchange* pDX, int nIDC, COleDateTime& value) {
    Control<CMonthCalCtrl> control(pDX->PrepareCtrl(nIDC));
    if (pDX->m_bSaveAndValidate)
        control->GetCurSel(value);
    else
        control->SetCurSel(value);
}

void DDX_MonthCalCtrl(CDataExchange* pDX, int nIDC, CString& value) {
    Control<CMonthCalCtrl> control(pDX->PrepareCtrl(nIDC));
    if (!pDX->m_bSaveAndValidate) {
        control->SetCurSel(parsed(value));
        return;
    }
    COleDateTime date;
    if (control->GetCurSel(date)) value = date.Format(VAR_DATEVALUEONLY);
}

void DDX_IPAddress(CDataExchange* pDX, int nIDC, DWORD& value) {
    HWND control = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        ::SendMessageW(control, IPM_GETADDRESS, 0, reinterpret_cast<LPARAM>(&value));
    else
        ::SendMessageW(control, IPM_SETADDRESS, 0, static_cast<LPARAM>(value));
}

void DDX_Text(CDataExchange* pDX, int nIDC, LPTSTR pszBuffer, int nBufferLen) {
    HWND control = pDX->PrepareEditCtrl(nIDC);
    if (pszBuffer == nullptr || nBufferLen < 1) return;
    if (pDX->m_bSaveAndValidate)
        ::GetWindowTextW(control, pszBuffer, nBufferLen);
    else
        AfxSetWindowText(control, pszBuffer);
}

namespace {

void refuse_range(CDataExchange* exchange, UINT prompt, const CString& first, const CString& last) {
    CString text;
    AfxFormatString2(text, prompt, first, last);
    AfxMessageBox(text, MB_ICONEXCLAMATION, prompt);
    text.Empty();
    exchange->Fail();
}

CString written(const CTime& time) {
    SYSTEMTIME parts;
    return time.GetAsSystemTime(parts) ? COleDateTime(parts).Format() : CString();
}
CString written(const COleDateTime& date) { return date.Format(); }

bool is_there(const CTime* time) { return time != nullptr && time->GetTime() != 0; }
bool is_there(const COleDateTime* date) {
    return date != nullptr && date->GetStatus() == COleDateTime::valid;
}

/// Checks a date, or sets the range of the control that was exchanged last.
template <class ControlClass, class T>
void check_dates(CDataExchange* exchange, const T& value, const T* first, const T* last) {
    if (!exchange->m_bSaveAndValidate) {
        if (exchange->m_hWndLastControl == nullptr) return;
        Control<ControlClass> control(exchange->m_hWndLastControl);
        control->SetRange(first, last);
        return;
    }
    // No date is in no range, and asked for by none.
    if (!is_there(&value)) return;
    const bool isEarly = is_there(first) && value < *first;
    const bool isLate = is_there(last) && value > *last;
    if (isEarly || isLate)
        refuse_range(exchange, AFX_IDP_PARSE_INT_RANGE, is_there(first) ? written(*first) : CString(),
                     is_there(last) ? written(*last) : CString());
}

}  // namespace

void DDV_MinMaxDateTime(CDataExchange* pDX, CTime& refValue, const CTime* refMinRange,
                        const CTime* refMaxRange) {
    check_dates<CDateTimeCtrl>(pDX, refValue, refMinRange, refMaxRange);
}
void DDV_MinMaxDateTime(CDataExchange* pDX, COleDateTime& refValue, const COleDateTime* refMinRange,
                        const COleDateTime* refMaxRange) {
    check_dates<CDateTimeCtrl>(pDX, refValue, refMinRange, refMaxRange);
}
void DDV_MinMaxMonth(CDataExchange* pDX, CTime& refValue, const CTime* refMinRange,
                     const CTime* refMaxRange) {
    check_dates<CMonthCalCtrl>(pDX, refValue, refMinRange, refMaxRange);
}
void DDV_MinMaxMonth(CDataExchange* pDX, COleDateTime& refValue, const COleDateTime* refMinRange,
                     const COleDateTime* refMaxRange) {
    check_dates<CMonthCalCtrl>(pDX, refValue, refMinRange, refMaxRange);
}

void DDV_MinMaxSlider(CDataExchange* pDX, DWORD value, DWORD minVal, DWORD maxVal) {
    if (!pDX->m_bSaveAndValidate) {
        if (pDX->m_hWndLastControl == nullptr) return;
        ::SendMessageW(pDX->m_hWndLastControl, TBM_SETRANGEMIN, FALSE, static_cast<LPARAM>(minVal));
        ::SendMessageW(pDX->m_hWndLastControl, TBM_SETRANGEMAX, TRUE, static_cast<LPARAM>(maxVal));
        // The position was set before there was room for it.
        ::SendMessageW(pDX->m_hWndLastControl, TBM_SETPOS, TRUE, static_cast<LPARAM>(value));
        return;
    }
    if (value >= minVal && value <= maxVal) return;
    CString first, last;
    first.Format(L"%lu", minVal);
    last.Format(L"%lu", maxVal);
    refuse_range(pDX, AFX_IDP_PARSE_INT_RANGE, first, last);
}
