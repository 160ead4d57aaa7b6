// CThumbnailCtrl: a static control that shows the preview of a file.
#pragma once

#include <afxwin.h>

#include <memory>

#include <ktui/ktui_api.h>

class PatientThumbnail;

/// The pane stays empty for a file without preview. Kept: each painting reads the file anew, unless a limit
/// is set (never_blocked.h).
class KTUI_API CThumbnailCtrl : public CStatic {
    DECLARE_DYNAMIC(CThumbnailCtrl)

public:
    CThumbnailCtrl();
    ~CThumbnailCtrl() override;

    /// Path of the file to show; whoever sets it calls for a repaint.
    CString m_path;

protected:
    afx_msg void OnPaint();
    DECLARE_MESSAGE_MAP()

private:
    std::unique_ptr<PatientThumbnail> m_patient;  ///< there once a limit was set
};
