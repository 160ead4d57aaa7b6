// COleException: a call of COM or of automation that failed.
#pragma once

#include <kmfc/exceptions.h>

/// Says by `m_sc` what failed. Made on the heap, so Delete() frees it.
class KMFC_API COleException : public CException {
    DECLARE_DYNAMIC(COleException)
public:
    COleException() = default;

    /// The system's text for the code; FALSE if it has none.
    BOOL GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext = nullptr) const override;

    SCODE m_sc = S_OK;
};

/// Throws a COleException with this code.
[[noreturn]] KMFC_API void AFXAPI AfxThrowOleException(SCODE sc);
