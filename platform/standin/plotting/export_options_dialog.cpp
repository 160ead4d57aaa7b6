#include "plotting/export_options_dialog.h"

#include "dialog_items.h"
#include "plotting/plot_service.h"
#include "resource.h"

namespace {

constexpr struct {
    int id;
    ExportOption option;
} kChecks[] = {{IDC_EXPORT_MULTI_SHEET, kExportMultiSheet},
               {IDC_EXPORT_LAYERS, kExportLayers},
               {IDC_EXPORT_MERGE, kExportMerge},
               {IDC_EXPORT_PASSWORD, kExportPassword},
               {IDC_EXPORT_BLOCKS, kExportBlocks}};

}  // namespace

IMPLEMENT_DYNAMIC(CStandinExportOptionsDialog, CDialog)

CStandinExportOptionsDialog::CStandinExportOptionsDialog(CWnd* parent)
    : CDialog(IDD_EXPORT_OPTIONS, parent) {}

BOOL CStandinExportOptionsDialog::OnInitDialog() {
    const bool isWhole = HasDialogItems(*this, {IDC_EXPORT_MULTI_SHEET, IDC_EXPORT_LAYERS, IDC_EXPORT_MERGE,
                                                IDC_EXPORT_PASSWORD, IDC_EXPORT_BLOCKS});
    if (!CDialog::OnInitDialog() || !isWhole) {
        EndDialog(-1);
        return FALSE;
    }
    for (const auto& check : kChecks) CheckDlgButton(check.id, getExportOption(check.option) != 0);
    return TRUE;
}

void CStandinExportOptionsDialog::OnOK() {
    for (const auto& check : kChecks)
        setExportOption(check.option, IsDlgButtonChecked(check.id) == BST_CHECKED);
    CDialog::OnOK();
}
