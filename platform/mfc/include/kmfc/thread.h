// CWinThread: a thread with a message pump.
#pragma once

#include <kmfc/wnd.h>

using AFX_THREADPROC = UINT (*)(LPVOID);

class KMFC_API CWinThread : public CCmdTarget {
    DECLARE_DYNAMIC(CWinThread)
public:
    CWinThread();
    CWinThread(AFX_THREADPROC pfnThreadProc, LPVOID pParam);
    ~CWinThread() override;

    CWnd* m_pMainWnd = nullptr;    ///< closing it ends the pump
    CWnd* m_pActiveWnd = nullptr;  ///< main window while another takes its place, as in an OLE server
    BOOL m_bAutoDelete = TRUE;     ///< deleted when the thread ends
    HANDLE m_hThread = nullptr;
    DWORD m_nThreadID = 0;

    operator HANDLE() const { return m_hThread; }
    BOOL CreateThread(DWORD dwCreateFlags = 0, UINT nStackSize = 0,
                      LPSECURITY_ATTRIBUTES lpSecurityAttrs = nullptr);
    int GetThreadPriority() { return ::GetThreadPriority(m_hThread); }
    BOOL SetThreadPriority(int nPriority) { return ::SetThreadPriority(m_hThread, nPriority); }
    DWORD SuspendThread() { return ::SuspendThread(m_hThread); }
    DWORD ResumeThread() { return ::ResumeThread(m_hThread); }
    BOOL PostThreadMessage(UINT message, WPARAM wParam, LPARAM lParam) {
        return ::PostThreadMessageW(m_nThreadID, message, wParam, lParam);
    }

    virtual BOOL InitInstance();
    virtual int Run();
    virtual BOOL PreTranslateMessage(MSG* pMsg);
    /// Takes one message and dispatches it; FALSE at WM_QUIT. Waits when the queue is empty. Throws what left
    /// a handler meanwhile and is no CException.
    virtual BOOL PumpMessage();
    /// One idle step; `lCount` counts the steps since the last message. TRUE asks for another.
    virtual BOOL OnIdle(LONG lCount);
    virtual BOOL IsIdleMessage(MSG* pMsg);
    virtual int ExitInstance();
    /// An exception that left a handler of message `pMsg`; the result is the message's. Tells the user,
    /// unless it is a CUserException, fails WM_CREATE, and ends WM_PAINT. The caller deletes the exception.
    /// Exceptions of other types are not offered here: they go on from PumpMessage.
    virtual LRESULT ProcessWndProcException(CException* e, const MSG* pMsg);
    /// Sees the messages of dialogs, menus and scroll bars (`code` is MSGF_DIALOGBOX, MSGF_MENU ...) before
    /// they are treated. TRUE keeps one from being treated. Called in threads made by CreateThread and, after
    /// AfxWinInit, in the application's own.
    virtual BOOL ProcessMessageFilter(int code, LPMSG lpMsg);
    virtual CWnd* GetMainWnd();
    virtual void Delete();

protected:
    BOOL DispatchThreadMessageEx(MSG* pMsg);

    AFX_THREADPROC m_pfnThreadProc = nullptr;
    LPVOID m_pThreadParams = nullptr;
    CPoint m_ptCursorLast;
    UINT m_nMsgLast = WM_NULL;

    friend struct AfxThreadStart;
    friend class CWnd;
    DECLARE_MESSAGE_MAP()
};

/// The calling thread's object; null in a thread that was started by other means.
KMFC_API CWinThread* AfxGetThread();
KMFC_API CWinThread* AfxBeginThread(AFX_THREADPROC pfnThreadProc, LPVOID pParam,
                                    int nPriority = THREAD_PRIORITY_NORMAL, UINT nStackSize = 0,
                                    DWORD dwCreateFlags = 0, LPSECURITY_ATTRIBUTES lpSecurityAttrs = nullptr);
/// A thread of a class with DECLARE_DYNCREATE: its InitInstance, then its Run. Null for a class that can't be
/// made or a thread that can't be started.
KMFC_API CWinThread* AfxBeginThread(CRuntimeClass* pThreadClass, int nPriority = THREAD_PRIORITY_NORMAL,
                                    UINT nStackSize = 0, DWORD dwCreateFlags = 0,
                                    LPSECURITY_ATTRIBUTES lpSecurityAttrs = nullptr);
KMFC_API void AfxEndThread(UINT nExitCode, BOOL bDelete = TRUE);
/// Pumps one message of the current thread; what a loop outside CWinThread::Run calls.
KMFC_API BOOL AfxPumpMessage();
KMFC_API BOOL AfxPreTranslateMessage(MSG* pMsg);
KMFC_API void AfxPostQuitMessage(int nExitCode);
/// The calling thread's main window; null without one, and in a thread without an object.
KMFC_API CWnd* AfxGetMainWnd();
