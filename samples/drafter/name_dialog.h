// Asks for the name of a new style or layer: a symbol name that is not taken.
#pragma once

#include "fields_dialog.h"

class CNameDialog : public CFieldsDialog {
    DECLARE_DYNAMIC(CNameDialog)

public:
    /// Strings: the title, and what is said of a name that is taken.
    struct Words {
        UINT title, taken;
    };
    CNameDialog(std::vector<OdString> taken, CWnd* parent, const Words& words);
    /// The name after DoModal has answered IDOK.
    const OdString& name() const { return m_name; }

protected:
    BOOL OnInitDialog() override;
    void OnOK() override;
    void Apply() override;

    afx_msg void OnNameChange() { ShowMessage(CString()); }
    /// Its page alone: the owner would open it a second time.
    afx_msg BOOL OnHelpInfo(HELPINFO*) { return DoDialogHelp(); }
    DECLARE_MESSAGE_MAP()

private:
    bool isTaken(const CString& name) const;

    std::vector<OdString> m_taken;
    Words m_words;
    OdString m_name;
    CReportingEdit<CKtUiSymbolEdit> m_edit;
};
