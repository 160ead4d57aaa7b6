// Dialog data exchange and validation.
#include <kmfc/data_exchange.h>

#include <cerrno>
#include <cfloat>
#include <cmath>
#include <limits>

#include <kmfc/app.h>

#include "thread_state.h"

CDataExchange::CDataExchange(CWnd* pDlgWnd, BOOL bSaveAndValidate)
    : m_bSaveAndValidate(bSaveAndValidate), m_pDlgWnd(pDlgWnd) {}

HWND CDataExchange::PrepareCtrl(int nIDC) {
    HWND control = ::GetDlgItem(m_pDlgWnd->m_hWnd, nIDC);
    if (control == nullptr) AfxThrowNotSupportedException();
    m_hWndLastControl = control;
    m_bEditLastControl = FALSE;
    return control;
}

HWND CDataExchange::PrepareEditCtrl(int nIDC) {
    HWND control = PrepareCtrl(nIDC);
    m_bEditLastControl = TRUE;
    return control;
}

void CDataExchange::Fail() {
    if (m_bSaveAndValidate && m_hWndLastControl != nullptr) {
        ::SetFocus(m_hWndLastControl);
        if (m_bEditLastControl) ::SendMessageW(m_hWndLastControl, EM_SETSEL, 0, -1);
    }
    AfxThrowUserException();
}

void DDX_Control(CDataExchange* pDX, int nIDC, CWnd& rControl) {
    if (rControl.m_hWnd != nullptr) return;
    HWND control = pDX->PrepareCtrl(nIDC);
    if (!rControl.SubclassWindow(control)) AfxThrowNotSupportedException();
}

namespace {

CString control_text(HWND control) {
    CString text;
    const int length = ::GetWindowTextLengthW(control);
    ::GetWindowTextW(control, text.GetBufferSetLength(length), length + 1);
    text.ReleaseBuffer();
    return text;
}

[[noreturn]] void refuse(CDataExchange* exchange, UINT prompt) {
    AfxMessageBox(prompt, MB_ICONEXCLAMATION);
    exchange->Fail();
    throw;  // Fail throws.
}

/// Whether only blanks follow.
bool at_end(const wchar_t* at) {
    while (iswspace(*at)) ++at;
    return *at == 0;
}

/// Moves a whole number between an edit control and `value`; refuses text that is none or does not fit.
template <class T>
void exchange_integer(CDataExchange* exchange, int id, T& value, UINT prompt) {
    HWND control = exchange->PrepareEditCtrl(id);
    if (!exchange->m_bSaveAndValidate) {
        wchar_t text[32];
        if constexpr (std::is_signed_v<T>)
            swprintf(text, 32, L"%lld", static_cast<long long>(value));
        else
            swprintf(text, 32, L"%llu", static_cast<unsigned long long>(value));
        AfxSetWindowText(control, text);
        return;
    }
    const CString text = control_text(control);
    wchar_t* end = nullptr;
    errno = 0;
    T parsed_value = 0;
    bool fits = false;
    if constexpr (std::is_same_v<T, unsigned long long>) {
        parsed_value = wcstoull(text, &end, 10);
        // The function takes a sign for the number from above.
        fits = errno == 0 && wcschr(text, L'-') == nullptr;
    } else {
        const long long parsed = wcstoll(text, &end, 10);
        fits = errno == 0 && parsed >= static_cast<long long>(std::numeric_limits<T>::min()) &&
               parsed <= static_cast<long long>(std::numeric_limits<T>::max());
        parsed_value = static_cast<T>(parsed);
    }
    if (end == text.GetString() || !at_end(end) || !fits) refuse(exchange, prompt);
    value = parsed_value;
}

template <class T>
void exchange_real(CDataExchange* exchange, int id, T& value, int digits) {
    HWND control = exchange->PrepareEditCtrl(id);
    if (!exchange->m_bSaveAndValidate) {
        wchar_t text[64];
        swprintf(text, 64, L"%.*g", digits, static_cast<double>(value));
        AfxSetWindowText(control, text);
        return;
    }
    const CString text = control_text(control);
    wchar_t* end = nullptr;
    const double parsed = wcstod(text, &end);
    // Neither the words for infinity and no number, nor what T cannot hold.
    const bool fits = std::isfinite(parsed) && std::abs(parsed) <= std::numeric_limits<T>::max();
    if (end == text.GetString() || !at_end(end) || !fits) refuse(exchange, AFX_IDP_PARSE_REAL);
    value = static_cast<T>(parsed);
}

}  // namespace

void DDX_Text(CDataExchange* pDX, int nIDC, BYTE& value) {
    exchange_integer(pDX, nIDC, value, AFX_IDP_PARSE_BYTE);
}
void DDX_Text(CDataExchange* pDX, int nIDC, short& value) {
    exchange_integer(pDX, nIDC, value, AFX_IDP_PARSE_INT);
}
void DDX_Text(CDataExchange* pDX, int nIDC, int& value) {
    exchange_integer(pDX, nIDC, value, AFX_IDP_PARSE_INT);
}
void DDX_Text(CDataExchange* pDX, int nIDC, UINT& value) {
    exchange_integer(pDX, nIDC, value, AFX_IDP_PARSE_UINT);
}
void DDX_Text(CDataExchange* pDX, int nIDC, long& value) {
    exchange_integer(pDX, nIDC, value, AFX_IDP_PARSE_INT);
}
void DDX_Text(CDataExchange* pDX, int nIDC, DWORD& value) {
    exchange_integer(pDX, nIDC, value, AFX_IDP_PARSE_UINT);
}
void DDX_Text(CDataExchange* pDX, int nIDC, LONGLONG& value) {
    exchange_integer(pDX, nIDC, value, AFX_IDP_PARSE_INT);
}
void DDX_Text(CDataExchange* pDX, int nIDC, ULONGLONG& value) {
    exchange_integer(pDX, nIDC, value, AFX_IDP_PARSE_UINT);
}
void DDX_Text(CDataExchange* pDX, int nIDC, float& value) { exchange_real(pDX, nIDC, value, FLT_DIG); }
void DDX_Text(CDataExchange* pDX, int nIDC, double& value) { exchange_real(pDX, nIDC, value, DBL_DIG); }

void DDX_Text(CDataExchange* pDX, int nIDC, CString& value) {
    HWND control = pDX->PrepareEditCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        value = control_text(control);
    else
        AfxSetWindowText(control, value);
}

void DDX_Check(CDataExchange* pDX, int nIDC, int& value) {
    HWND control = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate) {
        value = static_cast<int>(::SendMessageW(control, BM_GETCHECK, 0, 0));
        return;
    }
    if (value < 0 || value > 2) value = 0;
    ::SendMessageW(control, BM_SETCHECK, static_cast<WPARAM>(value), 0);
}

void DDX_Radio(CDataExchange* pDX, int nIDC, int& value) {
    HWND control = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate) value = -1;
    // The group runs from this control to the next one with WS_GROUP; only its radio buttons count.
    int index = 0;
    do {
        if (::SendMessageW(control, WM_GETDLGCODE, 0, 0) & DLGC_RADIOBUTTON) {
            if (!pDX->m_bSaveAndValidate)
                ::SendMessageW(control, BM_SETCHECK, index == value, 0);
            else if (::SendMessageW(control, BM_GETCHECK, 0, 0) != 0)
                value = index;
            ++index;
        }
        control = ::GetWindow(control, GW_HWNDNEXT);
    } while (control != nullptr && !(::GetWindowLongPtrW(control, GWL_STYLE) & WS_GROUP));
}

namespace {

/// The messages in which list boxes and combo boxes differ.
struct ListMessages {
    UINT getSelection, setSelection, getText, getTextLength, selectString, findExact;
};
constexpr ListMessages kListBox = {LB_GETCURSEL,  LB_SETCURSEL,    LB_GETTEXT,
                                   LB_GETTEXTLEN, LB_SELECTSTRING, LB_FINDSTRINGEXACT};
constexpr ListMessages kComboBox = {CB_GETCURSEL,    CB_SETCURSEL,    CB_GETLBTEXT,
                                    CB_GETLBTEXTLEN, CB_SELECTSTRING, CB_FINDSTRINGEXACT};

CString selected_text(HWND control, const ListMessages& m) {
    CString text;
    const LRESULT index = ::SendMessageW(control, m.getSelection, 0, 0);
    if (index < 0) return text;
    const int length =
        static_cast<int>(::SendMessageW(control, m.getTextLength, static_cast<WPARAM>(index), 0));
    ::SendMessageW(control, m.getText, static_cast<WPARAM>(index),
                   reinterpret_cast<LPARAM>(text.GetBufferSetLength(length)));
    text.ReleaseBuffer();
    return text;
}

void exchange_index(CDataExchange* exchange, int id, int& index, const ListMessages& m) {
    HWND control = exchange->PrepareCtrl(id);
    if (exchange->m_bSaveAndValidate)
        index = static_cast<int>(::SendMessageW(control, m.getSelection, 0, 0));
    else
        ::SendMessageW(control, m.setSelection, static_cast<WPARAM>(index), 0);
}

void select_exact(HWND control, const CString& value, const ListMessages& m) {
    const LRESULT found = ::SendMessageW(control, m.findExact, static_cast<WPARAM>(-1),
                                         reinterpret_cast<LPARAM>(value.GetString()));
    if (found >= 0) ::SendMessageW(control, m.setSelection, static_cast<WPARAM>(found), 0);
}

}  // namespace

void DDX_LBIndex(CDataExchange* pDX, int nIDC, int& index) { exchange_index(pDX, nIDC, index, kListBox); }
void DDX_CBIndex(CDataExchange* pDX, int nIDC, int& index) { exchange_index(pDX, nIDC, index, kComboBox); }

void DDX_LBString(CDataExchange* pDX, int nIDC, CString& value) {
    HWND control = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        value = selected_text(control, kListBox);
    else
        ::SendMessageW(control, LB_SELECTSTRING, static_cast<WPARAM>(-1),
                       reinterpret_cast<LPARAM>(value.GetString()));
}

void DDX_LBStringExact(CDataExchange* pDX, int nIDC, CString& value) {
    HWND control = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        value = selected_text(control, kListBox);
    else
        select_exact(control, value, kListBox);
}

void DDX_CBString(CDataExchange* pDX, int nIDC, CString& value) {
    HWND control = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate) {
        value = control_text(control);
    } else if (::SendMessageW(control, CB_SELECTSTRING, static_cast<WPARAM>(-1),
                              reinterpret_cast<LPARAM>(value.GetString())) == CB_ERR) {
        AfxSetWindowText(control, value);
    }
}

void DDX_CBStringExact(CDataExchange* pDX, int nIDC, CString& value) {
    HWND control = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        value = control_text(control);
    else
        select_exact(control, value, kComboBox);
}

void DDX_Scroll(CDataExchange* pDX, int nIDC, int& value) {
    HWND control = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        value = ::GetScrollPos(control, SB_CTL);
    else
        ::SetScrollPos(control, SB_CTL, value, TRUE);
}

void DDX_Slider(CDataExchange* pDX, int nIDC, int& value) {
    HWND control = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        value = static_cast<int>(::SendMessageW(control, TBM_GETPOS, 0, 0));
    else
        ::SendMessageW(control, TBM_SETPOS, TRUE, value);
}

namespace {

template <class T>
void check_range(CDataExchange* exchange, T value, T minimum, T maximum, UINT prompt, const wchar_t* format) {
    if (!exchange->m_bSaveAndValidate || (value >= minimum && value <= maximum)) return;
    wchar_t low[48], high[48];
    swprintf(low, 48, format, minimum);
    swprintf(high, 48, format, maximum);
    CString text;
    AfxFormatString2(text, prompt, low, high);
    AfxMessageBox(text, MB_ICONEXCLAMATION, prompt);
    text.Empty();
    exchange->Fail();
}

void check_integer_range(CDataExchange* exchange, long long value, long long minimum, long long maximum) {
    check_range<long long>(exchange, value, minimum, maximum, AFX_IDP_PARSE_INT_RANGE, L"%lld");
}

}  // namespace

void DDV_MinMaxByte(CDataExchange* pDX, BYTE value, BYTE minVal, BYTE maxVal) {
    check_integer_range(pDX, value, minVal, maxVal);
}
void DDV_MinMaxShort(CDataExchange* pDX, short value, short minVal, short maxVal) {
    check_integer_range(pDX, value, minVal, maxVal);
}
void DDV_MinMaxInt(CDataExchange* pDX, int value, int minVal, int maxVal) {
    check_integer_range(pDX, value, minVal, maxVal);
}
void DDV_MinMaxLong(CDataExchange* pDX, long value, long minVal, long maxVal) {
    check_integer_range(pDX, value, minVal, maxVal);
}
void DDV_MinMaxUInt(CDataExchange* pDX, UINT value, UINT minVal, UINT maxVal) {
    check_integer_range(pDX, value, minVal, maxVal);
}
void DDV_MinMaxDWord(CDataExchange* pDX, DWORD value, DWORD minVal, DWORD maxVal) {
    check_integer_range(pDX, value, minVal, maxVal);
}
void DDV_MinMaxUnsigned(CDataExchange* pDX, DWORD value, DWORD minVal, DWORD maxVal) {
    check_integer_range(pDX, value, minVal, maxVal);
}
void DDV_MinMaxLongLong(CDataExchange* pDX, LONGLONG value, LONGLONG minVal, LONGLONG maxVal) {
    check_integer_range(pDX, value, minVal, maxVal);
}
void DDV_MinMaxULongLong(CDataExchange* pDX, ULONGLONG value, ULONGLONG minVal, ULONGLONG maxVal) {
    check_range<unsigned long long>(pDX, value, minVal, maxVal, AFX_IDP_PARSE_INT_RANGE, L"%llu");
}
void DDV_MinMaxFloat(CDataExchange* pDX, float const& value, float minVal, float maxVal) {
    check_range<double>(pDX, value, minVal, maxVal, AFX_IDP_PARSE_REAL_RANGE, L"%.6g");
}
void DDV_MinMaxDouble(CDataExchange* pDX, double const& value, double minVal, double maxVal) {
    check_range<double>(pDX, value, minVal, maxVal, AFX_IDP_PARSE_REAL_RANGE, L"%.15g");
}

void DDV_MaxChars(CDataExchange* pDX, CString const& value, int nChars) {
    if (!pDX->m_bSaveAndValidate) {
        if (pDX->m_hWndLastControl != nullptr && pDX->m_bEditLastControl)
            ::SendMessageW(pDX->m_hWndLastControl, EM_LIMITTEXT, static_cast<WPARAM>(nChars), 0);
        return;
    }
    if (value.GetLength() <= nChars) return;
    wchar_t limit[16];
    swprintf(limit, 16, L"%d", nChars);
    CString text;
    AfxFormatString1(text, AFX_IDP_PARSE_STRING_SIZE, limit);
    AfxMessageBox(text, MB_ICONEXCLAMATION, AFX_IDP_PARSE_STRING_SIZE);
    text.Empty();
    pDX->Fail();
}
