// The names in an outline font: which of the many that it holds is shown.
//
// A font names itself in several languages and encodings. English stands first, so that a drawing's fonts are
// called the same on every machine; then Unicode without a language, the old Roman encoding, Chinese
// (simplified before traditional) and every other language by its number. Names in the old Asian encodings
// are passed over: fonts that have them have Unicode ones beside.
#pragma once

#include <cstdint>
#include <string>

#include "../standin_api.h"

class ByteSource;

struct FontNames {
    std::wstring family;  ///< never empty
    std::wstring style;   ///< empty if the font names none
};

/// Reads the family and style from the name table at `offset` of `bytes`: the typographic pair if the font
/// has a typographic family, otherwise the plain pair. Control characters go, blanks at both ends too, and an
/// unpaired surrogate becomes U+FFFD. False if there is no legible family.
STANDIN_API bool readFontNames(ByteSource& bytes, std::uint64_t offset, std::uint64_t length,
                               FontNames& names);
