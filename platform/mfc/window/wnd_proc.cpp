// The way of a message: window procedure, message maps, default processing, reflection to the control.
#include <utility>

#include <kmfc/app.h>
#include <kmfc/frame.h>

#include "frame_menu.h"
#include "message_dispatch.h"
#include "thread_state.h"

using kmfc::thread_state;

namespace {

/// Keeps the message in hand of the thread for the time of one window procedure.
class LastMessage {
public:
    LastMessage(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam)
        : m_state(thread_state()), m_saved(m_state.m_lastSentMsg) {
        m_state.m_lastSentMsg.hwnd = hWnd;
        m_state.m_lastSentMsg.message = message;
        m_state.m_lastSentMsg.wParam = wParam;
        m_state.m_lastSentMsg.lParam = lParam;
    }
    ~LastMessage() { m_state.m_lastSentMsg = m_saved; }
    LastMessage(const LastMessage&) = delete;
    LastMessage& operator=(const LastMessage&) = delete;

    /// The answer to the message after an exception.
    LRESULT Report(CException* e) {
        CWinThread* thread = AfxGetThread();
        const LRESULT result =
            thread != nullptr ? thread->ProcessWndProcException(e, &m_state.m_lastSentMsg) : Refuse();
        e->Delete();
        return result;
    }
    /// The answer that says that the message was not served.
    LRESULT Refuse() const {
        if (m_state.m_lastSentMsg.message == WM_CREATE) return -1;
        // An area that stays invalid would be asked for again and again.
        if (m_state.m_lastSentMsg.message == WM_PAINT) ::ValidateRect(m_state.m_lastSentMsg.hwnd, nullptr);
        return 0;
    }

private:
    kmfc::ThreadState& m_state;
    MSG m_saved;
};

bool is_ctl_color(UINT message) { return message >= WM_CTLCOLORMSGBOX && message <= WM_CTLCOLORSTATIC; }

constexpr UINT kFirstRegisteredMessage = 0xC000;

/// Whether a list box tells by the message of a drag of its items.
bool is_drag_list(UINT message) {
    static const UINT registered = ::RegisterWindowMessageW(DRAGLISTMSGSTRING);
    return message >= kFirstRegisteredMessage && message == registered;
}

/// The list box that such a message is of.
HWND dragged_list(LPARAM lParam) {
    return lParam != 0 ? reinterpret_cast<const DRAGLISTINFO*>(lParam)->hWnd : nullptr;
}

/// Tells the top-level window that a window below it became active or inactive.
void announce_activation(CWnd* wnd, WPARAM wParam, CWnd* other) {
    if (wnd->GetStyle() & WS_CHILD) return;
    CWnd* top = wnd->GetTopLevelParent();
    CWnd* otherTop = kmfc::safe_handle(other) != nullptr ? other->GetTopLevelParent() : nullptr;
    if (top == nullptr || top == otherTop) return;
    const HWND windows[2] = {wnd->m_hWnd, kmfc::safe_handle(other)};
    top->SendMessage(WM_ACTIVATETOPLEVEL, wParam, reinterpret_cast<LPARAM>(windows));
}

}  // namespace

LRESULT CALLBACK AfxWndProc(HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam) {
    if (nMsg == WM_QUERYAFXWNDPROC) return 1;
    CWnd* wnd = CWnd::FromHandlePermanent(hWnd);
    if (wnd == nullptr) return ::DefWindowProcW(hWnd, nMsg, wParam, lParam);
    return AfxCallWndProc(wnd, hWnd, nMsg, wParam, lParam);
}

namespace {

/// Whether a failure of the message's handler makes the creation of its window fail.
bool belongs_to_creation(UINT message) {
    return message == WM_NCCREATE || message == WM_CREATE || message == WM_INITDIALOG;
}

/// Sets aside, for its lifetime, what is carried from outside.
class OwnFailures {
public:
    OwnFailures() : m_outer(std::exchange(thread_state().m_carried, nullptr)) {}
    ~OwnFailures() {
        if (m_outer) thread_state().m_carried = m_outer;
    }
    OwnFailures(const OwnFailures&) = delete;
    OwnFailures& operator=(const OwnFailures&) = delete;

private:
    std::exception_ptr m_outer;
};

}  // namespace

LRESULT AfxCallWndProc(CWnd* pWnd, HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam) {
    LastMessage last(hWnd, nMsg, wParam, lParam);
    LRESULT result = 0;
    try {
        try {
            return nMsg == WM_INITDIALOG ? pWnd->InitialiseDialog(wParam, lParam)
                                         : pWnd->ServeMessage(nMsg, wParam, lParam);
        } catch (CException* e) {
            result = last.Report(e);
        }
    } catch (...) {
        if (!belongs_to_creation(nMsg)) kmfc::carry_exception();
        result = last.Refuse();
    }
    // The object may have gone with its window.
    if (CWnd::FromHandlePermanent(hWnd) == pWnd) pWnd->EndFailedMessage(nMsg);
    return result;
}

LRESULT CWnd::ServeMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    const bool hides = message == WM_WINDOWPOSCHANGING && (m_nFlags & WF_NEVERSHOWN);
    const LRESULT result = WindowProc(message, wParam, lParam);
    // A template with WS_VISIBLE makes the system show the dialog after WM_INITDIALOG in any case.
    if (hides) reinterpret_cast<WINDOWPOS*>(lParam)->flags &= ~static_cast<UINT>(SWP_SHOWWINDOW);
    return result;
}

LRESULT CWnd::InitialiseDialog(WPARAM wParam, LPARAM lParam) {
    const OwnFailures own;
    const HWND hWnd = m_hWnd;
    CRect before, after;
    ::GetWindowRect(hWnd, &before);
    const LRESULT result = WindowProc(WM_INITDIALOG, wParam, lParam);
    kmfc::throw_carried();
    if (::IsWindow(hWnd) && !(::GetWindowLongPtrW(hWnd, GWL_STYLE) & (WS_VISIBLE | WS_CHILD))) {
        ::GetWindowRect(hWnd, &after);
        if (before.TopLeft() == after.TopLeft() && CheckAutoCenter()) CenterWindow();
    }
    return result;
}

void CWnd::EndFailedMessage(UINT message) {
    if (message == WM_INITDIALOG) {
        m_nFlags |= WF_NEVERSHOWN;
        m_nFlags &= ~WF_CONTINUEMODAL;
        m_nModalResult = -1;
    } else if (message == WM_NCDESTROY) {
        if (m_nFlags & WF_CONTINUEMODAL) EndDestroyedModalLoop();
        Detach();
    }
}

const MSG* CWnd::GetCurrentMessage() {
    kmfc::ThreadState& state = thread_state();
    state.m_lastSentMsg.time = state.m_msgCur.time;
    state.m_lastSentMsg.pt = state.m_msgCur.pt;
    return &state.m_lastSentMsg;
}

LRESULT CWnd::Default() {
    const MSG& m = thread_state().m_lastSentMsg;
    return DefWindowProc(m.message, m.wParam, m.lParam);
}

LRESULT CWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    LRESULT result = 0;
    if (!OnWndMsg(message, wParam, lParam, &result)) result = DefWindowProc(message, wParam, lParam);
    return result;
}

LRESULT CWnd::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    WNDPROC super = *GetSuperWndProcAddr();
    if (super == nullptr) return ::DefWindowProcW(m_hWnd, message, wParam, lParam);
    return ::CallWindowProcW(super, m_hWnd, message, wParam, lParam);
}

WNDPROC* CWnd::GetSuperWndProcAddr() { return &m_pfnSuper; }

BOOL CWnd::OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    LRESULT result = 0;
    if (message == WM_COMMAND) {
        if (!OnCommand(wParam, lParam)) return FALSE;
        if (pResult != nullptr) *pResult = 1;
        return TRUE;
    }
    if (message == WM_NOTIFY) {
        auto* header = reinterpret_cast<NMHDR*>(lParam);
        if (header == nullptr || header->hwndFrom == nullptr || !OnNotify(wParam, lParam, &result))
            return FALSE;
        if (pResult != nullptr) *pResult = result;
        return TRUE;
    }
    if (message == WM_ACTIVATE) announce_activation(this, wParam, FromHandle(reinterpret_cast<HWND>(lParam)));

    const UINT key = is_ctl_color(message) ? WM_CTLCOLOR : message;
    const AFX_MSGMAP_ENTRY* entry = thread_state().m_cache.Find(GetMessageMap(), key);
    if (entry == nullptr) return is_drag_list(message) && ReflectLastMsg(dragged_list(lParam), pResult);
    result = CallHandler(*entry, message, wParam, lParam);
    if (message == WM_SETCURSOR || message == WM_MOUSEWHEEL) {
        // A handler that did not take the message leaves it to the parent.
        if (!result) result = DefWindowProc(message, wParam, lParam);
    }
    if (pResult != nullptr) *pResult = result;
    return TRUE;
}

LRESULT CWnd::CallHandler(const AFX_MSGMAP_ENTRY& entry, UINT message, WPARAM wParam, LPARAM lParam) {
    return kmfc::invoke_window_handler(this, entry, message, wParam, lParam);
}

BOOL CWnd::OnCommand(WPARAM wParam, LPARAM lParam) {
    UINT id = LOWORD(wParam);
    HWND control = reinterpret_cast<HWND>(lParam);
    int code = HIWORD(wParam);
    if (control == nullptr) {
        if (id == 0) return FALSE;
        // An accelerator of a disabled command does nothing.
        struct EnabledState : CCmdUI {
            BOOL m_bEnabled = TRUE;
            void Enable(BOOL on) override {
                m_bEnabled = on;
                m_bEnableChanged = TRUE;
            }
            void SetCheck(int) override {}
            void SetRadio(BOOL) override {}
            void SetText(LPCTSTR) override {}
        } state;
        state.m_nID = id;
        OnCmdMsg(id, CN_UPDATE_COMMAND_UI, &state, nullptr);
        if (!state.m_bEnabled) return TRUE;
        code = CN_COMMAND;
    } else {
        if (ReflectLastMsg(control)) return TRUE;
        if (id == 0) return FALSE;
    }
    return OnCmdMsg(id, code, nullptr, nullptr);
}

BOOL CWnd::OnNotify(WPARAM, LPARAM lParam, LRESULT* pResult) {
    auto* header = reinterpret_cast<NMHDR*>(lParam);
    if (ReflectLastMsg(header->hwndFrom, pResult)) return TRUE;
    // By the sender's own id, which is 0 for the tool-tip control, whatever its idFrom says.
    const UINT id = static_cast<UINT>(static_cast<WORD>(::GetDlgCtrlID(header->hwndFrom)));
    kmfc::NotifyContext context = {header, pResult};
    const int code = static_cast<int>(MAKELONG(header->code, WM_NOTIFY));
    return OnCmdMsg(id, code, &context, nullptr);
}

BOOL CWnd::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pLResult) {
    return ReflectChildNotify(message, wParam, lParam, pLResult);
}

BOOL CWnd::ReflectChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    const UINT reflected = WM_REFLECT_BASE + message;
    if (message == WM_COMMAND)
        return OnCmdMsg(0, static_cast<int>(MAKELONG(HIWORD(wParam), reflected)), nullptr, nullptr);
    if (message == WM_NOTIFY) {
        kmfc::NotifyContext context = {reinterpret_cast<NMHDR*>(lParam), pResult};
        return OnCmdMsg(0, static_cast<int>(MAKELONG(context.pNMHDR->code, reflected)), &context, nullptr);
    }
    if (is_ctl_color(message)) {
        LRESULT brush = 0;
        const BOOL handled =
            OnWndMsg(WM_REFLECT_BASE + WM_CTLCOLOR, wParam, message - WM_CTLCOLORMSGBOX, &brush);
        if (pResult != nullptr) *pResult = brush;
        return handled && brush != 0;
    }
    return OnWndMsg(reflected, wParam, lParam, pResult);
}

BOOL CWnd::ReflectLastMsg(HWND hWndChild, LRESULT* pResult) {
    CWnd* child = FromHandlePermanent(hWndChild);
    return child != nullptr && child->SendChildNotifyLastMsg(pResult);
}

BOOL CWnd::SendChildNotifyLastMsg(LRESULT* pResult) {
    const MSG message = thread_state().m_lastSentMsg;
    LRESULT result = 0;
    return OnChildNotify(message.message, message.wParam, message.lParam,
                         pResult != nullptr ? pResult : &result);
}

int CWnd::OnCompareItem(int, LPCOMPAREITEMSTRUCT lpCompareItemStruct) {
    LRESULT result = 0;
    if (ReflectLastMsg(lpCompareItemStruct->hwndItem, &result)) return static_cast<int>(result);
    return static_cast<int>(Default());
}

void CWnd::OnDrawItem(int, LPDRAWITEMSTRUCT lpDrawItemStruct) {
    if (lpDrawItemStruct->CtlType == ODT_MENU) {
        if (CMenu* menu = CMenu::FromHandlePermanent(reinterpret_cast<HMENU>(lpDrawItemStruct->hwndItem))) {
            menu->DrawItem(lpDrawItemStruct);
            return;
        }
    } else if (ReflectLastMsg(lpDrawItemStruct->hwndItem)) {
        return;
    }
    Default();
}

void CWnd::OnMeasureItem(int nIDCtl, LPMEASUREITEMSTRUCT lpMeasureItemStruct) {
    if (lpMeasureItemStruct->CtlType == ODT_MENU) {
        if (CMenu* menu = CMenu::FromHandle(kmfc::menu_of_frame(m_hWnd)))
            menu->MeasureItem(lpMeasureItemStruct);
        return;
    }
    // While a control is being created it has no permanent object yet; its parent answers by default.
    HWND control = ::GetDlgItem(m_hWnd, nIDCtl);
    if (control != nullptr && ReflectLastMsg(control)) return;
    Default();
}

void CWnd::OnDeleteItem(int, LPDELETEITEMSTRUCT lpDeleteItemStruct) {
    if (!ReflectLastMsg(lpDeleteItemStruct->hwndItem)) Default();
}

HBRUSH CWnd::OnCtlColor(CDC*, CWnd* pWnd, UINT) {
    LRESULT result = 0;
    if (pWnd != nullptr && ReflectLastMsg(pWnd->m_hWnd, &result)) return reinterpret_cast<HBRUSH>(result);
    return reinterpret_cast<HBRUSH>(Default());
}

void CWnd::OnHScroll(UINT, UINT, CScrollBar* pScrollBar) {
    if (pScrollBar != nullptr && ReflectLastMsg(reinterpret_cast<CWnd*>(pScrollBar)->m_hWnd)) return;
    Default();
}

void CWnd::OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar) {
    CWnd::OnHScroll(nSBCode, nPos, pScrollBar);
}

int CWnd::OnVKeyToItem(UINT, CListBox* pListBox, UINT) {
    LRESULT result = 0;
    if (ReflectLastMsg(kmfc::safe_handle(reinterpret_cast<CWnd*>(pListBox)), &result))
        return static_cast<int>(result);
    return static_cast<int>(Default());
}

int CWnd::OnCharToItem(UINT nChar, CListBox* pListBox, UINT nIndex) {
    return CWnd::OnVKeyToItem(nChar, pListBox, nIndex);
}

void CWnd::OnParentNotify(UINT message, LPARAM lParam) {
    if ((LOWORD(message) == WM_CREATE || LOWORD(message) == WM_DESTROY) &&
        ReflectLastMsg(reinterpret_cast<HWND>(lParam)))
        return;
    Default();
}
