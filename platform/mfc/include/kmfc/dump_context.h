// CDumpContext: where objects describe themselves for a developer; tracing; checks of pointers.
#pragma once

#include "kmfc/object.h"

class CFile;

/// A stream of texts for diagnosis. Without a file they go to the debugger (natively to stderr).
class KMFC_API CDumpContext {
public:
    /// `pFile` belongs to the caller and must outlive the context.
    explicit CDumpContext(CFile* pFile = nullptr);
    CDumpContext(const CDumpContext&) = delete;
    CDumpContext& operator=(const CDumpContext&) = delete;

    /// 0: objects describe themselves only; above 0: what they hold too.
    int GetDepth() const { return m_nDepth; }
    void SetDepth(int nNewDepth) { m_nDepth = nNewDepth; }
    void Flush();
    /// Lines of `nWidth` bytes as two-digit hexadecimal numbers, each behind `lpszLine`.
    void HexDump(LPCTSTR lpszLine, BYTE* pby, int nBytes, int nWidth);

    CDumpContext& operator<<(LPCTSTR lpsz);
    CDumpContext& operator<<(LPCSTR lpsz);
    CDumpContext& operator<<(const void* lp);
    CDumpContext& operator<<(const CObject* pOb);
    CDumpContext& operator<<(const CObject& ob);
    CDumpContext& operator<<(BYTE by) { return number(by); }
    CDumpContext& operator<<(WORD w) { return number(w); }
    CDumpContext& operator<<(int n) { return number(n); }
    CDumpContext& operator<<(UINT u) { return number(u); }
#ifdef _WIN32
    CDumpContext& operator<<(DWORD dw) { return number(dw); }
    CDumpContext& operator<<(LONG l) { return number(l); }
#endif
    CDumpContext& operator<<(LONGLONG n) { return number(n); }
    CDumpContext& operator<<(ULONGLONG n);
    CDumpContext& operator<<(double d);
    CDumpContext& operator<<(float f) { return *this << static_cast<double>(f); }
    /// Handles print as addresses.
    CDumpContext& operator<<(const struct HWND__* window) {
        return *this << static_cast<const void*>(window);
    }

private:
    CDumpContext& number(LONGLONG n);

    CFile* m_pFile;
    int m_nDepth = 0;
};

/// Where AfxDump and programs write by default.
extern KMFC_API CDumpContext afxDump;
/// Whether TRACE writes anything.
extern KMFC_API BOOL afxTraceEnabled;

/// Writes an object's description to afxDump; from a debugger too.
KMFC_API void AFXAPI AfxDump(const CObject* pOb);
/// Formats a text and writes it to the debugger (natively to stderr), if afxTraceEnabled.
KMFC_API void AFX_CDECL AfxTrace(LPCTSTR lpszFormat, ...);
KMFC_API void AFX_CDECL AfxTrace(LPCSTR lpszFormat, ...);

/// Fails an assertion at `lpszFileName` and `nLine` unless `pOb` is a live object that holds its own
/// invariants.
KMFC_API void AFXAPI AfxAssertValidObject(const CObject* pOb, LPCSTR lpszFileName, int nLine);
/// Whether `nBytes` from `lp` on can be read, and written for `bReadWrite`.
KMFC_API BOOL AFXAPI AfxIsValidAddress(const void* lp, size_t nBytes, BOOL bReadWrite = TRUE);
/// Whether a text ends within `nLength` characters (anywhere for -1) and can be read up to there.
KMFC_API BOOL AFXAPI AfxIsValidString(LPCWSTR lpsz, int nLength = -1);
KMFC_API BOOL AFXAPI AfxIsValidString(LPCSTR lpsz, int nLength = -1);
/// Checks nothing here: the heap has no records of its own. Always TRUE.
KMFC_API BOOL AFXAPI AfxCheckMemory();
/// The same; answers what was set before.
KMFC_API BOOL AFXAPI AfxEnableMemoryTracking(BOOL bTrack);
/// Calls `pfn` with each class that is known, the base layers' too.
KMFC_API void AFXAPI AfxDoForAllClasses(void (*pfn)(const CRuntimeClass* pClass, void* pContext),
                                        void* pContext);

#ifdef _DEBUG
#define TRACE ::AfxTrace
#define THIS_FILE __FILE__
#else
#define TRACE(...) ((void)0)
#endif
#define TRACE0(text) TRACE(text)
#define TRACE1(text, a) TRACE(text, a)
#define TRACE2(text, a, b) TRACE(text, a, b)
#define TRACE3(text, a, b, c) TRACE(text, a, b, c)
#define ATLTRACE TRACE
/// Programs put `#define new DEBUG_NEW` into their units; the heap keeps no places here, so it is plain new.
#define DEBUG_NEW new
