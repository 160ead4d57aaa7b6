// Plot settings and layouts.
#pragma once

#include "od_db_object.h"

/// What a printer leaves blank at the edges of the paper, in millimetres.
struct OdDbPlotMargins {
    double left = 0, bottom = 0, right = 0, top = 0;
};

/// How a layout, or a named page set-up, is put on paper. What has no accessor is kept.
class ODRT_API OdDbPlotSettings : public OdDbObject {
public:
    const char* dxfName() const override { return "PLOTSETTINGS"; }

    /// The name of the page set-up; empty for a layout's own settings.
    OdString getPlotSettingsName() const;
    /// File name of the plot style table (.ctb or .stb); empty for none.
    OdString getCurrentStyleSheet() const;
    void setCurrentStyleSheet(const wchar_t* fileName);
    /// The plotter's and the paper's names.
    OdString getPlotCfgName() const;
    OdString getCanonicalMediaName() const;
    void setCanonicalMediaName(const wchar_t* name);
    /// Size of the paper in millimetres as it lies in the printer; 0 where it isn't known.
    double getPlotPaperWidth() const;
    double getPlotPaperHeight() const;
    void setPlotPaperSize(double width, double height);
    /// Margins of the drawing as it is read.
    OdDbPlotMargins getPlotPaperMargins() const;
    /// Where the drawing's 0, 0 lies from the corner of the margins, in millimetres.
    OdGePoint2d getPlotOrigin() const;
    /// Whether the paper is turned a quarter, so that what is its width is the height of the drawing.
    bool isPlotTurned() const;
    void setPlotTurned(bool turned);
    /// Whether lengths on paper are inches; millimetres otherwise.
    bool isPlotInInches() const;
    /// Whether the drawing is made to fit the paper, whatever the scale says.
    bool isPlotFitted() const;
    /// Lengths on paper for one drawing unit, above 0.
    double getPlotScale() const;
    /// Takes the scale `paper` to `drawing`, both above 0; kOdInvalidInput for others.
    OdResult setPlotScale(double paper, double drawing);
    void setPlotFitted();
    /// Whether the settings are for model space.
    bool modelType() const;
    void setModelType(bool model);
    /// Copies every setting of `source`, but not the layout part of one.
    void copyFrom(const OdDbPlotSettings& source);
};
using OdDbPlotSettingsPtr = OdSmartPtr<OdDbPlotSettings>;

/// One layout: a block of entities with plot settings, shown under a tab.
class ODRT_API OdDbLayout : public OdDbPlotSettings {
public:
    const char* dxfName() const override { return "LAYOUT"; }

    /// The tab's text; "Model" for model space.
    OdString getLayoutName() const;
    /// The block that holds the layout's entities.
    OdDbObjectId getBlockTableRecordId() const;
    /// Place of the tab, 0 for the model tab.
    int getTabOrder() const;
};
using OdDbLayoutPtr = OdSmartPtr<OdDbLayout>;
