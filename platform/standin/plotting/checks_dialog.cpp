#include "plotting/checks_dialog.h"

#include "dialog_items.h"

IMPLEMENT_DYNAMIC(CStandinChecksDialog, CDialog)

BOOL CStandinChecksDialog::OnInitDialog() {
    bool isWhole = CDialog::OnInitDialog() != FALSE;
    for (const OptionCheck& check : m_checks) isWhole = isWhole && HasDialogItems(*this, {check.id});
    if (!isWhole) {
        EndDialog(-1);
        return FALSE;
    }
    for (const OptionCheck& check : m_checks) CheckDlgButton(check.id, getExportOption(check.option) != 0);
    return TRUE;
}

void CStandinChecksDialog::OnOK() {
    for (const OptionCheck& check : m_checks)
        setExportOption(check.option, IsDlgButtonChecked(check.id) == BST_CHECKED);
    CDialog::OnOK();
}
