#include "window_bench.h"

#include <vector>

#include <ktui/dialogs/ktui_dialog.h>

#include "bench_ids.h"

namespace {

constexpr int kChildren = 200;
constexpr int kColumns = 20;
constexpr int kSteps = 10;
constexpr int kRounds = 15;
constexpr int kStep = 4;  // pixels

/// The children of either dialog: small buttons in rows.
std::vector<HWND> add_children(HWND dialog) {
    std::vector<HWND> children;
    for (int i = 0; i < kChildren; ++i) {
        const auto id = static_cast<UINT_PTR>(IDC_FIRST_CHILD + i);
        children.push_back(::CreateWindowExW(0, L"BUTTON", L"a", WS_CHILD | WS_VISIBLE, i % kColumns * 20,
                                             i / kColumns * 20, 18, 18, dialog, reinterpret_cast<HMENU>(id),
                                             nullptr, nullptr));
    }
    return children;
}

class ToolkitDialog : public CKtUiDialog {
public:
    ToolkitDialog() : CKtUiDialog(IDD_EMPTY, nullptr, ::GetModuleHandleW(nullptr)) {
        SetAppRootKey(L"Software\\ktui bench\\");
    }

protected:
    BOOL OnInitDialog() override {
        const BOOL result = CKtUiDialog::OnInitDialog();
        add_children(m_hWnd);
        for (int i = 0; i < kChildren; ++i)
            MoveControlXY(static_cast<unsigned>(IDC_FIRST_CHILD + i), 100, 100);
        return result;
    }
};

/// Moves its children one by one by the change of its size.
struct BareDialog {
    HWND window = nullptr;
    std::vector<HWND> children;
    CSize last{0, 0};

    void Resize(CSize size) {
        const CSize change = size - last;
        last = size;
        for (HWND child : children) {
            CRect rect;
            ::GetWindowRect(child, &rect);
            ::MapWindowPoints(nullptr, window, reinterpret_cast<POINT*>(&rect), 2);
            ::MoveWindow(child, rect.left + change.cx, rect.top + change.cy, rect.Width(), rect.Height(),
                         FALSE);
        }
        ::InvalidateRect(window, nullptr, TRUE);
    }
};

INT_PTR CALLBACK bare_dialog(HWND window, UINT message, WPARAM, LPARAM lParam) {
    static BareDialog* dialog;
    if (message == WM_INITDIALOG) {
        dialog = reinterpret_cast<BareDialog*>(lParam);
        dialog->window = window;
        dialog->children = add_children(window);
        CRect client;
        ::GetClientRect(window, &client);
        dialog->last = client.Size();
        return TRUE;
    }
    if (message == WM_SIZE) dialog->Resize(CSize(LOWORD(lParam), HIWORD(lParam)));
    return FALSE;
}

/// Seconds for a number of steps, larger and back; painting in between is not counted.
double resize(HWND window) {
    // The window that is resized is the active one, as under a user's hand.
    ::SetActiveWindow(window);
    bench::drain_queue();
    CRect rect;
    ::GetWindowRect(window, &rect);
    double seconds = 0;
    for (int step = 0; step < kSteps; ++step) {
        const int more = step % 2 == 0 ? kStep : 0;
        seconds += bench::seconds_of([&] {
            ::SetWindowPos(window, nullptr, 0, 0, rect.Width() + more, rect.Height() + more,
                           SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
        });
        bench::drain_queue();
    }
    return seconds;
}

// Only one of the two dialogs is there at a time: of two, the one made first is the slower to resize, whoever
// made it.

double resize_ours() {
    ToolkitDialog dialog;
    dialog.Create(IDD_EMPTY, nullptr);
    dialog.ShowWindow(SW_SHOW);
    const double seconds = resize(dialog.m_hWnd);
    dialog.DestroyWindow();
    bench::drain_queue();
    return seconds;
}

double resize_peer() {
    BareDialog bare;
    HWND window = ::CreateDialogParamW(::GetModuleHandleW(nullptr), MAKEINTRESOURCEW(IDD_EMPTY), nullptr,
                                       bare_dialog, reinterpret_cast<LPARAM>(&bare));
    ::ShowWindow(window, SW_SHOW);
    const double seconds = resize(window);
    ::DestroyWindow(window);
    bench::drain_queue();
    return seconds;
}

}  // namespace

void bench::measure_resize() {
    report("one size step of 200 controls", compare(kRounds, kSteps, resize_ours, resize_peer), 1.0);
    ::RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\ktui bench");
}
