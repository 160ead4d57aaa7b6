#include "new_kind_dialog.h"

#include <utility>

#include <kmfc/doc_template.h>

#include "../res/kmfc_ids.h"

namespace kmfc {

BEGIN_MESSAGE_MAP(NewKindDialog, CDialog)
    ON_LBN_DBLCLK(IDC_NEWKIND_LIST, &NewKindDialog::OnOK)
END_MESSAGE_MAP()

NewKindDialog::NewKindDialog(std::vector<CDocTemplate*> kinds)
    : CDialog(IDD_NEWKIND, AfxGetMainWnd()), m_kinds(std::move(kinds)) {}

BOOL NewKindDialog::OnInitDialog() {
    for (const CDocTemplate* kind : m_kinds) {
        CString name;
        kind->GetDocString(name, CDocTemplate::fileNewName);
        SendDlgItemMessage(IDC_NEWKIND_LIST, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(name.GetString()));
    }
    SendDlgItemMessage(IDC_NEWKIND_LIST, LB_SETCURSEL, 0);
    return CDialog::OnInitDialog();
}

void NewKindDialog::OnOK() {
    const auto index = static_cast<size_t>(SendDlgItemMessage(IDC_NEWKIND_LIST, LB_GETCURSEL));
    if (index >= m_kinds.size()) return;
    m_chosen = m_kinds[index];
    CDialog::OnOK();
}

}  // namespace kmfc
