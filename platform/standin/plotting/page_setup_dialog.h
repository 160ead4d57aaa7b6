// The page set-up that overrides a layout's own: size and turn of the paper, and the scale. Internal to the
// module.
#pragma once

#include <afxwin.h>

class OdDbPlotSettings;

class CStandinPageSetupDialog : public CDialog {
    DECLARE_DYNAMIC(CStandinPageSetupDialog)

public:
    /// Edits `settings`, which stay the caller's, at OK.
    CStandinPageSetupDialog(OdDbPlotSettings& settings, CWnd* parent);

protected:
    BOOL OnInitDialog() override;
    void OnOK() override;
    afx_msg void OnScaleChosen();
    DECLARE_MESSAGE_MAP()

private:
    void showPaper();
    void showScale();
    /// The number in a field, or 0 with the field marked for the user.
    double lengthIn(int id);

    OdDbPlotSettings& m_settings;
};
