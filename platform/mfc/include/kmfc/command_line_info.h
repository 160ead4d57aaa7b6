// CCommandLineInfo: what the program was asked to do by its command line.
#pragma once

#include <afx.h>

/// Filled by CWinApp::ParseCommandLine, one parameter at a time. A program that knows more parameters derives
/// from it and overrides ParseParam.
class KMFC_API CCommandLineInfo : public CObject {
public:
    enum {
        FileNew,  ///< no file was named
        FileOpen,
        FilePrint,    ///< /p FILE
        FilePrintTo,  ///< /pt FILE PRINTER DRIVER PORT
        FileDDE,      ///< /dde: the file comes by a DDE command
        AppRegister,
        AppUnregister,
        RestartByRestartManager,
        FileNothing = -1,
    };

    CCommandLineInfo() = default;

    BOOL m_bShowSplash = TRUE;
    BOOL m_bRunEmbedded = FALSE;   ///< /Embedding
    BOOL m_bRunAutomated = FALSE;  ///< /Automation
    int m_nShellCommand = FileNew;
    CString m_strFileName;
    CString m_strPrinterName;
    CString m_strDriverName;
    CString m_strPortName;
    CString m_strRestartIdentifier;

    /// One parameter: a flag without its mark if `bFlag`, and whether it is the last.
    virtual void ParseParam(const WCHAR* pszParam, BOOL bFlag, BOOL bLast);
    virtual void ParseParam(const char* pszParam, BOOL bFlag, BOOL bLast);

protected:
    void ParseParamFlag(const WCHAR* pszParam);
    void ParseParamNotFlag(const WCHAR* pszParam);
    void ParseLast(BOOL bLast);
};
