#include <cstdarg>
#include <cstdio>
#include <vector>

#include "afx.h"

namespace {

/// To the debugger, or to stderr where there is none.
void to_developer(LPCTSTR text) {
#ifdef _WIN32
    ::OutputDebugStringW(text);
#else
    std::fprintf(stderr, "%ls", text);
#endif
}

bool readable([[maybe_unused]] const void* begin, [[maybe_unused]] size_t bytes,
              [[maybe_unused]] bool writable) {
#ifdef _WIN32
    const auto* at = static_cast<const char*>(begin);
    const char* end = at + bytes;
    while (at < end) {
        MEMORY_BASIC_INFORMATION region;
        if (::VirtualQuery(at, &region, sizeof(region)) == 0 || region.State != MEM_COMMIT) return false;
        constexpr DWORD writes =
            PAGE_READWRITE | PAGE_WRITECOPY | PAGE_EXECUTE_READWRITE | PAGE_EXECUTE_WRITECOPY;
        if ((region.Protect & (PAGE_NOACCESS | PAGE_GUARD)) != 0) return false;
        if (writable && (region.Protect & writes) == 0) return false;
        at = static_cast<const char*>(region.BaseAddress) + region.RegionSize;
    }
#endif
    return true;
}

template <class Character>
BOOL ends_within(const Character* text, int length) {
    if (text == nullptr) return FALSE;
    for (int i = 0; length < 0 || i < length; ++i) {
        // Every page is asked for once.
        const auto address = reinterpret_cast<size_t>(text + i);
        if ((i == 0 || address % 4096 < sizeof(Character)) && !readable(text + i, sizeof(Character), false))
            return FALSE;
        if (text[i] == 0) return TRUE;
    }
    return length == 0 || readable(text, static_cast<size_t>(length) * sizeof(Character), false);
}

}  // namespace

CDumpContext afxDump;
BOOL afxTraceEnabled = TRUE;

CDumpContext::CDumpContext(CFile* pFile) : m_pFile(pFile) {}

void CDumpContext::Flush() {
    if (m_pFile != nullptr) m_pFile->Flush();
}

CDumpContext& CDumpContext::operator<<(LPCTSTR lpsz) {
    if (lpsz == nullptr) lpsz = L"(NULL)";
    if (m_pFile == nullptr) {
        to_developer(lpsz);
    } else {
        // A file holds lines as editors expect them.
        CString text(lpsz);
        text.Replace(L"\n", L"\r\n");
        const CStringA bytes(text);
        m_pFile->Write(bytes.GetString(), static_cast<UINT>(bytes.GetLength()));
    }
    return *this;
}

CDumpContext& CDumpContext::operator<<(LPCSTR lpsz) {
    return lpsz == nullptr ? *this << static_cast<LPCTSTR>(nullptr) : *this << CString(lpsz).GetString();
}

CDumpContext& CDumpContext::operator<<(const void* lp) {
    CString text;
    text.Format(L"$%p", lp);
    return *this << text.GetString();
}

CDumpContext& CDumpContext::operator<<(const CObject* pOb) {
    if (pOb == nullptr) return *this << L"NULL";
    pOb->Dump(*this);
    return *this;
}

CDumpContext& CDumpContext::operator<<(const CObject& ob) { return *this << &ob; }

CDumpContext& CDumpContext::operator<<(ULONGLONG n) {
    CString text;
    text.Format(L"%I64u", n);
    return *this << text.GetString();
}

CDumpContext& CDumpContext::operator<<(double d) {
    CString text;
    text.Format(L"%g", d);
    return *this << text.GetString();
}

CDumpContext& CDumpContext::number(LONGLONG n) {
    CString text;
    text.Format(L"%I64d", n);
    return *this << text.GetString();
}

void CDumpContext::HexDump(LPCTSTR lpszLine, BYTE* pby, int nBytes, int nWidth) {
    ENSURE_ARG(nBytes > 0 && nWidth > 0 && lpszLine != nullptr && pby != nullptr);
    for (int i = 0; i < nBytes; ++i) {
        if (i % nWidth == 0) *this << (i == 0 ? L"" : L"\n") << lpszLine;
        CString text;
        text.Format(L" %02X", pby[i]);
        *this << text.GetString();
    }
    *this << L"\n";
}

void AFXAPI AfxDump(const CObject* pOb) { afxDump << pOb; }

void AFX_CDECL AfxTrace(LPCTSTR lpszFormat, ...) {
    if (!afxTraceEnabled) return;
    va_list arguments;
    va_start(arguments, lpszFormat);
    CString text;
    text.FormatV(lpszFormat, arguments);
    va_end(arguments);
    to_developer(text);
}

void AFX_CDECL AfxTrace(LPCSTR lpszFormat, ...) {
    if (!afxTraceEnabled) return;
    va_list arguments;
    va_start(arguments, lpszFormat);
    CStringA text;
    text.FormatV(lpszFormat, arguments);
    va_end(arguments);
    to_developer(CString(text));
}

void AFXAPI AfxAssertValidObject(const CObject* pOb, LPCSTR lpszFileName, int nLine) {
    // The table of virtual functions is read, so the object must be there.
    if (pOb == nullptr || !AfxIsValidAddress(pOb, sizeof(CObject), FALSE))
        AfxAssertFailedLine(lpszFileName, nLine);
    pOb->AssertValid();
}

BOOL AFXAPI AfxIsValidAddress(const void* lp, size_t nBytes, BOOL bReadWrite) {
    return lp != nullptr && readable(lp, nBytes, bReadWrite != FALSE);
}

BOOL AFXAPI AfxIsValidString(LPCWSTR lpsz, int nLength) { return ends_within(lpsz, nLength); }
BOOL AFXAPI AfxIsValidString(LPCSTR lpsz, int nLength) { return ends_within(lpsz, nLength); }

BOOL AFXAPI AfxCheckMemory() { return TRUE; }

BOOL AFXAPI AfxEnableMemoryTracking(BOOL bTrack) {
    static BOOL tracks = FALSE;
    const BOOL former = tracks;
    tracks = bTrack;
    return former;
}
