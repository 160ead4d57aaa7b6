// How a CWnd gets hold of its handle before the first message, and window class registration.
#include <map>
#include <mutex>
#include <string>
#include <utility>

#include <kmfc/app.h>

#include "thread_state.h"

using kmfc::thread_state;

namespace {

bool is_input_method_window(HWND hWnd) {
    wchar_t name[8] = {};
    ::GetClassNameW(hWnd, name, 8);
    return ::lstrcmpiW(name, L"IME") == 0;
}

/// Makes the new window the one that waits for its handle; false when that has one already.
bool adopt(CWnd* wnd, HWND hWnd) {
    // The handle of a window that went without telling may come again.
    if (CWnd* former = CWnd::FromHandlePermanent(hWnd)) former->Detach();
    if (!wnd->Attach(hWnd)) return false;
    wnd->PreSubclassWindow();
    WNDPROC* super = wnd->GetSuperWndProcAddr();
    auto previous = reinterpret_cast<WNDPROC>(
        ::SetWindowLongPtrW(hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(AfxWndProc)));
    if (previous != AfxWndProc) *super = previous;
    return true;
}

/// The same for a hook, which no exception may leave: false as well when one came.
bool adopt_safely(HWND hWnd) {
    CWnd* wnd = std::exchange(thread_state().m_pWndInit, nullptr);
    try {
        return adopt(wnd, hWnd);
    } catch (CException* e) {
        e->Delete();
    } catch (...) {
    }
    if (wnd->m_hWnd == hWnd) wnd->Detach();
    return false;
}

LRESULT CALLBACK creation_hook(int code, WPARAM wParam, LPARAM lParam) {
    constexpr LRESULT kRefused = 1;  // the window is not created
    HWND hWnd = reinterpret_cast<HWND>(wParam);
    const bool awaited =
        code == HCBT_CREATEWND && thread_state().m_pWndInit != nullptr && !is_input_method_window(hWnd);
    if (awaited && !adopt_safely(hWnd)) return kRefused;
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
