// The file formats that a drawing can be saved in: the reference for every file dialog of the toolkit.
//
// A format has a code, KtApDocument::SaveFormat. A code above 1000 is a format that the host adds and that
// behaves as the format of its code modulo 1000. Without any window; every thread may ask.
//
// Private to the library; its tests link it by itself.
#pragma once

#include <od_db_types.h>

#include <array>

/// A text of the resource library, or a plain one.
struct FormatText {
    unsigned id;          ///< of the resource library; 0 for a plain text
    const wchar_t* text;  ///< the plain text, or what serves when the library has none
};

/// One format.
struct SaveFormatRow {
    int code;
    OdDb::SaveFileType type;
    OdDb::DwgVersion version;
    FormatText description;
    FormatText shortName;
    FormatText longName;  ///< a text with an id is a tail behind "AutoCAD "
    const wchar_t* extension;
};

/// What kind of drawing file an extension stands for.
enum class DrawingKind { kPlain, kTemplate, kStandard };

/// Code of the format that a drawing is saved in unless the user has set another: the 2013 drawing.
constexpr int kDefaultSaveFormat = 60;

/// The formats that are offered, those of the host aside, in the order of the list.
constexpr std::array<int, 14> kOfferedSaveFormats = {60, 48, 36, 24, 12, 8, 51, 50, 61, 49, 37, 25, 13, 1};

/// The format that `code` behaves as: `code` itself up to 1000, above it the rest modulo 1000.
constexpr int BaseSaveFormat(int code) { return code > 1000 ? code % 1000 : code; }

/// Whether `code` may be stored as the user's choice. Only the range of its base counts.
constexpr bool IsStorableSaveFormat(int code) {
    // Kept: a code without a row may be stored.
    return BaseSaveFormat(code) >= 1 && BaseSaveFormat(code) <= 63;
}

/// The row of the format that `code` behaves as, -1 standing for the 2010 drawing; null if there is none.
const SaveFormatRow* FindSaveFormat(int code);

/// Code of the format of `type`, `version` and, for drawings, `kind`; -1 if there is none.
int SaveFormatOf(OdDb::SaveFileType type, OdDb::DwgVersion version, DrawingKind kind);
