// Files made into fonts: the families of all files with their styles, in the order in which a picker lists
// them.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "font_file.h"

/// A font file that was found, with what is in it.
struct FoundFont {
    std::wstring path;
    FontFile file;

    bool operator==(const FoundFont&) const = default;
};

struct CatalogueStyle {
    std::wstring name;       ///< "Bold"; of a stroke font the name of its file without extension
    std::wstring fileName;   ///< without folder
    std::wstring path;       ///< whole
    bool isFlagged = false;  ///< a style of this name stands before it

    bool operator==(const CatalogueStyle&) const = default;
};

struct CatalogueFont {
    std::wstring name;  ///< the family; of a stroke font the name of its file
    FontKind kind = FontKind::kNone;
    std::vector<CatalogueStyle> styles;  ///< at least one

    bool operator==(const CatalogueFont&) const = default;
};

/// The fonts of `found`, sorted by name; outline fonts before stroke fonts before big fonts of the same name.
///
/// Files without a font are passed over, and so is a path that came before, without regard to case. Faces
/// whose family names differ in case only are one font, by the name of the first. The regular style of a
/// family comes first, since pickers preselect it; the others follow by distance from it in width, weight and
/// slant. A style that the family has already, from another file or folder, is flagged: it is there to be
/// found by its file, and pickers can leave it out. Files earlier in `found` win.
STANDIN_API std::vector<CatalogueFont> makeFontCatalogue(const std::vector<FoundFont>& found);

/// Where a style stands in a catalogue.
struct CataloguePlace {
    std::size_t font = 0;
    std::size_t style = 0;
};

/// The style that the font file `name` holds, without regard to case. A whole path finds that very file; if
/// there is none, or without a folder, any file of the name is found, one that isn't flagged first. The
/// extension .shx may be left out.
STANDIN_API std::optional<CataloguePlace> findFontFile(const std::vector<CatalogueFont>& fonts,
                                                       std::wstring_view name);
