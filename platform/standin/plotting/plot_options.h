// The options of an export, as numbers in section "Export" of the user's profile. Internal to the module.
#pragma once

/// An option, and what stands for one that is not there.
struct ExportOption {
    const wchar_t* key;
    int standard;
};
constexpr const wchar_t* kExportSection = L"Export";
constexpr ExportOption kExportMultiSheet = {L"MultiSheet", 1};
constexpr ExportOption kExportLayers = {L"Layers", 1};
constexpr ExportOption kExportMerge = {L"Merge", 0};
constexpr ExportOption kExportOpenFile = {L"FirstSwitch", 0};
constexpr ExportOption kExportStamp = {L"SecondSwitch", 0};
constexpr ExportOption kExportModelArea = {L"ModelArea", 0};
constexpr ExportOption kExportLayoutArea = {L"LayoutArea", 3};
constexpr ExportOption kExportOverride = {L"Override", 0};
constexpr ExportOption kStampDrawing = {L"StampDrawing", 1};
constexpr ExportOption kStampLayout = {L"StampLayout", 1};
constexpr ExportOption kStampDate = {L"StampDate", 1};

/// An option from the profile of the host in force.
int getExportOption(const ExportOption& option);
void setExportOption(const ExportOption& option, int value);
