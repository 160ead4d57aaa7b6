// The plot service of the stand-in host: keeps the options of an export in the user's profile, and writes
// drawings to PDF files. Internal to the module.
#pragma once

#include <functional>
#include <optional>

#include <afxwin.h>
#include <kh_plot_service.h>

#include "scene.h"

class StandinPlotView;

class StandinPlotService final : public CKhPlotSvr {
public:
    void plotStampDialog() override;
    void exportOptionsDialog() override;
    void getExportSummary(KhExportSummary& summary) override;
    void setExportFormat(int format, int flag) override;
    /// Whether a stamp is written.
    void setSecondSwitch(bool on) override;
    bool getSecondSwitch() override;
    /// Whether the file is opened when it is written.
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

    /// As CStandinHost::ExportDrawing.
    bool exportDrawing(const CString& path, CString& message);
    /// The window was picked in a drawing that is no longer the current one.
    void forgetWindow() { m_window.reset(); }

    StandinPlotView* m_view = nullptr;             ///< of the application; null for none
    std::function<bool(const CString&)> m_opener;  ///< opens a file that was written; empty for the system's
    DWORD m_patience = 500;                        ///< milliseconds of an export before its window comes

private:
    std::optional<SceneExtents> displayedArea() const;
    void openFile(const CString& path) const;

    int m_format = 0;  ///< 0 DWF, 1 DWFx, 2 PDF
    std::optional<SceneExtents> m_window;
};
