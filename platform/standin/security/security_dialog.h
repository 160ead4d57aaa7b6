// The security options of a drawing file: its seal. Internal to the module.
#pragma once

#include "security/sealed_file.h"

class CStandinSecurityDialog : public CDialog {
    DECLARE_DYNAMIC(CStandinSecurityDialog)

public:
    /// `drawing` is the drawing's file, which exists.
    CStandinSecurityDialog(const CString& drawing, CWnd* parent);

protected:
    BOOL OnInitDialog() override;
    afx_msg void OnSeal();
    afx_msg void OnRemove();
    DECLARE_MESSAGE_MAP()

private:
    void showState();

    CString m_drawing;
};
