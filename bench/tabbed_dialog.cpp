#include "window_bench.h"

#include <array>

#include <ktui/dialogs/ktui_tab.h>
#include <ktui/dialogs/ktui_tab_dialogs.h>

#include <prsht.h>

#include "bench_ids.h"

namespace {

constexpr int kRounds = 41;
constexpr int kPages = 5;
constexpr UINT kEnd = WM_APP + 1;

/// Ends as soon as its loop runs.
class TabbedDialog : public CKtUiTabMainDialog {
public:
    explicit TabbedDialog(CWnd* parent)
        : CKtUiTabMainDialog(IDD_TABBED, parent, ::GetModuleHandleW(nullptr)) {
        SetAppRootKey(L"Software\\ktui bench\\");
    }

protected:
    void DoDataExchange(CDataExchange* exchange) override {
        CKtUiTabMainDialog::DoDataExchange(exchange);
        DDX_Control(exchange, IDC_TABS, m_tabs);
    }
    BOOL OnInitDialog() override {
        const BOOL result = CKtUiTabMainDialog::OnInitDialog();
        for (int i = 0; i < kPages; ++i) AddTab(i, L"Page", IDD_TAB_PAGE, &m_pages[static_cast<size_t>(i)]);
        PostMessage(kEnd);
        return result;
    }
    afx_msg LRESULT OnEnd(WPARAM, LPARAM) {
        EndDialog(IDCANCEL);
        return 0;
    }
    DECLARE_MESSAGE_MAP()

private:
    CKtUiTab m_tabs;
    std::array<CKtUiTabChildDialog, kPages> m_pages;
};

BEGIN_MESSAGE_MAP(TabbedDialog, CKtUiTabMainDialog)
    ON_MESSAGE(kEnd, &TabbedDialog::OnEnd)
END_MESSAGE_MAP()

INT_PTR CALLBACK bare_page(HWND, UINT message, WPARAM, LPARAM) { return message == WM_INITDIALOG; }

int CALLBACK end_sheet(HWND sheet, UINT message, LPARAM) {
    if (message != PSCB_INITIALIZED) return 0;
    // A sheet makes its pages when they first come to the front.
    for (WPARAM page = 1; page < kPages; ++page) ::PostMessageW(sheet, PSM_SETCURSEL, page, 0);
    ::PostMessageW(sheet, WM_COMMAND, IDCANCEL, 0);
    return 0;
}

/// A property sheet whose pages are all made, as those of the tabbed dialog are.
void open_sheet(HWND owner) {
    PROPSHEETPAGEW pages[kPages] = {};
    for (PROPSHEETPAGEW& page : pages) {
        page.dwSize = sizeof page;
        page.dwFlags = PSP_USETITLE;
        page.hInstance = ::GetModuleHandleW(nullptr);
        page.pszTemplate = MAKEINTRESOURCEW(IDD_TAB_PAGE);
        page.pszTitle = L"Page";
        page.pfnDlgProc = bare_page;
    }
    PROPSHEETHEADERW sheet = {};
    sheet.dwSize = sizeof sheet;
    sheet.dwFlags = PSH_PROPSHEETPAGE | PSH_USECALLBACK;
    sheet.hwndParent = owner;
    sheet.hInstance = ::GetModuleHandleW(nullptr);
    sheet.pszCaption = L"sheet";
    sheet.nPages = kPages;
    sheet.ppsp = pages;
    sheet.pfnCallback = end_sheet;
    ::PropertySheetW(&sheet);
}

}  // namespace

void bench::measure_tabbed_dialog() {
    CWnd owner;
    owner.CreateEx(0, AfxRegisterWndClass(0, nullptr, ::GetSysColorBrush(COLOR_WINDOW)), L"",
                   WS_POPUP | WS_VISIBLE, CRect(50, 50, 650, 450), nullptr, 0);
    const auto openOurs = [&] {
        drain_queue();
        const double seconds = seconds_of([&] { TabbedDialog(&owner).DoModal(); });
        AfxGetApp()->OnIdle(1);
        return seconds;
    };
    const auto openPeer = [&] {
        drain_queue();
        return seconds_of([&] { open_sheet(owner.m_hWnd); });
    };
    report("opening and closing a tabbed dialog of 5 pages", compare(kRounds, 1, openOurs, openPeer), 1.1);
    owner.DestroyWindow();
    ::RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\ktui bench");
}
