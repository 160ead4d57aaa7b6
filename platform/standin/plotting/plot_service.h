// The plot service of the stand-in host: keeps the options of an export in the user's profile. What takes a
// plotter or a view of the drawing it can't do, and says so. Internal to the module.
#pragma once

#include <kh_plot_service.h>

/// Numbers of the options in section "Export" of the profile, and what stands for one that is not there.
struct ExportOption {
    const wchar_t* key;
    int standard;
};
constexpr ExportOption kExportMultiSheet = {L"MultiSheet", 1};
constexpr ExportOption kExportLayers = {L"Layers", 1};
constexpr ExportOption kExportMerge = {L"Merge", 0};
constexpr ExportOption kExportPassword = {L"Password", 0};
constexpr ExportOption kExportBlocks = {L"Blocks", 0};
constexpr ExportOption kExportFirstSwitch = {L"FirstSwitch", 0};
constexpr ExportOption kExportSecondSwitch = {L"SecondSwitch", 0};
constexpr ExportOption kExportModelArea = {L"ModelArea", 0};
constexpr ExportOption kExportLayoutArea = {L"LayoutArea", 3};
constexpr ExportOption kExportOverride = {L"Override", 0};

/// An option from the profile of the host in force.
int getExportOption(const ExportOption& option);
void setExportOption(const ExportOption& option, int value);

class StandinPlotService final : public CKhPlotSvr {
public:
    void plotStampDialog() override;
    void exportOptionsDialog() override;
    void getExportSummary(KhExportSummary& summary) override;
    void setExportFormat(int format, int flag) override;
    void setSecondSwitch(bool on) override;
    bool getSecondSwitch() override;
    void setFirstSwitch(bool on) override;
    bool getFirstSwitch() override;
    /// A window that was chosen and never picked gives way to the display.
    void prepareArea(bool isModel) override;
    /// An area of the other kind of space is left out.
    void setPlotArea(int area, bool isModel) override;
    int getPlotArea(bool isModel) override;
    bool hasNoWindow() override;
    void pickWindow() override;
    void overrideDialog(OdDbPlotSettings* settings, int tag) override;
    void setOverride(bool on) override;
    bool getOverride() override;

private:
    int m_format = 0;  ///< 0 DWF, 1 DWFx, 2 PDF
};
