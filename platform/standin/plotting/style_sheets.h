// The plot style service of the stand-in host: reads style sheets in the folders of the path variable
// "PrinterStyleSheetDir". Internal to the module.
#pragma once

#include <map>
#include <string>

#include <windows.h>

#include <kh_plot_style.h>

#include "plotting/plot_style_table.h"

/// What became of looking for a style sheet.
enum class StyleSheetState {
    kRead,
    kUnnamed,    ///< no name was given
    kNotFound,   ///< no folder has a file of the name
    kUnreadable  ///< the file can't be read, or is no plot style table
};

class StandinStyleSheets final : public CKhPlotStyle {
public:
    bool getStyleNames(const OdString& sheet, OdArray<OdString>& names) override;

    /// Reads the sheet named by a full path or by its name alone. `table` is set only for kRead, and stays
    /// valid until the next call. A file is read anew when its size or time has changed.
    StyleSheetState read(const OdString& sheet, const PlotStyleTable*& table);

private:
    struct Sheet {
        ULONGLONG size = 0;
        FILETIME written = {};
        bool isTable = false;
        PlotStyleTable table;
    };
    const Sheet& sheetAt(const std::wstring& path, const WIN32_FILE_ATTRIBUTE_DATA& file);

    std::map<std::wstring, Sheet> m_sheets;  ///< by path
};
