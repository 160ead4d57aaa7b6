#include "kmfc/stdio_file.h"

#include <cerrno>
#include <string>
#include <string_view>
#include <utility>

#include "kmfc/text_conversion.h"
#include "system_file.h"

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#else
#include <unistd.h>
#endif

IMPLEMENT_DYNAMIC(CStdioFile, CFile)

namespace {

constexpr int kOrigins[] = {SEEK_SET, SEEK_CUR, SEEK_END};

/// Bytes of a character in UTF-8 by its first one.
size_t utf8_length(unsigned char lead) { return lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : lead >= 0xC0 ? 2 : 1; }

#ifdef _WIN32

/// Bytes of a character in a file by its first one.
size_t length_of(unsigned char lead) {
    if (::GetACP() == CP_UTF8) return utf8_length(lead);
    return ::IsDBCSLeadByte(lead) ? 2 : 1;
}

/// A stream over an open file, which goes over to it; null, with the file closed, on failure.
FILE* stream_over(void* file, UINT flags) {
    const bool binary = (flags & CFile::typeBinary) != 0;
    const UINT access = flags & 3;
    const int descriptor =
        ::_open_osfhandle(reinterpret_cast<intptr_t>(file),
                          (binary ? _O_BINARY : _O_TEXT) | (access == CFile::modeRead ? _O_RDONLY : 0));
    if (descriptor < 0) {
        kmfc::system_file::close(file);
        return nullptr;
    }
    std::string mode = access == CFile::modeRead ? "r" : access == CFile::modeWrite ? "w" : "r+";
    mode += binary ? 'b' : 't';
    FILE* stream = ::_fdopen(descriptor, mode.c_str());
    if (!stream) ::_close(descriptor);
    return stream;
}

int seek_to(FILE* stream, LONGLONG offset, int origin) { return ::_fseeki64(stream, offset, origin); }
LONGLONG place_in(FILE* stream) { return ::_ftelli64(stream); }
int cut(FILE* stream, ULONGLONG length) {
    return ::_chsize_s(::_fileno(stream), static_cast<LONGLONG>(length));
}

#else

size_t length_of(unsigned char lead) { return utf8_length(lead); }
FILE* stream_over(void* file, UINT) { return static_cast<FILE*>(file); }
int seek_to(FILE* stream, LONGLONG offset, int origin) {
    return ::fseeko(stream, static_cast<off_t>(offset), origin);
}
LONGLONG place_in(FILE* stream) { return ::ftello(stream); }
int cut(FILE* stream, ULONGLONG length) { return ::ftruncate(fileno(stream), static_cast<off_t>(length)); }

#endif

[[noreturn]] void fail(int cause, const CString& name) { AfxThrowFileException(cause, errno, name); }

/// A character of the most bytes becomes this many of the caller's at most.
size_t room_for(size_t bytes) { return sizeof(wchar_t) == 2 && bytes == 4 ? 2 : 1; }

/// Reads to the end of the line, which comes with it, or until the next character would go beyond `room`.
std::wstring read_line(FILE* stream, size_t room) {
    std::wstring line;
    while (line.size() < room) {
        const int lead = std::fgetc(stream);
        if (lead == EOF) break;
        const size_t length = length_of(static_cast<unsigned char>(lead));
        if (line.size() + room_for(length) > room) {
            std::ungetc(lead, stream);
            break;
        }
        std::string bytes(1, static_cast<char>(lead));
        for (int next; bytes.size() < length && (next = std::fgetc(stream)) != EOF;)
            bytes.push_back(static_cast<char>(next));
        line += kmfc::widen(bytes);
        if (lead == '\n') break;
    }
    return line;
}

}  // namespace

CStdioFile::CStdioFile(FILE* pOpenStream) : m_pStream(pOpenStream) {}

CStdioFile::CStdioFile(LPCTSTR lpszFileName, UINT nOpenFlags) {
    CFileException error;
    if (!CStdioFile::Open(lpszFileName, nOpenFlags, &error))
        AfxThrowFileException(error.m_cause, error.m_lOsError, error.m_strFileName);
}

CStdioFile::~CStdioFile() {
    if (m_bOwnStream) CStdioFile::Abort();
}

BOOL CStdioFile::Open(LPCTSTR lpszFileName, UINT nOpenFlags, CFileException* pError) {
    if (!CFile::Open(lpszFileName, nOpenFlags, pError)) return FALSE;
    // Only the stream closes the file from now on.
    void* file = std::exchange(m_hFile, hFileNull);
    m_pStream = stream_over(file, nOpenFlags);
    if (!m_pStream) {
        if (pError) pError->m_cause = CFileException::tooManyOpenFiles;
        m_strFileName.Empty();
        return FALSE;
    }
    m_bOwnStream = true;
    return TRUE;
}

LPTSTR CStdioFile::ReadString(LPTSTR lpsz, UINT nMax) {
    if (nMax == 0) return nullptr;
    const std::wstring line = read_line(m_pStream, nMax - 1);
    if (std::ferror(m_pStream)) fail(CFileException::genericException, m_strFileName);
    line.copy(lpsz, line.size());
    lpsz[line.size()] = L'\0';
    return line.empty() && std::feof(m_pStream) ? nullptr : lpsz;
}

BOOL CStdioFile::ReadString(CString& rString) {
    std::wstring line = read_line(m_pStream, static_cast<size_t>(-1));
    if (std::ferror(m_pStream)) fail(CFileException::genericException, m_strFileName);
    const bool ended = !line.empty() && line.back() == L'\n';
    if (ended) line.pop_back();
    rString.SetString(line.data(), static_cast<int>(line.size()));
    return ended || !line.empty();
}

void CStdioFile::WriteString(LPCTSTR lpsz) {
    const std::string bytes = kmfc::narrow(lpsz ? std::wstring_view(lpsz) : std::wstring_view());
    Write(bytes.data(), static_cast<UINT>(bytes.size()));
}

UINT CStdioFile::Read(void* lpBuf, UINT nCount) {
    if (nCount == 0) return 0;
    const size_t count = std::fread(lpBuf, 1, nCount, m_pStream);
    if (std::ferror(m_pStream)) fail(CFileException::genericException, m_strFileName);
    return static_cast<UINT>(count);
}

void CStdioFile::Write(const void* lpBuf, UINT nCount) {
    if (nCount != 0 && std::fwrite(lpBuf, 1, nCount, m_pStream) != nCount)
        fail(CFileException::genericException, m_strFileName);
}

void CStdioFile::Flush() {
    if (m_pStream && std::fflush(m_pStream) != 0) fail(CFileException::diskFull, m_strFileName);
}

FILE* CStdioFile::detach_stream() {
    m_bOwnStream = false;
    return std::exchange(m_pStream, nullptr);
}

void CStdioFile::Close() {
    FILE* stream = detach_stream();
    const CString name = m_strFileName;
    m_strFileName.Empty();
    if (stream && std::fclose(stream) != 0) fail(CFileException::diskFull, name);
}

void CStdioFile::Abort() {
    const bool own = m_bOwnStream;
    FILE* stream = detach_stream();
    m_strFileName.Empty();
    if (stream && own) std::fclose(stream);
}

ULONGLONG CStdioFile::Seek(LONGLONG lOff, UINT nFrom) {
    if (nFrom > end) AfxThrowInvalidArgException();
    if (seek_to(m_pStream, lOff, kOrigins[nFrom]) != 0) fail(CFileException::badSeek, m_strFileName);
    return GetPosition();
}

ULONGLONG CStdioFile::GetPosition() const {
    const LONGLONG position = place_in(m_pStream);
    if (position < 0) fail(CFileException::invalidFile, m_strFileName);
    return static_cast<ULONGLONG>(position);
}

ULONGLONG CStdioFile::GetLength() const {
    const LONGLONG position = place_in(m_pStream);
    const bool found = position >= 0 && seek_to(m_pStream, 0, SEEK_END) == 0;
    const LONGLONG length = found ? place_in(m_pStream) : -1;
    if (length < 0 || seek_to(m_pStream, position, SEEK_SET) != 0)
        fail(CFileException::badSeek, m_strFileName);
    return static_cast<ULONGLONG>(length);
}

void CStdioFile::SetLength(ULONGLONG dwNewLen) {
    Flush();
    if (cut(m_pStream, dwNewLen) != 0) fail(CFileException::genericException, m_strFileName);
    Seek(0, end);
}
