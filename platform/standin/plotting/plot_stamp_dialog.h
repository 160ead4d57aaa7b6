// What the line at the foot of an exported page says. Internal to the module.
#pragma once

#include "plotting/checks_dialog.h"

class CStandinPlotStampDialog : public CStandinChecksDialog {
    DECLARE_DYNAMIC(CStandinPlotStampDialog)

public:
    explicit CStandinPlotStampDialog(CWnd* parent);
};
