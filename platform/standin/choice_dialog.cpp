#include "choice_dialog.h"

#include "resource.h"

IMPLEMENT_DYNAMIC(CChoiceDialog, CDialog)

BEGIN_MESSAGE_MAP(CChoiceDialog, CDialog)
    ON_LBN_DBLCLK(IDC_CHOICE_LIST, &CChoiceDialog::OnDoubleClick)
END_MESSAGE_MAP()

CChoiceDialog::CChoiceDialog(UINT titleId, std::vector<CString> names, int current, CWnd* parent)
    : CDialog(IDD_CHOICE, parent), m_titleId(titleId), m_names(std::move(names)), m_current(current) {}

BOOL CChoiceDialog::OnInitDialog() {
    CDialog::OnInitDialog();
    CString title;
    if (title.LoadString(m_titleId)) SetWindowText(title);
    CWnd* list = GetDlgItem(IDC_CHOICE_LIST);
    for (const CString& name : m_names)
        list->SendMessage(LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(name.GetString()));
    list->SendMessage(LB_SETCURSEL, static_cast<WPARAM>(m_current));
    return TRUE;
}

void CChoiceDialog::OnOK() {
    m_current = static_cast<int>(GetDlgItem(IDC_CHOICE_LIST)->SendMessage(LB_GETCURSEL));
    if (m_current < 0) {
        ::MessageBeep(MB_ICONINFORMATION);
        return;
    }
    CDialog::OnOK();
}

void CChoiceDialog::OnDoubleClick() { OnOK(); }
