#include "kmfc/exceptions.h"

#include <algorithm>
#include <cwchar>
#include <iterator>

#include "kmfc/exception_macros.h"

#ifdef _WIN32
#include <afxres.h>
#include <kmfc/app.h>
#endif

IMPLEMENT_DYNAMIC(CException, CObject)
IMPLEMENT_DYNAMIC(CSimpleException, CException)
IMPLEMENT_DYNAMIC(CMemoryException, CSimpleException)
IMPLEMENT_DYNAMIC(CNotSupportedException, CSimpleException)
IMPLEMENT_DYNAMIC(CResourceException, CSimpleException)
IMPLEMENT_DYNAMIC(CUserException, CSimpleException)
IMPLEMENT_DYNAMIC(CInvalidArgException, CSimpleException)

namespace {

thread_local AFX_EXCEPTION_LINK* innermost_link = nullptr;

// Thrown again and again and never freed, so that reporting short memory takes none.
CMemoryException shared_memory_exception(FALSE);
CNotSupportedException shared_not_supported_exception(FALSE);
CResourceException shared_resource_exception(FALSE);
CUserException shared_user_exception(FALSE);
CInvalidArgException shared_invalid_argument_exception(FALSE);

}  // namespace

BOOL kmfc::copy_message(LPCTSTR text, LPTSTR buffer, UINT capacity) {
    if (!buffer || capacity == 0) return FALSE;
    const size_t length = std::min<size_t>(std::wcslen(text), capacity - 1);
    std::wmemcpy(buffer, text, length);
    buffer[length] = L'\0';
    return *text != L'\0';
}

void CException::Delete() {
    if (m_bAutoDelete) delete this;
}

BOOL CException::GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext) const {
    if (pnHelpContext) *pnHelpContext = 0;
    return kmfc::copy_message(L"", lpszError, nMaxError);
}

BOOL CSimpleException::GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext) const {
    if (pnHelpContext) *pnHelpContext = 0;
    return kmfc::copy_message(message(), lpszError, nMaxError);
}

LPCTSTR CSimpleException::message() const { return L""; }
LPCTSTR CMemoryException::message() const { return L"Out of memory."; }
LPCTSTR CNotSupportedException::message() const { return L"An unsupported operation was attempted."; }
LPCTSTR CResourceException::message() const { return L"A required resource was unavailable."; }
LPCTSTR CUserException::message() const { return L""; }
LPCTSTR CInvalidArgException::message() const { return L"An invalid argument was encountered."; }

void AFXAPI AfxThrowMemoryException() { throw &shared_memory_exception; }
void AFXAPI AfxThrowNotSupportedException() { throw &shared_not_supported_exception; }
void AFXAPI AfxThrowResourceException() { throw &shared_resource_exception; }
void AFXAPI AfxThrowUserException() { throw &shared_user_exception; }
void AFXAPI AfxThrowInvalidArgException() { throw &shared_invalid_argument_exception; }

AFX_EXCEPTION_LINK::AFX_EXCEPTION_LINK() : m_pLinkPrev(innermost_link), m_pException(nullptr) {
    innermost_link = this;
}

AFX_EXCEPTION_LINK::~AFX_EXCEPTION_LINK() {
    innermost_link = m_pLinkPrev;
    if (m_pException) m_pException->Delete();
}

void AFXAPI AfxKeepCaught(CException* pException) { innermost_link->m_pException = pException; }
void AFXAPI AfxThrowLastCleanup() { innermost_link->m_pException = nullptr; }

#ifdef _WIN32

int CException::ReportError(UINT nType, UINT nMessageID) {
    wchar_t text[512];
    if (GetErrorMessage(text, static_cast<UINT>(std::size(text)))) return AfxMessageBox(text, nType);
    return AfxMessageBox(nMessageID != 0 ? nMessageID : AFX_IDP_INTERNAL_FAILURE, nType);
}

#endif
