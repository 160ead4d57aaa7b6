// Asks for one of several names: the block of a user's arrowhead or callout.
#pragma once

#include <vector>

#include <ktui/ktui.h>

class CNameChoiceDialog : public CKtUiDialog {
    DECLARE_DYNAMIC(CNameChoiceDialog)

public:
    CNameChoiceDialog(std::vector<OdString> names, CWnd* parent);
    /// The name chosen after DoModal has answered IDOK.
    const OdString& chosen() const { return m_chosen; }

protected:
    BOOL OnInitDialog() override;
    void OnOK() override;

    afx_msg void OnChoice();
    afx_msg void OnDoubleClick();
    /// Its page alone: the owner would open it a second time.
    afx_msg BOOL OnHelpInfo(HELPINFO*) { return DoDialogHelp(); }
    DECLARE_MESSAGE_MAP()

private:
    int selected();

    std::vector<OdString> m_names;
    OdString m_chosen;
};

/// Asks for a block of the drawing that is in use; empty if cancelled, or if it has none, which is told.
OdString AskForBlock(CWnd* parent);
