#include "kmfc/file.h"

#include <iterator>

IMPLEMENT_DYNAMIC(CFileException, CException)
IMPLEMENT_DYNAMIC(CArchiveException, CException)

namespace {

// In the order of the causes. %s is the file's name.
constexpr LPCTSTR kFileTexts[] = {
    L"No error occurred.",
    L"An unknown error occurred while accessing %s.",
    L"%s was not found.",
    L"%s contains an incorrect path.",
    L"Could not open %s because there are too many open files.",
    L"Access to %s was denied.",
    L"An incorrect file handle was associated with %s.",
    L"Could not remove %s because it is the current directory.",
    L"Could not create %s because the directory is full.",
    L"Seek failed on %s.",
    L"A hardware I/O error was reported while accessing %s.",
    L"A sharing violation occurred while accessing %s.",
    L"A locking violation occurred while accessing %s.",
    L"Disk full while accessing %s.",
    L"An attempt was made to access %s past its end.",
};

constexpr LPCTSTR kArchiveTexts[] = {
    L"No error occurred.",
    L"An unknown error occurred while accessing %s.",
    L"An attempt was made to write to the reading %s.",
    L"An attempt was made to access %s past its end.",
    L"An attempt was made to read from the writing %s.",
    L"%s has a bad format.",
    L"%s contained an unexpected object.",
    L"%s contains an incorrect schema.",
};

BOOL message_of(LPCTSTR format, const CString& name, LPTSTR buffer, UINT capacity) {
    CString text;
    text.Format(format, name.IsEmpty() ? CString(L"an unnamed file") : name);
    return kmfc::copy_message(text, buffer, capacity);
}

}  // namespace

CFileException::CFileException(int cause, LONG lOsError, LPCTSTR lpszArchiveName)
    : m_cause(cause), m_lOsError(lOsError), m_strFileName(lpszArchiveName) {}

BOOL CFileException::GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext) const {
    if (pnHelpContext) *pnHelpContext = 0;
    const bool known = m_cause >= 0 && m_cause < static_cast<int>(std::size(kFileTexts));
    return message_of(kFileTexts[known ? m_cause : genericException], m_strFileName, lpszError, nMaxError);
}

void PASCAL CFileException::ThrowOsError(LONG lOsError, LPCTSTR lpszFileName) {
    AfxThrowFileException(OsErrorToException(lOsError), lOsError, lpszFileName);
}

CArchiveException::CArchiveException(int cause, LPCTSTR lpszArchiveName)
    : m_cause(cause), m_strFileName(lpszArchiveName) {}

BOOL CArchiveException::GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext) const {
    if (pnHelpContext) *pnHelpContext = 0;
    const bool known = m_cause >= 0 && m_cause < static_cast<int>(std::size(kArchiveTexts));
    return message_of(kArchiveTexts[known ? m_cause : genericException], m_strFileName, lpszError, nMaxError);
}

void AFXAPI AfxThrowFileException(int cause, LONG lOsError, LPCTSTR lpszFileName) {
    throw new CFileException(cause, lOsError, lpszFileName);
}

void AFXAPI AfxThrowArchiveException(int cause, LPCTSTR lpszArchiveName) {
    throw new CArchiveException(cause, lpszArchiveName);
}
