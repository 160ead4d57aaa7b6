#include <ktui/dialogs/ktui_dialog.h>

#include <kh_system.h>

#include <ktui/host/module.h>

IMPLEMENT_DYNAMIC(CKtUiDialog, CKbUiDialog)

CKtUiDialog::CKtUiDialog(unsigned templateId, CWnd* parent, HINSTANCE resource)
    : CKbUiDialog(templateId, parent, resource) {}

CKtUiDialog::~CKtUiDialog() = default;

CWnd* CKtUiDialog::AppMainWindow() {
    CKhUiHost* host = CKhSystem::instance()->uiHost();
    CWinApp* application = host != nullptr ? host->application() : nullptr;
    return application != nullptr ? application->m_pMainWnd : nullptr;
}

HINSTANCE CKtUiDialog::AppResourceInstance() { return KtUiAppResourceInstance(); }

const wchar_t* CKtUiDialog::AppRootKey() { return m_appRootKey; }

void CKtUiDialog::OnDialogHelp() {
    if (CKhUiHost* host = CKhSystem::instance()->uiHost()) host->showHelp(nullptr);
}
