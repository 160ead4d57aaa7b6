#include <ktui/nav/plot_override.h>

namespace {

constexpr const wchar_t* kOverrideName = L"AcPublish_PlotSettingsOverride";
// Kept: what making an extension dictionary may answer, 31 where there is one already.
constexpr int kDictionaryMade = 0, kDictionaryExists = 31;

OdDbObjectId currentLayout() {
    OdDbHostAppServices* const services = oddbHostApplicationServices();
    OdDbDatabase* const drawing = services != nullptr ? services->workingDatabase() : nullptr;
    return drawing != nullptr ? drawing->currentLayoutId() : OdDbObjectId();
}

bool openDictionary(OdDbLayout& layout, OdDbDictionaryPtr& dictionary) {
    const int made = layout.createExtensionDictionary();
    return (made == kDictionaryMade || made == kDictionaryExists) &&
           oddbOpenOdDbObject(dictionary, layout.extensionDictionary(), OdDb::kForWrite) == kOdOk;
}

}  // namespace

bool IsModelLayoutCurrent() {
    OdDbPlotSettingsPtr settings;
    return oddbOpenOdDbObject(settings, currentLayout()) == kOdOk && settings->modelType();
}

bool FindPlotOverride(OdDbPlotSettingsPtr& settings) {
    OdDbLayoutPtr layout;
    OdDbDictionaryPtr dictionary;
    if (oddbOpenOdDbObject(layout, currentLayout(), OdDb::kForWrite) != kOdOk) return false;
    if (!openDictionary(*layout, dictionary)) return false;
    if (dictionary->has(kOverrideName))
        return oddbOpenOdDbObject(settings, dictionary->getAt(kOverrideName)) == kOdOk;
    settings = new OdDbPlotSettings;
    settings->copyFrom(*layout);
    return dictionary->setAt(kOverrideName, OdDbObjectPtr(settings.get())) == kOdOk;
}
