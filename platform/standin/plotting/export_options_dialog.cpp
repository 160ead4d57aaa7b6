#include "plotting/export_options_dialog.h"

#include "resource.h"

namespace {

constexpr OptionCheck kChecks[] = {{IDC_EXPORT_MULTI_SHEET, kExportMultiSheet},
                                   {IDC_EXPORT_LAYERS, kExportLayers},
                                   {IDC_EXPORT_MERGE, kExportMerge}};

}  // namespace

IMPLEMENT_DYNAMIC(CStandinExportOptionsDialog, CStandinChecksDialog)

CStandinExportOptionsDialog::CStandinExportOptionsDialog(CWnd* parent)
    : CStandinChecksDialog(IDD_EXPORT_OPTIONS, kChecks, parent) {}
