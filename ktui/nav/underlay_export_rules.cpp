#include <ktui/nav/underlay_export_rules.h>

#include <ktdsres/underlay_export_ids.h>

namespace {

struct KnownFormat {
    const wchar_t* extension;
    ExportFormat format;
};
constexpr KnownFormat kFormats[] = {{L"DWF", {1, 0}}, {L"DWFX", {2, 1}}, {L"PDF", {0, 2}}};
constexpr const wchar_t* kNames[] = {L"DWF", L"DWFx", L"PDF"};

constexpr ExportArea kModelAreas[] = {{{IDS_EXPORT_DISPLAY, L"Display"}, kExportDisplay},
                                      {{IDS_EXPORT_EXTENTS, L"Extents"}, kExportExtents},
                                      {{IDS_EXPORT_WINDOW, L"Window"}, kExportWindow}};
constexpr ExportArea kPaperAreas[] = {{{IDS_EXPORT_CURRENT_LAYOUT, L"Current layout"}, kExportCurrentLayout},
                                      {{IDS_EXPORT_ALL_LAYOUTS, L"All layouts"}, kExportAllLayouts}};

}  // namespace

ExportFormat ExportFormatOf(const CString& defaultExtension, const ExportFormat& otherwise) {
    const CString extension = defaultExtension.Mid(defaultExtension.ReverseFind(L'.') + 1);
    for (const KnownFormat& known : kFormats)
        if (extension.CompareNoCase(known.extension) == 0) return known.format;
    return otherwise;
}

const wchar_t* ExportFormatName(int format) {
    const bool isKnown = format >= 0 && format < static_cast<int>(std::size(kNames));
    return isKnown ? kNames[format] : L"";
}

std::span<const ExportArea> ExportAreas(bool isModel) {
    if (isModel) return kModelAreas;
    return kPaperAreas;
}

ExportText SheetsText(int multiSheet) {
    // Kept: 1 alone is a file of several sheets, while any number but 0 turns the other options on.
    if (multiSheet == 1) return {IDS_EXPORT_MULTI_SHEET, L"Multi-sheet file"};
    return {IDS_EXPORT_SINGLE_SHEET, L"Single-sheet file"};
}

ExportText InclusionText(int included) {
    if (included != 0) return {IDS_EXPORT_INCLUDE, L"Include"};
    return {IDS_EXPORT_LEAVE_OUT, L"Don't include"};
}

ExportText MergeText(int merges) {
    if (merges != 0) return {IDS_EXPORT_LINES_MERGE, L"Lines merge"};
    return {IDS_EXPORT_LINES_OVERWRITE, L"Lines overwrite"};
}

ExportText PasswordText(int asks) {
    if (asks != 0) return {IDS_EXPORT_ASK_PASSWORD, L"Prompt for password"};
    return {IDS_EXPORT_NO_PASSWORD, L"Disabled"};
}
