#include "printing_dialog.h"

#include <kmfc/app.h>

#include "../res/kmfc_ids.h"

namespace kmfc {

BEGIN_MESSAGE_MAP(PrintingDialog, CDialog)
END_MESSAGE_MAP()

PrintingDialog::PrintingDialog(const CString& document, const CString& device, const CString& port)
    : m_document(document), m_device(device), m_port(port) {}

bool PrintingDialog::show() {
    if (!Create(IDD_PRINTING, AfxGetMainWnd())) return false;
    ShowWindow(SW_SHOW);
    UpdateWindow();
    return true;
}

BOOL PrintingDialog::OnInitDialog() {
    const BOOL result = CDialog::OnInitDialog();
    SetDlgItemText(IDC_PRINTING_DOCUMENT, m_document);
    SetDlgItemText(IDC_PRINTING_DEVICE, m_device);
    SetDlgItemText(IDC_PRINTING_PORT, m_port);
    CenterWindow();
    return result;
}

void PrintingDialog::tell_page(UINT page) {
    CString format, text;
    format.LoadString(IDS_PRINT_PAGE);
    text.Format(format, page);
    SetDlgItemText(IDC_PRINTING_PAGE, text);
}

void PrintingDialog::OnCancel() { m_givenUp = true; }

}  // namespace kmfc
