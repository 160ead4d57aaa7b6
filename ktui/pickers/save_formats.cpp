#include <ktui/pickers/save_formats.h>

#include <ktdsres/resource_ids.h>

#include <algorithm>

namespace {

using OdDb::kDwg;
using OdDb::kDxf;

constexpr int kUnknownFormat = -1;
constexpr int k2010Drawing = 48;

constexpr FormatText plain(const wchar_t* text) { return {0, text}; }

/// A drawing: its description is a text of the resource library.
constexpr SaveFormatRow drawing(int code, OdDb::DwgVersion version, FormatText description,
                                const wchar_t* shortName, const wchar_t* longName) {
    return {code, kDwg, version, description, plain(shortName), plain(longName), L".dwg"};
}

/// An exchange file: description and long name are the same text.
constexpr SaveFormatRow exchange(int code, OdDb::DwgVersion version, const wchar_t* shortName,
                                 const wchar_t* longName) {
    return {code, kDxf, version, plain(longName), plain(shortName), plain(longName), L".dxf"};
}

constexpr SaveFormatRow drawingTemplate(int code, OdDb::DwgVersion version) {
    constexpr FormatText kName = {IDS_TEMPLATE, L"样板"};
    return {code, kDwg, version, {IDS_DRAWING_TEMPLATE, L"AutoCAD 图形样板"}, kName, kName, L".dwt"};
}

constexpr SaveFormatRow drawingStandard(int code, OdDb::DwgVersion version) {
    constexpr FormatText kName = {IDS_STANDARD, L"标准"};
    return {code, kDwg, version, {IDS_DRAWING_STANDARD, L"AutoCAD 图形标准"}, kName, kName, L".dws"};
}

constexpr SaveFormatRow kRows[] = {
    exchange(1, OdDb::kDHL_1009, L"R12 DXF", L"AutoCAD R12(LT2) DXF"),
    drawing(4, OdDb::kDHL_1012, {IDS_R13_DRAWING, L"AutoCAD R13 图形"}, L"R13", L"AutoCAD R13"),
    exchange(5, OdDb::kDHL_1012, L"R13 DXF", L"AutoCAD R13 DXF"),
    drawing(8, OdDb::kDHL_1014, {IDS_R14_DRAWING, L"AutoCAD R14(LT98/LT97) 图形"}, L"R14",
            L"AutoCAD R14(LT98/LT97)"),
    exchange(9, OdDb::kDHL_1014, L"R14 DXF", L"AutoCAD R14(LT98/LT97) DXF"),
    drawing(12, OdDb::kDHL_1015, {IDS_2000_DRAWING, L"AutoCAD 2000(LT2000) 图形"}, L"2000",
            L"AutoCAD 2000(LT2000)"),
    exchange(13, OdDb::kDHL_1015, L"2000 DXF", L"AutoCAD 2000(LT2000) DXF"),
    drawingTemplate(14, OdDb::kDHL_1015),
    drawingStandard(15, OdDb::kDHL_1015),
    drawing(24, OdDb::kDHL_1018, {IDS_2004_DRAWING, L"AutoCAD 2004(LT2004) 图形"}, L"2004",
            L"AutoCAD 2004(LT2004)"),
    exchange(25, OdDb::kDHL_1018, L"2004 DXF", L"AutoCAD 2004(LT2004) DXF"),
    drawingTemplate(26, OdDb::kDHL_1018),
    drawingStandard(27, OdDb::kDHL_1018),
    drawing(36, OdDb::kDHL_1021, {IDS_2007_DRAWING, L"AutoCAD 2007(LT2007) 图形"}, L"2007",
            L"AutoCAD 2007(LT2007)"),
    exchange(37, OdDb::kDHL_1021, L"2007 DXF", L"AutoCAD 2007(LT2007) DXF"),
    drawingTemplate(38, OdDb::kDHL_1021),
    drawingStandard(39, OdDb::kDHL_1021),
    drawing(48, OdDb::kDHL_1024, {IDS_2010_DRAWING, L"AutoCAD 2010(LT2010) 图形"}, L"2010",
            L"AutoCAD 2010(LT2010)"),
    exchange(49, OdDb::kDHL_1024, L"2010 DXF", L"AutoCAD 2010 DXF"),
    drawingTemplate(50, OdDb::kDHL_1024),
    drawingStandard(51, OdDb::kDHL_1024),
    drawing(60, OdDb::kDHL_1027, {IDS_2013_DRAWING, L"AutoCAD 2013 图形"}, L"2013", L"AutoCAD 2013"),
    exchange(61, OdDb::kDHL_1027, L"2013 DXF", L"AutoCAD 2013 DXF"),
    drawingTemplate(62, OdDb::kDHL_1027),
    drawingStandard(63, OdDb::kDHL_1027),
};

/// The formats of one version; -1 for one that there is not.
struct VersionFormats {
    OdDb::DwgVersion version;
    int exchange;
    int plain;
    int drawingTemplate;
    int standard;
};

// Kept: versions before 2000 have no templates or standards, and theirs count as plain drawings.
constexpr VersionFormats kVersions[] = {
    {OdDb::kDHL_1009, 1, -1, -1, -1},  {OdDb::kDHL_1012, 5, 4, 4, 4},     {OdDb::kDHL_1014, 9, 8, 8, 8},
    {OdDb::kDHL_1015, 13, 12, 14, 15}, {OdDb::kDHL_1018, 25, 24, 26, 27}, {OdDb::kDHL_1021, 37, 36, 38, 39},
    {OdDb::kDHL_1024, 49, 48, 50, 51}, {OdDb::kDHL_1027, 61, 60, 62, 63},
};

}  // namespace

const SaveFormatRow* FindSaveFormat(int code) {
    const int base = BaseSaveFormat(code);
    // Kept: the unknown format is the 2010 drawing, not the default one.
    const int wanted = base == kUnknownFormat ? k2010Drawing : base;
    const auto* row = std::find_if(std::begin(kRows), std::end(kRows),
                                   [wanted](const SaveFormatRow& r) { return r.code == wanted; });
    return row == std::end(kRows) ? nullptr : row;
}

int SaveFormatOf(OdDb::SaveFileType type, OdDb::DwgVersion version, DrawingKind kind) {
    for (const VersionFormats& formats : kVersions) {
        if (formats.version != version) continue;
        if (type != kDwg) return formats.exchange;
        if (kind == DrawingKind::kTemplate) return formats.drawingTemplate;
        return kind == DrawingKind::kStandard ? formats.standard : formats.plain;
    }
    return kUnknownFormat;
}
