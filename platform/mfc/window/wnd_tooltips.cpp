// Tool tips that the framework shows for child windows after EnableToolTips.
#include <kmfc/wnd.h>

#include "thread_state.h"

using kmfc::thread_state;

namespace {

void drop_tool(kmfc::ThreadState& state) {
    if (state.m_nToolTipHit == -1) return;
    if (::IsWindow(state.m_hToolTip)) {
        ::SendMessageW(state.m_hToolTip, TTM_ACTIVATE, FALSE, 0);
        ::SendMessageW(state.m_hToolTip, TTM_DELTOOLW, 0, reinterpret_cast<LPARAM>(&state.m_toolTipInfo));
    }
    state.m_nToolTipHit = -1;
}

void destroy_tip(kmfc::ThreadState& state) {
    drop_tool(state);
    if (::IsWindow(state.m_hToolTip)) ::DestroyWindow(state.m_hToolTip);
    state.m_hToolTip = nullptr;
    state.m_hToolTipOwner = nullptr;
}

/// The tip control of `owner`, made when it is another window's or not there yet.
HWND tip_for(kmfc::ThreadState& state, HWND owner) {
    if (state.m_hToolTipOwner == owner && ::IsWindow(state.m_hToolTip)) return state.m_hToolTip;
    destroy_tip(state);
    state.m_hToolTip = ::CreateWindowExW(
        WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX, CW_USEDEFAULT,
        CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, owner, nullptr, nullptr, nullptr);
    state.m_hToolTipOwner = owner;
    return state.m_hToolTip;
}

bool buttons_up() {
    return ::GetKeyState(VK_LBUTTON) >= 0 && ::GetKeyState(VK_RBUTTON) >= 0 && ::GetKeyState(VK_MBUTTON) >= 0;
}

}  // namespace

BOOL CWnd::EnableToolTips(BOOL bEnable) {
    kmfc::ThreadState& state = thread_state();
    if (bEnable) {
        m_nFlags |= WF_TOOLTIPS;
    } else {
        m_nFlags &= ~(WF_TOOLTIPS | WF_TRACKINGTOOLTIPS);
        if (state.m_hToolTipOwner == m_hWnd && m_hWnd != nullptr) destroy_tip(state);
    }
    return TRUE;
}

BOOL CWnd::EnableTrackingToolTips(BOOL bEnable) {
    EnableToolTips(bEnable);
    if (bEnable) m_nFlags |= WF_TRACKINGTOOLTIPS;
    return TRUE;
}

void CWnd::CancelToolTips(BOOL) { drop_tool(thread_state()); }

INT_PTR CWnd::OnToolHitTest(CPoint point, TOOLINFO* pTI) const {
    HWND child = ::ChildWindowFromPointEx(m_hWnd, point, CWP_SKIPINVISIBLE);
    if (child == nullptr || child == m_hWnd) return -1;
    const INT_PTR hit = ::GetDlgCtrlID(child);
    if (pTI != nullptr && pTI->cbSize >= TTTOOLINFOW_V1_SIZE) {
        pTI->hwnd = m_hWnd;
        pTI->uId = reinterpret_cast<UINT_PTR>(child);
        pTI->uFlags |= TTF_IDISHWND;
        pTI->lpszText = LPSTR_TEXTCALLBACKW;
    }
    return hit;
}

void CWnd::FilterToolTipMessage(MSG* pMsg) {
    kmfc::ThreadState& state = thread_state();
    const bool move = pMsg->message == WM_MOUSEMOVE || pMsg->message == WM_NCMOUSEMOVE;
    if (!move) {
        const bool press = pMsg->message == WM_LBUTTONDOWN || pMsg->message == WM_RBUTTONDOWN ||
                           pMsg->message == WM_MBUTTONDOWN || pMsg->message == WM_KEYDOWN;
        if (press && state.m_hToolTipOwner == m_hWnd) drop_tool(state);
        return;
    }
    if (!(m_nFlags & WF_TOOLTIPS) || !buttons_up()) return;

    CPoint point(pMsg->pt);
    ::ScreenToClient(m_hWnd, &point);
    TOOLINFO tool = {};
    tool.cbSize = TTTOOLINFOW_V1_SIZE;
    const INT_PTR hit = OnToolHitTest(point, &tool);
    if (hit == -1) {
        if (state.m_hToolTipOwner == m_hWnd) drop_tool(state);
        return;
    }
    HWND tip = tip_for(state, m_hWnd);
    if (hit != state.m_nToolTipHit || tool.uId != state.m_toolTipInfo.uId) {
        drop_tool(state);
        ::SendMessageW(tip, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
        ::SendMessageW(tip, TTM_ACTIVATE, TRUE, 0);
        state.m_nToolTipHit = hit;
        state.m_toolTipInfo = tool;
    }
    MSG relayed = *pMsg;
    ::SendMessageW(tip, TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(&relayed));
}
