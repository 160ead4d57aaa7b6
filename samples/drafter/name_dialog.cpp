#include "name_dialog.h"

#include "resource.h"

IMPLEMENT_DYNAMIC(CNameDialog, CFieldsDialog)

BEGIN_MESSAGE_MAP(CNameDialog, CFieldsDialog)
    ON_WM_HELPINFO()
    ON_EN_CHANGE(IDC_STYLE_NAME, &CNameDialog::OnNameChange)
END_MESSAGE_MAP()

CNameDialog::CNameDialog(std::vector<OdString> taken, CWnd* parent, const Words& words)
    : CFieldsDialog(IDD_STYLE_NAME, L"StyleName", parent), m_taken(std::move(taken)), m_words(words) {
    AddField(IDC_STYLE_NAME, m_edit, IDS_BAD_STYLE_NAME);
}

BOOL CNameDialog::OnInitDialog() {
    const BOOL result = CFieldsDialog::OnInitDialog();
    CString title;
    title.LoadString(m_words.title);
    SetWindowText(title);
    m_edit.SetStyleMask(kKtUiEditNoBlank);
    ResizeFrame({IDC_STYLE_NAME});
    LockDialogHeight();
    return result;
}

bool CNameDialog::isTaken(const CString& name) const {
    for (const OdString& each : m_taken)
        if (name.CompareNoCase(each) == 0) return true;
    return false;
}

void CNameDialog::OnOK() {
    const CString name = FieldText(IDC_STYLE_NAME);
    if (name.IsEmpty() || isTaken(name)) {
        CString text;
        text.LoadString(name.IsEmpty() ? IDS_BAD_STYLE_NAME : m_words.taken);
        ShowMessage(text);
        m_edit.SetFocus();
        return;
    }
    CFieldsDialog::OnOK();
}

void CNameDialog::Apply() { m_name = OdString(FieldText(IDC_STYLE_NAME)); }
