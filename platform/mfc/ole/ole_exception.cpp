#include <afxdisp.h>

IMPLEMENT_DYNAMIC(COleException, CException)

BOOL COleException::GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext) const {
    if (pnHelpContext != nullptr) *pnHelpContext = 0;
    wchar_t text[512] = {};
    constexpr DWORD kLine =
        FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS | FORMAT_MESSAGE_MAX_WIDTH_MASK;
    ::FormatMessageW(kLine, nullptr, static_cast<DWORD>(m_sc), 0, text, 512, nullptr);
    return kmfc::copy_message(text, lpszError, nMaxError);
}

void AFXAPI AfxThrowOleException(SCODE sc) {
    auto* const exception = new COleException;
    exception->m_sc = sc;
    throw exception;
}
