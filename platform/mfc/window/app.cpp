// CWinApp: start and end of the application, its services.
#include <kmfc/app.h>
#include <kmfc/doc_manager.h>
#include <kmfc/ole_data.h>
#include <kmfc/recent_file_list.h>

#include "thread_state.h"

IMPLEMENT_DYNAMIC(CWinApp, CWinThread)

BEGIN_MESSAGE_MAP(CWinApp, CWinThread)
    ON_COMMAND(ID_APP_EXIT, &CWinApp::OnAppExit)
    ON_UPDATE_COMMAND_UI(ID_FILE_MRU_FILE1, &CWinApp::OnUpdateRecentFileMenu)
    ON_COMMAND_EX_RANGE(ID_FILE_MRU_FIRST, ID_FILE_MRU_LAST, &CWinApp::OnOpenRecentFile)
END_MESSAGE_MAP()

CWinApp::CWinApp(LPCTSTR lpszAppName) {
    if (lpszAppName != nullptr) {
        m_strAppName = lpszAppName;
        m_pszAppName = m_strAppName;
    }
    m_bAutoDelete = FALSE;
    m_nThreadID = ::GetCurrentThreadId();
    m_hThread = ::GetCurrentThread();
    AFX_MODULE_STATE* state = AfxGetModuleState();
    state->m_pCurrentWinApp = this;
    kmfc::thread_state().m_pCurrentWinThread = this;
}

CWinApp::~CWinApp() {
    SelectPrinter(nullptr, nullptr);
    delete m_pDocManager;
    delete m_pRecentFileList;
    AFX_MODULE_STATE* state = AfxGetModuleState();
    if (state->m_pCurrentWinApp == this) state->m_pCurrentWinApp = nullptr;
    if (state->m_lpszCurrentAppName == m_pszAppName) state->m_lpszCurrentAppName = nullptr;
}

BOOL CWinApp::InitApplication() { return TRUE; }
BOOL CWinApp::InitInstance() { return TRUE; }
int CWinApp::Run() {
    // Without a main window there is nothing to close that would end the pump.
    if (m_pMainWnd == nullptr) AfxPostQuitMessage(0);
    return CWinThread::Run();
}
int CWinApp::ExitInstance() {
    SaveStdProfileSettings();
    return CWinThread::ExitInstance();
}
BOOL CWinApp::OnIdle(LONG lCount) { return CWinThread::OnIdle(lCount); }

void CWinApp::OnAppExit() {
    if (m_pMainWnd != nullptr) m_pMainWnd->SendMessage(WM_CLOSE);
}

void CWinApp::EnableModeless(BOOL) {}

BOOL CWinApp::ProcessMessageFilter(int code, LPMSG lpMsg) {
    // F1 reaches the application from dialogs and menus too, if it has a handler for help.
    constexpr LPARAM repeated = 1 << 30;
    const bool asked = (code == MSGF_DIALOGBOX || code == MSGF_MENU) && lpMsg != nullptr &&
                       lpMsg->message == WM_KEYDOWN && lpMsg->wParam == VK_F1 &&
                       (lpMsg->lParam & repeated) == 0 && ::GetKeyState(VK_SHIFT) >= 0 &&
                       ::GetKeyState(VK_CONTROL) >= 0;
    CWnd* main = asked ? GetMainWnd() : nullptr;
    AFX_CMDHANDLERINFO handler;
    if (main != nullptr && main->OnCmdMsg(ID_HELP, CN_COMMAND, nullptr, &handler)) {
        main->SendMessage(WM_COMMAND, ID_HELP);
        return TRUE;
    }
    return CWinThread::ProcessMessageFilter(code, lpMsg);
}

void CWinApp::DoWaitCursor(int nCode) {
    m_nWaitCursorCount += nCode;
    if (m_nWaitCursorCount > 0) {
        HCURSOR previous = ::SetCursor(::LoadCursorW(nullptr, IDC_WAIT));
        if (nCode > 0 && m_nWaitCursorCount == 1) m_hcurWaitCursorRestore = previous;
    } else {
        m_nWaitCursorCount = 0;
        ::SetCursor(m_hcurWaitCursorRestore);
    }
}

HCURSOR CWinApp::LoadCursor(LPCTSTR lpszResourceName) const {
    return ::LoadCursorW(AfxFindResourceHandle(lpszResourceName, RT_GROUP_CURSOR), lpszResourceName);
}
HCURSOR CWinApp::LoadCursor(UINT nIDResource) const { return LoadCursor(MAKEINTRESOURCEW(nIDResource)); }
HICON CWinApp::LoadIcon(LPCTSTR lpszResourceName) const {
    return ::LoadIconW(AfxFindResourceHandle(lpszResourceName, RT_GROUP_ICON), lpszResourceName);
}
HICON CWinApp::LoadIcon(UINT nIDResource) const { return LoadIcon(MAKEINTRESOURCEW(nIDResource)); }

CWinApp* AfxGetApp() { return AfxGetModuleState()->m_pCurrentWinApp; }

LPCTSTR AfxGetAppName() {
    LPCTSTR name = AfxGetModuleState()->m_lpszCurrentAppName;
    return name != nullptr ? name : L"";
}

BOOL AfxWinInit(HINSTANCE hInstance, HINSTANCE, LPTSTR lpCmdLine, int nCmdShow) {
    AFX_MODULE_STATE* state = AfxGetModuleState();
    state->m_hCurrentInstanceHandle = hInstance;
    kmfc::install_message_filter();
    if (state->m_hCurrentResourceHandle == nullptr) state->m_hCurrentResourceHandle = hInstance;
    CWinApp* app = AfxGetApp();
    if (app == nullptr) return TRUE;
    kmfc::thread_state().m_pCurrentWinThread = app;
    app->m_hInstance = hInstance;
    app->m_strCmdLine = lpCmdLine != nullptr ? lpCmdLine : L"";
    app->m_lpCmdLine = const_cast<LPTSTR>(app->m_strCmdLine.GetString());
    app->m_nCmdShow = nCmdShow;

    wchar_t path[MAX_PATH] = {};
    ::GetModuleFileNameW(hInstance, path, MAX_PATH);
    CString name(path);
    name = name.Mid(name.ReverseFind(L'\\') + 1);
    const int dot = name.ReverseFind(L'.');
    if (dot > 0) name = name.Left(dot);
    app->m_strExeName = name;
    app->m_pszExeName = app->m_strExeName;
    if (app->m_pszAppName == nullptr) {
        wchar_t title[256];
        app->m_strAppName = AfxLoadString(AFX_IDS_APP_TITLE, title) != 0 ? CString(title) : name;
        app->m_pszAppName = app->m_strAppName;
    }
    state->m_lpszCurrentAppName = app->m_pszAppName;
    if (app->m_pszHelpFilePath == nullptr) {
        app->m_strHelpFilePath = path;
        app->SetHelpMode(app->m_eHelpType);
    }
    if (app->m_pszProfileName == nullptr) {
        app->m_strProfileName = name + L".INI";
        app->m_pszProfileName = app->m_strProfileName;
    }
    return TRUE;
}

void AfxWinTerm() {
    AfxOleTerm();
    CWnd::DeleteTempMap();
    CDC::DeleteTempMap();
    CGdiObject::DeleteTempMap();
    CMenu::DeleteTempMap();
}

int AfxWinMain(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPTSTR lpCmdLine, int nCmdShow) {
    CWinApp* app = AfxGetApp();
    if (!AfxWinInit(hInstance, hPrevInstance, lpCmdLine, nCmdShow) || app == nullptr) return -1;
    int result = -1;
    if (app->InitApplication()) {
        if (app->InitInstance()) {
            result = app->Run();
        } else {
            if (app->m_pMainWnd != nullptr) app->m_pMainWnd->DestroyWindow();
            result = app->ExitInstance();
        }
    }
    AfxWinTerm();
    return result;
}
