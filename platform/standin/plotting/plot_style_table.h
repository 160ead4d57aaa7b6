// Plot style tables: named ones (.stb), whose styles a drawing's objects name, and colour tables (.ctb),
// which have a style for each of the 255 indexed colours, called Color_1 to Color_255.
//
// A file is a line that says what it is, and a text of nested blocks, packed by zlib:
//
//     PIAFILEVERSION_2.0,STBVER1,compress CR LF pmzlibcodec
//     checksum, length of the text, length of the packed text: four bytes each, the low byte first
//     packed text
//
// The text without packing is read too, with its first line or without.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <od_string.h>

#include "standin_api.h"

/// Longest text in bytes that is unpacked; a table of colours takes about 60,000.
constexpr std::size_t kMostPlotStyleText = 4u << 20;

/// Where a file has the number of a pattern: the object's own linetype.
constexpr int kObjectLinetype = 31;

/// One style. What is not given is taken from the object that is plotted.
struct PlotStyle {
    OdString name;
    OdString description;
    std::optional<std::uint32_t> rgb;  ///< red in bits 16 to 23, green in 8 to 15, blue in 0 to 7
    std::optional<int> colorIndex;     ///< in place of rgb, 1 to 255
    std::optional<double> lineweight;  ///< millimetres
    std::optional<int> linetype;       ///< number of a pattern of the plotter, 0 (solid) to 30
    int screening = 100;               ///< percent of the ink
};

/// A whole table.
struct PlotStyleTable {
    bool isColorDependent = false;
    OdString description;
    std::vector<PlotStyle> styles;  ///< in the order of the file
};

/// Why a file gives no table.
enum class PlotStyleFault {
    kNone,
    kNotATable,  ///< it doesn't look like one
    kTruncated,  ///< it ends too early
    kDamaged,    ///< its lengths, its packed text, or its blocks make no sense
    kTooLarge    ///< the text is longer than kMostPlotStyleText
};

/// Reads the bytes of a file. On failure the answer is not kNone and `table` is left alone. Texts are UTF-8
/// or in the code page `codePage`.
STANDIN_API PlotStyleFault ReadPlotStyleTable(std::string_view bytes, int codePage, PlotStyleTable& table);

/// The bytes of a file of this table, packed. Texts are written in UTF-8, line ends in them as blanks.
STANDIN_API std::string WritePlotStyleTable(const PlotStyleTable& table);
