// CWinApp: the application object; AfxMessageBox and the other services that go through it.
#pragma once

#include <afxres.h>
#include <kmfc/position.h>
#include <kmfc/module_state.h>
#include <kmfc/thread.h>

class CCommandLineInfo;
class CDC;
class CDocManager;
class CDocTemplate;
class CDocument;
class CFrameWnd;
class CPrintDialog;
class CView;
class CRecentFileList;

/// Which viewer shows the application's help.
enum AFX_HELP_TYPE { afxWinHelp = 0, afxHTMLHelp = 1 };

class KMFC_API CWinApp : public CWinThread {
    DECLARE_DYNAMIC(CWinApp)
public:
    explicit CWinApp(LPCTSTR lpszAppName = nullptr);
    ~CWinApp() override;
    CWinApp(const CWinApp&) = delete;
    CWinApp& operator=(const CWinApp&) = delete;

    HINSTANCE m_hInstance = nullptr;
    LPTSTR m_lpCmdLine = nullptr;
    int m_nCmdShow = SW_SHOWNORMAL;
    LPCTSTR m_pszAppName = nullptr;
    LPCTSTR m_pszExeName = nullptr;
    LPCTSTR m_pszRegistryKey = nullptr;  ///< company name after SetRegistryKey
    LPCTSTR m_pszProfileName =
        nullptr;  ///< application name after SetRegistryKey, otherwise an .INI file's name

    LPCTSTR m_pszHelpFilePath = nullptr;  ///< the program's path with .HLP, or .CHM after EnableHtmlHelp
    AFX_HELP_TYPE m_eHelpType = afxWinHelp;
    DWORD m_dwPromptContext = 0;  ///< help context of the message box that is open
    UINT m_nNumPreviewPages = 0;  ///< pages side by side in a print preview
    CCommandLineInfo* m_pCmdInfo = nullptr;
    CRecentFileList* m_pRecentFileList = nullptr;  ///< after LoadStdProfileSettings; the application's own

    BOOL InitInstance() override;
    int Run() override;
    /// Writes the recent files and what else LoadStdProfileSettings read.
    int ExitInstance() override;
    BOOL OnIdle(LONG lCount) override;
    virtual BOOL InitApplication();
    BOOL ProcessMessageFilter(int code, LPMSG lpMsg) override;

    /// Hands the parameters of the command line to `rCmdInfo`, one by one.
    void ParseCommandLine(CCommandLineInfo& rCmdInfo);
    /// Reads the list of recent files (none for 0) and the number of preview pages. Once only.
    void LoadStdProfileSettings(UINT nMaxMRU = 4);
    /// Puts a file first in the list of recent files, if there is one.
    virtual void AddToRecentFileList(LPCTSTR lpszPathName);

    // Documents.
    /// Hands the application a template, which it owns from here on.
    void AddDocTemplate(CDocTemplate* pTemplate);
    POSITION GetFirstDocTemplatePosition() const;
    CDocTemplate* GetNextDocTemplate(POSITION& pos) const;
    /// Opens a file by the template that fits; null when none does or it can't be opened, which is told to
    /// the user.
    virtual CDocument* OpenDocumentFile(LPCTSTR lpszFileName);
    virtual CDocument* OpenDocumentFile(LPCTSTR lpszFileName, BOOL bAddToMRU);
    int GetOpenDocumentCount();
    /// Asks for each document that was changed whether to save it; FALSE when the user cancels.
    virtual BOOL SaveAllModified();
    void CloseAllDocuments(BOOL bEndSession);
    /// Hides the main window before the documents close.
    void HideApplication();
    /// Does what the command line asks for. FALSE when that failed, or when the program is not to go on.
    BOOL ProcessShellCommand(CCommandLineInfo& rCmdInfo);
    /// See CDocManager::RegisterShellFileTypes.
    void RegisterShellFileTypes(BOOL bCompat = FALSE);
    void UnregisterShellFileTypes();
    /// See CDocManager::DoPromptFileName.
    virtual BOOL DoPromptFileName(CString& fileName, UINT nIDSTitle, DWORD lFlags, BOOL bOpenFileDialog,
                                  CDocTemplate* pTemplate);
    CDocManager* m_pDocManager = nullptr;  ///< after AddDocTemplate; the application's own
    /// Null before SetRegistryKey. The caller closes the key.
    HKEY GetAppRegistryKey();
    HKEY GetSectionKey(LPCTSTR lpszSection);
    LONG DelRegTree(HKEY hParentKey, const CString& strKeyName);

    /// Shows the help of context `dwData`; a message tells when it can't be shown.
    virtual void WinHelp(DWORD_PTR dwData, UINT nCmd = HELP_CONTEXT);
    virtual void HtmlHelp(DWORD_PTR dwData, UINT nCmd = HH_HELP_CONTEXT_COMMAND);
    static constexpr UINT HH_HELP_CONTEXT_COMMAND = 0x000F;
    void EnableHtmlHelp();
    void SetHelpMode(AFX_HELP_TYPE eHelpType);
    AFX_HELP_TYPE GetHelpMode() const { return m_eHelpType; }
    HCURSOR LoadOEMCursor(UINT nIDCursor) const;
    HICON LoadOEMIcon(UINT nIDIcon) const;
    /// Shows a message box on behalf of AfxMessageBox.
    virtual int DoMessageBox(LPCTSTR lpszPrompt, UINT nType, UINT nIDPrompt);
    virtual void DoWaitCursor(int nCode);  ///< 1 begins, 0 restores, -1 ends
    virtual void EnableModeless(BOOL bEnable);

    HCURSOR LoadCursor(LPCTSTR lpszResourceName) const;
    HCURSOR LoadCursor(UINT nIDResource) const;
    HCURSOR LoadStandardCursor(LPCTSTR lpszCursorName) const {
        return ::LoadCursorW(nullptr, lpszCursorName);
    }
    HICON LoadIcon(LPCTSTR lpszResourceName) const;
    HICON LoadIcon(UINT nIDResource) const;
    HICON LoadStandardIcon(LPCTSTR lpszIconName) const { return ::LoadIconW(nullptr, lpszIconName); }

    /// From here on the profile functions use HKEY_CURRENT_USER\Software\<company>\<application>.
    void SetRegistryKey(LPCTSTR lpszRegistryKey);
    UINT GetProfileInt(LPCTSTR lpszSection, LPCTSTR lpszEntry, int nDefault);
    BOOL WriteProfileInt(LPCTSTR lpszSection, LPCTSTR lpszEntry, int nValue);
    CString GetProfileString(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPCTSTR lpszDefault = nullptr);
    /// A null entry deletes the section, a null value the entry.
    BOOL WriteProfileString(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPCTSTR lpszValue);
    /// `*ppData` is allocated with new[] and belongs to the caller.
    BOOL GetProfileBinary(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPBYTE* ppData, UINT* pBytes);
    BOOL WriteProfileBinary(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPBYTE pData, UINT nBytes);

    // The program's printer, which is the system's default one until the user chose another.
    /// Fills in the settings of the printer; they stay the application's. FALSE without a printer.
    BOOL GetPrinterDeviceDefaults(struct tagPDW* pPrintDlg);
    /// Takes other settings, blocks of GlobalAlloc, which belong to the application from here on. The former
    /// ones are freed with `bFreeOld`.
    void SelectPrinter(HANDLE hDevNames, HANDLE hDevMode, BOOL bFreeOld = TRUE);
    /// Attaches a device context of the printer to `dc`.
    BOOL CreatePrinterDC(CDC& dc);
    /// Shows a print dialog with the program's printer, and keeps the one that was chosen in it.
    INT_PTR DoPrintDialog(CPrintDialog* pPD);

    /// Handlers for the map of the application: a new document, and one that the user chooses.
    afx_msg void OnFileNew();
    afx_msg void OnFileOpen();
    afx_msg void OnAppExit();
    /// Asks for the printer.
    afx_msg void OnFilePrintSetup();
    afx_msg void OnHelp();
    afx_msg void OnHelpIndex();
    afx_msg void OnHelpFinder();
    afx_msg void OnHelpUsing();
    afx_msg void OnUpdateRecentFileMenu(CCmdUI* pCmdUI);
    afx_msg BOOL OnOpenRecentFile(UINT nID);

protected:
    void SaveStdProfileSettings();
    /// Takes the system's default printer where there is none yet.
    void find_printer();

    HGLOBAL m_hDevMode = nullptr;  ///< settings of the printer
    HGLOBAL m_hDevNames = nullptr;

private:
    CString m_strAppName, m_strExeName, m_strRegistryKey, m_strProfileName, m_strCmdLine, m_strHelpFilePath;
    int m_nWaitCursorCount = 0;
    HCURSOR m_hcurWaitCursorRestore = nullptr;

    friend KMFC_API int AfxWinMain(HINSTANCE, HINSTANCE, LPTSTR, int);
    friend KMFC_API BOOL AfxWinInit(HINSTANCE, HINSTANCE, LPTSTR, int);
    DECLARE_MESSAGE_MAP()
};

KMFC_API CWinApp* AfxGetApp();
KMFC_API LPCTSTR AfxGetAppName();
KMFC_API BOOL AfxWinInit(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPTSTR lpCmdLine, int nCmdShow);
KMFC_API int AfxWinMain(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPTSTR lpCmdLine, int nCmdShow);
KMFC_API void AfxWinTerm();

KMFC_API int AfxMessageBox(LPCTSTR lpszText, UINT nType = MB_OK, UINT nIDHelp = 0);
KMFC_API int AfxMessageBox(UINT nIDPrompt, UINT nType = MB_OK, UINT nIDHelp = static_cast<UINT>(-1));
KMFC_API int AfxLoadString(UINT nIDS, LPTSTR lpszBuf, UINT nMaxBuf = 256);
/// Piece `iSubString` of a text of pieces separated by `chSep`; FALSE when there is none.
KMFC_API BOOL AfxExtractSubString(CString& rString, LPCTSTR lpszFullString, int iSubString,
                                  TCHAR chSep = '\n');
KMFC_API void AfxFormatString1(CString& rString, UINT nIDS, LPCTSTR lpsz1);
KMFC_API void AfxFormatString2(CString& rString, UINT nIDS, LPCTSTR lpsz1, LPCTSTR lpsz2);
KMFC_API void AfxFormatStrings(CString& rString, LPCTSTR lpszFormat, LPCTSTR const* rglpsz, int nString);
