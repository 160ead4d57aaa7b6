// CWinApp: the program's printer.
#include <kmfc/app.h>
#include <kmfc/gdi.h>
#include <kmfc/print_dialog.h>

void CWinApp::find_printer() {
    if (m_hDevNames != nullptr) return;
    CPrintDialog dialog(TRUE);
    if (dialog.GetDefaults()) SelectPrinter(dialog.m_pd.hDevNames, dialog.m_pd.hDevMode);
}

void CWinApp::SelectPrinter(HANDLE hDevNames, HANDLE hDevMode, BOOL bFreeOld) {
    const auto exchange = [bFreeOld](HGLOBAL& kept, HANDLE taken) {
        if (bFreeOld && kept != nullptr && kept != taken) ::GlobalFree(kept);
        kept = taken;
    };
    exchange(m_hDevNames, hDevNames);
    exchange(m_hDevMode, hDevMode);
}

BOOL CWinApp::GetPrinterDeviceDefaults(PRINTDLGW* pPrintDlg) {
    find_printer();
    pPrintDlg->hDevNames = m_hDevNames;
    pPrintDlg->hDevMode = m_hDevMode;
    return m_hDevNames != nullptr;
}

BOOL CWinApp::CreatePrinterDC(CDC& dc) {
    CPrintDialog dialog(TRUE);
    if (!GetPrinterDeviceDefaults(&dialog.m_pd)) return FALSE;
    const HDC printer = dialog.CreatePrinterDC();
    return printer != nullptr && dc.Attach(printer);
}

INT_PTR CWinApp::DoPrintDialog(CPrintDialog* pPD) {
    find_printer();
    pPD->m_pd.hDevNames = m_hDevNames;
    pPD->m_pd.hDevMode = m_hDevMode;
    const INT_PTR result = pPD->DoModal();
    // The dialog may have freed the blocks and made others.
    m_hDevNames = pPD->m_pd.hDevNames;
    m_hDevMode = pPD->m_pd.hDevMode;
    return result;
}

void CWinApp::OnFilePrintSetup() {
    CPrintDialog dialog(TRUE);
    DoPrintDialog(&dialog);
}
