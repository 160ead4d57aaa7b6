// Dialog data exchange and validation: DDX_… moves values between controls and members, DDV_… checks them.
#pragma once

#include <kmfc/wnd.h>

class CComboBox;
class CListBox;
class COleDateTime;
class CTime;

/// The context of one exchange.
class KMFC_API CDataExchange {
public:
    CDataExchange(CWnd* pDlgWnd, BOOL bSaveAndValidate);

    BOOL m_bSaveAndValidate;
    CWnd* m_pDlgWnd;
    HWND m_hWndLastControl = nullptr;
    BOOL m_bEditLastControl = FALSE;

    /// The control's handle, remembered for Fail. Throws CNotSupportedException when the dialog has no such
    /// control.
    HWND PrepareCtrl(int nIDC);
    HWND PrepareEditCtrl(int nIDC);
    /// Puts the focus to the last prepared control and throws CUserException.
    void Fail();
};

KMFC_API void DDX_Control(CDataExchange* pDX, int nIDC, CWnd& rControl);
KMFC_API void DDX_Text(CDataExchange* pDX, int nIDC, BYTE& value);
KMFC_API void DDX_Text(CDataExchange* pDX, int nIDC, short& value);
KMFC_API void DDX_Text(CDataExchange* pDX, int nIDC, int& value);
KMFC_API void DDX_Text(CDataExchange* pDX, int nIDC, UINT& value);
KMFC_API void DDX_Text(CDataExchange* pDX, int nIDC, long& value);
KMFC_API void DDX_Text(CDataExchange* pDX, int nIDC, DWORD& value);
KMFC_API void DDX_Text(CDataExchange* pDX, int nIDC, CString& value);
KMFC_API void DDX_Text(CDataExchange* pDX, int nIDC, float& value);
KMFC_API void DDX_Text(CDataExchange* pDX, int nIDC, double& value);
KMFC_API void DDX_Check(CDataExchange* pDX, int nIDC, int& value);
KMFC_API void DDX_Radio(CDataExchange* pDX, int nIDC, int& value);
KMFC_API void DDX_LBString(CDataExchange* pDX, int nIDC, CString& value);
KMFC_API void DDX_LBStringExact(CDataExchange* pDX, int nIDC, CString& value);
KMFC_API void DDX_LBIndex(CDataExchange* pDX, int nIDC, int& index);
KMFC_API void DDX_CBString(CDataExchange* pDX, int nIDC, CString& value);
KMFC_API void DDX_CBStringExact(CDataExchange* pDX, int nIDC, CString& value);
KMFC_API void DDX_CBIndex(CDataExchange* pDX, int nIDC, int& index);
KMFC_API void DDX_Scroll(CDataExchange* pDX, int nIDC, int& value);
KMFC_API void DDX_Slider(CDataExchange* pDX, int nIDC, int& value);
KMFC_API void DDX_Text(CDataExchange* pDX, int nIDC, LONGLONG& value);
KMFC_API void DDX_Text(CDataExchange* pDX, int nIDC, ULONGLONG& value);
KMFC_API void DDX_Text(CDataExchange* pDX, int nIDC, LPTSTR pszBuffer, int nBufferLen);
KMFC_API void DDX_IPAddress(CDataExchange* pDX, int nIDC, DWORD& value);
/// A control without a date gives 0, a null date and an empty text, and takes them.
KMFC_API void DDX_DateTimeCtrl(CDataExchange* pDX, int nIDC, CTime& value);
KMFC_API void DDX_DateTimeCtrl(CDataExchange* pDX, int nIDC, COleDateTime& value);
KMFC_API void DDX_DateTimeCtrl(CDataExchange* pDX, int nIDC, CString& value);
KMFC_API void DDX_MonthCalCtrl(CDataExchange* pDX, int nIDC, CTime& value);
KMFC_API void DDX_MonthCalCtrl(CDataExchange* pDX, int nIDC, COleDateTime& value);
KMFC_API void DDX_MonthCalCtrl(CDataExchange* pDX, int nIDC, CString& value);

KMFC_API void DDV_MinMaxByte(CDataExchange* pDX, BYTE value, BYTE minVal, BYTE maxVal);
KMFC_API void DDV_MinMaxShort(CDataExchange* pDX, short value, short minVal, short maxVal);
KMFC_API void DDV_MinMaxInt(CDataExchange* pDX, int value, int minVal, int maxVal);
KMFC_API void DDV_MinMaxLong(CDataExchange* pDX, long value, long minVal, long maxVal);
KMFC_API void DDV_MinMaxUInt(CDataExchange* pDX, UINT value, UINT minVal, UINT maxVal);
KMFC_API void DDV_MinMaxDWord(CDataExchange* pDX, DWORD value, DWORD minVal, DWORD maxVal);
KMFC_API void DDV_MinMaxFloat(CDataExchange* pDX, float const& value, float minVal, float maxVal);
KMFC_API void DDV_MinMaxDouble(CDataExchange* pDX, double const& value, double minVal, double maxVal);
KMFC_API void DDV_MaxChars(CDataExchange* pDX, CString const& value, int nChars);
KMFC_API void DDV_MinMaxUnsigned(CDataExchange* pDX, DWORD value, DWORD minVal, DWORD maxVal);
KMFC_API void DDV_MinMaxLongLong(CDataExchange* pDX, LONGLONG value, LONGLONG minVal, LONGLONG maxVal);
KMFC_API void DDV_MinMaxULongLong(CDataExchange* pDX, ULONGLONG value, ULONGLONG minVal, ULONGLONG maxVal);
/// Sets the slider's range too, when the values go to the controls.
KMFC_API void DDV_MinMaxSlider(CDataExchange* pDX, DWORD value, DWORD minVal, DWORD maxVal);
/// Of the control exchanged last, whose range is set when the values go to the controls. A null limit is
/// none.
KMFC_API void DDV_MinMaxDateTime(CDataExchange* pDX, CTime& refValue, const CTime* refMinRange,
                                 const CTime* refMaxRange);
KMFC_API void DDV_MinMaxDateTime(CDataExchange* pDX, COleDateTime& refValue, const COleDateTime* refMinRange,
                                 const COleDateTime* refMaxRange);
KMFC_API void DDV_MinMaxMonth(CDataExchange* pDX, CTime& refValue, const CTime* refMinRange,
                              const CTime* refMaxRange);
KMFC_API void DDV_MinMaxMonth(CDataExchange* pDX, COleDateTime& refValue, const COleDateTime* refMinRange,
                              const COleDateTime* refMaxRange);
