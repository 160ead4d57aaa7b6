// What one font file holds, as far as a list of fonts needs to know: its kind, and the family and style of
// each face. Nothing but headers is read.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "../standin_api.h"

class ByteSource;

enum class FontKind : std::uint8_t {
    kNone,      ///< no font
    kTrueType,  ///< outlines: .ttf, .otf, .ttc
    kShape,     ///< strokes (.shx): letters by code or by Unicode
    kBigFont    ///< strokes (.shx): the second half of an Asian text style
};

/// Why a file is not in the list.
enum class FontProblem : std::uint8_t {
    kNone,
    kMissing,     ///< there is no such file
    kUnreadable,  ///< it can't be opened
    kNotAFont,    ///< its bytes, or its extension, are not those of a font
    kDamaged,     ///< it begins like a font, and then breaks off or contradicts itself
    kNoLetters    ///< a library of shapes for linetypes and symbols
};

/// One face of an outline font.
struct FontFace {
    std::wstring family;         ///< never empty
    std::wstring style;          ///< never empty
    std::uint16_t weight = 400;  ///< 1 to 1000; 400 is regular, 700 bold
    std::uint16_t width = 5;     ///< 1 to 9; 5 is normal
    bool isItalic = false;

    bool operator==(const FontFace&) const = default;
};

/// A font file as read. A shape font has no faces: it goes by the name of its file.
struct FontFile {
    FontKind kind = FontKind::kNone;
    FontProblem problem = FontProblem::kNotAFont;
    std::vector<FontFace> faces;

    bool operator==(const FontFile&) const = default;
};

/// Whether a file of this name may be a font, by its extension: .ttf, .otf, .ttc and .shx in any case.
STANDIN_API bool isFontFileName(std::wstring_view name);

/// The name behind the last separator of a path, of either kind.
STANDIN_API std::wstring_view fileNameOf(std::wstring_view path);

/// Reads `bytes` as the file `name`, whose extension says what to expect. A result with a problem has the
/// kind kNone and no faces.
STANDIN_API FontFile readFont(ByteSource& bytes, std::wstring_view name);

/// The same for the file at `path`.
STANDIN_API FontFile readFontFile(const std::wstring& path);
