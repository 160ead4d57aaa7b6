#include "plotting/export_wait.h"

#include <afxmt.h>
#include <od_db_shared_reading.h>

#include "own_resources.h"
#include "resource.h"

namespace {

constexpr UINT_PTR kLookTimer = 1;
constexpr UINT kLookInterval = 20;  // milliseconds

bool isSet(HANDLE event, DWORD patience = 0) {
    return ::WaitForSingleObject(event, patience) == WAIT_OBJECT_0;
}

}  // namespace

IMPLEMENT_DYNAMIC(CStandinExportWait, CDialog)

BEGIN_MESSAGE_MAP(CStandinExportWait, CDialog)
    ON_WM_TIMER()
END_MESSAGE_MAP()

CStandinExportWait::CStandinExportWait(const DrawingExport& run, const CString& path, HANDLE ended,
                                       std::jthread& thread, CWnd* parent)
    : CDialog(IDD_EXPORT_WAIT, parent), m_run(run), m_path(path), m_ended(ended), m_thread(thread) {}

BOOL CStandinExportWait::OnInitDialog() {
    CDialog::OnInitDialog();
    SetDlgItemText(IDC_EXPORT_FILE, m_path);
    if (m_progress.SubclassDlgItem(IDC_EXPORT_PROGRESS, this)) m_progress.SetRange(0, 100);
    SetTimer(kLookTimer, kLookInterval, nullptr);
    return TRUE;
}

void CStandinExportWait::OnCancel() {
    m_thread.request_stop();
    if (CWnd* const button = GetDlgItem(IDCANCEL)) button->EnableWindow(FALSE);
}

void CStandinExportWait::OnTimer(UINT_PTR timer) {
    if (timer != kLookTimer) return CDialog::OnTimer(timer);
    if (isSet(m_ended)) return EndDialog(IDOK);
    if (m_progress.m_hWnd != nullptr) m_progress.SetPos(m_run.percent());
}

ExportEnd WriteExport(DrawingExport& run, OdDbDatabase& drawing, const CString& path, DWORD patience) {
    CEvent ended(FALSE, TRUE);
    std::jthread thread([&run, &ended](std::stop_token stop) {
        run.write(std::move(stop));
        ended.SetEvent();
    });
    bool isChanged = false;
    const auto stop = [&thread] {
        if (!thread.joinable()) return;
        thread.request_stop();
        thread.join();
    };
    const OdDbSharedReading reading(drawing, [&] {
        isChanged = true;
        stop();
    });
    if (!isSet(ended.m_hObject, patience)) {
        const OwnResources resources;
        CStandinExportWait window(run, path, ended.m_hObject, thread, CWnd::GetActiveWindow());
        // Without a window it is waited for as it is; a program that ends doesn't wait.
        if (window.DoModal() != -1 && !isSet(ended.m_hObject)) thread.request_stop();
    }
    if (thread.joinable()) thread.join();
    if (!run.wasStopped()) return ExportEnd::kWritten;
    return isChanged ? ExportEnd::kChanged : ExportEnd::kStopped;
}
