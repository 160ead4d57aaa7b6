// What an export writes: the options of the plot service. Internal to the module.
#pragma once

#include "plotting/checks_dialog.h"

class CStandinExportOptionsDialog : public CStandinChecksDialog {
    DECLARE_DYNAMIC(CStandinExportOptionsDialog)

public:
    explicit CStandinExportOptionsDialog(CWnd* parent);
};
