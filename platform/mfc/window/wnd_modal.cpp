// The modal loop, and the translation of messages before they are dispatched.
#include <utility>

#include <kmfc/dialog.h>

#include "thread_state.h"

using kmfc::thread_state;

namespace {

/// A message Windows sends itself to blink the caret; its arrival shows that the user waits.
constexpr UINT kSystemTimer = 0x0118;

/// The idle side of a modal loop: shows the window when first idle, tells owner and window that nothing is
/// due.
class ModalIdle {
public:
    ModalIdle(CWnd* wnd, DWORD flags)
        : m_wnd(wnd),
          m_owner(::GetParent(wnd->m_hWnd)),
          m_flags(flags),
          m_showWhenIdle((flags & MLF_SHOWONIDLE) && !(wnd->GetStyle() & WS_VISIBLE)) {}

    /// One step; TRUE when another is wanted.
    BOOL Step() {
        Show();
        if (!(m_flags & MLF_NOIDLEMSG) && m_owner != nullptr && m_count == 0)
            ::SendMessageW(m_owner, WM_ENTERIDLE, MSGF_DIALOGBOX, reinterpret_cast<LPARAM>(m_wnd->m_hWnd));
        if (m_flags & MLF_NOKICKIDLE) return FALSE;
        return m_wnd->SendMessage(WM_KICKIDLE, MSGF_DIALOGBOX, m_count++) != 0;
    }
    void Show() {
        if (!m_showWhenIdle || m_wnd->m_hWnd == nullptr) return;
        m_wnd->ShowWindow(SW_SHOWNORMAL);
        m_wnd->UpdateWindow();
        m_showWhenIdle = false;
    }
    void Restart() { m_count = 0; }

private:
    CWnd* m_wnd;
    HWND m_owner;
    DWORD m_flags;
    bool m_showWhenIdle;
    LPARAM m_count = 0;
};

/// What holds while a modal loop is on the stack, however it is left.
class ModalLoop {
public:
    explicit ModalLoop(CWnd* wnd)
        : m_wnd(wnd), m_state(thread_state()), m_carried(std::exchange(m_state.m_carried, nullptr)) {
        m_wnd->m_nFlags |= WF_MODALLOOP | WF_CONTINUEMODAL;
        ++m_state.m_cModalLoops;
        m_state.for_each_map([](auto& map) { map.BeginScope(); });
    }
    ~ModalLoop() {
        m_state.for_each_map([](auto& map) { map.EndScope(); });
        --m_state.m_cModalLoops;
        m_wnd->m_nFlags &= ~(WF_MODALLOOP | WF_CONTINUEMODAL);
        if (m_carried) m_state.m_carried = m_carried;
    }
    ModalLoop(const ModalLoop&) = delete;
    ModalLoop& operator=(const ModalLoop&) = delete;

    /// Nobody inside the loop uses its temporary objects while it is idle.
    void EndTemporaryObjects() {
        m_state.for_each_map([](auto& map) { map.DeleteTemp(); });
    }

private:
    CWnd* m_wnd;
    kmfc::ThreadState& m_state;
    std::exception_ptr m_carried;  // from outside, for the pump outside
};

}  // namespace

int CWnd::RunModalLoop(DWORD dwFlags) {
    const MSG& current = thread_state().m_msgCur;
    ModalIdle idle(this, dwFlags);
    ModalLoop loop(this);
    MSG waiting;
    bool moreIdle = true;
    while (GoesOnModally()) {
        while (moreIdle && GoesOnModally() && !::PeekMessageW(&waiting, nullptr, 0, 0, PM_NOREMOVE)) {
            moreIdle = idle.Step() != FALSE;
            loop.EndTemporaryObjects();
        }
        if (!GoesOnModally()) break;
        if (!AfxPumpMessage()) {
            // The application is quitting: hand the request on to the loop outside.
            AfxPostQuitMessage(static_cast<int>(current.wParam));
            m_nModalResult = -1;
            break;
        }
        if (current.message == kSystemTimer || current.message == WM_SYSKEYDOWN) idle.Show();
        CWinThread* thread = AfxGetThread();
        if (thread == nullptr || thread->IsIdleMessage(const_cast<MSG*>(&current))) {
            moreIdle = true;
            idle.Restart();
        }
    }
    return m_nModalResult;
}

/// Whether the loop goes on; it ends with its window, even if that went without telling.
bool CWnd::GoesOnModally() {
    if (!ContinueModal()) return false;
    if (::IsWindow(m_hWnd)) return true;
    m_nModalResult = -1;
    return false;
}

void CWnd::EndDestroyedModalLoop() {
    EndModalLoop(-1);
    m_nFlags &= ~WF_CONTINUEMODAL;
    // What EndModalLoop posts goes with the window.
    ::PostThreadMessageW(::GetCurrentThreadId(), WM_NULL, 0, 0);
}

BOOL CWnd::ContinueModal() { return (m_nFlags & WF_CONTINUEMODAL) != 0; }

void CWnd::EndModalLoop(int nResult) {
    m_nModalResult = nResult;
    if (!(m_nFlags & WF_CONTINUEMODAL)) return;
    m_nFlags &= ~WF_CONTINUEMODAL;
    PostMessage(WM_NULL);  // Wakes the loop.
}

BOOL CWnd::PreTranslateMessage(MSG* pMsg) {
    kmfc::ThreadState& state = thread_state();
    if (state.m_hToolTip != nullptr || (m_nFlags & (WF_TOOLTIPS | WF_TRACKINGTOOLTIPS))) {
        const bool mouse = pMsg->message >= WM_MOUSEFIRST && pMsg->message <= WM_MOUSELAST;
        const bool ncMouse = pMsg->message >= WM_NCMOUSEMOVE && pMsg->message <= WM_NCMBUTTONDBLCLK;
        const bool key = pMsg->message >= WM_KEYFIRST && pMsg->message <= WM_KEYLAST;
        if (mouse || ncMouse || key) FilterToolTipMessage(pMsg);
    }
    return FALSE;
}

BOOL CWnd::WalkPreTranslateTree(HWND hWndStop, MSG* pMsg) {
    for (HWND hWnd = pMsg->hwnd; hWnd != nullptr; hWnd = ::GetParent(hWnd)) {
        CWnd* wnd = FromHandlePermanent(hWnd);
        if (wnd != nullptr && wnd->PreTranslateMessage(pMsg)) return TRUE;
        if (hWnd == hWndStop) break;
    }
    return FALSE;
}

BOOL CWnd::PreTranslateInput(LPMSG lpMsg) {
    const bool key = lpMsg->message >= WM_KEYFIRST && lpMsg->message <= WM_KEYLAST;
    const bool mouse = lpMsg->message >= WM_MOUSEFIRST && lpMsg->message <= WM_MOUSELAST;
    return (key || mouse) && IsDialogMessage(lpMsg);
}
