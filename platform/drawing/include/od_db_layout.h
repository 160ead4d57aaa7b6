// Plot settings and layouts.
#pragma once

#include "od_db_object.h"

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
