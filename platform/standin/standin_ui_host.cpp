// The facet with windows: the host's dialogs, help, path variables.
#include "choice_dialog.h"
#include "color_dialog.h"
#include "resource.h"
#include "standin_facets.h"

extern "C" IMAGE_DOS_HEADER __ImageBase;

namespace {

/// Takes resources from this module for as long as it lives.
class OwnResources {
public:
    OwnResources() : m_former(AfxGetResourceHandle()) {
        AfxSetResourceHandle(reinterpret_cast<HINSTANCE>(&__ImageBase));
    }
    ~OwnResources() { AfxSetResourceHandle(m_former); }
    OwnResources(const OwnResources&) = delete;
    OwnResources& operator=(const OwnResources&) = delete;

private:
    HINSTANCE m_former;
};

/// The window that a dialog opened now belongs to: the one in use.
CWnd* dialogParent() { return CWnd::GetActiveWindow(); }

}  // namespace

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
    std::vector<CString> names;
    if (allowByLayerByBlock) names = {L"ByLayer", L"ByBlock"};
    OdDbDatabase* drawing = oddbHostApplicationServices()->workingDatabase();
    OdDbDictionaryPtr styles;
    if (drawing != nullptr && drawing->getPlotStyleNameDictionary(styles) == kOdOk)
        for (auto entry = styles->newIterator(); !entry->done(); entry->next())
            names.push_back(entry->name().c_str());
    int current = -1;
    for (size_t i = 0; i < names.size(); ++i)
        if (names[i].CompareNoCase(currentName) == 0) current = static_cast<int>(i);
    CChoiceDialog dialog(IDS_PLOT_STYLE_TITLE, names, current, dialogParent());
    if (dialog.DoModal() != IDOK) return false;
    m_chosenPlotStyle = names[static_cast<size_t>(dialog.chosen())];
    chosenName = m_chosenPlotStyle;
    return true;
}

bool StandinUiHost::showLinetypeDialog(const OdDbObjectId& current, OdDbObjectId& chosen, int) {
    const OwnResources resources;
    OdDbDatabase* drawing = oddbHostApplicationServices()->workingDatabase();
    OdDbLinetypeTablePtr table;
    if (drawing == nullptr || drawing->getLinetypeTable(table) != kOdOk) return false;
    std::vector<CString> names;
    std::vector<OdDbObjectId> ids;
    int selected = -1;
    for (auto walk = table->newIterator(); !walk->done(); walk->step()) {
        OdDbSymbolTableRecordPtr record;
        if (walk->getRecord(record) != kOdOk || record->isDependent()) continue;
        if (record->objectId() == current) selected = static_cast<int>(names.size());
        names.push_back(record->getName().c_str());
        ids.push_back(record->objectId());
    }
    CChoiceDialog dialog(IDS_LINETYPE_TITLE, names, selected, dialogParent());
    if (dialog.DoModal() != IDOK) return false;
    chosen = ids[static_cast<size_t>(dialog.chosen())];
    return true;
}

void StandinUiHost::showHelp(const wchar_t* topic) {
    const OwnResources resources;
    CString text;
    text.LoadString(IDS_HELP_TEXT);
    if (topic != nullptr && *topic != 0) text += CString(L"\n") + topic;
    AfxMessageBox(text, MB_ICONINFORMATION);
}

int StandinUiHost::getPathVariable(const wchar_t* name, wchar_t (&value)[kKhPathLength]) {
    const auto found = m_pathVariables.find(name);
    if (found == m_pathVariables.end()) return 0;
    wcsncpy(value, found->second, kKhPathLength - 1);
    value[kKhPathLength - 1] = 0;
    return kKhStatusOk;
}
