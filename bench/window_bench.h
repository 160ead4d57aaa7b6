// What the benchmarks with windows share. Each function measures and reports its rows.
#pragma once

#include <afxwin.h>

#include "measure.h"

namespace bench {

/// A keystroke in a numeric edit against one in a bare edit whose parent parses the text.
void measure_keystroke();
/// Filling a picker against filling a bare combo box of the same looks.
void measure_picker();
/// Filling, dropping and painting each picker of a drawing property against a bare combo box with its texts.
void measure_drawing_pickers();
/// Filling the font picker from 500 font files against filling a bare combo box with the same names.
void measure_fonts();
/// Opening and closing a dialog of forty controls against the bare function with the same template.
void measure_dialog();
/// One step of resizing two hundred controls against moving them one by one.
void measure_resize();

/// Dispatches what is in the queue now, painting included.
inline void drain_queue() {
    MSG message;
    for (int left = 5000; left > 0 && ::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE); --left) {
        ::TranslateMessage(&message);
        ::DispatchMessageW(&message);
    }
}

/// A visible bare window with a procedure of the caller's.
inline HWND make_bare_window(const wchar_t* name, WNDPROC procedure) {
    WNDCLASSW looks = {};
    looks.lpfnWndProc = procedure;
    looks.hInstance = ::GetModuleHandleW(nullptr);
    looks.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1);
    looks.lpszClassName = name;
    ::RegisterClassW(&looks);
    return ::CreateWindowExW(0, name, name, WS_POPUP | WS_VISIBLE, 100, 100, 400, 300, nullptr, nullptr,
                             looks.hInstance, nullptr);
}

/// A bare combo box, owner-drawn with items of 15 pixels, in a bare window of its own.
class BareCombo {
public:
    explicit BareCombo(DWORD style)
        : m_parent(make_bare_window(L"measuring parent", answer)),
          m_combo(::CreateWindowExW(0, L"COMBOBOX", L"", style, 10, 10, 190, 190, m_parent,
                                    reinterpret_cast<HMENU>(1), nullptr, nullptr)) {}
    ~BareCombo() { ::DestroyWindow(m_parent); }
    BareCombo(const BareCombo&) = delete;
    BareCombo& operator=(const BareCombo&) = delete;
    HWND get() const { return m_combo; }

private:
    static LRESULT CALLBACK answer(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
        if (message == WM_MEASUREITEM) {
            reinterpret_cast<MEASUREITEMSTRUCT*>(lParam)->itemHeight = 15;
            return TRUE;
        }
        return message == WM_DRAWITEM ? TRUE : ::DefWindowProcW(window, message, wParam, lParam);
    }

    HWND m_parent;
    HWND m_combo;
};

}  // namespace bench
