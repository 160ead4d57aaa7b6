#include <ktui/pickers/config_util.h>

#include <kh_system.h>
#include <ktui/host/string_resources.h>
#include <ktui/pickers/save_formats.h>
#include <od_host_services.h>

namespace {

constexpr short kMetric = 1;
constexpr const wchar_t* kSettingSection = L"General";
constexpr const wchar_t* kSettingKey = L"DefaultFormatForSave";
constexpr const wchar_t* kProductPrefix = L"AutoCAD ";

OdString textOf(const FormatText& text) {
    return text.id ? OdString(LoadToolkitString(text.id, text.text).GetString()) : OdString(text.text);
}

OdString longNameOf(const SaveFormatRow& row) {
    return row.longName.id ? kProductPrefix + textOf(row.longName) : textOf(row.longName);
}

bool isSameExtension(const OdString& a, const wchar_t* b) {
    return ::CompareStringW(LOCALE_USER_DEFAULT, NORM_IGNORECASE, a.c_str(), -1, b, -1) == CSTR_EQUAL;
}

DrawingKind kindOf(const OdString& extension) {
    if (isSameExtension(extension, L".dws")) return DrawingKind::kStandard;
    return isSameExtension(extension, L".dwt") ? DrawingKind::kTemplate : DrawingKind::kPlain;
}

}  // namespace

namespace KhUtConfigUtil {

short getMesurementInit() {
    const OdDbHostAppServices* services = oddbHostApplicationServices();
    return services ? services->measurementInit() : kMetric;
}

void setMesurementInit(short value) {
    if (OdDbHostAppServices* services = oddbHostApplicationServices())
        services->setMeasurementInit(value != 0 ? 1 : 0);
}

OdString getMesurementFileName(short value) { return value != 0 ? L"ktdsiso.dwt" : L"ktds.dwt"; }

OdString getDefaultTemplateFileName() { return getMesurementFileName(getMesurementInit()); }

int getSaveFormatList(OdArray<KtApDocument::SaveFormat>& list) {
    list.clear();
    CKhDocumentServices* documents = CKhSystem::instance()->documentServices();
    for (int index = 0; index < documents->saveFormatCount(); ++index) {
        int format = KtApDocument::kUnknown;
        OdString name;
        if (documents->saveFormatAt(index, format, name))
            list.append(static_cast<KtApDocument::SaveFormat>(format));
    }
    // Kept: the R13 formats and most templates and standards have rows but aren't offered.
    for (const int format : kOfferedSaveFormats) list.append(static_cast<KtApDocument::SaveFormat>(format));
    return list.length();
}

KtApDocument::SaveFormat getCurrentSaveFormat() {
    int format = kDefaultSaveFormat;
    CKhSystem::instance()->profileStore()->getProfileInt(kSettingSection, kSettingKey, format, 0);
    return static_cast<KtApDocument::SaveFormat>(format);
}

bool setCurrentSaveFormat(KtApDocument::SaveFormat format) {
    if (!IsStorableSaveFormat(format)) return false;
    CKhSystem::instance()->profileStore()->setProfileInt(kSettingSection, kSettingKey, format, 0);
    return true;
}

bool getSaveInfoByFormat(KtApDocument::SaveFormat format, SKhSaveInfo& info) {
    const SaveFormatRow* row = FindSaveFormat(format);
    if (!row) return false;
    info.saveFileType = row->type;
    info.dwgVersion = row->version;
    info.description = textOf(row->description);
    info.shortName = textOf(row->shortName);
    info.longName = longNameOf(*row);
    info.extension = row->extension;
    if (BaseSaveFormat(format) != format)
        CKhSystem::instance()->documentServices()->saveFormatName(format, info.description);
    return true;
}

KtApDocument::SaveFormat getSaveFormatByInfo(OdDb::SaveFileType type, OdDb::DwgVersion version,
                                             const OdString& extension) {
    return static_cast<KtApDocument::SaveFormat>(SaveFormatOf(type, version, kindOf(extension)));
}

}  // namespace KhUtConfigUtil
