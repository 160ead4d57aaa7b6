// CView: printing its document, page by page.
#include <algorithm>

#include <kmfc/app.h>
#include <kmfc/document.h>
#include <kmfc/file_dialog.h>
#include <kmfc/print_info.h>
#include <kmfc/view.h>

#include "../res/kmfc_ids.h"
#include "printing_dialog.h"

using kmfc::PrintingDialog;

namespace {

const PrintingDialog* telling = nullptr;  // while a job runs

/// Lets the user's input through; whether the job goes on.
BOOL CALLBACK goes_on(HDC, int) {
    MSG message;
    while (telling != nullptr && !telling->was_given_up() &&
           ::PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE)) {
        // The end of the program waits for that of the job.
        if (!AfxGetThread()->PumpMessage()) {
            ::PostQuitMessage(0);
            return FALSE;
        }
    }
    return telling == nullptr || !telling->was_given_up();
}

/// The pages that are printed, in their order; a range given backwards is printed backwards.
struct Pages {
    explicit Pages(const CPrintInfo& info)
        : first(within(info.GetFromPage(), info)), last(within(info.GetToPage(), info)) {}
    static UINT within(UINT page, const CPrintInfo& info) {
        return std::min(std::max(page, info.GetMinPage()), info.GetMaxPage());
    }
    bool holds(UINT page) const { return page >= std::min(first, last) && page <= std::max(first, last); }
    int step() const { return last >= first ? 1 : -1; }
    UINT first, last;
};

/// Asks for the file to print to; false if the user thought better of it.
bool ask_file(CString& path) {
    CString filter;
    filter.LoadString(IDS_PRINT_FILES);
    CFileDialog dialog(FALSE, L"prn", nullptr, OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT, filter);
    if (dialog.DoModal() != IDOK) return false;
    path = dialog.GetPathName();
    return true;
}

/// The program's main window, which takes no input while a job runs.
class DisabledMainWindow {
public:
    DisabledMainWindow() : m_window(AfxGetMainWnd()) {
        if (m_window != nullptr) m_wasDisabled = m_window->EnableWindow(FALSE);
    }
    ~DisabledMainWindow() {
        if (m_window != nullptr && !m_wasDisabled) m_window->EnableWindow(TRUE);
    }
    DisabledMainWindow(const DisabledMainWindow&) = delete;
    DisabledMainWindow& operator=(const DisabledMainWindow&) = delete;

private:
    CWnd* m_window;
    BOOL m_wasDisabled = TRUE;
};

/// The window that tells of the job, and the abort procedure that looks at it, while a job runs.
class Telling {
public:
    explicit Telling(PrintingDialog& dialog) : m_dialog(dialog) {
        dialog.show();
        telling = &dialog;
    }
    ~Telling() {
        telling = nullptr;
        m_dialog.DestroyWindow();
    }
    Telling(const Telling&) = delete;
    Telling& operator=(const Telling&) = delete;

private:
    PrintingDialog& m_dialog;
    DisabledMainWindow m_disabled;
};

/// The printer's context as an object; it stays the job's.
struct PrinterContext {
    explicit PrinterContext(const CPrintInfo& info) { dc.Attach(info.m_pPD->m_pd.hDC); }
    ~PrinterContext() { dc.Detach(); }
    PrinterContext(const PrinterContext&) = delete;
    PrinterContext& operator=(const PrinterContext&) = delete;
    CDC dc;
};

/// A job that was begun: given up unless it is ended.
class RunningJob {
public:
    explicit RunningJob(CDC& dc) : m_dc(dc) {}
    ~RunningJob() {
        if (!m_ended) m_dc.AbortDoc();
    }
    RunningJob(const RunningJob&) = delete;
    RunningJob& operator=(const RunningJob&) = delete;
    bool end() {
        m_ended = true;
        return m_dc.EndDoc() > 0;
    }

private:
    CDC& m_dc;
    bool m_ended = false;
};

/// Takes the printer that a command line names, if it does; false where it isn't there.
bool take_printer(const CCommandLineInfo* command, CPrintInfo& info) {
    if (command == nullptr || command->m_nShellCommand != CCommandLineInfo::FilePrintTo) return true;
    info.m_pPD->m_pd.hDC =
        ::CreateDCW(command->m_strDriverName, command->m_strPrinterName, command->m_strPortName, nullptr);
    return info.m_pPD->m_pd.hDC != nullptr;
}

}  // namespace

BOOL CView::OnPreparePrinting(CPrintInfo*) { return TRUE; }
void CView::OnBeginPrinting(CDC*, CPrintInfo*) {}
void CView::OnEndPrinting(CDC*, CPrintInfo*) {}
void CView::OnPrint(CDC* pDC, CPrintInfo*) { OnDraw(pDC); }

BOOL CView::DoPreparePrinting(CPrintInfo* pInfo) {
    CWinApp* app = AfxGetApp();
    PRINTDLGW& settings = pInfo->m_pPD->m_pd;
    if (pInfo->m_bPreview) {
        if (pInfo->m_nNumPreviewPages == 0) pInfo->m_nNumPreviewPages = app->m_nNumPreviewPages;
        const bool known =
            app->GetPrinterDeviceDefaults(&settings) && pInfo->m_pPD->CreatePrinterDC() != nullptr;
        if (!known) AfxMessageBox(IDS_PREVIEW_FAILED);
        return known;
    }
    if (!pInfo->m_bDirect) {
        settings.nFromPage = static_cast<WORD>(pInfo->GetMinPage());
        settings.nToPage = static_cast<WORD>(pInfo->GetMaxPage());
        if (app->DoPrintDialog(pInfo->m_pPD) != IDOK) return FALSE;
    } else if (settings.hDC == nullptr) {
        // The program's printer, or one that is asked for where there is none yet.
        const bool known =
            app->GetPrinterDeviceDefaults(&settings) && pInfo->m_pPD->CreatePrinterDC() != nullptr;
        if (!known && app->DoPrintDialog(pInfo->m_pPD) != IDOK) return FALSE;
    }
    return settings.hDC != nullptr;
}

void CView::OnFilePrint() {
    CPrintInfo info;
    const MSG* message = GetCurrentMessage();
    if (message != nullptr && message->message == WM_COMMAND &&
        LOWORD(message->wParam) == ID_FILE_PRINT_DIRECT)
        info.m_bDirect = TRUE;
    if (!take_printer(AfxGetApp()->m_pCmdInfo, info)) {
        AfxMessageBox(IDS_PRINT_FAILED);
        return;
    }
    if (!OnPreparePrinting(&info) || info.m_pPD->m_pd.hDC == nullptr) return;
    CString file;
    if ((info.m_pPD->m_pd.Flags & PD_PRINTTOFILE) != 0 && !ask_file(file)) return;
    if (!print_document(info, file)) AfxMessageBox(IDS_PRINT_FAILED);
}

bool CView::print_document(CPrintInfo& info, const CString& file) {
    const CString title = m_pDocument != nullptr ? m_pDocument->GetTitle() : CString(AfxGetAppName());
    PrinterContext printer(info);
    CDC& dc = printer.dc;
    dc.m_bPrinting = TRUE;
    OnBeginPrinting(&dc, &info);
    bool succeeded = true;
    {
        PrintingDialog dialog(title, info.m_pPD->GetDeviceName(),
                              file.IsEmpty() ? info.m_pPD->GetPortName() : file);
        const Telling told(dialog);
        dc.SetAbortProc(goes_on);
        DOCINFOW job = {};
        job.cbSize = sizeof job;
        job.lpszDocName = title;
        if (!file.IsEmpty()) job.lpszOutput = file;
        info.m_nJobNumber = dc.StartDoc(&job);
        succeeded = info.m_nJobNumber > 0 ? print_pages(dc, info, dialog) : dialog.was_given_up();
    }
    OnEndPrinting(&dc, &info);
    return succeeded;
}

bool CView::print_pages(CDC& dc, CPrintInfo& info, PrintingDialog& dialog) {
    RunningJob job(dc);
    bool succeeded = true;
    const Pages pages(info);
    for (info.m_nCurPage = pages.first; succeeded && pages.holds(info.m_nCurPage);
         info.m_nCurPage += static_cast<UINT>(pages.step())) {
        OnPrepareDC(&dc, &info);
        if (!info.m_bContinuePrinting || !goes_on(dc, 0)) break;
        dialog.tell_page(info.m_nCurPage);
        info.m_rectDraw.SetRect(0, 0, dc.GetDeviceCaps(HORZRES), dc.GetDeviceCaps(VERTRES));
        dc.DPtoLP(&info.m_rectDraw);
        succeeded = dc.StartPage() > 0;
        if (!succeeded) break;
        OnPrint(&dc, &info);
        succeeded = dc.EndPage() > 0;
    }
    if (dialog.was_given_up()) return true;
    return succeeded && job.end();
}
