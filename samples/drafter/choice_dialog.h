// Asks for one of several names: the block of a user's arrowhead or callout, a layout.
#pragma once

#include <vector>

#include <ktui/ktui.h>

class CNameChoiceDialog : public CKtUiDialog {
    DECLARE_DYNAMIC(CNameChoiceDialog)

public:
    /// Strings: the title, and what stands above the names; 0 for the template's.
    struct Words {
        UINT title, label;
    };
    CNameChoiceDialog(std::vector<OdString> names, CWnd* parent, const Words& words = {0, 0});
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
    Words m_words;
    OdString m_chosen;
};

/// Asks for a block of the drawing that is in use; empty if cancelled, or if it has none, which is told.
OdString AskForBlock(CWnd* parent);
