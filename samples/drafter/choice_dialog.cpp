#include "choice_dialog.h"

#include "arrowhead_blocks.h"
#include <ktui/host/message_box.h>

#include "resource.h"

IMPLEMENT_DYNAMIC(CNameChoiceDialog, CKtUiDialog)

BEGIN_MESSAGE_MAP(CNameChoiceDialog, CKtUiDialog)
    ON_WM_HELPINFO()
    ON_LBN_SELCHANGE(IDC_CHOICES, &CNameChoiceDialog::OnChoice)
    ON_LBN_DBLCLK(IDC_CHOICES, &CNameChoiceDialog::OnDoubleClick)
END_MESSAGE_MAP()

CNameChoiceDialog::CNameChoiceDialog(std::vector<OdString> names, CWnd* parent, const Words& words)
    : CKtUiDialog(IDD_BLOCK_CHOICE, parent, AfxGetInstanceHandle()),
      m_names(std::move(names)),
      m_words(words) {
    SetDialogName(L"BlockChoice");
}

BOOL CNameChoiceDialog::OnInitDialog() {
    const BOOL result = CKtUiDialog::OnInitDialog();
    CString text;
    if (m_words.title != 0 && text.LoadString(m_words.title)) SetWindowText(text);
    if (m_words.label != 0 && text.LoadString(m_words.label)) SetDlgItemText(IDC_CHOICES_LABEL, text);
    for (const OdString& name : m_names)
        SendDlgItemMessage(IDC_CHOICES, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(name.c_str()));
    StretchControlXY(IDC_CHOICES, 100, 100);
    for (const unsigned id : {IDOK, IDCANCEL}) MoveControlXY(id, 100, 100);
    SendDlgItemMessage(IDC_CHOICES, LB_SETCURSEL, 0);
    OnChoice();
    return result;
}

int CNameChoiceDialog::selected() { return static_cast<int>(SendDlgItemMessage(IDC_CHOICES, LB_GETCURSEL)); }

void CNameChoiceDialog::OnChoice() { GetDlgItem(IDOK)->EnableWindow(selected() >= 0); }

void CNameChoiceDialog::OnDoubleClick() { OnOK(); }

void CNameChoiceDialog::OnOK() {
    const int index = selected();
    if (index < 0) return;
    CString name;
    const auto length = SendDlgItemMessage(IDC_CHOICES, LB_GETTEXTLEN, static_cast<WPARAM>(index));
    SendDlgItemMessage(IDC_CHOICES, LB_GETTEXT, static_cast<WPARAM>(index),
                       reinterpret_cast<LPARAM>(name.GetBuffer(static_cast<int>(length) + 1)));
    name.ReleaseBuffer();
    m_chosen = OdString(name);
    CKtUiDialog::OnOK();
}

OdString AskForBlock(CWnd* parent) {
    OdDbDatabase* drawing = oddbHostApplicationServices()->workingDatabase();
    const std::vector<OdString> names =
        drawing != nullptr ? ChoosableBlocks(*drawing) : std::vector<OdString>();
    if (names.empty()) {
        CString text;
        text.LoadString(IDS_NO_BLOCKS);
        KtUiMessageBox(nullptr, text, MB_ICONINFORMATION);
        return {};
    }
    CNameChoiceDialog dialog(names, parent);
    return dialog.DoModal() == IDOK ? dialog.chosen() : OdString();
}
