// A drawing with named plot styles and a folder of style sheets.
#pragma once

#include "../../../platform/standin/plotting/plot_style_table.h"
#include "../../../platform/standin/resource.h"
#include "standin_fixture.h"

namespace ui_test {

using Texts = std::vector<std::wstring>;

class PlotStyleTest : public StandinTest {
protected:
    /// The styles "Normal", "Heavy", "Half tone" and "Planting"; the layout in use has the sheet "house.stb".
    PlotStyleTest() {
        drawing->setPSTYLEMODE(0);
        OdDbDictionaryPtr styles;
        drawing->getPlotStyleNameDictionary(styles, OdDb::kForWrite);
        for (const wchar_t* name : {L"Heavy", L"Half tone", L"Planting"})
            styles->setAt(name, new OdDbPlaceHolder);
        setSheet(L"house.stb");
        host.SetPathVariable(L"PrinterStyleSheetDir", folder.path().c_str());
    }

    void setSheet(const wchar_t* name) {
        drawing->currentLayoutId().open<OdDbLayout>(OdDb::kForWrite)->setCurrentStyleSheet(name);
    }
    /// The bytes of a table with these styles.
    static std::string tableOf(const Texts& names, bool isColorDependent = false) {
        PlotStyleTable table;
        table.isColorDependent = isColorDependent;
        for (const std::wstring& name : names) {
            PlotStyle style;
            style.name = name.c_str();
            table.styles.push_back(style);
        }
        return WritePlotStyleTable(table);
    }
};

}  // namespace ui_test
