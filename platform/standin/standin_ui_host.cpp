// The facet with windows: the host's dialogs, help, path variables.
#include "color_dialog.h"
#include "linetypes/linetype_dialog.h"
#include "own_resources.h"
#include "plotting/plot_style_dialog.h"
#include "resource.h"
#include "standin_facets.h"

namespace {

/// The window that a dialog opened now belongs to: the one in use.
CWnd* dialogParent() { return CWnd::GetActiveWindow(); }

}  // namespace

StandinUiHost::StandinUiHost(CWinApp& application, StandinStyleSheets& styleSheets)
    : m_application(application), m_styleSheets(styleSheets) {
    m_help.m_ids = {{HID_COLOR, L"SelectColor"},
                    {HID_LINETYPES, L"LinetypeManager"},
                    {HID_LOAD_LINETYPES, L"LoadLinetypes"},
                    {HID_PLOT_STYLES, L"SelectPlotStyle"},
                    {HID_SECURITY, L"SecurityOptions"},
                    {HID_EXPORT_OPTIONS, L"ExportOptions"},
                    {HID_PLOT_STAMP, L"PlotStamp"},
                    {HID_PAGE_SETUP, L"PageSetup"}};
}

bool StandinUiHost::showColorIndexDialog(int& index, bool allowMeta, int layerIndex) {
    const OwnResources resources;
    ColorDialogSettings settings;
    if (!settings.color.setColorIndex(index)) settings.color.setColorIndex(OdCmColor::kForeground);
    settings.layerColor.setColorIndex(layerIndex >= 0 ? layerIndex : OdCmColor::kForeground);
    settings.allowMeta = allowMeta;
    CStandinColorDialog dialog(settings, dialogParent());
    if (dialog.DoModal() != IDOK) return false;
    index = settings.color.colorIndex();
    return true;
}

bool StandinUiHost::showTrueColorDialog(OdCmColor& color, bool allowMeta, const OdCmColor& layerColor,
                                        const std::uint32_t* palette) {
    const OwnResources resources;
    ColorDialogSettings settings{color, layerColor, allowMeta, true, palette};
    CStandinColorDialog dialog(settings, dialogParent());
    if (dialog.DoModal() != IDOK) return false;
    color = settings.color;
    return true;
}

bool StandinUiHost::showPlotStyleDialog(const wchar_t* currentName, bool allowByLayerByBlock,
                                        const wchar_t*& chosenName) {
    const OwnResources resources;
    OdDbDatabase* drawing = oddbHostApplicationServices()->workingDatabase();
    CStandinPlotStyleDialog dialog(drawing, m_styleSheets, currentName, allowByLayerByBlock, dialogParent());
    if (dialog.DoModal() != IDOK) return false;
    m_chosenPlotStyle = dialog.chosen();
    chosenName = m_chosenPlotStyle;
    return true;
}

bool StandinUiHost::showLinetypeDialog(const OdDbObjectId& current, OdDbObjectId& chosen, int) {
    const OwnResources resources;
    OdDbDatabase* drawing = oddbHostApplicationServices()->workingDatabase();
    if (drawing == nullptr) return false;
    CStandinLinetypeDialog dialog(*drawing, current, dialogParent());
    if (dialog.DoModal() != IDOK) return false;
    chosen = dialog.chosen();
    return true;
}

void StandinUiHost::showHelp(const wchar_t* topic) { m_help.show(topic); }

int StandinUiHost::getPathVariable(const wchar_t* name, wchar_t (&value)[kKhPathLength]) {
    const auto found = m_pathVariables.find(name);
    if (found == m_pathVariables.end()) return 0;
    wcsncpy(value, found->second, kKhPathLength - 1);
    value[kKhPathLength - 1] = 0;
    return kKhStatusOk;
}
