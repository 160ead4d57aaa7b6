// CWinApp: recent files, help, and what else an application offers its windows.
#include <kmfc/app.h>
#include <kmfc/recent_file_list.h>

namespace {

constexpr LPCTSTR kRecentFiles = L"Recent File List";
constexpr LPCTSTR kRecentFile = L"File%d";
constexpr LPCTSTR kSettings = L"Settings";
constexpr LPCTSTR kPreviewPages = L"PreviewPages";

using HtmlHelpFunction = HWND(WINAPI*)(HWND, LPCWSTR, UINT, DWORD_PTR);

/// The system's viewer of compiled help, loaded when it is first asked for.
HtmlHelpFunction html_help() {
    static HMODULE const module = ::LoadLibraryW(L"hhctrl.ocx");
    return module != nullptr ? reinterpret_cast<HtmlHelpFunction>(
                                   reinterpret_cast<void*>(::GetProcAddress(module, "HtmlHelpW")))
                             : nullptr;
}

}  // namespace

void CWinApp::LoadStdProfileSettings(UINT nMaxMRU) {
    if (nMaxMRU != 0) {
        ENSURE(m_pRecentFileList == nullptr);
        m_pRecentFileList = new CRecentFileList(0, kRecentFiles, kRecentFile, static_cast<int>(nMaxMRU));
        m_pRecentFileList->ReadList();
    }
    m_nNumPreviewPages = GetProfileInt(kSettings, kPreviewPages, 0);
}

void CWinApp::SaveStdProfileSettings() {
    if (m_pRecentFileList != nullptr) m_pRecentFileList->WriteList();
    if (m_nNumPreviewPages != 0)
        WriteProfileInt(kSettings, kPreviewPages, static_cast<int>(m_nNumPreviewPages));
}

void CWinApp::AddToRecentFileList(LPCTSTR lpszPathName) {
    ENSURE_ARG(lpszPathName != nullptr);
    if (m_pRecentFileList != nullptr) m_pRecentFileList->Add(lpszPathName);
}

void CWinApp::OnUpdateRecentFileMenu(CCmdUI* pCmdUI) {
    if (m_pRecentFileList == nullptr)
        pCmdUI->Enable(FALSE);
    else
        m_pRecentFileList->UpdateMenu(pCmdUI);
}

BOOL CWinApp::OnOpenRecentFile(UINT nID) {
    const int index = static_cast<int>(nID - ID_FILE_MRU_FILE1);
    if (m_pRecentFileList == nullptr || index < 0 || index >= m_pRecentFileList->GetSize()) return FALSE;
    // A file that can't be opened any more leaves the list.
    const CString path = (*m_pRecentFileList)[index];
    if (OpenDocumentFile(path) == nullptr) m_pRecentFileList->Remove(index);
    return TRUE;
}

void CWinApp::WinHelp(DWORD_PTR dwData, UINT nCmd) {
    if (m_eHelpType == afxHTMLHelp)
        return HtmlHelp(dwData, nCmd == HELP_CONTEXT ? HH_HELP_CONTEXT_COMMAND : 0);
    const CWaitCursor wait;
    CWnd* main = AfxGetMainWnd();
    if (!::WinHelpW(kmfc::safe_handle(main), m_pszHelpFilePath, nCmd, dwData))
        AfxMessageBox(AFX_IDP_FAILED_TO_LAUNCH_HELP);
}

void CWinApp::HtmlHelp(DWORD_PTR dwData, UINT nCmd) {
    const CWaitCursor wait;
    CWnd* main = AfxGetMainWnd();
    const HtmlHelpFunction show = html_help();
    if (show == nullptr || show(kmfc::safe_handle(main), m_pszHelpFilePath, nCmd, dwData) == nullptr)
        AfxMessageBox(AFX_IDP_FAILED_TO_LAUNCH_HELP);
}

void CWinApp::EnableHtmlHelp() { SetHelpMode(afxHTMLHelp); }

void CWinApp::SetHelpMode(AFX_HELP_TYPE eHelpType) {
    m_eHelpType = eHelpType;
    const int dot = m_strHelpFilePath.ReverseFind(L'.');
    if (dot < 0) return;
    m_strHelpFilePath = m_strHelpFilePath.Left(dot) + (eHelpType == afxHTMLHelp ? L".CHM" : L".HLP");
    m_pszHelpFilePath = m_strHelpFilePath;
}

void CWinApp::OnHelp() {
    if (CWnd* main = AfxGetMainWnd()) main->OnHelp();
}
void CWinApp::OnHelpIndex() { WinHelp(0, HELP_INDEX); }
void CWinApp::OnHelpFinder() { WinHelp(0, HELP_FINDER); }
void CWinApp::OnHelpUsing() { WinHelp(0, HELP_HELPONHELP); }

HCURSOR CWinApp::LoadOEMCursor(UINT nIDCursor) const {
    return ::LoadCursorW(nullptr, MAKEINTRESOURCEW(nIDCursor));
}
HICON CWinApp::LoadOEMIcon(UINT nIDIcon) const { return ::LoadIconW(nullptr, MAKEINTRESOURCEW(nIDIcon)); }

HKEY CWinApp::GetAppRegistryKey() {
    if (m_pszRegistryKey == nullptr) return nullptr;
    HKEY key = nullptr;
    const CString path = CString(L"Software\\") + m_pszRegistryKey + L"\\" + m_pszProfileName;
    ::RegCreateKeyExW(HKEY_CURRENT_USER, path, 0, nullptr, REG_OPTION_NON_VOLATILE, KEY_READ | KEY_WRITE,
                      nullptr, &key, nullptr);
    return key;
}

HKEY CWinApp::GetSectionKey(LPCTSTR lpszSection) {
    ENSURE_ARG(lpszSection != nullptr);
    HKEY application = GetAppRegistryKey(), section = nullptr;
    if (application == nullptr) return nullptr;
    ::RegCreateKeyExW(application, lpszSection, 0, nullptr, REG_OPTION_NON_VOLATILE, KEY_READ | KEY_WRITE,
                      nullptr, &section, nullptr);
    ::RegCloseKey(application);
    return section;
}

LONG CWinApp::DelRegTree(HKEY hParentKey, const CString& strKeyName) {
    return ::RegDeleteTreeW(hParentKey, strKeyName);
}
