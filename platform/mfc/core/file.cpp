#include "kmfc/file.h"

#include <algorithm>
#include <climits>
#include <cstdlib>
#include <cstring>

#include "system_file.h"

namespace system_file = kmfc::system_file;

IMPLEMENT_DYNAMIC(CFile, CObject)
IMPLEMENT_DYNAMIC(CMemFile, CFile)

namespace {

[[noreturn]] void throw_last_error(const CString& name) {
    CFileException::ThrowOsError(system_file::last_error(), name);
}

}  // namespace

CFile::CFile() : m_hFile(hFileNull) {}

CFile::CFile(LPCTSTR lpszFileName, UINT nOpenFlags) : CFile() {
    CFileException error;
    if (!CFile::Open(lpszFileName, nOpenFlags, &error)) {
        AfxThrowFileException(error.m_cause, error.m_lOsError, error.m_strFileName);
    }
}

CFile::~CFile() { CFile::Abort(); }

BOOL CFile::Open(LPCTSTR lpszFileName, UINT nOpenFlags, CFileException* pError) {
    Abort();
    void* file = lpszFileName ? system_file::open(lpszFileName, nOpenFlags) : nullptr;
    if (!file) {
        if (pError) {
            pError->m_lOsError = system_file::last_error();
            pError->m_cause = lpszFileName ? CFileException::OsErrorToException(pError->m_lOsError)
                                           : static_cast<int>(CFileException::badPath);
            pError->m_strFileName = lpszFileName;
        }
        return FALSE;
    }
    m_hFile = file;
    m_strFileName = system_file::full_path(lpszFileName);
    return TRUE;
}

UINT CFile::Read(void* lpBuf, UINT nCount) {
    if (nCount == 0) return 0;
    const auto count = system_file::read(m_hFile, lpBuf, nCount);
    if (!count) throw_last_error(m_strFileName);
    return *count;
}

void CFile::Write(const void* lpBuf, UINT nCount) {
    if (nCount != 0 && !system_file::write(m_hFile, lpBuf, nCount)) throw_last_error(m_strFileName);
}

void CFile::Flush() {
    if (m_hFile != hFileNull && !system_file::flush(m_hFile)) throw_last_error(m_strFileName);
}

void CFile::Close() {
    if (m_hFile == hFileNull) return;
    void* file = m_hFile;
    m_hFile = hFileNull;
    const CString name = m_strFileName;
    m_strFileName.Empty();
    if (!system_file::close(file)) throw_last_error(name);
}

void CFile::Abort() {
    if (m_hFile != hFileNull) system_file::close(m_hFile);
    m_hFile = hFileNull;
    m_strFileName.Empty();
}

ULONGLONG CFile::Seek(LONGLONG lOff, UINT nFrom) {
    const auto position = system_file::seek(m_hFile, lOff, nFrom);
    if (!position) throw_last_error(m_strFileName);
    return *position;
}

ULONGLONG CFile::GetPosition() const {
    const auto position = system_file::seek(m_hFile, 0, current);
    if (!position) throw_last_error(m_strFileName);
    return *position;
}

ULONGLONG CFile::GetLength() const {
    const auto length = system_file::length(m_hFile);
    if (!length) throw_last_error(m_strFileName);
    return *length;
}

void CFile::SetLength(ULONGLONG dwNewLen) {
    if (!system_file::truncate(m_hFile, dwNewLen)) throw_last_error(m_strFileName);
}

CString CFile::GetFileName() const {
    const int separator = std::max(m_strFileName.ReverseFind(L'\\'), m_strFileName.ReverseFind(L'/'));
    return m_strFileName.Mid(separator + 1);
}

CString CFile::GetFileTitle() const {
    const CString name = GetFileName();
    const int dot = name.ReverseFind(L'.');
    return dot > 0 ? name.Left(dot) : name;
}

void PASCAL CFile::Rename(LPCTSTR lpszOldName, LPCTSTR lpszNewName) {
    if (!system_file::rename(lpszOldName, lpszNewName)) throw_last_error(lpszOldName);
}

void PASCAL CFile::Remove(LPCTSTR lpszFileName) {
    if (!system_file::remove(lpszFileName)) throw_last_error(lpszFileName);
}

CMemFile::CMemFile(UINT nGrowBytes) : m_nGrowBytes(nGrowBytes) {}

CMemFile::CMemFile(BYTE* lpBuffer, UINT nBufferSize, UINT nGrowBytes) {
    Attach(lpBuffer, nBufferSize, nGrowBytes);
}

CMemFile::~CMemFile() { CMemFile::Close(); }

void CMemFile::Attach(BYTE* lpBuffer, UINT nBufferSize, UINT nGrowBytes) {
    Close();
    m_lpBuffer = lpBuffer;
    m_nBufferSize = nBufferSize;
    m_nFileSize = nGrowBytes == 0 ? nBufferSize : 0;
    m_nGrowBytes = nGrowBytes;
    m_bAutoDelete = false;
}

BYTE* CMemFile::Detach() {
    BYTE* memory = m_lpBuffer;
    m_lpBuffer = nullptr;
    m_nBufferSize = m_nFileSize = m_nPosition = 0;
    m_bAutoDelete = true;
    return memory;
}

void CMemFile::Close() {
    const bool free_memory = m_bAutoDelete;
    BYTE* memory = Detach();
    if (free_memory) std::free(memory);
}

UINT CMemFile::Read(void* lpBuf, UINT nCount) {
    if (m_nPosition >= m_nFileSize) return 0;
    const size_t count = std::min<size_t>(nCount, m_nFileSize - m_nPosition);
    std::memcpy(lpBuf, m_lpBuffer + m_nPosition, count);
    m_nPosition += count;
    return static_cast<UINT>(count);
}

void CMemFile::Write(const void* lpBuf, UINT nCount) {
    if (nCount == 0) return;
    grow(m_nPosition + nCount);
    if (m_nPosition > m_nFileSize) std::memset(m_lpBuffer + m_nFileSize, 0, m_nPosition - m_nFileSize);
    std::memcpy(m_lpBuffer + m_nPosition, lpBuf, nCount);
    m_nPosition += nCount;
    m_nFileSize = std::max(m_nFileSize, m_nPosition);
}

ULONGLONG CMemFile::Seek(LONGLONG lOff, UINT nFrom) {
    const size_t origins[] = {0, m_nPosition, m_nFileSize};
    if (nFrom > end) AfxThrowInvalidArgException();
    const LONGLONG position = static_cast<LONGLONG>(origins[nFrom]) + lOff;
    if (position < 0) AfxThrowFileException(CFileException::badSeek);
    m_nPosition = static_cast<size_t>(position);
    return m_nPosition;
}

void CMemFile::SetLength(ULONGLONG dwNewLen) {
    const auto length = static_cast<size_t>(dwNewLen);
    grow(length);
    if (length > m_nFileSize) std::memset(m_lpBuffer + m_nFileSize, 0, length - m_nFileSize);
    m_nFileSize = length;
    m_nPosition = std::min(m_nPosition, length);
}

void CMemFile::grow(size_t size) {
    if (size <= m_nBufferSize) return;
    if (m_nGrowBytes == 0) AfxThrowMemoryException();
    const size_t room =
        std::max((size + m_nGrowBytes - 1) / m_nGrowBytes * m_nGrowBytes, m_nBufferSize * 3 / 2);
    void* memory = m_bAutoDelete ? std::realloc(m_lpBuffer, room) : std::malloc(room);
    if (!memory) AfxThrowMemoryException();
    if (!m_bAutoDelete) std::memcpy(memory, m_lpBuffer, m_nFileSize);
    m_bAutoDelete = true;
    m_lpBuffer = static_cast<BYTE*>(memory);
    m_nBufferSize = room;
}
