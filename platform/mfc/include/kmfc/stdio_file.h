// CStdioFile: a buffered file of the run-time library, of text or of bytes.
#pragma once

#include <cstdio>

#include "kmfc/file.h"

/// A stream. Without typeBinary it is one of text: a line end is a single "\n" to the caller, and what the
/// system has for it in the file. Texts in a file are in the system's code page (UTF-8 natively). Failures
/// throw CFileException, save for Open.
class KMFC_API CStdioFile : public CFile {
    DECLARE_DYNAMIC(CStdioFile)
public:
    CStdioFile() = default;
    /// Over a stream that stays the caller's unless Close is called.
    explicit CStdioFile(FILE* pOpenStream);
    /// Opens the file; throws CFileException when it can't.
    CStdioFile(LPCTSTR lpszFileName, UINT nOpenFlags);
    ~CStdioFile() override;

    BOOL Open(LPCTSTR lpszFileName, UINT nOpenFlags, CFileException* pError = nullptr) override;

    /// Reads up to and with the next line end, at most `nMax` - 1 characters, and puts a zero behind them.
    /// `lpsz`, or null at the end of the file.
    virtual LPTSTR ReadString(LPTSTR lpsz, UINT nMax);
    /// Reads a line, without its end. FALSE at the end of the file.
    virtual BOOL ReadString(CString& rString);
    virtual void WriteString(LPCTSTR lpsz);

    UINT Read(void* lpBuf, UINT nCount) override;
    void Write(const void* lpBuf, UINT nCount) override;
    void Flush() override;
    void Close() override;
    void Abort() override;
    ULONGLONG Seek(LONGLONG lOff, UINT nFrom) override;
    ULONGLONG GetPosition() const override;
    ULONGLONG GetLength() const override;
    void SetLength(ULONGLONG dwNewLen) override;

    FILE* m_pStream = nullptr;  ///< null when closed

private:
    /// Forgets the stream and answers it.
    FILE* detach_stream();

    bool m_bOwnStream = false;  ///< opened here
};
