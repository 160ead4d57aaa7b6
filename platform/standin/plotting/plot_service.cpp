#include "plotting/plot_service.h"

#include <kh_system.h>

#include "own_resources.h"
#include "plotting/export_options_dialog.h"
#include "resource.h"
#include "standin_message.h"

namespace {

constexpr const wchar_t* kSection = L"Export";
constexpr int kWindowArea = 2, kLastModelArea = 2, kFirstLayoutArea = 3, kLastLayoutArea = 4;
constexpr const wchar_t* kFormats[] = {L"DWF", L"DWFx", L"PDF"};

void tell(UINT textId) {
    const OwnResources resources;
    ShowStandinMessage(textId, MB_ICONINFORMATION);
}

bool isAreaOf(int area, bool isModel) {
    return isModel ? area >= 0 && area <= kLastModelArea
                   : area >= kFirstLayoutArea && area <= kLastLayoutArea;
}

const ExportOption& areaOption(bool isModel) { return isModel ? kExportModelArea : kExportLayoutArea; }

}  // namespace

int getExportOption(const ExportOption& option) {
    int value = option.standard;
    CKhSystem::instance()->profileStore()->getProfileInt(kSection, option.key, value, 0);
    return value;
}

void setExportOption(const ExportOption& option, int value) {
    CKhSystem::instance()->profileStore()->setProfileInt(kSection, option.key, value, 0);
}

void StandinPlotService::plotStampDialog() { tell(IDS_PLOT_NO_STAMP); }

void StandinPlotService::exportOptionsDialog() {
    const OwnResources resources;
    CStandinExportOptionsDialog dialog(CWnd::GetActiveWindow());
    dialog.DoModal();
}

void StandinPlotService::getExportSummary(KhExportSummary& summary) {
    summary = {};
    CKhSystem::instance()->profileStore()->getProfileString(kSection, L"Folder", summary.defaultLocation, 0);
    summary.multiSheet = getExportOption(kExportMultiSheet) != 0;
    summary.layerInformation = getExportOption(kExportLayers) != 0;
    summary.mergeControl = getExportOption(kExportMerge) != 0;
    summary.passwordPrompt = getExportOption(kExportPassword) != 0;
    summary.blockInformation = getExportOption(kExportBlocks) != 0;
    const OwnResources resources;
    CString text;
    text.LoadString(summary.multiSheet ? IDS_EXPORT_ONE_FILE : IDS_EXPORT_FILE_EACH);
    text.Replace(L"%1", kFormats[m_format]);
    summary.summary = text.GetString();
}

void StandinPlotService::setExportFormat(int format, int) {
    if (format >= 0 && format < static_cast<int>(std::size(kFormats))) m_format = format;
}

void StandinPlotService::setSecondSwitch(bool on) { setExportOption(kExportSecondSwitch, on); }
bool StandinPlotService::getSecondSwitch() { return getExportOption(kExportSecondSwitch) != 0; }
void StandinPlotService::setFirstSwitch(bool on) { setExportOption(kExportFirstSwitch, on); }
bool StandinPlotService::getFirstSwitch() { return getExportOption(kExportFirstSwitch) != 0; }

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

bool StandinPlotService::hasNoWindow() { return getPlotArea(true) == kWindowArea; }
void StandinPlotService::pickWindow() { tell(IDS_PLOT_NO_WINDOW); }
void StandinPlotService::overrideDialog(OdDbPlotSettings*, int) { tell(IDS_PLOT_NO_OVERRIDE); }
void StandinPlotService::setOverride(bool on) { setExportOption(kExportOverride, on); }
bool StandinPlotService::getOverride() { return getExportOption(kExportOverride) != 0; }
