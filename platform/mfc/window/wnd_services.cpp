// CWnd: regions, the caret, scrolling, and help.
#include <kmfc/app.h>
#include <kmfc/frame.h>
#include <kmfc/wnd.h>

void CWnd::CalcWindowRect(LPRECT lpClientRect, UINT nAdjustType) {
    DWORD extended = GetExStyle();
    // A border that the client edge draws is not the window's own, unless it is asked for.
    if (nAdjustType == adjustBorder) extended &= ~static_cast<DWORD>(WS_EX_CLIENTEDGE);
    const BOOL menu = (GetStyle() & WS_CHILD) == 0 && ::GetMenu(m_hWnd) != nullptr;
    ::AdjustWindowRectEx(lpClientRect, GetStyle(), menu, extended);
}

CDC* CWnd::GetDCEx(CRgn* prgnClip, DWORD flags) {
    return CDC::FromHandle(::GetDCEx(m_hWnd, static_cast<HRGN>(kmfc::safe_handle(prgnClip)), flags));
}

int CWnd::GetUpdateRgn(CRgn* pRgn, BOOL bErase) {
    return ::GetUpdateRgn(m_hWnd, static_cast<HRGN>(kmfc::safe_handle(pRgn)), bErase);
}

void CWnd::InvalidateRgn(CRgn* pRgn, BOOL bErase) {
    ::InvalidateRgn(m_hWnd, static_cast<HRGN>(kmfc::safe_handle(pRgn)), bErase);
}

void CWnd::ValidateRgn(CRgn* pRgn) { ::ValidateRgn(m_hWnd, static_cast<HRGN>(kmfc::safe_handle(pRgn))); }

BOOL CWnd::RegisterTouchWindow(BOOL bRegister, ULONG ulFlags) {
    const BOOL done = bRegister ? ::RegisterTouchWindow(m_hWnd, ulFlags) : ::UnregisterTouchWindow(m_hWnd);
    if (done) m_bIsTouchWindowRegistered = bRegister;
    return done;
}

void CWnd::CreateCaret(CBitmap* pBitmap) {
    ::CreateCaret(m_hWnd, static_cast<HBITMAP>(kmfc::safe_handle(pBitmap)), 0, 0);
}

BOOL CWnd::HiliteMenuItem(CMenu* pMenu, UINT nIDHiliteItem, UINT nHilite) {
    return ::HiliteMenuItem(m_hWnd, kmfc::safe_handle(pMenu), nIDHiliteItem, nHilite);
}

int CWnd::GetScrollLimit(int nBar) {
    int least = 0, most = 0;
    GetScrollRange(nBar, &least, &most);
    SCROLLINFO info = {};
    if (GetScrollInfo(nBar, &info, SIF_PAGE) && info.nPage > 1) most -= static_cast<int>(info.nPage) - 1;
    return most;
}

int CWnd::ScrollWindowEx(int dx, int dy, LPCRECT lpRectScroll, LPCRECT lpRectClip, CRgn* prgnUpdate,
                         LPRECT lpRectUpdate, UINT flags) {
    return ::ScrollWindowEx(m_hWnd, dx, dy, lpRectScroll, lpRectClip,
                            static_cast<HRGN>(kmfc::safe_handle(prgnUpdate)), lpRectUpdate, flags);
}

void CWnd::WinHelp(DWORD_PTR dwData, UINT nCmd) {
    if (CWinApp* app = AfxGetApp()) app->WinHelp(dwData, nCmd);
}

void CWnd::HtmlHelp(DWORD_PTR dwData, UINT nCmd) {
    if (CWinApp* app = AfxGetApp()) app->HtmlHelp(dwData, nCmd);
}

void CWnd::OnHelp() {
    // The window that has the user's attention is asked first, then those that hold it.
    CWnd* top = GetTopLevelParent();
    CWnd* popup = top != nullptr ? top->GetLastActivePopup() : nullptr;
    HWND window = kmfc::safe_handle(popup);
    if (window == nullptr || !::IsWindowEnabled(window)) window = m_hWnd;
    for (; window != nullptr; window = ::GetParent(window))
        if (::SendMessageW(window, WM_COMMANDHELP, 0, 0) != 0) return;
    ::SendMessageW(m_hWnd, WM_COMMAND, ID_DEFAULT_HELP, 0);
}

void CWnd::OnHelpIndex() { WinHelp(0, HELP_INDEX); }
void CWnd::OnHelpFinder() { WinHelp(0, HELP_FINDER); }
void CWnd::OnHelpUsing() { WinHelp(0, HELP_HELPONHELP); }
