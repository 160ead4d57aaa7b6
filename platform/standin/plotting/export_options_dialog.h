// What an export writes: the options of the plot service, kept at OK. Internal to the module.
#pragma once

#include <afxwin.h>

class CStandinExportOptionsDialog : public CDialog {
    DECLARE_DYNAMIC(CStandinExportOptionsDialog)

public:
    explicit CStandinExportOptionsDialog(CWnd* parent);

protected:
    BOOL OnInitDialog() override;
    void OnOK() override;
};
