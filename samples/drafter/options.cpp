#include "options.h"

#include <algorithm>

#include <od_db.h>

namespace {

/// The number kept under `name` if it lies in the range, `value` unchanged otherwise.
template <class Number>
void loadNumber(CKbUiDialog& keeper, const wchar_t* name, Number& value, unsigned long least,
                unsigned long most) {
    unsigned long found = 0;
    if (keeper.GetDialogData(name, found) && found >= least && found <= most)
        value = static_cast<Number>(found);
}

constexpr unsigned long kAnyColor = 0xFFFFFF;

}  // namespace

DrafterOptions LoadOptions(CKbUiDialog& keeper) {
    DrafterOptions options;
    keeper.GetDialogData(L"SupportFolders", options.supportFolders);
    keeper.GetDialogData(L"StyleSheets", options.styleSheets);
    keeper.GetDialogData(L"Template", options.templateFile);
    loadNumber(keeper, L"Background", options.background, 0, kAnyColor);
    loadNumber(keeper, L"Selection", options.selection, 0, kAnyColor);
    loadNumber(keeper, L"Crosshair", options.crosshair, 1, 100);
    loadNumber(keeper, L"LinearUnits", options.units.linear, 1, 5);
    loadNumber(keeper, L"LinearPrecision", options.units.linearPrecision, 0, 8);
    loadNumber(keeper, L"AngularUnits", options.units.angular, 0, 4);
    loadNumber(keeper, L"AngularPrecision", options.units.angularPrecision, 0, 8);
    return options;
}

bool SaveOptions(CKbUiDialog& keeper, const DrafterOptions& options) {
    const struct {
        const wchar_t* name;
        unsigned long value;
    } numbers[] = {{L"Background", options.background},
                   {L"Selection", options.selection},
                   {L"Crosshair", static_cast<unsigned long>(options.crosshair)},
                   {L"LinearUnits", static_cast<unsigned long>(options.units.linear)},
                   {L"LinearPrecision", static_cast<unsigned long>(options.units.linearPrecision)},
                   {L"AngularUnits", static_cast<unsigned long>(options.units.angular)},
                   {L"AngularPrecision", static_cast<unsigned long>(options.units.angularPrecision)}};
    bool stored = keeper.SetDialogData(L"SupportFolders", options.supportFolders) != 0;
    stored &= keeper.SetDialogData(L"StyleSheets", options.styleSheets) != 0;
    stored &= keeper.SetDialogData(L"Template", options.templateFile) != 0;
    for (const auto& each : numbers) stored &= keeper.SetDialogData(each.name, each.value) != 0;
    return stored;
}

std::vector<CString> FoldersOf(const CString& list) {
    std::vector<CString> folders;
    for (int at = 0; at >= 0;) {
        CString folder = list.Tokenize(L";", at);
        folder.Trim();
        if (!folder.IsEmpty()) folders.push_back(folder);
    }
    return folders;
}

UnitOptions UnitsOf(const OdDbDatabase& drawing) {
    return {drawing.getLUNITS(), drawing.getLUPREC(), drawing.getAUNITS(), drawing.getAUPREC()};
}

void SetUnits(OdDbDatabase& drawing, const UnitOptions& units) {
    const UnitOptions present = UnitsOf(drawing);
    if (units.linear != present.linear) drawing.setLUNITS(units.linear);
    if (units.linearPrecision != present.linearPrecision) drawing.setLUPREC(units.linearPrecision);
    if (units.angular != present.angular) drawing.setAUNITS(units.angular);
    if (units.angularPrecision != present.angularPrecision) drawing.setAUPREC(units.angularPrecision);
}
