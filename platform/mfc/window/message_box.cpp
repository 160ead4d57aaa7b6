// AfxMessageBox, and strings from resources with their arguments.
#include <kmfc/app.h>

#include "thread_state.h"

int CWinApp::DoMessageBox(LPCTSTR lpszPrompt, UINT nType, UINT) {
    EnableModeless(FALSE);
    HWND disabledTop = nullptr;
    CWnd* owner = CWnd::GetSafeOwner(nullptr, &disabledTop);
    UINT type = nType;
    if ((type & MB_ICONMASK) == 0) {
        // Without a sign of its own a message takes the one that fits its buttons.
        const UINT buttons = type & MB_TYPEMASK;
        if (buttons == MB_OK || buttons == MB_OKCANCEL)
            type |= MB_ICONEXCLAMATION;
        else if (buttons == MB_YESNO || buttons == MB_YESNOCANCEL)
            type |= MB_ICONQUESTION;
    }
    const int result = ::MessageBoxW(kmfc::safe_handle(owner), lpszPrompt, AfxGetAppName(), type);
    if (disabledTop != nullptr) ::EnableWindow(disabledTop, TRUE);
    EnableModeless(TRUE);
    return result;
}

int AfxMessageBox(LPCTSTR lpszText, UINT nType, UINT nIDHelp) {
    if (CWinApp* app = AfxGetApp()) return app->DoMessageBox(lpszText, nType, nIDHelp);
    return ::MessageBoxW(nullptr, lpszText, AfxGetAppName(), nType);
}

int AfxMessageBox(UINT nIDPrompt, UINT nType, UINT nIDHelp) {
    CString text;
    if (!text.LoadString(nIDPrompt)) return -1;
    return AfxMessageBox(text, nType, nIDHelp == static_cast<UINT>(-1) ? nIDPrompt : nIDHelp);
}

int AfxLoadString(UINT nIDS, LPTSTR lpszBuf, UINT nMaxBuf) {
    const LPCTSTR block = MAKEINTRESOURCEW((nIDS >> 4) + 1);
    return ::LoadStringW(AfxFindResourceHandle(block, RT_STRING), nIDS, lpszBuf, static_cast<int>(nMaxBuf));
}

BOOL AfxExtractSubString(CString& rString, LPCTSTR lpszFullString, int iSubString, TCHAR chSep) {
    rString.Empty();
    if (lpszFullString == nullptr) return FALSE;
    for (; iSubString > 0; --iSubString) {
        lpszFullString = wcschr(lpszFullString, chSep);
        if (lpszFullString == nullptr) return FALSE;
        ++lpszFullString;
    }
    const wchar_t* end = wcschr(lpszFullString, chSep);
    rString = end != nullptr ? CString(lpszFullString, static_cast<int>(end - lpszFullString))
                             : CString(lpszFullString);
    return TRUE;
}

void AfxFormatStrings(CString& rString, LPCTSTR lpszFormat, LPCTSTR const* rglpsz, int nString) {
    CString result;
    for (const wchar_t* at = lpszFormat; *at != 0; ++at) {
        if (at[0] != L'%' || at[1] < L'1' || at[1] > L'9') {
            result += *at;
            continue;
        }
        const int index = at[1] - L'1';
        if (index < nString && rglpsz[index] != nullptr)
            result += rglpsz[index];
        else if (index >= nString)
            result += L'?';
        ++at;
    }
    rString = result;
}

void AfxFormatString1(CString& rString, UINT nIDS, LPCTSTR lpsz1) {
    CString format;
    format.LoadString(nIDS);
    AfxFormatStrings(rString, format, &lpsz1, 1);
}

void AfxFormatString2(CString& rString, UINT nIDS, LPCTSTR lpsz1, LPCTSTR lpsz2) {
    CString format;
    format.LoadString(nIDS);
    const LPCTSTR arguments[2] = {lpsz1, lpsz2};
    AfxFormatStrings(rString, format, arguments, 2);
}
