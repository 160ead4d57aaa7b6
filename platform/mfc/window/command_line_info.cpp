// CCommandLineInfo, and how an application reads its command line.
#include <kmfc/command_line_info.h>

#include <shellapi.h>

#include <kmfc/app.h>

void CCommandLineInfo::ParseParam(const WCHAR* pszParam, BOOL bFlag, BOOL bLast) {
    if (bFlag)
        ParseParamFlag(pszParam);
    else
        ParseParamNotFlag(pszParam);
    ParseLast(bLast);
}

void CCommandLineInfo::ParseParam(const char* pszParam, BOOL bFlag, BOOL bLast) {
    ParseParam(CString(pszParam).GetString(), bFlag, bLast);
}

void CCommandLineInfo::ParseParamFlag(const WCHAR* pszParam) {
    // The printing flags are written small, the others in any case.
    const auto is = [&](const WCHAR* flag) { return ::_wcsicmp(pszParam, flag) == 0; };
    if (::wcscmp(pszParam, L"pt") == 0) {
        m_nShellCommand = FilePrintTo;
    } else if (::wcscmp(pszParam, L"p") == 0) {
        m_nShellCommand = FilePrint;
    } else if (is(L"Register") || is(L"Regserver")) {
        m_nShellCommand = AppRegister;
    } else if (is(L"Unregister") || is(L"Unregserver")) {
        m_nShellCommand = AppUnregister;
    } else if (is(L"dde")) {
        m_nShellCommand = FileDDE;
    } else if (is(L"Embedding")) {
        m_bRunEmbedded = TRUE;
        m_bShowSplash = FALSE;
    } else if (is(L"Automation")) {
        m_bRunAutomated = TRUE;
        m_bShowSplash = FALSE;
    }
}

void CCommandLineInfo::ParseParamNotFlag(const WCHAR* pszParam) {
    if (m_strFileName.IsEmpty()) {
        m_strFileName = pszParam;
    } else if (m_nShellCommand == FilePrintTo) {
        for (CString* next : {&m_strPrinterName, &m_strDriverName, &m_strPortName}) {
            if (!next->IsEmpty()) continue;
            *next = pszParam;
            return;
        }
    }
}

void CCommandLineInfo::ParseLast(BOOL bLast) {
    if (!bLast) return;
    if (m_nShellCommand == FileNew && !m_strFileName.IsEmpty()) m_nShellCommand = FileOpen;
    m_bShowSplash = !m_bRunEmbedded && !m_bRunAutomated;
}

void CWinApp::ParseCommandLine(CCommandLineInfo& rCmdInfo) {
    int count = 0;
    LPWSTR* parameters = ::CommandLineToArgvW(::GetCommandLineW(), &count);
    if (parameters == nullptr) return;
    for (int i = 1; i < count; ++i) {
        const WCHAR* parameter = parameters[i];
        const bool flag = *parameter == L'-' || *parameter == L'/';
        rCmdInfo.ParseParam(flag ? parameter + 1 : parameter, flag, i + 1 == count);
    }
    ::LocalFree(parameters);
}
