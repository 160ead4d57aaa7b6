// Has an export written beside the windows: where it takes long, a window tells how far it has come, and the
// user may stop it. Internal to the module.
#pragma once

#include <afxcmn.h>
#include <afxwin.h>

#include <thread>

#include "plotting/plot_export.h"

/// How an export ended.
enum class ExportEnd {
    kWritten,  ///< by itself; it tells how
    kStopped,  ///< the user stopped it
    kChanged   ///< it was stopped because something changed the drawing
};

/// Writes; the window comes after `patience` milliseconds. `path` is what it shows.
ExportEnd WriteExport(DrawingExport& run, OdDbDatabase& drawing, const CString& path, DWORD patience);

/// The window. It ends with what it waits for.
class CStandinExportWait : public CDialog {
    DECLARE_DYNAMIC(CStandinExportWait)

public:
    /// `ended` is an event that `thread` sets when `run` is over.
    CStandinExportWait(const DrawingExport& run, const CString& path, HANDLE ended, std::jthread& thread,
                       CWnd* parent);

protected:
    BOOL OnInitDialog() override;
    void OnOK() override {}
    /// Stopping takes a moment; the window stays until then.
    void OnCancel() override;

    afx_msg void OnTimer(UINT_PTR timer);
    DECLARE_MESSAGE_MAP()

private:
    const DrawingExport& m_run;
    CString m_path;
    HANDLE m_ended;
    std::jthread& m_thread;
    CProgressCtrl m_progress;
};
