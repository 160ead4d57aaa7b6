#include "plotting/plot_service.h"

#include <kh_system.h>
#include <od_db.h>

#include <shellapi.h>

#include "own_resources.h"
#include "plotting/export_options_dialog.h"
#include "plotting/export_wait.h"
#include "plotting/page_setup_dialog.h"
#include "plotting/plot_export.h"
#include "plotting/plot_options.h"
#include "plotting/plot_stamp_dialog.h"
#include "resource.h"
#include "standin_message.h"
#include "standin_plot_view.h"

namespace {

constexpr int kDisplayArea = 0, kWindowArea = 2, kLastModelArea = 2;
constexpr int kFirstLayoutArea = 3, kLastLayoutArea = 4;
constexpr const wchar_t* kFormats[] = {L"DWF", L"DWFx", L"PDF"};

bool isAreaOf(int area, bool isModel) {
    return isModel ? area >= 0 && area <= kLastModelArea
                   : area >= kFirstLayoutArea && area <= kLastLayoutArea;
}

const ExportOption& areaOption(bool isModel) { return isModel ? kExportModelArea : kExportLayoutArea; }

SceneExtents areaBetween(const OdGePoint2d& a, const OdGePoint2d& b) {
    SceneExtents area;
    area.add(a);
    area.add(b);
    return area;
}

CString textOf(UINT id) {
    const OwnResources resources;
    CString text;
    text.LoadString(id);
    return text;
}

template <class Dialog>
void show(Dialog&& dialog) {
    const OwnResources resources;
    dialog.DoModal();
}

}  // namespace

void StandinPlotService::plotStampDialog() { show(CStandinPlotStampDialog(CWnd::GetActiveWindow())); }

void StandinPlotService::exportOptionsDialog() { show(CStandinExportOptionsDialog(CWnd::GetActiveWindow())); }

void StandinPlotService::getExportSummary(KhExportSummary& summary) {
    summary = {};
    CKhSystem::instance()->profileStore()->getProfileString(kExportSection, L"Folder",
                                                            summary.defaultLocation, 0);
    summary.multiSheet = getExportOption(kExportMultiSheet) != 0;
    summary.layerInformation = getExportOption(kExportLayers) != 0;
    summary.mergeControl = getExportOption(kExportMerge) != 0;
    CString text = textOf(summary.multiSheet ? IDS_EXPORT_ONE_FILE : IDS_EXPORT_FILE_EACH);
    text.Replace(L"%1", kFormats[m_format]);
    summary.summary = text.GetString();
}

void StandinPlotService::setExportFormat(int format, int) {
    if (format >= 0 && format < static_cast<int>(std::size(kFormats))) m_format = format;
}

void StandinPlotService::setSecondSwitch(bool on) { setExportOption(kExportStamp, on); }
bool StandinPlotService::getSecondSwitch() { return getExportOption(kExportStamp) != 0; }
void StandinPlotService::setFirstSwitch(bool on) { setExportOption(kExportOpenFile, on); }
bool StandinPlotService::getFirstSwitch() { return getExportOption(kExportOpenFile) != 0; }

void StandinPlotService::prepareArea(bool isModel) {
    if (isModel && hasNoWindow()) setPlotArea(kExportModelArea.standard, true);
}

void StandinPlotService::setPlotArea(int area, bool isModel) {
    if (isAreaOf(area, isModel)) setExportOption(areaOption(isModel), area);
}

int StandinPlotService::getPlotArea(bool isModel) {
    const ExportOption& option = areaOption(isModel);
    const int area = getExportOption(option);
    return isAreaOf(area, isModel) ? area : option.standard;
}

bool StandinPlotService::hasNoWindow() { return getPlotArea(true) == kWindowArea && !m_window; }

void StandinPlotService::pickWindow() {
    if (m_view == nullptr) {
        const OwnResources resources;
        ShowStandinMessage(IDS_PLOT_NO_WINDOW, MB_ICONINFORMATION);
        return;
    }
    OdGePoint2d a, b;
    // A window without an area would show nothing; the former one stays.
    if (m_view->pickArea(a, b) && a.x != b.x && a.y != b.y) m_window = areaBetween(a, b);
}

void StandinPlotService::overrideDialog(OdDbPlotSettings* settings, int) {
    if (settings != nullptr) show(CStandinPageSetupDialog(*settings, CWnd::GetActiveWindow()));
}

void StandinPlotService::setOverride(bool on) { setExportOption(kExportOverride, on); }
bool StandinPlotService::getOverride() { return getExportOption(kExportOverride) != 0; }

std::optional<SceneExtents> StandinPlotService::displayedArea() const {
    OdGePoint2d low, high;
    if (m_view == nullptr || !m_view->displayedArea(low, high)) return std::nullopt;
    return areaBetween(low, high);
}

bool StandinPlotService::exportDrawing(const CString& path, CString& message) {
    OdDbDatabase* const drawing = oddbHostApplicationServices()->workingDatabase();
    const auto layout = drawing != nullptr ? drawing->currentLayoutId().open<OdDbLayout>() : OdDbLayoutPtr();
    if (!layout) {
        message = textOf(IDS_EXPORT_NO_DRAWING);
        return false;
    }
    ExportRequest request;
    request.area = getPlotArea(layout->modelType());
    if (request.area == kDisplayArea) request.picked = displayedArea();
    if (request.area == kWindowArea) request.picked = m_window;
    DrawingExport run(*drawing, request, path);
    const ExportEnd end = WriteExport(run, *drawing, path, m_patience);
    message = end == ExportEnd::kChanged ? textOf(IDS_EXPORT_CHANGED) : run.message();
    if (run.isDone() && getFirstSwitch() && !run.written().empty()) openFile(run.written().front());
    return run.isDone();
}

void StandinPlotService::openFile(const CString& path) const {
    if (m_opener)
        m_opener(path);
    else
        ::ShellExecuteW(nullptr, nullptr, path, nullptr, nullptr, SW_SHOWNORMAL);
}
