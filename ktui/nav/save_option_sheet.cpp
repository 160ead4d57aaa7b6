#include <ktui/nav/save_option_sheet.h>

#include <ktdsres/save_options_ids.h>

#include <ktui/host/host_calls.h>
#include <ktui/host/string_resources.h>

IMPLEMENT_DYNAMIC(CSaveOptionSheet, CPropertySheet)

BEGIN_MESSAGE_MAP(CSaveOptionSheet, CPropertySheet)
    ON_WM_CREATE()
    ON_WM_HELPINFO()
    ON_COMMAND(IDM_SAVE_OPTIONS_HELP, &CSaveOptionSheet::OnHelp)
END_MESSAGE_MAP()

CSaveOptionSheet::CSaveOptionSheet(CWnd* parent) : CPropertySheet(L"", parent) {
    SetTitle(LoadToolkitString(IDS_SAVE_OPTIONS, L"另存为选项"));
    m_psh.dwFlags &= ~static_cast<DWORD>(PSH_PROPTITLE);
    m_psh.dwFlags |= PSH_NOAPPLYNOW | PSH_HASHELP;
    for (CPropertyPage* page : std::initializer_list<CPropertyPage*>{&m_dwgPage, &m_dxfPage}) {
        page->m_psp.dwFlags |= PSP_HASHELP;
        AddPage(page);
    }
}

CSaveOptionSheet::~CSaveOptionSheet() {
    // The pages go before the base, which would still ask them.
    if (m_hWnd != nullptr) DestroyWindow();
}

int CSaveOptionSheet::OnCreate(LPCREATESTRUCT create) {
    // Kept: the step is there and adds nothing.
    return CPropertySheet::OnCreate(create);
}

void CSaveOptionSheet::OnHelp() { ShowHostHelp(); }

BOOL CSaveOptionSheet::OnHelpInfo(HELPINFO*) {
    OnHelp();
    return TRUE;
}
