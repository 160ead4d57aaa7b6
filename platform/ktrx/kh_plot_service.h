// The optional plot service that stands behind the export of a drawing as an underlay.
#pragma once

#include "kh_service_manager.h"
#include "od_string.h"

class OdDbPlotSettings;

/// Name under which the service is registered.
constexpr const wchar_t* kKhPlotService = L"CKhPlotSvr";

/// What an export dialog shows of the options in force.
struct KhExportSummary {
    OdString defaultLocation;  ///< folder to start in; empty for the current one
    int multiSheet = 0;        ///< 1: all sheets go into one file
    OdString summary;          ///< one line about the options
    int layerInformation = 0;  ///< non-zero: layers are written
    int mergeControl = 0;      ///< non-zero: overlapping lines merge
    int passwordPrompt = 0;    ///< non-zero: a password is asked for
    int blockInformation = 0;  ///< non-zero: blocks are written
};

class CKhPlotSvr : public CKhService {
public:
    /// Shows the plot stamp settings, modally.
    virtual void plotStampDialog() = 0;
    /// Shows the export options, modally.
    virtual void exportOptionsDialog() = 0;
    /// Fills `summary` with the options in force.
    virtual void getExportSummary(KhExportSummary& summary) = 0;
    /// Chooses the file format: 0 DWF, 1 DWFx, 2 PDF. `flag` belongs to the format and is 1.
    virtual void setExportFormat(int format, int flag) = 0;
    /// The second switch of the dialog, stored and read back.
    virtual void setSecondSwitch(bool on) = 0;
    virtual bool getSecondSwitch() = 0;
    /// The first switch of the dialog, stored and read back.
    virtual void setFirstSwitch(bool on) = 0;
    virtual bool getFirstSwitch() = 0;
    /// Prepares the plot areas of model space, or of a layout.
    virtual void prepareArea(bool isModel) = 0;
    /// Chooses the plot area: 0 display, 1 extents, 2 window; 3 current layout, 4 all layouts.
    virtual void setPlotArea(int area, bool isModel) = 0;
    virtual int getPlotArea(bool isModel) = 0;
    /// True when the window area is chosen and no window has been picked.
    virtual bool hasNoWindow() = 0;
    /// Lets the user pick a window in the drawing, and returns when that is done or given up. The dialog is
    /// hidden meanwhile, and the main window has been told that an editor command began.
    virtual void pickWindow() = 0;
    /// Shows the page set-up override of `settings` (never null, the drawing's), modally, for the kind of
    /// file that `tag` stands for: 0 PDF, 1 DWF, 2 DWFx.
    virtual void overrideDialog(OdDbPlotSettings* settings, int tag) = 0;
    /// Whether the override counts.
    virtual void setOverride(bool on) = 0;
    virtual bool getOverride() = 0;

protected:
    ~CKhPlotSvr() = default;
};
