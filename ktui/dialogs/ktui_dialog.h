// CKtUiDialog: the resizable, remembering dialog bound to the host application.
#pragma once

#include <ktui/dialogs/kbui_dialog.h>

class KTUI_API CKtUiDialog : public CKbUiDialog {
    DECLARE_DYNAMIC(CKtUiDialog)

public:
    /// With `resource` null the template comes from the current resource module.
    CKtUiDialog(unsigned templateId, CWnd* parent = nullptr, HINSTANCE resource = nullptr);
    ~CKtUiDialog() override;

protected:
    CWnd* AppMainWindow() override;
    HINSTANCE AppResourceInstance() override;
    const wchar_t* AppRootKey() override;
    void OnDialogHelp() override;
};
