// CKtUiNavDialog: the application's dialog for opening and saving drawings.
//
// Beside what CNavDialog does it knows folders of templates, gives a name to be saved the extension of the
// type chosen, and keeps folder and type for its next run.
#pragma once

#include <ktui/nav/nav_dialog.h>

class KTUI_API CKtUiNavDialog : public CNavDialog {
    DECLARE_DYNAMIC(CKtUiNavDialog)

public:
    CKtUiNavDialog(CNavDataArray& data, CNavFilterArray& filters, unsigned templateId = 0,
                   CWnd* parent = nullptr, HINSTANCE resource = nullptr);
    ~CKtUiNavDialog() override;

    /// Takes over what the dialog offers. Bits: 0x80 security button, 0x1000 partial open, 0x8000 options
    /// button, 0x4000000 open without template, 0x10000000 export of an underlay; 0x8000000 is only kept.
    void ConvertFlagsToState(int flags);

    /// The folder "Recent" in the user's application data, made if it is missing; 0 if that fails.
    int GetRecentDirectory(CString& folder) override;
    /// The working drawing's UPDATETHUMBNAIL; 15 for a drawing that doesn't say, and without a drawing.
    short GetUpdateThumbnailOverride() const;
    /// What the open menu said last.
    KtUiOpenNoTemplateFlag GetOpenNoTemplateSelection() const;
    /// Kept: 1, whatever the file is.
    int CanPartiallyOpen(const wchar_t* path) const;

    // Kept: these do nothing, and those with a result answer 0.
    virtual void Do3DDwfOptionsDialog();
    virtual void InitPreviewState();
    virtual void OnOpenMenuPartialOpen();
    virtual void OnOpenMenuPartialOpenReadOnly();
    virtual void OnOpenNoTemplateImperial();
    virtual void OnOpenNoTemplateMetric();
    virtual void OnToolsMenuOptions();
    virtual void OnToolsMenuSecurity();
    virtual void OnUpdateThumbnailCheck();
    virtual void OnViewsMenuPreview();
    virtual void OnPaintPreview();
    virtual int GetOptionsState();
    virtual int GetInitialViewButtonChecked();
    void EnableFloatingWindows(int enable) override;
    int EnableMultiDocumentActivation(int enable) override;
    int IsMultiDocumentActivationEnabled() override;

private:
    // No operation reads these.
    short m_reservedWord = 1;
    short m_updateThumbnail;
    int m_partialOpenBit = 0;
    int m_securityBit = 0;
    int m_optionsBit = 0;
    int m_openWithoutTemplateBit = 0;
    int m_flag8000000Bit = 0;
    int m_reserved = 1;
};
