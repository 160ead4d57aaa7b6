#include "plotting/plot_stamp_dialog.h"

#include "resource.h"

namespace {

constexpr OptionCheck kChecks[] = {
    {IDC_STAMP_DRAWING, kStampDrawing}, {IDC_STAMP_LAYOUT, kStampLayout}, {IDC_STAMP_DATE, kStampDate}};

}  // namespace

IMPLEMENT_DYNAMIC(CStandinPlotStampDialog, CStandinChecksDialog)

CStandinPlotStampDialog::CStandinPlotStampDialog(CWnd* parent)
    : CStandinChecksDialog(IDD_PLOT_STAMP, kChecks, parent) {}
