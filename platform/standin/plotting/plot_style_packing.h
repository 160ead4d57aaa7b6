// The packing of plot style tables: the first line, the lengths, and zlib. Internal to the module.
#pragma once

#include <string>
#include <string_view>

#include "plotting/plot_style_table.h"

/// Gives the text in the bytes of a file, unpacked where it is packed. On failure `text` is left alone.
PlotStyleFault UnpackPlotStyleText(std::string_view bytes, std::string& text);

/// The bytes of a file that holds `text`.
std::string PackPlotStyleText(std::string_view text, bool isColorDependent);
