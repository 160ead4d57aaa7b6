// A dialog of check boxes, each an option of the export, kept at OK. Internal to the module.
#pragma once

#include <span>

#include <afxwin.h>

#include "plotting/plot_options.h"

struct OptionCheck {
    int id;
    ExportOption option;
};

class CStandinChecksDialog : public CDialog {
    DECLARE_DYNAMIC(CStandinChecksDialog)

public:
    /// `checks` outlive the dialog.
    CStandinChecksDialog(UINT templateId, std::span<const OptionCheck> checks, CWnd* parent)
        : CDialog(templateId, parent), m_checks(checks) {}

protected:
    BOOL OnInitDialog() override;
    void OnOK() override;

private:
    std::span<const OptionCheck> m_checks;
};
