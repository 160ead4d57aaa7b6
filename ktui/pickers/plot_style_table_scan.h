// Finds the plot style tables that the application offers. Private to the library.
#pragma once

#include <string>
#include <vector>

/// Paths of the style tables (.ctb and .stb) in the folders of the host's path variable
/// "PrinterStyleSheetDir", in the order found. A folder that isn't there is looked for below the
/// application's own.
std::vector<std::wstring> FindPlotStyleTables();

/// What follows the last backslash of `path`; empty if there is none behind the first character.
std::wstring PlotStyleTableName(const std::wstring& path);
