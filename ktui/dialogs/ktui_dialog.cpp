#include <ktui/dialogs/ktui_dialog.h>

#include <ktui/host/host_calls.h>
#include <ktui/host/module.h>

IMPLEMENT_DYNAMIC(CKtUiDialog, CKbUiDialog)

CKtUiDialog::CKtUiDialog(unsigned templateId, CWnd* parent, HINSTANCE resource)
    : CKbUiDialog(templateId, parent, resource) {}

CKtUiDialog::~CKtUiDialog() = default;

CWnd* CKtUiDialog::AppMainWindow() { return HostMainWindow(); }

HINSTANCE CKtUiDialog::AppResourceInstance() { return KtUiAppResourceInstance(); }

const wchar_t* CKtUiDialog::AppRootKey() { return m_appRootKey; }

void CKtUiDialog::OnDialogHelp() { ShowHostHelp(); }
