// CKtUiTabMainDialog and CKtUiTabChildDialog: the tabbed dialog and its page, bound to the host application.
#pragma once

#include <ktui/dialogs/kbui_tab_child_dialog.h>
#include <ktui/dialogs/kbui_tab_main_dialog.h>

class KTUI_API CKtUiTabMainDialog : public CKbUiTabMainDialog {
    DECLARE_DYNAMIC(CKtUiTabMainDialog)

public:
    /// With `resource` null the template comes from the current resource module.
    CKtUiTabMainDialog(unsigned templateId, CWnd* parent = nullptr, HINSTANCE resource = nullptr);
    ~CKtUiTabMainDialog() override;

protected:
    CWnd* AppMainWindow() override;
    HINSTANCE AppResourceInstance() override;
    const wchar_t* AppRootKey() override;
    void OnOK() override;
    void OnCancel() override;
};

class KTUI_API CKtUiTabChildDialog : public CKbUiTabChildDialog {
    DECLARE_DYNAMIC(CKtUiTabChildDialog)

public:
    /// With `resource` null the template comes from the current resource module.
    CKtUiTabChildDialog(CWnd* parent = nullptr, HINSTANCE resource = nullptr);
    ~CKtUiTabChildDialog() override;

protected:
    CWnd* AppMainWindow() override;
    HINSTANCE AppResourceInstance() override;
    const wchar_t* AppRootKey() override;
};
