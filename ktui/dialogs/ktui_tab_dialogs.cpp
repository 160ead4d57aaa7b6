#include <ktui/dialogs/ktui_tab_dialogs.h>

#include <ktui/dialogs/ktui_tab.h>
#include <ktui/host/host_calls.h>
#include <ktui/host/module.h>

IMPLEMENT_DYNAMIC(CKtUiTab, CKbUiTab)
IMPLEMENT_DYNAMIC(CKtUiTabMainDialog, CKbUiTabMainDialog)
IMPLEMENT_DYNAMIC(CKtUiTabChildDialog, CKbUiTabChildDialog)

CKtUiTab::CKtUiTab() = default;
CKtUiTab::~CKtUiTab() = default;

CKtUiTabMainDialog::CKtUiTabMainDialog(unsigned templateId, CWnd* parent, HINSTANCE resource)
    : CKbUiTabMainDialog(templateId, parent, resource) {}

CKtUiTabMainDialog::~CKtUiTabMainDialog() = default;

CWnd* CKtUiTabMainDialog::AppMainWindow() { return HostMainWindow(); }
HINSTANCE CKtUiTabMainDialog::AppResourceInstance() { return KtUiAppResourceInstance(); }
const wchar_t* CKtUiTabMainDialog::AppRootKey() { return m_appRootKey; }
void CKtUiTabMainDialog::OnOK() { CKbUiTabMainDialog::OnOK(); }
void CKtUiTabMainDialog::OnCancel() { CKbUiTabMainDialog::OnCancel(); }

CKtUiTabChildDialog::CKtUiTabChildDialog(CWnd* parent, HINSTANCE resource)
    : CKbUiTabChildDialog(parent, resource) {}

CKtUiTabChildDialog::~CKtUiTabChildDialog() = default;

CWnd* CKtUiTabChildDialog::AppMainWindow() { return HostMainWindow(); }
HINSTANCE CKtUiTabChildDialog::AppResourceInstance() { return KtUiAppResourceInstance(); }
const wchar_t* CKtUiTabChildDialog::AppRootKey() { return m_appRootKey; }
