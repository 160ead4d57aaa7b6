// What the underlay export dialog decides without any window: the format of an extension, the plot areas of a
// kind of layout, the words for the options, and what follows the choice of an area. Private to the library;
// its tests link it by itself.
#pragma once

#include <afx.h>

#include <span>

/// Plot areas, as the plot service and the entries of the dialog number them.
constexpr int kExportDisplay = 0;
constexpr int kExportExtents = 1;
constexpr int kExportWindow = 2;
constexpr int kExportCurrentLayout = 3;
constexpr int kExportAllLayouts = 4;

/// A string of the resource library, and the literal that serves without it.
struct ExportText {
    unsigned id;
    const wchar_t* standard;
};

/// A file format as the plot service numbers it, and the tag that the page set-up override goes by.
struct ExportFormat {
    int tag = 1;
    int format = 0;
};

/// The format of `defaultExtension` (with or without what stands before its last point), without regard to
/// case. Kept: any other extension leaves `otherwise`.
ExportFormat ExportFormatOf(const CString& defaultExtension, const ExportFormat& otherwise);
/// The format's name in messages: "DWF", "DWFx" or "PDF"; empty for a number that is none.
const wchar_t* ExportFormatName(int format);

/// An entry of the box of plot areas.
struct ExportArea {
    ExportText text;
    int area;  ///< the entry's item data
};
/// The entries for model space, or for a layout on paper, in their order.
std::span<const ExportArea> ExportAreas(bool isModel);

/// Whether a window can be picked for `area`.
constexpr bool PicksExportWindow(int area) { return area == kExportWindow; }
/// Whether `area` takes the page set-ups of the layouts as they are, so that none can be chosen.
constexpr bool TakesLayoutSetups(int area) { return area == kExportAllLayouts; }

// The words for the options, by the number that the plot service gave.
ExportText SheetsText(int multiSheet);
ExportText InclusionText(int included);
ExportText MergeText(int merges);
ExportText PasswordText(int asks);
