#include "window_bench.h"

#include <ktui/dialogs/ktui_dialog.h>

#include "bench_ids.h"

namespace {

constexpr int kRounds = 41;
constexpr UINT kEnd = WM_APP + 1;

/// Ends as soon as its loop runs.
class ToolkitDialog : public CKtUiDialog {
public:
    explicit ToolkitDialog(CWnd* parent) : CKtUiDialog(IDD_FORTY, parent, ::GetModuleHandleW(nullptr)) {
        SetAppRootKey(L"Software\\ktui bench\\");
    }

protected:
    BOOL OnInitDialog() override {
        const BOOL result = CKtUiDialog::OnInitDialog();
        PostMessage(kEnd);
        return result;
    }
    afx_msg LRESULT OnEnd(WPARAM, LPARAM) {
        EndDialog(IDCANCEL);
        return 0;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(ToolkitDialog, CKtUiDialog)
    ON_MESSAGE(kEnd, &ToolkitDialog::OnEnd)
END_MESSAGE_MAP()

INT_PTR CALLBACK bare_dialog(HWND window, UINT message, WPARAM, LPARAM) {
    if (message == WM_INITDIALOG) return ::PostMessageW(window, kEnd, 0, 0), TRUE;
    if (message == kEnd) return ::EndDialog(window, IDCANCEL), TRUE;
    return FALSE;
}

}  // namespace

void bench::measure_dialog() {
    CWnd owner;
    owner.CreateEx(0, AfxRegisterWndClass(0, nullptr, ::GetSysColorBrush(COLOR_WINDOW)), L"",
                   WS_POPUP | WS_VISIBLE, CRect(50, 50, 650, 450), nullptr, 0);
    const auto openOurs = [&] {
        drain_queue();
        const double seconds = seconds_of([&] { ToolkitDialog(&owner).DoModal(); });
        AfxGetApp()->OnIdle(1);
        return seconds;
    };
    const auto openPeer = [&] {
        drain_queue();
        return seconds_of([&] {
            ::DialogBoxParamW(::GetModuleHandleW(nullptr), MAKEINTRESOURCEW(IDD_FORTY), owner.m_hWnd,
                              bare_dialog, 0);
        });
    };
    report("opening and closing a dialog of 40 controls", compare(kRounds, 1, openOurs, openPeer), 1.2);
    owner.DestroyWindow();
    ::RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\ktui bench");
}
