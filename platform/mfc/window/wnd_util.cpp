// Finding other windows, text, fonts, centring, dialog items.
#include <kmfc/frame.h>

#include "thread_state.h"

void CWnd::GetWindowText(CString& rString) const {
    const int length = ::GetWindowTextLengthW(m_hWnd);
    ::GetWindowTextW(m_hWnd, rString.GetBufferSetLength(length), length + 1);
    rString.ReleaseBuffer();
}

int CWnd::GetDlgItemText(int nID, CString& rString) const {
    rString.Empty();
    HWND item = ::GetDlgItem(m_hWnd, nID);
    if (item == nullptr) return 0;
    const int length = ::GetWindowTextLengthW(item);
    ::GetWindowTextW(item, rString.GetBufferSetLength(length), length + 1);
    rString.ReleaseBuffer();
    return rString.GetLength();
}

void AfxSetWindowText(HWND hWndCtrl, LPCTSTR lpszNew) {
    CString current;
    const int length = ::GetWindowTextLengthW(hWndCtrl);
    ::GetWindowTextW(hWndCtrl, current.GetBufferSetLength(length), length + 1);
    current.ReleaseBuffer();
    if (current != lpszNew) ::SetWindowTextW(hWndCtrl, lpszNew);
}

namespace {

BOOL modify_style(HWND hWnd, int index, DWORD remove, DWORD add, UINT flags) {
    const DWORD style = static_cast<DWORD>(::GetWindowLongPtrW(hWnd, index));
    const DWORD changed = (style & ~remove) | add;
    if (style == changed) return FALSE;
    ::SetWindowLongPtrW(hWnd, index, static_cast<LONG_PTR>(changed));
    if (flags != 0)
        ::SetWindowPos(hWnd, nullptr, 0, 0, 0, 0,
                       SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | flags);
    return TRUE;
}

/// Climbs from `hWnd` while `next` gives another window; the last one.
template <class Next>
HWND climb(HWND hWnd, Next next) {
    for (HWND above = hWnd; above != nullptr; above = next(above)) hWnd = above;
    return hWnd;
}

HWND parent_owner(HWND hWnd) {
    return (::GetWindowLongPtrW(hWnd, GWL_STYLE) & WS_CHILD) ? ::GetParent(hWnd)
                                                             : ::GetWindow(hWnd, GW_OWNER);
}

}  // namespace

BOOL CWnd::ModifyStyle(DWORD dwRemove, DWORD dwAdd, UINT nFlags) {
    return modify_style(m_hWnd, GWL_STYLE, dwRemove, dwAdd, nFlags);
}
BOOL CWnd::ModifyStyleEx(DWORD dwRemove, DWORD dwAdd, UINT nFlags) {
    return modify_style(m_hWnd, GWL_EXSTYLE, dwRemove, dwAdd, nFlags);
}

void CWnd::SetFont(CFont* pFont, BOOL bRedraw) {
    ::SendMessageW(m_hWnd, WM_SETFONT, reinterpret_cast<WPARAM>(kmfc::safe_handle(pFont)), bRedraw);
}
CFont* CWnd::GetFont() const {
    return CFont::FromHandle(reinterpret_cast<HFONT>(::SendMessageW(m_hWnd, WM_GETFONT, 0, 0)));
}
HICON CWnd::SetIcon(HICON hIcon, BOOL bBigIcon) {
    return reinterpret_cast<HICON>(::SendMessageW(m_hWnd, WM_SETICON, bBigIcon ? ICON_BIG : ICON_SMALL,
                                                  reinterpret_cast<LPARAM>(hIcon)));
}
HICON CWnd::GetIcon(BOOL bBigIcon) const {
    return reinterpret_cast<HICON>(::SendMessageW(m_hWnd, WM_GETICON, bBigIcon ? ICON_BIG : ICON_SMALL, 0));
}
CMenu* CWnd::GetMenu() const { return CMenu::FromHandle(::GetMenu(m_hWnd)); }
BOOL CWnd::SetMenu(CMenu* pMenu) { return ::SetMenu(m_hWnd, pMenu != nullptr ? pMenu->m_hMenu : nullptr); }
CMenu* CWnd::GetSystemMenu(BOOL bRevert) const { return CMenu::FromHandle(::GetSystemMenu(m_hWnd, bRevert)); }

BOOL CWnd::GetWindowPlacement(WINDOWPLACEMENT* lpwndpl) const {
    lpwndpl->length = sizeof(*lpwndpl);
    return ::GetWindowPlacement(m_hWnd, lpwndpl);
}

void CWnd::ClientToScreen(LPRECT lpRect) const {
    ::MapWindowPoints(m_hWnd, nullptr, reinterpret_cast<LPPOINT>(lpRect), 2);
}
void CWnd::ScreenToClient(LPRECT lpRect) const {
    ::MapWindowPoints(nullptr, m_hWnd, reinterpret_cast<LPPOINT>(lpRect), 2);
}

CDC* CWnd::BeginPaint(LPPAINTSTRUCT lpPaint) { return CDC::FromHandle(::BeginPaint(m_hWnd, lpPaint)); }
CDC* CWnd::GetDC() { return CDC::FromHandle(::GetDC(m_hWnd)); }
CDC* CWnd::GetWindowDC() { return CDC::FromHandle(::GetWindowDC(m_hWnd)); }
int CWnd::ReleaseDC(CDC* pDC) { return ::ReleaseDC(m_hWnd, pDC->m_hDC); }
BOOL CWnd::RedrawWindow(LPCRECT lpRectUpdate, CRgn* prgnUpdate, UINT flags) {
    return ::RedrawWindow(m_hWnd, lpRectUpdate, static_cast<HRGN>(kmfc::safe_handle(prgnUpdate)), flags);
}
void CWnd::Print(CDC* pDC, DWORD dwFlags) const {
    ::SendMessageW(m_hWnd, WM_PRINT, reinterpret_cast<WPARAM>(kmfc::safe_handle(pDC)),
                   static_cast<LPARAM>(dwFlags));
}

BOOL CWnd::SetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, BOOL bRedraw) {
    lpScrollInfo->cbSize = sizeof(*lpScrollInfo);
    ::SetScrollInfo(m_hWnd, nBar, lpScrollInfo, bRedraw);
    return TRUE;
}
BOOL CWnd::GetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, UINT nMask) {
    lpScrollInfo->cbSize = sizeof(*lpScrollInfo);
    lpScrollInfo->fMask = nMask;
    return ::GetScrollInfo(m_hWnd, nBar, lpScrollInfo);
}
void CWnd::EnableScrollBarCtrl(int nBar, BOOL bEnable) {
    ::EnableScrollBar(m_hWnd, static_cast<UINT>(nBar), bEnable ? ESB_ENABLE_BOTH : ESB_DISABLE_BOTH);
}
CScrollBar* CWnd::GetScrollBarCtrl(int) const { return nullptr; }

int CWnd::GetCheckedRadioButton(int nIDFirstButton, int nIDLastButton) const {
    for (int id = nIDFirstButton; id <= nIDLastButton; ++id)
        if (IsDlgButtonChecked(id)) return id;
    return 0;
}

CWnd* CWnd::GetNextDlgGroupItem(CWnd* pWndCtl, BOOL bPrevious) const {
    return FromHandle(::GetNextDlgGroupItem(m_hWnd, kmfc::safe_handle(pWndCtl), bPrevious));
}
CWnd* CWnd::GetNextDlgTabItem(CWnd* pWndCtl, BOOL bPrevious) const {
    return FromHandle(::GetNextDlgTabItem(m_hWnd, kmfc::safe_handle(pWndCtl), bPrevious));
}
void CWnd::GotoDlgCtrl(CWnd* pWndCtrl) {
    ::SendMessageW(m_hWnd, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(kmfc::safe_handle(pWndCtrl)), 1);
}

CWnd* CWnd::GetDescendantWindow(int nID, BOOL bOnlyPerm) const {
    if (HWND item = ::GetDlgItem(m_hWnd, nID)) {
        CWnd* wnd = bOnlyPerm ? FromHandlePermanent(item) : FromHandle(item);
        if (wnd != nullptr) return wnd;
    }
    for (HWND child = ::GetTopWindow(m_hWnd); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT)) {
        CWnd childWnd(child);
        CWnd* found = childWnd.GetDescendantWindow(nID, bOnlyPerm);
        childWnd.m_hWnd = nullptr;
        if (found != nullptr) return found;
    }
    return nullptr;
}

void CWnd::SendMessageToDescendants(UINT message, WPARAM wParam, LPARAM lParam, BOOL bDeep, BOOL bOnlyPerm) {
    for (HWND child = ::GetTopWindow(m_hWnd); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT)) {
        if (!bOnlyPerm) {
            ::SendMessageW(child, message, wParam, lParam);
        } else if (CWnd* wnd = FromHandlePermanent(child)) {
            AfxCallWndProc(wnd, child, message, wParam, lParam);
        }
        if (!bDeep) continue;
        CWnd childWnd(child);
        childWnd.SendMessageToDescendants(message, wParam, lParam, bDeep, bOnlyPerm);
        childWnd.m_hWnd = nullptr;
    }
}

void CWnd::UpdateDialogControls(CCmdTarget* pTarget, BOOL bDisableIfNoHndler) {
    for (HWND child = ::GetTopWindow(m_hWnd); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT)) {
        CCmdUI request;
        request.m_nID = LOWORD(::GetDlgCtrlID(child));
        request.m_pOther = FromHandle(child);
        CWnd* permanent = FromHandlePermanent(child);
        if (permanent != nullptr && permanent->OnCmdMsg(0, CN_UPDATE_COMMAND_UI, &request, nullptr)) continue;
        // Only push buttons are disabled for want of a handler.
        const bool push =
            (::SendMessageW(child, WM_GETDLGCODE, 0, 0) & (DLGC_DEFPUSHBUTTON | DLGC_UNDEFPUSHBUTTON)) != 0;
        request.DoUpdate(pTarget, bDisableIfNoHndler && push);
    }
}

CWnd* CWnd::GetOwner() const { return m_hWndOwner != nullptr ? FromHandle(m_hWndOwner) : GetParent(); }

CWnd* CWnd::GetParentOwner() const { return FromHandle(parent_owner(m_hWnd)); }

CWnd* CWnd::GetTopLevelParent() const {
    return m_hWnd == nullptr ? nullptr : FromHandle(climb(m_hWnd, parent_owner));
}

CWnd* CWnd::GetTopLevelOwner() const {
    if (m_hWnd == nullptr) return nullptr;
    return FromHandle(climb(::GetAncestor(m_hWnd, GA_ROOT), [](HWND w) { return ::GetWindow(w, GW_OWNER); }));
}

CFrameWnd* CWnd::GetParentFrame() const {
    for (CWnd* wnd = GetParent(); wnd != nullptr; wnd = wnd->GetParent())
        if (wnd->IsFrameWnd()) return static_cast<CFrameWnd*>(wnd);
    return nullptr;
}

CFrameWnd* CWnd::GetTopLevelFrame() const {
    CFrameWnd* frame = const_cast<CWnd*>(this)->IsFrameWnd()
                           ? static_cast<CFrameWnd*>(const_cast<CWnd*>(this))
                           : GetParentFrame();
    while (frame != nullptr) {
        CFrameWnd* outer = frame->GetParentFrame();
        if (outer == nullptr) break;
        frame = outer;
    }
    return frame;
}

CWnd* CWnd::GetSafeOwner(CWnd* pParent, HWND* pWndTop) {
    HWND owner = kmfc::safe_handle(pParent);
    if (owner == nullptr) owner = kmfc::safe_handle(AfxGetMainWnd());
    while (owner != nullptr && (::GetWindowLongPtrW(owner, GWL_STYLE) & WS_CHILD)) owner = ::GetParent(owner);
    HWND top = owner != nullptr ? climb(owner, [](HWND w) { return ::GetParent(w); }) : nullptr;
    if (pParent == nullptr && owner != nullptr) owner = ::GetLastActivePopup(owner);
    if (pWndTop != nullptr) {
        const bool disable = top != nullptr && ::IsWindowEnabled(top) && top != owner;
        *pWndTop = disable ? top : nullptr;
        if (disable) ::EnableWindow(top, FALSE);
    }
    return FromHandle(owner);
}

int CWnd::MessageBox(LPCTSTR lpszText, LPCTSTR lpszCaption, UINT nType) {
    return ::MessageBoxW(m_hWnd, lpszText, lpszCaption != nullptr ? lpszCaption : AfxGetAppName(), nType);
}

void CWnd::CenterWindow(CWnd* pAlternateOwner) {
    const bool child = (GetStyle() & WS_CHILD) != 0;
    HWND owner = kmfc::safe_handle(pAlternateOwner);
    if (owner == nullptr) owner = child ? ::GetParent(m_hWnd) : ::GetWindow(m_hWnd, GW_OWNER);

    CRect window, area, center;
    GetWindowRect(&window);
    if (child) {
        ::GetClientRect(::GetParent(m_hWnd), &area);
        ::GetClientRect(owner, &center);
        ::MapWindowPoints(owner, ::GetParent(m_hWnd), reinterpret_cast<LPPOINT>(&center), 2);
    } else {
        const bool ownerShows = owner != nullptr && ::IsWindowVisible(owner) && !::IsIconic(owner);
        MONITORINFO monitor = {};
        monitor.cbSize = sizeof(monitor);
        ::GetMonitorInfoW(::MonitorFromWindow(owner != nullptr ? owner : m_hWnd, MONITOR_DEFAULTTOPRIMARY),
                          &monitor);
        area = monitor.rcWork;
        if (ownerShows)
            ::GetWindowRect(owner, &center);
        else
            center = area;
    }
    int left = (center.left + center.right) / 2 - window.Width() / 2;
    int top = (center.top + center.bottom) / 2 - window.Height() / 2;
    if (left + window.Width() > area.right) left = area.right - window.Width();
    if (left < area.left) left = area.left;
    if (top + window.Height() > area.bottom) top = area.bottom - window.Height();
    if (top < area.top) top = area.top;
    ::SetWindowPos(m_hWnd, nullptr, left, top, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}
