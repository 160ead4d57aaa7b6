// CWinThread: the pump, idle time, thread start and end.
#include <kmfc/thread.h>

#include <process.h>

#include <kmfc/app.h>

#include "thread_state.h"

using kmfc::thread_state;

IMPLEMENT_DYNAMIC(CWinThread, CCmdTarget)

BEGIN_MESSAGE_MAP(CWinThread, CCmdTarget)
END_MESSAGE_MAP()

/// Hands a new thread its object. The thread reports that it has started, and does nothing else before its
/// creator says so: until then the creator may still suspend it, and its object is there.
struct AfxThreadStart {
    CWinThread* thread;
    HANDLE started;
    HANDLE released;

    static unsigned __stdcall Entry(void* argument) {
        auto* start = static_cast<AfxThreadStart*>(argument);
        CWinThread* thread = start->thread;
        HANDLE released = start->released;
        thread_state().m_pCurrentWinThread = thread;
        kmfc::install_message_filter();
        // The queue is made here, so that a message posted at once is not lost.
        MSG message;
        ::PeekMessageW(&message, nullptr, WM_USER, WM_USER, PM_NOREMOVE);
        ::SetEvent(start->started);  // `start` is the creator's and may be gone from here on.
        ::WaitForSingleObject(released, INFINITE);
        ::CloseHandle(released);
        UINT code = 0;
        if (thread->m_pfnThreadProc != nullptr)
            code = thread->m_pfnThreadProc(thread->m_pThreadParams);
        else
            code = static_cast<UINT>(thread->InitInstance() ? thread->Run() : thread->ExitInstance());
        AfxEndThread(code);
        return code;
    }
};

CWinThread::CWinThread() = default;
CWinThread::CWinThread(AFX_THREADPROC pfnThreadProc, LPVOID pParam)
    : m_pfnThreadProc(pfnThreadProc), m_pThreadParams(pParam) {}

CWinThread::~CWinThread() {
    if (m_hThread != nullptr && AfxGetApp() != this) ::CloseHandle(m_hThread);
    if (thread_state().m_pCurrentWinThread == this) thread_state().m_pCurrentWinThread = nullptr;
}

BOOL CWinThread::CreateThread(DWORD dwCreateFlags, UINT nStackSize, LPSECURITY_ATTRIBUTES lpSecurityAttrs) {
    AfxThreadStart start = {this, ::CreateEventW(nullptr, TRUE, FALSE, nullptr),
                            ::CreateEventW(nullptr, TRUE, FALSE, nullptr)};
    m_hThread =
        reinterpret_cast<HANDLE>(_beginthreadex(lpSecurityAttrs, nStackSize, &AfxThreadStart::Entry, &start,
                                                CREATE_SUSPENDED, reinterpret_cast<unsigned*>(&m_nThreadID)));
    if (m_hThread != nullptr) {
        ::ResumeThread(m_hThread);
        ::WaitForSingleObject(start.started, INFINITE);
        if (dwCreateFlags & CREATE_SUSPENDED) ::SuspendThread(m_hThread);
        ::CloseHandle(start.started);
        // A thread that is not suspended may end, and its object with it, at any time from here on.
        ::SetEvent(start.released);
        return TRUE;
    }
    ::CloseHandle(start.started);
    ::CloseHandle(start.released);
    return FALSE;
}

BOOL CWinThread::InitInstance() { return FALSE; }

int CWinThread::Run() {
    bool idle = true;
    LONG idleCount = 0;
    for (;;) {
        MSG waiting;
        while (idle && !::PeekMessageW(&waiting, nullptr, 0, 0, PM_NOREMOVE))
            idle = OnIdle(idleCount++) != FALSE;
        if (!PumpMessage()) return ExitInstance();
        if (IsIdleMessage(&thread_state().m_msgCur)) {
            idle = true;
            idleCount = 0;
        }
    }
}

BOOL CWinThread::PumpMessage() {
    MSG& message = thread_state().m_msgCur;
    if (!::GetMessageW(&message, nullptr, 0, 0)) return FALSE;
    if (message.message != WM_KICKIDLE && !PreTranslateMessage(&message)) {
        ::TranslateMessage(&message);
        ::DispatchMessageW(&message);
    }
    kmfc::throw_carried();
    return TRUE;
}

BOOL CWinThread::PreTranslateMessage(MSG* pMsg) {
    if (pMsg->hwnd == nullptr && DispatchThreadMessageEx(pMsg)) return TRUE;
    CWnd* main = GetMainWnd();
    HWND stop = kmfc::safe_handle(main);
    if (CWnd::WalkPreTranslateTree(stop, pMsg)) return TRUE;
    // A modeless window beside the main window lets the main window's accelerators work too.
    if (main == nullptr || pMsg->hwnd == nullptr) return FALSE;
    CWnd* wnd = CWnd::FromHandle(pMsg->hwnd);
    return wnd->GetTopLevelParent() != main && main->PreTranslateMessage(pMsg);
}

BOOL CWinThread::DispatchThreadMessageEx(MSG* pMsg) {
    const AFX_MSGMAP_ENTRY* entry = thread_state().m_cache.Find(GetMessageMap(), pMsg->message);
    if (entry == nullptr) return FALSE;
    (this->*reinterpret_cast<void (CWinThread::*)(WPARAM, LPARAM)>(entry->pfn))(pMsg->wParam, pMsg->lParam);
    return TRUE;
}

BOOL CWinThread::OnIdle(LONG lCount) {
    if (lCount == 0) {
        // Bring the items of visible windows up to date.
        if (m_pMainWnd != nullptr && m_pMainWnd->m_hWnd != nullptr && m_pMainWnd->IsWindowVisible()) {
            AfxCallWndProc(m_pMainWnd, m_pMainWnd->m_hWnd, WM_IDLEUPDATECMDUI, TRUE, 0);
            m_pMainWnd->SendMessageToDescendants(WM_IDLEUPDATECMDUI, TRUE, 0, TRUE, TRUE);
        }
        return TRUE;
    }
    CWnd::DeleteTempMap();
    CDC::DeleteTempMap();
    CGdiObject::DeleteTempMap();
    CMenu::DeleteTempMap();
    return FALSE;
}

BOOL CWinThread::IsIdleMessage(MSG* pMsg) {
    if (pMsg->message == WM_MOUSEMOVE || pMsg->message == WM_NCMOUSEMOVE) {
        // A move to the same place, as Windows sends when windows change below the pointer, is no input.
        if (m_ptCursorLast == CPoint(pMsg->pt) && pMsg->message == m_nMsgLast) return FALSE;
        m_ptCursorLast = pMsg->pt;
        m_nMsgLast = pMsg->message;
        return TRUE;
    }
    return pMsg->message != WM_PAINT && pMsg->message != 0x0118;
}

int CWinThread::ExitInstance() { return static_cast<int>(thread_state().m_msgCur.wParam); }

LRESULT CWinThread::ProcessWndProcException(CException* e, const MSG* pMsg) {
    if (pMsg->message == WM_CREATE) return -1;
    if (pMsg->message == WM_PAINT) {
        ::ValidateRect(pMsg->hwnd, nullptr);
        return 0;
    }
    if (!e->IsKindOf(RUNTIME_CLASS(CUserException))) e->ReportError(MB_ICONSTOP, AFX_IDP_INTERNAL_FAILURE);
    return 0;
}

BOOL CWinThread::ProcessMessageFilter(int, LPMSG) { return FALSE; }

CWnd* CWinThread::GetMainWnd() {
    if (m_pActiveWnd != nullptr) return m_pActiveWnd;
    if (m_pMainWnd != nullptr) return m_pMainWnd;
    return nullptr;
}

void CWinThread::Delete() {
    if (m_bAutoDelete) delete this;
}

CWinThread* AfxGetThread() { return thread_state().m_pCurrentWinThread; }

namespace {

CWinThread* begin_thread(CWinThread* thread, int nPriority, UINT nStackSize, DWORD dwCreateFlags,
                         LPSECURITY_ATTRIBUTES lpSecurityAttrs) {
    if (!thread->CreateThread(dwCreateFlags | CREATE_SUSPENDED, nStackSize, lpSecurityAttrs)) {
        thread->Delete();
        return nullptr;
    }
    thread->SetThreadPriority(nPriority);
    if (!(dwCreateFlags & CREATE_SUSPENDED)) thread->ResumeThread();
    return thread;
}

}  // namespace

CWinThread* AfxBeginThread(AFX_THREADPROC pfnThreadProc, LPVOID pParam, int nPriority, UINT nStackSize,
                           DWORD dwCreateFlags, LPSECURITY_ATTRIBUTES lpSecurityAttrs) {
    return begin_thread(new CWinThread(pfnThreadProc, pParam), nPriority, nStackSize, dwCreateFlags,
                        lpSecurityAttrs);
}

CWinThread* AfxBeginThread(CRuntimeClass* pThreadClass, int nPriority, UINT nStackSize, DWORD dwCreateFlags,
                           LPSECURITY_ATTRIBUTES lpSecurityAttrs) {
    ENSURE_ARG(pThreadClass != nullptr && pThreadClass->IsDerivedFrom(RUNTIME_CLASS(CWinThread)));
    auto* thread = static_cast<CWinThread*>(pThreadClass->CreateObject());
    if (thread == nullptr) return nullptr;
    return begin_thread(thread, nPriority, nStackSize, dwCreateFlags, lpSecurityAttrs);
}

void AfxEndThread(UINT nExitCode, BOOL bDelete) {
    CWinThread* thread = thread_state().m_pCurrentWinThread;
    if (thread != nullptr && bDelete) thread->Delete();
    _endthreadex(nExitCode);
}

BOOL AfxPumpMessage() {
    if (CWinThread* thread = AfxGetThread()) return thread->PumpMessage();
    MSG& message = thread_state().m_msgCur;
    if (!::GetMessageW(&message, nullptr, 0, 0)) return FALSE;
    if (!CWnd::WalkPreTranslateTree(nullptr, &message)) {
        ::TranslateMessage(&message);
        ::DispatchMessageW(&message);
    }
    kmfc::throw_carried();
    return TRUE;
}

BOOL AfxPreTranslateMessage(MSG* pMsg) {
    CWinThread* thread = AfxGetThread();
    return thread != nullptr ? thread->PreTranslateMessage(pMsg) : CWnd::WalkPreTranslateTree(nullptr, pMsg);
}

void AfxPostQuitMessage(int nExitCode) { ::PostQuitMessage(nExitCode); }

CWnd* AfxGetMainWnd() {
    CWinThread* thread = AfxGetThread();
    return thread != nullptr ? thread->GetMainWnd() : nullptr;
}
