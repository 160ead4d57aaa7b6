// CFile over the system's files, CMemFile over memory, and what they throw.
#pragma once

#include "kmfc/exceptions.h"
#include "kmfc/string.h"

/// A file operation failed. `m_cause` says how in general terms, `m_lOsError` is the system's code (-1:
/// none).
class KMFC_API CFileException : public CException {
    DECLARE_DYNAMIC(CFileException)
public:
    enum {
        none,
        genericException,
        fileNotFound,
        badPath,
        tooManyOpenFiles,
        accessDenied,
        invalidFile,
        removeCurrentDir,
        directoryFull,
        badSeek,
        hardIO,
        sharingViolation,
        lockViolation,
        diskFull,
        endOfFile,
    };

    explicit CFileException(int cause = none, LONG lOsError = -1, LPCTSTR lpszArchiveName = nullptr);

    BOOL GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext = nullptr) const override;
    /// The cause that stands for a system error code.
    static int PASCAL OsErrorToException(LONG lOsError);
    /// Throws the exception for a system error code.
    [[noreturn]] static void PASCAL ThrowOsError(LONG lOsError, LPCTSTR lpszFileName = nullptr);

    int m_cause;
    LONG m_lOsError;
    CString m_strFileName;
};

/// An archive could not be read or written. `m_cause` says why.
class KMFC_API CArchiveException : public CException {
    DECLARE_DYNAMIC(CArchiveException)
public:
    enum { none, genericException, readOnly, endOfFile, writeOnly, badIndex, badClass, badSchema };

    explicit CArchiveException(int cause = none, LPCTSTR lpszArchiveName = nullptr);
    BOOL GetErrorMessage(LPTSTR lpszError, UINT nMaxError, PUINT pnHelpContext = nullptr) const override;

    int m_cause;
    CString m_strFileName;
};

[[noreturn]] KMFC_API void AFXAPI AfxThrowFileException(int cause, LONG lOsError = -1,
                                                        LPCTSTR lpszFileName = nullptr);
[[noreturn]] KMFC_API void AFXAPI AfxThrowArchiveException(int cause, LPCTSTR lpszArchiveName = nullptr);

/// A binary file without buffering. Closed by the destructor. Failures throw CFileException, save for Open,
/// which reports them to the exception object it is given.
class KMFC_API CFile : public CObject {
    DECLARE_DYNAMIC(CFile)
public:
    enum OpenFlags : UINT {
        modeRead = 0x0000,
        modeWrite = 0x0001,
        modeReadWrite = 0x0002,
        shareCompat = 0x0000,
        shareExclusive = 0x0010,
        shareDenyWrite = 0x0020,
        shareDenyRead = 0x0030,
        shareDenyNone = 0x0040,
        modeNoInherit = 0x0080,
        modeCreate = 0x1000,
        modeNoTruncate = 0x2000,
        typeText = 0x4000,
        typeBinary = 0x8000,
    };
    enum SeekPosition { begin = 0, current = 1, end = 2 };

    CFile();
    /// Opens the file; throws CFileException when it can't.
    CFile(LPCTSTR lpszFileName, UINT nOpenFlags);
    ~CFile() override;

    /// Opens the file; FALSE with the reason in `pError`, if given, when it can't.
    virtual BOOL Open(LPCTSTR lpszFileName, UINT nOpenFlags, CFileException* pError = nullptr);
    /// Bytes read: fewer than asked at the end of the file.
    virtual UINT Read(void* lpBuf, UINT nCount);
    virtual void Write(const void* lpBuf, UINT nCount);
    virtual void Flush();
    virtual void Close();
    /// Closes without throwing.
    virtual void Abort();
    /// Moves the position and answers it, in bytes from the start.
    virtual ULONGLONG Seek(LONGLONG lOff, UINT nFrom);
    void SeekToBegin() { Seek(0, begin); }
    ULONGLONG SeekToEnd() { return Seek(0, end); }
    virtual ULONGLONG GetPosition() const;
    virtual ULONGLONG GetLength() const;
    virtual void SetLength(ULONGLONG dwNewLen);

    virtual CString GetFilePath() const { return m_strFileName; }
    virtual CString GetFileName() const;   ///< the last part of the path
    virtual CString GetFileTitle() const;  ///< the file name without its extension
    virtual void SetFilePath(LPCTSTR lpszNewName) { m_strFileName = lpszNewName; }

    static void PASCAL Rename(LPCTSTR lpszOldName, LPCTSTR lpszNewName);
    static void PASCAL Remove(LPCTSTR lpszFileName);

    static inline void* const hFileNull = reinterpret_cast<void*>(static_cast<INT_PTR>(-1));
    void* m_hFile;  ///< the system's file handle (a FILE* natively), hFileNull when closed

protected:
    CString m_strFileName;
};

/// A file in memory that grows as it is written.
class KMFC_API CMemFile : public CFile {
    DECLARE_DYNAMIC(CMemFile)
public:
    /// Empty; grows by at least `nGrowBytes`.
    explicit CMemFile(UINT nGrowBytes = 1024);
    /// Over the memory of the caller, who keeps it; see Attach.
    CMemFile(BYTE* lpBuffer, UINT nBufferSize, UINT nGrowBytes = 0);
    ~CMemFile() override;

    /// Uses the memory of the caller, who keeps it and must let it outlive the file. With `nGrowBytes` 0 it
    /// is a file of `nBufferSize` bytes that cannot grow; otherwise an empty one that moves to memory of its
    /// own when full.
    void Attach(BYTE* lpBuffer, UINT nBufferSize, UINT nGrowBytes = 0);
    /// Gives the memory to the caller, who frees it with free() when the file allocated it; the file is empty
    /// then.
    BYTE* Detach();

    UINT Read(void* lpBuf, UINT nCount) override;
    void Write(const void* lpBuf, UINT nCount) override;
    void Flush() override {}
    void Close() override;
    void Abort() override { Close(); }
    ULONGLONG Seek(LONGLONG lOff, UINT nFrom) override;
    ULONGLONG GetPosition() const override { return m_nPosition; }
    ULONGLONG GetLength() const override { return m_nFileSize; }
    void SetLength(ULONGLONG dwNewLen) override;

private:
    void grow(size_t size);

    BYTE* m_lpBuffer = nullptr;
    size_t m_nBufferSize = 0;
    size_t m_nFileSize = 0;
    size_t m_nPosition = 0;
    size_t m_nGrowBytes = 0;
    bool m_bAutoDelete = true;
};
