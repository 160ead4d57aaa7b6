#include "options_dialog.h"

#include <kh_system.h>

#include "extensions.h"
#include "resource.h"

IMPLEMENT_DYNAMIC(COptionsDialog, CKtUiTabMainDialog)

BEGIN_MESSAGE_MAP(COptionsDialog, CKtUiTabMainDialog)
    ON_BN_CLICKED(IDC_APPLY, &COptionsDialog::OnApply)
    ON_WM_DESTROY()
END_MESSAGE_MAP()

COptionsDialog::COptionsDialog(const DrafterOptions& options,
                               std::function<void(const DrafterOptions&)> apply, CExtensions* extensions,
                               CWnd* parent)
    : CKtUiTabMainDialog(IDD_OPTIONS, parent),
      m_options(options),
      m_apply(std::move(apply)),
      m_extensions(extensions) {
    SetDialogName(L"Options");
}

void COptionsDialog::DoDataExchange(CDataExchange* exchange) {
    CKtUiTabMainDialog::DoDataExchange(exchange);
    DDX_Control(exchange, IDC_TABS, m_tabs);
}

BOOL COptionsDialog::OnInitDialog() {
    const BOOL result = CKtUiTabMainDialog::OnInitDialog();
    addPages();
    StretchControlXY(IDC_TABS, 100, 100);
    for (const unsigned button : {IDOK, IDCANCEL, IDC_APPLY, IDHELP}) MoveControlXY(button, 100, 100);
    MoveControlY(IDC_MESSAGE, 100);
    StretchControlX(IDC_MESSAGE, 100);
    openLastPage();
    return result;
}

void COptionsDialog::addPages() {
    const struct {
        UINT name, page;
        CKbUiTabChildDialog& dialog;
        const wchar_t* help;
    } pages[] = {{IDS_PAGE_FILES, IDD_OPTIONS_FILES, m_files, L"OptionsFiles"},
                 {IDS_PAGE_DISPLAY, IDD_OPTIONS_DISPLAY, m_display, L"OptionsDisplay"},
                 {IDS_PAGE_UNITS, IDD_OPTIONS_UNITS, m_units, L"OptionsUnits"}};
    int index = 0;
    for (const auto& each : pages) {
        each.dialog.SetDialogHelpTag(each.help);
        AddTab(index++, each.name, each.page, &each.dialog);
    }
    if (m_extensions == nullptr) return;
    m_extensions->AddTabs(*GetXtabPointer());
    SetDlgItemText(IDC_MESSAGE, m_extensions->problem());
}

void COptionsDialog::openLastPage() {
    CString page;
    GetDialogData(L"Page", page);
    SetInitialTabIndex(page);
    const int index = GetInitialRequestedTabIndex();
    if (index > 0) m_tabs.SetActiveTab(index);
}

BOOL COptionsDialog::PreTranslateMessage(MSG* message) {
    return KtUiTurnTabByKey(m_tabs, *message) || CKtUiTabMainDialog::PreTranslateMessage(message);
}

int COptionsDialog::DoDialogHelp() {
    CKbUiTabChildDialog* page = m_tabs.GetDialogPointer(m_tabs.GetActiveTab());
    if (::GetFocus() != m_tabs.m_hWnd || page == nullptr) return CKtUiTabMainDialog::DoDialogHelp();
    CString topic;
    page->GetDialogHelpTag(topic);
    CKhSystem::instance()->uiHost()->showHelp(topic);
    return 1;
}

void COptionsDialog::OnApply() {
    if (!m_tabs.ValidateData()) return;
    RaiseApplyEvent();
    m_apply(m_options);
}

void COptionsDialog::OnDestroy() {
    CString page;
    page.Format(L"%d", m_tabs.GetActiveTab());
    SetDialogData(L"Page", page);
    CKtUiTabMainDialog::OnDestroy();
}
