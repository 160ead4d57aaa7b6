// How a CWnd gets hold of its handle before the first message, and window class registration.
#include <map>
#include <mutex>
#include <string>

#include <kmfc/app.h>

#include "thread_state.h"

using kmfc::thread_state;

namespace {

bool is_input_method_window(HWND hWnd) {
    wchar_t name[8] = {};
    ::GetClassNameW(hWnd, name, 8);
    return ::lstrcmpiW(name, L"IME") == 0;
}

/// Makes the new window the one that waits for its handle.
void adopt(HWND hWnd) {
    kmfc::ThreadState& state = thread_state();
    CWnd* wnd = state.m_pWndInit;
    state.m_pWndInit = nullptr;
    wnd->Attach(hWnd);
    wnd->PreSubclassWindow();
    WNDPROC* super = wnd->GetSuperWndProcAddr();
    auto previous = reinterpret_cast<WNDPROC>(
        ::SetWindowLongPtrW(hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(AfxWndProc)));
    if (previous != AfxWndProc) *super = previous;
}

LRESULT CALLBACK creation_hook(int code, WPARAM wParam, LPARAM lParam) {
    HWND hWnd = reinterpret_cast<HWND>(wParam);
    if (code == HCBT_CREATEWND && thread_state().m_pWndInit != nullptr && !is_input_method_window(hWnd))
        adopt(hWnd);
    return ::CallNextHookEx(nullptr, code, wParam, lParam);
}

}  // namespace

void AfxHookWindowCreate(CWnd* pWnd) {
    kmfc::ThreadState& state = thread_state();
    if (state.m_hHookCreate == nullptr) {
        state.m_hHookCreate = ::SetWindowsHookExW(WH_CBT, creation_hook, nullptr, ::GetCurrentThreadId());
        if (state.m_hHookCreate == nullptr) AfxThrowMemoryException();
    }
    state.m_pWndInit = pWnd;
}

BOOL AfxUnhookWindowCreate() {
    kmfc::ThreadState& state = thread_state();
    if (state.m_hHookCreate != nullptr && state.m_pWndInit != nullptr) {
        state.m_pWndInit = nullptr;
        return FALSE;
    }
    return TRUE;
}

BOOL AfxRegisterClass(WNDCLASS* lpWndClass) {
    WNDCLASS existing;
    if (::GetClassInfoW(lpWndClass->hInstance, lpWndClass->lpszClassName, &existing)) return TRUE;
    // Another thread may have been faster.
    return ::RegisterClassW(lpWndClass) != 0 || ::GetLastError() == ERROR_CLASS_ALREADY_EXISTS;
}

LPCTSTR AfxRegisterWndClass(UINT nClassStyle, HCURSOR hCursor, HBRUSH hbrBackground, HICON hIcon) {
    static std::mutex guard;
    static std::map<std::wstring, bool> names;
    wchar_t name[96];
    HINSTANCE instance = AfxGetInstanceHandle();
    ::wsprintfW(name, L"Afx:%Ix:%x:%Ix:%Ix:%Ix", instance, nClassStyle, hCursor, hbrBackground, hIcon);
    const std::lock_guard lock(guard);
    auto [place, added] = names.try_emplace(name, false);
    if (!place->second) {
        WNDCLASS wc = {};
        wc.style = nClassStyle;
        wc.lpfnWndProc = ::DefWindowProcW;
        wc.hInstance = instance;
        wc.hIcon = hIcon;
        wc.hCursor = hCursor;
        wc.hbrBackground = hbrBackground;
        wc.lpszClassName = place->first.c_str();
        if (!AfxRegisterClass(&wc)) AfxThrowResourceException();
        place->second = true;
    }
    return place->first.c_str();
}
