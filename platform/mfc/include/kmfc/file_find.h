// CFileFind: goes through the files and folders that a pattern names.
#pragma once

#include "kmfc/object.h"
#include "kmfc/string.h"

class CTime;

/// One search at a time; closed by the destructor.
///
///     CFileFind finder;
///     for (BOOL more = finder.FindFile(L"C:\\drawings\\*.dxf"); more;) {
///         more = finder.FindNextFile();
///         if (!finder.IsDirectory()) show(finder.GetFilePath());
///     }
///
/// What is found is there to be asked about once FindNextFile has been called; before, texts are empty and
/// questions are answered by FALSE.
class KMFC_API CFileFind : public CObject {
    DECLARE_DYNAMIC(CFileFind)
public:
    CFileFind();
    ~CFileFind() override;

    /// Begins a search, ending an earlier one; null is "*.*". FALSE with the system's last error if nothing
    /// fits. The last parameter isn't used.
    virtual BOOL FindFile(LPCTSTR pstrName = nullptr, DWORD dwUnused = 0);
    /// Goes to the next one; FALSE if it is the last, or none is left.
    virtual BOOL FindNextFile();
    void Close();

    ULONGLONG GetLength() const;  ///< in bytes
    virtual CString GetFileName() const;
    virtual CString GetFilePath() const;   ///< the whole path
    virtual CString GetFileTitle() const;  ///< the name without its extension
    virtual CString GetFileURL() const;    ///< the path with "file://" before it
    /// The part of the pattern before the name, with the backslash at its end; empty without one.
    virtual CString GetRoot() const { return m_strRoot; }
    virtual BOOL GetLastWriteTime(FILETIME* pTimeStamp) const;
    virtual BOOL GetLastWriteTime(CTime& refTime) const;
    virtual BOOL GetLastAccessTime(FILETIME* pTimeStamp) const;
    virtual BOOL GetLastAccessTime(CTime& refTime) const;
    virtual BOOL GetCreationTime(FILETIME* pTimeStamp) const;
    virtual BOOL GetCreationTime(CTime& refTime) const;

    /// Whether any of these FILE_ATTRIBUTE_ values is set.
    virtual BOOL MatchesMask(DWORD dwMask) const;
    /// Whether it is the folder itself or the one above.
    virtual BOOL IsDots() const;
    BOOL IsReadOnly() const { return MatchesMask(FILE_ATTRIBUTE_READONLY); }
    BOOL IsDirectory() const { return MatchesMask(FILE_ATTRIBUTE_DIRECTORY); }
    BOOL IsCompressed() const { return MatchesMask(FILE_ATTRIBUTE_COMPRESSED); }
    BOOL IsSystem() const { return MatchesMask(FILE_ATTRIBUTE_SYSTEM); }
    BOOL IsHidden() const { return MatchesMask(FILE_ATTRIBUTE_HIDDEN); }
    BOOL IsTemporary() const { return MatchesMask(FILE_ATTRIBUTE_TEMPORARY); }
    BOOL IsNormal() const { return MatchesMask(FILE_ATTRIBUTE_NORMAL); }
    BOOL IsArchived() const { return MatchesMask(FILE_ATTRIBUTE_ARCHIVE); }

protected:
    virtual void CloseContext();

private:
    BOOL answer_time(FILETIME* time, const FILETIME& found) const;
    BOOL answer_time(CTime& time, const FILETIME& found) const;

    HANDLE m_hContext;
    bool m_bFound = false;  ///< m_found holds one
    bool m_bMore = false;   ///< m_next holds one
    WIN32_FIND_DATAW m_found = {};
    WIN32_FIND_DATAW m_next = {};
    CString m_strRoot;
    CString m_strFolder;  ///< the same as a whole path
};
