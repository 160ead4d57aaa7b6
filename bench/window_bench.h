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
/// Opening and closing a tabbed dialog of five pages against a property sheet with the same pages.
void measure_tabbed_dialog();
/// The layout of a task dialog of ten commands against measuring its texts as often, and a tip shown against
/// the system's.
void measure_messages();
/// Painting two hundred bitmap buttons against as many bare ones with the same picture.
void measure_buttons();
/// Opening the navigation file dialog against the system's own, and the preview of a large drawing.
void measure_file_dialog();
/// The walks of a search for files against a plain walk through 100,000 files in 1,000 folders.
void measure_find_files();
/// Painting a scene of 100,000 entities against a frame's time at 30 a second.
void measure_scene_painting();
/// Moving docked panes against moving bare windows, and what palettes and stored layouts take.
void measure_docking();
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

constexpr DWORD kPickerStyle =
    WS_CHILD | WS_VISIBLE | WS_VSCROLL | CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED | CBS_HASSTRINGS;
constexpr RECT kPickerPlace = {10, 10, 210, 420};
constexpr UINT kPickerId = 1;

/// A visible window of the class layer, which a picker is made in.
class PickerHolder : public CWnd {
public:
    PickerHolder() {
        CreateEx(0, AfxRegisterWndClass(0, nullptr, ::GetSysColorBrush(COLOR_WINDOW)), L"",
                 WS_POPUP | WS_VISIBLE, CRect(100, 100, 500, 400), nullptr, 0);
    }
    ~PickerHolder() override { DestroyWindow(); }
};

/// A bare owner-drawn combo box in a bare window of its own: the peer of a picker.
class BareCombo {
public:
    using DrawItem = void (*)(const DRAWITEMSTRUCT&);

    /// Without `draw` items stay empty.
    explicit BareCombo(DrawItem draw = nullptr)
        : m_parent(make_bare_window(L"measuring parent", answer)),
          m_combo(::CreateWindowExW(0, L"COMBOBOX", L"", kPickerStyle, kPickerPlace.left, kPickerPlace.top,
                                    kPickerPlace.right - kPickerPlace.left,
                                    kPickerPlace.bottom - kPickerPlace.top, m_parent,
                                    reinterpret_cast<HMENU>(kPickerId), nullptr, nullptr)) {
        ::SetWindowLongPtrW(m_parent, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(draw));
    }
    ~BareCombo() { ::DestroyWindow(m_parent); }
    BareCombo(const BareCombo&) = delete;
    BareCombo& operator=(const BareCombo&) = delete;
    HWND get() const { return m_combo; }

private:
    static LRESULT CALLBACK answer(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
        constexpr UINT kItemHeight = 15;  // pixels
        if (message == WM_MEASUREITEM) {
            reinterpret_cast<MEASUREITEMSTRUCT*>(lParam)->itemHeight = kItemHeight;
            return TRUE;
        }
        if (message != WM_DRAWITEM) return ::DefWindowProcW(window, message, wParam, lParam);
        if (auto draw = reinterpret_cast<DrawItem>(::GetWindowLongPtrW(window, GWLP_USERDATA)))
            draw(*reinterpret_cast<const DRAWITEMSTRUCT*>(lParam));
        return TRUE;
    }

    HWND m_parent;
    HWND m_combo;
};

}  // namespace bench
