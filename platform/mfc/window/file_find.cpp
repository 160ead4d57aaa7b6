#include <kmfc/file_find.h>

#include <algorithm>

#include <afx.h>

#include <kmfc/time.h>

IMPLEMENT_DYNAMIC(CFileFind, CObject)

namespace {

/// The whole path of a folder, with a backslash at its end.
CString whole(const CString& folder) {
    const CString named = folder.IsEmpty() ? CString(L".") : folder;
    CString path;
    const DWORD needed = ::GetFullPathNameW(named, 0, nullptr, nullptr);
    ::GetFullPathNameW(named, needed, path.GetBuffer(static_cast<int>(needed)), nullptr);
    path.ReleaseBuffer();
    return path.Right(1) == L"\\" ? path : path + L"\\";
}

}  // namespace

CFileFind::CFileFind() : m_hContext(INVALID_HANDLE_VALUE) {}

CFileFind::~CFileFind() { CFileFind::CloseContext(); }

void CFileFind::CloseContext() {
    if (m_hContext != INVALID_HANDLE_VALUE) ::FindClose(m_hContext);
    m_hContext = INVALID_HANDLE_VALUE;
    m_bFound = m_bMore = false;
}

void CFileFind::Close() { CloseContext(); }

BOOL CFileFind::FindFile(LPCTSTR pstrName, DWORD) {
    Close();
    const CString pattern = pstrName != nullptr ? pstrName : L"*.*";
    m_strRoot = pattern.Left(
        std::max({pattern.ReverseFind(L'\\'), pattern.ReverseFind(L'/'), pattern.ReverseFind(L':')}) + 1);
    m_strFolder = whole(m_strRoot);
    m_hContext = ::FindFirstFileW(pattern, &m_next);
    m_bMore = m_hContext != INVALID_HANDLE_VALUE;
    return m_bMore;
}

BOOL CFileFind::FindNextFile() {
    if (!m_bMore) {
        ::SetLastError(m_hContext == INVALID_HANDLE_VALUE ? ERROR_INVALID_HANDLE : ERROR_NO_MORE_FILES);
        return FALSE;
    }
    m_found = m_next;
    m_bFound = true;
    m_bMore = ::FindNextFileW(m_hContext, &m_next) != FALSE;
    return m_bMore;
}

ULONGLONG CFileFind::GetLength() const {
    return m_bFound ? static_cast<ULONGLONG>(m_found.nFileSizeHigh) << 32 | m_found.nFileSizeLow : 0;
}

CString CFileFind::GetFileName() const { return m_bFound ? m_found.cFileName : L""; }

CString CFileFind::GetFilePath() const { return m_bFound ? m_strFolder + GetFileName() : CString(); }

CString CFileFind::GetFileTitle() const {
    const CString name = GetFileName();
    const int point = name.ReverseFind(L'.');
    return point > 0 ? name.Left(point) : name;
}

CString CFileFind::GetFileURL() const { return m_bFound ? L"file://" + GetFilePath() : CString(); }

BOOL CFileFind::answer_time(FILETIME* time, const FILETIME& found) const {
    if (!m_bFound || time == nullptr) return FALSE;
    *time = found;
    return TRUE;
}

BOOL CFileFind::answer_time(CTime& time, const FILETIME& found) const {
    if (!m_bFound) return FALSE;
    time = CTime(found);
    return TRUE;
}

BOOL CFileFind::GetLastWriteTime(FILETIME* pTimeStamp) const {
    return answer_time(pTimeStamp, m_found.ftLastWriteTime);
}
BOOL CFileFind::GetLastWriteTime(CTime& refTime) const {
    return answer_time(refTime, m_found.ftLastWriteTime);
}
BOOL CFileFind::GetLastAccessTime(FILETIME* pTimeStamp) const {
    return answer_time(pTimeStamp, m_found.ftLastAccessTime);
}
BOOL CFileFind::GetLastAccessTime(CTime& refTime) const {
    return answer_time(refTime, m_found.ftLastAccessTime);
}
BOOL CFileFind::GetCreationTime(FILETIME* pTimeStamp) const {
    return answer_time(pTimeStamp, m_found.ftCreationTime);
}
BOOL CFileFind::GetCreationTime(CTime& refTime) const { return answer_time(refTime, m_found.ftCreationTime); }

BOOL CFileFind::MatchesMask(DWORD dwMask) const {
    return m_bFound && (m_found.dwFileAttributes & dwMask) != 0;
}

BOOL CFileFind::IsDots() const {
    const CString name = GetFileName();
    return IsDirectory() && (name == L"." || name == L"..");
}
