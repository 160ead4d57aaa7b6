// CWinApp: what an application does with its documents.
#include <kmfc/app.h>
#include <kmfc/command_line_info.h>
#include <kmfc/doc_manager.h>
#include <kmfc/doc_template.h>
#include <kmfc/frame.h>

void CWinApp::AddDocTemplate(CDocTemplate* pTemplate) {
    if (m_pDocManager == nullptr) m_pDocManager = new CDocManager;
    m_pDocManager->AddDocTemplate(pTemplate);
}

POSITION CWinApp::GetFirstDocTemplatePosition() const {
    return m_pDocManager != nullptr ? m_pDocManager->GetFirstDocTemplatePosition() : nullptr;
}

CDocTemplate* CWinApp::GetNextDocTemplate(POSITION& pos) const {
    return m_pDocManager->GetNextDocTemplate(pos);
}

CDocument* CWinApp::OpenDocumentFile(LPCTSTR lpszFileName) {
    return m_pDocManager != nullptr ? m_pDocManager->OpenDocumentFile(lpszFileName) : nullptr;
}

CDocument* CWinApp::OpenDocumentFile(LPCTSTR lpszFileName, BOOL bAddToMRU) {
    return m_pDocManager != nullptr ? m_pDocManager->OpenDocumentFile(lpszFileName, bAddToMRU) : nullptr;
}

int CWinApp::GetOpenDocumentCount() {
    return m_pDocManager != nullptr ? m_pDocManager->GetOpenDocumentCount() : 0;
}

BOOL CWinApp::SaveAllModified() { return m_pDocManager == nullptr || m_pDocManager->SaveAllModified(); }

void CWinApp::CloseAllDocuments(BOOL bEndSession) {
    if (m_pDocManager != nullptr) m_pDocManager->CloseAllDocuments(bEndSession);
}

void CWinApp::HideApplication() {
    if (m_pMainWnd == nullptr) return;
    m_pMainWnd->ShowWindow(SW_HIDE);
    m_pMainWnd->ShowOwnedPopups(FALSE);
    // Another program comes forward now, not when the window goes.
    m_pMainWnd->SetWindowPos(&CWnd::wndBottom, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
}

BOOL CWinApp::DoPromptFileName(CString& fileName, UINT nIDSTitle, DWORD lFlags, BOOL bOpenFileDialog,
                               CDocTemplate* pTemplate) {
    return m_pDocManager != nullptr &&
           m_pDocManager->DoPromptFileName(fileName, nIDSTitle, lFlags, bOpenFileDialog, pTemplate);
}

void CWinApp::RegisterShellFileTypes(BOOL bCompat) {
    if (m_pDocManager != nullptr) m_pDocManager->RegisterShellFileTypes(bCompat);
}

void CWinApp::UnregisterShellFileTypes() {
    if (m_pDocManager != nullptr) m_pDocManager->UnregisterShellFileTypes();
}

void CWinApp::OnFileNew() {
    if (m_pDocManager != nullptr) m_pDocManager->OnFileNew();
}

void CWinApp::OnFileOpen() {
    if (m_pDocManager != nullptr) m_pDocManager->OnFileOpen();
}

BOOL CWinApp::ProcessShellCommand(CCommandLineInfo& rCmdInfo) {
    switch (rCmdInfo.m_nShellCommand) {
        case CCommandLineInfo::FileNew:
            // A program that makes its first document in another way handles the command itself.
            if (!OnCmdMsg(ID_FILE_NEW, CN_COMMAND, nullptr, nullptr)) OnFileNew();
            return m_pMainWnd != nullptr;
        case CCommandLineInfo::FileOpen: return OpenDocumentFile(rCmdInfo.m_strFileName) != nullptr;
        case CCommandLineInfo::FilePrint:
        case CCommandLineInfo::FilePrintTo:
            m_nCmdShow = SW_HIDE;
            if (OpenDocumentFile(rCmdInfo.m_strFileName, FALSE) != nullptr && m_pMainWnd != nullptr) {
                m_pCmdInfo = &rCmdInfo;
                m_pMainWnd->SendMessage(WM_COMMAND, ID_FILE_PRINT_DIRECT);
                m_pCmdInfo = nullptr;
            }
            return FALSE;
        case CCommandLineInfo::AppRegister: RegisterShellFileTypes(TRUE); return FALSE;
        case CCommandLineInfo::AppUnregister: UnregisterShellFileTypes(); return FALSE;
        default: return TRUE;
    }
}
