#include "replacing_file.h"

#include <kmfc/platform.h>

namespace kmfc {

namespace {

constexpr DWORD kNotReplaced =
    FILE_ATTRIBUTE_REPARSE_POINT | FILE_ATTRIBUTE_DEVICE | FILE_ATTRIBUTE_DIRECTORY;

/// A free name in the folder of `path`, whose file exists now; empty when there can be none.
CString free_name_beside(const CString& path) {
    const CString folder = path.Left(path.ReverseFind(L'\\') + 1);
    wchar_t name[MAX_PATH];
    if (::GetTempFileNameW(folder.IsEmpty() ? L"." : folder.GetString(), L"sav", 0, name) == 0)
        return CString();
    return name;
}

/// Puts `source` in the place of `target`, whose attributes and rights stay.
bool put_in_place(const CString& source, const CString& target) {
    if (::ReplaceFileW(target, source, nullptr, REPLACEFILE_IGNORE_MERGE_ERRORS, nullptr, nullptr))
        return true;
    return ::GetLastError() == ERROR_FILE_NOT_FOUND &&
           ::MoveFileExW(source, target, MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH);
}

}  // namespace

ReplacingFile::~ReplacingFile() {
    if (m_hFile != hFileNull) Abort();
}

BOOL ReplacingFile::Open(LPCTSTR lpszFileName, UINT nOpenFlags, CFileException* pError) {
    Abort();
    m_target = lpszFileName;
    const DWORD attributes = ::GetFileAttributesW(lpszFileName);
    const bool there = attributes != INVALID_FILE_ATTRIBUTES;
    if (there && (attributes & kNotReplaced) != 0) return CFile::Open(lpszFileName, nOpenFlags, pError);
    if (there) {
        // A file that another holds or that is read-only is refused now, before anything is written.
        CFile probe;
        if (!probe.Open(lpszFileName, CFile::modeReadWrite | CFile::shareExclusive, pError)) return FALSE;
    }
    // Opening gives up what was there before, so the name is kept only then.
    const CString temporary = free_name_beside(m_target);
    if (temporary.IsEmpty()) return CFile::Open(lpszFileName, nOpenFlags, pError);
    const BOOL open = CFile::Open(temporary, nOpenFlags, pError);
    m_temporary = temporary;
    if (!open) give_up();
    return open;
}

void ReplacingFile::Close() {
    CFile::Close();
    if (m_temporary.IsEmpty()) return;
    if (put_in_place(m_temporary, m_target)) {
        m_temporary.Empty();
        return;
    }
    const LONG error = static_cast<LONG>(::GetLastError());
    give_up();
    CFileException::ThrowOsError(error, m_target);
}

void ReplacingFile::Abort() {
    CFile::Abort();
    give_up();
}

void ReplacingFile::give_up() {
    if (!m_temporary.IsEmpty()) ::DeleteFileW(m_temporary);
    m_temporary.Empty();
}

}  // namespace kmfc
