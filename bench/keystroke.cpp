#include "window_bench.h"

#include <cwchar>

#include <ktui/input/ktui_typed_edits.h>

namespace {

constexpr int kSequences = 40;
constexpr int kRounds = 41;
constexpr wchar_t kKeys[] = L"12.5\b\b\b\b";  // typed and taken back
constexpr int kKeyCount = 8;

double parsed;  // kept, so that parsing is not optimised away

LRESULT CALLBACK parsing_parent(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_COMMAND && HIWORD(wParam) == EN_CHANGE) {
        wchar_t text[256];
        ::GetWindowTextW(reinterpret_cast<HWND>(lParam), text, 256);
        wchar_t* end = nullptr;
        parsed = std::wcstod(text, &end);
        return 0;
    }
    return ::DefWindowProcW(window, message, wParam, lParam);
}

class Holder : public CWnd {};

double type_into(HWND edit) {
    bench::drain_queue();
    return bench::seconds_of([&] {
        for (int sequence = 0; sequence < kSequences; ++sequence)
            for (const wchar_t* key = kKeys; *key != 0; ++key)
                ::SendMessageW(edit, WM_CHAR, static_cast<WPARAM>(*key), 1);
    });
}

void measure(const char* what, bool visible, double goal) {
    const DWORD style = WS_CHILD | ES_AUTOHSCROLL | (visible ? WS_VISIBLE : 0);
    const CRect place(10, 10, 160, 32);
    Holder holder;
    holder.CreateEx(0, AfxRegisterWndClass(0, nullptr, ::GetSysColorBrush(COLOR_WINDOW)), L"",
                    WS_POPUP | WS_VISIBLE, CRect(100, 100, 500, 400), nullptr, 0);
    CKtUiNumericEdit ours;
    ours.Create(style, place, &holder, 1);
    HWND parent = bench::make_bare_window(L"parsing parent", parsing_parent);
    ::SetWindowPos(parent, nullptr, 600, 100, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    HWND peer = ::CreateWindowExW(0, L"EDIT", L"", style, place.left, place.top, place.Width(),
                                  place.Height(), parent, reinterpret_cast<HMENU>(1), nullptr, nullptr);
    bench::report(what,
                  bench::compare(
                      kRounds, kSequences * kKeyCount, [&] { return type_into(ours.m_hWnd); },
                      [&] { return type_into(peer); }),
                  goal);
    ::DestroyWindow(parent);
    holder.DestroyWindow();
}

}  // namespace

void bench::measure_keystroke() {
    measure("keystroke in a numeric edit, shown", true, 1.15);
    measure("keystroke in a numeric edit, hidden", false, 1.15);
}
